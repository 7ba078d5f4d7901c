/// Makes traversals of a document; an interface of documents.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/PlatformExport.h"
#include "velkor/xml/DomTypes.h"

class VELKOR_PLATFORM_API QORIDOMDocumentTraversal : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// An iterator over `root`, which is a node of the document, and everything below it. `whatToShow`
    /// is a combination of QORDOMNodeFilterType::Shown; nodes that it leaves out are never shown to
    /// the filter, which may be empty. Entity references are always expanded. Attributes are no part
    /// of the tree.
    virtual HRESULT CreateNodeIterator(const QORIDOMNode_var& root, unsigned int whatToShow,
                                       const QORIDOMNodeFilter_var& filter, bool expandEntityReferences,
                                       QORIDOMNodeIterator_var& iterator) = 0;
};
