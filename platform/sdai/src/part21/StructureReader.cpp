#include "StructureReader.h"

#include "Separators.h"
#include "TextParameters.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace velkor::sdai::part21 {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isWord(char c) noexcept {
    return isClass(text::asciiUpper(c), Upper | Digit) || c == '-' || c == '!';
}

std::string_view view(const char* from, const char* to) noexcept {
    return {from, static_cast<std::size_t>(to - from)};
}

std::string_view wordAt(const char* at, const char* end) noexcept {
    const char* behind = at;
    while (behind != end && isWord(*behind)) ++behind;
    return view(at, behind);
}

/// The beginning of a text for a message.
std::string excerpt(const char* at, const char* end) {
    return firstLine(view(at, end), 24);
}

/// Digits up to the end of the eight bytes before `end`; 8 when all are.
unsigned trailingDigits(std::uint64_t digits) noexcept {
    const std::uint64_t notDigits =
        (((digits & 0x7F7F7F7F7F7F7F7FU) + 0x7676767676767676U) | digits) & 0x8080808080808080U;
    return static_cast<unsigned>(std::countl_zero(notDigits)) / 8;
}

/// Number of eight digit values, the first in the lowest byte.
std::uint64_t eightDigits(std::uint64_t digits) noexcept {
    digits = digits * 10 + (digits >> 8);
    return ((digits & 0x000000FF000000FFU) * 0x000F424000000064U +
            ((digits >> 16) & 0x000000FF000000FFU) * 0x0000271000000001U) >>
           32;
}

} // namespace

StructureReader::StructureReader(Structure& structure, BlockClassifier classifier)
    : _structure(structure), _scanner(structure.text, classifier), _begin(structure.text.data()),
      _end(_begin + structure.text.size()), _behind(_begin) {
    if (structure.text.starts_with(byteOrderMark)) _behind += byteOrderMark.size();
    _scanner.restart(_behind);
}

void StructureReader::read(const Progress& progress) {
    do {
        while (!_ended && _scanner.scan()) {
            if (progress) progress(offset(_scanner.chunk()));
            takeMarks();
        }
    } while (!_ended && takeEndOfText());

    InstanceIndex& index = _structure.index;
    index.finish([&index, this](std::uint32_t number) {
        const std::uint64_t id = index.id(number);
        const std::uint64_t line =
            _structure.problems.isFull() ? 0 : _structure.lines.line(index.offset(*index.find(id)));
        _structure.problems.add(Severity::Error, index.offset(number), id, "instance-repeated",
                                "the instance name is used before, on line " + std::to_string(line) +
                                    "; the first instance counts");
    });
    _structure.problems.finish(_structure.lines);
}

void StructureReader::takeMarks() {
    _moved = false;
    for (const Mark mark : _scanner.marks()) {
        const char* at = _scanner.chunk() + mark.offset();
        if (mark.kind() == MarkKind::Statement) {
            if (*at == '=') {
                if (!_open && _section == Section::Data && takeInstance(at)) continue;
                takeEquals(at);
            } else if (_open && at[-1] == ')') {
                endInstance(at + 1);
                continue;
            } else {
                takeSemicolon(at);
            }
        } else {
            takeDamage(at, mark.kind());
        }
        if (_moved || _ended) return;
    }
}

/// Takes the instance of "#12=KEYWORD(" behind white space, spelled as most writers do, with no
/// branch on the length of name and keyword. False when it is anything else.
bool StructureReader::takeInstance(const char* equals) {
    constexpr std::ptrdiff_t reach = KeywordTable::recallReach + 2;
    if (equals - _behind < 2 || equals - _begin < 8 || _end - equals < reach) return false;
    std::uint64_t digits;
    std::memcpy(&digits, equals - 8, sizeof digits);
    digits ^= 0x3030303030303030U;
    const unsigned length = trailingDigits(digits);
    if (length == 0 || length == 8) return false;
    const char* name = equals - length - 1;
    if (*name != '#' || name < _behind) return false;
    for (const char* at = _behind; at != name; ++at) {
        if (!isSpace(*at)) return false;
    }
    const char* keyword = equals + 1 + (equals[1] == ' ' ? 1 : 0);
    const auto number = *keyword == '(' ? Part21File::complexKeyword : _structure.keywords.recall(keyword);
    if (!number) return false;
    add(name, *number, eightDigits(digits & ~std::uint64_t{0} << (64 - 8 * length)));
    _body = equals + 1;
    return true;
}

