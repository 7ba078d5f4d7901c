import gc
import threading

import pytest
import velkor
from conftest import MODELS


def test_model_tells_its_release_header_and_size(pump_room):
    assert pump_room.release == "IFC4"
    assert pump_room.path == str(MODELS / "pump-room-ifc4.ifc")
    assert pump_room.header.name == "pump-room-ifc4.ifc"
    assert pump_room.header.schemas == ["IFC4"]
    assert pump_room.header.description == ["ViewDefinition [ReferenceView_V1.2]"]
    assert len(pump_room) == 211
    assert [instance.id for instance in pump_room] == list(range(1, 212))


def test_instances_are_found_by_id(pump_room):
    assert pump_room[194].entity == pump_room.by_id(194).entity == "IFCWALL"
    assert 194 in pump_room and pump_room[194] in pump_room
    assert 9999 not in pump_room and -1 not in pump_room and "194" not in pump_room
    with pytest.raises(KeyError, match="#9999"):
        pump_room[9999]


@pytest.mark.parametrize("entity, subtypes, ids", [
    ("IfcPump", True, [113, 142]),
    ("IFCFLOWMOVINGDEVICE", True, [113, 142]),
    ("IfcFlowMovingDevice", False, []),
    ("ifcwall", False, [194]),
])
def test_instances_are_found_by_entity(pump_room, entity, subtypes, ids):
    found = pump_room.by_entity(entity, subtypes=subtypes)
    assert len(found) == len(ids)
    assert [instance.id for instance in found] == ids


def test_lists_are_indexed_from_both_ends(pump_room):
    pumps = pump_room.by_entity("IfcPump")
    assert (pumps[0].id, pumps[-1].id) == (113, 142)
    for outside in (2, -3):
        with pytest.raises(IndexError):
            pumps[outside]


def test_instances_are_equal_when_they_are_the_same(pump_room):
    other = velkor.open(MODELS / "pump-room-ifc4.ifc")
    assert pump_room[113] == pump_room.by_entity("IfcPump")[0]
    assert hash(pump_room[113]) == hash(pump_room[113])
    assert pump_room[113] != pump_room[142] and pump_room[113] != other[113] and pump_room[113] != 113
    assert other[113] not in pump_room


def test_is_a_knows_the_entity_tree(pump_room):
    pump = pump_room[113]
    assert pump.is_a("IfcPump") and pump.is_a("IFCPRODUCT") and not pump.is_a("IfcWall")
    with pytest.raises(velkor.Error, match="probably meant: IFCWALL") as error:
        pump.is_a("IfcWal")
    assert error.value.code == "unknown-entity"


@pytest.mark.parametrize("id, attribute, value", [
    (113, "Name", "Pump 1"),
    (113, "NAME", "Pump 1"),
    (113, "Description", None),
    (113, "PredefinedType", "ENDSUCTION"),
    (6, "Dimensions", None),  # derived
    (76, "Coordinates", [0.0, 0.0, -12.0]),
    (44, "Exponent", 1),
    (69, "CoordinateSpaceDimension", 3),
    (57, "Prefix", None),
])
def test_attributes_are_python_values(pump_room, id, attribute, value):
    read = getattr(pump_room[id], attribute)
    assert read == value and type(read) is type(value)
    assert pump_room[id][attribute] == value


def test_references_are_instances(pump_room):
    assert pump_room[113].ObjectPlacement == pump_room[108]
    assert pump_room[172].RelatedObjects == [pump_room[113], pump_room[142]]
    assert pump_room[15].UnitComponent == pump_room[6]


def test_selected_values_carry_their_type(pump_room):
    value = pump_room[174].NominalValue
    assert (value.type, value.value) == ("IFCPRESSUREMEASURE", 150.0)
    assert value == pump_room[174].NominalValue and hash(value) == hash(pump_room[174].NominalValue)
    assert value != pump_room[15].ValueComponent and value != 150.0
    assert pump_room[197].NominalValue.value is True and pump_room[196].NominalValue.value is False


def test_attributes_come_as_a_dictionary(pump_room):
    assert pump_room[44].attributes == {"UNIT": pump_room[28], "EXPONENT": 1}


