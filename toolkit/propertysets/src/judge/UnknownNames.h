/// Names of sets that nothing defines, and whether they should be defined.
#pragma once

#include "velkor/propertysets/SetCatalogue.h"
#include "velkor/sdai/Problem.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor {

struct UnknownName {
    sdai::Severity severity = sdai::Severity::Error;
    /// The defined name that is probably meant; empty without one.
    std::string nearest;
    /// Other releases that define the name.
    std::vector<std::string_view> releases;
};

class UnknownNames {
public:
    UnknownNames(const SetLibrary& library, const SetCatalogue& catalogue) noexcept
        : _library(library), _catalogue(catalogue) {}

    /// Nothing for the name of a set of one's own.
    std::optional<UnknownName> judge(std::string_view name);

private:
    const SetLibrary& _library;
    const SetCatalogue& _catalogue;
    std::size_t _hints = 0;
};

} // namespace velkor
