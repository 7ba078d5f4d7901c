#include "sdai/QORDXSdaiSchemaRestore.h"

#include "SampleSchema.h"

#include <gmock/gmock.h>

namespace velkor::sdai::test {

using testing::HasSubstr;
using testing::StartsWith;

TEST(Restore, CountsWhatTheListsHold) {
    const SampleSchema sample;
    const auto schema = sample.restore();
    ASSERT_TRUE(schema) << schema.error();
    const SchemaCounts& counts = (*schema)->counts();
    EXPECT_EQ((*schema)->name(), "SAMPLE");
    EXPECT_EQ(counts.declarations, 28);
    EXPECT_EQ(counts.statements, 23);
    EXPECT_EQ(counts.entities, 5);
    EXPECT_EQ(counts.definedTypes, 7);
    EXPECT_EQ(counts.enumerationTypes, 1);
    EXPECT_EQ(counts.selectTypes, 3);
    EXPECT_EQ(counts.aggregateTypes, 3);
    EXPECT_EQ(counts.explicitAttributes, 5);
    EXPECT_EQ(counts.derivedAttributes, 2);
    EXPECT_EQ(counts.uniquenessRules, 1);
    EXPECT_EQ(counts.entitiesStatements, 1);
}

struct Fault {
    char list; // 'd' or 's'
    std::size_t position;
    const char* text; // null takes the text away
    const char* expected;

