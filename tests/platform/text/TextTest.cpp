#include "velkor/text/Printable.h"
#include "velkor/text/QORDXUnicodeString.h"
#include "velkor/text/QORListValQORUnicodeString.h"
#include "velkor/text/QORToken.h"
#include "velkor/text/QORUnicodeString.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace {

TEST(QORUnicodeString, comparesWithUnicodeCaseFolding) {
    for (const auto& [a, b, answer] : {std::tuple("IfcWall", "IfcWall", 2),
                                       {"IfcWall", "IFCWALL", 1},
                                       {"IfcWall", "IfcWal", 0},
                                       {"", "", 2},
                                       {"", "a", 0},
                                       {"Größe", "GRÖSSE", 1},
                                       {"Größe", "GRÖẞE", 1},
                                       {"ΣΊΣΥΦΟΣ", "σίσυφος", 1},
                                       {"梁", "梁", 2},
                                       {"梁", "柱", 0},
                                       {"@", "`", 0},
                                       {"[", "{", 0},
                                       {"x\xFFz", "X\xFFZ", 1},
                                       {"\xC3", "\xE3", 0}}) {
        EXPECT_EQ(QORUnicodeString(a).Compare(b), answer) << a << " " << b;
        EXPECT_EQ(QORUnicodeString(b).Compare(a), answer) << b << " " << a;
    }
}

TEST(QORUnicodeString, countsCharactersNotBytes) {
    QORUnicodeString text("aß梁😀e");
    EXPECT_EQ(text.GetLengthInChar(), 5);
    for (const auto& [begin, length, part] :
         {std::tuple(1, 3, "ß梁😀"), {3, 99, "😀e"}, {-2, 3, "a"}, {9, 1, ""}, {1, -1, ""}}) {
        EXPECT_EQ(text.SubString(begin, length), part);
    }
    EXPECT_EQ(text.SearchSubString("e"), 4);
    EXPECT_EQ(text.SearchSubString("x"), -1);
    EXPECT_EQ(QORUnicodeString("abab").SearchSubString("ab", 1), 2);
    text.Insert(2, "--");
    EXPECT_EQ(text, "aß--梁😀e");
    text.Remove(1, 4);
    EXPECT_EQ(text, "a😀e");
    text.Insert(1, text);
    EXPECT_EQ(text, "aa😀e😀e");
    EXPECT_EQ(text.ReplaceAll("a", "aa"), 2);
    EXPECT_EQ(text, "aaaa😀e😀e");
    // Bytes that are no UTF-8 count one each and survive.
    EXPECT_EQ(QORUnicodeString("\xE6\xA2 x").GetLengthInChar(), 4);
    EXPECT_EQ(QORUnicodeString("\xE6\xA2x").SubString(2, 1), "x");
}

TEST(QORUnicodeString, mapsCaseInPlace) {
    QORUnicodeString text("Ärger dž Ωμέγα \xFF 42");
    text.ToUpper();
    EXPECT_EQ(text, "ÄRGER DŽ ΩΜΈΓΑ \xFF 42");
    text.ToLower();
    EXPECT_EQ(text, "ärger dž ωμέγα \xFF 42");
}

TEST(QORUnicodeString, readsWholeNumbersOnly) {
    int value = 7;
    for (const char* bad : {"", " ", "+", "-", "+-1", "1x", "0x10", "1 2", "2147483648", "1.0"}) {
        EXPECT_FALSE(QORUnicodeString(bad).ConvertToNum(value)) << bad;
        EXPECT_EQ(value, 7) << bad;
    }
    EXPECT_TRUE(QORUnicodeString(" +12\t").ConvertToNum(value));
    EXPECT_EQ(value, 12);
    EXPECT_TRUE(QORUnicodeString("-2147483648").ConvertToNum(value));
    EXPECT_EQ(value, -2147483647 - 1);
}

// The hash stands in identifiers that have been handed out: these never change.
TEST(QORUnicodeString, hashIsPinned) {
    const std::pair<const char*, unsigned int> vectors[] = {{"", 0x02CC5D05},
                                                            {"a", 0x550D7456},
                                                            {"abc", 0x32D153FF},
                                                            {"MILLIMETRE", 0xE3260C40},
                                                            {"IFCWALL", 0x05D5BCFD},
                                                            {"Pset_WallCommon", 0xE2228904},
                                                            {"0123456789ABCDEF", 0xF9F50986},
                                                            {"The quick brown fox jumps over the lazy dog", 0xE85EA4DE},
                                                            {"Größe", 0x3A44CA22},
                                                            {"prd-00000000-00012345", 0x8F37ED0F}};
    for (const auto& [text, hash] : vectors) EXPECT_EQ(QORUnicodeString(text).ComputeHashKey(), hash) << text;
    EXPECT_EQ(QORDXUnicodeString("").GetHash(), 0xEF46DB3751D8E999U);
    const std::unordered_map<QORDXUnicodeString, int> map{{"Pset_WallCommon", 1}};
    EXPECT_TRUE(map.contains("Pset_WallCommon") && !map.contains("PSET_WALLCOMMON")) << "exact keys";
}

