// Values in other units: what is converted, and what never is.
#include "ConvertedModel.h"

#include <gmock/gmock.h>

namespace velkor {

namespace {

using test::ConvertedModel;
using test::convertText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// A project in metres, square metres and radians.
const std::string project = "#1=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);#2=IFCSIUNIT(*,.AREAUNIT.,$,.SQUARE_METRE.);"
                            "#3=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);#4=IFCUNITASSIGNMENT((#1,#2,#3));"
                            "#5=IFCPROJECT('0000000000000000000001',$,$,$,$,$,$,$,#4);";

using Wanted = std::vector<std::pair<std::string, std::string>>;

ConvertedModel inUnits(const std::string& release, const std::string& instances, const Wanted& units) {
    return convertText(test::modelText(release, project + instances),
                       [&](const sdai::Model& model, files::OutputFile& output) {
                           UnitOptions options;
                           options.units = units;
                           return convertUnits(model, options, output);
                       });
}

const Wanted millimetres = {{"LENGTHUNIT", "MILLIMETRE"}};

/// What an instance becomes in millimetres.
std::string inMillimetres(const std::string& release, const std::string& record, const std::string& others = {}) {
    return inUnits(release, "#10=" + record + ";" + others, millimetres).record(10);
}

} // namespace

TEST(Units, ConvertsWhatMeasuresLengthsWhereverItStands) {
    const struct {
        const char* release;
        const char* before;
        const char* after;
    } cases[] = {
        {"IFC4", "IFCCARTESIANPOINT((1.,-2.5,0.))", "IFCCARTESIANPOINT((1000.,-2500.,0.))"},
        {"IFC4", "IFCCARTESIANPOINTLIST3D(((1.,2.,3.),(0.,1.E-3,4.)))",
         "IFCCARTESIANPOINTLIST3D(((1000.,2000.,3000.),(0.,1.,4000.)))"},
        {"IFC4", "IFCRECTANGLEPROFILEDEF(.AREA.,$,$,0.3,0.6)", "IFCRECTANGLEPROFILEDEF(.AREA.,$,$,300.,600.)"},
        {"IFC4", "IFCVECTOR(#11,2.)", "IFCVECTOR(#11,2000.)"},
        {"IFC4", "IFCDIRECTION((0.6,0.8))", "IFCDIRECTION((0.6,0.8))"},
        {"IFC4", "IFCEXTRUDEDAREASOLID(#11,#12,#13,3.)", "IFCEXTRUDEDAREASOLID(#11,#12,#13,3000.)"},
        {"IFC4", "IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,1.E-05,#11,$)",
         "IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,0.01,#11,$)"},
        {"IFC4", "IFCQUANTITYLENGTH('L',$,$,4.,$)", "IFCQUANTITYLENGTH('L',$,$,4000.,$)"},
        {"IFC4", "IFCQUANTITYCOUNT('n',$,$,4.,$)", "IFCQUANTITYCOUNT('n',$,$,4.,$)"},
        // Areas have a unit in this project, volumes are cubed lengths.
        {"IFC4", "IFCQUANTITYAREA('A',$,$,4.,$)", "IFCQUANTITYAREA('A',$,$,4.,$)"},
        {"IFC4", "IFCQUANTITYVOLUME('V',$,$,4.,$)", "IFCQUANTITYVOLUME('V',$,$,4.E+09,$)"},
        {"IFC4", "IFCPROPERTYSINGLEVALUE('w',$,IFCLENGTHMEASURE(2.),$)",
         "IFCPROPERTYSINGLEVALUE('w',$,IFCLENGTHMEASURE(2000.),$)"},
        {"IFC4", "IFCPROPERTYSINGLEVALUE('w',$,IFCPOSITIVELENGTHMEASURE(2.),#11)",
         "IFCPROPERTYSINGLEVALUE('w',$,IFCPOSITIVELENGTHMEASURE(2.),#11)"},
        {"IFC4", "IFCPROPERTYSINGLEVALUE('w',$,IFCREAL(2.),$)", "IFCPROPERTYSINGLEVALUE('w',$,IFCREAL(2.),$)"},
        {"IFC4", "IFCPROPERTYSINGLEVALUE('w',$,IFCLABEL('IFCLENGTHMEASURE(2.)'),$)",
         "IFCPROPERTYSINGLEVALUE('w',$,IFCLABEL('IFCLENGTHMEASURE(2.)'),$)"},
        {"IFC4", "IFCPROPERTYTABLEVALUE('t',$,(IFCLENGTHMEASURE(1.)),(IFCLENGTHMEASURE(2.)),$,#11,$,$)",
         "IFCPROPERTYTABLEVALUE('t',$,(IFCLENGTHMEASURE(1.)),(IFCLENGTHMEASURE(2000.)),$,#11,$,$)"},
        {"IFC4", "IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(25.4),#11)", "IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(25.4),#11)"},
        // Not sound, yet readable; what is no number stays.
        {"IFC4", "IFCCARTESIANPOINT((1,$,/*x*/2.))", "IFCCARTESIANPOINT((1000.,$,/*x*/2000.))"},
        {"IFC4", "IFCCARTESIANPOINT(('1.',#11,1.#INF))", "IFCCARTESIANPOINT(('1.',#11,1.#INF))"},
        {"IFC2X3", "IFCSITE('',$,$,$,$,$,$,$,.ELEMENT.,(1,2,3),$,5.,$,$)",
         "IFCSITE('',$,$,$,$,$,$,$,.ELEMENT.,(1,2,3),$,5000.,$,$)"},
        {"IFC2X3", "IFCLIGHTSOURCEPOSITIONAL($,#11,$,$,#12,1.,1.,10.,100.)",
         "IFCLIGHTSOURCEPOSITIONAL($,#11,$,$,#12,1000.,1.,0.01,1.E-04)"},
    };
    for (const auto& one : cases) EXPECT_EQ(inMillimetres(one.release, one.before), one.after);
}

TEST(Units, ConvertsParametersByTheCurveTheyAreOn) {
    const Wanted degrees = {{"PLANEANGLEUNIT", "DEGREE"}};
    const std::string curves =
        "#20=IFCCIRCLE(#21,1.);#22=IFCLINE(#23,#24);"
        "#30=IFCTRIMMEDCURVE(#20,(IFCPARAMETERVALUE(0.),#23),(IFCPARAMETERVALUE(3.141592653589793)),.T.,.PARAMETER.);"
        "#31=IFCTRIMMEDCURVE(#22,(IFCPARAMETERVALUE(0.)),(IFCPARAMETERVALUE(2.)),.T.,.PARAMETER.);";
    const auto result = inUnits("IFC4", curves, degrees);
    EXPECT_EQ(result.record(30),
              "IFCTRIMMEDCURVE(#20,(IFCPARAMETERVALUE(0.),#23),(IFCPARAMETERVALUE(180.)),.T.,.PARAMETER.)");
    EXPECT_EQ(result.record(31),
              "IFCTRIMMEDCURVE(#22,(IFCPARAMETERVALUE(0.)),(IFCPARAMETERVALUE(2.)),.T.,.PARAMETER.)");
    EXPECT_EQ(result.record(20), "IFCCIRCLE(#21,1.)");
    EXPECT_THAT(result.records("IFCCONVERSIONBASEDUNIT"), ElementsAre(HasSubstr("'DEGREE'")));
}

TEST(Units, MeasuresCurvesOnSurfacesByTheirParameters) {
    const std::string curve = "#40=IFCPCURVE(#41,#42);#42=IFCPOLYLINE((#43,#44));#43=IFCCARTESIANPOINT((1.,2.));#44="
                              "IFCCARTESIANPOINT((3.,4.));";
    const auto on = [&](const std::string& surface) {
        const auto result = inUnits("IFC4", curve + "#41=" + surface + ";", millimetres);
        return result.record(43) + result.record(44);
    };
    EXPECT_EQ(on("IFCPLANE(#45)"), "IFCCARTESIANPOINT((1000.,2000.))IFCCARTESIANPOINT((3000.,4000.))");
    EXPECT_EQ(on("IFCCYLINDRICALSURFACE(#45,1.)"), "IFCCARTESIANPOINT((1.,2000.))IFCCARTESIANPOINT((3.,4000.))");
    EXPECT_EQ(on("IFCSPHERICALSURFACE(#45,1.)"), "IFCCARTESIANPOINT((1.,2.))IFCCARTESIANPOINT((3.,4.))");
}

TEST(Units, ScalesMapConversionsByTheUnitOfTheMap) {
    const std::string map = "IFCMAPCONVERSION(#11,#12,1.,2.,3.,$,$,";
    EXPECT_EQ(inMillimetres("IFC4", map + "$)", "#12=IFCPROJECTEDCRS('E',$,$,$,$,$,#2);"), map + "0.001)");
    EXPECT_EQ(inMillimetres("IFC4", map + "0.5)", "#12=IFCPROJECTEDCRS('E',$,$,$,$,$,$);"),
              "IFCMAPCONVERSION(#11,#12,1000.,2000.,3000.,$,$,0.5)");
}

TEST(Units, RewritesTheAssignmentAndNothingThatUsesTheOldUnit) {
    const auto replaced = inUnits("IFC4", "", {{"lengthunit", "inch"}});
    EXPECT_THAT(replaced.record(1), HasSubstr("IFCCONVERSIONBASEDUNIT"));
    EXPECT_EQ(replaced.record(4), "IFCUNITASSIGNMENT((#1,#2,#3))");
    EXPECT_THAT(replaced.records("IFCMEASUREWITHUNIT"), ElementsAre(HasSubstr("IFCLENGTHMEASURE(0.0254)")));
    EXPECT_THAT(replaced.problems(), testing::Not(testing::Contains(HasSubstr("UNIT"))));

    const auto added = inUnits("IFC4", "#10=IFCPROPERTYSINGLEVALUE('w',$,IFCLENGTHMEASURE(2.),#1);", millimetres);
    EXPECT_EQ(added.record(1), "IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.)");
    EXPECT_EQ(added.record(10), "IFCPROPERTYSINGLEVALUE('w',$,IFCLENGTHMEASURE(2.),#1)");
    EXPECT_EQ(added.record(4), "IFCUNITASSIGNMENT((#11,#2,#3))");
    EXPECT_EQ(added.record(11), "IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)");

    const std::string point = "#10=IFCCARTESIANPOINT((1.,0.));";
    EXPECT_THAT(inUnits("IFC4", point, {{"LENGTHUNIT", "METRE"}}).text, HasSubstr(point));
}

TEST(Units, GivesBackWhatWentThereAndBack) {
    const std::string point = "IFCCARTESIANPOINT((0.1,2.54,1.,-0.333333333333333,12345.678,1.E-07))";
    for (const char* unit : {"INCH", "FOOT", "MILLIMETRE", "KILOMETRE", "MILE"}) {
        const auto there = inUnits("IFC4", "#10=" + point + ";", {{"LENGTHUNIT", unit}});
        const auto back = convertText(there.text, [&](const sdai::Model& model, files::OutputFile& output) {
            UnitOptions options;
            options.units = {{"LENGTHUNIT", "METRE"}};
            return convertUnits(model, options, output);
        });
        EXPECT_EQ(back.record(10), point) << unit << there.record(10);
    }
}

TEST(Units, SaysWhatIsNoUnit) {
    EXPECT_THAT(inUnits("IFC4", "", {{"LENGTHUNIT", "METER"}}).error, HasSubstr("METRE"));
    EXPECT_THAT(inUnits("IFC4", "", {{"LENGHTUNIT", "METRE"}}).error, HasSubstr("LENGTHUNIT"));
    EXPECT_THAT(inUnits("IFC4", "", {{"MASSUNIT", "GRAM"}}).error, HasSubstr("no unit of type MASSUNIT"));
}

} // namespace velkor
