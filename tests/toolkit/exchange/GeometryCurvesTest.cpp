// Curves, profiles and solids that another release says otherwise.
#include "ConvertedModel.h"
#include "velkor/sdai/Part21Lexer.h"

#include <array>
#include <cmath>
#include <gmock/gmock.h>
#include <numbers>

namespace velkor {

namespace {

using test::ConvertedModel;
using test::toRelease;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Point = std::vector<double>;

std::vector<double> numbersOf(const std::string& text) {
    std::vector<double> numbers;
    sdai::Part21Lexer lexer(text);
    for (sdai::Token token = lexer.next(); token.kind != sdai::TokenKind::End; token = lexer.next())
        if (double value = 0; token.kind == sdai::TokenKind::Real && sdai::decodeReal(token.text, value))
            numbers.push_back(value);
    return numbers;
}

std::vector<std::uint64_t> referencesOf(const std::string& record) {
    std::vector<std::uint64_t> ids;
    sdai::Part21Lexer lexer(record);
    for (sdai::Token token = lexer.next(); token.kind != sdai::TokenKind::End; token = lexer.next())
        if (token.kind == sdai::TokenKind::InstanceName) ids.push_back(sdai::decodeInstanceName(token.text));
    return ids;
}

double distance(const Point& a, const Point& b) {
    double square = 0;
    for (std::size_t i = 0; i < a.size(); ++i) square += (a[i] - b[i]) * (a[i] - b[i]);
    return std::sqrt(square);
}

/// A curve of one arc through three points of a plane or of space, in IFC2X3.
ConvertedModel arcThrough(const std::string& points, bool isInSpace) {
    return toRelease("IFC4",
                     std::string("#1=IFCCARTESIANPOINTLIST") + (isInSpace ? "3D(" : "2D(") + points +
                         ");#2=IFCINDEXEDPOLYCURVE(#1,(IFCARCINDEX((1,2,3))),.F.);",
                     "IFC2X3");
}

/// Value of a B-spline at a parameter by the definition of its basis functions.
double basis(const std::vector<double>& knots, std::size_t i, std::size_t degree, double t) {
    if (degree == 0) return knots[i] <= t && t < knots[i + 1] ? 1 : 0;
    const double left = knots[i + degree] - knots[i];
    const double right = knots[i + degree + 1] - knots[i + 1];
    return (left > 0 ? (t - knots[i]) / left * basis(knots, i, degree - 1, t) : 0) +
           (right > 0 ? (knots[i + degree + 1] - t) / right * basis(knots, i + 1, degree - 1, t) : 0);
}

Point weighted(const std::vector<Point>& points, const std::vector<double>& weights,
               const std::function<double(std::size_t)>& part) {
    Point sum(points.front().size(), 0.0);
    double total = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double share = part(i) * weights[i];
        total += share;
        for (std::size_t j = 0; j < sum.size(); ++j) sum[j] += share * points[i][j];
    }
    for (double& value : sum) value /= total;
    return sum;
}

struct Spline {
    std::size_t degree;
    std::vector<Point> points;
    std::vector<double> weights;
    std::vector<double> knots;

    Point at(double t) const {
        return weighted(points, weights, [&](std::size_t i) { return basis(knots, i, degree, t); });
    }
};

/// Of the Bezier segment of a chain that begins at a control point, at a part of it from 0 to 1.
Point bezierAt(const Spline& chain, std::size_t segment, double part) {
    const auto first = static_cast<std::ptrdiff_t>(segment * chain.degree);
    const auto count = static_cast<std::ptrdiff_t>(chain.degree) + 1;
    const std::vector<Point> points(chain.points.begin() + first, chain.points.begin() + first + count);
    const std::vector<double> weights(chain.weights.begin() + first, chain.weights.begin() + first + count);
    return weighted(points, weights, [&](std::size_t i) {
        double choose = 1;
        for (std::size_t k = 0; k < i; ++k)
            choose = choose * static_cast<double>(chain.degree - k) / static_cast<double>(k + 1);
        return choose * std::pow(part, static_cast<double>(i)) *
               std::pow(1 - part, static_cast<double>(chain.degree - i));
    });
}

/// What the target has in the place of a B-spline curve, #1.
Spline chainOf(const ConvertedModel& result, std::size_t degree, bool isRational) {
    Spline chain{degree, {}, {}, {}};
    for (const std::uint64_t id : referencesOf(result.record(1))) chain.points.push_back(numbersOf(result.record(id)));
    chain.weights = isRational ? numbersOf(result.record(1)) : std::vector<double>(chain.points.size(), 1.0);
    return chain;
}

} // namespace

