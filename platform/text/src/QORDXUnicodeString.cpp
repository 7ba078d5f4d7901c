#include "text/QORDXUnicodeString.h"

#include "text/Unicode.h"

QORDXUnicodeString::QORDXUnicodeString() : QORDXUnicodeString(QORUnicodeString()) {}

QORDXUnicodeString::QORDXUnicodeString(const QORUnicodeString& text)
    : _text(text), _hash(velkor::text::hash64(text.utf8())) {}
