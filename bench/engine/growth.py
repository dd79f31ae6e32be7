#!/usr/bin/env python3
"""Runs the benchmark of the engine and prints its cost as a Markdown table: growth.py path/to/engine_bench

Each row is a process of its own, since the peak of memory is that of a process. The least of several CPU times counts.
"""
import json
import subprocess
import sys

SIZES = (1000, 10000, 100000, 1000000)
SHAPES = ("Shuffled", "Inverted", "FirstHalfUnknown", "NothingKnown", "EveryLineTwice", "LastCharacter")


def measure(program, name, sizes):
    """Nanoseconds for a line at each size, and the peak of memory in bytes."""
    command = [program, f"--benchmark_filter=^{name}/", "--benchmark_format=json", "--benchmark_repetitions=5",
               "--benchmark_min_time=0.1"]
    runs = json.loads(subprocess.run(command, check=True, capture_output=True).stdout)["benchmarks"]
    costs = [min(run["perLine"] for run in runs if run["run_type"] == "iteration"
                 and run["name"].split("/")[-1] == str(size)) * 1e9 for size in sizes]
    return costs, max(run["peakBytes"] for run in runs)


def row(name, costs, peak):
    growths = [f"{10 * later / earlier:.1f}" for earlier, later in zip(costs, costs[1:])]
    cells = [name, *(f"{cost:.0f}" for cost in costs), *growths, f"{peak / 2**20:.0f}"]
    print("| " + " | ".join(cells) + " |")


def main():
    program = sys.argv[1]
    print("| shape | " + " | ".join(f"ns/line at {size:,}" for size in SIZES)
          + " | growth | growth | growth | peak MiB |")
    print("|---" * (len(SIZES) * 2 + 1) + "|")
    table = {}
    for name in [f"Reorder/{shape}" for shape in SHAPES] + ["SplitFoldSort"]:
        table[name], peak = measure(program, name, SIZES)
        row(name, table[name], peak)
    print(f"\nReorder/Shuffled costs {table['Reorder/Shuffled'][2] / table['SplitFoldSort'][2]:.2f} times "
          "SplitFoldSort at 100,000 lines.\n")
    costs, _ = measure(program, "CheckFolders", SIZES[:3])
    print("CheckFolders, with up to 10,000 folders: "
          + ", ".join(f"{cost:.0f} ns/line at {size:,}" for cost, size in zip(costs, SIZES)))


main()
