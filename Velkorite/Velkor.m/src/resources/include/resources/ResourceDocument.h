/// How the components read the one document that they work with.
#pragma once

#include "ResourceKinds.h"

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/xml/QORIDOMDocument.h"

namespace velkor::library {

/// The document of a kind of which one file counts, in place of what `document` held: that is empty after a failure,
/// which has been reported.
[[nodiscard]] HRESULT readResource(const ResourceKind& kind, QORIDOMDocument_var& document);

} // namespace velkor::library
