#!/usr/bin/env python3
"""Turns the benchmarks' output into tables.

    compare.py operations CALLGRIND.OUT TIMES.json...   instructions, and times as ratios
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
ROADS = ["objects", "floor", "one call", "wire"]
PEERS = ["nanopb", "protobuf-c", "protobuf", "flatbuffers", "capnp"]
# How many times their floor the objects may cost.
OBJECT_LIMITS = {"encode": 1.30, "decode": 1.20}
NESTED_OBJECT_LIMITS = {"encode": 1.35, "decode": 1.20}
# How many instructions the one call may take.
ONE_CALL_LIMITS = {"SecurityModeReject": (60, 75), "AccessControlRequest": (105, 110),
                   "UlDirectTransfer": (125, 145), "RabAssignmentRequest": (4000, 5500)}


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


def rows(figures):
    """Message, direction, and what each road and peer takes."""
    for message in MESSAGES:
        for direction in ("encode", "decode"):
            yield message, direction, {road: figures[f"{message}/{direction}/{road}"]
                                       for road in ROADS + PEERS}


def marked(value, over, width=8):
    return f"{value:>{width}}{'!' if over else ' '}"


def print_instructions(counts):
    print("Instructions per message\n")
    print(f"{'':<21} {'':<6} {'objects':>8}  {'floor':>8} {'ratio':>6} {'limit':>6}"
          f" {'one call':>9}  {'limit':>5} {'wire':>6}" + "".join(f"{peer:>12}" for peer in PEERS))
    for message, direction, one in rows(counts):
        nested = message == "RabAssignmentRequest"
        limit = (NESTED_OBJECT_LIMITS if nested else OBJECT_LIMITS)[direction]
        most = ONE_CALL_LIMITS[message][direction == "decode"]
        ratio = one["objects"] / one["floor"]
        print(f"{message:<21} {direction:<6} {one['objects']:>8.0f} {one['floor']:>9.0f}"
              f" {marked(f'{ratio:.2f}', ratio > limit, 6)}{limit:>6.2f}"
              f" {marked(round(one['one call']), one['one call'] > most, 9)}{most:>6}"
              f" {one['wire']:>6.0f}" + "".join(f"{one[peer]:>12.0f}" for peer in PEERS))
    print("""
ratio: the objects to their floor, which makes the same calls of the host. wire: bare loads and
stores of that message. ! marks what is above its limit.
""")


def print_times(times):
    print("Time, one call = 1.00\n")
    print(f"{'':<21} {'':<6} {'one call':>11} {'objects':>8} {'floor':>7} {'wire':>7}"
          + "".join(f"{peer:>13}" for peer in PEERS))
    for message, direction, one in rows(times):
        unit = one["one call"]
        print(f"{message:<21} {direction:<6} {unit:>8.0f} ns"
              f" {one['objects'] / unit:>8.2f} {one['floor'] / unit:>7.2f}"
              f" {one['wire'] / unit:>7.2f}"
              + "".join(marked(f"{one[peer] / unit:.2f}", one[peer] < unit, 12) for peer in PEERS))
    print("\n! marks a peer that is faster than the one call.\n")


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
        print_instructions(read_counts(arguments[1]))
        print_times(read_times(arguments[2:]))
    elif arguments[:1] == ["linearity"] and len(arguments) == 2:
        print_linearity(read_dumps(arguments[1]))
    else:
        sys.exit(__doc__)


if __name__ == "__main__":
    main(sys.argv[1:])
