#include "XPath.h"

#include "Messages.h"
#include "NodeLists.h"
#include "xml/QORIXMLXPathFactory.h"

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
};
using Context = std::unique_ptr<xmlXPathContext, Free>;
using Compiled = std::unique_ptr<xmlXPathCompExpr, Free>;
using Object = std::unique_ptr<xmlXPathObject, Free>;

class QOREXMLXPathExpression final : public QORIXMLXPathExpression {
    VELKOR_DECLARE_CLASS

public:
    QOREXMLXPathExpression(std::shared_ptr<DocumentStore> store, std::string text)
        : _store(std::move(store)), _text(std::move(text)), _context(xmlXPathNewContext(_store->document())) {
        const MessageCapture capture([this](const std::string& message) { report(message); });
        _compiled.reset(xmlXPathCtxtCompile(_context.get(), xmlText(_text)));
    }
    bool isCompiled() const noexcept { return _compiled != nullptr; }

    HRESULT SetNamespaces(const QORListValQORUnicodeString& prefixes, const QORListValQORUnicodeString& uris) override {
        if (prefixes.Size() != uris.Size()) return E_INVALIDARG;
        for (int i = 1; i <= prefixes.Size(); ++i) {
            const std::string prefix(prefixes[i].utf8()), uri(uris[i].utf8());
            if (xmlXPathRegisterNs(_context.get(), xmlText(prefix), xmlText(uri)) != 0) return E_INVALIDARG;
        }
        return S_OK;
    }

    HRESULT Evaluate(QORIDOMNodeList_var& nodes) override {
        nodes = {};
        _context->node = reinterpret_cast<xmlNodePtr>(_store->document());
        _isReported = false;
        const MessageCapture capture([this](const std::string& message) { report(message); });
        const Object result(xmlXPathCompiledEval(_compiled.get(), _context.get()));
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
    // The first message says what is wrong, later ones what came of it.
    void report(const std::string& message) {
        if (std::exchange(_isReported, true)) return;
        log(_store->name() + ": XPath \"" + _text + "\": " + message, ErrorLevel);
    }

    std::shared_ptr<DocumentStore> _store;
    std::string _text;
    Context _context;
    Compiled _compiled;
    bool _isReported = false;
};

VELKOR_IMPLEMENT_CLASS(QOREXMLXPathExpression, QORIXMLXPathExpression, nullptr, "XMLParser")

class QOREXMLXPathFactory final : public QORIXMLXPathFactory {
    VELKOR_DECLARE_CLASS

public:
    explicit QOREXMLXPathFactory(std::shared_ptr<DocumentStore> store) : _store(std::move(store)) {}

    HRESULT CreateXPathExpression(const QORUnicodeString& text, QORIXMLXPathExpression_var& expression) override {
        expression = {};
        auto* made = new QOREXMLXPathExpression(_store, std::string(text.utf8()));
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
    const auto factory = QORBaseUnknown_var::adopt(new QOREXMLXPathFactory(std::move(store)));
    return ToCreateBOA(&document, factory.get(), QOREXMLXPathFactory::MetaObject(), QORIXMLXPathFactory::ClassId(),
                       objectmodeler::createNothing);
}

} // namespace velkor::xml
