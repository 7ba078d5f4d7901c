#include "Cases.h"
#include "Matchers.h"
#include "QORIFCDXXMLServices.h"
#include "QORXCADNodeFilter.h"
#include "TemporaryFolder.h"
#include "velkor/exchangelog/MessageLog.h"
#include "velkor/objectmodeler/Assertion.h"
#include "velkor/xml/QORIDOMDocumentTraversal.h"
#include "velkor/xml/QORIDOMDocumentType.h"
#include "velkor/xml/QORIDOMImplementation.h"
#include "velkor/xml/QORIDOMNodeIterator.h"
#include "velkor/xml/QORIXMLDOMDocumentBuilder.h"
#include "velkor/xml/QORIXMLXPathFactory.h"

#include <dlfcn.h>
#include <iterator>

namespace velkor::test {

using objectmodeler::assertionCount;
using Services = QORIFCDXXMLServices;

namespace {

constexpr HRESULT E_PLATFORM = static_cast<HRESULT>(0x80070005U);

/// What stands in for a part of the platform: null leaves the real one.
struct Platform {
    HRESULT (*createBuilder)(const IID&, QORIXMLDOMDocumentBuilder_var&) = nullptr;
    std::vector<IID> builders;
};
Platform platform;

class XmlServices : public testing::Test {
protected:
    void SetUp() override {
        platform = {};
        objectmodeler::clearAssertionReports();
    }
    void TearDown() override { platform = {}; }

