#include "ValueSet.h"

#include <algorithm>
#include <bit>

namespace velkor::rules {

ValueSet::ValueSet(std::size_t expected, Evaluation& evaluation, ValueComparison& comparison)
    : _evaluation(evaluation), _comparison(comparison) {
    makeRoom(expected);
}

void ValueSet::makeRoom(std::size_t expected) {
    const std::size_t size = std::bit_ceil(expected + expected / 2 + 2);
    _mask = size - 1;
    _entries = _evaluation.room<Entry>(size);
    std::fill_n(_entries, size, Entry{0, Value(), Entry::State::Free});
}

void ValueSet::grow() {
    const std::span<const Entry> entries(_entries, _mask + 1);
    _evaluation.spend(entries.size());
    makeRoom(2 * _used);
    for (const Entry& entry : entries) {
        if (entry.state == Entry::State::Used) place(entry.hash) = entry;
    }
}

bool ValueSet::add(const Value& value) {
    if (find(value) != nullptr) return false;
    addAnother(value);
    return true;
}

void ValueSet::addAnother(const Value& value) {
    if (++_used > _mask - _mask / 4) grow();
    const std::uint64_t hash = _comparison.hash(value);
    place(hash) = {hash, value, Entry::State::Used};
}

bool ValueSet::take(const Value& value) {
    Entry* found = find(value);
    if (found != nullptr) found->state = Entry::State::Taken;
    return found != nullptr;
}

ValueSet::Entry* ValueSet::find(const Value& value) {
    const std::uint64_t hash = _comparison.hash(value);
    for (std::size_t at = hash & _mask; _entries[at].state != Entry::State::Free; at = (at + 1) & _mask) {
        Entry& entry = _entries[at];
        _evaluation.spend();
        if (entry.state == Entry::State::Used && entry.hash == hash &&
            _comparison.identical(entry.value, value) == Logical::True)
            return &entry;
    }
    return nullptr;
}

ValueSet::Entry& ValueSet::place(std::uint64_t hash) {
    std::size_t at = hash & _mask;
    while (_entries[at].state != Entry::State::Free) {
        _evaluation.spend();
        at = (at + 1) & _mask;
    }
    return _entries[at];
}

} // namespace velkor::rules
