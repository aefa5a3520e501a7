#include "console/show_help_info.h"

#include "core/product.h"

#include <iostream>
#include <string>

namespace console {

namespace {

// The banner is a box 56 characters wide; text longer than its field pushes the "|" right.
std::string banner_line(std::string const& text) {
    std::string line = " | " + text;
    if (text.size() < 52)
        line.append(52 - text.size(), ' ');
    return line + "|";
}

// Several lines end in a blank before their line end: that is part of the text.
char const* const usage_lines[] = {
    "",
    " Usage: ./Style\\ Tarnel [FLAGS]",
    "",
    "  If you run app without FLAGS, it will run in GUI mode.",
    "",
    " FLAGS are:",
    "",
    "  -h, --help          Print help info and exit.",
    "  -v, --version       Print version and exit.",
    "  -l, --lang          Specify name of programming language.",
    "  -s, --style         Specify name of formatting style.",
    "  -p, --path          Specify path to your file or directory.",
    "  -f, --force         Revise file(s) forcibly.",
    "      --exts          Specify list of extensions of your files.",
    "                      By default standard extensions will be used.",
    "      --import        Specify path to importing file (style addon or language plugin).",
    "      --export        Specify path where exporting style addon will be placed.",
    "      --delete        Delete language or style.",
    "      --rename        Rename style.",
    "      --ls            Print list of supported languages and styles.",
    "      --update        Update an app.",
    "      --check         Revise in memory and write nothing: list files which would be changed,",
    "                      and end with how many of the files' lines the style changes.",
    "                      Exit status is 0 if nothing would be changed, 1 if some file would, 2 if",
    "                      check cannot be done (also when no file at all is found).",
    "      --diff          Like --check, and print unified diff of those files to std output.",
    "      --addon         Specify path to style addon which will be used without importing.",
    "      --assume-filename",
    "                      Specify file name of source read from std input (--path=-).",
    "      --learn         Learn a new style, of that name, from your files.",
    "      --exclude       Leave out of directories the files which match a pattern in git's",
    "                      ignore syntax, relative to current directory (may be repeated).",
    "      --no-gitignore  Do not leave out the files which git ignores.",
    "      --quiet         Write no progress line, even on a terminal.",
    "      --lines=N:M     Revise only lines N to M (repeatable) of one file or of std input (--path=-).",
    "      --changed[=REV] Revise only lines that differ in git from REV (default HEAD), untracked files whole.",
    "      --export-config Write style's engine configuration as '.clang-format' into directory",
    "                      (or to std output with '-'), for editors; --force replaces an older one.",
    "",
    "  --path=- reads source from std input and writes revised text to std output. Without --lang",
    "  and --style (or --addon), styles are taken from file '.style-tarnel' found in directory of",
    "  each path or above it.",
    "",
    "  In a directory, files matched by file '.style-tarnel-ignore' (git's ignore syntax) in it or",
    "  in a directory above it, by --exclude, or ignored by git are left out; a file given by",
    "  --path is always revised. Progress is written only when std error is a terminal.",
    "",
    " Real-life examples:",
    "",
    "  ./Style\\ Tarnel --lang=C --style='Kernighan&Ritchie' --path=/home/someuser/proj/src",
    "",
    "      'C' language, 'Kernighan&Ritchie' style. All files with standard C-extensions in ",
    "      directory 'home/someuser/proj/src' (and in subfolders) will be formatted.",
    "",
    "  ./Style\\ Tarnel -l=C -s=GNU -p=~/main.c -p=~/math.h > /tmp/tq.log",
    "",
    "      'C' language, 'GNU' style. Files 'main.c' and 'math.h' in user's home directory will be formatted. ",
    "      You can specify any number of paths at the same time. Report will be redirected from ",
    "      std output into file '/tmp/tq.log'.",
    "",
    "  ./Style\\ Tarnel --lang=C++ --style=Google --exts=cc,hpp --path=\"../../../../../w session/src\"",
    "",
    "      'C++' language, 'Google' style. Only files with extensions 'cc' and 'hpp' in directory ",
    "      '/Users/someuser/w session/src' will be formatted. Comma-separated list of extensions cannot ",
    "      contain spaces. As you see path can be relative.",
    "",
    "  ./Style\\ Tarnel --import=/Users/someuser/libc-language-plugin.dylib",
    "",
    "      Language plugin 'libc-language-plugin.dylib' from directory '/Users/someuser' will be imported. ",
    "      If you already have such plugin, it will be replaced. You can import only one language plugin ",
    "      or style addon at a time.",
    "",
    "  ./Style\\ Tarnel -l=C++ -s=my-Google-based --export=/home/someuser",
    "",
    "      Your own 'Google-based' formatting style for 'C++' language will be exported into ",
    "      '/home/someuser' directory. You'll see style addon named 'my-Google-based[C++].style' in this path. ",
    "      If you already have style addon with such name in this directory, it will be replaced.",
    "",
    "  ./Style\\ Tarnel -l=C++ -s=House --export-config=/home/someuser/proj",
    "",
    "      Options of style 'House' will be written into file '/home/someuser/proj/.clang-format', which ",
    "      editors read: commit it, and team's editors will format as revision does. Add --force to ",
    "      replace an older file; with --export-config=- they will be written to std output.",
    "",
    "  ./Style\\ Tarnel --import=/home/someuser/proj/.clang-format -l=C++ -s=House",
    "",
    "      Style 'House' for 'C++' language will be made from that configuration and installed. Options ",
    "      which would change more than white space, and options which no form of style shows, are named.",
    "",
    "  ./Style\\ Tarnel -l=C --delete",
    "",
    "      Delete 'C' language plugin. Of course, all styles for this language will be deleted too.",
    "",
    "  ./Style\\ Tarnel --lang=C++ --style=\"SC st\" --delete",
    "",
    "      Delete 'SC st' style addon for 'C++' language. You can delete only one language and only ",
    "      one style at a time.",
    "",
    "  ./Style\\ Tarnel -l=C++ -s='SC st' --rename='SC st2'",
    "",
    "      Rename style for 'C++' language from 'SC st' to 'SC st2'. You can rename only one style at a time.",
    "",
    "  ./Style\\ Tarnel -l=C++ --learn=House --path=~/proj/src",
    "",
    "      Learn style 'House' for 'C++' language from the files with standard C++-extensions in ",
    "      directory 'proj/src' in user's home directory, and install it.",
    "",
    "  ./Style\\ Tarnel --update=\"/Users/someuser/Downloads/Style Tarnel\"",
    "",
    "      Update app by executable 'Style Tarnel' in directory '/Users/someuser/Downloads'.",
    "",
    "  ./Style\\ Tarnel -l=C++ -s=Google -p=src --check",
    "",
    "      Nothing will be written. Files in directory 'src' which revision would change will be listed, ",
    "      and exit status will be 1 if there are such files. The last line says how many lines the",
    "      style changes: 'This style changes 140 of 2310 lines in 12 of 31 files'. Add --force to",
    "      check unchanged files too.",
    "",
    "  ./Style\\ Tarnel -l=C++ -s=Google -p=src --diff > style.patch",
    "",
    "      Nothing will be written. Changes which revision would make will be saved as unified diff ",
    "      in file 'style.patch'; 'git apply style.patch' will apply them.",
    "",
    "  ./Style\\ Tarnel -l=C -s=GNU --path=- < main.c > revised.c",
    "",
    "      Source will be read from std input and revised text will be written to std output.",
    "",
    "  ./Style\\ Tarnel --path=- --assume-filename=src/main.cpp < src/main.cpp",
    "",
    "      Language will be chosen by extension of 'src/main.cpp', and style by file '.style-tarnel' ",
    "      in directory 'src' or above it.",
    "",
    "  ./Style\\ Tarnel --addon=styles/Ours[C++].style --path=src",
    "",
    "      Style addon 'Ours[C++].style' will be used as it is, without importing it.",
    "",
    "  ./Style\\ Tarnel --path=src",
    "",
    "      Style of each language will be taken from file '.style-tarnel' in directory 'src' or above it.",
    "",
};

}  // namespace

void show_help_info::operator()() const {
    std::string const frame = " +" + std::string(53, '-') + "+";
    std::cerr << frame << '\n'
              << banner_line(product::title) << '\n'
              << banner_line(std::string("Version ") + product::version) << '\n'
              << banner_line(std::string("For more info please visit ") + product::web_site) << '\n'
              << frame << '\n';
    for (char const* line : usage_lines)
        std::cerr << line << '\n';
    std::cerr.flush();
}

void show_version::operator()() const {
    std::cerr << product::version_line_lead() << product::version << std::endl;
}

}  // namespace console
