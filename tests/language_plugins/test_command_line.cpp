// Our plugins and addons in a temporary bundle, driven through the built executable as a user
// drives it: --ls lists both languages with every shipped style, and revising a copy of examples/
// changes the untidy files once and nothing on a forced second run.
#include "helpers/our_plugins.h"

#include "tests/harness/built_files.h"
#include "tests/harness/temporary_bundle.h"

#include <QDirIterator>
#include <QtTest>

using namespace our_plugins;

namespace {

run_options answering_yes() {
    run_options options;
    options.input = "y\n";  // the first start asks to accept the licence terms
    return options;
}

// Every file below `directory`, relative path -> content.
std::map<QString, QByteArray> tree_of(QString const& directory) {
    std::map<QString, QByteArray> tree;
    QDirIterator each(directory, QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        QString const path = each.next();
        tree[path.mid(directory.size())] = temporary_bundle::contents_of(path);
    }
    return tree;
}

}  // namespace

class test_command_line : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() {
        QVERIFY(bundle.is_valid());
        QVERIFY(bundle.add_plugin(plugin_path(c_plugin_file())));
        QVERIFY(bundle.add_plugin(plugin_path(cpp_plugin_file())));
        for (QString const& addon : shipped_addons())
            QVERIFY(bundle.add_addon(addon, QByteArray::fromStdString(shipped_addon(addon))));
    }

    void lists_both_languages_with_their_styles() {
        run_result const listing = bundle.run({"--ls"}, answering_yes());
        QCOMPARE(listing.status, 0);
        QString const out = QString::fromUtf8(listing.out + listing.err);
        for (QString const& style : QStringList{"LLVM", "Google", "Mozilla", "WebKit", "GNU", "Stroustrup", "Allman",
                                                "Kernighan&Ritchie", "Linux kernel"})
            QVERIFY2(out.contains(style), qPrintable(style));
        QVERIFY(out.contains("C ..") && out.contains("C++ .."));
    }

    void revises_the_examples_once_data() {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("style");
        QTest::addColumn<QString>("folder");
        QTest::newRow("C in Linux kernel") << "C" << "Linux kernel" << "c";
        QTest::newRow("C in Kernighan&Ritchie") << "C" << "Kernighan&Ritchie" << "c";
        QTest::newRow("C++ in Google") << "C++" << "Google" << "cpp";
        QTest::newRow("C++ in WebKit") << "C++" << "WebKit" << "cpp";
    }
    void revises_the_examples_once() {
        QFETCH(QString, language);
        QFETCH(QString, style);
        QFETCH(QString, folder);
        QString const copy = bundle.work_directory() + "/" + QTest::currentDataTag();
        QDirIterator each(built::source_dir() + "/examples/" + folder, QDir::Files);
        while (each.hasNext()) {
            QString const path = each.next();
            bundle.write_file(QString(QTest::currentDataTag()) + "/" + each.fileName(), temporary_bundle::contents_of(path));
        }
        std::map<QString, QByteArray> const before = tree_of(copy);
        QStringList const arguments = {"--lang=" + language, "--style=" + style, "--path=" + copy};
        run_result const first = bundle.run(arguments, answering_yes());
        QCOMPARE(first.status, 0);
        QVERIFY2(first.out.contains("3 files was changed"), first.out.constData());
        std::map<QString, QByteArray> const after = tree_of(copy);
        for (auto const& [file, content] : after)
            QVERIFY2(content != before.at(file), qPrintable(file));

        run_result const second = bundle.run(QStringList(arguments) << "--force", answering_yes());
        QCOMPARE(second.status, 0);
        QVERIFY2(second.out.contains("no files was changed"), second.out.constData());
        QVERIFY(tree_of(copy) == after);
    }

private:
    temporary_bundle bundle;
};

QTEST_GUILESS_MAIN(test_command_line)
#include "test_command_line.moc"
