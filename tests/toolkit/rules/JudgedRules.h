/// A schema of a test, a model of it, and the machine that judges one by the other.
#pragma once

#include "RoleIndex.h"
#include "RuleMachine.h"
#include "RuleProgram.h"
#include "RuleSchema.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace velkor::test {

class JudgedRules {
public:
    JudgedRules(const std::string& declarations, const std::string& instances)
        : _schema(declarations), _text(RuleSchema::text(instances)), _model(RuleSchema::model(_text)),
          _program(_schema.store(), _schema.tables(), *_model), _roles(_program), _machine(_program, _roles) {}

    /// The code of a WHERE rule by owner, in upper case, and label.
    std::uint32_t code(std::string_view owner, std::string_view label) const {
        const rules::RuleTables& tables = _schema.tables();
        for (const auto list : {tables.entityRules, tables.typeRules, tables.globalRules}) {
            for (const rules::WhereRule& rule : list) {
                if (text(rule.owner) == owner && text(rule.label) == label) return rule.code;
            }
        }
        throw std::runtime_error("no rule " + std::string(owner) + "." + std::string(label));
    }
    rules::Verdict judge(std::string_view owner, std::string_view label, std::uint64_t id = 1) {
        return _machine.judgeInstance(code(owner, label), *_model->file().find(id));
    }
    rules::TextId textId(std::string_view wanted) const {
        rules::TextId id = 0;
        while (text(id) != wanted) ++id;
        return id;
    }
    std::string_view text(rules::TextId id) const { return _schema.store().text(id); }

    const sdai::Model& model() const { return *_model; }
    const rules::RuleProgram& program() const { return _program; }
    const rules::RoleIndex& roles() const { return _roles; }
    rules::RuleMachine& machine() { return _machine; }

private:
    RuleSchema _schema;
    std::string _text;
    std::unique_ptr<sdai::Model> _model;
    rules::RuleProgram _program;
    rules::RoleIndex _roles;
    rules::RuleMachine _machine;
};

constexpr char letter(rules::Verdict verdict) {
    return "TFU!"[static_cast<int>(verdict)];
}

/// Expects of each expression of a table, a line each, the verdict that stands before it: T holds, F broken, U unknown,
/// ! not decided. The expressions are WHERE rules of an entity Probe with these attributes, judged on instance #1.
inline void expectVerdicts(const std::string& declarations, const std::string& attributes, const std::string& instances,
                           std::string_view table) {
    std::vector<std::pair<char, std::string>> cases;
    std::string rules;
    while (!table.empty()) {
        const std::size_t end = std::min(table.find('\n'), table.size());
        std::string_view line = table.substr(0, end);
        table.remove_prefix(std::min(table.size(), end + 1));
        const std::size_t first = line.find_first_not_of(' ');
        if (first == std::string_view::npos) continue;
        cases.emplace_back(line[first], line.substr(first + 2));
        rules += "W" + std::to_string(cases.size()) + " : " + cases.back().second + ";\n";
    }
    ASSERT_FALSE(cases.empty());
    JudgedRules judged(declarations + "ENTITY Probe; " + attributes + "\nWHERE\n" + rules + "END_ENTITY;", instances);
    for (std::size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(letter(judged.judge("PROBE", "W" + std::to_string(i + 1))), cases[i].first) << cases[i].second;
    }
}

} // namespace velkor::test
