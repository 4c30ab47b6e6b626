#!/usr/bin/env python3
"""Reports the sizes of a libtarn built with -fcallgraph-info=su.

    size_report.py TITLE STRIPPED.SO OBJECT_DIRECTORY [TOOL_PREFIX]
    size_report.py TITLE BUILT_FOR_SPEED.SO
"""
import collections
import pathlib
import re
import subprocess
import sys

FILE_LIMIT = 150 * 1024
ENGINE_LIMIT = 16 * 1024
SPEED_TEXT_LIMIT = 520000
# For 32-bit ARM; the last is for any machine and chain.
STACK_LIMITS = {"decode": 2400, "get": 2304, "build": 1664}
STACK_LIMIT = 8 * 1024

# How deep types nest, which bounds every recursion: a HandoverRequest's composites go nine deep
# (RabToSetupPerCnDomainList down to SduFormatInfoParams), and a HandoutRabReleaseList four (list,
# record, list, scalar).
COMPOSITE_DEPTH = 9
VALUE_DEPTH = 4

SYMBOL_SECTIONS = (".dynsym", ".dynstr", ".gnu.hash", ".hash", ".gnu.version", ".gnu.version_r")


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def verdict(value, limit):
    return f"{value} bytes, {100 * value / limit:.0f} % of {limit}{'' if value <= limit else ' !'}"


# ---- The file -------------------------------------------------------------------------------------

def sections(tools, path):
    """(name, address, size) of each section with a place in the file."""
    found = []
    for line in run(tools + "readelf", "-SW", path).splitlines():
        match = re.match(r"\s*\[\s*\d+\]\s+(\.\S+)\s+(\S+)\s+([0-9a-f]+)\s+\S+\s+([0-9a-f]+)\s", line)
        if match and match.group(2) != "NOBITS":
            found.append((match.group(1), int(match.group(3), 16), int(match.group(4), 16)))
    return found


def count_relocations(tools, path, parts):
    """How many of each kind apply to which section: none should apply to the catalogue's tables,
    which stand in .rodata."""
    kinds = collections.Counter()
    for line in run(tools + "readelf", "-rW", path).splitlines():
        match = re.match(r"([0-9a-f]+)\s+[0-9a-f]+\s+(R_\w+)", line)
        if match:
            at = int(match.group(1), 16)
            kinds[match.group(2), next((name for name, start, size in parts
                                        if start <= at < start + size), "?")] += 1
    return kinds


def report_file(tools, path):
    total = pathlib.Path(path).stat().st_size
    print(f"Stripped shared object: {verdict(total, FILE_LIMIT)}")
    parts = sections(tools, path)
    for name, _, size in sorted(parts, key=lambda part: -part[2]):
        print(f"  {name:<20} {size:>7}")
    symbols = sum(size for name, _, size in parts if name in SYMBOL_SECTIONS)
    exported = len(re.findall(r" [TtVWRDB] ", run(tools + "nm", "-D", "--defined-only", path)))
    print(f"  symbol tables together {symbols}, {100 * symbols / total:.0f} % of the file,"
          f" for {exported} exported functions")
    for (kind, section), count in count_relocations(tools, path, parts).items():
        print(f"  {count} relocations {kind} in {section}")


# ---- The engine -----------------------------------------------------------------------------------

def code_and_constants(tools, path):
    size = 0
    for line in run(tools + "size", "-A", path).splitlines():
        match = re.match(r"(\.text|\.rodata|\.data\.rel\.ro)\S*\s+(\d+)", line)
        if match:
            size += int(match.group(2))
    return size


def report_engine(tools, directory):
    engine, doors = {}, 0
    for path in sorted(pathlib.Path(directory).rglob("*.o")):
        size = code_and_constants(tools, str(path))
        if path.name.endswith("_doors.cpp.o"):
            doors += size
        else:
            engine[str(path.relative_to(directory))] = size
    print(f"Code and constants of the engine and its tables:"
          f" {verdict(sum(engine.values()), ENGINE_LIMIT)}")
    for name, size in sorted(engine.items(), key=lambda entry: -entry[1]):
        print(f"  {name:<52} {size:>6}")
    print(f"  (the exported functions, *_doors.cpp: {doors})")


# ---- The stack ------------------------------------------------------------------------------------

