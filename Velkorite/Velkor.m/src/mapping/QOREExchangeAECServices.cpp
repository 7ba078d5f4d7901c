#include "QOREExchangeAECServices.h"

#include "AECDocument.h"
#include "QORIFCDXXMLServices.h"
#include "ReportedResult.h"
#include "velkor/knowledge/QORIExchangeObject.h"
#include "velkor/knowledge/QORIInstance.h"
#include "velkor/knowledge/QORIPLMNavOccurrence.h"
#include "velkor/knowledge/QORIVleObject.h"
#include "velkor/objectmodeler/Assertion.h"
#include "VelkorComponents.h"

#include <cstdio>
#include <new>
#include <optional>

VELKOR_IMPLEMENT_CLASS(QOREExchangeAECServices, QORIExchangeAECServices, "QORnull", "Velkorite")
VELKOR_IMPLEMENT_BOA(VELKOR_API, QORIExchangeAECServices, QOREExchangeAECServices)

namespace {

using velkor::library::AECDocument;

// Every unit that deals with resource paths has its own pair; the search that reads them is shared.
[[maybe_unused]] const QORUnicodeString pathListSeparator = ";";
[[maybe_unused]] const QORUnicodeString folderSeparator = "\\";

constexpr const char* neutralTag = "NeutralID";
constexpr const char* ifcTag = "IFC";
constexpr const char* plmTag = "NORVEL";
constexpr const char* defaultAnswer = "DEFAULT";

AECDocument aecDocument;

HRESULT GetAECDocument() {
    return aecDocument.isLoaded() ? S_OK : aecDocument.load();
}

HRESULT attribute(const QORIDOMElement_var& element, const char* name, QORUnicodeString& value) {
    return REPORTED(element->GetAttribute(name, value));
}

int priority(const QORBaseUnknown_var& candidate) {
    const QORIDOMElement_var element = candidate;
    QORUnicodeString text;
    int value = 0;
    if (SUCCEEDED(element->GetAttribute("Priority", text))) text.ConvertToNum(value);
    return value;
}

/// The highest first.
int CompareByPriority(const QORBaseUnknown_var& a, const QORBaseUnknown_var& b) {
    if (a.IsNull() || b.IsNull()) return -1;
    const int one = priority(a), other = priority(b);
    return one > other ? -1 : one < other ? 1 : 0;
}

AECDocument::Condition readCondition(const QORIDOMElement_var& candidate) {
    AECDocument::Condition read{S_OK, {}, {}, {}};
    QORIDOMElement_var condition;
    read.result = velkor::library::firstElement(candidate, "Condition", condition);
    if (FAILED(read.result) || condition.IsNull()) return read;
    read.result = attribute(condition, "Attribute", read.attribute);
    if (FAILED(read.result) || read.attribute.IsEmpty()) return read;
    read.result = attribute(condition, "Value", read.value);
    read.upperValue = read.value;
    read.upperValue.ToUpper();
    return read;
}

/// The test of a candidate's first condition, if it has one: 0 when it holds, 1 when it does not.
template <class Holds>
HRESULT checkCondition(AECDocument::Candidate& candidate, Holds holds) {
    if (!candidate.condition) candidate.condition = readCondition(candidate.element);
    const AECDocument::Condition& condition = *candidate.condition;
    if (FAILED(condition.result)) return REPORTED(condition.result);
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
        if (readable.IsNull()) return REPORTED(E_UNEXPECTED);
        QORUnicodeString read;
        if (FAILED(QORVleObjectAttrReadServices::GetValueAsString(readable, condition.attribute, read))) return S_FALSE;
        return condition.value == read ? S_OK : S_FALSE;
    });
}

HRESULT CheckConditionOnUserProperties(AECDocument::Candidate& candidate, const QORListValQORUnicodeString& names,
                                       const QORListValQORUnicodeString& values) {
    return checkCondition(candidate, [&](const AECDocument::Condition& condition) {
        QORUnicodeString name = condition.attribute;
        name.ToUpper();
        const int position = names.Locate(name);
        return position != 0 && position <= values.Size() && condition.value == values[position] ? S_OK : S_FALSE;
    });
}

