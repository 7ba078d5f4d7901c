/// Words what was found, and counts it: the findings of a range of instances.
#pragma once

#include "JudgementPlan.h"
#include "KnownFaults.h"
#include "RuleMachine.h"
#include "velkor/sdai/Problem.h"

#include <string>
#include <vector>

namespace velkor::rules {

/// Findings of one range, in the order of their places.
struct RangeFindings {
    std::vector<sdai::Problem> problems;
    std::uint64_t total = 0;
    std::uint64_t undecided = 0;
};

class RuleReporter {
public:
    RuleReporter(const JudgementPlan& plan, const CodeFilter& codes, RuleMachine& machine)
        : _plan(plan), _codes(codes), _machine(machine) {}

    /// Begins a range of which at most so many findings are kept.
    void begin(std::size_t limit);
    RangeFindings take();

    /// A rule of an entity, about an instance.
    void brokenWhere(std::uint16_t rule, std::uint32_t number);
    /// A rule of a defined type, about the value of an attribute or a part of that.
    void brokenType(std::uint16_t rule, std::uint32_t number, const sdai::Attribute& attribute, std::string_view value);
    void brokenGlobal(std::uint16_t rule);
    void wrongUsers(std::uint16_t inverse, std::uint32_t number, std::uint64_t users);
    /// `first` is the instance whose values the other has again.
    void repeatedValues(std::uint16_t rule, std::uint32_t number, std::uint32_t first);
    void equalMembers(std::uint32_t number, const sdai::Attribute& attribute, const sdai::AggregateType& type,
                      std::string_view aggregate, std::uint32_t first, std::uint32_t second, std::string_view member);
    void notDecided(RulePlace rule, std::uint32_t number, std::string_view place);

    /// In place of an instance, for what is about the whole model.
    static constexpr std::uint32_t noInstance = 0xFFFFFFFF;

private:
    /// Counts a finding; whether it is kept, and so worth being worded.
    bool keeps(const char* code);
    void add(const char* code, std::string rule, std::uint32_t number, std::string_view place, std::string message,
             sdai::Severity severity = sdai::Severity::Error);
    std::string entityText(std::uint32_t number) const;
    std::string expectation(const WhereRule& rule) const;
    std::string readsText();
    /// Whether the fault of a rule shows on an instance.
    bool isMet(const KnownFault& fault, std::uint32_t number) const;
    std::string parameterText(std::uint32_t number, std::size_t index) const;
    std::string attributeText(std::uint32_t number, TextId attribute) const;

    const JudgementPlan& _plan;
    const CodeFilter& _codes;
    RuleMachine& _machine;
    std::size_t _limit = 0;
    RangeFindings _findings;
};

} // namespace velkor::rules
