#include "JudgedSets.h"
#include "Matchers.h"

namespace velkor {

using test::attached;
using test::NamedModel;

namespace {

class SetsInModelsTest : public test::JudgedSets {
protected:
    static std::string setOf(const std::string& name, const std::string& members) {
        return "#w=IFCWALL('',$,'W',...);#s=IFCPROPERTYSET('',$,'" + name + "',$,(" + members +
               "));#r=" + attached("#w", "#s");
    }
};

} // namespace

TEST_F(SetsInModelsTest, AreJudgedByTheDefinitionsOfTheirOwnRelease) {
    const std::string instances =
        setOf("Pset_WallCommon", "#p,#q") + "#p=IFCPROPERTYENUMERATEDVALUE('Status',$,(IFCLABEL('NEW')),$);" +
        "#q=IFCPROPERTYSINGLEVALUE('Reference',$,IFCIDENTIFIER('A'),$);#t=IFCPROPERTYSET('',$,'Pset_AirTerminal"
        "Occurrence',$,(#x));#x=IFCPROPERTYSINGLEVALUE('Nothing',...);#a=IFCFLOWTERMINAL('',...);#u=" +
        attached("#a", "#t");
    struct Release {
        const char* release;
        const char* definedBy;
        const char* told;
    };
    const Release releases[] = {{"IFC2X3", "IFC2X3", "property-unknown Status, set-unknown #a"},
                                {"IFC4", "IFC4", "set-not-applicable #a, property-unknown Nothing"},
                                {"IFC4X1", "IFC4X1", "set-not-applicable #a, property-unknown Nothing"},
                                {"IFC4X2", "IFC4X2", "set-not-applicable #a, property-unknown Nothing"},
                                {"IFC4X3_RC1", "IFC4X3_ADD2", "set-not-applicable #a, property-unknown Nothing"},
                                {"IFC4X3_RC3", "IFC4X3_ADD2", "set-not-applicable #a, property-unknown Nothing"},
                                {"IFC4X3_ADD2", "IFC4X3_ADD2", "set-not-applicable #a, property-unknown Nothing"},
                                {"IFC4X4", "IFC4X3_ADD2", "set-not-applicable #a, property-unknown Nothing"}};
    std::vector<std::unique_ptr<NamedModel>> models;
    for (const Release& each : releases) models.push_back(std::make_unique<NamedModel>(each.release, instances));
    const SetLibrary library({{}, test::shippedDefinitions});
    // Whichever comes first.
    for (const bool isBackward : {false, true}) {
        for (std::size_t i = 0; i < std::size(releases); ++i) {
            const std::size_t at = isBackward ? std::size(releases) - 1 - i : i;
            EXPECT_EQ(told(*models[at], library), releases[at].told) << releases[at].release;
            EXPECT_EQ(checkPropertySets(models[at]->model(), library).definedBy, releases[at].definedBy);
        }
    }
    const auto old = checkPropertySets(models[0]->model(), library);
    ASSERT_FALSE(old.findings.empty());
    EXPECT_THAT(old.findings.back().problem.message, AllOf(HasSubstr("Pset_AirTerminalOccurrence"), HasSubstr("IFC4")));
}

TEST_F(SetsInModelsTest, OfTheUsersOwnAreJudgedAlike) {
    const auto member = [](const std::string& name, const std::string& type) {
        return "<PropertyDef><Name>" + name + "</Name><PropertyType>" + type + "</PropertyType></PropertyDef>";
    };
    const std::string label = "<TypePropertySingleValue><DataType type=\"IfcLabel\"/></TypePropertySingleValue>";
    define("Pset_WallCommon", member("Colour", label), "IfcWall");
    define("Acme_Wall",
           member("Any", "<TypePropertySingleValue><DataType type=\"IfcValue\"/></TypePropertySingleValue>") +
               member("Open", "<TypePropertySingleValue/>") + member("Loose", "") +
               member("Choice", "<TypePropertyEnumeratedValue><EnumList name=\"E\"><EnumItem>a</EnumItem>"
                                "<EnumItem>B b</EnumItem></EnumList></TypePropertyEnumeratedValue>") +
               member("Free", "<TypePropertyEnumeratedValue><EnumList name=\"E\"/></TypePropertyEnumeratedValue>") +
               member("Size", "<TypeComplexProperty name=\"S\">" + member("Label", label) +
                                  member("Width", "<TypePropertySingleValue><DataType "
                                                  "type=\"IfcLengthMeasure\"/>"
                                                  "</TypePropertySingleValue>") +
                                  "</TypeComplexProperty>"),
           "IfcWall/SOLIDWALL");
    const SetLibrary library({{_own.path}, test::shippedDefinitions});
    expectEach(R"(
IFC4 IFC4X3_ADD2 .SOLIDWALL. Acme_Wall
  IFCPROPERTYSINGLEVALUE('Any',$,IFCLENGTHMEASURE(1.),$)
  IFCPROPERTYSINGLEVALUE('Any',$,IFCTEXT('a'),$)
  IFCPROPERTYLISTVALUE('Any',$,(IFCTEXT('a')),$) -> warning property-kind Any
  IFCPROPERTYSINGLEVALUE('Open',$,IFCTEXT('a'),$)
  IFCPROPERTYLISTVALUE('Loose',$,(IFCTEXT('a')),$)
  IFCPROPERTYSINGLEVALUE('Opn',$,IFCTEXT('a'),$) -> warning property-unknown Opn ~Open
  IFCPROPERTYENUMERATEDVALUE('Choice',$,(IFCLABEL('B b')),$)
  IFCPROPERTYENUMERATEDVALUE('Choice',$,(IFCLABEL('other')),$) -> warning value-enumerator Choice
  IFCPROPERTYENUMERATEDVALUE('Free',$,(IFCLABEL('b')),$)
  IFCCOMPLEXPROPERTY('Size',$,'S',(#label,#width))
  IFCCOMPLEXPROPERTY('Size',$,'S',(#text,#hight)) -> warning value-type Size.Label, warning property-unknown Size.Hight
IFC4 IFC4X3_ADD2 .PARTITIONING. Acme_Wall
  IFCPROPERTYSINGLEVALUE('Open',$,IFCTEXT('a'),$) -> warning set-not-applicable #w
IFC4 IFC4X3_ADD2 $ Acme_Wal
  IFCPROPERTYSINGLEVALUE('Open',$,IFCTEXT('a'),$)
IFC2X3 IFC4 IFC4X3_ADD2 $ Pset_WallCommon
  IFCPROPERTYSINGLEVALUE('Colour',$,IFCLABEL('a'),$)
  IFCPROPERTYSINGLEVALUE('Colour',$,IFCTEXT('a'),$) -> value-type Colour
  IFCPROPERTYSINGLEVALUE('Reference',$,IFCTEXT('a'),$) -> property-unknown Reference
IFC2X3 IFC4 IFC4X3_ADD2 $ Pset_SlabCommon
  IFCPROPERTYSINGLEVALUE('Reference',$,IFCIDENTIFIER('a'),$) -> set-not-applicable #w
)",
               [&](const std::string& release, const std::string& set, const std::string& text) {
                   const std::string wall = release == "IFC2X3" ? "..." : "...," + set.substr(0, set.find(' '));
                   const NamedModel named(release,
                                          "#w=IFCWALL('',$," + wall + ");#s=IFCPROPERTYSET('',$,'" +
                                              set.substr(set.find(' ') + 1) + "',$,(#p));#r=" + attached("#w", "#s") +
                                              "#p=" + text + ';' +
                                              "#label=IFCPROPERTYSINGLEVALUE('Label',$,IFCLABEL('a'),$);"
                                              "#text=IFCPROPERTYSINGLEVALUE('Label',$,IFCTEXT('a'),$);"
                                              "#hight=IFCPROPERTYSINGLEVALUE('Hight',...);"
                                              "#width=IFCPROPERTYSINGLEVALUE('Width',$,IFCLENGTHMEASURE(1.),$);");
                   return told(named, library);
               });
}

TEST_F(SetsInModelsTest, OfPublishedFilesAreMendedInTheViewOfTheirRelease) {
    define("Pset_Log",
           "<PropertyDef><Name>Flow</Name><PropertyType><TypePropertySingleValue><DataType type=\"IfcTimeSeries\"/>"
           "</TypePropertySingleValue></PropertyType></PropertyDef>",
           "IfcWall");
    const test::TemporaryFolder views;
    std::filesystem::create_directory_symlink(_own.path, views / "IFC2X3");
    const NamedModel named("IFC2X3", setOf("Pset_Log", "#p") + "#p=IFCPROPERTYREFERENCEVALUE('Flow',...);");
    EXPECT_EQ(told(named, SetLibrary(DefinitionViews{{}, views.path})), "")
        << "a time series is no value but referred to";
    EXPECT_EQ(told(named, SetLibrary(DefinitionViews{{_own.path}, {}})), "property-kind Flow")
        << "for every release, as written";
}

TEST_F(SetsInModelsTest, MeasureQuantitiesByAMethodOfTheirDefinition) {
    const std::string length = "<QtoDef><Name>Length</Name><QtoType>Q_LENGTH</QtoType></QtoDef>";
    const std::string element = "MethodOfMeasurement>";
    define("Qto_Acme", length, "IfcWall", "",
           '<' + element + "By hand</" + element + '<' + element + "By eye</" + element);
    define("Qto_Free", length, "IfcWall");
    const SetLibrary library({{_own.path}, test::shippedDefinitions});
    expectEach(R"(
IFC4 IFC4X3_ADD2 Qto_WallBaseQuantities
  $
  'BaseQuantities'
  'By eye' -> warning quantity-method #w
IFC2X3 IFC4 IFC4X3_ADD2 Qto_Acme
  'By hand'
  'By eye'
  'BaseQuantities' -> quantity-method #w
IFC2X3 IFC4 IFC4X3_ADD2 Qto_Free
  'By eye'
)",
               [&](const std::string& release, const std::string& set, const std::string& method) {
                   const NamedModel named(release, "#w=IFCWALL('',...);#s=IFCELEMENTQUANTITY('',$,'" + set + "',$," +
                                                       method + ",(#p));#r=" + attached("#w", "#s") +
                                                       "#p=IFCQUANTITYLENGTH('Length',$,$,1.,...);");
                   return told(named, library);
               });
}

TEST_F(SetsInModelsTest, AreToldWithPlaceObjectsAndWhatIsExpected) {
    const NamedModel named(
        "IFC4",
        "#w=IFCWALL('',$,'South',...);#v=IFCWALL('',$,'North',...);#s=IFCPROPERTYSET('',$,'Pset_WallCommon',$,("
        "#p,#q));#r=" +
            attached("#w,#v", "#s") +
            "#p=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCTEXT('a'),$);#q=IFCPROPERTYENUMERATEDVALUE('Status',$,("
            "IFCLABEL('OLD')),$);#t=IFCPROPERTYSET('',$,'Pset_SlabCommon',$,(#x));#x=IFCPROPERTYSINGLEVALUE("
            "'Reference',$,$,$);#u=" +
            attached("#v", "#t"));
    EXPECT_EQ(
        told(NamedModel("IFC4", "#m=IFCMATERIALPROPERTIES('Pset_M',$,(),#o);#q=IFCELEMENTQUANTITY('',$,'Qto_Q',$,$,"
                                "());#s=IFCPROPERTYSET('',$,'Pset_S',$,());#o=IFCMATERIAL('Oak',...);#w=IFCWALL('"
                                "',...);#r=" +
                                    attached("#w", "#q") + "#t=" + attached("#w", "#s")),
             shipped()),
        "set-unknown #o, set-unknown #w, set-unknown #w");
    const auto check = checkPropertySets(named.model(), shipped());
    ASSERT_EQ(check.findings.size(), 3u);
    const SetFinding& type = check.findings[0];
    EXPECT_EQ(named.nameOf(type.problem.instance), "#s");
    EXPECT_EQ(named.nameOf(type.object), "#w");
    EXPECT_EQ(type.objectEntity, "IFCWALL");
    EXPECT_EQ(type.objectName, "South");
    EXPECT_EQ(type.others, 1u);
    EXPECT_EQ(type.set, "Pset_WallCommon");
    // As definitions and files write types alike.
    const auto message = [&](std::size_t i) { return check.findings[i].problem.message; };
    EXPECT_THAT(message(0), AllOf(HasSubstr("FireRating"), HasSubstr("IFCTEXT"), HasSubstr("IfcLabel"),
                                  HasSubstr("South"), HasSubstr("1 other object")));
    EXPECT_THAT(message(1), AllOf(HasSubstr("Status"), HasSubstr("OLD"), HasSubstr("NEW")));
    EXPECT_THAT(message(2), AllOf(HasSubstr("IFCWALL"), HasSubstr("North"), HasSubstr("IfcSlab")));
}

TEST_F(SetsInModelsTest, AreCountedBeyondTheLimitAndByChosenCodes) {
    std::string instances = "#w=IFCWALL('',...);";
    for (int i = 0; i < 30; ++i) {
        const std::string n = std::to_string(i);
        instances += "#s" + n + "=IFCPROPERTYSET('',$,'Pset_WallCommon',$,(#p" + n + ",#q" + n + "));#p" + n +
                     "=IFCPROPERTYSINGLEVALUE('Referenz',...);#q" + n +
                     "=IFCPROPERTYSINGLEVALUE('FireRating',$,IFCTEXT('a'),$);";
    }
    const NamedModel named("IFC4", instances);
    CheckOptions options;
    options.limit = 3;
    auto check = checkPropertySets(named.model(), shipped(), options);
    EXPECT_EQ(check.total, 60u);
    EXPECT_EQ(check.findings.size(), 3u);
    EXPECT_EQ(named.nameOf(check.findings[2].problem.instance), "#s1") << "in file order";
    options.codes.only = {"value-type"};
    check = checkPropertySets(named.model(), shipped(), options);
    EXPECT_EQ(check.total, 30u);
    EXPECT_EQ(named.nameOf(check.findings[2].problem.instance), "#s2");
    EXPECT_EQ(check.summaries.at(0).wrong, 30u) << "of what is asked for";
    options.limit = 0;
    EXPECT_EQ(checkPropertySets(named.model(), shipped(), options).total, 30u);
}

TEST_F(SetsInModelsTest, ComeToOneSummaryForEachName) {
    const NamedModel named(
        "IFC4", "#w=IFCWALL('',...);#v=IFCWALL('',...);#s=IFCPROPERTYSET('',$,'Pset_WallCommon',$,(#a,#b,#c,#d));"
                "#a=IFCPROPERTYSINGLEVALUE('Reference',$,IFCIDENTIFIER('A'),$);"
                "#b=IFCPROPERTYSINGLEVALUE('IsExternal',$,IFCLABEL('yes'),$);"
                "#c=IFCPROPERTYSINGLEVALUE('FireRating',$,$,$);#d=IFCPROPERTYSINGLEVALUE('Mine',$,IFCLABEL('A'),$);"
                "#r=" +
                    attached("#w,#v", "#s") + "#t=IFCPROPERTYSET('',$,'Pset_WallCommon',$,(#a));#u=" +
                    attached("#w", "#t") + "#again=" + attached("#v,#w", "#s") +
                    "#m=IFCPROPERTYSET('',$,'Acme',$,(#d,#c));#o=" + attached("#v", "#m"));
    const auto check = checkPropertySets(named.model(), shipped());
    EXPECT_EQ(check.sets, 3u);
    EXPECT_EQ(check.checkedSets, 2u);
    EXPECT_EQ(check.properties, 7u);
    EXPECT_THAT(check.undefined, ElementsAre(testing::Pair("Acme", 1u)));
    ASSERT_EQ(check.summaries.size(), 2u);
    const auto counts = [](const SetSummary& summary) {
        return std::vector<std::uint64_t>{summary.sets, summary.objects, summary.filled, summary.missing,
                                          summary.wrong};
    };
    EXPECT_EQ(check.summaries[0].name, "Acme");
    EXPECT_FALSE(check.summaries[0].isDefined);
    EXPECT_EQ(check.summaries[0].sets, 1u);
    EXPECT_EQ(check.summaries[0].objects, 1u);
    EXPECT_EQ(check.summaries[0].filled, 1u);
    EXPECT_EQ(check.summaries[1].name, "Pset_WallCommon");
    EXPECT_TRUE(check.summaries[1].isDefined);
    // Eleven properties in each of two sets.
    EXPECT_THAT(counts(check.summaries[1]), ElementsAre(2u, 3u, 3u, 19u, 1u));
}

TEST_F(SetsInModelsTest, MayBeDamagedAndHostile) {
    const char* damaged[] = {
        "#s=IFCPROPERTYSET();#r=IFCRELDEFINESBYPROPERTIES();#p=IFCPROPERTYSINGLEVALUE();",
        "#s=IFCPROPERTYSET('',$,'Pset_WallCommon',$,(#99,$,7,#s));#r=IFCRELDEFINESBYPROPERTIES('',$,$,$,(#98,#s),#s);",
        "#s=IFCPROPERTYSET('',$,'Pset_WallCommon',$,#s);#w=IFCWALL(#w,#w,#w,#w,#w,#w,#w,#w,#w);"
        "#r=IFCRELDEFINESBYPROPERTIES('',$,$,$,#w,(#s));",
        "#s=IFCPROPERTYSET('',$,7,$,(#p));#p=IFCPROPERTYSINGLEVALUE(7,$,IFCLABEL(7),#p);",
        "#s=IFCPROPERTYSET('',$,'Pset_WallCommon',$,(#p,#q,#t,#u,#v));#p=IFCPROPERTYSINGLEVALUE('FireRating',$,'A',#s);"
        "#q=IFCPROPERTYENUMERATEDVALUE('Status',$,IFCLABEL('NEW'),#q);#t=IFCPROPERTYSINGLEVALUE('Reference',$,("
        "IFCLABEL('a')),$);#u=IFCPROPERTYENUMERATEDVALUE('Status',$,(7,#s,(IFCLABEL('NEW')),$),#u);"
        "#v=IFCPROPERTYSINGLEVALUE('IsExternal',$,NOTYPE(.T.),#97);",
        // Complex properties that hold themselves.
        "#s=IFCPROPERTYSET('',$,'Acme',$,(#p));#p=IFCCOMPLEXPROPERTY('A',$,'',(#q));#q=IFCCOMPLEXPROPERTY('B',$,'',("
        "#p,#q));",
        "#s=IFCELEMENTQUANTITY('',$,'Qto_WallBaseQuantities',$,#s,(#p));#p=IFCPHYSICALCOMPLEXQUANTITY('Length',$,(#p),"
        "'',$,$);",
        "#s=IFCMATERIALPROPERTIES('Pset_MaterialConcrete',$,(#s),#s);#t=IFCPROFILEPROPERTIES($,$,$,$);"
        "#w=IFCWALLTYPE('',$,$,$,$,(#w,#s,7),$,$,$,.STANDARD.);#r=IFCRELDEFINESBYTYPE('',$,$,$,(#w),#w);"};
    for (const char* text : damaged) {
        const NamedModel named("IFC4", text);
        const auto check = checkPropertySets(named.model(), shipped());
        EXPECT_TRUE(check.isComplete) << text;
        EXPECT_EQ(check.total, check.findings.size()) << text;
    }

    // Members too deep for one set are not for another.
    std::string deep = "#s=IFCPROPERTYSET('',$,'A',$,(#ca));#t=IFCPROPERTYSET('',$,'B',$,(#ci));"
                       "#u=IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.);"
                       "#cj=IFCPROPERTYSINGLEVALUE('C',$,IFCLENGTHMEASURE(1.),#u);";
    for (char c = 'a'; c < 'j'; ++c)
        deep += std::string("#c") + c + "=IFCCOMPLEXPROPERTY('P',$,'',(#c" + static_cast<char>(c + 1) + "));";
    EXPECT_EQ(told(NamedModel("IFC4", deep), shipped()), "value-unit P.C");

    // All sets of one relationship are sets of all its objects.
    std::string sets, objects, instances;
    for (int i = 0; i < 3000; ++i) {
        const std::string number = std::to_string(i);
        instances += "#s" + number + "=IFCPROPERTYSET('',$,'Pset_DoorCommon',$,(#p));#w" + number + "=IFCWALL('');";
        sets += (i > 0 ? ",#s" : "#s") + number;
        objects += (i > 0 ? ",#w" : "#w") + number;
    }
    const NamedModel many("IFC4", instances + "#p=IFCPROPERTYSINGLEVALUE('Reference',...);#r=" +
                                      attached(objects, "IFCPROPERTYSETDEFINITIONSET((" + sets + "))"));
    const auto check = checkPropertySets(many.model(), shipped());
    EXPECT_EQ(check.total, 3000u + 2999u);
    EXPECT_EQ(check.findings.at(0).others, 2999u);

    // What many share is looked at once: each doubling of depth would double what there is to look at.
    std::string nested = setOf("Acme", "#c0");
    for (int i = 0; i < 60; ++i) {
        const std::string next = "#c" + std::to_string(i + 1);
        nested += "#c" + std::to_string(i) + "=IFCCOMPLEXPROPERTY('A',$,'',(" + next + ',' + next + "));";
    }
    const NamedModel doubling("IFC4", nested + "#c60=IFCPROPERTYSINGLEVALUE('B',...);");
    EXPECT_LT(checkPropertySets(doubling.model(), shipped()).findings.size(), 1000u);
}

} // namespace velkor
