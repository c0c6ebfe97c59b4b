# shellcheck shell=bash disable=SC2034
# What has to be installed, and installing it. Debian and Ubuntu only; elsewhere the packages are named
# where something lacks.

packages_to_build=(
    g++ cmake ninja-build pkg-config gettext qt6-base-dev qt6-declarative-dev
    qml6-module-qtqml qml6-module-qtqml-workerscript qml6-module-qtquick
    libxcb1-dev libxcb-dpms0-dev libxcb-res0-dev libxcb-screensaver0-dev
    nlohmann-json3-dev libsqlitecpp-dev libsqlite3-dev
    libpulse-dev
    libwayland-dev libwayland-bin wayland-protocols libxkbcommon-dev
)
# qt6-wayland is for Wayland desktops without an X server.
packages_to_start=(fonts-inter fonts-jetbrains-mono tzdata qt6-wayland)
packages_to_reach_a_display=(x11-utils)
# dbus-x11 is there for dunst, which would otherwise bring systemd's user session.
packages_for_a_desktop=(xvfb openbox tint2 dunst dbus dbus-x11 imagemagick x11-utils xdotool)
packages_to_test=(
    libgtest-dev libgmock-dev libbenchmark-dev clang-format
    "${packages_for_a_desktop[@]}" at-spi2-core xterm x11-xserver-utils python3 python3-dbus python3-dbusmock python3-gi
    pulseaudio pulseaudio-utils
    sway foot wtype grim strace
    desktop-file-utils appstream man-db dpkg-dev file
)
# Ubuntu has it as a snap only; where it is not installed, the tests with a real browser are skipped.
if grep -qsx 'ID=debian' /etc/os-release; then
    packages_to_test+=(chromium)
fi
packages_to_tidy=(clang-tidy)

fedora_packages="gcc-c++ cmake ninja-build pkgconf gettext qt6-qtbase-devel qt6-qtdeclarative-devel \
libxcb-devel json-devel rsms-inter-fonts jetbrains-mono-fonts xorg-x11-server-Xvfb openbox tint2 dunst \
dbus-daemon ImageMagick xdpyinfo gtest-devel gmock-devel google-benchmark-devel clang-tools-extra at-spi2-core xterm \
xdotool xset xrandr xprop xwininfo python3-dbus python3-gobject python3-dbusmock pulseaudio-libs-devel pulseaudio \
pulseaudio-utils sqlitecpp-devel sqlite-devel wayland-devel wayland-protocols-devel libxkbcommon-devel \
qt6-qtwayland desktop-file-utils appstream man-db sway foot wtype grim strace"
arch_packages="gcc cmake ninja pkgconf gettext qt6-base qt6-declarative libxcb nlohmann-json inter-font \
ttf-jetbrains-mono xorg-server-xvfb openbox tint2 dunst dbus imagemagick xorg-xdpyinfo gtest benchmark clang \
at-spi2-core xterm xdotool xorg-xset xorg-xrandr xorg-xprop xorg-xwininfo python-dbus python-gobject python-dbusmock \
libpulse pulseaudio sqlitecpp sqlite wayland wayland-protocols \
libxkbcommon qt6-wayland desktop-file-utils appstream man-db sway foot wtype grim strace"

# Prints those of the packages that are not installed.
missing_packages() {
    local installed
    installed=$(dpkg-query --show --showformat='${db:Status-Status} ${Package}\n' "$@" 2>/dev/null |
        sed -n 's/^installed //p') || true
    printf '%s\n' "$@" | sort -u | grep -vxF -e "$installed" || true
}

# require_packages PACKAGE…: installs what is missing, or tells what is and ends with 1.
require_packages() {
    if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
        require_tools
        return
    fi
    local missing
    mapfile -t missing < <(missing_packages "$@")
    if [ "${#missing[@]}" -eq 0 ]; then
        return
    fi
    if [ -n "${NO_INSTALL:-}" ]; then
        tell_missing "not installed, and NO_INSTALL is set" "${missing[@]}"
    fi
    install_packages "${missing[@]}"
}

tell_missing() {
    local why=$1
    shift
    {
        echo "Missing ($why): $*"
        echo "As root: apt-get update && apt-get install --no-install-recommends $*"
    } >&2
    exit 1
}

install_packages() {
    local become_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || tell_missing "you are not root and there is no sudo" "$@"
        become_root=(sudo)
        [ -t 0 ] || become_root=(sudo -n)
        "${become_root[@]}" true || tell_missing "sudo does not let you install them" "$@"
    fi
    become_root+=(env DEBIAN_FRONTEND=noninteractive NEEDRESTART_MODE=l)
    echo "Installing $# packages and what they need; this may take some minutes: $*"
    local log
    log=$(mktemp)
    if ! apt_install "$@" >"$log" 2>&1 </dev/null; then
        tail -n 20 "$log" >&2
        rm -f "$log"
        tell_missing "apt could not install them, see above" "$@"
    fi
    rm -f "$log"
}

# The lists are fetched anew: an old one names versions that are gone. Without a network the packages may still lie
# in the cache.
apt_install() {
    local wait_for_others=(-o DPkg::Lock::Timeout=300)
    "${become_root[@]}" apt-get "${wait_for_others[@]}" update || true
    "${become_root[@]}" apt-get "${wait_for_others[@]}" install --yes --no-install-recommends "$@"
}

# Where there is no apt: goes on if everything to build with is there already.
require_tools() {
    local tool lacking=()
    for tool in c++ cmake ninja pkg-config msgfmt; do
        command -v "$tool" >/dev/null || lacking+=("$tool")
    done
    for tool in Qt6Core Qt6Quick xcb-dpms xcb-res xcb-screensaver nlohmann_json sqlite3 libpulse \
        wayland-client wayland-cursor wayland-scanner wayland-protocols xkbcommon; do
        pkg-config --exists "$tool" 2>/dev/null || lacking+=("$tool")
    done
    if [ "${#lacking[@]}" -eq 0 ]; then
        return
    fi
    {
        echo "Missing: ${lacking[*]}"
        echo "Packages can be installed by this script on Debian and Ubuntu only. They are"
        echo "  on Debian: ${packages_to_build[*]} ${packages_to_start[*]} ${packages_to_test[*]}"
        echo "  on Fedora: $fedora_packages"
        echo "  on Arch:   $arch_packages"
    } >&2
    exit 1
}
