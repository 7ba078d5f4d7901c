#include "CommandContext.h"

#include "terminal/ProgressBar.h"
#include "velkor/configuration/ConfigurationReader.h"
#include "velkor/sdai/Model.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"

namespace velkor::host {

void CommandContext::complete(const Command& command, std::function<void()> run, const std::string& thirdFormat) {
    std::vector<std::string> formats{"text", "json"};
    if (!thirdFormat.empty()) formats.push_back(thirdFormat);
    command.addOption("--format", format, "text for people, json for programs; text unless told")
        .valueName("text|json" + (thirdFormat.empty() ? "" : '|' + thirdFormat))
        .oneOf(formats);
    command
        .addOption("--config", configurationFile,
                   "Configuration file, - for standard input; the one VELKOR_CONFIG names unless told")
        .valueName("FILE");
    command.onUse([this, run = std::move(run)] {
        if (readConfiguration()) run();
    });
}

bool CommandContext::readConfiguration() {
    std::string path = configurationFile;
    if (path.empty()) path = QORGetEnv(configurationVariable).utf8();
    if (path.empty()) {
        configuration.shippedResources = shippedResources;
        return true;
    }
    auto reading = velkor::readConfiguration(path, in);
    if (!reading) reading = ConfigurationReading{{}, {reading.error().message}};
    for (const std::string& error : reading->errors) reportUnreadable(error);
    if (!reading->errors.empty() && configurationFile.empty())
        reportUnreadable(std::string(configurationVariable) + " names that configuration");
    configuration = std::move(reading->configuration);
    configuration.shippedResources = shippedResources;
    return reading->errors.empty();
}

void CommandContext::reportUnreadable(const std::string& reason) {
    err << "velkor: " << reason << '\n';
    status = Unreadable;
}

Progress CommandContext::progress() const {
    return [bar = std::make_shared<ProgressBar>(err, interactive)](const ProgressStep& step) {
        bar->show(step.work, step.done, step.total);
        return true;
    };
}

PlatformSetup::Tell CommandContext::tell() const {
    return [sink = err](const std::string& message) { sink << "velkor: " << message << '\n'; };
}

std::unique_ptr<sdai::Model> CommandContext::openModel(const std::string& path) {
    auto model = sdai::Model::open(path);
    if (model) return std::move(*model);
    reportUnreadable(model.error().message);
    return nullptr;
}

} // namespace velkor::host
