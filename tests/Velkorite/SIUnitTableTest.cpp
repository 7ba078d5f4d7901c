#include "QORIFC_SIUnit_HashTable.h"

#include "ModelText.h"
#include "PrivateOperation.h"
#include "velkor/sdai/Model.h"

#include <gtest/gtest.h>
#include <memory>
#include <sstream>

namespace {

using velkor::sdai::Model;

class SIUnitTable : public testing::TestWithParam<const char*> {
protected:
    SIUnitTable() {
        text = velkor::test::modelText(
            GetParam(),
            "#1=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);#2=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);"
            "#3=IFCSIUNIT(*,.AREAUNIT.,.CENTI.,.SQUARE_METRE.);#4=IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.);"
            "#5=IFCSIUNIT(*,.MASSUNIT.,.KILO.,$);#6=IFCSIUNIT(*,.TIMEUNIT.,.NOSUCH.,.SECOND.);"
            "#7=IFCDERIVEDUNIT((#12),.VOLUMETRICFLOWRATEUNIT.,$);#8=IFCDERIVEDUNIT((#12),.USERDEFINED.,'LITRE');"
            "#9=IFCDERIVEDUNIT((#12),$,$);#10=IFCMONETARYUNIT($);"
            "#11=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'METRE',$);#12=IFCDERIVEDUNITELEMENT(#4,2);"
            "#13=IFCDERIVEDUNITELEMENT(#4,-1);#14=IFCDERIVEDUNITELEMENT($,3);#15=IFCDERIVEDUNITELEMENT(#11,4);"
            "#16=IFCDERIVEDUNITELEMENT(#6,105455);#17=IFCDERIVEDUNITELEMENT(#2,105515);"
            "#18=IFCSIUNIT(*,$,.MILLI.,.METRE.);");
        auto opened = Model::fromText(text, "units.ifc");
        EXPECT_TRUE(opened) << opened.error().message;
        model = std::move(*opened);
    }
    ~SIUnitTable() override { QORIFC_SIUnit_HashTable::DeleteHashTable(); }

    void insert(std::initializer_list<int> ids) const {
        for (const int id : ids) QORIFC_SIUnit_HashTable::InsertSIUnit(model->instance(static_cast<std::uint64_t>(id)));
    }
    /// Id of the unit that is found; 0 for none.
    static std::uint64_t located(const char* name) {
        QORUnicodeString text(name);
        const DXSdaiAppInstance* unit = QORIFC_SIUnit_HashTable::LocateSIUnit(text);
        return unit != nullptr ? unit->id() : 0;
    }

    std::string text;
    std::unique_ptr<Model> model;
};

} // namespace

TEST_P(SIUnitTable, FindsUnitsByTheTextsOfTheirDictionary) {
    ASSERT_EQ(QORIFC_SIUnit_HashTable::Initialize(), S_OK);
    insert({1, 2, 3, 4, 5, 6, 7, 8, 12, 13, 14, 15});
    std::istringstream cases(
        "MILLIMETRE 1 METRE 2 CENTISQUARE_METRE 3 CENTIMETRE 4 KILO 5 SECOND 6 USERDEFINED 8 _3 14 "
        "VOLUMETRICFLOWRATEUNIT 7 CENTIMETRE_2 12 CENTIMETRE_-1 13 _4 15 millimetre 0 METRE_4 0 "
        "LITRE 0 CENTIMETRE_1 0 CENTIMETRE_+2 0 NOSUCHSECOND 0");
    std::string name;
    for (std::uint64_t id = 0; cases >> name >> id;) EXPECT_EQ(located(name.c_str()), id) << name;
    for (const char* nothing : {"", "MILLI METRE", " METRE", "METRE "}) EXPECT_EQ(located(nothing), 0U) << nothing;
}

TEST_P(SIUnitTable, TakesUnitsOfTheSameHashForOne) {
    ASSERT_EQ(QORIFC_SIUnit_HashTable::Initialize(), S_OK);
    insert({18, 1, 17, 16});
    EXPECT_EQ(located("MILLIMETRE"), 18U) << "the first one stays";
    EXPECT_EQ(located("METRE_105515"), 17U);
    EXPECT_EQ(located("SECOND_105455"), 17U) << "another text with the same hash";

    // It is not added, but the table does not tell how many units it has; so its comparison is asked itself.
    const auto& same = velkor::test::privateOperation<int(void*, void*)>("_ZN23QORIFC_SIUnit_HashTable7CompareEPvS0_");
    EXPECT_EQ(same(model->instance(17), model->instance(16)), 1);
    EXPECT_EQ(same(model->instance(9), model->instance(10)), 1);
    EXPECT_EQ(same(model->instance(1), model->instance(2)), 0);

    // What has no text has the hash 0, and so does this one by chance.
    constexpr const char* hashedToZero = "DERKBTAQ";
    ASSERT_EQ(QORUnicodeString(hashedToZero).ComputeHashKey(), 0U);
    EXPECT_EQ(located(hashedToZero), 0U);
    insert({11, 10, 9});
    EXPECT_EQ(located(hashedToZero), 11U);
    EXPECT_EQ(located(""), 0U);
}

TEST_P(SIUnitTable, IsThereFromInitializeToDelete) {
    for (int round = 0; round < 2; ++round) {
        insert({2});
        EXPECT_EQ(located("METRE"), 0U) << "no table";
        EXPECT_EQ(QORIFC_SIUnit_HashTable::Initialize(), S_OK);
        EXPECT_EQ(located("METRE"), 0U) << "an empty table";
        QORIFC_SIUnit_HashTable::InsertSIUnit(nullptr);
        insert({2});
        EXPECT_EQ(QORIFC_SIUnit_HashTable::Initialize(), S_OK);
        EXPECT_EQ(located("METRE"), 2U) << "still the same table";
        for (int time = 0; time < 2; ++time) QORIFC_SIUnit_HashTable::DeleteHashTable();
    }
}

INSTANTIATE_TEST_SUITE_P(Releases, SIUnitTable, testing::Values("IFC2X3", "IFC4", "IFC4X3_ADD2"));
