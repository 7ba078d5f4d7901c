// Map coordinates in releases that have no coordinate operations, or fewer.
#include "RecordText.h"
#include "release/rules/BackwardTables.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

namespace velkor::exchange {

namespace {

constexpr ConversionRule conversions{
    "map-conversion-to-set", Effect::Rebuilt,
    "A map conversion becomes the property sets ePSet_MapConversion and ePSet_ProjectedCRS of the site",
    "So published guidance has it for IFC2X3, which knows no coordinate reference systems"};
constexpr ConversionRule systems{"coordinate-system", Effect::Lost,
                                 "A coordinate reference system is dropped that no map conversion leads to",
                                 "The release has no place for it"};
constexpr ConversionRule operations{"coordinate-operation", Effect::Lost,
                                    "A coordinate operation is dropped that is no map conversion",
                                    "The release has conversions by eastings, northings and one scale alone"};
constexpr ConversionRule rigid{"rigid-operation", Effect::Rebuilt,
                               "A rigid operation by lengths becomes a map conversion without turn and scale",
                               "Both move the origin by the same lengths"};
constexpr ConversionRule scaled{"scaled-conversion", Effect::Rebuilt,
                                "A map conversion with one factor for all axes has it within its scale",
                                "The product of the two is what coordinates are multiplied with"};

/// What carries the sets: the first site, else the project.
struct Carrier {
    std::uint64_t id = 0;
    /// The conversion that is said there: an object has one set of a name.
    std::uint64_t conversion = 0;
};

// Under an id that no instance has.
constexpr std::uint64_t carrierKey = ~std::uint64_t{0} - 1;

Successor absorbConversion(const Releases& releases, DXSdaiAppInstance& conversion) {
    return releases.target.entity("IFCMAPCONVERSION") ? Successor::notHere()
           : conversion.IsKindOf("IFCMAPCONVERSION")  ? Successor::absorbed()
                                                      : Successor::lost();
}

bool planConversion(Planning& planning, DXSdaiAppInstance& conversion) {
    const sdai::Model& model = planning.source();
    std::any& known = planning.remembered(carrierKey);
    if (!known.has_value()) {
        Carrier carrier{0, conversion.id()};
        for (const char* entity : {"IFCPROJECT", "IFCSITE"})
            if (const auto numbers = model.numbersOf(entity); !numbers.empty())
                carrier.id = model.file().id(numbers.front());
        known = carrier;
    }
    const auto* carrier = std::any_cast<Carrier>(&known);
    if (carrier->id == 0 || carrier->conversion != conversion.id()) return false;
    const std::uint64_t system = sdai::decodeInstanceName(conversion.GetAttr("TARGETCRS").encoded());
    const sdai::EntityDefinition* entity = system == 0 ? nullptr : entityOf(model, system);
    if (entity != nullptr && entity->isKindOf("IFCPROJECTEDCRS"))
        planning.decide(system, Successor::absorbed(), &conversions);
    return true;
}

struct Entry {
    const char* name;
    const char* attribute;
    const char* type;
};
constexpr Entry conversionEntries[] = {{"Eastings", "EASTINGS", "IFCLENGTHMEASURE"},
                                       {"Northings", "NORTHINGS", "IFCLENGTHMEASURE"},
                                       {"OrthogonalHeight", "ORTHOGONALHEIGHT", "IFCLENGTHMEASURE"},
                                       {"XAxisAbscissa", "XAXISABSCISSA", "IFCREAL"},
                                       {"XAxisOrdinate", "XAXISORDINATE", "IFCREAL"},
                                       {"Scale", "SCALE", "IFCREAL"}};
constexpr Entry systemEntries[] = {{"Name", "NAME", "IFCLABEL"},
                                   {"Description", "DESCRIPTION", "IFCTEXT"},
                                   {"GeodeticDatum", "GEODETICDATUM", "IFCIDENTIFIER"},
                                   {"VerticalDatum", "VERTICALDATUM", "IFCIDENTIFIER"},
                                   {"MapProjection", "MAPPROJECTION", "IFCIDENTIFIER"},
                                   {"MapZone", "MAPZONE", "IFCIDENTIFIER"}};

/// Puts a set of properties upon the carrier.
class SetWriter {
public:
    SetWriter(Rebuilding& rebuilding, std::string unit) : _rebuilding(rebuilding), _unit(std::move(unit)) {}

