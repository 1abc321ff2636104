# Makes the binary package of a built tree and unpacks it: make_package.sh SOURCE-FOLDER BUILD-FOLDER FOLDER
set -eu
rm -rf "$3"
mkdir -p "$3/flumewise"
cp -r "$2/packaging/debian" "$1/CHANGELOG.md" "$3/flumewise"
cd "$3/flumewise"
# Without the symbols for debuggers, which would take longer than the rest, and compressed quickly.
export BUILD=$2 DEB_BUILD_OPTIONS=noautodbgsym DPKG_DEB_COMPRESSOR_TYPE=gzip
dpkg-buildpackage --build=binary --no-check-builddeps --no-sign --no-pre-clean >"$3/log" 2>&1 || {
  cat "$3/log"
  exit 1
}
dpkg-deb -x "$3"/flumewise_*.deb "$3/unpacked"