/// All elements of a tag with a name; null when there is none.
HRESULT collect(const char* tag, const QORUnicodeString& name, AECDocument::Entry*& candidates) {
    candidates = nullptr;
    HRESULT result = GetAECDocument();
    if (FAILED(result)) return REPORTED(result);
    result = aecDocument.entry(tag, name, candidates);
    return REPORTED(result);
}

void sortCandidates(AECDocument::Entry& entry) {
    QORListValQORBaseUnknown_var sorted;
    for (const QORIDOMElement_var& element : entry.elements) sorted.Append(element);
    sorted.QuickSort(CompareByPriority);
    std::vector<AECDocument::Candidate> candidates;
    for (const QORBaseUnknown_var& element : sorted) candidates.push_back({element, {}, {}, {}});
    entry.candidates = std::move(candidates);
}

/// The first candidate, by priority, whose test gives 0; E_UNEXPECTED when there is none.
template <class Test>
HRESULT choose(AECDocument::Entry& entry, Test test, AECDocument::Candidate*& chosen) {
    if (entry.candidates.empty()) sortCandidates(entry);
    for (AECDocument::Candidate& candidate : entry.candidates) {
        if (test(candidate) != S_OK) continue;
        chosen = &candidate;
        return S_OK;
    }
    return REPORTED(E_UNEXPECTED);
}

/// Hands an answer out that is looked for once; of a failure the output is left alone.
template <class Find>
HRESULT remembered(std::optional<AECDocument::Answer>& answer, QORUnicodeString& output, Find find) {
    if (!answer) {
        AECDocument::Answer found{S_OK, {}};
        found.result = find(found.text);
        answer = std::move(found);
    } else if (FAILED(answer->result)) {
        REPORTED(answer->result);
    }
    if (SUCCEEDED(answer->result)) output = answer->text;
    return answer->result;
}

/// Name of the neutral identifier that an element belongs to.
HRESULT nameOfParent(const QORIDOMElement_var& element, QORUnicodeString& name) {
    QORIDOMNode_var parent;
    const HRESULT result = element->GetParentNode(parent);
    if (FAILED(result)) return REPORTED(result);
    const QORIDOMElement_var neutral = parent;
    if (neutral.IsNull()) return REPORTED(E_UNEXPECTED);
    return attribute(neutral, "Name", name);
}

/// The first child with a name, from the second node on: the first is never looked at. Empty when there is
/// none; `count` gets the number of child nodes.
HRESULT childNamed(const QORIDOMNode_var& parent, const char* name, QORIDOMElement_var& found, unsigned int& count) {
    QORIDOMNodeList_var children;
    HRESULT result = parent->GetChildNodes(children);
    if (FAILED(result)) return REPORTED(result);
    if (children.IsNull()) return REPORTED(E_UNEXPECTED);
    result = children->GetLength(count);
    if (FAILED(result)) return REPORTED(result);
    for (unsigned int i = 1; i < count; ++i) {
        QORIDOMNode_var child;
        result = children->Item(i, child);
        if (FAILED(result)) return REPORTED(result);
        if (child.IsNull()) return REPORTED(E_UNEXPECTED);
        QORUnicodeString text;
        result = child->GetNodeName(text);
        if (FAILED(result)) return REPORTED(result);
        if (text != name) continue;
        found = child;
        return found.IsNull() ? REPORTED(E_UNEXPECTED) : S_OK;
    }
    return S_OK;
}

HRESULT neutralIdOf(AECDocument::Candidate& candidate, QORUnicodeString& name) {
    return remembered(candidate.neutralId, name,
                      [&](QORUnicodeString& text) { return nameOfParent(candidate.element, text); });
}

/// Name of the PLM side beside an IFC side.
HRESULT plmTypeOf(AECDocument::Candidate& candidate, QORUnicodeString& name) {
    return remembered(candidate.plmType, name, [&](QORUnicodeString& text) {
        QORIDOMNode_var parent;
        HRESULT result = candidate.element->GetParentNode(parent);
        if (FAILED(result)) return REPORTED(result);
        if (parent.IsNull()) return REPORTED(E_UNEXPECTED);
        QORIDOMElement_var system;
        unsigned int count = 0;
        result = childNamed(parent, plmTag, system, count);
        if (FAILED(result)) return result;
        if (count < 2 || system.IsNull()) return REPORTED(E_FAIL);
        return attribute(system, "Name", text);
    });
}

