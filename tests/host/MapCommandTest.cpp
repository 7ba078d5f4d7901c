#include "ConfigurationTestSupport.h"
#include "DocumentTestSupport.h"
#include "Matchers.h"
#include "velkor/knowledge/QORITypeDictionary.h"

namespace velkor::host {

using nlohmann::json;

namespace {

constexpr const char* releaseDocument = R"(<Releases>
  <Version from="2x3" to="4">
    <Mapping fromEntity="IfcDoorStyle" toEntity="IfcDoorType"/>
    <Mapping fromEntity="IfcWall" fromProperty="Tag" toEntity="IfcBarrier" toProperty="Mark"/>
    <Mapping fromEntity="IfcSlab" fromProperty="Tag"/>
    <Deprecation entity="Ifc2DCompositeCurve"/>
    <Deprecation entity="IfcFillAreaStyle" property="Old"/>
    <Introduction entity="IfcPump"/>
    <Introduction entity="IfcValve" property="PredefinedType" propertyValue="NOTDEFINED"/>
    <Mapping fromEntity="IfcLast" toEntity="IfcLastOfAll"/>
  </Version>
  <Version from="4" to="4x2">
    <Mapping fromEntity="IfcWall" fromProperty="Tag" toProperty="Label"/>
  </Version>
</Releases>)";

json parsed(const Outcome& outcome) {
    return json::parse(outcome.out, nullptr, false);
}

class MapCommandTest : public ConfiguredTest {
protected:
    std::string configured(const std::string& text) const { return folder.file("velkor.json", text); }

    Outcome map(std::vector<std::string> words, const std::string& configuration) const {
        words.insert(words.begin(), "map");
        words.insert(words.end(), {"--format", "json", "--config", configuration});
        return runHost(words, false, shippedResources);
    }

    const TemporaryFolder folder;
};

std::set<std::string> plmTypes() {
    std::set<std::string> names;
    for (const auto& node : nodes(standardFile("xcad/AECCorrespondences.xml"), "//NORVEL"))
        names.insert(attribute(node, "Name"));
    return names;
}

} // namespace

TEST_F(MapCommandTest, VersionMappingsAreThoseOfThePairAskedFor) {
    folder.file("site/ifc/releases.xml", releaseDocument);
    const std::string site = configured(R"({"collection_standard": ["site"]})");
    const json null;
    const struct {
        std::vector<std::string> words;
        int exit;
        json status, meaning, entity, property, entityName;
    } cases[] = {
        {{"2x3", "4", "ifcwall", "TAG"}, Done, "0x1002", "mapped", "IfcBarrier", "Mark", null},
        // Another pair right afterwards, in the same process.
        {{"4", "4x2", "ifcwall", "TAG"}, Done, "0x1002", "mapped", "ifcwall", "Label", null},
        {{"2x3", "4", "IfcSlab", "Tag"}, Done, "0x1002", "mapped", "IfcSlab", "Tag", null},
        {{"2x3", "4", "IfcDoorStyle"}, Done, "0x1003", "none", null, null, "IFCDOORTYPE"},
        {{"2x3", "4", "IfcLast"}, Done, "0x1003", "none", null, null, "IfcLastOfAll"},
        {{"2x3", "4", "IfcDoorStyle", "Tag"}, Findings, "0x1003", "none", null, null, null},
        {{"2x3", "4", "IfcDoor"}, Findings, "0x1003", "none", null, null, null},
        {{"2x3", "4", "Ifc2DCompositeCurve"}, Done, "0x1004", "deprecated_entity", null, null, null},
        {{"2x3", "4", "IfcFillAreaStyle", "Old"}, Done, "0x1005", "deprecated_property", null, null, null},
        {{"2x3", "4", "IfcPump"}, Done, "0x1006", "introduced_entity", null, null, null},
        {{"2x3", "4", "IfcValve", "PredefinedType"}, Done, "0x1007", "introduced_property", null, null, null},
        {{"2x1", "2x5", "IfcDoor"}, Findings, "0x80004005", "unknown_releases", null, null, null},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(testing::PrintToString(expected.words));
        std::vector<std::string> words{"version", "--from", expected.words[0], "--to", expected.words[1]};
        words.insert(words.end(), expected.words.begin() + 2, expected.words.end());
        const Outcome outcome = map(words, site);
        EXPECT_EQ(outcome.status, expected.exit) << outcome.err;
        const json answered = parsed(outcome);
        EXPECT_EQ(answered["status"], expected.status);
        EXPECT_EQ(answered["meaning"], expected.meaning);
        EXPECT_EQ(answered["to_entity"], expected.entity);
        EXPECT_EQ(answered["to_property"], expected.property);
        EXPECT_EQ(answered["to_entity_name"], expected.entityName);
        EXPECT_EQ(answered["documents"], json::array({folder / "site/ifc/releases.xml"}));
    }

    const auto list = [&](const char* from, const char* to, const char* what) {
        return map({"version", "--from", from, "--to", to, what}, site);
    };
    Outcome outcome = list("2x3", "4", "--deprecated");
    EXPECT_EQ(outcome.status, Done);
    EXPECT_EQ(parsed(outcome)["deprecated_entities"], json::array({"IFC2DCOMPOSITECURVE"}));
    outcome = list("2x3", "4", "--introduced");
    EXPECT_EQ(parsed(outcome)["introduced_values"],
              json::array({{{"entity", "IfcValve"}, {"property", "PredefinedType"}, {"value", "NOTDEFINED"}}}));
    outcome = list("4", "2x3", "--deprecated");
    EXPECT_EQ(outcome.status, Findings);
    EXPECT_EQ(parsed(outcome)["meaning"], "unknown_releases");
    outcome = list("4", "4x2", "--introduced");
    EXPECT_EQ(outcome.status, Findings);
    EXPECT_EQ(parsed(outcome)["status"], "0x0");

    const Outcome forPeople =
        runHost({"map", "version", "--from", "2x3", "--to", "4", "IfcWall", "Tag", "--config", site});
    EXPECT_THAT(forPeople.out, HasSubstr("IfcWall.Tag  2x3 -> 4\n  status        0x1002  a mapping applies\n"
                                         "  entity        IfcBarrier\n  property      Mark\n"));
    // Switched off, the services look at no table; renames go on.
    const std::string off = configured(
        R"({"collection_standard": ["site"], "conversion_options": {"IFC_Disable_Version_Mapping": "yes"}})");
    outcome = map({"version", "--from", "2x3", "--to", "4", "IfcWall", "Tag"}, off);
    EXPECT_EQ(outcome.status, Findings);
    EXPECT_THAT(parsed(outcome)["remark"], HasSubstr("IFC_Disable_Version_Mapping"));
}

