// velkor map

#include "Commands.h"
#include "MappingReleases.h"
#include "output/Json.h"
#include "QORIFCOptionsFromXCAD.h"
#include "ResourceNames.h"
#include "terminal/DisplayText.h"
#include "terminal/TextTable.h"
#include "velkor/configuration/ConfigurationTable.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/exchangeservices/QORIExchangeIFCCustomMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCMappingServices.h"
#include "velkor/exchangeservices/QORIExchangeIFCPLMAttributesMappingServices.h"
#include "velkor/objectmodeler/ClassDictionary.h"
#include "velkor/resources/ResourceSearch.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

/// What the user typed for one of the subcommands.
struct Arguments {
    std::string from;
    std::string to;
    std::string entity;
    std::string property;
    std::string scope;
    bool deprecated = false;
    bool introduced = false;
};

constexpr const char* scopeEndings[] = {names::custom::importEnding, names::custom::exportEnding};

QORUnicodeString unicode(const std::string& text) {
    return QORUnicodeString(std::string_view(text));
}

std::string text(const QORUnicodeString& text) {
    return std::string(text.utf8());
}

/// A status of a mapping service and what it means.
struct Meaning {
    HRESULT status;
    const char* name;
    const char* words;
};

constexpr Meaning meanings[] = {
    {IFC_MAPPING_MAPPED, "mapped", "a mapping applies"},
    {IFC_MAPPING_NONE, "none", "no mapping applies"},
    {IFC_MAPPING_DEPRECATED_ENTITY, "deprecated_entity", "the target release has no such entity"},
    {IFC_MAPPING_DEPRECATED_PROPERTY, "deprecated_property", "the target release has no such property of the entity"},
    {IFC_MAPPING_INTRODUCED_ENTITY, "introduced_entity", "the entity is new in the target release"},
    {IFC_MAPPING_INTRODUCED_PROPERTY, "introduced_property", "the property is new in the target release"},
    {S_OK, "found", "the document knows it"},
    {S_FALSE, "unknown_releases", "the document says nothing about this pair of releases"},
    {E_FAIL, "unknown", "nothing is known of it"},
};

// Of a pair that the document says nothing about, the query for one name just fails.
const Meaning& meaningOf(HRESULT status, bool isPairKnown) {
    const HRESULT meant = status == E_FAIL && !isPairKnown ? S_FALSE : status;
    const auto found = std::ranges::find(meanings, meant, &Meaning::status);
    return found == std::end(meanings) ? std::end(meanings)[-1] : *found;
}

std::string hexadecimal(HRESULT status) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (auto rest = static_cast<std::uint32_t>(status); rest != 0 || result.empty(); rest >>= 4U)
        result.insert(result.begin(), digits[rest & 0xFU]);
    return "0x" + result;
}

/// What a lookup answers: its status, and the names that it gives, by what they are; empty ones are not given.
struct Answer {
    std::string question;
    HRESULT status;
    Meaning meaning;
    std::vector<std::pair<const char*, std::string>> names;
    /// What a person should know beside that; empty for nothing.
    std::string remark;
    std::vector<std::string> documents;
};

void writeAnswer(CommandContext& context, const Answer& answer, Json question) {
    if (context.json()) {
        question["status"] = hexadecimal(answer.status);
        question["meaning"] = answer.meaning.name;
        for (const auto& [label, name] : answer.names) question[std::string("to_") + label] = textOrNull(name);
        question["remark"] = textOrNull(answer.remark);
        question["documents"] = answer.documents;
        return writeJson(context.out, question);
    }
    const TextSink& out = context.out;
    out << answer.question << '\n';
    const auto line = [&](std::string label, const std::string& said) {
        label.resize(14, ' ');
        if (!said.empty()) out << "  " << label << said << '\n';
    };
    line("status", hexadecimal(answer.status) + "  " + answer.meaning.words);
    for (const auto& [label, name] : answer.names) {
        std::string words = label;
        std::ranges::replace(words, '_', ' ');
        line(words, name);
    }
    line("remark", answer.remark);
    for (const std::string& document : answer.documents) line("document", document);
}

