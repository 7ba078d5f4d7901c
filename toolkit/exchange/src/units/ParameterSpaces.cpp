#include "units/ParameterSpaces.h"

#include "RecordText.h"

#include <vector>

namespace velkor::exchange {

namespace {

// Curves and surfaces that are made of others lead to one that is not; files may lead in circles.
constexpr int deepest = 32;

std::optional<std::uint32_t> referred(const sdai::Model& model, std::uint32_t number, std::string_view attribute) {
    std::optional<std::uint32_t> found;
    eachNumber(model.file(), parameterOf(model, number, attribute), [&](std::uint32_t used) {
        if (!found) found = used;
    });
    return found;
}

bool isKind(const sdai::Model& model, std::uint32_t number, std::string_view name) {
    const sdai::EntityDefinition* entity = model.entityAt(number);
    return entity != nullptr && entity->isKindOf(name);
}

} // namespace

ParameterSpaces::ParameterSpaces(const sdai::Model& model, MeasureRatios& ratios) : _model(model), _ratios(ratios) {
    takeCurves();
    takeTextures();
    if (!_spaces.empty()) findShared();
}

void ParameterSpaces::takeCurves() {
    for (const std::uint32_t number : _model.numbersOf("IFCPCURVE")) {
        const auto surface = referred(_model, number, "BASISSURFACE");
        const auto curve = referred(_model, number, "REFERENCECURVE");
        if (!surface || !curve) continue;
        const Pair pair = ofSurface(*surface);
        // On planes parameters are lengths like all others.
        if (pair.u == _ratios.length() && pair.v == _ratios.length()) continue;
        _owners.insert(number);
        take(*curve, pair);
    }
}

// A texture is moved over its surface by parts of itself.
void ParameterSpaces::takeTextures() {
    if (_ratios.length() == stays) return;
    for (const std::uint32_t number : _model.numbersOf("IFCSURFACETEXTURE")) {
        const auto transform = referred(_model, number, "TEXTURETRANSFORM");
        if (!transform) continue;
        _owners.insert(number);
        take(*transform, {});
    }
}

void ParameterSpaces::findShared() {
    const sdai::Part21File& file = _model.file();
    for (std::uint32_t number = 0; number < file.instanceCount(); ++number) {
        if (_spaces.contains(number) || _owners.contains(number)) continue;
        sdai::Part21Lexer lexer(file.instanceText(number));
        for (sdai::Token token = lexer.nextReference(); token.kind != sdai::TokenKind::End;
             token = lexer.nextReference())
            if (const auto used = file.find(sdai::decodeInstanceName(token.text)); used && _spaces.contains(*used))
                _shared.insert(*used);
    }
}

void ParameterSpaces::take(std::uint32_t curve, Pair pair) {
    std::vector<std::uint32_t> left{curve};
    while (!left.empty()) {
        const std::uint32_t number = left.back();
        left.pop_back();
        if (const auto [place, isNew] = _spaces.try_emplace(number, pair); !isNew) {
            if (place->second != pair) _shared.insert(number);
            continue;
        }
        const sdai::EntityDefinition* entity = _model.entityAt(number);
        if (entity == nullptr || !entity->isKindOf("IFCGEOMETRICREPRESENTATIONITEM")) continue;
        for (std::size_t i = 0; i < entity->attributes().size(); ++i)
            eachNumber(_model.file(), parameterOf(_model.file().instanceText(number), i),
                       [&](std::uint32_t used) { left.push_back(used); });
    }
}

std::optional<ParameterSpaces::Pair> ParameterSpaces::space(std::uint32_t number) const {
    const auto found = _spaces.find(number);
    return found == _spaces.end() ? std::nullopt : std::optional(found->second);
}

RatioNumber ParameterSpaces::ofCurve(std::uint32_t number) const {
    if (_ratios.planeAngle() == stays) return stays;
    for (int depth = 0; depth < deepest; ++depth) {
        if (isKind(_model, number, "IFCCONIC")) return _ratios.planeAngle();
        if (!isKind(_model, number, "IFCTRIMMEDCURVE")) break;
        const auto basis = referred(_model, number, "BASISCURVE");
        if (!basis) break;
        number = *basis;
    }
    return stays;
}

ParameterSpaces::Pair ParameterSpaces::ofSurface(std::uint32_t number) const {
    const RatioNumber length = _ratios.length();
    const RatioNumber angle = _ratios.planeAngle();
    for (int depth = 0; depth < deepest; ++depth) {
        if (isKind(_model, number, "IFCPLANE")) return {length, length};
        if (isKind(_model, number, "IFCCYLINDRICALSURFACE") || isKind(_model, number, "IFCCONICALSURFACE"))
            return {angle, length};
        if (isKind(_model, number, "IFCSPHERICALSURFACE") || isKind(_model, number, "IFCTOROIDALSURFACE"))
            return {angle, angle};
        const auto swept = referred(_model, number, "SWEPTCURVE");
        const auto curve = swept ? referred(_model, *swept, "CURVE") : std::nullopt;
        const RatioNumber along = curve ? ofCurve(*curve) : stays;
        if (isKind(_model, number, "IFCSURFACEOFREVOLUTION")) return {angle, along};
        if (isKind(_model, number, "IFCSURFACEOFLINEAREXTRUSION")) return {along, stays};
        const auto basis = referred(_model, number, "BASISSURFACE");
        if (!basis) break;
        number = *basis;
    }
    return {};
}

} // namespace velkor::exchange
