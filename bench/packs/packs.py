#!/usr/bin/env python3
"""Looks at 1,000 packs, half of them with packed tiles: packs.py path/to/packs_bench

Each tile has 2 MB that pack to a half, as those of X-Plane's makers do."""
import os
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
    data = tile(overlay=True) + bytes(random.randrange(16) for _ in range(2_000_000))
    packed = seven_zip("tile", data)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for kind, content in (("packed", packed), ("plain", data)):
            (folder / kind).write_bytes(content)
        for number in range(PACKS):
            place = folder / f"Pack {number}" / "Earth nav data/+40+000"
            place.mkdir(parents=True)
            os.link(folder / ("packed" if number % 2 else "plain"), place / "+42+008.dsf")
        (folder / "scenery_packs.ini").write_text(HEADER + "".join(line(folder, f"Pack {n}") for n in range(PACKS)))
        known, looking, reading = subprocess.check_output([program, folder], text=True).split()
        assert int(known) == PACKS
        print("| packs | looking at all (ms) | opening their tiles and reading 64 KiB (ms) | to it |\n|---|---|---|---|")
        print(f"| {PACKS:,} | {float(looking):.0f} | {float(reading):.0f} | {float(looking) / float(reading):.1f} |")


main(*sys.argv[1:])
