/// The services as a configuration wants them, for one piece of work.
#pragma once

#include "Bindings.h"
#include "Failure.h"
#include "velkor/configuration/ConfigurationReader.h"
#include "velkor/configuration/PlatformSetup.h"

#include <mutex>
#include <pybind11/pybind11.h>
#include <string>
#include <vector>

namespace velkor::python {

/// The services keep one state per process: one piece of work at a time.
std::mutex& servicesMutex();

/// The configuration file of a path, none for an empty one, with the resource files that lie with the module.
Configuration configurationOf(const std::string& path);

/// Gives what the services tell out as Python warnings.
void warn(const std::vector<std::string>& messages);

/// Does work with the services set up, other Python threads running meanwhile.
template <class Work>
auto withServices(const std::string& configurationPath, Work work) {
    requireNoCall();
    std::vector<std::string> messages;
    const auto inSetup = [&] {
        const pybind11::gil_scoped_release released;
        const std::lock_guard lock(servicesMutex());
        const PlatformSetup setup(configurationOf(configurationPath),
                                  [&](const std::string& message) { messages.push_back(message); });
        return work(setup);
    };
    try {
        auto answer = inSetup();
        warn(messages);
        return answer;
    } catch (const Failure&) {
        // They say why.
        warn(messages);
        throw;
    }
}

} // namespace velkor::python
