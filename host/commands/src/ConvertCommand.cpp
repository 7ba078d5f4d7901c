// velkor convert

#include "Commands.h"
#include "models/ModelWork.h"
#include "output/ConversionText.h"
#include "ReleaseName.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/exchange/Conversion.h"
#include "velkor/files/Packing.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <optional>
#include <sstream>
#include <unistd.h>

namespace velkor::host {

namespace {

constexpr std::size_t listedPlaces = 3, listedInJson = 100;
constexpr std::string_view fromPlm = "from-plm";

struct Arguments {
    ModelArguments models;
    /// Of several models these three name folders.
    std::string output;
    std::string release;
    std::string lengthUnit;
    std::vector<std::string> units;
    std::vector<std::string> guids;
    std::string guidMap;
    std::string report;
    std::string customMapping;
    bool plmAttributes = false;
    bool dryRun = false;
    std::string limit;
    bool rules = false;
};

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
                _context.reportBadUsage("--unit: expected TYPE=NAME, such as AREAUNIT=SQUARE_METRE, found " +
                                        text::quoted(word));
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
        if (fault) _context.reportBadUsage(std::string(option) + ": " + *fault);
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
                _context.reportBadUsage("--guids: expected \"repair\" or \"from-plm ATTRIBUTE\", found " +
                                        text::quoted(word));
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

/// The files of one conversion; empty names for those that are not asked for.
struct Files {
    std::string model;
    std::string output;
    std::string report;
    std::string guidMap;

    bool isOutputStream() const { return output == standardStream; }
    const std::string& resultName() const {
        static const std::string stream = "standard output";
        return isOutputStream() ? stream : output;
    }
};

/// What several models become keeps their names.
Files filesOf(const Arguments& arguments, const ModelInput& input) {
    Files files{input.name(), arguments.output, arguments.report, arguments.guidMap};
    if (arguments.models.isSingle()) return files;
    const std::string name =
        input.isStandardInput() ? "standard-input.ifc" : std::filesystem::path(input.name()).filename().string();
    const auto put = [&](std::string& folder, const char* ending) {
        if (!folder.empty()) folder = (std::filesystem::path(folder) / (name + ending)).string();
    };
    put(files.output, "");
    put(files.report, ".json");
    put(files.guidMap, ".csv");
    return files;
}

bool isSameFile(const std::string& one, const std::string& other) {
    if (one.empty() || other.empty()) return false;
    std::error_code none;
    // A file that is not there yet has no identity but its name.
    return std::filesystem::weakly_canonical(one, none) == std::filesystem::weakly_canonical(other, none) ||
           std::filesystem::equivalent(one, other, none);
}

/// What is wrong with the files that are named together; empty when nothing is.
std::string faultOfFiles(const Files& files) {
    for (const auto& [option, path] : {std::pair("--report", files.report), {"--guid-map", files.guidMap}}) {
        for (const std::string& other : {files.model, files.output})
            if (isSameFile(path, other))
                return std::string(option) + ": " + text::quoted(path) + " is the model or the result itself";
    }
    if (isSameFile(files.report, files.guidMap)) return "--report and --guid-map name the same file";
    return {};
}

std::string faultOfArguments(const Arguments& arguments) {
    if (arguments.models.words.empty()) return "MODEL is required";
    if (arguments.output.empty() && !arguments.dryRun) return "-o FILE is required, or --dry-run";
    if (!arguments.output.empty() && arguments.dryRun) return "-o and --dry-run exclude each other";
    if (!arguments.guidMap.empty() && arguments.guids.empty()) return "--guid-map requires --guids";
    if (arguments.models.isSingle()) return {};
    for (const auto& [option, path] :
         {std::pair("-o", arguments.output), {"--report", arguments.report}, {"--guid-map", arguments.guidMap}}) {
        std::error_code none;
        const bool isOther = std::filesystem::exists(path, none) && !std::filesystem::is_directory(path, none);
        if (path == standardStream || isOther)
            return std::string(option) + ": several models need a folder, found " + text::quoted(path);
    }
    return {};
}

/// The same of all models; the folders of their results are there afterwards.
std::string faultOfModels(const Arguments& arguments, const std::vector<ModelInput>& list) {
    std::map<std::string, std::string> sources;
    for (const ModelInput& input : list) {
        const Files files = filesOf(arguments, input);
        if (!input.fault().empty()) continue;
        if (std::string fault = faultOfFiles(files); !fault.empty()) return fault;
        if (const auto [known, isNew] = sources.emplace(files.output, files.model); !isNew && !files.output.empty())
            return "-o: " + text::quoted(known->second) + " and " + text::quoted(files.model) + " would both become " +
                   text::quoted(files.output);
    }
    if (arguments.models.isSingle()) return {};
    for (const std::string& folder : {arguments.output, arguments.report, arguments.guidMap}) {
        // Who writes there tells when there is none.
        std::error_code none;
        if (!folder.empty()) std::filesystem::create_directories(folder, none);
    }
    return {};
}

/// Files that are begun before the work and put in their places after it.
class Outputs {
public:
    Outputs(CommandContext& context, const Files& files) : _context(context), _files(files) {}

