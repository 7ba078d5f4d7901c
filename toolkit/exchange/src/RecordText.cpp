#include "RecordText.h"

#include "velkor/sdai/Part21Encoding.h"

namespace velkor::exchange {

std::string_view parameterOf(std::string_view record, std::size_t position) {
    sdai::Part21Lexer lexer(record);
    if (lexer.next().kind != sdai::TokenKind::Keyword || lexer.next().kind != sdai::TokenKind::Open) return {};
    for (std::size_t i = 0; i < position; ++i)
        if (!lexer.skipParameter() || lexer.next().kind != sdai::TokenKind::Comma) return {};
    const char* begin = lexer.peek().text.data();
    if (!lexer.skipParameter() || lexer.position() < begin) return {};
    return {begin, static_cast<std::size_t>(lexer.position() - begin)};
}

std::string_view parameterOf(const sdai::Model& model, std::uint32_t number, std::string_view attribute) {
    const sdai::EntityDefinition* entity = model.entityAt(number);
    const int position = entity == nullptr ? -1 : entity->attributeIndex(attribute);
    if (position < 0) return {};
    return parameterOf(model.file().instanceText(number), static_cast<std::size_t>(position));
}

bool isUnset(std::string_view parameter) {
    return parameter.empty() || parameter == sdai::omittedValue || parameter == sdai::derivedValue;
}

std::string textOf(std::string_view parameter) {
    sdai::Part21Lexer lexer(parameter);
    sdai::Token token = lexer.next();
    while (token.kind == sdai::TokenKind::Keyword && lexer.next().kind == sdai::TokenKind::Open) token = lexer.next();
    return token.kind == sdai::TokenKind::String ? sdai::decodeString(token.text) : std::string();
}

} // namespace velkor::exchange
