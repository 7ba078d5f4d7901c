#include "ShellTestSupport.h"
#include "TemporaryFolder.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::HasSubstr;

using Json = nlohmann::ordered_json;

namespace velkor::host {

namespace {

const std::string house = "examples/models/house-ifc2x3.ifc";
const std::string broken = "examples/models/broken.ifc";

// Every line by itself.
std::vector<Json> jsonLines(const std::string& text) {
    std::vector<Json> result;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) result.push_back(Json::parse(line));
    return result;
}

std::vector<std::string> filesOf(const std::vector<Json>& objects) {
    std::vector<std::string> files;
    for (const Json& object : objects) files.push_back(object.at("file").get<std::string>());
    return files;
}

// Models beside what is none, one in a folder that a link leads back from.
class Tree {
public:
    Tree() {
        for (const std::string name : {"b.ifc", "a.IFC", "inner/c.ifc", "inner/deep/d.ifc"}) copy(house, name);
        copy(broken, "inner/broken.ifc");
        folder.file("inner/torn.ifc", "ISO-10303-21;\nHEADER");
        folder.file("notes.txt");
        folder.file("model.ifcxml", "<ifc/>");
        std::filesystem::create_directory_symlink(folder.path, folder / "inner/loop");
        std::filesystem::create_symlink(folder / "b.ifc", folder / "link.ifc");
        std::filesystem::create_symlink("nowhere", folder / "lost.ifc");
    }
    void copy(const std::string& model, const std::string& name) const {
        const std::string path = folder.file(name);
        std::filesystem::copy_file(VELKOR_SOURCE_DIR "/" + model, path,
                                   std::filesystem::copy_options::overwrite_existing);
    }
    std::string quoted() const { return '\'' + folder.path + '\''; }
    std::vector<std::string> paths(std::vector<std::string> names) const {
        for (std::string& name : names) name = folder / name;
        return names;
    }

    const test::TemporaryFolder folder;
};

} // namespace

TEST(Models, TextStandsInTheOrderOfTheWordsAndASummaryBehindIt) {
    const ShellOutcome one = shell("velkor check " + broken), other = shell("velkor check " + house);
    const ShellOutcome both = shell("velkor check " + broken + " no.ifc " + house + " --jobs 8 2>/dev/null");
    EXPECT_EQ(both.status, 3);
    const std::string rest = both.text.substr(std::min(one.text.size(), both.text.size()));
    EXPECT_THAT(both.text, testing::StartsWith(broken + ":"));
    EXPECT_THAT(rest, HasSubstr("\n" + house + ": no problems found\n"));
    EXPECT_THAT(both.text,
                testing::EndsWith("\n\n3 models: 1 without findings, 1 with findings, 1 unreadable; 8 problems\n"));
    EXPECT_EQ(shell("velkor units " + house + " " + house + " | tail -1").text, "1 model: 1 read\n");
    EXPECT_EQ(shell("velkor validate " + broken + " " + house + " | head -1").text, broken + "\n");
}

TEST(Models, TheStatusIsTheWorst) {
    for (const auto& [words, status] : {std::pair(house + " " + house, 0),
                                        {house + " " + broken, 1},
                                        {house + " --rule NoSuchRule " + house, 2},
                                        {broken + " no.ifc " + house, 3},
                                        {house + " examples", 2},
                                        {"-r LICENSE examples/embedding", 3}})
        EXPECT_EQ(shell("velkor check " + words + " >/dev/null 2>&1").status, status) << words;
    const ShellOutcome folder = shell("velkor check " + house + " examples 2>&1");
    EXPECT_EQ(folder.text, "velkor: examples: is a folder; with -r the models in it are taken\n");
}

TEST(Models, FoldersAreTakenByPathAndEachFileOnce) {
    const Tree tree;
    const ShellOutcome found = shell("velkor check --format jsonl -r " + tree.quoted() + " '" + tree.folder.path +
                                     "/inner/../b.ifc' 2>/dev/null");
    EXPECT_EQ(found.status, 3);
    const auto objects = jsonLines(found.text);
    // "link.ifc" is "b.ifc", which stands before it.
    EXPECT_EQ(filesOf(objects), tree.paths({"a.IFC", "b.ifc", "inner/broken.ifc", "inner/c.ifc", "inner/deep/d.ifc",
                                            "inner/torn.ifc", "lost.ifc"}));
    EXPECT_FALSE(objects.at(5).contains("error")) << "a torn structure has problems";
    EXPECT_THAT(objects.back().at("error").get<std::string>(), HasSubstr("lost.ifc: cannot be read"));
    EXPECT_THAT(shell("velkor check --format jsonl -r examples/embedding 2>/dev/null").text,
                HasSubstr("holds no model"));
}

