#include "Interpreter.h"

#include "Arithmetic.h"

#include <algorithm>

namespace velkor::rules {

namespace {

constexpr std::size_t slotFor(std::uint64_t key, std::size_t count) noexcept {
    return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15ULL) >> 32) % count;
}

Logical exclusive(Logical a, Logical b) noexcept {
    return a == Logical::Unknown || b == Logical::Unknown ? Logical::Unknown : logical(a != b);
}

} // namespace

Interpreter::Interpreter(const RuleProgram& program, const RoleIndex& roles, std::size_t memoryBound,
                         std::uint32_t depthLimit)
    : _program(program), _roles(roles), _depthLimit(depthLimit), _evaluation(memoryBound),
      _reader(program, _evaluation), _types(program, _reader), _comparison(program, _evaluation, _reader, _types),
      _algebra(_evaluation, _reader, _comparison), _kept(keptCount), _knownParts(knownPartCount) {
    // Frames are pointed to.
    _frames.reserve(depthLimit);
}

void Interpreter::begin(std::uint64_t stepLimit, ReadObserver* observer) {
    _evaluation.begin(stepLimit);
    _comparison.begin();
    _observer = observer;
    _frames.clear();
    _locals.clear();
    _operands.clear();
    ++_number;
}

Value Interpreter::run(std::uint32_t code, const Value& self) {
    const std::size_t depth = _frames.size();
    enter(code, self);
    return finish(depth);
}

Value Interpreter::attribute(const Value& receiver, TextId name) {
    const std::size_t depth = _frames.size();
    pushAttribute(receiver, name);
    return finish(depth);
}

Value Interpreter::finish(std::size_t depth) {
    while (_frames.size() > depth) {
        _evaluation.spend();
        execute(static_cast<Operation>(operand()));
    }
    return pop();
}

Interpreter::Frame& Interpreter::enter(std::uint32_t code, const Value& self) {
    if (_frames.size() == _depthLimit) throw BoundReached();
    const std::uint16_t* begin = _program.store().code.data() + code;
    _frames.push_back({begin, begin + 1, _locals.size(), _operands.size(), self});
    _frame = &_frames.back();
    _locals.resize(_locals.size() + *begin);
    return *_frame;
}

void Interpreter::leave() {
    const Value result = pop();
    if (_frame->isDerived) {
        hold(result);
        // Kept by whoever asks next as well.
        hold(result);
        if (_frame->self.kind() == ValueKind::Instance) {
            const std::uint32_t instance = _frame->self.instance();
            kept(instance, _frame->name) = {_number, instance, _frame->name, result};
            if (_observer != nullptr) _observer->noteValue(_frame->read, result);
        }
    }
    _locals.resize(_frame->locals);
    _operands.resize(_frame->operands);
    _frames.pop_back();
    _frame = _frames.empty() ? nullptr : &_frames.back();
    push(result);
}

Value Interpreter::pop() noexcept {
    const Value value = _operands.back();
    _operands.pop_back();
    return value;
}

void Interpreter::execute(Operation operation) {
    if (operation <= Operation::Population) return pushConstant(operation);
    if (operation <= Operation::Duplicate) return accessVariable(operation);
    if (operation <= Operation::Slice) return takePart(operation);
    if (operation <= Operation::AsType) return makeAggregate(operation);
    if (operation <= Operation::Negate) return compute(operation);
    if (operation <= Operation::IsOfType) return compare(operation);
    if (operation <= Operation::JumpIfTrue) return jump(operation);
    control(operation);
}

void Interpreter::pushConstant(Operation operation) {
    const RuleStore& store = _program.store();
    switch (operation) {
    case Operation::Indeterminate:
        return push(Value());
    case Operation::False:
        return push(Value(Logical::False));
    case Operation::Unknown:
        return push(Value(Logical::Unknown));
    case Operation::True:
        return push(Value(Logical::True));
    case Operation::Integer:
        return push(Value(std::int64_t{static_cast<std::int16_t>(operand())}));
    case Operation::WideInteger:
        return push(Value(store.integers[operand()]));
    case Operation::Real:
        return push(Value(store.reals[operand()]));
    case Operation::String:
        return push(string(operand()));
    case Operation::Binary:
        return push(Value::ofText(ValueKind::Binary, store.text(operand())));
    case Operation::TypeName:
        return push(typeName(operand()));
    case Operation::Enumerator: {
        const TextId type = operand();
        return push(enumerator(type, operand()));
    }
    case Operation::Self:
        return push(_frame->self);
    default:
        return push(population(operand()));
    }
}

