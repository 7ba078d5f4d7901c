/// The document of correspondences, and its elements by name.
#pragma once

#include "QORIFCAECEntries.h"
#include "ResourceNames.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORUnicodeString.h"
#include "velkor/xml/DomTypes.h"
#include "velkor/xml/QORIDOMElement.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace velkor::library {

class AECDocument {
public:
    /// What was found out about an element. It is kept, since the document does not change.
    struct Answer {
        HRESULT result;
        QORUnicodeString text;
    };
    /// The test that decides whether an element qualifies; it always does without an attribute.
    struct Condition {
        HRESULT result;
        QORUnicodeString attribute;
        QORUnicodeString upperAttribute;
        QORUnicodeString value;
        QORUnicodeString upperValue;
    };
    struct Candidate {
        QORIDOMElement_var element;
        std::optional<Condition> condition;
        std::optional<Answer> neutralId;
        std::optional<Answer> plmType;
        std::optional<AECEntry> described;
    };
    /// The elements of a tag and a name.
    struct Entry {
        /// In the order of the document.
        std::vector<QORIDOMElement_var> elements;
        /// By priority; empty until somebody asks for a choice.
        std::vector<Candidate> candidates;
        /// Names of the sides of the first element.
        std::optional<Answer> ifcName;
        std::optional<Answer> plmName;
    };

    using ByName = std::unordered_map<QORUnicodeString, Entry>;

    AECDocument() = default;
    explicit AECDocument(QORIDOMDocument_var document) : _document(std::move(document)) {}

    bool isLoaded() const noexcept { return !_document.IsNull(); }
    void clear();
    /// Finds the resource and reads it in place of what was there. A failure leaves nothing.
    [[nodiscard]] HRESULT load();

    /// Elements of a tag, letter case included, whose "Name" is the wanted one, letter case ignored; all of the tag
    /// for an empty name. Null when there is none. Valid until the document goes.
    [[nodiscard]] HRESULT entry(const char* tag, const QORUnicodeString& name, Entry*& found);
    /// Elements of a tag by "Name" in upper case.
    [[nodiscard]] HRESULT entries(const char* tag, ByName*& found);

private:
    struct Index {
        Entry all;
        ByName byName;
    };
    [[nodiscard]] HRESULT index(const char* tag, Index*& result);

    QORIDOMDocument_var _document;
    // Filled for a tag when it is first asked for.
    std::map<std::string, Index, std::less<>> _byTag;
};

/// Tag of a side.
constexpr const char* tagOf(AECSide side) {
    return side == AECSide::IFC ? names::aec::ifc : names::aec::plm;
}

/// The first element of a tag at or below an element; empty when there is none.
[[nodiscard]] HRESULT firstElement(const QORIDOMElement_var& root, const char* tag, QORIDOMElement_var& found);

} // namespace velkor::library
