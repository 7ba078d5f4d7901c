/// Lists of nodes.
#pragma once

#include "DocumentStore.h"

#include <functional>
#include <vector>

namespace velkor::xml {

using Nodes = std::vector<xmlNodePtr>;

/// A list that stays as it is.
QORIDOMNodeList_var fixedList(std::shared_ptr<DocumentStore> store, Nodes nodes);

/// A list that follows the document: `collect` is run anew after the document has changed.
QORIDOMNodeList_var liveList(std::shared_ptr<DocumentStore> store, std::function<Nodes()> collect);

/// The elements below a node with a qualified name; all for "*".
QORIDOMNodeList_var elementsByTagName(std::shared_ptr<DocumentStore> store, xmlNodePtr root, std::string name);

} // namespace velkor::xml
