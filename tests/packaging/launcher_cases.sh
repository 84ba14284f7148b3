#!/bin/sh
# launcher_cases.sh [case...]: run by launcher.sh in a folder that holds an installation, "moved here". Each case has a
# home, a screen and a folder of commands of its own; what the launcher starts only tells where it was started.
set -eu
here=$PWD
installed="$here/moved here"
shared="$installed/share/quintra"
program="$installed/libexec/quintra/quintra"

fails() {
    echo "$1" >&2
    exit 1
}

is() {
    [ "$1" = "$2" ] || fails "\"$1\" instead of \"$2\""
}

# A command that the launcher meets instead of the machine's own.
command_is() {
    cat >"$PATH/$1"
    chmod +x "$PATH/$1"
}

documents_are() {
    command_is xdg-user-dir <<END
#!$sh
[ "\$1" = DOCUMENTS ] && echo "$1"
END
}

# The launcher starts the program in this folder and says nothing.
starts_in() {
    rm -f "$here/started"
    "$installed/bin/quintra" 2>"$here/said" || fails "does not start: $(cat "$here/said")"
    is "$(cat "$here/started")" "$(readlink -f "$1")"
    is "$(cat "$here/said")" ""
}

links_are_ours_in() {
    is "$(readlink "$1/language")" "$shared/language"
    is "$(readlink "$1/manual")" "$shared/manual"
    is "$(readlink "$1/default.png")" "$shared/default.png"
}

link_to_the_folder() {
    readlink "$HOME/.local/state/quintra"
}

# The launcher ends without the program and says so; all that follows is part of what it says.
is_refused() {
    rm -f "$here/started"
    ! "$installed/bin/quintra" 2>"$here/said" || fails "does not say that it failed"
    [ ! -e "$here/started" ] || fails "starts the program"
    for text in "$@"; do
        grep -qF "$text" "$here/said" || fails "\"$text\" is not said, but: $(cat "$here/said")"
    done
}

the_program_is_a_stub() {
    mv "$program" "$program.real"
    cat >"$program" <<END
#!$sh
pwd -P >"$here/started"
END
    chmod +x "$program"
}

# --- the cases --------------------------------------------------------------------------------------------------------

documents_folder() {
    mkdir "$HOME/I miei documenti"
    documents_are "$HOME/I miei documenti"
    starts_in "$HOME/I miei documenti/Quintra"
    links_are_ours_in "$HOME/I miei documenti/Quintra"
    starts_in "$HOME/I miei documenti/Quintra"
    links_are_ours_in "$HOME/I miei documenti/Quintra"
    is "$(find "$HOME" -name Quintra)" "$HOME/I miei documenti/Quintra"
}

no_documents_folder() {
    starts_in "$HOME/Quintra"
    links_are_ours_in "$HOME/Quintra"
}

documents_folder_that_is_gone() {
    documents_are "$HOME/Documents"
    starts_in "$HOME/Quintra"
    is "$(ls "$HOME")" Quintra
}

folder_of_an_earlier_release() {
    mkdir -p "$HOME/.local/share/quintra" "$HOME/Documents"
    echo settings >"$HOME/.local/share/quintra/config.ini"
    documents_are "$HOME/Documents"
    starts_in "$HOME/.local/share/quintra"
    links_are_ours_in "$HOME/.local/share/quintra"
    is "$(cat "$HOME/.local/share/quintra/config.ini")" settings
    is "$(ls "$HOME/Documents")" ""
}

folder_of_an_earlier_release_elsewhere() {
    export XDG_DATA_HOME="$HOME/my data"
    mkdir -p "$XDG_DATA_HOME/quintra"
    starts_in "$XDG_DATA_HOME/quintra"
    is "$(find "$HOME" -name Quintra)" ""
}

# As when the desktop makes its folders later, or names them in another language.
documents_folder_of_another_name() {
    starts_in "$HOME/Quintra"
    mkdir "$HOME/Documents"
    documents_are "$HOME/Documents"
    starts_in "$HOME/Quintra"
    is "$(ls "$HOME/Documents")" ""
}

