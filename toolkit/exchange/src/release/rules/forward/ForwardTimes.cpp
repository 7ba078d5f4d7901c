// What times of IFC2X3 are beside dates: lags of sequences and values of properties.
#include "release/rules/forward/ForwardTables.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/units/UnitReport.h"

#include <charconv>
#include <cmath>

namespace velkor::exchange::forward {

namespace {

constexpr ConversionRule durations{"number-to-duration", Effect::Converted,
                                   "Measures of time become ISO 8601 durations in seconds where those are wanted",
                                   "Since IFC4 durations of work are texts, whose seconds need no unit"};
constexpr ConversionRule lags{"number-to-lag", Effect::Converted, "The lag of a sequence becomes a lag time",
                              "Since IFC4 lags are instances; which kind of time it is was never said"};
constexpr ConversionRule dateProperties{"date-property", Effect::Rebuilt,
                                        "A property that refers to a date or time becomes a single value",
                                        "Since IFC4 dates are values, and no longer what properties refer to"};

/// Seconds in the unit of time of the source.
double timeUnit(Rebuilding& rebuilding) {
    // The model as a whole has no instance.
    std::any& known = rebuilding.remembered(0);
    if (const double* factor = std::any_cast<double>(&known)) return *factor;
    const UnitReport report = unitReport(rebuilding.source());
    const UnitReport::Unit* unit = report.inForce("TIMEUNIT");
    const double factor = unit != nullptr && unit->factor > 0. ? unit->factor : 1.;
    known = factor;
    return factor;
}

std::optional<std::string> durationText(Rebuilding& rebuilding, std::string_view encoded) {
    double value = 0.;
    if (!sdai::decodeReal(encoded, value)) return std::nullopt;
    value *= timeUnit(rebuilding);
    // Beyond that no duration of work is meant, and the digits would be many.
    constexpr double largest = 1e15;
    if (!(std::abs(value) <= largest)) return std::nullopt;
    char digits[400];
    const auto end = std::to_chars(digits, digits + sizeof digits, std::abs(value), std::chars_format::fixed).ptr;
    std::string text(value < 0. ? "-PT" : "PT");
    return literal(text.append(digits, end) += 'S');
}

bool isTimeMeasure(const sdai::Type& type) {
    return type.asDefined() != nullptr && type.asDefined()->name() == "IFCTIMEMEASURE";
}

std::optional<std::vector<std::string>> asDuration(Rebuilding& rebuilding, std::string_view encoded,
                                                   const sdai::Type& from, const sdai::Type& to) {
    if (!isTimeMeasure(from) || to.asDefined() == nullptr || to.asDefined()->name() != "IFCDURATION")
        return std::nullopt;
    auto text = durationText(rebuilding, encoded);
    if (!text) return std::nullopt;
    return std::vector{std::move(*text)};
}

std::optional<std::vector<std::string>> asLag(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type& from,
                                              const sdai::Type& to) {
    const auto* entity = to.resolved().asEntity();
    if (!isTimeMeasure(from) || entity == nullptr || entity->name() != "IFCLAGTIME") return std::nullopt;
    const auto text = durationText(rebuilding, encoded);
    if (!text) return std::nullopt;
    RecordBuilder lag(rebuilding.target(), *entity);
    lag.set("LAGVALUE", typed("IFCDURATION", *text));
    lag.set("DURATIONTYPE", enumerator("NOTDEFINED"));
    return std::vector{reference(rebuilding.add(lag))};
}

bool isDate(std::string_view entity) {
    return entity == "IFCCALENDARDATE" || entity == "IFCLOCALTIME" || entity == "IFCDATEANDTIME";
}

Successor becomesValue(const Releases& releases, DXSdaiAppInstance& property) {
    const bool isGone = releases.target.entity("IFCCALENDARDATE") == nullptr;
    return isGone && isDate(entityNameAt(property, "PROPERTYREFERENCE"))
               ? Successor::of(releases, "IFCPROPERTYSINGLEVALUE")
               : Successor::notHere();
}

void rebuildValue(Rebuilding& rebuilding) {
    RecordBuilder record = carriedBut(rebuilding, "IFCPROPERTYSINGLEVALUE", {"PROPERTYREFERENCE"});
    carry(rebuilding, "PROPERTYREFERENCE", record, "NOMINALVALUE");
    rebuilding.become(record);
}

constexpr RebuildRule rebuilds[] = {
    {dateProperties, "IFCPROPERTYREFERENCEVALUE", becomesValue, nullptr, rebuildValue},
};

constexpr ValueRule values[] = {{durations, asDuration}, {lags, asLag}};

} // namespace

RuleTable lagRules() {
    return {.rebuild = rebuilds, .values = values};
}

} // namespace velkor::exchange::forward
