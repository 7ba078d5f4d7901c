/// Models in files.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

namespace velkor::test {

/// A model of the project's own.
inline std::string example(const std::string& name) {
    return VELKOR_SOURCE_DIR "/examples/models/" + name;
}

/// A file that goes with the object. Its name holds blanks, and is of this process alone.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& text)
        : _path(testing::TempDir() + "velkor file " + std::to_string(getpid()) + ' ' + std::to_string(++_count) +
                ".ifc") {
        std::ofstream(_path, std::ios::binary) << text;
    }
    ~TemporaryFile() { std::filesystem::remove(_path); }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    const std::string& path() const { return _path; }

private:
    static inline int _count = 0;
    std::string _path;
};

/// A model whose data begins on line 8.
class TemporaryModel : public TemporaryFile {
public:
    TemporaryModel(const std::string& schema, const std::string& data,
                   const std::string& description = "ViewDefinition [CoordinationView]",
                   const std::string& name = "sample")
        : TemporaryFile("ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION(('" + description + "'),'2;1');\nFILE_NAME('" + name +
                        "','2024-05-06T07:08:09',('Ada','Grace'),(''),'pre 1.0','writer 2.0','');\nFILE_SCHEMA(('" +
                        schema + "'));\nENDSEC;\nDATA;\n" + data + "ENDSEC;\nEND-ISO-10303-21;\n") {}
};

} // namespace velkor::test
