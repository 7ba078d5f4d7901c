/// A page for people: sections of labelled entries, wrapped at 96 columns and those of the terminal, coloured when
/// the output may be. On a terminal a text is no longer than a few lines.
///
///     Page page(out, color);
///     page.section("Project");
///     page.entry("Name", name);
#pragma once

#include "terminal/TextSink.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace velkor::host {

class Page {
public:
    static constexpr std::size_t widest = 96;
    enum class Style { Plain, Bold, Dim, Good, Doubtful, Bad };

    Page(TextSink out, bool color) noexcept : _out(out), _color(color) {}

    std::size_t width() const noexcept { return widthOn(_out); }
    /// What a page has on a terminal.
    static std::size_t widthOn(TextSink out) noexcept { return std::min(widest, out.width()); }

    void title(std::string_view text);
    /// A heading after an empty line, and what is to be said beside it.
    void section(std::string_view heading, std::string_view remark = {}, Style remarkStyle = Style::Plain);
    /// A label and its text, which may go on over a few lines. A text that is empty reads
    /// "not stated".
    void entry(std::string_view label, std::string_view text);
    /// A text in one style.
    struct Span {
        std::string text;
        Style style = Style::Plain;
        Span(std::string text_, Style style_ = Style::Plain) : text(std::move(text_)), style(style_) {}
        Span(const char* text_, Style style_ = Style::Plain) : text(text_), style(style_) {}
    };
    /// An indented line of its own, not wrapped.
    void line(const std::vector<Span>& spans);
    void line(Span span) { line(std::vector{std::move(span)}); }
    /// Text that may go on over a few lines, `indent` columns from the left.
    void paragraph(std::string_view text, std::size_t indent = 2, Style style = Style::Plain);

private:
    void write(const Span& span);
    std::vector<std::string> wrappedOn(std::string_view text, std::size_t indent) const;
    TextSink _out;
    bool _color;
};

/// Text filled up with blanks to a width on its right or its left.
std::string padded(std::string_view text, std::size_t width);
std::string rightAligned(std::string_view text, std::size_t width);

/// A horizontal bar for a part of a whole (0 to 1), in eighths of a column.
std::string bar(double part, std::size_t width);

} // namespace velkor::host
