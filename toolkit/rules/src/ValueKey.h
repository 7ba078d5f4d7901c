/// Values as texts that are equal when, and only when, the values are: instances by identity, values by value.
#pragma once

#include "ValueReader.h"

#include <string>

namespace velkor::rules {

class ValueKey {
public:
    explicit ValueKey(ValueReader& reader) : _reader(reader) {}

    /// False, and what was appended undefined, when the value or a member of it is indeterminate.
    bool append(const Value& value, std::string& key) { return append(value, key, 0); }

private:
    bool append(const Value& value, std::string& key, unsigned depth);
    void appendNumber(const Value& value, std::string& key) const;
    void appendEnumerator(const Value& value, std::string& key) const;
    bool appendMembers(std::span<const Value> members, bool isOrdered, std::string& key, unsigned depth);

    ValueReader& _reader;
};

} // namespace velkor::rules
