/// Where the instances of an exchange structure stand, what they are, and which number an id
/// has: six bytes per instance and a way from id to number that suits how the ids lie.
#pragma once

#include "GrowableArray.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace velkor::sdai::part21 {

class InstanceIndex {
public:
    /// Numbers are 32 bits wide and one value is kept for "none".
    static constexpr std::uint32_t maximumCount = 0xFFFFFFFE;
    /// Offsets are kept with 32 bits, beside the first instance of each 4 GB segment. A test
    /// gives fewer bits to see several segments in a small text.
    static constexpr unsigned defaultSegmentBits = 32;

    explicit InstanceIndex(std::string_view text, unsigned segmentBits = defaultSegmentBits);

    /// Adds the instance whose "#" stands at an offset. False when the index is full.
    bool append(std::uint64_t offset, std::uint16_t keyword, std::uint64_t id) {
        if (_count == _capacity && !grow()) return false;
        if (offset >> _segmentBits >= _segmentStarts.size()) startSegments(offset >> _segmentBits);
        _offsets[_count] = static_cast<std::uint32_t>(offset & _segmentMask);
        _keywords[_count] = keyword;
        if (id > 0xFFFFFFFFU && _wideIds.capacity() == 0) widen();
        if (_wideIds.capacity() == 0) {
            _ids[_count] = static_cast<std::uint32_t>(id);
        } else {
            _wideIds[_count] = id;
        }
        _ascending = _ascending && (id > _largestId || _count == 0);
        if (id > _largestId) _largestId = id;
        ++_count;
        return true;
    }

    /// Gives back spare storage and prepares find(). Calls `repeated` for each instance whose
    /// id an earlier one has, in ascending order of numbers.
    void finish(const std::function<void(std::uint32_t number)>& repeated);

    std::uint32_t count() const noexcept { return _count; }
    std::uint64_t offset(std::uint32_t number) const noexcept;
    std::uint16_t keyword(std::uint32_t number) const noexcept { return _keywords[number]; }
    std::span<const std::uint16_t> keywords() const noexcept { return {_keywords.data(), _count}; }
    /// The id as it stands in the text.
    std::uint64_t id(std::uint32_t number) const noexcept;
    /// After finish(): the first instance of an id.
    std::optional<std::uint32_t> find(std::uint64_t id) const noexcept;
    std::size_t memoryUse() const noexcept;

private:
    enum class Lookup : std::uint8_t {
        Counting,  ///< ids follow each other without gaps, in file order
        Direct,    ///< _numbers holds number + 1 by id
        Ascending, ///< the ids in file order are sorted
        Sorted,    ///< the ids are sorted, _numbers holds their numbers
    };

    bool grow();
    void startSegments(std::uint64_t segment);
    void widen();
    void resize(std::uint32_t capacity);
    void fillDirect(const std::function<void(std::uint32_t)>& repeated);
    template <class Id>
    void sort(GrowableArray<Id>& ids, const std::function<void(std::uint32_t)>& repeated);
    template <class Id>
    std::optional<std::uint32_t> findSorted(const GrowableArray<Id>& ids, std::uint64_t id) const noexcept;

    std::string_view _text;
    unsigned _segmentBits;
    std::uint64_t _segmentMask;
    std::uint32_t _count = 0;
    std::uint32_t _capacity = 0;
    bool _ascending = true;
    Lookup _lookup = Lookup::Counting;
    std::uint64_t _largestId = 0;
    std::uint64_t _firstId = 0;
    /// Number of the first instance at or behind the begin of each segment.
    std::vector<std::uint32_t> _segmentStarts;
    GrowableArray<std::uint32_t> _offsets;
    GrowableArray<std::uint16_t> _keywords;
    GrowableArray<std::uint32_t> _ids;
    /// In place of _ids as soon as one id needs more than 32 bits.
    GrowableArray<std::uint64_t> _wideIds;
    GrowableArray<std::uint32_t> _numbers;
};

} // namespace velkor::sdai::part21
