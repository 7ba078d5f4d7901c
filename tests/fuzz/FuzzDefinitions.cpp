// Definitions of property sets that the input holds: what is read is written, reads back the same, and is mended once
// and for all.

#include "FuzzSupport.h"
#include "velkor/propertysets/DefinitionFile.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace {

using namespace velkor::test;

// Such an object type is one in a condition, but not in the name of a class.
bool isOfClasses(const velkor::ApplicableClass& named) {
    return named.predefinedType.find_first_of(",;") != std::string::npos;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    auto reading = velkor::readDefinition(input, "Pset_Fuzz.xml");
    require(reading || reading.error().message.starts_with("Pset_Fuzz.xml:"));
    if (!reading) return 0;
    const auto& faults = reading->faults;
    require(std::ranges::is_sorted(faults, {}, &velkor::DefinitionFault::line));
    require(std::ranges::none_of(faults, [](const auto& fault) { return fault.text.find('\n') != std::string::npos; }));

    velkor::SetDefinition& set = reading->definition;
    const auto again = velkor::readDefinition(velkor::writtenDefinition(set, "IFC4"), "Pset_Fuzz.xml");
    require(again && (again->definition == set || std::ranges::any_of(set.classes, isOfClasses)));
    for (const char* release : {"IFC2X3", "IFC4X3_ADD2"}) {
        static_cast<void>(velkor::mendDefinition(set, release));
        const velkor::SetDefinition mended = set;
        static_cast<void>(velkor::mendDefinition(set, release));
        require(set == mended);
    }
    return 0;
}
