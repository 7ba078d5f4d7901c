/// Where a parser reads from, and the parser's factory of such sources.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/objectmodeler/QORBaseUnknown_var.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORUnicodeString.h"

#include <string_view>

class VELKOR_PLATFORM_API QORIXMLInputSource : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// Path of the file, or what messages call a text.
    virtual HRESULT GetSystemId(QORUnicodeString& systemId) = 0;
    virtual HRESULT GetPublicId(QORUnicodeString& publicId) = 0; ///< Public identifier; empty without one.
};
using QORIXMLInputSource_var = QORInterface_var<QORIXMLInputSource>;

/// Makes sources.
class VELKOR_PLATFORM_API QORIXMLSAX2Factory : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// A source that reads a file when it is parsed.
    virtual HRESULT CreateInputSource(const QORUnicodeString& path, const QORUnicodeString& publicId,
                                      QORIXMLInputSource_var& source) = 0;
    /// A source of bytes, which are copied.
    virtual HRESULT CreateInputSourceFromText(std::string_view bytes, const QORUnicodeString& systemId,
                                              QORIXMLInputSource_var& source) = 0;
};
using QORIXMLSAX2Factory_var = QORInterface_var<QORIXMLSAX2Factory>;

VELKOR_PLATFORM_API extern const IID CLSID_XML4C5_SAX;

/// E_INVALIDARG, and no factory, for an implementation that this platform does not have.
VELKOR_PLATFORM_API HRESULT CreateQORIXMLSAX2Factory(const IID& implementation, QORIXMLSAX2Factory_var& factory);
