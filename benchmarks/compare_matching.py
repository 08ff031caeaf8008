#!/usr/bin/python3
"""Compares the normalised correlation of one signal with OpenCV and SciPy on a like recording.

usage: compare_matching.py PROGRAM [ROWS ...]
PROGRAM is the benchmark program. Prints the times, the best of several runs each, of the matcher,
of cv2.matchTemplate with TM_CCOEFF_NORMED and of scipy.signal.oaconvolve, which only sums
products. Both get their values as one array, the matcher reads them from the rows of a table.
Exits with 1 when the matcher is slower than either.
"""

import os
import subprocess
import sys
import tempfile
import time

import cv2
import numpy
import scipy.signal

SIGNAL = slice(1000, 1400)
RUNS = 5


def run_program(program, rows):
    """The time of one search in seconds; the wisdom file goes to a folder of its own."""
    with tempfile.TemporaryDirectory() as folder:
        output = subprocess.run(
            [os.path.abspath(program), f"--benchmark_filter=^matchSignal/{rows}$", "--benchmark_format=csv",
             "--benchmark_min_time=0.1"],
            cwd=folder, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
            text=True).stdout
    time_column = 2
    lines = [line for line in output.splitlines() if line.startswith(f'"matchSignal/{rows}"')]
    return float(lines[0].split(",")[time_column]) / 1000


def run(work, *arguments, **options):
    start = time.perf_counter()
    work(*arguments, **options)
    return time.perf_counter() - start


def compare(program, rows):
    """The best of several runs of the matcher, of OpenCV and of SciPy, in turn."""
    noise = numpy.random.default_rng(1).uniform(-0.5, 0.5, rows)
    values = numpy.sin(numpy.arange(rows) * 0.001) + noise
    image = values.astype(numpy.float32).reshape(1, -1)
    template = numpy.ascontiguousarray(image[:, SIGNAL])
    reversed_signal = values[SIGNAL][::-1]
    times = [(run_program(program, rows),
              run(cv2.matchTemplate, image, template, cv2.TM_CCOEFF_NORMED),
              run(scipy.signal.oaconvolve, values, reversed_signal, mode="valid"))
             for _ in range(RUNS)]
    return [min(column) for column in zip(*times)]


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    is_fast = True
    for rows in [int(text) for text in sys.argv[2:]] or [1_000_000, 5_000_000]:
        ours, opencv, scipy_time = compare(sys.argv[1], rows)
        is_fast = is_fast and ours <= min(opencv, scipy_time)
        print(f"{rows} rows: {ours:.4f} s, OpenCV {opencv:.4f} s, SciPy {scipy_time:.4f} s")
    sys.exit(0 if is_fast else 1)


if __name__ == "__main__":
    main()
