#include "ConfigurationTestSupport.h"
#include "DocumentTestSupport.h"
#include "Matchers.h"
#include "velkor/exchangeservices/QORIExchangeAECServices.h"
#include "velkor/objectmodeler/ClassDictionary.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"
#include "velkor/text/Unicode.h"

namespace velkor::host {

using nlohmann::json;

namespace {

const std::string shippedDocument = standardFile("xcad/AECCorrespondences.xml");

/// Neutral identifier of the entry on a line, as the document itself has it.
std::map<int, std::string> entriesByLine(const std::string& path) {
    std::map<int, std::string> result;
    for (const QORIDOMNode_var& node : nodes(path, "//IFC")) {
        int line = 0;
        QORIDOMNode_var parent;
        EXPECT_EQ(node->GetLineNumber(line), S_OK);
        EXPECT_EQ(node->GetParentNode(parent), S_OK);
        result[line] = attribute(parent, "Name");
    }
    return result;
}

class ClassifyCommandTest : public ConfiguredTest {
protected:
    /// Writes a document of correspondences and has the command use it.
    void use(const std::string& entries) {
        document = folder.file("site/xcad/entries.xml", "<Entries>\n" + entries + "</Entries>\n");
        set("QORCollectionStandard", folder / "site");
    }

    static json classified(const std::string& path, int expectedStatus, std::vector<std::string> more = {}) {
        std::vector<std::string> words{"classify", path, "--format", "json"};
        words.insert(words.end(), more.begin(), more.end());
        const Outcome outcome = runHost(words, false, shippedResources);
        EXPECT_EQ(outcome.status, expectedStatus) << path << '\n' << outcome.err;
        return json::parse(outcome.out, nullptr, false);
    }

