#include "MappingFixture.h"
#include "Matchers.h"
#include "QORIFCOptionsFromXCAD.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"

namespace velkor::test {

namespace {

constexpr const char* key = "IFCDataExchangeResources|IFCDataExchange";
constexpr int release2x3 = 3, release4 = 4, release4x2 = 6;

class VersionMapping : public MappingFixture {
protected:
    ~VersionMapping() override {
        QORIFCOptionsFromXCAD::DeleteInstance();
        services->ResetVersionMappingTable();
        files::setSetupDataFinder({});
        variables.removeAll();
        services->LoadVersionMappingDocument(); // finds nothing and forgets what there was
    }

    /// Makes a document the one that is read, and nothing known of the one before.
    void document(const std::string& text) const {
        setupData(key, {folder.file("map.xml", text)});
        ASSERT_EQ(services->LoadVersionMappingDocument(), S_OK) << text;
        ASSERT_EQ(services->ResetVersionMappingTable(), S_OK);
    }
    std::string mapping(const std::string& entity, const std::string& property, int from = release2x3,
                        int to = release4) const {
        return answer<2>([&](auto& toEntity, auto& toProperty) {
            return services->GetVersionMapping(from, to, entity.c_str(), property.c_str(), toEntity, toProperty);
        });
    }
    /// Result and name.
    std::string renamed(const char* entity, int from = release2x3, int to = release4) const {
        QORUnicodeString name(entity);
        const HRESULT result = services->GetMappedEntityName(from, to, name);
        return std::to_string(result) + ' ' + std::string(name.utf8());
    }
    std::vector<std::string> deprecated(HRESULT expected = S_OK) const {
        QORListValQORUnicodeString entities;
        EXPECT_EQ(services->GetDeprecatedEntities(release2x3, release4, entities), expected);
        return texts(entities);
    }
    std::vector<std::string> introduced(HRESULT expected = S_OK) const {
        QORListValQORUnicodeString entities, properties, values;
        EXPECT_EQ(services->GetIntroducedPropertyValues(release2x3, release4, entities, properties, values), expected);
        EXPECT_EQ(entities.Size(), properties.Size());
        EXPECT_EQ(entities.Size(), values.Size());
        std::vector<std::string> lines;
        for (int i = 1; i <= values.Size(); ++i)
            lines.emplace_back((entities[i] + "." + properties[i] + "=" + values[i]).utf8());
        return lines;
    }

