/// The values of single properties and quantities, by the object that has them: in sets of its own, or else in those of
/// its type.
#pragma once

#include "velkor/sdai/Model.h"

#include <map>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace velkor::python {

class PropertyValues {
public:
    /// Set and property, as the file has to write them.
    using Name = std::pair<std::string, std::string>;

    /// One pass over the relationships that give objects their sets and types.
    PropertyValues(const sdai::Model& model, const std::vector<Name>& names);

    /// The value of the property of a place in the list of names; an unset handle when the object has none. The first
    /// that is set counts.
    sdai::Primitive of(const DXSdaiAppInstance& object, std::size_t name) const;

private:
    using Values = std::map<std::size_t, sdai::Primitive>;

    const Values& valuesOf(const DXSdaiAppInstance* set);

    const std::vector<Name>& _names;
    std::unordered_map<const DXSdaiAppInstance*, Values> _ofSet;
    // Objects with sets of their own, and types.
    std::unordered_map<const DXSdaiAppInstance*, Values> _ofHolder;
    std::unordered_map<const DXSdaiAppInstance*, const DXSdaiAppInstance*> _types;
};

} // namespace velkor::python
