/// A table of entries that it does not own, told apart by a hash function and a comparison.
///
/// A position is a pair of numbers, both from 1: a walk with Next starts from 1 and 0 and meets the
/// entries in the order of their insertion.
#pragma once

#include "containers/EntryTable.h"

class QORHashTable;

/// Walks a table; stands on its first entry when made.
class QORHashCodeIter {
public:
    explicit QORHashCodeIter(const QORHashTable& table) noexcept;
    bool AtEnd() const noexcept;
    QORHashCodeIter& operator++() noexcept;

private:
    friend class QORHashTable;
    const QORHashTable* _table;
    int _bucket = 1;
    int _place = 0;
};

class QORHashTable {
public:
    using HashFunction = unsigned int (*)(void* entry);
    /// 0 when two entries are the same entry.
    using CompareFunction = int (*)(void* a, void* b);

    /// `dimension` is the number of entries expected; 0 is the default sizing.
    QORHashTable(HashFunction hash, CompareFunction compare, int dimension = 0);
    /// `extra` belongs to the table's user: it is kept and handed back by Extra().
    QORHashTable(HashFunction hash, CompareFunction compare, int dimension, void* extra);

    void* Extra() const noexcept { return _extra; }
    int Size() const noexcept { return static_cast<int>(_entries.size()); }
    /// Number of buckets, of buckets without an entry, and of entries that share one with another.
    int Dimension() const noexcept { return static_cast<int>(_entries.bucketCount()); }
    int Unused() const noexcept { return static_cast<int>(_entries.emptyBucketCount()); }
    int Collisions() const noexcept { return Size() - (Dimension() - Unused()); }

    /// Adds an entry unless it is null or the same as one present. Gives the entry that the table
    /// holds afterwards.
    void* Insert(void* entry);
    void* Locate(void* pattern) const;
    /// 1 and the position when the entry is found, else 0 and both outputs untouched.
    int LocatePosition(void* pattern, int& bucket, int& place) const;
    /// The first entry inserted with the hash `key`, whatever the comparison says.
    void* KeyLocate(unsigned int key) const;
    int KeyLocatePosition(unsigned int key, int& bucket, int& place) const;
    /// The entry at a position; null when there is none.
    void* Retrieve(int bucket, int place) const noexcept;

    /// Moves the position to the next entry and gives it; null, the position untouched, behind the
    /// last.
    void* Next(int& bucket, int& place) const noexcept;
    /// The entry behind `entry`, the first one for null; null behind the last.
    void* Next(void* entry) const;
    QORHashCodeIter CreateIterator() const noexcept { return QORHashCodeIter(*this); }
    void* operator[](const QORHashCodeIter& iterator) const noexcept;

    /// Takes entries out without destroying them and gives them; null when there is none.
    void* Remove(void* pattern);
    void* RemovePosition(int bucket, int place);
    void RemoveAll() noexcept { _entries.clear(); }

    /// Calls `function` on each entry from `start` (the first for null) until an answer is not 0.
    /// The entry called last and its answer go to the outputs that are not null. Gives the number
    /// of calls.
    int ApplyGlobalFunct(int (*function)(void*), void* start, void** last, int* result) const;

    /// The same functions and the same entries in the same order.
    bool operator==(const QORHashTable& other) const noexcept;

private:
    std::int32_t position(void* pattern) const;

    HashFunction _hash;
    CompareFunction _compare;
    void* _extra;
    velkor::containers::EntryTable _entries;
};
