#!/usr/bin/env bash
# Installs the package, opens the window from its desktop entry and a project by its type, and purges the package:
# nothing but the user's settings is left. All of it on a copy of the machine that vanishes with the trial.
# install_trial.sh FOLDER-OF-THE-PACKAGE ID
set -euo pipefail

# Everything that lies where packages put something; what dpkg keeps of its own lists aside.
files() {
  find /etc /opt /usr /var -xdev -not -path '/var/lib/dpkg/*-old' -not -path '/var/cache/*' | sort
}

# shown TITLE: waits for the window of that title and tells its number.
shown() {
  timeout 60 xdotool search --sync --onlyvisible --name "$1" | tail -n 1
}

# used TITLE: opens the manual in the window of that title, closes both as a person does, and waits for its program's
# end. The manual comes from a library and a file of the package.
used() {
  local window manual program
  window=$(shown "$1")
  program=$(xdotool getwindowpid "$window")
  timeout 60 xdotool windowactivate --sync "$window" key F1
  manual=$(shown 'Flumewise Help')
  timeout 60 xdotool windowactivate --sync "$manual" key Escape
  timeout 60 xdotool windowactivate --sync "$window" key ctrl+q
  timeout 60 tail -s 0.1 -f /dev/null --pid "$program"
}

windows() {
  openbox --sm-disable 2>/dev/null &
  until xprop -root _NET_SUPPORTING_WM_CHECK | grep -q "#"; do sleep 0.1; done
  gio launch "/usr/share/applications/$1.desktop"
  used 'Flumewise - Untitled'
  gio open /usr/share/doc/flumewise/examples/box-culvert.fwd
  used 'Flumewise - box-culvert'
}

# on_the_copy PACKAGE ID
on_the_copy() {
  export HOME=/home/trial LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=/home/trial/run
  unset XDG_CONFIG_HOME XDG_DATA_HOME XDG_DATA_DIRS WAYLAND_DISPLAY
  mkdir -p -m 700 "$XDG_RUNTIME_DIR"
  rm -f /var/lib/man-db/auto-update  # an index of all manual pages would take seconds
  dpkg --purge flumewise >/dev/null 2>&1
  files >"$HOME/before"
  dpkg -i "$1" >"$HOME/log" 2>&1 || { cat "$HOME/log"; return 1; }
  xvfb-run -a -s "-screen 0 1280x900x24 -nolisten tcp" dbus-run-session -- \
    bash -euc "$(declare -f shown used windows); windows $2"
  dpkg --purge flumewise >>"$HOME/log" 2>&1
  diff "$HOME/before" <(files)
  if grep -rli flumewise /usr/share/applications /usr/share/mime /usr/share/icons; then
    echo "A list of the desktop still names the program."
    return 1
  fi
  test -f "$HOME/.config/flumewise/settings.ini"
}

# copy_of_the_machine FOLDER: a copy on which only new files take room, under FOLDER/root. It has no other partitions.
copy_of_the_machine() {
  ! mountpoint -q /usr && ! mountpoint -q /var && mount -t tmpfs tmpfs "$1" && mkdir "$1"/{upper,work,root} &&
    mount -t overlay -o "lowerdir=/,upperdir=$1/upper,workdir=$1/work" overlay "$1/root" &&
    mount --rbind /dev "$1/root/dev" && mount -t proc proc "$1/root/proc"
}

if [ "$(id -u)" -ne 0 ]; then
  echo "left out: only root can install a package"
  exit
fi
if ! unshare --mount --pid --net --fork true 2>/dev/null; then
  echo "left out: this machine lets nobody mount"
  exit
fi
folder=$(mktemp -d)
trap 'rmdir "$folder"' EXIT
export -f files shown used windows on_the_copy copy_of_the_machine
# A network of its own too: displays of the same number, begun elsewhere, would meet there.
unshare --mount --pid --net --fork --kill-child bash -euo pipefail -c '
  copy_of_the_machine "$1" 2>/dev/null || { echo "left out: this machine cannot be copied by an overlay"; exit; }
  package=$(echo "$2"/*.deb)
  mkdir "$1/root/home/trial"
  cp "$package" "$1/root/home/trial/flumewise.deb"
  chroot "$1/root" bash -euo pipefail -c "on_the_copy /home/trial/flumewise.deb $3"' trial "$folder" "$1" "$2"
