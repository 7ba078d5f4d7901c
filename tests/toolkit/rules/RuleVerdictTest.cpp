// Verdicts, what they are decided by, and what bounds them.
#include "JudgedRules.h"
#include "Matchers.h"

namespace velkor::rules {

using test::points;
using test::shapes;

TEST(RuleMachine, JudgesValuesAndPopulations) {
    test::JudgedRules judged(std::string(shapes) +
                                 "RULE Few FOR (Line, Point); WHERE W1 : SIZEOF(Line) = 2; W2 : SIZEOF(Point) > 3;\n"
                                 "W3 : SIZEOF(QUERY(p <* Point | p.Dim = 3)) = 2; END_RULE;",
                             std::string(points) + "#5=LINE((#2,#3),#3,$);#6=RAY((#2,#3),#3,*);#7=(POINT()LINE());");
    const auto verdict = [&](const char* type, const char* encoded) {
        return test::letter(
            judged.machine().judgeValue(judged.code(type, "WR1"), *judged.model().schema().definedType(type), encoded));
    };
    EXPECT_EQ(verdict("POSITIVE", "1.5,$"), 'T');
    EXPECT_EQ(verdict("POSITIVE", " 0)"), 'F');
    EXPECT_EQ(verdict("POSITIVE", "$"), 'U');
    EXPECT_EQ(verdict("ANGLE", "(-359,0,0))"), 'T');
    EXPECT_EQ(verdict("ANGLE", "(360,0,0)"), 'F');
    const auto global = [&](const char* label) {
        return test::letter(judged.machine().judgeGlobal(judged.code("FEW", label)));
    };
    EXPECT_EQ(global("W1"), 'T');
    EXPECT_EQ(global("W2"), 'F');
    EXPECT_EQ(global("W3"), 'T');
}

// More attributes than are remembered at a time, so that some take the places of others.
TEST(RuleMachine, TellsRememberedAttributesApart) {
    std::string attributes, values, rules;
    for (int i = 0; i < 600; ++i) {
        const std::string number = std::to_string(i);
        attributes += "A" + number + " : LIST OF INTEGER; ";
        values += (i > 0 ? ",(" : "(") + number + ")";
        rules += (i > 0 ? " AND (A" : "(A") + number + "[1] = " + number + ")";
    }
    test::expectVerdicts("", attributes, "#1=PROBE(" + values + ");", "T " + rules);
}

// A rule that has no end ends, and so does a model whose parts refer to each other.
TEST(RuleMachine, IsBounded) {
    const std::string declarations =
        "ENTITY Link; Next : Link; DERIVE Last : Link := SELF.Next.Last; Depth : INTEGER := SELF.Next.Depth + 1;\n"
        "END_ENTITY;\n"
        "FUNCTION Endless(n : INTEGER) : INTEGER; REPEAT WHILE TRUE; n := n + 1; END_REPEAT; END_FUNCTION;\n"
        "FUNCTION Deep(n : INTEGER) : INTEGER; RETURN (Deep(n + 1)); END_FUNCTION;\n"
        "FUNCTION Counted(n : INTEGER) : INTEGER; IF n = 0 THEN RETURN (0); END_IF; RETURN (1 + Counted(n - 1));\n"
        "  END_FUNCTION;\n"
        "FUNCTION Large(n : INTEGER) : INTEGER; LOCAL l : LIST OF INTEGER := [1]; END_LOCAL;\n"
        "  REPEAT i := 1 TO 40; l := l + l; END_REPEAT; RETURN (SIZEOF(l)); END_FUNCTION;\n"
        "FUNCTION Wide(n : INTEGER) : STRING; LOCAL s : STRING := 'x'; END_LOCAL;\n"
        "  REPEAT i := 1 TO 40; s := s + s; END_REPEAT; RETURN (s); END_FUNCTION;\n"
        "FUNCTION Nested(n : INTEGER) : LIST OF INTEGER; LOCAL l : LIST OF INTEGER := [1]; END_LOCAL;\n"
        "  REPEAT i := 1 TO n; l := [l]; END_REPEAT; RETURN (l); END_FUNCTION;\n";
    std::string chain = "#1=PROBE(#2,#3,#4);#2=LINK(#3);#3=LINK(#2);";
    for (int i = 4; i < 5000; ++i) chain += "#" + std::to_string(i) + "=LINK(#" + std::to_string(i + 1) + ");";
    test::expectVerdicts(declarations, "A : Link; B : Link; C : Link;", chain, R"(
        ! A.Last = B
        ! A.Depth > 0
        T A = B
        ! C = C.Next
        F C :=: C.Next
        ! Endless(1) = 1
        ! Deep(1) = 1
        T Counted(150) = 150
        ! Large(1) = 1
        ! Wide(1) = ''
        ! Nested(100000) = Nested(100001)
        U Nested(20) = Nested(21)
        T Nested(20) = Nested(20)
        T SIZEOF([1 : 10000]) = 10000
        ! SIZEOF([1 : 100000000]) = 10000
        T SIZEOF([1 : 1500000]) = 1500000
        T SIZEOF([[1 : 1500000], [2 : 1500000]]) = 2
        ! SIZEOF([[1 : 1500000], [2 : 1500000], [3 : 1500000]]) = 3)");
}

// What verdicts share ends those that take much, and no others; global rules and what is read again take nothing of it.
TEST(RuleMachine, SharesSteps) {
    test::JudgedRules judged("ENTITY Probe; N : INTEGER; WHERE W1 : N > 1; W2 : Counted(N) = N; END_ENTITY;\n"
                             "RULE All FOR (Probe); WHERE W3 : Counted(9000) = 9000; END_RULE;\n"
                             "FUNCTION Counted(n : INTEGER) : INTEGER; LOCAL s : INTEGER := 0; END_LOCAL;\n"
                             "  REPEAT i := 1 TO n; s := s + 1; END_REPEAT; RETURN (s); END_FUNCTION;",
                             "#1=PROBE(3000);");
    RuleMachine& machine = judged.machine();
    machine.share(150'000);
    std::string verdicts;
    for (int i = 0; i < 6; ++i) {
        verdicts += test::letter(judged.judge("PROBE", "W2"));
        verdicts += test::letter(machine.judgeGlobal(judged.code("ALL", "W3")));
        machine.reads(9);
    }
    EXPECT_EQ(verdicts, "TTTT!T!T!T!T");
    EXPECT_EQ(judged.judge("PROBE", "W2"), Verdict::NotDecided);
    EXPECT_THAT(machine.reads(9), SizeIs(1));
    EXPECT_EQ(judged.judge("PROBE", "W1"), Verdict::Holds);
    machine.share(RuleMachine::stepLimit);
    EXPECT_EQ(judged.judge("PROBE", "W2"), Verdict::Holds);
}

TEST(RuleMachine, TellsWhatItReads) {
    test::JudgedRules judged(std::string(shapes) +
                                 "ENTITY Probe; L : Line; S : OPTIONAL Label; WHERE W1 : (L.Dim > 2) AND EXISTS(S) OR\n"
                                 "(SIZEOF(L.Points[1].Lines) = 0) OR (L.Dim = 3); W2 : TRUE;\n"
                                 "W3 : L.Points[1].Coordinates[1] > L.Twice; END_ENTITY;",
                             std::string(points) + "#1=PROBE(#5,'x''y' );#5=LINE((#2,#3),#3 ,$);");
    const auto reads = [&](const char* label, std::size_t most) {
        judged.judge("PROBE", label);
        std::vector<std::string> texts;
        for (const Read& read : judged.machine().reads(most)) {
            texts.push_back("#" + std::to_string(read.instance) + " " + std::string(read.entity) + "." +
                            std::string(read.attribute) + " = " + read.value);
        }
        return texts;
    };
    EXPECT_THAT(reads("W1", 99),
                ElementsAre("#1 PROBE.L = #5", "#5 LINE.DIM = 2", "#5 LINE.POINTS = (#2,#3)", "#2 POINT.DIM = 2",
                            "#2 POINT.COORDINATES = (0.,0.)", "#2 POINT.LINES = 1 member"));
    EXPECT_THAT(reads("W1", 1), ElementsAre("#1 PROBE.L = #5"));
    EXPECT_THAT(reads("W2", 9), IsEmpty());
    EXPECT_THAT(reads("W3", 9), SizeIs(6));
}

// Keys are equal when, and only when, the values are.
TEST(RuleMachine, MakesKeysOfValues) {
    test::JudgedRules judged(std::string(shapes) +
                                 "ENTITY Key; A : Measure; B : OPTIONAL SET OF NUMBER; C : OPTIONAL Point;\n"
                                 "DERIVE D : INTEGER := SIZEOF(B); UNIQUE UR1 : A, B, C; END_ENTITY;",
                             std::string(points) + "#10=KEY(LABEL('ab'),(1,2),#2);#11=KEY(LABEL('ab'),(2.,1),#2);"
                                                   "#12=KEY(LABEL('a'),(1,2),#3);#13=KEY(LENGTH(1.),(1,2),#4);"
                                                   "#14=KEY(POSITIVE(1),(1.,2.),#3);#15=KEY(LABEL('x'),$,#3);"
                                                   "#16=KEY(LABEL('a\\X2\\0062\\X0\\'),(1,3),#3);"
                                                   "#17=KEY(ANGLE((1,2,3)),(),#3);#18=KEY(ANGLE((1,3,2)),(),#3);"
                                                   "#19=KEY(COUNT(1),(),#3);#20=KEY(COUNT(9007199254740993),(),#3);"
                                                   "#21=KEY(COUNT(9007199254740992),(),#3);");
    const auto key = [&](std::uint64_t id, std::initializer_list<const char*> attributes) {
        std::vector<TextId> names;
        for (const char* name : attributes) names.push_back(judged.textId(name));
        std::string text;
        const bool isThere = judged.machine().appendKey(*judged.model().file().find(id), names, text);
        return isThere ? text : "none";
    };
    EXPECT_EQ(key(10, {"A", "B", "C"}), key(11, {"A", "B", "C"}));
    EXPECT_EQ(key(10, {"A"}), key(16, {"A"}));
    EXPECT_NE(key(10, {"A"}), key(12, {"A"}));
    EXPECT_EQ(key(13, {"A"}), key(14, {"A"}));
    EXPECT_EQ(key(13, {"A"}), key(19, {"A"}));
    EXPECT_NE(key(20, {"A"}), key(21, {"A"}));
    EXPECT_EQ(key(13, {"B"}), key(14, {"B"}));
    EXPECT_NE(key(13, {"C"}), key(14, {"C"}));
    EXPECT_NE(key(17, {"A"}), key(18, {"A"}));
    EXPECT_NE(key(10, {"B"}), key(16, {"B"}));
    EXPECT_EQ(key(10, {"D"}), key(16, {"D"}));
    EXPECT_NE(key(10, {"D"}), key(17, {"D"}));
    EXPECT_EQ(key(15, {"A", "B"}), "none");
    EXPECT_EQ(key(15, {"D"}), "none");
}

} // namespace velkor::rules
