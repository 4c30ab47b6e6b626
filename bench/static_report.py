#!/usr/bin/env python3
"""Reports what a statically linked program takes of libtarn.a, by the linker's map.

    static_report.py WHAT LIMIT MAP
"""
import collections
import re
import sys


def kept_sections(text):
    """(section, object, bytes) of all that the linker kept of the library."""
    kept = text[text.index("Linker script and memory map"):]
    pattern = r"^ (\.[\w.$]+)\s+0x[0-9a-f]+\s+0x([0-9a-f]+)\s+\S*libtarn\.a\(([^)]+)\)$"
    for section, size, member in re.findall(pattern, kept, re.MULTILINE):
        if section.startswith((".text", ".rodata", ".data")):
            yield section, member.removesuffix(".cpp.obj"), int(size, 16)


def main(what, limit, path):
    with open(path, encoding="utf-8") as map_file:
        parts = list(kept_sections(map_file.read()))
    total, limit = sum(size for _, _, size in parts), int(limit)
    constants = sum(size for section, _, size in parts if not section.startswith(".text"))
    print(f"{what}: {total} bytes, of which {constants} are constants;"
          f" {100 * total / limit:.0f} % of {limit}{'' if total <= limit else ' !'}")
    objects = collections.Counter()
    for _, member, size in parts:
        objects[member] += size
    for member, size in objects.most_common(8):
        print(f"  {member:<28} {size:>6}")
    return 0 if total <= limit else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]) if len(sys.argv) == 4 else __doc__)