void Interpreter::accessVariable(Operation operation) {
    switch (operation) {
    case Operation::Load:
        return push(local(operand()));
    case Operation::Store: {
        const Value value = pop();
        Value& variable = local(operand());
        const bool isSame =
            value.isAggregate() && variable.isAggregate() && &value.aggregate() == &variable.aggregate();
        if (!isSame) hold(value);
        variable = value;
        return;
    }
    case Operation::StorePart:
        return storePart();
    case Operation::Drop:
        _operands.pop_back();
        return;
    default:
        // A push may move what lies on top.
        return push(Value(top()));
    }
}

void Interpreter::takePart(Operation operation) {
    switch (operation) {
    case Operation::Attribute: {
        const Value receiver = pop();
        return pushAttribute(receiver, operand());
    }
    case Operation::SelfAttribute:
        return pushAttribute(_frame->self, operand());
    case Operation::Group: {
        const sdai::EntityDefinition* wanted = _program.entity(operand());
        const sdai::EntityDefinition* is = _types.entity(top());
        if (wanted == nullptr || is == nullptr || !is->isKindOf(*wanted)) top() = Value();
        return;
    }
    case Operation::Index: {
        const Value index = pop();
        top() = indexed(top(), index);
        return;
    }
    default: {
        const Value last = pop();
        const Value first = pop();
        top() = slice(top(), first, last);
    }
    }
}

void Interpreter::makeAggregate(Operation operation) {
    switch (operation) {
    case Operation::EmptyAggregate:
        return push(Value(_evaluation.makeAggregate(AggregateKind::Initialiser)));
    case Operation::Append: {
        const Value member = pop();
        if (top().isAggregate()) _evaluation.append(top().aggregate(), member);
        return;
    }
    case Operation::AppendRepeated: {
        const Value count = pop();
        const Value member = pop();
        return appendRepeated(member, count);
    }
    case Operation::AsList:
        top() = _algebra.converted(top(), AggregateKind::List);
        return;
    case Operation::AsSet:
        top() = _algebra.converted(top(), AggregateKind::Set);
        return;
    case Operation::AsBag:
        top() = _algebra.converted(top(), AggregateKind::Bag);
        return;
    case Operation::AsArray: {
        const Value high = pop();
        const Value low = pop();
        top() = _algebra.array(top(), low, high);
        return;
    }
    default: {
        const sdai::DefinedType* type = _program.definedType(operand());
        const bool isTyped = type != nullptr && !top().isIndeterminate() && !top().isEntity();
        if (isTyped) top() = top().withType(static_cast<std::uint16_t>(type->position() + 1));
    }
    }
}

/// An initialiser of which nobody can say how many members it has is indeterminate.
void Interpreter::appendRepeated(const Value& member, const Value& count) {
    if (count.kind() != ValueKind::Integer || count.integer() < 0) top() = Value();
    if (!top().isAggregate()) return;
    _evaluation.reserve(top().aggregate(), static_cast<std::size_t>(count.integer()));
    for (std::int64_t i = 0; i < count.integer(); ++i) {
        _evaluation.spend();
        _evaluation.append(top().aggregate(), member);
    }
}

void Interpreter::compute(Operation operation) {
    if (operation == Operation::Negate) {
        top() = negated(top());
        return;
    }
    const Value b = pop();
    const Value a = top();
    if (a.isIndeterminate() || b.isIndeterminate()) {
        top() = Value();
    } else if (operation == Operation::Add) {
        top() = sum(a, b);
    } else {
        top() = product(operation, a, b);
    }
}

void Interpreter::compare(Operation operation) {
    if (operation == Operation::Not) {
        top() = Value(!top().logical());
        return;
    }
    if (operation == Operation::IsOfType) {
        const sdai::Type* type = _program.type(operand());
        top() = Value(logical(type != nullptr && _types.includes(top(), *type)));
        return;
    }
    const Value b = pop();
    const Value a = top();
    switch (operation) {
    case Operation::And:
        top() = Value(std::min(a.logical(), b.logical()));
        return;
    case Operation::Or:
        top() = Value(std::max(a.logical(), b.logical()));
        return;
    case Operation::Xor:
        top() = Value(exclusive(a.logical(), b.logical()));
        return;
    case Operation::Equal:
        top() = Value(_comparison.equal(a, b));
        return;
    case Operation::NotEqual:
        top() = Value(!_comparison.equal(a, b));
        return;
    case Operation::InstanceEqual:
        top() = Value(_comparison.identical(a, b));
        return;
    case Operation::InstanceNotEqual:
        top() = Value(!_comparison.identical(a, b));
        return;
    case Operation::In:
        top() = Value(_comparison.isIn(a, b));
        return;
    case Operation::Like:
        top() = a.isText() && b.isText() ? isLike(_comparison.text(a), _comparison.text(b), _evaluation)
                                         : Value(Logical::Unknown);
        return;
    default:
        top() = Value(ordered(operation, a, b));
    }
}

