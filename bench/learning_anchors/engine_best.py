#!/usr/bin/env python3
# What the engine can reach at best on a project: a greedy search over the engine's options by
# hand, clang-format-19 run directly, from a style's exported options (`style-tarnel --addon=FILE
# --export-config=-`, forced options included): one option changed at a time, each change kept when
# it leaves more of the project's lines as they are. It splits the gap between a learned style and
# an anchor into what the learning misses (learned vs the engine's best) and what the engine cannot
# do (the engine's best vs the anchor).
#   engine_best.py EXPORTED_OPTIONS CORPUS [--every K] [--passes N] [--language C|C++] [--out FILE]
#                  [--only OPTION,...]
# Searches on every K-th file of the corpus (sorted), then counts the start and the best on every
# file. Prints each kept change with its gain, and the options changed; writes the best options to
# --out. The corpus is copied, never changed. The counting is lines_left.py's (bench/learning).
import argparse, collections, copy, os, re, shutil, subprocess, sys, tempfile

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


# Macros the corpus uses at statement level (after a line that ends a statement or opens a block),
# read by hand as the learning reads them: `name(...) {` as loops, `name(...)` alone on its line
# with a statement after it at the same depth as statements. Names used at least twice.
statement_level = re.compile(r'^([ \t]+)([A-Za-z_][A-Za-z0-9_]*) ?\((.*)\)\s*(\{?)\s*$')
keywords = {'if', 'for', 'while', 'switch', 'return', 'sizeof', 'do', 'else', 'case', 'defined'}


def macros_found(corpus):
    loops, statements = collections.Counter(), collections.Counter()
    for root, _, names in os.walk(corpus):
        for name in names:
            with open(os.path.join(root, name), errors='replace') as source:
                lines = source.read().split('\n')
            previous = ''
            for i, line in enumerate(lines):
                text = line.strip()
                match = statement_level.match(line)
                if match and match.group(2) not in keywords and (not previous or previous[-1] in ';{}:'):
                    if match.group(4):
                        loops[match.group(2)] += 1
                    elif ';' not in match.group(3) and i + 1 < len(lines):
                        following = lines[i + 1]
                        indent = len(following) - len(following.lstrip())
                        if following.strip() and indent <= len(match.group(1)) and following.strip()[0] not in '{&|+-*/%?:.,=<>^!)]':
                            statements[match.group(2)] += 1
                if text:
                    previous = text
    return ([n for n, c in sorted(loops.items()) if c >= 2], [n for n, c in sorted(statements.items()) if c >= 2])


found = {'loops': [], 'statements': []}


def with_found(kind):
    return lambda values: sorted(set(values or []) | set(found[kind]))


# option (a path of keys) -> values tried; callables make a value from the current one.
moves_c = [
    ('UseTab', ['ForContinuationAndIndentation', 'ForIndentation', 'AlignWithSpaces', 'Always', 'Never']),
    ('AttributeMacros', [attribute_macros_upper, []]),
    ('ForEachMacros', [with_found('loops'), lambda values: found['loops']]),
    ('StatementMacros', [with_found('statements'), lambda values: found['statements']]),
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
    ('PenaltyBreakComment', [10, 300, 1000]),
    ('PenaltyBreakString', [10, 1000, 100000]),
    ('PenaltyBreakFirstLessLess', [0, 120, 1000]),
    ('PenaltyBreakScopeResolution', [0, 500, 5000]),
    ('SpaceBeforeParens', ['Custom']),
    ('SpaceBeforeParensOptions/AfterForeachMacros', [True, False]),
    ('SpaceBeforeParensOptions/AfterIfMacros', [True, False]),
    ('SpaceBeforeParensOptions/AfterFunctionDeclarationName', [True, False]),
    ('SpaceBeforeParensOptions/AfterFunctionDefinitionName', [True, False]),
    ('SpacesInParens', ['Never', 'Custom']),
    ('SpacesInParensOptions/Other', [True, False]),
    ('InsertBraces', [False]),
    ('KeepEmptyLines/AtStartOfBlock', [True, False]),
    ('KeepEmptyLines/AtEndOfFile', [True, False]),
    ('BreakStringLiterals', [True, False]),
    ('ReflowComments', [False]),
    ('LineEnding', ['DeriveLF']),
    ('SpaceAroundPointerQualifiers', ['Default', 'Before', 'After', 'Both']),
    ('SeparateDefinitionBlocks', ['Leave', 'Always', 'Never']),
    ('AlignConsecutiveShortCaseStatements/Enabled', [True, False]),
    ('BreakBeforeTernaryOperators', [True, False]),
    ('BreakAfterAttributes', ['Always', 'Leave', 'Never']),
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
    parser.add_argument('--only', help='the options searched, comma-separated (the first key of each)')
    args = parser.parse_args()
    documents = [d for d in yaml.safe_load_all(open(args.options)) if d]
    moves = moves_cpp if args.language == 'C++' else moves_c
    if args.only:
        moves = [move for move in moves if move[0].split('/')[0] in args.only.split(',')]
    found['loops'], found['statements'] = macros_found(args.corpus)
    print(f'loop macros found: {found["loops"]}\nstatement macros found: {found["statements"]}', flush=True)
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
