#include "Matchers.h"
#include "velkor/xml/QORIDOMDocumentTraversal.h"
#include "velkor/xml/QORIDOMNodeFilter.h"
#include "velkor/xml/QORIDOMNodeIterator.h"
#include "XmlSupport.h"

#include <functional>

namespace velkor::xml::test {

using Type = QORDOMNodeFilterType;

namespace {

struct Filter final : QORIDOMNodeFilter {
    using Accept = std::function<HRESULT(const QORIDOMNode_var&, unsigned int&)>;
    explicit Filter(Accept answer) : accept(std::move(answer)) {}
    HRESULT acceptNode(const QORIDOMNode_var& node, unsigned int& answer) override { return accept(node, answer); }
    Accept accept;
};

QORIDOMNode_var step(const QORIDOMNodeIterator_var& iterator, bool forward = true) {
    QORIDOMNode_var node;
    EXPECT_EQ(forward ? iterator->NextNode(node) : iterator->PreviousNode(node), S_OK);
    return node;
}

std::vector<std::string> walk(const QORIDOMNodeIterator_var& iterator, bool forward = true) {
    std::vector<std::string> result;
    for (QORIDOMNode_var node = step(iterator, forward); !node.IsNull(); node = step(iterator, forward)) {
        result.push_back(nameOrValue(node));
    }
    return result;
}

class Traversal : public testing::Test {
protected:
    QORIDOMNodeIterator_var iterator(const QORIDOMNode_var& from, unsigned int show,
                                     const QORIDOMNodeFilter_var& filter = {}) const {
        QORIDOMNodeIterator_var result;
        EXPECT_EQ(QORIDOMDocumentTraversal_var(document)->CreateNodeIterator(from, show, filter, true, result), S_OK);
        return result;
    }
    QORIDOMNode_var find(const char* tag) const {
        QORIDOMNodeList_var found;
        EXPECT_EQ(document->GetElementsByTagName(tag, found), S_OK);
        QORIDOMNode_var node;
        EXPECT_EQ(found->Item(0, node), S_OK);
        return node;
    }

