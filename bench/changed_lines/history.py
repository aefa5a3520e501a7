#!/usr/bin/env python3
"""The changed-lines benchmark's helper: builds a git history of real edits from two versions of
the same sources, and tells which lines a revision of changed lines touched outside the commit.

  history.py build REPO OLD NEW EXTS COMMITS [MOST_LINES]
      REPO gets the files of OLD whose extension is in EXTS (comma-separated) as its first commit,
      then COMMITS commits, each the NEW version of a few of those files (those whose edit changes
      1 to MOST_LINES lines, default 200; at most three files a commit, spread evenly over the
      sorted list, neighbours together). Prints the number of files.
  history.py outside REPO DETAILS
      In REPO at a commit whose work tree holds a revision of its changed lines: prints
      "files_in_commit commit_lines revised_lines joined_lines outside_lines"; appends each
      revision hunk that reaches beyond the commit's lines to DETAILS, with the lines before and
      after. A line beyond the commit's is joined or split when its text, white space aside, is no
      longer a line of the hunk's result and it lies next to one of the commit's lines or to
      another line so joined; the other lines beyond the commit's count as changed outside the
      hunks.
  history.py processor RUNS INPUT OUTPUT COMMAND...
      Runs COMMAND RUNS times, its standard input INPUT and output OUTPUT, and prints the median of
      its processor times (user + system, from the kernel's account of each process) in seconds.
"""
import difflib
import os
import re
import shutil
import subprocess
import sys

ENV = dict(os.environ, GIT_AUTHOR_NAME="bench", GIT_AUTHOR_EMAIL="bench@localhost",
           GIT_COMMITTER_NAME="bench", GIT_COMMITTER_EMAIL="bench@localhost",
           GIT_AUTHOR_DATE="2026-01-01T00:00:00Z", GIT_COMMITTER_DATE="2026-01-01T00:00:00Z")


def git(repo, *args):
    return subprocess.run(["git", "-C", repo, "-c", "core.quotepath=off", *args], env=ENV, check=True,
                          stdout=subprocess.PIPE).stdout.decode("utf-8", "surrogateescape")


def split(text):
    """Lines as git counts them: at line feeds alone (not at form feeds, as splitlines() does)."""
    lines = text.split("\n")
    return lines[:-1] if lines and lines[-1] == "" else lines


def lines_of(path):
    with open(path, "rb") as f:
        return split(f.read().decode("utf-8", "surrogateescape"))


def changed_line_count(old, new):
    count = 0
    for tag, i1, i2, j1, j2 in difflib.SequenceMatcher(None, old, new, autojunk=False).get_opcodes():
        if tag != "equal":
            count += max(i2 - i1, j2 - j1)
    return count


