#include "Generator.h"

#include "DictionaryLists.h"
#include "ExpressReader.h"
#include "TextStore.h"
#include "UnitWriter.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <openssl/evp.h>
#include <optional>
#include <sstream>

namespace velkor::dictgen {

using namespace express;

namespace {

std::optional<std::string> contents(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) return std::nullopt;
    std::ostringstream text;
    text << file.rdbuf();
    return file ? std::optional(text.str()) : std::nullopt;
}

std::string sha256(const std::string& text) {
    std::array<unsigned char, EVP_MAX_MD_SIZE> digest;
    unsigned length = 0;
    EVP_Digest(text.data(), text.size(), digest.data(), &length, EVP_sha256(), nullptr);
    std::string result;
    for (unsigned i = 0; i < length; ++i) {
        result += "0123456789abcdef"[digest[i] >> 4];
        result += "0123456789abcdef"[digest[i] & 15];
    }
    return result;
}

/// Reads a source into the schema and notes it among the inputs.
tl::expected<void, std::string> readSource(const std::filesystem::path& path, ExpressSchema& schema,
                                           std::string& inputs) {
    const auto text = contents(path);
    if (!text) return tl::unexpected(path.string() + ": cannot be read");
    (inputs.empty() ? inputs : inputs += ", ") += path.filename().string() + " (SHA-256 " + sha256(*text) + ")";
    return readExpress(*text, path.string(), schema);
}

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

tl::expected<std::vector<GeneratedUnit>, std::string> generate(const Profiles& profiles, const std::string& folder) {
    std::vector<GeneratedUnit> units;
    TextStore store(profiles.releases.size());
    for (const Profile& profile : profiles.releases) {
        const auto source = std::filesystem::path(folder) / (profile.schema + ".exp");
        ExpressSchema schema;
        std::string inputs;
        if (auto read = readSource(source, schema, inputs); !read) return tl::unexpected(read.error());
        if (profile.hasSupplement) {
            if (auto read = readSource(profiles.supplementPath, schema, inputs); !read) {
                return tl::unexpected(read.error());
            }
        }
        if (auto applied = applyProfile(profile, schema); !applied) return tl::unexpected(applied.error());
        const auto lists = numberSchema(profile.schema, schema);
        if (!lists) return tl::unexpected(source.string() + ": " + lists.error());
        units.push_back({profile.schema + ".cpp", unitText(profile.schema, units.size(), inputs, *lists, store)});
    }
    return units;
}

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

} // namespace velkor::dictgen
