#include "Matchers.h"
#include "velkor/sdai/Part21Lexer.h"

#include <cmath>
#include <limits>
#include <tuple>
#include <vector>

namespace velkor::sdai::test {

namespace {

using Kind = TokenKind;

std::vector<std::pair<Kind, std::string>> tokens(std::string_view text) {
    std::vector<std::pair<Kind, std::string>> result;
    Part21Lexer lexer(text);
    for (Token token = lexer.next(); token.kind != Kind::End; token = lexer.next()) {
        result.emplace_back(token.kind, token.text);
    }
    return result;
}

} // namespace

TEST(Lexer, TellsEveryKindOfTokenWhateverSeparatesThem) {
    const std::pair<Kind, std::string> expected[] = {
        {Kind::InstanceName, "#12"}, {Kind::Equals, "="},   {Kind::Keyword, "IFC_WALL2"}, {Kind::Open, "("},
        {Kind::Keyword, "!OWN"},     {Kind::Integer, "-7"}, {Kind::Real, "+1.5E-3"},      {Kind::Real, "1."},
        {Kind::Omitted, "$"},        {Kind::Derived, "*"},  {Kind::Enumeration, ".U."},   {Kind::Binary, "\"0FF\""},
        {Kind::String, "'it''s'"},   {Kind::Close, ")"},    {Kind::Semicolon, ";"}};
    auto found = tokens("#12 = /* a ; ' */IFC_WALL2\r\n(!OWN,-7,+1.5E-3,1.,$,*,.U.,\"0FF\",'it''s')\\N\\;\\F\\");
    EXPECT_EQ(std::erase(found, std::pair(Kind::Comma, std::string(","))), 8u);
    EXPECT_THAT(found, testing::ElementsAreArray(expected));
    // An apostrophe behind the directive S belongs to the string, but not where the reverse solidus itself is meant.
    for (const std::string string : {R"('\S\'')", R"('\\S\\')", R"('\P')", "'two\nlines'"}) {
        EXPECT_EQ(tokens(string + ",1")[0], std::pair(Kind::String, string));
    }
}

TEST(Lexer, WhatIsNoTokenIsSkippedAsAWhole) {
    for (const std::string bad :
         {"1E5",   "1.5e3", "1.E", "-",  "+x", "1.#INF", "#",     "#A",   "#1A",    "!", "!1",      "Wall",
          "WALL.", ".t.",   ".T",  "..", ".5", "\"4F\"", "\"1\"", "\"\"", "\"0f\"", "@", "\xC3\xA4"}) {
        const auto found = tokens(bad + ",#9");
        ASSERT_EQ(found.size(), 3u) << bad;
        EXPECT_EQ(found[0], std::pair(Kind::Bad, bad));
        EXPECT_EQ(found[2].second, "#9") << bad;
    }
    EXPECT_THAT(tokens("'never closed, #1"), ElementsAre(std::pair(Kind::Bad, "'never closed, #1")));
    EXPECT_THAT(tokens("/* #1,"), ElementsAre(std::pair(Kind::InstanceName, "#1"), std::pair(Kind::Comma, ",")));
}

TEST(Lexer, AParameterIsSkippedWithAllItHolds) {
    using Case = std::tuple<const char*, bool, const char*>;
    for (const auto& [text, isWhole, rest] :
         {Case("((1,2),IFCLABEL('a,)')),3)", true, ",3)"), Case("'x)' /* ,) */ ) rest", true, ") rest"),
          Case(",1", true, ",1"), Case("(1;2)", false, ";2)"), Case("(1", false, "")}) {
        Part21Lexer lexer(text);
        EXPECT_EQ(lexer.skipParameter(), isWhole) << text;
        EXPECT_STREQ(lexer.position(), rest);
    }
}

TEST(Strings, AreDecodedToUtf8WithTheFirstViolation) {
    // What stands between the apostrophes, its text, and a part of the violation if there is one.
    const std::string cases[][3] = {
        {"it''s ''", "it's '", ""},
        {R"(a\\b)", R"(a\b)", ""},
        {R"(\S\Drger \S\')", "\u00C4rger \u00A7", ""},
        // Alphabets stay in force to the end of the string: 8859-2 LATIN SMALL C WITH CARON, 8859-5 ZHE.
        {R"(\PB\\S\h\S\h)", "\u010D\u010D", ""},
        {R"(\PE\\S\6\PA\\S\6)", "\u0416\u00B6", ""},
        {R"(\PG\\S\a)", "\u03B1", ""},
        {R"(\PI\\S\})", "\u0131", ""},
        {R"(\PH\\S\!)", R"(\S\!)", "8859-8"},
        {R"(\PJ\x)", R"(\PJ\x)", "A to I"},
        {"\\P\xAA\\x", "\\P\u00AA\\x", "A to I"},
        {R"(\X\E4\X\41)", "\u00E4A", ""},
        {R"(\X\e4)", "\u00E4", "upper case"},
        {R"(\X\G0)", R"(\X\G0)", "two hexadecimal"},
        {R"(\X2\00E400F6\X0\!\X4\0001F600\X0\)", "\u00E4\u00F6!\U0001F600", ""},
        {R"(\X2\D83DDE00\X0\)", "\U0001F600", "written as \\X4\\0001F600\\X0\\"},
        {R"(\X2\D83D\X0\)", "\uFFFD", "D83D is no character"},
        {R"(\X2\DE00D83D\X0\)", "\uFFFD\uFFFD", "DE00 is no character"},
        {R"(\X4\00110000\X0\)", "\uFFFD", "no character"},
        {R"(\X2\00e4\X0\)", "\u00E4", "upper case"},
        {R"(\X2\\X0\)", "", "at least one"},
        {R"(\X2\00E\X0\)", R"(\X2\00E\X0\)", "groups of four"},
        {R"(\X4\00E4\X0\)", R"(\X4\00E4\X0\)", "groups of eight"},
        {R"(a\X0\b)", R"(a\X0\b)", "without"},
        {R"(C:\temp\S)", R"(C:\temp\S)", "directive"},
        {"\\S\\\xC3\xA4", "\\S\\\u00E4", "behind \\S\\"},
        // What writers put in without directives.
        {"gr\xC3\xBC\xC3\x9F", "gr\u00FC\u00DF", "\\X2\\00FC\\X0\\"},
        {"\xF0\x9F\x98\x80", "\U0001F600", "\\X4\\0001F600\\X0\\"},
        {"gr\xFC\xDF", "gr\u00FC\u00DF", "byte FC"},
        {"\xED\xA0\x80", "\u00ED\u00A0\u0080", "byte ED"},
        {"\xF4\x90\x80\x80", "\u00F4\u0090\u0080\u0080", "byte F4"},
        {"\xE2\x82z", "\u00E2\u0082z", "byte E2"},
        {"a\r\nb", "a\r\nb", "line end"},
        {"a\tb\x7F", "a\tb\x7F", "control character 09"}};
    for (const auto& [body, text, violation] : cases) {
        std::string error;
        EXPECT_EQ(decodeString("'" + body + "'", &error), text) << body;
        EXPECT_EQ(decodeString("'" + body + "'"), text) << body;
        EXPECT_EQ(error.empty(), violation.empty()) << body;
        EXPECT_THAT(error, HasSubstr(violation)) << body;
    }
}

TEST(Numbers, RealsAreReadAsExactlyAsADoubleHolds) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const std::pair<double, std::vector<const char*>> cases[] = {
        {1.0, {"1.", "+1.0", "1", "1E0", "10.e-1"}},
        {-0.5, {"-0.5", "-.5", "-5.E-1"}},
        {0.30000000000000004, {"0.30000000000000004"}},
        {5e-324, {"4.9E-324"}},
        {1.7976931348623157e308, {"1.7976931348623157E308"}},
        {0.0, {"0.", "0.E999", "1.E-400", "1.E-99999999999999999999"}},
        {infinity, {"1.E400", "0.0000001E400", "1.E99999999999999999999", "1.#INF", "1.#INF00", "inf"}},
        {-infinity, {"-1.E400", "-1.#INF", "-Infinity"}}};
    for (const auto& [expected, spellings] : cases) {
        for (const char* text : spellings) {
            double value = -1.0;
            EXPECT_TRUE(decodeReal(text, value)) << text;
            EXPECT_EQ(value, expected) << text;
        }
    }
    for (const char* nan : {"1.#IND", "-1.#QNAN", "NaN", "-nan(ind)"}) {
        double value = 0.0;
        EXPECT_TRUE(decodeReal(nan, value) && std::isnan(value)) << nan;
    }
    for (const char* none : {"", "-", "+", ".", "E5", "--1.", "+-1.", "1.5x", "1,5", "0x10", "#1", "'1'"}) {
        double value = 7.0;
        EXPECT_FALSE(decodeReal(none, value)) << none;
        EXPECT_EQ(value, 7.0) << none;
    }
}

TEST(Numbers, IntegersAndInstanceNamesFitOrAreNone) {
    const std::pair<const char*, std::int64_t> integers[] = {
        {"0", 0}, {"-0007", -7}, {"+12", 12}, {"9223372036854775807", INT64_MAX}, {"-9223372036854775808", INT64_MIN}};
    for (const auto& [text, expected] : integers) {
        std::int64_t value = 1;
        EXPECT_TRUE(decodeInteger(text, value)) << text;
        EXPECT_EQ(value, expected);
    }
    for (const char* none : {"", "+", "+-1", "1.", "9223372036854775808", "1 "}) {
        std::int64_t value = 1;
        EXPECT_FALSE(decodeInteger(none, value)) << none;
    }
    EXPECT_EQ(decodeInstanceName("#0012"), 12u);
    EXPECT_EQ(decodeInstanceName("#18446744073709551615"), UINT64_MAX);
    EXPECT_EQ(decodeInstanceName("#18446744073709551616"), 0u);
}

} // namespace velkor::sdai::test
