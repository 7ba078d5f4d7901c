/// What parameters of curves and surfaces are in units, and what is in the parameters of a surface.
#pragma once

#include "units/MeasureRatios.h"
#include "velkor/sdai/Model.h"

#include <cstdint>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace velkor::exchange {

class ParameterSpaces {
public:
    ParameterSpaces(const sdai::Model& model, MeasureRatios& ratios);

    /// Of the parameter of a curve.
    RatioNumber ofCurve(std::uint32_t number) const;
    struct Pair {
        RatioNumber u = stays;
        RatioNumber v = stays;
        bool operator==(const Pair&) const = default;
    };
    Pair ofSurface(std::uint32_t number) const;

    /// What an instance is measured by that describes a curve by the parameters of a surface; nothing for all others.
    std::optional<Pair> space(std::uint32_t number) const;
    bool isEmpty() const noexcept { return _spaces.empty(); }
    /// What describes such a curve and something else as well, or curves on surfaces that do not agree.
    const std::unordered_set<std::uint32_t>& shared() const noexcept { return _shared; }

private:
    void takeCurves();
    void takeTextures();
    void take(std::uint32_t curve, Pair pair);
    void findShared();

    const sdai::Model& _model;
    MeasureRatios& _ratios;
    std::unordered_map<std::uint32_t, Pair> _spaces;
    // Curves on surfaces and textures.
    std::unordered_set<std::uint32_t> _owners;
    std::unordered_set<std::uint32_t> _shared;
};

} // namespace velkor::exchange
