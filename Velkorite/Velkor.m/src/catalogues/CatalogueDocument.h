/// The XML documents of the property catalogues.
#pragma once

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORUnicodeString.h"
#include "velkor/xml/QORIDOMDocument.h"

namespace velkor::library {

/// Reads a file. The parser's result, which is passed on as it is; what it has to say is in the host's exchange
/// log.
[[nodiscard]] HRESULT readCatalogue(const QORUnicodeString& path, QORIDOMDocument_var& document);

} // namespace velkor::library
