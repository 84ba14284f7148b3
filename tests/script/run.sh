#!/bin/sh
# run.sh <source folder> <build folder>: script/run without a display prints cards, and the first start with a display
# after it is still a first start. The scripts work in a scratch project whose release build is the given one.
set -eu
scratch=$(mktemp -d)
program=
trap '[ -z "$program" ] || kill "$program" 2>/dev/null || true; rm -rf "$scratch"' EXIT

mkdir -p "$scratch/script" "$scratch/tools" "$scratch/build/release"
cp "$1/script/run" "$1/script/common" "$scratch/script"
ln -s "$2/src" "$2/examples" "$scratch/build/release"
cp -R "$2/run" "$scratch/build/release/run"
# Nothing is to be installed or built.
for tool in script/bootstrap tools/cmake; do
    printf '#!/bin/sh\n' >"$scratch/$tool"
    chmod +x "$scratch/$tool"
done
touch "$scratch/build/release/CMakeCache.txt"
export PATH="$scratch/tools:$PATH" QT_QPA_PLATFORM=offscreen

env -u DISPLAY -u WAYLAND_DISPLAY "$scratch/script/run" >"$scratch/said"
tail -n 1 "$scratch/said" | grep -q "^The cards are in $scratch/"
head -c 5 "$(tail -n 1 "$scratch/said" | sed 's/^The cards are in //')" | grep -q '^%PDF-'
[ ! -e "$scratch/build/release/run/config.ini" ]

# The first-start dialog comments config.ini as soon as it has found a translation.
DISPLAY=:none "$scratch/script/run" &
program=$!
for _ in $(seq 200); do
    if grep -qs '^;' "$scratch/build/release/run/config.ini"; then
        kill -0 "$program"
        exit 0
    fi
    sleep 0.1
done
echo "The first start with a display was none" >&2
exit 1
