/// A progress bar on the terminal for work that takes more than a second.
#pragma once

#include "terminal/TextSink.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace velkor::host {

/// Shows nothing unless `err` is a terminal. The bar goes with the object.
class ProgressBar {
public:
    ProgressBar(TextSink err, bool isTerminal);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    void show(std::string_view work, std::uint64_t done, std::uint64_t total);
    /// Makes room for other lines; show() brings the bar back.
    void hide();

private:
    using Clock = std::chrono::steady_clock;

    TextSink _err;
    bool _isTerminal;
    // When the bar is drawn next.
    Clock::time_point _next;
    bool _isShown = false;
};

} // namespace velkor::host
