/// Numbers, names and lists as messages for people put them.
#pragma once

#include "velkor/PlatformExport.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>

namespace velkor::text {

/// A number with its digits in groups of three: "1,234,567".
VELKOR_PLATFORM_API std::string grouped(std::uint64_t number);

/// A count and what is counted: "1 error", "1,200 errors".
VELKOR_PLATFORM_API std::string counted(std::uint64_t number, std::string_view singular, std::string_view plural);

/// The shortest decimal text that reads back as the same double.
VELKOR_PLATFORM_API std::string shortest(double value);

/// A text in quotation marks, as it is.
VELKOR_PLATFORM_API std::string quoted(std::string_view text);
/// The beginning of a text in quotation marks, "…" in them when that is not all.
VELKOR_PLATFORM_API std::string quotedBeginning(std::string_view text, std::size_t longestBytes);

/// What a range holds, one behind the other, each as `word` puts it in a text.
template <class Range, class Word = std::identity>
std::string joined(Range&& items, std::string_view separator = ", ", Word word = {}) {
    std::string result;
    std::string_view between;
    for (auto&& item : items) {
        result.append(between).append(std::invoke(word, item));
        between = separator;
    }
    return result;
}
/// The same as a choice: "a, b or c".
template <class Range, class Word = std::identity>
std::string alternatives(const Range& items, Word word = {}) {
    std::string result;
    std::size_t rest = std::size(items);
    for (const auto& item : items) {
        if (rest != std::size(items)) result += rest == 1 ? " or " : ", ";
        result.append(std::invoke(word, item));
        --rest;
    }
    return result;
}

} // namespace velkor::text