/// The entry of a neutral identifier, of which the first element counts; S_FALSE when the document has none.
HRESULT findNeutral(const QORString& neutralId, AECDocument::Entry*& neutral) {
    const HRESULT result = collect(neutralTag, neutralId.CastToCharPtr(), neutral);
    return FAILED(result) ? result : neutral == nullptr ? S_FALSE : S_OK;
}

/// The side of a neutral identifier that a system knows.
HRESULT findSystem(const AECDocument::Entry& neutral, const char* tag, QORIDOMElement_var& system) {
    unsigned int count = 0;
    const HRESULT result = childNamed(neutral.elements.front(), tag, system, count);
    if (FAILED(result)) return result;
    return system.IsNull() ? REPORTED(E_UNEXPECTED) : S_OK;
}

HRESULT GetSystemTypeName(const QORString& neutralId, const char* tag,
                          std::optional<AECDocument::Answer> AECDocument::Entry::*known, QORUnicodeString& name) {
    AECDocument::Entry* neutral = nullptr;
    const HRESULT result = findNeutral(neutralId, neutral);
    if (result != S_OK) return result;
    return remembered(neutral->*known, name, [&](QORUnicodeString& text) {
        QORIDOMElement_var system;
        const HRESULT step = findSystem(*neutral, tag, system);
        return FAILED(step) ? step : attribute(system, "Name", text);
    });
}

HRESULT GetSystemValuation(const QORString& neutralId, const char* tag, QORUnicodeString& name,
                           QORUnicodeString& value) {
    name = QORUnicodeString();
    value = QORUnicodeString();
    AECDocument::Entry* neutral = nullptr;
    HRESULT result = findNeutral(neutralId, neutral);
    if (result != S_OK) return result;
    QORIDOMElement_var system, valuation;
    result = findSystem(*neutral, tag, system);
    if (FAILED(result)) return result;
    unsigned int count = 0;
    result = childNamed(system, "Valuate", valuation, count);
    if (FAILED(result) || valuation.IsNull()) return result;
    result = attribute(valuation, "Attribute", name);
    return FAILED(result) ? result : attribute(valuation, "Value", value);
}

/// The child at a place; E_UNEXPECTED when there is none.
HRESULT childAt(const QORIDOMNode_var& parent, unsigned int index, QORIDOMNode_var& child) {
    QORIDOMNodeList_var children;
    HRESULT result = parent->GetChildNodes(children);
    if (FAILED(result)) return REPORTED(result);
    if (children.IsNull()) return REPORTED(E_UNEXPECTED);
    result = children->Item(index, child);
    if (FAILED(result)) return REPORTED(result);
    return child.IsNull() ? REPORTED(E_UNEXPECTED) : S_OK;
}

} // namespace

// No exception leaves these operations.

