/// Makes XPath 1.0 expressions over a document; an interface of documents.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORListValQORUnicodeString.h"
#include "velkor/xml/DomTypes.h"

/// An expression over one document. What is wrong with it goes to the exchange log.
class VELKOR_PLATFORM_API QORIXMLXPathExpression : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// Binds prefixes of the expression, the document need not declare them. E_INVALIDARG when the
    /// lists differ in size.
    virtual HRESULT SetNamespaces(const QORListValQORUnicodeString& prefixes,
                                  const QORListValQORUnicodeString& uris) = 0;
    /// The nodes that the expression selects from the document, in its order. The list stays as it is
    /// when the document changes. E_FAIL when the expression selects no nodes but gives a number,
    /// a text or a truth value, and when a prefix or function in it is unknown.
    virtual HRESULT Evaluate(QORIDOMNodeList_var& nodes) = 0;
};
using QORIXMLXPathExpression_var = QORInterface_var<QORIXMLXPathExpression>;

class VELKOR_PLATFORM_API QORIXMLXPathFactory : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// E_FAIL when the text is no XPath expression.
    virtual HRESULT CreateXPathExpression(const QORUnicodeString& text, QORIXMLXPathExpression_var& expression) = 0;
};
using QORIXMLXPathFactory_var = QORInterface_var<QORIXMLXPathFactory>;
