#include "Messages.h"

#include "velkor/exchangelog/QORExchangeErr.h"
#include "velkor/objectmodeler/OutOfMemory.h"

#include <cstdarg>
#include <cstdio>
#include <libxml/globals.h>

namespace velkor::xml {

namespace {

std::string oneLine(std::string text) {
    constexpr std::size_t longest = 300;
    while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.pop_back();
    for (char& character : text) {
        if (character == '\n') character = ' ';
    }
    if (text.size() > longest) text.replace(longest, std::string::npos, "…");
    return text;
}

} // namespace

void log(const std::string& text, MessageLevel level) {
    QORExchangeErr* exchangeLog = GetExchangeErr();
    if (exchangeLog == nullptr || exchangeLog->GetCurLevel() < level) return;
    exchangeLog->PutUnicodeMessage(QORUnicodeString(std::string_view(text)), level, 0);
}

std::string messageText(const xmlError& error) {
    return oneLine(error.message != nullptr ? error.message : "unknown error");
}

void initialize() {
    static const bool isReady = [] {
        const MessageCapture capture;
        xmlInitParser();
        capture.check();
        return true;
    }();
    static_cast<void>(isReady);
}

MessageCapture::MessageCapture(std::function<void(const std::string&)> receive)
    : _receive(std::move(receive)), _structured(xmlStructuredError), _structuredContext(xmlStructuredErrorContext),
      _generic(xmlGenericError), _genericContext(xmlGenericErrorContext) {
    xmlSetStructuredErrorFunc(this, receiveStructured);
    xmlSetGenericErrorFunc(this, receiveGeneric);
}

MessageCapture::~MessageCapture() {
    xmlSetStructuredErrorFunc(_structuredContext, _structured);
    xmlSetGenericErrorFunc(_genericContext, _generic);
}

bool MessageCapture::isOfMemory(const xmlError& error) noexcept {
    if (error.code != XML_ERR_NO_MEMORY) return false;
    _lacksMemory = true;
    return true;
}

void MessageCapture::check() const {
    if (_lacksMemory) objectmodeler::outOfMemory();
    if (_thrown != nullptr) std::rethrow_exception(_thrown);
}

void MessageCapture::receiveStructured(void* capture, xmlErrorPtr error) {
    auto& self = *static_cast<MessageCapture*>(capture);
    if (self.isOfMemory(*error) || !self._receive) return;
    self.guard([&] { self._receive(messageText(*error)); });
}

void MessageCapture::receiveGeneric(void* capture, const char* format, ...) {
    auto& self = *static_cast<MessageCapture*>(capture);
    if (!self._receive) return;
    char text[400];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    self.guard([&] { self._receive(oneLine(text)); });
}

} // namespace velkor::xml
