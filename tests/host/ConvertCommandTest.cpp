#include "Matchers.h"
#include "TemporaryFolder.h"
#include "TestSupport.h"

#include <filesystem>
#include <iterator>
#include <nlohmann/json.hpp>

namespace velkor::host {

using nlohmann::json;
using test::TemporaryFolder;
using testing::Not;

namespace {

/// What IFC2X3 has nothing for.
constexpr const char* colours = "#1=IFCCARTESIANPOINT((0.,0.));\n/* kept */\n#2=IFCCOLOURRGBLIST(((0.,0.5,1.)));\n"
                                "#3=IFCCOLOURRGBLIST(((0.,0.5,1.)));\n";

Outcome convert(const std::string& path, std::vector<std::string> options) {
    options.insert(options.begin(), {"convert", path});
    return runHost(std::move(options));
}

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// Names of what a folder holds, those of files that were left over among them.
std::vector<std::string> names(const TemporaryFolder& folder) {
    std::vector<std::string> result;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path))
        result.push_back(entry.path().filename().string());
    std::ranges::sort(result);
    return result;
}

} // namespace

TEST(ConvertCommand, WithoutAStepCopiesByteForByte) {
    const TemporaryFolder folder;
    for (const char* name : {"house-ifc2x3.ifc", "broken.ifc"}) {
        const Outcome outcome = convert(example(name), {"-o", folder / "copy.ifc"});
        EXPECT_EQ(outcome.status, Done);
        EXPECT_THAT(outcome.out, AllOf(HasSubstr("copy.ifc"), HasSubstr("a copy")));
        EXPECT_THAT(outcome.err, IsEmpty());
        EXPECT_EQ(contents(folder / "copy.ifc"), contents(example(name)));
    }
    EXPECT_THAT(names(folder), ElementsAre("copy.ifc"));
}

TEST(ConvertCommand, TellsByItsStatusWhetherSomethingIsLost) {
    const TemporaryFolder folder;
    const TemporaryModel model("IFC4", colours);
    const Outcome newer = convert(model.path(), {"-o", folder / "newer.ifc", "--to", "4x3"});
    EXPECT_EQ(newer.status, Done);
    EXPECT_THAT(newer.out, HasSubstr("IFC4 to IFC4X3_ADD2, 3 instances, nothing lost"));

    const Outcome older = convert(model.path(), {"-o", folder / "older.ifc", "--to", "IFC2X3"});
    EXPECT_EQ(older.status, Findings);
    EXPECT_THAT(older.out, AllOf(HasSubstr("IFC4 to IFC2X3, 3 instances, 2 losses"), HasSubstr("1 kept, 2 lost"),
                                 HasSubstr("#2 in line 10, IFCCOLOURRGBLIST"), HasSubstr("why: ")));
    EXPECT_THAT(contents(folder / "older.ifc"),
                AllOf(HasSubstr("FILE_SCHEMA(('IFC2X3'));"), HasSubstr("#1=IFCCARTESIANPOINT((0.,0.));\n/* kept */"),
                      HasSubstr("'2024-05-06T07:08:09'"), HasSubstr("'Velkor "), HasSubstr("[notYetAssigned]"),
                      Not(HasSubstr("IFCCOLOURRGBLIST"))));
}

