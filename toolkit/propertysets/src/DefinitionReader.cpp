#include "DefinitionClasses.h"
#include "DefinitionFaults.h"
#include "DefinitionTexts.h"
#include "DefinitionWords.h"
#include "ResourceNames.h"
#include "velkor/propertysets/DefinitionFile.h"
#include "velkor/text/Unicode.h"
#include "velkor/text/Wording.h"
#include "velkor/xml/XmlEvents.h"

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

namespace velkor {

namespace {

using namespace definitions;
namespace words = velkor::names::definition;
using enum DefinitionElement;

std::string_view attributeOf(std::span<const xml::XmlAttribute> attributes, std::string_view name) {
    const auto found = std::ranges::find(attributes, name, &xml::XmlAttribute::name);
    return found == attributes.end() ? std::string_view() : found->value;
}

const std::string& asText(const std::string& name) {
    return name;
}
std::string asText(const ApplicableClass& named) {
    return named.predefinedType.empty() ? named.entity : named.entity + '/' + named.predefinedType;
}

// Takes out what equals an earlier one by a key, and tells each with its position.
template <class Item, class Key, class Tell>
void dropRepeated(std::vector<Item>& items, Key key, Tell tell) {
    // Few are compared with each other.
    constexpr std::size_t few = 32;
    std::unordered_set<std::string> seen;
    const auto isRepeated = [&](std::size_t position) {
        const auto& wanted = std::invoke(key, items[position]);
        if (items.size() > few) return !seen.insert(asText(wanted)).second;
        const auto end = items.begin() + static_cast<std::ptrdiff_t>(position);
        return std::any_of(items.begin(), end, [&](const Item& item) { return std::invoke(key, item) == wanted; });
    };
    std::vector<std::size_t> repeated;
    for (std::size_t position = 0; position < items.size(); ++position) {
        if (!isRepeated(position)) continue;
        tell(asText(std::invoke(key, items[position])), position);
        repeated.push_back(position);
    }
    auto next = repeated.begin();
    std::size_t position = 0;
    if (!repeated.empty())
        std::erase_if(items, [&](const Item&) {
            const bool isNext = next != repeated.end() && *next == position++;
            if (isNext) ++next;
            return isNext;
        });
}

// A property while it is read, where it will stay.
struct OpenProperty {
    PropertyDefinition* definition = nullptr;
    int line = 0;
    bool hasKind = false;
    std::vector<std::string> constants;
    std::vector<int> memberLines;
};

class DefinitionReader final : public xml::XmlReceiver {
public:
    explicit DefinitionReader(std::string_view fileName) : _fileName(fileName) {}

    bool begin(std::string_view name, std::span<const xml::XmlAttribute> attributes, int line) override {
        if (_skipped > 0) {
            ++_skipped;
            return true;
        }
        const DefinitionElement element = definitionElement(name);
        if (_stack.empty()) {
            if (element != PropertySet && element != QuantitySet) return refuse(name);
        } else if (!standsIn(element, _stack.back()) || (kindOf(element) && _open.back().hasKind)) {
            _skipped = 1;
            return true;
        }
        beginElement(element, attributes, line);
        _stack.push_back(element);
        _takesText = hasText(element);
        _text.clear();
        return true;
    }

    void text(std::string_view piece) override {
        if (_takesText && _skipped == 0) _text += piece;
    }

    void end() override {
        if (_skipped > 0) {
            --_skipped;
            return;
        }
        const DefinitionElement element = _stack.back();
        _stack.pop_back();
        endElement(element);
        _takesText = false;
    }

    /// What was expected in place of the document's element; empty unless begin() has ended the reading.
    const std::string& refusal() const noexcept { return _refusal; }

