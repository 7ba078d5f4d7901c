#include "Evaluation.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace velkor::rules {

void Evaluation::begin(std::uint64_t stepLimit) noexcept {
    if (_blocks.size() > 1) _blocks.resize(1);
    if (!_blocks.empty()) {
        _next = _blocks[0].bytes.get();
        _end = _next + _blocks[0].size;
        _memory = _blocks[0].size;
    }
    _steps = 0;
    _stepLimit = stepLimit;
}

std::string_view Evaluation::copy(std::string_view text) {
    char* bytes = room<char>(text.size());
    std::ranges::copy(text, bytes);
    return {bytes, text.size()};
}

Aggregate& Evaluation::makeAggregate(AggregateKind kind, std::size_t capacity) {
    Aggregate& aggregate = *new (room<Aggregate>(1)) Aggregate();
    aggregate.kind = kind;
    if (capacity >= Aggregate::uncounted) throw BoundReached();
    aggregate.capacity = static_cast<std::uint32_t>(capacity);
    aggregate.members = room<Value>(capacity);
    return aggregate;
}

void Evaluation::append(Aggregate& aggregate, const Value& member) {
    reserve(aggregate, 1);
    hold(member);
    aggregate.members[aggregate.decoded++] = member;
    aggregate.size = aggregate.decoded;
}

void Evaluation::reserve(Aggregate& aggregate, std::size_t more) {
    if (more <= aggregate.capacity - aggregate.decoded) return;
    const std::size_t capacity =
        std::max({std::size_t{4}, std::size_t{2} * aggregate.capacity, aggregate.decoded + more});
    if (capacity >= Aggregate::uncounted) throw BoundReached();
    Value* members = room<Value>(capacity);
    std::copy_n(aggregate.members, aggregate.decoded, members);
    aggregate.members = members;
    aggregate.capacity = static_cast<std::uint32_t>(capacity);
}

EntityValue& Evaluation::makeEntity(const sdai::EntityDefinition& entity) {
    EntityValue& value = *new (room<EntityValue>(1)) EntityValue();
    value.entity = &entity;
    value.slots = room<Value>(entity.attributes().size());
    std::fill_n(value.slots, entity.attributes().size(), Value());
    return value;
}

void* Evaluation::allocate(std::size_t size, std::size_t alignment) {
    const std::size_t misplaced = reinterpret_cast<std::uintptr_t>(_next) % alignment;
    const std::size_t padding = misplaced == 0 ? 0 : alignment - misplaced;
    if (padding + size > static_cast<std::size_t>(_end - _next)) {
        addBlock(size);
    } else {
        _next += padding;
    }
    void* place = _next;
    _next += size;
    return place;
}

void Evaluation::addBlock(std::size_t least) {
    constexpr std::size_t largest = std::size_t{1} << 20;
    const std::size_t usual = _blocks.empty() ? firstBlock : std::min(largest, 2 * _blocks.back().size);
    const std::size_t size = std::max(usual, least);
    if (size > _memoryBound - std::min(_memory, _memoryBound)) throw BoundReached();
    _blocks.push_back({std::unique_ptr<std::byte[]>(new std::byte[size]), size});
    _memory += size;
    _next = _blocks.back().bytes.get();
    _end = _next + size;
}

} // namespace velkor::rules
