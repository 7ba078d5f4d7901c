// Sweeps along curves, and between which parameters.
#include "release/rules/geometry/CurveRange.h"
#include "release/rules/geometry/GeometryTables.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <cmath>

namespace velkor::exchange {

namespace {

constexpr std::string_view parameters[] = {"STARTPARAM", "ENDPARAM"};

bool isRequired(const sdai::EntityDefinition& entity) {
    const sdai::Attribute* parameter = entity.attribute("STARTPARAM");
    return parameter && !parameter->isOptional();
}

// A length along the curve, which is a parameter only by chance.
bool isLength(const DXSdaiAppInstance& solid, std::string_view attribute) {
    return solid.TestAttr(attribute) && solid.GetAttr(attribute).encoded().starts_with("IFC") &&
           !solid.GetAttr(attribute).encoded().starts_with("IFCPARAMETERVALUE");
}

Successor lostByLengths(const Releases& releases, DXSdaiAppInstance& solid) {
    const sdai::EntityDefinition* after = releases.target.entity(solid.entity()->name());
    const sdai::Attribute* parameter = after ? after->attribute("STARTPARAM") : nullptr;
    if (!parameter || parameter->type().resolved().asSelect()) return Successor::notHere();
    for (const std::string_view attribute : parameters)
        if (isLength(solid, attribute)) return Successor::lost();
    return Successor::notHere();
}

Successor becomesBounded(const Releases& releases, DXSdaiAppInstance& solid) {
    const sdai::EntityDefinition* after = releases.target.entity(
        solid.IsKindOf("IFCSWEPTDISKSOLID") ? std::string_view("IFCSWEPTDISKSOLID") : solid.entity()->name());
    if (!after || isRequired(*solid.entity()) || !isRequired(*after)) return Successor::notHere();
    return Successor::of(releases, after->name());
}

void rebuildBounded(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.successorOf(rebuilding.id()));
    const DXSdaiAppInstance& solid = rebuilding.instance();
    if (const DXSdaiAppInstance* curve = solid.GetAttr("DIRECTRIX").asInstance()) {
        const CurveRange& range = CurveRange::of(rebuilding, *curve);
        for (const std::string_view attribute : parameters) {
            std::optional<double> value = attribute == parameters[0] ? std::optional(0.0) : range.end;
            if (const std::optional<double> given = solid.GetAttr(attribute).asReal()) {
                if (range.knots.empty()) continue;
                value = range.converted(*given);
            }
            record.set(attribute, value ? real(*value) : std::string(sdai::omittedValue));
        }
    }
    rebuilding.become(record);
}

Successor becomesTrimmed(const Releases& releases, DXSdaiAppInstance& curve) {
    const DXSdaiAppInstance* basis = curve.GetAttr("BASISCURVE").asInstance();
    const bool isSpline = basis != nullptr && basis->IsKindOf("IFCBSPLINECURVEWITHKNOTS");
    if (!isSpline || releases.target.entity("IFCBSPLINECURVEWITHKNOTS") != nullptr) return Successor::notHere();
    return Successor::of(releases, "IFCTRIMMEDCURVE");
}

void rebuildTrimmed(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.successorOf(rebuilding.id()));
    const DXSdaiAppInstance* basis = rebuilding.instance().GetAttr("BASISCURVE").asInstance();
    const CurveRange& range = CurveRange::of(rebuilding, *basis);
    constexpr std::string_view keyword = "IFCPARAMETERVALUE(";
    for (const char* attribute : {"TRIM1", "TRIM2"}) {
        std::string value(record.value(attribute));
        const std::size_t begin = value.find(keyword);
        const std::size_t end = begin == std::string::npos ? begin : value.find(')', begin);
        if (end == std::string::npos) continue;
        double parameter = 0;
        const std::size_t number = begin + keyword.size();
        const bool isRead = sdai::decodeReal(std::string_view(value).substr(number, end - number), parameter);
        const std::optional<double> converted = isRead ? range.converted(parameter) : std::nullopt;
        // Without its parameter the curve would be another one.
        record.set(attribute,
                   converted ? value.replace(number, end - number, real(*converted)) : std::string(sdai::omittedValue));
    }
    rebuilding.become(record);
}

Successor becomesDisk(const Releases& releases, DXSdaiAppInstance& solid) {
    const double radius = solid.GetAttr("FILLETRADIUS").asReal().value_or(0);
    return radius == 0 ? replacedBy(releases, solid, "IFCSWEPTDISKSOLID") : Successor::notHere();
}

constexpr ConversionRule sweepLengths = {"sweep-lengths", Effect::Lost,
                                         "Sweeps that begin or end at a length along their curve are lost",
                                         "The release has them begin and end at parameters"};
constexpr ConversionRule sweepParameters = {
    "sweep-parameters", Effect::Converted, "Sweeps along a curve get its parameters",
    "What says none runs along the whole curve; those of a B-spline follow the knots of its Bezier segments"};

constexpr ConversionRule trimParameters = {
    "trim-parameters", Effect::Converted, "Trims of a B-spline by parameters follow the knots of its Bezier segments",
    "The segments follow each other at a distance of one, whatever the knots were"};

constexpr RebuildRule rules[] = {
    {sweepLengths, "IFCSURFACECURVESWEPTAREASOLID", lostByLengths},
    {sweepLengths, "IFCFIXEDREFERENCESWEPTAREASOLID", lostByLengths},
    {{"polygonal-disks", Effect::Rebuilt, "Disks swept along a polygon become disks swept along a curve",
      "Without a fillet there is nothing more to the polygon than to any curve"},
     "IFCSWEPTDISKSOLIDPOLYGONAL",
     becomesDisk,
     nullptr,
     rebuildBounded},
    {trimParameters, "IFCTRIMMEDCURVE", becomesTrimmed, nullptr, rebuildTrimmed},
    {sweepParameters, "IFCSWEPTDISKSOLID", becomesBounded, nullptr, rebuildBounded},
    {sweepParameters, "IFCSURFACECURVESWEPTAREASOLID", becomesBounded, nullptr, rebuildBounded},
};

} // namespace

std::span<const RebuildRule> sweepRules() {
    return rules;
}

} // namespace velkor::exchange
