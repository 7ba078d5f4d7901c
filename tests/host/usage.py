"""Man pages, completions and docs/options.md name every command and option that the program's help shows.

usage.py PROGRAM FOLDER, a folder laid out as "share" of an installation is.
"""
import pathlib
import re
import shutil
import subprocess
import sys

PROGRAM, FOLDER = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
BASH = FOLDER / "bash-completion/completions/velkor"
ZSH = FOLDER / "zsh/site-functions/_velkor"
FISH = FOLDER / "fish/vendor_completions.d/velkor.fish"
TABLES = pathlib.Path(__file__).parents[2] / "docs/options.md"
failures = []


def expect(holds, message):
    if not holds:
        failures.append(message)


def output(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def bash_words(*words):
    """What bash offers for the last of the words."""
    script = 'source "$0"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _velkor; printf "%s\\n" "${COMPREPLY[@]}"'
    return output("bash", "-c", script, str(BASH), "velkor", *words).split()


def fish_words(*words):
    line = " ".join(("velkor",) + words)
    return [entry.split("\t")[0] for entry in output("fish", "-c", f"source '{FISH}'; complete -C '{line}'").splitlines()]


def judge(words):
    shown = output(str(PROGRAM), *words, "--help")
    options = [option for line in re.findall(r"^  (-\S+)", shown, re.M) for option in line.split(",")]
    listed = shown.partition("\nSubcommands:\n")[2].partition("\n\n")[0]
    commands = re.findall(r"^  (\S+)", listed, re.M)
    expect(options, f"{words}: no options in the help")

    page = FOLDER / "man/man1" / ("-".join(["velkor", *words]) + ".1")
    text = page.read_text("ascii").replace("\\-", "-")
    bold = re.findall(r"\\fB(.*?)\\fR", text)
    zsh = re.search("^_" + "_".join(["velkor", *words]) + r"\(\) \{\n(.*?)^\}", ZSH.read_text(), re.M | re.S).group(1)
    table = re.search("^## " + " ".join(["velkor", *words]) + r"\n(.*?)^(## |<!-- end)", TABLES.read_text(), re.M | re.S)
    expect(table, f"{TABLES.name} lacks {words}")
    for option in options:
        expect(option in ("-h", "--help") or re.search(rf"[` ]{option}[,` ]", table[1]), f"{TABLES.name} lacks {option}")
        expect(option in bold, f"{page.name} lacks {option}")
        expect(re.search(r"[*)]" + re.escape(option) + r"[=+\[]", zsh), f"zsh lacks {option} of {words}")
        expect(option in bash_words(*words, option), f"bash lacks {option} of {words}")
        if shutil.which("fish"):
            expect(option in fish_words(*words, option if option.startswith("--") else "-"), f"fish lacks {option} of {words}")
    for command in commands:
        expect(command in bold, f"{page.name} lacks {command}")
        expect(f"'{command}:" in zsh, f"zsh lacks {command} of {words}")
        expect(command in bash_words(*words, ""), f"bash lacks {command} of {words}")
        expect(command in bash_words("help", *words, ""), f"bash lacks {command} of help {words}")
        if shutil.which("fish"):
            expect(command in fish_words(*words, command), f"fish lacks {command} of {words}")
    if shutil.which("groff"):
        done = subprocess.run(["groff", "-man", "-ww", "-z", str(page)], capture_output=True, text=True)
        expect(done.returncode == 0 and not done.stderr, f"{page.name}: {done.stderr}")
    return 1 + sum(judge(words + [command]) for command in commands)


count = judge([])
pages = len(list((FOLDER / "man/man1").iterdir()))
expect(pages == count, f"{pages} man pages for {count} commands")
for words, offered in (
    (["report", "--format", ""], ["text", "json", "jsonl", "html"]),
    (["report", "--format", "=", "j"], ["json", "jsonl"]),
    (["check", "--only", "text-length,where"], ["text-length,where-rule"]),
    (["report", "--config", ""], []),
    (["report", ""], []),
):
    expect(bash_words(*words) == offered, f"bash offers {bash_words(*words)} for {words}")
for shell, script in (("bash", BASH), ("zsh", ZSH), ("fish", FISH)):
    if shutil.which(shell):
        subprocess.run([shell, "-n", str(script)], check=True)
print(f"{count} commands, {len(failures)} failures", *failures, sep="\n")
sys.exit(bool(failures))
