#!/usr/bin/python3
"""Compares derived columns with the plain NumPy expressions for them on three like columns.

usage: compare_derive.py PROGRAM [ROWS ...]
PROGRAM is the benchmark program. Prints the times, the best of several runs in turn, and their
ratio. Ours append the new columns to the table and take their ranges, NumPy only computes. Exits
with 1 when a ratio is above the limit that derived columns have to keep.
"""

import os
import subprocess
import sys
import time

import numpy

LIMIT = 1.1
RUNS = 7

EXPRESSIONS = {
    "vedba": lambda x, y, z: numpy.sqrt(y * y + x * x + z * z),
    "pitchAndRoll": lambda x, y, z: (
        numpy.arctan2(y, numpy.sqrt(x * x + z * z)) * 180 / numpy.pi,
        numpy.arctan2(x, numpy.sqrt(y * y + z * z)) * 180 / numpy.pi),
}


def run_program(program, name, rows):
    output = subprocess.run(
        [program, f"--benchmark_filter=^{name}/{rows}$", "--benchmark_format=csv",
         "--benchmark_min_time=0.5"],
        check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
        env=dict(os.environ, QT_QPA_PLATFORM="offscreen")).stdout
    time_column = 2
    lines = [line for line in output.splitlines() if line.startswith(f'"{name}/{rows}"')]
    return float(lines[0].split(",")[time_column]) / 1000


def run_numpy(expression, columns):
    """The mean of as many runs as ours make."""
    times = []
    while sum(times) < 0.5:
        start = time.perf_counter()
        result = expression(*columns)
        times.append(time.perf_counter() - start)
        del result
    return sum(times) / len(times)


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    program = sys.argv[1]
    is_fast = True
    for rows in [int(text) for text in sys.argv[2:]] or [10_000_000]:
        random = numpy.random.default_rng(1)
        columns = [random.uniform(-2, 2, rows) for _ in range(3)]
        for name, expression in EXPRESSIONS.items():
            times = [(run_program(program, name, rows), run_numpy(expression, columns))
                     for _ in range(RUNS)]
            ours, theirs = (min(column) for column in zip(*times))
            is_fast = is_fast and ours <= LIMIT * theirs
            print(f"{name}, {rows} rows: {ours:.3f} s, NumPy {theirs:.3f} s, "
                  f"ratio {ours / theirs:.2f}")
    sys.exit(0 if is_fast else 1)


if __name__ == "__main__":
    main()
