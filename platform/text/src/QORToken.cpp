#include "velkor/text/QORToken.h"

#include "velkor/text/Unicode.h"

namespace {

/// Bytes of the first character of `text` when it is one of the separators, else 0.
std::size_t separatorLength(std::string_view text, std::string_view separators) noexcept {
    while (!separators.empty()) {
        const std::size_t length = velkor::text::byteOffset(separators, 1);
        if (text.starts_with(separators.substr(0, length))) return length;
        separators.remove_prefix(length);
    }
    return 0;
}

} // namespace

QORUnicodeString QORToken::GetNextToken(const QORUnicodeString& separators) {
    std::string_view rest = _text.utf8().substr(_next);
    while (const std::size_t length = separatorLength(rest, separators.utf8())) rest.remove_prefix(length);
    const char* first = rest.data();
    while (!rest.empty() && separatorLength(rest, separators.utf8()) == 0) {
        rest.remove_prefix(velkor::text::byteOffset(rest, 1));
    }
    _next = static_cast<std::size_t>(rest.data() - _text.utf8().data());
    return QORUnicodeString(std::string_view(first, static_cast<std::size_t>(rest.data() - first)));
}
