#include "RuleCompiler.h"
#include "Matchers.h"
#include "RuleCode.h"
#include "RuleSchema.h"
#include "RuleUnits.h"

namespace velkor::rulegen {

namespace {

std::string errorOf(const std::string& declarations) {
    try {
        const test::RuleSchema schema(declarations);
        return "no error";
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

constexpr const char* parts =
    "TYPE Colour = ENUMERATION OF (RED, BLUE); END_TYPE;\n"
    "TYPE Tone = ENUMERATION OF (RED, GREY); END_TYPE;\n"
    "ENTITY Part; Size : REAL; Tint : OPTIONAL Colour; END_ENTITY;\n"
    "ENTITY Bolt SUBTYPE OF (Part); Length : REAL; INVERSE UsedBy : SET OF Box FOR Bolts; END_ENTITY;\n"
    "ENTITY Box; Bolts : SET OF Bolt; END_ENTITY;\n"
    "ENTITY Other; Bolts : REAL; END_ENTITY;\n";

} // namespace

TEST(RuleCompiler, NamesWhatNobodyDeclares) {
    const std::pair<std::string, std::string> cases[] = {
        {"ENTITY A; WHERE WR1 : Sise > 0; END_ENTITY;", "nothing is named Sise"},
        {"ENTITY A; P : Part; WHERE WR1 : P.Sise > 0; END_ENTITY;", "no entity has an attribute Sise"},
        {"ENTITY A; P : Part; WHERE WR1 : P.Bolts > 0; END_ENTITY;", "Part has no attribute Bolts"},
        // What a subtype has may be there.
        {"ENTITY A; P : Part; WHERE WR1 : P.Length > 0; END_ENTITY;", "no error"},
        {"ENTITY A; P : Part; WHERE WR1 : P\\Bold.Length > 0; END_ENTITY;", "expected an entity, found Bold"},
        {"ENTITY A; WHERE WR1 : Sum(1) > 0; END_ENTITY;", "there is no function Sum"},
        {"ENTITY A; WHERE WR1 : SIZEOF(1, 2) > 0; END_ENTITY;", "SIZEOF takes 1 arguments, found 2"},
        {"ENTITY A; C : Colour; WHERE WR1 : C = Colour.GREEN; END_ENTITY;", "Colour has no enumerator GREEN"},
        {"ENTITY A; C : Colour; WHERE WR1 : C = RED; END_ENTITY;", "no error"},
        {"ENTITY A; WHERE WR1 : SIZEOF(Part(1.) || 2) = 0; END_ENTITY;",
         "expected entities with their values beside ||"},
        {"ENTITY A; WHERE WR1 : Part(1.) = ?; END_ENTITY;", "Part has 2 attributes of its own, found 1"},
        {"ENTITY A; N : STRING; WHERE WR1 : SIZEOF(USEDIN(SELF, N)) = 0; END_ENTITY;",
         "expected a role of USEDIN that is a literal"},
        {"ENTITY A; INVERSE U : SET OF Box FOR Nuts; END_ENTITY;", "there is no Box.Nuts"},
        {"FUNCTION F(x : REAL) : REAL; y := x; END_FUNCTION;", "nothing that can be assigned to is named y"},
        {"FUNCTION F(x : REAL) : REAL; ESCAPE; END_FUNCTION;", "ESCAPE or SKIP stands outside REPEAT"},
        {"FUNCTION F(x : REAL) : REAL; RETURN (SELF); END_FUNCTION;", "SELF stands where there is none"},
        {"FUNCTION F(x : REAL) : REAL; G(x); END_FUNCTION;", "there is no procedure G with 1 parameters"},
        {"FUNCTION F(x : REAL) : REAL; RETURN (F(x, x)); END_FUNCTION;", "F takes 1 arguments, found 2"},
        {"RULE R FOR (Nobody); WHERE WR1 : TRUE; END_RULE;", "expected an entity, found Nobody"}};
    for (const auto& [source, expected] : cases) {
        EXPECT_EQ(errorOf(parts + source), expected == "no error" ? expected : "sample.exp:7: " + expected) << source;
    }
}

TEST(RuleCompiler, NotesNamesThatTypeofNeverGives) {
    const test::RuleSchema schema(std::string(parts) +
                                  "ENTITY A; P : Part; WHERE WR1 : 'SAMPLE.Bolt' IN TYPEOF(P);\n"
                                  "WR2 : 'SAMPLE.BOLD' IN TYPEOF(P); WR3 : 'SAMPLE.BOLT' IN TYPEOF(P);\n"
                                  "WR4 : EXISTS(P\\Bolt.Length); WR5 : EXISTS(P\\Other.Bolts); END_ENTITY;");
    EXPECT_THAT(schema.notes(),
                ElementsAre("sample.exp:7: 'SAMPLE.Bolt' is never a name of TYPEOF, which are in upper case",
                            "sample.exp:8: 'SAMPLE.BOLD' names no type",
                            "sample.exp:9: what is of Part is never of Other"));
}

TEST(RuleCompiler, StoresWhatReleasesShareOnce) {
    const auto source = [](const std::string& name) {
        RuleSource result{name, {}};
        const auto read = express::readExpress(
            std::string(parts) +
                "FUNCTION F(x : REAL) : REAL; LOCAL s : REAL := 0.5; END_LOCAL; RETURN (x + s); END_FUNCTION;\n"
                "ENTITY A; P : Part; WHERE WR1 : '" +
                name + ".BOLT' IN TYPEOF(P); WR2 : F(P.Size) > 70000; END_ENTITY;",
            name, result.schema);
        EXPECT_TRUE(read) << read.error();
        result.schema.name = name;
        return result;
    };
    RuleCompiler one({source("IFC1")});
    RuleCompiler both({source("IFC1"), source("IFC2")});
    EXPECT_EQ(both.store().code.size(), one.store().code.size());
    EXPECT_EQ(both.store().textPlaces.size(), one.store().textPlaces.size());
    EXPECT_EQ(both.tables(1).entityRules[1].code, both.tables(0).entityRules[1].code);
    EXPECT_EQ(both.store().text(both.tables(1).entityRules[0].expression), "'\x01.BOLT' IN TYPEOF(P)");

    const auto units = ruleUnits(both, {"1.exp (SHA-256 1)", "2.exp (SHA-256 2)"});
    ASSERT_EQ(units.size(), 3U);
    EXPECT_EQ(units[2].fileName, "IFC2Rules.cpp");
    EXPECT_THAT(units[2].text, testing::StartsWith("// Made by velkor-rulegen from 2.exp (SHA-256 2); do not edit."));
    EXPECT_THAT(units[0].text, testing::HasSubstr("'\\001.BOLT' IN TYPEOF(P)"));
}

} // namespace velkor::rulegen
