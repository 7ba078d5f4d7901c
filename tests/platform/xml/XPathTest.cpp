#include "Matchers.h"
#include "XmlSupport.h"

namespace velkor::xml::test {

namespace {

QORIDOMNodeList_var select(const QORIDOMDocument_var& document, const char* xpath, HRESULT result = S_OK) {
    QORIXMLXPathExpression_var expression;
    const QORIXMLXPathFactory_var factory = document;
    EXPECT_EQ(factory->CreateXPathExpression(xpath, expression), S_OK) << xpath;
    EXPECT_EQ(expression->SetNamespaces(list({"n"}), list({"urn:n"})), S_OK);
    QORIDOMNodeList_var nodes = got<QORIDOMNodeList_var>(document, &QORIDOMNode::GetChildNodes);
    EXPECT_EQ(expression->Evaluate(nodes), result) << xpath;
    EXPECT_EQ(nodes.IsNull(), FAILED(result)) << "what was there before is gone";
    return nodes;
}

} // namespace

TEST(XPath, SelectsInTheOrderOfTheDocument) {
    const QORIDOMDocument_var document = read("<a xmlns:m='urn:n'><b k='1'/>t<m:c/><b k='2'><d/><!--e--></b></a>");
    const auto selected = [&](const char* xpath) { return names(select(document, xpath)); };
    EXPECT_THAT(selected("a/b"), ElementsAre("b", "b"));
    EXPECT_THAT(selected("//d | //b | /a"), ElementsAre("a", "b", "b", "d"));
    EXPECT_THAT(selected("//d/preceding::b"), ElementsAre("b"));
    EXPECT_THAT(selected("//n:c"), ElementsAre("m:c")) << "by the caller's prefix";
    EXPECT_THAT(selected("//@k"), ElementsAre("k", "k"));
    EXPECT_THAT(selected("//text() | //comment()"), ElementsAre("t", "e"));
    EXPECT_THAT(selected("/"), ElementsAre(""));
    EXPECT_THAT(selected("c | b | A"), IsEmpty());
    EXPECT_THAT(selected("//namespace::*"), IsEmpty()) << "those are no nodes of the DOM";
    EXPECT_EQ(select(document, "a/b[2]/d")->IsNull(), 0);

    // What was selected stays, whatever becomes of the document.
    const auto bs = select(document, "//b");
    QORIDOMNode_var second;
    ASSERT_EQ(bs->Item(1, second), S_OK);
    ASSERT_EQ(root(document)->RemoveChild(second), S_OK);
    EXPECT_THAT(names(bs), ElementsAre("b", "b"));
    EXPECT_THAT(selected("//b"), ElementsAre("b"));
}

TEST(XPath, SaysWhatIsWrongWithAnExpression) {
    const QORIDOMDocument_var document = read("<a/>");
    const QORIXMLXPathFactory_var factory = document;
    Log log;
    for (const char* xpath : {"", "//", "a[", "a//b)", "\xFF"}) {
        log.clear();
        QORIXMLXPathExpression_var expression;
        EXPECT_EQ(factory->CreateXPathExpression(xpath, expression), E_FAIL) << xpath;
        EXPECT_TRUE(expression.IsNull());
        EXPECT_THAT(log.texts(), ElementsAre(AllOf(StartsWith("text: XPath \""), HasSubstr(xpath)))) << xpath;
    }
    for (const auto& [xpath, reason] : {std::pair{"q:a", "namespace prefix"},
                                        {"f(a)", "function"},
                                        {"$v", "variable"},
                                        {"count(//a)", "gives no nodes"},
                                        {"'text'", "gives no nodes"}}) {
        log.clear();
        select(document, xpath, E_FAIL);
        EXPECT_THAT(log.texts(), Not(IsEmpty()));
        EXPECT_THAT(log.texts().front(), AllOf(HasSubstr(xpath), HasSubstr(reason)));
    }
    QORIXMLXPathExpression_var expression;
    ASSERT_EQ(factory->CreateXPathExpression("a", expression), S_OK);
    EXPECT_EQ(expression->SetNamespaces(list({"a", "b"}), list({"urn:a"})), E_INVALIDARG);
}

} // namespace velkor::xml::test