TEST(ConvertCommand, AnswersAsOneObjectOnOutputOrInAFile) {
    const TemporaryFolder folder;
    const TemporaryModel model("IFC4", colours);
    const std::string result = folder / "result.ifc";
    const Outcome outcome = convert(model.path(), {"-o", result, "--to", "2x3", "--format", "json", "--limit", "1",
                                                   "--report", folder / "report.json"});
    EXPECT_EQ(outcome.status, Findings);
    EXPECT_EQ(contents(folder / "report.json"), outcome.out);
    const json answer = json::parse(outcome.out);
    EXPECT_EQ(answer["file"], model.path());
    EXPECT_EQ(answer["release"], "IFC4");
    EXPECT_EQ(answer["instances"], 3);
    EXPECT_EQ(answer["result"], result);
    EXPECT_EQ(answer["result_release"], "IFC2X3");
    EXPECT_EQ(answer["lossless"], false);
    ASSERT_THAT(answer["steps"], SizeIs(1));
    const json& step = answer["steps"][0];
    EXPECT_EQ(step["step"], "release");
    EXPECT_EQ(step["kept"], 1);
    EXPECT_EQ(step["lost"], 2);
    const json& lost = step["rules"][0];
    EXPECT_EQ(lost["effect"], "lost");
    EXPECT_EQ(lost["count"], 2);
    ASSERT_THAT(lost["first"], SizeIs(1));
    EXPECT_EQ(lost["first"][0]["instance"], 2);
    EXPECT_EQ(lost["first"][0]["line"], 10);
    EXPECT_EQ(lost["first"][0]["entity"], "IFCCOLOURRGBLIST");

    const json copy = json::parse(convert(model.path(), {"--dry-run", "--format", "json"}).out);
    EXPECT_EQ(copy["result"], nullptr);
    EXPECT_EQ(copy["lossless"], true);
    EXPECT_EQ(copy["steps"], json::array());
}

TEST(ConvertCommand, ListsAsManyPlacesAsAreAskedFor) {
    std::string data;
    for (int i = 1; i <= 200; ++i) (data += '#') += std::to_string(i) + "=IFCCOLOURRGBLIST(((0.,0.5,1.)));\n";
    const TemporaryModel model("IFC4", data);
    const auto places = [&model](std::vector<std::string> options) {
        options.insert(options.end(), {"--dry-run", "--to", "2x3"});
        const std::string page = convert(model.path(), std::move(options)).out;
        std::size_t count = 0;
        for (auto at = page.find(" in line "); at != std::string::npos; at = page.find(" in line ", at + 1)) ++count;
        return std::pair(count, page.find("(--limit shows more)") != std::string::npos);
    };
    EXPECT_EQ(places({}), std::pair(std::size_t{3}, true));
    EXPECT_EQ(places({"--limit", "150"}), std::pair(std::size_t{150}, true));
    EXPECT_EQ(places({"--limit", "200"}), std::pair(std::size_t{200}, false));
    EXPECT_EQ(places({"--limit", "0"}), std::pair(std::size_t{0}, true));
    const json answer =
        json::parse(convert(model.path(), {"--dry-run", "--to", "2x3", "--format", "json"}).out)["steps"][0];
    EXPECT_THAT(answer["rules"][0]["first"], SizeIs(100));
    EXPECT_EQ(answer["rules"][0]["count"], 200);
}

TEST(ConvertCommand, MayWriteOverItsModelAndThroughALink) {
    const TemporaryFolder folder;
    const std::string path = folder.file("model.ifc", contents(example("house-ifc2x3.ifc")));
    std::filesystem::create_symlink(path, folder / "link.ifc");
    EXPECT_EQ(convert(path, {"-o", path, "--to", "4"}).status, Done);
    EXPECT_THAT(contents(path), HasSubstr("FILE_SCHEMA(('IFC4'));"));
    EXPECT_EQ(convert(path, {"-o", folder / "link.ifc", "--to", "4x3"}).status, Done);
    EXPECT_THAT(contents(path), HasSubstr("FILE_SCHEMA(('IFC4X3_ADD2'));"));
    EXPECT_TRUE(std::filesystem::is_symlink(folder / "link.ifc"));
    EXPECT_THAT(names(folder), ElementsAre("link.ifc", "model.ifc"));
}

