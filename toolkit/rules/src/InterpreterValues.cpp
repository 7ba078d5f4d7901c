#include "Arithmetic.h"
#include "Interpreter.h"
#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor::rules {

namespace {

/// Position of an index in an aggregate, counted from 0; nothing before its first member.
std::optional<std::uint64_t> position(const Value& index, std::int64_t lower) noexcept {
    if (index.kind() != ValueKind::Integer || index.integer() < lower) return std::nullopt;
    return static_cast<std::uint64_t>(index.integer()) - static_cast<std::uint64_t>(lower);
}

} // namespace

/// "\x01" at the beginning stands for the name of the schema.
Value Interpreter::string(TextId text) {
    const std::string_view stated = _program.store().text(text);
    if (!stated.starts_with('\x01')) return Value::ofText(ValueKind::String, stated);
    return joined(ValueKind::String, _program.model().schema().name(), stated.substr(1));
}

Value Interpreter::typeName(TextId name) {
    if (const sdai::Type* type = _program.type(name)) return Value(*type);
    const Value schema = joined(ValueKind::String, _program.model().schema().name(), ".");
    return joined(ValueKind::String, schema.text(), _program.store().text(name));
}

Value Interpreter::enumerator(TextId type, TextId name) const {
    const Value value = Value::ofText(ValueKind::Enumerator, _program.store().text(name));
    const sdai::DefinedType* definedType = _program.definedType(type);
    return definedType != nullptr ? value.withType(static_cast<std::uint16_t>(definedType->position() + 1)) : value;
}

/// The index of the file's keywords says what its instances are; none of them is looked at.
Value Interpreter::population(TextId name) {
    Kept& known = kept(noInstance, name);
    if (known.evaluation == _number && known.instance == noInstance && known.name == name) return known.value;
    Aggregate& members = _evaluation.makeAggregate(AggregateKind::Set);
    const sdai::EntityDefinition* wanted = _program.entity(name);
    const sdai::Model& model = _program.model();
    const std::uint32_t count = wanted != nullptr ? model.file().instanceCount() : 0;
    for (std::uint32_t number = 0; number < count; ++number) {
        const sdai::EntityDefinition* entity = model.entityAt(number);
        if (entity == nullptr || !entity->isKindOf(*wanted)) continue;
        _evaluation.spend();
        _evaluation.append(members, Value::ofInstance(number));
    }
    members.holding = Holding::Several;
    known = {_number, noInstance, name, Value(members)};
    return known.value;
}

void Interpreter::pushAttribute(const Value& receiver, TextId name) {
    const sdai::EntityDefinition* entity = _types.entity(receiver);
    if (entity == nullptr) return push(Value());
    const RuleProgram::Part found = part(*entity, name);
    const bool isOfModel = receiver.kind() == ValueKind::Instance;
    std::size_t read = 0;
    if (_observer != nullptr && isOfModel && found.kind != RuleProgram::Part::Kind::None)
        read = _observer->noteRead(receiver.instance(), name, found);
    switch (found.kind) {
    case RuleProgram::Part::Kind::Explicit:
        return push(explicitAttribute(receiver, *entity, name, found.index));
    case RuleProgram::Part::Kind::Derived:
        return pushDerived(receiver, name, found.index, read);
    case RuleProgram::Part::Kind::Inverse: {
        const InverseAttribute& attribute = _program.tables().inverseAttributes[found.index];
        if (isOfModel) return push(inverse(receiver.instance(), attribute, found.index));
        // Nothing refers to what a rule has made.
        return push(attribute.isAggregate ? usersOf({}, AggregateKind::Set) : Value());
    }
    default:
        return push(Value());
    }
}

Value Interpreter::explicitAttribute(const Value& receiver, const sdai::EntityDefinition& entity, TextId name,
                                     std::uint16_t slot) {
    if (receiver.kind() == ValueKind::Entity) return receiver.entity().slots[slot];
    const std::uint32_t instance = receiver.instance();
    Kept& known = kept(instance, name);
    if (known.evaluation == _number && known.instance == instance && known.name == name) return known.value;
    const Value value = _reader.attribute(instance, entity, slot);
    // Decoded members of an aggregate shall not be decoded again.
    if (value.isAggregate()) known = {_number, instance, name, value};
    return value;
}

