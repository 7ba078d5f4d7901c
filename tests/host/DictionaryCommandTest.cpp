#include "Matchers.h"
#include "TestSupport.h"

#include <algorithm>
#include <dlfcn.h>
#include <iterator>
#include <map>
#include <nlohmann/json.hpp>
#include <sstream>

namespace velkor::host {

using nlohmann::json;
using testing::Contains;
using testing::IsSupersetOf;
using testing::Not;

namespace {

Outcome run(const std::string& arguments) {
    std::istringstream words("dictionary " + arguments);
    return runHost({std::istream_iterator<std::string>(words), {}});
}

json parsed(const Outcome& outcome) {
    return json::parse(outcome.out);
}

class DictionaryCommand : public testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_NE(dlopen(VELKOR_LIB_DIR "/libvelkor.so", RTLD_NOW), nullptr) << dlerror(); }
};

} // namespace

TEST_F(DictionaryCommand, ListsWhatEachReleaseCarries) {
    const auto row = [](const json& s) {
        return std::vector<int>{s["declarations"],     s["statements"],          s["entities"],
                                s["defined_types"],    s["enumerations"],        s["selects"],
                                s["aggregates"],       s["explicit_attributes"], s["derived_attributes"],
                                s["uniqueness_rules"], s["entities_statements"]};
    };
    const std::map<std::string, std::vector<int>> expected{
        {"IFC2X3", {2674, 3080, 656, 328, 164, 47, 134, 1322, 5, 17, 7}},
        {"IFC4", {3202, 3715, 779, 400, 207, 63, 199, 1493, 60, 0, 8}},
        {"IFC4X1", {3223, 3772, 804, 404, 210, 63, 197, 1544, 0, 0, 9}},
        {"IFC4X2", {3334, 3893, 819, 410, 217, 63, 208, 1556, 60, 0, 9}},
        {"IFC4X3_RC1", {3536, 4139, 882, 441, 242, 69, 214, 1627, 60, 0, 9}},
        {"IFC4X3_RC3", {3536, 4131, 877, 442, 246, 66, 213, 1628, 63, 0, 9}},
        {"IFC4X3_ADD2", {3546, 4162, 879, 438, 243, 63, 218, 1646, 58, 0, 9}},
        {"IFC4X4", {3660, 4288, 907, 455, 259, 64, 224, 1687, 63, 0, 10}},
    };
    const Outcome listed = run("list --format json");
    EXPECT_EQ(listed.status, Done);
    const json schemas = parsed(listed)["schemas"];
    std::vector<std::string> names;
    for (const json& schema : schemas) {
        names.push_back(schema["name"]);
        ASSERT_TRUE(expected.contains(names.back()));
        EXPECT_EQ(row(schema), expected.at(names.back())) << names.back();
        const json& rules = schema["rules"];
        EXPECT_EQ(rules["where"].get<int>() + rules["type"].get<int>() + rules["global"].get<int>() +
                      rules["unique"].get<int>() + rules["inverse"].get<int>(),
                  rules["total"]);
        EXPECT_EQ(rules["global"], names.back() == "IFC4X4" ? 0 : 2) << names.back();
    }
    EXPECT_THAT(names,
                ElementsAre("IFC2X3", "IFC4", "IFC4X1", "IFC4X2", "IFC4X3_ADD2", "IFC4X3_RC1", "IFC4X3_RC3", "IFC4X4"));

    const std::string text = run("list").out;
    EXPECT_EQ(std::ranges::count(text, '\n'), 9);
    EXPECT_THAT(text, HasSubstr("\nIFC2X3               2674        3080       656            328"));
}

TEST_F(DictionaryCommand, ShowsAListTextByText) {
    const std::string declarations = run("show IFC2X3_TC1 --declarations").out;
    EXPECT_THAT(declarations, StartsWith("Schema(IFC2X3)\nDefinedType(IFCABSORBEDDOSEMEASURE,RealType(8))\n"));
    EXPECT_EQ(std::ranges::count(declarations, '\n'), 2674);
    const json statements = parsed(run("show 2x3 --statements --format json"));
    EXPECT_EQ(statements["schema"], "IFC2X3");
    EXPECT_EQ(statements["list"], "statements");
    EXPECT_EQ(statements["texts"].size(), 3080U);
    EXPECT_EQ(statements["texts"][0], "#1.SchemaVersionRelease(1,1)");

    EXPECT_EQ(run("show IFC4").status, BadUsage);
    EXPECT_EQ(run("show IFC4 --declarations --statements").status, BadUsage);
}

