#!/usr/bin/env python3
"""Looks at 1,000 packs, half of them with packed tiles: packs.py path/to/packs_bench

Each tile is a file of 128 KiB of its own; the packed ones hold twice as much, as those of X-Plane's makers do."""

import pathlib
import random
import subprocess
import sys
import tempfile

BENCH = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(BENCH.parent.parent / "tools"))
from make_sample import HEADER, line, seven_zip, tile  # noqa: E402

PACKS = 1000


def main(program):
    random.seed(17)
    data = tile(overlay=True) + bytes(random.randrange(16) for _ in range(256 << 10))
    packed = seven_zip("tile", data)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for number in range(PACKS):
            place = folder / f"Pack {number}" / "Earth nav data/+40+000"
            place.mkdir(parents=True)
            (place / "+42+008.dsf").write_bytes(packed if number % 2 else data[: 128 << 10])
        (folder / "scenery_packs.ini").write_text(HEADER + "".join(line(folder, f"Pack {n}") for n in range(PACKS)))
        known, *times = subprocess.check_output([program, folder], text=True).split()
        assert int(known) == PACKS
        looking, reading, finding = map(float, times)
        print("| packs | looking at all (ms) | reading 64 KiB of each tile (ms) | to it | the same, listing the folders too (ms) | to it |")
        print("|---|---|---|---|---|---|")
        print(f"| {PACKS:,} | {looking:.1f} | {reading:.1f} | {looking / reading:.1f} | {finding:.1f} | {looking / finding:.1f} |")


main(*sys.argv[1:])
