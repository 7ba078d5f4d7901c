#include "judge/PropertyJudge.h"

#include "records/SharedText.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <unordered_set>

namespace velkor {

namespace {

// Texts of values as long as this are judged once, however many sets they stand in.
constexpr std::size_t longText = 4000;
// Of one complex property.
constexpr std::size_t mostVerdicts = 100;
constexpr std::uint64_t mostCounted = 1'000'000;
constexpr int deepest = 8;
// Of an enumeration, and of a text.
constexpr std::size_t mostShown = 12, longestShown = 100;

std::string shownText(std::string_view token) {
    return text::quotedBeginning(sdai::decodeString(token.substr(0, longestName)), longestShown);
}

// The first ones, and how many others there are.
template <class Texts>
std::string shownList(const Texts& texts) {
    const std::size_t count = texts.size() > mostShown ? mostShown - 1 : texts.size();
    std::string result = text::joined(std::span(texts).first(count));
    if (count < texts.size()) result += " and " + text::counted(texts.size() - count, "other", "others");
    return result;
}

std::size_t valueSize(const Record& property, const PropertySlots& slots) {
    std::size_t size = 0;
    for (const PropertySlots::Value& slot : slots.values()) size += property.text(slot.place).size();
    return size;
}

std::string_view wordFor(const PropertySlots& slots) {
    return slots.kind && !isQuantity(*slots.kind) ? "property " : "quantity ";
}

std::string nameOf(const Record& property, const PropertySlots& slots) {
    return nameShown(property.text(slots.name));
}

} // namespace

std::size_t PropertyJudge::KeyHash::operator()(const Key& key) const noexcept {
    return std::hash<const void*>()(key.second) * 31 + key.first;
}

PropertyJudge::PropertyJudge(const sdai::Model& model, const CodeFilter& codes)
    : _model(model), _slots(model.schema()), _units(model) {
    for (std::size_t i = 0; i < _isTaken.size(); ++i) _isTaken[i] = codes.takes(setCodes()[i].code);
}

const PropertyOutcome& PropertyJudge::judge(const Record& property, const PropertySlots& slots, JudgedProperty* wanted,
                                            bool isDescribed) {
    const Asked asked{property, slots, wanted};
    if (slots.members >= 0 || valueSize(property, slots) > longText) return remembered(asked, 0);
    _outcome.verdicts.clear();
    _isDescribed = isDescribed;
    judgeOne(asked, _outcome);
    return _outcome;
}

const PropertyOutcome& PropertyJudge::remembered(const Asked& asked, int depth) {
    const auto [known, isNew] = _remembered.try_emplace({asked.property.number(), asked.wanted});
    PropertyOutcome& outcome = known->second;
    // What is within itself finds nothing yet, and stays out of itself.
    if (!isNew && (!outcome.isCut || depth >= outcome.depth)) return outcome;
    outcome = {};
    outcome.depth = depth;
    _isDescribed = true;
    judgeOne(asked, outcome);
    judgeMembers(asked, outcome, depth);
    return outcome;
}

void PropertyJudge::judgeOne(const Asked& asked, PropertyOutcome& outcome) {
    outcome.isFilled = asked.slots.isFilled(asked.property);
    if (asked.wanted != nullptr && judgeKind(asked, outcome)) {
        judgeTypes(asked, outcome);
        judgeEnumerators(asked, outcome);
    }
    judgeUnits(asked, outcome);
}

void PropertyJudge::judgeMembers(const Asked& asked, PropertyOutcome& outcome, int depth) {
    if (asked.slots.members < 0) return;
    if (depth == deepest) {
        outcome.isCut = true;
        return;
    }
    // The first member of each name.
    std::unordered_map<std::string_view, std::uint32_t> firsts;
    std::unordered_set<std::uint32_t> judged;
    Record member(_model);
    eachReference(_model, asked.property.text(asked.slots.members), [&](std::uint32_t number) {
        member.read(number);
        const PropertySlots* slots = slotsOf(member);
        if (slots == nullptr || !judged.insert(number).second) return;
        const std::string_view name = member.text(slots->name);
        if (isText(name) && !isTooLong(name)) {
            const std::uint32_t first = firsts.try_emplace(name, number).first->second;
            if (first != number && takes(Code::PropertyRepeated))
                addWithin(asked, outcome, repeated(first, number, name));
        }
        judgeMember({member, *slots, nullptr}, asked, outcome, depth);
    });
}

void PropertyJudge::judgeMember(const Asked& member, const Asked& whole, PropertyOutcome& outcome, int depth) {
    const std::string_view name = member.property.text(member.slots.name);
    JudgedProperty* wanted = whole.slots.kind == PropertyKind::Complex ? whole.wanted : nullptr;
    // A complex property that is defined without members may have any.
    if (wanted != nullptr && (wanted->definition.kind != PropertyKind::Complex || wanted->definition.members.empty()))
        wanted = nullptr;
    PropertyNames::Entry* entry = wanted == nullptr ? nullptr : wanted->members.find(name);
    JudgedProperty* memberWanted = entry == nullptr ? nullptr : entry->property;
    if (wanted != nullptr && memberWanted == nullptr && takes(Code::PropertyUnknown) && isText(name))
        addWithin(whole, outcome, unknown(wanted->members, entry, name, false));
    const PropertyOutcome& found = remembered({member.property, member.slots, memberWanted}, depth + 1);
    for (const Verdict& verdict : found.verdicts) addWithin(whole, outcome, verdict);
    outcome.more = std::min(outcome.more + found.more, mostCounted);
    outcome.isCut = outcome.isCut || found.isCut;
}

void PropertyJudge::addWithin(const Asked& whole, PropertyOutcome& outcome, Verdict verdict) {
    if (outcome.verdicts.size() == mostVerdicts) {
        ++outcome.more;
        return;
    }
    verdict.property.insert(0, nameOf(whole.property, whole.slots) + '.');
    outcome.verdicts.push_back(std::move(verdict));
}

// True when it is what the definition wants.
bool PropertyJudge::judgeKind(const Asked& asked, PropertyOutcome& outcome) {
    const PropertyKind wanted = asked.wanted->definition.kind;
    if (asked.slots.kind == wanted || wanted == PropertyKind::Any) return true;
    const Code code = isQuantity(wanted) ? Code::QuantityKind : Code::PropertyKind;
    if (Verdict* verdict = add(code, asked, outcome)) {
        verdict->after.append(" as ").append(asked.property.entity()->name());
        verdict->after.append("; expected ").append(entityOf(wanted));
    }
    return false;
}

void PropertyJudge::judgeTypes(const Asked& asked, PropertyOutcome& outcome) {
    if (asked.slots.kind == PropertyKind::Reference) return judgeReference(asked, outcome);
    // Those of quantities are in the schema.
    if (isQuantity(asked.wanted->definition.kind)) return;
    for (const PropertySlots::Value& slot : asked.slots.values()) {
        std::string_view wrong;
        WantedType& type = slot.isDefining ? asked.wanted->defining : asked.wanted->value;
        eachValue(asked.property, slot, [&](std::string_view value) {
            const std::string_view keyword = typedText(value).keyword;
            if (!keyword.empty() && !type.fits(keyword)) wrong = keyword;
            return wrong.empty();
        });
        if (wrong.empty()) continue;
        if (Verdict* verdict = add(Code::ValueType, asked, outcome)) {
            const PropertyDefinition& definition = asked.wanted->definition;
            verdict->before = "has a value of ";
            verdict->before.append(wrong).append(" in the property ");
            verdict->after.append("; expected ").append(slot.isDefining ? definition.definingType : type.name());
        }
        return;
    }
}

void PropertyJudge::judgeReference(const Asked& asked, PropertyOutcome& outcome) {
    const auto number = referredNumber(_model, asked.property.text(asked.slots.values().front().place));
    const sdai::EntityDefinition* entity = number ? _model.entityAt(*number) : nullptr;
    if (entity == nullptr || asked.wanted->value.fits(*entity)) return;
    if (Verdict* verdict = add(Code::ValueType, asked, outcome)) {
        verdict->before = "refers to ";
        verdict->before.append(instanceText(*number)).append(" in the property ");
        verdict->after.append("; expected ").append(asked.wanted->value.name());
    }
}

void PropertyJudge::judgeEnumerators(const Asked& asked, PropertyOutcome& outcome) {
    if (asked.slots.kind != PropertyKind::Enumerated || asked.wanted->definition.enumerators.empty()) return;
    Enumerators& enumerators = asked.wanted->enumerators;
    std::string_view wrong;
    eachValue(asked.property, asked.slots.values().front(), [&](std::string_view value) {
        const std::string_view text = typedText(value).string();
        if (!text.empty() && !enumerators.contain(text)) wrong = text;
        return wrong.empty();
    });
    const auto enumeration = referredNumber(_model, asked.property.text(asked.slots.enumeration));
    const std::string* others = enumeration ? strangers(*enumeration, *asked.wanted) : nullptr;
    if (wrong.empty() && others == nullptr) return;
    Verdict* verdict = add(Code::ValueEnumerator, asked, outcome);
    if (verdict == nullptr) return;
    if (!wrong.empty()) {
        verdict->before = "has the value " + shownText(wrong) + " in the property ";
        verdict->after = "; expected " + shownList(asked.wanted->definition.enumerators);
        verdict->nearest = enumerators.meant(wrong, sdai::decodeString(wrong.substr(0, longestName)));
        if (!verdict->nearest.empty()) verdict->after += "; did you mean " + text::quoted(verdict->nearest) + '?';
    }
    if (others != nullptr) {
        if (wrong.empty()) verdict->before = "has the property ";
        verdict->after.append(wrong.empty() ? " with" : "; it has");
        verdict->after += " an enumeration of its own, " + instanceText(*enumeration) + ", that lists " + *others +
                          " beside what the definition lists";
    }
}

// What an enumeration of the model lists beside the members of a definition, as people are told; null for nothing.
const std::string* PropertyJudge::strangers(std::uint32_t enumeration, const JudgedProperty& wanted) {
    const auto [known, isNew] = _strangers.try_emplace({enumeration, &wanted});
    if (isNew) {
        std::vector<std::string> texts;
        const Record record(_model, enumeration);
        eachMember(record.text("ENUMERATIONVALUES"), [&](std::string_view value) {
            const std::string_view text = typedText(value).string();
            if (!text.empty() && !wanted.enumerators.contain(text)) texts.push_back(shownText(text));
            return true;
        });
        if (!texts.empty()) known->second = shownList(texts);
    }
    return known->second.empty() ? nullptr : &known->second;
}

// Null when the schema does not know it.
const sdai::DefinedType* PropertyJudge::typeOf(std::string_view value, const PropertySlots::Value& slot) const {
    return slot.type != nullptr ? slot.type : _model.schema().definedType(typedText(value).keyword);
}

void PropertyJudge::judgeUnits(const Asked& asked, PropertyOutcome& outcome) {
    for (const PropertySlots::Value& slot : asked.slots.values()) {
        const auto unit = referredNumber(_model, asked.property.text(slot.unit));
        if (!unit) continue;
        const sdai::DefinedType* wrong = nullptr;
        eachValue(asked.property, slot, [&](std::string_view value) {
            const sdai::DefinedType* type = typeOf(value, slot);
            if (type != nullptr && !_units.fits(*type, *unit)) wrong = type;
            return wrong == nullptr;
        });
        if (wrong == nullptr) continue;
        if (Verdict* verdict = add(Code::ValueUnit, asked, outcome)) {
            verdict->before = "has ";
            verdict->before.append(wrong->name()).append(" in ").append(_units.found(*unit)).append(" #");
            verdict->before.append(std::to_string(_model.file().id(*unit))).append(" in the ");
            verdict->before.append(wordFor(asked.slots));
            verdict->after.append("; expected ").append(_units.expected(*wrong));
        }
        return;
    }
}

Verdict PropertyJudge::unknown(PropertyNames& names, PropertyNames::Entry* entry, std::string_view name,
                               bool isQuantity) const {
    Verdict verdict{Code::PropertyUnknown};
    verdict.property = nameShown(name);
    verdict.before = isQuantity ? "has no quantity " : "has no property ";
    if (entry != nullptr) verdict.nearest = names.meant(*entry, verdict.property);
    if (!verdict.nearest.empty()) verdict.after = "; did you mean " + text::quoted(verdict.nearest) + '?';
    return verdict;
}

Verdict PropertyJudge::repeated(std::uint32_t first, std::uint32_t second, std::string_view name) const {
    Verdict verdict{Code::PropertyRepeated};
    verdict.property = nameShown(name);
    verdict.before = "has ";
    verdict.after =
        " twice, #" + std::to_string(_model.file().id(first)) + " and #" + std::to_string(_model.file().id(second));
    return verdict;
}

Verdict* PropertyJudge::add(Code code, const Asked& asked, PropertyOutcome& outcome) const {
    if (!takes(code)) return nullptr;
    Verdict& verdict = outcome.verdicts.emplace_back(Verdict{code});
    if (!_isDescribed) return nullptr;
    verdict.property = nameOf(asked.property, asked.slots);
    verdict.before = "has the ";
    verdict.before += wordFor(asked.slots);
    return &verdict;
}

std::string PropertyJudge::instanceText(std::uint32_t number) const {
    const sdai::EntityDefinition* entity = _model.entityAt(number);
    std::string text(entity == nullptr ? std::string_view() : entity->name());
    return text.append(entity == nullptr ? "#" : " #").append(std::to_string(_model.file().id(number)));
}

} // namespace velkor
