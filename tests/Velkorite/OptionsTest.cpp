#include "QORIFCOptions.h"

#include "OptionsFixture.h"
#include "PrivateOperation.h"
#include "QORIFCOptionsFromXCAD.h"
#include "QORIFCOptionsServices.h"

#include <gmock/gmock.h>
#include <tuple>

namespace velkor::test {

using Options = QORIFCOptions;
using Values = std::tuple<int, int, int>;

namespace {

class ExchangeOptions : public OptionsFixture {
protected:
    /// Profile, geometry mode and structure exposure in effect.
    Values values() const {
        return {options.GetExchangeProfile(), options.GetGeometryMode(), options.GetStructureExposure()};
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
    struct Case {
        const char *profile, *geometry, *exposure;
        Values inEffect;
        /// After the setters asked for 1, 0 and 1: what is forced stays.
        Values afterSetting;
        const char* profileVariable;
    };
    constexpr const char* none = nullptr;
    for (const Case& c : {
             Case{none, none, none, {0, 1, 0}, {1, 0, 1}, none},
             Case{"0", none, none, {0, 1, 0}, {0, 0, 1}, "0"},
             Case{"1", none, none, {1, 1, 1}, {1, 0, 1}, "1"},
             Case{"2", none, none, {2, 2, 0}, {2, 0, 1}, "2"},
             Case{"7", none, none, {0, 1, 0}, {0, 0, 1}, "7"},
             Case{"-1", none, none, {0, 1, 0}, {0, 0, 1}, "-1"},
             Case{"1", "0", none, {1, 0, 1}, {1, 0, 1}, "1"},
             Case{"2", "1", "1", {2, 1, 1}, {2, 1, 1}, "2"},
             Case{"0", "3", "2", {0, 1, 0}, {0, 1, 0}, "0"},
             Case{"1", "-1", "-1", {1, 1, 0}, {1, 1, 0}, "1"},
             // Exposure and geometry without a profile amount to one.
             Case{none, "1", "0", {0, 1, 0}, {0, 1, 0}, "0"},
             Case{none, "0", "0", {2, 0, 0}, {2, 0, 0}, "2"},
             Case{none, "5", "0", {2, 1, 0}, {2, 1, 0}, "2"},
             Case{none, "text", "0", {0, 1, 0}, {1, 0, 0}, none},
             Case{none, none, "0", {0, 1, 0}, {1, 0, 0}, none},
             Case{none, none, "1", {1, 1, 1}, {1, 0, 1}, "1"},
             Case{none, "2", "1", {1, 2, 1}, {1, 2, 1}, "1"},
             Case{none, "1", "2", {0, 1, 0}, {1, 1, 0}, none},
             Case{none, "2", none, {0, 2, 0}, {1, 2, 1}, none},
             // A profile that is there without a number forces nothing, and none is put in its place.
             Case{"text", "1", "0", {0, 1, 0}, {1, 1, 0}, "text"},
             Case{"", none, "1", {0, 1, 1}, {1, 0, 1}, ""},
         }) {
        SCOPED_TRACE(testing::PrintToString(std::tuple(c.profile, c.geometry, c.exposure)));
        variables.set(Options::_envvar_exchange_profile, c.profile);
        variables.set(Options::_envvar_geometry_mode, c.geometry);
        variables.set(Options::_envvar_structure_exposure, c.exposure);
        Options::Reset();
        EXPECT_EQ(values(), c.inEffect);
        EXPECT_EQ(afterSetting(1, 0, 1), c.afterSetting);
        EXPECT_EQ(QORDXEnvironmentVariable::HasBeenSet(Options::_envvar_exchange_profile),
                  c.profileVariable != nullptr);
        EXPECT_EQ(QORGetEnv(Options::_envvar_exchange_profile), QORUnicodeString(c.profileVariable));
    }
}

TEST_F(ExchangeOptions, FollowTheUsersSettingsUnlessSet) {
    short value = 99;
    EXPECT_EQ(Options::GetSettingValue("FullyExposed", value), E_FAIL) << "no repository";
    settings::repository("IFC");
    EXPECT_EQ(Options::GetSettingValue("FullyExposed", value), S_FALSE) << "no such setting";
    EXPECT_EQ(value, 99);
    EXPECT_EQ(values(), Values(0, 1, 0));
    for (const short number : {0, 1, 2, 3, 5, 255, -1, -32768}) {
        for (const char* name : {"ImportProfileMode", "ImportRepPreferedMode", "FullyExposed"}) setting(name, number);
        EXPECT_EQ(Options::GetSettingValue("FullyExposed", value), S_OK);
        EXPECT_EQ(value, number);
        const bool inRange = number >= 0 && number <= 2;
        EXPECT_EQ(values(), inRange ? Values(number, number, number == 1) : Values(0, 1, 0)) << number;
    }
    setting("ImportProfileMode", 2);
    setting("ImportRepPreferedMode", 0);
    setting("FullyExposed", 1);
    EXPECT_EQ(afterSetting(0, 2, 0), Values(0, 2, 0));
    EXPECT_EQ(afterSetting(3, 3, 2), Values(2, 0, 1)) << "not given";
    afterSetting(1, 1, 0);
    Options::Reset();
    EXPECT_EQ(values(), Values(2, 0, 1)) << "what was set is lost";
    variables.set(Options::_envvar_exchange_profile, "1");
    EXPECT_EQ(values(), Values(2, 0, 1)) << "Reset alone reads the environment";
    Options::Reset();
    EXPECT_EQ(values(), Values(1, 0, 1)) << "fully exposed implies no geometry";
}

TEST_F(ExchangeOptions, SwitchAttributesOffByTheVariablesPresence) {
    for (const char* text : {"", "0", "no"}) {
        EXPECT_TRUE(options.ExchangeWithAttributes());
        variables.set(Options::_envvar_no_attributes, text);
        Options::Reset();
        EXPECT_FALSE(options.ExchangeWithAttributes()) << text;
        options.ToggleExchangeWithAttributes();
        EXPECT_TRUE(options.ExchangeWithAttributes()) << text;
        options.ToggleExchangeWithAttributes();
        variables.removeAll();
        EXPECT_FALSE(options.ExchangeWithAttributes());
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
