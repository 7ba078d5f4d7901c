/// What rules of the release step are made of: rows that say for which instances they are and what becomes of those.
///
/// A row holds for a pair of releases when its functions say so; they ask the two dictionaries, never the names of
/// releases. The step tries the rows of an entity in the order of the table, then those of its supertypes.
#pragma once

#include "RecordBuilder.h"
#include "velkor/exchange/ConversionReport.h"
#include "velkor/sdai/Model.h"

#include <any>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::exchange {

/// The source and the target of a conversion.
struct Releases {
    const ReleaseSchema& source;
    const ReleaseSchema& target;
};

/// What takes the place of an instance.
struct Successor {
    enum class Kind : std::uint8_t {
        NotHere,  ///< the rule is not for this instance or this pair of releases
        Entity,   ///< an instance of `entity` with the same id
        Absorbed, ///< nothing of its own: others carry what it said
        Lost      ///< nothing, and what it said is lost
    };
    Kind kind = Kind::NotHere;
    const sdai::EntityDefinition* entity = nullptr;

    static Successor notHere() { return {}; }
    /// Of an entity by name; not here when the target lacks it or it cannot be instantiated.
    static Successor of(const Releases& releases, std::string_view entity);
    static Successor absorbed() { return {Kind::Absorbed, nullptr}; }
    static Successor lost() { return {Kind::Lost, nullptr}; }
};

class ReleasePlan;

/// What rules may ask and do before anything is written. Instances are of the source model.
class Planning {
public:
    explicit Planning(ReleasePlan& plan) : _plan(plan) {}
    const sdai::Model& source() const;
    const Releases& releases() const;
    /// Gives ids for instances that will be added for one of the source: the points of a list. Once per instance; a
    /// further call gives the same. 0 when there are no ids left.
    std::uint64_t reserve(std::uint64_t id, std::uint64_t count);
    /// Decides about another instance, whatever its own rules say. The reason is noted there; it must last.
    void decide(std::uint64_t id, Successor successor, const ConversionRule* reason = nullptr);
    /// Another instance's attribute gets a value in the target, given as it is to be written, whatever it had.
    void setLater(std::uint64_t id, std::string_view attribute, std::string encoded);
    /// An instance of the target, at the end of the file.
    std::uint64_t add(const RecordBuilder& record);
    /// What rules remember of an instance until the end of the conversion, for Rebuilding::remembered() too; empty at
    /// first. For what many instances want to know of one that is large.
    std::any& remembered(std::uint64_t id);
    /// To be asked by rules that say for each of its users what one instance said once: whether so many bytes more may
    /// be written. The sum is bounded by a multiple of the file's size.
    bool affords(std::uint64_t bytes);
    /// The ids of the instances that refer to one, in file order, each once. The first call looks through the file.
    std::vector<std::uint64_t> users(std::uint64_t id);
    /// How many those are.
    std::size_t userCount(std::uint64_t id);

private:
    ReleasePlan& _plan;
};

/// One instance while it is rewritten.
class Rebuilding {
public:
    virtual ~Rebuilding() = default;

    virtual const sdai::Model& source() const = 0;
    virtual const Releases& releases() const = 0;
    const ReleaseSchema& target() const { return releases().target; }
    virtual std::uint64_t id() const = 0;
    virtual const sdai::EntityDefinition& entity() const = 0;
    /// The instance as the source has it; made when asked for.
    virtual DXSdaiAppInstance& instance() const = 0;
    /// An attribute as the file has it, "$" when the entity lacks it.
    virtual std::string_view encoded(std::string_view attribute) const = 0;

    /// A value of the source in the form that a type of the target wants: enumerators, selects and references as
    /// the rules say. Nothing when nothing of it can be said there.
    virtual std::optional<std::string> translated(std::string_view encoded, const sdai::Type& from,
                                                  const sdai::Type& to) = 0;
    /// A record of an entity of the target with every attribute that the two have by name, and the values that rules
    /// introduce for those that it wants beside.
    virtual RecordBuilder carried(const sdai::EntityDefinition& entity) = 0;
    /// Entity that stands in the target under the id of an instance of the source; null when none does.
    virtual const sdai::EntityDefinition* successorOf(std::uint64_t id) const = 0;
    /// First of the ids that were reserved for an instance; 0 when none were.
    virtual std::uint64_t reserved(std::uint64_t id) const = 0;

    /// What rules remembered of an instance.
    virtual std::any& remembered(std::uint64_t id) = 0;

