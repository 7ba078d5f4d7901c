#include "RuleWording.h"

#include "FunctionWords.h"
#include "Sentence.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace velkor::rulegen {

namespace {

using express::Expression;
using express::Operator;
using Kind = Expression::Kind;

/// What a comparison says with its right side behind it, and of a number of members.
struct Relation {
    Operator operation;
    Operator negation;
    /// The same with its sides exchanged.
    Operator mirrored;
    const char* predicate;
    const char* count;
};

constexpr std::array<Relation, 8> relations{{
    {Operator::Equal, Operator::NotEqual, Operator::Equal, "is ", "exactly "},
    {Operator::NotEqual, Operator::Equal, Operator::NotEqual, "is not ", "not exactly "},
    {Operator::Less, Operator::GreaterOrEqual, Operator::Greater, "is below ", "fewer than "},
    {Operator::LessOrEqual, Operator::Greater, Operator::GreaterOrEqual, "is at most ", "at most "},
    {Operator::Greater, Operator::LessOrEqual, Operator::Less, "is above ", "more than "},
    {Operator::GreaterOrEqual, Operator::Less, Operator::LessOrEqual, "is at least ", "at least "},
    {Operator::InstanceEqual, Operator::InstanceNotEqual, Operator::InstanceEqual, "is the same instance as ", ""},
    {Operator::InstanceNotEqual, Operator::InstanceEqual, Operator::InstanceNotEqual, "is another instance than ", ""},
}};

const Relation* relationOf(Operator operation) {
    const auto found = std::ranges::find(relations, operation, &Relation::operation);
    return found == relations.end() ? nullptr : &*found;
}

bool isNumber(const Expression& expression, std::string_view number) {
    return expression.kind == Kind::Integer && expression.text == number;
}

bool isLiteral(const Expression& expression) {
    return expression.kind == Kind::Integer || expression.kind == Kind::Real || expression.kind == Kind::String;
}

/// A comparison that is known to say that there is something, that there is nothing, or neither.
enum class Amount { Some, None, Other };

Amount amountOf(Operator operation, const Expression& number) {
    const bool isZero = isNumber(number, "0"), isOne = isNumber(number, "1");
    if (isZero && (operation == Operator::Greater || operation == Operator::NotEqual)) return Amount::Some;
    if (isOne && operation == Operator::GreaterOrEqual) return Amount::Some;
    const bool isNone = (isZero && (operation == Operator::Equal || operation == Operator::LessOrEqual)) ||
                        (isOne && operation == Operator::Less);
    return isNone ? Amount::None : Amount::Other;
}

std::string withArticle(const std::string& name) {
    const bool isVowel = !name.empty() && std::string_view("AEIOUaeiou").find(name.front()) != std::string_view::npos;
    return (isVowel ? "an " : "a ") + name;
}

Sentence simple(std::string subject, std::string predicate, std::string opposite, bool holds = true) {
    Sentence result;
    result.subject = std::move(subject);
    result.predicate = std::move(predicate);
    result.opposite = std::move(opposite);
    if (!holds) std::swap(result.predicate, result.opposite);
    return result;
}

class Wording {
public:
    explicit Wording(const SpelledNames& names) : _names(names) {}

    /// What is said by an expression that holds, or does not.
    Sentence sentence(const Expression& expression, bool holds) {
        switch (expression.kind) {
        case Kind::Unary:
            if (expression.operation == Operator::Not) return sentence(*expression.operands[0], !holds);
            break;
        case Kind::Infix:
            return infix(expression, holds);
        case Kind::Interval:
            return interval(expression, holds);
        case Kind::Call:
            return call(expression, holds);
        default:
            break;
        }
        return simple(text(expression), "is TRUE", "is not TRUE", holds);
    }

private:
    std::string text(const Expression& expression) const { return phrase(expression, _names); }

    /// The subject of a statement about a value.
    std::string subject(const Expression& expression) const {
        return expression.kind == Kind::Self ? "the value" : text(expression);
    }

