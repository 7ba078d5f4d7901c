#include "LimitOption.h"

namespace velkor::host {

void addLimitOption(const Command& command, std::size_t& limit, const std::string& what) {
    command.addOption("--limit", limit, "List at most N " + what + "; " + std::to_string(defaultLimit) + " unless told")
        .valueName("N")
        .wholeNumber(0);
}

} // namespace velkor::host
