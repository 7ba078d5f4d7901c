#include "velkor/sdai/ModelEdit.h"

#include "SampleModel.h"
#include "velkor/files/ScratchFile.h"

#include <gmock/gmock.h>

namespace velkor::sdai::test {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const std::string data =
    "#1=LEAF('n',1,((#2)));\n#2=OTHER();\n#3=HOLDER($,$,$,$,$,$,$,$,$,#1,$,$);\n#4=NOTHING();\n#5=LEAF('x',\n";

std::string written(const ModelEdit& edit) {
    auto scratch = files::ScratchFile::create();
    edit.write(scratch->output());
    EXPECT_TRUE(scratch->output().commit());
    const std::string text(*scratch->text());
    const std::size_t begin = text.find("DATA;\n") + 6;
    return text.substr(begin, text.find("ENDSEC;\nEND") - begin);
}

class ModelEditTest : public SampleModel {};

} // namespace

TEST_F(ModelEditTest, SetsAttributesByNameAndLeavesTheRest) {
    ModelEdit edit(open(data));
    EXPECT_TRUE(edit.set(1, "name", "'m'"));
    EXPECT_TRUE(edit.set(1, "SIZE", "7"));
    EXPECT_TRUE(edit.set(3, "WEIGHT", "2.5"));
    EXPECT_EQ(edit.value(1, "Name"), "'m'");
    EXPECT_EQ(edit.value(3, "Target"), "#1");
    EXPECT_EQ(
        written(edit),
        "#1=LEAF('m',7,((#2)));\n#2=OTHER();\n#3=HOLDER(2.5,$,$,$,$,$,$,$,$,#1,$,$);\n#4=NOTHING();\n#5=LEAF('x',\n");
}

TEST_F(ModelEditTest, RefusesWhatTheDictionaryDoesNotAllow) {
    ModelEdit edit(open(data));
    const struct {
        std::uint64_t id;
        const char* attribute;
        const char* value;
        const char* reason;
    } cases[] = {
        {1, "NAME", "7", "LEAF.NAME: expected"},
        {1, "NAME", "$", "is required"},
        {1, "NAME", "'a','b'", "expected a value"},
        {1, "NAME", "'a", "expected a value"},
        {1, "COLOUR", "'a'", "LEAF has no attribute COLOUR"},
        {3, "WEIGHT", "'heavy'", "HOLDER.WEIGHT: expected"},
        {3, "CODE", "'long'", "HOLDER.CODE: expected"},
        {3, "TARGET", "#99", "which the file does not have"},
        {3, "TINTS", "(.RED.)", "HOLDER.TINTS: expected"},
        {9, "NAME", "'a'", "there is no instance #9"},
        {4, "NAME", "'a'", "no instance of an entity"},
        {5, "NAME", "'a'", "damaged"},
    };
    for (const auto& one : cases) {
        const auto done = edit.set(one.id, one.attribute, one.value);
        ASSERT_FALSE(done) << one.attribute << one.value;
        EXPECT_THAT(done.error(), HasSubstr(one.reason));
    }
    EXPECT_EQ(written(edit), data);
}

TEST_F(ModelEditTest, CreatesInstancesThatOthersMayReferTo) {
    ModelEdit edit(open(data));
    const auto other = edit.create("PART", {{"NAME", "'p'"}, {"LEFT", "NICKNAME('q')"}});
    ASSERT_TRUE(other) << other.error();
    const auto leaf = edit.create("leaf", {{"NAME", "'new'"}, {"PARTS", "((#" + std::to_string(*other) + "))"}});
    ASSERT_TRUE(leaf) << leaf.error();
    EXPECT_TRUE(edit.set(3, "VALUE", "#" + std::to_string(*other)));
    EXPECT_THAT(edit.users(*other), ElementsAre(3u, *leaf));
    EXPECT_THAT(edit.users(1), ElementsAre(3u));
    EXPECT_THAT(edit.references(3), ElementsAre(*other, 1u));
    EXPECT_TRUE(edit.set(3, "VALUE", "$"));
    EXPECT_THAT(edit.users(*other), ElementsAre(*leaf));
    EXPECT_TRUE(edit.drop(*leaf));
    EXPECT_THAT(edit.users(*other), IsEmpty());
    EXPECT_EQ(edit.entity(*leaf), nullptr);
    EXPECT_EQ(edit.entity(*other)->name(), "PART");

    EXPECT_THAT(edit.create("ROOT", {}).error(), HasSubstr("abstract"));
    EXPECT_THAT(edit.create("LEAF", {}).error(), HasSubstr("is required"));
    EXPECT_THAT(edit.create("NOSUCH", {}).error(), HasSubstr("no entity NOSUCH"));
    EXPECT_THAT(edit.create("LEAF", {{"NAMES", "'x'"}}).error(), HasSubstr("no attribute NAMES"));
}

TEST_F(ModelEditTest, KnowsTheUsersOfTheFileAndWhatDerivesBesides) {
    const Model& model =
        open("#1=LEAF('n',*,((#2),(#2)));\n#2=OTHER();\n#2=LEAF('twice',*,((#2)));\n#3=LEAF('/*#2*/ #2',*,());\n");
    const DerivedSlot derived[] = {{"LEAF", "SIZE"}};
    ModelEdit edit(model, derived);
    EXPECT_THAT(edit.users(2), ElementsAre(1u));
    EXPECT_THAT(edit.users(77), IsEmpty());
    const auto leaf = edit.create("LEAF", {{"NAME", "'n'"}, {"PARTS", "()"}});
    ASSERT_TRUE(leaf) << leaf.error();
    EXPECT_EQ(edit.value(*leaf, "SIZE"), "*");
    EXPECT_FALSE(edit.set(*leaf, "SIZE", "1"));
}

TEST_F(ModelEditTest, HoldsOneRecordForManySetsOfAnInstance) {
    ModelEdit edit(open(data));
    EXPECT_TRUE(edit.set(3, "COUNT", "1"));
    const std::size_t once = edit.memoryUse();
    for (int i = 0; i < 1000; ++i) EXPECT_TRUE(edit.set(3, "COUNT", std::to_string(i % 10)));
    EXPECT_LE(edit.memoryUse(), 2 * once);
}

} // namespace velkor::sdai::test
