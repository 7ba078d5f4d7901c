/// The instances that have a GlobalId.
#pragma once

#include "velkor/sdai/Model.h"

#include <array>
#include <cstdint>
#include <deque>
#include <limits>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor::exchange {

using Identifier = std::array<char, 22>;

/// Every instance of IFCROOT, in file order, with its identifier: the one that the file has, or one that took its
/// place. Places count from 0.
class RootList {
public:
    static constexpr std::uint32_t none = std::numeric_limits<std::uint32_t>::max();

    explicit RootList(const sdai::Model& model);

    const sdai::Model& model() const noexcept { return _model; }
    std::uint32_t size() const noexcept { return static_cast<std::uint32_t>(_numbers.size()); }
    std::uint32_t number(std::uint32_t place) const { return _numbers[place]; }
    const sdai::EntityDefinition* entity(std::uint32_t place) const { return _model.entityAt(_numbers[place]); }
    /// Of an instance by its number in the file; `none` when it is no instance of IFCROOT.
    std::uint32_t place(std::uint32_t number) const;

    /// Whether the file has a text for it, whatever it is.
    bool hasText(std::uint32_t place) const { return _encoded[place].starts_with('\''); }
    /// What the file has, decoded; empty when it has none. Valid as long as the list.
    std::string_view before(std::uint32_t place);
    /// What stands now. Valid until it is replaced.
    std::string_view current(std::uint32_t place);
    void replace(std::uint32_t place, std::string_view identifier);
    /// Null for what was not replaced.
    const Identifier* replacement(std::uint32_t place) const;
    const std::unordered_map<std::uint32_t, Identifier>& replacements() const noexcept { return _replacements; }

private:
    const sdai::Model& _model;
    std::vector<std::uint32_t> _numbers;
    // As the file writes them.
    std::vector<std::string_view> _encoded;
    // Those that are not written as they read.
    std::unordered_map<std::uint32_t, std::string> _decoded;
    std::unordered_map<std::uint32_t, Identifier> _replacements;
};

} // namespace velkor::exchange
