// What newer releases say otherwise: a model of a few lines for each rule, and the result held to the dictionary.
#include "ConvertedModel.h"

#include <gmock/gmock.h>
#include <set>

namespace velkor {

namespace {

using test::ConvertedModel;
using test::owner;
using test::toRelease;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// "~A" stands for identifier and owner history, the beginning of every rooted instance.
std::string spelled(std::string text) {
    for (std::size_t at = text.find('~'); at != text.npos; at = text.find('~'))
        text.replace(at, 2, std::string("'000000000000000000000") + text[at + 1] + "',#94");
    return text;
}

/// A row: instances of one release, and records that the result has in the other.
struct Row {
    const char* rule;
    const char* from;
    const char* to;
    std::string instances;
    std::vector<std::pair<std::uint64_t, std::string>> records;
    bool isLossless = true;
};

/// "code #id" of what is wrong in a text, rules of the release included.
std::set<std::string> faults(std::string text) {
    ConvertedModel model;
    model.text = std::move(text);
    std::set<std::string> found;
    for (const std::string& problem : model.problems(CheckScope::Everything))
        found.insert(problem.substr(0, problem.find(' ', problem.find('#'))));
    return found;
}

void expectRows(const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(row.rule) + ": " + row.instances);
        const ConvertedModel result = toRelease(row.from, owner + spelled(row.instances), row.to);
        ASSERT_EQ(result.error, "");
        for (const auto& [id, record] : row.records) EXPECT_EQ(result.record(id), spelled(record)) << result.text;
        EXPECT_GT(result.count(row.rule), 0u);
        EXPECT_EQ(result.report.isLossless(), row.isLossless);
        EXPECT_THAT(result.problems(), IsEmpty()) << result.text;
        // No rule is broken that was not broken before.
        const std::set<std::string> before = faults(test::modelText(row.from, owner + spelled(row.instances)));
        for (const std::string& fault : faults(result.text)) EXPECT_TRUE(before.contains(fault)) << fault;
    }
}

} // namespace

TEST(Forward, SaysTimesOfProcessesAndProperties) {
    expectRows({
        {"number-to-lag",
         "IFC2X3",
         "IFC4",
         "#1=IFCTASK(~A,'a',$,$,'1',$,$,.F.,$);#2=IFCTASK(~B,'b',$,$,'2',$,$,.F.,$);"
         "#3=IFCRELSEQUENCE(~C,$,$,#1,#2,1.5,.START_START.);",
         {{95, "IFCLAGTIME($,$,$,IFCDURATION('PT1.5S'),.NOTDEFINED.)"},
          {3, "IFCRELSEQUENCE(~C,$,$,#1,#2,#95,.START_START.,$)"}}},
        {"date-property",
         "IFC2X3",
         "IFC4",
         "#1=IFCCALENDARDATE(3,2,2009);#2=IFCPROPERTYREFERENCEVALUE('built',$,$,#1);"
         "#3=IFCPROPERTYSET(~A,'s',$,(#2));",
         {{2, "IFCPROPERTYSINGLEVALUE('built',$,IFCDATE('2009-02-03'),$)"}}},
    });
    // An hour is the unit of time.
    const auto hours = toRelease(
        "IFC2X3",
        owner + spelled("#1=IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.);#2=IFCDIMENSIONALEXPONENTS(0,0,1,0,0,0,0);"
                        "#3=IFCMEASUREWITHUNIT(IFCTIMEMEASURE(3600.),#1);"
                        "#4=IFCCONVERSIONBASEDUNIT(#2,.TIMEUNIT.,'HOUR',#3);#5=IFCUNITASSIGNMENT((#4));"
                        "#6=IFCCARTESIANPOINT((0.,0.,0.));#7=IFCAXIS2PLACEMENT3D(#6,$,$);"
                        "#8=IFCGEOMETRICREPRESENTATIONCONTEXT($,$,3,$,#7,$);"
                        "#9=IFCPROJECT(~A,'P',$,$,$,$,(#8),#5);#10=IFCSCHEDULETIMECONTROL(~B,$,$,$,$,$,$,$,$,$,$,$,"
                        "2.,$,$,$,$,$,$,$,$,$);#11=IFCTASK(~C,$,$,$,'1',$,$,.F.,$);"
                        "#12=IFCCALENDARDATE(3,2,2009);#13=IFCWORKSCHEDULE(~D,$,$,$,'w',#12,$,$,$,$,#12,$,$,$);"
                        "#14=IFCRELASSIGNSTASKS(~E,$,$,(#11),$,#13,#10);"),
        "IFC4");
    EXPECT_THAT(hours.records("IFCTASKTIME"), ElementsAre(HasSubstr("'PT7200S'"))) << hours.text;
    EXPECT_THAT(hours.problems(), IsEmpty());
}

