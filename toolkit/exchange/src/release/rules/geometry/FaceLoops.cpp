#include "release/rules/geometry/FaceLoops.h"

#include "release/rules/geometry/GeometryText.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <unordered_map>

namespace velkor::exchange {

namespace {

using Cell = std::array<std::int64_t, 3>;

struct CellHash {
    std::size_t operator()(const Cell& cell) const noexcept {
        std::uint64_t hash = 0;
        for (const std::int64_t part : cell)
            hash = (hash ^ static_cast<std::uint64_t>(part)) * 0x9E3779B97F4A7C15U + (hash >> 29U);
        return static_cast<std::size_t>(hash ^ (hash >> 32U));
    }
};

// For each point the first that lies at the same place.
std::vector<std::uint32_t> firstAtPlace(const std::vector<Point>& places, double extent) {
    // A thousandth of what results may differ from their sources.
    const double size = extent * 1e-12;
    std::unordered_map<Cell, std::uint32_t, CellHash> cells;
    cells.reserve(places.size());
    std::vector<std::uint32_t> first;
    first.reserve(places.size());
    for (const Point& place : places) {
        const Cell cell{std::llround(place[0] / size), std::llround(place[1] / size), std::llround(place[2] / size)};
        first.push_back(cells.try_emplace(cell, static_cast<std::uint32_t>(first.size())).first->second);
    }
    return first;
}

} // namespace

std::optional<FaceLoops> FaceLoops::of(const sdai::Model& model, const DXSdaiAppInstance& faceSet) {
    FaceLoops loops;
    const sdai::Primitive pointIndex = faceSet.GetAttr("PNINDEX");
    // Rows of indices are those of the normals, which IFC4 had there before its first addendum.
    const bool isOfNormals = pointIndex.encoded().starts_with("((");
    if (pointIndex.isSet() && !isOfNormals && !readIndices(pointIndex.encoded(), loops._pointIndex))
        return std::nullopt;
    if (faceSet.IsKindOf("IFCTRIANGULATEDFACESET")) {
        if (!loops.takeTriangles(faceSet.GetAttr("COORDINDEX").encoded())) return std::nullopt;
    } else {
        std::vector<std::uint32_t> indices;
        for (const sdai::Primitive face : faceSet.GetAttr("FACES").asAggregate()) {
            const auto number = model.file().find(sdai::decodeInstanceName(face.encoded()));
            if (!number || !loops.takeFace(model, *number, indices)) return std::nullopt;
        }
    }
    // Beyond that places do not fit.
    if (loops._points.size() > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
    for (const std::uint32_t point : loops._points) loops._bound = std::max<std::uint64_t>(loops._bound, point + 1ULL);
    return loops;
}

std::uint64_t FaceLoops::sharedSize(const sdai::Model& model, const DXSdaiAppInstance& faceSet) {
    std::uint64_t size = 0;
    for (const sdai::Primitive face : faceSet.GetAttr("FACES").asAggregate())
        if (const auto number = model.file().find(sdai::decodeInstanceName(face.encoded())))
            size += model.file().instanceText(*number).size();
    return size;
}

bool FaceLoops::takeTriangles(std::string_view encoded) {
    sdai::Part21Lexer lexer(encoded);
    if (lexer.next().kind != sdai::TokenKind::Open) return false;
    std::vector<std::uint32_t> triangle;
    while (true) {
        triangle.clear();
        if (!readIndices(lexer, triangle) || triangle.size() != 3 || !followPointIndex(triangle)) return false;
        if (addLoop(triangle)) endFace();
        const sdai::TokenKind behind = lexer.next().kind;
        if (behind == sdai::TokenKind::Close) return true;
        if (behind != sdai::TokenKind::Comma) return false;
    }
}

bool FaceLoops::takeFace(const sdai::Model& model, std::uint32_t number, std::vector<std::uint32_t>& indices) {
    const sdai::EntityDefinition* entity = model.entityAt(number);
    if (!entity || !entity->isKindOf("IFCINDEXEDPOLYGONALFACE")) return false;
    const auto parameter = [&](std::string_view attribute) {
        const int place = entity->attributeIndex(attribute);
        return place < 0 ? std::string_view() : parameterOf(model, number, static_cast<std::size_t>(place));
    };
    indices.clear();
    if (!readIndices(parameter("COORDINDEX"), indices) || !followPointIndex(indices)) return false;
    const bool hasOuter = addLoop(indices);
    if (entity->attributeIndex("INNERCOORDINDICES") >= 0) {
        sdai::Part21Lexer lexer(parameter("INNERCOORDINDICES"));
        if (lexer.next().kind != sdai::TokenKind::Open) return false;
        for (sdai::TokenKind behind = sdai::TokenKind::Comma; behind != sdai::TokenKind::Close;) {
            indices.clear();
            if (!readIndices(lexer, indices) || !followPointIndex(indices)) return false;
            if (hasOuter) addLoop(indices);
            behind = lexer.next().kind;
            if (behind != sdai::TokenKind::Comma && behind != sdai::TokenKind::Close) return false;
        }
    }
    if (hasOuter) endFace();
    return true;
}

bool FaceLoops::addLoop(std::span<const std::uint32_t> indices) {
    const std::size_t start = _points.size();
    for (const std::uint32_t index : indices)
        if (_points.size() == start || _points.back() != index) _points.push_back(index);
    while (_points.size() > start + 1 && _points.back() == _points[start]) _points.pop_back();
    if (_points.size() - start < 3) {
        _points.resize(start);
        ++_degenerate;
        return false;
    }
    _loopEnds.push_back(static_cast<std::uint32_t>(_points.size()));
    return true;
}

void FaceLoops::endFace() {
    _faceEnds.push_back(static_cast<std::uint32_t>(_loopEnds.size()));
}

bool FaceLoops::followPointIndex(std::vector<std::uint32_t>& indices) const {
    if (_pointIndex.empty()) return true;
    for (std::uint32_t& index : indices) {
        if (index >= _pointIndex.size()) return false;
        index = _pointIndex[index];
    }
    return true;
}

bool FaceLoops::isClosed() const {
    // An edge by its lower and upper point, and in the lowest bit its direction.
    std::vector<std::uint64_t> edges;
    edges.reserve(_points.size());
    for (std::size_t loop = 0, start = 0; loop < _loopEnds.size(); start = _loopEnds[loop++]) {
        for (std::size_t i = start; i < _loopEnds[loop]; ++i) {
            const std::uint64_t from = _points[i];
            const std::uint64_t to = _points[i + 1 < _loopEnds[loop] ? i + 1 : start];
            edges.push_back(from < to ? from << 33U | to << 1U : to << 33U | from << 1U | 1U);
        }
    }
    if (edges.empty() || edges.size() % 2) return false;
    std::ranges::sort(edges);
    for (std::size_t i = 0; i < edges.size(); i += 2)
        if (edges[i] % 2 || edges[i + 1] != edges[i] + 1) return false;
    return true;
}

std::optional<FaceLoops> FaceLoops::welded(const PointList& points) const {
    // What a list costs that many sets share is bounded by what each of them says.
    constexpr std::size_t bytesPerPoint = 64;
    if (points.size() > bytesPerPoint * (_points.size() + bytesPerPoint)) return std::nullopt;
    std::vector<Point> places;
    double extent = 0;
    bool isSound = true;
    points.eachTuple([&](std::string_view tuple) {
        const std::optional<Point> point = readPoint(tuple);
        isSound = isSound && point;
        places.push_back(point.value_or(Point{}));
        for (const double coordinate : places.back()) extent = std::max(extent, std::abs(coordinate));
    });
    constexpr double least = 1e-200;
    if (!isSound || places.size() < _bound || extent < least) return std::nullopt;
    const std::vector<std::uint32_t> first = firstAtPlace(places, extent);
    FaceLoops result;
    std::vector<std::uint32_t> indices;
    for (std::size_t face = 0; face < faceCount(); ++face) {
        bool hasOuter = false;
        eachLoop(face, [&](std::span<const std::uint32_t> loop, bool isOuter) {
            indices.clear();
            for (const std::uint32_t point : loop) indices.push_back(first[point]);
            if (isOuter)
                hasOuter = result.addLoop(indices);
            else if (hasOuter)
                result.addLoop(indices);
        });
        if (hasOuter) result.endFace();
    }
    result._bound = _bound;
    result._degenerate += _degenerate;
    return result;
}

} // namespace velkor::exchange
