# A desktop knows project files by their suffix and, without it, by how they begin; nothing else is taken for one.
# project_files.sh SHARE-FOLDER EXAMPLES
set -eu
here=$(mktemp -d)
trap 'rm -rf "$here"' EXIT
export XDG_DATA_DIRS="$1:/usr/share" XDG_DATA_HOME="$here"

said=$(update-mime-database "$1/mime" 2>&1)
[ -z "$said" ] || { echo "$said"; exit 1; }

# is FILE TYPE
is() {
  type=$(gio info -a standard::content-type "$1" | sed -n 's/^ *standard::content-type: //p')
  [ "$type" = "$2" ] || { echo "$1 is taken for $type, not for $2"; exit 1; }
}
for project in "$2"/*.fwd; do
  is "$project" application/x-flumewise
  cp "$project" "$here/project"
  is "$here/project" application/x-flumewise
done
echo '"Flumewise" is a calculator' >"$here/note"
is "$here/note" text/plain
echo damaged >"$here/damaged.fwd"
is "$here/damaged.fwd" application/x-flumewise
