#include "ExpressReader.h"

#include "ExpressionReader.h"
#include "ExpressTokens.h"
#include "StatementReader.h"

namespace velkor::express {

namespace {

using Kind = ExpressType::Kind;

// Deeper than any schema nests; keeps a hostile source off the end of the stack.
constexpr int deepestAggregate = 32;

class Reader {
public:
    Reader(std::string_view text, const std::string& name, ExpressSchema& schema)
        : _tokens(text, name), _schema(schema) {}

    tl::expected<void, std::string> read() {
        while (!_tokens.isAtEnd()) readDeclaration();
        if (_tokens.error()) return tl::unexpected(*_tokens.error());
        return {};
    }

private:
    bool take(std::string_view word) { return _tokens.takeWord(word); }
    bool takeSymbol(std::string_view symbol) { return _tokens.takeSymbol(symbol); }
    void expect(std::string_view word) { _tokens.expectWord(word); }
    void expectSymbol(std::string_view symbol) { _tokens.expectSymbol(symbol); }
    std::string identifier(std::string_view expected) { return _tokens.identifier(expected); }
    int line() const { return _tokens.token().line; }
    void end(std::string_view word) {
        expect(word);
        expectSymbol(";");
    }

    void skipStatement() {
        while (!_tokens.isAtEnd() && !_tokens.isSymbol(";")) _tokens.advance();
        expectSymbol(";");
    }

    void readDeclaration() {
        if (take("TYPE")) return readType();
        if (take("ENTITY")) return readEntity();
        if (take("FUNCTION")) return readFunction(false);
        if (take("PROCEDURE")) return readFunction(true);
        if (take("RULE")) return readGlobalRule();
        if (take("CONSTANT")) return readConstants(_schema.constants);
        if (take("SCHEMA")) {
            _schema.name = identifier("the name of the schema");
            return skipStatement();
        }
        if (_tokens.isWord("END_SCHEMA") || _tokens.isWord("USE") || _tokens.isWord("REFERENCE")) {
            return skipStatement();
        }
        _tokens.fail("a declaration");
    }

    void readType() {
        ExpressDefinedType type;
        type.name = identifier("the name of a type");
        expectSymbol("=");
        type.underlying = readUnderlying();
        expectSymbol(";");
        if (take("WHERE")) type.whereRules = readWhereRules("END_TYPE");
        end("END_TYPE");
        _schema.types.push_back(std::move(type));
    }

    ExpressType readUnderlying() {
        take("EXTENSIBLE");
        take("GENERIC_ENTITY");
        ExpressType type;
        type.line = line();
        if (take("ENUMERATION")) {
            expect("OF");
            type.kind = Kind::Enumeration;
            type.names = _tokens.identifiers("an enumerator");
        } else if (take("SELECT")) {
            type.kind = Kind::Select;
            type.names = _tokens.identifiers("the name of a type or entity");
        } else {
            type = readUse(0);
        }
        return type;
    }

    /// Of a parameter or a variable: what functions may be given besides.
    ExpressType readParameterType() {
        _isInFunction = true;
        ExpressType type = readUse(0);
        _isInFunction = false;
        return type;
    }

    ExpressType readUse(int depth) {
        ExpressType type;
        type.line = line();
        if (depth > deepestAggregate) _tokens.fail("fewer nested aggregates");
        for (const auto& [word, kind] : {std::pair("LIST", Kind::List), {"SET", Kind::Set}, {"ARRAY", Kind::Array}}) {
            if (!take(word)) continue;
            type.kind = kind;
            readAggregate(type, depth);
            return type;
        }
        if (_isInFunction && readGeneral(type, depth)) return type;
        type.isNumber = _tokens.isWord("NUMBER");
        // A dictionary has no NUMBER: it holds one as REAL.
        for (const auto& [word, text] : {std::pair("REAL", "RealType(8)"),
                                         {"NUMBER", "RealType(8)"},
                                         {"INTEGER", "IntegerType"},
                                         {"BOOLEAN", "BooleanType"},
                                         {"LOGICAL", "LogicalType"}}) {
            if (!take(word)) continue;
            type.text = text;
            if (_tokens.isSymbol("(")) readWidth();
            return type;
        }
        for (const auto& [word, text] : {std::pair("STRING", "StringType"), {"BINARY", "BinaryType"}}) {
            if (!take(word)) continue;
            type.text = text + (_tokens.isSymbol("(") ? readWidth() : std::string());
            return type;
        }
        type.kind = Kind::Named;
        type.text = identifier("a type");
        return type;
    }

