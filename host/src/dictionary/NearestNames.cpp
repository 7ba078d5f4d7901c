#include "dictionary/NearestNames.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <tuple>
#include <utility>

namespace velkor::host {

namespace {

// Letters to insert, remove, replace or swap with their neighbour.
std::size_t distance(std::string_view a, std::string_view b) {
    std::vector<std::size_t> beforeLast, last(b.size() + 1), row(b.size() + 1);
    std::iota(last.begin(), last.end(), std::size_t{0});
    for (std::size_t i = 1; i <= a.size(); ++i) {
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (a[i - 1] != b[j - 1])});
            const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
            if (swapped) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
        }
        beforeLast = std::exchange(last, row);
    }
    return last.back();
}

std::string_view withoutPrefix(std::string_view name) {
    return name.starts_with("IFC") ? name.substr(3) : name;
}

} // namespace

std::vector<std::string> nearestEntities(const sdai::SchemaDefinition& schema, std::string_view name,
                                         std::size_t most) {
    // No name of a schema is nearly as long; what is would only cost time.
    std::string upper(name.substr(0, 100));
    std::ranges::transform(upper, upper.begin(), [](unsigned char c) { return std::toupper(c); });
    const std::string_view meant = withoutPrefix(upper);
    if (meant.empty()) return {};

    using Candidate = std::tuple<std::size_t, std::string_view>;
    std::vector<Candidate> candidates;
    for (const sdai::EntityDefinition* entity : schema.entities()) {
        const std::string_view known = withoutPrefix(entity->name());
        const std::size_t letters = distance(meant, known);
        const bool near = letters <= std::max<std::size_t>(1, meant.size() / 3);
        const bool contains = meant.size() >= 3 && known.find(meant) != std::string_view::npos;
        // A part of a name is a weaker hint than a slip of the pen.
        if (near)
            candidates.emplace_back(letters, entity->name());
        else if (contains)
            candidates.emplace_back(meant.size() + letters, entity->name());
    }
    std::ranges::sort(candidates);
    std::vector<std::string> result;
    for (const auto& [letters, known] : candidates) {
        if (result.size() == most) break;
        result.emplace_back(known);
    }
    return result;
}

} // namespace velkor::host
