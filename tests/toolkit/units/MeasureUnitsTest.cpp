// Which units values are in, by the names of measure types and unit types in the dictionaries.
#include "velkor/units/MeasureUnits.h"

#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include <gmock/gmock.h>

namespace velkor {

TEST(MeasureUnits, NamesAMeasureForEveryUnitTypeOfEveryRelease) {
    std::size_t releases = 0;
    for (const std::string& release : DXSdaiDictionaryRepo::TheOne().names()) {
        SCOPED_TRACE(release);
        const auto schema = DXSdaiDictionaryRepo::TheOne().schema(release);
        ASSERT_TRUE(schema);
        ++releases;
        const auto types = unitTypes(**schema);
        EXPECT_GT(types.size(), 70U);
        for (const std::string_view type : types) {
            if (type == "USERDEFINED") continue;
            EXPECT_TRUE(isUnitType(**schema, type));
            const sdai::DefinedType* measure = (*schema)->definedType(measureOf(type));
            ASSERT_NE(measure, nullptr) << type;
            EXPECT_EQ(unitTypeOf(*measure), type);
        }
    }
    EXPECT_EQ(releases, 8U);
}

TEST(MeasureUnits, TakesTypesForWhatTheyAreDefinedBy) {
    const auto schema = DXSdaiDictionaryRepo::TheOne().schema("IFC4");
    ASSERT_TRUE(schema);
    const struct {
        const char* measure;
        const char* unitType;
    } cases[] = {
        {"IFCPOSITIVELENGTHMEASURE", "LENGTHUNIT"},
        {"IFCNONNEGATIVELENGTHMEASURE", "LENGTHUNIT"},
        {"IFCTHERMALCONDUCTIVITYMEASURE", "THERMALCONDUCTANCEUNIT"},
        {"IFCNORMALISEDRATIOMEASURE", ""},
        {"IFCCOUNTMEASURE", ""},
        {"IFCMONETARYMEASURE", ""},
        {"IFCCOMPOUNDPLANEANGLEMEASURE", "COMPOUNDPLANEANGLEUNIT"},
        {"IFCLABEL", ""},
        {"IFCUNITENUM", ""},
        {"IFCVALUE", ""},
    };
    for (const auto& [measure, unitType] : cases) {
        const sdai::DefinedType* type = (*schema)->definedType(measure);
        ASSERT_NE(type, nullptr) << measure;
        EXPECT_EQ(unitTypeOf(*type), unitType) << measure;
    }
    for (const char* name : {"", "IFCMEASURE", "LENGTHMEASURE", "IFCLABEL"}) EXPECT_EQ(unitTypeOf(name), "") << name;
    for (const char* name : {"", "UNIT", "USERDEFINED"}) EXPECT_EQ(measureOf(name), "") << name;
}

} // namespace velkor
