#include "BlockClassifier.h"

#include "ExchangeText.h"

#include <algorithm>
#include <random>

namespace velkor::sdai::test {

namespace {

constexpr ScanPath everyPath[] = {ScanPath::Automatic, ScanPath::Sse2, ScanPath::Avx2, ScanPath::Avx512};
constexpr std::size_t block = part21::blockSize;
constexpr std::size_t chunk = 256 * block;

/// All that reading finds, as one text to compare.
std::string found(const std::string& text, ScanPath path) {
    const auto file = read(text, path);
    if (!file) return "";
    std::string result;
    for (std::uint32_t i = 0; i < file->instanceCount(); ++i) {
        result += std::to_string(file->offset(i)) + '#' + std::to_string(file->id(i)) + ":" +
                  std::to_string(file->keyword(i)) + ":" + std::string(file->instanceText(i)) + "\n";
    }
    for (const std::string& keyword : file->keywords()) result += keyword + " ";
    for (const Problem& problem : file->problems()) {
        result += std::to_string(problem.offset) + problem.code + problem.message + "\n";
    }
    return result + std::to_string(file->problemCount());
}

/// What the portable path finds, after comparing every other with it.
std::string agreed(const std::string& text) {
    const std::string expected = found(text, ScanPath::Portable);
    for (const ScanPath path : everyPath) {
        if (part21::blockClassifier(path) == nullptr) continue;
        const std::string other = found(text, path);
        EXPECT_EQ(other, expected) << "path " << static_cast<int>(path) << " on " << text.substr(0, 2000);
    }
    return expected;
}

/// An instance whose text has everything that makes a scan doubt.
const std::string doubtful = R"(#77/*=;'*/=A('\S\'',/* '; */'#8=B();=','\\','/*',"0",'a''=;b' /**/,'\\S\\');)";

} // namespace

TEST(ScanPath, BordersOfBlocksAndChunksCutNothing) {
    const std::string begin = "ISO-10303-21;HEADER;ENDSEC;DATA;\n";
    for (std::size_t border : {2 * block, chunk, 2 * chunk}) {
        for (std::size_t shift = 0; shift <= doubtful.size(); ++shift) {
            std::string text = begin + "#1=A();";
            text.append(border - shift - text.size(), shift % 2 == 0 ? ' ' : '\n');
            const std::size_t at = text.size();
            text += doubtful + "#78=B();\nENDSEC;END-ISO-10303-21;";
            const auto file = read(text, ScanPath::Portable);
            ASSERT_THAT(ids(*file), testing::ElementsAre(1, 77, 78)) << border << ' ' << shift;
            ASSERT_EQ(file->offset(1), at);
            ASSERT_EQ(file->instanceText(1), std::string_view(doubtful).substr(doubtful.find("A(")));
            ASSERT_EQ(file->problemCount(), 0u) << file->problems()[0].message;
            agreed(text);
        }
    }
}

TEST(ScanPath, LongStringsAndCommentsReachOverChunks) {
    const std::string filler(chunk + 100, ';');
    const std::string text = withData("#1=A('" + filler + "');/*" + filler + "'*/#2=B('\\S\\'" + filler + "');#3=C();");
    EXPECT_EQ(read(text)->instanceCount(), 3u);
    agreed(text);
}

TEST(ScanPath, DamagedTextsReadAlike) {
    std::string sound = withData("");
    sound.insert(sound.find("ENDSEC;\nEND"), [] {
        std::string data;
        for (int i = 1; i < 60; ++i) {
            data += '#' + std::to_string(i) + "=IFCTHING" + std::to_string(i % 5) + "('t;=" + std::to_string(i) +
                    "',#" + std::to_string(i - 1) + ",(1.,2.),/* c */$);" + (i % 4 == 0 ? "\r\n" : "\n");
            if (i % 20 == 0) data += doubtful;
        }
        return data;
    }());
    const std::string expected = agreed(sound);
    std::mt19937 random(4711);
    const std::vector<std::string> splinters{"'", "/*", "*/", "\\", "\\S\\",   ";",    "=",
                                             "#", "\n", "(",  ")",  "ENDSEC;", "\xFF", "DATA;"};
    int changed = 0;
    for (int round = 0; round < 400; ++round) {
        std::string text = sound;
        for (int hits = 1 + static_cast<int>(random() % 3); hits > 0; --hits) {
            const std::size_t at = 20 + random() % (text.size() - 20);
            const std::string& splinter = splinters[random() % splinters.size()];
            if (random() % 2 == 0)
                text.replace(at, random() % 8, splinter);
            else
                text.insert(at, splinter);
        }
        changed += agreed(text) == expected ? 0 : 1;
    }
    EXPECT_GT(changed, 300) << "the damage was not seen";
}

} // namespace velkor::sdai::test