    const QORIDOMDocument_var document =
        read("<!--0--><!DOCTYPE a><a x='1'>1<b><c/>2</b><?p 3?><d><![CDATA[4]]></d></a>");
};

} // namespace

TEST_F(Traversal, ShowsKindsOfNodeInTheOrderOfTheDocument) {
    const auto shown = [&](const QORIDOMNode_var& from, unsigned int kinds) { return walk(iterator(from, kinds)); };
    EXPECT_THAT(shown(document, Type::SHOW_ALL), ElementsAre("", "0", "a", "a", "1", "b", "c", "2", "p", "d", "4"));
    EXPECT_THAT(shown(document, Type::SHOW_ELEMENT | Type::SHOW_ATTRIBUTE), ElementsAre("a", "b", "c", "d"));
    EXPECT_THAT(shown(document, Type::SHOW_TEXT | Type::SHOW_CDATA_SECTION), ElementsAre("1", "2", "4"));
    EXPECT_THAT(shown(document, Type::SHOW_COMMENT | Type::SHOW_PROCESSING_INSTRUCTION), ElementsAre("0", "p"));
    EXPECT_THAT(shown(document, Type::SHOW_DOCUMENT | Type::SHOW_DOCUMENT_TYPE), ElementsAre("", "a"));
    EXPECT_THAT(shown(document, 0), IsEmpty());
    EXPECT_THAT(shown(find("b"), Type::SHOW_ALL), ElementsAre("b", "c", "2")) << "nothing beside the root";
    EXPECT_THAT(shown(find("c"), Type::SHOW_ALL), ElementsAre("c"));
}

TEST_F(Traversal, GoesBothWaysInItsOwnDocument) {
    const auto elements = iterator(root(document), Type::SHOW_ELEMENT);
    EXPECT_TRUE(step(elements, false).IsNull());
    EXPECT_EQ(name(step(elements)), "a");
    EXPECT_EQ(name(step(elements, false)), "a") << "it stands between nodes";
    EXPECT_THAT(walk(elements), ElementsAre("a", "b", "c", "d"));
    EXPECT_TRUE(step(elements).IsNull());
    EXPECT_THAT(walk(elements, false), ElementsAre("d", "c", "b", "a"));
    EXPECT_EQ(name(got<QORIDOMNode_var>(elements, &QORIDOMNodeIterator::GetRoot)), "a");
    for (const QORIDOMNode_var& wrong : {QORIDOMNode_var(root(read("<a/>"))), QORIDOMNode_var()}) {
        QORIDOMNodeIterator_var none = elements;
        const QORIDOMDocumentTraversal_var traversal = document;
        EXPECT_EQ(traversal->CreateNodeIterator(wrong, Type::SHOW_ALL, {}, true, none), E_INVALIDARG);
        EXPECT_TRUE(none.IsNull());
    }
}

TEST_F(Traversal, AsksTheFilterAboutWhatIsShown) {
    std::vector<std::string> asked;
    HRESULT result = S_OK;
    const auto filter = QORIDOMNodeFilter_var::adopt(new Filter([&](const QORIDOMNode_var& node, unsigned int& answer) {
        asked.push_back(name(node));
        const bool isWanted = name(node) == "c" || name(node) == "d";
        answer = isWanted ? Type::FILTER_ACCEPT : name(node) == "a" ? Type::FILTER_REJECT : Type::FILTER_SKIP;
        return name(node) == "d" ? result : S_OK;
    }));
    const auto elements = iterator(document, Type::SHOW_ELEMENT, filter);
    EXPECT_THAT(walk(elements), ElementsAre("c", "d")) << "what is below a rejected node is asked about all the same";
    EXPECT_THAT(asked, ElementsAre("a", "b", "c", "d"));

    result = E_UNEXPECTED;
    const auto failing = iterator(document, Type::SHOW_ELEMENT, filter);
    EXPECT_EQ(name(step(failing)), "c");
    QORIDOMNode_var node = document;
    EXPECT_EQ(failing->NextNode(node), E_UNEXPECTED);
    EXPECT_TRUE(node.IsNull());
    result = S_OK;
    EXPECT_EQ(name(step(failing)), "d") << "a failure leaves it where it stood";
}

TEST_F(Traversal, SurvivesChangesOfTheTree) {
    const QORIDOMNode_var a = root(document), b = find("b"), c = find("c"), d = find("d");
    const auto behind = iterator(a, Type::SHOW_ELEMENT), before = iterator(a, Type::SHOW_ELEMENT),
               inside = iterator(b, Type::SHOW_ELEMENT), last = iterator(a, Type::SHOW_ELEMENT);
    for (int i = 0; i < 3; ++i) static_cast<void>(step(behind)); // behind c
    for (int i = 0; i < 3; ++i) static_cast<void>(step(before));
    static_cast<void>(step(before, false)); // before c
    static_cast<void>(walk(last));
    static_cast<void>(step(last, false)); // before d
    ASSERT_EQ(a->RemoveChild(b), S_OK);
    ASSERT_EQ(a->RemoveChild(d), S_OK);
    EXPECT_THAT(walk(inside), ElementsAre("b", "c")) << "a walk of what is removed goes on there";
    ASSERT_EQ(a->AppendChild(c), S_OK);
    EXPECT_THAT(walk(behind), ElementsAre("c"));
    EXPECT_THAT(walk(before), ElementsAre("c"));
    EXPECT_THAT(walk(last), ElementsAre("c"));

    // A filter that takes away what it is shown.
    const auto hungry = QORIDOMNodeFilter_var::adopt(new Filter([&](const QORIDOMNode_var& node, unsigned int& answer) {
        answer = Type::FILTER_SKIP;
        return name(node) == "c" ? a->RemoveChild(node) : S_OK;
    }));
    EXPECT_THAT(walk(iterator(a, Type::SHOW_ELEMENT, hungry)), IsEmpty());
    EXPECT_THAT(children(a), ElementsAre("1", "p"));
}

} // namespace velkor::xml::test
