#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/text/Unicode.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace velkor::sdai::test {

namespace {

/// The one token that a text is; of another kind when it is more than one.
TokenKind kindOf(std::string_view text) {
    Part21Lexer lexer(text);
    const Token token = lexer.next();
    return token.text == text ? token.kind : TokenKind::Bad;
}

std::string encodedString(std::string_view utf8) {
    std::string text;
    appendString(text, utf8);
    return text;
}

std::string encodedReal(double value) {
    std::string text;
    EXPECT_TRUE(appendReal(text, value));
    return text;
}

} // namespace

TEST(Encoding, StringsStandInTheBasicAlphabet) {
    const std::pair<std::string, std::string> cases[] = {
        {"", "''"},
        {"wall ~", "'wall ~'"},
        {"it's", "'it''s'"},
        {"'", "''''"},
        {R"(\X2\00E4\X0\)", R"('\\X2\\00E4\\X0\\')"},
        {R"(\S\')", R"('\\S\\''')"},
        {"W\xC3\xA4nde", R"('W\X2\00E4\X0\nde')"},
        {"\xE5\xA2\x99\xE6\x9F\xB1", R"('\X2\589967F1\X0\')"},
        {"\xC3\xA4 \xC3\xB6", R"('\X2\00E4\X0\ \X2\00F6\X0\')"},
        {"\xC3\xA4\xF0\x9F\x8F\xA0\xC3\xA4", R"('\X2\00E4\X0\\X4\0001F3E0\X0\\X2\00E4\X0\')"},
        {"a\r\n\tb\x7F", R"('a\X2\000D000A0009\X0\b\X2\007F\X0\')"},
        {std::string("a\0b", 3), R"('a\X2\0000\X0\b')"},
        {"\xE4", R"('\X2\00E4\X0\')"}, // ISO 8859-1
    };
    for (const auto& [utf8, literal] : cases) EXPECT_EQ(encodedString(utf8), literal);
}

TEST(Encoding, EveryCharacterReadsBackInAnyCompany) {
    std::mt19937 random(7);
    for (std::int32_t code = 0; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 61) {
        if (code >= 0xD800 && code < 0xE000) continue;
        std::string utf8;
        text::append(utf8, code);
        utf8 += std::string_view("'\\aX2")[random() % 5];
        text::append(utf8, code);
        const std::string literal = encodedString(utf8);
        std::string error;
        ASSERT_EQ(decodeString(literal, &error), utf8) << literal;
        ASSERT_EQ(error, "") << literal;
        ASSERT_EQ(kindOf(literal), TokenKind::String) << literal;
    }
}

TEST(Encoding, RealsTakeTheShortestFormThatReadsBack) {
    const std::pair<double, const char*> cases[] = {
        {0., "0."},
        {-0., "-0."},
        {1., "1."},
        {-2.5, "-2.5"},
        {0.1, "0.1"},
        {1.5e-5, "1.5E-05"},
        {1e-5, "1.E-05"},
        {1e22, "1.E+22"},
        {5e-324, "5.E-324"},
        {1. / 3, "0.3333333333333333"},
        {-1.7976931348623157e308, "-1.7976931348623157E+308"},
    };
    for (const auto& [value, text] : cases) EXPECT_EQ(encodedReal(value), text);

    std::mt19937_64 random(3);
    for (int i = 0; i < 200'000; ++i) {
        const std::uint64_t bits = random();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (!std::isfinite(value)) continue;
        const std::string text = encodedReal(value);
        double back = 0;
        ASSERT_EQ(kindOf(text), TokenKind::Real) << text;
        ASSERT_TRUE(decodeReal(text, back)) << text;
        ASSERT_EQ(std::memcmp(&back, &value, sizeof value), 0) << text;
    }
}

TEST(Encoding, OtherValuesStandBehindWhatIsThere) {
    std::string text = "(";
    appendInteger(text, std::numeric_limits<std::int64_t>::min());
    text += ',';
    EXPECT_TRUE(appendReference(text, std::numeric_limits<std::uint64_t>::max()));
    text += ',';
    EXPECT_TRUE(appendEnumeration(text, "Metre_2"));
    text += ',';
    EXPECT_TRUE(appendBinary(text, "30F"));
    (text += ',') += omittedValue;
    (text += ',') += derivedValue;
    EXPECT_EQ(text, "(-9223372036854775808,#18446744073709551615,.METRE_2.,\"30F\",$,*");
}

TEST(Encoding, WhatHasNoFormIsRefusedAndLeavesTheText) {
    std::string text = "kept";
    EXPECT_FALSE(appendReal(text, std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(appendReal(text, std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(appendReference(text, 0));
    for (const char* name : {"", "2D", "A.B", "A B", ".T.", "\xC3\x84"})
        EXPECT_FALSE(appendEnumeration(text, name)) << name;
    for (const char* digits : {"", "4F", "0f", "0G", "F0"}) EXPECT_FALSE(appendBinary(text, digits)) << digits;
    EXPECT_EQ(text, "kept");
}

} // namespace velkor::sdai::test