    /// False after saying which of them cannot be begun.
    bool begin() {
        if (_files.isOutputStream())
            _model.emplace(files::ModelOutput::onto(STDOUT_FILENO));
        else if (!begin(_model, _files.output.empty() ? "/dev/null" : _files.output))
            return false;
        return begin(_report, _files.report) && begin(_guidMap, _files.guidMap);
    }
    files::OutputFile& model() { return _model->text(); }
    /// All of them or none: what is likely to fail is done for each before the first is put in its place.
    bool commit(const std::string& report, const std::string& guidMap) {
        if (_report) _report->write(report);
        if (_guidMap) _guidMap->write(guidMap);
        using Done = tl::expected<void, files::OpenError>;
        return each([](auto& file) -> Done { return file.flush(); }) &&
               each([](auto& file) -> Done { return file.commit(); });
    }

private:
    template <class File>
    bool begin(std::optional<File>& file, const std::string& path) {
        if (path.empty()) return true;
        auto created = File::create(QORUnicodeString(std::string_view(path)));
        if (!created) return fail(path, created.error());
        file.emplace(std::move(*created));
        return true;
    }
    template <class Step>
    bool each(Step step) {
        const auto take = [&](auto& file, const std::string& path) {
            if (!file) return true;
            const auto done = step(*file);
            return done || fail(path, done.error());
        };
        return take(_report, _files.report) && take(_guidMap, _files.guidMap) && take(_model, _files.resultName());
    }
    bool fail(const std::string& path, const files::OpenError& error) {
        _context.reportUnreadable(path + ": cannot be written: " + error.message);
        return false;
    }

    CommandContext& _context;
    const Files& _files;
    std::optional<files::ModelOutput> _model;
    std::optional<files::OutputFile> _report, _guidMap;
};

std::string jsonText(const Json& json) {
    std::ostringstream text;
    writeJson(text, json);
    return text.str();
}

void listRules(CommandContext& context) {
    if (context.json()) return writeJson(context.out, conversionRulesJson(conversionRules()));
    writeConversionRules(context.out, context.color, conversionRules());
}

void convert(CommandContext& context, const Arguments& arguments, const ModelInput& input, ConversionOptions options) {
    const auto model = input.openModel(context);
    if (!model) return;
    const Files files = filesOf(arguments, input);
    Outputs outputs(context, files);
    if (!outputs.begin()) return;
    const PlatformSetup setup(context.configuration, context.tell());
    if (options.release) options.release->setup = &setup;
    if (options.properties) options.properties->setup = &setup;
    if (!files.isOutputStream()) options.scratchBeside = files.output;
    options.progress = context.progress();
    const auto report = convertModel(*model, options, outputs.model());
    options.progress = {};
    if (!report) return context.reportUnreadable(files.model + ": cannot be converted: " + report.error());
    // The services go on without a document that they cannot read; the result would be another one.
    if (setup.hasToldErrors())
        return context.reportUnreadable(files.model + ": cannot be converted: a document of mappings is not readable");

    const std::string release(model->schema().name());
    const ConversionFiles told{files.model, release, model->file().instanceCount(), files.resultName(),
                               options.release ? options.release->release : release};
    const Json json = conversionJson(told, *report);
    if (!outputs.commit(jsonText(json), identifierTable(report->identifiers))) return;
    context.status = report->isLossless() ? Done : Findings;
    // Standard output may have the model.
    if (files.isOutputStream()) context.out = context.err;
    if (context.json()) return writeModelJson(context, json);
    writeConversion(context.out, context.color && !files.isOutputStream(), told, *report, !arguments.limit.empty());
}

void runConvert(CommandContext& context, const Arguments& arguments) {
    if (arguments.rules) return listRules(context);
    if (const std::string fault = faultOfArguments(arguments); !fault.empty()) return context.reportBadUsage(fault);
    auto options = StepReader(context, arguments).steps();
    if (!options) return;
    const bool areMany = context.json() || !arguments.report.empty();
    options->limit = !arguments.limit.empty() ? std::stoull(arguments.limit) : areMany ? listedInJson : listedPlaces;
    ModelWork work{
        .run = [&](CommandContext& one, const ModelInput& input, Json&) { convert(one, arguments, input, *options); }};
    work.done = "without loss";
    work.findings = "with something lost";
    work.fault = [&](const std::vector<ModelInput>& list) { return faultOfModels(arguments, list); };
    workOnModels(context, arguments.models, work);
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
    command
        .addOption("--guid-map", arguments.guidMap,
                   "Write old and new identifiers to this file, as CSV; of several models a folder")
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
    arguments->models.addTo(command, false);
    command
        .addOption("-o,--output", arguments->output,
                   "The result, compressed when its name ends with .ifczip, .zip or .gz; - for standard output. MODEL "
                   "itself may be named. Of several models a folder, where each keeps its name")
        .valueName("FILE");
    addSteps(command, *arguments);
    command.addFlag("--dry-run", arguments->dryRun, "Write no result, and say what would become of the model");
    command
        .addOption("--report", arguments->report,
                   "Write what was changed and lost to this file, as JSON; of several models a folder")
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
    context.complete(command, [&context, arguments] { runConvert(context, *arguments); }, {jsonLinesFormat});
}

} // namespace velkor::host
