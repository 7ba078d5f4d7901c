#include "release/ValueTranslator.h"

#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Unicode.h"

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace velkor::exchange {

using sdai::Part21Lexer;
using sdai::Token;
using sdai::TokenKind;
using sdai::Type;
using sdai::TypeKind;

namespace {

/// Some of a value, fit for a message.
std::string excerpt(std::string_view value) {
    constexpr std::size_t longest = 40;
    return text::excerpt(value, longest);
}

std::string becomes(std::string_view before, std::string_view after) {
    std::string words = excerpt(before);
    words += " becomes ";
    return words += excerpt(after);
}

std::string dropped(std::string_view value) {
    return excerpt(value) + " is dropped";
}

bool isNothing(std::string_view value) {
    return value == sdai::omittedValue || value == sdai::derivedValue;
}

/// Takes "(…)" apart.
std::vector<std::string_view> membersOf(std::string_view value) {
    std::vector<std::string_view> members;
    Part21Lexer lexer(value);
    lexer.next();
    while (lexer.peek().kind != TokenKind::Close && lexer.peek().kind != TokenKind::End) {
        const char* begin = lexer.peek().text.data();
        if (!lexer.skipParameter()) break;
        const char* end = lexer.position();
        while (end > begin && (end[-1] == ' ' || end[-1] == '\n' || end[-1] == '\r' || end[-1] == '\t')) --end;
        members.emplace_back(begin, static_cast<std::size_t>(end - begin));
        if (lexer.peek().kind == TokenKind::Comma) lexer.next();
    }
    return members;
}

} // namespace

bool ValueTranslator::translate(std::string_view value, const Type& from, const Type& to, std::string& text) {
    if (isNothing(value) || _fit.isRaw(from, to)) {
        text += value;
        return true;
    }
    const std::size_t before = text.size();
    const bool isDone = [&] {
        switch (Part21Lexer(value).next().kind) {
        case TokenKind::InstanceName:
            return reference(value, from, to, text);
        case TokenKind::Keyword:
            return typedValue(value, from, to, text);
        case TokenKind::Open:
            return aggregate(value, from, to, text);
        case TokenKind::Enumeration:
            return enumeration(value, from, to, text);
        default:
            return simple(value, from, to, text);
        }
    }();
    if (!isDone) text.resize(before);
    return isDone;
}

std::string ValueTranslator::takeUserDefined() {
    return std::exchange(_userDefined, {});
}

bool ValueTranslator::adapted(std::string_view value, const Type& from, const Type& to, std::string& text) {
    bool isDone = false;
    const bool isMember = _isMember;
    _plan.book().eachValueRule([&](const ValueRule& rule) {
        const auto members = rule.adapt(_rebuilding, value, from, to);
        if (!members || (members->size() != 1 && !isMember)) return false;
        for (std::size_t i = 0; i < members->size(); ++i) (text += i > 0 ? "," : "") += (*members)[i];
        _notes.note(rule.rule, [&] { return members->empty() ? dropped(value) : becomes(value, members->front()); });
        return isDone = true;
    });
    return isDone;
}

bool ValueTranslator::single(std::string_view value, const Type& from, const Type& to, std::string& text) {
    const auto* aggregate = to.resolved().asAggregate();
    if (aggregate == nullptr || aggregate->lowerBound() > 1 || aggregate->upperBound() == 0) return false;
    text += '(';
    if (!translate(value, from, aggregate->element(), text)) return false;
    text += ')';
    _notes.note(rules::oneOfSeveral, [&] { return excerpt(value); });
    return true;
}

bool ValueTranslator::reference(std::string_view value, const Type& from, const Type& to, std::string& text) {
    const auto number = _plan.model().file().find(sdai::decodeInstanceName(value));
    const Outcome* outcome = number ? &_plan.outcome(*number) : nullptr;
    // What leads nowhere, or to what is not understood, stays what it was.
    const bool isUnderstood = outcome != nullptr && outcome->source != nullptr && accepts(from, *outcome->source);
    if (isUnderstood ? !outcome->isGone() && accepts(to, *outcome->target) : outcome == nullptr || !outcome->isGone()) {
        text += value;
        return true;
    }
    return adapted(value, from, to, text) || (isUnderstood && single(value, from, to, text));
}

const sdai::DefinedType* ValueTranslator::choice(const sdai::SelectType& select, const Type& type) const {
    const auto& target = _plan.releases().target.definition();
    // Its own name, then those of the types that it is made of: IFCPOSITIVELENGTHMEASURE, IFCLENGTHMEASURE.
    for (const Type* at = &type; at->asDefined() != nullptr; at = &at->asDefined()->underlying())
        if (const auto* same = target.definedType(at->asDefined()->name()); same != nullptr && select.accepts(*same))
            return same;
    constexpr std::pair<TypeKind, std::string_view> plain[] = {
        {TypeKind::String, "IFCLABEL"},    {TypeKind::String, "IFCTEXT"},         {TypeKind::String, "IFCIDENTIFIER"},
        {TypeKind::Real, "IFCREAL"},       {TypeKind::Real, "IFCNUMERICMEASURE"}, {TypeKind::Integer, "IFCINTEGER"},
        {TypeKind::Integer, "IFCREAL"},    {TypeKind::Boolean, "IFCBOOLEAN"},     {TypeKind::Boolean, "IFCLOGICAL"},
        {TypeKind::Logical, "IFCLOGICAL"}, {TypeKind::Enumeration, "IFCLABEL"},   {TypeKind::Real, "IFCRATIOMEASURE"}};
    for (const auto& [kind, name] : plain) {
        if (kind != type.resolved().kind()) continue;
        if (const auto* other = target.definedType(name); other != nullptr && select.accepts(*other)) return other;
    }
    return nullptr;
}

bool ValueTranslator::chosen(std::string_view value, const Type& from, const sdai::SelectType& select,
                             std::string& text) {
    const sdai::DefinedType* type = choice(select, from);
    if (type == nullptr) return false;
    (text += type->name()) += '(';
    if (!translate(value, from.asDefined() != nullptr ? from.asDefined()->underlying() : from, type->underlying(),
                   text))
        return false;
    text += ')';
    return true;
}

bool ValueTranslator::typedValue(std::string_view value, const Type& from, const Type& to, std::string& text) {
    const std::size_t open = value.find('(');
    Part21Lexer lexer(value);
    const auto* type = _plan.releases().source.definition().definedType(lexer.next().text);
    const auto* select = from.resolved().asSelect();
    const auto inner = membersOf(value.substr(std::min(open, value.size())));
    if (type == nullptr || select == nullptr || !select->accepts(*type) || inner.size() != 1) {
        text += value;
        return true;
    }
    const auto* wanted = to.resolved().asSelect();
    const auto* same = _plan.releases().target.definition().definedType(type->name());
    if (wanted == nullptr || same == nullptr || !wanted->accepts(*same))
        if (adapted(value, from, to, text)) return true;
    if (wanted == nullptr) return translate(inner.front(), *type, to, text) || single(value, from, to, text);
    const std::size_t before = text.size();
    if (!chosen(inner.front(), *type, *wanted, text)) return false;
    if (same == nullptr || !wanted->accepts(*same))
        _notes.note(rules::selectType, [&] { return becomes(value, std::string_view(text).substr(before)); });
    return true;
}

/// The first enumeration of a select that has an enumerator.
bool ValueTranslator::enumerationOf(const sdai::SelectType& select, std::string_view value, std::string& text) {
    for (const Type* item : select.items()) {
        const auto* list = item->resolved().asEnumeration();
        if (list == nullptr || list->position(value.substr(1, value.size() - 2)) < 0) continue;
        text += typed(list->definedType().name(), value);
        return true;
    }
    return false;
}

bool ValueTranslator::enumeration(std::string_view value, const Type& from, const Type& to, std::string& text) {
    const auto* type = from.resolved().asEnumeration();
    const std::string_view name = value.substr(1, value.size() - 2);
    if (type == nullptr) return simple(value, from, to, text);
    if (type->position(name) < 0) {
        text += value;
        return true;
    }
    const auto* wanted = to.resolved().asEnumeration();
    if (wanted == nullptr) {
        if (adapted(value, from, to, text)) return true;
        if (const auto* select = to.resolved().asSelect())
            return enumerationOf(*select, value, text) || chosen(value, from, *select, text);
        if (to.resolved().kind() != TypeKind::String) return false;
        sdai::appendString(text, name);
        return true;
    }
    if (wanted->position(name) >= 0) {
        text += value;
        return true;
    }
    if (const EnumeratorRule* rule = _plan.book().enumerator(*wanted, text::toUpper(name))) {
        _notes.note(rule->rule, [&] { return becomes(value, rule->after); });
        return sdai::appendEnumeration(text, rule->after);
    }
    if (wanted->position("USERDEFINED") >= 0) {
        _userDefined = name;
        text += ".USERDEFINED.";
        return true;
    }
    if (wanted->position("NOTDEFINED") < 0) return false;
    _notes.note(rules::noEnumerator, [&] { return dropped(value); });
    text += ".NOTDEFINED.";
    return true;
}

bool ValueTranslator::aggregate(std::string_view value, const Type& from, const Type& to, std::string& text) {
    const auto* type = from.resolved().asAggregate();
    if (type == nullptr) {
        text += value;
        return true;
    }
    if (const auto* wanted = to.resolved().asAggregate()) return members(value, *type, *wanted, text);
    if (adapted(value, from, to, text)) return true;
    const auto parts = membersOf(value);
    if (parts.size() != 1 || !translate(parts.front(), type->element(), to, text)) return false;
    _notes.note(rules::oneOfSeveral, [&] { return excerpt(value); });
    return true;
}

bool ValueTranslator::members(std::string_view value, const sdai::AggregateType& from, const sdai::AggregateType& to,
                              std::string& text) {
    const auto parts = membersOf(value);
    const bool isNested = to.element().resolved().isAggregate() || to.element().resolved().isSimple();
    const bool wasMember = std::exchange(_isMember, true);
    const bool isUnique = to.kind() == TypeKind::Set || to.hasUniqueElements();
    int kept = 0;
    std::vector<std::string_view> lost;
    std::unordered_set<std::string> seen;
    text += '(';
    for (const std::string_view part : parts) {
        std::string member;
        if (!translate(part, from.element(), to.element(), member) || member.empty()) {
            lost.push_back(part);
            continue;
        }
        // Rules may have made several of one.
        const std::string several = isUnique ? "(" + member + ")" : std::string();
        for (const std::string_view one : isUnique ? membersOf(several) : std::vector<std::string_view>{member}) {
            if (isUnique && !seen.emplace(one).second) {
                _notes.note(rules::equalMember, [&] { return excerpt(one); });
                continue;
            }
            if (kept++ > 0) text += ',';
            text += one;
        }
    }
    _isMember = wasMember;
    text += ')';
    // A number or a row that is missing makes another thing of the whole.
    if (!lost.empty() && (isNested || _isWhole)) return false;
    const int count = static_cast<int>(parts.size());
    if (kept < to.lowerBound() && (kept < count || count >= from.lowerBound())) return false;
    if (to.upperBound() >= 0 && kept > to.upperBound() && (from.upperBound() < 0 || count <= from.upperBound()))
        return false;
    for (const std::string_view part : lost) _notes.note(rules::memberLost, [&] { return dropped(part); });
    return true;
}

bool ValueTranslator::simple(std::string_view value, const Type& from, const Type& to, std::string& text) {
    const auto* type = from.resolved().asSimple();
    if (type == nullptr) {
        text += value;
        return true;
    }
    const Type& wanted = to.resolved();
    if (const auto* plain = wanted.asSimple())
        return asSimple(value, *type, *plain, text) || adapted(value, from, to, text);
    if (adapted(value, from, to, text)) return true;
    if (const auto* select = wanted.asSelect()) return chosen(value, from, *select, text);
    if (const auto* list = wanted.asEnumeration(); list != nullptr && type->kind() == TypeKind::String) {
        const std::string name = sdai::decodeString(value);
        return list->position(name) >= 0 && sdai::appendEnumeration(text, name);
    }
    return single(value, from, to, text);
}

bool ValueTranslator::asSimple(std::string_view value, const sdai::SimpleType& from, const sdai::SimpleType& to,
                               std::string& text) {
    const bool isNumber = to.kind() == TypeKind::Real || to.kind() == TypeKind::Integer;
    if (isNumber && (from.kind() == TypeKind::Real || from.kind() == TypeKind::Integer)) return number(value, to, text);
    if (to.kind() == TypeKind::Boolean && from.kind() == TypeKind::Logical && value == ".U.") return false;
    const auto isTruth = [](TypeKind kind) { return kind == TypeKind::Boolean || kind == TypeKind::Logical; };
    if (from.kind() != to.kind() && !(isTruth(from.kind()) && isTruth(to.kind()))) return false;
    if (to.kind() == TypeKind::String) return shortText(value, to, text);
    text += value;
    return true;
}

bool ValueTranslator::number(std::string_view value, const sdai::SimpleType& to, std::string& text) {
    const bool isInteger = Part21Lexer(value).next().kind == TokenKind::Integer;
    double real = 0.0;
    if (isInteger == (to.kind() == TypeKind::Integer) || !sdai::decodeReal(value, real)) {
        text += value;
        return true;
    }
    const std::size_t before = text.size();
    if (isInteger) {
        (text += value) += '.';
    } else {
        constexpr double largest = 9007199254740992.0;
        if (std::trunc(real) != real || std::abs(real) > largest) return false;
        sdai::appendInteger(text, static_cast<std::int64_t>(real));
    }
    _notes.note(rules::numberForm, [&] { return becomes(value, std::string_view(text).substr(before)); });
    return true;
}

bool ValueTranslator::shortText(std::string_view value, const sdai::SimpleType& to, std::string& text) {
    const auto limit = static_cast<std::size_t>(std::max(to.width(), 0));
    // A literal has no fewer bytes than characters.
    if (limit == 0 || value.size() - 2 <= limit) {
        text += value;
        return true;
    }
    const std::string whole = sdai::decodeString(value);
    if (text::characterCount(whole) <= limit) {
        text += value;
        return true;
    }
    std::size_t length = 0;
    for (std::size_t count = 0; length < whole.size(); ++length)
        if ((static_cast<unsigned char>(whole[length]) & 0xC0U) != 0x80U && count++ == limit) break;
    sdai::appendString(text, std::string_view(whole).substr(0, length));
    _notes.note(rules::textShortened, [&] { return excerpt(value); });
    return true;
}

std::optional<std::string> ValueTranslator::encoded(std::string_view plain, const Type& to) const {
    const Type& type = to.resolved();
    std::string text;
    double real = 0.0;
    if (const auto* select = type.asSelect()) {
        const auto* label = _plan.releases().target.definition().definedType("IFCLABEL");
        if (label == nullptr || !select->accepts(*label)) return std::nullopt;
        sdai::appendString(text, plain);
        return typed(label->name(), text);
    }
    if (const auto* list = type.asEnumeration())
        return list->position(plain) >= 0 && sdai::appendEnumeration(text, plain) ? std::optional(text) : std::nullopt;
    switch (type.kind()) {
    case TypeKind::String:
        sdai::appendString(text, plain);
        return text;
    case TypeKind::Integer:
    case TypeKind::Real:
        if (!sdai::decodeReal(plain, real)) return std::nullopt;
        if (type.kind() == TypeKind::Real) return sdai::appendReal(text, real) ? std::optional(text) : std::nullopt;
        if (std::trunc(real) != real) return std::nullopt;
        sdai::appendInteger(text, static_cast<std::int64_t>(real));
        return text;
    case TypeKind::Boolean:
    case TypeKind::Logical: {
        const std::string word = text::toUpper(plain);
        const bool isTrue = word == "T" || word == "TRUE";
        if (!isTrue && word != "F" && word != "FALSE") return std::nullopt;
        return isTrue ? ".T." : ".F.";
    }
    default:
        return std::nullopt;
    }
}

} // namespace velkor::exchange