TEST(Forward, SaysProcessesAsTasks) {
    expectRows({
        {"order-action",
         "IFC2X3",
         "IFC4",
         "#1=IFCORDERACTION(~A,'o',$,$,'1',$,$,.F.,$,'act');",
         {{1, "IFCTASK(~A,'o',$,'IfcOrderAction','1','act',$,$,.F.,$,$,$)"}}},
        {"user-defined-type",
         "IFC2X3",
         "IFC4",
         "#1=IFCPROCEDURE(~A,'p',$,$,'1',.USERDEFINED.,'mine');",
         {{1, "IFCPROCEDURE(~A,'p',$,'mine','1',$,.USERDEFINED.)"}}},
    });
    const auto move = toRelease("IFC2X3",
                                owner + spelled("#1=IFCSPACE(~A,$,$,$,$,$,$,.ELEMENT.,.INTERNAL.,$);"
                                                "#2=IFCSPACE(~B,$,$,$,$,$,$,.ELEMENT.,.INTERNAL.,$);"
                                                "#3=IFCMOVE(~C,$,$,$,'1',$,$,.F.,$,#1,#2,('desk','chair'));"),
                                "IFC4");
    EXPECT_EQ(move.record(3), spelled("IFCTASK(~C,$,$,$,'1','desk\\X2\\000A\\X0\\chair',$,$,.F.,$,$,.MOVE.)"));
    EXPECT_THAT(move.records("IFCRELASSIGNSTOPROCESS"), ElementsAre(HasSubstr("'MoveFrom',$,(#1),$,#3,$)")));
    EXPECT_THAT(move.records("IFCRELASSIGNSTOPRODUCT"), ElementsAre(HasSubstr("'MoveTo',$,(#3),$,#2)")));
    EXPECT_THAT(move.problems(), IsEmpty());
    EXPECT_TRUE(move.report.isLossless());

    const auto orders =
        toRelease("IFC2X3",
                  owner + spelled("#1=IFCPROJECTORDER(~A,$,$,$,'1',.WORKORDER.,$);#2=IFCTASK(~B,$,$,$,'1',$,$,.F.,$);"
                                  "#3=IFCRELASSIGNSTOPROJECTORDER(~C,$,$,(#2),$,#1);"
                                  "#4=IFCPROJECTORDERRECORD(~D,$,$,$,(#3),.WORK.);"),
                  "IFC4");
    EXPECT_EQ(orders.record(4), spelled("IFCPROJECTORDER(~D,$,$,$,$,.WORKORDER.,$,$)"));
    EXPECT_THAT(orders.records("IFCRELNESTS"), ElementsAre(HasSubstr(",#4,(#1))")));
    EXPECT_THAT(orders.problems(), IsEmpty());
}

TEST(Forward, TellsElementsApartByTheirTypes) {
    const std::string type = "#1=IFCAIRTERMINALTYPE(~A,'t',$,$,$,$,$,$,.GRILLE.);"
                             "#2=IFCFLOWTERMINAL(~B,'f',$,$,$,$,'tag');#3=IFCFLOWTERMINAL(~C,'g',$,$,$,$,$);"
                             "#4=IFCRELDEFINESBYTYPE(~D,$,$,(#2,#5),#1);#5=IFCFLOWSEGMENT(~E,$,$,$,$,$,$);";
    expectRows({
        {"element-by-type",
         "IFC2X3",
         "IFC4",
         type,
         {{2, "IFCAIRTERMINAL(~B,'f',$,$,$,$,'tag',$)"},
          {3, "IFCFLOWTERMINAL(~C,'g',$,$,$,$,$)"},
          {5, "IFCFLOWSEGMENT(~E,$,$,$,$,$,$)"}}},
        {"type-moved",
         "IFC2X3",
         "IFC4",
         "#1=IFCWASTETERMINALTYPE(~A,'t',$,$,$,$,$,$,.OILINTERCEPTOR.);#2=IFCFLOWTERMINAL(~B,$,$,$,$,$,$);",
         {{1, "IFCINTERCEPTORTYPE(~A,'t',$,$,$,$,$,$,.OIL.)"}}},
        {"type-moved",
         "IFC2X3",
         "IFC4",
         "#1=IFCELECTRICDISTRIBUTIONPOINT(~A,$,$,$,$,$,$,.GASDETECTORPANEL.,$);",
         {{1, "IFCUNITARYCONTROLELEMENT(~A,$,$,$,$,$,$,.GASDETECTIONPANEL.)"}}},
        {"type-moved",
         "IFC4X3_RC3",
         "IFC4X3_ADD2",
         "#1=IFCTRANSPORTELEMENT(~A,$,$,$,$,$,$,IFCTRANSPORTELEMENTNONFIXEDTYPEENUM(.ROLLINGSTOCK.));",
         {{1, "IFCVEHICLE(~A,$,$,$,$,$,$,.ROLLINGSTOCK.)"}}},
        {"electrical-element",
         "IFC2X3",
         "IFC4",
         "#1=IFCELECTRICALELEMENT(~A,$,$,$,$,$,$);",
         {{1, "IFCDISTRIBUTIONELEMENT(~A,$,$,'IFCELECTRICALELEMENT',$,$,$)"}}},
        {"equipment-element",
         "IFC2X3",
         "IFC4",
         "#1=IFCEQUIPMENTELEMENT(~A,$,$,'mine',$,$,$);",
         {{1, "IFCBUILDINGELEMENTPROXY(~A,'IFCEQUIPMENTELEMENT',$,'mine',$,$,$,$)"}}},
        {"member-of-element",
         "IFC2X3",
         "IFC4",
         "#1=IFCBEAM(~A,$,$,$,$,$,$);#2=IFCSTRUCTURALSURFACEMEMBER(~B,$,$,$,$,$,.SHELL.,0.2);"
         "#3=IFCRELCONNECTSSTRUCTURALELEMENT(~C,$,$,#1,#2);",
         {{3, "IFCRELASSIGNSTOPRODUCT(~C,$,$,(#2),$,#1)"}}},
        {"port-of-element",
         "IFC2X3",
         "IFC4",
         "#1=IFCBEAM(~A,$,$,$,$,$,$);#2=IFCDISTRIBUTIONPORT(~B,$,$,$,$,$,$);"
         "#3=IFCRELCONNECTSPORTTOELEMENT(~C,$,$,#2,#1);",
         {{3, "IFCRELNESTS(~C,$,$,#1,(#2))"}}},
    });
}

