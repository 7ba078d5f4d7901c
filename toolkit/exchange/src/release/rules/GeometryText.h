/// Points and indices of geometry as the file has them.
#pragma once

#include "velkor/sdai/Model.h"
#include "velkor/sdai/Part21Lexer.h"

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
struct PointList {
    std::uint64_t id = 0;
    std::size_t dimension = 0;
    std::string_view coordinates;

    /// Of what an attribute refers to; nothing when that is no list of points.
    static std::optional<PointList> of(const DXSdaiAppInstance& user, std::string_view attribute);
    static std::optional<PointList> of(const DXSdaiAppInstance& list);
    /// Nothing when not all of it was understood.
    std::optional<std::uint64_t> count() const;
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
