#include "ExchangeText.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/sdai/ReferenceIndex.h"

#include <chrono>
#include <filesystem>
#include <set>

namespace velkor::sdai::test {

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;

std::vector<std::string> references(std::string_view text) {
    std::vector<std::string> result;
    Part21Lexer lexer(text);
    for (Token token = lexer.nextReference(); token.kind != TokenKind::End; token = lexer.nextReference())
        result.emplace_back(token.text);
    return result;
}

/// The ids of the users of an instance.
std::vector<std::uint64_t> users(const Part21File& file, const ReferenceIndex& index, std::uint64_t id) {
    std::vector<std::uint64_t> result;
    for (const std::uint32_t user : index.users(*file.find(id))) result.push_back(file.id(user));
    return result;
}

} // namespace

TEST(References, AreFoundWhateverStandsAround) {
    EXPECT_THAT(references("A(#1,(#2,$,T(#3)),'#4 ''#5',/* #6 ' */#7,\"0F\",'\\S\\'#8',#9);#10"),
                ElementsAre("#1", "#2", "#3", "#7", "#9"));
    EXPECT_THAT(references("(A(#1)B('/*',#2,'*/',#3))"), ElementsAre("#1", "#2", "#3"));
    EXPECT_THAT(references("A(#,#x,#1x,/,#2 /* #3"), ElementsAre("#2", "#3"));
    EXPECT_THAT(references("A(#1,'#2"), ElementsAre("#1"));
    EXPECT_THAT(references(""), ElementsAre());
}

TEST(References, UsersStandInFileOrderEachOnce) {
    const std::string text = withData("#9=A(#2,#2,(#9));\n#2=B($);\n#5=A(#2,#7,#99,#0);\n#2=A(#9);\n#4=(C(#5)D(#2));\n"
                                      "#3=A(#2,';\n#6=A(#2;\n");
    const auto file = read(text);
    const ReferenceIndex index(*file);
    EXPECT_THAT(users(*file, index, 2), ElementsAre(9, 5, 4, 3, 6));
    EXPECT_THAT(users(*file, index, 9), ElementsAre(9, 2));
    EXPECT_THAT(users(*file, index, 5), ElementsAre(4));
    EXPECT_THAT(users(*file, index, 6), ElementsAre());
    // The second of an id has none: references mean the first.
    EXPECT_TRUE(index.users(3).empty());
    const std::string none = withData("");
    EXPECT_LT(ReferenceIndex(*read(none)).memoryUse(), 100U);
}

TEST(References, AgreeWithTheTokensOfEveryModel) {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(VELKOR_SOURCE_DIR "/examples/models")) {
        const auto file = Part21File::open(entry.path().string());
        if (!file) continue;
        const ReferenceIndex index(**file);
        std::vector<std::set<std::uint32_t>> expected((*file)->instanceCount());
        for (std::uint32_t user = 0; user < expected.size(); ++user) {
            Part21Lexer lexer((*file)->instanceText(user));
            for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
                if (token.kind != TokenKind::InstanceName) continue;
                if (const auto used = (*file)->find(decodeInstanceName(token.text))) expected[*used].insert(user);
            }
        }
        for (std::uint32_t used = 0; used < expected.size(); ++used) {
            ASSERT_THAT(index.users(used), ElementsAreArray(expected[used])) << entry.path() << (*file)->id(used);
            count += expected[used].size();
        }
    }
    EXPECT_GT(count, 1000U);
}

TEST(References, ManyToOneAndManyCommentsTakeTimeInProportion) {
    std::string data = "#1=A();\n";
    const std::uint32_t many = 300'000;
    for (std::uint32_t id = 2; id < many; ++id) ((data += '#') += std::to_string(id)) += "=B(#1,#1,#1);\n";
    // Where each opening has to be looked up behind the one before, this takes minutes.
    std::string comments = "#0=C(";
    for (std::uint32_t i = 0; i < many; ++i) comments += "/*,";
    const std::string text = withData(data + comments);
    const auto file = read(text);
    const auto begin = std::chrono::steady_clock::now();
    const ReferenceIndex index(*file);
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
    EXPECT_EQ(index.users(0).size(), many - 2);
    EXPECT_LE(index.memoryUse(), 9U * many);
}

} // namespace velkor::sdai::test
