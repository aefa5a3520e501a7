#!/usr/bin/env python3
# What the engine can reach at best on a project: a greedy search over the engine's options by
# hand, clang-format-19 run directly, from a style's exported options (`style-tarnel --addon=FILE
# --export-config=-`, forced options included): one option changed at a time, each change kept when
# it leaves more of the project's lines as they are. It splits the gap between a learned style and
# an anchor into what the learning misses (learned vs the engine's best) and what the engine cannot
# do (the engine's best vs the anchor).
#   engine_best.py EXPORTED_OPTIONS CORPUS [--every K] [--passes N] [--language C|C++] [--out FILE]
# Searches on every K-th file of the corpus (sorted), then counts the start and the best on every
# file. Prints each kept change with its gain, and the options changed; writes the best options to
# --out. The corpus is copied, never changed. The counting is lines_left.py's (bench/learning).
import argparse, collections, copy, os, shutil, subprocess, sys, tempfile

import yaml


sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'learning'))
import lines_left as counting  # noqa: E402


def lines_left(original_dir, revised_dir):
    left, total, _ = counting.count(original_dir, revised_dir)
    return left, total


class project:
    def __init__(self, corpus, every):
        self.work = tempfile.mkdtemp(prefix='engine-best-')
        files = sorted(os.path.relpath(os.path.join(root, name), corpus)
                       for root, _, names in os.walk(corpus) for name in names)
        self.sets = {'sample': files[::every], 'all': files}
        self.originals = {}
        for which, listed in self.sets.items():
            base = os.path.join(self.work, which)
            for path in listed:
                os.makedirs(os.path.dirname(os.path.join(base, path)), exist_ok=True)
                shutil.copy(os.path.join(corpus, path), os.path.join(base, path))
            self.originals[which] = base

    def left_under(self, documents, which='sample'):
        config = os.path.join(self.work, 'options.yaml')
        with open(config, 'w') as out:
            yaml.safe_dump_all(documents, out, sort_keys=False)
        rev = os.path.join(self.work, 'rev')
        shutil.rmtree(rev, ignore_errors=True)
        shutil.copytree(self.originals[which], rev)
        paths = [os.path.join(rev, p) for p in self.sets[which]]
        for i in range(0, len(paths), 40):
            subprocess.run(['clang-format-19', '-i', '--sort-includes=false', '--style=file:' + config] + paths[i:i + 40],
                           stderr=subprocess.DEVNULL, check=False)
        return lines_left(self.originals[which], rev)


def attribute_macros_upper(values):
    return [v for v in values if v.upper() == v]


