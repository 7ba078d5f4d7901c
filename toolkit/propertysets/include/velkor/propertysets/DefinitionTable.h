/// Tables of definitions: every set of a release in one readable text, as the project keeps them. Definition files are
/// made from them.
#pragma once

#include "velkor/propertysets/DefinitionFile.h"
#include "velkor/propertysets/SetDefinition.h"
#include "velkor/sdai/Problem.h"
#include "velkor/ToolkitExport.h"

#include <string>
#include <string_view>
#include <tl/expected.hpp>
#include <vector>

namespace velkor {

struct DefinitionTable {
    /// A definition with where it comes from.
    struct Entry {
        /// Name of the file that it was made from, and the SHA-256 of its bytes in hexadecimal.
        std::string source;
        std::string hash;
        SetDefinition definition;
        std::vector<DefinitionFault> faults;

        bool operator==(const Entry&) const = default;
    };
    /// Files of which no definition was made.
    struct Refused {
        std::string source;
        std::string hash;
        std::string reason;

        bool operator==(const Refused&) const = default;
    };

    /// "IFC4".
    std::string release;
    /// In the order of their names.
    std::vector<Entry> entries;
    std::vector<Refused> refused;

    bool operator==(const DefinitionTable&) const = default;
};

/// Fails with line and what was expected.
VELKOR_TOOLKIT_API tl::expected<DefinitionTable, sdai::Problem> readTable(std::string_view text);
/// True when the first word is that of a table.
VELKOR_TOOLKIT_API bool beginsTable(std::string_view text) noexcept;
/// The text of a table, as readTable() reads it.
VELKOR_TOOLKIT_API std::string writtenTable(const DefinitionTable& table);

} // namespace velkor
