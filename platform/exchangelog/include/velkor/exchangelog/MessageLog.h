/// An exchange log that keeps its messages readable.
#pragma once

#include "velkor/exchangelog/QORExchangeErr.h"
#include "velkor/PlatformExport.h"

#include <string>
#include <vector>

namespace velkor::exchangelog {

/// What was logged.
struct Message {
    std::string text;
    int level = 0;
    int kind = 0;
};

class VELKOR_PLATFORM_API MessageLog : public QORExchangeErr {
public:
    explicit MessageLog(int level) : _level(level) {} ///< An empty log of a level.

    void setLevel(int level) noexcept { _level = level; } ///< What GetCurLevel() gives from now on.
    const std::vector<Message>& messages() const noexcept { return _messages; } ///< What was logged, in its order.
    void clear() noexcept { _messages.clear(); }                                ///< Forgets the messages.

    int GetCurLevel() const override { return _level; } ///< The level that was set.
    /// Keeps the text; when that is null, the two 8-bit texts with a colon between.
    int PutMsgErr(QORUnicodeString* text, int* code, QORString first, QORString second, int level,
                  QORUnicodeString* extra, int* extraCode) override;
    int PutUnicodeMessage(const QORUnicodeString& message, short level, short kind) override;
    /// Keeps the text with level and kind 0.
    int PutMessage(const QORUnicodeString& message) override;

private:
    int _level;
    std::vector<Message> _messages;
};

} // namespace velkor::exchangelog
