/// What an evaluation may spend, and the memory that its values live in until the next one begins.
#pragma once

#include "RuleValue.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <type_traits>
#include <vector>

namespace velkor::rules {

/// Thrown when a bound of steps, depth or memory is reached, from however deep; the machine turns it into the verdict
/// NotDecided and nothing beyond it sees one.
struct BoundReached {};

class Evaluation {
public:
    /// `memoryBound`: bytes that the values of one evaluation may take.
    explicit Evaluation(std::size_t memoryBound) : _memoryBound(memoryBound) {}

    /// Forgets all values.
    void begin(std::uint64_t stepLimit) noexcept;

    void spend(std::uint64_t steps = 1) {
        _steps += steps;
        if (_steps > _stepLimit) throw BoundReached();
    }

    std::uint64_t steps() const noexcept { return _steps; }
    /// Lets so many steps more be spent, whatever was spent before.
    void allow(std::uint64_t steps) noexcept { _stepLimit = _steps + steps; }

    /// Room for so many of a type that needs no destructor, not initialised.
    template <class Item>
    Item* room(std::size_t count) {
        static_assert(std::is_trivially_destructible_v<Item>);
        if (count > _memoryBound / sizeof(Item)) throw BoundReached();
        return static_cast<Item*>(allocate(count * sizeof(Item), alignof(Item)));
    }
    std::string_view copy(std::string_view text);

    /// An aggregate with room for so many members and none yet.
    Aggregate& makeAggregate(AggregateKind kind, std::size_t capacity = 0);
    /// Puts a member behind those of an aggregate that a rule makes.
    void append(Aggregate& aggregate, const Value& member);
    /// Makes room for so many members more than there are decoded.
    void reserve(Aggregate& aggregate, std::size_t more);
    EntityValue& makeEntity(const sdai::EntityDefinition& entity);

private:
    void* allocate(std::size_t size, std::size_t alignment);
    void addBlock(std::size_t least);

    // Kept from one evaluation to the next.
    static constexpr std::size_t firstBlock = 64 * 1024;

    struct Block {
        std::unique_ptr<std::byte[]> bytes;
        std::size_t size;
    };
    std::vector<Block> _blocks;
    std::byte* _next = nullptr;
    std::byte* _end = nullptr;
    std::size_t _memory = 0;
    std::size_t _memoryBound;
    std::uint64_t _steps = 0;
    std::uint64_t _stepLimit = 0;
};

} // namespace velkor::rules
