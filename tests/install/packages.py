#!/usr/bin/env python3
"""Holds a folder of packages to what Debian, and who installs them, expects: names, dependencies, places of files.

    packages.py FOLDER

It needs dpkg-deb and readelf.
"""

import gzip
import pathlib
import re
import subprocess
import sys
import tarfile
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
VERSION = re.search(r"^project\(Velkor VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text(), re.M)[1]
MAJOR = VERSION.split(".")[0]
LIBRARIES = ["velkorplatform", "velkor", "velkortoolkit"]
ARCHITECTURE, TRIPLET = (subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout.strip()
                         for command in (["dpkg", "--print-architecture"], ["dpkg-architecture", "-qDEB_HOST_MULTIARCH"]))
LIB = f"usr/lib/{TRIPLET}"
OURS = f"(= {VERSION})"
# By package: what it depends on among others, what it must not depend on, what it has among others, and where all
# that it has lies.
PACKAGES = {
    "velkor": (
        {f"libvelkor{MAJOR} {OURS}", "libc6", "libstdc++6"}, {"python3", "libvelkor-dev"},
        ["usr/bin/velkor", "usr/share/man/man1/velkor.1.gz", "usr/share/man/man1/velkor-report.1.gz",
         "usr/share/bash-completion/completions/velkor", "usr/share/zsh/vendor-completions/_velkor",
         "usr/share/fish/vendor_completions.d/velkor.fish", "usr/share/velkor/runtime/IFC4X3_ADD2/resources",
         "usr/share/velkor/standard"],
        r"usr/bin/velkor$|usr/share/man/man1/velkor[a-z-]*\.1\.gz$|usr/share/(bash-completion|zsh|fish|velkor)/"),
    f"libvelkor{MAJOR}": (
        {"libc6", "libstdc++6", "libutf8proc2", "libxml2", "libzip4", "zlib1g"}, {"velkor", "libvelkor-dev", f"libvelkor{MAJOR}"},
        [f"{LIB}/lib{library}.so.{version}" for library in LIBRARIES for version in (MAJOR, VERSION)],
        rf"{LIB}/lib[a-z]+\.so\.[\d.]+$|usr/share/lintian/overrides/"),
    "libvelkor-dev": (
        {f"libvelkor{MAJOR} {OURS}", f"velkor {OURS}", "libexpected-dev"}, {"libc6"},
        [*(f"{LIB}/lib{library}.so" for library in LIBRARIES),
         *(f"{LIB}/pkgconfig/{name}.pc" for name in ("velkor-platform", "velkor", "velkor-toolkit")),
         f"{LIB}/cmake/Velkor/VelkorConfig.cmake", f"{LIB}/cmake/Velkor/VelkorTargets.cmake",
         "usr/include/velkor/check/ModelCheck.h", "usr/include/velkor/sdai/Model.h",
         "usr/include/velkor/interfaces/QORIFCUnitServices.h"],
        rf"{LIB}/(lib[a-z]+\.so$|pkgconfig/velkor[a-z-]*\.pc$|cmake/Velkor/)|usr/include/velkor/.*\.h$"),
    "python3-velkor": (
        {f"libvelkor{MAJOR} {OURS}", f"velkor {OURS}", "python3", "libc6"}, {"libvelkor-dev"},
        ["usr/lib/python3/dist-packages/velkor/__init__.py"],
        r"usr/lib/python3/dist-packages/velkor/[^/]+\.(py|pyi|so|typed)$|usr/lib/python3/dist-packages/velkor/py\.typed$"),
}
faults = []


def expect(truth, fault):
    if not truth:
        faults.append(fault)


def output(*command):
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def fields(deb):
    text = re.sub(r"\n ", " ", output("dpkg-deb", "--field", deb))
    return dict(re.findall(r"^([\w-]+): (.*)$", text, re.M))


def check_depends(name, depends):
    wanted, unwanted, _, _ = PACKAGES[name]
    alternatives = [entry.strip() for entry in depends.split(",")] if depends else []
    names = {entry.split(" ")[0] for entry in alternatives}
    for entry in wanted:
        expect(entry in alternatives if " " in entry else entry in names, f"{name} does not depend on {entry}: {depends}")
    expect(not names & unwanted, f"{name} depends on {names & unwanted}")


def check_places(name, path):
    """What other machines read names no place of this one. ROOT may be as short as a part of any path."""
    found = re.search(rb"(?<![\w./}-])" + re.escape(bytes(ROOT)) + b"/", path.read_bytes())
    expect(not found, f"{name}: {path.name} names the folder of the sources")


def check_binary(name, path, is_archive):
    dynamic = output("readelf", "--dynamic", "--wide", path)
    found = re.search(r"\(R(?:UN)?PATH\).*\[(.*)\]", dynamic)
    if is_archive:
        expect(found and found[1].startswith("$ORIGIN"), f"{name}: {path.name} finds no libraries beside it")
    else:
        expect(not found, f"{name}: {path.name} has a path of libraries: {found and found[1]}")
    soname = re.search(r"\(SONAME\).*\[(.*)\]", dynamic)
    if re.search(r"\.so\.", path.name):
        expect(soname and re.sub(r"(\.so\.\d+)[\d.]*$", r"\1", path.name) == soname[1], f"{path.name} is {soname}")
    check_places(name, path)
    expect(".debug_info" not in output("readelf", "--section-headers", "--wide", path), f"{path.name} is not stripped")
    expect(".symtab" not in output("readelf", "--section-headers", "--wide", path), f"{path.name} is not stripped")


def check_package(deb):
    name = deb.name.split("_")[0]
    control = fields(deb)
    expected = {"Package": name, "Version": VERSION, "Architecture": ARCHITECTURE, "Source": "velkor",
                "Priority": "optional"}
    for field, value in expected.items():
        expect(control.get(field) == value, f"{name}: {field} is {control.get(field)}")
    expect(deb.name == f"{name}_{VERSION}_{ARCHITECTURE}.deb", f"{deb.name} is no Debian name")
    expect((control.get("Multi-Arch") == "same") == (name == f"libvelkor{MAJOR}"), f"{name}: Multi-Arch")
    check_depends(name, control.get("Depends", ""))

    listing = output("dpkg-deb", "--contents", deb).splitlines()
    for line in listing:
        mode, owner, path = line.split()[0], line.split()[1], line.split()[5]
        expect(owner == "root/root", f"{name}: {path} belongs to {owner}")
        is_program = path.startswith("./usr/bin/")
        wanted = {"d": "rwxr-xr-x", "l": "rwxrwxrwx"}.get(mode[0], "rwxr-xr-x" if is_program else "rw-r--r--")
        expect(mode[1:] == wanted, f"{name}: {path} has mode {mode}")
    expect(len({tuple(line.split()[3:5]) for line in listing}) == 1, f"{name}: files of different dates")

    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        subprocess.run(["dpkg-deb", "--raw-extract", deb, root], check=True)
        files = [path for path in root.rglob("*") if not path.is_dir() or path.is_symlink()]
        plain = [path for path in files if not path.is_symlink()]
        names = {str(path.relative_to(root)) for path in files if root / "DEBIAN" not in path.parents}
        _, _, wanted, pattern = PACKAGES[name]
        for path in wanted:
            expect((root / path).exists() or (root / path).is_symlink(), f"{name} has no {path}")
        documents = {f"usr/share/doc/{name}/{file}" for file in ("copyright", "changelog.gz", "NEWS.md.gz")}
        expect(documents <= names, f"{name} lacks {documents - names}")
        strays = [path for path in sorted(names - documents) if not re.match(pattern, path)]
        expect(not strays, f"{name} has {strays[:5]}")
        if documents <= names:
            changes = gzip.open(root / f"usr/share/doc/{name}/changelog.gz", "rt").read()
            expect(changes.startswith(f"velkor ({VERSION}) "), f"{name}: changelog begins {changes[:40]}")

        summed = {line[34:] for line in (root / "DEBIAN/md5sums").read_text().splitlines()}
        expect(summed == {path for path in names if not (root / path).is_symlink()}, f"{name}: md5sums")
        if name == f"libvelkor{MAJOR}":
            shlibs = (root / "DEBIAN/shlibs").read_text().split("\n")
            expect(shlibs == [f"lib{library} {MAJOR} {name} (>= {VERSION})" for library in LIBRARIES] + [""],
                   f"shlibs: {shlibs}")
            expect((root / "DEBIAN/triggers").exists(), "no trigger of ldconfig")
        expect((root / "DEBIAN/postinst").exists() == name.startswith("python3"), f"{name}: maintainer scripts")
        for path in plain:
            if path.read_bytes()[:4] == b"\x7fELF":
                check_binary(name, path, False)
            elif path.suffix in (".pc", ".cmake") or path.parent.name == "DEBIAN":
                check_places(name, path)


def check_archive(archive):
    top = archive.name.removesuffix(".tar.gz")
    with tempfile.TemporaryDirectory() as folder:
        with tarfile.open(archive) as tar:
            members = tar.getmembers()
            tar.extractall(folder)
        root = pathlib.Path(folder) / top
        expect(all(member.name.split("/")[0] == top for member in members), f"{archive.name} has more than {top}")
        for path in ("bin/velkor", f"lib/libvelkor.so.{MAJOR}", "lib/libvelkor.so", "lib/pkgconfig/velkor.pc",
                     "lib/cmake/Velkor/VelkorConfig.cmake", "include/velkor/sdai/Model.h", "share/man/man1/velkor.1",
                     "share/velkor/standard", "share/doc/Velkor/LICENSE"):
            expect((root / path).exists(), f"{archive.name} has no {path}")
        for path in [root / "bin/velkor", *(root / "lib").rglob("*.so.*.*.*")]:
            check_binary(archive.name, path, True)
        for path in [*root.rglob("*.pc"), *root.rglob("*.cmake")]:
            check_places(archive.name, path)
        for command, model, status, shown in (("report", "house-ifc2x3.ifc", 0, "neutral id"),
                                              ("check", "broken.ifc", 1, "where-rule")):
            answer = subprocess.run([root / "bin/velkor", command, ROOT / "examples/models" / model],
                                    stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
            expect(answer.returncode == status and shown in answer.stdout,
                   f"{archive.name}: {command} gives {answer.returncode}: {answer.stdout[-500:]}")


def main():
    folder = pathlib.Path(sys.argv[1])
    debs = sorted(folder.glob("*.deb"))
    names = {deb.name.split("_")[0] for deb in debs}
    # The module is packed where it is built.
    expect(PACKAGES.keys() - {"python3-velkor"} <= names <= PACKAGES.keys(), f"the packages are {names}")
    for deb in debs:
        check_package(deb)
    for archive in folder.glob("velkor-*.tar.gz"):
        check_archive(archive)
    for fault in faults:
        print(fault)
    sys.exit(bool(faults))


if __name__ == "__main__":
    main()
