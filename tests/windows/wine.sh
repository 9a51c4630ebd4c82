# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later
#
# For scripts that run programs for Windows on Linux; to be sourced.
# shellcheck shell=bash

# Ends every Windows and whatever the script runs in the background. A script that has more to do at its end sets
# a trap of its own that calls this.
wine_folders=()
end_windows() {
    local folder
    # Those first that would start programs anew.
    # shellcheck disable=SC2046 # one word for each process
    kill $(jobs -p) 2>/dev/null || true
    for folder in "${wine_folders[@]}"; do WINEPREFIX=$folder wineserver -k || true; done
}
trap end_windows EXIT

# start_wine FOLDER: a Windows of its own there, made where it is missing, for every program that follows.
start_wine() {
    # Without a locale in UTF-8, files whose names go beyond ASCII are not found.
    export WINEPREFIX=$1 WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" LC_ALL=C.UTF-8
    wine_folders+=("$1")
    [ ! -e "$1/ready" ] || return 0
    mkdir -p "$1"
    env -u DISPLAY wineboot -i >"$1/log" 2>&1 || { cat "$1/log" && return 1; }
    # Lines are three times too high with what stands in for these.
    cp /usr/share/wine/fonts/{tahoma,tahomabd,marlett,symbol,wingding}.ttf "$1/drive_c/windows/Fonts"
    wineserver -w
    touch "$1/ready"
}

# own_display WIDTHxHEIGHT: an X server for what follows, which ends with the script.
own_display() {
    local number
    number=$(mktemp)
    Xvfb -displayfd 3 -screen 0 "${1}x24" 3>"$number" 2>/dev/null &
    # It may end at once, where it is missing or has no place for what it needs.
    until [ -s "$number" ]; do
        kill -0 $! 2>/dev/null || { echo "Xvfb did not start" >&2 && return 1; }
        sleep 0.1
    done
    DISPLAY=:$(cat "$number")
    export DISPLAY
    rm "$number"
}
