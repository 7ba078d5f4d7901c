#include "velkor/exchangelog/MessageLog.h"

namespace velkor::exchangelog {

int MessageLog::PutMsgErr(QORUnicodeString* text, int*, QORString first, QORString second, int level,
                          QORUnicodeString* extra, int*) {
    std::string line =
        text != nullptr ? std::string(text->utf8()) : std::string(first.view()) + ": " + second.CastToCharPtr();
    if (extra != nullptr && !extra->IsEmpty()) line += " (" + std::string(extra->utf8()) + ")";
    _messages.push_back({std::move(line), level, 0});
    return 0;
}

int MessageLog::PutUnicodeMessage(const QORUnicodeString& message, short level, short kind) {
    _messages.push_back({std::string(message.utf8()), level, kind});
    return 0;
}

int MessageLog::PutMessage(const QORUnicodeString& message) {
    return PutUnicodeMessage(message, 0, 0);
}

} // namespace velkor::exchangelog
