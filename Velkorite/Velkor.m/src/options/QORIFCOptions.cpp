#include "QORIFCOptions.h"

#include "velkor/settings/QORDXEnvironmentVariable.h"
#include "velkor/settings/QORSettingRepository.h"

VELKOR_IMPLEMENT_CLASS(QORIFCOptions, QORBaseUnknown, "QORNull", "Velkorite")

namespace {

/// One of the three choices that the environment, the setters or the settings make.
struct Choice {
    const char* variable;
    const char* setting;
    /// The enumeration's highest value.
    std::uint16_t notGiven;
    std::uint16_t fallback;

    /// A number from outside is a value when it lies below "not given"; negative ones do not.
    bool has(short number) const { return static_cast<std::uint16_t>(number) < notGiven; }
    std::uint16_t valueOf(short number) const { return has(number) ? static_cast<std::uint16_t>(number) : fallback; }
    short highest() const { return static_cast<short>(notGiven - 1); }
};

using Options = QORIFCOptions;

constexpr Choice profileChoice{Options::_envvar_exchange_profile, Options::_setting_import_profile,
                               Options::UndefinedProfile, Options::TessellatedProfile};
constexpr Choice geometryChoice{Options::_envvar_geometry_mode, Options::_setting_import_geo_mode,
                                Options::UndefinedGeometry, Options::TessellatedGeometry};
constexpr Choice exposureChoice{Options::_envvar_structure_exposure, Options::_setting_fully_exposed,
                                Options::UndefinedExposure, Options::NotExposed};

/// Takes an option from the environment; false when that has no number for it.
bool force(const Choice& choice, std::uint16_t& option) {
    short number = 0;
    if (!QORDXEnvironmentVariable::GetValue(choice.variable, number)) return false;
    option = choice.valueOf(number);
    return true;
}

/// The option, or the user's setting of the moment when it is not given.
std::uint16_t effective(const Choice& choice, std::uint16_t option) {
    if (option != choice.notGiven) return option;
    auto number = static_cast<short>(choice.notGiven);
    QORIFCOptions::GetSettingValue(choice.setting, number);
    return choice.valueOf(number);
}

/// What a setter does: a forced option stays, unless it is not given after all.
void set(const Choice& choice, std::uint16_t& option, bool isForced, std::uint16_t value) {
    if (option == choice.notGiven || !isForced) option = value;
}

/// What a profile implies; "not given" for a geometry mode that it says nothing of.
std::uint16_t impliedExposure(std::uint16_t profile) {
    return profile == Options::FullyExposedProfile ? Options::FullyExposed : Options::NotExposed;
}
std::uint16_t impliedGeometry(std::uint16_t profile) {
    if (profile == Options::TessellatedProfile) return Options::TessellatedGeometry;
    return profile == Options::FeatureProfile ? Options::FeatureGeometry : Options::UndefinedGeometry;
}

/// The profile that older installations force by exposure and geometry, one by one.
struct OlderProfile {
    std::uint16_t profile = Options::UndefinedProfile;
    std::vector<const char*> variables = {};
};

OlderProfile olderProfile() {
    short exposure = 0, geometry = 0;
    if (!QORDXEnvironmentVariable::GetValue(exposureChoice.variable, exposure)) return {};
    if (exposure == Options::FullyExposed) return {Options::FullyExposedProfile, {exposureChoice.variable}};
    const bool isPair =
        exposure == Options::NotExposed && QORDXEnvironmentVariable::GetValue(geometryChoice.variable, geometry);
    if (!isPair) return {};
    return {geometry == Options::TessellatedGeometry ? Options::TessellatedProfile : Options::FeatureProfile,
            {exposureChoice.variable, geometryChoice.variable}};
}

/// In the order of `force`, the setters and `effective`.
Options::Source sourceOf(const Choice& choice, std::uint16_t option, bool isForced) {
    Options::Source source;
    short number = 0;
    if (QORDXEnvironmentVariable::HasBeenSet(choice.variable)) {
        const bool isNumber = QORDXEnvironmentVariable::GetValue(choice.variable, number);
        if (!isNumber) source.refused.push_back({choice.variable, false, {}, choice.highest()});
        if (isNumber && !choice.has(number))
            source.refused.push_back({choice.variable, false, number, choice.highest()});
    }
    if (isForced) {
        source.origin = Options::Origin::Environment;
        source.names = {choice.variable};
        source.isForced = true;
    } else if (option != choice.notGiven) {
        source.origin = Options::Origin::RunTime;
    } else if (QORIFCOptions::GetSettingValue(choice.setting, number) == S_OK) {
        if (choice.has(number)) {
            source.origin = Options::Origin::Setting;
            source.names = {choice.setting};
        } else {
            source.refused.push_back({choice.setting, true, number, choice.highest()});
        }
    }
    return source;
}

/// Makes what looks like a choice of the run time one of the forced profile.
void derive(Options::Source& source) {
    source.origin = Options::Origin::Environment;
    source.names = {profileChoice.variable};
    source.isDerived = true;
}

} // namespace

