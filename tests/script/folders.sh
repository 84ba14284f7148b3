#!/bin/sh
# folders.sh <source folder>: includes lead from folder to folder of src/ without a way back, save for the two pairs that
# know each other on purpose.
set -eu
cd "$1/src"

# One line a pair: a folder, and another that it includes.
pairs=$(grep -H '^#include "[a-z]*/' */*.h */*.cpp |
    sed -n 's#^\([a-z]*\)/[^:]*:.include "\([a-z]*\)/\([^"]*\)"#\1 \2 \3#p' |
    awk '$1 == $2 { next }
         $1 == "settings" && ($2 == "msgarea" || $3 == "GUtils.h") { next }
         { print $1, $2 }' | sort -u)
[ "$(echo "$pairs" | wc -l)" -gt 10 ] || { echo "The includes were not found." >&2; exit 1; }
echo "$pairs" | tsort >/dev/null