TEST(GeometryCurves, IndexedLinesBecomePolylinesOverTheirPoints) {
    const std::string points = "#1=IFCCARTESIANPOINTLIST2D(((0.,0.),(1.,0.),(2.,1.)));";
    struct Case {
        const char* segments;
        const char* polyline;
    };
    const Case cases[] = {
        {"$", "IFCPOLYLINE((#3,#4,#5))"},
        {"(IFCLINEINDEX((1,2,3)))", "IFCPOLYLINE((#3,#4,#5))"},
        {"(IFCLINEINDEX((3,1)),IFCLINEINDEX((1,2,3)))", "IFCPOLYLINE((#5,#3,#4,#5))"},
        // Not one behind the other, too short, beyond the list, an arc that ends where it began.
        {"(IFCLINEINDEX((1,2)),IFCLINEINDEX((3,1)))", ""},
        {"(IFCLINEINDEX((1)))", ""},
        {"(IFCLINEINDEX((1,4)))", ""},
        {"(IFCARCINDEX((1,2,1)))", ""},
        {"(IFCARCINDEX((1,2)))", ""},
        {"(IFCCURVEINDEX((1,2)))", ""},
        {"((1,2))", ""},
    };
    for (const Case& row : cases) {
        const auto result = toRelease("IFC4", points + "#2=IFCINDEXEDPOLYCURVE(#1," + row.segments + ",$);", "IFC2X3");
        EXPECT_EQ(result.record(2), row.polyline) << row.segments;
        EXPECT_EQ(result.report.isLossless(), *row.polyline != 0) << row.segments;
        EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty()) << row.segments;
    }
}

TEST(GeometryCurves, ArcsAreTheCirclesThroughTheirPoints) {
    struct Case {
        const char* points;
        bool isInSpace;
        bool isCounterclockwise;
    };
    const Case cases[] = {
        {"((1.,0.),(0.,1.),(-1.,0.))", false, true},
        {"((-1.,0.),(0.,1.),(1.,0.))", false, false},
        {"((1000000.5,2000000.25),(1000001.,2000000.5),(1000001.5,2000000.25))", false, false},
        {"((0.,0.),(500.,0.001),(1000.,0.))", false, false},
        {"((0.,0.,0.),(1.,1.,0.),(1.,1.,5.))", true, true},
        {"((3.,0.,2.),(0.,-3.,2.),(-3.,0.,2.))", true, true},
    };
    for (const Case& row : cases) {
        const auto result = arcThrough(row.points, row.isInSpace);
        ASSERT_THAT(result.records("IFCCIRCLE"), SizeIs(1)) << row.points;
        const std::string circle = result.records("IFCCIRCLE").front();
        const std::string placement = result.record(referencesOf(circle).front());
        const Point centre = numbersOf(result.record(referencesOf(placement).front()));
        const double radius = numbersOf(circle).front();
        const std::vector<double> through = numbersOf(row.points);
        for (std::size_t i = 0; i < through.size(); i += centre.size()) {
            const Point point(through.begin() + static_cast<std::ptrdiff_t>(i),
                              through.begin() + static_cast<std::ptrdiff_t>(i + centre.size()));
            EXPECT_NEAR(distance(point, centre) / radius, 1, 1e-9) << row.points;
        }
        const std::string trimmed = result.records("IFCTRIMMEDCURVE").front();
        EXPECT_NE(trimmed.find(row.isCounterclockwise ? ",.T.,.CARTESIAN." : ",.F.,.CARTESIAN."), std::string::npos)
            << trimmed;
        EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty()) << row.points;
    }
    // The axis, where there is one, has the arc run counterclockwise around it.
    const auto result = arcThrough("((3.,0.,2.),(0.,-3.,2.),(-3.,0.,2.))", true);
    const std::vector<std::uint64_t> placement = referencesOf(result.records("IFCAXIS2PLACEMENT3D").front());
    EXPECT_EQ(result.record(placement.at(1)), "IFCDIRECTION((0.,0.,-1.))");
    EXPECT_EQ(result.record(placement.at(2)), "IFCDIRECTION((1.,0.,0.))");
}

TEST(GeometryCurves, CurvesWithArcsAreClosedWhereTheyReturn) {
    const std::string list = "#1=IFCCARTESIANPOINTLIST2D(((0.,0.),(1.,0.),(2.,1.),(1.,2.),(0.,0.),(3.,2.)));";
    struct Case {
        const char* segments;
        const char* selfIntersect;
        bool isClosed;
        std::size_t arcs;
    };
    const Case cases[] = {
        {"(IFCLINEINDEX((1,2)),IFCARCINDEX((2,3,4)),IFCLINEINDEX((4,1)))", ".F.", true, 1},
        // Another point at the place of the first.
        {"(IFCLINEINDEX((1,2)),IFCARCINDEX((2,3,4)),IFCLINEINDEX((4,5)))", "$", true, 1},
        {"(IFCARCINDEX((2,3,4)),IFCARCINDEX((4,6,3)))", ".T.", false, 2},
        // Three points in a line are a line.
        {"(IFCARCINDEX((2,3,6)))", "$", false, 0},
    };
    for (const Case& row : cases) {
        const auto result = toRelease(
            "IFC4", list + "#2=IFCINDEXEDPOLYCURVE(#1," + row.segments + "," + row.selfIntersect + ");", "IFC2X3");
        const std::vector<std::string> segments = result.records("IFCCOMPOSITECURVESEGMENT");
        ASSERT_FALSE(segments.empty()) << row.segments;
        for (const std::string& segment : segments) {
            const bool isOpen = !row.isClosed && &segment == &segments.back();
            EXPECT_EQ(segment.find(".DISCONTINUOUS.") != std::string::npos, isOpen) << segment;
        }
        EXPECT_THAT(result.records("IFCTRIMMEDCURVE"), SizeIs(row.arcs)) << row.segments;
        const std::string flag = *row.selfIntersect == '$' ? ".U." : row.selfIntersect;
        EXPECT_EQ(result.record(2).substr(result.record(2).size() - 4), flag + ")");
        EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty()) << row.segments;
        EXPECT_TRUE(result.report.isLossless());
    }
}