void StructureReader::takeEquals(const char* equals) {
    const char* name = instanceName(_open ? _body : _behind, equals);
    if (name == nullptr) {
        if (_open) error(equals, "unexpected-text", "expected \",\", \")\" or \";\", found \"=\" outside a string");
        return;
    }
    if (_open) {
        const char* last = name;
        while (last > _body && isSpace(last[-1])) --last;
        error(last, "semicolon-missing", "expected \";\" at the end of the instance, found the next instance");
        endInstance(name);
    } else {
        takeStatement(_behind, name, false);
        if (_moved || _ended) return;
    }
    if (_section != Section::Data) {
        error(name, "data-missing", "expected \"DATA;\" before the first instance");
        beginSection(Section::Data, name);
    }
    beginInstance(name, equals);
}

void StructureReader::takeSemicolon(const char* semicolon) {
    if (!_open) {
        takeStatement(_behind, semicolon, true);
        if (!_moved) _behind = semicolon + 1;
        return;
    }
    const char* last = semicolon;
    while (last > _body && isSpace(last[-1])) --last;
    for (const std::string_view word : {"ENDSEC", "END-ISO-10303-21"}) {
        const std::string_view body = view(_body, last);
        if (!body.ends_with(word) || (body.size() > word.size() && isWord(body[body.size() - word.size() - 1])))
            continue;
        const char* from = last - word.size();
        error(from, "semicolon-missing",
              "expected \";\" at the end of the instance, found " + excerpt(from, semicolon));
        endInstance(from);
        takeStatement(from, semicolon, true);
        break;
    }
    endInstance(semicolon + 1);
}

void StructureReader::takeDamage(const char* at, MarkKind kind) {
    if (kind == MarkKind::CommentNotClosed) {
        error(at, "comment-not-closed", "expected \"*/\" behind \"/*\", found the end of the text; \"/*\" is skipped");
    } else if (kind == MarkKind::CommentInComment) {
        report(Severity::Warning, at, "comment-in-comment",
               "the comment holds another \"/*\"; perhaps its own \"*/\" is missing");
    } else {
        const char* opening = at;
        Part21Lexer lexer(view(_open ? _body : _behind, at));
        for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
            if (token.text.starts_with('\'')) opening = token.text.data();
        }
        error(opening, "string-not-closed",
              "expected an apostrophe at the end of the string, found the next statement");
        takeSemicolon(at);
    }
}

/// Judges what is left at the end of the text. True when the scanner was sent back.
bool StructureReader::takeEndOfText() {
    if (_scanner.insideString() && !_scanner.distrustsStrings()) {
        // The string may have swallowed statements that stand on one line with it.
        _scanner.distrustStrings();
        _scanner.restart(_open ? _body : _behind);
        return true;
    }
    if (_scanner.insideString()) {
        error(_open ? _body : _behind, "string-not-closed",
              "expected an apostrophe at the end of a string, found the end of the text");
        if (_open) endInstance(_end);
    } else if (_open) {
        error(_end, "semicolon-missing", "expected \";\" at the end of the instance, found the end of the text");
        endInstance(_end);
    } else {
        _moved = false;
        takeStatement(_behind, _end, false);
        if (_moved) return true;
    }
    if (_section != Section::None) {
        error(_end, "endsec-missing", "expected \"ENDSEC;\", found the end of the text");
        endSection(_end);
    }
    if (!_ended) error(_end, "end-missing", "expected \"END-ISO-10303-21;\", found the end of the text");
    return false;
}

/// The "#" of the instance name that ends before "="; null when there is none.
const char* StructureReader::instanceName(const char* from, const char* equals) {
    const char* last = equals;
    while (last > from && isSpace(last[-1])) --last;
    const char* first = last;
    while (first > from && isDigit(first[-1])) --first;
    if (first != last && first > from && first[-1] == '#') return first - 1;

    // Comments may stand between; looked for once per statement.
    if (_open || _unnamed == from) return nullptr;
    _unnamed = from;
    const char* name = content(from, equals);
    if (name == equals || *name != '#') return nullptr;
    const char* behind = name + 1;
    while (behind != equals && isDigit(*behind)) ++behind;
    return behind != name + 1 && content(behind, equals) == equals ? name : nullptr;
}

