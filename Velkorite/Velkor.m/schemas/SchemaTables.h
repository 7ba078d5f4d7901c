/// The constant data of the eight dictionaries, as velkor-dictgen writes it.
///
/// A release is two tables of places: which unit stores the text (upper 8 bits, an index into the releases
/// below) and at which byte (lower 24). Places instead of pointers keep the data free of relocations; each
/// text is stored once, with the first release that uses it.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace velkor::schemas {

struct SchemaTables {
    /// Zero-terminated texts, one behind the other.
    const char* texts;
    std::span<const std::uint32_t> declarations;
    std::span<const std::uint32_t> statements;
};

SchemaTables tablesOfIFC2X3() noexcept;
SchemaTables tablesOfIFC4() noexcept;
SchemaTables tablesOfIFC4X1() noexcept;
SchemaTables tablesOfIFC4X2() noexcept;
SchemaTables tablesOfIFC4X3_ADD2() noexcept;
SchemaTables tablesOfIFC4X3_RC1() noexcept;
SchemaTables tablesOfIFC4X3_RC3() noexcept;
SchemaTables tablesOfIFC4X4() noexcept;

} // namespace velkor::schemas
