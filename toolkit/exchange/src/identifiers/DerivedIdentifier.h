/// Identifiers that are hashes of texts.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace velkor::exchange {

/// Well-formed, and the same for ever and everywhere.
std::string derivedIdentifier(std::string_view text);

/// Those of a file, where others have some already.
class DerivedIdentifiers {
public:
    /// The identifier of a text, or when that is not free one of the text with a counter. `isFree` says it of an
    /// identifier.
    template <class IsFree>
    std::string next(std::string text, IsFree isFree) {
        std::string identifier = derivedIdentifier(text);
        if (isFree(identifier)) return identifier;
        // So that many with one text are not tried from the beginning each.
        std::uint64_t& count = _counts.try_emplace(identifier, 1).first->second;
        text += '\n';
        do {
            identifier = derivedIdentifier(text + std::to_string(++count));
        } while (!isFree(identifier));
        return identifier;
    }

private:
    std::unordered_map<std::string, std::uint64_t> _counts;
};

} // namespace velkor::exchange