    Sentence infix(const Expression& expression, bool holds) {
        const Expression &left = *expression.operands[0], &right = *expression.operands[1];
        switch (expression.operation) {
        case Operator::And:
        case Operator::Or: {
            std::vector<Sentence> parts{sentence(left, holds), sentence(right, holds)};
            return (expression.operation == Operator::And) == holds ? Sentence::all(std::move(parts))
                                                                    : Sentence::any(std::move(parts));
        }
        case Operator::Xor:
            return exclusive(expression, holds);
        case Operator::In:
            return membership(left, right, holds);
        case Operator::Like:
            return simple(subject(left), "matches " + text(right), "does not match " + text(right), holds);
        default:
            break;
        }
        const Relation* relation = relationOf(expression.operation);
        if (relation == nullptr) return simple(text(expression), "is TRUE", "is not TRUE", holds);
        if (!holds) relation = relationOf(relation->negation);
        if (isSize(left)) return size(left, *relation, right);
        if (isSize(right)) return size(right, *relationOf(relation->mirrored), left);
        const bool isMirrored =
            (isLiteral(left) && !isLiteral(right)) || (isAboutMember(right) && !isAboutMember(left));
        if (isMirrored) return comparison(right, *relationOf(relation->mirrored), left);
        return comparison(left, *relation, right);
    }

    /// Whether a value is, or is part of, the member that the innermost QUERY looks at.
    bool isAboutMember(const Expression& expression) const {
        const Expression* root = &expression;
        while (root->kind == Kind::Attribute || root->kind == Kind::Group || root->kind == Kind::Index ||
               isCall(*root, "TYPEOF"))
            root = root->operands[0].get();
        return root->kind == Kind::Name && root->text == _variable && !_variable.empty();
    }

    Sentence comparison(const Expression& left, const Relation& relation, const Expression& right) {
        const Operator operation = relation.operation;
        const bool isEqual = operation == Operator::Equal || operation == Operator::InstanceEqual;
        const bool isUnequal = operation == Operator::NotEqual || operation == Operator::InstanceNotEqual;
        if (isCall(left, "TYPEOF") && isCall(right, "TYPEOF") && (isEqual || isUnequal)) {
            const std::string other = text(*right.operands[0]);
            return simple(text(*left.operands[0]), "is of the same type as " + other,
                          "is of another type than " + other, isEqual);
        }
        if (left.kind == Kind::Infix && left.operation == Operator::Modulo && isNumber(right, "0") &&
            (isEqual || isUnequal)) {
            const std::string number = text(*left.operands[1]);
            return simple(text(*left.operands[0]), "is a multiple of " + number, "is no multiple of " + number,
                          isEqual);
        }
        if (operation == Operator::InstanceEqual || operation == Operator::InstanceNotEqual) {
            if (left.kind == Kind::Self || right.kind == Kind::Self) {
                return simple(text(left.kind == Kind::Self ? right : left), "is the instance itself",
                              "is not the instance itself", isEqual);
            }
        }
        const bool isTruth = right.kind == Kind::Infix && relationOf(right.operation) != nullptr;
        if (isTruth && (isEqual || isUnequal)) {
            const std::string whether = "tells whether " + inWords(sentence(right, isEqual));
            return simple(subject(left), whether, "");
        }
        const std::string behind = text(right);
        return simple(subject(left), relation.predicate + behind, relationOf(relation.negation)->predicate + behind);
    }

    // Whether something is of a type, one of several values, or a member.
    Sentence membership(const Expression& member, const Expression& whole, bool holds) {
        if (isCall(whole, "TYPEOF")) {
            const bool isPlain = member.kind == Kind::String && qualifiedName(member, _names).empty();
            const std::string kind = withArticle(isPlain ? member.text : text(member));
            return simple(text(*whole.operands[0]), "is " + kind, "is not " + kind, holds);
        }
        if (whole.kind == Kind::Aggregate && !whole.operands.empty()) {
            const std::string values = alternatives(whole, false);
            const char* one = whole.operands.size() == 1 ? "is " : "is one of ";
            const char* none = whole.operands.size() == 1 ? "is not " : "is none of ";
            return simple(subject(member), one + values, none + values, holds);
        }
        return simple(subject(member), "is a member of " + text(whole), "is no member of " + text(whole), holds);
    }

    std::string alternatives(const Expression& aggregate, bool areTypes) {
        std::string result;
        const auto& operands = aggregate.operands;
        for (std::size_t i = 0; i < operands.size(); ++i) {
            if (i > 0) result += i + 1 == operands.size() ? " or " : ", ";
            const std::string word = text(*operands[i]);
            result += areTypes && i == 0 ? withArticle(word) : word;
        }
        return result;
    }

    Sentence interval(const Expression& expression, bool holds) {
        const std::string low = text(*expression.operands[0]), high = text(*expression.operands[2]);
        std::string range = "from " + low + " to " + high;
        if (!expression.isLowInclusive || !expression.isHighInclusive) {
            range = (expression.isLowInclusive ? "at least " : "above ") + low + " and " +
                    (expression.isHighInclusive ? "at most " : "below ") + high;
        }
        return simple(subject(*expression.operands[1]), "is " + range, "is not " + range, holds);
    }

