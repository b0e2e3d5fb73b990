# SPDX-FileCopyrightText: 2026 The ZEVGlobalUtils authors
# SPDX-License-Identifier: MIT

# The packages of Debian 12, and how they come onto the machine. Sourced by the other scripts.

build_packages=(
    g++ cmake ninja-build ccache pkg-config
    qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libqt6opengl6-dev libgl1-mesa-dev
    qt6-translations-l10n libicu-dev libglib2.0-dev libtag1-dev libxcb1-dev libjpeg62-turbo-dev qt6-image-formats-plugins
)
# Without a display of its own, a machine also lacks the server and the fonts.
display_packages=(xvfb xauth fonts-dejavu-core fonts-ipafont-gothic fonts-noto-color-emoji)
# A small desktop for the tests in tests/desktop, and what looks at the files that an installation brings.
test_packages=(openbox xdotool thunar dbus-daemon weston qt6-wayland
    desktop-file-utils appstream)
# What makes and mounts the volumes of tests/volumes.
volume_packages=(xfsprogs btrfs-progs exfatprogs exfat-fuse ntfs-3g bindfs fuse3)
bench_packages=(libbenchmark-dev libpcre2-dev)
check_packages=(git clang-format clang-tidy doxygen reuse codespell)

install_packages() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q ' installed$' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing ${missing[*]}"
    local as_root=()
    [ "$(id -u)" -eq 0 ] || as_root=(sudo)
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
}
