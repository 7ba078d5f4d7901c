#include "Profile.h"
#include "Matchers.h"

#include "ExpressReader.h"

namespace velkor::dictgen {

using namespace express;

namespace {

constexpr const char* source = R"(
    TYPE Value = SELECT (Real, Nested, Wall, Nested2); END_TYPE;
    TYPE Nested = SELECT (Label, Deep); END_TYPE;
    TYPE Nested2 = SELECT (Id); END_TYPE;
    TYPE Deep = SELECT (Colour, Real); END_TYPE;
    TYPE Colour = ENUMERATION OF (RED); END_TYPE;
    TYPE Other = SELECT (Nested); END_TYPE;
    TYPE Loop = SELECT (Loop2); END_TYPE;
    TYPE Loop2 = SELECT (Loop); END_TYPE;
    ENTITY Wall; A : REAL; DERIVE B : REAL := 1; C : REAL := 2; UNIQUE UR1 : A; END_ENTITY;
    ENTITY Roof; DERIVE B : REAL := 1; END_ENTITY;)";

ExpressSchema sample() {
    ExpressSchema schema;
    EXPECT_TRUE(readExpress(source, "a.exp", schema));
    return schema;
}

std::vector<std::string> derivedOf(const Profile& profile) {
    ExpressSchema schema = sample();
    EXPECT_TRUE(applyProfile(profile, schema));
    EXPECT_EQ(schema.entities[0].uniquenessRules.size(), profile.hasUniquenessRules ? 1U : 0U);
    std::vector<std::string> names;
    for (const ExpressEntity& entity : schema.entities) {
        for (const ExpressAttribute& one : entity.derivedAttributes) names.push_back(entity.name + "." + one.name);
    }
    return names;
}

} // namespace

TEST(Profile, FlattensTheSelectsNamedAtEveryDepth) {
    Profile profile;
    profile.flattenedSelects = {"Value"};
    ExpressSchema schema = sample();
    ASSERT_TRUE(applyProfile(profile, schema));
    EXPECT_THAT(schema.types[0].underlying.names, ElementsAre("Real", "Label", "Colour", "Real", "Wall", "Id"));
    EXPECT_THAT(schema.types[1].underlying.names, ElementsAre("Label", "Deep"));
    EXPECT_THAT(schema.types[5].underlying.names, ElementsAre("Nested"));

    profile.schema = "IFC9";
    for (const auto& [select, reason] :
         {std::pair("Loop", "select Loop is an item of itself"), {"Lost", "IFC9: has no select Lost"}}) {
        profile.flattenedSelects = {select};
        const auto applied = applyProfile(profile, schema);
        EXPECT_EQ(applied ? "no error" : applied.error(), reason);
    }
}

TEST(Profile, CarriesTheDerivedAttributesListedOrAllOthers) {
    Profile profile;
    EXPECT_THAT(derivedOf(profile), ElementsAre("Wall.B", "Wall.C", "Roof.B"));
    profile.derived = {{"Wall", {"B"}}};
    EXPECT_THAT(derivedOf(profile), ElementsAre("Wall.C", "Roof.B"));
    profile.listsDerivedCarried = profile.hasUniquenessRules = true;
    EXPECT_THAT(derivedOf(profile), ElementsAre("Wall.B"));
    profile.derived.clear();
    EXPECT_THAT(derivedOf(profile), IsEmpty());
}

} // namespace velkor::dictgen
