#include "ShellTestSupport.h"
#include "TemporaryFolder.h"

#include <gmock/gmock.h>
#include <string>

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;

using Outcome = velkor::host::ShellOutcome;
using velkor::host::shell;

TEST(Program, TellsItsVersionAndItsCommands) {
    const Outcome version = shell("velkor --version");
    EXPECT_EQ(version.status, 0);
    EXPECT_THAT(version.text, MatchesRegex("velkor [0-9]+\\.[0-9]+\\.[0-9]+\n"));

    const Outcome help = shell("velkor --help");
    EXPECT_EQ(help.status, 0);
    for (const std::string command : {"report", "check", "validate", "guid check", "units", "dictionary entity",
                                      "convert", "options", "resources"}) {
        EXPECT_THAT(help.text, HasSubstr("\n  " + command.substr(0, command.find(' '))));
        const Outcome one = shell("velkor " + command + " --help");
        EXPECT_EQ(one.status, 0) << command;
        EXPECT_THAT(one.text,
                    AllOf(HasSubstr("Example:\n  velkor " + command), HasSubstr("--format"), HasSubstr("--config")));
    }
}

TEST(Program, VersionNamesLibrariesCompilerAndBuildAsJson) {
    const Outcome version =
        shell("velkor --version --format json | python3 -c 'import json, sys; v = json.load(sys.stdin); "
              "print(v[\"version\"], *(l[\"name\"] for l in v[\"libraries\"]), v[\"compiler\"][\"name\"], \"type\" in "
              "v[\"build\"])'");
    EXPECT_THAT(version.text, MatchesRegex("[0-9.]+ libxml2 utf8proc zlib libzip xxhash (gcc|clang) True\n"));
    EXPECT_EQ(shell("velkor --format json 2>/dev/null").status, 2);
}

TEST(Program, HelpOfACommandIsWhatItsOptionSays) {
    for (const std::string command : {"", "report", "guid", "guid check", "dictionary entity", "help"}) {
        const Outcome help = shell("velkor help " + command);
        EXPECT_EQ(help.status, 0) << command;
        EXPECT_EQ(help.text, shell("velkor " + command + " --help").text);
    }
    for (const auto& [words, message] :
         {std::pair("rapport", "unknown command rapport; nearest: report\nSee \"velkor --help\""),
          {"guid chek", "unknown command chek; nearest: check\nSee \"velkor guid --help\""}}) {
        const Outcome quiet = shell(std::string("velkor help ") + words + " 2>/dev/null");
        EXPECT_EQ(quiet.status, 2) << words;
        EXPECT_THAT(quiet.text, IsEmpty());
        EXPECT_THAT(shell(std::string("velkor help ") + words + " 2>&1").text, HasSubstr(message));
    }
}

TEST(Program, BadUsageIsStatus2AndLeavesStandardOutputAlone) {
    for (const auto& [line, message] : {std::pair("", "Usage: velkor"),
                                        {"rapport", "unknown command rapport"},
                                        {"--fast", "unknown option --fast"},
                                        {"report", "velkor report --help"},
                                        {"report --format xml README.md", "xml"},
                                        {"dictionary list IFC4 IFC2X3", "IFC2X3"}}) {
        const Outcome quiet = shell(std::string("velkor ") + line + " 2>/dev/null");
        EXPECT_EQ(quiet.status, 2) << line;
        EXPECT_THAT(quiet.text, IsEmpty()) << line;
        EXPECT_THAT(shell(std::string("velkor ") + line + " 2>&1").text, HasSubstr(message)) << line;
    }
}

TEST(Program, WhatCannotBeReadIsStatus3) {
    for (const std::string path : {"no-such-file.ifc", "README.md", "/dev/null"}) {
        for (const std::string command : {"report", "check", "validate", "guid check", "units"}) {
            EXPECT_EQ(shell("velkor " + command + " " + path + " 2>/dev/null").status, 3) << command << ' ' << path;
        }
        EXPECT_THAT(shell("velkor report " + path + " 2>&1"),
                    testing::Field(&Outcome::text, MatchesRegex("velkor: [^\n]*" + path + "[^\n]*\n")));
    }
    // Here, since a process reads its PLM attributes once.
    const velkor::test::TemporaryFolder folder;
    folder.file("site/IfcPLMAttributesMapping/a.xml", "<broken");
    const std::string site = folder.file("site.json", R"({"collection_standard": ["site"]})");
    const Outcome plm = shell("velkor map plm Wall V_FireRating --config '" + site + "' 2>&1");
    EXPECT_EQ(plm.status, 3);
    EXPECT_THAT(plm.text, HasSubstr("a.xml:1:"));
}

TEST(Program, ResultsThatCannotBeWrittenAreNoSuccess) {
    const Outcome full = shell("velkor report examples/models/house-ifc2x3.ifc 2>&1 >/dev/full");
    EXPECT_EQ(full.status, 3);
    EXPECT_THAT(full.text, HasSubstr("could not be written"));

    // A reader that has seen enough ends the program neither with a message nor with a signal.
    const Outcome reader =
        shell("{ { velkor dictionary show IFC4 --declarations; echo $? >&3; } 2>&3 | head -1 >/dev/null; } 3>&1");
    EXPECT_EQ(reader.text, "0\n");
}

TEST(Program, WritesAModelToStandardOutputAndSaysTheRestBesideIt) {
    const std::string house = "examples/models/house-ifc2x3.ifc";
    EXPECT_EQ(shell("velkor convert " + house + " -o - 2>/dev/null | cmp - " + house).status, 0);
    const Outcome said = shell("velkor convert " + house + " -o - --to 4 2>&1 >/dev/null");
    EXPECT_EQ(said.status, 0);
    EXPECT_THAT(said.text, AllOf(HasSubstr(house + " to standard output"), HasSubstr("nothing lost")));

    const Outcome full = shell("velkor convert " + house + " -o - 2>&1 >/dev/full");
    EXPECT_EQ(full.status, 3);
    EXPECT_EQ(full.text, "velkor: standard output: cannot be written: No space left on device\n");
    const velkor::test::TemporaryFolder folder;
    const Outcome large = shell("(ulimit -f 4; velkor convert " + house + " -o '" + folder.path +
                                "/x.ifc' 2>&1); ls -A '" + folder.path + "'");
    EXPECT_THAT(large.text, MatchesRegex("velkor: [^\n]*/x.ifc: cannot be written: File too large\n"));
    // Half a model is no answer, also where the reader wants no more of it.
    const Outcome closed =
        shell("{ { sleep 0.2; velkor convert " + house + " -o - 2>/dev/null; echo $? >&3; } | exec true; } 3>&1");
    EXPECT_EQ(closed.text, "3\n");
}
