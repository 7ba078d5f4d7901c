#include "velkor/classification/Correspondences.h"

#include "QORIFCDXXMLServices.h"

#include <algorithm>

namespace velkor {

namespace {

std::string attribute(const QORIDOMElement_var& element, const char* name) {
    QORUnicodeString value;
    element->GetAttribute(name, value);
    return std::string(value.utf8());
}

// Elements of a tag in the document or below an element.
template <class Node>
std::vector<QORIDOMElement_var> elements(const Node& node, const char* tag) {
    std::vector<QORIDOMElement_var> result;
    QORIDOMNodeList_var nodes;
    unsigned int length = 0;
    if (FAILED(node->GetElementsByTagName(tag, nodes)) || FAILED(nodes->GetLength(length))) return result;
    for (unsigned int i = 0; i < length; ++i) {
        QORIDOMNode_var item;
        if (SUCCEEDED(nodes->Item(i, item)) && !item.IsNull()) result.emplace_back(item);
    }
    return result;
}

Correspondences::Entry entryOf(const QORIDOMElement_var& side) {
    Correspondences::Entry entry;
    QORIDOMNode_var parent;
    side->GetParentNode(parent);
    if (const QORIDOMElement_var neutral = parent; !neutral.IsNull()) entry.neutralId = attribute(neutral, "Name");
    entry.ifcType = attribute(side, "Name");
    QORUnicodeString priority;
    side->GetAttribute("Priority", priority);
    priority.ConvertToNum(entry.priority);
    // Only the first condition counts, and one without attribute is none.
    if (const auto conditions = elements(side, "Condition"); !conditions.empty()) {
        Correspondences::Condition condition{attribute(conditions.front(), "Attribute"),
                                             attribute(conditions.front(), "Value")};
        if (!condition.attribute.empty()) entry.condition = std::move(condition);
    }
    side->GetLineNumber(entry.line);
    return entry;
}

bool holds(const Correspondences::Entry& entry, const knowledge::Attributes& properties) {
    if (!entry.condition) return true;
    const std::string name = upperCase(entry.condition->attribute);
    const auto property =
        std::ranges::find_if(properties, [&](const auto& candidate) { return upperCase(candidate.first) == name; });
    return property != properties.end() && property->second == entry.condition->value;
}

} // namespace

std::string upperCase(const std::string& text) {
    QORUnicodeString upper{std::string_view(text)};
    upper.ToUpper();
    return std::string(upper.utf8());
}

std::optional<Correspondences> Correspondences::read(const std::string& path) {
    QORIDOMDocument_var document;
    if (FAILED(QORIFCDXXMLServices::GetDOMDocument(QORUnicodeString(std::string_view(path)), document))) return {};
    Correspondences result;
    for (const QORIDOMElement_var& side : elements(document, "IFC")) {
        Entry entry = entryOf(side);
        if (entry.condition) result._conditionNames.insert(upperCase(entry.condition->attribute));
        result._entries[upperCase(entry.ifcType)].push_back(std::move(entry));
    }
    for (auto& [type, entries] : result._entries) std::ranges::stable_sort(entries, std::greater<>(), &Entry::priority);
    return result;
}

const Correspondences::Entry* Correspondences::deciding(const std::string& ifcType,
                                                        const knowledge::Attributes& properties) const {
    const auto entries = _entries.find(upperCase(ifcType));
    if (entries == _entries.end()) return nullptr;
    const auto chosen =
        std::ranges::find_if(entries->second, [&](const Entry& entry) { return holds(entry, properties); });
    return chosen == entries->second.end() ? nullptr : &*chosen;
}

bool Correspondences::knows(const std::string& ifcType) const {
    return _entries.contains(upperCase(ifcType));
}

} // namespace velkor
