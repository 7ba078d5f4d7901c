#include "QORIFCUnitServices.h"

#include "UnitEvaluation.h"
#include "UnitPositions.h"
#include "UnitSlots.h"
#include "velkor/sdai/DXSdaiAppInstance.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <span>
#include <vector>

using velkor::library::unitPosition;
using velkor::sdai::Aggregate;
using velkor::sdai::Primitive;

Fileschema QORIFCUnitServices::_schema = FileschemaIFC2X3;
std::array<double, 78> QORIFCUnitServices::_IFC2x3_globalSIUnitsFactors{};
std::array<double, 82> QORIFCUnitServices::_IFC4_globalSIUnitsFactors{};
double QORIFCUnitServices::_lengthConversionFactor = 1.0;
double QORIFCUnitServices::_angleConversionFactor = 1.0;
QORString QORIFCUnitServices::_unitType;
QORString QORIFCUnitServices::_unitPrefix;
QORString QORIFCUnitServices::_unitName;
bool QORIFCUnitServices::_isAlternativeLengthUnitSet = false;

namespace {

// In the order of IFCSIPREFIX, EXA to ATTO.
constexpr std::array<double, 16> prefixFactors{1e18, 1e15, 1e12, 1e9,  1e6,  1e3,   1e2,   1e1,
                                               1e-1, 1e-2, 1e-3, 1e-6, 1e-9, 1e-12, 1e-15, 1e-18};

/// A length unit that lengths in millimetres may be written in.
struct AlternativeLengthUnit {
    const char* text;
    const char* prefix;
    const char* name;
    double factor;
};

constexpr AlternativeLengthUnit alternativeLengthUnits[] = {
    {"cm", "CENTI", "METRE", 0.1},
    {"m", "", "METRE", 0.001},
    {"in", "", "INCH", 1.0 / 25.4},
    {"ft", "", "FOOT", 1.0 / 304.8},
};

/// The members of an IFCUNITASSIGNMENT; a null aggregate for any other instance.
Aggregate unitsOf(const DXSdaiAppInstance* unitAssignment) {
    if (unitAssignment == nullptr || !unitAssignment->IsKindOf("IFCUNITASSIGNMENT")) return {};
    return unitAssignment->GetAttr("UNITS").asAggregate();
}

/// What a length unit is called: by its prefix when it has one, else by its name. False when the unit states
/// a prefix or a name that is neither an enumerator nor a text.
bool lengthUnitName(const DXSdaiAppInstance& unit, QORUnicodeString& unitName) {
    if (unit.TestAttr("PREFIX")) {
        const auto prefix = unit.GetAttr("PREFIX").asEnumeration();
        if (prefix.type == nullptr) return false;
        unitName = QORUnicodeString(prefix.text());
        return true;
    }
    if (!unit.TestAttr("NAME")) return false;
    const auto name = unit.GetAttr("NAME").asEnumeration();
    unitName = name.type != nullptr ? QORUnicodeString(name.text()) : QORUnicodeString(unit.GetAttr("NAME").asString());
    return true;
}

} // namespace

QORIFCUnitServices::~QORIFCUnitServices() = default;

HRESULT QORIFCUnitServices::SetSchema(Fileschema schema) {
    _schema = schema;
    return S_OK;
}

HRESULT QORIFCUnitServices::StoreGlobalUnits(DXSdaiAppInstance* unitAssignment) {
    std::span<double> stored;
    if (_schema == FileschemaIFC2X3) stored = _IFC2x3_globalSIUnitsFactors;
    if (_schema == FileschemaIFC4) stored = _IFC4_globalSIUnitsFactors;
    std::vector<double> factors(stored.size(), 1.0);

    HRESULT result = E_FAIL;
    for (const Primitive member : unitsOf(unitAssignment)) {
        DXSdaiAppInstance* unit = member.asInstance();
        if (unit == nullptr) continue;
        const int slot = GetUnitSlot(unit);
        if (slot == velkor::noSlot || static_cast<std::size_t>(slot) >= factors.size()) continue;
        factors[static_cast<std::size_t>(slot)] = GetUnitConversionFactor(unit);
        result = S_OK;
    }
    std::ranges::copy(factors, stored.begin());
    return result;
}

int QORIFCUnitServices::GetUnitSlot(const DXSdaiAppInstance* unit) {
    const bool isDerived = unit->IsKindOf("IFCDERIVEDUNIT");
    if (!isDerived && !unit->IsKindOf("IFCNAMEDUNIT")) return velkor::noSlot;
    const int position = unitPosition(unit->GetAttr("UNITTYPE").asEnumeration(), _schema);
    if (position < 0) return velkor::noSlot;
    return isDerived ? position + velkor::firstDerivedSlot : position;
}

