/// A table of entries that it does not own, told apart by a hash function and an equality.
#pragma once

#include "velkor/containers/EntryTable.h"
#include "velkor/PlatformExport.h"

class VELKOR_PLATFORM_API QORSysSimpleHashTable {
public:
    using HashFunction = unsigned int (*)(void* entry); ///< Hash of an entry.
    /// 1 when two entries are the same entry.
    using EqualityFunction = int (*)(void* a, void* b);

    /// An initial size of 0 is the default sizing; the table grows as needed either way.
    QORSysSimpleHashTable(int initialSize, HashFunction hash, EqualityFunction equal);
    virtual ~QORSysSimpleHashTable() = default;
    QORSysSimpleHashTable(const QORSysSimpleHashTable&) = delete;
    QORSysSimpleHashTable& operator=(const QORSysSimpleHashTable&) = delete;

    /// 1 when the entry was added; 0 when it is null or the same as one present, which stays.
    int Insert(void* entry);
    /// The entry that is the same as `pattern`; null when there is none.
    void* Locate(void* pattern) const;
    /// The first entry inserted whose hash is `key`, whatever the equality says; null when none.
    void* KeyLocate(unsigned int key) const;
    /// Takes out the entry that is the same as `pattern` and gives it, not destroyed; null when
    /// there is none.
    void* Remove(void* pattern);
    /// Takes out all entries without destroying them.
    void RemoveAll() noexcept { _entries.clear(); }
    int Size() const noexcept { return static_cast<int>(_entries.size()); } ///< Number of entries.

    /// The entry behind `entry` in the order of insertion, the first one for null; null behind the
    /// last.
    void* Next(void* entry) const;

private:
    VELKOR_PLATFORM_LOCAL std::int32_t position(void* pattern) const;

    HashFunction _hash;
    EqualityFunction _equal;
    velkor::containers::EntryTable _entries;
};
