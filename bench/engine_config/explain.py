#!/usr/bin/env python3
"""Tells why each file of an import's comparison differs: the options whose values differ between
the project's configuration (token-changing options as forced) and the imported style (its
exported configuration), tried one at a time with clang-format-19 on the original file; a file is
put down to an option when that option alone, set as the style has it, makes clang-format's result
the revision's. A file that no single option explains but all of them together do is put down to
the options each of which, set back as the project has it among all the others, undoes the match
("together: ..."); one that not even all of them explain is the revision's own doing (the plugin
moves the lines of a block comment with its first line, formats preprocessor branches in passes
of its own, or leaves a file as it was when the engine's result is not stable or changes more than
white space).
  explain.py <original tree> <revision> <project's configuration, dumped> <style's, dumped> <diffs list>
Prints one line per file: path, then the explanation."""
import os
import subprocess
import sys
import tempfile

from compare import only_comment_lines_moved

original, ours, project_config, style_config, listing = sys.argv[1:6]


def entries(path):
    """Top-level option -> its text (the line and the lines nested under it), in order."""
    result, key = {}, None
    for line in open(path).read().splitlines():
        if line[:1].isalpha() and ":" in line:
            key = line.split(":", 1)[0].strip()
            result[key] = line + "\n"
        elif key and line.startswith((" ", "\t")):
            result[key] += line + "\n"
        else:
            key = None
    return result


def normal(text):
    return " ".join(text.split())


project, style = entries(project_config), entries(style_config)
differing = [k for k in project if k in style and normal(project[k]) != normal(style[k]) and k != "Language"]
work = tempfile.mkdtemp(prefix="explain-")


def config_with(keys):
    text = "".join(style[k] if k in keys else v for k, v in project.items())
    path = os.path.join(work, "config-%d" % abs(hash(tuple(sorted(keys)))))
    if not os.path.exists(path):
        open(path, "w").write(text)
    return path


def formatted(path, config):
    return subprocess.run(["clang-format-19", "--style=file:" + config, "--assume-filename=" + path,
                           os.path.join(original, path)], capture_output=True).stdout


for line in open(listing):
    path, how = line.split("\t")[:2]
    wanted = open(os.path.join(ours, path), "rb").read()
    alone = [k for k in differing if formatted(path, config_with({k})) == wanted]
    if alone:
        print("%s\t%s" % (path, ", ".join(alone)))
    elif formatted(path, config_with(set(differing))) == wanted:
        needed = [k for k in differing if formatted(path, config_with(set(differing) - {k})) != wanted]
        print("%s\ttogether: %s" % (path, ", ".join(needed) or "any of several"))
    elif how == "left as it was":
        print("%s\tleft as it was by the revision (the engine's result not stable, or not white space alone)" % path)
    elif how == "block comment lines":
        print("%s\tblock comment lines" % path)
    elif only_comment_lines_moved(wanted.decode("utf-8", "replace").splitlines(),
                                  formatted(path, config_with(set(differing))).decode("utf-8", "replace").splitlines()):
        print("%s\tblock comment lines, and options" % path)
    else:
        print("%s\tthe revision's own" % path)
