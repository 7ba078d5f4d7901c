#include "ModelCheck.h"

#include "Progress.h"
#include "velkor/sdai/PopulationCheck.h"
#include "velkor/sdai/SyntaxCheck.h"

#include <algorithm>
#include <array>

namespace velkor::host {

namespace {

constexpr std::array<std::string_view, 2> numberTypes{"IFCCOUNTMEASURE", "IFCNUMERICMEASURE"};

/// The release whose dictionary has the derived attributes that this one's leaves out.
DXSdaiDictionaryRepo::SchemaPointer derivingNeighbour(const sdai::SchemaDefinition& schema) {
    if (schema.name() != "IFC2X3" && schema.name() != "IFC4X1") return nullptr;
    auto neighbour = DXSdaiDictionaryRepo::TheOne().schema("IFC4");
    return neighbour ? *neighbour : nullptr;
}

} // namespace

void CheckResult::add(const std::vector<sdai::Problem>& more, std::uint64_t count, std::size_t limit) {
    total += count;
    const auto middle = problems.insert(problems.end(), more.begin(), more.end());
    std::ranges::inplace_merge(problems, middle, {}, &sdai::Problem::offset);
    if (problems.size() > limit) problems.resize(limit);
}

CheckResult checkStructure(CommandContext& context, const sdai::Part21File& file, std::size_t limit) {
    Progress progress(context, "Checking the exchange structure");
    CheckResult result;
    result.problems = sdai::checkSyntax(file, limit, &result.total,
                                        [&](std::uint64_t done, std::uint64_t total) { progress.show(done, total); });
    return result;
}

CheckResult checkModel(CommandContext& context, const sdai::Model& model, std::size_t limit) {
    CheckResult result = checkStructure(context, model.file(), limit);

    Progress progress(context, "Checking the instances");
    const auto neighbour = derivingNeighbour(model.schema());
    std::uint64_t total = 0;
    const auto show = [&](std::uint64_t done, std::uint64_t all) { progress.show(done, all); };
    const auto population = sdai::checkPopulation(model, {limit, neighbour.get(), numberTypes, show}, &total);
    result.add(population, total, limit);
    return result;
}

} // namespace velkor::host
