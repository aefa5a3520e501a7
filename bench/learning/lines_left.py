#!/usr/bin/env python3
# Lines of the files below ORIGINAL that stand unchanged in their revision below REVISED (same
# relative paths), counted as the plugins count them: the lines common to both files (multisets).
# Prints "left total" and whether every file kept its non-white-space bytes.
import collections, os, sys


def non_white_space(text):
    # A backslash before a line break splices lines: both are white space here, as for the engine.
    return b''.join(text.replace(b'\\\r\n', b'').replace(b'\\\n', b'').split())


def count(original, revised):
    """(lines left, lines, whether every file kept its non-white-space bytes)."""
    total = left = 0
    tokens_kept = True
    for root, _, files in os.walk(original):
        for name in sorted(files):
            a_path = os.path.join(root, name)
            b_path = os.path.join(revised, os.path.relpath(a_path, original))
            a = open(a_path, 'rb').read()
            b = open(b_path, 'rb').read() if os.path.exists(b_path) else a
            if non_white_space(a) != non_white_space(b):
                tokens_kept = False
            a_lines = a.split(b'\n')
            if a_lines and a_lines[-1] == b'':
                a_lines.pop()
            unmatched = collections.Counter(line.rstrip(b'\r') for line in b.split(b'\n'))
            for line in a_lines:
                total += 1
                if unmatched[line.rstrip(b'\r')] > 0:
                    unmatched[line.rstrip(b'\r')] -= 1
                    left += 1
    return left, total, tokens_kept


if __name__ == '__main__':
    left, total, tokens_kept = count(sys.argv[1], sys.argv[2])
    print(left, total, 'tokens-kept' if tokens_kept else 'TOKENS-CHANGED')
