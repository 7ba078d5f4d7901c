#include "ConvertedText.h"
#include "Matchers.h"
#include "ModelText.h"
#include "velkor/check/ModelCheck.h"

namespace velkor {

namespace {

using test::modelText;
using Uses = std::map<std::string, std::uint64_t>;

/// By the resources that the program comes with, or a custom mapping in place of theirs.
test::ConvertedText<StepReport> converted(const std::string& instances, PropertyOptions options,
                                          const std::string& mapping = {}) {
    const test::TemporaryFolder folder;
    Configuration configuration;
    configuration.shippedResources = VELKOR_RESOURCE_DIR;
    if (!mapping.empty()) {
        configuration.setupData.push_back(
            {"QORAECDataExchangeResources|IFCCustomMapping",
             {folder.file("mapping.xml", "<IfcMapping>\n" + mapping + "\n</IfcMapping>")}});
    }
    const PlatformSetup setup(configuration);
    options.setup = &setup;
    const std::string source = modelText("IFC4", instances);
    auto result = test::convertText<StepReport, PropertyOptions>(convertProperties, source, options);
    // What was valid is so afterwards.
    const auto before = sdai::Model::fromText(source, "before"), after = sdai::Model::fromText(result.text, "after");
    EXPECT_TRUE(after);
    if (before && after) {
        EXPECT_LE(checkModel(**after).total, checkModel(**before).total) << result.text;
    }
    return result;
}

PropertyOptions mapping(MappingDirection direction) {
    PropertyOptions options;
    options.customMapping = direction;
    return options;
}

PropertyOptions plmAttributes() {
    PropertyOptions options;
    options.plmAttributes = true;
    return options;
}

std::string line(const std::string& from, const std::string& to, const std::string& scope) {
    const auto part = [](const char* side, const std::string& name) {
        const std::size_t dot = name.find('.');
        return std::string(side) + "Entity=\"" + name.substr(0, dot) + "\" " + side + "Property=\"" +
               name.substr(dot + 1) + "\" ";
    };
    return "<CustomMapping " + part("from", from) + part("to", to) + "scope=\"" + scope + "\"/>\n";
}

/// A wall #1 and a slab #2 with these.
std::string objects(const std::string& more) {
    return "#1=IFCWALL('0000000000000000000001',$,'wall',$,$,$,$,$,$);\n"
           "#2=IFCSLAB('0000000000000000000002',$,'slab',$,$,$,$,$,$);\n" +
           more;
}

std::string set(int id, const std::string& name, const std::string& members, const std::string& owners) {
    const std::string number = std::to_string(id);
    return "#" + number + "=IFCPROPERTYSET('00000000000000000000" + number + "',$,'" + name + "','said',(" + members +
           "));\n#" + std::to_string(id + 50) + "=IFCRELDEFINESBYPROPERTIES('000000000000000000000" +
           std::to_string(id + 50) + "',$,$,$,(" + owners + "),#" + number + ");\n";
}

std::string value(int id, const std::string& name, const std::string& typed = "IFCLABEL('x')") {
    return "#" + std::to_string(id) + "=IFCPROPERTYSINGLEVALUE('" + name + "',$," + typed + ",$);\n";
}

} // namespace

TEST(PropertyMoves, AreRenamedForTheTypeOfTheirObjects) {
    const std::string model =
        objects(set(10, "Pset_WallCommon", "#20,#21", "#1") + value(20, "FireRating") + value(21, "Reference") +
                set(11, "Pset_WallCommon", "#22", "#2") + value(22, "FireRating"));
    const auto result = converted(model, mapping(MappingDirection::Import));
    EXPECT_EQ(result.uses(), (Uses{{"custom-name", 1}, {"set-added", 1}})) << "not for a slab";
    EXPECT_EQ(result.record(20), "IFCPROPERTYSINGLEVALUE('FireResistanceClass',$,IFCLABEL('x'),$)");
    EXPECT_THAT(result.record(10), EndsWith("'Pset_WallCommon','said',(#21))"));
    EXPECT_THAT(result.text, HasSubstr("'Norvel_FireSafety',$,(#20))"));
    EXPECT_EQ(result.detail("custom-name"),
              "\"Pset_WallCommon.FireRating\" becomes \"Norvel_FireSafety.FireResistanceClass\"");
    EXPECT_EQ(result.report.added, 2U);

    const auto back = converted(objects(set(10, "Norvel_FireSafety", "#20", "#1") + value(20, "FireResistanceClass")),
                                mapping(MappingDirection::Export));
    EXPECT_EQ(back.uses(), (Uses{{"custom-name", 1}, {"set-renamed", 1}}));
    EXPECT_THAT(back.record(10), EndsWith("'Pset_WallCommon','said',(#20))"));
    EXPECT_THAT(back.record(20), HasSubstr("'FireRating'"));
    EXPECT_EQ(converted(model, mapping(MappingDirection::Import)).text, result.text) << "the same on every run";
}

TEST(PropertyMoves, GoToTheSetThatTheirObjectsHave) {
    const std::string given = line("A.one", "B.first", "IfcElement") + line("A.two", "A.second", "IfcWall");
    const std::string pair = value(20, "one") + value(21, "two") + value(22, "own");
    struct Row {
        const char* what;
        std::string instances;
        Uses uses;
        std::string a, b;
    };
    const Row rows[] = {
        {"of the same objects",
         set(10, "A", "#20,#21", "#1") + set(11, "B", "#22", "#1") + pair,
         {{"custom-name", 2}},
         "(#21))",
         "(#22,#20))"},
        {"that nothing is left behind for",
         set(10, "A", "#20", "#1") + set(11, "B", "#22", "#1") + pair,
         {{"custom-name", 1}, {"set-emptied", 1}},
         "",
         "(#22,#20))"},
        {"shared with others",
         set(10, "A", "#20", "#1") + set(11, "B", "#22", "#1,#2") + pair,
         {{"mapping-refused", 1}},
         "(#20))",
         "(#22))"},
        {"that has one of the name",
         set(10, "A", "#20", "#1") + set(11, "B", "#22,#23", "#1") + pair + value(23, "first"),
         {{"mapping-refused", 1}},
         "(#20))",
         "(#22,#23))"},
        {"of several",
         set(10, "A", "#20", "#1") + set(11, "B", "#22", "#2") + set(12, "A", "#20", "#2") + pair,
         {{"custom-name", 2}, {"set-emptied", 1}, {"set-renamed", 1}},
         "(#90))",
         "(#22,#91))"},
    };
    for (const Row& row : rows) {
        const auto result = converted(objects(row.instances), mapping(MappingDirection::Import), given);
        EXPECT_EQ(result.uses(), row.uses) << row.what;
        if (row.what == std::string("of several")) continue;
        EXPECT_THAT(result.record(10), EndsWith(row.a)) << row.what;
        EXPECT_EQ(result.record(10).empty(), row.a.empty()) << row.what;
        EXPECT_EQ(result.record(60).empty(), row.a.empty()) << row.what;
        EXPECT_THAT(result.record(11), EndsWith(row.b)) << row.what;
    }
}

TEST(PropertyMoves, ASetOfSeveralTypesIsSplit) {
    const std::string model = objects(set(10, "A", "#20,#21", "#1,#2") + value(20, "one") + value(21, "two"));
    const auto result = converted(model, mapping(MappingDirection::Import), line("A.one", "A.first", "IfcWall"));
    EXPECT_EQ(result.uses(), (Uses{{"custom-name", 1}, {"set-added", 1}, {"set-split", 1}}));
    EXPECT_EQ(result.record(60), "IFCRELDEFINESBYPROPERTIES('00000000000000000000060',$,$,$,(#2),#10)");
    EXPECT_THAT(result.record(10), EndsWith("(#20,#21))")) << "the slab's stays as it is";
    EXPECT_EQ(result.record(20), "IFCPROPERTYSINGLEVALUE('one',$,IFCLABEL('x'),$)");
    EXPECT_THAT(result.text, HasSubstr("IFCPROPERTYSINGLEVALUE('first',$,IFCLABEL('x'),$)"));
    EXPECT_THAT(result.text, ContainsRegex("IFCRELDEFINESBYPROPERTIES\\('[^']*',\\$,\\$,\\$,\\(#1\\),#"));
    EXPECT_EQ(result.report.added, 3U);

    // An assignment of several sets at once is not taken apart.
    const std::string several = objects("#10=IFCPROPERTYSET('0000000000000000000010',$,'A',$,(#20));\n"
                                        "#11=IFCPROPERTYSET('0000000000000000000011',$,'B',$,(#20));\n"
                                        "#12=IFCRELDEFINESBYPROPERTIES('0000000000000000000012',$,$,$,(#1,#2),"
                                        "IFCPROPERTYSETDEFINITIONSET((#10,#11)));\n" +
                                        value(20, "one"));
    const auto kept = converted(several, mapping(MappingDirection::Import), line("A.one", "A.first", "IfcWall"));
    EXPECT_EQ(kept.uses(), (Uses{{"mapping-refused", 1}}));
    EXPECT_EQ(kept.text, modelText("IFC4", several));
}

TEST(PropertyMoves, WholeSetsTypesAndQuantitiesAreMapped) {
    const std::string given = line("A.", "B.", "IfcWall;IfcWallType") + line("Q.long", "Q.length", "IfcWall");
    const auto result =
        converted(objects("#3=IFCWALLTYPE('0000000000000000000003',$,'type',$,$,(#12),$,$,$,.SOLIDWALL.);\n"
                          "#12=IFCPROPERTYSET('0000000000000000000012',$,'A',$,(#20));\n" +
                          set(10, "A", "#20,#21", "#1") + value(20, "one") + value(21, "two") +
                          "#13=IFCELEMENTQUANTITY('0000000000000000000013',$,'Q',$,$,(#23));\n"
                          "#14=IFCRELDEFINESBYPROPERTIES('0000000000000000000014',$,$,$,(#1),#13);\n"
                          "#23=IFCQUANTITYLENGTH('long',$,$,5.,$);\n"),
                  mapping(MappingDirection::Import), given);
    EXPECT_THAT(result.record(10), HasSubstr(",'B','said',(#20,#21)"));
    EXPECT_THAT(result.record(12), HasSubstr(",'B',$,(#20)"));
    EXPECT_EQ(result.record(23), "IFCQUANTITYLENGTH('length',$,$,5.,$)");
    EXPECT_EQ(result.uses().at("set-renamed"), 2U);
}

TEST(PropertyMoves, PlmAttributesGoToTheirSets) {
    const auto result =
        converted(objects(set(10, "PLM", "#20,#21,#22,#23", "#1") + value(20, "V_FireRating") + value(21, "Other") +
                          value(22, "V_Length", "IFCLENGTHMEASURE(5.)") + value(23, "V_Height", "IFCLABEL('tall')") +
                          set(11, "Pset_WallCommon", "#24", "#1") + value(24, "Reference")),
                  plmAttributes());
    EXPECT_EQ(result.uses(),
              (Uses{{"plm-attribute", 2}, {"value-to-quantity", 1}, {"set-added", 1}, {"mapping-refused", 1}}));
    EXPECT_EQ(result.record(20), "IFCPROPERTYSINGLEVALUE('FireRating',$,IFCLABEL('x'),$)");
    EXPECT_THAT(result.record(11), EndsWith("(#24,#20))"));
    EXPECT_THAT(result.record(10), EndsWith("(#21,#23))"));
    EXPECT_EQ(result.record(22), "IFCQUANTITYLENGTH('Length',$,$,5.,$)");
    EXPECT_THAT(result.text,
                ContainsRegex("IFCELEMENTQUANTITY\\('[^']*',\\$,'Qto_WallBaseQuantities',\\$,\\$,\\(#22\\)\\)"));
}

TEST(PropertyMoves, WhatCannotBeMappedIsSaid) {
    const std::string text = modelText("IFC4", objects({}));
    const auto model = sdai::Model::fromText(text, "source");
    const test::TemporaryFolder folder;
    const auto error = [&](const PropertyOptions& options) {
        auto output = files::OutputFile::create((folder / "result.ifc").c_str());
        const auto report = convertProperties(**model, options, *output);
        return report ? std::string() : report.error();
    };
    EXPECT_THAT(error(plmAttributes()), HasSubstr("set-up"));
    const PlatformSetup setup{Configuration()};
    PropertyOptions options = mapping(MappingDirection::Export);
    options.setup = &setup;
    EXPECT_THAT(error(options), StartsWith("no IFC custom mapping"));

    // Damaged sets stay, and cycles end.
    const std::string damaged = set(10, "A", "#20,#999", "#1") + "#20=IFCPROPERTYSINGLEVALUE('one',$,$;\n" +
                                set(11, "A", "#11,#61", "#11,#61,#2");
    const auto result = converted(objects(damaged), mapping(MappingDirection::Import), line("A.one", "B.x", "IfcWall"));
    EXPECT_EQ(result.text, modelText("IFC4", objects(damaged)));
}

} // namespace velkor
