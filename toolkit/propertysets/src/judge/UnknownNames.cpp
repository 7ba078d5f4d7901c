#include "judge/UnknownNames.h"

#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor {

namespace {

constexpr std::string_view propertySet = "PSET", quantitySet = "QTO";
// A file may have more names that are wrong than anybody wants hints for.
constexpr std::size_t mostHints = 1000;

bool isLetter(char c) noexcept {
    return text::asciiUpper(c) >= 'A' && text::asciiUpper(c) <= 'Z';
}

} // namespace

std::optional<UnknownName> UnknownNames::judge(std::string_view name) {
    const std::string beginning = text::asciiUpper(name.substr(0, propertySet.size()));
    const bool isOfQuantities = beginning.starts_with(quantitySet) &&
                                (name.size() == quantitySet.size() || !isLetter(name[quantitySet.size()]));
    const bool isWrittenAlike = !_catalogue.spelledAlike(name).empty();
    if (beginning != propertySet && !isOfQuantities && !isWrittenAlike) return std::nullopt;
    UnknownName unknown;
    // No agreement speaks of other names that are only written like those of the standard, nor of quantity sets in a
    // release that defines none.
    const bool isAgreedOn =
        beginning == propertySet || (name.starts_with(quantitySetPrefix) && _catalogue.definesQuantitySets());
    unknown.severity = isAgreedOn ? sdai::Severity::Error : sdai::Severity::Warning;
    if (isWrittenAlike || _hints++ < mostHints) unknown.nearest = _catalogue.likelyName(name);
    if (hasStandardPrefix(name)) unknown.releases = _library.releasesWith(name);
    return unknown;
}

} // namespace velkor
