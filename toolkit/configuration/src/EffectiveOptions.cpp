#include "velkor/configuration/EffectiveOptions.h"

#include "QORIFCOptionsFromXCAD.h"
#include "QORIFCOptionsServices.h"

#include <span>
#include <utility>

namespace velkor {

namespace {

using Effect = QORIFCOptionsFromXCAD::Effect;
using Origin = EffectiveOption::Origin;
using Source = QORIFCOptions::Source;

constexpr const char* profileMeanings[] = {"tessellated", "fully exposed", "feature"};
constexpr const char* geometryMeanings[] = {"other", "tessellated", "feature"};
constexpr const char* exposureMeanings[] = {"not exposed", "fully exposed"};
constexpr const char* attributeMeanings[] = {"not exchanged", "exchanged"};

Effect effectOf(const PlatformSetup::ConversionOption& option) {
    return QORIFCOptionsFromXCAD::GetEffect(QORUnicodeString(std::string_view(option.name)),
                                            QORUnicodeString(std::string_view(option.value)));
}

std::string remark(const QORIFCOptions::Refused& refused, int used) {
    const std::string what = (refused.isSetting ? "the setting " : "") + std::string(refused.name);
    if (!refused.number) return what + " holds no number and is ignored";
    return what + " is " + std::to_string(*refused.number) + ", expected 0 to " + std::to_string(refused.highest) +
           "; " + std::to_string(used) + " is used";
}

EffectiveOption optionFrom(const Source& source, const char* name, int value, std::span<const char* const> meanings) {
    EffectiveOption option{name, value, meanings[static_cast<std::size_t>(value)], source.origin};
    option.sources.assign(source.names.begin(), source.names.end());
    option.isDerived = source.isDerived;
    option.isForced = source.isForced;
    for (const QORIFCOptions::Refused& refused : source.refused) option.remarks.push_back(remark(refused, value));
    return option;
}

/// The conversion options that act upon the same, of which the last one counts.
std::vector<std::string> conversionOption(const PlatformSetup& setup, Effect effect) {
    std::vector<std::string> result;
    for (const auto& given : setup.conversionOptions())
        if (effectOf(given) == effect) result = {given.name};
    return result;
}

EffectiveOption customPropertySets() {
    const bool required = QORIFCOptionsServices::getInstance()->IsCustomPropertySetsRequired() != 0;
    return {"custom property sets", required ? 1 : 0, required ? "required" : "not required"};
}

EffectiveOption versionMapping(const PlatformSetup& setup) {
    const bool off = QORIFCOptionsFromXCAD::GetInstance()->GetValueIFCVersionMapping() == S_OK;
    EffectiveOption option{"version mapping", off ? 0 : 1, off ? "off" : "on"};
    option.sources = conversionOption(setup, Effect::VersionMapping);
    if (!option.sources.empty()) option.origin = Origin::RunTime;
    return option;
}

} // namespace

std::vector<EffectiveOption> effectiveOptions(const PlatformSetup& setup) {
    const QORIFCOptions& services = QORIFCOptions::GetInstance();
    EffectiveOption profile = optionFrom(services.GetExchangeProfileSource(), "exchange profile",
                                         services.GetExchangeProfile(), profileMeanings);
    EffectiveOption geometry =
        optionFrom(services.GetGeometryModeSource(), "geometry mode", services.GetGeometryMode(), geometryMeanings);
    EffectiveOption exposure = optionFrom(services.GetStructureExposureSource(), "structure exposure",
                                          services.GetStructureExposure(), exposureMeanings);
    if (profile.origin == Origin::RunTime) profile.sources = conversionOption(setup, Effect::ExchangeProfile);
    if (setup.isProfileVariableDerived()) {
        const auto older = QORIFCOptions::GetOlderProfileVariables();
        profile.sources.assign(older.begin(), older.end());
        for (EffectiveOption* beside : {&geometry, &exposure})
            if (beside->isDerived) beside->sources = profile.sources;
    }
    return {std::move(profile),
            std::move(geometry),
            std::move(exposure),
            optionFrom(services.GetAttributesSource(), "attributes", services.ExchangeWithAttributes() ? 1 : 0,
                       attributeMeanings),
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
        return effectOf(option) == Effect::ExchangeProfile && options.front().isForced ? "overruled" : "acted_upon";
    case PlatformSetup::Outcome::Kept:
        return "kept";
    case PlatformSetup::Outcome::LeftOut:
        return "left_out";
    }
    return "";
}

} // namespace velkor
