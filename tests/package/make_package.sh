# Makes the package of a built tree and unpacks it: make_package.sh CPACK BUILD-FOLDER FOLDER
set -eu
rm -rf "$3"
cd "$2"
"$1" -B "$3" >"$2/cpack.log" 2>&1 || { cat "$2/cpack.log"; exit 1; }
dpkg-deb -x "$3"/*.deb "$3/unpacked"
