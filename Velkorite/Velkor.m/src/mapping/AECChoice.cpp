#include "AECChoice.h"

#include "velkor/containers/QORListVal.h"
#include "velkor/knowledge/QORIExchangeObject.h"
#include "velkor/knowledge/QORIVleObject.h"
#include "xml/XmlNodes.h"

namespace velkor::library {

namespace {

namespace names = velkor::names::aec;

AECDocument sharedDocument;

/// The highest first.
int CompareByPriority(const QORBaseUnknown_var& a, const QORBaseUnknown_var& b) {
    if (a.IsNull() || b.IsNull()) return -1;
    const int one = priorityOf(a), other = priorityOf(b);
    return one > other ? -1 : one < other ? 1 : 0;
}

AECDocument::Condition readCondition(const QORIDOMElement_var& candidate) {
    AECDocument::Condition read{S_OK, {}, {}, {}, {}};
    QORIDOMElement_var condition;
    read.result = firstElement(candidate, names::condition, condition);
    if (FAILED(read.result) || condition.IsNull()) return read;
    read.result = attribute(condition, names::attribute, read.attribute);
    if (FAILED(read.result) || read.attribute.IsEmpty()) return read;
    read.upperAttribute = read.attribute;
    read.upperAttribute.ToUpper();
    read.result = attribute(condition, names::value, read.value);
    read.upperValue = read.value;
    read.upperValue.ToUpper();
    return read;
}

/// The test of a candidate's first condition, if it has one: 0 when it holds, 1 when it does not.
template <class Holds>
HRESULT checkCondition(AECDocument::Candidate& candidate, Holds holds) {
    const AECDocument::Condition& condition = conditionOf(candidate);
    RETURN_IF_FAILED(reported(condition.result));
    return condition.attribute.IsEmpty() ? S_OK : holds(condition);
}

HRESULT CheckConditionOnValue(AECDocument::Candidate& candidate, const QORUnicodeString& upperGiven) {
    return checkCondition(candidate, [&](const AECDocument::Condition& condition) {
        return condition.upperValue == upperGiven ? S_OK : S_FALSE;
    });
}

HRESULT CheckConditionOnObject(AECDocument::Candidate& candidate, const QORBaseUnknown_var& object) {
    return checkCondition(candidate, [&](const AECDocument::Condition& condition) -> HRESULT {
        const QORIVleObject_var readable = object;
        if (readable.IsNull()) return reported(E_UNEXPECTED);
        QORUnicodeString read;
        const QORUnicodeString& name = wantedName(condition, AECSide::PLM);
        if (FAILED(QORVleObjectAttrReadServices::GetValueAsString(readable, name, read))) return S_FALSE;
        return condition.value == read ? S_OK : S_FALSE;
    });
}

HRESULT CheckConditionOnUserProperties(AECDocument::Candidate& candidate, const QORListValQORUnicodeString& names,
                                       const QORListValQORUnicodeString& values) {
    return checkCondition(candidate, [&](const AECDocument::Condition& condition) {
        const int position = names.Locate(wantedName(condition, AECSide::IFC));
        return position != 0 && position <= values.Size() && condition.value == values[position] ? S_OK : S_FALSE;
    });
}

/// The first candidate, by priority, whose test gives 0; E_UNEXPECTED when there is none.
template <class Test>
HRESULT choose(AECDocument::Entry& entry, Test test, AECDocument::Candidate*& chosen) {
    for (AECDocument::Candidate& candidate : inOrder(entry)) {
        if (test(candidate) != S_OK) continue;
        chosen = &candidate;
        return S_OK;
    }
    return reported(E_UNEXPECTED);
}

} // namespace

AECDocument& aecDocument() {
    return sharedDocument;
}

HRESULT collect(const char* tag, const QORUnicodeString& name, AECDocument::Entry*& candidates) {
    candidates = nullptr;
    if (!sharedDocument.isLoaded()) RETURN_IF_FAILED(reported(sharedDocument.load()));
    return reported(sharedDocument.entry(tag, name, candidates));
}

std::vector<AECDocument::Candidate>& inOrder(AECDocument::Entry& entry) {
    if (!entry.candidates.empty()) return entry.candidates;
    QORListValQORBaseUnknown_var sorted;
    for (const QORIDOMElement_var& element : entry.elements) sorted.Append(element);
    sorted.QuickSort(CompareByPriority);
    std::vector<AECDocument::Candidate> candidates;
    for (const QORBaseUnknown_var& element : sorted) candidates.push_back({element, {}, {}, {}, {}});
    entry.candidates = std::move(candidates);
    return entry.candidates;
}

int priorityOf(const QORIDOMElement_var& candidate) {
    int value = 0;
    attribute(candidate, names::priority).ConvertToNum(value);
    return value;
}

const AECDocument::Condition& conditionOf(AECDocument::Candidate& candidate) {
    if (!candidate.condition) candidate.condition = readCondition(candidate.element);
    return *candidate.condition;
}

const QORUnicodeString& wantedName(const AECDocument::Condition& condition, AECSide side) {
    return side == AECSide::IFC ? condition.upperAttribute : condition.attribute;
}

HRESULT chooseForValue(AECDocument::Entry& entry, const QORUnicodeString& value, AECDocument::Candidate*& chosen) {
    QORUnicodeString upperValue = value;
    upperValue.ToUpper();
    return choose(
        entry, [&](AECDocument::Candidate& candidate) { return CheckConditionOnValue(candidate, upperValue); }, chosen);
}

HRESULT chooseForPLMObject(AECDocument::Entry& entry, const QORBaseUnknown_var& object,
                           AECDocument::Candidate*& chosen) {
    return choose(
        entry, [&](AECDocument::Candidate& candidate) { return CheckConditionOnObject(candidate, object); }, chosen);
}

HRESULT chooseForIFCObject(const QORBaseUnknown_var& object, AECDocument::Candidate*& chosen) {
    const QORIExchangeObject_var described = object;
    if (described.IsNull()) return reported(E_UNEXPECTED);
    QORUnicodeString identifier, name, ifcType, description, fileName;
    int number = 0;
    RETURN_IF_FAILED(reported(described->GetDescription(identifier, name, ifcType, description, fileName, number)));
    AECDocument::Entry* candidates = nullptr;
    RETURN_IF_FAILED(collect(tagOf(AECSide::IFC), ifcType, candidates));
    if (candidates == nullptr) return S_FALSE;

    const QORIExchangeUserProperties_var properties = object;
    if (properties.IsNull()) return reported(E_UNEXPECTED);
    QORListValQORUnicodeString names, values, types, units;
    RETURN_IF_FAILED(reported(properties->GetUserProperties(names, values, types, units)));
    const auto test = [&](AECDocument::Candidate& candidate) {
        return CheckConditionOnUserProperties(candidate, names, values);
    };
    return choose(*candidates, test, chosen);
}

HRESULT neutralIdOf(AECDocument::Candidate& candidate, QORUnicodeString& name) {
    return remembered(candidate.neutralId, name, [&](QORUnicodeString& text) -> HRESULT {
        QORIDOMNode_var parent;
        RETURN_IF_FAILED(reported(candidate.element->GetParentNode(parent)));
        QORIDOMElement_var neutral;
        RETURN_IF_FAILED(asElement(parent, neutral));
        return attribute(neutral, names::name, text);
    });
}

} // namespace velkor::library
