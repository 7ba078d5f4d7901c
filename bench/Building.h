/// A sound building of IFC2X3 of any size: elements with swept and faceted shapes, properties, places in a storey.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace velkor::bench {

/// The text of a model of so many MB; made when first asked for.
const std::string& building(std::int64_t megabytes);

/// Strings that are added to each other raise false warnings of g++ 12.
std::string together(std::initializer_list<std::string_view> parts);

/// A well-formed GlobalId for a number.
std::string guid(std::int64_t number);

} // namespace velkor::bench
