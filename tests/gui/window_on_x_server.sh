#!/usr/bin/env bash
# The built window on a real X server (Xvfb), driven by xdotool as a user drives it: select a
# language and a style, import an addon through the dialog, rename it in place and delete it,
# checking the bundle's styles directory after each step; then add the examples directory, revise
# it, read the report, edit one form of a copied style, seeing the preview of a file of the examples
# follow the edit (its text copied from the preview with the keyboard and compared with the command
# line's revision of the file), and revise again, checking the files and the report against the
# command line's on a copy of the same tree; open a second task tab and rename
# the first in place; learn a style from the examples. Runs on a copy of the bundle with
# its own settings, and stops its Xvfb whatever happens.
#   window_on_x_server.sh <build directory> <clipboard_text helper> <examples directory>
set -euo pipefail
build=$1
clipboard_text=$2
examples=$3
for tool in Xvfb xdotool; do
  command -v "$tool" >/dev/null || { echo "$tool is not installed"; exit 1; }
done

work=$(mktemp -d)
xvfb_pid=""; app_pid=""
cleanup() {
  [ -n "$app_pid" ] && kill "$app_pid" 2>/dev/null && wait "$app_pid" 2>/dev/null || true
  [ -n "$xvfb_pid" ] && kill "$xvfb_pid" 2>/dev/null && wait "$xvfb_pid" 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

mkdir -p "$work/bundle/bin" "$work/config" "$work/cache" "$work/home"
cp "$build/bin/Style Tarnel" "$work/bundle/bin/"
cp -r "$build/PlugIns" "$work/bundle/"
styles="$work/bundle/PlugIns/styles"
ls "$work/bundle/PlugIns/languages"/*.so >/dev/null

exec 3>"$work/display"
Xvfb -displayfd 3 -screen 0 1280x800x24 -nolisten tcp >"$work/xvfb.log" 2>&1 &
xvfb_pid=$!
exec 3>&-
for _ in $(seq 50); do [ -s "$work/display" ] && break; sleep 0.1; done
export DISPLAY=":$(cat "$work/display")"
export XDG_CONFIG_HOME="$work/config" XDG_CACHE_HOME="$work/cache" HOME="$work/home"
unset QT_QPA_PLATFORM
# Under AddressSanitizer (the test command's second build), libxkbcommon-x11 copies a keymap name
# with strndup from a buffer with no terminating NUL, which strict string checks report though
# strndup reads no further than its bound.
[ -n "${ASAN_OPTIONS:-}" ] && export ASAN_OPTIONS="$ASAN_OPTIONS:strict_string_checks=0"

"$work/bundle/bin/Style Tarnel" >"$work/app.log" 2>&1 &
app_pid=$!

fail() { echo "FAIL: $*"; echo "styles: $(ls "$styles" | tr '\n' ' ')"; cat "$work/app.log"; exit 1; }
expect_file() { for _ in $(seq 100); do [ -f "$styles/$1" ] && return 0; sleep 0.1; done; fail "$2"; }
expect_no_file() { for _ in $(seq 100); do [ ! -e "$styles/$1" ] && return 0; sleep 0.1; done; fail "$2"; }
# Pauses let the window answer; a slower build (sanitizers) stretches them by STYLE_TARNEL_SLOWER.
# With STYLE_TARNEL_SHOTS set to a directory, screenshots of the steps go there (for the docs).
shot() { if [ -n "${STYLE_TARNEL_SHOTS:-}" ]; then import -window root "$STYLE_TARNEL_SHOTS/$1.png"; fi; }
pause() { sleep "$(awk -v s="${1:-0.5}" -v f="${STYLE_TARNEL_SLOWER:-1}" 'BEGIN { print s * f }')"; }

timeout 60 xdotool search --sync --onlyvisible --name "^Style Tarnel$" >/dev/null || fail "the window did not open"
# The first start asks for the agreement; Return accepts it.
timeout 60 xdotool search --sync --onlyvisible --name "license agreement" >/dev/null || fail "no agreement asked"
pause 1
xdotool key Return; pause
# Without a window manager the window sits at the screen's corner: the second language (C++) and
# its second style are where the layout puts the lists' second rows.
row_y=85; language_x=25; style_x=180
xdotool mousemove $language_x $row_y click 1; pause
xdotool mousemove $style_x $row_y click 1; pause

style_menu() {  # opens "&Style" and picks the entry at position $1 (1 = Import...)
  xdotool key alt+s; pause 0.4
  for _ in $(seq $(($1 - 1))); do xdotool key Down; done
  xdotool key Return; pause 0.8
}

printf 'NAME=Smoke\nLANGUAGE=C++\n\nS_NAME=none\nS_BEG\nS_END\n' >"$work/home/Smoke[C++].style"
style_menu 1
xdotool type --delay 20 "$work/home/Smoke[C++].style"; xdotool key Return
expect_file "Smoke[C++].style" "the imported addon is not in the styles directory"

# The imported style is selected; clicking it brings the window back to the keyboard.
xdotool mousemove $style_x $row_y click 1; pause
# Select the new style by its place in the sorted list, read from the directory itself.
row=$(ls "$styles" | grep -F '[C++].style' | sort | grep -n '^Smoke' | cut -d: -f1)
xdotool key ctrl+Home; for _ in $(seq $((row - 1))); do xdotool key Down; done; pause
style_menu 4
xdotool key ctrl+a; xdotool type --delay 20 "Renamed"; xdotool key Return; pause
expect_file "Renamed[C++].style" "the renamed addon is not in the styles directory"
expect_no_file "Smoke[C++].style" "the addon's old name is still in the styles directory"

style_menu 3
expect_no_file "Renamed[C++].style" "the deleted addon is still in the styles directory"
[ -f "$styles/GNU[C++].style" ] || fail "a style that was not deleted is gone"

# A revision of the examples, from the window and from the command line on a copy.
cp -r "$examples" "$work/home/examples"
cp -r "$examples" "$work/home/examples-cli"
app="$work/bundle/bin/Style Tarnel"
command_line_report() {  # the report the command line prints for style $1 on the copy
  "$app" --lang=C++ --style="$1" --path="$work/home/examples-cli" 2>/dev/null | tail -n +2
}
same_trees() { diff -r -q "$work/home/examples" "$work/home/examples-cli" >/dev/null; }
window_report() {  # the report window's text, selected and copied with the keyboard
  local id
  id=$(timeout 30 xdotool search --sync --onlyvisible --name "^Report$" | head -1) || fail "no report window"
  xdotool windowfocus --sync "$id"; pause 0.4
  xdotool key ctrl+a ctrl+c; pause 0.4
  "$clipboard_text" 2>/dev/null || true
}
revise_and_compare() {  # style $1: revise from the window, then check files and report
  local expected
  expected=$(command_line_report "$1")
  xdotool mousemove $language_x $row_y click 1; pause
  xdotool key alt+g
  for _ in $(seq $((100 * ${STYLE_TARNEL_SLOWER:-1}))); do same_trees && break; sleep 0.2; done
  same_trees || fail "the window and the command line revised the examples differently"
  pause 1
  xdotool mousemove $language_x $row_y click 1; pause
  xdotool key alt+v; pause
  report=$(window_report)
  for _ in $(seq 10); do  # the files are written before the run's end reaches the report
    case "$report" in *"in progress"*) pause 1; report=$(window_report) ;; *) break ;; esac
  done
  shot "report-$1"
  [ "$report" = "$expected" ] || fail "the report window says '$report', the command line '$expected'"
  case "$expected" in *"was changed"*) ;; *) fail "nothing was revised: $expected" ;; esac
}

first_style_y=68
xdotool mousemove $style_x $first_style_y click 1; pause
xdotool key alt+d; pause
timeout 30 xdotool search --sync --onlyvisible --name "^Add directories$" >/dev/null || fail "no directory dialog"
pause
xdotool type --delay 20 "$work/home/examples"; xdotool key Return; pause 1
shot task
revise_and_compare Allman

# A copy of a style, one form edited in the editor: braces of an initializer without blanks.
sed 's/^NAME=GNU$/NAME=Copied/' "$styles/GNU[C++].style" >"$work/home/Copied[C++].style"
xdotool mousemove $language_x $row_y click 1; pause
style_menu 1
xdotool type --delay 20 "$work/home/Copied[C++].style"; xdotool key Return
expect_file "Copied[C++].style" "the copied style is not in the styles directory"
pause 1
structures_x=400; editor_x=588; editor_y=80  # the preview of the code takes the right
# The first click after a dialog only brings the window back; the selected style takes it.
xdotool mousemove $style_x $row_y click 1; pause
xdotool mousemove $structures_x $row_y click 1; pause   # "array initializer"
# The preview shows examples/cpp/main.cpp, chosen by typing its name in the file chooser's list.
preview_x=787; chooser_y=188
xdotool mousemove $preview_x $chooser_y click 1; pause
xdotool type --delay 20 "examples/cpp/main"; xdotool key Return; pause
# The previewed file's text, reached from the chooser by Tab, selected with the cursor keys and
# copied with Ctrl+Insert: Ctrl+A and Ctrl+C are the menu's, which act on the form editor.
preview_text() {
  xdotool mousemove $preview_x $chooser_y click 1; pause 0.3; xdotool key Escape Tab; pause 0.3
  xdotool key ctrl+Home ctrl+shift+End ctrl+Insert; pause 0.3
  "$clipboard_text" 2>/dev/null || true
}
preview_shows() {  # waits until the preview holds the command line's revision of main.cpp
  local expected shown=""
  expected=$("$app" --lang=C++ --style=Copied --path=- --assume-filename=main.cpp \
               <"$work/home/examples/cpp/main.cpp" 2>/dev/null)
  for _ in $(seq $((20 * ${STYLE_TARNEL_SLOWER:-1}))); do
    shown=$(preview_text)
    [ "$shown" = "$expected" ] && return 0
    pause 0.5
  done
  fail "$1: the preview shows '$shown', the command line revises main.cpp as '$expected'"
}
preview_shows "before the form is edited"
before_edit=$(preview_text)
xdotool mousemove $editor_x $editor_y click 1; pause
shot form-before
xdotool key ctrl+Home; for _ in $(seq 15); do xdotool key Right; done
xdotool key Delete End Left Left BackSpace; pause
shot form-edited
grep -qxF 'type name[] = {SOME, SOME, SOME};' "$styles/Copied[C++].style" ||
  fail "the edited form is not in the copied style: $(grep -F 'type name[]' "$styles/Copied[C++].style")"
# In this style "initializer list" decides the braces of main.cpp's lists: its two lines edited
# the same way, chosen in the structures' list by typing its name.
xdotool mousemove $structures_x $row_y click 1; pause
xdotool type --delay 20 "initializer l"; pause
xdotool mousemove $editor_x $editor_y click 1; pause
xdotool key ctrl+Home; for _ in $(seq 10); do xdotool key Right; done
xdotool key Delete End Left Left BackSpace Down Home; pause 0.3
for _ in $(seq 12); do xdotool key Right; done
xdotool key Delete End Left Left BackSpace; pause
shot initializer-list-edited
grep -qxF 'name = type{SOME};' "$styles/Copied[C++].style" ||
  fail "the edited form is not in the copied style: $(grep -F 'type{' "$styles/Copied[C++].style")"
preview_shows "after the form is edited"
shot preview-edited
[ "$(preview_text)" != "$before_edit" ] || fail "the form's edit did not change the preview of main.cpp"
revise_and_compare Copied

# A second task tab, each tab entered with a click (which saves the task left), then the first
# renamed in place: its task is kept under the new name.
xdotool mousemove $language_x $row_y click 1; pause
xdotool key ctrl+t; pause
tab_y=42; first_tab_x=40; second_tab_x=120
xdotool mousemove $second_tab_x $tab_y click 1; pause
xdotool mousemove $first_tab_x $tab_y click 1; pause
xdotool key alt+t; pause 0.4; xdotool key Down Down Return; pause
shot tab-renamer
xdotool key ctrl+a; xdotool type --delay 20 "Backend"; xdotool key Return; pause 1
shot tab-renamed
grep -q '^Backend__last=' "$XDG_CONFIG_HOME/Style Tarnel/Style Tarnel.conf" ||
  fail "the renamed tab's task is not under its new name: $(grep -F '__last' "$XDG_CONFIG_HOME/Style Tarnel/Style Tarnel.conf")"

# A style learned from the task's examples, named in the window's dialog.
style_menu 5
timeout 30 xdotool search --sync --onlyvisible --name "^Learn a style from your code$" >/dev/null ||
  fail "no dialog asks for the new style's name"
xdotool type --delay 20 "Learned"; shot learn-name; xdotool key Return
for _ in $(seq $((300 * ${STYLE_TARNEL_SLOWER:-1}))); do [ -f "$styles/Learned[C++].style" ] && break; sleep 0.2; done
expect_file "Learned[C++].style" "the learned style is not in the styles directory"
pause 1; shot learned
echo "PASS"
