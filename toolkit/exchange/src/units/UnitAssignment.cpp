#include "units/UnitAssignment.h"

#include "QORIFCUnitServices.h"
#include "RecordBuilder.h"
#include "RecordText.h"
#include "ReleaseSchema.h"
#include "units/UnitRules.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"
#include "velkor/units/MeasureUnits.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace velkor::exchange {

namespace {

constexpr const char* offsetUnit = "IFCCONVERSIONBASEDUNITWITHOFFSET";

/// A conversion factor that is stated in full: what a file leaves out counts as 1 to the unit services.
bool hasFactor(const DXSdaiAppInstance& unit) {
    const DXSdaiAppInstance* measure = unit.GetAttr("CONVERSIONFACTOR").asInstance();
    return measure != nullptr && measure->GetAttr("UNITCOMPONENT").asInstance() != nullptr &&
           measure->GetAttr("VALUECOMPONENT").asReal().has_value();
}

/// How a unit of the file counts: those of SI exactly, others as the unit services say. Nothing for units that are not
/// defined by others, or by a factor that is none.
std::optional<UnitScale> scaleOf(const DXSdaiAppInstance& unit) {
    if (unit.IsKindOf("IFCSIUNIT"))
        return scaleOf(SiUnit{unit.GetAttr("UNITTYPE").asEnumeration().text(),
                              unit.GetAttr("PREFIX").asEnumeration().text(),
                              unit.GetAttr("NAME").asEnumeration().text()});
    auto* instance = unit.model().instance(unit.id());
    const double factor = QORIFCUnitServices::GetUnitConversionFactor(instance);
    if (!unit.IsKindOf("IFCCONVERSIONBASEDUNIT") || !hasFactor(unit) || !std::isfinite(factor) || factor <= 0)
        return std::nullopt;
    return UnitScale::of(factor, unit.GetAttr("CONVERSIONOFFSET").asReal().value_or(0.0));
}

std::string unknownType(const sdai::SchemaDefinition& schema, std::string_view wanted) {
    std::string message = "there is no unit type ";
    message += text::quoted(wanted);
    if (const auto nearest = text::nearestNames(unitTypes(schema), wanted, 3); !nearest.empty())
        message.append("; meant is perhaps ").append(text::alternatives(nearest));
    return message;
}

} // namespace

UnitAssignment::UnitAssignment(const sdai::Model& model, UnitReport report)
    : _model(&model), _report(std::move(report)) {
    std::unordered_set<std::uint32_t> taken;
    const auto take = [&](std::uint32_t number) {
        if (!taken.insert(number).second) return;
        _assignments.push_back(number);
        eachNumber(_model->file(), parameterOf(*_model, number, "UNITS"),
                   [this](std::uint32_t unit) { _assigned.insert(unit); });
    };
    if (_report.assignment)
        if (const auto number = _model->file().find(*_report.assignment)) take(*number);
    for (const char* context : {"IFCPROJECT", "IFCCONTEXT"})
        for (const std::uint32_t number : _model->numbersOf(context))
            eachNumber(_model->file(), parameterOf(*_model, number, "UNITSINCONTEXT"), take);
}

tl::expected<UnitAssignment, std::string>
UnitAssignment::read(const sdai::Model& model, const std::vector<std::pair<std::string, std::string>>& wanted) {
    UnitAssignment assignment(model, unitReport(model));
    std::vector<std::string> types;
    for (const auto& [type, name] : wanted) {
        types.push_back(text::toUpper(type));
        if (std::ranges::count(types, types.back()) > 1)
            return tl::unexpected("two units are asked for of type " + types.back());
        if (auto done = assignment.want(types.back(), name); !done) return tl::unexpected(done.error());
    }
    return assignment;
}

