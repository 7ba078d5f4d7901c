/// Reads an XML document with libxml2, safely.
#pragma once

#include "DocumentStore.h"
#include "velkor/xml/QORIXMLErrorHandler.h"

#include <optional>
#include <string>
#include <string_view>

namespace velkor::xml {

/// What is to be read: a file, or bytes that are there already.
struct Input {
    /// Path of the file, and what messages call the input.
    QORUnicodeString systemId;
    std::optional<std::string_view> bytes;
};

/// The document; null when it cannot be read or is not well-formed, which the handler, or without one
/// the exchange log, has been told.
DocumentPointer parse(const Input& input, const QORIXMLErrorHandler_var& handler);

} // namespace velkor::xml
