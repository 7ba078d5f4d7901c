#include "Matchers.h"
#include "TemporaryFolder.h"
#include "XmlSupport.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sys/stat.h>

namespace velkor::xml::test {

namespace {

const auto laidOut = list({"QOREncoding", "QORLineSeparator", "QORIndentation", "QORIndentationCharacter"});
const auto inTwo = list({"UTF-8", "\r\n", "2", " "});

HRESULT write(const QORIDOMDocument_var& document, const std::string& path) {
    return builder()->Write(document, QORUnicodeString(std::string_view(path)), laidOut, inTwo);
}

std::string contents(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

TEST(Writer, LaysElementsOutAndKeepsText) {
    const QORIDOMDocument_var document =
        read("<?xml version='1.0' standalone='yes'?><!--0--><a>\n\t<b/>   <c>  </c><d>1<e/> <f/></d>"
             "<!--x\ny--><g xml:space='preserve'> <h/> </g><i><j/><![CDATA[ ]]></i><?p q?></a>");
    QORUnicodeString text;
    ASSERT_EQ(builder()->WriteToText(document, text, laidOut, inTwo), S_OK);
    EXPECT_EQ(
        text.utf8(),
        "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n<!--0-->\r\n<a>\r\n  <b/>\r\n  <c>  </c>\r\n"
        "  <d>1<e/> <f/></d>\r\n  <!--x\r\ny-->\r\n  <g xml:space=\"preserve\"> <h/> </g>\r\n"
        "  <i><j/><![CDATA[ ]]></i>\r\n  <?p q?>\r\n</a>\r\n");
    QORUnicodeString again;
    ASSERT_EQ(builder()->WriteToText(read(text.utf8()), again, laidOut, inTwo), S_OK);
    EXPECT_EQ(again, text) << "once is enough";
    ASSERT_EQ(builder()->WriteToText(read("<a><b><c/></b></a>"), text, laidOut, list({"UTF-8", "\n", "1", "\t"})),
              S_OK);
    EXPECT_THAT(text.ConvertToChar(), HasSubstr("\n<a>\n\t<b>\n\t\t<c/>\n\t</b>\n</a>\n"));
}

TEST(Writer, WritesWhatReadsBackAsItWas) {
    // Without a layout of its own, every byte that matters comes back.
    for (const char* bytes :
         {"<a/>\n", "<a x=\"&amp;&lt;&quot;'&#9;&#10;&#13;>\"/>\n", "<a>&amp;&lt;&gt;\"'&#13;\t\n</a>\n",
          "<a>\n  <b>x</b> <b/>\n</a>\n", "<p:a xmlns:p=\"urn:p\" p:x=\"1\" xml:lang=\"de\"/>\n",
          "<a xmlns=\"urn:a\"><b xmlns=\"\"/></a>\n", "<a><![CDATA[<&>]]]]></a>\n",
          "<?p?>\n<!---->\n<a>\xF0\x9F\x8F\xA0\xC2\x85</a>\n",
          "<!DOCTYPE a [\n<!ELEMENT a ANY>\n<!ENTITY e \"x\">\n]>\n<a>x</a>\n",
          "<!DOCTYPE a SYSTEM \"a.dtd\">\n<a>&unread;</a>\n"}) {
        EXPECT_EQ(text(read(bytes)), bytes);
    }
}

TEST(Writer, ReplacesAFileAsAWholeOrNotAtAll) {
    const velkor::test::TemporaryFolder temporary;
    const std::string& folder = temporary.path;
    const std::string path = folder + "/a.xml", link = folder + "/link.xml";
    const QORIDOMDocument_var document = read("<a><b/></a>");
    const std::string expected = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<a>\r\n  <b/>\r\n</a>\r\n";
    EXPECT_EQ(write(document, folder + "\\a.xml"), S_OK);
    EXPECT_EQ(contents(path), expected);

    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    std::filesystem::create_symlink("a.xml", link);
    std::ofstream(path) << "something longer than the document that is written over it, in whole or not at all";
    EXPECT_EQ(write(document, link), S_OK);
    EXPECT_EQ(contents(path), expected);
    EXPECT_TRUE(std::filesystem::is_symlink(link)) << "the file behind it is written";
    struct stat status {};
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0640U);

    Log log;
    for (const std::string& bad : {folder, folder + "/none/a.xml"}) {
        log.clear();
        EXPECT_EQ(write(document, bad), E_FAIL);
        EXPECT_THAT(log.texts(), ElementsAre(StartsWith(bad + ": cannot be written: ")));
    }
    EXPECT_EQ(write(document, "/dev/full"), E_FAIL) << "and the device is still there";
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
    QORIDOMDocument_var empty;
    ASSERT_EQ(builder()->CreateDocument(empty), S_OK);
    EXPECT_EQ(write(empty, path), E_INVALIDARG);
    EXPECT_EQ(write({}, path), E_INVALIDARG);
    EXPECT_EQ(contents(path), expected);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 2) << "nothing else is left";
}

TEST(Writer, RefusesWhatCannotBeReadAgain) {
    const QORIDOMDocument_var document = read("<a/>");
    QORIDOMNode_var parent = root(document);
    const auto deepen = [&] {
        QORIDOMElement_var child;
        EXPECT_EQ(document->CreateElement("b", child), S_OK);
        EXPECT_EQ(parent->AppendChild(child), S_OK);
        parent = child;
    };
    for (int depth = 2; depth <= 256; ++depth) deepen();
    EXPECT_FALSE(read(text(document)).IsNull());
    deepen();
    QORUnicodeString text = "as before";
    Log log;
    EXPECT_EQ(builder()->WriteToText(document, text, {}, {}), E_INVALIDARG);
    EXPECT_EQ(text, "as before");
    EXPECT_THAT(log.texts(), ElementsAre(HasSubstr("deeper than 256")));

    const QORIDOMDocument_var good = read("<a/>");
    for (const auto& [name, value] : {std::pair{"QOREncoding", "UTF-16"},
                                      {"QORLineSeparator", ""},
                                      {"QORIndentation", "17"},
                                      {"QORIndentation", "-1"},
                                      {"QORIndentation", "2x"},
                                      {"QORIndentation", ""},
                                      {"QORIndentationCharacter", "x"},
                                      {"QORIndent", "2"}}) {
        log.clear();
        EXPECT_EQ(builder()->WriteToText(good, text, list({name}), list({value})), E_INVALIDARG) << name;
        EXPECT_THAT(log.texts(), ElementsAre(AllOf(HasSubstr(name), HasSubstr(value))));
    }
}

} // namespace velkor::xml::test
