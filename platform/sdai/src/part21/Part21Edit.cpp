#include "velkor/sdai/Part21Edit.h"

#include "RecordSyntax.h"
#include "velkor/sdai/Part21Encoding.h"
#include "velkor/sdai/Part21Lexer.h"

#include <algorithm>
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

std::string named(std::uint64_t id) {
    std::string name(1, '#');
    name += std::to_string(id);
    return name;
}

tl::unexpected<std::string> refused(std::string reason) {
    return tl::unexpected<std::string>(std::move(reason));
}

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
    // The first has firstAdded for its id.
    std::vector<Piece> added;
    std::uint64_t firstAdded = 0;
    std::vector<Patch> header;

    std::string_view view(const Piece& piece) const {
        return std::string_view(texts).substr(piece.begin, piece.length);
    }
    std::uint64_t offset(const char* at) const { return static_cast<std::uint64_t>(at - text.data()); }
    bool isAdded(std::uint64_t id) const {
        return !added.empty() && id >= firstAdded && id - firstAdded < added.size();
    }

    Piece keep(std::string_view record) {
        // The text may be one of those kept.
        const Piece piece{texts.size(), record.size()};
        texts.append(record.data(), record.size());
        return piece;
    }

    /// The record as the file has it; empty when the statement is damaged.
    std::string_view original(std::uint32_t number) const {
        const std::string_view statement = file.instanceText(number);
        const std::size_t length = recordLength(statement);
        return length == std::string_view::npos ? std::string_view() : statement.substr(0, length);
    }

    void put(std::uint64_t id, Piece piece) {
        if (isAdded(id)) {
            added[static_cast<std::size_t>(id - firstAdded)] = piece;
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

    std::vector<Patch> patches() const;
    Patch patch(std::uint32_t number, const Piece& piece) const;
    void writeAdditions(files::OutputFile& output) const;
};

Patch Part21Edit::State::patch(std::uint32_t number, const Piece& piece) const {
    const std::string_view record = original(number);
    const std::uint64_t recordEnd = offset(record.data() + record.size());
    if (piece.length > 0) return {offset(record.data()), recordEnd, piece};
    // A line that holds nothing else goes with its statement, by the line end before it: what is added begins
    // behind a statement, dropped or not.
    const auto isLineEnd = [this](std::uint64_t at) { return text[at] == '\n' || text[at] == '\r'; };
    std::uint64_t begin = file.offset(number);
    const std::uint64_t end = recordEnd + 1;
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
    for (std::size_t i = 0; i < added.size(); ++i) {
        if (added[i].length == 0) continue;
        output.write(lineEnd);
        output.write(named(firstAdded + i));
        output.write("=");
        output.write(view(added[i]));
        output.write(";");
    }
}

Part21Edit::Part21Edit(const Part21File& file) : _state(std::make_unique<State>(file)) {}
Part21Edit::~Part21Edit() = default;
Part21Edit::Part21Edit(Part21Edit&&) noexcept = default;
Part21Edit& Part21Edit::operator=(Part21Edit&&) noexcept = default;

Part21Edit::Result<std::string_view> Part21Edit::record(std::uint64_t id) const {
    const State& state = *_state;
    std::string_view found;
    if (state.isAdded(id)) {
        found = state.view(state.added[static_cast<std::size_t>(id - state.firstAdded)]);
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
    if (state.added.empty()) {
        if (state.endOfInstances() == 0) return refused("the data has no sound instance that a new one could follow");
        state.firstAdded = state.largestId() + 1;
    }
    const std::uint64_t id = state.firstAdded + state.added.size();
    if (state.firstAdded == 0 || id < state.firstAdded) return refused("no id is left above those of the file");
    state.added.push_back(state.keep(record));
    return id;
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
    Part21Lexer lexer(state.text);
    bool isFirst = true;
    for (Token token = lexer.next(); token.kind != TokenKind::End && token.text != "ENDSEC"; token = lexer.next()) {
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

void Part21Edit::write(files::OutputFile& output) const {
    const State& state = *_state;
    std::uint64_t at = 0;
    const auto copyTo = [&](std::uint64_t end) {
        output.write(state.text.substr(at, end - at));
        at = end;
    };
    const std::uint64_t additions = state.added.empty() ? state.text.size() : state.endOfInstances();
    bool isAdded = state.added.empty();
    const auto addBefore = [&](std::uint64_t next) {
        if (isAdded || next < additions) return;
        copyTo(additions);
        state.writeAdditions(output);
        isAdded = true;
    };
    for (const Patch& patch : state.patches()) {
        addBefore(patch.begin);
        copyTo(patch.begin);
        output.write(state.view(patch.text));
        at = patch.end;
    }
    addBefore(state.text.size());
    copyTo(state.text.size());
}

std::size_t Part21Edit::memoryUse() const noexcept {
    const State& state = *_state;
    // A node of the map holds its entry and two words.
    return sizeof(State) + state.texts.capacity() + state.added.capacity() * sizeof(Piece) +
           state.changed.size() * (sizeof(std::pair<std::uint32_t, Piece>) + 2 * sizeof(void*)) +
           state.changed.bucket_count() * sizeof(void*);
}

} // namespace velkor::sdai
