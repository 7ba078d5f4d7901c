/// What both hash tables of the platform share: untyped entries kept in the order of their
/// insertion and found by hash key and an equality that the table's user supplies.
#pragma once

#include "velkor/PlatformExport.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace velkor::containers {

class VELKOR_PLATFORM_API EntryTable {
public:
    static constexpr std::int32_t None = -1;

    explicit EntryTable(std::size_t expectedEntries = 0); ///< An empty table with room for that many entries.
    EntryTable(const EntryTable& other) = default;
    /// Leaves an empty table behind, which has no buckets until it is given an entry.
    EntryTable(EntryTable&& other) noexcept;
    /// Takes the place of this table as a whole or, when a copy cannot be made, not at all.
    EntryTable& operator=(EntryTable other) noexcept;
    ~EntryTable() = default;

    std::size_t size() const noexcept { return _size; }                ///< Number of entries.
    std::size_t bucketCount() const noexcept { return _heads.size(); } ///< Number of buckets.
    std::size_t emptyBucketCount() const noexcept;                     ///< Number of buckets without an entry.

    /// The entry at a position; null for one that was removed or does not exist.
    void* at(std::int32_t position) const noexcept;
    /// The first position behind `position` that holds an entry; None behind the last.
    std::int32_t next(std::int32_t position) const noexcept;

    /// Position of the first entry with the key for which `same(entry)` holds, or None.
    template <typename Same>
    std::int32_t find(unsigned int key, Same same) const {
        if (_size == 0) return None;
        for (std::int32_t i = _heads[bucket(key)]; i != None; i = _entries[static_cast<std::size_t>(i)].next) {
            const Entry& entry = _entries[static_cast<std::size_t>(i)];
            if (entry.key == key && same(entry.value)) return i;
        }
        return None;
    }

    /// Adds an entry, which must not be null, behind those with the same key. Without memory the table stays as
    /// it is.
    void add(unsigned int key, void* value);
    /// Takes out the entry at a position and gives it; null when there is none.
    void* remove(std::int32_t position);
    void clear() noexcept; ///< Takes all entries out.

private:
    struct Entry {
        void* value;
        unsigned int key;
        std::int32_t next;
    };

    std::size_t bucket(unsigned int key) const noexcept;
    VELKOR_PLATFORM_LOCAL void link(std::int32_t position) noexcept;
    VELKOR_PLATFORM_LOCAL void rebuild(std::size_t buckets);

    std::vector<Entry> _entries;
    std::vector<std::int32_t> _heads;
    std::vector<std::int32_t> _tails;
    std::size_t _size = 0;
};

} // namespace velkor::containers
