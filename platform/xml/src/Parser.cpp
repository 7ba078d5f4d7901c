#include "Parser.h"

#include "DocumentStore.h"
#include "files/Paths.h"
#include "Messages.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/SAX2.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velkor::xml {

namespace {

/// Messages told per document; a broken one can cause millions.
constexpr int maximumMessages = 20;
/// Bytes that a document type may add to the attributes of its document by defaults.
constexpr std::size_t maximumDefaults = 16U << 20U;

class Parse {
public:
    Parse(std::string name, const QORIXMLErrorHandler_var& handler)
        : _name(std::move(name)), _handler(handler), _capture([this](const std::string& text) { other(text); }) {
        static const bool isReady = (xmlInitParser(), true);
        static_cast<void>(isReady);
        _context = xmlNewParserCtxt();
        _context->_private = this;
        // A parser context has handlers of its own, so that nothing process-wide is touched.
        xmlSAXHandler& sax = *_context->sax;
        sax.serror = [](void* context, xmlErrorPtr error) { of(context).report(*error); };
        sax.getEntity = [](void* context, const xmlChar* name) {
            return of(context).refuseExternal(context, xmlSAX2GetEntity(context, name));
        };
        sax.getParameterEntity = [](void* context, const xmlChar* name) {
            return of(context).refuseExternal(context, xmlSAX2GetParameterEntity(context, name));
        };
        sax.externalSubset = [](void*, const xmlChar*, const xmlChar*, const xmlChar*) {};
        sax.startElementNs = [](void* context, const xmlChar* localName, const xmlChar* prefix, const xmlChar* uri,
                                int namespaceCount, const xmlChar** namespaces, int count, int defaulted,
                                const xmlChar** attributes) {
            of(context).boundElement(context, attributes, count, defaulted);
            xmlSAX2StartElementNs(context, localName, prefix, uri, namespaceCount, namespaces, count, defaulted,
                                  attributes);
        };
    }
    ~Parse() { xmlFreeParserCtxt(_context); }
    Parse(const Parse&) = delete;
    Parse& operator=(const Parse&) = delete;

    DocumentPointer fromBytes(std::string_view bytes) {
        if (bytes.size() > maximumBytes) return refuse("is larger than 2 GB");
        return take(
            xmlCtxtReadMemory(_context, bytes.data(), static_cast<int>(bytes.size()), nullptr, nullptr, options));
    }

    DocumentPointer fromFile(const QORUnicodeString& path) {
        const int file = open(files::nativePath(path).c_str(), O_RDONLY | O_CLOEXEC);
        struct stat status {};
        if (file < 0 || fstat(file, &status) != 0) return close(file, refuse(cannotRead(errno)));
        if (S_ISDIR(status.st_mode)) return close(file, refuse(cannotRead(EISDIR)));
        return close(file, take(xmlCtxtReadFd(_context, file, nullptr, nullptr, options)));
    }

private:
    static constexpr std::size_t maximumBytes = 0x7FFFFFFF;
    // Entities become what they stand for, defaults of attributes are filled in; what stands outside the
    // file is refused above.
    static constexpr int options = XML_PARSE_NOENT | XML_PARSE_DTDATTR | XML_PARSE_NONET | XML_PARSE_BIG_LINES;

    static Parse& of(void* context) { return *static_cast<Parse*>(static_cast<xmlParserCtxtPtr>(context)->_private); }
    static std::string cannotRead(int error) { return std::string("cannot be read: ") + std::strerror(error); }
    static DocumentPointer close(int file, DocumentPointer document) {
        if (file >= 0) ::close(file);
        return document;
    }

    DocumentPointer refuse(const std::string& reason) {
        tell(true, reason, 0, 0);
        return nullptr;
    }

    DocumentPointer take(xmlDocPtr read) {
        DocumentPointer document(read);
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
        if (_isStopped) return;
        // Positions inside an entity mean nothing to a reader of the file.
        const xmlParserInput* file = _context->inputNr > 0 ? _context->inputTab[0] : nullptr;
        tell(error.level != XML_ERR_WARNING, messageText(error), file != nullptr ? file->line : error.line,
             file != nullptr ? file->col : error.int2);
    }

    // The content of an entity is parsed in a context of its own, which is the one to be stopped.
    xmlEntityPtr refuseExternal(void* context, xmlEntityPtr entity) {
        if (entity == nullptr ||
            (entity->etype != XML_EXTERNAL_GENERAL_PARSED_ENTITY && entity->etype != XML_EXTERNAL_PARAMETER_ENTITY)) {
            return entity;
        }
        stop(context, "the external entity \"" + std::string(view(entity->name)) + "\" is not read");
        return nullptr;
    }

    void boundElement(void* context, const xmlChar** attributes, int count, int defaulted) {
        if (static_cast<xmlParserCtxtPtr>(context)->nameNr >= maximumDepth) {
            stop(context, "elements nest deeper than " + std::to_string(maximumDepth));
        }
        for (int i = count - defaulted; i < count; ++i) {
            // Five pointers each: local name, prefix, namespace, begin and end of the value.
            const xmlChar** attribute = attributes + static_cast<std::ptrdiff_t>(i) * 5;
            _defaults += static_cast<std::size_t>(attribute[4] - attribute[3]);
        }
        if (_defaults > maximumDefaults) stop(context, "the defaults of attributes add more than 16 MB");
    }

    void stop(void* context, const std::string& reason) {
        if (!_isStopped) {
            const xmlParserInput* file = _context->inputNr > 0 ? _context->inputTab[0] : nullptr;
            tell(true, reason, file != nullptr ? file->line : 0, file != nullptr ? file->col : 0);
        }
        _isStopped = true;
        // Else what a handler refuses is looked up all the same.
        static_cast<xmlParserCtxtPtr>(context)->wellFormed = 0;
        xmlStopParser(static_cast<xmlParserCtxtPtr>(context));
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
    xmlParserCtxtPtr _context = nullptr;
    std::size_t _defaults = 0;
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
