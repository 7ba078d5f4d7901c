#include "records/SharedText.h"

#include "velkor/sdai/Part21Lexer.h"
#include "velkor/text/Wording.h"

namespace velkor {

namespace {

bool isKeywordCharacter(char c) noexcept {
    return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

} // namespace

std::string nameShown(std::string_view value) {
    return isTooLong(value) ? '(' + text::grouped(value.size()) + " bytes)" : nameText(value);
}

std::string nameText(std::string_view value) {
    if (!isText(value) || isTooLong(value)) return {};
    const sdai::Token token = sdai::Part21Lexer(value).next();
    return token.kind == sdai::TokenKind::String ? sdai::decodeString(token.text) : std::string();
}

TypedText typedText(std::string_view value) noexcept {
    std::size_t size = 0;
    while (size < value.size() && isKeywordCharacter(value[size])) ++size;
    if (size > 0 && size < value.size() && value[size] == '(' && value.front() >= 'A')
        return {value.substr(0, size), value.substr(size + 1)};
    // With space or comments between.
    sdai::Part21Lexer lexer(value);
    const sdai::Token keyword = lexer.next();
    if (keyword.kind != sdai::TokenKind::Keyword || lexer.next().kind != sdai::TokenKind::Open) return {{}, value};
    return {keyword.text, value.substr(static_cast<std::size_t>(lexer.position() - value.data()))};
}

std::string_view TypedText::string() const noexcept {
    const sdai::Token token = sdai::Part21Lexer(content).next();
    return token.kind == sdai::TokenKind::String ? token.text : std::string_view();
}

} // namespace velkor
