#include "QORIFCExportServices.h"

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <gmock/gmock.h>
#include <set>
#include <string>

namespace {

constexpr const char* alphabet = "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_$";

std::string generated() {
    QORUnicodeString guid("what it held");
    QORIFCExportServices::GenerateIFCGUID(guid);
    return std::string(guid.utf8());
}

/// A GUID of the C library's generator: its bytes as they are told, one in two digits, then three in four each.
std::string ofSeed(std::uint32_t seed) {
    std::srand(seed);
    std::string bytes;
    for (int drawn = 0; drawn < 8; ++drawn) {
        const int number = std::rand() >> 16;
        const char high = static_cast<char>(number >> 8), low = static_cast<char>(number & 0xFF);
        bytes += drawn < 4 ? std::string{high, low} : std::string{low, high};
    }
    std::string digits;
    std::uint32_t bits = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bits = bits << 8 | static_cast<unsigned char>(bytes[i]);
        if (i % 3 != 0) continue;
        for (int shift = i == 0 ? 6 : 18; shift >= 0; shift -= 6) digits += alphabet[bits >> shift & 63U];
        bits = 0;
    }
    return digits;
}

} // namespace

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
    // How many were generated before is not known, so it is sought with the first one.
    const auto now = [] { return static_cast<std::uint32_t>(std::time(nullptr)); };
    const std::uint32_t before = now();
    std::string guid = generated();
    std::uint32_t count = 1;
    while (count < 10000 && ofSeed(before + count) != guid) ++count;
    ASSERT_LT(count, 10000U) << guid << " comes from no seed near the time";

    std::set<std::string> guids{guid};
    for (int i = 0; i < 200; ++i) {
        const std::uint32_t start = now();
        guid = generated();
        ++count;
        // The second may have changed meanwhile, here or when the count was sought.
        EXPECT_THAT(guid, testing::AnyOf(ofSeed(start + count), ofSeed(start + count + 1), ofSeed(start + count - 1)));
        EXPECT_EQ(guid.size(), 22U);
        EXPECT_EQ(guid.find_first_not_of(alphabet), std::string::npos) << guid;
        EXPECT_THAT(guid[0], testing::AnyOf('0', '1')) << guid;
        guids.insert(guid);
    }
    EXPECT_GE(guids.size(), 199U) << "calls of one second are kept apart";
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
