import gc
import math

import numpy
import pandas
import pytest
import velkor
from conftest import MODELS

SETS = [
    "#1=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F30'),$);",
    "#2=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('F90'),$);",
    "#3=IFCPROPERTYSET('0zM5aTvrLO69qGfBjodGv4',$,'Pset_WallCommon',$,(#1));",
    "#4=IFCPROPERTYSET('1zM5aTvrLO69qGfBjodGv4',$,'Pset_WallCommon',$,(#2));",
    "#5=IFCQUANTITYLENGTH('Width',$,$,0.25,$);",
    "#6=IFCELEMENTQUANTITY('2zM5aTvrLO69qGfBjodGv4',$,'Qto_WallBaseQuantities',$,$,(#5));",
    "#7=IFCPROPERTYENUMERATEDVALUE('Status',$,(IFCLABEL('NEW')),$);",
    "#8=IFCPROPERTYSET('3zM5aTvrLO69qGfBjodGv4',$,'Pset_WallCommon',$,(#7));",
    "#10=IFCWALLTYPE('10Uxm_mk9MWRD3KpuCCtuX',$,'Type',$,$,(#3,#8),$,$,$,.SOLIDWALL.);",
    "#11=IFCWALL('11Uxm_mk9MWRD3KpuCCtuX',$,'A',$,$,$,$,$,.SOLIDWALL.);",
    "#12=IFCWALL('12Uxm_mk9MWRD3KpuCCtuX',$,$,$,$,$,$,$,$);",
    "#13=IFCWALLSTANDARDCASE('13Uxm_mk9MWRD3KpuCCtuX',$,'A',$,$,$,$,$,.SHEAR.);",
    "#20=IFCRELDEFINESBYTYPE('20Uxm_mk9MWRD3KpuCCtuX',$,$,$,(#11,#12),#10);",
    "#21=IFCRELDEFINESBYPROPERTIES('21Uxm_mk9MWRD3KpuCCtuX',$,$,$,(#12),IFCPROPERTYSETDEFINITIONSET((#4,#6)));",
]


@pytest.fixture
def walls(written):
    return velkor.open(written(*SETS))


def rows(model, entity, *names):
    columns = model.to_columns(entity, names)
    assert list(columns) == list(names)
    return [column.to_list() for column in columns.values()]


def test_columns_are_what_the_instances_say():
    for path in MODELS.glob("*-ifc*.ifc"):
        model = velkor.open(path)
        products = model.by_entity("IfcProduct")
        names = ["GlobalId", "Name", "ObjectPlacement", "Representation"]
        columns = model.to_columns("IfcProduct", ["#id", "#entity", *names])
        assert columns["#id"].to_list() == [one.id for one in products]
        assert columns["#entity"].to_list() == [one.entity for one in products]
        for name in names:
            values = [one[name] for one in products]
            assert columns[name].to_list() == [one.id if isinstance(one, velkor.Instance) else one for one in values]
        points = model.by_entity("IfcCartesianPoint")
        assert model.to_columns("IfcCartesianPoint", ["Coordinates"])["Coordinates"].to_list() == [
            one.Coordinates for one in points]


def test_kinds_have_their_buffers(pump_room):
    columns = pump_room.to_columns("IfcCartesianPoint", ["#id", "Coordinates"])
    ids = numpy.asarray(columns["#id"])
    assert ids.dtype == numpy.int64 and not ids.flags.writeable and ids.tolist() == columns["#id"].to_list()
    points = columns["Coordinates"]
    values, offsets = numpy.asarray(points), numpy.asarray(points.offsets)
    assert (points.kind, points.is_list, values.dtype.name, points.dtype) == ("real", True, "float64", "float64")
    assert [values[a:b].tolist() for a, b in zip(offsets, offsets[1:])] == points.to_list()
    assert offsets[-1] == len(values) and len(points) == len(offsets) - 1
    assert memoryview(columns["#id"])[0] == ids[0]


def test_values_that_are_unset_are_told_by_kind(written):
    columns = velkor.open(written(
        "#1=IFCSITE('10Uxm_mk9MWRD3KpuCCtuX',$,$,$,$,$,$,$,.ELEMENT.,$,$,12.5,$,$);",
        "#2=IFCSITE('11Uxm_mk9MWRD3KpuCCtuX',$,'b',$,$,$,$,$,$,(1,2,3),$,$,$,$);",
        "#3=IFCSITE('12Uxm_mk9MWRD3KpuCCtuX',$,'b',$,$,$,$,$,.ELEMENT.,$,$,.X.,$,$);",
    )).to_columns("IfcSite", ["Name", "RefElevation", "RefLatitude", "CompositionType", "LandTitleNumber"])
    height = numpy.asarray(columns["RefElevation"])
    assert height[0] == 12.5 and math.isnan(height[1]) and math.isnan(height[2])
    assert numpy.asarray(columns["RefElevation"].valid).tolist() == [True, False, False]
    assert [columns[name].damaged for name in columns] == [0, 1, 0, 0, 0]
    assert columns["RefLatitude"].to_list() == [None, [1, 2, 3], None]
    assert numpy.asarray(columns["Name"]).tolist() == [-1, 0, 0] and columns["Name"].categories == ["b"]
    assert columns["CompositionType"].to_list() == ["ELEMENT", None, "ELEMENT"]
    assert columns["LandTitleNumber"].to_list() == [None] * 3 and columns["LandTitleNumber"].categories is None


