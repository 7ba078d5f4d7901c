#include "velkor/check/ModelCheck.h"

#include "velkor/sdai/PopulationCheck.h"
#include "velkor/sdai/SyntaxCheck.h"

#include <array>

namespace velkor {

namespace {

constexpr std::array<std::string_view, 2> numberTypes{"IFCCOUNTMEASURE", "IFCNUMERICMEASURE"};

/// The release whose dictionary has the derived attributes that this one's leaves out.
DXSdaiDictionaryRepo::SchemaPointer derivingNeighbour(const sdai::SchemaDefinition& schema) {
    if (schema.name() != "IFC2X3" && schema.name() != "IFC4X1") return nullptr;
    auto neighbour = DXSdaiDictionaryRepo::TheOne().schema("IFC4");
    return neighbour ? *neighbour : nullptr;
}

// What a check of the platform calls.
sdai::Progress stepsOf(const Progress& progress, const char* work, bool& isComplete) {
    if (!progress) return {};
    return [&progress, &isComplete, work](std::uint64_t done, std::uint64_t total) {
        return isComplete = progress({work, done, total});
    };
}

} // namespace

CheckResult checkStructure(const sdai::Part21File& file, const CheckOptions& options) {
    CheckResult result;
    const auto progress = stepsOf(options.progress, "Checking the exchange structure", result.isComplete);
    result.problems = sdai::checkSyntax(file, options.limit, &result.total, progress);
    return result;
}

CheckResult checkModel(const sdai::Model& model, const CheckOptions& options) {
    CheckResult result = checkStructure(model.file(), options);
    if (!result.isComplete) return result;
    const auto neighbour = derivingNeighbour(model.schema());
    const auto progress = stepsOf(options.progress, "Checking the instances", result.isComplete);
    std::uint64_t total = 0;
    const auto population =
        sdai::checkPopulation(model, {options.limit, neighbour.get(), numberTypes, progress}, &total);
    result.add(population, total, options.limit);
    return result;
}

tl::expected<FileCheck, files::OpenError> checkFile(const std::string& path, bool isStructureAlone,
                                                    const CheckOptions& options) {
    auto file = sdai::Part21File::open(path);
    if (!file) return tl::unexpected(file.error());
    FileCheck check{(*file)->name(), {}, {}};
    const auto schemaProblem = isStructureAlone ? std::nullopt : sdai::Model::schemaProblem(**file);
    if (isStructureAlone || schemaProblem) {
        check.result = checkStructure(**file, options);
        if (schemaProblem) check.result.add({*schemaProblem}, 1, options.limit);
        return check;
    }
    const auto model = sdai::Model::over(std::move(*file));
    if (!model) return tl::unexpected(model.error());
    check.release = (*model)->schema().name();
    check.result = checkModel(**model, options);
    return check;
}

} // namespace velkor
