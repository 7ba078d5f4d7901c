/// Judges an exchange structure against ISO 10303-21 strictly, without a dictionary.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/sdai/Part21File.h"
#include "velkor/sdai/ProblemCode.h"

#include <functional>

namespace velkor::sdai {

/// Called now and then with the bytes done; false ends the work, and what has been found so far is the answer.
using Progress = std::function<bool(std::uint64_t done, std::uint64_t total)>;

/// One pass over the whole text: header entities (FILE_DESCRIPTION, FILE_NAME, FILE_SCHEMA,
/// each once, in order, with their arity), section structure, instance ids above 0 and
/// unique, balanced lists, valid tokens and string directives. At most `limit` problems
/// are given, in file order; `total`, when given, receives the full count.
VELKOR_PLATFORM_API std::vector<Problem> checkSyntax(const Part21File& file, std::size_t limit,
                                                     std::uint64_t* total = nullptr, const Progress& progress = {},
                                                     const CodeChoice& choice = {});

} // namespace velkor::sdai
