#!/bin/bash
# Runs a command on a display that nobody sees, with a window manager and a session bus of its own:
# scripts/on-virtual-display.sh COMMAND [ARGUMENT...]
set -euo pipefail

work=$(mktemp -d)
children=()
clean_up() {
    [[ ${#children[@]} -eq 0 ]] || kill "${children[@]}" 2>/dev/null || true
    wait
    rm -rf "$work"
}
trap clean_up EXIT
trap 'exit 130' INT TERM

wait_until() { # SECONDS WHAT COMMAND...
    local deadline=$((SECONDS + $1)) what=$2
    shift 2
    until "$@" >/dev/null 2>&1; do
        if ((SECONDS >= deadline)); then
            echo "Waited in vain for $what." >&2
            cat "$work"/*.log >&2
            exit 1
        fi
        sleep 0.05
    done
}

# The server chooses a free number itself and writes it down once it is ready.
mkfifo "$work/number"
Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp -noreset 3>"$work/number" >"$work/server.log" 2>&1 &
children+=($!)
if ! read -r -t 60 number <"$work/number"; then
    echo "The virtual display did not start." >&2
    cat "$work/server.log" >&2
    exit 1
fi
export DISPLAY=":$number"
export XDG_RUNTIME_DIR=$work
export QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY XAUTHORITY SESSION_MANAGER

XDG_CONFIG_HOME=$work openbox >"$work/window-manager.log" 2>&1 &
children+=($!)
wait_until 60 "the window manager" xdotool get_num_desktops

# The command writes where it would have written; what the bus and its services have to say is shown only when it fails.
code=0
dbus-run-session -- bash -c 'exec "$@" >&3 2>&4 3>&- 4>&-' on-virtual-display "$@" 3>&1 4>&2 &>"$work/bus.log" || code=$?
[[ $code -eq 0 ]] || cat "$work/bus.log" >&2
exit $code
