/// Suggestions for a name that is not known.
#pragma once

#include "velkor/PlatformExport.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::text {

/// Up to `most` of the known names that are likely meant, the likeliest first: few letters differ, or
/// the name is a part of theirs. Letter case does not count, nor does the prefix (in upper case) where
/// a name begins with it.
VELKOR_PLATFORM_API std::vector<std::string> nearestNames(const std::vector<std::string_view>& known,
                                                          std::string_view name, std::size_t most = 5,
                                                          std::string_view prefix = {});

/// The known name in which the fewest letters differ, at most `letters`, letter case ignored; empty when
/// there is none.
VELKOR_PLATFORM_API std::string likelyMeant(const std::vector<std::string_view>& known, std::string_view name,
                                            std::size_t letters);

} // namespace velkor::text
