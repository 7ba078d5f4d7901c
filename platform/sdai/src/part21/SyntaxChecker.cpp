#include "SyntaxChecker.h"

#include "RecordSyntax.h"
#include "Separators.h"
#include "StringDecoder.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <array>
#include <utility>

namespace velkor::sdai {

std::vector<Problem> checkSyntax(const Part21File& file, std::size_t limit, std::uint64_t* total,
                                 const Progress& progress, const CodeChoice& choice) {
    part21::SyntaxChecker checker(file, limit, progress, choice);
    checker.check();
    if (total != nullptr) *total = checker.problems().total();
    return std::move(checker.problems().problems());
}

namespace part21 {

/// A shape has a letter per parameter: s a string, L a list of at least one string.
struct HeaderEntity {
    std::string_view keyword;
    std::string_view shape;
    std::array<const char*, 7> names;
};

namespace {

/// The header entities that every structure has, in their order.
constexpr std::array<HeaderEntity, 3> headerEntities{{
    {"FILE_DESCRIPTION", "Ls", {"description", "implementation_level"}},
    {"FILE_NAME",
     "ssLLsss",
     {"name", "time_stamp", "author", "organization", "preprocessor_version", "originating_system", "authorization"}},
    {"FILE_SCHEMA", "L", {"schema_identifiers"}},
}};
constexpr HeaderEntity dataSection{"DATA", "sL", {"name", "schema"}};
/// Those that may follow; what a writer adds of its own begins with "!".
constexpr std::array<std::string_view, 3> furtherHeaderEntities{"FILE_POPULATION", "SECTION_LANGUAGE",
                                                                "SECTION_CONTEXT"};
constexpr char stringParameter = 's';
constexpr char listOfStrings = 'L';
constexpr char emptyList = '0';
constexpr char otherParameter = '-';

/// What is expected of a parameter: "a list of strings for author", "at least one schema identifier".
std::string shapeText(char expected, char found, std::string_view name) {
    if (expected == stringParameter) return "a string for " + std::string(name);
    if (found != emptyList) return "a list of strings for " + std::string(name);
    std::string member(name.substr(0, name.size() - (name.ends_with('s') ? 1 : 0)));
    std::ranges::replace(member, '_', ' ');
    return "at least one " + member;
}

constexpr std::uint64_t progressStep = 4 << 20;

/// What may stand at each place, in the order of SyntaxChecker::Place.
constexpr std::array<const char*, 6> expectedAt{
    "\"ISO-10303-21;\"",          "\"HEADER;\"", "a header entity or \"ENDSEC;\"", "\"DATA;\" or \"END-ISO-10303-21;\"",
    "an instance or \"ENDSEC;\"", "nothing"};

std::string quoted(std::string_view text) {
    constexpr std::size_t longest = 32;
    return text::quoted(text::printableAscii(text.substr(0, longest)) + (text.size() > longest ? "..." : ""));
}

std::string describe(const Token& token) {
    return token.kind == TokenKind::End ? std::string("the next statement or the end of the section")
                                        : quoted(token.text);
}

} // namespace

SyntaxChecker::SyntaxChecker(const Part21File& file, std::size_t limit, const Progress& progress,
                             const CodeChoice& choice)
    : _file(file), _progress(progress), _problems(limit, choice), _begin(file.text().data()) {}

void SyntaxChecker::check() {
    const std::string_view text = _file.text();
    std::uint64_t done = 0;
    if (text.starts_with("\xEF\xBB\xBF")) {
        error(_begin, "byte-order-mark", "expected \"ISO-10303-21;\", found a byte order mark");
        done = 3;
    }
    for (std::uint32_t number = 0; number < _file.instanceCount() && !_stopped; ++number) {
        const std::uint64_t offset = _file.offset(number);
        if (done < offset) checkPiece(done, offset);
        const std::string_view body = _file.instanceText(number);
        done = static_cast<std::uint64_t>(body.data() - _begin) + body.size();
        if (const std::uint64_t id = _file.id(number); _file.find(id) != number) {
            _instance = id;
            error(_begin + offset, "instance-repeated", "expected an instance name that is not used before");
            _instance = 0;
        }
        checkPiece(offset, done);
        showProgress(done);
    }
    if (!_stopped) checkPiece(done, text.size());
    if (!_stopped && _place != Place::End) {
        const bool inSection = _place == Place::Header || _place == Place::Data;
        error(_begin + text.size(), inSection ? ProblemCode("endsec-missing") : ProblemCode("end-missing"),
              std::string("expected ") + expectedAt[static_cast<std::size_t>(_place)] + ", found the end of the text");
    }

    const LineTable lines(text);
    _problems.finish(lines);
}

void SyntaxChecker::checkPiece(std::uint64_t from, std::uint64_t to) {
    _behind = _begin + from;
    _pieceEnd = _begin + to;
    _distrustsStrings = false;
    readFrom(_behind);
    while (!_stopped) {
        const Token token = next();
        if (token.kind == TokenKind::End) {
            if (_readEnd == _pieceEnd) break;
            readFrom(_readEnd);
            continue;
        }
        checkStatement(token);
        _instance = 0;
        showProgress(static_cast<std::uint64_t>(_behind - _begin));
    }
}

void SyntaxChecker::readFrom(const char* at) {
    _readEnd = _distrustsStrings ? statementEnd(at) : _pieceEnd;
    _lexer = Part21Lexer({at, static_cast<std::size_t>(_readEnd - at)});
}

/// Behind the first ";" that ends a line; the end of the piece when there is none.
const char* SyntaxChecker::statementEnd(const char* at) const noexcept {
    for (; at != _pieceEnd; ++at) {
        if (*at == ';' && at + 1 != _pieceEnd && (at[1] == '\n' || at[1] == '\r')) return at + 1;
    }
    return _pieceEnd;
}

void SyntaxChecker::checkStatement(const Token& first) {
    if (_place == Place::End) {
        const bool signature = first.text == "SIGNATURE";
        report(signature ? Severity::Warning : Severity::Error, first.text.data(),
               signature ? ProblemCode("section-skipped") : ProblemCode("text-behind-end"),
               signature ? "the section SIGNATURE belongs to edition 3 and is skipped"
                         : "expected the end of the text behind \"END-ISO-10303-21;\", found " + describe(first));
        _stopped = true;
        return;
    }
    _last = first;
    if (first.kind == TokenKind::InstanceName ? checkInstance(first) : checkKeyword(first)) {
        const Token end = _lexer.peek();
        if (end.kind == TokenKind::Semicolon) {
            next();
        } else {
            // The next statement is read from here on.
            error(_behind, "semicolon-missing", "expected \";\" at the end of the statement, found " + describe(end));
        }
    } else {
        skipStatement();
    }
}

/// Passes over the rest of a statement in which something went wrong; judging on would only
/// repeat it.
void SyntaxChecker::skipStatement() {
    while (_last.kind != TokenKind::Semicolon && _last.kind != TokenKind::End) {
        if (_last.kind == TokenKind::Bad && _last.text[0] == '\'') {
            // A string that is not closed ends with the first line that looks like the end of a statement. So
            // do those behind it: a text full of them would be read to its end for each.
            _distrustsStrings = true;
            readFrom(statementEnd(_last.text.data()));
            break;
        }
        next();
    }
    _behind = _lexer.position();
}

bool SyntaxChecker::checkInstance(const Token& name) {
    const std::string_view digits = name.text.substr(1);
    _instance = decodeInstanceName(name.text);
    if (_place != Place::Data) {
        error(name.text.data(), "data-missing", "expected \"DATA;\" before the first instance");
        leaveHeader(name);
        _place = Place::Data;
    }
    if (digits.find_first_not_of('0') == std::string_view::npos) {
        error(name.text.data(), "instance-name-zero", "expected an instance name above 0");
    } else if (_instance == 0) {
        error(name.text.data(), "instance-name-too-large",
              "expected an instance name of at most 64 bits, found " + quoted(name.text));
    }
    if (!expect(TokenKind::Equals, "\"=\" behind the instance name")) return false;
    const Token token = next();
    if (token.kind != TokenKind::Open) return checkRecord(token);
    do {
        if (!checkRecord(next())) return false;
    } while (_lexer.peek().kind != TokenKind::Close && _lexer.peek().kind != TokenKind::End);
    return expect(TokenKind::Close, "a record or \")\" at the end of a complex instance");
}

bool SyntaxChecker::checkKeyword(const Token& word) {
    const std::string_view text = word.text;
    if (text == "ISO-10303-21" || text == "HEADER") return checkSectionStart(word);
    if (text == "ENDSEC" || text == "END-ISO-10303-21") return checkSectionEnd(word);
    if (text == "DATA") return checkData(word);
    if (text == "ANCHOR" || text == "REFERENCE") {
        return skipSection(word);
    }
    if (_place == Place::Header && (word.kind == TokenKind::Keyword || word.kind == TokenKind::Bad)) {
        return checkHeaderEntity(word);
    }
    return unexpected(word, expectedAt[static_cast<std::size_t>(_place)]);
}

bool SyntaxChecker::checkSectionStart(const Token& word) {
    const bool start = word.text != "HEADER";
    if (_place == Place::Start && !start) {
        error(word.text.data(), "start-missing", "expected \"ISO-10303-21;\" before \"HEADER;\"");
    } else if (_place != (start ? Place::Start : Place::BeforeHeader)) {
        return unexpected(word, start ? "\"ISO-10303-21;\" at the beginning of the text only"
                                      : "\"HEADER;\" directly behind \"ISO-10303-21;\" only");
    }
    _place = start ? Place::BeforeHeader : Place::Header;
    return true;
}

bool SyntaxChecker::checkSectionEnd(const Token& word) {
    const bool section = word.text == "ENDSEC";
    const bool inSection = _place == Place::Header || _place == Place::Data;
    if (section && !inSection) return unexpected(word, "\"ENDSEC;\" only behind a section");
    if (!section && inSection) {
        error(word.text.data(), "endsec-missing", "expected \"ENDSEC;\" before \"END-ISO-10303-21;\"");
    }
    leaveHeader(word);
    if (!section && _dataSections == 0 && _file.instanceCount() == 0) {
        error(word.text.data(), "data-missing", "expected at least one DATA section");
    }
    _place = section ? Place::BetweenSections : Place::End;
    return true;
}

void SyntaxChecker::leaveHeader(const Token& at) {
    if (_place != Place::Header || _headerEntities == headerEntities.size()) return;
    error(at.text.data(), "header-entity-missing",
          "expected " + std::string(headerEntities[_headerEntities].keyword) + " in the header section");
}

bool SyntaxChecker::checkHeaderEntity(const Token& keyword) {
    const auto known = std::find_if(headerEntities.begin(), headerEntities.end(),
                                    [&keyword](const HeaderEntity& entity) { return entity.keyword == keyword.text; });
    const auto position = static_cast<std::size_t>(known - headerEntities.begin());
    if (_headerEntities < headerEntities.size() && position != _headerEntities) {
        error(keyword.text.data(), "header-entity-missing",
              "expected " + std::string(headerEntities[_headerEntities].keyword) + ", found " + describe(keyword));
    } else if (_headerEntities >= headerEntities.size() && position < headerEntities.size()) {
        error(keyword.text.data(), "header-entity-repeated", "expected " + std::string(keyword.text) + " once");
    } else if (position == headerEntities.size() && keyword.text[0] != '!' &&
               std::ranges::find(furtherHeaderEntities, keyword.text) == furtherHeaderEntities.end()) {
        error(keyword.text.data(), "header-entity-unknown",
              "expected an entity of the header section or one that begins with \"!\", found " + describe(keyword));
    }
    if (position < headerEntities.size()) _headerEntities = std::max(_headerEntities, position + 1);
    if (!checkRecord(keyword)) return false;
    if (position < headerEntities.size()) checkShape(keyword, *known);
    return true;
}

bool SyntaxChecker::checkData(const Token& keyword) {
    if (_place == Place::Header || _place == Place::Data) {
        error(keyword.text.data(), "endsec-missing", "expected \"ENDSEC;\" before \"DATA\"");
    } else if (_place != Place::BetweenSections) {
        error(keyword.text.data(), "header-missing", "expected a header section before \"DATA\"");
    }
    leaveHeader(keyword);
    _place = Place::Data;
    const bool isNamed = _lexer.peek().kind == TokenKind::Open;
    if (++_dataSections == 1) {
        _unnamedData = isNamed ? nullptr : keyword.text.data();
    } else {
        const auto requireName = [this](const char* at) {
            error(at, "data-parameters-missing", "expected a name and a schema, as there are several DATA sections");
        };
        if (const char* first = std::exchange(_unnamedData, nullptr)) requireName(first);
        if (!isNamed) requireName(keyword.text.data());
    }
    if (!isNamed) return true;
    if (!checkRecord(keyword)) return false;
    checkShape(keyword, dataSection);
    return true;
}

bool SyntaxChecker::skipSection(const Token& word) {
    report(Severity::Warning, word.text.data(), "section-skipped",
           "the section " + std::string(word.text) + " belongs to edition 3 and is skipped");
    // Its statements have a syntax of their own; its end has not.
    const char* end = findSectionEnd(_lexer.position(), _pieceEnd);
    if (end == _pieceEnd) error(end, "endsec-missing", "expected \"ENDSEC;\" behind the section");
    readFrom(end);
    _behind = end;
    return end != _pieceEnd && next().kind == TokenKind::Keyword;
}

/// Judges "KEYWORD(…)"; _shape receives a letter per parameter.
bool SyntaxChecker::checkRecord(const Token& keyword) {
    if (keyword.kind != TokenKind::Keyword) {
        // Reading goes on if only its letters are wrong.
        const bool misspelled = keyword.kind == TokenKind::Bad && isClass(text::asciiUpper(keyword.text[0]), Upper) &&
                                _lexer.peek().kind == TokenKind::Open;
        if (!misspelled) return unexpected(keyword, "a keyword");
        error(keyword.text.data(), "token-invalid",
              "expected a keyword of upper case letters, digits and \"_\", found " + describe(keyword));
    }
    return expect(TokenKind::Open, "\"(\" behind the keyword") && checkParameters();
}

/// Judges parameters up to the ")" that belongs to a "(" already read.
bool SyntaxChecker::checkParameters() {
    _shape.clear();
    _levels.assign(1, {false, true, 0});
    bool wantsValue = true;
    while (!_levels.empty()) {
        Level& level = _levels.back();
        const Token token = next();
        if (token.kind == TokenKind::Close && (!wantsValue || (level.count == 0 && !level.typed))) {
            const bool strings = !level.typed && level.onlyStrings;
            const char letter = !strings ? otherParameter : level.count > 0 ? listOfStrings : emptyList;
            _levels.pop_back();
            if (_levels.size() == 1) _shape += letter;
            wantsValue = false;
            continue;
        }
        if (!wantsValue) {
            if (token.kind != TokenKind::Comma || level.typed) {
                return unexpected(token,
                                  level.typed ? "\")\" behind the value of a typed parameter" : "\",\" or \")\"");
            }
            wantsValue = true;
            continue;
        }
        ++level.count;
        level.onlyStrings = level.onlyStrings && token.kind == TokenKind::String;
        const bool keyword =
            token.kind == TokenKind::Keyword || (token.kind == TokenKind::Bad && _lexer.peek().kind == TokenKind::Open);
        if (keyword || token.kind == TokenKind::Open) {
            if (_levels.size() == deepestNesting) {
                return unexpected(token, "lists nested less deeply");
            }
            if (token.kind == TokenKind::Bad) checkValue(token);
            if (keyword && !expect(TokenKind::Open, "\"(\" behind the keyword")) return false;
            _levels.push_back({keyword, true, 0});
            continue;
        }
        if (!checkValue(token)) return false;
        if (_levels.size() == 1) _shape += token.kind == TokenKind::String ? stringParameter : otherParameter;
        wantsValue = false;
    }
    return true;
}

/// Judges a parameter of one token. False when reading cannot go on behind it.
bool SyntaxChecker::checkValue(const Token& token) {
    switch (token.kind) {
    case TokenKind::String: {
        StringViolation violation;
        StringDecoder(nullptr, &violation).decode(token.text);
        if (violation.position != std::string_view::npos) {
            error(token.text.data() + violation.position, "string-invalid", std::move(violation.message));
        }
        return true;
    }
    case TokenKind::InstanceName:
        if (token.text.find_first_not_of("#0") == std::string_view::npos) {
            error(token.text.data(), "instance-name-zero", "expected an instance name above 0");
        }
        return true;
    case TokenKind::Bad:
        if (token.text[0] == '\'') {
            error(token.text.data(), "string-not-closed", "expected an apostrophe at the end of the string");
            return false;
        }
        error(token.text.data(), "token-invalid",
              (token.text[0] == '"'
                   ? "expected a binary: hexadecimal digits, the first 0 to 3, between quotation marks, found "
               : token.text[0] == '.' ? "expected an enumeration in upper case between full stops, found "
               : isClass(token.text[0], Digit) || token.text[0] == '-' || token.text[0] == '+'
                   ? "expected an integer or a real with a full stop and an exponent \"E\", found "
                   : "expected a parameter, found ") +
                  describe(token));
        return true;
    case TokenKind::Integer:
    case TokenKind::Real:
    case TokenKind::Enumeration:
    case TokenKind::Binary:
    case TokenKind::Omitted:
    case TokenKind::Derived:
        return true;
    default:
        return unexpected(token, "a parameter");
    }
}

void SyntaxChecker::checkShape(const Token& keyword, const HeaderEntity& expected) {
    const std::string of = " of " + std::string(keyword.text);
    if (_shape.size() != expected.shape.size()) {
        error(keyword.text.data(), "parameter-count",
              "expected " + std::to_string(expected.shape.size()) + " parameters" + of + ", found " +
                  std::to_string(_shape.size()));
        return;
    }
    for (std::size_t i = 0; i < _shape.size(); ++i) {
        if (_shape[i] == expected.shape[i]) continue;
        error(keyword.text.data(), "parameter-type",
              "expected " + shapeText(expected.shape[i], _shape[i], expected.names[i]) + ", parameter " +
                  std::to_string(i + 1) + of + (_shape[i] == emptyList ? ", found ()" : ""));
    }
}

Token SyntaxChecker::next() {
    _last = _lexer.next();
    checkGap(_behind, _last.text.data());
    _behind = _last.text.data() + _last.text.size();
    return _last;
}

/// Judges what stands between two tokens: white space, comments and print control directives.
void SyntaxChecker::checkGap(const char* from, const char* to) {
    const auto isLayout = [](char c) { return c == ' ' || (c >= '\t' && c <= '\r'); };
    // Behind a comment that is not closed no other is: nothing is searched there.
    bool mayClose = true;
    for (const char* at = from; at != to;) {
        if (isLayout(*at)) {
            ++at;
        } else if (*at == '/') {
            const char* behind = mayClose ? skipSeparators(at, to) : at;
            mayClose = behind != at;
            if (!mayClose) {
                error(at, "comment-not-closed", "expected \"*/\" behind \"/*\"");
                at += 2;
                continue;
            }
            const char* foreign =
                std::find_if(at, behind, [&isLayout](char c) { return !isClass(c, Basic) && !isLayout(c); });
            if (foreign != behind) {
                error(foreign, "character-invalid", "expected characters of the basic alphabet in a comment");
            }
            at = behind;
        } else if (*at == '\\') {
            at += 3;
        } else {
            error(at, "character-invalid", "expected white space, found a control character");
            while (at != to && isSpace(*at) && !isLayout(*at)) ++at;
        }
    }
}

bool SyntaxChecker::expect(TokenKind kind, const char* what) {
    const Token token = next();
    return token.kind == kind || unexpected(token, what);
}

/// Reports a token that does not fit; answers false so that a caller can return it.
bool SyntaxChecker::unexpected(const Token& token, const char* expected) {
    const bool string = token.kind == TokenKind::Bad && token.text[0] == '\'';
    error(token.text.data(), string ? ProblemCode("string-not-closed") : ProblemCode("unexpected-token"),
          std::string("expected ") + expected + ", found " + describe(token));
    return false;
}

void SyntaxChecker::error(const char* at, ProblemCode code, std::string message) {
    report(Severity::Error, at, code, std::move(message));
}

void SyntaxChecker::report(Severity severity, const char* at, ProblemCode code, std::string message) {
    _problems.add(severity, static_cast<std::uint64_t>(at - _begin), _instance, code, std::move(message));
}

void SyntaxChecker::showProgress(std::uint64_t done) {
    if (!_progress || done - _shown < progressStep) return;
    _shown = done;
    if (!_progress(done, _file.text().size())) _stopped = true;
}

} // namespace part21

} // namespace velkor::sdai
