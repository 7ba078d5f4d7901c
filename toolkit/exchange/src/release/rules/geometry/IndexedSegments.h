/// The segments of indexed polygonal curves.
#pragma once

#include "velkor/sdai/Model.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace velkor::exchange {

/// A part of a curve: points by their places in the list, from 0.
struct IndexedSegment {
    bool isArc = false;
    std::vector<std::uint32_t> points;

    /// As the file has them; none when the curve goes through all points of its list. Nothing when they were not
    /// understood or do not follow each other.
    static std::optional<std::vector<IndexedSegment>> of(const DXSdaiAppInstance& curve);
};

bool hasArcs(const std::vector<IndexedSegment>& segments);

} // namespace velkor::exchange
