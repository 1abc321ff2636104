#!/usr/bin/env bash
# The real window of PROGRAM under Wayland: by keyboard EXAMPLE is solved anew, an answer copied and a question answered;
# the window keeps its size, and its place for a session that lets it have one.
# Usage: on_a_screen.sh weston wayland.sh PROGRAM EXAMPLE   status 77 where Qt has no Wayland
set -euo pipefail

project=$HOME/canal.fwd
complaints=$HOME/complaints
places=$XDG_CONFIG_HOME/flumewise/windows.ini
left='place=@Rect(40 10 960 590)'
cp "$2" "$project"
mkdir -p "${places%/*}"
printf '[frmMain]\nmaximized=false\n%s\n' "$left" >"$places"
printf '[input-method]\npath=\n[shell]\npanel-position=none\n' >"$XDG_CONFIG_HOME/weston.ini"

weston --backend=x11-backend.so --use-pixman --idle-time=0 --width=1024 --height=620 --socket=nested \
  >"$HOME/weston.log" 2>&1 &
weston=$! program=
trap 'kill "$weston" $program 2>/dev/null || true' EXIT
until [ -S "$XDG_RUNTIME_DIR/nested" ]; do sleep 0.1; done
WAYLAND_DISPLAY=nested QT_QPA_PLATFORM=wayland "$1" "$project" 2>"$complaints" &
program=$!

# shows LINE KEYS...: the keys are pressed until the project file has the line
shows() {
  local runs=true
  for _ in {1..30}; do
    kill -0 "$program" 2>/dev/null || runs=false
    if grep -qF "\"$1\"" "$project"; then return; fi
    if ! $runs; then break; fi
    xdotool key --delay 30 "${@:2}"
    sleep 0.3
  done
  cat "$complaints"
  if grep -q 'Could not find the Qt platform plugin "wayland"' "$complaints"; then exit 77; fi
  echo "The project does not show $1"
  exit 1
}
shows 1.836 alt+w ctrl+a 1 5 ctrl+s
shows y1.836 alt+d ctrl+a ctrl+c alt+j ctrl+a y ctrl+v ctrl+s
shows 2.117 alt+w ctrl+a 2 0 ctrl+q y
wait "$program"
grep -qxF "$left" "$places" || { cat "$places" && exit 1; }
[ ! -s "$complaints" ] || { cat "$complaints" && exit 1; }