TEST(GeometryCurves, SplinesAndTheirBezierChainsHaveTheSamePoints) {
    struct Case {
        std::size_t degree;
        const char* multiplicities;
        const char* distinct;
        std::vector<double> knots;
        std::vector<double> weights;
    };
    const std::vector<double> weights = {1, 0.5, 2, 1.25, 1, 3, 0.75};
    const Case cases[] = {
        {3, "(4,1,1,1,4)", "(0.,1.,2.5,3.,7.)", {0, 0, 0, 0, 1, 2.5, 3, 7, 7, 7, 7}, {}},
        {3, "(4,2,1,4)", "(-1.,1.,2.5,7.)", {-1, -1, -1, -1, 1, 1, 2.5, 7, 7, 7, 7}, weights},
        {2, "(1,1,1,1,1,1,1,1,1,1)", "(0.,1.,2.,3.,4.,5.,6.,7.,8.,9.)", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, weights},
        {1, "(2,1,1,1,1,1,2)", "(0.,1.,2.,4.,5.,6.,9.)", {0, 0, 1, 2, 4, 5, 6, 9, 9}, {}},
        {6, "(7,7)", "(2.,3.)", {2, 2, 2, 2, 2, 2, 2, 3, 3, 3, 3, 3, 3, 3}, weights},
    };
    const std::vector<Point> points = {{0, 0, 0}, {1, 2, 0}, {3, 3, 1}, {4, 0, 2}, {6, -1, 1.5}, {7, 1, 0}, {9, 2, 3}};
    std::string instances;
    for (std::size_t i = 0; i < points.size(); ++i) {
        instances.append("#").append(std::to_string(i + 10)).append("=IFCCARTESIANPOINT((");
        for (std::size_t j = 0; j < 3; ++j) instances.append(j ? "," : "").append(std::to_string(points[i][j]));
        instances += "));";
    }
    for (const Case& row : cases) {
        const bool isRational = !row.weights.empty();
        std::string curve = isRational ? "#1=IFCRATIONALBSPLINECURVEWITHKNOTS(" : "#1=IFCBSPLINECURVEWITHKNOTS(";
        curve.append(std::to_string(row.degree)).append(",(#10,#11,#12,#13,#14,#15,#16),.UNSPECIFIED.,.F.,.F.,");
        curve.append(row.multiplicities).append(",").append(row.distinct).append(",.UNSPECIFIED.");
        if (isRational) curve += ",(1.,0.5,2.,1.25,1.,3.,0.75)";
        const auto result = toRelease("IFC4", curve + ");" + instances, "IFC2X3");
        ASSERT_THAT(result.records(isRational ? "IFCRATIONALBEZIERCURVE" : "IFCBEZIERCURVE"), SizeIs(1))
            << row.multiplicities;
        const Spline spline{row.degree, points, isRational ? row.weights : std::vector<double>(points.size(), 1.0),
                            row.knots};
        const Spline chain = chainOf(result, row.degree, isRational);
        std::size_t segment = 0;
        for (std::size_t i = row.degree; i < points.size(); ++i) {
            if (row.knots[i] == row.knots[i + 1]) continue;
            for (const double part : {0.0, 0.25, 0.5, 0.9}) {
                const double t = row.knots[i] + part * (row.knots[i + 1] - row.knots[i]);
                EXPECT_LT(distance(spline.at(t), bezierAt(chain, segment, part)), 1e-12) << row.distinct << " " << t;
            }
            ++segment;
        }
        EXPECT_EQ(chain.points.size(), segment * row.degree + 1) << row.multiplicities;
        EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty()) << row.multiplicities;
    }
}

