#!/usr/bin/env python3
"""Builds the site of docs/ with MkDocs and Doxygen, and judges what it built.

    build.py FOLDER    the pages come to FOLDER/site; no tool may warn, no link may lead nowhere

Pages are staged first: links that leave docs/ lead to copies below tree/, folders get a page that lists them, and the
file that a sample is, which stands behind the language of its fence, is told above it.
"""

import html
import html.parser
import os
import pathlib
import re
import shutil
import subprocess
import sys
import urllib.parse

import yaml

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]
DOCS = ROOT / "docs"
LINK = re.compile(r"(!?\[[^\]]*\]\()([^)\s]+)(\))")
# Code with a bar in it, in a cell of a table.
CELL_CODE = re.compile(r"`([^`]*\\\|[^`]*)`")
# Of what Doxygen finds without a comment.
SPEAKS_FOR_ITSELF = re.compile(r"Member .*(\((variable|friend)\)|=default|=delete|~).* is not documented"
                               r"|Member (\w+)\((const )?\3 ?&+|Member operator=\(|Member VELKOR_\w*API ")
FIRST = ["README.md", "CHANGELOG.md", "CONTRIBUTING.md"]


def staged_name(path):
    """Where a file or folder of the tree stands in the site's sources."""
    inside = path.is_relative_to(DOCS)
    name = path.relative_to(DOCS) if inside else pathlib.Path("tree") / path.relative_to(ROOT)
    return name / "README.md" if path.is_dir() else name


def cell_code(found):
    return "<code>" + html.escape(found[1].replace("\\|", "|")).replace("|", "&#124;") + "</code>"


class Stage:
    """The sources of the site: pages and all that they link to."""

    def __init__(self, folder):
        self.folder = folder
        self.done = set()
        self.faults = []

    def add(self, path):
        if path in self.done:
            return
        self.done.add(path)
        target = self.folder / staged_name(path)
        target.parent.mkdir(parents=True, exist_ok=True)
        if path.is_dir():
            target.write_text(self.rewritten(path / "README.md", self.listing(path)))
        elif path.suffix == ".md":
            target.write_text(self.rewritten(path, path.read_text()))
        else:
            shutil.copyfile(path, target)

    def listing(self, folder):
        """The page of a folder: what it says of itself, and its files."""
        own = folder / "README.md"
        text = own.read_text() if own.exists() else f"# {folder.relative_to(ROOT)}\n"
        self.done.add(own)
        names = sorted(path.name for path in folder.iterdir() if path.is_file() and path != own)
        return text + "\n## Files\n\n" + "".join(f"- [{name}]({name})\n" for name in names)

    def rewritten(self, page, text):
        lines, fence = [], False
        for line in text.splitlines():
            named = re.fullmatch(r"```(\w+) (\S+)", line)
            if line.startswith("```"):
                fence = not fence
            elif not fence and not line.startswith("    "):
                line = LINK.sub(lambda found: self.link(page, found), line)
                if line.startswith("|"):
                    line = CELL_CODE.sub(cell_code, line)
            if named and fence:
                lines += [f'<p class="file-name">{named[2]}</p>', "", f"```{named[1]}"]
            else:
                lines.append(line)
        return "\n".join(lines) + "\n"

    def link(self, page, found):
        address, mark, anchor = found[2].partition("#")
        if not address or urllib.parse.urlsplit(address).scheme:
            return found[0]
        path = (page.parent / address).resolve()
        if not path.is_relative_to(ROOT) or not path.exists():
            self.faults.append(f"{page.relative_to(ROOT)}: no {address}")
            return found[0]
        self.add(path)
        return found[1] + os.path.relpath(staged_name(path), staged_name(page).parent) + mark + anchor + found[3]


def named_pages(nav):
    for entry in nav:
        for value in entry.values():
            yield from named_pages(value) if isinstance(value, list) else [value]


