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

} // namespace velkor::text
