/// What a model's units are worth in SI terms, and which length unit the host wants lengths in.
///
///     QORIFCUnitServices::SetSchema(FileschemaIFC4);
///     QORIFCUnitServices::StoreGlobalUnits(unitAssignment); // the model's IFCUNITASSIGNMENT
///     double millimetres = 0.0, radians = 0.0;
///     QORIFCUnitServices::GetSIConversionFactorforGeometry(millimetres, radians);
///
/// State is static: one model at a time per process, and calls from one thread. A factor is the number
/// of SI base units in one of the unit: 0.001 for a millimetre.
///
/// A position of an enumeration is one in the dictionary of the schema that was set, IFC2X3 or IFC4
/// (IFC4 also for other values). Values of another release are taken there by enumerator name.
#pragma once

#include "Fileschema.h"
#include "VelkorExport.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORString.h"
#include "velkor/text/QORUnicodeString.h"

#include <array>

class DXSdaiAppInstance;

class VELKOR_API QORIFCUnitServices {
public:
    QORIFCUnitServices() = default;
    virtual ~QORIFCUnitServices();

    /// Sets the schema whose factor table the other operations use. S_OK.
    static HRESULT SetSchema(Fileschema schema);

    /// Fills the factor table of the schema from an IFCUNITASSIGNMENT; a unit of the same type stored later
    /// wins. The table is reset to 1.0 first in any case. S_OK when at least one unit was stored; E_FAIL
    /// for another instance, none, no units, or a schema without a table.
    static HRESULT StoreGlobalUnits(DXSdaiAppInstance* unitAssignment);

    /// Slot of a unit's factor in the table of the schema (UnitSlots.h), by its unit type; -1 for an instance that
    /// is no named or derived unit or has none of the types. `unit` must not be null.
    static int GetUnitSlot(const DXSdaiAppInstance* unit);

    /// Factor of one unit: an IFCSIUNIT by prefix and unit type, an IFCCONVERSIONBASEDUNIT by its conversion
    /// factor, an IFCDERIVEDUNIT by its elements; 1.0 for all others. `unit` must not be null. What is
    /// missing counts as 1.0; so does a unit that is defined by itself or over more than a thousand
    /// others, and an assertion reports it.
    static double GetUnitConversionFactor(DXSdaiAppInstance* unit);

    /// Factor of a position in IFCSIPREFIX, 0 (EXA, 1e18) to 15 (ATTO, 1e-18); 1.0 for any other.
    static double GetPrefixValue(int prefixIndex);

    /// Global factor for an IFC measure type ("IFCLENGTHMEASURE"), letter case ignored; 1.0 for an unknown
    /// one, and 0.0 as long as no global units were stored for the schema.
    static double GetGlobalUnitConversionFactor(QORUnicodeString& measureTypeName);

    /// Millimetres per model length unit and radians per model angle unit. E_FAIL when one of them is 0.0
    /// afterwards; untouched when the schema has no table.
    static HRESULT GetSIConversionFactorforGeometry(double& lengthFactor, double& angleFactor);

    /// The model's length unit: enumerator of its prefix ("MILLI"), else its name ("METRE", "INCH"), and its
    /// factor. Untouched when there is none. S_OK always.
    static HRESULT GetDocumentLengthUnit(DXSdaiAppInstance* unitAssignment, QORUnicodeString& unitName, double& factor);

    /// Factor of the alternative length unit: what a length in millimetres is multiplied by. 1.0 at first.
    static double GetLengthConversionFactor();
    static void SetLengthConversionFactor(const double& factor);

    /// 1.0 always.
    static double GetAngleConversionFactor();
    /// Leaves the angle factor as it is: angles are never rescaled.
    static void SetAngleConversionFactor(const double& factor);

    /// Chooses the alternative length unit: "cm", "m", "in" or "ft", letter case ignored. Any other text
    /// sets the unit type alone. S_OK always.
    static HRESULT SetAlternativeLengthUnit(const QORUnicodeString& unit);
    /// The alternative length unit as IFC names it: "LENGTHUNIT", the SI prefix or nothing, the unit's name,
    /// and the factor. S_OK always.
    static HRESULT GetAlternativeLengthUnit(QORUnicodeString& unitType, QORUnicodeString& unitPrefix,
                                            QORUnicodeString& unitName, double& factor);

    /// The host's note that the alternative length unit is in force; nothing here depends on it.
    static bool GetAlternativeLengthUnitFlag();
    static void SetAlternativeLengthUnitFlag(const bool& flag);

private:
    static Fileschema _schema;
    static std::array<double, 78> _IFC2x3_globalSIUnitsFactors;
    static std::array<double, 82> _IFC4_globalSIUnitsFactors;
    static double _lengthConversionFactor;
    static double _angleConversionFactor;
    static QORString _unitType;
    static QORString _unitPrefix;
    static QORString _unitName;
    static bool _isAlternativeLengthUnitSet;
};
