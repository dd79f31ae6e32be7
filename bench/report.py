#!/usr/bin/env python3
"""Runs all benchmarks once and writes what they measured to docs/measurements.md, with charts beside it.

    cmake -G Ninja -B build/bench -DCMAKE_BUILD_TYPE=Release -DTARNIVEL_BENCH=ON && cmake --build build/bench
    tools/screen.sh /usr/bin/python3 bench/report.py build/bench

Needs the Debian packages gnuplot-nox and python3-xlib; the editors that the start is compared with are featherpad and
mousepad. Takes ten minutes of an idle machine.
"""

import json
import os
import pathlib
import platform
import subprocess
import sys

BENCH = pathlib.Path(__file__).parent
PAGE = BENCH.parent / "docs" / "measurements.md"
CHARTS = PAGE.with_suffix("")
SIZES = (1_000, 10_000, 100_000, 1_000_000)


def output(*command, **more):
    return subprocess.run([str(word) for word in command], check=True, capture_output=True, text=True, **more).stdout


def rows_of(markdown):
    """The cells of all tables, without their headings."""
    lines = [[cell.strip() for cell in line.split("|")[1:-1]] for line in markdown.splitlines() if line.startswith("|")]
    heads = {at - 1 for at, cells in enumerate(lines) if cells[0].startswith("---")}
    return [cells for at, cells in enumerate(lines) if at not in heads and at - 1 not in heads]


def number(cell):
    return float(cell.split()[0].rstrip(","))


def chart(name, alt, script, series):
    """Draws a chart of series of points or of named bars; the line of Markdown that shows it."""
    data = "".join(f"${name}{at} << end\n{points}\nend\n" for at, (_, points) in enumerate(series))
    plots = ", ".join(f"${name}{at} {how}" for at, (how, _) in enumerate(series))
    head = f"set terminal svg size 760,400 font 'sans,12' background 'white'\nset output '{CHARTS / name}.svg'\n"
    style = "set grid ytics\nset key left top\n"
    subprocess.run(["gnuplot"], input=f"{data}{head}{style}{script}\nplot {plots}\n", check=True, text=True)
    return f"![{alt}](measurements/{name}.svg)\n"


def lines_chart(name, alt, unit, curves):
    script = f"set logscale xy\nset xrange [700:1500000]\nset format x '%.0s%c'\nset xlabel 'lines'\nset ylabel '{unit}'"
    series = [
        (f"with linespoints lw 2 title '{title}'", "\n".join(f"{x} {y}" for x, y in points)) for title, points in curves
    ]
    return chart(name, alt, script, series)


def bars_chart(name, alt, unit, bars):
    script = f"set style fill solid 0.7\nset boxwidth 0.6\nset yrange [0:]\nset xtics rotate by -12\nunset key\nset ylabel '{unit}'"
    points = "\n".join(f'"{title}" {value}' for title, value in bars)
    return chart(name, alt, script, [("using 0:2:xtic(1) with boxes lc '#3182bd'", points)])


def machine():
    model = next(line.split(":")[1].strip() for line in open("/proc/cpuinfo") if line.startswith("model name"))
    memory = int(open("/proc/meminfo").readline().split()[1]) / 2**20
    compiler = output("c++", "--version").splitlines()[0]
    load = os.getloadavg()[0]
    return f"{model}, {os.cpu_count()} cores, {memory:.0f} GiB, Linux {platform.release()}, {compiler}, load {load:.1f} at the start"


def engine(build):
    text = output("python3", BENCH / "engine/cost.py", build / "bench/engine/engine_bench")
    curves = [(row[0], list(zip(SIZES, map(number, row[1:5])))) for row in rows_of(text)]
    picture = lines_chart("engine", "Cost of a line by the number of lines", "ns a line", curves)
    return "## Reordering", picture, text


def display(build):
    runs = json.loads(output(build / "bench/window/window_bench", "--benchmark_format=json"))["benchmarks"]
    times = {tuple(run["name"].split("/")[1:3]): run["cpu_time"] for run in runs if run["run_type"] == "iteration"}
    whats = sorted({what for what, _ in times})
    curves = [(what, sorted((int(size), time) for (name, size), time in times.items() if name == what)) for what in whats]
    table = ["| lines | " + " | ".join(f"{what} (ms)" for what in whats) + " |", "|---" * (len(whats) + 1) + "|"]
    for size in map(str, SIZES):
        cells = (f"{times[what, size]:.1f}" if (what, size) in times else "" for what in whats)
        table.append(f"| {int(size):,} | " + " | ".join(cells) + " |")
    ratios = (f"{what} {times[what, '100000'] / times['Fill', '100000']:.3f}" for what in whats if what != "Fill")
    table += ["", f"At 100,000 lines, to filling: {', '.join(ratios)}."]
    history = {tuple(run["name"].split("/")[1:3]): run["bytes"] for run in runs if "bytes" in run}
    kept = (f"{what} {history[what, '100000']:.0f}" for what in ("ToggleOne", "ToggleAll"))
    table += [f"Bytes that the history keeps of each toggled line: {', '.join(kept)}."]
    picture = lines_chart("display", "Time to fill, show and change a text by the number of lines", "ms", curves)
    return "## Filling, showing and changing a text", picture, "\n".join(table) + "\n"


def treatment(build):
    program = build / "bench/specialA/treatment_bench"
    text = output("python3", BENCH / "specialA/treatment.py", program, "perl", "python3")
    bars = [(row[0], number(row[3])) for row in rows_of(text) if row[1] == "1 MB"]
    picture = bars_chart("treatment", "1,000 rows on 1 MB, beside other tools", "seconds", bars)
    return "## Two variants by a table of replacements", picture, text


def packs(build):
    return "## Proposing a model", "", output(sys.executable, BENCH / "packs/packs.py", build / "bench/packs/packs_bench")


def start(build):
    program = build / "toolkit/bench/empty_window"
    text = output(sys.executable, BENCH / "start/start.py", build / "tarnivel", program)
    rows = rows_of(text)
    pictures = [
        bars_chart("start", "Time to the painted window", "ms", [(row[0], number(row[1])) for row in rows]),
        bars_chart("memory", "Memory (PSS) after a second", "MiB", [(row[0], number(row[4])) for row in rows]),
    ]
    return "## Start and memory", "\n".join(pictures), text


def main(build):
    CHARTS.mkdir(exist_ok=True)
    title = f"# Measurements\n\nMade by `bench/report.py` in one run: {machine()}.\n"
    parts = [part(pathlib.Path(build)) for part in (start, display, engine, treatment, packs)]
    PAGE.write_text("\n".join([title, *("\n\n".join(part) for part in parts)]), "utf-8")


main(*sys.argv[1:])
