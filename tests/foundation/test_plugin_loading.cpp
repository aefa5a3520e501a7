// Finding and loading language plugins in the bundle's plugins directory, as every kernel
// operation does: with a loader the caller owns.
#include "core/kernel.h"
#include "core/installed_files.h"
#include "core/path_to.h"
#include "engine/plugin_obtainer.h"
#include "tests/harness/built_files.h"
#include "tests/harness/test_main.h"

#include <QDir>
#include <QFile>
#include <QPluginLoader>

namespace {

void install(QString const& built_plugin, QString const& as = QString()) {
    QString const name = as.isEmpty() ? QFileInfo(built_plugin).fileName() : as;
    QString const target = path_to().plugins_directory() + "/" + name;
    QFile::remove(target);
    QVERIFY2(QFile::copy(built_plugin, target), qPrintable(built_plugin));
}

}  // namespace

class test_plugin_loading : public QObject {
    Q_OBJECT
private slots:
    void init();
    void directories_lie_two_levels_above_the_executable();
    void loads_a_language_plugin_by_its_file_name();
    void refuses_what_is_no_language_plugin_data();
    void refuses_what_is_no_language_plugin();
    void tells_a_loadable_plugin_from_other_files();
    void tells_library_names_from_other_names_data();
    void tells_library_names_from_other_names();
    void loads_the_SDK_example_built_out_of_tree();
};

void test_plugin_loading::init() {
    QDir plugins(path_to().plugins_directory());
    QVERIFY(plugins.exists());
    for (auto const& name : plugins.entryList(QDir::Files))
        plugins.remove(name);
}

void test_plugin_loading::directories_lie_two_levels_above_the_executable() {
    QString const bundle = QString::fromLocal8Bit(qgetenv("STYLE_TARNEL_TEST_IN_BUNDLE"));
    QVERIFY(!bundle.isEmpty());
    QString const root = QDir(bundle).canonicalPath();
    QCOMPARE(path_to().languages_n_styles_directory(), root + "/PlugIns");
    QCOMPARE(path_to().plugins_directory(), root + "/PlugIns/languages");
    QCOMPARE(path_to().addons_directory(), root + "/PlugIns/styles");
}

void test_plugin_loading::loads_a_language_plugin_by_its_file_name() {
    install(built::test_language_plugin());
    QPluginLoader loader;
    interface_to_language_plugin* plugin = plugin_obtainer(loader)(path_of_plugin("libtest-language-plugin.so"));
    QVERIFY(plugin != nullptr);
    QCOMPARE(plugin->language_name(), std::string("Test"));
    QCOMPARE(plugin->filename_extensions(), (std::vector<std::string>{"tst", "test"}));
    QCOMPARE(plugin->revise("a  b", "", line_ending_traits{"\n", " "}), std::string("a b"));
}

void test_plugin_loading::refuses_what_is_no_language_plugin_data() {
    QTest::addColumn<QString>("built_file");
    QTest::addColumn<QString>("installed_as");
    QTest::newRow("a Qt plugin of another interface") << built::plugin_without_interface() << QString();
    QTest::newRow("a shared library that is no Qt plugin") << built::library_without_plugin() << QString();
    QTest::newRow("a language plugin without a library name") << built::test_language_plugin() << "plugin.txt";
    QTest::newRow("a text file with a library name") << QString() << "libfake.so";
    QTest::newRow("a missing file") << QString("-") << "libmissing.so";
}

void test_plugin_loading::refuses_what_is_no_language_plugin() {
    QFETCH(QString, built_file);
    QFETCH(QString, installed_as);
    if (built_file.isEmpty()) {
        QFile text(path_to().plugins_directory() + "/" + installed_as);
        QVERIFY(text.open(QIODevice::WriteOnly));
        text.write("not a library\n");
    } else if (built_file != "-") {
        install(built_file, installed_as);
    }
    QString const name = installed_as.isEmpty() ? QFileInfo(built_file).fileName() : installed_as;
    QPluginLoader loader;
    QVERIFY(plugin_obtainer(loader)(name) == nullptr);
}

void test_plugin_loading::tells_a_loadable_plugin_from_other_files() {
    // Any loadable Qt plugin passes: the interface is checked when the plugin is used.
    QVERIFY(kernel().this_is_a_plugin(built::test_language_plugin().toStdString()));
    QVERIFY(kernel().this_is_a_plugin(built::plugin_without_interface().toStdString()));
    QVERIFY(!kernel().this_is_a_plugin(built::library_without_plugin().toStdString()));
    QVERIFY(!kernel().this_is_a_plugin(built::source_dir().toStdString() + "/sdk/interface_to_language_plugin.h"));
    QVERIFY(!kernel().this_is_a_plugin("/no/such/libplugin.so"));
}

void test_plugin_loading::tells_library_names_from_other_names_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("library");
    QTest::newRow("plugin name") << "/home/u/libc-language-plugin.so" << true;
    QTest::newRow("versioned library name") << "libx.so.1" << true;
    QTest::newRow("style addon") << "/home/u/GNU[C].style" << false;
    QTest::newRow("text file") << "notes.txt" << false;
    QTest::newRow("directory named like a library") << "/x/liba.so/notes" << false;
}

void test_plugin_loading::tells_library_names_from_other_names() {
    QFETCH(QString, path);
    QFETCH(bool, library);
    QCOMPARE(language_plugin()(path.toStdString()), library);
}

void test_plugin_loading::loads_the_SDK_example_built_out_of_tree() {
    install(built::example_plugin());
    QPluginLoader loader;
    interface_to_language_plugin* plugin = plugin_obtainer(loader)(path_of_plugin("libini-language-plugin.so"));
    QVERIFY(plugin != nullptr);
    QCOMPARE(plugin->language_name(), std::string("INI"));
    QFile addon(built::source_dir() + "/sdk/example/Spaced[INI].style");
    QVERIFY(addon.open(QIODevice::ReadOnly));
    std::string const style = addon.readAll().toStdString();
    std::string const source = "[ server ]\r\nport=80  \r\nname  =  main\r\n";
    QCOMPARE(plugin->revise(source, style, line_ending_traits{"\r\n", " "}),
             std::string("[server]\r\nport = 80\r\nname = main\r\n"));
    std::string const tidy = "[server]\nport = 80\n";
    QCOMPARE(plugin->revise(tidy, style, line_ending_traits{"\n", " "}), tidy);
}

STYLE_TARNEL_TEST_MAIN_IN_BUNDLE(test_plugin_loading)
#include "test_plugin_loading.moc"
