/// Numbers and names as messages for people put them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velkor::text {

/// A number with its digits in groups of three: "1,234,567".
std::string grouped(std::uint64_t number);

/// A count and what is counted: "1 error", "1,200 errors".
std::string counted(std::uint64_t number, std::string_view singular, std::string_view plural);

/// The shortest decimal text that reads back as the same double.
std::string shortest(double value);

/// Texts in their order with a separator between each two.
template <class Texts>
std::string joined(const Texts& texts, std::string_view separator) {
    std::string result;
    bool isFirst = true;
    for (const std::string_view text : texts) {
        if (!isFirst) result += separator;
        isFirst = false;
        result += text;
    }
    return result;
}

} // namespace velkor::text
