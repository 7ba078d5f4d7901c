import pathlib

import pytest

ROOT = pathlib.Path(__file__).resolve().parents[2]
MODELS = ROOT / "examples/models"

import velkor  # noqa: E402


@pytest.fixture(scope="session")
def pump_room():
    return velkor.open(MODELS / "pump-room-ifc4.ifc")


@pytest.fixture
def written(tmp_path):
    """Writes a model of IFC4 with these lines of data and opens it."""

    def write(*lines, schema="IFC4"):
        path = tmp_path / "model.ifc"
        path.write_text("\n".join([
            "ISO-10303-21;", "HEADER;", "FILE_DESCRIPTION((''),'2;1');", "FILE_NAME('','',(''),(''),'','','');",
            f"FILE_SCHEMA(('{schema}'));", "ENDSEC;", "DATA;", *lines, "ENDSEC;", "END-ISO-10303-21;", ""]))
        return path

    return write