folder_thrown_away() {
    starts_in "$HOME/Quintra"
    mkdir "$HOME/Documents"
    documents_are "$HOME/Documents"
    rm -r "$HOME/Quintra"
    starts_in "$HOME/Documents/Quintra"
    starts_in "$HOME/Documents/Quintra"
}

folder_on_a_disk_that_is_not_there_today() {
    mkdir -p "$HOME/disk/Documents"
    documents_are "$HOME/disk/Documents"
    starts_in "$HOME/disk/Documents/Quintra"
    mv "$HOME/disk" "$HOME/elsewhere"
    is_refused "$HOME/disk/Documents/Quintra" "$HOME/.local/state/quintra"
    is "$(link_to_the_folder)" "$HOME/disk/Documents/Quintra"
    is "$(ls "$HOME")" elsewhere
    mkdir "$HOME/Quintra" # left from another time
    is_refused "$HOME/disk/Documents/Quintra"
    mv "$HOME/elsewhere" "$HOME/disk"
    starts_in "$HOME/disk/Documents/Quintra"
    rm "$HOME/.local/state/quintra" # as the message advises who will not see that disk again
    rm -r "$HOME/disk"
    starts_in "$HOME/Quintra"
}

folder_that_moved_with_the_documents() {
    mkdir "$HOME/Documents"
    documents_are "$HOME/Documents"
    starts_in "$HOME/Documents/Quintra"
    mv "$HOME/Documents" "$HOME/Dokumente"
    documents_are "$HOME/Dokumente"
    starts_in "$HOME/Dokumente/Quintra"
    is "$(link_to_the_folder)" "$HOME/Dokumente/Quintra"
}

untouched_copy_of_the_picture() {
    mkdir "$HOME/Quintra"
    cp "$shared/default.png" "$HOME/Quintra"
    starts_in "$HOME/Quintra"
    links_are_ours_in "$HOME/Quintra"
}

picture_cut_off_by_a_full_disk() {
    mkdir "$HOME/Quintra"
    for size in 8192 0; do
        head -c $size "$shared/default.png" >"$HOME/torso"
        mv "$HOME/torso" "$HOME/Quintra/default.png"
        starts_in "$HOME/Quintra"
        links_are_ours_in "$HOME/Quintra"
    done
}

picture_of_the_users_own() {
    mkdir "$HOME/Quintra"
    echo "a picture" >"$HOME/picture"
    cat "$shared/default.png" "$HOME/picture" >"$HOME/longer picture"
    for own in "$HOME/picture" "$HOME/longer picture"; do
        cp "$own" "$HOME/Quintra/default.png"
        starts_in "$HOME/Quintra"
        cmp "$own" "$HOME/Quintra/default.png"
    done
}

translations_of_the_users_own() {
    mkdir -p "$HOME/Quintra/language"
    echo mine >"$HOME/Quintra/language/Quintra_it_IT.qm"
    starts_in "$HOME/Quintra"
    is "$(ls "$HOME/Quintra/language")" Quintra_it_IT.qm
    is "$(cat "$HOME/Quintra/language/Quintra_it_IT.qm")" mine
}

links_of_the_users_own() {
    mkdir -p "$HOME/Quintra" "$HOME/translations"
    echo "a picture" >"$HOME/picture"
    ln -s ../picture "$HOME/Quintra/default.png"
    ln -s ../translations "$HOME/Quintra/language"
    starts_in "$HOME/Quintra"
    is "$(readlink "$HOME/Quintra/default.png")" ../picture
    is "$(readlink "$HOME/Quintra/language")" ../translations
    is "$(ls "$HOME/translations")" ""
    mv "$HOME/translations" "$HOME/picture" "$HOME/Quintra" # as on a disk that is not there today
    starts_in "$HOME/Quintra"
    is "$(readlink "$HOME/Quintra/default.png")" ../picture
    is "$(readlink "$HOME/Quintra/language")" ../translations
}

