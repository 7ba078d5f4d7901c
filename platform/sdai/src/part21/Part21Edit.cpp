#include "velkor/sdai/Part21Edit.h"

#include "EditText.h"
#include "RecordSyntax.h"
#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <span>
#include <unordered_map>
#include <vector>

namespace velkor::sdai {

using namespace part21;

namespace {

/// A record in the text of all edits; empty when the instance was dropped.
struct Piece {
    std::uint64_t begin = 0;
    std::uint64_t length = 0;
};

/// What stands in place of a range of the file.
struct Patch {
    std::uint64_t begin;
    std::uint64_t end;
    Piece text;
};

std::string textList(std::span<const std::string> texts) {
    std::string list = "(";
    for (const std::string& text : texts) {
        if (list.size() > 1) list += ',';
        appendString(list, text);
    }
    // The standard wants one text at least.
    list += texts.empty() ? "'')" : ")";
    return list;
}

std::string parameters(std::initializer_list<std::string> values) {
    std::string text = "(";
    for (const std::string& value : values) (text += text.size() > 1 ? "," : "") += value;
    text += ");";
    return text;
}

std::string literal(std::string_view utf8) {
    std::string text;
    appendString(text, utf8);
    return text;
}

std::string_view lineEndOf(std::string_view text) {
    const std::size_t at = text.find_first_of("\r\n");
    if (at == std::string_view::npos || text[at] == '\n') return "\n";
    return text.substr(at, 2) == "\r\n" ? "\r\n" : "\r";
}

} // namespace

struct Part21Edit::State {
    explicit State(const Part21File& file_) : file(file_), text(file_.text()) {}

    const Part21File& file;
    std::string_view text;
    std::string texts;
    // By number of the instance.
    std::unordered_map<std::uint32_t, Piece> changed;
    // By id, rising.
    std::vector<std::pair<std::uint64_t, Piece>> added;
    // Above all ids of the file and those given; 0 as long as nobody asked.
    std::uint64_t nextId = 0;
    std::vector<Patch> header;

    std::string_view view(const Piece& piece) const {
        return std::string_view(texts).substr(piece.begin, piece.length);
    }
    std::uint64_t offset(const char* at) const { return static_cast<std::uint64_t>(at - text.data()); }
    Piece* findAdded(std::uint64_t id) {
        const auto at = std::ranges::lower_bound(added, id, {}, &std::pair<std::uint64_t, Piece>::first);
        return at != added.end() && at->first == id ? &at->second : nullptr;
    }

    Piece keep(std::string_view record) {
        // The text may be one of those kept.
        const Piece piece{texts.size(), record.size()};
        texts.append(record.data(), record.size());
        return piece;
    }

    /// Gives back the memory of a record that is about to be kept anew, where it lies at the end: several values of one
    /// instance cost no more than one.
    void forgetLast(std::string_view record) {
        if (record.data() + record.size() == texts.data() + texts.size() && record.data() >= texts.data())
            texts.resize(texts.size() - record.size());
    }

    /// The record as the file has it; empty when the statement is damaged.
    std::string_view original(std::uint32_t number) const {
        const std::string_view statement = file.instanceText(number);
        const std::size_t length = recordLength(statement);
        return length == std::string_view::npos ? std::string_view() : statement.substr(0, length);
    }

    void put(std::uint64_t id, Piece piece) {
        if (Piece* addition = findAdded(id)) {
            *addition = piece;
        } else if (const auto number = file.find(id)) {
            changed[*number] = piece;
        }
    }

    std::uint64_t largestId() const {
        std::uint64_t largest = 0;
        for (std::uint32_t i = 0; i < file.instanceCount(); ++i) largest = std::max(largest, file.id(i));
        return largest;
    }

    /// Behind the last statement that is sound; 0 when there is none.
    std::uint64_t endOfInstances() const {
        for (std::uint32_t i = file.instanceCount(); i-- > 0;) {
            const std::string_view record = original(i);
            if (!record.empty()) return offset(record.data() + record.size()) + 1;
        }
        return 0;
    }

    Result<std::uint64_t> reserve(std::uint64_t count) {
        if (nextId == 0) nextId = largestId() + 1;
        const std::uint64_t first = nextId;
        if (first == 0 || first + count < first) return refused("no id is left above those of the file");
        nextId += count;
        return first;
    }

