"""Takes the examples out of documents, so that they can be compiled.

Usage: extract.py OUTPUT_DIRECTORY DOCUMENT...

A block fenced as c or cpp that includes a header is a source file of its own. Any other is taken as
the inside of a function; in C, among the variables that prelude.h declares. Prints the files written."""
import pathlib
import re
import sys

output = pathlib.Path(sys.argv[1])
output.mkdir(parents=True, exist_ok=True)
fragments = {
    "c": ['#include "prelude.h"\n'],
    "cpp": ['#include <cstdio>\n#include "tarn.hpp"\n'],
}
for document in map(pathlib.Path, sys.argv[2:]):
    text = document.read_text()
    for block in re.finditer(r"^```(c|cpp)\n(.*?)^```$", text, re.MULTILINE | re.DOTALL):
        language, code = block.groups()
        line = text.count("\n", 0, block.start()) + 2
        name = f"{document.stem}_{line}"
        place = f'#line {line} "{document.name}"\n'
        if "#include" not in code:
            function = f"void {name}(void);\nvoid {name}(void) {{\n{place}{code}}}\n"
            fragments[language].append(function)
            continue
        file = output / f"{name}.{language}"
        file.write_text(place + code)
        print(file)
for language, functions in fragments.items():
    file = output / f"fragments.{language}"
    file.write_text("".join(functions))
    print(file)
