/// What a release does not know of a definition, part by part, with what was probably meant.
#pragma once

#include "Dictionaries.h"
#include "velkor/propertysets/DefinitionFile.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::lint {

struct PartFault {
    DefinitionFault fault;
    /// What it is about; neither when it is the whole.
    const ApplicableClass* applicable = nullptr;
    /// Of the set itself, also where a member of it is meant.
    const PropertyDefinition* property = nullptr;
    /// Empty when nothing is known.
    std::string hint;
};

/// Of several releases, what none of them takes is told, as the last one tells it. Points into the definition.
std::vector<PartFault> faultsOf(const SetDefinition& definition, const Dictionaries::Releases& releases,
                                Dictionaries& dictionaries);

} // namespace velkor::lint