    const TemporaryFolder folder;
    std::string document;
};

const char* const walls =
    "#1=IFCWALL('0$WU4A9R19$vKWO$AdOnKA',$,'A \"wall\", thick',$,'Screen',$,$,$,.NOTDEFINED.);\n"
    "#2=IFCWALLSTANDARDCASE('1$WU4A9R19$vKWO$AdOnKA',$,'Wall',$,$,$,$,$,$);\n"
    "#3=IFCDOOR('2$WU4A9R19$vKWO$AdOnKA',$,'Door',$,$,$,$,$,$,$,.DOOR.,$,$);\n"
    "#11=IFCWALLTYPE('3$WU4A9R19$vKWO$AdOnKA',$,$,$,$,(#22),$,$,$,.PARAPET.);\n"
    "#12=IFCRELDEFINESBYTYPE('4$WU4A9R19$vKWO$AdOnKA',$,$,$,(#1,#2),#11);\n"
    "#21=IFCPROPERTYSET('5$WU4A9R19$vKWO$AdOnKA',$,'Own',$,(#31,#32));\n"
    "#22=IFCPROPERTYSET('6$WU4A9R19$vKWO$AdOnKA',$,'OfType',$,(#33,#34,#35));\n"
    "#31=IFCPROPERTYSINGLEVALUE('isExternal',$,IFCBOOLEAN(.T.),$);\n"
    "#32=IFCPROPERTYSINGLEVALUE('Layers',$,IFCINTEGER(3),$);\n"
    "#33=IFCPROPERTYSINGLEVALUE('IsExternal',$,IFCBOOLEAN(.F.),$);\n"
    "#34=IFCPROPERTYSINGLEVALUE('Mark',$,IFCLABEL('x\\X2\\00E9\\X0\\'),$);\n"
    "#35=IFCPROPERTYSINGLEVALUE('Empty',$,$,$);\n"
    "#41=IFCRELDEFINESBYPROPERTIES('7$WU4A9R19$vKWO$AdOnKA',$,$,$,(#1,#3),#21);\n"
    "#42=IFCRELDEFINESBYPROPERTIES('8$WU4A9R19$vKWO$AdOnKA',$,$,$,(#3),IFCPROPERTYSETDEFINITIONSET((#22)));\n";

std::string entry(const std::string& id, const std::string& type, const std::string& priority,
                  const std::string& condition = {}) {
    return "<NeutralID Name=\"" + id + "\">\n<IFC Name=\"" + type + "\" Priority=\"" + priority + "\">" + condition +
           "</IFC>\n<NORVEL Name=\"Plm" + id + "\"/>\n</NeutralID>\n";
}

std::string when(const std::string& name, const std::string& value) {
    return "<Condition Attribute=\"" + name + "\" Value=\"" + value + "\"/>";
}

} // namespace

TEST_F(ClassifyCommandTest, EveryProductOfTheExamplesIsClassifiedByTheEntryNamed) {
    const auto entries = entriesByLine(shippedDocument);
    const struct {
        const char* model;
        std::size_t products;
        std::map<std::uint64_t, const char*> some;
    } cases[] = {{"house-ifc2x3.ifc", 15, {{60, "ExternalWall"}}},
                 {"pump-room-ifc4.ifc", 13, {{113, "Pump"}, {186, "BaseSlab"}}},
                 {"road-ifc4x3.ifc", 12, {}}};
    for (const auto& expected : cases) {
        const json answered = classified(example(expected.model), Done);
        EXPECT_EQ(answered["document"], shippedDocument);
        ASSERT_EQ(answered["products"].size(), expected.products);
        EXPECT_EQ(answered["unclassified"], 0);
        std::size_t counted = 0, found = 0;
        for (const json& group : answered["classes"]) counted += group["count"].get<std::size_t>();
        EXPECT_EQ(counted, expected.products);
        for (const json& product : answered["products"]) {
            SCOPED_TRACE(product.dump());
            ASSERT_TRUE(product["entry"].is_object());
            EXPECT_EQ(product["neutral_id"], entries.at(product["entry"]["line"]));
            EXPECT_TRUE(product["plm_type"].is_string());
            const auto known = expected.some.find(product["instance"]);
            if (known == expected.some.end()) continue;
            ++found;
            EXPECT_EQ(product["neutral_id"], known->second);
        }
        EXPECT_EQ(found, expected.some.size());
    }
}

TEST_F(ClassifyCommandTest, ExplainsWhatTheServiceDecides) {
    const std::string anyWall = entry("Any", "ifcWALL", "1");
    // What #1 and #3 get (#1 has set #21 before its type's #22), and the condition that decided.
    const struct {
        std::string entries;
        const char* wall;
        const char* standardWall;
        const char* door;
    } cases[] = {
        {anyWall + entry("Own", "IfcWall", "5", when("ISEXTERNAL", "TRUE")), "Own", "Any", nullptr},
        {anyWall + entry("Own", "IfcWall", "+5", when("IsExternal", "FALSE")), "Any", "Own", nullptr},
        {anyWall + entry("Own", "IfcWall", "5", when("IsExternal", "true")), "Any", "Any", nullptr},
        {anyWall + entry("No number", "IfcWall", "5x", when("Layers", "3")), "Any", "Any", nullptr},
        {entry("First", "IfcWall", "1", when("Layers", "4")) + entry("Second", "IfcWall", "1"), "Second", "Second",
         nullptr},
        {entry("First", "IfcWall", "1", when("", "4")) + entry("Second", "IfcWall", "1"), "First", "First", nullptr},
        {entry("First", "IfcWall", "1", "<Any>" + when("Layers", "3") + "</Any>" + when("Layers", "4")) +
             entry("Second", "IfcWall", "1"),
         "First", "Second", nullptr},
        {entry("Type's", "IfcElement", "1", when("Mark", "x\u00e9")), "Type's", "Type's", "Type's"},
        {entry("Open", "IfcElement", "1", when("PredefinedType", "PARAPET")) +
             entry("Stated", "IfcElement", "1", when("predefinedtype", "DOOR")),
         "Open", "Open", "Stated"},
        {entry("Object", "IfcProduct", "1", when("ObjectType", "Screen")), "Object", nullptr, nullptr},
        {entry("Empty", "IfcProduct", "1", when("Empty", "")), nullptr, nullptr, nullptr},
        // A subtype whose conditions fail leaves the word to its supertypes.
        {entry("Case", "IfcWallStandardCase", "9", when("Layers", "3")) + entry("Building", "IfcBuildingElement", "1"),
         "Building", "Building", "Building"},
    };
    const TemporaryModel model("IFC4", walls);
    for (const auto& expected : cases) {
        use(expected.entries);
        const auto lines = entriesByLine(document);
        const char* answers[] = {expected.wall, expected.standardWall, expected.door};
        const bool isComplete = std::ranges::all_of(answers, [](const char* answer) { return answer != nullptr; });
        const json answered = classified(model.path(), isComplete ? Done : Findings);
        ASSERT_EQ(answered["products"].size(), 3U);
        for (std::size_t i = 0; i < 3; ++i) {
            const json& product = answered["products"][i];
            SCOPED_TRACE(expected.entries + product.dump());
            EXPECT_EQ(product["neutral_id"], answers[i] == nullptr ? json() : json(answers[i]));
            EXPECT_EQ(product["entry"].is_object(), answers[i] != nullptr);
            EXPECT_EQ(product["reason"].is_string(), answers[i] == nullptr);
            if (answers[i] == nullptr) continue;
            EXPECT_EQ(lines.at(product["entry"]["line"]), answers[i]);
            EXPECT_EQ(product["plm_type"], std::string("Plm") + answers[i]);
        }
    }
}

TEST_F(ClassifyCommandTest, AProductCountsAsTheClassOfItsTypeWhereTheReleaseHasNone) {
    use(entry("Pump", "IfcPump", "1") + entry("Moving", "IfcFlowMovingDevice", "1"));
    const TemporaryModel model("IFC2X3", "#1=IFCFLOWMOVINGDEVICE('0$WU4A9R19$vKWO$AdOnKA',$,'P',$,$,$,$,$);\n"
                                         "#2=IFCFLOWMOVINGDEVICE('1$WU4A9R19$vKWO$AdOnKA',$,'Q',$,$,$,$,$);\n"
                                         "#3=IFCPUMPTYPE('2$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,$,.CIRCULATOR.);\n"
                                         "#4=IFCRELDEFINESBYTYPE('3$WU4A9R19$vKWO$AdOnKA',$,$,$,(#1),#3);\n");
    const json products = classified(model.path(), Done)["products"];
    EXPECT_EQ(products[0]["neutral_id"], "Pump");
    EXPECT_EQ(products[0]["presented_as"], "IFCPUMP");
    EXPECT_EQ(products[1]["neutral_id"], "Moving");
}

TEST_F(ClassifyCommandTest, WritesTextAndCommaSeparatedValues) {
    use(entry("Wall", "IfcWall", "7", when("Layers", "3")));
    const TemporaryModel model("IFC4", walls);
    const Outcome csv = runHost({"classify", model.path(), "--format", "csv", "--limit", "2"});
    EXPECT_EQ(csv.status, Findings);
    EXPECT_EQ(
        csv.out,
        "instance,global_id,entity,name,neutral_id,plm_type,ifc_type,priority,condition_attribute,condition_value\r\n"
        "1,0$WU4A9R19$vKWO$AdOnKA,IFCWALL,\"A \"\"wall\"\", thick\",Wall,PlmWall,IfcWall,7,Layers,3\r\n"
        "2,1$WU4A9R19$vKWO$AdOnKA,IFCWALLSTANDARDCASE,Wall,,,,,,\r\n");
    EXPECT_THAT(csv.err, HasSubstr("the first 2 of 3 products"));

    const Outcome text = runHost({"classify", model.path(), "--limit", "2"});
    EXPECT_EQ(text.status, Findings);
    EXPECT_THAT(text.out, HasSubstr("PlmWall   IfcWall, priority 7, Layers is \"3\" (line 3)\n"));
    EXPECT_THAT(text.out, HasSubstr("none: no condition of its entries holds\n"));
    EXPECT_THAT(text.out, HasSubstr("3 products, the first 2 are listed (--limit shows more); 2 without neutral id\n"));
    EXPECT_THAT(text.out, testing::Not(HasSubstr("#3 ")));
    EXPECT_EQ(runHost({"report", model.path(), "--format", "csv"}).status, BadUsage)
        << "a format of this command alone";
}

TEST_F(ClassifyCommandTest, NeedsADocument) {
    const std::string model = example("road-ifc4x3.ifc");
    const Outcome missing = runHost({"classify", model});
    EXPECT_EQ(missing.status, Unreadable);
    EXPECT_THAT(missing.err, HasSubstr("no document of correspondences: "));
    use("<broken");
    const Outcome broken = runHost({"classify", model});
    EXPECT_EQ(broken.status, Unreadable);
    EXPECT_EQ(broken.out, "");
    EXPECT_THAT(broken.err, HasSubstr("entries.xml: cannot be read\n"));
}

TEST_F(ClassifyCommandTest, TheShippedDocumentCoversEveryProduct) {
    // Every class of product has an entry, its own or a supertype's, that holds for all of it.
    std::set<std::string> always;
    for (const QORIDOMNode_var& node : nodes(shippedDocument, "//IFC[not(Condition)]"))
        always.insert(text::toUpper(attribute(node, "Name")));
    for (const std::string& release : DXSdaiDictionaryRepo::TheOne().names()) {
        for (const sdai::EntityDefinition* entity : (*DXSdaiDictionaryRepo::TheOne().schema(release))->entities()) {
            if (!entity->isKindOf("IFCPRODUCT") || entity->isAbstract()) continue;
            const auto* general = entity;
            while (general != nullptr && !always.contains(std::string(general->name()))) general = general->supertype();
            EXPECT_NE(general, nullptr) << release << ' ' << entity->name();
        }
    }

    // Both sides of each can be had from the services.
    classified(example("road-ifc4x3.ifc"), Done);
    const QORIExchangeAECServices_var services = objectmodeler::createComponent("ExchangeAECServices");
    const auto entries = nodes(shippedDocument, "//NeutralID");
    EXPECT_GT(entries.size(), 100U);
    for (const QORIDOMNode_var& entry : entries) {
        const std::string name = attribute(entry, "Name");
        QORUnicodeString ifcType, plmType;
        EXPECT_EQ(services->GetIFCTypeFromNeutralID(name.c_str(), ifcType), S_OK) << name;
        EXPECT_EQ(services->GetPLMTypeFromNeutralID(name.c_str(), plmType), S_OK) << name;
        EXPECT_FALSE(ifcType.IsEmpty() || plmType.IsEmpty()) << name;
    }
}

} // namespace velkor::host
