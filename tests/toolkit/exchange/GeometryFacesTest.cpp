// Face sets, lists of points and what representations are called, in a release without tessellations.
#include "ConvertedModel.h"

#include <gmock/gmock.h>

namespace velkor {

namespace {

using test::ConvertedModel;
using test::toRelease;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string corners = "#1=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,0.,0.),(0.,1.,0.),(0.,0.,1.E0)));";
constexpr const char* tetrahedron = "((1,3,2),(1,2,4),(2,3,4),(1,4,3))";

ConvertedModel facesOf(const std::string& triangles, const std::string& closed, const std::string& pointIndex = "$",
                       const std::string& normals = "$") {
    return toRelease("IFC4",
                     corners + "#2=IFCTRIANGULATEDFACESET(#1," + normals + "," + closed + "," + triangles + "," +
                         pointIndex + ");",
                     "IFC2X3");
}

/// A product with one representation of a type and its items, #101 on, in a model that breaks no rule.
std::string shape(const std::string& type, const std::string& items, const std::string& instances) {
    return "#90=IFCPERSON('p','n',$,$,$,$,$,$);#91=IFCORGANIZATION('o','O',$,$,$);"
           "#92=IFCPERSONANDORGANIZATION(#90,#91,$);#93=IFCAPPLICATION(#91,'1','A','a');"
           "#94=IFCOWNERHISTORY(#92,#93,$,.NOCHANGE.,$,$,$,0);"
           "#80=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,1.E-5,#81,$);#81=IFCAXIS2PLACEMENT3D(#82,$,$);"
           "#82=IFCCARTESIANPOINT((0.,0.,0.));#83=IFCSHAPEREPRESENTATION(#80,'Body','" +
           type + "'," + items +
           ");#84=IFCPRODUCTDEFINITIONSHAPE($,$,(#83));#85=IFCLOCALPLACEMENT($,#81);"
           "#86=IFCBUILDINGELEMENTPROXY('0000000000000000000001',#94,'name',$,$,#85,#84,$,$);" +
           instances;
}

} // namespace

TEST(GeometryFaces, FacetsBecomeFacesOverSharedPoints) {
    const auto result = facesOf(tetrahedron, ".T.");
    EXPECT_THAT(result.records("IFCCARTESIANPOINT"),
                ElementsAre("IFCCARTESIANPOINT((0.,0.,0.))", "IFCCARTESIANPOINT((1.,0.,0.))",
                            "IFCCARTESIANPOINT((0.,1.,0.))", "IFCCARTESIANPOINT((0.,0.,1.E0))"));
    EXPECT_THAT(result.records("IFCPOLYLOOP"), ElementsAre("IFCPOLYLOOP((#3,#5,#4))", "IFCPOLYLOOP((#3,#4,#6))",
                                                           "IFCPOLYLOOP((#4,#5,#6))", "IFCPOLYLOOP((#3,#6,#5))"));
    EXPECT_THAT(result.records("IFCFACE"), testing::SizeIs(4));
    EXPECT_EQ(result.record(1), "");
    const std::string shell = result.records("IFCCLOSEDSHELL").at(0);
    EXPECT_EQ(shell, "IFCCLOSEDSHELL((#9,#12,#15,#18))");
    EXPECT_EQ(result.record(9), "IFCFACE((#8))");
    EXPECT_EQ(result.record(8), "IFCFACEOUTERBOUND(#7,.T.)");
    EXPECT_EQ(result.record(2), "IFCFACETEDBREP(#19)");
    EXPECT_TRUE(result.report.isLossless());
    EXPECT_EQ(result.report.rebuilt, 2u);
    EXPECT_EQ(result.report.added, 17u);
    EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty());
}

