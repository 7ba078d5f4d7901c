#include "velkor/files/ScratchFile.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/resource.h>
#include <unistd.h>

namespace velkor::files::test {

namespace {

namespace fs = std::filesystem;

class Scratch : public testing::Test {
protected:
    Scratch() : _folder(fs::path(testing::TempDir()) / ("velkor-scratch-" + std::to_string(getpid()))) {
        fs::create_directory(_folder);
    }
    ~Scratch() override { fs::remove_all(_folder); }

    auto beside(const std::string& name = "model.ifc") const {
        return ScratchFile::createBeside(QORUnicodeString((_folder / name).string()));
    }
    std::ptrdiff_t entries() const { return std::distance(fs::directory_iterator(_folder), fs::directory_iterator()); }

    fs::path _folder;
};

} // namespace

TEST_F(Scratch, IsReadAsItWasWrittenAndHasNoName) {
    auto made = beside();
    ASSERT_TRUE(made.has_value()) << made.error().message;
    std::string expected;
    for (const std::size_t size : {3U, 70'000U, 10U, 65'536U, 1U}) {
        const std::string piece(size, static_cast<char>('a' + expected.size() % 26));
        made->output().write(piece);
        expected += piece;
    }
    EXPECT_EQ(entries(), 0);
    // What is still gathered has not arrived.
    EXPECT_FALSE(made->text().has_value());
    ASSERT_TRUE(made->output().commit().has_value());
    const auto text = made->text();
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(*text, expected);
    // The text goes where the object goes.
    const ScratchFile moved = std::move(*made);
    made = tl::unexpected(OpenError());
    EXPECT_EQ(*text, expected);
    EXPECT_EQ(entries(), 0);
}

TEST_F(Scratch, OfNothingHasAnEmptyText) {
    auto made = beside();
    ASSERT_TRUE(made && made->output().commit());
    ASSERT_TRUE(made->text().has_value());
    EXPECT_EQ(*made->text(), "");
}

TEST_F(Scratch, LiesInTheTemporaryFolderThatTheSystemIsTold) {
    const char* old = std::getenv("TMPDIR");
    const std::string before = old != nullptr ? old : "";
    setenv("TMPDIR", (_folder / "missing").c_str(), 1);
    const auto missing = ScratchFile::create();
    setenv("TMPDIR", _folder.c_str(), 1);
    auto made = ScratchFile::create();
    old != nullptr ? setenv("TMPDIR", before.c_str(), 1) : unsetenv("TMPDIR");

    ASSERT_FALSE(missing.has_value());
    EXPECT_EQ(missing.error().code, OpenError::Code::Missing);
    ASSERT_TRUE(made.has_value());
    made->output().write("text");
    ASSERT_TRUE(made->output().commit().has_value());
    EXPECT_EQ(made->text(), "text");
    EXPECT_EQ(entries(), 0);
}

TEST_F(Scratch, SaysWhyItCannotBegin) {
    const auto missing = beside("missing/model.ifc");
    ASSERT_FALSE(missing.has_value());
    EXPECT_EQ(missing.error().code, OpenError::Code::Missing);
    EXPECT_FALSE(missing.error().message.empty());
}

TEST_F(Scratch, GivesNoTextOfWhatCouldNotBeWritten) {
    auto made = beside();
    ASSERT_TRUE(made.has_value());
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit small{1000, limit.rlim_max};
    const auto before = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &small);
    made->output().write(std::string(100'000, 'x'));
    const auto done = made->output().commit();
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, before);
    ASSERT_FALSE(done.has_value());
    EXPECT_EQ(done.error().message, systemError(EFBIG).message);
    EXPECT_FALSE(made->text().has_value());
}

} // namespace velkor::files::test
