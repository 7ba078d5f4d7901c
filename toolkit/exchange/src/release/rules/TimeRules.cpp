// Dates, times and durations, and the times of tasks.
#include "identifiers/DerivedIdentifier.h"
#include "RecordText.h"
#include "release/Rebuilding.h"
#include "release/rules/forward/ForwardTables.h"
#include "release/rules/IsoTimes.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/units/UnitReport.h"

#include <cmath>
#include <cstdlib>

namespace velkor::exchange {

namespace {

constexpr std::string_view midnight = "T00:00:00";

constexpr ConversionRule timeOfDate{"time-of-date", Effect::Lost,
                                    "A time of day is dropped where only a date may stand",
                                    "The attribute is a date in the target"};

/// Entities of IFC2X3 and types of later releases that say the same.
bool isDateEntity(std::string_view name) {
    return name == "IFCCALENDARDATE" || name == "IFCLOCALTIME" || name == "IFCDATEANDTIME";
}

bool isDateType(std::string_view name) {
    return name == "IFCDATE" || name == "IFCTIME" || name == "IFCDATETIME";
}

std::string digits(std::int64_t value, std::size_t width) {
    std::string text = std::to_string(value);
    if (text.size() < width) text.insert(0, width - text.size(), '0');
    return text;
}

std::string dateText(const DXSdaiAppInstance& date) {
    const auto year = date.GetAttr("YEARCOMPONENT").asInteger();
    const auto month = date.GetAttr("MONTHCOMPONENT").asInteger();
    const auto day = date.GetAttr("DAYCOMPONENT").asInteger();
    if (!year || !month || !day || *year < 0 || *month < 1 || *month > 12 || *day < 1 || *day > 31) return {};
    return digits(*year, 4).append("-").append(digits(*month, 2)).append("-").append(digits(*day, 2));
}

std::string zoneText(const DXSdaiAppInstance* zone) {
    if (zone == nullptr) return {};
    const std::int64_t hours = zone->GetAttr("HOUROFFSET").asInteger().value_or(0);
    const std::int64_t minutes = zone->GetAttr("MINUTEOFFSET").asInteger().value_or(0);
    if (hours == 0 && minutes == 0) return "Z";
    const std::string sign = zone->GetAttr("SENSE").asEnumeration().text() == "BEHIND" ? "-" : "+";
    return (sign + digits(hours, 2)).append(":").append(digits(minutes, 2));
}

std::string timeText(const DXSdaiAppInstance& time) {
    const auto hour = time.GetAttr("HOURCOMPONENT").asInteger();
    if (!hour || *hour < 0 || *hour > 24) return {};
    const double second = time.GetAttr("SECONDCOMPONENT").asReal().value_or(0.0);
    std::string seconds = digits(static_cast<std::int64_t>(second), 2);
    if (const double rest = second - std::floor(second); rest > 0) {
        std::string fraction = real(second);
        seconds += fraction.substr(std::min(fraction.find('.'), fraction.size()));
    }
    std::string text = digits(*hour, 2);
    text.append(":")
        .append(digits(time.GetAttr("MINUTECOMPONENT").asInteger().value_or(0), 2))
        .append(":")
        .append(seconds);
    return text += zoneText(time.GetAttr("ZONE").asInstance());
}

/// Date and time of an instance, either may be empty.
std::pair<std::string, std::string> textsOf(const DXSdaiAppInstance& instance) {
    if (instance.IsKindOf("IFCCALENDARDATE")) return {dateText(instance), {}};
    if (instance.IsKindOf("IFCLOCALTIME")) return {{}, timeText(instance)};
    const auto* date = instance.GetAttr("DATECOMPONENT").asInstance();
    const auto* time = instance.GetAttr("TIMECOMPONENT").asInstance();
    return {date == nullptr ? std::string() : dateText(*date), time == nullptr ? std::string() : timeText(*time)};
}

/// The text that a type wants; empty when it cannot say it.
std::string textAs(std::string_view type, const std::pair<std::string, std::string>& parts) {
    const auto& [date, time] = parts;
    if (type == "IFCDATE") return date;
    if (type == "IFCTIME") return time;
    if (date.empty()) return {};
    return time.empty() ? date + std::string(midnight) : (date + "T").append(time);
}

Successor absorbDate(const Releases& releases, DXSdaiAppInstance& instance) {
    return releases.target.entity(instance.entity()->name()) == nullptr ? Successor::absorbed() : Successor::notHere();
}

std::optional<std::vector<std::string>> toText(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                               const sdai::Type& to) {
    const std::uint64_t id = sdai::decodeInstanceName(encoded);
    const DXSdaiAppInstance* instance = id == 0 ? nullptr : rebuilding.source().instance(id);
    if (instance == nullptr || instance->entity() == nullptr || !isDateEntity(instance->entity()->name()))
        return std::nullopt;
    const auto parts = textsOf(*instance);
    if (const auto* select = to.resolved().asSelect()) {
        const std::string_view wanted = parts.first.empty()    ? "IFCTIME"
                                        : parts.second.empty() ? "IFCDATE"
                                                               : "IFCDATETIME";
        const auto* type = rebuilding.target().definition().definedType(wanted);
        const std::string text = textAs(wanted, parts);
        if (type == nullptr || !select->accepts(*type) || text.empty()) return std::nullopt;
        return std::vector{typed(wanted, literal(text))};
    }
    const auto* type = to.asDefined();
    if (type == nullptr || !isDateType(type->name())) return std::nullopt;
    const std::string text = textAs(type->name(), parts);
    if (text.empty()) return std::nullopt;
    const bool isMidnight = parts.second.empty() || parts.second.starts_with("00:00:00");
    if (type->name() == "IFCDATE" && !isMidnight) rebuilding.note(timeOfDate, parts.second);
    return std::vector{literal(text)};
}

std::string addDate(Rebuilding& rebuilding, const IsoTime& time) {
    RecordBuilder record(rebuilding.target(), "IFCCALENDARDATE");
    record.set("DAYCOMPONENT", integer(time.day));
    record.set("MONTHCOMPONENT", integer(time.month));
    record.set("YEARCOMPONENT", integer(time.year));
    return reference(rebuilding.add(record));
}

std::string addTime(Rebuilding& rebuilding, const IsoTime& time) {
    RecordBuilder record(rebuilding.target(), "IFCLOCALTIME");
    record.set("HOURCOMPONENT", integer(time.hour));
    record.set("MINUTECOMPONENT", integer(time.minute));
    record.set("SECONDCOMPONENT", real(time.second));
    if (time.zone) {
        const int minutes = std::abs(*time.zone);
        RecordBuilder zone(rebuilding.target(), "IFCCOORDINATEDUNIVERSALTIMEOFFSET");
        zone.set("HOUROFFSET", integer(minutes / 60));
        zone.set("MINUTEOFFSET", integer(minutes % 60));
        zone.set("SENSE", enumerator(*time.zone < 0 ? "BEHIND" : "AHEAD"));
        record.set("ZONE", reference(rebuilding.add(zone)));
    }
    return reference(rebuilding.add(record));
}

std::optional<std::vector<std::string>> toInstance(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                                   const sdai::Type& to) {
    const ReleaseSchema& target = rebuilding.target();
    const auto takes = [&](const char* name) {
        const sdai::EntityDefinition* entity = target.entity(name);
        if (entity == nullptr) return false;
        const sdai::Type& type = to.resolved();
        return type.asEntity() == entity || (type.asSelect() != nullptr && type.asSelect()->accepts(*entity));
    };
    if (!takes("IFCCALENDARDATE") && !takes("IFCDATEANDTIME") && !takes("IFCLOCALTIME")) return std::nullopt;
    const std::string text = textOf(encoded);
    const auto time = IsoTime::read(text);
    if (!time) return std::nullopt;
    if (!time->hasDate)
        return takes("IFCLOCALTIME") ? std::optional(std::vector{addTime(rebuilding, *time)}) : std::nullopt;
    // So a day is said where a time is wanted too.
    const bool isDateAlone = !time->hasTime || text.ends_with(midnight);
    if (takes("IFCCALENDARDATE") && (isDateAlone || !takes("IFCDATEANDTIME")))
        return std::vector{addDate(rebuilding, *time)};
    if (!takes("IFCDATEANDTIME")) return std::nullopt;
    RecordBuilder record(target, "IFCDATEANDTIME");
    record.set("DATECOMPONENT", addDate(rebuilding, *time));
    record.set("TIMECOMPONENT", addTime(rebuilding, *time));
    return std::vector{reference(rebuilding.add(record))};
}

bool isNamed(const sdai::Type& type, std::string_view name) {
    return type.asDefined() != nullptr && type.asDefined()->name() == name;
}

/// Seconds in the project's unit of time.
double timeUnit(Rebuilding& rebuilding) {
    // What the model as a whole has is remembered under an id that no instance has.
    std::any& known = rebuilding.remembered(0);
    if (const double* factor = std::any_cast<double>(&known)) return *factor;
    const UnitReport report = unitReport(rebuilding.source());
    const UnitReport::Unit* unit = report.inForce("TIMEUNIT");
    const double factor = unit != nullptr && unit->factor > 0. ? unit->factor : 1.;
    known = factor;
    return factor;
}

std::optional<std::vector<std::string>> toDuration(Rebuilding& rebuilding, std::string_view encoded,
                                                   const sdai::Type& from, const sdai::Type& to) {
    double measure = 0;
    if (!isNamed(from, "IFCTIMEMEASURE") || !isNamed(to, "IFCDURATION") || !sdai::decodeReal(encoded, measure) ||
        measure < 0)
        return std::nullopt;
    std::string number = real(measure * timeUnit(rebuilding));
    if (number.find('E') != std::string::npos) return std::nullopt;
    if (number.back() == '.') number.pop_back();
    return std::vector{literal("PT" + number + "S")};
}

std::optional<std::vector<std::string>> toLag(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type& from,
                                              const sdai::Type& to) {
    const auto* entity = to.resolved().asEntity();
    if (entity == nullptr || entity->name() != "IFCLAGTIME") return std::nullopt;
    const auto* type = rebuilding.target().definition().definedType("IFCDURATION");
    const auto text = type == nullptr ? std::nullopt : toDuration(rebuilding, encoded, from, *type);
    if (!text) return std::nullopt;
    RecordBuilder lag(rebuilding.target(), *entity);
    lag.set("LAGVALUE", typed("IFCDURATION", text->front()));
    lag.set("DURATIONTYPE", enumerator("NOTDEFINED"));
    return std::vector{reference(rebuilding.add(lag))};
}

std::optional<std::vector<std::string>> toMeasure(Rebuilding& rebuilding, std::string_view encoded, const sdai::Type&,
                                                  const sdai::Type& to) {
    if (!isNamed(to, "IFCTIMEMEASURE") || encoded.empty()) return std::nullopt;
    std::string text;
    if (const std::uint64_t id = sdai::decodeInstanceName(encoded); id != 0) {
        const auto number = rebuilding.source().file().find(id);
        const sdai::EntityDefinition* entity = number ? rebuilding.source().entityAt(*number) : nullptr;
        if (entity == nullptr || entity->name() != "IFCLAGTIME") return std::nullopt;
        const std::string_view lag = parameterOf(rebuilding.source(), *number, "LAGVALUE");
        if (!lag.starts_with("IFCDURATION")) return std::nullopt;
        text = textOf(lag);
    } else {
        text = textOf(encoded);
    }
    const auto seconds = isoDuration(text);
    return seconds ? std::optional(std::vector{real(*seconds / timeUnit(rebuilding))}) : std::nullopt;
}

Successor absorbLag(const Releases& releases, DXSdaiAppInstance& time) {
    if (releases.target.entity("IFCLAGTIME") != nullptr) return Successor::notHere();
    const std::string_view lag = time.GetAttr("LAGVALUE").encoded();
    return lag.starts_with("IFCDURATION") && isoDuration(textOf(lag)) ? Successor::absorbed() : Successor::lost();
}

// Dates are values since IFC4, and no longer what properties refer to.
Successor becomesValue(const Releases& releases, DXSdaiAppInstance& property) {
    if (releases.target.entity("IFCCALENDARDATE") != nullptr) return Successor::notHere();
    const sdai::Model& model = property.model();
    const auto number = model.file().find(sdai::decodeInstanceName(property.GetAttr("PROPERTYREFERENCE").encoded()));
    const sdai::EntityDefinition* entity = number ? model.entityAt(*number) : nullptr;
    return entity != nullptr && isDateEntity(entity->name()) ? Successor::of(releases, "IFCPROPERTYSINGLEVALUE")
                                                             : Successor::notHere();
}

void rebuildValue(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCPROPERTYSINGLEVALUE"));
    carry(rebuilding, "PROPERTYREFERENCE", record, "NOMINALVALUE");
    rebuilding.become(record);
}

// The control that holds the times of a task of IFC2X3 is what later releases call the time of the task.
Successor becomesTaskTime(const Releases& releases, DXSdaiAppInstance& control) {
    return replacedBy(releases, control, "IFCTASKTIME");
}

void rebuildTaskTime(Rebuilding& rebuilding) {
    // It is no object any more.
    for (const char* attribute : {"GLOBALID", "OWNERHISTORY"}) static_cast<void>(rebuilding.encoded(attribute));
    rebuilding.become(rebuilding.carried(*rebuilding.target().entity("IFCTASKTIME")));
}

Successor becomesControl(const Releases& releases, DXSdaiAppInstance& assignment) {
    return replacedBy(releases, assignment, "IFCRELASSIGNSTOCONTROL");
}

bool giveTimes(Planning& planning, DXSdaiAppInstance& assignment) {
    const DXSdaiAppInstance* time = assignment.GetAttr("TIMEFORTASK").asInstance();
    if (time == nullptr || planning.releases().target.entity("IFCTASKTIME") == nullptr) return true;
    for (const sdai::Primitive member : assignment.GetAttr("RELATEDOBJECTS").asAggregate())
        if (const DXSdaiAppInstance* task = member.asInstance(); task != nullptr && task->IsKindOf("IFCTASK"))
            planning.setLater(task->id(), "TASKTIME", reference(time->id()));
    return true;
}

void rebuildAssignment(Rebuilding& rebuilding) {
    static_cast<void>(rebuilding.encoded("TIMEFORTASK"));
    rebuilding.become(rebuilding.carried(*rebuilding.target().entity("IFCRELASSIGNSTOCONTROL")));
}

Successor becomesTimeControl(const Releases& releases, DXSdaiAppInstance& time) {
    return replacedBy(releases, time, "IFCSCHEDULETIMECONTROL");
}

void rebuildTimeControl(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCSCHEDULETIMECONTROL"));
    record.set("GLOBALID", literal(derivedIdentifier("IFCSCHEDULETIMECONTROL " + reference(rebuilding.id()))));
    rebuilding.become(record);
}

Successor keepsTimes(const Releases& releases, DXSdaiAppInstance& task) {
    const sdai::EntityDefinition* same = releases.target.entity("IFCTASK");
    if (same == nullptr || same->attributeIndex("TASKTIME") >= 0 ||
        releases.target.entity("IFCRELASSIGNSTASKS") == nullptr || task.GetAttr("TASKTIME").asInstance() == nullptr)
        return Successor::notHere();
    return Successor::of(releases, "IFCTASK");
}

// A task of IFC2X3 has times for the schedule that it is in.
bool findSchedule(Planning& planning, DXSdaiAppInstance& task) {
    for (const std::uint64_t user : planning.users(task.id())) {
        const DXSdaiAppInstance* assignment = planning.source().instance(user);
        if (assignment == nullptr || !assignment->IsKindOf("IFCRELASSIGNSTOCONTROL")) continue;
        const DXSdaiAppInstance* control = assignment->GetAttr("RELATINGCONTROL").asInstance();
        if (control != nullptr && control->IsKindOf("IFCWORKCONTROL")) planning.remembered(task.id()) = control->id();
    }
    return true;
}

void rebuildTask(Rebuilding& rebuilding) {
    const RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCTASK"));
    const auto* schedule = std::any_cast<std::uint64_t>(&rebuilding.remembered(rebuilding.id()));
    if (schedule != nullptr && rebuilding.successorOf(*schedule) != nullptr) {
        RecordBuilder assignment(rebuilding.target(), "IFCRELASSIGNSTASKS");
        std::string text(rebuilding.encoded("GLOBALID"));
        assignment.set("GLOBALID", literal(derivedIdentifier(text += " IFCRELASSIGNSTASKS")));
        assignment.set("OWNERHISTORY", std::string(record.value("OWNERHISTORY")));
        assignment.set("RELATEDOBJECTS", listOf({reference(rebuilding.id())}));
        assignment.set("RELATINGCONTROL", reference(*schedule));
        assignment.set("TIMEFORTASK", std::string(rebuilding.encoded("TASKTIME")));
        rebuilding.add(assignment);
    }
    rebuilding.become(record);
}

constexpr ConversionRule dateAsText{
    "date-to-text", Effect::Rebuilt, "Dates and times become ISO 8601 texts",
    "Releases since IFC4 say them so; a day for which a time is wanted begins at midnight"};
constexpr ConversionRule textDate{
    "text-to-date", Effect::Rebuilt, "ISO 8601 texts become dates and times",
    "IFC2X3 has entities for days, times and zones; midnight without a zone stands for the day"};
constexpr ConversionRule duration{"seconds-to-duration", Effect::Converted,
                                  "A time in seconds becomes an ISO 8601 duration",
                                  "Releases since IFC4 say durations as texts"};
constexpr ConversionRule seconds{
    "duration-to-seconds", Effect::Converted, "An ISO 8601 duration becomes a time in seconds",
    "IFC2X3 says durations in the unit of time; years and months have no fixed length and are lost"};
constexpr ConversionRule taskTime{"schedule-to-task-time", Effect::Rebuilt,
                                  "The schedule time control of a task becomes its task time",
                                  "Since IFC4 a task has its times itself"};
constexpr ConversionRule timeControl{
    "task-time-to-schedule", Effect::Rebuilt,
    "The time of a task becomes a schedule time control, assigned with its work schedule",
    "IFC2X3 has times of tasks for a schedule; those of tasks in none are lost"};

constexpr ConversionRule lag{"number-to-lag", Effect::Converted, "The lag of a sequence becomes a lag time",
                             "Since IFC4 lags are instances; of which kind they are was never said"};
constexpr ConversionRule dateValue{"date-property", Effect::Rebuilt,
                                   "A property that refers to a date or time becomes a single value",
                                   "Since IFC4 dates are values, and no longer what properties refer to"};

constexpr RebuildRule rebuilds[] = {
    {dateValue, "IFCPROPERTYREFERENCEVALUE", becomesValue, nullptr, rebuildValue},
    {timeOfDate, "IFCDATEANDTIME", notHere},
    {dateAsText, "IFCCALENDARDATE", absorbDate},
    {dateAsText, "IFCLOCALTIME", absorbDate},
    {dateAsText, "IFCDATEANDTIME", absorbDate},
    {dateAsText, "IFCCOORDINATEDUNIVERSALTIMEOFFSET", absorbDate},
    {seconds, "IFCLAGTIME", absorbLag},
    {taskTime, "IFCSCHEDULETIMECONTROL", becomesTaskTime, nullptr, rebuildTaskTime},
    {taskTime, "IFCRELASSIGNSTASKS", becomesControl, giveTimes, rebuildAssignment},
    {timeControl, "IFCTASKTIME", becomesTimeControl, nullptr, rebuildTimeControl},
    {timeControl, "IFCTASK", keepsTimes, findSchedule, rebuildTask},
};

constexpr ValueRule values[] = {
    {dateAsText, toText}, {textDate, toInstance}, {duration, toDuration}, {lag, toLag}, {seconds, toMeasure},
};

} // namespace

RuleTable timeRules() {
    return {.rebuild = rebuilds, .values = values};
}

} // namespace velkor::exchange
