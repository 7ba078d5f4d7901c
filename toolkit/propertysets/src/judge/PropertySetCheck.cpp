#include "velkor/propertysets/PropertySetCheck.h"

#include "judge/NamedSets.h"
#include "judge/PropertyJudge.h"
#include "judge/SetCodes.h"
#include "records/Record.h"
#include "records/SharedText.h"
#include "uses/RepeatedSets.h"
#include "uses/SetList.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace velkor {

namespace {

constexpr std::uint64_t progressStep = 256;
// Of what a set applies to, and of methods.
constexpr std::size_t mostShown = 12;
constexpr std::string_view baseQuantities = "BaseQuantities";

using State = NamedSet::State;

std::string objectText(const SetFinding& finding) {
    std::string text = finding.objectEntity + " #" + std::to_string(finding.object);
    if (!finding.objectName.empty()) text += ' ' + text::quoted(finding.objectName);
    if (finding.others > 0) text += " and " + text::counted(finding.others, "other object", "other objects");
    return text;
}

std::string ofObject(const SetFinding& finding) {
    std::string text = text::quoted(finding.set);
    if (finding.object != 0) text += " of " + objectText(finding);
    return text;
}

std::string classText(const ApplicableClass& applicable) {
    std::string text = applicable.entity;
    if (!applicable.predefinedType.empty()) text.append("/").append(applicable.predefinedType);
    return text;
}

std::string classesText(const std::vector<ApplicableClass>& classes) {
    if (classes.empty()) return "nothing, since its definition names no class";
    const std::size_t count = classes.size() > mostShown ? mostShown - 1 : classes.size();
    std::string text = text::joined(std::span(classes).first(count), ", ", classText);
    if (count < classes.size()) text += " and " + text::counted(classes.size() - count, "other", "others");
    return text;
}

std::string_view templateText(TemplateType type) {
    switch (type) {
    case TemplateType::TypeDrivenOnly:
        return "types";
    case TemplateType::OccurrenceDriven:
        return "occurrences";
    case TemplateType::PerformanceDriven:
        return "performance histories";
    default:
        return "other objects";
    }
}

class Checker {
public:
    Checker(const sdai::Model& model, const SetLibrary& library, const CheckOptions& options)
        : _model(model), _options(options), _sets(model), _uses(model, _sets), _bearers(model, _uses),
          _named(model, library), _judge(model, options.codes), _record(model), _member(model), _object(model) {}

    PropertySetCheck check();

private:
    RepeatedSets readNames();
    void checkSet(const SetKind& kind, const RepeatedSets& repeated);
    void checkName();
    void checkRepetition(const RepeatedSets::Repeat* repeat);
    void checkUses();
    void checkMethod();
    void checkMember(std::uint32_t number);
    void checkPropertyRepetition(PropertyNames::Entry& entry, std::string_view name);
    void countMember(PropertyNames::Entry& entry, bool isFilled, bool isWrong);
    void addVerdict(const Verdict& verdict);
    void summarize();

    // Of the set, counted from 1.
    std::uint64_t ordinal() const noexcept { return _index + 1; }
    bool isDescribed() const noexcept { return _result.total < _options.limit; }
    sdai::Severity agreedSeverity(Code code) const;
    SetFinding* add(Code code, const SetUse& use);
    SetFinding* add(Code code, const SetUse& use, sdai::Severity severity);

    const sdai::Model& _model;
    const CheckOptions& _options;
    SetList _sets;
    SetUses _uses;
    BearerKinds _bearers;
    NamedSets _named;
    PropertyJudge _judge;
    PropertySetCheck _result;

