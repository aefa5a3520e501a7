#!/usr/bin/env bash
# The commit hook that .pre-commit-hooks.yaml defines, run as the pre-commit framework runs it
# (its entry, from the repository's root, with the staged files that its `files` pattern takes),
# on a temporary git repository whose .style-tarnel names a style: with one badly formatted file
# staged before the first commit it fails and revises the file; staged again, it passes. After a
# commit, a change of one line of a file with other badly formatted lines gets that line fixed and
# no other; the hook for whole files fixes them all. In a bundle of its own (copied executable,
# plugins and styles; its own settings, cache and home), without network.
set -euo pipefail
source_dir=$1
build=$2
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
mkdir -p "$root/bin" "$root/config" "$root/cache" "$root/home" "$root/repository"
cp "$build/bin/Style Tarnel" "$root/bin/"
cp -r "$build/PlugIns" "$root/PlugIns"
export XDG_CONFIG_HOME=$root/config XDG_CACHE_HOME=$root/cache HOME=$root/home
export STYLE_TARNEL="$root/bin/Style Tarnel"
export GIT_AUTHOR_NAME=test GIT_AUTHOR_EMAIL=test@example.org GIT_COMMITTER_NAME=test GIT_COMMITTER_EMAIL=test@example.org

definition=$source_dir/.pre-commit-hooks.yaml
# The entries and patterns of the hooks, in the order of the definition: lines first, whole files second.
entry_of() { sed -n 's/^ *entry: *//p' "$definition" | sed -n "$1p"; }
entry=$(entry_of 1)
pattern=$(sed -n "s/^ *files: *'\(.*\)'$/\1/p" "$definition" | head -1)
[ -n "$entry" ] && [ -n "$pattern" ] || { echo "no entry or files pattern in $definition"; exit 1; }

cd "$root/repository"
git init -q .
printf '[C++]\nstyle = Google\n\n[Java]\nstyle = Google\n' > .style-tarnel
printf '\n[C#]\nstyle = Microsoft\n' >> .style-tarnel
mkdir -p src
printf 'int main( ){return 0;}\n' > src/main.cpp
printf 'class Main {\n      int  size( ){return 0;}\n}\n' > src/Main.java
printf 'class Main {\n      int  Size( ){return 0;}\n}\n' > src/Main.cs
printf 'notes  that  are  no  code\n' > NOTES
git add .style-tarnel src/main.cpp src/Main.java NOTES
git add src/Main.cs

# The staged files the hook takes, given to its entry as pre-commit gives them (an entry may carry
# arguments of its own).
run_hook() {
  local files=()
  while IFS= read -r file; do
    [[ $file =~ $pattern ]] && files+=("$file")
  done < <(git diff --cached --name-only --diff-filter=ACMR)
  local words
  read -r -a words <<< "$entry"
  "$source_dir/${words[0]}" "${words[@]:1}" "${files[@]}"
}

status=0
run_hook > first.log 2>&1 || status=$?
[ $status -eq 1 ] || { cat first.log; echo "the hook passed a badly formatted file (status $status)"; exit 1; }
[ "$(cat src/main.cpp)" = "int main() { return 0; }" ] || { echo "the file was not revised:"; cat src/main.cpp; exit 1; }
[ "$(cat src/Main.java)" = "$(printf 'class Main {\n  int size() {\n    return 0;\n  }\n}')" ] ||
  { echo "the Java file was not revised:"; cat src/Main.java; exit 1; }
[ "$(cat src/Main.cs)" = "$(printf 'class Main\n{\n    int Size()\n    {\n        return 0;\n    }\n}')" ] ||
  { echo "the C# file was not revised:"; cat src/Main.cs; exit 1; }
[ "$(cat NOTES)" = "notes  that  are  no  code" ] || { echo "a file the hook does not take was changed"; exit 1; }
grep -q "Style Tarnel revised these files" first.log && grep -q "/src/main.cpp$" first.log && ! grep -q "would be changed" first.log ||
  { cat first.log; echo "the hook's output does not say once which file it revised"; exit 1; }
git add src/main.cpp src/Main.java
git add src/Main.cs
run_hook > second.log 2>&1 || { cat second.log; echo "the hook failed on files in style"; exit 1; }

# After the first commit: one badly formatted line changed in a file that holds others.
printf 'int  a( ){return 1;}\nint  b( ){return 2;}\nint  c( ){return 3;}\n' > src/lib.cpp
git add src/lib.cpp
git commit -qm base
printf 'int  a( ){return 1;}\nint  b( ){return 22;}\nint  c( ){return 3;}\n' > src/lib.cpp
git add src/lib.cpp
status=0
run_hook > third.log 2>&1 || status=$?
[ $status -eq 1 ] || { cat third.log; echo "the hook passed a badly formatted changed line (status $status)"; exit 1; }
expected=$'int  a( ){return 1;}\nint b() { return 22; }\nint  c( ){return 3;}'
[ "$(cat src/lib.cpp)" = "$expected" ] || { echo "not the changed line alone was revised:"; cat src/lib.cpp; exit 1; }
git add src/lib.cpp
run_hook > fourth.log 2>&1 || { cat fourth.log; echo "the hook failed on a changed line in style"; exit 1; }

# The hook for whole files revises the lines the commit did not change too.
entry=$(entry_of 2)
[ -n "$entry" ] || { echo "no second hook in $definition"; exit 1; }
status=0
run_hook > fifth.log 2>&1 || status=$?
[ $status -eq 1 ] || { cat fifth.log; echo "the hook for whole files passed (status $status)"; exit 1; }
expected=$'int a() { return 1; }\nint b() { return 22; }\nint c() { return 3; }'
[ "$(cat src/lib.cpp)" = "$expected" ] || { echo "the whole file was not revised:"; cat src/lib.cpp; exit 1; }
echo "the hook revised the staged file, then only the changed line; the one for whole files revised the rest"