TEST_F(MapCommandTest, RefusesWhatItCannotAnswer) {
    const std::string none = configured(R"({"collection_standard": ["site"], "default_collection_standard": []})");
    const auto expect = [&](std::vector<std::string> words, int status, const std::string& message) {
        const Outcome outcome = map(words, none);
        EXPECT_EQ(outcome.status, status) << testing::PrintToString(words);
        EXPECT_EQ(outcome.out, "");
        EXPECT_THAT(outcome.err, HasSubstr(message));
    };
    expect({"version", "--from", "3", "--to", "4", "IfcWall"}, BadUsage, "2x1, 2x2, 2x3, 4, 2x5, 4x2");
    expect({"version", "--from", "4", "--to", "2X3", "IfcWall"}, BadUsage, "unknown release \"2X3\"");
    expect({"version", "--from", "2x3", "--to", "4"}, BadUsage, "ENTITY, --deprecated and --introduced");
    expect({"version", "--from", "2x3", "--to", "4", "IfcWall", "--deprecated"}, BadUsage, "expected one of");
    for (const char* scope : {"Wall", "_Import", "Wall_Imports"})
        expect({"custom", "IfcWall", "--scope", scope}, BadUsage, "followed by _Import or _Export");
    expect({"version", "--from", "2x3", "--to", "4", "IfcWall"}, Unreadable, "no IFC version mapping: ");
    expect({"custom", "IfcWall", "--scope", "Wall_Import"}, Unreadable, "no IFC custom mapping: ");
    folder.add("site/ifc", {"a.xml"}, "<broken");
    folder.add("site/ifcCustomMapping", {"a.xml"}, "<broken");
    expect({"version", "--from", "2x3", "--to", "4", "--introduced"}, Unreadable, "a.xml: cannot be read");
    expect({"custom", "IfcWall", "--scope", "Wall_Import"}, Unreadable, "a.xml: cannot be read");
}

