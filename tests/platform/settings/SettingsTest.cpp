#include "Variables.h"
#include "velkor/settings/QORSettingRepository.h"

#include <array>
#include <cstdlib>
#include <gmock/gmock.h>
#include <optional>

namespace velkor::settings::test {

TEST(Environment, HoldsANumberWhenTheWholeTextIsOne) {
    const velkor::test::Variables variables{"VELKOR_TEST"};
    using Case = std::pair<const char*, std::optional<short>>;
    for (const auto& [text, number] :
         {Case{"0", 0}, Case{"-7", -7}, Case{"+5", 5}, Case{" 12\t", 12}, Case{"007", 7}, Case{"32767", 32767},
          Case{"-32768", -32768}, Case{"32768", {}}, Case{"-32769", {}}, Case{"4294967296", {}}, Case{"", {}},
          Case{" ", {}}, Case{"-", {}}, Case{"+-1", {}}, Case{"1 2", {}}, Case{"0x1", {}}, Case{nullptr, {}}}) {
        variables.set("VELKOR_TEST", text);
        short value = 99;
        EXPECT_EQ(QORDXEnvironmentVariable::GetValue("VELKOR_TEST", value), number.has_value()) << text;
        EXPECT_EQ(value, number.value_or(99)) << text;
        EXPECT_EQ(QORDXEnvironmentVariable::HasBeenSet("VELKOR_TEST"), text != nullptr);
        EXPECT_EQ(QORGetEnv("VELKOR_TEST"), QORUnicodeString(text));
        EXPECT_STREQ(std::getenv("VELKOR_TEST"), text);
    }
    QORDXEnvironmentVariable::SetValue("VELKOR_TEST", -70000);
    EXPECT_EQ(std::system("test \"$VELKOR_TEST\" = -70000"), 0) << "seen by programs that the process starts";
    EXPECT_FALSE(QORDXEnvironmentVariable::HasBeenSet("velkor_test"));
}

TEST(SettingRepository, IsThereFromMakingToRemoval) {
    const auto find = [](const char* name) {
        return QORSettingRepository::GetRepository(name, 0, QORSettingRepository::ReadAccess, nullptr);
    };
    const short one = 1;
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(find("IFC"), nullptr);
        EXPECT_EQ(find("IFC"), nullptr) << "asking makes none";
        QORSettingRepository& made = repository("IFC");
        for (int i = 0; i < 1000; ++i) repository(std::to_string(i).c_str());
        EXPECT_EQ(find("IFC"), &made) << "others leave it where it is";
        EXPECT_EQ(find("ifc"), nullptr);
        short value = 0;
        EXPECT_EQ(made.ReadSetting("Mode", &value, 1), 0) << "it begins empty";
        made.WriteSetting("Mode", &one, 1);
        EXPECT_EQ(find("7")->ReadSetting("Mode", &value, 1), 0);
        removeRepository("IFC");
        EXPECT_NE(find("7"), nullptr);
        for (int i = 0; i < 1000; ++i) removeRepository(std::to_string(i).c_str());
    }
}

TEST(SettingRepository, GivesAsManyValuesAsThereAreAndAreWanted) {
    QORSettingRepository repository;
    using Read = std::pair<int, std::array<short, 4>>;
    const auto read = [&](const char* name, int count) {
        Read result{0, {9, 9, 9, 9}};
        result.first = repository.ReadSetting(name, result.second.data(), count);
        return result;
    };
    const short values[] = {-1, 32767, 3};
    EXPECT_EQ(repository.WriteSetting("Modes", values, 3), 3);
    EXPECT_EQ(read("Modes", 2), Read(2, {-1, 32767, 9, 9}));
    EXPECT_EQ(read("Modes", 4), Read(3, {-1, 32767, 3, 9}));
    EXPECT_EQ(read("Modes", -1), Read(0, {9, 9, 9, 9}));
    EXPECT_EQ(read("modes", 4), Read(0, {9, 9, 9, 9}));
    EXPECT_EQ(repository.WriteSetting("Modes", values + 2, 1), 1);
    EXPECT_EQ(read("Modes", 4), Read(1, {3, 9, 9, 9})) << "the new values stand alone";
    repository.RemoveSetting("Modes");
    EXPECT_EQ(read("Modes", 4), Read(0, {9, 9, 9, 9}));
}

} // namespace velkor::settings::test
