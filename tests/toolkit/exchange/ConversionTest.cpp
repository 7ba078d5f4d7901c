// All steps one after the other.

#include "velkor/exchange/Conversion.h"
#include "Matchers.h"
#include "ModelText.h"
#include "velkor/files/ScratchFile.h"

#include <string>
#include <vector>

namespace velkor {

namespace {

using test::modelText;

struct Conversion {
    std::string text;
    FullReport report;
    std::string error;

    std::vector<std::string> steps() const {
        std::vector<std::string> names;
        for (const StepReport& step : report.steps) names.emplace_back(step.step);
        return names;
    }
};

Conversion converted(const std::string& source, const ConversionOptions& options) {
    Conversion result;
    const auto model = sdai::Model::fromText(source, "source");
    auto scratch = files::ScratchFile::create();
    if (!model || !scratch) return result;
    auto report = convertModel(**model, options, scratch->output());
    if (!report) {
        result.error = report.error();
        return result;
    }
    EXPECT_TRUE(scratch->output().commit());
    result.report = std::move(*report);
    result.text = *scratch->text();
    return result;
}

/// Two walls of one identifier and what IFC2X3 lacks.
const std::string walls = modelText("IFC4", "#1=IFCCOLOURRGBLIST(((0.,0.5,1.)));\n"
                                            "#2=IFCCARTESIANPOINT((0.,0.));/* a comment */\n"
                                            "#3=IFCPROJECT('0000000000000000000001',$,'P',$,$,$,$,$,$);\n"
                                            "#4=IFCPROJECT('0000000000000000000001',$,'Q',$,$,$,$,$,$);\n");

ConversionOptions releaseAndIdentifiers() {
    ConversionOptions options;
    options.release.emplace().release = "IFC4X3_ADD2";
    options.identifiers.emplace().repair = true;
    return options;
}

} // namespace

TEST(Conversion, WithoutStepsIsACopyOfEveryByte) {
    const std::string damaged = walls + "#5=IFCWALL(('\n";
    const Conversion copy = converted(damaged, {});
    EXPECT_EQ(copy.text, damaged);
    EXPECT_THAT(copy.steps(), IsEmpty());
    EXPECT_TRUE(copy.report.isLossless());
}

TEST(Conversion, TakesTheStepsInTheirOrderAndTellsPlacesOfTheSource) {
    // What the first step drops is a line less for the second one.
    std::string source = walls;
    source.replace(source.find("'IFC4'"), 6, "'IFC4X3_ADD2'");
    source.insert(source.find("#1="),
                  "\n#5=IFCAXIS2PLACEMENT2D(#7,$);\n#7=IFCCARTESIANPOINT((0.,0.));\n#6=IFCCLOTHOID(#5,1.);\n");
    ConversionOptions options = releaseAndIdentifiers();
    options.release->release = "IFC4";
    const Conversion both = converted(source, options);
    ASSERT_THAT(both.error, IsEmpty());
    EXPECT_THAT(both.steps(), ElementsAre("release", "identifiers"));
    EXPECT_THAT(both.text, AllOf(HasSubstr("FILE_SCHEMA(('IFC4'))"), HasSubstr("#2=IFCCARTESIANPOINT((0.,0.))"),
                                 HasSubstr("/* a comment */"), testing::Not(HasSubstr("#6="))));
    ASSERT_THAT(both.report.identifiers, SizeIs(1));
    EXPECT_EQ(both.report.identifiers[0].id, 4U);
    EXPECT_THAT(both.text, HasSubstr("#4=IFCPROJECT('" + both.report.identifiers[0].after + "'"));
    ASSERT_THAT(both.report.steps[1].uses, SizeIs(1));
    const Change& change = both.report.steps[1].uses[0].first.front();
    EXPECT_EQ(change.id, 4U);
    const auto model = sdai::Model::fromText(source, "source");
    EXPECT_EQ(change.line, (*model)->file().line(source.find("#4=")));
    EXPECT_EQ(change.line, 8U);
}

TEST(Conversion, LaterStepsWorkOnWhatEarlierOnesHaveLeft) {
    // The instance that an owner history is made for in IFC2X3 has no line of its own in the source.
    ConversionOptions options = releaseAndIdentifiers();
    options.release->release = "IFC2X3";
    const Conversion older = converted(walls, options);
    ASSERT_THAT(older.error, IsEmpty());
    EXPECT_FALSE(older.report.isLossless());
    EXPECT_FALSE(older.report.steps[0].isLossless());
    EXPECT_TRUE(older.report.steps[1].isLossless());
    const StepReport& second = older.report.steps[1];
    const auto result = sdai::Model::fromText(older.text, "result");
    ASSERT_TRUE(result);
    EXPECT_EQ(second.kept + second.converted, (*result)->file().instanceCount());
}

TEST(Conversion, SaysWhyThereIsNoResult) {
    ConversionOptions options = releaseAndIdentifiers();
    options.scratchBeside = "/no-such-folder/file";
    EXPECT_THAT(converted(walls, options).error, HasSubstr("between two steps"));
    options.identifiers.reset();
    EXPECT_THAT(converted(walls, options).error, IsEmpty());
    std::string many = walls;
    for (int i = 10; i < 200'000; ++i)
        many.insert(many.rfind("ENDSEC"), "#" + std::to_string(i) + "=IFCCOLOURRGBLIST(((0.,0.5,1.)));\n");
    options.release->release = "IFC2X3";
    options.progress = [](const ProgressStep&) { return false; };
    EXPECT_THAT(converted(many, options).error, HasSubstr("ended"));
    options.progress = {};
    options.release->release = "IFC5";
    EXPECT_THAT(converted(walls, options).error, HasSubstr("IFC5"));
}

TEST(Conversion, LimitAndTimeStampAreThoseAskedFor) {
    std::string data;
    for (int i = 1; i <= 9; ++i) (data += '#') += std::to_string(i) + "=IFCCOLOURRGBLIST(((0.,0.5,1.)));\n";
    ConversionOptions options;
    options.release.emplace().release = "IFC2X3";
    options.release->timeStamp = "2026-01-02T03:04:05";
    options.limit = 4;
    const Conversion older = converted(modelText("IFC4", data), options);
    ASSERT_THAT(older.report.steps, SizeIs(1));
    EXPECT_EQ(older.report.steps[0].lost, 9U);
    EXPECT_EQ(older.report.steps[0].uses[0].count, 9U);
    EXPECT_THAT(older.report.steps[0].uses[0].first, SizeIs(4));
    EXPECT_THAT(older.text, HasSubstr("'2026-01-02T03:04:05'"));
}

TEST(Conversion, AHeaderThatIsDamagedNamesNoOtherRelease) {
    std::string source = walls;
    source.erase(source.find("FILE_NAME("), source.find("FILE_SCHEMA(") - source.find("FILE_NAME("));
    ConversionOptions options = releaseAndIdentifiers();
    EXPECT_THAT(converted(source, options).error, HasSubstr("FILE_NAME"));
    options.release.reset();
    const Conversion repaired = converted(source, options);
    EXPECT_THAT(repaired.error, IsEmpty());
    EXPECT_EQ(repaired.text.substr(0, source.find("DATA;")), source.substr(0, source.find("DATA;")));
}

} // namespace velkor
