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

ConvertedModel again(const std::string& text, const Wanted& units) {
    return convertText(text, [&](const sdai::Model& model, files::OutputFile& output) {
        UnitOptions options;
        options.units = units;
        return convertUnits(model, options, output);
    });
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
        // Without units of their own in the project, measures are in the units that define them.
        {"IFC4", "IFCSTRUCTURALLOADLINEARFORCE($,1.,2.,$,3.,$,$)",
         "IFCSTRUCTURALLOADLINEARFORCE($,0.001,0.002,$,3.,$,$)"},
        {"IFC4", "IFCPROPERTYSINGLEVALUE('d',$,IFCMASSDENSITYMEASURE(2500.),$)",
         "IFCPROPERTYSINGLEVALUE('d',$,IFCMASSDENSITYMEASURE(2.5E-06),$)"},
        {"IFC4", "IFCPROPERTYSINGLEVALUE('u',$,IFCTHERMALTRANSMITTANCEMEASURE(0.2),$)",
         "IFCPROPERTYSINGLEVALUE('u',$,IFCTHERMALTRANSMITTANCEMEASURE(0.2),$)"},
        {"IFC4", "IFCPROPERTYSINGLEVALUE('p',$,IFCPRESSUREMEASURE(2.),$)",
         "IFCPROPERTYSINGLEVALUE('p',$,IFCPRESSUREMEASURE(2.),$)"},
        {"IFC4X3_ADD2", "IFCPOLYNOMIALCURVE(#11,(0.,1.),(0.,0.,0.,0.5),$)",
         "IFCPOLYNOMIALCURVE(#11,(0.,1.),(0.,0.,0.,5.E-07),$)"},
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

TEST(Units, KeepsValuesWhoseUnitAnotherInstanceNames) {
    const std::string cells = "#10=IFCTABLEROW((IFCLENGTHMEASURE(1.),IFCLABEL('(,'),IFCLENGTHMEASURE(2.)),.F.);"
                              "#11=IFCTABLE('t',(#10),(#12,#13,#14));#12=IFCTABLECOLUMN($,$,$,#1,$);"
                              "#13=IFCTABLECOLUMN($,$,$,$,$);#14=IFCTABLECOLUMN($,$,$,$,$);";
    EXPECT_EQ(inUnits("IFC4", cells, millimetres).record(10),
              "IFCTABLEROW((IFCLENGTHMEASURE(1.),IFCLABEL('(,'),IFCLENGTHMEASURE(2000.)),.F.)");
    const auto chosen = [](const std::string& unit) {
        return inMillimetres("IFC4", "IFCPROPERTYENUMERATEDVALUE('e',$,(IFCLENGTHMEASURE(1.)),#11)",
                             "#11=IFCPROPERTYENUMERATION('e',(IFCLENGTHMEASURE(1.))," + unit + ");");
    };
    EXPECT_THAT(chosen("#1"), HasSubstr("IFCLENGTHMEASURE(1.)"));
    EXPECT_THAT(chosen("$"), HasSubstr("IFCLENGTHMEASURE(1000.)"));
    const auto measured = [](const std::string& unit) {
        return inMillimetres("IFC4", "IFCTIMESERIESVALUE((IFCLENGTHMEASURE(1.)))",
                             "#11=IFCREGULARTIMESERIES('s',$,'','',.CONTINUOUS.,.MEASURED.,$," + unit + ",1.,(#10));");
    };
    EXPECT_THAT(measured("#1"), HasSubstr("(1.)"));
    EXPECT_THAT(measured("$"), HasSubstr("(1000.)"));
}

TEST(Units, TellsTemperaturesFromTheirDifferences) {
    const std::string unit = "#6=IFCSIUNIT(*,.THERMODYNAMICTEMPERATUREUNIT.,$,.KELVIN.);#7=IFCUNITASSIGNMENT((#6));"
                             "#8=IFCPROJECT('0000000000000000000001',$,$,$,$,$,$,$,#7);";
    const std::string values = "#10=IFCPROPERTYSINGLEVALUE('t',$,IFCTHERMODYNAMICTEMPERATUREMEASURE(293.15),$);"
                               "#11=IFCSTRUCTURALLOADTEMPERATURE($,18.,0.,$);";
    const auto in = [&](const char* release, const char* name) {
        return again(test::modelText(release, unit + values), {{"THERMODYNAMICTEMPERATUREUNIT", name}});
    };
    const auto celsius = in("IFC4", "DEGREE_CELSIUS");
    EXPECT_THAT(celsius.record(10), HasSubstr("(20.)"));
    EXPECT_THAT(celsius.record(11), HasSubstr("($,18.,0.,$)"));
    const auto fahrenheit = in("IFC4", "FAHRENHEIT");
    EXPECT_THAT(fahrenheit.record(10), HasSubstr("(68.)"));
    EXPECT_THAT(fahrenheit.record(11), HasSubstr("($,32.4,0.,$)"));
    EXPECT_THAT(fahrenheit.record(6), HasSubstr("IFCCONVERSIONBASEDUNITWITHOFFSET("));
    EXPECT_THAT(in("IFC2X3", "FAHRENHEIT").error, HasSubstr("another zero"));
    const auto back = again(fahrenheit.text, {{"THERMODYNAMICTEMPERATUREUNIT", "KELVIN"}});
    EXPECT_THAT(back.text, HasSubstr(values)) << fahrenheit.text;
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
    const std::string segment = "IFCCURVESEGMENT(.CONTINUOUS.,#21,IFCPARAMETERVALUE(0.),IFCPARAMETERVALUE(";
    EXPECT_EQ(inUnits("IFC4X3_ADD2", curves + "#32=" + segment + "1.5707963267948966),#30);", degrees).record(32),
              segment + "90.),#30)");
    EXPECT_EQ(inMillimetres("IFC4X3_ADD2", "IFCPOINTBYDISTANCEEXPRESSION(IFCLENGTHMEASURE(2.),$,1.,$,#20)", curves),
              "IFCPOINTBYDISTANCEEXPRESSION(IFCLENGTHMEASURE(2000.),$,1000.,$,#20)");
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

TEST(Units, SaysWhereCurvesOnSurfacesCannotFollow) {
    const std::string cylinder = "#40=IFCPCURVE(#41,#42);#41=IFCCYLINDRICALSURFACE(#45,1.);"
                                 "#43=IFCCARTESIANPOINT((1.,2.));#46=IFCVECTOR(#47,1.);";
    const auto line = inUnits("IFC4", cylinder + "#42=IFCLINE(#43,#46);", millimetres);
    EXPECT_EQ(line.count("shared-parameter-curve"), 1U) << "a line that would have to turn";
    EXPECT_EQ(line.record(46), "IFCVECTOR(#47,1.)");
    const auto shared = inUnits("IFC4", cylinder + "#42=IFCPOLYLINE((#43));#48=IFCVERTEXPOINT(#43);", millimetres);
    EXPECT_EQ(shared.count("shared-parameter-curve"), 1U);
    EXPECT_FALSE(shared.report.isLossless());
    EXPECT_EQ(inUnits("IFC4", cylinder + "#42=IFCPOLYLINE((#43));", millimetres).count("shared-parameter-curve"), 0U);

    const auto texture = inUnits("IFC4",
                                 "#10=IFCIMAGETEXTURE(.T.,.T.,$,#11,$,'a.png');#12=IFCCARTESIANPOINT((0.5,0.5));"
                                 "#11=IFCCARTESIANTRANSFORMATIONOPERATOR2D($,$,#12,$);",
                                 millimetres);
    EXPECT_EQ(texture.record(12), "IFCCARTESIANPOINT((0.5,0.5))");
}

TEST(Units, SaysWhatItDoesNotUnderstand) {
    const std::string strange = "#10=IFCNOTHING(1.);#11=(IFCVECTOR(#12,1.)IFCVECTOR(#12,1.));"
                                "#13=IFCCARTESIANPOINT((1.,2.),3.);#14=IFCCARTESIANPOINT((1.,2.;#15=IFCWALL((;";
    const auto result = inUnits("IFC4", "#9=IFCCARTESIANPOINT((1.E+307,0.));" + strange, millimetres);
    EXPECT_THAT(result.text, HasSubstr(strange));
    EXPECT_EQ(result.count("statement-kept"), 4U);
    EXPECT_EQ(result.count("number-kept"), 1U);
    EXPECT_EQ(result.record(9), "IFCCARTESIANPOINT((1.E+307,0.))");
    EXPECT_TRUE(inUnits("IFC4", strange, {{"LENGTHUNIT", "METRE"}}).report.isLossless()) << "nothing is to be done";
}

TEST(Units, ScalesMapConversionsByTheUnitOfTheMap) {
    const std::string map = "IFCMAPCONVERSION(#11,#12,1.,2.,3.,$,$,";
    EXPECT_EQ(inMillimetres("IFC4", map + "$)", "#12=IFCPROJECTEDCRS('E',$,$,$,$,$,#2);"), map + "0.001)");
    EXPECT_EQ(inMillimetres("IFC4", map + "0.5)", "#12=IFCPROJECTEDCRS('E',$,$,$,$,$,$);"),
              "IFCMAPCONVERSION(#11,#12,1000.,2000.,3000.,$,$,0.5)");
    // From one map to another the project has no say.
    EXPECT_EQ(inMillimetres("IFC4", map + "2.)",
                            "#11=IFCPROJECTEDCRS('E',$,$,$,$,$,#2);#12=IFCPROJECTEDCRS('F',$,$,$,$,$,#2);"),
              map + "2.)");
    const std::string rigid = "IFCRIGIDOPERATION(#11,#12,IFCLENGTHMEASURE(1.),IFCLENGTHMEASURE(2.),3.)";
    EXPECT_EQ(inMillimetres("IFC4X3_ADD2", rigid, "#12=IFCPROJECTEDCRS('E',$,$,$,$,$,#2);"), rigid);
    EXPECT_EQ(inMillimetres("IFC4X3_ADD2", rigid, "#12=IFCPROJECTEDCRS('E',$,$,$,$,$,$);"),
              "IFCRIGIDOPERATION(#11,#12,IFCLENGTHMEASURE(1000.),IFCLENGTHMEASURE(2000.),3000.)");
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

    const std::string own = "#20=IFCPROPERTYSINGLEVALUE('w',$,IFCLENGTHMEASURE(2.),#1);";
    std::string text = replaced.text;
    const auto both = again(text.insert(text.find("ENDSEC;END-"), own), millimetres);
    EXPECT_THAT(both.text, HasSubstr(own));
    EXPECT_EQ(both.record(1), replaced.record(1));
    EXPECT_EQ(both.records("IFCMEASUREWITHUNIT"), replaced.records("IFCMEASUREWITHUNIT")) << "what a used unit needs";
    EXPECT_EQ(both.report.rebuilt, 0U);

    const std::string point = "#10=IFCCARTESIANPOINT((1.,0.));";
    EXPECT_THAT(inUnits("IFC4", point, {{"LENGTHUNIT", "METRE"}}).text, HasSubstr(point));
}

TEST(Units, GivesBackWhatWentThereAndBack) {
    const std::string point = "IFCCARTESIANPOINT((0.1,2.54,1.,-0.333333333333333,12345.678,1.E-07))";
    for (const char* unit : {"INCH", "FOOT", "MILLIMETRE", "KILOMETRE", "MILE"}) {
        const auto there = inUnits("IFC4", "#10=" + point + ";", {{"LENGTHUNIT", unit}});
        const auto back = again(there.text, {{"LENGTHUNIT", "METRE"}});
        EXPECT_EQ(back.record(10), point) << unit << there.record(10);
    }
    // With units that others use, and what conversion-based units are made of: every instance, and no other.
    const std::string degrees = "#6=IFCDIMENSIONALEXPONENTS(0,0,0,0,0,0,0);#7=IFCMEASUREWITHUNIT("
                                "IFCPLANEANGLEMEASURE(0.0174532925199433),#8);#8=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,"
                                ".RADIAN.);#9=IFCCONVERSIONBASEDUNIT(#6,.PLANEANGLEUNIT.,'DEGREE',#7);";
    for (const char* others : {"", "#10=IFCPROPERTYSINGLEVALUE('w',$,IFCLENGTHMEASURE(2.),#1);",
                               "#10=IFCDERIVEDUNITELEMENT(#1,2);#11=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);"}) {
        const auto source = inUnits("IFC4", degrees + others, {});
        const auto inches = again(source.text, {{"LENGTHUNIT", "INCH"}});
        const auto back = again(inches.text, {{"LENGTHUNIT", "METRE"}});
        std::string text = back.text;
        std::erase(text, '\n');
        EXPECT_EQ(text, source.text) << inches.text;
        EXPECT_TRUE(back.report.isLossless());
        EXPECT_EQ(back.report.rebuilt, inches.report.added) << "the inch has gone again";
    }
}

TEST(Units, ExchangesTheUnitsOfAllContexts) {
    const std::string library = "#6=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);#7=IFCUNITASSIGNMENT((#6));"
                                "#8=IFCPROJECTLIBRARY('0000000000000000000002',$,$,$,$,$,$,$,#7);";
    const auto both = inUnits("IFC4", library, millimetres);
    EXPECT_EQ(both.record(1), "IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.)");
    EXPECT_EQ(both.record(7), "IFCUNITASSIGNMENT((#1))");
    EXPECT_EQ(both.record(6), "");
    const std::string other = "#6=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);";
    EXPECT_THAT(inUnits("IFC4", other + library.substr(library.find("#7")), millimetres).error,
                HasSubstr("different ones"));
}

TEST(Units, SaysWhatIsNoUnit) {
    EXPECT_THAT(inUnits("IFC4", "", {{"LENGTHUNIT", "METER"}}).error, HasSubstr("METRE"));
    EXPECT_THAT(inUnits("IFC4", "", {{"LENGHTUNIT", "METRE"}}).error, HasSubstr("LENGTHUNIT"));
    EXPECT_THAT(inUnits("IFC4", "", {{"MASSUNIT", "GRAM"}}).error, HasSubstr("no unit of type MASSUNIT"));
    EXPECT_THAT(inUnits("IFC4", "", {{"LENGTHUNIT", "INCH"}, {"lengthunit", "FOOT"}}).error, HasSubstr("two units"));
    // Units that say nothing of what they are worth.
    for (const char* unit :
         {"IFCCONTEXTDEPENDENTUNIT(#6,.LENGTHUNIT.,'brick')", "IFCCONVERSIONBASEDUNIT(#6,.LENGTHUNIT.,'brick',$)",
          "IFCCONVERSIONBASEDUNIT(#6,.LENGTHUNIT.,'brick',#7)"}) {
        const auto result = again(test::modelText("IFC4", std::string("#1=") + unit +
                                                              ";#4=IFCUNITASSIGNMENT((#1));#7=IFCMEASUREWITHUNIT("
                                                              "IFCLENGTHMEASURE(0.),#8);#8=IFCSIUNIT(*,.LENGTHUNIT.,$,"
                                                              ".METRE.);"),
                                  millimetres);
        EXPECT_THAT(result.error, HasSubstr("cannot be told of #1")) << unit;
    }
}

TEST(Units, KeepsWholeNumbersThatWouldNeedAFraction) {
    const std::string rate = "#9=IFCPROPERTYSINGLEVALUE('r',$,IFCINTEGERCOUNTRATEMEASURE(3),$);";
    const auto result =
        convertText(test::modelText("IFC4", "#1=IFCSIUNIT(*,.TIMEUNIT.,.KILO.,.SECOND.);#2=IFCUNITASSIGNMENT((#1));"
                                            "#3=IFCPROJECT('0000000000000000000001',$,$,$,$,$,$,$,#2);" +
                                                rate),
                    [&](const sdai::Model& model, files::OutputFile& output) {
                        UnitOptions options;
                        options.units = {{"TIMEUNIT", "SECOND"}};
                        return convertUnits(model, options, output);
                    });
    EXPECT_THAT(result.text, HasSubstr(rate));
    EXPECT_EQ(result.count("whole-number-kept"), 1u);
    EXPECT_FALSE(result.report.isLossless());
}

} // namespace velkor
