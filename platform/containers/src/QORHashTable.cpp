#include "velkor/containers/QORHashTable.h"

#include <algorithm>

using velkor::containers::EntryTable;

namespace {

// The table is one run of entries to its user: all positions lie in bucket 1.
constexpr int TheBucket = 1;

std::int32_t fromPlace(int bucket, int place) noexcept {
    return bucket == TheBucket && place >= 1 ? place - 1 : EntryTable::None;
}

int answerPosition(std::int32_t position, int& bucket, int& place) noexcept {
    if (position == EntryTable::None) return 0;
    bucket = TheBucket;
    place = position + 1;
    return 1;
}

} // namespace

QORHashCodeIter::QORHashCodeIter(const QORHashTable& table) noexcept : _table(&table) {
    ++*this;
}

bool QORHashCodeIter::AtEnd() const noexcept {
    return _table == nullptr;
}

QORHashCodeIter& QORHashCodeIter::operator++() noexcept {
    if (_table != nullptr && _table->Next(_bucket, _place) == nullptr) _table = nullptr;
    return *this;
}

QORHashTable::QORHashTable(Hash hash, Comparison compare, int dimension, void* extra)
    : _entries(static_cast<std::size_t>(std::max(dimension, 0))), _hash(hash), _compare(compare), _extra(extra) {}

void* QORHashTable::Insert(void* entry) {
    if (entry == nullptr) return nullptr;
    if (void* present = Locate(entry)) return present;
    _entries.add(_hash.call(_hash.function, entry), entry);
    return entry;
}

void* QORHashTable::Locate(void* pattern) const {
    return _entries.at(position(pattern));
}

int QORHashTable::LocatePosition(void* pattern, int& bucket, int& place) const {
    return answerPosition(position(pattern), bucket, place);
}

void* QORHashTable::KeyLocate(unsigned int key) const {
    return _entries.at(_entries.find(key, [](void*) { return true; }));
}

int QORHashTable::KeyLocatePosition(unsigned int key, int& bucket, int& place) const {
    return answerPosition(_entries.find(key, [](void*) { return true; }), bucket, place);
}

void* QORHashTable::Retrieve(int bucket, int place) const noexcept {
    return _entries.at(fromPlace(bucket, place));
}

void* QORHashTable::Next(int& bucket, int& place) const noexcept {
    const std::int32_t next = _entries.next(std::max(place, 0) - 1);
    answerPosition(next, bucket, place);
    return _entries.at(next);
}

void* QORHashTable::Next(void* entry) const {
    const std::int32_t current = entry == nullptr ? EntryTable::None : position(entry);
    if (entry != nullptr && current == EntryTable::None) return nullptr;
    return _entries.at(_entries.next(current));
}

void* QORHashTable::operator[](const QORHashCodeIter& iterator) const noexcept {
    return iterator.AtEnd() ? nullptr : Retrieve(iterator._bucket, iterator._place);
}

void* QORHashTable::Remove(void* pattern) {
    return _entries.remove(position(pattern));
}

void* QORHashTable::RemovePosition(int bucket, int place) {
    return _entries.remove(fromPlace(bucket, place));
}

int QORHashTable::ApplyGlobalFunct(int (*function)(void*), void* start, void** last, int* result) const {
    return applyToEach(function, start, last, result);
}

bool QORHashTable::operator==(const QORHashTable& other) const noexcept {
    if (_hash.function != other._hash.function || _compare.function != other._compare.function ||
        Size() != other.Size())
        return false;
    std::int32_t mine = _entries.next(EntryTable::None);
    std::int32_t theirs = other._entries.next(EntryTable::None);
    while (mine != EntryTable::None && theirs != EntryTable::None) {
        if (_entries.at(mine) != other._entries.at(theirs)) return false;
        mine = _entries.next(mine);
        theirs = other._entries.next(theirs);
    }
    return mine == theirs;
}

std::int32_t QORHashTable::position(void* pattern) const {
    if (pattern == nullptr) return EntryTable::None;
    return _entries.find(_hash.call(_hash.function, pattern),
                         [&](void* entry) { return _compare.call(_compare.function, entry, pattern) == 0; });
}
