#include "QORIFCOptions.h"

#include "velkor/settings/QORDXEnvironmentVariable.h"
#include "velkor/settings/QORSettingRepository.h"

VELKOR_IMPLEMENT_CLASS(QORIFCOptions, QORBaseUnknown, "QORNull", "Velkorite")

namespace {

/// A number from outside as the value of an option. "Not given" is the enumeration's highest value:
/// what does not lie below it, negative numbers included, is replaced.
std::uint16_t optionValue(short number, std::uint16_t notGiven, std::uint16_t replacement) {
    const auto value = static_cast<std::uint16_t>(number);
    return value < notGiven ? value : replacement;
}

/// Takes an option from the environment; false when that has no number for it.
bool force(const char* variable, std::uint16_t notGiven, std::uint16_t replacement, std::uint16_t& option) {
    short number = 0;
    if (!QORDXEnvironmentVariable::GetValue(variable, number)) return false;
    option = optionValue(number, notGiven, replacement);
    return true;
}

/// The option, or the user's setting of the moment when it is not given.
std::uint16_t effective(std::uint16_t option, const char* setting, std::uint16_t notGiven, std::uint16_t fallback) {
    if (option != notGiven) return option;
    auto number = static_cast<short>(notGiven);
    QORIFCOptions::GetSettingValue(setting, number);
    return optionValue(number, notGiven, fallback);
}

/// What a setter does: a forced option stays, unless it is not given after all.
void set(std::uint16_t& option, bool isForced, std::uint16_t notGiven, std::uint16_t value) {
    if (option == notGiven || !isForced) option = value;
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
    return static_cast<ExchangeProfile>(
        effective(_exchange_profile, _setting_import_profile, UndefinedProfile, TessellatedProfile));
}

QORIFCOptions::GeometryMode QORIFCOptions::GetGeometryMode() const {
    return static_cast<GeometryMode>(
        effective(_geometry_mode, _setting_import_geo_mode, UndefinedGeometry, TessellatedGeometry));
}

QORIFCOptions::StructureExposure QORIFCOptions::GetStructureExposure() const {
    return static_cast<StructureExposure>(
        effective(_structure_exposure, _setting_fully_exposed, UndefinedExposure, NotExposed));
}

void QORIFCOptions::SetExchangeProfile(ExchangeProfile profile) {
    set(_exchange_profile, _exchange_profile_forced, UndefinedProfile, profile);
}

void QORIFCOptions::SetGeometryMode(GeometryMode mode) {
    set(_geometry_mode, _geometry_mode_forced, UndefinedGeometry, mode);
}

void QORIFCOptions::SetStructureExposure(StructureExposure exposure) {
    set(_structure_exposure, _structure_exposure_forced, UndefinedExposure, exposure);
}

bool QORIFCOptions::ExchangeWithAttributes() const {
    return _exchange_with_attributes;
}

void QORIFCOptions::ToggleExchangeWithAttributes() {
    _exchange_with_attributes = !_exchange_with_attributes;
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
    _exchange_profile_forced = force(_envvar_exchange_profile, UndefinedProfile, TessellatedProfile, _exchange_profile);
    _structure_exposure_forced = force(_envvar_structure_exposure, UndefinedExposure, NotExposed, _structure_exposure);
    _geometry_mode_forced = force(_envvar_geometry_mode, UndefinedGeometry, TessellatedGeometry, _geometry_mode);

    // What a forced profile implies is not forced itself: the setters may still change it.
    if (_exchange_profile_forced) {
        if (_structure_exposure == UndefinedExposure) {
            _structure_exposure = _exchange_profile == FullyExposedProfile ? FullyExposed : NotExposed;
        }
        if (_geometry_mode == UndefinedGeometry) {
            if (_exchange_profile == TessellatedProfile) _geometry_mode = TessellatedGeometry;
            if (_exchange_profile == FeatureProfile) _geometry_mode = FeatureGeometry;
        }
    }
    _exchange_with_attributes = !QORDXEnvironmentVariable::HasBeenSet(_envvar_no_attributes);
}

// Older installations force exposure and geometry one by one. The profile that the two amount to is
// put into the environment, where the whole process finds it.
void QORIFCOptions::EnvVarBackwardsCompatibility() {
    if (QORDXEnvironmentVariable::HasBeenSet(_envvar_exchange_profile)) return;
    short exposure = 0;
    if (!QORDXEnvironmentVariable::GetValue(_envvar_structure_exposure, exposure)) return;
    if (exposure == FullyExposed) {
        QORDXEnvironmentVariable::SetValue(_envvar_exchange_profile, FullyExposedProfile);
    } else if (exposure == NotExposed) {
        short geometry = 0;
        if (!QORDXEnvironmentVariable::GetValue(_envvar_geometry_mode, geometry)) return;
        QORDXEnvironmentVariable::SetValue(_envvar_exchange_profile,
                                           geometry == TessellatedGeometry ? TessellatedProfile : FeatureProfile);
    }
}