TEST(Forward, LeavesElementsOfAReleaseThatTellsThemApart) {
    const auto result = toRelease("IFC4",
                                  owner + spelled("#1=IFCAIRTERMINALTYPE(~A,'t',$,$,$,$,$,$,$,.GRILLE.);"
                                                  "#2=IFCFLOWTERMINAL(~B,'f',$,$,$,$,$);"
                                                  "#3=IFCRELDEFINESBYTYPE(~C,$,$,(#2),#1);"),
                                  "IFC4X3_ADD2");
    EXPECT_EQ(result.record(2), spelled("IFCFLOWTERMINAL(~B,'f',$,$,$,$,$)"));
    EXPECT_EQ(result.count("element-by-type"), 0u);
}

TEST(Forward, KeepsWhatHasNoAttributeAsProperties) {
    const auto feature =
        toRelease("IFC2X3", owner + spelled("#1=IFCCHAMFEREDGEFEATURE(~A,$,$,$,$,$,$,1.,0.1,$);"), "IFC4");
    EXPECT_EQ(feature.record(1), spelled("IFCVOIDINGFEATURE(~A,$,$,$,$,$,$,.CHAMFER.)"));
    EXPECT_THAT(feature.records("IFCPROPERTYSINGLEVALUE"),
                ElementsAre("IFCPROPERTYSINGLEVALUE('FeatureLength',$,IFCPOSITIVELENGTHMEASURE(1.),$)",
                            "IFCPROPERTYSINGLEVALUE('Width',$,IFCPOSITIVELENGTHMEASURE(0.1),$)"));
    EXPECT_THAT(feature.records("IFCPROPERTYSET"), ElementsAre(HasSubstr("'IfcChamferEdgeFeature',$,(#95,#96))")));
    EXPECT_THAT(feature.records("IFCRELDEFINESBYPROPERTIES"), ElementsAre(HasSubstr("(#1),#97)")));
    EXPECT_THAT(feature.problems(), IsEmpty());
    EXPECT_TRUE(feature.report.isLossless());

    const auto lift =
        toRelease("IFC2X3", owner + spelled("#1=IFCTRANSPORTELEMENT(~A,$,$,$,$,$,$,.ELEVATOR.,900.,12.);"), "IFC4");
    EXPECT_EQ(lift.record(1), spelled("IFCTRANSPORTELEMENT(~A,$,$,$,$,$,$,.ELEVATOR.)"));
    EXPECT_THAT(lift.records("IFCPROPERTYSINGLEVALUE"),
                ElementsAre("IFCPROPERTYSINGLEVALUE('CapacityByWeight',$,IFCMASSMEASURE(900.),$)",
                            "IFCPROPERTYSINGLEVALUE('CapacityByNumber',$,IFCCOUNTMEASURE(12.),$)"));
    EXPECT_THAT(lift.problems(), IsEmpty());
    EXPECT_TRUE(lift.report.isLossless());

    expectRows({
        {"style-to-type",
         "IFC2X3",
         "IFC4",
         "#1=IFCDOORSTYLE(~A,'d',$,$,$,$,$,.SINGLE_SWING_LEFT.,.WOOD.,.F.,.T.);",
         {{95, "IFCPROPERTYSINGLEVALUE('ConstructionType',$,IFCLABEL('WOOD'),$)"},
          {96, "IFCPROPERTYSINGLEVALUE('Sizeable',$,IFCBOOLEAN(.T.),$)"},
          {1, "IFCDOORTYPE(~A,'d',$,$,(#97),$,$,$,.NOTDEFINED.,.SINGLE_SWING_LEFT.,.F.,$)"}}},
        {"style-to-type",
         "IFC2X3",
         "IFC4",
         "#1=IFCWINDOWSTYLE(~A,'w',$,$,$,$,$,.NOTDEFINED.,.SINGLE_PANEL.,.F.,.F.);",
         {{95, ""}, {1, "IFCWINDOWTYPE(~A,'w',$,$,$,$,$,$,.NOTDEFINED.,.SINGLE_PANEL.,.F.,$)"}}},
        {"centre-of-gravity",
         "IFC2X3",
         "IFC4",
         "#1=IFCCARTESIANPOINT((0.,0.));#2=IFCAXIS2PLACEMENT2D(#1,$);"
         "#3=IFCTSHAPEPROFILEDEF(.AREA.,'t',#2,2.,1.,0.1,0.1,$,$,$,$,$,0.7);",
         {{3, "IFCTSHAPEPROFILEDEF(.AREA.,'t',#2,2.,1.,0.1,0.1,$,$,$,$,$)"},
          {95, "IFCPROPERTYSINGLEVALUE('CentreOfGravityInY',$,IFCLENGTHMEASURE(0.7),$)"},
          {96, "IFCPROFILEPROPERTIES('Pset_ProfileMechanical',$,(#95),#3)"}}},
        {"attributes-to-set",
         "IFC2X3",
         "IFC4",
         "#1=IFCELECTRICALBASEPROPERTIES(~A,$,$,.PRIMARY.,$,.DIRECT.,230.,50.,$,$,$,$,3);",
         {{95, "IFCPROPERTYSINGLEVALUE('EnergySequence',$,IFCLABEL('PRIMARY'),$)"},
          {97, "IFCPROPERTYSINGLEVALUE('InputVoltage',$,IFCELECTRICVOLTAGEMEASURE(230.),$)"},
          {99, "IFCPROPERTYSINGLEVALUE('InputPhase',$,IFCINTEGER(3),$)"},
          {1, "IFCPROPERTYSET(~A,'IfcElectricalBaseProperties',$,(#95,#96,#97,#98,#99))"}}},
        {"sound-values",
         "IFC2X3",
         "IFC4",
         "#1=IFCSOUNDVALUE(~A,$,$,$,125.,IFCSOUNDPRESSUREMEASURE(3.));"
         "#2=IFCSOUNDPROPERTIES(~B,'mine',$,.T.,.NC.,(#1));",
         {{1, ""},
          {97,
           "IFCPROPERTYTABLEVALUE('SoundValues',$,(IFCFREQUENCYMEASURE(125.)),(IFCSOUNDPRESSUREMEASURE(3.)),$,$,$,$)"},
          {2, "IFCPROPERTYSET(~B,'mine',$,(#95,#96,#97))"}}},
        {"control-to-set",
         "IFC2X3",
         "IFC4",
         "#1=IFCSPACEPROGRAM(~A,'office',$,$,'P1',20.,$,$,15.);"
         "#2=IFCSPACE(~B,$,$,$,$,$,$,.ELEMENT.,.INTERNAL.,$);#3=IFCRELASSIGNSTOCONTROL(~C,$,$,(#2),$,#1);",
         {{1, "IFCPROPERTYSET(~A,'IfcSpaceProgram',$,(#95,#96,#97,#98))"},
          {97, "IFCPROPERTYSINGLEVALUE('MaxRequiredArea',$,IFCAREAMEASURE(20.),$)"},
          {3, "IFCRELDEFINESBYPROPERTIES(~C,$,$,(#2),#1)"}}},
        {"assignment-to-set",
         "IFC2X3",
         "IFC4",
         "#1=IFCCALENDARDATE(3,2,2009);#2=IFCCONDITIONCRITERION(~A,$,$,$,IFCLABEL('good'),#1);"
         "#3=IFCCONDITION(~B,$,$,$);#4=IFCRELASSIGNSTOCONTROL(~C,$,$,(#3),$,#2);",
         {{2, "IFCPROPERTYSET(~A,'IfcConditionCriterion',$,(#95,#96))"},
          {95, "IFCPROPERTYSINGLEVALUE('Criterion',$,IFCLABEL('good'),$)"},
          {96, "IFCPROPERTYSINGLEVALUE('CriterionDateTime',$,IFCDATE('2009-02-03'),$)"},
          {4, "IFCRELDEFINESBYPROPERTIES(~C,$,$,(#3),#2)"}}},
    });
}