    std::vector<Patch> patches() const;
    Patch patch(std::uint32_t number, const Piece& piece) const;
    /// Takes away an instance whose statement ends before a place.
    Patch line(std::uint32_t number, const char* behind) const;
    void writeAdditions(files::OutputFile& output) const;
};

Patch Part21Edit::State::patch(std::uint32_t number, const Piece& piece) const {
    const std::string_view record = original(number);
    if (piece.length > 0) return {offset(record.data()), offset(record.data() + record.size()), piece};
    return line(number, record.data() + record.size() + 1);
}

Patch Part21Edit::State::line(std::uint32_t number, const char* behind) const {
    // A line that holds nothing else goes with its statement, by the line end before it: what is added begins
    // behind a statement, dropped or not.
    const auto isLineEnd = [this](std::uint64_t at) { return text[at] == '\n' || text[at] == '\r'; };
    std::uint64_t begin = file.offset(number);
    const std::uint64_t end = offset(behind);
    if (begin > 0 && isLineEnd(begin - 1) && (end == text.size() || isLineEnd(end))) {
        --begin;
        if (text[begin] == '\n' && begin > 0 && text[begin - 1] == '\r') --begin;
    }
    return {begin, end, {}};
}

std::vector<Patch> Part21Edit::State::patches() const {
    std::vector<Patch> result = header;
    result.reserve(header.size() + changed.size() + 1);
    for (const auto& [number, piece] : changed) result.push_back(patch(number, piece));
    std::sort(result.begin(), result.end(), [](const Patch& a, const Patch& b) { return a.begin < b.begin; });
    return result;
}

void Part21Edit::State::writeAdditions(files::OutputFile& output) const {
    const std::string_view lineEnd = lineEndOf(text);
    for (const auto& [id, piece] : added) {
        if (piece.length == 0) continue;
        output.write(lineEnd);
        output.write(named(id));
        output.write("=");
        output.write(view(piece));
        output.write(";");
    }
}

Part21Edit::Part21Edit(const Part21File& file) : _state(std::make_unique<State>(file)) {}
Part21Edit::~Part21Edit() = default;
Part21Edit::Part21Edit(Part21Edit&&) noexcept = default;
Part21Edit& Part21Edit::operator=(Part21Edit&&) noexcept = default;

Part21Edit::Result<std::string_view> Part21Edit::record(std::uint64_t id) const {
    State& state = *_state;
    std::string_view found;
    if (const Piece* addition = state.findAdded(id)) {
        found = state.view(*addition);
    } else {
        const auto number = state.file.find(id);
        if (!number) return refused("there is no instance " + named(id));
        const auto change = state.changed.find(*number);
        if (change == state.changed.end()) {
            found = state.original(*number);
            if (found.empty()) return refused("the statement of " + named(id) + " is damaged and stays as it is");
            return found;
        }
        found = state.view(change->second);
    }
    if (found.empty()) return refused(named(id) + " was dropped");
    return found;
}

Part21Edit::Result<std::uint64_t> Part21Edit::add(std::string_view record) {
    State& state = *_state;
    if (!isRecord(record)) return refused("expected a keyword with its parameters, as ISO 10303-21 writes them");
    if (state.added.empty() && state.endOfInstances() == 0)
        return refused("the data has no sound instance that a new one could follow");
    const auto id = state.reserve(1);
    if (id) state.added.emplace_back(*id, state.keep(record));
    return id;
}

bool Part21Edit::isEdited(std::uint64_t id) const {
    if (_state->findAdded(id) != nullptr) return true;
    const auto number = _state->file.find(id);
    return number && _state->changed.contains(*number);
}

Part21Edit::Result<std::uint64_t> Part21Edit::reserve(std::uint64_t count) {
    return _state->reserve(count);
}

Part21Edit::Result<void> Part21Edit::replace(std::uint64_t id, std::string_view record) {
    if (const auto old = this->record(id); !old) return refused(old.error());
    if (!isRecord(record)) return refused("expected a keyword with its parameters, as ISO 10303-21 writes them");
    _state->put(id, _state->keep(record));
    return {};
}

Part21Edit::Result<void> Part21Edit::drop(std::uint64_t id) {
    if (const auto old = record(id); !old) return refused(old.error());
    _state->put(id, {});
    return {};
}

Part21Edit::Result<void> Part21Edit::setParameter(std::uint64_t id, std::size_t position, std::string_view value) {
    const auto old = record(id);
    if (!old) return refused(old.error());
    if (!isParameter(value)) return refused("expected a value as ISO 10303-21 writes it");
    Part21Lexer lexer(*old);
    if (lexer.next().kind != TokenKind::Keyword) return refused(named(id) + " is a complex instance");
    lexer.next();
    if (lexer.peek().kind == TokenKind::Close) return refused(named(id) + " has no parameters");
    for (std::size_t i = 0; i < position; ++i) {
        lexer.skipParameter();
        if (lexer.next().kind != TokenKind::Comma)
            return refused(named(id) + " has " + std::to_string(i + 1) + " parameters");
    }
    const char* begin = lexer.peek().text.data();
    Part21Lexer behind = lexer;
    behind.skipParameter();
    // A comment behind the value stays.
    const char* end = begin;
    for (Token token = lexer.next(); token.kind != TokenKind::End && lexer.position() <= behind.position();
         token = lexer.next())
        end = token.text.data() + token.text.size();
    std::string record(old->data(), begin);
    (record += value).append(end, old->data() + old->size());
    _state->forgetLast(*old);
    _state->put(id, _state->keep(record));
    return {};
}

Part21Edit::Result<void> Part21Edit::setHeader(const FileHeader& header) {
    const std::pair<std::string_view, std::string> entities[] = {
        {"FILE_DESCRIPTION", parameters({textList(header.description), literal(header.implementationLevel)})},
        {"FILE_NAME", parameters({literal(header.name), literal(header.timeStamp), textList(header.author),
                                  textList(header.organization), literal(header.preprocessorVersion),
                                  literal(header.originatingSystem), literal(header.authorization)})},
        {"FILE_SCHEMA", parameters({textList(header.schemas)})}};
    State& state = *_state;
    std::vector<Patch> patches;
    std::vector<const std::pair<std::string_view, std::string>*> found;
    // In a damaged file more of them may follow a section that ended early, and be those that readers go by.
    Part21Lexer lexer(state.text.substr(0, state.file.instanceCount() > 0 ? state.file.offset(0) : state.text.size()));
    bool isFirst = true;
    for (Token token = lexer.next(); token.kind != TokenKind::End; token = lexer.next()) {
        const bool isStatement = isFirst;
        isFirst = token.kind == TokenKind::Semicolon;
        if (!isStatement || token.kind != TokenKind::Keyword || token.text == "DATA") continue;
        const auto* entity = std::find_if(std::begin(entities), std::end(entities),
                                          [&token](const auto& candidate) { return candidate.first == token.text; });
        if (entity == std::end(entities)) continue;
        const std::uint64_t begin = state.offset(token.text.data());
        const std::size_t length = recordLength(state.text.substr(begin));
        if (length == std::string_view::npos) return refused(std::string(entity->first) + " is damaged");
        patches.push_back({begin, begin + length + 1, {}});
        found.push_back(entity);
    }
    for (const auto& entity : entities) {
        const auto count = std::count(found.begin(), found.end(), &entity);
        if (count != 1)
            return refused("expected one " + std::string(entity.first) + " in the header, found " +
                           std::to_string(count));
    }
    for (std::size_t i = 0; i < patches.size(); ++i)
        patches[i].text = state.keep(std::string(found[i]->first) + found[i]->second);
    state.header = std::move(patches);
    return {};
}

const RecordView* RecordReader::read(const Part21File& file, std::uint32_t number) {
    _view.number = number;
    _length = splitRecord(file.instanceText(number), _view.keyword, _parameters);
    _view.parameters = _parameters;
    return _length == std::string_view::npos ? nullptr : &_view;
}

RecordRewriter::~RecordRewriter() = default;

std::uint64_t RecordOutput::add(std::string_view addition) {
    add(_nextId, addition);
    return _nextId++;
}

void RecordOutput::add(std::uint64_t id, std::string_view addition) {
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), id).ptr;
    (_additions += _lineEnd) += '#';
    _additions.append(digits.data(), end) += '=';
    (_additions += addition) += ';';
    constexpr std::size_t most = 1 << 20;
    if (_additions.size() >= most) _spill();
}

