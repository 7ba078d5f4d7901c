// velkor options

#include "Commands.h"
#include "output/Json.h"
#include "output/ProblemText.h"
#include "terminal/DisplayText.h"
#include "terminal/TextTable.h"
#include "velkor/configuration/ConfigurationTable.h"
#include "velkor/configuration/EffectiveOptions.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

std::string underscored(std::string text) {
    std::ranges::replace(text, ' ', '_');
    return text;
}

std::string spaced(std::string text) {
    std::ranges::replace(text, '_', ' ');
    return text;
}

std::string originText(const EffectiveOption& option) {
    std::string text = spaced(name(option.origin));
    for (std::size_t i = 0; i < option.sources.size(); ++i) text += (i == 0 ? ": " : ", ") + option.sources[i];
    if (option.isDerived) text += " (derived from the forced profile)";
    return text;
}

void writeText(CommandContext& context, const PlatformSetup& setup, const std::vector<EffectiveOption>& options) {
    const TextSink& out = context.out;
    const std::string& path = context.configuration.path;
    out << (path.empty() ? "no configuration" : "configuration " + path) << "\n\n";
    TextTable table({{"option"}, {"value", TextTable::Right}, {"meaning"}, {"origin"}, {"forced"}});
    for (const EffectiveOption& option : options) {
        table.add({option.name, std::to_string(option.value), option.meaning, originText(option),
                   option.isForced ? "yes" : "no"});
    }
    table.write(out);
    TextSink::Literal before = "\n";
    for (const EffectiveOption& option : options) {
        for (const std::string& remark : option.remarks) {
            out << before << option.name << ": " << shortenedOn(out, remark, longestMessage) << '\n';
            before = "";
        }
    }
    TextTable given({{"conversion option"}, {"value"}, {"outcome"}});
    for (const auto& option : setup.conversionOptions()) {
        given.add({option.name, option.value, spaced(outcomeName(option, options))});
    }
    if (given.empty()) return;
    out << '\n';
    given.write(out);
}

Json optionsJson(const std::string& path, const PlatformSetup& setup, const std::vector<EffectiveOption>& options) {
    Json listed = Json::array(), given = Json::array();
    for (const EffectiveOption& option : options) {
        listed.push_back({{"name", underscored(option.name)},
                          {"value", option.value},
                          {"meaning", option.meaning},
                          {"origin", name(option.origin)},
                          {"sources", option.sources},
                          {"derived", option.isDerived},
                          {"forced", option.isForced},
                          {"remarks", option.remarks}});
    }
    for (const auto& option : setup.conversionOptions()) {
        given.push_back({{"name", option.name}, {"value", option.value}, {"outcome", outcomeName(option, options)}});
    }
    return {{"configuration", path.empty() ? Json() : Json(path)},
            {"options", std::move(listed)},
            {"conversion_options", std::move(given)}};
}

void listVariables(CommandContext& context) {
    TextTable table({{"name"}, {"place"}, {"kind"}, {"meaning"}});
    Json items = Json::array();
    const auto add = [&](const ConfigurationItem& item) {
        table.add({item.name, name(item.place), item.kind, item.meaning});
        items.push_back(
            {{"name", item.name}, {"place", name(item.place)}, {"kind", item.kind}, {"meaning", item.meaning}});
    };
    std::ranges::for_each(programVariables, add);
    std::ranges::for_each(configurationItems, add);
    if (context.json())
        writeJson(context.out, {{"variables", std::move(items)}});
    else
        table.write(context.out);
}

void runOptions(CommandContext& context, bool list) {
    if (list) return listVariables(context);
    const PlatformSetup setup(context.configuration, context.tell());
    const std::vector<EffectiveOption> options = effectiveOptions(setup);
    if (context.json())
        writeJson(context.out, optionsJson(context.configuration.path, setup, options));
    else
        writeText(context, setup, options);
}

} // namespace

void addOptionsCommand(const Command& app, CommandContext& context) {
    const Command command = app.addCommand("options", "The options of an exchange and where each comes from");
    const auto list = std::make_shared<bool>(false);
    command.addFlag("--list-variables", *list,
                    "List instead every variable, configuration key, setting and conversion option");
    context.complete(command, [&context, list] { runOptions(context, *list); });
    command.example("velkor options --config velkor.json");
}

} // namespace velkor::host