def build(repo, old_root, new_root, exts, commits, most_lines=200):
    exts = tuple("." + e for e in exts.split(","))
    files = []
    for top, dirs, names in os.walk(old_root):
        dirs.sort()
        for name in sorted(names):
            if name.endswith(exts):
                files.append(os.path.relpath(os.path.join(top, name), old_root))
    files.sort()
    os.makedirs(repo)
    for rel in files:
        os.makedirs(os.path.dirname(os.path.join(repo, rel)), exist_ok=True)
        shutil.copyfile(os.path.join(old_root, rel), os.path.join(repo, rel))
    git(repo, "init", "-q", "-b", "main")
    git(repo, "add", "-A")
    git(repo, "commit", "-q", "-m", "The sources as they were")

    candidates = []
    for rel in files:
        new = os.path.join(new_root, rel)
        if not os.path.isfile(new):
            continue
        with open(os.path.join(old_root, rel), "rb") as a, open(new, "rb") as b:
            if a.read() == b.read():
                continue
        if 1 <= changed_line_count(lines_of(os.path.join(old_root, rel)), lines_of(new)) <= most_lines:
            candidates.append(rel)
    if len(candidates) < commits:
        sys.exit("only %d edited files for %d commits" % (len(candidates), commits))
    if len(candidates) > 3 * commits:
        step = len(candidates) / (3 * commits)
        candidates = [candidates[int(k * step)] for k in range(3 * commits)]
    for k in range(commits):
        group = candidates[k * len(candidates) // commits:(k + 1) * len(candidates) // commits]
        for rel in group:
            shutil.copyfile(os.path.join(new_root, rel), os.path.join(repo, rel))
        git(repo, "add", "-A")
        git(repo, "commit", "-q", "-m", "Edit %d: %s" % (k + 1, ", ".join(group)))
    print(len(files))


HUNK = re.compile(r"^@@ -(\d+)(?:,(\d+))? \+(\d+)(?:,(\d+))? @@")


def hunks(diff):
    """{file: [(old_start, old_count, new_start, new_count)]} of a diff without context."""
    found, current = {}, None
    for line in split(diff):
        if line.startswith("+++ "):
            current = line[6:] if line.startswith("+++ b/") else None
            if current is not None:
                found.setdefault(current, [])
        elif current is not None:
            m = HUNK.match(line)
            if m:
                found[current].append((int(m.group(1)), int(m.group(2) or 1), int(m.group(3)),
                                       int(m.group(4) or 1)))
    return found


def outside(repo, details):
    diff_options = ["-U0", "--no-renames", "--no-color", "--no-ext-diff"]
    commit = hunks(git(repo, "diff", *diff_options, "HEAD~1", "HEAD"))
    # The smallest diff for the revision: git's faster one may take an unchanged blank line along.
    revision = hunks(git(repo, "diff", *diff_options, "--minimal", "HEAD"))
    changed = {}
    for path, each in commit.items():
        lines = set()
        for _, _, start, count in each:
            # As the host counts them: a deletion is a change of the line now in its place.
            lines.update(range(start, start + count) if count else [start + 1])
        changed[path] = lines
    commit_lines = sum(len(v) for v in changed.values())
    revised = at_edges = outside_lines = 0
    with open(details, "a") as out:
        for path, each in revision.items():
            ours = changed.get(path, set())
            before = split(git(repo, "show", "HEAD:" + path))
            after = lines_of(os.path.join(repo, path))
            for old_start, old_count, new_start, new_count in each:
                # git's hunks may take an unchanged line along (a blank line among changed ones):
                # the lines changed are those that the hunk's own smallest diff changes.
                touched = []
                old_lines = before[old_start - 1:old_start - 1 + old_count]
                new_lines = after[new_start - 1:new_start - 1 + new_count]
                for tag, i1, i2, _, _ in difflib.SequenceMatcher(None, old_lines, new_lines,
                                                                 autojunk=False).get_opcodes():
                    if tag != "equal":
                        touched.extend(range(old_start + i1, old_start + i2) if i2 > i1 else
                                       [old_start + i1 if old_count else old_start + 1])
                revised += len(touched)
                beyond = [line for line in touched if line not in ours]
                if not beyond:
                    continue
                inside = [line for line in touched if line in ours]
                # A line beyond the commit's is joined or split when its text, white space aside,
                # is no longer a line of the hunk's result, and it lies next to one of the commit's
                # lines or to another line so joined (the engine revises a line joined to a range
                # whole, and may join the line before it in turn).
                own = {"".join(line.split()) for line in after[new_start - 1:new_start - 1 + new_count]}
                joined = {line for line in beyond
                          if before[line - 1].strip() and "".join(before[line - 1].split()) not in own}
                reached, grown = set(ours), True
                while grown:
                    grown = {line for line in joined - reached if line - 1 in reached or line + 1 in reached}
                    reached |= grown
                joins = [line for line in beyond if line in reached]
                others = [line for line in beyond if line not in reached]
                edge = not others
                at_edges += len(joins)
                outside_lines += len(others)
                out.write("%s %s:%d-%d (%d of its lines in the commit): lines %s joined or split, %s changed\n" % (
                    "edge" if edge else "OUTSIDE", path, old_start, old_start + max(old_count, 1) - 1,
                    len(inside), ",".join(map(str, joins)) or "none", ",".join(map(str, others)) or "none"))
                for line in before[old_start - 1:old_start - 1 + old_count]:
                    out.write("  - %s\n" % line)
                for line in after[new_start - 1:new_start - 1 + new_count]:
                    out.write("  + %s\n" % line)
    print(len(commit), commit_lines, revised, at_edges, outside_lines)


def processor(runs, source, target, command):
    times = []
    for _ in range(runs):
        with open(source, "rb") as given, open(target, "wb") as taken:
            child = subprocess.Popen(command, stdin=given, stdout=taken, stderr=subprocess.DEVNULL)
            _, _, usage = os.wait4(child.pid, 0)
        times.append(usage.ru_utime + usage.ru_stime)
    times.sort()
    print("%.4f" % times[(len(times) - 1) // 2])


if __name__ == "__main__":
    if sys.argv[1] == "build":
        build(sys.argv[2], sys.argv[3], sys.argv[4], sys.argv[5], int(sys.argv[6]),
              int(sys.argv[7]) if len(sys.argv) > 7 else 200)
    elif sys.argv[1] == "processor":
        processor(int(sys.argv[2]), sys.argv[3], sys.argv[4], sys.argv[5:])
    elif sys.argv[1] == "outside":
        outside(sys.argv[2], sys.argv[3])
    else:
        sys.exit(__doc__)
