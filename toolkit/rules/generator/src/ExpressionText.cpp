#include "ExpressionText.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <optional>
#include <vector>

namespace velkor::rulegen {

namespace {

using express::Expression;
using express::Operator;
using Kind = Expression::Kind;

struct Sign {
    Operator operation;
    const char* text;
    /// The higher, the tighter it binds.
    int strength;
};

constexpr std::array<Sign, 24> signs{{
    {Operator::Plus, "+", 4},
    {Operator::Minus, "-", 4},
    {Operator::Not, "NOT ", 4},
    {Operator::Power, "**", 3},
    {Operator::Multiply, "*", 2},
    {Operator::Divide, "/", 2},
    {Operator::IntegerDivide, "DIV", 2},
    {Operator::Modulo, "MOD", 2},
    {Operator::And, "AND", 2},
    {Operator::Combine, "||", 2},
    {Operator::Add, "+", 1},
    {Operator::Subtract, "-", 1},
    {Operator::Or, "OR", 1},
    {Operator::Xor, "XOR", 1},
    {Operator::Equal, "=", 0},
    {Operator::NotEqual, "<>", 0},
    {Operator::Less, "<", 0},
    {Operator::LessOrEqual, "<=", 0},
    {Operator::Greater, ">", 0},
    {Operator::GreaterOrEqual, ">=", 0},
    {Operator::InstanceEqual, ":=:", 0},
    {Operator::InstanceNotEqual, ":<>:", 0},
    {Operator::In, "IN", 0},
    {Operator::Like, "LIKE", 0},
}};

const Sign& signOf(Operator operation) {
    return *std::ranges::find(signs, operation, &Sign::operation);
}

/// Of what is no infix expression.
constexpr int tightest = 5;

int strengthOf(const Expression& expression) {
    return expression.kind == Kind::Infix || expression.kind == Kind::Unary ? signOf(expression.operation).strength
                                                                            : tightest;
}

class Writer {
public:
    explicit Writer(const SpelledNames& names) : _names(names) {}

    std::string text(const Expression& expression) const {
        const auto& operands = expression.operands;
        switch (expression.kind) {
        case Kind::Integer:
        case Kind::Real:
            return plainNumber(expression.text);
        case Kind::String:
            return literal(expression);
        case Kind::Binary:
            return '%' + expression.text;
        case Kind::Indeterminate:
            return "?";
        case Kind::Self:
            return "the instance";
        case Kind::Name:
            return expression.text;
        case Kind::Attribute:
            return attribute(expression);
        case Kind::Group:
            return text(*operands[0]);
        case Kind::Index:
            return index(expression);
        case Kind::Call:
            return call(expression);
        case Kind::Unary:
            return signOf(expression.operation).text + part(*operands[0], tightest - 1);
        case Kind::Infix:
            return infix(expression);
        case Kind::Interval:
            return interval(expression);
        case Kind::Query:
            return "the " + expression.text + " of " + text(*operands[0]) + " with " + text(*operands[1]);
        case Kind::Aggregate:
            return '[' + list(operands) + ']';
        }
        return {};
    }

private:
    std::string part(const Expression& expression, int least) const {
        const std::string result = text(expression);
        return strengthOf(expression) < least ? '(' + result + ')' : result;
    }

    std::string list(const std::vector<express::ExpressionPointer>& members) const {
        std::string result;
        for (const auto& member : members) {
            if (!result.empty()) result += ", ";
            result += text(*member);
        }
        return result;
    }

    std::string literal(const Expression& expression) const {
        const std::string name = qualifiedName(expression, _names);
        return name.empty() ? '"' + expression.text + '"' : name;
    }

    std::string attribute(const Expression& expression) const {
        const Expression* owner = expression.operands[0].get();
        while (owner->kind == Kind::Group) owner = owner->operands[0].get();
        const bool isEnumerator = owner->kind == Kind::Name && isSchemaName(owner->text);
        if (owner->kind == Kind::Self || isEnumerator) return expression.text;
        return part(*owner, tightest) + '.' + expression.text;
    }

    std::string index(const Expression& expression) const {
        const auto& operands = expression.operands;
        std::string at = text(*operands[1]);
        if (operands.size() > 2) at += ':' + text(*operands[2]);
        if (operands[0]->kind == Kind::Self) return "member " + at;
        return part(*operands[0], tightest) + '[' + at + ']';
    }

