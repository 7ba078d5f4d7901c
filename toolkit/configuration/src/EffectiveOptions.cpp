#include "velkor/configuration/EffectiveOptions.h"

#include "QORIFCOptionsFromXCAD.h"
#include "QORIFCOptionsServices.h"
#include "velkor/configuration/ConfigurationTable.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"

#include <iterator>
#include <optional>
#include <span>

namespace velkor {

namespace {

using Origin = EffectiveOption::Origin;

/// One of the three choices that an environment variable, the run time or a setting makes.
struct Choice {
    const char* name;
    const char* variable;
    const char* setting;
    std::span<const char* const> meanings;

    int highest() const { return static_cast<int>(meanings.size()) - 1; }
    // Numbers count without a sign.
    bool has(short number) const { return number >= 0 && number <= highest(); }
};

constexpr const char* profileMeanings[] = {"tessellated", "fully exposed", "feature"};
constexpr const char* geometryMeanings[] = {"other", "tessellated", "feature"};
constexpr const char* exposureMeanings[] = {"not exposed", "fully exposed"};

constexpr Choice profileChoice{"exchange profile", QORIFCOptions::_envvar_exchange_profile,
                               QORIFCOptions::_setting_import_profile, profileMeanings};
constexpr Choice geometryChoice{"geometry mode", QORIFCOptions::_envvar_geometry_mode,
                                QORIFCOptions::_setting_import_geo_mode, geometryMeanings};
constexpr Choice exposureChoice{"structure exposure", QORIFCOptions::_envvar_structure_exposure,
                                QORIFCOptions::_setting_fully_exposed, exposureMeanings};

std::string outOfRange(const Choice& choice, const std::string& what, short number, int used) {
    return what + " is " + std::to_string(number) + ", expected 0 to " + std::to_string(choice.highest()) + "; " +
           std::to_string(used) + " is used";
}

// Whether the environment decides. A variable that cannot be read is remarked upon.
bool fromEnvironment(const Choice& choice, EffectiveOption& option) {
    if (!QORDXEnvironmentVariable::HasBeenSet(choice.variable)) return false;
    short number = 0;
    if (!QORDXEnvironmentVariable::GetValue(choice.variable, number)) {
        option.remarks.push_back(std::string(choice.variable) + " holds no number and is ignored");
        return false;
    }
    option.origin = Origin::Environment;
    option.isForced = true;
    option.sources = {choice.variable};
    if (!choice.has(number)) option.remarks.push_back(outOfRange(choice, choice.variable, number, option.value));
    return true;
}

void fromSetting(const Choice& choice, EffectiveOption& option) {
    short number = 0;
    if (QORIFCOptions::GetSettingValue(choice.setting, number) != S_OK) return;
    if (choice.has(number)) {
        option.origin = Origin::Setting;
        option.sources = {choice.setting};
    } else {
        option.remarks.push_back(
            outOfRange(choice, std::string("the setting ") + choice.setting, number, option.value));
    }
}

bool isTransferAll(const PlatformSetup::ConversionOption& option) {
    return QORUnicodeString(transferAllOption).Compare(QORUnicodeString(std::string_view(option.name))) != 0;
}

EffectiveOption exchangeProfile(const PlatformSetup& setup) {
    const int value = QORIFCOptions::GetInstance().GetExchangeProfile();
    EffectiveOption option{profileChoice.name, value, profileMeanings[value]};
    if (fromEnvironment(profileChoice, option)) {
        if (!setup.isProfileVariableDerived()) return option;
        // The older variables, of which the geometry mode counts only beside "not exposed".
        option.sources = {exposureChoice.variable};
        short exposure = 0;
        if (QORDXEnvironmentVariable::GetValue(exposureChoice.variable, exposure) && exposure == 0)
            option.sources.emplace_back(geometryChoice.variable);
        return option;
    }
    for (const auto& given : setup.conversionOptions()) {
        if (given.outcome != PlatformSetup::Outcome::ActedUpon || !isTransferAll(given)) continue;
        option.origin = Origin::RunTime;
        option.sources = {given.name};
    }
    if (option.origin == Origin::Fallback) fromSetting(profileChoice, option);
    return option;
}

EffectiveOption choiceBeside(const EffectiveOption& profile, const Choice& choice, int value, bool profileImplies) {
    EffectiveOption option{choice.name, value, choice.meanings[static_cast<std::size_t>(value)]};
    if (fromEnvironment(choice, option)) return option;
    if (profile.isForced && profileImplies) {
        option.origin = Origin::Environment;
        option.isDerived = true;
        option.sources = profile.sources;
    } else {
        fromSetting(choice, option);
    }
    return option;
}

EffectiveOption attributes() {
    const bool exchanged = QORIFCOptions::GetInstance().ExchangeWithAttributes();
    EffectiveOption option{"attributes", exchanged ? 1 : 0, exchanged ? "exchanged" : "not exchanged"};
    if (QORDXEnvironmentVariable::HasBeenSet(QORIFCOptions::_envvar_no_attributes)) {
        option.origin = Origin::Environment;
        option.sources = {QORIFCOptions::_envvar_no_attributes};
    }
    return option;
}

EffectiveOption customPropertySets() {
    const bool required = QORIFCOptionsServices::getInstance()->IsCustomPropertySetsRequired() != 0;
    return {"custom property sets", required ? 1 : 0, required ? "required" : "not required"};
}

EffectiveOption versionMapping(const PlatformSetup& setup) {
    const bool off = QORIFCOptionsFromXCAD::GetInstance()->GetValueIFCVersionMapping() == S_OK;
    EffectiveOption option{"version mapping", off ? 0 : 1, off ? "off" : "on"};
    for (const auto& given : setup.conversionOptions()) {
        if (given.name != disableVersionMappingOption) continue;
        option.origin = Origin::RunTime;
        option.sources = {given.name};
    }
    return option;
}

} // namespace

std::vector<EffectiveOption> effectiveOptions(const PlatformSetup& setup) {
    const QORIFCOptions& services = QORIFCOptions::GetInstance();
    const EffectiveOption profile = exchangeProfile(setup);
    // A fully exposed profile says nothing of the geometry.
    const bool impliesGeometry = profile.value != QORIFCOptions::FullyExposedProfile;
    return {profile,
            choiceBeside(profile, geometryChoice, services.GetGeometryMode(), impliesGeometry),
            choiceBeside(profile, exposureChoice, services.GetStructureExposure(), true),
            attributes(),
            customPropertySets(),
            versionMapping(setup)};
}

const char* name(EffectiveOption::Origin origin) {
    constexpr const char* names[] = {"environment", "run_time", "setting", "fallback"};
    return names[static_cast<std::size_t>(origin)];
}

const char* outcomeName(const PlatformSetup::ConversionOption& option, const std::vector<EffectiveOption>& options) {
    switch (option.outcome) {
    case PlatformSetup::Outcome::ActedUpon:
        return isTransferAll(option) && options.front().isForced ? "overruled" : "acted_upon";
    case PlatformSetup::Outcome::Kept:
        return "kept";
    case PlatformSetup::Outcome::LeftOut:
        return "left_out";
    }
    return "";
}

} // namespace velkor
