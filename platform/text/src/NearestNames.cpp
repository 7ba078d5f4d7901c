#include "velkor/text/NearestNames.h"

#include "velkor/text/Unicode.h"

#include <algorithm>
#include <numeric>
#include <tuple>
#include <utility>

namespace velkor::text {

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

std::string_view without(std::string_view prefix, std::string_view name) {
    return name.starts_with(prefix) ? name.substr(prefix.size()) : name;
}

} // namespace

std::vector<std::string> nearestNames(const std::vector<std::string_view>& known, std::string_view name,
                                      std::size_t most, std::string_view prefix) {
    // No known name is nearly as long; what is would only cost time.
    const std::string upper = asciiUpper(name.substr(0, 100));
    const std::string_view meant = without(prefix, upper);
    if (meant.empty()) return {};

    using Candidate = std::tuple<std::size_t, std::string_view>;
    std::vector<Candidate> candidates;
    for (const std::string_view candidate : known) {
        const std::string upperCandidate = asciiUpper(candidate);
        const std::string_view compared = without(prefix, upperCandidate);
        const std::size_t letters = distance(meant, compared);
        const bool near = letters <= std::max<std::size_t>(1, meant.size() / 3);
        const bool contains = meant.size() >= 3 && compared.find(meant) != std::string_view::npos;
        // A part of a name is a weaker hint than a slip of the pen.
        if (near)
            candidates.emplace_back(letters, candidate);
        else if (contains)
            candidates.emplace_back(meant.size() + letters, candidate);
    }
    std::ranges::sort(candidates);
    std::vector<std::string> result;
    for (const auto& [letters, candidate] : candidates) {
        if (result.size() == most) break;
        result.emplace_back(candidate);
    }
    return result;
}

std::string likelyMeant(const std::vector<std::string_view>& known, std::string_view name, std::size_t letters) {
    const std::string meant = asciiUpper(name.substr(0, 100));
    std::tuple<std::size_t, std::string_view> likeliest{letters + 1, {}};
    for (const std::string_view candidate : known) {
        // As many letters differ at least.
        const auto [fewer, more] = std::minmax({candidate.size(), meant.size()});
        if (more - fewer <= letters)
            likeliest = std::min(likeliest, {distance(meant, asciiUpper(candidate)), candidate});
    }
    return std::string(std::get<1>(likeliest));
}

} // namespace velkor::text
