#include "ConfigurationTestSupport.h"
#include "Matchers.h"

#include "ResourceKinds.h"
#include "velkor/objectmodeler/ResultCode.h"

namespace velkor::host {

using nlohmann::json;

namespace {

constexpr const char* versionKey = "IFCDataExchangeResources|IFCDataExchange";
constexpr const char* customKey = "QORAECDataExchangeResources|IFCCustomMapping";
constexpr const char* plmKey = "QORAECDataExchangeResources|IFCPLMAttributesMapping";
constexpr const char* definitions = "rtv/resources/standard/IFCPsetQset/";

} // namespace

class ResourcesCommandTest : public ConfiguredTest {
protected:
    std::string configured(const json& configuration) const { return folder.file("velkor.json", configuration.dump()); }

    static json resource(const ResourceKind& kind, const std::string& configuration) {
        const json answered = answer({"resources", "--config", configuration}, Findings);
        EXPECT_EQ(answered["resources"].size(), std::size(resourceKinds));
        return resourceOf(answered, kind);
    }

    std::vector<std::string> used(const json& resource) const {
        std::vector<std::string> paths;
        const std::size_t prefix = (folder / "").size();
        for (const json& file : resource["used"]) paths.push_back(file["path"].get<std::string>().substr(prefix));
        return paths;
    }

