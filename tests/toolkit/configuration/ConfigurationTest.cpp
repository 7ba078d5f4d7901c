#include "velkor/configuration/ConfigurationReader.h"

#include "ConfiguredTest.h"
#include "QORIFCMsgLoggingServices.h"
#include "QORIFCOptionsFromXCAD.h"
#include "QORIFCOptionsServices.h"
#include "TemporaryFolder.h"
#include "velkor/configuration/EffectiveOptions.h"
#include "velkor/exchangelog/QORExchangeErr.h"
#include "velkor/files/QORSysRTVWalker.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <sstream>

namespace velkor {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Pair;
using testing::StartsWith;
using testing::UnorderedElementsAreArray;

namespace {

constexpr const char* full = R"({
  // every section
  "settings": {"IFC": {"ImportProfileMode": -32768, "FullyExposed": 32767}, "Other": {"X": 0}},
  "conversion_options": {"z": "1", "a": "2", "m": "" /* order of the file */},
  "setup_data": {"Set|One": "one.xml", "Set|More": ["/abs/a.xml", "b\\c.xml"]},
  "collection_standard": ["site", "/base"],
  "default_collection_standard": [],
  "runtime_view": ["rtv;x"],
  "definitions_release": "IFC2X3",
  "custom_property_sets": ["Acme_Common", "ACME doors"],
  "knowledge_types": [
    {"name": "Wall", "kind": "specialization", "parent": "Thing", "abstract": false},
    {"name": "Thing", "kind": "knowledge", "abstract": true}
  ]
})";

} // namespace

TEST(ConfigurationReader, ReadsEverySection) {
    const ConfigurationReading reading = parseConfiguration(full, "conf/velkor.json");
    EXPECT_THAT(reading.errors, IsEmpty());
    const Configuration& configuration = reading.configuration;
    ASSERT_EQ(configuration.settings.size(), 3U);
    EXPECT_EQ(configuration.settings[0].repository, "IFC");
    EXPECT_EQ(configuration.settings[0].value, -32768);
    EXPECT_EQ(configuration.settings[1].name, "FullyExposed");
    EXPECT_EQ(configuration.settings[1].value, 32767);
    EXPECT_THAT(configuration.conversionOptions, ElementsAre(Pair("z", "1"), Pair("a", "2"), Pair("m", "")));
    ASSERT_EQ(configuration.setupData.size(), 2U);
    EXPECT_THAT(configuration.setupData[0].paths, ElementsAre("conf/one.xml"));
    EXPECT_THAT(configuration.setupData[1].paths, ElementsAre("/abs/a.xml", "conf/b/c.xml"));
    EXPECT_THAT(configuration.collectionStandard.value(), ElementsAre("conf/site", "/base"));
    EXPECT_THAT(configuration.defaultCollectionStandard.value(), IsEmpty());
    EXPECT_THAT(configuration.runtimeView.value(), ElementsAre("conf/rtv;x"));
    EXPECT_EQ(configuration.definitionsRelease, "IFC2X3");
    EXPECT_THAT(configuration.customPropertySets, ElementsAre("Acme_Common", "ACME doors"));
    ASSERT_EQ(configuration.knowledgeTypes.size(), 2U);
    EXPECT_TRUE(configuration.knowledgeTypes[0].isSpecialization);
    EXPECT_EQ(configuration.knowledgeTypes[0].parent, "Thing") << "which stands behind it";
    EXPECT_TRUE(configuration.knowledgeTypes[1].isAbstract);
    const Configuration none = parseConfiguration("{}", "velkor.json").configuration;
    EXPECT_FALSE(none.collectionStandard) << "not an empty list";
    EXPECT_EQ(none.definitionsRelease, "IFC4");
}

