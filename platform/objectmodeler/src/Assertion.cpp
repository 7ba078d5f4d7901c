#include "velkor/objectmodeler/Assertion.h"

#include <cstddef>
#include <deque>
#include <mutex>
#include <new>

namespace {

constexpr std::size_t MostKept = 1000;

struct Reports {
    std::mutex mutex;
    std::deque<velkor::objectmodeler::AssertionReport> kept;
    std::uint64_t count = 0;
};

// Never destroyed: a library that is unloaded late may still report.
Reports& reports() {
    static Reports& instance = *new Reports;
    return instance;
}

} // namespace

// A report never stops anything: without memory it is counted, but not kept.
void __OmyAssertionFailed(const char* sourceUnit, int line, const char* message) try {
    Reports& all = reports();
    const std::scoped_lock lock(all.mutex);
    ++all.count;
    if (all.kept.size() == MostKept) all.kept.pop_front();
    all.kept.push_back({sourceUnit ? sourceUnit : "", line, message ? message : ""});
} catch (const std::bad_alloc&) {
    return;
}

namespace velkor::objectmodeler {

std::uint64_t assertionCount() noexcept {
    const std::scoped_lock lock(reports().mutex);
    return reports().count;
}

std::vector<AssertionReport> assertionReports() {
    const std::scoped_lock lock(reports().mutex);
    return {reports().kept.begin(), reports().kept.end()};
}

void clearAssertionReports() noexcept {
    const std::scoped_lock lock(reports().mutex);
    reports().kept.clear();
    reports().count = 0;
}

} // namespace velkor::objectmodeler
