#include "ExchangeText.h"
#include "TemporaryFolder.h"
#include "velkor/files/FileContents.h"
#include "velkor/sdai/Part21Edit.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <limits>

namespace velkor::sdai::test {

namespace {

using velkor::test::TemporaryFolder;

std::string contents(const std::string& path) {
    return files::readFile(path, std::numeric_limits<std::size_t>::max()).value_or("cannot be read");
}

std::string written(const Part21Edit& edit) {
    const TemporaryFolder folder;
    const std::string path = folder / "out.ifc";
    auto output = files::OutputFile::create(QORUnicodeString(std::string_view(path)));
    if (!output) return output.error().message;
    edit.write(*output);
    const auto done = output->commit();
    return done ? contents(path) : done.error().message;
}

const std::string sound = "#1=A($,'x');\n#2 = /* two */ B( 1. , (#1,#3) /* , */ ,T(.U.)) ; /* behind */\n"
                          "#3=(C()D(*));\n#2=TWICE();\n";

/// Does the same with every instance of a keyword, and adds so many to each.
class AddingRewriter : public RecordRewriter {
public:
    AddingRewriter(Outcome outcome, std::size_t count, std::string addition)
        : _outcome(outcome), _count(count), _addition(std::move(addition)) {}

    bool wants(std::uint16_t) const override { return true; }
    Outcome rewrite(const RecordView&, RecordOutput& output) override {
        for (std::size_t i = 0; i < _count; ++i) output.add(_addition);
        if (_outcome == Outcome::Replace) output.record = "NEW()";
        return _outcome;
    }

private:
    Outcome _outcome;
    std::size_t _count;
    std::string _addition;
};

} // namespace

TEST(Edit, PutsItsChangesInPlaceAndCopiesTheRest) {
    struct Case {
        std::function<bool(Part21Edit&)> change;
        const char* expected;
    };
    const Case cases[] = {
        {[](Part21Edit&) { return true; }, sound.c_str()},
        {[](Part21Edit& e) { return e.setParameter(2, 1, "$") && e.setParameter(2, 2, "\"0F\""); },
         "#1=A($,'x');\n#2 = /* two */ B( 1. , $ /* , */ ,\"0F\") ; /* behind */\n#3=(C()D(*));\n#2=TWICE();\n"},
        {[](Part21Edit& e) { return e.replace(3, "NEW(#1)") && e.setParameter(3, 0, "T('a''b')"); },
         "#1=A($,'x');\n#2 = /* two */ B( 1. , (#1,#3) /* , */ ,T(.U.)) ; /* behind */\n#3=NEW(T('a''b'));\n"
         "#2=TWICE();\n"},
        {[](Part21Edit& e) { return e.drop(1) && e.drop(2) && e.drop(3); }, "\n /* behind */\n#2=TWICE();\n"},
        {[](Part21Edit& e) {
             return e.add("N(1)") == 4U && e.add("(N()M())") == 5U && e.add("N(3)") == 6U && e.drop(5) &&
                    e.setParameter(6, 0, "(4,5)") && !e.record(5) && e.record(6) == "N((4,5))";
         },
         "#1=A($,'x');\n#2 = /* two */ B( 1. , (#1,#3) /* , */ ,T(.U.)) ; /* behind */\n#3=(C()D(*));\n#2=TWICE();\n"
         "#4=N(1);\n#6=N((4,5));\n"},
    };
    const std::string text = withData(sound);
    const auto file = read(text);
    for (const Case& one : cases) {
        Part21Edit edit(*file);
        EXPECT_TRUE(one.change(edit)) << one.expected;
        EXPECT_EQ(written(edit), one.expected[0] == '\n'
                                     ? withHeader(soundHeader, "DATA;" + std::string(one.expected) + "ENDSEC;\n")
                                     : withData(one.expected));
    }
}

TEST(Edit, AddsBehindTheLastInstanceThoughThatIsDropped) {
    const std::string text = withData("#7=A();\r\n#8=B();\r\n");
    const auto file = read(text);
    Part21Edit edit(*file);
    EXPECT_TRUE(edit.drop(8));
    EXPECT_EQ(edit.add("C(#7)"), 9U);
    EXPECT_EQ(written(edit), withData("#7=A();\n#9=C(#7);\r\n"));
}

TEST(Edit, RefusesWhatItDoesNotUnderstand) {
    // The second lacks its end, the third a parameter, the fourth holds a comment that is not closed.
    const std::string text = withData("#1=A($);\n#2=A(1\n#3=A(1,);\n#5=B(/*);\n");
    const auto file = read(text);
    Part21Edit edit(*file);
    for (const std::uint64_t id : {2U, 3U, 5U, 6U, 0U}) {
        EXPECT_FALSE(edit.record(id)) << id;
        EXPECT_FALSE(edit.drop(id)) << id;
        EXPECT_FALSE(edit.replace(id, "A()")) << id;
        EXPECT_FALSE(edit.setParameter(id, 0, "$")) << id;
    }
    for (const char* record : {"", "A", "A(", "A()B()", "A();", "A(1 2)", "A(,)", "A(1,)", "A(wall)", "(A()", "()",
                               "#1=A()", "A($))", "A(T)", "A('x)", "A()/*", "A(/*)", "A(1E5)", "A()'"}) {
        EXPECT_FALSE(edit.replace(1, record)) << record;
        EXPECT_FALSE(edit.add(record)) << record;
    }
    for (const char* value : {"", "1,2", "1)", ")", "(1", "'x", "$;", "T", "/*", "1/*", "1 2", "1E5"})
        EXPECT_FALSE(edit.setParameter(1, 0, value)) << value;
    // As deep as the syntax check allows, the record's own list counted.
    EXPECT_FALSE(edit.setParameter(1, 0, std::string(199, '(') + std::string(199, ')')));
    EXPECT_TRUE(Part21Edit(*file).setParameter(1, 0, std::string(198, '(') + std::string(198, ')')));
    EXPECT_FALSE(edit.setParameter(1, 1, "$"));
    EXPECT_EQ(edit.setParameter(2, 0, "$").error(), "the statement of #2 is damaged and stays as it is");
    EXPECT_EQ(edit.record(6).error(), "there is no instance #6");
    EXPECT_EQ(written(edit), text);

    EXPECT_TRUE(edit.add("N('/*',*) /* closed */"));
    EXPECT_TRUE(edit.drop(1));
    EXPECT_EQ(edit.drop(1).error(), "#1 was dropped");

    const std::string last = withData("#18446744073709551615=A();\n");
    const auto full = read(last);
    EXPECT_FALSE(Part21Edit(*full).add("A()"));
    const std::string none = withData("");
    const auto empty = read(none);
    EXPECT_FALSE(Part21Edit(*empty).add("A()"));
}

TEST(Edit, WritesTheHeaderAnewAndKeepsWhatElseStandsThere) {
    const std::string text = withHeader("/* a */ FILE_DESCRIPTION((''),'2;1'); /* FILE_NAME( */\n"
                                        "FILE_NAME('','',(''),(''),'','','');FILE_SCHEMA(('OLD'));\nOTHER('x');\n");
    const auto file = read(text);
    FileHeader header{{"a'b", "\xC3\xA4"}, "2;1", "n", "t", {"Ada"}, {}, "p", "o", "z", {"NEW"}};
    Part21Edit edit(*file);
    ASSERT_TRUE(edit.setHeader(header));
    EXPECT_EQ(written(edit),
              withHeader("/* a */ FILE_DESCRIPTION(('a''b','\\X2\\00E4\\X0\\'),'2;1'); /* FILE_NAME( */\n"
                         "FILE_NAME('n','t',('Ada'),(''),'p','o','z');FILE_SCHEMA(('NEW'));\n"
                         "OTHER('x');\n"));
    const std::string more = "FILE_DESCRIPTION((''),'2;1');FILE_NAME('','',(''),(''),'','','');FILE_SCHEMA(('OLD'));";
    for (const std::string& wrong : {withHeader("FILE_SCHEMA(('OLD'));\n"), withHeader(more + "ENDSEC;" + more)}) {
        const auto other = read(wrong);
        Part21Edit refusing(*other);
        EXPECT_FALSE(refusing.setHeader(header));
        EXPECT_EQ(written(refusing), wrong);
    }
}

TEST(Edit, CopiesEveryModelByteByByteAndWritesOverItsOwnSource) {
    const TemporaryFolder folder;
    int models = 0;
    for (const auto& entry : std::filesystem::directory_iterator(VELKOR_SOURCE_DIR "/examples/models")) {
        if (entry.path().extension() != ".ifc") continue;
        ++models;
        const std::string path = folder / "same.ifc";
        std::filesystem::copy_file(entry.path(), path, std::filesystem::copy_options::overwrite_existing);
        const std::string before = contents(path);
        const auto file = Part21File::open(path);
        ASSERT_TRUE(file.has_value());
        Part21Edit edit(**file);
        EXPECT_EQ(written(edit), before) << path;
        const auto id = edit.add("IFCADDED('later')");
        ASSERT_TRUE(id.has_value()) << id.error();
        auto output = files::OutputFile::create(QORUnicodeString(std::string_view(path)));
        ASSERT_TRUE(output.has_value());
        edit.write(*output);
        ASSERT_TRUE(output->commit().has_value());
        const auto again = Part21File::open(path);
        ASSERT_TRUE(again.has_value());
        EXPECT_EQ((*again)->instanceCount(), (*file)->instanceCount() + 1) << entry.path();
        EXPECT_EQ((*again)->problemCount(), (*file)->problemCount()) << entry.path();
        EXPECT_TRUE((*again)->find(*id).has_value());
    }
    EXPECT_GE(models, 4);
}

TEST(Edit, HoldsNoMoreOfWhatARewriterAddsThanItMust) {
    using Outcome = RecordRewriter::Outcome;
    const std::string large(600'000, 'X');
    struct Case {
        Outcome outcome;
        const char* data;
        std::size_t count;
        std::string addition;
        const char* expected;
    };
    // What was not held stands before its record, the rest behind it. "+" is what was added.
    const Case cases[] = {
        {Outcome::Keep, "#1=A();\n#2=B();\n", 1, "+", "#1=A();\n#3=+;\n#2=B();\n#4=+;\n"},
        {Outcome::Drop, "#1=A();\n#2=B();\n", 1, "+", "#3=+;\n#4=+;\n"},
        {Outcome::Replace, "#1=A();#2=B();\n", 1, "+", "#1=NEW();\n#3=+;#2=NEW();\n#4=+;\n"},
        {Outcome::Keep, "#1=A();\n#2=B();\n", 3, large, "#3=+;\n#4=+;\n#1=A();\n#5=+;\n#6=+;\n#7=+;\n#2=B();\n#8=+;\n"},
        {Outcome::Drop, "#1=A();\n#2=B();\n", 3, large, "#3=+;\n#4=+;\n#5=+;\n#6=+;\n#7=+;\n#8=+;\n"},
        {Outcome::Replace, "#1=A(); /* two */ #2=B();\n", 2, large,
         "#3=+;\n#4=+;\n#1=NEW(); /* two */ #5=+;\n#6=+;\n#2=NEW();\n"},
        {Outcome::Drop, "#1=A(); /* two */ #2=B();\n", 2, large, "#3=+;\n#4=+; /* two */ #5=+;\n#6=+;\n"},
    };
    for (const Case& one : cases) {
        const std::string text = withData(one.data);
        const auto file = read(text);
        const Part21Edit edit(*file);
        AddingRewriter rewriter(one.outcome, one.count, one.addition);
        const TemporaryFolder folder;
        const std::string path = folder / "out.ifc";
        auto output = files::OutputFile::create(QORUnicodeString(std::string_view(path)));
        ASSERT_TRUE(output);
        edit.write(*output, rewriter);
        ASSERT_TRUE(output->commit());
        std::string result = contents(path);
        for (std::size_t at = result.find(large); at != std::string::npos; at = result.find(large, at))
            result.replace(at, large.size(), "+");
        EXPECT_EQ(result, withData(one.expected)) << one.data;
    }
}

namespace {

/// Writes what it sees of the keywords that it wants down and puts "SEEN" in its place.
class SeeingRewriter : public RecordRewriter {
public:
    SeeingRewriter(const Part21File& file, std::string keyword, std::uint64_t reserved)
        : _file(file), _keyword(std::move(keyword)), _reserved(reserved) {}

    bool wants(std::uint16_t keyword) const override {
        return keyword < _file.keywords().size() && _file.keywords()[keyword] == _keyword;
    }
    Outcome rewrite(const RecordView& record, RecordOutput& output) override {
        seen += std::to_string(_file.id(record.number)) + std::string(record.keyword);
        for (const std::string_view parameter : record.parameters) seen += '[' + std::string(parameter) + ']';
        seen += ' ';
        if (_reserved != 0) output.add(_reserved++, "KEPT()");
        output.record = "SEEN()";
        return Outcome::Replace;
    }

    std::string seen;

private:
    const Part21File& _file;
    std::string _keyword;
    std::uint64_t _reserved;
};

std::string rewritten(const Part21Edit& edit, RecordRewriter& rewriter) {
    const TemporaryFolder folder;
    const std::string path = folder / "out.ifc";
    auto output = files::OutputFile::create(QORUnicodeString(std::string_view(path)));
    if (!output) return output.error().message;
    edit.write(*output, rewriter);
    const auto done = output->commit();
    return done ? contents(path) : done.error().message;
}

} // namespace

TEST(Edit, ShowsARewriterTheSoundRecordsThatNobodyEdited) {
    struct Case {
        std::function<bool(Part21Edit&)> change;
        const char* data;
        const char* seen;
        const char* expected;
    };
    const auto none = [](Part21Edit&) { return true; };
    const Case cases[] = {
        {none, "#1=A(1,'a,b)',(#2,(3.)), T(.U.) /* c */ ,$,*);\n#2=B();\n", "1A[1]['a,b)'][(#2,(3.))][T(.U.)][$][*] ",
         "#1=SEEN();\n#2=B();\n"},
        {none, "#1 = /* x */ A ( ( 1 , 2 ) ) /* y */ ; /* z */\n", "1A[( 1 , 2 )] ", "#1 = /* x */ SEEN(); /* z */\n"},
        // Damaged, complex, with another keyword: copied.
        {none, "#1=A(1;\n#2=A(1)(2);\n#3=(A(1)B(2));\n#4=A;\n rubbish #5=A('x);\n", "",
         "#1=A(1;\n#2=A(1)(2);\n#3=(A(1)B(2));\n#4=A;\n rubbish #5=A('x);\n"},
        {none, "#1=A(1);#1=A(2);#2=A(3);", "1A[1] 1A[2] 2A[3] ", "#1=SEEN();#1=SEEN();#2=SEEN();"},
        {none, "#1=A(1);ENDSEC;DATA;#2=A(2);", "1A[1] 2A[2] ", "#1=SEEN();ENDSEC;DATA;#2=SEEN();"},
        {none, "#1=A();\r#2=B();\r", "1A ", "#1=SEEN();\r#2=B();\r"},
        {[](Part21Edit& edit) { return edit.replace(1, "B(1)").has_value() && edit.drop(3).has_value(); },
         "#1=A(1);\n#2=A(2);\n#3=A(3);\n#4=A(4);\n", "2A[2] 4A[4] ", "#1=B(1);\n#2=SEEN();\n#4=SEEN();\n"},
        {[](Part21Edit& edit) { return edit.add("A(9)") == 3u && edit.setParameter(2, 0, "7").has_value(); },
         "#1=A(1);\n#2=A(2);\n", "1A[1] ", "#1=SEEN();\n#2=A(7);\n#3=A(9);\n"},
    };
    for (const Case& one : cases) {
        const std::string text = withData(one.data);
        const auto file = read(text);
        Part21Edit edit(*file);
        ASSERT_TRUE(one.change(edit));
        SeeingRewriter rewriter(*file, "A", 0);
        EXPECT_EQ(rewritten(edit, rewriter), withData(one.expected));
        EXPECT_EQ(rewriter.seen, one.seen) << one.data;
    }
}

TEST(Edit, ReservesIdsThatNothingElseGets) {
    const std::string text = withData("#1=A(1);\n#7=A(2);\n");
    const auto file = read(text);
    Part21Edit edit(*file);
    EXPECT_EQ(edit.reserve(2), 8u);
    EXPECT_EQ(edit.add("B()"), 10u);
    EXPECT_EQ(edit.reserve(0), 11u);
    EXPECT_TRUE(edit.isEdited(10));
    EXPECT_FALSE(edit.isEdited(7) || edit.isEdited(8) || edit.isEdited(99));
    SeeingRewriter rewriter(*file, "A", 8);
    EXPECT_EQ(rewritten(edit, rewriter), withData("#1=SEEN();\n#8=KEPT();\n#7=SEEN();\n#10=B();\n#9=KEPT();\n"));
    EXPECT_FALSE(edit.reserve(std::numeric_limits<std::uint64_t>::max()));
}

TEST(Edit, TakesRecordsApart) {
    const std::string text = withData("#1=A('x', 2.);\n#2=(A()B());\n#3=A(;\n#4=C();\n");
    const auto file = read(text);
    RecordReader reader;
    const RecordView* record = reader.read(*file, 0);
    ASSERT_NE(record, nullptr);
    EXPECT_EQ(record->keyword, "A");
    ASSERT_EQ(record->parameters.size(), 2u);
    EXPECT_EQ(record->parameters[1], "2.");
    EXPECT_EQ(reader.length(), std::string("A('x', 2.)").size());
    EXPECT_EQ(reader.read(*file, 1), nullptr);
    EXPECT_EQ(reader.read(*file, 2), nullptr);
    record = reader.read(*file, 3);
    ASSERT_NE(record, nullptr);
    EXPECT_TRUE(record->parameters.empty());
}

} // namespace velkor::sdai::test
