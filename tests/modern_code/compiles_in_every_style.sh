#!/usr/bin/env bash
# The corpus of modern C and C++ compiles before and after revision in every shipped style of its
# language: a revision never breaks a valid program. Each file is written so that every style
# changes it: a style that leaves one as it is (a refusal it should not make) fails too. Run on standard input, with settings and
# cache of its own; the build's bundle is only read.
#   compiles_in_every_style.sh BUILD_DIRECTORY
set -euo pipefail
build=$1
corpus=$(cd "$(dirname "${BASH_SOURCE[0]}")/corpus" && pwd)
program="$build/bin/style-tarnel"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export XDG_CONFIG_HOME="$work/config" XDG_CACHE_HOME="$work/cache" HOME="$work/home"
mkdir -p "$XDG_CONFIG_HOME" "$XDG_CACHE_HOME" "$HOME"

compile() {  # file, language
  if [ "$2" = "C++" ]; then
    clang++-19 -x c++ -std=c++23 -fsyntax-only -Wno-deprecated-declarations "$1"
  else
    clang-19 -x c -std=c23 -fsyntax-only -Wno-deprecated-declarations "$1"
  fi
}

failures=0
for source in "$corpus"/*; do
  case "$source" in
    *.cpp) language="C++" ;;
    *.c) language="C" ;;
    *) continue ;;
  esac
  name=$(basename "$source")
  compile "$source" "$language" || { echo "$name does not compile as it is"; failures=$((failures + 1)); continue; }
  for addon in "$build/PlugIns/styles/"*"[$language].style"; do
    style=$(basename "$addon" ".style")
    style=${style%"[$language]"}
    result="$work/$style.$name"
    status=0
    "$program" -l="$language" -s="$style" -p=- < "$source" > "$result" 2> "$work/errors" || status=$?
    if [ "$status" -ne 0 ]; then
      echo "$name in $style: exit $status: $(cat "$work/errors")"
      failures=$((failures + 1))
      continue
    fi
    if cmp -s "$source" "$result"; then
      echo "$name was left as it is in $style"
      failures=$((failures + 1))
    fi
    if ! compile "$result" "$language" 2> "$work/errors"; then
      echo "$name in $style no longer compiles:"
      head -20 "$work/errors"
      failures=$((failures + 1))
    fi
  done
done
[ "$failures" -eq 0 ] || { echo "$failures failures"; exit 1; }
echo "every file of the corpus compiles in every style"