TEST(GeometryCurves, BezierCurvesGoForthAndBack) {
    const std::string points =
        "#2=IFCCARTESIANPOINT((0.,0.));#3=IFCCARTESIANPOINT((1.,0.));"
        "#4=IFCCARTESIANPOINT((1.,1.));#5=IFCCARTESIANPOINT((0.,1.));#6=IFCCARTESIANPOINT((0.,2.));";
    struct Case {
        const char* before;
        const char* after;
    };
    const Case cases[] = {
        {"IFCBEZIERCURVE(2,(#2,#3,#4,#5,#6),.UNSPECIFIED.,.F.,.U.)",
         "IFCBSPLINECURVEWITHKNOTS(2,(#2,#3,#4,#5,#6),.UNSPECIFIED.,.F.,.U.,(3,2,3),(0.,1.,2.),"
         ".PIECEWISE_BEZIER_KNOTS.)"},
        {"IFCRATIONALBEZIERCURVE(4,(#2,#3,#4,#5,#6),.UNSPECIFIED.,.F.,.F.,(1.,2.,3.,4.,5.))",
         "IFCRATIONALBSPLINECURVEWITHKNOTS(4,(#2,#3,#4,#5,#6),.UNSPECIFIED.,.F.,.F.,(5,5),(0.,1.),"
         ".PIECEWISE_BEZIER_KNOTS.,(1.,2.,3.,4.,5.))"},
    };
    for (const Case& row : cases) {
        const auto forth = toRelease("IFC2X3", std::string("#1=") + row.before + ";" + points, "IFC4");
        EXPECT_EQ(forth.record(1), row.after);
        EXPECT_THAT(forth.problems(CheckScope::Everything), IsEmpty());
        const auto back = toRelease("IFC4", std::string("#1=") + row.after + ";" + points, "IFC2X3");
        EXPECT_EQ(back.record(1), row.before);
    }
    // The points do not make up whole segments; knots that are none.
    EXPECT_EQ(
        toRelease("IFC2X3", "#1=IFCBEZIERCURVE(3,(#2,#3,#4,#5,#6),.UNSPECIFIED.,.F.,.F.);" + points, "IFC4").record(1),
        "");
    for (const char* knots : {"(3,3),(0.,1.)", "(3,2,3),(0.,0.,1.)", "(3,5),(0.,1.)", "(3,2,3),(0.,1.)",
                              "(3,2,3),(0.,1.#INF,2.)", "(3,-2,7),(0.,1.,2.)"}) {
        const auto result =
            toRelease("IFC4",
                      std::string("#1=IFCBSPLINECURVEWITHKNOTS(2,(#2,#3,#4,#5,#6),.UNSPECIFIED.,.F.,.F.,") + knots +
                          ",.UNSPECIFIED.);" + points,
                      "IFC2X3");
        EXPECT_THAT(result.records("IFCBEZIERCURVE"), IsEmpty()) << knots;
    }
    const auto uniform =
        toRelease("IFC4", "#1=IFCUNIFORMCURVE(2,(#2,#3,#4,#5),.UNSPECIFIED.,.F.,.F.);" + points, "IFC4X3_RC3");
    EXPECT_EQ(uniform.record(1), "IFCBSPLINECURVEWITHKNOTS(2,(#2,#3,#4,#5),.UNSPECIFIED.,.F.,.F.,(1,1,1,1,1,1,1),"
                                 "(-2.,-1.,0.,1.,2.,3.,4.),.UNIFORM_KNOTS.)");
}

TEST(GeometryCurves, AlignmentsOfLinesAndArcsKeepTheirWay) {
    // A line, a quarter to the left, a half to the right, and the end that has no length.
    const std::string segments[] = {
        "IFCCURVESEGMENT(.CONTINUOUS.,#20,IFCLENGTHMEASURE(0.),IFCLENGTHMEASURE(10.),#10)",
        "IFCCURVESEGMENT(.CONTSAMEGRADIENT.,#21,IFCLENGTHMEASURE(0.),IFCLENGTHMEASURE(7.853981633974483),#11)",
        "IFCCURVESEGMENT(.CONTINUOUS.,#22,IFCLENGTHMEASURE(0.),IFCLENGTHMEASURE(-6.283185307179586),#12)",
        "IFCCURVESEGMENT(.DISCONTINUOUS.,#23,IFCLENGTHMEASURE(0.),IFCLENGTHMEASURE(0.),#10)"};
    std::string text = "#1=IFCCOMPOSITECURVE((#2,#3,#4,#5),.F.);";
    for (std::size_t i = 0; i < std::size(segments); ++i)
        text.append("#").append(std::to_string(i + 2)).append("=").append(segments[i]).append(";");
    text += "#10=IFCLINE(#30,#13);#11=IFCCIRCLE(#24,5.);#12=IFCCIRCLE(#24,2.);#13=IFCVECTOR(#40,1.);"
            "#20=IFCAXIS2PLACEMENT2D(#31,#40);#21=IFCAXIS2PLACEMENT2D(#32,$);#22=IFCAXIS2PLACEMENT2D(#33,#41);"
            "#23=IFCAXIS2PLACEMENT2D(#34,#42);#24=IFCAXIS2PLACEMENT2D(#30,$);#30=IFCCARTESIANPOINT((0.,0.));"
            "#31=IFCCARTESIANPOINT((-10.,1.));#32=IFCCARTESIANPOINT((0.,1.));#33=IFCCARTESIANPOINT((5.,6.));"
            "#34=IFCCARTESIANPOINT((9.,6.));#40=IFCDIRECTION((1.,0.));#41=IFCDIRECTION((0.,2.));"
            "#42=IFCDIRECTION((0.,-1.));";
    const auto result = toRelease("IFC4X3_ADD2", text, "IFC4");
    EXPECT_EQ(result.record(1), "IFCCOMPOSITECURVE((#2,#3,#4,#5),.F.)");
    EXPECT_TRUE(result.report.isLossless());
    const std::vector<std::string> trimmed = result.records("IFCTRIMMEDCURVE");
    ASSERT_THAT(trimmed, SizeIs(2));
    const std::string turns[] = {".T.", ".F."};
    const std::vector<Point> centres = {{0, 6}, {7, 6}};
    const std::vector<Point> ends = {{5, 6}, {9, 6}};
    for (std::size_t i = 0; i < 2; ++i) {
        const std::vector<std::uint64_t> ids = referencesOf(trimmed[i]);
        const std::string placement = result.record(referencesOf(result.record(ids.at(0))).at(0));
        EXPECT_LT(distance(numbersOf(result.record(referencesOf(placement).at(0))), centres[i]), 1e-12);
        EXPECT_EQ(ids.at(1), i == 0 ? 32u : 33u);
        EXPECT_LT(distance(numbersOf(result.record(ids.at(2))), ends[i]), 1e-12);
        EXPECT_NE(trimmed[i].find("," + turns[i] + ",.CARTESIAN."), std::string::npos);
    }
    EXPECT_THAT(result.records("IFCPOLYLINE"), testing::Contains("IFCPOLYLINE((#34,#34))"));
    EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty());
    // Lengths that a release candidate has, and one that it has not.
    const auto candidate = toRelease("IFC4X3_ADD2", text.substr(text.find(';') + 1), "IFC4X3_RC3");
    EXPECT_EQ(candidate.record(2), "IFCCURVESEGMENT(.CONTINUOUS.,#20,IFCNONNEGATIVELENGTHMEASURE(0.),"
                                   "IFCNONNEGATIVELENGTHMEASURE(10.),#10)");
    EXPECT_EQ(candidate.record(4), "");
    EXPECT_EQ(candidate.count("lengths-from-zero"), 6u);
    EXPECT_THAT(candidate.problems(), IsEmpty());
    // With a clothoid in it there is no curve.
    std::string spiral = text;
    spiral.replace(spiral.find("#11=IFCCIRCLE(#24,5.)"), 21, "#11=IFCCLOTHOID(#24,5.)");
    EXPECT_EQ(toRelease("IFC4X3_ADD2", spiral, "IFC4").record(1), "");
}

