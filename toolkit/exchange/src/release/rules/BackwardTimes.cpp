// Events and calendars of schedules in releases that have tasks alone.
#include "release/rules/BackwardTables.h"

namespace velkor::exchange {

namespace {

constexpr ConversionRule events{"event-to-milestone", Effect::Rebuilt,
                                "An event becomes a milestone that is called so in ObjectType",
                                "A milestone is a task that takes no time, as an event does"};
constexpr ConversionRule calendars{"calendars", Effect::Lost,
                                   "Work calendars, recurrences and times of events and resources are dropped",
                                   "IFC2X3 has times of tasks alone, and none that recur"};

Successor becomesMilestone(const Releases& releases, DXSdaiAppInstance& event) {
    return replacedBy(releases, event, "IFCTASK");
}

void rebuildEvent(Rebuilding& rebuilding) {
    RecordBuilder task = rebuilding.carried(*rebuilding.target().entity("IFCTASK"));
    task.set("TASKID", std::string(rebuilding.encoded("IDENTIFICATION")));
    if (isUnset(task.value("TASKID"))) task.set("TASKID", literal({}));
    task.set("ISMILESTONE", ".T.");
    if (isUnset(task.value("OBJECTTYPE"))) task.set("OBJECTTYPE", literal(rebuilding.entity().name()));
    rebuilding.become(task);
}

constexpr RebuildRule rebuilds[] = {
    {events, "IFCEVENT", becomesMilestone, nullptr, rebuildEvent},
    {calendars, "IFCWORKCALENDAR", lostWhereLacking},
    {calendars, "IFCWORKTIME", lostWhereLacking},
    {calendars, "IFCRESOURCETIME", lostWhereLacking},
    {calendars, "IFCEVENTTIME", lostWhereLacking},
    {calendars, "IFCRECURRENCEPATTERN", lostWhereLacking},
    {calendars, "IFCTIMEPERIOD", lostWhereLacking},
};

} // namespace

std::span<const RebuildRule> backwardTimeRules() {
    return rebuilds;
}

} // namespace velkor::exchange