tl::expected<void, std::string> UnitAssignment::want(const std::string& type, const std::string& name) {
    if (!isUnitType(_model->schema(), type)) return tl::unexpected(unknownType(_model->schema(), type));
    auto unit = catalogueUnit(type, name);
    if (!unit) return tl::unexpected(unit.error());
    if (unit->conversion.offset != 0 && _model->schema().entity(offsetUnit) == nullptr)
        return tl::unexpected(unit->displayName() + " begins at another zero, which the release cannot say of a unit");
    const UnitReport::Unit* before = _report.inForce(type);
    if (before == nullptr)
        return tl::unexpected("the project has no unit of type " + type + " that " + unit->displayName() +
                              " could replace");
    const auto scale = scaleOf(*_model->instance(before->id));
    if (!scale)
        return tl::unexpected("what a unit of type " + type + " is worth cannot be told of #" +
                              std::to_string(before->id));
    Exchange exchange{*before, *unit, Ratio::between(*scale, unit->scale), {}};
    if (exchange.ratio.isOne()) return {};
    if (auto done = findPlaces(exchange); !done) return done;
    _exchanges.push_back(std::move(exchange));
    return {};
}

tl::expected<void, std::string> UnitAssignment::findPlaces(Exchange& exchange) const {
    const auto wanted = scaleOf(*_model->instance(exchange.before.id));
    for (const std::uint32_t assignment : _assignments) {
        std::optional<std::uint32_t> found;
        eachNumber(_model->file(), parameterOf(*_model, assignment, "UNITS"), [&](std::uint32_t number) {
            const auto* unit = _model->instanceAt(number);
            if (unit->GetAttr("UNITTYPE").asEnumeration().text() == exchange.before.type) found = number;
        });
        if (!found) continue;
        if (scaleOf(*_model->instanceAt(*found)) != wanted)
            return tl::unexpected("which unit of type " + exchange.before.type +
                                  " a value is in cannot be told: contexts of the model have different ones");
        exchange.places.push_back({assignment, *found});
    }
    return {};
}

std::map<std::string, Ratio, std::less<>> UnitAssignment::ratios() const {
    std::map<std::string, Ratio, std::less<>> result;
    for (const Exchange& exchange : _exchanges) result.emplace(exchange.before.type, exchange.ratio);
    return result;
}

std::vector<std::uint32_t> UnitAssignment::oldUnits() const {
    std::unordered_set<std::uint32_t> taken;
    std::vector<std::uint32_t> units;
    for (const Exchange& exchange : _exchanges)
        for (const Place& place : exchange.places)
            if (taken.insert(place.unit).second) units.push_back(place.unit);
    return units;
}

// What a model came from may still have the unit, for values of their own.
std::optional<std::uint64_t> UnitAssignment::present(const CatalogueUnit& unit, const UnitUsers& users) const {
    for (const std::uint32_t number :
         _model->numbersOf(unit.isConversionBased() ? "IFCCONVERSIONBASEDUNIT" : "IFCSIUNIT")) {
        const DXSdaiAppInstance& candidate = *_model->instanceAt(number);
        const auto name = candidate.GetAttr("NAME");
        const bool isNamed = unit.isConversionBased()
                                 ? text::equalIgnoringCase(name.asString(), unit.conversion.name)
                                 : name.asEnumeration().text() == unit.si.name &&
                                       candidate.GetAttr("PREFIX").asEnumeration().text() == unit.si.prefix;
        if (!isNamed || candidate.GetAttr("UNITTYPE").asEnumeration().text() != unit.si.type) continue;
        const auto scale = scaleOf(candidate);
        if (scale && Ratio::between(*scale, unit.scale).isOne() && !users.isLeft(number) && !_assigned.contains(number))
            return candidate.id();
    }
    return std::nullopt;
}

tl::expected<std::uint64_t, std::string> UnitAssignment::add(sdai::Part21Edit& edit, std::string_view record) {
    ++_counts.added;
    return edit.add(record);
}

