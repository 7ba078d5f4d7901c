// Made by velkor-dictgen from IFC4X1.exp (SHA-256 7385d9aed581e858fcb2f671d58c9dbb788282caf67f9e5b7e617d35a12cc61e), supplement.exp (SHA-256 7636111a5fb5ad6d4158766d4761df7fe3415575b43a00c3eeed4d538c68b1e6); do not edit.

#include "SchemaTables.h"

namespace velkor::schemas {

namespace {

struct Texts {
    char part0[59936];
    char part1[59979];
    char part2[21532];
};

constexpr Texts texts = {
    "Schema(IFC4X1)\0"
    "DefinedType(IFCSTRIPPEDOPTIONAL,BooleanType)\0"
    "DefinedType(IFCACTIONREQUESTTYPEENUM,#202)\0"
    "DefinedType(IFCACTIONSOURCETYPEENUM,#204)\0"
    "DefinedType(IFCACTIONTYPEENUM,#206)\0"
    "DefinedType(IFCACTUATORTYPEENUM,#208)\0"
    "DefinedType(IFCAIRTERMINALBOXTYPEENUM,#210)\0"
    "DefinedType(IFCAIRTERMINALTYPEENUM,#212)\0"
    "DefinedType(IFCAIRTOAIRHEATRECOVERYTYPEENUM,#214)\0"
    "DefinedType(IFCALARMTYPEENUM,#216)\0"
    "DefinedType(IFCALIGNMENTTYPEENUM,#218)\0"
    "DefinedType(IFCANALYSISMODELTYPEENUM,#220)\0"
    "DefinedType(IFCANALYSISTHEORYTYPEENUM,#222)\0"
    "DefinedType(IFCARITHMETICOPERATORENUM,#224)\0"
    "DefinedType(IFCASSEMBLYPLACEENUM,#226)\0"
    "DefinedType(IFCAUDIOVISUALAPPLIANCETYPEENUM,#228)\0"
    "DefinedType(IFCBSPLINECURVEFORM,#230)\0"
    "DefinedType(IFCBSPLINESURFACEFORM,#232)\0"
    "DefinedType(IFCBEAMTYPEENUM,#234)\0"
    "DefinedType(IFCBENCHMARKENUM,#236)\0"
    "DefinedType(IFCBOILERTYPEENUM,#238)\0"
    "DefinedType(IFCBOOLEANOPERATOR,#240)\0"
    "DefinedType(IFCBUILDINGELEMENTPARTTYPEENUM,#242)\0"
    "DefinedType(IFCBUILDINGELEMENTPROXYTYPEENUM,#244)\0"
    "DefinedType(IFCBUILDINGSYSTEMTYPEENUM,#246)\0"
    "DefinedType(IFCBURNERTYPEENUM,#248)\0"
    "DefinedType(IFCCABLECARRIERFITTINGTYPEENUM,#250)\0"
    "DefinedType(IFCCABLECARRIERSEGMENTTYPEENUM,#252)\0"
    "DefinedType(IFCCABLEFITTINGTYPEENUM,#254)\0"
    "DefinedType(IFCCABLESEGMENTTYPEENUM,#256)\0"
    "DefinedType(IFCCHILLERTYPEENUM,#258)\0"
    "DefinedType(IFCCHIMNEYTYPEENUM,#260)\0"
    "DefinedType(IFCCOILTYPEENUM,#262)\0"
    "DefinedType(IFCCOLUMNTYPEENUM,#264)\0"
    "DefinedType(IFCCOMMUNICATIONSAPPLIANCETYPEENUM,#266)\0"
    "DefinedType(IFCCOMPLEXPROPERTYTEMPLATETYPEENUM,#268)\0"
    "DefinedType(IFCCOMPRESSORTYPEENUM,#270)\0"
    "DefinedType(IFCCONDENSERTYPEENUM,#272)\0"
    "DefinedType(IFCCONNECTIONTYPEENUM,#274)\0"
    "DefinedType(IFCCONSTRAINTENUM,#276)\0"
    "DefinedType(IFCCONSTRUCTIONEQUIPMENTRESOURCETYPEENUM,#278)\0"
    "DefinedType(IFCCONSTRUCTIONMATERIALRESOURCETYPEENUM,#280)\0"
    "DefinedType(IFCCONSTRUCTIONPRODUCTRESOURCETYPEENUM,#282)\0"
    "DefinedType(IFCCONTROLLERTYPEENUM,#284)\0"
    "DefinedType(IFCCOOLEDBEAMTYPEENUM,#286)\0"
    "DefinedType(IFCCOOLINGTOWERTYPEENUM,#288)\0"
    "DefinedType(IFCCOSTITEMTYPEENUM,#290)\0"
    "DefinedType(IFCCOSTSCHEDULETYPEENUM,#292)\0"
    "DefinedType(IFCCOVERINGTYPEENUM,#294)\0"
    "DefinedType(IFCCREWRESOURCETYPEENUM,#296)\0"
    "DefinedType(IFCCURTAINWALLTYPEENUM,#298)\0"
    "DefinedType(IFCCURVEINTERPOLATIONENUM,#300)\0"
    "DefinedType(IFCDAMPERTYPEENUM,#302)\0"
    "DefinedType(IFCDATAORIGINENUM,#304)\0"
    "DefinedType(IFCDERIVEDUNITENUM,#306)\0"
    "DefinedType(IFCDIRECTIONSENSEENUM,#308)\0"
    "DefinedType(IFCDISCRETEACCESSORYTYPEENUM,#310)\0"
    "DefinedType(IFCDISTRIBUTIONCHAMBERELEMENTTYPEENUM,#312)\0"
    "DefinedType(IFCDISTRIBUTIONPORTTYPEENUM,#314)\0"
    "DefinedType(IFCDISTRIBUTIONSYSTEMENUM,#316)\0"
    "DefinedType(IFCDOCUMENTCONFIDENTIALITYENUM,#318)\0"
    "DefinedType(IFCDOCUMENTSTATUSENUM,#320)\0"
    "DefinedType(IFCDOORPANELOPERATIONENUM,#322)\0"
    "DefinedType(IFCDOORPANELPOSITIONENUM,#324)\0"
    "DefinedType(IFCDOORSTYLECONSTRUCTIONENUM,#326)\0"
    "DefinedType(IFCDOORSTYLEOPERATIONENUM,#328)\0"
    "DefinedType(IFCDOORTYPEENUM,#330)\0"
    "DefinedType(IFCDOORTYPEOPERATIONENUM,#332)\0"
    "DefinedType(IFCDUCTFITTINGTYPEENUM,#334)\0"
    "DefinedType(IFCDUCTSEGMENTTYPEENUM,#336)\0"
    "DefinedType(IFCDUCTSILENCERTYPEENUM,#338)\0"
    "DefinedType(IFCELECTRICAPPLIANCETYPEENUM,#340)\0"
    "DefinedType(IFCELECTRICDISTRIBUTIONBOARDTYPEENUM,#342)\0"
    "DefinedType(IFCELECTRICFLOWSTORAGEDEVICETYPEENUM,#344)\0"
    "DefinedType(IFCELECTRICGENERATORTYPEENUM,#346)\0"
    "DefinedType(IFCELECTRICMOTORTYPEENUM,#348)\0"
    "DefinedType(IFCELECTRICTIMECONTROLTYPEENUM,#350)\0"
    "DefinedType(IFCELEMENTASSEMBLYTYPEENUM,#352)\0"
    "DefinedType(IFCELEMENTCOMPOSITIONENUM,#354)\0"
    "DefinedType(IFCENGINETYPEENUM,#356)\0"
    "DefinedType(IFCEVAPORATIVECOOLERTYPEENUM,#358)\0"
    "DefinedType(IFCEVAPORATORTYPEENUM,#360)\0"
    "DefinedType(IFCEVENTTRIGGERTYPEENUM,#362)\0"
    "DefinedType(IFCEVENTTYPEENUM,#364)\0"
    "DefinedType(IFCEXTERNALSPATIALELEMENTTYPEENUM,#366)\0"
    "DefinedType(IFCFANTYPEENUM,#368)\0"
    "DefinedType(IFCFASTENERTYPEENUM,#370)\0"
    "DefinedType(IFCFILTERTYPEENUM,#372)\0"
    "DefinedType(IFCFIRESUPPRESSIONTERMINALTYPEENUM,#374)\0"
    "DefinedType(IFCFLOWDIRECTIONENUM,#376)\0"
    "DefinedType(IFCFLOWINSTRUMENTTYPEENUM,#378)\0"
    "DefinedType(IFCFLOWMETERTYPEENUM,#380)\0"
    "DefinedType(IFCFOOTINGTYPEENUM,#382)\0"
    "DefinedType(IFCFURNITURETYPEENUM,#384)\0"
    "DefinedType(IFCGEOGRAPHICELEMENTTYPEENUM,#386)\0"
    "DefinedType(IFCGEOMETRICPROJECTIONENUM,#388)\0"
    "DefinedType(IFCGLOBALORLOCALENUM,#390)\0"
    "DefinedType(IFCGRIDTYPEENUM,#392)\0"
    "DefinedType(IFCHEATEXCHANGERTYPEENUM,#394)\0"
    "DefinedType(IFCHUMIDIFIERTYPEENUM,#396)\0"
    "DefinedType(IFCINTERCEPTORTYPEENUM,#398)\0"
    "DefinedType(IFCINTERNALOREXTERNALENUM,#400)\0"
    "DefinedType(IFCINVENTORYTYPEENUM,#402)\0"
    "DefinedType(IFCJUNCTIONBOXTYPEENUM,#404)\0"
    "DefinedType(IFCKNOTTYPE,#406)\0"
    "DefinedType(IFCLABORRESOURCETYPEENUM,#408)\0"
    "DefinedType(IFCLAMPTYPEENUM,#410)\0"
    "DefinedType(IFCLAYERSETDIRECTIONENUM,#412)\0"
    "DefinedType(IFCLIGHTDISTRIBUTIONCURVEENUM,#414)\0"
    "DefinedType(IFCLIGHTEMISSIONSOURCEENUM,#416)\0"
    "DefinedType(IFCLIGHTFIXTURETYPEENUM,#418)\0"
    "DefinedType(IFCLOADGROUPTYPEENUM,#420)\0"
    "DefinedType(IFCLOGICALOPERATORENUM,#422)\0"
    "DefinedType(IFCMECHANICALFASTENERTYPEENUM,#424)\0"
    "DefinedType(IFCMEDICALDEVICETYPEENUM,#426)\0"
    "DefinedType(IFCMEMBERTYPEENUM,#428)\0"
    "DefinedType(IFCMOTORCONNECTIONTYPEENUM,#430)\0"
    "DefinedType(IFCNULLSTYLE,#432)\0"
    "DefinedType(IFCOBJECTTYPEENUM,#434)\0"
    "DefinedType(IFCOBJECTIVEENUM,#436)\0"
    "DefinedType(IFCOCCUPANTTYPEENUM,#438)\0"
    "DefinedType(IFCOPENINGELEMENTTYPEENUM,#440)\0"
    "DefinedType(IFCOUTLETTYPEENUM,#442)\0"
    "DefinedType(IFCPERFORMANCEHISTORYTYPEENUM,#444)\0"
    "DefinedType(IFCPERMEABLECOVERINGOPERATIONENUM,#446)\0"
    "DefinedType(IFCPERMITTYPEENUM,#448)\0"
    "DefinedType(IFCPHYSICALORVIRTUALENUM,#450)\0"
    "DefinedType(IFCPILECONSTRUCTIONENUM,#452)\0"
    "DefinedType(IFCPILETYPEENUM,#454)\0"
    "DefinedType(IFCPIPEFITTINGTYPEENUM,#456)\0"
    "DefinedType(IFCPIPESEGMENTTYPEENUM,#458)\0"
    "DefinedType(IFCPLATETYPEENUM,#460)\0"
    "DefinedType(IFCPREFERREDSURFACECURVEREPRESENTATION,#462)\0"
    "DefinedType(IFCPROCEDURETYPEENUM,#464)\0"
    "DefinedType(IFCPROFILETYPEENUM,#466)\0"
    "DefinedType(IFCPROJECTORDERTYPEENUM,#468)\0"
    "DefinedType(IFCPROJECTEDORTRUELENGTHENUM,#470)\0"
    "DefinedType(IFCPROJECTIONELEMENTTYPEENUM,#472)\0"
    "DefinedType(IFCPROPERTYSETTEMPLATETYPEENUM,#474)\0"
    "DefinedType(IFCPROTECTIVEDEVICETRIPPINGUNITTYPEENUM,#476)\0"
    "DefinedType(IFCPROTECTIVEDEVICETYPEENUM,#478)\0"
    "DefinedType(IFCPUMPTYPEENUM,#480)\0"
    "DefinedType(IFCRAILINGTYPEENUM,#482)\0"
    "DefinedType(IFCRAMPFLIGHTTYPEENUM,#484)\0"
    "DefinedType(IFCRAMPTYPEENUM,#486)\0"
    "DefinedType(IFCRECURRENCETYPEENUM,#488)\0"
    "EnumerationType(KILOPOINT,MILEPOINT,STATION,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCREFERENTTYPEENUM,#490)\0"
    "DefinedType(IFCREFLECTANCEMETHODENUM,#492)\0"
    "DefinedType(IFCREINFORCINGBARROLEENUM,#494)\0"
    "DefinedType(IFCREINFORCINGBARSURFACEENUM,#496)\0"
    "DefinedType(IFCREINFORCINGBARTYPEENUM,#498)\0"
    "DefinedType(IFCREINFORCINGMESHTYPEENUM,#500)\0"
    "DefinedType(IFCROOFTYPEENUM,#502)\0"
    "DefinedType(IFCSIPREFIX,#504)\0"
    "DefinedType(IFCSIUNITNAME,#506)\0"
    "DefinedType(IFCSANITARYTERMINALTYPEENUM,#508)\0"
    "DefinedType(IFCSECTIONTYPEENUM,#510)\0"
    "DefinedType(IFCSENSORTYPEENUM,#512)\0"
    "DefinedType(IFCSEQUENCEENUM,#514)\0"
    "DefinedType(IFCSHADINGDEVICETYPEENUM,#516)\0"
    "DefinedType(IFCSIMPLEPROPERTYTEMPLATETYPEENUM,#518)\0"
    "DefinedType(IFCSLABTYPEENUM,#520)\0"
    "DefinedType(IFCSOLARDEVICETYPEENUM,#522)\0"
    "DefinedType(IFCSPACEHEATERTYPEENUM,#524)\0"
    "DefinedType(IFCSPACETYPEENUM,#526)\0"
    "DefinedType(IFCSPATIALZONETYPEENUM,#528)\0"
    "DefinedType(IFCSTACKTERMINALTYPEENUM,#530)\0"
    "DefinedType(IFCSTAIRFLIGHTTYPEENUM,#532)\0"
    "DefinedType(IFCSTAIRTYPEENUM,#534)\0"
    "DefinedType(IFCSTRUCTURALCURVEACTIVITYTYPEENUM,#536)\0"
    "DefinedType(IFCSTRUCTURALCURVEMEMBERTYPEENUM,#538)\0"
    "DefinedType(IFCSTRUCTURALSURFACEACTIVITYTYPEENUM,#540)\0"
    "DefinedType(IFCSTRUCTURALSURFACEMEMBERTYPEENUM,#542)\0"
    "DefinedType(IFCSUBCONTRACTRESOURCETYPEENUM,#544)\0"
    "DefinedType(IFCSURFACEFEATURETYPEENUM,#546)\0"
    "DefinedType(IFCSURFACESIDE,#548)\0"
    "DefinedType(IFCSWITCHINGDEVICETYPEENUM,#550)\0"
    "DefinedType(IFCSYSTEMFURNITUREELEMENTTYPEENUM,#552)\0"
    "DefinedType(IFCTANKTYPEENUM,#554)\0"
    "DefinedType(IFCTASKDURATIONENUM,#556)\0"
    "DefinedType(IFCTASKTYPEENUM,#558)\0"
    "DefinedType(IFCTENDONANCHORTYPEENUM,#560)\0"
    "DefinedType(IFCTENDONTYPEENUM,#562)\0"
    "DefinedType(IFCTEXTPATH,#564)\0"
    "DefinedType(IFCTIMESERIESDATATYPEENUM,#566)\0"
    "DefinedType(IFCTRANSFORMERTYPEENUM,#568)\0"
    "DefinedType(IFCTRANSITIONCODE,#570)\0"
    "EnumerationType(BIQUADRATICPARABOLA,BLOSSCURVE,CLOTHOIDCURVE,COSINECURVE,CUBICPARABOLA,SINECURVE)\0"
    "DefinedType(IFCTRANSITIONCURVETYPE,#572)\0"
    "DefinedType(IFCTRANSPORTELEMENTTYPEENUM,#574)\0"
    "DefinedType(IFCTRIMMINGPREFERENCE,#576)\0"
    "DefinedType(IFCTUBEBUNDLETYPEENUM,#578)\0"
    "DefinedType(IFCUNITENUM,#580)\0"
    "DefinedType(IFCUNITARYCONTROLELEMENTTYPEENUM,#582)\0"
    "DefinedType(IFCUNITARYEQUIPMENTTYPEENUM,#584)\0"
    "DefinedType(IFCVALVETYPEENUM,#586)\0"
    "DefinedType(IFCVIBRATIONISOLATORTYPEENUM,#588)\0"
    "DefinedType(IFCVOIDINGFEATURETYPEENUM,#590)\0"
    "DefinedType(IFCWALLTYPEENUM,#592)\0"
    "DefinedType(IFCWASTETERMINALTYPEENUM,#594)\0"
    "DefinedType(IFCWINDOWPANELOPERATIONENUM,#596)\0"
    "DefinedType(IFCWINDOWPANELPOSITIONENUM,#598)\0"
    "DefinedType(IFCWINDOWSTYLECONSTRUCTIONENUM,#600)\0"
    "DefinedType(IFCWINDOWSTYLEOPERATIONENUM,#602)\0"
    "DefinedType(IFCWINDOWTYPEENUM,#604)\0"
    "DefinedType(IFCWINDOWTYPEPARTITIONINGENUM,#606)\0"
    "DefinedType(IFCWORKCALENDARTYPEENUM,#608)\0"
    "DefinedType(IFCWORKPLANTYPEENUM,#610)\0"
    "DefinedType(IFCWORKSCHEDULETYPEENUM,#612)\0"
    "DefinedType(IFCACTORSELECT,#614)\0"
    "SelectType(#2,#3,#5,#10,#20,#23,#30,#32,#33,#34,#35,#37,#38,#39,#43,#44,#46,#47,#49,#50,#51,#52,#53,#54,#59,#60,#61,#62,#64,#65,#67,#68,#69,#70,#72,#73,#74,#75,#76,#77,#78,#79,#80,#86,#88,#93,#95,#164,#166,#167,#168,#169,#170,#171,#173,#174,#175,#176,#177,#181,#182,#187,#188,#189,#190,#191,#195,#197,#199,#200,#201)\0"
    "DefinedType(IFCDERIVEDMEASUREVALUE,#618)\0"
    "SelectType(#4,#11,#18,#21,#22,#28,#36,#56,#66,#71,#82,#84,#85,#87,#89,#90,#91,#92,#83,#172,#192,#194,#198)\0"
    "DefinedType(IFCMEASUREVALUE,#620)\0"
    "SelectType(#12,#13,#24,#25,#31,#48,#6,#14,#63,#7,#165,#122,#193,#156)\0"
    "DefinedType(IFCSIMPLEVALUE,#622)\0"
    "SelectType(#619,#621,#623)\0"
    "DefinedType(IFCVALUE,#624)\0"
    "SetType(#629,1,-1)\0"
    "SelectType(#627,#646,#631)\0"
    "DefinedType(IFCUNIT,#648)\0"
    "SelectType(#616,#650,#625)\0"
    "DefinedType(IFCAPPLIEDVALUESELECT,#657)\0"
    "SelectType(#659,#672)\0"
    "DefinedType(IFCAXIS2PLACEMENT,#675)\0"
    "DefinedType(IFCBENDINGPARAMETERSELECT,#677)\0"
    "ListType(#695,1,-1,DUPL)\0"
    "ExplicitAttr(TAGLIST)\0"
    "SelectType(#679,#682,#684,#688,#689)\0"
    "DefinedType(IFCBOOLEANOPERAND,#699)\0"
    "DefinedType(IFCBOOLEANOPERAND,#702)\0"
    "SelectType(#704,#714)\0"
    "DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#720)\0"
    "DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#724)\0"
    "DefinedType(IFCCLASSIFICATIONSELECT,#726)\0"
    "SelectType(#728,#731)\0"
    "DefinedType(IFCCOLOUR,#734)\0"
    "SelectType(#736,#84)\0"
    "DefinedType(IFCCOLOURORFACTOR,#740)\0"
    "SelectType(#742,#747)\0"
    "DefinedType(IFCCOORDINATEREFERENCESYSTEMSELECT,#755)\0"
    "SelectType(#679,#682)\0"
    "DefinedType(IFCCSGSELECT,#757)\0"
    "ListType(#765,1,-1,DUPL)\0"
    "SelectType(#762,#769)\0"
    "DefinedType(IFCCURVESTYLEFONTSELECT,#770)\0"
    "SelectType(#759,#771)\0"
    "DefinedType(IFCCURVEFONTORSCALEDCURVEFONTSELECT,#773)\0"
    "ListType(#780,1,-1,DUPL)\0"
    "ListType(#786,1,2,DUPL)\0"
    "SelectType(#775,#786,#789)\0"
    "DefinedType(IFCCURVEONSURFACE,#794)\0"
    "SelectType(#777,#796)\0"
    "DefinedType(IFCCURVEOREDGECURVE,#804)\0"
    "SelectType(#806,#97)\0"
    "DefinedType(IFCDEFINITIONSELECT,#807)\0"
    "SetType(#615,1,-1)\0"
    "SelectType(#809,#828)\0"
    "DefinedType(IFCDOCUMENTSELECT,#831)\0"
    "DefinedType(IFCSIZESELECT,#841)\0"
    "SelectType(#90,#846)\0"
    "DefinedType(IFCHATCHLINEDISTANCESELECT,#849)\0"
    "ListType(#846,2,2,DUPL)\0"
    "SelectType(#735,#833,#834,#854)\0"
    "DefinedType(IFCFILLSTYLESELECT,#865)\0"
    "SetType(#866,1,-1)\0"
    "ListType(#886,1,-1,DUPL)\0"
    "SelectType(#872,#873,#878,#881,#884)\0"
    "DefinedType(IFCSURFACESTYLEELEMENTSELECT,#900)\0"
    "SetType(#901,1,5)\0"
    "SelectType(#918,#919)\0"
    "DefinedType(IFCTEXTFONTSELECT,#920)\0"
    "SelectType(#836,#863,#433,#869,#903)\0"
    "DefinedType(IFCPRESENTATIONSTYLESELECT,#923)\0"
    "SetType(#924,1,-1)\0"
    "SelectType(#837,#861)\0"
    "DefinedType(IFCSTYLEASSIGNMENTSELECT,#926)\0"
    "SetType(#927,1,-1)\0"
    "SetType(#858,1,-1)\0"
    "DefinedType(IFCFILLSTYLESELECT,#932)\0"
    "SelectType(#778,#665,#686)\0"
    "DefinedType(IFCGEOMETRICSETSELECT,#934)\0"
    "ListType(#938,2,2,UNIQ)\0"
    "SelectType(#669,#936)\0"
    "DefinedType(IFCGRIDPLACEMENTDIRECTIONSELECT,#945)\0"
    "SetType(#662,1,-1)\0"
    "SelectType(#947,#662)\0"
    "DefinedType(IFCLAYEREDITEM,#953)\0"
    "SelectType(#955,#962)\0"
    "DefinedType(IFCLIBRARYSELECT,#966)\0"
    "ListType(#971,1,-1,DUPL)\0"
    "SelectType(#715,#968)\0"
    "DefinedType(IFCLIGHTDISTRIBUTIONDATASOURCESELECT,#978)\0"
    "ListType(#983,1,-1,DUPL)\0"
    "SelectType(#980,#981,#988)\0"
    "DefinedType(IFCMATERIALSELECT,#989)\0"
    "ListType(#991,1,-1,DUPL)\0"
    "ListType(#625,1,-1,DUPL)\0"
    "ListType(#1012,1,-1,DUPL)\0"
    "SelectType(#991,#616,#650,#1003,#1019,#625)\0"
    "DefinedType(IFCMETRICVALUESELECT,#1028)\0"
    "DefinedType(IFCMODULUSOFROTATIONALSUBGRADEREACTIONSELECT,#1030)\0"
    "DefinedType(IFCMODULUSOFSUBGRADEREACTIONSELECT,#1032)\0"
    "DefinedType(IFCMODULUSOFTRANSLATIONALSUBGRADEREACTIONSELECT,#1034)\0"
    "SelectType(#125,#991,#715,#980,#133,#105,#103,#1003,#1019)\0"
    "DefinedType(IFCOBJECTREFERENCESELECT,#1036)\0"
    "SelectType(#665,#1038)\0"
    "DefinedType(IFCPOINTORVERTEXPOINT,#1040)\0"
    "SelectType(#1042,#1047)\0"
    "DefinedType(IFCPROCESSSELECT,#1055)\0"
    "SelectType(#1057,#1063)\0"
    "DefinedType(IFCPRODUCTREPRESENTATIONSELECT,#1066)\0"
    "ListType(#1063,1,-1,UNIQ)\0"
    "SelectType(#1068,#1072)\0"
    "DefinedType(IFCPRODUCTSELECT,#1076)\0"
    "DefinedType(IFCPROPERTYSETDEFINITIONSELECT,#1078)\0"
    "ListType(#1112,1,-1,DUPL)\0"
    "SelectType(#116,#991,#1080,#1090,#1098,#1100,#705,#715,#980,#133,#105,#103,#1103,#1106,#1109,#1110,#1019)\0"
    "DefinedType(IFCRESOURCEOBJECTSELECT,#1118)\0"
    "SelectType(#1120,#1123)\0"
    "DefinedType(IFCRESOURCESELECT,#1127)\0"
    "DefinedType(IFCROTATIONALSTIFFNESSSELECT,#1129)\0"
    "DefinedType(IFCSEGMENTINDEXSELECT,#1131)\0"
    "SetType(#1138,1,-1)\0"
    "SetType(#1136,1,-1)\0"
    "SelectType(#1133,#1144)\0"
    "DefinedType(IFCSHELL,#1145)\0"
    "SelectType(#1133,#688)\0"
    "DefinedType(IFCSOLIDORSHELL,#1147)\0"
    "SelectType(#1149,#1154)\0"
    "DefinedType(IFCSPACEBOUNDARYSELECT,#1159)\0"
    "DefinedType(IFCSPECULARHIGHLIGHTSELECT,#1161)\0"
    "SelectType(#1163,#1165)\0"
    "DefinedType(IFCSTRUCTURALACTIVITYASSIGNMENTSELECT,#1166)\0"
    "SetType(#1134,1,-1)\0"
    "SelectType(#1168,#1171,#686)\0"
    "DefinedType(IFCSURFACEORFACESURFACE,#1174)\0"
    "DefinedType(IFCTIMEORRATIOSELECT,#1176)\0"
    "DefinedType(IFCTRANSLATIONALSTIFFNESSSELECT,#1178)\0"
    "SelectType(#664,#87)\0"
    "DefinedType(IFCTRIMMINGSELECT,#1180)\0"
    "SelectType(#669,#846)\0"
    "DefinedType(IFCVECTORORDIRECTION,#1182)\0"
    "SelectType(#13,#201)\0"
    "DefinedType(IFCWARPINGSTIFFNESSSELECT,#1184)\0"
    "SetType(#1133,1,-1)\0"
    "Entity(IFCALIGNMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCLINEARPOSITIONINGELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCPOSITIONINGELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCALIGNMENT2DHORIZONTAL,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(STARTDISTALONG)\0"
    "Entity(IFCALIGNMENT2DHORIZONTALSEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCALIGNMENT2DSEGMENT,ABSTRACT,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(TANGENTIALCONTINUITY)\0"
    "ExplicitAttr(STARTTAG)\0"
    "ExplicitAttr(ENDTAG)\0"
    "ExplicitAttr(CURVEGEOMETRY)\0"
    "Entity(IFCCURVESEGMENT2D,ABSTRACT,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(STARTPOINT)\0"
    "ExplicitAttr(STARTDIRECTION)\0"
    "ExplicitAttr(SEGMENTLENGTH)\0"
    "ListType(#1243,1,-1,DUPL)\0"
    "Entity(IFCALIGNMENT2DVERSEGCIRCULARARC,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCALIGNMENT2DVERTICALSEGMENT,ABSTRACT,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(HORIZONTALLENGTH)\0"
    "ExplicitAttr(STARTHEIGHT)\0"
    "ExplicitAttr(STARTGRADIENT)\0"
    "ExplicitAttr(ISCONVEX)\0"
    "Entity(IFCALIGNMENT2DVERSEGLINE,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCALIGNMENT2DVERSEGPARABOLICARC,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(PARABOLACONSTANT)\0"
    "Entity(IFCALIGNMENT2DVERTICAL,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ListType(#1255,1,-1,DUPL)\0"
    "Entity(IFCALIGNMENTCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(HORIZONTAL)\0"
    "ExplicitAttr(VERTICAL)\0"
    "SetType(#778,1,-1)\0"
    "SetType(#1080,1,-1)\0"
    "ListType(#664,2,-1,DUPL)\0"
    "ListType(#1343,2,-1,DUPL)\0"
    "ListType(#1469,1,-1,DUPL)\0"
    "Entity(IFCCIRCULARARCSEGMENT2D,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(ISCCW)\0"
    "ListType(#1509,1,-1,DUPL)\0"
    "SetType(#1521,1,-1)\0"
    "SetType(#1528,1,-1)\0"
    "SetType(#1106,2,-1)\0"
    "SetType(#748,1,-1)\0"
    "SetType(#649,1,-1)\0"
    "ListType(#1296,1,-1,DUPL)\0"
    "ListType(#1103,1,-1,DUPL)\0"
    "SetType(#778,0,-1)\0"
    "SetType(#1380,1,-1)\0"
    "Entity(IFCDISTANCEEXPRESSION,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(DISTANCEALONG)\0"
    "ExplicitAttr(OFFSETLATERAL)\0"
    "ExplicitAttr(OFFSETVERTICAL)\0"
    "ExplicitAttr(OFFSETLONGITUDINAL)\0"
    "ExplicitAttr(ALONGHORIZONTAL)\0"
    "SetType(#809,1,-1)\0"
    "ListType(#1771,1,-1,DUPL)\0"
    "SetType(#1103,1,-1)\0"
    "SetType(#1119,1,-1)\0"
    "SetType(#935,1,-1)\0"
    "ListType(#938,1,-1,UNIQ)\0"
    "ListType(#1132,1,-1,DUPL)\0"
    "ListType(#1975,1,-1,DUPL)\0"
    "ListType(#1989,1,-1,DUPL)\0"
    "ListType(#2006,1,-1,DUPL)\0"
    "Entity(IFCLINESEGMENT2D,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCLINEARPLACEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCORIENTATIONEXPRESSION,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(LATERALAXISDIRECTION)\0"
    "ExplicitAttr(VERTICALAXISDIRECTION)\0"
    "ExplicitAttr(CARTESIANPOSITION)\0"
    "SetType(#727,1,-1)\0"
    "SetType(#2092,1,-1)\0"
    "ListType(#2105,1,-1,DUPL)\0"
    "ListType(#2128,1,-1,DUPL)\0"
    "SetType(#983,1,-1)\0"
    "ListType(#1090,1,-1,DUPL)\0"
    "Entity(IFCOFFSETCURVE,ABSTRACT,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCOFFSETCURVEBYDISTANCES,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ListType(#1691,1,-1,DUPL)\0"
    "ListType(#1771,1,-1,UNIQ)\0"
    "ListType(#664,3,-1,UNIQ)\0"
    "ListType(#1970,1,-1,DUPL)\0"
    "SetType(#954,1,-1)\0"
    "SetType(#837,0,-1)\0"
    "ListType(#625,1,-1,UNIQ)\0"
    "ListType(#2422,2,-1,DUPL)\0"
    "ListType(#2455,1,-1,DUPL)\0"
    "Entity(IFCREFERENT,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(RESTARTDISTANCE)\0"
    "ListType(#2465,1,-1,DUPL)\0"
    "SetType(#2469,1,-1)\0"
    "ListType(#2479,1,-1,DUPL)\0"
    "ListType(#678,1,-1,DUPL)\0"
    "SetType(#806,1,-1)\0"
    "SetType(#808,1,-1)\0"
    "SetType(#1163,1,-1)\0"
    "SetType(#1068,1,-1)\0"
    "SetType(#1644,1,-1)\0"
    "SetType(#1043,1,-1)\0"
    "SetType(#1195,1,-1)\0"
    "ListType(#806,1,-1,DUPL)\0"
    "SetType(#1151,1,-1)\0"
    "Entity(IFCSECTIONEDSOLID,ABSTRACT,SIMPLE,INDEPENDENT)\0"
    "ListType(#1106,2,-1,DUPL)\0"
    "Entity(IFCSECTIONEDSOLIDHORIZONTAL,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ListType(#1691,2,-1,DUPL)\0"
    "ExplicitAttr(FIXEDAXISVERTICAL)\0"
    "ListType(#672,2,-1,DUPL)\0"
    "SetType(#2829,1,-1)\0"
    "SetType(#2837,1,-1)\0"
    "ListType(#2861,1,-1,DUPL)\0"
    "ListType(#2864,1,-1,UNIQ)\0"
    "ListType(#196,1,-1,DUPL)\0"
    "ListType(#185,1,-1,DUPL)\0"
    "ListType(#3063,3,-1,DUPL)\0"
    "Entity(IFCTRANSITIONCURVESEGMENT2D,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(STARTRADIUS)\0"
    "ExplicitAttr(ENDRADIUS)\0"
    "ExplicitAttr(ISSTARTRADIUSCCW)\0"
    "ExplicitAttr(ISENDRADIUSCCW)\0"
    "ExplicitAttr(TRANSITIONCURVETYPE)\0"
    "ListType(#3093,1,-1,DUPL)\0"
    "ListType(#3097,1,-1,DUPL)\0"
    "Entity(IFCTRIANGULATEDIRREGULARNETWORK,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(FLAGS)\0"
    "SetType(#1181,1,2)\0"
    "SetType(#3194,1,-1)\0"
    "#616.Composition(#616)\0"
    "#617.ExplAttrInfos(#625,REQ)\0"
    "#629.Composition(#629)\0"
    "#631.Composition(#631)\0"
    "#633.Composition(#633)\0"
    "#634.ExplAttrInfos(IntegerType,REQ)\0"
    "#636.ExplAttrInfos(IntegerType,REQ)\0"
    "#637.ExplAttrInfos(IntegerType,REQ)\0"
    "#638.ExplAttrInfos(IntegerType,REQ)\0"
    "#639.ExplAttrInfos(IntegerType,REQ)\0"
    "#640.ExplAttrInfos(IntegerType,REQ)\0"
    "#633.Attributes(#634,#635,#636,#637,#638,#639,#640)\0"
    "#632.ExplAttrInfos(#633,REQ)\0"
    "#641.ExplAttrInfos(#581,REQ)\0"
    "#631.Attributes(#632,#641)\0"
    "#630.ExplAttrInfos(#631,REQ)\0"
    "#642.ExplAttrInfos(IntegerType,REQ)\0"
    "#629.Attributes(#630,#642)\0"
    "#628.ExplAttrInfos(#643,REQ)\0"
    "#644.ExplAttrInfos(#307,REQ)\0"
    "#645.ExplAttrInfos(#14,OPT)\0"
    "#627.Attributes(#628,#644,#645)\0"
    "#646.Composition(#646)\0"
    "#647.ExplAttrInfos(#14,REQ)\0"
    "#646.Attributes(#647)\0"
    "#626.ExplAttrInfos(#649,REQ)\0"
    "#616.Attributes(#617,#626)\0"
    "#650.Composition(#650)\0"
    "#651.ExplAttrInfos(#48,OPT)\0"
    "#652.ExplAttrInfos(#48,OPT)\0"
    "#653.ExplAttrInfos(#14,OPT)\0"
    "#654.ExplAttrInfos(#655,OPT)\0"
    "#656.ExplAttrInfos(#650,OPT)\0"
    "#650.Attributes(#651,#652,#653,#654,#656)\0"
    "#662.Composition(#662)\0"
    "#661.Supertypes(#662)\0"
    "#661.Composition(#661,#662)\0"
    "#660.Supertypes(#661)\0"
    "#660.Composition(#661,#660,#662)\0"
    "#665.Supertypes(#661)\0"
    "#665.Composition(#661,#665,#662)\0"
    "#664.Supertypes(#665)\0"
    "#664.Composition(#664,#661,#665,#662)\0"
    "#664.Attributes(#666)\0"
    "#663.ExplAttrInfos(#664,REQ)\0"
    "#660.Attributes(#663)\0"
    "#659.Supertypes(#660)\0"
    "#659.Composition(#659,#661,#660,#662)\0"
    "#669.Supertypes(#661)\0"
    "#669.Composition(#669,#661,#662)\0"
    "#670.ExplAttrInfos(#671,REQ)\0"
    "#669.Attributes(#670)\0"
    "#668.ExplAttrInfos(#669,OPT)\0"
    "#659.Attributes(#668)\0"
    "#672.Supertypes(#660)\0"
    "#672.Composition(#672,#661,#660,#662)\0"
    "#673.ExplAttrInfos(#669,OPT)\0"
    "#674.ExplAttrInfos(#669,OPT)\0"
    "#672.Attributes(#673,#674)\0"
    "#679.Supertypes(#661)\0"
    "#679.Composition(#679,#661,#662)\0"
    "#680.ExplAttrInfos(#241,REQ)\0"
    "#681.ExplAttrInfos(#700,REQ)\0"
    "#701.ExplAttrInfos(#700,REQ)\0"
    "#679.Attributes(#680,#681,#701)\0"
    "#682.Supertypes(#661)\0"
    "#682.Composition(#682,#661,#662)\0"
    "#683.ExplAttrInfos(#672,REQ)\0"
    "#682.Attributes(#683)\0"
    "#684.Supertypes(#661)\0"
    "#684.Composition(#661,#684,#662)\0"
    "#686.Supertypes(#661)\0"
    "#686.Composition(#661,#662,#686)\0"
    "#685.ExplAttrInfos(#686,REQ)\0"
    "#687.ExplAttrInfos(#13,REQ)\0"
    "#684.Attributes(#685,#687)\0"
    "#688.Supertypes(#661)\0"
    "#688.Composition(#661,#662,#688)\0"
    "#690.Supertypes(#661)\0"
    "#690.Composition(#661,#662,#690)\0"
    "#689.Supertypes(#690)\0"
    "#689.Composition(#661,#662,#689,#690)\0"
    "#693.Supertypes(#661)\0"
    "#693.Composition(#693,#661,#662)\0"
    "#692.Supertypes(#693)\0"
    "#692.Composition(#693,#692,#661,#662)\0"
    "#694.ExplAttrInfos(#696,REQ)\0"
    "#697.ExplAttrInfos(#698,OPT)\0"
    "#692.Attributes(#694,#697)\0"
    "#691.ExplAttrInfos(#692,REQ)\0"
    "#689.Attributes(#691)\0"
    "#705.Composition(#705)\0"
    "#704.Supertypes(#705)\0"
    "#704.Composition(#704,#705)\0"
    "#706.ExplAttrInfos(#14,OPT)\0"
    "#707.ExplAttrInfos(#14,OPT)\0"
    "#708.ExplAttrInfos(#24,OPT)\0"
    "#709.ExplAttrInfos(#14,REQ)\0"
    "#710.ExplAttrInfos(#122,OPT)\0"
    "#711.ExplAttrInfos(#196,OPT)\0"
    "#712.ExplAttrInfos(#713,OPT)\0"
    "#704.Attributes(#706,#707,#708,#709,#710,#711,#712)\0"
    "#715.Composition(#715)\0"
    "#716.ExplAttrInfos(#196,OPT)\0"
    "#717.ExplAttrInfos(#48,OPT)\0"
    "#718.ExplAttrInfos(#14,OPT)\0"
    "#715.Attributes(#716,#717,#718)\0"
    "#714.Supertypes(#715)\0"
    "#714.Composition(#714,#715)\0"
    "#719.ExplAttrInfos(#721,OPT)\0"
    "#722.ExplAttrInfos(#122,OPT)\0"
    "#723.ExplAttrInfos(#48,OPT)\0"
    "#714.Attributes(#719,#722,#723)\0"
    "#729.Composition(#729)\0"
    "#728.Supertypes(#729)\0"
    "#728.Composition(#728,#729)\0"
    "#730.ExplAttrInfos(#14,OPT)\0"
    "#728.Attributes(#730)\0"
    "#732.Supertypes(#729)\0"
    "#732.Composition(#732,#729)\0"
    "#733.ExplAttrInfos(#14,REQ)\0"
    "#732.Attributes(#733)\0"
    "#731.Supertypes(#732)\0"
    "#731.Composition(#731,#732,#729)\0"
    "#736.Supertypes(#728)\0"
    "#736.Composition(#736,#728,#729)\0"
    "#737.ExplAttrInfos(#84,REQ)\0"
    "#738.ExplAttrInfos(#84,REQ)\0"
    "#736.Attributes(#737,#738,#739)\0"
    "#742.Composition(#742)\0"
    "#743.ExplAttrInfos(#14,REQ)\0"
    "#744.ExplAttrInfos(#122,OPT)\0"
    "#745.ExplAttrInfos(#48,OPT)\0"
    "#746.ExplAttrInfos(#48,OPT)\0"
    "#742.Attributes(#743,#744,#745,#746)\0"
    "#748.Composition(#748)\0"
    "#749.ExplAttrInfos(#14,OPT)\0"
    "#750.ExplAttrInfos(#14,OPT)\0"
    "#748.Attributes(#749,#750)\0"
    "#747.Supertypes(#748)\0"
    "#747.Composition(#747,#748)\0"
    "#751.ExplAttrInfos(#29,REQ)\0"
    "#752.ExplAttrInfos(#165,OPT)\0"
    "#753.ExplAttrInfos(#676,REQ)\0"
    "#754.ExplAttrInfos(#669,OPT)\0"
    "#747.Attributes(#751,#752,#753,#754)\0"
    "#759.Supertypes(#729)\0"
    "#759.Composition(#759,#729)\0"
    "#760.ExplAttrInfos(#14,OPT)\0"
    "#762.Supertypes(#729)\0"
    "#762.Composition(#762,#729)\0"
    "#763.ExplAttrInfos(#14,OPT)\0"
    "#765.Supertypes(#729)\0"
    "#765.Composition(#765,#729)\0"
    "#766.ExplAttrInfos(#56,REQ)\0"
    "#767.ExplAttrInfos(#90,REQ)\0"
    "#765.Attributes(#766,#767)\0"
    "#764.ExplAttrInfos(#768,REQ)\0"
    "#762.Attributes(#763,#764)\0"
    "#769.Supertypes(#732)\0"
    "#769.Composition(#769,#732,#729)\0"
    "#761.ExplAttrInfos(#771,REQ)\0"
    "#772.ExplAttrInfos(#92,REQ)\0"
    "#759.Attributes(#760,#761,#772)\0"
    "#778.Supertypes(#661)\0"
    "#778.Composition(#778,#661,#662)\0"
    "#777.Composition(#777,#778,#661,#662)\0"
    "#776.Supertypes(#777)\0"
    "#776.Composition(#777,#776,#778,#661,#662)\0"
    "#780.Supertypes(#661)\0"
    "#780.Composition(#780,#661,#662)\0"
    "#781.ExplAttrInfos(#571,REQ)\0"
    "#782.ExplAttrInfos(#13,REQ)\0"
    "#783.ExplAttrInfos(#778,REQ)\0"
    "#780.Attributes(#781,#782,#783)\0"
    "#779.ExplAttrInfos(#784,REQ)\0"
    "#785.ExplAttrInfos(#63,REQ)\0"
    "#776.Attributes(#779,#785)\0"
    "#775.Supertypes(#776)\0"
    "#775.Composition(#777,#776,#775,#778,#661,#662)\0"
    "#786.Supertypes(#778)\0"
    "#786.Composition(#778,#661,#786,#662)\0"
    "#787.ExplAttrInfos(#686,REQ)\0"
    "#788.ExplAttrInfos(#778,REQ)\0"
    "#786.Attributes(#787,#788)\0"
    "#789.Supertypes(#778)\0"
    "#789.Composition(#778,#661,#662,#789)\0"
    "#790.ExplAttrInfos(#778,REQ)\0"
    "#791.ExplAttrInfos(#792,REQ)\0"
    "#793.ExplAttrInfos(#463,REQ)\0"
    "#789.Attributes(#790,#791,#793)\0"
    "#798.Supertypes(#662)\0"
    "#798.Composition(#662,#798)\0"
    "#797.Supertypes(#798)\0"
    "#797.Composition(#797,#662,#798)\0"
    "#800.Supertypes(#798)\0"
    "#800.Composition(#662,#798,#800)\0"
    "#801.ExplAttrInfos(#800,REQ)\0"
    "#797.Attributes(#799,#801)\0"
    "#796.Supertypes(#797)\0"
    "#796.Composition(#797,#796,#662,#798)\0"
    "#802.ExplAttrInfos(#778,REQ)\0"
    "#803.ExplAttrInfos(#13,REQ)\0"
    "#796.Attributes(#802,#803)\0"
    "#806.Supertypes(#98)\0"
    "#806.Composition(#806,#98)\0"
    "#809.Supertypes(#705)\0"
    "#809.Composition(#809,#705)\0"
    "#810.ExplAttrInfos(#48,REQ)\0"
    "#811.ExplAttrInfos(#14,REQ)\0"
    "#812.ExplAttrInfos(#122,OPT)\0"
    "#813.ExplAttrInfos(#196,OPT)\0"
    "#814.ExplAttrInfos(#122,OPT)\0"
    "#815.ExplAttrInfos(#122,OPT)\0"
    "#816.ExplAttrInfos(#122,OPT)\0"
    "#817.ExplAttrInfos(#14,OPT)\0"
    "#818.ExplAttrInfos(#615,OPT)\0"
    "#819.ExplAttrInfos(#820,OPT)\0"
    "#821.ExplAttrInfos(#25,OPT)\0"
    "#822.ExplAttrInfos(#25,OPT)\0"
    "#823.ExplAttrInfos(#48,OPT)\0"
    "#824.ExplAttrInfos(#24,OPT)\0"
    "#825.ExplAttrInfos(#24,OPT)\0"
    "#826.ExplAttrInfos(#319,OPT)\0"
    "#827.ExplAttrInfos(#321,OPT)\0"
    "#809.Attributes(#810,#811,#812,#813,#814,#815,#816,#817,#818,#819,#821,#822,#823,#824,#825,#826,#827)\0"
    "#828.Supertypes(#715)\0"
    "#828.Composition(#828,#715)\0"
    "#829.ExplAttrInfos(#122,OPT)\0"
    "#830.ExplAttrInfos(#809,OPT)\0"
    "#828.Attributes(#829,#830)\0"
    "#833.Supertypes(#715)\0"
    "#833.Composition(#833,#715)\0"
    "#834.Supertypes(#661)\0"
    "#834.Composition(#834,#661,#662)\0"
    "#837.Composition(#837)\0"
    "#838.ExplAttrInfos(#14,OPT)\0"
    "#837.Attributes(#838)\0"
    "#836.Supertypes(#837)\0"
    "#836.Composition(#836,#837)\0"
    "#839.ExplAttrInfos(#774,OPT)\0"
    "#840.ExplAttrInfos(#842,OPT)\0"
    "#843.ExplAttrInfos(#735,OPT)\0"
    "#844.ExplAttrInfos(#13,OPT)\0"
    "#836.Attributes(#839,#840,#843,#844)\0"
    "#835.ExplAttrInfos(#836,REQ)\0"
    "#846.Supertypes(#661)\0"
    "#846.Composition(#661,#662,#846)\0"
    "#847.ExplAttrInfos(#669,REQ)\0"
    "#848.ExplAttrInfos(#56,REQ)\0"
    "#846.Attributes(#847,#848)\0"
    "#845.ExplAttrInfos(#850,REQ)\0"
    "#851.ExplAttrInfos(#664,OPT)\0"
    "#852.ExplAttrInfos(#664,OPT)\0"
    "#853.ExplAttrInfos(#89,REQ)\0"
    "#834.Attributes(#835,#845,#851,#852,#853)\0"
    "#854.Supertypes(#661)\0"
    "#854.Composition(#854,#661,#662)\0"
    "#855.ExplAttrInfos(#856,REQ)\0"
    "#858.Supertypes(#662)\0"
    "#858.Composition(#662,#858)\0"
    "#859.ExplAttrInfos(#662,OPT)\0"
    "#861.Composition(#861)\0"
    "#863.Supertypes(#837)\0"
    "#863.Composition(#863,#837)\0"
    "#864.ExplAttrInfos(#867,REQ)\0"
    "#868.ExplAttrInfos(#13,OPT)\0"
    "#863.Attributes(#864,#868)\0"
    "#869.Supertypes(#837)\0"
    "#869.Composition(#837,#869)\0"
    "#870.ExplAttrInfos(#549,REQ)\0"
    "#872.Supertypes(#715)\0"
    "#872.Composition(#872,#715)\0"
    "#873.Supertypes(#729)\0"
    "#873.Composition(#729,#873)\0"
    "#874.ExplAttrInfos(#736,REQ)\0"
    "#875.ExplAttrInfos(#736,REQ)\0"
    "#876.ExplAttrInfos(#736,REQ)\0"
    "#877.ExplAttrInfos(#736,REQ)\0"
    "#873.Attributes(#874,#875,#876,#877)\0"
    "#878.Supertypes(#729)\0"
    "#878.Composition(#729,#878)\0"
    "#879.ExplAttrInfos(#165,OPT)\0"
    "#880.ExplAttrInfos(#165,OPT)\0"
    "#878.Attributes(#879,#880)\0"
    "#881.Supertypes(#729)\0"
    "#881.Composition(#729,#881)\0"
    "#882.ExplAttrInfos(#736,REQ)\0"
    "#883.ExplAttrInfos(#84,OPT)\0"
    "#881.Attributes(#882,#883)\0"
    "#884.Supertypes(#729)\0"
    "#884.Composition(#729,#884)\0"
    "#886.Supertypes(#729)\0"
    "#886.Composition(#729,#886)\0"
    "#887.ExplAttrInfos(#13,REQ)\0"
    "#888.ExplAttrInfos(#13,REQ)\0"
    "#889.ExplAttrInfos(#48,OPT)\0"
    "#892.Supertypes(#661)\0"
    "#892.Composition(#892,#661,#662)\0"
    "#893.ExplAttrInfos(#669,OPT)\0"
    "#894.ExplAttrInfos(#669,OPT)\0"
    "#895.ExplAttrInfos(#664,REQ)\0"
    "#896.ExplAttrInfos(#165,OPT)\0"
    "#892.Attributes(#893,#894,#895,#896)\0"
    "#891.Supertypes(#892)\0"
    "#891.Composition(#892,#891,#661,#662)\0"
    "#890.ExplAttrInfos(#891,OPT)\0"
    "#897.ExplAttrInfos(#898,OPT)\0"
    "#886.Attributes(#887,#888,#889,#890,#897)\0"
    "#885.ExplAttrInfos(#899,REQ)\0"
    "#884.Attributes(#885)\0"
    "#871.ExplAttrInfos(#902,REQ)\0"
    "#869.Attributes(#870,#871)\0"
    "#903.Supertypes(#837)\0"
    "#903.Composition(#837,#903)\0"
    "#905.Supertypes(#729)\0"
    "#905.Composition(#729,#905)\0"
    "#906.ExplAttrInfos(#735,REQ)\0"
    "#907.ExplAttrInfos(#735,OPT)\0"
    "#905.Attributes(#906,#907)\0"
    "#904.ExplAttrInfos(#905,OPT)\0"
    "#909.Supertypes(#729)\0"
    "#909.Composition(#729,#909)\0"
    "#910.ExplAttrInfos(#842,OPT)\0"
    "#911.ExplAttrInfos(#183,OPT)\0"
    "#912.ExplAttrInfos(#184,OPT)\0"
    "#913.ExplAttrInfos(#842,OPT)\0"
    "#914.ExplAttrInfos(#842,OPT)\0"
    "#915.ExplAttrInfos(#186,OPT)\0"
    "#916.ExplAttrInfos(#842,OPT)\0"
    "#909.Attributes(#910,#911,#912,#913,#914,#915,#916)\0"
    "#908.ExplAttrInfos(#909,OPT)\0"
    "#918.Supertypes(#715)\0"
    "#918.Composition(#918,#715)\0"
    "#919.Supertypes(#732)\0"
    "#919.Composition(#732,#919,#729)\0"
    "#917.ExplAttrInfos(#921,REQ)\0"
    "#922.ExplAttrInfos(#13,OPT)\0"
    "#903.Attributes(#904,#908,#917,#922)\0"
    "#862.ExplAttrInfos(#925,REQ)\0"
    "#861.Attributes(#862)\0"
    "#860.ExplAttrInfos(#928,REQ)\0"
    "#929.ExplAttrInfos(#14,OPT)\0"
    "#858.Attributes(#859,#860,#929)\0"
    "#857.ExplAttrInfos(#930,REQ)\0"
    "#931.ExplAttrInfos(#92,REQ)\0"
    "#854.Attributes(#855,#857,#931)\0"
    "#936.Composition(#936)\0"
    "#938.Composition(#938)\0"
    "#939.ExplAttrInfos(#14,OPT)\0"
    "#940.ExplAttrInfos(#778,REQ)\0"
    "#941.ExplAttrInfos(#13,REQ)\0"
    "#938.Attributes(#939,#940,#941)\0"
    "#937.ExplAttrInfos(#942,REQ)\0"
    "#943.ExplAttrInfos(#944,REQ)\0"
    "#936.Attributes(#937,#943)\0"
    "#947.Composition(#947)\0"
    "#948.ExplAttrInfos(#748,REQ)\0"
    "#949.ExplAttrInfos(#14,OPT)\0"
    "#950.ExplAttrInfos(#14,OPT)\0"
    "#951.ExplAttrInfos(#952,REQ)\0"
    "#947.Attributes(#948,#949,#950,#951)\0"
    "#955.Supertypes(#705)\0"
    "#955.Composition(#705,#955)\0"
    "#956.ExplAttrInfos(#14,REQ)\0"
    "#957.ExplAttrInfos(#14,OPT)\0"
    "#958.ExplAttrInfos(#615,OPT)\0"
    "#959.ExplAttrInfos(#25,OPT)\0"
    "#960.ExplAttrInfos(#196,OPT)\0"
    "#961.ExplAttrInfos(#122,OPT)\0"
    "#955.Attributes(#956,#957,#958,#959,#960,#961)\0"
    "#962.Supertypes(#715)\0"
    "#962.Composition(#715,#962)\0"
    "#963.ExplAttrInfos(#122,OPT)\0"
    "#964.ExplAttrInfos(#55,OPT)\0"
    "#965.ExplAttrInfos(#955,OPT)\0"
    "#962.Attributes(#963,#964,#965)\0"
    "#968.Composition(#968)\0"
    "#969.ExplAttrInfos(#415,REQ)\0"
    "#972.ExplAttrInfos(#89,REQ)\0"
    "#973.ExplAttrInfos(#974,REQ)\0"
    "#975.ExplAttrInfos(#976,REQ)\0"
    "#971.Attributes(#972,#973,#975)\0"
    "#970.ExplAttrInfos(#977,REQ)\0"
    "#968.Attributes(#969,#970)\0"
    "#980.Composition(#980)\0"
    "#981.Composition(#981)\0"
    "#983.Composition(#983,#980)\0"
    "#984.ExplAttrInfos(#14,REQ)\0"
    "#985.ExplAttrInfos(#122,OPT)\0"
    "#986.ExplAttrInfos(#14,OPT)\0"
    "#983.Attributes(#984,#985,#986)\0"
    "#982.ExplAttrInfos(#987,REQ)\0"
    "#981.Attributes(#982)\0"
    "#988.Composition(#988)\0"
    "#991.Composition(#991)\0"
    "#992.ExplAttrInfos(#14,OPT)\0"
    "#993.ExplAttrInfos(#122,OPT)\0"
    "#994.ExplAttrInfos(#658,OPT)\0"
    "#995.ExplAttrInfos(#616,OPT)\0"
    "#996.ExplAttrInfos(#24,OPT)\0"
    "#997.ExplAttrInfos(#24,OPT)\0"
    "#998.ExplAttrInfos(#14,OPT)\0"
    "#999.ExplAttrInfos(#14,OPT)\0"
    "#1000.ExplAttrInfos(#225,OPT)\0"
    "#1001.ExplAttrInfos(#1002,OPT)\0"
    "#991.Attributes(#992,#993,#994,#995,#996,#997,#998,#999,#1000,#1001)\0"
    "#1004.ExplAttrInfos(#14,OPT)\0"
    "#1007.ExplAttrInfos(#1008,OPT)\0"
    "#1009.ExplAttrInfos(#13,OPT)\0"
    "#1006.Attributes(#1007,#1009)\0"
    "#1005.ExplAttrInfos(#1010,OPT)\0"
    "#1012.Composition(#1012)\0"
    "#1013.ExplAttrInfos(#48,OPT)\0"
    "#1015.ExplAttrInfos(#122,OPT)\0"
    "#1016.ExplAttrInfos(#649,OPT)\0"
    "#1017.ExplAttrInfos(#650,OPT)\0"
    "#1012.Attributes(#1013,#1014,#1015,#1016,#1017)\0"
    "#1011.ExplAttrInfos(#1018,OPT)\0"
    "#1003.Attributes(#1004,#1005,#1011)\0"
    "#1019.Composition(#1019)\0"
    "#1020.ExplAttrInfos(#14,REQ)\0"
    "#1021.ExplAttrInfos(#122,OPT)\0"
    "#1022.ExplAttrInfos(#25,REQ)\0"
    "#1023.ExplAttrInfos(#25,REQ)\0"
    "#1024.ExplAttrInfos(#567,REQ)\0"
    "#1025.ExplAttrInfos(#305,REQ)\0"
    "#1026.ExplAttrInfos(#14,OPT)\0"
    "#1027.ExplAttrInfos(#649,OPT)\0"
    "#1019.Attributes(#1020,#1021,#1022,#1023,#1024,#1025,#1026,#1027)\0"
    "#1038.Supertypes(#800)\0"
    "#1038.Composition(#662,#798,#800,#1038)\0"
    "#1039.ExplAttrInfos(#665,REQ)\0"
    "#1038.Attributes(#1039)\0"
    "#1043.Supertypes(#806)\0"
    "#1043.Composition(#1043,#806,#98)\0"
    "#1043.Attributes(#1044)\0"
    "#1042.Supertypes(#1043)\0"
    "#1042.Composition(#1043,#806,#1042,#98)\0"
    "#1045.ExplAttrInfos(#48,OPT)\0"
    "#1046.ExplAttrInfos(#122,OPT)\0"
    "#1042.Attributes(#1045,#1046)\0"
    "#1048.Supertypes(#806)\0"
    "#1048.Composition(#806,#98,#1048)\0"
    "#1049.ExplAttrInfos(#48,OPT)\0"
    "#1050.ExplAttrInfos(#1051,OPT)\0"
    "#1048.Attributes(#1049,#1050)\0"
    "#1047.Supertypes(#1048)\0"
    "#1047.Composition(#806,#98,#1048,#1047)\0"
    "#1052.ExplAttrInfos(#48,OPT)\0"
    "#1053.ExplAttrInfos(#122,OPT)\0"
    "#1054.ExplAttrInfos(#14,OPT)\0"
    "#1047.Attributes(#1052,#1053,#1054)\0"
    "#1058.Composition(#1058)\0"
    "#1059.ExplAttrInfos(#14,OPT)\0"
    "#1060.ExplAttrInfos(#122,OPT)\0"
    "#1061.ExplAttrInfos(#1062,REQ)\0"
    "#1058.Attributes(#1059,#1060,#1061)\0"
    "#1057.Supertypes(#1058)\0"
    "#1057.Composition(#1057,#1058)\0"
    "#1063.Composition(#1063)\0"
    "#1064.ExplAttrInfos(#676,REQ)\0"
    "#1065.ExplAttrInfos(#947,REQ)\0"
    "#1063.Attributes(#1064,#1065)\0"
    "#1068.Supertypes(#1043)\0"
    "#1068.Composition(#1043,#806,#1068,#98)\0"
    "#1070.Composition(#1070)\0"
    "#1069.ExplAttrInfos(#1070,OPT)\0"
    "#1071.ExplAttrInfos(#1058,OPT)\0"
    "#1068.Attributes(#1069,#1071)\0"
    "#1072.Supertypes(#1048)\0"
    "#1072.Composition(#806,#98,#1048,#1072)\0"
    "#1073.ExplAttrInfos(#1074,OPT)\0"
    "#1075.ExplAttrInfos(#14,OPT)\0"
    "#1072.Attributes(#1073,#1075)\0"
    "#1080.Composition(#1080)\0"
    "#1081.ExplAttrInfos(#48,OPT)\0"
    "#1082.ExplAttrInfos(#14,OPT)\0"
    "#1083.ExplAttrInfos(#122,OPT)\0"
    "#1084.ExplAttrInfos(#25,OPT)\0"
    "#1085.ExplAttrInfos(#14,OPT)\0"
    "#1086.ExplAttrInfos(#14,OPT)\0"
    "#1087.ExplAttrInfos(#122,OPT)\0"
    "#1088.ExplAttrInfos(#615,OPT)\0"
    "#1089.ExplAttrInfos(#615,OPT)\0"
    "#1080.Attributes(#1081,#1082,#1083,#1084,#1085,#1086,#1087,#1088,#1089)\0"
    "#1090.Composition(#1090)\0"
    "#1091.ExplAttrInfos(#14,REQ)\0"
    "#1092.ExplAttrInfos(#122,OPT)\0"
    "#1093.ExplAttrInfos(#277,REQ)\0"
    "#1094.ExplAttrInfos(#14,OPT)\0"
    "#1095.ExplAttrInfos(#615,OPT)\0"
    "#1096.ExplAttrInfos(#25,OPT)\0"
    "#1097.ExplAttrInfos(#14,OPT)\0"
    "#1090.Attributes(#1091,#1092,#1093,#1094,#1095,#1096,#1097)\0"
    "#1098.Supertypes(#631)\0"
    "#1098.Composition(#1098,#631)\0"
    "#1099.ExplAttrInfos(#14,REQ)\0"
    "#1100.Supertypes(#631)\0"
    "#1100.Composition(#1100,#631)\0"
    "#1101.ExplAttrInfos(#14,REQ)\0"
    "#1102.ExplAttrInfos(#616,REQ)\0"
    "#1100.Attributes(#1101,#1102)\0"
    "#1103.Composition(#1103)\0"
    "#1104.ExplAttrInfos(#14,REQ)\0"
    "#1103.Attributes(#1104,#1105)\0"
    "#1106.Composition(#1106)\0"
    "#1107.ExplAttrInfos(#467,REQ)\0"
    "#1108.ExplAttrInfos(#14,OPT)\0"
    "#1106.Attributes(#1107,#1108)\0"
    "#1109.Composition(#1109)\0"
    "#1110.Composition(#1110)\0"
    "#1112.Supertypes(#947)\0"
    "#1112.Composition(#947,#1112)\0"
    "#1111.ExplAttrInfos(#1113,REQ)\0"
    "#1114.ExplAttrInfos(#14,OPT)\0"
    "#1115.ExplAttrInfos(#122,OPT)\0"
    "#1116.ExplAttrInfos(#63,REQ)\0"
    "#1117.ExplAttrInfos(#1067,OPT)\0"
    "#1110.Attributes(#1111,#1114,#1115,#1116,#1117)\0"
    "#1120.Supertypes(#1043)\0"
    "#1120.Composition(#1043,#806,#1120,#98)\0"
    "#1121.ExplAttrInfos(#48,OPT)\0"
    "#1122.ExplAttrInfos(#122,OPT)\0"
    "#1120.Attributes(#1121,#1122)\0"
    "#1123.Supertypes(#1048)\0"
    "#1123.Composition(#806,#98,#1048,#1123)\0"
    "#1124.ExplAttrInfos(#48,OPT)\0"
    "#1125.ExplAttrInfos(#122,OPT)\0"
    "#1123.Attributes(#1124,#1125,#1126)\0"
    "#1134.Supertypes(#798)\0"
    "#1134.Composition(#1134,#662,#798)\0"
    "#1136.Supertypes(#798)\0"
    "#1136.Composition(#1136,#662,#798)\0"
    "#1138.Supertypes(#798)\0"
    "#1138.Composition(#1138,#662,#798)\0"
    "#1140.Supertypes(#798)\0"
    "#1140.Composition(#1140,#662,#798)\0"
    "#1139.ExplAttrInfos(#1140,REQ)\0"
    "#1141.ExplAttrInfos(#13,REQ)\0"
    "#1138.Attributes(#1139,#1141)\0"
    "#1137.ExplAttrInfos(#1142,REQ)\0"
    "#1136.Attributes(#1137)\0"
    "#1135.ExplAttrInfos(#1143,REQ)\0"
    "#1134.Attributes(#1135)\0"
    "#1133.Supertypes(#1134)\0"
    "#1133.Composition(#1133,#1134,#662,#798)\0"
    "#1144.Supertypes(#1134)\0"
    "#1144.Composition(#1134,#1144,#662,#798)\0"
    "#1151.Supertypes(#1068)\0"
    "#1151.Composition(#1043,#806,#1068,#98,#1151)\0"
    "#1152.ExplAttrInfos(#14,OPT)\0"
    "#1151.Attributes(#1152)\0"
    "#1150.Supertypes(#1151)\0"
    "#1150.Composition(#1150,#1043,#806,#1068,#98,#1151)\0"
    "#1149.Supertypes(#1150)\0"
    "#1149.Composition(#1149,#1150,#1043,#806,#1068,#98,#1151)\0"
    "#1153.ExplAttrInfos(#367,OPT)\0"
    "#1149.Attributes(#1153)\0"
    "#1155.Supertypes(#1151)\0"
    "#1155.Composition(#1043,#806,#1068,#98,#1151,#1155)\0"
    "#1156.ExplAttrInfos(#355,OPT)\0"
    "#1155.Attributes(#1156)\0"
    "#1154.Supertypes(#1155)\0"
    "#1154.Composition(#1043,#806,#1068,#98,#1154,#1151,#1155)\0"
    "#1157.ExplAttrInfos(#527,OPT)\0"
    "#1158.ExplAttrInfos(#56,OPT)\0"
    "#1154.Attributes(#1157,#1158)\0"
    "#1163.Supertypes(#1068)\0"
    "#1163.Composition(#1163,#1043,#806,#1068,#98)\0"
    "#1164.ExplAttrInfos(#48,OPT)\0"
    "#1163.Attributes(#1164)\0"
    "#1165.Supertypes(#1068)\0"
    "#1165.Composition(#1043,#806,#1068,#98,#1165)\0"
    "#1168.Supertypes(#661)\0"
    "#1168.Composition(#1168,#661,#662)\0"
    "#1169.ExplAttrInfos(#1170,REQ)\0"
    "#1168.Attributes(#1169)\0"
    "#1171.Supertypes(#1136)\0"
    "#1171.Composition(#1136,#1171,#662,#798)\0"
    "#1172.ExplAttrInfos(#686,REQ)\0"
    "#1173.ExplAttrInfos(#13,REQ)\0"
    "#1.DefTypes(#2,#3,#4,#5,#9,#10,#11,#12,#13,#15,#16,#18,#20,#21,#22,#23,#24,#25,#26,#27,#28,#29,#30,#31,#32,#33,#34,#35,#36,#37,#38,#39,#40,#41,#42,#43,#44,#45,#46,#47,#48,#49,#50,#6,#51,#52,#53,#54,#14,#55,#56,#58,#59,#60,#61,#62,#63,#64,#65,#66,#67,#68,#69,#70,#71,#72,#73,#74,#75,#76,#77,#78,#79,#80,#81,#82,#84,#85,#86,#87,#88,#89,#7,#90,#91,#92,#93,#94,#95,#163,#164,#83,#165,#166,#167,#168,#169,#170,#171,#172,#173,#174,#175,#176,#177,#178,#179,#180,#181,#182,#122,#183,#184,#185,#186,#187,#188,#189,#190,#191,#192,#193,#194,#156,#195,#196,#197,#198,#199,#200,#201,#203,#205,#207,#209,#128,#211,#213,#215,#217,#219,#221,#223,#225,#227,#229,#231,#233,#235,#237,#239,#241,#243,#245,#247,#249,#251,#253,#255,#257,#154,#259,#261,#263,#265,#267,#269,#271,#273,#275,#277,#279,#281,#283,#285,#287,#289,#291,#293,#295,#297,#299,#301,#303,#305,#307,#309,#311,#313,#315,#317,#319,#321,#323,#325,#327,#329,#331,#333,#335,#337,#339,#341,#343,#345,#347,#349,#351,#353,#355,#357,#359,#361,#363,#365,#367,#369,#371,#373,#375,#377,#379,#381,#383,#385,#387,#389,#391,#393,#395,#397,#399,#401,#403,#405,#407,#409,#411,#413,#415,#417,#419,#421,#423,#425,#427,#429,#431,#433,#435,#437,#439,#441,#443,#445,#447,#449,#451,#453,#455,#457,#459,#461,#463,#465,#467,#469,#471,#473,#475,#477,#479,#481,#483,#485,#487,#489,#491,#493,#495,#497,#499,#501,#119,#503,#505,#507,#509,#511,#513,#515,#517,#519,#521,#523,#525,#527,#529,#531,#533,#535,#151,#537,#539,#541,#543,#545,#547,#549,#551,#553,#555,#557,#559,#561,#563,#565,#567,#569,#571,#573,#575,#577,#579,#581,#583,#585,#587,#589,#591,#593,#595,#597,#599,#601,#603,#605,#607,#609,#611,#613,#615,#658,#676,#678,#703,#725,#727,#735,#741,#756,#758,#774,#795,#805,#771,#808,#619,#832,#933,#935,#946,#850,#954,#967,#979,#990,#621,#1029,#1031,#1033,#1035,#1037,#1041,#924,#1056,#1067,#1077,#1079,#1119,#1128,#1130,#1132,#1146,#623,#842,#1148,#1160,#1162,#1167,#927,#1175,#901,#921,#1177,#1179,#1181,#649,#625,#1183,#1185)\0"
    "#1187.Supertypes(#1043)\0"
    "#1187.Composition(#1187,#1043,#806,#98)\0"
    "#1188.ExplAttrInfos(#48,OPT)\0"
    "#1187.Attributes(#1188)\0"
    "#1186.Supertypes(#1187)\0"
    "#1186.Composition(#1186,#1187,#1043,#806,#98)\0"
    "#1189.ExplAttrInfos(#203,OPT)\0"
    "#1190.ExplAttrInfos(#14,OPT)\0"
    "#1191.ExplAttrInfos(#122,OPT)\0"
    "#1186.Attributes(#1189,#1190,#1191)\0"
    "#1192.Supertypes(#1043)\0"
    "#1192.Composition(#1192,#1043,#806,#98)\0"
    "#1193.ExplAttrInfos(#615,REQ)\0"
    "#1192.Attributes(#1193)\0"
    "#1196.Supertypes(#1163)\0"
    "#1196.Composition(#1196,#1163,#1043,#806,#1068,#98)\0"
    "#1195.Supertypes(#1196)\0"
    "#1195.Composition(#1195,#1196,#1163,#1043,#806,#1068,#98)\0"
    "#1194.Supertypes(#1195)\0"
    "#1194.Composition(#1194,#1195,#1196,#1163,#1043,#806,#1068,#98)\0"
    "#1197.ExplAttrInfos(#209,OPT)\0"
    "#1194.Attributes(#1197)\0"
    "#1201.Supertypes(#1072)\0"
    "#1201.Composition(#1201,#806,#98,#1048,#1072)\0"
    "#1202.ExplAttrInfos(#14,OPT)\0"
    "#1200.Supertypes(#1201)\0"
    "#1200.Composition(#1200,#1201,#806,#98,#1048,#1072)\0"
    "#1199.Supertypes(#1200)\0"
    "#1199.Composition(#1199,#1200,#1201,#806,#98,#1048,#1072)\0"
    "#1198.Supertypes(#1199)\0"
    "#1198.Composition(#1198,#1199,#1200,#1201,#806,#98,#1048,#1072)\0"
    "#1203.ExplAttrInfos(#209,REQ)\0"
    "#1198.Attributes(#1203)\0"
    "#1205.Supertypes(#688)\0"
    "#1205.Composition(#661,#1205,#662,#688)\0"
    "#1206.ExplAttrInfos(#1133,REQ)\0"
    "#1205.Attributes(#1206)\0"
    "#1204.Supertypes(#1205)\0"
    "#1204.Composition(#1204,#661,#1205,#662,#688)\0"
    "#1207.Supertypes(#1204)\0"
    "#1207.Composition(#1204,#1207,#661,#1205,#662,#688)\0"
    "#1207.Attributes(#1208)\0"
    "#1210.Supertypes(#1171)\0"
    "#1210.Composition(#1210,#1136,#1171,#662,#798)\0"
    "#1213.Supertypes(#1196)\0"
    "#1213.Composition(#1196,#1213,#1163,#1043,#806,#1068,#98)\0"
    "#1212.Supertypes(#1213)\0"
    "#1212.Composition(#1196,#1213,#1163,#1212,#1043,#806,#1068,#98)\0"
    "#1211.Composition(#1211,#1196,#1213,#1163,#1212,#1043,#806,#1068,#98)\0"
    "#1214.ExplAttrInfos(#213,OPT)\0"
    "#1211.Attributes(#1214)\0"
    "#1216.Supertypes(#1213)\0"
    "#1216.Composition(#1196,#1213,#1163,#1216,#1043,#806,#1068,#98)\0"
    "#1215.Composition(#1215,#1196,#1213,#1163,#1216,#1043,#806,#1068,#98)\0"
    "#1217.ExplAttrInfos(#211,OPT)\0"
    "#1215.Attributes(#1217)\0"
    "#1220.Supertypes(#1200)\0"
    "#1220.Composition(#1200,#1220,#1201,#806,#98,#1048,#1072)\0"
    "#1219.Supertypes(#1220)\0"
    "#1219.Composition(#1200,#1220,#1201,#1219,#806,#98,#1048,#1072)\0"
    "#1218.Supertypes(#1219)\0"
    "#1218.Composition(#1218,#1200,#1220,#1201,#1219,#806,#98,#1048,#1072)\0"
    "#1221.ExplAttrInfos(#211,REQ)\0"
    "#1218.Attributes(#1221)\0"
    "#1223.Supertypes(#1220)\0"
    "#1223.Composition(#1200,#1220,#1201,#1223,#806,#98,#1048,#1072)\0"
    "#1222.Composition(#1222,#1200,#1220,#1201,#1223,#806,#98,#1048,#1072)\0"
    "#1224.ExplAttrInfos(#213,REQ)\0"
    "#1222.Attributes(#1224)\0"
    "#1226.Supertypes(#1213)\0"
    "#1226.Composition(#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1225.Supertypes(#1226)\0"
    "#1225.Composition(#1225,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1227.ExplAttrInfos(#215,OPT)\0"
    "#1225.Attributes(#1227)\0"
    "#1229.Supertypes(#1220)\0"
    "#1229.Composition(#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1228.Supertypes(#1229)\0"
    "#1228.Composition(#1228,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1230.ExplAttrInfos(#215,REQ)\0"
    "#1228.Attributes(#1230)\0"
    "#1231.Supertypes(#1195)\0"
    "#1231.Composition(#1231,#1195,#1196,#1163,#1043,#806,#1068,#98)\0"
    "#1232.ExplAttrInfos(#217,OPT)\0"
    "#1231.Attributes(#1232)\0"
    "#1233.Supertypes(#1199)\0"
    "#1233.Composition(#1233,#1199,#1200,#1201,#806,#98,#1048,#1072)\0"
    "#1234.ExplAttrInfos(#217,REQ)\0"
    "#1233.Attributes(#1234)\0"
    "#1237.Supertypes(#1068)\0"
    "#1237.Composition(#1043,#806,#1237,#1068,#98)\0"
    "#1236.Composition(#1236,#1043,#806,#1237,#1068,#98)\0"
    "#1238.ExplAttrInfos(#778,REQ)\0"
    "#1235.Supertypes(#1236)\0"
    "#1235.Composition(#1235,#1236,#1043,#806,#1237,#1068,#98)\0"
    "#1239.ExplAttrInfos(#219,OPT)\0"
    "#1235.Attributes(#1239)\0"
    "#1240.Supertypes(#661)\0"
    "#1240.Composition(#1240,#661,#662)\0"
    "#1241.ExplAttrInfos(#56,OPT)\0"
    "#1244.Supertypes(#661)\0"
    "#1244.Composition(#1244,#661,#662)\0"
    "#1245.ExplAttrInfos(#13,OPT)\0"
    "#1246.ExplAttrInfos(#14,OPT)\0"
    "#1247.ExplAttrInfos(#14,OPT)\0"
    "#1244.Attributes(#1245,#1246,#1247)\0"
    "#1243.Supertypes(#1244)\0"
    "#1243.Composition(#1243,#1244,#661,#662)\0"
    "#1249.Supertypes(#777)\0"
    "#1249.Composition(#777,#778,#1249,#661,#662)\0"
    "#1250.ExplAttrInfos(#664,REQ)\0"
    "#1251.ExplAttrInfos(#89,REQ)\0"
    "#1252.ExplAttrInfos(#90,REQ)\0"
    "#1249.Attributes(#1250,#1251,#1252)\0"
    "#1248.ExplAttrInfos(#1249,REQ)\0"
    "#1243.Attributes(#1248)\0"
    "#1242.ExplAttrInfos(#1253,REQ)\0"
    "#1240.Attributes(#1241,#1242)\0"
    "#1255.Supertypes(#1244)\0"
    "#1255.Composition(#1244,#1255,#661,#662)\0"
    "#1256.ExplAttrInfos(#56,REQ)\0"
    "#1257.ExplAttrInfos(#90,REQ)\0"
    "#1258.ExplAttrInfos(#56,REQ)\0"
    "#1259.ExplAttrInfos(#83,REQ)\0"
    "#1255.Attributes(#1256,#1257,#1258,#1259)\0"
    "#1254.Supertypes(#1255)\0"
    "#1254.Composition(#1244,#1254,#1255,#661,#662)\0"
    "#1260.ExplAttrInfos(#90,REQ)\0"
    "#1261.ExplAttrInfos(#13,REQ)\0"
    "#1254.Attributes(#1260,#1261)\0"
    "#1262.Supertypes(#1255)\0"
    "#1262.Composition(#1244,#1262,#1255,#661,#662)\0"
    "#1263.Supertypes(#1255)\0"
    "#1263.Composition(#1244,#1263,#1255,#661,#662)\0"
    "#1264.ExplAttrInfos(#90,REQ)\0"
    "#1265.ExplAttrInfos(#13,REQ)\0"
    "#1263.Attributes(#1264,#1265)\0"
    "#1266.Supertypes(#661)\0"
    "#1266.Composition(#1266,#661,#662)\0"
    "#1267.ExplAttrInfos(#1268,REQ)\0"
    "#1266.Attributes(#1267)\0"
    "#1269.Supertypes(#777)\0"
    "#1269.Composition(#1269,#777,#778,#661,#662)\0"
    "#1270.ExplAttrInfos(#1240,REQ)\0"
    "#1271.ExplAttrInfos(#1266,OPT)\0"
    "#1272.ExplAttrInfos(#14,OPT)\0"
    "#1269.Attributes(#1270,#1271,#1272)\0"
    "#1273.Supertypes(#1068)\0"
    "#1273.Composition(#1273,#1043,#806,#1068,#98)\0"
    "#1274.Supertypes(#661)\0"
    "#1274.Composition(#1274,#661,#662)\0"
    "#1275.ExplAttrInfos(#778,REQ)\0"
    "#1276.ExplAttrInfos(#1277,OPT)\0"
    "#1274.Attributes(#1275,#1276)\0"
    "#1279.Composition(#1279)\0"
    "#1280.ExplAttrInfos(#14,OPT)\0"
    "#1281.ExplAttrInfos(#122,OPT)\0"
    "#1279.Attributes(#1280,#1281)\0"
    "#1278.Supertypes(#1279)\0"
    "#1278.Composition(#1278,#1279)\0"
    "#1282.ExplAttrInfos(#1080,REQ)\0"
    "#1283.ExplAttrInfos(#1284,REQ)\0"
    "#1278.Attributes(#1282,#1283)\0"
    "#1285.Supertypes(#1106)\0"
    "#1285.Composition(#1285,#1106)\0"
    "#1286.ExplAttrInfos(#778,REQ)\0"
    "#1287.Supertypes(#1106)\0"
    "#1287.Composition(#1287,#1106)\0"
    "#1288.ExplAttrInfos(#777,REQ)\0"
    "#1289.Supertypes(#1285)\0"
    "#1289.Composition(#1285,#1289,#1106)\0"
    "#1290.ExplAttrInfos(#1291,REQ)\0"
    "#1289.Attributes(#1290)\0"
    "#1293.Supertypes(#1043)\0"
    "#1293.Composition(#1293,#1043,#806,#98)\0"
    "#1292.Supertypes(#1293)\0"
    "#1292.Composition(#1292,#1293,#1043,#806,#98)\0"
    "#1294.ExplAttrInfos(#48,OPT)\0"
    "#1296.Supertypes(#991)\0"
    "#1296.Composition(#991,#1296)\0"
    "#1297.ExplAttrInfos(#1296,OPT)\0"
    "#1298.ExplAttrInfos(#1296,OPT)\0"
    "#1299.ExplAttrInfos(#615,OPT)\0"
    "#1300.ExplAttrInfos(#615,OPT)\0"
    "#1301.ExplAttrInfos(#105,OPT)\0"
    "#1302.ExplAttrInfos(#24,OPT)\0"
    "#1303.ExplAttrInfos(#1296,OPT)\0"
    "#1292.Attributes(#1294,#1295,#1297,#1298,#1299,#1300,#1301,#1302,#1303)\0"
    "#1305.Supertypes(#1106)\0"
    "#1305.Composition(#1305,#1106)\0"
    "#1306.ExplAttrInfos(#659,OPT)\0"
    "#1305.Attributes(#1306)\0"
    "#1304.Supertypes(#1305)\0"
    "#1304.Composition(#1304,#1305,#1106)\0"
    "#1307.ExplAttrInfos(#90,REQ)\0"
    "#1308.ExplAttrInfos(#90,REQ)\0"
    "#1309.ExplAttrInfos(#90,REQ)\0"
    "#1310.ExplAttrInfos(#90,REQ)\0"
    "#1311.ExplAttrInfos(#82,OPT)\0"
    "#1312.ExplAttrInfos(#90,REQ)\0"
    "#1313.ExplAttrInfos(#90,OPT)\0"
    "#1314.ExplAttrInfos(#82,OPT)\0"
    "#1315.ExplAttrInfos(#82,OPT)\0"
    "#1316.ExplAttrInfos(#89,OPT)\0"
    "#1317.ExplAttrInfos(#82,OPT)\0"
    "#1318.ExplAttrInfos(#89,OPT)\0"
    "#1304.Attributes(#1307,#1308,#1309,#1310,#1311,#1312,#1313,#1314,#1315,#1316,#1317,#1318)\0"
    "#1319.Supertypes(#1212)\0"
    "#1319.Composition(#1319,#1196,#1213,#1163,#1212,#1043,#806,#1068,#98)\0"
    "#1320.ExplAttrInfos(#229,OPT)\0"
    "#1319.Attributes(#1320)\0"
    "#1321.Supertypes(#1223)\0"
    "#1321.Composition(#1321,#1200,#1220,#1201,#1223,#806,#98,#1048,#1072)\0"
    "#1322.ExplAttrInfos(#229,REQ)\0"
    "#1321.Attributes(#1322)\0"
    "#1323.Supertypes(#660)\0"
    "#1323.Composition(#1323,#661,#660,#662)\0"
    "#1324.ExplAttrInfos(#669,OPT)\0"
    "#1323.Attributes(#1324)\0"
    "#1325.Supertypes(#777)\0"
    "#1325.Composition(#777,#1325,#778,#661,#662)\0"
    "#1326.ExplAttrInfos(#6,REQ)\0"
    "#1327.ExplAttrInfos(#1328,REQ)\0"
    "#1329.ExplAttrInfos(#231,REQ)\0"
    "#1330.ExplAttrInfos(#63,REQ)\0"
    "#1331.ExplAttrInfos(#63,REQ)\0"
    "#1325.Attributes(#1326,#1327,#1329,#1330,#1331)\0"
    "#1332.Supertypes(#1325)\0"
    "#1332.Composition(#777,#1325,#1332,#778,#661,#662)\0"
    "#1337.ExplAttrInfos(#407,REQ)\0"
    "#1332.Attributes(#1333,#1335,#1337)\0"
    "#1339.Supertypes(#686)\0"
    "#1339.Composition(#1339,#661,#662,#686)\0"
    "#1338.Supertypes(#1339)\0"
    "#1338.Composition(#1339,#1338,#661,#662,#686)\0"
    "#1340.ExplAttrInfos(#6,REQ)\0"
    "#1341.ExplAttrInfos(#6,REQ)\0"
    "#1342.ExplAttrInfos(#1344,REQ)\0"
    "#1345.ExplAttrInfos(#233,REQ)\0"
    "#1346.ExplAttrInfos(#63,REQ)\0"
    "#1347.ExplAttrInfos(#63,REQ)\0"
    "#1348.ExplAttrInfos(#63,REQ)\0"
    "#1338.Attributes(#1340,#1341,#1342,#1345,#1346,#1347,#1348)\0"
    "#1349.Supertypes(#1338)\0"
    "#1349.Composition(#1339,#1338,#1349,#661,#662,#686)\0"
    "#1350.ExplAttrInfos(#1351,REQ)\0"
    "#1352.ExplAttrInfos(#1353,REQ)\0"
    "#1354.ExplAttrInfos(#1355,REQ)\0"
    "#1356.ExplAttrInfos(#1357,REQ)\0"
    "#1358.ExplAttrInfos(#407,REQ)\0"
    "#1349.Attributes(#1350,#1352,#1354,#1356,#1358)\0"
    "#1360.Supertypes(#1163)\0"
    "#1360.Composition(#1360,#1163,#1043,#806,#1068,#98)\0"
    "#1359.Supertypes(#1360)\0"
    "#1359.Composition(#1359,#1360,#1163,#1043,#806,#1068,#98)\0"
    "#1361.ExplAttrInfos(#235,OPT)\0"
    "#1359.Attributes(#1361)\0"
    "#1362.Supertypes(#1359)\0"
    "#1362.Composition(#1359,#1362,#1360,#1163,#1043,#806,#1068,#98)\0"
    "#1364.Supertypes(#1201)\0"
    "#1364.Composition(#1364,#1201,#806,#98,#1048,#1072)\0"
    "#1363.Supertypes(#1364)\0"
    "#1363.Composition(#1363,#1364,#1201,#806,#98,#1048,#1072)\0"
    "#1365.ExplAttrInfos(#235,REQ)\0"
    "#1363.Attributes(#1365)\0"
    "#1366.Supertypes(#886)\0"
    "#1366.Composition(#1366,#729,#886)\0"
    "#1367.ExplAttrInfos(#48,REQ)\0"
    "#1368.ExplAttrInfos(#12,REQ)\0"
    "#1366.Attributes(#1367,#1368)\0"
    "#1369.Supertypes(#682)\0"
    "#1369.Composition(#1369,#682,#661,#662)\0"
    "#1370.ExplAttrInfos(#90,REQ)\0"
    "#1371.ExplAttrInfos(#90,REQ)\0"
    "#1372.ExplAttrInfos(#90,REQ)\0"
    "#1369.Attributes(#1370,#1371,#1372)\0"
    "#1373.Supertypes(#1226)\0"
    "#1373.Composition(#1373,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1374.ExplAttrInfos(#239,OPT)\0"
    "#1373.Attributes(#1374)\0"
    "#1375.Supertypes(#1229)\0"
    "#1375.Composition(#1375,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1376.ExplAttrInfos(#239,REQ)\0"
    "#1375.Attributes(#1376)\0"
    "#1377.Supertypes(#679)\0"
    "#1377.Composition(#1377,#679,#661,#662)\0"
    "#1378.Composition(#1378)\0"
    "#1379.ExplAttrInfos(#14,OPT)\0"
    "#1378.Attributes(#1379)\0"
    "#1380.Supertypes(#775)\0"
    "#1380.Composition(#1380,#777,#776,#775,#778,#661,#662)\0"
    "#1381.Supertypes(#1378)\0"
    "#1381.Composition(#1378,#1381)\0"
    "#1382.ExplAttrInfos(#1035,OPT)\0"
    "#1383.ExplAttrInfos(#1035,OPT)\0"
    "#1384.ExplAttrInfos(#1035,OPT)\0"
    "#1385.ExplAttrInfos(#1031,OPT)\0"
    "#1386.ExplAttrInfos(#1031,OPT)\0"
    "#1387.ExplAttrInfos(#1031,OPT)\0"
    "#1381.Attributes(#1382,#1383,#1384,#1385,#1386,#1387)\0"
    "#1388.Supertypes(#1378)\0"
    "#1388.Composition(#1378,#1388)\0"
    "#1389.ExplAttrInfos(#1033,OPT)\0"
    "#1390.ExplAttrInfos(#1033,OPT)\0"
    "#1391.ExplAttrInfos(#1033,OPT)\0"
    "#1388.Attributes(#1389,#1390,#1391)\0"
    "#1392.Supertypes(#1378)\0"
    "#1392.Composition(#1378,#1392)\0"
    "#1393.ExplAttrInfos(#1179,OPT)\0"
    "#1394.ExplAttrInfos(#1179,OPT)\0"
    "#1395.ExplAttrInfos(#1179,OPT)\0"
    "#1396.ExplAttrInfos(#1130,OPT)\0"
    "#1397.ExplAttrInfos(#1130,OPT)\0"
    "#1398.ExplAttrInfos(#1130,OPT)\0"
    "#1392.Attributes(#1393,#1394,#1395,#1396,#1397,#1398)\0"
    "#1399.Supertypes(#1392)\0"
    "#1399.Composition(#1378,#1392,#1399)\0"
    "#1400.ExplAttrInfos(#1185,OPT)\0"
    "#1399.Attributes(#1400)\0"
    "#1401.Supertypes(#661)\0"
    "#1401.Composition(#1401,#661,#662)\0"
    "#1402.ExplAttrInfos(#664,REQ)\0"
    "#1403.ExplAttrInfos(#90,REQ)\0"
    "#1404.ExplAttrInfos(#90,REQ)\0"
    "#1405.ExplAttrInfos(#90,REQ)\0"
    "#1401.Attributes(#1402,#1403,#1404,#1405)\0"
    "#1406.Supertypes(#684)\0"
    "#1406.Composition(#1406,#661,#684,#662)\0"
    "#1407.ExplAttrInfos(#1401,REQ)\0"
    "#1406.Attributes(#1407)\0"
    "#1408.Supertypes(#1155)\0"
    "#1408.Composition(#1408,#1043,#806,#1068,#98,#1151,#1155)\0"
    "#1409.ExplAttrInfos(#56,OPT)\0"
    "#1410.ExplAttrInfos(#56,OPT)\0"
    "#1412.Supertypes(#125)\0"
    "#1412.Composition(#125,#1412)\0"
    "#1413.ExplAttrInfos(#14,OPT)\0"
    "#1414.ExplAttrInfos(#1415,OPT)\0"
    "#1416.ExplAttrInfos(#14,OPT)\0"
    "#1417.ExplAttrInfos(#14,OPT)\0"
    "#1418.ExplAttrInfos(#14,OPT)\0"
    "#1419.ExplAttrInfos(#14,OPT)\0"
    "#1420.ExplAttrInfos(#14,OPT)\0"
    "#1412.Attributes(#1413,#1414,#1416,#1417,#1418,#1419,#1420)\0"
    "#1411.ExplAttrInfos(#1412,OPT)\0"
    "#1408.Attributes(#1409,#1410,#1411)\0"
    "#1422.Supertypes(#1163)\0"
    "#1422.Composition(#1163,#1422,#1043,#806,#1068,#98)\0"
    "#1421.Supertypes(#1422)\0"
    "#1421.Composition(#1421,#1163,#1422,#1043,#806,#1068,#98)\0"
    "#1423.ExplAttrInfos(#243,OPT)\0"
    "#1421.Attributes(#1423)\0"
    "#1425.Supertypes(#1201)\0"
    "#1425.Composition(#1425,#1201,#806,#98,#1048,#1072)\0"
    "#1424.Supertypes(#1425)\0"
    "#1424.Composition(#1424,#1425,#1201,#806,#98,#1048,#1072)\0"
    "#1426.ExplAttrInfos(#243,REQ)\0"
    "#1424.Attributes(#1426)\0"
    "#1427.Supertypes(#1360)\0"
    "#1427.Composition(#1360,#1427,#1163,#1043,#806,#1068,#98)\0"
    "#1428.ExplAttrInfos(#245,OPT)\0"
    "#1429.Supertypes(#1364)\0"
    "#1429.Composition(#1429,#1364,#1201,#806,#98,#1048,#1072)\0"
    "#1430.ExplAttrInfos(#245,REQ)\0"
    "#1431.Supertypes(#1155)\0"
    "#1431.Composition(#1431,#1043,#806,#1068,#98,#1151,#1155)\0"
    "#1432.ExplAttrInfos(#56,OPT)\0"
    "#1431.Attributes(#1432)\0"
    "#1434.Supertypes(#1293)\0"
    "#1434.Composition(#1293,#1043,#806,#98,#1434)\0"
    "#1433.Composition(#1433,#1293,#1043,#806,#98,#1434)\0"
    "#1435.ExplAttrInfos(#247,OPT)\0"
    "#1436.ExplAttrInfos(#14,OPT)\0"
    "#1433.Attributes(#1435,#1436)\0"
    "#1437.Supertypes(#1226)\0"
    "#1437.Composition(#1437,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1438.ExplAttrInfos(#249,OPT)\0"
    "#1437.Attributes(#1438)\0"
    "#1439.Supertypes(#1229)\0"
    "#1439.Composition(#1439,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1440.ExplAttrInfos(#249,REQ)\0"
    "#1439.Attributes(#1440)\0"
    "#1441.Supertypes(#1305)\0"
    "#1441.Composition(#1441,#1305,#1106)\0"
    "#1442.ExplAttrInfos(#90,REQ)\0"
    "#1443.ExplAttrInfos(#90,REQ)\0"
    "#1444.ExplAttrInfos(#90,REQ)\0"
    "#1445.ExplAttrInfos(#90,REQ)\0"
    "#1446.ExplAttrInfos(#82,OPT)\0"
    "#1441.Attributes(#1442,#1443,#1444,#1445,#1446)\0"
    "#1448.Supertypes(#1213)\0"
    "#1448.Composition(#1196,#1213,#1163,#1448,#1043,#806,#1068,#98)\0"
    "#1447.Supertypes(#1448)\0"
    "#1447.Composition(#1447,#1196,#1213,#1163,#1448,#1043,#806,#1068,#98)\0"
    "#1449.ExplAttrInfos(#251,OPT)\0"
    "#1447.Attributes(#1449)\0"
    "#1451.Supertypes(#1220)\0"
    "#1451.Composition(#1200,#1220,#1201,#1451,#806,#98,#1048,#1072)\0"
    "#1450.Supertypes(#1451)\0"
    "#1450.Composition(#1450,#1200,#1220,#1201,#1451,#806,#98,#1048,#1072)\0"
    "#1452.ExplAttrInfos(#251,REQ)\0"
    "#1450.Attributes(#1452)\0"
    "#1454.Supertypes(#1213)\0"
    "#1454.Composition(#1196,#1213,#1163,#1454,#1043,#806,#1068,#98)\0"
    "#1453.Supertypes(#1454)\0"
    "#1453.Composition(#1453,#1196,#1213,#1163,#1454,#1043,#806,#1068,#98)\0"
    "#1455.ExplAttrInfos(#253,OPT)\0"
    "#1453.Attributes(#1455)\0"
    "#1457.Supertypes(#1220)\0"
    "#1457.Composition(#1200,#1220,#1201,#1457,#806,#98,#1048,#1072)\0"
    "#1456.Supertypes(#1457)\0"
    "#1456.Composition(#1456,#1200,#1220,#1201,#1457,#806,#98,#1048,#1072)\0"
    "#1458.ExplAttrInfos(#253,REQ)\0"
    "#1456.Attributes(#1458)\0"
    "#1459.Supertypes(#1448)\0"
    "#1459.Composition(#1459,#1196,#1213,#1163,#1448,#1043,#806,#1068,#98)\0"
    "#1460.ExplAttrInfos(#255,OPT)\0"
    "#1459.Attributes(#1460)\0"
    "#1461.Supertypes(#1451)\0"
    "#1461.Composition(#1461,#1200,#1220,#1201,#1451,#806,#98,#1048,#1072)\0"
    "#1462.ExplAttrInfos(#255,REQ)\0"
    "#1461.Attributes(#1462)\0"
    "#1463.Supertypes(#1454)\0"
    "#1463.Composition(#1463,#1196,#1213,#1163,#1454,#1043,#806,#1068,#98)\0"
    "#1464.ExplAttrInfos(#257,OPT)\0"
    "#1463.Attributes(#1464)\0"
    "#1465.Supertypes(#1457)\0"
    "#1465.Composition(#1465,#1200,#1220,#1201,#1457,#806,#98,#1048,#1072)\0"
    "#1466.ExplAttrInfos(#257,REQ)\0"
    "#1465.Attributes(#1466)\0"
    "#1467.Supertypes(#693)\0"
    "#1467.Composition(#693,#1467,#661,#662)\0"
    "#1468.ExplAttrInfos(#1470,REQ)\0"
    "#1471.ExplAttrInfos(#1472,OPT)\0"
    "#1467.Attributes(#1468,#1471)\0"
    "#1473.Supertypes(#891)\0"
    "#1473.Composition(#892,#891,#1473,#661,#662)\0"
    "#1474.ExplAttrInfos(#165,OPT)\0"
    "#1475.Supertypes(#892)\0"
    "#1475.Composition(#892,#1475,#661,#662)\0"
    "#1476.ExplAttrInfos(#669,OPT)\0"
    "#1477.Supertypes(#1475)\0"
    "#1477.Composition(#892,#1475,#1477,#661,#662)\0"
    "#1478.ExplAttrInfos(#165,OPT)\0"
    "#1479.ExplAttrInfos(#165,OPT)\0"
    "#1477.Attributes(#1478,#1479)\0"
    "#1480.Supertypes(#1287)\0"
    "#1480.Composition(#1287,#1480,#1106)\0"
    "#1481.ExplAttrInfos(#90,REQ)\0"
    "#1482.Supertypes(#1226)\0"
    "#1482.Composition(#1482,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1483.ExplAttrInfos(#259,OPT)\0"
    "#1482.Attributes(#1483)\0"
    "#1484.Supertypes(#1229)\0"
    "#1484.Composition(#1484,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1485.ExplAttrInfos(#259,REQ)\0"
    "#1486.Supertypes(#1360)\0"
    "#1486.Composition(#1360,#1486,#1163,#1043,#806,#1068,#98)\0"
    "#1487.ExplAttrInfos(#261,OPT)\0"
    "#1486.Attributes(#1487)\0"
    "#1488.Supertypes(#1364)\0"
    "#1488.Composition(#1364,#1488,#1201,#806,#98,#1048,#1072)\0"
    "#1489.ExplAttrInfos(#261,REQ)\0"
    "#1488.Attributes(#1489)\0"
    "#1.Entities(#1186,#1192,#116,#1194,#1198,#125,#1204,#1207,#1210,#1211,#1215,#1218,#1222,#1225,#1228,#1231,#1233,#1235,#1240,#1243,#1244,#1254,#1262,#1263,#1266,#1255,#1269,#1273,#1274,#144,#991,#1080,#1278,#1285,#1287,#1289,#1292,#1304,#1319,#1321,#1323,#659,#672,#1325,#1332,#1338,#1349,#1359,#1362,#1363,#1366,#1369,#1373,#1375,#1377,#679,#1378,#1380,#1381,#1388,#1392,#1399,#777,#1339,#1401,#1406,#1408,#1360,#1421,#1424,#1427,#1429,#1364,#1431,#1433,#1437,#1439,#1441,#1447,#1450,#1453,#1456,#1459,#1461,#1463,#1465,#664,#693,#1467,#692,#892,#891,#1473,#1475,#1477,#1480,#1482,#1484,#1486,#1488)\0"
    "#1491.Supertypes(#778)\0"
    "#1491.Composition(#1491,#778,#661,#662)\0"
    "#1492.ExplAttrInfos(#676,REQ)\0"
    "#1490.Supertypes(#1491)\0"
    "#1490.Composition(#1490,#1491,#778,#661,#662)\0"
    "#1493.ExplAttrInfos(#90,REQ)\0"
    "#1490.Attributes(#1493)\0"
    "#1495.Supertypes(#1305)\0"
    "#1495.Composition(#1495,#1305,#1106)\0"
    "#1496.ExplAttrInfos(#90,REQ)\0"
    "#1494.Supertypes(#1495)\0"
    "#1494.Composition(#1494,#1495,#1305,#1106)\0"
    "#1497.ExplAttrInfos(#90,REQ)\0"
    "#1494.Attributes(#1497)\0"
    "#1498.Supertypes(#1249)\0"
    "#1498.Composition(#777,#1498,#778,#1249,#661,#662)\0"
    "#1499.ExplAttrInfos(#90,REQ)\0"
    "#1500.ExplAttrInfos(#13,REQ)\0"
    "#1498.Attributes(#1499,#1500)\0"
    "#1501.Supertypes(#1163)\0"
    "#1501.Composition(#1501,#1163,#1043,#806,#1068,#98)\0"
    "#1502.Supertypes(#1201)\0"
    "#1502.Composition(#1502,#1201,#806,#98,#1048,#1072)\0"
    "#1503.Supertypes(#1226)\0"
    "#1503.Composition(#1503,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1504.ExplAttrInfos(#263,OPT)\0"
    "#1503.Attributes(#1504)\0"
    "#1505.Supertypes(#1229)\0"
    "#1505.Composition(#1505,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1506.ExplAttrInfos(#263,REQ)\0"
    "#1505.Attributes(#1506)\0"
    "#1507.Supertypes(#729)\0"
    "#1507.Composition(#1507,#729)\0"
    "#1508.ExplAttrInfos(#1510,REQ)\0"
    "#1507.Attributes(#1508)\0"
    "#1511.Supertypes(#1360)\0"
    "#1511.Composition(#1360,#1511,#1163,#1043,#806,#1068,#98)\0"
    "#1512.ExplAttrInfos(#265,OPT)\0"
    "#1511.Attributes(#1512)\0"
    "#1513.Supertypes(#1511)\0"
    "#1513.Composition(#1360,#1511,#1513,#1163,#1043,#806,#1068,#98)\0"
    "#1514.Supertypes(#1364)\0"
    "#1514.Composition(#1364,#1514,#1201,#806,#98,#1048,#1072)\0"
    "#1515.ExplAttrInfos(#265,REQ)\0"
    "#1516.Supertypes(#1212)\0"
    "#1516.Composition(#1516,#1196,#1213,#1163,#1212,#1043,#806,#1068,#98)\0"
    "#1517.ExplAttrInfos(#267,OPT)\0"
    "#1518.Supertypes(#1223)\0"
    "#1518.Composition(#1518,#1200,#1220,#1201,#1223,#806,#98,#1048,#1072)\0"
    "#1519.ExplAttrInfos(#267,REQ)\0"
    "#1518.Attributes(#1519)\0"
    "#1521.Supertypes(#1109)\0"
    "#1521.Composition(#1521,#1109)\0"
    "#1522.ExplAttrInfos(#48,REQ)\0"
    "#1523.ExplAttrInfos(#122,OPT)\0"
    "#1521.Attributes(#1522,#1523)\0"
    "#1520.Supertypes(#1521)\0"
    "#1520.Composition(#1520,#1521,#1109)\0"
    "#1524.ExplAttrInfos(#48,REQ)\0"
    "#1525.ExplAttrInfos(#1526,REQ)\0"
    "#1520.Attributes(#1524,#1525)\0"
    "#1529.Supertypes(#97)\0"
    "#1529.Composition(#97,#1529,#98)\0"
    "#1528.Supertypes(#1529)\0"
    "#1528.Composition(#97,#1528,#1529,#98)\0"
    "#1527.Composition(#1527,#97,#1528,#1529,#98)\0"
    "#1530.ExplAttrInfos(#14,OPT)\0"
    "#1531.ExplAttrInfos(#269,OPT)\0"
    "#1532.ExplAttrInfos(#1533,OPT)\0"
    "#1527.Attributes(#1530,#1531,#1532)\0"
    "#1534.Supertypes(#1106)\0"
    "#1534.Composition(#1534,#1106)\0"
    "#1535.ExplAttrInfos(#1536,REQ)\0"
    "#1537.ExplAttrInfos(#14,OPT)\0"
    "#1534.Attributes(#1535,#1537)\0"
    "#1539.Supertypes(#1213)\0"
    "#1539.Composition(#1196,#1213,#1163,#1539,#1043,#806,#1068,#98)\0"
    "#1538.Composition(#1538,#1196,#1213,#1163,#1539,#1043,#806,#1068,#98)\0"
    "#1540.ExplAttrInfos(#271,OPT)\0"
    "#1538.Attributes(#1540)\0"
    "#1542.Supertypes(#1220)\0"
    "#1542.Composition(#1200,#1220,#1201,#1542,#806,#98,#1048,#1072)\0"
    "#1541.Supertypes(#1542)\0"
    "#1541.Composition(#1541,#1200,#1220,#1201,#1542,#806,#98,#1048,#1072)\0"
    "#1543.ExplAttrInfos(#271,REQ)\0"
    "#1541.Attributes(#1543)\0"
    "#1544.Supertypes(#1226)\0"
    "#1544.Composition(#1544,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1545.ExplAttrInfos(#273,OPT)\0"
    "#1544.Attributes(#1545)\0"
    "#1546.Supertypes(#1229)\0"
    "#1546.Composition(#1546,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1547.ExplAttrInfos(#273,REQ)\0"
    "#1546.Attributes(#1547)\0"
    "#1549.Composition(#1549)\0"
    "#1548.Supertypes(#1549)\0"
    "#1548.Composition(#1548,#1549)\0"
    "#1550.ExplAttrInfos(#805,REQ)\0"
    "#1551.ExplAttrInfos(#805,OPT)\0"
    "#1548.Attributes(#1550,#1551)\0"
    "#1553.Supertypes(#1549)\0"
    "#1553.Composition(#1549,#1553)\0"
    "#1554.ExplAttrInfos(#1041,REQ)\0"
    "#1555.ExplAttrInfos(#1041,OPT)\0"
    "#1553.Attributes(#1554,#1555)\0"
    "#1552.Supertypes(#1553)\0"
    "#1552.Composition(#1549,#1552,#1553)\0"
    "#1556.ExplAttrInfos(#56,OPT)\0"
    "#1557.ExplAttrInfos(#56,OPT)\0"
    "#1558.ExplAttrInfos(#56,OPT)\0"
    "#1552.Attributes(#1556,#1557,#1558)\0"
    "#1559.Supertypes(#1549)\0"
    "#1559.Composition(#1549,#1559)\0"
    "#1560.ExplAttrInfos(#1175,REQ)\0"
    "#1561.ExplAttrInfos(#1175,OPT)\0"
    "#1559.Attributes(#1560,#1561)\0"
    "#1562.Supertypes(#1549)\0"
    "#1562.Composition(#1549,#1562)\0"
    "#1563.ExplAttrInfos(#1148,REQ)\0"
    "#1564.ExplAttrInfos(#1148,OPT)\0"
    "#1562.Attributes(#1563,#1564)\0"
    "#1566.Supertypes(#1120)\0"
    "#1566.Composition(#1566,#1043,#806,#1120,#98)\0"
    "#1569.Composition(#1569)\0"
    "#1570.ExplAttrInfos(#14,OPT)\0"
    "#1571.ExplAttrInfos(#305,OPT)\0"
    "#1572.ExplAttrInfos(#14,OPT)\0"
    "#1569.Attributes(#1570,#1571,#1572)\0"
    "#1568.Supertypes(#1569)\0"
    "#1568.Composition(#1568,#1569)\0"
    "#1573.ExplAttrInfos(#31,OPT)\0"
    "#1574.ExplAttrInfos(#92,OPT)\0"
    "#1575.ExplAttrInfos(#25,OPT)\0"
    "#1576.ExplAttrInfos(#25,OPT)\0"
    "#1577.ExplAttrInfos(#14,OPT)\0"
    "#1578.ExplAttrInfos(#31,OPT)\0"
    "#1579.ExplAttrInfos(#13,OPT)\0"
    "#1580.ExplAttrInfos(#25,OPT)\0"
    "#1581.ExplAttrInfos(#31,OPT)\0"
    "#1582.ExplAttrInfos(#92,OPT)\0"
    "#1583.ExplAttrInfos(#25,OPT)\0"
    "#1584.ExplAttrInfos(#25,OPT)\0"
    "#1585.ExplAttrInfos(#31,OPT)\0"
    "#1586.ExplAttrInfos(#92,OPT)\0"
    "#1587.ExplAttrInfos(#92,OPT)\0"
    "#1568.Attributes(#1573,#1574,#1575,#1576,#1577,#1578,#1579,#1580,#1581,#1582,#1583,#1584,#1585,#1586,#1587)\0"
    "#1567.ExplAttrInfos(#1568,OPT)\0"
    "#1588.ExplAttrInfos(#1589,OPT)\0"
    "#1590.ExplAttrInfos(#1103,OPT)\0"
    "#1566.Attributes(#1567,#1588,#1590)\0"
    "#1565.Supertypes(#1566)\0"
    "#1565.Composition(#1565,#1566,#1043,#806,#1120,#98)\0"
    "#1591.ExplAttrInfos(#279,OPT)\0"
    "#1565.Attributes(#1591)\0"
    "#1593.Supertypes(#1123)\0"
    "#1593.Composition(#1593,#806,#98,#1048,#1123)\0"
    "#1594.ExplAttrInfos(#1595,OPT)\0"
    "#1596.ExplAttrInfos(#1103,OPT)\0"
    "#1593.Attributes(#1594,#1596)\0"
    "#1592.Composition(#1592,#1593,#806,#98,#1048,#1123)\0"
    "#1597.ExplAttrInfos(#279,REQ)\0"
    "#1592.Attributes(#1597)\0"
    "#1598.Supertypes(#1566)\0"
    "#1598.Composition(#1598,#1566,#1043,#806,#1120,#98)\0"
    "#1599.ExplAttrInfos(#281,OPT)\0"
    "#1598.Attributes(#1599)\0"
    "#1600.Supertypes(#1593)\0"
    "#1600.Composition(#1600,#1593,#806,#98,#1048,#1123)\0"
    "#1601.ExplAttrInfos(#281,REQ)\0"
    "#1600.Attributes(#1601)\0"
    "#1602.Supertypes(#1566)\0"
    "#1602.Composition(#1602,#1566,#1043,#806,#1120,#98)\0"
    "#1603.ExplAttrInfos(#283,OPT)\0"
    "#1604.Supertypes(#1593)\0"
    "#1604.Composition(#1604,#1593,#806,#98,#1048,#1123)\0"
    "#1605.ExplAttrInfos(#283,REQ)\0"
    "#1606.Supertypes(#806)\0"
    "#1606.Composition(#1606,#806,#98)\0"
    "#1607.ExplAttrInfos(#14,OPT)\0"
    "#1608.ExplAttrInfos(#14,OPT)\0"
    "#1609.ExplAttrInfos(#14,OPT)\0"
    "#1610.ExplAttrInfos(#1611,OPT)\0"
    "#1613.Composition(#1613)\0"
    "#1614.ExplAttrInfos(#1615,REQ)\0"
    "#1613.Attributes(#1614)\0"
    "#1612.ExplAttrInfos(#1613,OPT)\0"
    "#1606.Attributes(#1607,#1608,#1609,#1610,#1612)\0"
    "#1616.Supertypes(#1195)\0"
    "#1616.Composition(#1616,#1195,#1196,#1163,#1043,#806,#1068,#98)\0"
    "#1617.ExplAttrInfos(#285,OPT)\0"
    "#1616.Attributes(#1617)\0"
    "#1618.Supertypes(#1199)\0"
    "#1618.Composition(#1618,#1199,#1200,#1201,#806,#98,#1048,#1072)\0"
    "#1619.ExplAttrInfos(#285,REQ)\0"
    "#1618.Attributes(#1619)\0"
    "#1620.Supertypes(#1100)\0"
    "#1620.Composition(#1100,#1620,#631)\0"
    "#1621.ExplAttrInfos(#165,REQ)\0"
    "#1620.Attributes(#1621)\0"
    "#1622.Supertypes(#1226)\0"
    "#1622.Composition(#1622,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1623.ExplAttrInfos(#287,OPT)\0"
    "#1622.Attributes(#1623)\0"
    "#1624.Supertypes(#1229)",
    "#1624.Composition(#1624,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1625.ExplAttrInfos(#287,REQ)\0"
    "#1624.Attributes(#1625)\0"
    "#1626.Supertypes(#1226)\0"
    "#1626.Composition(#1626,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1627.ExplAttrInfos(#289,OPT)\0"
    "#1626.Attributes(#1627)\0"
    "#1628.Supertypes(#1229)\0"
    "#1628.Composition(#1628,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1629.ExplAttrInfos(#289,REQ)\0"
    "#1628.Attributes(#1629)\0"
    "#1630.Composition(#1630)\0"
    "#1631.ExplAttrInfos(#756,REQ)\0"
    "#1632.ExplAttrInfos(#742,REQ)\0"
    "#1630.Attributes(#1631,#1632)\0"
    "#1633.Supertypes(#1187)\0"
    "#1633.Composition(#1187,#1633,#1043,#806,#98)\0"
    "#1634.ExplAttrInfos(#291,OPT)\0"
    "#1635.ExplAttrInfos(#1636,OPT)\0"
    "#1637.ExplAttrInfos(#1638,OPT)\0"
    "#1633.Attributes(#1634,#1635,#1637)\0"
    "#1639.Supertypes(#1187)\0"
    "#1639.Composition(#1187,#1639,#1043,#806,#98)\0"
    "#1640.ExplAttrInfos(#293,OPT)\0"
    "#1641.ExplAttrInfos(#14,OPT)\0"
    "#1642.ExplAttrInfos(#25,OPT)\0"
    "#1643.ExplAttrInfos(#25,OPT)\0"
    "#1639.Attributes(#1640,#1641,#1642,#1643)\0"
    "#1644.Supertypes(#1360)\0"
    "#1644.Composition(#1360,#1644,#1163,#1043,#806,#1068,#98)\0"
    "#1645.ExplAttrInfos(#295,OPT)\0"
    "#1644.Attributes(#1645)\0"
    "#1646.Supertypes(#1364)\0"
    "#1646.Composition(#1364,#1646,#1201,#806,#98,#1048,#1072)\0"
    "#1647.ExplAttrInfos(#295,REQ)\0"
    "#1648.Supertypes(#1566)\0"
    "#1648.Composition(#1566,#1648,#1043,#806,#1120,#98)\0"
    "#1649.ExplAttrInfos(#297,OPT)\0"
    "#1650.Supertypes(#1593)\0"
    "#1650.Composition(#1593,#1650,#806,#98,#1048,#1123)\0"
    "#1651.ExplAttrInfos(#297,REQ)\0"
    "#1652.Supertypes(#688)\0"
    "#1652.Composition(#1652,#661,#662,#688)\0"
    "#1653.ExplAttrInfos(#758,REQ)\0"
    "#1652.Attributes(#1653)\0"
    "#1654.Supertypes(#1279)\0"
    "#1654.Composition(#1654,#1279)\0"
    "#1655.ExplAttrInfos(#646,REQ)\0"
    "#1656.ExplAttrInfos(#646,REQ)\0"
    "#1657.ExplAttrInfos(#92,REQ)\0"
    "#1658.ExplAttrInfos(#25,OPT)\0"
    "#1659.ExplAttrInfos(#955,OPT)\0"
    "#1654.Attributes(#1655,#1656,#1657,#1658,#1659)\0"
    "#1660.Supertypes(#1360)\0"
    "#1660.Composition(#1360,#1660,#1163,#1043,#806,#1068,#98)\0"
    "#1661.ExplAttrInfos(#299,OPT)\0"
    "#1660.Attributes(#1661)\0"
    "#1662.Supertypes(#1364)\0"
    "#1662.Composition(#1364,#1662,#1201,#806,#98,#1048,#1072)\0"
    "#1663.ExplAttrInfos(#299,REQ)\0"
    "#1662.Attributes(#1663)\0"
    "#1664.Supertypes(#1339)\0"
    "#1664.Composition(#1339,#1664,#661,#662,#686)\0"
    "#1667.Supertypes(#686)\0"
    "#1667.Composition(#1667,#661,#662,#686)\0"
    "#1668.ExplAttrInfos(#672,REQ)\0"
    "#1666.Supertypes(#1667)\0"
    "#1666.Composition(#1667,#661,#1666,#662,#686)\0"
    "#1665.ExplAttrInfos(#1666,REQ)\0"
    "#1669.ExplAttrInfos(#778,REQ)\0"
    "#1670.ExplAttrInfos(#1671,REQ)\0"
    "#1664.Attributes(#1665,#1669,#1670)\0"
    "#1672.Supertypes(#1339)\0"
    "#1672.Composition(#1339,#1672,#661,#662,#686)\0"
    "#1673.ExplAttrInfos(#686,REQ)\0"
    "#1674.ExplAttrInfos(#1675,REQ)\0"
    "#1676.ExplAttrInfos(#13,REQ)\0"
    "#1672.Attributes(#1673,#1674,#1676)\0"
    "#1677.Supertypes(#1667)\0"
    "#1677.Composition(#1677,#1667,#661,#662,#686)\0"
    "#1678.ExplAttrInfos(#90,REQ)\0"
    "#1679.Supertypes(#1216)\0"
    "#1679.Composition(#1679,#1196,#1213,#1163,#1216,#1043,#806,#1068,#98)\0"
    "#1680.ExplAttrInfos(#303,OPT)\0"
    "#1681.Supertypes(#1219)\0"
    "#1681.Composition(#1681,#1200,#1220,#1201,#1219,#806,#98,#1048,#1072)\0"
    "#1682.ExplAttrInfos(#303,REQ)\0"
    "#1681.Attributes(#1682)\0"
    "#1683.Supertypes(#1106)\0"
    "#1683.Composition(#1683,#1106)\0"
    "#1684.ExplAttrInfos(#1106,REQ)\0"
    "#1685.ExplAttrInfos(#891,REQ)\0"
    "#1686.ExplAttrInfos(#14,OPT)\0"
    "#1683.Attributes(#1684,#1685,#1686)\0"
    "#1687.Supertypes(#1422)\0"
    "#1687.Composition(#1687,#1163,#1422,#1043,#806,#1068,#98)\0"
    "#1688.ExplAttrInfos(#311,OPT)\0"
    "#1687.Attributes(#1688)\0"
    "#1689.Supertypes(#1425)\0"
    "#1689.Composition(#1689,#1425,#1201,#806,#98,#1048,#1072)\0"
    "#1690.ExplAttrInfos(#311,REQ)\0"
    "#1689.Attributes(#1690)\0"
    "#1691.Supertypes(#661)\0"
    "#1691.Composition(#1691,#661,#662)\0"
    "#1692.ExplAttrInfos(#56,REQ)\0"
    "#1693.ExplAttrInfos(#56,OPT)\0"
    "#1694.ExplAttrInfos(#56,OPT)\0"
    "#1695.ExplAttrInfos(#56,OPT)\0"
    "#1696.ExplAttrInfos(#13,OPT)\0"
    "#1691.Attributes(#1692,#1693,#1694,#1695,#1696)\0"
    "#1697.Supertypes(#1213)\0"
    "#1697.Composition(#1697,#1196,#1213,#1163,#1043,#806,#1068,#98)\0"
    "#1698.ExplAttrInfos(#313,OPT)\0"
    "#1697.Attributes(#1698)\0"
    "#1699.Supertypes(#1220)\0"
    "#1699.Composition(#1699,#1200,#1220,#1201,#806,#98,#1048,#1072)\0"
    "#1700.ExplAttrInfos(#313,REQ)\0"
    "#1699.Attributes(#1700)\0"
    "#1702.Supertypes(#1434)\0"
    "#1702.Composition(#1702,#1293,#1043,#806,#98,#1434)\0"
    "#1703.ExplAttrInfos(#14,OPT)\0"
    "#1704.ExplAttrInfos(#317,OPT)\0"
    "#1702.Attributes(#1703,#1704)\0"
    "#1701.Composition(#1701,#1702,#1293,#1043,#806,#98,#1434)\0"
    "#1706.Supertypes(#1068)\0"
    "#1706.Composition(#1043,#806,#1706,#1068,#98)\0"
    "#1705.Supertypes(#1706)\0"
    "#1705.Composition(#1705,#1043,#806,#1706,#1068,#98)\0"
    "#1707.ExplAttrInfos(#377,OPT)\0"
    "#1708.ExplAttrInfos(#315,OPT)\0"
    "#1709.ExplAttrInfos(#317,OPT)\0"
    "#1705.Attributes(#1707,#1708,#1709)\0"
    "#1.Entities(#1490,#1494,#1495,#1498,#1501,#1502,#704,#714,#1133,#1503,#1505,#736,#1507,#728,#1511,#1513,#1514,#1516,#1518,#1520,#1527,#776,#775,#780,#1534,#1538,#1541,#1544,#1546,#1491,#1134,#1548,#1549,#1552,#1553,#1559,#1562,#1090,#1565,#1592,#1598,#1600,#1602,#1604,#1566,#1593,#1606,#1098,#1187,#1616,#1618,#1100,#1620,#1622,#1624,#1626,#1628,#1630,#742,#1633,#1639,#1296,#1644,#1646,#1648,#1650,#682,#1652,#1654,#1660,#1662,#778,#1664,#1672,#1249,#836,#762,#759,#765,#1677,#1679,#1681,#1683,#627,#629,#633,#669,#1687,#1689,#1691,#1697,#1699,#1701,#1195,#1199,#1196,#1200,#1213,#1220,#1705)\0"
    "#1710.Supertypes(#1279)\0"
    "#1710.Composition(#1710,#1279)\0"
    "#1711.ExplAttrInfos(#809,REQ)\0"
    "#1712.ExplAttrInfos(#1713,REQ)\0"
    "#1714.ExplAttrInfos(#14,OPT)\0"
    "#1710.Attributes(#1711,#1712,#1714)\0"
    "#1715.Supertypes(#1360)\0"
    "#1715.Composition(#1360,#1715,#1163,#1043,#806,#1068,#98)\0"
    "#1716.ExplAttrInfos(#90,OPT)\0"
    "#1717.ExplAttrInfos(#90,OPT)\0"
    "#1718.ExplAttrInfos(#331,OPT)\0"
    "#1719.ExplAttrInfos(#333,OPT)\0"
    "#1720.ExplAttrInfos(#14,OPT)\0"
    "#1715.Attributes(#1716,#1717,#1718,#1719,#1720)\0"
    "#1722.Supertypes(#96)\0"
    "#1722.Composition(#1722,#97,#96,#98)\0"
    "#1721.Supertypes(#1722)\0"
    "#1721.Composition(#1721,#1722,#97,#96,#98)\0"
    "#1723.ExplAttrInfos(#90,OPT)\0"
    "#1724.ExplAttrInfos(#82,OPT)\0"
    "#1726.ExplAttrInfos(#82,OPT)\0"
    "#1727.ExplAttrInfos(#82,OPT)\0"
    "#1728.ExplAttrInfos(#56,OPT)\0"
    "#1729.ExplAttrInfos(#56,OPT)\0"
    "#1730.ExplAttrInfos(#56,OPT)\0"
    "#1731.ExplAttrInfos(#90,OPT)\0"
    "#1732.ExplAttrInfos(#90,OPT)\0"
    "#1733.ExplAttrInfos(#1110,OPT)\0"
    "#1734.ExplAttrInfos(#56,OPT)\0"
    "#1735.ExplAttrInfos(#56,OPT)\0"
    "#1721.Attributes(#1723,#1724,#1725,#1726,#1727,#1728,#1729,#1730,#1731,#1732,#1733,#1734,#1735)\0"
    "#1736.Supertypes(#1722)\0"
    "#1736.Composition(#1736,#1722,#97,#96,#98)\0"
    "#1737.ExplAttrInfos(#90,OPT)\0"
    "#1738.ExplAttrInfos(#323,REQ)\0"
    "#1740.ExplAttrInfos(#325,REQ)\0"
    "#1741.ExplAttrInfos(#1110,OPT)\0"
    "#1736.Attributes(#1737,#1738,#1739,#1740,#1741)\0"
    "#1742.Supertypes(#1715)\0"
    "#1742.Composition(#1360,#1715,#1742,#1163,#1043,#806,#1068,#98)\0"
    "#1743.Supertypes(#1072)\0"
    "#1743.Composition(#1743,#806,#98,#1048,#1072)\0"
    "#1744.ExplAttrInfos(#329,REQ)\0"
    "#1745.ExplAttrInfos(#327,REQ)\0"
    "#1746.ExplAttrInfos(#13,REQ)\0"
    "#1747.ExplAttrInfos(#13,REQ)\0"
    "#1743.Attributes(#1744,#1745,#1746,#1747)\0"
    "#1748.Supertypes(#1364)\0"
    "#1748.Composition(#1364,#1748,#1201,#806,#98,#1048,#1072)\0"
    "#1749.ExplAttrInfos(#331,REQ)\0"
    "#1750.ExplAttrInfos(#333,REQ)\0"
    "#1751.ExplAttrInfos(#13,OPT)\0"
    "#1752.ExplAttrInfos(#14,OPT)\0"
    "#1748.Attributes(#1749,#1750,#1751,#1752)\0"
    "#1753.Supertypes(#731)\0"
    "#1753.Composition(#1753,#731,#732,#729)\0"
    "#1754.Supertypes(#769)\0"
    "#1754.Composition(#1754,#769,#732,#729)\0"
    "#1755.Supertypes(#1448)\0"
    "#1755.Composition(#1196,#1213,#1755,#1163,#1448,#1043,#806,#1068,#98)\0"
    "#1756.ExplAttrInfos(#335,OPT)\0"
    "#1755.Attributes(#1756)\0"
    "#1757.Supertypes(#1451)\0"
    "#1757.Composition(#1200,#1220,#1757,#1201,#1451,#806,#98,#1048,#1072)\0"
    "#1758.ExplAttrInfos(#335,REQ)\0"
    "#1757.Attributes(#1758)\0"
    "#1759.Supertypes(#1454)\0"
    "#1759.Composition(#1196,#1213,#1759,#1163,#1454,#1043,#806,#1068,#98)\0"
    "#1760.ExplAttrInfos(#337,OPT)\0"
    "#1759.Attributes(#1760)\0"
    "#1761.Supertypes(#1457)\0"
    "#1761.Composition(#1200,#1220,#1761,#1201,#1457,#806,#98,#1048,#1072)\0"
    "#1762.ExplAttrInfos(#337,REQ)\0"
    "#1761.Attributes(#1762)\0"
    "#1764.Supertypes(#1213)\0"
    "#1764.Composition(#1196,#1213,#1163,#1764,#1043,#806,#1068,#98)\0"
    "#1763.Supertypes(#1764)\0"
    "#1763.Composition(#1196,#1213,#1763,#1163,#1764,#1043,#806,#1068,#98)\0"
    "#1765.ExplAttrInfos(#339,OPT)\0"
    "#1763.Attributes(#1765)\0"
    "#1767.Supertypes(#1220)\0"
    "#1767.Composition(#1200,#1220,#1201,#1767,#806,#98,#1048,#1072)\0"
    "#1766.Supertypes(#1767)\0"
    "#1766.Composition(#1200,#1220,#1766,#1201,#1767,#806,#98,#1048,#1072)\0"
    "#1768.ExplAttrInfos(#339,REQ)\0"
    "#1766.Attributes(#1768)\0"
    "#1769.Supertypes(#1140)\0"
    "#1769.Composition(#1769,#1140,#662,#798)\0"
    "#1771.Supertypes(#797)\0"
    "#1771.Composition(#797,#1771,#662,#798)\0"
    "#1772.ExplAttrInfos(#797,REQ)\0"
    "#1773.ExplAttrInfos(#13,REQ)\0"
    "#1771.Attributes(#1772,#1773)\0"
    "#1770.ExplAttrInfos(#1774,REQ)\0"
    "#1769.Attributes(#1770)\0"
    "#1775.Supertypes(#1212)\0"
    "#1775.Composition(#1196,#1213,#1775,#1163,#1212,#1043,#806,#1068,#98)\0"
    "#1776.ExplAttrInfos(#341,OPT)\0"
    "#1775.Attributes(#1776)\0"
    "#1777.Supertypes(#1223)\0"
    "#1777.Composition(#1200,#1220,#1777,#1201,#1223,#806,#98,#1048,#1072)\0"
    "#1778.ExplAttrInfos(#341,REQ)\0"
    "#1777.Attributes(#1778)\0"
    "#1779.Supertypes(#1216)\0"
    "#1779.Composition(#1196,#1213,#1779,#1163,#1216,#1043,#806,#1068,#98)\0"
    "#1780.ExplAttrInfos(#343,OPT)\0"
    "#1779.Attributes(#1780)\0"
    "#1781.Supertypes(#1219)\0"
    "#1781.Composition(#1200,#1220,#1781,#1201,#1219,#806,#98,#1048,#1072)\0"
    "#1782.ExplAttrInfos(#343,REQ)\0"
    "#1781.Attributes(#1782)\0"
    "#1784.Supertypes(#1213)\0"
    "#1784.Composition(#1196,#1213,#1163,#1784,#1043,#806,#1068,#98)\0"
    "#1783.Supertypes(#1784)\0"
    "#1783.Composition(#1196,#1213,#1783,#1163,#1784,#1043,#806,#1068,#98)\0"
    "#1785.ExplAttrInfos(#345,OPT)\0"
    "#1783.Attributes(#1785)\0"
    "#1787.Supertypes(#1220)\0"
    "#1787.Composition(#1200,#1220,#1201,#1787,#806,#98,#1048,#1072)\0"
    "#1786.Supertypes(#1787)\0"
    "#1786.Composition(#1200,#1220,#1786,#1201,#1787,#806,#98,#1048,#1072)\0"
    "#1788.ExplAttrInfos(#345,REQ)\0"
    "#1786.Attributes(#1788)\0"
    "#1789.Supertypes(#1226)\0"
    "#1789.Composition(#1196,#1213,#1789,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1790.ExplAttrInfos(#347,OPT)\0"
    "#1789.Attributes(#1790)\0"
    "#1791.Supertypes(#1229)\0"
    "#1791.Composition(#1200,#1220,#1791,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1792.ExplAttrInfos(#347,REQ)\0"
    "#1791.Attributes(#1792)\0"
    "#1793.Supertypes(#1226)\0"
    "#1793.Composition(#1196,#1213,#1793,#1163,#1226,#1043,#806,#1068,#98)\0"
    "#1794.ExplAttrInfos(#349,OPT)\0"
    "#1793.Attributes(#1794)\0"
    "#1795.Supertypes(#1229)\0"
    "#1795.Composition(#1200,#1220,#1795,#1201,#1229,#806,#98,#1048,#1072)\0"
    "#1796.ExplAttrInfos(#349,REQ)\0"
    "#1797.Supertypes(#1216)\0"
    "#1797.Composition(#1196,#1213,#1797,#1163,#1216,#1043,#806,#1068,#98)\0"
    "#1798.ExplAttrInfos(#351,OPT)\0"
    "#1797.Attributes(#1798)\0"
    "#1799.Supertypes(#1219)\0"
    "#1799.Composition(#1200,#1220,#1799,#1201,#1219,#806,#98,#1048,#1072)\0"
    "#1800.ExplAttrInfos(#351,REQ)\0"
    "#1799.Attributes(#1800)\0"
    "#1801.Supertypes(#1163)\0"
    "#1801.Composition(#1163,#1801,#1043,#806,#1068,#98)\0"
    "#1802.ExplAttrInfos(#227,OPT)\0"
    "#1803.ExplAttrInfos(#353,OPT)\0"
    "#1801.Attributes(#1802,#1803)\0"
    "#1804.Supertypes(#1201)\0"
    "#1804.Composition(#1804,#1201,#806,#98,#1048,#1072)\0"
    "#1805.ExplAttrInfos(#353,REQ)\0"
    "#1807.Supertypes(#96)\0"
    "#1807.Composition(#97,#96,#1807,#98)\0"
    "#1806.Supertypes(#1807)\0"
    "#1806.Composition(#1806,#97,#96,#1807,#98)\0"
    "#1808.ExplAttrInfos(#14,OPT)\0"
    "#1806.Attributes(#1808,#1809)\0"
    "#1811.Supertypes(#1491)\0"
    "#1811.Composition(#1491,#778,#1811,#661,#662)\0"
    "#1812.ExplAttrInfos(#90,REQ)\0"
    "#1813.ExplAttrInfos(#90,REQ)\0"
    "#1811.Attributes(#1812,#1813)\0"
    "#1814.Supertypes(#1305)\0"
    "#1814.Composition(#1814,#1305,#1106)\0"
    "#1815.ExplAttrInfos(#90,REQ)\0"
    "#1816.ExplAttrInfos(#90,REQ)\0"
    "#1814.Attributes(#1815,#1816)\0"
    "#1817.Supertypes(#1226)\0"
    "#1817.Composition(#1196,#1213,#1163,#1226,#1817,#1043,#806,#1068,#98)\0"
    "#1818.ExplAttrInfos(#357,OPT)\0"
    "#1817.Attributes(#1818)\0"
    "#1819.Supertypes(#1229)\0"
    "#1819.Composition(#1200,#1220,#1201,#1229,#1819,#806,#98,#1048,#1072)\0"
    "#1820.ExplAttrInfos(#357,REQ)\0"
    "#1821.Supertypes(#1226)\0"
    "#1821.Composition(#1196,#1213,#1163,#1226,#1821,#1043,#806,#1068,#98)\0"
    "#1822.ExplAttrInfos(#359,OPT)\0"
    "#1821.Attributes(#1822)\0"
    "#1823.Supertypes(#1229)\0"
    "#1823.Composition(#1200,#1220,#1201,#1229,#1823,#806,#98,#1048,#1072)\0"
    "#1824.ExplAttrInfos(#359,REQ)\0"
    "#1823.Attributes(#1824)\0"
    "#1825.Supertypes(#1226)\0"
    "#1825.Composition(#1196,#1213,#1163,#1226,#1825,#1043,#806,#1068,#98)\0"
    "#1826.ExplAttrInfos(#361,OPT)\0"
    "#1825.Attributes(#1826)\0"
    "#1827.Supertypes(#1229)\0"
    "#1827.Composition(#1200,#1220,#1201,#1229,#1827,#806,#98,#1048,#1072)\0"
    "#1828.ExplAttrInfos(#361,REQ)\0"
    "#1827.Attributes(#1828)\0"
    "#1829.Supertypes(#1042)\0"
    "#1829.Composition(#1829,#1043,#806,#1042,#98)\0"
    "#1830.ExplAttrInfos(#365,OPT)\0"
    "#1831.ExplAttrInfos(#363,OPT)\0"
    "#1832.ExplAttrInfos(#14,OPT)\0"
    "#1834.Supertypes(#1569)\0"
    "#1834.Composition(#1834,#1569)\0"
    "#1835.ExplAttrInfos(#25,OPT)\0"
    "#1836.ExplAttrInfos(#25,OPT)\0"
    "#1837.ExplAttrInfos(#25,OPT)\0"
    "#1838.ExplAttrInfos(#25,OPT)\0"
    "#1834.Attributes(#1835,#1836,#1837,#1838)\0"
    "#1833.ExplAttrInfos(#1834,OPT)\0"
    "#1829.Attributes(#1830,#1831,#1832,#1833)\0"
    "#1839.Supertypes(#1047)\0"
    "#1839.Composition(#1839,#806,#98,#1048,#1047)\0"
    "#1840.ExplAttrInfos(#365,REQ)\0"
    "#1841.ExplAttrInfos(#363,REQ)\0"
    "#1842.ExplAttrInfos(#14,OPT)\0"
    "#1839.Attributes(#1840,#1841,#1842)\0"
    "#1843.Supertypes(#1109)\0"
    "#1843.Composition(#1843,#1109)\0"
    "#1844.ExplAttrInfos(#48,OPT)\0"
    "#1845.ExplAttrInfos(#122,OPT)\0"
    "#1846.ExplAttrInfos(#1847,REQ)\0"
    "#1843.Attributes(#1844,#1845,#1846)\0"
    "#1848.Supertypes(#1279)\0"
    "#1848.Composition(#1848,#1279)\0"
    "#1849.ExplAttrInfos(#715,REQ)\0"
    "#1850.ExplAttrInfos(#1851,REQ)\0"
    "#1848.Attributes(#1849,#1850)\0"
    "#1853.Supertypes(#688)\0"
    "#1853.Composition(#661,#662,#688,#1853)\0"
    "#1854.ExplAttrInfos(#1106,REQ)\0"
    "#1855.ExplAttrInfos(#672,OPT)\0"
    "#1853.Attributes(#1854,#1855)\0"
    "#1852.Supertypes(#1853)\0"
    "#1852.Composition(#1852,#661,#662,#688,#1853)\0"
    "#1856.ExplAttrInfos(#669,REQ)\0"
    "#1857.ExplAttrInfos(#90,REQ)\0"
    "#1852.Attributes(#1856,#1857)\0"
    "#1858.Supertypes(#1852)\0"
    "#1858.Composition(#1852,#1858,#661,#662,#688,#1853)\0"
    "#1859.ExplAttrInfos(#1106,REQ)\0"
    "#1860.Supertypes(#1138)\0"
    "#1860.Composition(#1138,#1860,#662,#798)\0"
    "#1861.Supertypes(#1205)\0"
    "#1861.Composition(#1861,#661,#1205,#662,#688)\0"
    "#1862.Supertypes(#1861)\0"
    "#1862.Composition(#1861,#1862,#661,#1205,#662,#688)\0"
    "#1863.ExplAttrInfos(#1864,REQ)\0"
    "#1862.Attributes(#1863)\0"
    "#1866.Composition(#1866)\0"
    "#1867.ExplAttrInfos(#14,OPT)\0"
    "#1866.Attributes(#1867)\0"
    "#1865.Supertypes(#1866)\0"
    "#1865.Composition(#1865,#1866)\0"
    "#1868.ExplAttrInfos(#43,OPT)\0"
    "#1869.ExplAttrInfos(#43,OPT)\0"
    "#1870.ExplAttrInfos(#43,OPT)\0"
    "#1871.ExplAttrInfos(#43,OPT)\0"
    "#1872.ExplAttrInfos(#43,OPT)\0"
    "#1873.ExplAttrInfos(#43,OPT)\0"
    "#1865.Attributes(#1868,#1869,#1870,#1871,#1872,#1873)\0"
    "#1874.Supertypes(#1539)\0"
    "#1874.Composition(#1196,#1213,#1163,#1874,#1539,#1043,#806,#1068,#98)\0"
    "#1875.ExplAttrInfos(#369,OPT)\0"
    "#1874.Attributes(#1875)\0"
    "#1876.Supertypes(#1542)\0"
    "#1876.Composition(#1200,#1220,#1201,#1876,#1542,#806,#98,#1048,#1072)\0"
    "#1877.ExplAttrInfos(#369,REQ)\0"
    "#1878.Supertypes(#1422)\0"
    "#1878.Composition(#1163,#1422,#1878,#1043,#806,#1068,#98)\0"
    "#1879.ExplAttrInfos(#371,OPT)\0"
    "#1880.Supertypes(#1425)\0"
    "#1880.Composition(#1425,#1201,#1880,#806,#98,#1048,#1072)\0"
    "#1881.ExplAttrInfos(#371,REQ)\0"
    "#1882.Supertypes(#1163)\0"
    "#1882.Composition(#1163,#1882,#1043,#806,#1068,#98)\0"
    "#1883.Supertypes(#1882)\0"
    "#1883.Composition(#1163,#1882,#1883,#1043,#806,#1068,#98)\0"
    "#1884.Supertypes(#1882)\0"
    "#1884.Composition(#1163,#1882,#1884,#1043,#806,#1068,#98)\0"
    "#1885.Supertypes(#1764)\0"
    "#1885.Composition(#1196,#1213,#1163,#1885,#1764,#1043,#806,#1068,#98)\0"
    "#1886.ExplAttrInfos(#373,OPT)\0"
    "#1885.Attributes(#1886)\0"
    "#1887.Supertypes(#1767)\0"
    "#1887.Composition(#1200,#1220,#1201,#1887,#1767,#806,#98,#1048,#1072)\0"
    "#1888.ExplAttrInfos(#373,REQ)\0"
    "#1887.Attributes(#1888)\0"
    "#1889.Supertypes(#1212)\0"
    "#1889.Composition(#1196,#1213,#1163,#1889,#1212,#1043,#806,#1068,#98)\0"
    "#1890.ExplAttrInfos(#375,OPT)\0"
    "#1891.Supertypes(#1223)\0"
    "#1891.Composition(#1200,#1220,#1201,#1891,#1223,#806,#98,#1048,#1072)\0"
    "#1892.ExplAttrInfos(#375,REQ)\0"
    "#1893.Supertypes(#1853)\0"
    "#1893.Composition(#1893,#661,#662,#688,#1853)\0"
    "#1894.ExplAttrInfos(#778,REQ)\0"
    "#1895.ExplAttrInfos(#87,OPT)\0"
    "#1896.ExplAttrInfos(#87,OPT)\0"
    "#1897.ExplAttrInfos(#669,REQ)\0"
    "#1893.Attributes(#1894,#1895,#1896,#1897)\0"
    "#1898.Supertypes(#1195)\0"
    "#1898.Composition(#1195,#1196,#1163,#1898,#1043,#806,#1068,#98)\0"
    "#1899.ExplAttrInfos(#379,OPT)\0"
    "#1900.Supertypes(#1199)\0"
    "#1900.Composition(#1199,#1200,#1201,#1900,#806,#98,#1048,#1072)\0"
    "#1901.ExplAttrInfos(#379,REQ)\0"
    "#1900.Attributes(#1901)\0"
    "#1902.Supertypes(#1216)\0"
    "#1902.Composition(#1196,#1213,#1163,#1216,#1902,#1043,#806,#1068,#98)\0"
    "#1903.ExplAttrInfos(#381,OPT)\0"
    "#1902.Attributes(#1903)\0"
    "#1904.Supertypes(#1219)\0"
    "#1904.Composition(#1200,#1220,#1201,#1219,#1904,#806,#98,#1048,#1072)\0"
    "#1905.ExplAttrInfos(#381,REQ)\0"
    "#1904.Attributes(#1905)\0"
    "#1.Entities(#1702,#809,#1710,#828,#1715,#1721,#1736,#1742,#1743,#1748,#1753,#1754,#1755,#1757,#1759,#1761,#1763,#1766,#797,#796,#1769,#1775,#1777,#1779,#1781,#1783,#1786,#1789,#1791,#1793,#1795,#1797,#1799,#1163,#1801,#1804,#1422,#1425,#1806,#1201,#1667,#1811,#1814,#1226,#1229,#1817,#1819,#1821,#1823,#1825,#1827,#1829,#1834,#1839,#1843,#705,#715,#1848,#1149,#1150,#833,#872,#918,#1852,#1858,#1136,#1168,#1138,#1860,#1171,#1861,#1862,#1865,#1874,#1876,#1878,#1880,#1882,#1883,#1884,#863,#834,#854,#1885,#1887,#1889,#1891,#1893,#1216,#1219,#1448,#1451,#1898,#1900,#1902,#1904,#1539,#1542,#1454,#1457)\0"
    "#1906.Supertypes(#1360)\0"
    "#1906.Composition(#1360,#1163,#1906,#1043,#806,#1068,#98)\0"
    "#1907.ExplAttrInfos(#383,OPT)\0"
    "#1906.Attributes(#1907)\0"
    "#1908.Supertypes(#1364)\0"
    "#1908.Composition(#1364,#1201,#1908,#806,#98,#1048,#1072)\0"
    "#1909.ExplAttrInfos(#383,REQ)\0"
    "#1910.Supertypes(#1163)\0"
    "#1910.Composition(#1163,#1910,#1043,#806,#1068,#98)\0"
    "#1911.Supertypes(#1201)\0"
    "#1911.Composition(#1201,#1911,#806,#98,#1048,#1072)\0"
    "#1912.Supertypes(#1910)\0"
    "#1912.Composition(#1163,#1910,#1912,#1043,#806,#1068,#98)\0"
    "#1913.ExplAttrInfos(#385,OPT)\0"
    "#1912.Attributes(#1913)\0"
    "#1914.Supertypes(#1911)\0"
    "#1914.Composition(#1201,#1911,#1914,#806,#98,#1048,#1072)\0"
    "#1915.ExplAttrInfos(#227,REQ)\0"
    "#1916.ExplAttrInfos(#385,OPT)\0"
    "#1914.Attributes(#1915,#1916)\0"
    "#1917.Supertypes(#1163)\0"
    "#1917.Composition(#1163,#1917,#1043,#806,#1068,#98)\0"
    "#1918.ExplAttrInfos(#387,OPT)\0"
    "#1917.Attributes(#1918)\0"
    "#1919.Supertypes(#1201)\0"
    "#1919.Composition(#1201,#1919,#806,#98,#1048,#1072)\0"
    "#1920.ExplAttrInfos(#387,REQ)\0"
    "#1919.Attributes(#1920)\0"
    "#1922.Supertypes(#661)\0"
    "#1922.Composition(#661,#1922,#662)\0"
    "#1923.ExplAttrInfos(#1924,REQ)\0"
    "#1922.Attributes(#1923)\0"
    "#1921.Supertypes(#1922)\0"
    "#1921.Composition(#1921,#661,#1922,#662)\0"
    "#1925.Supertypes(#747)\0"
    "#1925.Composition(#747,#1925,#748)\0"
    "#1926.ExplAttrInfos(#747,REQ)\0"
    "#1927.ExplAttrInfos(#92,OPT)\0"
    "#1928.ExplAttrInfos(#389,REQ)\0"
    "#1929.ExplAttrInfos(#14,OPT)\0"
    "#1925.Attributes(#1926,#1927,#1928,#1929)\0"
    "#1930.Supertypes(#1237)\0"
    "#1930.Composition(#1930,#1043,#806,#1237,#1068,#98)\0"
    "#1931.ExplAttrInfos(#1932,REQ)\0"
    "#1933.ExplAttrInfos(#1934,REQ)\0"
    "#1935.ExplAttrInfos(#1936,OPT)\0"
    "#1937.ExplAttrInfos(#393,OPT)\0"
    "#1930.Attributes(#1931,#1933,#1935,#1937)\0"
    "#1938.Supertypes(#1070)\0"
    "#1938.Composition(#1938,#1070)\0"
    "#1939.ExplAttrInfos(#936,REQ)\0"
    "#1940.ExplAttrInfos(#946,OPT)\0"
    "#1938.Attributes(#1939,#1940)\0"
    "#1941.Supertypes(#1226)\0"
    "#1941.Composition(#1196,#1213,#1163,#1226,#1941,#1043,#806,#1068,#98)\0"
    "#1942.ExplAttrInfos(#395,OPT)\0"
    "#1943.Supertypes(#1229)\0"
    "#1943.Composition(#1200,#1220,#1201,#1229,#1943,#806,#98,#1048,#1072)\0"
    "#1944.ExplAttrInfos(#395,REQ)\0"
    "#1945.Supertypes(#1226)\0"
    "#1945.Composition(#1196,#1213,#1163,#1226,#1945,#1043,#806,#1068,#98)\0"
    "#1946.ExplAttrInfos(#397,OPT)\0"
    "#1945.Attributes(#1946)\0"
    "#1947.Supertypes(#1229)\0"
    "#1947.Composition(#1200,#1220,#1201,#1229,#1947,#806,#98,#1048,#1072)\0"
    "#1948.ExplAttrInfos(#397,REQ)\0"
    "#1947.Attributes(#1948)\0"
    "#1949.Supertypes(#1305)\0"
    "#1949.Composition(#1949,#1305,#1106)\0"
    "#1950.ExplAttrInfos(#90,REQ)\0"
    "#1951.ExplAttrInfos(#90,REQ)\0"
    "#1952.ExplAttrInfos(#90,REQ)\0"
    "#1953.ExplAttrInfos(#90,REQ)\0"
    "#1954.ExplAttrInfos(#82,OPT)\0"
    "#1955.ExplAttrInfos(#82,OPT)\0"
    "#1956.ExplAttrInfos(#89,OPT)\0"
    "#1949.Attributes(#1950,#1951,#1952,#1953,#1954,#1955,#1956)\0"
    "#1957.Supertypes(#886)\0"
    "#1957.Composition(#1957,#729,#886)\0"
    "#1958.ExplAttrInfos(#196,REQ)\0"
    "#1957.Attributes(#1958)\0"
    "#1959.Supertypes(#729)\0"
    "#1959.Composition(#1959,#729)\0"
    "#1960.ExplAttrInfos(#689,REQ)\0"
    "#1961.ExplAttrInfos(#84,OPT)\0"
    "#1962.ExplAttrInfos(#1507,REQ)\0"
    "#1959.Attributes(#1960,#1961,#1962,#1963)\0"
    "#1965.Supertypes(#777)\0"
    "#1965.Composition(#777,#778,#661,#1965,#662)\0"
    "#1966.ExplAttrInfos(#693,REQ)\0"
    "#1967.ExplAttrInfos(#1968,OPT)\0"
    "#1969.ExplAttrInfos(#13,OPT)\0"
    "#1965.Attributes(#1966,#1967,#1969)\0"
    "#1970.Supertypes(#690)\0"
    "#1970.Composition(#661,#1970,#662,#690)\0"
    "#1971.ExplAttrInfos(#1972,REQ)\0"
    "#1970.Attributes(#1971)\0"
    "#1973.Supertypes(#1970)\0"
    "#1973.Composition(#661,#1970,#1973,#662,#690)\0"
    "#1974.ExplAttrInfos(#1976,REQ)\0"
    "#1978.Supertypes(#729)\0"
    "#1978.Composition(#729,#1978)\0"
    "#1979.ExplAttrInfos(#1980,REQ)\0"
    "#1978.Attributes(#1979)\0"
    "#1977.Supertypes(#1978)\0"
    "#1977.Composition(#1977,#729,#1978)\0"
    "#1981.ExplAttrInfos(#689,REQ)\0"
    "#1983.Supertypes(#729)\0"
    "#1983.Composition(#729,#1983)\0"
    "#1984.ExplAttrInfos(#1986,REQ)\0"
    "#1982.ExplAttrInfos(#1983,REQ)\0"
    "#1977.Attributes(#1981,#1982)\0"
    "#1987.Supertypes(#1977)\0"
    "#1987.Composition(#1977,#1987,#729,#1978)\0"
    "#1988.ExplAttrInfos(#1990,OPT)\0"
    "#1991.Supertypes(#1764)\0"
    "#1991.Composition(#1196,#1213,#1163,#1764,#1991,#1043,#806,#1068,#98)\0"
    "#1992.ExplAttrInfos(#399,OPT)\0"
    "#1991.Attributes(#1992)\0"
    "#1993.Supertypes(#1767)\0"
    "#1993.Composition(#1200,#1220,#1201,#1767,#1993,#806,#98,#1048,#1072)\0"
    "#1994.ExplAttrInfos(#399,REQ)\0"
    "#1993.Attributes(#1994)\0"
    "#1995.Supertypes(#789)\0"
    "#1995.Composition(#778,#661,#1995,#662,#789)\0"
    "#1996.Supertypes(#1293)\0"
    "#1996.Composition(#1293,#1996,#1043,#806,#98)\0"
    "#1997.ExplAttrInfos(#403,OPT)\0"
    "#1998.ExplAttrInfos(#615,OPT)\0"
    "#1999.ExplAttrInfos(#2000,OPT)\0"
    "#2001.ExplAttrInfos(#24,OPT)\0"
    "#2002.ExplAttrInfos(#1296,OPT)\0"
    "#2003.ExplAttrInfos(#1296,OPT)\0"
    "#1996.Attributes(#1997,#1998,#1999,#2001,#2002,#2003)\0"
    "#2004.Supertypes(#1019)\0"
    "#2004.Composition(#2004,#1019)\0"
    "#2006.Composition(#2006)\0"
    "#2007.ExplAttrInfos(#25,REQ)\0"
    "#2008.ExplAttrInfos(#2009,REQ)\0"
    "#2006.Attributes(#2007,#2008)\0"
    "#2005.ExplAttrInfos(#2010,REQ)\0"
    "#2004.Attributes(#2005)\0"
    "#2011.Supertypes(#1448)\0"
    "#2011.Composition(#1196,#1213,#1163,#1448,#2011,#1043,#806,#1068,#98)\0"
    "#2012.ExplAttrInfos(#405,OPT)\0"
    "#2011.Attributes(#2012)\0"
    "#2013.Supertypes(#1451)\0"
    "#2013.Composition(#1200,#1220,#1201,#1451,#2013,#806,#98,#1048,#1072)\0"
    "#2014.ExplAttrInfos(#405,REQ)\0"
    "#2013.Attributes(#2014)\0"
    "#2015.Supertypes(#1305)\0"
    "#2015.Composition(#2015,#1305,#1106)\0"
    "#2016.ExplAttrInfos(#90,REQ)\0"
    "#2017.ExplAttrInfos(#90,OPT)\0"
    "#2018.ExplAttrInfos(#90,REQ)\0"
    "#2019.ExplAttrInfos(#82,OPT)\0"
    "#2020.ExplAttrInfos(#82,OPT)\0"
    "#2021.ExplAttrInfos(#89,OPT)\0"
    "#2015.Attributes(#2016,#2017,#2018,#2019,#2020,#2021)\0"
    "#2022.Supertypes(#1566)\0"
    "#2022.Composition(#1566,#2022,#1043,#806,#1120,#98)\0"
    "#2023.ExplAttrInfos(#409,OPT)\0"
    "#2022.Attributes(#2023)\0"
    "#2024.Supertypes(#1593)\0"
    "#2024.Composition(#1593,#2024,#806,#98,#1048,#1123)\0"
    "#2025.ExplAttrInfos(#409,REQ)\0"
    "#2024.Attributes(#2025)\0"
    "#2026.Supertypes(#1569)\0"
    "#2026.Composition(#2026,#1569)\0"
    "#2027.ExplAttrInfos(#1177,REQ)\0"
    "#2028.ExplAttrInfos(#557,REQ)\0"
    "#2026.Attributes(#2027,#2028)\0"
    "#2029.Supertypes(#1212)\0"
    "#2029.Composition(#1196,#1213,#1163,#1212,#2029,#1043,#806,#1068,#98)\0"
    "#2030.ExplAttrInfos(#411,OPT)\0"
    "#2031.Supertypes(#1223)\0"
    "#2031.Composition(#1200,#1220,#1201,#1223,#2031,#806,#98,#1048,#1072)\0"
    "#2032.ExplAttrInfos(#411,REQ)\0"
    "#2033.Supertypes(#1212)\0"
    "#2033.Composition(#1196,#1213,#1163,#1212,#2033,#1043,#806,#1068,#98)\0"
    "#2034.ExplAttrInfos(#419,OPT)\0"
    "#2033.Attributes(#2034)\0"
    "#2035.Supertypes(#1223)\0"
    "#2035.Composition(#1200,#1220,#1201,#1223,#2035,#806,#98,#1048,#1072)\0"
    "#2036.ExplAttrInfos(#419,REQ)\0"
    "#2035.Attributes(#2036)\0"
    "#2037.Supertypes(#661)\0"
    "#2037.Composition(#661,#2037,#662)\0"
    "#2038.ExplAttrInfos(#14,OPT)\0"
    "#2039.ExplAttrInfos(#736,REQ)\0"
    "#2040.ExplAttrInfos(#84,OPT)\0"
    "#2041.ExplAttrInfos(#84,OPT)\0"
    "#2037.Attributes(#2038,#2039,#2040,#2041)\0"
    "#2042.Supertypes(#2037)\0"
    "#2042.Composition(#661,#2037,#2042,#662)\0"
    "#2043.Supertypes(#2037)\0"
    "#2043.Composition(#661,#2037,#2043,#662)\0"
    "#2044.ExplAttrInfos(#669,REQ)\0"
    "#2043.Attributes(#2044)\0"
    "#2045.Supertypes(#2037)\0"
    "#2045.Composition(#661,#2037,#2045,#662)\0"
    "#2046.ExplAttrInfos(#672,REQ)\0"
    "#2047.ExplAttrInfos(#736,OPT)\0"
    "#2048.ExplAttrInfos(#192,REQ)\0"
    "#2049.ExplAttrInfos(#64,REQ)\0"
    "#2050.ExplAttrInfos(#417,REQ)\0"
    "#2051.ExplAttrInfos(#979,REQ)\0"
    "#2045.Attributes(#2046,#2047,#2048,#2049,#2050,#2051)\0"
    "#2052.Supertypes(#2037)\0"
    "#2052.Composition(#661,#2037,#2052,#662)\0"
    "#2053.ExplAttrInfos(#664,REQ)\0"
    "#2054.ExplAttrInfos(#90,REQ)\0"
    "#2055.ExplAttrInfos(#165,REQ)\0"
    "#2056.ExplAttrInfos(#165,REQ)\0"
    "#2057.ExplAttrInfos(#165,REQ)\0"
    "#2052.Attributes(#2053,#2054,#2055,#2056,#2057)\0"
    "#2058.Supertypes(#2052)\0"
    "#2058.Composition(#661,#2037,#2052,#2058,#662)\0"
    "#2059.ExplAttrInfos(#669,REQ)\0"
    "#2060.ExplAttrInfos(#165,OPT)\0"
    "#2061.ExplAttrInfos(#91,REQ)\0"
    "#2062.ExplAttrInfos(#91,REQ)\0"
    "#2058.Attributes(#2059,#2060,#2061,#2062)\0"
    "#2063.Supertypes(#778)\0"
    "#2063.Composition(#778,#661,#2063,#662)\0"
    "#2064.ExplAttrInfos(#664,REQ)\0"
    "#2065.ExplAttrInfos(#846,REQ)\0"
    "#2063.Attributes(#2064,#2065)\0"
    "#2066.Supertypes(#1249)\0"
    "#2066.Composition(#777,#778,#1249,#661,#2066,#662)\0"
    "#2067.Supertypes(#1070)\0"
    "#2067.Composition(#2067,#1070)\0"
    "#2068.ExplAttrInfos(#778,REQ)\0"
    "#2069.ExplAttrInfos(#1691,REQ)\0"
    "#2071.Supertypes(#661)\0"
    "#2071.Composition(#661,#2071,#662)\0"
    "#2072.ExplAttrInfos(#669,REQ)\0"
    "#2073.ExplAttrInfos(#669,REQ)\0"
    "#2071.Attributes(#2072,#2073)\0"
    "#2070.ExplAttrInfos(#2071,OPT)\0"
    "#2074.ExplAttrInfos(#672,OPT)\0"
    "#2067.Attributes(#2068,#2069,#2070,#2074)\0"
    "#2075.Supertypes(#1070)\0"
    "#2075.Composition(#2075,#1070)\0"
    "#2076.ExplAttrInfos(#1070,OPT)\0"
    "#2077.ExplAttrInfos(#676,REQ)\0"
    "#2075.Attributes(#2076,#2077)\0"
    "#2078.Supertypes(#1630)\0"
    "#2078.Composition(#1630,#2078)\0"
    "#2079.ExplAttrInfos(#56,REQ)\0"
    "#2080.ExplAttrInfos(#56,REQ)\0"
    "#2081.ExplAttrInfos(#56,REQ)\0"
    "#2082.ExplAttrInfos(#165,OPT)\0"
    "#2083.ExplAttrInfos(#165,OPT)\0"
    "#2084.ExplAttrInfos(#165,OPT)\0"
    "#2078.Attributes(#2079,#2080,#2081,#2082,#2083,#2084)\0"
    "#2085.Supertypes(#662)\0"
    "#2085.Composition(#2085,#662)\0"
    "#2086.ExplAttrInfos(#1063,REQ)\0"
    "#2087.ExplAttrInfos(#892,REQ)\0"
    "#2085.Attributes(#2086,#2087)\0"
    "#2088.Composition(#2088)\0"
    "#2089.ExplAttrInfos(#2090,REQ)\0"
    "#2091.ExplAttrInfos(#983,REQ)\0"
    "#2088.Attributes(#2089,#2091)\0"
    "#2092.Supertypes(#980)\0"
    "#2092.Composition(#2092,#980)\0"
    "#2093.ExplAttrInfos(#14,OPT)\0"
    "#2094.ExplAttrInfos(#122,OPT)\0"
    "#2095.ExplAttrInfos(#983,REQ)\0"
    "#2096.ExplAttrInfos(#84,OPT)\0"
    "#2097.ExplAttrInfos(#14,OPT)\0"
    "#2092.Attributes(#2093,#2094,#2095,#2096,#2097)\0"
    "#2098.Supertypes(#980)\0"
    "#2098.Composition(#2098,#980)\0"
    "#2099.ExplAttrInfos(#14,OPT)\0"
    "#2100.ExplAttrInfos(#122,OPT)\0"
    "#2101.ExplAttrInfos(#2102,OPT)\0"
    "#2098.Attributes(#2099,#2100,#2101)\0"
    "#2103.Supertypes(#1058)\0"
    "#2103.Composition(#2103,#1058)\0"
    "#2104.ExplAttrInfos(#983,REQ)\0"
    "#2103.Attributes(#2104)\0"
    "#2105.Supertypes(#980)\0"
    "#2105.Composition(#980,#2105)\0"
    "#2106.ExplAttrInfos(#983,OPT)\0"
    "#2107.ExplAttrInfos(#82,REQ)\0"
    "#2108.ExplAttrInfos(#63,OPT)\0"
    "#2109.ExplAttrInfos(#14,OPT)\0"
    "#2110.ExplAttrInfos(#122,OPT)\0"
    "#2111.ExplAttrInfos(#14,OPT)\0"
    "#2112.ExplAttrInfos(#6,OPT)\0"
    "#2105.Attributes(#2106,#2107,#2108,#2109,#2110,#2111,#2112)\0"
    "#2113.Supertypes(#980)\0"
    "#2113.Composition(#980,#2113)\0"
    "#2116.ExplAttrInfos(#14,OPT)\0"
    "#2117.ExplAttrInfos(#122,OPT)\0"
    "#2113.Attributes(#2114,#2116,#2117)\0"
    "#2118.Supertypes(#988)\0"
    "#2118.Composition(#2118,#988)\0"
    "#2119.ExplAttrInfos(#2113,REQ)\0"
    "#2120.ExplAttrInfos(#413,REQ)\0"
    "#2121.ExplAttrInfos(#309,REQ)\0"
    "#2122.ExplAttrInfos(#56,REQ)\0"
    "#2123.ExplAttrInfos(#90,OPT)\0"
    "#2118.Attributes(#2119,#2120,#2121,#2122,#2123)\0"
    "#2124.Supertypes(#2105)\0"
    "#2124.Composition(#980,#2105,#2124)\0"
    "#2125.ExplAttrInfos(#413,REQ)\0"
    "#2124.Attributes(#2125,#2126)\0"
    "#2128.Supertypes(#980)\0"
    "#2128.Composition(#980,#2128)\0"
    "#2129.ExplAttrInfos(#14,OPT)\0"
    "#2130.ExplAttrInfos(#122,OPT)\0"
    "#2131.ExplAttrInfos(#983,OPT)\0"
    "#2132.ExplAttrInfos(#1106,REQ)\0"
    "#2133.ExplAttrInfos(#6,OPT)\0"
    "#2134.ExplAttrInfos(#14,OPT)\0"
    "#2128.Attributes(#2129,#2130,#2131,#2132,#2133,#2134)\0"
    "#2135.Supertypes(#980)\0"
    "#2135.Composition(#980,#2135)\0"
    "#2136.ExplAttrInfos(#14,OPT)\0"
    "#2137.ExplAttrInfos(#122,OPT)\0"
    "#2140.ExplAttrInfos(#1534,OPT)\0"
    "#2135.Attributes(#2136,#2137,#2138,#2140)\0"
    "#2141.Supertypes(#988)\0"
    "#2141.Composition(#2141,#988)\0"
    "#2142.ExplAttrInfos(#2135,REQ)\0"
    "#2143.ExplAttrInfos(#16,OPT)\0"
    "#2144.ExplAttrInfos(#90,OPT)\0"
    "#2141.Attributes(#2142,#2143,#2144)\0"
    "#2145.Supertypes(#2141)\0"
    "#2145.Composition(#2141,#2145,#988)\0"
    "#2146.ExplAttrInfos(#2135,REQ)\0"
    "#2147.ExplAttrInfos(#16,OPT)\0"
    "#2145.Attributes(#2146,#2147)\0"
    "#2148.Supertypes(#2128)\0"
    "#2148.Composition(#980,#2128,#2148)\0"
    "#2149.ExplAttrInfos(#2150,REQ)\0"
    "#2148.Attributes(#2149)\0"
    "#2151.Supertypes(#1843)\0"
    "#2151.Composition(#1843,#2151,#1109)\0"
    "#2152.ExplAttrInfos(#980,REQ)\0"
    "#2151.Attributes(#2152)\0"
    "#2153.Supertypes(#1279)\0"
    "#2153.Composition(#2153,#1279)\0"
    "#2154.ExplAttrInfos(#983,REQ)\0"
    "#2157.ExplAttrInfos(#14,OPT)\0"
    "#2153.Attributes(#2154,#2155,#2157)\0"
    "#2158.Supertypes(#1422)\0"
    "#2158.Composition(#1163,#1422,#2158,#1043,#806,#1068,#98)\0"
    "#2159.ExplAttrInfos(#90,OPT)\0"
    "#2160.ExplAttrInfos(#90,OPT)\0"
    "#2161.ExplAttrInfos(#425,OPT)\0"
    "#2158.Attributes(#2159,#2160,#2161)\0"
    "#2162.Supertypes(#1425)\0"
    "#2162.Composition(#1425,#1201,#2162,#806,#98,#1048,#1072)\0"
    "#2163.ExplAttrInfos(#425,REQ)\0"
    "#2164.ExplAttrInfos(#90,OPT)\0"
    "#2165.ExplAttrInfos(#90,OPT)\0"
    "#2162.Attributes(#2163,#2164,#2165)\0"
    "#2166.Supertypes(#1212)\0"
    "#2166.Composition(#1196,#1213,#1163,#1212,#2166,#1043,#806,#1068,#98)\0"
    "#2167.ExplAttrInfos(#427,OPT)\0"
    "#2168.Supertypes(#1223)\0"
    "#2168.Composition(#1200,#1220,#1201,#1223,#2168,#806,#98,#1048,#1072)\0"
    "#2169.ExplAttrInfos(#427,REQ)\0"
    "#2170.Supertypes(#1360)\0"
    "#2170.Composition(#1360,#1163,#2170,#1043,#806,#1068,#98)\0"
    "#2171.ExplAttrInfos(#429,OPT)\0"
    "#2172.Supertypes(#2170)\0"
    "#2172.Composition(#1360,#1163,#2170,#2172,#1043,#806,#1068,#98)\0"
    "#2173.Supertypes(#1364)\0"
    "#2173.Composition(#1364,#1201,#2173,#806,#98,#1048,#1072)\0"
    "#2174.ExplAttrInfos(#429,REQ)\0"
    "#2173.Attributes(#2174)\0"
    "#2175.Supertypes(#1090)\0"
    "#2175.Composition(#1090,#2175)\0"
    "#2176.ExplAttrInfos(#237,REQ)\0"
    "#2177.ExplAttrInfos(#14,OPT)\0"
    "#2178.ExplAttrInfos(#1029,OPT)\0"
    "#2179.ExplAttrInfos(#650,OPT)\0"
    "#2175.Attributes(#2176,#2177,#2178,#2179)\0"
    "#2180.Supertypes(#1683)\0"
    "#2180.Composition(#1683,#2180,#1106)\0"
    "#1.Entities(#1784,#1787,#1212,#1223,#1764,#1767,#1906,#1908,#1910,#1911,#1912,#1914,#1917,#1919,#1921,#747,#661,#1925,#1922,#1930,#938,#1938,#1293,#684,#1941,#1943,#1945,#1947,#1949,#1957,#1959,#1965,#1970,#1973,#1977,#1987,#1991,#1993,#1995,#1996,#2004,#2006,#2011,#2013,#2015,#2022,#2024,#2026,#2029,#2031,#955,#962,#971,#2033,#2035,#968,#2037,#2042,#2043,#2045,#2052,#2058,#2063,#2066,#2067,#1236,#2075,#1140,#1205,#2078,#2085,#983,#2088,#2092,#2098,#980,#2103,#2105,#2113,#2118,#2124,#981,#2128,#2135,#2141,#2145,#2148,#2151,#2153,#988,#616,#2158,#2162,#2166,#2168,#2170,#2172,#2173,#2175,#2180)\0"
    "#2181.Supertypes(#1226)\0"
    "#2181.Composition(#1196,#1213,#1163,#1226,#2181,#1043,#806,#1068,#98)\0"
    "#2182.ExplAttrInfos(#431,OPT)\0"
    "#2181.Attributes(#2182)\0"
    "#2183.Supertypes(#1229)\0"
    "#2183.Composition(#1200,#1220,#1201,#1229,#2183,#806,#98,#1048,#1072)\0"
    "#2184.ExplAttrInfos(#431,REQ)\0"
    "#2183.Attributes(#2184)\0"
    "#2185.Supertypes(#1090)\0"
    "#2185.Composition(#1090,#2185)\0"
    "#2186.ExplAttrInfos(#2187,OPT)\0"
    "#2188.ExplAttrInfos(#423,OPT)\0"
    "#2189.ExplAttrInfos(#437,REQ)\0"
    "#2190.ExplAttrInfos(#14,OPT)\0"
    "#2185.Attributes(#2186,#2188,#2189,#2190)\0"
    "#2191.Supertypes(#1192)\0"
    "#2191.Composition(#1192,#1043,#806,#2191,#98)\0"
    "#2192.ExplAttrInfos(#439,OPT)\0"
    "#2193.Supertypes(#778)\0"
    "#2193.Composition(#778,#661,#2193,#662)\0"
    "#2194.ExplAttrInfos(#778,REQ)\0"
    "#2195.Supertypes(#2193)\0"
    "#2195.Composition(#778,#661,#2193,#2195,#662)\0"
    "#2196.ExplAttrInfos(#56,REQ)\0"
    "#2197.ExplAttrInfos(#63,REQ)\0"
    "#2195.Attributes(#2196,#2197)\0"
    "#2198.Composition(#778,#661,#2193,#2198,#662)\0"
    "#2199.ExplAttrInfos(#56,REQ)\0"
    "#2200.ExplAttrInfos(#63,REQ)\0"
    "#2201.ExplAttrInfos(#669,REQ)\0"
    "#2198.Attributes(#2199,#2200,#2201)\0"
    "#2202.Supertypes(#2193)\0"
    "#2202.Composition(#778,#661,#2193,#2202,#662)\0"
    "#2203.ExplAttrInfos(#2204,REQ)\0"
    "#2205.ExplAttrInfos(#14,OPT)\0"
    "#2202.Attributes(#2203,#2205)\0"
    "#2206.Supertypes(#1884)\0"
    "#2206.Composition(#1163,#1882,#1884,#1043,#806,#2206,#1068,#98)\0"
    "#2207.ExplAttrInfos(#441,OPT)\0"
    "#2206.Attributes(#2207)\0"
    "#2208.Supertypes(#2206)\0"
    "#2208.Composition(#1163,#1882,#1884,#1043,#806,#2206,#2208,#1068,#98)\0"
    "#2209.Supertypes(#1279)\0"
    "#2209.Composition(#2209,#1279)\0"
    "#2210.ExplAttrInfos(#133,REQ)\0"
    "#2209.Attributes(#2210,#2211)\0"
    "#2213.Supertypes(#1380)\0"
    "#2213.Composition(#1380,#777,#776,#775,#778,#661,#2213,#662)\0"
    "#2214.Supertypes(#1212)\0"
    "#2214.Composition(#1196,#1213,#1163,#1212,#1043,#806,#2214,#1068,#98)\0"
    "#2215.ExplAttrInfos(#443,OPT)\0"
    "#2214.Attributes(#2215)\0"
    "#2216.Supertypes(#1223)\0"
    "#2216.Composition(#1200,#1220,#1201,#1223,#806,#2216,#98,#1048,#1072)\0"
    "#2217.ExplAttrInfos(#443,REQ)\0"
    "#2216.Attributes(#2217)\0"
    "#2218.Supertypes(#1491)\0"
    "#2218.Composition(#1491,#778,#661,#2218,#662)\0"
    "#2219.ExplAttrInfos(#56,REQ)\0"
    "#2218.Attributes(#2219)\0"
    "#2220.Supertypes(#798)\0"
    "#2220.Composition(#2220,#662,#798)\0"
    "#2221.ExplAttrInfos(#2222,REQ)\0"
    "#2220.Attributes(#2221)\0"
    "#2223.Supertypes(#1187)\0"
    "#2223.Composition(#1187,#1043,#806,#2223,#98)\0"
    "#2225.ExplAttrInfos(#445,OPT)\0"
    "#2223.Attributes(#2224,#2225)\0"
    "#2226.Supertypes(#1722)\0"
    "#2226.Composition(#2226,#1722,#97,#96,#98)\0"
    "#2227.ExplAttrInfos(#447,REQ)\0"
    "#2228.ExplAttrInfos(#599,REQ)\0"
    "#2229.ExplAttrInfos(#90,OPT)\0"
    "#2230.ExplAttrInfos(#90,OPT)\0"
    "#2231.ExplAttrInfos(#1110,OPT)\0"
    "#2226.Attributes(#2227,#2228,#2229,#2230,#2231)\0"
    "#2232.Supertypes(#1187)\0"
    "#2232.Composition(#1187,#1043,#806,#2232,#98)\0"
    "#2233.ExplAttrInfos(#449,OPT)\0"
    "#2234.ExplAttrInfos(#14,OPT)\0"
    "#2235.ExplAttrInfos(#122,OPT)\0"
    "#2232.Attributes(#2233,#2234,#2235)\0"
    "#2236.Supertypes(#1103)\0"
    "#2236.Composition(#2236,#1103)\0"
    "#2237.ExplAttrInfos(#2238,REQ)\0"
    "#2239.ExplAttrInfos(#14,REQ)\0"
    "#2240.ExplAttrInfos(#14,OPT)\0"
    "#2241.ExplAttrInfos(#14,OPT)\0"
    "#2236.Attributes(#2237,#2239,#2240,#2241)\0"
    "#2242.Supertypes(#1103)\0"
    "#2242.Composition(#1103,#2242)\0"
    "#2243.ExplAttrInfos(#631,OPT)\0"
    "#2242.Attributes(#2243)\0"
    "#2244.Supertypes(#1360)\0"
    "#2244.Composition(#1360,#1163,#1043,#806,#2244,#1068,#98)\0"
    "#2245.ExplAttrInfos(#455,OPT)\0"
    "#2246.ExplAttrInfos(#453,OPT)\0"
    "#2244.Attributes(#2245,#2246)\0"
    "#2247.Supertypes(#1364)\0"
    "#2247.Composition(#1364,#1201,#806,#2247,#98,#1048,#1072)\0"
    "#2248.ExplAttrInfos(#455,REQ)\0"
    "#2247.Attributes(#2248)\0"
    "#2249.Supertypes(#1448)\0"
    "#2249.Composition(#1196,#1213,#1163,#1448,#1043,#806,#2249,#1068,#98)\0"
    "#2250.ExplAttrInfos(#457,OPT)\0"
    "#2249.Attributes(#2250)\0"
    "#2251.Supertypes(#1451)\0"
    "#2251.Composition(#1200,#1220,#1201,#1451,#806,#2251,#98,#1048,#1072)\0"
    "#2252.ExplAttrInfos(#457,REQ)\0"
    "#2251.Attributes(#2252)\0"
    "#2253.Supertypes(#1454)\0"
    "#2253.Composition(#1196,#1213,#1163,#1454,#1043,#806,#2253,#1068,#98)\0"
    "#2254.ExplAttrInfos(#459,OPT)\0"
    "#2255.Supertypes(#1457)\0"
    "#2255.Composition(#1200,#1220,#1201,#1457,#806,#2255,#98,#1048,#1072)\0"
    "#2256.ExplAttrInfos(#459,REQ)\0"
    "#2255.Attributes(#2256)\0"
    "#2257.Supertypes(#886)\0"
    "#2257.Composition(#2257,#729,#886)\0"
    "#2258.ExplAttrInfos(#6,REQ)\0"
    "#2259.ExplAttrInfos(#6,REQ)\0"
    "#2260.ExplAttrInfos(#6,REQ)\0"
    "#2261.ExplAttrInfos(#2262,REQ)\0"
    "#2257.Attributes(#2258,#2259,#2260,#2261)\0"
    "#2264.Supertypes(#661)\0"
    "#2264.Composition(#661,#2264,#662)\0"
    "#2265.ExplAttrInfos(#56,REQ)\0"
    "#2266.ExplAttrInfos(#56,REQ)\0"
    "#2264.Attributes(#2265,#2266)\0"
    "#2263.Supertypes(#2264)\0"
    "#2263.Composition(#661,#2263,#2264,#662)\0"
    "#2267.ExplAttrInfos(#676,REQ)\0"
    "#2263.Attributes(#2267)\0"
    "#2268.Supertypes(#1360)\0"
    "#2268.Composition(#1360,#1163,#1043,#806,#2268,#1068,#98)\0"
    "#2269.ExplAttrInfos(#461,OPT)\0"
    "#2268.Attributes(#2269)\0"
    "#2270.Supertypes(#2268)\0"
    "#2270.Composition(#1360,#1163,#1043,#806,#2268,#2270,#1068,#98)\0"
    "#2271.Supertypes(#1364)\0"
    "#2271.Composition(#1364,#1201,#806,#2271,#98,#1048,#1072)\0"
    "#2272.ExplAttrInfos(#461,REQ)\0"
    "#2271.Attributes(#2272)\0"
    "#2273.Supertypes(#665)\0"
    "#2273.Composition(#661,#665,#2273,#662)\0"
    "#2274.ExplAttrInfos(#778,REQ)\0"
    "#2275.ExplAttrInfos(#87,REQ)\0"
    "#2273.Attributes(#2274,#2275)\0"
    "#2276.Supertypes(#665)\0"
    "#2276.Composition(#661,#665,#2276,#662)\0"
    "#2277.ExplAttrInfos(#686,REQ)\0"
    "#2278.ExplAttrInfos(#87,REQ)\0"
    "#2279.ExplAttrInfos(#87,REQ)\0"
    "#2276.Attributes(#2277,#2278,#2279)\0"
    "#2280.Supertypes(#1140)\0"
    "#2280.Composition(#1140,#2280,#662,#798)\0"
    "#2281.ExplAttrInfos(#2282,REQ)\0"
    "#2280.Attributes(#2281)\0"
    "#2283.Supertypes(#684)\0"
    "#2283.Composition(#661,#684,#2283,#662)\0"
    "#2284.ExplAttrInfos(#672,REQ)\0"
    "#2285.ExplAttrInfos(#777,REQ)\0"
    "#2283.Attributes(#2284,#2285)\0"
    "#2286.Supertypes(#689)\0"
    "#2286.Composition(#661,#2286,#662,#689,#690)\0"
    "#2287.ExplAttrInfos(#13,OPT)\0"
    "#2288.ExplAttrInfos(#2289,REQ)\0"
    "#2290.ExplAttrInfos(#2291,OPT)\0"
    "#2286.Attributes(#2287,#2288,#2290)\0"
    "#2292.Supertypes(#777)\0"
    "#2292.Composition(#777,#778,#661,#2292,#662)\0"
    "#2292.Attributes(#2293)\0"
    "#2295.Supertypes(#1109)\0"
    "#2295.Composition(#2295,#1109)\0"
    "#2296.Composition(#2296)\0"
    "#2297.ExplAttrInfos(#14,REQ)\0"
    "#2298.ExplAttrInfos(#122,OPT)\0"
    "#2299.ExplAttrInfos(#2300,REQ)\0"
    "#2301.ExplAttrInfos(#48,OPT)\0"
    "#2296.Attributes(#2297,#2298,#2299,#2301)\0"
    "#2302.Supertypes(#2296)\0"
    "#2302.Composition(#2296,#2302)\0"
    "#2303.ExplAttrInfos(#63,REQ)\0"
    "#2304.ExplAttrInfos(#63,REQ)\0"
    "#2305.ExplAttrInfos(#63,REQ)\0"
    "#2306.ExplAttrInfos(#2307,REQ)\0"
    "#2302.Attributes(#2303,#2304,#2305,#2306)\0"
    "#2308.Supertypes(#1042)\0"
    "#2308.Composition(#1043,#806,#2308,#1042,#98)\0"
    "#2309.ExplAttrInfos(#465,OPT)\0"
    "#2308.Attributes(#2309)\0"
    "#2310.Supertypes(#1047)\0"
    "#2310.Composition(#806,#2310,#98,#1048,#1047)\0"
    "#2311.ExplAttrInfos(#465,REQ)\0"
    "#2310.Attributes(#2311)\0"
    "#2312.Supertypes(#1843)\0"
    "#2312.Composition(#1843,#2312,#1109)\0"
    "#2313.ExplAttrInfos(#1106,REQ)\0"
    "#2312.Attributes(#2313)\0"
    "#2314.Supertypes(#1606)\0"
    "#2314.Composition(#1606,#806,#2314,#98)\0"
    "#2315.Supertypes(#1606)\0"
    "#2315.Composition(#1606,#806,#2315,#98)\0"
    "#2316.Supertypes(#1187)\0"
    "#2316.Composition(#1187,#1043,#806,#2316,#98)\0"
    "#2317.ExplAttrInfos(#469,OPT)\0"
    "#2318.ExplAttrInfos(#14,OPT)\0"
    "#2319.ExplAttrInfos(#122,OPT)\0"
    "#2316.Attributes(#2317,#2318,#2319)\0"
    "#2320.Supertypes(#742)\0"
    "#2320.Composition(#742,#2320)\0"
    "#2321.ExplAttrInfos(#48,OPT)\0"
    "#2322.ExplAttrInfos(#48,OPT)\0"
    "#2323.ExplAttrInfos(#631,OPT)\0"
    "#2320.Attributes(#2321,#2322,#2323)\0"
    "#2324.Supertypes(#1883)\0"
    "#2324.Composition(#1163,#1882,#1883,#1043,#806,#1068,#2324,#98)\0"
    "#2325.ExplAttrInfos(#473,OPT)\0"
    "#2324.Attributes(#2325)\0"
    "#2327.Supertypes(#1521)\0"
    "#2327.Composition(#1521,#1109,#2327)\0"
    "#2326.Supertypes(#2327)\0"
    "#2326.Composition(#1521,#1109,#2326,#2327)\0"
    "#2328.ExplAttrInfos(#625,OPT)\0"
    "#2329.ExplAttrInfos(#625,OPT)\0"
    "#2330.ExplAttrInfos(#649,OPT)\0"
    "#2331.ExplAttrInfos(#625,OPT)\0"
    "#2326.Attributes(#2328,#2329,#2330,#2331)\0"
    "#2332.Supertypes(#1279)\0"
    "#2332.Composition(#2332,#1279)\0"
    "#2333.ExplAttrInfos(#1521,REQ)\0"
    "#2334.ExplAttrInfos(#1521,REQ)\0"
    "#2335.ExplAttrInfos(#122,OPT)\0"
    "#2332.Attributes(#2333,#2334,#2335)\0"
    "#2336.Supertypes(#2327)\0"
    "#2336.Composition(#1521,#1109,#2336,#2327)\0"
    "#2337.ExplAttrInfos(#2338,OPT)\0"
    "#2340.Supertypes(#1109)\0"
    "#2340.Composition(#1109,#2340)\0"
    "#2341.ExplAttrInfos(#14,REQ)\0"
    "#2342.ExplAttrInfos(#2343,REQ)\0"
    "#2344.ExplAttrInfos(#649,OPT)\0"
    "#2340.Attributes(#2341,#2342,#2344)\0"
    "#2339.ExplAttrInfos(#2340,OPT)\0"
    "#2336.Attributes(#2337,#2339)\0"
    "#2345.Supertypes(#2327)\0"
    "#2345.Composition(#1521,#1109,#2345,#2327)\0"
    "#2346.ExplAttrInfos(#2347,OPT)\0"
    "#2348.ExplAttrInfos(#649,OPT)\0"
    "#2345.Attributes(#2346,#2348)\0"
    "#2349.Supertypes(#2327)\0"
    "#2349.Composition(#1521,#1109,#2349,#2327)\0"
    "#2350.ExplAttrInfos(#122,OPT)\0"
    "#2351.ExplAttrInfos(#1037,OPT)\0"
    "#2349.Attributes(#2350,#2351)\0"
    "#2352.Supertypes(#96)\0"
    "#2352.Composition(#97,#2352,#96,#98)\0"
    "#2353.ExplAttrInfos(#2354,REQ)\0"
    "#2352.Attributes(#2353)\0"
    "#2355.Supertypes(#1529)\0"
    "#2355.Composition(#97,#2355,#1529,#98)\0"
    "#2356.ExplAttrInfos(#475,OPT)\0"
    "#2357.ExplAttrInfos(#48,OPT)\0"
    "#2358.ExplAttrInfos(#2359,REQ)\0"
    "#2355.Attributes(#2356,#2357,#2358)\0"
    "#2360.Supertypes(#2327)\0"
    "#2360.Composition(#1521,#1109,#2360,#2327)\0"
    "#2361.ExplAttrInfos(#625,OPT)\0"
    "#2362.ExplAttrInfos(#649,OPT)\0"
    "#2360.Attributes(#2361,#2362)\0"
    "#2363.Supertypes(#2327)\0"
    "#2363.Composition(#1521,#1109,#2363,#2327)\0"
    "#2364.ExplAttrInfos(#2365,OPT)\0"
    "#2366.ExplAttrInfos(#2367,OPT)\0"
    "#2368.ExplAttrInfos(#122,OPT)\0"
    "#2369.ExplAttrInfos(#649,OPT)\0"
    "#2370.ExplAttrInfos(#649,OPT)\0"
    "#2371.ExplAttrInfos(#301,OPT)\0"
    "#2363.Attributes(#2364,#2366,#2368,#2369,#2370,#2371)\0"
    "#1.Entities(#646,#2181,#2183,#631,#1043,#806,#1070,#2185,#2191,#2193,#2195,#2198,#2202,#1144,#2206,#2208,#133,#2209,#2071,#1771,#2213,#2214,#2216,#101,#2218,#1305,#2220,#786,#2223,#2226,#2232,#105,#103,#2236,#1103,#2242,#2244,#2247,#2249,#2251,#2253,#2255,#2257,#660,#2263,#2264,#1666,#2268,#2270,#2271,#665,#2273,#2276,#2280,#2283,#2286,#2292,#1706,#1237,#1412,#731,#769,#732,#2295,#1722,#919,#729,#2296,#2302,#837,#861,#2308,#2310,#1042,#1068,#1057,#1058,#1106,#2312,#2314,#2315,#2316,#2320,#2324,#1521,#1109,#2326,#97,#2332,#2336,#2340,#2345,#2349,#2352,#96,#2355,#2360,#2363,#1528,#1529)\0"
    "#2372.Supertypes(#1216)\0"
    "#2372.Composition(#1196,#1213,#1163,#1216,#1043,#806,#1068,#2372,#98)\0"
    "#2373.ExplAttrInfos(#479,OPT)\0"
    "#2374.Supertypes(#1195)\0"
    "#2374.Composition(#1195,#1196,#1163,#1043,#806,#1068,#2374,#98)\0"
    "#2375.ExplAttrInfos(#477,OPT)\0"
    "#2374.Attributes(#2375)\0"
    "#2376.Supertypes(#1199)\0"
    "#2376.Composition(#1199,#1200,#1201,#806,#2376,#98,#1048,#1072)\0"
    "#2377.ExplAttrInfos(#477,REQ)\0"
    "#2376.Attributes(#2377)\0"
    "#2378.Supertypes(#1219)\0"
    "#2378.Composition(#1200,#1220,#1201,#1219,#806,#2378,#98,#1048,#1072)\0"
    "#2379.ExplAttrInfos(#479,REQ)\0"
    "#2378.Attributes(#2379)\0"
    "#2380.Supertypes(#1068)\0"
    "#2380.Composition(#1043,#806,#1068,#2380,#98)\0"
    "#2381.ExplAttrInfos(#435,REQ)\0"
    "#2383.Supertypes(#1539)\0"
    "#2383.Composition(#1196,#1213,#1163,#1539,#1043,#806,#1068,#2383,#98)\0"
    "#2384.ExplAttrInfos(#481,OPT)\0"
    "#2383.Attributes(#2384)\0"
    "#2385.Supertypes(#1542)\0"
    "#2385.Composition(#1200,#1220,#1201,#1542,#806,#2385,#98,#1048,#1072)\0"
    "#2386.ExplAttrInfos(#481,REQ)\0"
    "#2385.Attributes(#2386)\0"
    "#2387.Supertypes(#2242)\0"
    "#2387.Composition(#1103,#2242,#2387)\0"
    "#2388.ExplAttrInfos(#11,REQ)\0"
    "#2389.ExplAttrInfos(#14,OPT)\0"
    "#2387.Attributes(#2388,#2389)\0"
    "#2390.Supertypes(#2242)\0"
    "#2390.Composition(#1103,#2242,#2390)\0"
    "#2391.ExplAttrInfos(#22,REQ)\0"
    "#2392.ExplAttrInfos(#14,OPT)\0"
    "#2390.Attributes(#2391,#2392)\0"
    "#2393.Supertypes(#2242)\0"
    "#2393.Composition(#1103,#2242,#2393)\0"
    "#2394.ExplAttrInfos(#56,REQ)\0"
    "#2395.ExplAttrInfos(#14,OPT)\0"
    "#2393.Attributes(#2394,#2395)\0"
    "#2396.Supertypes(#2242)\0"
    "#2396.Composition(#1103,#2242,#2396)\0"
    "#2397.ExplAttrInfos(#194,REQ)\0"
    "#2398.ExplAttrInfos(#14,OPT)\0"
    "#2396.Attributes(#2397,#2398)\0"
    "#2399.Supertypes(#2242)\0"
    "#2399.Composition(#1103,#2242,#2399)\0"
    "#2400.ExplAttrInfos(#198,REQ)\0"
    "#2401.ExplAttrInfos(#14,OPT)\0"
    "#2399.Attributes(#2400,#2401)\0"
    "#2402.Supertypes(#2242)\0"
    "#2402.Composition(#1103,#2242,#2402)\0"
    "#2403.ExplAttrInfos(#71,REQ)\0"
    "#2404.ExplAttrInfos(#14,OPT)\0"
    "#2402.Attributes(#2403,#2404)\0"
    "#2405.Supertypes(#1360)\0"
    "#2405.Composition(#1360,#1163,#1043,#806,#1068,#2405,#98)\0"
    "#2406.ExplAttrInfos(#483,OPT)\0"
    "#2405.Attributes(#2406)\0"
    "#2407.Supertypes(#1364)\0"
    "#2407.Composition(#1364,#1201,#806,#2407,#98,#1048,#1072)\0"
    "#2408.ExplAttrInfos(#483,REQ)\0"
    "#2409.Supertypes(#1360)\0"
    "#2409.Composition(#1360,#1163,#1043,#806,#1068,#2409,#98)\0"
    "#2410.ExplAttrInfos(#487,OPT)\0"
    "#2409.Attributes(#2410)\0"
    "#2411.Supertypes(#1360)\0"
    "#2411.Composition(#1360,#1163,#1043,#806,#1068,#2411,#98)\0"
    "#2412.ExplAttrInfos(#485,OPT)\0"
    "#2411.Attributes(#2412)\0"
    "#2413.Supertypes(#1364)\0"
    "#2413.Composition(#1364,#1201,#806,#2413,#98,#1048,#1072)\0"
    "#2414.ExplAttrInfos(#485,REQ)\0"
    "#2415.Supertypes(#1364)\0"
    "#2415.Composition(#1364,#1201,#806,#2415,#98,#1048,#1072)\0"
    "#2416.ExplAttrInfos(#487,REQ)\0"
    "#2415.Attributes(#2416)\0"
    "#2417.Supertypes(#1332)\0"
    "#2417.Composition(#777,#1325,#1332,#778,#661,#2417,#662)\0"
    "#2418.ExplAttrInfos(#2419,REQ)\0"
    "#2417.Attributes(#2418)\0"
    "#2420.Supertypes(#1349)\0"
    "#2420.Composition(#1339,#1338,#1349,#661,#2420,#662,#686)\0"
    "#2421.ExplAttrInfos(#2423,REQ)\0"
    "#2420.Attributes(#2421)\0"
    "#2425.Supertypes(#1305)\0"
    "#2425.Composition(#1305,#1106,#2425)\0"
    "#2427.ExplAttrInfos(#90,REQ)\0"
    "#2425.Attributes(#2426,#2427)\0"
    "#2424.Supertypes(#2425)\0"
    "#2424.Composition(#1305,#1106,#2424,#2425)\0"
    "#2428.ExplAttrInfos(#90,REQ)\0"
    "#2429.ExplAttrInfos(#82,OPT)\0"
    "#2430.ExplAttrInfos(#82,OPT)\0"
    "#2424.Attributes(#2428,#2429,#2430)\0"
    "#2431.Supertypes(#682)\0"
    "#2431.Composition(#682,#661,#2431,#662)\0"
    "#2432.ExplAttrInfos(#90,REQ)\0"
    "#2433.ExplAttrInfos(#90,REQ)\0"
    "#2434.ExplAttrInfos(#90,REQ)\0"
    "#2431.Attributes(#2432,#2433,#2434)\0"
    "#2435.Supertypes(#1339)\0"
    "#2435.Composition(#1339,#661,#2435,#662,#686)\0"
    "#2436.ExplAttrInfos(#686,REQ)\0"
    "#2437.ExplAttrInfos(#87,REQ)\0"
    "#2438.ExplAttrInfos(#87,REQ)\0"
    "#2439.ExplAttrInfos(#87,REQ)\0"
    "#2440.ExplAttrInfos(#87,REQ)\0"
    "#2441.ExplAttrInfos(#13,REQ)\0"
    "#2442.ExplAttrInfos(#13,REQ)\0"
    "#2435.Attributes(#2436,#2437,#2438,#2439,#2440,#2441,#2442)\0"
    "#2443.Composition(#2443)\0"
    "#2444.ExplAttrInfos(#489,REQ)\0"
    "#2445.ExplAttrInfos(#2446,OPT)\0"
    "#2447.ExplAttrInfos(#2448,OPT)\0"
    "#2449.ExplAttrInfos(#2450,OPT)\0"
    "#2451.ExplAttrInfos(#6,OPT)\0"
    "#2452.ExplAttrInfos(#6,OPT)\0"
    "#2453.ExplAttrInfos(#6,OPT)\0"
    "#2455.Composition(#2455)\0"
    "#2456.ExplAttrInfos(#193,REQ)\0"
    "#2457.ExplAttrInfos(#193,REQ)\0"
    "#2454.ExplAttrInfos(#2458,OPT)\0"
    "#2443.Attributes(#2444,#2445,#2447,#2449,#2451,#2452,#2453,#2454)\0"
    "#2459.Supertypes(#1237)\0"
    "#2459.Composition(#1043,#806,#1237,#1068,#2459,#98)\0"
    "#2460.ExplAttrInfos(#491,OPT)\0"
    "#2461.ExplAttrInfos(#56,OPT)\0"
    "#2459.Attributes(#2460,#2461)\0"
    "#2462.Supertypes(#1019)\0"
    "#2462.Composition(#2462,#1019)\0"
    "#2463.ExplAttrInfos(#194,REQ)\0"
    "#2465.Composition(#2465)\0"
    "#2466.ExplAttrInfos(#2467,REQ)\0"
    "#2465.Attributes(#2466)\0"
    "#2464.ExplAttrInfos(#2468,REQ)\0"
    "#2462.Attributes(#2463,#2464)\0"
    "#2469.Supertypes(#2295)\0"
    "#2469.Composition(#2295,#1109,#2469)\0"
    "#2470.ExplAttrInfos(#11,REQ)\0"
    "#2471.ExplAttrInfos(#14,REQ)\0"
    "#2472.ExplAttrInfos(#497,OPT)\0"
    "#2473.ExplAttrInfos(#56,OPT)\0"
    "#2474.ExplAttrInfos(#90,OPT)\0"
    "#2475.ExplAttrInfos(#22,OPT)\0"
    "#2469.Attributes(#2470,#2471,#2472,#2473,#2474,#2475)\0"
    "#2476.Supertypes(#1722)\0"
    "#2476.Composition(#1722,#97,#96,#2476,#98)\0"
    "#2477.ExplAttrInfos(#14,OPT)\0"
    "#2479.Supertypes(#2295)\0"
    "#2479.Composition(#2295,#1109,#2479)\0"
    "#2480.ExplAttrInfos(#56,REQ)\0"
    "#2481.ExplAttrInfos(#56,REQ)\0"
    "#2482.ExplAttrInfos(#56,OPT)\0"
    "#2483.ExplAttrInfos(#495,REQ)\0"
    "#2485.Supertypes(#2295)\0"
    "#2485.Composition(#2295,#1109,#2485)\0"
    "#2486.ExplAttrInfos(#511,REQ)\0"
    "#2487.ExplAttrInfos(#1106,REQ)\0"
    "#2488.ExplAttrInfos(#1106,OPT)\0"
    "#2485.Attributes(#2486,#2487,#2488)\0"
    "#2484.ExplAttrInfos(#2485,REQ)\0"
    "#2489.ExplAttrInfos(#2490,REQ)\0"
    "#2479.Attributes(#2480,#2481,#2482,#2483,#2484,#2489)\0"
    "#2478.ExplAttrInfos(#2491,REQ)\0"
    "#2476.Attributes(#2477,#2478)\0"
    "#2493.Supertypes(#1422)\0"
    "#2493.Composition(#1163,#1422,#1043,#806,#1068,#2493,#98)\0"
    "#2494.ExplAttrInfos(#14,OPT)\0"
    "#2493.Attributes(#2494)\0"
    "#2492.Supertypes(#2493)\0"
    "#2492.Composition(#1163,#1422,#1043,#806,#1068,#2492,#2493,#98)\0"
    "#2495.ExplAttrInfos(#90,OPT)\0"
    "#2496.ExplAttrInfos(#11,OPT)\0"
    "#2497.ExplAttrInfos(#90,OPT)\0"
    "#2498.ExplAttrInfos(#499,OPT)\0"
    "#2499.ExplAttrInfos(#497,OPT)\0"
    "#2492.Attributes(#2495,#2496,#2497,#2498,#2499)\0"
    "#2501.Supertypes(#1425)\0"
    "#2501.Composition(#1425,#1201,#806,#2501,#98,#1048,#1072)\0"
    "#2500.Supertypes(#2501)\0"
    "#2500.Composition(#1425,#1201,#806,#2500,#2501,#98,#1048,#1072)\0"
    "#2502.ExplAttrInfos(#499,REQ)\0"
    "#2505.ExplAttrInfos(#90,OPT)\0"
    "#2506.ExplAttrInfos(#497,OPT)\0"
    "#2507.ExplAttrInfos(#14,OPT)\0"
    "#2508.ExplAttrInfos(#2509,OPT)\0"
    "#2500.Attributes(#2502,#2503,#2504,#2505,#2506,#2507,#2508)\0"
    "#2510.Supertypes(#2493)\0"
    "#2510.Composition(#1163,#1422,#1043,#806,#1068,#2493,#2510,#98)\0"
    "#2519.ExplAttrInfos(#501,OPT)\0"
    "#2510.Attributes(#2511,#2512,#2513,#2514,#2515,#2516,#2517,#2518,#2519)\0"
    "#2520.Supertypes(#2501)\0"
    "#2520.Composition(#1425,#1201,#806,#2501,#2520,#98,#1048,#1072)\0"
    "#2521.ExplAttrInfos(#501,REQ)\0"
    "#2522.ExplAttrInfos(#90,OPT)\0"
    "#2523.ExplAttrInfos(#90,OPT)\0"
    "#2524.ExplAttrInfos(#90,OPT)\0"
    "#2525.ExplAttrInfos(#90,OPT)\0"
    "#2526.ExplAttrInfos(#11,OPT)\0"
    "#2527.ExplAttrInfos(#11,OPT)\0"
    "#2528.ExplAttrInfos(#90,OPT)\0"
    "#2529.ExplAttrInfos(#90,OPT)\0"
    "#2530.ExplAttrInfos(#14,OPT)\0"
    "#2531.ExplAttrInfos(#2532,OPT)\0"
    "#2520.Attributes(#2521,#2522,#2523,#2524,#2525,#2526,#2527,#2528,#2529,#2530,#2531)\0"
    "#2535.Supertypes(#98)\0"
    "#2535.Composition(#2535,#98)\0"
    "#2534.Supertypes(#2535)\0"
    "#2534.Composition(#2535,#2534,#98)\0"
    "#2533.Supertypes(#2534)\0"
    "#2533.Composition(#2533,#2535,#2534,#98)\0"
    "#2536.ExplAttrInfos(#806,REQ)\0"
    "#2537.ExplAttrInfos(#2538,REQ)\0"
    "#2533.Attributes(#2536,#2537)\0"
    "#2539.Supertypes(#2535)\0"
    "#2539.Composition(#2539,#2535,#98)\0"
    "#2540.ExplAttrInfos(#2541,REQ)\0"
    "#2542.ExplAttrInfos(#435,OPT)\0"
    "#2539.Attributes(#2540,#2542)\0"
    "#2543.Supertypes(#2539)\0"
    "#2543.Composition(#2539,#2543,#2535,#98)\0"
    "#2544.ExplAttrInfos(#1192,REQ)\0"
    "#2545.ExplAttrInfos(#116,OPT)\0"
    "#2543.Attributes(#2544,#2545)\0"
    "#2546.Supertypes(#2539)\0"
    "#2546.Composition(#2539,#2546,#2535,#98)\0"
    "#2547.ExplAttrInfos(#1187,REQ)\0"
    "#2548.Supertypes(#2539)\0"
    "#2548.Composition(#2539,#2548,#2535,#98)\0"
    "#2549.ExplAttrInfos(#1293,REQ)\0"
    "#2550.Supertypes(#2548)\0"
    "#2550.Composition(#2539,#2548,#2550,#2535,#98)\0"
    "#2551.ExplAttrInfos(#83,REQ)\0"
    "#2550.Attributes(#2551)\0"
    "#2552.Supertypes(#2539)\0"
    "#2552.Composition(#2539,#2552,#2535,#98)\0"
    "#2553.ExplAttrInfos(#1056,REQ)\0"
    "#2554.ExplAttrInfos(#616,OPT)\0"
    "#2552.Attributes(#2553,#2554)\0"
    "#2555.Supertypes(#2539)\0"
    "#2555.Composition(#2539,#2555,#2535,#98)\0"
    "#2556.ExplAttrInfos(#1077,REQ)\0"
    "#2555.Attributes(#2556)\0"
    "#2557.Supertypes(#2539)\0"
    "#2557.Composition(#2539,#2557,#2535,#98)\0"
    "#2558.ExplAttrInfos(#1128,REQ)\0"
    "#2557.Attributes(#2558)\0"
    "#2559.Supertypes(#2535)\0"
    "#2559.Composition(#2559,#2535,#98)\0"
    "#2560.ExplAttrInfos(#2561,REQ)\0"
    "#2559.Attributes(#2560)\0"
    "#2562.Supertypes(#2559)\0"
    "#2562.Composition(#2559,#2562,#2535,#98)\0"
    "#2563.ExplAttrInfos(#1080,REQ)\0"
    "#2564.Supertypes(#2559)\0"
    "#2564.Composition(#2559,#2564,#2535,#98)\0"
    "#2565.ExplAttrInfos(#727,REQ)\0"
    "#2564.Attributes(#2565)\0"
    "#2566.Supertypes(#2559)\0"
    "#2566.Composition(#2559,#2566,#2535,#98)\0"
    "#2567.ExplAttrInfos(#14,OPT)\0"
    "#2568.ExplAttrInfos(#1090,REQ)\0"
    "#2566.Attributes(#2567,#2568)\0"
    "#2569.Supertypes(#2559)\0"
    "#2569.Composition(#2559,#2569,#2535,#98)\0"
    "#2570.ExplAttrInfos(#832,REQ)\0"
    "#2569.Attributes(#2570)\0"
    "#2571.Supertypes(#2559)\0"
    "#2571.Composition(#2559,#2571,#2535,#98)\0"
    "#2572.ExplAttrInfos(#967,REQ)\0"
    "#2571.Attributes(#2572)\0"
    "#2573.Supertypes(#2559)\0"
    "#2573.Composition(#2559,#2573,#2535,#98)\0"
    "#2574.ExplAttrInfos(#990,REQ)\0"
    "#2573.Attributes(#2574)\0"
    "#2575.Supertypes(#2535)\0"
    "#2575.Composition(#2535,#2575,#98)\0"
    "#2576.Supertypes(#2575)\0"
    "#2576.Composition(#2535,#2575,#2576,#98)\0"
    "#2577.ExplAttrInfos(#1549,OPT)\0"
    "#2578.ExplAttrInfos(#1163,REQ)\0"
    "#2579.ExplAttrInfos(#1163,REQ)\0"
    "#2576.Attributes(#2577,#2578,#2579)\0"
    "#2580.Supertypes(#2576)\0"
    "#2580.Composition(#2535,#2575,#2576,#2580,#98)\0"
    "#2581.ExplAttrInfos(#2582,REQ)\0"
    "#2583.ExplAttrInfos(#2584,REQ)\0"
    "#2585.ExplAttrInfos(#275,REQ)\0"
    "#2586.ExplAttrInfos(#275,REQ)\0"
    "#2580.Attributes(#2581,#2583,#2585,#2586)\0"
    "#2587.Supertypes(#2575)\0"
    "#2587.Composition(#2535,#2575,#2587,#98)\0"
    "#2588.ExplAttrInfos(#1706,REQ)\0"
    "#2589.ExplAttrInfos(#1196,REQ)\0"
    "#2587.Attributes(#2588,#2589)\0"
    "#2590.Supertypes(#2575)\0"
    "#2590.Composition(#2535,#2575,#2590,#98)\0"
    "#2591.ExplAttrInfos(#1706,REQ)\0"
    "#2592.ExplAttrInfos(#1706,REQ)\0"
    "#2593.ExplAttrInfos(#1163,OPT)\0"
    "#2590.Attributes(#2591,#2592,#2593)\0"
    "#2594.Supertypes(#2575)\0"
    "#2594.Composition(#2535,#2575,#2594,#98)\0"
    "#2595.ExplAttrInfos(#1167,REQ)\0"
    "#2597.Supertypes(#1068)\0"
    "#2597.Composition(#1043,#806,#1068,#98,#2597)\0"
    "#2599.Composition(#2599)\0"
    "#2600.ExplAttrInfos(#14,OPT)\0"
    "#2599.Attributes(#2600)\0"
    "#2598.ExplAttrInfos(#2599,REQ)\0"
    "#2601.ExplAttrInfos(#391,REQ)\0"
    "#2597.Attributes(#2598,#2601)\0"
    "#2596.ExplAttrInfos(#2597,REQ)\0"
    "#2594.Attributes(#2595,#2596)\0"
    "#2602.Supertypes(#2575)\0"
    "#2602.Composition(#2535,#2575,#2602,#98)\0"
    "#2604.Supertypes(#1165)\0"
    "#2604.Composition(#1043,#806,#1068,#98,#1165,#2604)\0"
    "#2603.ExplAttrInfos(#2604,REQ)\0"
    "#2606.Supertypes(#1165)\0"
    "#2606.Composition(#1043,#806,#1068,#98,#2606,#1165)\0"
    "#2607.ExplAttrInfos(#1378,OPT)\0"
    "#2606.Attributes(#2607)\0"
    "#2605.ExplAttrInfos(#2606,REQ)\0"
    "#2608.ExplAttrInfos(#1378,OPT)\0"
    "#2609.ExplAttrInfos(#1866,OPT)\0"
    "#2610.ExplAttrInfos(#56,OPT)\0"
    "#2611.ExplAttrInfos(#672,OPT)\0"
    "#2602.Attributes(#2603,#2605,#2608,#2609,#2610,#2611)\0"
    "#2612.Supertypes(#2602)\0"
    "#2612.Composition(#2535,#2575,#2602,#2612,#98)\0"
    "#2613.ExplAttrInfos(#1549,REQ)\0"
    "#2612.Attributes(#2613)\0"
    "#2614.Supertypes(#2576)\0"
    "#2614.Composition(#2535,#2575,#2576,#2614,#98)\0"
    "#2615.ExplAttrInfos(#2616,REQ)\0"
    "#2617.ExplAttrInfos(#14,OPT)\0"
    "#2614.Attributes(#2615,#2617)\0"
    "#2618.Supertypes(#2575)\0"
    "#2618.Composition(#2535,#2575,#2618,#98)\0"
    "#2619.ExplAttrInfos(#2620,REQ)\0"
    "#2621.ExplAttrInfos(#1151,REQ)\0"
    "#2618.Attributes(#2619,#2621)\0"
    "#2622.Supertypes(#2575)\0"
    "#2622.Composition(#2535,#2575,#2622,#98)\0"
    "#2623.ExplAttrInfos(#1163,REQ)\0"
    "#2624.ExplAttrInfos(#2625,REQ)\0"
    "#2622.Attributes(#2623,#2624)\0"
    "#2626.Supertypes(#2575)\0"
    "#2626.Composition(#2535,#2575,#2626,#98)\0"
    "#2627.ExplAttrInfos(#1154,REQ)\0"
    "#2628.ExplAttrInfos(#2629,REQ)\0"
    "#2626.Attributes(#2627,#2628)\0"
    "#2630.Supertypes(#2535)\0"
    "#2630.Composition(#2535,#2630,#98)\0"
    "#2631.ExplAttrInfos(#1606,REQ)\0"
    "#2632.ExplAttrInfos(#2633,REQ)\0"
    "#2630.Attributes(#2631,#2632)\0"
    "#2634.Supertypes(#2535)\0"
    "#2634.Composition(#2535,#2634,#98)\0"
    "#2635.Supertypes(#2634)\0"
    "#2635.Composition(#2535,#2634,#2635,#98)\0"
    "#2636.ExplAttrInfos(#2637,REQ)\0"
    "#2638.ExplAttrInfos(#1043,REQ)\0"
    "#2635.Attributes(#2636,#2638)\0"
    "#2639.Supertypes(#2634)\0"
    "#2639.Composition(#2535,#2634,#2639,#98)\0"
    "#2640.ExplAttrInfos(#2641,REQ)\0"
    "#2642.ExplAttrInfos(#1079,REQ)\0"
    "#2639.Attributes(#2640,#2642)\0"
    "#2643.Supertypes(#2634)\0"
    "#2643.Composition(#2535,#2634,#2643,#98)\0"
    "#2646.ExplAttrInfos(#2355,REQ)\0"
    "#2647.Supertypes(#2634)\0"
    "#2647.Composition(#2535,#2634,#2647,#98)\0"
    "#2648.ExplAttrInfos(#2649,REQ)\0"
    "#2650.ExplAttrInfos(#1048,REQ)\0"
    "#2647.Attributes(#2648,#2650)\0"
    "#2651.Supertypes(#2575)\0"
    "#2651.Composition(#2535,#2575,#2651,#98)\0"
    "#2652.ExplAttrInfos(#2206,REQ)\0"
    "#2653.ExplAttrInfos(#1163,REQ)\0"
    "#2651.Attributes(#2652,#2653)\0"
    "#2654.Supertypes(#2575)\0"
    "#2654.Composition(#2535,#2575,#2654,#98)\0"
    "#2657.ExplAttrInfos(#1213,REQ)\0"
    "#2654.Attributes(#2655,#2657)\0"
    "#2658.Supertypes(#2575)\0"
    "#2658.Composition(#2535,#2575,#2658,#98)\0"
    "#2659.ExplAttrInfos(#1163,REQ)\0"
    "#2660.ExplAttrInfos(#1163,REQ)\0"
    "#2661.ExplAttrInfos(#1549,OPT)\0"
    "#2662.ExplAttrInfos(#48,OPT)\0"
    "#2663.ExplAttrInfos(LogicalType,REQ)\0"
    "#2658.Attributes(#2659,#2660,#2661,#2662,#2663)\0"
    "#2664.Supertypes(#2534)\0"
    "#2664.Composition(#2535,#2534,#2664,#98)\0"
    "#2665.ExplAttrInfos(#806,REQ)\0"
    "#2666.ExplAttrInfos(#2667,REQ)\0"
    "#2664.Attributes(#2665,#2666)\0"
    "#2668.Supertypes(#2534)\0"
    "#2668.Composition(#2535,#2534,#2668,#98)\0"
    "#2669.ExplAttrInfos(#1163,REQ)\0"
    "#2670.ExplAttrInfos(#1883,REQ)\0"
    "#2668.Attributes(#2669,#2670)\0"
    "#2671.Supertypes(#2575)\0"
    "#2671.Composition(#2535,#2575,#2671,#98)\0"
    "#2674.ExplAttrInfos(#1151,REQ)\0"
    "#2671.Attributes(#2672,#2674)\0"
    "#2675.Supertypes(#2575)\0"
    "#2675.Composition(#2535,#2575,#2675,#98)\0"
    "#2676.ExplAttrInfos(#1042,REQ)\0"
    "#2677.ExplAttrInfos(#1042,REQ)\0"
    "#2678.ExplAttrInfos(#2026,OPT)\0"
    "#2679.ExplAttrInfos(#515,OPT)\0"
    "#2680.ExplAttrInfos(#14,OPT)\0"
    "#2675.Attributes(#2676,#2677,#2678,#2679,#2680)\0"
    "#2681.Supertypes(#2575)\0"
    "#2681.Composition(#2535,#2575,#2681,#98)\0"
    "#2682.ExplAttrInfos(#1434,REQ)\0"
    "#2683.ExplAttrInfos(#2684,REQ)\0"
    "#2681.Attributes(#2682,#2683)\0"
    "#2685.Supertypes(#2575)\0"
    "#2685.Composition(#2535,#2575,#2685,#98)\0"
    "#2686.ExplAttrInfos(#1160,REQ)\0"
    "#2687.ExplAttrInfos(#1163,REQ)\0"
    "#2688.ExplAttrInfos(#1549,OPT)\0"
    "#2689.ExplAttrInfos(#451,REQ)\0"
    "#2690.ExplAttrInfos(#401,REQ)\0"
    "#2685.Attributes(#2686,#2687,#2688,#2689,#2690)\0"
    "#2691.Supertypes(#2685)\0"
    "#2691.Composition(#2535,#2575,#2685,#2691,#98)\0"
    "#2692.ExplAttrInfos(#2691,OPT)\0"
    "#2691.Attributes(#2692)\0"
    "#2693.Supertypes(#2691)\0"
    "#2693.Composition(#2535,#2575,#2685,#2691,#2693,#98)\0"
    "#2694.ExplAttrInfos(#2693,OPT)\0"
    "#2693.Attributes(#2694)\0"
    "#2695.Supertypes(#2534)\0"
    "#2695.Composition(#2535,#2534,#2695,#98)\0"
    "#2696.ExplAttrInfos(#1163,REQ)\0"
    "#2697.ExplAttrInfos(#1884,REQ)\0"
    "#2695.Attributes(#2696,#2697)\0"
    "#2698.Supertypes(#780)\0"
    "#2698.Composition(#780,#661,#2698,#662)\0"
    "#2699.ExplAttrInfos(#87,REQ)\0"
    "#2698.Attributes(#2699)\0"
    "#2700.Supertypes(#1279)\0"
    "#2700.Composition(#2700,#1279)\0"
    "#2701.ExplAttrInfos(#2702,REQ)\0"
    "#2703.ExplAttrInfos(#1080,REQ)\0"
    "#2700.Attributes(#2701,#2703)\0"
    "#2704.Supertypes(#1279)\0"
    "#2704.Composition(#2704,#1279)\0"
    "#2705.ExplAttrInfos(#1090,REQ)\0"
    "#2706.ExplAttrInfos(#2707,REQ)\0"
    "#2704.Attributes(#2705,#2706)\0"
    "#2708.Supertypes(#1853)\0"
    "#2708.Composition(#661,#662,#2708,#688,#1853)\0"
    "#2709.ExplAttrInfos(#1323,REQ)\0"
    "#2710.ExplAttrInfos(#89,REQ)\0"
    "#2708.Attributes(#2709,#2710)\0"
    "#2711.Supertypes(#2708)\0"
    "#2711.Composition(#661,#662,#2708,#2711,#688,#1853)\0"
    "#2712.ExplAttrInfos(#1106,REQ)\0"
    "#2713.Supertypes(#682)\0"
    "#2713.Composition(#682,#661,#662,#2713)\0"
    "#2715.ExplAttrInfos(#90,REQ)\0"
    "#2713.Attributes(#2714,#2715)\0"
    "#2716.Supertypes(#682)\0"
    "#2716.Composition(#682,#661,#662,#2716)\0"
    "#2717.ExplAttrInfos(#90,REQ)\0"
    "#2718.ExplAttrInfos(#90,REQ)\0"
    "#2716.Attributes(#2717,#2718)\0"
    "#1.Entities(#2372,#2374,#2376,#2378,#2380,#2383,#2385,#2387,#2390,#2393,#1807,#2396,#2399,#2402,#2405,#2407,#2409,#2411,#2413,#2415,#2417,#2420,#2424,#2425,#2431,#2435,#2443,#650,#2459,#2462,#2469,#2476,#2492,#2500,#2493,#2501,#2510,#2520,#2533,#2539,#2543,#2546,#2548,#2550,#2552,#2555,#2557,#2559,#2562,#2564,#2566,#2569,#2571,#2573,#2575,#2576,#2580,#2587,#2590,#2594,#2602,#2612,#2614,#2618,#2622,#2626,#2630,#2534,#2634,#2635,#2639,#2643,#2647,#2651,#2654,#2658,#2664,#2668,#2671,#2675,#2681,#2685,#2691,#2693,#2695,#2535,#2698,#947,#748,#662,#1063,#1120,#2700,#2704,#1279,#1568,#2708,#2711,#2713,#2716)\0"
    "#2719.Supertypes(#1360)\0"
    "#2719.Composition(#1360,#1163,#1043,#806,#1068,#2719,#98)\0"
    "#2720.ExplAttrInfos(#503,OPT)\0"
    "#2721.Supertypes(#1364)\0"
    "#2721.Composition(#1364,#1201,#806,#2721,#98,#1048,#1072)\0"
    "#2722.ExplAttrInfos(#503,REQ)\0"
    "#2723.Supertypes(#2425)\0"
    "#2723.Composition(#1305,#1106,#2425,#2723)\0"
    "#2724.ExplAttrInfos(#90,REQ)\0"
    "#2723.Attributes(#2724)\0"
    "#2725.Supertypes(#631)\0"
    "#2725.Composition(#631,#2725)\0"
    "#2726.ExplAttrInfos(#505,OPT)\0"
    "#2727.ExplAttrInfos(#507,REQ)\0"
    "#2725.Attributes(#2726,#2727)\0"
    "#2728.Supertypes(#1212)\0"
    "#2728.Composition(#1196,#1213,#1163,#1212,#1043,#806,#1068,#98,#2728)\0"
    "#2729.ExplAttrInfos(#509,OPT)\0"
    "#2728.Attributes(#2729)\0"
    "#2730.Supertypes(#1223)\0"
    "#2730.Composition(#1200,#1220,#1201,#1223,#806,#98,#2730,#1048,#1072)\0"
    "#2731.ExplAttrInfos(#509,REQ)\0"
    "#2730.Attributes(#2731)\0"
    "#2732.Supertypes(#789)\0"
    "#2732.Composition(#778,#661,#662,#2732,#789)\0"
    "#2733.Supertypes(#688)\0"
    "#2733.Composition(#661,#662,#2733,#688)\0"
    "#2734.ExplAttrInfos(#778,REQ)\0"
    "#2735.ExplAttrInfos(#2736,REQ)\0"
    "#2733.Attributes(#2734,#2735)\0"
    "#2737.Supertypes(#2733)\0"
    "#2737.Composition(#661,#662,#2733,#2737,#688)\0"
    "#2738.ExplAttrInfos(#2739,REQ)\0"
    "#2740.ExplAttrInfos(#13,REQ)\0"
    "#2737.Attributes(#2738,#2740)\0"
    "#2741.Supertypes(#661)\0"
    "#2741.Composition(#661,#662,#2741)\0"
    "#2742.ExplAttrInfos(#776,REQ)\0"
    "#2743.ExplAttrInfos(#2744,REQ)\0"
    "#2745.ExplAttrInfos(#2746,REQ)\0"
    "#2741.Attributes(#2742,#2743,#2745)\0"
    "#2747.Supertypes(#1195)\0"
    "#2747.Composition(#1195,#1196,#1163,#1043,#806,#1068,#98,#2747)\0"
    "#2748.ExplAttrInfos(#513,OPT)\0"
    "#2747.Attributes(#2748)\0"
    "#2749.Supertypes(#1199)\0"
    "#2749.Composition(#1199,#1200,#1201,#806,#98,#2749,#1048,#1072)\0"
    "#2750.ExplAttrInfos(#513,REQ)\0"
    "#2749.Attributes(#2750)\0"
    "#2751.Supertypes(#1360)\0"
    "#2751.Composition(#1360,#1163,#1043,#806,#1068,#98,#2751)\0"
    "#2752.ExplAttrInfos(#517,OPT)\0"
    "#2751.Attributes(#2752)\0"
    "#2753.Supertypes(#1364)\0"
    "#2753.Composition(#1364,#1201,#806,#98,#2753,#1048,#1072)\0"
    "#2754.ExplAttrInfos(#517,REQ)\0"
    "#2753.Attributes(#2754)\0"
    "#2755.Supertypes(#1112)\0"
    "#2755.Composition(#947,#1112,#2755)\0"
    "#2756.Supertypes(#661)\0"
    "#2756.Composition(#661,#662,#2756)\0"
    "#2757.ExplAttrInfos(#2758,REQ)\0"
    "#2756.Attributes(#2757)\0"
    "#2759.Supertypes(#1528)\0"
    "#2759.Composition(#97,#1528,#1529,#98,#2759)\0"
    "#2760.ExplAttrInfos(#519,OPT)\0"
    "#2761.ExplAttrInfos(#14,OPT)\0"
    "#2762.ExplAttrInfos(#14,OPT)\0"
    "#2763.ExplAttrInfos(#2340,OPT)\0"
    "#2764.ExplAttrInfos(#649,OPT)\0"
    "#2765.ExplAttrInfos(#649,OPT)\0"
    "#2766.ExplAttrInfos(#14,OPT)\0"
    "#2767.ExplAttrInfos(#151,OPT)\0"
    "#2759.Attributes(#2760,#2761,#2762,#2763,#2764,#2765,#2766,#2767)\0"
    "#2768.Supertypes(#1155)\0"
    "#2768.Composition(#1043,#806,#1068,#98,#2768,#1151,#1155)\0"
    "#2769.ExplAttrInfos(#20,OPT)\0"
    "#2770.ExplAttrInfos(#20,OPT)\0"
    "#2771.ExplAttrInfos(#56,OPT)\0"
    "#2772.ExplAttrInfos(#14,OPT)\0"
    "#2773.ExplAttrInfos(#1412,OPT)\0"
    "#2768.Attributes(#2769,#2770,#2771,#2772,#2773)\0"
    "#2774.Supertypes(#1360)\0"
    "#2774.Composition(#1360,#1163,#1043,#806,#1068,#98,#2774)\0"
    "#2775.ExplAttrInfos(#521,OPT)\0"
    "#2774.Attributes(#2775)\0"
    "#2776.Supertypes(#2774)\0"
    "#2776.Composition(#1360,#1163,#1043,#806,#1068,#98,#2774,#2776)\0"
    "#2777.Supertypes(#2774)\0"
    "#2777.Composition(#1360,#1163,#1043,#806,#1068,#98,#2774,#2777)\0"
    "#2778.Supertypes(#1364)\0"
    "#2778.Composition(#1364,#1201,#806,#98,#2778,#1048,#1072)\0"
    "#2779.ExplAttrInfos(#521,REQ)\0"
    "#2778.Attributes(#2779)\0"
    "#2780.Supertypes(#1866)\0"
    "#2780.Composition(#2780,#1866)\0"
    "#2781.ExplAttrInfos(#56,OPT)\0"
    "#2782.ExplAttrInfos(#56,OPT)\0"
    "#2783.ExplAttrInfos(#56,OPT)\0"
    "#2780.Attributes(#2781,#2782,#2783)\0"
    "#2784.Supertypes(#1226)\0"
    "#2784.Composition(#1196,#1213,#1163,#1226,#1043,#806,#1068,#98,#2784)\0"
    "#2785.ExplAttrInfos(#523,OPT)\0"
    "#2784.Attributes(#2785)\0"
    "#2786.Supertypes(#1229)\0"
    "#2786.Composition(#1200,#1220,#1201,#1229,#806,#98,#2786,#1048,#1072)\0"
    "#2787.ExplAttrInfos(#523,REQ)\0"
    "#2786.Attributes(#2787)\0"
    "#2788.Supertypes(#1212)\0"
    "#2788.Composition(#1196,#1213,#1163,#1212,#1043,#806,#1068,#98,#2788)\0"
    "#2789.ExplAttrInfos(#525,OPT)\0"
    "#2790.Supertypes(#1223)\0"
    "#2790.Composition(#1200,#1220,#1201,#1223,#806,#98,#2790,#1048,#1072)\0"
    "#2791.ExplAttrInfos(#525,REQ)\0"
    "#2794.Supertypes(#1072)\0"
    "#2794.Composition(#806,#98,#2794,#1048,#1072)\0"
    "#2795.ExplAttrInfos(#14,OPT)\0"
    "#2793.Supertypes(#2794)\0"
    "#2793.Composition(#806,#98,#2794,#2793,#1048,#1072)\0"
    "#2792.Supertypes(#2793)\0"
    "#2792.Composition(#806,#98,#2792,#2794,#2793,#1048,#1072)\0"
    "#2796.ExplAttrInfos(#527,REQ)\0"
    "#2797.ExplAttrInfos(#14,OPT)\0"
    "#2792.Attributes(#2796,#2797)\0"
    "#2798.Supertypes(#1151)\0"
    "#2798.Composition(#1043,#806,#1068,#98,#1151,#2798)\0"
    "#2799.ExplAttrInfos(#529,OPT)\0"
    "#2798.Attributes(#2799)\0"
    "#2800.Supertypes(#2794)\0"
    "#2800.Composition(#806,#98,#2794,#2800,#1048,#1072)\0"
    "#2801.ExplAttrInfos(#529,REQ)\0"
    "#2802.ExplAttrInfos(#14,OPT)\0"
    "#2800.Attributes(#2801,#2802)\0"
    "#2803.Supertypes(#682)\0"
    "#2803.Composition(#682,#661,#662,#2803)\0"
    "#2804.ExplAttrInfos(#90,REQ)\0"
    "#2803.Attributes(#2804)",
    "#2805.Supertypes(#1667)\0"
    "#2805.Composition(#1667,#661,#662,#2805,#686)\0"
    "#2806.ExplAttrInfos(#90,REQ)\0"
    "#2805.Attributes(#2806)\0"
    "#2807.Supertypes(#1212)\0"
    "#2807.Composition(#1196,#1213,#1163,#1212,#1043,#806,#1068,#98,#2807)\0"
    "#2808.ExplAttrInfos(#531,OPT)\0"
    "#2807.Attributes(#2808)\0"
    "#2809.Supertypes(#1223)\0"
    "#2809.Composition(#1200,#1220,#1201,#1223,#806,#98,#2809,#1048,#1072)\0"
    "#2810.ExplAttrInfos(#531,REQ)\0"
    "#2809.Attributes(#2810)\0"
    "#2811.Supertypes(#1360)\0"
    "#2811.Composition(#1360,#1163,#1043,#806,#1068,#98,#2811)\0"
    "#2812.ExplAttrInfos(#535,OPT)\0"
    "#2811.Attributes(#2812)\0"
    "#2813.Supertypes(#1360)\0"
    "#2813.Composition(#1360,#1163,#1043,#806,#1068,#98,#2813)\0"
    "#2814.ExplAttrInfos(#6,OPT)\0"
    "#2815.ExplAttrInfos(#6,OPT)\0"
    "#2816.ExplAttrInfos(#90,OPT)\0"
    "#2817.ExplAttrInfos(#90,OPT)\0"
    "#2818.ExplAttrInfos(#533,OPT)\0"
    "#2813.Attributes(#2814,#2815,#2816,#2817,#2818)\0"
    "#2819.Supertypes(#1364)\0"
    "#2819.Composition(#1364,#1201,#806,#98,#2819,#1048,#1072)\0"
    "#2820.ExplAttrInfos(#533,REQ)\0"
    "#2819.Attributes(#2820)\0"
    "#2821.Supertypes(#1364)\0"
    "#2821.Composition(#1364,#1201,#806,#98,#2821,#1048,#1072)\0"
    "#2822.ExplAttrInfos(#535,REQ)\0"
    "#2821.Attributes(#2822)\0"
    "#2823.Supertypes(#2597)\0"
    "#2823.Composition(#1043,#806,#1068,#98,#2823,#2597)\0"
    "#2824.ExplAttrInfos(#13,OPT)\0"
    "#2823.Attributes(#2824)\0"
    "#2825.Supertypes(#1434)\0"
    "#2825.Composition(#1293,#1043,#806,#98,#2825,#1434)\0"
    "#2826.ExplAttrInfos(#221,REQ)\0"
    "#2827.ExplAttrInfos(#672,OPT)\0"
    "#2829.Supertypes(#1293)\0"
    "#2829.Composition(#1293,#1043,#806,#98,#2829)\0"
    "#2830.ExplAttrInfos(#421,REQ)\0"
    "#2831.ExplAttrInfos(#207,REQ)\0"
    "#2832.ExplAttrInfos(#205,REQ)\0"
    "#2833.ExplAttrInfos(#83,OPT)\0"
    "#2834.ExplAttrInfos(#14,OPT)\0"
    "#2829.Attributes(#2830,#2831,#2832,#2833,#2834)\0"
    "#2828.ExplAttrInfos(#2835,OPT)\0"
    "#2837.Supertypes(#1293)\0"
    "#2837.Composition(#1293,#1043,#806,#98,#2837)\0"
    "#2838.ExplAttrInfos(#223,REQ)\0"
    "#2839.ExplAttrInfos(#2829,OPT)\0"
    "#2840.ExplAttrInfos(#13,REQ)\0"
    "#2837.Attributes(#2838,#2839,#2840)\0"
    "#2836.ExplAttrInfos(#2841,OPT)\0"
    "#2842.ExplAttrInfos(#1070,OPT)\0"
    "#2825.Attributes(#2826,#2827,#2828,#2836,#2842)\0"
    "#2843.Supertypes(#2823)\0"
    "#2843.Composition(#1043,#806,#1068,#98,#2823,#2597,#2843)\0"
    "#2844.ExplAttrInfos(#471,OPT)\0"
    "#2845.ExplAttrInfos(#537,REQ)\0"
    "#2843.Attributes(#2844,#2845)\0"
    "#2846.Supertypes(#2606)\0"
    "#2846.Composition(#1043,#806,#1068,#98,#2606,#2846,#1165)\0"
    "#2847.ExplAttrInfos(#669,REQ)\0"
    "#2846.Attributes(#2847)\0"
    "#2848.Supertypes(#2604)\0"
    "#2848.Composition(#1043,#806,#1068,#98,#2848,#1165,#2604)\0"
    "#2849.ExplAttrInfos(#539,REQ)\0"
    "#2850.ExplAttrInfos(#669,REQ)\0"
    "#2848.Attributes(#2849,#2850)\0"
    "#2851.Supertypes(#2848)\0"
    "#2851.Composition(#1043,#806,#1068,#98,#2848,#2851,#1165,#2604)\0"
    "#2853.Supertypes(#2597)\0"
    "#2853.Composition(#1043,#806,#1068,#98,#2597,#2853)\0"
    "#2852.Supertypes(#2853)\0"
    "#2852.Composition(#1043,#806,#1068,#98,#2597,#2852,#2853)\0"
    "#2854.ExplAttrInfos(#537,REQ)\0"
    "#2852.Attributes(#2854)\0"
    "#2855.Supertypes(#2843)\0"
    "#2855.Composition(#1043,#806,#1068,#98,#2823,#2597,#2843,#2855)\0"
    "#2856.Supertypes(#2829)\0"
    "#2856.Composition(#1293,#1043,#806,#98,#2856,#2829)\0"
    "#2857.ExplAttrInfos(#2858,OPT)\0"
    "#2856.Attributes(#2857)\0"
    "#2859.Supertypes(#2599)\0"
    "#2859.Composition(#2599,#2859)\0"
    "#2861.Supertypes(#2599)\0"
    "#2861.Composition(#2599,#2861)\0"
    "#2860.ExplAttrInfos(#2862,REQ)\0"
    "#2863.ExplAttrInfos(#2865,OPT)\0"
    "#2859.Attributes(#2860,#2863)\0"
    "#2867.Supertypes(#2861)\0"
    "#2867.Composition(#2599,#2861,#2867)\0"
    "#2866.Supertypes(#2867)\0"
    "#2866.Composition(#2599,#2866,#2861,#2867)\0"
    "#2868.ExplAttrInfos(#59,OPT)\0"
    "#2869.ExplAttrInfos(#59,OPT)\0"
    "#2870.ExplAttrInfos(#59,OPT)\0"
    "#2871.ExplAttrInfos(#60,OPT)\0"
    "#2872.ExplAttrInfos(#60,OPT)\0"
    "#2873.ExplAttrInfos(#60,OPT)\0"
    "#2866.Attributes(#2868,#2869,#2870,#2871,#2872,#2873)\0"
    "#2874.Supertypes(#2867)\0"
    "#2874.Composition(#2599,#2861,#2874,#2867)\0"
    "#2875.ExplAttrInfos(#88,OPT)\0"
    "#2876.ExplAttrInfos(#88,OPT)\0"
    "#2877.ExplAttrInfos(#88,OPT)\0"
    "#2874.Attributes(#2875,#2876,#2877)\0"
    "#2878.Supertypes(#2867)\0"
    "#2878.Composition(#2599,#2861,#2878,#2867)\0"
    "#2879.ExplAttrInfos(#56,OPT)\0"
    "#2880.ExplAttrInfos(#56,OPT)\0"
    "#2881.ExplAttrInfos(#56,OPT)\0"
    "#2882.ExplAttrInfos(#89,OPT)\0"
    "#2883.ExplAttrInfos(#89,OPT)\0"
    "#2884.ExplAttrInfos(#89,OPT)\0"
    "#2878.Attributes(#2879,#2880,#2881,#2882,#2883,#2884)\0"
    "#2885.Supertypes(#2878)\0"
    "#2885.Composition(#2599,#2861,#2878,#2885,#2867)\0"
    "#2886.ExplAttrInfos(#23,OPT)\0"
    "#2885.Attributes(#2886)\0"
    "#2887.Supertypes(#2867)\0"
    "#2887.Composition(#2599,#2861,#2887,#2867)\0"
    "#2888.ExplAttrInfos(#43,OPT)\0"
    "#2889.ExplAttrInfos(#43,OPT)\0"
    "#2890.ExplAttrInfos(#43,OPT)\0"
    "#2891.ExplAttrInfos(#195,OPT)\0"
    "#2892.ExplAttrInfos(#195,OPT)\0"
    "#2893.ExplAttrInfos(#195,OPT)\0"
    "#2887.Attributes(#2888,#2889,#2890,#2891,#2892,#2893)\0"
    "#2894.Supertypes(#2887)\0"
    "#2894.Composition(#2599,#2861,#2887,#2894,#2867)\0"
    "#2895.ExplAttrInfos(#201,OPT)\0"
    "#2894.Attributes(#2895)\0"
    "#2896.Supertypes(#2867)\0"
    "#2896.Composition(#2599,#2861,#2867,#2896)\0"
    "#2897.ExplAttrInfos(#192,OPT)\0"
    "#2898.ExplAttrInfos(#192,OPT)\0"
    "#2899.ExplAttrInfos(#192,OPT)\0"
    "#2896.Attributes(#2897,#2898,#2899)\0"
    "#2901.Supertypes(#2823)\0"
    "#2901.Composition(#1043,#806,#1068,#98,#2823,#2597,#2901)\0"
    "#2902.ExplAttrInfos(#471,OPT)\0"
    "#2903.ExplAttrInfos(#541,REQ)\0"
    "#2901.Attributes(#2902,#2903)\0"
    "#2900.Supertypes(#2901)\0"
    "#2900.Composition(#1043,#806,#1068,#98,#2823,#2597,#2900,#2901)\0"
    "#2904.Supertypes(#2823)\0"
    "#2904.Composition(#1043,#806,#1068,#98,#2823,#2597,#2904)\0"
    "#2905.Supertypes(#2606)\0"
    "#2905.Composition(#1043,#806,#1068,#98,#2606,#1165,#2905)\0"
    "#2906.ExplAttrInfos(#672,OPT)\0"
    "#2905.Attributes(#2906)\0"
    "#2907.Supertypes(#2853)\0"
    "#2907.Composition(#1043,#806,#1068,#98,#2597,#2907,#2853)\0"
    "#2908.Supertypes(#2606)\0"
    "#2908.Composition(#1043,#806,#1068,#98,#2606,#1165,#2908)\0"
    "#2909.Supertypes(#2604)\0"
    "#2909.Composition(#1043,#806,#1068,#98,#1165,#2604,#2909)\0"
    "#2910.ExplAttrInfos(#543,REQ)\0"
    "#2911.ExplAttrInfos(#90,OPT)\0"
    "#2909.Attributes(#2910,#2911)\0"
    "#2912.Supertypes(#2909)\0"
    "#2912.Composition(#1043,#806,#1068,#98,#1165,#2604,#2909,#2912)\0"
    "#2913.Supertypes(#2853)\0"
    "#2913.Composition(#1043,#806,#1068,#98,#2597,#2853,#2913)\0"
    "#2914.ExplAttrInfos(#541,REQ)\0"
    "#2913.Attributes(#2914)\0"
    "#2915.Supertypes(#947)\0"
    "#2915.Composition(#947,#2915)\0"
    "#2916.Supertypes(#2915)\0"
    "#2916.Composition(#947,#2916,#2915)\0"
    "#2917.Supertypes(#1566)\0"
    "#2917.Composition(#1566,#1043,#806,#1120,#98,#2917)\0"
    "#2918.ExplAttrInfos(#545,OPT)\0"
    "#2917.Attributes(#2918)\0"
    "#2919.Supertypes(#1593)\0"
    "#2919.Composition(#1593,#806,#98,#2919,#1048,#1123)\0"
    "#2920.ExplAttrInfos(#545,REQ)\0"
    "#2919.Attributes(#2920)\0"
    "#2921.Supertypes(#797)\0"
    "#2921.Composition(#797,#662,#2921,#798)\0"
    "#2922.ExplAttrInfos(#797,REQ)\0"
    "#2921.Attributes(#2922)\0"
    "#2923.Supertypes(#1136)\0"
    "#2923.Composition(#1136,#662,#2923,#798)\0"
    "#2924.ExplAttrInfos(#1136,REQ)\0"
    "#2923.Attributes(#2924)\0"
    "#2925.Supertypes(#1853)\0"
    "#2925.Composition(#661,#662,#688,#2925,#1853)\0"
    "#2926.ExplAttrInfos(#778,REQ)\0"
    "#2927.ExplAttrInfos(#87,OPT)\0"
    "#2928.ExplAttrInfos(#87,OPT)\0"
    "#2929.ExplAttrInfos(#686,REQ)\0"
    "#2925.Attributes(#2926,#2927,#2928,#2929)\0"
    "#2930.Supertypes(#1882)\0"
    "#2930.Composition(#1163,#1882,#1043,#806,#1068,#98,#2930)\0"
    "#2931.ExplAttrInfos(#547,OPT)\0"
    "#2930.Attributes(#2931)\0"
    "#2933.Supertypes(#686)\0"
    "#2933.Composition(#661,#662,#686,#2933)\0"
    "#2934.ExplAttrInfos(#1106,REQ)\0"
    "#2935.ExplAttrInfos(#672,OPT)\0"
    "#2933.Attributes(#2934,#2935)\0"
    "#2932.Supertypes(#2933)\0"
    "#2932.Composition(#661,#662,#686,#2932,#2933)\0"
    "#2936.ExplAttrInfos(#669,REQ)\0"
    "#2937.ExplAttrInfos(#56,REQ)\0"
    "#2932.Attributes(#2936,#2937)\0"
    "#1.Entities(#2719,#2721,#98,#2723,#2725,#2728,#2730,#1569,#2732,#2485,#2479,#2733,#2737,#2741,#2747,#2749,#2751,#2753,#1110,#1112,#2755,#2756,#2327,#2759,#2768,#2774,#2776,#2777,#2778,#2780,#2784,#2786,#688,#1154,#2788,#2790,#2792,#1151,#2794,#1155,#2793,#2798,#2800,#2803,#2805,#2807,#2809,#2811,#2813,#2819,#2821,#2823,#2597,#2825,#2606,#1866,#2843,#2846,#2848,#2851,#2852,#1165,#2855,#2599,#2856,#2859,#2829,#2866,#2861,#2874,#2878,#2885,#2887,#2894,#2867,#2896,#2604,#2900,#2904,#2905,#2907,#2853,#2837,#2901,#2908,#2909,#2912,#2913,#2915,#858,#2916,#2917,#2919,#2921,#2923,#686,#789,#2925,#2930,#2932)\0"
    "#2938.Supertypes(#2933)\0"
    "#2938.Composition(#661,#662,#686,#2938,#2933)\0"
    "#2939.ExplAttrInfos(#1323,REQ)\0"
    "#2938.Attributes(#2939)\0"
    "#2940.Supertypes(#2861)\0"
    "#2940.Composition(#2599,#2861,#2940)\0"
    "#2941.ExplAttrInfos(#2942,OPT)\0"
    "#2943.ExplAttrInfos(#2944,OPT)\0"
    "#2945.ExplAttrInfos(#83,OPT)\0"
    "#2940.Attributes(#2941,#2943,#2945)\0"
    "#2946.Supertypes(#881)\0"
    "#2946.Composition(#729,#2946,#881)\0"
    "#2947.ExplAttrInfos(#741,OPT)\0"
    "#2948.ExplAttrInfos(#741,OPT)\0"
    "#2949.ExplAttrInfos(#741,OPT)\0"
    "#2950.ExplAttrInfos(#741,OPT)\0"
    "#2951.ExplAttrInfos(#741,OPT)\0"
    "#2952.ExplAttrInfos(#1162,OPT)\0"
    "#2953.ExplAttrInfos(#493,REQ)\0"
    "#2946.Attributes(#2947,#2948,#2949,#2950,#2951,#2952,#2953)\0"
    "#2954.Supertypes(#688)\0"
    "#2954.Composition(#661,#662,#688,#2954)\0"
    "#2955.ExplAttrInfos(#778,REQ)\0"
    "#2956.ExplAttrInfos(#90,REQ)\0"
    "#2957.ExplAttrInfos(#90,OPT)\0"
    "#2958.ExplAttrInfos(#87,OPT)\0"
    "#2959.ExplAttrInfos(#87,OPT)\0"
    "#2954.Attributes(#2955,#2956,#2957,#2958,#2959)\0"
    "#2960.Supertypes(#2954)\0"
    "#2960.Composition(#661,#662,#688,#2954,#2960)\0"
    "#2961.ExplAttrInfos(#90,OPT)\0"
    "#2960.Attributes(#2961)\0"
    "#2962.Supertypes(#1216)\0"
    "#2962.Composition(#1196,#1213,#1163,#1216,#1043,#806,#1068,#98,#2962)\0"
    "#2963.ExplAttrInfos(#551,OPT)\0"
    "#2962.Attributes(#2963)\0"
    "#2964.Supertypes(#1219)\0"
    "#2964.Composition(#1200,#1220,#1201,#1219,#806,#98,#2964,#1048,#1072)\0"
    "#2965.ExplAttrInfos(#551,REQ)\0"
    "#2964.Attributes(#2965)\0"
    "#2966.Supertypes(#1910)\0"
    "#2966.Composition(#1163,#1910,#1043,#806,#1068,#98,#2966)\0"
    "#2967.ExplAttrInfos(#553,OPT)\0"
    "#2966.Attributes(#2967)\0"
    "#2968.Supertypes(#1911)\0"
    "#2968.Composition(#1201,#1911,#806,#98,#2968,#1048,#1072)\0"
    "#2969.ExplAttrInfos(#553,OPT)\0"
    "#2968.Attributes(#2969)\0"
    "#2970.Supertypes(#1305)\0"
    "#2970.Composition(#1305,#1106,#2970)\0"
    "#2971.ExplAttrInfos(#90,REQ)\0"
    "#2972.ExplAttrInfos(#90,REQ)\0"
    "#2973.ExplAttrInfos(#90,REQ)\0"
    "#2974.ExplAttrInfos(#90,REQ)\0"
    "#2975.ExplAttrInfos(#82,OPT)\0"
    "#2976.ExplAttrInfos(#82,OPT)\0"
    "#2977.ExplAttrInfos(#82,OPT)\0"
    "#2978.ExplAttrInfos(#89,OPT)\0"
    "#2979.ExplAttrInfos(#89,OPT)\0"
    "#2970.Attributes(#2971,#2972,#2973,#2974,#2975,#2976,#2977,#2978,#2979)\0"
    "#2980.Supertypes(#1784)\0"
    "#2980.Composition(#1196,#1213,#1163,#1784,#1043,#806,#1068,#98,#2980)\0"
    "#2981.ExplAttrInfos(#555,OPT)\0"
    "#2980.Attributes(#2981)\0"
    "#2982.Supertypes(#1787)\0"
    "#2982.Composition(#1200,#1220,#1201,#1787,#806,#98,#2982,#1048,#1072)\0"
    "#2983.ExplAttrInfos(#555,REQ)\0"
    "#2982.Attributes(#2983)\0"
    "#2984.Supertypes(#1042)\0"
    "#2984.Composition(#1043,#806,#1042,#98,#2984)\0"
    "#2985.ExplAttrInfos(#14,OPT)\0"
    "#2986.ExplAttrInfos(#14,OPT)\0"
    "#2987.ExplAttrInfos(#13,REQ)\0"
    "#2988.ExplAttrInfos(#6,OPT)\0"
    "#2990.Supertypes(#1569)\0"
    "#2990.Composition(#1569,#2990)\0"
    "#2991.ExplAttrInfos(#557,OPT)\0"
    "#2992.ExplAttrInfos(#31,OPT)\0"
    "#2993.ExplAttrInfos(#25,OPT)\0"
    "#2994.ExplAttrInfos(#25,OPT)\0"
    "#2995.ExplAttrInfos(#25,OPT)\0"
    "#2996.ExplAttrInfos(#25,OPT)\0"
    "#2997.ExplAttrInfos(#25,OPT)\0"
    "#2998.ExplAttrInfos(#25,OPT)\0"
    "#2999.ExplAttrInfos(#31,OPT)\0"
    "#3000.ExplAttrInfos(#31,OPT)\0"
    "#3001.ExplAttrInfos(#13,OPT)\0"
    "#3002.ExplAttrInfos(#25,OPT)\0"
    "#3003.ExplAttrInfos(#31,OPT)\0"
    "#3004.ExplAttrInfos(#25,OPT)\0"
    "#3005.ExplAttrInfos(#25,OPT)\0"
    "#3006.ExplAttrInfos(#31,OPT)\0"
    "#3007.ExplAttrInfos(#92,OPT)\0"
    "#2990.Attributes(#2991,#2992,#2993,#2994,#2995,#2996,#2997,#2998,#2999,#3000,#3001,#3002,#3003,#3004,#3005,#3006,#3007)\0"
    "#2989.ExplAttrInfos(#2990,OPT)\0"
    "#3008.ExplAttrInfos(#559,OPT)\0"
    "#2984.Attributes(#2985,#2986,#2987,#2988,#2989,#3008)\0"
    "#3009.Supertypes(#2990)\0"
    "#3009.Composition(#1569,#2990,#3009)\0"
    "#3010.ExplAttrInfos(#2443,REQ)\0"
    "#3009.Attributes(#3010)\0"
    "#3011.Supertypes(#1047)\0"
    "#3011.Composition(#806,#98,#3011,#1048,#1047)\0"
    "#3012.ExplAttrInfos(#559,REQ)\0"
    "#3013.ExplAttrInfos(#14,OPT)\0"
    "#3011.Attributes(#3012,#3013)\0"
    "#3014.Supertypes(#125)\0"
    "#3014.Composition(#125,#3014)\0"
    "#3015.ExplAttrInfos(#3016,OPT)\0"
    "#3017.ExplAttrInfos(#3018,OPT)\0"
    "#3019.ExplAttrInfos(#14,OPT)\0"
    "#3020.ExplAttrInfos(#3021,OPT)\0"
    "#3022.ExplAttrInfos(#196,OPT)\0"
    "#3023.ExplAttrInfos(#3024,OPT)\0"
    "#3014.Attributes(#3015,#3017,#3019,#3020,#3022,#3023)\0"
    "#3025.Supertypes(#2493)\0"
    "#3025.Composition(#1163,#1422,#1043,#806,#1068,#2493,#98,#3025)\0"
    "#3026.ExplAttrInfos(#563,OPT)\0"
    "#3029.ExplAttrInfos(#43,OPT)\0"
    "#3030.ExplAttrInfos(#95,OPT)\0"
    "#3031.ExplAttrInfos(#84,OPT)\0"
    "#3032.ExplAttrInfos(#90,OPT)\0"
    "#3033.ExplAttrInfos(#90,OPT)\0"
    "#3025.Attributes(#3026,#3027,#3028,#3029,#3030,#3031,#3032,#3033)\0"
    "#3034.Supertypes(#2493)\0"
    "#3034.Composition(#1163,#1422,#1043,#806,#1068,#2493,#98,#3034)\0"
    "#3035.ExplAttrInfos(#561,OPT)\0"
    "#3034.Attributes(#3035)\0"
    "#3036.Supertypes(#2501)\0"
    "#3036.Composition(#1425,#1201,#806,#2501,#98,#3036,#1048,#1072)\0"
    "#3037.ExplAttrInfos(#561,REQ)\0"
    "#3036.Attributes(#3037)\0"
    "#3038.Supertypes(#2501)\0"
    "#3038.Composition(#1425,#1201,#806,#2501,#98,#3038,#1048,#1072)\0"
    "#3039.ExplAttrInfos(#563,REQ)\0"
    "#3040.ExplAttrInfos(#90,OPT)\0"
    "#3041.ExplAttrInfos(#11,OPT)\0"
    "#3042.ExplAttrInfos(#90,OPT)\0"
    "#3038.Attributes(#3039,#3040,#3041,#3042)\0"
    "#3043.Supertypes(#661)\0"
    "#3043.Composition(#661,#662,#3043)\0"
    "#3044.ExplAttrInfos(#94,REQ)\0"
    "#3045.ExplAttrInfos(#676,REQ)\0"
    "#3046.ExplAttrInfos(#565,REQ)\0"
    "#3043.Attributes(#3044,#3045,#3046)\0"
    "#3047.Supertypes(#3043)\0"
    "#3047.Composition(#661,#662,#3043,#3047)\0"
    "#3048.ExplAttrInfos(#2264,REQ)\0"
    "#3049.ExplAttrInfos(#15,REQ)\0"
    "#3047.Attributes(#3048,#3049)\0"
    "#3050.Supertypes(#919)\0"
    "#3050.Composition(#732,#919,#729,#3050)\0"
    "#3053.ExplAttrInfos(#40,OPT)\0"
    "#3054.ExplAttrInfos(#41,OPT)\0"
    "#3055.ExplAttrInfos(#42,OPT)\0"
    "#3056.ExplAttrInfos(#842,REQ)\0"
    "#3050.Attributes(#3051,#3053,#3054,#3055,#3056)\0"
    "#3057.Supertypes(#1978)\0"
    "#3057.Composition(#729,#1978,#3057)\0"
    "#3058.ExplAttrInfos(#14,REQ)\0"
    "#3059.ExplAttrInfos(#3060,OPT)\0"
    "#3057.Attributes(#3058,#3059)\0"
    "#3061.Supertypes(#1978)\0"
    "#3061.Composition(#729,#1978,#3061)\0"
    "#3063.Supertypes(#729)\0"
    "#3063.Composition(#729,#3063)\0"
    "#3064.ExplAttrInfos(#3065,REQ)\0"
    "#3062.ExplAttrInfos(#3066,REQ)\0"
    "#3067.ExplAttrInfos(#1136,REQ)\0"
    "#3061.Attributes(#3062,#3067)\0"
    "#3068.Supertypes(#1112)\0"
    "#3068.Composition(#947,#1112,#3068)\0"
    "#3069.Supertypes(#1667)\0"
    "#3069.Composition(#1667,#661,#662,#686,#3069)\0"
    "#3071.ExplAttrInfos(#90,REQ)\0"
    "#3069.Attributes(#3070,#3071)\0"
    "#3072.Supertypes(#1226)\0"
    "#3072.Composition(#1196,#1213,#1163,#1226,#1043,#806,#1068,#98,#3072)\0"
    "#3073.ExplAttrInfos(#569,OPT)\0"
    "#3072.Attributes(#3073)\0"
    "#3074.Supertypes(#1229)\0"
    "#3074.Composition(#1200,#1220,#1201,#1229,#806,#98,#3074,#1048,#1072)\0"
    "#3075.ExplAttrInfos(#569,REQ)\0"
    "#3074.Attributes(#3075)\0"
    "#3076.Supertypes(#1249)\0"
    "#3076.Composition(#777,#778,#1249,#661,#662,#3076)\0"
    "#3077.ExplAttrInfos(#90,OPT)\0"
    "#3078.ExplAttrInfos(#90,OPT)\0"
    "#3079.ExplAttrInfos(#13,REQ)\0"
    "#3080.ExplAttrInfos(#13,REQ)\0"
    "#3081.ExplAttrInfos(#573,REQ)\0"
    "#3076.Attributes(#3077,#3078,#3079,#3080,#3081)\0"
    "#3082.Supertypes(#1163)\0"
    "#3082.Composition(#1163,#1043,#806,#1068,#98,#3082)\0"
    "#3083.ExplAttrInfos(#575,OPT)\0"
    "#3082.Attributes(#3083)\0"
    "#3084.Supertypes(#1201)\0"
    "#3084.Composition(#1201,#806,#98,#3084,#1048,#1072)\0"
    "#3085.ExplAttrInfos(#575,REQ)\0"
    "#3084.Attributes(#3085)\0"
    "#3086.Supertypes(#1305)\0"
    "#3086.Composition(#1305,#1106,#3086)\0"
    "#3087.ExplAttrInfos(#90,REQ)\0"
    "#3088.ExplAttrInfos(#90,REQ)\0"
    "#3089.ExplAttrInfos(#90,REQ)\0"
    "#3090.ExplAttrInfos(#56,REQ)\0"
    "#3086.Attributes(#3087,#3088,#3089,#3090)\0"
    "#3091.Supertypes(#689)\0"
    "#3091.Composition(#661,#662,#689,#690,#3091)\0"
    "#3092.ExplAttrInfos(#3094,OPT)\0"
    "#3095.ExplAttrInfos(#13,OPT)\0"
    "#3096.ExplAttrInfos(#3098,REQ)\0"
    "#3099.ExplAttrInfos(#3100,OPT)\0"
    "#3091.Attributes(#3092,#3095,#3096,#3099)\0"
    "#3101.Supertypes(#3091)\0"
    "#3101.Composition(#661,#662,#689,#690,#3091,#3101)\0"
    "#3102.ExplAttrInfos(#3103,REQ)\0"
    "#3101.Attributes(#3102)\0"
    "#3104.Supertypes(#777)\0"
    "#3104.Composition(#777,#778,#661,#662,#3104)\0"
    "#3105.ExplAttrInfos(#778,REQ)\0"
    "#3106.ExplAttrInfos(#3107,REQ)\0"
    "#3108.ExplAttrInfos(#3109,REQ)\0"
    "#3110.ExplAttrInfos(#13,REQ)\0"
    "#3111.ExplAttrInfos(#577,REQ)\0"
    "#3104.Attributes(#3105,#3106,#3108,#3110,#3111)\0"
    "#3112.Supertypes(#1226)\0"
    "#3112.Composition(#1196,#1213,#1163,#1226,#1043,#806,#1068,#98,#3112)\0"
    "#3113.ExplAttrInfos(#579,OPT)\0"
    "#3114.Supertypes(#1229)\0"
    "#3114.Composition(#1200,#1220,#1201,#1229,#806,#98,#3114,#1048,#1072)\0"
    "#3115.ExplAttrInfos(#579,REQ)\0"
    "#3116.Supertypes(#1305)\0"
    "#3116.Composition(#1305,#1106,#3116)\0"
    "#3117.ExplAttrInfos(#90,REQ)\0"
    "#3118.ExplAttrInfos(#90,REQ)\0"
    "#3119.ExplAttrInfos(#90,REQ)\0"
    "#3120.ExplAttrInfos(#90,REQ)\0"
    "#3121.ExplAttrInfos(#82,OPT)\0"
    "#3122.ExplAttrInfos(#82,OPT)\0"
    "#3123.ExplAttrInfos(#89,OPT)\0"
    "#3116.Attributes(#3117,#3118,#3119,#3120,#3121,#3122,#3123)\0"
    "#3124.Supertypes(#1325)\0"
    "#3124.Composition(#777,#1325,#778,#661,#662,#3124)\0"
    "#3125.Supertypes(#1195)\0"
    "#3125.Composition(#1195,#1196,#1163,#1043,#806,#1068,#98,#3125)\0"
    "#3126.ExplAttrInfos(#583,OPT)\0"
    "#3127.Supertypes(#1199)\0"
    "#3127.Composition(#1199,#1200,#1201,#806,#98,#1048,#1072,#3127)\0"
    "#3128.ExplAttrInfos(#583,REQ)\0"
    "#3127.Attributes(#3128)\0"
    "#3129.Supertypes(#1226)\0"
    "#3129.Composition(#1196,#1213,#1163,#1226,#1043,#806,#1068,#98,#3129)\0"
    "#3130.ExplAttrInfos(#585,OPT)\0"
    "#3131.Supertypes(#1229)\0"
    "#3131.Composition(#1200,#1220,#1201,#1229,#806,#98,#1048,#1072,#3131)\0"
    "#3132.ExplAttrInfos(#585,REQ)\0"
    "#3133.Supertypes(#1216)\0"
    "#3133.Composition(#1196,#1213,#1163,#1216,#1043,#806,#1068,#98,#3133)\0"
    "#3134.ExplAttrInfos(#587,OPT)\0"
    "#3135.Supertypes(#1219)\0"
    "#3135.Composition(#1200,#1220,#1201,#1219,#806,#98,#1048,#1072,#3135)\0"
    "#3136.ExplAttrInfos(#587,REQ)\0"
    "#3135.Attributes(#3136)\0"
    "#3137.Supertypes(#1140)\0"
    "#3137.Composition(#1140,#662,#798,#3137)\0"
    "#3138.ExplAttrInfos(#800,REQ)\0"
    "#3137.Attributes(#3138)\0"
    "#3139.Supertypes(#1422)\0"
    "#3139.Composition(#1163,#1422,#1043,#806,#1068,#98,#3139)\0"
    "#3140.ExplAttrInfos(#589,OPT)\0"
    "#3139.Attributes(#3140)\0"
    "#3141.Supertypes(#1425)\0"
    "#3141.Composition(#1425,#1201,#806,#98,#1048,#1072,#3141)\0"
    "#3142.ExplAttrInfos(#589,REQ)\0"
    "#3141.Attributes(#3142)\0"
    "#3143.Supertypes(#1163)\0"
    "#3143.Composition(#1163,#1043,#806,#1068,#98,#3143)\0"
    "#3144.Supertypes(#1884)\0"
    "#3144.Composition(#1163,#1882,#1884,#1043,#806,#1068,#98,#3144)\0"
    "#3145.ExplAttrInfos(#591,OPT)\0"
    "#3144.Attributes(#3145)\0"
    "#3146.Supertypes(#1360)\0"
    "#3146.Composition(#1360,#1163,#1043,#806,#1068,#98,#3146)\0"
    "#3147.ExplAttrInfos(#593,OPT)\0"
    "#3146.Attributes(#3147)\0"
    "#3148.Supertypes(#3146)\0"
    "#3148.Composition(#1360,#1163,#1043,#806,#1068,#98,#3146,#3148)\0"
    "#3149.Supertypes(#3146)\0"
    "#3149.Composition(#1360,#1163,#1043,#806,#1068,#98,#3146,#3149)\0"
    "#3150.Supertypes(#1364)\0"
    "#3150.Composition(#1364,#1201,#806,#98,#1048,#1072,#3150)\0"
    "#3151.ExplAttrInfos(#593,REQ)\0"
    "#3150.Attributes(#3151)\0"
    "#3152.Supertypes(#1212)\0"
    "#3152.Composition(#1196,#1213,#1163,#1212,#1043,#806,#1068,#98,#3152)\0"
    "#3153.ExplAttrInfos(#595,OPT)\0"
    "#3152.Attributes(#3153)\0"
    "#3154.Supertypes(#1223)\0"
    "#3154.Composition(#1200,#1220,#1201,#1223,#806,#98,#1048,#1072,#3154)\0"
    "#3155.ExplAttrInfos(#595,REQ)\0"
    "#3154.Attributes(#3155)\0"
    "#3156.Supertypes(#1360)\0"
    "#3156.Composition(#1360,#1163,#1043,#806,#1068,#98,#3156)\0"
    "#3159.ExplAttrInfos(#605,OPT)\0"
    "#3160.ExplAttrInfos(#607,OPT)\0"
    "#3161.ExplAttrInfos(#14,OPT)\0"
    "#3156.Attributes(#3157,#3158,#3159,#3160,#3161)\0"
    "#3162.Supertypes(#1722)\0"
    "#3162.Composition(#1722,#97,#96,#98,#3162)\0"
    "#3163.ExplAttrInfos(#90,OPT)\0"
    "#3164.ExplAttrInfos(#82,OPT)\0"
    "#3165.ExplAttrInfos(#82,OPT)\0"
    "#3166.ExplAttrInfos(#82,OPT)\0"
    "#3167.ExplAttrInfos(#84,OPT)\0"
    "#3168.ExplAttrInfos(#84,OPT)\0"
    "#3169.ExplAttrInfos(#84,OPT)\0"
    "#3170.ExplAttrInfos(#84,OPT)\0"
    "#3171.ExplAttrInfos(#1110,OPT)\0"
    "#3172.ExplAttrInfos(#56,OPT)\0"
    "#3173.ExplAttrInfos(#56,OPT)\0"
    "#3174.ExplAttrInfos(#56,OPT)\0"
    "#3162.Attributes(#3163,#3164,#3165,#3166,#3167,#3168,#3169,#3170,#3171,#3172,#3173,#3174)\0"
    "#3175.Supertypes(#1722)\0"
    "#3175.Composition(#1722,#97,#96,#98,#3175)\0"
    "#3176.ExplAttrInfos(#597,REQ)\0"
    "#3177.ExplAttrInfos(#599,REQ)\0"
    "#3178.ExplAttrInfos(#90,OPT)\0"
    "#3179.ExplAttrInfos(#90,OPT)\0"
    "#3180.ExplAttrInfos(#1110,OPT)\0"
    "#3175.Attributes(#3176,#3177,#3178,#3179,#3180)\0"
    "#3181.Supertypes(#3156)\0"
    "#3181.Composition(#1360,#1163,#1043,#806,#1068,#98,#3156,#3181)\0"
    "#3182.Supertypes(#1072)\0"
    "#3182.Composition(#806,#98,#1048,#1072,#3182)\0"
    "#3183.ExplAttrInfos(#601,REQ)\0"
    "#3184.ExplAttrInfos(#603,REQ)\0"
    "#3185.ExplAttrInfos(#13,REQ)\0"
    "#3186.ExplAttrInfos(#13,REQ)\0"
    "#3182.Attributes(#3183,#3184,#3185,#3186)\0"
    "#3187.Supertypes(#1364)\0"
    "#3187.Composition(#1364,#1201,#806,#98,#1048,#1072,#3187)\0"
    "#3188.ExplAttrInfos(#605,REQ)\0"
    "#3189.ExplAttrInfos(#607,REQ)\0"
    "#3190.ExplAttrInfos(#13,OPT)\0"
    "#3191.ExplAttrInfos(#14,OPT)\0"
    "#3187.Attributes(#3188,#3189,#3190,#3191)\0"
    "#3192.Supertypes(#1187)\0"
    "#3192.Composition(#1187,#1043,#806,#98,#3192)\0"
    "#3194.Supertypes(#1569)\0"
    "#3194.Composition(#1569,#3194)\0"
    "#3195.ExplAttrInfos(#2443,OPT)\0"
    "#3196.ExplAttrInfos(#24,OPT)\0"
    "#3197.ExplAttrInfos(#24,OPT)\0"
    "#3194.Attributes(#3195,#3196,#3197)\0"
    "#3193.ExplAttrInfos(#3198,OPT)\0"
    "#3199.ExplAttrInfos(#3200,OPT)\0"
    "#3201.ExplAttrInfos(#609,OPT)\0"
    "#3192.Attributes(#3193,#3199,#3201)\0"
    "#3202.Supertypes(#1187)\0"
    "#3202.Composition(#1187,#1043,#806,#98,#3202)\0"
    "#3203.ExplAttrInfos(#25,REQ)\0"
    "#3204.ExplAttrInfos(#3205,OPT)\0"
    "#3206.ExplAttrInfos(#14,OPT)\0"
    "#3207.ExplAttrInfos(#31,OPT)\0"
    "#3208.ExplAttrInfos(#31,OPT)\0"
    "#3209.ExplAttrInfos(#25,REQ)\0"
    "#3210.ExplAttrInfos(#25,OPT)\0"
    "#3202.Attributes(#3203,#3204,#3206,#3207,#3208,#3209,#3210)\0"
    "#3211.Supertypes(#3202)\0"
    "#3211.Composition(#1187,#1043,#806,#98,#3202,#3211)\0"
    "#3212.ExplAttrInfos(#611,OPT)\0"
    "#3211.Attributes(#3212)\0"
    "#1.Entities(#2938,#2940,#869,#873,#878,#2946,#881,#884,#886,#1853,#2954,#2960,#2933,#2962,#2964,#1434,#2966,#2968,#2970,#1003,#1012,#1006,#2980,#2982,#2984,#2990,#3009,#3011,#3014,#3025,#3034,#3036,#3038,#689,#690,#3043,#3047,#903,#3050,#905,#909,#1978,#3057,#3061,#3063,#1983,#2455,#1019,#2465,#798,#3068,#3069,#3072,#3074,#3076,#3082,#3084,#3086,#3091,#3101,#3104,#3112,#3114,#1048,#1047,#1072,#1123,#3116,#3124,#1613,#3125,#3127,#3129,#3131,#3133,#3135,#846,#800,#3137,#1038,#3139,#3141,#3143,#936,#3144,#3146,#3148,#3149,#3150,#3152,#3154,#3156,#3162,#3175,#3181,#3182,#3187,#3192,#3202,#3211)\0"
    "#3213.Supertypes(#3202)\0"
    "#3213.Composition(#1187,#1043,#806,#98,#3202,#3213)\0"
    "#3214.ExplAttrInfos(#613,OPT)\0"
    "#3213.Attributes(#3214)\0"
    "#3215.Supertypes(#1305)\0"
    "#3215.Composition(#1305,#1106,#3215)\0"
    "#3216.ExplAttrInfos(#90,REQ)\0"
    "#3217.ExplAttrInfos(#90,REQ)\0"
    "#3218.ExplAttrInfos(#90,REQ)\0"
    "#3219.ExplAttrInfos(#90,REQ)\0"
    "#3220.ExplAttrInfos(#82,OPT)\0"
    "#3221.ExplAttrInfos(#82,OPT)\0"
    "#3215.Attributes(#3216,#3217,#3218,#3219,#3220,#3221)\0"
    "#3222.Supertypes(#1434)\0"
    "#3222.Composition(#1293,#1043,#806,#98,#1434,#3222)\0"
    "#3223.ExplAttrInfos(#14,OPT)\0"
    "#3222.Attributes(#3223)\0"
    "#1.Entities(#3213,#3194,#3215,#3222)"};

constexpr std::uint32_t declarations[] = {
    0x02000000, // Schema(IFC4X1)
    0x0000000F, // DefinedType(IFCABSORBEDDOSEMEASURE,RealType(8))
    0x0000003F, // DefinedType(IFCACCELERATIONMEASURE,RealType(8))
    0x0000006F, // DefinedType(IFCAMOUNTOFSUBSTANCEMEASURE,RealType(8))
    0x000000A4, // DefinedType(IFCANGULARVELOCITYMEASURE,RealType(8))
    0x0000070C, // DefinedType(IFCINTEGER,IntegerType)
    0x0100000D, // DefinedType(IFCPOSITIVEINTEGER,#6)
    0x01000030, // ListType(#7,3,3,DUPL)
    0x01000046, // DefinedType(IFCARCINDEX,#8)
    0x01000062, // DefinedType(IFCAREADENSITYMEASURE,RealType(8))
    0x000000D7, // DefinedType(IFCAREAMEASURE,RealType(8))
    0x01000091, // DefinedType(IFCBINARY,BinaryType)
    0x000000FF, // DefinedType(IFCBOOLEAN,BooleanType)
    0x010000B3, // DefinedType(IFCLABEL,StringType(255))
    0x010000D9, // DefinedType(IFCBOXALIGNMENT,#14)
    0x010000FA, // DefinedType(IFCCARDINALPOINTREFERENCE,IntegerType)
    0x00000164, // ArrayType(RealType(8),1,2,DUPL,REQ)
    0x0100012D, // DefinedType(IFCCOMPLEXNUMBER,#17)
    0x000001AA, // ListType(IntegerType,3,4,DUPL)
    0x0100014F, // DefinedType(IFCCOMPOUNDPLANEANGLEMEASURE,#19)
    0x000001F7, // DefinedType(IFCCONTEXTDEPENDENTMEASURE,RealType(8))
    0x0000022B, // DefinedType(IFCCOUNTMEASURE,RealType(8))
    0x00000254, // DefinedType(IFCCURVATUREMEASURE,RealType(8))
    0x0100017D, // DefinedType(IFCDATE,StringType)
    0x0100019D, // DefinedType(IFCDATETIME,StringType)
    0x00000281, // DefinedType(IFCDAYINMONTHNUMBER,IntegerType)
    0x010001C1, // DefinedType(IFCDAYINWEEKNUMBER,IntegerType)
    0x000002DD, // DefinedType(IFCDESCRIPTIVEMEASURE,StringType)
    0x0000030B, // DefinedType(IFCDIMENSIONCOUNT,IntegerType)
    0x00000336, // DefinedType(IFCDOSEEQUIVALENTMEASURE,RealType(8))
    0x010001ED, // DefinedType(IFCDURATION,StringType)
    0x00000368, // DefinedType(IFCDYNAMICVISCOSITYMEASURE,RealType(8))
    0x0000039C, // DefinedType(IFCELECTRICCAPACITANCEMEASURE,RealType(8))
    0x000003D3, // DefinedType(IFCELECTRICCHARGEMEASURE,RealType(8))
    0x00000405, // DefinedType(IFCELECTRICCONDUCTANCEMEASURE,RealType(8))
    0x0000043C, // DefinedType(IFCELECTRICCURRENTMEASURE,RealType(8))
    0x0000046F, // DefinedType(IFCELECTRICRESISTANCEMEASURE,RealType(8))
    0x000004A5, // DefinedType(IFCELECTRICVOLTAGEMEASURE,RealType(8))
    0x000004D8, // DefinedType(IFCENERGYMEASURE,RealType(8))
    0x00000502, // DefinedType(IFCFONTSTYLE,StringType)
    0x00000527, // DefinedType(IFCFONTVARIANT,StringType)
    0x0000054E, // DefinedType(IFCFONTWEIGHT,StringType)
    0x00000574, // DefinedType(IFCFORCEMEASURE,RealType(8))
    0x0000059D, // DefinedType(IFCFREQUENCYMEASURE,RealType(8))
    0x000005CA, // DefinedType(IFCGLOBALLYUNIQUEID,StringType(22,FIXED))
    0x00000600, // DefinedType(IFCHEATFLUXDENSITYMEASURE,RealType(8))
    0x00000633, // DefinedType(IFCHEATINGVALUEMEASURE,RealType(8))
    0x01000211, // DefinedType(IFCIDENTIFIER,StringType(255))
    0x000006AF, // DefinedType(IFCILLUMINANCEMEASURE,RealType(8))
    0x000006DE, // DefinedType(IFCINDUCTANCEMEASURE,RealType(8))
    0x00000730, // DefinedType(IFCINTEGERCOUNTRATEMEASURE,IntegerType)
    0x00000764, // DefinedType(IFCIONCONCENTRATIONMEASURE,RealType(8))
    0x00000798, // DefinedType(IFCISOTHERMALMOISTURECAPACITYMEASURE,RealType(8))
    0x000007D6, // DefinedType(IFCKINEMATICVISCOSITYMEASURE,RealType(8))
    0x0100023C, // DefinedType(IFCLANGUAGEID,#48)
    0x0000080C, // DefinedType(IFCLENGTHMEASURE,RealType(8))
    0x0100025B, // ListType(#7,2,-1,DUPL)
    0x01000272, // DefinedType(IFCLINEINDEX,#57)
    0x00000836, // DefinedType(IFCLINEARFORCEMEASURE,RealType(8))
    0x00000865, // DefinedType(IFCLINEARMOMENTMEASURE,RealType(8))
    0x00000895, // DefinedType(IFCLINEARSTIFFNESSMEASURE,RealType(8))
    0x000008C8, // DefinedType(IFCLINEARVELOCITYMEASURE,RealType(8))
    0x000008FA, // DefinedType(IFCLOGICAL,LogicalType)
    0x0000091E, // DefinedType(IFCLUMINOUSFLUXMEASURE,RealType(8))
    0x0000094E, // DefinedType(IFCLUMINOUSINTENSITYDISTRIBUTIONMEASURE,RealType(8))
    0x0000098F, // DefinedType(IFCLUMINOUSINTENSITYMEASURE,RealType(8))
    0x000009C4, // DefinedType(IFCMAGNETICFLUXDENSITYMEASURE,RealType(8))
    0x000009FB, // DefinedType(IFCMAGNETICFLUXMEASURE,RealType(8))
    0x00000A2B, // DefinedType(IFCMASSDENSITYMEASURE,RealType(8))
    0x00000A5A, // DefinedType(IFCMASSFLOWRATEMEASURE,RealType(8))
    0x00000A8A, // DefinedType(IFCMASSMEASURE,RealType(8))
    0x00000AB2, // DefinedType(IFCMASSPERLENGTHMEASURE,RealType(8))
    0x00000B0C, // DefinedType(IFCMODULUSOFELASTICITYMEASURE,RealType(8))
    0x00000B43, // DefinedType(IFCMODULUSOFLINEARSUBGRADEREACTIONMEASURE,RealType(8))
    0x00000B86, // DefinedType(IFCMODULUSOFROTATIONALSUBGRADEREACTIONMEASURE,RealType(8))
    0x00000BCD, // DefinedType(IFCMODULUSOFSUBGRADEREACTIONMEASURE,RealType(8))
    0x00000C0A, // DefinedType(IFCMOISTUREDIFFUSIVITYMEASURE,RealType(8))
    0x00000C41, // DefinedType(IFCMOLECULARWEIGHTMEASURE,RealType(8))
    0x00000C74, // DefinedType(IFCMOMENTOFINERTIAMEASURE,RealType(8))
    0x00000CA7, // DefinedType(IFCMONETARYMEASURE,RealType(8))
    0x00000CD3, // DefinedType(IFCMONTHINYEARNUMBER,IntegerType)
    0x01000290, // DefinedType(IFCNONNEGATIVELENGTHMEASURE,#56)
    0x00000D01, // DefinedType(IFCRATIOMEASURE,RealType(8))
    0x010002BD, // DefinedType(IFCNORMALISEDRATIOMEASURE,#83)
    0x00000D55, // DefinedType(IFCNUMERICMEASURE,RealType(8))
    0x00000D80, // DefinedType(IFCPHMEASURE,RealType(8))
    0x00000DA6, // DefinedType(IFCPARAMETERVALUE,RealType(8))
    0x00000DD1, // DefinedType(IFCPLANARFORCEMEASURE,RealType(8))
    0x00000E00, // DefinedType(IFCPLANEANGLEMEASURE,RealType(8))
    0x010002E8, // DefinedType(IFCPOSITIVELENGTHMEASURE,#56)
    0x01000312, // DefinedType(IFCPOSITIVEPLANEANGLEMEASURE,#89)
    0x01000340, // DefinedType(IFCPOSITIVERATIOMEASURE,#83)
    0x00000EAF, // DefinedType(IFCPOWERMEASURE,RealType(8))
    0x00000ED8, // DefinedType(IFCPRESENTABLETEXT,StringType)
    0x00000F03, // DefinedType(IFCPRESSUREMEASURE,RealType(8))
    0x0000BDEB, // Entity(IFCPROPERTYSETDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BE28, // Entity(IFCPROPERTYDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B4FA, // Entity(IFCROOT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B526, // ExplicitAttr(GLOBALID)
    0x0000B53D, // ExplicitAttr(OWNERHISTORY)
    0x0000B558, // Entity(IFCOWNERHISTORY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B590, // ExplicitAttr(OWNINGUSER)
    0x00007A57, // Entity(IFCPERSONANDORGANIZATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007A98, // ExplicitAttr(THEPERSON)
    0x0000798D, // Entity(IFCPERSON,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x000079BF, // ExplicitAttr(FAMILYNAME)
    0x000079D8, // ExplicitAttr(GIVENNAME)
    0x000079F0, // ExplicitAttr(MIDDLENAMES)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x00007A21, // ExplicitAttr(PREFIXTITLES)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x00007A3C, // ExplicitAttr(SUFFIXTITLES)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x00007863, // ExplicitAttr(ROLES)
    0x00007877, // Entity(IFCACTORROLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000078AC, // ExplicitAttr(ROLE)
    0x0100039E, // EnumerationType(SUPPLIER,MANUFACTURER,CONTRACTOR,SUBCONTRACTOR,ARCHITECT,STRUCTURALENGINEER,COSTENGINEER,CLIENT,BUILDINGOWNER,BUILDINGOPERATOR,MECHANICALENGINEER,ELECTRICALENGINEER,PROJECTMANAGER,FACILITIESMANAGER,CIVILENGINEER,COMMISSIONINGENGINEER,ENGINEER,OWNER,CONSULTANT,CONSTRUCTIONMANAGER,FIELDCONSTRUCTIONMANAGER,RESELLER,USERDEFINED)
    0x010004F5, // DefinedType(IFCROLEENUM,#118)
    0x000078BF, // ExplicitAttr(USERDEFINEDROLE)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000123E, // DefinedType(IFCTEXT,StringType)
    0x01000513, // ListType(#116,1,-1,DUPL)
    0x000078F6, // ExplicitAttr(ADDRESSES)
    0x0000790E, // Entity(IFCADDRESS,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000793D, // ExplicitAttr(PURPOSE)
    0x00001856, // EnumerationType(OFFICE,SITE,HOME,DISTRIBUTIONPOINT,USERDEFINED)
    0x00001896, // DefinedType(IFCADDRESSTYPEENUM,#127)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x00007953, // ExplicitAttr(USERDEFINEDPURPOSE)
    0x0100052C, // ListType(#125,1,-1,DUPL)
    0x00007AB0, // ExplicitAttr(THEORGANIZATION)
    0x000077ED, // Entity(IFCORGANIZATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x00007863, // ExplicitAttr(ROLES)
    0x01000513, // ListType(#116,1,-1,DUPL)
    0x000078F6, // ExplicitAttr(ADDRESSES)
    0x0100052C, // ListType(#125,1,-1,DUPL)
    0x00007863, // ExplicitAttr(ROLES)
    0x01000513, // ListType(#116,1,-1,DUPL)
    0x0000B5A9, // ExplicitAttr(OWNINGAPPLICATION)
    0x0000B5C9, // Entity(IFCAPPLICATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B600, // ExplicitAttr(APPLICATIONDEVELOPER)
    0x0000A7EC, // ExplicitAttr(VERSION)
    0x0000B623, // ExplicitAttr(APPLICATIONFULLNAME)
    0x0000B645, // ExplicitAttr(APPLICATIONIDENTIFIER)
    0x0000B691, // ExplicitAttr(STATE)
    0x00006639, // EnumerationType(READWRITE,READONLY,LOCKED,READWRITELOCKED,READONLYLOCKED)
    0x01000545, // DefinedType(IFCSTATEENUM,#150)
    0x0000B6A5, // ExplicitAttr(CHANGEACTION)
    0x01000564, // EnumerationType(NOCHANGE,MODIFIED,ADDED,DELETED,NOTDEFINED)
    0x010005A0, // DefinedType(IFCCHANGEACTIONENUM,#153)
    0x0000B6C0, // ExplicitAttr(LASTMODIFIEDDATE)
    0x00001483, // DefinedType(IFCTIMESTAMP,IntegerType)
    0x0000B6DF, // ExplicitAttr(LASTMODIFYINGUSER)
    0x0000B6FF, // ExplicitAttr(LASTMODIFYINGAPPLICATION)
    0x0000B726, // ExplicitAttr(CREATIONDATE)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x010005C6, // SetType(#96,1,-1)
    0x010005D8, // DefinedType(IFCPROPERTYSETDEFINITIONSET,#162)
    0x00000F2F, // DefinedType(IFCRADIOACTIVITYMEASURE,RealType(8))
    0x00000F60, // DefinedType(IFCREAL,RealType(8))
    0x00000F81, // DefinedType(IFCROTATIONALFREQUENCYMEASURE,RealType(8))
    0x00000FB8, // DefinedType(IFCROTATIONALMASSMEASURE,RealType(8))
    0x00000FEA, // DefinedType(IFCROTATIONALSTIFFNESSMEASURE,RealType(8))
    0x0000104C, // DefinedType(IFCSECTIONMODULUSMEASURE,RealType(8))
    0x0000107E, // DefinedType(IFCSECTIONALAREAINTEGRALMEASURE,RealType(8))
    0x000010B7, // DefinedType(IFCSHEARMODULUSMEASURE,RealType(8))
    0x000010E7, // DefinedType(IFCSOLIDANGLEMEASURE,RealType(8))
    0x01000606, // DefinedType(IFCSOUNDPOWERLEVELMEASURE,RealType(8))
    0x00001115, // DefinedType(IFCSOUNDPOWERMEASURE,RealType(8))
    0x01000639, // DefinedType(IFCSOUNDPRESSURELEVELMEASURE,RealType(8))
    0x00001143, // DefinedType(IFCSOUNDPRESSUREMEASURE,RealType(8))
    0x00001174, // DefinedType(IFCSPECIFICHEATCAPACITYMEASURE,RealType(8))
    0x000011AC, // DefinedType(IFCSPECULAREXPONENT,RealType(8))
    0x000011D9, // DefinedType(IFCSPECULARROUGHNESS,RealType(8))
    0x0200000F, // DefinedType(IFCSTRIPPEDOPTIONAL,BooleanType)
    0x00001207, // DefinedType(IFCTEMPERATUREGRADIENTMEASURE,RealType(8))
    0x0100066F, // DefinedType(IFCTEMPERATURERATEOFCHANGEMEASURE,RealType(8))
    0x0000125E, // DefinedType(IFCTEXTALIGNMENT,StringType)
    0x00001287, // DefinedType(IFCTEXTDECORATION,StringType)
    0x000012B1, // DefinedType(IFCTEXTFONTNAME,StringType)
    0x000012D9, // DefinedType(IFCTEXTTRANSFORMATION,StringType)
    0x00001307, // DefinedType(IFCTHERMALADMITTANCEMEASURE,RealType(8))
    0x0000133C, // DefinedType(IFCTHERMALCONDUCTIVITYMEASURE,RealType(8))
    0x00001373, // DefinedType(IFCTHERMALEXPANSIONCOEFFICIENTMEASURE,RealType(8))
    0x000013B2, // DefinedType(IFCTHERMALRESISTANCEMEASURE,RealType(8))
    0x000013E7, // DefinedType(IFCTHERMALTRANSMITTANCEMEASURE,RealType(8))
    0x0000141F, // DefinedType(IFCTHERMODYNAMICTEMPERATUREMEASURE,RealType(8))
    0x010006AA, // DefinedType(IFCTIME,StringType)
    0x0000145B, // DefinedType(IFCTIMEMEASURE,RealType(8))
    0x000014A9, // DefinedType(IFCTORQUEMEASURE,RealType(8))
    0x010006CA, // DefinedType(IFCURIREFERENCE,StringType)
    0x000014D3, // DefinedType(IFCVAPORPERMEABILITYMEASURE,RealType(8))
    0x00001508, // DefinedType(IFCVOLUMEMEASURE,RealType(8))
    0x00001532, // DefinedType(IFCVOLUMETRICFLOWRATEMEASURE,RealType(8))
    0x00001568, // DefinedType(IFCWARPINGCONSTANTMEASURE,RealType(8))
    0x0000159B, // DefinedType(IFCWARPINGMOMENTMEASURE,RealType(8))
    0x010006F2, // EnumerationType(EMAIL,FAX,PHONE,POST,VERBAL,USERDEFINED,NOTDEFINED)
    0x0200003C, // DefinedType(IFCACTIONREQUESTTYPEENUM,#202)
    0x000015F3, // EnumerationType(DEAD_LOAD_G,COMPLETION_G1,LIVE_LOAD_Q,SNOW_S,WIND_W,PRESTRESSING_P,SETTLEMENT_U,TEMPERATURE_T,EARTHQUAKE_E,FIRE,IMPULSE,IMPACT,TRANSPORT,ERECTION,PROPPING,SYSTEM_IMPERFECTION,SHRINKAGE,CREEP,LACK_OF_FIT,BUOYANCY,ICE,CURRENT,WAVE,RAIN,BRAKES,USERDEFINED,NOTDEFINED)
    0x02000067, // DefinedType(IFCACTIONSOURCETYPEENUM,#204)
    0x00001736, // EnumerationType(PERMANENT_G,VARIABLE_Q,EXTRAORDINARY_A,USERDEFINED,NOTDEFINED)
    0x02000091, // DefinedType(IFCACTIONTYPEENUM,#206)
    0x000017A9, // EnumerationType(ELECTRICACTUATOR,HANDOPERATEDACTUATOR,HYDRAULICACTUATOR,PNEUMATICACTUATOR,THERMOSTATICACTUATOR,USERDEFINED,NOTDEFINED)
    0x020000B5, // DefinedType(IFCACTUATORTYPEENUM,#208)
    0x000018FC, // EnumerationType(CONSTANTFLOW,VARIABLEFLOWPRESSUREDEPENDANT,VARIABLEFLOWPRESSUREINDEPENDANT,USERDEFINED,NOTDEFINED)
    0x020000DB, // DefinedType(IFCAIRTERMINALBOXTYPEENUM,#210)
    0x01000801, // EnumerationType(DIFFUSER,GRILLE,LOUVRE,REGISTER,USERDEFINED,NOTDEFINED)
    0x02000107, // DefinedType(IFCAIRTERMINALTYPEENUM,#212)
    0x00001A2E, // EnumerationType(FIXEDPLATECOUNTERFLOWEXCHANGER,FIXEDPLATECROSSFLOWEXCHANGER,FIXEDPLATEPARALLELFLOWEXCHANGER,ROTARYWHEEL,RUNAROUNDCOILLOOP,HEATPIPE,TWINTOWERENTHALPYRECOVERYLOOPS,THERMOSIPHONSEALEDTUBEHEATEXCHANGERS,THERMOSIPHONCOILTYPEHEATEXCHANGERS,USERDEFINED,NOTDEFINED)
    0x02000130, // DefinedType(IFCAIRTOAIRHEATRECOVERYTYPEENUM,#214)
    0x00001B72, // EnumerationType(BELL,BREAKGLASSBUTTON,LIGHT,MANUALPULLBOX,SIREN,WHISTLE,USERDEFINED,NOTDEFINED)
    0x02000162, // DefinedType(IFCALARMTYPEENUM,#216)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x02000185, // DefinedType(IFCALIGNMENTTYPEENUM,#218)
    0x00001BF5, // EnumerationType(IN_PLANE_LOADING_2D,OUT_PLANE_LOADING_2D,LOADING_3D,USERDEFINED,NOTDEFINED)
    0x020001AC, // DefinedType(IFCANALYSISMODELTYPEENUM,#220)
    0x00001C7C, // EnumerationType(FIRST_ORDER_THEORY,SECOND_ORDER_THEORY,THIRD_ORDER_THEORY,FULL_NONLINEAR_THEORY,USERDEFINED,NOTDEFINED)
    0x020001D7, // DefinedType(IFCANALYSISTHEORYTYPEENUM,#222)
    0x00001D20, // EnumerationType(ADD,DIVIDE,MULTIPLY,SUBTRACT)
    0x02000203, // DefinedType(IFCARITHMETICOPERATORENUM,#224)
    0x00001D7A, // EnumerationType(SITE,FACTORY,NOTDEFINED)
    0x0200022F, // DefinedType(IFCASSEMBLYPLACEENUM,#226)
    0x01000971, // EnumerationType(AMPLIFIER,CAMERA,DISPLAY,MICROPHONE,PLAYER,PROJECTOR,RECEIVER,SPEAKER,SWITCHER,TELEPHONE,TUNER,USERDEFINED,NOTDEFINED)
    0x02000256, // DefinedType(IFCAUDIOVISUALAPPLIANCETYPEENUM,#228)
    0x00001DCA, // EnumerationType(POLYLINE_FORM,CIRCULAR_ARC,ELLIPTIC_ARC,PARABOLIC_ARC,HYPERBOLIC_ARC,UNSPECIFIED)
    0x02000288, // DefinedType(IFCBSPLINECURVEFORM,#230)
    0x01000A50, // EnumerationType(PLANE_SURF,CYLINDRICAL_SURF,CONICAL_SURF,SPHERICAL_SURF,TOROIDAL_SURF,SURF_OF_REVOLUTION,RULED_SURF,GENERALISED_CONE,QUADRIC_SURF,SURF_OF_LINEAR_EXTRUSION,UNSPECIFIED)
    0x020002AE, // DefinedType(IFCBSPLINESURFACEFORM,#232)
    0x01000B30, // EnumerationType(BEAM,JOIST,HOLLOWCORE,LINTEL,SPANDREL,T_BEAM,USERDEFINED,NOTDEFINED)
    0x020002D6, // DefinedType(IFCBEAMTYPEENUM,#234)
    0x01000BA7, // EnumerationType(GREATERTHAN,GREATERTHANOREQUALTO,LESSTHAN,LESSTHANOREQUALTO,EQUALTO,NOTEQUALTO,INCLUDES,NOTINCLUDES,INCLUDEDIN,NOTINCLUDEDIN)
    0x020002F8, // DefinedType(IFCBENCHMARKENUM,#236)
    0x00001F38, // EnumerationType(WATER,STEAM,USERDEFINED,NOTDEFINED)
    0x0200031B, // DefinedType(IFCBOILERTYPEENUM,#238)
    0x00001F90, // EnumerationType(UNION,INTERSECTION,DIFFERENCE)
    0x0200033F, // DefinedType(IFCBOOLEANOPERATOR,#240)
    0x01000CA1, // EnumerationType(INSULATION,PRECASTPANEL,USERDEFINED,NOTDEFINED)
    0x02000364, // DefinedType(IFCBUILDINGELEMENTPARTTYPEENUM,#242)
    0x01000D12, // EnumerationType(COMPLEX,ELEMENT,PARTIAL,PROVISIONFORVOID,PROVISIONFORSPACE,USERDEFINED,NOTDEFINED)
    0x02000395, // DefinedType(IFCBUILDINGELEMENTPROXYTYPEENUM,#244)
    0x01000DA7, // EnumerationType(FENESTRATION,FOUNDATION,LOADBEARING,OUTERSHELL,SHADING,TRANSPORT,USERDEFINED,NOTDEFINED)
    0x020003C7, // DefinedType(IFCBUILDINGSYSTEMTYPEENUM,#246)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x020003F3, // DefinedType(IFCBURNERTYPEENUM,#248)
    0x0000203E, // EnumerationType(BEND,CROSS,REDUCER,TEE,USERDEFINED,NOTDEFINED)
    0x02000417, // DefinedType(IFCCABLECARRIERFITTINGTYPEENUM,#250)
    0x000020AE, // EnumerationType(CABLELADDERSEGMENT,CABLETRAYSEGMENT,CABLETRUNKINGSEGMENT,CONDUITSEGMENT,USERDEFINED,NOTDEFINED)
    0x02000448, // DefinedType(IFCCABLECARRIERSEGMENTTYPEENUM,#252)
    0x01000EC2, // EnumerationType(CONNECTOR,ENTRY,EXIT,JUNCTION,TRANSITION,USERDEFINED,NOTDEFINED)
    0x02000479, // DefinedType(IFCCABLEFITTINGTYPEENUM,#254)
    0x01000F3D, // EnumerationType(BUSBARSEGMENT,CABLESEGMENT,CONDUCTORSEGMENT,CORESEGMENT,USERDEFINED,NOTDEFINED)
    0x020004A3, // DefinedType(IFCCABLESEGMENTTYPEENUM,#256)
    0x00002234, // EnumerationType(AIRCOOLED,WATERCOOLED,HEATRECOVERY,USERDEFINED,NOTDEFINED)
    0x020004CD, // DefinedType(IFCCHILLERTYPEENUM,#258)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x020004F2, // DefinedType(IFCCHIMNEYTYPEENUM,#260)
    0x01001011, // EnumerationType(DXCOOLINGCOIL,ELECTRICHEATINGCOIL,GASHEATINGCOIL,HYDRONICCOIL,STEAMHEATINGCOIL,WATERCOOLINGCOIL,WATERHEATINGCOIL,USERDEFINED,NOTDEFINED)
    0x02000517, // DefinedType(IFCCOILTYPEENUM,#262)
    0x010010CC, // EnumerationType(COLUMN,PILASTER,USERDEFINED,NOTDEFINED)
    0x02000539, // DefinedType(IFCCOLUMNTYPEENUM,#264)
    0x01001128, // EnumerationType(ANTENNA,COMPUTER,FAX,GATEWAY,MODEM,NETWORKAPPLIANCE,NETWORKBRIDGE,NETWORKHUB,PRINTER,REPEATER,ROUTER,SCANNER,USERDEFINED,NOTDEFINED)
    0x0200055D, // DefinedType(IFCCOMMUNICATIONSAPPLIANCETYPEENUM,#266)
    0x010011F2, // EnumerationType(P_COMPLEX,Q_COMPLEX)
    0x02000592, // DefinedType(IFCCOMPLEXPROPERTYTEMPLATETYPEENUM,#268)
    0x000023A5, // EnumerationType(DYNAMIC,RECIPROCATING,ROTARY,SCROLL,TROCHOIDAL,SINGLESTAGE,BOOSTER,OPENTYPE,HERMETIC,SEMIHERMETIC,WELDEDSHELLHERMETIC,ROLLINGPISTON,ROTARYVANE,SINGLESCREW,TWINSCREW,USERDEFINED,NOTDEFINED)
    0x020005C7, // DefinedType(IFCCOMPRESSORTYPEENUM,#270)
    0x01001274, // EnumerationType(AIRCOOLED,EVAPORATIVECOOLED,WATERCOOLED,WATERCOOLEDBRAZEDPLATE,WATERCOOLEDSHELLCOIL,WATERCOOLEDSHELLTUBE,WATERCOOLEDTUBEINTUBE,USERDEFINED,NOTDEFINED)
    0x020005EF, // DefinedType(IFCCONDENSERTYPEENUM,#272)
    0x0000255C, // EnumerationType(ATPATH,ATSTART,ATEND,NOTDEFINED)
    0x02000616, // DefinedType(IFCCONNECTIONTYPEENUM,#274)
    0x000025B5, // EnumerationType(HARD,SOFT,ADVISORY,USERDEFINED,NOTDEFINED)
    0x0200063E, // DefinedType(IFCCONSTRAINTENUM,#276)
    0x0100138E, // EnumerationType(DEMOLISHING,EARTHMOVING,ERECTING,HEATING,LIGHTING,PAVING,PUMPING,TRANSPORTING,USERDEFINED,NOTDEFINED)
    0x02000662, // DefinedType(IFCCONSTRUCTIONEQUIPMENTRESOURCETYPEENUM,#278)
    0x0100143F, // EnumerationType(AGGREGATES,CONCRETE,DRYWALL,FUEL,GYPSUM,MASONRY,METAL,PLASTIC,WOOD,NOTDEFINED,USERDEFINED)
    0x0200069D, // DefinedType(IFCCONSTRUCTIONMATERIALRESOURCETYPEENUM,#280)
    0x010014E4, // EnumerationType(ASSEMBLY,FORMWORK,USERDEFINED,NOTDEFINED)
    0x020006D7, // DefinedType(IFCCONSTRUCTIONPRODUCTRESOURCETYPEENUM,#282)
    0x01001557, // EnumerationType(FLOATING,PROGRAMMABLE,PROPORTIONAL,MULTIPOSITION,TWOPOSITION,USERDEFINED,NOTDEFINED)
    0x02000710, // DefinedType(IFCCONTROLLERTYPEENUM,#284)
    0x000026CB, // EnumerationType(ACTIVE,PASSIVE,USERDEFINED,NOTDEFINED)
    0x02000738, // DefinedType(IFCCOOLEDBEAMTYPEENUM,#286)
    0x0000272A, // EnumerationType(NATURALDRAFT,MECHANICALINDUCEDDRAFT,MECHANICALFORCEDDRAFT,USERDEFINED,NOTDEFINED)
    0x02000760, // DefinedType(IFCCOOLINGTOWERTYPEENUM,#288)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x0200078A, // DefinedType(IFCCOSTITEMTYPEENUM,#290)
    0x000027B6, // EnumerationType(BUDGET,COSTPLAN,ESTIMATE,TENDER,PRICEDBILLOFQUANTITIES,UNPRICEDBILLOFQUANTITIES,SCHEDULEOFRATES,USERDEFINED,NOTDEFINED)
    0x020007B0, // DefinedType(IFCCOSTSCHEDULETYPEENUM,#292)
    0x01001686, // EnumerationType(CEILING,FLOORING,CLADDING,ROOFING,MOLDING,SKIRTINGBOARD,INSULATION,MEMBRANE,SLEEVING,WRAPPING,USERDEFINED,NOTDEFINED)
    0x020007DA, // DefinedType(IFCCOVERINGTYPEENUM,#294)
    0x01001732, // EnumerationType(OFFICE,SITE,USERDEFINED,NOTDEFINED)
    0x02000800, // DefinedType(IFCCREWRESOURCETYPEENUM,#296)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x0200082A, // DefinedType(IFCCURTAINWALLTYPEENUM,#298)
    0x010017B9, // EnumerationType(LINEAR,LOG_LINEAR,LOG_LOG,NOTDEFINED)
    0x02000853, // DefinedType(IFCCURVEINTERPOLATIONENUM,#300)
    0x0100181B, // EnumerationType(BACKDRAFTDAMPER,BALANCINGDAMPER,BLASTDAMPER,CONTROLDAMPER,FIREDAMPER,FIRESMOKEDAMPER,FUMEHOODEXHAUST,GRAVITYDAMPER,GRAVITYRELIEFDAMPER,RELIEFDAMPER,SMOKEDAMPER,USERDEFINED,NOTDEFINED)
    0x0200087F, // DefinedType(IFCDAMPERTYPEENUM,#302)
    0x00002B92, // EnumerationType(MEASURED,PREDICTED,SIMULATED,USERDEFINED,NOTDEFINED)
    0x020008A3, // DefinedType(IFCDATAORIGINENUM,#304)
    0x0100192B, // EnumerationType(ANGULARVELOCITYUNIT,AREADENSITYUNIT,COMPOUNDPLANEANGLEUNIT,DYNAMICVISCOSITYUNIT,HEATFLUXDENSITYUNIT,INTEGERCOUNTRATEUNIT,ISOTHERMALMOISTURECAPACITYUNIT,KINEMATICVISCOSITYUNIT,LINEARVELOCITYUNIT,MASSDENSITYUNIT,MASSFLOWRATEUNIT,MOISTUREDIFFUSIVITYUNIT,MOLECULARWEIGHTUNIT,SPECIFICHEATCAPACITYUNIT,THERMALADMITTANCEUNIT,THERMALCONDUCTANCEUNIT,THERMALRESISTANCEUNIT,THERMALTRANSMITTANCEUNIT,VAPORPERMEABILITYUNIT,VOLUMETRICFLOWRATEUNIT,ROTATIONALFREQUENCYUNIT,TORQUEUNIT,MOMENTOFINERTIAUNIT,LINEARMOMENTUNIT,LINEARFORCEUNIT,PLANARFORCEUNIT,MODULUSOFELASTICITYUNIT,SHEARMODULUSUNIT,LINEARSTIFFNESSUNIT,ROTATIONALSTIFFNESSUNIT,MODULUSOFSUBGRADEREACTIONUNIT,ACCELERATIONUNIT,CURVATUREUNIT,HEATINGVALUEUNIT,IONCONCENTRATIONUNIT,LUMINOUSINTENSITYDISTRIBUTIONUNIT,MASSPERLENGTHUNIT,MODULUSOFLINEARSUBGRADEREACTIONUNIT,MODULUSOFROTATIONALSUBGRADEREACTIONUNIT,PHUNIT,ROTATIONALMASSUNIT,SECTIONAREAINTEGRALUNIT,SECTIONMODULUSUNIT,SOUNDPOWERLEVELUNIT,SOUNDPOWERUNIT,SOUNDPRESSURELEVELUNIT,SOUNDPRESSUREUNIT,TEMPERATUREGRADIENTUNIT,TEMPERATURERATEOFCHANGEUNIT,THERMALEXPANSIONCOEFFICIENTUNIT,WARPINGCONSTANTUNIT,WARPINGMOMENTUNIT,USERDEFINED)
    0x020008C7, // DefinedType(IFCDERIVEDUNITENUM,#306)
    0x0000308B, // EnumerationType(POSITIVE,NEGATIVE)
    0x020008EC, // DefinedType(IFCDIRECTIONSENSEENUM,#308)
    0x01001DF1, // EnumerationType(ANCHORPLATE,BRACKET,SHOE,USERDEFINED,NOTDEFINED)
    0x02000914, // DefinedType(IFCDISCRETEACCESSORYTYPEENUM,#310)
    0x000030D6, // EnumerationType(FORMEDDUCT,INSPECTIONCHAMBER,INSPECTIONPIT,MANHOLE,METERCHAMBER,SUMP,TRENCH,VALVECHAMBER,USERDEFINED,NOTDEFINED)
    0x02000943, // DefinedType(IFCDISTRIBUTIONCHAMBERELEMENTTYPEENUM,#312)
    0x01001E99, // EnumerationType(CABLE,CABLECARRIER,DUCT,PIPE,USERDEFINED,NOTDEFINED)
    0x0200097B, // DefinedType(IFCDISTRIBUTIONPORTTYPEENUM,#314)
    0x01001F0C, // EnumerationType(AIRCONDITIONING,AUDIOVISUAL,CHEMICAL,CHILLEDWATER,COMMUNICATION,COMPRESSEDAIR,CONDENSERWATER,CONTROL,CONVEYING,DATA,DISPOSAL,DOMESTICCOLDWATER,DOMESTICHOTWATER,DRAINAGE,EARTHING,ELECTRICAL,ELECTROACOUSTIC,EXHAUST,FIREPROTECTION,FUEL,GAS,HAZARDOUS,HEATING,LIGHTING,LIGHTNINGPROTECTION,MUNICIPALSOLIDWASTE,OIL,OPERATIONAL,POWERGENERATION,RAINWATER,REFRIGERATION,SECURITY,SEWAGE,SIGNAL,STORMWATER,TELEPHONE,TV,VACUUM,VENT,VENTILATION,WASTEWATER,WATERSUPPLY,USERDEFINED,NOTDEFINED)
    0x020009A9, // DefinedType(IFCDISTRIBUTIONSYSTEMENUM,#316)
    0x0000318F, // EnumerationType(PUBLIC,RESTRICTED,CONFIDENTIAL,PERSONAL,USERDEFINED,NOTDEFINED)
    0x020009D5, // DefinedType(IFCDOCUMENTCONFIDENTIALITYENUM,#318)
    0x00003210, // EnumerationType(DRAFT,FINALDRAFT,FINAL,REVISION,NOTDEFINED)
    0x02000A06, // DefinedType(IFCDOCUMENTSTATUSENUM,#320)
    0x0100217F, // EnumerationType(SWINGING,DOUBLE_ACTING,SLIDING,FOLDING,REVOLVING,ROLLINGUP,FIXEDPANEL,USERDEFINED,NOTDEFINED)
    0x02000A2E, // DefinedType(IFCDOORPANELOPERATIONENUM,#322)
    0x00003303, // EnumerationType(LEFT,MIDDLE,RIGHT,NOTDEFINED)
    0x02000A5A, // DefinedType(IFCDOORPANELPOSITIONENUM,#324)
    0x0000335C, // EnumerationType(ALUMINIUM,HIGH_GRADE_STEEL,STEEL,WOOD,ALUMINIUM_WOOD,ALUMINIUM_PLASTIC,PLASTIC,USERDEFINED,NOTDEFINED)
    0x02000A85, // DefinedType(IFCDOORSTYLECONSTRUCTIONENUM,#326)
    0x00003402, // EnumerationType(SINGLE_SWING_LEFT,SINGLE_SWING_RIGHT,DOUBLE_DOOR_SINGLE_SWING,DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_LEFT,DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_RIGHT,DOUBLE_SWING_LEFT,DOUBLE_SWING_RIGHT,DOUBLE_DOOR_DOUBLE_SWING,SLIDING_TO_LEFT,SLIDING_TO_RIGHT,DOUBLE_DOOR_SLIDING,FOLDING_TO_LEFT,FOLDING_TO_RIGHT,DOUBLE_DOOR_FOLDING,REVOLVING,ROLLINGUP,USERDEFINED,NOTDEFINED)
    0x02000AB4, // DefinedType(IFCDOORSTYLEOPERATIONENUM,#328)
    0x0100229F, // EnumerationType(DOOR,GATE,TRAPDOOR,USERDEFINED,NOTDEFINED)
    0x02000AE0, // DefinedType(IFCDOORTYPEENUM,#330)
    0x010022FC, // EnumerationType(SINGLE_SWING_LEFT,SINGLE_SWING_RIGHT,DOUBLE_DOOR_SINGLE_SWING,DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_LEFT,DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_RIGHT,DOUBLE_SWING_LEFT,DOUBLE_SWING_RIGHT,DOUBLE_DOOR_DOUBLE_SWING,SLIDING_TO_LEFT,SLIDING_TO_RIGHT,DOUBLE_DOOR_SLIDING,FOLDING_TO_LEFT,FOLDING_TO_RIGHT,DOUBLE_DOOR_FOLDING,REVOLVING,ROLLINGUP,SWING_FIXED_LEFT,SWING_FIXED_RIGHT,USERDEFINED,NOTDEFINED)
    0x02000B02, // DefinedType(IFCDOORTYPEOPERATIONENUM,#332)
    0x0000359F, // EnumerationType(BEND,CONNECTOR,ENTRY,EXIT,JUNCTION,OBSTRUCTION,TRANSITION,USERDEFINED,NOTDEFINED)
    0x02000B2D, // DefinedType(IFCDUCTFITTINGTYPEENUM,#334)
    0x0000362A, // EnumerationType(RIGIDSEGMENT,FLEXIBLESEGMENT,USERDEFINED,NOTDEFINED)
    0x02000B56, // DefinedType(IFCDUCTSEGMENTTYPEENUM,#336)
    0x00003698, // EnumerationType(FLATOVAL,RECTANGULAR,ROUND,USERDEFINED,NOTDEFINED)
    0x02000B7F, // DefinedType(IFCDUCTSILENCERTYPEENUM,#338)
    0x01002537, // EnumerationType(DISHWASHER,ELECTRICCOOKER,FREESTANDINGELECTRICHEATER,FREESTANDINGFAN,FREESTANDINGWATERHEATER,FREESTANDINGWATERCOOLER,FREEZER,FRIDGE_FREEZER,HANDDRYER,KITCHENMACHINE,MICROWAVE,PHOTOCOPIER,REFRIGERATOR,TUMBLEDRYER,VENDINGMACHINE,WASHINGMACHINE,USERDEFINED,NOTDEFINED)
    0x02000BA9, // DefinedType(IFCELECTRICAPPLIANCETYPEENUM,#340)
    0x01002680, // EnumerationType(CONSUMERUNIT,DISTRIBUTIONBOARD,MOTORCONTROLCENTRE,SWITCHBOARD,USERDEFINED,NOTDEFINED)
    0x02000BD8, // DefinedType(IFCELECTRICDISTRIBUTIONBOARDTYPEENUM,#342)
    0x000039BB, // EnumerationType(BATTERY,CAPACITORBANK,HARMONICFILTER,INDUCTORBANK,UPS,USERDEFINED,NOTDEFINED)
    0x02000C0F, // DefinedType(IFCELECTRICFLOWSTORAGEDEVICETYPEENUM,#344)
    0x01002754, // EnumerationType(CHP,ENGINEGENERATOR,STANDALONE,USERDEFINED,NOTDEFINED)
    0x02000C46, // DefinedType(IFCELECTRICGENERATORTYPEENUM,#346)
    0x00003B0D, // EnumerationType(DC,INDUCTION,POLYPHASE,RELUCTANCESYNCHRONOUS,SYNCHRONOUS,USERDEFINED,NOTDEFINED)
    0x02000C75, // DefinedType(IFCELECTRICMOTORTYPEENUM,#348)
    0x00003B99, // EnumerationType(TIMECLOCK,TIMEDELAY,RELAY,USERDEFINED,NOTDEFINED)
    0x02000CA0, // DefinedType(IFCELECTRICTIMECONTROLTYPEENUM,#350)
    0x00003C0C, // EnumerationType(ACCESSORY_ASSEMBLY,ARCH,BEAM_GRID,BRACED_FRAME,GIRDER,REINFORCEMENT_UNIT,RIGID_FRAME,SLAB_FIELD,TRUSS,USERDEFINED,NOTDEFINED)
    0x02000CD1, // DefinedType(IFCELEMENTASSEMBLYTYPEENUM,#352)
    0x00003CC7, // EnumerationType(COMPLEX,ELEMENT,PARTIAL)
    0x02000CFE, // DefinedType(IFCELEMENTCOMPOSITIONENUM,#354)
    0x0100287F, // EnumerationType(EXTERNALCOMBUSTION,INTERNALCOMBUSTION,USERDEFINED,NOTDEFINED)
    0x02000D2A, // DefinedType(IFCENGINETYPEENUM,#356)
    0x00003E38, // EnumerationType(DIRECTEVAPORATIVERANDOMMEDIAAIRCOOLER,DIRECTEVAPORATIVERIGIDMEDIAAIRCOOLER,DIRECTEVAPORATIVESLINGERSPACKAGEDAIRCOOLER,DIRECTEVAPORATIVEPACKAGEDROTARYAIRCOOLER,DIRECTEVAPORATIVEAIRWASHER,INDIRECTEVAPORATIVEPACKAGEAIRCOOLER,INDIRECTEVAPORATIVEWETCOIL,INDIRECTEVAPORATIVECOOLINGTOWERORCOILCOOLER,INDIRECTDIRECTCOMBINATION,USERDEFINED,NOTDEFINED)
    0x02000D4E, // DefinedType(IFCEVAPORATIVECOOLERTYPEENUM,#358)
    0x01002920, // EnumerationType(DIRECTEXPANSION,DIRECTEXPANSIONSHELLANDTUBE,DIRECTEXPANSIONTUBEINTUBE,DIRECTEXPANSIONBRAZEDPLATE,FLOODEDSHELLANDTUBE,SHELLANDCOIL,USERDEFINED,NOTDEFINED)
    0x02000D7D, // DefinedType(IFCEVAPORATORTYPEENUM,#360)
    0x010029F2, // EnumerationType(EVENTRULE,EVENTMESSAGE,EVENTTIME,EVENTCOMPLEX,USERDEFINED,NOTDEFINED)
    0x02000DA5, // DefinedType(IFCEVENTTRIGGERTYPEENUM,#362)
    0x01002A72, // EnumerationType(STARTEVENT,ENDEVENT,INTERMEDIATEEVENT,USERDEFINED,NOTDEFINED)
    0x02000DCF, // DefinedType(IFCEVENTTYPEENUM,#364)
    0x01002AE3, // EnumerationType(EXTERNAL,EXTERNAL_EARTH,EXTERNAL_WATER,EXTERNAL_FIRE,USERDEFINED,NOTDEFINED)
    0x02000DF2, // DefinedType(IFCEXTERNALSPATIALELEMENTTYPEENUM,#366)
    0x00004090, // EnumerationType(CENTRIFUGALFORWARDCURVED,CENTRIFUGALRADIAL,CENTRIFUGALBACKWARDINCLINEDCURVED,CENTRIFUGALAIRFOIL,TUBEAXIAL,VANEAXIAL,PROPELLORAXIAL,USERDEFINED,NOTDEFINED)
    0x02000E26, // DefinedType(IFCFANTYPEENUM,#368)
    0x01002B95, // EnumerationType(GLUE,MORTAR,WELD,USERDEFINED,NOTDEFINED)
    0x02000E47, // DefinedType(IFCFASTENERTYPEENUM,#370)
    0x01002BF4, // EnumerationType(AIRPARTICLEFILTER,COMPRESSEDAIRFILTER,ODORFILTER,OILFILTER,STRAINER,WATERFILTER,USERDEFINED,NOTDEFINED)
    0x02000E6D, // DefinedType(IFCFILTERTYPEENUM,#372)
    0x000041E4, // EnumerationType(BREECHINGINLET,FIREHYDRANT,HOSEREEL,SPRINKLER,SPRINKLERDEFLECTOR,USERDEFINED,NOTDEFINED)
    0x02000E91, // DefinedType(IFCFIRESUPPRESSIONTERMINALTYPEENUM,#374)
    0x00004282, // EnumerationType(SOURCE,SINK,SOURCEANDSINK,NOTDEFINED)
    0x02000EC6, // DefinedType(IFCFLOWDIRECTIONENUM,#376)
    0x000042DF, // EnumerationType(PRESSUREGAUGE,THERMOMETER,AMMETER,FREQUENCYMETER,POWERFACTORMETER,PHASEANGLEMETER,VOLTMETER_PEAK,VOLTMETER_RMS,USERDEFINED,NOTDEFINED)
    0x02000EED, // DefinedType(IFCFLOWINSTRUMENTTYPEENUM,#378)
    0x01002D18, // EnumerationType(ENERGYMETER,GASMETER,OILMETER,WATERMETER,USERDEFINED,NOTDEFINED)
    0x02000F19, // DefinedType(IFCFLOWMETERTYPEENUM,#380)
    0x01002D90, // EnumerationType(CAISSON_FOUNDATION,FOOTING_BEAM,PAD_FOOTING,PILE_CAP,STRIP_FOOTING,USERDEFINED,NOTDEFINED)
    0x02000F40, // DefinedType(IFCFOOTINGTYPEENUM,#382)
    0x01002E20, // EnumerationType(CHAIR,TABLE,DESK,BED,FILECABINET,SHELF,SOFA,USERDEFINED,NOTDEFINED)
    0x02000F65, // DefinedType(IFCFURNITURETYPEENUM,#384)
    0x01002E9B, // EnumerationType(TERRAIN,USERDEFINED,NOTDEFINED)
    0x02000F8C, // DefinedType(IFCGEOGRAPHICELEMENTTYPEENUM,#386)
    0x00004522, // EnumerationType(GRAPH_VIEW,SKETCH_VIEW,MODEL_VIEW,PLAN_VIEW,REFLECTED_PLAN_VIEW,SECTION_VIEW,ELEVATION_VIEW,USERDEFINED,NOTDEFINED)
    0x02000FBB, // DefinedType(IFCGEOMETRICPROJECTIONENUM,#388)
    0x000045D3, // EnumerationType(GLOBAL_COORDS,LOCAL_COORDS)
    0x02000FE8, // DefinedType(IFCGLOBALORLOCALENUM,#390)
    0x01002F4E, // EnumerationType(RECTANGULAR,RADIAL,TRIANGULAR,IRREGULAR,USERDEFINED,NOTDEFINED)
    0x0200100F, // DefinedType(IFCGRIDTYPEENUM,#392)
    0x00004626, // EnumerationType(PLATE,SHELLANDTUBE,USERDEFINED,NOTDEFINED)
    0x02001031, // DefinedType(IFCHEATEXCHANGERTYPEENUM,#394)
    0x0000468C, // EnumerationType(STEAMINJECTION,ADIABATICAIRWASHER,ADIABATICPAN,ADIABATICWETTEDELEMENT,ADIABATICATOMIZING,ADIABATICULTRASONIC,ADIABATICRIGIDMEDIA,ADIABATICCOMPRESSEDAIRNOZZLE,ASSISTEDELECTRIC,ASSISTEDNATURALGAS,ASSISTEDPROPANE,ASSISTEDBUTANE,ASSISTEDSTEAM,USERDEFINED,NOTDEFINED)
    0x0200105C, // DefinedType(IFCHUMIDIFIERTYPEENUM,#396)
    0x01003013, // EnumerationType(CYCLONIC,GREASE,OIL,PETROL,USERDEFINED,NOTDEFINED)
    0x02001084, // DefinedType(IFCINTERCEPTORTYPEENUM,#398)
    0x0100307F, // EnumerationType(INTERNAL,EXTERNAL,EXTERNAL_EARTH,EXTERNAL_WATER,EXTERNAL_FIRE,NOTDEFINED)
    0x020010AD, // DefinedType(IFCINTERNALOREXTERNALENUM,#400)
    0x00004825, // EnumerationType(ASSETINVENTORY,SPACEINVENTORY,FURNITUREINVENTORY,USERDEFINED,NOTDEFINED)
    0x020010D9, // DefinedType(IFCINVENTORYTYPEENUM,#402)
    0x0100312C, // EnumerationType(DATA,POWER,USERDEFINED,NOTDEFINED)
    0x02001100, // DefinedType(IFCJUNCTIONBOXTYPEENUM,#404)
    0x01003188, // EnumerationType(UNIFORM_KNOTS,QUASI_UNIFORM_KNOTS,PIECEWISE_BEZIER_KNOTS,UNSPECIFIED)
    0x02001129, // DefinedType(IFCKNOTTYPE,#406)
    0x010031FC, // EnumerationType(ADMINISTRATION,CARPENTRY,CLEANING,CONCRETE,DRYWALL,ELECTRIC,FINISHING,FLOORING,GENERAL,HVAC,LANDSCAPING,MASONRY,PAINTING,PAVING,PLUMBING,ROOFING,SITEGRADING,STEELWORK,SURVEYING,USERDEFINED,NOTDEFINED)
    0x02001147, // DefinedType(IFCLABORRESOURCETYPEENUM,#408)
    0x01003300, // EnumerationType(COMPACTFLUORESCENT,FLUORESCENT,HALOGEN,HIGHPRESSUREMERCURY,HIGHPRESSURESODIUM,LED,METALHALIDE,OLED,TUNGSTENFILAMENT,USERDEFINED,NOTDEFINED)
    0x02001172, // DefinedType(IFCLAMPTYPEENUM,#410)
    0x0000497B, // EnumerationType(AXIS1,AXIS2,AXIS3)
    0x02001194, // DefinedType(IFCLAYERSETDIRECTIONENUM,#412)
    0x000049C9, // EnumerationType(TYPE_A,TYPE_B,TYPE_C,NOTDEFINED)
    0x020011BF, // DefinedType(IFCLIGHTDISTRIBUTIONCURVEENUM,#414)
    0x00004A2A, // EnumerationType(COMPACTFLUORESCENT,FLUORESCENT,HIGHPRESSUREMERCURY,HIGHPRESSURESODIUM,LIGHTEMITTINGDIODE,LOWPRESSURESODIUM,LOWVOLTAGEHALOGEN,MAINVOLTAGEHALOGEN,METALHALIDE,TUNGSTENFILAMENT,NOTDEFINED)
    0x020011EF, // DefinedType(IFCLIGHTEMISSIONSOURCEENUM,#416)
    0x01003446, // EnumerationType(POINTSOURCE,DIRECTIONSOURCE,SECURITYLIGHTING,USERDEFINED,NOTDEFINED)
    0x0200121C, // DefinedType(IFCLIGHTFIXTURETYPEENUM,#418)
    0x010034C5, // EnumerationType(LOAD_GROUP,LOAD_CASE,LOAD_COMBINATION,USERDEFINED,NOTDEFINED)
    0x02001246, // DefinedType(IFCLOADGROUPTYPEENUM,#420)
    0x0100353A, // EnumerationType(LOGICALAND,LOGICALOR,LOGICALXOR,LOGICALNOTAND,LOGICALNOTOR)
    0x0200126D, // DefinedType(IFCLOGICALOPERATORENUM,#422)
    0x010035AF, // EnumerationType(ANCHORBOLT,BOLT,DOWEL,NAIL,NAILPLATE,RIVET,SCREW,SHEARCONNECTOR,STAPLE,STUDSHEARCONNECTOR,USERDEFINED,NOTDEFINED)
    0x02001296, // DefinedType(IFCMECHANICALFASTENERTYPEENUM,#424)
    0x01003661, // EnumerationType(AIRSTATION,FEEDAIRUNIT,OXYGENGENERATOR,OXYGENPLANT,VACUUMSTATION,USERDEFINED,NOTDEFINED)
    0x020012C6, // DefinedType(IFCMEDICALDEVICETYPEENUM,#426)
    0x00004C69, // EnumerationType(BRACE,CHORD,COLLAR,MEMBER,MULLION,PLATE,POST,PURLIN,RAFTER,STRINGER,STRUT,STUD,USERDEFINED,NOTDEFINED)
    0x020012F1, // DefinedType(IFCMEMBERTYPEENUM,#428)
    0x00004D04, // EnumerationType(BELTDRIVE,COUPLING,DIRECTDRIVE,USERDEFINED,NOTDEFINED)
    0x02001315, // DefinedType(IFCMOTORCONNECTIONTYPEENUM,#430)
    0x00004D78, // EnumerationType(NULL)
    0x02001342, // DefinedType(IFCNULLSTYLE,#432)
    0x00004DAD, // EnumerationType(PRODUCT,PROCESS,CONTROL,RESOURCE,ACTOR,GROUP,PROJECT,NOTDEFINED)
    0x02001361, // DefinedType(IFCOBJECTTYPEENUM,#434)
    0x01003789, // EnumerationType(CODECOMPLIANCE,CODEWAIVER,DESIGNINTENT,EXTERNAL,HEALTHANDSAFETY,MERGECONFLICT,MODELVIEW,PARAMETER,REQUIREMENT,SPECIFICATION,TRIGGERCONDITION,USERDEFINED,NOTDEFINED)
    0x02001385, // DefinedType(IFCOBJECTIVEENUM,#436)
    0x00004EC4, // EnumerationType(ASSIGNEE,ASSIGNOR,LESSEE,LESSOR,LETTINGAGENT,OWNER,TENANT,USERDEFINED,NOTDEFINED)
    0x020013A8, // DefinedType(IFCOCCUPANTTYPEENUM,#438)
    0x01003887, // EnumerationType(OPENING,RECESS,USERDEFINED,NOTDEFINED)
    0x020013CE, // DefinedType(IFCOPENINGELEMENTTYPEENUM,#440)
    0x010038EA, // EnumerationType(AUDIOVISUALOUTLET,COMMUNICATIONSOUTLET,POWEROUTLET,DATAOUTLET,TELEPHONEOUTLET,USERDEFINED,NOTDEFINED)
    0x020013FA, // DefinedType(IFCOUTLETTYPEENUM,#442)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x0200141E, // DefinedType(IFCPERFORMANCEHISTORYTYPEENUM,#444)
    0x00004FCB, // EnumerationType(GRILL,LOUVER,SCREEN,USERDEFINED,NOTDEFINED)
    0x0200144E, // DefinedType(IFCPERMEABLECOVERINGOPERATIONENUM,#446)
    0x010039E8, // EnumerationType(ACCESS,BUILDING,WORK,USERDEFINED,NOTDEFINED)
    0x02001482, // DefinedType(IFCPERMITTYPEENUM,#448)
    0x0000503B, // EnumerationType(PHYSICAL,VIRTUAL,NOTDEFINED)
    0x020014A6, // DefinedType(IFCPHYSICALORVIRTUALENUM,#450)
    0x00005093, // EnumerationType(CAST_IN_PLACE,COMPOSITE,PRECAST_CONCRETE,PREFAB_STEEL,USERDEFINED,NOTDEFINED)
    0x020014D1, // DefinedType(IFCPILECONSTRUCTIONENUM,#452)
    0x01003A9E, // EnumerationType(BORED,DRIVEN,JETGROUTING,COHESION,FRICTION,SUPPORT,USERDEFINED,NOTDEFINED)
    0x020014FB, // DefinedType(IFCPILETYPEENUM,#454)
    0x0000359F, // EnumerationType(BEND,CONNECTOR,ENTRY,EXIT,JUNCTION,OBSTRUCTION,TRANSITION,USERDEFINED,NOTDEFINED)
    0x0200151D, // DefinedType(IFCPIPEFITTINGTYPEENUM,#456)
    0x01003B44, // EnumerationType(CULVERT,FLEXIBLESEGMENT,RIGIDSEGMENT,GUTTER,SPOOL,USERDEFINED,NOTDEFINED)
    0x02001546, // DefinedType(IFCPIPESEGMENTTYPEENUM,#458)
    0x00005223, // EnumerationType(CURTAIN_PANEL,SHEET,USERDEFINED,NOTDEFINED)
    0x0200156F, // DefinedType(IFCPLATETYPEENUM,#460)
    0x01003BEA, // EnumerationType(CURVE3D,PCURVE_S1,PCURVE_S2)
    0x02001592, // DefinedType(IFCPREFERREDSURFACECURVEREPRESENTATION,#462)
    0x00005282, // EnumerationType(ADVICE_CAUTION,ADVICE_NOTE,ADVICE_WARNING,CALIBRATION,DIAGNOSTIC,SHUTDOWN,STARTUP,USERDEFINED,NOTDEFINED)
    0x020015CB, // DefinedType(IFCPROCEDURETYPEENUM,#464)
    0x00005323, // EnumerationType(CURVE,AREA)
    0x020015F2, // DefinedType(IFCPROFILETYPEENUM,#466)
    0x000053E2, // EnumerationType(CHANGEORDER,MAINTENANCEWORKORDER,MOVEORDER,PURCHASEORDER,WORKORDER,USERDEFINED,NOTDEFINED)
    0x02001617, // DefinedType(IFCPROJECTORDERTYPEENUM,#468)
    0x00005477, // EnumerationType(PROJECTED_LENGTH,TRUE_LENGTH)
    0x02001641, // DefinedType(IFCPROJECTEDORTRUELENGTHENUM,#470)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x02001670, // DefinedType(IFCPROJECTIONELEMENTTYPEENUM,#472)
    0x01003D24, // EnumerationType(PSET_TYPEDRIVENONLY,PSET_TYPEDRIVENOVERRIDE,PSET_OCCURRENCEDRIVEN,PSET_PERFORMANCEDRIVEN,QTO_TYPEDRIVENONLY,QTO_TYPEDRIVENOVERRIDE,QTO_OCCURRENCEDRIVEN,NOTDEFINED)
    0x0200169F, // DefinedType(IFCPROPERTYSETTEMPLATETYPEENUM,#474)
    0x01003E09, // EnumerationType(ELECTRONIC,ELECTROMAGNETIC,RESIDUALCURRENT,THERMAL,USERDEFINED,NOTDEFINED)
    0x020016D0, // DefinedType(IFCPROTECTIVEDEVICETRIPPINGUNITTYPEENUM,#476)
    0x01003E9E, // EnumerationType(CIRCUITBREAKER,EARTHLEAKAGECIRCUITBREAKER,EARTHINGSWITCH,FUSEDISCONNECTOR,RESIDUALCURRENTCIRCUITBREAKER,RESIDUALCURRENTSWITCH,VARISTOR,USERDEFINED,NOTDEFINED)
    0x0200170A, // DefinedType(IFCPROTECTIVEDEVICETYPEENUM,#478)
    0x01003F7B, // EnumerationType(CIRCULATOR,ENDSUCTION,SPLITCASE,SUBMERSIBLEPUMP,SUMPPUMP,VERTICALINLINE,VERTICALTURBINE,USERDEFINED,NOTDEFINED)
    0x02001738, // DefinedType(IFCPUMPTYPEENUM,#480)
    0x000056BD, // EnumerationType(HANDRAIL,GUARDRAIL,BALUSTRADE,USERDEFINED,NOTDEFINED)
    0x0200175A, // DefinedType(IFCRAILINGTYPEENUM,#482)
    0x00005728, // EnumerationType(STRAIGHT,SPIRAL,USERDEFINED,NOTDEFINED)
    0x0200177F, // DefinedType(IFCRAMPFLIGHTTYPEENUM,#484)
    0x00005788, // EnumerationType(STRAIGHT_RUN_RAMP,TWO_STRAIGHT_RUN_RAMP,QUARTER_TURN_RAMP,TWO_QUARTER_TURN_RAMP,HALF_TURN_RAMP,SPIRAL_RAMP,USERDEFINED,NOTDEFINED)
    0x020017A7, // DefinedType(IFCRAMPTYPEENUM,#486)
    0x0100408C, // EnumerationType(DAILY,WEEKLY,MONTHLY_BY_DAY_OF_MONTH,MONTHLY_BY_POSITION,BY_DAY_COUNT,BY_WEEKDAY_COUNT,YEARLY_BY_DAY_OF_MONTH,YEARLY_BY_POSITION)
    0x020017C9, // DefinedType(IFCRECURRENCETYPEENUM,#488)
    0x020017F1, // EnumerationType(KILOPOINT,MILEPOINT,STATION,USERDEFINED,NOTDEFINED)
    0x02001835, // DefinedType(IFCREFERENTTYPEENUM,#490)
    0x0000583D, // EnumerationType(BLINN,FLAT,GLASS,MATT,METAL,MIRROR,PHONG,PLASTIC,STRAUSS,NOTDEFINED)
    0x0200185B, // DefinedType(IFCREFLECTANCEMETHODENUM,#492)
    0x01004171, // EnumerationType(MAIN,SHEAR,LIGATURE,STUD,PUNCHING,EDGE,RING,ANCHORING,USERDEFINED,NOTDEFINED)
    0x02001886, // DefinedType(IFCREINFORCINGBARROLEENUM,#494)
    0x0000593D, // EnumerationType(PLAIN,TEXTURED)
    0x020018B2, // DefinedType(IFCREINFORCINGBARSURFACEENUM,#496)
    0x0100422A, // EnumerationType(ANCHORING,EDGE,LIGATURE,MAIN,PUNCHING,RING,SHEAR,STUD,USERDEFINED,NOTDEFINED)
    0x020018E1, // DefinedType(IFCREINFORCINGBARTYPEENUM,#498)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x0200190D, // DefinedType(IFCREINFORCINGMESHTYPEENUM,#500)
    0x010042E1, // EnumerationType(FLAT_ROOF,SHED_ROOF,GABLE_ROOF,HIP_ROOF,HIPPED_GABLE_ROOF,GAMBREL_ROOF,MANSARD_ROOF,BARREL_ROOF,RAINBOW_ROOF,BUTTERFLY_ROOF,PAVILION_ROOF,DOME_ROOF,FREEFORM,USERDEFINED,NOTDEFINED)
    0x0200193A, // DefinedType(IFCROOFTYPEENUM,#502)
    0x00005CD2, // EnumerationType(EXA,PETA,TERA,GIGA,MEGA,KILO,HECTO,DECA,DECI,CENTI,MILLI,MICRO,NANO,PICO,FEMTO,ATTO)
    0x0200195C, // DefinedType(IFCSIPREFIX,#504)
    0x00005D55, // EnumerationType(AMPERE,BECQUEREL,CANDELA,COULOMB,CUBIC_METRE,DEGREE_CELSIUS,FARAD,GRAM,GRAY,HENRY,HERTZ,JOULE,KELVIN,LUMEN,LUX,METRE,MOLE,NEWTON,OHM,PASCAL,RADIAN,SECOND,SIEMENS,SIEVERT,SQUARE_METRE,STERADIAN,TESLA,VOLT,WATT,WEBER)
    0x0200197A, // DefinedType(IFCSIUNITNAME,#506)
    0x00005E5D, // EnumerationType(BATH,BIDET,CISTERN,SHOWER,SINK,SANITARYFOUNTAIN,TOILETPAN,URINAL,WASHHANDBASIN,WCSEAT,USERDEFINED,NOTDEFINED)
    0x0200199A, // DefinedType(IFCSANITARYTERMINALTYPEENUM,#508)
    0x00005F09, // EnumerationType(UNIFORM,TAPERED)
    0x020019C8, // DefinedType(IFCSECTIONTYPEENUM,#510)
    0x01004459, // EnumerationType(COSENSOR,CO2SENSOR,CONDUCTANCESENSOR,CONTACTSENSOR,FIRESENSOR,FLOWSENSOR,FROSTSENSOR,GASSENSOR,HEATSENSOR,HUMIDITYSENSOR,IDENTIFIERSENSOR,IONCONCENTRATIONSENSOR,LEVELSENSOR,LIGHTSENSOR,MOISTURESENSOR,MOVEMENTSENSOR,PHSENSOR,PRESSURESENSOR,RADIATIONSENSOR,RADIOACTIVITYSENSOR,SMOKESENSOR,SOUNDSENSOR,TEMPERATURESENSOR,WINDSENSOR,USERDEFINED,NOTDEFINED)
    0x020019ED, // DefinedType(IFCSENSORTYPEENUM,#512)
    0x010045ED, // EnumerationType(START_START,START_FINISH,FINISH_START,FINISH_FINISH,USERDEFINED,NOTDEFINED)
    0x02001A11, // DefinedType(IFCSEQUENCEENUM,#514)
    0x0100466B, // EnumerationType(JALOUSIE,SHUTTER,AWNING,USERDEFINED,NOTDEFINED)
    0x02001A33, // DefinedType(IFCSHADINGDEVICETYPEENUM,#516)
    0x010046D6, // EnumerationType(P_SINGLEVALUE,P_ENUMERATEDVALUE,P_BOUNDEDVALUE,P_LISTVALUE,P_TABLEVALUE,P_REFERENCEVALUE,Q_LENGTH,Q_AREA,Q_VOLUME,Q_COUNT,Q_WEIGHT,Q_TIME)
    0x02001A5E, // DefinedType(IFCSIMPLEPROPERTYTEMPLATETYPEENUM,#518)
    0x00006246, // EnumerationType(FLOOR,ROOF,LANDING,BASESLAB,USERDEFINED,NOTDEFINED)
    0x02001A92, // DefinedType(IFCSLABTYPEENUM,#520)
    0x010047C7, // EnumerationType(SOLARCOLLECTOR,SOLARPANEL,USERDEFINED,NOTDEFINED)
    0x02001AB4, // DefinedType(IFCSOLARDEVICETYPEENUM,#522)
    0x01004832, // EnumerationType(CONVECTOR,RADIATOR,USERDEFINED,NOTDEFINED)
    0x02001ADD, // DefinedType(IFCSPACEHEATERTYPEENUM,#524)
    0x01004896, // EnumerationType(SPACE,PARKING,GFA,INTERNAL,EXTERNAL,USERDEFINED,NOTDEFINED)
    0x02001B06, // DefinedType(IFCSPACETYPEENUM,#526)
    0x01004905, // EnumerationType(CONSTRUCTION,FIRESAFETY,LIGHTING,OCCUPANCY,SECURITY,THERMAL,TRANSPORT,VENTILATION,USERDEFINED,NOTDEFINED)
    0x02001B29, // DefinedType(IFCSPATIALZONETYPEENUM,#528)
    0x000063E2, // EnumerationType(BIRDCAGE,COWL,RAINWATERHOPPER,USERDEFINED,NOTDEFINED)
    0x02001B52, // DefinedType(IFCSTACKTERMINALTYPEENUM,#530)
    0x00006453, // EnumerationType(STRAIGHT,WINDER,SPIRAL,CURVED,FREEFORM,USERDEFINED,NOTDEFINED)
    0x02001B7D, // DefinedType(IFCSTAIRFLIGHTTYPEENUM,#532)
    0x000064CB, // EnumerationType(STRAIGHT_RUN_STAIR,TWO_STRAIGHT_RUN_STAIR,QUARTER_WINDING_STAIR,QUARTER_TURN_STAIR,HALF_WINDING_STAIR,HALF_TURN_STAIR,TWO_QUARTER_WINDING_STAIR,TWO_QUARTER_TURN_STAIR,THREE_QUARTER_WINDING_STAIR,THREE_QUARTER_TURN_STAIR,SPIRAL_STAIR,DOUBLE_RETURN_STAIR,CURVED_RUN_STAIR,TWO_CURVED_RUN_STAIR,USERDEFINED,NOTDEFINED)
    0x02001BA6, // DefinedType(IFCSTAIRTYPEENUM,#534)
    0x01004A1F, // EnumerationType(CONST,LINEAR,POLYGONAL,EQUIDISTANT,SINUS,PARABOLA,DISCRETE,USERDEFINED,NOTDEFINED)
    0x02001BC9, // DefinedType(IFCSTRUCTURALCURVEACTIVITYTYPEENUM,#536)
    0x000066A2, // EnumerationType(RIGID_JOINED_MEMBER,PIN_JOINED_MEMBER,CABLE,TENSION_MEMBER,COMPRESSION_MEMBER,USERDEFINED,NOTDEFINED)
    0x02001BFE, // DefinedType(IFCSTRUCTURALCURVEMEMBERTYPEENUM,#538)
    0x01004AEA, // EnumerationType(CONST,BILINEAR,DISCRETE,ISOCONTOUR,USERDEFINED,NOTDEFINED)
    0x02001C31, // DefinedType(IFCSTRUCTURALSURFACEACTIVITYTYPEENUM,#540)
    0x00006745, // EnumerationType(BENDING_ELEMENT,MEMBRANE_ELEMENT,SHELL,USERDEFINED,NOTDEFINED)
    0x02001C68, // DefinedType(IFCSTRUCTURALSURFACEMEMBERTYPEENUM,#542)
    0x01004BA1, // EnumerationType(PURCHASE,WORK,USERDEFINED,NOTDEFINED)
    0x02001C9D, // DefinedType(IFCSUBCONTRACTRESOURCETYPEENUM,#544)
    0x01004C08, // EnumerationType(MARK,TAG,TREATMENT,USERDEFINED,NOTDEFINED)
    0x02001CCE, // DefinedType(IFCSURFACEFEATURETYPEENUM,#546)
    0x000067C3, // EnumerationType(POSITIVE,NEGATIVE,BOTH)
    0x02001CFA, // DefinedType(IFCSURFACESIDE,#548)
    0x01004C90, // EnumerationType(CONTACTOR,DIMMERSWITCH,EMERGENCYSTOP,KEYPAD,MOMENTARYSWITCH,SELECTORSWITCH,STARTER,SWITCHDISCONNECTOR,TOGGLESWITCH,USERDEFINED,NOTDEFINED)
    0x02001D1B, // DefinedType(IFCSWITCHINGDEVICETYPEENUM,#550)
    0x01004D58, // EnumerationType(PANEL,WORKSURFACE,USERDEFINED,NOTDEFINED)
    0x02001D48, // DefinedType(IFCSYSTEMFURNITUREELEMENTTYPEENUM,#552)
    0x01004DC6, // EnumerationType(BASIN,BREAKPRESSURE,EXPANSION,FEEDANDEXPANSION,PRESSUREVESSEL,STORAGE,VESSEL,USERDEFINED,NOTDEFINED)
    0x02001D7C, // DefinedType(IFCTANKTYPEENUM,#554)
    0x01004E5D, // EnumerationType(ELAPSEDTIME,WORKTIME,NOTDEFINED)
    0x02001D9E, // DefinedType(IFCTASKDURATIONENUM,#556)
    0x01004EB4, // EnumerationType(ATTENDANCE,CONSTRUCTION,DEMOLITION,DISMANTLE,DISPOSAL,INSTALLATION,LOGISTIC,MAINTENANCE,MOVE,OPERATION,REMOVAL,RENOVATION,USERDEFINED,NOTDEFINED)
    0x02001DC4, // DefinedType(IFCTASKTYPEENUM,#558)
    0x01004F78, // EnumerationType(COUPLER,FIXED_END,TENSIONING_END,USERDEFINED,NOTDEFINED)
    0x02001DE6, // DefinedType(IFCTENDONANCHORTYPEENUM,#560)
    0x01004FEB, // EnumerationType(BAR,COATED,STRAND,WIRE,USERDEFINED,NOTDEFINED)
    0x02001E10, // DefinedType(IFCTENDONTYPEENUM,#562)
    0x00006A13, // EnumerationType(LEFT,RIGHT,UP,DOWN)
    0x02001E34, // DefinedType(IFCTEXTPATH,#564)
    0x00006BA6, // EnumerationType(CONTINUOUS,DISCRETE,DISCRETEBINARY,PIECEWISEBINARY,PIECEWISECONSTANT,PIECEWISECONTINUOUS,NOTDEFINED)
    0x02001E52, // DefinedType(IFCTIMESERIESDATATYPEENUM,#566)
    0x01005098, // EnumerationType(CURRENT,FREQUENCY,INVERTER,RECTIFIER,VOLTAGE,USERDEFINED,NOTDEFINED)
    0x02001E7E, // DefinedType(IFCTRANSFORMERTYPEENUM,#568)
    0x00006D26, // EnumerationType(DISCONTINUOUS,CONTINUOUS,CONTSAMEGRADIENT,CONTSAMEGRADIENTSAMECURVATURE)
    0x02001EA7, // DefinedType(IFCTRANSITIONCODE,#570)
    0x02001ECB, // EnumerationType(BIQUADRATICPARABOLA,BLOSSCURVE,CLOTHOIDCURVE,COSINECURVE,CUBICPARABOLA,SINECURVE)
    0x02001F2D, // DefinedType(IFCTRANSITIONCURVETYPE,#572)
    0x0100513A, // EnumerationType(ELEVATOR,ESCALATOR,MOVINGWALKWAY,CRANEWAY,LIFTINGGEAR,USERDEFINED,NOTDEFINED)
    0x02001F56, // DefinedType(IFCTRANSPORTELEMENTTYPEENUM,#574)
    0x00006E1A, // EnumerationType(CARTESIAN,PARAMETER,UNSPECIFIED)
    0x02001F84, // DefinedType(IFCTRIMMINGPREFERENCE,#576)
    0x00006E73, // EnumerationType(FINNED,USERDEFINED,NOTDEFINED)
    0x02001FAC, // DefinedType(IFCTUBEBUNDLETYPEENUM,#578)
    0x00006ECA, // EnumerationType(ABSORBEDDOSEUNIT,AMOUNTOFSUBSTANCEUNIT,AREAUNIT,DOSEEQUIVALENTUNIT,ELECTRICCAPACITANCEUNIT,ELECTRICCHARGEUNIT,ELECTRICCONDUCTANCEUNIT,ELECTRICCURRENTUNIT,ELECTRICRESISTANCEUNIT,ELECTRICVOLTAGEUNIT,ENERGYUNIT,FORCEUNIT,FREQUENCYUNIT,ILLUMINANCEUNIT,INDUCTANCEUNIT,LENGTHUNIT,LUMINOUSFLUXUNIT,LUMINOUSINTENSITYUNIT,MAGNETICFLUXDENSITYUNIT,MAGNETICFLUXUNIT,MASSUNIT,PLANEANGLEUNIT,POWERUNIT,PRESSUREUNIT,RADIOACTIVITYUNIT,SOLIDANGLEUNIT,THERMODYNAMICTEMPERATUREUNIT,TIMEUNIT,VOLUMEUNIT,USERDEFINED)
    0x02001FD4, // DefinedType(IFCUNITENUM,#580)
    0x01005234, // EnumerationType(ALARMPANEL,CONTROLPANEL,GASDETECTIONPANEL,INDICATORPANEL,MIMICPANEL,HUMIDISTAT,THERMOSTAT,WEATHERSTATION,USERDEFINED,NOTDEFINED)
    0x02001FF2, // DefinedType(IFCUNITARYCONTROLELEMENTTYPEENUM,#582)
    0x010052F8, // EnumerationType(AIRHANDLER,AIRCONDITIONINGUNIT,DEHUMIDIFIER,SPLITSYSTEM,ROOFTOPUNIT,USERDEFINED,NOTDEFINED)
    0x02002025, // DefinedType(IFCUNITARYEQUIPMENTTYPEENUM,#584)
    0x00007175, // EnumerationType(AIRRELEASE,ANTIVACUUM,CHANGEOVER,CHECK,COMMISSIONING,DIVERTING,DRAWOFFCOCK,DOUBLECHECK,DOUBLEREGULATING,FAUCET,FLUSHING,GASCOCK,GASTAP,ISOLATING,MIXING,PRESSUREREDUCING,PRESSURERELIEF,REGULATING,SAFETYCUTOFF,STEAMTRAP,STOPCOCK,USERDEFINED,NOTDEFINED)
    0x02002053, // DefinedType(IFCVALVETYPEENUM,#586)
    0x000072A3, // EnumerationType(COMPRESSION,SPRING,USERDEFINED,NOTDEFINED)
    0x02002076, // DefinedType(IFCVIBRATIONISOLATORTYPEENUM,#588)
    0x010053E4, // EnumerationType(CUTOUT,NOTCH,HOLE,MITER,CHAMFER,EDGE,USERDEFINED,NOTDEFINED)
    0x020020A5, // DefinedType(IFCVOIDINGFEATURETYPEENUM,#590)
    0x0100545D, // EnumerationType(MOVABLE,PARAPET,PARTITIONING,PLUMBINGWALL,SHEAR,SOLIDWALL,STANDARD,POLYGONAL,ELEMENTEDWALL,USERDEFINED,NOTDEFINED)
    0x020020D1, // DefinedType(IFCWALLTYPEENUM,#592)
    0x01005502, // EnumerationType(FLOORTRAP,FLOORWASTE,GULLYSUMP,GULLYTRAP,ROOFDRAIN,WASTEDISPOSALUNIT,WASTETRAP,USERDEFINED,NOTDEFINED)
    0x020020F3, // DefinedType(IFCWASTETERMINALTYPEENUM,#594)
    0x00007460, // EnumerationType(SIDEHUNGRIGHTHAND,SIDEHUNGLEFTHAND,TILTANDTURNRIGHTHAND,TILTANDTURNLEFTHAND,TOPHUNG,BOTTOMHUNG,PIVOTHORIZONTAL,PIVOTVERTICAL,SLIDINGHORIZONTAL,SLIDINGVERTICAL,REMOVABLECASEMENT,FIXEDCASEMENT,OTHEROPERATION,NOTDEFINED)
    0x0200211E, // DefinedType(IFCWINDOWPANELOPERATIONENUM,#596)
    0x00007578, // EnumerationType(LEFT,MIDDLE,RIGHT,BOTTOM,TOP,NOTDEFINED)
    0x0200214C, // DefinedType(IFCWINDOWPANELPOSITIONENUM,#598)
    0x000075DE, // EnumerationType(ALUMINIUM,HIGH_GRADE_STEEL,STEEL,WOOD,ALUMINIUM_WOOD,PLASTIC,OTHER_CONSTRUCTION,NOTDEFINED)
    0x02002179, // DefinedType(IFCWINDOWSTYLECONSTRUCTIONENUM,#600)
    0x0000767B, // EnumerationType(SINGLE_PANEL,DOUBLE_PANEL_VERTICAL,DOUBLE_PANEL_HORIZONTAL,TRIPLE_PANEL_VERTICAL,TRIPLE_PANEL_BOTTOM,TRIPLE_PANEL_TOP,TRIPLE_PANEL_LEFT,TRIPLE_PANEL_RIGHT,TRIPLE_PANEL_HORIZONTAL,USERDEFINED,NOTDEFINED)
    0x020021AA, // DefinedType(IFCWINDOWSTYLEOPERATIONENUM,#602)
    0x0100565E, // EnumerationType(WINDOW,SKYLIGHT,LIGHTDOME,USERDEFINED,NOTDEFINED)
    0x020021D8, // DefinedType(IFCWINDOWTYPEENUM,#604)
    0x0000767B, // EnumerationType(SINGLE_PANEL,DOUBLE_PANEL_VERTICAL,DOUBLE_PANEL_HORIZONTAL,TRIPLE_PANEL_VERTICAL,TRIPLE_PANEL_BOTTOM,TRIPLE_PANEL_TOP,TRIPLE_PANEL_LEFT,TRIPLE_PANEL_RIGHT,TRIPLE_PANEL_HORIZONTAL,USERDEFINED,NOTDEFINED)
    0x020021FC, // DefinedType(IFCWINDOWTYPEPARTITIONINGENUM,#606)
    0x010056F4, // EnumerationType(FIRSTSHIFT,SECONDSHIFT,THIRDSHIFT,USERDEFINED,NOTDEFINED)
    0x0200222C, // DefinedType(IFCWORKCALENDARTYPEENUM,#608)
    0x00007784, // EnumerationType(ACTUAL,BASELINE,PLANNED,USERDEFINED,NOTDEFINED)
    0x02002256, // DefinedType(IFCWORKPLANTYPEENUM,#610)
    0x00007784, // EnumerationType(ACTUAL,BASELINE,PLANNED,USERDEFINED,NOTDEFINED)
    0x0200227C, // DefinedType(IFCWORKSCHEDULETYPEENUM,#612)
    0x010057B8, // SelectType(#133,#105,#103)
    0x020022A6, // DefinedType(IFCACTORSELECT,#614)
    0x00007B0A, // Entity(IFCMEASUREWITHUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007B45, // ExplicitAttr(VALUECOMPONENT)
    0x020022C7, // SelectType(#2,#3,#5,#10,#20,#23,#30,#32,#33,#34,#35,#37,#38,#39,#43,#44,#46,#47,#49,#50,#51,#52,#53,#54,#59,#60,#61,#62,#64,#65,#67,#68,#69,#70,#72,#73,#74,#75,#76,#77,#78,#79,#80,#86,#88,#93,#95,#164,#166,#167,#168,#169,#170,#171,#173,#174,#175,#176,#177,#181,#182,#187,#188,#189,#190,#191,#195,#197,#199,#200,#201)
    0x02002404, // DefinedType(IFCDERIVEDMEASUREVALUE,#618)
    0x0200242D, // SelectType(#4,#11,#18,#21,#22,#28,#36,#56,#66,#71,#82,#84,#85,#87,#89,#90,#91,#92,#83,#172,#192,#194,#198)
    0x02002498, // DefinedType(IFCMEASUREVALUE,#620)
    0x020024BA, // SelectType(#12,#13,#24,#25,#31,#48,#6,#14,#63,#7,#165,#122,#193,#156)
    0x02002500, // DefinedType(IFCSIMPLEVALUE,#622)
    0x02002521, // SelectType(#619,#621,#623)
    0x0200253C, // DefinedType(IFCVALUE,#624)
    0x00007D16, // ExplicitAttr(UNITCOMPONENT)
    0x00007D32, // Entity(IFCDERIVEDUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007D69, // ExplicitAttr(ELEMENTS)
    0x00007D80, // Entity(IFCDERIVEDUNITELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00007DD1, // Entity(IFCNAMEDUNIT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007E02, // ExplicitAttr(DIMENSIONS)
    0x00007E1B, // Entity(IFCDIMENSIONALEXPONENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007E5B, // ExplicitAttr(LENGTHEXPONENT)
    0x00007E78, // ExplicitAttr(MASSEXPONENT)
    0x00007E93, // ExplicitAttr(TIMEEXPONENT)
    0x00007EAE, // ExplicitAttr(ELECTRICCURRENTEXPONENT)
    0x00007ED4, // ExplicitAttr(THERMODYNAMICTEMPERATUREEXPONENT)
    0x00007F03, // ExplicitAttr(AMOUNTOFSUBSTANCEEXPONENT)
    0x00007F2B, // ExplicitAttr(LUMINOUSINTENSITYEXPONENT)
    0x00007F53, // ExplicitAttr(UNITTYPE)
    0x00007F6A, // ExplicitAttr(EXPONENT)
    0x02002557, // SetType(#629,1,-1)
    0x00007F53, // ExplicitAttr(UNITTYPE)
    0x00007F94, // ExplicitAttr(USERDEFINEDTYPE)
    0x00007FB2, // Entity(IFCMONETARYUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007FEA, // ExplicitAttr(CURRENCY)
    0x0200256A, // SelectType(#627,#646,#631)
    0x02002585, // DefinedType(IFCUNIT,#648)
    0x01005AE4, // Entity(IFCREFERENCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01005B19, // ExplicitAttr(TYPEIDENTIFIER)
    0x01005B36, // ExplicitAttr(ATTRIBUTEIDENTIFIER)
    0x01005B58, // ExplicitAttr(INSTANCENAME)
    0x01005B73, // ExplicitAttr(LISTPOSITIONS)
    0x01005B8F, // ListType(#6,1,-1,DUPL)
    0x01005BA6, // ExplicitAttr(INNERREFERENCE)
    0x0200259F, // SelectType(#616,#650,#625)
    0x020025BA, // DefinedType(IFCAPPLIEDVALUESELECT,#657)
    0x00008077, // Entity(IFCAXIS2PLACEMENT2D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000080B3, // Entity(IFCPLACEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000080E4, // Entity(IFCGEOMETRICREPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008127, // Entity(IFCREPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008161, // ExplicitAttr(LOCATION)
    0x00008178, // Entity(IFCCARTESIANPOINT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000081B2, // Entity(IFCPOINT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000081DF, // ExplicitAttr(COORDINATES)
    0x01005C06, // ListType(#56,1,3,DUPL)
    0x00008210, // ExplicitAttr(REFDIRECTION)
    0x0000822B, // Entity(IFCDIRECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008260, // ExplicitAttr(DIRECTIONRATIOS)
    0x01005C1D, // ListType(#165,2,3,DUPL)
    0x0000829D, // Entity(IFCAXIS2PLACEMENT3D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000082D9, // ExplicitAttr(AXIS)
    0x00008210, // ExplicitAttr(REFDIRECTION)
    0x020025E2, // SelectType(#659,#672)
    0x020025F8, // DefinedType(IFCAXIS2PLACEMENT,#675)
    0x01005C6F, // SelectType(#56,#89)
    0x0200261C, // DefinedType(IFCBENDINGPARAMETERSELECT,#677)
    0x000083F7, // Entity(IFCBOOLEANRESULT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008430, // ExplicitAttr(OPERATOR)
    0x00008447, // ExplicitAttr(FIRSTOPERAND)
    0x00008462, // Entity(IFCCSGPRIMITIVE3D,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x00008358, // Entity(IFCHALFSPACESOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008392, // ExplicitAttr(BASESURFACE)
    0x000083AC, // Entity(IFCSURFACE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000083DB, // ExplicitAttr(AGREEMENTFLAG)
    0x00008326, // Entity(IFCSOLIDMODEL,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01005CAF, // Entity(IFCTESSELLATEDFACESET,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01005CE9, // Entity(IFCTESSELLATEDITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000081DF, // ExplicitAttr(COORDINATES)
    0x01005D20, // Entity(IFCCARTESIANPOINTLIST3D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01005D60, // Entity(IFCCARTESIANPOINTLIST,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01005D9A, // ExplicitAttr(COORDLIST)
    0x01005DB2, // ListType(#56,3,3,DUPL)
    0x02002648, // ListType(#695,1,-1,DUPL)
    0x02002661, // ExplicitAttr(TAGLIST)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x02002677, // SelectType(#679,#682,#684,#688,#689)
    0x0200269C, // DefinedType(IFCBOOLEANOPERAND,#699)
    0x000084F3, // ExplicitAttr(SECONDOPERAND)
    0x02002677, // SelectType(#679,#682,#684,#688,#689)
    0x020026C0, // DefinedType(IFCBOOLEANOPERAND,#702)
    0x0000885D, // Entity(IFCCLASSIFICATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01005E4F, // Entity(IFCEXTERNALINFORMATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008897, // ExplicitAttr(SOURCE)
    0x000088AC, // ExplicitAttr(EDITION)
    0x000088C2, // ExplicitAttr(EDITIONDATE)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x00008161, // ExplicitAttr(LOCATION)
    0x01005E8A, // ExplicitAttr(REFERENCETOKENS)
    0x01005EA8, // ListType(#48,1,-1,DUPL)
    0x000087A6, // Entity(IFCCLASSIFICATIONREFERENCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000087E9, // Entity(IFCEXTERNALREFERENCE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008161, // ExplicitAttr(LOCATION)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x00007836, // ExplicitAttr(NAME)
    0x0000883E, // ExplicitAttr(REFERENCEDSOURCE)
    0x020026E4, // SelectType(#704,#714)
    0x020026FA, // DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#720)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x01005F09, // ExplicitAttr(SORT)
    0x020026E4, // SelectType(#704,#714)
    0x0200272D, // DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#724)
    0x020026E4, // SelectType(#704,#714)
    0x02002760, // DefinedType(IFCCLASSIFICATIONSELECT,#726)
    0x0000859C, // Entity(IFCCOLOURSPECIFICATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01005F79, // Entity(IFCPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x000085D7, // Entity(IFCPREDEFINEDCOLOUR,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000860F, // Entity(IFCPREDEFINEDITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x0200278A, // SelectType(#728,#731)
    0x020027A0, // DefinedType(IFCCOLOUR,#734)
    0x000089B0, // Entity(IFCCOLOURRGB,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000089E5, // ExplicitAttr(RED)
    0x000089F7, // ExplicitAttr(GREEN)
    0x00008A0B, // ExplicitAttr(BLUE)
    0x020027BC, // SelectType(#736,#84)
    0x020027D1, // DefinedType(IFCCOLOURORFACTOR,#740)
    0x0100601C, // Entity(IFCCOORDINATEREFERENCESYSTEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0100605D, // ExplicitAttr(GEODETICDATUM)
    0x01006079, // ExplicitAttr(VERTICALDATUM)
    0x0001131A, // Entity(IFCGEOMETRICREPRESENTATIONCONTEXT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01006095, // Entity(IFCREPRESENTATIONCONTEXT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000A692, // ExplicitAttr(CONTEXTIDENTIFIER)
    0x0000A6B2, // ExplicitAttr(CONTEXTTYPE)
    0x00011364, // ExplicitAttr(COORDINATESPACEDIMENSION)
    0x0001138B, // ExplicitAttr(PRECISION)
    0x000113A3, // ExplicitAttr(WORLDCOORDINATESYSTEM)
    0x000113C7, // ExplicitAttr(TRUENORTH)
    0x020027F5, // SelectType(#742,#747)
    0x0200280B, // DefinedType(IFCCOORDINATEREFERENCESYSTEMSELECT,#755)
    0x02002840, // SelectType(#679,#682)
    0x02002856, // DefinedType(IFCCSGSELECT,#757)
    0x00008C3F, // Entity(IFCCURVESTYLEFONTANDSCALING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00008C83, // ExplicitAttr(CURVEFONT)
    0x00008B09, // Entity(IFCCURVESTYLEFONT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00008B43, // ExplicitAttr(PATTERNLIST)
    0x00008B5D, // Entity(IFCCURVESTYLEFONTPATTERN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008B9E, // ExplicitAttr(VISIBLESEGMENTLENGTH)
    0x00008BC1, // ExplicitAttr(INVISIBLESEGMENTLENGTH)
    0x02002875, // ListType(#765,1,-1,DUPL)
    0x00008ACE, // Entity(IFCPREDEFINEDCURVEFONT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0200288E, // SelectType(#762,#769)
    0x020028A4, // DefinedType(IFCCURVESTYLEFONTSELECT,#770)
    0x00008C9B, // ExplicitAttr(CURVEFONTSCALING)
    0x020028CE, // SelectType(#759,#771)
    0x020028E4, // DefinedType(IFCCURVEFONTORSCALEDCURVEFONTSELECT,#773)
    0x010061F7, // Entity(IFCCOMPOSITECURVEONSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BA87, // Entity(IFCCOMPOSITECURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008D06, // Entity(IFCBOUNDEDCURVE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008D3A, // Entity(IFCCURVE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BAC1, // ExplicitAttr(SEGMENTS)
    0x0000BAD8, // Entity(IFCCOMPOSITECURVESEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BB19, // ExplicitAttr(TRANSITION)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x0000BB32, // ExplicitAttr(PARENTCURVE)
    0x0200291A, // ListType(#780,1,-1,DUPL)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x01006296, // Entity(IFCPCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x010062C8, // ExplicitAttr(REFERENCECURVE)
    0x010062E5, // Entity(IFCSURFACECURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100631D, // ExplicitAttr(CURVE3D)
    0x01006333, // ExplicitAttr(ASSOCIATEDGEOMETRY)
    0x02002933, // ListType(#786,1,2,DUPL)
    0x00018F1A, // ExplicitAttr(MASTERREPRESENTATION)
    0x0200294B, // SelectType(#775,#786,#789)
    0x02002966, // DefinedType(IFCCURVEONSURFACE,#794)
    0x00008D67, // Entity(IFCEDGECURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008D9C, // Entity(IFCEDGE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008DCC, // Entity(IFCTOPOLOGICALREPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008E11, // ExplicitAttr(EDGESTART)
    0x00008E29, // Entity(IFCVERTEX,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008E5B, // ExplicitAttr(EDGEEND)
    0x00008E71, // ExplicitAttr(EDGEGEOMETRY)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x0200298A, // SelectType(#777,#796)
    0x020029A0, // DefinedType(IFCCURVEOREDGECURVE,#804)
    0x0000B4C2, // Entity(IFCOBJECTDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x020029C6, // SelectType(#806,#97)
    0x020029DB, // DefinedType(IFCDEFINITIONSELECT,#807)
    0x00009328, // Entity(IFCDOCUMENTINFORMATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x00008161, // ExplicitAttr(LOCATION)
    0x0000793D, // ExplicitAttr(PURPOSE)
    0x000093B4, // ExplicitAttr(INTENDEDUSE)
    0x000093CE, // ExplicitAttr(SCOPE)
    0x000093E2, // ExplicitAttr(REVISION)
    0x000093F9, // ExplicitAttr(DOCUMENTOWNER)
    0x00009415, // ExplicitAttr(EDITORS)
    0x02002A01, // SetType(#615,1,-1)
    0x0000943E, // ExplicitAttr(CREATIONTIME)
    0x00009459, // ExplicitAttr(LASTREVISIONTIME)
    0x00009478, // ExplicitAttr(ELECTRONICFORMAT)
    0x0000952F, // ExplicitAttr(VALIDFROM)
    0x00009547, // ExplicitAttr(VALIDUNTIL)
    0x00009560, // ExplicitAttr(CONFIDENTIALITY)
    0x0000957E, // ExplicitAttr(STATUS)
    0x000092EB, // Entity(IFCDOCUMENTREFERENCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0001453E, // ExplicitAttr(REFERENCEDDOCUMENT)
    0x02002A14, // SelectType(#809,#828)
    0x02002A2A, // DefinedType(IFCDOCUMENTSELECT,#831)
    0x00009C26, // Entity(IFCEXTERNALLYDEFINEDHATCHSTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000098B6, // Entity(IFCFILLAREASTYLEHATCHING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000098F7, // ExplicitAttr(HATCHLINEAPPEARANCE)
    0x000096F3, // Entity(IFCCURVESTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009729, // Entity(IFCPRESENTATIONSTYLE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00008C83, // ExplicitAttr(CURVEFONT)
    0x00009762, // ExplicitAttr(CURVEWIDTH)
    0x01006481, // SelectType(#28,#56,#84,#90,#92,#83)
    0x02002A4E, // DefinedType(IFCSIZESELECT,#841)
    0x000097BF, // ExplicitAttr(CURVECOLOUR)
    0x010064C5, // ExplicitAttr(MODELORDRAUGHTING)
    0x00009919, // ExplicitAttr(STARTOFNEXTHATCHLINE)
    0x0000999B, // Entity(IFCVECTOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x000099E7, // ExplicitAttr(MAGNITUDE)
    0x02002A6E, // SelectType(#90,#846)
    0x02002A83, // DefinedType(IFCHATCHLINEDISTANCESELECT,#849)
    0x00009A41, // ExplicitAttr(POINTOFREFERENCEHATCHLINE)
    0x00009A69, // ExplicitAttr(PATTERNSTART)
    0x00009A84, // ExplicitAttr(HATCHLINEANGLE)
    0x00009AA1, // Entity(IFCFILLAREASTYLETILES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009ADF, // ExplicitAttr(TILINGPATTERN)
    0x02002AB0, // ListType(#846,2,2,DUPL)
    0x00009AFB, // ExplicitAttr(TILES)
    0x0000964E, // Entity(IFCSTYLEDITEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009684, // ExplicitAttr(ITEM)
    0x00009697, // ExplicitAttr(STYLES)
    0x000096AC, // Entity(IFCPRESENTATIONSTYLEASSIGNMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009697, // ExplicitAttr(STYLES)
    0x00009864, // Entity(IFCFILLAREASTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000989D, // ExplicitAttr(FILLSTYLES)
    0x02002AC8, // SelectType(#735,#833,#834,#854)
    0x02002AE8, // DefinedType(IFCFILLSTYLESELECT,#865)
    0x02002B0D, // SetType(#866,1,-1)
    0x010064C5, // ExplicitAttr(MODELORDRAUGHTING)
    0x0000A011, // Entity(IFCSURFACESTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A049, // ExplicitAttr(SIDE)
    0x00009697, // ExplicitAttr(STYLES)
    0x0000A37F, // Entity(IFCEXTERNALLYDEFINEDSURFACESTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A0B7, // Entity(IFCSURFACESTYLELIGHTING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A0F7, // ExplicitAttr(DIFFUSETRANSMISSIONCOLOUR)
    0x0000A11F, // ExplicitAttr(DIFFUSEREFLECTIONCOLOUR)
    0x0000A145, // ExplicitAttr(TRANSMISSIONCOLOUR)
    0x0000A166, // ExplicitAttr(REFLECTANCECOLOUR)
    0x0000A3C8, // Entity(IFCSURFACESTYLEREFRACTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A40A, // ExplicitAttr(REFRACTIONINDEX)
    0x0000A428, // ExplicitAttr(DISPERSIONFACTOR)
    0x0000A05C, // Entity(IFCSURFACESTYLESHADING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A09B, // ExplicitAttr(SURFACECOLOUR)
    0x000182F6, // ExplicitAttr(TRANSPARENCY)
    0x0000A186, // Entity(IFCSURFACESTYLEWITHTEXTURES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A1CA, // ExplicitAttr(TEXTURES)
    0x0000A1E1, // Entity(IFCSURFACETEXTURE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000A217, // ExplicitAttr(REPEATS)
    0x0000A22D, // ExplicitAttr(REPEATT)
    0x00018932, // ExplicitAttr(MODE)
    0x0000A25D, // ExplicitAttr(TEXTURETRANSFORM)
    0x0000A27C, // Entity(IFCCARTESIANTRANSFORMATIONOPERATOR2D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A2C9, // Entity(IFCCARTESIANTRANSFORMATIONOPERATOR,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000A310, // ExplicitAttr(AXIS1)
    0x0000A324, // ExplicitAttr(AXIS2)
    0x0000A338, // ExplicitAttr(LOCALORIGIN)
    0x0000A352, // ExplicitAttr(SCALE)
    0x00018945, // ExplicitAttr(PARAMETER)
    0x01005EA8, // ListType(#48,1,-1,DUPL)
    0x02002B20, // ListType(#886,1,-1,DUPL)
    0x02002B39, // SelectType(#872,#873,#878,#881,#884)
    0x02002B5E, // DefinedType(IFCSURFACESTYLEELEMENTSELECT,#900)
    0x02002B8D, // SetType(#901,1,5)
    0x00009CC5, // Entity(IFCTEXTSTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009CFA, // ExplicitAttr(TEXTCHARACTERAPPEARANCE)
    0x00008544, // Entity(IFCTEXTSTYLEFORDEFINEDFONT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008587, // ExplicitAttr(COLOUR)
    0x00008677, // ExplicitAttr(BACKGROUNDCOLOUR)
    0x00009D20, // ExplicitAttr(TEXTSTYLE)
    0x00009E0A, // Entity(IFCTEXTSTYLETEXTMODEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009E48, // ExplicitAttr(TEXTINDENT)
    0x00009E61, // ExplicitAttr(TEXTALIGN)
    0x00009E79, // ExplicitAttr(TEXTDECORATION)
    0x00009E96, // ExplicitAttr(LETTERSPACING)
    0x00009EB2, // ExplicitAttr(WORDSPACING)
    0x00009ECC, // ExplicitAttr(TEXTTRANSFORM)
    0x00009EE8, // ExplicitAttr(LINEHEIGHT)
    0x00009F3C, // ExplicitAttr(TEXTFONTSTYLE)
    0x00009F92, // Entity(IFCEXTERNALLYDEFINEDTEXTFONT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009F58, // Entity(IFCPREDEFINEDTEXTFONT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x02002B9F, // SelectType(#918,#919)
    0x02002BB5, // DefinedType(IFCTEXTFONTSELECT,#920)
    0x010064C5, // ExplicitAttr(MODELORDRAUGHTING)
    0x02002BD9, // SelectType(#836,#863,#433,#869,#903)
    0x02002BFE, // DefinedType(IFCPRESENTATIONSTYLESELECT,#923)
    0x02002C2B, // SetType(#924,1,-1)
    0x02002C3E, // SelectType(#837,#861)
    0x02002C54, // DefinedType(IFCSTYLEASSIGNMENTSELECT,#926)
    0x02002C7F, // SetType(#927,1,-1)
    0x00007836, // ExplicitAttr(NAME)
    0x02002C92, // SetType(#858,1,-1)
    0x00009C0C, // ExplicitAttr(TILINGSCALE)
    0x02002AC8, // SelectType(#735,#833,#834,#854)
    0x02002CA5, // DefinedType(IFCFILLSTYLESELECT,#932)
    0x02002CCA, // SelectType(#778,#665,#686)
    0x02002CE5, // DefinedType(IFCGEOMETRICSETSELECT,#934)
    0x00011657, // Entity(IFCVIRTUALGRIDINTERSECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001169A, // ExplicitAttr(INTERSECTINGAXES)
    0x0001155A, // Entity(IFCGRIDAXIS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001158E, // ExplicitAttr(AXISTAG)
    0x000115A4, // ExplicitAttr(AXISCURVE)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x02002D0D, // ListType(#938,2,2,UNIQ)
    0x000116D2, // ExplicitAttr(OFFSETDISTANCES)
    0x010067D4, // ListType(#56,2,3,DUPL)
    0x02002D25, // SelectType(#669,#936)
    0x02002D3B, // DefinedType(IFCGRIDPLACEMENTDIRECTIONSELECT,#945)
    0x01006833, // Entity(IFCREPRESENTATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000A634, // ExplicitAttr(CONTEXTOFITEMS)
    0x0000A6CC, // ExplicitAttr(REPRESENTATIONIDENTIFIER)
    0x0000A6F3, // ExplicitAttr(REPRESENTATIONTYPE)
    0x0000A714, // ExplicitAttr(ITEMS)
    0x02002D6D, // SetType(#662,1,-1)
    0x02002D80, // SelectType(#947,#662)
    0x02002D96, // DefinedType(IFCLAYEREDITEM,#953)
    0x0000A7AE, // Entity(IFCLIBRARYINFORMATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x0000A7EC, // ExplicitAttr(VERSION)
    0x0000A802, // ExplicitAttr(PUBLISHER)
    0x0000A81A, // ExplicitAttr(VERSIONDATE)
    0x00008161, // ExplicitAttr(LOCATION)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000A772, // Entity(IFCLIBRARYREFERENCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x010068B3, // ExplicitAttr(LANGUAGE)
    0x010068CA, // ExplicitAttr(REFERENCEDLIBRARY)
    0x02002DB7, // SelectType(#955,#962)
    0x02002DCD, // DefinedType(IFCLIBRARYSELECT,#966)
    0x0000A89F, // Entity(IFCLIGHTINTENSITYDISTRIBUTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A8E5, // ExplicitAttr(LIGHTDISTRIBUTIONCURVE)
    0x0000A90A, // ExplicitAttr(DISTRIBUTIONDATA)
    0x0000A929, // Entity(IFCLIGHTDISTRIBUTIONDATA,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A96A, // ExplicitAttr(MAINPLANEANGLE)
    0x0000A987, // ExplicitAttr(SECONDARYPLANEANGLE)
    0x01006923, // ListType(#89,1,-1,DUPL)
    0x0000A9C1, // ExplicitAttr(LUMINOUSINTENSITY)
    0x0100693B, // ListType(#65,1,-1,DUPL)
    0x02002DF0, // ListType(#971,1,-1,DUPL)
    0x02002E09, // SelectType(#715,#968)
    0x02002E1F, // DefinedType(IFCLIGHTDISTRIBUTIONDATASOURCESELECT,#978)
    0x010069B9, // Entity(IFCMATERIALDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000AA93, // Entity(IFCMATERIALLIST,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000AACB, // ExplicitAttr(MATERIALS)
    0x0000AA5F, // Entity(IFCMATERIAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0001042D, // ExplicitAttr(CATEGORY)
    0x02002E56, // ListType(#983,1,-1,DUPL)
    0x01006A0C, // Entity(IFCMATERIALUSAGEDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x02002E6F, // SelectType(#980,#981,#988)
    0x02002E8A, // DefinedType(IFCMATERIALSELECT,#989)
    0x01006A8C, // Entity(IFCAPPLIEDVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000AF9F, // ExplicitAttr(APPLIEDVALUE)
    0x0000AFBA, // ExplicitAttr(UNITBASIS)
    0x0000AFD2, // ExplicitAttr(APPLICABLEDATE)
    0x0000AFEF, // ExplicitAttr(FIXEDUNTILDATE)
    0x0001042D, // ExplicitAttr(CATEGORY)
    0x0000B023, // ExplicitAttr(CONDITION)
    0x0000C4E7, // ExplicitAttr(ARITHMETICOPERATOR)
    0x0000C4BB, // ExplicitAttr(COMPONENTS)
    0x02002EAE, // ListType(#991,1,-1,DUPL)
    0x0000AD9F, // Entity(IFCTABLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x0000ADD0, // ExplicitAttr(ROWS)
    0x0000ADE3, // Entity(IFCTABLEROW,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000AE17, // ExplicitAttr(ROWCELLS)
    0x02002EC7, // ListType(#625,1,-1,DUPL)
    0x0000AE47, // ExplicitAttr(ISHEADING)
    0x01006AC4, // ListType(#1006,1,-1,DUPL)
    0x01006B11, // ExplicitAttr(COLUMNS)
    0x01006B27, // Entity(IFCTABLECOLUMN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C5B4, // ExplicitAttr(IDENTIFIER)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x01006B5E, // ExplicitAttr(REFERENCEPATH)
    0x02002EE0, // ListType(#1012,1,-1,DUPL)
    0x0000AE78, // Entity(IFCTIMESERIES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000AEAA, // ExplicitAttr(STARTTIME)
    0x0000AEC2, // ExplicitAttr(ENDTIME)
    0x0000AED8, // ExplicitAttr(TIMESERIESDATATYPE)
    0x0000AEF9, // ExplicitAttr(DATAORIGIN)
    0x0000AF12, // ExplicitAttr(USERDEFINEDDATAORIGIN)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x02002EFA, // SelectType(#991,#616,#650,#1003,#1019,#625)
    0x02002F26, // DefinedType(IFCMETRICVALUESELECT,#1028)
    0x01006C45, // SelectType(#13,#75)
    0x02002F4E, // DefinedType(IFCMODULUSOFROTATIONALSUBGRADEREACTIONSELECT,#1030)
    0x01006C99, // SelectType(#13,#76)
    0x02002F8E, // DefinedType(IFCMODULUSOFSUBGRADEREACTIONSELECT,#1032)
    0x01006CE3, // SelectType(#13,#74)
    0x02002FC4, // DefinedType(IFCMODULUSOFTRANSLATIONALSUBGRADEREACTIONSELECT,#1034)
    0x02003007, // SelectType(#125,#991,#715,#980,#133,#105,#103,#1003,#1019)
    0x02003042, // DefinedType(IFCOBJECTREFERENCESELECT,#1036)
    0x0000B140, // Entity(IFCVERTEXPOINT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B177, // ExplicitAttr(VERTEXGEOMETRY)
    0x0200306E, // SelectType(#665,#1038)
    0x02003085, // DefinedType(IFCPOINTORVERTEXPOINT,#1040)
    0x0001276D, // Entity(IFCPROCESS,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B494, // Entity(IFCOBJECT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B741, // ExplicitAttr(OBJECTTYPE)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x01006E00, // Entity(IFCTYPEPROCESS,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BD74, // Entity(IFCTYPEOBJECT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BDAA, // ExplicitAttr(APPLICABLEOCCURRENCE)
    0x0000BDCD, // ExplicitAttr(HASPROPERTYSETS)
    0x010005C6, // SetType(#96,1,-1)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x01006E33, // ExplicitAttr(PROCESSTYPE)
    0x020030AE, // SelectType(#1042,#1047)
    0x020030C6, // DefinedType(IFCPROCESSSELECT,#1055)
    0x0000F8C9, // Entity(IFCPRODUCTDEFINITIONSHAPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01006E89, // Entity(IFCPRODUCTREPRESENTATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000B80D, // ExplicitAttr(REPRESENTATIONS)
    0x0000BB4C, // ListType(#947,1,-1,DUPL)
    0x0000BE96, // Entity(IFCREPRESENTATIONMAP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BED3, // ExplicitAttr(MAPPINGORIGIN)
    0x0000BEEF, // ExplicitAttr(MAPPEDREPRESENTATION)
    0x020030EA, // SelectType(#1057,#1063)
    0x02003102, // DefinedType(IFCPRODUCTREPRESENTATIONSELECT,#1066)
    0x0000B465, // Entity(IFCPRODUCT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B75A, // ExplicitAttr(OBJECTPLACEMENT)
    0x0000B778, // Entity(IFCOBJECTPLACEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B7AF, // ExplicitAttr(REPRESENTATION)
    0x0000BD3D, // Entity(IFCTYPEPRODUCT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BE75, // ExplicitAttr(REPRESENTATIONMAPS)
    0x02003134, // ListType(#1063,1,-1,UNIQ)
    0x0000B873, // ExplicitAttr(TAG)
    0x0200314E, // SelectType(#1068,#1072)
    0x02003166, // DefinedType(IFCPRODUCTSELECT,#1076)
    0x01006F7F, // SelectType(#96,#163)
    0x0200318A, // DefinedType(IFCPROPERTYSETDEFINITIONSELECT,#1078)
    0x0000C508, // Entity(IFCAPPROVAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C5B4, // ExplicitAttr(IDENTIFIER)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x01006FC6, // ExplicitAttr(TIMEOFAPPROVAL)
    0x0000957E, // ExplicitAttr(STATUS)
    0x01006FE3, // ExplicitAttr(LEVEL)
    0x01006FF7, // ExplicitAttr(QUALIFIER)
    0x0100700F, // ExplicitAttr(REQUESTINGAPPROVAL)
    0x01007030, // ExplicitAttr(GIVINGAPPROVAL)
    0x0000E43C, // Entity(IFCCONSTRAINT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000E46E, // ExplicitAttr(CONSTRAINTGRADE)
    0x0000E48C, // ExplicitAttr(CONSTRAINTSOURCE)
    0x0000E4AB, // ExplicitAttr(CREATINGACTOR)
    0x0000943E, // ExplicitAttr(CREATIONTIME)
    0x0000E4C7, // ExplicitAttr(USERDEFINEDGRADE)
    0x0000E89F, // Entity(IFCCONTEXTDEPENDENTUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x0000E919, // Entity(IFCCONVERSIONBASEDUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x0000E958, // ExplicitAttr(CONVERSIONFACTOR)
    0x000102A2, // Entity(IFCPHYSICALQUANTITY,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0100704D, // Entity(IFCPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C7DE, // ExplicitAttr(PROFILETYPE)
    0x0000C7F8, // ExplicitAttr(PROFILENAME)
    0x01007083, // Entity(IFCPROPERTYABSTRACTION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000F7D6, // Entity(IFCSHAPEASPECT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F80D, // ExplicitAttr(SHAPEREPRESENTATIONS)
    0x0000F830, // Entity(IFCSHAPEMODEL,ABSTRACT,SIMPLE,INDEPENDENT)
    0x020031BC, // ListType(#1112,1,-1,DUPL)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000F87C, // ExplicitAttr(PRODUCTDEFINITIONAL)
    0x0000F89E, // ExplicitAttr(PARTOFPRODUCTDEFINITIONSHAPE)
    0x020031D6, // SelectType(#116,#991,#1080,#1090,#1098,#1100,#705,#715,#980,#133,#105,#103,#1103,#1106,#1109,#1110,#1019)
    0x02003240, // DefinedType(IFCRESOURCEOBJECTSELECT,#1118)
    0x0000E735, // Entity(IFCRESOURCE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x0100714E, // Entity(IFCTYPERESOURCE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x01007182, // ExplicitAttr(RESOURCETYPE)
    0x0200326B, // SelectType(#1120,#1123)
    0x02003283, // DefinedType(IFCRESOURCESELECT,#1127)
    0x010071DA, // SelectType(#13,#168)
    0x020032A8, // DefinedType(IFCROTATIONALSTIFFNESSSELECT,#1129)
    0x0100721F, // SelectType(#9,#58)
    0x020032D8, // DefinedType(IFCSEGMENTINDEXSELECT,#1131)
    0x0000B1D2, // Entity(IFCCLOSEDSHELL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B209, // Entity(IFCCONNECTEDFACESET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B245, // ExplicitAttr(CFSFACES)
    0x0000B25C, // Entity(IFCFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B28C, // ExplicitAttr(BOUNDS)
    0x0000B2A1, // Entity(IFCFACEBOUND,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B2D6, // ExplicitAttr(BOUND)
    0x0000B2EA, // Entity(IFCLOOP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x02003301, // SetType(#1138,1,-1)
    0x02003315, // SetType(#1136,1,-1)
    0x0000B340, // Entity(IFCOPENSHELL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003329, // SelectType(#1133,#1144)
    0x02003341, // DefinedType(IFCSHELL,#1145)
    0x0200335D, // SelectType(#1133,#688)
    0x02003374, // DefinedType(IFCSOLIDORSHELL,#1147)
    0x010072F1, // Entity(IFCEXTERNALSPATIALELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01007333, // Entity(IFCEXTERNALSPATIALSTRUCTUREELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0100737A, // Entity(IFCSPATIALELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000D46C, // ExplicitAttr(LONGNAME)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00015C27, // Entity(IFCSPACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D42D, // Entity(IFCSPATIALSTRUCTUREELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000D483, // ExplicitAttr(COMPOSITIONTYPE)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00015C7E, // ExplicitAttr(ELEVATIONWITHFLOORING)
    0x02003397, // SelectType(#1149,#1154)
    0x020033AF, // DefinedType(IFCSPACEBOUNDARYSELECT,#1159)
    0x010073F2, // SelectType(#178,#179)
    0x020033D9, // DefinedType(IFCSPECULARHIGHLIGHTSELECT,#1161)
    0x0000B844, // Entity(IFCELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B873, // ExplicitAttr(TAG)
    0x0000B42F, // Entity(IFCSTRUCTURALITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x02003407, // SelectType(#1163,#1165)
    0x0200341F, // DefinedType(IFCSTRUCTURALACTIVITYASSIGNMENTSELECT,#1166)
    0x0000B924, // Entity(IFCFACEBASEDSURFACEMODEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B965, // ExplicitAttr(FBSMFACES)
    0x02003458, // SetType(#1134,1,-1)
    0x0000B8D3, // Entity(IFCFACESURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B90A, // ExplicitAttr(FACESURFACE)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x0200346C, // SelectType(#1168,#1171,#686)
    0x02003489, // DefinedType(IFCSURFACEORFACESURFACE,#1174)
    0x010074E3, // SelectType(#31,#83)
    0x020034B4, // DefinedType(IFCTIMEORRATIOSELECT,#1176)
    0x0100751F, // SelectType(#13,#61)
    0x020034DC, // DefinedType(IFCTRANSLATIONALSTIFFNESSSELECT,#1178)
    0x0200350F, // SelectType(#664,#87)
    0x02003524, // DefinedType(IFCTRIMMINGSELECT,#1180)
    0x02003549, // SelectType(#669,#846)
    0x0200355F, // DefinedType(IFCVECTORORDIRECTION,#1182)
    0x02003587, // SelectType(#13,#201)
    0x0200359C, // DefinedType(IFCWARPINGSTIFFNESSSELECT,#1184)
    0x0000BB81, // Entity(IFCACTIONREQUEST,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BBBA, // Entity(IFCCONTROL,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000957E, // ExplicitAttr(STATUS)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x0000BC01, // Entity(IFCACTOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BC32, // ExplicitAttr(THEACTOR)
    0x01007620, // Entity(IFCACTUATOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F481, // Entity(IFCDISTRIBUTIONCONTROLELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F3F8, // Entity(IFCDISTRIBUTIONELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000BC49, // Entity(IFCACTUATORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BC81, // Entity(IFCDISTRIBUTIONCONTROLELEMENTTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BCC7, // Entity(IFCDISTRIBUTIONELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BD0A, // Entity(IFCELEMENTTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF2B, // ExplicitAttr(ELEMENTTYPE)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01007654, // Entity(IFCADVANCEDBREP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010717, // Entity(IFCMANIFOLDSOLIDBREP,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00010750, // ExplicitAttr(OUTER)
    0x0100768C, // Entity(IFCADVANCEDBREPWITHVOIDS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000107A4, // ExplicitAttr(VOIDS)
    0x020035C9, // SetType(#1133,1,-1)
    0x010076E1, // Entity(IFCADVANCEDFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01007719, // Entity(IFCAIRTERMINAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010BCE, // Entity(IFCFLOWTERMINAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F3B5, // Entity(IFCDISTRIBUTIONFLOWELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01007750, // Entity(IFCAIRTERMINALBOX,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FD68, // Entity(IFCFLOWCONTROLLER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000BF62, // Entity(IFCAIRTERMINALBOXTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BFA0, // Entity(IFCFLOWCONTROLLERTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BFDA, // Entity(IFCDISTRIBUTIONFLOWELEMENTTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000C01D, // Entity(IFCAIRTERMINALTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C058, // Entity(IFCFLOWTERMINALTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100778A, // Entity(IFCAIRTOAIRHEATRECOVERY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001038E, // Entity(IFCENERGYCONVERSIONDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000C090, // Entity(IFCAIRTOAIRHEATRECOVERYTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C0D4, // Entity(IFCENERGYCONVERSIONDEVICETYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010077CA, // Entity(IFCALARM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000C116, // Entity(IFCALARMTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x020035DD, // Entity(IFCALIGNMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003612, // Entity(IFCLINEARPOSITIONINGELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x02003652, // Entity(IFCPOSITIONINGELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000082D9, // ExplicitAttr(AXIS)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0200368C, // Entity(IFCALIGNMENT2DHORIZONTAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x020036CD, // ExplicitAttr(STARTDISTALONG)
    0x0000BAC1, // ExplicitAttr(SEGMENTS)
    0x020036EA, // Entity(IFCALIGNMENT2DHORIZONTALSEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003732, // Entity(IFCALIGNMENT2DSEGMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0200376C, // ExplicitAttr(TANGENTIALCONTINUITY)
    0x0200378F, // ExplicitAttr(STARTTAG)
    0x020037A6, // ExplicitAttr(ENDTAG)
    0x020037BB, // ExplicitAttr(CURVEGEOMETRY)
    0x020037D7, // Entity(IFCCURVESEGMENT2D,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0200380D, // ExplicitAttr(STARTPOINT)
    0x02003826, // ExplicitAttr(STARTDIRECTION)
    0x02003843, // ExplicitAttr(SEGMENTLENGTH)
    0x0200385F, // ListType(#1243,1,-1,DUPL)
    0x02003879, // Entity(IFCALIGNMENT2DVERSEGCIRCULARARC,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x020038C1, // Entity(IFCALIGNMENT2DVERTICALSEGMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x020036CD, // ExplicitAttr(STARTDISTALONG)
    0x02003903, // ExplicitAttr(HORIZONTALLENGTH)
    0x02003922, // ExplicitAttr(STARTHEIGHT)
    0x0200393C, // ExplicitAttr(STARTGRADIENT)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x02003958, // ExplicitAttr(ISCONVEX)
    0x0200396F, // Entity(IFCALIGNMENT2DVERSEGLINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x020039B0, // Entity(IFCALIGNMENT2DVERSEGPARABOLICARC,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x020039F9, // ExplicitAttr(PARABOLACONSTANT)
    0x02003958, // ExplicitAttr(ISCONVEX)
    0x02003A18, // Entity(IFCALIGNMENT2DVERTICAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BAC1, // ExplicitAttr(SEGMENTS)
    0x02003A57, // ListType(#1255,1,-1,DUPL)
    0x02003A71, // Entity(IFCALIGNMENTCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003AAB, // ExplicitAttr(HORIZONTAL)
    0x02003AC4, // ExplicitAttr(VERTICAL)
    0x0000B873, // ExplicitAttr(TAG)
    0x0000C237, // Entity(IFCANNOTATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C26D, // Entity(IFCANNOTATIONFILLAREA,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C2AB, // ExplicitAttr(OUTERBOUNDARY)
    0x0000C2C7, // ExplicitAttr(INNERBOUNDARIES)
    0x02003ADB, // SetType(#778,1,-1)
    0x0000C6EA, // Entity(IFCAPPROVALRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010077FB, // Entity(IFCRESOURCELEVELRELATIONSHIP,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000C748, // ExplicitAttr(RELATINGAPPROVAL)
    0x0100783C, // ExplicitAttr(RELATEDAPPROVALS)
    0x02003AEE, // SetType(#1080,1,-1)
    0x0000C767, // Entity(IFCARBITRARYCLOSEDPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C812, // ExplicitAttr(OUTERCURVE)
    0x0000C82B, // Entity(IFCARBITRARYOPENPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C86E, // ExplicitAttr(CURVE)
    0x0000C882, // Entity(IFCARBITRARYPROFILEDEFWITHVOIDS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C8CA, // ExplicitAttr(INNERCURVES)
    0x02003ADB, // SetType(#778,1,-1)
    0x0000C8E4, // Entity(IFCASSET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C915, // Entity(IFCGROUP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x0000C95C, // ExplicitAttr(ORIGINALVALUE)
    0x0000AF36, // Entity(IFCCOSTVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C978, // ExplicitAttr(CURRENTVALUE)
    0x0000C993, // ExplicitAttr(TOTALREPLACEMENTCOST)
    0x0000C9B6, // ExplicitAttr(OWNER)
    0x0000C9CA, // ExplicitAttr(USER)
    0x0000C9DD, // ExplicitAttr(RESPONSIBLEPERSON)
    0x0000C9FD, // ExplicitAttr(INCORPORATIONDATE)
    0x0000CA1D, // ExplicitAttr(DEPRECIATEDVALUE)
    0x0000CA3C, // Entity(IFCASYMMETRICISHAPEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CABE, // Entity(IFCPARAMETERIZEDPROFILEDEF,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x0100786F, // ExplicitAttr(BOTTOMFLANGEWIDTH)
    0x0000CB18, // ExplicitAttr(OVERALLDEPTH)
    0x0000CB33, // ExplicitAttr(WEBTHICKNESS)
    0x0100788F, // ExplicitAttr(BOTTOMFLANGETHICKNESS)
    0x010078B3, // ExplicitAttr(BOTTOMFLANGEFILLETRADIUS)
    0x0000CB87, // ExplicitAttr(TOPFLANGEWIDTH)
    0x0000CBA4, // ExplicitAttr(TOPFLANGETHICKNESS)
    0x0000CBC5, // ExplicitAttr(TOPFLANGEFILLETRADIUS)
    0x010078DA, // ExplicitAttr(BOTTOMFLANGEEDGERADIUS)
    0x010078FF, // ExplicitAttr(BOTTOMFLANGESLOPE)
    0x0100791F, // ExplicitAttr(TOPFLANGEEDGERADIUS)
    0x01007941, // ExplicitAttr(TOPFLANGESLOPE)
    0x0100795E, // Entity(IFCAUDIOVISUALAPPLIANCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100799E, // Entity(IFCAUDIOVISUALAPPLIANCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000CC0A, // Entity(IFCAXIS1PLACEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000082D9, // ExplicitAttr(AXIS)
    0x0000CC44, // Entity(IFCBSPLINECURVE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000CC78, // ExplicitAttr(DEGREE)
    0x0000CC8D, // ExplicitAttr(CONTROLPOINTSLIST)
    0x02003B02, // ListType(#664,2,-1,DUPL)
    0x0000CCC6, // ExplicitAttr(CURVEFORM)
    0x0000CCDE, // ExplicitAttr(CLOSEDCURVE)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x01007A69, // Entity(IFCBSPLINECURVEWITHKNOTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01007AAA, // ExplicitAttr(KNOTMULTIPLICITIES)
    0x01007ACB, // ListType(#6,2,-1,DUPL)
    0x01007AE2, // ExplicitAttr(KNOTS)
    0x01007AF6, // ListType(#87,2,-1,DUPL)
    0x01007B0E, // ExplicitAttr(KNOTSPEC)
    0x01007B44, // Entity(IFCBSPLINESURFACE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01007B7A, // Entity(IFCBOUNDEDSURFACE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01007BB0, // ExplicitAttr(UDEGREE)
    0x01007BC6, // ExplicitAttr(VDEGREE)
    0x0000CC8D, // ExplicitAttr(CONTROLPOINTSLIST)
    0x02003B02, // ListType(#664,2,-1,DUPL)
    0x02003B1B, // ListType(#1343,2,-1,DUPL)
    0x01007BF6, // ExplicitAttr(SURFACEFORM)
    0x01007C10, // ExplicitAttr(UCLOSED)
    0x01007C26, // ExplicitAttr(VCLOSED)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x01007C82, // Entity(IFCBSPLINESURFACEWITHKNOTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01007CC5, // ExplicitAttr(UMULTIPLICITIES)
    0x01007ACB, // ListType(#6,2,-1,DUPL)
    0x01007CE3, // ExplicitAttr(VMULTIPLICITIES)
    0x01007ACB, // ListType(#6,2,-1,DUPL)
    0x01007D01, // ExplicitAttr(UKNOTS)
    0x01007AF6, // ListType(#87,2,-1,DUPL)
    0x01007D16, // ExplicitAttr(VKNOTS)
    0x01007AF6, // ListType(#87,2,-1,DUPL)
    0x01007B0E, // ExplicitAttr(KNOTSPEC)
    0x0000CCF8, // Entity(IFCBEAM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CD28, // Entity(IFCBUILDINGELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01007D5B, // Entity(IFCBEAMSTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CD5F, // Entity(IFCBEAMTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CD93, // Entity(IFCBUILDINGELEMENTTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000CE05, // Entity(IFCBLOBTEXTURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CE3C, // ExplicitAttr(RASTERFORMAT)
    0x0000CE57, // ExplicitAttr(RASTERCODE)
    0x0000CE70, // Entity(IFCBLOCK,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CEA1, // ExplicitAttr(XLENGTH)
    0x0000CEB7, // ExplicitAttr(YLENGTH)
    0x0000CECD, // ExplicitAttr(ZLENGTH)
    0x01007D97, // Entity(IFCBOILER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000CEE3, // Entity(IFCBOILERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000CF19, // Entity(IFCBOOLEANCLIPPINGRESULT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CF5A, // Entity(IFCBOUNDARYCONDITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x01007DC9, // Entity(IFCBOUNDARYCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CF93, // Entity(IFCBOUNDARYEDGECONDITION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01007E02, // ExplicitAttr(TRANSLATIONALSTIFFNESSBYLENGTHX)
    0x01007E30, // ExplicitAttr(TRANSLATIONALSTIFFNESSBYLENGTHY)
    0x01007E5E, // ExplicitAttr(TRANSLATIONALSTIFFNESSBYLENGTHZ)
    0x0000D049, // ExplicitAttr(ROTATIONALSTIFFNESSBYLENGTHX)
    0x0000D074, // ExplicitAttr(ROTATIONALSTIFFNESSBYLENGTHY)
    0x0000D09F, // ExplicitAttr(ROTATIONALSTIFFNESSBYLENGTHZ)
    0x0000D0CA, // Entity(IFCBOUNDARYFACECONDITION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01007E8C, // ExplicitAttr(TRANSLATIONALSTIFFNESSBYAREAX)
    0x01007EB8, // ExplicitAttr(TRANSLATIONALSTIFFNESSBYAREAY)
    0x01007EE4, // ExplicitAttr(TRANSLATIONALSTIFFNESSBYAREAZ)
    0x0000D17A, // Entity(IFCBOUNDARYNODECONDITION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01007F10, // ExplicitAttr(TRANSLATIONALSTIFFNESSX)
    0x01007F36, // ExplicitAttr(TRANSLATIONALSTIFFNESSY)
    0x01007F5C, // ExplicitAttr(TRANSLATIONALSTIFFNESSZ)
    0x0000D218, // ExplicitAttr(ROTATIONALSTIFFNESSX)
    0x0000D23B, // ExplicitAttr(ROTATIONALSTIFFNESSY)
    0x0000D25E, // ExplicitAttr(ROTATIONALSTIFFNESSZ)
    0x0000D281, // Entity(IFCBOUNDARYNODECONDITIONWARPING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D2C9, // ExplicitAttr(WARPINGSTIFFNESS)
    0x0000D322, // Entity(IFCBOUNDINGBOX,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D359, // ExplicitAttr(CORNER)
    0x0000D36E, // ExplicitAttr(XDIM)
    0x0000D381, // ExplicitAttr(YDIM)
    0x0000D394, // ExplicitAttr(ZDIM)
    0x0000D3A7, // Entity(IFCBOXEDHALFSPACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D3E1, // ExplicitAttr(ENCLOSURE)
    0x0000D3F9, // Entity(IFCBUILDING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D4A1, // ExplicitAttr(ELEVATIONOFREFHEIGHT)
    0x0000D4C4, // ExplicitAttr(ELEVATIONOFTERRAIN)
    0x0000D4E5, // ExplicitAttr(BUILDINGADDRESS)
    0x0000D503, // Entity(IFCPOSTALADDRESS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D53C, // ExplicitAttr(INTERNALLOCATION)
    0x0000D55B, // ExplicitAttr(ADDRESSLINES)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x0000D576, // ExplicitAttr(POSTALBOX)
    0x0000D58E, // ExplicitAttr(TOWN)
    0x0000D5A1, // ExplicitAttr(REGION)
    0x0000D5B6, // ExplicitAttr(POSTALCODE)
    0x0000D5CF, // ExplicitAttr(COUNTRY)
    0x0000D625, // Entity(IFCBUILDINGELEMENTPART,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F2BA, // Entity(IFCELEMENTCOMPONENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01007F82, // Entity(IFCBUILDINGELEMENTPARTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F333, // Entity(IFCELEMENTCOMPONENTTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000D664, // Entity(IFCBUILDINGELEMENTPROXY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000D6A4, // Entity(IFCBUILDINGELEMENTPROXYTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000D6E8, // Entity(IFCBUILDINGSTOREY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D722, // ExplicitAttr(ELEVATION)
    0x01007FC5, // Entity(IFCBUILDINGSYSTEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010166, // Entity(IFCSYSTEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000D46C, // ExplicitAttr(LONGNAME)
    0x01007FFF, // Entity(IFCBURNER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008031, // Entity(IFCBURNERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000D73A, // Entity(IFCCSHAPEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D776, // ExplicitAttr(DEPTH)
    0x0000D78A, // ExplicitAttr(WIDTH)
    0x0000D79E, // ExplicitAttr(WALLTHICKNESS)
    0x0000D7BA, // ExplicitAttr(GIRTH)
    0x0000D7CE, // ExplicitAttr(INTERNALFILLETRADIUS)
    0x01008067, // Entity(IFCCABLECARRIERFITTING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010A70, // Entity(IFCFLOWFITTING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000D812, // Entity(IFCCABLECARRIERFITTINGTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D855, // Entity(IFCFLOWFITTINGTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010080A6, // Entity(IFCCABLECARRIERSEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010B5A, // Entity(IFCFLOWSEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000D88C, // Entity(IFCCABLECARRIERSEGMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D8CF, // Entity(IFCFLOWSEGMENTTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010080E5, // Entity(IFCCABLEFITTING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100811D, // Entity(IFCCABLEFITTINGTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008159, // Entity(IFCCABLESEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000D906, // Entity(IFCCABLESEGMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008191, // Entity(IFCCARTESIANPOINTLIST2D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01005D9A, // ExplicitAttr(COORDLIST)
    0x010081D1, // ListType(#56,2,2,DUPL)
    0x02003B35, // ListType(#1469,1,-1,DUPL)
    0x02002661, // ExplicitAttr(TAGLIST)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x0000D942, // Entity(IFCCARTESIANTRANSFORMATIONOPERATOR2DNONUNIFORM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D999, // ExplicitAttr(SCALE2)
    0x0000D9AE, // Entity(IFCCARTESIANTRANSFORMATIONOPERATOR3D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D9FB, // ExplicitAttr(AXIS3)
    0x0000DA0F, // Entity(IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D999, // ExplicitAttr(SCALE2)
    0x0000DA66, // ExplicitAttr(SCALE3)
    0x0000DA7B, // Entity(IFCCENTERLINEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DABB, // ExplicitAttr(THICKNESS)
    0x0100823E, // Entity(IFCCHILLER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000DBEC, // Entity(IFCCHILLERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008271, // Entity(IFCCHIMNEY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010082A4, // Entity(IFCCHIMNEYTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000DC23, // Entity(IFCCIRCLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DC55, // Entity(IFCCONIC,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x0000DC97, // Entity(IFCCIRCLEHOLLOWPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DCD9, // Entity(IFCCIRCLEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x0000D79E, // ExplicitAttr(WALLTHICKNESS)
    0x02003B4F, // Entity(IFCCIRCULARARCSEGMENT2D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x02003B8F, // ExplicitAttr(ISCCW)
    0x010082DB, // Entity(IFCCIVILELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008313, // Entity(IFCCIVILELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100834F, // Entity(IFCCOIL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000DE27, // Entity(IFCCOILTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100837F, // Entity(IFCCOLOURRGBLIST,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010083B8, // ExplicitAttr(COLOURLIST)
    0x010083D1, // ListType(#84,3,3,DUPL)
    0x02003BA3, // ListType(#1509,1,-1,DUPL)
    0x0000DE5B, // Entity(IFCCOLUMN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008402, // Entity(IFCCOLUMNSTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DE8D, // Entity(IFCCOLUMNTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008440, // Entity(IFCCOMMUNICATIONSAPPLIANCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008483, // Entity(IFCCOMMUNICATIONSAPPLIANCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000DEC3, // Entity(IFCCOMPLEXPROPERTY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C6A6, // Entity(IFCPROPERTY,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000DEFE, // ExplicitAttr(USAGENAME)
    0x0000DF16, // ExplicitAttr(HASPROPERTIES)
    0x02003BBD, // SetType(#1521,1,-1)
    0x010084DE, // Entity(IFCCOMPLEXPROPERTYTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008521, // Entity(IFCPROPERTYTEMPLATE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01008559, // Entity(IFCPROPERTYTEMPLATEDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000DEFE, // ExplicitAttr(USAGENAME)
    0x0100859B, // ExplicitAttr(TEMPLATETYPE)
    0x010085B6, // ExplicitAttr(HASPROPERTYTEMPLATES)
    0x02003BD1, // SetType(#1528,1,-1)
    0x0000DF32, // Entity(IFCCOMPOSITEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DF71, // ExplicitAttr(PROFILES)
    0x02003BE5, // SetType(#1106,2,-1)
    0x0000DF9C, // ExplicitAttr(LABEL)
    0x01008601, // Entity(IFCCOMPRESSOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010B1E, // Entity(IFCFLOWMOVINGDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000DFB0, // Entity(IFCCOMPRESSORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DFEA, // Entity(IFCFLOWMOVINGDEVICETYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008637, // Entity(IFCCONDENSER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000E026, // Entity(IFCCONDENSERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000E10A, // Entity(IFCCONNECTIONCURVEGEOMETRY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000E14D, // Entity(IFCCONNECTIONGEOMETRY,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000E187, // ExplicitAttr(CURVEONRELATINGELEMENT)
    0x0000E1AC, // ExplicitAttr(CURVEONRELATEDELEMENT)
    0x0000E1D0, // Entity(IFCCONNECTIONPOINTECCENTRICITY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000E217, // Entity(IFCCONNECTIONPOINTGEOMETRY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000E25A, // ExplicitAttr(POINTONRELATINGELEMENT)
    0x0000E27F, // ExplicitAttr(POINTONRELATEDELEMENT)
    0x0000E2A3, // ExplicitAttr(ECCENTRICITYINX)
    0x0000E2C1, // ExplicitAttr(ECCENTRICITYINY)
    0x0000E2DF, // ExplicitAttr(ECCENTRICITYINZ)
    0x0000E3AA, // Entity(IFCCONNECTIONSURFACEGEOMETRY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000E3EF, // ExplicitAttr(SURFACEONRELATINGELEMENT)
    0x0000E416, // ExplicitAttr(SURFACEONRELATEDELEMENT)
    0x0100866C, // Entity(IFCCONNECTIONVOLUMEGEOMETRY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010086B0, // ExplicitAttr(VOLUMEONRELATINGELEMENT)
    0x010086D6, // ExplicitAttr(VOLUMEONRELATEDELEMENT)
    0x0000E6B0, // Entity(IFCCONSTRUCTIONEQUIPMENTRESOURCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000E6F9, // Entity(IFCCONSTRUCTIONRESOURCE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00012F11, // ExplicitAttr(USAGE)
    0x010086FB, // Entity(IFCRESOURCETIME,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008733, // Entity(IFCSCHEDULINGTIME,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x0000AEF9, // ExplicitAttr(DATAORIGIN)
    0x0000AF12, // ExplicitAttr(USERDEFINEDDATAORIGIN)
    0x01008769, // ExplicitAttr(SCHEDULEWORK)
    0x01008784, // ExplicitAttr(SCHEDULEUSAGE)
    0x00014D08, // ExplicitAttr(SCHEDULESTART)
    0x00014D72, // ExplicitAttr(SCHEDULEFINISH)
    0x010087A0, // ExplicitAttr(SCHEDULECONTOUR)
    0x010087BE, // ExplicitAttr(LEVELINGDELAY)
    0x010087DA, // ExplicitAttr(ISOVERALLOCATED)
    0x00014E31, // ExplicitAttr(STATUSTIME)
    0x010087F8, // ExplicitAttr(ACTUALWORK)
    0x01008811, // ExplicitAttr(ACTUALUSAGE)
    0x00014CBD, // ExplicitAttr(ACTUALSTART)
    0x00014D24, // ExplicitAttr(ACTUALFINISH)
    0x0100882B, // ExplicitAttr(REMAININGWORK)
    0x01008847, // ExplicitAttr(REMAININGUSAGE)
    0x00014E7D, // ExplicitAttr(COMPLETION)
    0x01008864, // ExplicitAttr(BASECOSTS)
    0x02002EAE, // ListType(#991,1,-1,DUPL)
    0x0000E7C4, // ExplicitAttr(BASEQUANTITY)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100887C, // Entity(IFCCONSTRUCTIONEQUIPMENTRESOURCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010088C9, // Entity(IFCCONSTRUCTIONRESOURCETYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01008864, // ExplicitAttr(BASECOSTS)
    0x02002EAE, // ListType(#991,1,-1,DUPL)
    0x0000E7C4, // ExplicitAttr(BASEQUANTITY)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000E7DF, // Entity(IFCCONSTRUCTIONMATERIALRESOURCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008909, // Entity(IFCCONSTRUCTIONMATERIALRESOURCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000E858, // Entity(IFCCONSTRUCTIONPRODUCTRESOURCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008955, // Entity(IFCCONSTRUCTIONPRODUCTRESOURCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010089A0, // Entity(IFCCONTEXT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B741, // ExplicitAttr(OBJECTTYPE)
    0x0000D46C, // ExplicitAttr(LONGNAME)
    0x0001370C, // ExplicitAttr(PHASE)
    0x00013720, // ExplicitAttr(REPRESENTATIONCONTEXTS)
    0x02003BF9, // SetType(#748,1,-1)
    0x00013758, // ExplicitAttr(UNITSINCONTEXT)
    0x00013775, // Entity(IFCUNITASSIGNMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000137AF, // ExplicitAttr(UNITS)
    0x02003C0C, // SetType(#649,1,-1)
    0x010089E2, // Entity(IFCCONTROLLER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000E8DF, // Entity(IFCCONTROLLERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008A18, // Entity(IFCCONVERSIONBASEDUNITWITHOFFSET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008A61, // ExplicitAttr(CONVERSIONOFFSET)
    0x01008A80, // Entity(IFCCOOLEDBEAM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000E977, // Entity(IFCCOOLEDBEAMTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008AB6, // Entity(IFCCOOLINGTOWER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000E9B1, // Entity(IFCCOOLINGTOWERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008AEE, // Entity(IFCCOORDINATEOPERATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01008B29, // ExplicitAttr(SOURCECRS)
    0x01008B41, // ExplicitAttr(TARGETCRS)
    0x0000E9ED, // Entity(IFCCOSTITEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008B59, // ExplicitAttr(COSTVALUES)
    0x02003C1F, // ListType(#1296,1,-1,DUPL)
    0x01008B8C, // ExplicitAttr(COSTQUANTITIES)
    0x02003C39, // ListType(#1103,1,-1,DUPL)
    0x0000EA21, // Entity(IFCCOSTSCHEDULE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000957E, // ExplicitAttr(STATUS)
    0x0000EA8C, // ExplicitAttr(SUBMITTEDON)
    0x0000EAC0, // ExplicitAttr(UPDATEDATE)
    0x0000EAD9, // Entity(IFCCOVERING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000EB0D, // Entity(IFCCOVERINGTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000ECB2, // Entity(IFCCREWRESOURCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008BC3, // Entity(IFCCREWRESOURCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000ECEA, // Entity(IFCCSGSOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000ED1E, // ExplicitAttr(TREEROOTEXPRESSION)
    0x0000ED3F, // Entity(IFCCURRENCYRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000ED7F, // ExplicitAttr(RELATINGMONETARYUNIT)
    0x0000EDA2, // ExplicitAttr(RELATEDMONETARYUNIT)
    0x0000EDC4, // ExplicitAttr(EXCHANGERATE)
    0x0000EDDF, // ExplicitAttr(RATEDATETIME)
    0x0000EDFA, // ExplicitAttr(RATESOURCE)
    0x0000EE13, // Entity(IFCCURTAINWALL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000EE4A, // Entity(IFCCURTAINWALLTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000EE85, // Entity(IFCCURVEBOUNDEDPLANE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x0000EEDD, // Entity(IFCPLANE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EF0E, // Entity(IFCELEMENTARYSURFACE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x0000C2AB, // ExplicitAttr(OUTERBOUNDARY)
    0x0000C2C7, // ExplicitAttr(INNERBOUNDARIES)
    0x02003C53, // SetType(#778,0,-1)
    0x01008C12, // Entity(IFCCURVEBOUNDEDSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x01008C51, // ExplicitAttr(BOUNDARIES)
    0x02003C66, // SetType(#1380,1,-1)
    0x01008C7E, // ExplicitAttr(IMPLICITOUTER)
    0x01008C9A, // Entity(IFCCYLINDRICALSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x01008CD8, // Entity(IFCDAMPER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000EF5A, // Entity(IFCDAMPERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000EFF7, // Entity(IFCDERIVEDPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F034, // ExplicitAttr(PARENTPROFILE)
    0x00008430, // ExplicitAttr(OPERATOR)
    0x0000DF9C, // ExplicitAttr(LABEL)
    0x0000F27D, // Entity(IFCDISCRETEACCESSORY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000F2F2, // Entity(IFCDISCRETEACCESSORYTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x02003C7A, // Entity(IFCDISTANCEEXPRESSION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003CB8, // ExplicitAttr(DISTANCEALONG)
    0x02003CD4, // ExplicitAttr(OFFSETLATERAL)
    0x02003CF0, // ExplicitAttr(OFFSETVERTICAL)
    0x02003D0D, // ExplicitAttr(OFFSETLONGITUDINAL)
    0x02003D2E, // ExplicitAttr(ALONGHORIZONTAL)
    0x0000F36F, // Entity(IFCDISTRIBUTIONCHAMBERELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000F437, // Entity(IFCDISTRIBUTIONCHAMBERELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008D0A, // Entity(IFCDISTRIBUTIONCIRCUIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008D49, // Entity(IFCDISTRIBUTIONSYSTEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D46C, // ExplicitAttr(LONGNAME)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000F4E6, // Entity(IFCDISTRIBUTIONPORT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F522, // Entity(IFCPORT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000F54E, // ExplicitAttr(FLOWDIRECTION)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008D87, // ExplicitAttr(SYSTEMTYPE)
    0x0000F56A, // Entity(IFCDOCUMENTINFORMATIONRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F5B5, // ExplicitAttr(RELATINGDOCUMENT)
    0x0000F5D4, // ExplicitAttr(RELATEDDOCUMENTS)
    0x02003D4C, // SetType(#809,1,-1)
    0x0000F606, // ExplicitAttr(RELATIONSHIPTYPE)
    0x0000F625, // Entity(IFCDOOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EB8A, // ExplicitAttr(OVERALLHEIGHT)
    0x0000CAFD, // ExplicitAttr(OVERALLWIDTH)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000F9EA, // ExplicitAttr(OPERATIONTYPE)
    0x01008DB3, // ExplicitAttr(USERDEFINEDOPERATIONTYPE)
    0x0000F655, // Entity(IFCDOORLININGPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008DDA, // Entity(IFCPREDEFINEDPROPERTYSET,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000F695, // ExplicitAttr(LININGDEPTH)
    0x0000F6AF, // ExplicitAttr(LININGTHICKNESS)
    0x0000F6CD, // ExplicitAttr(THRESHOLDDEPTH)
    0x0000F6EA, // ExplicitAttr(THRESHOLDTHICKNESS)
    0x0000F70B, // ExplicitAttr(TRANSOMTHICKNESS)
    0x0000F72A, // ExplicitAttr(TRANSOMOFFSET)
    0x0000F746, // ExplicitAttr(LININGOFFSET)
    0x0000F761, // ExplicitAttr(THRESHOLDOFFSET)
    0x0000F77F, // ExplicitAttr(CASINGTHICKNESS)
    0x0000F79D, // ExplicitAttr(CASINGDEPTH)
    0x0000F7B7, // ExplicitAttr(SHAPEASPECTSTYLE)
    0x01008E31, // ExplicitAttr(LININGTOPANELOFFSETX)
    0x01008E54, // ExplicitAttr(LININGTOPANELOFFSETY)
    0x0000F90B, // Entity(IFCDOORPANELPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F94A, // ExplicitAttr(PANELDEPTH)
    0x0000F963, // ExplicitAttr(PANELOPERATION)
    0x0000F980, // ExplicitAttr(PANELWIDTH)
    0x0000F999, // ExplicitAttr(PANELPOSITION)
    0x0000F7B7, // ExplicitAttr(SHAPEASPECTSTYLE)
    0x01008E77, // Entity(IFCDOORSTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F9B5, // Entity(IFCDOORSTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F9EA, // ExplicitAttr(OPERATIONTYPE)
    0x0000FA06, // ExplicitAttr(CONSTRUCTIONTYPE)
    0x0000FA25, // ExplicitAttr(PARAMETERTAKESPRECEDENCE)
    0x0000FA4C, // ExplicitAttr(SIZEABLE)
    0x01008EB3, // Entity(IFCDOORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000F9EA, // ExplicitAttr(OPERATIONTYPE)
    0x0000FA25, // ExplicitAttr(PARAMETERTAKESPRECEDENCE)
    0x01008DB3, // ExplicitAttr(USERDEFINEDOPERATIONTYPE)
    0x0000FA63, // Entity(IFCDRAUGHTINGPREDEFINEDCOLOUR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FAA9, // Entity(IFCDRAUGHTINGPREDEFINEDCURVEFONT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008EE7, // Entity(IFCDUCTFITTING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FB3A, // Entity(IFCDUCTFITTINGTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008F1E, // Entity(IFCDUCTSEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FB75, // Entity(IFCDUCTSEGMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008F55, // Entity(IFCDUCTSILENCER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010C06, // Entity(IFCFLOWTREATMENTDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FBB0, // Entity(IFCDUCTSILENCERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FBEC, // Entity(IFCFLOWTREATMENTDEVICETYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FC2B, // Entity(IFCEDGELOOP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FC5F, // ExplicitAttr(EDGELIST)
    0x0000FC76, // Entity(IFCORIENTEDEDGE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FCAE, // ExplicitAttr(EDGEELEMENT)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x02003D5F, // ListType(#1771,1,-1,DUPL)
    0x01008FE3, // Entity(IFCELECTRICAPPLIANCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FCE2, // Entity(IFCELECTRICAPPLIANCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009020, // Entity(IFCELECTRICDISTRIBUTIONBOARD,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009065, // Entity(IFCELECTRICDISTRIBUTIONBOARDTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010090AE, // Entity(IFCELECTRICFLOWSTORAGEDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010B91, // Entity(IFCFLOWSTORAGEDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FDEC, // Entity(IFCELECTRICFLOWSTORAGEDEVICETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FE35, // Entity(IFCFLOWSTORAGEDEVICETYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010090F3, // Entity(IFCELECTRICGENERATOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FE72, // Entity(IFCELECTRICGENERATORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009130, // Entity(IFCELECTRICMOTOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FEF1, // Entity(IFCELECTRICMOTORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009169, // Entity(IFCELECTRICTIMECONTROL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FF2E, // Entity(IFCELECTRICTIMECONTROLTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000101D5, // Entity(IFCELEMENTASSEMBLY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010210, // ExplicitAttr(ASSEMBLYPLACE)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010091A8, // Entity(IFCELEMENTASSEMBLYTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001022C, // Entity(IFCELEMENTQUANTITY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010091E7, // Entity(IFCQUANTITYSET,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00010267, // ExplicitAttr(METHODOFMEASUREMENT)
    0x00010289, // ExplicitAttr(QUANTITIES)
    0x02003D79, // SetType(#1103,1,-1)
    0x000102EE, // Entity(IFCELLIPSE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010321, // ExplicitAttr(SEMIAXIS1)
    0x00010339, // ExplicitAttr(SEMIAXIS2)
    0x00010351, // Entity(IFCELLIPSEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010321, // ExplicitAttr(SEMIAXIS1)
    0x00010339, // ExplicitAttr(SEMIAXIS2)
    0x0100922E, // Entity(IFCENGINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009260, // Entity(IFCENGINETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009296, // Entity(IFCEVAPORATIVECOOLER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000104DF, // Entity(IFCEVAPORATIVECOOLERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010092D3, // Entity(IFCEVAPORATOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00010520, // Entity(IFCEVAPORATORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009309, // Entity(IFCEVENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100933A, // ExplicitAttr(EVENTTRIGGERTYPE)
    0x01009359, // ExplicitAttr(USERDEFINEDEVENTTRIGGERTYPE)
    0x01009383, // ExplicitAttr(EVENTOCCURENCETIME)
    0x010093A4, // Entity(IFCEVENTTIME,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010093D9, // ExplicitAttr(ACTUALDATE)
    0x010093F2, // ExplicitAttr(EARLYDATE)
    0x0100940A, // ExplicitAttr(LATEDATE)
    0x01009421, // ExplicitAttr(SCHEDULEDATE)
    0x0100943C, // Entity(IFCEVENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100933A, // ExplicitAttr(EVENTTRIGGERTYPE)
    0x01009359, // ExplicitAttr(USERDEFINEDEVENTTRIGGERTYPE)
    0x01009471, // Entity(IFCEXTENDEDPROPERTIES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x010094AB, // ExplicitAttr(PROPERTIES)
    0x02003BBD, // SetType(#1521,1,-1)
    0x010094C4, // Entity(IFCEXTERNALREFERENCERELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100950D, // ExplicitAttr(RELATINGREFERENCE)
    0x0100952D, // ExplicitAttr(RELATEDRESOURCEOBJECTS)
    0x02003D8D, // SetType(#1119,1,-1)
    0x000105FB, // Entity(IFCEXTRUDEDAREASOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010638, // Entity(IFCSWEPTAREASOLID,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001066E, // ExplicitAttr(SWEPTAREA)
    0x00008498, // ExplicitAttr(POSITION)
    0x00010686, // ExplicitAttr(EXTRUDEDDIRECTION)
    0x0000D776, // ExplicitAttr(DEPTH)
    0x01009552, // Entity(IFCEXTRUDEDAREASOLIDTAPERED,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009596, // ExplicitAttr(ENDSWEPTAREA)
    0x000106A6, // Entity(IFCFACEOUTERBOUND,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000106E0, // Entity(IFCFACETEDBREP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010764, // Entity(IFCFACETEDBREPWITHVOIDS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000107A4, // ExplicitAttr(VOIDS)
    0x020035C9, // SetType(#1133,1,-1)
    0x000107CB, // Entity(IFCFAILURECONNECTIONCONDITION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010811, // Entity(IFCSTRUCTURALCONNECTIONCONDITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00010856, // ExplicitAttr(TENSIONFAILUREX)
    0x00010874, // ExplicitAttr(TENSIONFAILUREY)
    0x00010892, // ExplicitAttr(TENSIONFAILUREZ)
    0x000108B0, // ExplicitAttr(COMPRESSIONFAILUREX)
    0x000108D2, // ExplicitAttr(COMPRESSIONFAILUREY)
    0x000108F4, // ExplicitAttr(COMPRESSIONFAILUREZ)
    0x010095B1, // Entity(IFCFAN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00010916, // Entity(IFCFANTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00010949, // Entity(IFCFASTENER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001097D, // Entity(IFCFASTENERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000DB85, // Entity(IFCFEATUREELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000109B5, // Entity(IFCFEATUREELEMENTADDITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000DB44, // Entity(IFCFEATUREELEMENTSUBTRACTION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x010095E0, // Entity(IFCFILTER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000109F3, // Entity(IFCFILTERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009612, // Entity(IFCFIRESUPPRESSIONTERMINAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00010A29, // Entity(IFCFIRESUPPRESSIONTERMINALTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009655, // Entity(IFCFIXEDREFERENCESWEPTAREASOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018163, // ExplicitAttr(DIRECTRIX)
    0x0001817B, // ExplicitAttr(STARTPARAM)
    0x00018194, // ExplicitAttr(ENDPARAM)
    0x0100969D, // ExplicitAttr(FIXEDREFERENCE)
    0x010096BA, // Entity(IFCFLOWINSTRUMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00010AA7, // Entity(IFCFLOWINSTRUMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010096F4, // Entity(IFCFLOWMETER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00010AE5, // Entity(IFCFLOWMETERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00010E93, // Entity(IFCFOOTING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009729, // Entity(IFCFOOTINGTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00010F96, // Entity(IFCFURNISHINGELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010FD3, // Entity(IFCFURNISHINGELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009760, // Entity(IFCFURNITURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00011051, // Entity(IFCFURNITURETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010210, // ExplicitAttr(ASSEMBLYPLACE)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009795, // Entity(IFCGEOGRAPHICELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x010097D2, // Entity(IFCGEOGRAPHICELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00011292, // Entity(IFCGEOMETRICCURVESET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000112CF, // Entity(IFCGEOMETRICSET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007D69, // ExplicitAttr(ELEMENTS)
    0x02003DA1, // SetType(#935,1,-1)
    0x000113DF, // Entity(IFCGEOMETRICREPRESENTATIONSUBCONTEXT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001142C, // ExplicitAttr(PARENTCONTEXT)
    0x00011448, // ExplicitAttr(TARGETSCALE)
    0x00011462, // ExplicitAttr(TARGETVIEW)
    0x0001147B, // ExplicitAttr(USERDEFINEDTARGETVIEW)
    0x00011516, // Entity(IFCGRID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011546, // ExplicitAttr(UAXES)
    0x02003DB4, // ListType(#938,1,-1,UNIQ)
    0x000115D6, // ExplicitAttr(VAXES)
    0x02003DB4, // ListType(#938,1,-1,UNIQ)
    0x000115EA, // ExplicitAttr(WAXES)
    0x02003DB4, // ListType(#938,1,-1,UNIQ)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000115FE, // Entity(IFCGRIDPLACEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011637, // ExplicitAttr(PLACEMENTLOCATION)
    0x00011707, // ExplicitAttr(PLACEMENTREFDIRECTION)
    0x0100983F, // Entity(IFCHEATEXCHANGER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001172B, // Entity(IFCHEATEXCHANGERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009878, // Entity(IFCHUMIDIFIER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00011768, // Entity(IFCHUMIDIFIERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000CA82, // Entity(IFCISHAPEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CAFD, // ExplicitAttr(OVERALLWIDTH)
    0x0000CB18, // ExplicitAttr(OVERALLDEPTH)
    0x0000CB33, // ExplicitAttr(WEBTHICKNESS)
    0x0000CB4E, // ExplicitAttr(FLANGETHICKNESS)
    0x0000CB6C, // ExplicitAttr(FILLETRADIUS)
    0x000184D8, // ExplicitAttr(FLANGEEDGERADIUS)
    0x0001852A, // ExplicitAttr(FLANGESLOPE)
    0x000118A8, // Entity(IFCIMAGETEXTURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000118E0, // ExplicitAttr(URLREFERENCE)
    0x010098AE, // Entity(IFCINDEXEDCOLOURMAP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010098EA, // ExplicitAttr(MAPPEDTO)
    0x01009901, // ExplicitAttr(OPACITY)
    0x01009917, // ExplicitAttr(COLOURS)
    0x0100992D, // ExplicitAttr(COLOURINDEX)
    0x01009947, // ListType(#7,1,-1,DUPL)
    0x0100995E, // Entity(IFCINDEXEDPOLYCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013375, // ExplicitAttr(POINTS)
    0x0000BAC1, // ExplicitAttr(SEGMENTS)
    0x02003DCD, // ListType(#1132,1,-1,DUPL)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x010099B4, // Entity(IFCINDEXEDPOLYGONALFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010099F4, // ExplicitAttr(COORDINDEX)
    0x01009A0D, // ListType(#7,3,-1,DUPL)
    0x01009A24, // Entity(IFCINDEXEDPOLYGONALFACEWITHVOIDS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009A6D, // ExplicitAttr(INNERCOORDINDICES)
    0x01009A8D, // ListType(#7,3,-1,UNIQ)
    0x02003DE7, // ListType(#1975,1,-1,DUPL)
    0x01009ABE, // Entity(IFCINDEXEDTEXTUREMAP,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000C3D8, // Entity(IFCTEXTURECOORDINATE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01009AF7, // ExplicitAttr(MAPS)
    0x02002B20, // ListType(#886,1,-1,DUPL)
    0x010098EA, // ExplicitAttr(MAPPEDTO)
    0x01009B0A, // ExplicitAttr(TEXCOORDS)
    0x01009B22, // Entity(IFCTEXTUREVERTEXLIST,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009B5F, // ExplicitAttr(TEXCOORDSLIST)
    0x01009B7B, // ListType(#87,2,2,DUPL)
    0x01009C0D, // ListType(#1985,1,-1,DUPL)
    0x01009BAC, // Entity(IFCINDEXEDTRIANGLETEXTUREMAP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009BF1, // ExplicitAttr(TEXCOORDINDEX)
    0x01000030, // ListType(#7,3,3,DUPL)
    0x02003E01, // ListType(#1989,1,-1,DUPL)
    0x01009C27, // Entity(IFCINTERCEPTOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009C5E, // Entity(IFCINTERCEPTORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009C99, // Entity(IFCINTERSECTIONCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000118FB, // Entity(IFCINVENTORY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001194C, // ExplicitAttr(JURISDICTION)
    0x00011967, // ExplicitAttr(RESPONSIBLEPERSONS)
    0x01009CD6, // SetType(#105,1,-1)
    0x0001199B, // ExplicitAttr(LASTUPDATEDATE)
    0x0000C978, // ExplicitAttr(CURRENTVALUE)
    0x0000C95C, // ExplicitAttr(ORIGINALVALUE)
    0x000119B8, // Entity(IFCIRREGULARTIMESERIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000119F7, // ExplicitAttr(VALUES)
    0x00011A0C, // Entity(IFCIRREGULARTIMESERIESVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011A50, // ExplicitAttr(TIMESTAMP)
    0x00011A68, // ExplicitAttr(LISTVALUES)
    0x02002EC7, // ListType(#625,1,-1,DUPL)
    0x02003E1B, // ListType(#2006,1,-1,DUPL)
    0x01009D03, // Entity(IFCJUNCTIONBOX,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00011A9B, // Entity(IFCJUNCTIONBOXTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00011AD6, // Entity(IFCLSHAPEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D776, // ExplicitAttr(DEPTH)
    0x0000D78A, // ExplicitAttr(WIDTH)
    0x0000DABB, // ExplicitAttr(THICKNESS)
    0x0000CB6C, // ExplicitAttr(FILLETRADIUS)
    0x00011B12, // ExplicitAttr(EDGERADIUS)
    0x00011B2B, // ExplicitAttr(LEGSLOPE)
    0x00011B42, // Entity(IFCLABORRESOURCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009D3A, // Entity(IFCLABORRESOURCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009D77, // Entity(IFCLAGTIME,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009DAA, // ExplicitAttr(LAGVALUE)
    0x01009DC1, // ExplicitAttr(DURATIONTYPE)
    0x01009DDC, // Entity(IFCLAMP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00011B92, // Entity(IFCLAMPTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009E0C, // Entity(IFCLIGHTFIXTURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00011BC6, // Entity(IFCLIGHTFIXTURETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00011C02, // Entity(IFCLIGHTSOURCE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00011C35, // ExplicitAttr(LIGHTCOLOUR)
    0x00011C4F, // ExplicitAttr(AMBIENTINTENSITY)
    0x00011C6E, // ExplicitAttr(INTENSITY)
    0x00011C86, // Entity(IFCLIGHTSOURCEAMBIENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011CC4, // Entity(IFCLIGHTSOURCEDIRECTIONAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x00011D06, // Entity(IFCLIGHTSOURCEGONIOMETRIC,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x00011D48, // ExplicitAttr(COLOURAPPEARANCE)
    0x00011D67, // ExplicitAttr(COLOURTEMPERATURE)
    0x00011D87, // ExplicitAttr(LUMINOUSFLUX)
    0x00011DA2, // ExplicitAttr(LIGHTEMISSIONSOURCE)
    0x00011DC4, // ExplicitAttr(LIGHTDISTRIBUTIONDATASOURCE)
    0x00011DEE, // Entity(IFCLIGHTSOURCEPOSITIONAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x00011E2F, // ExplicitAttr(CONSTANTATTENUATION)
    0x00011E51, // ExplicitAttr(DISTANCEATTENUATION)
    0x00011E73, // ExplicitAttr(QUADRICATTENUATION)
    0x00011E94, // Entity(IFCLIGHTSOURCESPOT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x00011ECF, // ExplicitAttr(CONCENTRATIONEXPONENT)
    0x00011EF3, // ExplicitAttr(SPREADANGLE)
    0x00011F0D, // ExplicitAttr(BEAMWIDTHANGLE)
    0x00011F2A, // Entity(IFCLINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011F5A, // ExplicitAttr(PNT)
    0x00011F6C, // ExplicitAttr(DIR)
    0x02003E35, // Entity(IFCLINESEGMENT2D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003E6E, // Entity(IFCLINEARPLACEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011FF3, // ExplicitAttr(PLACEMENTRELTO)
    0x00012990, // ExplicitAttr(DISTANCE)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x02003EA9, // Entity(IFCORIENTATIONEXPRESSION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003EEA, // ExplicitAttr(LATERALAXISDIRECTION)
    0x02003F0D, // ExplicitAttr(VERTICALAXISDIRECTION)
    0x02003F31, // ExplicitAttr(CARTESIANPOSITION)
    0x00011FB9, // Entity(IFCLOCALPLACEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011FF3, // ExplicitAttr(PLACEMENTRELTO)
    0x00012010, // ExplicitAttr(RELATIVEPLACEMENT)
    0x01009E44, // Entity(IFCMAPCONVERSION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009E7D, // ExplicitAttr(EASTINGS)
    0x01009E94, // ExplicitAttr(NORTHINGS)
    0x01009EAC, // ExplicitAttr(ORTHOGONALHEIGHT)
    0x01009ECB, // ExplicitAttr(XAXISABSCISSA)
    0x01009EE7, // ExplicitAttr(XAXISORDINATE)
    0x0000A352, // ExplicitAttr(SCALE)
    0x00012030, // Entity(IFCMAPPEDITEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012066, // ExplicitAttr(MAPPINGSOURCE)
    0x00012082, // ExplicitAttr(MAPPINGTARGET)
    0x0001209E, // Entity(IFCMATERIALCLASSIFICATIONRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000120EC, // ExplicitAttr(MATERIALCLASSIFICATIONS)
    0x02003F51, // SetType(#727,1,-1)
    0x00012112, // ExplicitAttr(CLASSIFIEDMATERIAL)
    0x01009F16, // Entity(IFCMATERIALCONSTITUENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000ABE9, // ExplicitAttr(MATERIAL)
    0x01009F55, // ExplicitAttr(FRACTION)
    0x0001042D, // ExplicitAttr(CATEGORY)
    0x01009F6C, // Entity(IFCMATERIALCONSTITUENTSET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x01009FAE, // ExplicitAttr(MATERIALCONSTITUENTS)
    0x02003F64, // SetType(#2092,1,-1)
    0x00012133, // Entity(IFCMATERIALDEFINITIONREPRESENTATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001217F, // ExplicitAttr(REPRESENTEDMATERIAL)
    0x0000ABB0, // Entity(IFCMATERIALLAYER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000ABE9, // ExplicitAttr(MATERIAL)
    0x0000AC00, // ExplicitAttr(LAYERTHICKNESS)
    0x0000AC1D, // ExplicitAttr(ISVENTILATED)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0001042D, // ExplicitAttr(CATEGORY)
    0x000127E4, // ExplicitAttr(PRIORITY)
    0x0000AB57, // Entity(IFCMATERIALLAYERSET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000AB93, // ExplicitAttr(MATERIALLAYERS)
    0x02003F78, // ListType(#2105,1,-1,DUPL)
    0x0000AC51, // ExplicitAttr(LAYERSETNAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000AAFC, // Entity(IFCMATERIALLAYERSETUSAGE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000AB3D, // ExplicitAttr(FORLAYERSET)
    0x0000AC6C, // ExplicitAttr(LAYERSETDIRECTION)
    0x0000AC8C, // ExplicitAttr(DIRECTIONSENSE)
    0x0000ACA9, // ExplicitAttr(OFFSETFROMREFERENCELINE)
    0x0100A01B, // ExplicitAttr(REFERENCEEXTENT)
    0x0100A039, // Entity(IFCMATERIALLAYERWITHOFFSETS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A07D, // ExplicitAttr(OFFSETDIRECTION)
    0x0100A09B, // ExplicitAttr(OFFSETVALUES)
    0x0100A0B6, // ArrayType(#56,1,2,DUPL,REQ)
    0x0100A0D2, // Entity(IFCMATERIALPROFILE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000ABE9, // ExplicitAttr(MATERIAL)
    0x0100A10D, // ExplicitAttr(PROFILE)
    0x000127E4, // ExplicitAttr(PRIORITY)
    0x0001042D, // ExplicitAttr(CATEGORY)
    0x0100A123, // Entity(IFCMATERIALPROFILESET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0100A161, // ExplicitAttr(MATERIALPROFILES)
    0x02003F92, // ListType(#2128,1,-1,DUPL)
    0x0100A19A, // ExplicitAttr(COMPOSITEPROFILE)
    0x0100A1B9, // Entity(IFCMATERIALPROFILESETUSAGE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A1FC, // ExplicitAttr(FORPROFILESET)
    0x0100A218, // ExplicitAttr(CARDINALPOINT)
    0x0100A01B, // ExplicitAttr(REFERENCEEXTENT)
    0x0100A234, // Entity(IFCMATERIALPROFILESETUSAGETAPERING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A27F, // ExplicitAttr(FORPROFILEENDSET)
    0x0100A29E, // ExplicitAttr(CARDINALENDPOINT)
    0x0100A2BD, // Entity(IFCMATERIALPROFILEWITHOFFSETS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A09B, // ExplicitAttr(OFFSETVALUES)
    0x0100A0B6, // ArrayType(#56,1,2,DUPL,REQ)
    0x0100A303, // Entity(IFCMATERIALPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000ABE9, // ExplicitAttr(MATERIAL)
    0x0100A341, // Entity(IFCMATERIALRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015333, // ExplicitAttr(RELATINGMATERIAL)
    0x0100A381, // ExplicitAttr(RELATEDMATERIALS)
    0x02003FAC, // SetType(#983,1,-1)
    0x00013BF2, // ExplicitAttr(EXPRESSION)
    0x00012396, // Entity(IFCMECHANICALFASTENER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000123D4, // ExplicitAttr(NOMINALDIAMETER)
    0x000123F2, // ExplicitAttr(NOMINALLENGTH)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001240E, // Entity(IFCMECHANICALFASTENERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000123D4, // ExplicitAttr(NOMINALDIAMETER)
    0x000123F2, // ExplicitAttr(NOMINALLENGTH)
    0x0100A3B3, // Entity(IFCMEDICALDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100A3EC, // Entity(IFCMEDICALDEVICETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000125EA, // Entity(IFCMEMBER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100A429, // Entity(IFCMEMBERSTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001261C, // Entity(IFCMEMBERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00012652, // Entity(IFCMETRIC,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012684, // ExplicitAttr(BENCHMARK)
    0x0001269C, // ExplicitAttr(VALUESOURCE)
    0x000126B6, // ExplicitAttr(DATAVALUE)
    0x01006B5E, // ExplicitAttr(REFERENCEPATH)
    0x0100A467, // Entity(IFCMIRROREDPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A4BB, // Entity(IFCMOTORCONNECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000126CE, // Entity(IFCMOTORCONNECTIONTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00012858, // Entity(IFCOBJECTIVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001288D, // ExplicitAttr(BENCHMARKVALUES)
    0x02003FBF, // ListType(#1090,1,-1,DUPL)
    0x0000E58F, // ExplicitAttr(LOGICALAGGREGATOR)
    0x000128C6, // ExplicitAttr(OBJECTIVEQUALIFIER)
    0x000128E7, // ExplicitAttr(USERDEFINEDQUALIFIER)
    0x0001290A, // Entity(IFCOCCUPANT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x02003FD9, // Entity(IFCOFFSETCURVE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00012977, // ExplicitAttr(BASISCURVE)
    0x0001293E, // Entity(IFCOFFSETCURVE2D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012990, // ExplicitAttr(DISTANCE)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x000129A7, // Entity(IFCOFFSETCURVE3D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012990, // ExplicitAttr(DISTANCE)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x00008210, // ExplicitAttr(REFDIRECTION)
    0x0200400C, // Entity(IFCOFFSETCURVEBYDISTANCES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A09B, // ExplicitAttr(OFFSETVALUES)
    0x0200404E, // ListType(#1691,1,-1,DUPL)
    0x0000B873, // ExplicitAttr(TAG)
    0x000129E0, // Entity(IFCOPENINGELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100A510, // Entity(IFCOPENINGSTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012BF5, // Entity(IFCORGANIZATIONRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012C39, // ExplicitAttr(RELATINGORGANIZATION)
    0x00012C5C, // ExplicitAttr(RELATEDORGANIZATIONS)
    0x0100A54F, // SetType(#133,1,-1)
    0x0100A562, // Entity(IFCOUTERBOUNDARYCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A5A0, // Entity(IFCOUTLET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00012C92, // Entity(IFCOUTLETTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00012CC8, // Entity(IFCPARABOLA,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012CFC, // ExplicitAttr(FOCALDIST)
    0x00012D14, // Entity(IFCPATH,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FC5F, // ExplicitAttr(EDGELIST)
    0x02004068, // ListType(#1771,1,-1,UNIQ)
    0x00012D5E, // Entity(IFCPERFORMANCEHISTORY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012D9C, // ExplicitAttr(LIFECYCLEPHASE)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00012DB9, // Entity(IFCPERMEABLECOVERINGPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F9EA, // ExplicitAttr(OPERATIONTYPE)
    0x0000F999, // ExplicitAttr(PANELPOSITION)
    0x00012E00, // ExplicitAttr(FRAMEDEPTH)
    0x00012E19, // ExplicitAttr(FRAMETHICKNESS)
    0x0000F7B7, // ExplicitAttr(SHAPEASPECTSTYLE)
    0x00012E36, // Entity(IFCPERMIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000957E, // ExplicitAttr(STATUS)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x00012E7F, // Entity(IFCPHYSICALCOMPLEXQUANTITY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012EC2, // ExplicitAttr(HASQUANTITIES)
    0x02003D79, // SetType(#1103,1,-1)
    0x00012EDE, // ExplicitAttr(DISCRIMINATION)
    0x00012EFB, // ExplicitAttr(QUALITY)
    0x00012F11, // ExplicitAttr(USAGE)
    0x00012F25, // Entity(IFCPHYSICALSIMPLEQUANTITY,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00012F63, // Entity(IFCPILE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FA06, // ExplicitAttr(CONSTRUCTIONTYPE)
    0x0100A5EC, // Entity(IFCPILETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100A620, // Entity(IFCPIPEFITTING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00012F93, // Entity(IFCPIPEFITTINGTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100A657, // Entity(IFCPIPESEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00012FCE, // Entity(IFCPIPESEGMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00013009, // Entity(IFCPIXELTEXTURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D78A, // ExplicitAttr(WIDTH)
    0x0000DBD7, // ExplicitAttr(HEIGHT)
    0x00013041, // ExplicitAttr(COLOURCOMPONENTS)
    0x00013060, // ExplicitAttr(PIXEL)
    0x0100A68E, // ListType(#12,1,-1,DUPL)
    0x00013097, // Entity(IFCPLANARBOX,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000130CC, // Entity(IFCPLANAREXTENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013104, // ExplicitAttr(SIZEINX)
    0x0001311A, // ExplicitAttr(SIZEINY)
    0x00013130, // ExplicitAttr(PLACEMENT)
    0x00013148, // Entity(IFCPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100A6A6, // Entity(IFCPLATESTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013179, // Entity(IFCPLATETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000131AE, // Entity(IFCPOINTONCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012977, // ExplicitAttr(BASISCURVE)
    0x000131E6, // ExplicitAttr(POINTPARAMETER)
    0x00013203, // Entity(IFCPOINTONSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x0001323D, // ExplicitAttr(POINTPARAMETERU)
    0x0001325B, // ExplicitAttr(POINTPARAMETERV)
    0x00013279, // Entity(IFCPOLYLOOP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000132AD, // ExplicitAttr(POLYGON)
    0x02004082, // ListType(#664,3,-1,UNIQ)
    0x000132DC, // Entity(IFCPOLYGONALBOUNDEDHALFSPACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x00013321, // ExplicitAttr(POLYGONALBOUNDARY)
    0x0100A6FC, // Entity(IFCPOLYGONALFACESET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A738, // ExplicitAttr(CLOSED)
    0x0100A74D, // ExplicitAttr(FACES)
    0x0200409B, // ListType(#1970,1,-1,DUPL)
    0x0100A77B, // ExplicitAttr(PNINDEX)
    0x01009947, // ListType(#7,1,-1,DUPL)
    0x00013341, // Entity(IFCPOLYLINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013375, // ExplicitAttr(POINTS)
    0x02003B02, // ListType(#664,2,-1,DUPL)
    0x0100A791, // Entity(IFCPREDEFINEDPROPERTIES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001345C, // Entity(IFCPRESENTATIONLAYERASSIGNMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x000134A3, // ExplicitAttr(ASSIGNEDITEMS)
    0x020040B5, // SetType(#954,1,-1)
    0x0000C5B4, // ExplicitAttr(IDENTIFIER)
    0x000134D2, // Entity(IFCPRESENTATIONLAYERWITHSTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013518, // ExplicitAttr(LAYERON)
    0x0001352E, // ExplicitAttr(LAYERFROZEN)
    0x00013548, // ExplicitAttr(LAYERBLOCKED)
    0x00013563, // ExplicitAttr(LAYERSTYLES)
    0x020040C8, // SetType(#837,0,-1)
    0x00013590, // Entity(IFCPROCEDURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100A7F3, // Entity(IFCPROCEDURETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100A82C, // Entity(IFCPROFILEPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000111D6, // ExplicitAttr(PROFILEDEFINITION)
    0x000136D9, // Entity(IFCPROJECT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A869, // Entity(IFCPROJECTLIBRARY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000137D6, // Entity(IFCPROJECTORDER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000957E, // ExplicitAttr(STATUS)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x0100A8A3, // Entity(IFCPROJECTEDCRS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A8DB, // ExplicitAttr(MAPPROJECTION)
    0x0100A8F7, // ExplicitAttr(MAPZONE)
    0x0100A90D, // ExplicitAttr(MAPUNIT)
    0x00013A0F, // Entity(IFCPROJECTIONELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00013A4C, // Entity(IFCPROPERTYBOUNDEDVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013A8C, // Entity(IFCSIMPLEPROPERTY,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00013AC2, // ExplicitAttr(UPPERBOUNDVALUE)
    0x00013AE0, // ExplicitAttr(LOWERBOUNDVALUE)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x0100A923, // ExplicitAttr(SETPOINTVALUE)
    0x00013B68, // Entity(IFCPROPERTYDEPENDENCYRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013BB2, // ExplicitAttr(DEPENDINGPROPERTY)
    0x00013BD2, // ExplicitAttr(DEPENDANTPROPERTY)
    0x00013BF2, // ExplicitAttr(EXPRESSION)
    0x00013C0B, // Entity(IFCPROPERTYENUMERATEDVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013C4E, // ExplicitAttr(ENUMERATIONVALUES)
    0x02002EC7, // ListType(#625,1,-1,DUPL)
    0x00013C6E, // ExplicitAttr(ENUMERATIONREFERENCE)
    0x00013C91, // Entity(IFCPROPERTYENUMERATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00013C4E, // ExplicitAttr(ENUMERATIONVALUES)
    0x020040DB, // ListType(#625,1,-1,UNIQ)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00013CE9, // Entity(IFCPROPERTYLISTVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011A68, // ExplicitAttr(LISTVALUES)
    0x02002EC7, // ListType(#625,1,-1,DUPL)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00013D26, // Entity(IFCPROPERTYREFERENCEVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DEFE, // ExplicitAttr(USAGENAME)
    0x00013D68, // ExplicitAttr(PROPERTYREFERENCE)
    0x00013D88, // Entity(IFCPROPERTYSET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DF16, // ExplicitAttr(HASPROPERTIES)
    0x02003BBD, // SetType(#1521,1,-1)
    0x0100A958, // Entity(IFCPROPERTYSETTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100859B, // ExplicitAttr(TEMPLATETYPE)
    0x0100A997, // ExplicitAttr(APPLICABLEENTITY)
    0x010085B6, // ExplicitAttr(HASPROPERTYTEMPLATES)
    0x02003BD1, // SetType(#1528,1,-1)
    0x00013DBF, // Entity(IFCPROPERTYSINGLEVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013DFE, // ExplicitAttr(NOMINALVALUE)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00013E19, // Entity(IFCPROPERTYTABLEVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013E57, // ExplicitAttr(DEFININGVALUES)
    0x020040DB, // ListType(#625,1,-1,UNIQ)
    0x00013E74, // ExplicitAttr(DEFINEDVALUES)
    0x02002EC7, // ListType(#625,1,-1,DUPL)
    0x00013BF2, // ExplicitAttr(EXPRESSION)
    0x00013E90, // ExplicitAttr(DEFININGUNIT)
    0x00013EAB, // ExplicitAttr(DEFINEDUNIT)
    0x0100A9B6, // ExplicitAttr(CURVEINTERPOLATION)
    0x0100A9D7, // Entity(IFCPROTECTIVEDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100AA13, // Entity(IFCPROTECTIVEDEVICETRIPPINGUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100AA5B, // Entity(IFCPROTECTIVEDEVICETRIPPINGUNITTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00013EC5, // Entity(IFCPROTECTIVEDEVICETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00013F05, // Entity(IFCPROXY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013F36, // ExplicitAttr(PROXYTYPE)
    0x0000B873, // ExplicitAttr(TAG)
    0x0100AAA7, // Entity(IFCPUMP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00013F4E, // Entity(IFCPUMPTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00013F82, // Entity(IFCQUANTITYAREA,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013FBA, // ExplicitAttr(AREAVALUE)
    0x0100AAD7, // ExplicitAttr(FORMULA)
    0x00013FD2, // Entity(IFCQUANTITYCOUNT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001400B, // ExplicitAttr(COUNTVALUE)
    0x0100AAD7, // ExplicitAttr(FORMULA)
    0x00014024, // Entity(IFCQUANTITYLENGTH,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001405E, // ExplicitAttr(LENGTHVALUE)
    0x0100AAD7, // ExplicitAttr(FORMULA)
    0x00014078, // Entity(IFCQUANTITYTIME,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000140B0, // ExplicitAttr(TIMEVALUE)
    0x0100AAD7, // ExplicitAttr(FORMULA)
    0x000140C8, // Entity(IFCQUANTITYVOLUME,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014102, // ExplicitAttr(VOLUMEVALUE)
    0x0100AAD7, // ExplicitAttr(FORMULA)
    0x0001411C, // Entity(IFCQUANTITYWEIGHT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014156, // ExplicitAttr(WEIGHTVALUE)
    0x0100AAD7, // ExplicitAttr(FORMULA)
    0x000141AB, // Entity(IFCRAILING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000141DE, // Entity(IFCRAILINGTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00014215, // Entity(IFCRAMP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001425D, // Entity(IFCRAMPFLIGHT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00014293, // Entity(IFCRAMPFLIGHTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100AAED, // Entity(IFCRAMPTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100AB21, // Entity(IFCRATIONALBSPLINECURVEWITHKNOTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001430C, // ExplicitAttr(WEIGHTSDATA)
    0x0100AB6A, // ListType(#165,2,-1,DUPL)
    0x0100ABB5, // Entity(IFCRATIONALBSPLINESURFACEWITHKNOTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001430C, // ExplicitAttr(WEIGHTSDATA)
    0x0100AB6A, // ListType(#165,2,-1,DUPL)
    0x020040F4, // ListType(#2422,2,-1,DUPL)
    0x00014346, // Entity(IFCRECTANGLEHOLLOWPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001438B, // Entity(IFCRECTANGLEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D36E, // ExplicitAttr(XDIM)
    0x0000D381, // ExplicitAttr(YDIM)
    0x0000D79E, // ExplicitAttr(WALLTHICKNESS)
    0x000143CA, // ExplicitAttr(INNERFILLETRADIUS)
    0x000143EA, // ExplicitAttr(OUTERFILLETRADIUS)
    0x0001440A, // Entity(IFCRECTANGULARPYRAMID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CEA1, // ExplicitAttr(XLENGTH)
    0x0000CEB7, // ExplicitAttr(YLENGTH)
    0x0000DBD7, // ExplicitAttr(HEIGHT)
    0x00014448, // Entity(IFCRECTANGULARTRIMMEDSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x0001448D, // ExplicitAttr(U1)
    0x0001449E, // ExplicitAttr(V1)
    0x000144AF, // ExplicitAttr(U2)
    0x000144C0, // ExplicitAttr(V2)
    0x000144D1, // ExplicitAttr(USENSE)
    0x000144E6, // ExplicitAttr(VSENSE)
    0x0100AC38, // Entity(IFCRECURRENCEPATTERN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100AC75, // ExplicitAttr(RECURRENCETYPE)
    0x00008914, // ExplicitAttr(DAYCOMPONENT)
    0x0100AC92, // SetType(#26,1,-1)
    0x0100ACA4, // ExplicitAttr(WEEKDAYCOMPONENT)
    0x0100ACC3, // SetType(#27,1,-1)
    0x0000892F, // ExplicitAttr(MONTHCOMPONENT)
    0x0100ACD5, // SetType(#81,1,-1)
    0x00008498, // ExplicitAttr(POSITION)
    0x0100ACE7, // ExplicitAttr(INTERVAL)
    0x0100ACFE, // ExplicitAttr(OCCURRENCES)
    0x0100AD18, // ExplicitAttr(TIMEPERIODS)
    0x0100AD32, // Entity(IFCTIMEPERIOD,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000AEAA, // ExplicitAttr(STARTTIME)
    0x0000AEC2, // ExplicitAttr(ENDTIME)
    0x0200410E, // ListType(#2455,1,-1,DUPL)
    0x02004128, // Entity(IFCREFERENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0200415C, // ExplicitAttr(RESTARTDISTANCE)
    0x0001457F, // Entity(IFCREGULARTIMESERIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000145BC, // ExplicitAttr(TIMESTEP)
    0x000119F7, // ExplicitAttr(VALUES)
    0x000145D3, // Entity(IFCTIMESERIESVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011A68, // ExplicitAttr(LISTVALUES)
    0x02002EC7, // ListType(#625,1,-1,DUPL)
    0x0200417A, // ListType(#2465,1,-1,DUPL)
    0x00014628, // Entity(IFCREINFORCEMENTBARPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001466E, // ExplicitAttr(TOTALCROSSSECTIONAREA)
    0x00014692, // ExplicitAttr(STEELGRADE)
    0x000146AB, // ExplicitAttr(BARSURFACE)
    0x000146C4, // ExplicitAttr(EFFECTIVEDEPTH)
    0x000146E1, // ExplicitAttr(NOMINALBARDIAMETER)
    0x00014702, // ExplicitAttr(BARCOUNT)
    0x00014719, // Entity(IFCREINFORCEMENTDEFINITIONPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014766, // ExplicitAttr(DEFINITIONTYPE)
    0x00014783, // ExplicitAttr(REINFORCEMENTSECTIONDEFINITIONS)
    0x000147B1, // Entity(IFCSECTIONREINFORCEMENTPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000147FB, // ExplicitAttr(LONGITUDINALSTARTPOSITION)
    0x00014823, // ExplicitAttr(LONGITUDINALENDPOSITION)
    0x00014849, // ExplicitAttr(TRANSVERSEPOSITION)
    0x0001486A, // ExplicitAttr(REINFORCEMENTROLE)
    0x0001488A, // ExplicitAttr(SECTIONDEFINITION)
    0x000148AA, // Entity(IFCSECTIONPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000148E7, // ExplicitAttr(SECTIONTYPE)
    0x00014901, // ExplicitAttr(STARTPROFILE)
    0x0001491C, // ExplicitAttr(ENDPROFILE)
    0x00014935, // ExplicitAttr(CROSSSECTIONREINFORCEMENTDEFINITIONS)
    0x02004194, // SetType(#2469,1,-1)
    0x020041A8, // ListType(#2479,1,-1,DUPL)
    0x00014996, // Entity(IFCREINFORCINGBAR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000149D0, // Entity(IFCREINFORCINGELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00014692, // ExplicitAttr(STEELGRADE)
    0x000123D4, // ExplicitAttr(NOMINALDIAMETER)
    0x00011273, // ExplicitAttr(CROSSSECTIONAREA)
    0x00014A0A, // ExplicitAttr(BARLENGTH)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000146AB, // ExplicitAttr(BARSURFACE)
    0x0100ADCA, // Entity(IFCREINFORCINGBARTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100AE08, // Entity(IFCREINFORCINGELEMENTTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000123D4, // ExplicitAttr(NOMINALDIAMETER)
    0x00011273, // ExplicitAttr(CROSSSECTIONAREA)
    0x00014A0A, // ExplicitAttr(BARLENGTH)
    0x000146AB, // ExplicitAttr(BARSURFACE)
    0x0100AE46, // ExplicitAttr(BENDINGSHAPECODE)
    0x0100AE65, // ExplicitAttr(BENDINGPARAMETERS)
    0x020041C2, // ListType(#678,1,-1,DUPL)
    0x00014A38, // Entity(IFCREINFORCINGMESH,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014A73, // ExplicitAttr(MESHLENGTH)
    0x00014A8C, // ExplicitAttr(MESHWIDTH)
    0x00014AA4, // ExplicitAttr(LONGITUDINALBARNOMINALDIAMETER)
    0x00014AD1, // ExplicitAttr(TRANSVERSEBARNOMINALDIAMETER)
    0x00014AFC, // ExplicitAttr(LONGITUDINALBARCROSSSECTIONAREA)
    0x00014B2A, // ExplicitAttr(TRANSVERSEBARCROSSSECTIONAREA)
    0x00014B56, // ExplicitAttr(LONGITUDINALBARSPACING)
    0x00014B7B, // ExplicitAttr(TRANSVERSEBARSPACING)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100AE9E, // Entity(IFCREINFORCINGMESHTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00014A73, // ExplicitAttr(MESHLENGTH)
    0x00014A8C, // ExplicitAttr(MESHWIDTH)
    0x00014AA4, // ExplicitAttr(LONGITUDINALBARNOMINALDIAMETER)
    0x00014AD1, // ExplicitAttr(TRANSVERSEBARNOMINALDIAMETER)
    0x00014AFC, // ExplicitAttr(LONGITUDINALBARCROSSSECTIONAREA)
    0x00014B2A, // ExplicitAttr(TRANSVERSEBARCROSSSECTIONAREA)
    0x00014B56, // ExplicitAttr(LONGITUDINALBARSPACING)
    0x00014B7B, // ExplicitAttr(TRANSVERSEBARSPACING)
    0x0100AE46, // ExplicitAttr(BENDINGSHAPECODE)
    0x0100AE65, // ExplicitAttr(BENDINGPARAMETERS)
    0x020041C2, // ListType(#678,1,-1,DUPL)
    0x00014B9E, // Entity(IFCRELAGGREGATES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014BD7, // Entity(IFCRELDECOMPOSES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00013917, // Entity(IFCRELATIONSHIP,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00014C0C, // ExplicitAttr(RELATINGOBJECT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x020041DB, // SetType(#806,1,-1)
    0x000138E5, // Entity(IFCRELASSIGNS,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x020041DB, // SetType(#806,1,-1)
    0x0001397B, // ExplicitAttr(RELATEDOBJECTSTYPE)
    0x00014E96, // Entity(IFCRELASSIGNSTOACTOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014ED3, // ExplicitAttr(RELATINGACTOR)
    0x00014EEF, // ExplicitAttr(ACTINGROLE)
    0x000138A6, // Entity(IFCRELASSIGNSTOCONTROL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001399C, // ExplicitAttr(RELATINGCONTROL)
    0x00014F08, // Entity(IFCRELASSIGNSTOGROUP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014F45, // ExplicitAttr(RELATINGGROUP)
    0x0100AEF0, // Entity(IFCRELASSIGNSTOGROUPBYFACTOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100AF35, // ExplicitAttr(FACTOR)
    0x00014F61, // Entity(IFCRELASSIGNSTOPROCESS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014FA0, // ExplicitAttr(RELATINGPROCESS)
    0x00014FBE, // ExplicitAttr(QUANTITYINPROCESS)
    0x00014FDE, // Entity(IFCRELASSIGNSTOPRODUCT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001501D, // ExplicitAttr(RELATINGPRODUCT)
    0x0001503B, // Entity(IFCRELASSIGNSTORESOURCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001507B, // ExplicitAttr(RELATINGRESOURCE)
    0x0100AF4A, // Entity(IFCRELASSOCIATES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x020041EE, // SetType(#808,1,-1)
    0x0001514E, // Entity(IFCRELASSOCIATESAPPROVAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C748, // ExplicitAttr(RELATINGAPPROVAL)
    0x0001518F, // Entity(IFCRELASSOCIATESCLASSIFICATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000151D6, // ExplicitAttr(RELATINGCLASSIFICATION)
    0x000151FB, // Entity(IFCRELASSOCIATESCONSTRAINT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001523E, // ExplicitAttr(INTENT)
    0x0000E533, // ExplicitAttr(RELATINGCONSTRAINT)
    0x00015253, // Entity(IFCRELASSOCIATESDOCUMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F5B5, // ExplicitAttr(RELATINGDOCUMENT)
    0x00015294, // Entity(IFCRELASSOCIATESLIBRARY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000152D4, // ExplicitAttr(RELATINGLIBRARY)
    0x000152F2, // Entity(IFCRELASSOCIATESMATERIAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015333, // ExplicitAttr(RELATINGMATERIAL)
    0x0001540A, // Entity(IFCRELCONNECTS,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001543D, // Entity(IFCRELCONNECTSELEMENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001547C, // ExplicitAttr(CONNECTIONGEOMETRY)
    0x0001549D, // ExplicitAttr(RELATINGELEMENT)
    0x000154BB, // ExplicitAttr(RELATEDELEMENT)
    0x000154D8, // Entity(IFCRELCONNECTSPATHELEMENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001551B, // ExplicitAttr(RELATINGPRIORITIES)
    0x0100AF92, // ListType(#6,0,-1,DUPL)
    0x0001555C, // ExplicitAttr(RELATEDPRIORITIES)
    0x0100AF92, // ListType(#6,0,-1,DUPL)
    0x0001557C, // ExplicitAttr(RELATEDCONNECTIONTYPE)
    0x000155A0, // ExplicitAttr(RELATINGCONNECTIONTYPE)
    0x000155C5, // Entity(IFCRELCONNECTSPORTTOELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015609, // ExplicitAttr(RELATINGPORT)
    0x000154BB, // ExplicitAttr(RELATEDELEMENT)
    0x00015624, // Entity(IFCRELCONNECTSPORTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015609, // ExplicitAttr(RELATINGPORT)
    0x00015660, // ExplicitAttr(RELATEDPORT)
    0x0001567A, // ExplicitAttr(REALIZINGELEMENT)
    0x00015699, // Entity(IFCRELCONNECTSSTRUCTURALACTIVITY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001549D, // ExplicitAttr(RELATINGELEMENT)
    0x000156E2, // ExplicitAttr(RELATEDSTRUCTURALACTIVITY)
    0x0001570A, // Entity(IFCSTRUCTURALACTIVITY,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00015744, // ExplicitAttr(APPLIEDLOAD)
    0x0001575E, // Entity(IFCSTRUCTURALLOAD,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x0000C35E, // ExplicitAttr(GLOBALORLOCAL)
    0x0001583A, // Entity(IFCRELCONNECTSSTRUCTURALMEMBER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015881, // ExplicitAttr(RELATINGSTRUCTURALMEMBER)
    0x00015802, // Entity(IFCSTRUCTURALMEMBER,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000158A8, // ExplicitAttr(RELATEDSTRUCTURALCONNECTION)
    0x000158D2, // Entity(IFCSTRUCTURALCONNECTION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001590E, // ExplicitAttr(APPLIEDCONDITION)
    0x0001590E, // ExplicitAttr(APPLIEDCONDITION)
    0x0001592D, // ExplicitAttr(ADDITIONALCONDITIONS)
    0x00015950, // ExplicitAttr(SUPPORTEDLENGTH)
    0x0001596E, // ExplicitAttr(CONDITIONCOORDINATESYSTEM)
    0x00015996, // Entity(IFCRELCONNECTSWITHECCENTRICITY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000159DD, // ExplicitAttr(CONNECTIONCONSTRAINT)
    0x00015A00, // Entity(IFCRELCONNECTSWITHREALIZINGELEMENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015A4C, // ExplicitAttr(REALIZINGELEMENTS)
    0x02004201, // SetType(#1163,1,-1)
    0x00015A7F, // ExplicitAttr(CONNECTIONTYPE)
    0x00015A9C, // Entity(IFCRELCONTAINEDINSPATIALSTRUCTURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015AE6, // ExplicitAttr(RELATEDELEMENTS)
    0x02004215, // SetType(#1068,1,-1)
    0x00015B17, // ExplicitAttr(RELATINGSTRUCTURE)
    0x00015B37, // Entity(IFCRELCOVERSBLDGELEMENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015B78, // ExplicitAttr(RELATINGBUILDINGELEMENT)
    0x00015B9E, // ExplicitAttr(RELATEDCOVERINGS)
    0x02004229, // SetType(#1644,1,-1)
    0x00015BD1, // Entity(IFCRELCOVERSSPACES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000163A9, // ExplicitAttr(RELATINGSPACE)
    0x00015B9E, // ExplicitAttr(RELATEDCOVERINGS)
    0x02004229, // SetType(#1644,1,-1)
    0x0100AFE5, // Entity(IFCRELDECLARES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B01C, // ExplicitAttr(RELATINGCONTEXT)
    0x0100B03A, // ExplicitAttr(RELATEDDEFINITIONS)
    0x020041EE, // SetType(#808,1,-1)
    0x00015CA2, // Entity(IFCRELDEFINES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0100B05B, // Entity(IFCRELDEFINESBYOBJECT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x0200423D, // SetType(#1043,1,-1)
    0x00014C0C, // ExplicitAttr(RELATINGOBJECT)
    0x00015CE7, // Entity(IFCRELDEFINESBYPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x020041DB, // SetType(#806,1,-1)
    0x00015D29, // ExplicitAttr(RELATINGPROPERTYDEFINITION)
    0x0100B0AD, // Entity(IFCRELDEFINESBYTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B0ED, // ExplicitAttr(RELATEDPROPERTYSETS)
    0x010005C6, // SetType(#96,1,-1)
    0x0100B10F, // ExplicitAttr(RELATINGTEMPLATE)
    0x00015D52, // Entity(IFCRELDEFINESBYTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x0200423D, // SetType(#1043,1,-1)
    0x00015D8E, // ExplicitAttr(RELATINGTYPE)
    0x00015DA9, // Entity(IFCRELFILLSELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015DE4, // ExplicitAttr(RELATINGOPENINGELEMENT)
    0x00015E09, // ExplicitAttr(RELATEDBUILDINGELEMENT)
    0x00015E2E, // Entity(IFCRELFLOWCONTROLELEMENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015E70, // ExplicitAttr(RELATEDCONTROLELEMENTS)
    0x02004251, // SetType(#1195,1,-1)
    0x00015EA9, // ExplicitAttr(RELATINGFLOWELEMENT)
    0x0100B142, // Entity(IFCRELINTERFERESELEMENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001549D, // ExplicitAttr(RELATINGELEMENT)
    0x000154BB, // ExplicitAttr(RELATEDELEMENT)
    0x0100B183, // ExplicitAttr(INTERFERENCEGEOMETRY)
    0x0100B1A6, // ExplicitAttr(INTERFERENCETYPE)
    0x0100B1C5, // ExplicitAttr(IMPLIEDORDER)
    0x00016094, // Entity(IFCRELNESTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014C0C, // ExplicitAttr(RELATINGOBJECT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x02004265, // ListType(#806,1,-1,DUPL)
    0x0001616A, // Entity(IFCRELPROJECTSELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001549D, // ExplicitAttr(RELATINGELEMENT)
    0x000161A8, // ExplicitAttr(RELATEDFEATUREELEMENT)
    0x000161CC, // Entity(IFCRELREFERENCEDINSPATIALSTRUCTURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015AE6, // ExplicitAttr(RELATEDELEMENTS)
    0x02004215, // SetType(#1068,1,-1)
    0x00015B17, // ExplicitAttr(RELATINGSTRUCTURE)
    0x00016258, // Entity(IFCRELSEQUENCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014FA0, // ExplicitAttr(RELATINGPROCESS)
    0x0001628F, // ExplicitAttr(RELATEDPROCESS)
    0x000162AC, // ExplicitAttr(TIMELAG)
    0x000162C2, // ExplicitAttr(SEQUENCETYPE)
    0x0100B1E0, // ExplicitAttr(USERDEFINEDSEQUENCETYPE)
    0x000162DD, // Entity(IFCRELSERVICESBUILDINGS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001631D, // ExplicitAttr(RELATINGSYSTEM)
    0x0001633A, // ExplicitAttr(RELATEDBUILDINGS)
    0x0200427E, // SetType(#1151,1,-1)
    0x0001636D, // Entity(IFCRELSPACEBOUNDARY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000163A9, // ExplicitAttr(RELATINGSPACE)
    0x00015E09, // ExplicitAttr(RELATEDBUILDINGELEMENT)
    0x0001547C, // ExplicitAttr(CONNECTIONGEOMETRY)
    0x000163C5, // ExplicitAttr(PHYSICALORVIRTUALBOUNDARY)
    0x000163ED, // ExplicitAttr(INTERNALOREXTERNALBOUNDARY)
    0x0100B21A, // Entity(IFCRELSPACEBOUNDARY1STLEVEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B25E, // ExplicitAttr(PARENTBOUNDARY)
    0x0100B27B, // Entity(IFCRELSPACEBOUNDARY2NDLEVEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B2BF, // ExplicitAttr(CORRESPONDINGBOUNDARY)
    0x00016416, // Entity(IFCRELVOIDSELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015B78, // ExplicitAttr(RELATINGBUILDINGELEMENT)
    0x00016451, // ExplicitAttr(RELATEDOPENINGELEMENT)
    0x0100B2E3, // Entity(IFCREPARAMETRISEDCOMPOSITECURVESEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B332, // ExplicitAttr(PARAMLENGTH)
    0x0100B34C, // Entity(IFCRESOURCEAPPROVALRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100952D, // ExplicitAttr(RELATEDRESOURCEOBJECTS)
    0x02003D8D, // SetType(#1119,1,-1)
    0x0000C748, // ExplicitAttr(RELATINGAPPROVAL)
    0x0100B394, // Entity(IFCRESOURCECONSTRAINTRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000E533, // ExplicitAttr(RELATINGCONSTRAINT)
    0x0100952D, // ExplicitAttr(RELATEDRESOURCEOBJECTS)
    0x02003D8D, // SetType(#1119,1,-1)
    0x00016475, // Entity(IFCREVOLVEDAREASOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000082D9, // ExplicitAttr(AXIS)
    0x000164B2, // ExplicitAttr(ANGLE)
    0x0100B3F4, // Entity(IFCREVOLVEDAREASOLIDTAPERED,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009596, // ExplicitAttr(ENDSWEPTAREA)
    0x0001656B, // Entity(IFCRIGHTCIRCULARCONE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DBD7, // ExplicitAttr(HEIGHT)
    0x000165A8, // ExplicitAttr(BOTTOMRADIUS)
    0x000165C3, // Entity(IFCRIGHTCIRCULARCYLINDER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DBD7, // ExplicitAttr(HEIGHT)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x00016604, // Entity(IFCROOF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B438, // Entity(IFCROOFTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00016672, // Entity(IFCROUNDEDRECTANGLEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000166B8, // ExplicitAttr(ROUNDINGRADIUS)
    0x000166D5, // Entity(IFCSIUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00016707, // ExplicitAttr(PREFIX)
    0x00007836, // ExplicitAttr(NAME)
    0x0100B46C, // Entity(IFCSANITARYTERMINAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001671C, // Entity(IFCSANITARYTERMINALTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B4A8, // Entity(IFCSEAMCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02004292, // Entity(IFCSECTIONEDSOLID,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00018163, // ExplicitAttr(DIRECTRIX)
    0x000167AF, // ExplicitAttr(CROSSSECTIONS)
    0x020042C8, // ListType(#1106,2,-1,DUPL)
    0x020042E2, // Entity(IFCSECTIONEDSOLIDHORIZONTAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000167E5, // ExplicitAttr(CROSSSECTIONPOSITIONS)
    0x02004326, // ListType(#1691,2,-1,DUPL)
    0x02004340, // ExplicitAttr(FIXEDAXISVERTICAL)
    0x0001675C, // Entity(IFCSECTIONEDSPINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00016796, // ExplicitAttr(SPINECURVE)
    0x000167AF, // ExplicitAttr(CROSSSECTIONS)
    0x020042C8, // ListType(#1106,2,-1,DUPL)
    0x000167E5, // ExplicitAttr(CROSSSECTIONPOSITIONS)
    0x02004360, // ListType(#672,2,-1,DUPL)
    0x0100B510, // Entity(IFCSENSOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00016822, // Entity(IFCSENSORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B542, // Entity(IFCSHADINGDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B57B, // Entity(IFCSHADINGDEVICETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001695A, // Entity(IFCSHAPEREPRESENTATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00016999, // Entity(IFCSHELLBASEDSURFACEMODEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000169DB, // ExplicitAttr(SBSMBOUNDARY)
    0x0100726F, // SetType(#1146,1,-1)
    0x0100B5CC, // Entity(IFCSIMPLEPROPERTYTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100859B, // ExplicitAttr(TEMPLATETYPE)
    0x0100B60E, // ExplicitAttr(PRIMARYMEASURETYPE)
    0x0100B62F, // ExplicitAttr(SECONDARYMEASURETYPE)
    0x0100B652, // ExplicitAttr(ENUMERATORS)
    0x0100B66C, // ExplicitAttr(PRIMARYUNIT)
    0x0100B686, // ExplicitAttr(SECONDARYUNIT)
    0x00013BF2, // ExplicitAttr(EXPRESSION)
    0x0100B6A2, // ExplicitAttr(ACCESSSTATE)
    0x00016A09, // Entity(IFCSITE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00016A39, // ExplicitAttr(REFLATITUDE)
    0x00016A53, // ExplicitAttr(REFLONGITUDE)
    0x00016A6E, // ExplicitAttr(REFELEVATION)
    0x00016A89, // ExplicitAttr(LANDTITLENUMBER)
    0x00016AA7, // ExplicitAttr(SITEADDRESS)
    0x00016AC1, // Entity(IFCSLAB,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B6BC, // Entity(IFCSLABELEMENTEDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B6F9, // Entity(IFCSLABSTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00016AF1, // Entity(IFCSLABTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00016B25, // Entity(IFCSLIPPAGECONNECTIONCONDITION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00016B6C, // ExplicitAttr(SLIPPAGEX)
    0x00016B84, // ExplicitAttr(SLIPPAGEY)
    0x00016B9C, // ExplicitAttr(SLIPPAGEZ)
    0x0100B735, // Entity(IFCSOLARDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B76C, // Entity(IFCSOLARDEVICETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B7A7, // Entity(IFCSPACEHEATER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00016CEC, // Entity(IFCSPACEHEATERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00016E79, // Entity(IFCSPACETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00016EAE, // Entity(IFCSPATIALSTRUCTUREELEMENTTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0100B7DE, // Entity(IFCSPATIALELEMENTTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF2B, // ExplicitAttr(ELEMENTTYPE)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000D46C, // ExplicitAttr(LONGNAME)
    0x0100B818, // Entity(IFCSPATIALZONE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B84F, // Entity(IFCSPATIALZONETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000D46C, // ExplicitAttr(LONGNAME)
    0x00016EF1, // Entity(IFCSPHERE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x0100B88A, // Entity(IFCSPHERICALSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x0100B8C6, // Entity(IFCSTACKTERMINAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00016F23, // Entity(IFCSTACKTERMINALTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00016F60, // Entity(IFCSTAIR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00016F91, // Entity(IFCSTAIRFLIGHT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B8FF, // ExplicitAttr(NUMBEROFRISERS)
    0x00016FE4, // ExplicitAttr(NUMBEROFTREADS)
    0x00017001, // ExplicitAttr(RISERHEIGHT)
    0x0001701B, // ExplicitAttr(TREADLENGTH)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00017035, // Entity(IFCSTAIRFLIGHTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B91C, // Entity(IFCSTAIRTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00017070, // Entity(IFCSTRUCTURALACTION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000170A8, // ExplicitAttr(DESTABILIZINGLOAD)
    0x00017119, // Entity(IFCSTRUCTURALANALYSISMODEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001715C, // ExplicitAttr(ORIENTATIONOF2DPLANE)
    0x0001717F, // ExplicitAttr(LOADEDBY)
    0x00017196, // Entity(IFCSTRUCTURALLOADGROUP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000171D5, // ExplicitAttr(ACTIONTYPE)
    0x000171EE, // ExplicitAttr(ACTIONSOURCE)
    0x00017209, // ExplicitAttr(COEFFICIENT)
    0x0000793D, // ExplicitAttr(PURPOSE)
    0x02004379, // SetType(#2829,1,-1)
    0x00017237, // ExplicitAttr(HASRESULTS)
    0x00017250, // Entity(IFCSTRUCTURALRESULTGROUP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00017291, // ExplicitAttr(THEORYTYPE)
    0x000172AA, // ExplicitAttr(RESULTFORLOADGROUP)
    0x000172CB, // ExplicitAttr(ISLINEAR)
    0x0200438D, // SetType(#2837,1,-1)
    0x0100B979, // ExplicitAttr(SHAREDPLACEMENT)
    0x0100B997, // Entity(IFCSTRUCTURALCURVEACTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00017406, // ExplicitAttr(PROJECTEDORTRUE)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000172F6, // Entity(IFCSTRUCTURALCURVECONNECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000082D9, // ExplicitAttr(AXIS)
    0x0001733B, // Entity(IFCSTRUCTURALCURVEMEMBER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000082D9, // ExplicitAttr(AXIS)
    0x0001737C, // Entity(IFCSTRUCTURALCURVEMEMBERVARYING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B9D8, // Entity(IFCSTRUCTURALCURVEREACTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000170DF, // Entity(IFCSTRUCTURALREACTION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000173C4, // Entity(IFCSTRUCTURALLINEARACTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100BA1B, // Entity(IFCSTRUCTURALLOADCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100BA59, // ExplicitAttr(SELFWEIGHTCOEFFICIENTS)
    0x0100BA7E, // ListType(#83,3,3,DUPL)
    0x0100BA95, // Entity(IFCSTRUCTURALLOADCONFIGURATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000119F7, // ExplicitAttr(VALUES)
    0x0100BADC, // Entity(IFCSTRUCTURALLOADORRESULT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x020043A1, // ListType(#2861,1,-1,DUPL)
    0x0100BB34, // ExplicitAttr(LOCATIONS)
    0x0100BB4C, // ListType(#56,1,2,DUPL)
    0x020043BB, // ListType(#2864,1,-1,UNIQ)
    0x000174D5, // Entity(IFCSTRUCTURALLOADLINEARFORCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001751A, // Entity(IFCSTRUCTURALLOADSTATIC,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00017556, // ExplicitAttr(LINEARFORCEX)
    0x00017571, // ExplicitAttr(LINEARFORCEY)
    0x0001758C, // ExplicitAttr(LINEARFORCEZ)
    0x000175A7, // ExplicitAttr(LINEARMOMENTX)
    0x000175C3, // ExplicitAttr(LINEARMOMENTY)
    0x000175DF, // ExplicitAttr(LINEARMOMENTZ)
    0x000175FB, // Entity(IFCSTRUCTURALLOADPLANARFORCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00017640, // ExplicitAttr(PLANARFORCEX)
    0x0001765B, // ExplicitAttr(PLANARFORCEY)
    0x00017676, // ExplicitAttr(PLANARFORCEZ)
    0x00017691, // Entity(IFCSTRUCTURALLOADSINGLEDISPLACEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000176DD, // ExplicitAttr(DISPLACEMENTX)
    0x000176F9, // ExplicitAttr(DISPLACEMENTY)
    0x00017715, // ExplicitAttr(DISPLACEMENTZ)
    0x00017731, // ExplicitAttr(ROTATIONALDISPLACEMENTRX)
    0x00017758, // ExplicitAttr(ROTATIONALDISPLACEMENTRY)
    0x0001777F, // ExplicitAttr(ROTATIONALDISPLACEMENTRZ)
    0x000177A6, // Entity(IFCSTRUCTURALLOADSINGLEDISPLACEMENTDISTORTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000177FC, // ExplicitAttr(DISTORTION)
    0x00017815, // Entity(IFCSTRUCTURALLOADSINGLEFORCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001785A, // ExplicitAttr(FORCEX)
    0x0001786F, // ExplicitAttr(FORCEY)
    0x00017884, // ExplicitAttr(FORCEZ)
    0x00017899, // ExplicitAttr(MOMENTX)
    0x000178AF, // ExplicitAttr(MOMENTY)
    0x000178C5, // ExplicitAttr(MOMENTZ)
    0x000178DB, // Entity(IFCSTRUCTURALLOADSINGLEFORCEWARPING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00017927, // ExplicitAttr(WARPINGMOMENT)
    0x00017943, // Entity(IFCSTRUCTURALLOADTEMPERATURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100BB7D, // ExplicitAttr(DELTATCONSTANT)
    0x0100BB9A, // ExplicitAttr(DELTATY)
    0x0100BBB0, // ExplicitAttr(DELTATZ)
    0x000179D4, // Entity(IFCSTRUCTURALPLANARACTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100BBC6, // Entity(IFCSTRUCTURALSURFACEACTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00017406, // ExplicitAttr(PROJECTEDORTRUE)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00017A79, // Entity(IFCSTRUCTURALPOINTACTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00017ABA, // Entity(IFCSTRUCTURALPOINTCONNECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001596E, // ExplicitAttr(CONDITIONCOORDINATESYSTEM)
    0x00017AFF, // Entity(IFCSTRUCTURALPOINTREACTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00017E20, // Entity(IFCSTRUCTURALSURFACECONNECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00017E67, // Entity(IFCSTRUCTURALSURFACEMEMBER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000DABB, // ExplicitAttr(THICKNESS)
    0x00017EAA, // Entity(IFCSTRUCTURALSURFACEMEMBERVARYING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100BC09, // Entity(IFCSTRUCTURALSURFACEREACTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00017F9B, // Entity(IFCSTYLEMODEL,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00017FCD, // Entity(IFCSTYLEDREPRESENTATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001800D, // Entity(IFCSUBCONTRACTRESOURCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100BC4E, // Entity(IFCSUBCONTRACTRESOURCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00018085, // Entity(IFCSUBEDGE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000180B8, // ExplicitAttr(PARENTEDGE)
    0x000180D1, // Entity(IFCSUBFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018104, // ExplicitAttr(PARENTFACE)
    0x0001811D, // Entity(IFCSURFACECURVESWEPTAREASOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018163, // ExplicitAttr(DIRECTRIX)
    0x0001817B, // ExplicitAttr(STARTPARAM)
    0x00018194, // ExplicitAttr(ENDPARAM)
    0x000181AB, // ExplicitAttr(REFERENCESURFACE)
    0x0100BC91, // Entity(IFCSURFACEFEATURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000181CA, // Entity(IFCSURFACEOFLINEAREXTRUSION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001820E, // Entity(IFCSWEPTSURFACE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00018242, // ExplicitAttr(SWEPTCURVE)
    0x00008498, // ExplicitAttr(POSITION)
    0x00010686, // ExplicitAttr(EXTRUDEDDIRECTION)
    0x0000D776, // ExplicitAttr(DEPTH)
    0x0001825B, // Entity(IFCSURFACEOFREVOLUTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001829A, // ExplicitAttr(AXISPOSITION)
    0x0100BCE6, // Entity(IFCSURFACEREINFORCEMENTAREA,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100BD2A, // ExplicitAttr(SURFACEREINFORCEMENT1)
    0x010067D4, // ListType(#56,2,3,DUPL)
    0x0100BD4E, // ExplicitAttr(SURFACEREINFORCEMENT2)
    0x010067D4, // ListType(#56,2,3,DUPL)
    0x0100BD72, // ExplicitAttr(SHEARREINFORCEMENT)
    0x000182B5, // Entity(IFCSURFACESTYLERENDERING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018311, // ExplicitAttr(DIFFUSECOLOUR)
    0x0000A145, // ExplicitAttr(TRANSMISSIONCOLOUR)
    0x0000A0F7, // ExplicitAttr(DIFFUSETRANSMISSIONCOLOUR)
    0x0001832D, // ExplicitAttr(REFLECTIONCOLOUR)
    0x0001834C, // ExplicitAttr(SPECULARCOLOUR)
    0x00018369, // ExplicitAttr(SPECULARHIGHLIGHT)
    0x00018389, // ExplicitAttr(REFLECTANCEMETHOD)
    0x000183A9, // Entity(IFCSWEPTDISKSOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018163, // ExplicitAttr(DIRECTRIX)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x000183E3, // ExplicitAttr(INNERRADIUS)
    0x0001817B, // ExplicitAttr(STARTPARAM)
    0x00018194, // ExplicitAttr(ENDPARAM)
    0x0100BD93, // Entity(IFCSWEPTDISKSOLIDPOLYGONAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CB6C, // ExplicitAttr(FILLETRADIUS)
    0x0100BDD6, // Entity(IFCSWITCHINGDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000183FD, // Entity(IFCSWITCHINGDEVICETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100BE11, // Entity(IFCSYSTEMFURNITUREELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001843C, // Entity(IFCSYSTEMFURNITUREELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00018482, // Entity(IFCTSHAPEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D776, // ExplicitAttr(DEPTH)
    0x000184BE, // ExplicitAttr(FLANGEWIDTH)
    0x0000CB33, // ExplicitAttr(WEBTHICKNESS)
    0x0000CB4E, // ExplicitAttr(FLANGETHICKNESS)
    0x0000CB6C, // ExplicitAttr(FILLETRADIUS)
    0x000184D8, // ExplicitAttr(FLANGEEDGERADIUS)
    0x000184F7, // ExplicitAttr(WEBEDGERADIUS)
    0x00018513, // ExplicitAttr(WEBSLOPE)
    0x0001852A, // ExplicitAttr(FLANGESLOPE)
    0x0100BE53, // Entity(IFCTANK,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00018544, // Entity(IFCTANKTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001273D, // Entity(IFCTASK,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000957E, // ExplicitAttr(STATUS)
    0x000127B1, // ExplicitAttr(WORKMETHOD)
    0x000127CA, // ExplicitAttr(ISMILESTONE)
    0x000127E4, // ExplicitAttr(PRIORITY)
    0x0100BE83, // ExplicitAttr(TASKTIME)
    0x0100BE9A, // Entity(IFCTASKTIME,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009DC1, // ExplicitAttr(DURATIONTYPE)
    0x00014D8F, // ExplicitAttr(SCHEDULEDURATION)
    0x00014D08, // ExplicitAttr(SCHEDULESTART)
    0x00014D72, // ExplicitAttr(SCHEDULEFINISH)
    0x00014CD7, // ExplicitAttr(EARLYSTART)
    0x00014D3F, // ExplicitAttr(EARLYFINISH)
    0x00014CF0, // ExplicitAttr(LATESTART)
    0x00014D59, // ExplicitAttr(LATEFINISH)
    0x00014DE7, // ExplicitAttr(FREEFLOAT)
    0x00014DFF, // ExplicitAttr(TOTALFLOAT)
    0x00014E18, // ExplicitAttr(ISCRITICAL)
    0x00014E31, // ExplicitAttr(STATUSTIME)
    0x00014DAE, // ExplicitAttr(ACTUALDURATION)
    0x00014CBD, // ExplicitAttr(ACTUALSTART)
    0x00014D24, // ExplicitAttr(ACTUALFINISH)
    0x00014DCB, // ExplicitAttr(REMAININGTIME)
    0x00014E7D, // ExplicitAttr(COMPLETION)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100BECE, // Entity(IFCTASKTIMERECURRING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100BF0B, // ExplicitAttr(RECURRENCE)
    0x0100BF24, // Entity(IFCTASKTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000127B1, // ExplicitAttr(WORKMETHOD)
    0x00018578, // Entity(IFCTELECOMADDRESS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000185B2, // ExplicitAttr(TELEPHONENUMBERS)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x000185D1, // ExplicitAttr(FACSIMILENUMBERS)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x000185F0, // ExplicitAttr(PAGERNUMBER)
    0x0001860A, // ExplicitAttr(ELECTRONICMAILADDRESSES)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x00018630, // ExplicitAttr(WWWHOMEPAGEURL)
    0x0100BF58, // ExplicitAttr(MESSAGINGIDS)
    0x020043D5, // ListType(#196,1,-1,DUPL)
    0x0001864D, // Entity(IFCTENDON,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000123D4, // ExplicitAttr(NOMINALDIAMETER)
    0x00011273, // ExplicitAttr(CROSSSECTIONAREA)
    0x0001867F, // ExplicitAttr(TENSIONFORCE)
    0x0001869A, // ExplicitAttr(PRESTRESS)
    0x000186B2, // ExplicitAttr(FRICTIONCOEFFICIENT)
    0x000186D4, // ExplicitAttr(ANCHORAGESLIP)
    0x000186F0, // ExplicitAttr(MINCURVATURERADIUS)
    0x00018711, // Entity(IFCTENDONANCHOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100BF8C, // Entity(IFCTENDONANCHORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100BFC8, // Entity(IFCTENDONTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000123D4, // ExplicitAttr(NOMINALDIAMETER)
    0x00011273, // ExplicitAttr(CROSSSECTIONAREA)
    0x0100BFFE, // ExplicitAttr(SHEATHDIAMETER)
    0x00018749, // Entity(IFCTEXTLITERAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018780, // ExplicitAttr(LITERAL)
    0x00013130, // ExplicitAttr(PLACEMENT)
    0x00018796, // ExplicitAttr(PATH)
    0x000187A9, // Entity(IFCTEXTLITERALWITHEXTENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000187EA, // ExplicitAttr(EXTENT)
    0x000187FF, // ExplicitAttr(BOXALIGNMENT)
    0x0001881A, // Entity(IFCTEXTSTYLEFONTMODEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018858, // ExplicitAttr(FONTFAMILY)
    0x020043EE, // ListType(#185,1,-1,DUPL)
    0x0001888A, // ExplicitAttr(FONTSTYLE)
    0x000188A2, // ExplicitAttr(FONTVARIANT)
    0x000188BC, // ExplicitAttr(FONTWEIGHT)
    0x000188D5, // ExplicitAttr(FONTSIZE)
    0x000188EC, // Entity(IFCTEXTURECOORDINATEGENERATOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018932, // ExplicitAttr(MODE)
    0x00018945, // ExplicitAttr(PARAMETER)
    0x0100C034, // ListType(#165,1,-1,DUPL)
    0x00018976, // Entity(IFCTEXTUREMAP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100C04D, // ExplicitAttr(VERTICES)
    0x00018A25, // Entity(IFCTEXTUREVERTEX,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000081DF, // ExplicitAttr(COORDINATES)
    0x01009B7B, // ListType(#87,2,2,DUPL)
    0x02004407, // ListType(#3063,3,-1,DUPL)
    0x010098EA, // ExplicitAttr(MAPPEDTO)
    0x00018CCD, // Entity(IFCTOPOLOGYREPRESENTATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100C07E, // Entity(IFCTOROIDALSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100C0B9, // ExplicitAttr(MAJORRADIUS)
    0x0100C0D3, // ExplicitAttr(MINORRADIUS)
    0x0100C0ED, // Entity(IFCTRANSFORMER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00018D0F, // Entity(IFCTRANSFORMERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x02004421, // Entity(IFCTRANSITIONCURVESEGMENT2D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02004465, // ExplicitAttr(STARTRADIUS)
    0x0200447F, // ExplicitAttr(ENDRADIUS)
    0x02004497, // ExplicitAttr(ISSTARTRADIUSCCW)
    0x020044B6, // ExplicitAttr(ISENDRADIUSCCW)
    0x020044D3, // ExplicitAttr(TRANSITIONCURVETYPE)
    0x00018D4A, // Entity(IFCTRANSPORTELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00018DC4, // Entity(IFCTRANSPORTELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00018E04, // Entity(IFCTRAPEZIUMPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018E43, // ExplicitAttr(BOTTOMXDIM)
    0x00018E5C, // ExplicitAttr(TOPXDIM)
    0x0000D381, // ExplicitAttr(YDIM)
    0x00018E72, // ExplicitAttr(TOPXOFFSET)
    0x0100C124, // Entity(IFCTRIANGULATEDFACESET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100C163, // ExplicitAttr(NORMALS)
    0x0100C179, // ListType(#87,3,3,DUPL)
    0x020044F5, // ListType(#3093,1,-1,DUPL)
    0x0100A738, // ExplicitAttr(CLOSED)
    0x010099F4, // ExplicitAttr(COORDINDEX)
    0x01000030, // ListType(#7,3,3,DUPL)
    0x0200450F, // ListType(#3097,1,-1,DUPL)
    0x0100A77B, // ExplicitAttr(PNINDEX)
    0x01009947, // ListType(#7,1,-1,DUPL)
    0x02004529, // Entity(IFCTRIANGULATEDIRREGULARNETWORK,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02004571, // ExplicitAttr(FLAGS)
    0x01005B8F, // ListType(#6,1,-1,DUPL)
    0x00018E8B, // Entity(IFCTRIMMEDCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012977, // ExplicitAttr(BASISCURVE)
    0x00018EC3, // ExplicitAttr(TRIM1)
    0x02004585, // SetType(#1181,1,2)
    0x00018EE9, // ExplicitAttr(TRIM2)
    0x02004585, // SetType(#1181,1,2)
    0x00018EFD, // ExplicitAttr(SENSEAGREEMENT)
    0x00018F1A, // ExplicitAttr(MASTERREPRESENTATION)
    0x0100C1F6, // Entity(IFCTUBEBUNDLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00018F3D, // Entity(IFCTUBEBUNDLETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00018FDC, // Entity(IFCUSHAPEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D776, // ExplicitAttr(DEPTH)
    0x000184BE, // ExplicitAttr(FLANGEWIDTH)
    0x0000CB33, // ExplicitAttr(WEBTHICKNESS)
    0x0000CB4E, // ExplicitAttr(FLANGETHICKNESS)
    0x0000CB6C, // ExplicitAttr(FILLETRADIUS)
    0x00011B12, // ExplicitAttr(EDGERADIUS)
    0x0001852A, // ExplicitAttr(FLANGESLOPE)
    0x00019018, // Entity(IFCUNIFORMCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100C22C, // Entity(IFCUNITARYCONTROLELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100C26D, // Entity(IFCUNITARYCONTROLELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100C2B2, // Entity(IFCUNITARYEQUIPMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00019050, // Entity(IFCUNITARYEQUIPMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100C2EE, // Entity(IFCVALVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00019090, // Entity(IFCVALVETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000190C5, // Entity(IFCVERTEXLOOP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000190FB, // ExplicitAttr(LOOPVERTEX)
    0x0100C31F, // Entity(IFCVIBRATIONISOLATOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00019114, // Entity(IFCVIBRATIONISOLATORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00019155, // Entity(IFCVIRTUALELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100C35C, // Entity(IFCVOIDINGFEATURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001918F, // Entity(IFCWALL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100C396, // Entity(IFCWALLELEMENTEDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000191BF, // Entity(IFCWALLSTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000191FB, // Entity(IFCWALLTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100C3D3, // Entity(IFCWASTETERMINAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001922F, // Entity(IFCWASTETERMINALTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001937A, // Entity(IFCWINDOW,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EB8A, // ExplicitAttr(OVERALLHEIGHT)
    0x0000CAFD, // ExplicitAttr(OVERALLWIDTH)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100C40C, // ExplicitAttr(PARTITIONINGTYPE)
    0x0100C42B, // ExplicitAttr(USERDEFINEDPARTITIONINGTYPE)
    0x000193AC, // Entity(IFCWINDOWLININGPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F695, // ExplicitAttr(LININGDEPTH)
    0x0000F6AF, // ExplicitAttr(LININGTHICKNESS)
    0x0000F70B, // ExplicitAttr(TRANSOMTHICKNESS)
    0x000193EE, // ExplicitAttr(MULLIONTHICKNESS)
    0x0001940D, // ExplicitAttr(FIRSTTRANSOMOFFSET)
    0x0001942E, // ExplicitAttr(SECONDTRANSOMOFFSET)
    0x00019450, // ExplicitAttr(FIRSTMULLIONOFFSET)
    0x00019471, // ExplicitAttr(SECONDMULLIONOFFSET)
    0x0000F7B7, // ExplicitAttr(SHAPEASPECTSTYLE)
    0x0000F746, // ExplicitAttr(LININGOFFSET)
    0x01008E31, // ExplicitAttr(LININGTOPANELOFFSETX)
    0x01008E54, // ExplicitAttr(LININGTOPANELOFFSETY)
    0x00019493, // Entity(IFCWINDOWPANELPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000F9EA, // ExplicitAttr(OPERATIONTYPE)
    0x0000F999, // ExplicitAttr(PANELPOSITION)
    0x00012E00, // ExplicitAttr(FRAMEDEPTH)
    0x00012E19, // ExplicitAttr(FRAMETHICKNESS)
    0x0000F7B7, // ExplicitAttr(SHAPEASPECTSTYLE)
    0x0100C455, // Entity(IFCWINDOWSTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000194D4, // Entity(IFCWINDOWSTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FA06, // ExplicitAttr(CONSTRUCTIONTYPE)
    0x0000F9EA, // ExplicitAttr(OPERATIONTYPE)
    0x0000FA25, // ExplicitAttr(PARAMETERTAKESPRECEDENCE)
    0x0000FA4C, // ExplicitAttr(SIZEABLE)
    0x0100C493, // Entity(IFCWINDOWTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100C40C, // ExplicitAttr(PARTITIONINGTYPE)
    0x0000FA25, // ExplicitAttr(PARAMETERTAKESPRECEDENCE)
    0x0100C42B, // ExplicitAttr(USERDEFINEDPARTITIONINGTYPE)
    0x0100C4C9, // Entity(IFCWORKCALENDAR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100C501, // ExplicitAttr(WORKINGTIMES)
    0x0100C51C, // Entity(IFCWORKTIME,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100C550, // ExplicitAttr(RECURRENCEPATTERN)
    0x0100C570, // ExplicitAttr(START)
    0x0100C584, // ExplicitAttr(FINISH)
    0x02004598, // SetType(#3194,1,-1)
    0x0100C5AD, // ExplicitAttr(EXCEPTIONTIMES)
    0x02004598, // SetType(#3194,1,-1)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001950B, // Entity(IFCWORKCONTROL,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B726, // ExplicitAttr(CREATIONDATE)
    0x0001953E, // ExplicitAttr(CREATORS)
    0x01009CD6, // SetType(#105,1,-1)
    0x0000793D, // ExplicitAttr(PURPOSE)
    0x00019555, // ExplicitAttr(DURATION)
    0x00014DFF, // ExplicitAttr(TOTALFLOAT)
    0x0000AEAA, // ExplicitAttr(STARTTIME)
    0x0001956C, // ExplicitAttr(FINISHTIME)
    0x000195C8, // Entity(IFCWORKPLAN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000195FC, // Entity(IFCWORKSCHEDULE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00019634, // Entity(IFCZSHAPEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D776, // ExplicitAttr(DEPTH)
    0x000184BE, // ExplicitAttr(FLANGEWIDTH)
    0x0000CB33, // ExplicitAttr(WEBTHICKNESS)
    0x0000CB4E, // ExplicitAttr(FLANGETHICKNESS)
    0x0000CB6C, // ExplicitAttr(FILLETRADIUS)
    0x00011B12, // ExplicitAttr(EDGERADIUS)
    0x00019670, // Entity(IFCZONE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D46C, // ExplicitAttr(LONGNAME)
};

constexpr std::uint32_t statements[] = {
    0x000196A0, // #1.SchemaVersionRelease(1,1)
    0x0100C5CA, // #98.Composition(#98)
    0x0100C5DF, // #99.ExplAttrInfos(#45,REQ)
    0x0100C5FA, // #101.Composition(#101)
    0x0100C611, // #103.Composition(#103)
    0x0100C628, // #105.Composition(#105)
    0x0100C63F, // #106.ExplAttrInfos(#48,OPT)
    0x0100C65B, // #107.ExplAttrInfos(#14,OPT)
    0x0100C677, // #108.ExplAttrInfos(#14,OPT)
    0x0100C693, // #109.ExplAttrInfos(#110,OPT)
    0x0100C6B0, // #111.ExplAttrInfos(#112,OPT)
    0x0100C6CD, // #113.ExplAttrInfos(#114,OPT)
    0x0100C6EA, // #116.Composition(#116)
    0x0100C701, // #117.ExplAttrInfos(#119,REQ)
    0x0100C71E, // #120.ExplAttrInfos(#14,OPT)
    0x0100C73A, // #121.ExplAttrInfos(#122,OPT)
    0x0100C757, // #116.Attributes(#117,#120,#121)
    0x0100C777, // #115.ExplAttrInfos(#123,OPT)
    0x0100C794, // #125.Composition(#125)
    0x0100C7AB, // #126.ExplAttrInfos(#128,OPT)
    0x0100C7C8, // #129.ExplAttrInfos(#122,OPT)
    0x0100C7E5, // #130.ExplAttrInfos(#14,OPT)
    0x0100C801, // #125.Attributes(#126,#129,#130)
    0x0100C821, // #124.ExplAttrInfos(#131,OPT)
    0x0100C83E, // #105.Attributes(#106,#107,#108,#109,#111,#113,#115,#124)
    0x0100C877, // #104.ExplAttrInfos(#105,REQ)
    0x0100C894, // #133.Composition(#133)
    0x0100C8AB, // #134.ExplAttrInfos(#48,OPT)
    0x0100C8C7, // #135.ExplAttrInfos(#14,REQ)
    0x0100C8E3, // #136.ExplAttrInfos(#122,OPT)
    0x0100C900, // #137.ExplAttrInfos(#138,OPT)
    0x0100C91D, // #139.ExplAttrInfos(#140,OPT)
    0x0100C93A, // #133.Attributes(#134,#135,#136,#137,#139)
    0x0100C964, // #132.ExplAttrInfos(#133,REQ)
    0x0100C981, // #141.ExplAttrInfos(#142,OPT)
    0x0100C99E, // #103.Attributes(#104,#132,#141)
    0x0100C9BE, // #102.ExplAttrInfos(#103,REQ)
    0x0100C9DB, // #144.Composition(#144)
    0x0100C9F2, // #145.ExplAttrInfos(#133,REQ)
    0x0100CA0F, // #146.ExplAttrInfos(#14,REQ)
    0x0100CA2B, // #147.ExplAttrInfos(#14,REQ)
    0x0100CA47, // #148.ExplAttrInfos(#48,REQ)
    0x0100CA63, // #144.Attributes(#145,#146,#147,#148)
    0x0100CA88, // #143.ExplAttrInfos(#144,REQ)
    0x0100CAA5, // #149.ExplAttrInfos(#151,OPT)
    0x0100CAC2, // #152.ExplAttrInfos(#154,OPT)
    0x0100CADF, // #155.ExplAttrInfos(#156,OPT)
    0x0100CAFC, // #157.ExplAttrInfos(#103,OPT)
    0x0100CB19, // #158.ExplAttrInfos(#144,OPT)
    0x0100CB36, // #159.ExplAttrInfos(#156,REQ)
    0x0100CB53, // #101.Attributes(#102,#143,#149,#152,#155,#157,#158,#159)
    0x0100CB8C, // #100.ExplAttrInfos(#101,OPT)
    0x0100CBA9, // #160.ExplAttrInfos(#14,OPT)
    0x0100CBC5, // #161.ExplAttrInfos(#122,OPT)
    0x0100CBE2, // #98.Attributes(#99,#100,#160,#161)
    0x0100CC05, // #97.Supertypes(#98)
    0x0100CC19, // #97.Composition(#97,#98)
    0x0100CC32, // #96.Supertypes(#97)
    0x0100CC46, // #96.Composition(#97,#96,#98)
    0x020045AC, // #616.Composition(#616)
    0x020045C3, // #617.ExplAttrInfos(#625,REQ)
    0x0001AB4D, // #627.Composition(#627)
    0x020045E0, // #629.Composition(#629)
    0x020045F7, // #631.Composition(#631)
    0x0200460E, // #633.Composition(#633)
    0x02004625, // #634.ExplAttrInfos(IntegerType,REQ)
    0x0100CE7E, // #635.ExplAttrInfos(IntegerType,REQ)
    0x02004649, // #636.ExplAttrInfos(IntegerType,REQ)
    0x0200466D, // #637.ExplAttrInfos(IntegerType,REQ)
    0x02004691, // #638.ExplAttrInfos(IntegerType,REQ)
    0x020046B5, // #639.ExplAttrInfos(IntegerType,REQ)
    0x020046D9, // #640.ExplAttrInfos(IntegerType,REQ)
    0x020046FD, // #633.Attributes(#634,#635,#636,#637,#638,#639,#640)
    0x02004731, // #632.ExplAttrInfos(#633,REQ)
    0x0200474E, // #641.ExplAttrInfos(#581,REQ)
    0x0200476B, // #631.Attributes(#632,#641)
    0x02004786, // #630.ExplAttrInfos(#631,REQ)
    0x020047A3, // #642.ExplAttrInfos(IntegerType,REQ)
    0x020047C7, // #629.Attributes(#630,#642)
    0x020047E2, // #628.ExplAttrInfos(#643,REQ)
    0x020047FF, // #644.ExplAttrInfos(#307,REQ)
    0x0200481C, // #645.ExplAttrInfos(#14,OPT)
    0x02004838, // #627.Attributes(#628,#644,#645)
    0x02004858, // #646.Composition(#646)
    0x0200486F, // #647.ExplAttrInfos(#14,REQ)
    0x0200488B, // #646.Attributes(#647)
    0x020048A1, // #626.ExplAttrInfos(#649,REQ)
    0x020048BE, // #616.Attributes(#617,#626)
    0x020048D9, // #650.Composition(#650)
    0x020048F0, // #651.ExplAttrInfos(#48,OPT)
    0x0200490C, // #652.ExplAttrInfos(#48,OPT)
    0x02004928, // #653.ExplAttrInfos(#14,OPT)
    0x02004944, // #654.ExplAttrInfos(#655,OPT)
    0x02004961, // #656.ExplAttrInfos(#650,OPT)
    0x0200497E, // #650.Attributes(#651,#652,#653,#654,#656)
    0x020049A8, // #662.Composition(#662)
    0x020049BF, // #661.Supertypes(#662)
    0x020049D5, // #661.Composition(#661,#662)
    0x020049F1, // #660.Supertypes(#661)
    0x02004A07, // #660.Composition(#661,#660,#662)
    0x02004A28, // #665.Supertypes(#661)
    0x02004A3E, // #665.Composition(#661,#665,#662)
    0x02004A5F, // #664.Supertypes(#665)
    0x02004A75, // #664.Composition(#664,#661,#665,#662)
    0x0100D276, // #666.ExplAttrInfos(#667,REQ)
    0x02004A9B, // #664.Attributes(#666)
    0x02004AB1, // #663.ExplAttrInfos(#664,REQ)
    0x02004ACE, // #660.Attributes(#663)
    0x02004AE4, // #659.Supertypes(#660)
    0x02004AFA, // #659.Composition(#659,#661,#660,#662)
    0x02004B20, // #669.Supertypes(#661)
    0x02004B36, // #669.Composition(#669,#661,#662)
    0x02004B57, // #670.ExplAttrInfos(#671,REQ)
    0x02004B74, // #669.Attributes(#670)
    0x02004B8A, // #668.ExplAttrInfos(#669,OPT)
    0x02004BA7, // #659.Attributes(#668)
    0x02004BBD, // #672.Supertypes(#660)
    0x02004BD3, // #672.Composition(#672,#661,#660,#662)
    0x02004BF9, // #673.ExplAttrInfos(#669,OPT)
    0x02004C16, // #674.ExplAttrInfos(#669,OPT)
    0x02004C33, // #672.Attributes(#673,#674)
    0x02004C4E, // #679.Supertypes(#661)
    0x02004C64, // #679.Composition(#679,#661,#662)
    0x02004C85, // #680.ExplAttrInfos(#241,REQ)
    0x02004CA2, // #681.ExplAttrInfos(#700,REQ)
    0x02004CBF, // #701.ExplAttrInfos(#700,REQ)
    0x02004CDC, // #679.Attributes(#680,#681,#701)
    0x02004CFC, // #682.Supertypes(#661)
    0x02004D12, // #682.Composition(#682,#661,#662)
    0x02004D33, // #683.ExplAttrInfos(#672,REQ)
    0x02004D50, // #682.Attributes(#683)
    0x02004D66, // #684.Supertypes(#661)
    0x02004D7C, // #684.Composition(#661,#684,#662)
    0x02004D9D, // #686.Supertypes(#661)
    0x02004DB3, // #686.Composition(#661,#662,#686)
    0x02004DD4, // #685.ExplAttrInfos(#686,REQ)
    0x02004DF1, // #687.ExplAttrInfos(#13,REQ)
    0x02004E0D, // #684.Attributes(#685,#687)
    0x02004E28, // #688.Supertypes(#661)
    0x02004E3E, // #688.Composition(#661,#662,#688)
    0x02004E5F, // #690.Supertypes(#661)
    0x02004E75, // #690.Composition(#661,#662,#690)
    0x02004E96, // #689.Supertypes(#690)
    0x02004EAC, // #689.Composition(#661,#662,#689,#690)
    0x02004ED2, // #693.Supertypes(#661)
    0x02004EE8, // #693.Composition(#693,#661,#662)
    0x02004F09, // #692.Supertypes(#693)
    0x02004F1F, // #692.Composition(#693,#692,#661,#662)
    0x02004F45, // #694.ExplAttrInfos(#696,REQ)
    0x02004F62, // #697.ExplAttrInfos(#698,OPT)
    0x02004F7F, // #692.Attributes(#694,#697)
    0x02004F9A, // #691.ExplAttrInfos(#692,REQ)
    0x02004FB7, // #689.Attributes(#691)
    0x02004FCD, // #705.Composition(#705)
    0x02004FE4, // #704.Supertypes(#705)
    0x02004FFA, // #704.Composition(#704,#705)
    0x02005016, // #706.ExplAttrInfos(#14,OPT)
    0x02005032, // #707.ExplAttrInfos(#14,OPT)
    0x0200504E, // #708.ExplAttrInfos(#24,OPT)
    0x0200506A, // #709.ExplAttrInfos(#14,REQ)
    0x02005086, // #710.ExplAttrInfos(#122,OPT)
    0x020050A3, // #711.ExplAttrInfos(#196,OPT)
    0x020050C0, // #712.ExplAttrInfos(#713,OPT)
    0x020050DD, // #704.Attributes(#706,#707,#708,#709,#710,#711,#712)
    0x02005111, // #715.Composition(#715)
    0x02005128, // #716.ExplAttrInfos(#196,OPT)
    0x02005145, // #717.ExplAttrInfos(#48,OPT)
    0x02005161, // #718.ExplAttrInfos(#14,OPT)
    0x0200517D, // #715.Attributes(#716,#717,#718)
    0x0200519D, // #714.Supertypes(#715)
    0x020051B3, // #714.Composition(#714,#715)
    0x020051CF, // #719.ExplAttrInfos(#721,OPT)
    0x020051EC, // #722.ExplAttrInfos(#122,OPT)
    0x02005209, // #723.ExplAttrInfos(#48,OPT)
    0x02005225, // #714.Attributes(#719,#722,#723)
    0x02005245, // #729.Composition(#729)
    0x0200525C, // #728.Supertypes(#729)
    0x02005272, // #728.Composition(#728,#729)
    0x0200528E, // #730.ExplAttrInfos(#14,OPT)
    0x020052AA, // #728.Attributes(#730)
    0x020052C0, // #732.Supertypes(#729)
    0x020052D6, // #732.Composition(#732,#729)
    0x020052F2, // #733.ExplAttrInfos(#14,REQ)
    0x0200530E, // #732.Attributes(#733)
    0x02005324, // #731.Supertypes(#732)
    0x0200533A, // #731.Composition(#731,#732,#729)
    0x0200535B, // #736.Supertypes(#728)
    0x02005371, // #736.Composition(#736,#728,#729)
    0x02005392, // #737.ExplAttrInfos(#84,REQ)
    0x020053AE, // #738.ExplAttrInfos(#84,REQ)
    0x0100DB9C, // #739.ExplAttrInfos(#84,REQ)
    0x020053CA, // #736.Attributes(#737,#738,#739)
    0x020053EA, // #742.Composition(#742)
    0x02005401, // #743.ExplAttrInfos(#14,REQ)
    0x0200541D, // #744.ExplAttrInfos(#122,OPT)
    0x0200543A, // #745.ExplAttrInfos(#48,OPT)
    0x02005456, // #746.ExplAttrInfos(#48,OPT)
    0x02005472, // #742.Attributes(#743,#744,#745,#746)
    0x02005497, // #748.Composition(#748)
    0x020054AE, // #749.ExplAttrInfos(#14,OPT)
    0x020054CA, // #750.ExplAttrInfos(#14,OPT)
    0x020054E6, // #748.Attributes(#749,#750)
    0x02005501, // #747.Supertypes(#748)
    0x02005517, // #747.Composition(#747,#748)
    0x02005533, // #751.ExplAttrInfos(#29,REQ)
    0x0200554F, // #752.ExplAttrInfos(#165,OPT)
    0x0200556C, // #753.ExplAttrInfos(#676,REQ)
    0x02005589, // #754.ExplAttrInfos(#669,OPT)
    0x020055A6, // #747.Attributes(#751,#752,#753,#754)
    0x020055CB, // #759.Supertypes(#729)
    0x020055E1, // #759.Composition(#759,#729)
    0x020055FD, // #760.ExplAttrInfos(#14,OPT)
    0x02005619, // #762.Supertypes(#729)
    0x0200562F, // #762.Composition(#762,#729)
    0x0200564B, // #763.ExplAttrInfos(#14,OPT)
    0x02005667, // #765.Supertypes(#729)
    0x0200567D, // #765.Composition(#765,#729)
    0x02005699, // #766.ExplAttrInfos(#56,REQ)
    0x020056B5, // #767.ExplAttrInfos(#90,REQ)
    0x020056D1, // #765.Attributes(#766,#767)
    0x020056EC, // #764.ExplAttrInfos(#768,REQ)
    0x02005709, // #762.Attributes(#763,#764)
    0x02005724, // #769.Supertypes(#732)
    0x0200573A, // #769.Composition(#769,#732,#729)
    0x0200575B, // #761.ExplAttrInfos(#771,REQ)
    0x02005778, // #772.ExplAttrInfos(#92,REQ)
    0x02005794, // #759.Attributes(#760,#761,#772)
    0x020057B4, // #778.Supertypes(#661)
    0x020057CA, // #778.Composition(#778,#661,#662)
    0x0100E1FC, // #777.Supertypes(#778)
    0x020057EB, // #777.Composition(#777,#778,#661,#662)
    0x02005811, // #776.Supertypes(#777)
    0x02005827, // #776.Composition(#777,#776,#778,#661,#662)
    0x02005852, // #780.Supertypes(#661)
    0x02005868, // #780.Composition(#780,#661,#662)
    0x02005889, // #781.ExplAttrInfos(#571,REQ)
    0x020058A6, // #782.ExplAttrInfos(#13,REQ)
    0x020058C2, // #783.ExplAttrInfos(#778,REQ)
    0x020058DF, // #780.Attributes(#781,#782,#783)
    0x020058FF, // #779.ExplAttrInfos(#784,REQ)
    0x0200591C, // #785.ExplAttrInfos(#63,REQ)
    0x02005938, // #776.Attributes(#779,#785)
    0x02005953, // #775.Supertypes(#776)
    0x02005969, // #775.Composition(#777,#776,#775,#778,#661,#662)
    0x02005999, // #786.Supertypes(#778)
    0x020059AF, // #786.Composition(#778,#661,#786,#662)
    0x020059D5, // #787.ExplAttrInfos(#686,REQ)
    0x020059F2, // #788.ExplAttrInfos(#778,REQ)
    0x02005A0F, // #786.Attributes(#787,#788)
    0x02005A2A, // #789.Supertypes(#778)
    0x02005A40, // #789.Composition(#778,#661,#662,#789)
    0x02005A66, // #790.ExplAttrInfos(#778,REQ)
    0x02005A83, // #791.ExplAttrInfos(#792,REQ)
    0x02005AA0, // #793.ExplAttrInfos(#463,REQ)
    0x02005ABD, // #789.Attributes(#790,#791,#793)
    0x02005ADD, // #798.Supertypes(#662)
    0x02005AF3, // #798.Composition(#662,#798)
    0x02005B0F, // #797.Supertypes(#798)
    0x02005B25, // #797.Composition(#797,#662,#798)
    0x02005B46, // #800.Supertypes(#798)
    0x02005B5C, // #800.Composition(#662,#798,#800)
    0x0100E35C, // #799.ExplAttrInfos(#800,REQ)
    0x02005B7D, // #801.ExplAttrInfos(#800,REQ)
    0x02005B9A, // #797.Attributes(#799,#801)
    0x02005BB5, // #796.Supertypes(#797)
    0x02005BCB, // #796.Composition(#797,#796,#662,#798)
    0x02005BF1, // #802.ExplAttrInfos(#778,REQ)
    0x02005C0E, // #803.ExplAttrInfos(#13,REQ)
    0x02005C2A, // #796.Attributes(#802,#803)
    0x02005C45, // #806.Supertypes(#98)
    0x02005C5A, // #806.Composition(#806,#98)
    0x02005C75, // #809.Supertypes(#705)
    0x02005C8B, // #809.Composition(#809,#705)
    0x02005CA7, // #810.ExplAttrInfos(#48,REQ)
    0x02005CC3, // #811.ExplAttrInfos(#14,REQ)
    0x02005CDF, // #812.ExplAttrInfos(#122,OPT)
    0x02005CFC, // #813.ExplAttrInfos(#196,OPT)
    0x02005D19, // #814.ExplAttrInfos(#122,OPT)
    0x02005D36, // #815.ExplAttrInfos(#122,OPT)
    0x02005D53, // #816.ExplAttrInfos(#122,OPT)
    0x02005D70, // #817.ExplAttrInfos(#14,OPT)
    0x02005D8C, // #818.ExplAttrInfos(#615,OPT)
    0x02005DA9, // #819.ExplAttrInfos(#820,OPT)
    0x02005DC6, // #821.ExplAttrInfos(#25,OPT)
    0x02005DE2, // #822.ExplAttrInfos(#25,OPT)
    0x02005DFE, // #823.ExplAttrInfos(#48,OPT)
    0x02005E1A, // #824.ExplAttrInfos(#24,OPT)
    0x02005E36, // #825.ExplAttrInfos(#24,OPT)
    0x02005E52, // #826.ExplAttrInfos(#319,OPT)
    0x02005E6F, // #827.ExplAttrInfos(#321,OPT)
    0x02005E8C, // #809.Attributes(#810,#811,#812,#813,#814,#815,#816,#817,#818,#819,#821,#822,#823,#824,#825,#826,#827)
    0x02005EF2, // #828.Supertypes(#715)
    0x02005F08, // #828.Composition(#828,#715)
    0x02005F24, // #829.ExplAttrInfos(#122,OPT)
    0x02005F41, // #830.ExplAttrInfos(#809,OPT)
    0x02005F5E, // #828.Attributes(#829,#830)
    0x02005F79, // #833.Supertypes(#715)
    0x02005F8F, // #833.Composition(#833,#715)
    0x02005FAB, // #834.Supertypes(#661)
    0x02005FC1, // #834.Composition(#834,#661,#662)
    0x02005FE2, // #837.Composition(#837)
    0x02005FF9, // #838.ExplAttrInfos(#14,OPT)
    0x02006015, // #837.Attributes(#838)
    0x0200602B, // #836.Supertypes(#837)
    0x02006041, // #836.Composition(#836,#837)
    0x0200605D, // #839.ExplAttrInfos(#774,OPT)
    0x0200607A, // #840.ExplAttrInfos(#842,OPT)
    0x02006097, // #843.ExplAttrInfos(#735,OPT)
    0x020060B4, // #844.ExplAttrInfos(#13,OPT)
    0x020060D0, // #836.Attributes(#839,#840,#843,#844)
    0x020060F5, // #835.ExplAttrInfos(#836,REQ)
    0x02006112, // #846.Supertypes(#661)
    0x02006128, // #846.Composition(#661,#662,#846)
    0x02006149, // #847.ExplAttrInfos(#669,REQ)
    0x02006166, // #848.ExplAttrInfos(#56,REQ)
    0x02006182, // #846.Attributes(#847,#848)
    0x0200619D, // #845.ExplAttrInfos(#850,REQ)
    0x020061BA, // #851.ExplAttrInfos(#664,OPT)
    0x020061D7, // #852.ExplAttrInfos(#664,OPT)
    0x020061F4, // #853.ExplAttrInfos(#89,REQ)
    0x02006210, // #834.Attributes(#835,#845,#851,#852,#853)
    0x0200623A, // #854.Supertypes(#661)
    0x02006250, // #854.Composition(#854,#661,#662)
    0x02006271, // #855.ExplAttrInfos(#856,REQ)
    0x0200628E, // #858.Supertypes(#662)
    0x020062A4, // #858.Composition(#662,#858)
    0x020062C0, // #859.ExplAttrInfos(#662,OPT)
    0x020062DD, // #861.Composition(#861)
    0x020062F4, // #863.Supertypes(#837)
    0x0200630A, // #863.Composition(#863,#837)
    0x02006326, // #864.ExplAttrInfos(#867,REQ)
    0x02006343, // #868.ExplAttrInfos(#13,OPT)
    0x0200635F, // #863.Attributes(#864,#868)
    0x0200637A, // #869.Supertypes(#837)
    0x02006390, // #869.Composition(#837,#869)
    0x020063AC, // #870.ExplAttrInfos(#549,REQ)
    0x020063C9, // #872.Supertypes(#715)
    0x020063DF, // #872.Composition(#872,#715)
    0x020063FB, // #873.Supertypes(#729)
    0x02006411, // #873.Composition(#729,#873)
    0x0200642D, // #874.ExplAttrInfos(#736,REQ)
    0x0200644A, // #875.ExplAttrInfos(#736,REQ)
    0x02006467, // #876.ExplAttrInfos(#736,REQ)
    0x02006484, // #877.ExplAttrInfos(#736,REQ)
    0x020064A1, // #873.Attributes(#874,#875,#876,#877)
    0x020064C6, // #878.Supertypes(#729)
    0x020064DC, // #878.Composition(#729,#878)
    0x020064F8, // #879.ExplAttrInfos(#165,OPT)
    0x02006515, // #880.ExplAttrInfos(#165,OPT)
    0x02006532, // #878.Attributes(#879,#880)
    0x0200654D, // #881.Supertypes(#729)
    0x02006563, // #881.Composition(#729,#881)
    0x0200657F, // #882.ExplAttrInfos(#736,REQ)
    0x0200659C, // #883.ExplAttrInfos(#84,OPT)
    0x020065B8, // #881.Attributes(#882,#883)
    0x020065D3, // #884.Supertypes(#729)
    0x020065E9, // #884.Composition(#729,#884)
    0x02006605, // #886.Supertypes(#729)
    0x0200661B, // #886.Composition(#729,#886)
    0x02006637, // #887.ExplAttrInfos(#13,REQ)
    0x02006653, // #888.ExplAttrInfos(#13,REQ)
    0x0200666F, // #889.ExplAttrInfos(#48,OPT)
    0x0200668B, // #892.Supertypes(#661)
    0x020066A1, // #892.Composition(#892,#661,#662)
    0x020066C2, // #893.ExplAttrInfos(#669,OPT)
    0x020066DF, // #894.ExplAttrInfos(#669,OPT)
    0x020066FC, // #895.ExplAttrInfos(#664,REQ)
    0x02006719, // #896.ExplAttrInfos(#165,OPT)
    0x02006736, // #892.Attributes(#893,#894,#895,#896)
    0x0200675B, // #891.Supertypes(#892)
    0x02006771, // #891.Composition(#892,#891,#661,#662)
    0x02006797, // #890.ExplAttrInfos(#891,OPT)
    0x020067B4, // #897.ExplAttrInfos(#898,OPT)
    0x020067D1, // #886.Attributes(#887,#888,#889,#890,#897)
    0x020067FB, // #885.ExplAttrInfos(#899,REQ)
    0x02006818, // #884.Attributes(#885)
    0x0200682E, // #871.ExplAttrInfos(#902,REQ)
    0x0200684B, // #869.Attributes(#870,#871)
    0x02006866, // #903.Supertypes(#837)
    0x0200687C, // #903.Composition(#837,#903)
    0x02006898, // #905.Supertypes(#729)
    0x020068AE, // #905.Composition(#729,#905)
    0x020068CA, // #906.ExplAttrInfos(#735,REQ)
    0x020068E7, // #907.ExplAttrInfos(#735,OPT)
    0x02006904, // #905.Attributes(#906,#907)
    0x0200691F, // #904.ExplAttrInfos(#905,OPT)
    0x0200693C, // #909.Supertypes(#729)
    0x02006952, // #909.Composition(#729,#909)
    0x0200696E, // #910.ExplAttrInfos(#842,OPT)
    0x0200698B, // #911.ExplAttrInfos(#183,OPT)
    0x020069A8, // #912.ExplAttrInfos(#184,OPT)
    0x020069C5, // #913.ExplAttrInfos(#842,OPT)
    0x020069E2, // #914.ExplAttrInfos(#842,OPT)
    0x020069FF, // #915.ExplAttrInfos(#186,OPT)
    0x02006A1C, // #916.ExplAttrInfos(#842,OPT)
    0x02006A39, // #909.Attributes(#910,#911,#912,#913,#914,#915,#916)
    0x02006A6D, // #908.ExplAttrInfos(#909,OPT)
    0x02006A8A, // #918.Supertypes(#715)
    0x02006AA0, // #918.Composition(#918,#715)
    0x02006ABC, // #919.Supertypes(#732)
    0x02006AD2, // #919.Composition(#732,#919,#729)
    0x02006AF3, // #917.ExplAttrInfos(#921,REQ)
    0x02006B10, // #922.ExplAttrInfos(#13,OPT)
    0x02006B2C, // #903.Attributes(#904,#908,#917,#922)
    0x02006B51, // #862.ExplAttrInfos(#925,REQ)
    0x02006B6E, // #861.Attributes(#862)
    0x02006B84, // #860.ExplAttrInfos(#928,REQ)
    0x02006BA1, // #929.ExplAttrInfos(#14,OPT)
    0x02006BBD, // #858.Attributes(#859,#860,#929)
    0x02006BDD, // #857.ExplAttrInfos(#930,REQ)
    0x02006BFA, // #931.ExplAttrInfos(#92,REQ)
    0x02006C16, // #854.Attributes(#855,#857,#931)
    0x02006C36, // #936.Composition(#936)
    0x02006C4D, // #938.Composition(#938)
    0x02006C64, // #939.ExplAttrInfos(#14,OPT)
    0x02006C80, // #940.ExplAttrInfos(#778,REQ)
    0x02006C9D, // #941.ExplAttrInfos(#13,REQ)
    0x02006CB9, // #938.Attributes(#939,#940,#941)
    0x02006CD9, // #937.ExplAttrInfos(#942,REQ)
    0x02006CF6, // #943.ExplAttrInfos(#944,REQ)
    0x02006D13, // #936.Attributes(#937,#943)
    0x02006D2E, // #947.Composition(#947)
    0x02006D45, // #948.ExplAttrInfos(#748,REQ)
    0x02006D62, // #949.ExplAttrInfos(#14,OPT)
    0x02006D7E, // #950.ExplAttrInfos(#14,OPT)
    0x02006D9A, // #951.ExplAttrInfos(#952,REQ)
    0x02006DB7, // #947.Attributes(#948,#949,#950,#951)
    0x02006DDC, // #955.Supertypes(#705)
    0x02006DF2, // #955.Composition(#705,#955)
    0x02006E0E, // #956.ExplAttrInfos(#14,REQ)
    0x02006E2A, // #957.ExplAttrInfos(#14,OPT)
    0x02006E46, // #958.ExplAttrInfos(#615,OPT)
    0x02006E63, // #959.ExplAttrInfos(#25,OPT)
    0x02006E7F, // #960.ExplAttrInfos(#196,OPT)
    0x02006E9C, // #961.ExplAttrInfos(#122,OPT)
    0x02006EB9, // #955.Attributes(#956,#957,#958,#959,#960,#961)
    0x02006EE8, // #962.Supertypes(#715)
    0x02006EFE, // #962.Composition(#715,#962)
    0x02006F1A, // #963.ExplAttrInfos(#122,OPT)
    0x02006F37, // #964.ExplAttrInfos(#55,OPT)
    0x02006F53, // #965.ExplAttrInfos(#955,OPT)
    0x02006F70, // #962.Attributes(#963,#964,#965)
    0x02006F90, // #968.Composition(#968)
    0x02006FA7, // #969.ExplAttrInfos(#415,REQ)
    0x0001DA36, // #971.Composition(#971)
    0x02006FC4, // #972.ExplAttrInfos(#89,REQ)
    0x02006FE0, // #973.ExplAttrInfos(#974,REQ)
    0x02006FFD, // #975.ExplAttrInfos(#976,REQ)
    0x0200701A, // #971.Attributes(#972,#973,#975)
    0x0200703A, // #970.ExplAttrInfos(#977,REQ)
    0x02007057, // #968.Attributes(#969,#970)
    0x02007072, // #980.Composition(#980)
    0x02007089, // #981.Composition(#981)
    0x0001DD9E, // #983.Supertypes(#980)
    0x020070A0, // #983.Composition(#983,#980)
    0x020070BC, // #984.ExplAttrInfos(#14,REQ)
    0x020070D8, // #985.ExplAttrInfos(#122,OPT)
    0x020070F5, // #986.ExplAttrInfos(#14,OPT)
    0x02007111, // #983.Attributes(#984,#985,#986)
    0x02007131, // #982.ExplAttrInfos(#987,REQ)
    0x0200714E, // #981.Attributes(#982)
    0x02007164, // #988.Composition(#988)
    0x0200717B, // #991.Composition(#991)
    0x02007192, // #992.ExplAttrInfos(#14,OPT)
    0x020071AE, // #993.ExplAttrInfos(#122,OPT)
    0x020071CB, // #994.ExplAttrInfos(#658,OPT)
    0x020071E8, // #995.ExplAttrInfos(#616,OPT)
    0x02007205, // #996.ExplAttrInfos(#24,OPT)
    0x02007221, // #997.ExplAttrInfos(#24,OPT)
    0x0200723D, // #998.ExplAttrInfos(#14,OPT)
    0x02007259, // #999.ExplAttrInfos(#14,OPT)
    0x02007275, // #1000.ExplAttrInfos(#225,OPT)
    0x02007293, // #1001.ExplAttrInfos(#1002,OPT)
    0x020072B2, // #991.Attributes(#992,#993,#994,#995,#996,#997,#998,#999,#1000,#1001)
    0x0100FAFE, // #1003.Composition(#1003)
    0x020072F7, // #1004.ExplAttrInfos(#14,OPT)
    0x0001E276, // #1006.Composition(#1006)
    0x02007314, // #1007.ExplAttrInfos(#1008,OPT)
    0x02007333, // #1009.ExplAttrInfos(#13,OPT)
    0x02007350, // #1006.Attributes(#1007,#1009)
    0x0200736E, // #1005.ExplAttrInfos(#1010,OPT)
    0x0200738D, // #1012.Composition(#1012)
    0x020073A6, // #1013.ExplAttrInfos(#48,OPT)
    0x0100FBE5, // #1014.ExplAttrInfos(#14,OPT)
    0x020073C3, // #1015.ExplAttrInfos(#122,OPT)
    0x020073E1, // #1016.ExplAttrInfos(#649,OPT)
    0x020073FF, // #1017.ExplAttrInfos(#650,OPT)
    0x0200741D, // #1012.Attributes(#1013,#1014,#1015,#1016,#1017)
    0x0200744D, // #1011.ExplAttrInfos(#1018,OPT)
    0x0200746C, // #1003.Attributes(#1004,#1005,#1011)
    0x02007490, // #1019.Composition(#1019)
    0x020074A9, // #1020.ExplAttrInfos(#14,REQ)
    0x020074C6, // #1021.ExplAttrInfos(#122,OPT)
    0x020074E4, // #1022.ExplAttrInfos(#25,REQ)
    0x02007501, // #1023.ExplAttrInfos(#25,REQ)
    0x0200751E, // #1024.ExplAttrInfos(#567,REQ)
    0x0200753C, // #1025.ExplAttrInfos(#305,REQ)
    0x0200755A, // #1026.ExplAttrInfos(#14,OPT)
    0x02007577, // #1027.ExplAttrInfos(#649,OPT)
    0x02007595, // #1019.Attributes(#1020,#1021,#1022,#1023,#1024,#1025,#1026,#1027)
    0x020075D7, // #1038.Supertypes(#800)
    0x020075EE, // #1038.Composition(#662,#798,#800,#1038)
    0x02007616, // #1039.ExplAttrInfos(#665,REQ)
    0x02007634, // #1038.Attributes(#1039)
    0x0200764C, // #1043.Supertypes(#806)
    0x02007663, // #1043.Composition(#1043,#806,#98)
    0x0100FF83, // #1044.ExplAttrInfos(#14,OPT)
    0x02007685, // #1043.Attributes(#1044)
    0x0200769D, // #1042.Supertypes(#1043)
    0x020076B5, // #1042.Composition(#1043,#806,#1042,#98)
    0x020076DD, // #1045.ExplAttrInfos(#48,OPT)
    0x020076FA, // #1046.ExplAttrInfos(#122,OPT)
    0x02007718, // #1042.Attributes(#1045,#1046)
    0x02007736, // #1048.Supertypes(#806)
    0x0200774D, // #1048.Composition(#806,#98,#1048)
    0x0200776F, // #1049.ExplAttrInfos(#48,OPT)
    0x0200778C, // #1050.ExplAttrInfos(#1051,OPT)
    0x020077AB, // #1048.Attributes(#1049,#1050)
    0x020077C9, // #1047.Supertypes(#1048)
    0x020077E1, // #1047.Composition(#806,#98,#1048,#1047)
    0x02007809, // #1052.ExplAttrInfos(#48,OPT)
    0x02007826, // #1053.ExplAttrInfos(#122,OPT)
    0x02007844, // #1054.ExplAttrInfos(#14,OPT)
    0x02007861, // #1047.Attributes(#1052,#1053,#1054)
    0x02007885, // #1058.Composition(#1058)
    0x0200789E, // #1059.ExplAttrInfos(#14,OPT)
    0x020078BB, // #1060.ExplAttrInfos(#122,OPT)
    0x020078D9, // #1061.ExplAttrInfos(#1062,REQ)
    0x020078F8, // #1058.Attributes(#1059,#1060,#1061)
    0x0200791C, // #1057.Supertypes(#1058)
    0x02007934, // #1057.Composition(#1057,#1058)
    0x02007953, // #1063.Composition(#1063)
    0x0200796C, // #1064.ExplAttrInfos(#676,REQ)
    0x0200798A, // #1065.ExplAttrInfos(#947,REQ)
    0x020079A8, // #1063.Attributes(#1064,#1065)
    0x020079C6, // #1068.Supertypes(#1043)
    0x020079DE, // #1068.Composition(#1043,#806,#1068,#98)
    0x02007A06, // #1070.Composition(#1070)
    0x02007A1F, // #1069.ExplAttrInfos(#1070,OPT)
    0x02007A3E, // #1071.ExplAttrInfos(#1058,OPT)
    0x02007A5D, // #1068.Attributes(#1069,#1071)
    0x02007A7B, // #1072.Supertypes(#1048)
    0x02007A93, // #1072.Composition(#806,#98,#1048,#1072)
    0x02007ABB, // #1073.ExplAttrInfos(#1074,OPT)
    0x02007ADA, // #1075.ExplAttrInfos(#14,OPT)
    0x02007AF7, // #1072.Attributes(#1073,#1075)
    0x02007B15, // #1080.Composition(#1080)
    0x02007B2E, // #1081.ExplAttrInfos(#48,OPT)
    0x02007B4B, // #1082.ExplAttrInfos(#14,OPT)
    0x02007B68, // #1083.ExplAttrInfos(#122,OPT)
    0x02007B86, // #1084.ExplAttrInfos(#25,OPT)
    0x02007BA3, // #1085.ExplAttrInfos(#14,OPT)
    0x02007BC0, // #1086.ExplAttrInfos(#14,OPT)
    0x02007BDD, // #1087.ExplAttrInfos(#122,OPT)
    0x02007BFB, // #1088.ExplAttrInfos(#615,OPT)
    0x02007C19, // #1089.ExplAttrInfos(#615,OPT)
    0x02007C37, // #1080.Attributes(#1081,#1082,#1083,#1084,#1085,#1086,#1087,#1088,#1089)
    0x02007C7F, // #1090.Composition(#1090)
    0x02007C98, // #1091.ExplAttrInfos(#14,REQ)
    0x02007CB5, // #1092.ExplAttrInfos(#122,OPT)
    0x02007CD3, // #1093.ExplAttrInfos(#277,REQ)
    0x02007CF1, // #1094.ExplAttrInfos(#14,OPT)
    0x02007D0E, // #1095.ExplAttrInfos(#615,OPT)
    0x02007D2C, // #1096.ExplAttrInfos(#25,OPT)
    0x02007D49, // #1097.ExplAttrInfos(#14,OPT)
    0x02007D66, // #1090.Attributes(#1091,#1092,#1093,#1094,#1095,#1096,#1097)
    0x02007DA2, // #1098.Supertypes(#631)
    0x02007DB9, // #1098.Composition(#1098,#631)
    0x02007DD7, // #1099.ExplAttrInfos(#14,REQ)
    0x0001F2C1, // #1098.Attributes(#1099)
    0x02007DF4, // #1100.Supertypes(#631)
    0x02007E0B, // #1100.Composition(#1100,#631)
    0x02007E29, // #1101.ExplAttrInfos(#14,REQ)
    0x02007E46, // #1102.ExplAttrInfos(#616,REQ)
    0x02007E64, // #1100.Attributes(#1101,#1102)
    0x02007E82, // #1103.Composition(#1103)
    0x02007E9B, // #1104.ExplAttrInfos(#14,REQ)
    0x010105F2, // #1105.ExplAttrInfos(#122,OPT)
    0x02007EB8, // #1103.Attributes(#1104,#1105)
    0x02007ED6, // #1106.Composition(#1106)
    0x02007EEF, // #1107.ExplAttrInfos(#467,REQ)
    0x02007F0D, // #1108.ExplAttrInfos(#14,OPT)
    0x02007F2A, // #1106.Attributes(#1107,#1108)
    0x02007F48, // #1109.Composition(#1109)
    0x02007F61, // #1110.Composition(#1110)
    0x02007F7A, // #1112.Supertypes(#947)
    0x02007F91, // #1112.Composition(#947,#1112)
    0x02007FAF, // #1111.ExplAttrInfos(#1113,REQ)
    0x02007FCE, // #1114.ExplAttrInfos(#14,OPT)
    0x02007FEB, // #1115.ExplAttrInfos(#122,OPT)
    0x02008009, // #1116.ExplAttrInfos(#63,REQ)
    0x02008026, // #1117.ExplAttrInfos(#1067,OPT)
    0x02008045, // #1110.Attributes(#1111,#1114,#1115,#1116,#1117)
    0x02008075, // #1120.Supertypes(#1043)
    0x0200808D, // #1120.Composition(#1043,#806,#1120,#98)
    0x020080B5, // #1121.ExplAttrInfos(#48,OPT)
    0x020080D2, // #1122.ExplAttrInfos(#122,OPT)
    0x020080F0, // #1120.Attributes(#1121,#1122)
    0x0200810E, // #1123.Supertypes(#1048)
    0x02008126, // #1123.Composition(#806,#98,#1048,#1123)
    0x0200814E, // #1124.ExplAttrInfos(#48,OPT)
    0x0200816B, // #1125.ExplAttrInfos(#122,OPT)
    0x01010958, // #1126.ExplAttrInfos(#14,OPT)
    0x02008189, // #1123.Attributes(#1124,#1125,#1126)
    0x020081AD, // #1134.Supertypes(#798)
    0x020081C4, // #1134.Composition(#1134,#662,#798)
    0x020081E7, // #1136.Supertypes(#798)
    0x020081FE, // #1136.Composition(#1136,#662,#798)
    0x02008221, // #1138.Supertypes(#798)
    0x02008238, // #1138.Composition(#1138,#662,#798)
    0x0200825B, // #1140.Supertypes(#798)
    0x02008272, // #1140.Composition(#1140,#662,#798)
    0x02008295, // #1139.ExplAttrInfos(#1140,REQ)
    0x020082B4, // #1141.ExplAttrInfos(#13,REQ)
    0x020082D1, // #1138.Attributes(#1139,#1141)
    0x020082EF, // #1137.ExplAttrInfos(#1142,REQ)
    0x0200830E, // #1136.Attributes(#1137)
    0x02008326, // #1135.ExplAttrInfos(#1143,REQ)
    0x02008345, // #1134.Attributes(#1135)
    0x0200835D, // #1133.Supertypes(#1134)
    0x02008375, // #1133.Composition(#1133,#1134,#662,#798)
    0x0200839E, // #1144.Supertypes(#1134)
    0x020083B6, // #1144.Composition(#1134,#1144,#662,#798)
    0x020083DF, // #1151.Supertypes(#1068)
    0x020083F7, // #1151.Composition(#1043,#806,#1068,#98,#1151)
    0x02008425, // #1152.ExplAttrInfos(#14,OPT)
    0x02008442, // #1151.Attributes(#1152)
    0x0200845A, // #1150.Supertypes(#1151)
    0x02008472, // #1150.Composition(#1150,#1043,#806,#1068,#98,#1151)
    0x020084A6, // #1149.Supertypes(#1150)
    0x020084BE, // #1149.Composition(#1149,#1150,#1043,#806,#1068,#98,#1151)
    0x020084F8, // #1153.ExplAttrInfos(#367,OPT)
    0x02008516, // #1149.Attributes(#1153)
    0x0200852E, // #1155.Supertypes(#1151)
    0x02008546, // #1155.Composition(#1043,#806,#1068,#98,#1151,#1155)
    0x0200857A, // #1156.ExplAttrInfos(#355,OPT)
    0x02008598, // #1155.Attributes(#1156)
    0x020085B0, // #1154.Supertypes(#1155)
    0x020085C8, // #1154.Composition(#1043,#806,#1068,#98,#1154,#1151,#1155)
    0x02008602, // #1157.ExplAttrInfos(#527,OPT)
    0x02008620, // #1158.ExplAttrInfos(#56,OPT)
    0x0200863D, // #1154.Attributes(#1157,#1158)
    0x0200865B, // #1163.Supertypes(#1068)
    0x02008673, // #1163.Composition(#1163,#1043,#806,#1068,#98)
    0x020086A1, // #1164.ExplAttrInfos(#48,OPT)
    0x020086BE, // #1163.Attributes(#1164)
    0x020086D6, // #1165.Supertypes(#1068)
    0x020086EE, // #1165.Composition(#1043,#806,#1068,#98,#1165)
    0x0200871C, // #1168.Supertypes(#661)
    0x02008733, // #1168.Composition(#1168,#661,#662)
    0x02008756, // #1169.ExplAttrInfos(#1170,REQ)
    0x02008775, // #1168.Attributes(#1169)
    0x0200878D, // #1171.Supertypes(#1136)
    0x020087A5, // #1171.Composition(#1136,#1171,#662,#798)
    0x020087CE, // #1172.ExplAttrInfos(#686,REQ)
    0x020087EC, // #1173.ExplAttrInfos(#13,REQ)
    0x0002018D, // #1171.Attributes(#1172,#1173)
    0x02008809, // #1.DefTypes(#2,#3,#4,#5,#9,#10,#11,#12,#13,#15,#16,#18,#20,#21,#22,#23,#24,#25,#26,#27,#28,#29,#30,#31,#32,#33,#34,#35,#36,#37,#38,#39,#40,#41,#42,#43,#44,#45,#46,#47,#48,#49,#50,#6,#51,#52,#53,#54,#14,#55,#56,#58,#59,#60,#61,#62,#63,#64,#65,#66,#67,#68,#69,#70,#71,#72,#73,#74,#75,#76,#77,#78,#79,#80,#81,#82,#84,#85,#86,#87,#88,#89,#7,#90,#91,#92,#93,#94,#95,#163,#164,#83,#165,#166,#167,#168,#169,#170,#171,#172,#173,#174,#175,#176,#177,#178,#179,#180,#181,#182,#122,#183,#184,#185,#186,#187,#188,#189,#190,#191,#192,#193,#194,#156,#195,#196,#197,#198,#199,#200,#201,#203,#205,#207,#209,#128,#211,#213,#215,#217,#219,#221,#223,#225,#227,#229,#231,#233,#235,#237,#239,#241,#243,#245,#247,#249,#251,#253,#255,#257,#154,#259,#261,#263,#265,#267,#269,#271,#273,#275,#277,#279,#281,#283,#285,#287,#289,#291,#293,#295,#297,#299,#301,#303,#305,#307,#309,#311,#313,#315,#317,#319,#321,#323,#325,#327,#329,#331,#333,#335,#337,#339,#341,#343,#345,#347,#349,#351,#353,#355,#357,#359,#361,#363,#365,#367,#369,#371,#373,#375,#377,#379,#381,#383,#385,#387,#389,#391,#393,#395,#397,#399,#401,#403,#405,#407,#409,#411,#413,#415,#417,#419,#421,#423,#425,#427,#429,#431,#433,#435,#437,#439,#441,#443,#445,#447,#449,#451,#453,#455,#457,#459,#461,#463,#465,#467,#469,#471,#473,#475,#477,#479,#481,#483,#485,#487,#489,#491,#493,#495,#497,#499,#501,#119,#503,#505,#507,#509,#511,#513,#515,#517,#519,#521,#523,#525,#527,#529,#531,#533,#535,#151,#537,#539,#541,#543,#545,#547,#549,#551,#553,#555,#557,#559,#561,#563,#565,#567,#569,#571,#573,#575,#577,#579,#581,#583,#585,#587,#589,#591,#593,#595,#597,#599,#601,#603,#605,#607,#609,#611,#613,#615,#658,#676,#678,#703,#725,#727,#735,#741,#756,#758,#774,#795,#805,#771,#808,#619,#832,#933,#935,#946,#850,#954,#967,#979,#990,#621,#1029,#1031,#1033,#1035,#1037,#1041,#924,#1056,#1067,#1077,#1079,#1119,#1128,#1130,#1132,#1146,#623,#842,#1148,#1160,#1162,#1167,#927,#1175,#901,#921,#1177,#1179,#1181,#649,#625,#1183,#1185)
    0x02008FA3, // #1187.Supertypes(#1043)
    0x02008FBB, // #1187.Composition(#1187,#1043,#806,#98)
    0x02008FE3, // #1188.ExplAttrInfos(#48,OPT)
    0x02009000, // #1187.Attributes(#1188)
    0x02009018, // #1186.Supertypes(#1187)
    0x02009030, // #1186.Composition(#1186,#1187,#1043,#806,#98)
    0x0200905E, // #1189.ExplAttrInfos(#203,OPT)
    0x0200907C, // #1190.ExplAttrInfos(#14,OPT)
    0x02009099, // #1191.ExplAttrInfos(#122,OPT)
    0x020090B7, // #1186.Attributes(#1189,#1190,#1191)
    0x020090DB, // #1192.Supertypes(#1043)
    0x020090F3, // #1192.Composition(#1192,#1043,#806,#98)
    0x0200911B, // #1193.ExplAttrInfos(#615,REQ)
    0x02009139, // #1192.Attributes(#1193)
    0x02009151, // #1196.Supertypes(#1163)
    0x02009169, // #1196.Composition(#1196,#1163,#1043,#806,#1068,#98)
    0x0200919D, // #1195.Supertypes(#1196)
    0x020091B5, // #1195.Composition(#1195,#1196,#1163,#1043,#806,#1068,#98)
    0x020091EF, // #1194.Supertypes(#1195)
    0x02009207, // #1194.Composition(#1194,#1195,#1196,#1163,#1043,#806,#1068,#98)
    0x02009247, // #1197.ExplAttrInfos(#209,OPT)
    0x02009265, // #1194.Attributes(#1197)
    0x0200927D, // #1201.Supertypes(#1072)
    0x02009295, // #1201.Composition(#1201,#806,#98,#1048,#1072)
    0x020092C3, // #1202.ExplAttrInfos(#14,OPT)
    0x000207DD, // #1201.Attributes(#1202)
    0x020092E0, // #1200.Supertypes(#1201)
    0x020092F8, // #1200.Composition(#1200,#1201,#806,#98,#1048,#1072)
    0x0200932C, // #1199.Supertypes(#1200)
    0x02009344, // #1199.Composition(#1199,#1200,#1201,#806,#98,#1048,#1072)
    0x0200937E, // #1198.Supertypes(#1199)
    0x02009396, // #1198.Composition(#1198,#1199,#1200,#1201,#806,#98,#1048,#1072)
    0x020093D6, // #1203.ExplAttrInfos(#209,REQ)
    0x020093F4, // #1198.Attributes(#1203)
    0x0200940C, // #1205.Supertypes(#688)
    0x02009423, // #1205.Composition(#661,#1205,#662,#688)
    0x0200944B, // #1206.ExplAttrInfos(#1133,REQ)
    0x0200946A, // #1205.Attributes(#1206)
    0x02009482, // #1204.Supertypes(#1205)
    0x0200949A, // #1204.Composition(#1204,#661,#1205,#662,#688)
    0x020094C8, // #1207.Supertypes(#1204)
    0x020094E0, // #1207.Composition(#1204,#1207,#661,#1205,#662,#688)
    0x0002091F, // #1208.ExplAttrInfos(#1209,REQ)
    0x02009514, // #1207.Attributes(#1208)
    0x0200952C, // #1210.Supertypes(#1171)
    0x02009544, // #1210.Composition(#1210,#1136,#1171,#662,#798)
    0x02009573, // #1213.Supertypes(#1196)
    0x0200958B, // #1213.Composition(#1196,#1213,#1163,#1043,#806,#1068,#98)
    0x020095C5, // #1212.Supertypes(#1213)
    0x020095DD, // #1212.Composition(#1196,#1213,#1163,#1212,#1043,#806,#1068,#98)
    0x01011C2F, // #1211.Supertypes(#1212)
    0x0200961D, // #1211.Composition(#1211,#1196,#1213,#1163,#1212,#1043,#806,#1068,#98)
    0x02009663, // #1214.ExplAttrInfos(#213,OPT)
    0x02009681, // #1211.Attributes(#1214)
    0x02009699, // #1216.Supertypes(#1213)
    0x020096B1, // #1216.Composition(#1196,#1213,#1163,#1216,#1043,#806,#1068,#98)
    0x01011DD1, // #1215.Supertypes(#1216)
    0x020096F1, // #1215.Composition(#1215,#1196,#1213,#1163,#1216,#1043,#806,#1068,#98)
    0x02009737, // #1217.ExplAttrInfos(#211,OPT)
    0x02009755, // #1215.Attributes(#1217)
    0x0200976D, // #1220.Supertypes(#1200)
    0x02009785, // #1220.Composition(#1200,#1220,#1201,#806,#98,#1048,#1072)
    0x020097BF, // #1219.Supertypes(#1220)
    0x020097D7, // #1219.Composition(#1200,#1220,#1201,#1219,#806,#98,#1048,#1072)
    0x02009817, // #1218.Supertypes(#1219)
    0x0200982F, // #1218.Composition(#1218,#1200,#1220,#1201,#1219,#806,#98,#1048,#1072)
    0x02009875, // #1221.ExplAttrInfos(#211,REQ)
    0x02009893, // #1218.Attributes(#1221)
    0x020098AB, // #1223.Supertypes(#1220)
    0x020098C3, // #1223.Composition(#1200,#1220,#1201,#1223,#806,#98,#1048,#1072)
    0x01011F73, // #1222.Supertypes(#1223)
    0x02009903, // #1222.Composition(#1222,#1200,#1220,#1201,#1223,#806,#98,#1048,#1072)
    0x02009949, // #1224.ExplAttrInfos(#213,REQ)
    0x02009967, // #1222.Attributes(#1224)
    0x0200997F, // #1226.Supertypes(#1213)
    0x02009997, // #1226.Composition(#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)
    0x020099D7, // #1225.Supertypes(#1226)
    0x020099EF, // #1225.Composition(#1225,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)
    0x02009A35, // #1227.ExplAttrInfos(#215,OPT)
    0x02009A53, // #1225.Attributes(#1227)
    0x02009A6B, // #1229.Supertypes(#1220)
    0x02009A83, // #1229.Composition(#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)
    0x02009AC3, // #1228.Supertypes(#1229)
    0x02009ADB, // #1228.Composition(#1228,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)
    0x02009B21, // #1230.ExplAttrInfos(#215,REQ)
    0x02009B3F, // #1228.Attributes(#1230)
    0x02009B57, // #1231.Supertypes(#1195)
    0x02009B6F, // #1231.Composition(#1231,#1195,#1196,#1163,#1043,#806,#1068,#98)
    0x02009BAF, // #1232.ExplAttrInfos(#217,OPT)
    0x02009BCD, // #1231.Attributes(#1232)
    0x02009BE5, // #1233.Supertypes(#1199)
    0x02009BFD, // #1233.Composition(#1233,#1199,#1200,#1201,#806,#98,#1048,#1072)
    0x02009C3D, // #1234.ExplAttrInfos(#217,REQ)
    0x02009C5B, // #1233.Attributes(#1234)
    0x02009C73, // #1237.Supertypes(#1068)
    0x02009C8B, // #1237.Composition(#1043,#806,#1237,#1068,#98)
    0x01012375, // #1236.Supertypes(#1237)
    0x02009CB9, // #1236.Composition(#1236,#1043,#806,#1237,#1068,#98)
    0x02009CED, // #1238.ExplAttrInfos(#778,REQ)
    0x010123F1, // #1236.Attributes(#1238)
    0x02009D0B, // #1235.Supertypes(#1236)
    0x02009D23, // #1235.Composition(#1235,#1236,#1043,#806,#1237,#1068,#98)
    0x02009D5D, // #1239.ExplAttrInfos(#219,OPT)
    0x02009D7B, // #1235.Attributes(#1239)
    0x02009D93, // #1240.Supertypes(#661)
    0x02009DAA, // #1240.Composition(#1240,#661,#662)
    0x02009DCD, // #1241.ExplAttrInfos(#56,OPT)
    0x02009DEA, // #1244.Supertypes(#661)
    0x02009E01, // #1244.Composition(#1244,#661,#662)
    0x02009E24, // #1245.ExplAttrInfos(#13,OPT)
    0x02009E41, // #1246.ExplAttrInfos(#14,OPT)
    0x02009E5E, // #1247.ExplAttrInfos(#14,OPT)
    0x02009E7B, // #1244.Attributes(#1245,#1246,#1247)
    0x02009E9F, // #1243.Supertypes(#1244)
    0x02009EB7, // #1243.Composition(#1243,#1244,#661,#662)
    0x02009EE0, // #1249.Supertypes(#777)
    0x02009EF7, // #1249.Composition(#777,#778,#1249,#661,#662)
    0x02009F24, // #1250.ExplAttrInfos(#664,REQ)
    0x02009F42, // #1251.ExplAttrInfos(#89,REQ)
    0x02009F5F, // #1252.ExplAttrInfos(#90,REQ)
    0x02009F7C, // #1249.Attributes(#1250,#1251,#1252)
    0x02009FA0, // #1248.ExplAttrInfos(#1249,REQ)
    0x02009FBF, // #1243.Attributes(#1248)
    0x02009FD7, // #1242.ExplAttrInfos(#1253,REQ)
    0x02009FF6, // #1240.Attributes(#1241,#1242)
    0x0200A014, // #1255.Supertypes(#1244)
    0x0200A02C, // #1255.Composition(#1244,#1255,#661,#662)
    0x0200A055, // #1256.ExplAttrInfos(#56,REQ)
    0x0200A072, // #1257.ExplAttrInfos(#90,REQ)
    0x0200A08F, // #1258.ExplAttrInfos(#56,REQ)
    0x0200A0AC, // #1259.ExplAttrInfos(#83,REQ)
    0x0200A0C9, // #1255.Attributes(#1256,#1257,#1258,#1259)
    0x0200A0F3, // #1254.Supertypes(#1255)
    0x0200A10B, // #1254.Composition(#1244,#1254,#1255,#661,#662)
    0x0200A13A, // #1260.ExplAttrInfos(#90,REQ)
    0x0200A157, // #1261.ExplAttrInfos(#13,REQ)
    0x0200A174, // #1254.Attributes(#1260,#1261)
    0x0200A192, // #1262.Supertypes(#1255)
    0x0200A1AA, // #1262.Composition(#1244,#1262,#1255,#661,#662)
    0x0200A1D9, // #1263.Supertypes(#1255)
    0x0200A1F1, // #1263.Composition(#1244,#1263,#1255,#661,#662)
    0x0200A220, // #1264.ExplAttrInfos(#90,REQ)
    0x0200A23D, // #1265.ExplAttrInfos(#13,REQ)
    0x0200A25A, // #1263.Attributes(#1264,#1265)
    0x0200A278, // #1266.Supertypes(#661)
    0x0200A28F, // #1266.Composition(#1266,#661,#662)
    0x0200A2B2, // #1267.ExplAttrInfos(#1268,REQ)
    0x0200A2D1, // #1266.Attributes(#1267)
    0x0200A2E9, // #1269.Supertypes(#777)
    0x0200A300, // #1269.Composition(#1269,#777,#778,#661,#662)
    0x0200A32D, // #1270.ExplAttrInfos(#1240,REQ)
    0x0200A34C, // #1271.ExplAttrInfos(#1266,OPT)
    0x0200A36B, // #1272.ExplAttrInfos(#14,OPT)
    0x0200A388, // #1269.Attributes(#1270,#1271,#1272)
    0x0200A3AC, // #1273.Supertypes(#1068)
    0x0200A3C4, // #1273.Composition(#1273,#1043,#806,#1068,#98)
    0x0200A3F2, // #1274.Supertypes(#661)
    0x0200A409, // #1274.Composition(#1274,#661,#662)
    0x0200A42C, // #1275.ExplAttrInfos(#778,REQ)
    0x0200A44A, // #1276.ExplAttrInfos(#1277,OPT)
    0x0200A469, // #1274.Attributes(#1275,#1276)
    0x0200A487, // #1279.Composition(#1279)
    0x0200A4A0, // #1280.ExplAttrInfos(#14,OPT)
    0x0200A4BD, // #1281.ExplAttrInfos(#122,OPT)
    0x0200A4DB, // #1279.Attributes(#1280,#1281)
    0x0200A4F9, // #1278.Supertypes(#1279)
    0x0200A511, // #1278.Composition(#1278,#1279)
    0x0200A530, // #1282.ExplAttrInfos(#1080,REQ)
    0x0200A54F, // #1283.ExplAttrInfos(#1284,REQ)
    0x0200A56E, // #1278.Attributes(#1282,#1283)
    0x0200A58C, // #1285.Supertypes(#1106)
    0x0200A5A4, // #1285.Composition(#1285,#1106)
    0x0200A5C3, // #1286.ExplAttrInfos(#778,REQ)
    0x00021942, // #1285.Attributes(#1286)
    0x0200A5E1, // #1287.Supertypes(#1106)
    0x0200A5F9, // #1287.Composition(#1287,#1106)
    0x0200A618, // #1288.ExplAttrInfos(#777,REQ)
    0x000219D0, // #1287.Attributes(#1288)
    0x0200A636, // #1289.Supertypes(#1285)
    0x0200A64E, // #1289.Composition(#1285,#1289,#1106)
    0x0200A673, // #1290.ExplAttrInfos(#1291,REQ)
    0x0200A692, // #1289.Attributes(#1290)
    0x0200A6AA, // #1293.Supertypes(#1043)
    0x0200A6C2, // #1293.Composition(#1293,#1043,#806,#98)
    0x0200A6EA, // #1292.Supertypes(#1293)
    0x0200A702, // #1292.Composition(#1292,#1293,#1043,#806,#98)
    0x0200A730, // #1294.ExplAttrInfos(#48,OPT)
    0x0200A74D, // #1296.Supertypes(#991)
    0x0200A764, // #1296.Composition(#991,#1296)
    0x00021AE6, // #1295.ExplAttrInfos(#1296,OPT)
    0x0200A782, // #1297.ExplAttrInfos(#1296,OPT)
    0x0200A7A1, // #1298.ExplAttrInfos(#1296,OPT)
    0x0200A7C0, // #1299.ExplAttrInfos(#615,OPT)
    0x0200A7DE, // #1300.ExplAttrInfos(#615,OPT)
    0x0200A7FC, // #1301.ExplAttrInfos(#105,OPT)
    0x0200A81A, // #1302.ExplAttrInfos(#24,OPT)
    0x0200A837, // #1303.ExplAttrInfos(#1296,OPT)
    0x0200A856, // #1292.Attributes(#1294,#1295,#1297,#1298,#1299,#1300,#1301,#1302,#1303)
    0x0200A89E, // #1305.Supertypes(#1106)
    0x0200A8B6, // #1305.Composition(#1305,#1106)
    0x0200A8D5, // #1306.ExplAttrInfos(#659,OPT)
    0x0200A8F3, // #1305.Attributes(#1306)
    0x0200A90B, // #1304.Supertypes(#1305)
    0x0200A923, // #1304.Composition(#1304,#1305,#1106)
    0x0200A948, // #1307.ExplAttrInfos(#90,REQ)
    0x0200A965, // #1308.ExplAttrInfos(#90,REQ)
    0x0200A982, // #1309.ExplAttrInfos(#90,REQ)
    0x0200A99F, // #1310.ExplAttrInfos(#90,REQ)
    0x0200A9BC, // #1311.ExplAttrInfos(#82,OPT)
    0x0200A9D9, // #1312.ExplAttrInfos(#90,REQ)
    0x0200A9F6, // #1313.ExplAttrInfos(#90,OPT)
    0x0200AA13, // #1314.ExplAttrInfos(#82,OPT)
    0x0200AA30, // #1315.ExplAttrInfos(#82,OPT)
    0x0200AA4D, // #1316.ExplAttrInfos(#89,OPT)
    0x0200AA6A, // #1317.ExplAttrInfos(#82,OPT)
    0x0200AA87, // #1318.ExplAttrInfos(#89,OPT)
    0x0200AAA4, // #1304.Attributes(#1307,#1308,#1309,#1310,#1311,#1312,#1313,#1314,#1315,#1316,#1317,#1318)
    0x0200AAFE, // #1319.Supertypes(#1212)
    0x0200AB16, // #1319.Composition(#1319,#1196,#1213,#1163,#1212,#1043,#806,#1068,#98)
    0x0200AB5C, // #1320.ExplAttrInfos(#229,OPT)
    0x0200AB7A, // #1319.Attributes(#1320)
    0x0200AB92, // #1321.Supertypes(#1223)
    0x0200ABAA, // #1321.Composition(#1321,#1200,#1220,#1201,#1223,#806,#98,#1048,#1072)
    0x0200ABF0, // #1322.ExplAttrInfos(#229,REQ)
    0x0200AC0E, // #1321.Attributes(#1322)
    0x0200AC26, // #1323.Supertypes(#660)
    0x0200AC3D, // #1323.Composition(#1323,#661,#660,#662)
    0x0200AC65, // #1324.ExplAttrInfos(#669,OPT)
    0x0200AC83, // #1323.Attributes(#1324)
    0x0200AC9B, // #1325.Supertypes(#777)
    0x0200ACB2, // #1325.Composition(#777,#1325,#778,#661,#662)
    0x0200ACDF, // #1326.ExplAttrInfos(#6,REQ)
    0x0200ACFB, // #1327.ExplAttrInfos(#1328,REQ)
    0x0200AD1A, // #1329.ExplAttrInfos(#231,REQ)
    0x0200AD38, // #1330.ExplAttrInfos(#63,REQ)
    0x0200AD55, // #1331.ExplAttrInfos(#63,REQ)
    0x0200AD72, // #1325.Attributes(#1326,#1327,#1329,#1330,#1331)
    0x0200ADA2, // #1332.Supertypes(#1325)
    0x0200ADBA, // #1332.Composition(#777,#1325,#1332,#778,#661,#662)
    0x010133C5, // #1333.ExplAttrInfos(#1334,REQ)
    0x010133E4, // #1335.ExplAttrInfos(#1336,REQ)
    0x0200ADED, // #1337.ExplAttrInfos(#407,REQ)
    0x0200AE0B, // #1332.Attributes(#1333,#1335,#1337)
    0x0200AE2F, // #1339.Supertypes(#686)
    0x0200AE46, // #1339.Composition(#1339,#661,#662,#686)
    0x0200AE6E, // #1338.Supertypes(#1339)
    0x0200AE86, // #1338.Composition(#1339,#1338,#661,#662,#686)
    0x0200AEB4, // #1340.ExplAttrInfos(#6,REQ)
    0x0200AED0, // #1341.ExplAttrInfos(#6,REQ)
    0x0200AEEC, // #1342.ExplAttrInfos(#1344,REQ)
    0x0200AF0B, // #1345.ExplAttrInfos(#233,REQ)
    0x0200AF29, // #1346.ExplAttrInfos(#63,REQ)
    0x0200AF46, // #1347.ExplAttrInfos(#63,REQ)
    0x0200AF63, // #1348.ExplAttrInfos(#63,REQ)
    0x0200AF80, // #1338.Attributes(#1340,#1341,#1342,#1345,#1346,#1347,#1348)
    0x0200AFBC, // #1349.Supertypes(#1338)
    0x0200AFD4, // #1349.Composition(#1339,#1338,#1349,#661,#662,#686)
    0x0200B008, // #1350.ExplAttrInfos(#1351,REQ)
    0x0200B027, // #1352.ExplAttrInfos(#1353,REQ)
    0x0200B046, // #1354.ExplAttrInfos(#1355,REQ)
    0x0200B065, // #1356.ExplAttrInfos(#1357,REQ)
    0x0200B084, // #1358.ExplAttrInfos(#407,REQ)
    0x0200B0A2, // #1349.Attributes(#1350,#1352,#1354,#1356,#1358)
    0x0200B0D2, // #1360.Supertypes(#1163)
    0x0200B0EA, // #1360.Composition(#1360,#1163,#1043,#806,#1068,#98)
    0x0200B11E, // #1359.Supertypes(#1360)
    0x0200B136, // #1359.Composition(#1359,#1360,#1163,#1043,#806,#1068,#98)
    0x0200B170, // #1361.ExplAttrInfos(#235,OPT)
    0x0200B18E, // #1359.Attributes(#1361)
    0x0200B1A6, // #1362.Supertypes(#1359)
    0x0200B1BE, // #1362.Composition(#1359,#1362,#1360,#1163,#1043,#806,#1068,#98)
    0x0200B1FE, // #1364.Supertypes(#1201)
    0x0200B216, // #1364.Composition(#1364,#1201,#806,#98,#1048,#1072)
    0x0200B24A, // #1363.Supertypes(#1364)
    0x0200B262, // #1363.Composition(#1363,#1364,#1201,#806,#98,#1048,#1072)
    0x0200B29C, // #1365.ExplAttrInfos(#235,REQ)
    0x0200B2BA, // #1363.Attributes(#1365)
    0x0200B2D2, // #1366.Supertypes(#886)
    0x0200B2E9, // #1366.Composition(#1366,#729,#886)
    0x0200B30C, // #1367.ExplAttrInfos(#48,REQ)
    0x0200B329, // #1368.ExplAttrInfos(#12,REQ)
    0x0200B346, // #1366.Attributes(#1367,#1368)
    0x0200B364, // #1369.Supertypes(#682)
    0x0200B37B, // #1369.Composition(#1369,#682,#661,#662)
    0x0200B3A3, // #1370.ExplAttrInfos(#90,REQ)
    0x0200B3C0, // #1371.ExplAttrInfos(#90,REQ)
    0x0200B3DD, // #1372.ExplAttrInfos(#90,REQ)
    0x0200B3FA, // #1369.Attributes(#1370,#1371,#1372)
    0x0200B41E, // #1373.Supertypes(#1226)
    0x0200B436, // #1373.Composition(#1373,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)
    0x0200B47C, // #1374.ExplAttrInfos(#239,OPT)
    0x0200B49A, // #1373.Attributes(#1374)
    0x0200B4B2, // #1375.Supertypes(#1229)
    0x0200B4CA, // #1375.Composition(#1375,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)
    0x0200B510, // #1376.ExplAttrInfos(#239,REQ)
    0x0200B52E, // #1375.Attributes(#1376)
    0x0200B546, // #1377.Supertypes(#679)
    0x0200B55D, // #1377.Composition(#1377,#679,#661,#662)
    0x0200B585, // #1378.Composition(#1378)
    0x0200B59E, // #1379.ExplAttrInfos(#14,OPT)
    0x0200B5BB, // #1378.Attributes(#1379)
    0x0200B5D3, // #1380.Supertypes(#775)
    0x0200B5EA, // #1380.Composition(#1380,#777,#776,#775,#778,#661,#662)
    0x0200B621, // #1381.Supertypes(#1378)
    0x0200B639, // #1381.Composition(#1378,#1381)
    0x0200B658, // #1382.ExplAttrInfos(#1035,OPT)
    0x0200B677, // #1383.ExplAttrInfos(#1035,OPT)
    0x0200B696, // #1384.ExplAttrInfos(#1035,OPT)
    0x0200B6B5, // #1385.ExplAttrInfos(#1031,OPT)
    0x0200B6D4, // #1386.ExplAttrInfos(#1031,OPT)
    0x0200B6F3, // #1387.ExplAttrInfos(#1031,OPT)
    0x0200B712, // #1381.Attributes(#1382,#1383,#1384,#1385,#1386,#1387)
    0x0200B748, // #1388.Supertypes(#1378)
    0x0200B760, // #1388.Composition(#1378,#1388)
    0x0200B77F, // #1389.ExplAttrInfos(#1033,OPT)
    0x0200B79E, // #1390.ExplAttrInfos(#1033,OPT)
    0x0200B7BD, // #1391.ExplAttrInfos(#1033,OPT)
    0x0200B7DC, // #1388.Attributes(#1389,#1390,#1391)
    0x0200B800, // #1392.Supertypes(#1378)
    0x0200B818, // #1392.Composition(#1378,#1392)
    0x0200B837, // #1393.ExplAttrInfos(#1179,OPT)
    0x0200B856, // #1394.ExplAttrInfos(#1179,OPT)
    0x0200B875, // #1395.ExplAttrInfos(#1179,OPT)
    0x0200B894, // #1396.ExplAttrInfos(#1130,OPT)
    0x0200B8B3, // #1397.ExplAttrInfos(#1130,OPT)
    0x0200B8D2, // #1398.ExplAttrInfos(#1130,OPT)
    0x0200B8F1, // #1392.Attributes(#1393,#1394,#1395,#1396,#1397,#1398)
    0x0200B927, // #1399.Supertypes(#1392)
    0x0200B93F, // #1399.Composition(#1378,#1392,#1399)
    0x0200B964, // #1400.ExplAttrInfos(#1185,OPT)
    0x0200B983, // #1399.Attributes(#1400)
    0x0200B99B, // #1401.Supertypes(#661)
    0x0200B9B2, // #1401.Composition(#1401,#661,#662)
    0x0200B9D5, // #1402.ExplAttrInfos(#664,REQ)
    0x0200B9F3, // #1403.ExplAttrInfos(#90,REQ)
    0x0200BA10, // #1404.ExplAttrInfos(#90,REQ)
    0x0200BA2D, // #1405.ExplAttrInfos(#90,REQ)
    0x0200BA4A, // #1401.Attributes(#1402,#1403,#1404,#1405)
    0x0200BA74, // #1406.Supertypes(#684)
    0x0200BA8B, // #1406.Composition(#1406,#661,#684,#662)
    0x0200BAB3, // #1407.ExplAttrInfos(#1401,REQ)
    0x0200BAD2, // #1406.Attributes(#1407)
    0x0200BAEA, // #1408.Supertypes(#1155)
    0x0200BB02, // #1408.Composition(#1408,#1043,#806,#1068,#98,#1151,#1155)
    0x0200BB3C, // #1409.ExplAttrInfos(#56,OPT)
    0x0200BB59, // #1410.ExplAttrInfos(#56,OPT)
    0x0200BB76, // #1412.Supertypes(#125)
    0x0200BB8D, // #1412.Composition(#125,#1412)
    0x0200BBAB, // #1413.ExplAttrInfos(#14,OPT)
    0x0200BBC8, // #1414.ExplAttrInfos(#1415,OPT)
    0x0200BBE7, // #1416.ExplAttrInfos(#14,OPT)
    0x0200BC04, // #1417.ExplAttrInfos(#14,OPT)
    0x0200BC21, // #1418.ExplAttrInfos(#14,OPT)
    0x0200BC3E, // #1419.ExplAttrInfos(#14,OPT)
    0x0200BC5B, // #1420.ExplAttrInfos(#14,OPT)
    0x0200BC78, // #1412.Attributes(#1413,#1414,#1416,#1417,#1418,#1419,#1420)
    0x0200BCB4, // #1411.ExplAttrInfos(#1412,OPT)
    0x0200BCD3, // #1408.Attributes(#1409,#1410,#1411)
    0x0200BCF7, // #1422.Supertypes(#1163)
    0x0200BD0F, // #1422.Composition(#1163,#1422,#1043,#806,#1068,#98)
    0x0200BD43, // #1421.Supertypes(#1422)
    0x0200BD5B, // #1421.Composition(#1421,#1163,#1422,#1043,#806,#1068,#98)
    0x0200BD95, // #1423.ExplAttrInfos(#243,OPT)
    0x0200BDB3, // #1421.Attributes(#1423)
    0x0200BDCB, // #1425.Supertypes(#1201)
    0x0200BDE3, // #1425.Composition(#1425,#1201,#806,#98,#1048,#1072)
    0x0200BE17, // #1424.Supertypes(#1425)
    0x0200BE2F, // #1424.Composition(#1424,#1425,#1201,#806,#98,#1048,#1072)
    0x0200BE69, // #1426.ExplAttrInfos(#243,REQ)
    0x0200BE87, // #1424.Attributes(#1426)
    0x0200BE9F, // #1427.Supertypes(#1360)
    0x0200BEB7, // #1427.Composition(#1360,#1427,#1163,#1043,#806,#1068,#98)
    0x0200BEF1, // #1428.ExplAttrInfos(#245,OPT)
    0x0002344C, // #1427.Attributes(#1428)
    0x0200BF0F, // #1429.Supertypes(#1364)
    0x0200BF27, // #1429.Composition(#1429,#1364,#1201,#806,#98,#1048,#1072)
    0x0200BF61, // #1430.ExplAttrInfos(#245,REQ)
    0x000234DC, // #1429.Attributes(#1430)
    0x0200BF7F, // #1431.Supertypes(#1155)
    0x0200BF97, // #1431.Composition(#1431,#1043,#806,#1068,#98,#1151,#1155)
    0x0200BFD1, // #1432.ExplAttrInfos(#56,OPT)
    0x0200BFEE, // #1431.Attributes(#1432)
    0x0200C006, // #1434.Supertypes(#1293)
    0x0200C01E, // #1434.Composition(#1293,#1043,#806,#98,#1434)
    0x010147BA, // #1433.Supertypes(#1434)
    0x0200C04C, // #1433.Composition(#1433,#1293,#1043,#806,#98,#1434)
    0x0200C080, // #1435.ExplAttrInfos(#247,OPT)
    0x0200C09E, // #1436.ExplAttrInfos(#14,OPT)
    0x0200C0BB, // #1433.Attributes(#1435,#1436)
    0x0200C0D9, // #1437.Supertypes(#1226)
    0x0200C0F1, // #1437.Composition(#1437,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)
    0x0200C137, // #1438.ExplAttrInfos(#249,OPT)
    0x0200C155, // #1437.Attributes(#1438)
    0x0200C16D, // #1439.Supertypes(#1229)
    0x0200C185, // #1439.Composition(#1439,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)
    0x0200C1CB, // #1440.ExplAttrInfos(#249,REQ)
    0x0200C1E9, // #1439.Attributes(#1440)
    0x0200C201, // #1441.Supertypes(#1305)
    0x0200C219, // #1441.Composition(#1441,#1305,#1106)
    0x0200C23E, // #1442.ExplAttrInfos(#90,REQ)
    0x0200C25B, // #1443.ExplAttrInfos(#90,REQ)
    0x0200C278, // #1444.ExplAttrInfos(#90,REQ)
    0x0200C295, // #1445.ExplAttrInfos(#90,REQ)
    0x0200C2B2, // #1446.ExplAttrInfos(#82,OPT)
    0x0200C2CF, // #1441.Attributes(#1442,#1443,#1444,#1445,#1446)
    0x0200C2FF, // #1448.Supertypes(#1213)
    0x0200C317, // #1448.Composition(#1196,#1213,#1163,#1448,#1043,#806,#1068,#98)
    0x0200C357, // #1447.Supertypes(#1448)
    0x0200C36F, // #1447.Composition(#1447,#1196,#1213,#1163,#1448,#1043,#806,#1068,#98)
    0x0200C3B5, // #1449.ExplAttrInfos(#251,OPT)
    0x0200C3D3, // #1447.Attributes(#1449)
    0x0200C3EB, // #1451.Supertypes(#1220)
    0x0200C403, // #1451.Composition(#1200,#1220,#1201,#1451,#806,#98,#1048,#1072)
    0x0200C443, // #1450.Supertypes(#1451)
    0x0200C45B, // #1450.Composition(#1450,#1200,#1220,#1201,#1451,#806,#98,#1048,#1072)
    0x0200C4A1, // #1452.ExplAttrInfos(#251,REQ)
    0x0200C4BF, // #1450.Attributes(#1452)
    0x0200C4D7, // #1454.Supertypes(#1213)
    0x0200C4EF, // #1454.Composition(#1196,#1213,#1163,#1454,#1043,#806,#1068,#98)
    0x0200C52F, // #1453.Supertypes(#1454)
    0x0200C547, // #1453.Composition(#1453,#1196,#1213,#1163,#1454,#1043,#806,#1068,#98)
    0x0200C58D, // #1455.ExplAttrInfos(#253,OPT)
    0x0200C5AB, // #1453.Attributes(#1455)
    0x0200C5C3, // #1457.Supertypes(#1220)
    0x0200C5DB, // #1457.Composition(#1200,#1220,#1201,#1457,#806,#98,#1048,#1072)
    0x0200C61B, // #1456.Supertypes(#1457)
    0x0200C633, // #1456.Composition(#1456,#1200,#1220,#1201,#1457,#806,#98,#1048,#1072)
    0x0200C679, // #1458.ExplAttrInfos(#253,REQ)
    0x0200C697, // #1456.Attributes(#1458)
    0x0200C6AF, // #1459.Supertypes(#1448)
    0x0200C6C7, // #1459.Composition(#1459,#1196,#1213,#1163,#1448,#1043,#806,#1068,#98)
    0x0200C70D, // #1460.ExplAttrInfos(#255,OPT)
    0x0200C72B, // #1459.Attributes(#1460)
    0x0200C743, // #1461.Supertypes(#1451)
    0x0200C75B, // #1461.Composition(#1461,#1200,#1220,#1201,#1451,#806,#98,#1048,#1072)
    0x0200C7A1, // #1462.ExplAttrInfos(#255,REQ)
    0x0200C7BF, // #1461.Attributes(#1462)
    0x0200C7D7, // #1463.Supertypes(#1454)
    0x0200C7EF, // #1463.Composition(#1463,#1196,#1213,#1163,#1454,#1043,#806,#1068,#98)
    0x0200C835, // #1464.ExplAttrInfos(#257,OPT)
    0x0200C853, // #1463.Attributes(#1464)
    0x0200C86B, // #1465.Supertypes(#1457)
    0x0200C883, // #1465.Composition(#1465,#1200,#1220,#1201,#1457,#806,#98,#1048,#1072)
    0x0200C8C9, // #1466.ExplAttrInfos(#257,REQ)
    0x0200C8E7, // #1465.Attributes(#1466)
    0x0200C8FF, // #1467.Supertypes(#693)
    0x0200C916, // #1467.Composition(#693,#1467,#661,#662)
    0x0200C93E, // #1468.ExplAttrInfos(#1470,REQ)
    0x0200C95D, // #1471.ExplAttrInfos(#1472,OPT)
    0x0200C97C, // #1467.Attributes(#1468,#1471)
    0x0200C99A, // #1473.Supertypes(#891)
    0x0200C9B1, // #1473.Composition(#892,#891,#1473,#661,#662)
    0x0200C9DE, // #1474.ExplAttrInfos(#165,OPT)
    0x0101510E, // #1473.Attributes(#1474)
    0x0200C9FC, // #1475.Supertypes(#892)
    0x0200CA13, // #1475.Composition(#892,#1475,#661,#662)
    0x0200CA3B, // #1476.ExplAttrInfos(#669,OPT)
    0x01015196, // #1475.Attributes(#1476)
    0x0200CA59, // #1477.Supertypes(#1475)
    0x0200CA71, // #1477.Composition(#892,#1475,#1477,#661,#662)
    0x0200CA9F, // #1478.ExplAttrInfos(#165,OPT)
    0x0200CABD, // #1479.ExplAttrInfos(#165,OPT)
    0x0200CADB, // #1477.Attributes(#1478,#1479)
    0x0200CAF9, // #1480.Supertypes(#1287)
    0x0200CB11, // #1480.Composition(#1287,#1480,#1106)
    0x0200CB36, // #1481.ExplAttrInfos(#90,REQ)
    0x01015293, // #1480.Attributes(#1481)
    0x0200CB53, // #1482.Supertypes(#1226)
    0x0200CB6B, // #1482.Composition(#1482,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)
    0x0200CBB1, // #1483.ExplAttrInfos(#259,OPT)
    0x0200CBCF, // #1482.Attributes(#1483)
    0x0200CBE7, // #1484.Supertypes(#1229)
    0x0200CBFF, // #1484.Composition(#1484,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)
    0x0200CC45, // #1485.ExplAttrInfos(#259,REQ)
    0x01015380, // #1484.Attributes(#1485)
    0x0200CC63, // #1486.Supertypes(#1360)
    0x0200CC7B, // #1486.Composition(#1360,#1486,#1163,#1043,#806,#1068,#98)
    0x0200CCB5, // #1487.ExplAttrInfos(#261,OPT)
    0x0200CCD3, // #1486.Attributes(#1487)
    0x0200CCEB, // #1488.Supertypes(#1364)
    0x0200CD03, // #1488.Composition(#1364,#1488,#1201,#806,#98,#1048,#1072)
    0x0200CD3D, // #1489.ExplAttrInfos(#261,REQ)
    0x0200CD5B, // #1488.Attributes(#1489)
    0x0200CD73, // #1.Entities(#1186,#1192,#116,#1194,#1198,#125,#1204,#1207,#1210,#1211,#1215,#1218,#1222,#1225,#1228,#1231,#1233,#1235,#1240,#1243,#1244,#1254,#1262,#1263,#1266,#1255,#1269,#1273,#1274,#144,#991,#1080,#1278,#1285,#1287,#1289,#1292,#1304,#1319,#1321,#1323,#659,#672,#1325,#1332,#1338,#1349,#1359,#1362,#1363,#1366,#1369,#1373,#1375,#1377,#679,#1378,#1380,#1381,#1388,#1392,#1399,#777,#1339,#1401,#1406,#1408,#1360,#1421,#1424,#1427,#1429,#1364,#1431,#1433,#1437,#1439,#1441,#1447,#1450,#1453,#1456,#1459,#1461,#1463,#1465,#664,#693,#1467,#692,#892,#891,#1473,#1475,#1477,#1480,#1482,#1484,#1486,#1488)
    0x0200CFCB, // #1491.Supertypes(#778)
    0x0200CFE2, // #1491.Composition(#1491,#778,#661,#662)
    0x0200D00A, // #1492.ExplAttrInfos(#676,REQ)
    0x010155B8, // #1491.Attributes(#1492)
    0x0200D028, // #1490.Supertypes(#1491)
    0x0200D040, // #1490.Composition(#1490,#1491,#778,#661,#662)
    0x0200D06E, // #1493.ExplAttrInfos(#90,REQ)
    0x0200D08B, // #1490.Attributes(#1493)
    0x0200D0A3, // #1495.Supertypes(#1305)
    0x0200D0BB, // #1495.Composition(#1495,#1305,#1106)
    0x0200D0E0, // #1496.ExplAttrInfos(#90,REQ)
    0x000245BE, // #1495.Attributes(#1496)
    0x0200D0FD, // #1494.Supertypes(#1495)
    0x0200D115, // #1494.Composition(#1494,#1495,#1305,#1106)
    0x0200D140, // #1497.ExplAttrInfos(#90,REQ)
    0x0200D15D, // #1494.Attributes(#1497)
    0x0200D175, // #1498.Supertypes(#1249)
    0x0200D18D, // #1498.Composition(#777,#1498,#778,#1249,#661,#662)
    0x0200D1C0, // #1499.ExplAttrInfos(#90,REQ)
    0x0200D1DD, // #1500.ExplAttrInfos(#13,REQ)
    0x0200D1FA, // #1498.Attributes(#1499,#1500)
    0x0200D218, // #1501.Supertypes(#1163)
    0x0200D230, // #1501.Composition(#1501,#1163,#1043,#806,#1068,#98)
    0x0200D264, // #1502.Supertypes(#1201)
    0x0200D27C, // #1502.Composition(#1502,#1201,#806,#98,#1048,#1072)
    0x0200D2B0, // #1503.Supertypes(#1226)
    0x0200D2C8, // #1503.Composition(#1503,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)
    0x0200D30E, // #1504.ExplAttrInfos(#263,OPT)
    0x0200D32C, // #1503.Attributes(#1504)
    0x0200D344, // #1505.Supertypes(#1229)
    0x0200D35C, // #1505.Composition(#1505,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)
    0x0200D3A2, // #1506.ExplAttrInfos(#263,REQ)
    0x0200D3C0, // #1505.Attributes(#1506)
    0x0200D3D8, // #1507.Supertypes(#729)
    0x0200D3EF, // #1507.Composition(#1507,#729)
    0x0200D40D, // #1508.ExplAttrInfos(#1510,REQ)
    0x0200D42C, // #1507.Attributes(#1508)
    0x0200D444, // #1511.Supertypes(#1360)
    0x0200D45C, // #1511.Composition(#1360,#1511,#1163,#1043,#806,#1068,#98)
    0x0200D496, // #1512.ExplAttrInfos(#265,OPT)
    0x0200D4B4, // #1511.Attributes(#1512)
    0x0200D4CC, // #1513.Supertypes(#1511)
    0x0200D4E4, // #1513.Composition(#1360,#1511,#1513,#1163,#1043,#806,#1068,#98)
    0x0200D524, // #1514.Supertypes(#1364)
    0x0200D53C, // #1514.Composition(#1364,#1514,#1201,#806,#98,#1048,#1072)
    0x0200D576, // #1515.ExplAttrInfos(#265,REQ)
    0x0002493C, // #1514.Attributes(#1515)
    0x0200D594, // #1516.Supertypes(#1212)
    0x0200D5AC, // #1516.Composition(#1516,#1196,#1213,#1163,#1212,#1043,#806,#1068,#98)
    0x0200D5F2, // #1517.ExplAttrInfos(#267,OPT)
    0x000249FF, // #1516.Attributes(#1517)
    0x0200D610, // #1518.Supertypes(#1223)
    0x0200D628, // #1518.Composition(#1518,#1200,#1220,#1201,#1223,#806,#98,#1048,#1072)
    0x0200D66E, // #1519.ExplAttrInfos(#267,REQ)
    0x0200D68C, // #1518.Attributes(#1519)
    0x0200D6A4, // #1521.Supertypes(#1109)
    0x0200D6BC, // #1521.Composition(#1521,#1109)
    0x0200D6DB, // #1522.ExplAttrInfos(#48,REQ)
    0x0200D6F8, // #1523.ExplAttrInfos(#122,OPT)
    0x0200D716, // #1521.Attributes(#1522,#1523)
    0x0200D734, // #1520.Supertypes(#1521)
    0x0200D74C, // #1520.Composition(#1520,#1521,#1109)
    0x0200D771, // #1524.ExplAttrInfos(#48,REQ)
    0x0200D78E, // #1525.ExplAttrInfos(#1526,REQ)
    0x0200D7AD, // #1520.Attributes(#1524,#1525)
    0x0200D7CB, // #1529.Supertypes(#97)
    0x0200D7E1, // #1529.Composition(#97,#1529,#98)
    0x0200D802, // #1528.Supertypes(#1529)
    0x0200D81A, // #1528.Composition(#97,#1528,#1529,#98)
    0x01015EBC, // #1527.Supertypes(#1528)
    0x0200D841, // #1527.Composition(#1527,#97,#1528,#1529,#98)
    0x0200D86E, // #1530.ExplAttrInfos(#14,OPT)
    0x0200D88B, // #1531.ExplAttrInfos(#269,OPT)
    0x0200D8A9, // #1532.ExplAttrInfos(#1533,OPT)
    0x0200D8C8, // #1527.Attributes(#1530,#1531,#1532)
    0x0200D8EC, // #1534.Supertypes(#1106)
    0x0200D904, // #1534.Composition(#1534,#1106)
    0x0200D923, // #1535.ExplAttrInfos(#1536,REQ)
    0x0200D942, // #1537.ExplAttrInfos(#14,OPT)
    0x0200D95F, // #1534.Attributes(#1535,#1537)
    0x0200D97D, // #1539.Supertypes(#1213)
    0x0200D995, // #1539.Composition(#1196,#1213,#1163,#1539,#1043,#806,#1068,#98)
    0x010161B5, // #1538.Supertypes(#1539)
    0x0200D9D5, // #1538.Composition(#1538,#1196,#1213,#1163,#1539,#1043,#806,#1068,#98)
    0x0200DA1B, // #1540.ExplAttrInfos(#271,OPT)
    0x0200DA39, // #1538.Attributes(#1540)
    0x0200DA51, // #1542.Supertypes(#1220)
    0x0200DA69, // #1542.Composition(#1200,#1220,#1201,#1542,#806,#98,#1048,#1072)
    0x0200DAA9, // #1541.Supertypes(#1542)
    0x0200DAC1, // #1541.Composition(#1541,#1200,#1220,#1201,#1542,#806,#98,#1048,#1072)
    0x0200DB07, // #1543.ExplAttrInfos(#271,REQ)
    0x0200DB25, // #1541.Attributes(#1543)
    0x0200DB3D, // #1544.Supertypes(#1226)
    0x0200DB55, // #1544.Composition(#1544,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)
    0x0200DB9B, // #1545.ExplAttrInfos(#273,OPT)
    0x0200DBB9, // #1544.Attributes(#1545)
    0x0200DBD1, // #1546.Supertypes(#1229)
    0x0200DBE9, // #1546.Composition(#1546,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)
    0x0200DC2F, // #1547.ExplAttrInfos(#273,REQ)
    0x0200DC4D, // #1546.Attributes(#1547)
    0x0200DC65, // #1549.Composition(#1549)
    0x0200DC7E, // #1548.Supertypes(#1549)
    0x0200DC96, // #1548.Composition(#1548,#1549)
    0x0200DCB5, // #1550.ExplAttrInfos(#805,REQ)
    0x0200DCD3, // #1551.ExplAttrInfos(#805,OPT)
    0x0200DCF1, // #1548.Attributes(#1550,#1551)
    0x0200DD0F, // #1553.Supertypes(#1549)
    0x0200DD27, // #1553.Composition(#1549,#1553)
    0x0200DD46, // #1554.ExplAttrInfos(#1041,REQ)
    0x0200DD65, // #1555.ExplAttrInfos(#1041,OPT)
    0x0200DD84, // #1553.Attributes(#1554,#1555)
    0x0200DDA2, // #1552.Supertypes(#1553)
    0x0200DDBA, // #1552.Composition(#1549,#1552,#1553)
    0x0200DDDF, // #1556.ExplAttrInfos(#56,OPT)
    0x0200DDFC, // #1557.ExplAttrInfos(#56,OPT)
    0x0200DE19, // #1558.ExplAttrInfos(#56,OPT)
    0x0200DE36, // #1552.Attributes(#1556,#1557,#1558)
    0x0200DE5A, // #1559.Supertypes(#1549)
    0x0200DE72, // #1559.Composition(#1549,#1559)
    0x0200DE91, // #1560.ExplAttrInfos(#1175,REQ)
    0x0200DEB0, // #1561.ExplAttrInfos(#1175,OPT)
    0x0200DECF, // #1559.Attributes(#1560,#1561)
    0x0200DEED, // #1562.Supertypes(#1549)
    0x0200DF05, // #1562.Composition(#1549,#1562)
    0x0200DF24, // #1563.ExplAttrInfos(#1148,REQ)
    0x0200DF43, // #1564.ExplAttrInfos(#1148,OPT)
    0x0200DF62, // #1562.Attributes(#1563,#1564)
    0x0200DF80, // #1566.Supertypes(#1120)
    0x0200DF98, // #1566.Composition(#1566,#1043,#806,#1120,#98)
    0x0200DFC6, // #1569.Composition(#1569)
    0x0200DFDF, // #1570.ExplAttrInfos(#14,OPT)
    0x0200DFFC, // #1571.ExplAttrInfos(#305,OPT)
    0x0200E01A, // #1572.ExplAttrInfos(#14,OPT)
    0x0200E037, // #1569.Attributes(#1570,#1571,#1572)
    0x0200E05B, // #1568.Supertypes(#1569)
    0x0200E073, // #1568.Composition(#1568,#1569)
    0x0200E092, // #1573.ExplAttrInfos(#31,OPT)
    0x0200E0AF, // #1574.ExplAttrInfos(#92,OPT)
    0x0200E0CC, // #1575.ExplAttrInfos(#25,OPT)
    0x0200E0E9, // #1576.ExplAttrInfos(#25,OPT)
    0x0200E106, // #1577.ExplAttrInfos(#14,OPT)
    0x0200E123, // #1578.ExplAttrInfos(#31,OPT)
    0x0200E140, // #1579.ExplAttrInfos(#13,OPT)
    0x0200E15D, // #1580.ExplAttrInfos(#25,OPT)
    0x0200E17A, // #1581.ExplAttrInfos(#31,OPT)
    0x0200E197, // #1582.ExplAttrInfos(#92,OPT)
    0x0200E1B4, // #1583.ExplAttrInfos(#25,OPT)
    0x0200E1D1, // #1584.ExplAttrInfos(#25,OPT)
    0x0200E1EE, // #1585.ExplAttrInfos(#31,OPT)
    0x0200E20B, // #1586.ExplAttrInfos(#92,OPT)
    0x0200E228, // #1587.ExplAttrInfos(#92,OPT)
    0x0200E245, // #1568.Attributes(#1573,#1574,#1575,#1576,#1577,#1578,#1579,#1580,#1581,#1582,#1583,#1584,#1585,#1586,#1587)
    0x0200E2B1, // #1567.ExplAttrInfos(#1568,OPT)
    0x0200E2D0, // #1588.ExplAttrInfos(#1589,OPT)
    0x0200E2EF, // #1590.ExplAttrInfos(#1103,OPT)
    0x0200E30E, // #1566.Attributes(#1567,#1588,#1590)
    0x0200E332, // #1565.Supertypes(#1566)
    0x0200E34A, // #1565.Composition(#1565,#1566,#1043,#806,#1120,#98)
    0x0200E37E, // #1591.ExplAttrInfos(#279,OPT)
    0x0200E39C, // #1565.Attributes(#1591)
    0x0200E3B4, // #1593.Supertypes(#1123)
    0x0200E3CC, // #1593.Composition(#1593,#806,#98,#1048,#1123)
    0x0200E3FA, // #1594.ExplAttrInfos(#1595,OPT)
    0x0200E419, // #1596.ExplAttrInfos(#1103,OPT)
    0x0200E438, // #1593.Attributes(#1594,#1596)
    0x000259E4, // #1592.Supertypes(#1593)
    0x0200E456, // #1592.Composition(#1592,#1593,#806,#98,#1048,#1123)
    0x0200E48A, // #1597.ExplAttrInfos(#279,REQ)
    0x0200E4A8, // #1592.Attributes(#1597)
    0x0200E4C0, // #1598.Supertypes(#1566)
    0x0200E4D8, // #1598.Composition(#1598,#1566,#1043,#806,#1120,#98)
    0x0200E50C, // #1599.ExplAttrInfos(#281,OPT)
    0x0200E52A, // #1598.Attributes(#1599)
    0x0200E542, // #1600.Supertypes(#1593)
    0x0200E55A, // #1600.Composition(#1600,#1593,#806,#98,#1048,#1123)
    0x0200E58E, // #1601.ExplAttrInfos(#281,REQ)
    0x0200E5AC, // #1600.Attributes(#1601)
    0x0200E5C4, // #1602.Supertypes(#1566)
    0x0200E5DC, // #1602.Composition(#1602,#1566,#1043,#806,#1120,#98)
    0x0200E610, // #1603.ExplAttrInfos(#283,OPT)
    0x01016CB7, // #1602.Attributes(#1603)
    0x0200E62E, // #1604.Supertypes(#1593)
    0x0200E646, // #1604.Composition(#1604,#1593,#806,#98,#1048,#1123)
    0x0200E67A, // #1605.ExplAttrInfos(#283,REQ)
    0x01016D45, // #1604.Attributes(#1605)
    0x0200E698, // #1606.Supertypes(#806)
    0x0200E6AF, // #1606.Composition(#1606,#806,#98)
    0x0200E6D1, // #1607.ExplAttrInfos(#14,OPT)
    0x0200E6EE, // #1608.ExplAttrInfos(#14,OPT)
    0x0200E70B, // #1609.ExplAttrInfos(#14,OPT)
    0x0200E728, // #1610.ExplAttrInfos(#1611,OPT)
    0x0200E747, // #1613.Composition(#1613)
    0x0200E760, // #1614.ExplAttrInfos(#1615,REQ)
    0x0200E77F, // #1613.Attributes(#1614)
    0x0200E797, // #1612.ExplAttrInfos(#1613,OPT)
    0x0200E7B6, // #1606.Attributes(#1607,#1608,#1609,#1610,#1612)
    0x0200E7E6, // #1616.Supertypes(#1195)
    0x0200E7FE, // #1616.Composition(#1616,#1195,#1196,#1163,#1043,#806,#1068,#98)
    0x0200E83E, // #1617.ExplAttrInfos(#285,OPT)
    0x0200E85C, // #1616.Attributes(#1617)
    0x0200E874, // #1618.Supertypes(#1199)
    0x0200E88C, // #1618.Composition(#1618,#1199,#1200,#1201,#806,#98,#1048,#1072)
    0x0200E8CC, // #1619.ExplAttrInfos(#285,REQ)
    0x0200E8EA, // #1618.Attributes(#1619)
    0x0200E902, // #1620.Supertypes(#1100)
    0x0200E91A, // #1620.Composition(#1100,#1620,#631)
    0x0200E93E, // #1621.ExplAttrInfos(#165,REQ)
    0x0200E95C, // #1620.Attributes(#1621)
    0x0200E974, // #1622.Supertypes(#1226)
    0x0200E98C, // #1622.Composition(#1622,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)
    0x0200E9D2, // #1623.ExplAttrInfos(#287,OPT)
    0x0200E9F0, // #1622.Attributes(#1623)
    0x0200EA08, // #1624.Supertypes(#1229)
    0x0200EA20, // #1624.Composition(#1624,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)
    0x0200EA66, // #1625.ExplAttrInfos(#287,REQ)
    0x0200EA84, // #1624.Attributes(#1625)
    0x0200EA9C, // #1626.Supertypes(#1226)
    0x0200EAB4, // #1626.Composition(#1626,#1196,#1213,#1163,#1226,#1043,#806,#1068,#98)
    0x0200EAFA, // #1627.ExplAttrInfos(#289,OPT)
    0x0200EB18, // #1626.Attributes(#1627)
    0x0200EB30, // #1628.Supertypes(#1229)
    0x0200EB48, // #1628.Composition(#1628,#1200,#1220,#1201,#1229,#806,#98,#1048,#1072)
    0x0200EB8E, // #1629.ExplAttrInfos(#289,REQ)
    0x0200EBAC, // #1628.Attributes(#1629)
    0x0200EBC4, // #1630.Composition(#1630)
    0x0200EBDD, // #1631.ExplAttrInfos(#756,REQ)
    0x0200EBFB, // #1632.ExplAttrInfos(#742,REQ)
    0x0200EC19, // #1630.Attributes(#1631,#1632)
    0x0200EC37, // #1633.Supertypes(#1187)
    0x0200EC4F, // #1633.Composition(#1187,#1633,#1043,#806,#98)
    0x0200EC7D, // #1634.ExplAttrInfos(#291,OPT)
    0x0200EC9B, // #1635.ExplAttrInfos(#1636,OPT)
    0x0200ECBA, // #1637.ExplAttrInfos(#1638,OPT)
    0x0200ECD9, // #1633.Attributes(#1634,#1635,#1637)
    0x0200ECFD, // #1639.Supertypes(#1187)
    0x0200ED15, // #1639.Composition(#1187,#1639,#1043,#806,#98)
    0x0200ED43, // #1640.ExplAttrInfos(#293,OPT)
    0x0200ED61, // #1641.ExplAttrInfos(#14,OPT)
    0x0200ED7E, // #1642.ExplAttrInfos(#25,OPT)
    0x0200ED9B, // #1643.ExplAttrInfos(#25,OPT)
    0x0200EDB8, // #1639.Attributes(#1640,#1641,#1642,#1643)
    0x0200EDE2, // #1644.Supertypes(#1360)
    0x0200EDFA, // #1644.Composition(#1360,#1644,#1163,#1043,#806,#1068,#98)
    0x0200EE34, // #1645.ExplAttrInfos(#295,OPT)
    0x0200EE52, // #1644.Attributes(#1645)
    0x0200EE6A, // #1646.Supertypes(#1364)
    0x0200EE82, // #1646.Composition(#1364,#1646,#1201,#806,#98,#1048,#1072)
    0x0200EEBC, // #1647.ExplAttrInfos(#295,REQ)
    0x01017631, // #1646.Attributes(#1647)
    0x0200EEDA, // #1648.Supertypes(#1566)
    0x0200EEF2, // #1648.Composition(#1566,#1648,#1043,#806,#1120,#98)
    0x0200EF26, // #1649.ExplAttrInfos(#297,OPT)
    0x010176B9, // #1648.Attributes(#1649)
    0x0200EF44, // #1650.Supertypes(#1593)
    0x0200EF5C, // #1650.Composition(#1593,#1650,#806,#98,#1048,#1123)
    0x0200EF90, // #1651.ExplAttrInfos(#297,REQ)
    0x00026377, // #1650.Attributes(#1651)
    0x0200EFAE, // #1652.Supertypes(#688)
    0x0200EFC5, // #1652.Composition(#1652,#661,#662,#688)
    0x0200EFED, // #1653.ExplAttrInfos(#758,REQ)
    0x0200F00B, // #1652.Attributes(#1653)
    0x0200F023, // #1654.Supertypes(#1279)
    0x0200F03B, // #1654.Composition(#1654,#1279)
    0x0200F05A, // #1655.ExplAttrInfos(#646,REQ)
    0x0200F078, // #1656.ExplAttrInfos(#646,REQ)
    0x0200F096, // #1657.ExplAttrInfos(#92,REQ)
    0x0200F0B3, // #1658.ExplAttrInfos(#25,OPT)
    0x0200F0D0, // #1659.ExplAttrInfos(#955,OPT)
    0x0200F0EE, // #1654.Attributes(#1655,#1656,#1657,#1658,#1659)
    0x0200F11E, // #1660.Supertypes(#1360)
    0x0200F136, // #1660.Composition(#1360,#1660,#1163,#1043,#806,#1068,#98)
    0x0200F170, // #1661.ExplAttrInfos(#299,OPT)
    0x0200F18E, // #1660.Attributes(#1661)
    0x0200F1A6, // #1662.Supertypes(#1364)
    0x0200F1BE, // #1662.Composition(#1364,#1662,#1201,#806,#98,#1048,#1072)
    0x0200F1F8, // #1663.ExplAttrInfos(#299,REQ)
    0x0200F216, // #1662.Attributes(#1663)
    0x0200F22E, // #1664.Supertypes(#1339)
    0x0200F246, // #1664.Composition(#1339,#1664,#661,#662,#686)
    0x0200F274, // #1667.Supertypes(#686)
    0x0200F28B, // #1667.Composition(#1667,#661,#662,#686)
    0x0200F2B3, // #1668.ExplAttrInfos(#672,REQ)
    0x01017AA1, // #1667.Attributes(#1668)
    0x0200F2D1, // #1666.Supertypes(#1667)
    0x0200F2E9, // #1666.Composition(#1667,#661,#1666,#662,#686)
    0x0200F317, // #1665.ExplAttrInfos(#1666,REQ)
    0x0200F336, // #1669.ExplAttrInfos(#778,REQ)
    0x0200F354, // #1670.ExplAttrInfos(#1671,REQ)
    0x0200F373, // #1664.Attributes(#1665,#1669,#1670)
    0x0200F397, // #1672.Supertypes(#1339)
    0x0200F3AF, // #1672.Composition(#1339,#1672,#661,#662,#686)
    0x0200F3DD, // #1673.ExplAttrInfos(#686,REQ)
    0x0200F3FB, // #1674.ExplAttrInfos(#1675,REQ)
    0x0200F41A, // #1676.ExplAttrInfos(#13,REQ)
    0x0200F437, // #1672.Attributes(#1673,#1674,#1676)
    0x0200F45B, // #1677.Supertypes(#1667)
    0x0200F473, // #1677.Composition(#1677,#1667,#661,#662,#686)
    0x0200F4A1, // #1678.ExplAttrInfos(#90,REQ)
    0x01017CF4, // #1677.Attributes(#1678)
    0x0200F4BE, // #1679.Supertypes(#1216)
    0x0200F4D6, // #1679.Composition(#1679,#1196,#1213,#1163,#1216,#1043,#806,#1068,#98)
    0x0200F51C, // #1680.ExplAttrInfos(#303,OPT)
    0x01017D82, // #1679.Attributes(#1680)
    0x0200F53A, // #1681.Supertypes(#1219)
    0x0200F552, // #1681.Composition(#1681,#1200,#1220,#1201,#1219,#806,#98,#1048,#1072)
    0x0200F598, // #1682.ExplAttrInfos(#303,REQ)
    0x0200F5B6, // #1681.Attributes(#1682)
    0x0200F5CE, // #1683.Supertypes(#1106)
    0x0200F5E6, // #1683.Composition(#1683,#1106)
    0x0200F605, // #1684.ExplAttrInfos(#1106,REQ)
    0x0200F624, // #1685.ExplAttrInfos(#891,REQ)
    0x0200F642, // #1686.ExplAttrInfos(#14,OPT)
    0x0200F65F, // #1683.Attributes(#1684,#1685,#1686)
    0x0200F683, // #1687.Supertypes(#1422)
    0x0200F69B, // #1687.Composition(#1687,#1163,#1422,#1043,#806,#1068,#98)
    0x0200F6D5, // #1688.ExplAttrInfos(#311,OPT)
    0x0200F6F3, // #1687.Attributes(#1688)
    0x0200F70B, // #1689.Supertypes(#1425)
    0x0200F723, // #1689.Composition(#1689,#1425,#1201,#806,#98,#1048,#1072)
    0x0200F75D, // #1690.ExplAttrInfos(#311,REQ)
    0x0200F77B, // #1689.Attributes(#1690)
    0x0200F793, // #1691.Supertypes(#661)
    0x0200F7AA, // #1691.Composition(#1691,#661,#662)
    0x0200F7CD, // #1692.ExplAttrInfos(#56,REQ)
    0x0200F7EA, // #1693.ExplAttrInfos(#56,OPT)
    0x0200F807, // #1694.ExplAttrInfos(#56,OPT)
    0x0200F824, // #1695.ExplAttrInfos(#56,OPT)
    0x0200F841, // #1696.ExplAttrInfos(#13,OPT)
    0x0200F85E, // #1691.Attributes(#1692,#1693,#1694,#1695,#1696)
    0x0200F88E, // #1697.Supertypes(#1213)
    0x0200F8A6, // #1697.Composition(#1697,#1196,#1213,#1163,#1043,#806,#1068,#98)
    0x0200F8E6, // #1698.ExplAttrInfos(#313,OPT)
    0x0200F904, // #1697.Attributes(#1698)
    0x0200F91C, // #1699.Supertypes(#1220)
    0x0200F934, // #1699.Composition(#1699,#1200,#1220,#1201,#806,#98,#1048,#1072)
    0x0200F974, // #1700.ExplAttrInfos(#313,REQ)
    0x0200F992, // #1699.Attributes(#1700)
    0x0200F9AA, // #1702.Supertypes(#1434)
    0x0200F9C2, // #1702.Composition(#1702,#1293,#1043,#806,#98,#1434)
    0x0200F9F6, // #1703.ExplAttrInfos(#14,OPT)
    0x0200FA13, // #1704.ExplAttrInfos(#317,OPT)
    0x0200FA31, // #1702.Attributes(#1703,#1704)
    0x010181A6, // #1701.Supertypes(#1702)
    0x0200FA4F, // #1701.Composition(#1701,#1702,#1293,#1043,#806,#98,#1434)
    0x0200FA89, // #1706.Supertypes(#1068)
    0x0200FAA1, // #1706.Composition(#1043,#806,#1706,#1068,#98)
    0x0200FACF, // #1705.Supertypes(#1706)
    0x0200FAE7, // #1705.Composition(#1705,#1043,#806,#1706,#1068,#98)
    0x0200FB1B, // #1707.ExplAttrInfos(#377,OPT)
    0x0200FB39, // #1708.ExplAttrInfos(#315,OPT)
    0x0200FB57, // #1709.ExplAttrInfos(#317,OPT)
    0x0200FB75, // #1705.Attributes(#1707,#1708,#1709)
    0x0200FB99, // #1.Entities(#1490,#1494,#1495,#1498,#1501,#1502,#704,#714,#1133,#1503,#1505,#736,#1507,#728,#1511,#1513,#1514,#1516,#1518,#1520,#1527,#776,#775,#780,#1534,#1538,#1541,#1544,#1546,#1491,#1134,#1548,#1549,#1552,#1553,#1559,#1562,#1090,#1565,#1592,#1598,#1600,#1602,#1604,#1566,#1593,#1606,#1098,#1187,#1616,#1618,#1100,#1620,#1622,#1624,#1626,#1628,#1630,#742,#1633,#1639,#1296,#1644,#1646,#1648,#1650,#682,#1652,#1654,#1660,#1662,#778,#1664,#1672,#1249,#836,#762,#759,#765,#1677,#1679,#1681,#1683,#627,#629,#633,#669,#1687,#1689,#1691,#1697,#1699,#1701,#1195,#1199,#1196,#1200,#1213,#1220,#1705)
    0x0200FDEC, // #1710.Supertypes(#1279)
    0x0200FE04, // #1710.Composition(#1710,#1279)
    0x0200FE23, // #1711.ExplAttrInfos(#809,REQ)
    0x0200FE41, // #1712.ExplAttrInfos(#1713,REQ)
    0x0200FE60, // #1714.ExplAttrInfos(#14,OPT)
    0x0200FE7D, // #1710.Attributes(#1711,#1712,#1714)
    0x0200FEA1, // #1715.Supertypes(#1360)
    0x0200FEB9, // #1715.Composition(#1360,#1715,#1163,#1043,#806,#1068,#98)
    0x0200FEF3, // #1716.ExplAttrInfos(#90,OPT)
    0x0200FF10, // #1717.ExplAttrInfos(#90,OPT)
    0x0200FF2D, // #1718.ExplAttrInfos(#331,OPT)
    0x0200FF4B, // #1719.ExplAttrInfos(#333,OPT)
    0x0200FF69, // #1720.ExplAttrInfos(#14,OPT)
    0x0200FF86, // #1715.Attributes(#1716,#1717,#1718,#1719,#1720)
    0x0200FFB6, // #1722.Supertypes(#96)
    0x0200FFCC, // #1722.Composition(#1722,#97,#96,#98)
    0x0200FFF1, // #1721.Supertypes(#1722)
    0x02010009, // #1721.Composition(#1721,#1722,#97,#96,#98)
    0x02010034, // #1723.ExplAttrInfos(#90,OPT)
    0x02010051, // #1724.ExplAttrInfos(#82,OPT)
    0x0101851B, // #1725.ExplAttrInfos(#90,OPT)
    0x0201006E, // #1726.ExplAttrInfos(#82,OPT)
    0x0201008B, // #1727.ExplAttrInfos(#82,OPT)
    0x020100A8, // #1728.ExplAttrInfos(#56,OPT)
    0x020100C5, // #1729.ExplAttrInfos(#56,OPT)
    0x020100E2, // #1730.ExplAttrInfos(#56,OPT)
    0x020100FF, // #1731.ExplAttrInfos(#90,OPT)
    0x0201011C, // #1732.ExplAttrInfos(#90,OPT)
    0x02010139, // #1733.ExplAttrInfos(#1110,OPT)
    0x02010158, // #1734.ExplAttrInfos(#56,OPT)
    0x02010175, // #1735.ExplAttrInfos(#56,OPT)
    0x02010192, // #1721.Attributes(#1723,#1724,#1725,#1726,#1727,#1728,#1729,#1730,#1731,#1732,#1733,#1734,#1735)
    0x020101F2, // #1736.Supertypes(#1722)
    0x0201020A, // #1736.Composition(#1736,#1722,#97,#96,#98)
    0x02010235, // #1737.ExplAttrInfos(#90,OPT)
    0x02010252, // #1738.ExplAttrInfos(#323,REQ)
    0x000274FA, // #1739.ExplAttrInfos(#84,OPT)
    0x02010270, // #1740.ExplAttrInfos(#325,REQ)
    0x0201028E, // #1741.ExplAttrInfos(#1110,OPT)
    0x020102AD, // #1736.Attributes(#1737,#1738,#1739,#1740,#1741)
    0x020102DD, // #1742.Supertypes(#1715)
    0x020102F5, // #1742.Composition(#1360,#1715,#1742,#1163,#1043,#806,#1068,#98)
    0x02010335, // #1743.Supertypes(#1072)
    0x0201034D, // #1743.Composition(#1743,#806,#98,#1048,#1072)
    0x0201037B, // #1744.ExplAttrInfos(#329,REQ)
    0x02010399, // #1745.ExplAttrInfos(#327,REQ)
    0x020103B7, // #1746.ExplAttrInfos(#13,REQ)
    0x020103D4, // #1747.ExplAttrInfos(#13,REQ)
    0x020103F1, // #1743.Attributes(#1744,#1745,#1746,#1747)
    0x0201041B, // #1748.Supertypes(#1364)
    0x02010433, // #1748.Composition(#1364,#1748,#1201,#806,#98,#1048,#1072)
    0x0201046D, // #1749.ExplAttrInfos(#331,REQ)
    0x0201048B, // #1750.ExplAttrInfos(#333,REQ)
    0x020104A9, // #1751.ExplAttrInfos(#13,OPT)
    0x020104C6, // #1752.ExplAttrInfos(#14,OPT)
    0x020104E3, // #1748.Attributes(#1749,#1750,#1751,#1752)
    0x0201050D, // #1753.Supertypes(#731)
    0x02010524, // #1753.Composition(#1753,#731,#732,#729)
    0x0201054C, // #1754.Supertypes(#769)
    0x02010563, // #1754.Composition(#1754,#769,#732,#729)
    0x0201058B, // #1755.Supertypes(#1448)
    0x020105A3, // #1755.Composition(#1196,#1213,#1755,#1163,#1448,#1043,#806,#1068,#98)
    0x020105E9, // #1756.ExplAttrInfos(#335,OPT)
    0x02010607, // #1755.Attributes(#1756)
    0x0201061F, // #1757.Supertypes(#1451)
    0x02010637, // #1757.Composition(#1200,#1220,#1757,#1201,#1451,#806,#98,#1048,#1072)
    0x0201067D, // #1758.ExplAttrInfos(#335,REQ)
    0x0201069B, // #1757.Attributes(#1758)
    0x020106B3, // #1759.Supertypes(#1454)
    0x020106CB, // #1759.Composition(#1196,#1213,#1759,#1163,#1454,#1043,#806,#1068,#98)
    0x02010711, // #1760.ExplAttrInfos(#337,OPT)
    0x0201072F, // #1759.Attributes(#1760)
    0x02010747, // #1761.Supertypes(#1457)
    0x0201075F, // #1761.Composition(#1200,#1220,#1761,#1201,#1457,#806,#98,#1048,#1072)
    0x020107A5, // #1762.ExplAttrInfos(#337,REQ)
    0x020107C3, // #1761.Attributes(#1762)
    0x020107DB, // #1764.Supertypes(#1213)
    0x020107F3, // #1764.Composition(#1196,#1213,#1163,#1764,#1043,#806,#1068,#98)
    0x02010833, // #1763.Supertypes(#1764)
    0x0201084B, // #1763.Composition(#1196,#1213,#1763,#1163,#1764,#1043,#806,#1068,#98)
    0x02010891, // #1765.ExplAttrInfos(#339,OPT)
    0x020108AF, // #1763.Attributes(#1765)
    0x020108C7, // #1767.Supertypes(#1220)
    0x020108DF, // #1767.Composition(#1200,#1220,#1201,#1767,#806,#98,#1048,#1072)
    0x0201091F, // #1766.Supertypes(#1767)
    0x02010937, // #1766.Composition(#1200,#1220,#1766,#1201,#1767,#806,#98,#1048,#1072)
    0x0201097D, // #1768.ExplAttrInfos(#339,REQ)
    0x0201099B, // #1766.Attributes(#1768)
    0x020109B3, // #1769.Supertypes(#1140)
    0x020109CB, // #1769.Composition(#1769,#1140,#662,#798)
    0x020109F4, // #1771.Supertypes(#797)
    0x02010A0B, // #1771.Composition(#797,#1771,#662,#798)
    0x02010A33, // #1772.ExplAttrInfos(#797,REQ)
    0x02010A51, // #1773.ExplAttrInfos(#13,REQ)
    0x02010A6E, // #1771.Attributes(#1772,#1773)
    0x02010A8C, // #1770.ExplAttrInfos(#1774,REQ)
    0x02010AAB, // #1769.Attributes(#1770)
    0x02010AC3, // #1775.Supertypes(#1212)
    0x02010ADB, // #1775.Composition(#1196,#1213,#1775,#1163,#1212,#1043,#806,#1068,#98)
    0x02010B21, // #1776.ExplAttrInfos(#341,OPT)
    0x02010B3F, // #1775.Attributes(#1776)
    0x02010B57, // #1777.Supertypes(#1223)
    0x02010B6F, // #1777.Composition(#1200,#1220,#1777,#1201,#1223,#806,#98,#1048,#1072)
    0x02010BB5, // #1778.ExplAttrInfos(#341,REQ)
    0x02010BD3, // #1777.Attributes(#1778)
    0x02010BEB, // #1779.Supertypes(#1216)
    0x02010C03, // #1779.Composition(#1196,#1213,#1779,#1163,#1216,#1043,#806,#1068,#98)
    0x02010C49, // #1780.ExplAttrInfos(#343,OPT)
    0x02010C67, // #1779.Attributes(#1780)
    0x02010C7F, // #1781.Supertypes(#1219)
    0x02010C97, // #1781.Composition(#1200,#1220,#1781,#1201,#1219,#806,#98,#1048,#1072)
    0x02010CDD, // #1782.ExplAttrInfos(#343,REQ)
    0x02010CFB, // #1781.Attributes(#1782)
    0x02010D13, // #1784.Supertypes(#1213)
    0x02010D2B, // #1784.Composition(#1196,#1213,#1163,#1784,#1043,#806,#1068,#98)
    0x02010D6B, // #1783.Supertypes(#1784)
    0x02010D83, // #1783.Composition(#1196,#1213,#1783,#1163,#1784,#1043,#806,#1068,#98)
    0x02010DC9, // #1785.ExplAttrInfos(#345,OPT)
    0x02010DE7, // #1783.Attributes(#1785)
    0x02010DFF, // #1787.Supertypes(#1220)
    0x02010E17, // #1787.Composition(#1200,#1220,#1201,#1787,#806,#98,#1048,#1072)
    0x02010E57, // #1786.Supertypes(#1787)
    0x02010E6F, // #1786.Composition(#1200,#1220,#1786,#1201,#1787,#806,#98,#1048,#1072)
    0x02010EB5, // #1788.ExplAttrInfos(#345,REQ)
    0x02010ED3, // #1786.Attributes(#1788)
    0x02010EEB, // #1789.Supertypes(#1226)
    0x02010F03, // #1789.Composition(#1196,#1213,#1789,#1163,#1226,#1043,#806,#1068,#98)
    0x02010F49, // #1790.ExplAttrInfos(#347,OPT)
    0x02010F67, // #1789.Attributes(#1790)
    0x02010F7F, // #1791.Supertypes(#1229)
    0x02010F97, // #1791.Composition(#1200,#1220,#1791,#1201,#1229,#806,#98,#1048,#1072)
    0x02010FDD, // #1792.ExplAttrInfos(#347,REQ)
    0x02010FFB, // #1791.Attributes(#1792)
    0x02011013, // #1793.Supertypes(#1226)
    0x0201102B, // #1793.Composition(#1196,#1213,#1793,#1163,#1226,#1043,#806,#1068,#98)
    0x02011071, // #1794.ExplAttrInfos(#349,OPT)
    0x0201108F, // #1793.Attributes(#1794)
    0x020110A7, // #1795.Supertypes(#1229)
    0x020110BF, // #1795.Composition(#1200,#1220,#1795,#1201,#1229,#806,#98,#1048,#1072)
    0x02011105, // #1796.ExplAttrInfos(#349,REQ)
    0x00027FB1, // #1795.Attributes(#1796)
    0x02011123, // #1797.Supertypes(#1216)
    0x0201113B, // #1797.Composition(#1196,#1213,#1797,#1163,#1216,#1043,#806,#1068,#98)
    0x02011181, // #1798.ExplAttrInfos(#351,OPT)
    0x0201119F, // #1797.Attributes(#1798)
    0x020111B7, // #1799.Supertypes(#1219)
    0x020111CF, // #1799.Composition(#1200,#1220,#1799,#1201,#1219,#806,#98,#1048,#1072)
    0x02011215, // #1800.ExplAttrInfos(#351,REQ)
    0x02011233, // #1799.Attributes(#1800)
    0x0201124B, // #1801.Supertypes(#1163)
    0x02011263, // #1801.Composition(#1163,#1801,#1043,#806,#1068,#98)
    0x02011297, // #1802.ExplAttrInfos(#227,OPT)
    0x020112B5, // #1803.ExplAttrInfos(#353,OPT)
    0x020112D3, // #1801.Attributes(#1802,#1803)
    0x020112F1, // #1804.Supertypes(#1201)
    0x02011309, // #1804.Composition(#1804,#1201,#806,#98,#1048,#1072)
    0x0201133D, // #1805.ExplAttrInfos(#353,REQ)
    0x00028132, // #1804.Attributes(#1805)
    0x0201135B, // #1807.Supertypes(#96)
    0x02011371, // #1807.Composition(#97,#96,#1807,#98)
    0x02011396, // #1806.Supertypes(#1807)
    0x020113AE, // #1806.Composition(#1806,#97,#96,#1807,#98)
    0x020113D9, // #1808.ExplAttrInfos(#14,OPT)
    0x000281FF, // #1809.ExplAttrInfos(#1810,REQ)
    0x020113F6, // #1806.Attributes(#1808,#1809)
    0x02011414, // #1811.Supertypes(#1491)
    0x0201142C, // #1811.Composition(#1491,#778,#1811,#661,#662)
    0x0201145A, // #1812.ExplAttrInfos(#90,REQ)
    0x02011477, // #1813.ExplAttrInfos(#90,REQ)
    0x02011494, // #1811.Attributes(#1812,#1813)
    0x020114B2, // #1814.Supertypes(#1305)
    0x020114CA, // #1814.Composition(#1814,#1305,#1106)
    0x020114EF, // #1815.ExplAttrInfos(#90,REQ)
    0x0201150C, // #1816.ExplAttrInfos(#90,REQ)
    0x02011529, // #1814.Attributes(#1815,#1816)
    0x02011547, // #1817.Supertypes(#1226)
    0x0201155F, // #1817.Composition(#1196,#1213,#1163,#1226,#1817,#1043,#806,#1068,#98)
    0x020115A5, // #1818.ExplAttrInfos(#357,OPT)
    0x020115C3, // #1817.Attributes(#1818)
    0x020115DB, // #1819.Supertypes(#1229)
    0x020115F3, // #1819.Composition(#1200,#1220,#1201,#1229,#1819,#806,#98,#1048,#1072)
    0x02011639, // #1820.ExplAttrInfos(#357,REQ)
    0x00028413, // #1819.Attributes(#1820)
    0x02011657, // #1821.Supertypes(#1226)
    0x0201166F, // #1821.Composition(#1196,#1213,#1163,#1226,#1821,#1043,#806,#1068,#98)
    0x020116B5, // #1822.ExplAttrInfos(#359,OPT)
    0x020116D3, // #1821.Attributes(#1822)
    0x020116EB, // #1823.Supertypes(#1229)
    0x02011703, // #1823.Composition(#1200,#1220,#1201,#1229,#1823,#806,#98,#1048,#1072)
    0x02011749, // #1824.ExplAttrInfos(#359,REQ)
    0x02011767, // #1823.Attributes(#1824)
    0x0201177F, // #1825.Supertypes(#1226)
    0x02011797, // #1825.Composition(#1196,#1213,#1163,#1226,#1825,#1043,#806,#1068,#98)
    0x020117DD, // #1826.ExplAttrInfos(#361,OPT)
    0x020117FB, // #1825.Attributes(#1826)
    0x02011813, // #1827.Supertypes(#1229)
    0x0201182B, // #1827.Composition(#1200,#1220,#1201,#1229,#1827,#806,#98,#1048,#1072)
    0x02011871, // #1828.ExplAttrInfos(#361,REQ)
    0x0201188F, // #1827.Attributes(#1828)
    0x020118A7, // #1829.Supertypes(#1042)
    0x020118BF, // #1829.Composition(#1829,#1043,#806,#1042,#98)
    0x020118ED, // #1830.ExplAttrInfos(#365,OPT)
    0x0201190B, // #1831.ExplAttrInfos(#363,OPT)
    0x02011929, // #1832.ExplAttrInfos(#14,OPT)
    0x02011946, // #1834.Supertypes(#1569)
    0x0201195E, // #1834.Composition(#1834,#1569)
    0x0201197D, // #1835.ExplAttrInfos(#25,OPT)
    0x0201199A, // #1836.ExplAttrInfos(#25,OPT)
    0x020119B7, // #1837.ExplAttrInfos(#25,OPT)
    0x020119D4, // #1838.ExplAttrInfos(#25,OPT)
    0x020119F1, // #1834.Attributes(#1835,#1836,#1837,#1838)
    0x02011A1B, // #1833.ExplAttrInfos(#1834,OPT)
    0x02011A3A, // #1829.Attributes(#1830,#1831,#1832,#1833)
    0x02011A64, // #1839.Supertypes(#1047)
    0x02011A7C, // #1839.Composition(#1839,#806,#98,#1048,#1047)
    0x02011AAA, // #1840.ExplAttrInfos(#365,REQ)
    0x02011AC8, // #1841.ExplAttrInfos(#363,REQ)
    0x02011AE6, // #1842.ExplAttrInfos(#14,OPT)
    0x02011B03, // #1839.Attributes(#1840,#1841,#1842)
    0x02011B27, // #1843.Supertypes(#1109)
    0x02011B3F, // #1843.Composition(#1843,#1109)
    0x02011B5E, // #1844.ExplAttrInfos(#48,OPT)
    0x02011B7B, // #1845.ExplAttrInfos(#122,OPT)
    0x02011B99, // #1846.ExplAttrInfos(#1847,REQ)
    0x02011BB8, // #1843.Attributes(#1844,#1845,#1846)
    0x02011BDC, // #1848.Supertypes(#1279)
    0x02011BF4, // #1848.Composition(#1848,#1279)
    0x02011C13, // #1849.ExplAttrInfos(#715,REQ)
    0x02011C31, // #1850.ExplAttrInfos(#1851,REQ)
    0x02011C50, // #1848.Attributes(#1849,#1850)
    0x02011C6E, // #1853.Supertypes(#688)
    0x02011C85, // #1853.Composition(#661,#662,#688,#1853)
    0x02011CAD, // #1854.ExplAttrInfos(#1106,REQ)
    0x02011CCC, // #1855.ExplAttrInfos(#672,OPT)
    0x02011CEA, // #1853.Attributes(#1854,#1855)
    0x02011D08, // #1852.Supertypes(#1853)
    0x02011D20, // #1852.Composition(#1852,#661,#662,#688,#1853)
    0x02011D4E, // #1856.ExplAttrInfos(#669,REQ)
    0x02011D6C, // #1857.ExplAttrInfos(#90,REQ)
    0x02011D89, // #1852.Attributes(#1856,#1857)
    0x02011DA7, // #1858.Supertypes(#1852)
    0x02011DBF, // #1858.Composition(#1852,#1858,#661,#662,#688,#1853)
    0x02011DF3, // #1859.ExplAttrInfos(#1106,REQ)
    0x00028BD4, // #1858.Attributes(#1859)
    0x02011E12, // #1860.Supertypes(#1138)
    0x02011E2A, // #1860.Composition(#1138,#1860,#662,#798)
    0x02011E53, // #1861.Supertypes(#1205)
    0x02011E6B, // #1861.Composition(#1861,#661,#1205,#662,#688)
    0x02011E99, // #1862.Supertypes(#1861)
    0x02011EB1, // #1862.Composition(#1861,#1862,#661,#1205,#662,#688)
    0x02011EE5, // #1863.ExplAttrInfos(#1864,REQ)
    0x02011F04, // #1862.Attributes(#1863)
    0x02011F1C, // #1866.Composition(#1866)
    0x02011F35, // #1867.ExplAttrInfos(#14,OPT)
    0x02011F52, // #1866.Attributes(#1867)
    0x02011F6A, // #1865.Supertypes(#1866)
    0x02011F82, // #1865.Composition(#1865,#1866)
    0x02011FA1, // #1868.ExplAttrInfos(#43,OPT)
    0x02011FBE, // #1869.ExplAttrInfos(#43,OPT)
    0x02011FDB, // #1870.ExplAttrInfos(#43,OPT)
    0x02011FF8, // #1871.ExplAttrInfos(#43,OPT)
    0x02012015, // #1872.ExplAttrInfos(#43,OPT)
    0x02012032, // #1873.ExplAttrInfos(#43,OPT)
    0x0201204F, // #1865.Attributes(#1868,#1869,#1870,#1871,#1872,#1873)
    0x02012085, // #1874.Supertypes(#1539)
    0x0201209D, // #1874.Composition(#1196,#1213,#1163,#1874,#1539,#1043,#806,#1068,#98)
    0x020120E3, // #1875.ExplAttrInfos(#369,OPT)
    0x02012101, // #1874.Attributes(#1875)
    0x02012119, // #1876.Supertypes(#1542)
    0x02012131, // #1876.Composition(#1200,#1220,#1201,#1876,#1542,#806,#98,#1048,#1072)
    0x02012177, // #1877.ExplAttrInfos(#369,REQ)
    0x0101A992, // #1876.Attributes(#1877)
    0x02012195, // #1878.Supertypes(#1422)
    0x020121AD, // #1878.Composition(#1163,#1422,#1878,#1043,#806,#1068,#98)
    0x020121E7, // #1879.ExplAttrInfos(#371,OPT)
    0x0101AA26, // #1878.Attributes(#1879)
    0x02012205, // #1880.Supertypes(#1425)
    0x0201221D, // #1880.Composition(#1425,#1201,#1880,#806,#98,#1048,#1072)
    0x02012257, // #1881.ExplAttrInfos(#371,REQ)
    0x0101AABA, // #1880.Attributes(#1881)
    0x02012275, // #1882.Supertypes(#1163)
    0x0201228D, // #1882.Composition(#1163,#1882,#1043,#806,#1068,#98)
    0x020122C1, // #1883.Supertypes(#1882)
    0x020122D9, // #1883.Composition(#1163,#1882,#1883,#1043,#806,#1068,#98)
    0x02012313, // #1884.Supertypes(#1882)
    0x0201232B, // #1884.Composition(#1163,#1882,#1884,#1043,#806,#1068,#98)
    0x02012365, // #1885.Supertypes(#1764)
    0x0201237D, // #1885.Composition(#1196,#1213,#1163,#1885,#1764,#1043,#806,#1068,#98)
    0x020123C3, // #1886.ExplAttrInfos(#373,OPT)
    0x020123E1, // #1885.Attributes(#1886)
    0x020123F9, // #1887.Supertypes(#1767)
    0x02012411, // #1887.Composition(#1200,#1220,#1201,#1887,#1767,#806,#98,#1048,#1072)
    0x02012457, // #1888.ExplAttrInfos(#373,REQ)
    0x02012475, // #1887.Attributes(#1888)
    0x0201248D, // #1889.Supertypes(#1212)
    0x020124A5, // #1889.Composition(#1196,#1213,#1163,#1889,#1212,#1043,#806,#1068,#98)
    0x020124EB, // #1890.ExplAttrInfos(#375,OPT)
    0x0101ACC2, // #1889.Attributes(#1890)
    0x02012509, // #1891.Supertypes(#1223)
    0x02012521, // #1891.Composition(#1200,#1220,#1201,#1891,#1223,#806,#98,#1048,#1072)
    0x02012567, // #1892.ExplAttrInfos(#375,REQ)
    0x0101AD50, // #1891.Attributes(#1892)
    0x02012585, // #1893.Supertypes(#1853)
    0x0201259D, // #1893.Composition(#1893,#661,#662,#688,#1853)
    0x020125CB, // #1894.ExplAttrInfos(#778,REQ)
    0x020125E9, // #1895.ExplAttrInfos(#87,OPT)
    0x02012606, // #1896.ExplAttrInfos(#87,OPT)
    0x02012623, // #1897.ExplAttrInfos(#669,REQ)
    0x02012641, // #1893.Attributes(#1894,#1895,#1896,#1897)
    0x0201266B, // #1898.Supertypes(#1195)
    0x02012683, // #1898.Composition(#1195,#1196,#1163,#1898,#1043,#806,#1068,#98)
    0x020126C3, // #1899.ExplAttrInfos(#379,OPT)
    0x000291F3, // #1898.Attributes(#1899)
    0x020126E1, // #1900.Supertypes(#1199)
    0x020126F9, // #1900.Composition(#1199,#1200,#1201,#1900,#806,#98,#1048,#1072)
    0x02012739, // #1901.ExplAttrInfos(#379,REQ)
    0x02012757, // #1900.Attributes(#1901)
    0x0201276F, // #1902.Supertypes(#1216)
    0x02012787, // #1902.Composition(#1196,#1213,#1163,#1216,#1902,#1043,#806,#1068,#98)
    0x020127CD, // #1903.ExplAttrInfos(#381,OPT)
    0x020127EB, // #1902.Attributes(#1903)
    0x02012803, // #1904.Supertypes(#1219)
    0x0201281B, // #1904.Composition(#1200,#1220,#1201,#1219,#1904,#806,#98,#1048,#1072)
    0x02012861, // #1905.ExplAttrInfos(#381,REQ)
    0x0201287F, // #1904.Attributes(#1905)
    0x02012897, // #1.Entities(#1702,#809,#1710,#828,#1715,#1721,#1736,#1742,#1743,#1748,#1753,#1754,#1755,#1757,#1759,#1761,#1763,#1766,#797,#796,#1769,#1775,#1777,#1779,#1781,#1783,#1786,#1789,#1791,#1793,#1795,#1797,#1799,#1163,#1801,#1804,#1422,#1425,#1806,#1201,#1667,#1811,#1814,#1226,#1229,#1817,#1819,#1821,#1823,#1825,#1827,#1829,#1834,#1839,#1843,#705,#715,#1848,#1149,#1150,#833,#872,#918,#1852,#1858,#1136,#1168,#1138,#1860,#1171,#1861,#1862,#1865,#1874,#1876,#1878,#1880,#1882,#1883,#1884,#863,#834,#854,#1885,#1887,#1889,#1891,#1893,#1216,#1219,#1448,#1451,#1898,#1900,#1902,#1904,#1539,#1542,#1454,#1457)
    0x02012AF0, // #1906.Supertypes(#1360)
    0x02012B08, // #1906.Composition(#1360,#1163,#1906,#1043,#806,#1068,#98)
    0x02012B42, // #1907.ExplAttrInfos(#383,OPT)
    0x02012B60, // #1906.Attributes(#1907)
    0x02012B78, // #1908.Supertypes(#1364)
    0x02012B90, // #1908.Composition(#1364,#1201,#1908,#806,#98,#1048,#1072)
    0x02012BCA, // #1909.ExplAttrInfos(#383,REQ)
    0x0101B1D6, // #1908.Attributes(#1909)
    0x02012BE8, // #1910.Supertypes(#1163)
    0x02012C00, // #1910.Composition(#1163,#1910,#1043,#806,#1068,#98)
    0x02012C34, // #1911.Supertypes(#1201)
    0x02012C4C, // #1911.Composition(#1201,#1911,#806,#98,#1048,#1072)
    0x02012C80, // #1912.Supertypes(#1910)
    0x02012C98, // #1912.Composition(#1163,#1910,#1912,#1043,#806,#1068,#98)
    0x02012CD2, // #1913.ExplAttrInfos(#385,OPT)
    0x02012CF0, // #1912.Attributes(#1913)
    0x02012D08, // #1914.Supertypes(#1911)
    0x02012D20, // #1914.Composition(#1201,#1911,#1914,#806,#98,#1048,#1072)
    0x02012D5A, // #1915.ExplAttrInfos(#227,REQ)
    0x02012D78, // #1916.ExplAttrInfos(#385,OPT)
    0x02012D96, // #1914.Attributes(#1915,#1916)
    0x02012DB4, // #1917.Supertypes(#1163)
    0x02012DCC, // #1917.Composition(#1163,#1917,#1043,#806,#1068,#98)
    0x02012E00, // #1918.ExplAttrInfos(#387,OPT)
    0x02012E1E, // #1917.Attributes(#1918)
    0x02012E36, // #1919.Supertypes(#1201)
    0x02012E4E, // #1919.Composition(#1201,#1919,#806,#98,#1048,#1072)
    0x02012E82, // #1920.ExplAttrInfos(#387,REQ)
    0x02012EA0, // #1919.Attributes(#1920)
    0x02012EB8, // #1922.Supertypes(#661)
    0x02012ECF, // #1922.Composition(#661,#1922,#662)
    0x02012EF2, // #1923.ExplAttrInfos(#1924,REQ)
    0x02012F11, // #1922.Attributes(#1923)
    0x02012F29, // #1921.Supertypes(#1922)
    0x02012F41, // #1921.Composition(#1921,#661,#1922,#662)
    0x02012F6A, // #1925.Supertypes(#747)
    0x02012F81, // #1925.Composition(#747,#1925,#748)
    0x02012FA4, // #1926.ExplAttrInfos(#747,REQ)
    0x02012FC2, // #1927.ExplAttrInfos(#92,OPT)
    0x02012FDF, // #1928.ExplAttrInfos(#389,REQ)
    0x02012FFD, // #1929.ExplAttrInfos(#14,OPT)
    0x0201301A, // #1925.Attributes(#1926,#1927,#1928,#1929)
    0x02013044, // #1930.Supertypes(#1237)
    0x0201305C, // #1930.Composition(#1930,#1043,#806,#1237,#1068,#98)
    0x02013090, // #1931.ExplAttrInfos(#1932,REQ)
    0x020130AF, // #1933.ExplAttrInfos(#1934,REQ)
    0x020130CE, // #1935.ExplAttrInfos(#1936,OPT)
    0x020130ED, // #1937.ExplAttrInfos(#393,OPT)
    0x0201310B, // #1930.Attributes(#1931,#1933,#1935,#1937)
    0x02013135, // #1938.Supertypes(#1070)
    0x0201314D, // #1938.Composition(#1938,#1070)
    0x0201316C, // #1939.ExplAttrInfos(#936,REQ)
    0x0201318A, // #1940.ExplAttrInfos(#946,OPT)
    0x020131A8, // #1938.Attributes(#1939,#1940)
    0x020131C6, // #1941.Supertypes(#1226)
    0x020131DE, // #1941.Composition(#1196,#1213,#1163,#1226,#1941,#1043,#806,#1068,#98)
    0x02013224, // #1942.ExplAttrInfos(#395,OPT)
    0x0101B9FB, // #1941.Attributes(#1942)
    0x02013242, // #1943.Supertypes(#1229)
    0x0201325A, // #1943.Composition(#1200,#1220,#1201,#1229,#1943,#806,#98,#1048,#1072)
    0x020132A0, // #1944.ExplAttrInfos(#395,REQ)
    0x0101BA8F, // #1943.Attributes(#1944)
    0x020132BE, // #1945.Supertypes(#1226)
    0x020132D6, // #1945.Composition(#1196,#1213,#1163,#1226,#1945,#1043,#806,#1068,#98)
    0x0201331C, // #1946.ExplAttrInfos(#397,OPT)
    0x0201333A, // #1945.Attributes(#1946)
    0x02013352, // #1947.Supertypes(#1229)
    0x0201336A, // #1947.Composition(#1200,#1220,#1201,#1229,#1947,#806,#98,#1048,#1072)
    0x020133B0, // #1948.ExplAttrInfos(#397,REQ)
    0x020133CE, // #1947.Attributes(#1948)
    0x020133E6, // #1949.Supertypes(#1305)
    0x020133FE, // #1949.Composition(#1949,#1305,#1106)
    0x02013423, // #1950.ExplAttrInfos(#90,REQ)
    0x02013440, // #1951.ExplAttrInfos(#90,REQ)
    0x0201345D, // #1952.ExplAttrInfos(#90,REQ)
    0x0201347A, // #1953.ExplAttrInfos(#90,REQ)
    0x02013497, // #1954.ExplAttrInfos(#82,OPT)
    0x020134B4, // #1955.ExplAttrInfos(#82,OPT)
    0x020134D1, // #1956.ExplAttrInfos(#89,OPT)
    0x020134EE, // #1949.Attributes(#1950,#1951,#1952,#1953,#1954,#1955,#1956)
    0x0201352A, // #1957.Supertypes(#886)
    0x02013541, // #1957.Composition(#1957,#729,#886)
    0x02013564, // #1958.ExplAttrInfos(#196,REQ)
    0x02013582, // #1957.Attributes(#1958)
    0x0201359A, // #1959.Supertypes(#729)
    0x020135B1, // #1959.Composition(#1959,#729)
    0x020135CF, // #1960.ExplAttrInfos(#689,REQ)
    0x020135ED, // #1961.ExplAttrInfos(#84,OPT)
    0x0201360A, // #1962.ExplAttrInfos(#1507,REQ)
    0x00029EE2, // #1963.ExplAttrInfos(#1964,REQ)
    0x02013629, // #1959.Attributes(#1960,#1961,#1962,#1963)
    0x02013653, // #1965.Supertypes(#777)
    0x0201366A, // #1965.Composition(#777,#778,#661,#1965,#662)
    0x02013697, // #1966.ExplAttrInfos(#693,REQ)
    0x020136B5, // #1967.ExplAttrInfos(#1968,OPT)
    0x020136D4, // #1969.ExplAttrInfos(#13,OPT)
    0x020136F1, // #1965.Attributes(#1966,#1967,#1969)
    0x02013715, // #1970.Supertypes(#690)
    0x0201372C, // #1970.Composition(#661,#1970,#662,#690)
    0x02013754, // #1971.ExplAttrInfos(#1972,REQ)
    0x02013773, // #1970.Attributes(#1971)
    0x0201378B, // #1973.Supertypes(#1970)
    0x020137A3, // #1973.Composition(#661,#1970,#1973,#662,#690)
    0x020137D1, // #1974.ExplAttrInfos(#1976,REQ)
    0x0002A12D, // #1973.Attributes(#1974)
    0x020137F0, // #1978.Supertypes(#729)
    0x02013807, // #1978.Composition(#729,#1978)
    0x02013825, // #1979.ExplAttrInfos(#1980,REQ)
    0x02013844, // #1978.Attributes(#1979)
    0x0201385C, // #1977.Supertypes(#1978)
    0x02013874, // #1977.Composition(#1977,#729,#1978)
    0x02013898, // #1981.ExplAttrInfos(#689,REQ)
    0x020138B6, // #1983.Supertypes(#729)
    0x020138CD, // #1983.Composition(#729,#1983)
    0x020138EB, // #1984.ExplAttrInfos(#1986,REQ)
    0x0002A368, // #1983.Attributes(#1984)
    0x0201390A, // #1982.ExplAttrInfos(#1983,REQ)
    0x02013929, // #1977.Attributes(#1981,#1982)
    0x02013947, // #1987.Supertypes(#1977)
    0x0201395F, // #1987.Composition(#1977,#1987,#729,#1978)
    0x02013989, // #1988.ExplAttrInfos(#1990,OPT)
    0x0101C11C, // #1987.Attributes(#1988)
    0x020139A8, // #1991.Supertypes(#1764)
    0x020139C0, // #1991.Composition(#1196,#1213,#1163,#1764,#1991,#1043,#806,#1068,#98)
    0x02013A06, // #1992.ExplAttrInfos(#399,OPT)
    0x02013A24, // #1991.Attributes(#1992)
    0x02013A3C, // #1993.Supertypes(#1767)
    0x02013A54, // #1993.Composition(#1200,#1220,#1201,#1767,#1993,#806,#98,#1048,#1072)
    0x02013A9A, // #1994.ExplAttrInfos(#399,REQ)
    0x02013AB8, // #1993.Attributes(#1994)
    0x02013AD0, // #1995.Supertypes(#789)
    0x02013AE7, // #1995.Composition(#778,#661,#1995,#662,#789)
    0x02013B14, // #1996.Supertypes(#1293)
    0x02013B2C, // #1996.Composition(#1293,#1996,#1043,#806,#98)
    0x02013B5A, // #1997.ExplAttrInfos(#403,OPT)
    0x02013B78, // #1998.ExplAttrInfos(#615,OPT)
    0x02013B96, // #1999.ExplAttrInfos(#2000,OPT)
    0x02013BB5, // #2001.ExplAttrInfos(#24,OPT)
    0x02013BD2, // #2002.ExplAttrInfos(#1296,OPT)
    0x02013BF1, // #2003.ExplAttrInfos(#1296,OPT)
    0x02013C10, // #1996.Attributes(#1997,#1998,#1999,#2001,#2002,#2003)
    0x02013C46, // #2004.Supertypes(#1019)
    0x02013C5E, // #2004.Composition(#2004,#1019)
    0x02013C7D, // #2006.Composition(#2006)
    0x02013C96, // #2007.ExplAttrInfos(#25,REQ)
    0x02013CB3, // #2008.ExplAttrInfos(#2009,REQ)
    0x02013CD2, // #2006.Attributes(#2007,#2008)
    0x02013CF0, // #2005.ExplAttrInfos(#2010,REQ)
    0x02013D0F, // #2004.Attributes(#2005)
    0x02013D27, // #2011.Supertypes(#1448)
    0x02013D3F, // #2011.Composition(#1196,#1213,#1163,#1448,#2011,#1043,#806,#1068,#98)
    0x02013D85, // #2012.ExplAttrInfos(#405,OPT)
    0x02013DA3, // #2011.Attributes(#2012)
    0x02013DBB, // #2013.Supertypes(#1451)
    0x02013DD3, // #2013.Composition(#1200,#1220,#1201,#1451,#2013,#806,#98,#1048,#1072)
    0x02013E19, // #2014.ExplAttrInfos(#405,REQ)
    0x02013E37, // #2013.Attributes(#2014)
    0x02013E4F, // #2015.Supertypes(#1305)
    0x02013E67, // #2015.Composition(#2015,#1305,#1106)
    0x02013E8C, // #2016.ExplAttrInfos(#90,REQ)
    0x02013EA9, // #2017.ExplAttrInfos(#90,OPT)
    0x02013EC6, // #2018.ExplAttrInfos(#90,REQ)
    0x02013EE3, // #2019.ExplAttrInfos(#82,OPT)
    0x02013F00, // #2020.ExplAttrInfos(#82,OPT)
    0x02013F1D, // #2021.ExplAttrInfos(#89,OPT)
    0x02013F3A, // #2015.Attributes(#2016,#2017,#2018,#2019,#2020,#2021)
    0x02013F70, // #2022.Supertypes(#1566)
    0x02013F88, // #2022.Composition(#1566,#2022,#1043,#806,#1120,#98)
    0x02013FBC, // #2023.ExplAttrInfos(#409,OPT)
    0x02013FDA, // #2022.Attributes(#2023)
    0x02013FF2, // #2024.Supertypes(#1593)
    0x0201400A, // #2024.Composition(#1593,#2024,#806,#98,#1048,#1123)
    0x0201403E, // #2025.ExplAttrInfos(#409,REQ)
    0x0201405C, // #2024.Attributes(#2025)
    0x02014074, // #2026.Supertypes(#1569)
    0x0201408C, // #2026.Composition(#2026,#1569)
    0x020140AB, // #2027.ExplAttrInfos(#1177,REQ)
    0x020140CA, // #2028.ExplAttrInfos(#557,REQ)
    0x020140E8, // #2026.Attributes(#2027,#2028)
    0x02014106, // #2029.Supertypes(#1212)
    0x0201411E, // #2029.Composition(#1196,#1213,#1163,#1212,#2029,#1043,#806,#1068,#98)
    0x02014164, // #2030.ExplAttrInfos(#411,OPT)
    0x0101C9A2, // #2029.Attributes(#2030)
    0x02014182, // #2031.Supertypes(#1223)
    0x0201419A, // #2031.Composition(#1200,#1220,#1201,#1223,#2031,#806,#98,#1048,#1072)
    0x020141E0, // #2032.ExplAttrInfos(#411,REQ)
    0x0101CA36, // #2031.Attributes(#2032)
    0x020141FE, // #2033.Supertypes(#1212)
    0x02014216, // #2033.Composition(#1196,#1213,#1163,#1212,#2033,#1043,#806,#1068,#98)
    0x0201425C, // #2034.ExplAttrInfos(#419,OPT)
    0x0201427A, // #2033.Attributes(#2034)
    0x02014292, // #2035.Supertypes(#1223)
    0x020142AA, // #2035.Composition(#1200,#1220,#1201,#1223,#2035,#806,#98,#1048,#1072)
    0x020142F0, // #2036.ExplAttrInfos(#419,REQ)
    0x0201430E, // #2035.Attributes(#2036)
    0x02014326, // #2037.Supertypes(#661)
    0x0201433D, // #2037.Composition(#661,#2037,#662)
    0x02014360, // #2038.ExplAttrInfos(#14,OPT)
    0x0201437D, // #2039.ExplAttrInfos(#736,REQ)
    0x0201439B, // #2040.ExplAttrInfos(#84,OPT)
    0x020143B8, // #2041.ExplAttrInfos(#84,OPT)
    0x020143D5, // #2037.Attributes(#2038,#2039,#2040,#2041)
    0x020143FF, // #2042.Supertypes(#2037)
    0x02014417, // #2042.Composition(#661,#2037,#2042,#662)
    0x02014440, // #2043.Supertypes(#2037)
    0x02014458, // #2043.Composition(#661,#2037,#2043,#662)
    0x02014481, // #2044.ExplAttrInfos(#669,REQ)
    0x0201449F, // #2043.Attributes(#2044)
    0x020144B7, // #2045.Supertypes(#2037)
    0x020144CF, // #2045.Composition(#661,#2037,#2045,#662)
    0x020144F8, // #2046.ExplAttrInfos(#672,REQ)
    0x02014516, // #2047.ExplAttrInfos(#736,OPT)
    0x02014534, // #2048.ExplAttrInfos(#192,REQ)
    0x02014552, // #2049.ExplAttrInfos(#64,REQ)
    0x0201456F, // #2050.ExplAttrInfos(#417,REQ)
    0x0201458D, // #2051.ExplAttrInfos(#979,REQ)
    0x020145AB, // #2045.Attributes(#2046,#2047,#2048,#2049,#2050,#2051)
    0x020145E1, // #2052.Supertypes(#2037)
    0x020145F9, // #2052.Composition(#661,#2037,#2052,#662)
    0x02014622, // #2053.ExplAttrInfos(#664,REQ)
    0x02014640, // #2054.ExplAttrInfos(#90,REQ)
    0x0201465D, // #2055.ExplAttrInfos(#165,REQ)
    0x0201467B, // #2056.ExplAttrInfos(#165,REQ)
    0x02014699, // #2057.ExplAttrInfos(#165,REQ)
    0x020146B7, // #2052.Attributes(#2053,#2054,#2055,#2056,#2057)
    0x020146E7, // #2058.Supertypes(#2052)
    0x020146FF, // #2058.Composition(#661,#2037,#2052,#2058,#662)
    0x0201472E, // #2059.ExplAttrInfos(#669,REQ)
    0x0201474C, // #2060.ExplAttrInfos(#165,OPT)
    0x0201476A, // #2061.ExplAttrInfos(#91,REQ)
    0x02014787, // #2062.ExplAttrInfos(#91,REQ)
    0x020147A4, // #2058.Attributes(#2059,#2060,#2061,#2062)
    0x020147CE, // #2063.Supertypes(#778)
    0x020147E5, // #2063.Composition(#778,#661,#2063,#662)
    0x0201480D, // #2064.ExplAttrInfos(#664,REQ)
    0x0201482B, // #2065.ExplAttrInfos(#846,REQ)
    0x02014849, // #2063.Attributes(#2064,#2065)
    0x02014867, // #2066.Supertypes(#1249)
    0x0201487F, // #2066.Composition(#777,#778,#1249,#661,#2066,#662)
    0x020148B2, // #2067.Supertypes(#1070)
    0x020148CA, // #2067.Composition(#2067,#1070)
    0x020148E9, // #2068.ExplAttrInfos(#778,REQ)
    0x02014907, // #2069.ExplAttrInfos(#1691,REQ)
    0x02014926, // #2071.Supertypes(#661)
    0x0201493D, // #2071.Composition(#661,#2071,#662)
    0x02014960, // #2072.ExplAttrInfos(#669,REQ)
    0x0201497E, // #2073.ExplAttrInfos(#669,REQ)
    0x0201499C, // #2071.Attributes(#2072,#2073)
    0x020149BA, // #2070.ExplAttrInfos(#2071,OPT)
    0x020149D9, // #2074.ExplAttrInfos(#672,OPT)
    0x020149F7, // #2067.Attributes(#2068,#2069,#2070,#2074)
    0x02014A21, // #2075.Supertypes(#1070)
    0x02014A39, // #2075.Composition(#2075,#1070)
    0x02014A58, // #2076.ExplAttrInfos(#1070,OPT)
    0x02014A77, // #2077.ExplAttrInfos(#676,REQ)
    0x02014A95, // #2075.Attributes(#2076,#2077)
    0x02014AB3, // #2078.Supertypes(#1630)
    0x02014ACB, // #2078.Composition(#1630,#2078)
    0x02014AEA, // #2079.ExplAttrInfos(#56,REQ)
    0x02014B07, // #2080.ExplAttrInfos(#56,REQ)
    0x02014B24, // #2081.ExplAttrInfos(#56,REQ)
    0x02014B41, // #2082.ExplAttrInfos(#165,OPT)
    0x02014B5F, // #2083.ExplAttrInfos(#165,OPT)
    0x02014B7D, // #2084.ExplAttrInfos(#165,OPT)
    0x02014B9B, // #2078.Attributes(#2079,#2080,#2081,#2082,#2083,#2084)
    0x02014BD1, // #2085.Supertypes(#662)
    0x02014BE8, // #2085.Composition(#2085,#662)
    0x02014C06, // #2086.ExplAttrInfos(#1063,REQ)
    0x02014C25, // #2087.ExplAttrInfos(#892,REQ)
    0x02014C43, // #2085.Attributes(#2086,#2087)
    0x02014C61, // #2088.Composition(#2088)
    0x02014C7A, // #2089.ExplAttrInfos(#2090,REQ)
    0x02014C99, // #2091.ExplAttrInfos(#983,REQ)
    0x02014CB7, // #2088.Attributes(#2089,#2091)
    0x02014CD5, // #2092.Supertypes(#980)
    0x02014CEC, // #2092.Composition(#2092,#980)
    0x02014D0A, // #2093.ExplAttrInfos(#14,OPT)
    0x02014D27, // #2094.ExplAttrInfos(#122,OPT)
    0x02014D45, // #2095.ExplAttrInfos(#983,REQ)
    0x02014D63, // #2096.ExplAttrInfos(#84,OPT)
    0x02014D80, // #2097.ExplAttrInfos(#14,OPT)
    0x02014D9D, // #2092.Attributes(#2093,#2094,#2095,#2096,#2097)
    0x02014DCD, // #2098.Supertypes(#980)
    0x02014DE4, // #2098.Composition(#2098,#980)
    0x02014E02, // #2099.ExplAttrInfos(#14,OPT)
    0x02014E1F, // #2100.ExplAttrInfos(#122,OPT)
    0x02014E3D, // #2101.ExplAttrInfos(#2102,OPT)
    0x02014E5C, // #2098.Attributes(#2099,#2100,#2101)
    0x02014E80, // #2103.Supertypes(#1058)
    0x02014E98, // #2103.Composition(#2103,#1058)
    0x02014EB7, // #2104.ExplAttrInfos(#983,REQ)
    0x02014ED5, // #2103.Attributes(#2104)
    0x02014EED, // #2105.Supertypes(#980)
    0x02014F04, // #2105.Composition(#980,#2105)
    0x02014F22, // #2106.ExplAttrInfos(#983,OPT)
    0x02014F40, // #2107.ExplAttrInfos(#82,REQ)
    0x02014F5D, // #2108.ExplAttrInfos(#63,OPT)
    0x02014F7A, // #2109.ExplAttrInfos(#14,OPT)
    0x02014F97, // #2110.ExplAttrInfos(#122,OPT)
    0x02014FB5, // #2111.ExplAttrInfos(#14,OPT)
    0x02014FD2, // #2112.ExplAttrInfos(#6,OPT)
    0x02014FEE, // #2105.Attributes(#2106,#2107,#2108,#2109,#2110,#2111,#2112)
    0x0201502A, // #2113.Supertypes(#980)
    0x02015041, // #2113.Composition(#980,#2113)
    0x0101D7C1, // #2114.ExplAttrInfos(#2115,REQ)
    0x0201505F, // #2116.ExplAttrInfos(#14,OPT)
    0x0201507C, // #2117.ExplAttrInfos(#122,OPT)
    0x0201509A, // #2113.Attributes(#2114,#2116,#2117)
    0x020150BE, // #2118.Supertypes(#988)
    0x020150D5, // #2118.Composition(#2118,#988)
    0x020150F3, // #2119.ExplAttrInfos(#2113,REQ)
    0x02015112, // #2120.ExplAttrInfos(#413,REQ)
    0x02015130, // #2121.ExplAttrInfos(#309,REQ)
    0x0201514E, // #2122.ExplAttrInfos(#56,REQ)
    0x0201516B, // #2123.ExplAttrInfos(#90,OPT)
    0x02015188, // #2118.Attributes(#2119,#2120,#2121,#2122,#2123)
    0x020151B8, // #2124.Supertypes(#2105)
    0x020151D0, // #2124.Composition(#980,#2105,#2124)
    0x020151F4, // #2125.ExplAttrInfos(#413,REQ)
    0x0101D98A, // #2126.ExplAttrInfos(#2127,REQ)
    0x02015212, // #2124.Attributes(#2125,#2126)
    0x02015230, // #2128.Supertypes(#980)
    0x02015247, // #2128.Composition(#980,#2128)
    0x02015265, // #2129.ExplAttrInfos(#14,OPT)
    0x02015282, // #2130.ExplAttrInfos(#122,OPT)
    0x020152A0, // #2131.ExplAttrInfos(#983,OPT)
    0x020152BE, // #2132.ExplAttrInfos(#1106,REQ)
    0x020152DD, // #2133.ExplAttrInfos(#6,OPT)
    0x020152F9, // #2134.ExplAttrInfos(#14,OPT)
    0x02015316, // #2128.Attributes(#2129,#2130,#2131,#2132,#2133,#2134)
    0x0201534C, // #2135.Supertypes(#980)
    0x02015363, // #2135.Composition(#980,#2135)
    0x02015381, // #2136.ExplAttrInfos(#14,OPT)
    0x0201539E, // #2137.ExplAttrInfos(#122,OPT)
    0x0002BF4B, // #2138.ExplAttrInfos(#2139,REQ)
    0x020153BC, // #2140.ExplAttrInfos(#1534,OPT)
    0x020153DB, // #2135.Attributes(#2136,#2137,#2138,#2140)
    0x02015405, // #2141.Supertypes(#988)
    0x0201541C, // #2141.Composition(#2141,#988)
    0x0201543A, // #2142.ExplAttrInfos(#2135,REQ)
    0x02015459, // #2143.ExplAttrInfos(#16,OPT)
    0x02015476, // #2144.ExplAttrInfos(#90,OPT)
    0x02015493, // #2141.Attributes(#2142,#2143,#2144)
    0x020154B7, // #2145.Supertypes(#2141)
    0x020154CF, // #2145.Composition(#2141,#2145,#988)
    0x020154F3, // #2146.ExplAttrInfos(#2135,REQ)
    0x02015512, // #2147.ExplAttrInfos(#16,OPT)
    0x0201552F, // #2145.Attributes(#2146,#2147)
    0x0201554D, // #2148.Supertypes(#2128)
    0x02015565, // #2148.Composition(#980,#2128,#2148)
    0x02015589, // #2149.ExplAttrInfos(#2150,REQ)
    0x020155A8, // #2148.Attributes(#2149)
    0x020155C0, // #2151.Supertypes(#1843)
    0x020155D8, // #2151.Composition(#1843,#2151,#1109)
    0x020155FD, // #2152.ExplAttrInfos(#980,REQ)
    0x0201561B, // #2151.Attributes(#2152)
    0x02015633, // #2153.Supertypes(#1279)
    0x0201564B, // #2153.Composition(#2153,#1279)
    0x0201566A, // #2154.ExplAttrInfos(#983,REQ)
    0x0002C23F, // #2155.ExplAttrInfos(#2156,REQ)
    0x02015688, // #2157.ExplAttrInfos(#14,OPT)
    0x020156A5, // #2153.Attributes(#2154,#2155,#2157)
    0x020156C9, // #2158.Supertypes(#1422)
    0x020156E1, // #2158.Composition(#1163,#1422,#2158,#1043,#806,#1068,#98)
    0x0201571B, // #2159.ExplAttrInfos(#90,OPT)
    0x02015738, // #2160.ExplAttrInfos(#90,OPT)
    0x02015755, // #2161.ExplAttrInfos(#425,OPT)
    0x02015773, // #2158.Attributes(#2159,#2160,#2161)
    0x02015797, // #2162.Supertypes(#1425)
    0x020157AF, // #2162.Composition(#1425,#1201,#2162,#806,#98,#1048,#1072)
    0x020157E9, // #2163.ExplAttrInfos(#425,REQ)
    0x02015807, // #2164.ExplAttrInfos(#90,OPT)
    0x02015824, // #2165.ExplAttrInfos(#90,OPT)
    0x02015841, // #2162.Attributes(#2163,#2164,#2165)
    0x02015865, // #2166.Supertypes(#1212)
    0x0201587D, // #2166.Composition(#1196,#1213,#1163,#1212,#2166,#1043,#806,#1068,#98)
    0x020158C3, // #2167.ExplAttrInfos(#427,OPT)
    0x0002C486, // #2166.Attributes(#2167)
    0x020158E1, // #2168.Supertypes(#1223)
    0x020158F9, // #2168.Composition(#1200,#1220,#1201,#1223,#2168,#806,#98,#1048,#1072)
    0x0201593F, // #2169.ExplAttrInfos(#427,REQ)
    0x0101E21D, // #2168.Attributes(#2169)
    0x0201595D, // #2170.Supertypes(#1360)
    0x02015975, // #2170.Composition(#1360,#1163,#2170,#1043,#806,#1068,#98)
    0x020159AF, // #2171.ExplAttrInfos(#429,OPT)
    0x0101E2B1, // #2170.Attributes(#2171)
    0x020159CD, // #2172.Supertypes(#2170)
    0x020159E5, // #2172.Composition(#1360,#1163,#2170,#2172,#1043,#806,#1068,#98)
    0x02015A25, // #2173.Supertypes(#1364)
    0x02015A3D, // #2173.Composition(#1364,#1201,#2173,#806,#98,#1048,#1072)
    0x02015A77, // #2174.ExplAttrInfos(#429,REQ)
    0x02015A95, // #2173.Attributes(#2174)
    0x02015AAD, // #2175.Supertypes(#1090)
    0x02015AC5, // #2175.Composition(#1090,#2175)
    0x02015AE4, // #2176.ExplAttrInfos(#237,REQ)
    0x02015B02, // #2177.ExplAttrInfos(#14,OPT)
    0x02015B1F, // #2178.ExplAttrInfos(#1029,OPT)
    0x02015B3E, // #2179.ExplAttrInfos(#650,OPT)
    0x02015B5C, // #2175.Attributes(#2176,#2177,#2178,#2179)
    0x02015B86, // #2180.Supertypes(#1683)
    0x02015B9E, // #2180.Composition(#1683,#2180,#1106)
    0x02015BC3, // #1.Entities(#1784,#1787,#1212,#1223,#1764,#1767,#1906,#1908,#1910,#1911,#1912,#1914,#1917,#1919,#1921,#747,#661,#1925,#1922,#1930,#938,#1938,#1293,#684,#1941,#1943,#1945,#1947,#1949,#1957,#1959,#1965,#1970,#1973,#1977,#1987,#1991,#1993,#1995,#1996,#2004,#2006,#2011,#2013,#2015,#2022,#2024,#2026,#2029,#2031,#955,#962,#971,#2033,#2035,#968,#2037,#2042,#2043,#2045,#2052,#2058,#2063,#2066,#2067,#1236,#2075,#1140,#1205,#2078,#2085,#983,#2088,#2092,#2098,#980,#2103,#2105,#2113,#2118,#2124,#981,#2128,#2135,#2141,#2145,#2148,#2151,#2153,#988,#616,#2158,#2162,#2166,#2168,#2170,#2172,#2173,#2175,#2180)
    0x02015E1B, // #2181.Supertypes(#1226)
    0x02015E33, // #2181.Composition(#1196,#1213,#1163,#1226,#2181,#1043,#806,#1068,#98)
    0x02015E79, // #2182.ExplAttrInfos(#431,OPT)
    0x02015E97, // #2181.Attributes(#2182)
    0x02015EAF, // #2183.Supertypes(#1229)
    0x02015EC7, // #2183.Composition(#1200,#1220,#1201,#1229,#2183,#806,#98,#1048,#1072)
    0x02015F0D, // #2184.ExplAttrInfos(#431,REQ)
    0x02015F2B, // #2183.Attributes(#2184)
    0x02015F43, // #2185.Supertypes(#1090)
    0x02015F5B, // #2185.Composition(#1090,#2185)
    0x02015F7A, // #2186.ExplAttrInfos(#2187,OPT)
    0x02015F99, // #2188.ExplAttrInfos(#423,OPT)
    0x02015FB7, // #2189.ExplAttrInfos(#437,REQ)
    0x02015FD5, // #2190.ExplAttrInfos(#14,OPT)
    0x02015FF2, // #2185.Attributes(#2186,#2188,#2189,#2190)
    0x0201601C, // #2191.Supertypes(#1192)
    0x02016034, // #2191.Composition(#1192,#1043,#806,#2191,#98)
    0x02016062, // #2192.ExplAttrInfos(#439,OPT)
    0x0101E6AA, // #2191.Attributes(#2192)
    0x02016080, // #2193.Supertypes(#778)
    0x02016097, // #2193.Composition(#778,#661,#2193,#662)
    0x020160BF, // #2194.ExplAttrInfos(#778,REQ)
    0x0002C964, // #2193.Attributes(#2194)
    0x020160DD, // #2195.Supertypes(#2193)
    0x020160F5, // #2195.Composition(#778,#661,#2193,#2195,#662)
    0x02016123, // #2196.ExplAttrInfos(#56,REQ)
    0x02016140, // #2197.ExplAttrInfos(#63,REQ)
    0x0201615D, // #2195.Attributes(#2196,#2197)
    0x0002C9F4, // #2198.Supertypes(#2193)
    0x0201617B, // #2198.Composition(#778,#661,#2193,#2198,#662)
    0x020161A9, // #2199.ExplAttrInfos(#56,REQ)
    0x020161C6, // #2200.ExplAttrInfos(#63,REQ)
    0x020161E3, // #2201.ExplAttrInfos(#669,REQ)
    0x02016201, // #2198.Attributes(#2199,#2200,#2201)
    0x02016225, // #2202.Supertypes(#2193)
    0x0201623D, // #2202.Composition(#778,#661,#2193,#2202,#662)
    0x0201626B, // #2203.ExplAttrInfos(#2204,REQ)
    0x0201628A, // #2205.ExplAttrInfos(#14,OPT)
    0x020162A7, // #2202.Attributes(#2203,#2205)
    0x020162C5, // #2206.Supertypes(#1884)
    0x020162DD, // #2206.Composition(#1163,#1882,#1884,#1043,#806,#2206,#1068,#98)
    0x0201631D, // #2207.ExplAttrInfos(#441,OPT)
    0x0201633B, // #2206.Attributes(#2207)
    0x02016353, // #2208.Supertypes(#2206)
    0x0201636B, // #2208.Composition(#1163,#1882,#1884,#1043,#806,#2206,#2208,#1068,#98)
    0x020163B1, // #2209.Supertypes(#1279)
    0x020163C9, // #2209.Composition(#2209,#1279)
    0x020163E8, // #2210.ExplAttrInfos(#133,REQ)
    0x0002CD46, // #2211.ExplAttrInfos(#2212,REQ)
    0x02016406, // #2209.Attributes(#2210,#2211)
    0x02016424, // #2213.Supertypes(#1380)
    0x0201643C, // #2213.Composition(#1380,#777,#776,#775,#778,#661,#2213,#662)
    0x02016479, // #2214.Supertypes(#1212)
    0x02016491, // #2214.Composition(#1196,#1213,#1163,#1212,#1043,#806,#2214,#1068,#98)
    0x020164D7, // #2215.ExplAttrInfos(#443,OPT)
    0x020164F5, // #2214.Attributes(#2215)
    0x0201650D, // #2216.Supertypes(#1223)
    0x02016525, // #2216.Composition(#1200,#1220,#1201,#1223,#806,#2216,#98,#1048,#1072)
    0x0201656B, // #2217.ExplAttrInfos(#443,REQ)
    0x02016589, // #2216.Attributes(#2217)
    0x020165A1, // #2218.Supertypes(#1491)
    0x020165B9, // #2218.Composition(#1491,#778,#661,#2218,#662)
    0x020165E7, // #2219.ExplAttrInfos(#56,REQ)
    0x02016604, // #2218.Attributes(#2219)
    0x0201661C, // #2220.Supertypes(#798)
    0x02016633, // #2220.Composition(#2220,#662,#798)
    0x02016656, // #2221.ExplAttrInfos(#2222,REQ)
    0x02016675, // #2220.Attributes(#2221)
    0x0201668D, // #2223.Supertypes(#1187)
    0x020166A5, // #2223.Composition(#1187,#1043,#806,#2223,#98)
    0x0101EF11, // #2224.ExplAttrInfos(#14,REQ)
    0x020166D3, // #2225.ExplAttrInfos(#445,OPT)
    0x020166F1, // #2223.Attributes(#2224,#2225)
    0x0201670F, // #2226.Supertypes(#1722)
    0x02016727, // #2226.Composition(#2226,#1722,#97,#96,#98)
    0x02016752, // #2227.ExplAttrInfos(#447,REQ)
    0x02016770, // #2228.ExplAttrInfos(#599,REQ)
    0x0201678E, // #2229.ExplAttrInfos(#90,OPT)
    0x020167AB, // #2230.ExplAttrInfos(#90,OPT)
    0x020167C8, // #2231.ExplAttrInfos(#1110,OPT)
    0x020167E7, // #2226.Attributes(#2227,#2228,#2229,#2230,#2231)
    0x02016817, // #2232.Supertypes(#1187)
    0x0201682F, // #2232.Composition(#1187,#1043,#806,#2232,#98)
    0x0201685D, // #2233.ExplAttrInfos(#449,OPT)
    0x0201687B, // #2234.ExplAttrInfos(#14,OPT)
    0x02016898, // #2235.ExplAttrInfos(#122,OPT)
    0x020168B6, // #2232.Attributes(#2233,#2234,#2235)
    0x020168DA, // #2236.Supertypes(#1103)
    0x020168F2, // #2236.Composition(#2236,#1103)
    0x02016911, // #2237.ExplAttrInfos(#2238,REQ)
    0x02016930, // #2239.ExplAttrInfos(#14,REQ)
    0x0201694D, // #2240.ExplAttrInfos(#14,OPT)
    0x0201696A, // #2241.ExplAttrInfos(#14,OPT)
    0x02016987, // #2236.Attributes(#2237,#2239,#2240,#2241)
    0x020169B1, // #2242.Supertypes(#1103)
    0x020169C9, // #2242.Composition(#1103,#2242)
    0x020169E8, // #2243.ExplAttrInfos(#631,OPT)
    0x02016A06, // #2242.Attributes(#2243)
    0x02016A1E, // #2244.Supertypes(#1360)
    0x02016A36, // #2244.Composition(#1360,#1163,#1043,#806,#2244,#1068,#98)
    0x02016A70, // #2245.ExplAttrInfos(#455,OPT)
    0x02016A8E, // #2246.ExplAttrInfos(#453,OPT)
    0x02016AAC, // #2244.Attributes(#2245,#2246)
    0x02016ACA, // #2247.Supertypes(#1364)
    0x02016AE2, // #2247.Composition(#1364,#1201,#806,#2247,#98,#1048,#1072)
    0x02016B1C, // #2248.ExplAttrInfos(#455,REQ)
    0x02016B3A, // #2247.Attributes(#2248)
    0x02016B52, // #2249.Supertypes(#1448)
    0x02016B6A, // #2249.Composition(#1196,#1213,#1163,#1448,#1043,#806,#2249,#1068,#98)
    0x02016BB0, // #2250.ExplAttrInfos(#457,OPT)
    0x02016BCE, // #2249.Attributes(#2250)
    0x02016BE6, // #2251.Supertypes(#1451)
    0x02016BFE, // #2251.Composition(#1200,#1220,#1201,#1451,#806,#2251,#98,#1048,#1072)
    0x02016C44, // #2252.ExplAttrInfos(#457,REQ)
    0x02016C62, // #2251.Attributes(#2252)
    0x02016C7A, // #2253.Supertypes(#1454)
    0x02016C92, // #2253.Composition(#1196,#1213,#1163,#1454,#1043,#806,#2253,#1068,#98)
    0x02016CD8, // #2254.ExplAttrInfos(#459,OPT)
    0x0101F5D3, // #2253.Attributes(#2254)
    0x02016CF6, // #2255.Supertypes(#1457)
    0x02016D0E, // #2255.Composition(#1200,#1220,#1201,#1457,#806,#2255,#98,#1048,#1072)
    0x02016D54, // #2256.ExplAttrInfos(#459,REQ)
    0x02016D72, // #2255.Attributes(#2256)
    0x02016D8A, // #2257.Supertypes(#886)
    0x02016DA1, // #2257.Composition(#2257,#729,#886)
    0x02016DC4, // #2258.ExplAttrInfos(#6,REQ)
    0x02016DE0, // #2259.ExplAttrInfos(#6,REQ)
    0x02016DFC, // #2260.ExplAttrInfos(#6,REQ)
    0x02016E18, // #2261.ExplAttrInfos(#2262,REQ)
    0x02016E37, // #2257.Attributes(#2258,#2259,#2260,#2261)
    0x02016E61, // #2264.Supertypes(#661)
    0x02016E78, // #2264.Composition(#661,#2264,#662)
    0x02016E9B, // #2265.ExplAttrInfos(#56,REQ)
    0x02016EB8, // #2266.ExplAttrInfos(#56,REQ)
    0x02016ED5, // #2264.Attributes(#2265,#2266)
    0x02016EF3, // #2263.Supertypes(#2264)
    0x02016F0B, // #2263.Composition(#661,#2263,#2264,#662)
    0x02016F34, // #2267.ExplAttrInfos(#676,REQ)
    0x02016F52, // #2263.Attributes(#2267)
    0x02016F6A, // #2268.Supertypes(#1360)
    0x02016F82, // #2268.Composition(#1360,#1163,#1043,#806,#2268,#1068,#98)
    0x02016FBC, // #2269.ExplAttrInfos(#461,OPT)
    0x02016FDA, // #2268.Attributes(#2269)
    0x02016FF2, // #2270.Supertypes(#2268)
    0x0201700A, // #2270.Composition(#1360,#1163,#1043,#806,#2268,#2270,#1068,#98)
    0x0201704A, // #2271.Supertypes(#1364)
    0x02017062, // #2271.Composition(#1364,#1201,#806,#2271,#98,#1048,#1072)
    0x0201709C, // #2272.ExplAttrInfos(#461,REQ)
    0x020170BA, // #2271.Attributes(#2272)
    0x020170D2, // #2273.Supertypes(#665)
    0x020170E9, // #2273.Composition(#661,#665,#2273,#662)
    0x02017111, // #2274.ExplAttrInfos(#778,REQ)
    0x0201712F, // #2275.ExplAttrInfos(#87,REQ)
    0x0201714C, // #2273.Attributes(#2274,#2275)
    0x0201716A, // #2276.Supertypes(#665)
    0x02017181, // #2276.Composition(#661,#665,#2276,#662)
    0x020171A9, // #2277.ExplAttrInfos(#686,REQ)
    0x020171C7, // #2278.ExplAttrInfos(#87,REQ)
    0x020171E4, // #2279.ExplAttrInfos(#87,REQ)
    0x02017201, // #2276.Attributes(#2277,#2278,#2279)
    0x02017225, // #2280.Supertypes(#1140)
    0x0201723D, // #2280.Composition(#1140,#2280,#662,#798)
    0x02017266, // #2281.ExplAttrInfos(#2282,REQ)
    0x02017285, // #2280.Attributes(#2281)
    0x0201729D, // #2283.Supertypes(#684)
    0x020172B4, // #2283.Composition(#661,#684,#2283,#662)
    0x020172DC, // #2284.ExplAttrInfos(#672,REQ)
    0x020172FA, // #2285.ExplAttrInfos(#777,REQ)
    0x02017318, // #2283.Attributes(#2284,#2285)
    0x02017336, // #2286.Supertypes(#689)
    0x0201734D, // #2286.Composition(#661,#2286,#662,#689,#690)
    0x0201737A, // #2287.ExplAttrInfos(#13,OPT)
    0x02017397, // #2288.ExplAttrInfos(#2289,REQ)
    0x020173B6, // #2290.ExplAttrInfos(#2291,OPT)
    0x020173D5, // #2286.Attributes(#2287,#2288,#2290)
    0x020173F9, // #2292.Supertypes(#777)
    0x02017410, // #2292.Composition(#777,#778,#661,#2292,#662)
    0x0101FBF5, // #2293.ExplAttrInfos(#2294,REQ)
    0x0201743D, // #2292.Attributes(#2293)
    0x02017455, // #2295.Supertypes(#1109)
    0x0201746D, // #2295.Composition(#2295,#1109)
    0x0201748C, // #2296.Composition(#2296)
    0x020174A5, // #2297.ExplAttrInfos(#14,REQ)
    0x020174C2, // #2298.ExplAttrInfos(#122,OPT)
    0x020174E0, // #2299.ExplAttrInfos(#2300,REQ)
    0x020174FF, // #2301.ExplAttrInfos(#48,OPT)
    0x0201751C, // #2296.Attributes(#2297,#2298,#2299,#2301)
    0x02017546, // #2302.Supertypes(#2296)
    0x0201755E, // #2302.Composition(#2296,#2302)
    0x0201757D, // #2303.ExplAttrInfos(#63,REQ)
    0x0201759A, // #2304.ExplAttrInfos(#63,REQ)
    0x020175B7, // #2305.ExplAttrInfos(#63,REQ)
    0x020175D4, // #2306.ExplAttrInfos(#2307,REQ)
    0x020175F3, // #2302.Attributes(#2303,#2304,#2305,#2306)
    0x0201761D, // #2308.Supertypes(#1042)
    0x02017635, // #2308.Composition(#1043,#806,#2308,#1042,#98)
    0x02017663, // #2309.ExplAttrInfos(#465,OPT)
    0x02017681, // #2308.Attributes(#2309)
    0x02017699, // #2310.Supertypes(#1047)
    0x020176B1, // #2310.Composition(#806,#2310,#98,#1048,#1047)
    0x020176DF, // #2311.ExplAttrInfos(#465,REQ)
    0x020176FD, // #2310.Attributes(#2311)
    0x02017715, // #2312.Supertypes(#1843)
    0x0201772D, // #2312.Composition(#1843,#2312,#1109)
    0x02017752, // #2313.ExplAttrInfos(#1106,REQ)
    0x02017771, // #2312.Attributes(#2313)
    0x02017789, // #2314.Supertypes(#1606)
    0x020177A1, // #2314.Composition(#1606,#806,#2314,#98)
    0x020177C9, // #2315.Supertypes(#1606)
    0x020177E1, // #2315.Composition(#1606,#806,#2315,#98)
    0x02017809, // #2316.Supertypes(#1187)
    0x02017821, // #2316.Composition(#1187,#1043,#806,#2316,#98)
    0x0201784F, // #2317.ExplAttrInfos(#469,OPT)
    0x0201786D, // #2318.ExplAttrInfos(#14,OPT)
    0x0201788A, // #2319.ExplAttrInfos(#122,OPT)
    0x020178A8, // #2316.Attributes(#2317,#2318,#2319)
    0x020178CC, // #2320.Supertypes(#742)
    0x020178E3, // #2320.Composition(#742,#2320)
    0x02017901, // #2321.ExplAttrInfos(#48,OPT)
    0x0201791E, // #2322.ExplAttrInfos(#48,OPT)
    0x0201793B, // #2323.ExplAttrInfos(#631,OPT)
    0x02017959, // #2320.Attributes(#2321,#2322,#2323)
    0x0201797D, // #2324.Supertypes(#1883)
    0x02017995, // #2324.Composition(#1163,#1882,#1883,#1043,#806,#1068,#2324,#98)
    0x020179D5, // #2325.ExplAttrInfos(#473,OPT)
    0x020179F3, // #2324.Attributes(#2325)
    0x02017A0B, // #2327.Supertypes(#1521)
    0x02017A23, // #2327.Composition(#1521,#1109,#2327)
    0x02017A48, // #2326.Supertypes(#2327)
    0x02017A60, // #2326.Composition(#1521,#1109,#2326,#2327)
    0x02017A8B, // #2328.ExplAttrInfos(#625,OPT)
    0x02017AA9, // #2329.ExplAttrInfos(#625,OPT)
    0x02017AC7, // #2330.ExplAttrInfos(#649,OPT)
    0x02017AE5, // #2331.ExplAttrInfos(#625,OPT)
    0x02017B03, // #2326.Attributes(#2328,#2329,#2330,#2331)
    0x02017B2D, // #2332.Supertypes(#1279)
    0x02017B45, // #2332.Composition(#2332,#1279)
    0x02017B64, // #2333.ExplAttrInfos(#1521,REQ)
    0x02017B83, // #2334.ExplAttrInfos(#1521,REQ)
    0x02017BA2, // #2335.ExplAttrInfos(#122,OPT)
    0x02017BC0, // #2332.Attributes(#2333,#2334,#2335)
    0x02017BE4, // #2336.Supertypes(#2327)
    0x02017BFC, // #2336.Composition(#1521,#1109,#2336,#2327)
    0x02017C27, // #2337.ExplAttrInfos(#2338,OPT)
    0x02017C46, // #2340.Supertypes(#1109)
    0x02017C5E, // #2340.Composition(#1109,#2340)
    0x02017C7D, // #2341.ExplAttrInfos(#14,REQ)
    0x02017C9A, // #2342.ExplAttrInfos(#2343,REQ)
    0x02017CB9, // #2344.ExplAttrInfos(#649,OPT)
    0x02017CD7, // #2340.Attributes(#2341,#2342,#2344)
    0x02017CFB, // #2339.ExplAttrInfos(#2340,OPT)
    0x02017D1A, // #2336.Attributes(#2337,#2339)
    0x02017D38, // #2345.Supertypes(#2327)
    0x02017D50, // #2345.Composition(#1521,#1109,#2345,#2327)
    0x02017D7B, // #2346.ExplAttrInfos(#2347,OPT)
    0x02017D9A, // #2348.ExplAttrInfos(#649,OPT)
    0x02017DB8, // #2345.Attributes(#2346,#2348)
    0x02017DD6, // #2349.Supertypes(#2327)
    0x02017DEE, // #2349.Composition(#1521,#1109,#2349,#2327)
    0x02017E19, // #2350.ExplAttrInfos(#122,OPT)
    0x02017E37, // #2351.ExplAttrInfos(#1037,OPT)
    0x02017E56, // #2349.Attributes(#2350,#2351)
    0x02017E74, // #2352.Supertypes(#96)
    0x02017E8A, // #2352.Composition(#97,#2352,#96,#98)
    0x02017EAF, // #2353.ExplAttrInfos(#2354,REQ)
    0x02017ECE, // #2352.Attributes(#2353)
    0x02017EE6, // #2355.Supertypes(#1529)
    0x02017EFE, // #2355.Composition(#97,#2355,#1529,#98)
    0x02017F25, // #2356.ExplAttrInfos(#475,OPT)
    0x02017F43, // #2357.ExplAttrInfos(#48,OPT)
    0x02017F60, // #2358.ExplAttrInfos(#2359,REQ)
    0x02017F7F, // #2355.Attributes(#2356,#2357,#2358)
    0x02017FA3, // #2360.Supertypes(#2327)
    0x02017FBB, // #2360.Composition(#1521,#1109,#2360,#2327)
    0x02017FE6, // #2361.ExplAttrInfos(#625,OPT)
    0x02018004, // #2362.ExplAttrInfos(#649,OPT)
    0x02018022, // #2360.Attributes(#2361,#2362)
    0x02018040, // #2363.Supertypes(#2327)
    0x02018058, // #2363.Composition(#1521,#1109,#2363,#2327)
    0x02018083, // #2364.ExplAttrInfos(#2365,OPT)
    0x020180A2, // #2366.ExplAttrInfos(#2367,OPT)
    0x020180C1, // #2368.ExplAttrInfos(#122,OPT)
    0x020180DF, // #2369.ExplAttrInfos(#649,OPT)
    0x020180FD, // #2370.ExplAttrInfos(#649,OPT)
    0x0201811B, // #2371.ExplAttrInfos(#301,OPT)
    0x02018139, // #2363.Attributes(#2364,#2366,#2368,#2369,#2370,#2371)
    0x0201816F, // #1.Entities(#646,#2181,#2183,#631,#1043,#806,#1070,#2185,#2191,#2193,#2195,#2198,#2202,#1144,#2206,#2208,#133,#2209,#2071,#1771,#2213,#2214,#2216,#101,#2218,#1305,#2220,#786,#2223,#2226,#2232,#105,#103,#2236,#1103,#2242,#2244,#2247,#2249,#2251,#2253,#2255,#2257,#660,#2263,#2264,#1666,#2268,#2270,#2271,#665,#2273,#2276,#2280,#2283,#2286,#2292,#1706,#1237,#1412,#731,#769,#732,#2295,#1722,#919,#729,#2296,#2302,#837,#861,#2308,#2310,#1042,#1068,#1057,#1058,#1106,#2312,#2314,#2315,#2316,#2320,#2324,#1521,#1109,#2326,#97,#2332,#2336,#2340,#2345,#2349,#2352,#96,#2355,#2360,#2363,#1528,#1529)
    0x020183BF, // #2372.Supertypes(#1216)
    0x020183D7, // #2372.Composition(#1196,#1213,#1163,#1216,#1043,#806,#1068,#2372,#98)
    0x0201841D, // #2373.ExplAttrInfos(#479,OPT)
    0x01020B53, // #2372.Attributes(#2373)
    0x0201843B, // #2374.Supertypes(#1195)
    0x02018453, // #2374.Composition(#1195,#1196,#1163,#1043,#806,#1068,#2374,#98)
    0x02018493, // #2375.ExplAttrInfos(#477,OPT)
    0x020184B1, // #2374.Attributes(#2375)
    0x020184C9, // #2376.Supertypes(#1199)
    0x020184E1, // #2376.Composition(#1199,#1200,#1201,#806,#2376,#98,#1048,#1072)
    0x02018521, // #2377.ExplAttrInfos(#477,REQ)
    0x0201853F, // #2376.Attributes(#2377)
    0x02018557, // #2378.Supertypes(#1219)
    0x0201856F, // #2378.Composition(#1200,#1220,#1201,#1219,#806,#2378,#98,#1048,#1072)
    0x020185B5, // #2379.ExplAttrInfos(#479,REQ)
    0x020185D3, // #2378.Attributes(#2379)
    0x020185EB, // #2380.Supertypes(#1068)
    0x02018603, // #2380.Composition(#1043,#806,#1068,#2380,#98)
    0x02018631, // #2381.ExplAttrInfos(#435,REQ)
    0x01020CEF, // #2382.ExplAttrInfos(#14,OPT)
    0x01020D0C, // #2380.Attributes(#2381,#2382)
    0x0201864F, // #2383.Supertypes(#1539)
    0x02018667, // #2383.Composition(#1196,#1213,#1163,#1539,#1043,#806,#1068,#2383,#98)
    0x020186AD, // #2384.ExplAttrInfos(#481,OPT)
    0x020186CB, // #2383.Attributes(#2384)
    0x020186E3, // #2385.Supertypes(#1542)
    0x020186FB, // #2385.Composition(#1200,#1220,#1201,#1542,#806,#2385,#98,#1048,#1072)
    0x02018741, // #2386.ExplAttrInfos(#481,REQ)
    0x0201875F, // #2385.Attributes(#2386)
    0x02018777, // #2387.Supertypes(#2242)
    0x0201878F, // #2387.Composition(#1103,#2242,#2387)
    0x020187B4, // #2388.ExplAttrInfos(#11,REQ)
    0x020187D1, // #2389.ExplAttrInfos(#14,OPT)
    0x020187EE, // #2387.Attributes(#2388,#2389)
    0x0201880C, // #2390.Supertypes(#2242)
    0x02018824, // #2390.Composition(#1103,#2242,#2390)
    0x02018849, // #2391.ExplAttrInfos(#22,REQ)
    0x02018866, // #2392.ExplAttrInfos(#14,OPT)
    0x02018883, // #2390.Attributes(#2391,#2392)
    0x020188A1, // #2393.Supertypes(#2242)
    0x020188B9, // #2393.Composition(#1103,#2242,#2393)
    0x020188DE, // #2394.ExplAttrInfos(#56,REQ)
    0x020188FB, // #2395.ExplAttrInfos(#14,OPT)
    0x02018918, // #2393.Attributes(#2394,#2395)
    0x02018936, // #2396.Supertypes(#2242)
    0x0201894E, // #2396.Composition(#1103,#2242,#2396)
    0x02018973, // #2397.ExplAttrInfos(#194,REQ)
    0x02018991, // #2398.ExplAttrInfos(#14,OPT)
    0x020189AE, // #2396.Attributes(#2397,#2398)
    0x020189CC, // #2399.Supertypes(#2242)
    0x020189E4, // #2399.Composition(#1103,#2242,#2399)
    0x02018A09, // #2400.ExplAttrInfos(#198,REQ)
    0x02018A27, // #2401.ExplAttrInfos(#14,OPT)
    0x02018A44, // #2399.Attributes(#2400,#2401)
    0x02018A62, // #2402.Supertypes(#2242)
    0x02018A7A, // #2402.Composition(#1103,#2242,#2402)
    0x02018A9F, // #2403.ExplAttrInfos(#71,REQ)
    0x02018ABC, // #2404.ExplAttrInfos(#14,OPT)
    0x02018AD9, // #2402.Attributes(#2403,#2404)
    0x02018AF7, // #2405.Supertypes(#1360)
    0x02018B0F, // #2405.Composition(#1360,#1163,#1043,#806,#1068,#2405,#98)
    0x02018B49, // #2406.ExplAttrInfos(#483,OPT)
    0x02018B67, // #2405.Attributes(#2406)
    0x02018B7F, // #2407.Supertypes(#1364)
    0x02018B97, // #2407.Composition(#1364,#1201,#806,#2407,#98,#1048,#1072)
    0x02018BD1, // #2408.ExplAttrInfos(#483,REQ)
    0x0002F45A, // #2407.Attributes(#2408)
    0x02018BEF, // #2409.Supertypes(#1360)
    0x02018C07, // #2409.Composition(#1360,#1163,#1043,#806,#1068,#2409,#98)
    0x02018C41, // #2410.ExplAttrInfos(#487,OPT)
    0x02018C5F, // #2409.Attributes(#2410)
    0x02018C77, // #2411.Supertypes(#1360)
    0x02018C8F, // #2411.Composition(#1360,#1163,#1043,#806,#1068,#2411,#98)
    0x02018CC9, // #2412.ExplAttrInfos(#485,OPT)
    0x02018CE7, // #2411.Attributes(#2412)
    0x02018CFF, // #2413.Supertypes(#1364)
    0x02018D17, // #2413.Composition(#1364,#1201,#806,#2413,#98,#1048,#1072)
    0x02018D51, // #2414.ExplAttrInfos(#485,REQ)
    0x0002F59C, // #2413.Attributes(#2414)
    0x02018D6F, // #2415.Supertypes(#1364)
    0x02018D87, // #2415.Composition(#1364,#1201,#806,#2415,#98,#1048,#1072)
    0x02018DC1, // #2416.ExplAttrInfos(#487,REQ)
    0x02018DDF, // #2415.Attributes(#2416)
    0x02018DF7, // #2417.Supertypes(#1332)
    0x02018E0F, // #2417.Composition(#777,#1325,#1332,#778,#661,#2417,#662)
    0x02018E48, // #2418.ExplAttrInfos(#2419,REQ)
    0x02018E67, // #2417.Attributes(#2418)
    0x02018E7F, // #2420.Supertypes(#1349)
    0x02018E97, // #2420.Composition(#1339,#1338,#1349,#661,#2420,#662,#686)
    0x02018ED1, // #2421.ExplAttrInfos(#2423,REQ)
    0x02018EF0, // #2420.Attributes(#2421)
    0x02018F08, // #2425.Supertypes(#1305)
    0x02018F20, // #2425.Composition(#1305,#1106,#2425)
    0x01021778, // #2426.ExplAttrInfos(#90,REQ)
    0x02018F45, // #2427.ExplAttrInfos(#90,REQ)
    0x02018F62, // #2425.Attributes(#2426,#2427)
    0x02018F80, // #2424.Supertypes(#2425)
    0x02018F98, // #2424.Composition(#1305,#1106,#2424,#2425)
    0x02018FC3, // #2428.ExplAttrInfos(#90,REQ)
    0x02018FE0, // #2429.ExplAttrInfos(#82,OPT)
    0x02018FFD, // #2430.ExplAttrInfos(#82,OPT)
    0x0201901A, // #2424.Attributes(#2428,#2429,#2430)
    0x0201903E, // #2431.Supertypes(#682)
    0x02019055, // #2431.Composition(#682,#661,#2431,#662)
    0x0201907D, // #2432.ExplAttrInfos(#90,REQ)
    0x0201909A, // #2433.ExplAttrInfos(#90,REQ)
    0x020190B7, // #2434.ExplAttrInfos(#90,REQ)
    0x020190D4, // #2431.Attributes(#2432,#2433,#2434)
    0x020190F8, // #2435.Supertypes(#1339)
    0x02019110, // #2435.Composition(#1339,#661,#2435,#662,#686)
    0x0201913E, // #2436.ExplAttrInfos(#686,REQ)
    0x0201915C, // #2437.ExplAttrInfos(#87,REQ)
    0x02019179, // #2438.ExplAttrInfos(#87,REQ)
    0x02019196, // #2439.ExplAttrInfos(#87,REQ)
    0x020191B3, // #2440.ExplAttrInfos(#87,REQ)
    0x020191D0, // #2441.ExplAttrInfos(#13,REQ)
    0x020191ED, // #2442.ExplAttrInfos(#13,REQ)
    0x0201920A, // #2435.Attributes(#2436,#2437,#2438,#2439,#2440,#2441,#2442)
    0x02019246, // #2443.Composition(#2443)
    0x0201925F, // #2444.ExplAttrInfos(#489,REQ)
    0x0201927D, // #2445.ExplAttrInfos(#2446,OPT)
    0x0201929C, // #2447.ExplAttrInfos(#2448,OPT)
    0x020192BB, // #2449.ExplAttrInfos(#2450,OPT)
    0x020192DA, // #2451.ExplAttrInfos(#6,OPT)
    0x020192F6, // #2452.ExplAttrInfos(#6,OPT)
    0x02019312, // #2453.ExplAttrInfos(#6,OPT)
    0x0201932E, // #2455.Composition(#2455)
    0x02019347, // #2456.ExplAttrInfos(#193,REQ)
    0x02019365, // #2457.ExplAttrInfos(#193,REQ)
    0x0002FD99, // #2455.Attributes(#2456,#2457)
    0x02019383, // #2454.ExplAttrInfos(#2458,OPT)
    0x020193A2, // #2443.Attributes(#2444,#2445,#2447,#2449,#2451,#2452,#2453,#2454)
    0x020193E4, // #2459.Supertypes(#1237)
    0x020193FC, // #2459.Composition(#1043,#806,#1237,#1068,#2459,#98)
    0x02019430, // #2460.ExplAttrInfos(#491,OPT)
    0x0201944E, // #2461.ExplAttrInfos(#56,OPT)
    0x0201946B, // #2459.Attributes(#2460,#2461)
    0x02019489, // #2462.Supertypes(#1019)
    0x020194A1, // #2462.Composition(#2462,#1019)
    0x020194C0, // #2463.ExplAttrInfos(#194,REQ)
    0x020194DE, // #2465.Composition(#2465)
    0x020194F7, // #2466.ExplAttrInfos(#2467,REQ)
    0x02019516, // #2465.Attributes(#2466)
    0x0201952E, // #2464.ExplAttrInfos(#2468,REQ)
    0x0201954D, // #2462.Attributes(#2463,#2464)
    0x0201956B, // #2469.Supertypes(#2295)
    0x02019583, // #2469.Composition(#2295,#1109,#2469)
    0x020195A8, // #2470.ExplAttrInfos(#11,REQ)
    0x020195C5, // #2471.ExplAttrInfos(#14,REQ)
    0x020195E2, // #2472.ExplAttrInfos(#497,OPT)
    0x02019600, // #2473.ExplAttrInfos(#56,OPT)
    0x0201961D, // #2474.ExplAttrInfos(#90,OPT)
    0x0201963A, // #2475.ExplAttrInfos(#22,OPT)
    0x02019657, // #2469.Attributes(#2470,#2471,#2472,#2473,#2474,#2475)
    0x0201968D, // #2476.Supertypes(#1722)
    0x020196A5, // #2476.Composition(#1722,#97,#96,#2476,#98)
    0x020196D0, // #2477.ExplAttrInfos(#14,OPT)
    0x020196ED, // #2479.Supertypes(#2295)
    0x02019705, // #2479.Composition(#2295,#1109,#2479)
    0x0201972A, // #2480.ExplAttrInfos(#56,REQ)
    0x02019747, // #2481.ExplAttrInfos(#56,REQ)
    0x02019764, // #2482.ExplAttrInfos(#56,OPT)
    0x02019781, // #2483.ExplAttrInfos(#495,REQ)
    0x0201979F, // #2485.Supertypes(#2295)
    0x020197B7, // #2485.Composition(#2295,#1109,#2485)
    0x020197DC, // #2486.ExplAttrInfos(#511,REQ)
    0x020197FA, // #2487.ExplAttrInfos(#1106,REQ)
    0x02019819, // #2488.ExplAttrInfos(#1106,OPT)
    0x02019838, // #2485.Attributes(#2486,#2487,#2488)
    0x0201985C, // #2484.ExplAttrInfos(#2485,REQ)
    0x0201987B, // #2489.ExplAttrInfos(#2490,REQ)
    0x0201989A, // #2479.Attributes(#2480,#2481,#2482,#2483,#2484,#2489)
    0x020198D0, // #2478.ExplAttrInfos(#2491,REQ)
    0x020198EF, // #2476.Attributes(#2477,#2478)
    0x0201990D, // #2493.Supertypes(#1422)
    0x02019925, // #2493.Composition(#1163,#1422,#1043,#806,#1068,#2493,#98)
    0x0201995F, // #2494.ExplAttrInfos(#14,OPT)
    0x0201997C, // #2493.Attributes(#2494)
    0x02019994, // #2492.Supertypes(#2493)
    0x020199AC, // #2492.Composition(#1163,#1422,#1043,#806,#1068,#2492,#2493,#98)
    0x020199EC, // #2495.ExplAttrInfos(#90,OPT)
    0x02019A09, // #2496.ExplAttrInfos(#11,OPT)
    0x02019A26, // #2497.ExplAttrInfos(#90,OPT)
    0x02019A43, // #2498.ExplAttrInfos(#499,OPT)
    0x02019A61, // #2499.ExplAttrInfos(#497,OPT)
    0x02019A7F, // #2492.Attributes(#2495,#2496,#2497,#2498,#2499)
    0x02019AAF, // #2501.Supertypes(#1425)
    0x02019AC7, // #2501.Composition(#1425,#1201,#806,#2501,#98,#1048,#1072)
    0x02019B01, // #2500.Supertypes(#2501)
    0x02019B19, // #2500.Composition(#1425,#1201,#806,#2500,#2501,#98,#1048,#1072)
    0x02019B59, // #2502.ExplAttrInfos(#499,REQ)
    0x0102234D, // #2503.ExplAttrInfos(#90,OPT)
    0x0102236A, // #2504.ExplAttrInfos(#11,OPT)
    0x02019B77, // #2505.ExplAttrInfos(#90,OPT)
    0x02019B94, // #2506.ExplAttrInfos(#497,OPT)
    0x02019BB2, // #2507.ExplAttrInfos(#14,OPT)
    0x02019BCF, // #2508.ExplAttrInfos(#2509,OPT)
    0x02019BEE, // #2500.Attributes(#2502,#2503,#2504,#2505,#2506,#2507,#2508)
    0x02019C2A, // #2510.Supertypes(#2493)
    0x02019C42, // #2510.Composition(#1163,#1422,#1043,#806,#1068,#2493,#2510,#98)
    0x010224BA, // #2511.ExplAttrInfos(#90,OPT)
    0x010224D7, // #2512.ExplAttrInfos(#90,OPT)
    0x010224F4, // #2513.ExplAttrInfos(#90,OPT)
    0x01022511, // #2514.ExplAttrInfos(#90,OPT)
    0x0102252E, // #2515.ExplAttrInfos(#11,OPT)
    0x0102254B, // #2516.ExplAttrInfos(#11,OPT)
    0x01022568, // #2517.ExplAttrInfos(#90,OPT)
    0x01022585, // #2518.ExplAttrInfos(#90,OPT)
    0x02019C82, // #2519.ExplAttrInfos(#501,OPT)
    0x02019CA0, // #2510.Attributes(#2511,#2512,#2513,#2514,#2515,#2516,#2517,#2518,#2519)
    0x02019CE8, // #2520.Supertypes(#2501)
    0x02019D00, // #2520.Composition(#1425,#1201,#806,#2501,#2520,#98,#1048,#1072)
    0x02019D40, // #2521.ExplAttrInfos(#501,REQ)
    0x02019D5E, // #2522.ExplAttrInfos(#90,OPT)
    0x02019D7B, // #2523.ExplAttrInfos(#90,OPT)
    0x02019D98, // #2524.ExplAttrInfos(#90,OPT)
    0x02019DB5, // #2525.ExplAttrInfos(#90,OPT)
    0x02019DD2, // #2526.ExplAttrInfos(#11,OPT)
    0x02019DEF, // #2527.ExplAttrInfos(#11,OPT)
    0x02019E0C, // #2528.ExplAttrInfos(#90,OPT)
    0x02019E29, // #2529.ExplAttrInfos(#90,OPT)
    0x02019E46, // #2530.ExplAttrInfos(#14,OPT)
    0x02019E63, // #2531.ExplAttrInfos(#2532,OPT)
    0x02019E82, // #2520.Attributes(#2521,#2522,#2523,#2524,#2525,#2526,#2527,#2528,#2529,#2530,#2531)
    0x02019ED6, // #2535.Supertypes(#98)
    0x02019EEC, // #2535.Composition(#2535,#98)
    0x02019F09, // #2534.Supertypes(#2535)
    0x02019F21, // #2534.Composition(#2535,#2534,#98)
    0x02019F44, // #2533.Supertypes(#2534)
    0x02019F5C, // #2533.Composition(#2533,#2535,#2534,#98)
    0x02019F85, // #2536.ExplAttrInfos(#806,REQ)
    0x02019FA3, // #2537.ExplAttrInfos(#2538,REQ)
    0x02019FC2, // #2533.Attributes(#2536,#2537)
    0x02019FE0, // #2539.Supertypes(#2535)
    0x02019FF8, // #2539.Composition(#2539,#2535,#98)
    0x0201A01B, // #2540.ExplAttrInfos(#2541,REQ)
    0x0201A03A, // #2542.ExplAttrInfos(#435,OPT)
    0x0201A058, // #2539.Attributes(#2540,#2542)
    0x0201A076, // #2543.Supertypes(#2539)
    0x0201A08E, // #2543.Composition(#2539,#2543,#2535,#98)
    0x0201A0B7, // #2544.ExplAttrInfos(#1192,REQ)
    0x0201A0D6, // #2545.ExplAttrInfos(#116,OPT)
    0x0201A0F4, // #2543.Attributes(#2544,#2545)
    0x0201A112, // #2546.Supertypes(#2539)
    0x0201A12A, // #2546.Composition(#2539,#2546,#2535,#98)
    0x0201A153, // #2547.ExplAttrInfos(#1187,REQ)
    0x01022B4E, // #2546.Attributes(#2547)
    0x0201A172, // #2548.Supertypes(#2539)
    0x0201A18A, // #2548.Composition(#2539,#2548,#2535,#98)
    0x0201A1B3, // #2549.ExplAttrInfos(#1293,REQ)
    0x01022BC0, // #2548.Attributes(#2549)
    0x0201A1D2, // #2550.Supertypes(#2548)
    0x0201A1EA, // #2550.Composition(#2539,#2548,#2550,#2535,#98)
    0x0201A219, // #2551.ExplAttrInfos(#83,REQ)
    0x0201A236, // #2550.Attributes(#2551)
    0x0201A24E, // #2552.Supertypes(#2539)
    0x0201A266, // #2552.Composition(#2539,#2552,#2535,#98)
    0x0201A28F, // #2553.ExplAttrInfos(#1056,REQ)
    0x0201A2AE, // #2554.ExplAttrInfos(#616,OPT)
    0x0201A2CC, // #2552.Attributes(#2553,#2554)
    0x0201A2EA, // #2555.Supertypes(#2539)
    0x0201A302, // #2555.Composition(#2539,#2555,#2535,#98)
    0x0201A32B, // #2556.ExplAttrInfos(#1077,REQ)
    0x0201A34A, // #2555.Attributes(#2556)
    0x0201A362, // #2557.Supertypes(#2539)
    0x0201A37A, // #2557.Composition(#2539,#2557,#2535,#98)
    0x0201A3A3, // #2558.ExplAttrInfos(#1128,REQ)
    0x0201A3C2, // #2557.Attributes(#2558)
    0x0201A3DA, // #2559.Supertypes(#2535)
    0x0201A3F2, // #2559.Composition(#2559,#2535,#98)
    0x0201A415, // #2560.ExplAttrInfos(#2561,REQ)
    0x0201A434, // #2559.Attributes(#2560)
    0x0201A44C, // #2562.Supertypes(#2559)
    0x0201A464, // #2562.Composition(#2559,#2562,#2535,#98)
    0x0201A48D, // #2563.ExplAttrInfos(#1080,REQ)
    0x01022EB0, // #2562.Attributes(#2563)
    0x0201A4AC, // #2564.Supertypes(#2559)
    0x0201A4C4, // #2564.Composition(#2559,#2564,#2535,#98)
    0x0201A4ED, // #2565.ExplAttrInfos(#727,REQ)
    0x0201A50B, // #2564.Attributes(#2565)
    0x0201A523, // #2566.Supertypes(#2559)
    0x0201A53B, // #2566.Composition(#2559,#2566,#2535,#98)
    0x0201A564, // #2567.ExplAttrInfos(#14,OPT)
    0x0201A581, // #2568.ExplAttrInfos(#1090,REQ)
    0x0201A5A0, // #2566.Attributes(#2567,#2568)
    0x0201A5BE, // #2569.Supertypes(#2559)
    0x0201A5D6, // #2569.Composition(#2559,#2569,#2535,#98)
    0x0201A5FF, // #2570.ExplAttrInfos(#832,REQ)
    0x0201A61D, // #2569.Attributes(#2570)
    0x0201A635, // #2571.Supertypes(#2559)
    0x0201A64D, // #2571.Composition(#2559,#2571,#2535,#98)
    0x0201A676, // #2572.ExplAttrInfos(#967,REQ)
    0x0201A694, // #2571.Attributes(#2572)
    0x0201A6AC, // #2573.Supertypes(#2559)
    0x0201A6C4, // #2573.Composition(#2559,#2573,#2535,#98)
    0x0201A6ED, // #2574.ExplAttrInfos(#990,REQ)
    0x0201A70B, // #2573.Attributes(#2574)
    0x0201A723, // #2575.Supertypes(#2535)
    0x0201A73B, // #2575.Composition(#2535,#2575,#98)
    0x0201A75E, // #2576.Supertypes(#2575)
    0x0201A776, // #2576.Composition(#2535,#2575,#2576,#98)
    0x0201A79F, // #2577.ExplAttrInfos(#1549,OPT)
    0x0201A7BE, // #2578.ExplAttrInfos(#1163,REQ)
    0x0201A7DD, // #2579.ExplAttrInfos(#1163,REQ)
    0x0201A7FC, // #2576.Attributes(#2577,#2578,#2579)
    0x0201A820, // #2580.Supertypes(#2576)
    0x0201A838, // #2580.Composition(#2535,#2575,#2576,#2580,#98)
    0x0201A867, // #2581.ExplAttrInfos(#2582,REQ)
    0x0201A886, // #2583.ExplAttrInfos(#2584,REQ)
    0x0201A8A5, // #2585.ExplAttrInfos(#275,REQ)
    0x0201A8C3, // #2586.ExplAttrInfos(#275,REQ)
    0x0201A8E1, // #2580.Attributes(#2581,#2583,#2585,#2586)
    0x0201A90B, // #2587.Supertypes(#2575)
    0x0201A923, // #2587.Composition(#2535,#2575,#2587,#98)
    0x0201A94C, // #2588.ExplAttrInfos(#1706,REQ)
    0x0201A96B, // #2589.ExplAttrInfos(#1196,REQ)
    0x0201A98A, // #2587.Attributes(#2588,#2589)
    0x0201A9A8, // #2590.Supertypes(#2575)
    0x0201A9C0, // #2590.Composition(#2535,#2575,#2590,#98)
    0x0201A9E9, // #2591.ExplAttrInfos(#1706,REQ)
    0x0201AA08, // #2592.ExplAttrInfos(#1706,REQ)
    0x0201AA27, // #2593.ExplAttrInfos(#1163,OPT)
    0x0201AA46, // #2590.Attributes(#2591,#2592,#2593)
    0x0201AA6A, // #2594.Supertypes(#2575)
    0x0201AA82, // #2594.Composition(#2535,#2575,#2594,#98)
    0x0201AAAB, // #2595.ExplAttrInfos(#1167,REQ)
    0x0201AACA, // #2597.Supertypes(#1068)
    0x0201AAE2, // #2597.Composition(#1043,#806,#1068,#98,#2597)
    0x0201AB10, // #2599.Composition(#2599)
    0x0201AB29, // #2600.ExplAttrInfos(#14,OPT)
    0x0201AB46, // #2599.Attributes(#2600)
    0x0201AB5E, // #2598.ExplAttrInfos(#2599,REQ)
    0x0201AB7D, // #2601.ExplAttrInfos(#391,REQ)
    0x0201AB9B, // #2597.Attributes(#2598,#2601)
    0x0201ABB9, // #2596.ExplAttrInfos(#2597,REQ)
    0x0201ABD8, // #2594.Attributes(#2595,#2596)
    0x0201ABF6, // #2602.Supertypes(#2575)
    0x0201AC0E, // #2602.Composition(#2535,#2575,#2602,#98)
    0x0201AC37, // #2604.Supertypes(#1165)
    0x0201AC4F, // #2604.Composition(#1043,#806,#1068,#98,#1165,#2604)
    0x0201AC83, // #2603.ExplAttrInfos(#2604,REQ)
    0x0201ACA2, // #2606.Supertypes(#1165)
    0x0201ACBA, // #2606.Composition(#1043,#806,#1068,#98,#2606,#1165)
    0x0201ACEE, // #2607.ExplAttrInfos(#1378,OPT)
    0x0201AD0D, // #2606.Attributes(#2607)
    0x0201AD25, // #2605.ExplAttrInfos(#2606,REQ)
    0x0201AD44, // #2608.ExplAttrInfos(#1378,OPT)
    0x0201AD63, // #2609.ExplAttrInfos(#1866,OPT)
    0x0201AD82, // #2610.ExplAttrInfos(#56,OPT)
    0x0201AD9F, // #2611.ExplAttrInfos(#672,OPT)
    0x0201ADBD, // #2602.Attributes(#2603,#2605,#2608,#2609,#2610,#2611)
    0x0201ADF3, // #2612.Supertypes(#2602)
    0x0201AE0B, // #2612.Composition(#2535,#2575,#2602,#2612,#98)
    0x0201AE3A, // #2613.ExplAttrInfos(#1549,REQ)
    0x0201AE59, // #2612.Attributes(#2613)
    0x0201AE71, // #2614.Supertypes(#2576)
    0x0201AE89, // #2614.Composition(#2535,#2575,#2576,#2614,#98)
    0x0201AEB8, // #2615.ExplAttrInfos(#2616,REQ)
    0x0201AED7, // #2617.ExplAttrInfos(#14,OPT)
    0x0201AEF4, // #2614.Attributes(#2615,#2617)
    0x0201AF12, // #2618.Supertypes(#2575)
    0x0201AF2A, // #2618.Composition(#2535,#2575,#2618,#98)
    0x0201AF53, // #2619.ExplAttrInfos(#2620,REQ)
    0x0201AF72, // #2621.ExplAttrInfos(#1151,REQ)
    0x0201AF91, // #2618.Attributes(#2619,#2621)
    0x0201AFAF, // #2622.Supertypes(#2575)
    0x0201AFC7, // #2622.Composition(#2535,#2575,#2622,#98)
    0x0201AFF0, // #2623.ExplAttrInfos(#1163,REQ)
    0x0201B00F, // #2624.ExplAttrInfos(#2625,REQ)
    0x0201B02E, // #2622.Attributes(#2623,#2624)
    0x0201B04C, // #2626.Supertypes(#2575)
    0x0201B064, // #2626.Composition(#2535,#2575,#2626,#98)
    0x0201B08D, // #2627.ExplAttrInfos(#1154,REQ)
    0x0201B0AC, // #2628.ExplAttrInfos(#2629,REQ)
    0x0201B0CB, // #2626.Attributes(#2627,#2628)
    0x0201B0E9, // #2630.Supertypes(#2535)
    0x0201B101, // #2630.Composition(#2535,#2630,#98)
    0x0201B124, // #2631.ExplAttrInfos(#1606,REQ)
    0x0201B143, // #2632.ExplAttrInfos(#2633,REQ)
    0x0201B162, // #2630.Attributes(#2631,#2632)
    0x0201B180, // #2634.Supertypes(#2535)
    0x0201B198, // #2634.Composition(#2535,#2634,#98)
    0x0201B1BB, // #2635.Supertypes(#2634)
    0x0201B1D3, // #2635.Composition(#2535,#2634,#2635,#98)
    0x0201B1FC, // #2636.ExplAttrInfos(#2637,REQ)
    0x0201B21B, // #2638.ExplAttrInfos(#1043,REQ)
    0x0201B23A, // #2635.Attributes(#2636,#2638)
    0x0201B258, // #2639.Supertypes(#2634)
    0x0201B270, // #2639.Composition(#2535,#2634,#2639,#98)
    0x0201B299, // #2640.ExplAttrInfos(#2641,REQ)
    0x0201B2B8, // #2642.ExplAttrInfos(#1079,REQ)
    0x0201B2D7, // #2639.Attributes(#2640,#2642)
    0x0201B2F5, // #2643.Supertypes(#2634)
    0x0201B30D, // #2643.Composition(#2535,#2634,#2643,#98)
    0x01023C74, // #2644.ExplAttrInfos(#2645,REQ)
    0x0201B336, // #2646.ExplAttrInfos(#2355,REQ)
    0x01023CB2, // #2643.Attributes(#2644,#2646)
    0x0201B355, // #2647.Supertypes(#2634)
    0x0201B36D, // #2647.Composition(#2535,#2634,#2647,#98)
    0x0201B396, // #2648.ExplAttrInfos(#2649,REQ)
    0x0201B3B5, // #2650.ExplAttrInfos(#1048,REQ)
    0x0201B3D4, // #2647.Attributes(#2648,#2650)
    0x0201B3F2, // #2651.Supertypes(#2575)
    0x0201B40A, // #2651.Composition(#2535,#2575,#2651,#98)
    0x0201B433, // #2652.ExplAttrInfos(#2206,REQ)
    0x0201B452, // #2653.ExplAttrInfos(#1163,REQ)
    0x0201B471, // #2651.Attributes(#2652,#2653)
    0x0201B48F, // #2654.Supertypes(#2575)
    0x0201B4A7, // #2654.Composition(#2535,#2575,#2654,#98)
    0x01023E3F, // #2655.ExplAttrInfos(#2656,REQ)
    0x0201B4D0, // #2657.ExplAttrInfos(#1213,REQ)
    0x0201B4EF, // #2654.Attributes(#2655,#2657)
    0x0201B50D, // #2658.Supertypes(#2575)
    0x0201B525, // #2658.Composition(#2535,#2575,#2658,#98)
    0x0201B54E, // #2659.ExplAttrInfos(#1163,REQ)
    0x0201B56D, // #2660.ExplAttrInfos(#1163,REQ)
    0x0201B58C, // #2661.ExplAttrInfos(#1549,OPT)
    0x0201B5AB, // #2662.ExplAttrInfos(#48,OPT)
    0x0201B5C8, // #2663.ExplAttrInfos(LogicalType,REQ)
    0x0201B5ED, // #2658.Attributes(#2659,#2660,#2661,#2662,#2663)
    0x0201B61D, // #2664.Supertypes(#2534)
    0x0201B635, // #2664.Composition(#2535,#2534,#2664,#98)
    0x0201B65E, // #2665.ExplAttrInfos(#806,REQ)
    0x0201B67C, // #2666.ExplAttrInfos(#2667,REQ)
    0x0201B69B, // #2664.Attributes(#2665,#2666)
    0x0201B6B9, // #2668.Supertypes(#2534)
    0x0201B6D1, // #2668.Composition(#2535,#2534,#2668,#98)
    0x0201B6FA, // #2669.ExplAttrInfos(#1163,REQ)
    0x0201B719, // #2670.ExplAttrInfos(#1883,REQ)
    0x0201B738, // #2668.Attributes(#2669,#2670)
    0x0201B756, // #2671.Supertypes(#2575)
    0x0201B76E, // #2671.Composition(#2535,#2575,#2671,#98)
    0x0102411F, // #2672.ExplAttrInfos(#2673,REQ)
    0x0201B797, // #2674.ExplAttrInfos(#1151,REQ)
    0x0201B7B6, // #2671.Attributes(#2672,#2674)
    0x0201B7D4, // #2675.Supertypes(#2575)
    0x0201B7EC, // #2675.Composition(#2535,#2575,#2675,#98)
    0x0201B815, // #2676.ExplAttrInfos(#1042,REQ)
    0x0201B834, // #2677.ExplAttrInfos(#1042,REQ)
    0x0201B853, // #2678.ExplAttrInfos(#2026,OPT)
    0x0201B872, // #2679.ExplAttrInfos(#515,OPT)
    0x0201B890, // #2680.ExplAttrInfos(#14,OPT)
    0x0201B8AD, // #2675.Attributes(#2676,#2677,#2678,#2679,#2680)
    0x0201B8DD, // #2681.Supertypes(#2575)
    0x0201B8F5, // #2681.Composition(#2535,#2575,#2681,#98)
    0x0201B91E, // #2682.ExplAttrInfos(#1434,REQ)
    0x0201B93D, // #2683.ExplAttrInfos(#2684,REQ)
    0x0201B95C, // #2681.Attributes(#2682,#2683)
    0x0201B97A, // #2685.Supertypes(#2575)
    0x0201B992, // #2685.Composition(#2535,#2575,#2685,#98)
    0x0201B9BB, // #2686.ExplAttrInfos(#1160,REQ)
    0x0201B9DA, // #2687.ExplAttrInfos(#1163,REQ)
    0x0201B9F9, // #2688.ExplAttrInfos(#1549,OPT)
    0x0201BA18, // #2689.ExplAttrInfos(#451,REQ)
    0x0201BA36, // #2690.ExplAttrInfos(#401,REQ)
    0x0201BA54, // #2685.Attributes(#2686,#2687,#2688,#2689,#2690)
    0x0201BA84, // #2691.Supertypes(#2685)
    0x0201BA9C, // #2691.Composition(#2535,#2575,#2685,#2691,#98)
    0x0201BACB, // #2692.ExplAttrInfos(#2691,OPT)
    0x0201BAEA, // #2691.Attributes(#2692)
    0x0201BB02, // #2693.Supertypes(#2691)
    0x0201BB1A, // #2693.Composition(#2535,#2575,#2685,#2691,#2693,#98)
    0x0201BB4F, // #2694.ExplAttrInfos(#2693,OPT)
    0x0201BB6E, // #2693.Attributes(#2694)
    0x0201BB86, // #2695.Supertypes(#2534)
    0x0201BB9E, // #2695.Composition(#2535,#2534,#2695,#98)
    0x0201BBC7, // #2696.ExplAttrInfos(#1163,REQ)
    0x0201BBE6, // #2697.ExplAttrInfos(#1884,REQ)
    0x0201BC05, // #2695.Attributes(#2696,#2697)
    0x0201BC23, // #2698.Supertypes(#780)
    0x0201BC3A, // #2698.Composition(#780,#661,#2698,#662)
    0x0201BC62, // #2699.ExplAttrInfos(#87,REQ)
    0x0201BC7F, // #2698.Attributes(#2699)
    0x0201BC97, // #2700.Supertypes(#1279)
    0x0201BCAF, // #2700.Composition(#2700,#1279)
    0x0201BCCE, // #2701.ExplAttrInfos(#2702,REQ)
    0x0201BCED, // #2703.ExplAttrInfos(#1080,REQ)
    0x0201BD0C, // #2700.Attributes(#2701,#2703)
    0x0201BD2A, // #2704.Supertypes(#1279)
    0x0201BD42, // #2704.Composition(#2704,#1279)
    0x0201BD61, // #2705.ExplAttrInfos(#1090,REQ)
    0x0201BD80, // #2706.ExplAttrInfos(#2707,REQ)
    0x0201BD9F, // #2704.Attributes(#2705,#2706)
    0x0201BDBD, // #2708.Supertypes(#1853)
    0x0201BDD5, // #2708.Composition(#661,#662,#2708,#688,#1853)
    0x0201BE03, // #2709.ExplAttrInfos(#1323,REQ)
    0x0201BE22, // #2710.ExplAttrInfos(#89,REQ)
    0x0201BE3F, // #2708.Attributes(#2709,#2710)
    0x0201BE5D, // #2711.Supertypes(#2708)
    0x0201BE75, // #2711.Composition(#661,#662,#2708,#2711,#688,#1853)
    0x0201BEA9, // #2712.ExplAttrInfos(#1106,REQ)
    0x0102490A, // #2711.Attributes(#2712)
    0x0201BEC8, // #2713.Supertypes(#682)
    0x0201BEDF, // #2713.Composition(#682,#661,#662,#2713)
    0x01024965, // #2714.ExplAttrInfos(#90,REQ)
    0x0201BF07, // #2715.ExplAttrInfos(#90,REQ)
    0x0201BF24, // #2713.Attributes(#2714,#2715)
    0x0201BF42, // #2716.Supertypes(#682)
    0x0201BF59, // #2716.Composition(#682,#661,#662,#2716)
    0x0201BF81, // #2717.ExplAttrInfos(#90,REQ)
    0x0201BF9E, // #2718.ExplAttrInfos(#90,REQ)
    0x0201BFBB, // #2716.Attributes(#2717,#2718)
    0x0201BFD9, // #1.Entities(#2372,#2374,#2376,#2378,#2380,#2383,#2385,#2387,#2390,#2393,#1807,#2396,#2399,#2402,#2405,#2407,#2409,#2411,#2413,#2415,#2417,#2420,#2424,#2425,#2431,#2435,#2443,#650,#2459,#2462,#2469,#2476,#2492,#2500,#2493,#2501,#2510,#2520,#2533,#2539,#2543,#2546,#2548,#2550,#2552,#2555,#2557,#2559,#2562,#2564,#2566,#2569,#2571,#2573,#2575,#2576,#2580,#2587,#2590,#2594,#2602,#2612,#2614,#2618,#2622,#2626,#2630,#2534,#2634,#2635,#2639,#2643,#2647,#2651,#2654,#2658,#2664,#2668,#2671,#2675,#2681,#2685,#2691,#2693,#2695,#2535,#2698,#947,#748,#662,#1063,#1120,#2700,#2704,#1279,#1568,#2708,#2711,#2713,#2716)
    0x0201C23A, // #2719.Supertypes(#1360)
    0x0201C252, // #2719.Composition(#1360,#1163,#1043,#806,#1068,#2719,#98)
    0x0201C28C, // #2720.ExplAttrInfos(#503,OPT)
    0x01024AC6, // #2719.Attributes(#2720)
    0x0201C2AA, // #2721.Supertypes(#1364)
    0x0201C2C2, // #2721.Composition(#1364,#1201,#806,#2721,#98,#1048,#1072)
    0x0201C2FC, // #2722.ExplAttrInfos(#503,REQ)
    0x01024B5A, // #2721.Attributes(#2722)
    0x0201C31A, // #2723.Supertypes(#2425)
    0x0201C332, // #2723.Composition(#1305,#1106,#2425,#2723)
    0x0201C35D, // #2724.ExplAttrInfos(#90,REQ)
    0x0201C37A, // #2723.Attributes(#2724)
    0x0201C392, // #2725.Supertypes(#631)
    0x0201C3A9, // #2725.Composition(#631,#2725)
    0x0201C3C7, // #2726.ExplAttrInfos(#505,OPT)
    0x0201C3E5, // #2727.ExplAttrInfos(#507,REQ)
    0x0201C403, // #2725.Attributes(#2726,#2727)
    0x0201C421, // #2728.Supertypes(#1212)
    0x0201C439, // #2728.Composition(#1196,#1213,#1163,#1212,#1043,#806,#1068,#98,#2728)
    0x0201C47F, // #2729.ExplAttrInfos(#509,OPT)
    0x0201C49D, // #2728.Attributes(#2729)
    0x0201C4B5, // #2730.Supertypes(#1223)
    0x0201C4CD, // #2730.Composition(#1200,#1220,#1201,#1223,#806,#98,#2730,#1048,#1072)
    0x0201C513, // #2731.ExplAttrInfos(#509,REQ)
    0x0201C531, // #2730.Attributes(#2731)
    0x0201C549, // #2732.Supertypes(#789)
    0x0201C560, // #2732.Composition(#778,#661,#662,#2732,#789)
    0x0201C58D, // #2733.Supertypes(#688)
    0x0201C5A4, // #2733.Composition(#661,#662,#2733,#688)
    0x0201C5CC, // #2734.ExplAttrInfos(#778,REQ)
    0x0201C5EA, // #2735.ExplAttrInfos(#2736,REQ)
    0x0201C609, // #2733.Attributes(#2734,#2735)
    0x0201C627, // #2737.Supertypes(#2733)
    0x0201C63F, // #2737.Composition(#661,#662,#2733,#2737,#688)
    0x0201C66D, // #2738.ExplAttrInfos(#2739,REQ)
    0x0201C68C, // #2740.ExplAttrInfos(#13,REQ)
    0x0201C6A9, // #2737.Attributes(#2738,#2740)
    0x0201C6C7, // #2741.Supertypes(#661)
    0x0201C6DE, // #2741.Composition(#661,#662,#2741)
    0x0201C701, // #2742.ExplAttrInfos(#776,REQ)
    0x0201C71F, // #2743.ExplAttrInfos(#2744,REQ)
    0x0201C73E, // #2745.ExplAttrInfos(#2746,REQ)
    0x0201C75D, // #2741.Attributes(#2742,#2743,#2745)
    0x0201C781, // #2747.Supertypes(#1195)
    0x0201C799, // #2747.Composition(#1195,#1196,#1163,#1043,#806,#1068,#98,#2747)
    0x0201C7D9, // #2748.ExplAttrInfos(#513,OPT)
    0x0201C7F7, // #2747.Attributes(#2748)
    0x0201C80F, // #2749.Supertypes(#1199)
    0x0201C827, // #2749.Composition(#1199,#1200,#1201,#806,#98,#2749,#1048,#1072)
    0x0201C867, // #2750.ExplAttrInfos(#513,REQ)
    0x0201C885, // #2749.Attributes(#2750)
    0x0201C89D, // #2751.Supertypes(#1360)
    0x0201C8B5, // #2751.Composition(#1360,#1163,#1043,#806,#1068,#98,#2751)
    0x0201C8EF, // #2752.ExplAttrInfos(#517,OPT)
    0x0201C90D, // #2751.Attributes(#2752)
    0x0201C925, // #2753.Supertypes(#1364)
    0x0201C93D, // #2753.Composition(#1364,#1201,#806,#98,#2753,#1048,#1072)
    0x0201C977, // #2754.ExplAttrInfos(#517,REQ)
    0x0201C995, // #2753.Attributes(#2754)
    0x0201C9AD, // #2755.Supertypes(#1112)
    0x0201C9C5, // #2755.Composition(#947,#1112,#2755)
    0x0201C9E9, // #2756.Supertypes(#661)
    0x0201CA00, // #2756.Composition(#661,#662,#2756)
    0x0201CA23, // #2757.ExplAttrInfos(#2758,REQ)
    0x0201CA42, // #2756.Attributes(#2757)
    0x0201CA5A, // #2759.Supertypes(#1528)
    0x0201CA72, // #2759.Composition(#97,#1528,#1529,#98,#2759)
    0x0201CA9F, // #2760.ExplAttrInfos(#519,OPT)
    0x0201CABD, // #2761.ExplAttrInfos(#14,OPT)
    0x0201CADA, // #2762.ExplAttrInfos(#14,OPT)
    0x0201CAF7, // #2763.ExplAttrInfos(#2340,OPT)
    0x0201CB16, // #2764.ExplAttrInfos(#649,OPT)
    0x0201CB34, // #2765.ExplAttrInfos(#649,OPT)
    0x0201CB52, // #2766.ExplAttrInfos(#14,OPT)
    0x0201CB6F, // #2767.ExplAttrInfos(#151,OPT)
    0x0201CB8D, // #2759.Attributes(#2760,#2761,#2762,#2763,#2764,#2765,#2766,#2767)
    0x0201CBCF, // #2768.Supertypes(#1155)
    0x0201CBE7, // #2768.Composition(#1043,#806,#1068,#98,#2768,#1151,#1155)
    0x0201CC21, // #2769.ExplAttrInfos(#20,OPT)
    0x0201CC3E, // #2770.ExplAttrInfos(#20,OPT)
    0x0201CC5B, // #2771.ExplAttrInfos(#56,OPT)
    0x0201CC78, // #2772.ExplAttrInfos(#14,OPT)
    0x0201CC95, // #2773.ExplAttrInfos(#1412,OPT)
    0x0201CCB4, // #2768.Attributes(#2769,#2770,#2771,#2772,#2773)
    0x0201CCE4, // #2774.Supertypes(#1360)
    0x0201CCFC, // #2774.Composition(#1360,#1163,#1043,#806,#1068,#98,#2774)
    0x0201CD36, // #2775.ExplAttrInfos(#521,OPT)
    0x0201CD54, // #2774.Attributes(#2775)
    0x0201CD6C, // #2776.Supertypes(#2774)
    0x0201CD84, // #2776.Composition(#1360,#1163,#1043,#806,#1068,#98,#2774,#2776)
    0x0201CDC4, // #2777.Supertypes(#2774)
    0x0201CDDC, // #2777.Composition(#1360,#1163,#1043,#806,#1068,#98,#2774,#2777)
    0x0201CE1C, // #2778.Supertypes(#1364)
    0x0201CE34, // #2778.Composition(#1364,#1201,#806,#98,#2778,#1048,#1072)
    0x0201CE6E, // #2779.ExplAttrInfos(#521,REQ)
    0x0201CE8C, // #2778.Attributes(#2779)
    0x0201CEA4, // #2780.Supertypes(#1866)
    0x0201CEBC, // #2780.Composition(#2780,#1866)
    0x0201CEDB, // #2781.ExplAttrInfos(#56,OPT)
    0x0201CEF8, // #2782.ExplAttrInfos(#56,OPT)
    0x0201CF15, // #2783.ExplAttrInfos(#56,OPT)
    0x0201CF32, // #2780.Attributes(#2781,#2782,#2783)
    0x0201CF56, // #2784.Supertypes(#1226)
    0x0201CF6E, // #2784.Composition(#1196,#1213,#1163,#1226,#1043,#806,#1068,#98,#2784)
    0x0201CFB4, // #2785.ExplAttrInfos(#523,OPT)
    0x0201CFD2, // #2784.Attributes(#2785)
    0x0201CFEA, // #2786.Supertypes(#1229)
    0x0201D002, // #2786.Composition(#1200,#1220,#1201,#1229,#806,#98,#2786,#1048,#1072)
    0x0201D048, // #2787.ExplAttrInfos(#523,REQ)
    0x0201D066, // #2786.Attributes(#2787)
    0x0201D07E, // #2788.Supertypes(#1212)
    0x0201D096, // #2788.Composition(#1196,#1213,#1163,#1212,#1043,#806,#1068,#98,#2788)
    0x0201D0DC, // #2789.ExplAttrInfos(#525,OPT)
    0x01025C29, // #2788.Attributes(#2789)
    0x0201D0FA, // #2790.Supertypes(#1223)
    0x0201D112, // #2790.Composition(#1200,#1220,#1201,#1223,#806,#98,#2790,#1048,#1072)
    0x0201D158, // #2791.ExplAttrInfos(#525,REQ)
    0x01025CA4, // #2790.Attributes(#2791)
    0x0201D176, // #2794.Supertypes(#1072)
    0x0201D18E, // #2794.Composition(#806,#98,#2794,#1048,#1072)
    0x0201D1BC, // #2795.ExplAttrInfos(#14,OPT)
    0x01025DCC, // #2794.Attributes(#2795)
    0x0201D1D9, // #2793.Supertypes(#2794)
    0x0201D1F1, // #2793.Composition(#806,#98,#2794,#2793,#1048,#1072)
    0x0201D225, // #2792.Supertypes(#2793)
    0x0201D23D, // #2792.Composition(#806,#98,#2792,#2794,#2793,#1048,#1072)
    0x0201D277, // #2796.ExplAttrInfos(#527,REQ)
    0x0201D295, // #2797.ExplAttrInfos(#14,OPT)
    0x0201D2B2, // #2792.Attributes(#2796,#2797)
    0x0201D2D0, // #2798.Supertypes(#1151)
    0x0201D2E8, // #2798.Composition(#1043,#806,#1068,#98,#1151,#2798)
    0x0201D31C, // #2799.ExplAttrInfos(#529,OPT)
    0x0201D33A, // #2798.Attributes(#2799)
    0x0201D352, // #2800.Supertypes(#2794)
    0x0201D36A, // #2800.Composition(#806,#98,#2794,#2800,#1048,#1072)
    0x0201D39E, // #2801.ExplAttrInfos(#529,REQ)
    0x0201D3BC, // #2802.ExplAttrInfos(#14,OPT)
    0x0201D3D9, // #2800.Attributes(#2801,#2802)
    0x0201D3F7, // #2803.Supertypes(#682)
    0x0201D40E, // #2803.Composition(#682,#661,#662,#2803)
    0x0201D436, // #2804.ExplAttrInfos(#90,REQ)
    0x0201D453, // #2803.Attributes(#2804)
    0x0201D46B, // #2805.Supertypes(#1667)
    0x0201D483, // #2805.Composition(#1667,#661,#662,#2805,#686)
    0x0201D4B1, // #2806.ExplAttrInfos(#90,REQ)
    0x0201D4CE, // #2805.Attributes(#2806)
    0x0201D4E6, // #2807.Supertypes(#1212)
    0x0201D4FE, // #2807.Composition(#1196,#1213,#1163,#1212,#1043,#806,#1068,#98,#2807)
    0x0201D544, // #2808.ExplAttrInfos(#531,OPT)
    0x0201D562, // #2807.Attributes(#2808)
    0x0201D57A, // #2809.Supertypes(#1223)
    0x0201D592, // #2809.Composition(#1200,#1220,#1201,#1223,#806,#98,#2809,#1048,#1072)
    0x0201D5D8, // #2810.ExplAttrInfos(#531,REQ)
    0x0201D5F6, // #2809.Attributes(#2810)
    0x0201D60E, // #2811.Supertypes(#1360)
    0x0201D626, // #2811.Composition(#1360,#1163,#1043,#806,#1068,#98,#2811)
    0x0201D660, // #2812.ExplAttrInfos(#535,OPT)
    0x0201D67E, // #2811.Attributes(#2812)
    0x0201D696, // #2813.Supertypes(#1360)
    0x0201D6AE, // #2813.Composition(#1360,#1163,#1043,#806,#1068,#98,#2813)
    0x0201D6E8, // #2814.ExplAttrInfos(#6,OPT)
    0x0201D704, // #2815.ExplAttrInfos(#6,OPT)
    0x0201D720, // #2816.ExplAttrInfos(#90,OPT)
    0x0201D73D, // #2817.ExplAttrInfos(#90,OPT)
    0x0201D75A, // #2818.ExplAttrInfos(#533,OPT)
    0x0201D778, // #2813.Attributes(#2814,#2815,#2816,#2817,#2818)
    0x0201D7A8, // #2819.Supertypes(#1364)
    0x0201D7C0, // #2819.Composition(#1364,#1201,#806,#98,#2819,#1048,#1072)
    0x0201D7FA, // #2820.ExplAttrInfos(#533,REQ)
    0x0201D818, // #2819.Attributes(#2820)
    0x0201D830, // #2821.Supertypes(#1364)
    0x0201D848, // #2821.Composition(#1364,#1201,#806,#98,#2821,#1048,#1072)
    0x0201D882, // #2822.ExplAttrInfos(#535,REQ)
    0x0201D8A0, // #2821.Attributes(#2822)
    0x0201D8B8, // #2823.Supertypes(#2597)
    0x0201D8D0, // #2823.Composition(#1043,#806,#1068,#98,#2823,#2597)
    0x0201D904, // #2824.ExplAttrInfos(#13,OPT)
    0x0201D921, // #2823.Attributes(#2824)
    0x0201D939, // #2825.Supertypes(#1434)
    0x0201D951, // #2825.Composition(#1293,#1043,#806,#98,#2825,#1434)
    0x0201D985, // #2826.ExplAttrInfos(#221,REQ)
    0x0201D9A3, // #2827.ExplAttrInfos(#672,OPT)
    0x0201D9C1, // #2829.Supertypes(#1293)
    0x0201D9D9, // #2829.Composition(#1293,#1043,#806,#98,#2829)
    0x0201DA07, // #2830.ExplAttrInfos(#421,REQ)
    0x0201DA25, // #2831.ExplAttrInfos(#207,REQ)
    0x0201DA43, // #2832.ExplAttrInfos(#205,REQ)
    0x0201DA61, // #2833.ExplAttrInfos(#83,OPT)
    0x0201DA7E, // #2834.ExplAttrInfos(#14,OPT)
    0x0201DA9B, // #2829.Attributes(#2830,#2831,#2832,#2833,#2834)
    0x0201DACB, // #2828.ExplAttrInfos(#2835,OPT)
    0x0201DAEA, // #2837.Supertypes(#1293)
    0x0201DB02, // #2837.Composition(#1293,#1043,#806,#98,#2837)
    0x0201DB30, // #2838.ExplAttrInfos(#223,REQ)
    0x0201DB4E, // #2839.ExplAttrInfos(#2829,OPT)
    0x0201DB6D, // #2840.ExplAttrInfos(#13,REQ)
    0x0201DB8A, // #2837.Attributes(#2838,#2839,#2840)
    0x0201DBAE, // #2836.ExplAttrInfos(#2841,OPT)
    0x0201DBCD, // #2842.ExplAttrInfos(#1070,OPT)
    0x0201DBEC, // #2825.Attributes(#2826,#2827,#2828,#2836,#2842)
    0x0201DC1C, // #2843.Supertypes(#2823)
    0x0201DC34, // #2843.Composition(#1043,#806,#1068,#98,#2823,#2597,#2843)
    0x0201DC6E, // #2844.ExplAttrInfos(#471,OPT)
    0x0201DC8C, // #2845.ExplAttrInfos(#537,REQ)
    0x0201DCAA, // #2843.Attributes(#2844,#2845)
    0x0201DCC8, // #2846.Supertypes(#2606)
    0x0201DCE0, // #2846.Composition(#1043,#806,#1068,#98,#2606,#2846,#1165)
    0x0201DD1A, // #2847.ExplAttrInfos(#669,REQ)
    0x0201DD38, // #2846.Attributes(#2847)
    0x0201DD50, // #2848.Supertypes(#2604)
    0x0201DD68, // #2848.Composition(#1043,#806,#1068,#98,#2848,#1165,#2604)
    0x0201DDA2, // #2849.ExplAttrInfos(#539,REQ)
    0x0201DDC0, // #2850.ExplAttrInfos(#669,REQ)
    0x0201DDDE, // #2848.Attributes(#2849,#2850)
    0x0201DDFC, // #2851.Supertypes(#2848)
    0x0201DE14, // #2851.Composition(#1043,#806,#1068,#98,#2848,#2851,#1165,#2604)
    0x0201DE54, // #2853.Supertypes(#2597)
    0x0201DE6C, // #2853.Composition(#1043,#806,#1068,#98,#2597,#2853)
    0x0201DEA0, // #2852.Supertypes(#2853)
    0x0201DEB8, // #2852.Composition(#1043,#806,#1068,#98,#2597,#2852,#2853)
    0x0201DEF2, // #2854.ExplAttrInfos(#537,REQ)
    0x0201DF10, // #2852.Attributes(#2854)
    0x0201DF28, // #2855.Supertypes(#2843)
    0x0201DF40, // #2855.Composition(#1043,#806,#1068,#98,#2823,#2597,#2843,#2855)
    0x0201DF80, // #2856.Supertypes(#2829)
    0x0201DF98, // #2856.Composition(#1293,#1043,#806,#98,#2856,#2829)
    0x0201DFCC, // #2857.ExplAttrInfos(#2858,OPT)
    0x0201DFEB, // #2856.Attributes(#2857)
    0x0201E003, // #2859.Supertypes(#2599)
    0x0201E01B, // #2859.Composition(#2599,#2859)
    0x0201E03A, // #2861.Supertypes(#2599)
    0x0201E052, // #2861.Composition(#2599,#2861)
    0x0201E071, // #2860.ExplAttrInfos(#2862,REQ)
    0x0201E090, // #2863.ExplAttrInfos(#2865,OPT)
    0x0201E0AF, // #2859.Attributes(#2860,#2863)
    0x0201E0CD, // #2867.Supertypes(#2861)
    0x0201E0E5, // #2867.Composition(#2599,#2861,#2867)
    0x0201E10A, // #2866.Supertypes(#2867)
    0x0201E122, // #2866.Composition(#2599,#2866,#2861,#2867)
    0x0201E14D, // #2868.ExplAttrInfos(#59,OPT)
    0x0201E16A, // #2869.ExplAttrInfos(#59,OPT)
    0x0201E187, // #2870.ExplAttrInfos(#59,OPT)
    0x0201E1A4, // #2871.ExplAttrInfos(#60,OPT)
    0x0201E1C1, // #2872.ExplAttrInfos(#60,OPT)
    0x0201E1DE, // #2873.ExplAttrInfos(#60,OPT)
    0x0201E1FB, // #2866.Attributes(#2868,#2869,#2870,#2871,#2872,#2873)
    0x0201E231, // #2874.Supertypes(#2867)
    0x0201E249, // #2874.Composition(#2599,#2861,#2874,#2867)
    0x0201E274, // #2875.ExplAttrInfos(#88,OPT)
    0x0201E291, // #2876.ExplAttrInfos(#88,OPT)
    0x0201E2AE, // #2877.ExplAttrInfos(#88,OPT)
    0x0201E2CB, // #2874.Attributes(#2875,#2876,#2877)
    0x0201E2EF, // #2878.Supertypes(#2867)
    0x0201E307, // #2878.Composition(#2599,#2861,#2878,#2867)
    0x0201E332, // #2879.ExplAttrInfos(#56,OPT)
    0x0201E34F, // #2880.ExplAttrInfos(#56,OPT)
    0x0201E36C, // #2881.ExplAttrInfos(#56,OPT)
    0x0201E389, // #2882.ExplAttrInfos(#89,OPT)
    0x0201E3A6, // #2883.ExplAttrInfos(#89,OPT)
    0x0201E3C3, // #2884.ExplAttrInfos(#89,OPT)
    0x0201E3E0, // #2878.Attributes(#2879,#2880,#2881,#2882,#2883,#2884)
    0x0201E416, // #2885.Supertypes(#2878)
    0x0201E42E, // #2885.Composition(#2599,#2861,#2878,#2885,#2867)
    0x0201E45F, // #2886.ExplAttrInfos(#23,OPT)
    0x0201E47C, // #2885.Attributes(#2886)
    0x0201E494, // #2887.Supertypes(#2867)
    0x0201E4AC, // #2887.Composition(#2599,#2861,#2887,#2867)
    0x0201E4D7, // #2888.ExplAttrInfos(#43,OPT)
    0x0201E4F4, // #2889.ExplAttrInfos(#43,OPT)
    0x0201E511, // #2890.ExplAttrInfos(#43,OPT)
    0x0201E52E, // #2891.ExplAttrInfos(#195,OPT)
    0x0201E54C, // #2892.ExplAttrInfos(#195,OPT)
    0x0201E56A, // #2893.ExplAttrInfos(#195,OPT)
    0x0201E588, // #2887.Attributes(#2888,#2889,#2890,#2891,#2892,#2893)
    0x0201E5BE, // #2894.Supertypes(#2887)
    0x0201E5D6, // #2894.Composition(#2599,#2861,#2887,#2894,#2867)
    0x0201E607, // #2895.ExplAttrInfos(#201,OPT)
    0x0201E625, // #2894.Attributes(#2895)
    0x0201E63D, // #2896.Supertypes(#2867)
    0x0201E655, // #2896.Composition(#2599,#2861,#2867,#2896)
    0x0201E680, // #2897.ExplAttrInfos(#192,OPT)
    0x0201E69E, // #2898.ExplAttrInfos(#192,OPT)
    0x0201E6BC, // #2899.ExplAttrInfos(#192,OPT)
    0x0201E6DA, // #2896.Attributes(#2897,#2898,#2899)
    0x0201E6FE, // #2901.Supertypes(#2823)
    0x0201E716, // #2901.Composition(#1043,#806,#1068,#98,#2823,#2597,#2901)
    0x0201E750, // #2902.ExplAttrInfos(#471,OPT)
    0x0201E76E, // #2903.ExplAttrInfos(#541,REQ)
    0x0201E78C, // #2901.Attributes(#2902,#2903)
    0x0201E7AA, // #2900.Supertypes(#2901)
    0x0201E7C2, // #2900.Composition(#1043,#806,#1068,#98,#2823,#2597,#2900,#2901)
    0x0201E802, // #2904.Supertypes(#2823)
    0x0201E81A, // #2904.Composition(#1043,#806,#1068,#98,#2823,#2597,#2904)
    0x0201E854, // #2905.Supertypes(#2606)
    0x0201E86C, // #2905.Composition(#1043,#806,#1068,#98,#2606,#1165,#2905)
    0x0201E8A6, // #2906.ExplAttrInfos(#672,OPT)
    0x0201E8C4, // #2905.Attributes(#2906)
    0x0201E8DC, // #2907.Supertypes(#2853)
    0x0201E8F4, // #2907.Composition(#1043,#806,#1068,#98,#2597,#2907,#2853)
    0x0201E92E, // #2908.Supertypes(#2606)
    0x0201E946, // #2908.Composition(#1043,#806,#1068,#98,#2606,#1165,#2908)
    0x0201E980, // #2909.Supertypes(#2604)
    0x0201E998, // #2909.Composition(#1043,#806,#1068,#98,#1165,#2604,#2909)
    0x0201E9D2, // #2910.ExplAttrInfos(#543,REQ)
    0x0201E9F0, // #2911.ExplAttrInfos(#90,OPT)
    0x0201EA0D, // #2909.Attributes(#2910,#2911)
    0x0201EA2B, // #2912.Supertypes(#2909)
    0x0201EA43, // #2912.Composition(#1043,#806,#1068,#98,#1165,#2604,#2909,#2912)
    0x0201EA83, // #2913.Supertypes(#2853)
    0x0201EA9B, // #2913.Composition(#1043,#806,#1068,#98,#2597,#2853,#2913)
    0x0201EAD5, // #2914.ExplAttrInfos(#541,REQ)
    0x0201EAF3, // #2913.Attributes(#2914)
    0x0201EB0B, // #2915.Supertypes(#947)
    0x0201EB22, // #2915.Composition(#947,#2915)
    0x0201EB40, // #2916.Supertypes(#2915)
    0x0201EB58, // #2916.Composition(#947,#2916,#2915)
    0x0201EB7C, // #2917.Supertypes(#1566)
    0x0201EB94, // #2917.Composition(#1566,#1043,#806,#1120,#98,#2917)
    0x0201EBC8, // #2918.ExplAttrInfos(#545,OPT)
    0x0201EBE6, // #2917.Attributes(#2918)
    0x0201EBFE, // #2919.Supertypes(#1593)
    0x0201EC16, // #2919.Composition(#1593,#806,#98,#2919,#1048,#1123)
    0x0201EC4A, // #2920.ExplAttrInfos(#545,REQ)
    0x0201EC68, // #2919.Attributes(#2920)
    0x0201EC80, // #2921.Supertypes(#797)
    0x0201EC97, // #2921.Composition(#797,#662,#2921,#798)
    0x0201ECBF, // #2922.ExplAttrInfos(#797,REQ)
    0x0201ECDD, // #2921.Attributes(#2922)
    0x0201ECF5, // #2923.Supertypes(#1136)
    0x0201ED0D, // #2923.Composition(#1136,#662,#2923,#798)
    0x0201ED36, // #2924.ExplAttrInfos(#1136,REQ)
    0x0201ED55, // #2923.Attributes(#2924)
    0x0201ED6D, // #2925.Supertypes(#1853)
    0x0201ED85, // #2925.Composition(#661,#662,#688,#2925,#1853)
    0x0201EDB3, // #2926.ExplAttrInfos(#778,REQ)
    0x0201EDD1, // #2927.ExplAttrInfos(#87,OPT)
    0x0201EDEE, // #2928.ExplAttrInfos(#87,OPT)
    0x0201EE0B, // #2929.ExplAttrInfos(#686,REQ)
    0x0201EE29, // #2925.Attributes(#2926,#2927,#2928,#2929)
    0x0201EE53, // #2930.Supertypes(#1882)
    0x0201EE6B, // #2930.Composition(#1163,#1882,#1043,#806,#1068,#98,#2930)
    0x0201EEA5, // #2931.ExplAttrInfos(#547,OPT)
    0x0201EEC3, // #2930.Attributes(#2931)
    0x0201EEDB, // #2933.Supertypes(#686)
    0x0201EEF2, // #2933.Composition(#661,#662,#686,#2933)
    0x0201EF1A, // #2934.ExplAttrInfos(#1106,REQ)
    0x0201EF39, // #2935.ExplAttrInfos(#672,OPT)
    0x0201EF57, // #2933.Attributes(#2934,#2935)
    0x0201EF75, // #2932.Supertypes(#2933)
    0x0201EF8D, // #2932.Composition(#661,#662,#686,#2932,#2933)
    0x0201EFBB, // #2936.ExplAttrInfos(#669,REQ)
    0x0201EFD9, // #2937.ExplAttrInfos(#56,REQ)
    0x0201EFF6, // #2932.Attributes(#2936,#2937)
    0x0201F014, // #1.Entities(#2719,#2721,#98,#2723,#2725,#2728,#2730,#1569,#2732,#2485,#2479,#2733,#2737,#2741,#2747,#2749,#2751,#2753,#1110,#1112,#2755,#2756,#2327,#2759,#2768,#2774,#2776,#2777,#2778,#2780,#2784,#2786,#688,#1154,#2788,#2790,#2792,#1151,#2794,#1155,#2793,#2798,#2800,#2803,#2805,#2807,#2809,#2811,#2813,#2819,#2821,#2823,#2597,#2825,#2606,#1866,#2843,#2846,#2848,#2851,#2852,#1165,#2855,#2599,#2856,#2859,#2829,#2866,#2861,#2874,#2878,#2885,#2887,#2894,#2867,#2896,#2604,#2900,#2904,#2905,#2907,#2853,#2837,#2901,#2908,#2909,#2912,#2913,#2915,#858,#2916,#2917,#2919,#2921,#2923,#686,#789,#2925,#2930,#2932)
    0x0201F273, // #2938.Supertypes(#2933)
    0x0201F28B, // #2938.Composition(#661,#662,#686,#2938,#2933)
    0x0201F2B9, // #2939.ExplAttrInfos(#1323,REQ)
    0x0201F2D8, // #2938.Attributes(#2939)
    0x0201F2F0, // #2940.Supertypes(#2861)
    0x0201F308, // #2940.Composition(#2599,#2861,#2940)
    0x0201F32D, // #2941.ExplAttrInfos(#2942,OPT)
    0x0201F34C, // #2943.ExplAttrInfos(#2944,OPT)
    0x0201F36B, // #2945.ExplAttrInfos(#83,OPT)
    0x0201F388, // #2940.Attributes(#2941,#2943,#2945)
    0x0201F3AC, // #2946.Supertypes(#881)
    0x0201F3C3, // #2946.Composition(#729,#2946,#881)
    0x0201F3E6, // #2947.ExplAttrInfos(#741,OPT)
    0x0201F404, // #2948.ExplAttrInfos(#741,OPT)
    0x0201F422, // #2949.ExplAttrInfos(#741,OPT)
    0x0201F440, // #2950.ExplAttrInfos(#741,OPT)
    0x0201F45E, // #2951.ExplAttrInfos(#741,OPT)
    0x0201F47C, // #2952.ExplAttrInfos(#1162,OPT)
    0x0201F49B, // #2953.ExplAttrInfos(#493,REQ)
    0x0201F4B9, // #2946.Attributes(#2947,#2948,#2949,#2950,#2951,#2952,#2953)
    0x0201F4F5, // #2954.Supertypes(#688)
    0x0201F50C, // #2954.Composition(#661,#662,#688,#2954)
    0x0201F534, // #2955.ExplAttrInfos(#778,REQ)
    0x0201F552, // #2956.ExplAttrInfos(#90,REQ)
    0x0201F56F, // #2957.ExplAttrInfos(#90,OPT)
    0x0201F58C, // #2958.ExplAttrInfos(#87,OPT)
    0x0201F5A9, // #2959.ExplAttrInfos(#87,OPT)
    0x0201F5C6, // #2954.Attributes(#2955,#2956,#2957,#2958,#2959)
    0x0201F5F6, // #2960.Supertypes(#2954)
    0x0201F60E, // #2960.Composition(#661,#662,#688,#2954,#2960)
    0x0201F63C, // #2961.ExplAttrInfos(#90,OPT)
    0x0201F659, // #2960.Attributes(#2961)
    0x0201F671, // #2962.Supertypes(#1216)
    0x0201F689, // #2962.Composition(#1196,#1213,#1163,#1216,#1043,#806,#1068,#98,#2962)
    0x0201F6CF, // #2963.ExplAttrInfos(#551,OPT)
    0x0201F6ED, // #2962.Attributes(#2963)
    0x0201F705, // #2964.Supertypes(#1219)
    0x0201F71D, // #2964.Composition(#1200,#1220,#1201,#1219,#806,#98,#2964,#1048,#1072)
    0x0201F763, // #2965.ExplAttrInfos(#551,REQ)
    0x0201F781, // #2964.Attributes(#2965)
    0x0201F799, // #2966.Supertypes(#1910)
    0x0201F7B1, // #2966.Composition(#1163,#1910,#1043,#806,#1068,#98,#2966)
    0x0201F7EB, // #2967.ExplAttrInfos(#553,OPT)
    0x0201F809, // #2966.Attributes(#2967)
    0x0201F821, // #2968.Supertypes(#1911)
    0x0201F839, // #2968.Composition(#1201,#1911,#806,#98,#2968,#1048,#1072)
    0x0201F873, // #2969.ExplAttrInfos(#553,OPT)
    0x0201F891, // #2968.Attributes(#2969)
    0x0201F8A9, // #2970.Supertypes(#1305)
    0x0201F8C1, // #2970.Composition(#1305,#1106,#2970)
    0x0201F8E6, // #2971.ExplAttrInfos(#90,REQ)
    0x0201F903, // #2972.ExplAttrInfos(#90,REQ)
    0x0201F920, // #2973.ExplAttrInfos(#90,REQ)
    0x0201F93D, // #2974.ExplAttrInfos(#90,REQ)
    0x0201F95A, // #2975.ExplAttrInfos(#82,OPT)
    0x0201F977, // #2976.ExplAttrInfos(#82,OPT)
    0x0201F994, // #2977.ExplAttrInfos(#82,OPT)
    0x0201F9B1, // #2978.ExplAttrInfos(#89,OPT)
    0x0201F9CE, // #2979.ExplAttrInfos(#89,OPT)
    0x0201F9EB, // #2970.Attributes(#2971,#2972,#2973,#2974,#2975,#2976,#2977,#2978,#2979)
    0x0201FA33, // #2980.Supertypes(#1784)
    0x0201FA4B, // #2980.Composition(#1196,#1213,#1163,#1784,#1043,#806,#1068,#98,#2980)
    0x0201FA91, // #2981.ExplAttrInfos(#555,OPT)
    0x0201FAAF, // #2980.Attributes(#2981)
    0x0201FAC7, // #2982.Supertypes(#1787)
    0x0201FADF, // #2982.Composition(#1200,#1220,#1201,#1787,#806,#98,#2982,#1048,#1072)
    0x0201FB25, // #2983.ExplAttrInfos(#555,REQ)
    0x0201FB43, // #2982.Attributes(#2983)
    0x0201FB5B, // #2984.Supertypes(#1042)
    0x0201FB73, // #2984.Composition(#1043,#806,#1042,#98,#2984)
    0x0201FBA1, // #2985.ExplAttrInfos(#14,OPT)
    0x0201FBBE, // #2986.ExplAttrInfos(#14,OPT)
    0x0201FBDB, // #2987.ExplAttrInfos(#13,REQ)
    0x0201FBF8, // #2988.ExplAttrInfos(#6,OPT)
    0x0201FC14, // #2990.Supertypes(#1569)
    0x0201FC2C, // #2990.Composition(#1569,#2990)
    0x0201FC4B, // #2991.ExplAttrInfos(#557,OPT)
    0x0201FC69, // #2992.ExplAttrInfos(#31,OPT)
    0x0201FC86, // #2993.ExplAttrInfos(#25,OPT)
    0x0201FCA3, // #2994.ExplAttrInfos(#25,OPT)
    0x0201FCC0, // #2995.ExplAttrInfos(#25,OPT)
    0x0201FCDD, // #2996.ExplAttrInfos(#25,OPT)
    0x0201FCFA, // #2997.ExplAttrInfos(#25,OPT)
    0x0201FD17, // #2998.ExplAttrInfos(#25,OPT)
    0x0201FD34, // #2999.ExplAttrInfos(#31,OPT)
    0x0201FD51, // #3000.ExplAttrInfos(#31,OPT)
    0x0201FD6E, // #3001.ExplAttrInfos(#13,OPT)
    0x0201FD8B, // #3002.ExplAttrInfos(#25,OPT)
    0x0201FDA8, // #3003.ExplAttrInfos(#31,OPT)
    0x0201FDC5, // #3004.ExplAttrInfos(#25,OPT)
    0x0201FDE2, // #3005.ExplAttrInfos(#25,OPT)
    0x0201FDFF, // #3006.ExplAttrInfos(#31,OPT)
    0x0201FE1C, // #3007.ExplAttrInfos(#92,OPT)
    0x0201FE39, // #2990.Attributes(#2991,#2992,#2993,#2994,#2995,#2996,#2997,#2998,#2999,#3000,#3001,#3002,#3003,#3004,#3005,#3006,#3007)
    0x0201FEB1, // #2989.ExplAttrInfos(#2990,OPT)
    0x0201FED0, // #3008.ExplAttrInfos(#559,OPT)
    0x0201FEEE, // #2984.Attributes(#2985,#2986,#2987,#2988,#2989,#3008)
    0x0201FF24, // #3009.Supertypes(#2990)
    0x0201FF3C, // #3009.Composition(#1569,#2990,#3009)
    0x0201FF61, // #3010.ExplAttrInfos(#2443,REQ)
    0x0201FF80, // #3009.Attributes(#3010)
    0x0201FF98, // #3011.Supertypes(#1047)
    0x0201FFB0, // #3011.Composition(#806,#98,#3011,#1048,#1047)
    0x0201FFDE, // #3012.ExplAttrInfos(#559,REQ)
    0x0201FFFC, // #3013.ExplAttrInfos(#14,OPT)
    0x02020019, // #3011.Attributes(#3012,#3013)
    0x02020037, // #3014.Supertypes(#125)
    0x0202004E, // #3014.Composition(#125,#3014)
    0x0202006C, // #3015.ExplAttrInfos(#3016,OPT)
    0x0202008B, // #3017.ExplAttrInfos(#3018,OPT)
    0x020200AA, // #3019.ExplAttrInfos(#14,OPT)
    0x020200C7, // #3020.ExplAttrInfos(#3021,OPT)
    0x020200E6, // #3022.ExplAttrInfos(#196,OPT)
    0x02020104, // #3023.ExplAttrInfos(#3024,OPT)
    0x02020123, // #3014.Attributes(#3015,#3017,#3019,#3020,#3022,#3023)
    0x02020159, // #3025.Supertypes(#2493)
    0x02020171, // #3025.Composition(#1163,#1422,#1043,#806,#1068,#2493,#98,#3025)
    0x020201B1, // #3026.ExplAttrInfos(#563,OPT)
    0x01028C83, // #3027.ExplAttrInfos(#90,OPT)
    0x01028CA0, // #3028.ExplAttrInfos(#11,OPT)
    0x020201CF, // #3029.ExplAttrInfos(#43,OPT)
    0x020201EC, // #3030.ExplAttrInfos(#95,OPT)
    0x02020209, // #3031.ExplAttrInfos(#84,OPT)
    0x02020226, // #3032.ExplAttrInfos(#90,OPT)
    0x02020243, // #3033.ExplAttrInfos(#90,OPT)
    0x02020260, // #3025.Attributes(#3026,#3027,#3028,#3029,#3030,#3031,#3032,#3033)
    0x020202A2, // #3034.Supertypes(#2493)
    0x020202BA, // #3034.Composition(#1163,#1422,#1043,#806,#1068,#2493,#98,#3034)
    0x020202FA, // #3035.ExplAttrInfos(#561,OPT)
    0x02020318, // #3034.Attributes(#3035)
    0x02020330, // #3036.Supertypes(#2501)
    0x02020348, // #3036.Composition(#1425,#1201,#806,#2501,#98,#3036,#1048,#1072)
    0x02020388, // #3037.ExplAttrInfos(#561,REQ)
    0x020203A6, // #3036.Attributes(#3037)
    0x020203BE, // #3038.Supertypes(#2501)
    0x020203D6, // #3038.Composition(#1425,#1201,#806,#2501,#98,#3038,#1048,#1072)
    0x02020416, // #3039.ExplAttrInfos(#563,REQ)
    0x02020434, // #3040.ExplAttrInfos(#90,OPT)
    0x02020451, // #3041.ExplAttrInfos(#11,OPT)
    0x0202046E, // #3042.ExplAttrInfos(#90,OPT)
    0x0202048B, // #3038.Attributes(#3039,#3040,#3041,#3042)
    0x020204B5, // #3043.Supertypes(#661)
    0x020204CC, // #3043.Composition(#661,#662,#3043)
    0x020204EF, // #3044.ExplAttrInfos(#94,REQ)
    0x0202050C, // #3045.ExplAttrInfos(#676,REQ)
    0x0202052A, // #3046.ExplAttrInfos(#565,REQ)
    0x02020548, // #3043.Attributes(#3044,#3045,#3046)
    0x0202056C, // #3047.Supertypes(#3043)
    0x02020584, // #3047.Composition(#661,#662,#3043,#3047)
    0x020205AD, // #3048.ExplAttrInfos(#2264,REQ)
    0x020205CC, // #3049.ExplAttrInfos(#15,REQ)
    0x020205E9, // #3047.Attributes(#3048,#3049)
    0x02020607, // #3050.Supertypes(#919)
    0x0202061E, // #3050.Composition(#732,#919,#729,#3050)
    0x01029060, // #3051.ExplAttrInfos(#3052,REQ)
    0x02020646, // #3053.ExplAttrInfos(#40,OPT)
    0x02020663, // #3054.ExplAttrInfos(#41,OPT)
    0x02020680, // #3055.ExplAttrInfos(#42,OPT)
    0x0202069D, // #3056.ExplAttrInfos(#842,REQ)
    0x020206BB, // #3050.Attributes(#3051,#3053,#3054,#3055,#3056)
    0x020206EB, // #3057.Supertypes(#1978)
    0x02020703, // #3057.Composition(#729,#1978,#3057)
    0x02020727, // #3058.ExplAttrInfos(#14,REQ)
    0x02020744, // #3059.ExplAttrInfos(#3060,OPT)
    0x02020763, // #3057.Attributes(#3058,#3059)
    0x02020781, // #3061.Supertypes(#1978)
    0x02020799, // #3061.Composition(#729,#1978,#3061)
    0x020207BD, // #3063.Supertypes(#729)
    0x020207D4, // #3063.Composition(#729,#3063)
    0x020207F2, // #3064.ExplAttrInfos(#3065,REQ)
    0x0102935F, // #3063.Attributes(#3064)
    0x02020811, // #3062.ExplAttrInfos(#3066,REQ)
    0x02020830, // #3067.ExplAttrInfos(#1136,REQ)
    0x0202084F, // #3061.Attributes(#3062,#3067)
    0x0202086D, // #3068.Supertypes(#1112)
    0x02020885, // #3068.Composition(#947,#1112,#3068)
    0x020208A9, // #3069.Supertypes(#1667)
    0x020208C1, // #3069.Composition(#1667,#661,#662,#686,#3069)
    0x01029470, // #3070.ExplAttrInfos(#90,REQ)
    0x020208EF, // #3071.ExplAttrInfos(#90,REQ)
    0x0202090C, // #3069.Attributes(#3070,#3071)
    0x0202092A, // #3072.Supertypes(#1226)
    0x02020942, // #3072.Composition(#1196,#1213,#1163,#1226,#1043,#806,#1068,#98,#3072)
    0x02020988, // #3073.ExplAttrInfos(#569,OPT)
    0x020209A6, // #3072.Attributes(#3073)
    0x020209BE, // #3074.Supertypes(#1229)
    0x020209D6, // #3074.Composition(#1200,#1220,#1201,#1229,#806,#98,#3074,#1048,#1072)
    0x02020A1C, // #3075.ExplAttrInfos(#569,REQ)
    0x02020A3A, // #3074.Attributes(#3075)
    0x02020A52, // #3076.Supertypes(#1249)
    0x02020A6A, // #3076.Composition(#777,#778,#1249,#661,#662,#3076)
    0x02020A9D, // #3077.ExplAttrInfos(#90,OPT)
    0x02020ABA, // #3078.ExplAttrInfos(#90,OPT)
    0x02020AD7, // #3079.ExplAttrInfos(#13,REQ)
    0x02020AF4, // #3080.ExplAttrInfos(#13,REQ)
    0x02020B11, // #3081.ExplAttrInfos(#573,REQ)
    0x02020B2F, // #3076.Attributes(#3077,#3078,#3079,#3080,#3081)
    0x02020B5F, // #3082.Supertypes(#1163)
    0x02020B77, // #3082.Composition(#1163,#1043,#806,#1068,#98,#3082)
    0x02020BAB, // #3083.ExplAttrInfos(#575,OPT)
    0x02020BC9, // #3082.Attributes(#3083)
    0x02020BE1, // #3084.Supertypes(#1201)
    0x02020BF9, // #3084.Composition(#1201,#806,#98,#3084,#1048,#1072)
    0x02020C2D, // #3085.ExplAttrInfos(#575,REQ)
    0x02020C4B, // #3084.Attributes(#3085)
    0x02020C63, // #3086.Supertypes(#1305)
    0x02020C7B, // #3086.Composition(#1305,#1106,#3086)
    0x02020CA0, // #3087.ExplAttrInfos(#90,REQ)
    0x02020CBD, // #3088.ExplAttrInfos(#90,REQ)
    0x02020CDA, // #3089.ExplAttrInfos(#90,REQ)
    0x02020CF7, // #3090.ExplAttrInfos(#56,REQ)
    0x02020D14, // #3086.Attributes(#3087,#3088,#3089,#3090)
    0x02020D3E, // #3091.Supertypes(#689)
    0x02020D55, // #3091.Composition(#661,#662,#689,#690,#3091)
    0x02020D82, // #3092.ExplAttrInfos(#3094,OPT)
    0x02020DA1, // #3095.ExplAttrInfos(#13,OPT)
    0x02020DBE, // #3096.ExplAttrInfos(#3098,REQ)
    0x02020DDD, // #3099.ExplAttrInfos(#3100,OPT)
    0x02020DFC, // #3091.Attributes(#3092,#3095,#3096,#3099)
    0x02020E26, // #3101.Supertypes(#3091)
    0x02020E3E, // #3101.Composition(#661,#662,#689,#690,#3091,#3101)
    0x02020E71, // #3102.ExplAttrInfos(#3103,REQ)
    0x02020E90, // #3101.Attributes(#3102)
    0x02020EA8, // #3104.Supertypes(#777)
    0x02020EBF, // #3104.Composition(#777,#778,#661,#662,#3104)
    0x02020EEC, // #3105.ExplAttrInfos(#778,REQ)
    0x02020F0A, // #3106.ExplAttrInfos(#3107,REQ)
    0x02020F29, // #3108.ExplAttrInfos(#3109,REQ)
    0x02020F48, // #3110.ExplAttrInfos(#13,REQ)
    0x02020F65, // #3111.ExplAttrInfos(#577,REQ)
    0x02020F83, // #3104.Attributes(#3105,#3106,#3108,#3110,#3111)
    0x02020FB3, // #3112.Supertypes(#1226)
    0x02020FCB, // #3112.Composition(#1196,#1213,#1163,#1226,#1043,#806,#1068,#98,#3112)
    0x02021011, // #3113.ExplAttrInfos(#579,OPT)
    0x01029C5D, // #3112.Attributes(#3113)
    0x0202102F, // #3114.Supertypes(#1229)
    0x02021047, // #3114.Composition(#1200,#1220,#1201,#1229,#806,#98,#3114,#1048,#1072)
    0x0202108D, // #3115.ExplAttrInfos(#579,REQ)
    0x01029CF1, // #3114.Attributes(#3115)
    0x020210AB, // #3116.Supertypes(#1305)
    0x020210C3, // #3116.Composition(#1305,#1106,#3116)
    0x020210E8, // #3117.ExplAttrInfos(#90,REQ)
    0x02021105, // #3118.ExplAttrInfos(#90,REQ)
    0x02021122, // #3119.ExplAttrInfos(#90,REQ)
    0x0202113F, // #3120.ExplAttrInfos(#90,REQ)
    0x0202115C, // #3121.ExplAttrInfos(#82,OPT)
    0x02021179, // #3122.ExplAttrInfos(#82,OPT)
    0x02021196, // #3123.ExplAttrInfos(#89,OPT)
    0x020211B3, // #3116.Attributes(#3117,#3118,#3119,#3120,#3121,#3122,#3123)
    0x020211EF, // #3124.Supertypes(#1325)
    0x02021207, // #3124.Composition(#777,#1325,#778,#661,#662,#3124)
    0x0202123A, // #3125.Supertypes(#1195)
    0x02021252, // #3125.Composition(#1195,#1196,#1163,#1043,#806,#1068,#98,#3125)
    0x02021292, // #3126.ExplAttrInfos(#583,OPT)
    0x01029FDA, // #3125.Attributes(#3126)
    0x020212B0, // #3127.Supertypes(#1199)
    0x020212C8, // #3127.Composition(#1199,#1200,#1201,#806,#98,#1048,#1072,#3127)
    0x02021308, // #3128.ExplAttrInfos(#583,REQ)
    0x02021326, // #3127.Attributes(#3128)
    0x0202133E, // #3129.Supertypes(#1226)
    0x02021356, // #3129.Composition(#1196,#1213,#1163,#1226,#1043,#806,#1068,#98,#3129)
    0x0202139C, // #3130.ExplAttrInfos(#585,OPT)
    0x0102A112, // #3129.Attributes(#3130)
    0x020213BA, // #3131.Supertypes(#1229)
    0x020213D2, // #3131.Composition(#1200,#1220,#1201,#1229,#806,#98,#1048,#1072,#3131)
    0x02021418, // #3132.ExplAttrInfos(#585,REQ)
    0x0102A1A6, // #3131.Attributes(#3132)
    0x02021436, // #3133.Supertypes(#1216)
    0x0202144E, // #3133.Composition(#1196,#1213,#1163,#1216,#1043,#806,#1068,#98,#3133)
    0x02021494, // #3134.ExplAttrInfos(#587,OPT)
    0x0102A23A, // #3133.Attributes(#3134)
    0x020214B2, // #3135.Supertypes(#1219)
    0x020214CA, // #3135.Composition(#1200,#1220,#1201,#1219,#806,#98,#1048,#1072,#3135)
    0x02021510, // #3136.ExplAttrInfos(#587,REQ)
    0x0202152E, // #3135.Attributes(#3136)
    0x02021546, // #3137.Supertypes(#1140)
    0x0202155E, // #3137.Composition(#1140,#662,#798,#3137)
    0x02021587, // #3138.ExplAttrInfos(#800,REQ)
    0x020215A5, // #3137.Attributes(#3138)
    0x020215BD, // #3139.Supertypes(#1422)
    0x020215D5, // #3139.Composition(#1163,#1422,#1043,#806,#1068,#98,#3139)
    0x0202160F, // #3140.ExplAttrInfos(#589,OPT)
    0x0202162D, // #3139.Attributes(#3140)
    0x02021645, // #3141.Supertypes(#1425)
    0x0202165D, // #3141.Composition(#1425,#1201,#806,#98,#1048,#1072,#3141)
    0x02021697, // #3142.ExplAttrInfos(#589,REQ)
    0x020216B5, // #3141.Attributes(#3142)
    0x020216CD, // #3143.Supertypes(#1163)
    0x020216E5, // #3143.Composition(#1163,#1043,#806,#1068,#98,#3143)
    0x02021719, // #3144.Supertypes(#1884)
    0x02021731, // #3144.Composition(#1163,#1882,#1884,#1043,#806,#1068,#98,#3144)
    0x02021771, // #3145.ExplAttrInfos(#591,OPT)
    0x0202178F, // #3144.Attributes(#3145)
    0x020217A7, // #3146.Supertypes(#1360)
    0x020217BF, // #3146.Composition(#1360,#1163,#1043,#806,#1068,#98,#3146)
    0x020217F9, // #3147.ExplAttrInfos(#593,OPT)
    0x02021817, // #3146.Attributes(#3147)
    0x0202182F, // #3148.Supertypes(#3146)
    0x02021847, // #3148.Composition(#1360,#1163,#1043,#806,#1068,#98,#3146,#3148)
    0x02021887, // #3149.Supertypes(#3146)
    0x0202189F, // #3149.Composition(#1360,#1163,#1043,#806,#1068,#98,#3146,#3149)
    0x020218DF, // #3150.Supertypes(#1364)
    0x020218F7, // #3150.Composition(#1364,#1201,#806,#98,#1048,#1072,#3150)
    0x02021931, // #3151.ExplAttrInfos(#593,REQ)
    0x0202194F, // #3150.Attributes(#3151)
    0x02021967, // #3152.Supertypes(#1212)
    0x0202197F, // #3152.Composition(#1196,#1213,#1163,#1212,#1043,#806,#1068,#98,#3152)
    0x020219C5, // #3153.ExplAttrInfos(#595,OPT)
    0x020219E3, // #3152.Attributes(#3153)
    0x020219FB, // #3154.Supertypes(#1223)
    0x02021A13, // #3154.Composition(#1200,#1220,#1201,#1223,#806,#98,#1048,#1072,#3154)
    0x02021A59, // #3155.ExplAttrInfos(#595,REQ)
    0x02021A77, // #3154.Attributes(#3155)
    0x02021A8F, // #3156.Supertypes(#1360)
    0x02021AA7, // #3156.Composition(#1360,#1163,#1043,#806,#1068,#98,#3156)
    0x0102A5E1, // #3157.ExplAttrInfos(#90,OPT)
    0x0102A5FE, // #3158.ExplAttrInfos(#90,OPT)
    0x02021AE1, // #3159.ExplAttrInfos(#605,OPT)
    0x02021AFF, // #3160.ExplAttrInfos(#607,OPT)
    0x02021B1D, // #3161.ExplAttrInfos(#14,OPT)
    0x02021B3A, // #3156.Attributes(#3157,#3158,#3159,#3160,#3161)
    0x02021B6A, // #3162.Supertypes(#1722)
    0x02021B82, // #3162.Composition(#1722,#97,#96,#98,#3162)
    0x02021BAD, // #3163.ExplAttrInfos(#90,OPT)
    0x02021BCA, // #3164.ExplAttrInfos(#82,OPT)
    0x02021BE7, // #3165.ExplAttrInfos(#82,OPT)
    0x02021C04, // #3166.ExplAttrInfos(#82,OPT)
    0x02021C21, // #3167.ExplAttrInfos(#84,OPT)
    0x02021C3E, // #3168.ExplAttrInfos(#84,OPT)
    0x02021C5B, // #3169.ExplAttrInfos(#84,OPT)
    0x02021C78, // #3170.ExplAttrInfos(#84,OPT)
    0x02021C95, // #3171.ExplAttrInfos(#1110,OPT)
    0x02021CB4, // #3172.ExplAttrInfos(#56,OPT)
    0x02021CD1, // #3173.ExplAttrInfos(#56,OPT)
    0x02021CEE, // #3174.ExplAttrInfos(#56,OPT)
    0x02021D0B, // #3162.Attributes(#3163,#3164,#3165,#3166,#3167,#3168,#3169,#3170,#3171,#3172,#3173,#3174)
    0x02021D65, // #3175.Supertypes(#1722)
    0x02021D7D, // #3175.Composition(#1722,#97,#96,#98,#3175)
    0x02021DA8, // #3176.ExplAttrInfos(#597,REQ)
    0x02021DC6, // #3177.ExplAttrInfos(#599,REQ)
    0x02021DE4, // #3178.ExplAttrInfos(#90,OPT)
    0x02021E01, // #3179.ExplAttrInfos(#90,OPT)
    0x02021E1E, // #3180.ExplAttrInfos(#1110,OPT)
    0x02021E3D, // #3175.Attributes(#3176,#3177,#3178,#3179,#3180)
    0x02021E6D, // #3181.Supertypes(#3156)
    0x02021E85, // #3181.Composition(#1360,#1163,#1043,#806,#1068,#98,#3156,#3181)
    0x02021EC5, // #3182.Supertypes(#1072)
    0x02021EDD, // #3182.Composition(#806,#98,#1048,#1072,#3182)
    0x02021F0B, // #3183.ExplAttrInfos(#601,REQ)
    0x02021F29, // #3184.ExplAttrInfos(#603,REQ)
    0x02021F47, // #3185.ExplAttrInfos(#13,REQ)
    0x02021F64, // #3186.ExplAttrInfos(#13,REQ)
    0x02021F81, // #3182.Attributes(#3183,#3184,#3185,#3186)
    0x02021FAB, // #3187.Supertypes(#1364)
    0x02021FC3, // #3187.Composition(#1364,#1201,#806,#98,#1048,#1072,#3187)
    0x02021FFD, // #3188.ExplAttrInfos(#605,REQ)
    0x0202201B, // #3189.ExplAttrInfos(#607,REQ)
    0x02022039, // #3190.ExplAttrInfos(#13,OPT)
    0x02022056, // #3191.ExplAttrInfos(#14,OPT)
    0x02022073, // #3187.Attributes(#3188,#3189,#3190,#3191)
    0x0202209D, // #3192.Supertypes(#1187)
    0x020220B5, // #3192.Composition(#1187,#1043,#806,#98,#3192)
    0x020220E3, // #3194.Supertypes(#1569)
    0x020220FB, // #3194.Composition(#1569,#3194)
    0x0202211A, // #3195.ExplAttrInfos(#2443,OPT)
    0x02022139, // #3196.ExplAttrInfos(#24,OPT)
    0x02022156, // #3197.ExplAttrInfos(#24,OPT)
    0x02022173, // #3194.Attributes(#3195,#3196,#3197)
    0x02022197, // #3193.ExplAttrInfos(#3198,OPT)
    0x020221B6, // #3199.ExplAttrInfos(#3200,OPT)
    0x020221D5, // #3201.ExplAttrInfos(#609,OPT)
    0x020221F3, // #3192.Attributes(#3193,#3199,#3201)
    0x02022217, // #3202.Supertypes(#1187)
    0x0202222F, // #3202.Composition(#1187,#1043,#806,#98,#3202)
    0x0202225D, // #3203.ExplAttrInfos(#25,REQ)
    0x0202227A, // #3204.ExplAttrInfos(#3205,OPT)
    0x02022299, // #3206.ExplAttrInfos(#14,OPT)
    0x020222B6, // #3207.ExplAttrInfos(#31,OPT)
    0x020222D3, // #3208.ExplAttrInfos(#31,OPT)
    0x020222F0, // #3209.ExplAttrInfos(#25,REQ)
    0x0202230D, // #3210.ExplAttrInfos(#25,OPT)
    0x0202232A, // #3202.Attributes(#3203,#3204,#3206,#3207,#3208,#3209,#3210)
    0x02022366, // #3211.Supertypes(#3202)
    0x0202237E, // #3211.Composition(#1187,#1043,#806,#98,#3202,#3211)
    0x020223B2, // #3212.ExplAttrInfos(#611,OPT)
    0x020223D0, // #3211.Attributes(#3212)
    0x020223E8, // #1.Entities(#2938,#2940,#869,#873,#878,#2946,#881,#884,#886,#1853,#2954,#2960,#2933,#2962,#2964,#1434,#2966,#2968,#2970,#1003,#1012,#1006,#2980,#2982,#2984,#2990,#3009,#3011,#3014,#3025,#3034,#3036,#3038,#689,#690,#3043,#3047,#903,#3050,#905,#909,#1978,#3057,#3061,#3063,#1983,#2455,#1019,#2465,#798,#3068,#3069,#3072,#3074,#3076,#3082,#3084,#3086,#3091,#3101,#3104,#3112,#3114,#1048,#1047,#1072,#1123,#3116,#3124,#1613,#3125,#3127,#3129,#3131,#3133,#3135,#846,#800,#3137,#1038,#3139,#3141,#3143,#936,#3144,#3146,#3148,#3149,#3150,#3152,#3154,#3156,#3162,#3175,#3181,#3182,#3187,#3192,#3202,#3211)
    0x0202263E, // #3213.Supertypes(#3202)
    0x02022656, // #3213.Composition(#1187,#1043,#806,#98,#3202,#3213)
    0x0202268A, // #3214.ExplAttrInfos(#613,OPT)
    0x020226A8, // #3213.Attributes(#3214)
    0x020226C0, // #3215.Supertypes(#1305)
    0x020226D8, // #3215.Composition(#1305,#1106,#3215)
    0x020226FD, // #3216.ExplAttrInfos(#90,REQ)
    0x0202271A, // #3217.ExplAttrInfos(#90,REQ)
    0x02022737, // #3218.ExplAttrInfos(#90,REQ)
    0x02022754, // #3219.ExplAttrInfos(#90,REQ)
    0x02022771, // #3220.ExplAttrInfos(#82,OPT)
    0x0202278E, // #3221.ExplAttrInfos(#82,OPT)
    0x020227AB, // #3215.Attributes(#3216,#3217,#3218,#3219,#3220,#3221)
    0x020227E1, // #3222.Supertypes(#1434)
    0x020227F9, // #3222.Composition(#1293,#1043,#806,#98,#1434,#3222)
    0x0202282D, // #3223.ExplAttrInfos(#14,OPT)
    0x0202284A, // #3222.Attributes(#3223)
    0x02022862, // #1.Entities(#3213,#3194,#3215,#3222)
};

} // namespace

SchemaTables tablesOfIFC4X1() noexcept {
    return {reinterpret_cast<const char*>(&texts), declarations, statements};
}

} // namespace velkor::schemas
