#!/usr/bin/env python3
"""Replaces a thousand words in a text of 10 MB, two variants and the counts, beside GNU sed making one variant.

Usage: treatment.py path/to/treatment_bench [perl] [python3]. sed and the rest run the same rows once, ignoring case, in
the UTF-8 locale of a user; the rest on 1 MB, since they take minutes for more. Smaller texts and tables show how the cost
grows.
"""
import pathlib
import random
import re
import subprocess
import sys
import tempfile
import time

LETTERS = "eeeeeaaaiiinnnrrrssstttooolllduucmpévgfbqhxèàyjk"


def make_text(words, size):
    lines, total = [], 0
    while total < size:
        lines.append(" ".join(random.choices(words, k=10)))
        total += len(lines[-1].encode()) + 1
    return "\n".join(lines) + "\n"


def ours(program, text, table):
    """Seconds and the peak of memory in bytes."""
    seconds, kilobytes, _ = subprocess.check_output([program, text, table], text=True).split()
    return float(seconds), int(kilobytes) * 1024


def others(folder, text, rows):
    """The commands that make one variant by the same rows."""
    sed, perl, python = folder / "rows.sed", folder / "rows.pl", folder / "rows.py"
    sed.write_text("".join(f"s/{search}/{replace}/gI\n" for search, replace in rows))
    perl.write_text("use utf8; use open qw(:std :utf8);\nwhile (<>) {\n"
                    + "".join(f"s/{search}/{replace}/gi;\n" for search, replace in rows) + "print; }\n")
    python.write_text("import re, sys\ntext = open(sys.argv[1], encoding='utf-8').read()\n"
                      + "".join(f"text = re.sub({search!r}, {replace!r}, text, flags=re.I)\n" for search, replace in rows)
                      + "sys.stdout.write(text)\n")
    return {"sed": ["sed", "-f", sed, text], "perl": ["perl", perl, text], "python3": [sys.executable, python, text]}


def main(program, *names):
    random.seed(20240225)
    words = sorted({"".join(random.choices(LETTERS, k=random.randint(3, 10))) for _ in range(20_000)})
    chosen = random.sample(words, 1000)
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        text, table = folder / "text.txt", folder / "table.txt"

        def prepare(size, count):
            text.write_text(make_text(words, size), "utf-8")
            table.write_text("".join(f"{w}\t{w[::-1]}x\t\n" for w in chosen[:count]), "utf-8")

        print("| text | rows | seconds | peak, times the text |\n|---|---|---|---|")
        for size, count in ((1, 1000), (3, 1000), (10, 100), (10, 300), (10, 1000)):
            prepare(size * 1_000_000, count)
            runs = [ours(program, text, table) for _ in range(3)]
            print(f"| {size} MB | {count} | {min(run[0] for run in runs):.2f} | {runs[0][1] / text.stat().st_size:.0f} |")

        print("\n| 1,000 rows, by | text | variants | seconds | Tarnivel to it |\n|---|---|---|---|---|")
        environment = {"LC_ALL": "C.UTF-8", "PATH": "/usr/bin:/bin"}
        commands = others(folder, text, [(re.escape(w), f"{w[::-1]}x") for w in chosen])
        for size, compared in ((10, ("sed",)), (1, ("sed", *names))):
            prepare(size * 1_000_000, 1000)
            seconds = min(ours(program, text, table)[0] for _ in range(3))
            print(f"| Tarnivel | {size} MB | 2, and the counts | {seconds:.2f} | 1 |")
            for other in compared:
                start = time.perf_counter()
                subprocess.run(commands[other], check=True, stdout=subprocess.DEVNULL, env=environment)
                took = time.perf_counter() - start
                print(f"| {other} | {size} MB | 1 | {took:.2f} | {seconds / took:.2f} |")


main(*sys.argv[1:])
