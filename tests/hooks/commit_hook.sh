#!/usr/bin/env bash
# The commit hook that .pre-commit-hooks.yaml defines, run as the pre-commit framework runs it
# (its entry, from the repository's root, with the staged files that its `files` pattern takes),
# on a temporary git repository whose .style-tarnel names a style: with one badly formatted file
# staged it fails and revises the file; staged again, it passes. In a bundle of its own (copied
# executable, plugins and styles; its own settings, cache and home), without network.
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
entry=$(sed -n 's/^ *entry: *//p' "$definition")
pattern=$(sed -n "s/^ *files: *'\(.*\)'$/\1/p" "$definition")
[ -n "$entry" ] && [ -n "$pattern" ] || { echo "no entry or files pattern in $definition"; exit 1; }

cd "$root/repository"
git init -q .
printf '[C++]\nstyle = Google\n' > .style-tarnel
mkdir -p src
printf 'int main( ){return 0;}\n' > src/main.cpp
printf 'notes  that  are  no  code\n' > NOTES
git add .style-tarnel src/main.cpp NOTES

# The staged files the hook takes, given to its entry as pre-commit gives them.
run_hook() {
  local files=()
  while IFS= read -r file; do
    [[ $file =~ $pattern ]] && files+=("$file")
  done < <(git diff --cached --name-only --diff-filter=ACMR)
  "$source_dir/$entry" "${files[@]}"
}

status=0
run_hook > first.log 2>&1 || status=$?
[ $status -eq 1 ] || { cat first.log; echo "the hook passed a badly formatted file (status $status)"; exit 1; }
[ "$(cat src/main.cpp)" = "int main() { return 0; }" ] || { echo "the file was not revised:"; cat src/main.cpp; exit 1; }
[ "$(cat NOTES)" = "notes  that  are  no  code" ] || { echo "a file the hook does not take was changed"; exit 1; }
git add src/main.cpp
run_hook > second.log 2>&1 || { cat second.log; echo "the hook failed on files in style"; exit 1; }
echo "the hook failed, revised the file, then passed"
