// Any bytes as a model whose sets are judged by the definitions of its release: findings come in file order, none is
// lost or made by a limit, the summaries come to what was counted, and choosing codes changes nothing of the others.

#include "velkor/propertysets/PropertySetCheck.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <string>
#include <string_view>

namespace {

using velkor::PropertySetCheck;
using velkor::SetSummary;

void require(bool condition, const char* reason) {
    if (condition) return;
    std::fprintf(stderr, "%s\n", reason);
    std::abort();
}

const velkor::SetLibrary& library() {
    static const velkor::SetLibrary instance({{}, VELKOR_RESOURCE_DIR "/runtime"});
    return instance;
}

PropertySetCheck judged(const velkor::sdai::Model& model, std::size_t limit, const std::string& code) {
    velkor::CheckOptions options;
    options.limit = limit;
    if (!code.empty()) options.codes.only = {code};
    return checkPropertySets(model, library(), options);
}

std::uint64_t sum(const PropertySetCheck& check, std::uint64_t SetSummary::*counted) {
    const auto add = [&](std::uint64_t total, const SetSummary& each) { return total + each.*counted; };
    return std::accumulate(check.summaries.begin(), check.summaries.end(), std::uint64_t{0}, add);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t limit = 1000, few = 2;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto model = velkor::sdai::Model::fromText(text, "input");
    if (!model) return 0;
    const PropertySetCheck check = judged(**model, limit, {});
    require(check.hasDefinitions, "there are no definitions");
    const auto offset = [](const velkor::SetFinding& finding) { return finding.problem.offset; };
    require(std::ranges::is_sorted(check.findings, {}, offset), "findings are out of order");
    require(check.findings.size() == std::min<std::uint64_t>(check.total, limit), "findings were lost");
    require(sum(check, &SetSummary::sets) == check.sets, "the summaries come to other sets");
    require(check.checkedSets + check.uncheckedSets() + check.customSets <= check.sets, "sets count twice");

    const PropertySetCheck shorter = judged(**model, few, {});
    require(shorter.total == check.total, "a limit has changed what is found");
    require(sum(shorter, &SetSummary::wrong) == sum(check, &SetSummary::wrong) &&
                sum(shorter, &SetSummary::filled) == sum(check, &SetSummary::filled),
            "a limit has changed what is counted");
    std::uint64_t total = 0;
    for (const velkor::SetCode& code : velkor::setCodes()) total += judged(**model, few, std::string(code.code)).total;
    require(total == check.total, "the codes come to other findings one by one");
    return 0;
}
