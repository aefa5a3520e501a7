#!/usr/bin/env python3
"""Compares two revisions of one tree, file by file: how many are the same bytes, and for each other
file whether the revision with the style left it as it was (the plugin's refusal of an unstable or
more-than-white-space result) or clang-format did (it refuses a header it takes for Objective-C
under a configuration for C++ alone), how many lines differ and the first difference.
  compare.py <original tree> <revision with the style> <clang-format's revision> <list file>
Prints "<files> <identical> <left as they were among the others>"; writes one line per other
file to the list file."""
import difflib
import os
import sys

original, ours, theirs, listing = sys.argv[1:5]
files = sorted(os.path.relpath(os.path.join(d, f), original)
               for d, _, names in os.walk(original) for f in names)


def read(root, path):
    with open(os.path.join(root, path), "rb") as f:
        return f.read()


same = left = 0
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
        lines = sum(max(i2 - i1, j2 - j1) for _, i1, i2, j1, j2 in changed)
        first = changed[0] if changed else None
        where = ""
        if first:
            _, i1, i2, j1, j2 = first
            where = "line %d: %r -> %r" % (i1 + 1, la[i1] if i1 < len(la) else "", lb[j1] if j1 < len(lb) else "")
        out.write("%s\t%s\t%d lines\t%s\n" % (path, how, lines, where[:300]))
print(len(files), same, left)
