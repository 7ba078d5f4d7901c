/// Second stage of reading an exchange structure: makes statements of the scanner's marks, follows
/// the sections and fills the index.
#pragma once

#include "InstanceIndex.h"
#include "KeywordTable.h"
#include "ProblemList.h"
#include "StatementScanner.h"

#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace velkor::sdai::part21 {

/// All that the reader finds.
struct Structure {
    /// Most problems kept of the reading.
    static constexpr std::size_t problemLimit = 1000;

    explicit Structure(std::string_view text_, unsigned segmentBits = InstanceIndex::defaultSegmentBits)
        : text(text_), lines(text_), index(text_, segmentBits), problems(problemLimit) {}

    std::string_view text;
    LineTable lines;
    FileHeader header;
    std::vector<Part21File::DataSection> sections;
    /// Where the text of the last instance of each section ends.
    std::vector<std::uint64_t> sectionEnds;
    InstanceIndex index;
    KeywordTable keywords;
    ProblemList problems;
    /// The structure has more instances than can be numbered.
    bool tooManyInstances = false;
};

class StructureReader {
public:
    /// Called with the position that reading has come to, before each chunk.
    using Progress = std::function<void(std::uint64_t position)>;

    StructureReader(Structure& structure, BlockClassifier classifier);

    void read(const Progress& progress = {});

private:
    enum class Section : std::uint8_t { None, Header, Data, Other };
    void takeMarks();
    bool takeInstance(const char* equals);
    void takeEquals(const char* equals);
    void takeSemicolon(const char* semicolon);
    void takeDamage(const char* at, MarkKind kind);
    bool takeEndOfText();

    const char* instanceName(const char* from, const char* equals);
    void beginInstance(const char* name, const char* equals);
    std::optional<std::uint16_t> keywordBehind(const char* equals);
    void add(const char* name, std::uint16_t keyword, std::uint64_t id);
    void endInstance(const char* behind) noexcept;

    void takeStatement(const char* from, const char* to, bool closed);
    const char* takeSectionKeyword(std::string_view word, const char* to);
    const char* takeParameters(const char* word, const char* to);
    void beginSection(Section section, const char* at);
    void endSection(const char* at);
    void skipSection(std::string_view word, const char* from);
    void endStructure(const char* at, const char* behind);

    const char* content(const char* at, const char* end) const noexcept;
    std::uint64_t offset(const char* at) const noexcept { return static_cast<std::uint64_t>(at - _begin); }
    void report(Severity severity, const char* at, ProblemCode code, std::string message);
    void error(const char* at, ProblemCode code, std::string message) {
        report(Severity::Error, at, code, std::move(message));
    }

    Structure& _structure;
    StatementScanner _scanner;
    const char* _begin;
    const char* _end;
    /// Behind the last statement that was read.
    const char* _behind;
    /// Behind the "=" of the instance that is open.
    const char* _body = nullptr;
    std::uint64_t _instance = 0;
    bool _open = false;
    Section _section = Section::None;
    // From where an instance name was looked for in vain in the statement that is being read.
    const char* _unnamed = nullptr;
    bool _sawHeader = false;
    // The end of the structure was read, or the index is full.
    bool _ended = false;
    // The scanner was sent elsewhere; the marks left are void.
    bool _moved = false;
};

} // namespace velkor::sdai::part21
