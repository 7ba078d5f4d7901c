#include "JudgedSets.h"
#include "Matchers.h"

namespace velkor {

using test::attached;
using test::NamedModel;

namespace {

class SetsOfObjectsTest : public test::JudgedSets {
protected:
    // Of an object, "by" its type where it has one; a type that names #set has it itself. The object is #object.
    static std::string model(const std::string& release, const std::string& set, const std::string& text) {
        const std::size_t by = std::min(text.find(" by "), text.size());
        std::string instances = "#object=" + text.substr(0, by) + ";#p=IFCPROPERTYSINGLEVALUE('',...);";
        if (by < text.size()) {
            instances += "#type=" + text.substr(by + 4) + ";#typing=IFCRELDEFINESBYTYPE('',$,$,$,(#object),#type);";
        }
        const bool isOfMaterial = text.starts_with("IFCMATERIAL(");
        const std::string name = '\'' + set + '\'';
        if (isOfMaterial && release == "IFC2X3")
            return instances + "#set=IFCEXTENDEDMATERIALPROPERTIES(#object,(#p),$," + name + ");";
        if (isOfMaterial) return instances + "#set=IFCMATERIALPROPERTIES(" + name + ",$,(#p),#object);";
        if (text.find("DEF(") != std::string::npos)
            return instances + "#set=IFCPROFILEPROPERTIES(" + name + ",$,(#p),#object);";
        if (text.find("(#set)") == std::string::npos) instances += "#having=" + attached("#object", "#set");
        return instances + "#set=IFCPROPERTYSET('',$," + name + ",$,(#p));";
    }
    static void expectOfSets(const std::string& table, const SetLibrary& library = shipped()) {
        CheckOptions options;
        options.codes.only = {"set-unknown", "set-not-applicable", "set-template"};
        expectEach(table, [&](const std::string& release, const std::string& set, const std::string& text) {
            const NamedModel named(release, model(release, set, text));
            std::string found = told(named, library, options);
            if (found.ends_with(" #object")) found.resize(found.size() - 8);
            return found;
        });
    }
};

} // namespace

TEST_F(SetsOfObjectsTest, ApplyByClassAndPredefinedTypeOfAnObjectOrItsType) {
    expectOfSets(R"(
IFC2X3 IFC4 IFC4X3_ADD2 Pset_WallCommon
  IFCWALL('',...)
  IFCWALLSTANDARDCASE('',...)
  IFCWALLTYPE('',$,$,$,$,(#set),...,.STANDARD.)
  IFCDOOR('',...) -> set-not-applicable
  IFCSLABTYPE('',$,$,$,$,(#set),...,.FLOOR.) -> set-not-applicable
  IFCBUILDINGELEMENTPROXY('',...) by IFCWALLTYPE('',...,.STANDARD.)
  IFCBUILDINGELEMENTPROXY('',...) by IFCSLABTYPE('',...,.FLOOR.) -> set-not-applicable
  IFCMATERIAL('Oak',...) -> set-not-applicable
  IFCTYPEPRODUCT('',$,$,$,$,(#set),...)
  IFCWALL('',...) by IFCTYPEPRODUCT('',$,$,$,$,(#set),...)
  IFCDOOR('',...) by IFCTYPEPRODUCT('',$,$,$,$,(#set),...) -> set-not-applicable #type
IFC4 IFC4X3_ADD2 Pset_WallCommon
  IFCRECTANGLEPROFILEDEF(.AREA.,$,$,1.,1.) -> set-not-applicable
  IFCWALLTYPE('',...,.SOLIDWALL.)
  IFCPROJECT('',...) -> set-not-applicable
IFC4 Pset_WallCommon
  IFCWALLELEMENTEDCASE('',...)
IFC2X3 Pset_DoorCommon
  IFCDOORSTYLE('',$,$,$,$,(#set),$,$,.NOTDEFINED.,.NOTDEFINED.,.F.,.F.)
IFC2X3 Pset_PumpTypeCommon
  IFCFLOWMOVINGDEVICE('',...)
  IFCFLOWMOVINGDEVICE('',...) by IFCFANTYPE('',...,.TUBEAXIAL.) -> set-not-applicable
  IFCFLOWSEGMENT('',...) -> set-not-applicable
IFC4 IFC4X3_ADD2 Pset_PumpTypeCommon
  IFCPUMP('',...)
  IFCFLOWMOVINGDEVICE('',...) -> set-not-applicable
  IFCBUILDINGELEMENTPROXY('',...) by IFCPUMPTYPE('',...,.CIRCULATOR.)
IFC2X3 Pset_ActuatorTypeElectricActuator
  IFCACTUATORTYPE('',$,$,$,$,(#set),...,.ELECTRICACTUATOR.)
  IFCACTUATORTYPE('',$,$,$,$,(#set),...,.PNEUMATICACTUATOR.) -> set-not-applicable
  IFCDISTRIBUTIONCONTROLELEMENT('',...) by IFCACTUATORTYPE('',...,.ELECTRICACTUATOR.)
  IFCDISTRIBUTIONCONTROLELEMENT('',...) by IFCACTUATORTYPE('',...,.PNEUMATICACTUATOR.) -> set-not-applicable
  IFCDISTRIBUTIONCONTROLELEMENT('',...) by IFCALARMTYPE('',...,.BELL.) -> set-not-applicable
IFC4 IFC4X3_ADD2 Pset_ActuatorTypeElectricActuator
  IFCACTUATOR('',...,.ELECTRICACTUATOR.)
  IFCACTUATOR('',...,.PNEUMATICACTUATOR.) -> set-not-applicable
  IFCACTUATOR('',...) -> set-not-applicable
  IFCACTUATOR('',...,.NOTDEFINED.) -> set-not-applicable
  IFCACTUATOR('',...) by IFCACTUATORTYPE('',...,.ELECTRICACTUATOR.)
  IFCACTUATOR('',...) by IFCACTUATORTYPE('',...,.PNEUMATICACTUATOR.) -> set-not-applicable
  IFCACTUATORTYPE('',$,$,$,$,(#set),...,.ELECTRICACTUATOR.)
  IFCACTUATORTYPE('',$,$,$,$,(#set),...,.PNEUMATICACTUATOR.) -> set-not-applicable
  IFCALARM('',...,.BELL.) -> set-not-applicable
IFC2X3 Pset_DiscreteAccessoryAnchorBolt
  IFCDISCRETEACCESSORY('',$,$,$,'Ribbed bar bolt',...)
  IFCDISCRETEACCESSORY('',$,$,$,'Extension bolt',...)
  IFCDISCRETEACCESSORY('',$,$,$,'Corner fixing plate',...) -> set-not-applicable
  IFCDISCRETEACCESSORY('',...) -> set-not-applicable
  IFCDISCRETEACCESSORY('',...) by IFCDISCRETEACCESSORYTYPE('',...,'Foundation bolt')
IFC4 Pset_DiscreteAccessoryCornerFixingPlate
  IFCDISCRETEACCESSORY('',$,$,$,'Corner fixing plate',...,.USERDEFINED.)
  IFCDISCRETEACCESSORY('',$,$,$,'Corner fixing plate',...)
  IFCDISCRETEACCESSORY('',$,$,$,'Corner fixing plate',...,.SHOE.) -> set-not-applicable
  IFCDISCRETEACCESSORY('',$,$,$,'Edge fixing plate',...,.USERDEFINED.) -> set-not-applicable
  IFCDISCRETEACCESSORY('',...) by IFCDISCRETEACCESSORYTYPE('',...,'Corner fixing plate',.USERDEFINED.)
IFC2X3 Pset_TransportElementElevator
  IFCTRANSPORTELEMENT('',$,$,$,$,$,$,$,.ELEVATOR.,$,$)
  IFCTRANSPORTELEMENT('',$,$,$,$,$,$,$,.ESCALATOR.,$,$) -> set-not-applicable
IFC4 Pset_MaterialConcrete
  IFCMATERIAL('C30/37',$,'concrete')
  IFCMATERIAL('C30/37',$,$)
  IFCMATERIAL('S235',$,'steel') -> set-not-applicable
IFC4X3_ADD2 Pset_MaterialConcrete
  IFCMATERIAL('C30/37',$,$)
  IFCWALL('',...) -> set-not-applicable
IFC4 IFC4X3_ADD2 Pset_ProfileMechanical
  IFCRECTANGLEPROFILEDEF(.AREA.,$,$,1.,1.)
  IFCMATERIAL('Oak',...) -> set-not-applicable
)");
}

TEST_F(SetsOfObjectsTest, AreForTypesOrOccurrencesAsTheirTemplateSays) {
    expectOfSets(R"(
IFC2X3 Pset_FanPHistory
  IFCPERFORMANCEHISTORY('',...,'')
  IFCFLOWMOVINGDEVICE('',...) -> set-not-applicable
IFC4 IFC4X3_ADD2 Pset_AirTerminalOccurrence
  IFCAIRTERMINAL('',...)
  IFCAIRTERMINALTYPE('',$,$,$,$,(#set),...,.GRILLE.) -> set-template
  IFCWALLTYPE('',$,$,$,$,(#set),...,.STANDARD.) -> set-not-applicable
IFC4 IFC4X3_ADD2 Pset_AirTerminalTypeCommon
  IFCAIRTERMINAL('',...)
  IFCAIRTERMINALTYPE('',$,$,$,$,(#set),...,.GRILLE.)
IFC4 IFC4X3_ADD2 Pset_FanPHistory
  IFCPERFORMANCEHISTORY('',...,'',$)
  IFCFAN('',...) -> set-template
  IFCFANTYPE('',$,$,$,$,(#set),...,.TUBEAXIAL.) -> set-template
  IFCTYPEPRODUCT('',$,$,$,$,(#set),...) -> set-template
)");
    define("Acme_Types", "", "IfcWall", "PSET_TYPEDRIVENONLY");
    const SetLibrary mine({{_own.path}, test::shippedDefinitions});
    expectOfSets(R"(
IFC2X3 IFC4 IFC4X3_ADD2 Acme_Types
  IFCWALLTYPE('',$,$,$,$,(#set),...,.STANDARD.)
  IFCWALL('',...) -> warning set-template
  IFCDOOR('',...) -> warning set-not-applicable
)",
                 mine);
}

TEST_F(SetsOfObjectsTest, ComeOverRelationshipsAndTypesAndOnceToAnObject) {
    const std::string names[] = {"Pset_WallCommon", "Acme"};
    for (const std::string& name : names) {
        const std::string sets = "#s=IFCPROPERTYSET('',$,'" + name + "',$,(#p));#t=IFCPROPERTYSET('',$,'" + name +
                                 "',$,(#p));#p=IFCPROPERTYSINGLEVALUE('Reference',...);#w=IFCWALL('',$,'W',...);"
                                 "#v=IFCWALL('',$,'V',...);";
        const std::string typing = "#typing=IFCRELDEFINESBYTYPE('',$,$,$,(#w,#v),#type);";
        expectEach("IFC2X3 IFC4 IFC4X3_ADD2\n"
                   "  #r=" +
                       attached("#w", "#s") + "#q=" + attached("#w", "#t") +
                       " -> set-repeated #w\n"
                       "  #r=" +
                       attached("#w,#v", "#s") + "#q=" + attached("#w,#v", "#t") +
                       " -> set-repeated #w\n"
                       "  #r=" +
                       attached("#w", "#s") + "#q=" + attached("#w", "#s") +
                       "\n"
                       "  #r=" +
                       attached("#w", "#s") + "#q=" + attached("#v", "#t") +
                       "\n"
                       "  #r=" +
                       attached("#w", "#s") + "#type=IFCWALLTYPE('',$,$,$,$,(#t),...,.STANDARD.);" + typing +
                       "\n"
                       "  #type=IFCWALLTYPE('',$,$,$,$,(#s,#t),...,.STANDARD.);" +
                       typing +
                       " -> set-repeated #type\n"
                       "IFC4 IFC4X3_ADD2\n"
                       "  #r=" +
                       attached("#w", "IFCPROPERTYSETDEFINITIONSET((#s,#t))") +
                       " -> set-repeated #w\n"
                       "  #r=" +
                       attached("#w", "IFCPROPERTYSETDEFINITIONSET((#s))") + "\n",
                   [&](const std::string& release, const std::string&, const std::string& text) {
                       const NamedModel named(release, sets + text);
                       return told(named, shipped());
                   });
    }
}

TEST_F(SetsOfObjectsTest, AreLookedAtForEachOfTheirObjects) {
    const std::string sets =
        "#s=IFCPROPERTYSET('',$,'Pset_WallCommon',$,(#p));#t=IFCPROPERTYSET('',$,'Pset_DoorCommon',"
        "$,(#p));#p=IFCPROPERTYSINGLEVALUE('Reference',...);#w=IFCWALL('',...);#d=IFCDOOR('',...);"
        "#e=IFCDOOR('',...);";
    expectEach("IFC4 IFC4X3_ADD2\n"
               "  #r=" +
                   attached("#w,#d", "IFCPROPERTYSETDEFINITIONSET((#s,#t))") +
                   " -> set-not-applicable #d, set-not-applicable #w\n"
                   "IFC2X3 IFC4 IFC4X3_ADD2\n"
                   "  #r=" +
                   attached("#e", "#s") + "#q=" + attached("#w,#d", "#s") + " -> set-not-applicable #e\n",
               [&](const std::string& release, const std::string&, const std::string& text) {
                   const NamedModel named(release, sets + text);
                   return told(named, shipped());
               });
}

TEST_F(SetsOfObjectsTest, HaveEachPropertyOnce) {
    expectEach(R"(
IFC2X3 IFC4 IFC4X3_ADD2 IFCPROPERTYSET('',$,'Pset_WallCommon',$,
  IFCPROPERTYSINGLEVALUE('Reference',...) IFCPROPERTYSINGLEVALUE('FireRating',...)
  IFCPROPERTYSINGLEVALUE('IsExternal',...) IFCPROPERTYSINGLEVALUE('IsExternal',...) -> property-repeated IsExternal
IFC2X3 IFC4 IFC4X3_ADD2 IFCPROPERTYSET('',$,'Acme',$,
  IFCPROPERTYSINGLEVALUE('A',...) IFCPROPERTYSINGLEVALUE('B',...)
  IFCPROPERTYSINGLEVALUE('A',...) IFCPROPERTYLISTVALUE('A',...) -> property-repeated A
  IFCPROPERTYSINGLEVALUE('A',...) IFCPROPERTYSINGLEVALUE('\X2\0041\X0\',...) -> property-repeated A
  IFCPROPERTYSINGLEVALUE('A',...) IFCCOMPLEXPROPERTY('C',$,'',(#p,#p))
  IFCPROPERTYSINGLEVALUE('A',...) IFCCOMPLEXPROPERTY('C',$,'',(#p,#t)) -> property-repeated C.A
IFC2X3 IFC4 IFC4X3_ADD2 IFCELEMENTQUANTITY('',$,'Acme',$,$,
  IFCQUANTITYLENGTH('A',$,$,1.,...) IFCQUANTITYLENGTH('B',$,$,1.,...)
  IFCQUANTITYLENGTH('A',$,$,1.,...) IFCQUANTITYAREA('A',$,$,1.,...) -> property-repeated A
)",
               [](const std::string& release, const std::string& set, const std::string& text) {
                   const std::size_t blank = text.find(' ');
                   const NamedModel named(release, "#w=IFCWALL('',...);#s=" + set +
                                                       "(#p,#q,#p));#r=" + attached("#w", "#s") +
                                                       "#p=" + text.substr(0, blank) + ";#q=" + text.substr(blank + 1) +
                                                       ";#t=IFCPROPERTYLISTVALUE('A',...);");
                   return told(named, shipped());
               });
}

} // namespace velkor
