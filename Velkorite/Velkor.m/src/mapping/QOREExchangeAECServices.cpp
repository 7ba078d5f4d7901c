#include "mapping/QOREExchangeAECServices.h"

#include "AECDocument.h"
#include "foundation/Results.h"
#include "velkor/knowledge/QORIExchangeObject.h"
#include "velkor/knowledge/QORIInstance.h"
#include "velkor/knowledge/QORIPLMNavOccurrence.h"
#include "velkor/knowledge/QORIVleObject.h"
#include "VelkorComponents.h"
#include "xml/XmlNodes.h"

#include <cstdio>
#include <new>
#include <optional>

VELKOR_IMPLEMENT_CLASS(QOREExchangeAECServices, QORIExchangeAECServices, "QORnull", "Velkorite")
VELKOR_IMPLEMENT_BOA(VELKOR_API, QORIExchangeAECServices, QOREExchangeAECServices)

namespace {

using namespace velkor::library;

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

int priority(const QORBaseUnknown_var& candidate) {
    int value = 0;
    attribute(candidate, "Priority").ConvertToNum(value);
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
    read.result = firstElement(candidate, "Condition", condition);
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
    RETURN_IF_FAILED(reported(GetAECDocument()));
    return reported(aecDocument.entry(tag, name, candidates));
}

void sortCandidates(AECDocument::Entry& entry) {
    QORListValQORBaseUnknown_var sorted;
    for (const QORIDOMElement_var& element : entry.elements) sorted.Append(element);
    sorted.QuickSort(CompareByPriority);
    std::vector<AECDocument::Candidate> candidates;
    for (const QORBaseUnknown_var& element : sorted) candidates.push_back({element, {}, {}, {}});
    entry.candidates = std::move(candidates);
}

/// Answers with the first candidate, by priority, whose test gives 0; E_UNEXPECTED when there is none.
template <class Test>
HRESULT choose(AECDocument::Entry& entry, Test test, HRESULT (*answer)(AECDocument::Candidate&, QORUnicodeString&),
               QORUnicodeString& output) {
    if (entry.candidates.empty()) sortCandidates(entry);
    for (AECDocument::Candidate& candidate : entry.candidates) {
        if (test(candidate) == S_OK) return answer(candidate, output);
    }
    return reported(E_UNEXPECTED);
}

/// Hands an answer out that is looked for once; of a failure the output is left alone.
template <class Find>
HRESULT remembered(std::optional<AECDocument::Answer>& answer, QORUnicodeString& output, Find find) {
    if (!answer) {
        AECDocument::Answer found{S_OK, {}};
        found.result = find(found.text);
        answer = std::move(found);
    } else {
        RETURN_IF_FAILED(reported(answer->result));
    }
    if (SUCCEEDED(answer->result)) output = answer->text;
    return answer->result;
}

/// Name of the neutral identifier that an element belongs to.
HRESULT nameOfParent(const QORIDOMElement_var& element, QORUnicodeString& name) {
    QORIDOMNode_var parent;
    RETURN_IF_FAILED(reported(element->GetParentNode(parent)));
    QORIDOMElement_var neutral;
    RETURN_IF_FAILED(asElement(parent, neutral));
    return attribute(neutral, "Name", name);
}

/// The first child with a name that counts; empty when there is none.
HRESULT childNamed(const QORIDOMNode_var& parent, const char* name, QORIDOMElement_var& found) {
    const NodeRange children = childrenBehindFirst(parent);
    RETURN_IF_FAILED(children.result());
    for (const ListedNode& child : children) {
        QORUnicodeString text;
        RETURN_IF_FAILED(nodeName(child, text));
        if (text == name) return asElement(child.node, found);
    }
    return S_OK;
}

HRESULT neutralIdOf(AECDocument::Candidate& candidate, QORUnicodeString& name) {
    return remembered(candidate.neutralId, name,
                      [&](QORUnicodeString& text) { return nameOfParent(candidate.element, text); });
}

/// Name of the PLM side beside an IFC side.
HRESULT plmTypeOf(AECDocument::Candidate& candidate, QORUnicodeString& name) {
    return remembered(candidate.plmType, name, [&](QORUnicodeString& text) -> HRESULT {
        QORIDOMNode_var parent;
        RETURN_IF_FAILED(reported(given(candidate.element->GetParentNode(parent), parent)));
        QORIDOMElement_var system;
        RETURN_IF_FAILED(childNamed(parent, plmTag, system));
        return system.IsNull() ? reported(E_FAIL) : attribute(system, "Name", text);
    });
}

/// The entry of a neutral identifier, of which the first element counts; S_FALSE when the document has none.
HRESULT findNeutral(const QORString& neutralId, AECDocument::Entry*& neutral) {
    RETURN_IF_FAILED(collect(neutralTag, neutralId.CastToCharPtr(), neutral));
    return neutral == nullptr ? S_FALSE : S_OK;
}

/// The side of a neutral identifier that a system knows.
HRESULT findSystem(const AECDocument::Entry& neutral, const char* tag, QORIDOMElement_var& system) {
    RETURN_IF_FAILED(childNamed(neutral.elements.front(), tag, system));
    return reported(given(S_OK, system));
}

HRESULT GetSystemTypeName(const QORString& neutralId, const char* tag,
                          std::optional<AECDocument::Answer> AECDocument::Entry::*known, QORUnicodeString& name) {
    AECDocument::Entry* neutral = nullptr;
    const HRESULT result = findNeutral(neutralId, neutral);
    if (result != S_OK) return result;
    return remembered(neutral->*known, name, [&](QORUnicodeString& text) -> HRESULT {
        QORIDOMElement_var system;
        RETURN_IF_FAILED(findSystem(*neutral, tag, system));
        return attribute(system, "Name", text);
    });
}

HRESULT GetSystemValuation(const QORString& neutralId, const char* tag, QORUnicodeString& name,
                           QORUnicodeString& value) {
    name = QORUnicodeString();
    value = QORUnicodeString();
    AECDocument::Entry* neutral = nullptr;
    if (const HRESULT result = findNeutral(neutralId, neutral); result != S_OK) return result;
    QORIDOMElement_var system, valuation;
    RETURN_IF_FAILED(findSystem(*neutral, tag, system));
    RETURN_IF_FAILED(childNamed(system, "Valuate", valuation));
    if (valuation.IsNull()) return S_OK;
    RETURN_IF_FAILED(attribute(valuation, "Attribute", name));
    return attribute(valuation, "Value", value);
}

/// The child at a place; E_UNEXPECTED when there is none.
HRESULT childAt(const QORIDOMNode_var& parent, unsigned int index, QORIDOMNode_var& child) {
    const NodeRange children = childrenOf(parent);
    RETURN_IF_FAILED(children.result());
    const ListedNode listed = children[index];
    child = listed.node;
    return reported(listed.result);
}

/// Name of the type of the instance that an occurrence stands for.
HRESULT typeNameOf(const QORIPLMNavOccurrence_var& occurrence, QORUnicodeString& name) {
    if (occurrence.IsNull()) return reported(E_UNEXPECTED);
    QORBaseUnknown_var related;
    RETURN_IF_FAILED(reported(occurrence->GetRelatedObject(related)));
    const QORIInstance_var instance = related;
    if (instance.IsNull()) return reported(E_UNEXPECTED);
    QORIType_var type;
    RETURN_IF_FAILED(reported(given(instance->GetType(type), type)));
    return reported(type->GetName(name));
}

} // namespace

