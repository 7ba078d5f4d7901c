#include "RuleMachine.h"

#include "Interpreter.h"
#include "ReadTrace.h"
#include "ValueKey.h"

#include <optional>

namespace velkor::rules {

struct RuleMachine::State {
    State(const RuleProgram& program_, const RoleIndex& roles_)
        : program(program_), roles(roles_),
          interpreter(program, roles, memoryLimit + program.model().file().text().size() / 4, depthLimit) {}

    /// What a verdict is reached of.
    struct Question {
        std::uint32_t code = 0;
        enum class Self : std::uint8_t { None, Instance, Value } self = Self::None;
        std::uint32_t instance = 0;
        const sdai::DefinedType* type = nullptr;
        std::string_view encoded;
    };

    Verdict judge(const Question& asked, ReadObserver* observer);
    Value self(const Question& asked);
    std::uint64_t steps(const Question& asked) const noexcept;

    const RuleProgram& program;
    const RoleIndex& roles;
    Interpreter interpreter;
    std::optional<Question> last;
};

Verdict RuleMachine::State::judge(const Question& asked, ReadObserver* observer) {
    last = asked;
    try {
        interpreter.begin(steps(asked), observer);
        const Value answer = interpreter.run(asked.code, self(asked));
        if (answer.logical() == Logical::Unknown) return Verdict::Unknown;
        return answer.logical() == Logical::True ? Verdict::Holds : Verdict::Broken;
    } catch (const BoundReached&) {
        return Verdict::NotDecided;
    }
}

Value RuleMachine::State::self(const Question& asked) {
    if (asked.self == Question::Self::Instance) return Value::ofInstance(asked.instance);
    return asked.self == Question::Self::Value ? interpreter.reader().value(*asked.type, asked.encoded) : Value();
}

std::uint64_t RuleMachine::State::steps(const Question& asked) const noexcept {
    if (asked.self != Question::Self::None) return stepLimit;
    return stepLimit + stepsPerInstance * program.model().file().instanceCount();
}

RuleMachine::RuleMachine(const RuleProgram& program, const RoleIndex& roles)
    : _state(std::make_unique<State>(program, roles)) {}
RuleMachine::~RuleMachine() = default;

Verdict RuleMachine::judgeInstance(std::uint32_t code, std::uint32_t number) {
    return _state->judge({code, State::Question::Self::Instance, number, nullptr, {}}, nullptr);
}

Verdict RuleMachine::judgeValue(std::uint32_t code, const sdai::DefinedType& type, std::string_view encoded) {
    return _state->judge({code, State::Question::Self::Value, 0, &type, encoded}, nullptr);
}

Verdict RuleMachine::judgeGlobal(std::uint32_t code) {
    return _state->judge({code, State::Question::Self::None, 0, nullptr, {}}, nullptr);
}

std::vector<Read> RuleMachine::reads(std::size_t most) {
    ReadTrace trace(_state->program, _state->roles, most);
    if (!_state->last) return {};
    _state->judge(State::Question(*_state->last), &trace);
    try {
        // What ended the evaluation shall not keep it from being told.
        _state->interpreter.allow(stepLimit);
        return trace.reads(_state->interpreter);
    } catch (const BoundReached&) {
        return {};
    }
}

bool RuleMachine::appendKey(std::uint32_t number, std::span<const TextId> attributes, std::string& key) {
    ValueKey values(_state->interpreter.reader());
    try {
        _state->interpreter.begin(stepLimit, nullptr);
        for (const TextId attribute : attributes) {
            if (!values.append(_state->interpreter.attribute(Value::ofInstance(number), attribute), key)) return false;
        }
        return true;
    } catch (const BoundReached&) {
        return false;
    }
}

} // namespace velkor::rules
