#include "DictionaryLists.h"

#include <algorithm>
#include <optional>
#include <unordered_map>

namespace velkor::dictgen {

using namespace express;

namespace {

using Kind = ExpressType::Kind;

// What one declaration needs leads through some hundred others in a large schema.
constexpr int deepestWalk = 1000;
// A list's numbers have 16 bits where it is restored.
constexpr std::size_t longestList = 65535;
constexpr std::size_t entitiesPerStatement = 100;

std::string upperCase(std::string text) {
    for (char& c : text) {
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    }
    return text;
}

std::string joined(const std::vector<std::string>& texts) {
    std::string result;
    for (const std::string& text : texts) (result.empty() ? result : result += ',') += text;
    return result;
}

std::string reference(int number) {
    return '#' + std::to_string(number);
}

/// A defined type or an entity, with the numbers it was given.
struct Named {
    std::string name; // upper case
    const ExpressDefinedType* type = nullptr;
    const ExpressEntity* entity = nullptr;

    int number = 0;
    bool isStated = false;
    /// Of an entity's explicit attributes, then its derived ones: number, and type as the lists write it.
    struct AttributeEntry {
        int number;
        std::string type;
    };
    std::vector<AttributeEntry> attributes;
    std::vector<int> rules;
};

class Numbering {
public:
    explicit Numbering(const ExpressSchema& schema) {
        std::vector<Named> types, entities;
        for (const auto& type : schema.types) types.push_back({upperCase(type.name), &type, nullptr, 0, false, {}, {}});
        for (const auto& entity : schema.entities) {
            entities.push_back({upperCase(entity.name), nullptr, &entity, 0, false, {}, {}});
        }
        // By spelling, so that upper case sorts before lower case.
        std::ranges::stable_sort(types, [](const Named& a, const Named& b) {
            return std::pair(group(*a.type), a.type->name) < std::pair(group(*b.type), b.type->name);
        });
        std::ranges::stable_sort(entities, {}, [](const Named& n) { return n.entity->name; });
        _typeCount = types.size();
        _base = std::move(types);
        std::ranges::move(entities, std::back_inserter(_base));
        for (std::size_t i = 0; i < _base.size(); ++i) {
            if (!_byName.emplace(_base[i].name, i).second) fail(_base[i].name + " is declared twice");
        }
    }

    tl::expected<DictionaryLists, std::string> run(const std::string& schemaName) {
        declare("Schema(" + schemaName + ")");
        for (Named& named : _base) declareNamed(named);
        if (!_error) stateAll();
        if (_error) return tl::unexpected(*_error);
        return std::move(_lists);
    }

private:
    static int group(const ExpressDefinedType& type) {
        return type.underlying.kind == Kind::Enumeration ? 1 : type.underlying.kind == Kind::Select ? 2 : 0;
    }

    void fail(std::string message) {
        if (!_error) _error = std::move(message);
    }

    /// Counts the depth of the walk; false when it is too deep or an error has been found.
    struct Step {
        Numbering& numbering;
        explicit Step(Numbering& n, const Named& at) : numbering(n) {
            if (++n._depth > deepestWalk) n.fail(at.name + " is defined by itself or needs too many others at once");
        }
        ~Step() { --numbering._depth; }
        explicit operator bool() const { return !numbering._error; }
    };

    int declare(std::string text) {
        _lists.declarations.push_back(std::move(text));
        if (_lists.declarations.size() > longestList) fail("the schema has too many declarations");
        return static_cast<int>(_lists.declarations.size());
    }
    void state(int subject, const char* keyword, const std::string& arguments) {
        _lists.statements.push_back(reference(subject) + "." + keyword + "(" + arguments + ")");
    }

    Named* find(const std::string& name, const std::string& neededBy) {
        const auto found = _byName.find(upperCase(name));
        if (found != _byName.end()) return &_base[found->second];
        fail(neededBy + " needs " + name + ", which is not declared");
        return nullptr;
    }
    Named* findEntity(const std::string& name, const std::string& neededBy) {
        Named* named = find(name, neededBy);
        if (named == nullptr || named->entity != nullptr) return named;
        fail(neededBy + " needs " + name + " to be an entity");
        return nullptr;
    }

    void declareNamed(Named& named) {
        const Step step(*this, named);
        if (!step || named.number != 0) return;
        named.entity != nullptr ? declareEntity(named) : declareType(named);
    }