    const TemporaryFolder folder;
};

TEST_F(ResourcesCommandTest, FindsOneOfEachKind) {
    folder.file("site/ifc/b.xml");
    folder.file("site/ifcCustomMapping/map.xml");
    folder.file("base/IfcPLMAttributesMapping/plm.xml");
    folder.file("base/xcad/aec.xml");
    folder.file("base/IFCAttributes/list.xml");
    folder.file(std::string(definitions) + "Pset_WallCommon.xml");
    const json whole{
        {"collection_standard", {"site"}}, {"default_collection_standard", {"base"}}, {"runtime_view", {"rtv"}}};
    const std::string configuration = configured(whole);
    const json answered = answer({"resources", "--config", configuration}, Done);
    std::vector<std::string> found;
    for (const json& resource : answered["resources"]) {
        EXPECT_EQ(resource["reason"], nullptr);
        EXPECT_EQ(resource["used"].size(), 1U) << resource;
        found.push_back(used(resource).front());
    }
    EXPECT_THAT(found, ElementsAre("site/ifc/b.xml", "site/ifcCustomMapping/map.xml",
                                   "base/IfcPLMAttributesMapping/plm.xml", "base/xcad/aec.xml",
                                   "base/IFCAttributes/list.xml", std::string(definitions) + "Pset_WallCommon.xml"));
    EXPECT_EQ(runHost({"resources", "--config", configuration}).status, Done);
    // One kind less is a finding.
    std::filesystem::remove(folder / "base/xcad/aec.xml");
    EXPECT_EQ(runHost({"resources", "--config", configuration}).status, Findings);
}

TEST_F(ResourcesCommandTest, TellsWhatHidesWhat) {
    for (const char* path :
         {"site/ifc/b.xml", "site/ifc/c.xml", "site/ifc/notes.txt", "base/ifc/a.xml", "base/ifc/b.xml"})
        folder.file(path);
    const std::string configuration =
        configured({{"collection_standard", {"site"}}, {"default_collection_standard", {"gone", "base"}}});
    const json version = resource(versionMappingResource, configuration);
    const auto file = [](const char* name, const char* use, const json& hiddenBy = nullptr) {
        return json{{"name", name}, {"use", use}, {"hidden_by", hiddenBy}};
    };
    const json site{{"source", "QORCollectionStandard"},
                    {"path", folder / "site/ifc"},
                    {"state", "readable"},
                    {"files", {file("b.xml", "used"), file("c.xml", "not_used")}}};
    const json gone{{"source", "QORDefaultCollectionStandard"},
                    {"path", folder / "gone/ifc"},
                    {"state", "missing"},
                    {"files", json::array()}};
    const json base{{"source", "QORDefaultCollectionStandard"},
                    {"path", folder / "base/ifc"},
                    {"state", "readable"},
                    {"files", {file("a.xml", "not_used"), file("b.xml", "hidden", folder / "site/ifc")}}};
    EXPECT_EQ(version["folders"], json::array({site, gone, base}));
    EXPECT_EQ(version["setup_data"], json({{"key", versionKey}, {"paths", json::array()}}));
    EXPECT_EQ(version["result"], nullptr) << "no service to ask";
    EXPECT_EQ(version["rule"], "first_file");
    EXPECT_THAT(runHost({"resources", "--config", configuration}).out,
                AllOf(HasSubstr("\nIFC version mapping  found\n  setup data \"" + std::string(versionKey) +
                                "\": nothing\n"
                                "  QORCollectionStandard  " +
                                (folder / "site/ifc") +
                                "\n    b.xml: used\n"
                                "    c.xml: not used, the first file alone counts\n"),
                      HasSubstr("  QORDefaultCollectionStandard  " + (folder / "gone/ifc") + ": does not exist\n"),
                      HasSubstr("\n    b.xml: hidden by the one in " + (folder / "site/ifc") + "\n  -> " +
                                (folder / "site/ifc/b.xml") + "\n")));

    // The environment is stronger than the configuration, with both separators.
    set("QORCollectionStandard", (folder / "base") + ";" + (folder / "x\\..\\site"));
    folder.file("x/y");
    EXPECT_THAT(used(resource(versionMappingResource, configuration)), ElementsAre("base/ifc/a.xml"));
    set("QORCollectionStandard", "");
    EXPECT_THAT(used(resource(versionMappingResource, configuration)), ElementsAre("base/ifc/a.xml"));
}

TEST_F(ResourcesCommandTest, RuntimeViewFoldersHideEachOther) {
    folder.file("user/resources/standard/IFCPsetQset/Pset_B.xml");
    folder.file(std::string(definitions) + "Pset_A.xml");
    folder.file(std::string(definitions) + "Pset_B.xml");
    folder.file(std::string(definitions) + "Pset_C.xml.bak");
    const json sets = resource(propertySetResource, configured({{"runtime_view", {"user", "none", "rtv"}}}));
    EXPECT_THAT(used(sets),
                ElementsAre("user/resources/standard/IFCPsetQset/Pset_B.xml", std::string(definitions) + "Pset_A.xml"));
    EXPECT_EQ(sets["folders"].size(), 3U);
    EXPECT_EQ(sets["folders"][1]["state"], "missing");
    EXPECT_EQ(sets["folders"][2]["source"], "runtime_view");
    EXPECT_EQ(sets["folders"][2]["files"].size(), 2U) << "those with the ending";
    EXPECT_EQ(sets["folders"][2]["files"][1]["hidden_by"], folder / "user/resources/standard/IFCPsetQset");
    EXPECT_EQ(sets["setup_data"], nullptr);
    EXPECT_EQ(sets["releases"], json::array());
    EXPECT_EQ(sets["remarks"], json({"the validation service reads every file from \"" +
                                     (folder / "rtv/resources/standard/IFCPsetQset") +
                                     "\", the folder of the last one; 1 of another folder counts for the judgement of "
                                     "models alone"}));

    // People see the first few of many by name, programs see all of them.
    for (int i = 10; i < 30; ++i) folder.file(definitions + std::string("Qto_") + std::to_string(i) + ".xml");
    EXPECT_EQ(used(resource(propertySetResource, folder / "velkor.json")).size(), 22U);
    EXPECT_THAT(
        runHost({"resources", "--config", folder / "velkor.json"}).out,
        AllOf(HasSubstr("\n    Qto_16.xml: used\n    13 others: 13 used\n  -> 22 files\n"), Not(HasSubstr("Qto_17"))));
}

TEST_F(ResourcesCommandTest, TellsTheViewsOfReleases) {
    const std::string place = std::string("/") + propertySetResource.subFolder;
    for (const char* path : {"views/IFC2X3", "views/IFC4", "own"}) folder.file(path + place + "/Pset_A.xml");
    folder.file("views/IFC4" + place + "/Pset_B.xml");
    folder.file("views/IFC4" + place + "/notes.txt");
    folder.file("views/IFC4X1" + place);
    const std::string configuration =
        configured({{"runtime_view", {"own", "views"}}, {"definitions_release", "IFC2X3"}});
    const json sets = resource(propertySetResource, configuration);
    const auto view = [&](const char* release, const char* state, int files, bool services) {
        return json{{"release", release},
                    {"path", folder / ("views/" + std::string(release) + place)},
                    {"state", state},
                    {"files", files},
                    {"services", services}};
    };
    EXPECT_EQ(sets["releases"], json({view("IFC2X3", "readable", 1, true), view("IFC4", "readable", 2, false),
                                      view("IFC4X1", "is_no_folder", 0, false), view("IFC4X2", "missing", 0, false),
                                      view("IFC4X3_ADD2", "missing", 0, false)}));
    EXPECT_EQ(sets["folders"].size(), 2U);
    EXPECT_EQ(sets["folders"][1]["path"], sets["releases"][0]["path"]);
    EXPECT_THAT(used(sets), ElementsAre("own" + place + "/Pset_A.xml"));
    EXPECT_THAT(runHost({"resources", "--config", configuration}).out,
                HasSubstr("\n  models are judged by the files of their own release:\n"
                          "    IFC2X3  1 file, those of the services\n    IFC4  2 files\n    IFC4X1  " +
                          (folder / ("views/IFC4X1" + place)) + " is no folder\n"));
}

TEST_F(ResourcesCommandTest, SetupDataComeFirst) {
    for (const char* path : {"chosen.xml", "more.xml", "site/ifc/a.xml", "site/ifcCustomMapping/a.xml",
                             "site/ifcCustomMapping/b.xml", "site/IfcPLMAttributesMapping/p.xml"})
        folder.file(path);
    json configuration{
        {"collection_standard", {"site"}},
        {"setup_data",
         {{versionKey, "chosen.xml"}, {customKey, "chosen.xml"}, {plmKey, {"more.xml", "chosen.xml", "gone.xml"}}}}};
    const auto ask = [&](const ResourceKind& kind) { return resource(kind, configured(configuration)); };
    EXPECT_THAT(used(ask(versionMappingResource)), ElementsAre("chosen.xml"));
    EXPECT_EQ(ask(versionMappingResource)["folders"][0]["files"][0]["use"], "not_used");
    EXPECT_THAT(used(ask(customMappingResource)), ElementsAre("chosen.xml"));
    EXPECT_EQ(ask(customMappingResource)["result"], S_OK);
    const json plm = ask(plmAttributesMappingResource);
    EXPECT_THAT(used(plm), ElementsAre("more.xml", "chosen.xml", "gone.xml", "site/IfcPLMAttributesMapping/p.xml"));
    EXPECT_EQ(plm["remarks"], json({"\"" + (folder / "gone.xml") + "\" does not exist"}));
    EXPECT_EQ(plm["reason"], nullptr);
    EXPECT_THAT(runHost({"resources", "--config", folder / "velkor.json"}).out,
                HasSubstr("\n    a.xml: not used, the setup data are stronger\n"));

    // Several paths are no answer for a kind of one file, and the collection standard has it.
    configuration["setup_data"][versionKey] = {"chosen.xml", "more.xml"};
    EXPECT_THAT(used(ask(versionMappingResource)), ElementsAre("site/ifc/a.xml"));
    EXPECT_EQ(ask(versionMappingResource)["remarks"],
              json({"the setup data name 2 paths where one is expected; none of them is used"}));
    std::filesystem::remove_all(folder / "site/IfcPLMAttributesMapping");
    EXPECT_EQ(ask(plmAttributesMappingResource)["result"], E_UNEXPECTED);
    EXPECT_THAT(used(ask(plmAttributesMappingResource)), ElementsAre("more.xml", "chosen.xml", "gone.xml"));
}

TEST_F(ResourcesCommandTest, SaysWhyThereIsNothingAndWhatHelps) {
    folder.file("two/ifcCustomMapping/a.xml");
    folder.file("two/ifcCustomMapping/b.xml");
    folder.file("two/ifc/readme.txt");
    folder.file("two/xcad/folder.xml/x");
    folder.file("file/ifc");
    const std::string help = "; set collection_standard in the configuration or QORCollectionStandard";
    const std::string unreadable =
        "no folder of the collection standard has a sub-folder \"ifc\" that can be read" + help;
    const auto standard = [](const std::string& name) { return json{{"collection_standard", {name}}}; };
    const json two = standard("two");
    const std::tuple<json, ResourceKind, std::string, json> cases[] = {
        {json::object(), versionMappingResource, "the collection standard has no folders" + help, nullptr},
        {standard("gone"), customMappingResource,
         "no folder of the collection standard has a sub-folder \"ifcCustomMapping\"" + help, "missing"},
        {standard("file"), versionMappingResource, unreadable, "is_no_folder"},
        // Too long for a name: the system refuses, as it does without a right to read.
        {standard(std::string(300, 'x')), versionMappingResource, unreadable, "forbidden"},
        {two, versionMappingResource,
         "no sub-folder \"ifc\" of the collection standard has a file whose name contains \".xml\"; put one there",
         "readable"},
        {two, customMappingResource,
         "the sub-folders \"ifcCustomMapping\" of the collection standard have 2 files where one is expected; keep one "
         "of them or name it in setup_data as \"QORAECDataExchangeResources|IFCCustomMapping\"",
         "readable"},
        {two, aecMappingResource,
         "\"" + (folder / "two/xcad/folder.xml") + "\" is to be used but is a folder; put a readable file in its place",
         "readable"},
        {{{"setup_data", {{versionKey, "gone.xml"}}}},
         versionMappingResource,
         "\"" + (folder / "gone.xml") +
             "\", which the setup data name, does not exist; correct it in setup_data in the configuration",
         nullptr},
        {two, propertySetResource, "the runtime view has no folders; set runtime_view in the configuration", nullptr},
        {{{"runtime_view", {"two"}}},
         propertySetResource,
         "no folder of the runtime view has a sub-folder \"resources/standard/IFCPsetQset\"; set runtime_view in the "
         "configuration",
         "missing"}};
    for (const auto& [configuration, kind, reason, state] : cases) {
        const std::string path = configured(configuration);
        const json found = resource(kind, path);
        EXPECT_EQ(found["reason"], reason);
        EXPECT_EQ(found["folders"].empty() ? json() : found["folders"][0]["state"], state);
        const Outcome page = runHost({"resources", "--config", path});
        EXPECT_THAT(page.out, HasSubstr(std::string("\n") + kind.name + "  not found\n"));
        EXPECT_THAT(page.out, HasSubstr("\n  " + reason + "\n"));
        EXPECT_THAT(page.err, IsEmpty());
    }
    EXPECT_EQ(resource(customMappingResource, configured(two))["result"], E_UNEXPECTED);
}

} // namespace velkor::host
