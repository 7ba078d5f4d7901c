#include "PlmIdentifiers.h"

#include "RecordText.h"
#include "velkor/text/Unicode.h"

namespace velkor::exchange {

namespace {

using Numbers = std::unordered_map<std::uint32_t, std::uint32_t>;

/// The value of a property; a number as it stands. Empty for anything else.
std::string valueOf(std::string_view parameter) {
    sdai::Part21Lexer lexer(parameter);
    sdai::Token token = lexer.next();
    while (token.kind == sdai::TokenKind::Keyword && lexer.next().kind == sdai::TokenKind::Open) token = lexer.next();
    if (token.kind == sdai::TokenKind::String) return sdai::decodeString(token.text);
    const bool isNumber = token.kind == sdai::TokenKind::Integer || token.kind == sdai::TokenKind::Real;
    return isNumber ? std::string(token.text) : std::string();
}

/// The properties of the name that have a value.
std::vector<bool> propertiesNamed(const sdai::Model& model, const std::string& name) {
    std::vector<bool> result(model.file().instanceCount());
    std::unordered_map<std::string_view, bool> isWanted;
    for (const std::uint32_t number : model.numbersOf("IFCPROPERTYSINGLEVALUE")) {
        const std::string_view encoded = parameterOf(model, number, "NAME");
        const auto [wanted, isNew] = isWanted.try_emplace(encoded);
        if (isNew) wanted->second = text::equalIgnoringCase(textOf(encoded), name);
        result[number] = wanted->second && !valueOf(parameterOf(model, number, "NOMINALVALUE")).empty();
    }
    return result;
}

/// The first of them by set.
Numbers bySet(const sdai::Model& model, const std::vector<bool>& properties) {
    Numbers result;
    for (const std::uint32_t set : model.numbersOf("IFCPROPERTYSET")) {
        eachNumber(model.file(), parameterOf(model, set, "HASPROPERTIES"), [&](std::uint32_t property) {
            if (properties[property]) result.try_emplace(set, property);
        });
    }
    return result;
}

/// Of sets, the property of the first that has one; nothing when none has.
std::optional<std::uint32_t> firstOf(const sdai::Model& model, std::string_view sets, const Numbers& properties) {
    std::optional<std::uint32_t> first;
    eachNumber(model.file(), sets, [&](std::uint32_t set) {
        if (const auto found = properties.find(set); !first && found != properties.end()) first = found->second;
    });
    return first;
}

} // namespace

PlmIdentifiers::PlmIdentifiers(const sdai::Model& model, std::string_view attribute)
    : _model(model), _attribute(attribute) {
    const Numbers sets = bySet(model, propertiesNamed(model, _attribute));
    if (sets.empty()) return;
    for (const std::uint32_t number : model.numbersOf("IFCRELDEFINESBYPROPERTIES")) {
        const auto property = firstOf(model, parameterOf(model, number, "RELATINGPROPERTYDEFINITION"), sets);
        if (!property) continue;
        eachNumber(model.file(), parameterOf(model, number, "RELATEDOBJECTS"),
                   [&](std::uint32_t object) { _properties.try_emplace(object, *property); });
    }
    for (const std::uint32_t number : model.numbersOf("IFCTYPEOBJECT")) {
        if (const auto property = firstOf(model, parameterOf(model, number, "HASPROPERTYSETS"), sets))
            _properties.try_emplace(number, *property);
    }
}

std::string PlmIdentifiers::of(std::uint32_t number) const {
    std::string text = textOf(parameterOf(_model, number, _attribute));
    if (!text.empty()) return text;
    const auto property = _properties.find(number);
    if (property == _properties.end()) return {};
    return valueOf(parameterOf(_model, property->second, "NOMINALVALUE"));
}

} // namespace velkor::exchange
