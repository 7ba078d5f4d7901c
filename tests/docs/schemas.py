#!/usr/bin/env python3
"""The schemas of docs/schemas describe the resource files: xmllint, which knows nothing of them, is the judge.

    schemas.py PROGRAM RESOURCES    RESOURCES is the folder of resource files as a build makes it

Valid are all files that come with the program, those that it writes, and the examples of docs/resource-files.md. A file
of each kind with a fault in it is not.
"""

import pathlib
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parent))
import pages  # noqa: E402

SCHEMAS = pages.ROOT / "docs/schemas"
PROGRAM, RESOURCES = sys.argv[1], pathlib.Path(sys.argv[2])
# Folder of the files of a kind, its schema, and faults: what is written in place of what.
KINDS = [
    ("ifc", "version-mapping", [('from="2x3"', 'from="IFC2X3"'), ("<Mapping fromEntity=", "<Mapping entity="),
                                ("<Mapping ", "<Maping "), ('to="4"', 'to="4" note=""')]),
    ("ifcCustomMapping", "custom-mapping", [("IfcMapping>", "Mapping>"), ('scope="', 'scope=" '), ("toEntity", "to")]),
    ("IfcPLMAttributesMapping", "plm-attributes", [("plmProp=", "prop="), ('propExpose="Both"', 'propExpose="Export"'),
                                                   ('propExpose="Export_Only"', 'propExpose="export"')]),
    ("xcad", "aec", [('Priority="10"', 'Priority="high"'), ("<Condition Attribute=", "<Condition Name="),
                     ("<NORVEL", "<IFC"), ('Name="IfcWall"', "")]),
    ("IFCAttributes", "attribute-list", [('ID="2X3"', 'ID="IFC2X3"'), ("<AttributeID", "<Attribute"), ("Value=", "Is=")]),
    ("IFCPsetQset", "property-set", [("<PropertyDef>", "<Property>"), ("<ClassName>", "<Class>"), ("DataType", "Datatype"),
                                     ("PropertySetDef", "SetDef"), ("<IfcVersion version=", "<IfcVersion is=")]),
]
failures = []


def refused(schema, files):
    """Those of the files that are not valid, with what the judge says."""
    answer = subprocess.run(["xmllint", "--noout", "--nonet", "--schema", SCHEMAS / f"{schema}.xsd", *files], text=True,
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if answer.returncode not in (0, 3, 4):
        failures.append(f"{schema}: {answer.stdout}")
    lines = answer.stdout.splitlines()
    valid = {line.removesuffix(" validates") for line in lines if line.endswith(" validates")}
    return [str(file) for file in files if str(file) not in valid], lines


def expect_valid(schema, files):
    bad, lines = refused(schema, files)
    if bad or not files:
        failures.append("\n".join([f"{schema}: {len(bad)} of {len(files)} refused", *bad[:5],
                                   *[line for line in lines if "error" in line][:5]]))


def write_examples(folder):
    for _, info, lines in pages.blocks(pages.ROOT / "docs/resource-files.md"):
        if info.startswith("xml "):
            file = folder / info.split()[1]
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text("\n".join(lines) + "\n")


def faulty(example, faults, folder):
    """Copies of a file with one fault each; closing tags go with the opening ones."""
    text = example.read_text()
    for number, (before, after) in enumerate(faults):
        copy = folder / f"{example.stem}-{number}.xml"
        changed = text.replace(before, after)
        if before[0] == "<" and " " not in before:
            changed = changed.replace("</" + before[1:], "</" + after[1:])
        if changed == text:
            failures.append(f"{example.name} has no {before}")
        copy.write_text(changed)
        yield copy


def main():
    count = 0
    with tempfile.TemporaryDirectory() as name:
        scratch = pathlib.Path(name)
        write_examples(scratch)
        for folder, schema, faults in KINDS:
            examples = [path for path in scratch.rglob("*.xml") if path.parent.name == folder]
            shipped = [path for path in RESOURCES.rglob("*.xml") if path.parent.name == folder]
            shipped += sorted((pages.ROOT / "resources/standard" / folder).glob("*.xml"))
            count += len(examples) + len(shipped)
            expect_valid(schema, examples)
            expect_valid(schema, shipped)
            copies = list(faulty(examples[0], faults, scratch))
            bad, _ = refused(schema, copies)
            failures.extend(f"{schema}: accepted {copy.read_text()}" for copy in copies if str(copy) not in bad)
        written = scratch / "written.xml"
        for pair in (["IFC2X3", "IFC4"], ["IFC4", "IFC4X2"]):
            with written.open("w") as output:
                subprocess.run([PROGRAM, "dictionary", "diff", *pair, "--as-mapping"], stdout=output, check=False)
            expect_valid("version-mapping", [written])
        definition = next(path for path in scratch.rglob("*.xml") if path.parent.name == "IFCPsetQset")
        namespace = '<PropertySetDef xmlns="http://buildingSMART-tech.org/xml/psd/PSD_IFC4.xsd"'
        published = scratch / "published.xml"
        published.write_text(definition.read_text().replace("<PropertySetDef", namespace))
        expect_valid("property-set-published", [published])
        if refused("property-set-published", [definition])[0] == []:
            failures.append("the schema of a namespace accepts a file without it")
    print(f"{count} files, {len(failures)} failures", *failures, sep="\n")
    sys.exit(bool(failures))


if __name__ == "__main__":
    main()
