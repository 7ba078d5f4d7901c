#include "velkor/rules/RuleCheck.h"

#include "ModelText.h"
#include "velkor/rules/RuleCatalogue.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <new>
#include <thread>

namespace velkor {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

std::unique_ptr<sdai::Model> modelOf(const std::string& release, const std::string& instances) {
    static std::vector<std::unique_ptr<std::string>> texts;
    texts.push_back(std::make_unique<std::string>(test::modelText(release, instances)));
    auto model = sdai::Model::fromText(*texts.back(), "test");
    EXPECT_TRUE(model);
    return std::move(*model);
}

std::vector<std::string> written(const RuleCheckResult& result) {
    std::vector<std::string> lines;
    for (const sdai::Problem& problem : result.problems)
        lines.push_back(problem.code + " #" + std::to_string(problem.instance) + ' ' + problem.rule);
    return lines;
}

std::vector<std::string> findings(const std::string& release, const std::string& instances,
                                  const RuleCheckOptions& options = {}) {
    return written(checkRules(*modelOf(release, instances), options));
}

sdai::Problem onlyFinding(const std::string& release, const std::string& instances) {
    const auto result = checkRules(*modelOf(release, instances));
    EXPECT_EQ(result.total, 1u) << testing::PrintToString(written(result));
    return result.problems.empty() ? sdai::Problem() : result.problems.front();
}

// What shapes need; they break no rule of their own.
const std::string geometry = "#90=IFCCARTESIANPOINT((0.,0.));#91=IFCAXIS2PLACEMENT2D(#90,$);#92=IFCCIRCLE(#91,1.);"
                             "#93=IFCCARTESIANPOINT((0.,0.,0.));#94=IFCAXIS2PLACEMENT3D(#93,$,$);"
                             "#95=IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,$,#92);#96=IFCCARTESIANPOINT((0.,1.,0.));";

std::string rooted(int id, const std::string& entity, const std::string& guid, const std::string& rest) {
    return '#' + std::to_string(id) + '=' + entity + "('" + guid + "'," + rest + ");";
}

} // namespace

