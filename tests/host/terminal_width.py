"""Text on a terminal keeps to its width, breaks no word and says all that it says in a pipe.

terminal_width.py PROGRAM MODELS, the folder of the example models. Runs the program on pseudo terminals.
"""
import collections
import fcntl
import os
import pathlib
import pty
import re
import struct
import subprocess
import sys
import tempfile
import termios
import unicodedata

PROGRAM, MODELS = sys.argv[1], sorted(pathlib.Path(sys.argv[2]).resolve().glob("*.ifc"))
WIDTHS = (40, 80, 100, 200)
ENVIRONMENT = {**os.environ, "TERM": "xterm"}
for name in ("COLUMNS", "NO_COLOR", "VELKOR_CONFIG"):
    ENVIRONMENT.pop(name, None)
COLOUR = re.compile("\x1b\\[[0-9;]*m")
# They differ from run to run, or with the room there is.
DURATION, BAR = re.compile(r"\d[\d.]*\s+(m?s)\b"), re.compile("[█▏▎▍▌▋▊▉]+")
failures = []


def piped(words, stream):
    done = subprocess.run([PROGRAM, *words], capture_output=True, stdin=subprocess.DEVNULL, env=ENVIRONMENT)
    return getattr(done, stream).decode()


def on_terminal(words, stream, width, **variables):
    master, slave = pty.openpty()
    fcntl.ioctl(slave, termios.TIOCSWINSZ, struct.pack("HHHH", 50, width, 0, 0))
    streams = {"stdout": subprocess.DEVNULL, "stderr": subprocess.DEVNULL, stream: slave}
    process = subprocess.Popen([PROGRAM, *words], stdin=subprocess.DEVNULL, env={**ENVIRONMENT, **variables}, **streams)
    os.close(slave)
    taken = []
    while True:
        try:
            part = os.read(master, 65536)
        except OSError:  # the program has ended
            break
        if not part:
            break
        taken.append(part)
    os.close(master)
    process.wait()
    return b"".join(taken).decode().replace("\r\n", "\n")


def columns(text):
    return sum(0 if unicodedata.combining(c) else 2 if unicodedata.east_asian_width(c) in "WF" else 1 for c in text)


def words_of(text):
    return BAR.sub("", text).split()


def without_colons(words):
    """As the heading of a column and that of an entry read the same."""
    return [word.rstrip(":") or word for word in words]


def without_parts(lines, wide, plain):
    """The words, those put together again that no line could hold: what ends a line with what begins the next ones,
    unless these are words themselves."""
    words, begins = [], set()
    for line in lines:
        begins.add(len(words))
        words += words_of(line)
    result, at = [], 0
    while at < len(words):
        for whole in wide:
            end, text = at, ""
            while end < len(words) and whole.startswith(text + words[end]) and (end == at or end in begins):
                text += words[end]
                end += 1
            if text == whole and end > at + 1 and not plain.issuperset(words[at:end]):
                result.append(whole)
                at = end
                break
        else:
            result.append(words[at])
            at += 1
    return result


def judge(words, stream="stdout"):
    # Expressions are laid out by their brackets.
    spread = (lambda text: re.sub(r"([()])", r" \1 ", text)) if words[:2] == ["dictionary", "rule"] else str
    plain = words_of(spread(DURATION.sub(r"\1", piped(words, stream))))
    if not plain:
        failures.append(f"{words}: nothing to see")
    for width in WIDTHS:
        shown = DURATION.sub(r"\1", COLOUR.sub("", on_terminal(words, stream, width)))
        where = f"{' '.join(words)} at {width}"
        for line in shown.splitlines():
            if columns(line) > width:
                failures.append(f"{where}: {columns(line)} columns: {line}")
        wide = [word for word in set(plain) if columns(word) > width // 2]
        seen = without_colons(without_parts(spread(shown).splitlines(), wide, set(plain)))
        expected = without_colons(plain)
        cut = [word[:-1] for word in seen if word.endswith("…")]
        for word in set(seen) - set(expected):
            if not word.endswith("…"):
                failures.append(f"{where}: no word: {word}")
            elif width >= 80 and columns(word) < 8:
                failures.append(f"{where}: cut to {word}")
        for word in collections.Counter(expected) - collections.Counter(seen):
            if not any(word.startswith(begin) for begin in cut):
                failures.append(f"{where}: not there: {word}")


def subcommands(words=()):
    """All commands, by what the help lists."""
    yield words
    text = piped([*words, "--help"], "stdout")
    listed = re.search(r"\nSubcommands:\n(.*?)\n\n", text, re.S)
    for name in re.findall(r"^  (\S+)", listed[1], re.M) if listed else ():
        yield from subcommands((*words, name))


def command_lines(folder):
    for model in map(str, MODELS):
        for command in (["report"], ["check"], ["validate"], ["classify"], ["units"], ["guid", "check"]):
            yield [*command, model]
        yield ["convert", model, "--to", "IFC4", "-o", f"{folder}/to.ifc"]
    for command in (["check"], ["validate"], ["classify"], ["units"], ["guid", "check"]):
        yield [*command, *map(str, MODELS)]
    for line in ("guid expand 0$WU4A9R19$vKWO$AdOnKA", "guid from-plm Body.001 Body.002",
                 "propertysets list IFC4 IfcActuator/ELECTRICACTUATOR", "propertysets show IFC4 Pset_WallCommon",
                 "propertysets diff IFC2X3 IFC4 Pset_WallCommon", "dictionary list", "dictionary entity IFC4 IFCWALL",
                 "dictionary rule IFC4 IfcWall.CorrectPredefinedType", "dictionary diff IFC4 IFC4X3_ADD2",
                 "map version --from 2x3 --to 4 IfcActionRequest RequestID", "options", "options --list-variables",
                 "resources", "help"):
        yield line.split()
    for words in subcommands():
        yield [*words, "--help"]


with tempfile.TemporaryDirectory() as folder:
    for words in command_lines(folder):
        judge(words)
for words in ("rapport", "report --nonsense", "check there/is/no/such.ifc", ""):
    judge(words.split(), "stderr")
# What programs read has its lines left alone, and a user's width goes before the terminal's.
for form in ("json", "csv"):
    words = ["classify", str(MODELS[-1]), "--format", form]
    if on_terminal(words, "stdout", 40) != piped(words, "stdout"):
        failures.append(f"{form} is fitted to the terminal")
if on_terminal(["--help"], "stdout", 200, COLUMNS="40") != on_terminal(["--help"], "stdout", 40):
    failures.append("COLUMNS counts for nothing")

print("\n".join(failures[:100]))
sys.exit(1 if failures else 0)
