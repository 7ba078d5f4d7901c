/// What a traversal asks, node by node, whether to hand the node out. Hosts implement it.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/PlatformExport.h"
#include "velkor/xml/DomTypes.h"

/// {D1B6E0C4-7B0E-4C57-9A86-3C3E1C0B9B57}
VELKOR_PLATFORM_API extern const IID IID_QORIDOMNodeFilter;

/// Names for what a filter answers and asks for.
struct QORDOMNodeFilterType {
    /// Answers of a filter. A node iterator passes over a node alone, not over what is below it,
    /// whether it is skipped or rejected.
    enum Answer : unsigned int { FILTER_ACCEPT = 0, FILTER_REJECT = 1, FILTER_SKIP = 2 };
    /// Kinds of node that a traversal shows, one bit each.
    enum Shown : unsigned int {
        SHOW_ALL = 0xFFFFFFFFU,
        SHOW_ELEMENT = 0x1,
        SHOW_ATTRIBUTE = 0x2,
        SHOW_TEXT = 0x4,
        SHOW_CDATA_SECTION = 0x8,
        SHOW_ENTITY_REFERENCE = 0x10,
        SHOW_PROCESSING_INSTRUCTION = 0x40,
        SHOW_COMMENT = 0x80,
        SHOW_DOCUMENT = 0x100,
        SHOW_DOCUMENT_TYPE = 0x200,
    };
};

class VELKOR_PLATFORM_API QORIDOMNodeFilter : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// A failure ends the step of the traversal, which passes it on.
    virtual HRESULT acceptNode(const QORIDOMNode_var& node, unsigned int& answer) = 0;
};