TEST(RuleCheck, EveryKindOfRuleHasItsVerdict) {
    const std::string project = rooted(1, "IFCPROJECT", "1", "$,'n',$,$,$,$,$,$");
    const struct {
        const char* release;
        std::string instances;
        std::vector<std::string> findings;
    } cases[] = {
        // WHERE rules of entities, those of supertypes included.
        {"IFC4", "#1=IFCEXTRUDEDAREASOLID(#95,$,#2,1.);#2=IFCDIRECTION((0.,0.,1.));", {}},
        {"IFC4",
         "#1=IFCEXTRUDEDAREASOLID(#95,$,#2,1.);#2=IFCDIRECTION((1.,0.,0.));",
         {"where-rule #1 IfcExtrudedAreaSolid.ValidExtrusionDirection"}},
        {"IFC2X3",
         "#1=IFCRATIONALBEZIERCURVE(1,(#93,#96),.UNSPECIFIED.,.F.,.F.,(1.,0.));",
         {"where-rule #1 IfcRationalBezierCurve.WR2"}},
        {"IFC4", rooted(1, "IFCPROJECT", "1", "$,$,$,$,$,$,$,$"), {"where-rule #1 IfcProject.HasName"}},
        {"IFC4X3_ADD2",
         rooted(1, "IFCWALL", "1", "$,$,$,$,$,$,$,.USERDEFINED."),
         {"where-rule #1 IfcWall.CorrectPredefinedType"}},
        {"IFC4X3_ADD2", rooted(1, "IFCWALL", "1", "$,$,$,'thick',$,$,$,.USERDEFINED."), {}},
        // Of defined types: attributes, members, values of selects, types of types.
        {"IFC4", "#1=IFCCIRCLE(#91,0.);", {"where-rule #1 IfcPositiveLengthMeasure.WR1"}},
        {"IFC4", "#1=IFCCIRCLE(#91,$);#2=IFCCIRCLE(#91,'x');", {}},
        {"IFC4",
         "#1=IFCPROPERTYSINGLEVALUE('a',$,IFCPOSITIVELENGTHMEASURE(-1.),$);",
         {"where-rule #1 IfcPositiveLengthMeasure.WR1"}},
        {"IFC4",
         "#1=IFCPROPERTYLISTVALUE('a',$,(IFCPOSITIVELENGTHMEASURE(-1.),IFCPOSITIVELENGTHMEASURE(0.)),$);",
         {"where-rule #1 IfcPositiveLengthMeasure.WR1", "where-rule #1 IfcPositiveLengthMeasure.WR1"}},
        // Each where it stands: an aggregate before its members.
        {"IFC4",
         "#1=IFCPROPERTYENUMERATION('a',(IFCPOSITIVELENGTHMEASURE(0.),IFCPOSITIVELENGTHMEASURE(0.)),$);",
         {"element-not-unique #1 IFCPROPERTYENUMERATION.ENUMERATIONVALUES",
          "where-rule #1 IfcPositiveLengthMeasure.WR1", "where-rule #1 IfcPositiveLengthMeasure.WR1"}},
        {"IFC4",
         "#1=IFCPROPERTYSINGLEVALUE('a',$,IFCCOMPOUNDPLANEANGLEMEASURE((1,60,0)),$);",
         {"where-rule #1 IfcCompoundPlaneAngleMeasure.MinutesInRange"}},
        {"IFC4",
         "#1=IFCINDEXEDPOLYCURVE(#2,(IFCLINEINDEX((0,2))),.F.);#2=IFCCARTESIANPOINTLIST2D(((0.,0.),(1.,1.)));",
         {"where-rule #1 IfcPositiveInteger.WR1"}},
        // Global rules.
        {"IFC4", project, {}},
        {"IFC4",
         project + rooted(2, "IFCPROJECT", "2", "$,'n',$,$,$,$,$,$"),
         {"global-rule #0 IfcSingleProjectInstance.WR1"}},
        // UNIQUE: over subtypes, joint ones, with an unset attribute; the texts decoded.
        {"IFC4",
         rooted(1, "IFCDOORTYPE", "a", "$,'n',$,$,$,$,$,$,.DOOR.,.NOTDEFINED.,$,$") +
             rooted(2, "IFCWALL", "\\X\\61", "$,$,$,$,$,$,$,$") + rooted(3, "IFCWALL", "a", "$,$,$,$,$,$,$,$"),
         {"uniqueness-rule #2 IfcRoot.UR1", "uniqueness-rule #3 IfcRoot.UR1"}},
        {"IFC4", "#1=IFCWALL($,$,$,$,$,$,$,$,$);#2=IFCWALL($,$,$,$,$,$,$,$,$);", {}},
        {"IFC4",
         "#1=IFCAPPLICATION(#4,'1','n','i');#2=IFCAPPLICATION(#4,'1','m','j');#3=IFCAPPLICATION(#4,'1','n','k');"
         "#4=IFCORGANIZATION($,'o',$,$,$);",
         {"uniqueness-rule #3 IfcApplication.UR2"}},
        {"IFC4X4", project + rooted(2, "IFCPROJECT", "1", "$,$,$,$,$,$,$,$"), {"uniqueness-rule #2 IfcRoot.UR1"}},
        // INVERSE: one that is missing, one too many; a user that refers twice is one of a SET.
        {"IFC2X3", "#1=IFCLOCALPLACEMENT($,#94);", {"inverse-cardinality #1 IfcObjectPlacement.PlacesObject"}},
        {"IFC2X3", "#1=IFCLOCALPLACEMENT($,#94);" + rooted(2, "IFCFURNISHINGELEMENT", "2", "$,$,$,$,#1,$,$"), {}},
        {"IFC2X3",
         "#1=IFCLOCALPLACEMENT($,#94);" + rooted(2, "IFCFURNISHINGELEMENT", "2", "$,$,$,$,#1,$,$") +
             rooted(3, "IFCFURNISHINGELEMENT", "3", "$,$,$,$,#1,$,$"),
         {"inverse-cardinality #1 IfcObjectPlacement.PlacesObject"}},
        {"IFC4",
         rooted(1, "IFCWALL", "1", "$,$,$,$,$,$,$,$") + rooted(2, "IFCSPATIALZONE", "2", "$,$,$,$,$,$,$,$") +
             rooted(3, "IFCRELCONTAINEDINSPATIALSTRUCTURE", "3", "$,$,$,(#1,#1),#2"),
         {"element-not-unique #3 IFCRELCONTAINEDINSPATIALSTRUCTURE.RELATEDELEMENTS"}},
        {"IFC4",
         rooted(1, "IFCWALL", "1", "$,$,$,$,$,$,$,$") + rooted(2, "IFCSPATIALZONE", "2", "$,$,$,$,$,$,$,$") +
             rooted(3, "IFCRELCONTAINEDINSPATIALSTRUCTURE", "3", "$,$,$,(#1),#2") +
             rooted(4, "IFCRELCONTAINEDINSPATIALSTRUCTURE", "4", "$,$,$,(#1),#2"),
         {"inverse-cardinality #1 IfcElement.ContainedInStructure"}},
        // What the dictionary reports is passed over.
        {"IFC4", "#1=IFCNOTHING(-1.);#2=(IFCCIRCLE(#91,-1.)IFCWALL());#3=IFCCIRCLE;#4=IFCCIRCLE(", {}},
    };
    for (const auto& one : cases) {
        auto found = findings(one.release, geometry + one.instances);
        // Placements that place nothing, and curves that are in no shape, are none of the case's.
        EXPECT_EQ(found, one.findings) << one.release << ' ' << one.instances;
    }
}

