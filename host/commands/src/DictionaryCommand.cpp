// velkor dictionary list|show|entity|rule|diff

#include "Commands.h"
#include "output/DictionaryDiffText.h"
#include "output/Json.h"
#include "output/RuleText.h"
#include "ReleaseName.h"
#include "terminal/TextTable.h"
#include "velkor/dictionaries/DictionaryDiff.h"
#include "velkor/dictionaries/EntityFacts.h"
#include "velkor/dictionaries/VersionMappingDocument.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"
#include "velkor/text/Wording.h"

#include <array>
#include <nlohmann/json.hpp>
#include <string>

namespace velkor::host {

namespace {

using sdai::EntityDefinition;
using sdai::SchemaCounts;
using SchemaPointer = DXSdaiDictionaryRepo::SchemaPointer;

/// The schema that a user means. Null after saying why there is none and setting the status.
SchemaPointer chooseSchema(CommandContext& context, const std::string& release) {
    const std::string name = releaseNamed(context, release);
    if (name.empty()) return nullptr;
    auto schema = DXSdaiDictionaryRepo::TheOne().schema(name);
    if (schema) return *schema;
    context.reportUnreadable(schema.error().message);
    return nullptr;
}

struct CountColumn {
    const char* heading;
    const char* member;
    int SchemaCounts::*count;
};

constexpr std::array<CountColumn, 11> countColumns{{
    {"declarations", "declarations", &SchemaCounts::declarations},
    {"statements", "statements", &SchemaCounts::statements},
    {"entities", "entities", &SchemaCounts::entities},
    {"defined types", "defined_types", &SchemaCounts::definedTypes},
    {"enumerations", "enumerations", &SchemaCounts::enumerationTypes},
    {"selects", "selects", &SchemaCounts::selectTypes},
    {"aggregates", "aggregates", &SchemaCounts::aggregateTypes},
    {"explicit", "explicit_attributes", &SchemaCounts::explicitAttributes},
    {"derived", "derived_attributes", &SchemaCounts::derivedAttributes},
    {"uniqueness", "uniqueness_rules", &SchemaCounts::uniquenessRules},
    {"Entities statements", "entities_statements", &SchemaCounts::entitiesStatements},
}};

void runList(CommandContext& context) {
    std::vector<TextTable::Column> columns{{"schema"}};
    for (const CountColumn& column : countColumns) columns.push_back({column.heading, TextTable::Right});
    columns.push_back({"rules", TextTable::Right});
    TextTable table(columns);
    Json schemas = Json::array();
    for (const std::string& name : DXSdaiDictionaryRepo::TheOne().names()) {
        const SchemaPointer schema = chooseSchema(context, name);
        if (!schema) continue;
        std::vector<std::string> cells{name};
        Json entry{{"name", name}};
        for (const CountColumn& column : countColumns) {
            const int count = schema->counts().*column.count;
            cells.push_back(std::to_string(count));
            entry[column.member] = count;
        }
        const RuleCounts rules = ruleCounts(name);
        cells.push_back(std::to_string(rules.total()));
        entry["rules"] = countsJson(rules);
        table.add({cells.begin(), cells.end()});
        schemas.push_back(std::move(entry));
    }
    if (context.json())
        writeJson(context.out, {{"schemas", schemas}});
    else
        table.write(context.out);
}

void runShow(CommandContext& context, const std::string& release, bool declarations) {
    const SchemaPointer schema = chooseSchema(context, release);
    if (!schema) return;
    const auto lists = DXSdaiDictionaryRepo::TheOne().lists(schema->name());
    const auto texts = declarations ? lists.declarations : lists.statements;
    if (context.json()) {
        writeJson(context.out, {{"schema", schema->name()},
                                {"list", declarations ? "declarations" : "statements"},
                                {"texts", std::vector<std::string>(texts.begin(), texts.end())}});
        return;
    }
    for (const char* text : texts) context.out << text << '\n';
}

Json attributeJson(const EntityFacts::Attribute& attribute) {
    return {{"name", attribute.name},
            {"owner", attribute.owner},
            {"type", attribute.type},
            {"optional", attribute.isOptional},
            {"derived", attribute.isDerived}};
}

Json entityJson(const EntityFacts& entity) {
    Json attributes = Json::array(), derived = Json::array(), rules = Json::array();
    for (const auto& attribute : entity.attributes)
        (attribute.position > 0 ? attributes : derived).push_back(attributeJson(attribute));
    for (const auto& rule : entity.uniquenessRules)
        rules.push_back({{"label", rule.label}, {"attributes", rule.attributes}});
    return {{"schema", entity.schema},
            {"entity", entity.name},
            {"abstract", entity.isAbstract},
            {"supertypes", entity.supertypes},
            {"subtypes", entity.subtypes},
            {"attributes", std::move(attributes)},
            {"derived_attributes", std::move(derived)},
            {"uniqueness_rules", std::move(rules)},
            {"rules", rulesJson(entity.rules)}};
}

void writeEntity(TextSink out, const EntityFacts& entity) {
    out << entity.name << " of " << entity.schema << (entity.isAbstract ? ", abstract" : "") << '\n';
    if (!entity.supertypes.empty()) out << "supertypes: " << text::joined(entity.supertypes) << '\n';
    if (!entity.subtypes.empty()) out << "subtypes: " << text::joined(entity.subtypes) << '\n';
    TextTable attributes({{"#", TextTable::Right}, {"attribute"}, {"owner"}, {"value"}, {"type"}});
    for (const auto& attribute : entity.attributes) {
        attributes.add({attribute.position > 0 ? std::to_string(attribute.position) : "-", attribute.name,
                        attribute.owner,
                        attribute.isDerived    ? "derived"
                        : attribute.isOptional ? "optional"
                                               : "required",
                        attribute.type});
    }
    if (attributes.empty()) {
        out << "no attributes\n";
    } else {
        out << '\n';
        attributes.write(out);
    }
    out << '\n';
    writeRules(out, entity.rules);
}

void runEntity(CommandContext& context, const std::string& release, const std::string& name) {
    const SchemaPointer schema = chooseSchema(context, release);
    if (!schema) return;
    if (const EntityDefinition* entity = schema->entity(name)) {
        if (context.json())
            writeJson(context.out, entityJson(entityFacts(*entity)));
        else
            writeEntity(context.out, entityFacts(*entity));
        return;
    }
    context.status = Findings;
    if (const sdai::DefinedType* type = schema->definedType(name)) {
        context.err << "velkor: " << type->name() << " of " << schema->name()
                    << " is a type, not an entity: " << type->underlying().expressText() << '\n';
        return;
    }
    context.err << "velkor: " << schema->name() << " has no entity \"" << name << '"';
    const auto nearest = nearestEntities(*schema, name);
    if (!nearest.empty()) context.err << "; nearest: " << text::joined(nearest);
    context.err << '\n';
}

void runRule(CommandContext& context, const std::string& release, const std::string& name) {
    const SchemaPointer schema = chooseSchema(context, release);
    if (!schema) return;
    if (name.empty()) {
        const std::vector<RuleFacts> rules = rulesOf(schema->name());
        if (!context.json()) return writeRules(context.out, rules);
        return writeJson(context.out, {{"schema", schema->name()}, {"rules", rulesJson(rules)}});
    }
    if (const auto rule = ruleNamed(schema->name(), name)) {
        if (!context.json()) return writeRule(context.out, schema->name(), *rule);
        Json answer{{"schema", schema->name()}};
        answer.update(ruleJson(*rule));
        return writeJson(context.out, answer);
    }
    context.status = Findings;
    context.err << "velkor: " << noSuchRule(schema->name(), name) << '\n';
}

void runDiff(CommandContext& context, const std::string& first, const std::string& second) {
    const SchemaPointer before = chooseSchema(context, first);
    if (!before) return;
    const SchemaPointer after = chooseSchema(context, second);
    if (!after) return;
    const DictionaryDiff diff = compareDictionaries(*before, *after);
    if (context.json())
        writeJson(context.out, diffJson(before->name(), after->name(), diff));
    else
        writeDiff(context.out, before->name(), after->name(), diff);
}

/// Appends a pair of releases that the version mapping knows; false after saying why not.
bool addPair(CommandContext& context, const std::string& first, const std::string& second,
             std::vector<ReleasePair>& pairs, std::vector<SchemaPointer>& schemas) {
    for (const std::string& release : {first, second}) {
        schemas.push_back(chooseSchema(context, release));
        if (!schemas.back()) return false;
        if (!mappingReleaseText(schemas.back()->name()).empty()) continue;
        context.err << "velkor: version mappings have no name for " << schemas.back()->name()
                    << "; expected IFC2X3, IFC4 or IFC4X2\n";
        context.status = BadUsage;
        return false;
    }
    pairs.emplace_back(schemas[schemas.size() - 2].get(), schemas.back().get());
    return true;
}

void runAsMapping(CommandContext& context, const std::string& first, const std::string& second,
                  const std::vector<std::string>& others) {
    std::vector<ReleasePair> pairs;
    std::vector<SchemaPointer> schemas;
    if (!addPair(context, first, second, pairs, schemas)) return;
    for (const std::string& other : others) {
        const std::size_t colon = other.find(':');
        if (colon == std::string::npos) {
            context.err << "velkor: --also: expected BEFORE:AFTER, found \"" << other << "\"\n";
            context.status = BadUsage;
            return;
        }
        if (!addPair(context, other.substr(0, colon), other.substr(colon + 1), pairs, schemas)) return;
    }
    context.out.unfitted().lines(versionMappingDocument(pairs));
}

/// What the user typed for one of the subcommands.
struct Arguments {
    std::string release;
    std::string other;
    bool declarations = false;
    bool statements = false;
    bool asMapping = false;
    std::vector<std::string> also;
};

const Command addSubcommand(const Command& dictionary, const char* name, const char* description, const char* example) {
    const Command command = dictionary.addCommand(name, description);
    command.example(example);
    return command;
}

} // namespace

void addDictionaryCommand(const Command& app, CommandContext& context) {
    const Command dictionary = app.addCommand("dictionary", "The data dictionaries of the IFC releases");
    dictionary.requireCommand();
    dictionary.example("velkor dictionary entity IFC4 IFCWALL");
    const auto arguments = std::make_shared<Arguments>();

    const Command list =
        addSubcommand(dictionary, "list", "A row of counts per release", "velkor dictionary list --format json");
    context.complete(list, [&context] { runList(context); });

    const Command show =
        addSubcommand(dictionary, "show", "One of the two lists that a dictionary is made of, text by text",
                      "velkor dictionary show IFC4 --declarations");
    show.addOption("release", arguments->release, releaseHelp).required();
    const Command which = show.addAlternatives("list", "Which list");
    which.addFlag("--declarations", arguments->declarations, "Types, entities, attributes and rules with numbers");
    which.addFlag("--statements", arguments->statements, "What is stated about the numbered declarations");
    context.complete(show, [&context, arguments] { runShow(context, arguments->release, arguments->declarations); });

    const Command entity = addSubcommand(
        dictionary, "entity", "One entity with its inherited attributes, as instances hold them, and its rules",
        "velkor dictionary entity 4x3 IfcWall");
    entity.addOption("release", arguments->release, releaseHelp).required();
    entity.addOption("entity", arguments->other, "Name of an entity, in any letter case").required();
    context.complete(entity, [&context, arguments] { runEntity(context, arguments->release, arguments->other); });

    const Command rule =
        addSubcommand(dictionary, "rule", "One rule of a release, what it says and who states it; or all of them",
                      "velkor dictionary rule IFC4 IfcWall.CorrectPredefinedType");
    rule.addOption("release", arguments->release, releaseHelp).required();
    rule.addOption("rule", arguments->other,
                   "Owner and label, or a label or global rule alone that no other has; in any letter case");
    context.complete(rule, [&context, arguments] { runRule(context, arguments->release, arguments->other); });

    const Command diff = addSubcommand(dictionary, "diff", "What changed from one release to another",
                                       "velkor dictionary diff IFC2X3 IFC4");
    diff.addOption("before", arguments->release, releaseHelp).required();
    diff.addOption("after", arguments->other, "The release to compare with it").required();
    const Option asMapping = diff.addFlag("--as-mapping", arguments->asMapping,
                                          "Write a version mapping document (XML) in place of the changes");
    diff.addOption("--also", arguments->also, "Pairs of releases that the document has as well")
        .valueName("BEFORE:AFTER …")
        .needs(asMapping);
    context.complete(diff, [&context, arguments] {
        if (arguments->asMapping)
            runAsMapping(context, arguments->release, arguments->other, arguments->also);
        else
            runDiff(context, arguments->release, arguments->other);
    });
}

} // namespace velkor::host
