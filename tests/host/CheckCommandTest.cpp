#include "Matchers.h"
#include "TestSupport.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

using nlohmann::json;
using testing::Not;

namespace {

Outcome check(const std::string& path, std::vector<std::string> options = {}) {
    options.insert(options.begin(), {"check", path});
    return runHost(std::move(options));
}

json checkJson(const std::string& path, std::vector<std::string> options = {}) {
    options.insert(options.end(), {"--format", "json"});
    const Outcome outcome = check(path, std::move(options));
    const json answer = json::parse(outcome.out);
    EXPECT_EQ(outcome.status, answer["total"] == 0 ? Done : Findings);
    return answer;
}

/// Line, instance and code of each problem.
std::string places(const json& answer) {
    std::string result;
    for (const json& problem : answer["problems"]) {
        if (!result.empty()) result += ", ";
        result += problem["line"].dump() + ' ';
        if (!problem["instance"].is_null()) result += '#' + problem["instance"].dump() + ' ';
        result += problem["code"].get<std::string>();
    }
    return result;
}

constexpr const char* faultyData = "#1=IFCWALL($,$,$,$,$,#99,$,$,.NOSUCH.);\n#2=IFCFOO('\x1b[2J');\n"
                                   "#3=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)\n#4=IFCCARTESIANPOINT((0.,1));\n";

/// Breaks a rule of each kind, and nothing else.
constexpr const char* ruleBreaking = "#1=IFCVECTOR(#2,-1.);\n#2=IFCDIRECTION((0.,1.));\n#3=IFCCIRCLE(#4,0.);\n"
                                     "#4=IFCAXIS2PLACEMENT2D(#5,$);\n#5=IFCCARTESIANPOINT((0.,0.));\n"
                                     "#6=IFCPROJECT('0123456789abcdefghijkl',$,'A',$,$,$,$,$,$);\n"
                                     "#7=IFCPROJECT('0123456789abcdefghijkl',$,'B',$,$,$,$,$,$);\n"
                                     "#8=IFCSTYLEDITEM(#3,(#10),$);\n#9=IFCSTYLEDITEM(#3,(#10,#10),$);\n"
                                     "#10=IFCPRESENTATIONSTYLEASSIGNMENT((IFCNULLSTYLE(.NULL.)));\n";

} // namespace

TEST(CheckCommand, FindsNothingInTheExamples) {
    const std::pair<const char*, const char*> examples[] = {
        {"house-ifc2x3.ifc", "217 instances by 497 of 497 rules of IFC2X3"},
        {"pump-room-ifc4.ifc", "211 instances by 836 of 836 rules of IFC4"},
        {"road-ifc4x3.ifc", "92 instances by 948 of 948 rules of IFC4X3_ADD2"}};
    for (const auto& [name, judged] : examples) {
        const std::string path = example(name), nothing = path + ": no problems found\n";
        for (const char* option : {"", "--schema", "--syntax"}) {
            const Outcome outcome =
                check(path, *option == '\0' ? std::vector<std::string>{} : std::vector<std::string>{option});
            EXPECT_EQ(outcome.status, Done);
            EXPECT_THAT(outcome.err, IsEmpty());
            if (*option != '\0') {
                EXPECT_EQ(outcome.out, nothing);
                continue;
            }
            EXPECT_THAT(outcome.out,
                        MatchesRegex("^" + nothing + path + ": " + judged + ", 0 undecided, [0-9.]+ s\n$"));
        }
    }
    EXPECT_EQ(checkJson(example("road-ifc4x3.ifc"))["problems"], json::array());
}

TEST(CheckCommand, ListsProblemsOfStructureAndInstancesInFileOrder) {
    const TemporaryModel model("IFC4", faultyData);
    const json answer = checkJson(model.path());
    EXPECT_EQ(places(answer), "8 #1 missing-value, 8 #1 dangling-reference, 8 #1 unknown-enumerator, 9 #2 "
                              "unknown-entity, 9 #2 string-invalid, 10 #3 semicolon-missing, 11 #4 integer-for-real");
    EXPECT_EQ(answer["total"], 7);
    EXPECT_EQ(answer["release"], "IFC4");
    EXPECT_EQ(answer["problems"][6]["severity"], "warning");
    std::ostringstream text;
    text << std::ifstream(model.path(), std::ios::binary).rdbuf();
    EXPECT_EQ(text.str().substr(answer["problems"][1]["offset"], 3), "#99");
    EXPECT_EQ(answer["problems"][1]["severity"], "error");

    const Outcome outcome = check(model.path());
    EXPECT_EQ(outcome.status, Findings);
    EXPECT_THAT(
        outcome.out,
        AllOf(StartsWith(model.path() + ":8: error: #1: IFCWALL.GLOBALID: expected IFCGLOBALLYUNIQUEID, found $"),
              HasSubstr(" [dangling-reference]\n" + model.path() + ":8: error: #1: "),
              HasSubstr(model.path() + ":11: warning: #4: "),
              HasSubstr("\n" + model.path() + ": 6 errors, 1 warning\n" + model.path() + ": 3 instances by "),
              Not(HasSubstr("\x1b"))));
    // Only what is wrong with the structure itself.
    EXPECT_EQ(places(checkJson(model.path(), {"--syntax"})), "9 #2 string-invalid, 10 #3 semicolon-missing");
}

