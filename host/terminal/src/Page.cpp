#include "terminal/Page.h"

#include "terminal/DisplayText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace velkor::host {

namespace {

constexpr std::size_t labelWidth = 16;
/// Of a text on a terminal as wide as the page; on a narrow one it has more.
constexpr std::size_t maxLines = 4;
constexpr std::size_t narrow = 60;

TextSink::Literal escape(Page::Style style) {
    switch (style) {
    case Page::Style::Plain:
        return "";
    case Page::Style::Bold:
        return "\033[1m";
    case Page::Style::Dim:
        return "\033[2m";
    case Page::Style::Good:
        return "\033[32m";
    case Page::Style::Doubtful:
        return "\033[33m";
    case Page::Style::Bad:
        return "\033[31m";
    }
    return "";
}

std::string blanks(std::size_t width, std::string_view text) {
    const std::size_t taken = displayWidth(text);
    return std::string(width - std::min(width, taken), ' ');
}

} // namespace

void Page::title(std::string_view text) {
    paragraph(text, 0, Style::Bold);
}

void Page::section(std::string_view heading, std::string_view remark, Style remarkStyle) {
    _out << '\n';
    write({std::string(heading), Style::Bold});
    if (!remark.empty()) {
        _out << "  ";
        write({std::string(remark), remarkStyle});
    }
    _out << '\n';
}

void Page::entry(std::string_view label, std::string_view text) {
    // On a narrow terminal the text begins below its label.
    const bool isBelow = width() < narrow;
    const std::size_t indent = isBelow ? 4 : 2 + labelWidth;
    _out << "  " << (isBelow ? std::string(label) : padded(label, labelWidth));
    if (isBelow) _out << "\n    ";
    const auto lines = wrappedOn(text, indent);
    if (lines.empty()) {
        write({"not stated", Style::Dim});
        _out << '\n';
    }
    for (std::size_t i = 0; i < lines.size(); ++i) {
        _out << (i == 0 ? "" : std::string(indent, ' ')) << lines[i] << '\n';
    }
}

void Page::line(const std::vector<Span>& spans) {
    _out << "  ";
    for (const Span& span : spans) write(span);
    _out << '\n';
}

void Page::paragraph(std::string_view text, std::size_t indent, Style style) {
    for (const std::string& line : wrappedOn(text, indent)) {
        _out << std::string(indent, ' ');
        write({line, style});
        _out << '\n';
    }
}

std::vector<std::string> Page::wrappedOn(std::string_view text, std::size_t indent) const {
    const std::size_t mostLines = _out.isTerminal() ? maxLines * widest / width() : std::string_view::npos;
    return wrapped(text, width() - indent, mostLines);
}

void Page::write(const Span& span) {
    if (!_color || span.style == Style::Plain) {
        _out << span.text;
        return;
    }
    _out << escape(span.style) << span.text << "\033[0m";
}

std::string padded(std::string_view text, std::size_t width) {
    return std::string(text) + blanks(width, text);
}

std::string rightAligned(std::string_view text, std::size_t width) {
    return blanks(width, text).append(text);
}

std::string bar(double part, std::size_t width) {
    constexpr std::array<std::string_view, 8> tips{"", "▏", "▎", "▍", "▌", "▋", "▊", "▉"};
    const auto eighths =
        static_cast<std::size_t>(std::lround(std::clamp(part, 0.0, 1.0) * 8.0 * static_cast<double>(width)));
    std::string result;
    for (std::size_t i = 0; i < eighths / 8; ++i) result += "█";
    // Something that is there at all stays visible.
    if (eighths == 0 && part > 0.0) return std::string(tips[1]);
    return result.append(tips[eighths % 8]);
}

} // namespace velkor::host
