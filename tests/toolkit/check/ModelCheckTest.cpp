#include "velkor/check/ModelCheck.h"

#include "ModelText.h"
#include "TemporaryModel.h"

#include <algorithm>
#include <gmock/gmock.h>

namespace velkor {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

std::vector<std::string> written(const CheckResult& result) {
    std::vector<std::string> lines;
    for (const sdai::Problem& problem : result.problems)
        lines.push_back(problem.code + " #" + std::to_string(problem.instance));
    return lines;
}

ModelCheckResult checked(const std::string& release, const std::string& instances,
                         const ModelCheckOptions& options = {}) {
    const std::string text = test::modelText(release, instances);
    const auto model = sdai::Model::fromText(text, "test");
    EXPECT_TRUE(model);
    return checkModel(**model, options);
}

ModelCheckOptions within(CheckScope scope) {
    ModelCheckOptions options;
    options.scope = scope;
    return options;
}

// One problem of each pass; an identifier that is too long and one that is used twice.
const std::string sample =
    "#1=IFCCIRCLE(#3,-1.);#2=IFCCIRCLE(#3,@);#3=IFCAXIS2PLACEMENT2D(#4,'x');#4=IFCCARTESIANPOINT((0.,0.));"
    "#5=IFCWALL('!000000000000000000000',$,$,$,$,$,$,$,$);"
    "#6=IFCWALL('!000000000000000000000',$,$,$,$,$,$,$,$);"
    "#7=IFCWALL('00000000000000000000001',$,$,$,$,$,$,$,$);";

} // namespace

TEST(ModelCheck, GoesAsFarAsItsScopeAndTellsEachThingOnce) {
    EXPECT_THAT(written(checked("IFC4", sample, within(CheckScope::Structure))), ElementsAre("token-invalid #2"));
    const auto dictionary = checked("IFC4", sample, within(CheckScope::Dictionary));
    EXPECT_THAT(written(dictionary), ElementsAre("token-invalid #2", "wrong-type #3", "text-length #7"));
    EXPECT_FALSE(dictionary.coverage);
    const auto everything = checked("IFC4", sample);
    EXPECT_THAT(written(everything),
                ElementsAre("where-rule #1", "token-invalid #2", "wrong-type #3", "guid-character #5",
                            "uniqueness-rule #6", "guid-character #6", "text-length #7"));
    EXPECT_EQ(everything.total, 7u);
    ASSERT_TRUE(everything.coverage);
    EXPECT_EQ(everything.coverage->instances, 7u);
}

TEST(ModelCheck, ChosenCodesUseUpNoLimit) {
    ModelCheckOptions options;
    options.limit = 2;
    options.codes.only = {"text-length", "guid-character", "where-rule"};
    options.codes.ignore = {"where-rule"};
    const auto result = checked("IFC4", sample, options);
    EXPECT_THAT(written(result), ElementsAre("guid-character #5", "guid-character #6"));
    EXPECT_EQ(result.total, 3u);
    options.codes = {};
    options.rules = {"IfcRoot.UR1"};
    EXPECT_THAT(written(checked("IFC4", sample, options)), ElementsAre("uniqueness-rule #6"));
}

TEST(ModelCheck, OnlyAnAsteriskStandsForWhatIsDerived) {
    for (const char* release : {"IFC2X3", "IFC4", "IFC4X1", "IFC4X2", "IFC4X3_RC1", "IFC4X3_RC3", "IFC4X3_ADD2"}) {
        const auto result =
            checked(release,
                    "#1=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);#2=IFCSIUNIT($,.LENGTHUNIT.,$,.METRE.);"
                    "#3=IFCSIUNIT(#4,.LENGTHUNIT.,$,.METRE.);#4=IFCDIMENSIONALEXPONENTS(1,0,0,0,0,0,0);",
                    within(CheckScope::Dictionary));
        EXPECT_THAT(written(result), ElementsAre("value-of-derived #2", "value-of-derived #3")) << release;
        EXPECT_THAT(result.problems[0].message, HasSubstr("expected * for a derived attribute, found $"));
    }
    // Not of the entity that does not derive it.
    EXPECT_THAT(written(checked("IFC2X3", "#1=IFCORIENTEDEDGE(*,#2,#3,.T.);#2=IFCVERTEX();#3=IFCEDGE(*,#2);",
                                within(CheckScope::Dictionary))),
                ElementsAre("value-of-derived #1", "wrong-type #3"));
}

TEST(ModelCheck, EveryCodeIsListed) {
    const auto codes = problemCodes();
    EXPECT_TRUE(std::ranges::is_sorted(codes));
    EXPECT_EQ(std::ranges::adjacent_find(codes), codes.end());
    for (const std::string& line : written(checked("IFC4", sample)))
        EXPECT_THAT(codes, testing::Contains(line.substr(0, line.find(' '))));
    for (const char* code : {"where-rule", "global-rule", "uniqueness-rule", "inverse-cardinality",
                             "element-not-unique", "rule-not-decided", "guid-character", "guid-duplicate",
                             "guid-first-character", "wrong-type", "string-not-closed", "schema-unknown"})
        EXPECT_THAT(codes, testing::Contains(code));
    EXPECT_THAT(codes, testing::Not(testing::Contains("guid-length"))) << "a text-length";
}

TEST(ModelCheck, AFileOfAnUnknownSchemaIsJudgedByItsStructure) {
    const test::TemporaryModel file("IFC9", "#2=IFCCIRCLE(#2,@);\n");
    const auto check = checkFile(file.path());
    ASSERT_TRUE(check);
    EXPECT_THAT(written(check->result), ElementsAre("schema-unknown #0", "token-invalid #2"));
    EXPECT_EQ(check->release, "");
    EXPECT_FALSE(check->result.coverage);
    ModelCheckOptions options;
    options.codes.ignore = {"schema-unknown", "token-invalid"};
    EXPECT_THAT(written(checkFile(file.path(), options)->result), IsEmpty());
    EXPECT_FALSE(checkFile("/no/such/file.ifc"));
}

} // namespace velkor
