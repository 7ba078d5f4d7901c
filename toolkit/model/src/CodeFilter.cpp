#include "velkor/model/CodeFilter.h"

#include <algorithm>

namespace velkor {

bool CodeFilter::takes(std::string_view code) const {
    const auto has = [code](const std::vector<std::string>& codes) {
        return std::ranges::find(codes, code) != codes.end();
    };
    return (only.empty() || has(only)) && !has(ignore);
}

} // namespace velkor