TEST(GeometryCurves, ACurveWithoutOneOfItsSegmentsIsNone) {
    const std::string instances = "#1=IFCCOMPOSITECURVE((#2,#3),.F.);#2=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#4);"
                                  "#3=IFCCOMPOSITECURVESEGMENT(.DISCONTINUOUS.,.T.,#5);#4=IFCPOLYLINE((#6,#7));"
                                  "#5=IFCINDEXEDPOLYCURVE(#8,(IFCLINEINDEX((1,9))),$);#6=IFCCARTESIANPOINT((0.,0.));"
                                  "#7=IFCCARTESIANPOINT((1.,0.));#8=IFCCARTESIANPOINTLIST2D(((1.,0.),(2.,0.)));"
                                  "#9=IFCGEOMETRICSET((#1,#4));";
    const auto result = toRelease("IFC4", instances, "IFC2X3");
    EXPECT_EQ(result.record(1), "");
    EXPECT_EQ(result.record(9), "IFCGEOMETRICSET((#4))");
    EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty());
}

TEST(GeometryCurves, ShapesArePlainerWhereThatSaysTheSame) {
    struct Case {
        const char* rule;
        const char* from;
        const char* to;
        const char* before;
        const char* after;
    };
    const Case cases[] = {
        {"closed-composite-curves", "IFC2X3", "IFC4", "IFC2DCOMPOSITECURVE((#2),.F.)", "IFCCOMPOSITECURVE((#2),.F.)"},
        {"closed-composite-curves", "IFC4", "IFC2X3", "IFCOUTERBOUNDARYCURVE((#2),.F.)", "IFCCOMPOSITECURVE((#2),.F.)"},
        {"curve-segments-parameters", "IFC4", "IFC2X3",
         "IFCREPARAMETRISEDCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#3,2.)",
         "IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#3)"},
        {"networks", "IFC4X3_ADD2", "IFC4", "IFCTRIANGULATEDIRREGULARNETWORK(#10,$,.F.,((1,2,3)),$,(1))",
         "IFCTRIANGULATEDFACESET(#10,$,.F.,((1,2,3)),$)"},
        {"mirrored-profiles", "IFC4", "IFC2X3", "IFCMIRROREDPROFILEDEF(.AREA.,'m',#5,*,'l')",
         "IFCDERIVEDPROFILEDEF(.AREA.,'m',#5,#23,'l')"},
        {"zero-radii", "IFC4", "IFC2X3", "IFCLSHAPEPROFILEDEF(.AREA.,$,#6,4.,3.,0.5,0.,0.25,$)",
         "IFCLSHAPEPROFILEDEF(.AREA.,$,#6,4.,3.,0.5,$,0.25,$,$,$)"},
        {"zero-radii", "IFC4", "IFC2X3",
         "IFCASYMMETRICISHAPEPROFILEDEF(.AREA.,$,#6,10.,20.,1.,2.,0.,8.,2.5,0.,$,$,$,$)",
         "IFCASYMMETRICISHAPEPROFILEDEF(.AREA.,$,#6,10.,20.,1.,2.,$,8.,2.5,$,$)"},
        {"attribute-renamed", "IFC2X3", "IFC4",
         "IFCASYMMETRICISHAPEPROFILEDEF(.AREA.,$,#6,10.,20.,1.,2.,3.,8.,2.5,1.,$)",
         "IFCASYMMETRICISHAPEPROFILEDEF(.AREA.,$,#6,10.,20.,1.,2.,3.,8.,2.5,1.,$,$,$,$)"},
        {"untapered-extrusions", "IFC4", "IFC2X3", "IFCEXTRUDEDAREASOLIDTAPERED(#5,#7,#8,2.,#5)",
         "IFCEXTRUDEDAREASOLID(#5,#7,#8,2.)"},
        {"untapered-revolutions", "IFC4", "IFC2X3", "IFCREVOLVEDAREASOLIDTAPERED(#5,#7,#9,2.,#5)",
         "IFCREVOLVEDAREASOLID(#5,#7,#9,2.)"},
        {"polygonal-disks", "IFC4X3_ADD2", "IFC2X3", "IFCSWEPTDISKSOLIDPOLYGONAL(#3,0.1,$,0.,0.5,0.)",
         "IFCSWEPTDISKSOLID(#3,0.1,$,0.,0.5)"},
        {"unplaced-shapes", "IFC4", "IFC2X3", "IFCEXTRUDEDAREASOLID(#5,$,#8,2.)", "IFCEXTRUDEDAREASOLID(#5,#21,#8,2.)"},
        {"unplaced-shapes", "IFC4", "IFC2X3", "IFCCIRCLEPROFILEDEF(.AREA.,$,$,2.)",
         "IFCCIRCLEPROFILEDEF(.AREA.,$,#21,2.)"},
        {"cubic-terms", "IFC4X3_RC3", "IFC4X3_ADD2", "IFCTHIRDORDERPOLYNOMIALSPIRAL(#6,3.,2.,$,$)",
         "IFCTHIRDORDERPOLYNOMIALSPIRAL(#6,3.,2.,$,$)"},
        {"unplaced-shapes", "IFC4X3_RC3", "IFC4X3_ADD2", "IFCCLOTHOID($,3.)", "IFCCLOTHOID(#21,3.)"},
        {"vertical-sections", "IFC4X3_ADD2", "IFC4X3_RC3", "IFCSECTIONEDSOLIDHORIZONTAL(#3,(#5,#5),(#15,#15))",
         "IFCSECTIONEDSOLIDHORIZONTAL(#3,(#5,#5),(#15,#15),.T.)"},
        {"subfaces", "IFC4", "IFC4X3_RC3", "IFCSUBFACE((#12),#14)", "IFCFACE((#12))"},
    };
    const std::string others =
        "#2=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#3);#3=IFCPOLYLINE((#4,#19));#4=IFCCARTESIANPOINT((0.,0.,0.));"
        "#5=IFCRECTANGLEPROFILEDEF(.AREA.,$,#6,1.,2.);#6=IFCAXIS2PLACEMENT2D(#18,$);#7=IFCAXIS2PLACEMENT3D(#4,$,$);"
        "#8=IFCDIRECTION((0.,0.,1.));#9=IFCAXIS1PLACEMENT(#4,$);#12=IFCFACEOUTERBOUND(#13,.T.);"
        "#13=IFCPOLYLOOP((#4,#19,#17));#14=IFCFACE((#12));#17=IFCCARTESIANPOINT((0.,1.,0.));"
        "#18=IFCCARTESIANPOINT((0.,0.));#19=IFCCARTESIANPOINT((1.,0.,0.));";
    const std::string places = "#15=IFCAXIS2PLACEMENTLINEAR(#16,$,$);"
                               "#16=IFCPOINTBYDISTANCEEXPRESSION(IFCLENGTHMEASURE(1.),$,$,$,#3);";
    const std::string list = "#10=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,0.,0.),(0.,1.,0.))";
    for (const Case& row : cases) {
        std::string text = std::string("#1=") + row.before + ";" + others;
        if (std::string_view(row.from) == "IFC4X3_ADD2") text += places + list + ",$);";
        const auto result = toRelease(row.from, text, row.to);
        EXPECT_EQ(result.record(1), row.after) << row.rule;
        EXPECT_EQ(result.count(row.rule), 1u + (std::string_view(row.rule) == "attribute-renamed" ? 2u : 0u))
            << row.before;
        EXPECT_THAT(result.problems(), IsEmpty()) << row.before;
    }
}

