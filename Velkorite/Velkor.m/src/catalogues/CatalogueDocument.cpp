#include "CatalogueDocument.h"

#include "velkor/text/QORListValQORUnicodeString.h"
#include "velkor/xml/QORIXMLDOMDocumentBuilder.h"
#include "velkor/xml/QORIXMLInputSource.h"

HRESULT velkor::library::readCatalogue(const QORUnicodeString& path, QORIDOMDocument_var& document) {
    QORIXMLSAX2Factory_var factory;
    HRESULT result = CreateQORIXMLSAX2Factory(CLSID_XML4C5_SAX, factory);
    if (FAILED(result)) return result;
    QORIXMLDOMDocumentBuilder_var builder;
    result = CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, builder);
    if (FAILED(result)) return result;
    QORIXMLInputSource_var source;
    result = factory->CreateInputSource(path, "myPublicId", source);
    if (FAILED(result)) return result;

    QORListValQORUnicodeString names, values;
    names.Append("QORDoValidation");
    values.Append("false");
    names.Append("QOREnableNameSpaces");
    values.Append("true");
    return builder->Parse(source, document, names, values, QORIXMLEntityResolver_var(), QORIXMLErrorHandler_var());
}