/// The file that a service uses; nothing after reporting that there is none.
std::optional<std::string> documentOf(CommandContext& context, const ResourceKind& kind, const PlatformSetup& setup) {
    const ResourceSearch search = searchResource(kind, setup);
    if (search.isUsable()) return search.used.front().path;
    context.reportUnreadable(std::string("no ") + kind.name + ": " + search.reason);
    return {};
}

bool isSwitchedOff() {
    return QORIFCOptionsFromXCAD::GetInstance()->GetValueIFCVersionMapping() == 0;
}

std::string switchRemark() {
    return isSwitchedOff() ? std::string(QORIFCOptionsFromXCAD::DisableVersionMappingOption) + " switches it off"
                           : std::string();
}

void badUsage(CommandContext& context, const std::string& reason) {
    context.err << "velkor: " << reason << '\n';
    context.status = BadUsage;
}

/// Code of a release; 0 after reporting that it is none.
int releaseCode(CommandContext& context, const std::string& release) {
    if (const auto* known = findMappingRelease<std::string_view>(&MappingRelease::text, release)) return known->code;
    badUsage(context, "unknown release \"" + release + "\"; expected one of " +
                          text::joined(mappingReleases, ", ", &MappingRelease::text));
    return 0;
}

// --- between releases ------------------------------------------------------------------------------

class VersionMapping {
public:
    VersionMapping(CommandContext& context, const Arguments& arguments, int from, int to)
        : _context(context), _arguments(arguments), _from(from), _to(to),
          _services(objectmodeler::createComponent("ExchangeIFCMappingServices")) {}

    void run(const PlatformSetup& setup) {
        const auto document = documentOf(_context, versionMappingResource, setup);
        if (!document) return;
        if (FAILED(_services->LoadVersionMappingDocument()))
            return _context.reportUnreadable(*document + ": cannot be read");
        _document = *document;
        if (_arguments.deprecated)
            listDeprecated();
        else if (_arguments.introduced)
            listIntroduced();
        else
            map();
    }

private:
    std::string pair() const { return _arguments.from + " -> " + _arguments.to; }
    Json pairJson() const { return {{"from", _arguments.from}, {"to", _arguments.to}}; }

    void map() {
        const bool isWhole = _arguments.property.empty();
        QORUnicodeString entity, property, renamed = unicode(_arguments.entity);
        // The table of another pair of releases would answer for this one.
        _services->ResetVersionMappingTable();
        Answer answer{};
        answer.status = _services->GetVersionMapping(_from, _to, unicode(_arguments.entity),
                                                     unicode(_arguments.property), entity, property);
        const HRESULT rename = _services->GetMappedEntityName(_from, _to, renamed);
        answer.meaning = meaningOf(answer.status, rename == S_OK);
        // Names come back in upper case even when nothing has become of them.
        const bool isRenamed =
            isWhole && rename == S_OK && text::toUpper(text(renamed)) != text::toUpper(_arguments.entity);
        // The outputs are untouched unless a mapping applies.
        answer.names = {{"entity", text(entity)},
                        {"property", text(property)},
                        {"entity_name", isRenamed ? text(renamed) : std::string()}};
        const bool isNothing = answer.status == IFC_MAPPING_NONE || FAILED(answer.status);
        _context.status = isNothing && !isRenamed ? Findings : Done;
        answer.question = _arguments.entity + (isWhole ? "" : '.' + _arguments.property) + "  " + pair();
        answer.remark = switchRemark();
        answer.documents = {_document};
        Json question = pairJson();
        question.update({{"entity", _arguments.entity}, {"property", textOrNull(_arguments.property)}});
        writeAnswer(_context, answer, std::move(question));
    }

    void listDeprecated() {
        QORListValQORUnicodeString entities;
        const HRESULT status = _services->GetDeprecatedEntities(_from, _to, entities);
        Json listed = Json::array();
        for (const QORUnicodeString& entity : entities) listed.push_back(text(entity));
        if (begin(status, entities.Size())) {
            for (const QORUnicodeString& entity : entities) _context.out << "  " << text(entity) << '\n';
            return;
        }
        end(status, "deprecated_entities", std::move(listed));
    }

