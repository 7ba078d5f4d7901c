#!/usr/bin/env python3
"""Holds README.md and docs/*.md to what they show.

    pages.py commands PROGRAM    runs every command line; what a page shows of an answer must be there
    pages.py samples FOLDER      writes a project of the C++ samples, one program a page

In an answer "…" stands for any text, alone in a line for any lines. A fence with a file name behind its
language is that file, from there on. The samples of a page are one function, in their order.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGES = [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]
# The files that the pages speak of.
FILES = {
    "house.ifc": "examples/models/house-ifc2x3.ifc",
    "my-model.ifc": "examples/models/pump-room-ifc4.ifc",
    "broken.ifc": "examples/models/broken.ifc",
    "mapping.xml": "resources/standard/ifcCustomMapping/CustomMapping.xml",
    "my.json": "docs/configuration-example.json",
    "velkor.json": "docs/configuration-example.json",
}
FOLDERS = {
    "site/ifc": ["ours.xml"],
    "base/ifc": ["ours.xml", "releases.xml"],
    "site/ifcCustomMapping": ["walls.xml"],
    "base/ifcCustomMapping": ["standard.xml"],
}
# They build or test the tree that is being tested.
NOT_RUN = ("scripts/test", "scripts/bench", "scripts/faults", "scripts/fuzz", "scripts/package", "cmake --preset",
           "cmake --install")


def blocks(page):
    """(line, info, lines) of each fence, and of each indented block with no info."""
    info, start, taken = None, 0, []
    for number, line in enumerate([*page.read_text().splitlines(), "end"], 1):
        fence = line.startswith("```")
        if fence or (info == "" and line and not line.startswith("    ")):
            if info is not None:
                yield start, info, taken
            info = line[3:].strip() or "text" if fence and not info else None
            start, taken = number + 1, []
        elif info is None and line.startswith("    "):
            info, start, taken = "", number, [line[4:]]
        elif info is not None:
            taken.append(line if info else line[4:])


def commands(lines):
    """(offset, command, shown lines or None) of each command of a block."""
    if any(line.startswith("$ ") for line in lines):
        at = [i for i, line in enumerate(lines) if line.startswith("$ ")]
        for begin, end in zip(at, [*at[1:], len(lines)]):
            yield begin, lines[begin][2:], lines[begin + 1:end]
        return
    for i, line in enumerate(lines):
        if re.match(r"(\w+=\S+ )*(velkor|cmake|scripts/\S+) ", line + " "):
            yield i, line, None


def pattern(command, shown):
    text = "\n".join(line.rstrip() for line in shown).strip("\n")
    result = re.escape(text).replace("\\\n", "\n")
    result = re.sub(r"(?m)^(\\ )*…(\n|\Z)", lambda _: "(?:.*\n)*?", result).replace("…", ".*")
    # New identifiers are never those of the page.
    return re.sub(r"(?m)^.{22}\S*$", r"[0-9A-Za-z_$]{22}", result) if "guid new" in command else result


def run(command, folder, path):
    environment = {"PATH": f"{path}:{os.environ['PATH']}", "LANG": "C.UTF-8", "HOME": str(folder)}
    return subprocess.run(["bash", "-c", command], cwd=folder, env=environment, text=True, timeout=120,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)


def fault(command, shown, folder, path):
    """What is wrong with a command of a page, None when nothing is."""
    if re.sub(r"^(\w+=\S+ )+", "", command).startswith(NOT_RUN):
        script = re.search(r"scripts/\S+", command)
        if script and not os.access(ROOT / script[0], os.X_OK):
            return "no such script"
        preset = re.search(r"--preset (\S+)", command)
        if preset and f'"{preset[1]}"' not in (ROOT / "CMakePresets.json").read_text():
            return "no such preset"
        return None
    answer = run(command, folder, path)
    if answer.returncode not in (0, 1, 3) or (shown is None and answer.returncode == 3):
        return f"status {answer.returncode}:\n{answer.stdout}"
    text = "\n".join(line.rstrip() for line in answer.stdout.splitlines()) + "\n"
    if shown and not re.fullmatch(pattern(command, shown) + r"\n*", text):
        return f"the page shows another answer than\n{text}"
    return None


def copy_files(folder):
    for name, source in FILES.items():
        shutil.copy(ROOT / source, folder / name)


def prepare(folder, program):
    """A folder with the files and, for scripts/run, a project that is built already."""
    copy_files(folder)
    for place, names in FOLDERS.items():
        (folder / place).mkdir(parents=True)
        for name in names:
            (folder / place / name).write_text("<x/>\n")
    shutil.copytree(ROOT / "scripts", folder / "scripts")
    (folder / "examples").symlink_to(ROOT / "examples")
    (folder / "build/release").mkdir(parents=True)
    (folder / "build/release/bin").symlink_to(program.parent)
    (folder / "stubs").mkdir()
    for name, text in {"cmake": "", "ninja": "", "dpkg-query": "printf installed"}.items():
        (folder / "stubs" / name).write_text(f"#!/bin/sh\n{text}\n")
        (folder / "stubs" / name).chmod(0o755)


def check_commands(program):
    run_count, failed = 0, 0
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        prepare(folder, program)
        for page in PAGES:
            for line, info, lines in blocks(page):
                if " " in info:
                    file = folder / info.split()[1]
                    file.parent.mkdir(parents=True, exist_ok=True)
                    file.write_text("\n".join(lines) + "\n")
                for offset, command, shown in commands(lines):
                    run_count += 1
                    wrong = fault(command, shown, folder, f"{folder / 'stubs'}:{program.parent}")
                    if wrong:
                        failed += 1
                        print(f"{page}:{line + offset}: {command}: {wrong}")
            # Those in the running text at least exist.
            for command in set(re.findall(r"`(velkor (?:[a-z-]+ ?)+)`", page.read_text())):
                if run(f"{command} --help", folder, program.parent).returncode != 0:
                    failed += 1
                    print(f"{page}: no command {command}")
    print(f"{run_count} command lines, {failed} failed")
    return failed + (run_count == 0)


def write_samples(folder):
    folder.mkdir(parents=True)
    project = "cmake_minimum_required(VERSION 3.25)\nproject(Pages LANGUAGES CXX)\n"
    for page in PAGES:
        samples = [lines for _, info, lines in blocks(page) if info == "cpp"]
        if not samples:
            continue
        lines = [line for sample in samples for line in [*sample, ""]]
        includes = [line for line in lines if line.startswith("#include")]
        body = [line for line in lines if not line.startswith("#include")]
        text = "\n".join([*includes, '#include "PageContext.h"', "", "int main() {", *body, "return 0;", "}", ""])
        (folder / f"{page.stem}.cpp").write_text(text)
        links = [line for _, info, lines in blocks(page) if info == "cmake" for line in lines]
        target = "importer" if links else page.stem
        project += f"add_executable({target} {page.stem}.cpp)\n" + "\n".join(
            links or [f"target_link_libraries({target} PRIVATE velkor::velkor)"]) + "\n"
    (folder / "CMakeLists.txt").write_text(project)
    shutil.copy(ROOT / "tests/docs/PageContext.h", folder)
    copy_files(folder)


if __name__ == "__main__":
    if sys.argv[1] == "samples":
        write_samples(pathlib.Path(sys.argv[2]))
    else:
        sys.exit(1 if check_commands(pathlib.Path(sys.argv[2]).resolve()) else 0)
