#include "GeneratedUnits.h"

#include "GeneratorProgram.h"
#include "SourceFile.h"

#include <fstream>
#include <iostream>
#include <sstream>

namespace velkor::express {

namespace {

std::string lineAt(std::istringstream& lines, bool& isThere) {
    std::string line;
    isThere = static_cast<bool>(std::getline(lines, line));
    return isThere ? '"' + line + '"' : "the end";
}

std::string firstDifference(const std::string& expected, const std::string& found) {
    std::istringstream expectedLines(expected), foundLines(found);
    for (int line = 1;; ++line) {
        bool more = false, moreFound = false;
        const std::string one = lineAt(expectedLines, more);
        const std::string other = lineAt(foundLines, moreFound);
        if (one != other) {
            return std::to_string(line).append(": expected ").append(one).append(", found ").append(other);
        }
        if (!more && !moreFound) return std::to_string(line) + ": expected other line ends";
    }
}

} // namespace

std::vector<std::string> differences(const std::vector<GeneratedUnit>& units, const std::string& folder) {
    std::vector<std::string> result;
    for (const GeneratedUnit& unit : units) {
        const auto path = std::filesystem::path(folder) / unit.fileName;
        const auto found = contents(path);
        if (!found)
            result.push_back(path.string() + ": cannot be read");
        else if (*found != unit.text)
            result.push_back(path.string() + ":" + firstDifference(unit.text, *found));
    }
    return result;
}

tl::expected<std::vector<std::string>, std::string> writeUnits(const std::vector<GeneratedUnit>& units,
                                                               const std::string& folder) {
    std::vector<std::string> written;
    for (const GeneratedUnit& unit : units) {
        const auto path = std::filesystem::path(folder) / unit.fileName;
        if (contents(path) == unit.text) continue;
        std::ofstream file(path, std::ios::binary);
        file << unit.text;
        if (!file.flush()) return tl::unexpected(path.string() + ": cannot be written");
        written.push_back(unit.fileName);
    }
    return written;
}

int finish(const std::string& program, const std::vector<GeneratedUnit>& units, const std::string& folder,
           bool isComparison) {
    constexpr int different = 1;
    if (isComparison) {
        const auto lines = differences(units, folder);
        for (const std::string& line : lines) std::cerr << line << '\n';
        if (!lines.empty()) return different;
        std::cout << units.size() << " units are what the sources give\n";
        return 0;
    }
    const auto written = writeUnits(units, folder);
    if (!written) return fail(program, written.error());
    for (const std::string& name : *written) std::cout << "wrote " << name << '\n';
    if (written->empty()) std::cout << units.size() << " units were up to date\n";
    return 0;
}

} // namespace velkor::express
