/// What the tests of configured commands share.
#pragma once

#include "ConfiguredTest.h"
#include "ResourceKinds.h"
#include "TemporaryFolder.h"
#include "TestSupport.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

using test::TemporaryFolder;

/// Without the program's own variables as well.
class ConfiguredTest : public test::ConfiguredTest {
protected:
    ConfiguredTest() : test::ConfiguredTest(variableNames()) {}

private:
    static std::vector<std::string_view> variableNames() {
        std::vector<std::string_view> names = namesAt(ConfigurationPlace::Environment);
        for (const ConfigurationItem& item : programVariables) names.emplace_back(item.name);
        return names;
    }
};

/// What a command answers in JSON.
inline nlohmann::json answer(std::vector<std::string> words, int expectedStatus = Done) {
    words.insert(words.end(), {"--format", "json"});
    const Outcome outcome = runHost(words);
    EXPECT_EQ(outcome.status, expectedStatus) << outcome.err;
    return nlohmann::json::parse(outcome.out, nullptr, false);
}

/// What is told of one kind of resource.
inline nlohmann::json resourceOf(const nlohmann::json& answered, const ResourceKind& kind) {
    for (const nlohmann::json& candidate : answered["resources"]) {
        if (candidate["name"] == kind.name) return candidate;
    }
    ADD_FAILURE() << "no resource " << kind.name;
    return {};
}

} // namespace velkor::host