TEST(ConfigurationReader, NamesEveryFaultWithItsPlace) {
    const ConfigurationReading reading = parseConfiguration(R"({
  /* two
     lines */ "runtimeview": [],
  "runtime_view": 7
  ,
  "settings": {"IFC": {"A": 32768, "B": 1.0, "C": 18446744073709551615, "A": -32768}, "D": 1},
  "collection_standard": ["a;b", 3,
    ""],
  "setup_data": {"nobar": {}, "a|b|c": "x", "|b": "x", "a|": "x", "a|b": [true]},
  "conversion_options": ["x"], "definitions_release": "IFC4X4",
  "knowledge_types": [
    {"name": "A", "kind": "knowledge", "parent": "B"},
    {"name": "B", "kind": "special", "parent": "C", "abstract": "no"},
    {"name": "C", "kind": "knowledge", "parent": "A"},
    {"name": "A", "kind": "knowledge", "parent": "Z", "colour": 1}, 7,
    {"name": "Own", "kind": "knowledge", "parent": "Own"}, {"name": ""}
  ],
  "custom_property_sets": ["x", 1, ""], "runtime_view": null, "conversion_options": {"x\u0000": "", "y": "\u0000", "z": null}
})",
                                                            "velkor.json");
    std::istringstream expected(R"(3: "runtimeview": unknown key; did you mean "runtime_view"?
4: "runtime_view": expected a list of texts, found the number 7
6: "settings" / "IFC" / "A": expected an integer from -32768 to 32767, found the number 32768
6: "settings" / "IFC" / "A": the key is there already, in line 6
6: "settings" / "IFC" / "B": expected an integer from -32768 to 32767, found the number 1.0
6: "settings" / "IFC" / "C": expected an integer from -32768 to 32767, found the number 18446744073709551615
6: "settings" / "D": expected an object of integers, found the number 1
7: "collection_standard" / item 1: expected a folder without ";", found "a;b"
7: "collection_standard" / item 2: expected a text, found the number 3
8: "collection_standard" / item 3: expected a path, found an empty text
9: "setup_data" / "nobar": expected a key "RESOURCESET|CATEGORY"
9: "setup_data" / "nobar": expected a path or a list of paths, found an object
9: "setup_data" / "a|b|c": expected a key "RESOURCESET|CATEGORY"
9: "setup_data" / "|b": expected a key "RESOURCESET|CATEGORY"
9: "setup_data" / "a|": expected a key "RESOURCESET|CATEGORY"
9: "setup_data" / "a|b" / item 1: expected a text, found true
10: "conversion_options": expected an object of texts, found a list
10: "definitions_release": expected one of "IFC2X3", "IFC4", "IFC4X1", "IFC4X2", "IFC4X3_ADD2", found "IFC4X4"
13: "knowledge_types" / item 2 / "kind": expected "knowledge" or "specialization", found "special"
13: "knowledge_types" / item 2 / "abstract": expected true or false, found a text
14: "knowledge_types": the parent of "C", "A", is derived from it
15: "knowledge_types" / item 4 / "colour": unknown key; expected one of "name", "kind", "parent", "abstract"
15: "knowledge_types" / item 5: expected an object, found the number 7
15: "knowledge_types": the type "A" is there already, in line 12
15: "knowledge_types": the parent of "A" is unknown: "Z"
16: "knowledge_types": the parent of "Own", "Own", is derived from it
16: "knowledge_types" / item 7 / "name": expected a name, found an empty text
16: "knowledge_types" / item 7: expected a key "kind"
18: "custom_property_sets" / item 2: expected a text, found the number 1
18: "custom_property_sets" / item 3: expected a name, found an empty text
18: "runtime_view": the key is there already, in line 4
18: "runtime_view": expected a list of texts, found null
18: "conversion_options": the key is there already, in line 10
18: "conversion_options" / "x0": expected a key without zero characters
18: "conversion_options" / "y": expected a text without zero characters
18: "conversion_options" / "z": expected a text, found null)");
    std::vector<std::string> lines, found = reading.errors;
    for (std::string line; std::getline(expected, line);) lines.push_back("velkor.json:" + line);
    // A key of the text holds a zero character.
    for (std::string& error : found) std::ranges::replace(error, '\0', '0');
    EXPECT_THAT(found, UnorderedElementsAreArray(lines));
    EXPECT_TRUE(
        std::ranges::is_sorted(found, {}, [](const std::string& error) { return std::stoi(error.substr(12)); }));
}

