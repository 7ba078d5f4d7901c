/// A table of entries that it does not own, told apart by a hash function and a comparison.
///
/// A position is a pair of numbers, both from 1: a walk with Next starts from 1 and 0 and meets the
/// entries in the order of their insertion.
#pragma once

#include "velkor/containers/EntryTable.h"
#include "velkor/PlatformExport.h"

class QORHashTable;

/// Walks a table; stands on its first entry when made.
class VELKOR_PLATFORM_API QORHashCodeIter {
public:
    explicit QORHashCodeIter(const QORHashTable& table) noexcept; ///< At the first entry of a table.
    bool AtEnd() const noexcept;                                  ///< True behind the last entry.
    QORHashCodeIter& operator++() noexcept;                       ///< Goes on to the next entry.

private:
    friend class QORHashTable;
    const QORHashTable* _table;
    int _bucket = 1;
    int _place = 0;
};

class VELKOR_PLATFORM_API QORHashTable {
public:
    using HashFunction = unsigned int (*)(void* entry); ///< Hash of an entry.
    /// 0 when two entries are the same entry.
    using CompareFunction = int (*)(void* a, void* b);

    /// `dimension` is the number of entries expected; 0 is the default sizing. `extra` belongs to the table's
    /// user: it is kept and handed back by Extra(). Functions may be typed on the entries, which are
    /// then all of that type.
    template <class Entry>
    QORHashTable(unsigned int (*hash)(Entry*), int (*compare)(Entry*, Entry*), int dimension = 0, void* extra = nullptr)
        : QORHashTable({reinterpret_cast<AnyFunction>(hash),
                        [](AnyFunction function, void* entry) {
                            return reinterpret_cast<unsigned int (*)(Entry*)>(function)(static_cast<Entry*>(entry));
                        }},
                       {reinterpret_cast<AnyFunction>(compare),
                        [](AnyFunction function, void* a, void* b) {
                            return reinterpret_cast<int (*)(Entry*, Entry*)>(function)(static_cast<Entry*>(a),
                                                                                       static_cast<Entry*>(b));
                        }},
                       dimension, extra) {}

    void* Extra() const noexcept { return _extra; }                         ///< What the host gave the table to keep.
    int Size() const noexcept { return static_cast<int>(_entries.size()); } ///< Number of entries.
    /// Number of buckets, of buckets without an entry, and of entries that share one with another.
    int Dimension() const noexcept { return static_cast<int>(_entries.bucketCount()); }
    int Unused() const noexcept { return static_cast<int>(_entries.emptyBucketCount()); }
    int Collisions() const noexcept { return Size() - (Dimension() - Unused()); }

    /// Adds an entry unless it is null or the same as one present. Gives the entry that the table
    /// holds afterwards.
    void* Insert(void* entry);
    void* Locate(void* pattern) const; ///< The entry that is the same as a pattern; null when there is none.
    /// 1 and the position when the entry is found, else 0 and both outputs untouched.
    int LocatePosition(void* pattern, int& bucket, int& place) const;
    /// The first entry inserted with the hash `key`, whatever the comparison says.
    void* KeyLocate(unsigned int key) const;
    /// Its position: 1, or 0 and both outputs untouched.
    int KeyLocatePosition(unsigned int key, int& bucket, int& place) const;
    /// The entry at a position; null when there is none.
    void* Retrieve(int bucket, int place) const noexcept;

    /// Moves the position to the next entry and gives it; null, the position untouched, behind the
    /// last.
    void* Next(int& bucket, int& place) const noexcept;
    /// The entry behind `entry`, the first one for null; null behind the last.
    void* Next(void* entry) const;
    /// An iterator at the first entry.
    QORHashCodeIter CreateIterator() const noexcept { return QORHashCodeIter(*this); }
    void* operator[](const QORHashCodeIter& iterator) const noexcept; ///< The entry that an iterator stands at.

    /// Takes entries out without destroying them and gives them; null when there is none.
    void* Remove(void* pattern);
    void* RemovePosition(int bucket, int place);    ///< Takes the entry at a place out; null when there is none.
    void RemoveAll() noexcept { _entries.clear(); } ///< Takes all entries out; they stay the host's.

    /// Calls `function` on each entry from `start` (the first for null) until an answer is not 0.
    /// The entry called last and its answer go to the outputs that are not null. Gives the number
    /// of calls.
    int ApplyGlobalFunct(int (*function)(void*), void* start, void** last, int* result) const;
    /// The same with whatever can be called with an entry.
    template <class Call>
    int applyToEach(Call call, void* start, void** last, int* result) const {
        int calls = 0;
        int answer = 0;
        void* entry = start == nullptr ? Next(nullptr) : Locate(start);
        for (; entry != nullptr && answer == 0; entry = Next(entry)) {
            answer = call(entry);
            ++calls;
            if (last != nullptr) *last = entry;
            if (result != nullptr) *result = answer;
        }
        return calls;
    }

    /// The same functions and the same entries in the same order.
    bool operator==(const QORHashTable& other) const noexcept;

private:
    // A function of any type, and how it is called as what it is.
    using AnyFunction = void (*)();
    template <class Caller>
    struct Callable {
        AnyFunction function;
        Caller call;
    };
    using Hash = Callable<unsigned int (*)(AnyFunction, void*)>;
    using Comparison = Callable<int (*)(AnyFunction, void*, void*)>;

    QORHashTable(Hash hash, Comparison compare, int dimension, void* extra);
    VELKOR_PLATFORM_LOCAL std::int32_t position(void* pattern) const;

    // First, so that an assignment that fails has changed nothing.
    velkor::containers::EntryTable _entries;
    Hash _hash;
    Comparison _compare;
    void* _extra;
};
