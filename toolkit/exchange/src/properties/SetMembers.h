/// The property sets and quantity sets of a model, what is in them and which objects have them.
#pragma once

#include "velkor/sdai/Model.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor::exchange {

struct SetMembers {
    struct User {
        /// The relationship, or the type object that has the set itself.
        std::uint32_t by = 0;
        std::uint32_t object = 0;
    };
    std::uint32_t set = 0;
    std::string name;
    /// "HASPROPERTIES" or "QUANTITIES".
    std::string_view attribute;
    std::vector<std::uint32_t> members;
    /// In file order.
    std::vector<User> users;
    /// A type object has it.
    bool isOfType = false;
};

/// In file order; sets that nobody has are left out. Damaged ones and what dangles are passed over.
std::vector<SetMembers> setsOf(const sdai::Model& model);

} // namespace velkor::exchange
