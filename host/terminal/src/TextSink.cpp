#include "terminal/TextSink.h"

#include "terminal/LineFitter.h"
#include "velkor/text/Printable.h"

#include <limits>
#include <ostream>
#include <string>

namespace velkor::host {

std::size_t TextSink::width() const noexcept {
    return _fitter != nullptr ? _fitter->width() : std::numeric_limits<std::size_t>::max();
}

TextSink TextSink::unfitted() const {
    if (_fitter != nullptr) _fitter->flush();
    return *_stream;
}

void TextSink::put(std::string_view text) const {
    if (_fitter != nullptr)
        _fitter->write(text);
    else
        *_stream << text;
}

const TextSink& TextSink::operator<<(Literal literal) const {
    put(literal.text());
    return *this;
}

const TextSink& TextSink::operator<<(LiteralCharacter literal) const {
    const char character = literal.character();
    put({&character, 1});
    return *this;
}

void TextSink::lines(std::string_view text) const {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        write(text.substr(0, end));
        if (end == std::string_view::npos) return;
        put("\n");
        text.remove_prefix(end + 1);
    }
}

void TextSink::printed(std::string_view text) const {
    *_stream << text;
}

void TextSink::redirect(std::streambuf* target) const {
    _stream->rdbuf(target);
}

bool TextSink::isWritable() const {
    return !_stream->fail();
}

void TextSink::flush() const {
    _fitter != nullptr ? _fitter->flush() : static_cast<void>(_stream->flush());
}

// Nothing is allocated for what is printable.
void TextSink::write(std::string_view text) const {
    while (true) {
        const std::size_t length = text::printableLength(text);
        put(text.substr(0, length));
        text.remove_prefix(length);
        if (text.empty()) return;
        put(text::takeEscaped(text));
    }
}

void TextSink::writeNumber(long long number) const {
    put(std::to_string(number));
}

void TextSink::writeNumber(unsigned long long number) const {
    put(std::to_string(number));
}

} // namespace velkor::host
