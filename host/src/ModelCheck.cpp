#include "ModelCheck.h"

#include "Progress.h"
#include "sdai/PopulationCheck.h"
#include "sdai/SyntaxCheck.h"

#include <algorithm>
#include <array>
#include <iterator>

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

void CheckResult::add(sdai::Problem problem, std::size_t limit) {
    ++total;
    const auto place = std::ranges::upper_bound(problems, problem.offset, {}, &sdai::Problem::offset);
    problems.insert(place, std::move(problem));
    if (problems.size() > limit) problems.pop_back();
}

CheckResult checkStructure(CommandContext& context, const sdai::Part21File& file, std::size_t limit) {
    Progress progress(context, "Checking the exchange structure");
    CheckResult result;
    result.problems = sdai::checkSyntax(file, limit, &result.total,
                                        [&](std::uint64_t done, std::uint64_t total) { progress.show(done, total); });
    return result;
}

CheckResult checkModel(CommandContext& context, const sdai::Model& model, std::size_t limit) {
    CheckResult structure = checkStructure(context, model.file(), limit);

    Progress progress(context, "Checking the instances");
    const auto neighbour = derivingNeighbour(model.schema());
    std::uint64_t total = 0;
    const auto show = [&](std::uint64_t done, std::uint64_t all) { progress.show(done, all); };
    const auto population = sdai::checkPopulation(model, {limit, neighbour.get(), numberTypes, show}, &total);

    CheckResult result;
    result.total = structure.total + total;
    std::ranges::merge(structure.problems, population, std::back_inserter(result.problems), {}, &sdai::Problem::offset,
                       &sdai::Problem::offset);
    if (result.problems.size() > limit) result.problems.resize(limit);
    return result;
}

} // namespace velkor::host
