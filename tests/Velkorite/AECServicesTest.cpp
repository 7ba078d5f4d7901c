#include "MappingFixture.h"
#include "velkor/exchangeservices/QORIExchangeAECServices.h"
#include "velkor/knowledge/QORIExchangeObject.h"
#include "velkor/knowledge/QORIPLMNavOccurrence.h"

namespace velkor::test {

/// An exchange object without properties, and an occurrence of nothing.
class BareObject final : public QORIExchangeObject {
    VELKOR_DECLARE_CLASS
public:
    HRESULT GetIdentifier(QORUnicodeString&) override { return E_FAIL; }
    HRESULT GetName(QORUnicodeString&) override { return E_FAIL; }
    HRESULT GetParent(QORBaseUnknown_var&) override { return E_FAIL; }
    HRESULT GetFileName(QORUnicodeString&) override { return E_FAIL; }
    HRESULT GetDescription(QORUnicodeString&, QORUnicodeString&, QORUnicodeString& ifcType, QORUnicodeString&,
                           QORUnicodeString&, int&) override {
        ifcType = "IfcWall";
        return S_OK;
    }
};
class EmptyOccurrence final : public QORIPLMNavOccurrence {
    VELKOR_DECLARE_CLASS
public:
    HRESULT GetRelatedObject(QORBaseUnknown_var& object) override {
        object = {};
        return S_OK;
    }
};
VELKOR_IMPLEMENT_CLASS(BareObject, QORIExchangeObject, nullptr, "Host")
VELKOR_IMPLEMENT_CLASS(EmptyOccurrence, QORIPLMNavOccurrence, nullptr, "Host")

namespace {

constexpr const char* key = "QORAECDataExchangeResources|AECDataExchange";
constexpr const char* notThere = "80004005 DEFAULT";
constexpr const char* unexpected = "8000ffff DEFAULT";

class AECServices : public MappingFixture {
protected:
    void document(const std::string& content) const {
        setupData(key, {folder.file("aec.xml", "<AEC>\n" + content + "</AEC>")});
        ASSERT_EQ(services->LoadAECResource(), S_OK) << content;
    }
    std::string ifcType(const QORString& id) const {
        return answer([&](auto& type) { return services->GetIFCTypeFromNeutralID(id, type); });
    }
    /// What there is to a neutral identifier: PLM type, IFC type, valuation and object type.
    std::string allOf(const QORString& id) const {
        return answer([&](auto& type) { return services->GetPLMTypeFromNeutralID(id, type); }) + ", " + ifcType(id) +
               ", " + answer<2>([&](auto& name, auto& value) {
                   return services->GetPLMValuationFromNeutralID(id, name, value);
               }) +
               ", " + answer([&](auto& type) { return services->GetObjectTypeFromNeutralID(id, type); });
    }
    std::string plmOfIfc(const std::string& type, const std::string& value = {}) const {
        return answer([&](auto& found) { return services->GetPLMTypeFromIFCType(type.c_str(), value.c_str(), found); });
    }
    std::string ofIfcObject(const QORBaseUnknown_var& object) const {
        return answer([&](auto& id) { return services->GetNeutralIDFromIFCObject(object, id); });
    }
    std::string ofIfcObject(const std::string& type, const knowledge::Attributes& properties = {}) const {
        knowledge::ExchangeDescription description{"id", "name", type, "IfcOther", "file", 7};
        return ofIfcObject(knowledge::makeExchangeObject(std::move(description), properties));
    }
    /// What is printed goes to `printed`.
    std::string ofPlmObject(const QORBaseUnknown_var& object) {
        testing::internal::CaptureStdout();
        std::string text = answer([&](auto& id) { return services->GetNeutralIDFromPLMObject(object, id); });
        printed = testing::internal::GetCapturedStdout();
        return text;
    }
    std::string ofPlmObject(const std::string& type, const knowledge::Attributes& attributes = {}) {
        return ofPlmObject(knowledge::makeOccurrence(type, attributes));
    }

