#include "velkor/units/UnitReport.h"

#include "QORIFCUnitServices.h"

#include <array>
#include <unordered_set>

namespace velkor {

namespace {

constexpr std::array measureNames{
    "IFCLENGTHMEASURE",
    "IFCPOSITIVELENGTHMEASURE",
    "IFCNONNEGATIVELENGTHMEASURE",
    "IFCAREAMEASURE",
    "IFCVOLUMEMEASURE",
    "IFCPLANEANGLEMEASURE",
    "IFCPOSITIVEPLANEANGLEMEASURE",
    "IFCTIMEMEASURE",
    "IFCMASSMEASURE",
    "IFCENERGYMEASURE",
    "IFCTHERMODYNAMICTEMPERATUREMEASURE",
    "IFCMAGNETICFLUXMEASURE",
    "IFCPRESSUREMEASURE",
    "IFCPOWERMEASURE",
    "IFCILLUMINANCEMEASURE",
    "IFCVOLUMETRICFLOWRATEMEASURE",
    "IFCLINEARVELOCITYMEASURE",
    "IFCMASSDENSITYMEASURE",
    "IFCAREADENSITYMEASURE",
    "IFCTHERMALTRANSMITTANCEMEASURE",
    "IFCHEATFLUXDENSITYMEASURE",
    "IFCSOLIDANGLEMEASURE",
    "IFCELECTRICCURRENTMEASURE",
    "IFCAMOUNTOFSUBSTANCEMEASURE",
    "IFCLUMINOUSINTENSITYMEASURE",
};

// A unit made of more elements is not spelled out.
constexpr std::size_t mostElementsNamed = 8;

/// The schema as the unit services know it: every release after IFC2X3 shares the table of IFC4.
Fileschema fileSchema(const sdai::SchemaDefinition& schema) {
    return schema.name() == "IFC2X3" ? FileschemaIFC2X3 : FileschemaIFC4;
}

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
    for (sdai::AggregateIterator it(unit.GetAttr("ELEMENTS").asAggregate()); it.next(); ++count) {
        if (count == mostElementsNamed) return result + " …";
        const auto* element = it.current().asInstance();
        const auto* base = element != nullptr ? element->GetAttr("UNIT").asInstance() : nullptr;
        if (base == nullptr) continue;
        if (!result.empty()) result += ' ';
        result += namedUnitName(*base);
        const auto exponent = element->GetAttr("EXPONENT").asInteger().value_or(1);
        if (exponent != 1) result += '^' + std::to_string(exponent);
    }
    return result;
}

/// Where the unit services keep the factor of a unit: by its type's position in the dictionary of the schema
/// set, derived units from 29 on.
std::optional<int> slotOf(const DXSdaiAppInstance& unit) {
    const bool isDerived = unit.IsKindOf("IFCDERIVEDUNIT");
    if (!isDerived && !unit.IsKindOf("IFCNAMEDUNIT")) return std::nullopt;
    const char* reference = fileSchema(unit.model().schema()) == FileschemaIFC2X3 ? "IFC2X3" : "IFC4";
    const auto schema = DXSdaiDictionaryRepo::TheOne().schema(reference);
    const auto* type = schema ? (*schema)->definedType(isDerived ? "IFCDERIVEDUNITENUM" : "IFCUNITENUM") : nullptr;
    const auto* enumeration = type != nullptr ? type->resolved().asEnumeration() : nullptr;
    const int position =
        enumeration != nullptr ? enumeration->position(unit.GetAttr("UNITTYPE").asEnumeration().text()) : -1;
    if (position < 0) return std::nullopt;
    return isDerived ? position + 29 : position;
}

UnitReport::Unit describe(DXSdaiAppInstance& unit) {
    UnitReport::Unit result;
    result.id = unit.id();
    if (unit.entity() != nullptr) result.entity = unit.entity()->name();
    result.type = unit.GetAttr("UNITTYPE").asEnumeration().text();
    result.name = unit.IsKindOf("IFCDERIVEDUNIT")    ? derivedUnitName(unit)
                  : unit.IsKindOf("IFCMONETARYUNIT") ? textOf(unit, "CURRENCY")
                                                     : namedUnitName(unit);
    result.slot = slotOf(unit);
    result.factor = QORIFCUnitServices::GetUnitConversionFactor(&unit);
    return result;
}

} // namespace

UnitReport unitReport(const sdai::Model& model) {
    UnitReport report;
    DXSdaiAppInstance* assignment = findAssignment(model);
    QORIFCUnitServices::SetSchema(fileSchema(model.schema()));
    // Also without an assignment, so that no other model's factors are left.
    QORIFCUnitServices::StoreGlobalUnits(assignment);
    if (assignment != nullptr) {
        report.assignment = assignment->id();
        // A set: what a file repeats counts once.
        std::unordered_set<const DXSdaiAppInstance*> seen;
        for (sdai::AggregateIterator it(assignment->GetAttr("UNITS").asAggregate()); it.next();) {
            auto* unit = it.current().asInstance();
            if (unit != nullptr && seen.insert(unit).second) report.units.push_back(describe(*unit));
        }
    }
    report.geometryResult =
        QORIFCUnitServices::GetSIConversionFactorforGeometry(report.lengthFactor, report.angleFactor);
    QORUnicodeString name;
    QORIFCUnitServices::GetDocumentLengthUnit(assignment, name, report.lengthUnitFactor);
    report.lengthUnitName = name.utf8();
    for (const char* measure : measureNames) {
        QORUnicodeString measureName(measure);
        report.measures.emplace_back(measure, QORIFCUnitServices::GetGlobalUnitConversionFactor(measureName));
    }
    return report;
}

} // namespace velkor