TEST(ConvertCommand, WordsThatMakeNoSenseAreBadUsage) {
    const TemporaryFolder folder;
    const std::string path = folder.file("model.ifc", contents(example("house-ifc2x3.ifc")));
    const std::string result = folder / "result.ifc", other = folder / "other";
    const std::pair<std::vector<std::string>, const char*> cases[] = {
        {{path}, "-o FILE is required, or --dry-run"},
        {{"-o", result}, "MODEL is required"},
        {{path, "-o", result, "--dry-run"}, "exclude each other"},
        {{path, "-o", result, "--to", "IFC5"}, "unknown release \"IFC5\"; supported: IFC2X3, IFC4"},
        {{path, "-o", result, "--unit", "LENGTHUNIT"}, "expected TYPE=NAME"},
        {{path, "-o", result, "--unit", "=METRE"}, "expected TYPE=NAME"},
        {{path, "-o", result, "--unit", "LENGTHUNIT="}, "expected TYPE=NAME"},
        {{path, "-o", result, "--length-unit", "METER"}, "--length-unit: there is no unit \"METER\""},
        {{path, "-o", result, "--length-unit", "METER"}, "METRE"},
        {{path, "-o", result, "--unit", "AREAUNIT=METRE"}, "--unit: there is no unit \"METRE\" of type AREAUNIT"},
        {{path, "-o", result, "--unit", "LENGTHUNIT=FOOT", "--length-unit", "METRE"},
         "LENGTHUNIT is given a unit twice"},
        {{path, "-o", result, "--guids", "mend"}, "expected \"repair\" or \"from-plm ATTRIBUTE\", found \"mend\""},
        {{path, "-o", result, "--guids", "from-plm"}, "expected \"repair\" or \"from-plm ATTRIBUTE\""},
        {{path, "-o", result, "--guids", "from-plm", "--dry-run"}, "exclude each other"},
        {{path, "-o", result, "--guid-map", other}, "--guid-map requires --guids"},
        {{path, "-o", result, "--custom-mapping", "both"}, "both"},
        {{path, "-o", result, "--limit", "few"}, "whole number"},
        {{path, "-o", result, "--report", path}, "is the model or the result itself"},
        {{path, "-o", result, "--report", result}, "is the model or the result itself"},
        {{path, "-o", result, "--report", folder / "./result.ifc"}, "is the model or the result itself"},
        {{path, "-o", result, "--guids", "repair", "--guid-map", other, "--report", other}, "name the same file"},
    };
    for (const auto& [words, message] : cases) {
        std::vector<std::string> line{"convert"};
        line.insert(line.end(), words.begin(), words.end());
        const Outcome outcome = runHost(line);
        EXPECT_EQ(outcome.status, BadUsage) << message;
        EXPECT_THAT(outcome.err, HasSubstr(message));
        EXPECT_THAT(outcome.out, IsEmpty()) << message;
    }
    EXPECT_THAT(names(folder), ElementsAre("model.ifc"));
}

TEST(ConvertCommand, WhatCannotBeReadOrWrittenIsSaidAndLeavesNoFile) {
    const TemporaryFolder folder;
    const std::string path = folder.file("model.ifc", contents(example("house-ifc2x3.ifc")));
    const std::string result = folder / "result.ifc", nowhere = folder / "no-such-folder/file";
    const std::tuple<std::vector<std::string>, std::string, const char*> cases[] = {
        {{folder / "none.ifc", "-o", result}, folder / "none.ifc", "No such file or directory"},
        {{path, "-o", nowhere}, nowhere, "No such file or directory"},
        {{path, "-o", folder.path}, folder.path, "Is a directory"},
        {{path, "-o", "/dev/full"}, "/dev/full", "No space left on device"},
        {{path, "-o", "/dev/full", "--to", "4", "--report", folder / "report"}, "/dev/full", "No space left"},
        {{path, "-o", result, "--report", "/dev/full"}, "/dev/full", "No space left"},
        {{path, "-o", result, "--report", nowhere}, nowhere, "No such file or directory"},
        {{path, "-o", result, "--guids", "repair", "--guid-map", nowhere}, nowhere, "No such file or directory"}};
    for (const auto& [words, name, reason] : cases) {
        std::vector<std::string> line{"convert"};
        line.insert(line.end(), words.begin(), words.end());
        const Outcome outcome = runHost(line);
        EXPECT_EQ(outcome.status, Unreadable) << reason;
        EXPECT_THAT(outcome.err, AllOf(StartsWith("velkor: " + name + ": cannot be "), HasSubstr(reason)));
        EXPECT_THAT(outcome.out, IsEmpty());
        EXPECT_THAT(names(folder), ElementsAre("model.ifc")) << name;
    }
    // A conversion that is refused leaves what was there.
    folder.file("result.ifc", "before");
    EXPECT_EQ(convert(example("broken.ifc"), {"-o", nowhere, "--to", "4"}).status, Unreadable);
    EXPECT_EQ(contents(result), "before");
}

