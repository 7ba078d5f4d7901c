#include "Parser.h"

#include "Bounds.h"
#include "DocumentStore.h"
#include "Messages.h"
#include "velkor/files/InputFile.h"
#include "velkor/files/Paths.h"
#include "velkor/objectmodeler/OutOfMemory.h"
#include "velkor/text/Wording.h"

#include <cerrno>
#include <cstring>
#include <functional>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/SAX2.h>
#include <utility>

namespace velkor::xml {

namespace {

/// Messages told per document; a broken one can cause millions.
constexpr int maximumMessages = 20;
/// Bytes that a document type may add to the attributes of its document by defaults.
constexpr std::size_t maximumDefaults = 16U << 20U;
/// What an attribute takes beside its text.
constexpr std::size_t attributeSize = sizeof(xmlAttr) + sizeof(xmlNode);
/// Attributes that a document type declares: each may be a default of the same element.
constexpr int maximumDeclarations = 10000;
/// Bytes of an entity that has markup.
constexpr int longestMarkup = 64 << 10;
/// Bytes of a text: libxml2 takes no more, and would tell that it lacks memory.
constexpr int longestText = 10'000'000;

class Parse {
public:
    Parse(std::string input, const QORIXMLErrorHandler_var& handler)
        : _name(std::move(input)), _handler(handler), _capture([this](const std::string& text) { other(text); }) {
        if (_context == nullptr) objectmodeler::outOfMemory();
        _context->_private = this;
        // A parser context has handlers of its own, so that nothing process-wide is touched.
        xmlSAXHandler& sax = *_context->sax;
        sax.serror = [](void* context, xmlErrorPtr error) {
            of(context)._capture.guard([&] { of(context).report(*error); });
        };
        sax.getEntity = [](void* context, const xmlChar* name) {
            return of(context).boundEntity(context, xmlSAX2GetEntity(context, name));
        };
        sax.getParameterEntity = [](void* context, const xmlChar* name) {
            return of(context).boundEntity(context, xmlSAX2GetParameterEntity(context, name));
        };
        sax.entityDecl = [](void* context, const xmlChar* name, int type, const xmlChar* publicId,
                            const xmlChar* systemId, xmlChar* content) {
            xmlSAX2EntityDecl(context, name, type, publicId, systemId, content);
            of(context).checkDeclared(context, name, type);
        };
        sax.externalSubset = [](void*, const xmlChar*, const xmlChar*, const xmlChar*) {};
        sax.attributeDecl = [](void* context, const xmlChar* element, const xmlChar* name, int type, int use,
                               const xmlChar* value, xmlEnumerationPtr values) {
            of(context).step(context, [&] { of(context).boundDeclarations(context); });
            xmlSAX2AttributeDecl(context, element, name, type, use, value, values);
        };
        sax.startElementNs = [](void* context, const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri,
                                int namespaceCount, const xmlChar** namespaces, int count, int defaulted,
                                const xmlChar** attributes) {
            of(context).step(context, [&] { of(context).boundElement(context, attributes, count, defaulted); });
            xmlSAX2StartElementNs(context, localName, prefix, uri, namespaceCount, namespaces, count, defaulted,
                                  attributes);
        };
        sax.characters = [](void* context, const xmlChar* text, int length) {
            of(context).step(context, [&] { of(context).boundText(context, XML_TEXT_NODE, length); });
            if (!of(context)._isStopped) xmlSAX2Characters(context, text, length);
        };
        sax.ignorableWhitespace = sax.characters;
        sax.cdataBlock = [](void* context, const xmlChar* text, int length) {
            of(context).step(context, [&] { of(context).boundText(context, XML_CDATA_SECTION_NODE, length); });
            if (!of(context)._isStopped) xmlSAX2CDataBlock(context, text, length);
        };
    }
    ~Parse() { xmlFreeParserCtxt(_context); }
    Parse(const Parse&) = delete;
    Parse& operator=(const Parse&) = delete;

    DocumentPointer fromBytes(std::string_view bytes) {
        if (bytes.size() > maximumBytes) return refuse("is larger than 2 GB");
        return take([&](char* buffer, std::size_t size) {
            const std::size_t count = bytes.copy(buffer, size);
            bytes.remove_prefix(count);
            return static_cast<std::ptrdiff_t>(count);
        });
    }

