#include "ConfigurationTestSupport.h"
#include "Matchers.h"

#include <algorithm>
#include <iterator>

namespace velkor::host {

using nlohmann::json;
using testing::AllOf;
using testing::Contains;
using testing::Not;

namespace {

class PropertySetsCommandTest : public ConfiguredTest {};

Outcome run(const std::string& arguments, std::vector<std::string> more = {}) {
    std::istringstream words("propertysets " + arguments);
    more.insert(more.begin(), std::istream_iterator<std::string>(words), {});
    return runHost(more, false, shippedResources);
}

json answered(const std::string& arguments) {
    return json::parse(run(arguments + " --format json").out, nullptr, false);
}

/// Names of sets, or of properties.
std::vector<std::string> names(const json& list) {
    std::vector<std::string> result;
    for (const json& one : list) result.push_back(one["name"]);
    return result;
}

/// A configuration whose runtime view has these definitions, by name.
std::string configured(const TemporaryFolder& folder, const std::map<std::string, std::string>& definitions) {
    for (const auto& [name, text] : definitions)
        folder.file("view/resources/standard/IFCPsetQset/" + name + ".xml", text);
    return folder.file("velkor.json", R"({"runtime_view": [")" + folder / "view" + "\"]}");
}

constexpr const char* ownSet = "<PropertySetDef><Name>Own_Paint</Name><ApplicableClasses><ClassName>IfcWall</ClassName>"
                               "</ApplicableClasses><PropertyDefs><PropertyDef><Name>Gloss</Name><PropertyType>"
                               "<TypePropertySingleValue><DataType type=\"IfcRatioMeasure\"/></TypePropertySingleValue>"
                               "</PropertyType></PropertyDef></PropertyDefs></PropertySetDef>";

} // namespace

TEST_F(PropertySetsCommandTest, ListsWhatAppliesByInheritanceAndByPredefinedType) {
    const json pump = answered("list 4 ifcpump");
    EXPECT_EQ(pump["release"], "IFC4");
    EXPECT_EQ(pump["entity"], "IFCPUMP");
    EXPECT_EQ(pump["predefined_type"], nullptr);
    EXPECT_EQ(pump["total"], 12);
    EXPECT_THAT(names(pump["sets"]),
                ElementsAre("Pset_Condition", "Pset_ElectricalDeviceCommon", "Pset_EnvironmentalImpactIndicators",
                            "Pset_EnvironmentalImpactValues", "Pset_ManufacturerOccurrence",
                            "Pset_ManufacturerTypeInformation", "Pset_PumpOccurrence", "Pset_PumpTypeCommon",
                            "Pset_ServiceLife", "Pset_SoundGeneration", "Pset_Warranty", "Qto_PumpBaseQuantities"));
    const json& occurrence = pump["sets"][6];
    EXPECT_EQ(occurrence["kind"], "property set");
    EXPECT_EQ(occurrence["template_type"], "occurrence-driven");
    EXPECT_EQ(occurrence["properties"], 3);
    EXPECT_EQ(occurrence["applies_to"], json::parse(R"([{"entity":"IfcPump","predefined_type":null}])"));
    EXPECT_THAT(occurrence["file"], EndsWith("/IFC4/resources/standard/IFCPsetQset/Pset_PumpOccurrence.xml"));
    // Sets for occurrences alone are none of the type's.
    EXPECT_THAT(names(answered("list 4 IfcPumpType")["sets"]),
                AllOf(Contains("Pset_PumpTypeCommon"), Not(Contains("Pset_PumpOccurrence"))));

    const char* const electric = "Pset_ActuatorTypeElectricActuator";
    const char* const hydraulic = "Pset_ActuatorTypeHydraulicActuator";
    for (const std::string release : {"IFC4", "IFC4X3_ADD2"}) {
        EXPECT_THAT(names(answered("list " + release + " IfcActuator")["sets"]),
                    AllOf(Contains(electric), Contains(hydraulic)));
        EXPECT_THAT(names(answered("list " + release + " IfcActuator/electricactuator")["sets"]),
                    AllOf(Contains(electric), Not(Contains(hydraulic)), Contains("Pset_Condition")));
    }
    // A release that knows a class by its type alone.
    EXPECT_THAT(names(answered("list 2x3 IfcPumpType")["sets"]), Contains("Pset_PumpTypeCommon"));
    const json draft = answered("show 4x4 IfcWall");
    EXPECT_EQ(draft["release"], "IFC4X4");
    EXPECT_EQ(draft["defined_by"], "IFC4X3_ADD2");
}

