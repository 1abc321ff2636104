#!/usr/bin/env bash
# The real window of PROGRAM by keyboard alone: the worked trapezoid is typed in and its answers copied out, menus
# work on what is selected, and a column of points is typed.
# Usage: on_a_screen.sh xclip real_window.sh PROGRAM
set -euo pipefail

"$1" &
program=$!
trap 'kill "$program" 2>/dev/null || true' EXIT
window=$(timeout 30 xdotool search --sync --onlyvisible --pid "$program" | tail -n 1)
timeout 10 xdotool windowactivate --sync "$window"

keys() { xdotool key --delay 30 "$@"; }
typed() { xdotool type --delay 20 "$1"; }
# expect KEYS TEXT WHAT: the keys go to an answer; it is copied until it reads as expected or the patience ends
expect() {
  local text=
  for _ in {1..30}; do
    # shellcheck disable=SC2086
    keys $1 ctrl+a ctrl+c
    sleep 0.1
    text=$(timeout 2 xclip -selection clipboard -o 2>/dev/null || true)
    [ "$text" != "$2" ] || return 0
  done
  echo "$3 reads '$text', not '$2'"
  exit 1
}

keys alt+o p
keys alt+w && typed 400
keys alt+p && typed .0016
keys alt+m && typed .025
keys alt+b && typed '240 in'
keys alt+l && typed 2
keys alt+r && typed 2
expect alt+d 3.361 "normal depth"
expect "alt+r Tab" 4.45 "velocity"
expect "alt+r Tab Tab Tab Tab Tab Tab Tab Tab" 2.148 "critical depth"
expect alt+p 0.0016 "the tidied slope"

# These keys are commands, though a line edit under X11 knows them too: in an input, and in a result.
for box in alt+w alt+d; do
  keys $box ctrl+u
  expect alt+b "$([ $box = alt+w ] && echo 6.096 || echo 20.00)" "the base width after a switch of units"
  keys $box ctrl+e
  timeout 10 xdotool search --sync --onlyvisible --name "^Flumewise - Trap" >/dev/null
  keys Escape
  until [ -z "$(xdotool search --onlyvisible --name "^Flumewise - Trap")" ]; do sleep 0.1; done
  timeout 10 xdotool windowactivate --sync "$window"
done
keys alt+b ctrl+f ctrl+d
expect alt+b 20.00 "the base width after both modes"
expect alt+d 3.361 "normal depth after both modes"
keys alt+w && typed 400

put() { printf %s "$1" | timeout 5 xclip -selection clipboard >/dev/null; }
# copied TEXT WHAT: what a command has put on the clipboard
copied() {
  local text=
  for _ in {1..30}; do
    text=$(timeout 2 xclip -selection clipboard -o 2>/dev/null | tr -d '\r' | tr '\n' ' ' || true)
    [ "$text" != "$1" ] || return 0
    sleep 0.1
  done
  echo "$2: the clipboard has '$text', not '$1'"
  exit 1
}

# The menu bar takes the keyboard from the box and leaves its selection.
put 77
keys alt+p alt+w && keys alt+e c
copied 400 "Copy in the menu"
put 77
keys alt+p alt+w && keys alt+e p
expect alt+w 77 "the flow after Paste in the menu"
put ""
keys alt+p alt+w && keys alt+e t
copied 77 "Cut in the menu"
keys alt+w && typed 55
keys alt+p alt+w && keys alt+e d && typed 6
expect alt+w 6 "the flow after Delete in the menu"

# Another type is one step back and forth. Enter goes down a column; Shift+Enter up.
keys alt+o i
keys alt+w ctrl+z
expect alt+b 20.00 "the base width of the type before"
expect alt+w 6 "the flow after Undo"
keys alt+w ctrl+y
keys alt+i
sleep 0.5
typed 0 && keys Return && typed 25 && keys Return && typed 60 && keys shift+Return
keys Home ctrl+Home shift+Down shift+Down ctrl+c
copied "0 25 60" "the column of stations"
# Changed points are given up after a question alone.
keys Escape && sleep 0.3 && keys Escape && sleep 0.3
keys ctrl+Home ctrl+c
copied 0 "the editor after No"
keys Escape && sleep 0.3 && keys y && sleep 0.3
expect alt+w 6 "the flow after the points were given up"
echo "all was typed and read by keyboard"