void Interpreter::pushDerived(const Value& receiver, TextId name, std::uint16_t index, std::size_t read) {
    if (receiver.kind() == ValueKind::Instance) {
        const Kept& known = kept(receiver.instance(), name);
        if (known.evaluation == _number && known.instance == receiver.instance() && known.name == name)
            return push(known.value);
    }
    Frame& frame = enter(_program.tables().derivedAttributes[index].code, receiver);
    frame.isDerived = true;
    frame.name = name;
    frame.read = read;
}

Value Interpreter::inverse(std::uint32_t instance, const InverseAttribute& attribute, std::uint16_t role) {
    const auto users = _roles.users(role, instance);
    if (attribute.isAggregate) return usersOf(users, attribute.isBag ? AggregateKind::Bag : AggregateKind::Set);
    const bool isOne = !users.empty() && users.front() == users.back();
    return isOne ? Value::ofInstance(users.front()) : Value();
}

/// `users` are in ascending order.
Value Interpreter::usersOf(std::span<const std::uint32_t> users, AggregateKind kind) {
    _evaluation.spend(users.size());
    Aggregate& members = _evaluation.makeAggregate(kind, users.size());
    for (std::size_t i = 0; i < users.size(); ++i) {
        const bool isRepeated = kind == AggregateKind::Set && i > 0 && users[i] == users[i - 1];
        if (!isRepeated) _evaluation.append(members, Value::ofInstance(users[i]));
    }
    return Value(members);
}

Value Interpreter::indexed(const Value& aggregate, const Value& index) {
    if (aggregate.kind() == ValueKind::String || aggregate.kind() == ValueKind::Binary)
        return slice(aggregate, index, index);
    if (!aggregate.isAggregate()) return {};
    const auto place = position(index, aggregate.aggregate().lower);
    return place ? _reader.member(aggregate.aggregate(), *place) : Value();
}

Value Interpreter::slice(const Value& text, const Value& first, const Value& last) const {
    const bool isText = text.kind() == ValueKind::String || text.kind() == ValueKind::Binary;
    const bool haveBounds = first.kind() == ValueKind::Integer && last.kind() == ValueKind::Integer;
    if (!isText || !haveBounds || first.integer() < 1 || last.integer() < first.integer()) return {};
    const auto begin = static_cast<std::size_t>(first.integer()) - 1;
    const auto count = static_cast<std::size_t>(last.integer() - first.integer()) + 1;
    std::string_view rest = text.text();
    rest.remove_prefix(text::byteOffset(rest, begin));
    const std::size_t length = text::byteOffset(rest, count);
    // byteOffset() answers the size for the place behind the last character and for all beyond it.
    if (text::characterCount(rest.substr(0, length)) != count) return {};
    return Value::ofText(text.kind(), rest.substr(0, length));
}

void Interpreter::storePart() {
    Value* place = &local(operand());
    const std::size_t stepCount = operand();
    const std::uint16_t* steps = _frame->next;
    _frame->next += stepCount;
    const Value value = pop();
    const auto indexCount = static_cast<std::size_t>(std::count(steps, steps + stepCount, stepIndex));
    const std::size_t firstIndex = _operands.size() - indexCount;
    std::size_t index = firstIndex;
    for (std::size_t i = 0; i < stepCount && place != nullptr; ++i) {
        const bool isIndex = steps[i] == stepIndex;
        place = step(*place, steps[i], isIndex ? _operands[index] : Value());
        if (isIndex) ++index;
    }
    _operands.resize(firstIndex);
    if (place == nullptr) return;
    hold(value);
    *place = value;
}

/// The part of a variable that a step leads to, where it may be changed; null, and the variable without a value there,
/// when there is no such part.
Value* Interpreter::step(Value& place, std::uint16_t step, const Value& index) {
    if (step == stepIndex) return memberToStore(place, index);
    makeWritable(place);
    if (place.kind() != ValueKind::Entity) {
        place = Value();
        return nullptr;
    }
    EntityValue& entity = place.entity();
    const RuleProgram::Part found = part(*entity.entity, step);
    if (found.kind == RuleProgram::Part::Kind::Explicit) return &entity.slots[found.index];
    place = Value();
    return nullptr;
}

