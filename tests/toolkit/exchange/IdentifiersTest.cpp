#include "ConvertedText.h"
#include "Matchers.h"
#include "ModelText.h"
#include "QORIFCExportServices.h"
#include "velkor/identifiers/GuidCheck.h"
#include "velkor/identifiers/GuidText.h"

#include <algorithm>
#include <set>

namespace velkor {

namespace {

using test::modelText;

test::ConvertedText<IdentifierReport> converted(const std::string& source, const IdentifierOptions& options) {
    return test::convertText<IdentifierReport, IdentifierOptions>(convertIdentifiers, source, options);
}

IdentifierOptions repairing() {
    IdentifierOptions options;
    options.repair = true;
    return options;
}

IdentifierOptions fromPlm(const std::string& attribute) {
    IdentifierOptions options;
    options.plmAttribute = attribute;
    return options;
}

test::ConvertedText<IdentifierReport> repaired(const std::string& instances) {
    return converted(modelText("IFC4", instances), repairing());
}

std::string madeOf(std::string_view plmIdentifier) {
    QORUnicodeString identifier;
    QORIFCExportServices::ConvertPLMIDToGUID(QORUnicodeString(plmIdentifier), identifier);
    return std::string(identifier.utf8());
}

/// New identifiers by id.
std::map<std::uint64_t, std::string> after(const IdentifierReport& report) {
    std::map<std::uint64_t, std::string> result;
    for (const auto& entry : report.identifiers) result.emplace(entry.id, entry.after);
    return result;
}

std::uint64_t faultCount(const std::string& text) {
    const auto model = sdai::Model::fromText(text, "result");
    return model ? guid::checkGuids(**model).result.total : 999;
}

constexpr const char* storeys = "#1=IFCBUILDINGSTOREY('0000000000000000000001',$,'Ground',$,$,$,$,$,$,$);\n"
                                "#2=IFCBUILDINGSTOREY('0000000000000000000002',$,'First',$,$,$,$,$,$,$);\n";

} // namespace

TEST(Identifiers, RepairLeavesEachWellFormedAndOfItsOwn) {
    const std::string source = modelText(
        "IFC4", std::string(storeys) +
                    "#3=IFCWALL('short',$,'a',$,$,$,$,$,$);\n"
                    "#4=IFCWALL($,$,'b',$,$,$,$,$,$);\n"
                    "#5=IFCWALL(*,$,'c',$,$,$,$,$,$);\n"
                    "#6=IFCWALL( /* kept */ '0000000000000000000001' ,$, 'd',$,$,$,$,$,.SOLIDWALL. /* too */ );\n"
                    "#7=IFCWALL('0000000000000000000002',$,'e',$,$,$,$,$,$);\n"
                    "#8=IFCWALL('4000000000000000000002',$,'f',$,$,$,$,$,$);\n"
                    "#9=IFCWALL('',$,'g',$,$,$,$,$,$);\n"
                    "#10=IFCWALL('000000000000000000000\\X\\33',$,'h',$,$,$,$,$,$);\n"
                    "#11=IFCWALL('0000000000000000000003',$,'i',$,$,$,$,$,$);\n");
    const auto result = converted(source, repairing());
    EXPECT_EQ(result.uses(), (std::map<std::string, std::uint64_t>{
                                 {"malformed-identifier", 3}, {"missing-identifier", 2}, {"duplicate-identifier", 3}}));
    EXPECT_EQ(faultCount(result.text), 0U);
    EXPECT_EQ(result.report.converted, 8U);
    EXPECT_EQ(result.report.kept, 3U);
    EXPECT_TRUE(result.report.isLossless());
    std::vector<std::uint64_t> ids;
    for (const auto& entry : result.report.identifiers) ids.push_back(entry.id);
    EXPECT_THAT(ids, ElementsAre(3U, 4U, 5U, 6U, 7U, 8U, 9U, 11U));
    auto identifiers = after(result.report);
    EXPECT_EQ(result.record(6),
              "IFCWALL( /* kept */ '" + identifiers[6] + "' ,$, 'd',$,$,$,$,$,.SOLIDWALL. /* too */ )");
    EXPECT_EQ(result.record(1), "IFCBUILDINGSTOREY('0000000000000000000001',$,'Ground',$,$,$,$,$,$,$)");
    EXPECT_EQ(result.detail("malformed-identifier"), "\"short\" becomes \"" + identifiers[3] + '"');
    EXPECT_EQ(result.detail("missing-identifier"), "no identifier becomes \"" + identifiers[4] + '"');

    EXPECT_TRUE(converted(result.text, repairing()).report.identifiers.empty());
    EXPECT_EQ(converted(result.text, repairing()).text, result.text) << "there is nothing left to repair";
}

// Made once by an independent implementation of RFC 9562 over the namespace ddda3338-af56-4820-80d6-213f4e2e1f3b.
TEST(Identifiers, ARepairedOneIsTheHashOfWhatItStandsFor) {
    const auto result = repaired(std::string(storeys) +
                                 "#3=IFCWALL('short',$,'W\\X\\FCrfel',$,$,$,$,'T1',$);\n"
                                 "#4=IFCRELCONTAINEDINSPATIALSTRUCTURE('0000000000000000000004',$,$,$,(#3),#1);\n"
                                 "#5=IFCRELAGGREGATES($,$,$,$,#1,(#3,#2));\n");
    auto identifiers = after(result.report);
    EXPECT_EQ(guid::expanded(identifiers[3]), "ab67924b-65a2-5e7a-b2bd-0f62bcea1797");
    EXPECT_EQ(guid::expanded(identifiers[5]), "d004596e-3cfe-59f4-a7aa-57cdb6c8a499");
}

TEST(Identifiers, RepairDoesNotDependOnIdsAndOrder) {
    const auto one = after(repaired(std::string(storeys) +
                                    "#3=IFCWALL('x',$,'a',$,$,$,$,$,$);\n"
                                    "#4=IFCWALL('x',$,'a',$,$,$,$,$,$);\n"
                                    "#5=IFCPROPERTYSET($,$,'s',$,(#9));\n#9=IFCPROPERTYSINGLEVALUE('p',$,$,$);\n"
                                    "#6=IFCRELCONTAINEDINSPATIALSTRUCTURE($,$,$,$,(#3),#1);\n"
                                    "#7=IFCRELCONTAINEDINSPATIALSTRUCTURE($,$,$,$,(#4),#2);\n"
                                    "#8=IFCRELDEFINESBYPROPERTIES($,$,$,$,(#1,#2),#5);\n")
                               .report);
    const auto other = after(repaired("#18=IFCRELDEFINESBYPROPERTIES($,$,$,$,(#2,#1),#15);\n"
                                      "#17=IFCRELCONTAINEDINSPATIALSTRUCTURE($,$,$,$,(#14),#2);\n"
                                      "#16=IFCRELCONTAINEDINSPATIALSTRUCTURE($,$,$,$,(#13),#1);\n"
                                      "#15=IFCPROPERTYSET($,$,'s',$,(#9));\n#9=IFCPROPERTYSINGLEVALUE('p',$,$,$);\n"
                                      "#14=IFCWALL('x',$,'a',$,$,$,$,$,$);\n"
                                      "#13=IFCWALL('x',$,'a',$,$,$,$,$,$);\n" +
                                      std::string(storeys))
                                 .report);
    ASSERT_EQ(one.size(), 6U);
    ASSERT_EQ(other.size(), 6U);
    for (const auto& [id, identifier] : one) EXPECT_EQ(other.at(id + 10), identifier) << id;
}

TEST(Identifiers, ManyOfOneKindAreToldApartByTheirOrder) {
    std::string instances;
    for (int id = 1; id <= 50'000; ++id) ((instances += '#') += std::to_string(id)) += "=IFCWALL($,$,$,$,$,$,$,$,$);\n";
    const auto result = repaired(instances);
    EXPECT_EQ(result.report.converted, 50'000U);
    EXPECT_EQ(faultCount(result.text), 0U);
    EXPECT_EQ(result.report.uses.front().first.size(), 100U) << "of each rule so many are listed";
}

TEST(Identifiers, WhatIsNotUnderstoodStays) {
    for (const std::string damaged : {"#1=IFCWALL($,$,'a',$,$,$,$,$,$;\n", "#1=IFCWALL($,$,'a);\n",
                                      "#1=(IFCROOT($,$,$,$)IFCWALL($));\n", "#1=IFCWALL();\n"}) {
        const auto result = repaired(damaged + "#2=IFCSLAB($,$,'b',$,$,$,$,$,$);\n");
        EXPECT_THAT(result.text, HasSubstr(damaged));
        EXPECT_FALSE(after(result.report).contains(1)) << damaged;
    }
    const auto cycle = repaired("#1=IFCRELAGGREGATES($,$,$,$,#1,(#1,#2,#999));\n#2=IFCWALL($,$,$,$,$,$,$,$,$);\n"
                                "#3=IFCRELAGGREGATES($,$,$,$,#2,(#2));\n");
    EXPECT_EQ(cycle.report.converted, 3U);
    EXPECT_EQ(faultCount(cycle.text), 0U);
}

TEST(Identifiers, ComeFromPlmIdentifiers) {
    const std::string source =
        modelText("IFC4", "#1=IFCWALL('0000000000000000000001',$,'a',$,$,$,$,'tag-1',$);\n"
                          "#2=IFCWALL('0000000000000000000002',$,'b',$,$,$,$,$,$);\n"
                          "#3=IFCWALL('0000000000000000000003',$,'c',$,$,$,$,$,$);\n"
                          "#4=IFCWALLTYPE('0000000000000000000004',$,'t',$,$,(#21),$,$,$,.SOLIDWALL.);\n"
                          "#5=IFCRELDEFINESBYTYPE('0000000000000000000005',$,$,$,(#3),#4);\n"
                          "#6=IFCRELDEFINESBYPROPERTIES('0000000000000000000006',$,$,$,(#1),#20);\n"
                          "#7=IFCRELDEFINESBYPROPERTIES('0000000000000000000007',$,$,$,(#2),"
                          "IFCPROPERTYSETDEFINITIONSET((#22,#20)));\n"
                          "#20=IFCPROPERTYSET('0000000000000000000020',$,'P',$,(#30,#31));\n"
                          "#21=IFCPROPERTYSET('0000000000000000000021',$,'P',$,(#32));\n"
                          "#22=IFCPROPERTYSET('0000000000000000000022',$,'Q',$,(#33));\n"
                          "#30=IFCPROPERTYSINGLEVALUE('other',$,IFCLABEL('no'),$);\n"
                          "#31=IFCPROPERTYSINGLEVALUE('PLM_ID',$,IFCIDENTIFIER('prd-00-1'),$);\n"
                          "#32=IFCPROPERTYSINGLEVALUE('plm_id',$,IFCINTEGER(4711),$);\n"
                          "#33=IFCPROPERTYSINGLEVALUE('PLM_ID',$,IFCLABEL('w\\X\\E4nd'),$);\n");
    const auto result = converted(source, fromPlm("PLM_Id"));
    EXPECT_EQ(after(result.report), (std::map<std::uint64_t, std::string>{
                                        {1, madeOf("prd-00-1")}, {2, madeOf("w\u00E4nd")}, {4, madeOf("4711")}}));
    EXPECT_EQ(result.detail("plm-identifier-absent"), "no \"PLM_Id\"") << "a type's is not its occurrences'";
    EXPECT_EQ(result.record(1), "IFCWALL('" + madeOf("prd-00-1") + "',$,'a',$,$,$,$,'tag-1',$)");
    EXPECT_THAT(result.detail("plm-identifier"), EndsWith("made of \"prd-00-1\""));

    const auto tags = converted(source, fromPlm("TAG"));
    EXPECT_EQ(after(tags.report), (std::map<std::uint64_t, std::string>{{1, madeOf("tag-1")}}));
    EXPECT_EQ(tags.uses().at("plm-identifier-absent"), 2U);
    EXPECT_EQ(converted(source, fromPlm("None")).text, source);
}

TEST(Identifiers, ThoseOfThePlmBeyondIfcAreSaid) {
    std::string instances;
    for (int id = 1; id <= 64; ++id)
        ((((instances += '#') += std::to_string(id)) += "=IFCWALL($,$,$,$,$,$,$,'tag-") += std::to_string(id)) +=
            "',$);\n";
    const std::string source = modelText("IFC2X3", instances);
    const std::string walls = [&] {
        std::string shorter = source;
        for (std::size_t at = 0; (at = shorter.find(",$);\n", at)) != std::string::npos;)
            shorter.replace(at, 5, ");\n");
        return shorter;
    }();
    const auto result = converted(walls, fromPlm("Tag"));
    ASSERT_EQ(result.report.converted, 64U);
    const auto beyond = static_cast<std::uint64_t>(std::ranges::count_if(
        result.report.identifiers, [](const auto& entry) { return guid::faultOf(entry.after).has_value(); }));
    ASSERT_GT(beyond, 0U);
    EXPECT_EQ(result.uses().at("plm-identifier-beyond"), beyond);
    EXPECT_FALSE(result.report.isLossless());

    IdentifierOptions both = fromPlm("Tag");
    both.repair = true;
    const auto well = converted(walls, both);
    EXPECT_FALSE(well.uses().contains("plm-identifier-beyond"));
    EXPECT_EQ(faultCount(well.text), 0U);
    EXPECT_EQ(well.report.converted, 64U);
}

TEST(Identifiers, ThoseOfThePlmAreGivenOnce) {
    const std::string first = madeOf("one"), second = madeOf("two");
    // The last has what is made for the second, whose own is made for the first.
    const std::string source =
        modelText("IFC4", "#1=IFCWALL('0000000000000000000001',$,$,$,$,$,$,'one',$);\n#2=IFCWALL('" + first +
                              "',$,$,$,$,$,$,'two',$);\n#3=IFCWALL('0000000000000000000003',$,$,$,$,$,$,'three',$);\n"
                              "#4=IFCWALL('0000000000000000000004',$,$,$,$,$,$,'three',$);\n#5=IFCSITE('" +
                              second + "',$,$,$,$,$,$,$,$,$,$,$,$,$);\n");
    const auto result = converted(source, fromPlm("Tag"));
    EXPECT_EQ(after(result.report), (std::map<std::uint64_t, std::string>{{3, madeOf("three")}}));
    EXPECT_EQ(result.uses().at("plm-identifier-taken"), 3U);
    EXPECT_EQ(result.uses().at("plm-identifier-absent"), 1U);
    EXPECT_EQ(converted(result.text, fromPlm("Tag")).text, result.text) << "the same at every exchange";
}

TEST(Identifiers, AnEndedConversionIsAnError) {
    const std::string source = modelText("IFC4", storeys);
    const auto model = sdai::Model::fromText(source, "source");
    const test::TemporaryFolder folder;
    for (const bool isRepair : {true, false}) {
        IdentifierOptions options = isRepair ? repairing() : fromPlm("Tag");
        options.progress = [](const ProgressStep&) { return false; };
        auto output = files::OutputFile::create((folder / "result.ifc").c_str());
        EXPECT_FALSE(convertIdentifiers(**model, options, *output));
    }
}

} // namespace velkor