/// Writes a structure from its beginning to its end, with other text in the place of some, and the instances that
/// were added.
class Part21Edit::StructureWriter {
public:
    StructureWriter(const State& state, files::OutputFile& output)
        : _state(state), _output(output), _patches(state.patches()), _isAdded(state.added.empty()),
          _additions(_isAdded ? 0 : state.endOfInstances()) {}

    void copyTo(std::uint64_t end) {
        _output.write(_state.text.substr(_at, end - _at));
        _at = end;
    }
    void put(std::uint64_t begin, std::uint64_t end, std::string_view text) {
        copyTo(begin);
        _output.write(text);
        _at = end;
    }
    /// What is known to stand before a place.
    void putBefore(std::uint64_t place) {
        for (;;) {
            const bool isPatch = _next < _patches.size() && _patches[_next].begin < place;
            if (!_isAdded && _additions <= (isPatch ? _patches[_next].begin : place)) {
                copyTo(_additions);
                _state.writeAdditions(_output);
                _isAdded = true;
            } else if (isPatch) {
                const Patch& patch = _patches[_next++];
                put(patch.begin, patch.end, _state.view(patch.text));
            } else {
                return;
            }
        }
    }
    void finish() {
        putBefore(_state.text.size());
        copyTo(_state.text.size());
    }

private:
    const State& _state;
    files::OutputFile& _output;
    const std::vector<Patch> _patches;
    std::size_t _next = 0;
    bool _isAdded;
    const std::uint64_t _additions;
    std::uint64_t _at = 0;
};