TEST_F(MapCommandTest, EveryShippedCustomMappingAnswersForItsTypes) {
    const std::set<std::string> types = plmTypes();
    const std::string configuration = configured("{}");
    std::size_t oneWay = 0, twoWay = 0;
    for (const auto& [xpath, isTwoWay] :
         {std::pair{"IfcMapping/StandardMapping", false}, {"IfcMapping/CustomMapping", true}}) {
        for (const auto& node : nodes(standardFile("ifcCustomMapping/CustomMapping.xml"), xpath)) {
            const std::string entity = attribute(node, "fromEntity"), property = attribute(node, "fromProperty");
            const std::string toEntity = attribute(node, "toEntity"), toProperty = attribute(node, "toProperty");
            std::istringstream scope(attribute(node, "scope"));
            for (std::string type; std::getline(scope, type, ';');) {
                SCOPED_TRACE(entity + '.' + property + ' ' + type);
                ++(isTwoWay ? twoWay : oneWay);
                EXPECT_TRUE(types.contains(type));
                const Outcome read = map({"custom", entity, property, "--scope", type + "_Import"}, configuration);
                EXPECT_EQ(read.status, Done) << read.err;
                EXPECT_EQ(parsed(read)["to_entity"], toEntity);
                EXPECT_EQ(parsed(read)["to_property"], toProperty);
                const Outcome written =
                    map({"custom", toEntity, toProperty, "--scope", type + "_Export"}, configuration);
                EXPECT_EQ(written.status, isTwoWay ? Done : Findings);
                EXPECT_EQ(parsed(written)["to_entity"], isTwoWay ? json(entity) : json());
            }
        }
    }
    EXPECT_GT(oneWay, 0U);
    EXPECT_GT(twoWay, 0U);
}

TEST_F(MapCommandTest, ConfiguredTypesDecideWhichScopesThereAre) {
    const auto status = [&](const std::string& types, const std::string& scope) {
        const std::string path = configured(R"({"knowledge_types": [)" + types + "]}");
        return map({"custom", "Pset_WallCommon", "FireRating", "--scope", scope + "_Import"}, path).status;
    };
    const std::string wall = R"({"name": "Building_Wall", "kind": "specialization"})";
    const std::string partition = R"({"name": "Building_Partition", "kind": "knowledge", "abstract": true})";
    // Names count as they are until a type is one of a building.
    EXPECT_EQ(status(wall, "Building_Partition"), Done);
    const std::string own = R"(, {"name": "OurAecType", "kind": "knowledge"})";
    EXPECT_EQ(status(wall + own, "Building_Wall"), Done);
    EXPECT_EQ(status(wall + own, "Building_Partition"), Findings) << "unknown";
    EXPECT_EQ(status(partition + own, "Building_Partition"), Findings) << "abstract";
    EXPECT_TRUE(QORGlobalFunctions::GetTypeDictionary().IsNull()) << "the setup takes its types away";
}

TEST_F(MapCommandTest, PlmAttributesAreThoseOfTheShippedDocument) {
    const std::string configuration = configured("{}"),
                      file = standardFile("IfcPLMAttributesMapping/PLMAttributes.xml");
    const std::set<std::string> types = plmTypes();
    std::size_t checked = 0;
    for (const auto& mapping : nodes(file, "IfcPLMMappingAttr/IfcPLMMapping")) {
        const std::string type = attribute(mapping, "Name");
        EXPECT_TRUE(types.contains(type)) << type;
        const std::string own = "IfcPLMMappingAttr/IfcPLMMapping[@Name='" + type + "']";
        const std::string lines = own + "/fromAttributes|IfcPLMMappingAttr/PLMAttrIncluded[@id=/" + own +
                                  "/PLMAttrInclude/@IncludedId]/fromAttributes";
        for (const auto& line : nodes(file, lines)) {
            ++checked;
            const Outcome outcome = map({"plm", type, attribute(line, "plmProp")}, configuration);
            EXPECT_EQ(outcome.status, Done) << type << '.' << attribute(line, "plmProp");
            EXPECT_EQ(parsed(outcome)["to_set"], attribute(line, "propSetName"));
            EXPECT_EQ(parsed(outcome)["to_property"], attribute(line, "ifcProp"));
        }
    }
    EXPECT_GT(checked, 0U);
    // The services have a rule of their own.
    const Outcome builtIn = map({"plm", "Piping_RigidPipe", "V_WallThickness"}, configuration);
    EXPECT_EQ(parsed(builtIn)["to_property"], "InnerDiameter");
    const Outcome unknown = map({"plm", "Building_Wall", "V_WallThickness"}, configuration);
    EXPECT_EQ(unknown.status, Findings);
    EXPECT_EQ(parsed(unknown)["status"], "0x80004005");
}

} // namespace velkor::host
