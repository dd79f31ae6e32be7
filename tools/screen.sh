#!/usr/bin/env bash
# Runs a command on a virtual screen of its own, with a window manager and a session bus, and ends all of them after it.
# Usage: tools/screen.sh [--wayland] [WIDTHxHEIGHT] COMMAND [ARGUMENT...]
# With --wayland it is one of Wayland, which has neither keyboard nor mouse; without weston it ends with 77.
set -euo pipefail

kind=x11
if [[ $1 == --wayland ]]; then
    kind=wayland
    shift
    command -v weston >/dev/null || {
        echo "skipped: there is no weston"
        exit 77
    }
fi

size=1280x900
if [[ $1 =~ ^[0-9]+x[0-9]+$ ]]; then
    size=$1
    shift
fi

state=$(mktemp -d)
processes=()
clean_up() {
    trap - EXIT
    kill "${processes[@]}" 2>"$state/late" || true
    wait
    rm -rf "$state"
}
trap clean_up EXIT
trap 'exit 143' INT TERM HUP

# Each of them writes into its pipe when it is ready; an early end of one leaves the pipe empty.
mkfifo "$state/display" "$state/bus" "$state/manager"
await() {
    read -r -t 20 answer <>"$state/$1" || {
        echo "tools/screen.sh: the $1 did not come up:" >&2
        cat "$state/$1.log" >&2
        exit 1
    }
}

export XDG_RUNTIME_DIR=$state
unset NO_AT_BRIDGE QT_QPA_PLATFORM WAYLAND_DISPLAY XDG_SESSION_TYPE DISPLAY

start_x11() {
    Xvfb -displayfd 3 -screen 0 "${size}x24" -dpi 96 -nolisten tcp -noreset 3>"$state/display" >"$state/display.log" 2>&1 &
    processes+=($!)
    await display
    export DISPLAY=":$answer"

    # The first made-up key makes the server tell all that there is another keyboard; a window manager that takes its
    # keys anew just then misses those that are pressed.
    xdotool key Shift_L

    openbox --startup "sh -c 'echo up >\"$state/manager\"'" >"$state/manager.log" 2>&1 &
    processes+=($!)
    await manager
}

start_wayland() {
    printf '#!/bin/sh\necho up >"%s/display"\n' "$state" >"$state/ready"
    chmod +x "$state/ready"
    printf '[shell]\npanel-position=none\n[autolaunch]\npath=%s/ready\n' "$state" >"$state/weston.ini"
    weston --backend=headless-backend.so --width="${size%x*}" --height="${size#*x}" --idle-time=0 --socket=wayland \
        --config="$state/weston.ini" >"$state/display.log" 2>&1 &
    processes+=($!)
    await display
    export WAYLAND_DISPLAY=wayland
}

"start_$kind"

dbus-daemon --session --nofork --nopidfile --print-address=3 3>"$state/bus" >"$state/bus.log" 2>&1 &
processes+=($!)
await bus
export DBUS_SESSION_BUS_ADDRESS=$answer

"$@" &
processes+=($!)
wait $!