Value* Interpreter::memberToStore(Value& place, const Value& index) {
    if (place.isIndeterminate()) {
        Aggregate& made = _evaluation.makeAggregate(AggregateKind::List);
        made.holding = Holding::One;
        place = Value(made);
    }
    makeWritable(place);
    if (!place.isAggregate()) {
        place = Value();
        return nullptr;
    }
    Aggregate& aggregate = place.aggregate();
    const bool grows = aggregate.kind == AggregateKind::List || aggregate.kind == AggregateKind::Initialiser;
    if (grows && index.kind() == ValueKind::Integer && index.integer() == std::int64_t{aggregate.size} + 1)
        _evaluation.append(aggregate, Value());
    aggregate.seen = nullptr;
    const auto found = position(index, aggregate.lower);
    if (found && *found < aggregate.size) return &aggregate.members[*found];
    place = Value();
    return nullptr;
}

/// What others hold too is copied first, and an instance of the model is copied into an entity value.
void Interpreter::makeWritable(Value& place) {
    if (place.isAggregate() && place.aggregate().holding != Holding::One) {
        Aggregate& copy = _algebra.copy(place.aggregate());
        copy.holding = Holding::One;
        place = Value(copy).withType(place.type());
        return;
    }
    const bool isShared = place.kind() == ValueKind::Entity && place.entity().holding != Holding::One;
    if (place.kind() != ValueKind::Instance && !isShared) return;
    const sdai::EntityDefinition* definition = _types.entity(place);
    if (definition == nullptr) return;
    EntityValue& copy = _evaluation.makeEntity(*definition);
    copy.holding = Holding::One;
    for (std::size_t i = 0; i < definition->attributes().size(); ++i) {
        copy.slots[i] = isShared ? place.entity().slots[i] : _reader.attribute(place.instance(), *definition, i);
        hold(copy.slots[i]);
    }
    place = Value(copy);
}

/// Whether an aggregate is what a variable alone holds, and the answer is about to take its place: in "x := x + y".
bool Interpreter::isStoredBack(const Value& aggregate) noexcept {
    if (!aggregate.isAggregate() || aggregate.aggregate().holding != Holding::One) return false;
    const std::uint16_t* next = _frame->next;
    const auto operation = static_cast<Operation>(*next);
    if (operation == Operation::AsList || operation == Operation::AsSet || operation == Operation::AsBag) ++next;
    if (static_cast<Operation>(*next) != Operation::Store) return false;
    const Value& variable = local(next[1]);
    return variable.isAggregate() && &variable.aggregate() == &aggregate.aggregate();
}

Value Interpreter::sum(const Value& a, const Value& b) {
    if (a.isNumber() && b.isNumber()) return arithmetic(Operation::Add, a, b);
    if (isStoredBack(a)) return _algebra.extended(a, b);
    if (a.isAggregate() || b.isAggregate()) return _algebra.sum(a, b);
    if (a.isText() && b.isText()) return joined(ValueKind::String, _comparison.text(a), _comparison.text(b));
    const bool areBinary = a.kind() == ValueKind::Binary && b.kind() == ValueKind::Binary;
    return areBinary ? joined(ValueKind::Binary, a.text(), b.text()) : Value();
}

Value Interpreter::joined(ValueKind kind, std::string_view a, std::string_view b) {
    _evaluation.spend((a.size() + b.size()) / 32);
    char* text = _evaluation.room<char>(a.size() + b.size());
    std::ranges::copy(b, std::ranges::copy(a, text).out);
    return Value::ofText(kind, {text, a.size() + b.size()});
}

Value Interpreter::product(Operation operation, const Value& a, const Value& b) {
    if (a.isAggregate() && operation == Operation::Subtract) return _algebra.difference(a, b);
    if (a.isAggregate() && b.isAggregate() && operation == Operation::Multiply)
        return _algebra.intersection(a.aggregate(), b.aggregate());
    return arithmetic(operation, a, b);
}

Logical Interpreter::ordered(Operation operation, const Value& a, const Value& b) {
    if (a.isAggregate() && b.isAggregate()) {
        if (operation == Operation::LessOrEqual) return _comparison.isSubset(a.aggregate(), b.aggregate());
        if (operation == Operation::GreaterOrEqual) return _comparison.isSubset(b.aggregate(), a.aggregate());
        return Logical::Unknown;
    }
    const auto order = _comparison.order(a, b);
    if (!order) return Logical::Unknown;
    switch (operation) {
    case Operation::Less:
        return logical(*order < 0);
    case Operation::LessOrEqual:
        return logical(*order <= 0);
    case Operation::Greater:
        return logical(*order > 0);
    default:
        return logical(*order >= 0);
    }
}

} // namespace velkor::rules