TEST(Forward, SaysWhatActionsAreLoadedWith) {
    const std::string load = "#1=IFCSTRUCTURALLOADLINEARFORCE($,1.,$,$,$,$,$);"
                             "#2=IFCSTRUCTURALLOADLINEARFORCE($,2.,$,$,$,$,$);";
    expectRows({
        {"constant-load",
         "IFC2X3",
         "IFC4",
         load + "#3=IFCSTRUCTURALLINEARACTION(~A,$,$,$,$,$,#1,.GLOBAL_COORDS.,.F.,$,.TRUE_LENGTH.);",
         {{3, "IFCSTRUCTURALLINEARACTION(~A,$,$,$,$,$,#1,.GLOBAL_COORDS.,.F.,.TRUE_LENGTH.,.CONST.)"}}},
        {"caused-by",
         "IFC2X3",
         "IFC4",
         "#1=IFCSTRUCTURALLOADSINGLEFORCE($,1.,$,$,$,$,$);"
         "#3=IFCSTRUCTURALPOINTREACTION(~B,$,$,$,$,$,#1,.GLOBAL_COORDS.);"
         "#4=IFCSTRUCTURALPOINTACTION(~A,$,$,$,$,$,#1,.GLOBAL_COORDS.,.F.,#3);",
         {{4, "IFCSTRUCTURALPOINTACTION(~A,$,$,$,$,$,#1,.GLOBAL_COORDS.,.F.)"}}},
        {"infinite-stiffness",
         "IFC2X3",
         "IFC4",
         "#1=IFCBOUNDARYNODECONDITION($,-1.,5.,$,-1.,0.,$);",
         {{1, "IFCBOUNDARYNODECONDITION($,IFCBOOLEAN(.T.),IFCLINEARSTIFFNESSMEASURE(5.),$,IFCBOOLEAN(.T.),"
              "IFCROTATIONALSTIFFNESSMEASURE(0.),$)"}}},
    });
    const auto varying = toRelease(
        "IFC2X3",
        owner +
            spelled(load + "#3=IFCCARTESIANPOINT((0.,0.,0.));#4=IFCAXIS2PLACEMENT3D(#3,$,$);"
                           "#5=IFCGEOMETRICREPRESENTATIONCONTEXT($,$,3,$,#4,$);#6=IFCSHAPEREPRESENTATION(#5,$,$,(#3));"
                           "#7=IFCPRODUCTDEFINITIONSHAPE($,$,(#6));#8=IFCSHAPEASPECT((#6),$,$,.F.,#7);"
                           "#9=IFCSTRUCTURALLINEARACTIONVARYING(~A,$,$,$,$,$,#1,.GLOBAL_COORDS.,.F.,$,"
                           ".TRUE_LENGTH.,#8,(#2));"),
        "IFC4");
    EXPECT_EQ(varying.record(9),
              spelled("IFCSTRUCTURALLINEARACTION(~A,$,$,$,$,$,#95,.GLOBAL_COORDS.,.F.,.TRUE_LENGTH.,.LINEAR.)"));
    EXPECT_EQ(varying.record(95), "IFCSTRUCTURALLOADCONFIGURATION($,(#1,#2),$)");
    EXPECT_THAT(varying.problems(), IsEmpty());
}

