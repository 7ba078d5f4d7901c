#include "Matchers.h"
#include "TemporaryFolder.h"
#include "TestSupport.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <libxml/HTMLparser.h>
#include <libxml/parser.h>
#include <libxml/xpath.h>
#include <memory>

namespace velkor::host {

using testing::Not;

namespace {

Outcome htmlReport(const std::string& path) {
    return runHost({"report", path, "--format", "html"}, true, shippedResources);
}

// The page as a parser of XML reads it, which forgives nothing, or as one of HTML does.
class ParsedPage {
public:
    explicit ParsedPage(const std::string& page, bool asHtml = false)
        : _document(asHtml
                        ? htmlReadMemory(page.data(), static_cast<int>(page.size()), nullptr, "UTF-8",
                                         HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING)
                        : xmlReadMemory(page.data(), static_cast<int>(page.size()), nullptr, nullptr, XML_PARSE_NONET),
                    xmlFreeDoc) {}
    bool isWellFormed() const { return _document != nullptr; }

    // The texts of all nodes that an expression finds.
    std::vector<std::string> texts(const std::string& expression) const {
        const std::unique_ptr<xmlXPathContext, void (*)(xmlXPathContext*)> context(xmlXPathNewContext(_document.get()),
                                                                                   xmlXPathFreeContext);
        const std::unique_ptr<xmlXPathObject, void (*)(xmlXPathObject*)> found(
            xmlXPathEvalExpression(reinterpret_cast<const xmlChar*>(expression.c_str()), context.get()),
            xmlXPathFreeObject);
        std::vector<std::string> result;
        for (int i = 0; found && found->nodesetval && i < found->nodesetval->nodeNr; ++i) {
            xmlChar* const text = xmlNodeGetContent(found->nodesetval->nodeTab[i]);
            result.emplace_back(reinterpret_cast<const char*>(text));
            xmlFree(text);
        }
        return result;
    }
    std::string text(const std::string& expression) const {
        const auto all = texts(expression);
        return all.empty() ? std::string("(nothing)") : all.front();
    }

private:
    std::unique_ptr<xmlDoc, void (*)(xmlDoc*)> _document;
};

} // namespace

TEST(HtmlReport, SaysWhatTheOtherFormatsSay) {
    const TemporaryModel model("IFC4", "#1=IFCSIUNIT(*,.LENGTHUNIT.,.MILLI.,.METRE.);\n#3=IFCUNITASSIGNMENT((#1));\n"
                                       "#4=IFCPROJECT('0$WU4A9R19$vKWO$AdOnKA',$,'Small',$,$,'A small thing',$,$,#3);\n"
                                       "#5=IFCWALL('1$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,$);\n"
                                       "#8=IFCWALL('1$WU4A9R19$vKWO$AdOnKA',$,$,$,$,$,$,$,$);\n"
                                       "#9=IFCPROPERTYSINGLEVALUE('FireRatng',$,$,$);\n"
                                       "#10=IFCPROPERTYSET('3xWU4A9R19$vKWO$AdOnKA',$,'Pset_WallCommon',$,(#9,#12));\n"
                                       "#12=IFCPROPERTYSINGLEVALUE('IsExternal',$,IFCLABEL('yes'),$);\n"
                                       "#11=IFCPROPERTYSET('3yWU4A9R19$vKWO$AdOnKA',$,'Acme',$,(#9));\n");
    const Outcome outcome = htmlReport(model.path());
    EXPECT_EQ(outcome.status, Done);
    EXPECT_THAT(outcome.err, IsEmpty());
    const ParsedPage page(outcome.out);
    ASSERT_TRUE(page.isWellFormed()) << outcome.out;
    EXPECT_EQ(page.text("//section[@id='project']//dd[1]"), "Small");
    EXPECT_EQ(page.text("//section[@id='instances']//tr[th='IFCWALL']/td[1]"), "2");
    EXPECT_EQ(page.text("//section[@id='instances']//tr[th='IFCSIUNIT']/td[3]/span/@style"), "width:50.0%");
    EXPECT_EQ(page.text("//section[@id='units']//tr[th='LENGTHUNIT']/td[2]"), "0.001");
    EXPECT_EQ(page.text("//section[@id='identifiers']//li[code='guid-duplicate']/*[@class='place']"), "in line 12, #8");
    EXPECT_THAT(page.text("//section[@id='property-sets']//li[code='property-unknown']/p"), HasSubstr("FireRatng"));
    const std::string wall = "//section[@id='property-sets']//tr[th='Pset_WallCommon']/td";
    EXPECT_EQ(page.text(wall + "[1]"), "1") << "sets";
    EXPECT_EQ(page.text(wall + "[2]"), "0") << "objects";
    EXPECT_EQ(page.text(wall + "[3]"), "1") << "filled";
    EXPECT_NE(page.text(wall + "[4]"), "0") << "missing";
    EXPECT_EQ(page.text(wall + "[5]"), "1") << "wrong";
    EXPECT_EQ(page.text("//section[@id='property-sets']//tr[th='Acme']/td[last()]"), "no definition");
    EXPECT_EQ(page.text("//section[@id='classification']//tr[th='IFCWALL']/td[last()]"), "2");
    EXPECT_THAT(page.text("//section[@id='problems']/p[last()]/code"), HasSubstr("velkor check '" + model.path()));
}

TEST(HtmlReport, StandsAloneAndIsAccessible) {
    for (const char* name : {"house-ifc2x3.ifc", "road-ifc4x3.ifc"}) {
        const ParsedPage page(htmlReport(example(name)).out);
        ASSERT_TRUE(page.isWellFormed()) << name;
        EXPECT_EQ(page.text("/html/@lang"), "en");
        EXPECT_THAT(page.text("/html/head/title"), HasSubstr(name));
        EXPECT_EQ(page.texts("/html/body/header/h1").size(), 1u);
        EXPECT_EQ(page.texts("/html/body/main").size(), 1u);
        // Nothing is run and nothing fetched.
        EXPECT_THAT(page.texts("//script | //@src | //@onclick | //iframe | //img"), IsEmpty());
        EXPECT_THAT(page.text("//style"), AllOf(Not(HasSubstr("url(")), Not(HasSubstr("@import")),
                                                HasSubstr("prefers-color-scheme: dark"), HasSubstr("@media print")));
        // The navigation leads to every section, and each has its heading.
        const auto links = page.texts("//nav//a/@href");
        EXPECT_EQ(links.size(), page.texts("//main/section").size());
        for (const std::string& link : links)
            EXPECT_EQ(page.texts("//main/section[@id='" + link.substr(1) + "']/h2").size(), 1u) << link;
        EXPECT_EQ(page.texts("//main/section[@aria-labelledby = h2/@id]").size(), links.size());
        EXPECT_THAT(page.texts("//h3[not(preceding-sibling::h2)]"), IsEmpty());
        EXPECT_FALSE(page.texts("//table").empty());
        EXPECT_THAT(page.texts("//table[not(thead//th)] | //thead//th[not(@scope='col')]"), IsEmpty());
        EXPECT_THAT(page.texts("//tbody/tr[not(th[@scope='row'])]"), IsEmpty());
    }
}

TEST(HtmlReport, AnOverviewLeadsToThePageOfEachModel) {
    const test::TemporaryFolder folder;
    for (const std::string name : {"a/broken.ifc", "b/broken.ifc", "b/\"<b>&.ifc", "index"}) {
        const std::string path = folder.file("models/" + name);
        std::filesystem::copy_file(example(name == "index" ? "house-ifc2x3.ifc" : "broken.ifc"), path,
                                   std::filesystem::copy_options::overwrite_existing);
    }
    folder.file("models/junk.ifc", "junk");
    const std::string pages = folder / "pages";
    const std::vector<std::string> words{"report",   "-r",  folder / "models", folder / "models/index",
                                         "--format", "html"};
    EXPECT_EQ(runHost(words).status, BadUsage);
    std::vector<std::string> withFolder = words;
    withFolder.insert(withFolder.end(), {"-o", pages});
    const Outcome outcome = runHost(withFolder, false, shippedResources);
    EXPECT_EQ(outcome.status, Unreadable);
    EXPECT_THAT(outcome.out, HasSubstr("5 models: 4 read, 1 unreadable; "));
    EXPECT_THAT(outcome.out, HasSubstr(pages + "/index.html: an overview"));

    const auto read = [&](const std::string& name) {
        std::ifstream file(pages + '/' + name);
        return std::string(std::istreambuf_iterator<char>(file), {});
    };
    const ParsedPage overview(read("index.html"));
    ASSERT_TRUE(overview.isWellFormed());
    EXPECT_EQ(overview.texts("//tbody/tr").size(), 5u);
    EXPECT_THAT(overview.texts("//script | //@src | //@onclick"), IsEmpty());
    const auto links = overview.texts("//tbody//a/@href");
    ASSERT_EQ(links.size(), 4u);
    for (const std::string& link : links) {
        const ParsedPage page(read(link));
        ASSERT_TRUE(page.isWellFormed()) << link;
        const std::string row = "//tr[th/a/@href='" + link + "']";
        EXPECT_THAT(page.text("//section[@id='file']//dd[1]"), overview.text(row + "/th"));
        EXPECT_THAT(page.text("//section[@id='file']//dd[2]"), HasSubstr(overview.text(row + "/td[2]")));
    }
    EXPECT_EQ(overview.text("//tr[th/a/@href='index-2.html']/td[3]"), "none");
    EXPECT_EQ(overview.text("//tr[1]/td[3]"), "7 errors");
    EXPECT_EQ(overview.text("//tr[1]/td[4]"), "3 errors");
    EXPECT_THAT(overview.text("//tr[not(th/a) and td]/td"), HasSubstr("expected an exchange structure"));

    folder.file("taken");
    withFolder.back() = folder / "taken";
    EXPECT_EQ(runHost(withFolder).status, BadUsage);
    EXPECT_EQ(runHost({"report", example("broken.ifc"), "-o", pages}).status, BadUsage);
}

TEST(HtmlReport, AHostileFileIsTextAndNothingElse) {
    const std::string attack = "</title></style><script>alert(1)</script>\" onload=\"x()\" ''&amp;";
    const std::string shown = "</title></style><script>alert(1)</script>\" onload=\"x()\" '&amp;";
    const TemporaryModel model("IFC4",
                               "#1=IFCPROJECT('0$WU4A9R19$vKWO$AdOnKA',$,'" + attack +
                                   "',$,$,'\\X\\1B\\X2\\202E\\X0\\" +
                                   "r\xFF',$,$,$);\n#2=IFC<SCRIPT>(1);\n"
                                   "#3=IFCPROPERTYSET('3xWU4A9R19$vKWO$AdOnKA',$,'" +
                                   attack + "',$,());\n",
                               attack, attack + std::string(100'000, 'x'));
    const Outcome outcome = htmlReport(model.path());
    EXPECT_EQ(outcome.status, Done) << outcome.err;
    EXPECT_THAT(outcome.out, AllOf(Not(HasSubstr("<script")), Not(HasSubstr("\033")), Not(HasSubstr("\u202E"))));
    EXPECT_LT(outcome.out.size(), 60'000u);
    for (const bool asHtml : {false, true}) {
        const ParsedPage page(outcome.out, asHtml);
        ASSERT_TRUE(page.isWellFormed()) << outcome.out;
        EXPECT_THAT(page.texts("//script | //@onload"), IsEmpty());
        EXPECT_EQ(page.text("//section[@id='project']//dd[1]"), shown);
        EXPECT_THAT(page.text("//section[@id='project']//dd[2]"), HasSubstr("\\u001b\\u202er"));
    }
    // A name of a file may hold any byte.
    const std::string folder = testing::TempDir() + "velkor <b>caf\xE9 " + std::to_string(getpid()) + ".ifc";
    std::filesystem::copy_file(model.path(), folder);
    const ParsedPage page(htmlReport(folder).out);
    std::filesystem::remove(folder);
    ASSERT_TRUE(page.isWellFormed());
    EXPECT_THAT(page.text("//h1"), HasSubstr("velkor <b>caf\uFFFD "));
}

} // namespace velkor::host
