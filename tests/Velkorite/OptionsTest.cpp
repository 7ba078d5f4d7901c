#include "QORIFCOptions.h"

#include "Cases.h"
#include "OptionsFixture.h"
#include "PrivateOperation.h"
#include "QORIFCOptionsFromXCAD.h"
#include "QORIFCOptionsServices.h"

#include <array>
#include <cstdlib>
#include <gmock/gmock.h>
#include <sstream>

namespace velkor::test {

using Options = QORIFCOptions;
using Values = std::array<int, 3>;

namespace {

class ExchangeOptions : public OptionsFixture {
protected:
    /// Profile, geometry mode and structure exposure in effect.
    Values values() const {
        return {options.GetExchangeProfile(), options.GetGeometryMode(), options.GetStructureExposure()};
    }
    static std::string text(const Values& values) {
        return std::to_string(values[0]) + ' ' + std::to_string(values[1]) + ' ' + std::to_string(values[2]);
    }
    Values afterSetting(int profile, int geometry, int exposure) {
        options.SetExchangeProfile(static_cast<Options::ExchangeProfile>(profile));
        options.SetGeometryMode(static_cast<Options::GeometryMode>(geometry));
        options.SetStructureExposure(static_cast<Options::StructureExposure>(exposure));
        return values();
    }
    static void setting(const char* name, short value) { settings::repository("IFC").WriteSetting(name, &value, 1); }
};

} // namespace

TEST_F(ExchangeOptions, AreForcedOrImpliedByTheEnvironment) {
    constexpr const char* names[] = {Options::_envvar_exchange_profile, Options::_envvar_geometry_mode,
                                     Options::_envvar_structure_exposure};
    // What is in effect with the three variables ("-": not set); then after the setters asked for 1, 0 and 1, where
    // what is forced stays, and the variable of the profile: exposure and geometry without a profile amount to one.
    // A profile that is there without a number forces nothing, and none is put in its place.
    for (const auto& [inEffect, environment, expected] : casesOf(R"(
        0 1 0: - - - -> 1 0 1 - | 0 - - -> 0 0 1 0 | 7 - - -> 0 0 1 7 | -1 - - -> 0 0 1 -1 | 0 3 2 -> 0 1 0 0
        0 1 0: - 1 0 -> 0 1 0 0 | - text 0 -> 1 0 0 - | - - 0 -> 1 0 0 - | - 1 2 -> 1 1 0 - | text 1 0 -> 1 1 0 text
        0 1 1: '' - 1 -> 1 0 1 ''
        0 2 0: - 2 - -> 1 2 1 -
        1 0 1: 1 0 - -> 1 0 1 1
        1 1 0: 1 -1 -1 -> 1 1 0 1
        1 1 1: 1 - - -> 1 0 1 1 | - - 1 -> 1 0 1 1
        1 2 1: - 2 1 -> 1 2 1 1
        2 0 0: - 0 0 -> 2 0 0 2
        2 1 0: - 5 0 -> 2 1 0 2
        2 1 1: 2 1 1 -> 2 1 1 2
        2 2 0: 2 - - -> 2 0 1 2)")) {
        SCOPED_TRACE(environment);
        variables.removeAll();
        std::istringstream given(environment);
        for (const char* name : names) {
            std::string value;
            given >> value;
            if (value != "-") variables.set(name, value == "''" ? "" : value.c_str());
        }
        Options::Reset();
        EXPECT_EQ(text(values()), inEffect);
        const std::string after = text(afterSetting(1, 0, 1));
        const char* profile = std::getenv(names[0]);
        EXPECT_EQ(after + ' ' + (profile == nullptr ? "-" : *profile == 0 ? "''" : profile), expected);
    }
}

TEST_F(ExchangeOptions, FollowTheUsersSettingsUnlessSet) {
    short value = 99;
    EXPECT_EQ(Options::GetSettingValue("FullyExposed", value), E_FAIL) << "no repository";
    settings::repository("IFC");
    EXPECT_EQ(Options::GetSettingValue("FullyExposed", value), S_FALSE) << "no such setting";
    EXPECT_EQ(value, 99);
    EXPECT_EQ(values(), (Values{0, 1, 0}));
    for (const short number : std::initializer_list<short>{0, 1, 2, 3, 5, 255, -1, -32768}) {
        for (const char* name : {"ImportProfileMode", "ImportRepPreferedMode", "FullyExposed"}) setting(name, number);
        EXPECT_EQ(Options::GetSettingValue("FullyExposed", value), S_OK);
        EXPECT_EQ(value, number);
        const bool inRange = number >= 0 && number <= 2;
        EXPECT_EQ(values(), (inRange ? Values{number, number, number == 1} : Values{0, 1, 0})) << number;
    }
    setting("ImportProfileMode", 2);
    setting("ImportRepPreferedMode", 0);
    setting("FullyExposed", 1);
    EXPECT_EQ(afterSetting(0, 2, 0), (Values{0, 2, 0}));
    EXPECT_EQ(options.GetGeometryModeSource().origin, Options::Origin::RunTime);
    EXPECT_EQ(afterSetting(3, 3, 2), (Values{2, 0, 1})) << "not given";
    afterSetting(1, 1, 0);
    Options::Reset();
    EXPECT_EQ(values(), (Values{2, 0, 1})) << "what was set is lost";
    variables.set(Options::_envvar_exchange_profile, "1");
    EXPECT_EQ(values(), (Values{2, 0, 1})) << "Reset alone reads the environment";
    Options::Reset();
    EXPECT_EQ(values(), (Values{1, 0, 1})) << "fully exposed implies no geometry";
}

TEST_F(ExchangeOptions, SwitchAttributesOffByTheVariablesPresence) {
    for (const char* text : {"", "0", "no"}) {
        EXPECT_TRUE(options.ExchangeWithAttributes());
        variables.set(Options::_envvar_no_attributes, text);
        Options::Reset();
        for (const bool isOn : {false, true, false}) {
            EXPECT_EQ(options.ExchangeWithAttributes(), isOn) << text;
            EXPECT_EQ(options.GetAttributesSource().origin,
                      isOn ? Options::Origin::RunTime : Options::Origin::Environment);
            options.ToggleExchangeWithAttributes();
        }
        variables.removeAll();
        Options::Reset();
    }
}

TEST_F(ExchangeOptions, AreComponentsOfWhichThereIsOneEach) {
    EXPECT_EQ(Options::CreateItself(), nullptr);
    EXPECT_EQ(QORIFCOptionsFromXCAD::CreateItself(), nullptr);
    EXPECT_STREQ(options.IsA(), "QORIFCOptions");
    EXPECT_STREQ(QORIFCOptionsFromXCAD::ClassName(), "QORIFCOptionsFromXCAD");
    for (const QORMetaClass* metaClass : {Options::MetaObject(), QORIFCOptionsFromXCAD::MetaObject()}) {
        EXPECT_STREQ(metaClass->GetExtendedClassName(), "QORNull");
        EXPECT_STREQ(metaClass->GetFrameworkName(), "Velkorite");
    }
}

TEST(OptionsServices, RequireCustomPropertySetsUnlessTold) {
    QORIFCOptionsServices* services = QORIFCOptionsServices::getInstance();
    EXPECT_EQ(services->IsCustomPropertySetsRequired(), 1);
    for (const bool enable : {false, true, false}) {
        EXPECT_EQ(services->SetEnableCustomPropertySets(enable), S_OK);
        EXPECT_EQ(services->IsCustomPropertySetsRequired(), enable ? 1 : 0);
    }
    services->Clear();
    EXPECT_EQ(services->IsCustomPropertySetsRequired(), 1);

    const auto& instance = privateOperation<QORIFCOptionsServices*>("_ZN21QORIFCOptionsServices10_pinstanceE");
    EXPECT_EQ(instance, services);
    EXPECT_EQ(privateOperation<int(int)>("_ZN21QORIFCOptionsServices6OnExitEi")(3), 0);
    EXPECT_EQ(instance, nullptr) << "what is gone cannot be reached";
}

} // namespace velkor::test