TEST(CheckCommand, KnowsTheDerivedAttributesOfAReleaseWithoutThem) {
    for (const char* release : {"IFC2X3", "IFC4", "IFC4X1", "IFC4X3_ADD2"}) {
        const TemporaryModel model(release, "#1=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"
                                            "#2=IFCSIUNIT(*,.LENGTHUNIT.,*,.METRE.);\n"
                                            "#3=IFCDIMENSIONALEXPONENTS(1,0,0,0,0,0,*);\n"
                                            "#4=IFCSIUNIT($,.LENGTHUNIT.,$,.METRE.);\n"
                                            "#5=IFCSIUNIT(#3,.LENGTHUNIT.,$,.METRE.);\n"
                                            "#6=IFCORIENTEDEDGE(*,$,#7,.T.);\n#7=IFCEDGE(#8,#8);\n#8=IFCVERTEX();\n");
        EXPECT_EQ(places(checkJson(model.path())),
                  "9 #2 wrong-type, 10 #3 wrong-type, 11 #4 value-of-derived, 12 #5 value-of-derived, "
                  "13 #6 value-of-derived")
            << release;
    }
}

TEST(CheckCommand, TakesWholeNumbersWhereTheSchemaHasNumber) {
    const TemporaryModel model("IFC4", "#1=IFCPROPERTYSINGLEVALUE('n',$,IFCCOUNTMEASURE(3),$);\n"
                                       "#2=IFCPROPERTYSINGLEVALUE('n',$,IFCLENGTHMEASURE(3),$);\n");
    EXPECT_EQ(places(checkJson(model.path())), "9 #2 integer-for-real");
}

TEST(CheckCommand, JudgesTheRulesOfTheSchema) {
    const TemporaryModel model("IFC4", ruleBreaking);
    const std::string all = "1 global-rule, 8 #1 where-rule, 10 #3 inverse-cardinality, 10 #3 where-rule, "
                            "14 #7 uniqueness-rule, 16 #9 element-not-unique";
    const json answer = checkJson(model.path());
    EXPECT_EQ(places(answer), all);
    const json& vector = answer["problems"][1];
    EXPECT_EQ(vector["rule"], "IfcVector.MagGreaterOrEqualZero");
    EXPECT_EQ(vector["expression"], "Magnitude >= 0.0");
    EXPECT_EQ(answer["problems"][4]["expression"], "GlobalId");
    EXPECT_EQ(places(checkJson(model.path(), {"--jobs", "1"})), all);
    EXPECT_EQ(places(checkJson(model.path(), {"--jobs", "7"})), all);
    EXPECT_THAT(check(model.path()).out,
                AllOf(HasSubstr(":8: error: #1: IFCVECTOR breaks IfcVector.MagGreaterOrEqualZero: expected that "
                                "Magnitude is at least 0; found #1 IFCVECTOR.MAGNITUDE = -1. [where-rule]\n"),
                      HasSubstr(": 6 errors, 0 warnings\n")));

    const json without = checkJson(model.path(), {"--schema"});
    EXPECT_EQ(places(without), "");
    EXPECT_EQ(without["judged"], nullptr);
}