TEST(GeometryFaces, OnlyWhatIsClosedAndCalledSoBoundsASolid) {
    struct Case {
        const char* closed;
        const char* triangles;
        bool isSolid;
        bool isDoubtful;
    };
    const Case cases[] = {
        {".T.", tetrahedron, true, false},
        {".F.", tetrahedron, false, false},
        {"$", tetrahedron, false, false},
        // One is missing; one is turned round; one is there twice; one more stands on an edge.
        {".T.", "((1,3,2),(1,2,4),(2,3,4))", false, true},
        {".T.", "((1,2,3),(1,2,4),(2,3,4),(1,4,3))", false, true},
        {".T.", "((1,3,2),(1,2,4),(2,3,4),(1,4,3),(1,4,3))", false, true},
        {".T.", "((1,3,2),(1,2,4),(2,3,4),(1,4,3),(1,3,2),(1,2,3))", false, true},
        // Without area; what is left is closed.
        {".T.", "((1,3,2),(1,2,4),(2,2,3),(2,3,4),(1,4,3))", true, false},
    };
    for (const Case& row : cases) {
        const auto result = facesOf(row.triangles, row.closed);
        EXPECT_EQ(result.records("IFCFACETEDBREP").size(), row.isSolid ? 1u : 0u) << row.triangles;
        EXPECT_EQ(result.records("IFCSHELLBASEDSURFACEMODEL").size(), row.isSolid ? 0u : 1u) << row.triangles;
        EXPECT_EQ(result.records("IFCOPENSHELL").size(), row.isSolid ? 0u : 1u) << row.triangles;
        EXPECT_EQ(result.count("closed-face-sets"), row.isDoubtful ? 1u : 0u) << row.triangles;
        EXPECT_EQ(result.report.isLossless(), !row.isDoubtful) << row.triangles;
        EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty()) << row.triangles;
    }
}

TEST(GeometryFaces, PointIndicesAreFollowedAndNormalsTold) {
    const auto result = facesOf("((1,2,3),(3,2,1))", "$", "(4,2,1)", "((0.,0.,1.))");
    EXPECT_THAT(result.records("IFCPOLYLOOP"), ElementsAre("IFCPOLYLOOP((#6,#4,#3))", "IFCPOLYLOOP((#3,#4,#6))"));
    EXPECT_EQ(result.count("facet-normals"), 1u);
    EXPECT_FALSE(result.report.isLossless());
    // Two indices of one point.
    EXPECT_EQ(facesOf("((1,2,3),(1,2,4))", "$", "(1,2,1,4)").count("degenerate-facets"), 1u);
}

TEST(GeometryFaces, WhatCannotBeUnderstoodIsLostAndNeverGuessed) {
    for (const char* triangles : {"((1,2,5))", "((0,1,2))", "((1,2))", "((1,2,3,4))", "((1,2,-3))", "(1,2,3)", "$",
                                  "((1,2,99999999999999999999))", "((1,2,3.))", "((1,1,2))"}) {
        const auto result = facesOf(triangles, "$");
        EXPECT_EQ(result.record(2), "") << triangles;
        EXPECT_THAT(result.records("IFCFACE"), IsEmpty()) << triangles;
        EXPECT_EQ(result.count("contradictory-shapes"), 1u) << triangles;
        EXPECT_FALSE(result.report.isLossless()) << triangles;
    }
    EXPECT_EQ(facesOf("((1,2,3))", "$", "(1,2)").record(2), "");
    EXPECT_EQ(facesOf("((1,2,3))", "$", "(1,2,7)").record(2), "");
    // The list itself: a row too short, a value that is no number, a list of a plane, none at all, one
    // with more than it may have, a complex instance.
    for (const char* list :
         {"#1=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,0.),(0.,1.,0.)));",
          "#1=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,0.,$),(0.,1.,0.)));",
          "#1=IFCCARTESIANPOINTLIST2D(((0.,0.),(1.,0.),(0.,1.)));", "#3=IFCDIRECTION((1.,0.));",
          "#1=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,0.,0.),(0.,1.,0.)),$);",
          "#1=(IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,0.,0.),(0.,1.,0.)))IFCDIRECTION((1.,0.)));"}) {
        const auto result =
            toRelease("IFC4", std::string(list) + "#2=IFCTRIANGULATEDFACESET(#1,$,$,((1,2,3)),$);", "IFC2X3");
        EXPECT_THAT(result.records("IFCFACE"), IsEmpty()) << list;
        EXPECT_EQ(result.record(2), "") << list;
    }
}

