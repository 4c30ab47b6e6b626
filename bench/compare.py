#!/usr/bin/env python3
"""Turns the benchmarks' output into tables.

    compare.py operations CALLGRIND.OUT TIMES.json...   times and instructions, with ratios
    compare.py linearity CALLGRIND.OUT                  instructions per IE as messages grow
"""
import collections
import glob
import json
import re
import statistics
import sys

MESSAGES = ["SecurityModeReject", "AccessControlRequest", "UlDirectTransfer",
            "RabAssignmentRequest"]
# How many times the yardstick each road may cost: the floor for the objects, the objects for the
# one-call road.
LIMITS = {("encode", "objects"): 1.30, ("decode", "objects"): 1.20,
          ("encode", "one call"): 1.20, ("decode", "one call"): 1.20}
COMPOSITE_LIMITS = {("encode", "objects"): 1.35, ("decode", "objects"): 1.25}


def read_times(paths):
    """Nanoseconds by operation: the medians of each process's medians."""
    medians = collections.defaultdict(list)
    for path in paths:
        with open(path, encoding="utf-8") as file:
            for run in json.load(file)["benchmarks"]:
                if run.get("aggregate_name") == "median":
                    medians[run["run_name"]].append(run["cpu_time"])
    return {name: statistics.median(values) for name, values in medians.items()}


def read_dumps(prefix):
    """The instructions of each dump, by its name."""
    counts = {}
    for path in sorted(glob.glob(prefix + "*"), key=lambda path: (len(path), path)):
        with open(path, encoding="utf-8") as file:
            text = file.read()
        for part in re.split(r"^part: ", text, flags=re.M):
            name = re.search(r"^desc: Trigger: Client Request: (.*)$", part, flags=re.M)
            total = re.search(r"^(?:summary|totals): (\d+)$", part, flags=re.M)
            if name and total:
                counts[name.group(1)] = int(total.group(1))
    return counts


def read_counts(prefix, turns=64):
    """The instructions of one run of each operation: the second dump has twice the first's."""
    dumps = read_dumps(prefix)
    return {name[:-2]: (dumps[name[:-2] + "/2"] - dumps[name]) / turns
            for name in dumps if name.endswith("/1")}


def limit_for(message, direction, road):
    if message == "RabAssignmentRequest":
        return COMPOSITE_LIMITS.get((direction, road), LIMITS[direction, road])
    return LIMITS[direction, road]


def ratio(value, yardstick, limit):
    result = value / yardstick
    return f"{result:.2f}{' ' if result <= limit else '!'}"


def print_operations(title, unit, figures):
    print(f"{title} ({unit} per message; ! marks a ratio above its limit)\n")
    print(f"{'message':<21} {'':<6} {'road':<8} {unit:>9} {'floor':>9} {'ratio':>6} {'limit':>6}"
          f" {'nanopb':>9} {'protobuf-c':>10}")
    for message in MESSAGES:
        for direction in ("encode", "decode"):
            one = {road: figures[f"{message}/{direction}/{road}"]
                   for road in ("objects", "floor", "one call", "nanopb", "protobuf-c")}
            for road, yardstick in (("objects", "floor"), ("one call", "objects")):
                limit = limit_for(message, direction, road)
                peers = f"{one['nanopb']:>9.0f} {one['protobuf-c']:>10.0f}"
                print(f"{message:<21} {direction:<6} {road:<8} {one[road]:>9.0f}"
                      f" {one[yardstick]:>9.0f} {ratio(one[road], one[yardstick], limit):>6}"
                      f" {limit:>6.2f} {peers if road == 'objects' else ''}".rstrip())
    print("\nThe floor of the one-call road is the road of objects.\n")


def slope(points):
    """Instructions for each further IE, from the first point to the last."""
    (ies, count), (more_ies, more) = points[0], points[-1]
    return (more - count) / (more_ies - ies) if more_ies != ies else None


def print_linearity(dumps):
    """For each message, what grows in it, and each operation: instructions per IE at each size."""
    rows = collections.defaultdict(dict)
    for name, total in dumps.items():
        subject, verb, size, ies, turns = name.split("/")
        rows[subject][verb, int(size)] = (int(ies), total / int(turns))
    print("Instructions per IE as messages grow\n")
    print("'each further' is what one more IE costs, 'late/early' that cost in the upper half of the"
          "\nsizes over the lower half: 1.00 is linear. An extract walks from the list's head.\n")
    for subject, cells in rows.items():
        sizes = sorted({size for _, size in cells})
        print(f"{subject:<45}" + "".join(f"{size:>6}" for size in sizes))
        print(f"{'  IEs in the message':<45}"
              + "".join(f"{cells['pack', size][0]:>6}" for size in sizes))
        for verb in ("unpack", "validate", "pack", "delete", "build", "get", "extract"):
            points = [cells[verb, size] for size in sizes]
            line = f"  {verb:<43}" + "".join(f"{count / ies:>6.0f}" for ies, count in points)
            if slope(points) is not None:
                line += f"  each further {slope(points):>5.0f}"
                middle = len(points) // 2
                early = slope(points[:middle + 1])
                if len(points) > 3 and early >= 1:
                    line += f"  late/early {slope(points[middle:]) / early:.2f}"
            print(line)
        print()


def main(arguments):
    if arguments[:1] == ["operations"] and len(arguments) >= 3:
        print_operations("Time", "ns", read_times(arguments[2:]))
        print_operations("Instructions", "Ir", read_counts(arguments[1]))
    elif arguments[:1] == ["linearity"] and len(arguments) == 2:
        print_linearity(read_dumps(arguments[1]))
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv[1:])
