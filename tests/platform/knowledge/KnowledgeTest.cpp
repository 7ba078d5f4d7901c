#include "Matchers.h"
#include "velkor/knowledge/KnowledgeObjects.h"
#include "velkor/knowledge/QORIExchangeObject.h"
#include "velkor/knowledge/QORIInstance.h"
#include "velkor/knowledge/QORIPLMNavOccurrence.h"
#include "velkor/knowledge/QORITypeDictionary.h"
#include "velkor/knowledge/QORIVleObject.h"
#include "velkor/knowledge/QORVleTypeServices.h"
#include "velkor/knowledge/TypeDictionary.h"

namespace velkor::knowledge {

namespace {

std::string name(const QORIType_var& type) {
    QORUnicodeString text;
    return !type.IsNull() && type->GetName(text) == S_OK ? std::string(text.utf8()) : "none";
}

/// Value of a knowledge attribute, or "none" when there rightly is none.
std::string attribute(const QORBaseUnknown_var& object, const char* attributeName) {
    QORUnicodeString value("was");
    const HRESULT result = QORVleObjectAttrReadServices::GetValueAsString(object, attributeName, value);
    return FAILED(result) && value == "was" ? "none" : std::string(value.utf8());
}

std::vector<std::string> texts(const QORListValQORUnicodeString& list) {
    std::vector<std::string> result;
    for (const QORUnicodeString& item : list) result.emplace_back(item.utf8());
    return result;
}

class Knowledge : public testing::Test {
protected:
    ~Knowledge() override { removeTypes(); }
};

} // namespace

TEST_F(Knowledge, KeepsTheTypesThatTheHostMakesKnown) {
    EXPECT_TRUE(QORGlobalFunctions::GetTypeDictionary().IsNull());
    EXPECT_TRUE(addType({"Wall", TypeKind::Knowledge, "Element", true}));
    EXPECT_TRUE(addType({"Element", TypeKind::Knowledge, "", false}));
    EXPECT_TRUE(addType({"ShearWall", TypeKind::Specialization, "Wall", false}));
    EXPECT_TRUE(addType({"wall", TypeKind::Specialization, "wall", false}));
    EXPECT_FALSE(addType({"Wall", TypeKind::Specialization, "", false}));
    QORListValQORUnicodeString names;
    EXPECT_EQ(QORGlobalFunctions::GetTypeDictionary()->ListTypeNames(names), S_OK);
    EXPECT_THAT(texts(names), ElementsAre("Wall", "Element", "ShearWall", "wall"));

    struct Case {
        const char* name;
        bool isKnowledge, isSpecialization;
        int isAbstract;
    };
    for (const Case& c : {Case{"Wall", true, false, 1}, Case{"Element", true, false, 0},
                          Case{"ShearWall", false, true, 0}, Case{"wall", false, true, 0},
                          Case{"WALL", false, false, 7}, Case{"", false, false, 7}, Case{nullptr, false, false, 7}}) {
        SCOPED_TRACE(c.name != nullptr ? c.name : "null");
        QORIType_var knowledge = typeNamed("Wall"), specialization = knowledge;
        EXPECT_EQ(QORVlePLMNavPublicServices::RetrieveKnowledgeType(c.name, knowledge), c.isKnowledge ? S_OK : E_FAIL);
        EXPECT_EQ(QORVlePLMNavSpecializationAccessPublicServices::RetrieveSpecializationType(c.name, specialization),
                  c.isSpecialization ? S_OK : E_FAIL);
        EXPECT_EQ(name(knowledge), c.isKnowledge ? c.name : "none");
        EXPECT_EQ(name(specialization), c.isSpecialization ? c.name : "none");
        unsigned char isAbstract = 7;
        const HRESULT result =
            QORVleTypeProtectedServices::GetAbstractStatus(c.isKnowledge ? knowledge : specialization, isAbstract);
        EXPECT_EQ(result, c.isAbstract == 7 ? E_FAIL : S_OK);
        EXPECT_EQ(isAbstract, c.isAbstract);
    }

    EXPECT_TRUE(isDerivedFrom("ShearWall", "Element") && isDerivedFrom("ShearWall", "ShearWall"));
    EXPECT_FALSE(isDerivedFrom("Element", "ShearWall") || isDerivedFrom("None", "None") ||
                 isDerivedFrom("ShearWall", ""));
    EXPECT_FALSE(isDerivedFrom("wall", "Element")) << "a circle ends";

    const QORIType_var held = typeNamed("Wall");
    removeTypes();
    EXPECT_TRUE(QORGlobalFunctions::GetTypeDictionary().IsNull());
    EXPECT_EQ(name(held), "Wall");
    unsigned char isAbstract = 7;
    EXPECT_EQ(QORVleTypeProtectedServices::GetAbstractStatus(held, isAbstract), E_FAIL);
}

TEST_F(Knowledge, LeadsFromAnOccurrenceToAType) {
    addType({"Known", TypeKind::Knowledge, "", false});
    for (const char* type : {"Known", "Stranger"}) {
        SCOPED_TRACE(type);
        QORBaseUnknown_var related;
        {
            const QORIPLMNavOccurrence_var occurrence = makeOccurrence(type, {{"a", "1"}, {"a", "2"}, {"", "empty"}});
            ASSERT_FALSE(occurrence.IsNull());
            EXPECT_EQ(occurrence->GetRelatedObject(related), S_OK);
            EXPECT_EQ(attribute(occurrence, "a"), "1") << "the first of a name";
        }
        const QORIInstance_var instance = related;
        ASSERT_FALSE(instance.IsNull());
        QORIType_var found;
        EXPECT_EQ(instance->GetType(found), S_OK);
        EXPECT_EQ(name(found), type);
        EXPECT_EQ(found == typeNamed("Known"), std::string(type) == "Known") << "a known type is the dictionary's own";
        EXPECT_EQ(attribute(related, "a"), "1");
        EXPECT_EQ(attribute(related, ""), "empty");
        EXPECT_EQ(attribute(related, "A"), "none");
        EXPECT_TRUE(QORIPLMNavOccurrence_var(related).IsNull());
    }
    EXPECT_EQ(attribute({}, "a"), "none");
}

TEST_F(Knowledge, DescribesExchangeObjects) {
    const QORBaseUnknown_var object =
        makeExchangeObject({"id", "name", "type", "text", "file", 7}, {{"höhe", "v"}, {"Name", ""}, {"NAME", "w"}});
    const QORIExchangeObject_var exchange = object;
    ASSERT_FALSE(exchange.IsNull());
    QORUnicodeString t[7];
    int number = 0;
    EXPECT_EQ(exchange->GetDescription(t[0], t[1], t[2], t[3], t[4], number), S_OK);
    EXPECT_EQ((t[0] + t[1] + t[2] + t[3] + t[4]).utf8(), "idnametypetextfile");
    EXPECT_EQ(number, 7);
    EXPECT_TRUE(exchange->GetIdentifier(t[1]) == S_OK && exchange->GetFileName(t[3]) == S_OK &&
                exchange->GetName(t[5]) == S_OK);
    EXPECT_EQ((t[1] + t[3] + t[5]).utf8(), "idfilename");
    QORBaseUnknown_var parent = object;
    EXPECT_EQ(exchange->GetParent(parent), S_OK);
    EXPECT_TRUE(parent.IsNull());

    const QORIExchangeUserProperties_var properties = object;
    ASSERT_FALSE(properties.IsNull());
    QORListValQORUnicodeString lists[4];
    for (auto& list : lists) list.Append("before");
    EXPECT_EQ(properties->GetUserProperties(lists[0], lists[1], lists[2], lists[3]), S_OK);
    EXPECT_THAT(texts(lists[0]), ElementsAre("before", "HÖHE", "NAME", "NAME"));
    EXPECT_THAT(texts(lists[1]), ElementsAre("before", "v", "", "w"));
    for (const auto& list : {lists[2], lists[3]}) EXPECT_EQ(list.Size(), 4);
    // Both interfaces are of one object.
    EXPECT_FALSE(QORIExchangeObject_var(properties).IsNull());
    EXPECT_TRUE(QORIVleObject_var(object).IsNull());
}

} // namespace velkor::knowledge
