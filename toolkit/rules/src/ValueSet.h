/// Values to be found by identity, in constant time each.
#pragma once

#include "ValueComparison.h"

#include <span>

namespace velkor::rules {

class ValueSet {
public:
    /// Lies in the memory of the evaluation, at first with room for so many values.
    ValueSet(std::size_t expected, Evaluation& evaluation, ValueComparison& comparison);

    /// False when an identical value is there already. An indeterminate value is identical to none.
    bool add(const Value& value);
    /// Takes one value away that is identical; false when there is none.
    bool take(const Value& value);
    bool contains(const Value& value) { return find(value) != nullptr; }
    /// Adds a value even if there is one.
    void addAnother(const Value& value);
    /// Those that are left.
    template <class Take>
    void forEach(Take take) const {
        for (std::size_t i = 0; i <= _mask; ++i) {
            if (_entries[i].state == Entry::State::Used) take(_entries[i].value);
        }
    }

private:
    struct Entry {
        std::uint64_t hash;
        Value value;
        enum class State : std::uint8_t { Free, Used, Taken } state;
    };

    Entry* find(const Value& value);
    Entry& place(std::uint64_t hash);
    void makeRoom(std::size_t expected);
    void grow();

    Evaluation& _evaluation;
    ValueComparison& _comparison;
    Entry* _entries = nullptr;
    std::size_t _mask = 0;
    std::size_t _used = 0;
};

} // namespace velkor::rules
