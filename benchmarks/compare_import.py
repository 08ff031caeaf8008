#!/usr/bin/python3
"""Compares the import of a recording with pandas.read_csv on the same file.

usage: compare_import.py PROGRAM [ROWS ...]
PROGRAM is the benchmark program. Prints both times, the best of several runs each, and their
ratio. Exits with 1 when a ratio is above the limit that the import has to keep.
"""

import os
import subprocess
import sys
import tempfile
import time

import pandas

LIMIT = 0.6
RUNS = 5


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


def compare(program, rows):
    """The best of several runs of each, in turn."""
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "recording.txt")
        run_program(program, rows, path)
        # Neither is to wait for the new file's way to the disk.
        os.sync()
        times = [(run_program(program, rows, path), run_pandas(path, rows)) for _ in range(RUNS)]
    return [min(column) for column in zip(*times)]


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    is_fast = True
    for rows in [int(text) for text in sys.argv[2:]] or [1_000_000, 5_000_000]:
        ours, theirs = compare(sys.argv[1], rows)
        ratio = ours / theirs
        is_fast = is_fast and ratio <= LIMIT
        print(f"{rows} rows: {ours:.3f} s, pandas {theirs:.3f} s, ratio {ratio:.2f}")
    sys.exit(0 if is_fast else 1)


if __name__ == "__main__":
    main()
