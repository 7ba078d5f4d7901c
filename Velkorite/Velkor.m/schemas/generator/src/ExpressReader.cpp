#include "ExpressReader.h"

#include "ExpressLexer.h"

#include <charconv>
#include <optional>

namespace velkor::dictgen {

namespace {

using Kind = ExpressType::Kind;

// Deeper than any schema nests; keeps a hostile source off the end of the stack.
constexpr int deepestAggregate = 32;

/// A recursive-descent reader. The first error sticks and turns every later token into the end, so
/// that callers unwind without asking.
class Reader {
public:
    Reader(std::string_view text, const std::string& name, ExpressSchema& schema)
        : _lexer(text), _name(name), _schema(schema) {
        advance();
    }

    tl::expected<void, std::string> read() {
        while (!_error && _token.kind != ExpressTokenKind::End) readDeclaration();
        if (_error) return tl::unexpected(*_error);
        return {};
    }

private:
    void advance() {
        _token = _error ? ExpressToken{} : _lexer.next();
        if (_token.kind == ExpressTokenKind::Bad) fail("an end of the literal or remark");
    }

    void fail(std::string_view expected) {
        if (_error) return;
        _error =
            _name + ":" + std::to_string(_token.line) + ": expected " + std::string(expected) + ", found " +
            (_token.kind == ExpressTokenKind::End ? "the end" : '"' + std::string(_token.text.substr(0, 40)) + '"');
        _token = {};
    }

    bool take(std::string_view word) {
        if (!_token.isWord(word)) return false;
        advance();
        return true;
    }
    bool take(char symbol) {
        if (!_token.isSymbol(symbol)) return false;
        advance();
        return true;
    }
    void expect(std::string_view word) {
        if (!take(word)) fail(word);
    }
    void expect(char symbol) {
        if (!take(symbol)) fail('"' + std::string(1, symbol) + '"');
    }
    std::string identifier(std::string_view expected) {
        std::string text(_token.text);
        _token.kind == ExpressTokenKind::Word ? advance() : fail(expected);
        return text;
    }
    std::vector<std::string> identifiers(std::string_view expected) {
        std::vector<std::string> names;
        expect('(');
        do names.push_back(identifier(expected));
        while (take(','));
        expect(')');
        return names;
    }

    void skipStatement() {
        while (!_error && _token.kind != ExpressTokenKind::End && !_token.isSymbol(';')) advance();
        expect(';');
    }
    void skipTo(std::string_view word) {
        while (!_error && _token.kind != ExpressTokenKind::End && !_token.isWord(word)) advance();
        expect(word);
        expect(';');
    }

    void readDeclaration() {
        if (take("TYPE")) return readType();
        if (take("ENTITY")) return readEntity();
        for (const auto& [begin, end] : {std::pair("FUNCTION", "END_FUNCTION"),
                                         {"PROCEDURE", "END_PROCEDURE"},
                                         {"RULE", "END_RULE"},
                                         {"CONSTANT", "END_CONSTANT"}}) {
            if (take(begin)) return skipTo(end);
        }
        if (_token.isWord("SCHEMA") || _token.isWord("END_SCHEMA") || _token.isWord("USE") ||
            _token.isWord("REFERENCE")) {
            return skipStatement();
        }
        fail("a declaration");
    }

    void readType() {
        ExpressDefinedType type;
        type.name = identifier("the name of a type");
        expect('=');
        type.underlying = readUnderlying();
        expect(';');
        skipTo("END_TYPE");
        _schema.types.push_back(std::move(type));
    }

    ExpressType readUnderlying() {
        take("EXTENSIBLE");
        take("GENERIC_ENTITY");
        ExpressType type;
        type.line = _token.line;
        if (take("ENUMERATION")) {
            expect("OF");
            type.kind = Kind::Enumeration;
            type.names = identifiers("an enumerator");
        } else if (take("SELECT")) {
            type.kind = Kind::Select;
            type.names = identifiers("the name of a type or entity");
        } else {
            type = readUse(0);
        }
        return type;
    }

    ExpressType readUse(int depth) {
        ExpressType type;
        type.line = _token.line;
        if (depth > deepestAggregate) fail("fewer nested aggregates");
        for (const auto& [word, kind] : {std::pair("LIST", Kind::List), {"SET", Kind::Set}, {"ARRAY", Kind::Array}}) {
            if (!take(word)) continue;
            type.kind = kind;
            readAggregate(type, depth);
            return type;
        }
        // A dictionary has no NUMBER: it holds one as REAL.
        for (const auto& [word, text] : {std::pair("REAL", "RealType(8)"),
                                         {"NUMBER", "RealType(8)"},
                                         {"INTEGER", "IntegerType"},
                                         {"BOOLEAN", "BooleanType"},
                                         {"LOGICAL", "LogicalType"}}) {
            if (!take(word)) continue;
            type.text = text;
            if (_token.isSymbol('(')) readWidth();
            return type;
        }
        for (const auto& [word, text] : {std::pair("STRING", "StringType"), {"BINARY", "BinaryType"}}) {
            if (!take(word)) continue;
            type.text = text + (_token.isSymbol('(') ? readWidth() : std::string());
            return type;
        }
        type.kind = Kind::Named;
        type.text = identifier("a type");
        return type;
    }

