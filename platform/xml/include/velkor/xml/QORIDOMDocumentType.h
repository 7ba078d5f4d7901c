/// The document type declaration of a document.
#pragma once

#include "velkor/PlatformExport.h"
#include "velkor/xml/QORIDOMNode.h"

class VELKOR_PLATFORM_API QORIDOMDocumentType : public QORIDOMNode {
    VELKOR_DECLARE_CLASS

public:
    virtual HRESULT GetName(QORUnicodeString& name) = 0;
    virtual HRESULT GetPublicId(QORUnicodeString& publicId) = 0;
    virtual HRESULT GetSystemId(QORUnicodeString& systemId) = 0;
};
