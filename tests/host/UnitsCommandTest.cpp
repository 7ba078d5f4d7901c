#include "Matchers.h"
#include "TestSupport.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

using nlohmann::json;

namespace {

json units(const std::string& path) {
    const Outcome outcome = runHost({"units", path, "--format", "json"});
    EXPECT_EQ(outcome.status, Done) << outcome.err;
    return json::parse(outcome.out);
}

// A third of a millimetre, which no short decimal number tells.
constexpr const char* thirds =
    "#1=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);#2=IFCMEASUREWITHUNIT(IFCLENGTHMEASURE(0.33333333333333331),#1);"
    "#3=IFCCONVERSIONBASEDUNIT($,.LENGTHUNIT.,'Third',#2);#4=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);"
    "#5=IFCMONETARYUNIT('EUR');#6=IFCDERIVEDUNITELEMENT(#3,2);#7=IFCDERIVEDUNITELEMENT(#4,1);"
    "#8=IFCDERIVEDUNIT((#6,#7),.ANGULARVELOCITYUNIT.,$);#9=IFCCONTEXTDEPENDENTUNIT($,.USERDEFINED.,'Piece');"
    "#10=IFCUNITASSIGNMENT((#3,#5,#8,#9,#3,#4));\n";

} // namespace

TEST(UnitsCommand, TellsEveryUnitOfTheAssignment) {
    const TemporaryModel model("IFC4", thirds);
    const json answer = units(model.path());
    EXPECT_EQ(answer["assignment"], 10);
    const double third = 0.001 * 0.33333333333333331;
    const auto unit = [](int id, const char* entity, json type, json name, json slot, double factor) {
        return json{{"id", id},     {"entity", entity}, {"unit_type", type},
                    {"name", name}, {"slot", slot},     {"factor", factor}};
    };
    // In the order of the set, in which what is repeated counts once. The last type of named units and the first of
    // derived ones share a slot.
    EXPECT_EQ(answer["units"],
              json({unit(3, "IFCCONVERSIONBASEDUNIT", "LENGTHUNIT", "Third", 15, third),
                    unit(5, "IFCMONETARYUNIT", nullptr, "EUR", nullptr, 1.0),
                    unit(8, "IFCDERIVEDUNIT", "ANGULARVELOCITYUNIT", "Third^2 RADIAN", 29, third * third),
                    unit(9, "IFCCONTEXTDEPENDENTUNIT", "USERDEFINED", "Piece", 29, 1.0),
                    unit(4, "IFCSIUNIT", "PLANEANGLEUNIT", "RADIAN", 21, 1.0)}));
    EXPECT_EQ(answer["geometry"],
              json({{"length_factor_mm", third * 1000.0}, {"angle_factor_rad", 1.0}, {"result", 0}}));
    EXPECT_EQ(answer["document_length_unit"], json({{"name", "Third"}, {"factor", third}}));
    EXPECT_EQ(answer["measures"].size(), 25U);
    EXPECT_EQ(answer["measures"]["IFCPOSITIVELENGTHMEASURE"], third);
    EXPECT_EQ(answer["measures"]["IFCVOLUMEMEASURE"], 1.0);

    // Seventeen digits.
    EXPECT_THAT(runHost({"units", model.path(), "--format", "json"}).out,
                AllOf(StartsWith("{\n  \"file\": "), HasSubstr("\"factor\": 0.00033333333333333332\n")));
    EXPECT_THAT(runHost({"units", model.path()}).out,
                AllOf(StartsWith(model.path() + ", IFC4\n\nUnits of #10\n"),
                      ContainsRegex("\n +#3  IFCCONVERSIONBASEDUNIT +LENGTHUNIT +Third +15  0.0003333333333333333"),
                      ContainsRegex("\n +#5  IFCMONETARYUNIT +EUR +-  1\n"),
                      HasSubstr("\n  1 plane angle unit = 1 rad\n"),
                      HasSubstr("document length unit: Third, factor 0.0003333333333333333"),
                      ContainsRegex("\n  IFCLUMINOUSINTENSITYMEASURE +1\n")));
}

