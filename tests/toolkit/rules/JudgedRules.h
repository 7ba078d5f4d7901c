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

/// A schema of one of everything that expressions meet.
inline constexpr const char* shapes =
    "TYPE Length = REAL; END_TYPE;\n"
    "TYPE Positive = Length; WHERE WR1 : SELF > 0.0; END_TYPE;\n"
    "TYPE Label = STRING; END_TYPE;\n"
    "TYPE Truth = LOGICAL; END_TYPE;\n"
    "TYPE Angle = LIST [3:4] OF INTEGER; WHERE WR1 : ABS(SELF[1]) < 360; END_TYPE;\n"
    "TYPE Colour = ENUMERATION OF (RED, GREEN, BLUE); END_TYPE;\n"
    "TYPE Tone = ENUMERATION OF (RED, GREY); END_TYPE;\n"
    "TYPE Count = INTEGER; END_TYPE;\n"
    "TYPE Measure = SELECT (Length, Positive, Label, Angle, Count); END_TYPE;\n"
    "TYPE Basic = SELECT (Length, Tone); END_TYPE;\n"
    "TYPE Anything = SELECT (Measure, Shape, Colour); END_TYPE;\n"
    "ENTITY Shape ABSTRACT SUPERTYPE; END_ENTITY;\n"
    "ENTITY Point SUBTYPE OF (Shape); Coordinates : LIST [1:3] OF Length;\n"
    "  DERIVE Dim : INTEGER := HIINDEX(Coordinates);\n"
    "  INVERSE Lines : SET [0:?] OF Line FOR Points; Ends : BAG [0:?] OF Line FOR Points; Owner : Line FOR First;\n"
    "END_ENTITY;\n"
    "ENTITY Line SUBTYPE OF (Shape); Points : LIST [2:?] OF Point; First : Point; Hue : OPTIONAL Colour;\n"
    "  DERIVE Dim : INTEGER := Points[1].Dim; Twice : INTEGER := 2 * SELF.Dim;\n"
    "END_ENTITY;\n"
    "ENTITY Ray SUBTYPE OF (Line); DERIVE SELF\\Line.Hue : Colour := Colour.BLUE; END_ENTITY;\n";

/// Instances of it.
inline constexpr const char* points = "#2=POINT((0.,0.));#3=POINT((1.,2.,3.));#4=POINT((1.,2.,3.));";

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
