#!/usr/bin/env python3
# What a revision changed, by kind: the lines of the files below ORIGINAL that do not stand as they
# were in their revision below REVISED, sorted by the hunk they fall in (difflib's, per file):
# "breaks" when the hunk's lines are broken or joined differently (its text, white space aside,
# spread over other lines), "indent" when each line keeps its text and only its leading white space
# changed, "aligned" when a line's text stays but white space inside it changed and one side lines
# something up (a run of blanks or a tab inside the text: columns of declarations, assignments,
# macro values, trailing comments), "inner" for other changes inside a line (spaces around
# operators, after casts), "both" when a line changed its indent and inside, "trailing" when only
# white space at a line's end changed. Prints the counts and, with a third argument N, N example
# hunks of each kind.
import collections, difflib, os, re, sys

original, revised = sys.argv[1], sys.argv[2]
examples = int(sys.argv[3]) if len(sys.argv) > 3 else 0
counts = collections.Counter()
shown = collections.defaultdict(list)
for root, _, files in os.walk(original):
    for name in sorted(files):
        a_path = os.path.join(root, name)
        b_path = os.path.join(revised, os.path.relpath(a_path, original))
        a = open(a_path, 'rb').read().decode('utf-8', 'replace').split('\n')
        b = open(b_path, 'rb').read().decode('utf-8', 'replace').split('\n') if os.path.exists(b_path) else a
        for tag, i1, i2, j1, j2 in difflib.SequenceMatcher(None, a, b, autojunk=False).get_opcodes():
            if tag == 'equal' or i1 == i2:
                continue
            old, new = a[i1:i2], b[j1:j2]
            if len(old) != len(new) or any(''.join(x.split()) != ''.join(y.split()) for x, y in zip(old, new)):
                kind = 'breaks'
            else:
                kinds = set()
                for x, y in zip(old, new):
                    if x == y:
                        continue
                    lead = x[:len(x) - len(x.lstrip())] != y[:len(y) - len(y.lstrip())]
                    inner = x.strip() != y.strip()
                    if inner and not lead:
                        inner = 'aligned' if re.search(r'\S(  |\t)', x.strip()) or re.search(r'\S(  |\t)', y.strip()) else 'inner'
                    kinds.add('both' if lead and inner else 'indent' if lead else inner if inner else 'trailing')
                kind = kinds.pop() if len(kinds) == 1 else 'both'
            counts[kind] += i2 - i1
            if len(shown[kind]) < examples:
                shown[kind].append((os.path.relpath(a_path, original), i1 + 1, old, new))
total = sum(counts.values())
print(' '.join(f'{kind}={counts[kind]}' for kind in ('breaks', 'indent', 'aligned', 'inner', 'both', 'trailing')), f'changed={total}')
for kind, hunks in shown.items():
    for path, line, old, new in hunks:
        print(f'--- {kind}: {path}:{line}')
        print('\n'.join('- ' + x for x in old[:6]))
        print('\n'.join('+ ' + y for y in new[:6]))
