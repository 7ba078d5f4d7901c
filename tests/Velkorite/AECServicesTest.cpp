#include "knowledge/QORIExchangeAECServices.h"
#include "knowledge/QORIExchangeObject.h"
#include "knowledge/QORIPLMNavOccurrence.h"
#include "MappingFixture.h"

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
    /// Result, in hexadecimal, and output; "was" stands for an output that was left alone.
    template <class Ask>
    static std::string answer(Ask ask) {
        QORUnicodeString output("was");
        std::ostringstream text;
        text << std::hex << static_cast<unsigned>(ask(output));
        return text.str() + ' ' + std::string(output.utf8());
    }
    std::string plmType(const char* neutralId) const {
        return answer([&](auto& output) { return services->GetPLMTypeFromNeutralID(neutralId, output); });
    }
    std::string ifcType(const char* neutralId) const {
        return answer([&](auto& output) { return services->GetIFCTypeFromNeutralID(neutralId, output); });
    }
    std::string valuation(const char* neutralId) const {
        QORUnicodeString value("was");
        const std::string name =
            answer([&](auto& output) { return services->GetPLMValuationFromNeutralID(neutralId, output, value); });
        return name + '=' + std::string(value.utf8());
    }
    std::string objectType(const char* neutralId) const {
        return answer([&](auto& output) { return services->GetObjectTypeFromNeutralID(neutralId, output); });
    }
    std::string plmOfIfc(const char* type, const char* value = "") const {
        return answer([&](auto& output) { return services->GetPLMTypeFromIFCType(type, value, output); });
    }
    std::string ofIfcObject(const QORBaseUnknown_var& object) const {
        return answer([&](auto& output) { return services->GetNeutralIDFromIFCObject(object, output); });
    }
    std::string ofIfcObject(const char* type, const knowledge::Attributes& properties = {}) const {
        knowledge::ExchangeDescription description{"id", "name", type, "IfcOther", "file", 7};
        return ofIfcObject(knowledge::makeExchangeObject(std::move(description), properties));
    }
    /// What is printed goes to `printed`.
    std::string ofPlmObject(const QORBaseUnknown_var& object) {
        testing::internal::CaptureStdout();
        const std::string text =
            answer([&](auto& output) { return services->GetNeutralIDFromPLMObject(object, output); });
        printed = testing::internal::GetCapturedStdout();
        return text;
    }
    std::string ofPlmObject(const char* type, const knowledge::Attributes& attributes = {}) {
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
    struct Case {
        const char* id;
        std::vector<std::string> answers; ///< PLM type, IFC type, valuation, object type
    };
    const std::string missing = "8000ffff was", noValue = "8000ffff =";
    for (const Case& c :
         {Case{"Wall", {"0 PLMWall", "0 IfcWall", "0 A=v", "0 Special"}},
          Case{"WALL", {"0 PLMWall", "0 IfcWall", "0 A=v", "0 Special"}},
          Case{"Lower", {"1 was", "1 was", "1 =", "1 was"}}, Case{"Nothing", {"1 was", "1 was", "1 =", "1 was"}},
          Case{"Tight", {missing, missing, noValue, missing}}, Case{"Case", {missing, missing, noValue, missing}},
          Case{"None", {missing, missing, noValue, missing}}, Case{"Two", {"0 P", "0 IfcTwo", "0 =", missing}},
          Case{"Quick", {"0 P", missing, "0 =", "1 was"}}, Case{"Kind", {"0 ", missing, "0 =", "1 was"}},
          // The empty text matches every entry; the first one counts.
          Case{"", {"0 PLMWall", "0 IfcWall", "0 A=v", "0 Special"}}}) {
        EXPECT_THAT((std::vector{plmType(c.id), ifcType(c.id), valuation(c.id), objectType(c.id)}),
                    testing::ElementsAreArray(c.answers))
            << c.id;
    }
}

TEST_F(AECServices, ChooseByPriorityAndCondition) {
    const std::string a = "<Condition Attribute='a' Value='Yes'/>", b = "<Condition Attribute='b' Value='No'/>";
    // Type, priority and conditions of entries that are named by their numbers from 1 on.
    const std::vector<std::string> entries[] = {{"Low", "1", ""},
                                                {"low", "5", ""},
                                                {"Tie", "3", a},
                                                {"Tie", "3", ""},
                                                {"Tie", "3", ""},
                                                {"Never", "", b},
                                                {"Number", "12x", ""},
                                                {"Number", "1", ""},
                                                {"Number", "2.5", ""},
                                                {"Negative", "-1", ""},
                                                {"Negative", "high", ""},
                                                {"Negative", "", ""},
                                                {"Nested", "1", "<X><Condition Attribute=''/></X>" + b},
                                                {"Two", "1", a + b},
                                                {"Two", "0", "<condition Attribute='a' Value='No'/>"}};
    std::string text;
    for (const auto& entry : entries) {
        const std::string side = " Name='" + entry[0] + "' Priority='" + entry[1] + "'>" + entry[2];
        text += "<NeutralID Name='" + std::to_string(&entry - entries + 1) + "'>\n<IFC" + side + "</IFC><NORVEL" +
                side + "</NORVEL></NeutralID>";
    }
    document(text);
    const knowledge::Attributes holds = {{"a", "Yes"}, {"A", "Yes"}}, otherCase = {{"a", "YES"}};
    struct Case {
        const char* type;
        const knowledge::Attributes& attributes;
        const char* value; ///< what an IFC type is asked with
        const char* neutral;
    };
    const knowledge::Attributes nothing;
    for (const Case& c :
         {Case{"LOW", nothing, "", "0 2"}, Case{"Tie", holds, "Yes", "0 3"}, Case{"Tie", nothing, "", "0 4"},
          Case{"Never", nothing, "", unexpected}, Case{"Number", nothing, "", "0 8"},
          Case{"Negative", nothing, "", "0 11"}, Case{"Nested", nothing, "", "0 13"}, Case{"Two", holds, "Yes", "0 14"},
          Case{"Two", nothing, "", "0 15"}, Case{"Other", holds, "Yes", "0 DEFAULT"},
          Case{"Tie", otherCase, "", "0 4"}}) {
        SCOPED_TRACE(c.type);
        EXPECT_EQ(ofPlmObject(c.type, c.attributes), c.neutral);
        EXPECT_EQ(ofIfcObject(c.type, c.attributes), c.neutral);
        const std::string plm = plmOfIfc(c.type, c.value);
        EXPECT_EQ(plm == unexpected || plm == "0 DEFAULT" ? plm : c.neutral, c.neutral);
    }
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
    variables.set("QORCollectionStandard", (folder / "one").c_str());
    variables.set("QORDefaultCollectionStandard", (folder / "two").c_str());
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
