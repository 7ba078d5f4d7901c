#include "terminal/TextSink.h"

#include "velkor/text/Printable.h"

#include <ostream>

namespace velkor::host {

const TextSink& TextSink::operator<<(Literal literal) const {
    *_stream << literal.text();
    return *this;
}

const TextSink& TextSink::operator<<(LiteralCharacter literal) const {
    *_stream << literal.character();
    return *this;
}

void TextSink::lines(std::string_view text) const {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        write(text.substr(0, end));
        if (end == std::string_view::npos) return;
        *_stream << '\n';
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
    _stream->flush();
}

// Nothing is allocated for what is printable.
void TextSink::write(std::string_view text) const {
    while (true) {
        const std::size_t length = text::printableLength(text);
        *_stream << text.substr(0, length);
        text.remove_prefix(length);
        if (text.empty()) return;
        *_stream << text::takeEscaped(text);
    }
}

void TextSink::writeNumber(long long number) const {
    *_stream << number;
}

void TextSink::writeNumber(unsigned long long number) const {
    *_stream << number;
}

} // namespace velkor::host
