#include "velkor/identifiers/GuidText.h"
#include "velkor/identifiers/NamedGuid.h"

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

// The first is the example of RFC 9562, A.4; the others are for lengths about those of a block of the hash.
TEST(GuidText, NamesHaveTheirIdentifiers) {
    EXPECT_EQ(guid::named(guid::dnsSpace, "www.example.com"), "2ed6657d-e927-568b-95e1-2665a8aea6a2");
    for (const auto& [length, expected] :
         {std::pair<std::size_t, const char*>{0, "4ebd0208-8328-5d69-8c44-ec50939c0967"},
          {39, "5824f981-4282-59d4-9716-acb6d741350e"},
          {40, "39f39c20-db47-5131-8879-62f8f67f9014"},
          {47, "660c273c-8a00-5941-b6f4-8d0afed88966"},
          {48, "7280cc42-274a-5c4a-91fc-ae23f853eeb7"},
          {112, "ab683ad5-4de4-5faf-bf37-0788e34176da"},
          {1000, "062a6b1a-ddc3-5fcc-b238-790846e533d6"}})
        EXPECT_EQ(guid::named(guid::dnsSpace, std::string(length, 'a')), expected) << length;
}

} // namespace velkor
