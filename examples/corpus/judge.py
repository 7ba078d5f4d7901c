"""What a worker does for one model: asks `velkor` and keeps the answers. Needs nothing but Python.

Every command is a process of its own, so that a model that ends it, or takes too long, costs that model alone.
"""

from __future__ import annotations

import functools
import hashlib
import json
import os
import re
import signal
import socket
import subprocess
import threading
import time
from collections.abc import Iterator
from dataclasses import dataclass
from pathlib import Path
from typing import Any

# A line of a table: a value for each of its columns but `model`, None where there is none.
Row = dict[str, Any]


@dataclass(frozen=True)
class Settings:
    """How models are judged, the same for all of a corpus. Paths hold on every machine."""

    program: str
    version: str  # what `version_of(program)` has to be
    config: str | None
    seconds: int  # for one command on one model
    limit: int  # findings of one command that are listed
    parts: Path  # the folder that the answers are kept in

    def part(self, sha256: str) -> Path:
        """The file that keeps the answers about a model with these bytes."""
        return self.parts / sha256[:2] / f"{sha256}.jsonl"


@functools.lru_cache
def version_of(program: str) -> str:
    """Version, build and libraries of the program, as JSON."""
    return subprocess.run([program, "--version", "--format", "json"], check=True, capture_output=True, text=True,
                          stdin=subprocess.DEVNULL, timeout=60).stdout


def judge(paths: list[str], settings: Settings) -> list[tuple[Row, Row]]:
    """Each model's rows for models.csv and times.csv. Findings and classes are kept in their parts."""
    if version_of(settings.program) != settings.version:
        raise RuntimeError(f"{socket.gethostname()} has another {settings.program}:\n{version_of(settings.program)}")
    return [judge_model(path, settings) for path in paths]


def judge_model(path: str, settings: Settings) -> tuple[Row, Row]:
    """A part is taken as it stands when all commands had an answer; else they are asked again."""
    began = time.monotonic()
    kept = False
    try:
        sha256, size = digest(path)
    except OSError as error:
        row: Row = {"error": f"cannot be read: {error.strerror}"}
    else:
        part = settings.part(sha256)
        known = kept_row(part)
        kept = known is not None
        row = known or judged_anew(path, settings, part, {"sha256": sha256, "bytes": size})
    return row, {"seconds": round(time.monotonic() - began, 6), "kept": kept, "host": socket.gethostname(),
                 "process": os.getpid()}


def digest(path: str) -> tuple[str, int]:
    with open(path, "rb") as file:
        return hashlib.file_digest(file, "sha256").hexdigest(), os.fstat(file.fileno()).st_size


def kept_row(part: Path) -> Row | None:
    """The row of a part that need not be made again."""
    try:
        with part.open(encoding="utf-8") as lines:
            row: Row = json.loads(next(lines))
    except (FileNotFoundError, StopIteration, ValueError):
        return None
    return None if row.get("error") else row


def kept_lines(part: Path) -> Iterator[tuple[str, Row]]:
    """("finding" or "class", row) of all that a part keeps, in its order."""
    with part.open(encoding="utf-8") as lines:
        next(lines)
        for line in lines:
            yield from json.loads(line).items()


def judged_anew(path: str, settings: Settings, part: Path, row: Row) -> Row:
    lines: list[dict[str, Row]] = []
    failures: dict[str, list[str]] = {}
    for command, take in TAKE.items():
        answer = answer_of(command, path, settings)
        if isinstance(answer, str):
            failures.setdefault(answer, []).append(command)
        else:
            lines += take(answer, row)
    row["error"] = "; ".join(f"{', '.join(commands)}: {reason}" for reason, commands in failures.items()) or None
    write_part(part, [row, *lines])
    return row


def answer_of(command: str, path: str, settings: Settings) -> dict[str, Any] | str:
    """The JSON object that a command answers with, or the reason why there is none."""
    arguments = [settings.program, command, path, "--format", "json", "--limit", str(settings.limit)]
    if command == "check":
        arguments += ["--jobs", "1"]  # there are as many workers as cores
    if settings.config is not None:
        arguments += ["--config", settings.config]
    began = time.monotonic()
    # Holds even when the worker is gone: nobody else would end a process that hangs then.
    bounded = ["timeout", "--signal=KILL", str(settings.seconds), *arguments]
    process = subprocess.run(bounded, stdin=subprocess.DEVNULL, capture_output=True)
    if process.returncode == -signal.SIGKILL and time.monotonic() - began >= settings.seconds:
        return f"took longer than {settings.seconds} s"
    if process.returncode < 0:
        return f"ended by signal {-process.returncode} ({signal.strsignal(-process.returncode)})"
    if process.returncode > 1:
        told = process.stderr.decode(errors="backslashreplace").strip().rpartition("\n")[2]
        reason = told.removeprefix("velkor: ").removeprefix(f"{path}:").strip()
        return re.sub(r"^(\d+): ", r"line \1: ", reason) or f"status {process.returncode}"
    try:
        answer: dict[str, Any] = json.loads(process.stdout)
    except ValueError:
        return "the answer is no JSON"
    return answer


def take_check(answer: dict[str, Any], row: Row) -> Iterator[dict[str, Row]]:
    row["release"] = answer["release"]
    row["instances"] = answer["judged"] and answer["judged"]["instances"]
    row["check_findings"] = answer["total"]
    row["check_errors"] = count_errors(answer["problems"])
    for problem in answer["problems"]:
        yield {"finding": finding("check", problem) | {"rule": problem["rule"]}}


def take_validate(answer: dict[str, Any], row: Row) -> Iterator[dict[str, Row]]:
    row["sets"] = answer["sets"]["total"]
    row["sets_checked"] = answer["sets"]["checked"]
    row["validate_findings"] = answer["total"]
    row["validate_errors"] = count_errors(answer["findings"])
    for found in answer["findings"]:
        concerned = found["object"] or {}
        yield {"finding": finding("validate", found) | {
            "set": found["set"], "property": found["property"], "object": concerned.get("instance"),
            "entity": concerned.get("entity"), "others": found["others"]}}


def take_classify(answer: dict[str, Any], row: Row) -> Iterator[dict[str, Row]]:
    row["products"] = answer["total"]
    row["unclassified"] = answer["unclassified"]
    for alike in answer["classes"]:
        yield {"class": alike}


TAKE = {"check": take_check, "validate": take_validate, "classify": take_classify}


def count_errors(findings: list[dict[str, Any]]) -> int:
    return sum(found["severity"] == "error" for found in findings)


def finding(command: str, found: dict[str, Any]) -> Row:
    return {"command": command, **{name: found[name] for name in ("severity", "code", "line", "instance", "message")}}


def write_part(part: Path, rows: list[Row]) -> None:
    """Whole or not at all, and safe with other workers that judge the same bytes."""
    part.parent.mkdir(parents=True, exist_ok=True)
    unfinished = part.with_suffix(f".{socket.gethostname()}-{os.getpid()}-{threading.get_ident()}")
    try:
        with unfinished.open("w", encoding="utf-8") as file:
            file.writelines(json.dumps(row, ensure_ascii=False) + "\n" for row in rows)
            file.flush()
            os.fsync(file.fileno())
        unfinished.replace(part)
    finally:
        unfinished.unlink(missing_ok=True)
