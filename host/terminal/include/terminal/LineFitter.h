/// Lines on their way to a terminal: what is too long for one goes on in the next, further in, broken between words.
#pragma once

#include <cstddef>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::host {

/// A printable line, which may be coloured, in lines of at most `width` columns. They are broken at blanks; a word that
/// no line can hold behind a mark such as "/", or where the line ends. What follows the first line stands below the
/// line's last column if that leaves half of the width, else four columns further in than the line itself.
std::vector<std::string> fittedLines(std::string_view line, std::size_t width);

/// Columns of the terminal behind a file descriptor: what COLUMNS says, else what the terminal does, else 80.
std::size_t terminalWidth(int descriptor, std::string_view columnsVariable);

class LineFitter {
public:
    /// Of what is known about no terminal.
    static constexpr std::size_t usualWidth = 80;

    LineFitter(std::ostream& stream, std::size_t width) noexcept : _stream(&stream), _width(width) {}

    std::size_t width() const noexcept { return _width; }
    /// Text in which line ends are meant; a line is written when it ends.
    void write(std::string_view text);
    /// Writes a line that has not ended as it is.
    void flush();

private:
    std::ostream* _stream;
    std::size_t _width;
    std::string _line;
};

} // namespace velkor::host