TEST(Models, OneObjectHoldsWhatEachModelAloneHas) {
    for (const std::string command : {"check --limit 3", "validate", "classify", "guid check", "units", "report"}) {
        const std::string line = "velkor " + command + " --format ";
        const auto alone = [&](const std::string& model) {
            Json json = Json::parse(shell(line + "json " + model).text);
            if (json.contains("judged")) json["judged"].erase("seconds");
            return json;
        };
        const auto known = [&](Json json) {
            if (json.contains("judged")) json["judged"].erase("seconds");
            return json;
        };
        const ShellOutcome all = shell(line + "json " + house + " no.ifc " + broken + " 2>/dev/null");
        const Json object = Json::parse(all.text);
        ASSERT_EQ(object.at("models").size(), 3) << command;
        EXPECT_EQ(known(object["models"][0]), alone(house)) << command;
        EXPECT_EQ(known(object["models"][2]), alone(broken)) << command;
        EXPECT_EQ(object["models"][1].at("error"), "no.ifc: cannot be read: No such file or directory");
        EXPECT_EQ(object.at("summary").at("models"), 3);
        EXPECT_EQ(object["summary"].at("unreadable"), 1);
        const auto lines = jsonLines(shell(line + "jsonl " + house + " no.ifc " + broken + " 2>/dev/null").text);
        ASSERT_EQ(lines.size(), 3) << command;
        for (std::size_t i = 0; i < lines.size(); ++i)
            EXPECT_EQ(known(lines[i]), known(object["models"][i])) << command;
    }
    // Further in by the two brackets around it.
    const std::string inner = shell("velkor units --format json " + house + " | sed 's/^/    /'").text;
    EXPECT_THAT(
        shell("velkor units --format json no.ifc " + house + " 2>/dev/null").text,
        HasSubstr("},\n" + inner.substr(0, inner.size() - 1) + "\n  ],\n  \"summary\": {\n    \"models\": 2,\n"));
}

TEST(Models, ALineOfJsonSaysOfASingleModelThatItCannotBeRead) {
    const ShellOutcome single = shell("velkor units no.ifc --format jsonl 2>/dev/null");
    EXPECT_EQ(single.status, 3);
    EXPECT_EQ(single.text,
              "{\"file\": \"no.ifc\", \"error\": \"no.ifc: cannot be read: No such file or directory\"}\n");
    EXPECT_EQ(shell("velkor units no.ifc --format jsonl 2>&1 >/dev/null").text,
              "velkor: no.ifc: cannot be read: No such file or directory\n");
    const ShellOutcome good = shell("velkor units " + house + " --format jsonl 2>&1");
    EXPECT_EQ(good.status, 0);
    EXPECT_EQ(jsonLines(good.text).size(), 1);
}

TEST(Models, RowsOfAllHaveTheirFileInFront) {
    const ShellOutcome all = shell("velkor classify --format csv " + broken + " no.ifc " + house + " 2>/dev/null");
    std::istringstream lines(all.text);
    std::string first, second;
    std::getline(lines, first), std::getline(lines, second);
    EXPECT_THAT(first, testing::StartsWith("file,instance,global_id,"));
    EXPECT_THAT(second, testing::StartsWith(broken + ",36,"));
    const auto rows = [](const std::string& model) { return shell("velkor classify --format csv " + model).text; };
    std::istringstream alone(rows(broken) + rows(house));
    std::string expected;
    for (std::string line, model; std::getline(alone, line);) {
        if (line.starts_with("instance,"))
            model = model.empty() ? broken : house;
        else
            (expected += model + ',' + line) += '\n';
    }
    EXPECT_EQ(all.text, first + '\n' + expected);
}

TEST(Models, StandardInputIsReadOnce) {
    const std::string input = " < " + broken;
    std::string alone = shell("velkor check --limit 3 " + broken + " | grep -v judged").text;
    for (std::size_t at; (at = alone.find(broken)) != std::string::npos;)
        alone.replace(at, broken.size(), "standard input");
    // All but the seconds.
    const auto cut = [](const std::string& text) { return text.substr(0, text.rfind(", ")); };
    EXPECT_EQ(cut(shell("velkor check --limit 3 -" + input).text), cut(alone));
    EXPECT_EQ(shell("velkor check - >/dev/null" + input).status, 1);
    const ShellOutcome piped = shell("cat " + broken + " | velkor units --format jsonl - " + house + " - 2>/dev/null");
    EXPECT_THAT(filesOf(jsonLines(piped.text)), ElementsAre("standard input", house));
    const ShellOutcome empty = shell("velkor units - 2>&1 < /dev/null");
    EXPECT_EQ(empty.status, 3);
    EXPECT_THAT(empty.text, testing::StartsWith("velkor: standard input"));
    EXPECT_EQ(shell("velkor convert - -o - 2>/dev/null < " + house + " | cmp - " + house).status, 0);
}

