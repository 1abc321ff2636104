#!/usr/bin/env bash
# Report and rating table of PROJECT, printed from the real window of PROGRAM by a print service of our own on a
# printer that makes PDF files: every page arrives.
# Usage: on_a_screen.sh "pdfinfo lpadmin" real_printer.sh PROGRAM PROJECT   status 77 where there is no print service
set -euo pipefail

skip() {
  echo "skipped: $1"
  exit 77
}
cupsd=/usr/sbin/cupsd
model=/usr/share/ppd/cups-pdf/CUPS-PDF_noopt.ppd
arrived=/var/spool/cups-pdf/ANONYMOUS  # what the printer makes for users whom the system does not know
[ -x "$cupsd" ] || skip "cupsd is missing"
[ -r "$model" ] || skip "the PDF printer of cups is missing"
[ "$(id -u)" -eq 0 ] || skip "only root can run a print service that makes files"

home=$HOME
mark=${home##*.}  # the name of the project is that of the job, and of the file that comes out
service=
program=
stop() {
  [ -z "$program" ] || kill "$program" || true
  [ -z "$service" ] || { kill "$service" && wait "$service"; } || true
  rm -rf "$arrived"/*"${mark:?}"*
}
trap stop EXIT
mkdir -p "$home"/{server/ppd,spool,cache,state,log}
mkdir -m 1777 "$home/tmp"
cat >"$home/cupsd.conf" <<CONF
Listen $home/socket
Browsing Off
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
CONF
cat >"$home/files.conf" <<CONF
ServerRoot $home/server
RequestRoot $home/spool
CacheDir $home/cache
StateDir $home/state
TempDir $home/tmp
AccessLog $home/log/access
ErrorLog $home/log/error
PageLog $home/log/page
CONF
"$cupsd" -f -c "$home/cupsd.conf" -s "$home/files.conf" &
service=$!
export CUPS_SERVER=$home/socket CUPS_USER=flumewise-test
for _ in {1..100}; do  # until the service answers
  ! lpadmin -p PDF -E -v cups-pdf:/ -P "$model" -o PageSize=Letter 2>/dev/null || break
  sleep 0.1
done
lpadmin -d PDF 2>/dev/null || skip "the print service does not start"

cp "$2" "$home/$mark.fwd"
"$1" "$home/$mark.fwd" &
program=$!

# window NAME: waits for the window of that name and goes to it
window() { timeout 30 xdotool search --sync --onlyvisible --name "$1" windowactivate --sync; }
keys() { xdotool key --delay 30 "$@"; }
# printed PAGES WHAT: prints from the window on top and waits for a document of so many pages
printed() {
  keys ctrl+p
  window '^Print$'
  keys Return
  for _ in {1..150}; do
    ! pdfinfo "$arrived"/*"$mark"*.pdf 2>/dev/null | grep -qx "Pages: *$1" || return 0
    sleep 0.1
  done
  echo "$2 did not arrive on $1 pages"
  exit 1
}

window "$mark"
printed 1 "the report"
keys alt+s t
window '^Rating Table Settings$'
keys alt+s && xdotool type --delay 20 .12
keys Return
timeout 10 xdotool search --sync --onlyvisible --name 'Channel$' windowactivate --sync
printed 3 "the table of 100 rows"
echo "report and table came out of the printer"
