// velkor map

#include "Commands.h"
#include "MappingReleases.h"
#include "output/Json.h"
#include "QORIFCOptionsFromXCAD.h"
#include "terminal/TextTable.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/mapping/Mappings.h"
#include "velkor/text/Wording.h"

#include <algorithm>
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

    std::string name() const { return property.empty() ? entity : entity + '.' + property; }
    std::string pair() const { return from + " -> " + to; }
    Json pairJson() const { return {{"from", from}, {"to", to}}; }
};

std::string hexadecimal(HRESULT status) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string result;
    for (auto rest = static_cast<std::uint32_t>(status); rest != 0 || result.empty(); rest >>= 4U)
        result.insert(result.begin(), digits[rest & 0xFU]);
    return "0x" + result;
}

/// A name that an answer may give, by what it is; an empty one is not given.
struct Label {
    const char* name;
    std::string MappingAnswer::*member;
};
using Labels = std::initializer_list<Label>;

void writeText(TextSink out, const std::string& question, const MappingAnswer& answer, Labels labels,
               const std::string& remark) {
    out << question << '\n';
    const auto line = [&](std::string label, const std::string& said) {
        label.resize(14, ' ');
        if (!said.empty()) out << "  " << label << said << '\n';
    };
    line("status", hexadecimal(answer.status) + "  " + answer.meaning.words);
    for (const auto& [name, member] : labels) {
        std::string words = name;
        std::ranges::replace(words, '_', ' ');
        line(words, answer.*member);
    }
    line("remark", remark);
    for (const std::string& document : answer.documents) line("document", document);
}

/// Writes what was asked, for people and as members of JSON, and what is answered.
void writeAnswer(CommandContext& context, const tl::expected<MappingAnswer, std::string>& answer,
                 const std::string& question, Json json, Labels labels) {
    if (!answer) {
        // Why a document could not be read may have been told.
        context.status = Unreadable;
        if (!answer.error().empty()) context.reportUnreadable(answer.error());
        return;
    }
    context.status = answer->isMapped ? Done : Findings;
    const std::string remark =
        answer->isSwitchedOff ? std::string(QORIFCOptionsFromXCAD::DisableVersionMappingOption) + " switches it off"
                              : std::string();
    if (!context.json()) return writeText(context.out, question, *answer, labels, remark);
    json["status"] = hexadecimal(answer->status);
    json["meaning"] = answer->meaning.name;
    for (const auto& [name, member] : labels) json[std::string("to_") + name] = textOrNull((*answer).*member);
    json["remark"] = textOrNull(remark);
    json["documents"] = answer->documents;
    writeJson(context.out, json);
}

void badUsage(CommandContext& context, const std::string& reason) {
    context.err << "velkor: " << reason << '\n';
    context.status = BadUsage;
}

/// Null after reporting that a text names no release.
const MappingRelease* releaseOf(CommandContext& context, const std::string& release) {
    const auto* known = findMappingRelease<std::string_view>(&MappingRelease::text, release);
    if (known == nullptr)
        badUsage(context, "unknown release " + text::quoted(release) + "; expected one of " +
                              text::joined(mappingReleases, ", ", &MappingRelease::text));
    return known;
}

/// Writes a list as members of JSON, each entry made by one function, or as rows of a table made by another.
template <class Entry, class ToJson, class ToRow>
void writeList(CommandContext& context, const tl::expected<MappingList<Entry>, std::string>& list,
               const Arguments& arguments, const char* name, ToJson toJson, ToRow writeRows) {
    if (!list) return context.reportUnreadable(list.error());
    context.status = list->entries.empty() ? Findings : Done;
    if (!context.json()) {
        context.out << arguments.pair() << "  " << hexadecimal(list->status) << "  "
                    << (list->status == S_OK ? text::counted(list->entries.size(), "entry", "entries")
                                             : list->meaning.words)
                    << '\n';
        return writeRows(list->entries);
    }
    Json json = arguments.pairJson(), entries = Json::array();
    for (const Entry& entry : list->entries) entries.push_back(toJson(entry));
    json.update({{"status", hexadecimal(list->status)}, {"meaning", list->meaning.name}});
    json[name] = std::move(entries);
    json["documents"] = Json::array({list->document});
    writeJson(context.out, json);
}

void listDeprecated(CommandContext& context, const Arguments& arguments,
                    const tl::expected<MappingList<std::string>, std::string>& list) {
    writeList(
        context, list, arguments, "deprecated_entities", [](const std::string& entity) { return Json(entity); },
        [&](const std::vector<std::string>& entities) {
            for (const std::string& entity : entities) context.out << "  " << entity << '\n';
        });
}

void listIntroduced(CommandContext& context, const Arguments& arguments,
                    const tl::expected<MappingList<IntroducedValue>, std::string>& list) {
    writeList(
        context, list, arguments, "introduced_values",
        [](const IntroducedValue& value) {
            return Json{{"entity", value.entity}, {"property", value.property}, {"value", value.value}};
        },
        [&](const std::vector<IntroducedValue>& values) {
            TextTable table({{"entity"}, {"property"}, {"value"}});
            for (const IntroducedValue& value : values) table.add({value.entity, value.property, value.value});
            if (!table.empty()) table.write(context.out, "  ");
        });
}