HRESULT QOREExchangeAECServices::LoadAECResource() try { return aecDocument.load(); } catch (const std::bad_alloc&) {
    return REPORTED(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetPLMTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oPLMType) try {
    return GetSystemTypeName(iNeutralID, plmTag, &AECDocument::Entry::plmName, oPLMType);
} catch (const std::bad_alloc&) {
    return REPORTED(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetPLMValuationFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oAttribute,
                                                              QORUnicodeString& oValue) try {
    return GetSystemValuation(iNeutralID, plmTag, oAttribute, oValue);
} catch (const std::bad_alloc&) {
    return REPORTED(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetIFCTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oIFCType) try {
    return GetSystemTypeName(iNeutralID, ifcTag, &AECDocument::Entry::ifcName, oIFCType);
} catch (const std::bad_alloc&) {
    return REPORTED(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetNeutralIDFromPLMObject(const QORBaseUnknown_var& iObject,
                                                           QORUnicodeString& oNeutralID) try {
    oNeutralID = defaultAnswer;
    const QORIPLMNavOccurrence_var occurrence = iObject;
    if (occurrence.IsNull()) return REPORTED(E_UNEXPECTED);
    QORBaseUnknown_var related;
    HRESULT result = occurrence->GetRelatedObject(related);
    if (FAILED(result)) return REPORTED(result);
    const QORIInstance_var instance = related;
    if (instance.IsNull()) return REPORTED(E_UNEXPECTED);
    QORIType_var type;
    result = instance->GetType(type);
    if (FAILED(result)) return REPORTED(result);
    if (type.IsNull()) return REPORTED(E_UNEXPECTED);
    QORUnicodeString typeName;
    result = type->GetName(typeName);
    if (FAILED(result)) return REPORTED(result);

    // Hosts read these two lines.
    std::printf("### GOT TYPE [%s]\n", typeName.ConvertToChar());
    AECDocument::Entry* candidates = nullptr;
    result = collect(plmTag, typeName, candidates);
    std::printf("### GOT NB NODES = %d\n", candidates != nullptr ? static_cast<int>(candidates->elements.size()) : 0);
    if (FAILED(result) || candidates == nullptr) return result;
    AECDocument::Candidate* chosen = nullptr;
    result = choose(
        *candidates, [&](AECDocument::Candidate& candidate) { return CheckConditionOnObject(candidate, iObject); },
        chosen);
    return FAILED(result) ? result : neutralIdOf(*chosen, oNeutralID);
} catch (const std::bad_alloc&) {
    return REPORTED(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetNeutralIDFromIFCObject(const QORBaseUnknown_var& iObject,
                                                           QORUnicodeString& oNeutralID) try {
    oNeutralID = defaultAnswer;
    const QORIExchangeObject_var object = iObject;
    if (object.IsNull()) return REPORTED(E_UNEXPECTED);
    QORUnicodeString identifier, name, ifcType, description, fileName;
    int number = 0;
    HRESULT result = object->GetDescription(identifier, name, ifcType, description, fileName, number);
    if (FAILED(result)) return REPORTED(result);
    AECDocument::Entry* candidates = nullptr;
    result = collect(ifcTag, ifcType, candidates);
    if (FAILED(result) || candidates == nullptr) return result;

    const QORIExchangeUserProperties_var properties = iObject;
    if (properties.IsNull()) return REPORTED(E_UNEXPECTED);
    QORListValQORUnicodeString names, values, types, units;
    result = properties->GetUserProperties(names, values, types, units);
    if (FAILED(result)) return REPORTED(result);
    AECDocument::Candidate* chosen = nullptr;
    result = choose(
        *candidates,
        [&](AECDocument::Candidate& candidate) { return CheckConditionOnUserProperties(candidate, names, values); },
        chosen);
    return FAILED(result) ? result : neutralIdOf(*chosen, oNeutralID);
} catch (const std::bad_alloc&) {
    return REPORTED(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetPLMTypeFromIFCType(const QORUnicodeString& iIFCType,
                                                       const QORUnicodeString& iConditionValue,
                                                       QORUnicodeString& oPLMType) try {
    oPLMType = defaultAnswer;
    AECDocument::Entry* candidates = nullptr;
    HRESULT result = collect(ifcTag, iIFCType, candidates);
    if (FAILED(result) || candidates == nullptr) return result;
    QORUnicodeString upperValue = iConditionValue;
    upperValue.ToUpper();
    AECDocument::Candidate* chosen = nullptr;
    result = choose(
        *candidates, [&](AECDocument::Candidate& candidate) { return CheckConditionOnValue(candidate, upperValue); },
        chosen);
    return FAILED(result) ? result : plmTypeOf(*chosen, oPLMType);
} catch (const std::bad_alloc&) {
    return REPORTED(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetObjectTypeFromNeutralID(const QORString& iNeutralID,
                                                            QORUnicodeString& oObjectType) try {
    AECDocument::Entry* neutral = nullptr;
    HRESULT result = findNeutral(iNeutralID, neutral);
    if (result != S_OK) return result;
    // By place alone: the second element of the entry's first element, in an indented file.
    QORIDOMNode_var first, second;
    result = childAt(neutral->elements.front(), 1, first);
    if (FAILED(result)) return result;
    result = childAt(first, 3, second);
    if (FAILED(result)) return result;
    const QORIDOMElement_var valuation = second;
    if (valuation.IsNull()) return S_FALSE;
    QORUnicodeString name, value;
    result = attribute(valuation, "Attribute", name);
    if (FAILED(result)) return result;
    result = attribute(valuation, "Value", value);
    if (FAILED(result)) return result;
    if (name != "ObjectType") return S_FALSE;
    oObjectType = value;
    return S_OK;
} catch (const std::bad_alloc&) {
    return REPORTED(E_FAIL);
}
