/// The document of correspondences, read to tell a person which of its entries has decided. The service decides; the
/// rules here are its own: the highest priority first, entries of equal priority in the order of the document, and
/// the first whose condition holds.
///
///     const auto document = Correspondences::read(path);
///     const Correspondences::Entry* entry = document->deciding("IFCWALL", {{"IsExternal", "TRUE"}});
#pragma once

#include "velkor/knowledge/KnowledgeObjects.h"

#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace velkor {

class Correspondences {
public:
    struct Condition {
        std::string attribute;
        std::string value;
    };
    /// The IFC side of one entry.
    struct Entry {
        std::string neutralId;
        /// As the document writes it.
        std::string ifcType;
        int priority = 0;
        /// Nothing when the entry holds for every object of its type.
        std::optional<Condition> condition;
        /// Where it stands in the document.
        int line = 0;
    };

    /// Nothing when the document cannot be read; the exchange log has the reason.
    static std::optional<Correspondences> read(const std::string& path);

    /// The entry that decides for an object of an IFC type, letter case ignored; null when the type has none, or
    /// none whose condition holds. Of properties with the same name the first counts.
    const Entry* deciding(const std::string& ifcType, const knowledge::Attributes& properties) const;
    /// True when there are entries for a type.
    bool knows(const std::string& ifcType) const;
    /// Names of the properties that conditions ask for, in upper case.
    const std::set<std::string>& conditionNames() const noexcept { return _conditionNames; }

private:
    // By type in upper case, in the order in which they are tried.
    std::unordered_map<std::string, std::vector<Entry>> _entries;
    std::set<std::string> _conditionNames;
};

/// Upper case as the services have it.
std::string upperCase(const std::string& text);

} // namespace velkor
