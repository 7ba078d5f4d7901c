// Expressions.

#include "CodeCompiler.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace velkor::rulegen {

using express::Operator;
using rules::BuiltinFunction;
using Kind = express::Expression::Kind;

namespace {

struct Builtin {
    std::string_view name;
    BuiltinFunction function;
    std::size_t arguments;
};

constexpr std::array<Builtin, 29> builtins{{{"ABS", BuiltinFunction::Abs, 1},
                                            {"ACOS", BuiltinFunction::ACos, 1},
                                            {"ASIN", BuiltinFunction::ASin, 1},
                                            {"ATAN", BuiltinFunction::ATan, 2},
                                            {"BLENGTH", BuiltinFunction::BLength, 1},
                                            {"COS", BuiltinFunction::Cos, 1},
                                            {"EXISTS", BuiltinFunction::Exists, 1},
                                            {"EXP", BuiltinFunction::Exp, 1},
                                            {"FORMAT", BuiltinFunction::Format, 2},
                                            {"HIBOUND", BuiltinFunction::HiBound, 1},
                                            {"HIINDEX", BuiltinFunction::HiIndex, 1},
                                            {"LENGTH", BuiltinFunction::Length, 1},
                                            {"LOBOUND", BuiltinFunction::LoBound, 1},
                                            {"LOG", BuiltinFunction::Log, 1},
                                            {"LOG2", BuiltinFunction::Log2, 1},
                                            {"LOG10", BuiltinFunction::Log10, 1},
                                            {"LOINDEX", BuiltinFunction::LoIndex, 1},
                                            {"NVL", BuiltinFunction::Nvl, 2},
                                            {"ODD", BuiltinFunction::Odd, 1},
                                            {"ROLESOF", BuiltinFunction::RolesOf, 1},
                                            {"SIN", BuiltinFunction::Sin, 1},
                                            {"SIZEOF", BuiltinFunction::SizeOf, 1},
                                            {"SQRT", BuiltinFunction::Sqrt, 1},
                                            {"TAN", BuiltinFunction::Tan, 1},
                                            {"TYPEOF", BuiltinFunction::TypeOf, 1},
                                            {"USEDIN", BuiltinFunction::UsedIn, 2},
                                            {"VALUE", BuiltinFunction::Value, 1},
                                            {"VALUE_IN", BuiltinFunction::ValueIn, 2},
                                            {"VALUE_UNIQUE", BuiltinFunction::ValueUnique, 1}}};

struct InfixOperation {
    Operator operation;
    rules::Operation code;
};

constexpr std::array<InfixOperation, 17> infixOperations{
    {{Operator::Power, rules::Operation::Power},
     {Operator::Multiply, rules::Operation::Multiply},
     {Operator::Divide, rules::Operation::Divide},
     {Operator::IntegerDivide, rules::Operation::IntegerDivide},
     {Operator::Modulo, rules::Operation::Modulo},
     {Operator::Add, rules::Operation::Add},
     {Operator::Subtract, rules::Operation::Subtract},
     {Operator::Xor, rules::Operation::Xor},
     {Operator::Equal, rules::Operation::Equal},
     {Operator::NotEqual, rules::Operation::NotEqual},
     {Operator::Less, rules::Operation::Less},
     {Operator::LessOrEqual, rules::Operation::LessOrEqual},
     {Operator::Greater, rules::Operation::Greater},
     {Operator::GreaterOrEqual, rules::Operation::GreaterOrEqual},
     {Operator::InstanceEqual, rules::Operation::InstanceEqual},
     {Operator::InstanceNotEqual, rules::Operation::InstanceNotEqual},
     {Operator::Like, rules::Operation::Like}}};

bool isCallOf(const express::Expression& expression, std::string_view name) {
    return expression.kind == Kind::Call && upperCase(expression.text) == name && expression.operands.size() == 1;
}

} // namespace

