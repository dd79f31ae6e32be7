#!/usr/bin/env bash
# Makes the packages, twice, and compares them; checks them as a distribution would; and proves on a clean system of its
# own that the archive runs there from a folder with an odd name, and that the Debian package installs, starts from its
# entry in the desktop's menu and goes away without a trace but the preferences.
#
# The clean system is kept in build/package/root, and is made anew when that folder is removed. It takes the rights of
# root; where it can't be made, that part is skipped, and the last line says so. Pictures are left in build/package, the
# second build in build/package/elsewhere.
set -Eeuo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source tools/packages.sh

state=$PWD/build/package
elsewhere=$state/elsewhere
if [[ ${1-} != --on-screen ]]; then
    install_missing "${build_packages[@]}" "${screen_packages[@]}" "${test_packages[@]}" "${package_packages[@]}"
    SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/changelog -S Timestamp)
    export SOURCE_DATE_EPOCH
    make_packages() { # make_packages OPTION OF CMAKE...
        rm -rf build/packages
        (cmake --preset release "$@" && cmake --build --preset release && cpack --preset release) >build/packages.log 2>&1 ||
            { cat build/packages.log && return 1; }
    }
    mkdir -p "$elsewhere/build"
    find "$elsewhere" -mindepth 1 -maxdepth 1 ! -name build -exec rm -r {} +
    tar --create --exclude=./build --exclude=./.git . | tar --extract --directory "$elsewhere"
    make_packages
    (cd "$elsewhere" && CCACHE_DISABLE=1 make_packages -DTARNIVEL_TESTS=OFF)
    exec tools/screen.sh "$0" --on-screen
fi

failed() { echo "FAILED at line $1: ${2%%$'\n'*}" >&2; }
trap 'failed "$LINENO" "$BASH_COMMAND"' ERR
id=fr.kavesti.tarnivel
deb=$(echo build/packages/*.deb)
root=$state/root

# --- The files as they are.

for package in build/packages/tarnivel*; do
    cmp "$package" "$elsewhere/$package"
done
archive="$state/Dossier d'été"
rm -rf "$archive"
mkdir "$archive"
tar -xf build/packages/*.tar.gz -C "$archive" --strip-components 1
programs=("$archive/bin/tarnivel" "$archive/lib/tarnivel/modules/libtarnivel_sound.so")

lintian --allow-root --fail-on error,warning "$deb"
faults=$(desktop-file-validate "$archive/share/applications/$id.desktop" 2>&1)
[[ ! $faults ]] || { echo "$faults" && false; }
appstreamcli validate --no-net --strict "$archive/share/metainfo/$id.metainfo.xml"
# Debian 12 itself isn't built for control flow protection.
hardening-check --quiet --nocfprotection "${programs[@]}"
paths=$(strings -a "${programs[@]}" | grep -F -e "$PWD" -e /build/ -e "${HOME:-/home}/" || true)
[[ ! $paths ]] || { echo "The programs hold paths of this machine: $paths" && false; }
echo "ok      the files of the packages"

# --- The clean system.

skip() {
    echo "SKIPPED the packages on a clean system: $1"
    exit 0
}

# inside COMMAND...: runs it in the clean system, with processes of its own where mounts are allowed.
separate=(unshare --pid --fork --kill-child --mount-proc="$root/proc")
inside() {
    "${separate[@]}" chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DISPLAY="$DISPLAY" \
        DEBIAN_FRONTEND=noninteractive "$@"
}
apt() { inside apt-get -q -y --no-install-recommends "$@"; }

# What every desktop has, besides glibc: the graphics driver, the connection to its screen, fonts, keyboards.
desktop=(libstdc++6 libegl1 libglx0 libx11-xcb1 libsm6 libwayland-client0 libwayland-cursor0 libwayland-egl1
    fontconfig-config fonts-dejavu-core libx11-data xkb-data)

# The essential packages and apt, from where this machine has its own: unpacked all at once, and then set up in there.
make_root() {
    local sources
    # shellcheck disable=SC2016  # apt-get fills them in
    sources=$(apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian')
    [[ $sources ]] || { echo "apt knows no source of Debian; does it want apt-get update?" && return 1; }
    rm -rf "$root"
    mkdir -p "$root"/{etc/apt/{apt.conf,preferences}.d,var/{lib/{dpkg,apt/lists/partial},cache/apt/archives/partial}} &&
        mkdir -p "$root"/{dev,proc,usr/{bin,sbin,lib,lib64}} && touch "$root/var/lib/dpkg/status" || return
    echo "$sources" >"$root/etc/apt/sources.list"
    cp -r /etc/apt/trusted.gpg.d "$root/etc/apt/"
    apt-config dump | grep -E '^Acquire::(https?|Retries)' >"$root/etc/apt/apt.conf.d/90machine"
    printf '%s\n' "Dir \"$root/\";" "Dir::State::status \"$root/var/lib/dpkg/status\";" 'APT::Sandbox::User "root";' \
        >"$state/apt.conf"
    local -x APT_CONFIG=$state/apt.conf
    apt-get -q update && apt-get -q -y --no-install-recommends --download-only install \
        '?essential' apt usr-is-merged || return

    local name file
    for name in bin sbin lib lib64; do ln -s "usr/$name" "$root/$name"; done
    mknod -m 666 "$root/dev/null" c 1 3 && mknod -m 666 "$root/dev/urandom" c 1 9 || return
    for file in "$root"/var/cache/apt/archives/*.deb; do
        dpkg-deb --fsys-tarfile "$file" | tar -x -C "$root" --keep-directory-symlink || return
    done
    cp /etc/resolv.conf /etc/hosts "$root/etc/"
    echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/speed"
    inside sh -c 'dpkg --install --force-depends /var/cache/apt/archives/*.deb' && apt update && apt install "${desktop[@]}" &&
        echo "${desktop[*]}" >"$root/made"
}

((EUID == 0)) || skip "it takes the rights of root"
mkdir -p "$root/proc"
"${separate[@]}" true 2>/dev/null || { separate=(); }
grep -qsx "${desktop[*]}" "$root/made" || make_root >"$state/root.log" 2>&1 || skip "it can't be made here, see $state/root.log"

apt update >"$state/apt.log" 2>&1 || echo "apt-get update had trouble; going on with the lists at hand"
apt purge --autoremove tarnivel >>"$state/apt.log" 2>&1 || true # what a failed run has left
rm -rf "$root/home/pilot"

if ((${#separate[@]})); then
    mkdir -p "$root/opt"
    mv "$archive" "$root/opt/"
    PYTHONDONTWRITEBYTECODE=1 PYTHONPATH=tools /usr/bin/python3 tests/e2e/standalone.py "$root" "/opt/${archive##*/}" \
        "$state/archive.png"
    rm -r "$root/opt/${archive##*/}"
    echo "ok      the archive runs on a clean system, in a folder with an odd name"
