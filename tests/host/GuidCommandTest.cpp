#include "Matchers.h"
#include "TestSupport.h"

#include "velkor/identifiers/GuidText.h"

#include <nlohmann/json.hpp>
#include <set>

namespace velkor::host {

using nlohmann::json;

namespace {

json jsonOf(std::vector<std::string> words, int status = Done, const std::string& input = {}) {
    words.insert(words.end(), {"--format", "json"});
    const Outcome outcome = runHost(std::move(words), false, {}, input);
    EXPECT_EQ(outcome.status, status) << outcome.err;
    return json::parse(outcome.out, nullptr, false);
}

std::vector<std::string> linesOf(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

std::string wall(int id, const std::string& identifier) {
    return '#' + std::to_string(id) + "=IFCWALL(" + identifier + ",$,$,$,$,$,$,$,$);\n";
}

} // namespace

TEST(GuidCommand, NewIdentifiersAreWellFormedAndDiffer) {
    std::set<std::string> seen;
    for (const std::string& line : linesOf(runHost({"guid", "new", "-n", "500"}).out)) {
        EXPECT_FALSE(guid::faultOf(line)) << line;
        seen.insert(line);
    }
    const json two = jsonOf({"guid", "new", "-n", "2"});
    for (const json& identifier : two["identifiers"]) seen.insert(identifier.get<std::string>());
    EXPECT_EQ(seen.size(), 502U);
    EXPECT_EQ(linesOf(runHost({"guid", "new"}).out).size(), 1U);
    for (const char* count : {"0", "-1", "1000001", "x"})
        EXPECT_EQ(runHost({"guid", "new", "-n", count}).status, BadUsage) << count;
}

TEST(GuidCommand, PlmIdentifiersComeFromWordsOrLines) {
    const std::string one = runHost({"guid", "from-plm", "DOOR-0815"}).out;
    const std::string other = runHost({"guid", "from-plm", "WALL [7],a"}).out;
    EXPECT_THAT(one, MatchesRegex("[0-9A-Za-z_$]{22}\n"));
    EXPECT_NE(one, other);
    EXPECT_EQ(runHost({"guid", "from-plm", "DOOR-0815", "WALL [7],a"}).out, one + other);
    // Each line has its answer, whatever ends it.
    EXPECT_EQ(runHost({"guid", "from-plm"}, false, {}, "DOOR-0815\r\nWALL [7],a\nDOOR-0815").out, one + other + one);
    EXPECT_EQ(jsonOf({"guid", "from-plm"}, Done, "DOOR-0815\n"),
              json({{"identifiers", {{{"plm", "DOOR-0815"}, {"identifier", one.substr(0, 22)}}}}}));
    EXPECT_EQ(jsonOf({"guid", "from-plm"})["identifiers"], json::array());

    const Outcome list = runHost({"guid", "from-plm", "DOOR-0815", "[7,a]"});
    EXPECT_EQ(list.status, BadUsage);
    EXPECT_THAT(list.out, IsEmpty());
    EXPECT_THAT(list.err, HasSubstr("square brackets"));
    EXPECT_THAT(runHost({"guid", "from-plm"}, false, {}, "[7,a]\n").out, MatchesRegex("[0-9A-Za-z_$]{22}\n"));

    const Outcome empty = runHost({"guid", "from-plm"}, false, {}, "a\n\nb\n");
    EXPECT_EQ(empty.status, Unreadable);
    EXPECT_THAT(empty.out, IsEmpty());
    EXPECT_EQ(empty.err, "velkor: standard input, line 2: expected a PLM identifier, found an empty line\n");
}

TEST(GuidCommand, ExpandsAndCompressesAllOrNone) {
    const std::string identifiers[] = {"018qLdYQlDx$xSkfXsL38G", "2000000000000000000001"};
    const std::string uuids[] = {"01234567-89ab-cdef-fedc-ba9876543210", "80000000-0000-0000-0000-000000000001"};
    EXPECT_EQ(runHost({"guid", "expand", identifiers[0], identifiers[1]}).out, uuids[0] + '\n' + uuids[1] + '\n');
    EXPECT_EQ(runHost({"guid", "compress", uuids[0], uuids[1]}).out, identifiers[0] + '\n' + identifiers[1] + '\n');
    EXPECT_EQ(jsonOf({"guid", "expand", identifiers[0]})["identifiers"],
              json::array({{{"identifier", identifiers[0]}, {"uuid", uuids[0]}}}));
    for (const auto& [command, text, expected] :
         {std::tuple("expand", "00000000000000000000\x1B[2", "found 23"), {"compress", "{}", "found 2 characters"}}) {
        const Outcome outcome =
            runHost({"guid", command, command == std::string("expand") ? identifiers[0] : uuids[0], text});
        EXPECT_EQ(outcome.status, BadUsage) << text;
        EXPECT_THAT(outcome.out, IsEmpty()) << "half a list would be taken for the whole";
        EXPECT_THAT(outcome.err, AllOf(HasSubstr(expected), testing::Not(HasSubstr("\x1B")))) << text;
    }
}

TEST(GuidCommand, CheckFindsWhatIsWrongWithItsPlace) {
    const std::string good = "'0$WU4A9R19$vKWO$AdOnKA'";
    const TemporaryModel model("IFC4", wall(1, good) + wall(2, "'1$WU4A9R19$vKWO$AdOnK'") + wall(3, good) +
                                           wall(4, "'4$WU4A9R19$vKWO$AdOnKA'") + wall(5, "$") +
                                           wall(6, "'2$WU4A9R19$vKWO$AdOnK\\X\\E9'") +
                                           "#7=IFCCARTESIANPOINT((0.,0.,0.));\n" + wall(8, "'  '") + wall(9, ".T."));
    const std::string expected[] = {
        ":9: error: #2: GLOBALID: expected 22 characters, found 21 in \"1$WU4A9R19$vKWO$AdOnK\" [guid-length]",
        ":10: error: #3: GLOBALID: expected an identifier of its own, found that of #1 in line 8 [guid-duplicate]",
        ":11: error: #4: GLOBALID: expected \"0\" to \"3\" as the first character, found \"4\" in "
        "\"4$WU4A9R19$vKWO$AdOnKA\" [guid-first-character]",
        ":12: error: #5: GLOBALID: expected an identifier of 22 characters [guid-missing]",
        ":13: error: #6: GLOBALID: expected digits, letters, \"_\" and \"$\", found \"\u00E9\" in "
        "\"2$WU4A9R19$vKWO$AdOnK\u00E9\" [guid-character]",
        ":15: error: #8: GLOBALID: expected 22 characters, found 2 in \"  \" [guid-length]",
        ":16: error: #9: GLOBALID: expected an identifier of 22 characters [guid-missing]",
        ": 8 identifiers, 7 problems"};
    std::string text;
    for (const std::string& line : expected) text += model.path() + line + '\n';
    const Outcome outcome = runHost({"guid", "check", model.path()});
    EXPECT_EQ(outcome.status, Findings);
    EXPECT_EQ(outcome.out, text);

    const json all = jsonOf({"guid", "check", model.path()}, Findings);
    EXPECT_EQ(all["identifiers"], 8);
    EXPECT_EQ(all["total"], 7);
    EXPECT_EQ(all["problems"][1]["instance"], 3);
    EXPECT_EQ(all["problems"][1]["line"], 10);
    EXPECT_EQ(all["problems"][1]["code"], "guid-duplicate");
    const json first = jsonOf({"guid", "check", model.path(), "--limit", "1"}, Findings);
    EXPECT_EQ(first["total"], 7);
    EXPECT_EQ(first["problems"].size(), 1U);
    EXPECT_THAT(runHost({"guid", "check", model.path(), "--limit", "1"}).out,
                HasSubstr(": 8 identifiers, 7 problems, the first 1 are listed (--limit shows more)\n"));
    for (const char* name : {"house-ifc2x3.ifc", "pump-room-ifc4.ifc", "road-ifc4x3.ifc"})
        EXPECT_EQ(jsonOf({"guid", "check", example(name)})["total"], 0) << name;
}

} // namespace velkor::host