TEST(ConfigurationReader, SyntaxFaultsHaveLineAndColumn) {
    for (const auto& [text, place] : {std::pair("", "c:1:1: "),
                                      {"{\n  \"a\": 1,\n  \"é\" x: 2 }", "c:3:7: "},
                                      {"{\r\n \"a\": [1,]}", "c:2:10: "},
                                      {"{\"a\": ", "c:1:7: "},
                                      {"{\"a\": 1e999}", "c:1:11: number overflow"},
                                      {"{}\n}", "c:2:1: "},
                                      {"{ /* ", "c:1:6: "},
                                      {"{\"\xFF\"}", "c:1:3: "},
                                      {"[]", "c:1: expected an object, found a list"}}) {
        EXPECT_THAT(parseConfiguration(text, "c").errors, ElementsAre(StartsWith(place))) << text;
    }
    const std::string whole = full;
    for (std::size_t size = 0; size < whole.size(); ++size)
        EXPECT_EQ(parseConfiguration(whole.substr(0, size), "c").errors.size(), 1U) << size;
    const auto nested = [](std::size_t depth) { return std::string(depth, '[') + '1' + std::string(depth, ']'); };
    EXPECT_THAT(parseConfiguration(nested(32), "c").errors, ElementsAre("c:1: expected an object, found a list"));
    EXPECT_THAT(parseConfiguration(nested(33), "c").errors, ElementsAre(HasSubstr("c:1: expected at most 32 lists")));
    EXPECT_THAT(parseConfiguration("{\n\"a\":" + std::string(1 << 19, '['), "c").errors,
                ElementsAre(HasSubstr("c:2: expected at most 32 lists")));
}

class PlatformSetupTest : public test::ConfiguredTest {};

TEST_F(PlatformSetupTest, NothingOfItStays) {
    const short before = 5;
    settings::repository("IFC").WriteSetting("FullyExposed", &before, 1);
    set(QORIFCOptions::_envvar_structure_exposure, "1");
    {
        const PlatformSetup setup(parseConfiguration(full, "velkor.json").configuration);
        EXPECT_EQ(variables().size(), 4U) << "both collection standards, and the profile that follows";
        EXPECT_EQ(effectiveOptions(setup).size(), 6U);
        EXPECT_EQ(files::runtimeView().Size(), 1);
    }
    EXPECT_THAT(variables(), ElementsAre(Pair(QORIFCOptions::_envvar_structure_exposure, "1")));
    short value = 0;
    EXPECT_EQ(QORIFCOptions::GetSettingValue("FullyExposed", value), S_OK);
    EXPECT_EQ(value, 5);
    EXPECT_EQ(QORIFCOptions::GetSettingValue("ImportProfileMode", value), S_FALSE);
    EXPECT_EQ(QORSettingRepository::GetRepository("Other", 0, QORSettingRepository::ReadAccess, nullptr), nullptr);
    EXPECT_TRUE(QORSetupDataGlobalFunctions::GetSetupDataFinder().IsNull());
    EXPECT_EQ(files::runtimeView().Size(), 0);
    EXPECT_EQ(GetExchangeErr(), nullptr);
    EXPECT_EQ(QORIFCMsgLoggingServices::PutUnicodeMessage("lost", 0, 0), E_FAIL) << "the services keep no log";
    QORListValQORUnicodeString names, values;
    QORIFCOptionsFromXCAD::GetInstance()->GetAllOptions(names, values);
    QORIFCOptionsFromXCAD::DeleteInstance();
    EXPECT_EQ(names.Size(), 0);
    settings::removeRepository("IFC");
    clear();
    QORIFCOptions::Reset();
    EXPECT_EQ(QORIFCOptions::GetInstance().GetExchangeProfile(), QORIFCOptions::TessellatedProfile);
}

