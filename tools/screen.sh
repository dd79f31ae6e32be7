#!/usr/bin/env bash
# Runs a command on a virtual screen of its own, with a window manager and a session bus, and ends all three after it.
# Usage: tools/screen.sh [WIDTHxHEIGHT] COMMAND [ARGUMENT...]
set -euo pipefail

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

Xvfb -displayfd 3 -screen 0 "${size}x24" -dpi 96 -nolisten tcp -noreset 3>"$state/display" >"$state/display.log" 2>&1 &
processes+=($!)
await display
export DISPLAY=":$answer" XDG_RUNTIME_DIR=$state
unset NO_AT_BRIDGE QT_QPA_PLATFORM WAYLAND_DISPLAY XDG_SESSION_TYPE

dbus-daemon --session --nofork --nopidfile --print-address=3 3>"$state/bus" >"$state/bus.log" 2>&1 &
processes+=($!)
await bus
export DBUS_SESSION_BUS_ADDRESS=$answer

# The first made-up key makes the server tell all that there is another keyboard; a window manager that takes its keys
# anew just then misses those that are pressed.
xdotool key Shift_L

openbox --startup "sh -c 'echo up >\"$state/manager\"'" >"$state/manager.log" 2>&1 &
processes+=($!)
await manager

"$@" &
processes+=($!)
wait $!
