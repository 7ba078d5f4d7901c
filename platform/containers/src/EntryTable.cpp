#include "velkor/containers/EntryTable.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace velkor::containers {

namespace {

constexpr std::size_t FewestBuckets = 16;

} // namespace

EntryTable::EntryTable(std::size_t expectedEntries) {
    rebuild(std::bit_ceil(std::max(expectedEntries, FewestBuckets)));
}

EntryTable::EntryTable(EntryTable&& other) noexcept
    : _entries(std::move(other._entries)), _heads(std::move(other._heads)), _tails(std::move(other._tails)),
      _size(std::exchange(other._size, 0)) {}

EntryTable& EntryTable::operator=(EntryTable other) noexcept {
    _entries.swap(other._entries);
    _heads.swap(other._heads);
    _tails.swap(other._tails);
    std::swap(_size, other._size);
    return *this;
}

std::size_t EntryTable::emptyBucketCount() const noexcept {
    return static_cast<std::size_t>(std::count(_heads.begin(), _heads.end(), None));
}

void* EntryTable::at(std::int32_t position) const noexcept {
    const auto index = static_cast<std::size_t>(position);
    return position >= 0 && index < _entries.size() ? _entries[index].value : nullptr;
}

std::int32_t EntryTable::next(std::int32_t position) const noexcept {
    for (auto i = static_cast<std::size_t>(std::max(position, None)) + 1; i < _entries.size(); ++i) {
        if (_entries[i].value != nullptr) return static_cast<std::int32_t>(i);
    }
    return None;
}

void EntryTable::add(unsigned int key, void* value) {
    // Places of removed entries are taken back when they are as many as those in use.
    if (_size >= _heads.size()) {
        rebuild(std::max(_heads.size() * 2, FewestBuckets));
    } else if (_entries.size() >= 2 * (_size + FewestBuckets)) {
        rebuild(_heads.size());
    }
    _entries.push_back({value, key, None});
    link(static_cast<std::int32_t>(_entries.size()) - 1);
    ++_size;
}

void* EntryTable::remove(std::int32_t position) {
    void* value = at(position);
    if (value == nullptr) return nullptr;
    Entry& entry = _entries[static_cast<std::size_t>(position)];
    const std::size_t home = bucket(entry.key);
    std::int32_t previous = None;
    for (std::int32_t i = _heads[home]; i != position; i = _entries[static_cast<std::size_t>(i)].next) previous = i;
    (previous == None ? _heads[home] : _entries[static_cast<std::size_t>(previous)].next) = entry.next;
    if (_tails[home] == position) _tails[home] = previous;
    entry.value = nullptr;
    --_size;
    return value;
}

void EntryTable::clear() noexcept {
    _entries.clear();
    std::fill(_heads.begin(), _heads.end(), None);
    std::fill(_tails.begin(), _tails.end(), None);
    _size = 0;
}

// Keys may be poor hashes, so their bits are spread before the bucket is taken from the top.
std::size_t EntryTable::bucket(unsigned int key) const noexcept {
    const std::uint32_t spread = key * 0x9E3779B1U;
    return spread >> (32 - std::countr_zero(_heads.size()));
}

void EntryTable::link(std::int32_t position) noexcept {
    const std::size_t home = bucket(_entries[static_cast<std::size_t>(position)].key);
    const std::int32_t tail = _tails[home];
    (tail == None ? _heads[home] : _entries[static_cast<std::size_t>(tail)].next) = position;
    _tails[home] = position;
}

void EntryTable::rebuild(std::size_t buckets) {
    // All that may fail comes first.
    std::vector<std::int32_t> heads(buckets, None), tails(buckets, None);
    _heads.swap(heads);
    _tails.swap(tails);
    std::erase_if(_entries, [](const Entry& entry) { return entry.value == nullptr; });
    for (std::size_t i = 0; i < _entries.size(); ++i) {
        _entries[i].next = None;
        link(static_cast<std::int32_t>(i));
    }
}

} // namespace velkor::containers
