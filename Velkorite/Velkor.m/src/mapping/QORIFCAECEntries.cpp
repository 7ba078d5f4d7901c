#include "QORIFCAECEntries.h"

#include "AECChoice.h"
#include "xml/XmlNodes.h"

#include <new>

namespace {

using namespace velkor::library;
namespace names = velkor::names::aec;
using velkor::AECSide;

std::string text(const QORUnicodeString& text) {
    return std::string(text.utf8());
}

// What cannot be read of a side is left empty.
const velkor::AECEntry& described(AECDocument::Candidate& candidate, AECSide side) {
    if (candidate.described) return *candidate.described;
    velkor::AECEntry entry;
    QORIDOMNode_var parent;
    if (SUCCEEDED(candidate.element->GetParentNode(parent))) {
        const QORIDOMElement_var neutral = parent;
        if (!neutral.IsNull()) entry.neutralId = text(attribute(neutral, names::name));
    }
    entry.type = text(attribute(candidate.element, names::name));
    entry.priority = priorityOf(candidate.element);
    const AECDocument::Condition& condition = conditionOf(candidate);
    if (!condition.attribute.IsEmpty())
        entry.condition = {text(condition.attribute), text(wantedName(condition, side)), text(condition.value)};
    candidate.element->GetLineNumber(entry.line);
    return candidate.described.emplace(std::move(entry));
}

} // namespace

// No exception leaves these operations.

HRESULT QORIFCAECEntries::GetDecidingEntry(const QORBaseUnknown_var& iObject, const velkor::AECEntry*& oEntry) try {
    oEntry = nullptr;
    AECDocument::Candidate* chosen = nullptr;
    if (const HRESULT result = chooseForIFCObject(iObject, chosen); result != S_OK) return result;
    QORUnicodeString neutralId;
    RETURN_IF_FAILED(neutralIdOf(*chosen, neutralId));
    oEntry = &described(*chosen, AECSide::IFC);
    return S_OK;
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}

HRESULT QORIFCAECEntries::GetEntries(const QORIDOMDocument_var& iDocument, AECSide iSide,
                                     velkor::AECEntries& oEntries) try {
    oEntries.clear();
    AECDocument other(iDocument);
    AECDocument& document = iDocument.IsNull() ? aecDocument() : other;
    if (!document.isLoaded()) RETURN_IF_FAILED(document.load());
    AECDocument::ByName* types = nullptr;
    RETURN_IF_FAILED(document.entries(tagOf(iSide), types));
    for (auto& [type, entry] : *types) {
        if (type.IsEmpty()) continue;
        std::vector<velkor::AECEntry>& ofType = oEntries[text(type)];
        for (AECDocument::Candidate& candidate : inOrder(entry)) ofType.push_back(described(candidate, iSide));
    }
    return S_OK;
} catch (const std::bad_alloc&) {
    return reported(E_FAIL);
}