TEST_F(DictionaryCommand, DescribesAnEntityAsInstancesHoldIt) {
    const json unit = parsed(run("entity IFC4 IfcSIUnit --format json"));
    EXPECT_EQ(unit["entity"], "IFCSIUNIT");
    EXPECT_EQ(unit["abstract"], false);
    EXPECT_THAT(unit["supertypes"], ElementsAre("IFCNAMEDUNIT"));
    ASSERT_EQ(unit["attributes"].size(), 4U);
    const json derived{{"name", "DIMENSIONS"},
                       {"owner", "IFCSIUNIT"},
                       {"type", "IFCDIMENSIONALEXPONENTS"},
                       {"optional", false},
                       {"derived", true}};
    EXPECT_EQ(unit["attributes"][0], derived);
    const json prefix{
        {"name", "PREFIX"}, {"owner", "IFCSIUNIT"}, {"type", "IFCSIPREFIX"}, {"optional", true}, {"derived", false}};
    EXPECT_EQ(unit["attributes"][2], prefix);
    // This release carries no derived attributes.
    EXPECT_EQ(parsed(run("entity IFC4X1 IFCSIUNIT --format json"))["attributes"][0]["owner"], "IFCNAMEDUNIT");

    const std::string wall = run("entity 4 ifcwall").out;
    EXPECT_THAT(wall, StartsWith("IFCWALL of IFC4\nsupertypes: IFCBUILDINGELEMENT, IFCELEMENT, IFCPRODUCT, IFCOBJECT, "
                                 "IFCOBJECTDEFINITION, IFCROOT\n"));
    EXPECT_THAT(wall, HasSubstr("\n1  GLOBALID         IFCROOT     required  IFCGLOBALLYUNIQUEID\n"));
    EXPECT_THAT(wall, HasSubstr("\n9  PREDEFINEDTYPE   IFCWALL     optional  IFCWALLTYPEENUM\n"));
    EXPECT_THAT(
        run("entity 2x3 IFCAPPLICATION").out,
        HasSubstr("\nIfcApplication.UR2  unique  no other instance has the same ApplicationFullName, Version\n"));
    EXPECT_THAT(run("entity 4x4 IFCCARTESIANPOINT").out, EndsWith("\n\nno rules\n"));
}

TEST_F(DictionaryCommand, ListsTheRulesThatInstancesHaveToKeepThoseOfTheRootFirst) {
    const json wall = parsed(run("entity IFC4 IfcWall --format json"));
    std::vector<std::string> names;
    for (const json& rule : wall["rules"]) names.push_back(rule["name"]);
    EXPECT_EQ(names.front(), "IfcRoot.UR1");
    EXPECT_EQ(names.back(), "IfcWall.CorrectTypeAssigned");
    EXPECT_THAT(names, IsSupersetOf({"IfcProduct.PlacementForShapeRepresentation", "IfcElement.FillsVoids"}));
    EXPECT_THAT(names, Not(Contains("IfcWallStandardCase.HasMaterialLayerSetUsage")));
    EXPECT_EQ(wall["rules"].front()["kind"], "unique");
    EXPECT_THAT(
        run("entity IFC4 IfcWall").out,
        HasSubstr("\nIfcElement.FillsVoids                         inverse  SET [0:1] OF IfcRelFillsElement FOR "
                  "RelatedBuildingElement\n"));
}

TEST_F(DictionaryCommand, ShowsARule) {
    EXPECT_EQ(run("rule 4 ifcwall.correctpredefinedtype").out,
              "IfcWall.CorrectPredefinedType of IFC4, where rule of an entity\n"
              "expected: PredefinedType is not given or not USERDEFINED, or ObjectType is given\n\n"
              "    NOT(EXISTS(PredefinedType))\n"
              "    OR (PredefinedType <> IfcWallTypeEnum.USERDEFINED)\n"
              "    OR ((PredefinedType = IfcWallTypeEnum.USERDEFINED) AND EXISTS (SELF\\IfcObject.ObjectType))\n");
    const json measure = parsed(run("rule 2x3 IfcPositiveLengthMeasure.WR1 --format json"));
    const json expected{{"schema", "IFC2X3"},
                        {"kind", "type"},
                        {"name", "IfcPositiveLengthMeasure.WR1"},
                        {"owner", "IfcPositiveLengthMeasure"},
                        {"expression", "SELF > 0."},
                        {"wording", "the value is above 0"},
                        {"fault", nullptr},
                        {"fault_source", nullptr}};
    EXPECT_EQ(measure, expected);
    const std::map<std::string, std::string> kinds{{"IfcRoot.UR1", "unique"},
                                                   {"IfcElement.FillsVoids", "inverse"},
                                                   {"CorrectTriggerType", "none"},
                                                   {"IfcSingleProjectInstance", "global"}};
    for (const auto& [name, kind] : kinds) {
        const Outcome shown = run("rule 4x3 " + name + " --format json");
        EXPECT_EQ(shown.status == Done ? parsed(shown)["kind"] : "none", kind) << name;
    }
    const json all = parsed(run("rule 4x4 --format json"));
    EXPECT_EQ(all["rules"].size(), parsed(run("list --format json"))["schemas"][7]["rules"]["total"]);
    EXPECT_EQ(all["rules"][0]["kind"], "unique");
    EXPECT_THAT(run("rule 4x4").out, HasSubstr("\nIfcRoot.UR1 "));
    // A bracket that is too long for its line stands further in; a known fault and its source are told.
    const std::string clipping = run("rule 4 IfcBooleanClippingResult.FirstOperandType").out;
    EXPECT_THAT(clipping, AllOf(HasSubstr("\n    OR ('IFC4.IFCSWEPTDISCSOLID' IN TYPEOF(FirstOperand))\n"),
                                HasSubstr("\nknown to be faulty, so that its findings are warnings: it means "),
                                HasSubstr("\nsaid in: ")));
    EXPECT_THAT(run("rule 4 IfcAdvancedBrep.HasAdvancedFaces").out,
                EndsWith("\n    SIZEOF(\n      QUERY(\n        Afs <* SELF\\IfcManifoldSolidBrep.Outer.CfsFaces |\n"
                         "          (NOT ('IFC4.IFCADVANCEDFACE' IN TYPEOF(Afs)))\n      )\n    ) = 0\n"));
}

