#include "RuleCompiler.h"

#include "CodeCompiler.h"
#include "RuleWording.h"

#include <algorithm>
#include <tuple>

namespace velkor::rulegen {

using express::ExpressEntity;

namespace {

std::vector<express::ExpressSchema> schemasOf(const std::vector<RuleSource>& sources) {
    std::vector<express::ExpressSchema> schemas;
    for (const RuleSource& source : sources) schemas.push_back(source.schema);
    return schemas;
}

// The name of the schema in qualified names gives way to a mark, so that the text is the same in all releases.
std::string withoutSchema(const std::string& text, const std::string& schema) {
    const std::string qualified = '\'' + schema + '.';
    std::string result;
    std::size_t from = 0;
    for (std::size_t at = text.find(qualified); at != std::string::npos; at = text.find(qualified, from)) {
        result.append(text, from, at + 1 - from).append(1, '\x01');
        from = at + 1 + schema.size();
    }
    return result.append(text, from);
}

std::string joined(const std::vector<std::string>& names) {
    std::string result;
    for (const std::string& name : names) (result.empty() ? result : result += ", ") += name;
    return result;
}

std::string boundsText(const express::ExpressInverseAttribute& attribute) {
    std::string text = "[";
    text += std::to_string(attribute.lower);
    return text.append(":").append(attribute.upper < 0 ? "?" : std::to_string(attribute.upper)).append("]");
}

} // namespace

class RuleCompiler::ReleaseCompiler {
public:
    ReleaseCompiler(const RuleSource& source, StoreBuilder& store, Release& release)
        : diagnostics(source.name), _source(source), _names(source.schema), _spelled(spelledNames(source.schema)),
          _store(store), _release(release) {}

    void compile() {
        _release.schema = upperCase(_source.schema.name);
        for (const auto& type : _source.schema.types) addType(type);
        for (const ExpressEntity& entity : _source.schema.entities) addEntity(entity);
        for (const auto& rule : _source.schema.globalRules) addGlobalRule(rule);
        for (const auto& function : _source.schema.functions) {
            const auto count = static_cast<std::uint16_t>(function.parameters.size());
            _release.functions.push_back(
                {_store.text(upperCase(function.name)), count, compiler().functionCode(function)});
        }
        sort();
    }

    Diagnostics diagnostics;

private:
    CodeCompiler compiler() { return {_names, _store, diagnostics}; }

    rules::WhereRule rule(TextId owner, const std::string& ownerName, const express::ExpressWhereRule& where,
                          std::uint32_t code) {
        return {owner,
                _store.text(ownerName),
                _store.text(where.label),
                _store.text(withoutSchema(where.text, _release.schema)),
                _store.text(worded(*where.expression, _spelled)),
                code};
    }

    void addType(const express::ExpressDefinedType& type) {
        for (const auto& where : type.whereRules) {
            CodeCompiler code = compiler();
            code.setSelf(type.underlying);
            _release.typeRules.push_back(
                rule(_store.type(type.name), type.name, where, code.expressionCode(*where.expression)));
        }
    }

    void addEntity(const ExpressEntity& entity) {
        const TextId owner = _store.type(entity.name);
        for (const auto& where : entity.whereRules) {
            CodeCompiler code = compiler();
            code.setSelf(entity);
            _release.entityRules.push_back(rule(owner, entity.name, where, code.expressionCode(*where.expression)));
        }
        for (const auto& attribute : entity.derivedAttributes) addDerived(entity, attribute);
        for (const auto& attribute : entity.inverseAttributes) addInverse(entity, attribute);
        for (const auto& unique : entity.uniquenessRules) addUnique(entity, unique);
    }

    void addDerived(const ExpressEntity& entity, const express::ExpressAttribute& attribute) {
        express::Expression none;
        CodeCompiler code = compiler();
        code.setSelf(entity);
        const bool isKnown = _source.hasFunctions && attribute.expression;
        _release.derivedAttributes.push_back(
            {_store.type(entity.name), _store.attribute(attribute.name),
             code.expressionCode(isKnown ? *attribute.expression : none, &attribute.type)});
    }

