#include "Messages.h"

#include "exchangelog/QORExchangeErr.h"

#include <cstdarg>
#include <cstdio>
#include <libxml/globals.h>

namespace velkor::xml {

namespace {

using Receive = std::function<void(const std::string&)>;

std::string oneLine(std::string text) {
    constexpr std::size_t longest = 300;
    while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.pop_back();
    for (char& character : text) {
        if (character == '\n') character = ' ';
    }
    if (text.size() > longest) text.replace(longest, std::string::npos, "…");
    return text;
}

void receiveStructured(void* receive, xmlErrorPtr error) {
    (*static_cast<const Receive*>(receive))(messageText(*error));
}

void receiveGeneric(void* receive, const char* format, ...) {
    char text[400];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    (*static_cast<const Receive*>(receive))(oneLine(text));
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

MessageCapture::MessageCapture(Receive receive)
    : _receive(std::move(receive)), _structured(xmlStructuredError), _structuredContext(xmlStructuredErrorContext),
      _generic(xmlGenericError), _genericContext(xmlGenericErrorContext) {
    xmlSetStructuredErrorFunc(&_receive, receiveStructured);
    xmlSetGenericErrorFunc(&_receive, receiveGeneric);
}

MessageCapture::~MessageCapture() {
    xmlSetStructuredErrorFunc(_structuredContext, _structured);
    xmlSetGenericErrorFunc(_genericContext, _generic);
}

} // namespace velkor::xml
