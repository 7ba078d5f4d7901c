#include "ConfigurationTestSupport.h"
#include "DocumentTestSupport.h"
#include "Matchers.h"
#include "QORIFCPSetQtoValidationService.h"
#include "ResourceKinds.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/files/FileContents.h"
#include "velkor/propertysets/DefinitionTable.h"
#include "velkor/propertysets/SetCatalogue.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <iostream>

namespace velkor::host {

using nlohmann::json;

namespace {

const std::string definitionFolder = std::string(shippedResources) + "/runtime/IFC4/" + propertySetResource.subFolder;

json resources(const std::vector<std::string>& more = {}) {
    std::vector<std::string> words{"resources", "--format", "json"};
    words.insert(words.end(), more.begin(), more.end());
    return json::parse(runHost(words, false, shippedResources).out, nullptr, false);
}

// Everything that the service can be asked about a set, members of complex properties as it knows them.
std::string wronglyAnswered(const SetDefinition& set) {
    auto* service = QORIFCPSetQtoValidationService::getInstance();
    const QORUnicodeString name = set.name.c_str();
    DXSdaiAppInstance* none = nullptr;
    service->Initialize(name);
    for (const ApplicableClass& each : set.classes) {
        if (!service->IsClassSupported(name, each.entity.c_str(), none)) return set.name + " for " + each.entity;
    }
    std::vector<const PropertyDefinition*> properties;
    for (const PropertyDefinition& property : set.properties) properties.push_back(&property);
    for (std::size_t i = 0; i < properties.size(); ++i) {
        if (!service->IsPropertySupported(name, properties[i]->name.c_str()))
            return set.name + '.' + properties[i]->name;
        for (const std::string& enumerator : properties[i]->enumerators) {
            const auto isNamedAlike = [&](const auto* other) {
                return text::toUpper(other->name) == text::toUpper(enumerator);
            };
            if (service->IsPropertySupported(name, enumerator.c_str()) &&
                std::ranges::none_of(properties, isNamedAlike))
                return set.name + '.' + enumerator + ", an enumerator";
        }
        for (const PropertyDefinition& member : properties[i]->members) properties.push_back(&member);
    }
    return service->IsPropertySupported(name, name) || service->IsClassSupported(name, "IfcNone", none) ? set.name : "";
}

// The properties that the attribute catalogue names for models of a release.
std::string wronglyNamed(const std::string& release) {
    const std::string levels = release == "IFC2X3" ? "@ID='General' or @ID='2X3'" : "@ID='General' or @ID='4ANDABOVE'";
    const auto schema = *DXSdaiDictionaryRepo::TheOne().schema(release);
    std::size_t named = 0;
    for (const auto& entry :
         nodes(standardFile("IFCAttributes/IFCAttributes.xml"), "/*/Level[" + levels + "]/AttributeID")) {
        const std::string set = attribute(entry, "PropertySet"), value = attribute(entry, "Value");
        const auto* entity = schema->entity(attribute(entry, "Entity"));
        const bool isThere =
            entity != nullptr &&
            (set.empty()
                 ? entity->attributeIndex(value) >= 0
                 : QORIFCPSetQtoValidationService::getInstance()->IsPropertySupported(set.c_str(), value.c_str()));
        if (!isThere) return attribute(entry, "Entity") + '.' + value;
        ++named;
    }
    return named > 35 ? "" : "the attribute catalogue";
}

// Ends the process: with 0 when the service answers for the whole view of a release.
[[noreturn]] void askAbout(std::string_view name) {
    const std::string release(name);
    Configuration configuration;
    configuration.runtimeView = {std::string(shippedResources) + "/runtime/" + release};
    const PlatformSetup setup(configuration);
    const auto table =
        readTable(*files::readFile(VELKOR_SOURCE_DIR "/resources/propertysets/" + release + ".sets", SIZE_MAX));
    std::string wrong = table->entries.size() > 300 ? "" : "too few sets";
    for (const DefinitionTable::Entry& entry : table->entries) {
        if (wrong.empty()) wrong = wronglyAnswered(entry.definition);
    }
    if (wrong.empty()) wrong = wronglyNamed(release);
    std::cerr << "wrong: " << wrong << '.' << std::endl;
    std::_Exit(wrong.empty() ? 0 : 1);
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

// It keeps the definitions that it sees first, so each release is asked about in a process of its own.
TEST_F(ShippedResourcesTest, TheServiceAnswersForTheDefinitionsOfEveryRelease) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    for (const std::string_view release : definingReleases())
        EXPECT_EXIT(askAbout(release), testing::ExitedWithCode(0), "wrong: [.]") << release;
}

TEST_F(ShippedResourcesTest, AreUsedUnlessSomethingElseIsNamed) {
    const std::vector<std::string> shipped{shippedSource};
    json answered = resources();
    EXPECT_EQ(sources(resourceOf(answered, propertySetResource)), shipped);
    EXPECT_EQ(sources(resourceOf(answered, attributeListResource)), shipped);
    EXPECT_EQ(resourceOf(answered, attributeListResource)["reason"], nullptr);
    EXPECT_THAT(
        runHost({"resources"}, false, shippedResources).out,
        HasSubstr("\n  shipped with the program  " + definitionFolder + "\n    Pset_ActionRequest.xml: used\n"));
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

// Models of several releases in one process, the user's own set for all of them, and one that takes the place of a
// published one.
TEST_F(ShippedResourcesTest, OwnSetsStandBesideThoseOfTheReleaseOfAModel) {
    const TemporaryFolder folder;
    const auto define = [&](const std::string& name, const std::string& property) {
        folder.file(std::string("site/") + propertySetResource.subFolder + '/' + name + ".xml",
                    "<PropertySetDef><Name>" + name +
                        "</Name><ApplicableClasses><ClassName>IfcWall</ClassName></ApplicableClasses><PropertyDefs>"
                        "<PropertyDef><Name>" +
                        property + "</Name></PropertyDef></PropertyDefs></PropertySetDef>");
    };
    define("Acme_Wall", "Colour");
    define("Pset_WallCommon", "Mine");
    const auto found = [&](const std::string& release, const std::vector<std::string>& folders) {
        const std::string data = "#1=IFCWALL('0',$,$,$,$,$,$,$" + std::string(release == "IFC2X3" ? "" : ",$") +
                                 ");#2=IFCPROPERTYSINGLEVALUE('Colour',$,$,$);"
                                 "#3=IFCPROPERTYSET('1',$,'Acme_Wall',$,(#2));"
                                 "#10=IFCPROPERTYSINGLEVALUE('Mine',$,$,$);"
                                 "#4=IFCPROPERTYSET('2',$,'Pset_WallCommon',$,(#10));"
                                 "#5=IFCELEMENTQUANTITY('3',$,'Qto_WallBaseQuantities',$,$,());"
                                 "#6=IFCPROPERTYSET('4',$,'Pset_Acme',$,(#2));" +
                                 "#7=IFCRELDEFINESBYPROPERTIES('5',$,$,$,(#1),#3);"
                                 "#8=IFCRELDEFINESBYPROPERTIES('6',$,$,$,(#1),#4);"
                                 "#9=IFCRELDEFINESBYPROPERTIES('7',$,$,$,(#1),#5);";
        const TemporaryModel model(release, data);
        const std::string path = folder.file("velkor.json", json{{"runtime_view", folders}}.dump());
        const Outcome outcome = runHost({"validate", model.path(), "--config", path, "--format", "json"});
        std::string result;
        const json answered = json::parse(outcome.out, nullptr, false);
        for (const json& finding : answered["findings"])
            result +=
                (result.empty() ? "" : ", ") + finding["instance"].dump() + ' ' + finding["code"].get<std::string>();
        return result;
    };
    const std::string shipped = std::string(shippedResources) + "/runtime";
    for (const std::vector<std::string>& folders : {std::vector{std::string("site"), shipped}, {shipped, "site"}}) {
        EXPECT_EQ(found("IFC2X3", folders), "5 set-unknown, 6 set-unknown");
        EXPECT_EQ(found("IFC4", folders), "6 set-unknown");
    }
    EXPECT_EQ(found("IFC4", {shipped}), "4 property-unknown, 6 set-unknown");
    EXPECT_EQ(found("IFC4", {shipped + "/IFC2X3"}), "4 property-unknown, 5 set-unknown, 6 set-unknown");
    EXPECT_EQ(found("IFC4", {"site"}), "5 set-unknown, 6 set-unknown");
    define("Acme_Wall", "Color");
    EXPECT_EQ(found("IFC4", {"site", shipped}), "3 property-unknown, 6 set-unknown");
}

} // namespace velkor::host