TEST(GeometryFaces, SolidsAreClosedOverPointsAtOnePlace) {
    // The fourth face has its own points, up to the last digits; the rows of normals say nothing of points.
    const std::string instances =
        "#1=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(24.,0.,0.),(0.,24.,0.),(0.,0.,24.),(-0.,0.,4.E-15),(0.,0.,24.),"
        "(0.,24.,-2.E-14)));#2=IFCTRIANGULATEDFACESET(#1,((0.,0.,1.)),.T.,((1,3,2),(1,2,4),(2,3,4),(5,6,7)),"
        "((1,1,1),(1,1,1),(1,1,1),(1,1,1)));";
    const auto result = toRelease("IFC4", instances, "IFC2X3");
    EXPECT_EQ(result.record(2), "IFCFACETEDBREP(#22)");
    EXPECT_THAT(result.records("IFCPOLYLOOP"), ElementsAre("IFCPOLYLOOP((#3,#5,#4))", "IFCPOLYLOOP((#3,#4,#6))",
                                                           "IFCPOLYLOOP((#4,#5,#6))", "IFCPOLYLOOP((#3,#6,#5))"));
    EXPECT_EQ(result.count("closed-face-sets"), 0u);
}

TEST(GeometryFaces, PolygonsHaveVoidsAndPassAPointOnceEach) {
    const auto result = toRelease(
        "IFC4X3_ADD2",
        "#1=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(9.,0.,0.),(9.,9.,0.),(0.,9.,0.),(1.,1.,0.),(2.,1.,0.),(1.,2.,0.)),$);"
        "#2=IFCPOLYGONALFACESET(#1,.F.,(#3,#4),$);"
        "#3=IFCINDEXEDPOLYGONALFACEWITHVOIDS((1,2,3,4),((5,7,6),(5,5,6)));"
        "#4=IFCINDEXEDPOLYGONALFACE((1,1,2,5,6,7,5,2,3,1));",
        "IFC2X3");
    EXPECT_EQ(result.record(2), "IFCSHELLBASEDSURFACEMODEL((#22))");
    EXPECT_THAT(result.records("IFCFACEBOUND"), testing::SizeIs(1));
    EXPECT_THAT(result.records("IFCPOLYLOOP"), ElementsAre("IFCPOLYLOOP((#5,#6,#7,#8))", "IFCPOLYLOOP((#9,#11,#10))",
                                                           "IFCPOLYLOOP((#5,#6,#9,#10,#11,#17,#18,#7))"));
    // What is passed on the way back is another point at the same place.
    EXPECT_EQ(result.record(17), "IFCCARTESIANPOINT((1.,1.,0.))");
    EXPECT_EQ(result.record(18), "IFCCARTESIANPOINT((9.,0.,0.))");
    EXPECT_EQ(result.count("degenerate-facets"), 1u);
    EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty());
}

TEST(GeometryFaces, ListsThatNobodyUsesAndThoseWithOneIdAddNothingTwice) {
    EXPECT_THAT(toRelease("IFC4", corners, "IFC2X3").records("IFCCARTESIANPOINT"), IsEmpty());
    const auto result = toRelease("IFC4",
                                  corners + corners +
                                      "#2=IFCTRIANGULATEDFACESET(#1,$,$,((1,2,3)),$);"
                                      "#3=IFCTRIANGULATEDFACESET(#1,$,$,((2,3,4)),$);",
                                  "IFC2X3");
    EXPECT_THAT(result.records("IFCCARTESIANPOINT"), testing::SizeIs(4));
}

