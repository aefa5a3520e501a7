#!/usr/bin/env bash
# The editor snippets of docs/user-guide/editors.md, exactly as they stand there: Vim's
# formatprg, Emacs' shell-command-on-region and the Visual Studio Code tasks, each run on a badly
# formatted C++ file of a project whose .style-tarnel names a style, must leave the file revised.
# A refused buffer must come back as it was. In a bundle of its own (copied executable, plugins
# and styles; its own settings, cache and home), with style-tarnel on the PATH as the guide asks.
set -euo pipefail
source_dir=$1
build=$2
guide=$source_dir/docs/user-guide/editors.md
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
mkdir -p "$root/bin" "$root/config" "$root/cache" "$root/home" "$root/project/src"
cp "$build/bin/Style Tarnel" "$root/bin/"
ln -s "Style Tarnel" "$root/bin/style-tarnel"
cp -r "$build/PlugIns" "$root/PlugIns"
export XDG_CONFIG_HOME=$root/config XDG_CACHE_HOME=$root/cache HOME=$root/home
export PATH=$root/bin:$PATH

# The code block of the guide fenced as ```$1.
snippet() { awk -v fence="\`\`\`$1" '$0 == fence { on = 1; next } on && /^```/ { exit } on { print }' "$guide"; }

project=$root/project
printf '[C++]\nstyle = Google\n' > "$project/.style-tarnel"
bad='int main( ){return 0;}'
good='int main() { return 0; }'
refused='int main( ){return 0;'
failures=0
expect() {  # what, file, expected content
  if [ "$(cat "$2")" != "$3" ]; then
    echo "$1: expected '$3', got '$(cat "$2")'"
    failures=$((failures + 1))
  else
    echo "$1: ok"
  fi
}

# Vim.
if command -v vim > /dev/null; then
  { echo "filetype on"; snippet vim; } > "$root/vimrc"
  for case in bad refused; do
    printf '%s\n' "${!case}" > "$project/src/vim.cpp"
    (cd "$project" && timeout 60 vim -Es -u "$root/vimrc" -i NONE -c 'normal gggqG' -c 'wq' src/vim.cpp) || true
    expect "vim, $case" "$project/src/vim.cpp" "$([ $case = bad ] && echo "$good" || echo "$refused")"
  done
else
  echo "vim is not installed"; failures=$((failures + 1))
fi

# Emacs.
if command -v emacs > /dev/null; then
  snippet elisp > "$root/style-tarnel.el"
  for case in bad refused; do
    printf '%s\n' "${!case}" > "$project/src/emacs.cpp"
    (cd "$project" && timeout 60 emacs --batch -Q -l "$root/style-tarnel.el" \
      --eval '(progn (find-file "src/emacs.cpp") (style-tarnel-region (point-min) (point-max)) (save-buffer))' \
      > /dev/null 2>&1) || true
    expect "emacs, $case" "$project/src/emacs.cpp" "$([ $case = bad ] && echo "$good" || echo "$refused")"
  done
else
  echo "emacs is not installed"; failures=$((failures + 1))
fi

# Visual Studio Code: every task's command and arguments, with the editor's variables filled in.
rm -f "$project"/src/*
printf '%s\n' "$bad" > "$project/src/code.cpp"
printf '%s\n' "$bad" > "$project/src/other.cpp"
snippet json > "$root/tasks.json"
labels=$(sed -n 's/^ *"label": "\(.*\)",$/\1/p' "$root/tasks.json")
[ "$(echo "$labels" | wc -l)" -eq 2 ] || { echo "the tasks are not the two the guide shows"; exit 1; }
task_status=()
while IFS= read -r line; do
  command=$(sed -n 's/.*"command": "\([^"]*\)".*/\1/p' <<< "$line")
  args=$(sed -n 's/.*"args": \[\([^]]*\)\].*/\1/p' <<< "$line")
  words=()
  while IFS= read -r word; do
    [ -n "$word" ] && words+=("${word//\$\{file\}/$project/src/code.cpp}")
  done < <(grep -o '"[^"]*"' <<< "$args" | sed 's/^"//; s/"$//')
  words=("${words[@]//\$\{workspaceFolder\}/$project}")
  status=0
  (cd "$project" && "$command" "${words[@]}" > /dev/null 2>&1) || status=$?
  task_status+=("$status")
done < <(tr -d '\n' < "$root/tasks.json" | sed 's/},/}\n/g' | grep '"command"')
expect "code, revise this file" "$project/src/code.cpp" "$good"
expect "code, check the workspace leaves the other file" "$project/src/other.cpp" "$bad"
[ "${task_status[*]}" = "0 1" ] || { echo "code: statuses ${task_status[*]}, expected 0 1"; failures=$((failures + 1)); }

exit $((failures > 0))