TEST(ConvertCommand, ConvertsUnitsThereAndBack) {
    const TemporaryFolder folder;
    const std::string inches = folder / "inches.ifc", back = folder / "back.ifc";
    EXPECT_EQ(convert(example("house-ifc2x3.ifc"), {"-o", inches, "--length-unit", "inch"}).status, Done);
    EXPECT_EQ(runHost({"check", inches}).status, Done);
    EXPECT_THAT(runHost({"units", inches}).out, HasSubstr("1 length unit = 25.4 mm"));
    const Outcome outcome =
        convert(inches, {"-o", back, "--unit", "LENGTHUNIT=MILLIMETRE", "--unit", "PLANEANGLEUNIT=RADIAN"});
    EXPECT_EQ(outcome.status, Done);
    EXPECT_THAT(contents(back), AllOf(HasSubstr("#56=IFCRECTANGLEPROFILEDEF(.AREA.,$,#31,8000.,300.);"),
                                      HasSubstr("#57=IFCEXTRUDEDAREASOLID(#56,#30,#27,2600.);")));
    EXPECT_THAT(runHost({"units", back}).out, HasSubstr("1 plane angle unit = 1 rad"));
    // The model assigns no such unit that could be replaced.
    const Outcome refused = convert(back, {"-o", inches, "--unit", "FREQUENCYUNIT=HERTZ"});
    EXPECT_EQ(refused.status, Unreadable);
    EXPECT_THAT(refused.err, HasSubstr("FREQUENCYUNIT"));
}

TEST(ConvertCommand, RepairsIdentifiersAndWritesWhichWereWhich) {
    const TemporaryFolder folder;
    const std::string result = folder / "result.ifc", map = folder / "map.csv";
    const Outcome outcome = convert(example("broken.ifc"), {"-o", result, "--guids", "repair", "--guid-map", map});
    EXPECT_EQ(outcome.status, Done);
    EXPECT_EQ(runHost({"guid", "check", result}).status, Done);
    const std::string text = contents(map), written = contents(result);
    EXPECT_THAT(text, MatchesRegex("instance,before,after\r\n"
                                   "161,09Uxp7RJnOiQp5Hl3DjntD,[0-3][0-9A-Za-z_$]{21}\r\n"
                                   "177,79eczyxVvNXfwx5J1Yt5YO,[0-3][0-9A-Za-z_$]{21}\r\n"
                                   "191,3JQWZuhgvMywGOvCgjps6,[0-3][0-9A-Za-z_$]{21}\r\n"));
    for (std::size_t at = text.find("\r\n"); at + 4 < text.size(); at = text.find("\r\n", at + 2))
        EXPECT_THAT(written, HasSubstr("('" + text.substr(text.find("\r\n", at + 2) - 22, 22) + "',"));
}

TEST(ConvertCommand, TakesIdentifiersFromPlmIdentifiers) {
    const TemporaryModel model("IFC4", "#1=IFCWALL('0YvctVUKr0kugbFTf53O9L',$,'W',$,$,$,$,'DOOR-0815',$);\n");
    for (const std::vector<std::string>& words : {std::vector<std::string>{"--guids", "from-plm", "Tag", model.path()},
                                                  {"--guids=from-plm=Tag", model.path()},
                                                  {model.path(), "--guids", "from-plm", "Tag"}}) {
        const TemporaryFolder folder;
        std::vector<std::string> line{"convert", "-o", folder / "result.ifc"};
        line.insert(line.end(), words.begin(), words.end());
        EXPECT_NE(runHost(line).status, BadUsage);
        EXPECT_THAT(contents(folder / "result.ifc"), HasSubstr("('ahr4tSr4tS7FmRwXyNkCks',"));
    }
}