TEST(CheckCommand, JudgesWhatIsChosen) {
    const TemporaryModel model("IFC4", std::string(ruleBreaking) + "#11=IFCFOO();\n");
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"--only", "global-rule,uniqueness-rule"}, "1 global-rule, 14 #7 uniqueness-rule"},
        {{"--only", "global-rule", "--only", "unknown-entity"}, "1 global-rule, 18 #11 unknown-entity"},
        {{"--ignore", "where-rule,element-not-unique,unknown-entity,global-rule"},
         "10 #3 inverse-cardinality, 14 #7 uniqueness-rule"},
        {{"--only", "where-rule", "--ignore", "where-rule"}, ""},
        {{"--rule", "IfcVector.MagGreaterOrEqualZero"}, "8 #1 where-rule"},
        {{"--rule", "ifcpositivelengthmeasure.wr1"}, "10 #3 where-rule"},
        {{"--rule", "IfcSingleProjectInstance"}, "1 global-rule"},
        {{"--rule", "IfcRepresentationItem.StyledByItem"}, "10 #3 inverse-cardinality"},
        {{"--rule", "IfcRoot.UR1", "--limit", "0"}, ""},
    };
    for (const auto& [options, expected] : cases) {
        const json answer = checkJson(model.path(), options);
        EXPECT_EQ(places(answer), expected) << options.front() << ' ' << options[1];
        if (options.front() == "--rule") {
            EXPECT_EQ(answer["judged"]["judged_rules"], 1) << options[1];
        }
    }
    EXPECT_EQ(checkJson(model.path(), {"--rule", "IfcRoot.UR1", "--limit", "0"})["total"], 1);
}

TEST(CheckCommand, TakesInWhatIsFoundOfPropertySets) {
    const TemporaryModel model("IFC4", "#1=IFCWALL('0$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,$);\n"
                                       "#2=IFCPROPERTYSINGLEVALUE('FireRatng',$,$,$);\n"
                                       "#3=IFCPROPERTYSET('1$WU4A9R19$vKWO$AdOnKA',$,'Pset_WallCommon',$,(#2));\n"
                                       "#4=IFCRELDEFINESBYPROPERTIES('2$WU4A9R19$vKWO$AdOnKA',$,$,$,(#1),#3);\n"
                                       "#5=IFCFOO();\n");
    const auto judged = [&](std::vector<std::string> options, const std::string& shipped = shippedResources) {
        options.insert(options.begin(), {"check", model.path(), "--schema"});
        return runHost(options, false, shipped);
    };
    const auto answer = [&](std::vector<std::string> options) {
        options.insert(options.end(), {"--format", "json"});
        return json::parse(judged(options).out);
    };
    const std::string found = "10 #3 property-unknown", all = found + ", 12 #5 unknown-entity";
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{}, "12 #5 unknown-entity"},
        {{"--property-sets"}, all},
        {{"--property-sets", "--only", "property-unknown,set-unknown"}, found},
        {{"--property-sets", "--ignore", "unknown-entity"}, found},
        {{"--property-sets", "--ignore", "property-unknown"}, "12 #5 unknown-entity"},
        {{"--property-sets", "--limit", "1"}, found}};
    for (const auto& [options, expected] : cases) EXPECT_EQ(places(answer(options)), expected);
    EXPECT_EQ(answer({"--property-sets", "--limit", "1"})["total"], 2);
    EXPECT_EQ(answer({})["property_sets"], nullptr);
    EXPECT_EQ(answer({"--property-sets"})["property_sets"]["sets"]["checked"], 1);
    EXPECT_THAT(judged({"--property-sets"}).out, HasSubstr(": 1 of 1 set and 1 of 1 property or quantity checked\n"));

    const Outcome without = judged({"--property-sets"}, {});
    EXPECT_EQ(without.status, Unreadable);
    EXPECT_THAT(without.out, HasSubstr("[unknown-entity]")) << "the rest is judged all the same";
    EXPECT_THAT(without.err, HasSubstr("there are no definitions of property sets to check by"));
    const Outcome pointless = judged({"--only", "unknown-entity,property-unknown"});
    EXPECT_EQ(pointless.status, BadUsage);
    EXPECT_EQ(pointless.err, "velkor: --only: property-unknown needs --property-sets\n");
}

TEST(CheckCommand, SaysWhatCannotBeChosen) {
    const TemporaryModel model("IFC2X3", "");
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{"--only", "where-rule,wherrule"}, "velkor: --only: unknown \"wherrule\"; nearest: where-rule"},
        {{"--ignore", "dangling"}, "velkor: --ignore: unknown \"dangling\"; nearest: dangling-reference"},
        {{"--rule", "IfcWal.WR1"}, "velkor: --rule: IFC2X3 has no rule \"IfcWal.WR1\"; nearest: IfcWall.WR1"},
        {{"--rule", "WR31"}, " rules of IFC2X3 are called \"WR31\"; expected the owner as well: Ifc"},
        {{"--rule", "IfcWall.WR1", "--syntax"}, "excludes"},
        {{"--schema", "--syntax"}, "excludes"},
        {{"--jobs", "0"}, "velkor: --jobs: expected a whole number, from 1 to 1024, found \"0\""},
    };
    for (const auto& [options, message] : cases) {
        const Outcome outcome = check(model.path(), options);
        EXPECT_EQ(outcome.status, BadUsage) << options.front() << ' ' << options.back();
        EXPECT_THAT(outcome.out, IsEmpty());
        EXPECT_THAT(outcome.err, HasSubstr(message));
    }
}

