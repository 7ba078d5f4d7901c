/// Catalogues of message texts: a host fills them, messages are built by catalogue and key.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/text/QORString.h"
#include "velkor/text/QORUnicodeString.h"

class VELKOR_PLATFORM_API QORMsgCatalog {
public:
    /// The text of `key` in `catalogue`, or `defaultText` when there is none, with "/P1", "/P2" …
    /// replaced by the parameters. `params` may be null when the count is 0. When `status` is given
    /// it receives "" for a text that was found and the missing "catalogue.key" otherwise.
    static QORUnicodeString BuildMessage(const QORString& catalogue, const QORString& key, QORUnicodeString* params,
                                         int paramCount, const QORUnicodeString& defaultText, QORString* status);

    /// Sets a text, in place of one that was there.
    static void SetText(const QORString& catalogue, const QORString& key, const QORUnicodeString& text);
    static void RemoveAll(); ///< Forgets every text.
};
