#!/usr/bin/python3
"""Runs check, validate and classify over a folder of models on Dask workers and writes tables of what they find.

    corpus.py MODELS -o OUT                             on the cores of this machine
    corpus.py MODELS -o OUT --scheduler tcp://HOST:8786    on a cluster; so does --scheduler-file FILE

OUT gets models.csv, findings.csv, classes.csv and times.csv. What was judged already is taken from OUT/parts. The
status is 0 without findings, 1 with, 3 when a model had no complete answer or the corpus could not be finished.
"""

from __future__ import annotations

import argparse
import collections
import contextlib
import hashlib
import logging
import os
import shutil
import subprocess
import sys
import tempfile
import time
from collections.abc import Iterable, Iterator
from pathlib import Path

import dask
from distributed import CancelledError, Client, Future, KilledWorker, LocalCluster, wait

import judge
import tables

SUFFIXES = (".ifc",)
# How many models are given out as one at most: one by one, that takes a quarter of what judging small ones does.
TOGETHER = 16
# What a thread has before it, its work included: enough that none waits, and a worker that dies takes few along.
AHEAD = 2
# How long a cluster may have no worker at all.
PATIENCE = 60.0


class Unfinished(Exception):
    """The corpus cannot be finished; what is judged stays."""


class Workers:
    """The workers there are, asked for every other second."""

    def __init__(self, client: Client) -> None:
        self._client = client
        self._threads = 0
        self._seen = time.monotonic()
        self._asked = 0.0

    def threads(self) -> int:
        now = time.monotonic()
        if now - self._asked > 2.0:
            self._asked = now
            self._threads = sum(worker["nthreads"] for worker in self._client.scheduler_info()["workers"].values())
        if self._threads:
            self._seen = now
        elif now - self._seen > PATIENCE:
            raise Unfinished(f"there is no worker since {PATIENCE:.0f} s")
        return self._threads


def models_in(folder: Path) -> list[str]:
    """All models below a folder, by their paths relative to it. Links to folders are not followed, those that lead
    nowhere are models that cannot be read."""
    def fail(error: OSError) -> None:
        raise error

    found = []
    for place, _, names in os.walk(folder, onerror=fail):
        for name in names:
            path = Path(place, name)
            if name.lower().endswith(SUFFIXES) and (path.is_file() or not path.exists()):
                found.append(str(path.relative_to(folder)))
    return sorted(found, key=os.fsencode)


