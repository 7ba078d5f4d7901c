/// Judges version mappings: what becomes of entities and properties from one release to another.
#pragma once

#include "Linter.h"

#include <map>
#include <unordered_map>
#include <utility>

namespace velkor::lint {

class VersionMappingLinter : public Linter {
public:
    explicit VersionMappingLinter(Dictionaries& dictionaries);

private:
    struct Key {
        std::string text;
        int line;
    };
    /// One block, and the releases that its names are of.
    struct Block {
        Dictionaries::Releases from;
        Dictionaries::Releases to;
        std::unordered_map<unsigned int, Key> keys;
        /// Renames of whole entities: the target and its line.
        std::map<std::string, std::pair<std::string, int>> renames;
    };

    void judgeEntries(const XmlElement& root) override;
    Dictionaries::Releases judgeRelease(const XmlElement& version, const char* attribute);
    void judgeBlock(const XmlElement& version);
    void judgeMapping(const XmlElement& mapping, Block& block);
    void judgeChange(const XmlElement& change, Block& block);
    void judgeKey(const XmlElement& entry, const std::string& entity, const std::string& property, Block& block);
};

} // namespace velkor::lint
