#!/usr/bin/env python3
"""A public header as Doxygen is to read it: header.py FILE, to standard output.

In headers a comment stands for the declarations that follow it, up to an empty line or the next comment; Doxygen wants
it in front of each. The comment at the top is the file's, and also that of the class which the file is named after when
it has none of its own. A handle of an interface says so itself. A backslash in a comment is one. Specialisations of
templates of the standard library are left out.
"""

import pathlib
import re
import sys


def indentation(line):
    return len(line) - len(line.lstrip())


def is_end(line):
    """True for the last line of a declaration that others may follow."""
    code = re.sub(r"\s*///?<?.*", "", line)
    return code.endswith((";", "}")) and not code.strip().startswith("};")


# What every class has: no comment of another is meant for it.
SPECIAL = re.compile(r".*(~|operator=\(|= (default|delete);)|(?:explicit )?(\w+)\((?:const )?\3 ?&")


def distributed(lines):
    """Each declaration of a run with the comment of the run."""
    comment, depth, result = [], 0, []
    for i, line in enumerate(lines):
        stripped = line.strip()
        if stripped.startswith("///"):
            if not lines[i - 1].strip().startswith("///"):
                comment, depth = [], indentation(line)
            comment.append(line)
        elif not stripped or indentation(line) < depth or "///<" in line or re.match(r"(};|#|//|\w+:$|friend )", stripped):
            comment = []
        elif comment and indentation(line) == depth and is_end(lines[i - 1]) and "///" not in lines[i - 1]:
            result += [] if SPECIAL.match(stripped) else comment
        result.append(line)
    return result


def main():
    path = pathlib.Path(sys.argv[1])
    text = re.sub(r"(?ms)^template <>\s+struct std::.*?^\};\n", lambda found: "\n" * found[0].count("\n"), path.read_text())
    lines = [line.replace("\\", "\\\\") if line.lstrip().startswith("///") else line for line in text.splitlines()]
    head = next((i for i, line in enumerate(lines) if not line.startswith("///")), 0)
    own = re.compile(rf"(?:class|struct|enum class)\s+(?:\w+_API\s+)?{re.escape(path.stem)}\b[^;]*$")
    result = ["/// @file"] if head and path.suffix == ".h" else []
    for i, line in enumerate(lines):
        handle = re.match(r"\s*using \w+_var = QORInterface_var<(\w+)>;", line)
        if i > head and own.match(line) and not lines[i - 1].startswith("///"):
            result += lines[:head]
        if handle and not lines[i - 1].startswith("///"):
            result.append(f"/// Holds a reference to a {handle[1]}.")
        result.append(line)
    print("\n".join(distributed(result)))


if __name__ == "__main__":
    main()
