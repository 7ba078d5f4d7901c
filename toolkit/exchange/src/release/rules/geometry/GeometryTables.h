/// The parts that the table of geometry is put together from.
#pragma once

#include "release/Rebuilding.h"

#include <span>
#include <string_view>

namespace velkor::exchange {

std::span<const RebuildRule> faceSetRules();
std::span<const RebuildRule> indexedCurveRules();
std::span<const RebuildRule> splineRules();
std::span<const RebuildRule> brepRules();
std::span<const RebuildRule> curveSegmentRules();
std::span<const RebuildRule> sweepRules();
std::span<const RebuildRule> filletRules();
std::span<const RebuildRule> plainerShapeRules();
std::span<const RebuildRule> representationTypeRules();
std::span<const RebuildRule> lostGeometryRules();
std::span<const DefaultRule> geometryDefaults();
std::span<const ValueRule> geometryValues();
std::span<const WholeAggregate> wholeShapes();

/// The rule of the table that has a name.
const ConversionRule& geometryRule(std::string_view name);

} // namespace velkor::exchange
