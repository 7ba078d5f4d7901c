#include "DefinitionWords.h"
#include "ResourceNames.h"
#include "velkor/propertysets/DefinitionFile.h"

#include <utility>

namespace velkor {

namespace {

using namespace definitions;
namespace words = velkor::names::definition;

class DefinitionWriter {
public:
    std::string written(const SetDefinition& set, std::string_view release) {
        _text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        const char* element = set.isQuantitySet ? words::quantitySet : words::propertySet;
        begin(0, element, words::templateType, templateWord(set.templateType, set.isQuantitySet));
        indent(1);
        open(words::release, words::releaseName, release);
        close(words::release);
        _text += '\n';
        line(1, words::name, set.name);
        if (!set.classes.empty()) begin(1, words::classes);
        for (const auto& [entity, predefinedType] : set.classes)
            line(2, words::className, predefinedType.empty() ? entity : entity + '/' + predefinedType);
        if (!set.classes.empty()) end(1, words::classes);
        for (const std::string& method : set.methods) line(1, words::method, method);
        begin(1, set.isQuantitySet ? words::quantities : words::properties);
        for (const PropertyDefinition& property : set.properties) this->property(2, property);
        end(1, set.isQuantitySet ? words::quantities : words::properties);
        end(0, element);
        return std::move(_text);
    }

private:
    void property(std::size_t depth, const PropertyDefinition& property) {
        const char* element = isQuantity(property.kind) ? words::quantity : words::property;
        begin(depth, element);
        line(depth + 1, words::name, property.name);
        if (isQuantity(property.kind))
            line(depth + 1, words::quantityType, quantityWord(property.kind));
        else if (property.kind != PropertyKind::Any)
            type(depth + 1, property);
        end(depth, element);
    }

    void type(std::size_t depth, const PropertyDefinition& property) {
        const std::string_view element = elementOf(property.kind);
        indent(depth);
        open(words::propertyType);
        switch (property.kind) {
        case PropertyKind::Reference:
            open(element, words::referenceType, property.valueType);
            values({}, property.unitType);
            break;
        case PropertyKind::Complex:
            open(element, words::listName, property.usageName);
            _text += '\n';
            for (const PropertyDefinition& member : property.members) this->property(depth + 1, member);
            indent(depth);
            break;
        case PropertyKind::Enumerated:
            open(element);
            enumeration(property);
            break;
        case PropertyKind::List:
            open(element);
            within(words::listValue, property.valueType, property.unitType);
            break;
        case PropertyKind::Table:
            open(element);
            within(words::definingValue, property.definingType, property.definingUnitType);
            within(words::definedValue, property.valueType, property.unitType);
            break;
        default:
            open(element);
            values(property.valueType, property.unitType);
            break;
        }
        close(element);
        close(words::propertyType);
        _text += '\n';
    }

    void enumeration(const PropertyDefinition& property) {
        open(words::enumeration, words::listName, property.enumeration);
        for (const std::string& enumerator : property.enumerators) element(words::enumerator, enumerator);
        close(words::enumeration);
    }

    // What a definition leaves open is not written.
    void values(std::string_view type, std::string_view unit) {
        for (const auto& [name, value] : {std::pair(words::dataType, type), std::pair(words::unitType, unit)}) {
            if (value.empty()) continue;
            open(name, words::type, value);
            close(name);
        }
    }
    void within(std::string_view name, std::string_view type, std::string_view unit) {
        open(name);
        values(type, unit);
        close(name);
    }

    void line(std::size_t depth, std::string_view name, std::string_view text) {
        indent(depth);
        element(name, text);
        _text += '\n';
    }
    void element(std::string_view name, std::string_view text) {
        open(name);
        escape(text);
        close(name);
    }
    void begin(std::size_t depth, std::string_view name, const char* attribute = nullptr, std::string_view value = {}) {
        indent(depth);
        open(name, attribute, value);
        _text += '\n';
    }
    void end(std::size_t depth, std::string_view name) {
        indent(depth);
        close(name);
        _text += '\n';
    }

    // An attribute without a value is left out.
    void open(std::string_view name, const char* attribute = nullptr, std::string_view value = {}) {
        _text.append("<").append(name);
        if (!value.empty()) {
            _text.append(" ").append(attribute).append("=\"");
            escape(value);
            _text += '"';
        }
        _text += '>';
        _opened = _text.size();
    }
    void close(std::string_view name) {
        if (_text.size() == _opened)
            _text.insert(_text.size() - 1, 1, '/');
        else
            _text.append("</").append(name).append(">");
    }
    void indent(std::size_t depth) { _text.append(2 * depth, ' '); }

    void escape(std::string_view text) {
        for (const char character : text) {
            switch (character) {
            case '&':
                _text += "&amp;";
                break;
            case '<':
                _text += "&lt;";
                break;
            case '>':
                _text += "&gt;";
                break;
            case '"':
                _text += "&quot;";
                break;
            // A reader makes blanks or line ends of these unless they are written as references.
            case '\t':
                _text += "&#9;";
                break;
            case '\n':
                _text += "&#10;";
                break;
            case '\r':
                _text += "&#13;";
                break;
            default:
                _text += character;
            }
        }
    }

    std::string _text;
    // Where the content of the latest element begins.
    std::size_t _opened = 0;
};

} // namespace

std::string writtenDefinition(const SetDefinition& definition, std::string_view release) {
    return DefinitionWriter().written(definition, release);
}

} // namespace velkor
