/// The header of what a conversion writes.
#pragma once

#include "ChangeList.h"
#include "velkor/exchange/ConversionReport.h"
#include "velkor/sdai/Part21Edit.h"

#include <span>
#include <string>
#include <string_view>
#include <tl/expected.hpp>

namespace velkor::exchange {

struct ResultHeader {
    /// As FILE_SCHEMA is to name it; empty for what the source has there.
    std::string_view schema = {};
    /// ISO 8601; empty for that of the source: a result is the same on every run.
    std::string_view timeStamp = {};
};

/// Makes the header say who has written the result, and what it is; its other texts stay. With a schema, what
/// happens to view definitions is noted. A header that is damaged stays as it is, and is an error when it would have to
/// name another schema.
tl::expected<void, std::string> setResultHeader(sdai::Part21Edit& edit, const sdai::Part21File& file,
                                                const ResultHeader& wanted, ChangeList& changes);

/// Those that setResultHeader() follows.
std::span<const ConversionRule* const> headerRules();

} // namespace velkor::exchange
