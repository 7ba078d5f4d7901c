/// What the values of each measure type are multiplied by.
#pragma once

#include "Ratio.h"
#include "velkor/sdai/Dictionary.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor::exchange {

/// Which ratio is for what; 0 is that of values that stay.
using RatioNumber = std::uint16_t;
inline constexpr RatioNumber stays = 0;

class MeasureRatios {
public:
    /// `exchanged` has the ratios of the unit types whose unit is exchanged, `isAssigned` says of the others whether
    /// the project has a unit for them: values of a measure are in that unit. Where there is none they are in the units
    /// that the definition of the measure is made of: a density in mass by volume units, a volume in cubed length
    /// units. Units that have a name of their own in SI, such as newtons, are in SI then, whatever lengths are in.
    MeasureRatios(const sdai::SchemaDefinition& schema, std::map<std::string, Ratio, std::less<>> exchanged,
                  std::function<bool(std::string_view)> isAssigned);

    const Ratio& operator[](RatioNumber number) const { return _ratios[number]; }
    /// Of a defined type; what it is defined by counts where it is no measure itself.
    RatioNumber of(const sdai::DefinedType& type) const;
    /// Of a typed parameter's keyword in the file.
    RatioNumber ofKeyword(std::string_view keyword) const;
    /// Of a unit type.
    RatioNumber ofUnit(std::string_view type);

    RatioNumber length() const { return _length; }
    RatioNumber planeAngle() const { return _planeAngle; }
    /// Of lengths to a power.
    RatioNumber lengthPower(int exponent);
    /// Of differences of temperatures.
    RatioNumber difference(RatioNumber number);

private:
    Ratio ratioOfUnit(std::string_view type, int depth);
    RatioNumber numbered(const Ratio& ratio);

    const sdai::SchemaDefinition& _schema;
    std::map<std::string, Ratio, std::less<>> _byUnit;
    std::function<bool(std::string_view)> _isAssigned;
    std::vector<Ratio> _ratios{Ratio()};
    // By position of the defined type.
    std::vector<RatioNumber> _byType;
    std::unordered_map<std::string, RatioNumber> _byKeyword;
    RatioNumber _length = stays;
    RatioNumber _planeAngle = stays;
};

} // namespace velkor::exchange
