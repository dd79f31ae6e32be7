"""Time from exec to the painted window, and memory, of the program beside nearly empty windows and two small editors.

Usage: tools/screen.sh /usr/bin/python3 bench/start/start.py PROGRAM EMPTY_WINDOW [RUNS]
Needs the Debian package python3-xlib, and measures featherpad and mousepad where they are installed.

All are started in turn, RUNS times (15), in a home folder that holds nothing. A window counts as there when the window
manager lists it and the middle row of its pixels isn't black any more; that is looked at every millisecond. Memory is
read one second later: PSS shares the pages of libraries among those who map them, RSS counts them in full.
"""

import os
import pathlib
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

from Xlib import X, display, error

SETTLE = 1.0  # seconds until memory is read
LIMIT = 30.0  # seconds until a start counts as failed


class Screen:
    def __init__(self):
        self.display = display.Display()
        self.root = self.display.screen().root
        self.list, self.pid = (self.display.intern_atom(name) for name in ("_NET_CLIENT_LIST", "_NET_WM_PID"))

    def _property(self, window, atom):
        found = window.get_full_property(atom, X.AnyPropertyType)
        return found.value if found else []

    def first_size(self):
        """Width and height of the program's window at its first start."""
        whole = self.display.screen()
        return max(720, whole.width_in_pixels - 60), max(400, whole.height_in_pixels - 60)

    def shows(self, pid):
        """Whether a window of the process is on the screen and painted."""
        for identifier in self._property(self.root, self.list):
            window = self.display.create_resource_object("window", identifier)
            try:
                if pid in self._property(window, self.pid) and self._painted(window):
                    return True
            except (error.BadWindow, error.BadDrawable, error.BadMatch):
                pass  # it isn't mapped yet, or no more
        return False

    def _painted(self, window):
        size = window.get_geometry()
        row = window.get_image(0, size.height // 2, size.width, 1, X.ZPixmap, 0x00FFFFFF)
        return any(row.data[0::4]) or any(row.data[1::4]) or any(row.data[2::4])


def memory(pid):
    """PSS and RSS in MiB."""
    lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
    values = {line.split()[0]: int(line.split()[1]) for line in lines[1:]}
    return values["Pss:"] / 1024, values["Rss:"] / 1024


def measure(screen, command, home):
    environment = dict(os.environ, HOME=home, XDG_CONFIG_HOME=f"{home}/.config", XDG_DATA_HOME=f"{home}/.local/share")
    start = time.perf_counter()
    process = subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        while not screen.shows(process.pid):
            if process.poll() is not None or time.perf_counter() - start > LIMIT:
                raise SystemExit(f"{command[0]} shows no window")
            time.sleep(0.001)
        shown = (time.perf_counter() - start) * 1000
        time.sleep(SETTLE)
        return shown, *memory(process.pid)
    finally:
        process.terminate()
        process.wait()


def main(program, empty, runs="15"):
    screen = Screen()
    size = [str(points) for points in screen.first_size()]
    commands = {
        "tarnivel": [program],
        "empty window": [empty],
        f"window of {'x'.join(size)} with one label": [empty, *size, "Tarnivel"],
    }
    commands |= {
        name: [name, option]
        for name, option in (("featherpad", "--standalone"), ("mousepad", "--disable-server"))
        if shutil.which(name)
    }
    results = {name: [] for name in commands}
    with tempfile.TemporaryDirectory() as home:
        os.makedirs(f"{home}/.local/share")
        for run in range(int(runs) + 1):
            for name, command in commands.items():
                result = measure(screen, command, home)
                if run:  # the first start of each fills the caches
                    results[name].append(result)

    medians = {name: [statistics.median(column) for column in zip(*rows)] for name, rows in results.items()}
    print("| | visible (ms) | lowest to highest | to the empty window | PSS (MiB) | RSS (MiB) |\n|---|---|---|---|---|---|")
    for name, (shown, pss, rss) in medians.items():
        times = [row[0] for row in results[name]]
        ratio = shown / medians["empty window"][0]
        print(f"| {name} | {shown:.0f} | {min(times):.0f} to {max(times):.0f} | {ratio:.2f} | {pss:.1f} | {rss:.1f} |")


main(*sys.argv[1:])