    DefinitionReading take() {
        SetDefinition& set = _result.definition;
        if (set.name.empty()) {
            set.name = _fileName;
            fault(0, definitionfaults::nameMissing, "the set has no name", "it gets that of the file");
        } else if (!_fileName.empty() && set.name != _fileName) {
            fault(0, definitionfaults::nameDiffers,
                  "the set in the file of " + shown(_fileName) + " is named " + shown(set.name),
                  "it is found by the name of the file");
        }
        addConditions(_typeValue, _typeValueLine, set.classes, _result.faults);
        dropRepeated(set.classes, std::identity(), [&](const std::string& name, std::size_t) {
            fault(_classesLine, definitionfaults::classRepeated, shown(name) + " is named twice", "counted once");
        });
        dropRepeatedProperties(set.properties, _propertyLines);
        std::ranges::stable_sort(_result.faults, {}, &DefinitionFault::line);
        return std::move(_result);
    }

private:
    bool refuse(std::string_view name) {
        _refusal = "expected ";
        _refusal.append(words::propertySet).append(" or ").append(words::quantitySet);
        _refusal.append(", found ").append(shown(name));
        return false;
    }

    void beginElement(DefinitionElement element, std::span<const xml::XmlAttribute> attributes, int line) {
        _line = line;
        switch (element) {
        case PropertySet:
        case QuantitySet:
            beginSet(element, attributes);
            break;
        case Classes:
            _classesLine = line;
            break;
        case Property:
        case Quantity:
            beginProperty();
            break;
        case DataType:
            readType(attributeOf(attributes, words::type));
            break;
        case UnitType:
            readUnit(attributeOf(attributes, words::type));
            break;
        case Enumeration:
            definition().enumeration = cleaned(attributeOf(attributes, words::listName));
            break;
        default:
            if (const auto kind = kindOf(element)) beginKind(element, *kind, attributes);
            break;
        }
    }

    void beginSet(DefinitionElement element, std::span<const xml::XmlAttribute> attributes) {
        _result.definition.isQuantitySet = element == QuantitySet;
        const auto written = std::ranges::find(attributes, words::templateType, &xml::XmlAttribute::name);
        if (written == attributes.end()) return;
        if (const auto type = templateType(trimmed(written->value)))
            _result.definition.templateType = *type;
        else
            fault(_line, definitionfaults::templateUnknown, "the template type " + shown(written->value), "left out");
    }

    void beginProperty() {
        // Siblings come one after the other, so that it stays where it is until it ends.
        std::vector<PropertyDefinition>& siblings =
            _open.empty() ? _result.definition.properties : definition().members;
        siblings.emplace_back().kind = PropertyKind::Any;
        OpenProperty& open = _open.emplace_back();
        open.definition = &siblings.back();
        open.line = _line;
    }

    void beginKind(DefinitionElement element, PropertyKind kind, std::span<const xml::XmlAttribute> attributes) {
        definition().kind = kind;
        _open.back().hasKind = true;
        switch (element) {
        case Simple:
            fault(_line, definitionfaults::simpleProperty, ofProperty("the kind"), "read as a single value");
            break;
        case Reference:
            if (std::ranges::find(attributes, words::referenceType, &xml::XmlAttribute::name) != attributes.end())
                readType(attributeOf(attributes, words::referenceType));
            break;
        case Complex:
            definition().usageName = cleaned(attributeOf(attributes, words::listName));
            break;
        default:
            break;
        }
    }

    void endElement(DefinitionElement element) {
        switch (element) {
        case Name:
            endName();
            break;
        case ClassName:
            addClasses(_text, _line, _result.definition.classes, _result.faults);
            break;
        case TypeValue:
            _typeValue = _text;
            _typeValueLine = _line;
            break;
        case Method:
            if (std::string method = cleaned(_text); !method.empty())
                _result.definition.methods.push_back(std::move(method));
            break;
        case QuantityType:
            readQuantityKind();
            break;
        case Enumerator:
            addEnumerator(definition().enumerators);
            break;
        case Property:
        case Quantity:
            endProperty();
            break;
        default:
            break;
        }
    }

    void endName() {
        switch (_stack.back()) {
        case Constant:
            addEnumerator(_open.back().constants);
            break;
        case Property:
        case Quantity:
            definition().name = cleaned(_text);
            break;
        default:
            // The first is the one that counts.
            if (_result.definition.name.empty()) _result.definition.name = cleaned(_text);
            break;
        }
    }

