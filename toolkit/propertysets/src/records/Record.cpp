#include "records/Record.h"

#include <algorithm>
#include <cstring>
#include <tuple>

namespace velkor {

namespace {

// Of an instance that is read again and again in as little time as others.
constexpr std::uint64_t longText = 4000;

bool isSpace(char c) noexcept {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

// The same of what programs write; null for what is to be read more closely.
const char* behindPlain(const char* at, const char* end) noexcept {
    for (int depth = 0; at != end; ++at) {
        switch (*at) {
        case '\'': {
            const auto* close =
                static_cast<const char*>(std::memchr(at + 1, '\'', static_cast<std::size_t>(end - at) - 1));
            // An apostrophe in the string closes it and opens another.
            if (close == nullptr || std::memchr(at, '\\', static_cast<std::size_t>(close - at)) != nullptr)
                return nullptr;
            at = close;
            break;
        }
        case '(':
            ++depth;
            break;
        case ')':
            if (depth-- == 0) return at;
            break;
        case ',':
            if (depth == 0) return at;
            break;
        case '/':
        case ';':
            return nullptr;
        default:
            break;
        }
    }
    return nullptr;
}

} // namespace

const char* behindParameter(const char* begin, const char* end) noexcept {
    if (const char* behind = behindPlain(begin, end)) return behind;
    sdai::Part21Lexer lexer({begin, static_cast<std::size_t>(end - begin)});
    return lexer.skipParameter() ? lexer.position() : nullptr;
}

std::string_view trimmed(const char* begin, const char* end) noexcept {
    while (begin != end && isSpace(*begin)) ++begin;
    while (begin != end && isSpace(end[-1])) --end;
    const std::string_view text(begin, static_cast<std::size_t>(end - begin));
    // A comment or print control before the value is no part of it.
    if (text.empty() || (text.front() != '/' && text.front() != '\\')) return text;
    const char* token = sdai::Part21Lexer(text).peek().text.data();
    return text.substr(static_cast<std::size_t>(token - begin));
}

std::optional<std::uint32_t> referredNumber(const sdai::Model& model, std::string_view text) noexcept {
    if (!text.starts_with('#')) return std::nullopt;
    return model.file().find(sdai::decodeInstanceName(sdai::Part21Lexer(text).next().text));
}

void Record::read(std::uint32_t number) {
    _number = number;
    _entity = _model->entityAt(number);
    _found = 0;
    _next = nullptr;
    if (_entity == nullptr) return;
    const sdai::Part21File& file = _model->file();
    const bool isLast = number + 1 == file.instanceCount();
    if (!isLast && file.offset(number + 1) - file.offset(number) < longText) return begin();
    const auto [known, isNew] = _long.try_emplace(number);
    if (isNew) {
        begin();
        findUpTo(std::min(_entity->attributes().size(), mostPlaces) - 1);
        known->second = {_parameters, _found};
    }
    std::tie(_parameters, _found) = known->second;
    _next = nullptr;
}

void Record::begin() noexcept {
    const std::string_view text = _model->file().instanceText(_number);
    _end = text.data() + text.size();
    const std::size_t keyword = _entity->name().size();
    if (keyword < text.size() && text[keyword] == '(') {
        _next = text.data() + keyword + 1;
        return;
    }
    sdai::Part21Lexer lexer(text);
    lexer.next();
    if (lexer.next().kind == sdai::TokenKind::Open) _next = lexer.position();
}

void Record::findUpTo(std::size_t index) const noexcept {
    while (_found <= index && _next != nullptr) {
        const char* behind = behindParameter(_next, _end);
        _parameters[_found++] = trimmed(_next, behind == nullptr ? _end : behind);
        _next = behind != nullptr && *behind == ',' ? behind + 1 : nullptr;
    }
}

std::string_view Record::found(int place) const {
    if (_entity == nullptr || place < 0 || static_cast<std::size_t>(place) >= _entity->attributes().size()) return {};
    const auto index = static_cast<std::size_t>(place);
    if (index >= mostPlaces) return _model->instanceAt(_number)->attribute(index).encoded();
    findUpTo(index);
    return index < _found ? _parameters[index] : std::string_view();
}

std::string_view Record::text(std::string_view name) const {
    if (_entity != nullptr) return text(_entity->attributeIndex(name));
    return _model->instanceAt(_number)->GetAttr(name).encoded();
}

sdai::Primitive Record::attribute(std::string_view name) const {
    if (_entity == nullptr) return _model->instanceAt(_number)->GetAttr(name);
    const int place = _entity->attributeIndex(name);
    if (place < 0) return {};
    return {_model, &_entity->attributes()[static_cast<std::size_t>(place)].attribute->type(), text(place)};
}

} // namespace velkor