    std::string call(const Expression& expression) const {
        const auto& operands = expression.operands;
        if (operands.size() == 1) {
            struct Words {
                const char* function;
                const char* words;
            };
            constexpr std::array<Words, 10> known{{{"SIZEOF", "the number of members of "},
                                                   {"HIINDEX", "the number of members of "},
                                                   {"ABS", "the absolute value of "},
                                                   {"BLENGTH", "the number of bits of "},
                                                   {"LENGTH", "the length of "},
                                                   {"TYPEOF", "the type of "},
                                                   {"SQRT", "the square root of "},
                                                   {"IFCASSOCIATEDSURFACE", "the surface of "},
                                                   {"VALUE", "the number in "},
                                                   {"ROLESOF", "the roles of "}}};
            const std::string function = upper(expression.text);
            for (const Words& words : known) {
                if (function == words.function) return words.words + text(*operands[0]);
            }
        }
        if (isCall(expression, "USEDIN") && operands.size() == 2) {
            const std::string role = text(*operands[1]);
            return "the users of " + text(*operands[0]) + (role == "\"\"" ? "" : " by " + role);
        }
        if (isCall(expression, "NVL") && operands.size() == 2)
            return text(*operands[0]) + " (" + text(*operands[1]) + " unless given)";
        return expression.text + '(' + list(operands) + ')';
    }

    std::string infix(const Expression& expression) const {
        const auto& operands = expression.operands;
        // Of a complex entity value, what has attributes of its own.
        if (expression.operation == Operator::Combine && operands[0]->kind != Kind::Self) return text(*operands[1]);
        if (expression.operation == Operator::Add && operands[1]->kind == Kind::String) {
            if (const auto whole = joinedTexts(expression)) return literal(*whole);
        }
        const Sign& sign = signOf(expression.operation);
        return part(*operands[0], sign.strength) + ' ' + sign.text + ' ' + part(*operands[1], sign.strength + 1);
    }

    /// 'A' + 'B' as 'AB'.
    static std::optional<Expression> joinedTexts(const Expression& expression) {
        if (expression.kind == Kind::String) return expression;
        if (expression.kind != Kind::Infix || expression.operation != Operator::Add) return std::nullopt;
        auto left = joinedTexts(*expression.operands[0]);
        const auto right = joinedTexts(*expression.operands[1]);
        if (!left || !right) return std::nullopt;
        left->text += right->text;
        return left;
    }

    std::string interval(const Expression& expression) const {
        const auto& operands = expression.operands;
        return '{' + text(*operands[0]) + (expression.isLowInclusive ? " <= " : " < ") + text(*operands[1]) +
               (expression.isHighInclusive ? " <= " : " < ") + text(*operands[2]) + '}';
    }

    const SpelledNames& _names;
};

} // namespace

std::string upper(std::string_view text) {
    std::string result(text);
    for (char& c : result) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    return result;
}

std::string phrase(const Expression& expression, const SpelledNames& names) {
    return Writer(names).text(expression);
}

std::string qualifiedName(const Expression& expression, const SpelledNames& names) {
    if (expression.kind != Kind::String || !isSchemaName(expression.text)) return {};
    const std::size_t dot = expression.text.find('.');
    if (dot == std::string::npos) return {};
    std::string result;
    std::string_view rest = std::string_view(expression.text).substr(dot + 1);
    while (!rest.empty()) {
        const std::string_view word = rest.substr(0, rest.find('.'));
        const auto spelled = names.find(upper(word));
        result += (result.empty() ? "" : ".") + (spelled == names.end() ? std::string(word) : spelled->second);
        rest.remove_prefix(std::min(rest.size(), word.size() + 1));
    }
    return result;
}

bool isCall(const Expression& expression, std::string_view function) {
    return expression.kind == Kind::Call && upper(expression.text) == function;
}

bool isSize(const Expression& expression) {
    return isCall(expression, "SIZEOF") || isCall(expression, "HIINDEX");
}

bool isSchemaName(std::string_view name) {
    return upper(name.substr(0, 3)) == "IFC";
}

std::string plainNumber(std::string_view number) {
    const std::size_t dot = number.find('.');
    if (dot == number.npos) return std::string(number);
    const std::size_t exponent = std::min(number.find_first_of("Ee"), number.size());
    std::size_t end = exponent;
    while (end > dot + 1 && number[end - 1] == '0') --end;
    if (end == dot + 1) end = dot;
    return std::string(number.substr(0, end)).append(number.substr(exponent));
}

} // namespace velkor::rulegen
