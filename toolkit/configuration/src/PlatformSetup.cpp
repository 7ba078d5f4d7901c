#include "velkor/configuration/PlatformSetup.h"

#include "QORIFCMsgLoggingServices.h"
#include "QORIFCOptionsFromXCAD.h"
#include "QORIFCOptionsServices.h"
#include "QORIFCPSetQtoValidationService.h"
#include "ResourceKinds.h"
#include "velkor/configuration/ConfigurationTable.h"
#include "velkor/files/Paths.h"
#include "velkor/files/QORSysRTVWalker.h"
#include "velkor/knowledge/TypeDictionary.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"

#include <algorithm>
#include <filesystem>
#include <new>

namespace velkor {

namespace {

// What tells a user of a fault, not what follows the services step by step.
constexpr int logLevel = 1;

QORUnicodeString unicode(const std::string& text) {
    return QORUnicodeString(std::string_view(text));
}

QORListValQORUnicodeString list(const std::vector<std::string>& texts) {
    QORListValQORUnicodeString result;
    for (const std::string& text : texts) result.Append(unicode(text));
    return result;
}

void setLog(QORExchangeErr* log) {
    exchangelog::setExchangeErr(log);
    // The services keep the log that they have seen first.
    QORIFCMsgLoggingServices::SetLogError();
}

/// A folder with definitions of its own is one view, whatever else is in it.
bool hasViewsByRelease(const std::string& folder) {
    const std::filesystem::path path(files::nativePath(unicode(folder)));
    std::error_code none;
    if (std::filesystem::is_directory(path / propertySetResource.subFolder, none)) return false;
    return std::ranges::any_of(definitionReleases, [&](std::string_view release) {
        return std::filesystem::is_directory(path / release, none);
    });
}

QORISetupDataFinder_var finder(const Configuration& configuration) {
    auto* data = objectmodeler::newComponent<files::SetupData>();
    for (const auto& resource : configuration.setupData) data->set(unicode(resource.key), list(resource.paths));
    return QORISetupDataFinder_var::adopt(data);
}

} // namespace

PlatformSetup::PlatformSetup(const Configuration& configuration, Tell tell)
    : _log(std::move(tell)), _logBefore(GetExchangeErr()),
      _finderBefore(QORSetupDataGlobalFunctions::GetSetupDataFinder()), _runtimeViewBefore(files::runtimeView()) {
    setLog(&_log);
    setFolders(QORIFCDXFileServices::CollectionStandardVariables[0], configuration.collectionStandard);
    setFolders(QORIFCDXFileServices::CollectionStandardVariables[1], configuration.defaultCollectionStandard);
    setSettings(configuration);
    files::setSetupDataFinder(finder(configuration));
    setRuntimeView(configuration);
    useShippedStandard(configuration);
    setKnowledgeTypes(configuration);
    for (const std::string& name : configuration.customPropertySets) {
        QORUnicodeString upper = unicode(name);
        upper.ToUpper();
        auto* service = QORIFCPSetQtoValidationService::getInstance();
        if (!service->IsCustomPsetQto(upper)) service->InitializeCustomPSetQtoList(upper);
    }

    const bool profileBefore = QORDXEnvironmentVariable::HasBeenSet(QORIFCOptions::_envvar_exchange_profile);
    QORIFCOptions::Reset();
    _profileVariableIsDerived =
        !profileBefore && QORDXEnvironmentVariable::HasBeenSet(QORIFCOptions::_envvar_exchange_profile);
    // Behind the reset, which forgets what conversion options have set.
    setConversionOptions(configuration);
}

PlatformSetup::~PlatformSetup() {
    // What lacks the memory to be taken back stays; nothing else suffers from it.
    const auto takeBack = [](auto step) {
        try {
            step();
        } catch (const std::bad_alloc&) {
            return;
        }
    };
    QORIFCOptionsFromXCAD::DeleteInstance();
    takeBack([] { QORIFCOptionsServices::getInstance()->Clear(); });
    if (_hasKnowledgeTypes) knowledge::removeTypes();
    takeBack([this] { files::setRuntimeView(_runtimeViewBefore); });
    files::setSetupDataFinder(_finderBefore);
    for (const auto& [name, before] : _repositoriesBefore) {
        takeBack([&, &name = name, &before = before] {
            if (before)
                settings::repository(unicode(name)) = *before;
            else
                settings::removeRepository(unicode(name));
        });
    }
    for (const std::string& variable : _variables) takeBack([&] { settings::removeVariable(unicode(variable)); });
    takeBack([] { QORIFCOptions::Reset(); });
    // The reset may have derived it as well.
    if (_profileVariableIsDerived) takeBack([] { settings::removeVariable(QORIFCOptions::_envvar_exchange_profile); });
    setLog(_logBefore);
}

// The environment is stronger than the configuration.
void PlatformSetup::setFolders(const char* variable, const std::optional<std::vector<std::string>>& folders) {
    if (!folders || QORDXEnvironmentVariable::HasBeenSet(variable)) return;
    std::string value;
    for (const std::string& folder : *folders) value += (value.empty() ? "" : ";") + folder;
    settings::setVariable(variable, unicode(value));
    _variables.emplace_back(variable);
}

// The shipped views are the default: what a user names takes their place. The services know one release, so of a folder
// with a view for each they are given one.
void PlatformSetup::setRuntimeView(const Configuration& configuration) {
    _definitionsRelease = configuration.definitionsRelease;
    std::vector<std::string> views;
    const auto viewsByRelease = [&](const std::string& folder) {
        _runtimeViewsByRelease = folder;
        return views.emplace_back(folder + '/' + _definitionsRelease);
    };
    if (!configuration.runtimeView && !configuration.shippedResources.empty())
        _shippedRuntimeView = viewsByRelease(configuration.shippedResources + "/runtime");
    for (const std::string& folder : configuration.runtimeView.value_or(std::vector<std::string>())) {
        if (_runtimeViewsByRelease.empty() && hasViewsByRelease(folder)) {
            viewsByRelease(folder);
        } else {
            views.push_back(folder);
            _ownRuntimeViews.push_back(folder);
        }
    }
    files::setRuntimeView(list(views));
}

// What a user names takes its place.
void PlatformSetup::useShippedStandard(const Configuration& configuration) {
    if (configuration.shippedResources.empty()) return;
    const char* variable = QORIFCDXFileServices::CollectionStandardVariables[1];
    const bool isNamed =
        configuration.defaultCollectionStandard || QORDXEnvironmentVariable::HasBeenSet(QORUnicodeString(variable));
    // The variable cannot name a folder with a separator in its path.
    if (isNamed || configuration.shippedResources.find(';') != std::string::npos) return;
    _shippedStandard = configuration.shippedResources + "/standard";
    setFolders(variable, std::vector<std::string>{_shippedStandard});
}

void PlatformSetup::setKnowledgeTypes(const Configuration& configuration) {
    for (const auto& type : configuration.knowledgeTypes) {
        const auto kind = type.isSpecialization ? knowledge::TypeKind::Specialization : knowledge::TypeKind::Knowledge;
        _hasKnowledgeTypes |= knowledge::addType({type.name, kind, type.parent, type.isAbstract});
    }
}

void PlatformSetup::setSettings(const Configuration& configuration) {
    for (const auto& setting : configuration.settings) {
        const auto sameName = [&](const auto& saved) { return saved.first == setting.repository; };
        if (std::ranges::none_of(_repositoriesBefore, sameName)) {
            const auto* before = QORSettingRepository::GetRepository(unicode(setting.repository), 0,
                                                                     QORSettingRepository::ReadAccess, nullptr);
            auto& saved = _repositoriesBefore.emplace_back(setting.repository, std::nullopt);
            if (before != nullptr) saved.second = *before;
        }
        settings::repository(unicode(setting.repository)).WriteSetting(unicode(setting.name), &setting.value, 1);
    }
}

void PlatformSetup::setConversionOptions(const Configuration& configuration) {
    QORIFCOptionsFromXCAD::DeleteInstance();
    QORIFCOptionsFromXCAD* services = QORIFCOptionsFromXCAD::GetInstance();
    for (const auto& [name, value] : configuration.conversionOptions) {
        // One by one, so that each has an answer of its own.
        services->SetXCADConversionOptionsForIFC(list({name}), list({value}));
        using Effect = QORIFCOptionsFromXCAD::Effect;
        const Effect effect = QORIFCOptionsFromXCAD::GetEffect(unicode(name), unicode(value));
        const Outcome outcome = effect == Effect::LeftOut ? Outcome::LeftOut
                                : effect == Effect::None  ? Outcome::Kept
                                                          : Outcome::ActedUpon;
        _conversionOptions.push_back({name, value, outcome});
    }
}

PlatformSetup::Log::Log(Tell tell) : MessageLog(logLevel), _tell(std::move(tell)) {}

int PlatformSetup::Log::PutMsgErr(QORUnicodeString* text, int* code, QORString first, QORString second, int level,
                                  QORUnicodeString* extra, int* extraCode) {
    const int result = MessageLog::PutMsgErr(text, code, std::move(first), std::move(second), level, extra, extraCode);
    write();
    return result;
}

int PlatformSetup::Log::PutUnicodeMessage(const QORUnicodeString& message, short level, short kind) {
    const int result = MessageLog::PutUnicodeMessage(message, level, kind);
    write();
    return result;
}

void PlatformSetup::Log::write() {
    _hasWritten |= !messages().empty();
    for (const exchangelog::Message& message : messages()) {
        if (_tell) _tell(message.text);
    }
    clear();
}

} // namespace velkor
