/// Exchange structures for tests: a sound frame around the part that a test is about.
#pragma once

#include "velkor/sdai/Part21File.h"
#include "velkor/sdai/SyntaxCheck.h"

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace velkor::sdai::test {

inline const std::string soundHeader = "FILE_DESCRIPTION(('view'),'2;1');\n"
                                       "FILE_NAME('model','2024-05-06T07:08:09',('Ada'),('Org'),'pre','sys','auth');\n"
                                       "FILE_SCHEMA(('SAMPLE'));\n";

inline std::string withHeader(const std::string& header, const std::string& rest = "DATA;\nENDSEC;\n") {
    return "ISO-10303-21;\nHEADER;\n" + header + "ENDSEC;\n" + rest + "END-ISO-10303-21;\n";
}
/// Seven lines stand before the data.
inline std::string withData(const std::string& data) {
    return withHeader(soundHeader, "DATA;\n" + data + "ENDSEC;\n");
}

/// The text must outlive the file.
inline std::unique_ptr<Part21File> read(const std::string& text, ScanPath path = ScanPath::Automatic) {
    auto file = Part21File::fromText(text, "test.ifc", path);
    if (!file) {
        ADD_FAILURE() << file.error().message;
        return nullptr;
    }
    return std::move(*file);
}

std::unique_ptr<Part21File> read(std::string&& text, ScanPath path = ScanPath::Automatic) = delete;

/// "line code" of each problem.
template <class Problems>
std::string placed(const Problems& problems) {
    std::string result;
    for (const Problem& problem : problems) {
        result += (result.empty() ? "" : ", ") + std::to_string(problem.line) + " " + problem.code;
    }
    return result;
}

inline std::vector<std::uint64_t> ids(const Part21File& file) {
    std::vector<std::uint64_t> result;
    for (std::uint32_t i = 0; i < file.instanceCount(); ++i) result.push_back(file.id(i));
    return result;
}

/// The texts of the instances, a "|" before each.
inline std::string texts(const Part21File& file) {
    std::string result;
    for (std::uint32_t i = 0; i < file.instanceCount(); ++i) (result += '|') += file.instanceText(i);
    return result;
}

inline std::vector<Problem> syntaxOf(const std::string& text) {
    const auto file = read(text);
    return file ? checkSyntax(*file, 1000) : std::vector<Problem>();
}

} // namespace velkor::sdai::test
