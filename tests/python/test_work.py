"""Conversion, identifiers, differences of dictionaries, and how long work is followed and ended."""

import sys
import threading
import time

import pytest
import velkor
from conftest import MODELS

BUSY = "\n".join(f"#{i}=IFCORGANIZATION($,'Organization {i}',$,$,$);" for i in range(1, 60001))


@pytest.fixture
def house():
    return velkor.open(MODELS / "house-ifc2x3.ifc")


def test_models_are_converted_to_other_releases_and_units(house, tmp_path):
    path = tmp_path / "out.ifc"
    report = house.convert(path, release="4", units={"LengthUnit": "METRE"})
    assert [step.name for step in report.steps] == ["release", "units"]
    converted = velkor.open(path)
    assert (converted.release, converted.units().length_factor) == ("IFC4", 1000.0)
    rules = [rule for step in report.steps for rule in step.rules]
    assert rules and all(rule.count >= len(rule.changes) > 0 and rule.name and rule.reason for rule in rules)
    assert report.is_lossless == all(rule.effect != "lost" for rule in rules)


def test_a_conversion_of_nothing_is_a_copy(house, tmp_path):
    path = tmp_path / "copy.ifc"
    report = house.convert(path)
    assert report.steps == [] and path.read_bytes() == (MODELS / "house-ifc2x3.ifc").read_bytes()


def test_identifiers_are_checked_and_repaired(tmp_path):
    broken = velkor.open(MODELS / "broken.ifc")
    check = broken.check_identifiers()
    assert sorted(one.code for one in check.findings) == ["guid-duplicate", "guid-first-character", "guid-length"]
    report = broken.convert(tmp_path / "repaired.ifc", repair_identifiers=True)
    assert len(report.identifiers) == check.total == 3
    again = velkor.open(tmp_path / "repaired.ifc")
    assert (again.check_identifiers().total, again.check_identifiers().count) == (0, check.count)
    for change in report.identifiers:
        assert again[change.instance].GlobalId == change.after != change.before


@pytest.mark.parametrize("options, error", [
    ({"release": "IFC99"}, velkor.Error),
    ({"units": {"LENGTHUNIT": "PARSEC"}}, ValueError),
    ({"units": {"LENGTHUNIT": "METRE", "lengthunit": "INCH"}}, ValueError),
    ({"custom_mapping": "both"}, ValueError),
])
def test_what_cannot_be_converted_leaves_no_file(house, tmp_path, options, error):
    with pytest.raises(error):
        house.convert(tmp_path / "out.ifc", **options)
    assert list(tmp_path.iterdir()) == []


def test_places_that_cannot_be_written_are_errors(house, tmp_path):
    with pytest.raises(velkor.Error, match="cannot be written") as error:
        house.convert(tmp_path / "none" / "out.ifc")
    assert (error.value.code, error.value.path) == ("file-missing", str(tmp_path / "none" / "out.ifc"))


def test_identifiers_are_made_and_written_both_ways():
    made = velkor.new_identifier()
    assert velkor.identifier_fault(made) is None and made != velkor.new_identifier()
    assert velkor.compress_identifier(velkor.expand_identifier(made)) == made
    assert velkor.expand_identifier("0$WU4A9R19$vKWO$AdOnKA") == "3f81e10a-25b0-49ff-9520-63f2a763150a"
    assert velkor.identifier_from_plm("pump-1") == velkor.identifier_from_plm("pump-1") != velkor.identifier_from_plm("2")
    assert velkor.identifier_fault("9" * 22)[0] == "guid-first-character"
    for work in (velkor.expand_identifier, velkor.compress_identifier, velkor.identifier_from_plm):
        with pytest.raises(ValueError):
            work("")


def test_dictionaries_are_compared():
    diff = velkor.Dictionary("IFC2X3").diff(velkor.Dictionary("IFC4"))
    assert "IFCDOORTYPE" in diff.added_entities and "IFCBEZIERCURVE" in diff.removed_entities
    wall = next(one for one in diff.changed_entities if one.name == "IFCWALL")
    assert wall.added_attributes == {"PREDEFINEDTYPE": "OPTIONAL IFCWALLTYPEENUM"}
    back = velkor.Dictionary("IFC4").diff(velkor.Dictionary("IFC2X3"))
    assert back.removed_entities == diff.added_entities and back.added_rules == diff.removed_rules
    same = velkor.Dictionary("IFC4").diff(velkor.Dictionary("IFC4"))
    assert not same.added_entities and not same.changed_entities and not same.changed_types and not same.changed_rules


def works(model, tmp_path):
    return {
        "check": model.check,
        "validate": model.validate,
        "classify": model.classify,
        "check_identifiers": model.check_identifiers,
        "convert": lambda progress: model.convert(tmp_path / "out.ifc", release="IFC4", progress=progress),
        "to_columns": lambda progress: model.to_columns("IfcRoot", ["Name"], progress=progress),
        "velkor.check": lambda progress: velkor.check(model.path, progress=progress),
    }


WORKS = list(works(velkor.open(MODELS / "house-ifc2x3.ifc"), MODELS))


@pytest.mark.parametrize("name", WORKS)
def test_progress_is_told_and_an_exception_ends_the_work(house, tmp_path, name):
    told = []
    works(house, tmp_path)[name](progress=lambda *step: told.append(step))
    assert told and all(isinstance(work, str) and 0 <= done <= total for work, done, total in told)

    def stop(work, done, total):
        raise KeyError(work)

    before = sorted(tmp_path.iterdir())
    with pytest.raises(KeyError, match=told[0][0]):
        works(house, tmp_path)[name](progress=stop)
    assert sorted(tmp_path.iterdir()) == before


@pytest.mark.parametrize("name", WORKS)
def test_false_ends_the_work(house, tmp_path, name):
    told = []
    work = works(house, tmp_path)[name]

    def stop(*step):
        told.append(step)
        return False

    if name in ("convert", "to_columns"):
        with pytest.raises(velkor.Error) as error:
            work(progress=stop)
        assert error.value.code == "ended" and not list(tmp_path.iterdir())
    else:
        assert not work(progress=stop).is_complete
    assert len(told) == 1


def test_a_callback_may_read_its_model_and_begin_no_work(house):
    names, codes = [], []

    def follow(*step):
        names.append(house[60].Name)
        for work in (house.validate, house.check, house.units, velkor.new_identifier):
            with pytest.raises(velkor.Error) as error:
                work()
            codes.append(error.value.code)

    house.check(progress=follow)
    assert set(names) == {"South wall"} and set(codes) == {"busy"}


def test_other_threads_run_during_long_work(written):
    model = velkor.open(written(*BUSY.splitlines()))
    begun, done = threading.Event(), threading.Event()
    counts = []

    def count():
        begun.set()
        while not done.is_set():
            counts.append(1)
            time.sleep(0.0001)

    thread = threading.Thread(target=count)
    interval = sys.getswitchinterval()
    # Nobody is made to hand over the interpreter: the other thread counts only when it is let go.
    sys.setswitchinterval(60)
    try:
        thread.start()
        begun.wait(60)
        before = len(counts)
        model.check("dictionary")
        during = len(counts) - before
    finally:
        sys.setswitchinterval(interval)
        done.set()
        thread.join(60)
    assert during > 0