def outcomes(client: Client, folder: Path, models: Iterable[str], settings: judge.Settings, alone: bool = False
             ) -> Iterator[tuple[str, tuple[judge.Row, judge.Row] | None]]:
    """Each model with its rows as they come, None for those whose workers died again and again.

    With `alone` no model is given out before the one before it has come back.
    """
    workers = Workers(client)
    waiting = collections.deque(models)
    given: dict[Future, list[str]] = {}
    while waiting or given:
        threads = workers.threads()
        while waiting and len(given) < (1 if alone else AHEAD * threads):
            # Fewer towards the end, so that all threads end together.
            size = 1 if alone else max(1, min(TOGETHER, len(waiting) // (4 * threads)))
            batch = [waiting.popleft() for _ in range(size)]
            given[client.submit(judge.judge, [str(folder / model) for model in batch], settings, pure=False)] = batch
        if not given:
            time.sleep(0.5)
            continue
        try:
            done = wait(list(given), timeout=2.0, return_when="FIRST_COMPLETED").done
        except TimeoutError:
            continue
        for future in done:
            batch = given.pop(future)
            try:
                rows = future.result()
            except KilledWorker:
                rows = [None] * len(batch)
            future.release()  # or it would be made again when its worker dies
            yield from zip(batch, rows)


def judged(client: Client, folder: Path, models: list[str], settings: judge.Settings
           ) -> Iterator[tuple[str, tuple[judge.Row, judge.Row]]]:
    """Each model with its rows as they come.

    All models that a worker has are suspected when it dies. The suspects run again one by one, so that who ends
    workers then is guilty.
    """
    suspects = []
    for model, rows in outcomes(client, folder, models, settings):
        if rows is None:
            suspects.append(model)
        else:
            yield model, rows
    for model, rows in outcomes(client, folder, sorted(suspects, key=os.fsencode), settings, alone=True):
        yield model, rows or ({"error": "ended every worker that judged it"}, {})


@contextlib.contextmanager
def connected(options: argparse.Namespace) -> Iterator[Client]:
    with contextlib.ExitStack() as stack:
        if options.scheduler or options.scheduler_file:
            client = Client(options.scheduler, scheduler_file=options.scheduler_file, timeout=30)
        else:
            scratch = stack.enter_context(tempfile.TemporaryDirectory())
            stack.enter_context(dask.config.set({"temporary-directory": scratch}))
            # What matters of workers on this machine comes back as an error; a slow end is told at great length.
            cluster = LocalCluster(n_workers=options.workers, threads_per_worker=1, host="127.0.0.1",
                                   dashboard_address="127.0.0.1:0", silence_logs=logging.CRITICAL)
            client = Client(stack.enter_context(cluster))
        stack.enter_context(client)
        client.upload_file(judge.__file__)
        yield client


def settings_from(options: argparse.Namespace) -> judge.Settings:
    found = shutil.which(options.velkor)
    if found is None:
        raise Unfinished(f"there is no program {options.velkor}")
    program = os.path.abspath(found)
    version = judge.version_of(program)
    config = Path(options.config).resolve() if options.config else None
    # Answers are taken up where the same program would give them under the same settings.
    ground = repr((version, options.limit, config.read_bytes() if config else None))
    parts = options.output.resolve() / "parts" / hashlib.sha256(ground.encode()).hexdigest()[:16]
    return judge.Settings(program, version, str(config) if config else None, options.seconds, options.limit, parts)


def show_progress(done: int, total: int, began: float) -> None:
    if sys.stderr.isatty():
        print(f"\r{done} of {total} models, {done / (time.monotonic() - began):.1f}/s ", end="", file=sys.stderr)


def run(options: argparse.Namespace) -> int:
    folder = options.models.resolve()
    models = models_in(folder)
    if not models:
        raise Unfinished(f"there is no model in {options.models}")
    settings = settings_from(options)
    settings.parts.mkdir(parents=True, exist_ok=True)
    rows: dict[str, tuple[judge.Row, judge.Row]] = {}
    with connected(options) as client:
        began = time.monotonic()
        for model, pair in judged(client, folder, models, settings):
            rows[model] = pair
            show_progress(len(rows), len(models), began)
        took = time.monotonic() - began
    tables.write_tables(options.output, settings, rows)

    failed = sum(1 for row, _ in rows.values() if row.get("error"))
    kept = sum(1 for _, seconds in rows.values() if seconds.get("kept"))
    findings = sum((row.get("check_findings") or 0) + (row.get("validate_findings") or 0) for row, _ in rows.values())
    print(f"{len(rows)} models: {failed} without a complete answer, {findings} findings", flush=True)
    print(f"{kept} taken from an earlier run; {took:.1f} s, {len(rows) / took:.1f} models a second", file=sys.stderr)
    return 3 if failed else 1 if findings else 0


def positive(text: str) -> int:
    if not text.isdigit() or int(text) == 0:
        raise argparse.ArgumentTypeError(f"expected a number above 0, found {text}")
    return int(text)


def parsed(arguments: list[str]) -> argparse.Namespace:
    parser = argparse.ArgumentParser(description="check, validate and classify over a folder of models on Dask workers")
    parser.add_argument("models", type=Path, metavar="MODELS", help="folder with the models, which all workers see")
    parser.add_argument("-o", "--output", type=Path, required=True, metavar="OUT",
                        help="folder that gets the tables, which all workers can write to")
    where = parser.add_mutually_exclusive_group()
    where.add_argument("--scheduler", metavar="ADDRESS", help="scheduler of a cluster, such as tcp://host:8786")
    where.add_argument("--scheduler-file", metavar="FILE", help="file that the scheduler wrote its address to")
    where.add_argument("--workers", type=positive, default=os.cpu_count(), metavar="N",
                       help="workers on this machine, as many as it has cores unless told")
    parser.add_argument("--velkor", default="velkor", metavar="PROGRAM", help="the program, on every worker")
    parser.add_argument("--config", metavar="FILE", help="configuration of the program")
    parser.add_argument("--seconds", type=positive, default=600, metavar="N",
                        help="for one command on one model; 600 unless told")
    parser.add_argument("--limit", type=positive, default=100000, metavar="N",
                        help="findings of one command on one model that are listed; 100000 unless told")
    return parser.parse_args(arguments)


def main(arguments: list[str]) -> int:
    options = parsed(arguments)
    try:
        return run(options)
    except (Unfinished, OSError, RuntimeError, CancelledError, subprocess.SubprocessError) as error:
        print(f"corpus.py: {error}", file=sys.stderr)
        return 3
    except KeyboardInterrupt:
        return 130


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