    const Library library;
    const QORIExchangeAECServices_var services = component<QORIExchangeAECServices>("ExchangeAECServices");
    std::string printed;
};

} // namespace

TEST_F(AECServices, TranslateNeutralIdentifiers) {
    document(R"(<NeutralID Name="Wall">
        <IFC Name="IfcWall"> <X Attribute="No"/> <X Attribute="ObjectType" Value="Special"/></IFC>
        <NORVEL Name="PLMWall"><Valuate Attribute="first" Value="skipped"/><Valuate Attribute="A" Value="v"/>
          <Valuate Attribute="B" Value="w"/></NORVEL></NeutralID>
      <NeutralID Name="wall"> <IFC Name="Never"/></NeutralID><neutralID Name="Lower"> <IFC Name="Never"/></neutralID>
      <Group><NeutralID Name="Tight"><NORVEL Name="First"/></NeutralID></Group>
      <NeutralID Name="Case"> <Norvel Name="n"/><ifc Name="i"/></NeutralID><NeutralID Name="None"/>
      <NeutralID Name="Two"><IFC Name="Skipped"/><IFC Name="IfcTwo"/><NORVEL Name="P"> </NORVEL></NeutralID>
      <NeutralID Name="Quick"><!-- --><NORVEL Name="P"><a/><b/><c/><!-- --></NORVEL></NeutralID>
      <NeutralID Name="Kind"><!-- --><NORVEL><a/><b/><c/><X Attribute="objectType" Value="v"/></NORVEL></NeutralID>)");
    // The empty text matches every entry; the first one counts.
    for (const auto& [ids, unused, expected] : casesOf(R"(
        Wall WALL  :  -> 0 PLMWall, 0 IfcWall, 0 A v, 0 Special
        Lower Nothing:  -> 1 was, 1 was, 1  , 1 was
        Tight Case None:  -> 8000ffff was, 8000ffff was, 8000ffff  , 8000ffff was
        Two:  -> 0 P, 0 IfcTwo, 0  , 8000ffff was
        Quick:  -> 0 P, 8000ffff was, 0  , 1 was
        Kind:  -> 0 , 8000ffff was, 0  , 1 was)")) {
        std::istringstream each(ids);
        for (std::string id; std::getline(each, id, ' ');) EXPECT_EQ(allOf(id.c_str()), expected) << id;
    }
}

TEST_F(AECServices, ChooseByPriorityAndCondition) {
    const std::string a = "<Condition Attribute='a' Value='Yes'/>", b = "<Condition Attribute='b' Value='No'/>";
    const auto entry = [](int number, const std::string& type, const std::string& priority,
                          const std::string& conditions = {}) {
        const std::string side = " Name='" + type + "' Priority='" + priority + "'>" + conditions;
        return "<NeutralID Name='" + std::to_string(number) + "'>\n<IFC" + side + "</IFC><NORVEL" + side +
               "</NORVEL></NeutralID>";
    };
    document(entry(1, "Low", "1") + entry(2, "low", "5") + entry(3, "Tie", "3", a) + entry(4, "Tie", "3") +
             entry(5, "Tie", "3") + entry(6, "Never", "", b) + entry(7, "Number", "12x") + entry(8, "Number", "1") +
             entry(9, "Number", "2.5") + entry(10, "Negative", "-1") + entry(11, "Negative", "high") +
             entry(12, "Negative", "") + entry(13, "Nested", "1", "<X><Condition Attribute=''/></X>" + b) +
             entry(14, "Two", "1", a + b) + entry(15, "Two", "0", "<condition Attribute='a' Value='No'/>"));
    for (const auto& [value, type, neutral] : casesOf(R"(: low -> 0 2 | Tie -> 0 4 | Never -> 8000ffff DEFAULT
        : Number -> 0 8 | Negative -> 0 11 | Nested -> 0 13 | Two -> 0 15
        Yes: Tie -> 0 3 | Two -> 0 14 | Other -> 0 DEFAULT)")) {
        SCOPED_TRACE(type);
        const knowledge::Attributes attributes = {{"a", value}, {"A", value}};
        EXPECT_EQ(ofPlmObject(type, attributes), neutral);
        EXPECT_EQ(ofIfcObject(type, attributes), neutral);
        EXPECT_EQ(plmOfIfc(type, value), neutral.ends_with("DEFAULT") ? neutral : "0 " + type);
    }
    EXPECT_EQ(ofPlmObject("LOW") + ofIfcObject("LOW"), "0 20 2");
    EXPECT_EQ(ofPlmObject("Tie", {{"a", "YES"}}) + ofIfcObject("Tie", {{"a", "YES"}}), "0 40 4");
    EXPECT_EQ(ofIfcObject("Tie", {{"x", ""}, {"a", "Yes"}}), "0 3") << "names of properties are in upper case";
    EXPECT_EQ(ofIfcObject("Tie", {{"a", ""}, {"a", "Yes"}}), "0 4") << "the first of a name counts";
    EXPECT_EQ(ofPlmObject("Tie", {{"A", "Yes"}}), "0 4") << "letter case counts for knowledge attributes";
}

TEST_F(AECServices, TranslateIFCTypesByTheirValue) {
    document(R"(<NeutralID Name="1"> <IFC Name="IfcWall"><Condition Attribute="any" Value="Straße"/></IFC>
        <NORVEL Name="Street"/></NeutralID>
      <NeutralID Name="2"> <IFC Name="IfcWall" Priority="-7"/><norvel Name="no"/><NORVEL Name="Other"/></NeutralID>
      <NeutralID Name="3"><IFC Name="IfcAlone"/></NeutralID><NeutralID Name="4"> <IFC Name="IfcPlain"/></NeutralID>
      <NeutralID Name="5"><NORVEL Name="Skipped"/><IFC Name="IfcSkipped"/></NeutralID><IFC Name="IfcLoose"/>)");
    EXPECT_EQ(plmOfIfc("IfcWall", "STRAßE"), "0 Street") << "letter case is ignored";
    EXPECT_EQ(plmOfIfc("ifcwall", "none"), "0 Other");
    EXPECT_EQ(plmOfIfc("IfcSlab"), "0 DEFAULT");
    for (const char* type : {"IfcAlone", "IfcPlain", "IfcSkipped", "IfcLoose"})
        EXPECT_EQ(plmOfIfc(type), notThere) << type;
    EXPECT_EQ(plmOfIfc("", "strasse"), "80004005 DEFAULT") << "every IFC type is a candidate: IfcAlone comes first";
}

TEST_F(AECServices, PrintWhatTheyGotOfPLMObjects) {
    document(
        R"(<NeutralID Name="1"> <NORVEL Name="Wall"/></NeutralID><NeutralID Name="2"> <NORVEL Name="WALL"/></NeutralID>
      <NORVEL Name="Loose"/>)");
    EXPECT_EQ(ofPlmObject("wall"), "0 1");
    EXPECT_EQ(printed, "### GOT TYPE [wall]\n### GOT NB NODES = 2\n");
    EXPECT_EQ(ofPlmObject("100%s"), "0 DEFAULT");
    EXPECT_EQ(printed, "### GOT TYPE [100%s]\n### GOT NB NODES = 0\n");
    EXPECT_EQ(ofPlmObject("Loose"), "0 ") << "whatever the parent is";
    for (const QORBaseUnknown_var& object : {QORBaseUnknown_var(), QORBaseUnknown_var::adopt(new BareObject),
                                             QORBaseUnknown_var::adopt(new EmptyOccurrence)}) {
        EXPECT_EQ(ofPlmObject(object), unexpected);
        EXPECT_EQ(printed, "");
    }
    files::setSetupDataFinder({});
    EXPECT_EQ(services->LoadAECResource(), E_UNEXPECTED);
    EXPECT_EQ(ofPlmObject("wall"), unexpected);
    EXPECT_EQ(printed, "### GOT TYPE [wall]\n### GOT NB NODES = 0\n");
}

TEST_F(AECServices, AskExchangeObjectsForTheirProperties) {
    document("<NeutralID Name='1'> <IFC Name='IfcWall'/></NeutralID>");
    EXPECT_EQ(ofIfcObject("IFCWALL"), "0 1");
    EXPECT_EQ(ofIfcObject("name"), "0 DEFAULT") << "the third text is the type";
    EXPECT_EQ(ofIfcObject(QORBaseUnknown_var()), unexpected);
    EXPECT_EQ(ofIfcObject(knowledge::makeOccurrence("IfcWall", {})), unexpected);
    EXPECT_EQ(ofIfcObject(QORBaseUnknown_var::adopt(new BareObject)), unexpected);
    document("<NeutralID Name='1'> <IFC Name='IfcSlab'/></NeutralID>");
    EXPECT_EQ(ofIfcObject(QORBaseUnknown_var::adopt(new BareObject)), "0 DEFAULT") << "not asked without candidates";
}

TEST_F(AECServices, FindTheirDocument) {
    const auto aec = [](const char* name) {
        return std::string("<AEC><NeutralID Name='A'> <IFC Name='") + name + "'/></NeutralID></AEC>";
    };
    folder.add("one/xcad", {"a.xml.bak"}, aec("Bak"));
    folder.add("one/xcad", {"0.XML", "1xml"}, aec("Other"));
    folder.add("two/xcad", {"0.xml"}, aec("Two"));
    standard(folder / "one", folder / "two");
    EXPECT_EQ(ifcType("A"), "8000ffff was") << "without a finder nothing is found";
    setupData("another key", {folder / "one/xcad/1xml"});
    EXPECT_EQ(ifcType("A"), "0 Bak") << "a failure is not kept";
    setupData(key, {folder / "one/xcad/1xml"});
    EXPECT_EQ(ifcType("A"), "0 Bak") << "read once";
    EXPECT_EQ(extension<QORIExchangeAECServices>()->LoadAECResource(), S_OK);
    EXPECT_EQ(ifcType("A"), "0 Other");
    setupData(key, {folder.file("broken.xml", "<AEC><NeutralID")});
    EXPECT_LT(services->LoadAECResource(), 0);
    EXPECT_NE(ifcType("A"), "0 Other") << "the one before is gone";
    variables.removeAll();
    setupData("another key", {});
    EXPECT_EQ(ifcType("A"), "8000ffff was") << "there is no collection standard";
}

} // namespace velkor::test
