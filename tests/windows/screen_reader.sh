#!/bin/sh
# screen_reader.sh <program>: reads the program over the accessibility bus, in a session and on a screen of their own.
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
here=$(dirname "$(realpath "$0")")
mkdir -m 700 "$folder/run" "$folder/work"
cd "$folder/work" || exit 1
export HOME="$folder" XDG_RUNTIME_DIR="$folder/run" QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_XCB_GL_INTEGRATION=none LC_ALL=C.UTF-8
unset DBUS_SESSION_BUS_ADDRESS AT_SPI_BUS_ADDRESS
dbus-run-session -- "$here/../support/on_desktop" /usr/bin/python3 "$here/screen_reader.py" "$1"
