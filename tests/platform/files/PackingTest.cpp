#include "velkor/files/Packing.h"
#include "velkor/files/FileContents.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <string>
#include <unistd.h>

namespace velkor::files::test {

using testing::HasSubstr;

namespace {

std::string packed(const std::string& name, const std::string& text) {
    const std::string path = testing::TempDir() + std::to_string(getpid()) + name;
    auto output = ModelOutput::create(QORUnicodeString(std::string_view(path)));
    EXPECT_TRUE(output.has_value());
    output->text().write(text);
    EXPECT_TRUE(output->flush().has_value() && output->commit().has_value());
    const std::string bytes = readFile(path, std::size_t{1} << 30).value();
    std::filesystem::remove(path);
    return bytes;
}

std::string modelText() {
    std::string text = "ISO-10303-21;\n";
    for (int i = 1; i < 20'000; ++i)
        text += "#" + std::to_string(i * 7919) + "=A(" + std::to_string(i * i % 977) + ");\n";
    return text;
}

} // namespace

TEST(Packing, GivesBackWhatWasPackedAndTheSameBytesAgain) {
    const std::string text = modelText();
    for (const auto& [name, packing, member] : {std::tuple("house.ifczip", Packing::Zip, "house.ifc"),
                                                {"house.ifc.ZIP", Packing::Zip, "house.ifc"},
                                                {"house.ifc.gz", Packing::Gzip, ""}}) {
        const std::string bytes = packed(name, text);
        EXPECT_LT(bytes.size(), text.size() / 2);
        EXPECT_EQ(packingOf(bytes), packing);
        EXPECT_EQ(bytes, packed(name, text));
        const auto model = unpackModel(bytes);
        ASSERT_TRUE(model.has_value()) << model.error().message;
        EXPECT_EQ(model->text(), text);
        EXPECT_THAT(model->member(), HasSubstr(member));
    }
    EXPECT_EQ(packed("house.ifc", text), text);
}

TEST(Packing, RefusesWhatIsDamagedAtAnyPlace) {
    const std::string text = modelText();
    for (const char* name : {"house.zip", "house.gz"}) {
        const std::string bytes = packed(name, text);
        for (std::size_t size = 4; size < bytes.size(); size += bytes.size() / 50)
            EXPECT_FALSE(unpackModel(std::string_view(bytes).substr(0, size))) << name << ' ' << size;
        std::string turned = bytes;
        turned[bytes.size() / 2] = static_cast<char>(turned[bytes.size() / 2] ^ 0x10);
        EXPECT_FALSE(unpackModel(turned)) << name;
    }
}

TEST(Packing, RefusesWhatUnpacksToFarMore) {
    for (const char* name : {"zeros.zip", "zeros.gz"}) {
        EXPECT_TRUE(unpackModel(packed(name, std::string(alwaysUnpacked, ' '))));
        const auto model = unpackModel(packed(name, std::string(alwaysUnpacked + 1, ' ')));
        ASSERT_FALSE(model) << name;
        EXPECT_EQ(model.error().code, OpenError::Code::TooLarge);
    }
}

} // namespace velkor::files::test
