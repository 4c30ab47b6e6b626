#!/usr/bin/env python3
"""Draws the instructions of the peers as multiples of the one call's.

    chart.py CALLGRIND.OUT CHART.SVG
"""
import math
import sys

from compare import PEERS, read_counts, rows

COLOURS = ["#0072b2", "#56b4e9", "#009e73", "#e69f00", "#cc79a7"]
LEFT, RIGHT, TOP = 210, 90, 74
BAR, GAP, WIDTH = 13, 14, 860
TICKS = [1, 2, 5, 10, 20, 50, 100]


def text(x, y, words, size=12, anchor="start", weight="normal"):
    return (f'<text x="{x:.1f}" y="{y:.1f}" font-size="{size}" text-anchor="{anchor}"'
            f' font-weight="{weight}">{words}</text>')


def rectangle(x, y, width, height, colour):
    return f'<rect x="{x:.1f}" y="{y:.1f}" width="{width:.1f}" height="{height}" fill="{colour}"/>'


def line(x, top, bottom, colour):
    return f'<path d="M{x:.1f} {top}V{bottom}" stroke="{colour}"/>'


def chart(figures):
    groups = [(message, direction, one["one call"], [one[peer] / one["one call"] for peer in PEERS])
              for message, direction, one in rows(figures)]
    least = min(1, *(min(ratios) for *_, ratios in groups))
    most = max(max(ratios) for *_, ratios in groups)
    scale = (WIDTH - LEFT - RIGHT) / math.log(most / least)
    group_height = len(PEERS) * BAR + GAP
    bottom = TOP + len(groups) * group_height
    height = bottom + 24

    def x_of(ratio):
        return LEFT + scale * math.log(ratio / least)

    parts = [rectangle(0, 0, WIDTH, height, "#ffffff"),
             text(16, 24, "Instructions of the peers, as multiples of libtarn's one call", 15,
                  weight="bold")]
    for i, (peer, colour) in enumerate(zip(PEERS, COLOURS)):
        parts += [rectangle(16 + 110 * i, 36, 11, 11, colour), text(31 + 110 * i, 46, peer)]
    for tick in TICKS:
        if tick <= most:
            parts += [line(x_of(tick), TOP - 6, bottom, "#333333" if tick == 1 else "#dddddd"),
                      text(x_of(tick), bottom + 16, "one call" if tick == 1 else f"{tick} times",
                           11, "middle")]
    for i, (message, direction, count, ratios) in enumerate(groups):
        top = TOP + i * group_height
        parts += [text(LEFT - 10, top + 26, message, anchor="end"),
                  text(LEFT - 10, top + 42, f"{direction}: {count:.0f} instructions", 11, "end")]
        for j, (ratio, colour) in enumerate(zip(ratios, COLOURS)):
            left, right = sorted((x_of(1), x_of(ratio)))
            parts += [rectangle(left, top + j * BAR, right - left, BAR - 2, colour),
                      text(right + 5, top + j * BAR + 10, f"{ratio:.1f}", 11)]
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{height}"'
            f' viewBox="0 0 {WIDTH} {height}" font-family="sans-serif" fill="#222222">\n'
            + "\n".join(parts) + "\n</svg>\n")


def main(arguments):
    if len(arguments) != 2:
        sys.exit(__doc__)
    with open(arguments[1], "w", encoding="utf-8") as file:
        file.write(chart(read_counts(arguments[0])))


if __name__ == "__main__":
    main(sys.argv[1:])