TEST(RuleCheck, EqualMembersAreThoseOfOneValue) {
    const struct {
        const char* members;
        const char* found;
    } cases[] = {
        {"()", ""},
        {"(IFCLABEL('a'))", ""},
        {"(IFCLABEL('a'),IFCLABEL('b'),IFCLABEL('A'))", ""},
        {"(IFCLABEL('a'),IFCLABEL('b'),IFCLABEL('\\X\\61'))", "IFCLABEL('\\X\\61') at positions 1 and 3"},
        {"(IFCLABEL('a'),IFCTEXT('a'))", "IFCTEXT('a') at positions 1 and 2"},
        {"(IFCREAL(1.),IFCINTEGER(2),IFCINTEGER(1))", "IFCINTEGER(1) at positions 1 and 3"},
        {"(IFCREAL(0.),IFCREAL(-0.))", "IFCREAL(-0.) at positions 1 and 2"},
        {"(IFCREAL(9007199254740992.),IFCINTEGER(9007199254740993))", ""},
        {"(IFCBOOLEAN(.T.),IFCLOGICAL(.T.))", "IFCLOGICAL(.T.) at positions 1 and 2"},
        {"(IFCLABEL('1'),IFCINTEGER(1))", ""},
        {"(IFCCOMPLEXNUMBER((1.,2.)),IFCCOMPLEXNUMBER((2.,1.)),IFCCOMPLEXNUMBER((1,2)))",
         "IFCCOMPLEXNUMBER((1,2)) at positions 1 and 3"},
        {"($,$,*,IFCLABEL())", ""},
        {"(IFCLABEL('a'),IFCLABEL('a'", ""},
    };
    for (const auto& [members, found] : cases) {
        const auto result =
            checkRules(*modelOf("IFC2X3", std::string("#1=IFCPROPERTYENUMERATION('e',") + members + ",$);"),
                       {.codes = {{"element-not-unique"}, {}}});
        ASSERT_EQ(result.problems.size(), *found == '\0' ? 0u : 1u) << members;
        for (const sdai::Problem& problem : result.problems)
            EXPECT_THAT(problem.message, EndsWith(std::string("found ") + found));
    }
    // Instances are the same by identity, however they are written; long lists and sets within are told apart as well.
    std::string longList = "#7";
    for (int i = 100; i < 200; ++i) longList += ",#" + std::to_string(i);
    std::string points = geometry + "#7=IFCCARTESIANPOINT((0.,0.,0.));";
    for (int i = 100; i < 200; ++i) points += '#' + std::to_string(i) + "=IFCCARTESIANPOINT((0.,0.,0.));";
    EXPECT_THAT(findings("IFC4", points + "#1=IFCPOLYLOOP((" + longList + "));"), IsEmpty());
    EXPECT_THAT(onlyFinding("IFC4", points + "#1=IFCPOLYLOOP((" + longList + ",#0150,#7));").message,
                EndsWith("found #0150 at positions 52 and 102"));
    EXPECT_THAT(findings("IFC4", "#1=IFCPOLYLOOP((#8,#8,#8));"), IsEmpty()) << "there is no such instance";
}

