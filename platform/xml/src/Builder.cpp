#include "DocumentStore.h"
#include "Messages.h"
#include "Nodes.h"
#include "Parser.h"
#include "velkor/files/FileContents.h"
#include "velkor/xml/QORIDOMDocument.h"
#include "velkor/xml/QORIDOMImplementation.h"
#include "velkor/xml/QORIXMLDOMDocumentBuilder.h"
#include "Writer.h"

#include <charconv>
#include <string>

namespace velkor::xml {

namespace {

class QOREXMLInputSource final : public QORIXMLInputSource {
    VELKOR_DECLARE_CLASS

public:
    QOREXMLInputSource(QORUnicodeString systemId, QORUnicodeString publicId)
        : _systemId(std::move(systemId)), _publicId(std::move(publicId)) {}
    QOREXMLInputSource(std::string_view bytes, QORUnicodeString systemId)
        : _systemId(std::move(systemId)), _bytes(bytes) {}

    HRESULT GetSystemId(QORUnicodeString& systemId) override {
        systemId = _systemId;
        return S_OK;
    }
    HRESULT GetPublicId(QORUnicodeString& publicId) override {
        publicId = _publicId;
        return S_OK;
    }
    Input input() const { return {_systemId, _bytes ? std::optional<std::string_view>(*_bytes) : std::nullopt}; }

private:
    QORUnicodeString _systemId;
    QORUnicodeString _publicId;
    std::optional<std::string> _bytes;
};

VELKOR_IMPLEMENT_CLASS(QOREXMLInputSource, QORIXMLInputSource, nullptr, "XMLParser")

class QOREXMLSAX2Factory final : public QORIXMLSAX2Factory {
    VELKOR_DECLARE_CLASS

public:
    HRESULT CreateInputSource(const QORUnicodeString& path, const QORUnicodeString& publicId,
                              QORIXMLInputSource_var& source) override {
        source = QORIXMLInputSource_var::adopt(objectmodeler::newComponent<QOREXMLInputSource>(path, publicId));
        return S_OK;
    }
    HRESULT CreateInputSourceFromText(std::string_view bytes, const QORUnicodeString& systemId,
                                      QORIXMLInputSource_var& source) override {
        source = QORIXMLInputSource_var::adopt(objectmodeler::newComponent<QOREXMLInputSource>(bytes, systemId));
        return S_OK;
    }
};

VELKOR_IMPLEMENT_CLASS(QOREXMLSAX2Factory, QORIXMLSAX2Factory, nullptr, "XMLParser")

/// Goes through options; false, after telling which one is wrong, when `accept` takes one not.
template <class Accept>
bool acceptAll(const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values, Accept accept) {
    if (names.Size() != values.Size()) {
        log("XML options: " + std::to_string(names.Size()) + " names, " + std::to_string(values.Size()) + " values",
            ErrorLevel);
        return false;
    }
    for (int i = 1; i <= names.Size(); ++i) {
        if (accept(names[i].utf8(), values[i].utf8())) continue;
        log("XML option \"" + std::string(names[i].utf8()) + "\" = \"" + std::string(values[i].utf8()) +
                "\" is not known",
            ErrorLevel);
        return false;
    }
    return true;
}

bool isParserOption(std::string_view name, std::string_view value) {
    return (name == "QORDoValidation" && value == "false") || (name == "QOREnableNameSpaces" && value == "true");
}

bool layoutFrom(const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values, Layout& layout) {
    unsigned int count = 0;
    std::string_view character = " ";
    const bool isKnown = acceptAll(names, values, [&](std::string_view name, std::string_view value) {
        if (name == "QOREncoding") return value == "UTF-8";
        if (name == "QORLineSeparator") {
            layout.lineSeparator = value;
            return value == "\n" || value == "\r\n" || value == "\r";
        }
        if (name == "QORIndentation") {
            const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), count);
            return error == std::errc() && end == value.data() + value.size() && count <= 16;
        }
        if (name == "QORIndentationCharacter") {
            character = value;
            return value == " " || value == "\t";
        }
        return false;
    });
    if (!isKnown) return false;
    for (unsigned int i = 0; i < count; ++i) layout.indentation += character;
    return true;
}

