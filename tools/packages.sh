# Sourced by the scripts that need them: installs from Debian's packages what is missing, and says what.

build_packages=(
    g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-svg-dev libxcb1-dev libxcb-xfixes0-dev qcoro-qt6-dev nlohmann-json3-dev libnm-dev
    libpolkit-gobject-1-dev librsvg2-bin qt6-l10n-tools qt6-tools-dev qt6-translations-l10n
)
test_packages=(
    clang-format network-manager polkitd dnsmasq-base dbus dbus-bin iproute2 util-linux bsdutils
    gir1.2-atspi-2.0 at-spi2-core xvfb openbox fonts-dejavu-core xdotool tint2 desktop-file-utils file
    python3-dbus python3-gi appstream man-db clang-tidy cppcheck
)
# What tests/desktops/run needs beside those of the tests, by desktop.
sway_packages=(sway qt6-wayland gir1.2-gtk-3.0 imagemagick)
gnome_packages=(gnome-shell libglib2.0-bin xdg-desktop-portal-gnome xwayland "${sway_packages[@]:1}")
plasma_packages=(kwin-wayland plasma-workspace qtwayland5 xdg-desktop-portal-kde "${sway_packages[@]:1}")
xfce_packages=(xfwm4 xfce4-panel xfce4-settings x11-utils "${sway_packages[@]:2}")
fuzzing_packages=(clang libclang-rt-dev)
benchmark_packages=(
    debhelper libbenchmark-dev network-manager-gnome nm-tray trayer python3-xlib python3-gi gir1.2-atspi-2.0
)
screenshot_packages=(fonts-inter fonts-dejavu-core)

# need_packages PACKAGE...: returns when all of them are installed; ends the script when that cannot be had.
need_packages() {
    local package missing=() privilege=()
    for package in "$@"; do
        [[ $(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null) == installed ]] || missing+=("$package")
    done
    [[ ${#missing[@]} -gt 0 ]] || return 0
    echo "Installing from Debian's packages: ${missing[*]}"
    if [[ $(id -u) != 0 ]]; then
        command -v sudo >/dev/null || { echo "Please install them as root; sudo is not there." >&2; exit 1; }
        privilege=(sudo)
    fi
    "${privilege[@]}" apt-get update -qq
    "${privilege[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}
