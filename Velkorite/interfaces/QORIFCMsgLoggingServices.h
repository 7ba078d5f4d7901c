/// Messages of an IFC import or export for the host's exchange log.
///
///     QORIFCMsgLoggingServices::SetLogError(); // an exchange has begun
///     QORIFCMsgLoggingServices::PutUnicodeMessage("IFCWALL #12 has no representation", 1, 0);
///
/// A message is written when the log's current level is at least the message's level. Every service
/// gives S_OK when the message went to the log and E_FAIL when there is no log or the message was
/// left out. The log is looked up once and stays the host's; a host that begins an exchange with another
/// log says so with SetLogError. Levels and kinds have the meaning that the log gives them.
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/QORBaseUnknown.h"
#include "velkor/text/QORString.h"
#include "velkor/text/QORUnicodeString.h"

class QORExchangeErr;

class VELKOR_API QORIFCMsgLoggingServices : public QORBaseUnknown {
public:
    QORIFCMsgLoggingServices();
    ~QORIFCMsgLoggingServices() override;

    /// The full form: all arguments go to the log's PutMsgErr as they are.
    static HRESULT PutMsg(QORUnicodeString* text, int* code, QORString first, QORString second, int level,
                          QORUnicodeString* extra, int* extraCode);
    /// A finished message.
    static HRESULT PutUnicodeMessage(const QORUnicodeString& message, short level, short kind);
    /// A message of the catalogue `second` under the key `first`, in this order; `defaultText` when the
    /// catalogue has none. It is put together only when it will be written.
    static HRESULT PutUnicodeMessage(QORString first, QORString second, short level, short kind,
                                     const QORUnicodeString& defaultText);
    /// Looks the log up anew. E_FAIL when the host has none; the next message then looks again.
    static HRESULT SetLogError();

private:
    static QORExchangeErr* logFor(int level);

    static QORExchangeErr* _plogError;
};
