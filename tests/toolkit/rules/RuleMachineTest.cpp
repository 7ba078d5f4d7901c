// What expressions and statements give, by what ISO 10303-11 says of them.
#include "JudgedRules.h"
#include "Matchers.h"

namespace velkor::rules {

using test::points;
using test::shapes;

TEST(RuleMachine, ReasonsWithThreeValues) {
    test::expectVerdicts("", "Gone : OPTIONAL LOGICAL; Number : OPTIONAL INTEGER;", "#1=PROBE($,$);", R"(
        T TRUE AND TRUE
        F FALSE AND UNKNOWN
        F UNKNOWN AND FALSE
        F Gone AND FALSE
        F FALSE AND Gone
        U TRUE AND Gone
        U Gone AND Gone
        U UNKNOWN AND TRUE
        T UNKNOWN OR TRUE
        T TRUE OR UNKNOWN
        T Gone OR TRUE
        U FALSE OR Gone
        F FALSE OR FALSE
        T TRUE XOR FALSE
        F TRUE XOR TRUE
        U TRUE XOR Gone
        U UNKNOWN XOR UNKNOWN
        T NOT FALSE
        U NOT UNKNOWN
        U NOT Gone
        U Gone
        U 1
        T FALSE < UNKNOWN
        T UNKNOWN < TRUE
        T UNKNOWN = UNKNOWN
        T EXISTS(UNKNOWN)
        F EXISTS(Gone)
        U Number = 1
        U Number <> 1
        U Number = Number
        U Number :=: Number
        T NVL(Number, 3) = 3
        T NVL(4, 3) = 4
        U NVL(Number, ?) = 3
        U Number + 1 = 1
        U 1 IN ?
        U ? IN [1]
        F SIZEOF(TYPEOF(?)) > 0
        U SIZEOF(?) = 0
        U HIINDEX(?) = 0)");
}

TEST(RuleMachine, CalculatesWithNumbers) {
    test::expectVerdicts("", "N : NUMBER; I : INTEGER; R : REAL;", "#1=PROBE(2,9223372036854775807,7.5);", R"(
        T 7 / 2 = 3.5
        T 7 DIV 2 = 3
        T -7 DIV 2 = -4
        T 7 MOD 3 = 1
        T -7 MOD 3 = 2
        T 7.9 DIV 2.1 = 3
        T 2 ** 10 = 1024
        T 2 ** -1 = 0.5
        T 2.0 ** 0.5 > 1.41
        T -2 ** 2 = 4
        U 1 / 0 = 0
        U 1 DIV 0 = 0
        U 1 MOD 0 = 0
        U I + 1 > 0
        U I * 2 > 0
        U -2 - I < 0
        U 10 ** 30 > 0
        U SQRT(-1.0) = 0
        U LOG(0.0) = 0
        U 1.0E308 * 10.0 > 0
        T N = 2
        T N * 2 = 4
        T N = 2.0
        T R - 0.5 = 7
        U 1 + 'x' = 2
        T ABS(-3) = 3
        T ABS(-2.5) = 2.5
        T SQRT(16) = 4
        T ODD(3)
        F ODD(-4)
        T ODD(-3)
        T ATAN(1.0, 1.0) * 4.0 = PI
        U ATAN(0.0, 0.0) = 0
        T COS(0) = 1
        T SIN(0) = 0
        T TAN(0) = 0
        T ASIN(1.0) * 2.0 = PI
        T ACOS(1) = 0
        T EXP(0) = 1
        T LOG2(8) = 3
        T LOG10(1000) = 3
        T LOG(CONST_E) = 1
        T {1 <= N < 3}
        F {2 < N <= 3}
        F {1 <= N < 2}
        T VALUE('12') = 12
        T VALUE(' -1.5 ') = -1.5
        U VALUE('x') = 0
        T FORMAT(5, '') = '5'
        T FORMAT(5, '+4I') = '  +5'
        T FORMAT(2.25, '8.1F') = '     2.2'
        T FORMAT(-2.5, '6.1F') = '  -2.5'
        T FORMAT(12345.0, '10.2E') = '  1.23E+04'
        F 1 < 1
        T 1 <= 1
        F 1 > 1
        T 1 >= 1
        F 1 <> 1.0)");
}

TEST(RuleMachine, TakesTextsByCharacters) {
    // A word with U+00E4 in the middle, an apostrophe, and bits 0000 1111 without the first.
    test::expectVerdicts("", "Word : STRING; Quote : STRING; Bits : BINARY;",
                         R"(#1=PROBE('B\X2\00E4\X0\r','it''s',"10F");)", R"(
        T LENGTH(Word) = 3
        T Word[3] = 'r'
        U Word[4] = 'r'
        U Word[0] = 'B'
        T Word[1] = 'B'
        T Word[2:3] = Word[2] + 'r'
        U Word[2:4] = 'x'
        U Word[2:1] = ''
        T Quote = 'it''s'
        T LENGTH('') = 0
        T 'abc' + 'de' = 'abcde'
        T 'abc' < 'abd'
        T 'ab' < 'abc'
        F 'b' < 'abc'
        T 'A' < 'a'
        U 'a' = 1
        T BLENGTH(Bits) = 7
        T Bits = %0001111
        T Bits[4] = %1
        T Bits[3] = %0
        T Bits + %1 = %00011111
        T 'Bar' LIKE 'Bar'
        F 'Bar' LIKE 'Ba'
        T 'Bar' LIKE '@@@'
        F 'B1r' LIKE '@@@'
        T 'Bar' LIKE '^?r'
        F 'bar' LIKE '^?r'
        T 'B12' LIKE '@##'
        F 'B1x' LIKE '@##'
        T 'Barrel' LIKE 'Ba&'
        T 'Barrel' LIKE 'B*el'
        F 'Barrel' LIKE 'B*le'
        T 'one two' LIKE '$ two'
        F 'one two' LIKE '$'
        T 'a*b' LIKE 'a\*b'
        F 'aab' LIKE 'a\*b'
        T 'x' LIKE '!a'
        F 'a' LIKE '!a'
        T 'aaaaaaaaaaaaaaaab' LIKE '*a*a*a*a*a*b'
        U 1 LIKE '#')");
}

TEST(RuleMachine, IndexesAggregates) {
    test::expectVerdicts(shapes,
                         "L : LIST OF INTEGER; A : ARRAY [-1:1] OF OPTIONAL INTEGER; N : LIST OF LIST OF INTEGER;"
                         "S : SET OF Label; V : LIST OF Measure;",
                         "#1=PROBE((5,6,7),(1,$,3),((1,2),(),(3)),('a','b'),(LENGTH(2.),LABEL('x'),ANGLE((1,2,3))));",
                         R"(
        T SIZEOF(L) = 3
        T L[1] = 5
        T L[3] = 7
        U L[0] = 5
        U L[4] = 7
        U L[1.0] = 5
        T A[-1] = 1
        T A[1] = 3
        U A[2] = 3
        F EXISTS(A[0])
        T SIZEOF(A) = 3
        T LOINDEX(A) = -1
        T HIINDEX(A) = 1
        T LOBOUND(A) = -1
        T HIBOUND(A) = 1
        T LOINDEX(L) = 1
        T HIINDEX(L) = 3
        T LOBOUND(L) = 0
        U HIBOUND(L) = 3
        T SIZEOF(N) = 3
        T SIZEOF(N[2]) = 0
        T N[3][1] = 3
        U N[2][1] = 3
        T V[3][2] = 2
        T V[1] = 2
        T V[2] = 'x'
        T SIZEOF(QUERY(x <* L | x > 5)) = 2
        T QUERY(x <* L | x > 5) = [6, 7]
        T SIZEOF(QUERY(x <* L | ?)) = 0
        T SIZEOF(QUERY(x <* [] | TRUE)) = 0
        U SIZEOF(QUERY(x <* ? | TRUE)) = 0
        T SIZEOF(QUERY(x <* L | SIZEOF(QUERY(y <* L | y < x)) = 1)) = 1
        T SIZEOF(QUERY(x <* A | EXISTS(x))) = 2
        T SIZEOF(QUERY(x <* N | SIZEOF(x) > 0)) = 2
        T QUERY(x <* S | x = 'b') = ['b']
        T SIZEOF([1 : 3]) = 3
        T [1 : 2, 5] = [1, 1, 5]
        T SIZEOF([1 : 0]) = 0
        U SIZEOF([1 : ?, 2]) = 1
        U SIZEOF([0, 1 : -1]) = 1
        T 6 IN L
        F 8 IN L
        U 8 IN A
        T 'b' IN S
        T VALUE_IN(L, 7)
        T VALUE_UNIQUE(L)
        F VALUE_UNIQUE([1, 2, 1.0])
        U VALUE_UNIQUE(A)
        F VALUE_UNIQUE([1, ?, 1]))");
}

TEST(RuleMachine, JoinsAndComparesAggregates) {
    test::expectVerdicts(
        shapes, "L : LIST OF INTEGER; S : SET OF INTEGER; T : SET OF INTEGER; A : ARRAY [1:2] OF OPTIONAL INTEGER;",
        "#1=PROBE((1,2),(2,1),(2,3),(1,$));", R"(
        T L + [3] = [1, 2, 3]
        T L + 3 = [1, 2, 3]
        T 3 + L = [3, 1, 2]
        T L + L = [1, 2, 1, 2]
        T SIZEOF(S + T) = 3
        T SIZEOF(S + 2) = 2
        T SIZEOF(S + L) = 2
        T SIZEOF([1, 1] + [1]) = 3
        T S * T = [2]
        T SIZEOF(S * T) = 1
        U SIZEOF(L * L) = 2
        T S - T = [1]
        T S - 1 = [2]
        T SIZEOF([1, 1, 2] - [1]) = 2
        T SIZEOF([1, 1, 2] * [1, 1]) = 2
        T SIZEOF(S * [1, 1]) = 1
        T SIZEOF([1, 1] * S) = 1
        T SIZEOF([1, 1] * [1, 2]) = 1
        T SIZEOF(L + S) = 2
        T 'SET' IN TYPEOF(L + S)
        T 'LIST' IN TYPEOF(L + [1])
        U SIZEOF(L - 1) = 1
        U SIZEOF(A + A) = 4
        U SIZEOF(S + ?) = 2
        T S = [1, 2]
        F L = [2, 1]
        T S = L
        F S = T
        U S = 1
        U A = [1, 2]
        F A = [2, 2]
        T S <= [1, 2, 3]
        F S <= T
        T [1, 2, 3] >= S
        F [1, 1] <= S
        U S < T
        F L <> [1, 2]
        F [1, 2] = [1, 2, 3]
        T [[1], [2]] = [[1], [2]]
        F [[1], [2]] = [[1], [3]])");
}

TEST(RuleMachine, KnowsTypesOfValues) {
    test::expectVerdicts(shapes,
                         "P : Positive; M : Measure; A : Anything; E : Shape; C : Colour; T : Tone; B : BOOLEAN; G : "
                         "Angle; I : INTEGER; Y : Truth;",
                         "#1=PROBE(1.5,LABEL('x'),#6,#5,.RED.,.RED.,.T.,(1,2,3),4,.F.);"
                         "#2=POINT((0.,0.));#5=LINE((#2,#2),#2,$);#6=RAY((#2,#2),#2,*);",
                         R"(
        T 'SAMPLE.POSITIVE' IN TYPEOF(P)
        T 'SAMPLE.LENGTH' IN TYPEOF(P)
        T 'SAMPLE.MEASURE' IN TYPEOF(P)
        T 'SAMPLE.ANYTHING' IN TYPEOF(P)
        F 'SAMPLE.LABEL' IN TYPEOF(P)
        T 'REAL' IN TYPEOF(P)
        T 'NUMBER' IN TYPEOF(P)
        T 'SAMPLE.BASIC' IN TYPEOF(P)
        T SIZEOF(TYPEOF(P)) = 7
        T 'SAMPLE.LABEL' IN TYPEOF(M)
        T 'SAMPLE.MEASURE' IN TYPEOF(M)
        F 'SAMPLE.LENGTH' IN TYPEOF(M)
        T 'STRING' IN TYPEOF(M)
        T 'SAMPLE.RAY' IN TYPEOF(A)
        T 'SAMPLE.LINE' IN TYPEOF(A)
        T 'SAMPLE.SHAPE' IN TYPEOF(A)
        T 'SAMPLE.ANYTHING' IN TYPEOF(A)
        F 'SAMPLE.MEASURE' IN TYPEOF(A)
        F 'SAMPLE.RAY' IN TYPEOF(E)
        T SIZEOF(TYPEOF(A)) = 4
        T SIZEOF(TYPEOF(E)) = 3
        T SIZEOF(['SAMPLE.RAY', 'SAMPLE.POINT', 'SAMPLE.LABEL'] * TYPEOF(A)) = 1
        T 'SAMPLE.' + 'RAY' IN TYPEOF(A)
        T 'SAMPLE.COLOUR' IN TYPEOF(C)
        F 'SAMPLE.TONE' IN TYPEOF(C)
        T 'SAMPLE.ANYTHING' IN TYPEOF(C)
        T 'BOOLEAN' IN TYPEOF(B)
        T 'INTEGER' IN TYPEOF(I)
        T 'LOGICAL' IN TYPEOF(Y)
        F 'BOOLEAN' IN TYPEOF(Y)
        T 'SAMPLE.ANGLE' IN TYPEOF(G)
        T 'LIST' IN TYPEOF(G)
        T 'SET' IN TYPEOF(TYPEOF(G))
        T TYPEOF(E) <= TYPEOF(A)
        T C = RED
        F C = Colour.GREEN
        F C = T
        T T = Tone.RED
        T Colour.RED < Colour.BLUE
        F Colour.RED > C
        F EXISTS(A\Point.Coordinates)
        T EXISTS(A\Line.Points)
        F EXISTS(E\Ray.Points)
        T A\Line.Hue = Colour.BLUE
        T A.Hue = Colour.BLUE
        U E\Line.Hue = Colour.BLUE)");
}

TEST(RuleMachine, ReadsWhatFitsItsType) {
    test::expectVerdicts(
        shapes,
        "I : INTEGER; R : REAL; S : STRING; B : BOOLEAN; G : LOGICAL; C : Colour; P : Point; Q : Point; M : Measure;"
        "X : Measure; L : LIST OF INTEGER; Z : OPTIONAL Label; W : Measure;",
        "#1=PROBE(1.5,3,4,.U.,.U.,.PINK.,#9,#5,LENGTH('x'),COLOUR(.RED.),(1,'x',3,#2,,99999999999999999999),*,#2);#2="
        "POINT((0.,0.));"
        "#5=LINE((#2,#2),#2,$);",
        R"(
        F EXISTS(I)
        T R = 3
        F EXISTS(S)
        F EXISTS(B)
        T EXISTS(G)
        F EXISTS(C)
        F EXISTS(P)
        F EXISTS(Q)
        F EXISTS(M)
        F EXISTS(X)
        F EXISTS(W)
        T SIZEOF(L) = 6
        T L[3] = 3
        F EXISTS(L[2])
        F EXISTS(L[4])
        F EXISTS(L[5])
        T L[6] > 1.E19
        F EXISTS(Z))");
}

TEST(RuleMachine, TellsInstancesFromTheirValues) {
    test::expectVerdicts(shapes,
                         "A : Point; B : Point; C : Point; D : Line; E : Line; S : SET OF Point;"
                         "F : Line; G : Line;",
                         std::string(points) + "#1=PROBE(#2,#3,#4,#5,#6,(#2,#3,#4),#7,#8);"
                                               "#5=LINE((#2,#3),#3,$);#6=RAY((#2,#3),#3,*);#7=RAY((#2,#3),#4,*);"
                                               "#8=RAY((#3,#3),#3,*);",
                         R"(
        T A :=: A
        F B :=: C
        T B :<>: C
        T B = C
        F A = B
        T A <> B
        T D = D\Line
        U D = Shape() || Line(D.Points, D.First, D.Hue)
        F D = E
        T E = F
        F E = G
        T B IN S
        F Point([1., 2., 3.]) IN S
        T VALUE_IN(S, Point([1., 2., 3.]))
        F VALUE_IN(S, Point([2., 2., 3.]))
        T SIZEOF(S) = 3
        F VALUE_UNIQUE(S)
        T VALUE_UNIQUE([A, B])
        T [A, C] = [A, B]
        T S = [A, C, B]
        T S >= [C]
        F [A, B] :=: [A, C]
        T [A, B] :=: [A, B]
        T SIZEOF(S - B) = 2
        T SIZEOF(S + C) = 3
        T Point([1., 2., 3.]) = B
        T B = Shape() || Point([1., 2., 3.])
        F Point([1., 2., 3.]) :=: B
        F Point([1., 2.]) = B
        T SIZEOF([A] * [B]) = 0)");
}

TEST(RuleMachine, FollowsAttributes) {
    test::expectVerdicts(shapes, "D : Line; P : Point; Q : Point; B : Point;",
                         std::string(points) + "#1=PROBE(#5,#2,#4,#7);#5=LINE((#2,#2,#3),#3,$);#6=RAY((#3,#2),#4,*);"
                                               "#7=POINT((0.));#8=LINE((#3,#3),#7,$);#9=LINE((#3,#3),#7,$);",
                         R"(
        T D.Dim = 2
        T D.Twice = 4
        T D.Points[3].Dim = 3
        T SELF.D.Points[3].Coordinates[2] = 2
        T SIZEOF(P.Lines) = 2
        T SIZEOF(P.Ends) = 3
        T SIZEOF(Q.Lines) = 0
        T EXISTS(Q.Lines)
        T Q.Owner :=: Q.Owner
        T 'SAMPLE.RAY' IN TYPEOF(Q.Owner)
        F EXISTS(P.Owner)
        F EXISTS(B.Owner)
        T SIZEOF(QUERY(x <* P.Lines | 'SAMPLE.RAY' IN TYPEOF(x))) = 1
        T SIZEOF(USEDIN(P, 'SAMPLE.LINE.POINTS')) = 3
        T SIZEOF(USEDIN(Q, 'SAMPLE.LINE.FIRST')) = 1
        T SIZEOF(USEDIN(D, 'SAMPLE.PROBE.D')) = 1
        T SIZEOF(USEDIN(SELF, 'SAMPLE.PROBE.D')) = 0
        T SIZEOF(USEDIN(P, 'SAMPLE.RAY.POINTS')) = 1
        F EXISTS(D.Hue)
        T (Shape() || Line([P, Q], P, ?)).Dim = 2
        T SIZEOF(Point([1.]).Lines) = 0
        T SIZEOF(USEDIN(Point([1.]), 'SAMPLE.LINE.POINTS')) = 0
        F EXISTS(Point([1.]).Owner)
        T (Ray() || Shape() || Line([P, Q], P, ?)).Hue = Colour.BLUE)");
}

TEST(RuleMachine, RunsStatements) {
    const std::string functions =
        "FUNCTION Sum(l : LIST OF INTEGER) : INTEGER; LOCAL s : INTEGER := 0; END_LOCAL;\n"
        "  REPEAT i := 1 TO HIINDEX(l); IF l[i] < 0 THEN SKIP; END_IF; IF l[i] > 9 THEN ESCAPE; END_IF;\n"
        "    s := s + l[i]; END_REPEAT; RETURN (s); END_FUNCTION;\n"
        "FUNCTION Down(n : INTEGER) : LIST OF INTEGER; LOCAL r : LIST OF INTEGER := []; END_LOCAL;\n"
        "  REPEAT i := n TO 1 BY -2; r := r + i; END_REPEAT; RETURN (r); END_FUNCTION;\n"
        "FUNCTION Power2(limit : INTEGER) : INTEGER; LOCAL p : INTEGER := 1; END_LOCAL;\n"
        "  REPEAT WHILE p < limit; p := p * 2; END_REPEAT; REPEAT UNTIL TRUE; p := p + 1; END_REPEAT;\n"
        "  RETURN (p); END_FUNCTION;\n"
        "FUNCTION Named(n : INTEGER) : STRING; CASE n OF 1 : RETURN ('one'); 2, 3 : RETURN ('few');\n"
        "  OTHERWISE : RETURN ('many'); END_CASE; END_FUNCTION;\n"
        "FUNCTION Faculty(n : INTEGER) : INTEGER; IF n <= 1 THEN RETURN (1); ELSE RETURN (n * Faculty(n - 1)); "
        "END_IF;\n"
        "  END_FUNCTION;\n"
        "FUNCTION Nothing(n : INTEGER) : INTEGER; n := n + 1; END_FUNCTION;\n"
        "FUNCTION Squares(n : INTEGER) : ARRAY OF INTEGER; LOCAL a : ARRAY [0:n] OF INTEGER; "
        "END_LOCAL;\n"
        "  REPEAT i := 0 TO n; a[i] := i * i; END_REPEAT; RETURN (a); END_FUNCTION;\n"
        "FUNCTION Copies(l : LIST OF INTEGER) : INTEGER; LOCAL a, b : LIST OF INTEGER; END_LOCAL;\n"
        "  a := l; b := a; b[1] := 100; a[2] := 200; RETURN (a[1] + b[2] + l[1] + l[2]); END_FUNCTION;\n"
        "FUNCTION Nested(n : INTEGER) : INTEGER; LOCAL a, b : LIST OF LIST OF INTEGER; c : LIST OF INTEGER; "
        "END_LOCAL;\n"
        "  c := [n]; a := [c, c]; b := a; b[1][1] := 7; a[2][1] := 9; c[1] := 11;\n"
        "  RETURN (a[1][1] + a[2][1] * 10 + b[1][1] * 100 + b[2][1] * 1000 + c[1] * 10000); END_FUNCTION;\n"
        "FUNCTION Moved(p : Point) : REAL; LOCAL q : Point := p; END_LOCAL;\n"
        "  q.Coordinates[1] := q.Coordinates[1] + 10.0; RETURN (q.Coordinates[1] * 100. + p.Coordinates[1]);\n"
        "  END_FUNCTION;\n"
        "FUNCTION Shared(n : INTEGER) : REAL; LOCAL a, b : Point; END_LOCAL;\n"
        "  a := Shape() || Point([1., 2.]); b := a; b.Coordinates := [3., 4.]; a.Coordinates[2] := 5.0;\n"
        "  RETURN (a.Coordinates[1] + 10.0 * a.Coordinates[2] + 100.0 * b.Coordinates[2]); END_FUNCTION;\n"
        "FUNCTION Started(n : INTEGER) : INTEGER; LOCAL l : LIST OF INTEGER; END_LOCAL;\n"
        "  l[1] := n; l[2] := n + 1; RETURN (SIZEOF(l) * 100 + l[2]); END_FUNCTION;\n"
        "FUNCTION Beyond(n : INTEGER) : INTEGER; LOCAL l : LIST OF INTEGER := [1]; END_LOCAL;\n"
        "  l[5] := n; RETURN (SIZEOF(l)); END_FUNCTION;\n"
        "FUNCTION Gathered(n : INTEGER) : SET OF INTEGER; LOCAL s : SET OF INTEGER := []; END_LOCAL;\n"
        "  REPEAT i := 1 TO n; s := s + i; s := s + (i MOD 100); s := s + [i, n]; END_REPEAT; RETURN (s); "
        "END_FUNCTION;\n"
        "FUNCTION Grown(n : INTEGER) : INTEGER; LOCAL a, b, c : LIST OF INTEGER := [1]; d : SET OF INTEGER := []; "
        "END_LOCAL;\n"
        "  a := a + n; b := a; a := a + n; c := a; c := c + c; d := d + 1; d := d + 2; d[1] := 2; d := d + 1;\n"
        "  RETURN (SIZEOF(a) + 10 * SIZEOF(b) + 100 * SIZEOF(c) + 1000 * SIZEOF(d)); END_FUNCTION;\n"
        "FUNCTION Put(n : INTEGER) : LIST OF INTEGER; LOCAL l : LIST OF INTEGER := [1, 2]; END_LOCAL;\n"
        "  INSERT(l, n, 0); INSERT(l, n, 2); REMOVE(l, 4); RETURN (l); END_FUNCTION;\n"
        "PROCEDURE Raise(VAR n : INTEGER; by : INTEGER); n := n + by; END_PROCEDURE;\n"
        "FUNCTION Raised(n : INTEGER) : INTEGER; LOCAL l : LIST OF INTEGER := [n, 5]; END_LOCAL;\n"
        "  Raise(n, 2); ALIAS x FOR l[2]; x := x + n; END_ALIAS; RETURN (l[2]); END_FUNCTION;\n";
    test::expectVerdicts(shapes + functions, "P : Point; L : LIST OF INTEGER;", "#1=PROBE(#3,(1,2));#3=POINT((1.,2.));",
                         R"(
        T Sum([1, -5, 2, 10, 3]) = 3
        T Sum(?) = 0
        T Down(5) = [5, 3, 1]
        T Power2(100) = 129
        T Named(1) + Named(3) + Named(9) = 'onefewmany'
        T Faculty(10) = 3628800
        F EXISTS(Nothing(1))
        T Squares(3)[3] = 9
        T Squares(3)[0] = 0
        T SIZEOF(Squares(5000)) = 5001
        T Copies(L) = 6
        T L = [1, 2]
        T Nested(3) = 113793
        T Moved(P) = 1101.
        T P.Coordinates[1] = 1.
        T Shared(1) = 451.
        T Started(4) = 205
        U Beyond(4) = 1
        T SIZEOF(Gathered(20000)) = 20001
        T Grown(5) = 3623
        T Put(9) = [9, 1, 9]
        T Raised(3) = 10)");
}

} // namespace velkor::rules
