/// The partial entities of an instance in external mapping: "(A(1)B('x'))".
#pragma once

#include "velkor/sdai/Part21Lexer.h"

#include <string_view>

namespace velkor::sdai::model {

/// Calls `use(keyword, parameters)` for each partial entity until it gives true, and gives whether it did.
/// `parameters` begins behind the "(".
template <typename Use>
bool anyPartialEntity(std::string_view instanceText, Use use) {
    Part21Lexer lexer(instanceText);
    if (lexer.next().kind != TokenKind::Open) return false;
    for (;;) {
        const Token keyword = lexer.next();
        if (keyword.kind != TokenKind::Keyword || lexer.next().kind != TokenKind::Open) return false;
        const char* const begin = lexer.position();
        while (lexer.peek().kind != TokenKind::Close) {
            if (!lexer.skipParameter()) return false;
            if (lexer.peek().kind == TokenKind::Comma) lexer.next();
        }
        const std::string_view parameters(begin, static_cast<std::size_t>(lexer.position() - begin));
        lexer.next();
        if (use(keyword.text, parameters)) return true;
    }
}

} // namespace velkor::sdai::model