    /// What stands in the place of the instance; without a call what carried() gives.
    virtual void become(const RecordBuilder& record) = 0;
    virtual std::uint64_t add(const RecordBuilder& record) = 0;
    virtual void add(std::uint64_t id, const RecordBuilder& record) = 0;
    /// The same from text, for what comes in large numbers.
    virtual std::uint64_t add(std::string_view record) = 0;
    virtual void add(std::uint64_t id, std::string_view record) = 0;

    /// An instance of the target that several can use: made when first asked for by this key.
    virtual std::uint64_t shared(std::string_view key, std::uint64_t (*make)(Rebuilding& rebuilding)) = 0;
    /// The same for a maker that has to be told for which.
    virtual std::uint64_t shared(std::string_view key,
                                 std::uint64_t (*make)(Rebuilding& rebuilding, std::string_view key)) = 0;
    /// Of the conversion, ISO 8601.
    virtual std::string_view timeStamp() const = 0;

    /// Takes down that a rule was followed at this instance.
    virtual void note(const ConversionRule& rule, std::string detail) = 0;
};

/// What becomes of instances of an entity.
struct RebuildRule {
    ConversionRule rule;
    /// Of the source, upper case; its subtypes are meant too unless a nearer rule is for them.
    std::string_view entity;
    /// Which entity takes the place of an instance. Called once for each, in file order; costs little.
    Successor (*becomes)(const Releases& releases, DXSdaiAppInstance& instance);
    /// Called for each instance that the rule is for, before anything is written; may be null. False when it cannot be
    /// rebuilt: then the rows behind this one are tried, and it is lost when none is for it.
    bool (*plan)(Planning& planning, DXSdaiAppInstance& instance) = nullptr;
    /// Makes the record; null when attributes go by name and no more is to be done. Called for absorbed instances too,
    /// which may add others.
    void (*rebuild)(Rebuilding& rebuilding) = nullptr;
};

/// Values that do not fit where they are to stand.
struct ValueRule {
    ConversionRule rule;
    /// Says a value, a reference or a typed or plain one as the file has it, by members that stand in its place (one,
    /// unless it is a member of an aggregate itself). Nothing when the rule is not for it.
    std::optional<std::vector<std::string>> (*adapt)(Rebuilding& rebuilding, std::string_view encoded,
                                                     const sdai::Type& from, const sdai::Type& to);
};

/// A value for an attribute that the target wants and the source does not have.
struct DefaultRule {
    ConversionRule rule;
    /// Of the target, upper case; its subtypes are meant too.
    std::string_view entity;
    std::string_view attribute;
    /// As it is written; null when `make` says it.
    const char* encoded = nullptr;
    /// Nothing when there is no value for this instance.
    std::optional<std::string> (*make)(Rebuilding& rebuilding) = nullptr;
};

/// Enumerators that are called otherwise. A rule holds where the target's type has `after` and lacks `before`.
struct EnumeratorRule {
    ConversionRule rule;
    /// The enumeration, upper case.
    std::string_view type;
    std::string_view before;
    std::string_view after;
};

/// An aggregate that would say something else without one of its members: the segments of a curve, the faces of a
/// solid. Rather than leave it, a member that is lost takes the attribute along.
struct WholeAggregate {
    /// Of the target, upper case; its subtypes are meant too.
    std::string_view entity;
    std::string_view attribute;
};

/// For rows that are there to be noted alone.
Successor notHere(const Releases& releases, DXSdaiAppInstance& instance);
/// Another entity where the target lacks the instance's own.
Successor replacedBy(const Releases& releases, const DXSdaiAppInstance& instance, std::string_view entity);
/// Nothing where the target lacks the instance's entity.
Successor lostWhereLacking(const Releases& releases, DXSdaiAppInstance& instance);

/// The rules of one source unit.
struct RuleTable {
    std::span<const RebuildRule> rebuild = {};
    std::span<const ValueRule> values = {};
    std::span<const DefaultRule> defaults = {};
    std::span<const EnumeratorRule> enumerators = {};
    std::span<const WholeAggregate> wholes = {};
};

/// Shapes: facets, indexed curves, splines.
RuleTable geometryRules();
/// What newer releases say in another way than IFC2X3.
RuleTable forwardRules();
/// What older releases lack.
RuleTable backwardRules();
/// Owner histories and other values that a release requires.
RuleTable requiredValueRules();
/// Spatial elements, elements and relationships of later releases.
RuleTable elementRules();
/// Styles, and what assigns them.
RuleTable styleRules();
/// Dates, times and durations, and the times of tasks.
RuleTable timeRules();
/// Materials, profiles of materials, and properties of materials and profiles.
RuleTable materialRules();

} // namespace velkor::exchange