QORIFCOptions& QORIFCOptions::GetInstance() {
    static QORIFCOptions instance = [] {
        QORIFCOptions built;
        built.Initialize();
        return built;
    }();
    return instance;
}

void QORIFCOptions::Reset() {
    QORIFCOptions fresh;
    fresh.Initialize();
    GetInstance() = fresh;
}

QORBaseUnknown* QORIFCOptions::CreateItself() {
    return nullptr;
}

QORIFCOptions::ExchangeProfile QORIFCOptions::GetExchangeProfile() const {
    return static_cast<ExchangeProfile>(effective(profileChoice, _exchange_profile));
}

QORIFCOptions::GeometryMode QORIFCOptions::GetGeometryMode() const {
    return static_cast<GeometryMode>(effective(geometryChoice, _geometry_mode));
}

QORIFCOptions::StructureExposure QORIFCOptions::GetStructureExposure() const {
    return static_cast<StructureExposure>(effective(exposureChoice, _structure_exposure));
}

void QORIFCOptions::SetExchangeProfile(ExchangeProfile profile) {
    set(profileChoice, _exchange_profile, _exchange_profile_forced, profile);
}

void QORIFCOptions::SetGeometryMode(GeometryMode mode) {
    set(geometryChoice, _geometry_mode, _geometry_mode_forced, mode);
}

void QORIFCOptions::SetStructureExposure(StructureExposure exposure) {
    set(exposureChoice, _structure_exposure, _structure_exposure_forced, exposure);
}

bool QORIFCOptions::ExchangeWithAttributes() const {
    return _exchange_with_attributes;
}

void QORIFCOptions::ToggleExchangeWithAttributes() {
    _exchange_with_attributes = !_exchange_with_attributes;
}

QORIFCOptions::Source QORIFCOptions::GetExchangeProfileSource() const {
    return sourceOf(profileChoice, _exchange_profile, _exchange_profile_forced);
}

QORIFCOptions::Source QORIFCOptions::GetGeometryModeSource() const {
    Source source = sourceOf(geometryChoice, _geometry_mode, _geometry_mode_forced);
    if (source.origin == Origin::RunTime && _exchange_profile_forced &&
        _geometry_mode == impliedGeometry(_exchange_profile))
        derive(source);
    return source;
}

QORIFCOptions::Source QORIFCOptions::GetStructureExposureSource() const {
    Source source = sourceOf(exposureChoice, _structure_exposure, _structure_exposure_forced);
    if (source.origin == Origin::RunTime && _exchange_profile_forced &&
        _structure_exposure == impliedExposure(_exchange_profile))
        derive(source);
    return source;
}

QORIFCOptions::Source QORIFCOptions::GetAttributesSource() const {
    const bool isSwitchedOff = QORDXEnvironmentVariable::HasBeenSet(_envvar_no_attributes);
    if (_exchange_with_attributes == isSwitchedOff) return {Origin::RunTime};
    return isSwitchedOff ? Source{Origin::Environment, {_envvar_no_attributes}} : Source();
}

std::vector<const char*> QORIFCOptions::GetOlderProfileVariables() {
    return olderProfile().variables;
}

HRESULT QORIFCOptions::GetSettingValue(const QORDXUnicodeString& name, short& value) {
    const QORSettingRepository* repository =
        QORSettingRepository::GetRepository("IFC", 0, QORSettingRepository::ReadAccess, nullptr);
    if (repository == nullptr) return E_FAIL;
    return repository->ReadSetting(name, &value, 1) == 1 ? S_OK : S_FALSE;
}

QORIFCOptions::QORIFCOptions() = default;
QORIFCOptions::QORIFCOptions(const QORIFCOptions& other) = default;
QORIFCOptions& QORIFCOptions::operator=(const QORIFCOptions& other) = default;
QORIFCOptions::~QORIFCOptions() = default;

void QORIFCOptions::Initialize() {
    EnvVarBackwardsCompatibility();
    _exchange_profile_forced = force(profileChoice, _exchange_profile);
    _structure_exposure_forced = force(exposureChoice, _structure_exposure);
    _geometry_mode_forced = force(geometryChoice, _geometry_mode);

    // What a forced profile implies is not forced itself: the setters may still change it.
    if (_exchange_profile_forced) {
        if (_structure_exposure == UndefinedExposure) _structure_exposure = impliedExposure(_exchange_profile);
        if (_geometry_mode == UndefinedGeometry) _geometry_mode = impliedGeometry(_exchange_profile);
    }
    _exchange_with_attributes = !QORDXEnvironmentVariable::HasBeenSet(_envvar_no_attributes);
}

// Put into the environment, where the whole process finds it.
void QORIFCOptions::EnvVarBackwardsCompatibility() {
    if (QORDXEnvironmentVariable::HasBeenSet(_envvar_exchange_profile)) return;
    const OlderProfile older = olderProfile();
    if (older.profile != UndefinedProfile) QORDXEnvironmentVariable::SetValue(_envvar_exchange_profile, older.profile);
}
