#include "InstanceJudge.h"

#include "velkor/text/Unicode.h"

#include <algorithm>

namespace velkor::rules {

using sdai::Part21Lexer;
using sdai::Token;
using sdai::TokenKind;

namespace {

// Of values within each other; those of schemas are nested far less deeply.
constexpr unsigned deepestNesting = 100;

bool isValue(const Token& token) {
    return token.kind != TokenKind::End && token.kind != TokenKind::Close && token.kind != TokenKind::Comma &&
           token.kind != TokenKind::Semicolon;
}

/// More than its first token.
bool isComposite(const Token& token) {
    return token.kind == TokenKind::Open || token.kind == TokenKind::Keyword;
}

bool isGiven(const Token& token) {
    return token.kind != TokenKind::Omitted && token.kind != TokenKind::Derived && token.kind != TokenKind::Bad;
}

} // namespace

InstanceJudge::InstanceJudge(const JudgementPlan& plan, const RoleIndex& roles, const CodeFilter& codes)
    : _plan(plan), _program(plan.program()), _roles(roles), _machine(_program, roles), _reporter(plan, codes, _machine),
      _uniqueEntries(_program.tables().uniqueRules.size()) {
    const RuleTables& tables = _program.tables();
    _counts.unknown = {std::vector<std::uint64_t>(tables.entityRules.size()),
                       std::vector<std::uint64_t>(tables.typeRules.size()),
                       std::vector<std::uint64_t>(tables.globalRules.size())};
}

void InstanceJudge::judge(std::uint32_t number) {
    // An instance of several entities, or of one that the schema does not know, is the dictionary's to report.
    const sdai::EntityDefinition* entity = _program.model().entityAt(number);
    if (entity == nullptr) return;
    ++_counts.instances;
    _number = number;
    const EntityPlan& plan = _plan.of(*entity);
    for (const std::uint16_t rule : plan.whereRules) {
        const Verdict verdict = _machine.judgeInstance(_program.tables().entityRules[rule].code, number);
        if (isBroken(verdict, {RuleKind::Where, rule}, number, {})) _reporter.brokenWhere(rule, number);
    }
    for (const std::uint16_t inverse : plan.inverseAttributes) judgeUsers(inverse, number);
    for (const std::uint16_t rule : plan.uniqueRules) noteUnique(rule, number);
    if (!plan.parameters.empty()) judgeParameters(*entity, plan);
}

void InstanceJudge::judgeGlobal(std::uint16_t rule) {
    const Verdict verdict = _machine.judgeGlobal(_program.tables().globalRules[rule].code);
    if (isBroken(verdict, {RuleKind::Global, rule}, RuleReporter::noInstance, {})) _reporter.brokenGlobal(rule);
}

bool InstanceJudge::isBroken(Verdict verdict, RulePlace rule, std::uint32_t number, std::string_view place) {
    ++_counts.judgements;
    if (verdict == Verdict::Unknown) ++_counts.unknown[static_cast<std::size_t>(rule.kind)][rule.index];
    if (verdict == Verdict::NotDecided) _reporter.notDecided(rule, number, place);
    return verdict == Verdict::Broken;
}

void InstanceJudge::judgeUsers(std::uint16_t inverse, std::uint32_t number) {
    ++_counts.judgements;
    const InverseAttribute& attribute = _program.tables().inverseAttributes[inverse];
    const auto users = _roles.users(inverse, number);
    // One that refers twice stands twice, side by side, and is twice in a BAG alone.
    std::uint64_t count = 0;
    for (std::size_t i = 0; i < users.size(); ++i) count += attribute.isBag || i == 0 || users[i] != users[i - 1];
    const bool isEnough = count >= static_cast<std::uint64_t>(attribute.isAggregate ? std::max(attribute.lower, 0) : 1);
    const std::int32_t upper = attribute.isAggregate ? attribute.upper : 1;
    if (!isEnough || (upper >= 0 && count > static_cast<std::uint64_t>(upper)))
        _reporter.wrongUsers(inverse, number, count);
}

void InstanceJudge::noteUnique(std::uint16_t rule, std::uint32_t number) {
    ++_counts.judgements;
    _key.clear();
    if (_machine.appendKey(number, _plan.uniqueAttributes(_program.tables().uniqueRules[rule]), _key))
        _uniqueEntries[rule].push_back({text::hash64(_key), number});
}

void InstanceJudge::judgeParameters(const sdai::EntityDefinition& entity, const EntityPlan& plan) {
    _lexer = Part21Lexer(_program.model().file().instanceText(_number));
    _lexer.next();
    if (_lexer.next().kind != TokenKind::Open) return;
    for (std::size_t i = 0;; ++i) {
        if (const ValuePlan* value = plan.parameters[i]) {
            _attribute = entity.attributes()[i].attribute;
            const Part21Lexer before = _lexer;
            judgeValue(*value, _lexer.next(), before, 0);
        }
        if (i + 1 == plan.parameters.size() || behindValue() != TokenKind::Comma) return;
    }
}

/// Goes behind what follows a value, whatever stands in between.
TokenKind InstanceJudge::behindValue() {
    const Part21Lexer behind = _lexer;
    const TokenKind next = _lexer.next().kind;
    if (next == TokenKind::Comma || next == TokenKind::Close) return next;
    _lexer = behind;
    return _lexer.skipParameter() ? _lexer.next().kind : TokenKind::End;
}

/// The text of a value whose first token was read.
std::string_view InstanceJudge::wholeValue(const Token& first) const {
    if (!isComposite(first)) return first.text;
    const std::string_view file = _program.model().file().text();
    const std::string_view rest = file.substr(static_cast<std::size_t>(first.text.data() - file.data()));
    Part21Lexer lexer(rest);
    lexer.skipParameter();
    const std::string_view value = rest.substr(0, static_cast<std::size_t>(lexer.position() - rest.data()));
    return value.substr(0, value.find_last_not_of(" \t\r\n") + 1);
}

/// `before` is the lexer's place before the first token. The lexer is left behind the value; where there is none,
/// before what stands there.
void InstanceJudge::judgeValue(const ValuePlan& plan, const Token& first, const Part21Lexer& before, unsigned depth) {
    if (!isValue(first)) {
        _lexer = before;
        return;
    }
    bool isRead = !isComposite(first);
    if (isGiven(first) && depth < deepestNesting) {
        if (!plan.rules.empty()) judgeByType(plan, wholeValue(first));
        if (first.kind == TokenKind::Open && (plan.member != nullptr || plan.mustDiffer))
            isRead = judgeMembers(plan, first, depth);
        else if (first.kind == TokenKind::Keyword && plan.select != nullptr)
            isRead = judgeTyped(plan, first, depth);
    }
    if (isRead) return;
    _lexer = before;
    _lexer.skipParameter();
}

void InstanceJudge::judgeByType(const ValuePlan& plan, std::string_view value) {
    for (const std::uint16_t rule : plan.rules) {
        const Verdict verdict = _machine.judgeValue(_program.tables().typeRules[rule].code, *plan.type, value);
        if (isBroken(verdict, {RuleKind::Type, rule}, _number, value))
            _reporter.brokenType(rule, _number, *_attribute, value);
    }
}

/// False when the aggregate does not end as one.
bool InstanceJudge::judgeMembers(const ValuePlan& plan, const Token& open, unsigned depth) {
    while (_comparisons.size() <= depth) _comparisons.emplace_back(_program.model());
    MemberComparison& comparison = _comparisons[depth];
    comparison.begin(plan.aggregate->element());
    for (TokenKind behind = TokenKind::Comma; behind != TokenKind::Close;) {
        if (behind != TokenKind::Comma) return false;
        const Part21Lexer before = _lexer;
        const Token first = _lexer.next();
        if (first.kind == TokenKind::Close) break;
        if (plan.mustDiffer && isValue(first)) comparison.add(first);
        if (plan.member != nullptr)
            judgeValue(*plan.member, first, before, depth + 1);
        else if (!isValue(first) || isComposite(first))
            _lexer = before;
        behind = behindValue();
    }
    const std::string_view file = _program.model().file().text();
    if (plan.mustDiffer) {
        const auto text = file.substr(static_cast<std::size_t>(open.text.data() - file.data()));
        if (const auto pair = comparison.equalPair(text))
            _reporter.equalMembers(_number, *_attribute, *plan.aggregate, text, pair->first, pair->second, pair->text);
    }
    return true;
}

/// A value that names its type, "IFCLABEL('x')", the name being read. False when it does not end as one.
bool InstanceJudge::judgeTyped(const ValuePlan& plan, const Token& keyword, unsigned depth) {
    const sdai::DefinedType* type = _program.model().schema().definedType(keyword.text);
    const ValuePlan* chosen = type != nullptr && plan.select->accepts(*type) ? _plan.of(*type) : nullptr;
    if (chosen == nullptr || _lexer.next().kind != TokenKind::Open) return false;
    const Part21Lexer before = _lexer;
    judgeValue(*chosen, _lexer.next(), before, depth + 1);
    return behindValue() == TokenKind::Close;
}

} // namespace velkor::rules
