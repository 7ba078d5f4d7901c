#include "Matchers.h"
#include "TemporaryFolder.h"
#include "XmlSupport.h"

#include <algorithm>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>

namespace velkor::xml::test {

namespace {

HRESULT parse(const std::string& path, QORIDOMDocument_var& document, const QORListValQORUnicodeString& names = {},
              const QORListValQORUnicodeString& values = {}) {
    return builder()->Parse(QORUnicodeString(std::string_view(path)), document, names, values, {}, {});
}

/// The messages about a text that must be refused.
std::vector<std::string> messagesAbout(std::string_view bytes) {
    const Log log;
    QORIDOMDocument_var document = read("<before/>");
    EXPECT_EQ(read(bytes, document), E_FAIL) << bytes.substr(0, 200);
    EXPECT_TRUE(document.IsNull());
    return log.texts();
}

long peakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss / 1024;
}

std::string repeated(const std::string& text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) result += text;
    return result;
}

} // namespace

TEST(Parser, SaysWhereATextIsNotWellFormed) {
    for (const auto& [bytes, place, reason] :
         {std::tuple{"<a>\n  <b>\n</a>", "text:3:5: ", "b"},
          {"<a/>\n<b/>", "text:2:1: ", "Extra content"},
          {"", "text", ""},
          {"no markup", "text:1:1: ", ""},
          {"<a x='1' x='2'/>", "text:1:", "redefined"},
          {"<a>\n&b;</a>", "text:2:4: ", "'b'"},
          {"<a>\xFF</a>", "text:1:4: ", "UTF-8"},
          {"<a>\n<p:b/></a>", "text:2:5: ", "prefix p"},
          {"<a>\x01</a>", "text:1:4: ", "invalid Char"},
          {"<?xml version='1.0' encoding='x-unheard-of'?><a/>", "text:1:", "encoding"}}) {
        const auto messages = messagesAbout(bytes);
        ASSERT_THAT(messages, Not(IsEmpty())) << bytes;
        EXPECT_THAT(messages.front(), AllOf(StartsWith(place), HasSubstr(reason)));
        for (const std::string& message : messages) EXPECT_EQ(message.find('\n'), std::string::npos) << message;
    }
    EXPECT_THAT(messagesAbout("<a>" + repeated("<p:b/>", 1000) + "</a>"), SizeIs(20)) << "a few are enough";
    Log log(0);
    QORIDOMDocument_var document;
    EXPECT_EQ(read("<a>", document), E_FAIL);
    EXPECT_THAT(log.texts(), IsEmpty()) << "the log takes no messages";
}

TEST(Parser, TellsAHandlerInPlaceOfTheLog) {
    struct Handler final : QORIXMLErrorHandler {
        HRESULT Warning(const QORXMLMessage& message) override { return keep("warning ", message); }
        HRESULT Error(const QORXMLMessage& message) override { return keep("error ", message); }
        HRESULT keep(const std::string& kind, const QORXMLMessage& message) {
            told.push_back(kind + message.systemId.ConvertToChar() + ' ' + std::to_string(message.line) + ' ' +
                           std::to_string(message.column));
            EXPECT_FALSE(message.text.IsEmpty());
            return E_FAIL;
        }
        std::vector<std::string> told;
    };
    const Log log;
    auto* handler = new Handler;
    const auto held = QORIXMLErrorHandler_var::adopt(handler);
    QORIDOMDocument_var document;
    EXPECT_EQ(read("<a\nxmlns='relative'/>", document, held), S_OK);
    EXPECT_FALSE(document.IsNull());
    EXPECT_EQ(read("<a>\n</b>", document, held), E_FAIL);
    EXPECT_THAT(handler->told, ElementsAre("warning text 2 17", StartsWith("error text 2 ")));
    EXPECT_THAT(log.texts(), IsEmpty());
}

TEST(Parser, OpensTheFileItIsGivenAndNoOther) {
    const velkor::test::TemporaryFolder folder;
    const std::string secret = folder.file("secret.xml", "<secret>told</secret>");
    folder.file("secret.dtd", "<!ENTITY told 'secret'><!ATTLIST a x CDATA 'secret'>");
    const auto document = [&](const std::string& declarations, const std::string& content) {
        return folder.file("document.xml", "<!DOCTYPE a " + declarations + "><a>" + content + "</a>");
    };
    QORIDOMDocument_var read;
    Log log;
    const std::string external = "[<!ENTITY e SYSTEM '" + secret + "'>]";
    for (const std::string& path : {document(external, "&e;"), document(external, "<b x='&e;'/>"),
                                    document("[<!ENTITY % e SYSTEM '" + folder.path + "/secret.dtd" + "'>%e;]", "x"),
                                    document("[<!ENTITY e SYSTEM 'http://127.0.0.1:9/e'><!ENTITY f '&e;'>]", "&f;")}) {
        log.clear();
        EXPECT_EQ(parse(path, read), E_FAIL);
        EXPECT_THAT(log.texts(), ElementsAre(AllOf(StartsWith(path + ":1:"), HasSubstr("external entity \"e\""))))
            << "and nothing about a file or the network";
    }
    // What is not referred to does no harm.
    for (const std::string& declarations : {"SYSTEM '" + folder.path + "/secret.dtd" + "'", external,
                                            std::string("PUBLIC 'x' 'http://127.0.0.1:9/x.dtd'")}) {
        ASSERT_EQ(parse(document(declarations, "plain"), read), S_OK) << declarations;
        EXPECT_EQ(told(QORIDOMNode_var(root(read)), &QORIDOMNode::GetTextContent), "plain");
        bool has = true;
        EXPECT_EQ(root(read)->HasAttribute("x", has), S_OK);
        EXPECT_FALSE(has);
    }
}

