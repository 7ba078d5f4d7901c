import pytest
import velkor
from conftest import MODELS


def test_sound_models_have_no_findings(pump_room):
    result = pump_room.check()
    assert (result.total, result.findings, result.release) == (0, [], "IFC4")


def test_findings_tell_code_place_and_message(written):
    path = written("#1=IFCORGANIZATION($,$,$,$,$);", "#5=IFCNOTHING();")
    result = velkor.open(path).check()
    assert [(one.code, one.severity, one.line, one.instance, one.rule) for one in result.findings] == [
        ("missing-value", "error", 8, 1, None), ("unknown-entity", "error", 9, 5, None)]
    assert all(one.message for one in result.findings)


def test_rules_are_named(written):
    result = velkor.open(written("#1=IFCPERSON($,$,$,$,$,$,$,$);")).check()
    assert "IfcPerson.IdentifiablePerson" in [one.rule for one in result.findings]


def test_scope_limit_and_codes_bound_a_check(written):
    path = written("#1=IFCORGANIZATION($,$,$,$,$);", "#5=IFCNOTHING();")
    model = velkor.open(path)
    assert model.check("structure").total == 0
    bounded = model.check("dictionary", limit=1)
    assert (bounded.total, len(bounded.findings)) == (2, 1)
    assert [one.code for one in model.check(only=["unknown-entity"]).findings] == ["unknown-entity"]
    assert [one.code for one in model.check(ignore=["unknown-entity"]).findings] == ["missing-value"]
    for wrong in ({"scope": "all"}, {"only": ["no-code"]}, {"ignore": ["no-code"]}):
        with pytest.raises(ValueError):
            model.check(**wrong)


def test_files_of_unknown_releases_are_judged_too(written):
    path = written("#1=IFCWALL();", schema="IFC99")
    with pytest.raises(velkor.Error) as error:
        velkor.open(path)
    assert error.value.code == "schema-unknown"
    result = velkor.check(path)
    assert result.release is None
    assert "schema-unknown" in [one.code for one in result.findings]


def test_property_sets_are_validated(pump_room, written):
    result = pump_room.validate()
    assert (result.total, result.sets, result.checked_sets, result.defined_by) == (0, 9, 9, "IFC4")
    found = velkor.open(written(
        "#1=IFCPROPERTYSINGLEVALUE('IsExternl',$,IFCBOOLEAN(.T.),$);",
        "#2=IFCPROPERTYSET('0zM5aTvrLO69qGfBjodGv4',$,'Pset_WallCommon',$,(#1));",
        "#3=IFCWALL('16Uxm_mk9MWRD3KpuCCtuX',$,$,$,$,$,$,$,$);",
        "#4=IFCRELDEFINESBYPROPERTIES('0rUe2L2xPSCBQ9wWL6E0Ih',$,$,$,(#3),#2);")).validate().findings
    assert [(one.set, one.property, one.nearest, one.object, one.instance) for one in found] == [
        ("Pset_WallCommon", "IsExternl", "IsExternal", 3, 2)]


def test_products_are_classified():
    house = velkor.open(MODELS / "house-ifc2x3.ifc")
    result = house.classify()
    walls = [one for one in result.products if one.instance.is_a("IfcWallStandardCase")]
    assert [one.neutral_id for one in walls].count("ExternalWall") == 4
    assert all((one.neutral_id is None) == bool(one.reason) for one in result.products)
    assert result.unclassified == sum(one.neutral_id is None for one in result.products)
    assert result.document.endswith("AECCorrespondences.xml")


def test_units_have_factors(pump_room):
    units = pump_room.units()
    assert units.length_factor == pytest.approx(304.8)
    assert units.angle_factor == pytest.approx(0.017453292519943295)
    assert units.measures["IFCAREAMEASURE"] == pytest.approx(0.09290304)
    pressure = next(unit for unit in units.units if unit.type == "PRESSUREUNIT")
    assert (pressure.id, pressure.entity) == (34, "IFCCONVERSIONBASEDUNIT")
    assert pressure.factor == pytest.approx(6894.757293168361)


def test_a_configuration_that_is_none_is_an_error(pump_room, tmp_path):
    path = tmp_path / "velkor.json"
    path.write_text("{\"nothing\": 1}")
    for work in (pump_room.validate, pump_room.classify, lambda configuration: velkor.PropertySets("IFC4", configuration)):
        with pytest.raises(velkor.Error, match="nothing") as error:
            work(configuration=str(path))
        assert error.value.code == "configuration-invalid"


def test_dictionaries():
    assert "IFC4" in velkor.releases() and len(velkor.releases()) == 8
    ifc4 = velkor.Dictionary("4")
    assert ifc4.name == "IFC4" and "IfcWall" in ifc4 and "IfcRoad" not in ifc4
    assert "IFCWALL" in ifc4.entities
    assert ifc4.is_subtype("IfcWall", "IfcProduct") and not ifc4.is_subtype("IfcProduct", "IfcWall")
    wall = ifc4.entity("IfcWall")
    assert wall.supertypes[0] == "IFCBUILDINGELEMENT" and wall.supertypes[-1] == "IFCROOT" and not wall.is_abstract
    last = [one for one in wall.attributes if one.position][-1]
    assert (last.name, last.owner, last.position, last.is_optional) == ("PREDEFINEDTYPE", "IFCWALL", 9, True)
    with pytest.raises(velkor.Error) as error:
        velkor.Dictionary("IFC99")
    assert error.value.code == "schema-unknown"


def test_catalogue_of_property_sets():
    sets = velkor.PropertySets("IFC4")
    assert len(sets) == len(sets.names) > 100 and "Pset_WallCommon" in sets
    wall = sets.show("Pset_WallCommon")
    assert "IfcWall" in wall.classes and not wall.is_quantity_set
    external = next(one for one in wall.properties if one.name == "IsExternal")
    assert (external.kind, external.value_type) == ("single", "IfcBoolean")
    assert "Pset_WallCommon" in sets.applicable("IfcWall")
    assert "Pset_WallCommon" not in sets.applicable("IfcPump")
    for name, code in (("Pset_WallComon", "set-unknown"),):
        with pytest.raises(velkor.Error, match="probably meant: Pset_WallCommon") as error:
            sets.show(name)
        assert error.value.code == code
