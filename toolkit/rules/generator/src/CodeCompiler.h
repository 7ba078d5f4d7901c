/// Compiles expressions and statements of a schema to the code of rules. Every name is resolved here: one that is
/// misspelt is an error with its line.
#pragma once

#include "CodeWriter.h"
#include "Diagnostics.h"
#include "SchemaNames.h"
#include "StoreBuilder.h"

#include <optional>
#include <string>
#include <vector>

namespace velkor::rulegen {

/// One piece of code: the rule, derived attribute or function that it is for gives SELF its meaning.
class CodeCompiler {
public:
    CodeCompiler(const SchemaNames& names, StoreBuilder& store, Diagnostics& diagnostics)
        : _names(names), _store(store), _diagnostics(diagnostics) {}

    /// SELF is an instance of the entity, whose attributes are known by their bare names; a value of the type.
    void setSelf(const express::ExpressEntity& entity) { _self = {nullptr, &entity}; }
    void setSelf(const express::ExpressType& type) { _self = {&type, nullptr}; }

    /// Code whose answer is the expression's value; `type` is that of a derived attribute.
    std::uint32_t expressionCode(const express::Expression& expression, const express::ExpressType* type = nullptr);
    std::uint32_t functionCode(const express::ExpressFunction& function);
    /// The statements of the rule, then one of its WHERE clauses.
    std::uint32_t globalRuleCode(const express::ExpressGlobalRule& rule, const express::ExpressWhereRule& where);

private:
    using Expression = express::Expression;
    using Statement = express::Statement;
    using Operation = rules::Operation;
    using Target = CodeWriter::Target;

    /// What a name of the function or the query stands for: a local place, or what an ALIAS is for.
    struct Variable {
        std::string name;
        std::uint16_t place = 0;
        express::ExpressionPointer alias = nullptr;
        StaticType type = {};
        /// Null when it is not declared with a type.
        const express::ExpressType* declared = nullptr;
    };
    struct Loop {
        Target escape;
        Target skip;
    };

    std::uint32_t finished();

    // Expressions.
    void write(const Expression& expression);
    void writeLiteral(const Expression& expression);
    void writeString(const Expression& at, const std::string& text);
    void writeName(const Expression& expression);
    void writeEnumerator(const Expression& expression, const std::string& type, const std::string& name);
    void writeAttribute(const Expression& expression);
    void writeGroup(const Expression& expression);
    void writeCall(const Expression& expression);
    bool writeBuiltin(const Expression& expression);
    void writeConstructor(const Expression& expression);
    void writeUnary(const Expression& expression);
    void writeInfix(const Expression& expression);
    bool writeTypeTest(const Expression& expression);
    void writeShortCut(const Expression& expression);
    void writeInterval(const Expression& expression);
    void writeQuery(const Expression& expression, bool isCounted);
    void writeAggregate(const Expression& expression);
    void checkAttribute(const Expression& expression, const StaticType& owner);
    std::optional<std::string> constantText(const Expression& expression) const;
    StaticType typeOf(const Expression& expression) const;

    // Statements.
    void write(const std::vector<express::StatementPointer>& statements);
    void write(const Statement& statement);
    void writeCallStatement(const Statement& statement);
    void writeIf(const Statement& statement);
    void writeCase(const Statement& statement);
    void writeRepeat(const Statement& statement);
    void writeAlias(const Statement& statement);
    void writeReturn(const Statement& statement);
    express::ExpressionPointer settled(const express::ExpressionPointer& expression);
    std::string hiddenName() const;

    /// The value is what `writeValue` writes.
    template <class WriteValue>
    void assign(const Expression& target, WriteValue writeValue);
    void writeAs(const express::ExpressType& type);
    void declare(const express::ExpressVariable& variable);
    void begin(const express::ExpressVariable& variable);

    std::uint16_t addVariable(const std::string& name, StaticType type, const express::ExpressType* declared = nullptr);
    const Variable* variable(const std::string& name) const;
    void error(const Expression& at, const std::string& message) { _diagnostics.error(at.line, message); }

    const SchemaNames& _names;
    StoreBuilder& _store;
    Diagnostics& _diagnostics;
    StaticType _self;
    CodeWriter _code;
    // The innermost is the last.
    std::vector<Variable> _variables;
    std::vector<Loop*> _loops;
    const express::ExpressFunction* _function = nullptr;
    // Constants that are being written, so that one that needs itself ends.
    int _constantDepth = 0;
};

} // namespace velkor::rulegen
