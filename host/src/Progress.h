/// A progress bar on the terminal for work that takes more than a second.
#pragma once

#include "CommandContext.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace velkor::host {

/// Shows nothing unless messages go to a terminal. The bar goes with the object.
class Progress {
public:
    Progress(CommandContext& context, std::string what);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void show(std::uint64_t done, std::uint64_t total);

private:
    using Clock = std::chrono::steady_clock;

    CommandContext& _context;
    std::string _what;
    // When the bar is drawn next.
    Clock::time_point _next;
    bool _isShown = false;
};

} // namespace velkor::host
