#include "output/ExpressText.h"

#include "velkor/text/Unicode.h"

#include <algorithm>
#include <cctype>

namespace velkor::host {

namespace {

/// How deep brackets are taken apart; what lies deeper stays in its line.
constexpr std::size_t deepest = 12;
constexpr std::size_t step = 2;

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == text.npos ? std::string_view{} : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool isNameCharacter(char c) {
    return c == '_' || std::isalnum(static_cast<unsigned char>(c)) != 0;
}

/// Positions in a text that lie in no bracket and no literal.
class Surface {
public:
    struct Bracket {
        std::size_t open;
        std::size_t close;
    };

    explicit Surface(std::string_view text) : _text(text) {
        std::size_t depth = 0;
        bool isLiteral = false;
        for (std::size_t i = 0; i < text.size(); ++i) {
            const char c = text[i];
            if (c == '\'') isLiteral = !isLiteral;
            if (isLiteral || c == '\'') continue;
            if ((c == ')' || c == ']') && depth > 0 && --depth == 0) _brackets.back().close = i;
            if (depth == 0) _open.push_back(i);
            if ((c == '(' || c == '[') && ++depth == 1) _brackets.push_back({i, text.size()});
        }
    }

    /// Where the word or sign stands on the surface.
    std::vector<std::size_t> placesOf(std::string_view word) const {
        std::vector<std::size_t> result;
        for (const std::size_t place : _open) {
            if (text::equalIgnoringCase(_text.substr(place, word.size()), word) && isWhole(place, word.size()))
                result.push_back(place);
        }
        return result;
    }

    /// The longest bracket that is closed; null without one.
    const Bracket* longestBracket() const {
        const auto longest = std::ranges::max_element(
            _brackets, {}, [&](const Bracket& b) { return b.close == _text.size() ? 0 : b.close - b.open; });
        return longest == _brackets.end() || longest->close == _text.size() ? nullptr : &*longest;
    }

private:
    bool isWhole(std::size_t place, std::size_t length) const {
        const auto neighbour = [&](std::size_t at) { return at < _text.size() ? _text[at] : ' '; };
        const char first = _text[place], before = place == 0 ? ' ' : _text[place - 1],
                   after = neighbour(place + length);
        return isNameCharacter(first) ? !isNameCharacter(before) && !isNameCharacter(after)
                                      : before != first && after != first;
    }

    std::string_view _text;
    std::vector<std::size_t> _open;
    std::vector<Bracket> _brackets;
};

class Layout {
public:
    explicit Layout(std::size_t width) : _width(width) {}

    /// `lead` stands before the text in its first line and is as wide as later lines are indented.
    void add(const std::string& indent, const std::string& lead, std::string_view text, std::string_view tail,
             std::size_t depth = 0) {
        text = trimmed(text);
        if (depth >= deepest || indent.size() + lead.size() + text.size() + tail.size() <= _width) {
            lines.push_back(indent + lead + std::string(text) + std::string(tail));
            return;
        }
        const Surface surface(text);
        if (divide(surface, indent, lead, text, tail, depth)) return;
        if (const Surface::Bracket* bracket = surface.longestBracket()) {
            lines.push_back(indent + lead + std::string(text.substr(0, bracket->open + 1)));
            add(indent + std::string(step, ' '), {}, text.substr(bracket->open + 1, bracket->close - bracket->open - 1),
                {}, depth + 1);
            lines.push_back(indent + std::string(text.substr(bracket->close)) + std::string(tail));
            return;
        }
        fill(indent, lead, text, tail);
    }

    std::vector<std::string> lines;

private:
    /// Puts what the weakest connective joins below each other; false without one.
    bool divide(const Surface& surface, const std::string& indent, const std::string& lead, std::string_view text,
                std::string_view tail, std::size_t depth) {
        if (const auto bars = surface.placesOf("|"); !bars.empty()) {
            lines.push_back(indent + lead + std::string(text.substr(0, bars.front() + 1)));
            add(indent + std::string(step, ' '), {}, text.substr(bars.front() + 1), tail, depth + 1);
            return true;
        }
        for (const std::string_view word : {";", "OR", "XOR", "AND"}) {
            auto places = surface.placesOf(word);
            if (word == ";" && !places.empty() && places.back() + 1 == text.size()) places.pop_back();
            if (places.empty()) continue;
            const bool isBehind = word == ";";
            std::size_t from = 0;
            std::string before = lead;
            for (const std::size_t place : places) {
                add(indent, before, text.substr(from, place - from), isBehind ? word : "", depth + 1);
                before = isBehind ? "" : std::string(word) + ' ';
                from = place + word.size();
            }
            add(indent, before, text.substr(from), tail, depth + 1);
            return true;
        }
        return false;
    }

    /// Breaks behind commas.
    void fill(const std::string& indent, const std::string& lead, std::string_view text, std::string_view tail) {
        std::string line = indent + lead;
        std::size_t from = 0;
        auto commas = Surface(text).placesOf(",");
        commas.push_back(text.size());
        for (const std::size_t comma : commas) {
            const std::string_view part = trimmed(text.substr(from, std::min(comma + 1, text.size()) - from));
            if (from > 0 && line.size() + 1 + part.size() > _width) {
                lines.push_back(line);
                line = indent;
            } else if (from > 0) {
                line += ' ';
            }
            line += part;
            from = std::min(comma + 1, text.size());
        }
        lines.push_back(line + std::string(tail));
    }

    std::size_t _width;
};

} // namespace

std::vector<std::string> expressLines(std::string_view expression, std::size_t width) {
    Layout layout(width);
    layout.add({}, {}, expression, {});
    return std::move(layout.lines);
}

} // namespace velkor::host
