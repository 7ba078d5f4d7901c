#include "velkor/objectmodeler/CallRecorder.h"

#include <atomic>
#include <mutex>

namespace velkor::objectmodeler {

namespace {

std::atomic<bool> recording = false;

struct Record {
    std::mutex mutex;
    std::vector<std::string> lines;
};

// Never destroyed: calls come until the last library is unloaded.
Record& record() {
    static Record& instance = *new Record;
    return instance;
}

} // namespace

void startRecording() {
    const std::scoped_lock lock(record().mutex);
    record().lines.clear();
    recording = true;
}

void stopRecording() {
    recording = false;
}

std::vector<std::string> recordedCalls() {
    const std::scoped_lock lock(record().mutex);
    return record().lines;
}

bool isRecording() noexcept {
    return recording;
}

void recordCall(std::string_view line) {
    if (!isRecording()) return;
    const std::scoped_lock lock(record().mutex);
    record().lines.emplace_back(line);
}

} // namespace velkor::objectmodeler
