// Statements, functions and variables.

#include "CodeCompiler.h"

#include <algorithm>

namespace velkor::rulegen {

using express::ExpressionPointer;
using express::ExpressType;
using rules::BuiltinFunction;
using Kind = express::Statement::Kind;
using ExpressionKind = express::Expression::Kind;

std::uint32_t CodeCompiler::finished() {
    if (_code.isTooLong()) _diagnostics.error(0, "code with more than 65535 units");
    const std::uint32_t place = _store.code(_code.units());
    _code = {};
    _variables.clear();
    return place;
}

std::uint32_t CodeCompiler::expressionCode(const Expression& expression, const ExpressType* type) {
    write(expression);
    if (type != nullptr) writeAs(*type);
    _code.write(Operation::Return);
    return finished();
}

std::uint32_t CodeCompiler::functionCode(const express::ExpressFunction& function) {
    _function = &function;
    for (const auto& parameter : function.parameters) declare(parameter);
    for (const auto* list : {&function.constants, &function.locals}) {
        for (const auto& local : *list) declare(local);
    }
    for (const auto* list : {&function.constants, &function.locals}) {
        for (const auto& local : *list) begin(local);
    }
    write(function.body);
    writeReturn({});
    _function = nullptr;
    return finished();
}

std::uint32_t CodeCompiler::globalRuleCode(const express::ExpressGlobalRule& rule,
                                           const express::ExpressWhereRule& where) {
    for (const std::string& name : rule.entities) {
        const auto* entity = _names.entity(name);
        if (entity == nullptr) _diagnostics.error(rule.line, "expected an entity, found " + name);
        _code.write(Operation::Population, {_store.type(name)});
        _code.write(Operation::Store, {addVariable(name, {})});
    }
    for (const auto* list : {&rule.constants, &rule.locals}) {
        for (const auto& local : *list) declare(local);
        for (const auto& local : *list) begin(local);
    }
    write(rule.body);
    write(*where.expression);
    _code.write(Operation::Return);
    return finished();
}

std::uint16_t CodeCompiler::addVariable(const std::string& name, StaticType type, const ExpressType* declared) {
    _variables.push_back({upperCase(name), _code.newLocal(), nullptr, type, declared});
    return _variables.back().place;
}

const CodeCompiler::Variable* CodeCompiler::variable(const std::string& name) const {
    const auto found = std::ranges::find(_variables.rbegin(), _variables.rend(), upperCase(name), &Variable::name);
    return found == _variables.rend() ? nullptr : &*found;
}

void CodeCompiler::declare(const express::ExpressVariable& variable) {
    addVariable(variable.name, {&variable.type, nullptr}, &variable.type);
}

void CodeCompiler::begin(const express::ExpressVariable& variable) {
    // An ARRAY has its places from the beginning.
    const bool hasPlaces =
        variable.type.kind == ExpressType::Kind::Array && (variable.type.upper != -1 || variable.type.upperExpression);
    if (!variable.value && !hasPlaces) return;
    variable.value ? write(*variable.value) : _code.write(Operation::EmptyAggregate);
    writeAs(variable.type);
    _code.write(Operation::Store, {this->variable(variable.name)->place});
}

/// What stands on the stack becomes an aggregate of the kind declared.
void CodeCompiler::writeAs(const ExpressType& type) {
    const auto writeBound = [this](const ExpressionPointer& expression, int literal) {
        if (expression) return write(*expression);
        if (literal >= 0) return _code.write(Operation::Integer, {static_cast<std::uint16_t>(literal)});
        _code.write(Operation::WideInteger, {_store.integer(literal)});
    };
    switch (type.kind) {
    case ExpressType::Kind::List:
        return _code.write(Operation::AsList);
    case ExpressType::Kind::Set:
        return _code.write(Operation::AsSet);
    case ExpressType::Kind::Bag:
        return _code.write(Operation::AsBag);
    case ExpressType::Kind::Array:
        // Without bounds it keeps those of its value.
        if (type.upper == -1 && !type.upperExpression) return;
        writeBound(type.lowerExpression, type.lower);
        writeBound(type.upperExpression, type.upper);
        return _code.write(Operation::AsArray);
    default:
        return;
    }
}

void CodeCompiler::write(const std::vector<express::StatementPointer>& statements) {
    for (const auto& statement : statements) write(*statement);
}

void CodeCompiler::write(const Statement& statement) {
    switch (statement.kind) {
    case Kind::Null:
        return;
    case Kind::Assignment:
        return assign(*statement.first, [&] { write(*statement.second); });
    case Kind::Call:
        return writeCallStatement(statement);
    case Kind::If:
        return writeIf(statement);
    case Kind::Case:
        return writeCase(statement);
    case Kind::Repeat:
        return writeRepeat(statement);
    case Kind::Alias:
        return writeAlias(statement);
    case Kind::Compound:
        return write(statement.body);
    case Kind::Return:
        return writeReturn(statement);
    case Kind::Escape:
    case Kind::Skip:
        if (_loops.empty()) return _diagnostics.error(statement.line, "ESCAPE or SKIP stands outside REPEAT");
        return _code.jump(Operation::Jump, statement.kind == Kind::Skip ? _loops.back()->skip : _loops.back()->escape);
    }
}

template <class WriteValue>
void CodeCompiler::assign(const Expression& target, WriteValue writeValue) {
    std::vector<std::uint16_t> steps;
    const Expression* at = &target;
    std::vector<const Expression*> indexes;
    while (at->kind != ExpressionKind::Name || (variable(at->text) != nullptr && variable(at->text)->alias)) {
        if (at->kind == ExpressionKind::Name) {
            at = variable(at->text)->alias.get();
            continue;
        }
        const bool isIndex = at->kind == ExpressionKind::Index && at->operands.size() == 2;
        if (!isIndex && at->kind != ExpressionKind::Attribute && at->kind != ExpressionKind::Group) {
            return error(target, "expected a variable or a part of one before :=");
        }
        if (isIndex) indexes.push_back(at->operands[1].get());
        if (at->kind == ExpressionKind::Attribute) checkAttribute(*at, {});
        if (at->kind != ExpressionKind::Group) steps.push_back(isIndex ? rules::stepIndex : _store.attribute(at->text));
        at = at->operands[0].get();
    }
    const Variable* local = variable(at->text);
    if (local == nullptr) return error(target, "nothing that can be assigned to is named " + at->text);
    const Variable found = *local;
    for (auto index = indexes.rbegin(); index != indexes.rend(); ++index) write(**index);
    writeValue();
    if (steps.empty()) {
        if (found.declared != nullptr) writeAs(*found.declared);
        return _code.write(Operation::Store, {found.place});
    }
    std::ranges::reverse(steps);
    _code.write(Operation::StorePart, {found.place, static_cast<std::uint16_t>(steps.size())});
    _code.writeUnits(steps);
}

// A procedure gives what its VAR parameters are at the end, as a list.
void CodeCompiler::writeCallStatement(const Statement& statement) {
    const Expression& call = *statement.first;
    const std::string name = upperCase(call.text);
    if (name == "INSERT" || name == "REMOVE") {
        const std::size_t count = name == "INSERT" ? 3 : 2;
        if (call.operands.size() != count) {
            return _diagnostics.error(statement.line, name + " takes " + std::to_string(count) + " arguments");
        }
        return assign(*call.operands[0], [&] {
            for (const auto& operand : call.operands) write(*operand);
            const auto function = name == "INSERT" ? BuiltinFunction::Insert : BuiltinFunction::Remove;
            _code.write(Operation::Builtin, {static_cast<std::uint16_t>(function)});
        });
    }
    const auto* procedure = _names.function(name);
    if (procedure == nullptr || !procedure->isProcedure || procedure->parameters.size() != call.operands.size()) {
        return _diagnostics.error(statement.line, "there is no procedure " + call.text + " with " +
                                                      std::to_string(call.operands.size()) + " parameters");
    }
    for (const auto& operand : call.operands) write(*operand);
    _code.write(Operation::Call, {_store.text(name), static_cast<std::uint16_t>(call.operands.size())});
    const std::uint16_t results = _code.newLocal();
    _code.write(Operation::Store, {results});
    std::uint16_t position = 0;
    for (std::size_t i = 0; i < call.operands.size(); ++i) {
        if (!procedure->parameters[i].isVar) continue;
        ++position;
        assign(*call.operands[i], [&] {
            _code.write(Operation::Load, {results});
            _code.write(Operation::Integer, {position});
            _code.write(Operation::Index);
        });
    }
}

void CodeCompiler::writeIf(const Statement& statement) {
    Target otherwise, end;
    write(*statement.first);
    _code.jump(Operation::JumpUnlessTrue, otherwise);
    write(statement.body);
    if (!statement.otherwise.empty()) _code.jump(Operation::Jump, end);
    _code.place(otherwise);
    write(statement.otherwise);
    _code.place(end);
}

void CodeCompiler::writeCase(const Statement& statement) {
    const std::uint16_t selector = _code.newLocal();
    write(*statement.first);
    _code.write(Operation::Store, {selector});
    Target end;
    for (const auto& branch : statement.branches) {
        Target body, next;
        for (const auto& label : branch.labels) {
            Target other;
            _code.write(Operation::Load, {selector});
            write(*label);
            _code.write(Operation::Equal);
            _code.jump(Operation::JumpUnlessTrue, &label == &branch.labels.back() ? next : other);
            if (&label != &branch.labels.back()) _code.jump(Operation::Jump, body);
            _code.place(other);
        }
        _code.place(body);
        write(*branch.statement);
        _code.jump(Operation::Jump, end);
        _code.place(next);
    }
    write(statement.otherwise);
    _code.place(end);
}

void CodeCompiler::writeRepeat(const Statement& statement) {
    const bool isCounted = statement.first != nullptr;
    Loop loop;
    Target again;
    std::uint16_t control = 0, step = 0;
    if (isCounted) {
        write(*statement.first);
        write(*statement.second);
        const std::uint16_t limit = _code.newLocal();
        _code.write(Operation::Store, {limit});
        statement.third ? write(*statement.third) : _code.write(Operation::Integer, {1});
        step = _code.newLocal();
        _code.write(Operation::Store, {step});
        control = addVariable(statement.text, {});
        _code.write(Operation::Store, {control});
        _code.place(again);
        // (limit - control) * step is not negative as long as it goes on; with a step of 0 it would go on for ever.
        _code.write(Operation::Load, {limit});
        _code.write(Operation::Load, {control});
        _code.write(Operation::Subtract);
        _code.write(Operation::Load, {step});
        _code.write(Operation::Multiply);
        _code.write(Operation::Integer, {0});
        _code.write(Operation::GreaterOrEqual);
        _code.jump(Operation::JumpUnlessTrue, loop.escape);
    } else {
        _code.place(again);
    }
    if (statement.whileTrue) {
        write(*statement.whileTrue);
        _code.jump(Operation::JumpUnlessTrue, loop.escape);
    }
    _loops.push_back(&loop);
    write(statement.body);
    _loops.pop_back();
    _code.place(loop.skip);
    if (statement.untilTrue) {
        Target next;
        write(*statement.untilTrue);
        _code.jump(Operation::JumpUnlessTrue, next);
        _code.jump(Operation::Jump, loop.escape);
        _code.place(next);
    }
    if (isCounted) {
        _code.write(Operation::Load, {control});
        _code.write(Operation::Load, {step});
        _code.write(Operation::Add);
        _code.write(Operation::Store, {control});
        _variables.pop_back();
    }
    _code.jump(Operation::Jump, again);
    _code.place(loop.escape);
}

// What an ALIAS stands for is settled where it begins: its indexes are looked at once, and its variable is meant even
// where another of its name hides it.
void CodeCompiler::writeAlias(const Statement& statement) {
    const std::size_t outer = _variables.size();
    const ExpressionPointer alias = settled(statement.first);
    _variables.push_back({upperCase(statement.text), 0, alias});
    write(statement.body);
    _variables.resize(outer);
}

ExpressionPointer CodeCompiler::settled(const ExpressionPointer& expression) {
    Expression copy = *expression;
    if (copy.kind == ExpressionKind::Name) {
        const Variable* found = variable(copy.text);
        if (found == nullptr) error(copy, "nothing that can be assigned to is named " + copy.text);
        if (found == nullptr || found->alias) return found != nullptr ? found->alias : expression;
        Variable hidden = *found;
        copy.text = hidden.name = hiddenName();
        _variables.push_back(std::move(hidden));
        return std::make_shared<Expression>(std::move(copy));
    }
    if (copy.operands.empty()) return expression;
    copy.operands[0] = settled(copy.operands[0]);
    if (copy.kind == ExpressionKind::Index) {
        Expression index;
        index.kind = ExpressionKind::Name;
        index.line = copy.line;
        index.text = hiddenName();
        write(*copy.operands[1]);
        _code.write(Operation::Store, {addVariable(index.text, {})});
        copy.operands[1] = std::make_shared<Expression>(std::move(index));
    }
    return std::make_shared<Expression>(std::move(copy));
}

// No name of a source has a blank.
std::string CodeCompiler::hiddenName() const {
    return "HIDDEN " + std::to_string(_variables.size());
}

void CodeCompiler::writeReturn(const Statement& statement) {
    if (statement.first) {
        write(*statement.first);
    } else if (_function != nullptr && _function->isProcedure) {
        _code.write(Operation::EmptyAggregate);
        for (const auto& parameter : _function->parameters) {
            if (!parameter.isVar) continue;
            _code.write(Operation::Load, {variable(parameter.name)->place});
            _code.write(Operation::Append);
        }
    } else {
        _code.write(Operation::Indeterminate);
    }
    _code.write(Operation::Return);
}

} // namespace velkor::rulegen