    Sentence call(const Expression& expression, bool holds) {
        if (isCall(expression, "EXISTS"))
            return simple(text(*expression.operands[0]), "is given", "is not given", holds);
        const auto known = std::ranges::find(functionWords, upper(expression.text), &FunctionWords::function);
        if (known == functionWords.end() || (!holds && *known->opposite == '\0'))
            return simple(text(expression), "holds", "does not hold", holds);
        return simple(filled(known->subject, expression), filled(known->predicate, expression),
                      filled(known->opposite, expression), holds);
    }

    std::string filled(std::string_view words, const Expression& function) {
        std::string result;
        for (std::size_t i = 0; i < words.size(); ++i) {
            if (words[i] != '%') {
                result += words[i];
                continue;
            }
            const auto argument = static_cast<std::size_t>(words[++i] - '1');
            result += argument < function.operands.size() ? text(*function.operands[argument]) : "?";
        }
        return result;
    }

    void addExclusive(const Expression& expression, std::vector<Sentence>& parts) {
        if (expression.kind != Kind::Infix || expression.operation != Operator::Xor) {
            parts.push_back(merged(sentence(expression, true)));
            return;
        }
        addExclusive(*expression.operands[0], parts);
        addExclusive(*expression.operands[1], parts);
    }

    Sentence exclusive(const Expression& expression, bool holds) {
        std::vector<Sentence> parts;
        addExclusive(expression, parts);
        const bool isAlike = std::ranges::all_of(parts, [&](const Sentence& part) {
            return part.kind == Sentence::Kind::Simple && part.predicate == parts.front().predicate;
        });
        if (isAlike) {
            std::string subjects = parts.front().subject;
            for (std::size_t i = 1; i < parts.size(); ++i)
                subjects += (i + 1 == parts.size() ? " and " : ", ") + parts[i].subject;
            const char* odd = parts.size() == 2 ? "exactly one of " : "an odd number of ";
            const char* even = parts.size() == 2 ? "both or neither of " : "an even number of ";
            return simple((holds ? odd : even) + subjects, parts.front().predicate, "");
        }
        Sentence result =
            Sentence::any({sentence(*expression.operands[0], true), sentence(*expression.operands[1], holds)});
        // Two that cannot both hold need not be told apart any further.
        if (!excludes(result.parts[0], result.parts[1])) result.kind = Sentence::Kind::Either;
        return result;
    }

    Sentence size(const Expression& left, const Relation& relation, const Expression& right) {
        const Expression& whole = *left.operands[0];
        const Amount amount = amountOf(relation.operation, right);
        if (whole.kind == Kind::Query) return quantified(whole, relation, right);
        if (const auto type = typeAmong(whole, relation, right)) return *type;
        const bool isPopulation = whole.kind == Kind::Name && isSchemaName(whole.text);
        if (isPopulation)
            return simple("the model", "has " + std::string(relation.count) + text(right) + ' ' + whole.text, "");
        const std::string subject = whole.kind == Kind::Self ? "the value" : text(whole);
        if (amount != Amount::Other) return simple(subject, "is not empty", "is empty", amount == Amount::Some);
        if (isSize(right)) {
            const std::string as = "as many members as " + text(*right.operands[0]);
            if (relation.operation == Operator::Equal) return simple(subject, "has " + as, "does not have " + as);
            if (relation.operation == Operator::NotEqual) return simple(subject, "does not have " + as, "has " + as);
        }
        if (right.kind == Kind::Infix) return comparison(left, relation, right);
        const std::string members = text(right) + (isNumber(right, "1") ? " member" : " members");
        return simple(subject, has(relation) + members, has(*relationOf(relation.negation)) + members);
    }

    static std::string has(const Relation& relation) {
        if (relation.operation == Operator::Equal) return "has ";
        if (relation.operation == Operator::NotEqual) return "does not have ";
        return "has " + std::string(relation.count);
    }

    /// SIZEOF([types] * TYPEOF(x)) compared with a number.
    std::optional<Sentence> typeAmong(const Expression& whole, const Relation& relation, const Expression& right) {
        if (whole.kind != Kind::Infix || whole.operation != Operator::Multiply) return std::nullopt;
        const Expression *types = whole.operands[0].get(), *value = whole.operands[1].get();
        if (types->kind != Kind::Aggregate) std::swap(types, value);
        if (types->kind != Kind::Aggregate || !isCall(*value, "TYPEOF")) return std::nullopt;
        const Amount amount = amountOf(relation.operation, right);
        const bool isOne = relation.operation == Operator::Equal && isNumber(right, "1");
        const bool isNotOne = relation.operation == Operator::NotEqual && isNumber(right, "1");
        if (amount == Amount::Other && !isOne && !isNotOne) return std::nullopt;
        const std::string names = alternatives(*types, true);
        return simple(text(*value->operands[0]), "is " + names, "is not " + names, amount == Amount::Some || isOne);
    }

