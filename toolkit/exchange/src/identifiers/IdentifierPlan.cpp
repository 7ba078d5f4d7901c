#include "IdentifierPlan.h"

#include "DerivedIdentifier.h"
#include "IdentifierRules.h"
#include "QORIFCExportServices.h"
#include "Surroundings.h"
#include "velkor/identifiers/GuidText.h"
#include "velkor/text/Wording.h"

#include <algorithm>

namespace velkor::exchange {

namespace {

// Instances between two looks at the clock.
constexpr std::uint32_t progressStep = 1024;

std::string madeOf(const std::string& plmIdentifier) {
    QORUnicodeString identifier;
    QORIFCExportServices::ConvertPLMIDToGUID(QORUnicodeString(std::string_view(plmIdentifier)), identifier);
    return std::string(identifier.utf8());
}

std::string shown(std::string_view text) {
    return text::quotedBeginning(text, 64);
}

} // namespace

bool IdentifierPlan::goesOn(std::string_view work, std::uint32_t place) const {
    return place % progressStep != 0 || velkor::goesOn(_progress, {work, place, _roots.size()});
}

bool IdentifierPlan::takeFromPlm(std::string_view attribute) {
    _plm.emplace(_roots.model(), attribute);
    _attribute = attribute;
    Texts made;
    for (std::uint32_t place = 0; place < _roots.size(); ++place) {
        if (!goesOn("Looking for PLM identifiers", place)) return false;
        const sdai::EntityDefinition* entity = _roots.entity(place);
        if (entity == nullptr || !entity->isKindOf("IFCOBJECTDEFINITION")) continue;
        const std::string identifier = _plm->of(_roots.number(place));
        if (!identifier.empty()) {
            made.emplace_back(place, madeOf(identifier));
        } else if (entity->isKindOf("IFCPRODUCT")) {
            _steps.push_back({place, &plmIdentifierAbsent});
        }
    }
    const Owners owners = ownersOf(made);
    for (const auto& [place, text] : made) {
        const auto owner = owners.find(text);
        if (owner == owners.end() || owner->second != place) {
            _steps.push_back({place, &plmIdentifierTaken});
            continue;
        }
        _fromPlm.push_back(place);
        if (text == _roots.before(place)) continue;
        _roots.replace(place, text);
        _steps.push_back({place, &plmIdentifier});
    }
    return true;
}

IdentifierPlan::Owners IdentifierPlan::ownersOf(const Texts& made) {
    Owners owners;
    std::vector<bool> hasOwn(_roots.size());
    std::vector<std::uint32_t> staying;
    for (const auto& [place, text] : made) hasOwn[place] = owners.try_emplace(text, place).second;
    for (std::uint32_t place = 0; place < _roots.size(); ++place)
        if (!hasOwn[place]) staying.push_back(place);
    // What an instance keeps nobody else gets, who then keeps his own.
    while (!staying.empty()) {
        const std::uint32_t place = staying.back();
        staying.pop_back();
        const auto owner = owners.find(_roots.before(place));
        if (owner == owners.end()) continue;
        staying.push_back(owner->second);
        owners.erase(owner);
    }
    return owners;
}

const ConversionRule* IdentifierPlan::fault(std::uint32_t place) {
    const std::string_view text = _roots.current(place);
    if (text.empty()) return _roots.hasText(place) ? &malformedIdentifier : &missingIdentifier;
    if (guid::faultOf(text)) return &malformedIdentifier;
    // What was replaced lies in a table whose entries are written over.
    const bool isKept = _roots.replacement(place) == nullptr;
    if (_taken.contains(text)) return &duplicateIdentifier;
    _taken.insert(isKept ? text : std::string_view(_made.emplace_back(text)));
    return nullptr;
}

bool IdentifierPlan::repair() {
    std::vector<bool> isWanted(_roots.size());
    const std::size_t first = _steps.size();
    _taken.reserve(_roots.size());
    for (std::uint32_t place = 0; place < _roots.size(); ++place) {
        if (!goesOn("Looking at the identifiers", place)) return false;
        const ConversionRule* rule = fault(place);
        if (rule == nullptr) continue;
        _steps.push_back({place, rule});
        isWanted[place] = true;
    }
    if (_steps.size() == first) return true;
    Surroundings surroundings(_roots, isWanted);
    DerivedIdentifiers identifiers;
    for (std::size_t i = first; i < _steps.size(); ++i) {
        const std::uint32_t place = _steps[i].place;
        if (!goesOn("Making identifiers", place)) return false;
        std::string text(_roots.current(place));
        (text += '\n') += surroundings.of(place);
        const std::string identifier = identifiers.next(
            std::move(text), [&](const std::string& candidate) { return !_taken.contains(candidate); });
        _taken.insert(_made.emplace_back(identifier));
        _roots.replace(place, identifier);
    }
    return true;
}

std::vector<IdentifierPlan::Step> IdentifierPlan::steps() {
    std::vector<Step> result = _steps;
    for (const std::uint32_t place : _fromPlm)
        if (guid::faultOf(_roots.current(place))) result.push_back({place, &plmIdentifierBeyond});
    std::ranges::stable_sort(result, {}, &Step::place);
    return result;
}

std::string IdentifierPlan::detail(const Step& step) {
    const auto plm = [&] { return shown(_plm->of(_roots.number(step.place))); };
    if (step.rule == &plmIdentifierAbsent) return "no " + shown(_attribute);
    if (step.rule == &plmIdentifierTaken) return plm() + " makes that of another instance";
    if (step.rule == &plmIdentifierBeyond) return plm() + " makes " + shown(_roots.current(step.place));
    std::string text = _roots.hasText(step.place) ? shown(_roots.before(step.place)) : "no identifier";
    (text += " becomes ") += shown(_roots.current(step.place));
    if (step.rule == &plmIdentifier) (text += ", made of ") += plm();
    return text;
}

} // namespace velkor::exchange
