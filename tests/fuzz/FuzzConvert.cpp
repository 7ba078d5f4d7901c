// Any bytes as a model, converted as the first three of them say: what comes out is a model of the release asked for,
// in which nothing is wrong where nothing was; every instance is accounted for; what was kept is what it was.

#include "velkor/check/ModelCheck.h"
#include "velkor/configuration/PlatformSetup.h"
#include "velkor/exchange/Conversion.h"
#include "velkor/sdai/DXSdaiDictionaryRepo.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace {

using namespace velkor;

void require(bool condition, const char* reason) {
    if (condition) return;
    std::fprintf(stderr, "%s\n", reason);
    std::abort();
}

/// The mappings that come with the program.
const PlatformSetup& setup() {
    static const PlatformSetup shipped([] {
        Configuration configuration;
        configuration.shippedResources = VELKOR_RESOURCE_DIR;
        return configuration;
    }());
    return shipped;
}

/// What the bytes ask for; a byte whose digit names nothing leaves its step out.
ConversionOptions wanted(std::string_view bytes) {
    static const std::vector<std::string> releases = DXSdaiDictionaryRepo::TheOne().names();
    constexpr std::pair<const char*, const char*> units[] = {{"LENGTHUNIT", "METRE"},
                                                             {"LENGTHUNIT", "INCH"},
                                                             {"LENGTHUNIT", "MILLIMETRE"},
                                                             {"PLANEANGLEUNIT", "DEGREE"},
                                                             {"AREAUNIT", "SQUARE_METRE"}};
    const auto digit = [bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]) - unsigned{'0'}; };
    ConversionOptions options;
    options.limit = 2;
    if (digit(0) < releases.size()) options.release.emplace().release = releases[digit(0)];
    if (digit(1) < std::size(units)) options.units.emplace().units.emplace_back(units[digit(1)]);
    constexpr unsigned repaired = 1, named = 2, exported = 4, imported = 8, plm = 16;
    const unsigned flags = digit(2) < 32 ? digit(2) : 0;
    if (flags & (repaired | named)) {
        IdentifierOptions& identifiers = options.identifiers.emplace();
        identifiers.repair = flags & repaired;
        if (flags & named) identifiers.plmAttribute = "Tag";
    }
    if (flags & (exported | imported | plm)) {
        PropertyOptions& properties = options.properties.emplace();
        if (flags & (exported | imported))
            properties.customMapping = flags & exported ? MappingDirection::Export : MappingDirection::Import;
        properties.plmAttributes = flags & plm;
        properties.setup = &setup();
    }
    return options;
}

std::string written(const sdai::Model& model, const ConversionOptions& options, FullReport& report) {
    const int descriptor = memfd_create("written", 0);
    auto output = files::OutputFile::onto(descriptor);
    auto done = convertModel(model, options, output);
    require(output.commit().has_value(), "nothing could be written");
    std::string text;
    if (done) {
        report = std::move(*done);
        text.resize(static_cast<std::size_t>(lseek(descriptor, 0, SEEK_END)));
        require(pread(descriptor, text.data(), text.size(), 0) == static_cast<ssize_t>(text.size()),
                "nothing can be read");
    }
    close(descriptor);
    return text;
}

std::uint64_t problems(const sdai::Model& model) {
    ModelCheckOptions options;
    options.scope = CheckScope::Dictionary;
    options.limit = 1;
    return checkModel(model, options).total;
}

/// The instances that later steps meet are not those of the model alone.
void requireEveryInstance(std::uint64_t instances, const FullReport& report) {
    for (const StepReport& step : report.steps) {
        if (&step == &report.steps.front())
            require(step.kept + step.converted + step.rebuilt + step.lost == instances,
                    "instances are unaccounted for");
        for (const RuleUse& use : step.uses) {
            require(use.count >= use.first.size() && use.first.size() <= 2, "changes are out of bounds");
            require(use.rule != nullptr && use.count > 0, "a rule was not followed");
        }
    }
}

/// Without another release, what a step has kept is written byte by byte, and all of it is there.
void requireKept(const sdai::Part21File& before, const sdai::Part21File& after, std::uint64_t kept) {
    std::uint64_t same = 0;
    for (std::uint32_t i = 0; i < before.instanceCount(); ++i) {
        const auto found = after.find(before.id(i));
        if (found && after.instanceText(*found) == before.instanceText(i)) ++same;
    }
    require(same >= kept, "what was kept is not what it was");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t optionBytes = 3;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (size < optionBytes) return 0;
    const std::string_view text = bytes.substr(optionBytes);
    const auto model = sdai::Model::fromText(text, "input");
    if (!model) return 0;
    const ConversionOptions options = wanted(bytes);
    FullReport report;
    const std::string result = written(**model, options, report);
    if (result.empty()) return 0;
    if (report.steps.empty()) require(result == text, "a copy is not the model");

    const auto again = sdai::Model::fromText(result, "result");
    require(again.has_value(), "what was written cannot be read");
    const std::string_view release = options.release ? options.release->release : (*model)->schema().name();
    require((*again)->schema().name() == release, "the result is of another release");
    // How reading goes on behind damage depends on what stands around it.
    if ((*model)->file().problemCount() > 0) return 0;
    requireEveryInstance((*model)->file().instanceCount(), report);
    if (!options.release && report.steps.size() == 1)
        requireKept((*model)->file(), (*again)->file(), report.steps.front().kept);
    if (problems(**model) == 0) require(problems(**again) == 0, "something is wrong that was not");
    return 0;
}
