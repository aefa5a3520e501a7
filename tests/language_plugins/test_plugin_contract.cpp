// Our language plugins as the host sees them, loaded from the build with QPluginLoader: their
// structure expressions, shipped addons validated by the host's own check, and a plugin that
// survives unloading, calls from another thread and a change of addon between calls.
#include "helpers/our_plugins.h"

#include "engine/format_of_this.h"
#include "core/style_addon.h"

#include <QtTest>

#include <boost/xpressive/xpressive.hpp>

#include <thread>

using namespace our_plugins;

class test_plugin_contract : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { use_private_cache(); }

    // A catalogue holds every structure whose white space a style decides (a .proto file has
    // fewer of them than code), each with tokens of its own.
    void every_expression_compiles_and_names_follow_the_rules_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("least");
        for (QString const& language : our_languages())
            QTest::newRow(qPrintable(language)) << plugin_file_of(language.toStdString())
                                                << (language == "Protocol Buffers" ? 20 : 30);
    }
    void every_expression_compiles_and_names_follow_the_rules() {
        QFETCH(QString, file);
        QFETCH(int, least);
        loaded_plugin plugin(file);
        std::map<std::string, std::string> const forms = plugin->forms_of_structures();
        QVERIFY(forms.size() >= std::size_t(least));
        QRegularExpression const lower_case_words("^[a-z]+( [a-z]+)*$");
        for (auto const& [name, expression] : forms) {
            QVERIFY2(lower_case_words.match(QString::fromStdString(name)).hasMatch(), name.c_str());
            boost::xpressive::sregex const compiled = boost::xpressive::sregex::compile(expression);
            QVERIFY2(compiled.regex_id() != nullptr, name.c_str());
            // A structure without tokens (an entry taken by a name its catalogue lacks) would take
            // any white space for its form.
            QVERIFY2(!boost::xpressive::regex_match(std::string("\n"), compiled), name.c_str());
        }
    }

    // The host's own check (format_of_this) accepts every shipped addon, and each addon describes
    // every structure its plugin knows.
    void shipped_addons_validate_against_their_plugin_data() { each_addon(); }
    void shipped_addons_validate_against_their_plugin() {
        QFETCH(QString, addon_file);
        std::string const addon = shipped_addon(addon_file);
        loaded_plugin plugin(plugin_file_of(language_of_addon(addon)));
        std::string bad_structure;
        QVERIFY2(!format_of_this(addon).is_invalid_based_on(plugin.get(), bad_structure), bad_structure.c_str());
        for (auto const& [name, expression] : plugin->forms_of_structures())
            QVERIFY2(!obtain_structure_form(name).from_already_reading(addon).empty(), name.c_str());
        QCOMPARE(addon.substr(0, 5), std::string("NAME="));
    }

    void a_form_with_other_tokens_is_refused() {
        loaded_plugin plugin(cpp_plugin_file());
        std::string addon = shipped_addon("LLVM[C++].style");
        std::size_t const at = addon.find("name(SOME, SOME);");
        QVERIFY(at != std::string::npos);
        addon.replace(at, 17, "name(SOME; SOME);");
        std::string bad_structure;
        QVERIFY(format_of_this(addon).is_invalid_based_on(plugin.get(), bad_structure));
        QCOMPARE(bad_structure, std::string("function call"));
    }

    // C#'s query stood at the top level in addons written before it stood in a method: such an
    // addon is still valid.
    void an_addon_with_the_query_at_the_top_level_validates() {
        loaded_plugin plugin(plugin_file_of("C#"));
        std::string addon = shipped_addon("Google[C#].style");
        std::string const opening = "S_NAME=query\nS_BEG\n";
        std::size_t const begin = addon.find(opening);
        QVERIFY(begin != std::string::npos);
        std::size_t const form = begin + opening.size();
        addon.replace(form, addon.find("\nS_END", form) - form,
                      "var name = from argument in SOME\n    where argument.name_part == SOME select argument;");
        std::string bad_structure;
        QVERIFY2(!format_of_this(addon).is_invalid_based_on(plugin.get(), bad_structure), bad_structure.c_str());
    }

    // The expressions stay linear: a form of a megabyte, mostly white space, is matched in full.
    void a_megabyte_form_validates() {
        loaded_plugin plugin(cpp_plugin_file());
        std::string const form = obtain_structure_form("switch").from_already_reading(shipped_addon("GNU[C++].style"));
        std::string huge;
        for (char c : form)
            huge += std::isspace(static_cast<unsigned char>(c)) ? std::string(50000, c) : std::string(1, c);
        QVERIFY(huge.size() > 1000000);
        auto const expression = boost::xpressive::sregex::compile(plugin->forms_of_structures().at("switch"));
        QVERIFY(boost::xpressive::regex_match(huge, expression));
        QVERIFY(!boost::xpressive::regex_match(huge + "x", expression));
    }

    void survives_unloading_and_calls_from_another_thread() {
        std::string const source = "int f(){return 1;}\n";
        std::string const addon = shipped_addon("Linux kernel[C].style");
        std::string first;
        {
            loaded_plugin plugin(c_plugin_file());
            first = plugin->revise(source, addon, traits_of(source));
            plugin->end_of_revision();
        }
        QCOMPARE(first, std::string("int f()\n{\n\treturn 1;\n}\n"));
        loaded_plugin again(c_plugin_file());
        QVERIFY(again.get());
        std::string second;
        std::thread([&] { second = again->revise(source, addon, traits_of(source)); }).join();
        QCOMPARE(second, first);
    }

    // Per-run state never leaks from one addon into the next, with or without end_of_revision.
    void follows_the_addon_of_each_call() {
        loaded_plugin plugin(cpp_plugin_file());
        std::string const source = "void f(){if(a){b();}}\n";
        std::string const gnu = plugin->revise(source, shipped_addon("GNU[C++].style"), traits_of(source));
        std::string const llvm = plugin->revise(source, shipped_addon("LLVM[C++].style"), traits_of(source));
        QCOMPARE(llvm, std::string("void f() {\n  if (a) {\n    b();\n  }\n}\n"));
        QCOMPARE(gnu, std::string("void\nf ()\n{\n  if (a)\n    {\n      b ();\n    }\n}\n"));
        plugin->end_of_revision();
        QCOMPARE(plugin->revise(source, shipped_addon("GNU[C++].style"), traits_of(source)), gnu);
    }

    // A shipped style, exported as its engine configuration and made into a style again, revises
    // its golden input as the shipped style does: the configuration says everything the style does.
    void a_shipped_style_comes_back_from_its_engine_configuration_data() {
        QTest::addColumn<QString>("golden_case");
        for (QString const& golden : golden_cases())
            QTest::newRow(qPrintable(golden)) << golden;
    }
    void a_shipped_style_comes_back_from_its_engine_configuration() {
        QFETCH(QString, golden_case);
        std::string const language = golden_case.section('/', 0, 0).toStdString();
        QString const style = golden_case.section('/', 1, 1);
        std::string const addon = shipped_addon(style + "[" + QString::fromStdString(language) + "].style");
        loaded_plugin plugin(plugin_file_of(language));
        QVERIFY(plugin.configurations());
        std::string const configuration = plugin.configurations()->engine_configuration_of(addon);
        QVERIFY(!configuration.empty());
        configured_addon const made = plugin.configurations()->addon_from_configuration(configuration, "Again");
        QCOMPARE(QString::fromStdString(made.refusal), QString());
        QCOMPARE(made.left_out.size(), std::size_t(0));
        std::string const input = golden_file(golden_case, "input");
        QCOMPARE(QString::fromStdString(plugin->revise(input, made.addon, traits_of(input))),
                 QString::fromStdString(plugin->revise(input, addon, traits_of(input))));
    }

    // Each root object names every optional interface its base implements: one left out of a
    // plugin's list is never found by the host, and its language silently loses the feature.
    void offers_every_optional_interface_data() { each_plugin(); }
    void offers_every_optional_interface() {
        QFETCH(QString, file);
        loaded_plugin plugin(file);
        QVERIFY(plugin.learning());
        QVERIFY(plugin.learning_from_starts());
        QVERIFY(plugin.ranges());
        QVERIFY(plugin.configurations());
    }

    void a_configuration_the_engine_cannot_read_is_refused_with_the_reason_data() { each_plugin(); }
    void a_configuration_the_engine_cannot_read_is_refused_with_the_reason() {
        QFETCH(QString, file);
        loaded_plugin plugin(file);
        QVERIFY(plugin.configurations());
        configured_addon const made = plugin.configurations()->addon_from_configuration("IndentWidth: [4\n", "Bad");
        QVERIFY(made.addon.empty());
        QVERIFY(!made.refusal.empty());
    }

private:
    void each_plugin() {
        QTest::addColumn<QString>("file");
        for (QString const& language : our_languages())
            QTest::newRow(qPrintable(language)) << plugin_file_of(language.toStdString());
    }
    void each_addon() {
        QTest::addColumn<QString>("addon_file");
        for (QString const& file : shipped_addons())
            QTest::newRow(qPrintable(file)) << file;
    }
};

QTEST_GUILESS_MAIN(test_plugin_contract)
#include "test_plugin_contract.moc"
