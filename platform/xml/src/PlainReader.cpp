#include "PlainReader.h"

#include "DocumentStore.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

namespace velkor::xml {

namespace {

enum Class : std::uint8_t {
    NameStart = 1,
    NamePart = 2,
    Text = 4,      // stands for itself in texts, where line ends do too
    Attribute = 8, // stands for itself in attributes
};

constexpr auto classes = [] {
    std::array<std::uint8_t, 256> result{};
    for (unsigned int c = ' '; c <= '~'; ++c) {
        const char upper = static_cast<char>(c >= 'a' && c <= 'z' ? c - 'a' + 'A' : c);
        const bool isLetter = (upper >= 'A' && upper <= 'Z') || c == '_';
        unsigned int one = 0;
        if (isLetter) one |= NameStart;
        if (isLetter || (c >= '0' && c <= '9') || c == '-' || c == '.') one |= NamePart;
        // What follows "]" may end a section that nobody has begun.
        if (c != '<' && c != '&' && c != ']') one |= Text;
        if (c != '<' && c != '&' && c != '"' && c != '\'') one |= Attribute;
        result[c] = static_cast<std::uint8_t>(one);
    }
    result['\n'] = result['\t'] = Text;
    return result;
}();

bool is(char character, Class wanted) noexcept {
    return (classes[static_cast<unsigned char>(character)] & wanted) != 0;
}

constexpr std::string_view declarations[] = {R"(<?xml version="1.0" encoding="UTF-8"?>)", R"(<?xml version="1.0"?>)"};
constexpr std::pair<std::string_view, std::string_view> references[] = {
    {"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}};
// Attributes are compared with each other.
constexpr std::size_t mostAttributes = 20;
constexpr std::size_t longestName = 100;
// Begins names that are not for everybody, among them the declarations of namespaces.
constexpr std::string_view reserved = "xml";

} // namespace

PlainReader::PlainReader(std::string_view bytes, XmlReceiver& receiver)
    : _begin(bytes.data()), _at(bytes.data()), _end(bytes.data() + bytes.size()), _receiver(receiver) {}

PlainReader::End PlainReader::read() {
    for (const std::string_view declaration : declarations)
        if (take(declaration)) break;
    skipBlanks();
    if (_at == _end || *_at != '<') return End::OfPlain;
    End end = readTag();
    while (end == End::OfDocument && !_open.empty()) end = readContent();
    if (end != End::OfDocument) return end;
    skipBlanks();
    return _at == _end ? End::OfDocument : End::OfPlain;
}

int PlainReader::column() const noexcept {
    const std::string_view before(_begin, static_cast<std::size_t>(_at - _begin));
    return static_cast<int>(before.size() - (before.rfind('\n') + 1)) + 1;
}

// One text up to a tag, and that tag.
PlainReader::End PlainReader::readContent() {
    const char* from = _at;
    while (from != _end && is(*from, Text)) _line += *from++ == '\n' ? 1 : 0;
    give(from);
    if (_at == _end) return End::OfPlain;
    if (*_at == '&') return takeReference() ? End::OfDocument : End::OfPlain;
    return *_at == '<' ? readTag() : End::OfPlain;
}

// Where a tag is not plain, the place before it is that where plain text ends.
PlainReader::End PlainReader::readTag() {
    const char* const from = _at++;
    const int line = _line;
    const auto stop = [&] {
        _at = from;
        _line = line;
        return End::OfPlain;
    };
    if (_at != _end && *_at == '/') {
        ++_at;
        if (!take(_open.back())) return stop();
        skipBlanks();
        if (!take(">")) return stop();
        _open.pop_back();
    } else {
        const std::string_view name = takeName();
        if (name.empty() || _open.size() + 1 >= maximumDepth || !readAttributes()) return stop();
        const bool isEmpty = take("/");
        if (!take(">")) return stop();
        ++_tags;
        _textBytes = 0;
        if (!_receiver.begin(name, _attributes, _line)) return End::OfReceiver;
        if (!isEmpty) {
            _open.push_back(name);
            return End::OfDocument;
        }
    }
    ++_tags;
    _textBytes = 0;
    _receiver.end();
    return End::OfDocument;
}

bool PlainReader::readAttributes() {
    _attributes.clear();
    while (true) {
        const char* const from = _at;
        skipBlanks();
        if (_at == _end) return false;
        if (*_at == '>' || *_at == '/') return true;
        const std::string_view name = _at == from ? std::string_view() : takeName();
        if (name.empty() || name.starts_with(reserved) || _attributes.size() == mostAttributes ||
            std::ranges::find(_attributes, name, &XmlAttribute::name) != _attributes.end())
            return false;
        skipBlanks();
        if (!take("=")) return false;
        skipBlanks();
        const std::string_view quote = take("\"") ? "\"" : "'";
        if (quote == "'" && !take(quote)) return false;
        const char* const value = _at;
        while (_at != _end && is(*_at, Attribute)) ++_at;
        _attributes.push_back({name, {value, static_cast<std::size_t>(_at - value)}});
        if (!take(quote)) return false;
    }
}

bool PlainReader::takeReference() {
    for (const auto& [written, text] : references) {
        if (!take(written)) continue;
        _textBytes += text.size();
        _receiver.text(text);
        return true;
    }
    return false;
}

std::string_view PlainReader::takeName() {
    const char* const from = _at;
    if (_at == _end || !is(*_at, NameStart)) return {};
    while (_at != _end && is(*_at, NamePart)) ++_at;
    const std::string_view name(from, static_cast<std::size_t>(_at - from));
    return name.size() <= longestName ? name : std::string_view();
}

bool PlainReader::take(std::string_view expected) {
    if (!std::string_view(_at, static_cast<std::size_t>(_end - _at)).starts_with(expected)) return false;
    _at += expected.size();
    return true;
}

void PlainReader::skipBlanks() {
    while (_at != _end && (*_at == ' ' || *_at == '\n' || *_at == '\t')) _line += *_at++ == '\n' ? 1 : 0;
}

void PlainReader::give(const char* end) {
    const std::string_view piece(_at, static_cast<std::size_t>(end - _at));
    _at = end;
    if (piece.empty()) return;
    _textBytes += piece.size();
    _receiver.text(piece);
}

} // namespace velkor::xml
