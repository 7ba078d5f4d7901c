"""The stubs and the module say the same, and the samples of the page are true."""

import ast
import doctest
import inspect
import os
import pathlib
import re
import shutil

import velkor
from conftest import ROOT

STUBS = pathlib.Path(velkor.__file__).with_name("__init__.pyi")
# Methods of every object, and those that pybind11 adds.
SHOWN = {"__len__", "__iter__", "__next__", "__getitem__", "__getattr__", "__contains__"}


def members(names):
    return {name for name in names if not name.startswith("_") or name in SHOWN}


def declared():
    """Names of the stubs: classes with their members, functions with those of their parameters."""
    classes, functions = {}, {}

    def parameters(function):
        return [argument.arg for argument in function.args.args if argument.arg != "self"]

    for node in ast.parse(STUBS.read_text()).body:
        if isinstance(node, ast.ClassDef):
            fields = {field.target.id for field in node.body if isinstance(field, ast.AnnAssign)}
            methods = {method.name: method for method in node.body if isinstance(method, ast.FunctionDef)}
            classes[node.name] = members(fields | methods.keys())
            functions.update({f"{node.name}.{name}": parameters(method) for name, method in methods.items()
                              if not method.decorator_list and not name.startswith("__")})
        elif isinstance(node, ast.FunctionDef):
            functions[node.name] = parameters(node)
    return classes, functions


def test_stubs_have_every_public_name():
    classes, functions = declared()
    assert set(velkor.__all__) == classes.keys() | {name for name in functions if "." not in name}
    for name, stub in classes.items():
        kind = getattr(velkor, name)
        assert members(vars(kind)) == stub, name


def test_stubs_have_every_parameter():
    for name, parameters in declared()[1].items():
        function = velkor
        for part in name.split("."):
            function = getattr(function, part)
        signature = function.__doc__.splitlines()[0]
        shown = re.findall(r"[(,] ?(\w+): ", signature)
        assert [one for one in shown if one not in ("self", "arg0")] == parameters, signature


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
    test = doctest.DocTestParser().get_doctest(samples, {}, "python.md", "docs/python.md", 0)
    before = os.getcwd()
    os.chdir(tmp_path)
    try:
        result = doctest.DocTestRunner(optionflags=doctest.ELLIPSIS).run(test)
    finally:
        os.chdir(before)
    assert result.attempted > 10 and result.failed == 0
