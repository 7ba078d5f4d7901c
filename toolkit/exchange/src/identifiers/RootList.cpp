#include "RootList.h"

#include "velkor/identifiers/GuidCheck.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>

namespace velkor::exchange {

namespace {

/// Whether a literal's text is what stands between its apostrophes.
bool isPlain(std::string_view inside) {
    return std::ranges::all_of(inside, [](char c) { return c >= ' ' && c <= '~' && c != '\\' && c != '\''; });
}

} // namespace

RootList::RootList(const sdai::Model& model) : _model(model), _numbers(model.numbersOf("IFCROOT")) {
    _encoded.reserve(_numbers.size());
    for (const std::uint32_t number : _numbers) _encoded.push_back(guid::encodedIdentifier(model, number));
}

std::uint32_t RootList::place(std::uint32_t number) const {
    const auto found = std::ranges::lower_bound(_numbers, number);
    return found != _numbers.end() && *found == number ? static_cast<std::uint32_t>(found - _numbers.begin()) : none;
}

std::string_view RootList::before(std::uint32_t place) {
    const std::string_view encoded = _encoded[place];
    if (!hasText(place)) return {};
    const std::string_view inside = encoded.substr(1, encoded.size() - std::min<std::size_t>(encoded.size(), 2));
    if (isPlain(inside)) return inside;
    const auto [decoded, isNew] = _decoded.try_emplace(place);
    if (isNew) decoded->second = sdai::decodeString(encoded);
    return decoded->second;
}

std::string_view RootList::current(std::uint32_t place) {
    if (const Identifier* identifier = replacement(place)) return {identifier->data(), identifier->size()};
    return before(place);
}

void RootList::replace(std::uint32_t place, std::string_view identifier) {
    Identifier& kept = _replacements[place];
    std::copy_n(identifier.begin(), kept.size(), kept.begin());
}

const Identifier* RootList::replacement(std::uint32_t place) const {
    const auto found = _replacements.find(place);
    return found == _replacements.end() ? nullptr : &found->second;
}

} // namespace velkor::exchange
