#!/usr/bin/env bash
# `cmake --install` lays out the same bundle as the build tree, under any prefix, and the
# installed executable finds its own plugins and styles there.
set -euo pipefail
build=$1
prefix=$(mktemp -d)
trap 'rm -rf "$prefix"' EXIT
cmake --install "$build" --prefix "$prefix/some where" >/dev/null
root="$prefix/some where"
[ -x "$root/bin/Style Tarnel" ] || { echo "no executable in bin/"; exit 1; }
[ "$(readlink "$root/bin/style-tarnel")" = "Style Tarnel" ] || { echo "no style-tarnel link"; exit 1; }
[ -d "$root/PlugIns/languages" ] || { echo "no PlugIns/languages"; exit 1; }
[ -d "$root/PlugIns/styles" ] || { echo "no PlugIns/styles"; exit 1; }
# Same plugins and styles as the build tree's bundle.
diff <(ls "$build/PlugIns/languages") <(ls "$root/PlugIns/languages")
diff <(ls "$build/PlugIns/styles") <(ls "$root/PlugIns/styles")
echo "bundle installed under $root"
