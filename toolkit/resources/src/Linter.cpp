#include "Linter.h"

#include "ResourceKeys.h"
#include "velkor/text/NearestNames.h"
#include "velkor/text/QORUnicodeString.h"

#include <algorithm>
#include <utility>

namespace velkor::lint {

namespace {

constexpr std::string_view schemaInstance = "http://www.w3.org/2001/XMLSchema-instance";

// Attributes that any XML document may have.
bool isOfXml(const XmlElement::Attribute& attribute) {
    return attribute.name.starts_with("xml:") || attribute.namespaceUri == schemaInstance;
}

bool isSetName(std::string_view name) {
    const std::string upperName = toUpper(name);
    return upperName.starts_with("PSET_") || upperName.starts_with("QTO_");
}

// The longer a name, the more letters may be wrong.
std::size_t mostWrong(std::string_view name) {
    return name.size() < 4 ? 0 : name.size() < 6 ? 1 : 2;
}

std::string releaseText(const Dictionaries::Releases& releases) {
    return releases.size() == 1 ? releases.front() : "any release";
}

} // namespace

Judgement Linter::judge(const std::string& path, const XmlReading& reading) {
    const XmlElement& root = *reading.root;
    _path = path;
    _document = reading.document;
    _bytes = reading.bytes;
    _judgement = {};
    judgeStructure(root, false);
    judgeEntries(root);
    if (_judgement.entries == 0 && _judgement.findings.empty())
        warn(root.line, "no-entries", "the document has no entries");
    std::ranges::stable_sort(_judgement.findings, {}, &Finding::line);
    _document = {};
    _bytes = {};
    return std::exchange(_judgement, {});
}

void Linter::error(int line, const char* code, std::string message, std::string hint) {
    _judgement.findings.push_back({Severity::Error, line, code, std::move(message), std::move(hint)});
}

void Linter::warn(int line, const char* code, std::string message, std::string hint) {
    _judgement.findings.push_back({Severity::Warning, line, code, std::move(message), std::move(hint)});
}

bool Linter::judgeEntity(int line, const std::string& name, const Dictionaries::Releases& releases) {
    if (name.empty() || isSetName(name)) return false;
    if (!_dictionaries.entities(name, releases).empty()) return true;
    std::string hint;
    const auto elsewhere = _dictionaries.entities(name, Dictionaries::all());
    if (!elsewhere.empty())
        hint = std::string(elsewhere.front()->schema().name()) + " has it";
    else
        hint = didYouMean(_dictionaries.entityNames(releases), name);
    error(line, "unknown-entity", "expected an entity of " + releaseText(releases) + ", found " + quoted(name),
          std::move(hint));
    return false;
}

void Linter::judgeProperty(int line, const std::string& entity, const std::string& property,
                           const Dictionaries::Releases& releases) {
    if (property.empty()) return;
    std::vector<std::string_view> known;
    for (const sdai::EntityDefinition* definition : _dictionaries.entities(entity, releases)) {
        if (definition->attribute(property) != nullptr) return;
        for (const sdai::AttributeSlot& slot : definition->attributes()) known.push_back(slot.attribute->name());
    }
    std::string hint = didYouMean(known, property);
    if (hint.empty()) return;
    warn(line, "unknown-property", quoted(entity) + " has no attribute " + quoted(property), std::move(hint));
}

void Linter::judgeEnumerator(int line, const std::string& entity, const std::string& attribute,
                             const std::string& value, const Dictionaries::Releases& releases, bool doesCaseCount) {
    std::vector<std::string_view> known;
    std::string_view type;
    for (const sdai::EntityDefinition* definition : _dictionaries.entities(entity, releases)) {
        const sdai::Attribute* found = definition->attribute(attribute);
        const sdai::EnumerationType* enumeration =
            found != nullptr ? found->type().resolved().asEnumeration() : nullptr;
        if (enumeration == nullptr) continue;
        known.insert(known.end(), enumeration->values().begin(), enumeration->values().end());
        type = enumeration->definedType().name();
    }
    const std::string wanted = doesCaseCount ? value : toUpper(value);
    if (known.empty() || value.empty() || std::ranges::find(known, wanted) != known.end()) return;
    const bool isOneInUpperCase = std::ranges::find(known, toUpper(value)) != known.end();
    std::string hint =
        isOneInUpperCase ? "write " + quoted(toUpper(value)) + ", letter case counts" : didYouMean(known, value);
    warn(line, "unknown-enumerator",
         "expected an enumerator of " + std::string(type) + " for " + quoted(attribute) + " of " + quoted(entity) +
             ", found " + quoted(value),
         std::move(hint));
}

void Linter::judgePlace(const XmlElement& element) {
    if (element.isExamined() || element.parent == nullptr) return;
    error(element.line, "first-node",
          element.name + " is the first node of its " + element.parent->name + ", which is never examined",
          "put it on a line of its own");
}

// Elements below one that is not read where it stands are not read either, and one finding says so.
void Linter::judgeStructure(const XmlElement& element, bool isInside) {
    const ElementRule* known = rule(element.name);
    if (known == nullptr) return judgeUnknown(element, isInside);
    if (!isInPlace(element, *known)) {
        const std::string places = text::joined(known->parents, " or ", [](const char* parent) {
            return std::string(*parent == '\0' ? "the document" : parent);
        });
        error(element.line, "misplaced-element",
              element.name + " is read only " + (known->atAnyDepth ? "inside " : "as a child of ") + places);
        return;
    }
    if (_format.root != nullptr && !_format.isOpen && !element.namespaceUri.empty()) {
        error(element.line, "namespace", element.name + " is in a namespace, where it is not looked for",
              "remove the declaration of " + quoted(element.namespaceUri));
        return;
    }
    judgeAttributes(element, *known);
    for (const XmlElement& child : element.children) judgeStructure(child, true);
}

void Linter::judgeUnknown(const XmlElement& element, bool isInside) {
    std::vector<std::string_view> names;
    for (const ElementRule& candidate : _format.elements) names.emplace_back(candidate.name);
    std::string hint = didYouMean(names, element.name);
    const bool isRoot = element.parent == nullptr;
    const bool mayHold = _format.root == nullptr && !isInside;
    const bool isPassedOver = _format.isOpen || isRoot || (mayHold && holdsKnown(element));
    if (isRoot && _format.root != nullptr && !_format.isOpen) {
        error(element.line, "unknown-element",
              std::string("expected ") + _format.root + " as the root element, found " + element.name, hint);
        return;
    }
    if (!isPassedOver || !(hint.empty() || (isRoot && mayHold))) {
        warn(element.line, "unknown-element", element.name + " is no element that is read", std::move(hint));
        if (!_format.isOpen) return;
    }
    for (const XmlElement& child : element.children) judgeStructure(child, isInside);
}

void Linter::judgeAttributes(const XmlElement& element, const ElementRule& known) {
    std::vector<std::string_view> names(known.required.begin(), known.required.end());
    names.insert(names.end(), known.optional.begin(), known.optional.end());
    for (const XmlElement::Attribute& attribute : element.attributes) {
        if (isOfXml(attribute) || std::ranges::find(names, attribute.name) != names.end()) continue;
        std::string hint = didYouMean(names, attribute.name);
        if (_format.isOpen && hint.empty()) continue;
        warn(element.line, "unknown-attribute",
             quoted(attribute.name) + " is no attribute of " + element.name + " that is read", std::move(hint));
    }
    for (const char* name : known.required) {
        if (element.attribute(name).empty())
            error(element.line, "missing-value", element.name + " has no " + quoted(name));
    }
}

bool Linter::isInPlace(const XmlElement& element, const ElementRule& known) const {
    if (known.parents.empty()) return true;
    const XmlElement* parent = element.parent;
    const auto isParent = [&](const char* name) { return parent == nullptr ? *name == '\0' : parent->name == name; };
    for (;; parent = parent->parent) {
        if (std::ranges::any_of(known.parents, isParent)) return true;
        if (parent == nullptr || !known.atAnyDepth) return false;
    }
}

bool Linter::holdsKnown(const XmlElement& element) const {
    return std::ranges::any_of(_format.elements,
                               [&](const ElementRule& known) { return element.contains(known.name); });
}

const ElementRule* Linter::rule(std::string_view name) const {
    const auto found = std::ranges::find(_format.elements, name, &ElementRule::name);
    return found == _format.elements.end() ? nullptr : &*found;
}

std::string inLine(int line) {
    return "in line " + std::to_string(line);
}

unsigned int keyHash(const std::vector<std::string_view>& parts) {
    QORUnicodeString key;
    for (const std::string_view part : parts) key += QORUnicodeString(part);
    return mappingKeyHash(std::move(key));
}

std::string keyText(const std::vector<std::string_view>& parts) {
    std::string result;
    for (const std::string_view part : parts) result += toUpper(part) + '\n';
    return result;
}

std::string didYouMean(const std::vector<std::string_view>& known, std::string_view name) {
    const std::string meant = text::likelyMeant(known, name, mostWrong(name));
    return meant.empty() ? std::string() : "did you mean " + quoted(meant) + '?';
}

} // namespace velkor::lint
