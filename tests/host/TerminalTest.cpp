#include "terminal/LineFitter.h"
#include "terminal/Page.h"
#include "terminal/TextSink.h"
#include "terminal/TextTable.h"

#include <gmock/gmock.h>
#include <sstream>

using testing::ElementsAre;

namespace velkor::host {

namespace {

std::string writtenOn(std::size_t width, const TextTable& table) {
    std::ostringstream stream;
    LineFitter fitter(stream, width);
    const TextSink out(stream, fitter);
    table.write(out);
    out.flush();
    return stream.str();
}

} // namespace

TEST(LineFitter, BreaksBetweenWordsAndGoesOnFurtherIn) {
    EXPECT_THAT(fittedLines("one two three", 13), ElementsAre("one two three"));
    EXPECT_THAT(fittedLines("one two three", 12), ElementsAre("one two", "    three"));
    EXPECT_THAT(fittedLines("  name  one two three", 16), ElementsAre("  name  one two", "        three"));
    EXPECT_THAT(fittedLines("      one two three", 14), ElementsAre("      one two", "      three"));
    // A colour takes no column, wide characters take two.
    EXPECT_THAT(fittedLines("\033[1mone two\033[0m", 7), ElementsAre("\033[1mone two\033[0m"));
    EXPECT_THAT(fittedLines("建物 部材", 8), ElementsAre("建物", "    部材"));
}

TEST(LineFitter, BreaksAWordThatNoLineHoldsBehindAMark) {
    EXPECT_THAT(fittedLines("folder/file.ifc", 12), ElementsAre("folder/file.", "    ifc"));
    EXPECT_THAT(fittedLines("abcdefghijkl", 8), ElementsAre("abcdefgh", "    ijkl"));
    EXPECT_THAT(fittedLines("建物部材", 5), ElementsAre("建物", "  部", "  材"));
}

TEST(LineFitter, WritesLinesWhenTheyEndAndWhatIsLeftAsItIs) {
    std::ostringstream stream;
    LineFitter fitter(stream, 9);
    fitter.write("one ");
    EXPECT_EQ(stream.str(), "");
    fitter.write("two three\n\nfour five");
    EXPECT_EQ(stream.str(), "one two\n    three\n\n");
    fitter.flush();
    EXPECT_EQ(stream.str(), "one two\n    three\n\nfour five");
}

TEST(LineFitter, TakesTheWidthThatTheUserStates) {
    EXPECT_EQ(terminalWidth(-1, "100"), 100U);
    EXPECT_EQ(terminalWidth(-1, "1"), 20U);
    EXPECT_EQ(terminalWidth(-1, "99999999"), 10'000U);
    for (const char* none : {"", "0", "-4", "80x", "99999999999999999999999"}) {
        EXPECT_EQ(terminalWidth(-1, none), LineFitter::usualWidth) << none;
    }
}

TEST(TextTable, LetsTheWidestColumnGive) {
    TextTable table({{"name"}, {"meaning"}, {"count", TextTable::Right}});
    table.add({"door", "a way in or out of a room", "12,345"});
    EXPECT_EQ(writtenOn(40, table), "name  meaning                     count\n"
                                    "door  a way in or out of a room  12,345\n");
    EXPECT_EQ(writtenOn(30, table), "name  meaning            count\n"
                                    "door  a way in or out   12,345\n"
                                    "      of a room\n");
    // What holds no number as a column holds it in a row of its own.
    EXPECT_EQ(writtenOn(20, table), "name: door\n"
                                    "meaning: a way in or\n"
                                    "    out of a room\n"
                                    "count: 12,345\n");
}

TEST(Page, CutsALongTextOnATerminalAlone) {
    const std::string words(100'000, 'x');
    std::ostringstream terminal, file;
    LineFitter fitter(terminal, 80);
    Page({terminal, fitter}, false).entry("Name", words + " end");
    EXPECT_LT(terminal.str().size(), 600U);
    EXPECT_THAT(terminal.str(), testing::EndsWith("x…\n"));
    Page(file, false).entry("Name", words + " end");
    EXPECT_THAT(file.str(), testing::EndsWith(words + "\n                  end\n"));
}

TEST(TextTable, CutsOnATerminalWhatCannotBeWrapped) {
    TextTable table({{"a"}, {"b"}});
    table.add({"abcdefghijklmnopqrstuvwxyz", "   "});
    table.add({std::string(100'000, 'x'), ""});
    EXPECT_EQ(writtenOn(20, table), "a                b\n"
                                    "abcdefghijklmn…\n"
                                    "xxxxxxxxxxxxxx…\n");
    std::ostringstream file;
    table.write(file);
    EXPECT_THAT(file.str(), testing::HasSubstr('\n' + std::string(100'000, 'x') + '\n'));
    EXPECT_LT(file.str().size(), 101'000U);
}

} // namespace velkor::host