void CodeCompiler::write(const Expression& expression) {
    // Constants within constants can be written without end.
    if (_code.isTooLong()) return;
    switch (expression.kind) {
    case Kind::Integer:
    case Kind::Real:
    case Kind::Binary:
        return writeLiteral(expression);
    case Kind::String:
        return writeString(expression, expression.text);
    case Kind::Indeterminate:
        return _code.write(Operation::Indeterminate);
    case Kind::Self:
        if (!_self.isKnown()) error(expression, "SELF stands where there is none");
        return _code.write(Operation::Self);
    case Kind::Name:
        return writeName(expression);
    case Kind::Attribute:
        return writeAttribute(expression);
    case Kind::Group:
        return writeGroup(expression);
    case Kind::Index:
        for (const auto& operand : expression.operands) write(*operand);
        return _code.write(expression.operands.size() == 2 ? Operation::Index : Operation::Slice);
    case Kind::Call:
        return writeCall(expression);
    case Kind::Unary:
        return writeUnary(expression);
    case Kind::Infix:
        return writeInfix(expression);
    case Kind::Interval:
        return writeInterval(expression);
    case Kind::Query:
        return writeQuery(expression, false);
    case Kind::Aggregate:
        return writeAggregate(expression);
    }
}

void CodeCompiler::writeLiteral(const Expression& expression) {
    const std::string& text = expression.text;
    const char* const end = text.data() + text.size();
    if (expression.kind == Kind::Binary) return _code.write(Operation::Binary, {_store.text(text)});
    if (expression.kind == Kind::Real) {
        double value = 0.0;
        if (std::from_chars(text.data(), end, value).ec != std::errc()) error(expression, text + " is too large");
        return _code.write(Operation::Real, {_store.real(value)});
    }
    std::int64_t value = 0;
    if (std::from_chars(text.data(), end, value).ec != std::errc()) error(expression, text + " is too large");
    if (value <= INT16_MAX) return _code.write(Operation::Integer, {static_cast<std::uint16_t>(value)});
    _code.write(Operation::WideInteger, {_store.integer(value)});
}

// A qualified name of a type is kept as one, so that the code is the same in all releases.
void CodeCompiler::writeString(const Expression& at, const std::string& text) {
    const std::string prefix = upperCase(_names.schema().name) + '.';
    if (!text.starts_with(prefix)) {
        const auto dot = text.find('.');
        const std::string behind = dot == std::string::npos ? std::string() : text.substr(dot + 1);
        if (_names.entity(behind) != nullptr || _names.type(behind) != nullptr) {
            _diagnostics.note(at.line, '\'' + text + "' is a name of another schema");
        }
        return _code.write(Operation::String, {_store.text(text)});
    }
    const std::string name = text.substr(prefix.size());
    const rules::TextId type = _store.type(name);
    const bool isType = _names.entity(name) != nullptr || _names.type(name) != nullptr;
    if (isType && name == upperCase(name)) return _code.write(Operation::TypeName, {type});
    const bool isRole = isType || name.find('.') != std::string::npos;
    _diagnostics.note(at.line, '\'' + text + "' " +
                                   (isRole ? "is never a name of TYPEOF, which are in upper case" : "names no type"));
    _code.write(Operation::String, {_store.text(text)});
}

void CodeCompiler::writeName(const Expression& expression) {
    const std::string name = upperCase(expression.text);
    if (const Variable* local = variable(name)) {
        if (local->alias) return write(*local->alias);
        return _code.write(Operation::Load, {local->place});
    }
    if (_self.entity != nullptr && _names.attribute(*_self.entity, name).isThere) {
        return _code.write(Operation::SelfAttribute, {_store.attribute(name)});
    }
    if (name == "TRUE") return _code.write(Operation::True);
    if (name == "FALSE") return _code.write(Operation::False);
    if (name == "UNKNOWN") return _code.write(Operation::Unknown);
    if (name == "PI") return _code.write(Operation::Real, {_store.real(3.14159265358979323846)});
    if (name == "CONST_E") return _code.write(Operation::Real, {_store.real(2.71828182845904523536)});
    if (const auto* constant = _names.constant(name); constant != nullptr && constant->value) {
        if (++_constantDepth > 100) return error(expression, expression.text + " needs itself");
        write(*constant->value);
        --_constantDepth;
        return;
    }
    if (const auto* function = _names.function(name); function != nullptr && function->parameters.empty()) {
        return _code.write(Operation::Call, {_store.text(name), 0});
    }
    writeEnumerator(expression, {}, name);
}