    void listIntroduced() {
        QORListValQORUnicodeString entities, properties, values;
        const HRESULT status = _services->GetIntroducedPropertyValues(_from, _to, entities, properties, values);
        Json listed = Json::array();
        TextTable table({{"entity"}, {"property"}, {"value"}});
        for (int i = 1; i <= entities.Size(); ++i) {
            const std::string entity = text(entities[i]), property = text(properties[i]), value = text(values[i]);
            listed.push_back({{"entity", entity}, {"property", property}, {"value", value}});
            table.add({entity, property, value});
        }
        if (begin(status, entities.Size())) {
            if (!table.empty()) table.write(_context.out, "  ");
            return;
        }
        end(status, "introduced_values", std::move(listed));
    }

    // True when text for people is wanted, which has then been begun.
    bool begin(HRESULT status, int count) {
        _context.status = count == 0 ? Findings : Done;
        if (_context.json()) return false;
        _context.out << pair() << "  " << hexadecimal(status) << "  "
                     << (status == S_OK ? text::counted(static_cast<std::uint64_t>(count), "entry", "entries")
                                        : meaningOf(status, false).words)
                     << '\n';
        return true;
    }

    void end(HRESULT status, const char* name, Json listed) {
        Json json = pairJson();
        json.update({{"status", hexadecimal(status)}, {"meaning", meaningOf(status, false).name}});
        json[name] = std::move(listed);
        json["documents"] = Json::array({_document});
        writeJson(_context.out, json);
    }

    CommandContext& _context;
    const Arguments& _arguments;
    int _from;
    int _to;
    QORIExchangeIFCMappingServices_var _services;
    std::string _document;
};

void runVersion(CommandContext& context, const Arguments& arguments) {
    const int from = releaseCode(context, arguments.from);
    const int to = from == 0 ? 0 : releaseCode(context, arguments.to);
    if (to == 0) return;
    const int asked =
        (arguments.entity.empty() ? 0 : 1) + (arguments.deprecated ? 1 : 0) + (arguments.introduced ? 1 : 0);
    if (asked != 1) return badUsage(context, "expected one of ENTITY, --deprecated and --introduced");
    const PlatformSetup setup(context.configuration, context.tell());
    VersionMapping(context, arguments, from, to).run(setup);
}

// --- custom mappings -------------------------------------------------------------------------------

bool isScope(const std::string& scope) {
    return std::ranges::any_of(scopeEndings, [&](const char* ending) {
        return scope.size() > std::string_view(ending).size() && text::toUpper(scope).ends_with(text::toUpper(ending));
    });
}

void runCustom(CommandContext& context, const Arguments& arguments) {
    if (!isScope(arguments.scope)) {
        return badUsage(context, "--scope: expected the name of a type followed by _Import or _Export, found " +
                                     text::quoted(arguments.scope));
    }
    const PlatformSetup setup(context.configuration, context.tell());
    const auto document = documentOf(context, customMappingResource, setup);
    if (!document) return;
    const QORIExchangeIFCCustomMappingServices_var services =
        objectmodeler::createComponent("ExchangeIFCCustomMappingServices");
    if (FAILED(services->LoadCustomMapping())) return context.reportUnreadable(*document + ": cannot be read");
    QORUnicodeString entity, property;
    Answer answer{};
    answer.status = services->GetCustomMapping(unicode(arguments.entity), unicode(arguments.property),
                                               unicode(arguments.scope), entity, property);
    answer.meaning = meaningOf(answer.status, true);
    answer.names = {{"entity", text(entity)}, {"property", text(property)}};
    context.status = answer.status == IFC_MAPPING_MAPPED ? Done : Findings;
    answer.question =
        arguments.entity + (arguments.property.empty() ? "" : '.' + arguments.property) + "  " + arguments.scope;
    answer.remark = switchRemark();
    answer.documents = {*document};
    writeAnswer(
        context, answer,
        {{"entity", arguments.entity}, {"property", textOrNull(arguments.property)}, {"scope", arguments.scope}});
}

// --- PLM attributes --------------------------------------------------------------------------------

