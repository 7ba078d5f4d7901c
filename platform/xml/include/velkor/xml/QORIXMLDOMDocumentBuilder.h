/// Reads, makes and writes XML documents.
///
///     QORIXMLDOMDocumentBuilder_var builder;
///     CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_DOM, builder);
///     QORIDOMDocument_var document;
///     HRESULT result = builder->Parse(path, document, {}, {}, {}, {});
///
/// Reading is safe whatever the text holds: nothing but the file itself is opened, no external document
/// type or entity is read (a reference to one ends the parse), what entities and defaults of
/// attributes expand to is bounded, elements nest at most 256 deep. Without an error handler, messages
/// go to the exchange log as "file:line:column: …", errors with level 1 and warnings with level 2.
#pragma once

#include "velkor/objectmodeler/ComponentMacros.h"
#include "velkor/PlatformExport.h"
#include "velkor/text/QORListValQORUnicodeString.h"
#include "velkor/xml/DomTypes.h"
#include "velkor/xml/QORIXMLErrorHandler.h"
#include "velkor/xml/QORIXMLInputSource.h"

class VELKOR_PLATFORM_API QORIXMLDOMDocumentBuilder : public QORBaseUnknown {
    VELKOR_DECLARE_CLASS

public:
    /// An empty document, without document element.
    virtual HRESULT CreateDocument(QORIDOMDocument_var& document) = 0;
    /// What makes empty documents.
    virtual HRESULT GetDOMImplementation(QORIDOMImplementation_var& implementation) = 0;

    /// Reads a file, or a source. E_FAIL, and an empty document, when it cannot be read or is not well-formed, names
    /// and namespaces included. Options, as parallel lists of names and values:
    ///
    ///     "QORDoValidation"      "false"  documents are not validated
    ///     "QOREnableNameSpaces"  "true"   names are taken apart by namespace
    ///
    /// Both have these values alone, which are also the defaults. E_INVALIDARG for any other option or
    /// value and for lists of different size; E_NOTIMPL with an entity resolver.
    virtual HRESULT Parse(const QORUnicodeString& path, QORIDOMDocument_var& document,
                          const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values,
                          const QORIXMLEntityResolver_var& resolver, const QORIXMLErrorHandler_var& handler) = 0;
    /// Reads a document from a source.
    virtual HRESULT Parse(const QORIXMLInputSource_var& source, QORIDOMDocument_var& document,
                          const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values,
                          const QORIXMLEntityResolver_var& resolver, const QORIXMLErrorHandler_var& handler) = 0;

    /// Writes a document to a file, which is replaced as a whole or not at all. Options:
    ///
    ///     "QOREncoding"              "UTF-8"
    ///     "QORLineSeparator"         "\n" (the default), "\r\n" or "\r"
    ///     "QORIndentation"           indentation characters per level, 0 to 16; 0 unless given
    ///     "QORIndentationCharacter"  one blank (the default) or one tab
    ///
    /// With an indentation, elements that hold only elements, comments and processing instructions are laid out anew,
    /// a line each; white space between those is not kept. All other text is kept, and so is all of
    /// it where xml:space="preserve" holds. E_INVALIDARG for another option or value and for an empty
    /// document; E_FAIL when the file cannot be written. The reason goes to the exchange log.
    virtual HRESULT Write(const QORIDOMDocument_var& document, const QORUnicodeString& path,
                          const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values) = 0;
    /// The same into a text.
    virtual HRESULT WriteToText(const QORIDOMDocument_var& document, QORUnicodeString& text,
                                const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values) = 0;
};
using QORIXMLDOMDocumentBuilder_var = QORInterface_var<QORIXMLDOMDocumentBuilder>;

/// Two names of the one implementation that this platform has.
VELKOR_PLATFORM_API extern const IID CLSID_XML4C_DOM;
VELKOR_PLATFORM_API extern const IID CLSID_XML4C5_DOM;

/// E_INVALIDARG, and no builder, for an implementation that this platform does not have.
VELKOR_PLATFORM_API HRESULT CreateQORIXMLDOMDocumentBuilder(const IID& implementation,
                                                            QORIXMLDOMDocumentBuilder_var& builder);
