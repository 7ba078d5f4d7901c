/// Reads values of an open model as their declared types have them, straight from the text of the file.
///
/// What does not fit its type, a dangling reference or one to a wrong entity included, is indeterminate: the check
/// against the dictionary reports it.
#pragma once

#include "Evaluation.h"
#include "RuleProgram.h"
#include "velkor/sdai/Part21Lexer.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace velkor::rules {

class ValueReader {
public:
    ValueReader(const RuleProgram& program, Evaluation& evaluation);

    /// A value of the declared type that stands at the beginning of a text.
    Value value(const sdai::Type& declared, std::string_view text) { return opened(read(declared, text), declared); }
    /// An explicit attribute, by its place in the entity's attributes().
    Value attribute(std::uint32_t number, const sdai::EntityDefinition& entity, std::size_t slot);
    /// From an explicit attribute's value on to the end of the instance; empty when the instance has none.
    std::string_view parameter(std::uint32_t number, std::size_t slot);

    /// Number of members, counted without decoding them.
    std::uint32_t size(Aggregate& aggregate);
    /// A member, counted from 0; those behind it are not looked at. Indeterminate when there are fewer.
    Value member(Aggregate& aggregate, std::uint64_t position);
    /// All members, decoded.
    std::span<Value> members(Aggregate& aggregate);

    /// Null for values of no defined type.
    const sdai::DefinedType* definedType(const Value& value) const noexcept;

private:
    /// Where the first parameters of an instance begin, as far as they were looked for.
    struct Place {
        static constexpr std::uint32_t nobody = 0xFFFFFFFF;

        std::uint32_t number = nobody;
        std::uint32_t known = 0;
        std::string_view parameters;
        std::array<std::uint32_t, 14> begins;
    };
    static constexpr std::size_t placeCount = 2048;

    Place& place(std::uint32_t number);
    Value read(const sdai::Type& declared, std::string_view text);
    Value typed(const sdai::Type& resolved, const sdai::Token& token, std::string_view rest);
    Value simple(sdai::TypeKind kind, const sdai::Token& token);
    Value string(std::string_view token);
    Value binary(std::string_view token);
    Value reference(const sdai::Token& token, const sdai::Type& resolved) const;
    Value opened(const Value& value, const sdai::Type& declared);
    void decodeOne(Aggregate& aggregate);

    const RuleProgram& _program;
    Evaluation& _evaluation;
    std::vector<Place> _places;
};

} // namespace velkor::rules
