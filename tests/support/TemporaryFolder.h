/// A folder for a test's files that goes with the object. Its name holds blanks, and is of this process alone.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>
#include <vector>

namespace velkor::test {

struct TemporaryFolder {
    TemporaryFolder() { std::filesystem::create_directories(path); }
    ~TemporaryFolder() { std::filesystem::remove_all(path); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    /// Makes files, with the folders above them.
    void add(const std::string& folder, const std::vector<std::string>& names, const std::string& text = {}) const {
        std::filesystem::create_directories(path + '/' + folder);
        for (const std::string& name : names) std::ofstream(path + '/' + folder + '/' + name) << text;
    }

    std::string operator/(const std::string& name) const { return path + '/' + name; }
    /// Makes one file, with the folders above it, and gives its path.
    std::string file(const std::string& name, const std::string& text = {}) const {
        add(std::filesystem::path(name).parent_path(), {}, {});
        std::ofstream(path + '/' + name, std::ios::binary) << text;
        return path + '/' + name;
    }

    static inline int count = 0;
    const std::string path =
        testing::TempDir() + "velkor folder " + std::to_string(getpid()) + ' ' + std::to_string(++count);
};

} // namespace velkor::test
