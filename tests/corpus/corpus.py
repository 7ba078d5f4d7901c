"""The corpus example on a scheduler and two workers, one of which is killed while it works.

corpus.py EXAMPLES PROGRAM, the folder with the examples and the program velkor. What the tables hold is compared with
what the program says of each model as text and CSV.
"""
import collections
import contextlib
import csv
import functools
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import time

import pandas

EXAMPLES, PROGRAM = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
SECONDS = 8  # that a command may take
CALM = [f"{folder}/{name}-{number}.ifc" for number in range(9) for folder, name in (
    ("a", "house-ifc2x3"), ("a/b", "pump-room-ifc4"), ("road, \"east\"", "road-ifc4x3"), ("Brücken", "broken"))]
# Models whose processes go wrong, and the beginning of what is told of them.
FAULTY = {
    "crashes.ifc": "check, validate, classify: ended by signal 11",
    "waits.ifc": f"check: took longer than {SECONDS} s",
    "kills.ifc": "ended every worker that judged it",
}
BROKEN = {
    "letter.ifc": "check, validate, classify: expected an exchange structure",
    "lost.ifc": "cannot be read: No such file",
    "unknown.ifc": "validate, classify: line 5: expected a supported schema",
}
# The program, but for models that it goes wrong with. $PPID is what bounds its time, the parent of that the worker.
WRAPPER = """#!/bin/bash
read -r _ _ _ worker _ </proc/$PPID/stat
case "$1 $2" in
  "check "*/waits.ifc) exec sleep 60 ;;
  *" "*/crashes.ifc) kill -SEGV $$ ;;
  "check "*/kills.ifc) kill -KILL "$worker" ;;
  "check "*/house-ifc2x3-0.ifc)
    echo "$worker" >>FOLDER/judges
    if mkdir FOLDER/begun 2>/dev/null; then while kill -0 "$worker" 2>/dev/null; do sleep 0.05; done; exit; fi ;;
esac
exec PROGRAM "$@"
"""


def expect(holds, message):
    if not holds:
        sys.exit(message)


def write_models(folder):
    for number, model in enumerate(CALM):
        path = folder / model
        path.parent.mkdir(parents=True, exist_ok=True)
        source = (EXAMPLES / "models" / f"{re.sub('-[0-9]*.ifc$', '', path.name)}.ifc").read_text()
        path.write_text(source.replace("DATA;", f"/* {number} */ DATA;", 1))
    for name in FAULTY:
        (folder / name).write_text((EXAMPLES / "models/road-ifc4x3.ifc").read_text() + f"/* {name} */\n")
    (folder / "letter.ifc").write_text("Dear all\n")
    (folder / "lost.ifc").symlink_to("nowhere.ifc")
    (folder / "unknown.ifc").write_text(
        (EXAMPLES / "models/road-ifc4x3.ifc").read_text().replace("IFC4X3_ADD2", "IFC9", 1))
    (folder / "notes.txt").write_text("no model\n")


@contextlib.contextmanager
def cluster(folder):
    """A scheduler and two workers on the loopback; they end by themselves should this process be killed."""
    address = folder / "scheduler.json"
    environment = {**os.environ, "DASK_DISTRIBUTED__SCHEDULER__ALLOWED_FAILURES": "1",
                   "DASK_TEMPORARY_DIRECTORY": str(folder)}

    def start(kind, *options):
        command = ["timeout", "--kill-after=5", "150", sys.executable, "-m", f"distributed.cli.dask_{kind}", *options,
                   "--host", "127.0.0.1", "--dashboard-address", "127.0.0.1:0", "--scheduler-file", str(address)]
        return subprocess.Popen(command, env=environment, cwd=folder, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL)

    processes = [start("scheduler", "--port", "0")]
    try:
        processes += [start("worker", "--nthreads", "1", "--death-timeout", "30") for _ in range(2)]
        until(address.exists, "the scheduler does not start")
        yield address
    finally:
        for process in reversed(processes):
            process.terminate()
        for process in processes:
            process.wait()


def until(holds, message):
    end = time.monotonic() + 60
    while not holds():
        expect(time.monotonic() < end, message)
        time.sleep(0.05)


def corpus(models, out, program, *options):
    return subprocess.Popen([EXAMPLES / "corpus/corpus.py", models, "-o", out, "--velkor", program,
                             "--seconds", str(SECONDS), *options],
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)


def finished(process, status):
    out, err = process.communicate(timeout=150)
    expect(process.returncode == status, f"status {process.returncode} for {status}:\n{out}{err}")
    return out


@functools.cache
def program_says(command, path, *options):
    return subprocess.run([PROGRAM, command, path, *options], capture_output=True, text=True).stdout


def expected_findings(folder, model):
    path = folder / model
    for line in program_says("check", path).splitlines():
        found = re.fullmatch(r":(\d+): (error|warning): (?:#(\d+): )?(.*) \[([a-z-]+)\]", line.removeprefix(str(path)))
        if found:
            yield (model, "check", found[2], found[5], found[1], found[3] or "", found[4])
    for row in csv.DictReader(program_says("validate", path, "--format", "csv").splitlines()):
        yield (model, "validate", row["severity"], row["code"], row["line"], row["instance"], row["message"])


