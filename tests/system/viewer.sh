# SPDX-FileCopyrightText: 2026 Norvale
# SPDX-License-Identifier: GPL-3.0-or-later
#
# For scripts that drive the real viewer on an X server of its own; to be sourced.
# shellcheck shell=bash

# on_own_display WIDTHxHEIGHT SCRIPT ARGUMENT...: runs the script again on an X server of that size, which keeps
# what is set before the viewer starts.
on_own_display() {
    local size=$1
    shift
    [ -z "${OWN_DISPLAY:-}" ] || return 0
    export OWN_DISPLAY=$size
    # Where there is no bus, the toolkit would start one, which outlives it and leaves folders in its home.
    export DBUS_SESSION_BUS_ADDRESS=${DBUS_SESSION_BUS_ADDRESS:-disabled:}
    # A free number that is looked for may be taken by another one meanwhile; a process has its own.
    exec xvfb-run -n "$((100 + $$ % 20000))" -s "-screen 0 ${size}x24 -dpi 96 -noreset" "$@"
}

# start_viewer VIEWER RECORDING: starts it over the whole display, with settings and folders of its own,
# and waits for its window. Sets $process, $window and $home.
start_viewer() {
    home=$(mktemp -d)
    trap 'rm -rf "$home"' EXIT
    mkdir -p "$home/Norvale"
    printf '[General]\npos=@Point(0 0)\nsize=@Size(%s)\n' "${OWN_DISPLAY/x/ }" >"$home/Norvale/Wavorin.conf"
    export HOME=$home XDG_CONFIG_HOME=$home XDG_DATA_HOME=$home XDG_RUNTIME_DIR=$home QT_QPA_PLATFORM=xcb
    "$1" "$2" &
    process=$!
    within 60 titled '^Wavorin$' || fail "no window"
    window=$(tail -n 1 "$home/window")
    xdotool windowfocus "$window"
    sleep 1
}

fail() {
    import -window root "${output:-.}/failed.png"
    echo "FAILED: $1 (see ${output:-.}/failed.png)"
    exit 1
}

within() { # within SECONDS COMMAND...: repeats the command until it succeeds
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.1
    done
}

titled() { xdotool search --onlyvisible --name "$1" >"$home/window" 2>/dev/null; }

shot() { import -window root "${output:-.}/$1.png"; }

different_pixels() { # of two screenshots
    local pixels
    pixels=$(compare -metric AE "$output/$1.png" "$output/$2.png" null: 2>&1 || true)
    printf '%.0f' "${pixels%% *}" || fail "$1 and $2 cannot be compared: $pixels"
}

differs() { # differs PICTURE NEW PIXELS: takes a new one and tells whether more pixels than that changed
    shot "$2"
    [ "$(different_pixels "$1" "$2")" -gt "$3" ]
}

menu() { xdotool windowfocus "$window" key "alt+$1" sleep 0.4 key "$2"; } # by the letters of a menu and an entry

click() { xdotool mousemove "$1" "$2" click 1; }

double_click() { xdotool mousemove "$1" "$2" click --repeat 2 --delay 60 1; }

drag() { # drag X Y X Y
    xdotool mousemove "$1" "$2" mousedown 1 mousemove $((($1 + $3) / 2)) $((($2 + $4) / 2)) \
        mousemove "$3" "$4" mouseup 1
}

open_recording() { # open_recording PATH [NAME IN THE TITLE]: through the dialog
    xdotool windowfocus "$window" key ctrl+o
    within 10 titled '^Open File$' || fail "no Open dialog"
    sleep 0.3
    xdotool type --delay 5 "$1"
    xdotool key Return
    within 60 titled "^Wavorin - ${2:-$(basename "$1")}\$" || fail "$1 did not open"
    xdotool windowfocus "$window"
}

quit_viewer() {
    xdotool windowfocus "$window" key ctrl+q
    within 20 bash -c "! kill -0 $process 2>/dev/null" || fail "the viewer did not quit"
    wait "$process" || fail "the viewer ended with status $?"
}