    void declareType(Named& named) {
        const ExpressType& type = named.type->underlying;
        std::string underlying;
        if (type.kind == Kind::Enumeration) {
            std::vector<std::string> values;
            for (const std::string& value : type.names) values.push_back(upperCase(value));
            failAtRepeated(values, named.name);
            underlying = reference(declare("EnumerationType(" + joined(values) + ")"));
        } else if (type.kind == Kind::Select) {
            underlying = reference(declareSelect(named));
        } else {
            const Named* other = type.kind == Kind::Named ? find(type.text, named.name) : nullptr;
            if (other != nullptr && other->entity != nullptr) {
                fail(named.name + " needs " + type.text + " to be a type");
            }
            declareNeeds(type, named.name);
            // An entity among them may have led back here.
            if (named.number != 0) return;
            underlying = declareUse(type, named.name);
        }
        named.number = declare("DefinedType(" + named.name + "," + underlying + ")");
    }

    void failAtRepeated(std::vector<std::string> names, const std::string& owner) {
        std::ranges::sort(names);
        const auto repeated = std::ranges::adjacent_find(names);
        if (repeated != names.end()) fail(owner + " has " + *repeated + " twice");
    }

    // A select counts as declared only when this is done: one that its own items lead back to is declared
    // there, and here once more.
    int declareSelect(const Named& named) {
        std::vector<std::string> items;
        for (const std::string& name : named.type->underlying.names) {
            if (Named* item = find(name, named.name)) declareNamed(*item);
        }
        for (const std::string& name : named.type->underlying.names) {
            if (const Named* item = find(name, named.name)) items.push_back(reference(item->number));
        }
        return declare("SelectType(" + joined(items) + ")");
    }

    void declareNeeds(const ExpressType& type, const std::string& user) {
        if (type.isAggregate()) return declareNeeds(*type.element, user);
        if (type.kind != Kind::Named) return;
        if (Named* named = find(type.text, user)) declareNamed(*named);
    }

    /// Declares what a use of a type needs, and gives the type as the lists write it.
    std::string declareUse(const ExpressType& type, const std::string& user) {
        if (type.kind == Kind::Simple) return type.text;
        if (type.isAggregate()) return reference(declareAggregate(type, user));
        Named* named = find(type.text, user);
        if (named == nullptr) return {};
        declareNamed(*named);
        return reference(named->number);
    }

    int declareAggregate(const ExpressType& type, const std::string& user) {
        std::string arguments =
            declareUse(*type.element, user) + "," + std::to_string(type.lower) + "," + std::to_string(type.upper);
        const char* unique = type.isUnique ? ",UNIQ" : ",DUPL";
        if (type.kind == Kind::Set) return declare("SetType(" + arguments + ")");
        if (type.kind == Kind::List) return declare("ListType(" + arguments + unique + ")");
        return declare("ArrayType(" + arguments + unique + (type.isOptional ? ",OPT)" : ",REQ)"));
    }

    void declareEntity(Named& named) {
        const ExpressEntity& entity = *named.entity;
        named.number = declare("Entity(" + named.name + (entity.isAbstract ? ",ABSTRACT" : ",INSTANTIABLE") +
                               ",SIMPLE,INDEPENDENT)");
        if (!entity.supertype.empty()) {
            if (Named* supertype = findEntity(entity.supertype, named.name)) declareNamed(*supertype);
        }
        for (const ExpressAttribute& attribute : entity.explicitAttributes) {
            declareAttribute(named, "ExplicitAttr(", attribute);
        }
        for (const ExpressAttribute& attribute : entity.derivedAttributes) {
            declareAttribute(named, "DerivedAttr(", attribute);
        }
        for (const ExpressUniquenessRule& rule : entity.uniquenessRules) {
            named.rules.push_back(declare("UniquenessRule(" + upperCase(rule.label) + ")"));
        }
    }

    void declareAttribute(Named& named, const char* kind, const ExpressAttribute& attribute) {
        const int number = declare(kind + upperCase(attribute.name) + ")");
        std::string type = declareUse(attribute.type, named.name);
        named.attributes.push_back({number, std::move(type)});
    }

    void stateAll() {
        state(1, "SchemaVersionRelease", "1,1");
        std::vector<std::string> references;
        for (std::size_t i = 0; i < _typeCount; ++i) {
            stateNamed(_base[i]);
            references.push_back(reference(_base[i].number));
        }
        if (!references.empty()) state(1, "DefTypes", joined(references));

        references.clear();
        for (std::size_t i = _typeCount; i < _base.size(); ++i) {
            stateNamed(_base[i]);
            references.push_back(reference(_base[i].number));
            if (references.size() < entitiesPerStatement && i + 1 < _base.size()) continue;
            state(1, "Entities", joined(references));
            references.clear();
        }
    }

    void stateNamed(Named& named) {
        const Step step(*this, named);
        if (!step || named.isStated) return;
        named.isStated = true;
        named.entity != nullptr ? stateEntity(named) : stateUse(named.type->underlying, named.name);
    }

