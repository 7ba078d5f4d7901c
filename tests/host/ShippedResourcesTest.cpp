#include "configuration/PlatformSetup.h"
#include "ConfigurationTestSupport.h"
#include "QORIFCDXXMLServices.h"
#include "ResourceKinds.h"
#include "sdai/DXSdaiDictionaryRepo.h"
#include "validation/SetDefinitions.h"

#include <gmock/gmock.h>

namespace velkor::host {

using nlohmann::json;
using testing::HasSubstr;

namespace {

const std::string definitionFolder = std::string(shippedResources) + "/runtime/" + propertySetResource.subFolder;

const sdai::EntityDefinition* entity(const char* release, const std::string& name) {
    const auto schema = DXSdaiDictionaryRepo::TheOne().schema(release);
    return schema ? (*schema)->entity(name) : nullptr;
}

std::vector<QORIDOMElement_var> elements(const QORIDOMElement_var& parent, const char* name) {
    QORIDOMNodeList_var nodes;
    std::vector<QORIDOMElement_var> result;
    unsigned int length = 0;
    EXPECT_EQ(parent->GetElementsByTagName(name, nodes), S_OK);
    EXPECT_EQ(nodes->GetLength(length), S_OK);
    for (unsigned int i = 0; i < length; ++i) {
        QORIDOMNode_var node;
        nodes->Item(i, node);
        result.emplace_back(node);
    }
    return result;
}

std::string attribute(const QORIDOMElement_var& element, const char* name) {
    QORUnicodeString value;
    EXPECT_EQ(element->GetAttribute(name, value), S_OK);
    return std::string(value.utf8());
}

json resource(const json& answered, const ResourceKind& kind) {
    for (const json& candidate : answered["resources"]) {
        if (candidate["name"] == kind.name) return candidate;
    }
    return {};
}

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

TEST_F(ShippedResourcesTest, EveryDefinitionIsReadAndNamesWhatThereIs) {
    const PlatformSetup setup(configuration, std::cerr);
    SetDefinitions definitions;
    std::size_t files = 0;
    for (const auto& file : std::filesystem::directory_iterator(definitionFolder)) {
        ++files;
        const std::string name = file.path().stem();
        const SetDefinition& definition = definitions.find(name);
        ASSERT_EQ(definition.state(), SetDefinition::State::Defined) << name;
        QORIDOMDocument_var document;
        QORUnicodeString written;
        ASSERT_EQ(QORIFCDXXMLServices::GetDOMDocument(file.path().c_str(), document), S_OK);
        EXPECT_EQ(QORIFCDXXMLServices::GetNodeValue(document, "/*/Name", written), S_OK);
        EXPECT_EQ(written, name.c_str());
        ASSERT_FALSE(definition.classes().empty()) << name;
        for (const std::string& className : definition.classes()) {
            EXPECT_TRUE(entity("IFC2X3", className) || entity("IFC4", className) || entity("IFC4X3_ADD2", className))
                << name << ": " << className;
        }
        ASSERT_FALSE(definition.properties().empty()) << name;
        const std::set<std::string> distinct(definition.properties().begin(), definition.properties().end());
        EXPECT_EQ(distinct.size(), definition.properties().size()) << name;
        for (const std::string& property : definition.properties())
            EXPECT_TRUE(definition.hasProperty(property)) << name << ": " << property;
        EXPECT_FALSE(definition.hasProperty(name));
    }
    EXPECT_GE(files, 20U);
}

TEST_F(ShippedResourcesTest, TheAttributeCatalogueNamesAttributesOfItsRelease) {
    const PlatformSetup setup(configuration, std::cerr);
    SetDefinitions definitions;
    QORIDOMDocument_var document;
    const std::string path = std::string(shippedResources) + "/standard/IFCAttributes/IFCAttributes.xml";
    ASSERT_EQ(QORIFCDXXMLServices::GetDOMDocument(path.c_str(), document), S_OK);
    QORIDOMElement_var root;
    ASSERT_EQ(document->GetDocumentElement(root), S_OK);
    const std::map<std::string, std::vector<const char*>> releases{
        {"General", {"IFC2X3", "IFC4", "IFC4X3_ADD2"}}, {"2X3", {"IFC2X3"}}, {"4ANDABOVE", {"IFC4", "IFC4X3_ADD2"}}};
    std::set<std::string> levels;
    for (const QORIDOMElement_var& level : elements(root, "Level")) {
        const std::string id = attribute(level, "ID");
        levels.insert(id);
        std::set<std::string> keys;
        for (const QORIDOMElement_var& entry : elements(level, "AttributeID")) {
            const std::string entityName = attribute(entry, "Entity"), set = attribute(entry, "PropertySet");
            const std::string value = attribute(entry, "Value"), name = attribute(entry, "Name");
            EXPECT_TRUE(keys.insert(name + '|' + set + '|' + entityName).second) << "only the first counts: " << name;
            for (const char* release : releases.at(id)) {
                const auto* definition = entity(release, entityName);
                ASSERT_NE(definition, nullptr) << release << ' ' << entityName;
                const bool isThere =
                    set.empty() ? definition->attributeIndex(value) >= 0 : definitions.find(set).hasProperty(value);
                EXPECT_TRUE(isThere) << release << ' ' << entityName << '.' << value;
            }
        }
        EXPECT_FALSE(keys.empty()) << id;
    }
    EXPECT_EQ(levels.size(), releases.size());
}

TEST_F(ShippedResourcesTest, AreUsedUnlessSomethingElseIsNamed) {
    const std::vector<std::string> shipped{shippedSource};
    json answered = resources();
    EXPECT_EQ(sources(resource(answered, propertySetResource)), shipped);
    EXPECT_EQ(sources(resource(answered, attributeListResource)), shipped);
    EXPECT_EQ(resource(answered, attributeListResource)["reason"], nullptr);
    EXPECT_THAT(runHost({"resources"}, false, shippedResources).out,
                HasSubstr("\n  shipped with the program  " + definitionFolder + "\n    Pset_BeamCommon.xml: used\n"));
    EXPECT_TRUE(variables().empty());

    // What a user has comes first, and takes the place of what it is called like.
    const TemporaryFolder folder;
    folder.file("site/IFCAttributes/a.xml");
    const std::string path =
        folder.file("velkor.json", R"({"collection_standard": ["site"], "runtime_view": ["site"]})");
    answered = resources({"--config", path});
    EXPECT_EQ(sources(resource(answered, attributeListResource)),
              (std::vector<std::string>{"QORCollectionStandard", shippedSource}));
    EXPECT_EQ(resource(answered, attributeListResource)["used"][0]["path"], folder / "site/IFCAttributes/a.xml");
    EXPECT_EQ(sources(resource(answered, propertySetResource)), std::vector<std::string>{"runtime_view"});
    folder.file("velkor.json", R"({"default_collection_standard": [], "runtime_view": []})");
    answered = resources({"--config", path});
    for (const ResourceKind& kind : resourceKinds) EXPECT_TRUE(sources(resource(answered, kind)).empty()) << kind.name;

    // The environment is stronger, even when it names the very same folder.
    set("QORDefaultCollectionStandard", std::string(shippedResources) + "/standard");
    EXPECT_EQ(sources(resource(resources(), attributeListResource)),
              std::vector<std::string>{"QORDefaultCollectionStandard"});
}

} // namespace velkor::host
