/// The host's exchange log: the report it keeps for one data exchange.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/text/QORString.h"
#include "velkor/text/QORUnicodeString.h"

/// A log that a host provides. A message carries a level; one whose level is above the log's
/// current level is not meant to be written.
class VELKOR_PLATFORM_API QORExchangeErr {
public:
    virtual ~QORExchangeErr() = default;
    virtual int GetCurLevel() const = 0; ///< Messages above this level are not meant to be written.
    /// The full form. The meaning of the arguments is the log's; pointers may be null and stay the
    /// caller's. Gives a result code.
    virtual int PutMsgErr(QORUnicodeString* text, int* code, QORString first, QORString second, int level,
                          QORUnicodeString* extra, int* extraCode) = 0;
    /// A finished message of a level and a kind.
    virtual int PutUnicodeMessage(const QORUnicodeString& message, short level, short kind) = 0;
    /// A finished message without a level of its own: who writes it has looked at the log's.
    virtual int PutMessage(const QORUnicodeString& message) = 0;
};

/// The log of the exchange under way; null when there is none. The log belongs to the host.
VELKOR_PLATFORM_API QORExchangeErr* GetExchangeErr();

namespace velkor::exchangelog {

/// Makes a log the current one; null ends the exchange. The caller keeps the log alive meanwhile,
/// and as long as a library may have cached it.
VELKOR_PLATFORM_API void setExchangeErr(QORExchangeErr* log);

} // namespace velkor::exchangelog
