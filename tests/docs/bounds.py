#!/usr/bin/env python3
"""Holds the bounds in docs/robustness.md to the constants that set them.

    bounds.py

A row of its tables ends with a constant and the source it stands in, [name](path), and has its value in the column
before the last but one. The page names every fuzz target.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGE = ROOT / "docs" / "robustness.md"
UNITS = {"": 1, "KB": 1 << 10, "MB": 1 << 20, "GB": 1 << 30, "million": 10 ** 6}


def shown_value(cell):
    number, unit = re.search(r"(\d[\d,]*)(?: (KB|MB|GB|million)\b)?", cell).groups(default="")
    return int(number.replace(",", "")) * UNITS[unit]


def value_of(name, source):
    """The value of a constant; None when the source has none of the name."""
    found = re.search(rf"\bconstexpr\b[^;]*\b{name} = ([^;,]+)[;,]", source)
    if found is None:
        return None
    text = re.sub(r"std::size_t\{(\d+)\}", r"\1", found[1]).replace("'", "")
    text = re.sub(r"\b(0x[0-9A-Fa-f]+|\d+)[uUlL]*\b", r"\1", text)
    return eval(text, {"__builtins__": {}})  # pylint: disable=eval-used


def main():
    page = PAGE.read_text()
    problems, checked = [], 0
    for line in page.splitlines():
        row = re.fullmatch(r"\| (.+) \| (.+) \| (.+) \| \[(\w+)\]\(\.\./([\w./]+)\) \|", line)
        if row is None:
            continue
        checked += 1
        what, shown, _, name, path = row.groups()
        source = ROOT / path
        value = value_of(name, source.read_text()) if source.is_file() else None
        if value is None:
            problems.append(f"{what}: {path} has no constant {name}")
        elif value != shown_value(shown):
            problems.append(f"{what}: the page says {shown}, {name} is {value:,}")
    if checked < 20:
        problems.append(f"only {checked} rows have a constant")
    targets = re.findall(r"velkor_fuzz\((\w+)", (ROOT / "tests/fuzz/CMakeLists.txt").read_text())
    problems += [f"{target} is not named" for target in targets if f"`{target}`" not in page]
    sys.exit("\n".join(f"{PAGE.name}: {problem}" for problem in problems) or 0)


main()
