#include "RecordSyntax.h"

#include "velkor/sdai/Part21Lexer.h"

namespace velkor::sdai::part21 {

namespace {

bool isScalar(TokenKind kind) noexcept {
    return kind >= TokenKind::InstanceName && kind <= TokenKind::Derived;
}

/// Takes no note of the parameters of a list.
struct Ignored {
    void token(const Token&) noexcept {}
    void end() noexcept {}
};

/// Takes down the parameters of a list as they stand.
struct Split {
    std::vector<std::string_view>& parameters;
    const char* begin = nullptr;
    const char* behind = nullptr;

    void token(const Token& token) noexcept {
        if (begin == nullptr) begin = token.text.data();
        behind = token.text.data() + token.text.size();
    }
    void end() {
        if (begin != nullptr) parameters.emplace_back(begin, static_cast<std::size_t>(behind - begin));
        begin = nullptr;
    }
};

/// Reads what stands in a list of parameters behind its "(", its ")" included; nesting costs a counter alone.
template <class Note>
bool takeList(Part21Lexer& lexer, std::size_t around, Note note) {
    bool isValueNext = true;
    bool isFirst = true;
    for (std::size_t depth = 1; depth > 0;) {
        Token token = lexer.next();
        if (depth == 1 && (token.kind == TokenKind::Comma || token.kind == TokenKind::Close))
            note.end();
        else
            note.token(token);
        if (!isValueNext) {
            if (token.kind != TokenKind::Comma && token.kind != TokenKind::Close) return false;
            isValueNext = token.kind == TokenKind::Comma;
            if (!isValueNext) --depth;
            isFirst = false;
            continue;
        }
        if (token.kind == TokenKind::Close && isFirst) {
            --depth;
            isValueNext = isFirst = false;
            continue;
        }
        isFirst = false;
        // A typed parameter.
        if (token.kind == TokenKind::Keyword) {
            token = lexer.next();
            if (token.kind != TokenKind::Open) return false;
            note.token(token);
        }
        if (token.kind == TokenKind::Open) {
            if (++depth + around == deepestNesting) return false;
            isFirst = true;
        } else if (!isScalar(token.kind)) {
            return false;
        } else {
            isValueNext = false;
        }
    }
    return true;
}

bool takeRecord(Part21Lexer& lexer) {
    Token token = lexer.next();
    const bool isComplex = token.kind == TokenKind::Open;
    if (isComplex) token = lexer.next();
    do {
        if (token.kind != TokenKind::Keyword || lexer.next().kind != TokenKind::Open || !takeList(lexer, 0, Ignored{}))
            return false;
        if (isComplex) token = lexer.next();
    } while (isComplex && token.kind != TokenKind::Close);
    return true;
}

/// Whether a comment is begun and not closed, which the lexer passes over: what is written behind would be part of it.
bool hasOpenComment(std::string_view text) noexcept {
    if (text.find("/*") == std::string_view::npos) return false;
    const std::size_t close = text.rfind("*/");
    Part21Lexer lexer(text);
    for (;;) {
        const char* begin = lexer.position();
        const Token token = lexer.next();
        const bool isEnd = token.kind == TokenKind::End;
        const char* end = isEnd ? text.data() + text.size() : token.text.data();
        const std::size_t open = std::string_view(begin, static_cast<std::size_t>(end - begin)).rfind("/*");
        const auto at = static_cast<std::size_t>(begin - text.data()) + open + 2;
        if (open != std::string_view::npos && (close == std::string_view::npos || close < at)) return true;
        if (isEnd) return false;
    }
}

} // namespace

std::size_t recordLength(std::string_view statement) noexcept {
    Part21Lexer lexer(statement);
    if (!takeRecord(lexer)) return std::string_view::npos;
    const Token token = lexer.next();
    if (token.kind != TokenKind::Semicolon) return std::string_view::npos;
    const auto length = static_cast<std::size_t>(token.text.data() - statement.data());
    return hasOpenComment(statement.substr(0, length)) ? std::string_view::npos : length;
}

std::size_t splitRecord(std::string_view statement, std::string_view& keyword,
                        std::vector<std::string_view>& parameters) {
    parameters.clear();
    Part21Lexer lexer(statement);
    const Token first = lexer.next();
    keyword = first.text;
    if (first.kind != TokenKind::Keyword || lexer.next().kind != TokenKind::Open ||
        !takeList(lexer, 0, Split{parameters}))
        return std::string_view::npos;
    const Token token = lexer.next();
    if (token.kind != TokenKind::Semicolon) return std::string_view::npos;
    const auto length = static_cast<std::size_t>(token.text.data() - statement.data());
    return hasOpenComment(statement.substr(0, length)) ? std::string_view::npos : length;
}

bool isRecord(std::string_view text) noexcept {
    Part21Lexer lexer(text);
    return takeRecord(lexer) && lexer.next().kind == TokenKind::End && !hasOpenComment(text);
}

bool isParameter(std::string_view text) noexcept {
    Part21Lexer lexer(text);
    Token token = lexer.next();
    if (token.kind == TokenKind::Keyword) {
        token = lexer.next();
        if (token.kind != TokenKind::Open) return false;
    }
    if (token.kind == TokenKind::Open)
        return takeList(lexer, 1, Ignored{}) && lexer.next().kind == TokenKind::End && !hasOpenComment(text);
    return isScalar(token.kind) && lexer.next().kind == TokenKind::End && !hasOpenComment(text);
}

} // namespace velkor::sdai::part21
