/// How the parser speaks to people: through the exchange log, never by itself.
#pragma once

#include "velkor/objectmodeler/OutOfMemory.h"

#include <exception>
#include <functional>
#include <libxml/xmlerror.h>
#include <string>

namespace velkor::xml {

/// Levels of messages in the exchange log.
enum MessageLevel : short { ErrorLevel = 1, WarningLevel = 2 };

/// Puts a text into the exchange log of the host, when there is one and it takes the level.
void log(const std::string& text, MessageLevel level);

/// What libxml2 has to say, without line ends and cut to a bearable length.
std::string messageText(const xmlError& error);

/// Makes libxml2 ready for use by any thread. Nothing of it may be touched before.
void initialize();

/// Has what libxml2 says in this thread, apart from what handlers of a context get, go to a function
/// while the object lives. The thread's handlers are put back afterwards.
///
/// No exception may pass through libxml2, and libxml2 goes on without the memory that it does not get. Both are kept
/// here until check().
class MessageCapture {
public:
    explicit MessageCapture(std::function<void(const std::string&)> receive = {});
    ~MessageCapture();
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

    /// Runs a step of a handler and keeps what it throws.
    template <class Step>
    void guard(Step step) noexcept {
        try {
            step();
        } catch (...) {
            if (_thrown == nullptr) _thrown = std::current_exception();
        }
    }
    /// Notes when a message of a context tells of memory; true when it does.
    bool isOfMemory(const xmlError& error) noexcept;
    /// True when what libxml2 made is not whole, because it lacked memory or a handler threw.
    bool hasFailed() const noexcept { return _lacksMemory || _thrown != nullptr; }
    /// Throws std::bad_alloc when libxml2 lacked memory, and what a handler threw.
    void check() const;

private:
    static void receiveStructured(void* capture, xmlErrorPtr error);
    static void receiveGeneric(void* capture, const char* format, ...);

    std::function<void(const std::string&)> _receive;
    std::exception_ptr _thrown;
    bool _lacksMemory = false;
    xmlStructuredErrorFunc _structured;
    void* _structuredContext;
    xmlGenericErrorFunc _generic;
    void* _genericContext;
};

/// What libxml2 makes, all of it. What is not whole for want of memory is thrown away, and std::bad_alloc thrown.
template <class Make, class Discard>
auto made(Make make, Discard discard) {
    const MessageCapture capture;
    auto* result = make();
    if (result != nullptr && !capture.hasFailed()) return result;
    if (result != nullptr) discard(result);
    objectmodeler::outOfMemory();
}

} // namespace velkor::xml
