/// A list of nodes, counted from 0.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/PlatformExport.h"
#include "velkor/xml/DomTypes.h"

class VELKOR_PLATFORM_API QORIDOMNodeList : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    virtual HRESULT GetLength(unsigned int& length) = 0; ///< Number of nodes.
    /// Empty, with S_OK, behind the last one.
    virtual HRESULT Item(unsigned int index, QORIDOMNode_var& node) = 0;
};
