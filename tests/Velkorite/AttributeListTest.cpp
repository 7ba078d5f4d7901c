#include "IFCAttributeList.h"
#include "Matchers.h"

#include "MappingFixture.h"
#include "PrivateOperation.h"

namespace velkor::test {

namespace {

using testing::_;
using Key = std::array<const char*, 3>;

/// The list reads its catalogue once in a process; here it goes after each test as it does at unload.
class AttributeList : public MappingFixture {
protected:
    ~AttributeList() override { forget(); }

    static void forget() {
        // The second time, nothing is left.
        for (const int argument : {1, 7})
            EXPECT_EQ(privateOperation<int(int)>("_ZN16IFCAttributeList10DeleteInstEi")(argument), 0);
    }
    /// The value of an attribute, which is empty exactly when the look-up fails.
    static std::string value(int level, const Key& key) {
        QORUnicodeString value("what it held");
        const HRESULT result = IFCAttributeList::GetInstance()->GetAttributeValue(key[0], key[1], key[2],
                                                                                  static_cast<IfcLevel>(level), value);
        EXPECT_EQ(result, value.IsEmpty() ? E_FAIL : S_OK);
        return std::string(value.utf8());
    }
    static std::vector<std::string> values(const Key& key) {
        std::vector<std::string> result;
        for (const int level : {0, 1, 2, 3, -1}) result.push_back(value(level, key));
        return result;
    }
};

std::string entry(const Key& key, const std::string& value) {
    return std::string("<AttributeID Name='") + key[0] + "' Entity='" + key[1] + "' PropertySet='" + key[2] +
           "' Value='" + value + "'/>";
}

constexpr Key both{"Both", "IfcWall", "Pset"};
constexpr Key nested{"Nested", "IfcWall", "Pset"};
constexpr Key twice{"Twice", "IfcWall", "Pset"};
constexpr Key empty{"Empty", "IfcWall", "Pset"};

} // namespace

TEST_F(AttributeList, AnswersByLevelThenInGeneral) {
    const std::string catalogue =
        "<AnyRoot>" + entry({"Outside", "IfcWall", "Pset"}, "no") + "<Level ID='general'><Group>" + entry(both, "any") +
        entry(twice, "first") + entry(twice, "second") + "</Group>" + entry(empty, "") +
        "<AttributeID Value='nameless'/><AttributeID Name='Bare' Value='bare'/><Attributeid Name='Bare2' Value='no'/>" +
        "</Level><Level ID='2x3'>" + entry(both, "2X3") + entry({"Old", "IfcWall", "Pset"}, "old") +
        entry(empty, "old") + "</Level><Level ID='4AndAbove'>" + entry(both, "4") + entry(twice, "") +
        "</Level><Level>" + entry(both, "too late") + "<Level ID='2X3'>" + entry(nested, "nested") +
        "</Level></Level><Level ID='2X3'>" + entry(nested, "too late") + entry({"A", "C", "B"}, "A.B.C") +
        entry({"AB", "C", ""}, "AB.C") + entry({"", "FireRating43404", ""}, "1") +
        entry({"", "FireRating195726", ""}, "2") + "</Level></AnyRoot>";
    folder.file("standard/IFCAttributes/attributes.xml", catalogue);
    standard(folder / "standard");

    EXPECT_THAT(values(both), ElementsAre("any", "2X3", "4", "any", "any"));
    EXPECT_THAT(values({"Old", "IfcWall", "Pset"}), ElementsAre("", "old", "", "", "")) << "levels know no other";
    EXPECT_THAT(values(nested), ElementsAre("nested", "nested", "nested", "nested", "nested")) << "is of both levels";
    EXPECT_THAT(values(twice), ElementsAre("first", "first", "", "first", "first")) << "an empty value is one";
    EXPECT_THAT(values(empty), ElementsAre("", "old", "", "", ""));
    EXPECT_THAT(values({"", "", ""}), testing::Each("nameless"));
    EXPECT_THAT(values({"Bare", "", ""}), testing::Each("bare"));
    // The two have the same hash: it is that of the pieces in one.
    EXPECT_THAT(values({"A", "C", "B"}), ElementsAre("", "A.B.C", "", "", ""));
    EXPECT_THAT(values({"AB", "C", ""}), ElementsAre("", "AB.C", "", "", ""));
    // And so have these by chance.
    EXPECT_EQ(value(IfcLevel2X3, {"", "FireRating43404", ""}), "1");
    EXPECT_EQ(value(IfcLevel2X3, {"", "FireRating195726", ""}), "2");
    for (const Key& unknown :
         {Key{"both", "IfcWall", "Pset"}, Key{"Both", "IFCWALL", "Pset"}, Key{"Both", "IfcWall", "PSET"},
          Key{"Both", "Pset", "IfcWall"}, Key{"Bare2", "", ""}, Key{"A", "BC", ""}, Key{"Outside", "IfcWall", "Pset"}})
        EXPECT_THAT(values(unknown), testing::Each("")) << unknown[0];

    // The value may go to where the name came from.
    QORUnicodeString text("Both");
    EXPECT_EQ(IFCAttributeList::GetInstance()->GetAttributeValue(text, "IfcWall", "Pset", IfcLevel2X3, text), S_OK);
    EXPECT_EQ(text, "2X3");
}

TEST_F(AttributeList, ReadsTheFirstFileAloneAndOnce) {
    const auto catalogue = [](const char* value) { return "<A><Level>" + entry(both, value) + "</Level></A>"; };
    const std::string first = folder / "first", second = folder / "second";
    const auto valueOf = [&](const std::string& folders, const std::string& defaults) {
        forget();
        standard(folders, defaults);
        return value(0, both);
    };
    EXPECT_EQ(valueOf("", ""), "") << "no catalogue at all";
    EXPECT_EQ(valueOf(folder / "none", first), "") << "no folder";
    folder.file("first/IFCAttributes/read.me", catalogue("no catalogue"));
    folder.file("second/IFCAttributes/b.xml", catalogue("b"));
    EXPECT_EQ(valueOf(first + ';' + folder / "none", ';' + second), "b");
    folder.file("first/IFCAttributes/z.xml.bak", catalogue("z"));
    EXPECT_EQ(value(0, both), "b") << "read once";
    EXPECT_EQ(valueOf(first, second), "z") << "a name that contains the text";
    EXPECT_EQ(valueOf(second, first), "b");
    folder.file("first/IFCAttributes/a.xml", "<A><Level>");
    EXPECT_EQ(valueOf(first, second), "") << "a file that cannot be read hides all others";

    // Nobody calls these two.
    QORListValQORUnicodeString files;
    files.Append("what it held");
    IFCAttributeList* list = IFCAttributeList::GetInstance();
    folder.file("second/IFCAttributes/a.xml");
    EXPECT_EQ(privateOperation<HRESULT(IFCAttributeList*, QORListValQORUnicodeString&)>(
                  "_ZN16IFCAttributeList15ListFileFromRTVER26QORListValQORUnicodeString")(list, files),
              S_OK);
    const std::string start = "\\IFCAttributes\\";
    EXPECT_THAT(texts(files),
                ElementsAre(first + start + "a.xml", first + start + "z.xml.bak", second + start + "b.xml"));
    const auto& give =
        privateOperation<HRESULT(IFCAttributeList*, const char*, const char*, QORListValQORUnicodeString&)>(
            "_ZN16IFCAttributeList20GiveFilesInDirectoryEPKcS1_R26QORListValQORUnicodeString");
    EXPECT_EQ(give(list, (first + start).c_str(), ".", files), S_OK);
    EXPECT_EQ(give(list, (first + start + "none").c_str(), ".", files), 1);
    EXPECT_THAT(texts(files), ElementsAre(_, _, _, "a.xml", "read.me", "z.xml.bak")) << "behind what it held";
}

} // namespace velkor::test
