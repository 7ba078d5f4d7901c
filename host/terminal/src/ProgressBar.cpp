#include "terminal/ProgressBar.h"

#include "terminal/DisplayText.h"
#include "terminal/Page.h"

#include <algorithm>

namespace velkor::host {

namespace {

constexpr std::chrono::seconds quietTime{1};
constexpr std::chrono::milliseconds interval{100};
constexpr std::size_t barWidth = 30;

} // namespace

ProgressBar::ProgressBar(TextSink err, bool isTerminal)
    : _err(err), _isTerminal(isTerminal), _next(Clock::now() + quietTime) {}

ProgressBar::~ProgressBar() {
    hide();
}

void ProgressBar::hide() {
    if (!_isShown) return;
    _err << "\r\033[K";
    _err.flush();
    _isShown = false;
}

void ProgressBar::show(std::string_view work, std::uint64_t done, std::uint64_t total) {
    if (!_isTerminal || total == 0) return;
    const Clock::time_point now = Clock::now();
    if (now < _next) return;
    _next = now + interval;
    _isShown = true;
    const double part = static_cast<double>(done) / static_cast<double>(total);
    // What stands beside the bar, and the last column, which a terminal may not leave.
    const std::size_t beside = displayWidth(work) + 2 + 6 + 1;
    const std::size_t width = std::min(barWidth, _err.width() - std::min(_err.width(), beside));
    _err << '\r' << work << "  " << padded(bar(part, width), width) << ' ' << static_cast<int>(part * 100.0)
         << " %\033[K";
    _err.flush();
}

} // namespace velkor::host
