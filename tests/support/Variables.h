/// Environment variables of a test: not there before it, and gone afterwards.
#pragma once

#include "velkor/settings/QORDXEnvironmentVariable.h"

#include <vector>

namespace velkor::test {

struct Variables {
    Variables(std::initializer_list<const char*> list) : names(list) { removeAll(); }
    ~Variables() { removeAll(); }
    Variables(const Variables&) = delete;
    Variables& operator=(const Variables&) = delete;

    /// A null text removes the variable.
    static void set(const char* name, const char* text) {
        text != nullptr ? settings::setVariable(name, text) : settings::removeVariable(name);
    }
    void removeAll() const {
        for (const char* name : names) settings::removeVariable(name);
    }

    const std::vector<const char*> names;
};

} // namespace velkor::test
