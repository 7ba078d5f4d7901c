/// Which entry of a document of correspondences decides.
#pragma once

#include "AECDocument.h"
#include "foundation/Results.h"

#include "velkor/objectmodeler/QORBaseUnknown_var.h"

namespace velkor::library {

/// The document that all instances of the services share.
AECDocument& aecDocument();

/// All elements of a tag with a name in the shared document, which is read when it has not been; null when there is
/// none.
[[nodiscard]] HRESULT collect(const char* tag, const QORUnicodeString& name, AECDocument::Entry*& candidates);

/// The elements as candidates, in the order in which they are tried: by priority.
std::vector<AECDocument::Candidate>& inOrder(AECDocument::Entry& entry);
int priorityOf(const QORIDOMElement_var& candidate);
/// A candidate's first condition.
const AECDocument::Condition& conditionOf(AECDocument::Candidate& candidate);
/// The name by which an object is asked for what a condition wants.
const QORUnicodeString& wantedName(const AECDocument::Condition& condition, AECSide side);

/// The first candidate whose condition holds: for a type with a value, for an object with knowledge attributes, for an
/// exchange object. E_UNEXPECTED when there is none.
[[nodiscard]] HRESULT chooseForValue(AECDocument::Entry& entry, const QORUnicodeString& value,
                                     AECDocument::Candidate*& chosen);
[[nodiscard]] HRESULT chooseForPLMObject(AECDocument::Entry& entry, const QORBaseUnknown_var& object,
                                         AECDocument::Candidate*& chosen);
/// S_FALSE when the shared document has no candidate for the type of the object.
[[nodiscard]] HRESULT chooseForIFCObject(const QORBaseUnknown_var& object, AECDocument::Candidate*& chosen);

/// Name of the neutral identifier that a candidate belongs to.
[[nodiscard]] HRESULT neutralIdOf(AECDocument::Candidate& candidate, QORUnicodeString& name);

/// Hands an answer out that is looked for once; of a failure the output is left alone.
template <class Find>
[[nodiscard]] HRESULT remembered(std::optional<AECDocument::Answer>& answer, QORUnicodeString& output, Find find) {
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

} // namespace velkor::library
