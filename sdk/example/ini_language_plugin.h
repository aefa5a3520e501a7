// An example language plugin: INI files, formatted by the example that a style addon gives for a
// key-value line ("name = SOME", "name=SOME", ...) and for a section header ("[name]", "[ name ]").
#ifndef INI_LANGUAGE_PLUGIN_H
#define INI_LANGUAGE_PLUGIN_H

#include "interface_to_language_plugin.h"

#include <QObject>

// Its lines stand alone, so it also offers the optional range interface: an editor's selection, or
// the lines a change touched, can be revised and the others left as they are.
class ini_language_plugin : public QObject, public interface_to_language_plugin, public interface_to_range_revision {
    Q_OBJECT
    // revise() keeps no state between calls, so the metadata lets the host call it from several
    // threads at once.
    Q_PLUGIN_METADATA(IID STYLE_TARNEL_INTERFACE_ID FILE "ini_language_plugin.json")
    Q_INTERFACES(interface_to_language_plugin interface_to_range_revision)
public:
    std::string language_name() override { return "INI"; }
    std::vector<std::string> list_of_keywords() override { return {"true", "false", "yes", "no"}; }
    std::vector<std::string> filename_extensions() override { return {"ini", "cfg"}; }
    std::map<std::string, std::string> forms_of_structures() override;
    std::string revise(std::string const& source, std::string const& addon,
                       line_ending_traits const& traits) override;
    void end_of_revision() override {}
    std::string revise_lines(std::string const& source, std::string const& addon, line_ending_traits const& traits,
                             std::vector<line_range> const& ranges) override;

private:
    // The lines (counted from 1) for which `wanted` holds revised, the others kept.
    std::string revise_where(std::string const& source, std::string const& addon, line_ending_traits const& traits,
                             std::function<bool(unsigned long line)> const& wanted);
};

#endif
