/// Look-up of schema names, which are short and ASCII, with letter case ignored.
#pragma once

#include "velkor/sdai/Dictionary.h"

#include <bit>
#include <cstdint>
#include <string_view>

namespace velkor::sdai::names {

/// The same for names that differ in letter case alone.
std::uint32_t hash(std::string_view name) noexcept;
bool equal(std::string_view a, std::string_view b) noexcept;

/// How long a table for so many names is: a power of two that leaves half of it free, which
/// also ends every search.
constexpr std::size_t tableSize(std::size_t names) {
    return names == 0 ? 0 : std::bit_ceil(2 * names);
}

/// Position of a name counted from 0, or -1. `nameAt(position)` gives the names.
template <class NameAt>
int find(NameTable table, std::uint32_t hash, std::string_view name, NameAt&& nameAt) noexcept {
    if (table.empty()) return -1;
    const std::size_t mask = table.size() - 1;
    for (std::size_t place = hash & mask; table[place] != 0; place = (place + 1) & mask) {
        const int position = table[place] - 1;
        if (equal(nameAt(position), name)) return position;
    }
    return -1;
}

template <class NameAt>
int find(NameTable table, std::string_view name, NameAt&& nameAt) noexcept {
    return find(table, hash(name), name, nameAt);
}

/// Enters a position counted from 0 for a name that the table does not hold yet.
inline void enter(std::span<std::uint16_t> table, std::uint32_t hash, std::size_t position) noexcept {
    const std::size_t mask = table.size() - 1;
    std::size_t place = hash & mask;
    while (table[place] != 0) place = (place + 1) & mask;
    table[place] = static_cast<std::uint16_t>(position + 1);
}

} // namespace velkor::sdai::names