TEST(GeometryCurves, WhatHasNoExactFormIsLostWithTheReason) {
    struct Case {
        const char* rule;
        const char* from;
        const char* to;
        const char* instance;
    };
    const Case cases[] = {
        {"tapered-solids", "IFC4", "IFC2X3", "IFCEXTRUDEDAREASOLIDTAPERED(#5,#7,#8,2.,#11)"},
        {"tapered-solids", "IFC4", "IFC2X3", "IFCREVOLVEDAREASOLIDTAPERED(#5,#7,#9,2.,#11)"},
        {"filleted-disks", "IFC4", "IFC2X3", "IFCSWEPTDISKSOLIDPOLYGONAL(#3,0.1,$,0.,0.5,0.2)"},
        {"filleted-disks", "IFC4", "IFC2X3", "IFCSWEPTDISKSOLIDPOLYGONAL(#20,0.1,$,$,$,1.5)"},
        {"filleted-disks", "IFC4", "IFC2X3", "IFCSWEPTDISKSOLIDPOLYGONAL(#23,0.1,$,$,$,0.2)"},
        {"reference-sweeps", "IFC4", "IFC2X3", "IFCFIXEDREFERENCESWEPTAREASOLID(#5,#7,#3,0.,1.,#8)"},
        {"reference-sweeps", "IFC4X3_ADD2", "IFC4",
         "IFCDIRECTRIXDERIVEDREFERENCESWEPTAREASOLID(#5,#7,#3,IFCPARAMETERVALUE(0.),IFCPARAMETERVALUE(1.),#8)"},
        {"sweep-lengths", "IFC4X3_ADD2", "IFC4",
         "IFCFIXEDREFERENCESWEPTAREASOLID(#5,#7,#3,IFCLENGTHMEASURE(0.),IFCLENGTHMEASURE(1.),#8)"},
        {"curved-surfaces", "IFC4", "IFC2X3", "IFCCYLINDRICALSURFACE(#7,1.)"},
        {"curved-surfaces", "IFC4", "IFC2X3", "IFCSPHERICALSURFACE(#7,1.)"},
        {"spirals", "IFC4X3_ADD2", "IFC4", "IFCCLOTHOID(#6,3.)"},
        {"spirals", "IFC4X3_RC3", "IFC4X3_ADD2", "IFCSECONDORDERPOLYNOMIALSPIRAL(#6,3.,$,0.5)"},
        {"alignment-curves", "IFC4X1", "IFC4", "IFCALIGNMENT2DVERSEGLINE($,$,$,0.,1.,2.,0.1)"},
        {"linear-places", "IFC4X1", "IFC4", "IFCDISTANCEEXPRESSION(1.,$,$,$,$)"},
        {"parabolas", "IFC4", "IFC4X3_RC3", "IFCPARABOLA(#7,1.)"},
        {"profiles", "IFC2X3", "IFC4", "IFCCRANERAILFSHAPEPROFILEDEF(.AREA.,$,#6,1.,1.,$,1.,1.,1.,1.,1.,$)"},
        {"profiles", "IFC4", "IFC2X3", "IFCPROFILEDEF(.AREA.,'name')"},
        {"plain-surfaces", "IFC2X3", "IFC4", "IFCBOUNDEDSURFACE()"},
    };
    const std::string others =
        "#3=IFCPOLYLINE((#4,#19));#4=IFCCARTESIANPOINT((0.,0.,0.));#5=IFCRECTANGLEPROFILEDEF(.AREA.,$,#6,1.,2.);"
        "#6=IFCAXIS2PLACEMENT2D(#18,$);#7=IFCAXIS2PLACEMENT3D(#4,$,$);#8=IFCDIRECTION((0.,0.,1.));"
        "#9=IFCAXIS1PLACEMENT(#4,$);#11=IFCCIRCLEPROFILEDEF(.AREA.,$,#6,1.);#18=IFCCARTESIANPOINT((0.,0.));"
        "#19=IFCCARTESIANPOINT((1.,0.,0.));#20=IFCPOLYLINE((#4,#19,#22));#22=IFCCARTESIANPOINT((1.,1.,0.));"
        "#23=IFCPOLYLINE((#4,#19,#4));";
    for (const Case& row : cases) {
        const auto result = toRelease(row.from, std::string("#1=") + row.instance + ";" + others, row.to);
        EXPECT_EQ(result.record(1), "") << row.instance;
        EXPECT_EQ(result.count(row.rule), 1u) << row.instance;
        EXPECT_THAT(result.problems(), IsEmpty()) << row.instance;
    }
}

