#include "velkor/text/Wording.h"

#include "velkor/text/Unicode.h"

#include <array>
#include <charconv>

namespace velkor::text {

std::string grouped(std::uint64_t number) {
    std::string digits = std::to_string(number);
    for (auto position = static_cast<int>(digits.size()) - 3; position > 0; position -= 3) {
        digits.insert(static_cast<std::size_t>(position), 1, ',');
    }
    return digits;
}

std::string counted(std::uint64_t number, std::string_view singular, std::string_view plural) {
    return grouped(number).append(" ").append(number == 1 ? singular : plural);
}

std::string shortest(double value) {
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), end};
}

std::string quoted(std::string_view text) {
    std::string result;
    result.reserve(text.size() + 2);
    return result.append("\"").append(text).append("\"");
}

std::string quotedBeginning(std::string_view text, std::size_t longestBytes) {
    if (text.size() <= longestBytes) return quoted(text);
    return quoted(std::string(beginning(text, longestBytes)) + "…");
}

} // namespace velkor::text
