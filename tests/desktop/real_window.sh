#!/usr/bin/env bash
# The worked trapezoid in the real window of PROGRAM, by keyboard alone: typed in, and its answers copied out.
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
keys alt+b && typed 20
keys alt+l && typed 2
keys alt+r && typed 2
expect alt+d 3.361 "normal depth"
expect "alt+r Tab" 4.45 "velocity"
expect "alt+r Tab Tab Tab Tab Tab Tab Tab Tab" 2.148 "critical depth"
expect alt+p 0.0016 "the tidied slope"
echo "the anchors were typed and read by keyboard"
