/// The instances that relationships bring together.
///
///     eachInstance(relationship.GetAttr("RELATEDOBJECTS").asAggregate(), [&](DXSdaiAppInstance* object) { use(object);
///     }); eachSet(relationship, [&](DXSdaiAppInstance* set) { use(set); });
///
/// Nothing is allocated. What does not lead to an instance is passed over.
#pragma once

#include "velkor/sdai/Model.h"

namespace velkor {

template <class Take>
/// Calls a function with each member that is an instance.
void eachInstance(const sdai::Aggregate& aggregate, Take take) {
    for (const sdai::Primitive member : aggregate) {
        if (DXSdaiAppInstance* instance = member.asInstance()) take(instance);
    }
}

/// The sets of an IFCRELDEFINESBYPROPERTIES: one, or since IFC4 several at once.
template <class Take>
void eachSet(const DXSdaiAppInstance& relationship, Take take) {
    const sdai::Primitive definition = relationship.GetAttr("RELATINGPROPERTYDEFINITION");
    if (DXSdaiAppInstance* set = definition.asInstance())
        take(set);
    else
        eachInstance(definition.asSelect().underlyingValue().asAggregate(), take);
}

} // namespace velkor
