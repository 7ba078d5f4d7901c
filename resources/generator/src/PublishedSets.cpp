#include "PublishedSets.h"

#include "SourceFile.h"
#include "velkor/propertysets/DefinitionFile.h"

#include <algorithm>
#include <map>

namespace velkor::setgen {

namespace {

constexpr std::string_view ending = ".xml";

// Of files that define the same set, the one that is named after it.
bool isNamedAfterSet(const DefinitionTable::Entry& entry) {
    return entry.source == entry.definition.name + std::string(ending);
}

class TableMaker {
public:
    explicit TableMaker(std::string_view release) { _table.release = release; }

    void add(const std::string& source, const std::string& bytes) {
        const std::string hash = express::sha256(bytes);
        auto reading = readDefinition(bytes, source);
        if (!reading) {
            refuse(source, hash, "line " + std::to_string(reading.error().line) + ": " + reading.error().message);
            return;
        }
        auto& [definition, faults] = *reading;
        if (definition.name.empty() || definition.name.find('/') != std::string::npos) {
            refuse(source, hash, "its name, \"" + definition.name + "\", can be that of no file");
            return;
        }
        for (DefinitionFault& fault : mendDefinition(definition, _table.release)) faults.push_back(std::move(fault));
        DefinitionTable::Entry entry{source, hash, std::move(definition), std::move(faults)};
        const auto [place, isNew] = _sets.try_emplace(entry.definition.name, entry);
        if (isNew) return;
        if (isNamedAfterSet(entry)) std::swap(place->second, entry);
        refuse(entry.source, entry.hash, "the set is defined by " + place->second.source);
    }

    void refuse(const std::string& source, const std::string& hash, const std::string& reason) {
        _table.refused.push_back({source, hash, reason});
    }

    DefinitionTable take() {
        for (auto& [name, entry] : _sets) _table.entries.push_back(std::move(entry));
        return std::move(_table);
    }

private:
    DefinitionTable _table;
    // By name.
    std::map<std::string, DefinitionTable::Entry> _sets;
};

} // namespace

tl::expected<DefinitionTable, std::string> tableOf(const std::filesystem::path& folder, std::string_view release) {
    std::error_code error;
    std::vector<std::filesystem::path> paths;
    for (std::filesystem::directory_iterator file(folder, error), end; !error && file != end; file.increment(error))
        paths.push_back(file->path());
    if (error) return tl::unexpected(folder.string() + ": " + error.message());
    // So that the result does not depend on the file system.
    std::ranges::sort(paths);
    TableMaker maker(release);
    for (const auto& path : paths) {
        const auto bytes = express::contents(path);
        if (!bytes) return tl::unexpected(path.string() + ": cannot be read");
        if (path.extension() == ending)
            maker.add(path.filename().string(), *bytes);
        else
            maker.refuse(path.filename().string(), express::sha256(*bytes), "its name does not end in .xml");
    }
    return maker.take();
}

} // namespace velkor::setgen