TEST(QORListValQORUnicodeString, countsPositionsFromOne) {
    QORListValQORUnicodeString list;
    for (const char* item : {"b", "a", "b", "B", "a"}) list.Append(item);
    EXPECT_EQ(list[1], "b");
    EXPECT_EQ(list.Locate("a"), 2);
    EXPECT_EQ(list.Locate("a", 3), 5);
    EXPECT_EQ(list.Locate("A"), 0);
    EXPECT_EQ(list.Locate("a", 6), 0);
    list.RemoveDuplicates();
    EXPECT_EQ(std::vector<QORUnicodeString>(list.begin(), list.end()), (std::vector<QORUnicodeString>{"b", "a", "B"}));
    list.Append(list);
    EXPECT_EQ(list.Size(), 6);
    list.RemovePosition(2);
    list.RemovePosition(9);
    EXPECT_EQ(list.Size(), 5);
    EXPECT_EQ(list[2], "B");
    EXPECT_EQ(list[0], "");
    EXPECT_EQ(list[6], "");
}

TEST(Printable, escapesWhatActsOnATerminal) {
    for (const auto& [text, shown] : {std::pair("Grüße, 建物 🏗️ \\u", "Grüße, 建物 🏗️ \\u"),
                                      {"\x1B[31m\r\n\t", "\\u001b[31m\\u000d\\u000a\\u0009"},
                                      {"\x7F\u0080\u009F\u00A0", "\\u007f\\u0080\\u009f\u00A0"},
                                      {"\u2027\u2028\u202E\u202F", "\u2027\\u2028\\u202e\u202F"},
                                      {"\u2065\u2066\u2069\u206A", "\u2065\\u2066\\u2069\u206A"},
                                      // The bytes of a name stay but for those that are controls in 8-bit sets.
                                      {"caf\xE9 \x80\x9F\xA0\xFF", "caf\xE9 \\x80\\x9f\xA0\xFF"},
                                      {"\xE2\x80 \xC2", "\xE2\\x80 \xC2"}}) {
        EXPECT_EQ(velkor::text::printable(text), shown);
        EXPECT_EQ(velkor::text::printable(shown), shown);
    }
    EXPECT_EQ(velkor::text::printable(std::string_view("\0", 1)), "\\u0000");
    EXPECT_EQ(velkor::text::excerpt("ab\n", 3), "ab\\u000a");
    EXPECT_EQ(velkor::text::excerpt("a梁柱", 5), "a梁…");
}

TEST(Wording, QuotesJoinsAndCutsBetweenCharacters) {
    using namespace velkor::text;
    EXPECT_EQ(joined(std::vector<std::string>{"", "b", "c"}), ", b, c");
    EXPECT_EQ(joined(std::vector{1, 2}, " or ", [](int n) { return velkor::text::quoted(std::to_string(n)); }),
              "\"1\" or \"2\"");
    EXPECT_EQ(quotedBeginning("a梁柱", 5) + quotedBeginning("a梁", 4), "\"a梁…\"\"a梁\"");
    EXPECT_EQ(firstCharacter("梁a"), "梁");
    EXPECT_EQ(firstCharacter("\x80\x80"), "\x80");
    EXPECT_EQ(asciiUpper("äb_z{1"), "äB_Z{1");
    EXPECT_EQ(printableAscii("\x1F ~\x7Fä"), "? ~???");
}

TEST(QORToken, passesOverEmptyPieces) {
    using Pieces = std::vector<std::string>;
    for (const auto& [text, separators, expected] : {std::tuple("C:\\a b;;/opt/x;", ";", Pieces{"C:\\a b", "/opt/x"}),
                                                     {";", ";", {}},
                                                     {"a→b,c", ",→", {"a", "b", "c"}},
                                                     {"abc", "", {"abc"}}}) {
        Pieces pieces;
        QORToken token{QORUnicodeString(text)};
        const auto next = [&token, pieceEnds = separators] { return token.GetNextToken(pieceEnds); };
        for (auto piece = next(); !piece.IsEmpty(); piece = next()) pieces.emplace_back(piece.utf8());
        EXPECT_EQ(pieces, expected) << text;
    }
}

} // namespace
