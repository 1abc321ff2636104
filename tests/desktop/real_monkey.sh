#!/usr/bin/env bash
# Keys and clicks at random, always the same ones, on the real windows of PROGRAM. It may be closed by them and is
# started anew, but never crash nor work on for ever.
# Usage: real_monkey.sh PROGRAM [EVENTS]   status 77 where there is nothing to show a window on
set -euo pipefail

for tool in xvfb-run openbox xprop xdotool; do
  type -P "$tool" >/dev/null || {
    echo "skipped: $tool is missing"
    exit 77
  }
done

if [ -z "${REAL_WINDOW:-}" ]; then
  home=$(mktemp -d)
  trap 'rm -rf "$home"' EXIT
  chmod 700 "$home"
  export REAL_WINDOW=1 HOME=$home XDG_RUNTIME_DIR=$home XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
  export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8
  export CUPS_SERVER=localhost:1  # no printer: nothing may come out on paper
  self=$(realpath "$0")
  program=$(realpath "$1")
  cd "$home"
  xvfb-run -a -s "-screen 0 1024x640x24 -nolisten tcp" "$self" "$program" "${@:2}"
  exit
fi

events=${2:-100}
keys=(Tab Tab Tab shift+Tab Return Return Escape Escape Up Down Left Right Home End Page_Up Page_Down space
  BackSpace Delete F1 F2 ctrl+a ctrl+c ctrl+v ctrl+x ctrl+z ctrl+shift+z ctrl+n ctrl+s ctrl+o ctrl+p ctrl+l ctrl+w
  shift+Down shift+Right alt+f alt+e alt+s alt+o alt+h alt+i alt+t alt+w alt+d alt+p alt+m alt+b
  0 1 2 3 4 5 6 7 8 9 period comma minus c d g i m p r s t x n y)

launched=0
launch() {
  "$1" &
  running=$!
  launched=$((launched + 1))
  timeout 60 xdotool search --sync --onlyvisible --pid "$running" >/dev/null
}

openbox --sm-disable 2>/dev/null &
manager=$!
until xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "#"; do sleep 0.1; done
launch "$1"
trap 'kill -9 "$running" "$manager" 2>/dev/null || true' EXIT

RANDOM=20261121
for ((done = 0; done < events; done += 10)); do
  batch=()
  for _ in {1..10}; do
    case $((RANDOM % 4)) in
      0) batch+=(mousemove $((RANDOM % 1024)) $((RANDOM % 640)) click 1) ;;
      *) batch+=(key "${keys[RANDOM % ${#keys[@]}]}") ;;
    esac
  done
  xdotool "${batch[@]}"
  sleep 0.05
  if ! kill -0 "$running" 2>/dev/null; then
    wait "$running" || {
      echo "the program ended with status $? after $done events"
      exit 1
    }
    launch "$1"
  fi
done

# When it is left alone it rests: it does not turn in a circle.
worked() { cut -d " " -f 14 "/proc/$running/stat"; }
sleep 2
before=$(worked)
sleep 1
[ $(($(worked) - before)) -lt 50 ] || {
  echo "the program does not come to rest"
  exit 1
}
status=0
kill "$running"
wait "$running" || status=$?
[ "$status" -eq 143 ] || {
  echo "the program ended with status $status"
  exit 1
}
echo "$events events, the program started $launched times"
