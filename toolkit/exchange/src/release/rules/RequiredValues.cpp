// Values that a release requires where another one does without.
#include "identifiers/DerivedIdentifier.h"
#include "release/Rebuilding.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <charconv>
#include <chrono>

namespace velkor::exchange {

namespace {

constexpr std::string_view unknownName = "unknown";

/// Seconds since 1970 of the first 19 characters of an ISO 8601 text, 0 for others.
std::int64_t secondsOf(std::string_view time) {
    int parts[6] = {};
    constexpr std::size_t places[] = {0, 5, 8, 11, 14, 17};
    if (time.size() < 19) return 0;
    for (std::size_t i = 0; i < 6; ++i) {
        const char* begin = time.data() + places[i];
        const char* end = begin + (i == 0 ? 4 : 2);
        if (const auto read = std::from_chars(begin, end, parts[i]); read.ec != std::errc() || read.ptr != end)
            return 0;
    }
    using namespace std::chrono;
    const year_month_day day{year(parts[0]), month(static_cast<unsigned>(parts[1])),
                             std::chrono::day(static_cast<unsigned>(parts[2]))};
    if (!day.ok()) return 0;
    const auto seconds =
        sys_days(day).time_since_epoch() + hours(parts[3]) + minutes(parts[4]) + std::chrono::seconds(parts[5]);
    return duration_cast<std::chrono::seconds>(seconds).count();
}

std::uint64_t addHistory(Rebuilding& rebuilding) {
    const ReleaseSchema& target = rebuilding.target();
    RecordBuilder person(target, "IFCPERSON");
    person.set("FAMILYNAME", literal(unknownName));
    RecordBuilder organization(target, "IFCORGANIZATION");
    organization.set("NAME", literal(unknownName));
    RecordBuilder user(target, "IFCPERSONANDORGANIZATION");
    user.set("THEPERSON", reference(rebuilding.add(person)));
    const std::string owner = reference(rebuilding.add(organization));
    user.set("THEORGANIZATION", owner);
    RecordBuilder developer(target, "IFCORGANIZATION");
    developer.set("NAME", literal("Velkor"));
    RecordBuilder application(target, "IFCAPPLICATION");
    application.set("APPLICATIONDEVELOPER", reference(rebuilding.add(developer)));
    application.set("VERSION", literal(VELKOR_VERSION));
    application.set("APPLICATIONFULLNAME", literal("Velkor"));
    application.set("APPLICATIONIDENTIFIER", literal("Velkor"));
    RecordBuilder history(target, "IFCOWNERHISTORY");
    history.set("OWNINGUSER", reference(rebuilding.add(user)));
    history.set("OWNINGAPPLICATION", reference(rebuilding.add(application)));
    history.set("CHANGEACTION", enumerator("NOCHANGE"));
    history.set("CREATIONDATE", integer(secondsOf(rebuilding.timeStamp())));
    return rebuilding.add(history);
}

/// The first history of the model that stands in the target, else one of our own.
std::uint64_t findOrAddHistory(Rebuilding& rebuilding) {
    const sdai::Model& model = rebuilding.source();
    for (const std::uint32_t number : model.numbersOf("IFCOWNERHISTORY"))
        if (const std::uint64_t id = model.file().id(number); rebuilding.successorOf(id) != nullptr) return id;
    return addHistory(rebuilding);
}

std::optional<std::string> ownerHistory(Rebuilding& rebuilding) {
    return reference(rebuilding.shared("owner history", findOrAddHistory));
}

std::uint64_t addDirection(Rebuilding& rebuilding) {
    return rebuilding.add("IFCDIRECTION((0.,0.,1.))");
}

std::optional<std::string> upwards(Rebuilding& rebuilding) {
    return reference(rebuilding.shared("direction upwards", addDirection));
}

std::uint64_t addContext(Rebuilding& rebuilding) {
    RecordBuilder placement(rebuilding.target(), "IFCAXIS2PLACEMENT3D");
    placement.set("LOCATION", reference(rebuilding.add("IFCCARTESIANPOINT((0.,0.,0.))")));
    RecordBuilder context(rebuilding.target(), "IFCGEOMETRICREPRESENTATIONCONTEXT");
    context.set("CONTEXTTYPE", literal("Model"));
    context.set("COORDINATESPACEDIMENSION", integer(3));
    context.set("WORLDCOORDINATESYSTEM", reference(rebuilding.add(placement)));
    return rebuilding.add(context);
}

std::optional<std::string> contexts(Rebuilding& rebuilding) {
    return listOf({reference(rebuilding.shared("context", addContext))});
}

std::uint64_t addUnits(Rebuilding& rebuilding) {
    constexpr std::pair<const char*, const char*> units[] = {{"LENGTHUNIT", "METRE"},
                                                             {"AREAUNIT", "SQUARE_METRE"},
                                                             {"VOLUMEUNIT", "CUBIC_METRE"},
                                                             {"PLANEANGLEUNIT", "RADIAN"}};
    std::vector<std::string> members;
    for (const auto& [type, name] : units) {
        RecordBuilder unit(rebuilding.target(), "IFCSIUNIT");
        unit.set("UNITTYPE", enumerator(type));
        unit.set("NAME", enumerator(name));
        members.push_back(reference(rebuilding.add(unit)));
    }
    RecordBuilder assignment(rebuilding.target(), "IFCUNITASSIGNMENT");
    assignment.set("UNITS", listOf(members));
    return rebuilding.add(assignment);
}

std::optional<std::string> unitAssignment(Rebuilding& rebuilding) {
    return reference(rebuilding.shared("units", addUnits));
}

/// Nothing solid lies at a boundary that is only thought.
std::optional<std::string> virtualElement(Rebuilding& rebuilding) {
    RecordBuilder element(rebuilding.target(), "IFCVIRTUALELEMENT");
    std::string text(rebuilding.encoded("GLOBALID"));
    element.set("GLOBALID", literal(derivedIdentifier(text += " IFCVIRTUALELEMENT")));
    element.set("OWNERHISTORY", std::string(rebuilding.encoded("OWNERHISTORY")));
    // Where releases have it.
    element.set("PREDEFINEDTYPE", enumerator("NOTDEFINED"));
    return reference(rebuilding.add(element));
}

std::optional<std::string> namedProfile(Rebuilding& rebuilding) {
    RecordBuilder profile(rebuilding.target(), "IFCPROFILEDEF");
    profile.set("PROFILETYPE", enumerator("AREA"));
    profile.set("PROFILENAME", std::string(rebuilding.encoded("PROFILENAME")));
    return reference(rebuilding.add(profile));
}

std::optional<std::string> ownName(Rebuilding& rebuilding) {
    const std::string_view name = rebuilding.encoded("NAME");
    return listOf({name == sdai::omittedValue ? literal({}) : std::string(name)});
}

constexpr ConversionRule history{
    "owner-history", Effect::Converted,
    "An object without an owner history gets the first one of the model, or one that names "
    "the conversion",
    "IFC2X3 requires one of every object, later releases of none"};
constexpr ConversionRule change{"change-action", Effect::Converted,
                                "An owner history without a change action has NOCHANGE",
                                "IFC2X3 requires one; nothing was changed that is known of"};
constexpr ConversionRule composition{"composition-type", Effect::Converted,
                                     "A spatial element without a composition type is an ELEMENT",
                                     "IFC2X3 requires one; ELEMENT is what is neither a group nor a part"};
constexpr ConversionRule axis{"member-axis", Effect::Converted, "A structural member or connection has an axis upwards",
                              "Releases since IFC4 require the direction of its z axis, which IFC2X3 does not say"};
constexpr ConversionRule project{"project-context", Effect::Converted,
                                 "A project without contexts or units gets a model context, or metres and radians",
                                 "IFC2X3 requires both; without units of its own values are in SI units"};
constexpr ConversionRule boundary{
    "virtual-boundary", Effect::Converted, "A space boundary without an element gets a virtual element",
    "Releases since IFC4 require an element, and have this one for boundaries that are only thought"};
constexpr ConversionRule profile{
    "named-profile", Effect::Converted, "Profile properties without a profile get one of their name",
    "Releases since IFC4 require a profile, and have profiles that are known by name alone"};
constexpr ConversionRule font{"font-family", Effect::Converted, "A font without a family has its own name for one",
                              "Releases since IFC4 require a family"};
constexpr ConversionRule truth{"required-flag", Effect::Converted,
                               "A flag that is required is false unless something says otherwise",
                               "The source leaves it open, and the target has no third value"};
constexpr ConversionRule lag{"no-time-lag", Effect::Converted, "A sequence without a lag has one of no time",
                             "IFC2X3 requires a lag"};
constexpr ConversionRule length{
    "true-length", Effect::Converted, "A load without a reference length is one over the true length",
    "IFC2X3 requires one of the two, and loads are given over the member unless said otherwise"};
constexpr ConversionRule part{"facility-part", Effect::Converted,
                              "A part of a facility without a type is not defined further",
                              "The release requires a type of one of several lists"};

constexpr DefaultRule defaults[] = {
    {history, "IFCROOT", "OWNERHISTORY", nullptr, ownerHistory},
    {change, "IFCOWNERHISTORY", "CHANGEACTION", ".NOCHANGE."},
    {composition, "IFCSPATIALSTRUCTUREELEMENT", "COMPOSITIONTYPE", ".ELEMENT."},
    {axis, "IFCSTRUCTURALCURVEMEMBER", "AXIS", nullptr, upwards},
    {axis, "IFCSTRUCTURALCURVECONNECTION", "AXIS", nullptr, upwards},
    {axis, "IFCSTRUCTURALCURVECONNECTION", "AXISDIRECTION", nullptr, upwards},
    {project, "IFCPROJECT", "REPRESENTATIONCONTEXTS", nullptr, contexts},
    {project, "IFCPROJECT", "UNITSINCONTEXT", nullptr, unitAssignment},
    {boundary, "IFCRELSPACEBOUNDARY", "RELATEDBUILDINGELEMENT", nullptr, virtualElement},
    {profile, "IFCPROFILEPROPERTIES", "PROFILEDEFINITION", nullptr, namedProfile},
    {font, "IFCTEXTSTYLEFONTMODEL", "FONTFAMILY", nullptr, ownName},
    {truth, "IFCSTRUCTURALACTION", "DESTABILIZINGLOAD", ".F."},
    {truth, "IFCTABLEROW", "ISHEADING", ".F."},
    {truth, "IFCKERB", "MOUNTABLE", ".F."},
    {truth, "IFCKERBTYPE", "MOUNTABLE", ".F."},
    {truth, "IFCPAVEMENTTYPE", "FLEXIBLE", ".F."},
    {truth, "IFCTASK", "ISMILESTONE", ".F."},
    {lag, "IFCRELSEQUENCE", "TIMELAG", "0."},
    {length, "IFCSTRUCTURALLINEARACTION", "PROJECTEDORTRUE", ".TRUE_LENGTH."},
    {length, "IFCSTRUCTURALPLANARACTION", "PROJECTEDORTRUE", ".TRUE_LENGTH."},
    {part, "IFCFACILITYPART", "PREDEFINEDTYPE", "IFCFACILITYPARTCOMMONTYPEENUM(.NOTDEFINED.)"},
};

// A property that has no value is still known by its name.
Successor becomesSingleValue(const Releases& releases, DXSdaiAppInstance& property) {
    const sdai::EntityDefinition* same = releases.target.entity(property.entity()->name());
    for (const char* attribute :
         {"ENUMERATIONVALUES", "LISTVALUES", "DEFININGVALUES", "DEFINEDVALUES", "PROPERTYREFERENCE"}) {
        const int index = same == nullptr ? -1 : same->attributeIndex(attribute);
        if (index < 0 || same->attributes()[static_cast<std::size_t>(index)].attribute->isOptional()) continue;
        if (!property.GetAttr(attribute).isSet()) return Successor::of(releases, "IFCPROPERTYSINGLEVALUE");
    }
    return Successor::notHere();
}

constexpr ConversionRule valueless{"valueless-property", Effect::Rebuilt,
                                   "A property without values becomes a single value without one",
                                   "IFC2X3 requires values of lists, tables and references, and none of single values"};

constexpr RebuildRule rebuilds[] = {
    {valueless, "IFCPROPERTYENUMERATEDVALUE", becomesSingleValue},
    {valueless, "IFCPROPERTYLISTVALUE", becomesSingleValue},
    {valueless, "IFCPROPERTYTABLEVALUE", becomesSingleValue},
    {valueless, "IFCPROPERTYREFERENCEVALUE", becomesSingleValue},
};

} // namespace

RuleTable requiredValueRules() {
    return {.rebuild = rebuilds, .defaults = defaults};
}

} // namespace velkor::exchange