    friend void PrintTo(const Fault& fault, std::ostream* out) { *out << fault.list << fault.position; }
};

class FaultyLists : public testing::TestWithParam<Fault> {};

TEST_P(FaultyLists, AreRefusedAtTheirPosition) {
    const Fault& fault = GetParam();
    SampleSchema sample;
    auto& list = fault.list == 'd' ? sample.declarations : sample.statements;
    const auto place = list.begin() + static_cast<std::ptrdiff_t>(fault.position) - 1;
    if (fault.text != nullptr)
        *place = fault.text;
    else
        list.erase(place);
    const auto schema = sample.restore();
    ASSERT_FALSE(schema);
    EXPECT_THAT(schema.error(), HasSubstr(fault.expected));
    if (fault.text != nullptr && std::string_view(fault.expected).find("declaration") != 0) {
        const std::string where = fault.list == 'd' ? "declaration " : "statement ";
        EXPECT_THAT(schema.error(), StartsWith(where + std::to_string(fault.position)));
    }
}

// What each text says wrong; the position is checked too.
INSTANTIATE_TEST_SUITE_P(
    Declarations, FaultyLists,
    testing::Values(Fault{'d', 1, "Entity(A,INSTANTIABLE,SIMPLE,INDEPENDENT)", "expected the keyword Schema"},
                    Fault{'d', 2, "Schema(AGAIN)", "expected the keyword of a declaration, found \"Schema\""},
                    Fault{'d', 2, "Definedtype(LABEL,StringType)", "expected the keyword of a declaration"},
                    Fault{'d', 2, "DefinedType(label,StringType)", "expected a name in capitals, found \"label\""},
                    Fault{'d', 2, "DefinedType(LABEL)", "expected \",\", found \")\""},
                    Fault{'d', 2, "DefinedType(LABEL,StringType(255)", "expected \")\", found the end of the text"},
                    Fault{'d', 2, "DefinedType(LABEL,StringType(255)) ", "expected the end of the text, found \" \""},
                    Fault{'d', 2, "DefinedType(LABEL,StringType(0))", "expected a decimal integer from 1 on"},
                    Fault{'d', 2, "DefinedType(LABEL,StringType(99999999999))", "expected a decimal integer"},
                    Fault{'d', 2, "DefinedType(LABEL,StringType(9,FREE))", "expected FIXED, found \"FREE\""},
                    Fault{'d', 2, "DefinedType(LABEL,NumberType)", "expected a simple type or a reference"},
                    Fault{'d', 2, "DefinedType(LABEL,RealType(4))", "expected 8"},
                    Fault{'d', 2, "DefinedType(LABEL,BooleanType(1))", "expected \")\""},
                    Fault{'d', 3, "DefinedType(NICKNAME,#3)", "expected a reference to an earlier declaration"},
                    Fault{'d', 3, "DefinedType(NICKNAME,#0)", "expected a decimal integer from 1 on"},
                    Fault{'d', 3, "DefinedType(NICKNAME,#02)", "expected a decimal integer"},
                    Fault{'d', 3, "DefinedType(LABEL,#2)", "expected a name of its own, found that of #2"},
                    Fault{'d', 11, "Entity(LABEL,INSTANTIABLE,SIMPLE,INDEPENDENT)", "expected a name of its own"},
                    Fault{'d', 20, "DefinedType(ANYTHING,#8)", "or an aggregate, found \"#8\""},
                    Fault{'d', 20, "DefinedType(OPERAND,#19)", "expected a name of its own"},
                    Fault{'d', 20, "DefinedType(ANYTHING,#17)", "expected a type that no other DefinedType names"},
                    Fault{'d', 20, "DefinedType(ANYTHING,#2)", "declaration 19 \"SelectType(#18,#7)\": expected a Def"},
                    Fault{'d', 6, "EnumerationType(RED,GREEN,RED)", "found RED again"},
                    Fault{'d', 6, "EnumerationType()", "expected a name in capitals"},
                    Fault{'d', 19, "SelectType(#18,#6)", "expected a reference to a defined type or an entity"},
                    Fault{'d', 24, "ListType(#9,1,-1,UNIQ)", "expected a simple type or a reference to a defined"},
                    Fault{'d', 24, "ListType(#11,-1,2,UNIQ)", "expected a decimal integer from 0 on"},
                    Fault{'d', 24, "ListType(#11,3,2,UNIQ)", "expected an upper bound not below the lower bound"},
                    Fault{'d', 24, "ListType(#11,1,-2,UNIQ)", "expected a decimal integer from -1 on"},
                    Fault{'d', 24, "ListType(#11,1,-1,MANY)", "expected UNIQ or DUPL, found \"MANY\""},
                    Fault{'d', 25, "SetType(#24,0,5,UNIQ)", "expected \")\", found \",\""},
                    Fault{'d', 4, "ArrayType(RealType(8),1,2,DUPL)", "expected \",\""},
                    Fault{'d', 8, "Entity(ROOT,ABSTRACT,COMPLEX,INDEPENDENT)", "expected SIMPLE"}));

INSTANTIATE_TEST_SUITE_P(
    Statements, FaultyLists,
    testing::Values(
        Fault{'s', 1, nullptr, "expected #1.SchemaVersionRelease(1,1), found none"},
        Fault{'s', 1, "#1.SchemaVersionRelease(1,2)", "expected 1, found \"2\""},
        Fault{'s', 2, "8.Composition(#8)", "expected a reference"},
        Fault{'s', 2, "#8Composition(#8)", "expected \".\""},
        Fault{'s', 2, "#99.Composition(#8)", "expected the number of a declaration, found \"#99"},
        Fault{'s', 2, "#8.Compositions(#8)", "expected the keyword of a statement, found \"Compositions\""},
        Fault{'s', 2, "#9.Composition(#8)", "expected an entity as the subject, found \"#9"},
        Fault{'s', 2, "#8.Composition(#7)", "expected a reference to an entity, found \"#7\""},
        Fault{'s', 2, "#8.Composition(#99)", "expected the number of a declaration"},
        Fault{'s', 2, nullptr, "declaration 8 \"Entity(ROOT,ABSTRACT,SIMPLE,INDEPENDENT)\": expected a Composition"},
        Fault{'s', 3, "#9.DerivAttrInfos(#2)", "expected a derived attribute as the subject"},
        Fault{'s', 3, "#9.ExplAttrInfos(#6,REQ)", "expected a simple type or a reference"},
        Fault{'s', 3, "#9.ExplAttrInfos(#2,MUST)", "expected OPT or REQ"},
        Fault{'s', 3, nullptr, "declaration 9 \"ExplicitAttr(NAME)\": expected an ExplAttrInfos statement"},
        Fault{'s', 4, "#9.ExplAttrInfos(#2,REQ)", "expected one statement of its kind, found another in statement 3"},
        Fault{'s', 5, "#8.Attributes(#9)", "declaration 10 \"ExplicitAttr(SIZE)\": expected an Attributes statement"},
        Fault{'s', 5, "#8.Attributes(#10,#9)", "expected attributes in the order of their declarations"},
        Fault{'s', 6, "#11.Supertypes(#11)", "expected another entity"},
        Fault{'s', 6, "#11.Supertypes(#8,#21)", "expected \")\""},
        Fault{'s', 6, "#11.Supertypes(#28)", "expected supertypes that end in a root, found a circle"},
        Fault{'s', 7, "#11.Composition(#8,#11)", "expected entities sorted by their names, found #11 PART behind ROOT"},
        Fault{'s', 7, "#11.Composition(#11,#27)", "expected the entity and its supertypes, found #27 OTHER"},
        Fault{'s', 22, "#28.Composition(#8,#28)", "expected the entity and all its supertypes, 3 in all, found 2"},
        Fault{'s', 11, "#11.Attributes(#12,#15)", "declaration 16"},
        Fault{'s', 11, "#11.Attributes(#15,#16,#12)", "expected explicit attributes before the derived ones"},
        Fault{'s', 11, "#11.Attributes(#9,#15,#16)", "expected a declaration behind that of the entity"},
        Fault{'s', 17, "#21.Attributes(#22,#22)", "expected one that no statement has named before"},
        Fault{'s', 12, "#1.DefTypes(#2,#3,#5,#7,#14,#18,#20)", "found #18 OPERAND again"},
        Fault{'s', 12, "#1.DefTypes(#2,#3,#5,#7,#18)", "ANYTHING is missing"},
        Fault{'s', 18, "#26.UniqRuleInfos(#23,#12)", "expected attributes of #21 LEAF or its supertypes, found #12"},
        Fault{'s', 19, nullptr, "declaration 26 \"UniquenessRule(UR1)\": expected a Uniqueness_rules"},
        Fault{'s', 23, "#1.Entities(#21,#27,#11,#8)", "TWIG is missing"},
        Fault{'s', 23, "#1.Entities(#21,#27,#11,#8,#8,#28)", "found #8 ROOT again"}));

TEST(Restore, RefusesAttributesThatDisagreeWithInheritedOnes) {
    SampleSchema sample;
    sample.declarations[22] = "ExplicitAttr(NAME)"; // a second NAME of LEAF
    EXPECT_THAT(sample.restore().error(), StartsWith("declaration 23 \"ExplicitAttr(NAME)\": expected a name that no"));

    sample = {};
    sample.declarations.insert(sample.declarations.end(), {"ExplicitAttr(DIM)"}); // 29, explicit under a derived one
    sample.statements.insert(sample.statements.end(), {"#29.ExplAttrInfos(#2,REQ)", "#28.Attributes(#29)"});
    EXPECT_THAT(sample.restore().error(), StartsWith("declaration 29 \"ExplicitAttr(DIM)\": expected a derived"));
    sample.declarations.back() = "ExplicitAttr(SIZE)"; // the same for a place that was explicit once
    EXPECT_THAT(sample.restore().error(), StartsWith("declaration 29"));
}

TEST(Restore, WantsEveryEntitiesStatementButTheLastFull) {
    SampleSchema sample;
    std::string hundred = "#1.Entities(#21,#27,#11,#8,#28";
    for (std::size_t number = 29; number <= 129; ++number) {
        const std::string reference = '#' + std::to_string(number);
        sample.declarations.push_back("Entity(E" + std::to_string(number) + ",INSTANTIABLE,SIMPLE,INDEPENDENT)");
        sample.statements.push_back(reference + ".Composition(" + reference + ")");
        if (number <= 123) hundred += "," + reference;
    }
    sample.statements[22] = hundred + ")";
    sample.statements.push_back("#1.Entities(#124,#125,#126,#127,#128,#129)");
    const auto schema = sample.restore();
    ASSERT_TRUE(schema) << schema.error();
    EXPECT_EQ((*schema)->counts().entitiesStatements, 2);
    EXPECT_EQ((*schema)->entities().size(), 106U);

    sample.statements[22] = hundred + ",#124)";
    EXPECT_THAT(sample.restore().error(), HasSubstr("expected at most 100 entities in a statement"));
    sample.statements[22] = hundred.substr(0, hundred.rfind(',')) + ")";
    EXPECT_THAT(sample.restore().error(), HasSubstr("expected 100 entities in every Entities statement but the last"));
}

TEST(Restore, StaysInBoundsOnListsMadeToExhaustIt) {
    // A chain of subtypes, each with an attribute, needs a quadratic number of places.
    SampleSchema sample;
    sample.declarations = {"Schema(DEEP)"};
    sample.statements = {"#1.SchemaVersionRelease(1,1)"};
    std::string entities = "#1.Entities(", composition;
    constexpr int depth = 3000;
    for (int i = 0; i < depth; ++i) {
        const std::string entity = '#' + std::to_string(2 * i + 2);
        const std::string attribute = '#' + std::to_string(2 * i + 3);
        sample.declarations.push_back("Entity(E" + std::to_string(10'000 + i) + ",ABSTRACT,SIMPLE,INDEPENDENT)");
        sample.declarations.push_back("ExplicitAttr(A" + std::to_string(i) + ")");
        if (i > 0) sample.statements.push_back(entity + ".Supertypes(#" + std::to_string(2 * i) + ")");
        composition += (i > 0 ? "," : "") + entity;
        sample.statements.push_back(entity + ".Composition(" + composition + ")");
        sample.statements.push_back(attribute + ".ExplAttrInfos(BooleanType,REQ)");
        sample.statements.push_back(entity + ".Attributes(" + attribute + ")");
        entities += (i % 100 > 0 ? "," : "") + entity;
        if (i % 100 == 99) sample.statements.push_back(std::exchange(entities, "#1.Entities(") + ")");
    }
    EXPECT_THAT(sample.restore().error(), HasSubstr("in all entities, inherited ones included"));

    const std::vector<const char*> many(70'000, "Schema(MANY)");
    EXPECT_THAT(restoreSchema(many, {}).error(), HasSubstr("expected at most 65535"));
    EXPECT_FALSE(restoreSchema({}, {}));
    const std::vector<const char*> none(1, nullptr);
    EXPECT_THAT(restoreSchema(none, {}).error(), StartsWith("declaration 1: expected a text"));
}

} // namespace velkor::sdai::test
