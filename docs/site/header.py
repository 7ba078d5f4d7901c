#!/usr/bin/env python3
"""A public header as Doxygen is to read it: header.py FILE, to standard output.

The comment at the top is the file's, and also that of the class which the file is named after when it has none of its
own. A backslash in a comment is one. Specialisations of templates of the standard library are left out.
"""

import pathlib
import re
import sys


def main():
    path = pathlib.Path(sys.argv[1])
    text = re.sub(r"(?ms)^template <>\s+struct std::.*?^\};\n", lambda found: "\n" * found[0].count("\n"), path.read_text())
    lines = [line.replace("\\", "\\\\") if line.lstrip().startswith("///") else line for line in text.splitlines()]
    head = next((i for i, line in enumerate(lines) if not line.startswith("///")), 0)
    own = re.compile(rf"(?:class|struct|enum class)\s+(?:\w+_API\s+)?{re.escape(path.stem)}\b[^;]*$")
    result = ["/// @file"] if head and path.suffix == ".h" else []
    for i, line in enumerate(lines):
        if i > head and own.match(line) and not lines[i - 1].startswith("///"):
            result += lines[:head]
        result.append(line)
    print("\n".join(result))


if __name__ == "__main__":
    main()