manual_of_the_users_own() {
    mkdir -p "$HOME/Quintra/manual"
    echo mine >"$HOME/Quintra/manual/manual_it.html"
    starts_in "$HOME/Quintra"
    is "$(ls "$HOME/Quintra/manual")" manual_it.html
    is "$(cat "$HOME/Quintra/manual/manual_it.html")" mine
}

# From an installation that is gone, and from one that is still there.
upgrade() {
    mkdir -p "$HOME/Quintra" "$HOME/opt/share/quintra/language"
    for before in /nowhere/share/quintra "$HOME/opt/share/quintra"; do
        ln -sfn "$before/language" "$HOME/Quintra/language"
        ln -sfn "$before/default.png" "$HOME/Quintra/default.png"
        starts_in "$HOME/Quintra"
        links_are_ours_in "$HOME/Quintra"
    done
    is "$(ls "$HOME/opt/share/quintra/language")" ""
}

missing_home() {
    HOME=$HOME/gone
    is_refused "$HOME" "No such file"
    [ ! -e "$HOME" ]
    unset HOME
    is_refused "~"
}

read_only_home() {
    chmod a-w "$HOME"
    is_refused "$HOME/Quintra" "Permission denied"
}

read_only_folder_with_settings() {
    starts_in "$HOME/Quintra"
    echo settings >"$HOME/Quintra/config.ini"
    chmod a-w "$HOME/Quintra"
    starts_in "$HOME/Quintra"
}

read_only_folder_of_an_earlier_release() {
    starts_in "$HOME/Quintra"
    echo settings >"$HOME/Quintra/config.ini"
    rm "$HOME/Quintra/manual"
    chmod a-w "$HOME/Quintra"
    starts_in "$HOME/Quintra"
    [ ! -e "$HOME/Quintra/manual" ]
}

read_only_folder_without_settings() {
    starts_in "$HOME/Quintra"
    chmod a-w "$HOME/Quintra"
    is_refused "$HOME/Quintra" "Permission denied"
}

documents_folder_that_is_closed() {
    mkdir -m 555 "$HOME/Documents"
    documents_are "$HOME/Documents"
    is_refused "$HOME/Documents/Quintra" "Permission denied"
}

message_on_the_screen() {
    HOME=$HOME/gone
    for tool in zenity kdialog xmessage notify-send; do
        command_is "$tool" <<END
#!$sh
printf '%s\n' $tool "\$@" >"$here/shown"
END
        for screen in DISPLAY WAYLAND_DISPLAY; do
            unset DISPLAY WAYLAND_DISPLAY
            export "$screen=:7"
            rm -f "$here/shown"
            is_refused "$HOME"
            is "$(head -n 1 "$here/shown")" "$tool"
            grep -qF "$HOME" "$here/shown"
            grep -qF "No such file" "$here/shown"
        done
        rm "$PATH/$tool"
    done
    rm "$here/shown"
    is_refused "$HOME" # without any tool too
}

message_without_a_screen() {
    HOME=$HOME/gone
    unset DISPLAY WAYLAND_DISPLAY
    command_is zenity <<END
#!$sh
echo zenity >"$here/shown"
END
    is_refused "$HOME"
    [ ! -e "$here/shown" ]
}

message_in_the_users_language() {
    HOME=$HOME/gone
    LC_ALL=de_AT.UTF-8 is_refused "kann in diesem Ordner nicht arbeiten"
    LC_ALL=fr_FR.UTF-8 is_refused "ne peut pas travailler dans ce dossier"
    LC_ALL=es_MX.UTF-8 is_refused "no puede trabajar en esta carpeta"
    LC_ALL=en_US.UTF-8 is_refused "cannot work in this folder"
    LC_ALL=it_IT.UTF-8 is_refused "non riesce a lavorare in questa cartella"
    LC_ALL='' LANG=de_DE.UTF-8 is_refused "kann in diesem Ordner nicht arbeiten"
}

