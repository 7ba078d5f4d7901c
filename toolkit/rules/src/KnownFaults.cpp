#include "KnownFaults.h"

#include <algorithm>
#include <array>

namespace velkor::rules {

namespace {

constexpr std::string_view fromIfc4{"IFC4 IFC4X1 IFC4X2 IFC4X3_RC1 IFC4X3_RC3 IFC4X3_ADD2"};
constexpr std::string_view declaration =
    "the declaration in the EXPRESS schema of the release (ISO 16739, buildingSMART)";

constexpr std::array<KnownFault, 7> faults{{
    {"IfcAdvancedBrepWithVoids.VoidsHaveAdvancedFaces", fromIfc4,
     "it asks of every void for a face that is no IfcAdvancedFace, the contrary of its label and of "
     "IfcAdvancedBrep.HasAdvancedFaces: a NOT is missing before the inner comparison",
     declaration},
    {"IfcBooleanClippingResult.FirstOperandType", fromIfc4,
     "it means IfcSweptDiskSolid but names IFCSWEPTDISCSOLID, which no schema declares: a swept disk solid never "
     "passes",
     declaration},
    {"IfcNamedUnit.WR1", "IFC2X3",
     "for a capacitance it wants the exponents (-2, 1, 4, 1, 0, 0, 0), which those of FARAD are not in the same "
     "schema: no "
     "unit of capacitance in SI passes",
     "IfcCorrectDimensions and IfcDimensionsForSiUnit in the EXPRESS schema of the release (ISO 16739, buildingSMART)",
     "UNITTYPE", ".ELECTRICCAPACITANCEUNIT."},
    {"IfcPresentationLayerWithStyle.ApplicableOnlyToItems", "IFC4X1 IFC4X2 IFC4X3_RC1 IFC4X3_RC3 IFC4X3_ADD2",
     "it spells names of types in mixed case, which TYPEOF answers in upper case: no item ever passes", declaration},
    {"IfcServiceLifeFactor.WR31", "IFC2X3",
     "it asks a property set definition for the ObjectType of IfcObject, which it never is: USERDEFINED never passes",
     declaration},
    {"IfcTransformer.CorrectTypeAssigned", "IFC4 IFC4X1 IFC4X2 IFC4X3_RC1 IFC4X3_RC3",
     "it means IfcTransformerType but names IFCTRANFORMERTYPE, which no schema declares: no type ever passes",
     declaration},
    {"IfcTransportElement.CorrectPredefinedType", "IFC4X3_RC3",
     "it asks an element for the ElementType of IfcElementType, which it never is: USERDEFINED never passes",
     declaration},
}};

bool isAmong(std::string_view release, std::string_view releases) {
    while (!releases.empty()) {
        const std::size_t end = std::min(releases.find(' '), releases.size());
        if (releases.substr(0, end) == release) return true;
        releases.remove_prefix(std::min(end + 1, releases.size()));
    }
    return false;
}

} // namespace

const KnownFault* knownFault(std::string_view release, std::string_view rule) noexcept {
    const auto* fault = std::ranges::find(faults, rule, &KnownFault::rule);
    return fault != faults.end() && isAmong(release, fault->releases) ? fault : nullptr;
}

} // namespace velkor::rules
