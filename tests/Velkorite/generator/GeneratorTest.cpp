#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace velkor::dictgen {

using testing::AllOf;
using testing::HasSubstr;
using testing::Pair;
using testing::StartsWith;

namespace {

namespace fs = std::filesystem;

// Two releases of a schema of a few lines, profiles for them, and the program run over both.
class Generator : public testing::Test {
protected:
    Generator() : root(fs::path(testing::TempDir()) / ("velkor dictgen " + std::to_string(getpid()))) {
        fs::remove_all(root);
        fs::create_directories(root / "out");
        write("ONE.exp", "SCHEMA ONE;\nTYPE Label = STRING; END_TYPE;\nTYPE Old = REAL; END_TYPE;\nEND_SCHEMA;\n");
        write("TWO.exp", "SCHEMA TWO;\nTYPE Label = STRING; END_TYPE;\n"
                         "ENTITY Root; Name : Label; UNIQUE UR1 : Name; END_ENTITY;\nEND_SCHEMA;\n");
        write("more.exp", "ENTITY More SUBTYPE OF (Root); END_ENTITY;\n");
        const auto release = [](const char* schema, const char* isSecond) {
            return std::string(R"({"schema": ")") + schema + R"(", "uniqueness_rules": )" + isSecond +
                   R"(, "derived_attributes": {"only": {}}, "supplement": )" + isSecond +
                   R"(, "flattened_selects": []})";
        };
        write("profiles.json", R"({"supplement": "more.exp", "releases": [)" + release("ONE", "false") + ", " +
                                   release("TWO", "true") + "]}");
    }
    ~Generator() override { fs::remove_all(root); }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(root / name, std::ios::binary) << text;
    }
    std::string read(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(root / name, std::ios::binary).rdbuf();
        return text.str();
    }

    /// Exit status and everything written.
    std::pair<int, std::string> run(const std::string& options) const {
        const std::string program = VELKOR_BIN_DIR "/velkor-dictgen --profiles profiles.json --out out ";
        FILE* pipe = popen(("cd '" + root.string() + "' && " + program + options + " 2>&1").c_str(), "r");
        std::string text;
        for (int c; pipe != nullptr && (c = std::getc(pipe)) != EOF;) text += static_cast<char>(c);
        const int status = pipe != nullptr ? pclose(pipe) : -1;
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, text};
    }

    fs::path root;
};

} // namespace

TEST_F(Generator, WritesWhatIsNewAndChecksWhatIsThere) {
    EXPECT_THAT(run("."), Pair(0, "wrote ONE.cpp\nwrote TWO.cpp\n"));
    EXPECT_THAT(run("."), Pair(0, "2 units were up to date\n"));
    EXPECT_THAT(run(". --check"), Pair(0, "2 units are what the sources give\n"));

    const std::string unit = read("out/TWO.cpp");
    EXPECT_THAT(unit, AllOf(StartsWith("// Made by velkor-dictgen from TWO.exp (SHA-256 "),
                            HasSubstr("), more.exp (SHA-256 "),
                            HasSubstr("// Entity(MORE,INSTANTIABLE,SIMPLE,INDEPENDENT)\n"),
                            // Stored with the first release, behind "Schema(ONE)" and its zero byte.
                            HasSubstr("    0x0000000C, // DefinedType(LABEL,StringType)\n")));
    const std::size_t at = unit.find("ExplicitAttr(NAME)\\0");
    ASSERT_NE(at, std::string::npos);
    std::string changed = unit;
    changed[at + 13] = 'M';
    write("out/TWO.cpp", changed);
    const auto line = std::ranges::count(unit.substr(0, at), '\n') + 1;
    EXPECT_THAT(run(". --check"), Pair(1, "out/TWO.cpp:" + std::to_string(line) +
                                              ": expected \"    \"ExplicitAttr(NAME)\\0\"\", found \"    "
                                              "\"ExplicitAttr(MAME)\\0\"\"\n"));
    EXPECT_EQ(read("out/TWO.cpp"), changed) << "a check writes nothing";

    write("out/TWO.cpp", unit.substr(0, unit.size() - 1));
    EXPECT_THAT(run(". --check"), Pair(1, HasSubstr(": expected other line ends")));
    write("out/TWO.cpp", unit + "//\n");
    EXPECT_THAT(run(". --check"), Pair(1, HasSubstr(": expected the end, found \"//\"")));
    fs::remove(root / "out/ONE.cpp");
    EXPECT_THAT(run(". --check"), Pair(1, StartsWith("out/ONE.cpp: cannot be read\nout/TWO.cpp:")));
    EXPECT_THAT(run("."), Pair(0, "wrote ONE.cpp\nwrote TWO.cpp\n"));
    EXPECT_EQ(read("out/TWO.cpp"), unit);
}

TEST_F(Generator, NamesFileAndLineOfWhatItCannotRead) {
    write("TWO.exp", "SCHEMA TWO;\n\nENTITY A\nEND_ENTITY;\n");
    EXPECT_THAT(run("."), Pair(3, "velkor-dictgen: ./TWO.exp:4: expected \";\", found \"END_ENTITY\"\n"));
    EXPECT_FALSE(fs::exists(root / "out/ONE.cpp")) << "nothing is written unless all can be";
    write("TWO.exp", "ENTITY A; B : Lost; END_ENTITY;");
    EXPECT_THAT(run(". --check"), Pair(3, "velkor-dictgen: ./TWO.exp: A needs Lost, which is not declared\n"));
    fs::remove(root / "more.exp");
    EXPECT_THAT(run("."), Pair(3, HasSubstr("more.exp: cannot be read")));
    fs::remove(root / "ONE.exp");
    EXPECT_THAT(run("."), Pair(3, HasSubstr("ONE.exp: cannot be read")));
    write("profiles.json", "[]");
    EXPECT_THAT(run("."), Pair(3, HasSubstr("profiles.json: ")));
    for (const char* usage : {"", ". --verbose"}) EXPECT_EQ(run(usage).first, 2);
}

} // namespace velkor::dictgen
