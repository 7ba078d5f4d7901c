#include "velkor/exchangelog/QORExchangeErr.h"

#include "velkor/objectmodeler/CallRecorder.h"

#include <atomic>

namespace {

std::atomic<QORExchangeErr*> current = nullptr;

} // namespace

QORExchangeErr* GetExchangeErr() {
    velkor::objectmodeler::recordCall("exchange log asked for");
    return current;
}

void velkor::exchangelog::setExchangeErr(QORExchangeErr* log) {
    current = log;
}
