// What follows from the two dictionaries alone.
#include "ConfiguredTest.h"
#include "ConvertedModel.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>

namespace velkor {

namespace {

using test::ConvertedModel;
using test::owner;
using test::toRelease;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

std::string guid(int number) {
    std::string text = "'000000000000000000000";
    return (text += static_cast<char>('A' + number)) += "'";
}

} // namespace

TEST(Release, TakesAttributesByNameAndLeavesNewOnesUnset) {
    const auto result = toRelease(
        "IFC2X3",
        owner + "#1=IFCDOOR(" + guid(1) + ",#94,'Door',$,$,$,$,'tag',2.1,0.9);#2=IFCSTAIRFLIGHT(" + guid(2) +
            ",#94,$,$,$,$,$,$,16,15,0.2,0.3);#3=IFCSITE(" + guid(3) + ",#94,$,$,$,$,$,$,.ELEMENT.,(1,2,3),$,0.,$,$);",
        "IFC4");
    EXPECT_EQ(result.record(1), "IFCDOOR(" + guid(1) + ",#94,'Door',$,$,$,$,'tag',2.1,0.9,$,$,$)");
    EXPECT_EQ(result.record(3), "IFCSITE(" + guid(3) + ",#94,$,$,$,$,$,$,.ELEMENT.,(1,2,3),$,0.,$,$)");
    EXPECT_THAT(result.problems(), IsEmpty());
    EXPECT_TRUE(result.report.isLossless());
    EXPECT_THAT(result.text, HasSubstr("FILE_SCHEMA(('IFC4'))"));
}

TEST(Release, CopiesWhatIsTheSameByteByByte) {
    const std::string untouched =
        "/* a comment */ #1 = IFCCARTESIANPOINT ( ( 0. , 1.E0 ) ) ;\r\n#2=IFCDIRECTION((1.,0.));";
    const auto result = toRelease("IFC2X3", untouched, "IFC4X3_ADD2");
    EXPECT_THAT(result.text, HasSubstr(untouched));
    EXPECT_EQ(result.report.kept, 2u);
}

TEST(Release, WritesWhatASubtypeAloneDerives) {
    // The dictionary of IFC4X1 does not carry what is derived; the two entities have the same attributes.
    const std::string text = "#1=IFCCARTESIANPOINT((0.,0.));#2=IFCCARTESIANTRANSFORMATIONOPERATOR2D($,$,#1,$);"
                             "#3=IFCPROFILEDEF(.AREA.,$);#4=IFCDERIVEDPROFILEDEF(.AREA.,$,#3,#2,$);"
                             "#5=IFCMIRROREDPROFILEDEF(.AREA.,$,#3,*,$);#6=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);";
    const auto result = toRelease("IFC4", text, "IFC4X1");
    EXPECT_EQ(result.record(4), "IFCDERIVEDPROFILEDEF(.AREA.,$,#3,#2,$)");
    EXPECT_EQ(result.record(5), "IFCMIRROREDPROFILEDEF(.AREA.,$,#3,*,$)");
    EXPECT_EQ(result.record(6), "IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)");
    EXPECT_THAT(result.problems(), IsEmpty());
}

TEST(Release, LeavesWhatItDoesNotUnderstand) {
    // An unknown entity, a wrong number of values, a value of another kind, a damaged and a complex statement, and
    // references to nothing.
    const std::string strange = "#1=IFCUNKNOWN(1);#2=IFCDOOR('x');#3=IFCDIRECTION((1.,);#4=(IFCLINE()IFCPOINT());";
    const auto result = toRelease(
        "IFC2X3", owner + strange + "#5=IFCDOOR(7,#94,#77,$,$,#88,$,$,'x',.T.);#6=IFCPOLYLINE((#1,#2,#99));", "IFC4");
    EXPECT_THAT(result.text, HasSubstr(strange));
    EXPECT_EQ(result.record(5), "IFCDOOR(7,#94,#77,$,$,#88,$,$,'x',.T.,$,$,$)");
    EXPECT_EQ(result.record(6), "IFCPOLYLINE((#1,#2,#99))");
    EXPECT_TRUE(result.report.isLossless());
}

TEST(Release, KeepsTheNameOfWhatBecomesItsSupertype) {
    const auto result =
        toRelease("IFC4",
                  owner + "#1=IFCWALLELEMENTEDCASE(" + guid(1) + ",#94,$,$,$,$,$,$,$);#2=IFCWALLELEMENTEDCASE(" +
                      guid(2) + ",#94,$,$,'mine',$,$,$,.SOLIDWALL.);",
                  "IFC4X3_ADD2");
    EXPECT_EQ(result.record(1), "IFCWALL(" + guid(1) + ",#94,$,$,'IFCWALLELEMENTEDCASE',$,$,$,$)");
    EXPECT_EQ(result.record(2), "IFCWALL(" + guid(2) + ",#94,$,$,'mine',$,$,$,.SOLIDWALL.)");
    EXPECT_EQ(result.count("supertype"), 2u);
}

TEST(Release, KeepsEnumeratorsThatTheTargetLacksAsTexts) {
    const auto result =
        toRelease("IFC4X3_ADD2",
                  owner + "#1=IFCWALL(" + guid(1) + ",#94,$,$,$,$,$,$,.WAVEWALL.);#2=IFCWALL(" + guid(2) +
                      ",#94,$,$,'mine',$,$,$,.WAVEWALL.);#3=IFCWALL(" + guid(3) + ",#94,$,$,$,$,$,$,.PARAPET.);",
                  "IFC4");
    EXPECT_THAT(result.problems(), IsEmpty());
    EXPECT_EQ(result.record(3), "IFCWALL(" + guid(3) + ",#94,$,$,$,$,$,$,.PARAPET.)");
    EXPECT_EQ(result.record(1), "IFCWALL(" + guid(1) + ",#94,$,$,'WAVEWALL',$,$,$,.USERDEFINED.)");
    EXPECT_EQ(result.record(2), "IFCWALL(" + guid(2) + ",#94,$,$,'mine',$,$,$,.NOTDEFINED.)");
    EXPECT_EQ(result.count("enumerator-as-text"), 1u);
    EXPECT_EQ(result.count("no-enumerator"), 1u);
}

TEST(Release, RepairsWhatRefersToSomethingDropped) {
    // A surface that IFC2X3 lacks: its representation has no other item, the product no other representation; a
    // second product keeps the rest of its own.
    const auto result =
        toRelease("IFC4",
                  owner +
                      "#1=IFCCARTESIANPOINT((0.,0.,0.));#2=IFCAXIS2PLACEMENT3D(#1,$,$);#3=IFCCYLINDRICALSURFACE(#2,1.);"
                      "#4=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,$,#2,$);#5=IFCSHAPEREPRESENTATION(#4,'Body','"
                      "Surface3D',(#3));"
                      "#6=IFCPRODUCTDEFINITIONSHAPE($,$,(#5));#7=IFCWALL(" +
                      guid(1) +
                      ",#94,'lost',$,$,$,#6,$,$);#8=IFCSHAPEREPRESENTATION(#4,'Body','GeometricSet',(#3,#1));"
                      "#9=IFCPRODUCTDEFINITIONSHAPE($,$,(#5,#8));#10=IFCWALL(" +
                      guid(2) + ",#94,'half',$,$,$,#9,$,$);",
                  "IFC2X3");
    EXPECT_THAT(result.problems(), IsEmpty());
    EXPECT_EQ(result.record(3), "");
    EXPECT_EQ(result.record(5), "");
    EXPECT_EQ(result.record(6), "");
    EXPECT_EQ(result.record(7), "IFCWALL(" + guid(1) + ",#94,'lost',$,$,$,$,$)");
    EXPECT_EQ(result.record(8), "IFCSHAPEREPRESENTATION(#4,'Body','GeometricSet',(#1))");
    EXPECT_EQ(result.record(9), "IFCPRODUCTDEFINITIONSHAPE($,$,(#8))");
    EXPECT_EQ(result.count("shape-lost"), 1u);
    EXPECT_EQ(result.count("required-lost"), 2u);
    EXPECT_FALSE(result.report.isLossless());
    // What others use stays.
    EXPECT_NE(result.record(2), "");
    EXPECT_EQ(result.report.lost, 3u);
}

TEST(Release, DropsChainsAndCyclesInLinearTime) {
    // Each item needs the one before; the first needs what the target lacks. One list has them all.
    constexpr int count = 20000;
    std::string text =
        "#1=IFCCARTESIANPOINT((0.,0.,0.));#2=IFCAXIS2PLACEMENT3D(#1,$,$);#3=IFCCYLINDRICALSURFACE(#2,1.);"
        "#4=IFCRECTANGULARTRIMMEDSURFACE(#3,0.,1.,0.,1.,.T.,.T.);";
    std::string all;
    for (int i = 5; i < count; ++i) {
        const std::string id = std::to_string(i);
        text.append("#").append(id).append("=IFCRECTANGULARTRIMMEDSURFACE(#").append(std::to_string(i - 1));
        text.append(",0.,1.,0.,1.,.T.,.T.);");
        all.append(",#").append(id);
    }
    text += "#1000000=IFCGEOMETRICSET((#1" + all + "));#1000001=IFCGEOMETRICSET((#1000001,#3));";
    const auto result = toRelease("IFC4", text, "IFC2X3");
    EXPECT_EQ(result.record(1000000), "IFCGEOMETRICSET((#1))");
    EXPECT_EQ(result.record(count - 1), "");
    EXPECT_EQ(result.record(1), "IFCCARTESIANPOINT((0.,0.,0.))");
}

class MappedRelease : public test::ConfiguredTest {};

TEST_F(MappedRelease, AsksTheDocumentOfTheSetUpFirst) {
    const test::TemporaryFolder folder;
    folder.file("site/ifc/releases.xml", R"(<Releases><Version from="2x3" to="4">
        <Mapping fromEntity="IfcSlab" toEntity="IfcRoof"/>
        <Mapping fromEntity="IfcWall" fromProperty="Tag" toProperty="Description"/>
        <Deprecation entity="IfcColumn"/>
        <Introduction entity="IfcPlate" property="PredefinedType" propertyValue="SHEET"/>
        <Introduction entity="IfcMember" property="PredefinedType" propertyValue="NOSUCH"/>
        </Version></Releases>)");
    Configuration configuration;
    configuration.collectionStandard = {{folder / "site"}};
    const PlatformSetup setup(configuration);
    const auto element = [](const char* entity, int number) {
        std::string text = "#" + std::to_string(number);
        return text.append("=").append(entity).append("(").append(guid(number)).append(",#94,$,$,$,$,$,'tag'");
    };
    const std::string text = owner + element("IFCSLAB", 1) + ",.FLOOR.);" + element("IFCWALL", 2) + ");" +
                             element("IFCCOLUMN", 3) + ");" + element("IFCPLATE", 4) + ");" + element("IFCMEMBER", 5) +
                             ");";
    const auto result = toRelease("IFC2X3", text, "IFC4", &setup);
    EXPECT_EQ(result.record(1), "IFCROOF(" + guid(1) + ",#94,$,$,'FLOOR',$,$,'tag',.USERDEFINED.)");
    EXPECT_EQ(result.record(2), "IFCWALL(" + guid(2) + ",#94,$,'tag',$,$,$,$,$)");
    EXPECT_EQ(result.record(3), "IFCBUILDINGELEMENTPROXY(" + guid(3) + ",#94,$,$,'IFCCOLUMN',$,$,'tag',$)");
    EXPECT_EQ(result.record(4), "IFCPLATE(" + guid(4) + ",#94,$,$,$,$,$,'tag',.SHEET.)");
    EXPECT_EQ(result.record(5), "IFCMEMBER(" + guid(5) + ",#94,$,$,$,$,$,'tag',$)");
    // Another pair of releases is not meant.
    EXPECT_THAT(toRelease("IFC2X3", text, "IFC4X1", &setup).record(1), HasSubstr("IFCSLAB"));
}

TEST(Release, LeavesModelsOfTheReleaseAsTheyAre) {
    const std::string text =
        "#1=IFCMATERIAL('a');#2=IFCWATERPROPERTIES(#1,$,$,$,$,$,$,$);#3=IFCRELSPACEBOUNDARY($,$,$,$,$,$,$,$,$);";
    const auto result = toRelease("IFC2X3", text, "IFC2X3");
    EXPECT_THAT(result.text, HasSubstr(text));
    EXPECT_EQ(result.report.kept, 3u);
}

TEST(Release, RefusesReleasesThatItDoesNotKnow) {
    EXPECT_THAT(toRelease("IFC4", "#1=IFCDIRECTION((1.,0.));", "IFC9").error, HasSubstr("IFC9"));
}

} // namespace velkor
