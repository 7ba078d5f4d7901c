#include "ExpressionReader.h"

#include <algorithm>
#include <array>
#include <optional>

namespace velkor::express {

namespace {

using Kind = Expression::Kind;

constexpr int deepestTree = 2000;

struct Spelling {
    std::string_view text;
    Operator operation;
};

constexpr std::array<Spelling, 6> multiplications{{{"*", Operator::Multiply},
                                                   {"/", Operator::Divide},
                                                   {"DIV", Operator::IntegerDivide},
                                                   {"MOD", Operator::Modulo},
                                                   {"AND", Operator::And},
                                                   {"||", Operator::Combine}}};
constexpr std::array<Spelling, 4> additions{
    {{"+", Operator::Add}, {"-", Operator::Subtract}, {"OR", Operator::Or}, {"XOR", Operator::Xor}}};
constexpr std::array<Spelling, 10> relations{{{"=", Operator::Equal},
                                              {"<>", Operator::NotEqual},
                                              {"<", Operator::Less},
                                              {"<=", Operator::LessOrEqual},
                                              {">", Operator::Greater},
                                              {">=", Operator::GreaterOrEqual},
                                              {":=:", Operator::InstanceEqual},
                                              {":<>:", Operator::InstanceNotEqual},
                                              {"IN", Operator::In},
                                              {"LIKE", Operator::Like}}};
constexpr std::array<Spelling, 3> signs{{{"+", Operator::Plus}, {"-", Operator::Minus}, {"NOT", Operator::Not}}};

/// A string literal without its quotes; of the encoded form the characters that its digits give are left as digits.
std::string content(std::string_view literal) {
    std::string result;
    for (std::size_t i = 1; i + 1 < literal.size(); ++i) {
        result += literal[i];
        if (literal[i] == literal.front()) ++i;
    }
    return result;
}

class Reader {
public:
    explicit Reader(ExpressTokens& tokens) : _tokens(tokens) {}

    ExpressionPointer expression() {
        if (++_depth > deepestNesting) _tokens.fail("fewer expressions within each other");
        ExpressionPointer result = sum();
        if (const auto operation = take(relations)) result = infix(*operation, std::move(result), sum());
        --_depth;
        return result;
    }

    ExpressionPointer qualified(ExpressionPointer result) {
        for (;;) {
            const int line = _tokens.token().line;
            if (_tokens.takeSymbol(".")) {
                result = make(Kind::Attribute, line, _tokens.identifier("the name of an attribute"), {result});
            } else if (_tokens.takeSymbol("\\")) {
                result = make(Kind::Group, line, _tokens.identifier("the name of an entity"), {result});
            } else if (_tokens.takeSymbol("[")) {
                std::vector<ExpressionPointer> operands{result, sum()};
                if (_tokens.takeSymbol(":")) operands.push_back(sum());
                _tokens.expectSymbol("]");
                result = make(Kind::Index, line, {}, std::move(operands));
            } else {
                return result;
            }
        }
    }

    ExpressionPointer name() {
        const int line = _tokens.token().line;
        if (_tokens.takeWord("SELF")) return make(Kind::Self, line);
        return make(Kind::Name, line, _tokens.identifier("an expression"));
    }

private:
    ExpressionPointer make(Kind kind, int line, std::string text = {}, std::vector<ExpressionPointer> operands = {},
                           Operator operation = Operator::Plus) {
        Expression result;
        result.kind = kind;
        result.line = line;
        result.text = std::move(text);
        result.operands = std::move(operands);
        result.operation = operation;
        return finished(std::move(result));
    }

    // Chains of operators and qualifiers are read without recursion; who walks their trees recurses.
    ExpressionPointer finished(Expression result) {
        for (const auto* list : {&result.operands, &result.repetitions}) {
            for (const ExpressionPointer& operand : *list) {
                if (operand) result.depth = std::max(result.depth, operand->depth + 1);
            }
        }
        if (result.depth > deepestTree) _tokens.fail("a shorter expression");
        return std::make_shared<Expression>(std::move(result));
    }

    ExpressionPointer infix(Operator operation, ExpressionPointer left, ExpressionPointer right) {
        const int line = left->line;
        return make(Kind::Infix, line, {}, {std::move(left), std::move(right)}, operation);
    }

    template <std::size_t count>
    std::optional<Operator> take(const std::array<Spelling, count>& spellings) {
        for (const Spelling& spelling : spellings) {
            if (_tokens.takeSymbol(spelling.text) || _tokens.takeWord(spelling.text)) return spelling.operation;
        }
        return std::nullopt;
    }

