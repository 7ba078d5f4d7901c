#include "CatalogueDocument.h"

#include "foundation/Results.h"
#include "velkor/xml/QORIXMLDOMDocumentBuilder.h"
#include "velkor/xml/QORIXMLInputSource.h"
#include "xml/ParserOptions.h"

HRESULT velkor::library::readCatalogue(const QORUnicodeString& path, QORIDOMDocument_var& document) {
    QORIXMLSAX2Factory_var factory;
    RETURN_IF_FAILED(CreateQORIXMLSAX2Factory(CLSID_XML4C5_SAX, factory));
    QORIXMLDOMDocumentBuilder_var builder;
    RETURN_IF_FAILED(CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, builder));
    QORIXMLInputSource_var source;
    RETURN_IF_FAILED(factory->CreateInputSource(path, "myPublicId", source));
    const ParallelLists options(parserOptions);
    return builder->Parse(source, document, options.first, options.second, QORIXMLEntityResolver_var(),
                          QORIXMLErrorHandler_var());
}
