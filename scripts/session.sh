# shellcheck shell=bash
# A desktop session of our own on a virtual display. Whatever is started here is ended by end_session, by its process
# id, with what it started itself.

session_pids=()
session_folder=""

# Prints why the program cannot be shown where the environment says; nothing when it can.
display_trouble() {
    if [ -n "${QT_QPA_PLATFORM:-}" ] && [ "$QT_QPA_PLATFORM" != xcb ]; then
        return
    elif [ -n "${DISPLAY:-}" ] && x11_is_reachable; then
        return
    elif [ -n "${WAYLAND_DISPLAY:-}" ] && wayland_is_reachable; then
        return
    elif [ -n "${DISPLAY:-}" ]; then
        echo "nothing answers at DISPLAY=$DISPLAY"
    elif [ -n "${WAYLAND_DISPLAY:-}" ]; then
        echo "nothing answers at WAYLAND_DISPLAY=$WAYLAND_DISPLAY"
    else
        echo "neither DISPLAY nor WAYLAND_DISPLAY is set"
    fi
}

# Before xdpyinfo is installed, a local server's socket is all that can be told.
x11_is_reachable() {
    if command -v xdpyinfo >/dev/null; then
        timeout 10 xdpyinfo >/dev/null 2>&1
        return
    fi
    local number=${DISPLAY##*:}
    [ "${DISPLAY%%:*}" != "" ] || [ -S "/tmp/.X11-unix/X${number%%.*}" ]
}

wayland_is_reachable() {
    case $WAYLAND_DISPLAY in
    /*) [ -S "$WAYLAND_DISPLAY" ] ;;
    *) [ -S "${XDG_RUNTIME_DIR:-}/$WAYLAND_DISPLAY" ] ;;
    esac
}

# start_in_session NAME COMMAND…: its output goes into the session's folder.
start_in_session() {
    local name=$1
    shift
    "$@" >"$session_folder/$name.log" 2>&1 </dev/null &
    session_pids+=($!)
}

# wait_for_file FILE PID: until the file has something in it; fails when the process ends first.
wait_for_file() {
    local try
    for ((try = 0; try < 150; ++try)); do
        [ ! -s "$1" ] || return 0
        kill -0 "$2" 2>/dev/null || return 1
        sleep 0.1
    done
    return 1
}

# start_virtual_display WIDTHxHEIGHT [OPTION…]: sets DISPLAY. The options are those of Xvfb.
start_virtual_display() {
    local screen=$1
    shift
    session_folder=$(mktemp -d "${TMPDIR:-/tmp}/kestrelfen-session-XXXXXX")
    local number=$session_folder/display
    start_in_session Xvfb Xvfb -displayfd 3 -screen 0 "${screen}x24" -noreset -nolisten tcp "$@" 3>"$number"
    if ! wait_for_file "$number" "${session_pids[-1]}"; then
        echo "No display can be reached, and no virtual one can be started:" >&2
        tail -n 5 "$session_folder/Xvfb.log" >&2
        return 1
    fi
    DISPLAY=:$(cat "$number")
    export DISPLAY
    unset WAYLAND_DISPLAY
}

has_session_bus() {
    [ -n "${DBUS_SESSION_BUS_ADDRESS:-}" ] || [ -S "${XDG_RUNTIME_DIR:-/nowhere}/bus" ]
}

# start_session_bus: sets DBUS_SESSION_BUS_ADDRESS.
start_session_bus() {
    local address=$session_folder/bus-address
    start_in_session dbus-daemon dbus-daemon --session --nofork --nopidfile --print-address=3 3>"$address"
    if ! wait_for_file "$address" "${session_pids[-1]}"; then
        echo "No session bus can be started:" >&2
        tail -n 5 "$session_folder/dbus-daemon.log" >&2
        return 1
    fi
    DBUS_SESSION_BUS_ADDRESS=$(cat "$address")
    export DBUS_SESSION_BUS_ADDRESS
}

# Window manager, a panel with a tray, and what shows notifications.
start_desktop() {
    start_in_session openbox openbox
    start_in_session tint2 tint2 -c scripts/panel.tint2rc
    start_in_session dunst dunst
}

# take_pictures FOLDER SECONDS KEPT: a picture of the display every so often, for as long as it stands.
take_pictures() {
    local folder=$1 pause=$2 kept=$3 picture
    mkdir -p "$folder"
    while sleep "$pause"; do
        picture=$folder/screen-$(date +%Y%m%d-%H%M%S).png
        import -window root "$picture" || return 0
        cp "$picture" "$folder/.latest.png" && mv "$folder/.latest.png" "$folder/latest.png"
        find "$folder" -maxdepth 1 -name 'screen-*.png' | sort -r | tail -n "+$((kept + 1))" | xargs -r rm -f
    done
}

# descendants_of PID: the process ids below it, its own not included.
descendants_of() {
    local child
    cat "/proc/$1"/task/*/children 2>/dev/null | tr ' ' '\n' | while read -r child; do
        echo "$child"
        descendants_of "$child"
    done
}

# Ends what was started last first, so that the display goes when nobody is left on it.
end_session() {
    local index all
    for ((index = ${#session_pids[@]} - 1; index >= 0; --index)); do
        all=("${session_pids[index]}")
        mapfile -t -O 1 all < <(descendants_of "${all[0]}")
        end_processes "${all[@]}"
    done
    session_pids=()
    [ -z "$session_folder" ] || rm -rf "$session_folder"
}

# The hard way where they do not go by themselves.
end_processes() {
    local try
    kill "$@" 2>/dev/null || return 0
    for ((try = 0; try < 60; ++try)); do
        is_any_alive "$@" || return 0
        sleep 0.05
    done
    kill -KILL "$@" 2>/dev/null || true
}

# One that has ended and that nobody has asked about is not alive.
is_any_alive() {
    local pid state
    for pid in "$@"; do
        state=$(sed 's/.*) \(.\).*/\1/' "/proc/$pid/stat" 2>/dev/null) || continue
        [ "$state" = Z ] || return 0
    done
    return 1
}
