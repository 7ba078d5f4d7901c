#include "QORIFCHTableOfMapProperty.h"
#include "QORIFCMapProperty.h"

#include <array>
#include <gmock/gmock.h>

namespace {

using Row = std::array<QORUnicodeString, 5>;

HRESULT add(const char* name, const Row& row) {
    return QORIFCHTableOfMapProperty::AddAttribute(name, row[0], row[1], row[2], row[3], row[4]);
}
QORIFCMapProperty* located(const char* name) {
    QORIFCMapProperty* record = nullptr;
    const HRESULT result = QORIFCHTableOfMapProperty::Locate(name, record);
    EXPECT_EQ(result, record != nullptr ? S_OK : E_FAIL) << name;
    return record;
}
HRESULT rowAt(QORIFCMapProperty& record, int index, Row& row) {
    return record.GetAttributeAt(index, row[0], row[1], row[2], row[3], row[4]);
}

class MapProperty : public testing::Test {
protected:
    MapProperty() { EXPECT_EQ(QORIFCHTableOfMapProperty::Initialize(), S_OK); }
    ~MapProperty() override { EXPECT_EQ(QORIFCHTableOfMapProperty::Terminate(), S_OK); }
};

const Row first{"a", "b", "c", "d", "e"};
const Row second{"", "ü", "", "4", ""};

} // namespace

TEST_F(MapProperty, KeepsItsRowsAsTheyCame) {
    const Row rows[] = {first, second, first};
    for (const Row& row : rows) EXPECT_EQ(add("Width", row), S_OK);
    QORIFCMapProperty* record = located("Width");
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->GetName(), "Width");
    ASSERT_EQ(record->GetNumberOfAttributes(), 3) << "equal rows are kept apart";
    for (const int index : {-1, 0, 1, 2, 3, 4}) {
        const bool isThere = index >= 1 && index <= 3;
        const Row untouched{"x"};
        Row row = untouched;
        EXPECT_EQ(rowAt(*record, index, row), isThere ? S_OK : E_FAIL);
        EXPECT_EQ(row, isThere ? rows[index - 1] : untouched) << index;
    }
}

TEST_F(MapProperty, IsFoundByItsWholeName) {
    // The last two have the same hash.
    const char* names[] = {"Width", "width", "", "FireRating43404", "FireRating195726"};
    ASSERT_EQ(QORUnicodeString(names[3]).ComputeHashKey(), QORUnicodeString(names[4]).ComputeHashKey());
    for (const char* name : names) EXPECT_EQ(add(name, {name, "", "", "", ""}), S_OK);
    for (const char* name : names) {
        Row row;
        ASSERT_NE(located(name), nullptr) << name;
        EXPECT_EQ(located(name)->GetNumberOfAttributes(), 1);
        EXPECT_EQ(rowAt(*located(name), 1, row), S_OK);
        EXPECT_EQ(row[0], name);
    }
    EXPECT_EQ(located("WIDTH"), nullptr);

    QORIFCMapProperty empty("");
    EXPECT_EQ(QORIFCMapProperty::GetHashKey(nullptr), 0U);
    EXPECT_EQ(QORIFCMapProperty::GetHashKey(&empty), 0x02CC5D05U) << "the hash of the empty text";
    EXPECT_EQ(QORIFCMapProperty::Compare(nullptr, &empty), 1) << "null is a property with an empty name";
    EXPECT_EQ(QORIFCMapProperty::Compare(&empty, nullptr), 1);
    EXPECT_EQ(QORIFCMapProperty::Compare(located("width"), nullptr), 0);
    EXPECT_EQ(QORIFCMapProperty::Compare(located("Width"), located("width")), 0);
}

TEST_F(MapProperty, IsThereFromInitializeToTerminate) {
    EXPECT_EQ(add("Width", first), S_OK);
    EXPECT_EQ(QORIFCHTableOfMapProperty::Initialize(), S_OK);
    QORIFCMapProperty* const known = located("Width");
    ASSERT_NE(known, nullptr) << "still the same table";
    // Many, so that the table grows and is emptied in one go.
    for (int i = 0; i < 1000; ++i) EXPECT_EQ(add(('P' + std::to_string(i)).c_str(), first), S_OK);
    EXPECT_EQ(located("Width"), known);

    for (int time = 0; time < 2; ++time) EXPECT_EQ(QORIFCHTableOfMapProperty::Terminate(), S_OK);
    QORIFCMapProperty other("Width");
    QORIFCMapProperty* record = &other;
    EXPECT_EQ(add("Width", first), E_FAIL);
    EXPECT_EQ(QORIFCHTableOfMapProperty::Locate("Width", record), E_FAIL);
    EXPECT_EQ(record, &other) << "untouched without a table";

    EXPECT_EQ(QORIFCHTableOfMapProperty::Initialize(), S_OK);
    EXPECT_EQ(located("Width"), nullptr) << "a new table";
}
