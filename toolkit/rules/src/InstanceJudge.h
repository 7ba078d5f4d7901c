/// Judges instances one by one, for one thread.
#pragma once

#include "MemberComparison.h"
#include "RuleReporter.h"

#include <array>
#include <deque>
#include <vector>

namespace velkor::rules {

/// An instance by a hash of the values that a UNIQUE rule compares.
struct UniqueEntry {
    std::uint64_t hash;
    std::uint32_t number;
};

/// An instance, and the first that has the same of these values.
struct Repetition {
    std::uint32_t number;
    std::uint32_t first;
};

class InstanceJudge {
public:
    InstanceJudge(const JudgementPlan& plan, const RoleIndex& roles, const CodeFilter& codes);

    /// Begins a range of instances of which at most so many findings are kept. What they take is bounded together, and
    /// so that of all in proportion to their number.
    void begin(std::size_t limit) {
        _reporter.begin(limit);
        _machine.share(RuleMachine::stepLimit);
    }
    RangeFindings take() { return _reporter.take(); }

    void judge(std::uint32_t number);
    void judgeGlobal(std::uint16_t rule);

    void reportRepetition(std::uint16_t rule, const Repetition& repetition) {
        _reporter.repeatedValues(rule, repetition.number, repetition.first);
    }

    RuleMachine& machine() noexcept { return _machine; }

    /// Over all ranges: instances, single judgements, those without an answer by rule of an entity, a type, the model.
    struct Counts {
        std::uint64_t instances = 0;
        std::uint64_t judgements = 0;
        std::array<std::vector<std::uint64_t>, 3> unknown;
    };
    const Counts& counts() const noexcept { return _counts; }
    /// By uniqueness rule; the instances whose values are all determinate.
    std::vector<std::vector<UniqueEntry>>& uniqueEntries() noexcept { return _uniqueEntries; }

private:
    bool isBroken(Verdict verdict, RulePlace rule, std::uint32_t number, std::string_view place);
    void judgeUsers(std::uint16_t inverse, std::uint32_t number);
    void noteUnique(std::uint16_t rule, std::uint32_t number);

    void judgeParameters(const sdai::EntityDefinition& entity, const EntityPlan& plan);
    void judgeValue(const ValuePlan& plan, const sdai::Token& first, const sdai::Part21Lexer& before, unsigned depth);
    void judgeByType(const ValuePlan& plan, std::string_view value);
    bool judgeMembers(const ValuePlan& plan, const sdai::Token& open, unsigned depth);
    bool judgeTyped(const ValuePlan& plan, const sdai::Token& keyword, unsigned depth);
    sdai::TokenKind behindValue();
    std::string_view wholeValue(const sdai::Token& first) const;

    const JudgementPlan& _plan;
    const RuleProgram& _program;
    const RoleIndex& _roles;
    RuleMachine _machine;
    RuleReporter _reporter;
    Counts _counts;
    std::vector<std::vector<UniqueEntry>> _uniqueEntries;
    std::string _key;

    // The instance and attribute whose value is judged.
    std::uint32_t _number = 0;
    const sdai::Attribute* _attribute = nullptr;
    sdai::Part21Lexer _lexer{std::string_view()};
    // By depth of the aggregate.
    std::deque<MemberComparison> _comparisons;
};

} // namespace velkor::rules
