// Rules for what is no geometry: a model of a few lines each, and the result held to the dictionary.
#include "ConvertedModel.h"

#include <gmock/gmock.h>

namespace velkor {

namespace {

using test::ConvertedModel;
using test::owner;
using test::root;
using test::toRelease;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Instances, then what one of them becomes; nothing is wrong in the result.
void expectRecord(const std::string& from, const std::string& instances, const std::string& to, std::uint64_t id,
                  const std::string& record, const std::string& rule) {
    const ConvertedModel result = toRelease(from, owner + instances, to);
    EXPECT_EQ(result.record(id), record) << from << " to " << to;
    EXPECT_THAT(result.problems(), IsEmpty()) << result.text;
    EXPECT_GT(result.count(rule), 0u) << rule;
}

} // namespace

TEST(OtherRules, SayDatesAndTimesAsTextsAndBack) {
    const std::string dates = "#1=IFCCALENDARDATE(3,2,2009);#2=IFCCOORDINATEDUNIVERSALTIMEOFFSET(1,30,.AHEAD.);"
                              "#3=IFCLOCALTIME(7,5,9.5,#2,$);#4=IFCDATEANDTIME(#1,#3);";
    const std::string document = dates + "#5=IFCDOCUMENTINFORMATION('d','D',$,$,$,$,$,$,$,$,#4,$,$,#1,$,$,$);";
    expectRecord("IFC2X3", document, "IFC4", 5,
                 "IFCDOCUMENTINFORMATION('d','D',$,$,$,$,$,$,$,$,'2009-02-03T07:05:09.5+01:30',$,$,'2009-02-03',$,$,$)",
                 "date-to-text");
    EXPECT_THAT(toRelease("IFC2X3", owner + document, "IFC4").text, testing::Not(HasSubstr("IFCCALENDARDATE")));

    const auto back = toRelease(
        "IFC4",
        owner +
            "#5=IFCDOCUMENTINFORMATION('d','D',$,$,$,$,$,$,$,$,'2009-02-03T07:05:09.5-01:30',$,$,'2009-02-03',$,$,$);",
        "IFC2X3");
    EXPECT_THAT(back.problems(), IsEmpty());
    EXPECT_THAT(back.records("IFCCALENDARDATE"), ElementsAre("IFCCALENDARDATE(3,2,2009)", "IFCCALENDARDATE(3,2,2009)"));
    EXPECT_THAT(back.records("IFCCOORDINATEDUNIVERSALTIMEOFFSET"),
                ElementsAre("IFCCOORDINATEDUNIVERSALTIMEOFFSET(1,30,.BEHIND.)"));
    EXPECT_THAT(back.records("IFCLOCALTIME"), ElementsAre(HasSubstr("IFCLOCALTIME(7,5,9.5,#")));
    EXPECT_THAT(back.records("IFCDATEANDTIME").size(), 1u);
}

TEST(OtherRules, GiveTasksTheirTimesAndBack) {
    const std::string tasks = "#1=IFCCALENDARDATE(3,2,2009);#2=IFCTASK(" + root('A') +
                              ",'t',$,$,'T1',$,$,.F.,$);#3=IFCWORKSCHEDULE(" + root('B') +
                              ",'s',$,$,'S1',#1,$,$,$,$,#1,$,$,$);#4=IFCSCHEDULETIMECONTROL(" + root('C') +
                              ",$,$,$,$,$,$,#1,$,$,$,$,3600.,$,$,$,$,.T.,$,$,$,0.5);#5=IFCRELASSIGNSTASKS(" +
                              root('D') + ",$,$,(#2),$,#3,#4);";
    expectRecord("IFC2X3", tasks, "IFC4", 2, "IFCTASK(" + root('A') + ",'t',$,$,'T1',$,$,$,.F.,$,#4,$)",
                 "schedule-to-task-time");
    const auto result = toRelease("IFC2X3", owner + tasks, "IFC4");
    EXPECT_EQ(result.record(4), "IFCTASKTIME($,$,$,$,'PT3600S','2009-02-03T00:00:00',$,$,$,$,$,$,$,.T.,$,$,$,$,$,0.5)");
    EXPECT_EQ(result.record(5), "IFCRELASSIGNSTOCONTROL(" + root('D') + ",$,$,(#2),$,#3)");
    EXPECT_TRUE(result.report.isLossless());

    const auto back = test::convertText(result.text, [&](const sdai::Model& model, files::OutputFile& output) {
        ReleaseOptions options;
        options.release = "IFC2X3";
        return convertRelease(model, options, output);
    });
    EXPECT_THAT(back.problems(), IsEmpty());
    EXPECT_THAT(back.records("IFCSCHEDULETIMECONTROL"), ElementsAre(HasSubstr(",3600.,")));
    EXPECT_THAT(back.records("IFCRELASSIGNSTASKS"), ElementsAre(HasSubstr("(#2),$,#3,#4")));
}

TEST(OtherRules, GiveWhatReleasesRequire) {
    const auto bare = toRelease("IFC4", "#1=IFCBUILDING('000000000000000000000A',$,'b',$,$,$,$,$,$,$,$,$);", "IFC2X3");
    EXPECT_THAT(bare.problems(), IsEmpty());
    EXPECT_THAT(bare.record(1), HasSubstr(",.ELEMENT.,"));
    EXPECT_EQ(bare.records("IFCOWNERHISTORY").size(), 1u);
    EXPECT_EQ(bare.count("owner-history"), 1u);

    // One history for all; that of the model if there is one.
    const auto owned = toRelease("IFC4", owner + "#1=IFCWALL('000000000000000000000A',$,'b',$,$,$,$,$,$);", "IFC2X3");
    EXPECT_EQ(owned.record(1), "IFCWALL(" + root('A') + ",'b',$,$,$,$,$)");
    EXPECT_EQ(owned.records("IFCOWNERHISTORY").size(), 1u);

    const auto project = toRelease("IFC4", owner + "#1=IFCPROJECT(" + root('A') + ",'p',$,$,$,$,$,$);", "IFC2X3");
    EXPECT_THAT(project.problems(), IsEmpty());
    EXPECT_EQ(project.count("project-context"), 2u);
    const auto change =
        toRelease("IFC4",
                  "#90=IFCPERSON('p','Doe',$,$,$,$,$,$);#91=IFCORGANIZATION('o','O',$,$,$);#92="
                  "IFCPERSONANDORGANIZATION(#90,#91,$);"
                  "#93=IFCAPPLICATION(#91,'1','A','a');#94=IFCOWNERHISTORY(#92,#93,$,$,$,$,$,0);#1=IFCWALL(" +
                      root('A') + ",$,$,$,$,$,$,$);",
                  "IFC2X3");
    EXPECT_THAT(change.record(94), HasSubstr(".NOCHANGE."));
    EXPECT_NE(change.record(1), "");

    const std::string boundary = "#1=IFCSPACE(" + root('A') +
                                 ",$,$,$,$,$,$,.ELEMENT.,.INTERNAL.,$);#2=IFCRELSPACEBOUNDARY(" + root('B') +
                                 ",$,$,#1,$,$,.VIRTUAL.,.INTERNAL.);";
    expectRecord("IFC2X3", boundary, "IFC4", 2,
                 "IFCRELSPACEBOUNDARY(" + root('B') + ",$,$,#1,#95,$,.VIRTUAL.,.INTERNAL.)", "virtual-boundary");
    expectRecord("IFC4", "#1=IFCPROPERTYLISTVALUE('n',$,$,$);", "IFC2X3", 1, "IFCPROPERTYSINGLEVALUE('n',$,$,$)",
                 "valueless-property");
    expectRecord("IFC4X3_ADD2", "#1=IFCKERB(" + root('A') + ",$,$,$,$,$,$,$);", "IFC4X3_RC1", 1,
                 "IFCKERB(" + root('A') + ",$,$,$,$,$,$,.F.)", "required-flag");
    expectRecord("IFC2X3", "#1=IFCTEXTSTYLEFONTMODEL('Arial',$,$,$,$,IFCLENGTHMEASURE(3.));", "IFC4", 1,
                 "IFCTEXTSTYLEFONTMODEL('Arial',('Arial'),$,$,$,IFCLENGTHMEASURE(3.))", "font-family");
}

TEST(OtherRules, MakeElementsPlainerRatherThanLoseThem) {
    expectRecord("IFC4", "#1=IFCCIVILELEMENT(" + root('A') + ",'c',$,$,$,$,'t');", "IFC2X3", 1,
                 "IFCBUILDINGELEMENTPROXY(" + root('A') + ",'c',$,'IFCCIVILELEMENT',$,$,'t',$)", "plain-element");
    expectRecord("IFC4", "#1=IFCTENDON(" + root('A') + ",$,$,$,$,$,$,$,$,$,$,$,$,$,$,$);", "IFC2X3", 1,
                 "IFCBUILDINGELEMENTPROXY(" + root('A') + ",$,$,'IFCTENDON',$,$,$,$)", "plain-element");
    expectRecord("IFC4", "#1=IFCPROXY(" + root('A') + ",'x',$,$,$,$,.PRODUCT.,'t');", "IFC4X3_ADD2", 1,
                 "IFCBUILDINGELEMENTPROXY(" + root('A') + ",'x',$,$,$,$,'t',$)", "proxy-to-element");
}

TEST(OtherRules, KeepTheSpatialStructure) {
    const std::string bridge = "#1=IFCBRIDGE(" + root('A') + ",'b',$,$,$,$,$,.ELEMENT.,.ARCHED.);#2=IFCBRIDGEPART(" +
                               root('B') + ",'p',$,$,$,$,$,.PARTIAL.,.LATERAL.,.DECK.);#3=IFCRELAGGREGATES(" +
                               root('C') + ",$,$,#1,(#2));";
    expectRecord("IFC4X3_ADD2", bridge, "IFC4", 1,
                 "IFCBUILDING(" + root('A') + ",'b',$,'IFCBRIDGE',$,$,$,.ELEMENT.,$,$,$)", "facility-to-building");
    expectRecord("IFC4X3_ADD2", bridge, "IFC2X3", 2,
                 "IFCBUILDING(" + root('B') + ",'p',$,'IFCBRIDGEPART',$,$,$,.PARTIAL.,$,$,$)",
                 "facility-part-to-building");
    EXPECT_EQ(toRelease("IFC4X3_ADD2", owner + bridge, "IFC4").record(3),
              "IFCRELAGGREGATES(" + root('C') + ",$,$,#1,(#2))");
    expectRecord("IFC4", "#1=IFCSPATIALZONE(" + root('A') + ",'z',$,$,$,$,$,$);", "IFC2X3", 1,
                 "IFCSPACE(" + root('A') + ",'z',$,'IFCSPATIALZONE',$,$,$,.ELEMENT.,.NOTDEFINED.,$)", "zone-to-space");
    expectRecord("IFC4", "#1=IFCEXTERNALSPATIALELEMENT(" + root('A') + ",'o',$,$,$,$,$,$);", "IFC2X3", 1,
                 "IFCSPACE(" + root('A') + ",'o',$,'IFCEXTERNALSPATIALELEMENT',$,$,$,.ELEMENT.,.EXTERNAL.,$)",
                 "outside-to-space");
}

TEST(OtherRules, SayDoorsWindowsAndStylesAsTheReleaseDoes) {
    expectRecord("IFC2X3", "#1=IFCDOORSTYLE(" + root('A') + ",'d',$,$,$,$,$,.SINGLE_SWING_LEFT.,.NOTDEFINED.,.F.,.F.);",
                 "IFC4", 1, "IFCDOORTYPE(" + root('A') + ",'d',$,$,$,$,$,$,.NOTDEFINED.,.SINGLE_SWING_LEFT.,.F.,$)",
                 "style-to-type");
    expectRecord("IFC2X3", "#1=IFCWINDOWSTYLE(" + root('A') + ",'w',$,$,$,$,$,.NOTDEFINED.,.SINGLE_PANEL.,.F.,.F.);",
                 "IFC4X3_ADD2", 1, "IFCWINDOWTYPE(" + root('A') + ",'w',$,$,$,$,$,$,.NOTDEFINED.,.SINGLE_PANEL.,.F.,$)",
                 "style-to-type");
    expectRecord("IFC4", "#1=IFCDOORTYPE(" + root('A') + ",'d',$,$,$,$,$,$,.NOTDEFINED.,.SINGLE_SWING_LEFT.,$,$);",
                 "IFC2X3", 1, "IFCDOORSTYLE(" + root('A') + ",'d',$,$,$,$,$,.SINGLE_SWING_LEFT.,.NOTDEFINED.,.F.,.F.)",
                 "type-to-style");

    const std::string styles = "#1=IFCCARTESIANPOINT((0.,0.));#2=IFCCURVESTYLE('a',$,$,$);#3=IFCCURVESTYLE('b',$,$,$);";
    expectRecord("IFC2X3",
                 styles + "#4=IFCPRESENTATIONSTYLEASSIGNMENT((#2,#3));#5=IFCPRESENTATIONSTYLEASSIGNMENT((#2));#6="
                          "IFCSTYLEDITEM(#1,(#4,#5),$);",
                 "IFC4X3_ADD2", 6, "IFCSTYLEDITEM(#1,(#2,#3),$)", "style-assignment");
    const std::string without = "#1=IFCCARTESIANPOINT((0.,0.));#2=IFCSURFACESTYLE('a',.BOTH.,(#3));#3="
                                "IFCSURFACESTYLESHADING(#7,0.5);#7=IFCCOLOURRGB($,1.,0.,0.);";
    expectRecord("IFC4", without + "#6=IFCSTYLEDITEM(#1,(#2),$);", "IFC2X3", 3,
                 "IFCSURFACESTYLERENDERING(#7,0.5,$,$,$,$,$,$,.NOTDEFINED.)", "transparent-shading");
    EXPECT_EQ(toRelease("IFC4", without + "#6=IFCSTYLEDITEM(#1,(#2),$);#8=IFCSTYLEDITEM(#1,(#2),$);", "IFC2X3")
                  .records("IFCPRESENTATIONSTYLEASSIGNMENT")
                  .size(),
              1u);
}

TEST(OtherRules, RelatePropertySetsAsTheReleaseDoes) {
    const std::string sets = "#1=IFCPROPERTYSINGLEVALUE('p',$,IFCLABEL('x'),$);#2=IFCPROPERTYSET(" + root('B') +
                             ",'a',$,(#1));#3=IFCPROPERTYSET(" + root('C') + ",'b',$,(#1));#4=IFCWALL(" + root('D') +
                             ",$,$,$,$,$,$,$);";
    const auto several = toRelease("IFC4",
                                   owner + sets + "#5=IFCRELDEFINESBYPROPERTIES(" + root('E') +
                                       ",$,$,(#4),IFCPROPERTYSETDEFINITIONSET((#2,#3)));",
                                   "IFC2X3");
    EXPECT_THAT(several.problems(), IsEmpty());
    EXPECT_THAT(several.records("IFCRELDEFINESBYPROPERTIES"), ElementsAre(HasSubstr("(#4),#2"), HasSubstr("(#4),#3")));

    const std::string wall = "#4=IFCWALL(" + root('D') + ",$,$,$,$,$,$);";
    const auto overriding = toRelease(
        "IFC2X3",
        owner + "#1=IFCPROPERTYSINGLEVALUE('p',$,IFCLABEL('x'),$);#2=IFCPROPERTYSET(" + root('B') + ",'a',$,(#1));" +
            wall + "#6=IFCPROPERTYSINGLEVALUE('p',$,IFCLABEL('y'),$);#5=IFCRELOVERRIDESPROPERTIES(" + root('E') +
            ",$,$,(#4),#2,(#6));",
        "IFC4");
    EXPECT_THAT(overriding.problems(), IsEmpty());
    EXPECT_THAT(overriding.records("IFCPROPERTYSET"), ElementsAre(HasSubstr("(#1)"), HasSubstr("'a',$,(#6)")));
    EXPECT_EQ(overriding.records("IFCRELDEFINESBYPROPERTIES").size(), 2u);
    EXPECT_EQ(overriding.count("overriding-set"), 1u);
}

TEST(OtherRules, SayPropertiesOfMaterialsAndProfilesAsTheReleaseDoes) {
    const std::string steel =
        "#1=IFCMATERIAL('steel');#2=IFCMECHANICALSTEELMATERIALPROPERTIES(#1,$,2.1E+11,$,0.3,$,2.35E+08,$,$,$,$,$,$);";
    const auto forward = toRelease("IFC2X3", owner + steel, "IFC4");
    EXPECT_THAT(forward.problems(), IsEmpty());
    EXPECT_EQ(forward.record(2), "IFCMATERIALPROPERTIES('Pset_MaterialSteel',$,(#95,#96,#97),#1)");
    EXPECT_EQ(forward.record(95), "IFCPROPERTYSINGLEVALUE('YoungModulus',$,IFCMODULUSOFELASTICITYMEASURE(2.1E+11),$)");
    EXPECT_TRUE(forward.report.isLossless());
    const auto back = test::convertText(forward.text, [&](const sdai::Model& model, files::OutputFile& output) {
        ReleaseOptions options;
        options.release = "IFC2X3";
        return convertRelease(model, options, output);
    });
    EXPECT_EQ(back.record(2), "IFCMECHANICALSTEELMATERIALPROPERTIES(#1,$,2.1E+11,$,0.3,$,2.35E+08,$,$,$,$,$,$)");
    EXPECT_THAT(back.problems(), IsEmpty());

    const std::string material = "#1=IFCMATERIAL('m',$,$);#3=IFCPROPERTYSINGLEVALUE('Own',$,IFCLABEL('x'),$);";
    expectRecord("IFC4", material + "#2=IFCMATERIALPROPERTIES('Mine',$,(#3),#1);", "IFC2X3", 2,
                 "IFCEXTENDEDMATERIALPROPERTIES(#1,(#3),$,'Mine')", "properties-to-attributes");
    expectRecord("IFC2X3",
                 "#1=IFCMATERIAL('m');#3=IFCPROPERTYSINGLEVALUE('Own',$,IFCLABEL('x'),$);#2="
                 "IFCEXTENDEDMATERIALPROPERTIES(#1,(#3),$,'Mine');",
                 "IFC4", 2, "IFCMATERIALPROPERTIES('Mine',$,(#3),#1)", "attributes-to-properties");
    expectRecord("IFC2X3", "#1=IFCGENERALPROFILEPROPERTIES('p',$,12.,$,$,$,0.5);", "IFC4", 1,
                 "IFCPROFILEPROPERTIES('Pset_ProfileMechanical',$,(#96,#97),#95)", "attributes-to-properties");
    const auto profile = toRelease(
        "IFC4",
        owner + "#1=IFCPROFILEDEF(.AREA.,'p');#3=IFCPROPERTYSINGLEVALUE('Perimeter',$,IFCPOSITIVELENGTHMEASURE(2.),$);"
                "#4=IFCPROPERTYSINGLEVALUE('Own',$,IFCLABEL('x'),$);#2=IFCPROFILEPROPERTIES('Mine',$,(#3,#4),#1);",
        "IFC2X3");
    EXPECT_EQ(profile.record(2), "IFCGENERALPROFILEPROPERTIES('p',$,$,2.,$,$,$)");
    EXPECT_EQ(profile.count("profile-property-lost"), 1u);
}

TEST(OtherRules, ListTheMaterialsOfProfilesAndConstituents) {
    const std::string parts = "#1=IFCMATERIAL('a',$,$);#2=IFCMATERIAL('b',$,$);#3=IFCPROFILEDEF(.AREA.,'p');#4="
                              "IFCMATERIALPROFILE($,$,#1,#3,$,$);"
                              "#5=IFCMATERIALPROFILE($,$,#2,#3,$,$);#6=IFCMATERIALPROFILESET($,$,(#4,#5),$);#7="
                              "IFCMATERIALPROFILESETUSAGE(#6,5,$);"
                              "#8=IFCBEAM(" +
                              root('A') + ",$,$,$,$,$,$,$);";
    expectRecord("IFC4", parts + "#9=IFCRELASSOCIATESMATERIAL(" + root('B') + ",$,$,(#8),#7);", "IFC2X3", 9,
                 "IFCRELASSOCIATESMATERIAL(" + root('B') + ",$,$,(#8),#6)", "materials-to-list");
    expectRecord("IFC4", parts + "#9=IFCRELASSOCIATESMATERIAL(" + root('B') + ",$,$,(#8),#7);", "IFC2X3", 6,
                 "IFCMATERIALLIST((#1,#2))", "materials-to-list");
    expectRecord("IFC4", parts + "#9=IFCRELASSOCIATESMATERIAL(" + root('B') + ",$,$,(#8),#4);", "IFC2X3", 9,
                 "IFCRELASSOCIATESMATERIAL(" + root('B') + ",$,$,(#8),#1)", "materials-to-list");
}

TEST(OtherRules, TrimSplinesByTheParametersOfTheirSegments) {
    const std::string points = "#1=IFCCARTESIANPOINT((0.,0.));#2=IFCCARTESIANPOINT((1.,1.));#3=IFCCARTESIANPOINT((2.,0."
                               "));#4=IFCCARTESIANPOINT((3.,1.));";
    const std::string trim =
        "#6=IFCTRIMMEDCURVE(#5,(IFCPARAMETERVALUE(0.5)),(#4,IFCPARAMETERVALUE(2.)),.T.,.PARAMETER.);";
    expectRecord(
        "IFC4",
        points +
            "#5=IFCBSPLINECURVEWITHKNOTS(2,(#1,#2,#3,#4),.UNSPECIFIED.,.F.,.F.,(3,1,3),(0.,1.,3.),.UNSPECIFIED.);" +
            trim,
        "IFC2X3", 6, "IFCTRIMMEDCURVE(#5,(IFCPARAMETERVALUE(0.5)),(#4,IFCPARAMETERVALUE(1.5)),.T.,.PARAMETER.)",
        "trim-parameters");
    // Knots that leave no segment.
    const auto none = toRelease("IFC4",
                                owner + points +
                                    "#5=IFCBSPLINECURVEWITHKNOTS(2,(#1,#2,#3),.UNSPECIFIED.,.F.,.F.,(2,2,2),(2.,3.,7.),"
                                    ".UNSPECIFIED.);#6=IFCGEOMETRICSET((#5,#1));",
                                "IFC2X3");
    EXPECT_EQ(none.record(5), "");
    EXPECT_EQ(none.record(6), "IFCGEOMETRICSET((#1))");
}

TEST(OtherRules, FollowEachRuleThatIsSmall) {
    const std::string line =
        "#1=IFCCARTESIANPOINT((0.,0.,0.));#2=IFCAXIS2PLACEMENT3D(#1,$,$);#3=IFCPLANE(#2);#4=IFCPOLYLINE((#1,#1));";
    const struct {
        const char* rule;
        const char* from;
        const char* to;
        std::string instances;
        /// Of instance #10.
        std::string expected;
    } cases[] = {
        {"select-type", "IFC4", "IFC2X3",
         "#1=IFCCONTEXTDEPENDENTUNIT($,.USERDEFINED.,'x');#10=IFCMEASUREWITHUNIT(IFCPOSITIVEINTEGER(2),#1);",
         "IFCMEASUREWITHUNIT(IFCINTEGER(2),#1)"},
        {"number-form", "IFC2X3", "IFC4X3_ADD2",
         "#1=IFCCONTEXTDEPENDENTUNIT($,.USERDEFINED.,'x');#10=IFCMEASUREWITHUNIT(IFCCOUNTMEASURE(1.),#1);",
         "IFCMEASUREWITHUNIT(IFCCOUNTMEASURE(1),#1)"},
        {"related-objects-type", "IFC4X3_ADD2", "IFC2X3",
         "#1=IFCWALL(" + root('A') + ",$,$,$,$,$,$,$);#2=IFCGROUP(" + root('B') + ",$,$,$);#10=IFCRELASSIGNSTOGROUP(" +
             root('C') + ",$,$,(#1),.T.,#2);",
         "IFCRELASSIGNSTOGROUP(" + root('C') + ",$,$,(#1),$,#2)"},
        {"no-entity", "IFC2X3", "IFC4", line + "#5=IFCREPRESENTATIONCONTEXT($,$);#10=IFCREPRESENTATION(#5,$,$,(#1));",
         ""},
        {"no-value", "IFC4", "IFC2X3", "#10=IFCBUILDINGELEMENTPROXY(" + root('A') + ",$,$,$,$,$,$,.PROVISIONFORVOID.);",
         "IFCBUILDINGELEMENTPROXY(" + root('A') + ",$,$,$,$,$,$,$)"},
        {"bounded-surfaces", "IFC4", "IFC2X3", line + "#10=IFCCURVEBOUNDEDSURFACE(#3,(#4),.F.);", ""},
        {"surface-curves", "IFC4", "IFC2X3", line + "#10=IFCPCURVE(#3,#4);", ""},
        {"sectioned-shapes", "IFC4X1", "IFC2X3", line + "#10=IFCSECTIONEDSOLIDHORIZONTAL(#4,(#90,#91),(#92,#93),.T.);",
         ""},
        {"voxels", "IFC4X4", "IFC2X3", "#10=IFCVOXELGRID(7.,$,$,1,$,$,(.T.));", ""},
        {"space-interaction", "IFC2X3", "IFC4",
         "#10=IFCRELINTERACTIONREQUIREMENTS(" + root('A') + ",$,$,1.,2.,#91,#92,#93);", ""},
        {"predefined-font", "IFC2X3", "IFC4", "#10=IFCDRAUGHTINGPREDEFINEDTEXTFONT('a');",
         "IFCEXTERNALLYDEFINEDTEXTFONT($,$,'a')"},
        {"texture-coordinates", "IFC2X3", "IFC4", "#10=IFCTEXTURECOORDINATEGENERATOR('a',(IFCREAL(0.1)));", ""},
        {"blob-texture", "IFC2X3", "IFC4", "#10=IFCBLOBTEXTURE(.F.,.F.,.BUMP.,$,'a',.F.);", ""},
        {"area-tiles", "IFC2X3", "IFC4", "#10=IFCFILLAREASTYLETILESYMBOLWITHSTYLE(#90);", ""},
        {"text-box", "IFC2X3", "IFC4", "#10=IFCTEXTSTYLEWITHBOXCHARACTERISTICS($,$,$,$,$);", ""},
        {"port-geometry", "IFC2X3", "IFC4",
         line + "#5=IFCARBITRARYCLOSEDPROFILEDEF(.AREA.,$,#4);#10=IFCCONNECTIONPORTGEOMETRY(#2,$,#5);",
         "IFCCONNECTIONPOINTGEOMETRY(#1,$)"},
        {"product-shape", "IFC2X3", "IFC4",
         line + "#5=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,$,#2,$);#6=IFCSHAPEREPRESENTATION(#5,$,$,(#1));#10="
                "IFCPRODUCTREPRESENTATION($,$,(#6));",
         "IFCPRODUCTDEFINITIONSHAPE($,$,(#6))"},
        {"library-references", "IFC4", "IFC2X3", "#10=IFCLIBRARYINFORMATION('l','1',$,$,'http://x',$);",
         "IFCLIBRARYINFORMATION('l','1',$,$,$)"},
        {"other-resources", "IFC4", "IFC2X3", "#10=IFCCONNECTIONVOLUMEGEOMETRY(#90,#91);", ""},
        {"door-operation", "IFC4X4", "IFC2X3",
         "#10=IFCDOORTYPE(" + root('A') + ",$,$,$,$,$,$,$,.NOTDEFINED.,.DOUBLE_PANEL_SINGLE_SWING.,$,$);",
         "IFCDOORSTYLE(" + root('A') + ",$,$,$,$,$,$,.DOUBLE_DOOR_SINGLE_SWING.,.NOTDEFINED.,.F.,.F.)"},
        {"change-not-defined", "IFC4", "IFC2X3", "#10=IFCOWNERHISTORY(#92,#93,$,.NOTDEFINED.,$,$,$,1);",
         "IFCOWNERHISTORY(#92,#93,$,.NOCHANGE.,$,$,$,1)"},
        {"member-axis", "IFC2X3", "IFC4", "#10=IFCSTRUCTURALCURVEMEMBER(" + root('A') + ",$,$,$,$,$,.CABLE.);",
         "IFCSTRUCTURALCURVEMEMBER(" + root('A') + ",$,$,$,$,$,.CABLE.,#95)"},
        {"measured-along", "IFC4X1", "IFC4X2",
         line + "#5=IFCDISTANCEEXPRESSION(1.,$,$,$,$);#10=IFCLINEARPLACEMENT(#4,#5,$,$);",
         "IFCLINEARPLACEMENT($,#4,#5,$,$)"},
        {"property-constraint", "IFC4", "IFC2X3",
         "#1=IFCMETRIC('m',$,.HARD.,$,$,$,$,.EQUALTO.,$,IFCLABEL('x'),$);#2=IFCPROPERTYSINGLEVALUE('p',$,$,$);"
         "#10=IFCRESOURCECONSTRAINTRELATIONSHIP($,$,#1,(#2));",
         "IFCPROPERTYCONSTRAINTRELATIONSHIP(#1,(#2),$,$)"},
        {"surface-item", "IFC2X3", "IFC4",
         line + "#5=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,$,#2,$);#6=IFCANNOTATIONSURFACE(#3,$);#10="
                "IFCSHAPEREPRESENTATION(#5,$,$,(#6));",
         "IFCSHAPEREPRESENTATION(#5,$,$,(#3))"},
        {"section-placement", "IFC2X3", "IFC4",
         "#1=IFCSTRUCTURALCURVEMEMBER(" + root('A') +
             ",$,$,$,$,$,.CABLE.);#2=IFCRECTANGLEPROFILEDEF(.AREA.,'r',#4,1.,2.);#3=IFCCARTESIANPOINT((0.,0.));"
             "#4=IFCAXIS2PLACEMENT2D(#3,$);#5=IFCGENERALPROFILEPROPERTIES($,#2,1.,$,$,$,$);"
             "#10=IFCRELASSOCIATESPROFILEPROPERTIES(" +
             root('B') + ",$,$,(#1),#5,$,IFCPLANEANGLEMEASURE(1.));",
         "IFCRELASSOCIATESMATERIAL(" + root('B') + ",$,$,(#1),#98)"},
        {"time-of-date", "IFC2X3", "IFC4",
         "#5=IFCCALENDARDATE(3,2,2009);#6=IFCLOCALTIME(2,$,$,$,$);#7=IFCDATEANDTIME(#5,#6);#10=IFCCOSTVALUE($,$,$,$,#7,"
         "$,'c',$);",
         "IFCCOSTVALUE($,$,$,$,'2009-02-03',$,'c',$,$,$)"},
        {"linear-to-local-placement", "IFC4X1", "IFC2X3", line + "#10=IFCLINEARPLACEMENT(#4,#90,$,#2);",
         "IFCLOCALPLACEMENT($,#2)"},
    };
    for (const auto& one : cases) {
        const auto result = toRelease(one.from, owner + one.instances, one.to);
        EXPECT_EQ(result.record(10), one.expected) << one.rule << ' ' << one.from << " to " << one.to;
        EXPECT_GT(result.count(one.rule), 0u) << one.rule;
    }
}

} // namespace velkor
