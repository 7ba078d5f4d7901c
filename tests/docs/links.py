#!/usr/bin/env python3
"""Every link in the pages of the tree leads somewhere: to a file or folder, and to a heading of it where it names one.

    links.py [FOLDER]    the tree that this script stands in unless told
"""

import pathlib
import re
import sys
import urllib.parse

ROOT = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else pathlib.Path(__file__).parents[2]).resolve()
SKIPPED = {"build", ".git", ".cache"}


def prose(page):
    """(number, line) of each line that is no code."""
    fence = False
    for number, line in enumerate(page.read_text().splitlines(), 1):
        if line.startswith("```"):
            fence = not fence
        elif not fence and not line.startswith("    "):
            yield number, line


def anchors(page):
    """What headings are called in addresses: the second of a name has -1 behind it."""
    found = set()
    for _, line in prose(page):
        heading = re.match(r"#+ (.*)", line)
        if heading:
            text = re.sub(r"\[([^\]]*)\]\([^)]*\)", r"\1", heading[1]).lower()
            name = re.sub(r"[^\w\- ]", "", text).strip().replace(" ", "-")
            count = 1
            while (name if count == 1 else f"{name}-{count - 1}") in found:
                count += 1
            found.add(name if count == 1 else f"{name}-{count - 1}")
    return found


def fault(page, address):
    """What is wrong with an address on a page, None when nothing is."""
    parts = urllib.parse.urlsplit(address)
    if parts.scheme:
        return None if parts.scheme in ("https", "mailto") else "expected https"
    target = (page.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else page
    if not target.exists():
        return "no such file"
    if not target.is_relative_to(ROOT):
        return "leads out of the tree"
    if parts.fragment and (target.suffix != ".md" or parts.fragment not in anchors(target)):
        return "no such heading"
    return None


def main():
    count, failed = 0, 0
    for page in sorted(ROOT.rglob("*.md")):
        if SKIPPED & set(page.relative_to(ROOT).parts):
            continue
        for number, line in prose(page):
            for address in re.findall(r"\]\(([^)\s]+)\)", re.sub(r"`[^`]*`(?!\])", "", line)):
                count += 1
                wrong = fault(page, address)
                if wrong:
                    failed += 1
                    print(f"{page.relative_to(ROOT)}:{number}: {address}: {wrong}")
    print(f"{count} links, {failed} failed")
    sys.exit(failed != 0 or count == 0)


if __name__ == "__main__":
    main()