// A process that dies takes neither the others with it nor half a result into theirs.
TEST(Models, AProcessThatDiesIsToldOfAndTheOthersGoOn) {
    const test::TemporaryFolder folder;
    std::filesystem::copy_file(VELKOR_SOURCE_DIR "/" + house, folder / "good.ifc");
    std::string text = "ISO-10303-21;\nHEADER;FILE_DESCRIPTION((''),'2;1');FILE_NAME('','',(''),(''),'','','');\n"
                       "FILE_SCHEMA(('IFC4'));ENDSEC;\nDATA;\n";
    for (int i = 1; i < 1'000'000; ++i) ((text += '#') += std::to_string(i)) += "=IFCWALL('',$,$,$,$,$,$,$,$);\n";
    folder.file("large.ifc", text += "ENDSEC;\nEND-ISO-10303-21;\n");
    const std::string models = "'" + folder / "large.ifc" + "' '" + folder / "good.ifc" + "'";
    // What each process is allowed is too little for the large model.
    std::vector<std::pair<const char*, const char*>> limits = {{"ulimit -t 1", "ended by signal"}};
#ifndef __SANITIZE_ADDRESS__ // It reserves more than any limit.
    limits.emplace_back("ulimit -v 60000", "memory");
#endif
    for (const auto& [limit, words] : limits) {
        SCOPED_TRACE(limit);
        const ShellOutcome lines =
            shell(std::string("(") + limit + "; velkor check --jobs 1 --format jsonl " + models + " 2>/dev/null)");
        const auto objects = jsonLines(lines.text);
        ASSERT_EQ(objects.size(), 2);
        EXPECT_EQ(lines.status, 3);
        EXPECT_THAT(objects[0].at("error").get<std::string>(), HasSubstr(words));
        EXPECT_EQ(objects[1].at("total"), 0);
    }
}

TEST(Models, ConversionsKeepTheirNamesInAFolder) {
    const Tree tree;
    const std::string out = tree.folder.path + "/made/here";
    const ShellOutcome made = shell("velkor convert " + house + " no.ifc " + broken + " -o '" + out + "' --report '" +
                                    out + "' --to 4 2>/dev/null | tail -1");
    EXPECT_THAT(made.text, HasSubstr("3 models: "));
    for (const std::string name : {"house-ifc2x3.ifc", "broken.ifc", "broken.ifc.json"})
        EXPECT_TRUE(std::filesystem::exists(out + '/' + name)) << name;
    EXPECT_EQ(shell("ls '" + out + "' | wc -l").text, "4\n");
    EXPECT_EQ(shell("velkor convert " + house + " -o - --to 4 2>/dev/null | grep -v FILE_NAME | md5sum").text,
              shell("grep -v FILE_NAME '" + out + "/house-ifc2x3.ifc' | md5sum").text);

    tree.copy(house, "other/b.ifc");
    const std::string twice = "'" + tree.folder / "b.ifc" + "' '" + tree.folder / "other/b.ifc" + "'";
    for (const auto& [words, message] :
         {std::pair(twice + " -o '" + tree.folder.path + "/new'", "would both become"),
          {twice + " -o -", "several models need a folder"},
          {twice + " -o LICENSE", "several models need a folder"},
          {twice + " -o x --guids repair --guid-map LICENSE", "--guid-map: several models need a folder"}}) {
        const ShellOutcome refused = shell("velkor convert " + words + " 2>&1");
        EXPECT_EQ(refused.status, 2) << words;
        EXPECT_THAT(refused.text, HasSubstr(message)) << words;
    }
    EXPECT_FALSE(std::filesystem::exists(tree.folder / "new"));
}

TEST(Models, AThousandAreWorkedOnInOrderWithFewFilesOpen) {
    const test::TemporaryFolder folder;
    std::vector<std::string> expected;
    for (int i = 0; i < 1000; ++i) {
        const std::string path = folder / ("m" + std::to_string(1000 + i) + ".ifc");
        std::filesystem::copy_file(VELKOR_SOURCE_DIR "/" + house, path);
        expected.push_back(path);
    }
    const ShellOutcome all =
        shell("(ulimit -n 60; velkor units -r '" + folder.path + "' --jobs 8 --format jsonl 2>/dev/null)");
    EXPECT_EQ(all.status, 0);
    EXPECT_EQ(filesOf(jsonLines(all.text)), expected);
    // Who has seen enough ends all of it.
    const ShellOutcome some =
        shell("{ { velkor units -r '" + folder.path + "' --jobs 2; echo $? >&3; } 2>&3 | head -1 >/dev/null; } 3>&1");
    EXPECT_EQ(some.text, "0\n");
    const std::string two = "velkor units " + house + ' ' + broken + " | tail -1";
    EXPECT_EQ(shell("(trap '' CHLD; " + two + ')').text, "2 models: 2 read\n");
}

} // namespace velkor::host