void StructureReader::beginInstance(const char* name, const char* equals) {
    std::uint64_t id = 0;
    bool fits = true;
    for (const char* at = name + 1; isDigit(*at); ++at) {
        const auto digit = static_cast<unsigned>(*at - '0');
        fits = fits && id <= (~std::uint64_t{0} - digit) / 10;
        id = id * 10 + digit;
    }
    const auto keyword = keywordBehind(equals);
    if (!fits) {
        error(name, "instance-name-too-large",
              "expected an instance name of at most 64 bits, found " + excerpt(name, equals));
    } else if (keyword) {
        add(name, *keyword, id);
    }
    // Also an instance that is not indexed is open, so that its end is known.
    _open = true;
    _body = equals + 1;
    _instance = fits ? id : 0;
    if (fits && !keyword) {
        const char* at = content(_body, _end);
        error(at, "keyword-missing",
              "expected a keyword or \"(\" behind \"=\", found " +
                  (at == _end ? "the end of the text" : excerpt(at, _end)));
    }
}

std::optional<std::uint16_t> StructureReader::keywordBehind(const char* equals) {
    const char* at = content(equals + 1, _end);
    if (at == _end) return std::nullopt;
    if (*at == '(') return Part21File::complexKeyword;
    if (!isClass(text::asciiUpper(*at), Upper) && *at != '!') return std::nullopt;
    const char* behind = at + 1;
    while (behind != _end && isClass(text::asciiUpper(*behind), Upper | Digit)) ++behind;
    const bool spelledPlainly = at - equals <= 2 && _end - at >= static_cast<std::ptrdiff_t>(KeywordTable::recallReach);
    return _structure.keywords.number(view(at, behind), spelledPlainly ? at : nullptr);
}

void StructureReader::add(const char* name, std::uint16_t keyword, std::uint64_t id) {
    if (!_structure.index.append(offset(name), keyword, id)) {
        _structure.tooManyInstances = true;
        _ended = true;
    }
    _open = true;
    _instance = id;
}

void StructureReader::endInstance(const char* behind) noexcept {
    _open = false;
    _instance = 0;
    _behind = behind;
}

/// Takes what stands between two statements, or a statement that is no instance. A statement
/// that is not closed ends where an instance or the end of the text follows.
void StructureReader::takeStatement(const char* from, const char* to, bool closed) {
    const char* at = content(from, to);
    if (at == to && closed) report(Severity::Warning, at, "statement-empty", "\";\" without a statement before it");
    // A statement that lacks more than a few ";" is no statement at all.
    for (int round = 0; at != to; ++round) {
        const std::string_view word = wordAt(at, to);
        const char* behind = word.empty() || round == 16 ? nullptr : takeSectionKeyword(word, to);
        if (behind == nullptr) {
            error(at, "unexpected-text",
                  (_section == Section::Data ? "expected an instance or \"ENDSEC;\", found "
                                             : "expected the keyword of a section or of a header entity, found ") +
                      excerpt(at, to));
            return;
        }
        if (_moved || _ended) return;
        at = content(behind, to);
        if (at != to || !closed) {
            error(behind, "semicolon-missing",
                  "expected \";\" behind " + excerpt(word.data(), word.data() + word.size()));
        }
    }
}

