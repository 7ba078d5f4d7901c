#!/usr/bin/env python3
"""Holds docs/platform.md to what libvelkor.so takes from its platform.

    platform_page.py LIBVELKOR LIBVELKORPLATFORM

The page lists, per area, exactly the headers that sources of the services include, and names every class and function
of the platform that the library is bound to. What it shows of a build stands in that of the test.
"""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = ROOT / "docs" / "platform.md"
AREAS = {path.parent.name for path in (ROOT / "platform").glob("*/CMakeLists.txt")}


def listed_headers(page):
    area, headers = None, set()
    for line in page.splitlines():
        if line.startswith("#"):
            area = line.lstrip("# ")
        elif row := re.match(r"\| `(\w+\.h)`", line):
            headers.add((area, row[1]))
    return headers


def included_headers():
    sources = [path for path in (ROOT / "Velkorite").rglob("*") if path.suffix in (".cpp", ".h")]
    text = "\n".join(path.read_text() for path in sources if "generator" not in path.parts)
    return {pair for pair in re.findall(r'#include "velkor/(\w+)/(\w+\.h)"', text) if pair[0] in AREAS}


def symbols(library, which):
    lines = subprocess.run(["nm", "-D", which, library], check=True, text=True, stdout=subprocess.PIPE).stdout
    return {line.split()[-1] for line in lines.splitlines()}


def name_of(symbol):
    """The class of a member, the name of anything else."""
    symbol = re.sub(r"^(vtable|typeinfo) for ", "", re.sub(r"\[abi:\w+\]", "", symbol))
    words = re.split(r"[(<]", symbol)[0].replace("~", "").split("::")
    return next((word for word in words if word[0].isupper()), words[-1])


def main(library, platform):
    page = PAGE.read_text()
    taken = symbols(library, "--undefined-only") & symbols(platform, "--defined-only")
    demangled = subprocess.run(["c++filt"], check=True, text=True, input="\n".join(taken), stdout=subprocess.PIPE).stdout
    names = {name_of(symbol) for symbol in demangled.splitlines()}
    headers, listed = included_headers(), listed_headers(page)
    if len(names) < 40 or len(headers) < 40:
        sys.exit("the library takes next to nothing from its platform: these are not what is compared")
    problems = [f"{PAGE.name}: {name} is taken but not named" for name in sorted(names)
                if not re.search(rf"`[^`\n]*\b{name}\b[^`\n]*`", page)]
    problems += [f"{PAGE.name}: {area}/{header} is included but not listed" for area, header in sorted(headers - listed)]
    problems += [f"{PAGE.name}: {area}/{header} is listed but not included" for area, header in sorted(listed - headers)]
    build = (pathlib.Path(__file__).parent / "CMakeLists.txt").read_text().splitlines()
    shown = re.search(r"(?ms)^```cmake\n(.*?)^```", page)[1].splitlines()
    problems += [f"{PAGE.name}: no build has {line}" for line in shown if line not in build]
    sys.exit("\n".join(problems) or 0)


main(*sys.argv[1:])
