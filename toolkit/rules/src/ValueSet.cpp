#include "ValueSet.h"

#include <algorithm>
#include <bit>

namespace velkor::rules {

ValueSet::ValueSet(std::size_t most, Evaluation& evaluation, ValueComparison& comparison)
    : _evaluation(evaluation), _comparison(comparison), _mask(std::bit_ceil(most + most / 2 + 2) - 1) {
    _entries = evaluation.room<Entry>(_mask + 1);
    std::fill_n(_entries, _mask + 1, Entry{0, Value(), Entry::State::Free});
}

bool ValueSet::add(const Value& value) {
    if (find(value) != nullptr) return false;
    addAnother(value);
    return true;
}

void ValueSet::addAnother(const Value& value) {
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
