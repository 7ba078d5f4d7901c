#include "RuleMachine.h"

#include "Interpreter.h"
#include "ReadTrace.h"
#include "ValueKey.h"

#include <algorithm>
#include <limits>
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
        std::uint64_t steps = 0;
    };

    Verdict judge(Question asked);
    Verdict answer(const Question& asked, ReadObserver* observer);
    Value self(const Question& asked);

    const RuleProgram& program;
    const RoleIndex& roles;
    Interpreter interpreter;
    std::optional<Question> last;
    // What is left of the steps that verdicts share.
    std::uint64_t shared = std::numeric_limits<std::uint64_t>::max();
};

Verdict RuleMachine::State::judge(Question asked) {
    const sdai::Part21File& file = program.model().file();
    const bool isGlobal = asked.self == Question::Self::None;
    const std::size_t bytes =
        asked.self == Question::Self::Instance ? file.instanceText(asked.instance).size() : asked.encoded.size();
    const std::uint64_t own = isGlobal ? stepsPerInstance * file.instanceCount() : stepsPerByte * bytes;
    asked.steps = own + (isGlobal ? stepLimit : std::clamp(shared, stepsInAnyCase, stepLimit));
    last = asked;
    const Verdict verdict = answer(asked, nullptr);
    if (!isGlobal && interpreter.steps() > own) shared -= std::min(shared, interpreter.steps() - own);
    return verdict;
}

Verdict RuleMachine::State::answer(const Question& asked, ReadObserver* observer) {
    try {
        interpreter.begin(asked.steps, observer);
        const Logical truth = interpreter.run(asked.code, self(asked)).logical();
        if (truth == Logical::Unknown) return Verdict::Unknown;
        return truth == Logical::True ? Verdict::Holds : Verdict::Broken;
    } catch (const BoundReached&) {
        return Verdict::NotDecided;
    }
}

Value RuleMachine::State::self(const Question& asked) {
    if (asked.self == Question::Self::Instance) return Value::ofInstance(asked.instance);
    return asked.self == Question::Self::Value ? interpreter.reader().value(*asked.type, asked.encoded) : Value();
}

RuleMachine::RuleMachine(const RuleProgram& program, const RoleIndex& roles)
    : _state(std::make_unique<State>(program, roles)) {}
RuleMachine::~RuleMachine() = default;

void RuleMachine::share(std::uint64_t steps) noexcept {
    _state->shared = steps;
}

Verdict RuleMachine::judgeInstance(std::uint32_t code, std::uint32_t number) {
    return _state->judge({code, State::Question::Self::Instance, number, nullptr, {}});
}

Verdict RuleMachine::judgeValue(std::uint32_t code, const sdai::DefinedType& type, std::string_view encoded) {
    return _state->judge({code, State::Question::Self::Value, 0, &type, encoded});
}

Verdict RuleMachine::judgeGlobal(std::uint32_t code) {
    return _state->judge({code, State::Question::Self::None, 0, nullptr, {}});
}

std::vector<Read> RuleMachine::reads(std::size_t most) {
    ReadTrace trace(_state->program, _state->roles, most);
    if (!_state->last) return {};
    // What it takes is nobody's: how often it is asked for decides no verdict.
    _state->answer(*_state->last, &trace);
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
