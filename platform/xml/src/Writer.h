/// Writes a document as text.
#pragma once

#include <libxml/tree.h>
#include <string>

namespace velkor::xml {

struct Layout {
    std::string lineSeparator = "\n";
    /// What one level is indented by; empty leaves the white space of the document as it is.
    std::string indentation;
};

/// The text in UTF-8; empty when elements nest deeper than can be read again.
std::string written(xmlDocPtr document, const Layout& layout);

} // namespace velkor::xml
