#include "StatementList.h"

#include <array>

namespace velkor::sdai {

namespace {

constexpr Place anEntity{kindSet(DeclarationKind::Entity), "a reference to an entity"};
constexpr Place aDefinedType{kindSet(DeclarationKind::DefinedType), "a reference to a defined type"};
constexpr Place anAttribute{kindSet(DeclarationKind::ExplicitAttr, DeclarationKind::DerivedAttr),
                            "a reference to an attribute"};
constexpr Place aRule{kindSet(DeclarationKind::UniquenessRule), "a reference to a uniqueness rule"};

/// One statement being read.
struct Statement {
    TextReader& reader;
    const DeclarationList& declarations;
    StatementList& list;
    std::uint16_t subject;

    std::uint16_t reference(const Place& place) {
        return readReference(reader, declarations, declarations.declarations.size(), place);
    }

    void references(Relation& relation, const Place& place) {
        relation.references.first = static_cast<std::uint32_t>(list.references.size());
        do {
            list.references.push_back(reference(place));
        } while (reader.another());
        relation.references.count = static_cast<std::uint32_t>(list.references.size()) - relation.references.first;
    }

    // Attributes and rules belong to one entity, which is declared before them.
    void claim(std::uint16_t number) {
        if (reader.failed()) return;
        std::uint16_t& owner = list.ownedStatements[declarations[number].ordinal].owner;
        if (number < subject) return reader.fail("a declaration behind that of the entity");
        if (owner != 0) return reader.fail("one that no statement has named before");
        owner = subject;
    }
};

struct Keyword {
    std::string_view text;
    Place subject;
    /// Where the statement is kept; null for Entities, which may be stated again.
    Relation& (*relation)(StatementList&, const Declaration&);
    void (*read)(Statement&, Relation&);
};

void readVersion(Statement& s, Relation&) {
    for (int i = 0; i < 2; ++i) {
        if (i > 0) s.reader.comma();
        if (s.reader.integer(1) != 1) s.reader.fail("1");
    }
    s.reader.close();
}

void readDefinedTypes(Statement& s, Relation& relation) {
    s.references(relation, aDefinedType);
}

void readEntities(Statement& s, Relation& relation) {
    if (s.list.entities.size() % StatementList::EntitiesPerStatement != 0) {
        return s.reader.fail("100 entities in every Entities statement but the last");
    }
    const std::size_t before = s.list.entities.size();
    do {
        s.list.entities.push_back(s.reference(anEntity));
    } while (s.reader.another());
    if (s.list.entities.size() - before > StatementList::EntitiesPerStatement) {
        s.reader.fail("at most 100 entities in a statement");
    }
    s.list.entitiesStatement = relation.statement;
    ++s.list.entitiesStatements;
}

void readSupertypes(Statement& s, Relation& relation) {
    relation.references = {static_cast<std::uint32_t>(s.list.references.size()), 1};
    const std::uint16_t supertype = s.reference(anEntity);
    if (!s.reader.failed() && supertype == s.subject) s.reader.fail("another entity");
    s.list.references.push_back(supertype);
    s.reader.close();
}

void readComposition(Statement& s, Relation& relation) {
    s.references(relation, anEntity);
}

OwnedStatements& readType(Statement& s) {
    OwnedStatements& about = s.list.ownedStatements[s.declarations[s.subject].ordinal];
    about.type = readType(s.reader, s.declarations, s.declarations.declarations.size(), places::valueType);
    return about;
}

void readExplicitInfos(Statement& s, Relation&) {
    OwnedStatements& about = readType(s);
    s.reader.comma();
    about.optional = s.reader.choice("OPT", "REQ", "OPT or REQ");
    s.reader.close();
}

void readDerivedInfos(Statement& s, Relation&) {
    readType(s);
    s.reader.close();
}

void readAttributes(Statement& s, Relation& relation) {
    relation.references.first = static_cast<std::uint32_t>(s.list.references.size());
    std::uint16_t previous = 0;
    bool derivedBegan = false;
    do {
        const std::uint16_t number = s.reference(anAttribute);
        s.claim(number);
        if (s.reader.failed()) return;
        const bool derived = s.declarations[number].kind == DeclarationKind::DerivedAttr;
        if (derived != derivedBegan) {
            if (derivedBegan) return s.reader.fail("explicit attributes before the derived ones");
            derivedBegan = true;
            previous = 0;
        }
        if (number < previous) return s.reader.fail("attributes in the order of their declarations");
        previous = number;
        s.list.references.push_back(number);
    } while (s.reader.another());
    relation.references.count = static_cast<std::uint32_t>(s.list.references.size()) - relation.references.first;
}

void readRuleInfos(Statement& s, Relation& relation) {
    s.references(relation, anAttribute);
}

void readRules(Statement& s, Relation& relation) {
    relation.references.first = static_cast<std::uint32_t>(s.list.references.size());
    do {
        const std::uint16_t number = s.reference(aRule);
        s.claim(number);
        s.list.references.push_back(number);
    } while (s.reader.another());
    relation.references.count = static_cast<std::uint32_t>(s.list.references.size()) - relation.references.first;
}

template <Relation EntityStatements::*Member>
Relation& ofEntity(StatementList& list, const Declaration& subject) {
    return list.entityStatements[subject.ordinal].*Member;
}
template <Relation StatementList::*Member>
Relation& ofSchema(StatementList& list, const Declaration&) {
    return list.*Member;
}
Relation& infos(StatementList& list, const Declaration& subject) {
    return list.ownedStatements[subject.ordinal].infos;
}

constexpr Place theSchema{kindSet(DeclarationKind::Schema), "the schema as the subject"};
constexpr Place entitySubject{kindSet(DeclarationKind::Entity), "an entity as the subject"};
constexpr Place explicitSubject{kindSet(DeclarationKind::ExplicitAttr), "an explicit attribute as the subject"};
constexpr Place derivedSubject{kindSet(DeclarationKind::DerivedAttr), "a derived attribute as the subject"};
constexpr Place ruleSubject{kindSet(DeclarationKind::UniquenessRule), "a uniqueness rule as the subject"};

constexpr std::array<Keyword, 10> keywords{{
    {"ExplAttrInfos", explicitSubject, infos, readExplicitInfos},
    {"Composition", entitySubject, ofEntity<&EntityStatements::composition>, readComposition},
    {"Supertypes", entitySubject, ofEntity<&EntityStatements::supertypes>, readSupertypes},
    {"Attributes", entitySubject, ofEntity<&EntityStatements::attributes>, readAttributes},
    {"DerivAttrInfos", derivedSubject, infos, readDerivedInfos},
    {"UniqRuleInfos", ruleSubject, infos, readRuleInfos},
    {"Uniqueness_rules", entitySubject, ofEntity<&EntityStatements::rules>, readRules},
    {"Entities", theSchema, nullptr, readEntities},
    {"DefTypes", theSchema, ofSchema<&StatementList::definedTypes>, readDefinedTypes},
    {"SchemaVersionRelease", theSchema, ofSchema<&StatementList::version>, readVersion},
}};

/// The answer is empty, or what is wrong when that is not for the reader to say.
std::string readStatement(TextReader& reader, const DeclarationList& declarations, StatementList& list,
                          std::uint32_t position) {
    const std::uint32_t number = reader.reference();
    if (!reader.failed() && number > declarations.last()) reader.fail("the number of a declaration");
    TextReader subject = reader;
    reader.expect('.', "\".\"");
    const std::string_view word = reader.keyword();
    if (reader.failed()) return {};
    for (const Keyword& keyword : keywords) {
        if (keyword.text != word) continue;
        if (!keyword.subject.fits(declarations[number].kind)) {
            subject.fail(keyword.subject.expected);
            return subject.message();
        }
        Relation several;
        Relation& relation = keyword.relation ? keyword.relation(list, declarations[number]) : several;
        if (relation.statement != 0) {
            return "expected one statement of its kind, found another in statement " +
                   std::to_string(relation.statement);
        }
        relation.statement = position;
        Statement statement{reader, declarations, list, static_cast<std::uint16_t>(number)};
        keyword.read(statement, relation);
        return {};
    }
    reader.fail("the keyword of a statement");
    return {};
}

} // namespace

tl::expected<StatementList, std::string> readStatements(std::span<const char* const> texts,
                                                        const DeclarationList& declarations) {
    StatementList list;
    list.entityStatements.resize(declarations.entities);
    list.ownedStatements.resize(declarations.attributesAndRules);
    // Few statements hold more than a handful of references; this saves most of the growing.
    list.references.reserve(2 * texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const char* text = texts[i];
        const std::size_t position = i + 1;
        if (text == nullptr) return tl::unexpected(listError("statement", position, "", "expected a text, found none"));
        TextReader reader(text);
        std::string error = readStatement(reader, declarations, list, static_cast<std::uint32_t>(position));
        if (error.empty() && reader.failed()) error = reader.message();
        if (!error.empty()) return tl::unexpected(listError("statement", position, text, error));
    }
    return list;
}

} // namespace velkor::sdai