TEST(Parser, BoundsWhatATextGrowsTo) {
    std::string laughs = "<!DOCTYPE a [<!ENTITY l0 'ha'>";
    for (int i = 1; i <= 20; ++i) {
        const std::string inner = "&l" + std::to_string(i - 1) + ';';
        laughs += "<!ENTITY l" + std::to_string(i) + " '" + repeated(inner, 10) + "'>";
    }
    laughs += "]>";
    const std::string longEntity = "<!DOCTYPE a [<!ENTITY e '" + std::string(100000, 'x') + "'>]>";
    const std::string longDefault = "<!DOCTYPE a [<!ATTLIST b x CDATA '" + std::string(100000, 'x') + "'>]>";
    const auto numbered = [](const std::string& before, const std::string& behind, int count) {
        std::string result;
        for (int i = 0; i < count; ++i) result += before + std::to_string(i) + behind;
        return result;
    };
    const std::string crowded = numbered(" a", "=''", 300000);
    const std::string unlike = "<!DOCTYPE a [" + numbered("<!ATTLIST b a", " CDATA ''>", 9000) + "]>";
    const long before = peakMegabytes();
    // Unbounded, those of many attributes take minutes.
    for (const auto& [bytes, reason] :
         {std::pair{laughs + "<a>&l20;</a>", "entity"},
          {laughs + "<a x='&l20;'/>", "entity"},
          {longEntity + "<a>" + repeated("&e;", 50000) + "</a>", "entity"},
          {longDefault + "<a>" + repeated("<b/>", 50000) + "</a>", "defaults"},
          {"<!DOCTYPE a [<!ENTITY e '&e;'>]><a>&e;</a>", "entity"},
          {"<a>\n<b" + crowded + "/></a>", "1000 attributes"},
          {"<a" + numbered(" xmlns:a", "='u'", 300000) + "/>", "1000 namespaces"},
          {"<!DOCTYPE a [<!ENTITY e \"<b" + crowded + "/>\">]><a>&e;</a>", "64 KB"},
          {unlike + "<a><b/></a>", "1000 attributes"},
          {"<!DOCTYPE a [<!ATTLIST b" + numbered(" a", " CDATA ''", 300000) + ">]><b/>", "10000 attributes"},
          {"<a>" + numbered("<a", "/>", 200000) + "</a>", "100000 different names"},
          {"<a>" + numbered("<a b", "=''/>", 200000) + "</a>", "100000 different names"},
          {"<a>" + numbered("<?a", "?>", 200000) + "</a>", "100000 different names"},
          {"<a>" + std::string(10000001, 'x') + "</a>", "more than 10000000 bytes"},
          {"<a>" + repeated("<![CDATA[" + std::string(1000001, 'x') + "]]>", 10) + "</a>", "more than 10000000 bytes"},
          {"<a>" + std::string(10000001, ' ') + "</a>", "more than 10000000 bytes"},
          {repeated("<a>", 100000), "deeper than 256"},
          {repeated("<a>", 257) + repeated("</a>", 257), "deeper than 256"}}) {
        const auto messages = messagesAbout(bytes);
        ASSERT_THAT(messages, Not(IsEmpty())) << reason;
        EXPECT_THAT(messages.front(), AllOf(StartsWith("text:"), HasSubstr(reason)));
    }
    EXPECT_LT(peakMegabytes() - before, 500) << "unbounded, each of them takes gigabytes";
    EXPECT_FALSE(read(repeated("<a" + numbered(" a", "='1'", 1000) + ">", 256) + repeated("</a>", 256)).IsNull());
    EXPECT_FALSE(read("<a>" + numbered("<a", "/>", 99000) + std::string(10000000, 'x') + "</a>").IsNull());
}

