#include "PublishedSets.h"
#include "ResourceKinds.h"
#include "TemporaryFolder.h"
#include "velkor/files/FileContents.h"
#include "velkor/propertysets/SetCatalogue.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace velkor {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

std::string contents(const std::string& path) {
    const auto bytes = files::readFile(path, SIZE_MAX);
    EXPECT_TRUE(bytes) << path << ": " << bytes.error().message;
    return bytes.value_or("");
}

std::string table(std::string_view release) {
    return VELKOR_SOURCE_DIR "/resources/propertysets/" + std::string(release) + ".sets";
}

// As simple as a definition can be.
std::string definition(const std::string& name, const std::string& property) {
    return "<PropertySetDef><Name>" + name +
           "</Name><ApplicableClasses><ClassName>IfcWall</ClassName></ApplicableClasses><PropertyDefs><PropertyDef>"
           "<Name>" +
           property +
           "</Name><PropertyType><TypePropertySingleValue><DataType type=\"IfcLabel\"/></TypePropertySingleValue>"
           "</PropertyType></PropertyDef></PropertyDefs></PropertySetDef>";
}

} // namespace

TEST(ShippedDefinitionsTest, EveryReleaseHasATableAndTheFilesMadeOfIt) {
    for (const std::string_view release : definingReleases()) {
        const std::string text = contents(table(release));
        const auto read = readTable(text);
        ASSERT_TRUE(read) << table(release) << ':' << read.error().line << ": " << read.error().message;
        EXPECT_EQ(read->release, release);
        EXPECT_GT(read->entries.size(), 300U);
        EXPECT_TRUE(writtenTable(*read) == text) << table(release) << " has been edited";
        const auto folder =
            std::filesystem::path(VELKOR_RESOURCE_DIR "/runtime") / release / propertySetResource.subFolder;
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), std::ssize(read->entries));
        for (const DefinitionTable::Entry& entry : read->entries) {
            const std::string path = folder / (entry.definition.name + ".xml");
            const auto made = readDefinition(contents(path), path);
            ASSERT_TRUE(made) << path << ':' << made.error().line << ": " << made.error().message;
            EXPECT_TRUE(made->definition == entry.definition) << path;
            EXPECT_TRUE(made->faults.empty()) << path << ": " << made->faults.front().text;
            SetDefinition definition = entry.definition;
            for (const DefinitionFault& fault : mendDefinition(definition, release))
                EXPECT_THAT(entry.faults, Contains(fault)) << path << ": " << fault.text;
            EXPECT_TRUE(definition == entry.definition) << path;
        }
    }
}

TEST(ShippedDefinitionsTest, OfAFolderEveryFileIsInTheTable) {
    const test::TemporaryFolder folder;
    folder.file("psd/Pset_B.xml", definition("Pset_B", "Two"));
    folder.file("psd/Pset_A.xml", definition("Pset_B", "One"));
    folder.file("psd/Pset_C.xml", definition("Pset_B", "Three"));
    folder.file("psd/Pset_D.xml", "<PropertySetDef>");
    folder.file("psd/Pset_E.xml", definition("a/b", "Four"));
    folder.file("psd/read.me", "abc");
    const auto table = setgen::tableOf(folder / "psd", "IFC4");
    ASSERT_TRUE(table) << table.error();
    ASSERT_EQ(table->entries.size(), 1U);
    // Named after its set.
    EXPECT_EQ(table->entries[0].source, "Pset_B.xml");
    EXPECT_EQ(table->entries[0].definition.properties.at(0).name, "Two");
    std::vector<std::string> refused;
    for (const auto& [source, hash, reason] : table->refused) refused.push_back(source + ": " + reason);
    EXPECT_THAT(refused, ElementsAre("Pset_A.xml: the set is defined by Pset_B.xml",
                                     "Pset_C.xml: the set is defined by Pset_B.xml", StartsWith("Pset_D.xml: line 1: "),
                                     "Pset_E.xml: its name, \"a/b\", can be that of no file",
                                     "read.me: its name does not end in .xml"));
    EXPECT_EQ(table->refused.back().hash, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_THAT(setgen::tableOf(folder / "none", "IFC4").error(), HasSubstr("none: "));
}

} // namespace velkor
