// Times the window's answers in the bundle it runs in (the script `run` makes one with the shipped
// plugins and 50 more addons): opening until shown, then each selector action, the form editor's
// check of a key release on a form of a few kilobytes, the paths, the start of a revision and the
// task tabs, and the preview of the user's code (a 2,000-line file after a saved edit, the count of
// a 400-file task, key presses while the count runs), each repeated and reported as median and
// worst in milliseconds.
#include "GUI/list_of_paths.h"
#include "GUI/look_n_feel_editor.h"
#include "GUI/main_window.h"
#include "GUI/preview_of_code.h"
#include "GUI/show_revise.h"
#include "GUI/view_n_edit_language_structure.h"
#include "GUI/select_formatting_style.h"
#include "GUI/select_programming_language.h"
#include "app/application_info.h"
#include "core/kernel.h"
#include "core/path_to.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTabBar>
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
    // The form editor, on a copy of GNU whose "array initializer" form is a few kilobytes: its
    // tokens with long runs of blanks and line breaks between them.
    QString const big_form = [] {
        QString form;
        for (char const* token : {"type", "name", "[", "]", "=", "{", "SOME", ",", "SOME", ",", "SOME", "}", ";"})
            form += QString(token) + QString(300, ' ') + "\n";
        return form;
    }();
    QFile gnu_file(path_to().addons_directory() + "/GNU[C++].style");
    gnu_file.open(QIODevice::ReadOnly);
    QByteArray gnu = gnu_file.readAll();
    gnu.replace("NAME=GNU\n", "NAME=Big form\n");
    {
        QFile file(path_to().addons_directory() + "/Big form[C++].style");
        file.open(QIODevice::WriteOnly);
        file.write(gnu);
    }
    std::printf("failures before the form editor: %d\n", failures);
    failures += kernel().update_language_structure_form("C++", "Big form", "array initializer", big_form.toStdString())
                    ? 0
                    : 1;
    languages->setCurrentRow(1);
    style_selector->show();
    styles->setCurrentItem(styles->findItems("Big form", Qt::MatchExactly).value(0));
    auto* structures = window->findChild<QListWidget*>("structures");
    auto* form_editor = window->findChild<GUI::look_n_feel_editor*>();
    auto* form_view = window->findChild<GUI::view_n_edit_language_structure*>();
    std::vector<double> structure, valid_key, refused_key, moving_key, comes_back;
    int const array_initializer = structures->row(structures->findItems("array initializer", Qt::MatchExactly).value(0));
    for (int run = 0; run < runs; ++run) {
        structure.push_back(milliseconds_of([&] { structures->setCurrentRow(run % 2 == 0 ? 0 : array_initializer); }));
    }
    structures->setCurrentRow(array_initializer);
    failures += form_editor->toPlainText().size() > 3000 ? 0 : 1;
    std::printf("failures before typing: %d\n", failures);
    for (int run = 0; run < runs; ++run) {
        QTextCursor cursor = form_editor->textCursor();
        cursor.setPosition(4 + run % 50);  // among the blanks after "type"
        form_editor->setTextCursor(cursor);
        valid_key.push_back(milliseconds_of([&] { QTest::keyClick(form_editor, Qt::Key_Space); }));
        cursor.setPosition(0);
        form_editor->setTextCursor(cursor);
        refused_key.push_back(milliseconds_of([&] { QTest::keyClick(form_editor, Qt::Key_X); }));
        moving_key.push_back(milliseconds_of([&] { QTest::keyClick(form_editor, Qt::Key_Right); }));
        // Off the GUI thread: timed until the line under the editor says how the form comes back.
        auto* line = window->findChild<QLabel*>("comes_back");
        comes_back.push_back(milliseconds_of([&] {
            form_view->check_how_the_form_comes_back();
            while (line->text().startsWith("Checking"))
                QApplication::processEvents(QEventLoop::AllEvents, 5);
        }));
    }
    failures += kernel().language_structure_form_based_on("C++", "Big form", "array initializer").size() ==
                        static_cast<std::size_t>(big_form.size() + runs)
                    ? 0
                    : 1;

    std::printf("failures after typing: %d\n", failures);
    // Paths, a revision's start and the task tabs.
    QString const tree = outside + "/tree";
    QDir().mkpath(tree);
    for (int i = 0; i < 20; ++i) {
        QFile file(tree + QString("/file%1.cpp").arg(i));
        file.open(QIODevice::WriteOnly);
        file.write("int main() { return 0; }\n");
    }
    auto* paths = window->findChild<GUI::list_of_paths*>();
    auto* starter = window->findChild<GUI::show_revise*>();
    auto* tabs = window->findChild<QTabBar*>("task_tabs");
    std::vector<double> adding, starting, new_tab, switching;
    for (int run = 0; run < runs; ++run) {
        adding.push_back(milliseconds_of([&] { paths->show(QStringList{tree, tree + "/file1.cpp"}); }));
        QSignalSpy finished(starter, &GUI::show_revise::revision_is_finished);
        starting.push_back(milliseconds_of([&] { starter->view_with_force_revision_of_all(); }));
        failures += !finished.isEmpty() || finished.wait(60000) ? 0 : 1;
        new_tab.push_back(milliseconds_of([&] { window->findChild<QAction*>("tab_menu_new")->trigger(); }));
        switching.push_back(milliseconds_of([&] { tabs->setCurrentIndex(tabs->count() - 1); }));
        switching.push_back(milliseconds_of([&] { tabs->setCurrentIndex(0); }));
        window->findChild<QAction*>("tab_menu_close")->trigger();
    }

    // The preview: a 2,000-line file, then a task of 400 files, under the "Big form" style.
    QString const code = outside + "/code";
    QDir().mkpath(code + "/one");
    QByteArray function_text;
    for (int i = 0; i < 200; ++i)
        function_text += "int f" + QByteArray::number(i) +
                         "(int a,int b){\n  int c=a+b;\n  if(c>0){\n    return c;\n  }\n  else{\n    return -c;\n  }\n}\n\n";
    {
        QFile file(code + "/one/big.cpp");  // 2,000 lines
        file.open(QIODevice::WriteOnly);
        file.write(function_text);
    }
    QDir().mkpath(code + "/many");
    for (int i = 0; i < 400; ++i) {
        QFile file(code + QString("/many/file%1.cpp").arg(i));
        file.open(QIODevice::WriteOnly);
        file.write(function_text.left(function_text.indexOf("int f20(")));  // 20 whole functions, 200 lines
    }
    auto* preview = window->findChild<GUI::preview_of_code*>();
    // The task as the typing above left it: C++ (its own extensions), "Big form", its big form.
    languages->setCurrentRow(0);
    languages->setCurrentRow(1);
    styles->setCurrentItem(styles->findItems("Big form", Qt::MatchExactly).value(0));
    structures->setCurrentRow(array_initializer);
    paths->show(QStringList{code + "/one"});
    std::vector<double> previewed, counted, keys_while_counting;
    for (int waited = 0; waited < 6000 && !preview->status()->text().startsWith("The style"); ++waited)
        QTest::qWait(10);
    for (int run = 0; run < 10; ++run) {
        QTextCursor cursor = form_editor->textCursor();
        cursor.setPosition(4 + run % 50);
        form_editor->setTextCursor(cursor);
        QSignalSpy shown(preview, &GUI::preview_of_code::preview_was_shown);
        QElapsedTimer timer;
        timer.start();
        QTest::keyClick(form_editor, Qt::Key_Space);
        // Until the preview of the edited style is shown (up to 30 s).
        while (timer.elapsed() < 30000 && (preview->status()->text().startsWith("Revising") || shown.isEmpty()))
            shown.wait(1);
        previewed.push_back(timer.nsecsElapsed() / 1e6);
        failures += preview->status()->text().startsWith("The style") ? 0 : 1;
        if (run == 0)
            std::printf("preview: %s\n", qPrintable(preview->status()->text()));
    }
    for (int run = 0; run < 3; ++run) {
        paths->delete_all();
        QSignalSpy done(preview, &GUI::preview_of_code::changes_were_counted);
        QElapsedTimer timer;
        timer.start();
        paths->show(QStringList{code + "/many"});
        preview->update_now();  // as the change's own timer does on the next pass of the event loop
        // Key presses in the form editor while the count runs (each saves the form, which starts
        // the count again: typed only in the first run, so the others time the count alone).
        if (run == 0)
            for (int key = 0; key < 10; ++key) {
                QTextCursor cursor = form_editor->textCursor();
                cursor.setPosition(4 + key);
                form_editor->setTextCursor(cursor);
                keys_while_counting.push_back(milliseconds_of([&] { QTest::keyClick(form_editor, Qt::Key_Right); }));
            }
        // Until the figure of this task is shown (a count of the task before may end first).
        while (timer.elapsed() < 60000 && !preview->figure()->text().endsWith(" of 400 files"))
            done.wait(1);
        counted.push_back(timer.nsecsElapsed() / 1e6);
        failures += preview->figure()->text().endsWith(" of 400 files") ? 0 : 1;
        std::printf("count: %s\n", qPrintable(preview->figure()->text()));
    }

    report("select a language", language);
    report("select a style", style);
    report("import a style", import);
    report("rename a style", rename);
    report("export a style", exporting);
    report("delete a style", deletion);
    report("import a language (replacing C)", language_import);
    report("select a structure", structure);
    report("key release, edit kept (4 KB form)", valid_key);
    report("key release, edit refused (4 KB form)", refused_key);
    report("key release, cursor moved (4 KB form)", moving_key);
    report("how the form comes back (own thread)", comes_back);
    report("add a directory and a file", adding);
    report("start a forced revision (Go)", starting);
    report("new tab", new_tab);
    report("switch tabs (save and load a task)", switching);
    report("preview of 2,000 lines after a saved edit", previewed);
    report("count of a 400-file task", counted);
    report("key presses while the count runs", keys_while_counting);
    std::printf("actions that failed: %d\n", failures);
    window.reset();
    QDir(outside).removeRecursively();
    return failures == 0 ? 0 : 1;
}
