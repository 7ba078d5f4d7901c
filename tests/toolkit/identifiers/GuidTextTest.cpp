#include "velkor/identifiers/GuidText.h"

#include <gmock/gmock.h>
#include <random>

namespace velkor {

TEST(GuidText, ExpandsAndCompresses) {
    const std::pair<const char*, const char*> pairs[] = {
        {"0000000000000000000000", "00000000-0000-0000-0000-000000000000"},
        {"3$$$$$$$$$$$$$$$$$$$$$", "ffffffff-ffff-ffff-ffff-ffffffffffff"},
        {"018qLdYQlDx$xSkfXsL38G", "01234567-89ab-cdef-fedc-ba9876543210"},
        {"2000000000000000000001", "80000000-0000-0000-0000-000000000001"}};
    for (const auto& [identifier, uuid] : pairs) {
        EXPECT_EQ(guid::expanded(identifier), uuid);
        EXPECT_EQ(guid::compressed(uuid), identifier);
    }
    EXPECT_EQ(guid::compressed("{01234567-89AB-CDEF-FEDC-BA9876543210}"), pairs[2].first) << "in any letter case";

    std::mt19937 random(7);
    for (int i = 0; i < 1000; ++i) {
        std::string uuid;
        for (int digit = 0; digit < 36; ++digit)
            uuid += digit == 8 || digit == 13 || digit == 18 || digit == 23 ? '-' : "0123456789abcdef"[random() % 16];
        const auto identifier = guid::compressed(uuid);
        ASSERT_TRUE(identifier) << uuid;
        EXPECT_EQ(guid::expanded(*identifier), uuid);
    }
}

TEST(GuidText, BadTextsAreSaidToBe) {
    for (const auto& [convert, text, expected] :
         {std::tuple(&guid::expanded, "", "expected 22 characters, found 0 in \"\""),
          {&guid::expanded, "000000000000000000000", "expected 22 characters, found 21"},
          {&guid::expanded, "4000000000000000000000", "expected \"0\" to \"3\" as the first character, found \"4\""},
          {&guid::expanded, "000000000000-000000000", "expected digits, letters, \"_\" and \"$\", found \"-\""},
          {&guid::expanded, "00000000000000000000\u00E90", "found \"\u00E9\""},
          {&guid::compressed, "0123456789abcdeffedcba9876543210",
           "expected 32 hexadecimal digits as 8-4-4-4-12, found 32"},
          {&guid::compressed, "{1234567-89ab-cdef-fedc-ba9876543210", "found \"{\""},
          {&guid::compressed, "{}", "found 2 characters"},
          {&guid::compressed, "012345678-9ab-cdef-fedc-ba9876543210", "found \"8\""},
          {&guid::compressed, "01234567-89ab-cdef-fedc-ba9876543g10", "found \"g\""}}) {
        const auto converted = convert(text);
        ASSERT_FALSE(converted) << text;
        EXPECT_THAT(converted.error(), testing::HasSubstr(expected));
    }
}

} // namespace velkor
