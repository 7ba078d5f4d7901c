#include "ReadTrace.h"

#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <array>

namespace velkor::rules {

namespace {

/// Of a value as it stands in the file, in bytes.
constexpr std::size_t longestValue = 400;

std::string beginning(std::string_view text) {
    const std::string_view begin = text::beginning(text, longestValue);
    return std::string(begin) + (begin.size() < text.size() ? "…" : "");
}

/// The parameter at the beginning of a text.
std::string_view parameterOf(std::string_view text) noexcept {
    sdai::Part21Lexer lexer(text);
    const sdai::Token first = lexer.peek();
    lexer.skipParameter();
    const char* begin = first.text.data();
    std::string_view parameter(begin, static_cast<std::size_t>(std::max(lexer.position(), begin) - begin));
    const std::size_t last = parameter.find_last_not_of(" \t\r\n");
    return last == std::string_view::npos ? std::string_view() : parameter.substr(0, last + 1);
}

std::string enclosed(std::string_view before, std::string_view text, std::string_view behind = {}) {
    std::string result(before);
    return result.append(text).append(behind);
}

std::string membersText(std::size_t count) {
    return text::counted(count, "member", "members");
}

} // namespace

std::size_t ReadTrace::noteRead(std::uint32_t instance, TextId attribute, RuleProgram::Part part) {
    const auto isSame = [&](const Note& note) { return note.instance == instance && note.attribute == attribute; };
    const auto found = std::ranges::find_if(_notes, isSame);
    if (found != _notes.end()) return static_cast<std::size_t>(found - _notes.begin());
    if (_notes.size() == _most) return _most;
    _notes.push_back({instance, attribute, part, Value()});
    return _notes.size() - 1;
}

void ReadTrace::noteValue(std::size_t read, const Value& value) {
    if (read < _notes.size()) _notes[read].value = value;
}

std::vector<Read> ReadTrace::reads(Interpreter& interpreter) const {
    std::vector<Read> reads;
    for (const Note& note : _notes) {
        const sdai::EntityDefinition* entity = _program.model().entityAt(note.instance);
        reads.push_back({_program.model().file().id(note.instance),
                         entity != nullptr ? entity->name() : std::string_view(), _program.store().text(note.attribute),
                         shown(note, interpreter)});
    }
    return reads;
}

std::string ReadTrace::shown(const Note& note, Interpreter& interpreter) const {
    if (note.part.kind == RuleProgram::Part::Kind::Derived) return shown(note.value, interpreter);
    if (note.part.kind == RuleProgram::Part::Kind::Inverse) return shownUsers(note.instance, note.part.index);
    return beginning(parameterOf(interpreter.reader().parameter(note.instance, note.part.index)));
}

std::string ReadTrace::shownUsers(std::uint32_t instance, std::uint16_t role) const {
    const auto users = _roles.users(role, instance);
    if (_program.tables().inverseAttributes[role].isAggregate) return membersText(users.size());
    return users.empty() ? "$" : enclosed("#", std::to_string(_program.model().file().id(users.front())));
}

std::string ReadTrace::shown(const Value& value, Interpreter& interpreter) const {
    static constexpr std::array<const char*, 3> logicals{".F.", ".U.", ".T."};
    switch (value.kind()) {
    case ValueKind::Logical:
        return logicals[static_cast<std::size_t>(value.logical())];
    case ValueKind::Integer:
        return std::to_string(value.integer());
    case ValueKind::Real:
        return text::shortest(value.number());
    case ValueKind::String:
        return enclosed("'", beginning(value.text()), "'");
    case ValueKind::Binary:
        return enclosed("%", beginning(value.text()));
    case ValueKind::Enumerator:
        return enclosed(".", value.text(), ".");
    case ValueKind::Instance:
        return enclosed("#", std::to_string(_program.model().file().id(value.instance())));
    case ValueKind::Entity:
        return std::string(value.entity().entity->name());
    case ValueKind::Aggregate:
        return membersText(interpreter.reader().size(value.aggregate()));
    default:
        return "$";
    }
}

} // namespace velkor::rules
