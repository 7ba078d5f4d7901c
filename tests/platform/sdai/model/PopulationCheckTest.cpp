#include "velkor/sdai/PopulationCheck.h"
#include "Matchers.h"
#include "SampleModel.h"

namespace velkor::sdai::test {

namespace {

using PopulationCheck = SampleModel;

/// Sound instances that those of a test may refer to; they stand on lines 9 to 12.
const std::string others = "#2=PART('p',*,NICKNAME('q'));\n#3=OTHER();\n#4=TWIG('t',*,#2);\n#5=UNKNOWN();\n";

std::string codes(const std::vector<Problem>& problems) {
    std::string result;
    for (const Problem& problem : problems) {
        if (problem.instance == 5) continue;
        EXPECT_EQ(problem.instance, 1u);
        EXPECT_EQ(problem.line, 8u);
        EXPECT_THAT(problem.message, HasSubstr("expected "));
        result += (result.empty() ? "" : " ") + problem.code;
    }
    return result;
}

} // namespace

TEST_F(PopulationCheck, JudgesEveryValueByTheTypeOfItsPlace) {
    // What is no token is the syntax check's to report.
    const auto cases = casesOf(R"(
        WEIGHT: 1.5 ->  | 1.x ->  | 1 -> integer-for-real | 'x' -> wrong-type | * -> wrong-type | #3 -> wrong-type
        COUNT: -1 ->  | 1. -> wrong-type
        FLAG: .F. ->  | .U. -> wrong-type | .RED. -> wrong-type
        TRUTH: .U. ->  | 1 -> wrong-type
        BITS: "0FF" ->  | "1FF" ->  | "0FFF" -> text-length | 'FF' -> wrong-type
        CODE: 'abc' ->  | '\X2\00E400F6\X0\c' ->  | 'ab' -> text-length | 'ab\X\E4d' -> text-length
        TINT: .BLUE. ->  | .PINK. -> unknown-enumerator | 'RED' -> wrong-type
        VALUE: NICKNAME('x') ->  | #2 ->  | #4 ->  | #5 ->  | #3 -> wrong-reference | #9 -> dangling-reference
        VALUE: 'x' -> untyped-value | LABEL('x') -> wrong-type | FOO('x') -> wrong-type | NICKNAME(1) -> wrong-type
        VALUE: COLOUR(.PINK.) -> unknown-enumerator | PAIR((1.,2.)) ->  | PAIR((1.)) -> aggregate-size
        EXTENT: (1.,2.) ->  | (1.,2.,3.) -> aggregate-size | (1.,$) -> wrong-type | 1. -> wrong-type
        TARGET: #3 ->  | #5 ->  | #2 -> wrong-reference | #9 -> dangling-reference | 'x' -> wrong-type
        TARGET: #99999999999999999999 -> dangling-reference | OTHER() -> wrong-type
        TINTS: (.RED.,.RED.) ->  | (.RED.) -> aggregate-size | (.RED.,.RED.,.RED.,.RED.) -> aggregate-size
        TINTS: (.RED.,.PINK.) -> unknown-enumerator
        GRID: () ->  | ((1,2),(3)) ->  | ((1),()) -> aggregate-size | ((1.),'x') -> wrong-type wrong-type | (1) -> wrong-type)");
    ASSERT_GT(cases.size(), 50u);
    for (const Case& one : cases) {
        const auto problems = checkPopulation(openHolder(one, others), {});
        EXPECT_EQ(codes(problems), one.expected) << one.subject << ' ' << one.text;
        for (const Problem& problem : problems) {
            if (problem.instance == 1) {
                EXPECT_THAT(problem.message, StartsWith("HOLDER." + one.subject + ": "));
            }
            EXPECT_EQ(problem.severity, problem.code == "integer-for-real" ? Severity::Warning : Severity::Error);
        }
    }
}

TEST_F(PopulationCheck, JudgesEntitiesAndTheirAttributes) {
    const std::string longest(255, 'x');
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"",
         {"OTHER()", "LEAF('n',1,((#2)))", "LEAF('" + longest + "',$,())", "(ROOT('n',1)OTHER())", "OTHER",
          "LEAF('n',1,((#2"}},
        {"attribute-count", {"OTHER(1)", "other(1)", "LEAF('n',1)"}},
        {"missing-value", {"LEAF($,$,((#2)))"}},
        {"wrong-type", {"LEAF('n',*,())"}},
        {"text-length", {"LEAF('" + longest + "x',$,())"}},
        {"value-of-derived", {"PART('n',1,#2)", "PART('n',$,#2)"}},
        {"abstract-entity", {"ROOT('n',1)"}},
        {"abstract-entity attribute-count", {"ROOT('n')"}},
        {"unknown-entity", {"NOTHING(1)", "(OTHER()NOTHING(1))"}}};
    for (const auto& [expected, instances] : cases) {
        for (const std::string& text : instances) {
            EXPECT_EQ(codes(checkPopulation(open("#1=" + text + ";\n" + others), {})), expected) << text;
        }
    }
}

