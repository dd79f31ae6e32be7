# shellcheck shell=bash
# The Debian packages that the commands need, and their installation. Sourced by run, test and .ci/run.

# shellcheck disable=SC2034  # the lists are for those who source this
{
    build_packages=(g++ cmake ninja-build ccache qt6-base-dev qt6-multimedia-dev qt6-tools-dev qt6-l10n-tools qt6-translations-l10n
        libgtest-dev liblzma-dev fonts-dejavu-core python3)
    screen_packages=(xvfb openbox dbus-daemon at-spi2-core gir1.2-atspi-2.0 python3-gi xdotool imagemagick)
    test_packages=(openssl pulseaudio pulseaudio-utils x11-session-utils x11-xserver-utils weston qt6-wayland orca)
    package_packages=(qt6-wayland libssl3 dpkg-dev file lintian desktop-file-utils appstream devscripts python3-xlib)
    check_packages=(clang-format clang-tidy clang-14 libclang-rt-14-dev shellcheck git)
}

# install_missing PACKAGE...: nothing is run, and nobody is asked, when all are there.
install_missing() {
    command -v dpkg-query >/dev/null || {
        echo "This is no Debian: install the like of these yourself: $*" >&2
        return 0
    }
    local package known missing=() as_root=()
    # dpkg-query fails when it doesn't know one of them, which is no fault here.
    known=$(dpkg-query -W -f '${db:Status-Abbrev}${Package}\n' "$@" 2>&1 || true)
    for package; do
        grep -qx "ii $package" <<<"$known" || missing+=("$package")
    done
    ((${#missing[@]})) || return 0

    if ((EUID)); then
        command -v sudo >/dev/null || {
            echo "Packages are missing, and there is no sudo. As root: apt-get install ${missing[*]}" >&2
            return 1
        }
        as_root=(sudo)
    fi
    echo "Installing with ${as_root[*]} apt-get: ${missing[*]}"
    "${as_root[@]}" apt-get -q update || echo "apt-get update had trouble; going on with the lists at hand" >&2
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y install --no-install-recommends "${missing[@]}"
}

# configure PRESET: runs CMake unless its last run knew every CMakeLists.txt as it is now.
configure() {
    local made=build/$1/build.ninja
    [[ -f $made && -z $(find . -path ./build -prune -o \( -name CMakeLists.txt -o -name CMakePresets.json \) -newer "$made" -print) ]] ||
        cmake --preset "$1"
}