def expected_classes(folder, model):
    products = csv.DictReader(program_says("classify", folder / model, "--format", "csv").splitlines())
    counts = collections.Counter((row["entity"], row["neutral_id"], row["plm_type"]) for row in products)
    return [(model, *alike, str(counts[alike])) for alike in sorted(counts)]


def rows(out, name):
    with (out / f"{name}.csv").open(newline="", encoding="utf-8") as file:
        return list(csv.DictReader(file))


def check_numbers(folder, row, findings, classes):
    """The numbers of a row of models.csv are those in the last lines of the commands, and those of other tables."""
    said = {name: program_says(name, folder / row["model"]) for name in ("check", "validate")}
    instances = re.search(r": (\d+) instances by", said["check"])
    sets = re.search(r"; (\d+) of (\d+) sets?", said["validate"])
    wanted = {"instances": instances[1] if instances else "", "sets_checked": sets[1] if sets else "",
              "sets": sets[2] if sets else "", "bytes": str((folder / row["model"]).stat().st_size)}
    for command in ("check", "validate"):
        found = [line for line in findings if (line["model"], line["command"]) == (row["model"], command)]
        if row[f"{command}_findings"] or found:
            wanted[f"{command}_findings"] = str(len(found))
            wanted[f"{command}_errors"] = str(sum(line["severity"] == "error" for line in found))
    if row["products"]:
        counts = [(line["neutral_id"], int(line["count"])) for line in classes if line["model"] == row["model"]]
        wanted["products"] = str(sum(count for _, count in counts))
        wanted["unclassified"] = str(sum(count for neutral, count in counts if not neutral))
    expect({name: row[name] for name in wanted} == wanted, f"{row} for {wanted}")


def check_tables(folder, out):
    models = rows(out, "models")
    names = [row["model"] for row in models]
    expect(names == sorted([*CALM, *FAULTY, *BROKEN], key=os.fsencode), f"models.csv has other models: {names}")
    told = {**FAULTY, **BROKEN}
    for row in models:
        wanted = told.get(row["model"])
        expect(row["error"].startswith(wanted) if wanted else not row["error"], f"{row['model']}: {row['error']}")

    judged = [name for name in names if name not in FAULTY]
    findings = [row for row in rows(out, "findings") if row["model"] in judged]
    columns = ("model", "command", "severity", "code", "line", "instance", "message")
    wanted = [line for model in judged for line in expected_findings(folder, model)]
    expect(len(wanted) > 90, "hardly any findings to compare")
    expect([tuple(row[column] for column in columns) for row in findings] == wanted, "findings.csv has other findings")
    classes = [row for row in rows(out, "classes") if row["model"] in judged]
    wanted = [line for model in judged for line in expected_classes(folder, model)]
    expect(sorted(tuple(row.values()) for row in classes) == sorted(wanted), "classes.csv has other classes")
    for row in models:
        if row["model"] in judged and row["sha256"]:
            check_numbers(folder, row, findings, classes)

    # Types are those that the columns say, without a word to the reader.
    frame = pandas.read_csv(out / "findings.csv").convert_dtypes()
    kinds = {name: str(frame[name].dtype) for name in ("line", "instance", "others", "code", "message")}
    expect(list(kinds.values()) == ["Int64", "Int64", "Int64", "string", "string"], f"pandas reads {kinds}")
    expect(len(frame) == len(rows(out, "findings")), "pandas reads another number of findings")


def lines_without(out, models):
    """The lines of each table that are the same on every run, but for those of some models."""
    return {name: [line for line in (out / f"{name}.csv").read_bytes().splitlines()
                   if not line.decode().startswith(tuple(f"{model}," for model in models))]
            for name in ("models", "findings", "classes")}


def main():
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name).resolve()
        models, out, wrapper = folder / "models", folder / "out", folder / "velkor"
        write_models(models)
        wrapper.write_text(WRAPPER.replace("FOLDER", str(folder)).replace("PROGRAM", str(PROGRAM)))
        wrapper.chmod(0o755)

        with cluster(folder) as address:
            process = corpus(models, out, wrapper, "--scheduler-file", address)
            judges = folder / "judges"
            until(lambda: process.poll() is not None or judges.exists() and judges.read_text(), "no model is judged")
            expect(process.poll() is None, "the run ends before a worker is killed")
            killed = int(judges.read_text())
            expect(killed != process.pid, "the model is judged by no worker")
            os.kill(killed, signal.SIGKILL)
            finished(process, 3)
            first = lines_without(out, FAULTY)
            waited = next(float(row["seconds"]) for row in rows(out, "times") if row["model"] == "waits.ifc")
            expect(waited < 30, f"a command took {waited} s")
            expect(len(judges.read_text().split()) == 2, "the model of the worker that was killed is not judged again")
            check_tables(models, out)

            # The second run is without the models that are not to be asked about again.
            for model in FAULTY:
                (models / model).unlink()
            finished(corpus(models, out, wrapper, "--scheduler-file", address), 3)
        expect(lines_without(out, ()) == first, "a second run writes other tables")
        anew = {row["model"] for row in rows(out, "times") if row["kept"] != "True"}
        expect(anew == set(BROKEN), f"judged again: {anew}")
        expect(sorted(path.name for path in out.iterdir()) ==
               ["classes.csv", "findings.csv", "models.csv", "parts", "times.csv"], "something is left in the folder")
    print(f"{len(CALM)} sound models, {len(FAULTY) + len(BROKEN)} others")


main()