missing_disk_in_the_users_language() {
    mkdir -p "$HOME/.local/state"
    ln -s "$HOME/disk/Quintra" "$HOME/.local/state/quintra"
    LC_ALL=de_AT.UTF-8 is_refused "kann in diesem Ordner nicht arbeiten" "Der Ordner fehlt."
    LC_ALL=fr_FR.UTF-8 is_refused "ne peut pas travailler dans ce dossier" "Le dossier manque."
    LC_ALL=es_MX.UTF-8 is_refused "no puede trabajar en esta carpeta" "Falta la carpeta."
    LC_ALL=en_US.UTF-8 is_refused "cannot work in this folder" "The folder is missing."
    LC_ALL=it_IT.UTF-8 is_refused "non riesce a lavorare in questa cartella" "La cartella manca."
}

# The first-start dialog comments config.ini as soon as it has found a translation.
the_program_itself() {
    mv "$program" "$program.stub"
    cp "$program.real" "$program"
    PATH=$machine_path "$installed/bin/quintra" &
    started=$!
    for _ in $(seq 200); do
        if grep -qs '^;' "$HOME/Quintra/config.ini"; then
            kill "$started"
            mv "$program.stub" "$program"
            return
        fi
        sleep 0.1
    done
    kill "$started"
    fails "did not start with its translations; in its folder: $(ls -l "$HOME/Quintra")"
}

# Needs QUINTRA_FULL_DISK, a small disk of its own.
full_disk() {
    HOME=$QUINTRA_FULL_DISK
    head -c 200000 /dev/zero >"$HOME/much" 2>/dev/null || true
    is_refused "$HOME/Quintra" "No space left on device"
    [ ! -e "$HOME/Quintra/config.ini" ]
    is "$(find "$HOME" -type f)" "$HOME/much"

    rm "$HOME/much"
    starts_in "$HOME/Quintra"
    echo settings >"$HOME/Quintra/config.ini"
    head -c 200000 /dev/zero >"$HOME/much" 2>/dev/null || true
    starts_in "$HOME/Quintra" # to look at the cards, and to print them elsewhere
}

# --- all of them ------------------------------------------------------------------------------------------------------

# What the launcher may need of the machine, and nothing else.
only_these_commands() {
    mkdir "$here/bin-$case"
    for name in cat cmp dirname head ln ls mkdir readlink rm wc; do
        ln -s "$(command -v "$name")" "$here/bin-$case/$name"
    done
    for name in chmod cp find grep mv seq sleep tail; do # of the cases
        ln -s "$(command -v "$name")" "$here/bin-$case/$name"
    done
    PATH=$here/bin-$case
}

run() {
    case=$1
    trap '[ $? -eq 0 ] || echo "$case fails" >&2' EXIT
    machine_path=$PATH
    only_these_commands
    mkdir "$here/home-$case"
    export HOME="$here/home-$case" LC_ALL=C DISPLAY=:7
    unset XDG_DATA_HOME XDG_STATE_HOME LC_MESSAGES LANG LANGUAGE || true
    "$case"
}

sh=$(command -v sh)
the_program_is_a_stub
[ $# -gt 0 ] || set -- documents_folder no_documents_folder documents_folder_that_is_gone folder_of_an_earlier_release \
    folder_of_an_earlier_release_elsewhere documents_folder_of_another_name folder_thrown_away \
    folder_on_a_disk_that_is_not_there_today folder_that_moved_with_the_documents \
    untouched_copy_of_the_picture picture_cut_off_by_a_full_disk picture_of_the_users_own \
    translations_of_the_users_own manual_of_the_users_own links_of_the_users_own upgrade missing_home read_only_home \
    read_only_folder_with_settings read_only_folder_of_an_earlier_release read_only_folder_without_settings \
    documents_folder_that_is_closed \
    message_on_the_screen message_without_a_screen message_in_the_users_language \
    missing_disk_in_the_users_language the_program_itself
failed=0
set +e # in the condition of || it would hold for the case too
for name in "$@"; do
    (
        set -e
        run "$name"
    )
    [ $? -eq 0 ] || failed=1
done
exit $failed