    DocumentPointer fromFile(const QORUnicodeString& path) {
        auto file = files::InputFile::open(files::nativePath(path));
        if (!file) return refuse("cannot be read: " + file.error().message);
        return take([&](char* buffer, std::size_t size) { return file->read(buffer, size); });
    }

private:
    // Entities become what they stand for, defaults of attributes are filled in; what stands outside the
    // file is refused above.
    static constexpr int options = XML_PARSE_NOENT | XML_PARSE_DTDATTR | XML_PARSE_NONET | XML_PARSE_BIG_LINES;

    static Parse& of(void* context) { return *static_cast<Parse*>(static_cast<xmlParserCtxtPtr>(context)->_private); }

    /// Runs a step of a handler. When the parse has failed, nothing more is parsed.
    template <class Step>
    void step(void* context, Step run) noexcept {
        _capture.guard(run);
        if (_capture.hasFailed()) halt(context);
    }
    static void halt(void* context) noexcept {
        // Else what a handler refuses is looked up all the same.
        static_cast<xmlParserCtxtPtr>(context)->wellFormed = 0;
        xmlStopParser(static_cast<xmlParserCtxtPtr>(context));
    }

    /// Hands a part of the input to the parser, which may not be stopped meanwhile: the input ends.
    int feed(char* buffer, int size) {
        int count = 0;
        _capture.guard([&] {
            if (!_isStopped) boundTag();
            if (_isStopped || _capture.hasFailed()) return;
            const std::ptrdiff_t read = _read(buffer, static_cast<std::size_t>(size));
            if (read < 0) refuse(std::string("cannot be read: ") + std::strerror(errno));
            _isStopped = read < 0;
            count = static_cast<int>(read);
        });
        return count;
    }

    DocumentPointer refuse(const std::string& reason) {
        tell(true, reason, 0, 0);
        return nullptr;
    }

    DocumentPointer take(std::function<std::ptrdiff_t(char*, std::size_t)> read) {
        _read = std::move(read);
        DocumentPointer document(xmlCtxtReadIO(
            _context,
            [](void* parse, char* buffer, int size) { return static_cast<Parse*>(parse)->feed(buffer, size); }, nullptr,
            this, nullptr, nullptr, options));
        _capture.check();
        const bool isGood = _context->wellFormed != 0 && _context->nsWellFormed != 0 && !_isStopped;
        if (document == nullptr || !isGood) {
            if (!_isTold) tell(true, "is no XML document", 0, 0);
            return nullptr;
        }
        return document;
    }

    // Of the system rather than of the text.
    void other(const std::string& text) {
        if (!_isStopped) tell(true, text, 0, 0);
    }

    void report(const xmlError& error) {
        // What follows from stopping is no news.
        if (_capture.isOfMemory(error) || _isStopped) return;
        // Positions inside an entity mean nothing to a reader of the file.
        const xmlParserInput* file = _context->inputNr > 0 ? _context->inputTab[0] : nullptr;
        tell(error.level != XML_ERR_WARNING, messageText(error), file != nullptr ? file->line : error.line,
             file != nullptr ? file->col : error.int2);
    }

    // The content of an entity is parsed in a context of its own, which is the one to be stopped.
    xmlEntityPtr boundEntity(void* context, xmlEntityPtr entity) noexcept {
        const Fault fault = entity == nullptr ? Fault() : faultOf(*entity);
        if (fault.kind == nullptr) return entity;
        step(context,
             [&] { stop(context, fault.kind + (' ' + text::quoted(view(entity->name)) + ' ') + fault.reason); });
        return nullptr;
    }
    struct Fault {
        const char* kind = nullptr;
        const char* reason = nullptr;
    };
    static Fault faultOf(const xmlEntity& entity) noexcept {
        if (entity.etype == XML_EXTERNAL_GENERAL_PARSED_ENTITY || entity.etype == XML_EXTERNAL_PARAMETER_ENTITY)
            return {"the external entity", "is not read"};
        // Its elements are bounded only when they have been read.
        if (entity.etype == XML_INTERNAL_GENERAL_ENTITY && entity.length > longestMarkup &&
            view(entity.content).find('<') != std::string_view::npos)
            return {"the entity", "has more than 64 KB with elements"};
        return {};
    }

