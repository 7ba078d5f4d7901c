/// Moves properties between sets.
#pragma once

#include "ChangeList.h"
#include "identifiers/DerivedIdentifier.h"
#include "NameTargets.h"
#include "ReleaseSchema.h"
#include "SetHolders.h"
#include "velkor/sdai/Part21Edit.h"

#include <cstdint>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace velkor::exchange {

/// A set of properties or quantities as its file has it.
struct PropertySet {
    std::uint32_t number = 0;
    std::string name;
    bool isQuantities = false;
    std::vector<SetMember> members;
};

/// Objects for which the properties of a set have the same targets.
struct TargetGroup {
    /// By member; null for what stays.
    std::vector<const Target*> targets;
    /// Position of a relationship, and those of its objects that are meant.
    std::vector<std::pair<std::uint32_t, std::vector<std::uint32_t>>> objects;
    std::vector<std::uint32_t> types;

    bool isUnchanged() const;
    std::vector<std::uint32_t> owners() const;
};

/// Everything is decided before flush(), which makes the edits: each statement is edited once, however many
/// properties come and go.
class PropertyMover {
public:
    PropertyMover(const sdai::Model& model, SetHolders& holders, sdai::Part21Edit& edit, ChangeList& changes);

    /// Names of sets that properties go to: who has them is found in one pass over the relationships.
    void expect(const std::set<std::string>& targetSets);
    void move(const PropertySet& set, std::vector<TargetGroup>& groups);
    void flush();

    std::uint64_t converted() const noexcept { return _edited.size(); }
    std::uint64_t rebuilt() const noexcept { return _dropped.size(); }
    std::uint64_t added() const noexcept { return _added; }

private:
    /// A set as it will be.
    struct State {
        /// Of an instance of the file, or that a new one is like.
        std::uint32_t number = 0;
        bool isNew = false;
        bool isChanged = false;
        bool isDropped = false;
        bool isQuantities = false;
        std::string name;
        std::vector<std::uint64_t> members;
        std::unordered_set<std::string> names;
        std::vector<std::uint32_t> owners;
        /// Of a new one: those that are types, the others, and a relationship that its own is like.
        std::vector<std::uint32_t> types;
        std::vector<std::uint32_t> objects;
        std::uint32_t relationship = 0;
        std::uint64_t id = 0;
    };
    /// Members that go to one set, and what is to be done with them.
    struct Part {
        std::string name;
        std::vector<std::size_t> members;
        /// What the set cannot take.
        std::vector<std::size_t> refused = {};
        /// Null for a new set.
        State* to = nullptr;
        bool isQuantities = false;
    };

    bool isMovable(const PropertySet& set, const std::vector<TargetGroup>& groups);
    bool isSound(std::uint32_t number) const;
    bool isDroppable(const PropertySet& set);
    void split(const PropertySet& set, const TargetGroup& group);
    void change(const PropertySet& set, const TargetGroup& group, bool isWhole);
    /// What the set gets the name of, when nothing stays in it.
    Part* renamingPart(const PropertySet& set, std::vector<Part>& parts, const State& own);
    /// Takes out what goes elsewhere.
    void release(const PropertySet& set, const std::vector<Part>& parts, State& own);
    void renameWithin(const PropertySet& set, const TargetGroup& group, State& own, bool mayEdit);
    std::vector<Part> partsOf(const PropertySet& set, const TargetGroup& group);
    void settle(Part& part, const PropertySet& set, const TargetGroup& group);
    /// The set of the name that all owners have and nobody else; null when there is none such, with `isFree` when
    /// none of them has one.
    State* existing(const std::vector<std::uint32_t>& owners, const std::string& name, bool& isFree);
    State& state(std::uint32_t set);
    State& add(const PropertySet& like, const Part& part, const TargetGroup& group);
    void enter(State& state);
    void drop(const PropertySet& set, State& state);
    void give(State& to, const PropertySet& set, std::size_t member, const TargetGroup& group, bool mayEdit);
    std::uint64_t named(std::uint32_t member, const std::string& name, bool mayEdit);
    std::uint64_t quantified(std::uint32_t member, const std::string& name, bool mayEdit);
    void refuse(const PropertySet& set, const std::vector<std::size_t>& members, const TargetGroup& group);
    void note(const PropertySet& set, std::size_t member, const Target& target);
    void setAttribute(std::uint32_t number, std::string_view attribute, const std::string& value);
    std::uint64_t addRecord(const std::string& record);
    std::string newIdentifier(const std::string& text);
    void flushNew(State& state);
    void flushRelationships();
    void flushTypes();

    const sdai::Model& _model;
    const ReleaseSchema _schema;
    SetHolders& _holders;
    sdai::Part21Edit& _edit;
    ChangeList& _changes;
    std::map<std::string, std::uint32_t, std::less<>> _nameNumbers;
    // By object and number of the name.
    std::unordered_map<std::uint64_t, State*> _setsOf;
    std::deque<State> _states;
    std::unordered_map<std::uint32_t, State*> _stateOf;
    std::map<std::pair<std::uint32_t, std::string>, std::uint64_t> _copies;
    // Objects that leave relationships, by position.
    std::map<std::uint32_t, std::unordered_set<std::uint32_t>> _leaving;
    std::map<std::uint32_t, std::vector<std::uint32_t>> _leavingTypes;
    std::map<std::uint32_t, std::vector<State*>> _joiningTypes;
    std::unordered_set<std::uint32_t> _droppedRelationships;
    std::unordered_set<std::uint32_t> _edited;
    std::unordered_set<std::uint32_t> _dropped;
    std::uint64_t _added = 0;
    DerivedIdentifiers _derived;
    std::unordered_set<std::string> _taken;
};

} // namespace velkor::exchange