    /// Whether it is a type that stands in functions only.
    bool readGeneral(ExpressType& type, int depth) {
        if (take("BAG")) {
            type.kind = Kind::Bag;
            readAggregate(type, depth);
        } else if (take("AGGREGATE")) {
            type.kind = Kind::Aggregate;
            readTypeLabel();
            readAggregate(type, depth);
        } else if (take("GENERIC") || take("GENERIC_ENTITY")) {
            type.kind = Kind::Generic;
            readTypeLabel();
        } else {
            return false;
        }
        return true;
    }
    void readTypeLabel() {
        if (takeSymbol(":")) identifier("the label of a type");
    }

    void readAggregate(ExpressType& type, int depth) {
        if (takeSymbol("[")) {
            if (_tokens.isSymbol("?")) _tokens.fail("a lower bound");
            type.lower = readBound(type.lowerExpression);
            expectSymbol(":");
            type.upper = readBound(type.upperExpression);
            checkBounds(type);
            expectSymbol("]");
        }
        expect("OF");
        for (bool more = true; more;) {
            const bool isOptional = take("OPTIONAL");
            const bool isUnique = take("UNIQUE");
            type.isOptional |= isOptional;
            type.isUnique |= isUnique;
            more = isOptional || isUnique;
        }
        type.element = std::make_shared<ExpressType>(readUse(depth + 1));
    }

    /// Only an array counts from below 0. An upper bound of 0 may stand for an expression.
    void checkBounds(const ExpressType& type) {
        const bool isLowerWrong = type.kind != Kind::Array && type.lower < 0;
        if (isLowerWrong || (type.upper != -1 && type.upper != 0 && type.upper < type.lower)) {
            _tokens.fail("bounds that hold something");
        }
    }

    /// "?" is -1; a literal is its value; any other expression is 0.
    int readBound(ExpressionPointer& expression) {
        if (takeSymbol("?")) return -1;
        const ExpressToken first = _tokens.token();
        if (first.kind == ExpressTokenKind::Integer) {
            ExpressTokens ahead = _tokens;
            const int value = ahead.integer();
            if (ahead.isSymbol(":") || ahead.isSymbol("]") || ahead.error()) {
                _tokens = std::move(ahead);
                return value;
            }
        }
        const ExpressionPointer bound = readExpression(_tokens);
        if (bound->kind == Expression::Kind::Unary && bound->operation == Operator::Minus &&
            bound->operands[0]->kind == Expression::Kind::Integer) {
            return -std::atoi(bound->operands[0]->text.c_str());
        }
        expression = bound;
        return 0;
    }

    std::string readWidth() {
        expectSymbol("(");
        const int width = _tokens.integer();
        if (width == 0) _tokens.fail("a width above 0");
        expectSymbol(")");
        std::string text = '(' + std::to_string(width);
        if (take("FIXED")) text += ",FIXED";
        return text + ")";
    }

    void readEntity() {
        ExpressEntity entity;
        entity.line = line();
        entity.name = identifier("the name of an entity");
        readSubsuper(entity);
        expectSymbol(";");
        while (_tokens.token().kind == ExpressTokenKind::Word && !isSectionStart()) readExplicitAttributes(entity);
        while (!_tokens.error() && !take("END_ENTITY")) readSection(entity);
        expectSymbol(";");
        _schema.entities.push_back(std::move(entity));
    }