TEST(Forward, SaysReferencesAsOneKind) {
    expectRows({
        {"classification-item",
         "IFC2X3",
         "IFC4",
         "#1=IFCCLASSIFICATION('s','1',$,'Uni');#2=IFCCLASSIFICATIONNOTATIONFACET('Ss');"
         "#3=IFCCLASSIFICATIONNOTATIONFACET('Ss_25');#4=IFCCLASSIFICATIONITEM(#2,#1,'Systems');"
         "#5=IFCCLASSIFICATIONITEM(#3,#1,'Walls');#6=IFCCLASSIFICATIONITEMRELATIONSHIP(#4,(#5));",
         {{2, ""},
          {4, "IFCCLASSIFICATIONREFERENCE($,'Ss','Systems',#1,$,$)"},
          {5, "IFCCLASSIFICATIONREFERENCE($,'Ss_25','Walls',#4,$,$)"},
          {6, ""}}},
        {"classification-notation",
         "IFC2X3",
         "IFC4",
         "#1=IFCCLASSIFICATIONNOTATIONFACET('A');#2=IFCCLASSIFICATIONNOTATIONFACET('1');"
         "#3=IFCCLASSIFICATIONNOTATION((#1,#2));#4=IFCWALL(~A,$,$,$,$,$,$);"
         "#5=IFCRELASSOCIATESCLASSIFICATION(~B,$,$,(#4),#3);",
         {{3, "IFCCLASSIFICATIONREFERENCE($,'A 1',$,$,$,$)"}, {5, "IFCRELASSOCIATESCLASSIFICATION(~B,$,$,(#4),#3)"}}},
        {"references-of-document",
         "IFC2X3",
         "IFC4",
         "#1=IFCDOCUMENTREFERENCE($,'r',$);#2=IFCDOCUMENTELECTRONICFORMAT($,'application','pdf');"
         "#3=IFCDOCUMENTINFORMATION('d','D',$,(#1),$,$,$,$,$,$,$,$,#2,$,$,$,$);",
         {{1, "IFCDOCUMENTREFERENCE($,'r',$,$,#3)"},
          {3, "IFCDOCUMENTINFORMATION('d','D',$,$,$,$,$,$,$,$,$,$,'application/pdf',$,$,$,$)"}}},
        {"file-extension",
         "IFC2X3",
         "IFC4",
         "#2=IFCDOCUMENTELECTRONICFORMAT('pdf','application','pdf');"
         "#3=IFCDOCUMENTINFORMATION('d','D',$,$,$,$,$,$,$,$,$,$,#2,$,$,$,$);",
         {{3, "IFCDOCUMENTINFORMATION('d','D',$,$,$,$,$,$,$,$,$,$,'application/pdf',$,$,$,$)"}},
         false},
        {"resource-relationship",
         "IFC2X3",
         "IFC4",
         "#1=IFCPROPERTYSINGLEVALUE('p',$,$,$);#2=IFCCALENDARDATE(3,2,2009);"
         "#3=IFCAPPROVAL('d',#2,$,$,$,'n','i');#4=IFCAPPROVALPROPERTYRELATIONSHIP((#1),#3);",
         {{3, "IFCAPPROVAL('i','n','d','2009-02-03T00:00:00',$,$,$,$,$)"},
          {4, "IFCRESOURCEAPPROVALRELATIONSHIP($,$,(#1),#3)"}}},
        {"approval-actor",
         "IFC2X3",
         "IFC4",
         "#2=IFCCALENDARDATE(3,2,2009);#3=IFCAPPROVAL($,#2,$,$,$,'n','i');#4=IFCACTORROLE(.ARCHITECT.,$,$);"
         "#5=IFCAPPROVALACTORRELATIONSHIP(#90,#3,#4);",
         {{5, "IFCRESOURCEAPPROVALRELATIONSHIP('ARCHITECT',$,(#90),#3)"}}},
        {"constraint-aggregation",
         "IFC2X3",
         "IFC4",
         "#1=IFCMETRIC('a',$,.HARD.,$,$,$,$,.EQUALTO.,$,IFCTEXT('x'));#2=IFCMETRIC('b',$,.HARD.,$,$,$,$,.EQUALTO.,$,"
         "IFCTEXT('y'));#3=IFCCONSTRAINTAGGREGATIONRELATIONSHIP('n',$,#1,(#2),.LOGICALAND.);",
         {{3, "IFCRESOURCECONSTRAINTRELATIONSHIP('n','LOGICALAND',#1,(#2))"}}},
        {"external-reference",
         "IFC2X3",
         "IFC4",
         "#1=IFCMETRIC('a',$,.HARD.,$,$,$,$,.EQUALTO.,$,IFCTEXT('x'));#2=IFCCLASSIFICATIONREFERENCE($,'1',$,$);"
         "#3=IFCCLASSIFICATIONREFERENCE($,'2',$,$);#4=IFCCONSTRAINTCLASSIFICATIONRELATIONSHIP(#1,(#2,#3));",
         {{4, "IFCEXTERNALREFERENCERELATIONSHIP($,$,#2,(#1))"}, {95, "IFCEXTERNALREFERENCERELATIONSHIP($,$,#3,(#1))"}}},
    });
}

