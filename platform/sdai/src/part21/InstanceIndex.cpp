#include "InstanceIndex.h"

#include "Characters.h"

#include <algorithm>
#include <memory>

namespace velkor::sdai::part21 {

namespace {

/// Bytes of text per instance that IFC files have at most; the first storage follows from it,
/// so that most files are indexed without growing.
constexpr std::size_t expectedBytesPerInstance = 56;

} // namespace

InstanceIndex::InstanceIndex(std::string_view text, unsigned segmentBits)
    : _text(text), _segmentBits(segmentBits), _segmentMask((std::uint64_t{1} << segmentBits) - 1), _segmentStarts{0} {}

void InstanceIndex::finish(const std::function<void(std::uint32_t)>& repeated) {
    resize(_count);
    if (_count == 0) return;
    _firstId = id(0);
    const bool wide = _wideIds.capacity() != 0;
    // A table by id pays when it takes no more than sorted ids with their numbers would, or
    // little beside the text.
    const std::uint64_t tableLimit = std::max<std::uint64_t>(std::uint64_t{2} * _count + 1024, _text.size() / 32);
    if (_ascending && _largestId - _firstId == _count - 1) {
        _lookup = Lookup::Counting;
    } else if (!wide && _largestId < tableLimit) {
        _lookup = Lookup::Direct;
        fillDirect(repeated);
    } else if (_ascending) {
        _lookup = Lookup::Ascending;
        return;
    } else {
        _lookup = Lookup::Sorted;
        if (wide) {
            sort(_wideIds, repeated);
        } else {
            sort(_ids, repeated);
        }
        return;
    }
    _ids.resize(0);
    _wideIds.resize(0);
}

std::uint64_t InstanceIndex::offset(std::uint32_t number) const noexcept {
    std::uint64_t segment = 0;
    if (_segmentStarts.size() > 1) {
        const auto behind = std::upper_bound(_segmentStarts.begin(), _segmentStarts.end(), number);
        segment = static_cast<std::uint64_t>(behind - _segmentStarts.begin()) - 1;
    }
    return segment << _segmentBits | _offsets[number];
}

std::uint64_t InstanceIndex::id(std::uint32_t number) const noexcept {
    std::uint64_t id = 0;
    for (std::uint64_t at = offset(number) + 1; at < _text.size() && isDigit(_text[at]); ++at) {
        id = id * 10 + static_cast<unsigned char>(_text[at] - '0');
    }
    return id;
}

std::optional<std::uint32_t> InstanceIndex::find(std::uint64_t id) const noexcept {
    if (_count == 0 || id > _largestId) return std::nullopt;
    switch (_lookup) {
    case Lookup::Counting:
        if (id < _firstId) return std::nullopt;
        return static_cast<std::uint32_t>(id - _firstId);
    case Lookup::Direct:
        if (_numbers[id] == 0) return std::nullopt;
        return _numbers[id] - 1;
    default:
        return _wideIds.capacity() != 0 ? findSorted(_wideIds, id) : findSorted(_ids, id);
    }
}

std::size_t InstanceIndex::memoryUse() const noexcept {
    return _offsets.bytes() + _keywords.bytes() + _ids.bytes() + _wideIds.bytes() + _numbers.bytes() +
           _segmentStarts.capacity() * sizeof(_segmentStarts[0]);
}

bool InstanceIndex::grow() {
    if (_count == maximumCount) return false;
    const std::uint64_t wanted =
        _capacity == 0 ? _text.size() / expectedBytesPerInstance + 16 : _capacity + std::uint64_t{_capacity} / 2 + 16;
    resize(static_cast<std::uint32_t>(std::min<std::uint64_t>(wanted, maximumCount)));
    return true;
}

void InstanceIndex::startSegments(std::uint64_t segment) {
    while (_segmentStarts.size() <= segment) _segmentStarts.push_back(_count);
}

void InstanceIndex::widen() {
    _wideIds.resize(_capacity);
    std::copy_n(_ids.data(), _count, &_wideIds[0]);
    _ids.resize(0);
}

void InstanceIndex::resize(std::uint32_t capacity) {
    _offsets.resize(capacity);
    _keywords.resize(capacity);
    if (_wideIds.capacity() == 0) {
        _ids.resize(capacity);
    } else {
        _wideIds.resize(capacity);
    }
    _capacity = capacity;
}

void InstanceIndex::fillDirect(const std::function<void(std::uint32_t)>& repeated) {
    _numbers.resetToZero(static_cast<std::size_t>(_largestId) + 1);
    for (std::uint32_t number = 0; number < _count; ++number) {
        std::uint32_t& entry = _numbers[_ids[number]];
        if (entry == 0) {
            entry = number + 1;
        } else {
            repeated(number);
        }
    }
}

template <class Id>
void InstanceIndex::sort(GrowableArray<Id>& ids, const std::function<void(std::uint32_t)>& repeated) {
    _numbers.resize(_count);
    for (std::uint32_t number = 0; number < _count; ++number) _numbers[number] = number;
    std::uint32_t* numbers = &_numbers[0];
    std::sort(numbers, numbers + _count, [&ids](std::uint32_t left, std::uint32_t right) {
        return ids[left] != ids[right] ? ids[left] < ids[right] : left < right;
    });

    std::vector<std::uint32_t> repetitions;
    GrowableArray<Id> sorted;
    sorted.resize(_count);
    for (std::uint32_t i = 0; i < _count; ++i) {
        sorted[i] = ids[_numbers[i]];
        if (i > 0 && sorted[i] == sorted[i - 1]) repetitions.push_back(_numbers[i]);
    }
    ids = std::move(sorted);
    std::sort(repetitions.begin(), repetitions.end());
    for (const std::uint32_t number : repetitions) repeated(number);
}

template <class Id>
std::optional<std::uint32_t> InstanceIndex::findSorted(const GrowableArray<Id>& ids, std::uint64_t id) const noexcept {
    const Id* end = ids.data() + _count;
    const Id* found = std::lower_bound(ids.data(), end, id);
    if (found == end || *found != id) return std::nullopt;
    const auto position = static_cast<std::size_t>(found - ids.data());
    return _lookup == Lookup::Sorted ? _numbers[position] : static_cast<std::uint32_t>(position);
}

} // namespace velkor::sdai::part21
