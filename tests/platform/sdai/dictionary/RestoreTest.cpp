#include "Matchers.h"
#include "velkor/sdai/QORDXSdaiSchemaRestore.h"

#include "Cases.h"
#include "SampleSchema.h"

#include <array>

namespace velkor::sdai::test {

TEST(Restore, CountsWhatTheListsHold) {
    const SampleSchema sample;
    const auto schema = sample.restore();
    ASSERT_TRUE(schema) << schema.error();
    const SchemaCounts& counts = (*schema)->counts();
    EXPECT_EQ((*schema)->name(), "SAMPLE");
    EXPECT_THAT(
        (std::array{counts.declarations, counts.statements, counts.entities, counts.definedTypes,
                    counts.enumerationTypes, counts.selectTypes, counts.aggregateTypes, counts.explicitAttributes,
                    counts.derivedAttributes, counts.uniquenessRules, counts.entitiesStatements}),
        testing::ElementsAre(28, 23, 5, 7, 1, 3, 3, 5, 2, 1, 1));
}

// The list, the position and the text that takes the place of its text, "none" to take it away.
TEST(Restore, NamesThePlaceOfWhatIsWrong) {
    const auto cases = velkor::test::casesOf(R"-(
        d1: Entity(A,INSTANTIABLE,SIMPLE,INDEPENDENT) -> expected the keyword Schema
        d2: Schema(AGAIN) -> expected the keyword of a declaration, found "Schema"
        d2: Definedtype(LABEL,StringType) -> keyword
        d2: DefinedType(label,StringType) -> expected a name in capitals, found "label"
        d2: DefinedType(LABEL) -> ",", found ")" | DefinedType(LABEL,StringType(255) -> ")", found the end of the text
        d2: DefinedType(LABEL,#1) -> expected a simple
        d2: DefinedType(LABEL,StringType(255))  -> expected the end of the text, found " "
        d2: DefinedType(LABEL,StringType(0)) -> integer from 1 on
        d2: DefinedType(LABEL,StringType(99999999999)) -> integer
        d2: DefinedType(LABEL,StringType(9,FREE)) -> expected FIXED, found "FREE"
        d2: DefinedType(LABEL,RealType(4)) -> expected 8
        d2: DefinedType(LABEL,NumberType) -> a simple type or a reference
        d2: DefinedType(LABEL,BooleanType(1)) -> expected ")"
        d3: DefinedType(NICKNAME,#3) -> a reference to an earlier declaration
        d3: DefinedType(NICKNAME,#02) -> a decimal integer
        d3: DefinedType(LABEL,#2) -> expected a name of its own, found that of #2
        d4: ArrayType(RealType(8),1,2,DUPL) -> expected ","
        d6: EnumerationType(RED,GREEN,RED) -> found RED again | EnumerationType() -> expected a name in capitals
        d8: Entity(ROOT,ABSTRACT,COMPLEX,INDEPENDENT) -> expected SIMPLE
        d11: Entity(LABEL,INSTANTIABLE,SIMPLE,INDEPENDENT) -> expected a name of its own
        d19: SelectType(#18,#6) -> expected a reference to a defined type or an entity
        d20: DefinedType(ANYTHING,#8) -> or an aggregate, found "#8"
        d20: DefinedType(OPERAND,#19) -> expected a name of its own
        d20: DefinedType(ANYTHING,#17) -> expected a type that no other DefinedType names
        d20: DefinedType(ANYTHING,#2) -> declaration 19 "SelectType(#18,#7)": expected a Def
        d24: ListType(#9,1,-1,UNIQ) -> a simple type or a reference to a defined
        d24: ListType(#11,-1,2,UNIQ) -> integer from 0 on
        d24: ListType(#11,3,2,UNIQ) -> not below the lower bound | ListType(#11,1,-2,UNIQ) -> integer from -1 on
        d24: ListType(#11,1,-1,MANY) -> expected UNIQ or DUPL, found "MANY"
        d25: SetType(#24,0,5,UNIQ) -> expected ")", found ","
        s1: none -> expected #1.SchemaVersionRelease(1,1), found none
        s1: #1.SchemaVersionRelease(1,2) -> expected 1, found "2"
        s2: none -> declaration 8 "Entity(ROOT,ABSTRACT,SIMPLE,INDEPENDENT)": expected a Composition
        s2: 8.Composition(#8) -> expected a reference | #8Composition(#8) -> expected "."
        s2: #8.Composition(#99) -> the number of | #99.Composition(#8) -> the number of a declaration, found "#99
        s2: #8.Composition(#7) -> to an entity, found "#7" | #8.Compositions(#8) -> a statement, found "Compositions"
        s2: #9.Composition(#8) -> an entity as the subject, found "#9
        s3: none -> declaration 9 "ExplicitAttr(NAME)": expected an ExplAttrInfos statement
        s3: #9.DerivAttrInfos(#2) -> a derived attribute as the subject | #9.ExplAttrInfos(#6,REQ) -> a simple type or
        s3: #9.ExplAttrInfos(#2,MUST) -> expected OPT or REQ
        s4: #9.ExplAttrInfos(#2,REQ) -> expected one statement of its kind, found another in statement 3
        s5: #8.Attributes(#9) -> declaration 10 "ExplicitAttr(SIZE)": expected an Attributes statement
        s5: #8.Attributes(#10,#9) -> expected attributes in the order of their declarations
        s6: #11.Supertypes(#11) -> expected another entity | #11.Supertypes(#8,#21) -> expected ")"
        s6: #11.Supertypes(#28) -> expected supertypes that end in a root, found a circle
        s7: #11.Composition(#8,#11) -> expected entities sorted by their names, found #11 PART behind ROOT
        s7: #11.Composition(#11,#27) -> expected the entity and its supertypes, found #27 OTHER
        s11: #11.Attributes(#12,#15) -> declaration 16
        s11: #11.Attributes(#15,#16,#12) -> explicit attributes before the derived
        s11: #11.Attributes(#9,#15,#16) -> expected a declaration behind that of the entity
        s12: #1.DefTypes(#2,#3,#5,#7,#14,#18,#20) -> found #18 OPERAND again
        s12: #1.DefTypes(#2,#3,#5,#7,#18) -> ANYTHING is missing
        s17: #21.Attributes(#22,#22) -> expected one that no statement has named before
        s18: #26.UniqRuleInfos(#23,#12) -> expected attributes of #21 LEAF or its supertypes, found #12
        s19: none -> declaration 26 "UniquenessRule(UR1)": expected a Uniqueness_rules
        s22: #28.Composition(#8,#28) -> expected the entity and all its supertypes, 3 in all, found 2
        s23: #1.Entities(#21,#27,#11,#8) -> TWIG is missing
        s23: #1.Entities(#21,#27,#11,#8,#8,#28) -> found #8 ROOT again)-");
    ASSERT_GT(cases.size(), 60U);
    for (const auto& [place, text, expected] : cases) {
        SampleSchema sample;
        auto& list = place[0] == 'd' ? sample.declarations : sample.statements;
        const std::string position = place.substr(1);
        const auto at = list.begin() + std::stol(position) - 1;
        if (text == "none")
            list.erase(at);
        else
            *at = text;
        const auto schema = sample.restore();
        ASSERT_FALSE(schema) << place << ' ' << text;
        EXPECT_THAT(schema.error(), HasSubstr(expected));
        if (text != "none" && !expected.starts_with("declaration")) {
            EXPECT_THAT(schema.error(), StartsWith((place[0] == 'd' ? "declaration " : "statement ") + position));
        }
    }
}

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