    const QORIExchangeIFCMappingServices_var services =
        component<QORIExchangeIFCMappingServices>("ExchangeIFCMappingServices");
};

constexpr const char* none = "1003 was was";

/// A document of changes from 2x3 to 4.
std::string changes(const std::string& children) {
    return "<V><Version from='2x3' to='4'>" + children + "</Version></V>";
}

} // namespace

TEST_F(VersionMapping, TellsWhatBecomesOfAnEntityOrAProperty) {
    document(R"(<Any><version from="2x3" to="4"> <Deprecation entity="NotThis"/></version>
      <Version from="2X3" to="4"> <Deprecation entity="NotThis"/></Version>
      <Version from="4" to="2x3"> <Deprecation entity="NotThis"/></Version>
      <Deeper><Version to="4" from="2x3"><!-- first -->
        <Mapping fromEntity="IfcA" fromProperty="P" toEntity="IfcB" toProperty="Q"/>
        <Mapping fromEntity="IfcA" fromProperty="Keep"/>
        <Mapping fromEntity="IfcA" fromProperty="Empty" toEntity="" toProperty=""/>
        <Mapping fromEntity="IfcOld" toEntity="IfcNew"/><Mapping fromEntity="IfcOld" fromProperty="" toEntity="IfcNew"/>
        <Mapping fromProperty="NoEntity" toEntity="IfcB"/><Deprecation property="NoEntity"/>
        <Deprecation entity="IfcGone"/><Deprecation entity="IfcA" property="Gone"/>
        <Deprecation entity="IfcX" property=""/><Introduction entity="IfcFresh"/>
        <Introduction entity="IfcA" property="Fresh"/> text <mapping fromEntity="IfcLow" fromProperty="P"/>
        <Mapping fromEntity="IfcWall" fromProperty="Name" toEntity="First"/>
        <Introduction entity="IfcWallN" property="ame"/><Deprecation entity="IfcWallName"/>
        <Deprecation entity="ifcstraße"/><Deprecation entity="IfcKey97217"/><Introduction entity="IfcKey108386"/>
      </Version></Deeper><Version from="2x3" to="4"> <Deprecation entity="NotThis"/></Version></Any>)");
    // No separator: all of "IfcWall" and "Name" are one key, and the first in the document keeps it.
    // Two texts with one hash are one key as well.
    for (const auto& [status, names, to] : casesOf(R"(1002: IfcA.P -> IfcB Q | IFCa.p -> IfcB Q | iFcA.KEEP -> iFcA Keep
        1002: IfcA.Empty -> IfcA  | IfcWall.Name -> First Name | IfcWallName. -> First Name | IfcWal.lName -> First Name
        1003: IfcOld. -> was was | .NoEntity -> was was | NotThis. -> was was | IfcLow.P -> was was
        1003: IfcA. -> was was | . -> was was
        1004: IfcGone. -> was was | IFCSTRAßE. -> was was | IfcKey97217. -> was was | IfcKey108386. -> was was
        1005: IfcA.Gone -> was was | IfcX. -> was was
        1006: IfcFresh. -> was was
        1007: IfcA.Fresh -> was was)")) {
        const std::size_t dot = names.find('.');
        EXPECT_EQ(mapping(names.substr(0, dot), names.substr(dot + 1)), status + ' ' + to) << names;
    }
    EXPECT_EQ(QORUnicodeString("IFCKEY97217").ComputeHashKey(), QORUnicodeString("IFCKEY108386").ComputeHashKey());
    EXPECT_EQ(objectmodeler::assertionCount(), 0U);
}

TEST_F(VersionMapping, ListsAndRenamesFromTheDocument) {
    document(R"(<Version from="2x3" to="4">
        <Introduction entity="IfcA" property="P" propertyValue="v"/><Introduction entity="IfcA" property="P"/>
        <Introduction entity="IfcA" property="" propertyValue="v"/><Introduction entity="IfcNew"/>
        <Introduction property="Q" propertyValue=" W "/><Introduction entity="IfcA" property="P" propertyValue=""/>
        <Deprecation entity="IfcGone"/><Deprecation entity="IfcA" property="P"/><Deprecation entity="IfcX" property=""/>
        <Deprecation entity=""/><Deprecation entity="IfcGone"/>
        <Mapping fromEntity="IfcB" toEntity="IfcC"/><Mapping fromEntity="IfcA" fromProperty="P" toEntity="IfcB"/>
        <Mapping fromEntity="ifcb" toEntity="IfcD"/><Mapping fromEntity="IFCD" toEntity=""/>
        <Mapping fromEntity="IfcLast" toEntity="IfcKept"/></Version>)");
    EXPECT_THAT(introduced(), ElementsAre("IfcA.P=v", ".Q= W "));
    EXPECT_THAT(deprecated(), ElementsAre("IFCGONE", "IFCGONE"));
    EXPECT_EQ(renamed("IfcA"), "0 IFCD") << "A to B, then the later B to D, then further elements";
    EXPECT_EQ(renamed("IfcB"), "0 IFCC");
    EXPECT_EQ(renamed("ifcLast"), "0 IfcKept") << "the last rename keeps its letters";
    EXPECT_EQ(renamed("IfcOther"), "0 IFCOTHER");

    QORListValQORUnicodeString lists[3];
    for (auto& list : lists) list.Append("before");
    EXPECT_EQ(services->GetIntroducedPropertyValues(release2x3, release4, lists[0], lists[1], lists[2]), S_OK);
    EXPECT_THAT(texts(lists[0]), ElementsAre("before", "IfcA", ""));
    EXPECT_EQ(services->GetDeprecatedEntities(release2x3, release4, lists[1]), S_OK);
    EXPECT_THAT(texts(lists[1]), ElementsAre("before", "P", "Q", "IFCGONE", "IFCGONE"));

    document(changes(" <Deprecation entity='IfcGone'/>"));
    EXPECT_EQ(renamed("IfcOther"), "0 IfcOther") << "nothing to rename, nothing touched";
}

TEST_F(VersionMapping, NeverLooksAtTheFirstChild) {
    document(changes("<Mapping fromEntity='A' fromProperty='P' toEntity='B'/>"
                     "<Mapping fromEntity='C' fromProperty='P' toEntity='D'/>"));
    EXPECT_EQ(mapping("A", "P"), none);
    EXPECT_EQ(mapping("C", "P"), "1002 D P");
    EXPECT_EQ(renamed("A") + renamed("C"), "0 A0 D");
    for (const char* child :
         {"<Introduction entity='A' property='P' propertyValue='v'/>", "<Deprecation entity='A'/>"}) {
        document(changes(child));
        for (const char* property : {"", "P"}) EXPECT_EQ(mapping("A", property), none) << "an empty table is a table";
        EXPECT_THAT(deprecated(), IsEmpty());
        EXPECT_THAT(introduced(), IsEmpty());
    }
    document(changes(""));
    EXPECT_EQ(mapping("A", ""), "80004005 was was") << "without children there is no table";
    EXPECT_THAT(deprecated(), IsEmpty());
    EXPECT_EQ(renamed("a"), "0 a");
    // A node of the name that is no element ends the walk, and what came before it stays.
    document(changes(" <Mapping fromEntity='A' toEntity='B'/><Deprecation entity='D'/><?Mapping x?>"
                     "<Mapping fromEntity='B' toEntity='C'/><Deprecation entity='E'/>"));
    EXPECT_EQ(mapping("D", ""), "1004 was was");
    EXPECT_EQ(mapping("E", ""), none);
    EXPECT_EQ(renamed("A"), std::to_string(E_UNEXPECTED) + " B");
    EXPECT_THAT(deprecated(), ElementsAre("D", "E"));
}

TEST_F(VersionMapping, AnswersForItsFirstPairUntilReset) {
    document("<V><Version from='2x3' to='4'> <Deprecation entity='A'/></Version>"
             "<Version from='4' to='4x2'> <Introduction entity='A'/></Version></V>");
    EXPECT_EQ(mapping("A", "", release2x3, release4x2), "80004005 was was") << "pairs are not chained";
    EXPECT_EQ(mapping("A", "", release4, release2x3), "80004005 was was");
    EXPECT_EQ(mapping("A", ""), "1004 was was");
    EXPECT_EQ(mapping("A", "", release4, release4x2), "1004 was was");
    EXPECT_EQ(mapping("A", "", 0, 99), "1004 was was") << "once there is a table, releases are not looked at";
    // Another instance has the same table.
    QORUnicodeString text;
    const auto other = extension<QORIExchangeIFCMappingServices>();
    EXPECT_EQ(other->GetVersionMapping(release4, release4x2, "A", "", text, text), IFC_MAPPING_DEPRECATED_ENTITY);
    folder.file("map.xml", changes(" <Introduction entity='A'/>"));
    EXPECT_EQ(services->LoadVersionMappingDocument(), S_OK);
    EXPECT_THAT(deprecated(), IsEmpty());
    EXPECT_EQ(mapping("A", ""), "1004 was was") << "the table outlives the document";
    for (int i = 0; i < 2; ++i) EXPECT_EQ(other->ResetVersionMappingTable(), S_OK);
    EXPECT_EQ(mapping("A", ""), "1006 was was");
}

TEST_F(VersionMapping, KnowsSixReleases) {
    constexpr const char* names[] = {"2x1", "2x2", "2x3", "4", "2x5", "4x2"};
    std::string text = "<V><Version from='2x3' to='4X2'> <Mapping fromEntity='A' toEntity='Case'/></Version>";
    for (const std::string from : names) {
        for (const std::string to : names)
            text += "<Version from='" + from + "' to='" + to + "'> <Mapping fromEntity='A' toEntity='" + from + '-' +
                    to + "'/></Version>";
    }
    document(text + "</V>");
    for (int from = -1; from <= 8; ++from) {
        for (int to = -1; to <= 8; ++to) {
            const bool areKnown = from >= 1 && from <= 6 && to >= 1 && to <= 6;
            EXPECT_EQ(renamed("A", from, to), areKnown ? std::string("0 ") + names[from - 1] + '-' + names[to - 1]
                                                       : std::to_string(E_FAIL) + " A");
            if (areKnown) continue;
            EXPECT_EQ(mapping("A", "", from, to), "80004005 was was");
        }
    }
    document("<V><Version from='2x3' to='4 '> <Deprecation entity='A'/></Version></V>");
    EXPECT_THAT(deprecated(S_FALSE), IsEmpty());
    EXPECT_THAT(introduced(S_FALSE), IsEmpty());
    EXPECT_EQ(renamed("a"), "1 a");
}

TEST_F(VersionMapping, IsSwitchedOffByAConversionOption) {
    QORIFCOptionsFromXCAD::GetInstance()->SetXCADConversionOptionForIFC("IFC_Disable_Version_Mapping", "yes");
    EXPECT_EQ(mapping("A", "", 0, 99), none);
    EXPECT_EQ(objectmodeler::assertionCount(), 0U) << "the document was not looked for";
    document(changes(" <Deprecation entity='A'/>"));
    EXPECT_EQ(mapping("A", ""), none);
    EXPECT_THAT(deprecated(), ElementsAre("A")) << "the other operations stay";
    QORIFCOptionsFromXCAD::GetInstance()->SetXCADConversionOptionForIFC("IFC_Disable_Version_Mapping", "no");
    EXPECT_EQ(mapping("A", ""), "1004 was was");
}

TEST_F(VersionMapping, FindsItsDocument) {
    const auto version = [](const std::string& entity) { return changes(" <Deprecation entity='" + entity + "'/>"); };
    EXPECT_EQ(services->LoadVersionMappingDocument(), E_UNEXPECTED);
    EXPECT_GT(objectmodeler::assertionCount(), 0U);
    EXPECT_THAT(deprecated(E_UNEXPECTED), IsEmpty());
    EXPECT_EQ(mapping("A", ""), "80004005 was was");
    folder.add("one/ifc", {"a.xml.bak"}, version("Bak"));
    folder.add("one/ifc", {"0.XML", "1xml"}, version("Other"));
    folder.add("two/ifc", {"a.xml", "0.xml"}, version("Two"));
    standard(folder / "one" + ';' + folder / "two");
    EXPECT_THAT(deprecated(), ElementsAre("BAK")) << "of several the first; a failure is not kept";
    standard(folder / "two");
    EXPECT_THAT(deprecated(), ElementsAre("BAK")) << "read once";
    setupData("another key", {folder / "one/ifc/1xml"});
    EXPECT_EQ(services->LoadVersionMappingDocument(), S_OK);
    EXPECT_THAT(deprecated(), ElementsAre("TWO"));
    setupData(key, {folder / "one/ifc/1xml"});
    EXPECT_EQ(services->LoadVersionMappingDocument(), S_OK);
    EXPECT_THAT(deprecated(), ElementsAre("OTHER"));
    for (const std::string& path : {std::string(), folder / "none.xml", folder.file("broken.xml", "<V><Version")}) {
        setupData(key, {path});
        EXPECT_LT(services->LoadVersionMappingDocument(), 0) << path << ": what setup data say is final";
        EXPECT_THAT(deprecated(services->LoadVersionMappingDocument()), IsEmpty()) << "the one before is gone";
    }
}

} // namespace velkor::test
