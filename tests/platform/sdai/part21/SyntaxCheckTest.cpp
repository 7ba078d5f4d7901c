#include "ExchangeText.h"
#include "Matchers.h"
#include "velkor/sdai/Part21Lexer.h"

namespace velkor::sdai::test {

using testing::AnyOf;

namespace {

const std::string description = "FILE_DESCRIPTION((''),'2;1');\n";
const std::string name = "FILE_NAME('','',(''),(''),'','','');\n";
const std::string schema = "FILE_SCHEMA(('IFC4'));\n";

std::string codeOf(const std::vector<Problem>& problems) {
    std::string result;
    for (const Problem& problem : problems) result += (result.empty() ? "" : " ") + problem.code;
    return result;
}

} // namespace

TEST(SyntaxCheck, SoundStructuresHaveNoProblems) {
    for (const std::string& text :
         {withData(""),
          withData("#1=A();\r\n\t#2=(A()B(1));\\N\\#3 = /* x ** / */ A ( ( ) , 'a''\\S\\'' , !T(#1) ) ;\n"),
          withHeader(description + name + schema + "FILE_POPULATION('','',(#1));SECTION_LANGUAGE('a','b');!OWN(1.);"),
          withHeader(description + name + schema,
                     "DATA('a',('X'));\nENDSEC;\nDATA('b',('X'));#1=A(\"0\",\"3F\");ENDSEC;\n")}) {
        EXPECT_EQ(placed(syntaxOf(text)), "") << text;
    }
    for (const char* example : {"house-ifc2x3.ifc", "pump-room-ifc4.ifc", "road-ifc4x3.ifc"}) {
        const auto file = Part21File::open(VELKOR_SOURCE_DIR "/examples/models/" + std::string(example));
        ASSERT_TRUE(file) << file.error().message;
        EXPECT_GT((*file)->instanceCount(), 10u);
        EXPECT_EQ(placed(checkSyntax(**file, 10)), "") << example;
    }
}

TEST(SyntaxCheck, HeaderAndSectionsAreCompleteAndInOrder) {
    const std::string both = description + name, start = "ISO-10303-21;\n", end = "END-ISO-10303-21;\n";
    const std::string header = "HEADER;\n" + both + schema + "ENDSEC;\n", data = "DATA;\n#1=A();\nENDSEC;\n";
    const auto headed = [](const std::string& text) { return withHeader(text); };
    const auto behind = [&](const std::string& text) { return start + header + text; };
    const std::pair<const char*, std::vector<std::string>> cases[] = {
        {"3 header-entity-missing", {headed(""), headed(name + schema)}},
        {"5 header-entity-missing", {headed(both)}},
        {"4 header-entity-missing, 5 header-entity-repeated", {headed(description + schema + name)}},
        {"6 header-entity-repeated", {headed(both + schema + schema)}},
        {"6 header-entity-unknown", {headed(both + schema + "OWN(1);")}},
        {"3 parameter-count", {headed("FILE_DESCRIPTION((''));" + name + schema)}},
        {"5 parameter-count", {headed(both + "FILE_SCHEMA(('IFC4'),1);")}},
        {"7 parameter-count", {behind("DATA('x');\nENDSEC;\n" + end)}},
        {"3 parameter-type",
         {headed("FILE_DESCRIPTION((),'2;1');" + name + schema), headed("FILE_DESCRIPTION('','2;1');" + name + schema),
          headed("FILE_DESCRIPTION((''),$);" + name + schema)}},
        {"4 parameter-type", {headed(description + "FILE_NAME('','',(''),(('')),'','','');" + schema)}},
        {"5 parameter-type", {headed(both + "FILE_SCHEMA('IFC4');")}},
        {"4 parameter-type, 4 parameter-type", {headed(description + "FILE_NAME('','','',(1),'','','');" + schema)}},
        {"5 header-entity-missing, 5 token-invalid, 5 header-entity-missing",
         {headed(both + "File_Schema(('IFC4'));")}},
        {"1 byte-order-mark", {"\xEF\xBB\xBF" + behind(data + end)}},
        {"1 start-missing", {header + data + end}},
        {"2 header-missing", {start + data + end}},
        {"7 data-missing", {behind(end), behind("#1=A();\nENDSEC;\n" + end)}},
        {"7 data-parameters-missing, 10 data-parameters-missing, 11 instance-repeated", {behind(data + data + end)}},
        {"9 endsec-missing", {behind("DATA;\n#1=A();\n" + end)}},
        {"8 endsec-missing", {behind("DATA;\n")}},
        {"10 end-missing", {behind(data)}},
        {"11 text-behind-end", {behind(data + end + "x")}},
        {"11 section-skipped", {behind(data + end + "SIGNATURE;\n")}},
        {"7 section-skipped", {behind("ANCHOR;\n<a>=1;\nENDSEC;\n" + data + end)}},
        {"7 section-skipped, 9 endsec-missing, 9 end-missing", {behind("ANCHOR;\n<a>=1;\n")}},
        {"10 unexpected-token", {behind(data + "FILE_NAME();\n" + end)}},
        {"7 unexpected-token", {behind("ENDSEC;\n" + data + end)}},
        {"7 unexpected-token, 8 unexpected-token, 9 unexpected-token, 10 unexpected-token, 11 unexpected-token",
         {behind(header + data + end)}}};
    for (const auto& [problems, texts] : cases) {
        for (const std::string& text : texts) EXPECT_EQ(placed(syntaxOf(text)), problems) << text;
    }
    const std::pair<std::string, std::string> empty[] = {
        {"FILE_DESCRIPTION((),'2;1');" + name + schema, "description, parameter 1 of FILE_DESCRIPTION"},
        {description + "FILE_NAME('','',(),(''),'','','');" + schema, "author, parameter 3 of FILE_NAME"},
        {description + "FILE_NAME('','',(''),(),'','','');" + schema, "organization, parameter 4 of FILE_NAME"},
        {description + name + "FILE_SCHEMA(());", "schema identifier, parameter 1 of FILE_SCHEMA"}};
    for (const auto& [texts, what] : empty) {
        const auto problems = syntaxOf(withHeader(texts));
        ASSERT_EQ(codeOf(problems), "parameter-type");
        EXPECT_EQ(problems[0].message, "expected at least one " + what + ", found ()");
    }
}

TEST(SyntaxCheck, InstancesAreJudgedStrictlyAndInTheirPlace) {
    const std::pair<const char*, std::vector<const char*>> cases[] = {
        {"instance-name-zero", {"#0=A();", "#2=A(#0);"}},
        {"instance-name-too-large", {"#18446744073709551616=A();"}},
        {"instance-repeated", {"#1=A();"}},
        {"unexpected-token",
         {"#2=A('x' 'y');", "#2=A('x',);", "#2=A(,'x');", "#2=A((1,2);", "#2=A(T(1,2));", "#2=A(T());", "#2=A(T);",
          "#2=A;", "#2 A();", "#2=(A()B);", "#2=();", "x;", ";"}},
        {"semicolon-missing", {"#2=A(1)"}},
        {"semicolon-missing unexpected-token", {"#2=A(1));"}},
        {"token-invalid",
         {"#2=ifcwall();", "#2=A(IfcLabel('x'));", "#2=A(1.5e3);", "#2=A(1E5);", "#2=A(.5);", "#2=A(-);",
          "#2=A(1.#INF);", "#2=A(.t.);", "#2=A(\"4F\");", "#2=A(\"0f\");", "#2=A(@);"}},
        {"token-invalid token-invalid", {"#2=A(1e1,2e2);"}},
        {"string-invalid", {"#2=A('\\X\\4');", "#2=A('\\X2\\00e4\\X0\\');", "#2=A('b\tc');"}},
        {"string-not-closed", {"#2=A('open);"}},
        {"comment-not-closed unexpected-token", {"/* open"}},
        {"character-invalid", {"#2=A(/* \xC3\xA4 */1);", "#2=A(\x01\x02 1);"}}};
    for (const auto& [codes, instances] : cases) {
        for (const char* instance : instances) {
            const auto problems = syntaxOf(withData("#1=FIRST();\n" + std::string(instance) + "\n#99=LAST(1.);\n"));
            EXPECT_EQ(codeOf(problems), codes) << instance;
            for (const Problem& problem : problems) {
                EXPECT_EQ(problem.line, 9u) << instance;
                EXPECT_THAT(problem.instance, AnyOf(0u, decodeInstanceName(instance)));
            }
        }
    }
}

TEST(SyntaxCheck, PointsAtTheVeryCharacter) {
    const std::string text = withData("#1=A('good',\n  'b\xC3\xA4ut',1.x);\n");
    const auto problems = syntaxOf(text);
    ASSERT_EQ(placed(problems), "9 string-invalid, 9 token-invalid");
    EXPECT_EQ(problems[0].offset, text.find('\xC3'));
    EXPECT_EQ(problems[1].offset, text.find("1.x"));
    EXPECT_EQ(problems[0].instance, 1u);
    EXPECT_THAT(problems[0].message, HasSubstr("\\X2\\00E4\\X0\\"));
    EXPECT_THAT(problems[1].message, HasSubstr("\"1.x\""));
}

// Each of these but the first would be read to its end for each of its parts, if nothing remembered that
// strings and comments are not closed.
TEST(SyntaxCheck, CountsAllInOnePassButKeepsTheFirst) {
    constexpr std::size_t parts = 60'000;
    // Of the instances all are zero and all but the first repeat.
    for (const auto& [begin, part, expected] :
         {std::tuple("", "#0=A();\n", 2 * parts - 1), {"' ;\n", "\\S\\' ;\n", parts + 1}, {"", "/* ", parts}}) {
        std::string data = begin;
        for (std::size_t i = 0; i < parts; ++i) data += part;
        const std::string text = withData(data);
        std::uint64_t total = 0;
        EXPECT_EQ(checkSyntax(*read(text), 7, &total).size(), 7u);
        EXPECT_EQ(total, expected) << part;
    }
}

} // namespace velkor::sdai::test
