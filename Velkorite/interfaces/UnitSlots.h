/// Where the unit services keep a model's factors: one table for each of the two schemas that they know. The slots
/// up to 28 are for the named units, by position in IFCUNITENUM, those from `firstDerivedSlot` on for the derived
/// ones, by position in IFCDERIVEDUNITENUM. The services and whoever explains them use these tables.
#pragma once

namespace velkor {

/// Slots that the services treat on their own. They are the same in both schemas.
enum UnitSlot : int { AreaUnit = 2, LengthUnit = 15, MassUnit = 20, PlaneAngleUnit = 21, VolumeUnit = 28 };

/// Slot of the first derived unit type. It is also that of IFCUNITENUM's last value, USERDEFINED.
inline constexpr int firstDerivedSlot = 29;

inline constexpr int noSlot = -1;

/// The slots from which the factor of a measure type is read.
struct MeasureSlots {
    const char* name;
    int ifc2x3;
    int ifc4;
};

/// All measure types that have a factor.
inline constexpr MeasureSlots measureSlots[] = {
    {"IFCLENGTHMEASURE", LengthUnit, LengthUnit},
    {"IFCPOSITIVELENGTHMEASURE", LengthUnit, LengthUnit},
    {"IFCNONNEGATIVELENGTHMEASURE", LengthUnit, LengthUnit},
    {"IFCAREAMEASURE", AreaUnit, AreaUnit},
    {"IFCVOLUMEMEASURE", VolumeUnit, VolumeUnit},
    {"IFCPLANEANGLEMEASURE", PlaneAngleUnit, PlaneAngleUnit},
    {"IFCPOSITIVEPLANEANGLEMEASURE", PlaneAngleUnit, PlaneAngleUnit},
    {"IFCTIMEMEASURE", 27, 27},
    {"IFCMASSMEASURE", MassUnit, MassUnit},
    {"IFCENERGYMEASURE", 10, 10},
    {"IFCTHERMODYNAMICTEMPERATUREMEASURE", 26, 26},
    {"IFCMAGNETICFLUXMEASURE", 19, 19},
    {"IFCPRESSUREMEASURE", 23, 23},
    {"IFCPOWERMEASURE", 22, 22},
    {"IFCILLUMINANCEMEASURE", 13, 13},
    {"IFCVOLUMETRICFLOWRATEMEASURE", 47, 48},
    {"IFCLINEARVELOCITYMEASURE", 36, 37},
    {"IFCMASSDENSITYMEASURE", 37, 38},
    {"IFCAREADENSITYMEASURE", noSlot, 30},
    {"IFCTHERMALTRANSMITTANCEMEASURE", 45, 46},
    {"IFCHEATFLUXDENSITYMEASURE", 32, 33},
    {"IFCSOLIDANGLEMEASURE", 25, 25},
    {"IFCELECTRICCURRENTMEASURE", 7, 7},
    {"IFCAMOUNTOFSUBSTANCEMEASURE", 1, 1},
    {"IFCLUMINOUSINTENSITYMEASURE", 17, 17},
};

} // namespace velkor