TEST_F(DictionaryCommand, ComparesReleases) {
    const json diff = parsed(run("diff 2x3 IFC4 --format json"));
    EXPECT_EQ(diff["before"], "IFC2X3");
    EXPECT_EQ(diff["after"], "IFC4");
    EXPECT_THAT(diff["entities"]["added"], IsSupersetOf({"IFCCHIMNEY", "IFCDOORTYPE"}));
    EXPECT_THAT(diff["entities"]["removed"], IsSupersetOf({"IFCCALENDARDATE", "IFCCONDITION"}));
    const auto changed = [](const json& list, const char* name) {
        for (const json& entry : list) {
            if (entry["name"] == name) return entry;
        }
        return json();
    };
    const json root = changed(diff["entities"]["changed"], "IFCROOT");
    const json history{{"name", "OWNERHISTORY"}, {"before", "IFCOWNERHISTORY"}, {"after", "OPTIONAL IFCOWNERHISTORY"}};
    EXPECT_THAT(root["changed_attributes"], ElementsAre(history));
    const json wall = changed(diff["entities"]["changed"], "IFCWALL");
    EXPECT_EQ(wall["added_attributes"][0]["name"], "PREDEFINEDTYPE");
    const json label = changed(diff["types"]["changed"], "IFCLABEL");
    EXPECT_EQ(label["definition"][0]["after"], "STRING(255)");

    const json prefix = changed(parsed(run("diff 4 4x3 --format json"))["types"]["changed"], "IFCSIPREFIX");
    EXPECT_EQ(prefix["kind"], "enumeration");
    EXPECT_EQ(prefix["reordered"], true);
    EXPECT_TRUE(prefix["added"].empty() && prefix["removed"].empty());

    EXPECT_EQ(run("diff IFC4 IFC4").out, "IFC4 -> IFC4\nentities: 0 added, 0 removed, 0 changed\n"
                                         "types: 0 added, 0 removed, 0 changed\n"
                                         "rules: 0 added, 0 removed, 0 renamed, 0 changed\n");
    const std::string text = run("diff IFC2X3 IFC4").out;
    EXPECT_NE(text.find("\n  IFCROOT\n    ~ uniqueness rules: UR1: GLOBALID -> none\n"
                        "    ~ OWNERHISTORY: IFCOWNERHISTORY -> OPTIONAL IFCOWNERHISTORY\n"),
              std::string::npos);
    EXPECT_NE(text.find("\n  IFCWALLTYPEENUM (enumeration)\n    + MOVABLE\n"), std::string::npos);
    EXPECT_NE(text.find("\n  IFCMATERIALSELECT (select)\n    + IFCMATERIALDEFINITION\n"), std::string::npos);
}