    void readAggregate(ExpressType& type, int depth) {
        if (take('[')) {
            if (_token.isSymbol('?')) fail("a lower bound");
            type.lower = readBound();
            expect(':');
            type.upper = readBound();
            checkBounds(type);
            expect(']');
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
            fail("bounds that hold something");
        }
    }

    int integer() {
        int value = 0;
        const auto end = _token.text.data() + _token.text.size();
        if (_token.kind != ExpressTokenKind::Integer ||
            std::from_chars(_token.text.data(), end, value).ec != std::errc()) {
            fail("an integer");
        }
        advance();
        return value;
    }

    /// "?" is -1; a literal is its value; any other expression, up to ":" or "]", is 0.
    int readBound() {
        if (take('?')) return -1;
        const bool isNegative = take('-');
        int value = 0;
        const bool startsWithLiteral = _token.kind == ExpressTokenKind::Integer;
        if (startsWithLiteral) value = integer();
        if (startsWithLiteral && (_token.isSymbol(':') || _token.isSymbol(']'))) return isNegative ? -value : value;
        for (int depth = 0; !_error && _token.kind != ExpressTokenKind::End; advance()) {
            if (depth == 0 && (_token.isSymbol(':') || _token.isSymbol(']'))) break;
            if (_token.isSymbol('(') || _token.isSymbol('[')) ++depth;
            if (_token.isSymbol(')') || _token.isSymbol(']')) --depth;
        }
        return 0;
    }

    std::string readWidth() {
        expect('(');
        const int width = integer();
        if (width == 0) fail("a width above 0");
        expect(')');
        std::string text = '(' + std::to_string(width);
        if (take("FIXED")) text += ",FIXED";
        return text + ")";
    }

    void readEntity() {
        ExpressEntity entity;
        entity.line = _token.line;
        entity.name = identifier("the name of an entity");
        readSubsuper(entity);
        expect(';');
        while (_token.kind == ExpressTokenKind::Word && !isSectionStart()) readExplicitAttributes(entity);
        while (!_error && !take("END_ENTITY")) readSection(entity);
        expect(';');
        _schema.entities.push_back(std::move(entity));
    }

    void readSubsuper(ExpressEntity& entity) {
        entity.isAbstract = take("ABSTRACT");
        if (take("SUPERTYPE") && take("OF")) skipParentheses();
        if (!take("SUBTYPE")) return;
        expect("OF");
        const ExpressToken at = _token;
        auto supertypes = identifiers("the name of an entity");
        if (_error) return;
        entity.supertype = std::move(supertypes.front());
        if (supertypes.size() == 1) return;
        _token = at;
        fail("one supertype of " + entity.name);
    }

    void skipParentheses() {
        int depth = 0;
        do {
            if (_token.isSymbol('(')) ++depth;
            if (_token.isSymbol(')')) --depth;
            advance();
        } while (!_error && depth > 0 && _token.kind != ExpressTokenKind::End);
    }

    bool isSectionStart() const {
        return _token.isWord("DERIVE") || _token.isWord("INVERSE") || _token.isWord("UNIQUE") ||
               _token.isWord("WHERE") || _token.isWord("END_ENTITY");
    }

    void readSection(ExpressEntity& entity) {
        if (take("DERIVE")) {
            while (!_error && !isSectionStart()) readDerivedAttribute(entity);
        } else if (take("UNIQUE")) {
            while (!_error && !isSectionStart()) readUniquenessRule(entity);
        } else if (take("INVERSE") || take("WHERE")) {
            while (!_error && !isSectionStart()) skipStatement();
        } else {
            fail("END_ENTITY");
        }
    }

    /// A name, or SELF\Supertype.Name, of which the last counts.
    std::string attributeName() {
        std::string name = identifier("the name of an attribute");
        while (take('\\') || take('.')) name = identifier("the name of an attribute");
        return name;
    }

    void readExplicitAttributes(ExpressEntity& entity) {
        std::vector<std::string> names;
        do names.push_back(attributeName());
        while (take(','));
        expect(':');
        const bool isOptional = take("OPTIONAL");
        const ExpressType type = readUse(0);
        expect(';');
        for (std::string& name : names) entity.explicitAttributes.push_back({std::move(name), isOptional, type});
    }

    void readDerivedAttribute(ExpressEntity& entity) {
        ExpressAttribute attribute;
        attribute.name = attributeName();
        expect(':');
        attribute.type = readUse(0);
        expect(':');
        expect('=');
        skipStatement();
        entity.derivedAttributes.push_back(std::move(attribute));
    }

    void readUniquenessRule(ExpressEntity& entity) {
        ExpressUniquenessRule rule;
        rule.line = _token.line;
        rule.label = identifier("the label of a rule");
        expect(':');
        do rule.attributes.push_back(attributeName());
        while (take(','));
        expect(';');
        entity.uniquenessRules.push_back(std::move(rule));
    }

    ExpressLexer _lexer;
    const std::string& _name;
    ExpressSchema& _schema;
    ExpressToken _token;
    std::optional<std::string> _error;
};

} // namespace

tl::expected<void, std::string> readExpress(std::string_view text, const std::string& name, ExpressSchema& schema) {
    return Reader(text, name, schema).read();
}

} // namespace velkor::dictgen
