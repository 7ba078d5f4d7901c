/// What old units leave behind: which of them nobody uses any more, and which instances only they needed.
#pragma once

#include "velkor/sdai/Model.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace velkor::exchange {

class UnitUsers {
public:
    /// Units by number, and the assignments whose use of them does not count. Reads the instances that may refer to
    /// units once.
    UnitUsers(const sdai::Model& model, std::span<const std::uint32_t> units,
              std::span<const std::uint32_t> assignments);

    /// Whether an instance is one of the units, or of those that they are defined by, and nothing that stays uses it.
    bool isLeft(std::uint32_t number) const;
    /// All of them.
    std::vector<std::uint32_t> left() const;

private:
    void takeParts(std::span<const std::uint32_t> units);
    void findUsers(std::span<const std::uint32_t> assignments);
    void keepUsed();
    std::vector<char> readKeywords() const;

    const sdai::Model& _model;
    struct Part {
        std::uint32_t number = 0;
        bool isUsed = false;
    };
    std::vector<Part> _parts;
    // Places in the parts, by number.
    std::unordered_map<std::uint32_t, std::size_t> _places;
    // Which part uses which.
    std::vector<std::pair<std::size_t, std::size_t>> _uses;
};

} // namespace velkor::exchange