TEST_F(PropertySetsCommandTest, ListsAndSearchesWhatAReleaseDefines) {
    EXPECT_EQ(answered("list 2x3")["total"], 317);
    EXPECT_EQ(answered("list 4")["total"], 513);
    EXPECT_EQ(run("list 2x3 --search DOORC").out, "set              template  properties  applies to\n"
                                                  "Pset_DoorCommon                    12  IfcDoor\n\n1 set\n");
    EXPECT_THAT(names(answered("list 4 IfcDoor --search qto_")["sets"]), ElementsAre("Qto_DoorBaseQuantities"));
    EXPECT_THAT(run("list 4 IfcActuator/ELECTRICACTUATOR --search electricact --format csv").out,
                MatchesRegex("name,kind,template_type,properties,applies_to,file\r\n"
                             "Pset_ActuatorTypeElectricActuator,property set,type-driven-override,[0-9]+,"
                             "IfcActuator/ELECTRICACTUATOR,.*/Pset_ActuatorTypeElectricActuator.xml\r\n"));
    const Outcome none = run("list 4 --search Unheard");
    EXPECT_EQ(none.status, Findings);
    EXPECT_EQ(none.out, "no sets\n");
}

TEST_F(PropertySetsCommandTest, ShowsAllThatADefinitionSays) {
    const json wall = answered("show 4 pset_wallcommon");
    EXPECT_EQ(wall["name"], "Pset_WallCommon");
    EXPECT_THAT(wall["releases"], ElementsAre("IFC2X3", "IFC4", "IFC4X1", "IFC4X2", "IFC4X3_ADD2"));
    ASSERT_EQ(wall["properties"].size(), 11U);
    EXPECT_EQ(wall["properties"][1],
              json::parse(R"({"name":"Status","kind":"enumerated","value_type":null,"defining_type":null,
                              "unit_type":null,"defining_unit_type":null,"enumeration":"PEnum_ElementStatus",
                              "enumerators":["NEW","EXISTING","DEMOLISH","TEMPORARY","OTHER","NOTKNOWN","UNSET"],"usage_name":null,"members":[]})"));
    EXPECT_EQ(wall["properties"][6]["value_type"], "IfcThermalTransmittanceMeasure");

    const std::string draughting = run("show 2x3 Pset_Draughting").out;
    EXPECT_THAT(draughting, StartsWith("Pset_Draughting of IFC2X3, property set\n"
                                       "applies to: IfcElement, IfcSpatialStructureElement\ndefined by: IFC2X3\n"));
    EXPECT_THAT(draughting, EndsWith("\n\nproperty   kind     type\n"
                                     "LayerName  single   IfcIdentifier\n"
                                     "Colour     complex  RGB_Colour\n"
                                     "  Red      single   IfcInteger\n"
                                     "  Green    single   IfcInteger\n"
                                     "  Blue     single   IfcInteger\n"));
    EXPECT_THAT(
        run("show 4x4 Pset_PumpOccurrence").out,
        AllOf(StartsWith("what IFC4X3_ADD2 defines holds for IFC4X4\nPset_PumpOccurrence of IFC4X3_ADD2, "),
              HasSubstr("\n\nvalues of BaseType\n    BASE, FRAME, NONE, OTHER, NOTKNOWN, UNSET\n\nvalues of DriveC")));
}

