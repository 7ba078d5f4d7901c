#include "ConfigurationTestSupport.h"
#include "DocumentTestSupport.h"
#include "ResourceKinds.h"
#include "SetDefinitions.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include <gmock/gmock.h>
#include <set>

namespace velkor::host {

using nlohmann::json;
using testing::HasSubstr;

namespace {

const std::string definitionFolder = std::string(shippedResources) + "/runtime/" + propertySetResource.subFolder;

json resources(const std::vector<std::string>& more = {}) {
    std::vector<std::string> words{"resources", "--format", "json"};
    words.insert(words.end(), more.begin(), more.end());
    return json::parse(runHost(words, false, shippedResources).out, nullptr, false);
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
    SetDefinitions definitions;
    std::size_t files = 0, named = 0;
    for (const auto& file : std::filesystem::directory_iterator(definitionFolder)) {
        ++files;
        const std::string name = file.path().stem();
        const SetDefinition& definition = definitions.find(name);
        ASSERT_EQ(definition.state(), SetDefinition::State::Defined) << name;
        EXPECT_FALSE(definition.classes().empty() || definition.properties().empty()) << name;
        const std::set<std::string> distinct(definition.properties().begin(), definition.properties().end());
        EXPECT_EQ(distinct.size(), definition.properties().size()) << name;
        for (const std::string& property : definition.properties())
            EXPECT_TRUE(definition.hasProperty(property)) << name << ": " << property;
        EXPECT_FALSE(definition.hasProperty(name));
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
                EXPECT_TRUE(set.empty() ? entity->attributeIndex(value) >= 0 : definitions.find(set).hasProperty(value))
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