    // What goes for how many of the members that a QUERY looks at.
    Sentence quantified(const Expression& query, const Relation& relation, const Expression& right) {
        const Expression &whole = *query.operands[0], &condition = *query.operands[1];
        const std::string outer = std::exchange(_variable, query.text);
        Sentence positive = merged(sentence(condition, true)), negative = merged(sentence(condition, false));
        _variable = outer;
        const Amount amount = amountOf(relation.operation, right);
        const bool isEvery =
            relation.operation == Operator::Equal && isSize(right) && text(*right.operands[0]) == text(whole);
        if (isEvery) return ofMembers("every ", "for every ", query, positive);
        if (amount == Amount::None) {
            const bool isPlain = positive.kind == Sentence::Kind::Simple && positive.subject == query.text &&
                                 positive.predicate.starts_with("is ") && !positive.predicate.starts_with("is not ") &&
                                 negative.predicate.starts_with("is not ");
            return isPlain ? ofMembers("no ", "for no ", query, positive)
                           : ofMembers("every ", "for every ", query, negative);
        }
        const std::string count = amount == Amount::Some ? "at least 1 " : relation.count + text(right) + ' ';
        return ofMembers(count, "for " + count, query, positive);
    }

    /// What goes for some members is never joined with what goes for some: they need not be the same.
    static Sentence ofSome(const std::string& members, const std::string& predicate) {
        Sentence result = simple(members, predicate, "");
        result.joinedAs = Sentence::Kind::Scope;
        return result;
    }

    /// `statement` says of the variable of a QUERY what goes for the members that `count` speaks of.
    Sentence ofMembers(const std::string& count, const std::string& introduction, const Expression& query,
                       const Sentence& statement) {
        const std::string& variable = query.text;
        const Expression& whole = *query.operands[0];
        const bool isOne = count == "every " || count == "no " || count.ends_with(" 1 ");
        const bool isSimple =
            isOne && statement.kind == Sentence::Kind::Simple && !mentions(statement.predicate, variable);
        const bool areUsers = isCall(whole, "USEDIN");
        const std::string behind =
            areUsers ? text(whole).substr(std::string_view("the users").size()) : " of " + collection(whole);
        const std::string members = count + (areUsers ? "user" : "member") + behind;
        if (isSimple && statement.subject == variable) return ofSome(members, statement.predicate);
        const bool isPart = isSimple && statement.subject.starts_with(variable + '.');
        const std::string part = isPart ? statement.subject.substr(variable.size() + 1) : "";
        if (isPart && !mentions(part, variable)) {
            if (count == "every ") return ofSome(part + " of " + members, statement.predicate);
            if (statement.predicate.starts_with("is ") && statement.joinedAs == Sentence::Kind::Simple)
                return ofSome(members, "has " + part + ' ' + statement.predicate.substr(3));
        }
        Sentence result;
        result.kind = Sentence::Kind::Scope;
        result.subject = introduction + (areUsers ? "user " + variable + behind : variable + behind);
        result.parts = {statement};
        return result;
    }

    /// An aggregate, or those of its members that a QUERY takes.
    std::string collection(const Expression& whole) {
        if (whole.kind != Kind::Query) return text(whole);
        const Sentence condition = merged(sentence(*whole.operands[1], true));
        const std::string members = "the members " + whole.text + " of " + collection(*whole.operands[0]);
        return members + " where " + inWords(condition);
    }

    const SpelledNames& _names;
    /// Of the QUERY whose condition is being worded.
    std::string _variable;
};

} // namespace

SpelledNames spelledNames(const express::ExpressSchema& schema) {
    SpelledNames names;
    for (const auto& type : schema.types) names.emplace(upper(type.name), type.name);
    for (const auto& entity : schema.entities) names.emplace(upper(entity.name), entity.name);
    for (const auto& entity : schema.entities) {
        for (const auto& attribute : entity.explicitAttributes) names.emplace(upper(attribute.name), attribute.name);
    }
    return names;
}

std::string worded(const Expression& expression, const SpelledNames& names) {
    return inWords(Wording(names).sentence(expression, true));
}

} // namespace velkor::rulegen