TEST(GeometryFaces, ColoursOfFacetsAreLostAndTheFacetsAreNot) {
    const auto result = toRelease("IFC4",
                                  shape("Tessellation", "(#2)",
                                        corners + "#2=IFCTRIANGULATEDFACESET(#1,$,$,((1,2,3)),$);"
                                                  "#3=IFCINDEXEDCOLOURMAP(#2,$,#4,(1));"
                                                  "#4=IFCCOLOURRGBLIST(((1.,0.,0.)));"),
                                  "IFC2X3");
    EXPECT_EQ(result.count("facet-colours"), 2u);
    EXPECT_THAT(result.records("IFCFACE"), testing::SizeIs(1));
    EXPECT_THAT(result.problems(), IsEmpty());
}

TEST(GeometryFaces, AdvancedSolidsOfPlanesAreFaceted) {
    // A tetrahedron whose faces lie in planes, each edge passed once in each direction; or one face that is curved.
    const auto solid = [](const std::string& surface, const std::string& more) {
        std::string text =
            "#101=IFCADVANCEDBREP(#102);#102=IFCCLOSEDSHELL((#111,#112,#113,#114));"
            "#1=IFCCARTESIANPOINT((0.,0.,0.));#2=IFCCARTESIANPOINT((1.,0.,0.));#3=IFCCARTESIANPOINT((0.,1.,0.));"
            "#4=IFCCARTESIANPOINT((0.,0.,1.));#11=IFCVERTEXPOINT(#1);#12=IFCVERTEXPOINT(#2);#13=IFCVERTEXPOINT(#3);"
            "#14=IFCVERTEXPOINT(#4);#5=IFCDIRECTION((1.,0.,0.));#6=IFCVECTOR(#5,1.);#7=IFCLINE(#1,#6);"
            "#8=IFCPLANE(#81);";
        int edge = 200;
        const auto add = [&](const std::string& id, const std::string& record) {
            text.append("#").append(id).append("=").append(record).append(";");
        };
        for (const char* ends : {"#11,#12", "#11,#13", "#11,#14", "#12,#13", "#12,#14", "#13,#14"})
            add(std::to_string(edge++), std::string("IFCEDGECURVE(") + ends + ",#7,.T.)");
        const std::vector<std::vector<int>> faces = {
            {201, -203, -200}, {200, 204, -202}, {203, 205, -204}, {202, -205, -201}};
        int oriented = 300;
        for (std::size_t i = 0; i < faces.size(); ++i) {
            std::string list;
            for (const int passed : faces[i]) {
                add(std::to_string(oriented),
                    "IFCORIENTEDEDGE(*,*,#" + std::to_string(std::abs(passed)) + (passed > 0 ? ",.T.)" : ",.F.)"));
                list.append(list.empty() ? "#" : ",#").append(std::to_string(oriented++));
            }
            const std::string number = std::to_string(i + 1);
            add("13" + number, "IFCEDGELOOP((" + list + "))");
            add("12" + number, "IFCFACEOUTERBOUND(#13" + number + ",.T.)");
            add("11" + number, "IFCADVANCEDFACE((#12" + number + ")," + (i == 0 ? surface : "#8") + ",.T.)");
        }
        return toRelease("IFC4", shape("AdvancedBrep", "(#101)", text + more), "IFC2X3");
    };
    const auto result = solid("#8", "");
    EXPECT_THAT(result.records("IFCPOLYLOOP"), ElementsAre("IFCPOLYLOOP((#1,#3,#2))", "IFCPOLYLOOP((#1,#2,#4))",
                                                           "IFCPOLYLOOP((#2,#3,#4))", "IFCPOLYLOOP((#1,#4,#3))"));
    EXPECT_THAT(result.records("IFCFACETEDBREP"), testing::SizeIs(1));
    EXPECT_THAT(result.record(83), HasSubstr("'Body','Brep',(#101)"));
    for (const char* part :
         {"IFCADVANCEDFACE", "IFCFACESURFACE", "IFCEDGELOOP", "IFCEDGECURVE", "IFCVERTEXPOINT", "IFCLINE"})
        EXPECT_THAT(result.records(part), IsEmpty()) << part;
    EXPECT_TRUE(result.report.isLossless());
    EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty());
    // What somebody else needs stays.
    EXPECT_THAT(solid("#8", "#400=IFCSTYLEDITEM(#111,(#401),$);#401=IFCPRESENTATIONSTYLEASSIGNMENT((#402));"
                            "#402=IFCSURFACESTYLE($,.BOTH.,(#403));#403=IFCSURFACESTYLESHADING(#404,$);"
                            "#404=IFCCOLOURRGB($,1.,0.,0.);")
                    .records("IFCFACESURFACE"),
                testing::SizeIs(1));
    const auto curved = solid("#9", "#9=IFCCYLINDRICALSURFACE(#81,1.);");
    EXPECT_EQ(curved.record(101), "");
    EXPECT_EQ(curved.count("advanced-breps"), 1u);
    EXPECT_THAT(curved.records("IFCPOLYLOOP"), IsEmpty());
    EXPECT_THAT(curved.problems(), IsEmpty());
}

