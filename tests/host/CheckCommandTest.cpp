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

} // namespace

TEST(CheckCommand, FindsNothingInTheExamples) {
    for (const char* name : {"house-ifc2x3.ifc", "pump-room-ifc4.ifc", "road-ifc4x3.ifc"}) {
        for (const std::vector<std::string>& options : {std::vector<std::string>{}, {"--syntax"}}) {
            const Outcome outcome = check(example(name), options);
            EXPECT_EQ(outcome.status, Done);
            EXPECT_EQ(outcome.out, example(name) + ": no problems found\n");
            EXPECT_THAT(outcome.err, IsEmpty());
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
    EXPECT_THAT(outcome.out, AllOf(StartsWith(model.path() +
                                              ":8: error: #1: IFCWALL.GLOBALID: expected IFCGLOBALLYUNIQUEID, found $"),
                                   HasSubstr(" [dangling-reference]\n" + model.path() + ":8: error: #1: "),
                                   HasSubstr(model.path() + ":11: warning: #4: "),
                                   EndsWith("\n" + model.path() + ": 6 errors, 1 warning\n"), Not(HasSubstr("\x1b"))));
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

TEST(CheckCommand, ListsNoMoreThanTheLimit) {
    std::string data;
    for (int i = 1; i <= 1500; ++i) data += '#' + std::to_string(i) + "=IFCFOO('\xff');\n";
    const TemporaryModel model("IFC4", data);
    const json answer = checkJson(model.path(), {"--limit", "3"});
    EXPECT_EQ(answer["total"], 3000);
    EXPECT_EQ(places(answer), "8 #1 unknown-entity, 8 #1 string-invalid, 9 #2 unknown-entity");
    EXPECT_THAT(check(model.path(), {"--limit", "3"}).out,
                EndsWith(": 3 errors, 0 warnings among the first 3 of 3,000 problems (--limit shows more)\n"));
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
