#include "Messages.h"

#include "exchangelog/QORExchangeErr.h"

namespace velkor::xml {

void log(const std::string& text, MessageLevel level) {
    QORExchangeErr* exchangeLog = GetExchangeErr();
    if (exchangeLog == nullptr || exchangeLog->GetCurLevel() < level) return;
    exchangeLog->PutUnicodeMessage(QORUnicodeString(std::string_view(text)), level, 0);
}

std::string messageText(const xmlError& error) {
    constexpr std::size_t longest = 300;
    std::string text = error.message != nullptr ? error.message : "unknown error";
    while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.pop_back();
    for (char& character : text) {
        if (character == '\n') character = ' ';
    }
    if (text.size() > longest) text.replace(longest, std::string::npos, "…");
    return text;
}

} // namespace velkor::xml
