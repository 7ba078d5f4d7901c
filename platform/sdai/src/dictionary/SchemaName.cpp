#include "SchemaName.h"

#include "Names.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace velkor::sdai {

namespace {

// "IFC4X3_ADD2" is the stage "ADD2" of the version "IFC4X3"; a bare version is its own last stage.
std::string_view versionOf(std::string_view name) {
    return name.substr(0, name.find('_'));
}

/// Orders the stages of one version: an addendum is later than a corrigendum, that than a
/// candidate, and of the same kind the higher number.
std::pair<int, int> rankOf(std::string_view name) {
    const std::size_t underscore = name.find('_');
    if (underscore == std::string_view::npos) return {4, 0};
    const std::string_view stage = name.substr(underscore + 1);
    const std::size_t letters = std::min(stage.find_first_of("0123456789"), stage.size());
    int number = 0;
    std::from_chars(stage.data() + letters, stage.data() + stage.size(), number);
    const std::string_view kind = stage.substr(0, letters);
    const int order = names::equal(kind, "ADD") ? 3 : names::equal(kind, "TC") ? 2 : names::equal(kind, "RC") ? 1 : 0;
    return {order, number};
}

bool isLaterStage(std::string_view name, std::string_view of) {
    return name.size() > of.size() && name[of.size()] == '_' && names::equal(name.substr(0, of.size()), of);
}

} // namespace

std::string matchSchemaName(std::span<const std::string> known, std::string_view nameInFile) {
    const std::size_t begin = std::min(nameInFile.find_first_not_of(" \t"), nameInFile.size());
    nameInFile.remove_prefix(begin);
    const std::string_view name = nameInFile.substr(0, nameInFile.find_first_of(" \t{"));
    if (name.empty()) return {};

    for (const std::string& candidate : known) {
        if (names::equal(candidate, name)) return candidate;
    }
    const std::string* best = nullptr;
    for (const std::string& candidate : known) {
        if (isLaterStage(name, candidate) && (best == nullptr || candidate.size() > best->size())) best = &candidate;
    }
    if (best != nullptr) return *best;
    for (const std::string& candidate : known) {
        if (!names::equal(versionOf(candidate), versionOf(name))) continue;
        if (best == nullptr || rankOf(*best) < rankOf(candidate)) best = &candidate;
    }
    return best != nullptr ? *best : std::string();
}

} // namespace velkor::sdai
