/// Values as they stand in the file, as far as they can be read in a time that does not grow with their text: many sets
/// may share a property, and a name or value of it may be as long as the file. All texts are without space around them.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velkor {

/// A longer text is no name.
inline constexpr std::size_t longestName = 1000;

inline bool isTooLong(std::string_view name) noexcept {
    return name.size() > longestName;
}
/// Whether a value is there.
inline bool isGiven(std::string_view value) noexcept {
    return !value.empty() && value.front() != '$' && value.front() != '*';
}
/// Whether it is a string, as names are.
inline bool isText(std::string_view value) noexcept {
    return value.starts_with('\'');
}

/// A string as findings repeat it: its size alone when it is too long for a name.
std::string nameShown(std::string_view value);
/// A string in UTF-8; empty for what is too long for a name, and for what is no string.
std::string nameText(std::string_view value);

/// A value of IfcValue in the file, IFCLABEL('x').
struct TypedText {
    /// Empty when it is not typed.
    std::string_view keyword;
    /// What stands in its parentheses, and behind them.
    std::string_view content;

    /// The first token of the content when it is a string; empty otherwise.
    std::string_view string() const noexcept;
};
TypedText typedText(std::string_view value) noexcept;

} // namespace velkor