    // libxml2 does not tell that it lacks memory for an entity; it would be told as one that is not defined.
    void checkDeclared(void* context, const xmlChar* name, int type) noexcept {
        const bool isParameter = type == XML_INTERNAL_PARAMETER_ENTITY || type == XML_EXTERNAL_PARAMETER_ENTITY;
        if ((isParameter ? xmlSAX2GetParameterEntity(context, name) : xmlSAX2GetEntity(context, name)) != nullptr)
            return;
        step(context, [] { objectmodeler::outOfMemory(); });
    }

    void boundDeclarations(void* context) {
        if (++_declarations == maximumDeclarations + 1) {
            stop(context, "more than " + std::to_string(maximumDeclarations) + " attributes are declared");
        }
    }

    void boundElement(void* context, const xmlChar** attributes, int count, int defaulted) {
        if (const std::string excess = elementExcess(*static_cast<xmlParserCtxtPtr>(context), count); !excess.empty())
            stop(context, excess);
        for (int i = count - defaulted; i < count; ++i) {
            // Five pointers each: local name, prefix, namespace, begin and end of the value.
            const xmlChar** attribute = attributes + static_cast<std::ptrdiff_t>(i) * 5;
            _defaults += static_cast<std::size_t>(attribute[4] - attribute[3]) + attributeSize;
        }
        if (_defaults > maximumDefaults) stop(context, "the defaults of attributes add more than 16 MB");
    }

    // What follows a node of its type is put behind that.
    void boundText(void* context, xmlElementType type, int length) {
        const auto& parser = *static_cast<xmlParserCtxtPtr>(context);
        const xmlNode* last = parser.node != nullptr ? parser.node->last : nullptr;
        const bool isContinued = last != nullptr && last->type == type && parser.nodemem != 0;
        if (isContinued && parser.nodelen > longestText - length)
            stop(context, "a text has more than " + std::to_string(longestText) + " bytes");
    }

    void boundTag() {
        const std::string excess = tagExcess(*_context);
        if (excess.empty()) return;
        tellHere(excess);
        _isStopped = true;
    }

    void stop(void* context, const std::string& reason) {
        if (!_isStopped) tellHere(reason);
        _isStopped = true;
        halt(context);
    }

    void tellHere(const std::string& reason) {
        const xmlParserInput* file = _context->inputNr > 0 ? _context->inputTab[0] : nullptr;
        tell(true, reason, file != nullptr ? file->line : 0, file != nullptr ? file->col : 0);
    }

    void tell(bool isError, const std::string& text, int line, int column) {
        _isTold = _isTold || isError;
        if (++_messages > maximumMessages) return;
        if (!_handler.IsNull()) {
            const QORXMLMessage message{QORUnicodeString(std::string_view(text)),
                                        QORUnicodeString(std::string_view(_name)), line, column};
            static_cast<void>(isError ? _handler->Error(message) : _handler->Warning(message));
            return;
        }
        std::string place = _name;
        if (line > 0) place += ':' + std::to_string(line) + ':' + std::to_string(column);
        log(place + ": " + text, isError ? ErrorLevel : WarningLevel);
    }

    std::string _name;
    QORIXMLErrorHandler_var _handler;
    MessageCapture _capture;
    xmlParserCtxtPtr _context = xmlNewParserCtxt();
    std::function<std::ptrdiff_t(char*, std::size_t)> _read;
    std::size_t _defaults = 0;
    int _declarations = 0;
    int _messages = 0;
    bool _isTold = false;
    bool _isStopped = false;
};

} // namespace

DocumentPointer parse(const Input& input, const QORIXMLErrorHandler_var& handler) {
    Parse run(std::string(input.systemId.utf8()), handler);
    return input.bytes ? run.fromBytes(*input.bytes) : run.fromFile(input.systemId);
}

} // namespace velkor::xml
