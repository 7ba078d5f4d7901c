/// Takes a text apart at separator characters.
///
///     QORToken folders(path);
///     for (QORUnicodeString folder = folders.GetNextToken(";"); !folder.IsEmpty(); …)
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

class VELKOR_PLATFORM_API QORToken {
public:
    explicit QORToken(const QORUnicodeString& text) : _text(text) {} ///< Parts of a text, none taken yet.

    /// The next run of characters that are none of the separators. Separators before it are passed
    /// over, so that no token is empty but the one that tells the end.
    QORUnicodeString GetNextToken(const QORUnicodeString& separators);

private:
    QORUnicodeString _text;
    std::size_t _next = 0;
};
