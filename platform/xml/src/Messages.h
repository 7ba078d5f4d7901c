/// How the parser speaks to people: through the exchange log, never by itself.
#pragma once

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

/// Has what libxml2 says in this thread, apart from what handlers of a context get, go to a function
/// while the object lives. The thread's handlers are put back afterwards.
class MessageCapture {
public:
    explicit MessageCapture(std::function<void(const std::string&)> receive);
    ~MessageCapture();
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;

private:
    std::function<void(const std::string&)> _receive;
    xmlStructuredErrorFunc _structured;
    void* _structuredContext;
    xmlGenericErrorFunc _generic;
    void* _genericContext;
};

} // namespace velkor::xml
