/// XPath expressions, and the factory interface of documents.
#pragma once

#include "DocumentStore.h"

namespace velkor::xml {

/// The extension that gives a document its XPath factory, with one reference; null when there is none.
IUnknown* xpathFactoryOf(QORBaseUnknown& document, std::shared_ptr<DocumentStore> store);

} // namespace velkor::xml
