#include "Matchers.h"
#include "SampleModel.h"

#include <sstream>

namespace velkor::sdai::test {

namespace {

std::string nameOf(const Type& type) {
    return std::string(type.asDefined() ? type.asDefined()->name() : type.asEntity()->name());
}

/// What every conversion makes of a value, neutral answers left out.
std::string summary(const Primitive& value) {
    std::ostringstream out;
    if (!value.isSet()) out << " unset";
    if (const std::string text = value.asString(); !text.empty()) out << " s:" << text;
    if (const auto real = value.asReal()) out << " r:" << *real;
    if (const auto integer = value.asInteger()) out << " i:" << *integer;
    if (const auto boolean = value.asBoolean()) out << " b:" << *boolean;
    if (const auto logical = value.asLogical()) out << " l:" << static_cast<int>(*logical);
    if (!value.asBinary().empty()) out << " x:" << value.asBinary();
    if (const Enumeration enumeration = value.asEnumeration(); enumeration.type != nullptr || enumeration.value != -1) {
        out << " e:" << enumeration.value << enumeration.text();
    }
    if (const DXSdaiAppInstance* instance = value.asInstance()) out << " #" << instance->id();
    if (const Aggregate aggregate = value.asAggregate(); !aggregate.isNull()) out << " a:" << aggregate.memberCount();
    if (const Type* chosen = value.asSelect().chosenType()) out << " t:" << nameOf(*chosen);
    return out.str().empty() ? "" : out.str().substr(1);
}

std::vector<std::string> members(const Aggregate& aggregate) {
    std::vector<std::string> result;
    for (const Primitive member : aggregate) result.emplace_back(member.encoded());
    return result;
}

using Value = SampleModel;

} // namespace

TEST_F(Value, ConvertsToWhatItIsAndIsNeutralElse) {
    const auto cases = casesOf(R"(
        WEIGHT: 2.5 -> r:2.5 | 3 -> r:3 i:3 | -1.E3 -> r:-1000 i:-1000 | 1.#INF -> r:inf | 1.E400 -> r:inf | 1e2 -> r:100
        WEIGHT: .5 -> r:0.5 | $ -> unset |  /* none */ *  -> unset |  -> unset | 'x' -> s:x | @ -> 
        COUNT: 9223372036854775807 -> r:9.22337e+18 i:9223372036854775807 | 9223372036854775808 -> r:9.22337e+18
        COUNT: 9007199254740992. -> r:9.0072e+15
        FLAG: .T. -> b:1 l:1 | .F. -> b:0 l:0 | .MAYBE. -> 
        TRUTH: .U. -> l:2
        BITS: "0FF" -> x:0FF | "4F" -> 
        CODE: '\X2\00E4\X0\''b' -> s:ä'b | '' -> 
        TINT: .RED. -> i:0 e:0RED | .BLUE. -> i:2 e:2BLUE | .PINK. ->  | .T. -> b:1 l:1
        VALUE: NICKNAME('it''s') -> s:it's t:NICKNAME |  /* a */ NICKNAME /* b */ ( 'x' )  -> s:x t:NICKNAME
        VALUE: COLOUR(.BLUE.) -> i:2 e:2BLUE t:COLOUR | PAIR((1.,2.)) -> a:2 t:PAIR | CHOICE(PAIR((1.,2.))) -> t:CHOICE
        VALUE: LABEL(NICKNAME('x')) -> s:x t:LABEL | UNKNOWN('x') -> s:x | UNKNOWN(.RED.) ->  | 'x' -> s:x
        VALUE: #2 -> #2 t:PART | #9 ->  | NICKNAME ->  | NICKNAME( -> t:NICKNAME
        EXTENT: (1.,2.) -> a:2 | () -> a:0 | ( /* , */ ) -> a:0 | ($) -> a:1 | 7 -> r:7 i:7
        TARGET: #3 -> #3 t:OTHER | #0003 -> #3 t:OTHER | #99 ->  | #99999999999999999999 ->  | (#3) -> )");
    ASSERT_GT(cases.size(), 45u);
    for (const Case& one : cases) {
        openHolder(one, "#2=PART('p',*,NICKNAME('q'));\n#3=OTHER();\n");
        EXPECT_EQ(summary(value(one.subject)), one.expected) << one.subject << ' ' << one.text;
        EXPECT_EQ(instance(1).TestAttr(one.subject), one.expected != "unset") << one.text;
    }
    EXPECT_EQ(summary(Primitive()), "unset");
    EXPECT_TRUE(Primitive().asSelect().isNull());
}

TEST_F(Value, OfASelectIsTheChosenTypeAndWhatStandsUnderIt) {
    open("#1=HOLDER($,$,$,$,$,$,$,PAIR((1.5,2.5)),$,$,$,$);\n");
    const Select select = value("VALUE").asSelect();
    EXPECT_FALSE(select.isNull());
    EXPECT_EQ(select.underlyingValue().encoded(), "(1.5,2.5)");
    EXPECT_EQ(select.underlyingValue().declaredType(), select.chosenType());
    EXPECT_EQ(nameOf(*value("VALUE").declaredType()), "CHOICE");
    EXPECT_EQ(value("VALUE").encoded(), "PAIR((1.5,2.5))");

    AggregateIterator it(select.underlyingValue().asAggregate());
    for (int round = 0; round < 2; ++round, it.beginning()) {
        EXPECT_FALSE(it.current().isSet()) << "stands before the first member";
        EXPECT_TRUE(it.next());
        EXPECT_EQ(it.current().asReal(), 1.5);
        EXPECT_EQ(it.current().declaredType()->kind(), TypeKind::Real);
        EXPECT_TRUE(it.next());
        for (int behind = 0; behind < 2; ++behind) EXPECT_FALSE(it.next() || it.current().isSet());
    }
}

TEST_F(Value, AggregatesAreWalkedThroughNestingAndDamage) {
    using Members = std::vector<std::string>;
    for (const auto& [text, expected] : {std::pair("((1,2),(3))", Members{"(1,2)", "(3)"}),
                                         {"( /* ( */ (1) , /* , */\n () )", {"(1)", "()"}},
                                         {"(1,T((2),'),'),$)", {"1", "T((2),'),')", "$"}},
                                         {"(1,)", {"1", ""}},
                                         {"(,1)", {"", "1"}},
                                         {"((1,2", {"(1,2)"}},
                                         {"(", {}},
                                         {"(/* 1,/* 2)", {"1", "2"}}}) {
        openHolder({"GRID", text, ""}, "");
        EXPECT_EQ(members(value("GRID").asAggregate()), expected) << text;
        EXPECT_EQ(value("GRID").asAggregate().memberCount(), expected.size()) << text;
    }
    open("#1=HOLDER($,$,$,$,$,$,$,$,$,$,(.GREEN.,.RED.),((1,2),(3)));\n#2=LEAF('n',$,((#3,#3),(#3)));\n#3=PART('p',*,#"
         "2);\n");
    std::string walked;
    for (const Primitive tint : value("TINTS").asAggregate()) walked += tint.asEnumeration().text();
    for (const Primitive parts : instance(2).GetAttr("PARTS").asAggregate()) {
        for (const Primitive part : parts.asAggregate()) walked += std::to_string(part.asInstance()->id());
        walked += ';';
    }
    EXPECT_EQ(walked, "GREENRED33;3;");
    EXPECT_THAT(members(value("WEIGHT").asAggregate()), IsEmpty());
}

} // namespace velkor::sdai::test