class QOREXMLDOMDocumentBuilder final : public QORIXMLDOMDocumentBuilder {
    VELKOR_DECLARE_CLASS

public:
    HRESULT CreateDocument(QORIDOMDocument_var& document) override {
        document = wrapDocument(newDocument(), "new document");
        return S_OK;
    }
    HRESULT GetDOMImplementation(QORIDOMImplementation_var& implementation) override {
        implementation = domImplementation();
        return S_OK;
    }

    HRESULT Parse(const QORUnicodeString& path, QORIDOMDocument_var& document, const QORListValQORUnicodeString& names,
                  const QORListValQORUnicodeString& values, const QORIXMLEntityResolver_var& resolver,
                  const QORIXMLErrorHandler_var& handler) override {
        return parseInput({path, std::nullopt}, document, names, values, resolver, handler);
    }
    HRESULT Parse(const QORIXMLInputSource_var& source, QORIDOMDocument_var& document,
                  const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values,
                  const QORIXMLEntityResolver_var& resolver, const QORIXMLErrorHandler_var& handler) override {
        document = {};
        const auto* own = source.IsNull() ? nullptr : dynamic_cast<const QOREXMLInputSource*>(source.get());
        if (own == nullptr) return E_INVALIDARG;
        return parseInput(own->input(), document, names, values, resolver, handler);
    }

    HRESULT Write(const QORIDOMDocument_var& document, const QORUnicodeString& path,
                  const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values) override {
        std::string text;
        const HRESULT result = write(document, text, names, values);
        if (FAILED(result)) return result;
        const auto replaced = files::replaceFile(path, text);
        if (replaced) return S_OK;
        log(std::string(path.utf8()) + ": cannot be written: " + replaced.error().message, ErrorLevel);
        return E_FAIL;
    }
    HRESULT WriteToText(const QORIDOMDocument_var& document, QORUnicodeString& text,
                        const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values) override {
        std::string bytes;
        const HRESULT result = write(document, bytes, names, values);
        if (SUCCEEDED(result)) text = QORUnicodeString(std::move(bytes));
        return result;
    }

private:
    static HRESULT parseInput(const Input& input, QORIDOMDocument_var& document,
                              const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values,
                              const QORIXMLEntityResolver_var& resolver, const QORIXMLErrorHandler_var& handler) {
        document = {};
        if (!resolver.IsNull()) return E_NOTIMPL;
        if (!acceptAll(names, values, isParserOption)) return E_INVALIDARG;
        DocumentPointer read = parse(input, handler);
        if (read == nullptr) return E_FAIL;
        document = wrapDocument(std::move(read), std::string(input.systemId.utf8()));
        return S_OK;
    }

    static HRESULT write(const QORIDOMDocument_var& document, std::string& text,
                         const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values) {
        const NodeHandle* handle = handleOf(document);
        Layout layout;
        if (handle == nullptr || !layoutFrom(names, values, layout)) return E_INVALIDARG;
        if (xmlDocGetRootElement(handle->store->document()) == nullptr) {
            log(handle->store->name() + ": a document without document element is not written", ErrorLevel);
            return E_INVALIDARG;
        }
        text = written(handle->store->document(), layout);
        if (!text.empty()) return S_OK;
        log(handle->store->name() + ": elements that nest deeper than " + std::to_string(maximumDepth) +
                " are not written",
            ErrorLevel);
        return E_INVALIDARG;
    }
};

VELKOR_IMPLEMENT_CLASS(QOREXMLDOMDocumentBuilder, QORIXMLDOMDocumentBuilder, nullptr, "XMLParser")

} // namespace

} // namespace velkor::xml

HRESULT CreateQORIXMLDOMDocumentBuilder(const IID& implementation, QORIXMLDOMDocumentBuilder_var& builder) {
    builder = {};
    if (implementation != CLSID_XML4C_DOM && implementation != CLSID_XML4C5_DOM) return E_INVALIDARG;
    // Whatever is done with documents begins here.
    velkor::xml::initialize();
    builder = QORIXMLDOMDocumentBuilder_var::adopt(
        velkor::objectmodeler::newComponent<velkor::xml::QOREXMLDOMDocumentBuilder>());
    return S_OK;
}

HRESULT CreateQORIXMLSAX2Factory(const IID& implementation, QORIXMLSAX2Factory_var& factory) {
    factory = {};
    if (implementation != CLSID_XML4C5_SAX) return E_INVALIDARG;
    factory = QORIXMLSAX2Factory_var::adopt(velkor::objectmodeler::newComponent<velkor::xml::QOREXMLSAX2Factory>());
    return S_OK;
}
