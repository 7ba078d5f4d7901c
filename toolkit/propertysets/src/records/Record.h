/// An instance read straight from its text. Checks that look at every property once would otherwise leave an instance
/// object behind for each.
///
///     Record record(model);
///     record.read(number);
///     eachReference(model, record.text("HASPROPERTIES"), [&](std::uint32_t property) { … });
#pragma once

#include "velkor/sdai/Model.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace velkor {

/// Values are views into the model's text and stay valid as long as it is open.
class Record {
public:
    explicit Record(const sdai::Model& model) noexcept : _model(&model) {}
    Record(const sdai::Model& model, std::uint32_t number) : Record(model) { read(number); }

    /// Moves on to another instance; its parameters are found as far as they are asked for.
    void read(std::uint32_t number);

    std::uint32_t number() const noexcept { return _number; }
    std::uint64_t id() const { return _model->file().id(_number); }
    /// Null when the schema does not know the keyword, and of a complex instance.
    const sdai::EntityDefinition* entity() const noexcept { return _entity; }

    /// A parameter as it stands in the file, without space around it; by index into the entity's attributes(), and
    /// empty for any other index.
    std::string_view text(int place) const {
        const auto index = static_cast<std::size_t>(place);
        return place >= 0 && index < _found ? _parameters[index] : found(place);
    }
    /// By name in upper case, of complex instances too.
    std::string_view text(std::string_view name) const;
    sdai::Primitive attribute(std::string_view name) const;

private:
    static constexpr std::size_t mostPlaces = 16;

    void begin() noexcept;
    void findUpTo(std::size_t index) const noexcept;
    std::string_view found(int place) const;

    using Parameters = std::array<std::string_view, mostPlaces>;

    const sdai::Model* _model;
    const sdai::EntityDefinition* _entity = nullptr;
    std::uint32_t _number = 0;
    mutable Parameters _parameters;
    mutable std::size_t _found = 0;
    // Behind the "(" or the "," before the next parameter; null when there is none.
    mutable const char* _next = nullptr;
    const char* _end = nullptr;
    // Of instances with a long text, which may be read often: many sets may share a property.
    std::unordered_map<std::uint32_t, std::pair<Parameters, std::size_t>> _long;
};

/// The "," or ")" behind the parameter that begins at a place; null when the text ends before.
const char* behindParameter(const char* begin, const char* end) noexcept;
/// A text without space around it.
std::string_view trimmed(const char* begin, const char* end) noexcept;
/// The number of the instance that a text begins by referring to; nothing when it does not, and when that dangles.
std::optional<std::uint32_t> referredNumber(const sdai::Model& model, std::string_view text) noexcept;

/// Takes the members of an aggregate as they stand in the file, until `take` answers false.
template <class Take>
void eachMember(std::string_view aggregate, Take take) {
    if (!aggregate.starts_with('(')) return;
    const char* const end = aggregate.data() + aggregate.size();
    for (const char *begin = aggregate.data() + 1, *behind; begin != end; begin = behind + 1) {
        behind = behindParameter(begin, end);
        if (behind == nullptr) return;
        const std::string_view member = trimmed(begin, behind);
        if (!member.empty() && !take(member)) return;
        if (*behind == ')') return;
    }
}

/// Takes the numbers of the instances that a text refers to; those that dangle are passed over. Answers how many
/// references there are.
template <class Take>
std::size_t eachReference(const sdai::Model& model, std::string_view text, Take take) {
    std::size_t count = 0;
    sdai::Part21Lexer lexer(text);
    for (auto name = lexer.nextReference(); name.kind == sdai::TokenKind::InstanceName; name = lexer.nextReference()) {
        ++count;
        if (const auto number = model.file().find(sdai::decodeInstanceName(name.text))) take(*number);
    }
    return count;
}

} // namespace velkor
