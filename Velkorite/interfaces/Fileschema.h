/// The schema release of the file being exchanged, as the unit services know it.
#pragma once

/// Other values may be set; the unit services keep no global factors for them.
enum Fileschema : int {
    FileschemaIFC2X3 = 0,
    /// Also what a host sets for every release after IFC4, whose unit types IFC4 has.
    FileschemaIFC4 = 1,
};
