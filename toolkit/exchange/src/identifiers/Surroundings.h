/// What instances are and stand under, in texts that do not depend on ids or on the order of a file.
#pragma once

#include "RootList.h"
#include "velkor/model/Progress.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor::exchange {

/// Found in one pass over the relationships, for the instances asked for alone; time and memory in proportion to their
/// text.
class Surroundings {
public:
    /// `wanted` has an entry for each place of the list. Identifiers are those of the file, not what took their place.
    Surroundings(RootList& roots, const std::vector<bool>& wanted);

    /// Entity, name and tag, then what a wanted instance stands under or, of a relationship, what it relates.
    std::string of(std::uint32_t place);

private:
    void addBelow(std::string_view entity, std::string_view lower, std::string_view upper);
    bool isWanted(std::uint32_t number) const;
    /// What tells an instance from others: its identifier, else entity and name. Empty for what has none.
    std::string_view identity(std::uint32_t number);
    std::string identities(std::string_view parameter);
    std::string related(std::uint32_t number);

    RootList& _roots;
    const std::vector<bool>& _wanted;
    std::unordered_map<std::uint32_t, std::string> _named;
    // What stands above, by place.
    std::unordered_map<std::uint32_t, std::vector<std::string>> _above;
};

} // namespace velkor::exchange