TEST(GeometryCurves, FilletsAreArcsThatTouchBothSides) {
    // To the right, up, and on in the same direction; the first corner is rounded by 0.5, the second is none.
    const auto result = toRelease("IFC4",
                                  "#1=IFCSWEPTDISKSOLIDPOLYGONAL(#2,0.1,0.05,$,3.,0.5);#2=IFCPOLYLINE((#3,#4,#5,#6));"
                                  "#3=IFCCARTESIANPOINT((0.,0.,0.));#4=IFCCARTESIANPOINT((4.,0.,0.));"
                                  "#5=IFCCARTESIANPOINT((4.,0.,3.));#6=IFCCARTESIANPOINT((4.,0.,5.));",
                                  "IFC2X3");
    EXPECT_EQ(result.count("rounded-disks"), 1u);
    EXPECT_TRUE(result.report.isLossless());
    const std::vector<double> numbers = numbersOf(result.record(1));
    ASSERT_THAT(numbers, SizeIs(4));
    EXPECT_NEAR(numbers[3], 3 + std::numbers::pi / 2, 1e-12);
    const std::vector<std::string> arcs = result.records("IFCTRIMMEDCURVE");
    ASSERT_THAT(arcs, SizeIs(1));
    const std::vector<std::uint64_t> ids = referencesOf(arcs.front());
    const std::string placement = result.record(referencesOf(result.record(ids.at(0))).at(0));
    EXPECT_LT(distance(numbersOf(result.record(referencesOf(placement).at(0))), {3.5, 0, 0.5}), 1e-12);
    EXPECT_LT(distance(numbersOf(result.record(ids.at(1))), {3.5, 0, 0}), 1e-12);
    EXPECT_LT(distance(numbersOf(result.record(ids.at(2))), {4, 0, 0.5}), 1e-12);
    const std::vector<std::string> lines = result.records("IFCPOLYLINE");
    ASSERT_FALSE(lines.empty());
    const std::vector<std::uint64_t> last = referencesOf(lines.back());
    EXPECT_LT(distance(numbersOf(result.record(last.at(1))), {4, 0, 5}), 1e-12);
    EXPECT_THAT(result.problems(CheckScope::Everything), IsEmpty());
}

