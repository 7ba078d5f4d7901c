/// The strict pass over an exchange structure.
#pragma once

#include "ProblemList.h"
#include "velkor/sdai/Part21Lexer.h"
#include "velkor/sdai/SyntaxCheck.h"

#include <string>
#include <string_view>
#include <vector>

namespace velkor::sdai::part21 {

struct HeaderEntity;

/// Judges the text piece by piece as the index divides it, so that damage to one instance does
/// not hide the next.
class SyntaxChecker {
public:
    SyntaxChecker(const Part21File& file, std::size_t limit, const Progress& progress, const CodeChoice& choice);

    void check();
    ProblemList& problems() noexcept { return _problems; }

private:
    /// What has been read of the structure, in the order that it must have.
    enum class Place : std::uint8_t { Start, BeforeHeader, Header, BetweenSections, Data, End };
    struct Level {
        bool typed;
        bool onlyStrings;
        std::uint32_t count;
    };

    void checkPiece(std::uint64_t from, std::uint64_t to);
    void readFrom(const char* at);
    const char* statementEnd(const char* at) const noexcept;
    void checkStatement(const Token& first);
    void skipStatement();
    bool checkInstance(const Token& name);
    bool checkKeyword(const Token& word);
    bool checkSectionStart(const Token& word);
    bool checkSectionEnd(const Token& word);
    void leaveHeader(const Token& at);
    bool checkHeaderEntity(const Token& keyword);
    bool checkData(const Token& keyword);
    bool skipSection(const Token& word);

    bool checkRecord(const Token& keyword);
    bool checkParameters();
    bool checkValue(const Token& token);
    void checkShape(const Token& keyword, const HeaderEntity& expected);

    Token next();
    void checkGap(const char* from, const char* to);
    bool expect(TokenKind kind, const char* what);
    bool unexpected(const Token& token, const char* expected);
    void error(const char* at, ProblemCode code, std::string message);
    void report(Severity severity, const char* at, ProblemCode code, std::string message);
    /// Stops when the caller wants no more.
    void showProgress(std::uint64_t done);

    const Part21File& _file;
    const Progress& _progress;
    ProblemList _problems;
    Part21Lexer _lexer{std::string_view()};
    const char* _begin;
    const char* _pieceEnd = nullptr;
    /// Up to where the lexer reads.
    const char* _readEnd = nullptr;
    /// Behind the last token.
    const char* _behind = nullptr;
    /// The first DATA section, while it is the only one and has no name.
    const char* _unnamedData = nullptr;
    Token _last;
    std::vector<Level> _levels;
    std::string _shape;
    std::uint64_t _instance = 0;
    std::uint64_t _shown = 0;
    Place _place = Place::Start;
    std::size_t _headerEntities = 0;
    std::size_t _dataSections = 0;
    /// A string of the piece is not closed: each statement is read by itself.
    bool _distrustsStrings = false;
    bool _stopped = false;
};

} // namespace velkor::sdai::part21
