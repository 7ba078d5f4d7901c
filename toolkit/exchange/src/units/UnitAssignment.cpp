#include "units/UnitAssignment.h"

#include "RecordBuilder.h"
#include "RecordText.h"
#include "ReleaseSchema.h"
#include "units/MeasureRatios.h"
#include "units/UnitRules.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>

namespace velkor::exchange {

namespace {

/// How a unit of the file counts: those of SI exactly, others as the unit services say.
UnitScale scaleOf(const sdai::Model& model, const UnitReport::Unit& unit) {
    const DXSdaiAppInstance* instance = model.instance(unit.id);
    if (instance->IsKindOf("IFCSIUNIT")) {
        const SiUnit si{unit.type, instance->GetAttr("PREFIX").asEnumeration().text(),
                        instance->GetAttr("NAME").asEnumeration().text()};
        return scaleOf(si);
    }
    const double offset = instance->GetAttr("CONVERSIONOFFSET").asReal().value_or(0.0);
    return UnitScale::of(unit.factor, offset);
}

std::string unitTypes(const sdai::SchemaDefinition& schema, std::string_view wanted) {
    std::vector<std::string_view> known;
    for (const char* list : {"IFCUNITENUM", "IFCDERIVEDUNITENUM"})
        if (const auto* type = schema.definedType(list))
            for (const std::string_view name : type->resolved().asEnumeration()->values()) known.push_back(name);
    std::string message = "there is no unit type ";
    message += text::quoted(wanted);
    if (const auto nearest = text::nearestNames(known, wanted, 3); !nearest.empty())
        message.append("; meant is perhaps ").append(text::alternatives(nearest));
    return message;
}

bool isUnitType(const sdai::SchemaDefinition& schema, std::string_view name) {
    return std::ranges::any_of(std::initializer_list<const char*>{"IFCUNITENUM", "IFCDERIVEDUNITENUM"},
                               [&](const char* list) {
                                   const auto* type = schema.definedType(list);
                                   return type != nullptr && type->resolved().asEnumeration()->position(name) >= 0;
                               });
}

} // namespace

tl::expected<UnitAssignment, std::string>
UnitAssignment::read(const sdai::Model& model, const std::vector<std::pair<std::string, std::string>>& wanted) {
    UnitAssignment assignment(model, unitReport(model));
    for (const auto& [type, name] : wanted)
        if (auto done = assignment.want(text::toUpper(type), name); !done) return tl::unexpected(done.error());
    return assignment;
}

tl::expected<void, std::string> UnitAssignment::want(const std::string& type, const std::string& name) {
    if (!isUnitType(_model->schema(), type)) return tl::unexpected(unitTypes(_model->schema(), type));
    auto unit = catalogueUnit(type, name);
    if (!unit) return tl::unexpected(unit.error());
    const UnitReport::Unit* before = _report.inForce(type);
    if (before == nullptr)
        return tl::unexpected("the project has no unit of type " + type + " that " + unit->displayName() +
                              " could replace");
    const Ratio ratio = Ratio::between(scaleOf(*_model, *before), unit->scale);
    if (!ratio.isOne()) _exchanges.push_back({*before, *unit, ratio});
    return {};
}

std::map<std::string, Ratio, std::less<>> UnitAssignment::ratios() const {
    std::map<std::string, Ratio, std::less<>> result;
    for (const Exchange& exchange : _exchanges) result.emplace(exchange.before.type, exchange.ratio);
    return result;
}

bool UnitAssignment::isUsedElsewhere(std::uint64_t id) const {
    std::string wanted("#");
    wanted += std::to_string(id);
    const std::string_view text = _model->file().text();
    int uses = 0;
    // The instance itself begins with its name, the assignment has it once.
    for (std::size_t at = text.find(wanted); at != std::string_view::npos && uses < 3;
         at = text.find(wanted, at + wanted.size())) {
        const std::size_t behind = at + wanted.size();
        if (behind >= text.size() || text[behind] < '0' || text[behind] > '9') ++uses;
    }
    return uses > 2;
}

tl::expected<std::string, std::string> UnitAssignment::recordOf(const CatalogueUnit& unit,
                                                                sdai::Part21Edit& edit) const {
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
    const auto base = edit.add(si.text());
    if (!base) return tl::unexpected(base.error());
    RecordBuilder factor(schema, "IFCMEASUREWITHUNIT");
    factor.set("VALUECOMPONENT", typed(measureOf(unit.si.type), real(unit.conversion.factor)));
    factor.set("UNITCOMPONENT", reference(*base));
    const auto factorId = edit.add(factor.text());
    const auto exponentsId = edit.add(exponents.text());
    if (!factorId || !exponentsId) return tl::unexpected(factorId ? exponentsId.error() : factorId.error());
    const bool hasOffset = unit.conversion.offset != 0 && schema.entity("IFCCONVERSIONBASEDUNITWITHOFFSET") != nullptr;
    RecordBuilder record(schema, hasOffset ? "IFCCONVERSIONBASEDUNITWITHOFFSET" : "IFCCONVERSIONBASEDUNIT");
    record.set("DIMENSIONS", reference(*exponentsId));
    record.set("UNITTYPE", enumerator(unit.si.type));
    record.set("NAME", literal(unit.conversion.name));
    record.set("CONVERSIONFACTOR", reference(*factorId));
    if (hasOffset) record.set("CONVERSIONOFFSET", real(unit.conversion.offset));
    return record.text();
}

tl::expected<void, std::string> UnitAssignment::rewrite(sdai::Part21Edit& edit, ChangeList& changes) const {
    const sdai::Part21File& file = _model->file();
    for (const Exchange& exchange : _exchanges) {
        auto record = recordOf(exchange.after, edit);
        if (!record) return tl::unexpected(record.error());
        const bool isShared = isUsedElsewhere(exchange.before.id);
        const auto detail = [&] { return exchange.before.name + " becomes " + exchange.after.displayName(); };
        changes.note(isShared ? unitrule::unitAdded : unitrule::unitReplaced, *file.find(exchange.before.id), detail);
        if (!isShared) {
            if (auto done = edit.replace(exchange.before.id, *record); !done) return tl::unexpected(done.error());
            continue;
        }
        const auto id = edit.add(*record);
        if (!id) return tl::unexpected(id.error());
        const auto assignment = edit.record(*_report.assignment);
        if (!assignment) return tl::unexpected(assignment.error());
        std::vector<std::string> members;
        eachReference(parameterOf(*assignment, 0), [&](std::uint64_t member) {
            members.push_back(reference(member == exchange.before.id ? *id : member));
        });
        if (auto done = edit.setParameter(*_report.assignment, 0, listOf(members)); !done)
            return tl::unexpected(done.error());
    }
    return {};
}

} // namespace velkor::exchange
