#include "release/rules/geometry/GeometryText.h"

#include "RecordBuilder.h"

#include <cmath>

namespace velkor::exchange {

namespace {

constexpr std::int64_t greatestIndex = std::int64_t{1} << 31;

} // namespace

bool readIndices(sdai::Part21Lexer& lexer, std::vector<std::uint32_t>& indices) {
    if (lexer.next().kind != sdai::TokenKind::Open) return false;
    while (true) {
        const sdai::Token token = lexer.next();
        std::int64_t index = 0;
        if (token.kind != sdai::TokenKind::Integer || !sdai::decodeInteger(token.text, index)) return false;
        if (index < 1 || index > greatestIndex) return false;
        indices.push_back(static_cast<std::uint32_t>(index - 1));
        const sdai::TokenKind behind = lexer.next().kind;
        if (behind == sdai::TokenKind::Close) return true;
        if (behind != sdai::TokenKind::Comma) return false;
    }
}

bool readIndices(std::string_view encoded, std::vector<std::uint32_t>& indices) {
    sdai::Part21Lexer lexer(encoded);
    return readIndices(lexer, indices) && lexer.next().kind == sdai::TokenKind::End;
}

std::optional<std::vector<double>> readNumbers(std::string_view encoded) {
    std::vector<double> numbers;
    sdai::Part21Lexer lexer(encoded);
    if (lexer.next().kind != sdai::TokenKind::Open) return std::nullopt;
    while (true) {
        const sdai::Token token = lexer.next();
        double value = 0;
        if (token.kind != sdai::TokenKind::Real && token.kind != sdai::TokenKind::Integer) return std::nullopt;
        if (!sdai::decodeReal(token.text, value) || !std::isfinite(value)) return std::nullopt;
        numbers.push_back(value);
        const sdai::TokenKind behind = lexer.next().kind;
        if (behind == sdai::TokenKind::Close) return numbers;
        if (behind != sdai::TokenKind::Comma) return std::nullopt;
    }
}

std::optional<PointList> PointList::of(const DXSdaiAppInstance& list) {
    const bool isInSpace = list.IsKindOf("IFCCARTESIANPOINTLIST3D");
    if (!list.entity() || (!isInSpace && !list.IsKindOf("IFCCARTESIANPOINTLIST2D"))) return std::nullopt;
    PointList points;
    points._list = &list;
    points._id = list.id();
    points._dimension = isInSpace ? 3 : 2;
    points._coordinates = list.GetAttr("COORDLIST").encoded();
    return points;
}

std::optional<PointList> PointList::of(const DXSdaiAppInstance& user, std::string_view attribute) {
    const DXSdaiAppInstance* list = user.GetAttr(attribute).asInstance();
    return list ? of(*list) : std::nullopt;
}

PointList::Found PointList::found(bool withOffsets) const {
    Found result;
    std::uint64_t points = 0;
    const bool isSound = readTuples(_coordinates, _dimension, [&](std::string_view tuple) {
        ++points;
        if (withOffsets) result.offsets.push_back(static_cast<std::size_t>(tuple.data() - _coordinates.data()));
        return true;
    });
    if (isSound && hasItsAttributes()) result.count = points;
    return result;
}

// An instance with more or fewer is copied as it is, and its points would be nowhere.
bool PointList::hasItsAttributes() const {
    const auto number = _list->model().file().find(_id);
    const std::size_t count = _list->entity()->attributes().size();
    return number && !parameterOf(_list->model(), *number, count - 1).empty() &&
           parameterOf(_list->model(), *number, count).empty();
}

std::string_view PointList::tupleAt(std::size_t offset) const {
    sdai::Part21Lexer lexer(_coordinates.substr(offset));
    lexer.skipParameter();
    return _coordinates.substr(offset, static_cast<std::size_t>(lexer.position() - _coordinates.data()) - offset);
}

std::optional<Point> readPoint(std::string_view tuple) {
    const std::optional<std::vector<double>> numbers = readNumbers(tuple);
    if (!numbers || numbers->size() < 2 || numbers->size() > 3) return std::nullopt;
    return Point{(*numbers)[0], (*numbers)[1], numbers->size() > 2 ? (*numbers)[2] : 0};
}

std::optional<Point> readPoint(const DXSdaiAppInstance* point, std::size_t& dimension) {
    if (!point || !point->IsKindOf("IFCCARTESIANPOINT")) return std::nullopt;
    const std::optional<std::vector<double>> numbers = readNumbers(point->GetAttr("COORDINATES").encoded());
    if (!numbers || numbers->size() < 2 || numbers->size() > 3) return std::nullopt;
    dimension = numbers->size();
    return Point{(*numbers)[0], (*numbers)[1], dimension > 2 ? (*numbers)[2] : 0};
}

std::string_view parameterOf(const sdai::Model& model, std::uint32_t number, std::size_t place) {
    sdai::Part21Lexer lexer(model.file().instanceText(number));
    if (lexer.next().kind != sdai::TokenKind::Keyword || lexer.next().kind != sdai::TokenKind::Open) return {};
    for (std::size_t i = 0; i < place; ++i)
        if (!lexer.skipParameter() || lexer.next().kind != sdai::TokenKind::Comma) return {};
    const char* start = lexer.position();
    if (!lexer.skipParameter()) return {};
    return {start, static_cast<std::size_t>(lexer.position() - start)};
}

std::string encodedTuple(const Point& point, std::size_t dimension) {
    std::vector<std::string> members;
    // No minus before a zero.
    for (std::size_t i = 0; i < dimension; ++i) members.push_back(real(point[i] + 0.0));
    return listOf(members);
}

} // namespace velkor::exchange
