#include "TableWords.h"
#include "velkor/propertysets/DefinitionTable.h"
#include "velkor/text/Printable.h"
#include "velkor/text/Wording.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace velkor {

namespace {

struct Word {
    std::string text;
    bool isQuoted = false;

    bool is(std::string_view key) const { return !isQuoted && text == key; }
    bool isKey() const { return !isQuoted && std::ranges::find(tablewords::keys, text) != tablewords::keys.end(); }
};

// The member of an enumeration that a word stands for, up to the last.
template <class Enumeration>
std::optional<Enumeration> meant(std::string_view word, Enumeration first, Enumeration last) {
    for (auto i = static_cast<unsigned>(first); i <= static_cast<unsigned>(last); ++i) {
        if (wordOf(static_cast<Enumeration>(i)) == word) return static_cast<Enumeration>(i);
    }
    return std::nullopt;
}

bool isHash(std::string_view text) {
    return text.size() == 64 && text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

class TableReader {
public:
    explicit TableReader(std::string_view text) : _rest(text) {}

    tl::expected<DefinitionTable, sdai::Problem> read() {
        while (!_error && nextLine()) {
            if (_words.empty()) continue;
            const std::string key = _words[_used++].text;
            const bool isRead = _depth == 0   ? topLine(key)
                                : _depth == 1 ? factLine(key)
                                              : propertyLine(key, "a property");
            if (isRead && _used < _words.size()) fail("the end of the line");
        }
        if (!_error && _table.release.empty()) fail("a release");
        if (!_error && !_table.entries.empty()) endEntry();
        if (_error) return tl::unexpected(*_error);
        return std::move(_table);
    }

private:
    bool topLine(const std::string& key) {
        if (_table.release.empty()) {
            if (key == tablewords::release) return take(_table.release, "the name of a release");
            --_used;
            return fail("the release");
        }
        if (key == tablewords::refused) {
            auto& [source, hash, reason] = _table.refused.emplace_back();
            return takeSource(source, hash) && take(reason, "a reason");
        }
        if (key == tablewords::propertySet || key == tablewords::quantitySet)
            return endEntry() && beginEntry(key == tablewords::quantitySet);
        --_used;
        return fail("a set or a file refused");
    }

    bool beginEntry(bool isQuantitySet) {
        std::string name;
        if (!take(name, "the name of a set")) return false;
        if (!_table.entries.empty() && _table.entries.back().definition.name >= name) {
            --_used;
            return fail("a name behind " + text::quoted(_table.entries.back().definition.name));
        }
        SetDefinition& definition = _table.entries.emplace_back().definition;
        definition.name = std::move(name);
        definition.isQuantitySet = isQuantitySet;
        _latest.clear();
        if (_used == _words.size()) return true;
        const auto type = meant(_words[_used].text, TemplateType::TypeDrivenOnly, TemplateType::ProfileDriven);
        if (!type) return fail("a template type");
        definition.templateType = *type;
        ++_used;
        return true;
    }

    // Called before the next one begins.
    bool endEntry() {
        return _table.entries.empty() || !_table.entries.back().source.empty() ||
               fail("the source of " + text::quoted(_table.entries.back().definition.name) + " before this");
    }

    bool factLine(const std::string& key) {
        if (_table.entries.empty() || !_table.refused.empty()) {
            _used = 0;
            return fail("a set before this");
        }
        DefinitionTable::Entry& entry = _table.entries.back();
        if (key == tablewords::source) return takeSource(entry.source, entry.hash);
        if (key == tablewords::fault) {
            auto& [line, kind, text] = entry.faults.emplace_back();
            return takeNumber(line) && take(kind, "the kind of a fault") && take(text, "what is odd");
        }
        if (key == tablewords::applicableClass) {
            auto& [entity, predefinedType] = entry.definition.classes.emplace_back();
            return take(entity, "the name of a class") &&
                   (_used == _words.size() || take(predefinedType, "a predefined type"));
        }
        if (key == tablewords::method) return take(entry.definition.methods.emplace_back(), "a method of measurement");
        return propertyLine(key, "a fact of a set");
    }

    bool propertyLine(const std::string& key, const char* expected) {
        // Of the properties that the latest is within, each is the latest of its own level.
        if (_table.entries.empty() || _depth > _latest.size() + 1 || _depth > tablewords::deepest ||
            (_depth > 1 && _latest[_depth - 2]->kind != PropertyKind::Complex)) {
            _used = 0;
            return fail("less indentation");
        }
        const auto kind = meant(key, PropertyKind::Single, PropertyKind::Number);
        if (!kind) {
            --_used;
            return fail(expected);
        }
        _latest.resize(_depth - 1);
        auto& siblings = _depth == 1 ? _table.entries.back().definition.properties : _latest.back()->members;
        PropertyDefinition& property = siblings.emplace_back();
        _latest.push_back(&property);
        property.kind = *kind;
        if (!take(property.name, "the name of a property")) return false;
        if (_used < _words.size() && !_words[_used].isKey()) property.valueType = _words[_used++].text;
        return propertyFacts(property);
    }

    bool propertyFacts(PropertyDefinition& property) {
        using enum PropertyKind;
        while (_used < _words.size()) {
            const Word& key = _words[_used];
            const bool isEnumerated = property.kind == Enumerated;
            if (key.is(tablewords::enumerators) && isEnumerated) {
                while (++_used < _words.size()) property.enumerators.push_back(_words[_used].text);
                return true;
            }
            const bool isTable = property.kind == Table;
            std::string* fact = key.is(tablewords::definingType) && isTable                 ? &property.definingType
                                : key.is(tablewords::definingUnitType) && isTable           ? &property.definingUnitType
                                : key.is(tablewords::unitType)                              ? &property.unitType
                                : key.is(tablewords::enumeration) && isEnumerated           ? &property.enumeration
                                : key.is(tablewords::usageName) && property.kind == Complex ? &property.usageName
                                                                                            : nullptr;
            if (fact == nullptr || !fact->empty())
                return fail("another fact of a property that is " + text::quoted(wordOf(property.kind)));
            const std::string behind = text::quoted(key.text);
            ++_used;
            if (!take(*fact, "a word behind " + behind)) return false;
        }
        return true;
    }

    bool take(std::string& word, std::string_view expected) {
        if (_used == _words.size()) return fail(expected);
        word = _words[_used++].text;
        return true;
    }

    bool takeNumber(int& number) {
        std::string digits;
        if (!take(digits, "a line number")) return false;
        const char* end = digits.data() + digits.size();
        const auto [rest, error] = std::from_chars(digits.data(), end, number);
        if (error == std::errc() && rest == end && number >= 0) return true;
        --_used;
        return fail("a line number");
    }

    bool takeSource(std::string& source, std::string& hash) {
        if (!take(source, "the name of a file") || !take(hash, "its SHA-256")) return false;
        if (isHash(hash)) return true;
        --_used;
        return fail("its SHA-256, 64 hexadecimal digits");
    }

    // The words of the next line, none for an empty one or a comment.
    bool nextLine() {
        _words.clear();
        _used = 0;
        if (_rest.empty()) return false;
        ++_line;
        std::string_view line = _rest.substr(0, _rest.find('\n'));
        _rest.remove_prefix(std::min(_rest.size(), line.size() + 1));
        if (line.ends_with('\r')) line.remove_suffix(1);
        const std::size_t blanks = std::min(line.find_first_not_of(' '), line.size());
        _depth = blanks / tablewords::indentation;
        line.remove_prefix(blanks);
        if (line.empty() || line.front() == '#') return true;
        if (blanks % tablewords::indentation != 0) return fail("an even number of blanks before the line");
        while (!line.empty()) {
            if (!takeWord(line)) return false;
            line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        }
        return true;
    }

    bool takeWord(std::string_view& line) {
        Word& word = _words.emplace_back();
        if (line.front() != '"') {
            word.text = line.substr(0, line.find(' '));
            line.remove_prefix(word.text.size());
            return true;
        }
        word.isQuoted = true;
        for (std::size_t i = 1; i < line.size(); ++i) {
            if (line[i] == '"') {
                line.remove_prefix(i + 1);
                return line.empty() || line.front() == ' ' || fail("a blank behind the quotation mark", word.text);
            }
            if (line[i] != '\\' || i + 1 == line.size()) {
                word.text += line[i];
            } else {
                ++i;
                word.text += line[i] == 'n' ? '\n' : line[i];
            }
        }
        return fail("a quotation mark at the end of the word", word.text);
    }

    // At the next word of the line.
    bool fail(std::string_view expected) {
        return fail(expected, _used < _words.size() ? std::optional(_words[_used].text) : std::nullopt);
    }

    bool fail(std::string_view expected, const std::optional<std::string>& found) {
        if (_error) return false;
        constexpr std::size_t longest = 60;
        _error.emplace();
        _error->line = _line;
        _error->code = "definition-table";
        _error->message.append("expected ").append(expected).append(", found ");
        _error->message += found ? text::quoted(text::excerpt(*found, longest)) : "the end";
        return false;
    }

    std::string_view _rest;
    std::uint64_t _line = 0;
    std::size_t _depth = 0;
    std::vector<Word> _words;
    std::size_t _used = 0;
    DefinitionTable _table;
    // The property that was read last, behind those that it is within.
    std::vector<PropertyDefinition*> _latest;
    std::optional<sdai::Problem> _error;
};

} // namespace

tl::expected<DefinitionTable, sdai::Problem> readTable(std::string_view text) {
    return TableReader(text).read();
}

bool beginsTable(std::string_view text) noexcept {
    while (!text.empty() && (text.front() == '#' || text.front() == '\n' || text.front() == '\r'))
        text.remove_prefix(std::min(text.find('\n'), text.size() - 1) + 1);
    return text.starts_with(tablewords::release) && text.substr(tablewords::release.size()).starts_with(' ');
}

} // namespace velkor
