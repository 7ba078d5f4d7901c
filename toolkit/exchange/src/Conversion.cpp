#include "velkor/exchange/Conversion.h"

#include "identifiers/IdentifierRules.h"
#include "properties/PropertyRules.h"
#include "release/ReleaseRules.h"
#include "units/UnitCatalogue.h"
#include "units/UnitRules.h"
#include "velkor/files/ScratchFile.h"

#include <functional>
#include <memory>

namespace velkor {

namespace {

using Step = std::function<Converted<StepReport>(const sdai::Model&, files::OutputFile&)>;

/// In the order in which they are taken. The release comes first, so that the others meet what is to be in the result;
/// names of property sets come last, for the mappings of both sides speak of identified objects.
std::vector<Step> wantedSteps(const ConversionOptions& options, FullReport& report) {
    std::vector<Step> steps;
    const auto common = [&options](auto wanted) {
        wanted.limit = options.limit;
        wanted.progress = options.progress;
        return wanted;
    };
    if (options.release) {
        steps.push_back([wanted = common(*options.release)](const sdai::Model& model, files::OutputFile& output) {
            return convertRelease(model, wanted, output);
        });
    }
    if (options.units) {
        steps.push_back([wanted = common(*options.units)](const sdai::Model& model, files::OutputFile& output) {
            return convertUnits(model, wanted, output);
        });
    }
    if (options.identifiers) {
        steps.push_back([wanted = common(*options.identifiers),
                         &report](const sdai::Model& model, files::OutputFile& output) -> Converted<StepReport> {
            auto done = convertIdentifiers(model, wanted, output);
            if (!done) return tl::unexpected(std::move(done.error()));
            report.identifiers = std::move(done->identifiers);
            return StepReport(std::move(*done));
        });
    }
    if (options.properties) {
        steps.push_back([wanted = common(*options.properties)](const sdai::Model& model, files::OutputFile& output) {
            return convertProperties(model, wanted, output);
        });
    }
    return steps;
}

/// What one step has left for the next.
class Intermediate {
public:
    static tl::expected<std::unique_ptr<Intermediate>, files::OpenError> create(const std::string& beside) {
        auto file = beside.empty() ? files::ScratchFile::create()
                                   : files::ScratchFile::createBeside(QORUnicodeString(std::string_view(beside)));
        if (!file) return tl::unexpected(file.error());
        return std::unique_ptr<Intermediate>(new Intermediate(std::move(*file)));
    }

    files::OutputFile& output() { return _file.output(); }
    /// After the step; `name` stands for the model in messages.
    tl::expected<void, files::OpenError> read(const std::string& name) {
        if (auto done = _file.output().commit(); !done) return done;
        const auto text = _file.text();
        if (!text) return tl::unexpected(text.error());
        auto model = sdai::Model::fromText(*text, name);
        if (!model) return tl::unexpected(model.error());
        _model = std::move(*model);
        return {};
    }
    const sdai::Model& model() const { return *_model; }

private:
    explicit Intermediate(files::ScratchFile file) : _file(std::move(file)) {}

    files::ScratchFile _file;
    std::unique_ptr<sdai::Model> _model;
};

/// Places of what a later step did become those of the source; what that does not have has none.
void placeInSource(StepReport& report, const sdai::Part21File& source) {
    for (RuleUse& use : report.uses) {
        for (Change& change : use.first) {
            const auto number = source.find(change.id);
            change.line = number ? source.line(source.offset(*number)) : 0;
        }
    }
}

std::string noIntermediate(const files::OpenError& error) {
    return "what stands between two steps: " + error.message;
}

} // namespace

Converted<FullReport> convertModel(const sdai::Model& model, const ConversionOptions& options,
                                   files::OutputFile& output) {
    FullReport report;
    const std::vector<Step> steps = wantedSteps(options, report);
    if (steps.empty()) output.write(model.file().text());
    std::unique_ptr<Intermediate> before;
    for (const Step& step : steps) {
        const bool isLast = &step == &steps.back();
        std::unique_ptr<Intermediate> next;
        if (!isLast) {
            auto created = Intermediate::create(options.scratchBeside);
            if (!created) return tl::unexpected(noIntermediate(created.error()));
            next = std::move(*created);
        }
        auto done = step(before ? before->model() : model, isLast ? output : next->output());
        if (!done) return tl::unexpected(std::move(done.error()));
        if (before) placeInSource(*done, model.file());
        report.steps.push_back(std::move(*done));
        if (isLast) break;
        if (auto read = next->read(model.file().name()); !read) return tl::unexpected(noIntermediate(read.error()));
        before = std::move(next);
    }
    return report;
}

std::optional<std::string> unitFault(std::string_view type, std::string_view name) {
    auto unit = exchange::catalogueUnit(type, name);
    return unit ? std::nullopt : std::optional(std::move(unit.error()));
}

std::vector<StepRules> conversionRules() {
    std::vector<StepRules> steps;
    const auto add = [&steps](std::string_view step,
                              std::initializer_list<std::span<const ConversionRule* const>> all) {
        StepRules& rules = steps.emplace_back();
        rules.step = step;
        for (const auto& table : all) rules.rules.insert(rules.rules.end(), table.begin(), table.end());
    };
    add("release", {exchange::releaseRules()});
    add("units", {exchange::unitRules()});
    add("identifiers", {exchange::identifierRules()});
    add("properties", {exchange::propertyRules()});
    return steps;
}

} // namespace velkor
