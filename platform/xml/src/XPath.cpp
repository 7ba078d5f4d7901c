#include "XPath.h"

#include "Messages.h"
#include "NodeLists.h"
#include "velkor/objectmodeler/OutOfMemory.h"
#include "velkor/text/Wording.h"
#include "velkor/xml/QORIXMLXPathFactory.h"

#include <cerrno>
#include <libxml/xpath.h>
#include <libxml/xpathInternals.h>
#include <memory>
#include <string>
#include <utility>

namespace velkor::xml {

namespace {

struct Free {
    void operator()(xmlXPathContextPtr context) const { xmlXPathFreeContext(context); }
    void operator()(xmlXPathCompExprPtr expression) const { xmlXPathFreeCompExpr(expression); }
    void operator()(xmlXPathObjectPtr object) const { xmlXPathFreeObject(object); }
    void operator()(xmlXPathParserContextPtr parser) const { xmlXPathFreeParserContext(parser); }
};
using Context = std::unique_ptr<xmlXPathContext, Free>;
using Compiled = std::unique_ptr<xmlXPathCompExpr, Free>;
using Object = std::unique_ptr<xmlXPathObject, Free>;

class QOREXMLXPathExpression final : public QORIXMLXPathExpression {
    VELKOR_DECLARE_CLASS

public:
    QOREXMLXPathExpression(std::shared_ptr<DocumentStore> store, std::string text)
        : _store(std::move(store)), _text(std::move(text)),
          _context(made([this] { return xmlXPathNewContext(_store->document()); }, Free())) {
        const MessageCapture capture([this](const std::string& message) { report(message); });
        _isCompiled = Compiled(xmlXPathCtxtCompile(_context.get(), xmlText(_text))) != nullptr;
        check(capture);
    }
    bool isCompiled() const noexcept { return _isCompiled; }

    HRESULT SetNamespaces(const QORListValQORUnicodeString& prefixes, const QORListValQORUnicodeString& uris) override {
        if (prefixes.Size() != uris.Size()) return E_INVALIDARG;
        const MessageCapture capture;
        for (int i = 1; i <= prefixes.Size(); ++i) {
            const std::string prefix(prefixes[i].utf8()), uri(uris[i].utf8());
            if (prefix.empty()) return E_INVALIDARG;
            if (xmlXPathRegisterNs(_context.get(), xmlText(prefix), xmlText(uri)) != 0) objectmodeler::outOfMemory();
            capture.check();
        }
        return S_OK;
    }

    HRESULT Evaluate(QORIDOMNodeList_var& nodes) override {
        nodes = {};
        _context->node = reinterpret_cast<xmlNodePtr>(_store->document());
        _isReported = false;
        const MessageCapture capture([this](const std::string& message) { report(message); });
        const Object result(evaluated());
        check(capture);
        if (result == nullptr) return E_FAIL;
        if (result->type != XPATH_NODESET) {
            report("the expression gives no nodes");
            return E_FAIL;
        }
        Nodes found;
        if (const xmlNodeSet* set = result->nodesetval) {
            found.assign(set->nodeTab, set->nodeTab + set->nodeNr);
            // Namespaces are no nodes of the DOM; one axis alone leads to them.
            if (_text.find("namespace") != std::string::npos) {
                std::erase_if(found, [](xmlNodePtr node) { return node->type == XML_NAMESPACE_DECL; });
            }
        }
        nodes = fixedList(_store, std::move(found));
        return S_OK;
    }

private:
    // Bare paths are matched fast, but in a way that tells nobody of memory that it lacks: then once more in brackets,
    // which are evaluated step by step.
    xmlXPathObjectPtr evaluated() const {
        errno = 0;
        Object result(evaluated(_text));
        if (errno != ENOMEM) return result.release();
        result.reset();
        return evaluated('(' + _text + ')');
    }

    // In single steps: the functions of libxml2 that do it all use, or free twice, what they get no memory for.
    xmlXPathObjectPtr evaluated(const std::string& text) const {
        constexpr int stackSize = 10;
        const std::unique_ptr<xmlXPathParserContext, Free> parser(
            xmlXPathNewParserContext(xmlText(text), _context.get()));
        if (parser == nullptr) objectmodeler::outOfMemory();
        parser->valueTab = static_cast<xmlXPathObjectPtr*>(xmlMalloc(stackSize * sizeof(xmlXPathObjectPtr)));
        if (parser->valueTab == nullptr) objectmodeler::outOfMemory();
        parser->valueMax = stackSize;
        xmlXPathEvalExpr(parser.get());
        return parser->error == XPATH_EXPRESSION_OK ? valuePop(parser.get()) : nullptr;
    }

    // What lacks memory may look like an expression that is wrong. The context keeps to itself that it does.
    void check(const MessageCapture& capture) const {
        capture.check();
        if (_context->lastError.code == XML_ERR_NO_MEMORY) objectmodeler::outOfMemory();
    }

    // The first message says what is wrong, later ones what came of it.
    void report(const std::string& message) {
        if (std::exchange(_isReported, true)) return;
        log(_store->name() + ": XPath " + text::quoted(_text) + ": " + message, ErrorLevel);
    }

    std::shared_ptr<DocumentStore> _store;
    std::string _text;
    Context _context;
    bool _isCompiled = false;
    bool _isReported = false;
};

VELKOR_IMPLEMENT_CLASS(QOREXMLXPathExpression, QORIXMLXPathExpression, nullptr, "XMLParser")

class QOREXMLXPathFactory final : public QORIXMLXPathFactory {
    VELKOR_DECLARE_CLASS

public:
    explicit QOREXMLXPathFactory(std::shared_ptr<DocumentStore> store) : _store(std::move(store)) {}

    HRESULT CreateXPathExpression(const QORUnicodeString& text, QORIXMLXPathExpression_var& expression) override {
        expression = {};
        auto* made = objectmodeler::newComponent<QOREXMLXPathExpression>(_store, std::string(text.utf8()));
        const auto held = QORIXMLXPathExpression_var::adopt(made);
        if (!made->isCompiled()) return E_FAIL;
        expression = held;
        return S_OK;
    }

private:
    std::shared_ptr<DocumentStore> _store;
};

VELKOR_IMPLEMENT_CLASS(QOREXMLXPathFactory, QORIXMLXPathFactory, nullptr, "XMLParser")

} // namespace

IUnknown* xpathFactoryOf(QORBaseUnknown& document, std::shared_ptr<DocumentStore> store) {
    const auto factory = QORBaseUnknown_var::adopt(objectmodeler::newComponent<QOREXMLXPathFactory>(std::move(store)));
    return ToCreateBOA(&document, factory.get(), QOREXMLXPathFactory::MetaObject(), QORIXMLXPathFactory::ClassId(),
                       objectmodeler::createNothing);
}

} // namespace velkor::xml
