/// The document type declaration of a document.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/xml/QORIDOMNode.h"

class VELKOR_PLATFORM_API QORIDOMDocumentType : public QORIDOMNode {
    VELKOR_DECLARE_CLASS

public:
    virtual HRESULT GetName(QORUnicodeString& name) = 0;         ///< Name of the root element that it demands.
    virtual HRESULT GetPublicId(QORUnicodeString& publicId) = 0; ///< Public identifier; empty without one.
    virtual HRESULT GetSystemId(QORUnicodeString& systemId) = 0; ///< System identifier; empty without one.
};