TEST(Parser, ReadsFilesByEitherSeparator) {
    const velkor::test::TemporaryFolder folder;
    const std::string path = folder.file("größe/ä.xml", "\xEF\xBB\xBF<ä>\r\n ß</ä>");
    std::string backslashes = path;
    std::ranges::replace(backslashes, '/', '\\');
    QORIDOMDocument_var document;
    for (const std::string& spelled : {path, backslashes}) {
        ASSERT_EQ(parse(spelled, document), S_OK);
        EXPECT_EQ(name(root(document)), "ä");
        EXPECT_EQ(value(first(root(document))), "\n ß");
    }
    const std::string latin = folder.file("latin.xml", "<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE4</a>");
    ASSERT_EQ(parse(latin, document), S_OK);
    EXPECT_EQ(value(first(root(document))), "ä");

    Log log;
    const std::string compressed = folder.file("c.xml.gz", std::string("\x1F\x8B\x08\0\0\0\0\0\0\3", 10));
    for (const std::string& bad : {folder.path + "/none.xml", folder.path + "/größe", compressed, std::string()}) {
        log.clear();
        EXPECT_EQ(parse(bad, document), E_FAIL);
        EXPECT_TRUE(document.IsNull());
        ASSERT_THAT(log.texts(), Not(IsEmpty()));
        EXPECT_THAT(log.texts().front(), StartsWith(bad + ':'));
    }
    EXPECT_THAT(log.texts(), ElementsAre(": cannot be read: No such file or directory"));
    // A pipe that nobody writes to is not waited for; a file that breaks off is no text with a fault.
    const std::string pipe = folder.path + "/pipe.xml";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    for (const auto& [bad, reason] :
         {std::pair{pipe, "is no regular file"}, {std::string("/proc/self/mem"), "Input/output error"}}) {
        log.clear();
        EXPECT_EQ(parse(bad, document), E_FAIL);
        EXPECT_THAT(log.texts(), ElementsAre(bad + ": cannot be read: " + reason));
    }
}

// Run by itself, as the tests of a build tree are, this is the first use of all.
TEST(Parser, MayBeUsedFirstByTwoThreads) {
    std::vector<std::thread> threads;
    for (int i = 0; i < 2; ++i) threads.emplace_back([] { EXPECT_EQ(name(root(read("<a><b/></a>"))), "a"); });
    for (std::thread& thread : threads) thread.join();
}

TEST(Parser, TakesTheOptionsItKnows) {
    const velkor::test::TemporaryFolder folder;
    const std::string path = folder.file("a.xml", "<a/>");
    QORIDOMDocument_var document;
    EXPECT_EQ(parse(path, document, list({"QORDoValidation", "QOREnableNameSpaces"}), list({"false", "true"})), S_OK);
    Log log;
    for (const auto& [names, values] : {std::pair{list({"QORDoValidation"}), list({"true"})},
                                        {list({"QOREnableNameSpaces"}), list({"false"})},
                                        {list({"Unknown"}), list({"true"})},
                                        {list({"QORDoValidation"}), list({})}}) {
        log.clear();
        EXPECT_EQ(parse(path, document, names, values), E_INVALIDARG);
        EXPECT_TRUE(document.IsNull());
        EXPECT_THAT(log.texts(), SizeIs(1));
    }
    struct Resolver final : QORIXMLEntityResolver {
        HRESULT ResolveEntity(const QORUnicodeString&, const QORUnicodeString&, QORIXMLInputSource_var&) override {
            return S_OK;
        }
    };
    EXPECT_EQ(builder()->Parse(QORUnicodeString(std::string_view(path)), document, {}, {},
                               QORIXMLEntityResolver_var::adopt(new Resolver), {}),
              E_NOTIMPL);
    EXPECT_EQ(builder()->Parse(QORIXMLInputSource_var(), document, {}, {}, {}, {}), E_INVALIDARG);

    QORIXMLSAX2Factory_var factory;
    EXPECT_EQ(CreateQORIXMLSAX2Factory(CLSID_XML4C_DOM, factory), E_INVALIDARG);
    ASSERT_EQ(CreateQORIXMLSAX2Factory(CLSID_XML4C5_SAX, factory), S_OK);
    QORIXMLInputSource_var source;
    ASSERT_EQ(factory->CreateInputSource(QORUnicodeString(std::string_view(path)), "myPublicId", source), S_OK);
    EXPECT_EQ(told(source, &QORIXMLInputSource::GetSystemId), path);
    EXPECT_EQ(told(source, &QORIXMLInputSource::GetPublicId), "myPublicId");
    EXPECT_EQ(builder()->Parse(source, document, {}, {}, {}, {}), S_OK);
    EXPECT_EQ(name(root(document)), "a");
}

TEST(Parser, KnowsTheLineOfANodeHoweverLongTheFile) {
    const QORIDOMDocument_var document = read("<!--1-->\n<a>" + repeated("\n", 70000) + "<b x='1'\n y='2'>t</b></a>");
    const QORIDOMNode_var b = next(first(root(document)));
    EXPECT_EQ(got<int>(first(document), &QORIDOMNode::GetLineNumber), 1);
    EXPECT_EQ(got<int>(root(document), &QORIDOMElement::GetLineNumber), 2);
    EXPECT_EQ(got<int>(b, &QORIDOMNode::GetLineNumber), 70003);
    QORIDOMNode_var made;
    ASSERT_EQ(document->CreateComment("", made), S_OK);
    EXPECT_EQ(got<int>(made, &QORIDOMNode::GetLineNumber), 0);
    EXPECT_EQ(got<int>(document, &QORIDOMDocument::GetLineNumber), 0);
}

} // namespace velkor::xml::test
