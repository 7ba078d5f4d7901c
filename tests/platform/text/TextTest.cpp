#include "text/QORDXUnicodeString.h"
#include "text/QORListValQORUnicodeString.h"
#include "text/QORToken.h"
#include "text/QORUnicodeString.h"

#include <gtest/gtest.h>

#include <string>
#include <unordered_map>
#include <vector>

namespace {

TEST(QORUnicodeString, comparesWithUnicodeCaseFolding) {
    const struct {
        const char* a;
        const char* b;
        int answer;
    } cases[] = {
        {"IfcWall", "IfcWall", 2},
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
        {"a\xFF"
         "b",
         "A\xFF"
         "B",
         1},
        {"\xC3", "\xE3", 0},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(QORUnicodeString(c.a).Compare(c.b), c.answer) << c.a << " " << c.b;
        EXPECT_EQ(QORUnicodeString(c.b).Compare(c.a), c.answer) << c.b << " " << c.a;
    }
}

TEST(QORUnicodeString, countsCharactersNotBytes) {
    QORUnicodeString text("aß梁😀e");
    EXPECT_EQ(text.GetLengthInChar(), 5);
    EXPECT_EQ(text.SubString(1, 3), "ß梁😀");
    EXPECT_EQ(text.SubString(3, 99), "😀e");
    EXPECT_EQ(text.SubString(-2, 3), "a");
    EXPECT_EQ(text.SubString(9, 1), "");
    EXPECT_EQ(text.SubString(1, -1), "");
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
    const std::pair<const char*, unsigned int> vectors[] = {
        {"", 0x02CC5D05U},
        {"a", 0x550D7456U},
        {"ab", 0x4999FC53U},
        {"abc", 0x32D153FFU},
        {"MILLIMETRE", 0xE3260C40U},
        {"METRE", 0x78D9420FU},
        {"IFCWALL", 0x05D5BCFDU},
        {"Pset_WallCommon", 0xE2228904U},
        {"ThermalTransmittance", 0x1865595BU},
        {"0123456789ABCDEF", 0xF9F50986U},
        {"The quick brown fox jumps over the lazy dog", 0xE85EA4DEU},
        {"Größe", 0x3A44CA22U},
        {"梁", 0x8ACE0E27U},
        {"prd-00000000-00012345", 0x8F37ED0FU},
    };
    for (const auto& [text, hash] : vectors) EXPECT_EQ(QORUnicodeString(text).ComputeHashKey(), hash) << text;
    EXPECT_EQ(QORDXUnicodeString("").GetHash(), 0xEF46DB3751D8E999U);
}

TEST(QORDXUnicodeString, isAnExactKey) {
    std::unordered_map<QORDXUnicodeString, int> map{{"Pset_WallCommon", 1}};
    EXPECT_EQ(map.count("Pset_WallCommon"), 1U);
    EXPECT_EQ(map.count("PSET_WALLCOMMON"), 0U);
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

TEST(QORToken, passesOverEmptyPieces) {
    const auto pieces = [](const char* text, const char* separators) {
        std::vector<std::string> result;
        QORToken token{QORUnicodeString(text)};
        for (QORUnicodeString piece = token.GetNextToken(separators); !piece.IsEmpty();
             piece = token.GetNextToken(separators)) {
            result.emplace_back(piece.utf8());
        }
        return result;
    };
    using Pieces = std::vector<std::string>;
    EXPECT_EQ(pieces("C:\\a b;;/opt/x;", ";"), (Pieces{"C:\\a b", "/opt/x"}));
    EXPECT_EQ(pieces(";", ";"), Pieces{});
    EXPECT_EQ(pieces("a→b,c", ",→"), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(pieces("abc", ""), Pieces{"abc"});
}

} // namespace