TEST(Forward, SaysCostsAtTheirItems) {
    const std::string values = "#1=IFCCOSTVALUE('a',$,IFCMONETARYMEASURE(1.),$,$,$,'total',$);"
                               "#2=IFCCOSTVALUE('b',$,IFCMONETARYMEASURE(2.),$,$,$,'part',$);";
    expectRows({
        {"value-components",
         "IFC2X3",
         "IFC4",
         values + "#3=IFCAPPLIEDVALUERELATIONSHIP(#1,(#2),.ADD.,$,$);",
         {{1, "IFCCOSTVALUE('a',$,IFCMONETARYMEASURE(1.),$,$,$,'total',$,.ADD.,(#2))"}, {3, ""}}},
        {"more-components",
         "IFC2X3",
         "IFC4",
         values + "#3=IFCAPPLIEDVALUERELATIONSHIP(#1,(#2),.ADD.,$,$);"
                  "#4=IFCAPPLIEDVALUERELATIONSHIP(#1,(#2),.MULTIPLY.,$,$);",
         {{1, "IFCCOSTVALUE('a',$,IFCMONETARYMEASURE(1.),$,$,$,'total',$,.ADD.,(#2))"}, {4, ""}},
         false},
        {"values-of-item",
         "IFC2X3",
         "IFC4",
         values + "#3=IFCCOSTITEM(~A,$,$,$);#4=IFCRELASSOCIATESAPPLIEDVALUE(~B,$,$,(#3),#1);"
                  "#5=IFCRELASSOCIATESAPPLIEDVALUE(~C,$,$,(#3),#2);",
         {{3, "IFCCOSTITEM(~A,$,$,$,$,$,(#1,#2),$)"}, {4, ""}}},
        {"impact-value",
         "IFC2X3",
         "IFC4",
         "#1=IFCENVIRONMENTALIMPACTVALUE('a',$,IFCRATIOMEASURE(1.),$,$,$,'CO2',.DISPOSAL.,$);",
         {{1, "IFCAPPLIEDVALUE('a',$,IFCRATIOMEASURE(1.),$,$,$,'CO2','DISPOSAL',$,$)"}}},
        {"base-quantity",
         "IFC2X3",
         "IFC4",
         "#1=IFCSIUNIT(*,.AREAUNIT.,$,.SQUARE_METRE.);#2=IFCMEASUREWITHUNIT(IFCAREAMEASURE(3.),#1);"
         "#3=IFCLABORRESOURCE(~A,$,$,$,$,$,$,#2,$);",
         {{95, "IFCQUANTITYAREA('BaseQuantity',$,#1,3.,$)"}, {3, "IFCLABORRESOURCE(~A,$,$,$,$,$,$,$,#95,$)"}}},
    });
    const auto wall = toRelease("IFC2X3",
                                owner + spelled(values + "#3=IFCWALL(~A,$,$,$,$,$,$);"
                                                         "#4=IFCRELASSOCIATESAPPLIEDVALUE(~B,'n',$,(#3),#1);"),
                                "IFC4");
    EXPECT_EQ(wall.record(4), spelled("IFCRELASSIGNSTOCONTROL(~B,'n',$,(#3),$,#95)"));
    EXPECT_THAT(wall.record(95), HasSubstr("'n',$,$,$,$,(#1),$)"));
    EXPECT_THAT(wall.problems(), IsEmpty());
    const auto section = toRelease(
        "IFC2X3",
        owner + spelled("#1=IFCCIRCLEPROFILEDEF(.AREA.,'c',#3,1.);#2=IFCCARTESIANPOINT((0.,0.));"
                        "#3=IFCAXIS2PLACEMENT2D(#2,$);#4=IFCGENERALPROFILEPROPERTIES('n',#1,$,$,$,$,2.);"
                        "#5=IFCBEAM(~A,$,$,$,$,$,$);#6=IFCRELASSOCIATESPROFILEPROPERTIES(~B,$,$,(#5),#4,$,$);"),
        "IFC4");
    EXPECT_THAT(section.records("IFCMATERIALPROFILE"), ElementsAre("IFCMATERIALPROFILE('n',$,$,#1,$,$)"));
    EXPECT_THAT(section.record(6), HasSubstr("IFCRELASSOCIATESMATERIAL("));
    EXPECT_THAT(section.problems(), IsEmpty());
}

