"""The tables of a corpus: CSV after RFC 4180 in UTF-8, in the order of the models, whatever the workers did."""

from __future__ import annotations

import contextlib
import csv
import os
from collections.abc import Iterator, Mapping
from pathlib import Path
from typing import Any

from judge import Row, Settings, kept_lines

# Later versions add columns behind these and change none.
COLUMNS = {
    "models": ["model", "bytes", "sha256", "release", "instances", "check_findings", "check_errors", "sets",
               "sets_checked", "validate_findings", "validate_errors", "products", "unclassified", "error"],
    "findings": ["model", "command", "severity", "code", "line", "instance", "rule", "set", "property", "object",
                 "entity", "others", "message"],
    "classes": ["model", "entity", "neutral_id", "plm_type", "count"],
    # Differs from run to run, and is a file of its own for that.
    "times": ["model", "seconds", "kept", "host", "process"],
}


class Table:
    """A CSV file that takes its place when it is complete."""

    def __init__(self, folder: Path, name: str) -> None:
        self._columns = COLUMNS[name]
        self._place = folder / f"{name}.csv"
        self._unfinished = folder / f"{name}.csv.unfinished"
        # Bytes of a file's name that are not UTF-8 are written \udcXX.
        self._file = self._unfinished.open("w", encoding="utf-8", errors="backslashreplace", newline="")
        self._writer = csv.writer(self._file, lineterminator="\r\n")
        self._writer.writerow(self._columns)

    def add(self, model: str, row: Row) -> None:
        self._writer.writerow([cell({"model": model, **row}.get(column)) for column in self._columns])

    def close(self, complete: bool) -> None:
        with self._file:
            self._file.flush()
            os.fsync(self._file.fileno())
        if complete:
            self._unfinished.replace(self._place)
        else:
            self._unfinished.unlink()


def cell(value: Any) -> Any:
    # A spreadsheet would take it for a formula.
    return f"'{value}" if isinstance(value, str) and value.startswith(("=", "+", "-", "@", "\t", "\r")) else value


@contextlib.contextmanager
def tables(folder: Path) -> Iterator[dict[str, Table]]:
    """All tables by name; none takes its place unless all are complete."""
    opened = {name: Table(folder, name) for name in COLUMNS}
    complete = False
    try:
        yield opened
        complete = True
    finally:
        for table in opened.values():
            table.close(complete)


def write_tables(folder: Path, settings: Settings, rows: Mapping[str, tuple[Row, Row]]) -> None:
    """`rows` has each model's rows for models.csv and times.csv; findings and classes come from the parts."""
    with tables(folder) as table:
        for model in sorted(rows, key=os.fsencode):
            row, seconds = rows[model]
            table["models"].add(model, row)
            table["times"].add(model, seconds)
            for kind, line in kept_lines(settings.part(row["sha256"])) if "sha256" in row else ():
                table["findings" if kind == "finding" else "classes"].add(model, line)
