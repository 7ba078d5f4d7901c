#include "velkor/xml/XmlEvents.h"

#include "Bounds.h"
#include "Messages.h"
#include "velkor/objectmodeler/OutOfMemory.h"
#include "velkor/text/Wording.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace velkor::xml {

namespace {

std::string_view between(const xmlChar* begin, const xmlChar* end) {
    return {reinterpret_cast<const char*>(begin), static_cast<std::size_t>(end - begin)};
}

} // namespace

XmlReceiver::~XmlReceiver() = default;

class XmlEvents::Parser {
public:
    ~Parser() { release(); }

    tl::expected<void, XmlError> read(std::string_view bytes, XmlReceiver& receiver) {
        if (bytes.size() > maximumBytes) return tl::unexpected(XmlError{0, 0, "is larger than 2 GB"});
        _receiver = &receiver;
        _rest = bytes;
        _error.reset();
        // What is without a place of its own, such as an unknown encoding, comes without a context too.
        MessageCapture capture([this](const std::string& message) { note(message); });
        _capture = &capture;
        if (_context == nullptr) _context = newContext();
        _context->_private = this;
        _knownNames = xmlDictSize(_context->dict);
        // Nothing is opened, and no tree is made.
        constexpr int options = XML_PARSE_NONET | XML_PARSE_BIG_LINES;
        // What is small is parsed as a whole: even if it were one tag, that would not be many attributes to compare.
        constexpr std::size_t small = 16U << 10U;
        if (bytes.size() <= small) {
            xmlFreeDoc(
                xmlCtxtReadMemory(_context, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr, options));
        } else {
            xmlFreeDoc(xmlCtxtReadIO(
                _context,
                [](void* parser, char* buffer, int size) { return static_cast<Parser*>(parser)->feed(buffer, size); },
                nullptr, this, nullptr, nullptr, options));
        }
        const bool isGood = _context->wellFormed != 0 && _context->nsWellFormed != 0;
        if (!isGood) note("is no XML document");
        // The names of a document stay in the context; neither a large one nor many must leave them all.
        constexpr std::size_t large = 1U << 20U;
        constexpr int many = 10'000;
        if (capture.hasFailed() || _error || bytes.size() > large || xmlDictSize(_context->dict) > many) release();
        capture.check();
        if (_error) return tl::unexpected(std::move(*_error));
        return {};
    }

private:
    static Parser& of(void* context) { return *static_cast<Parser*>(static_cast<xmlParserCtxtPtr>(context)->_private); }

    static xmlParserCtxtPtr newContext() {
        xmlParserCtxtPtr context = xmlNewParserCtxt();
        if (context == nullptr) objectmodeler::outOfMemory();
        xmlSAXHandler sax{};
        sax.initialized = XML_SAX2_MAGIC;
        sax.startElementNs = [](void* parser, const xmlChar* name, const xmlChar*, const xmlChar*, int, const xmlChar**,
                                int count, int, const xmlChar** attributes) {
            of(parser).step([&] { of(parser).begin(name, attributes, count); });
        };
        sax.endElementNs = [](void* parser, const xmlChar*, const xmlChar*, const xmlChar*) {
            of(parser).step([&] { of(parser)._receiver->end(); });
        };
        sax.characters = [](void* parser, const xmlChar* text, int length) {
            of(parser).step([&] { of(parser)._receiver->text(between(text, text + length)); });
        };
        sax.ignorableWhitespace = sax.characters;
        sax.serror = [](void* parser, xmlErrorPtr error) { of(parser).report(*error); };
        // Declarations are refused one and all, and with them every entity but those of XML itself.
        sax.entityDecl = [](void* parser, const xmlChar*, int, const xmlChar*, const xmlChar*, xmlChar*) {
            of(parser).refuseDeclaration();
        };
        sax.attributeDecl = [](void* parser, const xmlChar*, const xmlChar*, int, int, const xmlChar*,
                               xmlEnumerationPtr values) {
            xmlFreeEnumeration(values);
            of(parser).refuseDeclaration();
        };
        sax.elementDecl = [](void* parser, const xmlChar*, int, xmlElementContentPtr) {
            of(parser).refuseDeclaration();
        };
        sax.getEntity = [](void* parser, const xmlChar* name) -> xmlEntityPtr {
            of(parser).step([&] { of(parser).refuse("the entity " + text::quoted(view(name)) + " is not known"); });
            return nullptr;
        };
        sax.getParameterEntity = [](void* parser, const xmlChar*) -> xmlEntityPtr {
            of(parser).refuseDeclaration();
            return nullptr;
        };
        *context->sax = sax;
        return context;
    }
    void release() noexcept {
        if (_context == nullptr) return;
        xmlFreeDoc(_context->myDoc);
        _context->myDoc = nullptr;
        xmlFreeParserCtxt(_context);
        _context = nullptr;
    }

