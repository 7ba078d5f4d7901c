/// Finds equal members of an aggregate that must not have any: instances by identity, values by value, whatever type
/// they name. A member that is unset, or refers to no instance, is equal to none.
#pragma once

#include "velkor/sdai/Model.h"
#include "velkor/sdai/Part21Lexer.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace velkor::rules {

/// Eight bytes a member; texts are compared for those alone that may be equal.
class MemberComparison {
public:
    explicit MemberComparison(const sdai::Model& model) : _model(model) {}

    /// Begins an aggregate whose members are of a type.
    void begin(const sdai::Type& member) {
        _member = &member;
        _prints.clear();
    }
    /// Adds the member that begins with a token.
    void add(const sdai::Token& first) {
        if (const auto print = printOf(first)) _prints.push_back(*print);
    }

    /// The first member that is equal to one before it, and that one, counted from 1.
    struct Pair {
        std::uint32_t first;
        std::uint32_t second;
        std::string_view text;
    };
    /// `aggregate` is the text of the same aggregate, from its "("; what stands behind it does not matter.
    std::optional<Pair> equalPair(std::string_view aggregate);

private:
    std::optional<std::uint64_t> printOf(const sdai::Token& first);
    // Leaves the prints that stand more than once, in order; false when there is none.
    bool keepRepeated();

    const sdai::Model& _model;
    const sdai::Type* _member = nullptr;
    // A hash of each member.
    std::vector<std::uint64_t> _prints;
    std::string _key;
};

/// Appends what two values share when, and only when, they are equal. The lexer stands at the value and is left behind
/// it. False when the value is indeterminate.
bool appendValueKey(const sdai::Model& model, const sdai::Type& type, sdai::Part21Lexer& lexer, std::string& key);

} // namespace velkor::rules