TEST_F(PropertySetsCommandTest, SaysWhatIsMeantByNamesThatAreUnknown) {
    for (const auto& [arguments, status, expected] : std::vector<std::tuple<std::string, int, std::string>>{
             {"show 4 Pset_WalCommon", Findings, "IFC4 has no set \"Pset_WalCommon\"; nearest: Pset_WallCommon, "},
             {"show 4 Pset_Draughting", Findings, "IFC4 has no set \"Pset_Draughting\"; it is one of IFC2X3"},
             {"show 4 IfcPupm", Findings, "IFC4 has neither a set nor an entity \"IfcPupm\"; nearest: IFCPUMP"},
             {"list 4 IfcPupm", Findings, "IFC4 has no entity \"IfcPupm\"; nearest: IFCPUMP"},
             {"list 4 IfcPump/CIRCULATER", Findings,
              "IFCPUMP of IFC4 has no predefined type \"CIRCULATER\"; nearest: CIRCULATOR"},
             {"list 4 IfcActuator/HANDOPERATED", Findings,
              "IFCACTUATOR of IFC4 has no predefined type \"HANDOPERATED\"; nearest: HANDOPERATEDACTUATOR\n"},
             {"diff 4 4x3 Pset_WalCommon", Findings, "IFC4X3_ADD2 has no set \"Pset_WalCommon\"; nearest: "},
             {"list 5", BadUsage, "unknown release \"5\""},
         }) {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, status) << arguments;
        EXPECT_THAT(outcome.err, StartsWith("velkor: " + expected)) << arguments;
        EXPECT_EQ(outcome.out, "") << arguments;
    }
}

TEST_F(PropertySetsCommandTest, ComparesReleases) {
    EXPECT_EQ(run("diff 2x3 4 Pset_WallCommon").out, "IFC2X3 -> IFC4\n"
                                                     "sets: 0 added, 0 removed, 1 changed, 0 the same\n\n"
                                                     "changed sets\n"
                                                     "  Pset_WallCommon\n"
                                                     "    - applies to IfcWallStandardCase\n"
                                                     "    + Status: enumerated\n");
    EXPECT_EQ(run("diff 2x3 4 Pset_WallCommon --format csv").out, "set,property,change,before,after\r\n"
                                                                  "Pset_WallCommon,,class,IfcWallStandardCase,\r\n"
                                                                  "Pset_WallCommon,Status,property,,enumerated\r\n");
    EXPECT_EQ(run("diff 4 4x3 Pset_WallCommon").out,
              "IFC4 -> IFC4X3_ADD2\nsets: 0 added, 0 removed, 0 changed, 1 the same\n");
    EXPECT_EQ(run("diff 2x3 4 Pset_Draughting --format csv").out,
              "set,property,change,before,after\r\nPset_Draughting,,set,Pset_Draughting,\r\n");

    const json all = answered("diff IFC4 IFC4X1");
    EXPECT_EQ(all["before"], "IFC4");
    EXPECT_THAT(all["added"], IsEmpty());
    EXPECT_EQ(all["removed"].size() + all["changed"].size() + all["unchanged"].get<std::size_t>(), 513U);
    EXPECT_EQ(all["removed"].size(), 7U);
    EXPECT_EQ(all["changed"].size(), 5U);
    EXPECT_THAT(run("diff 4 4x3 Pset_AirSideSystemInformation").out,
                AllOf(HasSubstr("\n    ~ template type type-driven-override -> occurrence-driven\n"),
                      HasSubstr("\n    ~ Description: value type IfcLabel -> IfcText\n"),
                      HasSubstr("\n    ~ TotalAirFlow: name TotalAirflow -> TotalAirFlow\n")));
}