// No exception leaves these operations.

HRESULT QOREExchangeAECServices::LoadAECResource() try { return aecDocument.load(); } catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetPLMTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oPLMType) try {
    return GetSystemTypeName(iNeutralID, plmTag, &AECDocument::Entry::plmName, oPLMType);
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetPLMValuationFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oAttribute,
                                                              QORUnicodeString& oValue) try {
    return GetSystemValuation(iNeutralID, plmTag, oAttribute, oValue);
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetIFCTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oIFCType) try {
    return GetSystemTypeName(iNeutralID, ifcTag, &AECDocument::Entry::ifcName, oIFCType);
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetNeutralIDFromPLMObject(const QORBaseUnknown_var& iObject,
                                                           QORUnicodeString& oNeutralID) try {
    oNeutralID = defaultAnswer;
    QORUnicodeString typeName;
    RETURN_IF_FAILED(typeNameOf(iObject, typeName));
    // Hosts read these two lines.
    std::printf("### GOT TYPE [%s]\n", typeName.ConvertToChar());
    AECDocument::Entry* candidates = nullptr;
    const HRESULT result = collect(plmTag, typeName, candidates);
    std::printf("### GOT NB NODES = %d\n", candidates != nullptr ? static_cast<int>(candidates->elements.size()) : 0);
    if (FAILED(result) || candidates == nullptr) return result;
    const auto test = [&](AECDocument::Candidate& candidate) { return CheckConditionOnObject(candidate, iObject); };
    return choose(*candidates, test, neutralIdOf, oNeutralID);
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetNeutralIDFromIFCObject(const QORBaseUnknown_var& iObject,
                                                           QORUnicodeString& oNeutralID) try {
    oNeutralID = defaultAnswer;
    const QORIExchangeObject_var object = iObject;
    if (object.IsNull()) return reported(E_UNEXPECTED);
    QORUnicodeString identifier, name, ifcType, description, fileName;
    int number = 0;
    RETURN_IF_FAILED(reported(object->GetDescription(identifier, name, ifcType, description, fileName, number)));
    AECDocument::Entry* candidates = nullptr;
    RETURN_IF_FAILED(collect(ifcTag, ifcType, candidates));
    if (candidates == nullptr) return S_OK;

    const QORIExchangeUserProperties_var properties = iObject;
    if (properties.IsNull()) return reported(E_UNEXPECTED);
    QORListValQORUnicodeString names, values, types, units;
    RETURN_IF_FAILED(reported(properties->GetUserProperties(names, values, types, units)));
    const auto test = [&](AECDocument::Candidate& candidate) {
        return CheckConditionOnUserProperties(candidate, names, values);
    };
    return choose(*candidates, test, neutralIdOf, oNeutralID);
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetPLMTypeFromIFCType(const QORUnicodeString& iIFCType,
                                                       const QORUnicodeString& iConditionValue,
                                                       QORUnicodeString& oPLMType) try {
    oPLMType = defaultAnswer;
    AECDocument::Entry* candidates = nullptr;
    RETURN_IF_FAILED(collect(ifcTag, iIFCType, candidates));
    if (candidates == nullptr) return S_OK;
    QORUnicodeString upperValue = iConditionValue;
    upperValue.ToUpper();
    const auto test = [&](AECDocument::Candidate& candidate) { return CheckConditionOnValue(candidate, upperValue); };
    return choose(*candidates, test, plmTypeOf, oPLMType);
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetObjectTypeFromNeutralID(const QORString& iNeutralID,
                                                            QORUnicodeString& oObjectType) try {
    AECDocument::Entry* neutral = nullptr;
    if (const HRESULT result = findNeutral(iNeutralID, neutral); result != S_OK) return result;
    // By place alone: the second element of the entry's first element, in an indented file.
    QORIDOMNode_var first, second;
    RETURN_IF_FAILED(childAt(neutral->elements.front(), 1, first));
    RETURN_IF_FAILED(childAt(first, 3, second));
    const QORIDOMElement_var valuation = second;
    if (valuation.IsNull()) return S_FALSE;
    QORUnicodeString name, value;
    RETURN_IF_FAILED(attribute(valuation, "Attribute", name));
    RETURN_IF_FAILED(attribute(valuation, "Value", value));
    if (name != "ObjectType") return S_FALSE;
    oObjectType = value;
    return S_OK;
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}
