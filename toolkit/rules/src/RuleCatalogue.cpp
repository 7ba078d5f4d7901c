#include "velkor/rules/RuleCatalogue.h"

#include "KnownFaults.h"
#include "RuleNames.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor {

namespace {

using namespace rules;

class Catalogue {
public:
    explicit Catalogue(const RuleTables& tables) : _tables(tables) {}

    RuleFacts facts(RulePlace place) const {
        RuleFacts facts{place.kind, nameOf(_store, _tables, place), {}, {}, {}, {}, {}};
        switch (place.kind) {
        case RuleKind::Where:
            fill(facts, _tables.entityRules[place.index]);
            break;
        case RuleKind::Type:
            fill(facts, _tables.typeRules[place.index]);
            break;
        case RuleKind::Global:
            fill(facts, _tables.globalRules[place.index]);
            break;
        case RuleKind::Unique:
            fill(facts, _tables.uniqueRules[place.index]);
            break;
        case RuleKind::Inverse:
            fill(facts, _tables.inverseAttributes[place.index]);
            break;
        }
        if (const KnownFault* fault = knownFault(_tables.schema, facts.name)) {
            facts.fault = fault->reason;
            facts.faultSource = fault->source;
        }
        return facts;
    }

    /// Those of an owner, of all without one, in alphabetical order.
    std::vector<RuleFacts> all(std::optional<std::string_view> owner) const {
        std::vector<RuleFacts> result;
        for (const RulePlace place : allPlaces(_tables)) {
            if (!owner || text::equalIgnoringCase(_store.text(ownerOf(place)), *owner)) result.push_back(facts(place));
        }
        std::ranges::stable_sort(result, {}, &RuleFacts::name);
        return result;
    }

    std::optional<RuleFacts> named(std::string_view name) const {
        const auto places = placesNamed(_store, _tables, name);
        if (places.empty()) return std::nullopt;
        return facts(places.front());
    }

    std::vector<std::string> nearest(std::string_view name, std::size_t most) const {
        std::vector<std::string> names;
        for (const RulePlace place : allPlaces(_tables)) names.push_back(nameOf(_store, _tables, place));
        return text::nearestNames({names.begin(), names.end()}, name, most, "IFC");
    }

private:
    TextId ownerOf(RulePlace place) const {
        switch (place.kind) {
        case RuleKind::Where:
            return _tables.entityRules[place.index].owner;
        case RuleKind::Type:
            return _tables.typeRules[place.index].owner;
        case RuleKind::Global:
            return _tables.globalRules[place.index].owner;
        case RuleKind::Unique:
            return _tables.uniqueRules[place.index].entity;
        case RuleKind::Inverse:
            return _tables.inverseAttributes[place.index].entity;
        }
        return noText;
    }

    void fill(RuleFacts& facts, const WhereRule& rule) const {
        facts.owner = _store.text(rule.ownerName);
        facts.expression = expressionOf(_store, _tables, rule.expression);
        facts.wording = expressionOf(_store, _tables, rule.wording);
    }

    void fill(RuleFacts& facts, const UniqueRule& rule) const {
        facts.owner = _store.text(rule.entityName);
        facts.expression = expressionOf(_store, _tables, rule.expression);
        facts.wording = "no other instance has the same " + facts.expression;
    }

    void fill(RuleFacts& facts, const InverseAttribute& attribute) const {
        facts.owner = _store.text(attribute.entityName == noText ? attribute.entity : attribute.entityName);
        facts.expression = expressionOf(_store, _tables, attribute.expression);
        facts.wording = wordingOf(_store, attribute);
    }

    const RuleTables& _tables;
    RuleStore _store = ruleStore();
};

} // namespace

const char* name(RuleKind kind) {
    switch (kind) {
    case RuleKind::Where:
        return "where rule of an entity";
    case RuleKind::Type:
        return "where rule of a defined type";
    case RuleKind::Global:
        return "global rule";
    case RuleKind::Unique:
        return "uniqueness rule";
    case RuleKind::Inverse:
        return "inverse attribute";
    }
    return "";
}

std::vector<RuleFacts> rulesOf(std::string_view schema) {
    const RuleTables* tables = ruleTables(schema);
    return tables == nullptr ? std::vector<RuleFacts>() : Catalogue(*tables).all(std::nullopt);
}

std::vector<RuleFacts> rulesOf(std::string_view schema, std::string_view owner) {
    const RuleTables* tables = ruleTables(schema);
    return tables == nullptr ? std::vector<RuleFacts>() : Catalogue(*tables).all(owner);
}

std::optional<RuleFacts> ruleNamed(std::string_view schema, std::string_view name) {
    const RuleTables* tables = ruleTables(schema);
    return tables == nullptr ? std::nullopt : Catalogue(*tables).named(name);
}

std::vector<std::string> nearestRules(std::string_view schema, std::string_view name, std::size_t most) {
    const RuleTables* tables = ruleTables(schema);
    return tables == nullptr ? std::vector<std::string>() : Catalogue(*tables).nearest(name, most);
}

RuleCounts ruleCounts(std::string_view schema) {
    const RuleTables* tables = ruleTables(schema);
    if (tables == nullptr) return {};
    return {tables->entityRules.size(), tables->typeRules.size(), tables->globalRules.size(),
            tables->uniqueRules.size(), tables->inverseAttributes.size()};
}

} // namespace velkor