def test_properties_come_from_objects_and_their_types(walls):
    assert rows(walls, "IfcWall", "#id", "Name", "Pset_WallCommon.FireRating", "Pset_WallCommon.Status",
                "Qto_WallBaseQuantities.Width", "Pset_WallCommon.None") == [
        [11, 12, 13], ["A", None, "A"], ["F30", "F90", None], ["NEW", "NEW", None], [None, 0.25, None], [None] * 3]
    assert rows(walls, "IfcWallType", "Pset_WallCommon.FireRating") == [["F30"]]


@pytest.mark.parametrize("values, kind, expected", [
    (["IFCREAL(1.5)", "IFCINTEGER(2)", "$"], "real", [1.5, 2.0, None]),
    (["$", "IFCINTEGER(2)", "IFCREAL(1.5)"], "real", [None, 2.0, 1.5]),
    (["IFCINTEGER(2)", "$", "IFCTIMESTAMP(3)"], "integer", [2, None, 3]),
    (["IFCBOOLEAN(.T.)", "IFCLOGICAL(.U.)", "$", "IFCBOOLEAN(.F.)"], "logical", [True, "UNKNOWN", None, False]),
    (["IFCINTEGER(2)", "$", "IFCLABEL('x')", "IFCREAL(.5)", "IFCBOOLEAN(.T.)"], "text", ["2", None, "x", "0.5", "TRUE"]),
    (["IFCREAL(.5)", "$", "IFCLABEL('')"], "text", ["0.5", None, ""]),
    (["IFCLOGICAL(.U.)", "$", "IFCINTEGER(1)"], "text", ["UNKNOWN", None, "1"]),
    (["IFCNONE(2)", "#99", "IFCLABEL(5)", "$"], "real", [None] * 4),
])
def test_selected_values_are_of_one_kind(written, values, kind, expected):
    lines = [f"#{i}=IFCPROPERTYSINGLEVALUE('p',$,{value},$);" for i, value in enumerate(values, 1)]
    column = velkor.open(written(*lines)).to_columns("IfcPropertySingleValue", ["NominalValue"])["NominalValue"]
    assert (column.kind, column.to_list()) == (kind, expected)
    assert column.damaged == (3 if "#99" in values else 0)


def test_attributes_of_subtypes_are_unset_elsewhere(pump_room):
    entities, types = rows(pump_room, "IfcElement", "#entity", "PredefinedType")
    assert dict(zip(entities, types))["IFCPUMP"] == "ENDSUCTION"
    for entity, name, code in (("IfcElement", "Nme", "unknown-attribute"), ("IfcWal", "Name", "unknown-entity"),
                               ("IfcBSplineSurface", "ControlPointsList", "unsupported")):
        with pytest.raises(velkor.Error) as error:
            pump_room.to_columns(entity, [name])
        assert error.value.code == code


def test_pandas_takes_columns(walls):
    columns = walls.to_columns("IfcWall", ["#id", "PredefinedType", "Qto_WallBaseQuantities.Width"])
    types = columns["PredefinedType"]
    frame = pandas.DataFrame({
        "type": pandas.Categorical.from_codes(types, types.categories),
        "width": numpy.asarray(columns["Qto_WallBaseQuantities.Width"]),
    }, index=numpy.asarray(columns["#id"]))
    assert frame.groupby("type", observed=True).size().to_dict() == {"SOLIDWALL": 1, "SHEAR": 1}
    assert frame.width.sum() == 0.25 and frame.width.isna().sum() == 2


def test_categories_are_bytes_too(written):
    column = velkor.open(written(
        *[rf"#{i}=IFCORGANIZATION($,'\X2\00DC\X0\{i % 7}',$,$,$);" for i in range(1, 100)])).to_columns(
            "IfcOrganization", ["Name"])["Name"]
    offsets, texts = numpy.asarray(column.category_offsets), bytes(column.category_bytes)
    assert [texts[a:b].decode() for a, b in zip(offsets, offsets[1:])] == column.categories
    assert len(column.categories) == 7 and column.to_list()[:2] == ["Ü1", "Ü2"]


def test_buffers_keep_their_columns(walls):
    values = numpy.asarray(walls.to_columns("IfcWall", ["#id"])["#id"])
    valid = walls.to_columns("IfcWall", ["Name"])["Name"].valid
    gc.collect()
    churn = [walls.to_columns("IfcWall", ["#id"]) for _ in range(50)]
    assert values.tolist() == [11, 12, 13] and numpy.asarray(valid).tolist() == [True, False, True] and churn


def test_empty_columns_are_buffers_too(walls):
    columns = walls.to_columns("IfcDoor", ["#id", "Name", "OverallWidth"])
    assert [len(numpy.asarray(column)) for column in columns.values()] == [0, 0, 0]
