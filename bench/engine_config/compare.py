#!/usr/bin/env python3
"""Compares two revisions of one tree, file by file: how many are the same bytes, and for each other
file whether the revision with the style left it as it was (the plugin's refusal of an unstable or
more-than-white-space result) or clang-format did (it refuses a header it takes for Objective-C
under a configuration for C++ alone), how many lines differ and the first difference.
  compare.py <original tree> <revision with the style> <clang-format's revision> <list file>
Prints "<files> <identical> <left as they were among the others> <others that differ only in the
leading white space of lines continuing block comments>"; writes one line per other
file to the list file."""
import difflib
import os
import sys

def read(root, path):
    with open(os.path.join(root, path), "rb") as f:
        return f.read()


def block_comment_continuations(lines):
    """Indices of the lines that continue a block comment begun on an earlier line (a rough scan:
    string literals holding comment marks are not told apart)."""
    inside, found = False, set()
    for i, line in enumerate(lines):
        if inside:
            found.add(i)
        at = 0
        while True:
            if inside:
                end = line.find("*/", at)
                if end < 0:
                    break
                inside, at = False, end + 2
            else:
                start, line_comment = line.find("/*", at), line.find("//", at)
                if start < 0 or (0 <= line_comment < start):
                    break
                inside, at = True, start + 2
    return found


def only_comment_lines_moved(la, lb):
    """The two texts differ only in the leading white space of lines that continue block comments."""
    if len(la) != len(lb):
        return False
    continuing = block_comment_continuations(la)
    return all(x == y or (i in continuing and x.lstrip() == y.lstrip()) for i, (x, y) in enumerate(zip(la, lb)))


def main():
    original, ours, theirs, listing = sys.argv[1:5]
    files = sorted(os.path.relpath(os.path.join(d, f), original)
                   for d, _, names in os.walk(original) for f in names)
    same = left = comment_lines = 0
    with open(listing, "w") as out:
        for path in files:
            a, b = read(ours, path), read(theirs, path)
            if a == b:
                same += 1
                continue
            before = read(original, path)
            untouched = a == before
            left += untouched
            how = "left as it was" if untouched else "clang-format left it" if b == before else "revised"
            la = a.decode("utf-8", "replace").splitlines()
            lb = b.decode("utf-8", "replace").splitlines()
            changed = [op for op in difflib.SequenceMatcher(None, la, lb, autojunk=False).get_opcodes() if op[0] != "equal"]
            if how == "revised" and only_comment_lines_moved(la, lb):
                how = "block comment lines"
                comment_lines += 1
            lines = sum(max(i2 - i1, j2 - j1) for _, i1, i2, j1, j2 in changed)
            first = changed[0] if changed else None
            where = ""
            if first:
                _, i1, i2, j1, j2 = first
                where = "line %d: %r -> %r" % (i1 + 1, la[i1] if i1 < len(la) else "", lb[j1] if j1 < len(lb) else "")
            out.write("%s\t%s\t%d lines\t%s\n" % (path, how, lines, where[:300]))
    print(len(files), same, left, comment_lines)


if __name__ == "__main__":
    main()