double QORIFCUnitServices::GetUnitConversionFactor(DXSdaiAppInstance* unit) {
    return velkor::library::UnitEvaluation(_schema).factor(unit);
}

double QORIFCUnitServices::GetPrefixValue(int prefixIndex) {
    const auto index = static_cast<std::size_t>(prefixIndex);
    return index < prefixFactors.size() ? prefixFactors[index] : 1.0;
}

double QORIFCUnitServices::GetGlobalUnitConversionFactor(QORUnicodeString& measureTypeName) {
    const auto factorIn = [](const auto& factors, int slot) { return factors[static_cast<std::size_t>(slot)]; };
    for (const velkor::MeasureSlots& measure : velkor::measureSlots) {
        if (!velkor::text::equalIgnoringCase(measureTypeName.utf8(), measure.name)) continue;
        if (_schema == FileschemaIFC2X3 && measure.ifc2x3 != velkor::noSlot)
            return factorIn(_IFC2x3_globalSIUnitsFactors, measure.ifc2x3);
        if (_schema == FileschemaIFC4) return factorIn(_IFC4_globalSIUnitsFactors, measure.ifc4);
        return 1.0;
    }
    return 1.0;
}

HRESULT QORIFCUnitServices::GetSIConversionFactorforGeometry(double& lengthFactor, double& angleFactor) {
    using velkor::LengthUnit;
    using velkor::PlaneAngleUnit;
    if (_schema == FileschemaIFC2X3) {
        lengthFactor = _IFC2x3_globalSIUnitsFactors[LengthUnit] * 1000.0;
        angleFactor = _IFC2x3_globalSIUnitsFactors[PlaneAngleUnit];
    } else if (_schema == FileschemaIFC4) {
        lengthFactor = _IFC4_globalSIUnitsFactors[LengthUnit] * 1000.0;
        angleFactor = _IFC4_globalSIUnitsFactors[PlaneAngleUnit];
    }
    return lengthFactor == 0.0 || angleFactor == 0.0 ? E_FAIL : S_OK;
}

HRESULT QORIFCUnitServices::GetDocumentLengthUnit(DXSdaiAppInstance* unitAssignment, QORUnicodeString& unitName,
                                                  double& factor) {
    for (const Primitive member : unitsOf(unitAssignment)) {
        DXSdaiAppInstance* unit = member.asInstance();
        if (unit == nullptr || !(unit->IsKindOf("IFCCONVERSIONBASEDUNIT") || unit->IsKindOf("IFCSIUNIT"))) continue;
        if (unitPosition(unit->GetAttr("UNITTYPE").asEnumeration(), _schema) != velkor::LengthUnit) continue;
        factor = GetUnitConversionFactor(unit);
        if (lengthUnitName(*unit, unitName)) break;
    }
    return S_OK;
}

double QORIFCUnitServices::GetLengthConversionFactor() {
    return _lengthConversionFactor;
}

void QORIFCUnitServices::SetLengthConversionFactor(const double& factor) {
    _lengthConversionFactor = factor;
}

double QORIFCUnitServices::GetAngleConversionFactor() {
    return _angleConversionFactor;
}

void QORIFCUnitServices::SetAngleConversionFactor(const double&) {}

HRESULT QORIFCUnitServices::SetAlternativeLengthUnit(const QORUnicodeString& unit) {
    _unitType = "LENGTHUNIT";
    for (const AlternativeLengthUnit& known : alternativeLengthUnits) {
        if (unit.Compare(known.text) == 0) continue;
        _unitPrefix = known.prefix;
        _unitName = known.name;
        _lengthConversionFactor = known.factor;
        break;
    }
    return S_OK;
}

HRESULT QORIFCUnitServices::GetAlternativeLengthUnit(QORUnicodeString& unitType, QORUnicodeString& unitPrefix,
                                                     QORUnicodeString& unitName, double& factor) {
    unitType = QORUnicodeString(_unitType.view());
    unitPrefix = QORUnicodeString(_unitPrefix.view());
    unitName = QORUnicodeString(_unitName.view());
    factor = _lengthConversionFactor;
    return S_OK;
}

bool QORIFCUnitServices::GetAlternativeLengthUnitFlag() {
    return _isAlternativeLengthUnitSet;
}

void QORIFCUnitServices::SetAlternativeLengthUnitFlag(const bool& flag) {
    _isAlternativeLengthUnitSet = flag;
}
