#!/usr/bin/python3
"""Compares the normalised correlations of one signal with what others take on a like recording.

usage: compare_matching.py PROGRAM [ROWS ...]
PROGRAM is the benchmark program. Prints, for each number of rows, the best time of several runs
and the ratios of the matcher's times, by its running and by the exact form, to the others', the
middle one of the runs and the worst:
- bare: the correlation alone, by overlap and save with the matcher's blocks, not normalised;
- OpenCV: cv2.matchTemplate with TM_CCOEFF_NORMED, in single precision;
- SciPy: scipy.signal.oaconvolve, which only sums products.
Everything runs on one thread, in turn. Exits with 1 when one of the forms is slower than OpenCV in
any run, or slower than SciPy at its best.
"""

import os
import statistics
import subprocess
import sys
import tempfile
import time

import cv2
import numpy
import scipy.signal

SIGNAL = slice(1000, 1400)
RUNS = 7
NAMES = ("running", "exact", "bare", "OpenCV", "SciPy")
FORMS = 2


def run_program(program, rows):
    """The times of one search by each form and of the bare correlation in seconds; the wisdom file
    goes to a folder of its own."""
    with tempfile.TemporaryDirectory() as folder:
        output = subprocess.run(
            [os.path.abspath(program), f"--benchmark_filter=^(matchSignal|matchSignalExactly|overlapSave)/{rows}$",
             "--benchmark_format=csv", "--benchmark_min_time=0.1"],
            cwd=folder, check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
            text=True).stdout
    time_column = 2
    times = {line.split("/")[0].strip('"'): float(line.split(",")[time_column]) / 1000
             for line in output.splitlines() if "/" in line}
    return times["matchSignal"], times["matchSignalExactly"], times["overlapSave"]


def run(work, *arguments, **options):
    start = time.perf_counter()
    work(*arguments, **options)
    return time.perf_counter() - start


def measure(program, rows):
    """For each run the times in the order of NAMES."""
    noise = numpy.random.default_rng(1).uniform(-0.5, 0.5, rows)
    values = numpy.sin(numpy.arange(rows) * 0.001) + noise
    image = values.astype(numpy.float32).reshape(1, -1)
    template = numpy.ascontiguousarray(image[:, SIGNAL])
    reversed_signal = values[SIGNAL][::-1]
    return [(*run_program(program, rows),
             run(cv2.matchTemplate, image, template, cv2.TM_CCOEFF_NORMED),
             run(scipy.signal.oaconvolve, values, reversed_signal, mode="valid"))
            for _ in range(RUNS)]


def compare(program, rows):
    """Prints the times and ratios; whether the matcher is as fast as it should be."""
    runs = measure(program, rows)
    best = [min(column) for column in zip(*runs)]
    print(f"{rows} rows: " + ", ".join(f"{name} {seconds * 1000:.1f} ms"
                                       for name, seconds in zip(NAMES, best)))
    for form in range(FORMS):
        for place in range(FORMS, len(NAMES)):
            ratios = [times[form] / times[place] for times in runs]
            print(f"  {NAMES[form]} / {NAMES[place]}: {statistics.median(ratios):.2f}, "
                  f"at worst {max(ratios):.2f}")
    opencv, scipy_sum = NAMES.index("OpenCV"), NAMES.index("SciPy")
    return all(times[form] <= times[opencv] for times in runs for form in range(FORMS)) \
        and max(best[:FORMS]) <= best[scipy_sum]


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    cv2.setNumThreads(1)
    sizes = [int(text) for text in sys.argv[2:]] or [1_000_000, 5_000_000, 10_000_000]
    are_fast = [compare(sys.argv[1], rows) for rows in sizes]
    sys.exit(0 if all(are_fast) else 1)


if __name__ == "__main__":
    main()
