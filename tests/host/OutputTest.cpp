#include "Matchers.h"
#include "output/ExpressText.h"
#include "output/Json.h"
#include "TemporaryFolder.h"
#include "terminal/DisplayText.h"
#include "TestSupport.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>

namespace velkor::host {

namespace {

std::string written(const Json& value) {
    std::ostringstream out;
    writeJson(out, value);
    return out.str();
}

} // namespace

TEST(Json, NumbersReadBackAsTheSameDouble) {
    for (const double value : {0.1, 1.0 / 3.0, 0.017453292519943295, 25.4 / 1000.0, 1e-18, 1e18, -0.0, 5e-324,
                               std::numeric_limits<double>::max(), 9007199254740993.0}) {
        const auto text = written({{"factor", value}});
        EXPECT_EQ(nlohmann::json::parse(text)["factor"].get<double>(), value) << text;
    }
    EXPECT_EQ(written(0.1), "0.10000000000000001\n");
    EXPECT_EQ(written({std::numeric_limits<double>::quiet_NaN(), -std::numeric_limits<double>::infinity()}),
              "[\n  null,\n  null\n]\n");
}

TEST(Json, KeepsTheOrderOfMembersAndRepairsText) {
    EXPECT_EQ(written({{"z", 1}, {"a", {{"x\"\n", true}}}, {"none", Json::array()}, {"empty", Json::object()}}),
              "{\n  \"z\": 1,\n  \"a\": {\n    \"x\\\"\\n\": true\n  },\n  \"none\": [],\n  \"empty\": {}\n}\n");
    EXPECT_EQ(written("Stra\xC3\x9F"
                      "e \xFF"),
              "\"Stra\xC3\x9F"
              "e \uFFFD\"\n");
}

TEST(Json, NamesExactlyWhatIsNotUtf8) {
    const Json value = Json::parse(
        written({{"file", "caf\xE9 1%.ifc"}, {"good", "é"}, {"list", {"a/b", "\xFF"}}, {"inner", {{"path", "\x9B"}}}}));
    EXPECT_EQ(value, Json({{"file", "caf\uFFFD 1%.ifc"},
                           {"file_bytes", "caf%E9%201%25.ifc"},
                           {"good", "é"},
                           {"list", {"a/b", "\uFFFD"}},
                           {"list_bytes", {"a/b", "%FF"}},
                           {"inner", {{"path", "\uFFFD"}, {"path_bytes", "%9B"}}}}));
}

// Every command, over names that try everything.
TEST(Output, NothingUntrustedActsOnATerminalOrForgesALine) {
    const std::string evil = "\x1B\r\t\a\x7F\u009B\u202E\u2066\u2028\u2029\nEVIL";
    // As an exchange structure has it.
    std::string name = "=";
    for (const char* code : {"1B", "0D", "09", "07", "7F", "9B"}) name += "\\X\\" + std::string(code);
    name += "\\X2\\202E206620282029\\X0\\\\X\\0AEVIL";
    std::string data = "#4=IFCUNITASSIGNMENT((#5));\n#7=IFC\x1BX();\n#8=IFCWALL(\x1B);\n";
    for (const char* instance :
         {"1=IFCWALL('@',$,'@',$,$,$,$,$,$)", "2=IFCPROPERTYSET('@',$,'Pset_@',$,(#9))",
          "3=IFCPROJECT('@',$,'@',$,$,$,$,$,#4)", "5=IFCCONTEXTDEPENDENTUNIT(#6,.MASSUNIT.,'@')"})
        data += '#' + std::regex_replace(instance, std::regex("@"), name) + ";\n";
    const test::TemporaryFolder folder;
    const std::string model = folder / (evil + ".ifc"), unknown = folder / "unknown.ifc";
    std::filesystem::copy(TemporaryModel("IFC4", data, name, name).path(), model);
    std::filesystem::copy(TemporaryModel(name, data).path(), unknown);

    std::vector<std::vector<std::string>> commands{
        {"resources", "check", folder.file(evil + ".xml", "<a\x1B>&#x9b;</a>")},
        {"options", "--config", evil},
        {"options", "--config", folder.file("a.json", R"({"settings": {"\u001b\u202eEVIL\nEVIL": 1}})")},
        {"map", "plm", evil, evil},
        {"dictionary", "entity", evil, "a"},
        {"dictionary", "entity", "4", evil},
        {"guid", "expand", evil},
        {"units", model, "--" + evil},
        {"units", model, "--format", evil},
        {"check", model, "--limit", evil},
        {evil}};
    for (const std::string& file : {model, unknown, folder / evil}) {
        for (const char* command : {"report", "check", "validate", "classify", "units"}) {
            commands.push_back({command, file});
            commands.push_back({command, file, "--format", "json"});
        }
        commands.insert(commands.end(), {{"guid", "check", file}, {"classify", file, "--format", "csv"}});
    }
    const std::regex bad("[\x01-\x09\x0B-\x1F\x7F]|\xC2[\x80-\x9F]|\xE2\x80[\xA8-\xAE]|\xE2\x81[\xA6-\xA9]|\nEVIL");
    for (const auto& words : commands) {
        const Outcome outcome = runHost(words, false, shippedResources);
        std::string all = outcome.out + outcome.err;
        if (words.back() == "csv") all = std::regex_replace(all, std::regex("\r\n"), "\n");
        EXPECT_FALSE(std::regex_search(all, bad)) << testing::PrintToString(words) << '\n' << all;
        EXPECT_THAT(all, testing::HasSubstr("\\u00")) << testing::PrintToString(words);
        EXPECT_TRUE(outcome.status != Unreadable || std::ranges::count(outcome.err, '\n') == 1) << outcome.err;
    }
    const auto classified = [&](const char* format) {
        return runHost({"classify", model, "--format", format}, false, shippedResources).out;
    };
    EXPECT_EQ(Json::parse(classified("json"))["products"][1]["name"], '=' + evil);
    EXPECT_THAT(classified("csv"), testing::HasSubstr(",'=\\u001b\\u000d\\u0009\\u0007\\u007f\\u009b"
                                                      "\\u202e\\u2066\\u2028\\u2029\\u000aEVIL,"));
}

TEST(Output, LongTextsAreWholeButOnATerminal) {
    const std::string name = std::string(100, 'x') + "建物" + std::string(100'000, 'y');
    const TemporaryModel model("IFC4", "#1=IFCWALL('0$WU4A9R19$vKWO$AdOnKA',$,'" + name + "',$,$,$,$,$,$);\n");
    const auto classified = [&](const char* format) {
        return runHost({"classify", model.path(), "--format", format}, false, shippedResources).out;
    };
    EXPECT_THAT(classified("text"), testing::HasSubstr(name + "  "));
    EXPECT_LT(classified("text").size(), name.size() + 10'000);
    EXPECT_THAT(classified("csv"), testing::HasSubstr(name + ','));
    EXPECT_THAT(classified("json"), testing::HasSubstr(name + '"'));
}

TEST(DisplayText, CountsColumnsNotCharacters) {
    EXPECT_EQ(displayWidth("Grüße"), 5u);
    EXPECT_EQ(displayWidth("u\u0308"), 1u);
    EXPECT_EQ(displayWidth("建物"), 4u);
    EXPECT_EQ(shortened("建物", 4), "建物");
    EXPECT_EQ(shortened("建物a", 4), "建…");
    EXPECT_EQ(shortened("nu\u0308n", 3), "nu\u0308n");
    EXPECT_EQ(shortened("nu\u0308nn", 3), "nu\u0308…");
    EXPECT_EQ(shortened("\x1B\x9B", 10), "\\u001b\\x9b");
    std::string marks = "u";
    for (int i = 0; i < 100'000; ++i) marks += "\u0308";
    EXPECT_LT(shortened(marks, 9).size(), 1000U);
}

TEST(DisplayText, WrapsAtBlanksAndCutsAtWholeCharacters) {
    EXPECT_THAT(wrapped("one two three", 7, 4), ElementsAre("one two", "three"));
    EXPECT_THAT(wrapped("one two three four", 7, 2), ElementsAre("one two", "three…"));
    EXPECT_THAT(wrapped("abcdefghij", 4, 4), ElementsAre("abcdefghij"));
    EXPECT_THAT(wrapped("ab cdefghij kl m", 4, 4), ElementsAre("ab", "cdefghij", "kl m"));
    EXPECT_THAT(wrapped("abcd", 4, 1), ElementsAre("abcd"));
    EXPECT_THAT(wrapped("abcd  ", 4, 1), ElementsAre("abcd"));
    EXPECT_THAT(wrapped("abcde", 4, 1), ElementsAre("abc…"));
    // A wide character does not fit into the one column left.
    EXPECT_THAT(wrapped("建物部材", 5, 2), ElementsAre("建物", "部材"));
    EXPECT_THAT(wrapped("建物部材", 4, 1), ElementsAre("建…"));
    EXPECT_THAT(wrapped("nu\u0308nu\u0308nu\u0308", 4, 1), ElementsAre("nu\u0308n…"));
    EXPECT_THAT(wrapped("", 4, 2), IsEmpty());
    EXPECT_THAT(wrapped("    ", 4, 2), IsEmpty());
    EXPECT_THAT(wrapped(std::string(10'000'000, 'x'), 10, 2), ElementsAre(std::string(21, 'x') + "…"));
}

TEST(DisplayText, GroupsDigits) {
    EXPECT_EQ(text::grouped(0), "0");
    EXPECT_EQ(text::grouped(999), "999");
    EXPECT_EQ(text::grouped(1000), "1,000");
    EXPECT_EQ(text::grouped(std::numeric_limits<std::uint64_t>::max()), "18,446,744,073,709,551,615");
    EXPECT_EQ(text::counted(1, "error", "errors"), "1 error");
    EXPECT_EQ(text::counted(1200, "error", "errors"), "1,200 errors");
}

TEST(ExpressText, BreaksWhereTheWeakestConnectiveStands) {
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"EXISTS(Name)", {"EXISTS(Name)"}},
        {"Aaaaa AND Bbbbbbb OR Ccccccccc", {"Aaaaa AND Bbbbbbb", "OR Ccccccccc"}},
        {"Aaaaaaaaa AND Bbbbbbbbbbb", {"Aaaaaaaaa", "AND Bbbbbbbbbbb"}},
        {"Name IN ['a OR b', 'c)', 'dd'] OR Bb", {"Name IN [", "  'a OR b', 'c)',", "  'dd'", "]", "OR Bb"}},
        {"ORDER + BORDER + FLOOR_OR_MORE", {"ORDER + BORDER + FLOOR_OR_MORE"}},
        {"SIZEOF(QUERY(t <* Items | t || u = 1)) = 0",
         {"SIZEOF(", "  QUERY(", "    t <* Items |", "      t || u = 1", "  )", ") = 0"}},
        {"((Aaaaaaaa = 1) AND (Bbbb <> 2))", {"(", "  (Aaaaaaaa = 1)", "  AND (Bbbb <> 2)", ")"}},
        // What is not closed stays in its line.
        {"Aaaaaaaaaaaa(Bbbbbbbbbbb = Ccc", {"Aaaaaaaaaaaa(Bbbbbbbbbbb = Ccc"}},
    };
    for (const auto& [expression, lines] : cases) EXPECT_EQ(expressLines(expression, 20), lines) << expression;
}

} // namespace velkor::host
