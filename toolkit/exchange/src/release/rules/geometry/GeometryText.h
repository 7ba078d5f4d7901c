/// Points and indices of geometry as the file has them.
#pragma once

#include "velkor/sdai/Model.h"
#include "velkor/sdai/Part21Lexer.h"

#include <any>
#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::exchange {

/// A list of whole numbers from 1 on, "(1,2,3)", put behind those that are there, less one each. False for anything
/// else.
bool readIndices(sdai::Part21Lexer& lexer, std::vector<std::uint32_t>& indices);
bool readIndices(std::string_view encoded, std::vector<std::uint32_t>& indices);

/// Calls `each(text)` with every coordinate tuple, "(0.,1.5)", of a list of points. False when it is no list of tuples
/// of so many numbers, or `each` says so.
template <class Each>
bool readTuples(std::string_view encoded, std::size_t dimension, Each each) {
    sdai::Part21Lexer lexer(encoded);
    if (lexer.next().kind != sdai::TokenKind::Open) return false;
    while (true) {
        const sdai::Token first = lexer.next();
        if (first.kind != sdai::TokenKind::Open) return false;
        for (std::size_t i = 0; i < dimension; ++i) {
            const sdai::Token number = lexer.next();
            if (number.kind != sdai::TokenKind::Real && number.kind != sdai::TokenKind::Integer) return false;
            const sdai::TokenKind behind = lexer.next().kind;
            if (behind != (i + 1 < dimension ? sdai::TokenKind::Comma : sdai::TokenKind::Close)) return false;
        }
        const auto length = static_cast<std::size_t>(lexer.position() - first.text.data());
        if (!each(std::string_view(first.text.data(), length))) return false;
        const sdai::TokenKind behind = lexer.next().kind;
        if (behind == sdai::TokenKind::Close) return true;
        if (behind != sdai::TokenKind::Comma) return false;
    }
}

/// The numbers of a list, "(0.,1.5)"; nothing for anything else and for numbers that are not finite.
std::optional<std::vector<double>> readNumbers(std::string_view encoded);

/// A list of points as the file has it.
class PointList {
public:
    /// Of what an attribute refers to; nothing when that is no list of points.
    static std::optional<PointList> of(const DXSdaiAppInstance& user, std::string_view attribute);
    static std::optional<PointList> of(const DXSdaiAppInstance& list);

    std::uint64_t id() const noexcept { return _id; }
    std::size_t dimension() const noexcept { return _dimension; }
    /// Bytes of the list.
    std::size_t size() const noexcept { return _coordinates.size(); }
    /// Calls `each(text)` with the coordinates of each point, "(0.,1.5)"; what behind a mistake is, is left out.
    template <class Each>
    void eachTuple(Each each) const {
        readTuples(_coordinates, _dimension, [&](std::string_view tuple) {
            each(tuple);
            return true;
        });
    }
    /// How many there are; nothing when not all of the instance was understood. `memory`, Planning or Rebuilding,
    /// remembers what was found in a long list.
    template <class Memory>
    std::optional<std::uint64_t> count(Memory& memory) const {
        if (isShort()) return found(false).count;
        std::any& remembered = memory.remembered(_id);
        if (!remembered.has_value()) remembered = found(false);
        return std::any_cast<const Found&>(remembered).count;
    }
    /// The coordinates of a point, of which the list must have more.
    template <class Memory>
    std::string_view tuple(Memory& memory, std::uint64_t place) const {
        if (isShort()) return tupleAt(found(true).offsets[place]);
        std::any& remembered = memory.remembered(_id);
        if (!remembered.has_value() || std::any_cast<const Found&>(remembered).offsets.empty())
            remembered = found(true);
        return tupleAt(std::any_cast<const Found&>(remembered).offsets[place]);
    }

private:
    struct Found {
        std::optional<std::uint64_t> count;
        // Where the tuple of each point begins; empty as long as nobody asked.
        std::vector<std::size_t> offsets;
    };

    bool isShort() const noexcept { return _coordinates.size() < 4096; }
    Found found(bool withOffsets) const;
    bool hasItsAttributes() const;
    std::string_view tupleAt(std::size_t offset) const;

    const DXSdaiAppInstance* _list = nullptr;
    std::uint64_t _id = 0;
    std::size_t _dimension = 0;
    std::string_view _coordinates;
};

/// In space; the last is 0 for one of a plane.
using Point = std::array<double, 3>;

/// The coordinates of an IfcCartesianPoint; nothing for anything else. `dimension` tells how many there are.
std::optional<Point> readPoint(const DXSdaiAppInstance* point, std::size_t& dimension);
/// Of a tuple of two or three numbers.
std::optional<Point> readPoint(std::string_view tuple);

/// One parameter of a simple instance by its place, without an instance being made for it; empty when it has not so
/// many.
std::string_view parameterOf(const sdai::Model& model, std::uint32_t number, std::size_t place);

/// "(1.,0.)" of so many coordinates.
std::string encodedTuple(const Point& point, std::size_t dimension);

} // namespace velkor::exchange
