#include "DisplayText.h"
#include "Json.h"

#include <gmock/gmock.h>
#include <limits>
#include <nlohmann/json.hpp>
#include <sstream>

namespace velkor::host {

using testing::ElementsAre;
using testing::IsEmpty;

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

TEST(DisplayText, NothingInATextActsOnTheTerminal) {
    EXPECT_EQ(printable("a\tb\r\nc"), "a b  c");
    EXPECT_EQ(printable("\x1B[31mred\x7F\xC2\x9B"), "\uFFFD[31mred\uFFFD\uFFFD");
    EXPECT_EQ(printable("abc\u202Efdp.exe\u2066"), "abc\uFFFDfdp.exe\uFFFD");
    EXPECT_EQ(printable("M\xFCller \xE4"), "M\uFFFDller \uFFFD");
    EXPECT_EQ(printable("Grüße, 建物 🏗️"), "Grüße, 建物 🏗️");
}

TEST(DisplayText, CountsColumnsNotCharacters) {
    EXPECT_EQ(displayWidth("Grüße"), 5u);
    EXPECT_EQ(displayWidth("u\u0308"), 1u);
    EXPECT_EQ(displayWidth("建物"), 4u);
}

TEST(DisplayText, WrapsAtBlanksAndCutsAtWholeCharacters) {
    EXPECT_THAT(wrapped("one two three", 7, 4), ElementsAre("one two", "three"));
    EXPECT_THAT(wrapped("one two three four", 7, 2), ElementsAre("one two", "three…"));
    EXPECT_THAT(wrapped("abcdefghij", 4, 4), ElementsAre("abcd", "efgh", "ij"));
    EXPECT_THAT(wrapped("abcd", 4, 1), ElementsAre("abcd"));
    EXPECT_THAT(wrapped("abcd  ", 4, 1), ElementsAre("abcd"));
    EXPECT_THAT(wrapped("abcde", 4, 1), ElementsAre("abc…"));
    // A wide character does not fit into the one column left.
    EXPECT_THAT(wrapped("建物部材", 5, 2), ElementsAre("建物", "部材"));
    EXPECT_THAT(wrapped("建物部材", 4, 1), ElementsAre("建…"));
    EXPECT_THAT(wrapped("nu\u0308nu\u0308nu\u0308", 4, 1), ElementsAre("nu\u0308n…"));
    EXPECT_THAT(wrapped("", 4, 2), IsEmpty());
    EXPECT_THAT(wrapped("  \n ", 4, 2), IsEmpty());
    EXPECT_THAT(wrapped(std::string(10'000'000, 'x'), 10, 2), ElementsAre("xxxxxxxxxx", "xxxxxxxxx…"));
}

TEST(DisplayText, GroupsDigits) {
    EXPECT_EQ(grouped(0), "0");
    EXPECT_EQ(grouped(999), "999");
    EXPECT_EQ(grouped(1000), "1,000");
    EXPECT_EQ(grouped(std::numeric_limits<std::uint64_t>::max()), "18,446,744,073,709,551,615");
    EXPECT_EQ(counted(1, "error", "errors"), "1 error");
    EXPECT_EQ(counted(1200, "error", "errors"), "1,200 errors");
}

} // namespace velkor::host
