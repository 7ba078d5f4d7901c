#include "ExchangeText.h"
#include "Matchers.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <sys/mman.h>
#include <thread>
#include <unistd.h>

namespace velkor::sdai::test {

namespace {

std::string replaced(std::string text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

} // namespace

TEST(Reader, IndexesWhatInstancesAre) {
    const std::string text = withData("#10=IFCWALL('a;b=c',(#2,$));\n"
                                      "/* #11=IFCWALL(); */ #2 = /* slab */ IfcSlab ( * ) ;#20=IFCWALL($);\n"
                                      "#3=(B(1)A('x'));\\N\\#4=\\F\\!OWN();\n");
    const auto file = read(text);
    EXPECT_THAT(ids(*file), ElementsAre(10, 2, 20, 3, 4));
    EXPECT_THAT(file->keywords(), ElementsAre("IFCWALL", "IFCSLAB", "!OWN"));
    EXPECT_THAT(file->keywordNumbers(), ElementsAre(0, 1, 0, Part21File::complexKeyword, 2));
    EXPECT_THAT(file->problems(), IsEmpty());
    const char* const beginnings[] = {"IFCWALL('a;b=c',(#2,$));", "IfcSlab ( * ) ;", "IFCWALL($);", "(B(1)A('x'));",
                                      "!OWN();"};
    for (std::uint32_t i = 0; i < file->instanceCount(); ++i) {
        EXPECT_EQ(text[file->offset(i)], '#');
        EXPECT_EQ(file->find(file->id(i)), i);
        EXPECT_THAT(file->instanceText(i), StartsWith(beginnings[i]));
    }
    for (const std::uint64_t id : {0U, 1U, 5U, 11U, 21U}) EXPECT_EQ(file->find(id), std::nullopt) << id;
}

TEST(Reader, GivesTheHeaderDecoded) {
    const std::string text = withHeader(
        "FILE_DESCRIPTION(('ViewDefinition [X]','it''s \\X\\E4'),'2;1');\n"
        "file_name /* ; */ ('a /* b */',\n'2024',('Ada','Bob'),(),'pre','sys',$);FILE_SCHEMA(('IFC4','IFC2X3'));\n"
        "!OWN_ENTITY('x',(1));\n");
    const auto file = read(text);
    const FileHeader& header = file->header();
    EXPECT_THAT(header.description, ElementsAre("ViewDefinition [X]", "it's \u00E4"));
    EXPECT_THAT((std::array{header.implementationLevel, header.name, header.timeStamp, header.preprocessorVersion,
                            header.originatingSystem, header.authorization}),
                ElementsAre("2;1", "a /* b */", "2024", "pre", "sys", ""));
    EXPECT_THAT(header.author, ElementsAre("Ada", "Bob"));
    EXPECT_THAT(header.organization, IsEmpty());
    EXPECT_THAT(header.schemas, ElementsAre("IFC4", "IFC2X3"));
    EXPECT_THAT(file->problems(), IsEmpty());

    // Writers mix up lists and single texts, and leave parameters out.
    const std::string loose = withHeader("FILE_DESCRIPTION('d',('2;1'));FILE_NAME();FILE_SCHEMA('IFC4');");
    const auto other = read(loose);
    EXPECT_THAT(other->header().description, ElementsAre("d"));
    EXPECT_EQ(other->header().implementationLevel, "2;1");
    EXPECT_THAT(other->header().author, IsEmpty());
    EXPECT_THAT(other->header().schemas, ElementsAre("IFC4"));
}

TEST(Reader, LineEndsOfEveryKindReadAlike) {
    const std::string unixText = withData("#1=A('x');\n#2=B(\n'y');\n#2=C();\n");
    for (const std::string lineEnd : {"\n", "\r\n", "\r"}) {
        const std::string text = replaced(unixText, "\n", lineEnd);
        const auto file = read(text);
        EXPECT_THAT(ids(*file), ElementsAre(1, 2, 2));
        EXPECT_EQ(placed(file->problems()), "11 instance-repeated");
        EXPECT_EQ(file->line(0), 1u);
        EXPECT_EQ(file->line(text.size()), static_cast<std::uint64_t>(std::ranges::count(unixText, '\n')) + 1);
    }
    // The LF of a CR LF is still on the line that the two end, also where tables of lines have a border.
    std::string text = "ISO-10303-21;";
    text.append(8191 - text.size(), ' ');
    text += "\r\n\rHEADER;\nENDSEC;\nEND-ISO-10303-21;";
    const auto file = read(text);
    const std::uint64_t lines[] = {file->line(8191), file->line(8192), file->line(8193), file->line(8194)};
    EXPECT_THAT(lines, ElementsAre(1, 1, 2, 3));
}

TEST(Reader, KeepsSectionsApart) {
    const std::string text =
        withHeader(soundHeader, "DATA('one',('IFC4'));\n#1=A();\n#2=A();/* tail */ENDSEC;\n"
                                "DATA ( 'empty' , ('X','Y') ) ;ENDSEC;DATA('two',('IFC2X3'));#3=A();ENDSEC;\n");
    const auto file = read(text);
    ASSERT_EQ(file->dataSections().size(), 3u);
    EXPECT_EQ(file->dataSections()[0].name, "one");
    EXPECT_EQ(file->dataSections()[1].firstInstance, 2u);
    EXPECT_THAT(file->dataSections()[1].schemas, ElementsAre("X", "Y"));
    EXPECT_EQ(file->dataSections()[2].firstInstance, 2u);
    EXPECT_THAT(file->dataSections()[2].schemas, ElementsAre("IFC2X3"));
    EXPECT_EQ(texts(*file), "|A();\n|A();/* tail */|A();");
    EXPECT_THAT(file->problems(), IsEmpty());

    const std::string sections = "ANCHOR;\n<a>=#1;' unbalanced\nENDSEC;\nREFERENCE;#9=<u>;ENDSEC;DATA('one'";
    const std::string newer = replaced(text, "DATA('one'", sections) + "SIGNATURE;\nanything;ENDSEC;";
    const auto edition3 = read(newer);
    EXPECT_THAT(ids(*edition3), ElementsAre(1, 2, 3));
    EXPECT_EQ(placed(edition3->problems()), "7 section-skipped, 10 section-skipped, 15 section-skipped");
}

TEST(Reader, MoreKeywordsAndProblemsThanAreKeptStayReadable) {
    std::string data;
    for (int i = 1; i <= 65540; ++i) data += '#' + std::to_string(i) + "=K" + std::to_string(i) + "();\n";
    data += "#70000=K1();\n#70001=" + std::string(300, 'X') + "();\n";
    for (int i = 0; i < 5000; ++i) data += "#70002=K2();\n";
    const std::string text = withData(data);
    const auto file = read(text);
    EXPECT_EQ(file->keywords().size(), 65534u);
    EXPECT_EQ(file->keyword(65533), 65533u);
    EXPECT_EQ(file->keyword(65534), Part21File::unlistedKeyword);
    EXPECT_EQ(file->keyword(65540), 0u);
    EXPECT_EQ(file->keyword(65541), Part21File::unlistedKeyword);
    EXPECT_THAT(file->instanceText(65539), StartsWith("K65540();"));
    EXPECT_EQ(file->problemCount(), 4999u);
    EXPECT_EQ(file->problems().size(), 1000u) << "as many are kept";
    EXPECT_EQ(file->problems().front().instance, 70002u);
    EXPECT_THAT(file->problems().front().message, HasSubstr("line 65550"));
}

TEST(Reader, ReadsAFileAsItReadsText) {
    const std::string path = testing::TempDir() + "velkor reader.ifc";
    const std::string text = "\xEF\xBB\xBF" + withData("#1=A();\n");
    using Access = Part21File::Access;
    for (const auto& [access, size, isCopied] : {std::tuple(Access::Mapped, Part21File::mappedFrom - 1, true),
                                                 {Access::Mapped, Part21File::mappedFrom, false},
                                                 {Access::Read, Part21File::mappedFrom, true}}) {
        const std::string whole = text + std::string(size - text.size(), '\n');
        std::ofstream(path, std::ios::binary) << whole;
        const auto file = Part21File::open(path, ScanPath::Automatic, access);
        ASSERT_TRUE(file) << file.error().message;
        EXPECT_EQ((*file)->name(), path);
        EXPECT_EQ((*file)->text(), whole);
        EXPECT_EQ((*file)->offset(0), text.find("#1"));
        EXPECT_THAT((*file)->problems(), IsEmpty());
        // What others write into the file shows in a mapping alone.
        std::fstream(path, std::ios::binary | std::ios::in | std::ios::out) << "I";
        EXPECT_EQ((*file)->text() == whole, isCopied);
    }
    std::filesystem::remove(path);

    std::ofstream(path).close();
    using Code = files::OpenError::Code;
    for (const auto& [wrong, code, reason] : {std::tuple(path, Code::Empty, "is empty"),
                                              {testing::TempDir(), Code::Folder, "folder"},
                                              {path + ".missing", Code::Missing, "No such file"},
                                              {path + "/inside", Code::Missing, "Not a directory"},
                                              {std::string("/dev/null"), Code::NotRegular, "regular"}}) {
        const auto failed = Part21File::open(wrong);
        ASSERT_FALSE(failed);
        EXPECT_EQ(failed.error().code, code) << wrong;
        EXPECT_THAT(failed.error().message, AllOf(StartsWith(wrong + ": "), HasSubstr(reason)));
    }
    std::filesystem::remove(path);
}

TEST(Reader, ReadsWhatIsOpenAlreadyUnderTheNameItIsGiven) {
    const std::string whole = withData("#1=A();\n") + std::string(Part21File::mappedFrom, '\n');
    for (const std::string& text : {withData("#1=A();\n"), whole}) {
        const int memory = memfd_create("text", MFD_CLOEXEC);
        ASSERT_EQ(write(memory, text.data(), text.size()), static_cast<ssize_t>(text.size()));
        int ends[2];
        ASSERT_EQ(pipe(ends), 0);
        std::thread writer([&] {
            EXPECT_EQ(write(ends[1], text.data(), text.size()), static_cast<ssize_t>(text.size()));
            close(ends[1]);
        });
        for (const int descriptor : {memory, memory, ends[0]}) {
            const auto file = Part21File::fromDescriptor(descriptor, "standard input");
            ASSERT_TRUE(file) << file.error().message;
            EXPECT_EQ((*file)->name(), "standard input");
            EXPECT_EQ((*file)->text(), text);
        }
        EXPECT_EQ(lseek(memory, 0, SEEK_CUR), static_cast<off_t>(text.size())) << "the caller's place";
        writer.join();
        EXPECT_EQ(Part21File::fromDescriptor(ends[0], "nothing").error().message,
                  "nothing: is empty, expected an exchange structure that begins with \"ISO-10303-21;\"");
        close(ends[0]);
        close(memory);
    }
    const auto closed = Part21File::fromDescriptor(-1, "standard input");
    ASSERT_FALSE(closed);
    EXPECT_EQ(closed.error().message, "standard input: cannot be read: Bad file descriptor");
}

TEST(Reader, SaysWhatATextIsThatIsNoExchangeStructure) {
    using namespace std::string_literals;
    for (const auto& [text, reason] : {std::pair(""s, "it holds nothing"),
                                       {" /* only */ "s, "it holds nothing"},
                                       {"<ifc/>"s, "XML"},
                                       {"\xEF\xBB\xBF{}"s, "JSON"},
                                       {"\xFF\xFEI\0"s, "UTF-16"},
                                       {"\xFE\xFF\0I"s, "UTF-16"},
                                       {"# \xC3\nv 1"s, "\"# ?\""}}) {
        const auto file = Part21File::fromText(text, "x.ifc");
        ASSERT_FALSE(file) << reason;
        EXPECT_EQ(file.error().code, files::OpenError::Code::NoExchangeStructure);
        EXPECT_THAT(file.error().message,
                    AllOf(StartsWith("x.ifc: expected an exchange structure"), HasSubstr(reason)));
    }
    EXPECT_TRUE(Part21File::fromText("/* by hand */ iso-10303-21;", "x") && Part21File::fromText("HEADER;", "x"));
}

TEST(Reader, NamesThePlaceOfADamageAndKeepsTheRest) {
    const std::string frame = "ISO-10303-21;\nHEADER;\n" + soundHeader + "ENDSEC;\nDATA;\n";
    const std::string end = "ENDSEC;\nEND-ISO-10303-21;\n";
    // The text, what is reported, and the instances that are left.
    const std::string cases[][3] = {
        // No ";" behind an instance.
        {withData("#1=A(1)\n#2=A(2);\n#3=A(3)\n"), "8 semicolon-missing, 11 semicolon-missing",
         "|A(1)\n|A(2);\n|A(3)\n"},
        // Strings that are not closed.
        {withData("#1=A('x;\n#2=A(2);\n#3=A('y;\n"), "8 string-not-closed, 10 string-not-closed",
         "|A('x;\n|A(2);\n|A('y;\n"},
        {withData("#1=A('x);#2=A(2);\n#3=A(3);\n"), "8 string-not-closed", "|A('x);#2=A(2);\n|A(3);\n"},
        {"ISO-10303-21;HEADER;ENDSEC;DATA;#1=A('x);#2=A(2);#3=A('y');ENDSEC;END-ISO-10303-21;", "1 string-not-closed",
         "|A('x);|A(2);|A('y');"},
        // Comments.
        {withData("#1=A(1);\n/* open\n#2=A(2);\n"), "9 comment-not-closed, 9 unexpected-text",
         "|A(1);\n/* open\n|A(2);\n"},
        {withData("/* open\n#1=A(1);\n/* next */\n#2=A(2);\n"), "8 comment-in-comment", "|A(2);\n"},
        // Text that is none, names that are repeated or too large.
        {withData("#1=;\n#2=1;\n#3=A(3);\n"), "8 keyword-missing, 9 keyword-missing", "|A(3);\n"},
        {withData("x;\n#1=A(1);\ny\n#2=A(2);;\n"), "8 unexpected-text, 10 unexpected-text, 11 statement-empty",
         "|A(1);\ny\n|A(2);;\n"},
        {withData("#7=A();\n#007=B();\n#18446744073709551616=A('not indexed');\n"),
         "9 instance-repeated, 10 instance-name-too-large", "|A();\n|B();\n#18446744073709551616=A('not indexed');\n"},
        {withData("#1=A(x=1);\n#2=A(2);\n"), "8 unexpected-text", "|A(x=1);\n|A(2);\n"},
        {withData(std::string("#1=A(1);\n\0\n#2=A(2);\n", 20)), "", std::string("|A(1);\n\0\n|A(2);\n", 16)},
        // Texts that are cut off.
        {frame + "#1=A(1);\n#2=A((1,", "9 semicolon-missing, 9 endsec-missing, 9 end-missing", "|A(1);\n|A((1,"},
        {frame + "#1=A(1);\n#2=A('x", "9 string-not-closed, 9 endsec-missing, 9 end-missing", "|A(1);\n|A('x"},
        {frame + "#1=A();\n#2=", "9 keyword-missing, 9 semicolon-missing, 9 endsec-missing, 9 end-missing",
         "|A();\n#2="},
        {frame + "#1=A(1);\nEND-ISO-10303-21;\n", "9 endsec-missing", "|A(1);\n"},
        // Words of the structure.
        {frame + "#1=A()\nENDSEC\nEND-ISO-10303-21", "10 semicolon-missing, 10 endsec-missing, 10 end-missing",
         "|A()\nENDSEC\nEND-ISO-10303-21"},
        {withHeader(soundHeader, "#1=A(1);\n"), "7 data-missing, 8 endsec-missing", "|A(1);\n"},
        {"ISO-10303-21;\n" + soundHeader + "ENDSEC;\nDATA;\n#1=A();\n" + end, "2 header-missing", "|A();\n"},
        {withHeader(soundHeader, "REFERENCE\n#3=A();\n#4=A();\nENDSEC;\nDATA;\n#1=A();\nENDSEC;\n"),
         "7 section-skipped", "|A();\n"},
        {frame + "#1=A();\nENDSEC;\nEND-ISO-10303-21\n#2=A();\n#3=A();\n", "11 text-behind-end", "|A();\n"},
        {withData("#1=A();\n") + "#2=A();\n", "11 text-behind-end", "|A();\n"}};
    for (const auto& [text, problems, instances] : cases) {
        const auto file = read(text);
        EXPECT_EQ(placed(file->problems()), problems) << text;
        EXPECT_EQ(texts(*file), instances) << text;
        EXPECT_EQ(file->problemCount(), file->problems().size());
        for (const Problem& problem : file->problems()) EXPECT_EQ(problem.line, file->line(problem.offset));
    }
}

} // namespace velkor::sdai::test
