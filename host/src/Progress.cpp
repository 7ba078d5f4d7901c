#include "Progress.h"

#include "report/Page.h"

namespace velkor::host {

namespace {

constexpr std::chrono::seconds quietTime{1};
constexpr std::chrono::milliseconds interval{100};
constexpr std::size_t barWidth = 30;

} // namespace

Progress::Progress(CommandContext& context, std::string what)
    : _context(context), _what(std::move(what)), _next(Clock::now() + quietTime) {}

Progress::~Progress() {
    if (!_isShown) return;
    _context.err << "\r\033[K";
    _context.err.flush();
}

void Progress::show(std::uint64_t done, std::uint64_t total) {
    if (!_context.interactive || total == 0) return;
    const Clock::time_point now = Clock::now();
    if (now < _next) return;
    _next = now + interval;
    _isShown = true;
    const double part = static_cast<double>(done) / static_cast<double>(total);
    _context.err << '\r' << _what << "  " << padded(bar(part, barWidth), barWidth) << ' '
                 << static_cast<int>(part * 100.0) << " %\033[K";
    _context.err.flush();
}

} // namespace velkor::host
