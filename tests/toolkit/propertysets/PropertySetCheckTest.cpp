#include "velkor/propertysets/PropertySetCheck.h"

#include "JudgedSets.h"
#include "Matchers.h"

namespace velkor {

using test::NamedModel;

namespace {

// What properties may refer to.
std::string surroundings(const std::string& release) {
    const bool isOld = release == "IFC2X3";
    return std::string("#metre=IFCSIUNIT(*,.LENGTHUNIT.,$,.METRE.);#second=IFCSIUNIT(*,.TIMEUNIT.,$,.SECOND.);"
                       "#metres=IFCDERIVEDUNITELEMENT(#metre,3);#seconds=IFCDERIVEDUNITELEMENT(#second,-1);"
                       "#flow=IFCDERIVEDUNIT((#metres,#seconds),.VOLUMETRICFLOWRATEUNIT.,...);"
                       "#speed=IFCDERIVEDUNIT((#metres,#seconds),.LINEARVELOCITYUNIT.,...);"
                       "#own=IFCDERIVEDUNIT((#metres,#seconds),.USERDEFINED.,'own',...);"
                       "#none=IFCDIMENSIONALEXPONENTS(0,0,0,0,0,0,0);"
                       "#pace=IFCCONTEXTDEPENDENTUNIT(#none,.LENGTHUNIT.,'pace');#inchvalue=IFCMEASUREWITHUNIT("
                       "IFCLENGTHMEASURE(0.0254),#metre);#one=IFCDIMENSIONALEXPONENTS(1,0,0,0,0,0,0);"
                       "#inch=IFCCONVERSIONBASEDUNIT(#one,.LENGTHUNIT.,'inch',#inchvalue);"
                       "#person=IFCPERSON('Ada',...);#material=IFCMATERIAL('Oak',...);#money=IFCMONETARYUNIT(") +
           (isOld ? ".EUR." : "'EUR'") + ");" +
           (isOld ? "#series=IFCREGULARTIMESERIES('',$,$,$,.CONTINUOUS.,.MEASURED.,$,$,1.,(#v));"
                  : "#series=IFCREGULARTIMESERIES('',$,'2020-01-01T00:00:00','2020-01-02T00:00:00',.CONTINUOUS.,"
                    ".MEASURED.,$,$,1.,(#v));") +
           "#v=IFCTIMESERIESVALUE((IFCREAL(1.)));"
           "#wide=IFCPROPERTYSINGLEVALUE('Width',$,IFCLENGTHMEASURE(1.),#second);"
           "#long=IFCQUANTITYLENGTH('Part',$,#second,1.,...);"
           "#fewer=IFCPROPERTYENUMERATION('',(IFCLABEL('FIXED'),IFCLABEL('OTHER')),$);"
           "#others=IFCPROPERTYENUMERATION('',(IFCLABEL('FIXED'),IFCLABEL('SOME'),IFCLABEL('ANY')),$);";
}

// A set of one object and what makes it the object's.
std::string setOf(const std::string& release, const std::string& keyword, const std::string& set) {
    const std::string name = '\'' + set + '\'';
    if (keyword == "IFCMATERIAL") {
        return "#object=IFCMATERIAL('Concrete'" + std::string(release == "IFC2X3" ? ");" : ",$,'concrete');") +
               (release == "IFC2X3" ? "#set=IFCEXTENDEDMATERIALPROPERTIES(#object,(#p),$," + name + ");"
                                    : "#set=IFCMATERIALPROPERTIES(" + name + ",$,(#p),#object);");
    }
    if (keyword == "IFCRECTANGLEPROFILEDEF") {
        return "#object=IFCRECTANGLEPROFILEDEF(.AREA.,'R',$,1.,1.);#set=IFCPROFILEPROPERTIES(" + name +
               ",$,(#p),#object);";
    }
    const std::string members = set.starts_with("Qto") ? "IFCELEMENTQUANTITY('',$," + name + ",$,$,(#p));"
                                                       : "IFCPROPERTYSET('',$," + name + ",$,(#p));";
    if (keyword.ends_with("TYPE")) return "#object=" + keyword + "('',$,'',$,$,(#set),...);#set=" + members;
    return "#object=" + keyword + "('',$,'',...);#set=" + members + "#rel=" + test::attached("#object", "#set");
}

class PropertySetCheckTest : public test::JudgedSets {
protected:
    // Of a set that applies to the object. The heading ends with the property that @ stands for and whose name is left
    // out of findings; further instances stand behind a semicolon.
    static void expectOfProperties(const std::string& table) {
        expectEach(table, [](const std::string& release, const std::string& heading, std::string text) {
            std::istringstream words(heading);
            std::string keyword, set, property;
            words >> keyword >> set >> property;
            if (const std::size_t at = text.find('@'); at < text.size()) text.replace(at, 1, '\'' + property + "',$");
            const std::string instances = surroundings(release) + setOf(release, keyword, set) + "#p=" + text + ';';
            const std::string found = told(NamedModel(release, instances), shipped(), {}, property);
            const NamedModel loose(release, instances, NamedModel::Layout::Loose);
            EXPECT_EQ(told(loose, shipped(), {}, property), found) << "laid out in another way";
            return found;
        });
    }
};

} // namespace

TEST_F(PropertySetCheckTest, PropertiesAreOfTheirKind) {
    expectOfProperties(R"(
IFC2X3 IFC4 IFC4X3_ADD2 IFCBOILERTYPE Pset_BoilerTypeCommon PressureRating
  IFCPROPERTYSINGLEVALUE(@,IFCPRESSUREMEASURE(1.),$)
  IFCPROPERTYLISTVALUE(@,(IFCPRESSUREMEASURE(1.)),$) -> property-kind
  IFCPROPERTYBOUNDEDVALUE(@,IFCPRESSUREMEASURE(1.),...) -> property-kind
  IFCPROPERTYREFERENCEVALUE(@,$,#material) -> property-kind
  IFCCOMPLEXPROPERTY(@,'',(#q));#q=IFCPROPERTYSINGLEVALUE('a',$,$,$) -> property-kind
IFC2X3 IFC4 IFC4X3_ADD2 IFCBOILERTYPE Pset_BoilerTypeCommon OperatingMode
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('FIXED')),$)
  IFCPROPERTYSINGLEVALUE(@,IFCLABEL('FIXED'),$) -> property-kind
IFC2X3 IFC4 IFC4X3_ADD2 IFCBOILERTYPE Pset_BoilerTypeCommon NominalPartLoadRatio
  IFCPROPERTYBOUNDEDVALUE(@,IFCREAL(1.),IFCREAL(0.),...)
  IFCPROPERTYSINGLEVALUE(@,IFCREAL(1.),$) -> property-kind
IFC2X3 IFC4 IFC4X3_ADD2 IFCBUILDING Pset_BuildingUse TenureModesAvailableNow
  IFCPROPERTYLISTVALUE(@,(IFCLABEL('a'),IFCLABEL('b')),$)
  IFCPROPERTYSINGLEVALUE(@,IFCLABEL('a'),$) -> property-kind
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('a')),$) -> property-kind
IFC2X3 IFC4 IFC4X3_ADD2 IFCAIRTERMINALTYPE Pset_AirTerminalTypeCommon AirFlowrateVersusFlowControlElement
  IFCPROPERTYTABLEVALUE(@,(IFCVOLUMETRICFLOWRATEMEASURE(1.)),(IFCPOSITIVERATIOMEASURE(1.)),...)
  IFCPROPERTYSINGLEVALUE(@,$,$) -> property-kind
IFC2X3 IFC4 IFC4X3_ADD2 IFCACTIONREQUEST Pset_ActionRequest RequestSourceName
  IFCPROPERTYREFERENCEVALUE(@,$,#person)
  IFCPROPERTYSINGLEVALUE(@,IFCLABEL('Ada'),$) -> property-kind
IFC2X3 IFCWALL Pset_Draughting Colour
  IFCCOMPLEXPROPERTY(@,'RGB_Colour',(#q));#q=IFCPROPERTYSINGLEVALUE('Red',$,IFCINTEGER(1),$)
  IFCPROPERTYSINGLEVALUE(@,IFCINTEGER(1),$) -> property-kind
  IFCCOMPLEXPROPERTY(@,'RGB_Colour',(#q));#q=IFCPROPERTYLISTVALUE('Red',$,(IFCINTEGER(1)),$) -> property-kind Colour.Red
IFC4 IFC4X3_ADD2 IFCMATERIAL Pset_MaterialConcrete Workability
  IFCPROPERTYSINGLEVALUE(@,IFCTEXT('a'),$)
  IFCPROPERTYLISTVALUE(@,(IFCTEXT('a')),$) -> property-kind
IFC4 IFC4X3_ADD2 IFCRECTANGLEPROFILEDEF Pset_ProfileMechanical Perimeter
  IFCPROPERTYSINGLEVALUE(@,IFCPOSITIVELENGTHMEASURE(4.),$)
  IFCPROPERTYLISTVALUE(@,(IFCPOSITIVELENGTHMEASURE(4.)),$) -> property-kind
)");
}

TEST_F(PropertySetCheckTest, ValuesAreOfTheirType) {
    expectOfProperties(R"(
IFC2X3 IFC4 IFC4X3_ADD2 IFCWALL Pset_WallCommon Reference
  IFCPROPERTYSINGLEVALUE(@,IFCIDENTIFIER('A'),$)
  IFCPROPERTYSINGLEVALUE(@,$,$)
  IFCPROPERTYSINGLEVALUE(@,IFCLABEL('A'),$) -> value-type
  IFCPROPERTYSINGLEVALUE(@,IFCTEXT('A'),$) -> value-type
  IFCPROPERTYSINGLEVALUE('reference',$,IFCLABEL('A'),$) -> value-type reference
  IFCPROPERTYSINGLEVALUE('Ref\X2\0065\X0\rence',$,IFCLABEL('A'),$) -> value-type
  IFCPROPERTYSINGLEVALUE('Referenze',...) -> property-unknown Referenze ~Reference
  IFCPROPERTYSINGLEVALUE('Weather',...) -> property-unknown Weather
IFC2X3 IFC4 IFC4X3_ADD2 IFCWALL Pset_WallCommon IsExternal
  IFCPROPERTYSINGLEVALUE(@,IFCBOOLEAN(.T.),$)
  IFCPROPERTYSINGLEVALUE(@,IFCLOGICAL(.T.),$) -> value-type
  IFCPROPERTYSINGLEVALUE(@,IFCLABEL('TRUE'),$) -> value-type
IFC2X3 IFC4 IFC4X3_ADD2 IFCWALL Pset_WallCommon ThermalTransmittance
  IFCPROPERTYSINGLEVALUE(@,IFCREAL(1.),$) -> value-type
IFC2X3 IFC4 IFC4X3_ADD2 IFCAIRTERMINALTYPE Pset_AirTerminalTypeCommon ThrowLength
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),$)
  IFCPROPERTYSINGLEVALUE(@,IFCPOSITIVELENGTHMEASURE(1.),$)
  IFCPROPERTYSINGLEVALUE(@,IFCREAL(1.),$) -> value-type
IFC2X3 IFC4 IFC4X3_ADD2 IFCAIRTERMINALTYPE Pset_AirTerminalTypeCommon AirFlowrateVersusFlowControlElement
  IFCPROPERTYTABLEVALUE(@,(IFCREAL(1.)),(IFCPOSITIVERATIOMEASURE(1.)),...) -> value-type
  IFCPROPERTYTABLEVALUE(@,(IFCVOLUMETRICFLOWRATEMEASURE(1.)),(IFCRATIOMEASURE(1.)),...) -> value-type
  IFCPROPERTYTABLEVALUE(@,(IFCPOSITIVERATIOMEASURE(1.)),(IFCVOLUMETRICFLOWRATEMEASURE(1.)),...) -> value-type
IFC4 IFC4X3_ADD2 IFCAIRTERMINALTYPE Pset_AirTerminalTypeCommon SlotWidth
  IFCPROPERTYSINGLEVALUE(@,IFCPOSITIVELENGTHMEASURE(1.),$)
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),$) -> value-type
IFC2X3 IFC4 IFC4X3_ADD2 IFCBOILERTYPE Pset_BoilerTypeCommon WaterInletTemperatureRange
  IFCPROPERTYBOUNDEDVALUE(@,IFCTHERMODYNAMICTEMPERATUREMEASURE(300.),$,...)
  IFCPROPERTYBOUNDEDVALUE(@,IFCREAL(300.),$,...) -> value-type
  IFCPROPERTYBOUNDEDVALUE(@,$,IFCREAL(300.),...) -> value-type
IFC2X3 IFC4 IFC4X3_ADD2 IFCBOILERTYPE Pset_BoilerTypeCommon OperatingMode
  IFCPROPERTYENUMERATEDVALUE(@,(IFCTEXT('FIXED')),$) -> value-type
IFC4 IFC4X3_ADD2 IFCBOILERTYPE Pset_BoilerTypeCommon NominalPartLoadRatio
  IFCPROPERTYBOUNDEDVALUE(@,$,$,$,IFCREAL(1.))
  IFCPROPERTYBOUNDEDVALUE(@,$,$,$,IFCINTEGER(1)) -> value-type
IFC2X3 IFC4 IFC4X3_ADD2 IFCBUILDING Pset_BuildingUse TenureModesAvailableNow
  IFCPROPERTYLISTVALUE(@,(IFCLABEL('a'),IFCTEXT('b'),IFCTEXT('c')),$) -> value-type
IFC2X3 IFCBOILERTYPE Pset_BoilerTypeCommon Material
  IFCPROPERTYREFERENCEVALUE(@,$,#material)
  IFCPROPERTYREFERENCEVALUE(@,$,#person) -> value-type
IFC2X3 IFC4 IFC4X3_ADD2 IFCACTIONREQUEST Pset_ActionRequest RequestSourceName
  IFCPROPERTYREFERENCEVALUE(@,$,#material) -> value-type
IFC4 IFC4X3_ADD2 IFCPERFORMANCEHISTORY Pset_FanPHistory FanEfficiency
  IFCPROPERTYREFERENCEVALUE(@,$,#series)
  IFCPROPERTYREFERENCEVALUE(@,$,#material) -> value-type
IFC4 IFCREINFORCINGBAR Pset_ReinforcingBarCommon BendingParameters
  IFCPROPERTYLISTVALUE(@,(IFCLENGTHMEASURE(1.),IFCLABEL('a'),IFCPLANEANGLEMEASURE(1.)),$)
IFC2X3 IFCWALL Pset_Draughting Colour
  IFCCOMPLEXPROPERTY(@,'RGB_Colour',(#q));#q=IFCPROPERTYSINGLEVALUE('Blue',$,IFCREAL(1.),$) -> value-type Colour.Blue
  IFCCOMPLEXPROPERTY('Colour',$,'RGB_Colour',(#q));#q=IFCPROPERTYSINGLEVALUE('Hue',...) -> property-unknown Colour.Hue
IFC4 IFC4X3_ADD2 IFCMATERIAL Pset_MaterialConcrete Workability
  IFCPROPERTYSINGLEVALUE(@,IFCLABEL('a'),$) -> value-type
)");
}

TEST_F(PropertySetCheckTest, EnumeratedValuesAreOfTheDefinitionsList) {
    expectOfProperties(R"(
IFC2X3 IFC4 IFC4X3_ADD2 IFCBOILERTYPE Pset_BoilerTypeCommon OperatingMode
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('TWOSTEP'),IFCLABEL('MODULATING')),$)
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('TWO\X\53TEP')),$)
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('FIX''ED')),$) -> value-enumerator ~FIXED
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('MODULATNG')),$) -> value-enumerator ~MODULATING
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('Modulating')),$) -> value-enumerator ~MODULATING
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('FIXED'),IFCLABEL('x'),IFCLABEL('y')),$) -> value-enumerator
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('FIXED')),#fewer)
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('FIXED')),#others) -> value-enumerator
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('SOME')),#others) -> value-enumerator
IFC2X3 IFCACTIONREQUEST Pset_ActionRequest RequestSourceType
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('Email')),$)
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('EMAIL')),$) -> value-enumerator ~Email
IFC4 IFC4X3_ADD2 IFCWALL Pset_WallCommon Status
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('NEW')),$)
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('NEVER')),$) -> value-enumerator
IFC4 IFCREINFORCINGBAR Pset_ReinforcingBarCommon BarSurface
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('PLAIN')),$)
  IFCPROPERTYENUMERATEDVALUE(@,(IFCLABEL('PLIAN')),$) -> value-enumerator ~PLAIN
)");
}

