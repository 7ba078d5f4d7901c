/// Faces of tessellated face sets as loops of points, and whether they enclose something.
#pragma once

#include "release/rules/geometry/GeometryText.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace velkor::exchange {

/// Points are places in the list of coordinates, counted from 0. Of each face the first loop is the outer one.
class FaceLoops {
public:
    /// Of an IfcTriangulatedFaceSet or IfcPolygonalFaceSet; nothing when its indices were not understood.
    static std::optional<FaceLoops> of(const sdai::Model& model, const DXSdaiAppInstance& faceSet);

    /// Bytes of the faces that the set shares with others, which each says anew: what Planning::affords() is asked for.
    static std::uint64_t sharedSize(const sdai::Model& model, const DXSdaiAppInstance& faceSet);

    std::size_t faceCount() const noexcept { return _faceEnds.size(); }
    /// Calls `each(std::span<const std::uint32_t> loop, bool isOuter)` with the loops of a face.
    template <class Each>
    void eachLoop(std::size_t face, Each each) const {
        std::size_t loop = face ? _faceEnds[face - 1] : 0;
        for (bool isOuter = true; loop < _faceEnds[face]; ++loop, isOuter = false) {
            const std::size_t start = loop ? _loopEnds[loop - 1] : 0;
            each(std::span(_points).subspan(start, _loopEnds[loop] - start), isOuter);
        }
    }
    /// Greatest place used and one more.
    std::uint64_t pointBound() const noexcept { return _bound; }
    /// Loops that were left out because fewer than three points of theirs differ.
    std::size_t degenerateCount() const noexcept { return _degenerate; }
    /// Whether each edge is passed exactly twice, once in each direction.
    bool isClosed() const;
    /// The same loops over the first of the points that lie at one place, which is up to the last digits of doubles;
    /// nothing when a coordinate is no number, or the list has many more points than the loops.
    std::optional<FaceLoops> welded(const PointList& points) const;

private:
    bool takeTriangles(std::string_view encoded);
    bool takeFace(const sdai::Model& model, std::uint32_t number, std::vector<std::uint32_t>& indices);
    /// Places in the list of coordinates for those in PnIndex; false when one is beyond it.
    bool followPointIndex(std::vector<std::uint32_t>& indices) const;
    /// Without repetitions of neighbours; false, and nothing taken, when no loop is left.
    bool addLoop(std::span<const std::uint32_t> indices);
    void endFace();

    // Empty when indices are places in the list of coordinates themselves.
    std::vector<std::uint32_t> _pointIndex;
    std::vector<std::uint32_t> _points;
    // Places behind the last point of each loop, and behind the last loop of each face.
    std::vector<std::uint32_t> _loopEnds;
    std::vector<std::uint32_t> _faceEnds;
    std::uint64_t _bound = 0;
    std::size_t _degenerate = 0;
};

} // namespace velkor::exchange
