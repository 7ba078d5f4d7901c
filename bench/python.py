#!/usr/bin/python3
"""Reads attributes of many instances with the Python module: as columns, and by objects.

    python.py [COUNT]    a model of so many property values, a million unless told; PYTHONPATH leads to the module

BenchColumns reads the same model in C++.
"""

import pathlib
import sys
import tempfile
import time

import numpy
import velkor


def write(path, count):
    """The model of BenchColumns."""
    with path.open("w") as file:
        file.write("ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');\n"
                   "FILE_SCHEMA(('IFC4'));\nENDSEC;\nDATA;\n")
        for i in range(1, count + 1):
            file.write(f"#{i}=IFCPROPERTYSINGLEVALUE('Name {i % 100}',$,IFCREAL({i}.5),$);\n")
        file.write("ENDSEC;\nEND-ISO-10303-21;\n")


def timed(name, count, work):
    best = None
    for _ in range(3):
        begin = time.process_time()
        answer = work()
        spent = time.process_time() - begin
        best = spent if best is None else min(best, spent)
    print(f"{name:<36}{best * 1e3:10.1f} ms{best / count * 1e9:10.0f} ns an instance")
    return answer


def main():
    count = int(sys.argv[1]) if len(sys.argv) > 1 else 1_000_000
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "values.ifc"
        write(path, count)
        model = timed("open", count, lambda: velkor.open(path))
        columns = timed("to_columns, one number", count,
                        lambda: model.to_columns("IfcPropertySingleValue", ["NominalValue"]))
        timed("to_columns, a number and a text", count,
              lambda: model.to_columns("IfcPropertySingleValue", ["NominalValue", "Name"]))
        total = timed("numpy.sum of the column", count, lambda: numpy.asarray(columns["NominalValue"]).sum())
        by_object = timed("by objects", count,
                          lambda: sum(one.NominalValue.value for one in model.by_entity("IfcPropertySingleValue")))
        assert total == by_object == count * (count + 1) / 2 + count / 2


if __name__ == "__main__":
    main()