    void property(std::string_view name, std::string_view type, std::string_view value) {
        if (isUnset(value)) return;
        RecordBuilder record(_rebuilding.target(), "IFCPROPERTYSINGLEVALUE");
        record.set("NAME", literal(name));
        record.set("NOMINALVALUE", typed(type, value));
        if (type == "IFCLENGTHMEASURE") record.set("UNIT", _unit);
        _properties.push_back(reference(_rebuilding.add(record)));
    }
    void write(std::string_view name, std::uint64_t carrier) {
        if (_properties.empty()) return;
        RecordBuilder set(_rebuilding.target(), "IFCPROPERTYSET");
        setRoot(_rebuilding, set, name);
        set.set("NAME", literal(name));
        set.set("HASPROPERTIES", listOf(_properties));
        RecordBuilder relationship(_rebuilding.target(), "IFCRELDEFINESBYPROPERTIES");
        std::string what("IFCRELDEFINESBYPROPERTIES ");
        setRoot(_rebuilding, relationship, what += name);
        relationship.set("RELATEDOBJECTS", listOf({reference(carrier)}));
        relationship.set("RELATINGPROPERTYDEFINITION", reference(_rebuilding.add(set)));
        _rebuilding.add(relationship);
        _properties.clear();
    }

private:
    Rebuilding& _rebuilding;
    std::string _unit;
    std::vector<std::string> _properties;
};

/// "MILLIMETRE", "FOOT".
std::string unitName(const sdai::Model& model, std::uint64_t unit) {
    const auto plain = [&](std::string_view attribute) {
        const std::string text(encodedOf(model, unit, attribute));
        if (text.starts_with('\'')) return sdai::decodeString(text);
        return text.size() > 2 && text.front() == '.' ? text.substr(1, text.size() - 2) : std::string();
    };
    return plain("PREFIX") + plain("NAME");
}

void rebuildConversion(Rebuilding& rebuilding) {
    const sdai::Model& model = rebuilding.source();
    const auto* carrier = std::any_cast<Carrier>(&rebuilding.remembered(carrierKey));
    if (carrier == nullptr || rebuilding.successorOf(carrier->id) == nullptr) return;
    const std::uint64_t system = sdai::decodeInstanceName(rebuilding.encoded("TARGETCRS"));
    const std::string unit(system == 0 ? sdai::omittedValue : encodedOf(model, system, "MAPUNIT"));
    const std::uint64_t unitId = sdai::decodeInstanceName(unit);
    const bool isUnit = unitId != 0 && rebuilding.successorOf(unitId) != nullptr;
    SetWriter writer(rebuilding, isUnit ? unit : std::string(sdai::omittedValue));
    if (system != 0) writer.property("TargetCRS", "IFCLABEL", encodedOf(model, system, "NAME"));
    for (const Entry& entry : conversionEntries)
        writer.property(entry.name, entry.type, rebuilding.encoded(entry.attribute));
    writer.write("ePSet_MapConversion", carrier->id);
    if (system == 0) return;
    for (const Entry& entry : systemEntries)
        writer.property(entry.name, entry.type, encodedOf(model, system, entry.attribute));
    if (isUnit) writer.property("MapUnit", "IFCLABEL", literal(unitName(model, unitId)));
    writer.write("ePSet_ProjectedCRS", carrier->id);
}

/// The value of a typed length; empty for others.
std::string lengthOf(std::string_view encoded) {
    constexpr std::string_view begin = "IFCLENGTHMEASURE(";
    if (!encoded.starts_with(begin) || !encoded.ends_with(')')) return {};
    return std::string(encoded.substr(begin.size(), encoded.size() - begin.size() - 1));
}

Successor becomesConversion(const Releases& releases, DXSdaiAppInstance& operation) {
    if (lengthOf(operation.GetAttr("FIRSTCOORDINATE").encoded()).empty() ||
        lengthOf(operation.GetAttr("SECONDCOORDINATE").encoded()).empty())
        return Successor::notHere();
    return replacedBy(releases, operation, "IFCMAPCONVERSION");
}

void rebuildRigid(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCMAPCONVERSION"));
    const std::string height(rebuilding.encoded("HEIGHT"));
    record.set("EASTINGS", lengthOf(rebuilding.encoded("FIRSTCOORDINATE")));
    record.set("NORTHINGS", lengthOf(rebuilding.encoded("SECONDCOORDINATE")));
    record.set("ORTHOGONALHEIGHT", isUnset(height) ? real(0.) : height);
    rebuilding.become(record);
}

Successor becomesPlainConversion(const Releases& releases, DXSdaiAppInstance& conversion) {
    const auto factor = conversion.GetAttr("FACTORX").asReal();
    const bool isUniform =
        factor && factor == conversion.GetAttr("FACTORY").asReal() && factor == conversion.GetAttr("FACTORZ").asReal();
    return isUniform ? replacedBy(releases, conversion, "IFCMAPCONVERSION") : Successor::notHere();
}

void rebuildScaled(Rebuilding& rebuilding) {
    RecordBuilder record = rebuilding.carried(*rebuilding.target().entity("IFCMAPCONVERSION"));
    const double scale = rebuilding.instance().GetAttr("SCALE").asReal().value_or(1.);
    for (const char* attribute : {"FACTORX", "FACTORY", "FACTORZ"}) static_cast<void>(rebuilding.encoded(attribute));
    record.set("SCALE", real(scale * rebuilding.instance().GetAttr("FACTORX").asReal().value_or(1.)));
    rebuilding.become(record);
}

constexpr RebuildRule rebuilds[] = {
    {rigid, "IFCRIGIDOPERATION", becomesConversion, nullptr, rebuildRigid},
    {scaled, "IFCMAPCONVERSIONSCALED", becomesPlainConversion, nullptr, rebuildScaled},
    {conversions, "IFCMAPCONVERSION", absorbConversion, planConversion, rebuildConversion},
    {operations, "IFCCOORDINATEOPERATION", lostWhereLacking},
    {systems, "IFCCOORDINATEREFERENCESYSTEM", lostWhereLacking},
    {systems, "IFCWELLKNOWNTEXT", lostWhereLacking},
};

} // namespace

std::span<const RebuildRule> backwardCoordinateRules() {
    return rebuilds;
}

} // namespace velkor::exchange
