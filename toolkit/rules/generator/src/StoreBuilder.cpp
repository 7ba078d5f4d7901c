#include "StoreBuilder.h"

#include <algorithm>
#include <bit>
#include <set>

namespace velkor::rulegen {

std::string upperCase(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
}

StoreBuilder::StoreBuilder(std::span<const express::ExpressSchema> schemas) {
    std::set<std::string> types, attributes;
    for (const auto& schema : schemas) {
        for (const auto& type : schema.types) types.insert(upperCase(type.name));
        for (const auto& entity : schema.entities) {
            types.insert(upperCase(entity.name));
            for (const auto& attribute : entity.explicitAttributes) attributes.insert(upperCase(attribute.name));
            for (const auto& attribute : entity.derivedAttributes) attributes.insert(upperCase(attribute.name));
            for (const auto& attribute : entity.inverseAttributes) attributes.insert(upperCase(attribute.name));
        }
    }
    add(_types, {types.begin(), types.end()});
    add(_attributes, {attributes.begin(), attributes.end()});
}

void StoreBuilder::add(Ids& ids, const std::vector<std::string>& names) {
    for (const std::string& name : names) {
        ids.emplace(name, static_cast<TextId>(_texts.size()));
        _texts.push_back(name);
    }
}

TextId StoreBuilder::find(const Ids& ids, const std::string& name) {
    const auto found = ids.find(upperCase(name));
    return found == ids.end() ? rules::noName : found->second;
}

TextId StoreBuilder::text(const std::string& text) {
    const auto [place, isNew] = _others.try_emplace(text, static_cast<TextId>(_texts.size()));
    if (isNew) _texts.push_back(text);
    return place->second;
}

std::uint16_t StoreBuilder::integer(std::int64_t value) {
    const auto found = std::ranges::find(_integers, value);
    if (found == _integers.end()) _integers.push_back(value);
    return static_cast<std::uint16_t>(std::ranges::find(_integers, value) - _integers.begin());
}

std::uint16_t StoreBuilder::real(double value) {
    const auto isSame = [value](double other) {
        return std::bit_cast<std::uint64_t>(other) == std::bit_cast<std::uint64_t>(value);
    };
    if (std::ranges::none_of(_reals, isSame)) _reals.push_back(value);
    return static_cast<std::uint16_t>(std::ranges::find_if(_reals, isSame) - _reals.begin());
}

std::uint32_t StoreBuilder::code(const std::vector<std::uint16_t>& units) {
    const auto [place, isNew] = _pieces.try_emplace(units, static_cast<std::uint32_t>(_code.size()));
    if (isNew) _code.insert(_code.end(), units.begin(), units.end());
    return place->second;
}

rules::RuleStore StoreBuilder::store() {
    _joined.clear();
    _places.clear();
    for (const std::string& text : _texts) {
        _places.push_back(static_cast<std::uint32_t>(_joined.size()));
        _joined += text;
        _joined += '\0';
    }
    _places.push_back(static_cast<std::uint32_t>(_joined.size()));
    return {_joined.data(),
            _places,
            static_cast<std::uint16_t>(_types.size()),
            static_cast<std::uint16_t>(_attributes.size()),
            _integers,
            _reals,
            _code};
}

} // namespace velkor::rulegen
