/// Notes what an evaluation reads, each attribute once and in order, and puts it in words.
#pragma once

#include "Interpreter.h"
#include "RuleMachine.h"

#include <vector>

namespace velkor::rules {

class ReadTrace : public ReadObserver {
public:
    ReadTrace(const RuleProgram& program, const RoleIndex& roles, std::size_t most)
        : _program(program), _roles(roles), _most(most) {}

    std::size_t noteRead(std::uint32_t instance, TextId attribute, RuleProgram::Part part) override;
    void noteValue(std::size_t read, const Value& value) override;

    /// While the values of the evaluation are there.
    std::vector<Read> reads(Interpreter& interpreter) const;

private:
    struct Note {
        std::uint32_t instance;
        TextId attribute;
        RuleProgram::Part part;
        Value value;
    };

    std::string shown(const Note& note, Interpreter& interpreter) const;
    std::string shown(const Value& value, Interpreter& interpreter) const;
    std::string shownUsers(std::uint32_t instance, std::uint16_t role) const;

    const RuleProgram& _program;
    const RoleIndex& _roles;
    std::size_t _most;
    std::vector<Note> _notes;
};

} // namespace velkor::rules
