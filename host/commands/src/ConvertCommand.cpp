// velkor convert

#include "Commands.h"
#include "output/ConversionText.h"
#include "ReleaseName.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/exchange/Conversion.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>
#include <unistd.h>

namespace velkor::host {

namespace {

constexpr std::size_t listedPlaces = 3, listedInJson = 100;
constexpr const char* standardOutput = "-";
constexpr std::string_view fromPlm = "from-plm";

struct Arguments {
    std::string model;
    std::string output;
    std::string release;
    std::string lengthUnit;
    std::vector<std::string> units;
    std::vector<std::string> guids;
    std::string guidMap;
    std::string customMapping;
    bool plmAttributes = false;
    bool dryRun = false;
    std::string report;
    std::string limit;
    bool rules = false;
};

void badUsage(CommandContext& context, const std::string& reason) {
    context.err << "velkor: " << reason << '\n';
    context.status = BadUsage;
}

/// The steps that the words ask for; nothing after saying which word makes no sense.
class StepReader {
public:
    StepReader(CommandContext& context, const Arguments& arguments) : _context(context), _arguments(arguments) {}

    std::optional<ConversionOptions> steps() {
        ConversionOptions options;
        if (!readRelease(options) || !readUnits(options) || !readIdentifiers(options)) return std::nullopt;
        readProperties(options);
        return options;
    }

private:
    bool readRelease(ConversionOptions& options) {
        if (_arguments.release.empty()) return true;
        const std::string name = releaseNamed(_context, _arguments.release);
        if (!name.empty()) options.release.emplace().release = name;
        return !name.empty();
    }

    bool readUnits(ConversionOptions& options) {
        if (!_arguments.lengthUnit.empty() && !add(options, "--length-unit", "LENGTHUNIT", _arguments.lengthUnit))
            return false;
        for (const std::string& word : _arguments.units) {
            const auto equals = word.find('=');
            if (equals == 0 || equals == std::string::npos || equals + 1 == word.size()) {
                badUsage(_context,
                         "--unit: expected TYPE=NAME, such as AREAUNIT=SQUARE_METRE, found " + text::quoted(word));
                return false;
            }
            if (!add(options, "--unit", word.substr(0, equals), word.substr(equals + 1))) return false;
        }
        return true;
    }
    bool add(ConversionOptions& options, const char* option, std::string type, std::string name) {
        if (!options.units) options.units.emplace();
        auto& units = options.units->units;
        auto fault = unitFault(type, name);
        if (std::ranges::any_of(units, [&](const auto& one) { return text::equalIgnoringCase(one.first, type); }))
            fault = type + " is given a unit twice";
        if (fault) badUsage(_context, std::string(option) + ": " + *fault);
        units.emplace_back(std::move(type), std::move(name));
        return !fault;
    }

    bool readIdentifiers(ConversionOptions& options) {
        for (const std::string& word : _arguments.guids) {
            if (!options.identifiers) options.identifiers.emplace();
            const auto equals = word.find('=');
            if (word == "repair") {
                options.identifiers->repair = true;
            } else if (word.substr(0, equals) == fromPlm && equals != std::string::npos && equals + 1 < word.size()) {
                options.identifiers->plmAttribute = word.substr(equals + 1);
            } else {
                badUsage(_context,
                         "--guids: expected \"repair\" or \"from-plm ATTRIBUTE\", found " + text::quoted(word));
                return false;
            }
        }
        return true;
    }

    void readProperties(ConversionOptions& options) {
        if (_arguments.customMapping.empty() && !_arguments.plmAttributes) return;
        PropertyOptions& properties = options.properties.emplace();
        properties.plmAttributes = _arguments.plmAttributes;
        if (!_arguments.customMapping.empty())
            properties.customMapping =
                _arguments.customMapping == "import" ? MappingDirection::Import : MappingDirection::Export;
    }

