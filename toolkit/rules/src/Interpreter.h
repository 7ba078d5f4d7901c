/// Executes code. Calls and derived attributes have frames of their own here, so that no rule and no model deepens the
/// stack of the thread.
#pragma once

#include "AggregateAlgebra.h"
#include "RoleIndex.h"
#include "RuleCode.h"
#include "RuleProgram.h"
#include "ValueComparison.h"
#include "ValueReader.h"
#include "ValueTypes.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace velkor::rules {

/// Is told of each attribute of the model that is looked at.
class ReadObserver {
public:
    virtual ~ReadObserver() = default;
    /// A number for the read, to be told its value by; of one that was noted before the same.
    virtual std::size_t noteRead(std::uint32_t instance, TextId attribute, RuleProgram::Part part) = 0;
    /// The value of a derived attribute.
    virtual void noteValue(std::size_t read, const Value& value) = 0;
};

class Interpreter {
public:
    Interpreter(const RuleProgram& program, const RoleIndex& roles, std::size_t memoryBound, std::uint32_t depthLimit);

    /// Forgets what the last evaluation left. `observer` may be null; it is told what is read until the next begin().
    void begin(std::uint64_t stepLimit, ReadObserver* observer);
    /// The answer of a piece of code. Throws BoundReached.
    Value run(std::uint32_t code, const Value& self);
    /// An attribute of an instance or entity value, explicit, derived or inverse. Throws BoundReached.
    Value attribute(const Value& receiver, TextId name);

    /// Lets so many steps more be spent on what the evaluation has left.
    void allow(std::uint64_t steps) noexcept { _evaluation.allow(steps); }
    /// Spent since begin().
    std::uint64_t steps() const noexcept { return _evaluation.steps(); }
    ValueReader& reader() noexcept { return _reader; }
    ValueTypes& types() noexcept { return _types; }

private:
    struct Frame {
        const std::uint16_t* code;
        const std::uint16_t* next;
        std::size_t locals;
        std::size_t operands;
        Value self;
        // Of a derived attribute of an instance: where its value is kept.
        bool isDerived = false;
        TextId name = noText;
        std::size_t read = 0;
    };
    /// A value of an attribute of an instance, or of a population, of the evaluation under way.
    struct Kept {
        std::uint64_t evaluation = 0;
        std::uint32_t instance = 0;
        TextId name = noText;
        Value value;
    };
    struct KnownPart {
        const sdai::EntityDefinition* entity = nullptr;
        TextId name = noText;
        RuleProgram::Part part;
    };
    static constexpr std::size_t keptCount = 256;
    static constexpr std::size_t knownPartCount = 1024;
    /// In place of an instance, for populations.
    static constexpr std::uint32_t noInstance = 0xFFFFFFFF;

    Value finish(std::size_t depth);
    Frame& enter(std::uint32_t code, const Value& self);
    void leave();

    // A group of operations each.
    void execute(Operation operation);
    void pushConstant(Operation operation);
    void accessVariable(Operation operation);
    void takePart(Operation operation);
    void makeAggregate(Operation operation);
    void appendRepeated(const Value& member, const Value& count);
    void compute(Operation operation);
    void compare(Operation operation);
    void control(Operation operation);
    void jump(Operation operation);

    std::uint16_t operand() noexcept { return *_frame->next++; }
    void push(const Value& value) { _operands.push_back(value); }
    Value pop() noexcept;
    Value& top() noexcept { return _operands.back(); }
    Value& local(std::uint16_t place) noexcept { return _locals[_frame->locals + place]; }
    void jumpTo(std::uint16_t target) noexcept { _frame->next = _frame->code + target; }

    Value string(TextId text);
    Value typeName(TextId name);
    Value enumerator(TextId type, TextId name) const;
    Value population(TextId name);
    RuleProgram::Part part(const sdai::EntityDefinition& entity, TextId name);
    Kept& kept(std::uint32_t instance, TextId name) noexcept;

    void pushAttribute(const Value& receiver, TextId name);
    void pushDerived(const Value& receiver, TextId name, std::uint16_t index, std::size_t read);
    Value explicitAttribute(const Value& receiver, const sdai::EntityDefinition& entity, TextId name,
                            std::uint16_t slot);
    Value inverse(std::uint32_t instance, const InverseAttribute& attribute, std::uint16_t role);
    Value usersOf(std::span<const std::uint32_t> users, AggregateKind kind);
    Value indexed(const Value& aggregate, const Value& index);
    Value slice(const Value& text, const Value& first, const Value& last) const;

    void storePart();
    void makeWritable(Value& place);
    Value* step(Value& place, std::uint16_t step, const Value& index);
    Value* memberToStore(Value& place, const Value& index);

    bool isStoredBack(const Value& aggregate) noexcept;
    Value sum(const Value& a, const Value& b);
    Value joined(ValueKind kind, std::string_view a, std::string_view b);
    Value product(Operation operation, const Value& a, const Value& b);
    Logical ordered(Operation operation, const Value& a, const Value& b);

    void queryBegin();
    void queryNext();
    void call();
    void construct();

    Value builtin(BuiltinFunction function);
    Value bound(BuiltinFunction function, const Value& value);
    Value length(BuiltinFunction function, const Value& value);
    Value typesOf(const Value& value);
    Value usedIn(const Value& value, const Value& role);

    const RuleProgram& _program;
    const RoleIndex& _roles;
    const std::uint32_t _depthLimit;
    Evaluation _evaluation;
    ValueReader _reader;
    ValueTypes _types;
    ValueComparison _comparison;
    AggregateAlgebra _algebra;
    ReadObserver* _observer = nullptr;

    std::vector<Frame> _frames;
    Frame* _frame = nullptr;
    std::vector<Value> _locals;
    std::vector<Value> _operands;
    std::uint64_t _number = 0;
    std::vector<Kept> _kept;
    std::vector<KnownPart> _knownParts;
};

} // namespace velkor::rules