    void readSubsuper(ExpressEntity& entity) {
        entity.isAbstract = take("ABSTRACT");
        if (take("SUPERTYPE") && take("OF")) skipParentheses();
        if (!take("SUBTYPE")) return;
        expect("OF");
        const ExpressToken at = _tokens.token();
        auto supertypes = _tokens.identifiers("the name of an entity");
        if (_tokens.error()) return;
        entity.supertype = std::move(supertypes.front());
        if (supertypes.size() > 1) _tokens.failAt(at, "one supertype of " + entity.name);
    }

    void skipParentheses() {
        int depth = 0;
        do {
            if (_tokens.isSymbol("(")) ++depth;
            if (_tokens.isSymbol(")")) --depth;
            _tokens.advance();
        } while (depth > 0 && !_tokens.isAtEnd());
    }

    bool isSectionStart() const {
        return _tokens.isWord("DERIVE") || _tokens.isWord("INVERSE") || _tokens.isWord("UNIQUE") ||
               _tokens.isWord("WHERE") || _tokens.isWord("END_ENTITY");
    }
    bool isInSection() const { return !_tokens.isAtEnd() && !isSectionStart(); }

    void readSection(ExpressEntity& entity) {
        if (take("DERIVE")) {
            while (isInSection()) readDerivedAttribute(entity);
        } else if (take("INVERSE")) {
            while (isInSection()) readInverseAttribute(entity);
        } else if (take("UNIQUE")) {
            while (isInSection()) readUniquenessRule(entity);
        } else if (take("WHERE")) {
            entity.whereRules = readWhereRules("END_ENTITY");
        } else {
            _tokens.fail("END_ENTITY");
        }
    }

    struct AttributeName {
        std::string name;
        bool isRedeclared = false;
    };

    /// A name, or SELF\Supertype.Name, of which the last counts.
    AttributeName attributeName() {
        AttributeName result{identifier("the name of an attribute")};
        while (takeSymbol("\\") || takeSymbol(".")) result = {identifier("the name of an attribute"), true};
        return result;
    }

    void readExplicitAttributes(ExpressEntity& entity) {
        const int at = line();
        std::vector<AttributeName> names;
        do names.push_back(attributeName());
        while (takeSymbol(","));
        expectSymbol(":");
        const bool isOptional = take("OPTIONAL");
        const ExpressType type = readUse(0);
        expectSymbol(";");
        for (AttributeName& name : names) {
            entity.explicitAttributes.push_back(
                {std::move(name.name), isOptional, type, at, nullptr, name.isRedeclared});
        }
    }

    void readDerivedAttribute(ExpressEntity& entity) {
        ExpressAttribute attribute;
        attribute.line = line();
        AttributeName name = attributeName();
        attribute.name = std::move(name.name);
        attribute.isRedeclared = name.isRedeclared;
        expectSymbol(":");
        attribute.type = readUse(0);
        expectSymbol(":=");
        attribute.expression = readExpression(_tokens);
        expectSymbol(";");
        entity.derivedAttributes.push_back(std::move(attribute));
    }

    void readInverseAttribute(ExpressEntity& entity) {
        ExpressInverseAttribute attribute;
        attribute.line = line();
        attribute.name = attributeName().name;
        expectSymbol(":");
        attribute.isBag = _tokens.isWord("BAG");
        if (take("SET") || take("BAG")) {
            attribute.isAggregate = true;
            attribute.lower = 0;
            attribute.upper = -1;
            ExpressionPointer ignored;
            if (takeSymbol("[")) {
                attribute.lower = readBound(ignored);
                expectSymbol(":");
                attribute.upper = readBound(ignored);
                expectSymbol("]");
            }
            if (ignored) _tokens.fail("bounds that are numbers");
            expect("OF");
        }
        attribute.user = identifier("the name of an entity");
        expect("FOR");
        attribute.attribute = attributeName().name;
        expectSymbol(";");
        entity.inverseAttributes.push_back(std::move(attribute));
    }

