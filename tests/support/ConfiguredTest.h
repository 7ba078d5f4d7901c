/// Tests of what a configuration steers: an environment of their own.
#pragma once

#include "velkor/configuration/ConfigurationTable.h"
#include "velkor/settings/QORDXEnvironmentVariable.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace velkor::test {

/// A test that starts without any of the variables that a user can set; they are back afterwards.
class ConfiguredTest : public testing::Test {
protected:
    explicit ConfiguredTest(std::vector<std::string_view> names = namesAt(ConfigurationPlace::Environment))
        : _names(std::move(names)) {
        for (const std::string_view name : _names) {
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
    void clear() {
        for (const std::string_view name : _names) settings::removeVariable(QORUnicodeString(name));
    }
    /// Those that are there.
    std::map<std::string, std::string> variables() const {
        std::map<std::string, std::string> result;
        for (const std::string_view name : _names) {
            if (QORDXEnvironmentVariable::HasBeenSet(QORUnicodeString(name)))
                result.emplace(name, QORGetEnv(QORUnicodeString(name)).utf8());
        }
        return result;
    }

private:
    std::vector<std::string_view> _names;
    std::vector<std::pair<QORUnicodeString, QORUnicodeString>> _before;
};

} // namespace velkor::test
