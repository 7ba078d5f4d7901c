/// The declaration list of a schema, read and checked for itself: every text well formed,
/// every reference to an earlier declaration of a kind that fits its place.
#pragma once

#include "TextReader.h"
#include "velkor/sdai/Dictionary.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor::sdai {

enum class DeclarationKind : std::uint8_t {
    Schema,
    DefinedType,
    EnumerationType,
    SelectType,
    ListType,
    SetType,
    ArrayType,
    Entity,
    ExplicitAttr,
    DerivedAttr,
    UniquenessRule,
};

/// Which kinds a reference may lead to, and how that is called.
struct Place {
    std::uint16_t kinds;
    const char* expected;

    constexpr bool fits(DeclarationKind kind) const noexcept { return (kinds >> static_cast<int>(kind) & 1) != 0; }
};

template <class... Kinds>
constexpr std::uint16_t kindSet(Kinds... kinds) {
    return static_cast<std::uint16_t>(((1u << static_cast<int>(kinds)) | ...));
}

/// A type as a list writes it: a simple type word or a reference.
struct TypeReference {
    /// Of a reference; 0 for a simple type word.
    std::uint16_t number = 0;
    TypeKind simple = TypeKind::Integer;
    bool fixed = false;
    int width = 0;
};

/// A stretch of one of the lists' common arrays.
struct Range {
    std::uint32_t first = 0;
    std::uint32_t count = 0;
};

struct Declaration {
    DeclarationKind kind = DeclarationKind::Schema;
    bool unique = false;
    bool optional = false;
    bool isAbstract = false;
    int lower = 0;
    int upper = 0;
    /// Underlying type of a defined type, element of an aggregate.
    TypeReference type;
    /// Select items in DeclarationList::items; of an enumeration only the count of enumerators.
    Range members;
    /// Position among the entities, or among the attributes and rules, counted from 0.
    std::uint16_t ordinal = 0;
    /// Of an enumeration the enumerators as they stand in the list, separated by commas.
    std::string_view name;
};

struct DeclarationList {
    /// A list may hold so many declarations and no more, so that a number fits 16 bits.
    static constexpr std::size_t Most = 65'535;

    /// By number, which counts from 1; the first element stands for nothing.
    std::vector<Declaration> declarations;
    std::vector<std::uint16_t> items;
    std::uint16_t entities = 0;
    std::uint16_t attributesAndRules = 0;

    std::size_t last() const noexcept { return declarations.size() - 1; }
    const Declaration& operator[](std::size_t number) const noexcept { return declarations[number]; }

    std::span<const std::uint16_t> itemsOf(const Declaration& d) const noexcept {
        return {items.data() + d.members.first, d.members.count};
    }
};

/// Reads the list; the error names the position.
tl::expected<DeclarationList, std::string> readDeclarations(std::span<const char* const> texts);

/// Reads a type as it stands for an attribute or an aggregate's element: a simple type word or a
/// reference to one of the numbers below `end`.
TypeReference readType(TextReader& reader, const DeclarationList& list, std::size_t end, const Place& place);

/// Reads a reference to one of the numbers below `end`; 0 when it failed.
std::uint16_t readReference(TextReader& reader, const DeclarationList& list, std::size_t end, const Place& place);

namespace places {

constexpr std::uint16_t aggregates =
    kindSet(DeclarationKind::ListType, DeclarationKind::SetType, DeclarationKind::ArrayType);
constexpr Place item{kindSet(DeclarationKind::DefinedType, DeclarationKind::Entity),
                     "a reference to a defined type or an entity"};
constexpr Place valueType{static_cast<std::uint16_t>(item.kinds | aggregates),
                          "a simple type or a reference to a defined type, an entity or an aggregate"};
constexpr Place underlying{
    static_cast<std::uint16_t>(
        kindSet(DeclarationKind::DefinedType, DeclarationKind::EnumerationType, DeclarationKind::SelectType) |
        aggregates),
    "a simple type or a reference to a defined type, an enumeration, a select or an aggregate"};

constexpr Place owned{
    kindSet(DeclarationKind::ExplicitAttr, DeclarationKind::DerivedAttr, DeclarationKind::UniquenessRule),
    "a reference to an attribute or a uniqueness rule"};

} // namespace places

/// "declaration 12 "DefinedType(IFCX,#900)": …"
std::string listError(const char* list, std::size_t position, const char* text, std::string_view message);

} // namespace velkor::sdai