TEST(UnitsCommand, ReadsEachExampleInItsRelease) {
    // A degree is pi / 180, a foot 304.8 mm.
    constexpr std::tuple<const char*, const char*, int, double, double, const char*> examples[] = {
        {"house-ifc2x3.ifc", "IFC2X3", 24, 1.0, 0.017453292519943295, "MILLI"},
        {"pump-room-ifc4.ifc", "IFC4", 61, 304.8, 0.017453292519943295, "foot"},
        {"road-ifc4x3.ifc", "IFC4X3_ADD2", 13, 1000.0, 1.0, "METRE"}};
    for (const auto& [file, release, assignment, millimetres, radians, lengthUnit] : examples) {
        const json answer = units(example(file));
        EXPECT_EQ(answer["release"], release);
        EXPECT_EQ(answer["assignment"], assignment);
        EXPECT_DOUBLE_EQ(answer["geometry"]["length_factor_mm"], millimetres);
        EXPECT_DOUBLE_EQ(answer["geometry"]["angle_factor_rad"], radians);
        EXPECT_EQ(answer["document_length_unit"]["name"], lengthUnit);
    }
    const json pumps = units(example("pump-room-ifc4.ifc"));
    EXPECT_DOUBLE_EQ(pumps["measures"]["IFCVOLUMETRICFLOWRATEMEASURE"], 0.003785411784 / 60) << "US gallons a minute";
    EXPECT_DOUBLE_EQ(pumps["measures"]["IFCAREADENSITYMEASURE"], 0.45359237 / (0.3048 * 0.3048));
    // Alphabetical in this release.
    EXPECT_EQ(units(example("road-ifc4x3.ifc"))["measures"]["IFCPRESSUREMEASURE"], 1e6);
}

TEST(UnitsCommand, ForgetsTheModelBefore) {
    ASSERT_EQ(units(example("pump-room-ifc4.ifc"))["measures"]["IFCTIMEMEASURE"], 60.0);
    for (const char* data :
         {"", "#1=IFCUNITASSIGNMENT(());\n", "#1=IFCUNITASSIGNMENT((#2));\n#2=IFCMONETARYUNIT($);\n"}) {
        const TemporaryModel model("IFC4", data);
        const json answer = units(model.path());
        EXPECT_EQ(answer["assignment"], *data == '\0' ? json() : json(1));
        EXPECT_EQ(answer["geometry"], json({{"length_factor_mm", 1000}, {"angle_factor_rad", 1}, {"result", 0}}));
        EXPECT_EQ(answer["document_length_unit"], json({{"name", nullptr}, {"factor", nullptr}}));
        for (const auto& [name, factor] : answer["measures"].items()) EXPECT_EQ(factor, 1.0) << name;
    }
    const TemporaryModel empty("IFC4", ""), unknown("IFC9", "");
    EXPECT_THAT(runHost({"units", empty.path()}).out, HasSubstr("\nThe model assigns no units; "));
    EXPECT_EQ(runHost({"units", unknown.path()}).status, Unreadable);
}

TEST(UnitsCommand, PrefersTheAssignmentOfTheProject) {
    const std::string data = "#1=IFCUNITASSIGNMENT((#2));\n#2=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);\n"
                             "#3=IFCUNITASSIGNMENT((#4));\n#4=IFCSIUNIT(*,.LENGTHUNIT.,.CENTI.,.METRE.);\n";
    const auto assignment = [&](const char* release, const std::string& more) {
        const TemporaryModel model(release, data + more);
        const json answer = units(model.path());
        EXPECT_DOUBLE_EQ(answer["geometry"]["length_factor_mm"], answer["assignment"] == 3 ? 10.0 : 1000.0);
        return answer["assignment"];
    };
    EXPECT_EQ(assignment("IFC2X3", ""), 1);
    EXPECT_EQ(assignment("IFC2X3", "#5=IFCPROJECT('0$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,#3);\n"), 3);
    EXPECT_EQ(assignment("IFC4", "#5=IFCPROJECTLIBRARY('0$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,#3);\n"), 3);
    EXPECT_EQ(assignment("IFC4", "#5=IFCPROJECT('0$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,$);\n"), 1);
}

} // namespace velkor::host