    CommandContext& _context;
    const Arguments& _arguments;
};

bool isSameFile(const std::string& one, const std::string& other) {
    if (one.empty() || other.empty()) return false;
    std::error_code none;
    // A file that is not there yet has no identity but its name.
    return std::filesystem::weakly_canonical(one, none) == std::filesystem::weakly_canonical(other, none) ||
           std::filesystem::equivalent(one, other, none);
}

/// What is wrong with the files that are named together; empty when nothing is.
std::string faultOfFiles(const Arguments& arguments) {
    if (arguments.model.empty()) return "MODEL is required";
    if (arguments.output.empty() && !arguments.dryRun) return "-o FILE is required, or --dry-run";
    if (!arguments.output.empty() && arguments.dryRun) return "-o and --dry-run exclude each other";
    if (!arguments.guidMap.empty() && arguments.guids.empty()) return "--guid-map requires --guids";
    for (const auto& [option, path] : {std::pair("--report", arguments.report), {"--guid-map", arguments.guidMap}}) {
        for (const std::string& other : {arguments.model, arguments.output})
            if (isSameFile(path, other))
                return std::string(option) + ": " + text::quoted(path) + " is the model or the result itself";
    }
    if (isSameFile(arguments.report, arguments.guidMap)) return "--report and --guid-map name the same file";
    return {};
}

const std::string& resultName(const Arguments& arguments) {
    static const std::string stream = "standard output";
    return arguments.output == standardOutput ? stream : arguments.output;
}

/// Files that are begun before the work and put in their places after it.
class Outputs {
public:
    Outputs(CommandContext& context, const Arguments& arguments) : _context(context), _arguments(arguments) {}

    /// False after saying which of them cannot be begun.
    bool begin() {
        if (_arguments.output == standardOutput)
            _model.emplace(files::OutputFile::onto(STDOUT_FILENO));
        else if (!begin(_model, _arguments.dryRun ? "/dev/null" : _arguments.output))
            return false;
        return begin(_report, _arguments.report) && begin(_guidMap, _arguments.guidMap);
    }
    files::OutputFile& model() { return *_model; }
    /// All of them or none: what is likely to fail is done for each before the first is put in its place.
    bool commit(const std::string& report, const std::string& guidMap) {
        if (_report) _report->write(report);
        if (_guidMap) _guidMap->write(guidMap);
        using Done = tl::expected<void, files::OpenError>;
        return each([](files::OutputFile& file) -> Done { return file.flush(); }) &&
               each([](files::OutputFile& file) -> Done { return file.commit(); });
    }

private:
    bool begin(std::optional<files::OutputFile>& file, const std::string& path) {
        if (path.empty()) return true;
        auto created = files::OutputFile::create(QORUnicodeString(std::string_view(path)));
        if (!created) return fail(path, created.error());
        file.emplace(std::move(*created));
        return true;
    }
    template <class Step>
    bool each(Step step) {
        const auto take = [&](std::optional<files::OutputFile>& file, const std::string& path) {
            if (!file) return true;
            const auto done = step(*file);
            return done || fail(path, done.error());
        };
        return take(_report, _arguments.report) && take(_guidMap, _arguments.guidMap) &&
               take(_model, resultName(_arguments));
    }
    bool fail(const std::string& path, const files::OpenError& error) {
        _context.reportUnreadable(path + ": cannot be written: " + error.message);
        return false;
    }

