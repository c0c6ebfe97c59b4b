# shellcheck shell=bash
# Configuring and building with a preset. Both commands share build/: what ./test adds to it stays, so that neither
# makes the other build anew.

# require_writable FOLDER: ends with 1 where another user's files are in the way.
require_writable() {
    if [ -e "$1" ] && [ ! -w "$1" ]; then
        echo "$PWD/$1 belongs to $(stat -c %U "$1") and cannot be written to: remove it first." >&2
        exit 1
    fi
}

# configure PRESET FOLDER [OPTION…]
configure() {
    local preset=$1 folder=$2
    shift 2
    require_writable "$folder"
    local cache=$folder/CMakeCache.txt
    if [ -e "$cache" ] && ! grep -qxF "CMAKE_HOME_DIRECTORY:INTERNAL=$(pwd -P)" "$cache"; then
        set -- --fresh "$@"
    fi
    mkdir -p "$folder"
    if ! cmake --preset "$preset" "$@" >"$folder/configure.log" 2>&1 </dev/null; then
        cat "$folder/configure.log" >&2
        return 1
    fi
}

# build FOLDER [TARGET…]: quiet where nobody watches.
build() {
    local folder=$1 quiet=()
    shift
    [ -t 1 ] || quiet=(-- --quiet)
    cmake --build "$folder" --parallel "$(nproc)" ${1:+--target "$@"} "${quiet[@]}" </dev/null
}