void Part21Edit::write(files::OutputFile& output) const {
    StructureWriter(*_state, output).finish();
}

void Part21Edit::write(files::OutputFile& output, RecordRewriter& rewriter) const {
    State& state = *_state;
    StructureWriter writer(state, output);
    RecordOutput rewritten;
    rewritten._nextId = state.nextId == 0 ? state.largestId() + 1 : state.nextId;
    rewritten._lineEnd = lineEndOf(state.text);
    std::vector<char> wanted(Part21File::unlistedKeyword + 1, 0);
    for (std::size_t i = 0; i < state.file.keywords().size(); ++i)
        wanted[i] = rewriter.wants(static_cast<std::uint16_t>(i));
    wanted[Part21File::unlistedKeyword] = rewriter.wants(Part21File::unlistedKeyword);
    RecordReader reader;
    const auto keywords = state.file.keywordNumbers();
    std::uint64_t place = 0;
    bool hasSpilled = false;
    rewritten._spill = [&] {
        writer.putBefore(place);
        writer.copyTo(place);
        output.write(std::string_view(rewritten._additions).substr(hasSpilled ? 0 : rewritten._lineEnd.size()));
        hasSpilled = true;
        rewritten._additions.clear();
    };
    for (std::uint32_t number = 0; number < keywords.size(); ++number) {
        if (wanted[keywords[number]] == 0 || state.changed.contains(number)) continue;
        place = state.file.offset(number);
        hasSpilled = false;
        const RecordView* record = reader.read(state.file, number);
        if (record == nullptr) continue;
        const std::string_view statement = state.file.instanceText(number);
        const std::size_t length = reader.length();
        rewritten.record.clear();
        rewritten._additions.clear();
        const RecordRewriter::Outcome outcome = rewriter.rewrite(*record, rewritten);
        if (hasSpilled && outcome != RecordRewriter::Outcome::Drop) output.write(rewritten._lineEnd);
        if (outcome == RecordRewriter::Outcome::Drop) {
            const Patch line = state.line(number, statement.data() + length + 1);
            const std::uint64_t begin = hasSpilled ? place : line.begin;
            writer.putBefore(begin);
            writer.put(begin, line.end, {});
        } else if (outcome == RecordRewriter::Outcome::Replace) {
            const std::uint64_t begin = state.offset(statement.data());
            writer.putBefore(begin);
            writer.put(begin, begin + length, rewritten.record);
        }
        if (rewritten._additions.empty()) continue;
        writer.putBefore(state.offset(statement.data()) + length + 1);
        writer.copyTo(state.offset(statement.data()) + length + 1);
        output.write(rewritten._additions);
    }
    writer.finish();
}

std::size_t Part21Edit::memoryUse() const noexcept {
    const State& state = *_state;
    // A node of the map holds its entry and two words.
    return sizeof(State) + state.texts.capacity() + state.added.capacity() * sizeof(Piece) +
           state.changed.size() * (sizeof(std::pair<std::uint32_t, Piece>) + 2 * sizeof(void*)) +
           state.changed.bucket_count() * sizeof(void*);
}

} // namespace velkor::sdai