/// Follows a keyword outside instances. Answers where its statement ends; null when it has no
/// business here.
const char* StructureReader::takeSectionKeyword(std::string_view word, const char* to) {
    const auto is = [word](std::string_view keyword) {
        return word.size() == keyword.size() && startsWithWord(word, keyword);
    };
    const char* at = word.data();
    const char* behind = at + word.size();
    if (is("ENDSEC") && _section != Section::None) {
        endSection(at);
    } else if (is("END-ISO-10303-21")) {
        endStructure(at, to);
    } else if (is("HEADER") && !_sawHeader) {
        beginSection(Section::Header, at);
    } else if (is("DATA")) {
        beginSection(Section::Data, at);
        const char* parameters = content(behind, to);
        if (parameters != to && *parameters == '(') {
            auto texts = textParameters(view(at, to));
            auto& section = _structure.sections.back();
            if (!texts[0].empty()) section.name = std::move(texts[0][0]);
            if (texts.size() > 1) section.schemas = std::move(texts[1]);
            behind = takeParameters(at, to);
        }
    } else if (is("ANCHOR") || is("REFERENCE") || is("SIGNATURE")) {
        beginSection(Section::Other, at);
        skipSection(word, to);
    } else if (is("ISO-10303-21") && _section == Section::None) {
        return behind;
    } else if (_section == Section::Header ||
               // What stands behind data describes nothing that was read.
               (_section == Section::None && startsWithWord(word, "FILE_") && _structure.sections.empty())) {
        const char* parameters = content(behind, to);
        if (parameters == to || *parameters != '(') return nullptr;
        if (_section == Section::None) {
            error(at, "header-missing", "expected \"HEADER;\" before the header entities");
            beginSection(Section::Header, at);
        }
        readHeaderEntity(view(at, to), _structure.header);
        behind = takeParameters(at, to);
    } else {
        return nullptr;
    }
    return behind;
}

/// Behind the parameter list of "KEYWORD(…)".
const char* StructureReader::takeParameters(const char* word, const char* to) {
    Part21Lexer lexer(view(word, to));
    lexer.next();
    if (lexer.peek().kind != TokenKind::Open) return lexer.position();
    lexer.next();
    while (lexer.skipParameter() && lexer.next().kind == TokenKind::Comma) {
    }
    return lexer.position();
}

void StructureReader::beginSection(Section section, const char* at) {
    if (_section != Section::None) {
        error(at, "endsec-missing", "expected \"ENDSEC;\" before the next section");
        endSection(at);
    }
    _section = section;
    _sawHeader = true;
    if (section != Section::Data) return;
    auto& sections = _structure.sections;
    const std::uint32_t count = _structure.index.count();
    // A section that has neither instances nor a name tells nothing; millions of them would fill the memory.
    if (!sections.empty() && sections.back().firstInstance == count && sections.back().name.empty() &&
        sections.back().schemas.empty()) {
        sections.pop_back();
        _structure.sectionEnds.pop_back();
    }
    sections.push_back({count, {}, {}});
}

void StructureReader::endSection(const char* at) {
    if (_section == Section::Data) _structure.sectionEnds.push_back(offset(at));
    _section = Section::None;
}

/// Passes over a section of edition 3, whose statements are no instances.
void StructureReader::skipSection(std::string_view word, const char* from) {
    report(Severity::Warning, word.data(), "section-skipped",
           "the section " + std::string(word) + " belongs to edition 3 and is skipped");
    const char* at = findSectionEnd(from, _end);
    _behind = at;
    _scanner.restart(at);
    _moved = true;
}

void StructureReader::endStructure(const char* at, const char* behind) {
    if (_section != Section::None) {
        error(at, "endsec-missing", "expected \"ENDSEC;\" before \"END-ISO-10303-21;\"");
        endSection(at);
    }
    _ended = true;
    const char* next = content(behind != _end && *behind == ';' ? behind + 1 : behind, _end);
    if (next == _end) return;
    if (startsWithWord(wordAt(next, _end), "SIGNATURE")) {
        report(Severity::Warning, next, "section-skipped", "the section SIGNATURE belongs to edition 3 and is skipped");
    } else {
        error(next, "text-behind-end",
              "expected the end of the text behind \"END-ISO-10303-21;\", found " + excerpt(next, _end));
    }
}

/// First character that is neither white space nor comment, where a comment that is not closed
/// counts for its "/*" alone.
const char* StructureReader::content(const char* at, const char* end) const noexcept {
    // Behind the first comment that is not closed no other is: nothing is searched there.
    const char* closed = std::min(end, std::max(at, _scanner.unclosedComment()));
    for (;;) {
        at = skipSeparators(at, std::max(at, closed));
        while (at != end && isSpace(*at)) ++at;
        if (at < closed || end - at < 2 || at[0] != '/' || at[1] != '*') return at;
        at += 2;
    }
}

void StructureReader::report(Severity severity, const char* at, ProblemCode code, std::string message) {
    _structure.problems.add(severity, offset(at), _instance, code, std::move(message));
}

} // namespace velkor::sdai::part21