    void readType(std::string_view written) {
        std::string type = cleaned(written);
        if (type.empty())
            return fault(_line, definitionfaults::typeMissing, ofProperty("the type of values"), "any will do");
        (_stack.back() == DefiningValue ? definition().definingType : definition().valueType) = std::move(type);
    }

    void readUnit(std::string_view written) {
        constexpr std::string_view ownUnit = "USERDEFINED", leftOpen = "UNSPECIFIED";
        std::string unit = text::asciiUpper(cleaned(written));
        if (unit.empty() || unit == leftOpen)
            return fault(_line, definitionfaults::unitMissing, ofProperty("the unit type " + shown(written)),
                         "none is taken");
        if (unit == ownUnit) return;
        (_stack.back() == DefiningValue ? definition().definingUnitType : definition().unitType) = std::move(unit);
    }

    void readQuantityKind() {
        const std::string written = cleaned(_text);
        const auto kind = quantityKind(written);
        _open.back().hasKind = kind.has_value() || !written.empty();
        if (kind)
            definition().kind = *kind;
        else if (!written.empty())
            fault(_line, definitionfaults::kindMissing, ofProperty("the kind " + shown(written)), "any will do");
    }

    void addEnumerator(std::vector<std::string>& enumerators) {
        std::string enumerator = cleaned(_text);
        if (enumerator.size() > 1 && enumerator.ends_with('.')) {
            const std::string written = enumerator;
            while (enumerator.size() > 1 && enumerator.ends_with('.')) enumerator.pop_back();
            fault(_line, definitionfaults::strayPoint, shown(written), "read as " + shown(enumerator));
        }
        if (enumerator.empty())
            return fault(_line, definitionfaults::nameMissing, ofProperty("an enumerator"), "left out");
        enumerators.push_back(std::move(enumerator));
    }

    void endProperty() {
        OpenProperty open = std::move(_open.back());
        _open.pop_back();
        PropertyDefinition& property = *open.definition;
        if (property.name.empty()) {
            fault(open.line, definitionfaults::nameMissing, "a property without a name", "left out");
            (_open.empty() ? _result.definition.properties : definition().members).pop_back();
            return;
        }
        if (!open.hasKind)
            fault(open.line, definitionfaults::kindMissing, "property " + shown(property.name) + " has no kind",
                  "any will do");
        if (property.kind == PropertyKind::Enumerated) endEnumeration(open);
        dropRepeatedProperties(property.members, open.memberLines);
        (_open.empty() ? _propertyLines : _open.back().memberLines).push_back(open.line);
    }

    void endEnumeration(OpenProperty& open) {
        PropertyDefinition& property = *open.definition;
        const std::string which = "the enumeration of property " + shown(property.name);
        const auto tellRepeated = [&](const std::string& name, std::size_t) {
            fault(open.line, definitionfaults::enumeratorRepeated, shown(name) + " is twice in " + which,
                  "counted once");
        };
        dropRepeated(property.enumerators, std::identity(), tellRepeated);
        if (open.constants == property.enumerators) {
            if (property.enumerators.empty())
                fault(open.line, definitionfaults::enumeratorsMissing, which + " is empty", "any value will do");
            return;
        }
        dropRepeated(open.constants, std::identity(), tellRepeated);
        if (property.enumerators.empty()) {
            fault(open.line, definitionfaults::enumeratorsElsewhere, which + " is empty", "its constants are taken");
            property.enumerators = std::move(open.constants);
        } else if (!open.constants.empty()) {
            uniteEnumerators(open, which);
        }
    }

