/// The XML documents of the property catalogues.
#pragma once

#include "velkor/objectmodeler/ResultCode.h"
#include "velkor/text/QORUnicodeString.h"
#include "velkor/xml/QORIDOMDocument.h"
#include "velkor/xml/QORIDOMNodeList.h"

namespace velkor::library {

/// Reads a file. The parser's result, which is passed on as it is; what it has to say is in the host's exchange
/// log.
HRESULT readCatalogue(const QORUnicodeString& path, QORIDOMDocument_var& document);

/// Calls `use` for each node of a list, in its order.
template <typename Use>
void forEachNode(const QORIDOMNodeList_var& nodes, Use use, unsigned int first = 0) {
    unsigned int length = 0;
    if (nodes.IsNull() || FAILED(nodes->GetLength(length))) return;
    for (unsigned int index = first; index < length; ++index) {
        QORIDOMNode_var node;
        if (SUCCEEDED(nodes->Item(index, node)) && !node.IsNull()) use(node);
    }
}

} // namespace velkor::library
