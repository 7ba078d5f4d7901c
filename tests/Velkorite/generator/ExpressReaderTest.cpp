#include "ExpressReader.h"
#include "Matchers.h"

#include <array>

namespace velkor::express {

namespace {

std::string written(const ExpressType& type) {
    constexpr std::array words{"", "", "LIST", "SET", "ARRAY", "ENUMERATION", "SELECT"};
    std::string word = words[static_cast<std::size_t>(type.kind)];
    for (const std::string& name : type.names) word += ' ' + name;
    if (!type.isAggregate()) return word + type.text;
    return word + ' ' + std::to_string(type.lower) + ':' + std::to_string(type.upper) +
           (type.isOptional ? " OPTIONAL" : "") + (type.isUnique ? " UNIQUE" : "") + " OF " + written(*type.element);
}

std::vector<std::string> written(const std::vector<ExpressAttribute>& attributes) {
    std::vector<std::string> result;
    for (const ExpressAttribute& attribute : attributes) {
        result.push_back(attribute.name + (attribute.isOptional ? ": OPTIONAL " : ": ") + written(attribute.type));
    }
    return result;
}

ExpressSchema schemaOf(const std::string& text) {
    ExpressSchema schema;
    const auto read = readExpress(text, "a.exp", schema);
    EXPECT_TRUE(read) << read.error();
    return schema;
}

std::string errorOf(const std::string& text) {
    ExpressSchema schema;
    const auto read = readExpress(text, "a.exp", schema);
    return read ? "no error" : read.error();
}

} // namespace

TEST(ExpressReader, ReadsEveryTypeThatASchemaUses) {
    const ExpressSchema schema = schemaOf(R"(ENTITY A;
        A1 : REAL; A2 : real (6); A3 : NUMBER; A4 : INTEGER; A5 : Boolean; A6 : LOGICAL; A7 : STRING;
        A8 : STRING (255); A9 : STRING(22) FIXED; B1 : BINARY; B2 : OPTIONAL BINARY (32); B3 : optional Label;
        C1 : LIST OF REAL; C2 : LIST [3:4] OF INTEGER; C3 : List [1:?] Of Unique Wall;
        C4 : SET [0:?] OF SET [2:2] OF LIST [1:3] OF Deep; C5 : ARRAY [-1:2] OF OPTIONAL UNIQUE Label;
        C6 : ARRAY [0:Upper] OF Point; C7 : ARRAY [2*(a[1]) - 1 : SIZEOF (x[3]) + 2] OF Point; END_ENTITY;
        TYPE T1 = ENUMERATION OF (ONE, two); END_TYPE; TYPE T2 = EXTENSIBLE SELECT (Wall
        ,Label); END_TYPE;)");
    EXPECT_THAT(written(schema.entities.at(0).explicitAttributes),
                ElementsAre("A1: RealType(8)", "A2: RealType(8)", "A3: RealType(8)", "A4: IntegerType",
                            "A5: BooleanType", "A6: LogicalType", "A7: StringType", "A8: StringType(255)",
                            "A9: StringType(22,FIXED)", "B1: BinaryType", "B2: OPTIONAL BinaryType(32)",
                            "B3: OPTIONAL Label", "C1: LIST 0:-1 OF RealType(8)", "C2: LIST 3:4 OF IntegerType",
                            "C3: LIST 1:-1 UNIQUE OF Wall", "C4: SET 0:-1 OF SET 2:2 OF LIST 1:3 OF Deep",
                            "C5: ARRAY -1:2 OPTIONAL UNIQUE OF Label", "C6: ARRAY 0:0 OF Point",
                            "C7: ARRAY 0:0 OF Point"));
    EXPECT_EQ(written(schema.types.at(0).underlying), "ENUMERATION ONE two");
    EXPECT_EQ(written(schema.types.at(1).underlying), "SELECT Wall Label");
}

TEST(ExpressReader, ReadsWhatAnEntityDeclares) {
    const ExpressSchema schema = schemaOf(R"(
        entity Wall abstract supertype of (oneof (A, B) ANDOR (C)) subtype of (Element);
          Height, Width : OPTIONAL Length;
          SELF\Root.Name : Label;
         derive Dim : INTEGER := DimOf(SELF\Element.Parts[1]) + 3;
          SELF\Element.SELF\Root.Area : LIST [0:?] OF REAL := [1.5E-3, 2.];
         INVERSE FillsVoids : SET [0:1] OF Fills FOR Filler;
         UNIQUE UR1 : SELF\Root.Name, Height; UR2 : Dim;
         WHERE WR1 : NOT (';END_ENTITY;' IN Names) OR ("0000002D" = '--'); SELF.Height > 0;
        end_entity;
        ENTITY Leaf; END_ENTITY;
        ENTITY Bare ABSTRACT SUPERTYPE; WHERE TRUE; END_ENTITY;)");
    ASSERT_EQ(schema.entities.size(), 3U);
    const ExpressEntity& wall = schema.entities[0];
    EXPECT_TRUE(wall.isAbstract);
    EXPECT_EQ(wall.supertype, "Element");
    EXPECT_THAT(written(wall.explicitAttributes),
                ElementsAre("Height: OPTIONAL Length", "Width: OPTIONAL Length", "Name: Label"));
    EXPECT_THAT(written(wall.derivedAttributes), ElementsAre("Dim: IntegerType", "Area: LIST 0:-1 OF RealType(8)"));
    ASSERT_EQ(wall.uniquenessRules.size(), 2U);
    EXPECT_EQ(wall.uniquenessRules[0].label, "UR1");
    EXPECT_THAT(wall.uniquenessRules[0].attributes, ElementsAre("Name", "Height"));
    EXPECT_THAT(wall.uniquenessRules[1].attributes, ElementsAre("Dim"));

    EXPECT_FALSE(schema.entities[1].isAbstract);
    EXPECT_EQ(schema.entities[1].supertype, "");
    EXPECT_TRUE(schema.entities[2].isAbstract);
}

TEST(ExpressReader, ReadsAWholeSchema) {
    const ExpressSchema schema = schemaOf("\xEF\xBB\xBF(* Gr\xC3\xBC\xC3\x9F \xE4 (* ENTITY X; *) -- *)\r\n"
                                          "SCHEMA S;-- (* not open\r\n"
                                          "REFERENCE FROM Other (Thing AS Mine);\r\n"
                                          "CONSTANT Zero : INTEGER := 0; END_CONSTANT;\r\n"
                                          "TYPE T = REAL; WHERE WR1 : {0 < SELF < 1}; WR2 : TYPEOF(SELF) = []; "
                                          "END_TYPE;\r\n"
                                          "FUNCTION F(a : ENTITY) : LOGICAL; LOCAL s : STRING := 'END_FUNCTION;'; "
                                          "END_LOCAL; RETURN (a <= 1); END_FUNCTION;\r\n"
                                          "RULE R FOR (A); WHERE WR1 : TRUE; END_RULE;\r\n"
                                          "procedure P; BEGIN END; END_PROCEDURE;(**)\r\n"
                                          "ENTITY A; END_ENTITY;\r\n"
                                          "END_SCHEMA;\r\n--");
    EXPECT_EQ(schema.types.size(), 1U);
    ASSERT_EQ(schema.entities.size(), 1U);
    EXPECT_EQ(schema.entities[0].line, 9);
}

TEST(ExpressReader, SaysWhereAndWhatItExpected) {
    std::string deep = "TYPE T = ";
    for (int i = 0; i < 100'000; ++i) deep += "LIST OF ";
    const std::pair<std::string, const char*> cases[] = {
        {"ENTTY A;", R"(a.exp:1: expected a declaration, found "ENTTY")"},
        {"(* one\r\ntwo (* three\r\n*) *) TYPE\r\nT := REAL;", R"(a.exp:4: expected "=", found ":=")"},
        {"TYPE T =\n-- a type\n;", R"(a.exp:3: expected a type, found ";")"},
        {"TYPE T = ENUMERATION OF (A,);", R"_(a.exp:1: expected an enumerator, found ")")_"},
        {"TYPE T = STRING(0);", R"_(a.exp:1: expected a width above 0, found ")")_"},
        {"TYPE T = STRING(99999999999);", R"(a.exp:1: expected an integer, found "99999999999")"},
        {"TYPE T = LIST [1,?] OF REAL;", R"(a.exp:1: expected ":", found ",")"},
        {"TYPE T = LIST [?:2] OF REAL;", R"(a.exp:1: expected a lower bound, found "?")"},
        {"TYPE T = SET\n[3:2] OF REAL;", R"(a.exp:2: expected bounds that hold something, found "]")"},
        {"TYPE T = REAL; END_TYP;", R"(a.exp:1: expected END_TYPE, found "END_TYP")"},
        {"TYPE _T = REAL;", R"(a.exp:1: expected the name of a type, found "_")"},
        {"ENTITY A SUBTYPE OF\n(B, C);", R"(a.exp:2: expected one supertype of A, found "(")"},
        {"ENTITY A;\nB : REAL", R"(a.exp:2: expected ";", found the end)"},
        // A dictionary has no rule without a label.
        {"ENTITY A; B : REAL;\nUNIQUE B; END_ENTITY;", R"(a.exp:2: expected ":", found ";")"},
        {"ENTITY A; WHERE\nWR1 : 'open;\nEND_ENTITY;",
         "a.exp:2: expected an end of the literal or remark, found \"'open;\nEND_ENTITY;\""},
        {"ENTITY A; END_ENTITY;\n(* (* *)", R"(a.exp:2: expected an end of the literal or remark, found "(*")"},
        {"FUNCTION F : REAL;\n", "a.exp:2: expected END_FUNCTION, found the end"},
        {deep, R"(a.exp:1: expected fewer nested aggregates, found "LIST")"}};
    for (const auto& [source, expected] : cases) EXPECT_EQ(errorOf(source), expected) << source.substr(0, 80);
}

} // namespace velkor::express
