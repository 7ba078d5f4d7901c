// velkor guid

#include "Commands.h"
#include "LimitOption.h"
#include "models/ModelWork.h"
#include "output/Json.h"
#include "output/ProblemText.h"
#include "QORIFCExportServices.h"
#include "terminal/DisplayText.h"
#include "velkor/identifiers/GuidCheck.h"
#include "velkor/identifiers/GuidText.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <istream>
#include <nlohmann/json.hpp>

namespace velkor::host {

namespace {

constexpr std::size_t mostNew = 1'000'000;

struct Arguments {
    std::size_t count = 1;
    std::size_t limit = defaultLimit;
    ModelArguments models;
    std::vector<std::string> texts;
};

void runNew(CommandContext& context, std::size_t count) {
    Json identifiers = Json::array();
    for (std::size_t i = 0; i < count; ++i) {
        QORUnicodeString guid;
        QORIFCExportServices::GenerateIFCGUID(guid);
        if (context.json())
            identifiers.push_back(guid.utf8());
        else
            context.out << guid.utf8() << '\n';
    }
    if (context.json()) writeJson(context.out, {{"identifiers", std::move(identifiers)}});
}

// The parser takes a word in square brackets apart as a list, and the commas are lost.
bool isList(const std::string& word) {
    return word.starts_with('[') && word.ends_with(']');
}

// The PLM identifiers to convert, or nothing after reporting what is wrong with them.
bool readPlmIds(CommandContext& context, std::vector<std::string>& ids) {
    if (std::ranges::any_of(context.words, isList)) {
        context.err
            << "velkor: expected PLM identifiers; those in square brackets are read from standard input alone\n";
        context.status = BadUsage;
        return false;
    }
    const bool areRead = ids.empty();
    if (areRead && context.in != nullptr) {
        for (std::string line; std::getline(*context.in, line);) {
            if (line.ends_with('\r')) line.pop_back();
            ids.push_back(line);
        }
        if (context.in->bad()) {
            context.reportUnreadable("standard input: cannot be read: reading failed");
            return false;
        }
    }
    // Without characters, different objects would have the same identifier.
    for (std::size_t i = 0; i < ids.size(); ++i) {
        if (!ids[i].empty()) continue;
        const std::string number = std::to_string(i + 1);
        context.reportUnreadable((areRead ? "standard input, line " : "identifier ") + number +
                                 ": expected a PLM identifier, found an empty " + (areRead ? "line" : "text"));
        return false;
    }
    return true;
}

void runFromPlm(CommandContext& context, std::vector<std::string> ids) {
    if (!readPlmIds(context, ids)) return;
    Json identifiers = Json::array();
    for (const std::string& id : ids) {
        QORUnicodeString guid;
        QORIFCExportServices::ConvertPLMIDToGUID(QORUnicodeString(std::string_view(id)), guid);
        if (context.json())
            identifiers.push_back({{"plm", id}, {"identifier", guid.utf8()}});
        else
            context.out << guid.utf8() << '\n';
    }
    if (context.json()) writeJson(context.out, {{"identifiers", std::move(identifiers)}});
}

void writeText(CommandContext& context, const std::string& file, const guid::GuidCheck& check) {
    const CheckResult& result = check.result;
    for (const sdai::Problem& problem : result.problems) writeProblem(context.out, file, problem);
    context.out << file << ": " << text::counted(check.count, "identifier", "identifiers");
    if (result.total == 0 && check.count > 0) context.out << ", all well-formed and unique";
    if (result.total > 0) context.out << ", " << text::counted(result.total, "problem", "problems");
    if (result.total > result.problems.size())
        context.out << ", the first " << text::grouped(result.problems.size()) << " are listed (--limit shows more)";
    context.out << '\n';
}

void checkIdentifiers(CommandContext& context, std::size_t limit, const ModelInput& input, Json& facts) {
    const auto model = input.openModel(context);
    if (!model) return;
    const guid::GuidCheck check = guid::checkGuids(*model, context.checkOptions(limit));
    context.status = check.result.total == 0 ? Done : Findings;
    facts = {{"identifiers", check.count}, {"problems", check.result.total}};
    if (!context.json()) return writeText(context, model->file().name(), check);
    writeModelJson(context, {{"file", model->file().path()},
                             {"release", model->schema().name()},
                             {"identifiers", check.count},
                             {"total", check.result.total},
                             {"problems", problemsJson(check.result.problems)}});
}

void runCheck(CommandContext& context, const Arguments& arguments) {
    ModelWork work{.run = [limit = arguments.limit](CommandContext& one, const ModelInput& input, Json& facts) {
        checkIdentifiers(one, limit, input, facts);
    }};
    work.totals = {{"identifiers", "identifier", "identifiers"}, {"problems", "problem", "problems"}};
    workOnModels(context, arguments.models, work);
}

using Conversion = tl::expected<std::string, std::string> (*)(std::string_view);

// All texts or none: half a list would be taken for the whole.
void runConversion(CommandContext& context, const std::vector<std::string>& texts, Conversion convert,
                   const char* sourceName, const char* resultName) {
    Json conversions = Json::array();
    std::string lines;
    for (const std::string& text : texts) {
        const auto converted = convert(text);
        if (!converted) {
            context.err << "velkor: " << converted.error() << '\n';
            context.status = BadUsage;
            continue;
        }
        lines += *converted + '\n';
        conversions.push_back({{sourceName, text}, {resultName, *converted}});
    }
    if (context.status == BadUsage) return;
    if (context.json())
        writeJson(context.out, {{"identifiers", std::move(conversions)}});
    else
        context.out.lines(lines);
}

const Command addSubcommand(const Command& guid, const char* name, const char* description, const char* example) {
    const Command command = guid.addCommand(name, description);
    command.example(example);
    return command;
}

void addConversions(const Command& guid, CommandContext& context, const std::shared_ptr<Arguments>& arguments) {
    const Command expand = addSubcommand(guid, "expand", "Identifiers of 22 characters as hexadecimal text",
                                         "velkor guid expand '0$WU4A9R19$vKWO$AdOnKA'");
    expand.addOption("GUID", arguments->texts, "22 characters each").required();
    context.complete(expand, [&context, arguments] {
        runConversion(context, arguments->texts, guid::expanded, "identifier", "uuid");
    });

    const Command compress = addSubcommand(guid, "compress", "Hexadecimal text as identifiers of 22 characters",
                                           "velkor guid compress 3f81e10a-25b0-49ff-9520-63f2a763150a");
    compress
        .addOption("UUID", arguments->texts,
                   "32 hexadecimal digits each, as 8-4-4-4-12; braces around them are no matter")
        .required();
    context.complete(compress, [&context, arguments] {
        runConversion(context, arguments->texts, guid::compressed, "uuid", "identifier");
    });
}

} // namespace

void addGuidCommand(const Command& app, CommandContext& context) {
    const Command guid = app.addCommand("guid", "Identifiers: new ones, those of PLM objects, those of a model");
    guid.requireCommand();
    guid.example("velkor guid check house.ifc");
    const auto arguments = std::make_shared<Arguments>();

    const Command fresh = addSubcommand(guid, "new", "New identifiers", "velkor guid new -n 100");
    fresh.addOption("-n", arguments->count, "How many, at most 1000000; 1 unless told")
        .valueName("N")
        .wholeNumber(1, mostNew);
    context.complete(fresh, [&context, arguments] { runNew(context, arguments->count); });

    const Command fromPlm = addSubcommand(guid, "from-plm", "The identifier of each PLM object, always the same one",
                                          "velkor guid from-plm DOOR-0815");
    fromPlm.addOption("ID", arguments->texts, "PLM identifiers; without any, one per line of standard input");
    context.complete(fromPlm, [&context, arguments] { runFromPlm(context, arguments->texts); });

    const Command check = addSubcommand(guid, "check", "Whether the identifiers of a model are well-formed and unique",
                                        "velkor guid check house.ifc\n\nExit status 1 when there are problems.");
    arguments->models.addTo(check);
    addLimitOption(check, arguments->limit, "problems");
    context.complete(check, [&context, arguments] { runCheck(context, *arguments); }, {jsonLinesFormat});

    addConversions(guid, context, arguments);
}

} // namespace velkor::host