TEST_F(PopulationCheck, TheCallerTellsWhatIsDerivedBesides) {
    const std::string instances = "#1=LEAF('n',*,());\n#2=LEAF(*,*,());\n#3=LEAF('n',1,());\n#4=LEAF('n',$,());\n"
                                  "#5=PART('p',*,$);\n";
    const Model& model = open(instances);
    const auto judged = [&](std::vector<DerivedSlot> slots) {
        PopulationCheckOptions options;
        options.derivedSlots = slots;
        std::string result;
        for (const Problem& one : checkPopulation(model, options))
            result += std::to_string(one.instance) + one.code + ' ';
        return result;
    };
    EXPECT_EQ(judged({}), "1wrong-type 2wrong-type 2wrong-type 5missing-value ");
    EXPECT_EQ(judged({{"LEAF", "size"}}), "2wrong-type 3value-of-derived 4value-of-derived 5missing-value ");
    EXPECT_EQ(judged({{"ROOT", "NAME"}}), "1value-of-derived 1wrong-type 2wrong-type 3value-of-derived "
                                          "4value-of-derived 5value-of-derived 5missing-value ")
        << "of subtypes as well";
    EXPECT_EQ(judged({{"NOTHING", "SIZE"}, {"LEAF", "NOTHING"}}), judged({}));
}

TEST_F(PopulationCheck, WhatIsNotWantedIsNotCounted) {
    const Model& model = open("#1=OTHER(1);\n#2=NOTHING();\n#3=OTHER(1);\n");
    PopulationCheckOptions options;
    options.limit = 1;
    options.choice = [](std::string_view code) { return code == "unknown-entity"; };
    std::uint64_t total = 0;
    const auto problems = checkPopulation(model, options, &total);
    ASSERT_EQ(problems.size(), 1u);
    EXPECT_EQ(problems[0].instance, 2u);
    EXPECT_EQ(total, 1u);
}

TEST_F(PopulationCheck, CountsAllKeepsTheFirstAndTellsItsProgress) {
    std::string data;
    for (int i = 1; i <= 20000; ++i) data += '#' + std::to_string(i) + "=OTHER(1);\n";
    const Model& model = open(data);
    std::vector<std::uint64_t> done;
    std::size_t enough = 1000;
    PopulationCheckOptions options;
    options.limit = 3;
    options.progress = [&](std::uint64_t now, std::uint64_t total) {
        EXPECT_EQ(total, model.file().text().size());
        done.push_back(now);
        return done.size() < enough;
    };
    std::uint64_t total = 0;
    const auto problems = checkPopulation(model, options, &total);
    EXPECT_EQ(total, 20000u);
    ASSERT_EQ(problems.size(), 3u);
    EXPECT_EQ(problems[2].line, 10u);
    EXPECT_THAT(problems[2].message, AllOf(HasSubstr("expected 0 attributes of OTHER"), HasSubstr("found 1")));
    EXPECT_EQ(done.size(), 2u);
    EXPECT_TRUE(std::ranges::is_sorted(done));
    // The caller has seen enough before the second look.
    enough = 4;
    checkPopulation(model, options, &total);
    EXPECT_EQ(total, 16384u);
}

} // namespace velkor::sdai::test
