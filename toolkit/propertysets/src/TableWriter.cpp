#include "TableWords.h"
#include "velkor/propertysets/DefinitionTable.h"

#include <algorithm>
#include <initializer_list>
#include <span>

namespace velkor {

namespace {

bool isPlain(std::string_view word) {
    const auto isPlainLetter = [](char letter) {
        return letter > ' ' && letter <= '~' && letter != '"' && letter != '\\';
    };
    return !word.empty() && word.front() != '#' && std::ranges::all_of(word, isPlainLetter) &&
           std::ranges::find(tablewords::keys, word) == tablewords::keys.end();
}

class TableWriter {
public:
    std::string written(const DefinitionTable& table) {
        _text = "# Made by velkor-setgen of published definitions; not to be edited.\n";
        line(0, {tablewords::release, table.release});
        for (const DefinitionTable::Entry& entry : table.entries) set(entry);
        if (!table.refused.empty()) _text += '\n';
        for (const auto& [source, hash, reason] : table.refused) line(0, {tablewords::refused, source, hash, reason});
        return std::move(_text);
    }

private:
    void set(const DefinitionTable::Entry& entry) {
        const SetDefinition& definition = entry.definition;
        _text += '\n';
        begin(0, definition.isQuantitySet ? tablewords::quantitySet : tablewords::propertySet);
        word(definition.name);
        if (definition.templateType != TemplateType::Unspecified) word(wordOf(definition.templateType));
        _text += '\n';
        line(1, {tablewords::source, entry.source, entry.hash});
        for (const auto& [number, kind, text] : entry.faults)
            line(1, {tablewords::fault, std::to_string(number), kind, text});
        for (const auto& [entity, predefinedType] : definition.classes) {
            begin(1, tablewords::applicableClass);
            word(entity);
            if (!predefinedType.empty()) word(predefinedType);
            _text += '\n';
        }
        for (const std::string& method : definition.methods) line(1, {tablewords::method, method});
        for (const PropertyDefinition& property : definition.properties) this->property(1, property);
    }

    void property(std::size_t depth, const PropertyDefinition& property) {
        begin(depth, wordOf(property.kind));
        word(property.name);
        if (!property.valueType.empty()) word(property.valueType);
        fact(tablewords::definingType, property.definingType);
        fact(tablewords::unitType, property.unitType);
        fact(tablewords::definingUnitType, property.definingUnitType);
        fact(tablewords::enumeration, property.enumeration);
        fact(tablewords::usageName, property.usageName);
        if (!property.enumerators.empty()) _text.append(" ").append(tablewords::enumerators);
        for (const std::string& enumerator : property.enumerators) word(enumerator);
        _text += '\n';
        for (const PropertyDefinition& member : property.members) this->property(depth + 1, member);
    }

    void fact(std::string_view key, std::string_view value) {
        if (value.empty()) return;
        _text.append(" ").append(key);
        word(value);
    }

    // A line of a key and words behind it.
    void line(std::size_t depth, std::initializer_list<std::string_view> words) {
        begin(depth, *words.begin());
        for (const std::string_view each : std::span(words).subspan(1)) word(each);
        _text += '\n';
    }

    void begin(std::size_t depth, std::string_view key) {
        _text.append(depth * tablewords::indentation, ' ').append(key);
    }

    void word(std::string_view word) {
        _text += ' ';
        if (isPlain(word)) {
            _text += word;
            return;
        }
        _text += '"';
        for (const char letter : word) {
            if (letter == '\n') {
                _text += "\\n";
                continue;
            }
            if (letter == '"' || letter == '\\') _text += '\\';
            _text += letter;
        }
        _text += '"';
    }

    std::string _text;
};

} // namespace

std::string writtenTable(const DefinitionTable& table) {
    return TableWriter().written(table);
}

} // namespace velkor