def write_configuration(folder, target):
    site = yaml.safe_load((HERE / "mkdocs.yml").read_text())
    named = set(named_pages(site["nav"]))
    further = sorted(path.name for path in DOCS.glob("*.md") if path.name not in named)
    if further:
        site["nav"].append({"Further pages": further})
    site["docs_dir"], site["site_dir"] = str(folder), str(target.parent / "site")
    target.write_text(yaml.safe_dump(site, sort_keys=False))


def run(*command):
    """Ends the build where a tool fails or warns."""
    done = subprocess.run(command, cwd=ROOT, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if done.returncode != 0:
        sys.exit(f"{done.stdout}{command[0]} failed")


def make_reference():
    """Doxygen's pages. Members of data and enumerators speak for themselves, and so does what every class has; all else
    that is public has a comment."""
    # Headers are named as programs include them.
    roots = [ROOT / "Velkorite/interfaces", *ROOT.glob("platform/**/include"), *ROOT.glob("toolkit/**/include")]
    settings = (HERE / "Doxyfile").read_text() + f"STRIP_FROM_INC_PATH = {' '.join(map(str, roots))}\n"
    done = subprocess.run(["doxygen", "-"], cwd=ROOT, text=True, input=settings, stderr=subprocess.PIPE)
    warnings = [line for line in sorted(set(done.stderr.splitlines())) if not SPEAKS_FOR_ITSELF.search(line)]
    if done.returncode != 0 or warnings:
        sys.exit("\n".join([*warnings, f"doxygen: {len(warnings)} warnings"]))


class Page(html.parser.HTMLParser):
    """What a built page defines and asks for."""

    def __init__(self, text):
        super().__init__()
        self.ids, self.links, self.parts = set(), [], []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        self.ids.update(values[name] for name in ("id", "name") if values.get(name))
        for name in ("href", "src", "srcset", "data", "poster"):
            if values.get(name):
                (self.links if tag == "a" else self.parts).append(values[name])


def judge(site):
    """(pages, faults): links and anchors that lead nowhere, and whatever a page would fetch from elsewhere."""
    pages = {path: Page(path.read_text(errors="replace")) for path in site.rglob("*.html")}
    faults = []
    for path, page in pages.items():
        name = path.relative_to(site)
        for address in page.links + page.parts:
            parts = urllib.parse.urlsplit(address)
            if parts.scheme or parts.netloc:
                if address in page.parts and parts.scheme not in ("data", "javascript"):
                    faults.append(f"{name}: fetches {address}")
                continue
            target = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
            if not target.exists():
                faults.append(f"{name}: no {address}")
            elif name.parts[0] != "api" and parts.fragment and target in pages and urllib.parse.unquote(parts.fragment) not in pages[target].ids:
                faults.append(f"{name}: no anchor {address}")
    for path in site.rglob("*.css"):
        for address in re.findall(r"(?:url\(|@import )\s*[\"']?(https?:|//)", path.read_text(errors="replace")):
            faults.append(f"{path.relative_to(site)}: fetches from {address}")
    return len(pages), faults


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    pages, site = folder / "pages", folder / "site"
    for old in (pages, site):
        shutil.rmtree(old, ignore_errors=True)
    pages.mkdir(parents=True)
    stage = Stage(pages)
    for path in [*(ROOT / name for name in FIRST), *sorted(DOCS.glob("*.md"))]:
        stage.add(path)
    if stage.faults:
        sys.exit("\n".join(stage.faults))
    shutil.copyfile(HERE / "site.css", pages / "site.css")
    make_reference()
    write_configuration(pages, folder / "mkdocs.yml")
    run("mkdocs", "build", "--strict", "--quiet", "--config-file", str(folder / "mkdocs.yml"))
    # Only a server needs it, and it has addresses of one.
    (site / "404.html").unlink()
    count, faults = judge(site)
    print("\n".join([*faults[:20], f"{count} pages in {site}, {len(faults)} faults"]))
    sys.exit(bool(faults) or count == 0)


if __name__ == "__main__":
    main()
