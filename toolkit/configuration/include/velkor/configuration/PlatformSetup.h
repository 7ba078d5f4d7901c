/// The platform as a configuration wants it, for as long as the object lives: variables of the environment,
/// settings, setup data, runtime view, exchange log, exchange options, conversion options, knowledge types, names of
/// custom property sets. The destructor takes everything back but the names, which the services keep for the life of
/// the process. Of several objects the last one made must be the first to go.
///
///     const PlatformSetup setup(configuration, [](const std::string& line) { std::cerr << line << '\n'; });
///     … call the services …
#pragma once

#include "velkor/configuration/Configuration.h"
#include "velkor/exchangelog/MessageLog.h"
#include "velkor/files/QORISetupDataFinder.h"
#include "velkor/settings/QORSettingRepository.h"
#include "velkor/ToolkitExport.h"

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace velkor {

class VELKOR_TOOLKIT_API PlatformSetup {
public:
    /// What became of a conversion option.
    enum class Outcome { ActedUpon, Kept, LeftOut };
    /// A conversion option and what the services made of it.
    struct ConversionOption {
        std::string name;
        std::string value;
        Outcome outcome;
    };

    /// Takes one message of the services, a line without its end. May be empty.
    using Tell = std::function<void(const std::string& message)>;

    /// The services' messages of level 0 and 1 go to `tell`. A setup-data finder is there afterwards
    /// whatever the configuration says: some services look nowhere else without one.
    explicit PlatformSetup(const Configuration& configuration, Tell tell = {});
    ~PlatformSetup();
    PlatformSetup(const PlatformSetup&) = delete;
    PlatformSetup& operator=(const PlatformSetup&) = delete;

    /// In the order of the configuration.
    const std::vector<ConversionOption>& conversionOptions() const noexcept { return _conversionOptions; }
    /// True when the services have told of a fault, such as a resource file that cannot be read.
    bool hasToldErrors() const noexcept { return _log.hasWritten(); }
    /// True when the services, not the user, have put the exchange profile into the environment.
    bool isProfileVariableDerived() const noexcept { return _profileVariableIsDerived; }
    /// Runtime views of the user's own, the strongest first: their definitions hold for every release.
    const std::vector<std::string>& ownRuntimeViews() const noexcept { return _ownRuntimeViews; }
    /// The folder with a runtime view for each release that is in force: the shipped one, or the first such folder of
    /// those that are configured. Empty for none.
    const std::string& runtimeViewsByRelease() const noexcept { return _runtimeViewsByRelease; }
    /// The release whose view of that folder the services are given.
    const std::string& definitionsRelease() const noexcept { return _definitionsRelease; }
    /// The folders of shipped resources that are in force; empty when something else has been configured.
    const std::string& shippedRuntimeView() const noexcept { return _shippedRuntimeView; }
    /// The folder that stands behind all others; empty for none.
    const std::string& shippedStandard() const noexcept { return _shippedStandard; }

private:
    class Log : public exchangelog::MessageLog {
    public:
        VELKOR_TOOLKIT_LOCAL explicit Log(Tell tell);
        int PutMsgErr(QORUnicodeString* text, int* code, QORString first, QORString second, int level,
                      QORUnicodeString* extra, int* extraCode) override;
        int PutUnicodeMessage(const QORUnicodeString& message, short level, short kind) override;

        bool hasWritten() const noexcept { return _hasWritten; }

    private:
        VELKOR_TOOLKIT_LOCAL void write();
        Tell _tell;
        bool _hasWritten = false;
    };

    VELKOR_TOOLKIT_LOCAL void setFolders(const char* variable, const std::optional<std::vector<std::string>>& folders);
    VELKOR_TOOLKIT_LOCAL void setRuntimeView(const Configuration& configuration);
    VELKOR_TOOLKIT_LOCAL void useShippedStandard(const Configuration& configuration);
    VELKOR_TOOLKIT_LOCAL void setKnowledgeTypes(const Configuration& configuration);
    VELKOR_TOOLKIT_LOCAL void setSettings(const Configuration& configuration);
    VELKOR_TOOLKIT_LOCAL void setConversionOptions(const Configuration& configuration);

    Log _log;
    QORExchangeErr* _logBefore;
    std::vector<std::string> _variables;
    std::vector<std::pair<std::string, std::optional<QORSettingRepository>>> _repositoriesBefore;
    QORISetupDataFinder_var _finderBefore;
    QORListValQORUnicodeString _runtimeViewBefore;
    std::vector<ConversionOption> _conversionOptions;
    bool _profileVariableIsDerived = false;
    bool _hasKnowledgeTypes = false;
    std::vector<std::string> _ownRuntimeViews;
    std::string _runtimeViewsByRelease;
    std::string _definitionsRelease;
    std::string _shippedRuntimeView;
    std::string _shippedStandard;
};

} // namespace velkor
