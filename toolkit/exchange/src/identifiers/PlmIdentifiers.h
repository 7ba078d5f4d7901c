/// The PLM identifiers that a model's objects have.
#pragma once

#include "velkor/sdai/Model.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace velkor::exchange {

/// An object has the text of an explicit attribute of the name, else the value of the first single-value property of
/// the name in its own sets, which is a text or a number as it stands. Letter case is ignored. What a type says is the
/// type's: its occurrences would all have the same.
class PlmIdentifiers {
public:
    PlmIdentifiers(const sdai::Model& model, std::string_view attribute);

    /// Empty when an object has none. `number` is that of an instance of IFCOBJECTDEFINITION.
    std::string of(std::uint32_t number) const;

private:
    const sdai::Model& _model;
    std::string _attribute;
    // The property by object.
    std::unordered_map<std::uint32_t, std::uint32_t> _properties;
};

} // namespace velkor::exchange
