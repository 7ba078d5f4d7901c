#include "MemberComparison.h"

#include "velkor/text/Unicode.h"

#include <algorithm>
#include <bit>
#include <unordered_map>

namespace velkor::rules {

using sdai::Part21Lexer;
using sdai::Token;
using sdai::TokenKind;
using sdai::Type;

namespace {

// Of values that no schema nests so deeply.
constexpr unsigned deepestNesting = 100;
// Comparing each with each is quicker up to here.
constexpr std::size_t fewMembers = 12;

enum class Tag : char {
    Instance = '#',
    Number = 'N',
    WideInteger = 'I',
    String = 'S',
    Enumeration = 'E',
    Binary = 'B',
    Aggregate = 'A'
};

void appendBits(std::string& key, Tag tag, std::uint64_t bits) {
    key += static_cast<char>(tag);
    for (int i = 0; i < 8; ++i) key += static_cast<char>(bits >> (8 * i) & 0xFF);
}

void appendText(std::string& key, Tag tag, std::string_view text) {
    appendBits(key, tag, text.size());
    key += text;
}

// Integers and reals are equal as numbers; an integer that no real has is equal to none.
bool appendNumber(std::string& key, std::string_view text, bool isInteger) {
    constexpr double integersEnd = 9223372036854775808.0;
    std::int64_t integer = 0;
    double real = 0.0;
    if (isInteger && sdai::decodeInteger(text, integer)) {
        real = static_cast<double>(integer);
        if (real >= integersEnd || static_cast<std::int64_t>(real) != integer) {
            appendBits(key, Tag::WideInteger, static_cast<std::uint64_t>(integer));
            return true;
        }
    } else if (!sdai::decodeReal(text, real)) {
        return false;
    }
    if (real == 0.0) real = 0.0;
    appendBits(key, Tag::Number, std::bit_cast<std::uint64_t>(real));
    return true;
}

std::uint64_t mixed(std::uint64_t bits) {
    bits = (bits ^ bits >> 30) * 0xBF58476D1CE4E5B9U;
    bits = (bits ^ bits >> 27) * 0x94D049BB133111EBU;
    return bits ^ bits >> 31;
}

class KeyWriter {
public:
    KeyWriter(const sdai::Model& model, Part21Lexer& lexer) : _model(model), _lexer(lexer) {}

    bool append(const Type& type, std::string& key, unsigned depth) {
        const Token token = _lexer.next();
        switch (token.kind) {
        case TokenKind::InstanceName: {
            const auto number = _model.file().find(sdai::decodeInstanceName(token.text));
            if (number) appendBits(key, Tag::Instance, *number);
            return number.has_value();
        }
        case TokenKind::Integer:
        case TokenKind::Real:
            return appendNumber(key, token.text, token.kind == TokenKind::Integer);
        case TokenKind::String:
            appendText(key, Tag::String, sdai::decodeString(token.text));
            return true;
        case TokenKind::Enumeration:
            appendText(key, Tag::Enumeration, text::asciiUpper(token.text));
            return true;
        case TokenKind::Binary:
            appendText(key, Tag::Binary, token.text);
            return true;
        case TokenKind::Keyword:
            return depth < deepestNesting && appendTyped(token.text, key, depth);
        case TokenKind::Open:
            return depth < deepestNesting && appendMembers(type, key, depth);
        default:
            return false;
        }
    }

private:
    bool appendTyped(std::string_view keyword, std::string& key, unsigned depth) {
        const sdai::DefinedType* type = _model.schema().definedType(keyword);
        return type != nullptr && _lexer.next().kind == TokenKind::Open && append(*type, key, depth + 1) &&
               _lexer.next().kind == TokenKind::Close;
    }

    bool appendMembers(const Type& type, std::string& key, unsigned depth) {
        const sdai::AggregateType* aggregate = type.resolved().asAggregate();
        if (aggregate == nullptr) return false;
        std::vector<std::string> members;
        if (_lexer.peek().kind == TokenKind::Close) {
            _lexer.next();
        } else {
            for (TokenKind behind = TokenKind::Comma; behind == TokenKind::Comma;) {
                if (!append(aggregate->element(), members.emplace_back(), depth + 1)) return false;
                behind = _lexer.next().kind;
                if (behind != TokenKind::Comma && behind != TokenKind::Close) return false;
            }
        }
        if (aggregate->kind() == sdai::TypeKind::Set) std::ranges::sort(members);
        appendBits(key, Tag::Aggregate, members.size());
        for (const std::string& member : members) key += member;
        return true;
    }

    const sdai::Model& _model;
    Part21Lexer& _lexer;
};

// What may be followed by another member.
bool endsAggregate(const Token& token) {
    return token.kind == TokenKind::Close || token.kind == TokenKind::End || token.kind == TokenKind::Semicolon;
}

} // namespace

bool appendValueKey(const sdai::Model& model, const Type& type, Part21Lexer& lexer, std::string& key) {
    return KeyWriter(model, lexer).append(type, key, 0);
}

std::optional<std::uint64_t> MemberComparison::printOf(const Token& first) {
    // Whether there is such an instance is looked up only where two may be equal.
    if (first.kind == TokenKind::InstanceName) return mixed(sdai::decodeInstanceName(first.text));
    if (first.kind == TokenKind::Omitted) return std::nullopt;
    const std::string_view file = _model.file().text();
    Part21Lexer lexer(file.substr(static_cast<std::size_t>(first.text.data() - file.data())));
    _key.clear();
    if (!appendValueKey(_model, *_member, lexer, _key)) return std::nullopt;
    return text::hash64(_key);
}

std::optional<MemberComparison::Pair> MemberComparison::equalPair(std::string_view aggregate) {
    if (_prints.size() < 2 || !keepRepeated()) return std::nullopt;
    // By key, and where the member stands.
    std::unordered_map<std::string, std::uint32_t> places;
    Part21Lexer lexer(aggregate);
    lexer.next();
    for (std::uint32_t position = 1;; ++position) {
        const Token first = lexer.peek();
        if (endsAggregate(first)) return std::nullopt;
        const auto print = printOf(first);
        Part21Lexer value = lexer;
        std::string key;
        const bool mayBeEqual = print && std::ranges::binary_search(_prints, *print);
        const bool isDeterminate = mayBeEqual && appendValueKey(_model, *_member, value, key);
        if (!lexer.skipParameter()) return std::nullopt;
        if (isDeterminate) {
            const auto [place, isNew] = places.try_emplace(std::move(key), position);
            const auto length = static_cast<std::size_t>(lexer.position() - first.text.data());
            if (!isNew) return Pair{place->second, position, {first.text.data(), length}};
        }
        if (lexer.next().kind != TokenKind::Comma) return std::nullopt;
    }
}

bool MemberComparison::keepRepeated() {
    const auto isRepeated = [&](std::size_t i) {
        return std::find(_prints.begin(), _prints.begin() + static_cast<std::ptrdiff_t>(i), _prints[i]) !=
               _prints.begin() + static_cast<std::ptrdiff_t>(i);
    };
    if (_prints.size() <= fewMembers) {
        std::size_t i = 1;
        while (i < _prints.size() && !isRepeated(i)) ++i;
        if (i == _prints.size()) return false;
    }
    std::ranges::sort(_prints);
    auto kept = _prints.begin();
    for (auto at = _prints.begin(); at != _prints.end();) {
        const auto next = std::find_if(at, _prints.end(), [&](std::uint64_t print) { return print != *at; });
        if (next - at > 1) *kept++ = *at;
        at = next;
    }
    _prints.erase(kept, _prints.end());
    return !_prints.empty();
}

} // namespace velkor::rules