    void addInverse(const ExpressEntity& entity, const express::ExpressInverseAttribute& attribute) {
        const auto* user = _names.entity(attribute.user);
        if (user == nullptr || !_names.attribute(*user, attribute.attribute).isThere) {
            return diagnostics.error(attribute.line, "there is no " + attribute.user + "." + attribute.attribute);
        }
        std::string declaration;
        if (attribute.isAggregate) declaration = (attribute.isBag ? "BAG " : "SET ") + boundsText(attribute) + " OF ";
        declaration += attribute.user + " FOR " + attribute.attribute;
        _release.inverseAttributes.push_back(
            {_store.type(entity.name), _store.attribute(attribute.name), _store.type(attribute.user),
             _store.attribute(attribute.attribute), attribute.lower, attribute.upper, attribute.isAggregate,
             attribute.isBag, _store.text(entity.name), _store.text(attribute.name), _store.text(declaration)});
    }

    void addUnique(const ExpressEntity& entity, const express::ExpressUniquenessRule& unique) {
        const std::size_t first = _release.uniqueAttributes.size();
        for (const std::string& name : unique.attributes) {
            if (!_names.attribute(entity, name).isThere) {
                diagnostics.error(unique.line, entity.name + " has no attribute " + name);
            }
            _release.uniqueAttributes.push_back(_store.attribute(name));
        }
        _release.uniqueRules.push_back({_store.type(entity.name), _store.text(entity.name), _store.text(unique.label),
                                        _store.text(joined(unique.attributes)), static_cast<std::uint16_t>(first),
                                        static_cast<std::uint16_t>(unique.attributes.size())});
    }

    void addGlobalRule(const express::ExpressGlobalRule& global) {
        for (const auto& where : global.whereRules) {
            _release.globalRules.push_back(rule(_store.text(upperCase(global.name)), global.name, where,
                                                compiler().globalRuleCode(global, where)));
        }
    }

    void sort() {
        std::ranges::stable_sort(_release.entityRules, {}, &rules::WhereRule::owner);
        std::ranges::stable_sort(_release.typeRules, {}, &rules::WhereRule::owner);
        std::ranges::stable_sort(_release.globalRules, {}, &rules::WhereRule::owner);
        std::ranges::stable_sort(_release.uniqueRules, {}, &rules::UniqueRule::entity);
        std::ranges::stable_sort(_release.inverseAttributes, {}, &rules::InverseAttribute::entity);
        std::ranges::stable_sort(_release.derivedAttributes, {}, &rules::DerivedAttribute::entity);
        std::ranges::stable_sort(_release.functions, {}, &rules::Function::name);
    }

    const RuleSource& _source;
    SchemaNames _names;
    SpelledNames _spelled;
    StoreBuilder& _store;
    Release& _release;
};

RuleCompiler::RuleCompiler(std::vector<RuleSource> sources) : _store(schemasOf(sources)), _releases(sources.size()) {
    for (std::size_t i = 0; i < sources.size(); ++i) {
        ReleaseCompiler compiler(sources[i], _store, _releases[i]);
        compiler.compile();
        _errors.insert(_errors.end(), compiler.diagnostics.errors.begin(), compiler.diagnostics.errors.end());
        _notes.insert(_notes.end(), compiler.diagnostics.notes.begin(), compiler.diagnostics.notes.end());
    }
    if (_store.isFull()) _errors.emplace_back("more texts or numbers than a table can hold");
}

rules::RuleTables RuleCompiler::tables(std::size_t release) const {
    const Release& from = _releases[release];
    return {from.schema,           from.entityRules,       from.typeRules,         from.globalRules, from.uniqueRules,
            from.uniqueAttributes, from.inverseAttributes, from.derivedAttributes, from.functions};
}

} // namespace velkor::rulegen
