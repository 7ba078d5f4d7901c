/// Walks nodes in the order of the document. Changes of the document meanwhile are allowed: when the
/// node it stands at is taken out, the walk goes on from the node before.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/PlatformExport.h"
#include "velkor/xml/DomTypes.h"

class VELKOR_PLATFORM_API QORIDOMNodeIterator : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// The next node that is shown and accepted; empty, with S_OK, behind the last. A filter's failure
    /// is passed on and leaves the iterator where it stood.
    virtual HRESULT NextNode(QORIDOMNode_var& node) = 0;
    virtual HRESULT PreviousNode(QORIDOMNode_var& node) = 0; ///< Goes back to the node before; null at the beginning.
    virtual HRESULT GetRoot(QORIDOMNode_var& root) = 0;      ///< The node that the walk began at.
};
