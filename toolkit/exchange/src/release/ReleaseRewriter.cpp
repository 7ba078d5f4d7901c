#include "release/ReleaseRewriter.h"

#include "RecordText.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <utility>

namespace velkor::exchange {

using sdai::EntityDefinition;
using sdai::RecordView;

namespace {

constexpr std::uint32_t progressStep = 1 << 14;

std::string words(std::string_view first, std::string_view between, std::string_view last) {
    std::string text(first);
    text += between;
    return text += last.substr(0, 40);
}

std::string becomes(std::string_view before, std::string_view after) {
    return words(before, " becomes ", after);
}

} // namespace

ReleaseRewriter::ReleaseRewriter(ReleasePlan& plan, ChangeList& changes, std::string timeStamp,
                                 const Progress& progress)
    : _plan(plan), _changes(changes), _timeStamp(std::move(timeStamp)), _progress(progress) {}

bool ReleaseRewriter::wants(std::uint16_t keyword) const {
    const exchange::Outcome* common = _plan.common(keyword);
    if (common == nullptr || _plan.hasLater(keyword)) return true;
    if (common->kind == Successor::Kind::NotHere) return false;
    if (common->isGone() || common->rule != nullptr || common->reason != nullptr) return true;
    return !_plans.plan(*common->source, *common->target).isIdentity;
}

bool ReleaseRewriter::begin(const RecordView& record) {
    _record = record;
    _outcome = &_plan.outcome(record.number);
    _hasNote = false;
    _become.clear();
    _missing = {};
    _missingCarried = {};
    _values.takeUserDefined();
    return _outcome->source != nullptr && record.parameters.size() == _outcome->source->attributes().size();
}

sdai::RecordRewriter::Outcome ReleaseRewriter::rewrite(const RecordView& record, sdai::RecordOutput& output) {
    const auto& file = _plan.model().file();
    if (record.number % progressStep == 0 && !_isEnded)
        _isEnded = !goesOn(_progress, {"Writing the instances", file.offset(record.number), file.text().size()});
    if (_isEnded) return Outcome::Keep;
    if (!begin(record)) {
        ++_counts.kept;
        return Outcome::Keep;
    }
    _output = &output;
    if (_outcome->kind == Successor::Kind::Lost) {
        note(*_outcome->reason,
             [this] { return words(_outcome->attribute, _outcome->attribute.empty() ? "" : " has no value", ""); });
        ++_counts.lost;
        return Outcome::Drop;
    }
    makeRecord();
    const bool isRebuilt = _outcome->rule != nullptr ? _outcome->rule->rule.effect == Effect::Rebuilt
                                                     : _outcome->kind == Successor::Kind::Absorbed;
    // A rule that is for an instance may find it right as it is.
    const bool isSame = !isRebuilt && _outcome->kind == Successor::Kind::Entity && isUnchanged();
    if (!isSame && (_outcome->rule != nullptr || _outcome->reason != nullptr)) {
        const std::string_view now = _outcome->target != nullptr ? _outcome->target->name() : std::string_view();
        note(_outcome->rule != nullptr ? _outcome->rule->rule : *_outcome->reason, [&] {
            return now.empty() || now == _outcome->source->name() ? std::string()
                                                                  : becomes(_outcome->source->name(), now);
        });
    }
    ++(isRebuilt ? _counts.rebuilt : _hasNote ? _counts.converted : _counts.kept);
    if (_outcome->kind == Successor::Kind::Absorbed) return Outcome::Drop;
    if (isSame || isUnchanged()) return Outcome::Keep;
    output.record = _become;
    return Outcome::Replace;
}

bool ReleaseRewriter::isUnchanged() const {
    std::string_view rest = _become;
    if (!rest.starts_with(_record.keyword)) return false;
    rest.remove_prefix(_record.keyword.size());
    for (const std::string_view parameter : _record.parameters) {
        if (rest.empty() || !rest.substr(1).starts_with(parameter)) return false;
        rest.remove_prefix(1 + parameter.size());
        if (rest.empty() || (rest.front() != ',' && rest.front() != ')')) return false;
    }
    return rest == ")";
}

void ReleaseRewriter::makeRecord() {
    if (_outcome->rule != nullptr && _outcome->rule->rebuild != nullptr) {
        _asked.clear();
        _isAskedAll = false;
        _outcome->rule->rebuild(*this);
        if (!_become.empty() && _outcome->target != nullptr)
            noteDropped(_plans.plan(*_outcome->source, *_outcome->target), {});
    }
    if (_outcome->kind == Successor::Kind::Absorbed || !_become.empty()) return;
    _asked.clear();
    _isAskedAll = false;
    const EntityPlan& plan = _plans.plan(*_outcome->source, *_outcome->target);
    std::vector<std::string>& values = _slotValues;
    takeValues(plan, values);
    keepTexts(plan, values);
    takeLater(plan, values);
    noteDropped(plan, values);
    _become += plan.target->name();
    char separator = '(';
    for (const std::string& value : values) (_become += separator) += value, separator = ',';
    _become += values.empty() ? "()" : ")";
}

void ReleaseRewriter::takeValues(const EntityPlan& plan, std::vector<std::string>& values) {
    values.resize(plan.slots.size());
    _userDefined.clear();
    for (std::size_t i = 0; i < plan.slots.size(); ++i) {
        const EntityPlan::Slot& slot = plan.slots[i];
        std::string& value = values[i];
        value.clear();
        _attribute = slot.attribute->name();
        if (slot.isDerived) {
            value += sdai::derivedValue;
        } else if (!takeValue(plan, slot, value)) {
            value.clear();
            value += sdai::omittedValue;
        }
        if (std::string enumerator = _values.takeUserDefined(); !enumerator.empty())
            _userDefined.emplace_back(i, std::move(enumerator));
        if (slot.renamed != nullptr && !isUnset(value))
            note(*slot.renamed, [&] {
                return becomes(plan.source->attributes()[static_cast<std::size_t>(slot.source)].attribute->name(),
                               _attribute);
            });
    }
}

bool ReleaseRewriter::takeValue(const EntityPlan& plan, const EntityPlan::Slot& slot, std::string& value) {
    const std::string_view given =
        slot.source < 0 ? std::string_view() : _record.parameters[static_cast<std::size_t>(slot.source)];
    if (isUnset(given)) {
        if (!slot.introduced.empty()) {
            if (auto introduced = _values.encoded(slot.introduced, slot.attribute->type())) {
                note(rules::valueIntroduced, [&] { return words(_attribute, " = ", slot.introduced); });
                value = std::move(*introduced);
                return true;
            }
        }
        if (!slot.isRequired || takeDefault(slot, value)) return slot.isRequired;
        // What was missing before is missing still.
        const bool wasWrong =
            !given.empty() &&
            !plan.source->attributes()[static_cast<std::size_t>(slot.source)].attribute->isOptional() &&
            given == sdai::omittedValue;
        if (!wasWrong) _missing = {&rules::requiredMissing, _attribute};
        return false;
    }
    if (slot.isRaw) {
        value += given;
        return true;
    }
    _values.keepWhole(slot.isWhole);
    if (_values.translate(given, *slot.from, slot.attribute->type(), value)) {
        if (!slot.isRequired || !isUnset(value)) return true;
    }
    if (slot.isRequired && takeDefault(slot, value)) {
        noteLoss(slot, given);
        return true;
    }
    if (slot.isRequired)
        _missing = {&rules::requiredLost, _attribute};
    else
        noteLoss(slot, given);
    return false;
}

void ReleaseRewriter::noteLoss(const EntityPlan::Slot& slot, std::string_view value) {
    if (_attribute == "RELATEDOBJECTSTYPE") return note(rules::relatedType, [&] { return std::string(value); });
    if (slot.from->resolved().isSimple() || slot.from->resolved().asEnumeration() != nullptr)
        return note(rules::noValue, [&] { return words(_attribute, " ", value); });
    const bool isShape = _attribute == "REPRESENTATION" && _outcome->source->isKindOf("IFCPRODUCT");
    note(isShape || _attribute == "REPRESENTATIONMAPS" ? rules::shapeLost : rules::referenceLost, [&] {
        if (!isShape) return std::string(_attribute);
        const std::string_view name = encoded("NAME");
        return isUnset(name) ? std::string() : sdai::decodeString(name);
    });
}

/// Whether a value of a table is one of a type of the target.
bool mayStand(std::string_view encoded, const sdai::Type& type) {
    const bool isTyped = !encoded.empty() && encoded.front() >= 'A' && encoded.front() <= 'Z';
    if (const auto* enumeration = type.resolved().asEnumeration())
        return encoded.size() > 2 && enumeration->position(encoded.substr(1, encoded.size() - 2)) >= 0;
    return isTyped == (type.resolved().asSelect() != nullptr && encoded.front() != '#');
}

bool ReleaseRewriter::takeDefault(const EntityPlan::Slot& slot, std::string& value) {
    const auto take = [&](const ConversionRule& rule, std::string&& made) {
        value = std::move(made);
        note(rule, [&] { return words(slot.attribute->name(), " = ", value); });
        return true;
    };
    const sdai::Type& declared = slot.attribute->type();
    for (const DefaultRule* rule : slot.defaults) {
        if (rule->encoded != nullptr && !mayStand(rule->encoded, declared)) continue;
        auto made = rule->encoded != nullptr ? std::optional<std::string>(rule->encoded) : rule->make(*this);
        if (made) return take(rule->rule, std::move(*made));
    }
    const sdai::Type& type = declared.resolved();
    if (const auto* enumeration = type.asEnumeration();
        enumeration != nullptr && enumeration->position("NOTDEFINED") >= 0)
        return take(rules::notDefined, exchange::enumerator("NOTDEFINED"));
    // Where the empty text is none of those that are allowed.
    constexpr std::string_view never[] = {"IFCGLOBALLYUNIQUEID", "IFCDATE", "IFCTIME", "IFCDATETIME", "IFCDURATION"};
    const bool isNever =
        declared.asDefined() != nullptr && std::ranges::find(never, declared.asDefined()->name()) != std::end(never);
    return type.kind() == sdai::TypeKind::String && !isNever && take(rules::emptyText, literal({}));
}

/// Place of a text for what USERDEFINED stands for in an attribute: ObjectType and its like for the predefined type,
/// for others the attribute that begins with that word. Null when there is none that is free.
std::string* ReleaseRewriter::userText(const EntityPlan& plan, std::size_t slot,
                                       std::vector<std::string>& values) const {
    int place = static_cast<int>(slot) == plan.predefinedType ? plan.userText : -1;
    for (std::size_t i = 0; i < plan.slots.size() && static_cast<int>(slot) != plan.predefinedType; ++i)
        if (plan.slots[i].attribute->name().starts_with("USERDEFINED")) place = static_cast<int>(i);
    std::string* text = place < 0 ? nullptr : &values[static_cast<std::size_t>(place)];
    return text != nullptr && isUnset(*text) ? text : nullptr;
}

void ReleaseRewriter::keepTexts(const EntityPlan& plan, std::vector<std::string>& values) {
    for (const auto& entry : _userDefined) {
        const std::size_t slot = entry.first;
        const std::string& enumerator = entry.second;
        if (std::string* text = userText(plan, slot, values)) {
            *text = literal(enumerator);
            note(rules::enumeratorAsText, [&] { return enumerator; });
            continue;
        }
        note(rules::noEnumerator, [&] { return enumerator; });
        const auto* type = plan.slots[slot].attribute->type().resolved().asEnumeration();
        if (type != nullptr && type->position("NOTDEFINED") >= 0) values[slot] = exchange::enumerator("NOTDEFINED");
    }
    _userDefined.clear();
    keepPredefinedType(plan, values);
    // What another attribute said of a user-defined type.
    for (const std::size_t place : plan.dropped) {
        if (!plan.source->attributes()[place].attribute->name().starts_with("USERDEFINED") || plan.userText < 0)
            continue;
        std::string& text = values[static_cast<std::size_t>(plan.userText)];
        if (isUnset(_record.parameters[place]) || !isUnset(text)) continue;
        text.clear();
        text += _record.parameters[place];
        note(rules::userDefinedText, [&] { return text; });
    }
    const bool isPlainer = _outcome->reason == &rules::supertype || _outcome->reason == &rules::plainElement;
    if (!isPlainer || plan.userText < 0) return;
    std::string& text = values[static_cast<std::size_t>(plan.userText)];
    if (isUnset(text)) text = literal(_outcome->source->name());
}

void ReleaseRewriter::takeLater(const EntityPlan& plan, std::vector<std::string>& values) {
    const auto* later = _plan.later(_record.number);
    if (later == nullptr) return;
    for (const ReleasePlan::Later& value : *later)
        if (const int index = plan.target->attributeIndex(value.attribute); index >= 0) {
            values[static_cast<std::size_t>(index)] = value.encoded;
            if (_missing.attribute == value.attribute) _missing = {};
        }
    _hasNote = true;
}

void ReleaseRewriter::noteDropped(const EntityPlan& plan, const std::vector<std::string>& values) {
    if (_isDry || _isAskedAll) return;
    for (const std::size_t place : plan.dropped) {
        const std::string_view value = _record.parameters[place];
        const std::string_view attribute = plan.source->attributes()[place].attribute->name();
        // Nothing that is said is lost.
        if (isUnset(value) || value == ".NOTDEFINED." || isAsked(attribute)) continue;
        if (std::ranges::find(values, value) != values.end() && attribute.starts_with("USERDEFINED")) continue;
        note(rules::noAttribute, [&] { return words(attribute, " ", value); });
    }
}

/// A predefined type that only types have in the target is said by the text of a user-defined one.
void ReleaseRewriter::keepPredefinedType(const EntityPlan& plan, std::vector<std::string>& values) {
    // What became another entity is called what it was.
    if (plan.userText < 0 || plan.source->name() != plan.target->name()) return;
    std::string& text = values[static_cast<std::size_t>(plan.userText)];
    for (const std::size_t place : plan.dropped) {
        const std::string_view value = _record.parameters[place];
        const std::string_view attribute = plan.source->attributes()[place].attribute->name();
        if (attribute != "PREDEFINEDTYPE" || !value.starts_with('.') || value == ".NOTDEFINED.") continue;
        if (isUnset(text) == (value == ".USERDEFINED.")) continue;
        if (isUnset(text)) {
            text = literal(value.substr(1, value.size() - 2));
            note(rules::enumeratorAsText, [&] { return text; });
        }
        _asked.push_back(attribute);
    }
}

bool ReleaseRewriter::isAsked(std::string_view attribute) const {
    return std::ranges::find(_asked, attribute) != _asked.end();
}

std::string_view ReleaseRewriter::encoded(std::string_view attribute) const {
    if (!_isDry) _asked.push_back(attribute);
    const int index = _outcome->source->attributeIndex(attribute);
    return index < 0 ? sdai::omittedValue : _record.parameters[static_cast<std::size_t>(index)];
}

std::optional<std::string> ReleaseRewriter::translated(std::string_view encoded, const sdai::Type& from,
                                                       const sdai::Type& to) {
    std::string text;
    if (isUnset(encoded) || !_values.translate(encoded, from, to, text)) return std::nullopt;
    return text;
}

RecordBuilder ReleaseRewriter::carried(const EntityDefinition& entity) {
    RecordBuilder record(target(), entity);
    const EntityPlan& plan = _plans.plan(*_outcome->source, entity);
    std::vector<std::string> values;
    takeValues(plan, values);
    keepTexts(plan, values);
    takeLater(plan, values);
    for (std::size_t i = 0; i < values.size(); ++i) record.set(plan.slots[i].attribute->name(), std::move(values[i]));
    _missingCarried = std::exchange(_missing, {});
    return record;
}

const EntityDefinition* ReleaseRewriter::successorOf(std::uint64_t id) const {
    const auto number = _plan.model().file().find(id);
    return number ? _plan.outcome(*number).target : nullptr;
}

void ReleaseRewriter::become(const RecordBuilder& made) {
    RecordBuilder record = made;
    for (const sdai::AttributeSlot& slot : record.entity().attributes()) {
        const std::string_view name = slot.attribute->name();
        if (refersToGone(record.value(name))) {
            if (slot.attribute->isOptional())
                note(rules::referenceLost, [&] { return std::string(name); });
            else
                _missing = {&rules::requiredLost, name};
            record.set(name, std::string(sdai::omittedValue));
        } else if (!slot.attribute->isOptional() && record.value(name) == sdai::omittedValue) {
            _missing = _missingCarried.attribute == name ? _missingCarried : Missing{&rules::requiredMissing, name};
        }
    }
    _become = record.text();
}

/// What rules write themselves may name what cannot stand. Values that were carried do not.
bool ReleaseRewriter::refersToGone(std::string_view value) const {
    if (!_plan.anyGone() || value.find('#') == std::string_view::npos) return false;
    sdai::Part21Lexer lexer(value);
    for (sdai::Token token = lexer.next(); token.kind != sdai::TokenKind::End; token = lexer.next()) {
        if (token.kind != sdai::TokenKind::InstanceName) continue;
        const auto number = _plan.model().file().find(sdai::decodeInstanceName(token.text));
        if (number && _plan.isGone(*number)) return true;
    }
    return false;
}

std::uint64_t ReleaseRewriter::add(std::string_view record) {
    if (_isDry) return nowhere;
    ++_counts.added;
    return _output->add(record);
}

void ReleaseRewriter::add(std::uint64_t id, std::string_view record) {
    if (_isDry) return;
    ++_counts.added;
    _output->add(id, record);
}

void ReleaseRewriter::note(const ConversionRule& rule, std::string detail) {
    note(rule, [&] { return detail; });
}

void ReleaseRewriter::note(const ConversionRule& rule, const std::function<std::string()>& detail) {
    if (_isDry) return;
    _hasNote = true;
    _changes.note(rule, _record.number, detail);
}

} // namespace velkor::exchange
