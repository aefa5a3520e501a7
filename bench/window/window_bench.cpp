// Times the window's answers in the bundle it runs in (the script `run` makes one with the shipped
// plugins and 50 more addons): opening until shown, then each selector action, each repeated and
// reported as median and worst in milliseconds.
#include "GUI/main_window.h"
#include "GUI/select_formatting_style.h"
#include "GUI/select_programming_language.h"
#include "app/application_info.h"
#include "core/path_to.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

void report(char const* what, std::vector<double> times) {
    std::sort(times.begin(), times.end());
    std::printf("%-40s median %8.2f ms   worst %8.2f ms   (%zu runs)\n", what, times[times.size() / 2],
                times.back(), times.size());
}

double milliseconds_of(std::function<void()> const& action) {
    QElapsedTimer timer;
    timer.start();
    action();
    QApplication::processEvents();
    return timer.nsecsElapsed() / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
    QElapsedTimer since_start;
    since_start.start();
    QApplication application(argc, argv);
    set_application_info();
    std::vector<double> opening;
    double const application_made = since_start.nsecsElapsed() / 1e6;
    auto window = std::make_unique<GUI::main_window>();
    double const window_built = since_start.nsecsElapsed() / 1e6;
    window->show();
    if (!QTest::qWaitForWindowExposed(window.get()))
        return 1;
    opening.push_back(since_start.nsecsElapsed() / 1e6);
    std::printf("of which: application object %.2f ms, window built %.2f ms, then shown\n",
                application_made, window_built - application_made);
    report("window on screen after start", opening);

    auto* languages = window->findChild<QListWidget*>("languages");
    auto* styles = window->findChild<QListWidget*>("styles");
    auto* style_selector = window->findChild<GUI::select_formatting_style*>();
    auto* language_selector = window->findChild<GUI::select_programming_language*>();
    int const runs = 30;
    int failures = 0;  // actions that did not do what they were timed for

    std::vector<double> language, style, import, rename, exporting, deletion, language_import;
    QString const outside = QDir::tempPath() + "/window_bench_outside";
    QDir().mkpath(outside);
    for (int run = 0; run < runs; ++run) {
        language.push_back(milliseconds_of([&] { languages->setCurrentRow(run % languages->count()); }));
        languages->setCurrentRow(1);  // C++, which holds the 50 extra addons
        style.push_back(milliseconds_of([&] { styles->setCurrentRow(run % styles->count()); }));

        QString const addon = outside + "/Bench" + QString::number(run) + "[C++].style";
        QFile file(addon);
        file.open(QIODevice::WriteOnly);
        file.write("NAME=Bench" + QByteArray::number(run) + "\nLANGUAGE=C++\n\nS_NAME=none\nS_BEG\nS_END\n");
        file.close();
        import.push_back(milliseconds_of([&] { style_selector->import_styles_factually({addon}); }));

        window->findChild<QAction*>("style_menu_rename")->trigger();
        auto* editor = styles->findChild<QLineEdit*>("style_renamer");
        editor->setText("Benched" + QString::number(run));
        rename.push_back(milliseconds_of([&] { QTest::keyClick(editor, Qt::Key_Return); }));
        QString const renamed = path_to().addons_directory() + "/Benched" + QString::number(run) + "[C++].style";
        failures += QFile::exists(renamed) ? 0 : 1;

        QString const exported = outside + "/exported.style";
        QFile::remove(exported);
        exporting.push_back(milliseconds_of([&] { style_selector->export_style_factually(exported); }));
        failures += QFile::exists(exported) ? 0 : 1;
        deletion.push_back(milliseconds_of([&] { window->findChild<QAction*>("style_menu_delete")->trigger(); }));
        failures += QFile::exists(renamed) ? 1 : 0;

        QString const plugin_copy = outside + "/libc-language-plugin.so";
        QFile::remove(plugin_copy);
        QFile::copy(path_to().plugins_directory() + "/libc-language-plugin.so", plugin_copy);
        language_import.push_back(milliseconds_of([&] { language_selector->import_languages_factually({plugin_copy}); }));
    }
    report("select a language", language);
    report("select a style", style);
    report("import a style", import);
    report("rename a style", rename);
    report("export a style", exporting);
    report("delete a style", deletion);
    report("import a language (replacing C)", language_import);
    std::printf("actions that failed: %d\n", failures);
    window.reset();
    QDir(outside).removeRecursively();
    return failures == 0 ? 0 : 1;
}