void CodeCompiler::writeEnumerator(const Expression& expression, const std::string& type, const std::string& name) {
    if (!type.empty()) {
        const auto* enumeration = _names.type(type);
        if (enumeration == nullptr || !SchemaNames::hasEnumerator(*enumeration, name)) {
            error(expression, type + " has no enumerator " + name);
        }
        return _code.write(Operation::Enumerator, {_store.type(type), _store.text(upperCase(name))});
    }
    const auto enumerations = _names.enumerations(name);
    if (enumerations.empty()) error(expression, "nothing is named " + expression.text);
    const rules::TextId only = enumerations.size() == 1 ? _store.type(enumerations[0]->name) : rules::noName;
    _code.write(Operation::Enumerator, {only, _store.text(name)});
}

void CodeCompiler::writeAttribute(const Expression& expression) {
    const Expression& owner = *expression.operands[0];
    if (owner.kind == Kind::Name && variable(owner.text) == nullptr) {
        const auto* type = _names.type(owner.text);
        const bool isAttribute = _self.entity != nullptr && _names.attribute(*_self.entity, owner.text).isThere;
        if (type != nullptr && !isAttribute) return writeEnumerator(expression, owner.text, expression.text);
    }
    checkAttribute(expression, typeOf(owner));
    const rules::TextId name = _store.attribute(expression.text);
    if (owner.kind == Kind::Self) return _code.write(Operation::SelfAttribute, {name});
    write(owner);
    _code.write(Operation::Attribute, {name});
}

void CodeCompiler::checkAttribute(const Expression& expression, const StaticType& owner) {
    if (_store.attribute(expression.text) == rules::noName) {
        return error(expression, "no entity has an attribute " + expression.text);
    }
    if (owner.isKnown() && !_names.mayHaveAttribute(owner, expression.text)) {
        error(expression, (owner.entity != nullptr ? owner.entity->name : "what stands before it") +
                              " has no attribute " + expression.text);
    }
}

void CodeCompiler::writeGroup(const Expression& expression) {
    write(*expression.operands[0]);
    const auto* group = _names.entity(expression.text);
    const auto* is = _names.resolved(typeOf(*expression.operands[0])).entity;
    if (group == nullptr) {
        error(expression, "expected an entity, found " + expression.text);
    } else if (is != nullptr && !_names.isKindOf(*is, *group) && !_names.isKindOf(*group, *is)) {
        _diagnostics.note(expression.line, "what is of " + is->name + " is never of " + group->name);
    }
    _code.write(Operation::Group, {_store.type(expression.text)});
}

void CodeCompiler::writeCall(const Expression& expression) {
    if (_names.entity(expression.text) != nullptr) return writeConstructor(expression);
    const auto* function = _names.function(expression.text);
    if (function == nullptr) {
        if (!writeBuiltin(expression)) error(expression, "there is no function " + expression.text);
        return;
    }
    if (function->parameters.size() != expression.operands.size()) {
        error(expression, expression.text + " takes " + std::to_string(function->parameters.size()) +
                              " arguments, found " + std::to_string(expression.operands.size()));
    }
    for (const auto& operand : expression.operands) write(*operand);
    _code.write(Operation::Call,
                {_store.text(upperCase(function->name)), static_cast<std::uint16_t>(expression.operands.size())});
}

