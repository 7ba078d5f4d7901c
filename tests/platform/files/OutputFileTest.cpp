#include "velkor/files/OutputFile.h"
#include "velkor/files/FileContents.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

namespace velkor::files::test {

namespace {

using Code = OpenError::Code;
namespace fs = std::filesystem;

class Output : public testing::Test {
protected:
    Output() : _folder(fs::path(testing::TempDir()) / ("velkor-output-" + std::to_string(getpid()))) {
        fs::create_directory(_folder);
    }
    ~Output() override { fs::remove_all(_folder); }

    std::string path(const std::string& name = "model.ifc") const { return (_folder / name).string(); }
    void put(const std::string& text) const { std::ofstream(path()) << text; }
    static std::string content(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::ptrdiff_t entries() const { return std::distance(fs::directory_iterator(_folder), fs::directory_iterator()); }

    fs::path _folder;
};

QORUnicodeString unicode(const std::string& text) {
    return QORUnicodeString(std::string_view(text));
}

} // namespace

TEST_F(Output, AppearsAsAWholeWithThePermissionsOfItsPredecessor) {
    put("old");
    fs::permissions(path(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    fs::create_symlink(path(), path("link.ifc"));
    auto file = OutputFile::create(unicode(path("link.ifc")));
    ASSERT_TRUE(file.has_value());
    // Pieces on both sides of what is gathered, in an order that a mistake would change.
    std::string expected;
    for (const std::size_t size : {3U, 70'000U, 10U, 65'536U, 1U, 40'000U, 40'000U, 200'000U, 5U}) {
        const std::string piece(size, static_cast<char>('a' + expected.size() % 26));
        file->write(piece);
        expected += piece;
        EXPECT_EQ(content(path()), "old");
    }
    EXPECT_EQ(file->size(), expected.size());
    ASSERT_TRUE(file->commit().has_value());
    EXPECT_EQ(content(path()), expected);
    EXPECT_TRUE(fs::is_symlink(path("link.ifc")));
    EXPECT_EQ(fs::status(path()).permissions(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(entries(), 2);
}

TEST_F(Output, LeavesNothingWhenItIsNotCommitted) {
    put("old");
    {
        auto file = OutputFile::create(unicode(path()));
        ASSERT_TRUE(file.has_value());
        OutputFile moved = std::move(*file);
        moved.write(std::string(100'000, 'x'));
        EXPECT_TRUE(moved.flush().has_value());
        EXPECT_EQ(content(path()), "old");
        EXPECT_LE(entries(), 2);
    }
    EXPECT_EQ(content(path()), "old");
    EXPECT_EQ(entries(), 1);
}

TEST_F(Output, NothingIsLeftWhenTheProcessIsKilled) {
    // Where the disk has no files without a name, a signal that nobody can handle leaves one.
    const int unnamed = open(_folder.c_str(), O_TMPFILE | O_WRONLY, 0600);
    const int leftMost = unnamed < 0 ? 1 : 0;
    if (unnamed >= 0) close(unnamed);
    put("old");
    const pid_t child = fork();
    if (child == 0) {
        auto file = OutputFile::create(unicode(path()));
        if (file) file->write(std::string(1'000'000, 'x'));
        if (file && file->flush()) raise(SIGKILL);
        _exit(1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
    EXPECT_EQ(content(path()), "old");
    EXPECT_LE(entries(), 1 + leftMost);
}

TEST_F(Output, SaysWhyItCannotBegin) {
    put("a file");
    const std::pair<std::string, Code> cases[] = {{path("missing/model.ifc"), Code::Missing},
                                                  {path("model.ifc/x"), Code::Missing},
                                                  {_folder.string(), Code::Folder}};
    for (const auto& [name, code] : cases) {
        const auto file = OutputFile::create(unicode(name));
        ASSERT_FALSE(file.has_value()) << name;
        EXPECT_EQ(file.error().code, code) << name;
        EXPECT_FALSE(file.error().message.empty());
    }
    EXPECT_EQ(entries(), 1);
}

TEST_F(Output, AFullDiskIsAnErrorOfSmallAndOfLargePieces) {
    for (const std::size_t size : {10U, 100'000U}) {
        auto file = OutputFile::create("/dev/full");
        ASSERT_TRUE(file.has_value());
        file->write(std::string(size, 'x'));
        const auto flushed = file->flush();
        ASSERT_FALSE(flushed.has_value()) << size;
        EXPECT_EQ(flushed.error().message, systemError(ENOSPC).message);
        const auto done = file->commit();
        ASSERT_FALSE(done.has_value()) << size;
        EXPECT_EQ(done.error().message, systemError(ENOSPC).message);
    }
    EXPECT_TRUE(fs::exists("/dev/full"));
    EXPECT_FALSE(replaceFile("/dev/full", "x").has_value());
}

TEST_F(Output, AFailedRenameLeavesNeitherHalfFileNorTemporaryOne) {
    auto file = OutputFile::create(unicode(path()));
    ASSERT_TRUE(file.has_value());
    file->write("new");
    fs::create_directories(path() + "/inside");
    EXPECT_FALSE(file->commit().has_value());
    file = tl::unexpected(OpenError());
    EXPECT_TRUE(fs::is_directory(path()));
    EXPECT_EQ(entries(), 1);
}

TEST_F(Output, AClosedPipeIsAnErrorAndADescriptorStaysOpen) {
    int ends[2];
    ASSERT_EQ(pipe(ends), 0);
    OutputFile sound = OutputFile::onto(ends[1]);
    sound.write("text");
    EXPECT_TRUE(sound.commit().has_value());
    char read4[4];
    EXPECT_EQ(read(ends[0], read4, 4), 4);

    const auto before = std::signal(SIGPIPE, SIG_IGN);
    close(ends[0]);
    OutputFile broken = OutputFile::onto(ends[1]);
    broken.write("text");
    const auto done = broken.commit();
    ASSERT_FALSE(done.has_value());
    EXPECT_EQ(done.error().message, systemError(EPIPE).message);
    EXPECT_EQ(close(ends[1]), 0);
    std::signal(SIGPIPE, before);
}

} // namespace velkor::files::test