# option (a path of keys) -> values tried; callables make a value from the current one.
moves_c = [
    ('UseTab', ['ForContinuationAndIndentation', 'ForIndentation', 'AlignWithSpaces', 'Always', 'Never']),
    ('AttributeMacros', [attribute_macros_upper, []]),
    ('AlignEscapedNewlines', ['DontAlign', 'Left', 'Right', 'LeftWithLastLine']),
    ('AlignAfterOpenBracket', ['Align', 'DontAlign', 'AlwaysBreak']),
    ('AlignOperands', ['Align', 'DontAlign', 'AlignAfterOperator']),
    ('BreakBeforeBinaryOperators', ['None', 'NonAssignment', 'All']),
    ('ContinuationIndentWidth', [2, 4, 8]),
    ('ColumnLimit', [0, 80, 100, 120]),
    ('AlignConsecutiveAssignments/Enabled', [True, False]),
    ('AlignConsecutiveDeclarations/Enabled', [True, False]),
    ('AlignConsecutiveMacros/Enabled', [True, False]),
    ('AlignConsecutiveBitFields/Enabled', [True, False]),
    ('AlignTrailingComments/Kind', ['Leave', 'Always', 'Never']),
    ('AlignArrayOfStructures', ['None', 'Left', 'Right']),
    ('SpacesBeforeTrailingComments', [1, 2]),
    ('MaxEmptyLinesToKeep', [1, 2, 3, 4]),
    ('AllowShortFunctionsOnASingleLine', ['None', 'Empty', 'Inline', 'All']),
    ('AllowShortIfStatementsOnASingleLine', ['Never', 'WithoutElse', 'AllIfsAndElse']),
    ('AllowShortLoopsOnASingleLine', [True, False]),
    ('AllowShortBlocksOnASingleLine', ['Never', 'Empty', 'Always']),
    ('AllowShortCaseLabelsOnASingleLine', [True, False]),
    ('AllowShortEnumsOnASingleLine', [True, False]),
    ('IndentCaseLabels', [True, False]),
    ('IndentGotoLabels', [True, False]),
    ('IndentPPDirectives', ['None', 'AfterHash', 'BeforeHash']),
    ('BinPackArguments', [True, False]),
    ('BinPackParameters', [True, False]),
    ('Cpp11BracedListStyle', [True, False]),
    ('SpaceBeforeParens', ['ControlStatements', 'ControlStatementsExceptControlMacros', 'Never', 'Always']),
    ('SpaceAfterCStyleCast', [True, False]),
    ('PointerAlignment', ['Left', 'Right', 'Middle']),
    ('BreakAfterReturnType', ['None', 'All', 'TopLevel', 'AllDefinitions', 'TopLevelDefinitions']),
    ('AlwaysBreakBeforeMultilineStrings', [True, False]),
    ('IndentWrappedFunctionNames', [True, False]),
    ('AllowAllArgumentsOnNextLine', [True, False]),
    ('AllowAllParametersOfDeclarationOnNextLine', [True, False]),
    ('BraceWrapping/AfterFunction', [True, False]),
    ('BraceWrapping/AfterControlStatement', ['Never', 'MultiLine', 'Always']),
    ('BraceWrapping/AfterStruct', [True, False]),
    ('BraceWrapping/AfterEnum', [True, False]),
    ('BraceWrapping/AfterUnion', [True, False]),
    ('BraceWrapping/BeforeElse', [True, False]),
    ('BraceWrapping/AfterCaseLabel', [True, False]),
    ('BraceWrapping/SplitEmptyFunction', [True, False]),
    ('BraceWrapping/SplitEmptyRecord', [True, False]),
    ('SpaceInEmptyBlock', [True, False]),
    ('SpaceBeforeAssignmentOperators', [True, False]),
    ('BitFieldColonSpacing', ['Both', 'None', 'Before', 'After']),
    ('SpacesInLineCommentPrefix/Minimum', [0, 1]),
    ('SpaceAfterLogicalNot', [True, False]),
    ('SpaceBeforeSquareBrackets', [True, False]),
    ('PenaltyBreakAssignment', [2, 10, 100, 1000]),
    ('PenaltyBreakBeforeFirstCallParameter', [1, 19, 100, 1000]),
    ('PenaltyExcessCharacter', [10, 100, 1000000]),
    ('PenaltyReturnTypeOnItsOwnLine', [0, 60, 200, 1000]),
    ('PenaltyBreakOpenParenthesis', [0, 100, 1000]),
    ('PenaltyIndentedWhitespace', [0, 10, 100]),
    ('IndentWidth', [2, 4, 8]),
    ('TabWidth', [4, 8]),
]
moves_cpp = moves_c + [
    ('AccessModifierOffset', [-4, -2, -1, 0]),
    ('IndentAccessModifiers', [True, False]),
    ('NamespaceIndentation', ['None', 'Inner', 'All']),
    ('BreakConstructorInitializers', ['BeforeColon', 'BeforeComma', 'AfterColon']),
    ('PackConstructorInitializers', ['Never', 'BinPack', 'CurrentLine', 'NextLine', 'NextLineOnly']),
    ('ConstructorInitializerIndentWidth', [2, 4, 8]),
    ('BreakInheritanceList', ['BeforeColon', 'BeforeComma', 'AfterColon', 'AfterComma']),
    ('BreakTemplateDeclarations', ['Leave', 'No', 'MultiLine', 'Yes']),
    ('SpacesInAngles', ['Never', 'Leave']),
    ('SpaceBeforeCpp11BracedList', [True, False]),
    ('AllowShortLambdasOnASingleLine', ['None', 'Empty', 'Inline', 'All']),
    ('EmptyLineBeforeAccessModifier', ['Never', 'Leave', 'LogicalBlock', 'Always']),
    ('FixNamespaceComments', [True, False]),
    ('BraceWrapping/AfterClass', [True, False]),
    ('BraceWrapping/AfterNamespace', [True, False]),
    ('CompactNamespaces', [True, False]),
    ('ReferenceAlignment', ['Pointer', 'Left', 'Right']),
]


def get(doc, path):
    for key in path.split('/'):
        doc = doc.get(key) if isinstance(doc, dict) else None
    return doc


def with_value(documents, path, value):
    changed = copy.deepcopy(documents)
    for doc in changed:
        keys = path.split('/')
        at = doc
        for key in keys[:-1]:
            at = at.setdefault(key, {})
        at[keys[-1]] = value
    return changed


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('options')
    parser.add_argument('corpus')
    parser.add_argument('--every', type=int, default=4)
    parser.add_argument('--passes', type=int, default=2)
    parser.add_argument('--language', default='C')
    parser.add_argument('--out')
    args = parser.parse_args()
    documents = [d for d in yaml.safe_load_all(open(args.options)) if d]
    moves = moves_cpp if args.language == 'C++' else moves_c
    files = project(args.corpus, args.every)
    start = documents
    best, total = files.left_under(documents)
    print(f'start on the sample: {best} of {total} ({100 * best / total:.2f}%)', flush=True)
    kept = []
    for search_pass in range(args.passes):
        gained = False
        for path, values in moves:
            current = get(documents[0], path)
            for value in values:
                value = value(current) if callable(value) else value
                if value == current:
                    continue
                tried = with_value(documents, path, value)
                left, _ = files.left_under(tried)
                if left > best:
                    print(f'  pass {search_pass + 1}: {path}: {current!r} -> {value!r}: +{left - best} lines', flush=True)
                    kept.append((path, current, value, left - best))
                    documents, best, current, gained = tried, left, value, True
        if not gained:
            break
    start_all, total_all = files.left_under(start, 'all')
    best_all, _ = files.left_under(documents, 'all')
    print(f'sample: {best} of {total} ({100 * best / total:.2f}%)')
    print(f'every file: start {start_all} of {total_all} ({100 * start_all / total_all:.2f}%), '
          f'best {best_all} ({100 * best_all / total_all:.2f}%)')
    changed = {path: get(documents[0], path) for path, *_ in kept}
    for path, value in changed.items():
        print(f'  {path}: {get(start[0], path)!r} -> {value!r}')
    if args.out:
        with open(args.out, 'w') as out:
            yaml.safe_dump_all(documents, out, sort_keys=False)
    shutil.rmtree(files.work, ignore_errors=True)


if __name__ == '__main__':
    main()
