#include "RuleDiff.h"

#include "velkor/text/Unicode.h"

#include <map>
#include <string>
#include <utility>

namespace velkor {

namespace {

/// An EXPRESS text without what makes no difference: blanks, letter case and the schema's name in qualified names.
/// Other literals stay as they are.
std::string essence(const RuleFacts& rule, std::string_view schema) {
    const std::string prefix = std::string(schema) + '.';
    std::string result;
    bool isLiteral = false;
    for (std::string_view rest = rule.expression; !rest.empty(); rest.remove_prefix(1)) {
        const char next = rest.front();
        if (isLiteral && next != '\'') {
            result += next;
        } else if (next == '\'') {
            isLiteral = !isLiteral;
            result += next;
            if (isLiteral && rest.substr(1).starts_with(prefix)) rest.remove_prefix(schema.size());
        } else if (next != ' ' && next != '\n' && next != '\t' && next != '\r') {
            result += text::asciiUpper(std::string_view(&next, 1));
        }
    }
    return result;
}

struct Stated {
    RuleFacts rule;
    std::string essence;
};

/// By kind and name; two kinds may use one name.
using Rules = std::map<std::pair<std::string, RuleKind>, Stated>;

Rules statedBy(std::string_view schema) {
    Rules result;
    for (RuleFacts& rule : rulesOf(schema)) {
        std::string text = essence(rule, schema);
        std::pair key(text::asciiUpper(rule.name), rule.kind);
        result.emplace(std::move(key), Stated{std::move(rule), std::move(text)});
    }
    return result;
}

/// What a rule shares with one that was renamed.
std::string anonymous(const Stated& stated) {
    return std::to_string(static_cast<int>(stated.rule.kind)) + ' ' + text::asciiUpper(stated.rule.owner) + ' ' +
           stated.essence;
}

} // namespace

void compareRules(std::string_view before, std::string_view after, DictionaryDiff& diff) {
    Rules earlier = statedBy(before);
    Rules added = statedBy(after);
    for (auto each = added.begin(); each != added.end();) {
        const auto found = earlier.find(each->first);
        if (found == earlier.end()) {
            ++each;
            continue;
        }
        if (found->second.essence != each->second.essence) {
            diff.changedRules.push_back(
                {each->second.rule.name, found->second.rule.expression, each->second.rule.expression});
        }
        earlier.erase(found);
        each = added.erase(each);
    }
    std::multimap<std::string, Rules::iterator> removed;
    for (auto each = earlier.begin(); each != earlier.end(); ++each) removed.emplace(anonymous(each->second), each);
    for (auto& [name, stated] : added) {
        const auto found = removed.find(anonymous(stated));
        if (found == removed.end()) {
            diff.addedRules.push_back(std::move(stated.rule));
            continue;
        }
        diff.renamedRules.push_back({found->second->second.rule.name, stated.rule.name});
        earlier.erase(found->second);
        removed.erase(found);
    }
    for (auto& [name, stated] : earlier) diff.removedRules.push_back(std::move(stated.rule));
}

} // namespace velkor