bool CodeCompiler::writeBuiltin(const Expression& expression) {
    const std::string name = upperCase(expression.text);
    const auto found = std::ranges::find(builtins, name, &Builtin::name);
    if (found == builtins.end()) return false;
    if (found->arguments != expression.operands.size()) {
        error(expression, name + " takes " + std::to_string(found->arguments) + " arguments, found " +
                              std::to_string(expression.operands.size()));
        return true;
    }
    const Expression& first = *expression.operands[0];
    if (found->function == BuiltinFunction::SizeOf && first.kind == Kind::Query) {
        writeQuery(first, true);
        return true;
    }
    write(first);
    if (found->function == BuiltinFunction::UsedIn) {
        const auto role = constantText(*expression.operands[1]);
        if (!role) error(expression, "expected a role of USEDIN that is a literal");
        const std::string prefix = upperCase(_names.schema().name) + '.';
        const std::string text = upperCase(role.value_or(std::string()));
        // The release's name is left out, so that the code is the same in all.
        _code.write(Operation::String, {_store.text(text.starts_with(prefix) ? text.substr(prefix.size()) : text)});
    } else if (found->arguments == 2) {
        write(*expression.operands[1]);
    }
    _code.write(Operation::Builtin, {static_cast<std::uint16_t>(found->function)});
    return true;
}

// A() || B() || C(x, y): each gives the attributes that its entity declares itself.
void CodeCompiler::writeConstructor(const Expression& expression) {
    std::vector<const Expression*> parts{&expression};
    while (parts.back()->kind == Kind::Infix && parts.back()->operation == Operator::Combine) {
        const Expression* at = parts.back();
        parts.back() = at->operands[1].get();
        parts.push_back(at->operands[0].get());
    }
    const express::ExpressEntity* leaf = nullptr;
    for (const Expression* part : parts) {
        const auto* entity = part->kind == Kind::Call ? _names.entity(part->text) : nullptr;
        if (entity == nullptr) return error(*part, "expected entities with their values beside ||");
        if (leaf == nullptr || _names.isKindOf(*entity, *leaf)) leaf = entity;
    }
    std::uint16_t count = 0;
    const auto line = _names.line(*leaf);
    for (auto entity = line.rbegin(); entity != line.rend(); ++entity) {
        const auto isPart = [&](const Expression* part) { return _names.entity(part->text) == *entity; };
        const auto part = std::ranges::find_if(parts, isPart);
        std::size_t own = 0;
        for (const auto& attribute : (*entity)->explicitAttributes) {
            if (attribute.isRedeclared) continue;
            const bool isGiven = part != parts.end() && own < (*part)->operands.size();
            isGiven ? write(*(*part)->operands[own]) : _code.write(Operation::Indeterminate);
            ++own;
            ++count;
        }
        if (part != parts.end() && (*part)->operands.size() != own) {
            error(**part, (*entity)->name + " has " + std::to_string(own) + " attributes of its own, found " +
                              std::to_string((*part)->operands.size()));
        }
    }
    _code.write(Operation::Construct, {_store.type(leaf->name), count});
}

void CodeCompiler::writeUnary(const Expression& expression) {
    write(*expression.operands[0]);
    if (expression.operation == Operator::Minus) _code.write(Operation::Negate);
    if (expression.operation == Operator::Not) _code.write(Operation::Not);
}

void CodeCompiler::writeInfix(const Expression& expression) {
    if (expression.operation == Operator::Combine) return writeConstructor(expression);
    if (expression.operation == Operator::And || expression.operation == Operator::Or) return writeShortCut(expression);
    if (expression.operation == Operator::In && writeTypeTest(expression)) return;
    if (expression.operation == Operator::Add) {
        if (const auto text = constantText(expression)) return writeString(expression, *text);
    }
    write(*expression.operands[0]);
    write(*expression.operands[1]);
    if (expression.operation == Operator::In) return _code.write(Operation::In);
    _code.write(std::ranges::find(infixOperations, expression.operation, &InfixOperation::operation)->code);
}

/// 'SCHEMA.TYPE' IN TYPEOF(x) without the set.
bool CodeCompiler::writeTypeTest(const Expression& expression) {
    const auto text = constantText(*expression.operands[0]);
    if (!text || !isCallOf(*expression.operands[1], "TYPEOF")) return false;
    const std::string prefix = upperCase(_names.schema().name) + '.';
    if (!text->starts_with(prefix)) return false;
    const std::string name = text->substr(prefix.size());
    if (name != upperCase(name) || (_names.entity(name) == nullptr && _names.type(name) == nullptr)) return false;
    write(*expression.operands[1]->operands[0]);
    _code.write(Operation::IsOfType, {_store.type(name)});
    return true;
}

