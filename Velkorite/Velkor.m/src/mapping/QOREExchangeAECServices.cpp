#include "mapping/QOREExchangeAECServices.h"

#include "AECChoice.h"
#include "foundation/Results.h"
#include "velkor/knowledge/QORIInstance.h"
#include "velkor/knowledge/QORIPLMNavOccurrence.h"
#include "VelkorComponents.h"
#include "xml/XmlNodes.h"

#include <cstdio>
#include <new>
#include <optional>

VELKOR_IMPLEMENT_CLASS(QOREExchangeAECServices, QORIExchangeAECServices, "QORnull", "Velkorite")
VELKOR_IMPLEMENT_BOA(VELKOR_API, QORIExchangeAECServices, QOREExchangeAECServices)

namespace {

using namespace velkor::library;
namespace names = velkor::names::aec;

// Every unit that deals with resource paths has its own pair; the search that reads them is shared.
[[maybe_unused]] const QORUnicodeString pathListSeparator = ";";
[[maybe_unused]] const QORUnicodeString folderSeparator = "\\";

constexpr const char* defaultAnswer = "DEFAULT";

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

/// Name of the PLM side beside an IFC side.
HRESULT plmTypeOf(AECDocument::Candidate& candidate, QORUnicodeString& name) {
    return remembered(candidate.plmType, name, [&](QORUnicodeString& text) -> HRESULT {
        QORIDOMNode_var parent;
        RETURN_IF_FAILED(reported(given(candidate.element->GetParentNode(parent), parent)));
        QORIDOMElement_var system;
        RETURN_IF_FAILED(childNamed(parent, names::plm, system));
        return system.IsNull() ? reported(E_FAIL) : attribute(system, names::name, text);
    });
}

/// The entry of a neutral identifier, of which the first element counts; S_FALSE when the document has none.
HRESULT findNeutral(const QORString& neutralId, AECDocument::Entry*& neutral) {
    RETURN_IF_FAILED(collect(names::neutral, neutralId.CastToCharPtr(), neutral));
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
    if (const HRESULT result = findNeutral(neutralId, neutral); result != S_OK) return result;
    return remembered(neutral->*known, name, [&](QORUnicodeString& text) -> HRESULT {
        QORIDOMElement_var system;
        RETURN_IF_FAILED(findSystem(*neutral, tag, system));
        return attribute(system, names::name, text);
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
    RETURN_IF_FAILED(childNamed(system, names::valuate, valuation));
    if (valuation.IsNull()) return S_OK;
    RETURN_IF_FAILED(attribute(valuation, names::attribute, name));
    return attribute(valuation, names::value, value);
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

HRESULT QOREExchangeAECServices::LoadAECResource() try { return aecDocument().load(); } catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetPLMTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oPLMType) try {
    return GetSystemTypeName(iNeutralID, names::plm, &AECDocument::Entry::plmName, oPLMType);
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetPLMValuationFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oAttribute,
                                                              QORUnicodeString& oValue) try {
    return GetSystemValuation(iNeutralID, names::plm, oAttribute, oValue);
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetIFCTypeFromNeutralID(const QORString& iNeutralID, QORUnicodeString& oIFCType) try {
    return GetSystemTypeName(iNeutralID, names::ifc, &AECDocument::Entry::ifcName, oIFCType);
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
    const HRESULT result = collect(names::plm, typeName, candidates);
    std::printf("### GOT NB NODES = %d\n", candidates != nullptr ? static_cast<int>(candidates->elements.size()) : 0);
    if (FAILED(result) || candidates == nullptr) return result;
    AECDocument::Candidate* chosen = nullptr;
    RETURN_IF_FAILED(chooseForPLMObject(*candidates, iObject, chosen));
    return neutralIdOf(*chosen, oNeutralID);
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetNeutralIDFromIFCObject(const QORBaseUnknown_var& iObject,
                                                           QORUnicodeString& oNeutralID) try {
    oNeutralID = defaultAnswer;
    AECDocument::Candidate* chosen = nullptr;
    const HRESULT result = chooseForIFCObject(iObject, chosen);
    if (result != S_OK) return FAILED(result) ? result : S_OK;
    return neutralIdOf(*chosen, oNeutralID);
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QOREExchangeAECServices::GetPLMTypeFromIFCType(const QORUnicodeString& iIFCType,
                                                       const QORUnicodeString& iConditionValue,
                                                       QORUnicodeString& oPLMType) try {
    oPLMType = defaultAnswer;
    AECDocument::Entry* candidates = nullptr;
    RETURN_IF_FAILED(collect(names::ifc, iIFCType, candidates));
    if (candidates == nullptr) return S_OK;
    AECDocument::Candidate* chosen = nullptr;
    RETURN_IF_FAILED(chooseForValue(*candidates, iConditionValue, chosen));
    return plmTypeOf(*chosen, oPLMType);
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
    RETURN_IF_FAILED(attribute(valuation, names::attribute, name));
    RETURN_IF_FAILED(attribute(valuation, names::value, value));
    if (name != "ObjectType") return S_FALSE;
    oObjectType = value;
    return S_OK;
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}
