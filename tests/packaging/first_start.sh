#!/bin/sh
# first_start.sh: on a desktop, an ordinary user starts the installed program for the first time, in German.
set -eu
program=
trap '[ -z "$program" ] || kill "$program" 2>/dev/null || true' EXIT

# Waits until a command succeeds.
wait_for() {
    for _ in $(seq 100); do
        ! "$@" || return 0
        sleep 0.1
    done
    echo "Waited in vain for: $*" >&2
    ls -la "$HOME" "$HOME/Quintra" >&2
    exit 1
}

visible() {
    xdotool search --onlyvisible --name '^Quintra v[0-9.]*$' 2>/dev/null
}

other_than() {
    main=$(visible) && [ "$main" != "$1" ]
}

[ "$(id -u)" -ne 0 ]
quintra &
program=$!
wait_for visible >"$HOME/dialog"
dialog=$(cat "$HOME/dialog")
grep -q "^;Zahlen" "$HOME/Quintra/config.ini"
[ -s "$HOME/Quintra/default.png" ]
[ -s "$HOME/Quintra/manual/manual_en.html" ]
xdotool windowactivate --sync "$dialog" key --window "$dialog" Return
wait_for other_than "$dialog"
xprop -id "$main" WM_CLASS | grep -q '"quintra", "Quintra"'
kill -0 "$program"