    void readUniquenessRule(ExpressEntity& entity) {
        ExpressUniquenessRule rule;
        rule.line = line();
        rule.label = identifier("the label of a rule");
        expectSymbol(":");
        do rule.attributes.push_back(attributeName().name);
        while (takeSymbol(","));
        expectSymbol(";");
        entity.uniquenessRules.push_back(std::move(rule));
    }

    std::vector<ExpressWhereRule> readWhereRules(std::string_view endWord) {
        std::vector<ExpressWhereRule> rules;
        while (!_tokens.isAtEnd() && !_tokens.isWord(endWord) && !(endWord == "END_ENTITY" && isSectionStart())) {
            ExpressWhereRule rule;
            rule.line = line();
            ExpressTokens ahead = _tokens;
            ahead.advance();
            if (_tokens.token().kind == ExpressTokenKind::Word && ahead.takeSymbol(":")) {
                rule.label = _tokens.token().text;
                _tokens = std::move(ahead);
            }
            const char* const begin = _tokens.token().text.data();
            rule.expression = readExpression(_tokens);
            rule.text = _tokens.textFrom(begin);
            expectSymbol(";");
            rules.push_back(std::move(rule));
        }
        return rules;
    }

    void readConstants(std::vector<ExpressVariable>& constants) {
        while (!_tokens.isAtEnd() && !_tokens.isWord("END_CONSTANT")) readVariables(constants);
        end("END_CONSTANT");
    }

    void readVariables(std::vector<ExpressVariable>& variables) {
        const int at = line();
        std::vector<std::string> names;
        do names.push_back(identifier("a variable"));
        while (takeSymbol(","));
        expectSymbol(":");
        const ExpressType type = readParameterType();
        const ExpressionPointer value = takeSymbol(":=") ? readExpression(_tokens) : nullptr;
        expectSymbol(";");
        for (std::string& name : names) variables.push_back({std::move(name), type, at, value});
    }

    void readParameters(ExpressFunction& function) {
        if (!takeSymbol("(")) return;
        do {
            const bool isVar = take("VAR");
            const int at = line();
            std::vector<std::string> names;
            do names.push_back(identifier("a parameter"));
            while (takeSymbol(","));
            expectSymbol(":");
            const ExpressType type = readParameterType();
            for (std::string& name : names) {
                function.parameters.push_back({std::move(name), type, at, nullptr, isVar});
            }
        } while (takeSymbol(";"));
        expectSymbol(")");
    }

    template <class Block>
    void readBlock(Block& block) {
        if (take("CONSTANT")) readConstants(block.constants);
        if (take("LOCAL")) {
            while (!_tokens.isAtEnd() && !_tokens.isWord("END_LOCAL")) readVariables(block.locals);
            end("END_LOCAL");
        }
        block.body = readStatements(_tokens);
    }

    void readFunction(bool isProcedure) {
        ExpressFunction function;
        function.line = line();
        function.isProcedure = isProcedure;
        function.name = identifier("the name of a function");
        readParameters(function);
        if (!isProcedure) {
            expectSymbol(":");
            function.result = readParameterType();
        }
        expectSymbol(";");
        readBlock(function);
        end(isProcedure ? "END_PROCEDURE" : "END_FUNCTION");
        _schema.functions.push_back(std::move(function));
    }

    void readGlobalRule() {
        ExpressGlobalRule rule;
        rule.line = line();
        rule.name = identifier("the name of a rule");
        expect("FOR");
        rule.entities = _tokens.identifiers("the name of an entity");
        expectSymbol(";");
        readBlock(rule);
        expect("WHERE");
        rule.whereRules = readWhereRules("END_RULE");
        end("END_RULE");
        _schema.globalRules.push_back(std::move(rule));
    }

    ExpressTokens _tokens;
    ExpressSchema& _schema;
    bool _isInFunction = false;
};

} // namespace

tl::expected<void, std::string> readExpress(std::string_view text, const std::string& name, ExpressSchema& schema) {
    return Reader(text, name, schema).read();
}

} // namespace velkor::express
