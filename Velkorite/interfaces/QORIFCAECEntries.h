/// The entries of the document of correspondences as the AEC services (QORIExchangeAECServices) try them, and the one
/// by which they decide about an object.
///
///     const velkor::AECEntry* entry = nullptr;
///     if (QORIFCAECEntries::GetDecidingEntry(object, entry) == S_OK) … entry->neutralId, entry->line
#pragma once

#include "VelkorExport.h"

#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/xml/DomTypes.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace velkor {

/// The two vocabularies that have a side in an entry.
enum class AECSide { IFC, PLM };

/// What an object must have for an entry to hold.
struct AECCondition {
    /// As the document writes it.
    std::string attribute;
    /// The name that is looked for among those that the object has: in upper case on the IFC side.
    std::string wantedName;
    /// Letter case included.
    std::string value;
};

/// One side of one entry.
struct AECEntry {
    /// Name of the neutral identifier; empty when the side stands in none.
    std::string neutralId;
    /// Name of the type, as the document writes it.
    std::string type;
    int priority = 0;
    /// Nothing when the entry holds for every object of its type.
    std::optional<AECCondition> condition;
    /// Where the side stands in the document.
    int line = 0;
};

/// By type in upper case: entries in the order in which they are tried. The first whose condition holds decides.
using AECEntries = std::map<std::string, std::vector<AECEntry>>;

} // namespace velkor

class VELKOR_API QORIFCAECEntries {
public:
    /// The IFC side that gives GetNeutralIDFromIFCObject its answer for an object. S_OK; S_FALSE when the document has
    /// none for the type; E_UNEXPECTED when it has, but no condition holds, and for what is no such object; failures
    /// to read the document. `oEntry` is null unless S_OK; it belongs to the services and goes when they read their
    /// document anew.
    static HRESULT GetDecidingEntry(const QORBaseUnknown_var& iObject, const velkor::AECEntry*& oEntry);

    /// All sides that have a type, in place of what `oEntries` held: those of a document, or of the services' own for
    /// an empty one. S_OK, or the failure to read the document.
    static HRESULT GetEntries(const QORIDOMDocument_var& iDocument, velkor::AECSide iSide,
                              velkor::AECEntries& oEntries);
};
