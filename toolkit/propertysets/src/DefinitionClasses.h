/// What a definition applies to, from the texts that say so.
#pragma once

#include "velkor/propertysets/DefinitionFile.h"
#include "velkor/propertysets/SetDefinition.h"

#include <string_view>
#include <vector>

namespace velkor::definitions {

/// The classes that a text names: "IfcWall", "IfcActuator/ELECTRICACTUATOR", "IFCSHAREDBLDGELEMENTS/IfcBeam", several
/// with commas between them.
void addClasses(std::string_view text, int line, std::vector<ApplicableClass>& classes,
                std::vector<DefinitionFault>& faults);

/// What the applicable type value says of the classes besides: "IfcActuator/ELECTRICACTUATOR" again, or as IFC2X3 has
/// it `IfcActuatorType.PredefinedType="ELECTRICACTUATOR"`, alternatives with "|" between them.
void addConditions(std::string_view text, int line, std::vector<ApplicableClass>& classes,
                   std::vector<DefinitionFault>& faults);

} // namespace velkor::definitions
