#include "CommandContext.h"

#include "terminal/ProgressBar.h"
#include "velkor/configuration/ConfigurationReader.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"
#include "velkor/text/Wording.h"

#include <memory>
#include <new>

namespace velkor::host {

void CommandContext::complete(const Command& command, std::function<void()> run,
                              const std::vector<std::string>& moreFormats) {
    std::vector<std::string> formats{"text", "json"};
    formats.insert(formats.end(), moreFormats.begin(), moreFormats.end());
    command.addOption("--format", format, "text for people, json for programs; text unless told")
        .valueName(text::joined(formats, "|"))
        .oneOf(formats);
    command
        .addOption("--config", configurationFile,
                   "Configuration file, - for standard input; the one VELKOR_CONFIG names unless told")
        .valueName("FILE");
    command.onUse([this, run = std::move(run)] {
        // Programs read the other formats, and there a line is a line.
        if (format != "text") out = out.unfitted();
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

void CommandContext::guard(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::bad_alloc&) {
        reportUnreadable("out of memory");
    } catch (const std::exception& error) {
        reportUnreadable(error.what());
    }
}

void CommandContext::reportBadUsage(const std::string& reason) {
    err << "velkor: " << reason << '\n';
    status = BadUsage;
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

} // namespace velkor::host
