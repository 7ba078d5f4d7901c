#include "RuleUnits.h"

#include <cstdio>
#include <span>

namespace velkor::rulegen {

namespace {

// A compiler need not take longer literals.
constexpr std::size_t longestLiteral = 60000;
constexpr std::size_t unitsPerLine = 16;

std::string head(const std::string& inputs) {
    return "// Made by velkor-rulegen from " + inputs +
           "; do not edit.\n\n#include \"RuleTables.h\"\n\nnamespace velkor::rules {\n\nnamespace {\n\n";
}

std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '"' || c == '\\') result += '\\';
        if (c >= ' ' && c <= '~') {
            result += c;
        } else {
            // Three octal digits end by themselves.
            char digits[5];
            std::snprintf(digits, sizeof digits, "\\%03o", static_cast<unsigned>(static_cast<unsigned char>(c)));
            result += digits;
        }
    }
    return result;
}

/// The texts as literals of a struct of character arrays, so that one address reaches all.
std::string textsOf(const rules::RuleStore& store) {
    std::string sizes, literals;
    std::size_t part = 0, size = 0;
    const auto closePart = [&] {
        sizes += "    char part" + std::to_string(part++) + '[' + std::to_string(size) + "];\n";
        size = 0;
    };
    for (rules::TextId id = 0; id + 1U < store.textPlaces.size(); ++id) {
        const std::string_view text = store.text(id);
        // The zero byte behind the last text of a part is the literal's own.
        if (size > 0 && size + text.size() + 1 > longestLiteral) {
            closePart();
            literals += "\",\n";
        } else if (size > 0) {
            literals += "\\000\"\n";
        }
        literals += "    \"" + escaped(text);
        size += text.size() + 1;
    }
    closePart();
    return "struct Texts {\n" + sizes + "};\n\nconstexpr Texts texts = {\n" + literals + "\"};\n\n";
}

template <class Number, class Write>
std::string numbers(const char* type, const char* name, std::span<const Number> list, Write write) {
    std::string result = std::string("constexpr ") + type + ' ' + name + "[] = {";
    for (std::size_t i = 0; i < list.size(); ++i)
        result += (i % unitsPerLine == 0 ? "\n    " : " ") + write(list[i]) + ',';
    // There is no array of nothing; what stands for it is left out of the span.
    if (list.empty()) result += "0";
    return result + "\n};\n\n";
}

std::string span(const char* name, std::size_t size) {
    return size > 0 ? std::string(name) : std::string("{}");
}

std::string storeUnit(const rules::RuleStore& store, const std::string& inputs, const RuleCompiler& compiler) {
    const auto whole = [](auto number) { return std::to_string(number); };
    const auto exact = [](double number) {
        char text[40];
        std::snprintf(text, sizeof text, "%a", number);
        return std::string(text);
    };
    std::string declarations, calls;
    for (std::size_t i = 0; i < compiler.count(); ++i) {
        const std::string name(compiler.tables(i).schema);
        declarations += "RuleTables tablesOf" + name + "() noexcept;\n";
        calls += (i == 0 ? "" : ", ") + ("tablesOf" + name + "()");
    }
    return head(inputs) + textsOf(store) + numbers("std::uint32_t", "textPlaces", store.textPlaces, whole) +
           numbers("std::int64_t", "integers", store.integers, whole) + numbers("double", "reals", store.reals, exact) +
           numbers("std::uint16_t", "code", store.code, whole) + "} // namespace\n\n" + declarations +
           "\nRuleStore ruleStore() noexcept {\n    return {reinterpret_cast<const char*>(&texts), textPlaces, " +
           std::to_string(store.typeNames) + ", " + std::to_string(store.attributeNames) + ", " +
           span("integers", store.integers.size()) + ", " + span("reals", store.reals.size()) + ", code};\n}\n\n" +
           "const RuleTables* ruleTables(std::string_view schema) noexcept {\n" +
           "    static const RuleTables tables[] = {" + calls + "};\n    for (const RuleTables& release : tables) {\n" +
           "        if (release.schema == schema) return &release;\n    }\n    return nullptr;\n}\n\n" +
           "} // namespace velkor::rules\n";
}

/// The rows of one table; the span that the release has of it.
class ReleaseUnit {
public:
    explicit ReleaseUnit(const rules::RuleStore& store) : _store(store) {}