    /// A type has no statements of its own, but entities are reached through it.
    void stateUse(const ExpressType& type, const std::string& user) {
        if (type.isAggregate()) return stateUse(*type.element, user);
        if (type.kind == Kind::Named) stateName(type.text, user);
        if (type.kind == Kind::Select) {
            for (const std::string& item : type.names) stateName(item, user);
        }
    }
    void stateName(const std::string& name, const std::string& user) {
        if (Named* named = find(name, user)) stateNamed(*named);
    }

    void stateEntity(Named& named) {
        const ExpressEntity& entity = *named.entity;
        if (!entity.supertype.empty()) {
            Named* supertype = findEntity(entity.supertype, named.name);
            if (supertype == nullptr) return;
            stateNamed(*supertype);
            state(named.number, "Supertypes", reference(supertype->number));
        }
        state(named.number, "Composition", composition(named));
        checkAttributes(named);

        std::vector<std::string> own;
        for (std::size_t i = 0; i < named.attributes.size(); ++i) {
            const bool isExplicit = i < entity.explicitAttributes.size();
            const ExpressAttribute& attribute = isExplicit
                                                    ? entity.explicitAttributes[i]
                                                    : entity.derivedAttributes[i - entity.explicitAttributes.size()];
            stateUse(attribute.type, named.name);
            const auto& [number, type] = named.attributes[i];
            if (isExplicit)
                state(number, "ExplAttrInfos", type + (attribute.isOptional ? ",OPT" : ",REQ"));
            else
                state(number, "DerivAttrInfos", type);
            own.push_back(reference(number));
        }
        if (!own.empty()) state(named.number, "Attributes", joined(own));
        stateRules(named);
    }

    std::vector<const Named*> lineage(const Named& named) {
        std::vector<const Named*> result{&named};
        while (!_error && !result.back()->entity->supertype.empty()) {
            const Named* supertype = findEntity(result.back()->entity->supertype, named.name);
            if (supertype == nullptr) break;
            if (std::ranges::find(result, supertype) != result.end()) {
                fail(named.name + " is a supertype of itself");
                break;
            }
            result.push_back(supertype);
        }
        return result;
    }

    std::string composition(const Named& named) {
        std::vector<const Named*> all = lineage(named);
        std::ranges::sort(all, {}, &Named::name);
        std::vector<std::string> references;
        for (const Named* one : all) references.push_back(reference(one->number));
        return joined(references);
    }

    /// A name is declared once in an entity, and what is derived stays so in its subtypes.
    void checkAttributes(const Named& named) {
        std::vector<std::string> own;
        for (const ExpressAttribute& one : named.entity->explicitAttributes) own.push_back(upperCase(one.name));
        for (const Named* owner : lineage(named)) {
            for (const ExpressAttribute& one : owner->entity->derivedAttributes) {
                const std::string name = upperCase(one.name);
                if (std::ranges::find(own, name) != own.end()) {
                    fail(named.name + " declares " + name + ", which is a derived attribute");
                }
            }
        }
        std::vector<std::string> derived;
        for (const ExpressAttribute& one : named.entity->derivedAttributes) derived.push_back(upperCase(one.name));
        failAtRepeated(std::move(own), named.name);
        failAtRepeated(std::move(derived), named.name);
    }

    void stateRules(const Named& named) {
        std::vector<std::string> rules;
        for (std::size_t i = 0; i < named.rules.size(); ++i) {
            const ExpressUniquenessRule& rule = named.entity->uniquenessRules[i];
            std::vector<std::string> attributes;
            for (const std::string& name : rule.attributes)
                attributes.push_back(reference(attributeNumber(named, name)));
            state(named.rules[i], "UniqRuleInfos", joined(attributes));
            rules.push_back(reference(named.rules[i]));
        }
        if (!rules.empty()) state(named.number, "Uniqueness_rules", joined(rules));
    }

    int attributeNumber(const Named& named, const std::string& name) {
        const auto isMeant = [&](const ExpressAttribute& attribute) {
            return upperCase(attribute.name) == upperCase(name);
        };
        for (const Named* owner : lineage(named)) {
            std::vector<ExpressAttribute> all = owner->entity->explicitAttributes;
            std::ranges::copy(owner->entity->derivedAttributes, std::back_inserter(all));
            const auto found = std::ranges::find_if(all, isMeant);
            if (found != all.end()) return owner->attributes[static_cast<std::size_t>(found - all.begin())].number;
        }
        fail("a uniqueness rule of " + named.name + " names " + name + ", which is no attribute of it");
        return 0;
    }

    std::vector<Named> _base;
    std::size_t _typeCount = 0;
    std::unordered_map<std::string, std::size_t> _byName;
    DictionaryLists _lists;
    int _depth = 0;
    std::optional<std::string> _error;
};

} // namespace

tl::expected<DictionaryLists, std::string> numberSchema(const std::string& schemaName, const ExpressSchema& schema) {
    return Numbering(schema).run(schemaName);
}

} // namespace velkor::dictgen