void runPlm(CommandContext& context, const Arguments& arguments) {
    const PlatformSetup setup(context.configuration, context.tell());
    const QORIExchangeIFCPLMAttributesMappingServices_var services =
        objectmodeler::createComponent("ExchangeIFCPLMAttributesMappingServices");
    services->LoadMapping();
    QORUnicodeString set, property;
    Answer answer{};
    answer.status =
        services->GetIFCPropertyFromPLMAttribute(unicode(arguments.entity), unicode(arguments.property), set, property);
    // One rule is the services' own, so that there may be an answer without any document.
    const ResourceSearch search = searchResource(plmAttributesMappingResource, setup);
    if (FAILED(answer.status) && !search.isUsable())
        return context.reportUnreadable(std::string("no ") + search.kind.name + ": " + search.reason);
    // What is in a file that could not be read may be the answer; why it could not has been told.
    if (FAILED(answer.status) && setup.hasToldErrors()) {
        context.status = Unreadable;
        return;
    }
    answer.meaning = meaningOf(answer.status, true);
    if (answer.status == S_OK) answer.meaning = meanings[0];
    answer.names = {{"set", text(set)}, {"property", text(property)}};
    context.status = answer.status == S_OK ? Done : Findings;
    answer.question = arguments.entity + '.' + arguments.property;
    for (const ResourceSearch::File& file : search.used) answer.documents.push_back(file.path);
    writeAnswer(context, answer, {{"plm_type", arguments.entity}, {"plm_attribute", arguments.property}});
}

CLI::App* addSubcommand(CLI::App& map, const char* name, const char* description, const char* example) {
    CLI::App* command = map.add_subcommand(name, description);
    command->footer(std::string("Example:\n  ") + example + "\n\nExit status 1 when nothing is mapped.");
    return command;
}

} // namespace

void addMapCommand(CLI::App& app, CommandContext& context) {
    CLI::App* map = app.add_subcommand("map", "What entities, properties and PLM attributes are mapped to");
    map->require_subcommand(1);
    map->footer("Example:\n  velkor map version --from 2x3 --to 4 IfcActionRequest RequestID");
    const auto arguments = std::make_shared<Arguments>();

    CLI::App* version = addSubcommand(*map, "version", "What becomes of an entity or property in another IFC release",
                                      "velkor map version --from 2x3 --to 4 IfcActionRequest RequestID");
    version->add_option("ENTITY", arguments->entity, "Name of the entity");
    version->add_option("PROPERTY", arguments->property, "Name of one of its properties");
    version
        ->add_option("--from", arguments->from,
                     "Release of the names: " + text::alternatives(mappingReleases, &MappingRelease::text))
        ->option_text("RELEASE")
        ->required();
    version->add_option("--to", arguments->to, "Release to map them to")->option_text("RELEASE")->required();
    version->add_flag("--deprecated", arguments->deprecated, "List the entities that the target release no longer has");
    version->add_flag("--introduced", arguments->introduced,
                      "List the properties that the target release introduces with a value");
    context.complete(*version, [&context, arguments] { runVersion(context, *arguments); });

    CLI::App* custom = addSubcommand(*map, "custom", "What is used in place of an entity or property for a type",
                                     "velkor map custom Pset_WallCommon FireRating --scope Building_Wall_Import");
    custom->add_option("ENTITY", arguments->entity, "Name of the entity or property set")->required();
    custom->add_option("PROPERTY", arguments->property, "Name of one of its properties");
    custom->add_option("--scope", arguments->scope, "Name of a type, followed by _Import or _Export")
        ->option_text("SCOPE")
        ->required();
    context.complete(*custom, [&context, arguments] { runCustom(context, *arguments); });

    CLI::App* plm = addSubcommand(*map, "plm", "The property that an attribute of a PLM type is written as",
                                  "velkor map plm Building_Wall V_FireRating");
    plm->add_option("TYPE", arguments->entity, "Name of the PLM type")->required();
    plm->add_option("ATTRIBUTE", arguments->property, "Name of the attribute")->required();
    context.complete(*plm, [&context, arguments] { runPlm(context, *arguments); });
}

} // namespace velkor::host
