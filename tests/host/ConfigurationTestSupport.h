/// What the tests of configured commands share: an environment of their own.
#pragma once

#include "ResourceKinds.h"
#include "TemporaryFolder.h"
#include "TestSupport.h"
#include "velkor/configuration/ConfigurationTable.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"

#include <map>
#include <nlohmann/json.hpp>
#include <utility>

namespace velkor::host {

using velkor::test::TemporaryFolder;

/// A test that starts without any of the variables that a user can set; they are back afterwards.
class ConfiguredTest : public testing::Test {
protected:
    ConfiguredTest() {
        for (const std::string_view name : namesAt(ConfigurationPlace::Environment)) {
            const QORUnicodeString variable(name);
            if (QORDXEnvironmentVariable::HasBeenSet(variable)) _before.emplace_back(variable, QORGetEnv(variable));
        }
        clear();
    }
    ~ConfiguredTest() override {
        clear();
        for (const auto& [name, value] : _before) settings::setVariable(name, value);
    }

    static void set(const std::string& name, const std::string& value) {
        settings::setVariable(name.c_str(), value.c_str());
    }
    static void clear() {
        for (const std::string_view name : namesAt(ConfigurationPlace::Environment))
            settings::removeVariable(QORUnicodeString(name));
    }
    /// The variables of the table that are there.
    static std::map<std::string, std::string> variables() {
        std::map<std::string, std::string> result;
        for (const std::string_view name : namesAt(ConfigurationPlace::Environment)) {
            if (QORDXEnvironmentVariable::HasBeenSet(QORUnicodeString(name)))
                result.emplace(name, QORGetEnv(QORUnicodeString(name)).utf8());
        }
        return result;
    }

private:
    std::vector<std::pair<QORUnicodeString, QORUnicodeString>> _before;
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
