#!/usr/bin/env python3
"""Runs the benchmark of the engine and prints its cost as a Markdown table: cost.py path/to/engine_bench

Each row is a process of its own, since the peak of memory is that of a process. The least of several CPU times counts,
and its ratio to what any comparison by sorting costs: splitting, folding and sorting both texts.
"""
import json
import subprocess
import sys

SIZES = (1000, 10000, 100000, 1000000)
SHAPES = ("Shuffled", "Inverted", "FirstHalfUnknown", "NothingKnown", "EveryLineTwice", "LastCharacter")


def measure(program, name):
    """Nanoseconds for a line at each size, and the peak of memory in MiB."""
    command = [program, f"--benchmark_filter=^{name}/", "--benchmark_format=json", "--benchmark_repetitions=5",
               "--benchmark_min_time=0.1"]
    runs = json.loads(subprocess.run(command, check=True, capture_output=True).stdout)["benchmarks"]
    costs = {}
    for run in (run for run in runs if run["run_type"] == "iteration"):
        size = int(run["name"].split("/")[-1])
        costs[size] = min(run["perLine"] * 1e9, costs.get(size, float("inf")))
    return costs, max(run["peakBytes"] for run in runs) / 2**20


def main(program):
    sorting, peak = measure(program, "SplitFoldSort")
    print("| shape | " + " | ".join(f"ns/line at {size:,}, to sorting" for size in SIZES) + " | peak MiB |")
    print("|---" * (len(SIZES) + 2) + "|")
    for name in SHAPES:
        costs, memory = measure(program, f"Reorder/{name}")
        cells = (f"{costs[size]:.0f}, {costs[size] / sorting[size]:.2f}" for size in SIZES)
        print(f"| {name} | {' | '.join(cells)} | {memory:.0f} |")
    print("| sorting | " + " | ".join(f"{sorting[size]:.0f}" for size in SIZES) + f" | {peak:.0f} |")
    costs, _ = measure(program, "CheckFolders")
    cells = ", ".join(f"{cost:.0f} ns/line at {size:,}" for size, cost in costs.items())
    print(f"\nCheckFolders, with up to 10,000 folders: {cells}")


main(*sys.argv[1:])
