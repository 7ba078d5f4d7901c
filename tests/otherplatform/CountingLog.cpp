#include "Memory.h"
#include "velkor/exchangelog/MessageLog.h"
#include "velkor/exchangelog/QORMsgCatalog.h"

#include <utility>

namespace {

QORExchangeErr* current = nullptr;

std::map<std::string, QORUnicodeString>& texts() {
    static auto& instance = *new std::map<std::string, QORUnicodeString>;
    return instance;
}

} // namespace

velkor::otherplatform::LogCounts& velkor::otherplatform::logCounts() {
    static auto& instance = *new LogCounts;
    return instance;
}

QORExchangeErr* GetExchangeErr() {
    ++velkor::otherplatform::logCounts().lookups;
    return current;
}

namespace velkor::exchangelog {

void setExchangeErr(QORExchangeErr* log) {
    current = log;
}

int MessageLog::PutMsgErr(QORUnicodeString* text, int*, QORString first, QORString second, int level, QORUnicodeString*,
                          int*) {
    ++otherplatform::logCounts().messages[level];
    std::string line(text != nullptr ? text->utf8() : first.view());
    if (text == nullptr) line.append(": ").append(second.view());
    _messages.push_back({std::move(line), level, 0});
    return 0;
}

int MessageLog::PutUnicodeMessage(const QORUnicodeString& message, short level, short kind) {
    ++otherplatform::logCounts().messages[level];
    _messages.push_back({std::string(message.utf8()), level, kind});
    return 0;
}

int MessageLog::PutMessage(const QORUnicodeString& message) {
    return PutUnicodeMessage(message, 0, 0);
}

} // namespace velkor::exchangelog

QORUnicodeString QORMsgCatalog::BuildMessage(const QORString& catalogue, const QORString& key, QORUnicodeString* params,
                                             int paramCount, const QORUnicodeString& defaultText, QORString* status) {
    const QORString name = catalogue + QORString(".") + key;
    const auto found = texts().find(std::string(name.view()));
    if (status != nullptr) *status = found == texts().end() ? name : QORString();
    std::string text(found != texts().end() ? found->second.utf8() : defaultText.utf8());
    // The last one first: "/P1" begins "/P10" as well.
    for (int number = paramCount; number > 0; --number) {
        std::string place = "/P";
        place += std::to_string(number);
        const std::string_view parameter = params[number - 1].utf8();
        for (std::size_t at = text.find(place); at != std::string::npos; at = text.find(place, at + parameter.size()))
            text.replace(at, place.size(), parameter);
    }
    return QORUnicodeString(text);
}

void QORMsgCatalog::SetText(const QORString& catalogue, const QORString& key, const QORUnicodeString& text) {
    texts()[std::string((catalogue + QORString(".") + key).view())] = text;
}

void QORMsgCatalog::RemoveAll() {
    texts().clear();
}
