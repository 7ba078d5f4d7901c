#include "judge/SharedText.h"

#include "velkor/text/Wording.h"

namespace velkor {

namespace {

// What a value begins with; a short one may have a comment before it.
char first(const sdai::Primitive& value) noexcept {
    const std::string_view text = value.encoded();
    if (text.empty()) return '\0';
    if (text.front() != '/' || text.size() > longestName) return text.front();
    const std::string_view token = sdai::Part21Lexer(text).next().text;
    return token.empty() ? '\0' : token.front();
}

} // namespace

std::string shown(const sdai::Primitive& name) {
    return isTooLong(name) ? '(' + text::grouped(name.encoded().size()) + " bytes)" : name.asString();
}

bool isGiven(const sdai::Primitive& value) noexcept {
    const char begin = first(value);
    return begin != '\0' && begin != '$' && begin != '*';
}

bool isText(const sdai::Primitive& value) noexcept {
    return first(value) == '\'';
}

DXSdaiAppInstance* referred(const sdai::Primitive& value) {
    return first(value) == '#' ? value.asInstance() : nullptr;
}

} // namespace velkor