TEST(RuleCheck, AFindingShowsRulePlaceAndValues) {
    const auto circle = onlyFinding("IFC4", geometry + "\n\n#1=IFCCIRCLE(#91, -1.);");
    EXPECT_EQ(circle.line, 3u);
    EXPECT_EQ(circle.message,
              "IFCCIRCLE.RADIUS breaks IfcPositiveLengthMeasure.WR1: expected that the value is above 0, "
              "found -1.");
    EXPECT_GT(circle.offset, geometry.size()) << "where the value stands";
    const auto project = onlyFinding("IFC4", rooted(1, "IFCPROJECT", "1", "$,$,$,$,$,$,$,$"));
    EXPECT_EQ(project.message,
              "IFCPROJECT breaks IfcProject.HasName: expected that Name is given; found #1 IFCPROJECT.NAME = $");
    EXPECT_EQ(project.severity, sdai::Severity::Error);
    const auto twin = onlyFinding("IFC4", rooted(1, "IFCWALL", "x", "$,$,$,$,$,$,$,$") +
                                              rooted(2, "IFCWALL", "x", "$,$,$,$,$,$,$,$"));
    EXPECT_THAT(twin.message, EndsWith("#2 has the same GlobalId 'x' as #1"));
    const auto placement = onlyFinding("IFC2X3", geometry + "#1=IFCLOCALPLACEMENT($,#94);");
    EXPECT_THAT(placement.message,
                EndsWith("expected to be referred to by 1 IFCPRODUCT by OBJECTPLACEMENT, found none"));
    // A rule that is itself wrong is judged as it stands.
    const auto clipping =
        onlyFinding("IFC4", geometry + "#1=IFCBOOLEANCLIPPINGRESULT(.DIFFERENCE.,#2,#3);"
                                       "#2=IFCSWEPTDISKSOLID(#4,1.,$,$,$);#3=IFCHALFSPACESOLID(#5,.T.);"
                                       "#4=IFCPOLYLINE((#93,#96));#5=IFCPLANE(#94);");
    EXPECT_EQ(clipping.rule, "IfcBooleanClippingResult.FirstOperandType");
    EXPECT_EQ(clipping.severity, sdai::Severity::Warning);
    EXPECT_THAT(clipping.message, HasSubstr("; the rule itself is faulty: it means IfcSweptDiskSolid"));
    // One that is at fault with capacitances alone.
    const std::string dimensions = "#2=IFCDIMENSIONALEXPONENTS(-2,-1,4,1,0,0,0);";
    EXPECT_EQ(
        onlyFinding("IFC2X3", "#1=IFCCONTEXTDEPENDENTUNIT(#2,.ELECTRICCAPACITANCEUNIT.,'f');" + dimensions).severity,
        sdai::Severity::Warning);
    EXPECT_EQ(onlyFinding("IFC2X3", "#1=IFCCONTEXTDEPENDENTUNIT(#2,.FORCEUNIT.,'f');" + dimensions).severity,
              sdai::Severity::Error);
}

