#include "release/rules/geometry/IndexedSegments.h"

#include "release/rules/geometry/GeometryText.h"

#include <algorithm>

namespace velkor::exchange {

std::optional<std::vector<IndexedSegment>> IndexedSegment::of(const DXSdaiAppInstance& curve) {
    std::vector<IndexedSegment> segments;
    const sdai::Primitive encoded = curve.GetAttr("SEGMENTS");
    if (!encoded.isSet()) return segments;
    sdai::Part21Lexer lexer(encoded.encoded());
    if (lexer.next().kind != sdai::TokenKind::Open) return std::nullopt;
    for (sdai::TokenKind behind = sdai::TokenKind::Comma; behind == sdai::TokenKind::Comma;) {
        const sdai::Token type = lexer.next();
        IndexedSegment segment{type.text == "IFCARCINDEX", {}};
        if (type.kind != sdai::TokenKind::Keyword || (!segment.isArc && type.text != "IFCLINEINDEX"))
            return std::nullopt;
        if (lexer.next().kind != sdai::TokenKind::Open || !readIndices(lexer, segment.points)) return std::nullopt;
        if (lexer.next().kind != sdai::TokenKind::Close) return std::nullopt;
        if (segment.isArc ? segment.points.size() != 3 : segment.points.size() < 2) return std::nullopt;
        if (!segments.empty() && segments.back().points.back() != segment.points.front()) return std::nullopt;
        segments.push_back(std::move(segment));
        behind = lexer.next().kind;
        if (behind != sdai::TokenKind::Comma && behind != sdai::TokenKind::Close) return std::nullopt;
    }
    return segments;
}

bool hasArcs(const std::vector<IndexedSegment>& segments) {
    return std::ranges::any_of(segments, &IndexedSegment::isArc);
}

} // namespace velkor::exchange