    QORIDOMDocument_var document(const std::string& text) const {
        QORIDOMDocument_var result;
        EXPECT_EQ(Services::GetDOMDocument(path("document.xml", text), result), S_OK) << text;
        return result;
    }
    QORUnicodeString path(const std::string& name, const std::string& text) const {
        return QORUnicodeString(folder.file(name, text));
    }
    QORUnicodeString path(const std::string& name) const { return QORUnicodeString(folder.path + '/' + name); }
    static std::string contents(const QORUnicodeString& path) {
        std::ifstream file(path.ConvertToChar(), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    const TemporaryFolder folder;
};

/// An operation's result, in hexadecimal, and the number of assertions that it reports.
template <class Do>
std::string outcome(Do operation) {
    const std::uint64_t before = assertionCount();
    std::ostringstream text;
    text << std::hex << static_cast<unsigned>(operation());
    text << ' ' << assertionCount() - before;
    return text.str();
}

std::string name(const QORIDOMNode_var& node) {
    QORUnicodeString result;
    EXPECT_EQ(node->GetNodeName(result), S_OK);
    return std::string(result.utf8());
}

/// A builder that answers as it is told and makes nothing, and notes its options.
class Builder final : public QORIXMLDOMDocumentBuilder {
public:
    HRESULT CreateDocument(QORIDOMDocument_var&) override { return answer; }
    HRESULT GetDOMImplementation(QORIDOMImplementation_var&) override { return answer; }
    HRESULT Parse(const QORUnicodeString&, QORIDOMDocument_var&, const QORListValQORUnicodeString& names,
                  const QORListValQORUnicodeString& values, const QORIXMLEntityResolver_var& resolver,
                  const QORIXMLErrorHandler_var& handler) override {
        EXPECT_TRUE(resolver.IsNull() && handler.IsNull());
        return note(names, values);
    }
    HRESULT Parse(const QORIXMLInputSource_var&, QORIDOMDocument_var&, const QORListValQORUnicodeString&,
                  const QORListValQORUnicodeString&, const QORIXMLEntityResolver_var&,
                  const QORIXMLErrorHandler_var&) override {
        return E_NOTIMPL;
    }
    HRESULT Write(const QORIDOMDocument_var&, const QORUnicodeString&, const QORListValQORUnicodeString& names,
                  const QORListValQORUnicodeString& values) override {
        return note(names, values);
    }
    HRESULT WriteToText(const QORIDOMDocument_var&, QORUnicodeString&, const QORListValQORUnicodeString&,
                        const QORListValQORUnicodeString&) override {
        return E_NOTIMPL;
    }
    static HRESULT note(const QORListValQORUnicodeString& names, const QORListValQORUnicodeString& values) {
        for (int i = 1; i <= names.Size(); ++i) options += std::string((names[i] + "=" + values[i] + ";").utf8());
        return answer;
    }
    static inline HRESULT answer = S_OK;
    static inline std::string options;
};

/// An expression over nothing, the list that it gives and the one element therein, all in one; the operation that
/// is named fails.
class Failing final : public QORIDOMElement {
public:
    static inline std::string operation;
    static HRESULT answer(const char* asked) { return operation == asked ? E_PLATFORM : S_OK; }

    using QORIDOMElement::QueryInterface;
    HRESULT QueryInterface(const IID& id, void** interface) override {
        *interface = nullptr;
        return operation == "cast" ? E_NOINTERFACE : QORIDOMElement::QueryInterface(id, interface);
    }
    HRESULT GetNodeType(unsigned short& type) override { return type = ELEMENT_NODE, answer("GetNodeType"); }
    HRESULT GetNodeName(QORUnicodeString&) override { return answer("GetNodeName"); }
    HRESULT GetNodeValue(QORUnicodeString&) override { return answer("GetNodeValue"); }
    HRESULT GetFirstChild(QORIDOMNode_var& child) override { return child = this, answer("GetFirstChild"); }
    HRESULT GetTagName(QORUnicodeString& name) override { return name = "Item", answer("GetTagName"); }
    HRESULT GetAttribute(const QORUnicodeString&, QORUnicodeString&) override { return answer("GetAttribute"); }

    HRESULT SetNodeValue(const QORUnicodeString&) override { return S_OK; }
    HRESULT GetTextContent(QORUnicodeString&) override { return S_OK; }
    HRESULT GetNamespaceURI(QORUnicodeString&) override { return S_OK; }
    HRESULT GetPrefix(QORUnicodeString&) override { return S_OK; }
    HRESULT GetLocalName(QORUnicodeString&) override { return S_OK; }
    HRESULT GetParentNode(QORIDOMNode_var&) override { return S_OK; }
    HRESULT GetChildNodes(QORIDOMNodeList_var&) override { return S_OK; }
    HRESULT GetLastChild(QORIDOMNode_var&) override { return S_OK; }
    HRESULT GetPreviousSibling(QORIDOMNode_var&) override { return S_OK; }
    HRESULT GetNextSibling(QORIDOMNode_var&) override { return S_OK; }
    HRESULT HasChildNodes(bool&) override { return S_OK; }
    HRESULT GetOwnerDocument(QORIDOMDocument_var&) override { return S_OK; }
    HRESULT InsertBefore(const QORIDOMNode_var&, const QORIDOMNode_var&) override { return S_OK; }
    HRESULT AppendChild(const QORIDOMNode_var&) override { return S_OK; }
    HRESULT RemoveChild(const QORIDOMNode_var&) override { return S_OK; }
    HRESULT GetLineNumber(int&) override { return S_OK; }
    HRESULT HasAttribute(const QORUnicodeString&, bool&) override { return S_OK; }
    HRESULT GetAttributeNode(const QORUnicodeString&, QORIDOMAttr_var&) override { return S_OK; }
    HRESULT GetAttributes(QORIDOMNodeList_var&) override { return S_OK; }
    HRESULT SetAttribute(const QORUnicodeString&, const QORUnicodeString&) override { return S_OK; }
    HRESULT RemoveAttribute(const QORUnicodeString&) override { return S_OK; }
    HRESULT GetElementsByTagName(const QORUnicodeString&, QORIDOMNodeList_var&) override { return S_OK; }

    struct List final : QORIDOMNodeList {
        HRESULT GetLength(unsigned int& length) override { return length = 1, answer("GetLength"); }
        HRESULT Item(unsigned int, QORIDOMNode_var& node) override {
            return node = QORIDOMNode_var::adopt(new Failing), answer("Item");
        }
    };
    struct Expression final : QORIXMLXPathExpression {
        HRESULT SetNamespaces(const QORListValQORUnicodeString&, const QORListValQORUnicodeString&) override {
            return answer("SetNamespaces");
        }
        HRESULT Evaluate(QORIDOMNodeList_var& nodes) override {
            return nodes = QORIDOMNodeList_var::adopt(new List), answer("Evaluate");
        }
    };
    struct Factory final : QORIXMLXPathFactory {
        HRESULT CreateXPathExpression(const QORUnicodeString&, QORIXMLXPathExpression_var& made) override {
            return made = QORIXMLXPathExpression_var::adopt(new Expression), answer("CreateXPathExpression");
        }
    };
    /// A document of which nothing but expressions can be had.
    static QORIDOMDocument_var document() {
        QORIDOMDocument_var result;
        static_cast<QORBaseUnknown_var&>(result) = QORBaseUnknown_var::adopt(new Factory);
        return result;
    }
};

constexpr const char* sample =
    "<r xmlns:g='http://www.opengis.net/gml/3.2' xmlns:e='urn:x-ogp:spec:schema-xsd:EPSG:1.0:dataset' "
    "xmlns:d='http://www.isotc211.org/2005/gmd' xmlns:o='http://www.isotc211.org/2005/gco'>"
    "<g:p/><e:p/><d:p/><o:p/><p>text</p><q k='v'><!--c-->t</q><q/><s>a<t/>b</s><u><t>x</t></u></r>";

} // namespace

TEST_F(XmlServices, MakesADocumentWithItsElement) {
    QORIDOMDocument_var made;
    ASSERT_EQ(Services::CreateDOMDocument("IfcMapping", made), S_OK);
    QORIDOMElement_var root, child;
    ASSERT_EQ(made->GetDocumentElement(root), S_OK);
    EXPECT_EQ(name(root), "IfcMapping");
    EXPECT_THAT(platform.builders, ElementsAre(CLSID_XML4C_DOM));

    // What is written reads back equal, in the layout that readers of resource files rely on.
    ASSERT_EQ(made->CreateElement("CustomMapping", child), S_OK);
    ASSERT_EQ(child->SetAttribute("scope", "Wände;\"Türen\""), S_OK);
    ASSERT_EQ(root->AppendChild(child), S_OK);
    ASSERT_EQ(Services::WriteDOMDocument(made, path("a.xml")), S_OK);
    EXPECT_EQ(contents(path("a.xml")), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<IfcMapping>\r\n"
                                       "  <CustomMapping scope=\"Wände;&quot;Türen&quot;\"/>\r\n</IfcMapping>\r\n");
    QORIDOMDocument_var again;
    ASSERT_EQ(Services::GetDOMDocument(path("a.xml"), again), S_OK);
    QORUnicodeString scope;
    EXPECT_EQ(Services::GetAttributeValue(again, "IfcMapping/CustomMapping", "scope", scope), S_OK);
    EXPECT_EQ(scope, "Wände;\"Türen\"");
    ASSERT_EQ(Services::WriteDOMDocument(again, path("b.xml")), S_OK);
    EXPECT_EQ(contents(path("b.xml")), contents(path("a.xml")));
    EXPECT_THAT(platform.builders, ElementsAre(CLSID_XML4C_DOM, CLSID_XML4C5_DOM, CLSID_XML4C5_DOM, CLSID_XML4C5_DOM));

    EXPECT_EQ(outcome([&] { return Services::CreateDOMDocument("no name", made); }), "8000ffff 1");
    EXPECT_EQ(outcome([&] { return Services::WriteDOMDocument(again, path("none/a.xml")); }), "80004005 1");
}

TEST_F(XmlServices, TellsTheLogWhatIsWrongWithAFile) {
    exchangelog::MessageLog log(1);
    exchangelog::setExchangeErr(&log);
    QORIDOMDocument_var read = document("<a/>");
    EXPECT_EQ(outcome([&] { return Services::GetDOMDocument(path("bad.xml", "<a>\n<b></a>"), read); }), "80004005 1");
    EXPECT_EQ(Services::GetDOMDocument(path("none.xml"), read), E_FAIL);
    exchangelog::setExchangeErr(nullptr);
    ASSERT_GE(log.messages().size(), 2U);
    EXPECT_THAT(log.messages().front().text, StartsWith(folder.path + "/bad.xml:2:"));
    EXPECT_THAT(log.messages().back().text, HasSubstr("none.xml: cannot be read: "));
    EXPECT_EQ(log.messages().front().level, 1);
}

TEST_F(XmlServices, SelectsNodes) {
    const QORIDOMDocument_var r = document(sample);
    QORIDOMNodeList_var nodes;
    const auto count = [&](const char* xpath) {
        unsigned int length = 0;
        EXPECT_EQ(Services::GetNodeList(r, xpath, nodes), S_OK) << xpath;
        EXPECT_EQ(nodes->GetLength(length), S_OK);
        return length;
    };
    // By prefixes that the document spells otherwise.
    for (const char* xpath : {"r/gml:p", "r/epsg:p", "r/gmd:p", "r/gco:p", "r/p"}) EXPECT_EQ(count(xpath), 1U) << xpath;
    EXPECT_EQ(count("r/q"), 2U);
    EXPECT_EQ(count("r/Q"), 0U);
    for (const char* xpath : {"r/", "x:p"})
        EXPECT_EQ(outcome([&] { return Services::GetNodeList(r, xpath, nodes); }), "80004005 1") << xpath;

    QORIDOMNode_var node;
    EXPECT_EQ(Services::GetNode(r, "r/gml:p", node), S_OK);
    EXPECT_EQ(name(node), "g:p");
    for (const char* xpath : {"r/q", "r/none"}) {
        QORIDOMNode_var none;
        EXPECT_EQ(outcome([&] { return Services::GetNode(r, xpath, none); }), "80070057 0");
        EXPECT_TRUE(none.IsNull());
    }
    EXPECT_EQ(Services::GetNode(r, "count(r)", node), E_FAIL);
    EXPECT_THROW(Services::GetNodeList({}, "r", nodes), QORNullVarError);
}

TEST_F(XmlServices, ReadsValues) {
    const QORIDOMDocument_var r = document(sample);
    // Of an element the first child alone counts, whatever it is.
    for (const Case& c : casesOf(R"(: r/p -> 0 0 text | r/q[1]/@k -> 0 0 v | r/q[1] -> 0 0 c
        : r/s -> 0 0 a | r/s/text()[2] -> 0 0 b | r/u -> 0 0  | / -> 0 0 
        : r/q -> 80070057 0 | r/none -> 80070057 0 | r/gml:p -> 8000ffff 1 | r/ -> 80004005 3)")) {
        QORUnicodeString value;
        std::string found = outcome([&] { return Services::GetNodeValue(r, c.text.c_str(), value); });
        if (found == "0 0") found += ' ' + std::string(value.utf8());
        EXPECT_EQ(found, c.expected) << c.text;
    }
    for (const Case& c : casesOf(R"(k: r/q[1] -> 0 0 v | r/q -> 80070057 1 | r/none -> 80070057 1
        k: r/p/text() -> 8000ffff 2 | / -> 8000ffff 2
        K: r/q[1] -> 0 0 )")) {
        QORUnicodeString value;
        std::string found =
            outcome([&] { return Services::GetAttributeValue(r, c.text.c_str(), c.subject.c_str(), value); });
        if (c.text == "r/none") {
            const objectmodeler::AssertionReport report = objectmodeler::assertionReports().back();
            EXPECT_EQ(report.message, c.text);
            EXPECT_EQ(report.sourceUnit, "Velkorite/Velkor.m/src/xml/QORIFCDXXMLServices.cpp");
        }
        if (found == "0 0") found += ' ' + std::string(value.utf8());
        EXPECT_EQ(found, c.expected) << c.text;
    }
    QORIDOMNode_var node;
    QORUnicodeString value;
    const auto ofNode = [&](const char* name) { return Services::GetAttributeValue(node, name, value); };
    ASSERT_EQ(Services::GetNode(r, "r/q[1]", node), S_OK);
    for (const auto& [name, expected] : {std::pair{"k", "v"}, {"K", ""}}) {
        EXPECT_EQ(ofNode(name), S_OK);
        EXPECT_EQ(value, expected);
    }
    ASSERT_EQ(Services::GetNode(r, "r/p/text()", node), S_OK);
    EXPECT_EQ(outcome([&] { return ofNode("k"); }), "8000ffff 1");
    node = {};
    EXPECT_EQ(ofNode("k"), E_UNEXPECTED);
}

TEST_F(XmlServices, PassesTheParsersFailuresOn) {
    QORIDOMDocument_var made, read = document("<a/>");
    const auto all = [&] {
        return std::vector{Services::CreateDOMDocument("a", made), Services::GetDOMDocument(path("document.xml"), made),
                           Services::WriteDOMDocument(read, path("b.xml"))};
    };
    platform.createBuilder = [](const IID&, QORIXMLDOMDocumentBuilder_var&) -> HRESULT { return E_PLATFORM; };
    const std::uint64_t before = assertionCount();
    EXPECT_THAT(all(), ElementsAre(E_PLATFORM, E_UNEXPECTED, E_UNEXPECTED));
    EXPECT_EQ(assertionCount(), before + 3);
    platform.createBuilder = [](const IID&, QORIXMLDOMDocumentBuilder_var&) -> HRESULT { return S_OK; };
    EXPECT_THAT(all(), ElementsAre(E_UNEXPECTED, E_UNEXPECTED, E_UNEXPECTED));

    platform.createBuilder = [](const IID&, QORIXMLDOMDocumentBuilder_var& builder) -> HRESULT {
        builder = QORIXMLDOMDocumentBuilder_var::adopt(new Builder);
        return S_OK;
    };
    made = {};
    EXPECT_THAT(all(), ElementsAre(E_UNEXPECTED, E_UNEXPECTED, S_OK)) << "success without a document";
    EXPECT_EQ(Builder::options,
              "QORDoValidation=false;QOREnableNameSpaces=true;QOREncoding=UTF-8;QORLineSeparator=\r\n;"
              "QORIndentation=2;QORIndentationCharacter= ;");
    Builder::answer = E_PLATFORM;
    EXPECT_THAT(all(), ElementsAre(E_PLATFORM, E_PLATFORM, E_PLATFORM));
}

TEST_F(XmlServices, PassesTheFailuresOfADocumentOn) {
    const auto filter = QORBaseUnknown_var::adopt(new QORXCADNodeFilter("Item", "name"));
    const QORIDOMNodeFilter_var asked = filter;
    const QORIDOMNode_var item = QORIDOMNode_var::adopt(new Failing);
    // How reading a value ends, and how the filter does.
    for (const auto& [failing, reading, filtering] : casesOf(R"(CreateXPathExpression: 80070005 3 -> 0 0
        SetNamespaces: 80070005 3 -> 0 0
        Evaluate: 80070005 3 -> 0 0
        GetLength: 80070005 2 -> 0 0
        Item: 80070005 2 -> 0 0
        GetNodeName: 80070005 1 -> 0 0
        GetNodeValue: 80070005 1 -> 0 0
        GetFirstChild: 80070005 1 -> 0 0
        GetNodeType: 0 0 -> 80070005 1
        cast: 0 0 -> 8000ffff 1
        GetTagName: 0 0 -> 80070005 1
        GetAttribute: 0 0 -> 80070005 1
        : 0 0 -> 0 0)")) {
        QORUnicodeString value;
        unsigned int answer = 7;
        Failing::operation = failing;
        EXPECT_EQ(outcome([&] { return Services::GetNodeValue(Failing::document(), "x", value); }), reading) << failing;
        EXPECT_EQ(outcome([&] { return asked->acceptNode(item, answer); }), filtering) << failing;
    }
}

TEST_F(XmlServices, FilterPicksElementsByTagAndName) {
    const QORIDOMDocument_var d = document("<l><Item Name='ABC'/><Item Name='abcd'/><item Name='ABC'/>Item<!--Item-->"
                                           "<Item/><x><Item Name='aBc'/></x><Item Name='STRASSE'/></l>");
    const auto picked = [&](const char* tag, const char* wanted) {
        const auto filter = QORBaseUnknown_var::adopt(new QORXCADNodeFilter(tag, wanted));
        const QORIDOMNodeFilter_var asked = filter;
        EXPECT_FALSE(asked.IsNull());
        EXPECT_EQ(asked, filter) << "the TIE stands for the filter";
        QORIDOMNodeIterator_var iterator;
        EXPECT_EQ(
            QORIDOMDocumentTraversal_var(d)->CreateNodeIterator(
                d, QORDOMNodeFilterType::SHOW_ELEMENT | QORDOMNodeFilterType::SHOW_ATTRIBUTE, asked, true, iterator),
            S_OK);
        std::vector<std::string> names;
        QORIDOMNode_var node;
        while (iterator->NextNode(node) == S_OK && !node.IsNull()) {
            QORUnicodeString value;
            EXPECT_EQ(Services::GetAttributeValue(node, "Name", value), S_OK);
            names.emplace_back(value.utf8());
        }
        return names;
    };
    EXPECT_THAT(picked("Item", "abc"), ElementsAre("ABC", "aBc"));
    EXPECT_THAT(picked("Item", ""), ElementsAre("ABC", "abcd", "", "aBc", "STRASSE"));
    EXPECT_THAT(picked("item", "Abc"), ElementsAre("ABC"));
    EXPECT_THAT(picked("Item", "ab"), IsEmpty());
    EXPECT_THAT(picked("#text", ""), IsEmpty());
}

TEST_F(XmlServices, FilterIsNoComponentOfItsOwn) {
    auto* filter = new QORXCADNodeFilter("Item", "");
    const auto held = QORBaseUnknown_var::adopt(filter);
    unsigned int answer = 7;
    EXPECT_EQ(outcome([&] { return filter->acceptNode({}, answer); }), "8000ffff 1");
    EXPECT_EQ(answer, 2U);
    const QORIDOMDocument_var d = document("<Item>t</Item>");
    for (const auto& [xpath, expected] : {std::pair{"Item", 0U}, {"Item/text()", 2U}, {"/", 2U}}) {
        QORIDOMNode_var node;
        ASSERT_EQ(Services::GetNode(d, xpath, node), S_OK);
        EXPECT_EQ(filter->acceptNode(node, answer), S_OK);
        EXPECT_EQ(answer, expected) << xpath;
    }
    EXPECT_STREQ(QORXCADNodeFilter::ClassName(), "QORXCADNodeFilter");
    EXPECT_STREQ(held->IsA(), "QORXCADNodeFilter");
    EXPECT_EQ(held->IsAKindOf("QORIDOMNodeFilter"), 0);
    EXPECT_STREQ(QORXCADNodeFilter::MetaObject()->GetExtendedClassName(), "QORnull");
    const QORIDOMNodeFilter_var tie = held;
    EXPECT_EQ(tie->GetMetaObject()->GetTypeOfClass(), TypeOfTie);
    // Nothing else gets the interface, and asking is no fault.
    EXPECT_EQ(outcome([&] { return QORIDOMNodeFilter_var(d).IsNull() ? 1 : 0; }), "1 0");
}

} // namespace velkor::test

// The program's own entry stands in for the platform's, which it calls.
HRESULT CreateQORIXMLDOMDocumentBuilder(const IID& implementation, QORIXMLDOMDocumentBuilder_var& builder) {
    using namespace velkor::test;
    platform.builders.push_back(implementation);
    if (platform.createBuilder != nullptr) return platform.createBuilder(implementation, builder);
    using Create = HRESULT (*)(const IID&, QORIXMLDOMDocumentBuilder_var&);
    static const auto real = reinterpret_cast<Create>(
        dlsym(RTLD_NEXT, "_Z31CreateQORIXMLDOMDocumentBuilderRK3IIDR16QORInterface_varI25QORIXMLDOMDocumentBuilderE"));
    return real(implementation, builder);
}
