#include "Matchers.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include "SampleSchema.h"
#include "velkor/sdai/QORDXSdaiSchemaDecl.h"

#include <atomic>
#include <stdexcept>
#include <thread>

namespace velkor::sdai::test {

namespace {

const SampleSchema sample;
std::atomic<int> calls = 0;

void loadSample() {
    ++calls;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    sample.handOver();
}
void loadNothing() {
    ++calls;
}
void loadFaulty() {
    ++calls;
    SampleSchema faulty;
    faulty.declarations[1] = "Nonsense";
    faulty.handOver();
}
void loadItself() {
    EXPECT_FALSE(DXSdaiDictionaryRepo::TheOne().schema("SAMPLE")) << "it is being loaded";
    sample.handOver();
}
void loadLater() {
    if (++calls == 1) throw std::runtime_error("not yet");
    sample.handOver();
}

std::uint64_t add(DXSdaiDictionaryRepo::Loader loader, const char* name = "SAMPLE") {
    return DXSdaiDictionaryRepo::AddPtr(loader, DXSdaiString(name, DXSdaiString::ZeroTerminated));
}

class Repository : public testing::Test {
protected:
    void SetUp() override {
        calls = 0;
        ASSERT_TRUE(repo.names().empty());
    }
    DXSdaiDictionaryRepo& repo = DXSdaiDictionaryRepo::TheOne();
};

} // namespace

TEST_F(Repository, CallsALoaderWhenItsSchemaIsFirstWanted) {
    const QORDXSdaiSchemaDecl declaration(add(&loadSample));
    EXPECT_NE(declaration.handle(), 0U);
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(repo.isRestored("SAMPLE"));
    EXPECT_TRUE(repo.lists("SAMPLE").declarations.empty());

    const auto first = repo.schema("sample");
    const auto again = repo.schema("SAMPLE");
    ASSERT_TRUE(first && again);
    EXPECT_EQ(*first, *again);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(repo.isRestored("SAMPLE"));
    const auto lists = repo.lists("SAMPLE");
    EXPECT_EQ(lists.declarations.size(), sample.declarations.size());
    ASSERT_EQ(lists.statements.size(), sample.statements.size());
    EXPECT_EQ(lists.statements[22], sample.statements[22]);
}

TEST_F(Repository, KeepsRegistrationsInOrderUntilTheyAreWithdrawn) {
    DXSdaiDictionaryRepo::SchemaPointer kept;
    {
        const QORDXSdaiSchemaDecl one(add(&loadNothing, "ZETA"));
        const QORDXSdaiSchemaDecl two(add(&loadSample));
        EXPECT_EQ(add(&loadNothing, "zeta"), 0U);
        EXPECT_EQ(add(nullptr, "NULL"), 0U);
        EXPECT_EQ(DXSdaiDictionaryRepo::AddPtr(&loadNothing, DXSdaiString("SAMPLE", 0)), 0U);
        EXPECT_EQ(DXSdaiDictionaryRepo::AddPtr(&loadNothing, DXSdaiString("SAMPLE_", 6)), 0U) << "the same name";
        EXPECT_EQ(DXSdaiDictionaryRepo::AddPtr(&loadNothing, DXSdaiString(nullptr, 6)), 0U);
        EXPECT_THAT(repo.names(), ElementsAre("ZETA", "SAMPLE"));
        kept = repo.schema("SAMPLE").value();
    }
    EXPECT_TRUE(repo.names().empty());
    EXPECT_NE(kept->entity("PART"), nullptr) << "a schema in use outlives its registration";
    EXPECT_THAT(repo.schema("SAMPLE").error().message, HasSubstr("known: none"));

    const QORDXSdaiSchemaDecl again(add(&loadSample));
    EXPECT_NE(repo.schema("SAMPLE").value(), kept);
}

TEST_F(Repository, RemembersWhyASchemaIsRefused) {
    const QORDXSdaiSchemaDecl faulty(add(&loadFaulty, "FAULTY"));
    const QORDXSdaiSchemaDecl nothing(add(&loadNothing, "NOTHING"));
    const QORDXSdaiSchemaDecl wrong(add(&loadSample, "WRONG"));
    for (int i = 0; i < 2; ++i) {
        EXPECT_THAT(repo.schema("FAULTY").error().message, HasSubstr("declaration 2 \"Nonsense\""));
        EXPECT_EQ(repo.schema("FAULTY").error().code, velkor::files::OpenError::Code::DamagedSchema);
        EXPECT_THAT(repo.schema("NOTHING").error().message, HasSubstr("handed over no lists"));
        EXPECT_THAT(repo.schema("WRONG").error().message, HasSubstr("handed over the lists of SAMPLE"));
    }
    EXPECT_EQ(calls, 3);
    EXPECT_FALSE(repo.isRestored("FAULTY"));
    EXPECT_THAT(repo.schema("OTHER").error().message, HasSubstr("known: FAULTY, NOTHING, WRONG"));
}

TEST_F(Repository, GivesThreadsThatAskAtOnceOneSchema) {
    const QORDXSdaiSchemaDecl declaration(add(&loadSample));
    std::array<DXSdaiDictionaryRepo::SchemaPointer, 8> schemas;
    std::vector<std::thread> threads;
    for (auto& schema : schemas) threads.emplace_back([&] { schema = repo.schema("SAMPLE").value(); });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(calls, 1);
    EXPECT_THAT(schemas, testing::Each(schemas[0]));
}

TEST_F(Repository, SurvivesLoadersThatMisbehave) {
    {
        const QORDXSdaiSchemaDecl itself(add(&loadItself));
        EXPECT_TRUE(repo.schema("SAMPLE"));
    }
    const QORDXSdaiSchemaDecl later(add(&loadLater));
    EXPECT_THROW(repo.schema("SAMPLE"), std::runtime_error);
    EXPECT_TRUE(repo.schema("SAMPLE"));
    sample.handOver(); // a second dictionary of the name is dropped
    EXPECT_TRUE(repo.schema("SAMPLE"));
}

TEST_F(Repository, MatchesLooseNamesOfSchemas) {
    std::vector<std::unique_ptr<QORDXSdaiSchemaDecl>> declarations;
    for (const char* name : {"IFC2X3", "IFC4", "IFC4X1", "IFC4X3_ADD2", "IFC4X3_RC1", "IFC4X3_RC3", "IFC4X4"}) {
        declarations.push_back(std::make_unique<QORDXSdaiSchemaDecl>(add(&loadNothing, name)));
    }
    for (const auto& [found, expected] : {std::pair{"IFC4", "IFC4"},
                                          {"ifc4x3_rc1", "IFC4X3_RC1"},
                                          {"IFC4X3_ADD2 {1 0 10303 1 1 1}", "IFC4X3_ADD2"},
                                          {" IFC2X3{}", "IFC2X3"},
                                          {"IFC4_ADD2_TC1", "IFC4"},
                                          {"IFC4X4_17239", "IFC4X4"},
                                          {"IFC4X3_RC3_FINAL", "IFC4X3_RC3"},
                                          {"IFC4X3", "IFC4X3_ADD2"},
                                          {"IFC4X3_TC1", "IFC4X3_ADD2"}}) {
        EXPECT_EQ(repo.match(found), expected) << found;
    }
    for (const char* unknown : {"IFC4X2", "IFC2X2_FINAL", "IFC4X", "IFC", "{}", ""}) EXPECT_EQ(repo.match(unknown), "");
    declarations.erase(declarations.begin() + 3); // without the ADD the highest candidate
    EXPECT_EQ(repo.match("IFC4X3"), "IFC4X3_RC3");
}

} // namespace velkor::sdai::test