TEST_F(PlatformSetupTest, GivesTheServicesTheViewOfOneRelease) {
    const test::TemporaryFolder folder;
    const std::string place = folder.path;
    for (const char* view : {"shipped/runtime/IFC4", "shipped/runtime/IFC2X3", "site", "all/IFC2X3", "more/IFC4"})
        folder.file(std::string(view) + "/resources/standard/IFCPsetQset/Pset_A.xml");
    // A view that has folders of such names beside its own definitions.
    folder.file("both/resources/standard/IFCPsetQset/Pset_A.xml");
    folder.file("both/IFC4/resources/standard/IFCPsetQset/Pset_A.xml");
    using Folders = std::vector<std::string>;
    const struct {
        std::optional<Folders> configured;
        const char* release;
        Folders services;
        Folders own;
        std::string byRelease;
        std::string shipped;
    } cases[] = {
        {{}, "IFC4", {"shipped/runtime/IFC4"}, {}, "shipped/runtime", "shipped/runtime/IFC4"},
        {{}, "IFC2X3", {"shipped/runtime/IFC2X3"}, {}, "shipped/runtime", "shipped/runtime/IFC2X3"},
        {Folders{}, "IFC4", {}, {}, "", ""},
        {Folders{"site", "none"}, "IFC4", {"site", "none"}, {"site", "none"}, "", ""},
        {Folders{"site", "all"}, "IFC4", {"site", "all/IFC4"}, {"site"}, "all", ""},
        {Folders{"all", "site", "more"}, "IFC2X3", {"all/IFC2X3", "site", "more"}, {"site", "more"}, "all", ""},
        {Folders{"both", "all/IFC2X3"}, "IFC4", {"both", "all/IFC2X3"}, {"both", "all/IFC2X3"}, "", ""},
    };
    const auto inside = [&](Folders folders) {
        for (std::string& name : folders) name.insert(0, place + '/');
        return folders;
    };
    const auto path = [&](const std::string& name) { return name.empty() ? name : place + '/' + name; };
    for (const auto& expected : cases) {
        SCOPED_TRACE(testing::PrintToString(expected.services) + ' ' + expected.release);
        Configuration configuration;
        configuration.shippedResources = place + "/shipped";
        if (expected.configured) configuration.runtimeView = inside(*expected.configured);
        configuration.definitionsRelease = expected.release;
        const PlatformSetup setup(configuration);
        Folders views;
        for (const QORUnicodeString& view : files::runtimeView()) views.emplace_back(view.utf8());
        EXPECT_EQ(views, inside(expected.services));
        EXPECT_EQ(setup.ownRuntimeViews(), inside(expected.own));
        EXPECT_EQ(setup.runtimeViewsByRelease(), path(expected.byRelease));
        EXPECT_EQ(setup.shippedRuntimeView(), path(expected.shipped));
        EXPECT_EQ(setup.definitionsRelease(), expected.release);
    }
}

TEST_F(PlatformSetupTest, TellsWhatTheServicesSay) {
    std::vector<std::string> told;
    {
        const PlatformSetup setup({}, [&](const std::string& message) { told.push_back(message); });
        EXPECT_EQ(QORIFCMsgLoggingServices::PutUnicodeMessage("no wall", 1, 0), S_OK);
        EXPECT_EQ(QORIFCMsgLoggingServices::PutUnicodeMessage("step by step", 2, 0), E_FAIL);
        EXPECT_THAT(told, ElementsAre("no wall")) << "at once, and what matters alone";
        EXPECT_FALSE(QORSetupDataGlobalFunctions::GetSetupDataFinder().IsNull()) << "without any setup data";
        QORIFCOptionsServices::getInstance()->SetEnableCustomPropertySets(false);
    }
    EXPECT_EQ(QORIFCOptionsServices::getInstance()->IsCustomPropertySetsRequired(), 1);
}

} // namespace velkor
