#include "Matchers.h"
#include "velkor/objectmodeler/CallRecorder.h"
#include "velkor/xml/QORIDOMDocumentTraversal.h"
#include "velkor/xml/QORIDOMImplementation.h"
#include "XmlSupport.h"

#include <array>

namespace velkor::xml::test {

namespace {

constexpr const char* sample = "<?xml version='1.0'?><!-- before --><!DOCTYPE a PUBLIC 'pub' 'a.dtd' ["
                               "<!ENTITY e 'of an <i>entity</i>'><!ATTLIST a d CDATA 'default'>]>"
                               "<a xmlns='urn:one' xmlns:p='urn:two' p:x='1 &amp; 2' x='3'>text "
                               "<p:b/><![CDATA[<c>]]><?target data?>&e;</a><!-- behind -->";

QORIDOMElement_var element(const QORIDOMDocument_var& document, const char* name) {
    QORIDOMElement_var made;
    EXPECT_EQ(document->CreateElement(name, made), S_OK);
    return made;
}

std::string attribute(const QORIDOMElement_var& element, const char* name) {
    QORUnicodeString result = "untouched";
    EXPECT_EQ(element->GetAttribute(name, result), S_OK);
    return std::string(result.utf8());
}

} // namespace

TEST(Document, TellsOfEachKindOfNode) {
    const QORIDOMDocument_var document = read(sample);
    EXPECT_THAT(children(document), ElementsAre(" before ", "a", "a", " behind "));
    const QORIDOMElement_var a = root(document);
    EXPECT_THAT(children(a), ElementsAre("text ", "p:b", "<c>", "target", "of an ", "i"));

    using Texts = std::array<const char*, 5>; // name, value, namespace, prefix, local name
    const auto check = [](const QORIDOMNode_var& node, unsigned short type, const Texts& texts) {
        EXPECT_EQ(got<unsigned short>(node, &QORIDOMNode::GetNodeType), type) << texts[0];
        const std::array told{name(node), value(node), test::told(node, &QORIDOMNode::GetNamespaceURI),
                              test::told(node, &QORIDOMNode::GetPrefix), test::told(node, &QORIDOMNode::GetLocalName)};
        EXPECT_THAT(told, testing::ElementsAreArray(texts));
        return node.IsNull() ? node : next(node);
    };
    check(document, 9, {"#document", "", "", "", ""});
    check(check(first(document), 8, {"#comment", " before ", "", "", ""}), 10, {"a", "", "", "", ""});
    check(a, 1, {"a", "", "urn:one", "", "a"});
    QORIDOMNode_var child = check(first(a), 3, {"#text", "text ", "", "", ""});
    child = check(child, 1, {"p:b", "", "urn:two", "p", "b"});
    child = check(child, 4, {"#cdata-section", "<c>", "", "", ""});
    check(child, 7, {"target", "data", "", "", ""});
    QORIDOMAttr_var x;
    ASSERT_EQ(a->GetAttributeNode("p:x", x), S_OK);
    EXPECT_TRUE(check(x, 2, {"p:x", "1 & 2", "urn:two", "p", "x"}).IsNull());
    EXPECT_TRUE(got<QORIDOMNode_var>(x, &QORIDOMNode::GetParentNode).IsNull());
    EXPECT_EQ(got<QORIDOMElement_var>(x, &QORIDOMAttr::GetOwnerElement), a);

    EXPECT_EQ(told(QORIDOMNode_var(a), &QORIDOMNode::GetTextContent), "text <c>of an entity");
    const auto type = got<QORIDOMDocumentType_var>(document, &QORIDOMDocument::GetDoctype);
    EXPECT_EQ(told(type, &QORIDOMDocumentType::GetPublicId) + told(type, &QORIDOMDocumentType::GetSystemId),
              "puba.dtd");
    EXPECT_THAT(children(type), IsEmpty()) << "declarations are no nodes";
    EXPECT_EQ(got<QORIDOMDocument_var>(a, &QORIDOMNode::GetOwnerDocument), document);
    EXPECT_TRUE(got<QORIDOMDocument_var>(document, &QORIDOMNode::GetOwnerDocument).IsNull());
}

TEST(Document, FindsAttributesByTheirFullName) {
    const QORIDOMElement_var a = root(read(sample));
    for (const auto& [name, value] : {std::pair{"x", "3"},
                                      {"p:x", "1 & 2"},
                                      {"d", "default"},
                                      {"xmlns", "urn:one"},
                                      {"xmlns:p", "urn:two"},
                                      {"X", ""},
                                      {"p:d", ""},
                                      {"px", ""},
                                      {":x", ""},
                                      {"p:", ""},
                                      {"xmlns:q", ""},
                                      {"xmlnsp", ""},
                                      {"", ""}}) {
        EXPECT_EQ(attribute(a, name), value);
        bool has = *value == '\0';
        EXPECT_EQ(a->HasAttribute(name, has), S_OK);
        EXPECT_EQ(has, *value != '\0') << name;
        QORIDOMAttr_var node;
        EXPECT_EQ(a->GetAttributeNode(name, node), S_OK);
        EXPECT_TRUE(has || node.IsNull());
    }
    EXPECT_THAT(names(got<QORIDOMNodeList_var>(a, &QORIDOMElement::GetAttributes)), ElementsAre("p:x", "x", "d"));
}

TEST(Document, KnowsANodeAgainAndLivesAsLongAsOne) {
    QORIDOMDocument_var document = read("<a><b>kept</b></a>");
    QORIDOMNode_var text = first(first(root(document)));
    EXPECT_EQ(root(document), root(document));
    EXPECT_EQ(root(document)->IsEqual(first(document).get()), 1);
    EXPECT_NE(root(document), first(root(document)));
    const QORIDOMDocumentTraversal_var traversal = document;
    EXPECT_EQ(traversal->IsEqual(document.get()), 1) << "an extension stands for its document";
    EXPECT_EQ(QORIDOMDocument_var(traversal), document);
    void* byName = nullptr;
    EXPECT_EQ(document->QueryInterface("QORIXMLXPathFactory", &byName), S_OK);
    EXPECT_EQ(QORBaseUnknown_var::adopt(static_cast<QORBaseUnknown*>(byName)), document);
    EXPECT_TRUE(QORIDOMElement_var(document).IsNull());
    EXPECT_TRUE(QORIDOMAttr_var(text).IsNull());

    // The last pointer into the document holds all of it.
    document = {};
    EXPECT_EQ(value(text), "kept");
    EXPECT_EQ(name(got<QORIDOMNode_var>(text, &QORIDOMNode::GetParentNode)), "b");
}

TEST(Document, ChangesItsTree) {
    const QORIDOMDocument_var document = read("<a xmlns:p='urn:p'><p:b p:x='1'/>one</a>");
    const QORIDOMElement_var a = root(document);
    const auto list = got<QORIDOMNodeList_var>(a, &QORIDOMNode::GetChildNodes);
    QORIDOMNodeList_var all;
    ASSERT_EQ(document->GetElementsByTagName("*", all), S_OK);
    const QORIDOMNode_var b = first(a), one = next(b);
    QORIDOMNode_var two;
    ASSERT_EQ(document->CreateTextNode("two", two), S_OK);

    // Neighbouring texts stay apart, nodes move, lists follow.
    EXPECT_EQ(a->AppendChild(two), S_OK);
    EXPECT_EQ(a->InsertBefore(element(document, "c"), b), S_OK);
    EXPECT_EQ(a->AppendChild(b), S_OK);
    EXPECT_EQ(a->InsertBefore(one, one), S_OK) << "before itself is where it is";
    EXPECT_THAT(names(list), ElementsAre("c", "one", "two", "p:b"));
    EXPECT_THAT(names(all), ElementsAre("a", "c", "p:b"));
    EXPECT_EQ(text(document), "<a xmlns:p=\"urn:p\"><c/>onetwo<p:b xmlns:p=\"urn:p\" p:x=\"1\"/></a>\n");

    // What is taken out stays usable, its namespace with it.
    EXPECT_EQ(a->RemoveChild(b), S_OK);
    EXPECT_EQ(a->RemoveChild(b), E_INVALIDARG);
    EXPECT_TRUE(got<QORIDOMNode_var>(b, &QORIDOMNode::GetParentNode).IsNull());
    EXPECT_EQ(told(b, &QORIDOMNode::GetNamespaceURI), "urn:p");
    EXPECT_THAT(names(all), ElementsAre("a", "c"));
    EXPECT_EQ(b->AppendChild(one), S_OK);
    EXPECT_EQ(first(a)->AppendChild(b), S_OK);
    EXPECT_EQ(one->SetNodeValue("1 < 2"), S_OK);
    EXPECT_EQ(a->SetNodeValue("nothing"), S_OK);
    EXPECT_EQ(text(document), "<a xmlns:p=\"urn:p\"><c><p:b xmlns:p=\"urn:p\" p:x=\"1\">1 &lt; 2</p:b></c>two</a>\n");
}

TEST(Document, ChangesAttributes) {
    const QORIDOMDocument_var document = read("<a xmlns:p='urn:p' x='1' xml:id='i'/>");
    const QORIDOMElement_var a = root(document);
    QORIDOMAttr_var x;
    ASSERT_EQ(a->GetAttributeNode("x", x), S_OK);
    EXPECT_EQ(a->SetAttribute("x", "\"2\"\r\n\t<&"), S_OK);
    EXPECT_EQ(value(x), "\"2\"\r\n\t<&") << "the node follows";
    EXPECT_EQ(a->SetAttribute("p:y", "3"), S_OK);
    EXPECT_EQ(a->SetAttribute("xml:id", "j"), S_OK);
    EXPECT_EQ(text(document),
              "<a xmlns:p=\"urn:p\" x=\"&quot;2&quot;&#13;&#10;&#9;&lt;&amp;\" xml:id=\"j\" p:y=\"3\"/>\n");
    EXPECT_EQ(x->SetValue("4"), S_OK);
    EXPECT_EQ(attribute(a, "x"), "4");
    EXPECT_EQ(a->RemoveAttribute("x"), S_OK);
    EXPECT_EQ(a->RemoveAttribute("xml:id"), S_OK);
    EXPECT_EQ(a->RemoveAttribute("absent"), S_OK);
    EXPECT_EQ(value(x), "4") << "it stays usable";
    EXPECT_TRUE(got<QORIDOMElement_var>(x, &QORIDOMAttr::GetOwnerElement).IsNull());
    EXPECT_EQ(text(document), "<a xmlns:p=\"urn:p\" p:y=\"3\"/>\n");
}

TEST(Document, RefusesWhatCouldNotBeWritten) {
    const QORIDOMDocument_var document = read("<!DOCTYPE a><a/>"), other = read("<o/>");
    const QORIDOMElement_var a = root(document);
    QORIDOMElement_var none = a;
    for (const char* name : {"", "1", "a b", "a:b", ":b", "a:", "<", "\xFF", "a\x01"}) {
        EXPECT_EQ(document->CreateElement(name, none), E_INVALIDARG) << name;
        EXPECT_TRUE(none.IsNull());
        EXPECT_EQ(a->SetAttribute(name, "x"), E_INVALIDARG) << name;
    }
    for (const char* name : {"xmlns", "xmlns:p", "q:x"}) EXPECT_EQ(a->SetAttribute(name, "urn:x"), E_INVALIDARG);
    EXPECT_EQ(document->CreateElementNS("urn:x", "xmlns:x", none), E_INVALIDARG);
    QORIDOMNode_var node;
    for (const char* text : {"\x01", "\xC3", "\x89\x9A", "\xC0\x80", "\xED\xA0\x80", "\xEF\xBF\xBE"}) {
        EXPECT_EQ(document->CreateTextNode(text, node), E_INVALIDARG);
        EXPECT_EQ(a->SetAttribute("x", text), E_INVALIDARG);
    }
    EXPECT_EQ(document->CreateCDATASection("a]]>b", node), E_INVALIDARG);
    for (const char* text : {"--", "-", "a\rb"}) EXPECT_EQ(document->CreateComment(text, node), E_INVALIDARG) << text;
    for (const auto& [target, data] : {std::pair{"xMl", ""}, {"1", ""}, {"t", "?>"}, {"t", " x"}, {"a:b", ""}}) {
        EXPECT_EQ(document->CreateProcessingInstruction(target, data, node), E_INVALIDARG) << target;
    }

    const QORIDOMElement_var b = element(document, "b"), c = element(document, "c");
    EXPECT_EQ(a->AppendChild(b), S_OK);
    EXPECT_EQ(b->AppendChild(a), E_INVALIDARG) << "into itself";
    EXPECT_EQ(b->AppendChild(b), E_INVALIDARG);
    EXPECT_EQ(a->AppendChild(root(other)), E_INVALIDARG) << "of another document";
    EXPECT_EQ(a->AppendChild(document), E_INVALIDARG);
    EXPECT_EQ(a->AppendChild({}), E_INVALIDARG);
    EXPECT_EQ(a->InsertBefore(c, a), E_INVALIDARG) << "before what is no child";
    EXPECT_EQ(document->AppendChild(c), E_INVALIDARG) << "a second document element";
    ASSERT_EQ(document->CreateTextNode(" ", node), S_OK);
    EXPECT_EQ(document->AppendChild(node), E_INVALIDARG);
    EXPECT_EQ(document->InsertBefore(a, first(document)), E_INVALIDARG) << "before the document type";
    EXPECT_EQ(document->RemoveChild(first(document)), E_INVALIDARG);
    EXPECT_EQ(text(document), "<!DOCTYPE a>\n<a><b/></a>\n");
}

TEST(Document, IsMadeEmptyOrWithItsElement) {
    QORIDOMDocument_var document;
    ASSERT_EQ(builder()->CreateDocument(document), S_OK);
    EXPECT_TRUE(root(document).IsNull());
    EXPECT_EQ(document->AppendChild(element(document, "a")), S_OK);
    EXPECT_EQ(text(document), "<a/>\n");

    const auto implementation =
        got<QORIDOMImplementation_var>(builder(), &QORIXMLDOMDocumentBuilder::GetDOMImplementation);
    const auto type = got<QORIDOMDocumentType_var>(read(sample), &QORIDOMDocument::GetDoctype);
    ASSERT_EQ(implementation->CreateDocument("urn:p", "p:a", type, document), S_OK);
    QORIDOMElement_var b;
    ASSERT_EQ(document->CreateElementNS("urn:b", "b", b), S_OK);
    EXPECT_EQ(root(document)->AppendChild(b), S_OK);
    EXPECT_EQ(text(document),
              "<!DOCTYPE a PUBLIC \"pub\" \"a.dtd\">\n<p:a xmlns:p=\"urn:p\"><b xmlns=\"urn:b\"/></p:a>\n");
    for (const auto& [uri, name] : {std::pair{"", "p:a"}, {"", ""}, {"urn:p", "1"}, {"\x01", "a"}}) {
        EXPECT_EQ(implementation->CreateDocument(uri, name, {}, document), E_INVALIDARG);
        EXPECT_TRUE(document.IsNull());
    }
    QORIXMLDOMDocumentBuilder_var builder;
    EXPECT_EQ(CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C_DOM, builder), S_OK);
    EXPECT_EQ(CreateQORIXMLDOMDocumentBuilder(CLSID_XML4C5_SAX, builder), E_INVALIDARG);
    EXPECT_TRUE(builder.IsNull());
}

} // namespace velkor::xml::test
