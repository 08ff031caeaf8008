#!/usr/bin/python3
"""Compares the import of a recording with pandas.read_csv on the same file.

usage: compare_import.py PROGRAM [ROWS ...]
PROGRAM is the benchmark program. Prints both times, the best of several runs each, and their
ratio. Exits with 1 when a ratio is above the limit that the import has to keep.
"""

import os
import re
import subprocess
import sys
import tempfile
import time

import pandas

LIMIT = 0.6
RUNS = 3


def run_program(program, rows, path):
    """Writes the recording to path when it is not there yet; best import time in seconds."""
    output = subprocess.run(
        [program, f"--benchmark_filter=^importText/{rows}$", "--benchmark_format=csv",
         f"--benchmark_repetitions={RUNS}", "--benchmark_min_time=0.01"],
        env=dict(os.environ, SKERRYMOOR_RECORDING=path),
        check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
    times = [float(line.split(",")[2]) / 1000
             for line in output.splitlines() if re.match(rf'"importText/{rows}"', line)]
    return min(times)


def run_pandas(path):
    times = []
    for _ in range(RUNS):
        start = time.perf_counter()
        frame = pandas.read_csv(path, sep="\t", header=None, engine="c")
        times.append(time.perf_counter() - start)
    return min(times), len(frame)


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    is_fast = True
    for rows in [int(text) for text in sys.argv[2:]] or [1_000_000, 5_000_000]:
        with tempfile.TemporaryDirectory() as folder:
            path = os.path.join(folder, "recording.txt")
            ours = run_program(sys.argv[1], rows, path)
            theirs, count = run_pandas(path)
            assert count == rows, (count, rows)
        ratio = ours / theirs
        is_fast = is_fast and ratio <= LIMIT
        print(f"{rows} rows: {ours:.3f} s, pandas {theirs:.3f} s, ratio {ratio:.2f}")
    sys.exit(0 if is_fast else 1)


if __name__ == "__main__":
    main()