TEST_F(PropertySetsCommandTest, WritesTemplatesThatAreSoundModels) {
    const TemporaryFolder folder;
    for (const auto& [arguments, release, count] :
         {std::tuple("2x3 Pset_Draughting", "IFC4", 1), std::tuple("4 IfcPump", "IFC4", 12),
          std::tuple("4x3 Qto_WallBaseQuantities", "IFC4X3_ADD2", 1)}) {
        const std::string file = folder / "template.ifc";
        const Outcome outcome = run("show " + std::string(arguments), {"--as-template", file, "--format", "json"});
        EXPECT_EQ(outcome.status, Done) << outcome.err;
        const json written = json::parse(outcome.out);
        EXPECT_EQ(written["file"], file);
        EXPECT_EQ(written["file_release"], release);
        EXPECT_EQ(written["sets"].size(), static_cast<std::size_t>(count));
        EXPECT_THAT(written["notes"], IsEmpty());
        EXPECT_THAT(runHost({"check", file}).out, HasSubstr(": no problems found\n"));
        EXPECT_THAT(runHost({"report", file}).out, HasSubstr("IFCPROPERTYSETTEMPLATE"));
    }
    const Outcome streamed = run("show 2x3 Pset_GasTerminalTypeCommon --as-template -");
    EXPECT_THAT(streamed.out, AllOf(StartsWith("ISO-10303-21;\n"), EndsWith("\nEND-ISO-10303-21;\n")));
    EXPECT_EQ(streamed.err, "Pset_GasTerminalTypeCommon: the class IfcGasTerminalType is left out: IFC4 has none\n"
                            "standard output: 1 template in IFC4\n");
    const Outcome refused = run("show 4 Pset_WallCommon", {"--as-template", folder / "none/t.ifc"});
    EXPECT_EQ(refused.status, Unreadable);
    EXPECT_THAT(refused.err, HasSubstr("none/t.ifc: cannot be written: "));
}

TEST_F(PropertySetsCommandTest, HasTheDefinitionsOfTheUser) {
    const TemporaryFolder folder;
    const std::string file = configured(folder, {{"Own_Paint", ownSet}, {"Own_Broken", "<PropertySetDef>\n<Name>"}});
    const Outcome listed = run("list 4 IfcWallStandardCase --format csv", {"--config", file});
    EXPECT_THAT(listed.out, HasSubstr("\r\nOwn_Paint,property set,,1,IfcWall,"));
    EXPECT_EQ(listed.status, Unreadable);
    EXPECT_THAT(listed.err, HasSubstr("Own_Broken.xml:2: "));
    EXPECT_EQ(run("show 4 Own_Paint", {"--config", file}).status, Done);
    EXPECT_EQ(run("show 4 Own_Broken", {"--config", file}).status, Unreadable);
    EXPECT_EQ(run("diff 2x3 4 Own_Broken", {"--config", file}).status, Unreadable);
    const std::string told = run("diff 2x3 4", {"--config", file}).err;
    EXPECT_THAT(told, AllOf(HasSubstr("Own_Broken.xml:2: "), EndsWith("\n")));
    EXPECT_EQ(std::ranges::count(told, '\n'), 1) << told;
    EXPECT_THAT(run("show 4x2 Own_Paint --as-template -", {"--config", file}).out,
                HasSubstr(",$,'Gloss',$,.P_SINGLEVALUE.,'IfcRatioMeasure',$,"));

    // Those of one release alone.
    for (const std::string release : {"IFC2X3", "IFC4"})
        folder.file("runtime/" + release + "/resources/standard/IFCPsetQset/Own_Paint.xml",
                    release == "IFC4" ? ownSet : "<PropertySetDef>");
    const Outcome compared = runHost({"propertysets", "diff", "2x3", "4"}, false, folder.path);
    EXPECT_EQ(compared.status, Unreadable);
    EXPECT_THAT(compared.err, HasSubstr("IFC2X3/resources/standard/IFCPsetQset/Own_Paint.xml:1: "));

    const Outcome nothing = runHost({"propertysets", "list", "4"});
    EXPECT_EQ(nothing.status, Unreadable);
    EXPECT_THAT(nothing.err, HasSubstr("there are no definitions of property sets for IFC4"));
}

} // namespace velkor::host