TEST(GeometryFaces, RepresentationsAreCalledByWhatStandsInThem) {
    const std::string solid = "#101=IFCTRIANGULATEDFACESET(#100,$,.T.,((1,3,2),(1,2,4),(2,3,4),(1,4,3)),$);";
    const std::string surface = "#102=IFCTRIANGULATEDFACESET(#100,$,$,((1,3,2)),$);";
    const std::string list = "#100=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,0.,0.),(0.,1.,0.),(0.,0.,1.)));";
    const std::string polyline = "#103=IFCPOLYLINE((#104,#105));#104=IFCCARTESIANPOINT((0.,0.,0.));"
                                 "#105=IFCCARTESIANPOINT((1.,0.,0.));";
    const std::string brep = "#103=IFCFACETEDBREP(#104);#104=IFCCLOSEDSHELL((#105));#105=IFCFACE((#106));"
                             "#106=IFCFACEOUTERBOUND(#107,.T.);#107=IFCPOLYLOOP((#108,#109,#110));"
                             "#108=IFCCARTESIANPOINT((0.,0.,0.));#109=IFCCARTESIANPOINT((1.,0.,0.));"
                             "#110=IFCCARTESIANPOINT((0.,1.,0.));";
    const std::string model = "#111=IFCSHELLBASEDSURFACEMODEL((#112));#112=IFCOPENSHELL((#105));";
    const std::string sweep =
        "#103=IFCSURFACECURVESWEPTAREASOLID(#104,#81,#105,0.,1.,#106);"
        "#104=IFCRECTANGLEPROFILEDEF(.AREA.,$,#107,1.,2.);#105=IFCPOLYLINE((#82,#108));#106=IFCPLANE(#81);"
        "#107=IFCAXIS2PLACEMENT2D(#109,$);#108=IFCCARTESIANPOINT((1.,0.,0.));#109=IFCCARTESIANPOINT((0.,0.));";
    struct Case {
        const char* from;
        const char* to;
        const char* before;
        const char* items;
        std::string instances;
        const char* after;
    };
    const Case cases[] = {
        {"IFC4", "IFC2X3", "Tessellation", "(#101)", list + solid, "Brep"},
        {"IFC4", "IFC2X3", "Tessellation", "(#101,#102)", list + solid + surface, "SurfaceModel"},
        {"IFC4", "IFC2X3", "SurfaceModel", "(#102)", list + surface, "SurfaceModel"},
        {"IFC4", "IFC2X3", "Curve3D", "(#103)", polyline, "GeometricCurveSet"},
        {"IFC4", "IFC2X3", "Point", "(#82)", "", "GeometricCurveSet"},
        {"IFC4", "IFC2X3", "Surface3D", "(#101)", "#101=IFCPLANE(#81);", "GeometricSet"},
        {"IFC4", "IFC2X3", "Mine", "(#101)", list + solid, "Mine"},
        {"IFC4", "IFC4X3_ADD2", "Tessellation", "(#101)", list + solid, "Tessellation"},
        {"IFC2X3", "IFC4", "SurfaceModel", "(#103)", brep, "Brep"},
        {"IFC2X3", "IFC4", "SurfaceModel", "(#103,#111)", brep + model, "SurfaceOrSolidModel"},
        {"IFC2X3", "IFC4", "SurfaceModel", "(#111)", brep + model, "SurfaceModel"},
        {"IFC2X3", "IFC4", "SweptSolid", "(#103)", sweep, "AdvancedSweptSolid"},
        {"IFC2X3", "IFC4", "GeometricCurveSet", "(#103)", polyline, "GeometricCurveSet"},
    };
    for (const Case& row : cases) {
        const auto result = toRelease(row.from, shape(row.before, row.items, row.instances), row.to);
        const std::string label = std::string(row.from) + " " + row.before;
        EXPECT_THAT(result.record(83), HasSubstr(std::string("'Body','") + row.after + "',(")) << label;
        EXPECT_EQ(result.count("representation-types"), std::string(row.before) != row.after ? 1u : 0u) << label;
        EXPECT_THAT(result.problems(), IsEmpty()) << label;
    }
}

