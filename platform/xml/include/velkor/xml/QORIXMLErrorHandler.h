/// What a parse asks of its caller. Hosts implement these.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/xml/QORIXMLInputSource.h"

/// One message of a parser. Line and column count from 1.
struct QORXMLMessage {
    QORUnicodeString text;
    QORUnicodeString systemId;
    int line = 0;
    int column = 0;
};

/// Gets the messages that go to the exchange log otherwise.
class VELKOR_PLATFORM_API QORIXMLErrorHandler : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    virtual HRESULT Warning(const QORXMLMessage& message) = 0; ///< Told of what is odd but harmless.
    /// After any of these the parse fails.
    virtual HRESULT Error(const QORXMLMessage& message) = 0;
};
using QORIXMLErrorHandler_var = QORInterface_var<QORIXMLErrorHandler>;

/// Finds external entities in hosts whose parser reads them. This platform's does not.
class VELKOR_PLATFORM_API QORIXMLEntityResolver : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// The source of an external entity.
    virtual HRESULT ResolveEntity(const QORUnicodeString& publicId, const QORUnicodeString& systemId,
                                  QORIXMLInputSource_var& source) = 0;
};
using QORIXMLEntityResolver_var = QORInterface_var<QORIXMLEntityResolver>;
