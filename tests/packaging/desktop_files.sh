#!/bin/sh
# desktop_files.sh <project> <share folder of an installation>: what the desktop and its shop of programs show.
set -eu
export LC_ALL=C.UTF-8 # in which the checkers write their marks
changelog=$1/CHANGELOG.md
cd "$2"
entry=applications/quintra.desktop
metadata=metainfo/org.example.quintra.metainfo.xml

fails() {
    echo "$1" >&2
    exit 1
}

is() {
    [ "$1" = "$2" ] || fails "\"$1\" instead of \"$2\""
}

value() {
    grep -F "$1=" "$entry" | sed 's/^[^=]*=//'
}

# Hints are taken as seriously as errors.
is "$(desktop-file-validate "$entry" 2>&1)" ""
is "$(appstreamcli validate --no-net --pedantic "$metadata" 2>&1 | grep .)" "✔ Validation was successful."

for language in it de fr es; do
    [ -n "$(value "GenericName[$language]")" ] || fails "There is no generic name in $language."
    is "$(sed -n "s|.*<summary xml:lang=\"$language\">\(.*\)</summary>|\1|p" "$metadata")" "$(value "Comment[$language]")"
    grep -q "<p xml:lang=\"$language\">" "$metadata" || fails "There is no description in $language."
done
is "$(sed -n 's|.*<summary>\(.*\)</summary>|\1|p' "$metadata")" "$(value Comment)"
is "$(value Keywords)" "bingo;tombola;loto;lotto;"

main="AudioVideo Audio Video Development Education Game Graphics Network Office Science Settings System Utility"
categories=$(value Categories | tr ';' '\n' | grep -cxF "$(echo "$main" | tr ' ' '\n')")
is "$categories" 1

heading=$(grep -m 1 '^## \[[0-9]' "$changelog")
version=${heading#*[}
is "$(sed -n 's/.*<release version=\(.*\)\/>/\1/p' "$metadata")" "\"${version%]*}\" date=\"${heading##* }\""

for size in 16 22 24 32 48 64 128 256; do
    icon=icons/hicolor/${size}x$size/apps/quintra.png
    is "$(od -An -tu4 --endian=big -j16 -N8 "$icon" | tr -s ' ')" " $size $size"
done
grep -q "<svg" icons/hicolor/scalable/apps/quintra.svg