void runVersion(CommandContext& context, const Arguments& arguments) {
    const MappingRelease* from = releaseOf(context, arguments.from);
    const MappingRelease* to = from == nullptr ? nullptr : releaseOf(context, arguments.to);
    if (to == nullptr) return;
    const int asked =
        (arguments.entity.empty() ? 0 : 1) + (arguments.deprecated ? 1 : 0) + (arguments.introduced ? 1 : 0);
    if (asked != 1) return badUsage(context, "expected one of ENTITY, --deprecated and --introduced");
    const PlatformSetup setup(context.configuration, context.tell());
    if (arguments.deprecated) return listDeprecated(context, arguments, deprecatedEntities(setup, *from, *to));
    if (arguments.introduced) return listIntroduced(context, arguments, introducedValues(setup, *from, *to));
    Json question = arguments.pairJson();
    question.update({{"entity", arguments.entity}, {"property", textOrNull(arguments.property)}});
    writeAnswer(context, mapBetweenReleases(setup, *from, *to, arguments.entity, arguments.property),
                arguments.name() + "  " + arguments.pair(), std::move(question),
                {{"entity", &MappingAnswer::entity},
                 {"property", &MappingAnswer::property},
                 {"entity_name", &MappingAnswer::entityName}});
}

void runCustom(CommandContext& context, const Arguments& arguments) {
    if (!isMappingScope(arguments.scope)) {
        return badUsage(context, "--scope: expected the name of a type followed by _Import or _Export, found " +
                                     text::quoted(arguments.scope));
    }
    const PlatformSetup setup(context.configuration, context.tell());
    writeAnswer(
        context, mapForType(setup, arguments.entity, arguments.property, arguments.scope),
        arguments.name() + "  " + arguments.scope,
        {{"entity", arguments.entity}, {"property", textOrNull(arguments.property)}, {"scope", arguments.scope}},
        {{"entity", &MappingAnswer::entity}, {"property", &MappingAnswer::property}});
}

void runPlm(CommandContext& context, const Arguments& arguments) {
    const PlatformSetup setup(context.configuration, context.tell());
    writeAnswer(context, mapPlmAttribute(setup, arguments.entity, arguments.property),
                arguments.entity + '.' + arguments.property,
                {{"plm_type", arguments.entity}, {"plm_attribute", arguments.property}},
                {{"set", &MappingAnswer::entity}, {"property", &MappingAnswer::property}});
}

const Command addSubcommand(const Command& map, const char* name, const char* description, const char* example) {
    const Command command = map.addCommand(name, description);
    command.example(std::string(example) + "\n\nExit status 1 when nothing is mapped.");
    return command;
}

} // namespace

void addMapCommand(const Command& app, CommandContext& context) {
    const Command map = app.addCommand("map", "What entities, properties and PLM attributes are mapped to");
    map.requireCommand();
    map.example("velkor map version --from 2x3 --to 4 IfcActionRequest RequestID");
    const auto arguments = std::make_shared<Arguments>();

    const Command version =
        addSubcommand(map, "version", "What becomes of an entity or property in another IFC release",
                      "velkor map version --from 2x3 --to 4 IfcActionRequest RequestID");
    version.addOption("ENTITY", arguments->entity, "Name of the entity");
    version.addOption("PROPERTY", arguments->property, "Name of one of its properties");
    version
        .addOption("--from", arguments->from,
                   "Release of the names: " + text::alternatives(mappingReleases, &MappingRelease::text))
        .valueName("RELEASE")
        .required();
    version.addOption("--to", arguments->to, "Release to map them to").valueName("RELEASE").required();
    version.addFlag("--deprecated", arguments->deprecated, "List the entities that the target release no longer has");
    version.addFlag("--introduced", arguments->introduced,
                    "List the properties that the target release introduces with a value");
    context.complete(version, [&context, arguments] { runVersion(context, *arguments); });

    const Command custom = addSubcommand(map, "custom", "What is used in place of an entity or property for a type",
                                         "velkor map custom Pset_WallCommon FireRating --scope Building_Wall_Import");
    custom.addOption("ENTITY", arguments->entity, "Name of the entity or property set").required();
    custom.addOption("PROPERTY", arguments->property, "Name of one of its properties");
    custom.addOption("--scope", arguments->scope, "Name of a type, followed by _Import or _Export")
        .valueName("SCOPE")
        .required();
    context.complete(custom, [&context, arguments] { runCustom(context, *arguments); });

    const Command plm = addSubcommand(map, "plm", "The property that an attribute of a PLM type is written as",
                                      "velkor map plm Building_Wall V_FireRating");
    plm.addOption("TYPE", arguments->entity, "Name of the PLM type").required();
    plm.addOption("ATTRIBUTE", arguments->property, "Name of the attribute").required();
    context.complete(plm, [&context, arguments] { runPlm(context, *arguments); });
}

} // namespace velkor::host