    ExpressionPointer sum() {
        if (++_depth > deepestNesting) _tokens.fail("fewer expressions within each other");
        ExpressionPointer result = product();
        while (const auto operation = take(additions)) result = infix(*operation, std::move(result), product());
        --_depth;
        return result;
    }

    ExpressionPointer product() {
        ExpressionPointer result = power();
        while (const auto operation = take(multiplications)) result = infix(*operation, std::move(result), power());
        return result;
    }

    ExpressionPointer power() {
        ExpressionPointer result = simple();
        if (_tokens.takeSymbol("**")) result = infix(Operator::Power, std::move(result), simple());
        return result;
    }

    ExpressionPointer simple() {
        const int line = _tokens.token().line;
        if (const auto operation = take(signs)) return make(Kind::Unary, line, {}, {operand()}, *operation);
        return operand();
    }

    // What an operator takes: one sign at most stands before it.
    ExpressionPointer operand() {
        if (_tokens.takeSymbol("(")) {
            ExpressionPointer result = expression();
            _tokens.expectSymbol(")");
            return qualified(std::move(result));
        }
        return primary();
    }

    ExpressionPointer primary() {
        const ExpressToken token = _tokens.token();
        if (token.kind == ExpressTokenKind::Word) return word();
        if (token.isSymbol("[")) return aggregate();
        if (token.isSymbol("{")) return interval();
        if (_tokens.takeSymbol("?")) return make(Kind::Indeterminate, token.line);
        const auto literal = [&](Kind kind, std::string text) {
            _tokens.advance();
            return qualified(make(kind, token.line, std::move(text)));
        };
        if (token.kind == ExpressTokenKind::Integer) return literal(Kind::Integer, std::string(token.text));
        if (token.kind == ExpressTokenKind::Real) return literal(Kind::Real, std::string(token.text));
        if (token.kind == ExpressTokenKind::Text) return literal(Kind::String, content(token.text));
        if (token.kind == ExpressTokenKind::Binary) return literal(Kind::Binary, std::string(token.text.substr(1)));
        _tokens.fail("an expression");
        return make(Kind::Indeterminate, token.line);
    }

    ExpressionPointer word() {
        if (_tokens.isWord("QUERY")) return query();
        ExpressionPointer result = name();
        if (result->kind == Kind::Name && _tokens.isSymbol("(")) {
            result = make(Kind::Call, result->line, result->text, arguments());
        }
        return qualified(std::move(result));
    }

    std::vector<ExpressionPointer> arguments() {
        std::vector<ExpressionPointer> result;
        _tokens.expectSymbol("(");
        if (_tokens.takeSymbol(")")) return result;
        do result.push_back(expression());
        while (_tokens.takeSymbol(","));
        _tokens.expectSymbol(")");
        return result;
    }

    ExpressionPointer query() {
        const int line = _tokens.token().line;
        _tokens.advance();
        _tokens.expectSymbol("(");
        std::string variable = _tokens.identifier("a variable");
        _tokens.expectSymbol("<*");
        ExpressionPointer source = sum();
        _tokens.expectSymbol("|");
        ExpressionPointer condition = expression();
        _tokens.expectSymbol(")");
        return make(Kind::Query, line, std::move(variable), {std::move(source), std::move(condition)});
    }

    ExpressionPointer aggregate() {
        Expression result;
        result.kind = Kind::Aggregate;
        result.line = _tokens.token().line;
        _tokens.expectSymbol("[");
        if (!_tokens.takeSymbol("]")) {
            do {
                result.operands.push_back(expression());
                result.repetitions.push_back(_tokens.takeSymbol(":") ? sum() : nullptr);
            } while (_tokens.takeSymbol(","));
            _tokens.expectSymbol("]");
        }
        return qualified(finished(std::move(result)));
    }

    bool isBelowInclusive() {
        if (_tokens.takeSymbol("<=")) return true;
        _tokens.expectSymbol("<");
        return false;
    }

    ExpressionPointer interval() {
        Expression result;
        result.kind = Kind::Interval;
        result.line = _tokens.token().line;
        _tokens.expectSymbol("{");
        result.operands.push_back(sum());
        result.isLowInclusive = isBelowInclusive();
        result.operands.push_back(sum());
        result.isHighInclusive = isBelowInclusive();
        result.operands.push_back(sum());
        _tokens.expectSymbol("}");
        return finished(std::move(result));
    }

    ExpressTokens& _tokens;
    int _depth = 0;
};

} // namespace

ExpressionPointer readExpression(ExpressTokens& tokens) {
    return Reader(tokens).expression();
}

ExpressionPointer readQualifiedName(ExpressTokens& tokens) {
    Reader reader(tokens);
    return reader.qualified(reader.name());
}

} // namespace velkor::express
