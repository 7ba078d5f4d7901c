#include "RuleReporter.h"

#include "KnownFaults.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Wording.h"

#include <algorithm>

namespace velkor::rules {

namespace {

constexpr std::size_t mostReads = 4;
// In bytes, of what a message shows of values and of rules.
constexpr std::size_t longestValue = 40;
constexpr std::size_t longestRule = 240;

std::string instanceText(const sdai::Part21File& file, std::uint32_t number) {
    return '#' + std::to_string(file.id(number));
}

std::string membersText(const sdai::AggregateType& type) {
    std::string text = type.expressText();
    return text.size() > longestRule ? std::string("members") : "members of " + text;
}

} // namespace

void RuleReporter::begin(std::size_t limit) {
    _limit = limit;
    _findings = {};
}

RangeFindings RuleReporter::take() {
    std::ranges::stable_sort(_findings.problems, {}, &sdai::Problem::offset);
    return std::move(_findings);
}

bool RuleReporter::keeps(const char* code) {
    if (!_codes.takes(code)) return false;
    ++_findings.total;
    return _findings.problems.size() < _limit;
}

void RuleReporter::add(const char* code, std::string rule, std::uint32_t number, std::string_view place,
                       std::string message, sdai::Severity severity) {
    const sdai::Part21File& file = _plan.program().model().file();
    sdai::Problem problem;
    if (number != noInstance) {
        problem.instance = file.id(number);
        problem.offset = place.data() == nullptr ? file.offset(number)
                                                 : static_cast<std::uint64_t>(place.data() - file.text().data());
    }
    problem.code = code;
    problem.message = std::move(message);
    problem.severity = severity;
    if (const KnownFault* fault = knownFault(_plan.program().tables().schema, rule);
        fault != nullptr && isMet(*fault, number)) {
        problem.severity = sdai::Severity::Warning;
        problem.message.append("; the rule itself is faulty: ").append(fault->reason);
    }
    problem.rule = std::move(rule);
    _findings.problems.push_back(std::move(problem));
}

bool RuleReporter::isMet(const KnownFault& fault, std::uint32_t number) const {
    if (fault.attribute.empty()) return true;
    const sdai::EntityDefinition* entity = _plan.program().model().entityAt(number);
    const int index = entity == nullptr ? -1 : entity->attributeIndex(fault.attribute);
    return index >= 0 && parameterText(number, static_cast<std::size_t>(index)) == fault.value;
}

std::string RuleReporter::entityText(std::uint32_t number) const {
    const sdai::EntityDefinition* entity = _plan.program().model().entityAt(number);
    return std::string(entity == nullptr ? std::string_view("the instance") : entity->name());
}

std::string RuleReporter::expectation(const WhereRule& rule) const {
    const RuleStore& store = _plan.program().store();
    const RuleTables& tables = _plan.program().tables();
    const std::string wording = rule.wording == noText ? std::string() : expressionOf(store, tables, rule.wording);
    if (!wording.empty()) return "expected that " + text::excerpt(wording, longestRule);
    return "expected " + text::excerpt(expressionOf(store, tables, rule.expression), longestRule);
}

/// What the verdict was decided by, as the model has it.
std::string RuleReporter::readsText() {
    std::string text;
    for (const Read& read : _machine.reads(mostReads)) {
        text.append(text.empty() ? "; found #" : ", #").append(std::to_string(read.instance)).append(" ");
        text.append(read.entity).append(".").append(read.attribute).append(" = ");
        text += text::excerpt(read.value, longestValue);
    }
    return text;
}

void RuleReporter::brokenWhere(std::uint16_t rule, std::uint32_t number) {
    if (!keeps(whereCode)) return;
    const WhereRule& where = _plan.program().tables().entityRules[rule];
    std::string name = nameOf(_plan.program().store(), where);
    std::string message = entityText(number) + " breaks " + name + ": " + expectation(where) + readsText();
    add(whereCode, std::move(name), number, {}, std::move(message));
}

void RuleReporter::brokenType(std::uint16_t rule, std::uint32_t number, const sdai::Attribute& attribute,
                              std::string_view value) {
    if (!keeps(whereCode)) return;
    const WhereRule& where = _plan.program().tables().typeRules[rule];
    std::string name = nameOf(_plan.program().store(), where);
    std::string message = entityText(number) + '.' + std::string(attribute.name()) + " breaks " + name + ": " +
                          expectation(where) + ", found " + text::excerpt(value, longestValue);
    add(whereCode, std::move(name), number, value, std::move(message));
}

void RuleReporter::brokenGlobal(std::uint16_t rule) {
    if (!keeps(globalCode)) return;
    const WhereRule& where = _plan.program().tables().globalRules[rule];
    std::string name = nameOf(_plan.program().store(), where);
    std::string message = "the model breaks " + name + ": " + expectation(where) + readsText();
    add(globalCode, std::move(name), noInstance, {}, std::move(message));
}

void RuleReporter::wrongUsers(std::uint16_t inverse, std::uint32_t number, std::uint64_t users) {
    if (!keeps(inverseCode)) return;
    const RuleStore& store = _plan.program().store();
    const InverseAttribute& attribute = _plan.program().tables().inverseAttributes[inverse];
    std::string name = nameOf(store, attribute);
    std::string message = entityText(number) + " breaks " + name + ": expected to be referred to by " +
                          wordingOf(store, attribute) + ", found " + (users == 0 ? "none" : std::to_string(users));
    add(inverseCode, std::move(name), number, {}, std::move(message));
}

void RuleReporter::repeatedValues(std::uint16_t rule, std::uint32_t number, std::uint32_t first) {
    if (!keeps(uniqueCode)) return;
    const RuleProgram& program = _plan.program();
    const UniqueRule& unique = program.tables().uniqueRules[rule];
    std::string name = nameOf(program.store(), unique);
    const std::string attributes = expressionOf(program.store(), program.tables(), unique.expression);
    const std::string values = text::joined(_plan.uniqueAttributes(unique), ", ",
                                            [&](TextId attribute) { return attributeText(number, attribute); });
    std::string message = entityText(number) + " breaks " + name + ": expected no other instance with the same " +
                          attributes + "; " + instanceText(program.model().file(), number) + " has the same " +
                          attributes + (values.empty() ? "" : ' ' + values) + " as " +
                          instanceText(program.model().file(), first);
    add(uniqueCode, std::move(name), number, {}, std::move(message));
}

std::string RuleReporter::attributeText(std::uint32_t number, TextId attribute) const {
    const RuleProgram& program = _plan.program();
    const sdai::EntityDefinition* entity = program.model().entityAt(number);
    if (entity == nullptr) return "?";
    const RuleProgram::Part part = program.part(*entity, attribute);
    return part.kind == RuleProgram::Part::Kind::Explicit ? parameterText(number, part.index) : "(derived)";
}

std::string RuleReporter::parameterText(std::uint32_t number, std::size_t index) const {
    sdai::Part21Lexer lexer(_plan.program().model().file().instanceText(number));
    lexer.next();
    lexer.next();
    for (std::size_t i = 0; i < index; ++i) {
        if (!lexer.skipParameter() || lexer.next().kind != sdai::TokenKind::Comma) return "?";
    }
    const char* const begin = lexer.peek().text.data();
    if (!lexer.skipParameter()) return "?";
    return text::excerpt({begin, static_cast<std::size_t>(lexer.position() - begin)}, longestValue);
}

void RuleReporter::equalMembers(std::uint32_t number, const sdai::Attribute& attribute, const sdai::AggregateType& type,
                                std::string_view aggregate, std::uint32_t first, std::uint32_t second,
                                std::string_view member) {
    if (!keeps(elementCode)) return;
    std::string rule = std::string(attribute.owner().name()) + '.' + std::string(attribute.name());
    std::string message = entityText(number) + '.' + std::string(attribute.name()) + ": expected different " +
                          membersText(type) + ", found " + text::excerpt(member, longestValue) + " at positions " +
                          std::to_string(first) + " and " + std::to_string(second);
    add(elementCode, std::move(rule), number, aggregate, std::move(message));
}

void RuleReporter::notDecided(RulePlace rule, std::uint32_t number, std::string_view place) {
    ++_findings.undecided;
    if (!keeps(notDecidedCode)) return;
    std::string name = nameOf(_plan.program().store(), _plan.program().tables(), rule);
    std::string message = "expected to decide " + name + " of " +
                          (number == noInstance ? std::string("the model") : entityText(number)) + " within " +
                          text::grouped(RuleMachine::stepLimit) + " steps, " + std::to_string(RuleMachine::depthLimit) +
                          " calls within each other and the memory that the model allows: it is not judged";
    add(notDecidedCode, std::move(name), number, place, std::move(message), sdai::Severity::Warning);
}

} // namespace velkor::rules
