#include "QORIFCExportServices.h"

#include <cstdlib>
#include <ctime>
#include <gtest/gtest.h>
#include <vector>

namespace {

/// What the program's own clock and generator of random numbers say, which stand in for those of the C library.
std::time_t clockTime = 0;
std::vector<unsigned int> seeds;
std::vector<int> numbers;

} // namespace

// The library finds them only when they are exported.
[[gnu::visibility("default")]] std::time_t time(std::time_t*) noexcept {
    return clockTime;
}
[[gnu::visibility("default")]] void srand(unsigned int seed) noexcept {
    seeds.push_back(seed);
}
[[gnu::visibility("default")]] int rand() noexcept {
    const int number = numbers.back();
    numbers.pop_back();
    return number;
}

TEST(ExportServices, DeriveAnIdentifierFromAPlmId) {
    // Computed by another program with an implementation of its own of the hash.
    const std::pair<std::string, const char*> vectors[] = {
        {"", "q5p5q5p5q5p5q5p5q5p5q5"},
        {"a", "q5p5q5p5q5p5q5p5q53NHM"},
        {"wall1", "q5p5q5p5q5p5q5p5q5kC49"},
        {"wall12", "RH3NHMAI5EAI5ExCYoGsCq"},
        {"0123456789ABC", "HnaFUdOqbNT6J7fOqjSIxL"},
        {"prd-4711-00012345", "AZeBjL5G4nystG5LL12$hh"},
        {"7F3A9C20-51D4-4E0B-9C55-0A1B2C3D4E5F", "zwow$7NQO$bJ6W1MRWW43_"},
        {"plm://site/part/000123?rev=A.1", "aksF$SFrP9Wn60pgCAbw9N"},
        {"ünïcödé", "ESFpE_ZSaNi0yRr5_$iRgj"},
        {"部品番号一二三四五六七", "bBrOEyVYU9CKaOWp$fZnEt"},
        {"𝄞𝄞𝄞𝄞𝄞𝄞𝄞", "nJwVnJwVnJwVnJwVnJBsF1"},
        {std::string(100, 'x'), "0D6d0D6d0D6d0D6d0DSKoG"},
        {"a longer identifier whose pieces have more than sixteen bytes each, so that the hash works on whole "
         "stripes of them",
         "ZOiE$f2I0SaqjT8QARMgdx"},
    };
    for (const auto& [plmId, guid] : vectors) {
        QORUnicodeString text{std::string_view(plmId)}, converted("what it held");
        QORIFCExportServices::ConvertPLMIDToGUID(text, converted);
        EXPECT_EQ(converted, guid) << plmId;
        QORIFCExportServices::ConvertPLMIDToGUID(text, text);
        EXPECT_EQ(text, guid) << plmId << ", put where it was read from";
    }
}

TEST(ExportServices, GenerateIdentifiersFromTimeAndCount) {
    // Of the numbers, drawn from the last to the first, the upper 15 bits count.
    const std::pair<std::vector<int>, const char*> vectors[] = {
        {{0x44CCBBAA, 0x33221100, 0x55AA1234, 0x0F1E2D3C, 0x6A5B4C3D, 0x00010203, 0x7FFFFFFF, 0x12345678},
         "0ID7$$005gMnuFgbKYCyn4"},
        {std::vector<int>(8, 0xFFFF), "0000000000000000000000"},
        {std::vector<int>(8, RAND_MAX), "1$$t$$V$z$$$z$$t$$V$z$"}};
    clockTime = 0xFFFFFFFE;
    for (const auto& [drawn, expected] : vectors) {
        numbers = drawn;
        QORUnicodeString guid("what it held");
        QORIFCExportServices::GenerateIFCGUID(guid);
        EXPECT_EQ(guid, expected);
        EXPECT_TRUE(numbers.empty());
    }
    // Calls of one second are kept apart; the seed wraps.
    EXPECT_EQ(seeds[1], seeds[0] + 1);
    EXPECT_EQ(seeds[2], seeds[0] + 2);
    clockTime += 1000;
    numbers = vectors[0].first;
    QORUnicodeString guid;
    QORIFCExportServices::GenerateIFCGUID(guid);
    EXPECT_EQ(seeds[3], seeds[0] + 1003);
}

TEST(ExportServices, KeepOneParent) {
    QORUnicodeString guid("what it held");
    QORIFCExportServices::GetParentGUID(guid);
    EXPECT_TRUE(guid.IsEmpty()) << "none was set yet";
    for (const char* parent : {"0abcdefghijklmnopqrstu", "any text", ""}) {
        guid = parent;
        QORIFCExportServices::SetParentGUID(guid);
        guid = "changed";
        QORIFCExportServices::GetParentGUID(guid);
        EXPECT_EQ(guid, parent);
    }
}
