// The measuring half of the language plugin benchmarks (the script `run` drives it):
//   language_plugins_bench fidelity <addon>...      forms that are fixed points, per addon
//   language_plugins_bench inference <addon>...     seconds for the first inference of each addon in
//                                                   this process (cold or warm: the script decides by
//                                                   the cache it gives)
//   language_plugins_bench compare <original> <ours> <reference>
//                                                   files and lines of ours equal to the reference,
//                                                   files of ours that differ from the original in
//                                                   more than white space
#include "addon_forms.h"
#include "c_language.h"
#include "cpp_language.h"
#include "java_language.h"
#include "proto_language.h"
#include "revision.h"

#include <QDirIterator>
#include <QFile>

#include <chrono>
#include <iostream>
#include <map>
#include <sstream>

namespace {

std::string contents_of(QString const& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

tarnel_engine::language_description const& language_of(std::string const& addon) {
    for (tarnel_engine::language_description const* language : {&cpp_language(), &java_language(), &proto_language()})
        if (addon.find("\nLANGUAGE=" + language->name + "\n") != std::string::npos)
            return *language;
    return c_language();
}

std::string non_white_space_of(std::string const& text) {
    std::string kept;
    for (std::size_t i = 0; i < text.size(); ++i) {
        bool const continues_line = text[i] == '\\' && i + 1 < text.size() && (text[i + 1] == '\n' || text[i + 1] == '\r');
        if (!std::isspace(static_cast<unsigned char>(text[i])) && !continues_line)
            kept += text[i];
    }
    return kept;
}

std::vector<std::string> lines_of(std::string const& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    std::string line;
    while (std::getline(stream, line))
        lines.push_back(line);
    return lines;
}

int fidelity(std::vector<std::string> const& paths) {
    for (std::string const& path : paths) {
        std::string const addon = contents_of(QString::fromStdString(path));
        auto const formatted = tarnel_engine::forms_formatted_by_inferred_options(addon, language_of(addon));
        int fixed = 0;
        for (auto const& [name, result] : formatted)
            fixed += result == tarnel_engine::form_of_structure(name).in(addon);
        std::cout << path << "\t" << fixed << "/" << formatted.size() << "\n";
    }
    return 0;
}

int inference(std::vector<std::string> const& paths) {
    for (std::string const& path : paths) {
        std::string const addon = contents_of(QString::fromStdString(path));
        auto const start = std::chrono::steady_clock::now();
        tarnel_engine::options_inferred_from(addon, language_of(addon));
        std::chrono::duration<double> const took = std::chrono::steady_clock::now() - start;
        std::cout << path << "\t" << took.count() << "\n";
    }
    return 0;
}

int compare(QString const& original, QString const& ours, QString const& reference) {
    long files = 0, same_files = 0, lines = 0, same_lines = 0, token_changes = 0;
    QDirIterator each(ours, QDir::Files, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        QString const path = each.next();
        QString const relative = path.mid(ours.size());
        std::string const our_text = contents_of(path);
        std::string const reference_text = contents_of(reference + relative);
        ++files;
        same_files += our_text == reference_text;
        if (non_white_space_of(our_text) != non_white_space_of(contents_of(original + relative))) {
            ++token_changes;
            std::cout << "token change: " << relative.toStdString() << "\n";
        }
        // Lines of the reference found in ours, each line of ours used once.
        std::map<std::string, long> available;
        for (std::string const& line : lines_of(our_text))
            ++available[line];
        for (std::string const& line : lines_of(reference_text)) {
            ++lines;
            if (available[line] > 0) {
                --available[line];
                ++same_lines;
            }
        }
    }
    std::cout << "files\t" << files << "\nidentical files\t" << same_files << "\nlines\t" << lines
              << "\nidentical lines\t" << same_lines << "\nfiles with more than white space changed\t"
              << token_changes << "\n";
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<std::string> const arguments(argv + 1, argv + argc);
    if (arguments.size() >= 2 && arguments[0] == "fidelity")
        return fidelity({arguments.begin() + 1, arguments.end()});
    if (arguments.size() >= 2 && arguments[0] == "inference")
        return inference({arguments.begin() + 1, arguments.end()});
    if (arguments.size() == 4 && arguments[0] == "compare")
        return compare(QString::fromStdString(arguments[1]), QString::fromStdString(arguments[2]),
                       QString::fromStdString(arguments[3]));
    std::cerr << "usage: language_plugins_bench fidelity|inference <addon>... | compare <original> <ours> <reference>\n";
    return 2;
}