void Interpreter::jump(Operation operation) {
    const std::uint16_t target = operand();
    if (operation == Operation::Jump) return jumpTo(target);
    const Logical condition = top().logical();
    if (operation == Operation::JumpUnlessTrue) {
        _operands.pop_back();
        if (condition != Logical::True) jumpTo(target);
        return;
    }
    if (condition == (operation == Operation::JumpIfFalse ? Logical::False : Logical::True)) jumpTo(target);
}

void Interpreter::control(Operation operation) {
    switch (operation) {
    case Operation::QueryBegin:
        return queryBegin();
    case Operation::QueryNext:
        return queryNext();
    case Operation::Call:
        return call();
    case Operation::Return:
        return leave();
    case Operation::Construct:
        return construct();
    default:
        return push(builtin(static_cast<BuiltinFunction>(operand())));
    }
}

void Interpreter::queryBegin() {
    const std::uint16_t variable = operand();
    const bool isCount = operand() != 0;
    const std::uint16_t behind = operand();
    if (!top().isAggregate()) {
        top() = Value();
        return jumpTo(behind);
    }
    Aggregate& aggregate = top().aggregate();
    const std::uint32_t size = _reader.size(aggregate);
    // What is left of an ARRAY has no places.
    const AggregateKind kind = aggregate.kind == AggregateKind::Array ? AggregateKind::Bag : aggregate.kind;
    const Value result = isCount ? Value(std::int64_t{0}) : Value(_evaluation.makeAggregate(kind));
    if (size == 0) {
        top() = result;
        return jumpTo(behind);
    }
    local(variable) = _reader.member(aggregate, 0);
    hold(local(variable));
    push(Value(std::int64_t{0}));
    push(result);
}

void Interpreter::queryNext() {
    const std::uint16_t variable = operand();
    const bool isCount = operand() != 0;
    const std::uint16_t body = operand();
    const bool isTaken = pop().logical() == Logical::True;
    Value* const state = _operands.data() + _operands.size() - 3;
    Aggregate& aggregate = state[0].aggregate();
    const auto position = static_cast<std::uint32_t>(state[1].integer());
    if (isTaken && isCount) state[2] = Value(state[2].integer() + 1);
    if (isTaken && !isCount) _evaluation.append(state[2].aggregate(), _reader.member(aggregate, position));
    if (position + 1 < aggregate.size) {
        local(variable) = _reader.member(aggregate, position + 1);
        hold(local(variable));
        state[1] = Value(std::int64_t{position} + 1);
        return jumpTo(body);
    }
    state[0] = state[2];
    _operands.resize(_operands.size() - 2);
}

void Interpreter::call() {
    const TextId name = operand();
    const std::size_t count = operand();
    const Function* function = _program.function(name);
    if (function == nullptr) {
        _operands.resize(_operands.size() - count);
        return push(Value());
    }
    const Frame& frame = enter(function->code, Value());
    _frames.back().operands -= count;
    for (std::size_t i = 0; i < count; ++i) {
        const Value& argument = _operands[frame.operands + i];
        hold(argument);
        _locals[frame.locals + i] = argument;
    }
}

void Interpreter::construct() {
    const sdai::EntityDefinition* entity = _program.entity(operand());
    const std::size_t count = operand();
    const std::size_t first = _operands.size() - count;
    Value result;
    if (entity != nullptr) {
        EntityValue& value = _evaluation.makeEntity(*entity);
        for (std::size_t i = 0; i < std::min(count, entity->attributes().size()); ++i) {
            value.slots[i] = _operands[first + i];
            hold(value.slots[i]);
        }
        result = Value(value);
    }
    _operands.resize(first);
    push(result);
}

RuleProgram::Part Interpreter::part(const sdai::EntityDefinition& entity, TextId name) {
    KnownPart& known = _knownParts[slotFor(std::uint64_t{entity.position()} << 16 | name, knownPartCount)];
    if (known.entity != &entity || known.name != name) known = {&entity, name, _program.part(entity, name)};
    return known.part;
}

Interpreter::Kept& Interpreter::kept(std::uint32_t instance, TextId name) noexcept {
    return _kept[slotFor(std::uint64_t{instance} << 16 | name, keptCount)];
}

} // namespace velkor::rules