class CallGraph:
    """Who calls whom, and each function's frame, from the compiler's .ci files."""

    def __init__(self, directory):
        self.frames, self.files, self.calls = {}, {}, collections.defaultdict(set)
        for path in sorted(pathlib.Path(directory).rglob("*.ci")):
            self._read(path.read_text(encoding="utf-8"))
        self.components = self._components()

    def _read(self, text):
        # An instance of a template bears its file's name, but only in the file that defines it.
        text = re.sub(r'"[^"\\]*:(_Z(?!\w*_GLOBAL__N_)[^"]*)"', r'"\1"', text)
        node = r'node: \{ title: "([^"]+)" label: "[^"]*\\n([^"\\]*):\d+:\d+\\n(\d+) bytes'
        for name, file, size in re.findall(node, text):
            self.frames[name] = max(int(size), self.frames.get(name, 0))
            self.files[name] = pathlib.Path(file).name
        for source, target in re.findall(r'edge: \{ sourcename: "([^"]+)" targetname: "([^"]+)"',
                                         text):
            self.calls[source].add(target)

    def callees(self, name):
        return [target for target in sorted(self.calls[name]) if target in self.frames]

    def _components(self):
        """The functions that can reach each other, by function."""
        reach = {name: self._reach(name) for name in self.frames}
        return {name: frozenset([name] + [other for other in reach[name] if name in reach[other]])
                for name in self.frames}

    def _reach(self, name):
        seen, waiting = set(), self.callees(name)
        while waiting:
            following = waiting.pop()
            if following not in seen:
                seen.add(following)
                waiting += self.callees(following)
        return seen

    def depth(self, component):
        """How often the functions of a recursion may be on the stack at once."""
        name = next(iter(component))
        if len(component) == 1 and name not in self.calls[name]:
            return 1
        isOfValues = all(self.files[member].startswith("values") for member in component)
        return VALUE_DEPTH if isOfValues else COMPOSITE_DEPTH

    def longest_round(self, name, component, taken=()):
        """The deepest simple path from a function within its recursion."""
        best = (0, ())
        for callee in self.callees(name):
            if callee in component and callee not in taken and callee != name:
                best = max(best, self.longest_round(callee, component, taken + (name,)))
        return best[0] + self.frames[name], (name,) + best[1]

    def deepest(self, name, known):
        """Bytes and functions of the deepest chain from a function. A recursion counts as its
        deepest round as often as types nest, then the deepest way out of any of its functions."""
        if name in known:
            return known[name]
        component = self.components[name]
        depth = self.depth(component)
        size, path = max(self.longest_round(member, component) for member in component)
        exits = [self.deepest(callee, known) for member in component
                 for callee in self.callees(member) if callee not in component]
        rest = max(exits, default=(0, ()))
        shown = tuple(f"{depth} x {member}" if depth > 1 else member for member in path)
        known[name] = (size * depth + rest[0], shown + rest[1])
        return known[name]


def demangle(tools, text):
    """Function names alone: no arguments, files or namespaces."""
    name = run(tools + "c++filt", re.sub(r"^.*:", "", text)).strip()
    name = re.sub(r"\(anonymous namespace\)::", "", name)
    return re.sub(r"\(.*| \[clone.*", "", name).replace("tarn::", "")


def show_chain(tools, graph, chain):
    for entry in chain:
        count, _, name = entry.rpartition(" x ")
        prefix = f"{count} x " if count else ""
        print(f"      {prefix + demangle(tools, name):<44} {graph.frames[name]:>5}")


def report_stack(tools, directory):
    graph = CallGraph(directory)
    largest = sorted(graph.frames, key=lambda name: -graph.frames[name])[:10]
    print("Stack, largest frames:")
    for name in largest:
        print(f"  {demangle(tools, name):<48} {graph.frames[name]:>5}")
    known = {}
    limits = STACK_LIMITS if tools else {}
    print("Stack, deepest chains of calls without the host's own frames:")
    for verb, entry in (("decode", "TarnUnpackNewMsg"), ("get", "TarnGetHandoverRequestMsg"),
                        ("build", "TarnBuildHandoverRequestMsg"),
                        ("validate", "TarnIsHandoverRequestMsgValid"),
                        ("pack", "TarnPackHandoverRequestMsg"), ("delete", "TarnDeleteMsg")):
        size, chain = graph.deepest(entry, known)
        print(f"  {verb:<9} {verdict(size, limits.get(verb, STACK_LIMIT))}")
        show_chain(tools, graph, chain)


def main(arguments):
    if len(arguments) not in (2, 3, 4):
        sys.exit(__doc__)
    title, library = arguments[:2]
    print(f"==== {title}\n")
    if len(arguments) == 2:
        text = int(run("size", library).splitlines()[1].split()[0])
        print(f"Text, constants and symbols: {verdict(text, SPEED_TEXT_LIMIT)}\n")
        return
    directory = arguments[2]
    tools = arguments[3] if len(arguments) == 4 else ""
    report_file(tools, library)
    print()
    report_engine(tools, directory)
    print()
    report_stack(tools, directory)
    print()


if __name__ == "__main__":
    main(sys.argv[1:])