    void uniteEnumerators(OpenProperty& open, const std::string& which) {
        std::vector<std::string>& listed = open.definition->enumerators;
        const auto missing = [](const std::vector<std::string>& some, const std::vector<std::string>& others) {
            const std::unordered_set<std::string_view> known(others.begin(), others.end());
            std::vector<std::string> result;
            std::ranges::copy_if(some, std::back_inserter(result),
                                 [&](const auto& each) { return !known.contains(each); });
            return result;
        };
        const std::vector<std::string> unlisted = missing(open.constants, listed),
                                       extra = missing(listed, open.constants);
        if (unlisted.empty() && extra.empty()) return;
        std::string found = "in " + which;
        if (!unlisted.empty()) found.append(" the list lacks ").append(enumeratorsShown(unlisted));
        if (!unlisted.empty() && !extra.empty()) found += " and";
        if (!extra.empty()) found.append(" the constants lack ").append(enumeratorsShown(extra));
        fault(open.line, definitionfaults::enumeratorsDiffer, std::move(found), "all are taken");
        listed.insert(listed.end(), unlisted.begin(), unlisted.end());
    }

    static std::string enumeratorsShown(std::span<const std::string> enumerators) {
        constexpr std::size_t most = 5;
        const std::size_t count = std::min(most, enumerators.size());
        std::string result = text::joined(enumerators.first(count), ", ", [](const auto& each) { return shown(each); });
        if (count < enumerators.size())
            result.append(" and ").append(std::to_string(enumerators.size() - count)).append(" more");
        return result;
    }

    void dropRepeatedProperties(std::vector<PropertyDefinition>& properties, const std::vector<int>& lines) {
        dropRepeated(properties, &PropertyDefinition::name, [&](const std::string& name, std::size_t position) {
            fault(lines[position], definitionfaults::propertyRepeated, "property " + shown(name) + " is defined twice",
                  "the first counts");
        });
    }

    // A text without blanks around it.
    std::string cleaned(std::string_view written) {
        const std::string_view clean = trimmed(written);
        if (clean.size() != written.size() && !clean.empty())
            fault(_line, definitionfaults::blanks, shown(written), "read as " + shown(clean));
        return std::string(clean);
    }

    PropertyDefinition& definition() { return *_open.back().definition; }
    std::string ofProperty(std::string what) const {
        return what.append(" of property ").append(shown(_open.back().definition->name));
    }
    void fault(int line, std::string_view kind, std::string found, std::string_view becomes) {
        addFault(_result.faults, line, kind, std::move(found), becomes);
    }

    std::string_view _fileName;
    DefinitionReading _result;
    std::string _refusal;

    std::vector<DefinitionElement> _stack;
    // Elements open below one that means nothing.
    int _skipped = 0;
    int _line = 0;
    bool _takesText = false;
    std::string _text;

    std::vector<OpenProperty> _open;
    std::vector<int> _propertyLines;
    int _classesLine = 0;
    int _typeValueLine = 0;
    std::string _typeValue;
};

// "Pset_WallCommon" for a path that ends with its file.
std::string_view stem(std::string_view path) {
    constexpr std::string_view ending = ".xml";
    path.remove_prefix(path.find_last_of("/\\") + 1);
    if (path.ends_with(ending)) path.remove_suffix(ending.size());
    return path;
}

sdai::Problem unreadable(const std::string& path, int line, const std::string& reason) {
    sdai::Problem problem;
    problem.line = static_cast<std::uint64_t>(line);
    problem.code = "definition-unreadable";
    problem.message = path;
    if (line > 0) problem.message.append(":").append(std::to_string(line));
    problem.message.append(": ").append(reason);
    return problem;
}

} // namespace

tl::expected<DefinitionReading, sdai::Problem> readDefinition(xml::XmlEvents& events, std::string_view bytes,
                                                              const std::string& path) {
    if (bytes.size() > mostDefinitionBytes) return tl::unexpected(unreadable(path, 0, "is larger than 4 MB"));
    DefinitionReader reader(stem(path));
    if (const auto end = events.read(bytes, reader); !end) {
        const auto& [line, column, message] = end.error();
        return tl::unexpected(unreadable(path, line, message.empty() ? reader.refusal() : message));
    }
    return reader.take();
}

tl::expected<DefinitionReading, sdai::Problem> readDefinition(std::string_view bytes, const std::string& path) {
    xml::XmlEvents events;
    return readDefinition(events, bytes, path);
}

} // namespace velkor
