#include "ConfigurationTestSupport.h"
#include "DocumentTestSupport.h"
#include "Matchers.h"
#include "QORIFCPSetQtoValidationService.h"
#include "ResourceKinds.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include <set>

namespace velkor::host {

using nlohmann::json;

namespace {

const std::string definitionFolder = std::string(shippedResources) + "/runtime/IFC4/" + propertySetResource.subFolder;

json resources(const std::vector<std::string>& more = {}) {
    std::vector<std::string> words{"resources", "--format", "json"};
    words.insert(words.end(), more.begin(), more.end());
    return json::parse(runHost(words, false, shippedResources).out, nullptr, false);
}

std::vector<std::string> texts(const std::string& path, const char* xpath) {
    std::vector<std::string> result;
    for (const QORIDOMNode_var& node : nodes(path, xpath)) {
        QORUnicodeString text;
        EXPECT_EQ(node->GetTextContent(text), S_OK);
        result.emplace_back(text.utf8());
    }
    return result;
}

std::vector<std::string> sources(const json& resource) {
    std::vector<std::string> result;
    for (const json& folder : resource["folders"]) result.push_back(folder["source"]);
    return result;
}

class ShippedResourcesTest : public ConfiguredTest {
protected:
    ShippedResourcesTest() { configuration.shippedResources = shippedResources; }
    Configuration configuration;
};

} // namespace

// What else they name is judged as any file's is, with the other resources.
TEST_F(ShippedResourcesTest, DefinitionsAreReadAndHaveWhatTheAttributeCatalogueNames) {
    const PlatformSetup setup(configuration, [&](const std::string& line) { std::cerr << line << "\n"; });
    auto* service = QORIFCPSetQtoValidationService::getInstance();
    std::size_t files = 0, named = 0;
    for (const auto& file : std::filesystem::directory_iterator(definitionFolder)) {
        ++files;
        const std::string name = file.path().stem();
        service->Initialize(name.c_str());
        EXPECT_FALSE(texts(file.path(), "//ClassName").empty()) << name;
        std::vector<std::string> properties = texts(file.path(), "//Name");
        ASSERT_GT(properties.size(), 1U) << name;
        EXPECT_EQ(std::set<std::string>(properties.begin(), properties.end()).size(), properties.size()) << name;
        properties.erase(properties.begin());
        for (const std::string& property : properties)
            EXPECT_TRUE(service->IsPropertySupported(name.c_str(), property.c_str())) << name << ": " << property;
        EXPECT_FALSE(service->IsPropertySupported(name.c_str(), name.c_str()));
    }
    EXPECT_GE(files, 20U);
    for (const auto& [level, releases] : {std::pair{"General", std::vector{"IFC2X3", "IFC4", "IFC4X3_ADD2"}},
                                          {"2X3", {"IFC2X3"}},
                                          {"4ANDABOVE", {"IFC4", "IFC4X3_ADD2"}}}) {
        const std::string entries = std::string("/*/Level[@ID='") + level + "']/AttributeID";
        for (const auto& entry : nodes(standardFile("IFCAttributes/IFCAttributes.xml"), entries)) {
            ++named;
            const std::string set = attribute(entry, "PropertySet"), value = attribute(entry, "Value");
            for (const char* release : releases) {
                const auto* entity =
                    (*DXSdaiDictionaryRepo::TheOne().schema(release))->entity(attribute(entry, "Entity"));
                ASSERT_NE(entity, nullptr) << release << ' ' << attribute(entry, "Entity");
                EXPECT_TRUE(set.empty() ? entity->attributeIndex(value) >= 0
                                        : service->IsPropertySupported(set.c_str(), value.c_str()))
                    << release << ' ' << entity->name() << '.' << value;
            }
        }
    }
    EXPECT_GT(named, 50U);
}

TEST_F(ShippedResourcesTest, AreUsedUnlessSomethingElseIsNamed) {
    const std::vector<std::string> shipped{shippedSource};
    json answered = resources();
    EXPECT_EQ(sources(resourceOf(answered, propertySetResource)), shipped);
    EXPECT_EQ(sources(resourceOf(answered, attributeListResource)), shipped);
    EXPECT_EQ(resourceOf(answered, attributeListResource)["reason"], nullptr);
    EXPECT_THAT(runHost({"resources"}, false, shippedResources).out,
                HasSubstr("\n  shipped with the program  " + definitionFolder + "\n    Pset_BeamCommon.xml: used\n"));
    EXPECT_TRUE(variables().empty());

    // What a user has comes first, and takes the place of what it is called like.
    const TemporaryFolder folder;
    folder.file("site/IFCAttributes/a.xml");
    const std::string path =
        folder.file("velkor.json", R"({"collection_standard": ["site"], "runtime_view": ["site"]})");
    answered = resources({"--config", path});
    EXPECT_EQ(sources(resourceOf(answered, attributeListResource)),
              (std::vector<std::string>{"QORCollectionStandard", shippedSource}));
    EXPECT_EQ(resourceOf(answered, attributeListResource)["used"][0]["path"], folder / "site/IFCAttributes/a.xml");
    EXPECT_EQ(sources(resourceOf(answered, propertySetResource)), std::vector<std::string>{"runtime_view"});
    folder.file("velkor.json", R"({"default_collection_standard": [], "runtime_view": []})");
    answered = resources({"--config", path});
    for (const ResourceKind& kind : resourceKinds)
        EXPECT_TRUE(sources(resourceOf(answered, kind)).empty()) << kind.name;

    // The environment is stronger, even when it names the very same folder.
    set("QORDefaultCollectionStandard", std::string(shippedResources) + "/standard");
    EXPECT_EQ(sources(resourceOf(resources(), attributeListResource)),
              std::vector<std::string>{"QORDefaultCollectionStandard"});
}

} // namespace velkor::host