    // By set.
    std::vector<NamedSet*> _names;
    // The set that is looked at, and that of its properties.
    std::size_t _index = 0;
    Record _record;
    Record _member;
    // What a finding is about.
    Record _object;
    bool _isQuantitySet = false;
    NamedSet* _set = nullptr;
    SetUse _total;
};

PropertySetCheck Checker::check() {
    _result.hasDefinitions = !_named.catalogue().empty();
    _result.definedBy = _named.catalogue().release();
    const RepeatedSets repeated = readNames();
    for (_index = 0; _index < _sets.size(); ++_index) {
        if (_index % progressStep == 0 &&
            !goesOn(_options.progress, {"Checking the property sets", _index, _sets.size()})) {
            _result.isComplete = false;
            break;
        }
        const SetKind& kind = _sets.kindOf(_index);
        _record.read(_sets.numberOf(_index));
        _set = _names[_index];
        checkSet(kind, repeated);
        const std::size_t members =
            eachReference(_model, kind.membersOf(_record), [&](std::uint32_t number) { checkMember(number); });
        _result.properties += members;
        if (_set->state == State::Defined) _result.checkedProperties += members;
    }
    summarize();
    return std::move(_result);
}

RepeatedSets Checker::readNames() {
    std::unordered_map<const NamedSet*, std::uint32_t> numbers;
    std::vector<std::uint32_t> comparable;
    _names.reserve(_sets.size());
    comparable.reserve(_sets.size());
    for (std::size_t i = 0; i < _sets.size(); ++i) {
        _record.read(_sets.numberOf(i));
        NamedSet& named = _named.of(_sets.kindOf(i).name(_record));
        const auto number = static_cast<std::uint32_t>(numbers.size());
        _names.push_back(&named);
        comparable.push_back(named.isName ? numbers.try_emplace(&named, number).first->second : RepeatedSets::noName);
    }
    return {comparable, _uses};
}

void Checker::checkSet(const SetKind& kind, const RepeatedSets& repeated) {
    const SetDefinition* definition = _set->definition;
    _isQuantitySet = definition != nullptr ? definition->isQuantitySet : kind.isQuantitySet;
    _total = _uses.totalOf(_index);
    _total.count -= repeated.more(_index);
    ++_result.sets;
    ++_set->summary.sets;
    _set->summary.objects += _total.count;
    if (_set->state == State::Misnamed) checkName();
    if (_set->state == State::Defined) {
        ++_result.checkedSets;
        _set->summary.missing += definition->properties.size();
        checkUses();
        if (kind.isQuantitySet) checkMethod();
    }
    checkRepetition(repeated.of(_index));
}

void Checker::checkName() {
    const UnknownName& unknown = *_set->unknown;
    SetFinding* finding = add(Code::SetUnknown, _total, unknown.severity);
    if (finding == nullptr) return;
    finding->nearest = unknown.nearest;
    std::string& message = finding->problem.message;
    message = "expected a standard set, found " + ofObject(*finding);
    if (!unknown.nearest.empty()) message += "; did you mean " + text::quoted(unknown.nearest) + '?';
    if (!unknown.releases.empty()) message += "; defined by " + text::joined(unknown.releases);
}

void Checker::checkRepetition(const RepeatedSets::Repeat* repeat) {
    if (repeat == nullptr) return;
    if (SetFinding* finding = add(Code::SetRepeated, repeat->objects)) {
        finding->problem.message = objectText(*finding) + " has another set " + text::quoted(finding->set) + ", #" +
                                   std::to_string(_model.file().id(_sets.numberOf(repeat->other)));
    }
}

void Checker::checkUses() {
    Misfits misfits;
    for (const std::uint32_t group : _uses.groupsOf(_index)) misfits.add(_set->fits->misfits(group, _bearers));
    const SetDefinition& definition = *_set->definition;
    if (misfits.notApplicable.isAny()) {
        if (SetFinding* finding = add(Code::SetNotApplicable, misfits.notApplicable)) {
            finding->problem.message = text::quoted(finding->set) + " does not apply to " + objectText(*finding) +
                                       (misfits.isPredefinedType ? " by its predefined type" : "") + "; expected " +
                                       classesText(definition.classes);
        }
    }
    if (!misfits.wrongTemplate.isAny()) return;
    if (SetFinding* finding = add(Code::SetTemplate, misfits.wrongTemplate)) {
        finding->problem.message =
            text::quoted(finding->set) + " is attached to " + objectText(*finding) + "; expected ";
        finding->problem.message += templateText(definition.templateType);
    }
}

void Checker::checkMethod() {
    const std::string_view method = _record.text("METHODOFMEASUREMENT");
    if (!isText(method)) return;
    const std::vector<std::string>& methods = _set->definition->methods;
    const bool isByPractice = methods.empty();
    // What the documentation of the standard's sets of this name says, without their definitions.
    if (isByPractice && !_set->name.ends_with(baseQuantities)) return;
    const std::string found = nameShown(method);
    if (found.empty()) return;
    if (isByPractice ? found == baseQuantities : std::ranges::find(methods, found) != methods.end()) return;
    SetFinding* finding = add(Code::QuantityMethod, _total,
                              isByPractice ? sdai::Severity::Warning : agreedSeverity(Code::QuantityMethod));
    if (finding == nullptr) return;
    finding->problem.message = ofObject(*finding) + " has the method of measurement " + text::quoted(found) +
                               "; expected " + (isByPractice ? std::string(baseQuantities) : text::joined(methods));
}

void Checker::checkMember(std::uint32_t number) {
    _member.read(number);
    const PropertySlots* slots = _judge.slotsOf(_member);
    if (slots == nullptr) return;
    const std::string_view name = _member.text(slots->name);
    PropertyNames::Entry* entry = _set->properties.find(name);
    const std::uint64_t before = _result.total;
    if (entry != nullptr) checkPropertyRepetition(*entry, name);
    JudgedProperty* property = entry == nullptr ? nullptr : entry->property;
    if (_set->state == State::Defined && property == nullptr && isText(name) && _judge.takes(Code::PropertyUnknown)) {
        addVerdict(isDescribed() ? _judge.unknown(_set->properties, entry, name, _isQuantitySet)
                                 : Verdict{Code::PropertyUnknown});
    }
    const PropertyOutcome& outcome = _judge.judge(_member, *slots, property, isDescribed());
    for (const Verdict& verdict : outcome.verdicts) addVerdict(verdict);
    _result.total += outcome.more;
    if (entry != nullptr) countMember(*entry, outcome.isFilled, _result.total > before);
}

void Checker::checkPropertyRepetition(PropertyNames::Entry& entry, std::string_view name) {
    if (entry.set != ordinal()) {
        entry.set = ordinal();
        entry.member = _member.number();
        entry.isRepeated = entry.isFilled = false;
        return;
    }
    if (entry.member == _member.number() || entry.isRepeated) return;
    entry.isRepeated = true;
    addVerdict(_judge.repeated(entry.member, _member.number(), name));
}

// A name that is there twice counts once.
void Checker::countMember(PropertyNames::Entry& entry, bool isFilled, bool isWrong) {
    SetSummary& summary = _set->summary;
    JudgedProperty* property = entry.property;
    if (isFilled && _set->definition == nullptr && !std::exchange(entry.isFilled, true)) ++summary.filled;
    if (property == nullptr) return;
    if (isFilled && std::exchange(property->filledIn, ordinal()) != ordinal()) {
        ++summary.filled;
        --summary.missing;
    }
    if (isWrong && std::exchange(property->wrongIn, ordinal()) != ordinal()) ++summary.wrong;
}

void Checker::addVerdict(const Verdict& verdict) {
    SetFinding* finding = add(verdict.code, _total);
    if (finding == nullptr) return;
    finding->property = verdict.property;
    finding->nearest = verdict.nearest;
    finding->problem.message =
        ofObject(*finding) + ' ' + verdict.before + text::quoted(verdict.property) + verdict.after;
}

sdai::Severity Checker::agreedSeverity(Code code) const {
    // The agreements leave to others what they put into sets of their own.
    return hasStandardPrefix(_set->name) ? severityOf(code, _isQuantitySet) : sdai::Severity::Warning;
}

// A new finding at the current set, or null when it is only counted.
SetFinding* Checker::add(Code code, const SetUse& use) {
    return add(code, use, agreedSeverity(code));
}

SetFinding* Checker::add(Code code, const SetUse& use, sdai::Severity severity) {
    if (!_judge.takes(code) || ++_result.total > _options.limit) return nullptr;
    SetFinding finding;
    const sdai::Part21File& file = _model.file();
    const std::uint64_t offset = file.offset(_record.number());
    finding.problem = {severity, offset, file.line(offset), _record.id(), std::string(codeOf(code).code), {}};
    finding.set = _set->name;
    if (use.isAny()) {
        _object.read(_uses.numberOf(use.first));
        finding.object = _object.id();
        finding.objectEntity = _object.entity() == nullptr ? "" : _object.entity()->name();
        finding.objectName = nameShown(_object.text("NAME"));
        finding.others = use.count - 1;
    }
    return &_result.findings.emplace_back(std::move(finding));
}

void Checker::summarize() {
    _named.each([&](NamedSet& named) {
        const std::uint64_t sets = named.summary.sets;
        if (sets == 0) return;
        if (named.state == State::Undefined) _result.undefined[named.name] += sets;
        if (named.state == State::Unreadable) _result.unreadable[named.name] += sets;
        if (named.state == State::Custom) _result.customSets += sets;
        _result.summaries.push_back(std::move(named.summary));
    });
    std::ranges::sort(_result.summaries, {}, &SetSummary::name);
}

std::uint64_t sum(const std::map<std::string, std::uint64_t>& counts) {
    return std::accumulate(counts.begin(), counts.end(), std::uint64_t{0},
                           [](std::uint64_t total, const auto& entry) { return total + entry.second; });
}

} // namespace

std::uint64_t PropertySetCheck::uncheckedSets() const noexcept {
    return sum(undefined) + sum(unreadable);
}

std::vector<PropertySetCheck::NameCount> PropertySetCheck::uncheckedNames() const {
    std::vector<NameCount> names;
    for (const auto* counts : {&undefined, &unreadable}) {
        for (const auto& [name, count] : *counts) names.push_back({name, count});
    }
    std::ranges::stable_sort(names, std::greater<>(), &NameCount::count);
    return names;
}

PropertySetCheck checkPropertySets(const sdai::Model& model, const SetLibrary& library, const CheckOptions& options) {
    return Checker(model, library, options).check();
}

} // namespace velkor
