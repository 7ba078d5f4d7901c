/// Makes documents.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"
#include "velkor/xml/DomTypes.h"

class VELKOR_PLATFORM_API QORIDOMImplementation : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// A document with a document element. The namespace may be empty, the document type, whose
    /// declaration is copied, too. E_INVALIDARG and an empty document for a name that is none, and for a
    /// prefix without namespace.
    virtual HRESULT CreateDocument(const QORUnicodeString& uri, const QORUnicodeString& qualifiedName,
                                   const QORIDOMDocumentType_var& type, QORIDOMDocument_var& document) = 0;
};
