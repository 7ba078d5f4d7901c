#include "Matchers.h"
#include "TemporaryFolder.h"
#include "TestSupport.h"

#include <nlohmann/json.hpp>

namespace velkor::host {

using nlohmann::json;
using test::TemporaryFolder;
using testing::Not;

namespace {

Outcome report(const std::string& path, bool color = false, const std::string& format = "text") {
    return runHost({"report", path, "--format", format}, color);
}

json reportJson(const std::string& path) {
    const Outcome outcome = report(path, false, "json");
    EXPECT_EQ(outcome.status, Done) << outcome.err;
    return json::parse(outcome.out);
}

constexpr const char* smallData = "#1=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n"
                                  "#2=IFCSIUNIT(*,.PLANEANGLEUNIT.,$,.RADIAN.);\n"
                                  "#3=IFCUNITASSIGNMENT((#1,#2));\n"
                                  "#4=IFCPROJECT('0$WU4A9R19$vKWO$AdOnKA',$,'Small',$,$,'A small thing',$,$,#3);\n"
                                  "#5=IFCWALL('1$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,$);\n"
                                  "#6=IFCWALLSTANDARDCASE('2$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,$);\n"
                                  "#7=IFCOPENINGELEMENT('3$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,$);\n";

} // namespace

TEST(ReportCommand, TellsWhatAModelIs) {
    const TemporaryModel model("IFC4", smallData);
    const json answer = reportJson(model.path());
    EXPECT_EQ(answer["file"]["path"], model.path());
    EXPECT_EQ(answer["file"]["bytes"], std::filesystem::file_size(model.path()));
    EXPECT_EQ(answer["release"], json({{"dictionary", "IFC4"}, {"file_schema", {"IFC4"}}}));
    EXPECT_EQ(answer["header"]["author"], json({"Ada", "Grace"}));
    EXPECT_EQ(answer["header"]["originating_system"], "writer 2.0");
    EXPECT_EQ(answer["header"]["preprocessor_version"], "pre 1.0");
    EXPECT_EQ(answer["header"]["model_views"], json({"CoordinationView"}));
    EXPECT_EQ(answer["project"]["name"], "Small");
    EXPECT_EQ(answer["project"]["long_name"], "A small thing");
    EXPECT_EQ(answer["instances"]["total"], 7);
    // Subtypes count as their supertype; openings are no elements of their own.
    EXPECT_EQ(answer["contents"], json::parse(R"([{"entity": "IFCELEMENT", "count": 2},
                                                  {"entity": "IFCOPENINGELEMENT", "count": 1}])"));
    // The opening is in nothing, and the wall has no layers.
    EXPECT_EQ(answer["problems"]["total"], 2) << answer["problems"];
    EXPECT_EQ(answer["units"]["geometry"]["length_factor_mm"], 1.0);
    EXPECT_EQ(answer["property_sets"], nullptr) << "without definitions there is nothing to tell";

    const Outcome page = report(model.path());
    EXPECT_EQ(page.status, Done);
    EXPECT_THAT(page.err, IsEmpty());
    EXPECT_THAT(page.out, AllOf(HasSubstr("IFC4 model, 7 instances, 2 errors"), HasSubstr("Ada, Grace"),
                                ContainsRegex("Organization +not stated"), HasSubstr("2 elements, 1 opening"),
                                ContainsRegex("IFCSIUNIT +2 +28.6 %"), HasSubstr("1 model unit"),
                                HasSubstr("\nProperty sets  not checked: velkor resources says where")));
    EXPECT_THAT(page.out, Not(HasSubstr("\033"))) << "no colours without a terminal";
    EXPECT_THAT(report(model.path(), true).out, HasSubstr("\033[1m"));
}

TEST(ReportCommand, FindingsAreAPartOfThePage) {
    const TemporaryModel model("IFC4X3", "#1=IFCWALL('1$WU4A9R19$vKWO$AdOnKA',$,$,$,$,#99,$,$,$);\n"
                                         "#2=IFCFOO(1);\n#3=IFCFOO(2);\n");
    const json answer = reportJson(model.path());
    EXPECT_EQ(answer["release"], json({{"dictionary", "IFC4X3_ADD2"}, {"file_schema", {"IFC4X3"}}}));
    EXPECT_EQ(answer["project"], nullptr);
    EXPECT_EQ(answer["instances"]["keywords"][0], json({{"keyword", "IFCFOO"}, {"known", false}, {"count", 2}}));

    std::uint64_t counted = 0;
    bool sawUnknownEntity = false;
    for (const json& kind : answer["problems"]["kinds"]) {
        counted += kind["count"].get<std::uint64_t>();
        sawUnknownEntity |= kind["count"] == 2 && kind["first"]["instance"] == 2 && kind["first"]["line"] == 9;
    }
    EXPECT_EQ(counted, answer["problems"]["total"]);
    EXPECT_GE(counted, 3u);
    EXPECT_TRUE(sawUnknownEntity) << answer["problems"];

    const Outcome page = report(model.path());
    EXPECT_EQ(page.status, Done);
    EXPECT_THAT(page.out, AllOf(HasSubstr("IFC4X3_ADD2, read from FILE_SCHEMA \"IFC4X3\""),
                                HasSubstr("none in the file"), HasSubstr("IFCFOO (unknown)"), HasSubstr("line 9, #2"),
                                // The path holds blanks.
                                HasSubstr("velkor check '" + model.path() + "'")));
}

TEST(ReportCommand, IdentifiersAndPropertySetsHaveSections) {
    const auto page = [](const std::string& path) { return runHost({"report", path}, false, shippedResources).out; };
    const TemporaryModel model(
        "IFC4", std::string(smallData) + "#8=IFCWALL('1$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,$);\n"
                                         "#9=IFCPROPERTYSINGLEVALUE('FireRatng',$,$,$);\n"
                                         "#10=IFCPROPERTYSET('3xWU4A9R19$vKWO$AdOnKA',$,'Pset_WallCommon',$,(#9,#9));\n"
                                         "#11=IFCPROPERTYSET('4$WU4A9R19$vKWO$AdOnKA',$,'Acme',$,(#9));\n"
                                         "#12=IFCPROPERTYSET('3yWU4A9R19$vKWO$AdOnKA',$,'Acme',$,(#9));\n");
    const json answer = json::parse(runHost({"report", model.path(), "--format", "json"}, false, shippedResources).out);
    EXPECT_EQ(answer["identifiers"]["checked"], 8);
    EXPECT_EQ(answer["identifiers"]["errors"], 2);
    EXPECT_EQ(answer["identifiers"]["kinds"][0]["code"], "guid-duplicate");
    EXPECT_EQ(answer["identifiers"]["kinds"][0]["first"]["instance"], 8);
    EXPECT_EQ(answer["identifiers"]["kinds"][1]["first"]["line"], 18);
    const json& sets = answer["property_sets"];
    EXPECT_EQ(sets["sets"], json({{"total", 3}, {"checked", 1}, {"custom", 0}, {"not_checked", 2}}));
    EXPECT_EQ(sets["without_definition"], json::array({{{"set", "Acme"}, {"count", 2}}}));
    EXPECT_EQ(sets["findings"]["total"], 2);
    EXPECT_EQ(sets["findings"]["kinds"][0]["count"], 2);
    EXPECT_THAT(page(model.path()),
                AllOf(HasSubstr("\nIdentifiers  8, 2 errors\n  error    guid-duplicate in line 15, #8\n"),
                      HasSubstr("\nProperty sets  3 sets, 2 errors\n  Checked         1 with 2 properties"),
                      HasSubstr("\n  Not checked     2 without a definition: Acme (2)\n"
                                "  error    property-unknown, 2 times, first in line 17, #10\n"),
                      HasSubstr("velkor guid check '" + model.path()), HasSubstr("velkor validate '" + model.path())));

    EXPECT_THAT(page(example("house-ifc2x3.ifc")),
                AllOf(HasSubstr("\nIdentifiers  53, all well-formed and unique\n"),
                      HasSubstr("\nProperty sets  12 sets, nothing wrong with those checked\n")));
    EXPECT_THAT(page(example("road-ifc4x3.ifc")),
                HasSubstr("\nProperty sets  1 set, nothing wrong with those checked\n"));
    EXPECT_THAT(
        page(TemporaryModel("IFC4", "#1=IFCCARTESIANPOINT((0.,0.,0.));\n").path()),
        AllOf(HasSubstr("\nIdentifiers  none in the file\n"), HasSubstr("\nProperty sets  none in the file\n")));
}

TEST(ReportCommand, ProductsHaveASection) {
    const TemporaryFolder folder;
    folder.file("site/xcad/entries.xml", "<E><NeutralID Name=\"Wall\"><IFC Name=\"IfcWall\" Priority=\"1\"/>"
                                         "<NORVEL Name=\"PlmWall\"/></NeutralID></E>");
    const std::string ours = folder.file("ours.json", R"({"collection_standard": ["site"]})");
    const std::string broken = folder.file("broken.json", R"({"collection_standard": ["broken"]})");
    folder.file("broken/xcad/entries.xml", "<E>");
    const TemporaryModel model("IFC4", smallData), none("IFC4", "#1=IFCCARTESIANPOINT((0.,0.,0.));\n");
    const auto configured = [](const std::string& path, const std::string& configuration, const char* format = "text") {
        return runHost({"report", path, "--config", configuration, "--format", format});
    };
    const json answer = json::parse(configured(model.path(), ours, "json").out)["classification"];
    EXPECT_EQ(answer["total"], 3);
    EXPECT_EQ(answer["unclassified"], 1);
    EXPECT_EQ(answer["classes"],
              json::parse(R"([{"entity": "IFCOPENINGELEMENT", "neutral_id": null, "plm_type": null, "count": 1},
                        {"entity": "IFCWALL", "neutral_id": "Wall", "plm_type": "PlmWall", "count": 1},
                        {"entity": "IFCWALLSTANDARDCASE", "neutral_id": "Wall", "plm_type": "PlmWall", "count": 1}])"));
    EXPECT_THAT(configured(model.path(), ours).out,
                AllOf(HasSubstr("\nClassification  3 products, 1 without a neutral identifier\n  entity "),
                      HasSubstr("\n  IFCOPENINGELEMENT    -           -             1\n  IFCWALL "),
                      HasSubstr("  Each of them: velkor classify '" + model.path())));
    EXPECT_THAT(configured(none.path(), ours).out, HasSubstr("\nClassification  no products in the file\n"));

    // The page does without a document, but not with one that cannot be read.
    EXPECT_EQ(reportJson(model.path())["classification"], nullptr);
    EXPECT_THAT(report(model.path()).out, HasSubstr("\nClassification  not done\n  no document of correspondences: "));
    const Outcome outcome = configured(model.path(), broken);
    EXPECT_EQ(outcome.status, Unreadable);
    EXPECT_THAT(outcome.out, AllOf(HasSubstr("\nClassification  not done\n"), HasSubstr("\nProblems ")));
    EXPECT_THAT(outcome.err, HasSubstr("entries.xml: cannot be read\n"));
}

TEST(ReportCommand, AHostileFileDoesNotDisturbThePage) {
    const std::string longName(100'000, 'x');
    const TemporaryModel model(
        "IFC2X3", "#1=IFCPROJECT('0$WU4A9R19$vKWO$AdOnKA',$,'\\X\\1B[2Jred\\X2\\202E\\X0\\',$,$,$,$,$,$);\n",
        "ViewDefinition [unfinished", longName);
    const Outcome page = report(model.path(), true);
    EXPECT_EQ(page.status, Done);
    EXPECT_THAT(page.out,
                AllOf(Not(HasSubstr("\033[2J")), Not(HasSubstr("\u202E")), HasSubstr("\\u001b[2Jred\\u202e")));
    // What is long is there, once.
    EXPECT_THAT(page.out, HasSubstr(longName + '\n'));
    EXPECT_LT(page.out.size(), longName.size() + 5'000);
}

TEST(ReportCommand, WhatIsNoModelIsUnreadable) {
    const Outcome missing = report(example("missing.ifc"));
    EXPECT_EQ(missing.status, Unreadable);
    EXPECT_THAT(missing.out, IsEmpty());
    EXPECT_THAT(missing.err, AllOf(HasSubstr("missing.ifc"), Not(HasSubstr("\n\n"))));

    const TemporaryModel unknown("IFC9", "");
    const Outcome outcome = report(unknown.path());
    EXPECT_EQ(outcome.status, Unreadable);
    EXPECT_THAT(outcome.err, AllOf(HasSubstr("IFC9"), HasSubstr("IFC2X3")));
}

} // namespace velkor::host