    CommandContext& _context;
    const Arguments& _arguments;
    std::optional<files::OutputFile> _model, _report, _guidMap;
};

std::string jsonText(const Json& json) {
    std::ostringstream text;
    writeJson(text, json);
    return text.str();
}

/// Where a person is told: standard output may have the model.
TextSink told(CommandContext& context, const Arguments& arguments) {
    return arguments.output == standardOutput ? context.err : context.out;
}

void listRules(CommandContext& context) {
    if (context.json()) return writeJson(context.out, conversionRulesJson(conversionRules()));
    writeConversionRules(context.out, context.color, conversionRules());
}

void convert(CommandContext& context, const Arguments& arguments, ConversionOptions options) {
    const auto model = context.openModel(arguments.model);
    if (!model) return;
    Outputs outputs(context, arguments);
    if (!outputs.begin()) return;
    const PlatformSetup setup(context.configuration, context.tell());
    if (options.release) options.release->setup = &setup;
    if (options.properties) options.properties->setup = &setup;
    if (arguments.output != standardOutput) options.scratchBeside = arguments.output;
    options.progress = context.progress();
    const auto report = convertModel(*model, options, outputs.model());
    options.progress = {};
    if (!report) return context.reportUnreadable(arguments.model + ": cannot be converted: " + report.error());
    // The services go on without a document that they cannot read; the result would be another one.
    if (setup.hasToldErrors())
        return context.reportUnreadable(arguments.model +
                                        ": cannot be converted: a document of mappings is not readable");

    const std::string release(model->schema().name());
    const ConversionFiles files{arguments.model, release, model->file().instanceCount(), resultName(arguments),
                                options.release ? options.release->release : release};
    const Json json = conversionJson(files, *report);
    if (!outputs.commit(jsonText(json), identifierTable(report->identifiers))) return;
    context.status = report->isLossless() ? Done : Findings;
    const TextSink out = told(context, arguments);
    if (context.json()) return writeJson(out, json);
    writeConversion(out, context.color && arguments.output != standardOutput, files, *report, !arguments.limit.empty());
}

void runConvert(CommandContext& context, const Arguments& arguments) {
    if (arguments.rules) return listRules(context);
    if (const std::string fault = faultOfFiles(arguments); !fault.empty()) return badUsage(context, fault);
    auto options = StepReader(context, arguments).steps();
    if (!options) return;
    const bool areMany = context.json() || !arguments.report.empty();
    options->limit = !arguments.limit.empty() ? std::stoull(arguments.limit) : areMany ? listedInJson : listedPlaces;
    convert(context, arguments, std::move(*options));
}

void addSteps(const Command& command, Arguments& arguments) {
    command.addOption("--to", arguments.release, "Write it as of this release, such as IFC2X3 or 4x3")
        .valueName("RELEASE");
    command.addOption("--length-unit", arguments.lengthUnit, "Lengths in this unit: METRE, MILLIMETRE, INCH, FOOT, …")
        .valueName("UNIT");
    command.addOption("--unit", arguments.units, "Measures of a unit type in this unit: AREAUNIT=SQUARE_METRE")
        .valueName("TYPE=NAME")
        .oneWord();
    command
        .addOption("--guids", arguments.guids,
                   "New identifiers: \"repair\" for those that are malformed, missing or used before, \"from-plm "
                   "ATTRIBUTE\" for objects whose PLM identifier stands in that property")
        .valueName("repair|from-plm ATTRIBUTE")
        .oneWord();
    command.addOption("--guid-map", arguments.guidMap, "Write old and new identifiers to this file, as CSV")
        .valueName("FILE");
    command
        .addOption("--custom-mapping", arguments.customMapping,
                   "Name property sets and properties as the custom mapping says for this direction")
        .valueName("import|export")
        .oneOf({"import", "export"});
    command.addFlag("--plm-attributes", arguments.plmAttributes,
                    "Put PLM attributes into the sets and under the names that their mapping says");
}

} // namespace

std::vector<std::string> withJoinedGuidWords(std::vector<std::string> words) {
    if (words.empty() || words.front() != "convert") return words;
    for (std::size_t i = 1; i + 2 < words.size(); ++i) {
        if (words[i] != "--guids" || words[i + 1] != fromPlm || words[i + 2].starts_with('-')) continue;
        (words[i + 1] += '=') += words[i + 2];
        words.erase(words.begin() + static_cast<std::ptrdiff_t>(i) + 2);
    }
    return words;
}

void addConvertCommand(const Command& app, CommandContext& context) {
    const Command command = app.addCommand(
        "convert", "Another release, other units, repaired identifiers, mapped properties; what was changed and lost");
    const auto arguments = std::make_shared<Arguments>();
    command.addOption("MODEL", arguments->model, "IFC file");
    command.addOption("-o,--output", arguments->output, "The result; - for standard output. MODEL itself may be named")
        .valueName("FILE");
    addSteps(command, *arguments);
    command.addFlag("--dry-run", arguments->dryRun, "Write no result, and say what would become of the model");
    command.addOption("--report", arguments->report, "Write what was changed and lost to this file, as JSON")
        .valueName("FILE");
    command
        .addOption("--limit", arguments->limit,
                   "List at most N places of each rule; unless told, 3 of what is lost, or 100 of all in JSON")
        .valueName("N")
        .wholeNumber(0);
    command.addFlag("--rules", arguments->rules, "List the rules that conversions follow, and why; needs no MODEL");
    command.example("velkor convert house.ifc -o house-ifc4.ifc --to IFC4\n\n"
                    "Exit status 0 when nothing is lost, 1 when it is converted and something is lost, 3 when nothing\n"
                    "is written.");
    context.complete(command, [&context, arguments] { runConvert(context, *arguments); });
}

} // namespace velkor::host
