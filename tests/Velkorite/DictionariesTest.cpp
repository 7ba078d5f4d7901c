#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include <algorithm>
#include <array>
#include <dlfcn.h>
#include <gmock/gmock.h>
#include <map>
#include <set>
#include <span>
#include <tuple>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

using Texts = std::span<const char* const>;

/// The texts with blanks between: none holds one.
std::string joined(Texts texts) {
    std::string result = " ";
    for (const char* text : texts) (result += text) += ' ';
    return result;
}

class Dictionaries : public testing::Test {
protected:
    static void SetUpTestSuite() { ASSERT_NE(dlopen(VELKOR_LIB_DIR "/libvelkor.so", RTLD_NOW), nullptr) << dlerror(); }

    Dictionaries() {
        for (const std::string& name : repository.names()) {
            EXPECT_TRUE(repository.schema(name)) << repository.schema(name).error().message;
            releases[name] = repository.lists(name);
        }
        EXPECT_EQ(releases.size(), 8U);
    }

    DXSdaiDictionaryRepo& repository = DXSdaiDictionaryRepo::TheOne();
    std::map<std::string, DXSdaiDictionaryRepo::Lists> releases;
};

} // namespace

TEST_F(Dictionaries, NumberWhatTheirSchemasDeclare) {
    const std::tuple<const char*, std::size_t, std::string> cases[] = {
        {"IFC2X3", 1, "Schema(IFC2X3) DefinedType(IFCABSORBEDDOSEMEASURE,RealType(8)) "},
        {"IFC2X3", 7,
         "DefinedType(IFCBOOLEAN,BooleanType) DefinedType(IFCLABEL,StringType) DefinedType(IFCBOXALIGNMENT,#8) "
         "ArrayType(RealType(8),1,2,DUPL,REQ) DefinedType(IFCCOMPLEXNUMBER,#10) ListType(IntegerType,3,4,DUPL) "
         "DefinedType(IFCCOMPOUNDPLANEANGLEMEASURE,#12) "},
        {"IFC2X3", 539,
         "Entity(IFCBOOLEANRESULT,INSTANTIABLE,SIMPLE,INDEPENDENT) ExplicitAttr(OPERATOR) ExplicitAttr(FIRSTOPERAND) "
         "Entity(IFCCSGPRIMITIVE3D,ABSTRACT,SIMPLE,INDEPENDENT) ExplicitAttr(POSITION) SelectType(#534,#535,#539,#542) "
         "DefinedType(IFCBOOLEANOPERAND,#544) ExplicitAttr(SECONDOPERAND) DerivedAttr(DIM) "
         "SelectType(#534,#535,#539,#542) DefinedType(IFCBOOLEANOPERAND,#548) "},
        {"IFC2X3", 900, "Entity(IFCOWNERHISTORY,INSTANTIABLE,SIMPLE,INDEPENDENT) "},
        {"IFC2X3", 902,
         "ExplicitAttr(OWNINGAPPLICATION) Entity(IFCAPPLICATION,INSTANTIABLE,SIMPLE,INDEPENDENT) "
         "ExplicitAttr(APPLICATIONDEVELOPER) ExplicitAttr(VERSION) ExplicitAttr(APPLICATIONFULLNAME) "
         "ExplicitAttr(APPLICATIONIDENTIFIER) UniquenessRule(UR1) UniquenessRule(UR2) ExplicitAttr(STATE) "},
        {"IFC4X4", 96,
         "Entity(IFCPROPERTYSETDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT) "
         "Entity(IFCPROPERTYDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT) Entity(IFCROOT,ABSTRACT,SIMPLE,INDEPENDENT) "
         "ExplicitAttr(GLOBALID) ExplicitAttr(OWNERHISTORY) Entity(IFCOWNERHISTORY,INSTANTIABLE,SIMPLE,INDEPENDENT) "},
        {"IFC4X4", 160,
         "ExplicitAttr(NAME) ExplicitAttr(DESCRIPTION) SetType(#96,1,-1) DefinedType(IFCPROPERTYSETDEFINITIONSET,#162) "
         "DefinedType(IFCRADIOACTIVITYMEASURE,RealType(8)) "},
        {"IFC4X4", 118, "EnumerationType(SUPPLIER,MANUFACTURER,"},
        {"IFC4X4", 119, "DefinedType(IFCROLEENUM,#118) "},
        {"IFC4X4", 713, "SelectType(#133,#105,#103) DefinedType(IFCACTORSELECT,#713) "},
        {"IFC4X4", 133, "Entity(IFCORGANIZATION,"},
        {"IFC4X4", 105, "Entity(IFCPERSON,"},
        {"IFC4X4", 103, "Entity(IFCPERSONANDORGANIZATION,"}};
    for (const auto& [release, position, expected] : cases) {
        EXPECT_THAT(joined(releases[release].declarations.subspan(position - 1, 12)), StartsWith(" " + expected));
    }
    const std::string_view roles = releases["IFC4X4"].declarations[118 - 1];
    EXPECT_TRUE(roles.ends_with(",RESELLER,USERDEFINED)") && std::ranges::count(roles, ',') == 22) << roles;
}

