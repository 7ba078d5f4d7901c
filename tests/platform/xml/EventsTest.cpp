#include "velkor/xml/XmlEvents.h"

#include "XmlSupport.h"

#include <stdexcept>

namespace velkor::xml::test {

namespace {

/// Events in a text: `<a x=1>` with the line behind it, "]" at an end, texts in brackets without their white space.
class Recorder : public XmlReceiver {
public:
    bool begin(std::string_view name, std::span<const XmlAttribute> attributes, int line) override {
        flush();
        events.append("<").append(name);
        for (const auto& [key, value] : attributes) events.append(" ").append(key).append("=").append(value);
        events.append(">").append(std::to_string(line));
        if (name == "throw") throw std::runtime_error("thrown");
        return name != "stop";
    }
    void text(std::string_view piece) override { _text += piece; }
    void end() override {
        flush();
        events += ']';
    }

    std::string events;

private:
    void flush() {
        if (_text.find_first_not_of(" \n") != std::string::npos) events.append("{").append(_text).append("}");
        _text.clear();
    }
    std::string _text;
};

std::string eventsOf(XmlEvents& parser, std::string_view bytes) {
    Recorder recorder;
    const auto end = parser.read(bytes, recorder);
    if (end) return recorder.events;
    return std::to_string(end.error().line) + ": " + end.error().message;
}

std::string repeated(std::string_view text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) result += text;
    return result;
}

} // namespace

TEST(Events, ComeInTheOrderOfTheText) {
    XmlEvents parser;
    for (const auto& [bytes, expected] : {
             std::pair{"<a/>", "<a>1]"},
             {"<a x='1' p:y='2' z='&lt;&#65;' xmlns='u' xmlns:p='v'>\n<p:b>T&amp;<!-- no -->U<![CDATA[<V>]]></p:b></a>",
              "<a x=1 z=<A>1<b>2{T&U<V>}]]"},
             {"<?xml version='1.0'?><?xml-stylesheet href='x'?><!DOCTYPE a SYSTEM 'missing.dtd'><a>\xC3\xA9</a>",
              "<a>1{\xC3\xA9}]"},
             {"<?xml version='1.0' encoding='ISO-8859-1'?><a>\xE9</a>", "<a>1{\xC3\xA9}]"},
         })
        EXPECT_EQ(eventsOf(parser, bytes), expected) << bytes;
}

TEST(Events, EndWhereTextIsNotWellFormedOrTooMuch) {
    XmlEvents parser;
    const std::string manyAttributes = [] {
        std::string result = "<a";
        for (int i = 0; i < 5000; ++i) result.append(" a").append(std::to_string(i)).append("=''");
        return result.append("/>");
    }();
    const std::string manyNames = [] {
        std::string result = "<a>";
        for (int i = 0; i < 100001; ++i) result.append("<a").append(std::to_string(i)).append("/>");
        return result;
    }();
    for (const auto& [bytes, line, reason] : {
             std::tuple{std::string("<a>\n  <b>\n</a>"), "3", "b"},
             {"<a>\n&b;</a>", "2", "entity \"b\""},
             {"<a x='&b;'/>", "1", "entity \"b\""},
             {"<!DOCTYPE a SYSTEM 'x'>\n<a x='&b;'/>", "2", "entity \"b\""},
             {"<a>\n<p:b/></a>", "2", "prefix p"},
             {"<a>\xFF</a>", "1", "UTF-8"},
             {"", "1", "empty"},
             {"<a>\n<stop/></a>", "2", ""},
             {"<!DOCTYPE a [\n<!ENTITY b 'c'>]><a>&b;</a>", "2", "declarations"},
             {"<!DOCTYPE a [\n<!ATTLIST a x CDATA 'y'>]><a/>", "2", "declarations"},
             {"<!DOCTYPE a [\n<!ATTLIST a x (y|z) 'y'>]><a/>", "2", "declarations"},
             {"<!DOCTYPE a [\n<!ELEMENT a (b, c)>]><a/>", "2", "declarations"},
             {"<!DOCTYPE a [\n%b;]><a/>", "2", "declarations"},
             {"<!DOCTYPE a [\n<!ENTITY % b SYSTEM '/etc/passwd'>%b;]><a/>", "2", "declarations"},
             {repeated("<a>", 10000), "1", "deeper than 256"},
             {manyAttributes, "1", "more than 1000 attributes"},
             {manyNames, "1", "more than 100000 different names"},
         }) {
        const std::string message = eventsOf(parser, bytes);
        EXPECT_THAT(message, testing::AllOf(testing::StartsWith(std::string(line) + ": "), testing::HasSubstr(reason)))
            << bytes.substr(0, 100);
        EXPECT_EQ(eventsOf(parser, "<a b='c'/>"), "<a b=c>1]") << "the next document is read as if nothing had been";
    }
}

TEST(Events, PassOnWhatTheirReceiverThrows) {
    XmlEvents parser;
    Recorder recorder;
    EXPECT_THROW(static_cast<void>(parser.read("<a><throw/><b/></a>", recorder)), std::runtime_error);
    EXPECT_EQ(recorder.events, "<a>1<throw>1");
    EXPECT_EQ(eventsOf(parser, "<a/>"), "<a>1]");
}

TEST(Events, OfALargeDocumentAreThoseOfItsParts) {
    // Larger than what is parsed as a whole, in parts that do not end where elements do.
    std::string bytes, expected;
    for (int i = 1; i <= 5000; ++i) {
        const std::string number = std::to_string(i);
        bytes.append("<e n='").append(number).append("'>t&gt;").append(number).append("</e>\n");
        expected.append("<e n=").append(number).append(">").append(number).append("{t>").append(number).append("}]");
    }
    XmlEvents parser;
    EXPECT_EQ(eventsOf(parser, "<r>" + bytes + "</r>"), "<r>1" + expected + ']');
}

} // namespace velkor::xml::test