    /// Runs a step of a handler. After a failure nothing more is parsed.
    template <class Step>
    void step(Step run) noexcept {
        if (_error) return;
        _capture->guard(run);
        if (_capture->hasFailed()) halt();
    }
    void halt() noexcept {
        _context->wellFormed = 0;
        xmlStopParser(_context);
    }

    /// Hands a part of the input to the parser, which may not be stopped meanwhile: the input ends.
    int feed(char* buffer, int size) {
        std::size_t count = 0;
        _capture->guard([&] {
            if (std::string excess = tagExcess(*_context, _knownNames); !excess.empty()) note(std::move(excess));
            if (_error || _capture->hasFailed()) return;
            count = _rest.copy(buffer, static_cast<std::size_t>(size));
            _rest.remove_prefix(count);
        });
        return static_cast<int>(count);
    }

    void begin(const xmlChar* name, const xmlChar** attributes, int count) {
        if (std::string excess = elementExcess(*_context, count, _knownNames); !excess.empty())
            return refuse(std::move(excess));
        _attributes.clear();
        for (int i = 0; i < count; ++i) {
            // Five pointers each: local name, prefix, namespace, begin and end of the value.
            const xmlChar** attribute = attributes + static_cast<std::ptrdiff_t>(i) * 5;
            if (attribute[1] == nullptr)
                _attributes.push_back(
                    {reinterpret_cast<const char*>(attribute[0]), between(attribute[3], attribute[4])});
        }
        if (!_receiver->begin(reinterpret_cast<const char*>(name), _attributes, line())) refuse({});
    }

    void refuseDeclaration() noexcept {
        step([&] { refuse("declarations of a document type are not read"); });
    }
    void refuse(std::string message) {
        note(std::move(message));
        halt();
    }

    void report(const xmlError& error) noexcept {
        if (_capture->isOfMemory(error) || error.level == XML_ERR_WARNING) return;
        _capture->guard([&] { note(messageText(error)); });
    }
    // The first message says what is wrong, later ones what came of it.
    void note(std::string message) {
        if (!_error) _error.emplace(XmlError{line(), column(), std::move(message)});
    }
    int line() const { return _context != nullptr && _context->input != nullptr ? _context->input->line : 0; }
    int column() const { return _context != nullptr && _context->input != nullptr ? _context->input->col : 0; }

    xmlParserCtxtPtr _context = nullptr;
    // How many names the context had before the document.
    int _knownNames = 0;
    MessageCapture* _capture = nullptr;
    XmlReceiver* _receiver = nullptr;
    std::string_view _rest;
    std::vector<XmlAttribute> _attributes;
    std::optional<XmlError> _error;
};

XmlEvents::XmlEvents() {
    initialize();
    _parser = std::make_unique<Parser>();
}

XmlEvents::~XmlEvents() = default;

tl::expected<void, XmlError> XmlEvents::read(std::string_view bytes, XmlReceiver& receiver) {
    return _parser->read(bytes, receiver);
}

} // namespace velkor::xml
