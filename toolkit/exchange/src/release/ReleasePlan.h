/// What becomes of each instance of a model in another release.
#pragma once

#include "release/Rebuilding.h"
#include "release/ReleaseNames.h"
#include "release/RuleBook.h"
#include "velkor/sdai/Part21Edit.h"
#include "velkor/sdai/ReferenceIndex.h"

#include <any>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <vector>

namespace velkor::exchange {

/// Instances share these: a few for each entity.
struct Outcome {
    /// NotHere for what is not understood and therefore copied.
    Successor::Kind kind = Successor::Kind::NotHere;
    const sdai::EntityDefinition* source = nullptr;
    const sdai::EntityDefinition* target = nullptr;
    /// Null when no rule of the tables is for the instance.
    const RebuildRule* rule = nullptr;
    /// Why it is another entity or lost; null for what keeps its name.
    const ConversionRule* reason = nullptr;
    /// What an instance cannot live without.
    std::string_view attribute = {};

    bool isGone() const noexcept { return kind == Successor::Kind::Absorbed || kind == Successor::Kind::Lost; }
};

class ReleasePlan {
public:
    ReleasePlan(const sdai::Model& model, const Releases& releases, RuleBook& book, const ReleaseNames& names,
                sdai::Part21Edit& edit);

    /// Decides about every instance by names and rules.
    void decide();
    /// To be called when nothing more is decided.
    void settle();
    /// Gives an instance another successor, by names alone.
    void become(std::uint32_t number, const ReleaseNames::Entity& entity);
    /// Takes back that an instance has a successor.
    void lose(std::uint32_t number, const ConversionRule& reason, std::string_view attribute);

    const sdai::Model& model() const noexcept { return _model; }
    const Releases& releases() const noexcept { return _releases; }
    const ReleaseNames& names() const noexcept { return _names; }
    const RuleBook& book() const noexcept { return _book; }
    sdai::Part21Edit& edit() noexcept { return _edit; }

    const Outcome& outcome(std::uint32_t number) const { return _outcomes[_outcomeOf[number]]; }
    bool isGone(std::uint32_t number) const { return outcome(number).isGone(); }
    /// What all instances with a keyword have in common; null when they differ.
    const Outcome* common(std::uint16_t keyword) const;
    /// Whether values are to be set in some instance with a keyword.
    bool hasLater(std::uint16_t keyword) const { return keyword < _hasLater.size() && _hasLater[keyword]; }
    bool anyGone() const noexcept { return _anyGone; }

    /// Whether what stands for instances of an entity of the source, all that the file has, fits a type.
    bool referencesFit(const sdai::EntityDefinition& from, const sdai::Type& to) const;

    std::uint64_t reserved(std::uint64_t id) const;
    std::any& remembered(std::uint64_t id) { return _remembered[id]; }
    struct Later {
        std::string attribute;
        std::string encoded;
    };
    /// Null for most.
    const std::vector<Later>* later(std::uint32_t number) const;

    /// Made when first asked for.
    const sdai::ReferenceIndex& index() const;

private:
    friend class Planning;
    std::uint16_t shared(const Outcome& outcome);
    Outcome byName(const sdai::EntityDefinition& entity) const;
    void decideByRules(std::uint16_t keyword);
    std::optional<Outcome> byRule(const RebuildRule& rule, std::uint32_t number, const sdai::EntityDefinition& entity);
    void put(std::uint32_t number, const Outcome& outcome);

    const sdai::Model& _model;
    const Releases& _releases;
    RuleBook& _book;
    const ReleaseNames& _names;
    sdai::Part21Edit& _edit;

    std::vector<Outcome> _outcomes;
    std::vector<std::uint16_t> _outcomeOf;
    // By keyword number: the outcome of all, or that they differ.
    static constexpr std::uint16_t differs = 0xFFFF;
    std::vector<std::uint16_t> _common;
    std::vector<bool> _hasLater;
    // Those that Planning::decide() was called for.
    std::unordered_map<std::uint32_t, bool> _decided;
    std::unordered_map<std::uint64_t, std::uint64_t> _reserved;
    std::unordered_map<std::uint64_t, std::any> _remembered;
    // Bytes that Planning::affords() granted.
    std::uint64_t _granted = 0;
    std::unordered_map<std::uint32_t, std::vector<Later>> _later;
    bool _anyGone = false;
    mutable std::unique_ptr<sdai::ReferenceIndex> _index;
};

/// Whether an instance of an entity may stand where a type is wanted.
bool accepts(const sdai::Type& type, const sdai::EntityDefinition& entity);

} // namespace velkor::exchange
