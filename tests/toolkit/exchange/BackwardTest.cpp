// What older releases say otherwise than newer ones.
#include "ConvertedModel.h"

#include <gmock/gmock.h>

namespace velkor {

namespace {

using test::ConvertedModel;
using test::owner;
using test::root;
using test::toRelease;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

struct Case {
    const char* from;
    std::string instances;
    const char* to;
    /// Of #1 in the result; empty when it is gone.
    std::string record;
    const char* rule;
};

void expectAll(const std::vector<Case>& cases) {
    for (const Case& one : cases) {
        SCOPED_TRACE(std::string(one.from) + " to " + one.to + ": " + one.instances);
        const auto result = toRelease(one.from, owner + one.instances, one.to);
        EXPECT_EQ(result.error, "");
        EXPECT_EQ(result.record(1), one.record);
        EXPECT_GE(result.count(one.rule), 1u) << one.rule;
        EXPECT_THAT(result.problems(), IsEmpty());
    }
}

// Attributes of a product between its history and its own.
const std::string named = ",'n',$,$,$,$,";
std::string calledSo(const std::string& entity) {
    return ",'n',$,'" + entity + "',$,$,";
}

} // namespace

TEST(Backward, CallsProductsWhatTheyWere) {
    const auto product = [](const std::string& entity, const std::string& rest) {
        return "#1=" + entity + "(" + root('A') + named + rest + ");";
    };
    const auto becomes = [](const std::string& entity, const std::string& was, const std::string& rest) {
        return entity + "(" + root('A') + calledSo(was) + rest + ")";
    };
    expectAll({
        {"IFC4X3_ADD2", product("IFCROAD", "$,$,$"), "IFC4X2", becomes("IFCFACILITY", "IFCROAD", "$,$"), "facility"},
        {"IFC4X3_ADD2", product("IFCBRIDGEPART", "$,$,.LATERAL.,.DECK."), "IFC4X3_RC3",
         "IFCFACILITYPART(" + root('A') + named + "$,$,IFCBRIDGEPARTTYPEENUM(.DECK.),.LATERAL.)", "facility-part"},
        {"IFC4X4", product("IFCTUNNELPART", "$,$,.LATERAL.,$"), "IFC4X3_ADD2",
         becomes("IFCFACILITYPARTCOMMON", "IFCTUNNELPART", "$,$,.LATERAL.,$"), "facility-part"},
        {"IFC4X3_ADD2", product("IFCKERB", "'t',$"), "IFC4", becomes("IFCCIVILELEMENT", "IFCKERB", "'t'"),
         "civil-element"},
        {"IFC4X3_ADD2", product("IFCBOREHOLE", "'t'"), "IFC4", becomes("IFCGEOGRAPHICELEMENT", "IFCBOREHOLE", "'t',$"),
         "geographic-element"},
        {"IFC4X3_ADD2", product("IFCCAISSONFOUNDATION", "'t',$"), "IFC4",
         becomes("IFCFOOTING", "IFCCAISSONFOUNDATION", "'t',.CAISSON_FOUNDATION."), "caisson-to-footing"},
        {"IFC4", product("IFCVIBRATIONISOLATOR", "'t',$"), "IFC2X3",
         becomes("IFCDISCRETEACCESSORY", "IFCVIBRATIONISOLATOR", "'t'"), "component-to-accessory"},
        {"IFC4", product("IFCVOIDINGFEATURE", "'t',$"), "IFC2X3",
         becomes("IFCOPENINGELEMENT", "IFCVOIDINGFEATURE", "'t'"), "cut-to-opening"},
        {"IFC4X4", product("IFCUNDERGROUNDEXCAVATION", "'t',$"), "IFC4X3_ADD2",
         becomes("IFCEARTHWORKSCUT", "IFCUNDERGROUNDEXCAVATION", "'t',$"), "cut-to-opening"},
        {"IFC4X3_ADD2", product("IFCVEHICLE", "'t',.ROLLINGSTOCK."), "IFC4X3_RC3",
         becomes("IFCTRANSPORTELEMENT", "IFCVEHICLE", "'t',IFCTRANSPORTELEMENTNONFIXEDTYPEENUM(.ROLLINGSTOCK.)"),
         "vehicle-to-transport"},
        {"IFC4X1", product("IFCREFERENT", ".KILOPOINT.,$"), "IFC4", becomes("IFCPROXY", "IFCREFERENT", ".PRODUCT.,$"),
         "product-to-proxy"},
        {"IFC4X3_ADD2", product("IFCALIGNMENT", "$"), "IFC4X2", becomes("IFCPROXY", "IFCALIGNMENT", ".PRODUCT.,$"),
         "product-to-proxy"},
        {"IFC4", product("IFCWALL", "'t',.PARAPET."), "IFC2X3", becomes("IFCWALL", "PARAPET", "'t'"),
         "enumerator-as-text"},
        {"IFC4", "#1=IFCASSET(" + root('A') + ",'n',$,$,'i',$,$,$,$,$,$,$,$);", "IFC2X3",
         "IFCGROUP(" + root('A') + ",'n',$,'IFCASSET')", "group-without-owner"},
        {"IFC4", "#1=IFCDISTRIBUTIONCIRCUIT(" + root('A') + ",'n',$,$,$,.HEATING.);", "IFC2X3",
         "IFCSYSTEM(" + root('A') + ",'n',$,'IFCDISTRIBUTIONCIRCUIT')", "circuit-to-system"},
        {"IFC4", "#1=IFCEVENT(" + root('A') + ",'n',$,$,'e',$,$,$,$,$);", "IFC2X3",
         "IFCTASK(" + root('A') + ",'n',$,'IFCEVENT','e',$,$,.T.,$)", "event-to-milestone"},
        {"IFC4", product("IFCSURFACEFEATURE", "'t',$"), "IFC2X3",
         becomes("IFCBUILDINGELEMENTPROXY", "IFCSURFACEFEATURE", "'t',$"), "feature-to-proxy"},
        {"IFC4", "#1=IFCMETRIC('n',$,.NOTDEFINED.,$,$,$,$,.EQUALTO.,$,$,$);", "IFC2X3",
         "IFCMETRIC('n',$,.NOTDEFINED.,$,$,$,$,.EQUALTO.,$,IFCTEXT(''))", "metric-value"},
        {"IFC4X3_ADD2", "#1=IFCQUANTITYNUMBER('n',$,$,2.5,$);", "IFC4", "IFCQUANTITYCOUNT('n',$,$,2.5,$)",
         "number-quantity"},
    });
}

TEST(Backward, SaysForWhatATypeIs) {
    const auto type = [](const std::string& entity, const std::string& rest) {
        return "#1=" + entity + "(" + root('A') + ",'n',$," + rest + ");";
    };
    expectAll({
        {"IFC4", type("IFCFOOTINGTYPE", "$,$,$,'t',$,.PAD_FOOTING."), "IFC2X3",
         "IFCTYPEPRODUCT(" + root('A') + ",'n',$,'IFCFOOTING',$,$,'t')", "type-of-occurrence"},
        {"IFC4", type("IFCTASKTYPE", "$,$,$,$,$,.NOTDEFINED.,$"), "IFC2X3",
         "IFCTYPEOBJECT(" + root('A') + ",'n',$,'IFCTASK',$)", "type-of-occurrence"},
        {"IFC4", type("IFCCHIMNEYTYPE", "$,$,$,'t',$,.NOTDEFINED."), "IFC2X3",
         "IFCBUILDINGELEMENTPROXYTYPE(" + root('A') + ",'n',$,$,$,$,'t','IFCCHIMNEYTYPE',.NOTDEFINED.)",
         "type-to-proxy-type"},
        {"IFC4X3_ADD2", type("IFCSIGNTYPE", "$,$,$,'t',$,.NOTDEFINED."), "IFC4",
         "IFCDISCRETEACCESSORYTYPE(" + root('A') + ",'n',$,$,$,$,'t','IFCSIGNTYPE',.NOTDEFINED.)",
         "component-to-accessory"},
        {"IFC4X3_ADD2", type("IFCRAILTYPE", "$,$,$,'t',$,.NOTDEFINED."), "IFC4",
         "IFCCIVILELEMENTTYPE(" + root('A') + ",'n',$,$,$,$,'t','IFCRAILTYPE')", "civil-element"},
        {"IFC4", type("IFCDOORTYPE", "$,$,$,$,$,.DOOR.,.SINGLE_SWING_LEFT.,$,$"), "IFC2X3",
         "IFCDOORSTYLE(" + root('A') + ",'n',$,$,$,$,$,.SINGLE_SWING_LEFT.,.NOTDEFINED.,.F.,.F.)", "type-to-style"},
    });
}

TEST(Backward, TakesSizesOfReinforcementFromItsType) {
    const std::string bar = "#1=IFCREINFORCINGBAR(" + root('A') + ",'n',$,$,$,$,$,$,$,$,$,.MAIN.,$);";
    const std::string type = "#2=IFCREINFORCINGBARTYPE(" + root('B') +
                             ",'t',$,$,$,$,$,$,.MAIN.,0.012,0.000113,$,$,$,$);#3=IFCRELDEFINESBYTYPE(" + root('C') +
                             ",$,$,(#1),#2);";
    const auto result = toRelease("IFC4", owner + bar + type, "IFC2X3");
    EXPECT_EQ(result.record(1), "IFCREINFORCINGBAR(" + root('A') + ",'n',$,$,$,$,$,$,0.012,0.000113,$,.MAIN.,$)");
    EXPECT_THAT(result.problems(), IsEmpty());
    // A bar of which nobody says the size is still something that stands there.
    EXPECT_THAT(toRelease("IFC4", owner + bar, "IFC2X3").record(1), HasSubstr("IFCBUILDINGELEMENTPROXY("));
}

TEST(Backward, GivesAlignmentsTheAxisOfTheirShape) {
    const std::string text =
        "#1=IFCALIGNMENT(" + root('A') +
        ",'n',$,$,#8,#7,$);#2=IFCCARTESIANPOINT((0.,0.));#3=IFCCARTESIANPOINT((9.,0.));#4=IFCPOLYLINE((#2,#3));"
        "#5=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',2,$,#9,$);#6=IFCSHAPEREPRESENTATION(#5,'Axis','Curve2D',(#4));"
        "#7=IFCPRODUCTDEFINITIONSHAPE($,$,(#6));#8=IFCLOCALPLACEMENT($,#9);#9=IFCAXIS2PLACEMENT2D(#2,$);";
    const auto result = toRelease("IFC4X3_ADD2", owner + text, "IFC4X2");
    EXPECT_EQ(result.record(1), "IFCALIGNMENT(" + root('A') + ",'n',$,$,#8,#7,#4,$)");
    EXPECT_THAT(result.problems(), IsEmpty());
}

TEST(Backward, RelatesResourcesAsTheReleaseDoes) {
    const std::string material = "#4=IFCMATERIAL('m',$,$);#5=IFCMATERIAL('o',$,$);";
    const std::string classification = "#6=IFCCLASSIFICATION('s','e',$,'c',$,$,$);#7=IFCCLASSIFICATIONREFERENCE($,'1',"
                                       "'one',#6,$,$);#8=IFCCLASSIFICATIONREFERENCE($,'1.1','two',#7,$,$);";
    const std::string property = "#4=IFCPROPERTYSINGLEVALUE('p',$,IFCLABEL('x'),$);#5=IFCMATERIAL('o',$,$);";
    const std::string approval = "#6=IFCAPPROVAL('i','a',$,'2024-05-31T07:30:00',$,$,$,$,$);"
                                 "#7=IFCAPPROVAL('j','b',$,'2024-05-31T07:30:00',$,$,$,$,$);";
    expectAll({
        {"IFC4", "#1=IFCEXTERNALREFERENCERELATIONSHIP($,$,#8,(#4,#5));" + material + classification, "IFC2X3",
         "IFCMATERIALCLASSIFICATIONRELATIONSHIP((#8),#4)", "material-classification"},
        {"IFC4", "#1=IFCEXTERNALREFERENCERELATIONSHIP($,$,#8,(#4));" + property + classification, "IFC2X3", "",
         "external-references"},
        {"IFC4", "#1=IFCRESOURCEAPPROVALRELATIONSHIP('n',$,(#4,#5),#6);" + property + approval, "IFC2X3",
         "IFCAPPROVALPROPERTYRELATIONSHIP((#4),#6)", "property-approval"},
        {"IFC4", "#1=IFCRESOURCEAPPROVALRELATIONSHIP('n',$,(#5),#6);" + property + approval, "IFC2X3", "",
         "resource-relationship"},
        {"IFC4", "#1=IFCAPPROVALRELATIONSHIP($,$,#6,(#6,#7));" + approval, "IFC2X3",
         "IFCAPPROVALRELATIONSHIP(#6,#6,$,'')", "approvals-one-by-one"},
        {"IFC4",
         "#1=IFCRELSPACEBOUNDARY2NDLEVEL(" + root('A') + ",$,$,#2,#3,$,.PHYSICAL.,.INTERNAL.,$,$);#2=IFCSPACE(" +
             root('B') + ",$,$,$,$,$,$,$,$,$);#3=IFCWALL(" + root('C') + ",$,$,$,$,$,$,$);",
         "IFC2X3", "IFCRELSPACEBOUNDARY(" + root('A') + ",'2ndLevel',$,#2,#3,$,.PHYSICAL.,.INTERNAL.)",
         "boundary-level"},
        {"IFC4",
         "#1=IFCRELASSIGNSTOGROUPBYFACTOR(" + root('A') + ",$,$,(#3),$,#2,0.5);#2=IFCGROUP(" + root('B') +
             ",$,$,$);#3=IFCWALL(" + root('C') + ",$,$,$,$,$,$,$);",
         "IFC2X3", "IFCRELASSIGNSTOGROUP(" + root('A') + ",$,$,(#3),$,#2)", "assignment-factor"},
        {"IFC4X2",
         "#1=IFCLINEARPLACEMENT($,#4,#5,$,$);#2=IFCCARTESIANPOINT((0.,0.));#3=IFCCARTESIANPOINT((9.,0.));"
         "#4=IFCPOLYLINE((#2,#3));#5=IFCDISTANCEEXPRESSION(1.,$,$,$,$);",
         "IFC4X1", "IFCLINEARPLACEMENT(#4,#5,$,$)", "linear-placement-curve"},
        {"IFC4",
         "#1=IFCRELASSOCIATESAPPROVAL(" + root('A') + ",$,$,(#2),#3);#2=IFCWALL(" + root('B') +
             ",$,$,$,$,$,$,$);#3=IFCAPPROVAL($,$,$,$,$,$,$,$,$);",
         "IFC2X3", "IFCRELASSOCIATESAPPROVAL(" + root('A') + ",$,$,(#2),#3)", "approval-time"},
        {"IFC4X3_ADD2",
         "#1=IFCRELADHERESTOELEMENT(" + root('A') + ",$,$,#2,(#3));#2=IFCWALL(" + root('B') +
             ",$,$,$,$,$,$,$);#3=IFCSURFACEFEATURE(" + root('C') + ",$,$,$,$,$,$,$);",
         "IFC4", "IFCRELAGGREGATES(" + root('A') + ",$,$,#2,(#3))", "features-to-parts"},
        {"IFC4",
         "#1=IFCRELDECLARES(" + root('A') + ",$,$,#2,(#3));#2=IFCPROJECT(" + root('B') +
             ",'p',$,$,$,$,$,$);#3=IFCACTOR(" + root('C') + ",$,$,$,#91);",
         "IFC2X3", "", "declared-by-project"},
        {"IFC4",
         "#1=IFCRELCOVERSSPACES(" + root('A') + ",$,$,#2,(#3));#2=IFCSPACE(" + root('B') +
             ",$,$,$,$,$,$,$,$,$);#3=IFCCOVERING(" + root('C') + ",$,$,$,$,$,$,$);",
         "IFC2X3", "IFCRELCOVERSSPACES(" + root('A') + ",$,$,#2,(#3))", "attribute-renamed"},
    });
}

TEST(Backward, ClassifiesByReferencesOfOneLevel) {
    const std::string text =
        "#1=IFCRELASSOCIATESCLASSIFICATION(" + root('A') + ",$,$,(#2),#6);#2=IFCWALL(" + root('B') +
        ",$,$,$,$,$,$,$);#6=IFCCLASSIFICATION('s','e',$,'c',$,$,$);#7=IFCCLASSIFICATIONREFERENCE($,'1','one',#6,$,$);"
        "#8=IFCCLASSIFICATIONREFERENCE($,'1.1','two',#7,$,$);#9=IFCCLASSIFICATIONREFERENCE($,'x','y',#9,$,$);";
    const auto result = toRelease("IFC4", owner + text, "IFC2X3");
    EXPECT_THAT(result.problems(), IsEmpty());
    EXPECT_EQ(result.record(8), "IFCCLASSIFICATIONREFERENCE($,'1.1','two',#6)");
    EXPECT_EQ(result.record(9), "IFCCLASSIFICATIONREFERENCE($,'x','y',$)");
    EXPECT_THAT(result.records("IFCCLASSIFICATIONREFERENCE"),
                testing::Contains("IFCCLASSIFICATIONREFERENCE($,$,'c',#6)"));
    EXPECT_EQ(result.count("classification-levels"), 1u);
}

TEST(Backward, ListsReferencesByTheDocument) {
    const std::string text =
        "#1=IFCDOCUMENTINFORMATION('i','n',$,'http://x',$,$,$,$,$,$,$,$,'application/pdf',$,$,$,$);"
        "#2=IFCDOCUMENTREFERENCE('l',$,'r',$,#1);";
    const auto result = toRelease("IFC4", owner + text, "IFC2X3");
    EXPECT_THAT(result.problems(), IsEmpty());
    EXPECT_EQ(result.record(2), "IFCDOCUMENTREFERENCE('l',$,'r')");
    EXPECT_THAT(result.records("IFCDOCUMENTREFERENCE"), testing::Contains("IFCDOCUMENTREFERENCE('http://x',$,$)"));
    EXPECT_THAT(result.record(1), HasSubstr("(#2,#"));
    EXPECT_THAT(result.records("IFCDOCUMENTELECTRONICFORMAT"),
                ElementsAre("IFCDOCUMENTELECTRONICFORMAT($,'application','pdf')"));
    EXPECT_TRUE(result.report.isLossless());
}

TEST(Backward, CalculatesCostsByRelationships) {
    const std::string text = "#1=IFCCOSTITEM(" + root('A') +
                             ",'n',$,$,$,$,(#2),(#5));#2=IFCCOSTVALUE('total',$,$,$,$,$,'c',$,.ADD.,(#3,#4));"
                             "#3=IFCCOSTVALUE($,$,IFCMONETARYMEASURE(2.),$,$,$,$,$,$,$);"
                             "#4=IFCAPPLIEDVALUE($,$,IFCMONETARYMEASURE(3.),$,$,$,$,$,$,$);"
                             "#5=IFCQUANTITYCOUNT('q',$,$,4.,$);";
    const auto result = toRelease("IFC4", owner + text, "IFC2X3");
    EXPECT_THAT(result.problems(), IsEmpty());
    EXPECT_EQ(result.record(2), "IFCCOSTVALUE('total',$,$,$,$,$,'c',$)");
    EXPECT_EQ(result.record(4), "IFCCOSTVALUE($,$,IFCMONETARYMEASURE(3.),$,$,$,'',$)");
    EXPECT_THAT(result.records("IFCAPPLIEDVALUERELATIONSHIP"),
                ElementsAre("IFCAPPLIEDVALUERELATIONSHIP(#2,(#3,#4),.ADD.,$,$)"));
    EXPECT_THAT(result.records("IFCRELASSOCIATESAPPLIEDVALUE"), ElementsAre(HasSubstr("(#1),#2)")));
    EXPECT_THAT(result.records("IFCELEMENTQUANTITY"), ElementsAre(HasSubstr("(#5)")));
    EXPECT_TRUE(result.report.isLossless());
}

TEST(Backward, SaysMapCoordinatesWithSetsOfTheSite) {
    const std::string text =
        "#1=IFCMAPCONVERSION(#5,#2,1000.,2000.,30.,1.,0.,1.);#2=IFCPROJECTEDCRS('EPSG:25832',$,'ETRS89',$,'UTM','32',#"
        "3);"
        "#3=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);#4=IFCSITE(" +
        root('A') +
        ",$,$,$,$,$,$,$,$,$,$,$,$);#5=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,$,#6,$);"
        "#6=IFCAXIS2PLACEMENT3D(#7,$,$);#7=IFCCARTESIANPOINT((0.,0.,0.));#8=IFCMAPCONVERSION(#5,#2,1.,2.,3.,$,$,$);";
    const auto result = toRelease("IFC4", owner + text, "IFC2X3");
    EXPECT_THAT(result.problems(), IsEmpty());
    EXPECT_EQ(result.record(1), "");
    EXPECT_THAT(result.records("IFCPROPERTYSINGLEVALUE"),
                testing::IsSupersetOf({"IFCPROPERTYSINGLEVALUE('Eastings',$,IFCLENGTHMEASURE(1000.),#3)",
                                       "IFCPROPERTYSINGLEVALUE('XAxisOrdinate',$,IFCREAL(0.),$)",
                                       "IFCPROPERTYSINGLEVALUE('Name',$,IFCLABEL('EPSG:25832'),$)",
                                       "IFCPROPERTYSINGLEVALUE('MapUnit',$,IFCLABEL('METRE'),$)"}));
    EXPECT_THAT(result.records("IFCPROPERTYSET"),
                ElementsAre(HasSubstr("'ePSet_MapConversion'"), HasSubstr("'ePSet_ProjectedCRS'")));
    EXPECT_THAT(result.records("IFCRELDEFINESBYPROPERTIES"), ElementsAre(HasSubstr("(#4)"), HasSubstr("(#4)")));
    // A site says one conversion.
    EXPECT_EQ(result.report.lost, 1u);

    const std::string context = text.substr(text.find("#2="));
    const std::string plain = context.substr(0, context.find("#8="));
    expectAll({{"IFC4X3_ADD2", "#1=IFCRIGIDOPERATION(#5,#2,IFCLENGTHMEASURE(5.),IFCLENGTHMEASURE(6.),$);" + plain,
                "IFC4", "IFCMAPCONVERSION(#5,#2,5.,6.,0.,$,$,$)", "rigid-operation"},
               {"IFC4X3_ADD2", "#1=IFCMAPCONVERSIONSCALED(#5,#2,5.,6.,7.,$,$,2.,3.,3.,3.);" + plain, "IFC4",
                "IFCMAPCONVERSION(#5,#2,5.,6.,7.,$,$,6.)", "scaled-conversion"},
               {"IFC4X3_ADD2", "#1=IFCMAPCONVERSIONSCALED(#5,#2,5.,6.,7.,$,$,2.,3.,3.,4.);" + plain, "IFC4", "",
                "coordinate-operation"}});
}

TEST(Backward, MeasuresTimesInTheUnitOfTheProject) {
    const std::string text = "#1=IFCRELSEQUENCE(" + root('A') + ",$,$,#2,#3,#4,.FINISH_START.,$);#2=IFCTASK(" +
                             root('B') + ",'a',$,$,'i',$,$,$,.F.,$,$,$);#3=IFCTASK(" + root('C') +
                             ",'b',$,$,'j',$,$,$,.F.,$,$,$);#4=IFCLAGTIME($,$,$,IFCDURATION('P1DT12H'),.WORKTIME.);"
                             "#5=IFCRELSEQUENCE(" +
                             root('D') +
                             ",$,$,#2,#3,#6,.FINISH_START.,$);"
                             "#6=IFCLAGTIME($,$,$,IFCRATIOMEASURE(0.5),.WORKTIME.);";
    const auto seconds = toRelease("IFC4", owner + text, "IFC2X3");
    EXPECT_THAT(seconds.problems(), IsEmpty());
    EXPECT_EQ(seconds.record(1), "IFCRELSEQUENCE(" + root('A') + ",$,$,#2,#3,129600.,.FINISH_START.)");
    EXPECT_EQ(seconds.record(5), "IFCRELSEQUENCE(" + root('D') + ",$,$,#2,#3,0.,.FINISH_START.)");
    const std::string hours =
        "#10=IFCPROJECT(" + root('E') +
        ",'p',$,$,$,$,(#16),#11);#11=IFCUNITASSIGNMENT((#12));#12=IFCCONVERSIONBASEDUNIT(#13,."
        "TIMEUNIT.,'HOUR',#14);#13=IFCDIMENSIONALEXPONENTS(0,0,1,0,0,0,0);"
        "#14=IFCMEASUREWITHUNIT(IFCTIMEMEASURE(3600.),#15);#15=IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.);"
        "#16=IFCGEOMETRICREPRESENTATIONCONTEXT($,'Model',3,$,#17,$);#17=IFCAXIS2PLACEMENT3D(#18,$,"
        "$);#18=IFCCARTESIANPOINT((0.,0.,0.));";
    EXPECT_THAT(toRelease("IFC4", owner + text + hours, "IFC2X3").record(1), HasSubstr(",36.,"));
}

TEST(Backward, TakesEvenLoadsAndPlainUnits) {
    const std::string load = "#2=IFCSTRUCTURALLOADLINEARFORCE($,1.,$,$,$,$,$);";
    const std::string varying =
        "#2=IFCSTRUCTURALLOADCONFIGURATION($,(#3),$);#3=IFCSTRUCTURALLOADLINEARFORCE($,1.,$,$,$,$,$);";
    const auto action = [](const std::string& loads) {
        return "#1=IFCSTRUCTURALCURVEACTION(" + root('A') + named + "#2,.GLOBAL_COORDS.,$,$,.CONST.);" + loads;
    };
    expectAll({
        {"IFC4", action(load), "IFC2X3",
         "IFCSTRUCTURALLINEARACTION(" + root('A') + named + "#2,.GLOBAL_COORDS.,.F.,$,.TRUE_LENGTH.)", "even-action"},
        {"IFC4", action(varying), "IFC2X3", "", "structural-activity"},
        {"IFC4", "#1=IFCSTRUCTURALSURFACEMEMBERVARYING(" + root('A') + named + ".SHELL.,0.2);", "IFC2X3",
         "IFCSTRUCTURALSURFACEMEMBER(" + root('A') + named + ".SHELL.,0.2)", "varying-member"},
        {"IFC4",
         "#1=IFCCONVERSIONBASEDUNITWITHOFFSET(#2,.THERMODYNAMICTEMPERATUREUNIT.,'FAHRENHEIT',#3,459.67);"
         "#2=IFCDIMENSIONALEXPONENTS(0,0,0,0,1,0,0);#3=IFCMEASUREWITHUNIT(IFCREAL(1.8),#4);"
         "#4=IFCSIUNIT(*,.THERMODYNAMICTEMPERATUREUNIT.,$,.KELVIN.);",
         "IFC2X3", "IFCCONVERSIONBASEDUNIT(#2,.THERMODYNAMICTEMPERATUREUNIT.,'FAHRENHEIT',#3)", "unit-offset"},
    });
}

TEST(Backward, SaysWhatItCannotKeep) {
    const std::string walls =
        "#2=IFCWALL(" + root('B') + ",$,$,$,$,$,$,$);#3=IFCWALL(" + root('C') + ",$,$,$,$,$,$,$);";
    const std::string along = "#2=IFCAXIS2PLACEMENTLINEAR(#3,$,$);#3=IFCPOINTBYDISTANCEEXPRESSION(IFCLENGTHMEASURE(1.),"
                              "$,$,$,#4);#4=IFCPOLYLINE((#5,#6));#5=IFCCARTESIANPOINT((0.,0.));"
                              "#6=IFCCARTESIANPOINT((9.,0.));";
    const std::vector<Case> cases = {
        {"IFC4", "#1=IFCWORKCALENDAR(" + root('A') + ",'n',$,$,$,$,$,$);", "IFC2X3", "", "calendars"},
        {"IFC4",
         "#1=IFCPROPERTYSETTEMPLATE(" + root('A') + ",'n',$,$,$,(#2));#2=IFCSIMPLEPROPERTYTEMPLATE(" + root('B') +
             ",'p',$,$,$,$,$,$,$,$,$);",
         "IFC2X3", "", "templates"},
        {"IFC4", "#1=IFCRELINTERFERESELEMENTS(" + root('A') + ",$,$,#2,#3,$,$,.T.);" + walls, "IFC2X3", "",
         "relationship-lost"},
        {"IFC4", "#1=IFCPROJECTLIBRARY(" + root('A') + ",'n',$,$,$,$,$,$);", "IFC2X3", "", "project-library"},
        {"IFC4", "#1=IFCTABLECOLUMN($,'n',$,$,$);", "IFC2X3", "", "table-columns"},
        {"IFC4X3_ADD2", "#1=IFCALIGNMENTVERTICALSEGMENT($,$,0.,1.,0.,0.,0.,$,.CONSTANTGRADIENT.);", "IFC4", "",
         "alignment-parameters"},
        {"IFC4X3_ADD2", "#1=IFCGEOGRAPHICCRS('n',$,$,$,$,$);", "IFC4", "", "coordinate-system"},
        {"IFC4X3_ADD2", "#1=IFCLINEARPLACEMENT($,#2,$);" + along, "IFC4", "", "linear-place"},
        // A profile that is known by its name alone takes along what mirrors it.
        {"IFC4", "#1=IFCMIRROREDPROFILEDEF(.AREA.,$,#2,*,$);#2=IFCPROFILEDEF(.AREA.,'n');", "IFC2X3", "",
         "required-missing"},
    };
    expectAll(cases);
    for (const Case& one : cases) EXPECT_FALSE(toRelease(one.from, owner + one.instances, one.to).report.isLossless());
}

TEST(Backward, CallsEnumeratorsWhatTheReleaseCallsThem) {
    const auto door = [](const std::string& operation) {
        return "IFCDOORTYPE(" + root('A') + ",'n',$,$,$,$,$,$,.DOOR.,." + operation + ".,$,$)";
    };
    expectAll({
        {"IFC4X4", "#1=" + door("DOUBLE_PANEL_SLIDING") + ";", "IFC4", door("DOUBLE_DOOR_SLIDING"), "enumerator-name"},
        {"IFC4", "#1=" + door("REVOLVING") + ";", "IFC4X3_RC3", door("REVOLVING_HORIZONTAL"), "enumerator-name"},
        {"IFC4", "#1=IFCACTORROLE(.COMMISSIONINGENGINEER.,$,$);", "IFC2X3", "IFCACTORROLE(.COMISSIONINGENGINEER.,$,$)",
         "enumerator-spelling"},
        {"IFC4",
         "#1=IFCRELSPACEBOUNDARY(" + root('A') + ",$,$,#2,#3,$,.PHYSICAL.,.EXTERNAL_EARTH.);#2=IFCSPACE(" + root('B') +
             ",$,$,$,$,$,$,$,$,$);#3=IFCWALL(" + root('C') + ",$,$,$,$,$,$,$);",
         "IFC2X3", "IFCRELSPACEBOUNDARY(" + root('A') + ",$,$,#2,#3,$,.PHYSICAL.,.EXTERNAL.)", "outside-kind"},
        {"IFC4",
         "#1=IFCWORKSCHEDULE(" + root('A') +
             ",'n',$,$,'i','2024-05-31T07:30:00',$,$,$,$,"
             "'2024-05-31T07:30:00',$,.PLANNED.);",
         "IFC2X3", "IFCWORKSCHEDULE(" + root('A') + ",'n',$,$,'i',#97,$,$,$,$,#100,$,.PLANNED.,$)", "text-to-date"},
    });
}

} // namespace velkor
