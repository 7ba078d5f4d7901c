/// Runs the code of rules over an open model.
///
/// The indeterminate value and three-valued logic are those of ISO 10303-11: a rule is broken when it is FALSE, and
/// UNKNOWN or indeterminate is no answer. A machine never changes the model and belongs to one thread; program and
/// roles are shared.
#pragma once

#include "RoleIndex.h"
#include "RuleProgram.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::rules {

enum class Verdict : std::uint8_t {
    Holds,
    Broken,
    /// UNKNOWN or indeterminate.
    Unknown,
    /// A bound of steps, depth or memory ended it.
    NotDecided,
};

/// A value of the model that was looked at for a verdict.
struct Read {
    /// Id of the instance, and its entity.
    std::uint64_t instance;
    std::string_view entity;
    std::string_view attribute;
    /// As it stands in the file, the beginning of a long one; "$" when unset; "3 members" for an inverse attribute; of
    /// a derived one its value.
    std::string value;
};

class RuleMachine {
public:
    /// Operations, members that are looked at and the like of one verdict. Of a global rule `stepsPerInstance` more for
    /// each instance of the model.
    static constexpr std::uint64_t stepLimit = 20'000'000;
    static constexpr std::uint64_t stepsPerInstance = 200;
    /// What is asked of an instance or a value takes time by its length: so many steps more for each byte of it.
    static constexpr std::uint64_t stepsPerByte = 32;
    static constexpr std::uint64_t stepsInAnyCase = 2'000;
    /// Calls and derived attributes within each other.
    static constexpr std::uint32_t depthLimit = 1'000;
    /// Bytes that the values of one verdict may take, beside a quarter of the size of the file.
    static constexpr std::size_t memoryLimit = std::size_t{64} << 20;

    RuleMachine(const RuleProgram& program, const RoleIndex& roles);
    ~RuleMachine();

    /// Verdicts of instances and values from here on, until it is called again, have so many steps together, beside
    /// those for their bytes. Those that come when these are spent have `stepsInAnyCase` each. What many instances make
    /// of a part that all of them share is bounded that way.
    void share(std::uint64_t steps) noexcept;

    /// SELF is the instance of a number.
    Verdict judgeInstance(std::uint32_t code, std::uint32_t number);
    /// SELF is a value of a defined type, as it stands in the file.
    Verdict judgeValue(std::uint32_t code, const sdai::DefinedType& type, std::string_view encoded);
    /// There is no SELF.
    Verdict judgeGlobal(std::uint32_t code);

    /// What the last verdict looked at, each once and in order, at most `most`: it is reached again with every read
    /// noted.
    std::vector<Read> reads(std::size_t most);

    /// Appends a text that two instances share when, and only when, their attributes of the names have equal values
    /// (instances by identity, values by value; numbers by their number, aggregates member by member, derived ones
    /// evaluated). False, and `key` undefined, when one of them is indeterminate.
    bool appendKey(std::uint32_t number, std::span<const TextId> attributes, std::string& key);

private:
    struct State;
    std::unique_ptr<State> _state;
};

} // namespace velkor::rules
