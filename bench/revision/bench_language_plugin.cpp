// A language plugin for the revision benchmark. "Same" returns every source unchanged; "Change"
// changes every source on every run, by adding a last line or taking it away again.
#include "interface_to_language_plugin.h"

#include <QObject>

class bench_language_plugin : public QObject, public interface_to_language_plugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID STYLE_TARNEL_INTERFACE_ID)
    Q_INTERFACES(interface_to_language_plugin)

public:
    std::string language_name() override { return BENCH_LANGUAGE_NAME; }
    std::vector<std::string> list_of_keywords() override { return {}; }
    std::vector<std::string> filename_extensions() override { return {"bnc"}; }
    std::map<std::string, std::string> forms_of_structures() override { return {}; }
    std::string revise(std::string const& source, std::string const&,
                       line_ending_traits const& traits) override {
        if (std::string(BENCH_LANGUAGE_NAME) == "Same")
            return source;
        std::string const mark = "// revised" + traits.EOL;
        if (source.size() >= mark.size() && source.compare(source.size() - mark.size(), mark.size(), mark) == 0)
            return source.substr(0, source.size() - mark.size());
        return source + mark;
    }
    void end_of_revision() override {}
};

#include "bench_language_plugin.moc"
