#!/usr/bin/env python3
"""Compares the time of two builds of libtarn over many layouts.

    layouts.py TIME OLD NEW [LAYOUTS]

TIME is bench/tarn_time, OLD and NEW are build directories. Where code lies moves the time of a road
by up to 40 %, so that one link of each library says little. Here both are linked in several random
orders; of each link the least of several runs counts, and of all links the least, the median and
the greatest are shown, in nanoseconds.
"""

import json
import os
import random
import shlex
import statistics
import subprocess
import sys
import tempfile

LIBRARY = "src/libtarn.so.0"
RUNS = 3  # of each link, old and new by turns


def link(build, directory):
    """Links the build"s library into the directory, its objects in a random order."""
    command = subprocess.run(["ninja", "-C", build, "-t", "commands", LIBRARY], check=True,
                             capture_output=True, text=True).stdout.splitlines()[-1]
    words = shlex.split(command)
    places = [i for i, word in enumerate(words) if word.endswith(".o")]
    objects = [words[i] for i in places]
    random.shuffle(objects)
    for place, name in zip(places, objects):
        words[place] = name
    words[words.index(LIBRARY)] = f"{directory}/libtarn.so.0"
    words = [word for word in words if word not in (":", "&&")]
    subprocess.run(words, cwd=build, check=True)


def measure(program, directory):
    """Returns the least time of each operation in one process that loads this library."""
    options = ["--benchmark_filter=/(objects|one call)", "--benchmark_min_time=0.01",
               "--benchmark_repetitions=3", "--benchmark_enable_random_interleaving=true",
               "--benchmark_format=json"]
    output = subprocess.run([program, *options], check=True, capture_output=True, text=True,
                            env={**os.environ, "LD_LIBRARY_PATH": directory}).stdout
    least = {}
    for run in json.loads(output)["benchmarks"]:
        if run["run_type"] == "iteration":
            name = run["name"].split("/repeats")[0]
            least[name] = min(run["cpu_time"], least.get(name, run["cpu_time"]))
    return least


def main(program, old, new, layouts=12):
    times = {}  # of each operation and side, one for each link
    for _ in range(int(layouts)):
        with tempfile.TemporaryDirectory() as old_link, tempfile.TemporaryDirectory() as new_link:
            link(old, old_link)
            link(new, new_link)
            runs = [(measure(program, old_link), measure(program, new_link)) for _ in range(RUNS)]
        for name in runs[0][0]:
            sides = times.setdefault(name, ([], []))
            for side in range(2):
                sides[side].append(min(run[side][name] for run in runs))
    print(f"{layouts} layouts".ljust(38) + "  old: least median greatest"
          "    new: least median greatest   medians")
    for name, sides in sorted(times.items()):
        medians = [statistics.median(side) for side in sides]
        shown = "".join(f"{min(side):12.0f} {median:6.0f} {max(side):8.0f}"
                        for side, median in zip(sides, medians))
        print(f"{name:38}{shown}{medians[1] / medians[0]:10.2f}")


if __name__ == "__main__":
    if not 4 <= len(sys.argv) <= 5:
        sys.exit(__doc__)
    main(*sys.argv[1:])