void CodeCompiler::writeShortCut(const Expression& expression) {
    const bool isAnd = expression.operation == Operator::And;
    Target end;
    write(*expression.operands[0]);
    _code.jump(isAnd ? Operation::JumpIfFalse : Operation::JumpIfTrue, end);
    write(*expression.operands[1]);
    _code.write(isAnd ? Operation::And : Operation::Or);
    _code.place(end);
}

/// {low < item < high} with the item looked at once.
void CodeCompiler::writeInterval(const Expression& expression) {
    const auto below = [](bool isInclusive) { return isInclusive ? Operation::LessOrEqual : Operation::Less; };
    const std::uint16_t item = _code.newLocal();
    write(*expression.operands[0]);
    write(*expression.operands[1]);
    _code.write(Operation::Duplicate);
    _code.write(Operation::Store, {item});
    _code.write(below(expression.isLowInclusive));
    _code.write(Operation::Load, {item});
    write(*expression.operands[2]);
    _code.write(below(expression.isHighInclusive));
    _code.write(Operation::And);
}

void CodeCompiler::writeQuery(const Expression& expression, bool isCounted) {
    const Expression& source = *expression.operands[0];
    const auto counts = static_cast<std::uint16_t>(isCounted ? 1 : 0);
    write(source);
    const std::uint16_t place = addVariable(expression.text, _names.element(typeOf(source)));
    Target body, end;
    _code.jump(Operation::QueryBegin, end, {place, counts});
    _code.place(body);
    write(*expression.operands[1]);
    _code.jump(Operation::QueryNext, body, {place, counts});
    _code.place(end);
    _variables.pop_back();
}

void CodeCompiler::writeAggregate(const Expression& expression) {
    _code.write(Operation::EmptyAggregate);
    for (std::size_t i = 0; i < expression.operands.size(); ++i) {
        write(*expression.operands[i]);
        if (expression.repetitions[i]) write(*expression.repetitions[i]);
        _code.write(expression.repetitions[i] ? Operation::AppendRepeated : Operation::Append);
    }
}

/// The text of a literal, or of literals put together.
std::optional<std::string> CodeCompiler::constantText(const Expression& expression) const {
    if (expression.kind == Kind::String) return expression.text;
    if (expression.kind != Kind::Infix || expression.operation != Operator::Add) return std::nullopt;
    const auto first = constantText(*expression.operands[0]);
    const auto second = constantText(*expression.operands[1]);
    return first && second ? std::optional(*first + *second) : std::nullopt;
}

StaticType CodeCompiler::typeOf(const Expression& expression) const {
    switch (expression.kind) {
    case Kind::Self:
        return _self;
    case Kind::Name: {
        if (const Variable* local = variable(expression.text)) {
            return local->alias ? typeOf(*local->alias) : _names.resolved(local->type);
        }
        if (_self.entity == nullptr) return {};
        return _names.resolved(_names.attribute(*_self.entity, expression.text).type);
    }
    case Kind::Attribute: {
        const StaticType owner = _names.resolved(typeOf(*expression.operands[0]));
        if (owner.entity == nullptr) return {};
        return _names.resolved(_names.attribute(*owner.entity, expression.text).type);
    }
    case Kind::Group:
        return {nullptr, _names.entity(expression.text)};
    case Kind::Index:
        return _names.resolved(_names.element(typeOf(*expression.operands[0])));
    case Kind::Query:
        return typeOf(*expression.operands[0]);
    case Kind::Call:
        if (const auto* entity = _names.entity(expression.text)) return {nullptr, entity};
        if (const auto* function = _names.function(expression.text))
            return _names.resolved({&function->result, nullptr});
        return {};
    default:
        return {};
    }
}

} // namespace velkor::rulegen