TEST(Forward, SaysAnnotationsAsItemsWithStyles) {
    const std::string context = "#1=IFCCARTESIANPOINT((0.,0.));#2=IFCAXIS2PLACEMENT2D(#1,$);"
                                "#3=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Plan',2,$,#2,$);#4=IFCCARTESIANPOINT((1.,0.));"
                                "#5=IFCPOLYLINE((#1,#4));#6=IFCCURVESTYLE($,$,IFCPOSITIVELENGTHMEASURE(0.1),$);"
                                "#7=IFCPRESENTATIONSTYLEASSIGNMENT((#6));#8=IFCANNOTATIONCURVEOCCURRENCE(#5,(#7),'n');";
    expectRows({
        {"annotation-occurrence",
         "IFC2X3",
         "IFC4",
         context + "#9=IFCSHAPEREPRESENTATION(#3,$,'Annotation2D',(#8));"
                   "#10=IFCPRESENTATIONLAYERASSIGNMENT('l',$,(#8),$);",
         {{8, ""},
          {9, "IFCSHAPEREPRESENTATION(#3,$,'Annotation2D',(#5))"},
          {10, "IFCPRESENTATIONLAYERASSIGNMENT('l',$,(#5),$)"},
          {95, "IFCSTYLEDITEM(#5,(#7),'n')"}}},
        {"draughting-callout",
         "IFC2X3",
         "IFC4",
         context + "#9=IFCDRAUGHTINGCALLOUT((#8));#10=IFCSHAPEREPRESENTATION(#3,$,'Annotation2D',(#9));",
         {{9, ""}, {10, "IFCSHAPEREPRESENTATION(#3,$,'Annotation2D',(#5))"}},
         false},
        {"hatch-distance",
         "IFC2X3",
         "IFC4",
         "#1=IFCDIRECTION((1.,0.));#2=IFCVECTOR(#1,2.);#3=IFCONEDIRECTIONREPEATFACTOR(#2);"
         "#4=IFCCURVESTYLE($,$,IFCPOSITIVELENGTHMEASURE(0.1),$);#5=IFCFILLAREASTYLEHATCHING(#4,#3,$,$,0.);#6="
         "IFCFILLAREASTYLE($,(#5));",
         {{3, ""}, {5, "IFCFILLAREASTYLEHATCHING(#4,#2,$,$,0.)"}}},
        {"symbol",
         "IFC2X3",
         "IFC4",
         context + "#9=IFCPREDEFINEDPOINTMARKERSYMBOL('dot');"
                   "#10=IFCCARTESIANTRANSFORMATIONOPERATOR2D($,$,#1,$);#11=IFCDEFINEDSYMBOL(#9,#10);"
                   "#12=IFCANNOTATIONSYMBOLOCCURRENCE(#11,(#7),$);"
                   "#13=IFCSHAPEREPRESENTATION(#3,$,'Annotation2D',(#12,#5));",
         {{12, ""}, {13, "IFCSHAPEREPRESENTATION(#3,$,'Annotation2D',(#5))"}},
         false},
    });
    // Items of one another have no end.
    const auto cycle = toRelease("IFC2X3",
                                 "#1=IFCANNOTATIONCURVEOCCURRENCE(#1,(#3),$);#2=IFCANNOTATIONSURFACE(#2,$);"
                                 "#3=IFCPRESENTATIONSTYLEASSIGNMENT((#3));#4=IFCDRAUGHTINGCALLOUT((#1,#4));"
                                 "#5=IFCANNOTATIONSURFACE(#4,$);#6=IFCANNOTATIONCURVEOCCURRENCE(#5,(#3),$);"
                                 "#7=IFCGEOMETRICSET((#1,#2,#4,#5,#6));",
                                 "IFC4");
    EXPECT_EQ(cycle.error, "");
}

