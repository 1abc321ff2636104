#!/usr/bin/env bash
# Runs COMMAND on a screen of its own, with a window manager and a home folder that go with it, and no printer.
# Usage: on_a_screen.sh "TOOL..." COMMAND...   status 77 where one of the tools, or the screen, is missing
set -euo pipefail

for tool in Xvfb openbox xprop xdotool $1; do
  type -P "$tool" >/dev/null || {
    echo "skipped: $tool is missing"
    exit 77
  }
done

if [ -z "${ON_A_SCREEN:-}" ]; then
  home=$(mktemp -d)
  trap 'rm -rf "$home"' EXIT
  chmod 711 "$home"
  mkdir -m 700 "$home/run"
  export ON_A_SCREEN=1 HOME=$home XDG_RUNTIME_DIR=$home/run XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data
  export QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 CUPS_SERVER=localhost:1
  "$(dirname "${BASH_SOURCE[0]}")/../../scripts/virtual-screen" 1024x640 "$0" "$@"
  exit
fi

openbox --sm-disable 2>/dev/null &
manager=$!
trap 'kill "$manager" 2>/dev/null || true' EXIT
until xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "#"; do kill -0 "$manager"; sleep 0.1; done
"${@:2}"