tl::expected<std::string, std::string> UnitAssignment::recordOf(const CatalogueUnit& unit, sdai::Part21Edit& edit) {
    const ReleaseSchema schema(_model->schema());
    RecordBuilder si(schema, "IFCSIUNIT");
    si.set("UNITTYPE", enumerator(unit.si.type));
    if (!unit.si.prefix.empty()) si.set("PREFIX", enumerator(unit.si.prefix));
    si.set("NAME", enumerator(unit.si.name));
    if (!unit.isConversionBased()) return si.text();
    RecordBuilder exponents(schema, "IFCDIMENSIONALEXPONENTS");
    constexpr const char* names[] = {"LENGTHEXPONENT",
                                     "MASSEXPONENT",
                                     "TIMEEXPONENT",
                                     "ELECTRICCURRENTEXPONENT",
                                     "THERMODYNAMICTEMPERATUREEXPONENT",
                                     "AMOUNTOFSUBSTANCEEXPONENT",
                                     "LUMINOUSINTENSITYEXPONENT"};
    const std::array<int, 7> dimensions = dimensionsOf(unit.si.type);
    for (std::size_t i = 0; i < dimensions.size(); ++i) exponents.set(names[i], integer(dimensions[i]));
    const auto base = add(edit, si.text());
    if (!base) return tl::unexpected(base.error());
    RecordBuilder factor(schema, "IFCMEASUREWITHUNIT");
    factor.set("VALUECOMPONENT", typed(measureOf(unit.si.type), real(unit.conversion.factor)));
    factor.set("UNITCOMPONENT", reference(*base));
    const auto factorId = add(edit, factor.text());
    const auto exponentsId = add(edit, exponents.text());
    if (!factorId || !exponentsId) return tl::unexpected(factorId ? exponentsId.error() : factorId.error());
    const bool hasOffset = unit.conversion.offset != 0;
    RecordBuilder record(schema, hasOffset ? offsetUnit : "IFCCONVERSIONBASEDUNIT");
    record.set("DIMENSIONS", reference(*exponentsId));
    record.set("UNITTYPE", enumerator(unit.si.type));
    record.set("NAME", literal(unit.conversion.name));
    record.set("CONVERSIONFACTOR", reference(*factorId));
    if (hasOffset) record.set("CONVERSIONOFFSET", real(unit.conversion.offset));
    return record.text();
}

tl::expected<void, std::string> UnitAssignment::rewrite(sdai::Part21Edit& edit, ChangeList& changes) {
    if (_exchanges.empty()) return {};
    const UnitUsers users(*_model, oldUnits(), _assignments);
    for (const Exchange& exchange : _exchanges)
        if (auto done = exchangeUnit(exchange, users, edit, changes); !done) return done;
    return dropLeft(users, edit);
}

tl::expected<void, std::string> UnitAssignment::exchangeUnit(const Exchange& exchange, const UnitUsers& users,
                                                             sdai::Part21Edit& edit, ChangeList& changes) {
    const sdai::Part21File& file = _model->file();
    const std::uint32_t before = *file.find(exchange.before.id);
    const bool isLeft = users.isLeft(before);
    changes.note(isLeft ? unitrule::unitReplaced : unitrule::unitAdded, before,
                 [&] { return exchange.before.name + " becomes " + exchange.after.displayName(); });
    std::optional<std::uint64_t> after = present(exchange.after, users);
    if (!after) {
        const auto record = recordOf(exchange.after, edit);
        if (!record) return tl::unexpected(record.error());
        if (isLeft) {
            after = exchange.before.id;
            ++_counts.converted;
            if (auto done = edit.replace(*after, *record); !done) return done;
        } else {
            const auto id = add(edit, *record);
            if (!id) return tl::unexpected(id.error());
            after = *id;
        }
    }
    for (const Place& place : exchange.places) {
        const std::uint64_t old = file.id(place.unit);
        if (old == *after) continue;
        const std::uint64_t assignment = file.id(place.assignment);
        if (!edit.isEdited(assignment)) ++_counts.converted;
        const auto record = edit.record(assignment);
        if (!record) return tl::unexpected(record.error());
        std::vector<std::string> members;
        eachReference(parameterOf(*record, 0),
                      [&](std::uint64_t member) { members.push_back(reference(member == old ? *after : member)); });
        if (auto done = edit.setParameter(assignment, 0, listOf(members)); !done) return done;
    }
    return {};
}

tl::expected<void, std::string> UnitAssignment::dropLeft(const UnitUsers& users, sdai::Part21Edit& edit) {
    for (const std::uint32_t number : users.left()) {
        const std::uint64_t id = _model->file().id(number);
        // It is the new unit now.
        if (edit.isEdited(id)) continue;
        if (auto done = edit.drop(id); !done) return done;
        ++_counts.dropped;
    }
    return {};
}

} // namespace velkor::exchange
