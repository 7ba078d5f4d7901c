/// The choices that steer an IFC exchange, one record per process.
///
///     QORIFCOptions& options = QORIFCOptions::GetInstance();
///     if (options.GetExchangeProfile() == QORIFCOptions::FeatureProfile) …
///
/// Profile, geometry mode and structure exposure each come from the strongest of three sources that
/// gives one: an environment variable, read when the record is built or reset, which forces the value;
/// the setter; the user's setting in the settings repository "IFC", read anew at every call. The
/// attribute switch comes from an environment variable alone and can be toggled.
///
/// Only the first GetInstance may be called by several threads at once.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/text/QORDXUnicodeString.h"

#include <cstdint>
#include <optional>
#include <vector>

class VELKOR_API QORIFCOptions : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// What an exchange is made for.
    enum ExchangeProfile : std::uint16_t {
        TessellatedProfile = 0,  ///< everything into one tessellated representation
        FullyExposedProfile = 1, ///< the spatial structure fully exposed
        FeatureProfile = 2,      ///< transfer as feature representation
        UndefinedProfile = 3,    ///< not given: the user's setting decides
    };
    /// How shapes are exchanged.
    enum GeometryMode : std::uint16_t {
        OtherGeometry = 0, ///< a third representation; no profile implies it
        TessellatedGeometry = 1,
        FeatureGeometry = 2,
        UndefinedGeometry = 3, ///< not given: the user's setting decides
    };
    /// How much of the structure becomes objects of its own.
    enum StructureExposure : std::uint16_t {
        NotExposed = 0,
        FullyExposed = 1,
        UndefinedExposure = 2, ///< not given: the user's setting decides
    };

    /// Environment variables: the first three hold a number and force its option, the last one
    /// switches attributes off by being there.
    static constexpr const char* _envvar_exchange_profile = "ProfilePrefered_FORCETST";
    static constexpr const char* _envvar_structure_exposure = "IfcFullyExposed_FORCETST";
    static constexpr const char* _envvar_geometry_mode = "IfcGeometryMode_FORCETST";
    static constexpr const char* _envvar_no_attributes = "IfcDONOTImportAttributes";
    /// Settings, a number each, in the repository "IFC".
    static constexpr const char* _setting_import_profile = "ImportProfileMode";
    static constexpr const char* _setting_fully_exposed = "FullyExposed";
    static constexpr const char* _setting_import_geo_mode = "ImportRepPreferedMode";

    /// The one record, built on first use and gone when the library is unloaded.
    static QORIFCOptions& GetInstance();
    /// Reads the environment anew; what the setters have set is lost.
    static void Reset();
    /// Null: the object modeler makes no second record.
    static QORBaseUnknown* CreateItself();

    /// The values in effect, never the one that means "not given". Without any source: tessellated
    /// profile, tessellated geometry, not exposed. A setting out of range counts as none.
    ExchangeProfile GetExchangeProfile() const;
    GeometryMode GetGeometryMode() const;
    StructureExposure GetStructureExposure() const;

    /// Silently without effect where the environment forces the value. "Not given" hands the choice
    /// back to the user's setting.
    void SetExchangeProfile(ExchangeProfile profile);
    void SetGeometryMode(GeometryMode mode);
    void SetStructureExposure(StructureExposure exposure);

    /// Whether IFC attributes are exchanged.
    bool ExchangeWithAttributes() const;
    void ToggleExchangeWithAttributes(); ///< Switches the exchange of attributes on or off.

    /// Where a value comes from.
    enum class Origin { Environment, RunTime, Setting, Fallback };
    /// What was there but could not be taken as it is.
    struct Refused {
        /// Of the variable or the setting.
        const char* name;
        bool isSetting;
        /// Out of range; nothing when a variable holds no number and is ignored.
        std::optional<short> number;
        /// The range begins with 0.
        short highest;
    };
    /// Where the value in effect comes from.
    struct Source {
        Origin origin = Origin::Fallback;
        /// The variables or the setting; empty for the others.
        std::vector<const char*> names = {};
        /// True when the setter has no effect.
        bool isForced = false;
        /// True when it is what the forced profile implies. The setter may still change it.
        bool isDerived = false;
        std::vector<Refused> refused = {};
    };
    Source GetExchangeProfileSource() const;   ///< Where the exchange profile comes from.
    Source GetGeometryModeSource() const;      ///< Where the geometry mode comes from.
    Source GetStructureExposureSource() const; ///< Where the structure exposure comes from.
    /// At run time when it has been toggled.
    Source GetAttributesSource() const;
    /// The variables that amount to a profile and give the profile's its number where that is not set; empty when they
    /// amount to none.
    static std::vector<const char*> GetOlderProfileVariables();

    /// Reads a setting of the repository "IFC". S_OK; S_FALSE when the repository has no such
    /// setting; E_FAIL when there is no repository. `value` is touched by S_OK alone.
    static HRESULT GetSettingValue(const QORDXUnicodeString& name, short& value);

    ~QORIFCOptions() override;

private:
    QORIFCOptions();
    QORIFCOptions(const QORIFCOptions& other);
    QORIFCOptions& operator=(const QORIFCOptions& other);

    void Initialize();
    void EnvVarBackwardsCompatibility();

    std::uint16_t _exchange_profile = UndefinedProfile;
    bool _exchange_profile_forced = false;
    std::uint16_t _structure_exposure = UndefinedExposure;
    bool _structure_exposure_forced = false;
    std::uint16_t _geometry_mode = UndefinedGeometry;
    bool _geometry_mode_forced = false;
    bool _exchange_with_attributes = true;
};
