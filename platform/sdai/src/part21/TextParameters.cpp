#include "TextParameters.h"

#include "Separators.h"
#include "velkor/sdai/Part21Lexer.h"

namespace velkor::sdai::part21 {

namespace {

/// Those of FILE_NAME; what stands behind them is not read, however much it is.
constexpr std::size_t mostParameters = 7;

} // namespace

std::vector<std::vector<std::string>> textParameters(std::string_view statement) {
    std::vector<std::vector<std::string>> parameters;
    Part21Lexer lexer(statement);
    lexer.next();
    if (lexer.next().kind != TokenKind::Open) return parameters;
    parameters.emplace_back();
    std::size_t depth = 1;
    while (depth > 0) {
        const Token token = lexer.next();
        switch (token.kind) {
        case TokenKind::Open:
            ++depth;
            break;
        case TokenKind::Close:
            --depth;
            break;
        case TokenKind::String:
            parameters.back().push_back(decodeString(token.text));
            break;
        case TokenKind::Comma:
            if (depth > 1) break;
            if (parameters.size() == mostParameters) return parameters;
            parameters.emplace_back();
            break;
        case TokenKind::End:
            return parameters;
        default:
            break;
        }
    }
    return parameters;
}

void readHeaderEntity(std::string_view statement, FileHeader& header) {
    const bool description = startsWithWord(statement, "FILE_DESCRIPTION");
    const bool name = startsWithWord(statement, "FILE_NAME");
    if (!description && !name && !startsWithWord(statement, "FILE_SCHEMA")) return;
    auto parameters = textParameters(statement);
    const auto list = [&parameters](std::size_t position) {
        return position < parameters.size() ? std::move(parameters[position]) : std::vector<std::string>();
    };
    const auto single = [&list](std::size_t position) {
        auto texts = list(position);
        return texts.empty() ? std::string() : std::move(texts.front());
    };
    if (description) {
        header.description = list(0);
        header.implementationLevel = single(1);
    } else if (name) {
        header.name = single(0);
        header.timeStamp = single(1);
        header.author = list(2);
        header.organization = list(3);
        header.preprocessorVersion = single(4);
        header.originatingSystem = single(5);
        header.authorization = single(6);
    } else {
        header.schemas = list(0);
    }
}

} // namespace velkor::sdai::part21