TEST_F(PropertySetCheckTest, QuantitiesAreOfTheirKind) {
    expectOfProperties(R"(
IFC4 IFC4X3_ADD2 IFCWALL Qto_WallBaseQuantities Length
  IFCQUANTITYLENGTH(@,$,1.,$)
  IFCQUANTITYAREA(@,$,1.,$) -> quantity-kind
IFC4 IFC4X3_ADD2 IFCWALL Qto_WallBaseQuantities NetSideArea
  IFCQUANTITYAREA(@,$,1.,$)
  IFCQUANTITYLENGTH(@,$,1.,$) -> quantity-kind
IFC4 IFC4X3_ADD2 IFCWALL Qto_WallBaseQuantities NetVolume
  IFCQUANTITYVOLUME(@,$,1.,$)
  IFCQUANTITYWEIGHT(@,$,1.,$) -> quantity-kind
IFC4 IFC4X3_ADD2 IFCWALL Qto_WallBaseQuantities NetWeight
  IFCQUANTITYWEIGHT(@,$,1.,$)
  IFCQUANTITYCOUNT(@,$,1,$) -> quantity-kind
IFC4 IFC4X3_ADD2 IFCWALL Qto_WallBaseQuantities Length
  IFCPHYSICALCOMPLEXQUANTITY(@,(#q),'',$,$);#q=IFCQUANTITYLENGTH('a',$,$,1.,$) -> quantity-kind
  IFCQUANTITYLENGTH('Hight',$,$,1.,$) -> property-unknown Hight ~Height
IFC4 IFC4X3_ADD2 IFCJUNCTIONBOXTYPE Qto_JunctionBoxBaseQuantities NumberOfGangs
  IFCQUANTITYCOUNT(@,$,1,$)
  IFCQUANTITYLENGTH(@,$,1.,$) -> quantity-kind
IFC4 IFC4X3_ADD2 IFCLABORRESOURCE Qto_LaborResourceBaseQuantities StandardWork
  IFCQUANTITYTIME(@,$,1.,$)
  IFCQUANTITYCOUNT(@,$,1,$) -> quantity-kind
IFC4X3_ADD2 IFCWALL Qto_WallBaseQuantities Length
  IFCQUANTITYNUMBER(@,$,1.,$) -> quantity-kind
)");
}

TEST_F(PropertySetCheckTest, UnitsFitTheirMeasures) {
    expectOfProperties(R"(
IFC2X3 IFC4 IFC4X3_ADD2 IFCAIRTERMINALTYPE Pset_AirTerminalTypeCommon ThrowLength
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),#metre)
  IFCPROPERTYSINGLEVALUE(@,IFCPOSITIVELENGTHMEASURE(1.),#inch)
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),#pace)
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),#own)
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),#second) -> value-unit
  IFCPROPERTYSINGLEVALUE(@,IFCPOSITIVELENGTHMEASURE(1.),#flow) -> value-unit
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),#money) -> value-unit
IFC2X3 IFC4 IFC4X3_ADD2 IFCAIRTERMINALTYPE Pset_AirTerminalTypeCommon AirFlowrateVersusFlowControlElement
  IFCPROPERTYTABLEVALUE(@,(IFCVOLUMETRICFLOWRATEMEASURE(1.)),(IFCPOSITIVERATIOMEASURE(1.)),$,#flow,...)
  IFCPROPERTYTABLEVALUE(@,(IFCVOLUMETRICFLOWRATEMEASURE(1.)),(IFCPOSITIVERATIOMEASURE(1.)),$,#speed,...) -> value-unit
IFC2X3 IFC4 IFCAIRTERMINALTYPE Pset_AirTerminalTypeCommon AirFlowrateRange
  IFCPROPERTYBOUNDEDVALUE(@,IFCVOLUMETRICFLOWRATEMEASURE(1.),$,#flow,...)
  IFCPROPERTYBOUNDEDVALUE(@,$,IFCVOLUMETRICFLOWRATEMEASURE(1.),#speed,...) -> value-unit
IFC2X3 IFC4 IFC4X3_ADD2 IFCBUILDING Pset_BuildingUse RentalRatesInCategoryNow
  IFCPROPERTYBOUNDEDVALUE(@,IFCMONETARYMEASURE(1.),$,#money,...)
  IFCPROPERTYBOUNDEDVALUE(@,IFCMONETARYMEASURE(1.),$,#metre,...) -> value-unit
IFC2X3 IFC4 IFC4X3_ADD2 IFCBUILDING Pset_BuildingUse TenureModesAvailableNow
  IFCPROPERTYLISTVALUE(@,(IFCLABEL('a')),#metre) -> value-unit
IFC2X3 IFC4 IFC4X3_ADD2 IFCBOILERTYPE Pset_BoilerTypeCommon NominalPartLoadRatio
  IFCPROPERTYBOUNDEDVALUE(@,IFCREAL(1.),IFCREAL(0.),#metre,...)
IFC2X3 IFC4 IFC4X3_ADD2 IFCWALL Pset_WallCommon FireRating
  IFCPROPERTYSINGLEVALUE(@,IFCLABEL('A'),#metre) -> value-unit
  IFCPROPERTYSINGLEVALUE(@,IFCLABEL('A'),#own) -> value-unit
  IFCPROPERTYSINGLEVALUE('FireRating','a\S\',b',IFCLABEL('A'),#own) -> value-unit
IFC2X3 IFC4 IFC4X3_ADD2 IFCWALL Pset_WallCommon IsExternal
  IFCPROPERTYSINGLEVALUE(@,IFCBOOLEAN(.T.),#metre) -> value-unit
IFC2X3 IFC4 IFC4X3_ADD2 IFCWALL Pset_WallCommon FireRating
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),#second) -> value-type, value-unit
IFC2X3 IFC4 IFC4X3_ADD2 IFCWALL Acme Width
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),#metre)
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),#second) -> value-unit
  IFCPROPERTYLISTVALUE(@,(IFCLENGTHMEASURE(1.),IFCLENGTHMEASURE(2.)),#second) -> value-unit
IFC2X3 IFC4 IFC4X3_ADD2 IFCWALL Acme Count
  IFCPROPERTYSINGLEVALUE(@,IFCCOUNTMEASURE(1),#second)
IFC2X3 IFC4 IFC4X3_ADD2 IFCWALL Acme Whole
  IFCCOMPLEXPROPERTY(@,'',(#wide)) -> value-unit Whole.Width
IFC2X3 IFC4 IFC4X3_ADD2 IFCMATERIAL Acme Width
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),#metre)
  IFCPROPERTYSINGLEVALUE(@,IFCLENGTHMEASURE(1.),#second) -> value-unit
IFC4 IFC4X3_ADD2 IFCWALL Qto_WallBaseQuantities Length
  IFCQUANTITYLENGTH(@,#metre,1.,$)
  IFCQUANTITYLENGTH(@,#second,1.,$) -> value-unit
  IFCPHYSICALCOMPLEXQUANTITY(@,(#long),'',$,$) -> quantity-kind, value-unit Length.Part
IFC4 IFC4X3_ADD2 IFCWALL Qto_WallBaseQuantities NetSideArea
  IFCQUANTITYAREA(@,#metre,1.,$) -> value-unit
IFC2X3 IFCWALL Qto_OfMine Length
  IFCQUANTITYLENGTH(@,#metre,1.) -> warning set-unknown #object
  IFCQUANTITYLENGTH(@,#second,1.) -> warning set-unknown #object, value-unit
)");
}

TEST_F(PropertySetCheckTest, NamesOfSetsAreThoseOfTheRelease) {
    expectEach(R"(
IFC2X3 IFC4 IFC4X3_ADD2
  Pset_WallCommon
  Pset_OfThisTest
  Acme
  Pre_WallCommon
  Qtotal
  Pset_WallComon -> set-unknown #w ~Pset_WallCommon
  Pset_Acme -> set-unknown #w
  PSET_WallCommon -> set-unknown #w ~Pset_WallCommon
  pset_wallcommon -> set-unknown #w ~Pset_WallCommon
  Pset-WallCommon -> set-unknown #w ~Pset_WallCommon
  PsetWallCommon -> set-unknown #w ~Pset_WallCommon
  Pset_Wall Common -> set-unknown #w ~Pset_WallCommon
  Pset\X\5FWallCommon
  PSetAcme -> set-unknown #w
IFC2X3
  Qto_WallBaseQuantities -> warning set-unknown #w
  Qto_Acme -> warning set-unknown #w
IFC4 IFC4X3_ADD2
  Qto_WallBaseQuantities
  Qto_WallBaseQuantites -> set-unknown #w ~Qto_WallBaseQuantities
  qto_WallBaseQuantities -> warning set-unknown #w ~Qto_WallBaseQuantities
  QTO-WallBaseQuantities -> warning set-unknown #w ~Qto_WallBaseQuantities
  QtoWallBaseQuantities -> warning set-unknown #w ~Qto_WallBaseQuantities
  Qto_Acme -> set-unknown #w
)",
               [](const std::string& release, const std::string&, const std::string& name) {
                   const bool isQuantitySet = name.starts_with("Q") || name.starts_with("q");
                   const NamedModel named(
                       release, "#w=IFCWALL('',...);#r=" + test::attached("#w", "#s") +
                                    (isQuantitySet ? "#s=IFCELEMENTQUANTITY('',$,'" + name + "',$,$,(#q));"
                                                   : "#s=IFCPROPERTYSET('',$,'" + name + "',$,(#p));") +
                                    "#p=IFCPROPERTYSINGLEVALUE('Reference',...);#q=IFCQUANTITYLENGTH('Length',$,$,1." +
                                    (release == "IFC2X3" ? ");" : ",$);"));
                   return told(named, shipped());
               });
}

} // namespace velkor
