#include "velkor/dictionaries/VersionMappingDocument.h"

#include "Matchers.h"
#include "velkor/dictionaries/ReleaseRenames.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include <fstream>
#include <iterator>
#include <set>

namespace velkor {

namespace {

std::string documentOf(const std::vector<std::pair<const char*, const char*>>& pairs) {
    std::vector<DXSdaiDictionaryRepo::SchemaPointer> schemas;
    std::vector<ReleasePair> releases;
    const auto schema = [&](const char* name) {
        return schemas.emplace_back(*DXSdaiDictionaryRepo::TheOne().schema(name)).get();
    };
    for (const auto& [before, after] : pairs) {
        const auto* first = schema(before);
        releases.emplace_back(first, schema(after));
    }
    return versionMappingDocument(releases);
}

} // namespace

TEST(VersionMappingDocument, ShippedOneIsWhatTheDictionariesGive) {
    std::ifstream file(VELKOR_SOURCE_DIR "/resources/standard/ifc/VersionMapping.xml", std::ios::binary);
    const std::string shipped{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(documentOf({{"IFC2X3", "IFC4"},
                          {"IFC4", "IFC2X3"},
                          {"IFC4", "IFC4X2"},
                          {"IFC4X2", "IFC4"},
                          {"IFC2X3", "IFC4X2"},
                          {"IFC4X2", "IFC2X3"}}),
              shipped);
}

TEST(VersionMappingDocument, SaysWhatBecameOfEntitiesAndAttributes) {
    const std::string forwards = documentOf({{"IFC2X3", "IFC4"}}), backwards = documentOf({{"IFC4", "IFC2X3"}});
    for (
        const char* line : {
            R"(<Version from="2x3" to="4">)",
            // What stays as it is has no line.
            R"(<Mapping fromEntity="IFCTASK" fromProperty="TASKID" toProperty="IDENTIFICATION"/>)",
            R"(<Mapping fromEntity="IFCGASTERMINALTYPE" toEntity="IFCBURNERTYPE"/>)",
            R"(<Mapping fromEntity="IFCGASTERMINALTYPE" fromProperty="TAG" toEntity="IFCBURNERTYPE" toProperty="TAG"/>)",
            R"(<Deprecation entity="IFC2DCOMPOSITECURVE"/>)",
            R"(<Introduction entity="IFCPUMP"/>)",
            R"(<Introduction entity="IFCWALL" property="PREDEFINEDTYPE" propertyValue="NOTDEFINED"/>)",
        }) {
        EXPECT_THAT(forwards, HasSubstr(line + std::string("\n")));
    }
    EXPECT_THAT(forwards, testing::Not(HasSubstr(R"("IFCMOVE" fromProperty)"))) << "gone itself";
    EXPECT_THAT(forwards, testing::Not(HasSubstr(R"(Deprecation entity="IFCGASTERMINALTYPE")")));
    EXPECT_THAT(forwards, testing::Not(HasSubstr(R"(Introduction entity="IFCTASK" property="IDENTIFICATION")")));
    EXPECT_THAT(backwards, HasSubstr(R"(<Mapping fromEntity="IFCBURNERTYPE" toEntity="IFCGASTERMINALTYPE"/>)"));
    EXPECT_THAT(backwards,
                HasSubstr(R"(<Mapping fromEntity="IFCTASK" fromProperty="IDENTIFICATION" toProperty="TASKID"/>)"));
    EXPECT_THAT(backwards, testing::Not(HasSubstr(R"(fromEntity="IFCSTYLEDITEM")"))) << "five became one";
    EXPECT_THAT(backwards, HasSubstr(R"(<Deprecation entity="IFCWALL" property="PREDEFINEDTYPE"/>)"));
}

TEST(VersionMappingDocument, EveryKnownRenameIsOne) {
    const auto before = DXSdaiDictionaryRepo::TheOne().schema("IFC2X3"),
               after = DXSdaiDictionaryRepo::TheOne().schema("IFC4");
    ASSERT_TRUE(before && after);
    std::set<std::string> oneToOne;
    for (const EntityRename& rename : entityRenames) {
        EXPECT_NE((*before)->entity(rename.before), nullptr) << rename.before;
        EXPECT_EQ((*after)->entity(rename.before), nullptr) << rename.before << " is not gone";
        EXPECT_NE((*after)->entity(rename.after), nullptr) << rename.after;
        if (!rename.isOneToOne) continue;
        EXPECT_EQ((*before)->entity(rename.after), nullptr) << rename.after << " is not new";
        EXPECT_TRUE(oneToOne.insert(rename.after).second);
    }
    for (const AttributeRename& rename : attributeRenames) {
        const auto* was = (*before)->entity(rename.entity);
        const auto* is = (*after)->entity(rename.entity);
        ASSERT_TRUE(was != nullptr && is != nullptr) << rename.entity;
        EXPECT_GE(was->attributeIndex(rename.before), 0) << rename.entity << ' ' << rename.before;
        EXPECT_LT(is->attributeIndex(rename.before), 0) << rename.entity << ' ' << rename.before;
        EXPECT_GE(is->attributeIndex(rename.after), 0) << rename.entity << ' ' << rename.after;
        EXPECT_LT(was->attributeIndex(rename.after), 0) << rename.entity << ' ' << rename.after;
    }
}

TEST(VersionMappingDocument, EveryLaterRenameIsOfSomeRelease) {
    auto& repository = DXSdaiDictionaryRepo::TheOne();
    for (const AttributeRename& rename : laterAttributeRenames) {
        bool hasBefore = false;
        bool hasAfter = false;
        for (const std::string& release : repository.names()) {
            const auto schema = repository.schema(release);
            const auto* entity = (*schema)->entity(rename.entity);
            if (entity == nullptr) continue;
            EXPECT_FALSE(entity->attributeIndex(rename.before) >= 0 && entity->attributeIndex(rename.after) >= 0)
                << rename.entity;
            hasBefore = hasBefore || entity->attributeIndex(rename.before) >= 0;
            hasAfter = hasAfter || entity->attributeIndex(rename.after) >= 0;
        }
        const bool isOfRenamed = std::string_view(rename.entity).starts_with("IFCELECTRICDISTRIBUTION");
        EXPECT_TRUE(isOfRenamed ? hasBefore || hasAfter : hasBefore && hasAfter)
            << rename.entity << ' ' << rename.before;
    }
}

} // namespace velkor
