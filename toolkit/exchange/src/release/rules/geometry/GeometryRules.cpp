#include "release/rules/geometry/GeometryTables.h"

#include <algorithm>
#include <vector>

namespace velkor::exchange {

namespace {

std::vector<RebuildRule> allRules() {
    std::vector<RebuildRule> all;
    // Of two rows for one entity the first that is for an instance holds: what is lost comes last.
    for (const auto part :
         {faceSetRules(), indexedCurveRules(), splineRules(), brepRules(), curveSegmentRules(), sweepRules(),
          filletRules(), plainerShapeRules(), representationTypeRules(), lostGeometryRules()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

} // namespace

RuleTable geometryRules() {
    static const std::vector<RebuildRule> all = allRules();
    return {.rebuild = all, .values = geometryValues(), .defaults = geometryDefaults(), .wholes = wholeShapes()};
}

const ConversionRule& geometryRule(std::string_view name) {
    const std::span<const RebuildRule> all = geometryRules().rebuild;
    return std::ranges::find(all, name, [](const RebuildRule& row) { return row.rule.name; })->rule;
}

Successor notHere(const Releases&, DXSdaiAppInstance&) {
    return Successor::notHere();
}

Successor replacedBy(const Releases& releases, const DXSdaiAppInstance& instance, std::string_view entity) {
    return releases.target.entity(instance.entity()->name()) ? Successor::notHere() : Successor::of(releases, entity);
}

Successor lostWhereLacking(const Releases& releases, DXSdaiAppInstance& instance) {
    return releases.target.entity(instance.entity()->name()) ? Successor::notHere() : Successor::lost();
}

} // namespace velkor::exchange