TEST(ConvertCommand, NamesPropertiesAsTheShippedMappingsSay) {
    const TemporaryFolder folder;
    const std::string house = example("house-ifc2x3.ifc"), result = folder / "result.ifc", back = folder / "back.ifc";
    const auto mapped = [](const std::string& from, const std::string& to, const std::vector<std::string>& words) {
        std::vector<std::string> line{"convert", from, "-o", to};
        line.insert(line.end(), words.begin(), words.end());
        const Outcome outcome = runHost(line, false, shippedResources);
        EXPECT_EQ(outcome.status, Done) << outcome.err;
        EXPECT_THAT(outcome.out, HasSubstr("Properties  "));
        EXPECT_EQ(runHost({"check", to}).status, Done);
        return contents(to);
    };
    const std::string imported = mapped(house, result, {"--custom-mapping", "import"});
    EXPECT_THAT(imported, AllOf(HasSubstr("'Norvel_FireSafety'"), HasSubstr("#114=IFCPROPERTYSINGLEVALUE('FireRes")));
    const std::string exported = mapped(result, back, {"--custom-mapping", "export"});
    EXPECT_THAT(exported,
                AllOf(Not(HasSubstr("'Norvel_FireSafety'")), HasSubstr("#114=IFCPROPERTYSINGLEVALUE('FireRat")));
    // The model has no property of a PLM attribute's name.
    EXPECT_THAT(mapped(house, result, {"--plm-attributes"}), HasSubstr("#114=IFCPROPERTYSINGLEVALUE('FireRat"));
}

TEST(ConvertCommand, ADocumentThatCannotBeReadEndsIt) {
    const TemporaryFolder folder;
    folder.file("site/ifc/VersionMapping.xml", "<broken");
    const std::string configuration = folder.file("site.json", R"({"collection_standard": ["site"]})");
    const Outcome outcome =
        convert(example("house-ifc2x3.ifc"), {"-o", folder / "x.ifc", "--to", "4", "--config", configuration});
    EXPECT_EQ(outcome.status, Unreadable);
    EXPECT_THAT(outcome.err, AllOf(HasSubstr("VersionMapping.xml"), HasSubstr("cannot be converted")));
    EXPECT_THAT(names(folder), ElementsAre("site", "site.json"));
}

TEST(ConvertCommand, ListsEveryRuleWithItsReason) {
    const Outcome page = runHost({"convert", "--rules"});
    EXPECT_EQ(page.status, Done);
    const json answer = json::parse(runHost({"convert", "--rules", "--format", "json"}).out);
    std::set<std::string> known;
    for (const json& step : answer["steps"]) {
        ASSERT_FALSE(step["rules"].empty()) << step["step"];
        for (const json& rule : step["rules"]) {
            const auto name = rule["rule"].get<std::string>();
            EXPECT_THAT(name, MatchesRegex("[a-z0-9]+(-[a-z0-9]+)*"));
            EXPECT_THAT(page.out, HasSubstr(name));
            EXPECT_TRUE(known.insert(step["step"].get<std::string>() + '/' + name).second) << name;
            EXPECT_THAT(rule["effect"].get<std::string>(), MatchesRegex("kept|converted|rebuilt|lost"));
            for (const char* text : {"what", "reason"}) {
                EXPECT_THAT(rule[text].get<std::string>(), MatchesRegex("[A-Z].*[^.]")) << name;
            }
        }
    }
    EXPECT_THAT(known, testing::Contains("release/view-definition"));
}

} // namespace velkor::host