def test_unknown_attributes_are_told(pump_room):
    with pytest.raises(AttributeError, match="IFCPUMP has no attribute 'Nme'"):
        pump_room[113].Nme
    with pytest.raises(KeyError, match="Nme"):
        pump_room[113]["Nme"]
    assert not hasattr(pump_room[113], "Nme")


def test_texts_logicals_and_sets_of_definitions(written):
    model = velkor.open(written(
        r"#1=IFCPROPERTYSINGLEVALUE('Gr\X2\00F6\X0\\X2\00DF\X0\e',$,IFCLOGICAL(.U.),$);",
        "#2=IFCPROPERTYSET('0zM5aTvrLO69qGfBjodGv4',$,'Ours',$,(#1));",
        "#3=IFCRELDEFINESBYPROPERTIES('0rUe2L2xPSCBQ9wWL6E0Ih',$,$,$,(),IFCPROPERTYSETDEFINITIONSET((#2)));"))
    assert model[1].Name == "Größe"
    assert model[1].NominalValue.value == "UNKNOWN"
    assert model[3].RelatedObjects == []
    assert model[3].RelatingPropertyDefinition.value == [model[2]]


@pytest.mark.parametrize("line, attribute, code", [
    ("#7=IFCCARTESIANPOINT(('x',0.));", "Coordinates", "wrong-type"),
    ("#7=IFCCARTESIANPOINT(5.);", "Coordinates", "wrong-type"),
    ("#7=IFCDERIVEDUNITELEMENT(#99,1);", "Unit", "dangling-reference"),
    ("#7=IFCDERIVEDUNITELEMENT($,.A.);", "Exponent", "wrong-type"),
    ("#7=IFCSIUNIT(*,.NOUNIT.,$,.METRE.);", "UnitType", "wrong-type"),
    ("#7=IFCPROPERTYSINGLEVALUE(5,$,$,$);", "Name", "wrong-type"),
    ("#7=IFCPROPERTYSINGLEVALUE('a',$,IFCNONE(5),$);", "NominalValue", "wrong-type"),
    ("#7=IFCPROPERTYSINGLEVALUE('a',$," + "IFCLABEL(" * 100000 + "'x'" + ")" * 100000 + ",$);", "NominalValue",
     "wrong-type"),
])
def test_damaged_values_are_errors_with_their_place(written, line, attribute, code):
    path = written(line)
    with pytest.raises(velkor.Error) as error:
        getattr(velkor.open(path)[7], attribute)
    assert (error.value.code, error.value.path, error.value.line, error.value.instance) == (code, str(path), 8, 7)


def test_what_was_taken_keeps_its_model_open(written):
    path = written("#1=IFCORGANIZATION($,'Ours',$,$,$);", "#2=IFCORGANIZATION($,'Theirs',$,$,$);")
    instance = velkor.open(path)[1]
    instances = velkor.open(path).by_entity("IfcOrganization")
    iterator = iter(velkor.open(path))
    attributes = velkor.open(path).dictionary.entity("IfcWall").attributes
    gc.collect()
    assert instance.Name == "Ours" and len(instance.model) == 2
    assert [one.Name for one in instances] == [one.Name for one in iterator] == ["Ours", "Theirs"]
    assert attributes[0].name == "GLOBALID"


@pytest.mark.parametrize("name, text, code", [
    ("missing.ifc", None, "file-missing"),
    ("none.ifc", "no model", "no-exchange-structure"),
    ("empty.ifc", "", "file-empty"),
])
def test_files_that_cannot_be_read_are_errors(tmp_path, name, text, code):
    path = tmp_path / name
    if text is not None:
        path.write_text(text)
    for read in (velkor.open, velkor.check):
        with pytest.raises(velkor.Error, match=name) as error:
            read(path)
        assert (error.value.code, error.value.path) == (code, str(path))


def test_threads_share_a_model(pump_room):
    answers = []

    def read():
        for _ in range(20):
            answers.append(pump_room.check().total)
            answers.extend(0 for instance in pump_room.by_entity("IfcWall") if instance.Name != "North wall")

    threads = [threading.Thread(target=read) for _ in range(3)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join(60)
        assert not thread.is_alive()
    assert answers == [0] * 60
