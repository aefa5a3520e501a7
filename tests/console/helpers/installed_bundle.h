// A temporary bundle with the test languages and a few styles installed, for command-line runs.
#ifndef STYLE_TARNEL_TESTS_CONSOLE_INSTALLED_BUNDLE_H
#define STYLE_TARNEL_TESTS_CONSOLE_INSTALLED_BUNDLE_H

#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QtTest>

// An addon text of `style` for `language`, with a valid form of the test language's "block".
inline QByteArray addon_text(QByteArray const& style, QByteArray const& language) {
    return "NAME=" + style + "\nLANGUAGE=" + language + "\n\nS_NAME=block\nS_BEG\nbegin SOME end\nS_END\n";
}

inline QByteArray addon_file(QByteArray const& style, QByteArray const& language) {
    return style + "[" + language + "].style";
}

// "Test" with the styles Plain and Wide, "Other" with the style Plain.
struct installed_bundle : temporary_bundle {
    installed_bundle() {
        add_plugin(built::test_language_plugin());
        add_plugin(built::other_language_plugin());
        add_addon(addon_file("Plain", "Test"), addon_text("Plain", "Test"));
        add_addon(addon_file("Wide", "Test"), addon_text("Wide", "Test"));
        add_addon(addon_file("Plain", "Other"), addon_text("Plain", "Other"));
    }

    QStringList installed_addons() const { return QDir(addons_directory()).entryList(QDir::Files); }
    QStringList installed_plugins() const { return QDir(plugins_directory()).entryList(QDir::Files); }
};

// Compares one run's standard error, standard output and status.
#define COMPARE_RUN(result, expected_err, expected_out, expected_status)                \
    do {                                                                                \
        run_result const& r_ = (result);                                                \
        QCOMPARE(QString::fromUtf8(r_.err), QString::fromUtf8(expected_err));           \
        QCOMPARE(QString::fromUtf8(r_.out), QString::fromUtf8(expected_out));           \
        QCOMPARE(r_.status, (expected_status));                                         \
    } while (false)

#endif