    template <class Row, class Write>
    void add(const char* type, const char* name, std::span<const Row> rows, Write write) {
        _members += ", " + span(name, rows.size());
        if (rows.empty()) return;
        _tables += std::string("constexpr ") + type + ' ' + name + "[] = {\n";
        for (const Row& row : rows) _tables += "    " + write(row) + '\n';
        _tables += "};\n\n";
    }

    std::string rule(const rules::WhereRule& rule) const {
        return row({rule.owner, rule.ownerName, rule.label, rule.expression, rule.wording, rule.code},
                   shown(rule.ownerName, rule.label));
    }
    std::string unique(const rules::UniqueRule& rule) const {
        return row(
            {rule.entity, rule.entityName, rule.label, rule.expression, rule.firstAttribute, rule.attributeCount},
            shown(rule.entityName, rule.label));
    }
    std::string inverse(const rules::InverseAttribute& attribute) const {
        return row({attribute.entity, attribute.name, attribute.user, attribute.attribute, attribute.lower,
                    attribute.upper, attribute.isAggregate, attribute.isBag, attribute.entityName,
                    attribute.spelledName, attribute.expression},
                   shown(attribute.entityName, attribute.spelledName));
    }
    std::string derived(const rules::DerivedAttribute& attribute) const {
        return row({attribute.entity, attribute.name, attribute.code}, shown(attribute.entity, attribute.name));
    }
    std::string function(const rules::Function& function) const {
        return row({function.name, function.parameterCount, function.code}, std::string(_store.text(function.name)));
    }

    std::string text(std::string_view schema, const std::string& inputs) const {
        const std::string name(schema);
        return head(inputs) + _tables + "} // namespace\n\nRuleTables tablesOf" + name +
               "() noexcept;\nRuleTables tablesOf" + name + "() noexcept {\n    return {\"" + name + '"' + _members +
               "};\n}\n\n} // namespace velkor::rules\n";
    }

private:
    std::string shown(rules::TextId owner, rules::TextId label) const {
        return std::string(_store.text(owner)) + '.' + std::string(_store.text(label));
    }
    static std::string row(std::initializer_list<std::int64_t> values, const std::string& remark) {
        std::string result = "{";
        for (const std::int64_t value : values) result += (result.size() == 1 ? "" : ", ") + std::to_string(value);
        return result + "}, // " + remark;
    }

    const rules::RuleStore& _store;
    std::string _tables;
    std::string _members;
};

std::string releaseUnit(const rules::RuleStore& store, const rules::RuleTables& tables, const std::string& inputs) {
    ReleaseUnit unit(store);
    const auto rule = [&](const auto& row) { return unit.rule(row); };
    unit.add("WhereRule", "entityRules", tables.entityRules, rule);
    unit.add("WhereRule", "typeRules", tables.typeRules, rule);
    unit.add("WhereRule", "globalRules", tables.globalRules, rule);
    unit.add("UniqueRule", "uniqueRules", tables.uniqueRules, [&](const auto& row) { return unit.unique(row); });
    unit.add("TextId", "uniqueAttributes", tables.uniqueAttributes,
             [&](rules::TextId id) { return std::to_string(id) + ", // " + std::string(store.text(id)); });
    unit.add("InverseAttribute", "inverseAttributes", tables.inverseAttributes,
             [&](const auto& row) { return unit.inverse(row); });
    unit.add("DerivedAttribute", "derivedAttributes", tables.derivedAttributes,
             [&](const auto& row) { return unit.derived(row); });
    unit.add("Function", "functions", tables.functions, [&](const auto& row) { return unit.function(row); });
    return unit.text(tables.schema, inputs);
}

} // namespace

std::vector<express::GeneratedUnit> ruleUnits(RuleCompiler& compiler, const std::vector<std::string>& inputs) {
    const rules::RuleStore store = compiler.store();
    std::string all;
    for (const std::string& input : inputs) (all.empty() ? all : all += ", ") += input;
    std::vector<express::GeneratedUnit> units{{"RuleStore.cpp", storeUnit(store, all, compiler)}};
    for (std::size_t i = 0; i < compiler.count(); ++i) {
        const rules::RuleTables tables = compiler.tables(i);
        units.push_back({std::string(tables.schema) + "Rules.cpp", releaseUnit(store, tables, inputs[i])});
    }
    return units;
}

} // namespace velkor::rulegen