TEST_F(DictionaryCommand, ComparesTheRulesOfReleases) {
    const json rules = parsed(run("diff 2x3 IFC4 --format json"))["rules"];
    const auto named = [](const json& list, const char* member, const std::string& name) {
        return std::ranges::count_if(list, [&](const json& rule) { return rule[member] == name; });
    };
    EXPECT_EQ(named(rules["added"], "name", "IfcWall.CorrectPredefinedType"), 1);
    EXPECT_EQ(named(rules["removed"], "name", "IfcWall.WR1"), 1);
    const json renamed{{"before", "IfcAxis1Placement.WR2"}, {"after", "IfcAxis1Placement.LocationIs3D"}};
    EXPECT_THAT(rules["renamed"], Contains(renamed));
    EXPECT_EQ(named(rules["removed"], "name", "IfcAxis1Placement.WR2"), 0);
    EXPECT_EQ(named(rules["added"], "name", "IfcAxis1Placement.LocationIs3D"), 0);
    EXPECT_EQ(named(rules["changed"], "name", "IfcObjectDefinition.Decomposes"), 1);
    // The name of the release in a rule is no change.
    const json candidate = parsed(run("diff 4x3 IFC4X3_RC3 --format json"))["rules"];
    EXPECT_EQ(named(candidate["changed"], "name", "IfcProduct.PositionedRelativeTo"), 1);
    for (const json& change : candidate["changed"]) {
        EXPECT_NE(change["before"], change["after"]);
        EXPECT_NE(change["name"], "IfcAdvancedFace.RequiresEdgeCurve");
    }
    EXPECT_THAT(
        run("diff IFC4X3_RC3 4x3").out,
        HasSubstr("\n  IfcProduct.PositionedRelativeTo\n    - SET [0:1] OF IfcRelPositions FOR RelatedProducts\n"
                  "    + SET [0:?] OF IfcRelPositions FOR RelatedProducts\n"));
}

TEST_F(DictionaryCommand, SaysWhatItKnowsInstead) {
    const Outcome release = run("entity IFC2X2 IFCWALL");
    EXPECT_EQ(release.status, BadUsage);
    EXPECT_TRUE(release.out.empty());
    EXPECT_THAT(release.err, HasSubstr("unknown release \"IFC2X2\"; supported: IFC2X3, IFC4, IFC4X1, IFC4X2, "
                                       "IFC4X3_ADD2, IFC4X3_RC1, IFC4X3_RC3, IFC4X4"));
    EXPECT_EQ(run("diff IFC4 IFC5").status, BadUsage);

    const Outcome slip = run("entity IFC4 IFCWLAL");
    EXPECT_EQ(slip.status, Findings);
    EXPECT_THAT(slip.err, HasSubstr("has no entity \"IFCWLAL\"; nearest: IFCWALL"));
    EXPECT_THAT(run("entity IFC4 wall").err, HasSubstr("nearest: IFCWALL"));
    EXPECT_THAT(run("entity IFC4 IFCLABEL").err, HasSubstr("is a type, not an entity: STRING(255)"));
    const std::map<std::string, std::string> rules{
        {"2x3 IfcWal.WR1", "velkor: IFC2X3 has no rule \"IfcWal.WR1\"; nearest: IfcWall.WR1"},
        {"2x3 IfcWall", "velkor: IFC2X3 has no rule \"IfcWall\"; it states: IfcWall.WR1\n"},
        {"2x3 WR31", " rules of IFC2X3 are called \"WR31\"; expected the owner as well: Ifc"},
        {"4x4 IfcWall.CorrectPredefinedType", "velkor: IFC4X4 has no rule \"IfcWall.CorrectPredefinedType\"\n"}};
    for (const auto& [arguments, message] : rules) {
        const Outcome outcome = run("rule " + arguments);
        EXPECT_EQ(outcome.status, Findings) << arguments;
        EXPECT_THAT(outcome.err, HasSubstr(message));
    }
    EXPECT_EQ(run("entity IFC4 QQQQQQQQQQQQQQQQQQQQ").err, "velkor: IFC4 has no entity \"QQQQQQQQQQQQQQQQQQQQ\"\n");
}

TEST_F(DictionaryCommand, WritesAMappingDocumentOfEveryPair) {
    const Outcome made = run("diff 2x3 4 --as-mapping --also 4:2x3 4:4x2");
    EXPECT_EQ(made.status, Done);
    const std::size_t second = made.out.find(R"(<Version from="4" to="2x3">)"), third = made.out.find(R"("4x2">)");
    EXPECT_LT(made.out.find(R"(<Version from="2x3" to="4">)"), second);
    EXPECT_LT(second, third);
    EXPECT_NE(third, std::string::npos);
    for (const char* bad : {"IFC4 IFC4X4 --as-mapping", "IFC4 IFC2X3 --as-mapping --also IFC4", "4 2x3 --also 4:4x2"})
        EXPECT_EQ(run(std::string("diff ") + bad).status, BadUsage) << bad;
}

TEST_F(DictionaryCommand, ExplainsEverySubcommand) {
    for (const char* command : {"list", "show", "entity", "rule", "diff"}) {
        const Outcome help = run(std::string(command) + " --help");
        EXPECT_EQ(help.status, Done) << command;
        EXPECT_THAT(help.out, HasSubstr("Example:\n  velkor dictionary " + std::string(command)));
    }
    EXPECT_EQ(run("").status, BadUsage);
}

} // namespace velkor::host
