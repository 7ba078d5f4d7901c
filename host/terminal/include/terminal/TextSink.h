/// The one way to standard output and standard error. Whatever is written becomes printable (text/Printable.h) but for
/// texts that stand in the program, which alone may hold line ends and act on the terminal. There is no way around.
///
///     out << shownPath << ": " << counted(total, "product", "products") << '\n';
///
/// Characters are escaped as JSON escapes them, so that JSON passes through unharmed.
#pragma once

#include <concepts>
#include <cstddef>
#include <iosfwd>
#include <string_view>
#include <type_traits>

namespace velkor::host {

class LineFitter;

/// Refers to a stream, or to the lines of a terminal; copies write to the same one.
class TextSink {
public:
    /// A text or character that stands in the program: only the compiler can make one.
    class Literal {
    public:
        template <std::size_t N>
        consteval Literal(const char (&text)[N]) : _text(text, N - 1) {}
        constexpr std::string_view text() const noexcept { return _text; }

    private:
        std::string_view _text;
    };
    class LiteralCharacter {
    public:
        consteval LiteralCharacter(char character) : _character(character) {}
        constexpr char character() const noexcept { return _character; }

    private:
        char _character;
    };

    TextSink(std::ostream& stream) noexcept : _stream(&stream) {}
    /// Writes lines of the terminal that `fitter` writes to `stream`.
    TextSink(std::ostream& stream, LineFitter& fitter) noexcept : _stream(&stream), _fitter(&fitter) {}

    bool isTerminal() const noexcept { return _fitter != nullptr; }
    /// Columns of the terminal; without one there is no end to a line.
    std::size_t width() const noexcept;
    /// The way for what is not text for people, whose lines are left alone.
    TextSink unfitted() const;

    const TextSink& operator<<(Literal literal) const;
    const TextSink& operator<<(LiteralCharacter literal) const;
    /// Any other text.
    template <class Text>
    requires(std::convertible_to<const Text&, std::string_view> && !std::is_array_v<Text>) const TextSink&
    operator<<(const Text& text) const {
        write(text);
        return *this;
    }
    template <std::integral Number>
    requires(!std::same_as<Number, char> && !std::same_as<Number, bool>) const TextSink&
    operator<<(Number number) const {
        if constexpr (std::is_signed_v<Number>)
            writeNumber(static_cast<long long>(number));
        else
            writeNumber(static_cast<unsigned long long>(number));
        return *this;
    }
    /// A text of the program that has been put together of lines: line ends in it are meant, too.
    void lines(std::string_view text) const;
    /// What another sink has written: it is printable already, and goes on as it stands.
    void printed(std::string_view text) const;
    /// From now on all sinks of this stream write there.
    void redirect(std::streambuf* target) const;
    /// False once something could not be written.
    bool isWritable() const;
    void flush() const;

private:
    void write(std::string_view text) const;
    void put(std::string_view text) const;
    void writeNumber(long long number) const;
    void writeNumber(unsigned long long number) const;

    std::ostream* _stream;
    LineFitter* _fitter = nullptr;
};

} // namespace velkor::host