TEST_F(Dictionaries, StateWhatTheirSchemasSay) {
    const std::string before = joined(releases["IFC2X3"].statements), after = joined(releases["IFC4X4"].statements);
    for (const char* expected :
         {" #539.Supertypes(#518) #539.Composition(#539,#518,#519) ", " #541.ExplAttrInfos(#545,REQ) ",
          " #546.ExplAttrInfos(#545,REQ) ", " #539.Attributes(#540,#541,#546,#547) ",
          " #903.Composition(#903) #904.ExplAttrInfos(#449,REQ) #905.ExplAttrInfos(#8,REQ) "
          "#906.ExplAttrInfos(#8,REQ) #907.ExplAttrInfos(#39,REQ) #903.Attributes(#904,#905,#906,#907) "
          "#908.UniqRuleInfos(#907) #909.UniqRuleInfos(#906,#905) #903.Uniqueness_rules(#908,#909) "
          "#902.ExplAttrInfos(#903,REQ) "}) {
        EXPECT_THAT(before, HasSubstr(expected));
    }
    EXPECT_THAT(after, StartsWith(" #1.SchemaVersionRelease(1,1) #98.Composition(#98) #99.ExplAttrInfos(#45,REQ) "
                                  "#101.Composition(#101) "));
    EXPECT_THAT(after, HasSubstr(" #97.Supertypes(#98) #97.Composition(#97,#98) #96.Supertypes(#97) "
                                 "#96.Composition(#97,#96,#98) "));
}

TEST_F(Dictionaries, EveryTextIsOneOfTheFormatAndStoredOnce) {
    constexpr const char* characters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_#.(),-";
    std::map<std::string_view, const char*> stored;
    for (const auto& [name, lists] : releases) {
        for (const Texts texts : {lists.declarations, lists.statements}) {
            for (const char* text : texts) {
                EXPECT_EQ(stored.try_emplace(text, text).first->second, text) << text;
                EXPECT_EQ(std::string_view(text).find_first_not_of(characters), std::string_view::npos) << text;
            }
        }
    }
    EXPECT_GT(stored.size(), 10'000U);
}

TEST_F(Dictionaries, DeclareTwiceTheSelectsThatLeadBackToThemselves) {
    for (const auto& [name, lists] : releases) {
        std::map<std::string_view, int> first;
        std::set<std::string_view> repeated, expected{"IFCBOOLEANOPERAND"};
        const std::string all = joined(lists.declarations) + joined(lists.statements);
        // Attributes refer to the first, by themselves or through an aggregate, DefTypes to the second.
        const auto isUsed = [&all](int number) {
            return std::ranges::any_of(std::array{"ExplAttrInfos(#", "SetType(#", "ListType(#"}, [&](std::string use) {
                return all.find(use + std::to_string(number) + ",") != std::string::npos;
            });
        };
        const std::size_t types = all.find(" #1.DefTypes(");
        const std::string listed = ',' + all.substr(types + 13, all.find(')', types) - types - 13) + ',';
        const auto isListed = [&](int number) {
            return listed.find(",#" + std::to_string(number) + ',') != std::string::npos;
        };
        for (int number = 1; number <= static_cast<int>(lists.declarations.size()); ++number) {
            const std::string_view text = lists.declarations[static_cast<std::size_t>(number - 1)];
            if (!text.starts_with("DefinedType(")) continue;
            const auto [entry, isFirst] = first.try_emplace(text.substr(12, text.find(',') - 12), number);
            if (isFirst) continue;
            EXPECT_TRUE(repeated.insert(entry->first).second) << text << ": a third time";
            EXPECT_TRUE(isUsed(entry->second) && !isUsed(number)) << text;
            EXPECT_TRUE(isListed(number) && !isListed(entry->second)) << text;
        }
        if (name != "IFC2X3") expected.insert("IFCCLASSIFICATIONREFERENCESELECT");
        if (std::set<std::string>{"IFC4", "IFC4X1", "IFC4X2", "IFC4X3_RC1"}.contains(name)) {
            expected.insert("IFCFILLSTYLESELECT");
        }
        EXPECT_EQ(repeated, expected) << name;
    }
}
