// Any text as a table of definitions: what reads is written so that it reads back the same.

#include "FuzzSupport.h"
#include "velkor/propertysets/DefinitionTable.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto table = velkor::readTable({reinterpret_cast<const char*>(data), size});
    if (!table) return 0;
    const auto again = velkor::readTable(velkor::writtenTable(*table));
    velkor::test::require(again && *again == *table);
    return 0;
}
