#include "window_fixture.h"

#include "window_test_helpers.h"

#include "GUI/list_of_paths.h"
#include "GUI/task_tabs.h"
#include "tests/harness/built_files.h"

#include <QDir>
#include <QFile>
#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTest>

void write_file(QString const& path, QByteArray const& content) {
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(content);
}

void window_fixture::begin_case() {
    start_from_an_empty_bundle();
    work = std::make_unique<QTemporaryDir>();
}

void window_fixture::end_case() {
    window.reset();
    work.reset();
}

void window_fixture::open_window(QSize const& size) {
    window = std::make_unique<GUI::main_window>();
    window->resize(size);
    window->show();
    QVERIFY(QTest::qWaitForWindowExposed(window.get()));
}

void window_fixture::choose(QString const& language, QString const& style) {
    auto* tabs = window->findChild<GUI::task_tabs*>();
    emit tabs->set_this_programming_language(language);
    emit tabs->set_this_formatting_style(style);
}

QString window_fixture::path(QString const& relative) const { return work->path() + "/" + relative; }

void window_fixture::add(QStringList const& relative_paths) {
    QStringList paths;
    for (QString const& relative : relative_paths)
        paths << path(relative);
    window->findChild<GUI::list_of_paths*>()->show(paths);
}

QString window_fixture::output_of_the_command_line(QStringList const& words) const {
    QString const executable = QCoreApplication::applicationDirPath() + "/command line";
    // Copied again after a build, so that a test never runs an older program.
    if (QFileInfo(executable).lastModified() < QFileInfo(built::executable()).lastModified())
        QFile::remove(executable);
    if (!QFileInfo::exists(executable))
        QFile::copy(built::executable(), executable);
    QProcess program;
    program.start(executable, words);
    program.waitForFinished(60000);
    return QString::fromUtf8(program.readAllStandardOutput());
}