TEST(GeometryCurves, SweepsGetTheParametersOfTheirCurves) {
    struct Case {
        const char* directrix;
        const char* before;
        double start;
        double end;
    };
    const double turn = 2 * std::numbers::pi;
    const Case cases[] = {
        {"IFCPOLYLINE((#4,#5,#6))", "$,$", 0, 2},
        {"IFCPOLYLINE((#4,#5,#6))", "0.5,$", 0.5, 2},
        {"IFCINDEXEDPOLYCURVE(#9,$,$)", "$,$", 0, 2},
        {"IFCINDEXEDPOLYCURVE(#9,(IFCARCINDEX((1,2,3)),IFCLINEINDEX((3,1))),$)", "$,$", 0, 0.75 * turn + 1},
        {"IFCCIRCLE(#7,2.)", "$,$", 0, turn},
        {"IFCTRIMMEDCURVE(#10,(IFCPARAMETERVALUE(6.)),(#5,IFCPARAMETERVALUE(1.)),.T.,.PARAMETER.)", "$,$", 0, turn - 5},
        {"IFCTRIMMEDCURVE(#10,(IFCPARAMETERVALUE(6.)),(IFCPARAMETERVALUE(1.)),.F.,.PARAMETER.)", "$,$", 0, 5},
        {"IFCBSPLINECURVEWITHKNOTS(1,(#4,#5,#6),.UNSPECIFIED.,.F.,.F.,(2,1,2),(0.,10.,12.),.UNSPECIFIED.)", "5.,11.",
         0.5, 1.5},
        {"IFCCOMPOSITECURVE((#11,#12),.F.)", "$,$", 0, 3},
    };
    for (const Case& row : cases) {
        const auto result = toRelease(
            "IFC4",
            std::string("#1=IFCSWEPTDISKSOLID(#2,0.1,$,") + row.before + ");#2=" + row.directrix +
                ";#4=IFCCARTESIANPOINT((0.,0.,0.));#5=IFCCARTESIANPOINT((1.,0.,0.));#6=IFCCARTESIANPOINT((1.,1.,0.));"
                "#7=IFCAXIS2PLACEMENT3D(#4,$,$);#9=IFCCARTESIANPOINTLIST3D(((1.,0.,0.),(-1.,0.,0.),(0.,-1.,0.)));"
                "#10=IFCCIRCLE(#7,1.);#11=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#13);"
                "#12=IFCCOMPOSITECURVESEGMENT(.DISCONTINUOUS.,.T.,#14);#13=IFCPOLYLINE((#4,#5));"
                "#14=IFCPOLYLINE((#5,#6,#4));",
            "IFC2X3");
        const std::vector<double> numbers = numbersOf(result.record(1));
        ASSERT_THAT(numbers, SizeIs(3)) << row.directrix;
        EXPECT_DOUBLE_EQ(numbers[1], row.start) << row.directrix;
        EXPECT_DOUBLE_EQ(numbers[2], row.end) << row.directrix;
        EXPECT_THAT(result.problems(), IsEmpty()) << row.directrix;
    }
    // Along something that is no curve, which others know better.
    std::string list = "#3=IFCCARTESIANPOINTLIST3D(((0.,0.,0.),(1.,0.,0.)";
    for (int i = 2; i < 1000; ++i) list.append(",(").append(std::to_string(i)).append(".,0.,0.)");
    EXPECT_EQ(
        toRelease("IFC4", "#1=IFCSWEPTDISKSOLID(#3,0.1,$,$,$);#2=IFCINDEXEDPOLYCURVE(#3,$,$);" + list + "));", "IFC2X3")
            .record(1),
        "");
    // Curves of curves, a hundred thousand deep.
    std::string nested = "#1=IFCSWEPTDISKSOLID(#2,0.1,$,$,$);";
    for (int i = 1; i <= 100'000; ++i) {
        const std::string id = std::to_string(2 * i);
        nested.append("#").append(id).append("=IFCCOMPOSITECURVE((#").append(std::to_string(2 * i + 1));
        nested.append("),.F.);#")
            .append(std::to_string(2 * i + 1))
            .append("=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#");
        nested.append(std::to_string(2 * i + 2)).append(");");
    }
    EXPECT_EQ(toRelease("IFC4", nested, "IFC2X3").record(1), "");
    // A curve that is a part of itself.
    EXPECT_EQ(toRelease("IFC4",
                        "#1=IFCSWEPTDISKSOLID(#2,0.1,$,$,$);#2=IFCCOMPOSITECURVE((#3),.F.);"
                        "#3=IFCCOMPOSITECURVESEGMENT(.CONTINUOUS.,.T.,#2);",
                        "IFC2X3")
                  .record(1),
              "");
}

} // namespace velkor
