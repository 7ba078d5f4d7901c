#include "velkor/text/QORDXUnicodeString.h"

#include "velkor/text/Unicode.h"

QORDXUnicodeString::QORDXUnicodeString() : QORDXUnicodeString(QORUnicodeString()) {}

QORDXUnicodeString::QORDXUnicodeString(const QORUnicodeString& text)
    : _text(text), _hash(velkor::text::hash64(text.utf8())) {}