TEST(CheckCommand, SaysWhatWasJudged) {
    const TemporaryModel model("IFC4", "#1=IFCCARTESIANPOINT((0.,0.));\n#2=IFCVERTEXPOINT(#1);\n"
                                       "#3=IFCSHAPEREPRESENTATION($,'Body','Nonesuch',(#1));\n");
    const json judged = checkJson(model.path())["judged"];
    EXPECT_EQ(judged["instances"], 3);
    EXPECT_EQ(judged["rules"], judged["judged_rules"]);
    EXPECT_GT(judged["judgements"], judged["unknown"]);
    EXPECT_EQ(judged["undecided"], 0);
    EXPECT_GE(judged["seconds"], 0.0);
    const json unknown{{"rule", "IfcShapeRepresentation.CorrectItemsForType"}, {"count", 1}};
    EXPECT_THAT(judged["unknown_by_rule"], ElementsAre(unknown));
    EXPECT_THAT(check(model.path()).out,
                ContainsRegex(": 1 of [0-9]+ judgements without an answer: IfcShapeRepresentation.CorrectItemsForType "
                              "\\(1\\)\n$"));
    // The draft's source states no more.
    EXPECT_THAT(
        check(TemporaryModel("IFC4X4", ruleBreaking).path(), {"--only", "uniqueness-rule"}).out,
        AllOf(HasSubstr(" 4 of 4 rules of IFC4X4, "), EndsWith(": the source of IFC4X4 states no rules but UNIQUE\n")));
}

TEST(CheckCommand, ListsNoMoreThanTheLimit) {
    std::string data;
    for (int i = 1; i <= 1500; ++i) data += '#' + std::to_string(i) + "=IFCFOO('\xff');\n";
    const TemporaryModel model("IFC4", data);
    const json answer = checkJson(model.path(), {"--limit", "3"});
    EXPECT_EQ(answer["total"], 3000);
    EXPECT_EQ(places(answer), "8 #1 unknown-entity, 8 #1 string-invalid, 9 #2 unknown-entity");
    EXPECT_THAT(check(model.path(), {"--limit", "3"}).out,
                HasSubstr(": 3 errors, 0 warnings among the first 3 of 3,000 problems (--limit shows more)\n"));
    EXPECT_THAT(checkJson(model.path(), {"--limit", "0"})["problems"], IsEmpty());
    EXPECT_EQ(checkJson(model.path(), {"--limit", "0", "--syntax"})["total"], 1500);
    EXPECT_EQ(checkJson(model.path())["problems"].size(), 3000U);
    for (const char* bad : {"-1", "many", "1.5", ""}) {
        const Outcome outcome = check(model.path(), {"--limit", bad});
        EXPECT_EQ(outcome.status, BadUsage) << bad;
        EXPECT_THAT(outcome.err, StartsWith("velkor: --limit: expected a whole number, 0 or more, found \"" +
                                            std::string(bad) + "\"\n"));
    }
    EXPECT_EQ(check(model.path(), {"--limit", "99999999999999999999"}).status, Findings) << "no limit at all";
}

TEST(CheckCommand, JudgesTheStructureOfAFileOfAnUnknownSchema) {
    const TemporaryModel model("IFC9", "#1=IFCFOO($)\n#2=IFCFOO($);\n");
    const json answer = checkJson(model.path());
    EXPECT_EQ(answer["release"], nullptr);
    EXPECT_EQ(places(answer), "5 schema-unknown, 8 #1 semicolon-missing");
    EXPECT_THAT(check(model.path()).out, HasSubstr(":5: error: expected a supported schema in FILE_SCHEMA, found "
                                                   "\"IFC9\"; supported: IFC2X3, "));
    EXPECT_EQ(places(checkJson(model.path(), {"--limit", "1"})), "5 schema-unknown");
    EXPECT_EQ(places(checkJson(model.path(), {"--syntax"})), "8 #1 semicolon-missing");

    const TemporaryFile text("A letter about ISO-10303-21;\n");
    for (const std::vector<std::string>& options : {std::vector<std::string>{}, {"--syntax"}, {"--format", "json"}}) {
        const Outcome outcome = check(text.path(), options);
        EXPECT_EQ(outcome.status, Unreadable);
        EXPECT_THAT(outcome.out, IsEmpty());
        EXPECT_THAT(outcome.err, AllOf(StartsWith("velkor: " + text.path()), HasSubstr("found \"A letter about I\"")));
    }
}

} // namespace velkor::host
