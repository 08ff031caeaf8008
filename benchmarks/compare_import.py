#!/usr/bin/python3
"""Compares the import of a recording with others that read the same file on one thread.

usage: compare_import.py PROGRAM [ROWS ...]
PROGRAM is the benchmark program. Prints the times, the best of several runs in turn, of the import,
of pandas.read_csv and of fread (R's data.table, where that is installed), and their ratios. Exits
with 1 when a ratio is above the limit that the import has to keep.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time

import pandas

LIMITS = {"pandas": 0.5, "fread": 1.05}
RUNS = 7

FREAD = ("library(data.table); setDTthreads(1); path <- commandArgs(TRUE)[1];"
         "time <- system.time(table <- fread(path, sep='\\t', header=FALSE, showProgress=FALSE));"
         "cat(time[['elapsed']], nrow(table))")


def run_program(program, rows, path):
    """Writes the recording to path when it is not there yet; the import time in seconds."""
    output = subprocess.run(
        [program, f"--benchmark_filter=^importText/{rows}$", "--benchmark_format=csv",
         "--benchmark_min_time=0.01"],
        env=dict(os.environ, SKERRYMOOR_RECORDING=path),
        check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
    time_column = 2
    lines = [line for line in output.splitlines() if line.startswith(f'"importText/{rows}"')]
    return float(lines[0].split(",")[time_column]) / 1000


def run_pandas(path, rows):
    start = time.perf_counter()
    frame = pandas.read_csv(path, sep="\t", header=None, engine="c")
    seconds = time.perf_counter() - start
    assert len(frame) == rows, (len(frame), rows)
    return seconds


def run_fread(path, rows):
    output = subprocess.run(["Rscript", "-e", FREAD, path], check=True, stdout=subprocess.PIPE,
                            text=True).stdout
    seconds, rows_read = output.split()
    assert int(rows_read) == rows, (rows_read, rows)
    return float(seconds)


def has_fread():
    check = ["Rscript", "-e", "library(data.table)"]
    return shutil.which("Rscript") and subprocess.run(check, stderr=subprocess.DEVNULL,
                                                      check=False).returncode == 0


def compare(program, rows):
    """The best of several runs of each, in turn, by name."""
    runners = {"ours": lambda path: run_program(program, rows, path),
               "pandas": lambda path: run_pandas(path, rows)}
    if has_fread():
        runners["fread"] = lambda path: run_fread(path, rows)
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "recording.txt")
        run_program(program, rows, path)
        # None is to wait for the new file's way to the disk.
        os.sync()
        times = {name: [] for name in runners}
        for _ in range(RUNS):
            for name, run in runners.items():
                times[name].append(run(path))
    return {name: min(seconds) for name, seconds in times.items()}


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    is_fast = True
    for rows in [int(text) for text in sys.argv[2:]] or [1_000_000, 5_000_000]:
        times = compare(sys.argv[1], rows)
        ours = times.pop("ours")
        ratios = {name: ours / seconds for name, seconds in times.items()}
        is_fast = is_fast and all(ratios[name] <= LIMITS[name] for name in ratios)
        others = ", ".join(f"{name} {seconds:.3f} s (ratio {ratios[name]:.2f})"
                           for name, seconds in times.items())
        print(f"{rows} rows: {ours:.3f} s, {others}")
    sys.exit(0 if is_fast else 1)


if __name__ == "__main__":
    main()
