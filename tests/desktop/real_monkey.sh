#!/usr/bin/env bash
# Keys and clicks at random, always the same ones, on the real windows of PROGRAM. It may be closed by them and is
# started anew, but never crash nor work on for ever.
# Usage: on_a_screen.sh "" real_monkey.sh PROGRAM [EVENTS]
set -euo pipefail

program=$(realpath "$1")
cd "$HOME"  # where it may leave files
events=${2:-100}
keys=(Tab Tab Tab shift+Tab Return Return Escape Escape Up Down Left Right Home End Page_Up Page_Down space
  BackSpace Delete F1 F2 ctrl+a ctrl+c ctrl+v ctrl+x ctrl+z ctrl+shift+z ctrl+n ctrl+s ctrl+o ctrl+p ctrl+l ctrl+w
  shift+Down shift+Right shift+Return ctrl+Return
  ctrl+Next alt+f alt+e alt+s alt+o alt+h alt+i alt+t alt+w alt+d alt+p alt+m alt+b
  0 1 2 3 4 5 6 7 8 9 period comma minus c d g i m p r s t x n y)

launched=0
launch() {
  "$program" &
  running=$!
  launched=$((launched + 1))
  timeout 60 xdotool search --sync --onlyvisible --pid "$running" >/dev/null
}

launch
trap 'kill -9 "$running" 2>/dev/null || true' EXIT

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
    launch
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
