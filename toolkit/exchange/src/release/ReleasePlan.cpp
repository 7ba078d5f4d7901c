#include "release/ReleasePlan.h"

#include <algorithm>

namespace velkor::exchange {

using sdai::EntityDefinition;
using sdai::Part21File;

namespace {

bool isSame(const Outcome& a, const Outcome& b) {
    return a.kind == b.kind && a.source == b.source && a.target == b.target && a.rule == b.rule &&
           a.reason == b.reason && a.attribute == b.attribute;
}

/// What stands for itself, so that a supertype says a part of it and nothing wrong. A shape, a profile or a unit that
/// says less is another one.
bool mayBecomeSupertype(const EntityDefinition& entity) {
    constexpr std::string_view never[] = {"IFCREPRESENTATIONITEM", "IFCPROFILEDEF",      "IFCNAMEDUNIT",
                                          "IFCRELATIONSHIP",       "IFCOBJECTPLACEMENT", "IFCCOORDINATEOPERATION"};
    return std::ranges::none_of(never, [&](std::string_view name) { return entity.isKindOf(name); });
}

} // namespace

bool accepts(const sdai::Type& type, const EntityDefinition& entity) {
    const sdai::Type& resolved = type.resolved();
    if (const EntityDefinition* wanted = resolved.asEntity()) return entity.isKindOf(*wanted);
    const sdai::SelectType* select = resolved.asSelect();
    return select != nullptr && select->accepts(entity);
}

Successor Successor::of(const Releases& releases, std::string_view entity) {
    const EntityDefinition* found = releases.target.entity(entity);
    return found != nullptr && !found->isAbstract() ? Successor{Kind::Entity, found} : Successor{};
}

ReleasePlan::ReleasePlan(const sdai::Model& model, const Releases& releases, RuleBook& book, const ReleaseNames& names,
                         sdai::Part21Edit& edit)
    : _model(model), _releases(releases), _book(book), _names(names), _edit(edit) {
    _outcomes.emplace_back();
    _outcomeOf.assign(model.file().instanceCount(), 0);
    _common.assign(model.file().keywords().size(), 0);
    _hasLater.assign(model.file().keywords().size(), false);
}

void ReleasePlan::decide() {
    const Part21File& file = _model.file();
    std::vector<char> byRules(_common.size(), 0);
    for (std::size_t keyword = 0; keyword < _common.size(); ++keyword) {
        const EntityDefinition* entity = _releases.source.entity(file.keywords()[keyword]);
        if (entity == nullptr || entity->isAbstract()) continue;
        _common[keyword] = shared(byName(*entity));
        byRules[keyword] = !_book.rebuilds(*entity).empty();
    }
    const auto keywords = file.keywordNumbers();
    for (std::uint32_t number = 0; number < keywords.size(); ++number)
        if (keywords[number] < _common.size()) _outcomeOf[number] = _common[keywords[number]];
    for (std::size_t keyword = 0; keyword < byRules.size(); ++keyword)
        if (byRules[keyword]) decideByRules(static_cast<std::uint16_t>(keyword));
    settle();
}

void ReleasePlan::settle() {
    const auto keywords = _model.file().keywordNumbers();
    constexpr std::uint16_t unseen = differs - 1;
    std::ranges::fill(_common, unseen);
    _anyGone = false;
    for (std::uint32_t number = 0; number < keywords.size(); ++number) {
        const std::uint16_t outcome = _outcomeOf[number];
        _anyGone = _anyGone || _outcomes[outcome].isGone();
        if (keywords[number] >= _common.size()) continue;
        std::uint16_t& common = _common[keywords[number]];
        common = common == unseen || common == outcome ? outcome : differs;
    }
    // Keywords of statements that are no instances in the end.
    std::ranges::replace(_common, unseen, std::uint16_t{0});
}

Outcome ReleasePlan::byName(const EntityDefinition& entity) const {
    ReleaseNames::Entity found = _names.entity(entity);
    if (found.entity == nullptr && mayBecomeSupertype(entity)) found = _names.supertype(entity);
    if (found.entity == nullptr) return {Successor::Kind::Lost, &entity, nullptr, nullptr, &rules::noEntity};
    return {Successor::Kind::Entity, &entity, found.entity, nullptr, found.rule};
}

void ReleasePlan::decideByRules(std::uint16_t keyword) {
    const Part21File& file = _model.file();
    const EntityDefinition& entity = *_releases.source.entity(file.keywords()[keyword]);
    const auto keywords = file.keywordNumbers();
    for (std::uint32_t number = 0; number < keywords.size(); ++number) {
        if (keywords[number] != keyword || _decided.contains(number)) continue;
        // A later instance of an id cannot be told by it, and rules tell instances so: it is copied.
        if (file.find(file.id(number)) != number) {
            put(number, {});
            continue;
        }
        std::optional<Outcome> found;
        for (const RebuildRule* rule : _book.rebuilds(entity)) {
            const auto outcome = byRule(*rule, number, entity);
            if (!outcome) continue;
            // One that could not be rebuilt by a rule may be by the next.
            const bool isDone = outcome->reason != &rules::noEntity;
            if (isDone || !found) found = outcome;
            if (isDone) break;
        }
        if (found) put(number, *found);
    }
}

std::optional<Outcome> ReleasePlan::byRule(const RebuildRule& rule, std::uint32_t number,
                                           const EntityDefinition& entity) {
    DXSdaiAppInstance& instance = *_model.instanceAt(number);
    const Successor successor = rule.becomes(_releases, instance);
    if (successor.kind == Successor::Kind::NotHere) return std::nullopt;
    // Where the version mapping document names an entity, a rule may only say how instances become that.
    const Outcome& named = _outcomes[_common[_model.file().keyword(number)]];
    if (named.reason == &rules::entityMapped && named.target != successor.entity) return std::nullopt;
    const bool isLost = successor.kind == Successor::Kind::Lost;
    if (isLost) return Outcome{successor.kind, &entity, nullptr, &rule, &rule.rule};
    Planning planning(*this);
    if (rule.plan != nullptr && !rule.plan(planning, instance))
        return Outcome{Successor::Kind::Lost, &entity, nullptr, &rule, &rules::noEntity};
    return Outcome{successor.kind, &entity, successor.entity, &rule, &rule.rule};
}

std::uint16_t ReleasePlan::shared(const Outcome& outcome) {
    for (std::size_t i = 0; i < _outcomes.size(); ++i)
        if (isSame(_outcomes[i], outcome)) return static_cast<std::uint16_t>(i);
    // There are some for each entity and rule; beyond what fits, instances are copied.
    if (_outcomes.size() == differs - 1) return 0;
    _outcomes.push_back(outcome);
    return static_cast<std::uint16_t>(_outcomes.size() - 1);
}

void ReleasePlan::put(std::uint32_t number, const Outcome& outcome) {
    // Instances in a row mostly share theirs.
    const std::uint16_t before = number > 0 ? _outcomeOf[number - 1] : std::uint16_t{0};
    const std::uint16_t place = isSame(_outcomes[before], outcome) ? before : shared(outcome);
    if (_outcomeOf[number] == place) return;
    _outcomeOf[number] = place;
    if (outcome.isGone()) _anyGone = true;
}

void ReleasePlan::become(std::uint32_t number, const ReleaseNames::Entity& entity) {
    put(number, {Successor::Kind::Entity, outcome(number).source, entity.entity, nullptr, entity.rule});
}

void ReleasePlan::lose(std::uint32_t number, const ConversionRule& reason, std::string_view attribute) {
    Outcome lost = outcome(number);
    lost.kind = Successor::Kind::Lost;
    lost.target = nullptr;
    lost.reason = &reason;
    lost.attribute = attribute;
    put(number, lost);
}

const Outcome* ReleasePlan::common(std::uint16_t keyword) const {
    if (keyword >= _common.size()) return _outcomes.data();
    return _common[keyword] == differs ? nullptr : &_outcomes[_common[keyword]];
}

bool ReleasePlan::referencesFit(const EntityDefinition& from, const sdai::Type& to) const {
    const Part21File& file = _model.file();
    for (std::size_t keyword = 0; keyword < _common.size(); ++keyword) {
        const EntityDefinition* entity = _releases.source.entity(file.keywords()[keyword]);
        if (entity == nullptr || !entity->isKindOf(from)) continue;
        const Outcome* outcome = common(static_cast<std::uint16_t>(keyword));
        if (outcome == nullptr || outcome->isGone()) return false;
        if (outcome->target != nullptr && !accepts(to, *outcome->target)) return false;
    }
    return true;
}

std::uint64_t ReleasePlan::reserved(std::uint64_t id) const {
    const auto found = _reserved.find(id);
    return found == _reserved.end() ? 0 : found->second;
}

const std::vector<ReleasePlan::Later>* ReleasePlan::later(std::uint32_t number) const {
    const auto found = _later.find(number);
    return found == _later.end() ? nullptr : &found->second;
}

const sdai::ReferenceIndex& ReleasePlan::index() const {
    if (_index == nullptr) _index = std::make_unique<sdai::ReferenceIndex>(_model.file());
    return *_index;
}

const sdai::Model& Planning::source() const {
    return _plan._model;
}

const Releases& Planning::releases() const {
    return _plan._releases;
}

std::uint64_t Planning::reserve(std::uint64_t id, std::uint64_t count) {
    const auto [found, isNew] = _plan._reserved.try_emplace(id, 0);
    if (isNew) found->second = _plan._edit.reserve(count).value_or(0);
    return found->second;
}

std::any& Planning::remembered(std::uint64_t id) {
    return _plan.remembered(id);
}

bool Planning::affords(std::uint64_t bytes) {
    // A file of some lines may say much; one that fills a disk from a few is none that anybody means.
    constexpr std::uint64_t base = 4U << 20U;
    constexpr std::uint64_t multiple = 32;
    const std::uint64_t limit = base + multiple * _plan._model.file().text().size();
    if (bytes > limit - _plan._granted) return false;
    _plan._granted += bytes;
    return true;
}

void Planning::decide(std::uint64_t id, Successor successor, const ConversionRule* why) {
    const auto number = _plan._model.file().find(id);
    if (!number) return;
    const Outcome& before = _plan.outcome(*number);
    if (before.source == nullptr) return;
    _plan._decided[*number] = true;
    // What carries on what was absorbed tells so.
    const ConversionRule* reason = why != nullptr                                ? why
                                   : successor.kind == Successor::Kind::Lost     ? &rules::noEntity
                                   : successor.kind == Successor::Kind::Absorbed ? nullptr
                                                                                 : before.reason;
    _plan.put(*number, {successor.kind, before.source, successor.entity, nullptr, reason});
}

void Planning::setLater(std::uint64_t id, std::string_view attribute, std::string encoded) {
    const auto number = _plan._model.file().find(id);
    if (!number) return;
    _plan._later[*number].push_back({std::string(attribute), std::move(encoded)});
    const std::uint16_t keyword = _plan._model.file().keyword(*number);
    if (keyword < _plan._hasLater.size()) _plan._hasLater[keyword] = true;
}

std::uint64_t Planning::add(const RecordBuilder& record) {
    return _plan._edit.add(record.text()).value_or(0);
}

std::size_t Planning::userCount(std::uint64_t id) {
    const auto number = _plan._model.file().find(id);
    return number ? _plan.index().users(*number).size() : 0;
}

std::vector<std::uint64_t> Planning::users(std::uint64_t id) {
    std::vector<std::uint64_t> ids;
    if (const auto number = _plan._model.file().find(id))
        for (const std::uint32_t user : _plan.index().users(*number)) ids.push_back(_plan._model.file().id(user));
    return ids;
}

} // namespace velkor::exchange
