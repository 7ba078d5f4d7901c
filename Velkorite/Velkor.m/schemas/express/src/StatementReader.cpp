#include "StatementReader.h"

#include "ExpressionReader.h"

#include <algorithm>
#include <array>

namespace velkor::express {

namespace {

using Kind = Statement::Kind;

constexpr std::array<std::string_view, 11> blockEnds{"END",       "END_IF",       "END_CASE",      "END_REPEAT",
                                                     "END_ALIAS", "END_FUNCTION", "END_PROCEDURE", "END_RULE",
                                                     "ELSE",      "OTHERWISE",    "WHERE"};

class Reader {
public:
    explicit Reader(ExpressTokens& tokens) : _tokens(tokens) {}

    std::vector<StatementPointer> statements() {
        std::vector<StatementPointer> result;
        while (!_tokens.isAtEnd() && !isAtBlockEnd()) result.push_back(statement());
        return result;
    }

private:
    bool isAtBlockEnd() const {
        return std::ranges::any_of(blockEnds, [this](std::string_view word) { return _tokens.isWord(word); });
    }

    StatementPointer statement() {
        if (++_depth > deepestNesting) _tokens.fail("fewer statements within each other");
        Statement result;
        result.line = _tokens.token().line;
        read(result);
        --_depth;
        return std::make_shared<Statement>(std::move(result));
    }

    void read(Statement& result) {
        if (_tokens.takeSymbol(";")) return;
        if (_tokens.takeWord("IF")) return readIf(result);
        if (_tokens.takeWord("CASE")) return readCase(result);
        if (_tokens.takeWord("REPEAT")) return readRepeat(result);
        if (_tokens.takeWord("ALIAS")) return readAlias(result);
        if (_tokens.takeWord("RETURN")) return readReturn(result);
        if (_tokens.takeWord("BEGIN")) {
            result.kind = Kind::Compound;
            result.body = statements();
            return end("END");
        }
        if (_tokens.takeWord("ESCAPE") || _tokens.isWord("SKIP")) {
            result.kind = _tokens.takeWord("SKIP") ? Kind::Skip : Kind::Escape;
            return _tokens.expectSymbol(";");
        }
        readAssignmentOrCall(result);
    }

    void end(std::string_view word) {
        _tokens.expectWord(word);
        _tokens.expectSymbol(";");
    }

    void readIf(Statement& result) {
        result.kind = Kind::If;
        result.first = readExpression(_tokens);
        _tokens.expectWord("THEN");
        result.body = statements();
        if (_tokens.takeWord("ELSE")) result.otherwise = statements();
        end("END_IF");
    }

    void readCase(Statement& result) {
        result.kind = Kind::Case;
        result.first = readExpression(_tokens);
        _tokens.expectWord("OF");
        while (!_tokens.isAtEnd() && !_tokens.isWord("OTHERWISE") && !_tokens.isWord("END_CASE")) {
            Statement::Branch branch;
            do branch.labels.push_back(readExpression(_tokens));
            while (_tokens.takeSymbol(","));
            _tokens.expectSymbol(":");
            branch.statement = statement();
            result.branches.push_back(std::move(branch));
        }
        if (_tokens.takeWord("OTHERWISE")) {
            _tokens.expectSymbol(":");
            result.otherwise.push_back(statement());
        }
        end("END_CASE");
    }

    void readRepeat(Statement& result) {
        result.kind = Kind::Repeat;
        if (_tokens.token().kind == ExpressTokenKind::Word && !_tokens.isWord("WHILE") && !_tokens.isWord("UNTIL")) {
            result.text = _tokens.identifier("a variable");
            _tokens.expectSymbol(":=");
            result.first = readExpression(_tokens);
            _tokens.expectWord("TO");
            result.second = readExpression(_tokens);
            if (_tokens.takeWord("BY")) result.third = readExpression(_tokens);
        }
        if (_tokens.takeWord("WHILE")) result.whileTrue = readExpression(_tokens);
        if (_tokens.takeWord("UNTIL")) result.untilTrue = readExpression(_tokens);
        _tokens.expectSymbol(";");
        result.body = statements();
        end("END_REPEAT");
    }

    void readAlias(Statement& result) {
        result.kind = Kind::Alias;
        result.text = _tokens.identifier("a variable");
        _tokens.expectWord("FOR");
        result.first = readQualifiedName(_tokens);
        _tokens.expectSymbol(";");
        result.body = statements();
        end("END_ALIAS");
    }

    void readReturn(Statement& result) {
        result.kind = Kind::Return;
        if (!_tokens.isSymbol(";")) result.first = readExpression(_tokens);
        _tokens.expectSymbol(";");
    }

    void readAssignmentOrCall(Statement& result) {
        if (_tokens.token().kind != ExpressTokenKind::Word) return _tokens.fail("a statement");
        const ExpressToken first = _tokens.token();
        ExpressionPointer target = readExpression(_tokens);
        result.first = target;
        if (_tokens.takeSymbol(":=")) {
            result.kind = Kind::Assignment;
            result.second = readExpression(_tokens);
        } else if (target->kind == Expression::Kind::Call || target->kind == Expression::Kind::Name) {
            result.kind = Kind::Call;
        } else {
            return _tokens.failAt(first, "a statement");
        }
        _tokens.expectSymbol(";");
    }

    ExpressTokens& _tokens;
    int _depth = 0;
};

} // namespace

std::vector<StatementPointer> readStatements(ExpressTokens& tokens) {
    return Reader(tokens).statements();
}

} // namespace velkor::express
