/// Where properties go, by the kind of their objects.
#pragma once

#include "ObjectTypes.h"
#include "velkor/exchange/Conversion.h"
#include "velkor/mapping/TypeMapping.h"

#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>

namespace velkor::exchange {

/// Handed out as a pointer; the same target always has the same.
struct Target {
    std::string set;
    std::string property;
    const ConversionRule* rule;

    bool operator<(const Target& other) const {
        return std::tie(set, property, rule) < std::tie(other.set, other.property, other.rule);
    }
};

/// The custom mapping is asked first, about the property and then about its set as a whole, and for each name of a kind
/// from the nearest on; what it does not know may be a PLM attribute. Each question is asked once.
class NameTargets {
public:
    NameTargets(TypeMapping mapping, const PropertyOptions& options) : _mapping(mapping), _options(options) {}

    /// Null when a property stays as it is. `position` is that of the kind.
    const Target* of(const ObjectKind& kind, std::uint32_t position, const std::string& set,
                     const std::string& property, bool isQuantity);

private:
    std::optional<Target> find(const ObjectKind& kind, const std::string& set, const std::string& property,
                               bool isQuantity) const;

    TypeMapping _mapping;
    const PropertyOptions& _options;
    std::set<Target> _targets;
    std::unordered_map<std::string, const Target*> _known;
};

} // namespace velkor::exchange