TEST(Forward, FollowsTheReleasesBehindIfc4) {
    expectRows({
        {"standard-case",
         "IFC4",
         "IFC4X3_ADD2",
         "#1=IFCBEAMSTANDARDCASE(~A,$,$,$,$,$,$,.JOIST.);",
         {{1, "IFCBEAM(~A,$,$,$,$,$,$,.JOIST.)"}}},
        {"standard-case",
         "IFC4",
         "IFC4X3_ADD2",
         "#1=IFCOPENINGSTANDARDCASE(~A,$,$,$,$,$,$,$);",
         {{1, "IFCOPENINGELEMENT(~A,$,$,$,$,$,$,$)"}}},
        {"stratum-type",
         "IFC4X3_RC3",
         "IFC4X3_ADD2",
         "#1=IFCWATERSTRATUM(~A,$,$,$,$,$,$);",
         {{1, "IFCGEOTECHNICALSTRATUM(~A,$,$,$,$,$,$,.WATER.)"}}},
        {"plant-to-vegetation",
         "IFC4X3_RC3",
         "IFC4X3_ADD2",
         "#1=IFCPLANT(~A,$,$,$,$,$,$,$);",
         {{1, "IFCGEOGRAPHICELEMENT(~A,$,$,'IfcPlant',$,$,$,.VEGETATION.)"}}},
        {"facility-part",
         "IFC4X3_RC3",
         "IFC4X3_ADD2",
         "#1=IFCFACILITYPART(~A,$,$,$,$,$,$,.ELEMENT.,IFCROADPARTTYPEENUM(.SHOULDER.),.LATERAL.);",
         {{1, "IFCROADPART(~A,$,$,$,$,$,$,.ELEMENT.,.LATERAL.,.SHOULDER.)"}}},
        {"facility-usage",
         "IFC4X2",
         "IFC4X3_ADD2",
         "#1=IFCBRIDGEPART(~A,$,$,$,$,$,$,.ELEMENT.,.PIER.);",
         {{1, "IFCBRIDGEPART(~A,$,$,$,$,$,$,.ELEMENT.,.NOTDEFINED.,.PIER.)"}}},
        {"pavement-type",
         "IFC4X3_RC1",
         "IFC4X3_RC3",
         "#1=IFCPAVEMENT(~A,$,$,$,$,$,$,.T.);",
         {{1, "IFCPAVEMENT(~A,$,$,$,$,$,$,.FLEXIBLE.)"}}},
        {"map-scales",
         "IFC4X3_RC3",
         "IFC4X3_ADD2",
         "#1=IFCPROJECTEDCRS('c',$,$,$,$,$,$);#2=IFCMAPCONVERSION(#1,#1,0.,0.,0.,$,$,2.,3.,$);",
         {{2, "IFCMAPCONVERSIONSCALED(#1,#1,0.,0.,0.,$,$,$,2.,3.,2.)"}}},
        {"unit-name",
         "IFC4X3_ADD2",
         "IFC4X4",
         "#1=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);#2=IFCDERIVEDUNITELEMENT(#1,4);"
         "#3=IFCDERIVEDUNIT((#2),.MOMENTOFINERTIAUNIT.,$,$);",
         {{3, "IFCDERIVEDUNIT((#2),.MOMENTOFINERTIAUNIT.,$,'MOMENTOFINERTIAUNIT')"}}},
        {"related-kind",
         "IFC4",
         "IFC4X3_ADD2",
         "#1=IFCGROUP(~A,$,$,$);#2=IFCWALL(~B,$,$,$,$,$,$,$);#3=IFCRELASSIGNSTOGROUP(~C,$,$,(#2),.PRODUCT.,#1);",
         {{3, "IFCRELASSIGNSTOGROUP(~C,$,$,(#2),$,#1)"}}},
        {"enumerator-name",
         "IFC2X3",
         "IFC4",
         "#1=IFCELECTRICAPPLIANCETYPE(~A,'t',$,$,$,$,$,$,.WATERHEATER.);",
         {{1, "IFCELECTRICAPPLIANCETYPE(~A,'t',$,$,$,$,$,$,.FREESTANDINGWATERHEATER.)"}}},
        {"list-of-type",
         "IFC4",
         "IFC4X3_RC3",
         "#1=IFCTRANSPORTELEMENT(~A,$,$,$,$,$,$,.ELEVATOR.);",
         {{1, "IFCTRANSPORTELEMENT(~A,$,$,$,$,$,$,IFCTRANSPORTELEMENTFIXEDTYPEENUM(.ELEVATOR.))"}}},
        {"double-change",
         "IFC2X3",
         "IFC4",
         "#1=IFCOWNERHISTORY(#92,#93,$,.MODIFIEDADDED.,$,$,$,0);",
         {{1, "IFCOWNERHISTORY(#92,#93,$,.ADDED.,0,$,$,0)"}},
         false},
        {"change-date",
         "IFC2X3",
         "IFC4",
         "#1=IFCOWNERHISTORY(#92,#93,$,.ADDED.,$,$,$,7);",
         {{1, "IFCOWNERHISTORY(#92,#93,$,.ADDED.,7,$,$,7)"}}},
    });
}

} // namespace velkor