else
    echo "SKIPPED the archive on a clean system: mounts are refused"
fi

install -d -m 700 -o 1000 -g 1000 "$root/home/pilot"
everything() { find "$root" -regex "$root/\(var\|home\|proc\)/.*" -prune -o -print | sort; }
everything >"$state/before"
cp "$deb" "$root/var/tmp/tarnivel.deb"
apt install /var/tmp/tarnivel.deb >>"$state/apt.log" 2>&1 || { tail "$state/apt.log" && false; }

entry=$root/usr/share/applications/$id.desktop
icon=$(sed -n 's/^Icon=//p' "$entry")
command=$(sed -n 's/^Exec=//p' "$entry" | sed 's/ *%[a-zA-Z]//g')
[[ -s $root/usr/share/icons/hicolor/48x48/apps/$icon.png ]]
inside chroot --userspec=1000:1000 / env HOME=/home/pilot XDG_RUNTIME_DIR=/home/pilot sh -c "cd; exec timeout 100 $command" &
window=$(timeout 60 xdotool search --sync --onlyvisible --class '^tarnivel$')
xdotool windowactivate --sync "$window"
for ((try = 0; try < 100; try++)); do # until it is painted
    import -window "$window" "$state/installed.png"
    (($(identify -format %k "$state/installed.png") < 30)) || break
    sleep 0.1
done
((try < 100))
/usr/bin/python3 - "$window" <<'END'
import sys
from Xlib import display

screen = display.Display()
window = screen.create_resource_object("window", int(sys.argv[1]))
pixels = window.get_full_property(screen.intern_atom("_NET_WM_ICON"), 0).value
# What the window manager gives to windows without an icon of their own has another size.
assert len(pixels) == sum(2 + size * size for size in (16, 32, 64)), "the window has no icon, or another"
END
xdotool key alt+F4
wait $!
find "$root/home/pilot" -name 'Tarnivel Prefs.txt' | grep -q .
echo "ok      the Debian package starts on a clean system from its entry in the menu"

apt purge --autoremove tarnivel >>"$state/apt.log" 2>&1
everything | diff "$state/before" -
rm "$root/var/tmp/tarnivel.deb"
left=$(find "$root" -path "$root/home" -prune -o -iname '*tarnivel*' -print)
[[ ! $left ]] || { echo "The package has left $left" && false; }
find "$root/home/pilot" -name 'Tarnivel Prefs.txt' | grep -q .
echo "ok      the Debian package goes away, and leaves the preferences"
