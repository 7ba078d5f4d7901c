/// The entries of a table whose user owns them.
#pragma once

#include "containers/QORSysSimpleHashTable.h"

#include <memory>
#include <vector>

namespace velkor::library {

/// Takes all entries out of a table and destroys them. None goes before all are known, because a table looks at
/// others to find the next one.
template <typename Entry>
void destroyEntries(QORSysSimpleHashTable& table) {
    std::vector<std::unique_ptr<Entry>> entries;
    entries.reserve(static_cast<std::size_t>(table.Size()));
    for (void* entry = table.Next(nullptr); entry != nullptr; entry = table.Next(entry))
        entries.emplace_back(static_cast<Entry*>(entry));
    table.RemoveAll();
}

} // namespace velkor::library
