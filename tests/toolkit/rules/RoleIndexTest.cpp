// Rules bound to a dictionary, and the index of who refers to whom.
#include "JudgedRules.h"
#include "Matchers.h"

namespace velkor::rules {

namespace {

constexpr const char* things =
    "TYPE Size = REAL; WHERE WR1 : SELF > 0.0; WR2 : SELF < 9.0; END_TYPE;\n"
    "TYPE Small = Size; WHERE WR3 : SELF < 1.0; END_TYPE;\n"
    "ENTITY Thing; INVERSE One : SET [0:1] OF Group FOR Members; Unused : SET [0:?] OF Pair FOR First;\n"
    "  Asked : SET [0:?] OF Pair FOR Second; Later : SET [0:?] OF Group FOR Head;\n"
    "  WHERE WR1 : (SIZEOF(Asked) >= 0) OR Early(SELF); END_ENTITY;\n"
    "FUNCTION Early(t : Thing) : BOOLEAN; IF FALSE THEN RETURN (TRUE); END_IF;\n"
    "  RETURN (SIZEOF(QUERY(x <* [1] | SIZEOF(t.Later) > 0)) > 0); END_FUNCTION;\n"
    "ENTITY Part SUBTYPE OF (Thing); A : REAL; B : REAL; DERIVE C : REAL := A; INVERSE Both : BAG [0:9] OF Pair FOR "
    "Both;\n"
    "  SELF\\Thing.One : SET [1:1] OF Group FOR Members; WHERE WR2 : TRUE; WR1 : TRUE; END_ENTITY;\n"
    "ENTITY Bolt SUBTYPE OF (Part); DERIVE SELF\\Part.B : REAL := 1.0; WHERE WR9 : TRUE; END_ENTITY;\n"
    "ENTITY Group; Name : STRING; Members : SET OF Thing; Head : OPTIONAL Thing; END_ENTITY;\n"
    "ENTITY Named SUBTYPE OF (Group); END_ENTITY;\n"
    "ENTITY Pair; First : Thing; Second : Thing; Both : LIST OF LIST OF Thing;\n"
    "  WHERE WR1 : SIZEOF(USEDIN(First, 'SAMPLE.PAIR.SECOND')) + SIZEOF(USEDIN(First, 'SAMPLE.NAMED.MEMBERS')) > 0;\n"
    "END_ENTITY;\n";

} // namespace

TEST(RuleProgram, BindsRulesToTheDictionary) {
    const test::JudgedRules judged(things, "#1=THING();");
    const RuleProgram& program = judged.program();
    const RuleTables& tables = program.tables();
    const sdai::SchemaDefinition& schema = judged.model().schema();
    const auto labels = [&](auto positions, auto rules) {
        std::vector<std::string> texts;
        for (const auto position : positions) {
            texts.push_back(std::string(judged.text(rules[position].ownerName)) + "." +
                            std::string(judged.text(rules[position].label)));
        }
        return texts;
    };
    EXPECT_THAT(labels(program.whereRulesOf(*schema.entity("BOLT")), tables.entityRules),
                ElementsAre("Thing.WR1", "Part.WR2", "Part.WR1", "Bolt.WR9"));
    EXPECT_THAT(labels(program.whereRulesOf(*schema.definedType("SMALL")), tables.typeRules),
                ElementsAre("Size.WR1", "Size.WR2", "Small.WR3"));
    std::vector<std::string> inverse;
    for (const auto position : program.inverseAttributesOf(*schema.entity("BOLT"))) {
        const InverseAttribute& attribute = tables.inverseAttributes[position];
        inverse.push_back(std::string(judged.text(attribute.name)) + std::to_string(attribute.lower));
    }
    EXPECT_THAT(inverse, testing::UnorderedElementsAre("UNUSED0", "ASKED0", "LATER0", "BOTH0", "ONE1"));

    using Kind = RuleProgram::Part::Kind;
    const auto kind = [&](const char* entity, const char* name) {
        return program.part(*schema.entity(entity), judged.textId(name)).kind;
    };
    EXPECT_EQ(kind("PART", "B"), Kind::Explicit);
    EXPECT_EQ(kind("BOLT", "B"), Kind::Derived);
    EXPECT_EQ(kind("BOLT", "C"), Kind::Derived);
    EXPECT_EQ(kind("BOLT", "ONE"), Kind::Inverse);
    EXPECT_EQ(kind("THING", "A"), Kind::None);
    EXPECT_TRUE(program.isDerived(*schema.entity("BOLT"), 1));
    EXPECT_FALSE(program.isDerived(*schema.entity("BOLT"), 0));
    EXPECT_FALSE(program.isDerived(*schema.entity("PART"), 1));
}

TEST(RoleIndex, FindsTheUsersOfARole) {
    const test::JudgedRules judged(things, "#1=THING();#2=THING();#3=PART(1.,2.);\n"
                                           "#10=NAMED('#2',(#1,#3,#1),$);#11=GROUP('(#2,'/*#2*/,(#3,#9),#1);\n"
                                           "#12=PAIR(#1,#2,((#1,#2),(),(#2,#3)));#13=PAIR(#1,#1,((#1)));\n"
                                           "#14=PAIR(#1;#15=PAIR();#16=GROUP('x',(#2\n#17=GROUP('y',#2);#18=(PAIR());");
    const auto numberOf = [&](std::uint64_t id) { return *judged.model().file().find(id); };
    const auto idsOf = [&](std::span<const std::uint32_t> numbers) {
        std::vector<std::uint64_t> ids;
        for (const std::uint32_t number : numbers) ids.push_back(judged.model().file().id(number));
        return ids;
    };
    const auto inverse = [&](const char* entity, const char* attribute, std::uint64_t id) {
        const auto all = judged.program().tables().inverseAttributes;
        for (std::size_t i = 0; i < all.size(); ++i) {
            if (judged.text(all[i].entity) == entity && judged.text(all[i].name) == attribute)
                return idsOf(judged.roles().users(static_cast<std::uint16_t>(i), numberOf(id)));
        }
        throw std::runtime_error("no such attribute");
    };
    EXPECT_THAT(inverse("THING", "ONE", 1), ElementsAre(10, 10));
    EXPECT_THAT(inverse("THING", "ONE", 2), ElementsAre(16, 17));
    EXPECT_THAT(inverse("PART", "ONE", 3), ElementsAre(10, 11));
    EXPECT_THAT(inverse("PART", "BOTH", 2), ElementsAre(12, 12));
    EXPECT_THAT(inverse("PART", "BOTH", 3), ElementsAre(12));
    EXPECT_THAT(inverse("THING", "ASKED", 1), ElementsAre(13));
    EXPECT_THAT(inverse("THING", "ASKED", 18), IsEmpty());
    EXPECT_THAT(inverse("THING", "LATER", 1), ElementsAre(11));
    // Nobody asks, and no number is too large.
    EXPECT_THAT(inverse("THING", "UNUSED", 1), IsEmpty());

    const RoleIndex& roles = judged.roles();
    EXPECT_THAT(idsOf(*roles.users("PAIR.SECOND", numberOf(2))), ElementsAre(12));
    EXPECT_THAT(idsOf(*roles.users("NAMED.MEMBERS", numberOf(3))), ElementsAre(10));
    EXPECT_FALSE(roles.users("PAIR.FIRST", numberOf(1)));
    EXPECT_FALSE(roles.users("PAIR", numberOf(1)));
}

// Few users of many instances, many of one, and one of each.
TEST(RoleIndex, HoldsManyReferencesInLittleMemory) {
    constexpr std::uint32_t count = 20000;
    std::string instances;
    for (std::uint32_t i = 1; i <= count; ++i) instances += "#" + std::to_string(i) + "=THING();";
    for (std::uint32_t i = 1; i <= count; ++i) {
        const std::uint32_t target = i % 3 == 0 ? 7 : i;
        instances += "#" + std::to_string(count + i) + "=PAIR(#1,#" + std::to_string(target) + ",());";
    }
    const test::JudgedRules judged(things, instances);
    const auto users = [&](std::uint64_t id) {
        return *judged.roles().users("PAIR.SECOND", *judged.model().file().find(id));
    };
    std::size_t sum = 0;
    for (std::uint32_t i = 1; i <= 2 * count; ++i) {
        const auto found = users(i);
        sum += found.size();
        if (i % 3 != 0 && i != 7 && i <= count) {
            ASSERT_THAT(found, ElementsAre(count + i - 1)) << i;
        }
    }
    EXPECT_EQ(sum, count);
    EXPECT_EQ(users(7).size(), count / 3 + 1);
    EXPECT_TRUE(std::ranges::is_sorted(users(7)));
    EXPECT_LT(judged.roles().memoryUse(), 12 * count);
}

} // namespace velkor::rules
