"""The stubs and the module say the same, and the samples of the page are true."""

import ast
import doctest
import inspect
import os
import pathlib
import re
import shutil
import subprocess
import sys

import velkor
from conftest import ROOT

STUBS = pathlib.Path(velkor.__file__).with_name("__init__.pyi")
SITE = STUBS.parents[1]


def run(*command):
    return subprocess.run([sys.executable, "-B", *map(str, command)], capture_output=True, text=True, timeout=300,
                          env=os.environ | {"PYTHONPATH": str(SITE)}, check=False)


def test_stubs_and_module_have_the_same_names(tmp_path):
    configuration = tmp_path / "mypy.ini"
    configuration.write_text(f"[mypy]\nstrict = True\ncache_dir = {tmp_path}\n")
    result = run("-m", "mypy.stubtest", "velkor", "--concise", "--mypy-config-file", configuration)
    # What pybind11 makes has a metaclass of its own, and a constructor that takes anything.
    pybind11 = ("is inconsistent, metaclass differs", '__init__ is inconsistent, stub does not have *args argument "args"')
    assert any(line.endswith(pybind11) for line in result.stdout.splitlines()), result.stdout + result.stderr
    assert [line for line in result.stdout.splitlines() if not line.endswith(pybind11)] == []


def functions(tree, of=velkor):
    for node in tree.body:
        if isinstance(node, ast.ClassDef):
            yield from functions(node, getattr(of, node.name))
        elif isinstance(node, ast.FunctionDef) and not node.decorator_list and not node.name.startswith("__"):
            yield getattr(of, node.name), node


def test_stubs_have_every_parameter_and_default():
    count = 0
    for function, stub in functions(ast.parse(STUBS.read_text())):
        count += 1
        signature = function.__doc__.splitlines()[0]
        shown = [one for one in re.findall(r"[(,] ?(\w+): ", signature) if one not in ("self", "arg0")]
        assert shown == [one.arg for one in [*stub.args.args, *stub.args.kwonlyargs] if one.arg != "self"], signature
        defaults = [ast.unparse(one) for one in [*stub.args.defaults, *stub.args.kw_defaults]]
        assert re.findall(r" = ('.*?'|\[.*?\]|\{.*?\}|[\w.]+)[,)]", signature) == defaults, signature
    assert count > 10


def test_stubs_have_every_docstring():
    result = run(ROOT / "scripts/python-stubs", "--check", SITE)
    assert result.returncode == 0, result.stderr


def test_public_names_have_docstrings():
    for name in velkor.__all__:
        assert inspect.getdoc(getattr(velkor, name)), name
    assert STUBS.with_name("py.typed").exists()


def test_samples_of_the_page_are_true(tmp_path):
    page = (ROOT / "docs/python.md").read_text()
    samples = "\n".join(re.findall(r"```python\n(.*?)```", page, re.DOTALL))
    assert samples.count(">>> ") > 10
    shutil.copy(ROOT / "examples/models/house-ifc2x3.ifc", tmp_path / "house.ifc")
    shutil.copy(ROOT / "examples/models/pump-room-ifc4.ifc", tmp_path / "my-model.ifc")
    shutil.copy(ROOT / "examples/models/broken.ifc", tmp_path)
    test = doctest.DocTestParser().get_doctest(samples, {}, "python.md", "docs/python.md", 0)
    before = os.getcwd()
    os.chdir(tmp_path)
    try:
        result = doctest.DocTestRunner(optionflags=doctest.ELLIPSIS).run(test)
    finally:
        os.chdir(before)
    assert result.attempted > 10 and result.failed == 0
