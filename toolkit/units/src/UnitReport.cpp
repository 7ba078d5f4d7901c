#include "velkor/units/UnitReport.h"

#include "QORIFCUnitServices.h"
#include "UnitSlots.h"

#include <algorithm>
#include <unordered_set>

namespace velkor {

namespace {

// A unit made of more elements is not spelled out.
constexpr std::size_t mostElementsNamed = 8;

DXSdaiAppInstance* findAssignment(const sdai::Model& model) {
    for (const char* context : {"IFCPROJECT", "IFCCONTEXT"}) {
        for (const std::uint32_t number : model.numbersOf(context)) {
            auto* assignment = model.instanceAt(number)->GetAttr("UNITSINCONTEXT").asInstance();
            if (assignment != nullptr && assignment->IsKindOf("IFCUNITASSIGNMENT")) return assignment;
        }
    }
    const auto numbers = model.numbersOf("IFCUNITASSIGNMENT");
    return numbers.empty() ? nullptr : model.instanceAt(numbers.front());
}

std::string textOf(const DXSdaiAppInstance& unit, std::string_view attribute) {
    const sdai::Primitive value = unit.GetAttr(attribute);
    const sdai::Enumeration enumeration = value.asEnumeration();
    return enumeration.type != nullptr ? std::string(enumeration.text()) : value.asString();
}

std::string namedUnitName(const DXSdaiAppInstance& unit) {
    return unit.IsKindOf("IFCSIUNIT") ? textOf(unit, "PREFIX") + textOf(unit, "NAME") : textOf(unit, "NAME");
}

std::string derivedUnitName(const DXSdaiAppInstance& unit) {
    for (const char* attribute : {"NAME", "USERDEFINEDTYPE"}) {
        if (std::string name = textOf(unit, attribute); !name.empty()) return name;
    }
    std::string result;
    std::size_t count = 0;
    for (const sdai::Primitive member : unit.GetAttr("ELEMENTS").asAggregate()) {
        if (count++ == mostElementsNamed) return result + " …";
        const auto* element = member.asInstance();
        const auto* base = element != nullptr ? element->GetAttr("UNIT").asInstance() : nullptr;
        if (base == nullptr) continue;
        if (!result.empty()) result += ' ';
        result += namedUnitName(*base);
        const auto exponent = element->GetAttr("EXPONENT").asInteger().value_or(1);
        if (exponent != 1) result += '^' + std::to_string(exponent);
    }
    return result;
}

UnitReport::Unit describe(DXSdaiAppInstance& unit) {
    UnitReport::Unit result;
    result.id = unit.id();
    if (unit.entity() != nullptr) result.entity = unit.entity()->name();
    result.type = unit.GetAttr("UNITTYPE").asEnumeration().text();
    result.name = unit.IsKindOf("IFCDERIVEDUNIT")    ? derivedUnitName(unit)
                  : unit.IsKindOf("IFCMONETARYUNIT") ? textOf(unit, "CURRENCY")
                                                     : namedUnitName(unit);
    if (const int slot = QORIFCUnitServices::GetUnitSlot(&unit); slot != noSlot) result.slot = slot;
    result.factor = QORIFCUnitServices::GetUnitConversionFactor(&unit);
    return result;
}

} // namespace

const UnitReport::Unit* UnitReport::inForce(std::string_view type) const {
    const auto found = std::ranges::find(units.rbegin(), units.rend(), type, &Unit::type);
    return found == units.rend() ? nullptr : &*found;
}

UnitReport unitReport(const sdai::Model& model) {
    UnitReport report;
    DXSdaiAppInstance* assignment = findAssignment(model);
    QORIFCUnitServices::SetSchema(fileschemaOf(model.schema().name()));
    // Also without an assignment, so that no other model's factors are left.
    QORIFCUnitServices::StoreGlobalUnits(assignment);
    if (assignment != nullptr) {
        report.assignment = assignment->id();
        // A set: what a file repeats counts once.
        std::unordered_set<const DXSdaiAppInstance*> seen;
        for (const sdai::Primitive member : assignment->GetAttr("UNITS").asAggregate()) {
            auto* unit = member.asInstance();
            if (unit != nullptr && seen.insert(unit).second) report.units.push_back(describe(*unit));
        }
    }
    report.geometryResult =
        QORIFCUnitServices::GetSIConversionFactorforGeometry(report.lengthFactor, report.angleFactor);
    QORUnicodeString name;
    QORIFCUnitServices::GetDocumentLengthUnit(assignment, name, report.lengthUnitFactor);
    report.lengthUnitName = name.utf8();
    for (const MeasureSlots& measure : measureSlots) {
        QORUnicodeString measureName(measure.name);
        report.measures.emplace_back(measure.name, QORIFCUnitServices::GetGlobalUnitConversionFactor(measureName));
    }
    return report;
}

} // namespace velkor
