/// The entries of a table whose user owns them.
#pragma once

#include "velkor/containers/QORSysSimpleHashTable.h"

#include <memory>
#include <new>
#include <vector>

namespace velkor::library {

/// A new table; null when there is no memory for one.
inline QORSysSimpleHashTable* makeTable(QORSysSimpleHashTable::HashFunction hash,
                                        QORSysSimpleHashTable::EqualityFunction areSame) {
    try {
        return new QORSysSimpleHashTable(0, hash, areSame);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

/// Takes all entries out of a table and destroys them. None goes before all are known, because a table looks at
/// others to find the next one.
template <typename Entry>
void destroyEntries(QORSysSimpleHashTable& table) {
    std::vector<std::unique_ptr<Entry>> entries;
    try {
        entries.reserve(static_cast<std::size_t>(table.Size()));
    } catch (const std::bad_alloc&) {
        // Destructors call this, which must not fail: the entries stay where they are.
        return table.RemoveAll();
    }
    for (void* entry = table.Next(nullptr); entry != nullptr; entry = table.Next(entry))
        entries.emplace_back(static_cast<Entry*>(entry));
    table.RemoveAll();
}

} // namespace velkor::library
