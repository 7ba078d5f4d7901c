#include "velkor/containers/QORSysSimpleHashTable.h"

#include <algorithm>

using velkor::containers::EntryTable;

QORSysSimpleHashTable::QORSysSimpleHashTable(int initialSize, HashFunction hash, EqualityFunction equal)
    : _hash(hash), _equal(equal), _entries(static_cast<std::size_t>(std::max(initialSize, 0))) {}

int QORSysSimpleHashTable::Insert(void* entry) {
    if (entry == nullptr || position(entry) != EntryTable::None) return 0;
    _entries.add(_hash(entry), entry);
    return 1;
}

void* QORSysSimpleHashTable::Locate(void* pattern) const {
    return _entries.at(position(pattern));
}

void* QORSysSimpleHashTable::KeyLocate(unsigned int key) const {
    return _entries.at(_entries.find(key, [](void*) { return true; }));
}

void* QORSysSimpleHashTable::Remove(void* pattern) {
    return _entries.remove(position(pattern));
}

void* QORSysSimpleHashTable::Next(void* entry) const {
    const std::int32_t current = entry == nullptr ? EntryTable::None : position(entry);
    if (entry != nullptr && current == EntryTable::None) return nullptr;
    return _entries.at(_entries.next(current));
}

std::int32_t QORSysSimpleHashTable::position(void* pattern) const {
    if (pattern == nullptr) return EntryTable::None;
    return _entries.find(_hash(pattern), [&](void* entry) { return _equal(entry, pattern) == 1; });
}