TEST(GeometryFaces, ListsThatAreShownBecomeTheirPoints) {
    const auto result = toRelease(
        "IFC4", shape("PointCloud", "(#101)", "#101=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,0.,0.)));"), "IFC2X3");
    EXPECT_EQ(result.record(83), "IFCSHAPEREPRESENTATION(#80,'Body','GeometricCurveSet',(#102,#103))");
    EXPECT_EQ(result.record(103), "IFCCARTESIANPOINT((1.,0.,0.))");
    EXPECT_TRUE(result.report.isLossless());
    EXPECT_THAT(result.problems(), IsEmpty());
}

TEST(GeometryFaces, LongListsAreReadOnceAndSharedFacesBounded) {
    // Many curves over one list; many sets of one face that each says anew.
    std::string text = "#1=IFCCARTESIANPOINTLIST3D((";
    constexpr int points = 3000;
    constexpr int users = 800;
    std::string polygon;
    for (int i = 0; i < points; ++i) {
        text += i ? ",(" : "(";
        text.append(std::to_string(i)).append(".,").append(std::to_string(i * 7 % 11)).append(".,0.)");
        polygon.append(i ? "," : "(").append(std::to_string(i + 1));
    }
    text += "));#2=IFCINDEXEDPOLYGONALFACE(" + polygon + "));";
    for (int i = 0; i < users; ++i) {
        text.append("#").append(std::to_string(1000 + i)).append("=IFCPOLYGONALFACESET(#1,$,(#2),$);#");
        text.append(std::to_string(5000 + i)).append("=IFCINDEXEDPOLYCURVE(#1,(IFCLINEINDEX((1,3000))),$);");
    }
    const auto result = toRelease("IFC4", text, "IFC2X3");
    EXPECT_EQ(result.records("IFCPOLYLINE").size(), std::size_t{users});
    EXPECT_LT(result.text.size(), 150 * text.size());
    EXPECT_GT(result.records("IFCSHELLBASEDSURFACEMODEL").size(), 100u);
    EXPECT_LT(result.records("IFCSHELLBASEDSURFACEMODEL").size(), std::size_t{users});
    EXPECT_FALSE(result.report.isLossless());
}

} // namespace velkor
