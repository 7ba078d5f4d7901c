#!/usr/bin/env python3
"""Compares the promises of a page with what the benchmarks measure.

    promises.py PAGE FOLDER    FOLDER has the programs; status 1 when a promise is not kept

A row of a table that names a benchmark in its second column, "bench_xml parseServices / parseLibxml2", has in the
third what was measured for the page and in the fourth, unless nothing is promised, "below" or "above" a value. The
unit says what is compared: a time of a run, in ns of one item; GB/s of bytes; million/s of items; times, of one
benchmark to another or of a counter, "open/0[memoryPerByte]"; MB of a counter.
"""

import json
import re
import subprocess
import sys

SECONDS = {"ns": 1e-9, "µs": 1e-6, "us": 1e-6, "ms": 1e-3, "s": 1.0}
REPETITIONS = 3


def rows(page):
    for line in open(page, encoding="utf-8"):
        cells = [cell.strip() for cell in line.strip().strip("|").split("|")]
        if line.startswith("|") and len(cells) == 4 and cells[1].startswith("`bench_"):
            program, _, expression = cells[1].strip("`").partition(" ")
            yield program, expression, cells[2], cells[3]


def names(expression):
    return [re.sub(r"\[.*", "", part) for part in expression.split(" / ")]


def measure(folder, program, wanted):
    """The medians of the benchmarks of a program, by name."""
    run = subprocess.run(
        [f"{folder}/{program}", "--benchmark_format=json", f"--benchmark_repetitions={REPETITIONS}",
         "--benchmark_min_time=0.3", "--benchmark_filter=^(" + "|".join(map(re.escape, wanted)) + ")(/manual_time)?$"],
        stdout=subprocess.PIPE, check=True)
    result = {}
    for one in json.loads(run.stdout)["benchmarks"]:
        name = one["run_name"]
        if one.get("aggregate_name") == "median" and "error_occurred" not in one:
            # Those that take the time themselves take processor time as well.
            time = one["real_time" if name.endswith("/manual_time") else "cpu_time"]
            result[name.removesuffix("/manual_time")] = {**one, "seconds": time * SECONDS[one["time_unit"]]}
    return result


def value(expression, unit, measured):
    first, *second = [measured[name] for name in names(expression)]
    counter = re.search(r"\[(.*)\]", expression)
    if counter:
        return first[counter[1]] / (1e6 if unit == "MB" else 1.0)
    if second:
        return first["seconds"] / second[0]["seconds"]
    if unit == "GB/s":
        return first["bytes_per_second"] / 1e9
    if unit == "million/s":
        return first["items_per_second"] / 1e6
    if unit == "ns" and "items_per_second" in first:
        return 1e9 / first["items_per_second"]
    return first["seconds"] / SECONDS[unit]


def main(page, folder):
    table = list(rows(page))
    broken = 0 if table else 1
    for program in dict.fromkeys(row[0] for row in table):
        own = [row for row in table if row[0] == program]
        measured = measure(folder, program, {name for row in own for name in names(row[1])})
        for _, expression, shown, promise in own:
            unit = shown.split()[-1]
            try:
                now = value(expression, unit, measured)
            except KeyError as missing:
                print(f"BROKEN  {program} {expression}: no {missing}")
                broken += 1
                continue
            bound = re.fullmatch(r"(below|above) ([\d.]+) (\S+)", promise)
            if promise and (not bound or bound[3] != unit):
                sys.exit(f"{page}: {program} {expression}: expected \"below\" or \"above\" with a number of {unit}")
            kept = not bound or (now < float(bound[2])) == (bound[1] == "below")
            broken += not kept
            print(f"{'ok    ' if kept else 'BROKEN'}  {program} {expression}: {now:.3g} {unit}"
                  f"{', promised ' + promise if promise else ''}; on the page {shown}", flush=True)
    print(f"{len(table)} rows, {broken} broken")
    return broken != 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