TEST(RuleCheck, FindingsAreTheSameWhateverTheThreadsAndTheLimit) {
    std::string text = geometry + rooted(1, "IFCPROJECT", "0", "$,$,$,$,$,$,$,$");
    for (int i = 1000; i < 9000; ++i)
        text += i % 3 == 0   ? '#' + std::to_string(i) + "=IFCCIRCLE(#91,-1.);"
                : i % 3 == 1 ? rooted(i, "IFCPROJECT", std::to_string(i % 100), "$,$,$,$,$,$,$,$")
                             : '#' + std::to_string(i) + "=IFCPOLYLOOP((#93,#96,#93));";
    const auto model = modelOf("IFC4", text);
    const auto shown = [](const RuleCheckResult& result) {
        std::vector<std::string> lines;
        for (const auto& problem : result.problems)
            lines.push_back(std::to_string(problem.line) + ' ' + std::to_string(problem.offset) + ' ' +
                            problem.message);
        return lines;
    };
    const auto whole = checkRules(*model, {.jobs = 1});
    const auto lines = shown(whole);
    EXPECT_EQ(whole.total, lines.size());
    EXPECT_GT(whole.total, 10'000u);
    EXPECT_TRUE(std::ranges::is_sorted(whole.problems, {}, &sdai::Problem::offset));
    EXPECT_EQ(whole.problems[0].code, "global-rule");
    for (const std::size_t limit :
         {std::size_t{0}, std::size_t{1}, std::size_t{777}, std::size_t{5000}, defaultLimit}) {
        for (const unsigned jobs : {1U, 2U, 7U}) {
            const auto result = checkRules(*model, {.limit = limit, .jobs = jobs});
            EXPECT_EQ(result.total, whole.total);
            EXPECT_EQ(result.coverage.judgements, whole.coverage.judgements);
            EXPECT_EQ(result.coverage.instances, whole.coverage.instances);
            EXPECT_EQ(shown(result), std::vector(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(
                                                                                    std::min(limit, lines.size()))))
                << limit << ' ' << jobs;
        }
    }
}

TEST(RuleCheck, TheCallerFollowsAndEndsTheWork) {
    std::string text = geometry;
    for (int i = 1000; i < 41000; ++i) text += '#' + std::to_string(i) + "=IFCCIRCLE(#91,-1.);";
    const auto model = modelOf("IFC4", text);
    const auto whole = checkRules(*model);
    for (const unsigned jobs : {1U, 2U}) {
        const auto caller = std::this_thread::get_id();
        int calls = 0;
        std::uint64_t before = 0;
        const auto ended = checkRules(*model, {.progress =
                                                   [&](const ProgressStep& step) {
                                                       EXPECT_EQ(std::this_thread::get_id(), caller);
                                                       EXPECT_EQ(step.work, "Checking the rules");
                                                       EXPECT_LE(before, step.done);
                                                       EXPECT_LE(step.done, step.total);
                                                       before = step.done;
                                                       return ++calls < 3;
                                                   },
                                               .jobs = jobs});
        EXPECT_EQ(calls, 3);
        EXPECT_FALSE(ended.isComplete);
        EXPECT_GT(ended.total, 0u);
        EXPECT_LT(ended.total, whole.total);
    }
    EXPECT_TRUE(whole.isComplete);
    EXPECT_THROW(
        checkRules(*model, {.progress = [](const ProgressStep&) -> bool { throw std::bad_alloc(); }, .jobs = 2}),
        std::bad_alloc);
}

TEST(RuleCheck, RulesAndKindsAreChosen) {
    const std::string text = geometry + "#1=IFCCIRCLE(#91,-1.);#2=IFCPOLYLOOP((#93,#96,#93));" +
                             rooted(3, "IFCPROJECT", "1", "$,$,$,$,$,$,$,$") +
                             rooted(4, "IFCPROJECT", "1", "$,$,$,$,$,$,$,$");
    const auto all = findings("IFC4", text);
    EXPECT_THAT(all,
                ElementsAre("global-rule #0 IfcSingleProjectInstance.WR1", "where-rule #1 IfcPositiveLengthMeasure.WR1",
                            "element-not-unique #2 IFCPOLYLOOP.POLYGON", "where-rule #3 IfcProject.HasName",
                            "where-rule #4 IfcProject.HasName", "uniqueness-rule #4 IfcRoot.UR1"));
    EXPECT_THAT(findings("IFC4", text, {.rules = {"ifcroot.ur1"}}), ElementsAre(all[5]));
    EXPECT_THAT(findings("IFC4", text, {.rules = {"IfcProject.HasName", "IfcSingleProjectInstance"}}),
                ElementsAre(all[0], all[3], all[4]));
    EXPECT_THAT(findings("IFC4", text, {.rules = {"nothing"}}), IsEmpty());
    EXPECT_THAT(findings("IFC4", text, {.limit = 1, .codes = {{"uniqueness-rule", "where-rule"}, {"where-rule"}}}),
                ElementsAre(all[5]));
    const auto some = checkRules(*modelOf("IFC4", text), {.rules = {"IfcProject.HasName"}}).coverage;
    EXPECT_EQ(some.judgedRules, 1u);
    EXPECT_EQ(some.judgements, 2u);
    const auto coverage = checkRules(*modelOf("IFC4", text)).coverage;
    EXPECT_EQ(coverage.rules, ruleCounts("IFC4").total());
    EXPECT_EQ(coverage.judgedRules, coverage.rules);
    EXPECT_EQ(coverage.instances, 11u);
}

TEST(RuleCheck, WhatIsUnknownBreaksNothingAndIsCounted) {
    // A length that is a text is no number to compare.
    const auto result = checkRules(*modelOf("IFC4", geometry + "#1=IFCCIRCLE(#91,'x');#2=IFCCIRCLE(#91,'y');"));
    EXPECT_EQ(result.total, 0u);
    ASSERT_EQ(result.coverage.unknownByRule.size(), 1u);
    EXPECT_EQ(result.coverage.unknownByRule[0].rule, "IfcPositiveLengthMeasure.WR1");
    EXPECT_EQ(result.coverage.unknownByRule[0].count, 2u);
    EXPECT_EQ(result.coverage.unknown, 2u);
    EXPECT_EQ(result.coverage.undecided, 0u);
}

TEST(RuleCheck, ARuleBeyondItsBoundsIsReported) {
    // What a context derives from its parent has no end where the parents go round.
    const auto result =
        checkRules(*modelOf("IFC4", "#1=IFCGEOMETRICREPRESENTATIONSUBCONTEXT('a','b',*,*,*,*,#2,$,.MODEL_VIEW.,$);"
                                    "#2=IFCGEOMETRICREPRESENTATIONSUBCONTEXT('a','b',*,*,*,*,#1,$,.MODEL_VIEW.,$);"));
    EXPECT_GT(result.coverage.undecided, 0u);
    bool isTold = false;
    for (const auto& problem : result.problems) {
        if (problem.code != "rule-not-decided") continue;
        isTold = true;
        EXPECT_EQ(problem.severity, sdai::Severity::Warning);
        EXPECT_THAT(problem.message, AllOf(StartsWith("expected to decide " + problem.rule), HasSubstr("steps")));
    }
    EXPECT_TRUE(isTold);
}

TEST(RuleCatalogue, RulesAreFoundByNameAndListedByOwner) {
    const auto rule = ruleNamed("IFC4", "IFCPROJECT.hasname");
    ASSERT_TRUE(rule);
    EXPECT_EQ(rule->name, "IfcProject.HasName");
    EXPECT_EQ(rule->owner, "IfcProject");
    EXPECT_EQ(rule->kind, RuleKind::Where);
    EXPECT_THAT(rule->expression, HasSubstr("EXISTS"));
    EXPECT_EQ(rule->wording, "Name is given");
    EXPECT_EQ(rule->fault, "");
    EXPECT_NE(ruleNamed("IFC4", "IfcBooleanClippingResult.FirstOperandType")->fault, "");
    EXPECT_FALSE(ruleNamed("IFC2X3", "IfcTransformer.CorrectTypeAssigned"));
    EXPECT_FALSE(ruleNamed("IFC4", "WR1")) << "there are many";
    EXPECT_FALSE(ruleNamed("IFC9", "IfcProject.HasName"));
    EXPECT_THAT(nearestRules("IFC4", "IfcProject.HasNam"), testing::Contains("IfcProject.HasName"));
    std::vector<std::string> names;
    for (const RuleFacts& one : rulesOf("IFC4", "ifcproject")) names.push_back(one.name);
    EXPECT_TRUE(std::ranges::is_sorted(names));
    EXPECT_THAT(names, ElementsAre("IfcProject.CorrectContext", "IfcProject.HasName", "IfcProject.NoDecomposition"));
    for (const char* release :
         {"IFC2X3", "IFC4", "IFC4X1", "IFC4X2", "IFC4X3_RC1", "IFC4X3_RC3", "IFC4X3_ADD2", "IFC4X4"}) {
        const RuleCounts counts = ruleCounts(release);
        EXPECT_EQ(rulesOf(release).size(), counts.total());
        EXPECT_EQ(counts.where == 0, std::string(release) == "IFC4X4");
        EXPECT_GT(counts.unique, 0u);
    }
}

} // namespace velkor
