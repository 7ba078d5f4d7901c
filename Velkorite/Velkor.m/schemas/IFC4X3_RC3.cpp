// Made by velkor-dictgen from IFC4X3_RC3.exp (SHA-256 c1173060441a3536c71311280acba78f851b1b7b5202014800d1890370466724); do not edit.

#include "SchemaTables.h"

namespace velkor::schemas {

namespace {

struct Texts {
    char part0[59976];
    char part1[59735];
    char part2[22395];
};

constexpr Texts texts = {
    "Schema(IFC4X3_RC3)\0"
    "EnumerationType(CONSTANTCANT,LINEARTRANSITION,HELMERTCURVE,BLOSSCURVE,COSINECURVE,SINECURVE,VIENNESEBEND)\0"
    "DefinedType(IFCALIGNMENTCANTSEGMENTTYPEENUM,#217)\0"
    "EnumerationType(LINE,CIRCULARARC,CLOTHOID,CUBIC,HELMERTCURVE,BLOSSCURVE,CUBICSPIRAL,COSINECURVE,SINECURVE,VIENNESEBEND)\0"
    "DefinedType(IFCALIGNMENTHORIZONTALSEGMENTTYPEENUM,#219)\0"
    "DefinedType(IFCALIGNMENTTYPEENUM,#221)\0"
    "EnumerationType(CONSTANTGRADIENT,CIRCULARARC,PARABOLICARC,CLOTHOID)\0"
    "DefinedType(IFCALIGNMENTVERTICALSEGMENTTYPEENUM,#223)\0"
    "DefinedType(IFCANALYSISMODELTYPEENUM,#225)\0"
    "DefinedType(IFCANALYSISTHEORYTYPEENUM,#227)\0"
    "DefinedType(IFCANNOTATIONTYPEENUM,#229)\0"
    "DefinedType(IFCARITHMETICOPERATORENUM,#231)\0"
    "DefinedType(IFCASSEMBLYPLACEENUM,#233)\0"
    "DefinedType(IFCAUDIOVISUALAPPLIANCETYPEENUM,#235)\0"
    "DefinedType(IFCBSPLINECURVEFORM,#237)\0"
    "DefinedType(IFCBSPLINESURFACEFORM,#239)\0"
    "DefinedType(IFCBEAMTYPEENUM,#241)\0"
    "DefinedType(IFCBEARINGTYPEDISPLACEMENTENUM,#243)\0"
    "EnumerationType(ANCHORPLATE,BRACKET,SHOE,EXPANSION_JOINT_DEVICE,CABLEARRANGER,INSULATOR,LOCK,TENSIONINGEQUIPMENT,RAILPAD,SLIDINGCHAIR,RAIL_LUBRICATION,PANEL_STRENGTHENING,RAILBRACE,ELASTIC_CUSHION,SOUNDABSORPTION,POINTMACHINEMOUNTINGDEVICE,POINT_MACHINE_LOCKING_DEVICE,RAIL_MECHANICAL_EQUIPMENT,BIRDPROTECTION,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCDOORSTYLECONSTRUCTIONENUM,#351)\0"
    "DefinedType(IFCDOORSTYLEOPERATIONENUM,#353)\0"
    "DefinedType(IFCDOORTYPEENUM,#355)\0"
    "EnumerationType(SINGLE_SWING_LEFT,SINGLE_SWING_RIGHT,DOUBLE_PANEL_SINGLE_SWING,DOUBLE_PANEL_SINGLE_SWING_OPPOSITE_LEFT,DOUBLE_PANEL_SINGLE_SWING_OPPOSITE_RIGHT,DOUBLE_SWING_LEFT,DOUBLE_SWING_RIGHT,DOUBLE_PANEL_DOUBLE_SWING,SLIDING_TO_LEFT,SLIDING_TO_RIGHT,DOUBLE_PANEL_SLIDING,FOLDING_TO_LEFT,FOLDING_TO_RIGHT,DOUBLE_PANEL_FOLDING,REVOLVING_HORIZONTAL,ROLLINGUP,SWING_FIXED_LEFT,SWING_FIXED_RIGHT,DOUBLE_PANEL_LIFTING_VERTICAL,LIFTING_HORIZONTAL,LIFTING_VERTICAL_LEFT,LIFTING_VERTICAL_RIGHT,REVOLVING_VERTICAL,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCDOORTYPEOPERATIONENUM,#357)\0"
    "DefinedType(IFCDUCTFITTINGTYPEENUM,#359)\0"
    "DefinedType(IFCDUCTSEGMENTTYPEENUM,#361)\0"
    "DefinedType(IFCDUCTSILENCERTYPEENUM,#363)\0"
    "DefinedType(IFCEARTHWORKSCUTTYPEENUM,#365)\0"
    "DefinedType(IFCEARTHWORKSFILLTYPEENUM,#367)\0"
    "DefinedType(IFCELECTRICAPPLIANCETYPEENUM,#369)\0"
    "DefinedType(IFCELECTRICDISTRIBUTIONBOARDTYPEENUM,#371)\0"
    "DefinedType(IFCELECTRICFLOWSTORAGEDEVICETYPEENUM,#373)\0"
    "DefinedType(IFCELECTRICFLOWTREATMENTDEVICETYPEENUM,#375)\0"
    "DefinedType(IFCELECTRICGENERATORTYPEENUM,#377)\0"
    "DefinedType(IFCELECTRICMOTORTYPEENUM,#379)\0"
    "DefinedType(IFCELECTRICTIMECONTROLTYPEENUM,#381)\0"
    "DefinedType(IFCELEMENTASSEMBLYTYPEENUM,#383)\0"
    "DefinedType(IFCELEMENTCOMPOSITIONENUM,#385)\0"
    "DefinedType(IFCENGINETYPEENUM,#387)\0"
    "DefinedType(IFCEVAPORATIVECOOLERTYPEENUM,#389)\0"
    "DefinedType(IFCEVAPORATORTYPEENUM,#391)\0"
    "DefinedType(IFCEVENTTRIGGERTYPEENUM,#393)\0"
    "DefinedType(IFCEVENTTYPEENUM,#395)\0"
    "DefinedType(IFCEXTERNALSPATIALELEMENTTYPEENUM,#397)\0"
    "DefinedType(IFCFACILITYPARTCOMMONTYPEENUM,#399)\0"
    "DefinedType(IFCFACILITYUSAGEENUM,#401)\0"
    "DefinedType(IFCFANTYPEENUM,#403)\0"
    "DefinedType(IFCFASTENERTYPEENUM,#405)\0"
    "DefinedType(IFCFILTERTYPEENUM,#407)\0"
    "EnumerationType(BREECHINGINLET,FIREHYDRANT,HOSEREEL,SPRINKLER,SPRINKLERDEFLECTOR,FIREMONITOR,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCFIRESUPPRESSIONTERMINALTYPEENUM,#409)\0"
    "DefinedType(IFCFLOWDIRECTIONENUM,#411)\0"
    "DefinedType(IFCFLOWINSTRUMENTTYPEENUM,#413)\0"
    "DefinedType(IFCFLOWMETERTYPEENUM,#415)\0"
    "DefinedType(IFCFOOTINGTYPEENUM,#417)\0"
    "DefinedType(IFCFURNITURETYPEENUM,#419)\0"
    "DefinedType(IFCGEOGRAPHICELEMENTTYPEENUM,#421)\0"
    "DefinedType(IFCGEOMETRICPROJECTIONENUM,#423)\0"
    "DefinedType(IFCGLOBALORLOCALENUM,#425)\0"
    "DefinedType(IFCGRIDTYPEENUM,#427)\0"
    "DefinedType(IFCHEATEXCHANGERTYPEENUM,#429)\0"
    "DefinedType(IFCHUMIDIFIERTYPEENUM,#431)\0"
    "DefinedType(IFCIMPACTPROTECTIONDEVICETYPEENUM,#433)\0"
    "DefinedType(IFCINTERCEPTORTYPEENUM,#435)\0"
    "DefinedType(IFCINTERNALOREXTERNALENUM,#437)\0"
    "DefinedType(IFCINVENTORYTYPEENUM,#439)\0"
    "DefinedType(IFCJUNCTIONBOXTYPEENUM,#441)\0"
    "EnumerationType(CANAL,WATERWAYSHIPLIFT,REVETMENT,LAUNCHRECOVERY,MARINEDEFENCE,HYDROLIFT,SHIPYARD,SHIPLIFT,PORT,QUAY,FLOATINGDOCK,NAVIGATIONALCHANNEL,BREAKWATER,DRYDOCK,JETTY,SHIPLOCK,BARRIERBEACH,SLIPWAY,WATERWAY,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCOBJECTTYPEENUM,#481)\0"
    "DefinedType(IFCOBJECTIVEENUM,#483)\0"
    "DefinedType(IFCOCCUPANTTYPEENUM,#485)\0"
    "DefinedType(IFCOPENINGELEMENTTYPEENUM,#487)\0"
    "DefinedType(IFCOUTLETTYPEENUM,#489)\0"
    "DefinedType(IFCPAVEMENTTYPEENUM,#491)\0"
    "DefinedType(IFCPERFORMANCEHISTORYTYPEENUM,#493)\0"
    "DefinedType(IFCPERMEABLECOVERINGOPERATIONENUM,#495)\0"
    "DefinedType(IFCPERMITTYPEENUM,#497)\0"
    "DefinedType(IFCPHYSICALORVIRTUALENUM,#499)\0"
    "DefinedType(IFCPILECONSTRUCTIONENUM,#501)\0"
    "DefinedType(IFCPILETYPEENUM,#503)\0"
    "DefinedType(IFCPIPEFITTINGTYPEENUM,#505)\0"
    "DefinedType(IFCPIPESEGMENTTYPEENUM,#507)\0"
    "DefinedType(IFCPLATETYPEENUM,#509)\0"
    "DefinedType(IFCPREFERREDSURFACECURVEREPRESENTATION,#511)\0"
    "DefinedType(IFCPROCEDURETYPEENUM,#513)\0"
    "DefinedType(IFCPROFILETYPEENUM,#515)\0"
    "DefinedType(IFCPROJECTORDERTYPEENUM,#517)\0"
    "DefinedType(IFCPROJECTEDORTRUELENGTHENUM,#519)\0"
    "DefinedType(IFCPROJECTIONELEMENTTYPEENUM,#521)\0"
    "DefinedType(IFCPROPERTYSETTEMPLATETYPEENUM,#523)\0"
    "DefinedType(IFCPROTECTIVEDEVICETRIPPINGUNITTYPEENUM,#525)\0"
    "DefinedType(IFCPROTECTIVEDEVICETYPEENUM,#527)\0"
    "DefinedType(IFCPUMPTYPEENUM,#529)\0"
    "DefinedType(IFCRAILTYPEENUM,#531)\0"
    "DefinedType(IFCRAILINGTYPEENUM,#533)\0"
    "DefinedType(IFCRAILWAYPARTTYPEENUM,#535)\0"
    "DefinedType(IFCRAILWAYTYPEENUM,#537)\0"
    "DefinedType(IFCRAMPFLIGHTTYPEENUM,#539)\0"
    "DefinedType(IFCRAMPTYPEENUM,#541)\0"
    "DefinedType(IFCRECURRENCETYPEENUM,#543)\0"
    "DefinedType(IFCREFERENTTYPEENUM,#545)\0"
    "DefinedType(IFCREFLECTANCEMETHODENUM,#547)\0"
    "DefinedType(IFCREINFORCEDSOILTYPEENUM,#549)\0"
    "DefinedType(IFCREINFORCINGBARROLEENUM,#551)\0"
    "DefinedType(IFCREINFORCINGBARSURFACEENUM,#553)\0"
    "DefinedType(IFCREINFORCINGBARTYPEENUM,#555)\0"
    "DefinedType(IFCREINFORCINGMESHTYPEENUM,#557)\0"
    "DefinedType(IFCROADPARTTYPEENUM,#559)\0"
    "DefinedType(IFCROADTYPEENUM,#561)\0"
    "DefinedType(IFCROOFTYPEENUM,#563)\0"
    "DefinedType(IFCSIPREFIX,#565)\0"
    "DefinedType(IFCSIUNITNAME,#567)\0"
    "DefinedType(IFCSANITARYTERMINALTYPEENUM,#569)\0"
    "DefinedType(IFCSECTIONTYPEENUM,#571)\0"
    "DefinedType(IFCSENSORTYPEENUM,#573)\0"
    "DefinedType(IFCSEQUENCEENUM,#575)\0"
    "DefinedType(IFCSHADINGDEVICETYPEENUM,#577)\0"
    "DefinedType(IFCSIGNTYPEENUM,#579)\0"
    "DefinedType(IFCSIGNALTYPEENUM,#581)\0"
    "DefinedType(IFCSIMPLEPROPERTYTEMPLATETYPEENUM,#583)\0"
    "DefinedType(IFCSLABTYPEENUM,#585)\0"
    "DefinedType(IFCSOLARDEVICETYPEENUM,#587)\0"
    "DefinedType(IFCSPACEHEATERTYPEENUM,#589)\0"
    "EnumerationType(SPACE,PARKING,GFA,INTERNAL,EXTERNAL,BERTH,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCSPACETYPEENUM,#591)\0"
    "DefinedType(IFCSPATIALZONETYPEENUM,#593)\0"
    "DefinedType(IFCSTACKTERMINALTYPEENUM,#595)\0"
    "DefinedType(IFCSTAIRFLIGHTTYPEENUM,#597)\0"
    "DefinedType(IFCSTAIRTYPEENUM,#599)\0"
    "DefinedType(IFCSTRUCTURALCURVEACTIVITYTYPEENUM,#601)\0"
    "DefinedType(IFCSTRUCTURALCURVEMEMBERTYPEENUM,#603)\0"
    "DefinedType(IFCSTRUCTURALSURFACEACTIVITYTYPEENUM,#605)\0"
    "DefinedType(IFCSTRUCTURALSURFACEMEMBERTYPEENUM,#607)\0"
    "DefinedType(IFCSUBCONTRACTRESOURCETYPEENUM,#609)\0"
    "DefinedType(IFCSURFACEFEATURETYPEENUM,#611)\0"
    "DefinedType(IFCSURFACESIDE,#613)\0"
    "DefinedType(IFCSWITCHINGDEVICETYPEENUM,#615)\0"
    "DefinedType(IFCSYSTEMFURNITUREELEMENTTYPEENUM,#617)\0"
    "DefinedType(IFCTANKTYPEENUM,#619)\0"
    "DefinedType(IFCTASKDURATIONENUM,#621)\0"
    "DefinedType(IFCTASKTYPEENUM,#623)\0"
    "DefinedType(IFCTENDONANCHORTYPEENUM,#625)\0"
    "DefinedType(IFCTENDONCONDUITTYPEENUM,#627)\0"
    "DefinedType(IFCTENDONTYPEENUM,#629)\0"
    "DefinedType(IFCTEXTPATH,#631)\0"
    "DefinedType(IFCTIMESERIESDATATYPEENUM,#633)\0"
    "DefinedType(IFCTRACKELEMENTTYPEENUM,#635)\0"
    "DefinedType(IFCTRANSFORMERTYPEENUM,#637)\0"
    "DefinedType(IFCTRANSITIONCODE,#639)\0"
    "EnumerationType(ELEVATOR,ESCALATOR,MOVINGWALKWAY,CRANEWAY,LIFTINGGEAR,HAULINGGEAR,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCTRANSPORTELEMENTFIXEDTYPEENUM,#641)\0"
    "DefinedType(IFCTRANSPORTELEMENTNONFIXEDTYPEENUM,#643)\0"
    "DefinedType(IFCTRIMMINGPREFERENCE,#645)\0"
    "DefinedType(IFCTUBEBUNDLETYPEENUM,#647)\0"
    "DefinedType(IFCUNITENUM,#649)\0"
    "DefinedType(IFCUNITARYCONTROLELEMENTTYPEENUM,#651)\0"
    "DefinedType(IFCUNITARYEQUIPMENTTYPEENUM,#653)\0"
    "DefinedType(IFCVALVETYPEENUM,#655)\0"
    "DefinedType(IFCVIBRATIONDAMPERTYPEENUM,#657)\0"
    "DefinedType(IFCVIBRATIONISOLATORTYPEENUM,#659)\0"
    "DefinedType(IFCWINDOWSTYLECONSTRUCTIONENUM,#671)\0"
    "DefinedType(IFCWINDOWSTYLEOPERATIONENUM,#673)\0"
    "DefinedType(IFCWINDOWTYPEENUM,#675)\0"
    "DefinedType(IFCWINDOWTYPEPARTITIONINGENUM,#677)\0"
    "DefinedType(IFCWORKCALENDARTYPEENUM,#679)\0"
    "DefinedType(IFCWORKPLANTYPEENUM,#681)\0"
    "DefinedType(IFCWORKSCHEDULETYPEENUM,#683)\0"
    "DefinedType(IFCACTORSELECT,#685)\0"
    "DefinedType(IFCDERIVEDMEASUREVALUE,#689)\0"
    "DefinedType(IFCMEASUREVALUE,#691)\0"
    "DefinedType(IFCSIMPLEVALUE,#693)\0"
    "SelectType(#690,#692,#694)\0"
    "DefinedType(IFCVALUE,#695)\0"
    "SetType(#700,1,-1)\0"
    "SelectType(#698,#718,#702)\0"
    "DefinedType(IFCUNIT,#720)\0"
    "SelectType(#687,#722,#696)\0"
    "DefinedType(IFCAPPLIEDVALUESELECT,#729)\0"
    "SelectType(#731,#743)\0"
    "DefinedType(IFCAXIS2PLACEMENT,#746)\0"
    "DefinedType(IFCBENDINGPARAMETERSELECT,#748)\0"
    "ListType(#771,1,-1,DUPL)\0"
    "SelectType(#750,#753,#756,#762,#764)\0"
    "DefinedType(IFCBOOLEANOPERAND,#780)\0"
    "SelectType(#782,#792)\0"
    "DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#802)\0"
    "DefinedType(IFCCLASSIFICATIONSELECT,#804)\0"
    "SelectType(#806,#809)\0"
    "DefinedType(IFCCOLOUR,#812)\0"
    "SelectType(#814,#84)\0"
    "DefinedType(IFCCOLOURORFACTOR,#818)\0"
    "SelectType(#820,#825)\0"
    "DefinedType(IFCCOORDINATEREFERENCESYSTEMSELECT,#833)\0"
    "SelectType(#750,#753)\0"
    "DefinedType(IFCCSGSELECT,#835)\0"
    "ListType(#843,1,-1,DUPL)\0"
    "SelectType(#840,#847)\0"
    "DefinedType(IFCCURVESTYLEFONTSELECT,#848)\0"
    "SelectType(#837,#849)\0"
    "DefinedType(IFCCURVEFONTORSCALEDCURVEFONTSELECT,#851)\0"
    "SelectType(#82,#87)\0"
    "DefinedType(IFCCURVEMEASURESELECT,#853)\0"
    "ListType(#861,1,-1,DUPL)\0"
    "SetType(#758,0,1)\0"
    "ListType(#869,1,2,DUPL)\0"
    "SetType(#758,1,2)\0"
    "SelectType(#855,#869,#872)\0"
    "DefinedType(IFCCURVEONSURFACE,#879)\0"
    "SelectType(#857,#881)\0"
    "DefinedType(IFCCURVEOREDGECURVE,#889)\0"
    "SelectType(#891,#97)\0"
    "DefinedType(IFCDEFINITIONSELECT,#892)\0"
    "SetType(#686,1,-1)\0"
    "SelectType(#894,#913)\0"
    "DefinedType(IFCDOCUMENTSELECT,#916)\0"
    "SelectType(#254,#400,#466,#536,#560)\0"
    "DefinedType(IFCFACILITYPARTTYPESELECT,#918)\0"
    "DefinedType(IFCSIZESELECT,#928)\0"
    "SelectType(#90,#933)\0"
    "DefinedType(IFCHATCHLINEDISTANCESELECT,#937)\0"
    "ListType(#933,2,2,DUPL)\0"
    "SelectType(#813,#920,#921,#946)\0"
    "DefinedType(IFCFILLSTYLESELECT,#957)\0"
    "SelectType(#858,#736,#758)\0"
    "DefinedType(IFCGEOMETRICSETSELECT,#959)\0"
    "ListType(#963,2,2,UNIQ)\0"
    "SelectType(#739,#961)\0"
    "DefinedType(IFCGRIDPLACEMENTDIRECTIONSELECT,#970)\0"
    "SelectType(#434,#658,#660)\0"
    "DefinedType(IFCIMPACTPROTECTIONDEVICETYPESELECT,#972)\0"
    "SetType(#734,1,-1)\0"
    "SelectType(#974,#994)\0"
    "DefinedType(IFCINTERFERENCESELECT,#996)\0"
    "SelectType(#986,#734)\0"
    "DefinedType(IFCLAYEREDITEM,#998)\0"
    "SelectType(#1000,#1007)\0"
    "DefinedType(IFCLIBRARYSELECT,#1011)\0"
    "ListType(#1016,1,-1,DUPL)\0"
    "SelectType(#793,#1013)\0"
    "DefinedType(IFCLIGHTDISTRIBUTIONDATASOURCESELECT,#1023)\0"
    "SelectType(#1025,#1026,#1033)\0"
    "DefinedType(IFCMATERIALSELECT,#1034)\0"
    "ListType(#1036,1,-1,DUPL)\0"
    "ListType(#696,1,-1,DUPL)\0"
    "ListType(#1051,1,-1,DUPL)\0"
    "ListType(#1057,1,-1,DUPL)\0"
    "SelectType(#1036,#687,#722,#1048,#1067,#696)\0"
    "DefinedType(IFCMETRICVALUESELECT,#1076)\0"
    "DefinedType(IFCMODULUSOFROTATIONALSUBGRADEREACTIONSELECT,#1078)\0"
    "DefinedType(IFCMODULUSOFSUBGRADEREACTIONSELECT,#1080)\0"
    "DefinedType(IFCMODULUSOFTRANSLATIONALSUBGRADEREACTIONSELECT,#1082)\0"
    "SelectType(#125,#1036,#793,#1025,#133,#105,#103,#1048,#1067)\0"
    "DefinedType(IFCOBJECTREFERENCESELECT,#1084)\0"
    "SelectType(#736,#1086)\0"
    "DefinedType(IFCPOINTORVERTEXPOINT,#1088)\0"
    "SelectType(#1090,#1093)\0"
    "DefinedType(IFCPROCESSSELECT,#1101)\0"
    "SelectType(#1103,#1104)\0"
    "DefinedType(IFCPRODUCTREPRESENTATIONSELECT,#1107)\0"
    "ListType(#1104,1,-1,UNIQ)\0"
    "SelectType(#975,#1109)\0"
    "DefinedType(IFCPRODUCTSELECT,#1113)\0"
    "DefinedType(IFCPROPERTYSETDEFINITIONSELECT,#1115)\0"
    "ListType(#1149,1,-1,DUPL)\0"
    "SelectType(#116,#1036,#1117,#1127,#1135,#1137,#783,#793,#1025,#133,#105,#103,#1140,#1143,#1146,#1147,#1067)\0"
    "DefinedType(IFCRESOURCEOBJECTSELECT,#1155)\0"
    "SelectType(#1157,#1160)\0"
    "DefinedType(IFCRESOURCESELECT,#1164)\0"
    "DefinedType(IFCROTATIONALSTIFFNESSSELECT,#1166)\0"
    "DefinedType(IFCSEGMENTINDEXSELECT,#1168)\0"
    "SelectType(#1170,#1181)\0"
    "DefinedType(IFCSHELL,#1182)\0"
    "SelectType(#1170,#762)\0"
    "DefinedType(IFCSOLIDORSHELL,#1184)\0"
    "SelectType(#1186,#1189)\0"
    "DefinedType(IFCSPACEBOUNDARYSELECT,#1194)\0"
    "SelectType(#1196,#975)\0"
    "DefinedType(IFCSPATIALREFERENCESELECT,#1197)\0"
    "DefinedType(IFCSPECULARHIGHLIGHTSELECT,#1199)\0"
    "SelectType(#974,#1201)\0"
    "DefinedType(IFCSTRUCTURALACTIVITYASSIGNMENTSELECT,#1202)\0"
    "SetType(#1171,1,-1)\0"
    "SelectType(#1204,#1208,#758)\0"
    "DefinedType(IFCSURFACEORFACESURFACE,#1211)\0"
    "ListType(#739,2,2,DUPL)\0"
    "ListType(#1227,1,-1,DUPL)\0"
    "SelectType(#1213,#1214,#1219,#1222,#1225)\0"
    "DefinedType(IFCSURFACESTYLEELEMENTSELECT,#1245)\0"
    "SelectType(#1247,#1248)\0"
    "DefinedType(IFCTEXTFONTSELECT,#1249)\0"
    "DefinedType(IFCTIMEORRATIOSELECT,#1251)\0"
    "DefinedType(IFCTRANSLATIONALSTIFFNESSSELECT,#1253)\0"
    "SelectType(#642,#644)\0"
    "DefinedType(IFCTRANSPORTELEMENTTYPESELECT,#1255)\0"
    "SelectType(#940,#87)\0"
    "DefinedType(IFCTRIMMINGSELECT,#1257)\0"
    "SelectType(#739,#933)\0"
    "DefinedType(IFCVECTORORDIRECTION,#1259)\0"
    "DefinedType(IFCWARPINGSTIFFNESSSELECT,#1261)\0"
    "SetType(#1170,1,-1)\0"
    "Entity(IFCLINEARELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)\0"
    "SetType(#1117,1,-1)\0"
    "ListType(#940,2,-1,DUPL)\0"
    "ArrayType(#940,0,0,DUPL,REQ)\0"
    "ListType(#1428,2,-1,DUPL)\0"
    "ArrayType(#1437,0,0,DUPL,REQ)\0"
    "ListType(#1581,1,-1,DUPL)\0"
    "ListType(#739,3,3,DUPL)\0"
    "ListType(#1627,1,-1,DUPL)\0"
    "SetType(#1646,1,-1)\0"
    "SetType(#1143,2,-1)\0"
    "SetType(#826,1,-1)\0"
    "SetType(#721,1,-1)\0"
    "Entity(IFCCOSINE,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ListType(#1373,1,-1,DUPL)\0"
    "ListType(#1140,1,-1,DUPL)\0"
    "SetType(#858,0,-1)\0"
    "SetType(#1479,1,-1)\0"
    "ListType(#1936,1,-1,DUPL)\0"
    "SetType(#1140,1,-1)\0"
    "SetType(#958,1,-1)\0"
    "SetType(#960,1,-1)\0"
    "DerivedAttr(RELATIVEELEVATION)\0"
    "ListType(#963,1,-1,UNIQ)\0"
    "ListType(#1169,1,-1,DUPL)\0"
    "ListType(#2162,1,-1,DUPL)\0"
    "ListType(#2172,1,-1,DUPL)\0"
    "ListType(#2176,1,-1,DUPL)\0"
    "ExplicitAttr(SCALEY)\0"
    "ExplicitAttr(SCALEZ)\0"
    "SetType(#805,1,-1)\0"
    "SetType(#2284,1,-1)\0"
    "ListType(#2297,1,-1,DUPL)\0"
    "ListType(#2321,1,-1,DUPL)\0"
    "SetType(#1028,1,-1)\0"
    "ListType(#1839,1,-1,DUPL)\0"
    "ListType(#1936,1,-1,UNIQ)\0"
    "ListType(#940,3,-1,UNIQ)\0"
    "ListType(#2157,1,-1,DUPL)\0"
    "SetType(#999,1,-1)\0"
    "SetType(#924,0,-1)\0"
    "ListType(#696,1,-1,UNIQ)\0"
    "ListType(#2657,2,-1,DUPL)\0"
    "ArrayType(#2660,0,0,DUPL,REQ)\0"
    "ListType(#2693,1,-1,DUPL)\0"
    "ListType(#2703,1,-1,DUPL)\0"
    "SetType(#2709,1,-1)\0"
    "ListType(#2719,1,-1,DUPL)\0"
    "ListType(#749,1,-1,DUPL)\0"
    "SetType(#893,1,-1)\0"
    "SetType(#974,1,-1)\0"
    "SetType(#975,1,-1)\0"
    "SetType(#1777,1,-1)\0"
    "SetType(#976,1,-1)\0"
    "SetType(#1272,1,-1)\0"
    "ListType(#891,1,-1,DUPL)\0"
    "SetType(#1198,1,-1)\0"
    "SetType(#994,1,-1)\0"
    "ListType(#1143,2,-1,DUPL)\0"
    "ListType(#1403,2,-1,DUPL)\0"
    "ListType(#743,2,-1,DUPL)\0"
    "ListType(#1839,2,-1,DUPL)\0"
    "SetType(#1183,1,-1)\0"
    "Entity(IFCSINE,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "SetType(#3107,1,-1)\0"
    "SetType(#3115,1,-1)\0"
    "ListType(#3139,1,-1,DUPL)\0"
    "ListType(#3142,1,-1,UNIQ)\0"
    "SetType(#1246,1,5)\0"
    "ListType(#3362,3,-1,DUPL)\0"
    "ExplicitAttr(QUBICTERM)\0"
    "ListType(#3395,1,-1,DUPL)\0"
    "SetType(#1258,1,2)\0"
    "Entity(IFCVIENNESEBEND,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(STARTCURVATURE)\0"
    "ExplicitAttr(ENDCURVATURE)\0"
    "ExplicitAttr(GRAVITYCENTERHEIGHT)\0"
    "#687.Composition(#687)\0"
    "#688.ExplAttrInfos(#696,REQ)\0"
    "#702.Composition(#702)\0"
    "#704.Composition(#704)\0"
    "#708.ExplAttrInfos(IntegerType,REQ)\0"
    "#710.ExplAttrInfos(IntegerType,REQ)\0"
    "#711.ExplAttrInfos(IntegerType,REQ)\0"
    "#704.Attributes(#705,#706,#707,#708,#709,#710,#711)\0"
    "#712.ExplAttrInfos(#650,REQ)\0"
    "#702.Attributes(#703,#712)\0"
    "#701.ExplAttrInfos(#702,REQ)\0"
    "#713.ExplAttrInfos(IntegerType,REQ)\0"
    "#700.Attributes(#701,#713)\0"
    "#699.ExplAttrInfos(#714,REQ)\0"
    "#715.ExplAttrInfos(#330,REQ)\0"
    "#716.ExplAttrInfos(#14,OPT)\0"
    "#717.DerivAttrInfos(#704)\0"
    "#698.Attributes(#699,#715,#716,#717)\0"
    "#718.Composition(#718)\0"
    "#719.ExplAttrInfos(#14,REQ)\0"
    "#718.Attributes(#719)\0"
    "#697.ExplAttrInfos(#721,REQ)\0"
    "#687.Attributes(#688,#697)\0"
    "#722.Composition(#722)\0"
    "#724.ExplAttrInfos(#48,OPT)\0"
    "#725.ExplAttrInfos(#14,OPT)\0"
    "#726.ExplAttrInfos(#727,OPT)\0"
    "#728.ExplAttrInfos(#722,OPT)\0"
    "#722.Attributes(#723,#724,#725,#726,#728)\0"
    "#734.Composition(#734)\0"
    "#733.Composition(#733,#734)\0"
    "#732.Supertypes(#733)\0"
    "#732.Composition(#733,#732,#734)\0"
    "#736.Supertypes(#733)\0"
    "#736.Composition(#733,#736,#734)\0"
    "#735.ExplAttrInfos(#736,REQ)\0"
    "#737.DerivAttrInfos(#29)\0"
    "#732.Attributes(#735,#737)\0"
    "#731.Composition(#731,#733,#732,#734)\0"
    "#739.Supertypes(#733)\0"
    "#739.Composition(#739,#733,#734)\0"
    "#740.ExplAttrInfos(#741,REQ)\0"
    "#742.DerivAttrInfos(#29)\0"
    "#739.Attributes(#740,#742)\0"
    "#738.ExplAttrInfos(#739,OPT)\0"
    "#731.Attributes(#738)\0"
    "#743.Supertypes(#732)\0"
    "#743.Composition(#743,#733,#732,#734)\0"
    "#744.ExplAttrInfos(#739,OPT)\0"
    "#745.ExplAttrInfos(#739,OPT)\0"
    "#743.Attributes(#744,#745)\0"
    "#750.Supertypes(#733)\0"
    "#750.Composition(#750,#733,#734)\0"
    "#751.ExplAttrInfos(#252,REQ)\0"
    "#752.ExplAttrInfos(#777,REQ)\0"
    "#778.ExplAttrInfos(#777,REQ)\0"
    "#779.DerivAttrInfos(#29)\0"
    "#750.Attributes(#751,#752,#778,#779)\0"
    "#753.Supertypes(#733)\0"
    "#753.Composition(#753,#733,#734)\0"
    "#754.ExplAttrInfos(#743,REQ)\0"
    "#753.Attributes(#754,#755)\0"
    "#756.Supertypes(#733)\0"
    "#756.Composition(#733,#756,#734)\0"
    "#758.Supertypes(#733)\0"
    "#758.Composition(#733,#734,#758)\0"
    "#757.ExplAttrInfos(#758,REQ)\0"
    "#760.ExplAttrInfos(#13,REQ)\0"
    "#756.Attributes(#757,#760,#761)\0"
    "#762.Supertypes(#733)\0"
    "#762.Composition(#733,#734,#762)\0"
    "#763.DerivAttrInfos(#29)\0"
    "#762.Attributes(#763)\0"
    "#765.Supertypes(#733)\0"
    "#765.Composition(#733,#734,#765)\0"
    "#764.Supertypes(#765)\0"
    "#764.Composition(#733,#734,#764,#765)\0"
    "#768.Supertypes(#733)\0"
    "#768.Composition(#768,#733,#734)\0"
    "#769.DerivAttrInfos(#29)\0"
    "#768.Attributes(#769)\0"
    "#767.Supertypes(#768)\0"
    "#767.Composition(#768,#767,#733,#734)\0"
    "#770.ExplAttrInfos(#772,REQ)\0"
    "#773.ExplAttrInfos(#774,OPT)\0"
    "#767.Attributes(#770,#773)\0"
    "#766.ExplAttrInfos(#767,REQ)\0"
    "#764.Attributes(#766,#775)\0"
    "#782.Supertypes(#783)\0"
    "#782.Composition(#782,#783)\0"
    "#785.ExplAttrInfos(#14,OPT)\0"
    "#786.ExplAttrInfos(#24,OPT)\0"
    "#787.ExplAttrInfos(#14,REQ)\0"
    "#788.ExplAttrInfos(#122,OPT)\0"
    "#789.ExplAttrInfos(#195,OPT)\0"
    "#790.ExplAttrInfos(#791,OPT)\0"
    "#782.Attributes(#784,#785,#786,#787,#788,#789,#790)\0"
    "#793.Composition(#793)\0"
    "#794.ExplAttrInfos(#195,OPT)\0"
    "#795.ExplAttrInfos(#48,OPT)\0"
    "#796.ExplAttrInfos(#14,OPT)\0"
    "#793.Attributes(#794,#795,#796)\0"
    "#792.Supertypes(#793)\0"
    "#792.Composition(#792,#793)\0"
    "#797.ExplAttrInfos(#799,OPT)\0"
    "#800.ExplAttrInfos(#122,OPT)\0"
    "#801.ExplAttrInfos(#48,OPT)\0"
    "#792.Attributes(#797,#800,#801)\0"
    "#806.Composition(#806,#807)\0"
    "#808.ExplAttrInfos(#14,OPT)\0"
    "#806.Attributes(#808)\0"
    "#810.Supertypes(#807)\0"
    "#810.Composition(#810,#807)\0"
    "#810.Attributes(#811)\0"
    "#809.Supertypes(#810)\0"
    "#809.Composition(#809,#810,#807)\0"
    "#814.Supertypes(#806)\0"
    "#814.Composition(#814,#806,#807)\0"
    "#816.ExplAttrInfos(#84,REQ)\0"
    "#817.ExplAttrInfos(#84,REQ)\0"
    "#814.Attributes(#815,#816,#817)\0"
    "#820.Composition(#820)\0"
    "#824.ExplAttrInfos(#48,OPT)\0"
    "#820.Attributes(#821,#822,#823,#824)\0"
    "#826.Composition(#826)\0"
    "#828.ExplAttrInfos(#14,OPT)\0"
    "#826.Attributes(#827,#828)\0"
    "#825.Supertypes(#826)\0"
    "#825.Composition(#825,#826)\0"
    "#829.ExplAttrInfos(#29,REQ)\0"
    "#830.ExplAttrInfos(#165,OPT)\0"
    "#831.ExplAttrInfos(#747,REQ)\0"
    "#832.ExplAttrInfos(#739,OPT)\0"
    "#825.Attributes(#829,#830,#831,#832)\0"
    "#837.Supertypes(#807)\0"
    "#837.Composition(#837,#807)\0"
    "#840.Supertypes(#807)\0"
    "#840.Composition(#840,#807)\0"
    "#841.ExplAttrInfos(#14,OPT)\0"
    "#843.Supertypes(#807)\0"
    "#843.Composition(#843,#807)\0"
    "#844.ExplAttrInfos(#56,REQ)\0"
    "#845.ExplAttrInfos(#90,REQ)\0"
    "#843.Attributes(#844,#845)\0"
    "#842.ExplAttrInfos(#846,REQ)\0"
    "#847.Supertypes(#810)\0"
    "#847.Composition(#847,#810,#807)\0"
    "#839.ExplAttrInfos(#849,REQ)\0"
    "#850.ExplAttrInfos(#92,REQ)\0"
    "#837.Attributes(#838,#839,#850)\0"
    "#858.Supertypes(#733)\0"
    "#858.Composition(#858,#733,#734)\0"
    "#858.Attributes(#859)\0"
    "#857.Supertypes(#858)\0"
    "#857.Composition(#857,#858,#733,#734)\0"
    "#856.Supertypes(#857)\0"
    "#856.Composition(#857,#856,#858,#733,#734)\0"
    "#861.Supertypes(#733)\0"
    "#861.Composition(#733,#734,#861)\0"
    "#862.ExplAttrInfos(#640,REQ)\0"
    "#860.ExplAttrInfos(#863,REQ)\0"
    "#864.ExplAttrInfos(#63,REQ)\0"
    "#865.DerivAttrInfos(#6)\0"
    "#866.DerivAttrInfos(#63)\0"
    "#856.Attributes(#860,#864,#865,#866)\0"
    "#855.Composition(#857,#856,#855,#858,#733,#734)\0"
    "#867.DerivAttrInfos(#868)\0"
    "#855.Attributes(#867)\0"
    "#869.Supertypes(#858)\0"
    "#869.Composition(#858,#733,#869,#734)\0"
    "#870.ExplAttrInfos(#758,REQ)\0"
    "#871.ExplAttrInfos(#858,REQ)\0"
    "#872.Supertypes(#858)\0"
    "#872.Composition(#858,#733,#734,#872)\0"
    "#873.ExplAttrInfos(#858,REQ)\0"
    "#874.ExplAttrInfos(#875,REQ)\0"
    "#876.ExplAttrInfos(#512,REQ)\0"
    "#877.DerivAttrInfos(#878)\0"
    "#872.Attributes(#873,#874,#876,#877)\0"
    "#883.Supertypes(#734)\0"
    "#883.Composition(#734,#883)\0"
    "#882.Supertypes(#883)\0"
    "#882.Composition(#882,#734,#883)\0"
    "#885.Supertypes(#883)\0"
    "#885.Composition(#734,#883,#885)\0"
    "#884.ExplAttrInfos(#885,REQ)\0"
    "#886.ExplAttrInfos(#885,REQ)\0"
    "#882.Attributes(#884,#886)\0"
    "#881.Supertypes(#882)\0"
    "#881.Composition(#882,#881,#734,#883)\0"
    "#887.ExplAttrInfos(#858,REQ)\0"
    "#881.Attributes(#887,#888)\0"
    "#891.Supertypes(#98)\0"
    "#891.Composition(#891,#98)\0"
    "#894.Supertypes(#783)\0"
    "#894.Composition(#894,#783)\0"
    "#895.ExplAttrInfos(#48,REQ)\0"
    "#896.ExplAttrInfos(#14,REQ)\0"
    "#898.ExplAttrInfos(#195,OPT)\0"
    "#900.ExplAttrInfos(#122,OPT)\0"
    "#901.ExplAttrInfos(#122,OPT)\0"
    "#902.ExplAttrInfos(#14,OPT)\0"
    "#903.ExplAttrInfos(#686,OPT)\0"
    "#906.ExplAttrInfos(#25,OPT)\0"
    "#907.ExplAttrInfos(#25,OPT)\0"
    "#908.ExplAttrInfos(#48,OPT)\0"
    "#909.ExplAttrInfos(#24,OPT)\0"
    "#910.ExplAttrInfos(#24,OPT)\0"
    "#911.ExplAttrInfos(#344,OPT)\0"
    "#912.ExplAttrInfos(#346,OPT)\0"
    "#894.Attributes(#895,#896,#897,#898,#899,#900,#901,#902,#903,#904,#906,#907,#908,#909,#910,#911,#912)\0"
    "#913.Supertypes(#793)\0"
    "#913.Composition(#913,#793)\0"
    "#914.ExplAttrInfos(#122,OPT)\0"
    "#915.ExplAttrInfos(#894,OPT)\0"
    "#913.Attributes(#914,#915)\0"
    "#920.Supertypes(#793)\0"
    "#920.Composition(#920,#793)\0"
    "#921.Supertypes(#733)\0"
    "#921.Composition(#921,#733,#734)\0"
    "#924.Composition(#924)\0"
    "#925.ExplAttrInfos(#14,OPT)\0"
    "#924.Attributes(#925)\0"
    "#923.Supertypes(#924)\0"
    "#923.Composition(#923,#924)\0"
    "#926.ExplAttrInfos(#852,OPT)\0"
    "#927.ExplAttrInfos(#929,OPT)\0"
    "#930.ExplAttrInfos(#813,OPT)\0"
    "#931.ExplAttrInfos(#13,OPT)\0"
    "#923.Attributes(#926,#927,#930,#931)\0"
    "#922.ExplAttrInfos(#923,REQ)\0"
    "#933.Supertypes(#733)\0"
    "#933.Composition(#733,#734,#933)\0"
    "#934.ExplAttrInfos(#739,REQ)\0"
    "#935.ExplAttrInfos(#56,REQ)\0"
    "#936.DerivAttrInfos(#29)\0"
    "#933.Attributes(#934,#935,#936)\0"
    "#932.ExplAttrInfos(#938,REQ)\0"
    "#940.Supertypes(#736)\0"
    "#940.Composition(#940,#733,#736,#734)\0"
    "#941.ExplAttrInfos(#942,REQ)\0"
    "#943.DerivAttrInfos(#29)\0"
    "#940.Attributes(#941,#943)\0"
    "#939.ExplAttrInfos(#940,OPT)\0"
    "#944.ExplAttrInfos(#940,OPT)\0"
    "#945.ExplAttrInfos(#89,REQ)\0"
    "#921.Attributes(#922,#932,#939,#944,#945)\0"
    "#946.Supertypes(#733)\0"
    "#946.Composition(#946,#733,#734)\0"
    "#950.Supertypes(#734)\0"
    "#950.Composition(#734,#950)\0"
    "#951.ExplAttrInfos(#734,OPT)\0"
    "#952.ExplAttrInfos(#953,REQ)\0"
    "#950.Attributes(#951,#952,#954)\0"
    "#949.ExplAttrInfos(#955,REQ)\0"
    "#956.ExplAttrInfos(#92,REQ)\0"
    "#946.Attributes(#947,#949,#956)\0"
    "#961.Composition(#961)\0"
    "#963.Composition(#963)\0"
    "#965.ExplAttrInfos(#858,REQ)\0"
    "#966.ExplAttrInfos(#13,REQ)\0"
    "#963.Attributes(#964,#965,#966)\0"
    "#962.ExplAttrInfos(#967,REQ)\0"
    "#968.ExplAttrInfos(#969,REQ)\0"
    "#961.Attributes(#962,#968)\0"
    "#976.Supertypes(#891)\0"
    "#976.Composition(#976,#891,#98)\0"
    "#977.ExplAttrInfos(#14,OPT)\0"
    "#976.Attributes(#977)\0"
    "#975.Supertypes(#976)\0"
    "#975.Composition(#976,#891,#975,#98)\0"
    "#980.ExplAttrInfos(#979,OPT)\0"
    "#979.Attributes(#980)\0"
    "#978.ExplAttrInfos(#979,OPT)\0"
    "#982.Composition(#982)\0"
    "#983.ExplAttrInfos(#14,OPT)\0"
    "#984.ExplAttrInfos(#122,OPT)\0"
    "#987.ExplAttrInfos(#826,REQ)\0"
    "#989.ExplAttrInfos(#14,OPT)\0"
    "#986.Attributes(#987,#988,#989,#990)\0"
    "#982.Attributes(#983,#984,#985)\0"
    "#981.ExplAttrInfos(#982,OPT)\0"
    "#975.Attributes(#978,#981)\0"
    "#974.Supertypes(#975)\0"
    "#974.Composition(#974,#976,#891,#975,#98)\0"
    "#993.ExplAttrInfos(#48,OPT)\0"
    "#974.Attributes(#993)\0"
    "#994.Supertypes(#975)\0"
    "#994.Composition(#976,#891,#975,#98,#994)\0"
    "#994.Attributes(#995)\0"
    "#1000.Supertypes(#783)\0"
    "#1000.Composition(#783,#1000)\0"
    "#1001.ExplAttrInfos(#14,REQ)\0"
    "#1002.ExplAttrInfos(#14,OPT)\0"
    "#1003.ExplAttrInfos(#686,OPT)\0"
    "#1004.ExplAttrInfos(#25,OPT)\0"
    "#1005.ExplAttrInfos(#195,OPT)\0"
    "#1006.ExplAttrInfos(#122,OPT)\0"
    "#1000.Attributes(#1001,#1002,#1003,#1004,#1005,#1006)\0"
    "#1007.Supertypes(#793)\0"
    "#1007.Composition(#793,#1007)\0"
    "#1009.ExplAttrInfos(#55,OPT)\0"
    "#1010.ExplAttrInfos(#1000,OPT)\0"
    "#1007.Attributes(#1008,#1009,#1010)\0"
    "#1013.Composition(#1013)\0"
    "#1014.ExplAttrInfos(#452,REQ)\0"
    "#1016.Composition(#1016)\0"
    "#1017.ExplAttrInfos(#89,REQ)\0"
    "#1018.ExplAttrInfos(#1019,REQ)\0"
    "#1020.ExplAttrInfos(#1021,REQ)\0"
    "#1016.Attributes(#1017,#1018,#1020)\0"
    "#1015.ExplAttrInfos(#1022,REQ)\0"
    "#1013.Attributes(#1014,#1015)\0"
    "#1028.Supertypes(#1025)\0"
    "#1028.Composition(#1028,#1025)\0"
    "#1029.ExplAttrInfos(#14,REQ)\0"
    "#1031.ExplAttrInfos(#14,OPT)\0"
    "#1028.Attributes(#1029,#1030,#1031)\0"
    "#1027.ExplAttrInfos(#1032,REQ)\0"
    "#1026.Attributes(#1027)\0"
    "#1033.Composition(#1033)\0"
    "#1036.Composition(#1036)\0"
    "#1038.ExplAttrInfos(#122,OPT)\0"
    "#1039.ExplAttrInfos(#730,OPT)\0"
    "#1040.ExplAttrInfos(#687,OPT)\0"
    "#1041.ExplAttrInfos(#24,OPT)\0"
    "#1042.ExplAttrInfos(#24,OPT)\0"
    "#1043.ExplAttrInfos(#14,OPT)\0"
    "#1045.ExplAttrInfos(#232,OPT)\0"
    "#1046.ExplAttrInfos(#1047,OPT)\0"
    "#1036.Attributes(#1037,#1038,#1039,#1040,#1041,#1042,#1043,#1044,#1045,#1046)\0"
    "#1048.Composition(#1048)\0"
    "#1049.ExplAttrInfos(#14,OPT)\0"
    "#1051.Composition(#1051)\0"
    "#1052.ExplAttrInfos(#1053,OPT)\0"
    "#1054.ExplAttrInfos(#13,OPT)\0"
    "#1051.Attributes(#1052,#1054)\0"
    "#1050.ExplAttrInfos(#1055,OPT)\0"
    "#1057.Composition(#1057)\0"
    "#1058.ExplAttrInfos(#48,OPT)\0"
    "#1061.ExplAttrInfos(#721,OPT)\0"
    "#1062.ExplAttrInfos(#722,OPT)\0"
    "#1057.Attributes(#1058,#1059,#1060,#1061,#1062)\0"
    "#1056.ExplAttrInfos(#1063,OPT)\0"
    "#1064.DerivAttrInfos(#6)\0"
    "#1065.DerivAttrInfos(#6)\0"
    "#1066.DerivAttrInfos(#6)\0"
    "#1048.Attributes(#1049,#1050,#1056,#1064,#1065,#1066)\0"
    "#1067.Composition(#1067)\0"
    "#1068.ExplAttrInfos(#14,REQ)\0"
    "#1069.ExplAttrInfos(#122,OPT)\0"
    "#1070.ExplAttrInfos(#25,REQ)\0"
    "#1071.ExplAttrInfos(#25,REQ)\0"
    "#1072.ExplAttrInfos(#634,REQ)\0"
    "#1073.ExplAttrInfos(#328,REQ)\0"
    "#1074.ExplAttrInfos(#14,OPT)\0"
    "#1075.ExplAttrInfos(#721,OPT)\0"
    "#1067.Attributes(#1068,#1069,#1070,#1071,#1072,#1073,#1074,#1075)\0"
    "#1086.Supertypes(#885)\0"
    "#1086.Composition(#734,#883,#885,#1086)\0"
    "#1087.ExplAttrInfos(#736,REQ)\0"
    "#1086.Attributes(#1087)\0"
    "#1090.Supertypes(#976)\0"
    "#1090.Composition(#976,#891,#1090,#98)\0"
    "#1090.Attributes(#1091,#1092)\0"
    "#1094.Supertypes(#891)\0"
    "#1094.Composition(#891,#98,#1094)\0"
    "#1095.ExplAttrInfos(#48,OPT)\0"
    "#1096.ExplAttrInfos(#1097,OPT)\0"
    "#1094.Attributes(#1095,#1096)\0"
    "#1093.Supertypes(#1094)\0"
    "#1093.Composition(#891,#98,#1094,#1093)\0"
    "#1098.ExplAttrInfos(#48,OPT)\0"
    "#1099.ExplAttrInfos(#122,OPT)\0"
    "#1093.Attributes(#1098,#1099,#1100)\0"
    "#1103.Supertypes(#982)\0"
    "#1103.Composition(#1103,#982)\0"
    "#1104.Composition(#1104)\0"
    "#1105.ExplAttrInfos(#747,REQ)\0"
    "#1106.ExplAttrInfos(#986,REQ)\0"
    "#1104.Attributes(#1105,#1106)\0"
    "#1109.Supertypes(#1094)\0"
    "#1109.Composition(#891,#98,#1094,#1109)\0"
    "#1110.ExplAttrInfos(#1111,OPT)\0"
    "#1109.Attributes(#1110,#1112)\0"
    "#1117.Composition(#1117)\0"
    "#1118.ExplAttrInfos(#48,OPT)\0"
    "#1120.ExplAttrInfos(#122,OPT)\0"
    "#1121.ExplAttrInfos(#25,OPT)\0"
    "#1122.ExplAttrInfos(#14,OPT)\0"
    "#1125.ExplAttrInfos(#686,OPT)\0"
    "#1126.ExplAttrInfos(#686,OPT)\0"
    "#1117.Attributes(#1118,#1119,#1120,#1121,#1122,#1123,#1124,#1125,#1126)\0"
    "#1128.ExplAttrInfos(#14,REQ)\0"
    "#1129.ExplAttrInfos(#122,OPT)\0"
    "#1130.ExplAttrInfos(#296,REQ)\0"
    "#1131.ExplAttrInfos(#14,OPT)\0"
    "#1132.ExplAttrInfos(#686,OPT)\0"
    "#1133.ExplAttrInfos(#25,OPT)\0"
    "#1134.ExplAttrInfos(#14,OPT)\0"
    "#1127.Attributes(#1128,#1129,#1130,#1131,#1132,#1133,#1134)\0"
    "#1135.Supertypes(#702)\0"
    "#1135.Composition(#1135,#702)\0"
    "#1136.ExplAttrInfos(#14,REQ)\0"
    "#1135.Attributes(#1136)\0"
    "#1137.Supertypes(#702)\0"
    "#1137.Composition(#1137,#702)\0"
    "#1139.ExplAttrInfos(#687,REQ)\0"
    "#1137.Attributes(#1138,#1139)\0"
    "#1141.ExplAttrInfos(#14,REQ)\0"
    "#1142.ExplAttrInfos(#122,OPT)\0"
    "#1140.Attributes(#1141,#1142)\0"
    "#1143.Composition(#1143)\0"
    "#1144.ExplAttrInfos(#516,REQ)\0"
    "#1145.ExplAttrInfos(#14,OPT)\0"
    "#1143.Attributes(#1144,#1145)\0"
    "#1146.Composition(#1146)\0"
    "#1149.Supertypes(#986)\0"
    "#1149.Composition(#986,#1149)\0"
    "#1148.ExplAttrInfos(#1150,REQ)\0"
    "#1151.ExplAttrInfos(#14,OPT)\0"
    "#1153.ExplAttrInfos(#63,REQ)\0"
    "#1154.ExplAttrInfos(#1108,OPT)\0"
    "#1147.Attributes(#1148,#1151,#1152,#1153,#1154)\0"
    "#1157.Supertypes(#976)\0"
    "#1157.Composition(#976,#891,#1157,#98)\0"
    "#1158.ExplAttrInfos(#48,OPT)\0"
    "#1159.ExplAttrInfos(#122,OPT)\0"
    "#1157.Attributes(#1158,#1159)\0"
    "#1160.Supertypes(#1094)\0"
    "#1160.Composition(#891,#98,#1094,#1160)\0"
    "#1163.ExplAttrInfos(#14,OPT)\0"
    "#1160.Attributes(#1161,#1162,#1163)\0"
    "#1171.Supertypes(#883)\0"
    "#1171.Composition(#1171,#734,#883)\0"
    "#1173.Supertypes(#883)\0"
    "#1173.Composition(#1173,#734,#883)\0"
    "#1175.Supertypes(#883)\0"
    "#1175.Composition(#1175,#734,#883)\0"
    "#1177.Supertypes(#883)\0"
    "#1177.Composition(#1177,#734,#883)\0"
    "#1176.ExplAttrInfos(#1177,REQ)\0"
    "#1178.ExplAttrInfos(#13,REQ)\0"
    "#1175.Attributes(#1176,#1178)\0"
    "#1174.ExplAttrInfos(#1179,REQ)\0"
    "#1172.ExplAttrInfos(#1180,REQ)\0"
    "#1171.Attributes(#1172)\0"
    "#1170.Supertypes(#1171)\0"
    "#1170.Composition(#1170,#1171,#734,#883)\0"
    "#1181.Supertypes(#1171)\0"
    "#1181.Composition(#1171,#1181,#734,#883)\0"
    "#1187.Supertypes(#994)\0"
    "#1187.Composition(#1187,#976,#891,#975,#98,#994)\0"
    "#1186.Composition(#1186,#1187,#976,#891,#975,#98,#994)\0"
    "#1188.ExplAttrInfos(#398,OPT)\0"
    "#1186.Attributes(#1188)\0"
    "#1190.Supertypes(#994)\0"
    "#1190.Composition(#976,#891,#975,#98,#994,#1190)\0"
    "#1191.ExplAttrInfos(#386,OPT)\0"
    "#1189.Composition(#976,#891,#975,#98,#1189,#994,#1190)\0"
    "#1192.ExplAttrInfos(#592,OPT)\0"
    "#1193.ExplAttrInfos(#56,OPT)\0"
    "#1189.Attributes(#1192,#1193)\0"
    "#1196.Supertypes(#976)\0"
    "#1196.Composition(#1196,#976,#891,#98)\0"
    "#1201.Supertypes(#975)\0"
    "#1201.Composition(#976,#891,#975,#98,#1201)\0"
    "#1204.Supertypes(#733)\0"
    "#1204.Composition(#1204,#733,#734)\0"
    "#1205.ExplAttrInfos(#1206,REQ)\0"
    "#1207.DerivAttrInfos(#29)\0"
    "#1204.Attributes(#1205,#1207)\0"
    "#1208.Supertypes(#1173)\0"
    "#1208.Composition(#1173,#1208,#734,#883)\0"
    "#1209.ExplAttrInfos(#758,REQ)\0"
    "#1210.ExplAttrInfos(#13,REQ)\0"
    "#1208.Attributes(#1209,#1210)\0"
    "#1213.Supertypes(#793)\0"
    "#1213.Composition(#1213,#793)\0"
    "#1214.Supertypes(#807)\0"
    "#1214.Composition(#807,#1214)\0"
    "#1215.ExplAttrInfos(#814,REQ)\0"
    "#1216.ExplAttrInfos(#814,REQ)\0"
    "#1217.ExplAttrInfos(#814,REQ)\0"
    "#1218.ExplAttrInfos(#814,REQ)\0"
    "#1214.Attributes(#1215,#1216,#1217,#1218)\0"
    "#1219.Supertypes(#807)\0"
    "#1219.Composition(#807,#1219)\0"
    "#1220.ExplAttrInfos(#165,OPT)\0"
    "#1221.ExplAttrInfos(#165,OPT)\0"
    "#1219.Attributes(#1220,#1221)\0"
    "#1222.Supertypes(#807)\0"
    "#1222.Composition(#807,#1222)\0"
    "#1223.ExplAttrInfos(#814,REQ)\0"
    "#1224.ExplAttrInfos(#84,OPT)\0"
    "#1222.Attributes(#1223,#1224)\0"
    "#1225.Supertypes(#807)\0"
    "#1225.Composition(#807,#1225)\0"
    "#1227.Supertypes(#807)\0"
    "#1227.Composition(#807,#1227)\0"
    "#1228.ExplAttrInfos(#13,REQ)\0"
    "#1229.ExplAttrInfos(#13,REQ)\0"
    "#1233.Supertypes(#733)\0"
    "#1233.Composition(#1233,#733,#734)\0"
    "#1234.ExplAttrInfos(#739,OPT)\0"
    "#1235.ExplAttrInfos(#739,OPT)\0"
    "#1236.ExplAttrInfos(#940,REQ)\0"
    "#1237.ExplAttrInfos(#165,OPT)\0"
    "#1238.DerivAttrInfos(#165)\0"
    "#1239.DerivAttrInfos(#29)\0"
    "#1233.Attributes(#1234,#1235,#1236,#1237,#1238,#1239)\0"
    "#1232.Supertypes(#1233)\0"
    "#1232.Composition(#1233,#1232,#733,#734)\0"
    "#1240.DerivAttrInfos(#1241)\0"
    "#1232.Attributes(#1240)\0"
    "#1231.ExplAttrInfos(#1232,OPT)\0"
    "#1242.ExplAttrInfos(#1243,OPT)\0"
    "#1227.Attributes(#1228,#1229,#1230,#1231,#1242)\0"
    "#1226.ExplAttrInfos(#1244,REQ)\0"
    "#1225.Attributes(#1226)\0"
    "#1247.Supertypes(#793)\0"
    "#1247.Composition(#1247,#793)\0"
    "#1248.Supertypes(#810)\0"
    "#1248.Composition(#810,#1248,#807)\0"
    "#1.DefTypes(#2,#3,#4,#5,#9,#10,#11,#12,#13,#15,#16,#18,#20,#21,#22,#23,#24,#25,#26,#27,#28,#29,#30,#31,#32,#33,#34,#35,#36,#37,#38,#39,#40,#41,#42,#43,#44,#45,#46,#47,#48,#49,#50,#6,#51,#52,#53,#54,#14,#55,#56,#58,#59,#60,#61,#62,#63,#64,#65,#66,#67,#68,#69,#70,#71,#72,#73,#74,#75,#76,#77,#78,#79,#80,#81,#82,#84,#85,#86,#87,#88,#89,#7,#90,#91,#92,#93,#94,#95,#163,#164,#83,#165,#166,#167,#168,#169,#170,#171,#172,#173,#174,#175,#176,#177,#178,#179,#180,#181,#122,#182,#183,#184,#185,#186,#187,#188,#189,#190,#191,#192,#193,#156,#194,#195,#196,#197,#198,#199,#200,#202,#204,#206,#208,#128,#210,#212,#214,#216,#218,#220,#222,#224,#226,#228,#230,#232,#234,#236,#238,#240,#242,#244,#246,#248,#250,#252,#254,#256,#258,#260,#262,#264,#266,#268,#270,#272,#274,#276,#154,#278,#280,#282,#284,#286,#288,#290,#292,#294,#296,#298,#300,#302,#304,#306,#308,#310,#312,#314,#316,#318,#320,#322,#324,#326,#328,#330,#332,#334,#336,#338,#340,#342,#344,#346,#348,#350,#352,#354,#356,#358,#360,#362,#364,#366,#368,#370,#372,#374,#376,#378,#380,#382,#384,#386,#388,#390,#392,#394,#396,#398,#400,#402,#404,#406,#408,#410,#412,#414,#416,#418,#420,#422,#424,#426,#428,#430,#432,#434,#436,#438,#440,#442,#444,#446,#448,#450,#452,#454,#456,#458,#460,#462,#464,#466,#468,#470,#472,#474,#476,#478,#480,#482,#484,#486,#488,#490,#492,#494,#496,#498,#500,#502,#504,#506,#508,#510,#512,#514,#516,#518,#520,#522,#524,#526,#528,#530,#532,#534,#536,#538,#540,#542,#544,#546,#548,#550,#552,#554,#556,#558,#560,#562,#119,#564,#566,#568,#570,#572,#574,#576,#578,#580,#582,#584,#586,#588,#590,#592,#594,#596,#598,#600,#151,#602,#604,#606,#608,#610,#612,#614,#616,#618,#620,#622,#624,#626,#628,#630,#632,#634,#636,#638,#640,#642,#644,#646,#648,#650,#652,#654,#656,#658,#660,#662,#664,#666,#668,#670,#672,#674,#676,#678,#680,#682,#684,#686,#730,#747,#749,#781,#803,#805,#813,#819,#834,#836,#852,#854,#880,#890,#849,#893,#690,#917,#919,#958,#960,#971,#938,#973,#997,#999,#1012,#1024,#1035,#692,#1077,#1079,#1081,#1083,#1085,#1089,#1102,#1108,#1114,#1116,#1156,#1165,#1167,#1169,#1183,#694,#929,#1185,#1195,#1198,#1200,#1203,#1212,#1246,#1250,#1252,#1254,#1256,#1258,#721,#696,#1260,#1262)\0"
    "#1264.Supertypes(#976)\0"
    "#1264.Composition(#1264,#976,#891,#98)\0"
    "#1265.ExplAttrInfos(#48,OPT)\0"
    "#1264.Attributes(#1265)\0"
    "#1263.Composition(#1263,#1264,#976,#891,#98)\0"
    "#1266.ExplAttrInfos(#202,OPT)\0"
    "#1267.ExplAttrInfos(#14,OPT)\0"
    "#1268.ExplAttrInfos(#122,OPT)\0"
    "#1263.Attributes(#1266,#1267,#1268)\0"
    "#1269.Supertypes(#976)\0"
    "#1269.Composition(#1269,#976,#891,#98)\0"
    "#1270.ExplAttrInfos(#686,REQ)\0"
    "#1273.Supertypes(#974)\0"
    "#1273.Composition(#1273,#974,#976,#891,#975,#98)\0"
    "#1272.Composition(#1272,#1273,#974,#976,#891,#975,#98)\0"
    "#1271.Supertypes(#1272)\0"
    "#1271.Composition(#1271,#1272,#1273,#974,#976,#891,#975,#98)\0"
    "#1274.ExplAttrInfos(#208,OPT)\0"
    "#1271.Attributes(#1274)\0"
    "#1278.Supertypes(#1109)\0"
    "#1278.Composition(#1278,#891,#98,#1094,#1109)\0"
    "#1279.ExplAttrInfos(#14,OPT)\0"
    "#1277.Composition(#1277,#1278,#891,#98,#1094,#1109)\0"
    "#1276.Supertypes(#1277)\0"
    "#1276.Composition(#1276,#1277,#1278,#891,#98,#1094,#1109)\0"
    "#1275.Supertypes(#1276)\0"
    "#1275.Composition(#1275,#1276,#1277,#1278,#891,#98,#1094,#1109)\0"
    "#1280.ExplAttrInfos(#208,REQ)\0"
    "#1275.Attributes(#1280)\0"
    "#1282.Supertypes(#762)\0"
    "#1282.Composition(#733,#1282,#734,#762)\0"
    "#1283.ExplAttrInfos(#1170,REQ)\0"
    "#1282.Attributes(#1283)\0"
    "#1281.Supertypes(#1282)\0"
    "#1281.Composition(#1281,#733,#1282,#734,#762)\0"
    "#1284.Composition(#1281,#1284,#733,#1282,#734,#762)\0"
    "#1285.ExplAttrInfos(#1286,REQ)\0"
    "#1284.Attributes(#1285)\0"
    "#1287.Supertypes(#1208)\0"
    "#1287.Composition(#1287,#1173,#1208,#734,#883)\0"
    "#1290.Supertypes(#1273)\0"
    "#1290.Composition(#1273,#1290,#974,#976,#891,#975,#98)\0"
    "#1289.Supertypes(#1290)\0"
    "#1289.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98)\0"
    "#1288.Supertypes(#1289)\0"
    "#1288.Composition(#1288,#1273,#1290,#974,#1289,#976,#891,#975,#98)\0"
    "#1291.ExplAttrInfos(#212,OPT)\0"
    "#1288.Attributes(#1291)\0"
    "#1293.Supertypes(#1290)\0"
    "#1293.Composition(#1273,#1290,#974,#1293,#976,#891,#975,#98)\0"
    "#1292.Composition(#1292,#1273,#1290,#974,#1293,#976,#891,#975,#98)\0"
    "#1294.ExplAttrInfos(#210,OPT)\0"
    "#1292.Attributes(#1294)\0"
    "#1297.Supertypes(#1277)\0"
    "#1297.Composition(#1277,#1297,#1278,#891,#98,#1094,#1109)\0"
    "#1296.Composition(#1277,#1297,#1278,#1296,#891,#98,#1094,#1109)\0"
    "#1295.Supertypes(#1296)\0"
    "#1295.Composition(#1295,#1277,#1297,#1278,#1296,#891,#98,#1094,#1109)\0"
    "#1298.ExplAttrInfos(#210,REQ)\0"
    "#1295.Attributes(#1298)\0"
    "#1300.Supertypes(#1297)\0"
    "#1300.Composition(#1277,#1297,#1278,#1300,#891,#98,#1094,#1109)\0"
    "#1299.Supertypes(#1300)\0"
    "#1299.Composition(#1299,#1277,#1297,#1278,#1300,#891,#98,#1094,#1109)\0"
    "#1301.ExplAttrInfos(#212,REQ)\0"
    "#1299.Attributes(#1301)\0"
    "#1303.Supertypes(#1290)\0"
    "#1303.Composition(#1273,#1290,#974,#1303,#976,#891,#975,#98)\0"
    "#1302.Supertypes(#1303)\0"
    "#1302.Composition(#1302,#1273,#1290,#974,#1303,#976,#891,#975,#98)\0"
    "#1304.ExplAttrInfos(#214,OPT)\0"
    "#1302.Attributes(#1304)\0"
    "#1306.Supertypes(#1297)\0"
    "#1306.Composition(#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1305.Composition(#1305,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1307.ExplAttrInfos(#214,REQ)\0"
    "#1305.Attributes(#1307)\0"
    "#1308.Supertypes(#1272)\0"
    "#1308.Composition(#1308,#1272,#1273,#974,#976,#891,#975,#98)\0"
    "#1309.ExplAttrInfos(#216,OPT)\0"
    "#1310.Supertypes(#1276)\0"
    "#1310.Composition(#1310,#1276,#1277,#1278,#891,#98,#1094,#1109)\0"
    "#1311.ExplAttrInfos(#216,REQ)\0"
    "#1310.Attributes(#1311)\0"
    "#1314.Supertypes(#975)\0"
    "#1314.Composition(#976,#891,#1314,#975,#98)\0"
    "#1313.Supertypes(#1314)\0"
    "#1313.Composition(#1313,#976,#891,#1314,#975,#98)\0"
    "#1312.Supertypes(#1313)\0"
    "#1312.Composition(#1312,#1313,#976,#891,#1314,#975,#98)\0"
    "#1315.ExplAttrInfos(#222,OPT)\0"
    "#1312.Attributes(#1315)\0"
    "#1317.Supertypes(#975)\0"
    "#1317.Composition(#1317,#976,#891,#975,#98)\0"
    "#1316.Composition(#1316,#1317,#976,#891,#975,#98)\0"
    "#1318.ExplAttrInfos(#90,REQ)\0"
    "#1316.Attributes(#1318)\0"
    "#1320.Composition(#1320)\0"
    "#1321.ExplAttrInfos(#14,OPT)\0"
    "#1320.Attributes(#1321,#1322)\0"
    "#1319.Supertypes(#1320)\0"
    "#1319.Composition(#1319,#1320)\0"
    "#1323.ExplAttrInfos(#56,REQ)\0"
    "#1324.ExplAttrInfos(#90,REQ)\0"
    "#1326.ExplAttrInfos(#56,OPT)\0"
    "#1327.ExplAttrInfos(#56,REQ)\0"
    "#1328.ExplAttrInfos(#56,OPT)\0"
    "#1329.ExplAttrInfos(#218,REQ)\0"
    "#1319.Attributes(#1323,#1324,#1325,#1326,#1327,#1328,#1329)\0"
    "#1330.Supertypes(#1317)\0"
    "#1330.Composition(#1330,#1317,#976,#891,#975,#98)\0"
    "#1331.Supertypes(#1320)\0"
    "#1331.Composition(#1331,#1320)\0"
    "#1332.ExplAttrInfos(#940,REQ)\0"
    "#1333.ExplAttrInfos(#89,REQ)\0"
    "#1335.ExplAttrInfos(#56,REQ)\0"
    "#1336.ExplAttrInfos(#82,REQ)\0"
    "#1337.ExplAttrInfos(#90,OPT)\0"
    "#1338.ExplAttrInfos(#220,REQ)\0"
    "#1331.Attributes(#1332,#1333,#1334,#1335,#1336,#1337,#1338)\0"
    "#1339.Supertypes(#1317)\0"
    "#1339.Composition(#1339,#1317,#976,#891,#975,#98)\0"
    "#1340.ExplAttrInfos(#1320,REQ)\0"
    "#1339.Attributes(#1340)\0"
    "#1341.Supertypes(#1317)\0"
    "#1341.Composition(#1341,#1317,#976,#891,#975,#98)\0"
    "#1342.Supertypes(#1320)\0"
    "#1342.Composition(#1320,#1342)\0"
    "#1343.ExplAttrInfos(#56,REQ)\0"
    "#1344.ExplAttrInfos(#90,REQ)\0"
    "#1345.ExplAttrInfos(#56,REQ)\0"
    "#1346.ExplAttrInfos(#83,REQ)\0"
    "#1347.ExplAttrInfos(#83,REQ)\0"
    "#1348.ExplAttrInfos(#90,OPT)\0"
    "#1349.ExplAttrInfos(#224,REQ)\0"
    "#1342.Attributes(#1343,#1344,#1345,#1346,#1347,#1348,#1349)\0"
    "#1350.Supertypes(#975)\0"
    "#1350.Composition(#1350,#976,#891,#975,#98)\0"
    "#1351.ExplAttrInfos(#230,OPT)\0"
    "#1350.Attributes(#1351)\0"
    "#1352.Supertypes(#733)\0"
    "#1352.Composition(#1352,#733,#734)\0"
    "#1353.ExplAttrInfos(#858,REQ)\0"
    "#1354.ExplAttrInfos(#1355,OPT)\0"
    "#1352.Attributes(#1353,#1354)\0"
    "#1357.Composition(#1357)\0"
    "#1358.ExplAttrInfos(#14,OPT)\0"
    "#1359.ExplAttrInfos(#122,OPT)\0"
    "#1357.Attributes(#1358,#1359)\0"
    "#1356.Supertypes(#1357)\0"
    "#1356.Composition(#1356,#1357)\0"
    "#1360.ExplAttrInfos(#1117,REQ)\0"
    "#1361.ExplAttrInfos(#1362,REQ)\0"
    "#1356.Attributes(#1360,#1361)\0"
    "#1363.Supertypes(#1143)\0"
    "#1363.Composition(#1363,#1143)\0"
    "#1364.ExplAttrInfos(#858,REQ)\0"
    "#1365.Supertypes(#1143)\0"
    "#1365.Composition(#1365,#1143)\0"
    "#1366.ExplAttrInfos(#857,REQ)\0"
    "#1365.Attributes(#1366)\0"
    "#1367.Supertypes(#1363)\0"
    "#1367.Composition(#1363,#1367,#1143)\0"
    "#1368.ExplAttrInfos(#1369,REQ)\0"
    "#1367.Attributes(#1368)\0"
    "#1370.Supertypes(#1196)\0"
    "#1370.Composition(#1370,#1196,#976,#891,#98)\0"
    "#1371.ExplAttrInfos(#48,OPT)\0"
    "#1373.Supertypes(#1036)\0"
    "#1373.Composition(#1036,#1373)\0"
    "#1372.ExplAttrInfos(#1373,OPT)\0"
    "#1374.ExplAttrInfos(#1373,OPT)\0"
    "#1375.ExplAttrInfos(#1373,OPT)\0"
    "#1376.ExplAttrInfos(#686,OPT)\0"
    "#1377.ExplAttrInfos(#686,OPT)\0"
    "#1378.ExplAttrInfos(#105,OPT)\0"
    "#1379.ExplAttrInfos(#24,OPT)\0"
    "#1380.ExplAttrInfos(#1373,OPT)\0"
    "#1370.Attributes(#1371,#1372,#1374,#1375,#1376,#1377,#1378,#1379,#1380)\0"
    "#1382.Supertypes(#1143)\0"
    "#1382.Composition(#1382,#1143)\0"
    "#1383.ExplAttrInfos(#731,OPT)\0"
    "#1382.Attributes(#1383)\0"
    "#1381.Composition(#1381,#1382,#1143)\0"
    "#1384.ExplAttrInfos(#90,REQ)\0"
    "#1386.ExplAttrInfos(#90,REQ)\0"
    "#1387.ExplAttrInfos(#90,REQ)\0"
    "#1388.ExplAttrInfos(#82,OPT)\0"
    "#1390.ExplAttrInfos(#90,OPT)\0"
    "#1391.ExplAttrInfos(#82,OPT)\0"
    "#1392.ExplAttrInfos(#82,OPT)\0"
    "#1393.ExplAttrInfos(#89,OPT)\0"
    "#1394.ExplAttrInfos(#82,OPT)\0"
    "#1395.ExplAttrInfos(#89,OPT)\0"
    "#1381.Attributes(#1384,#1385,#1386,#1387,#1388,#1389,#1390,#1391,#1392,#1393,#1394,#1395)\0"
    "#1396.Supertypes(#1289)\0"
    "#1396.Composition(#1396,#1273,#1290,#974,#1289,#976,#891,#975,#98)\0"
    "#1397.ExplAttrInfos(#236,OPT)\0"
    "#1396.Attributes(#1397)\0"
    "#1398.Supertypes(#1300)\0"
    "#1398.Composition(#1398,#1277,#1297,#1278,#1300,#891,#98,#1094,#1109)\0"
    "#1399.ExplAttrInfos(#236,REQ)\0"
    "#1398.Attributes(#1399)\0"
    "#1400.Supertypes(#732)\0"
    "#1400.Composition(#1400,#733,#732,#734)\0"
    "#1401.ExplAttrInfos(#739,OPT)\0"
    "#1402.DerivAttrInfos(#739)\0"
    "#1400.Attributes(#1401,#1402)\0"
    "#1403.Supertypes(#732)\0"
    "#1403.Composition(#1403,#733,#732,#734)\0"
    "#1404.ExplAttrInfos(#739,OPT)\0"
    "#1405.ExplAttrInfos(#739,OPT)\0"
    "#1403.Attributes(#1404,#1405)\0"
    "#1406.Supertypes(#857)\0"
    "#1406.Composition(#857,#1406,#858,#733,#734)\0"
    "#1407.ExplAttrInfos(#6,REQ)\0"
    "#1410.ExplAttrInfos(#238,REQ)\0"
    "#1411.ExplAttrInfos(#63,REQ)\0"
    "#1412.ExplAttrInfos(#63,REQ)\0"
    "#1414.DerivAttrInfos(#1415)\0"
    "#1406.Attributes(#1407,#1408,#1410,#1411,#1412,#1413,#1414)\0"
    "#1416.Supertypes(#1406)\0"
    "#1416.Composition(#857,#1406,#1416,#858,#733,#734)\0"
    "#1417.ExplAttrInfos(#1418,REQ)\0"
    "#1419.ExplAttrInfos(#1420,REQ)\0"
    "#1421.ExplAttrInfos(#444,REQ)\0"
    "#1422.DerivAttrInfos(#6)\0"
    "#1416.Attributes(#1417,#1419,#1421,#1422)\0"
    "#1424.Supertypes(#758)\0"
    "#1424.Composition(#1424,#733,#734,#758)\0"
    "#1423.Supertypes(#1424)\0"
    "#1423.Composition(#1424,#1423,#733,#734,#758)\0"
    "#1425.ExplAttrInfos(#6,REQ)\0"
    "#1426.ExplAttrInfos(#6,REQ)\0"
    "#1427.ExplAttrInfos(#1429,REQ)\0"
    "#1430.ExplAttrInfos(#240,REQ)\0"
    "#1431.ExplAttrInfos(#63,REQ)\0"
    "#1432.ExplAttrInfos(#63,REQ)\0"
    "#1433.ExplAttrInfos(#63,REQ)\0"
    "#1434.DerivAttrInfos(#6)\0"
    "#1435.DerivAttrInfos(#6)\0"
    "#1436.DerivAttrInfos(#1438)\0"
    "#1423.Attributes(#1425,#1426,#1427,#1430,#1431,#1432,#1433,#1434,#1435,#1436)\0"
    "#1439.Supertypes(#1423)\0"
    "#1439.Composition(#1424,#1423,#1439,#733,#734,#758)\0"
    "#1440.ExplAttrInfos(#1441,REQ)\0"
    "#1442.ExplAttrInfos(#1443,REQ)\0"
    "#1444.ExplAttrInfos(#1445,REQ)\0"
    "#1446.ExplAttrInfos(#1447,REQ)\0"
    "#1448.ExplAttrInfos(#444,REQ)\0"
    "#1449.DerivAttrInfos(#6)\0"
    "#1450.DerivAttrInfos(#6)\0"
    "#1439.Attributes(#1440,#1442,#1444,#1446,#1448,#1449,#1450)\0"
    "#1452.Supertypes(#974)\0"
    "#1452.Composition(#1452,#974,#976,#891,#975,#98)\0"
    "#1451.Supertypes(#1452)\0"
    "#1451.Composition(#1451,#1452,#974,#976,#891,#975,#98)\0"
    "#1453.ExplAttrInfos(#242,OPT)\0"
    "#1451.Attributes(#1453)\0"
    "#1454.Supertypes(#1451)\0"
    "#1454.Composition(#1451,#1454,#1452,#974,#976,#891,#975,#98)\0"
    "#1456.Supertypes(#1278)\0"
    "#1456.Composition(#1456,#1278,#891,#98,#1094,#1109)\0"
    "#1455.Supertypes(#1456)\0"
    "#1455.Composition(#1455,#1456,#1278,#891,#98,#1094,#1109)\0"
    "#1457.ExplAttrInfos(#242,REQ)\0"
    "#1455.Attributes(#1457)\0"
    "#1458.Supertypes(#1452)\0"
    "#1458.Composition(#1458,#1452,#974,#976,#891,#975,#98)\0"
    "#1458.Attributes(#1459)\0"
    "#1460.Supertypes(#1456)\0"
    "#1460.Composition(#1460,#1456,#1278,#891,#98,#1094,#1109)\0"
    "#1461.ExplAttrInfos(#246,REQ)\0"
    "#1460.Attributes(#1461)\0"
    "#1462.Supertypes(#1227)\0"
    "#1462.Composition(#1462,#807,#1227)\0"
    "#1463.ExplAttrInfos(#48,REQ)\0"
    "#1464.ExplAttrInfos(#12,REQ)\0"
    "#1462.Attributes(#1463,#1464)\0"
    "#1465.Supertypes(#753)\0"
    "#1465.Composition(#1465,#753,#733,#734)\0"
    "#1466.ExplAttrInfos(#90,REQ)\0"
    "#1467.ExplAttrInfos(#90,REQ)\0"
    "#1468.ExplAttrInfos(#90,REQ)\0"
    "#1465.Attributes(#1466,#1467,#1468)\0"
    "#1469.Supertypes(#1303)\0"
    "#1469.Composition(#1469,#1273,#1290,#974,#1303,#976,#891,#975,#98)\0"
    "#1470.ExplAttrInfos(#250,OPT)\0"
    "#1471.Supertypes(#1306)\0"
    "#1471.Composition(#1471,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1472.ExplAttrInfos(#250,REQ)\0"
    "#1473.Supertypes(#750)\0"
    "#1473.Composition(#1473,#750,#733,#734)\0"
    "#1476.Supertypes(#974)\0"
    "#1476.Composition(#974,#1476,#976,#891,#975,#98)\0"
    "#1475.Supertypes(#1476)\0"
    "#1475.Composition(#974,#1475,#1476,#976,#891,#975,#98)\0"
    "#1474.Supertypes(#1475)\0"
    "#1474.Composition(#1474,#974,#1475,#1476,#976,#891,#975,#98)\0"
    "#1477.Composition(#1477)\0"
    "#1479.Supertypes(#855)\0"
    "#1479.Composition(#1479,#857,#856,#855,#858,#733,#734)\0"
    "#1480.Supertypes(#1477)\0"
    "#1480.Composition(#1477,#1480)\0"
    "#1481.ExplAttrInfos(#1083,OPT)\0"
    "#1482.ExplAttrInfos(#1083,OPT)\0"
    "#1483.ExplAttrInfos(#1083,OPT)\0"
    "#1484.ExplAttrInfos(#1079,OPT)\0"
    "#1485.ExplAttrInfos(#1079,OPT)\0"
    "#1486.ExplAttrInfos(#1079,OPT)\0"
    "#1480.Attributes(#1481,#1482,#1483,#1484,#1485,#1486)\0"
    "#1487.Supertypes(#1477)\0"
    "#1487.Composition(#1477,#1487)\0"
    "#1488.ExplAttrInfos(#1081,OPT)\0"
    "#1489.ExplAttrInfos(#1081,OPT)\0"
    "#1490.ExplAttrInfos(#1081,OPT)\0"
    "#1487.Attributes(#1488,#1489,#1490)\0"
    "#1491.Supertypes(#1477)\0"
    "#1491.Composition(#1477,#1491)\0"
    "#1492.ExplAttrInfos(#1254,OPT)\0"
    "#1493.ExplAttrInfos(#1254,OPT)\0"
    "#1494.ExplAttrInfos(#1254,OPT)\0"
    "#1495.ExplAttrInfos(#1167,OPT)\0"
    "#1496.ExplAttrInfos(#1167,OPT)\0"
    "#1497.ExplAttrInfos(#1167,OPT)\0"
    "#1491.Attributes(#1492,#1493,#1494,#1495,#1496,#1497)\0"
    "#1498.Supertypes(#1491)\0"
    "#1498.Composition(#1477,#1491,#1498)\0"
    "#1499.ExplAttrInfos(#1262,OPT)\0"
    "#1498.Attributes(#1499)\0"
    "#1500.Supertypes(#733)\0"
    "#1500.Composition(#1500,#733,#734)\0"
    "#1501.ExplAttrInfos(#940,REQ)\0"
    "#1502.ExplAttrInfos(#90,REQ)\0"
    "#1503.ExplAttrInfos(#90,REQ)\0"
    "#1504.ExplAttrInfos(#90,REQ)\0"
    "#1505.DerivAttrInfos(#29)\0"
    "#1500.Attributes(#1501,#1502,#1503,#1504,#1505)\0"
    "#1506.Supertypes(#756)\0"
    "#1506.Composition(#1506,#733,#756,#734)\0"
    "#1507.ExplAttrInfos(#1500,REQ)\0"
    "#1506.Attributes(#1507)\0"
    "#1509.Supertypes(#1190)\0"
    "#1509.Composition(#1509,#976,#891,#975,#98,#994,#1190)\0"
    "#1508.Supertypes(#1509)\0"
    "#1508.Composition(#1508,#1509,#976,#891,#975,#98,#994,#1190)\0"
    "#1510.ExplAttrInfos(#256,OPT)\0"
    "#1508.Attributes(#1510)\0"
    "#1511.Supertypes(#1509)\0"
    "#1511.Composition(#1511,#1509,#976,#891,#975,#98,#994,#1190)\0"
    "#1512.ExplAttrInfos(#56,OPT)\0"
    "#1513.ExplAttrInfos(#56,OPT)\0"
    "#1515.Supertypes(#125)\0"
    "#1515.Composition(#125,#1515)\0"
    "#1517.ExplAttrInfos(#1518,OPT)\0"
    "#1519.ExplAttrInfos(#14,OPT)\0"
    "#1520.ExplAttrInfos(#14,OPT)\0"
    "#1521.ExplAttrInfos(#14,OPT)\0"
    "#1522.ExplAttrInfos(#14,OPT)\0"
    "#1515.Attributes(#1516,#1517,#1519,#1520,#1521,#1522,#1523)\0"
    "#1514.ExplAttrInfos(#1515,OPT)\0"
    "#1511.Attributes(#1512,#1513,#1514)\0"
    "#1525.Supertypes(#974)\0"
    "#1525.Composition(#974,#1525,#976,#891,#975,#98)\0"
    "#1524.Composition(#1524,#974,#1525,#976,#891,#975,#98)\0"
    "#1526.ExplAttrInfos(#258,OPT)\0"
    "#1528.Supertypes(#1278)\0"
    "#1528.Composition(#1528,#1278,#891,#98,#1094,#1109)\0"
    "#1527.Composition(#1527,#1528,#1278,#891,#98,#1094,#1109)\0"
    "#1529.ExplAttrInfos(#258,REQ)\0"
    "#1530.Supertypes(#1452)\0"
    "#1530.Composition(#1530,#1452,#974,#976,#891,#975,#98)\0"
    "#1531.ExplAttrInfos(#260,OPT)\0"
    "#1532.Supertypes(#1456)\0"
    "#1532.Composition(#1532,#1456,#1278,#891,#98,#1094,#1109)\0"
    "#1533.ExplAttrInfos(#260,REQ)\0"
    "#1534.Supertypes(#1190)\0"
    "#1534.Composition(#1534,#976,#891,#975,#98,#994,#1190)\0"
    "#1535.ExplAttrInfos(#56,OPT)\0"
    "#1534.Attributes(#1535)\0"
    "#1537.Supertypes(#1196)\0"
    "#1537.Composition(#1196,#976,#891,#98,#1537)\0"
    "#1536.Supertypes(#1537)\0"
    "#1536.Composition(#1536,#1196,#976,#891,#98,#1537)\0"
    "#1538.ExplAttrInfos(#262,OPT)\0"
    "#1539.ExplAttrInfos(#14,OPT)\0"
    "#1536.Attributes(#1538,#1539)\0"
    "#1540.Supertypes(#1537)\0"
    "#1540.Composition(#1540,#1196,#976,#891,#98,#1537)\0"
    "#1541.ExplAttrInfos(#264,OPT)\0"
    "#1542.ExplAttrInfos(#14,OPT)\0"
    "#1540.Attributes(#1541,#1542)\0"
    "#1543.Supertypes(#1303)\0"
    "#1543.Composition(#1543,#1273,#1290,#974,#1303,#976,#891,#975,#98)\0"
    "#1544.ExplAttrInfos(#266,OPT)\0"
    "#1543.Attributes(#1544)\0"
    "#1545.Supertypes(#1306)\0"
    "#1545.Composition(#1545,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1546.ExplAttrInfos(#266,REQ)\0"
    "#1545.Attributes(#1546)\0"
    "#1547.Supertypes(#1382)\0"
    "#1547.Composition(#1547,#1382,#1143)\0"
    "#1548.ExplAttrInfos(#90,REQ)\0"
    "#1549.ExplAttrInfos(#90,REQ)\0"
    "#1550.ExplAttrInfos(#90,REQ)\0"
    "#1551.ExplAttrInfos(#90,REQ)\0"
    "#1552.ExplAttrInfos(#82,OPT)\0"
    "#1547.Attributes(#1548,#1549,#1550,#1551,#1552)\0"
    "#1554.Supertypes(#1290)\0"
    "#1554.Composition(#1273,#1290,#974,#1554,#976,#891,#975,#98)\0"
    "#1553.Composition(#1553,#1273,#1290,#974,#1554,#976,#891,#975,#98)\0"
    "#1555.ExplAttrInfos(#268,OPT)\0"
    "#1557.Supertypes(#1297)\0"
    "#1557.Composition(#1277,#1297,#1278,#1557,#891,#98,#1094,#1109)\0"
    "#1556.Composition(#1556,#1277,#1297,#1278,#1557,#891,#98,#1094,#1109)\0"
    "#1558.ExplAttrInfos(#268,REQ)\0"
    "#1560.Supertypes(#1290)\0"
    "#1560.Composition(#1273,#1290,#974,#1560,#976,#891,#975,#98)\0"
    "#1559.Supertypes(#1560)\0"
    "#1559.Composition(#1559,#1273,#1290,#974,#1560,#976,#891,#975,#98)\0"
    "#1561.ExplAttrInfos(#270,OPT)\0"
    "#1559.Attributes(#1561)\0"
    "#1563.Supertypes(#1297)\0"
    "#1563.Composition(#1277,#1297,#1278,#1563,#891,#98,#1094,#1109)\0"
    "#1562.Composition(#1562,#1277,#1297,#1278,#1563,#891,#98,#1094,#1109)\0"
    "#1564.ExplAttrInfos(#270,REQ)\0"
    "#1565.Supertypes(#1554)\0"
    "#1565.Composition(#1565,#1273,#1290,#974,#1554,#976,#891,#975,#98)\0"
    "#1566.ExplAttrInfos(#272,OPT)\0"
    "#1567.Supertypes(#1557)\0"
    "#1567.Composition(#1567,#1277,#1297,#1278,#1557,#891,#98,#1094,#1109)\0"
    "#1568.ExplAttrInfos(#272,REQ)\0"
    "#1569.Supertypes(#1560)\0"
    "#1569.Composition(#1569,#1273,#1290,#974,#1560,#976,#891,#975,#98)\0"
    "#1570.ExplAttrInfos(#274,OPT)\0"
    "#1569.Attributes(#1570)\0"
    "#1571.Supertypes(#1563)\0"
    "#1571.Composition(#1571,#1277,#1297,#1278,#1563,#891,#98,#1094,#1109)\0"
    "#1572.ExplAttrInfos(#274,REQ)\0"
    "#1574.Supertypes(#1452)\0"
    "#1574.Composition(#1452,#1574,#974,#976,#891,#975,#98)\0"
    "#1573.Supertypes(#1574)\0"
    "#1573.Composition(#1452,#1573,#1574,#974,#976,#891,#975,#98)\0"
    "#1575.ExplAttrInfos(#276,OPT)\0"
    "#1573.Attributes(#1575)\0"
    "#1577.Supertypes(#1456)\0"
    "#1577.Composition(#1456,#1577,#1278,#891,#98,#1094,#1109)\0"
    "#1576.Supertypes(#1577)\0"
    "#1576.Composition(#1456,#1576,#1577,#1278,#891,#98,#1094,#1109)\0"
    "#1578.ExplAttrInfos(#276,REQ)\0"
    "#1576.Attributes(#1578)\0"
    "#1579.Supertypes(#768)\0"
    "#1579.Composition(#768,#1579,#733,#734)\0"
    "#1580.ExplAttrInfos(#1582,REQ)\0"
    "#1583.ExplAttrInfos(#1584,OPT)\0"
    "#1579.Attributes(#1580,#1583)\0"
    "#1585.Supertypes(#1232)\0"
    "#1585.Composition(#1233,#1232,#1585,#733,#734)\0"
    "#1586.ExplAttrInfos(#165,OPT)\0"
    "#1587.DerivAttrInfos(#165)\0"
    "#1585.Attributes(#1586,#1587)\0"
    "#1.Entities(#1263,#1269,#116,#1271,#1275,#125,#1281,#1284,#1287,#1288,#1292,#1295,#1299,#1302,#1305,#1308,#1310,#1312,#1316,#1319,#1330,#1331,#1320,#1339,#1341,#1342,#1350,#1352,#144,#1036,#1117,#1356,#1363,#1365,#1367,#1370,#1381,#1396,#1398,#1400,#731,#743,#1403,#1406,#1416,#1423,#1439,#1451,#1454,#1455,#1458,#1460,#1462,#1465,#1469,#1471,#1473,#750,#1474,#1477,#1479,#1480,#1487,#1491,#1498,#857,#1424,#1500,#1506,#1508,#1511,#1524,#1527,#1530,#1532,#1534,#1536,#1452,#1456,#1540,#1543,#1545,#1547,#1553,#1556,#1559,#1562,#1565,#1567,#1569,#1571,#1573,#1576,#940,#768,#1579,#767,#1233,#1232,#1585)\0"
    "#1588.Supertypes(#1233)\0"
    "#1588.Composition(#1233,#1588,#733,#734)\0"
    "#1589.ExplAttrInfos(#739,OPT)\0"
    "#1590.DerivAttrInfos(#1591)\0"
    "#1588.Attributes(#1589,#1590)\0"
    "#1592.Supertypes(#1588)\0"
    "#1592.Composition(#1233,#1588,#1592,#733,#734)\0"
    "#1593.ExplAttrInfos(#165,OPT)\0"
    "#1594.ExplAttrInfos(#165,OPT)\0"
    "#1595.DerivAttrInfos(#165)\0"
    "#1596.DerivAttrInfos(#165)\0"
    "#1592.Attributes(#1593,#1594,#1595,#1596)\0"
    "#1597.Supertypes(#1365)\0"
    "#1597.Composition(#1365,#1597,#1143)\0"
    "#1598.ExplAttrInfos(#90,REQ)\0"
    "#1599.Supertypes(#1303)\0"
    "#1599.Composition(#1599,#1273,#1290,#974,#1303,#976,#891,#975,#98)\0"
    "#1600.ExplAttrInfos(#278,OPT)\0"
    "#1601.Supertypes(#1306)\0"
    "#1601.Composition(#1601,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1602.ExplAttrInfos(#278,REQ)\0"
    "#1601.Attributes(#1602)\0"
    "#1603.Supertypes(#1452)\0"
    "#1603.Composition(#1452,#1603,#974,#976,#891,#975,#98)\0"
    "#1604.ExplAttrInfos(#280,OPT)\0"
    "#1603.Attributes(#1604)\0"
    "#1605.Supertypes(#1456)\0"
    "#1605.Composition(#1456,#1605,#1278,#891,#98,#1094,#1109)\0"
    "#1606.ExplAttrInfos(#280,REQ)\0"
    "#1605.Attributes(#1606)\0"
    "#1608.Supertypes(#858)\0"
    "#1608.Composition(#1608,#858,#733,#734)\0"
    "#1609.ExplAttrInfos(#747,REQ)\0"
    "#1607.Supertypes(#1608)\0"
    "#1607.Composition(#1607,#1608,#858,#733,#734)\0"
    "#1610.ExplAttrInfos(#90,REQ)\0"
    "#1607.Attributes(#1610)\0"
    "#1612.Supertypes(#1382)\0"
    "#1612.Composition(#1612,#1382,#1143)\0"
    "#1613.ExplAttrInfos(#90,REQ)\0"
    "#1611.Composition(#1611,#1612,#1382,#1143)\0"
    "#1614.ExplAttrInfos(#90,REQ)\0"
    "#1615.Supertypes(#974)\0"
    "#1615.Composition(#1615,#974,#976,#891,#975,#98)\0"
    "#1616.Supertypes(#1278)\0"
    "#1616.Composition(#1616,#1278,#891,#98,#1094,#1109)\0"
    "#1618.Supertypes(#858)\0"
    "#1618.Composition(#858,#733,#734,#1618)\0"
    "#1619.ExplAttrInfos(#747,OPT)\0"
    "#1617.Composition(#1617,#858,#733,#734,#1618)\0"
    "#1620.ExplAttrInfos(#56,REQ)\0"
    "#1617.Attributes(#1620)\0"
    "#1621.Supertypes(#1303)\0"
    "#1621.Composition(#1621,#1273,#1290,#974,#1303,#976,#891,#975,#98)\0"
    "#1622.ExplAttrInfos(#282,OPT)\0"
    "#1621.Attributes(#1622)\0"
    "#1623.Supertypes(#1306)\0"
    "#1623.Composition(#1623,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1624.ExplAttrInfos(#282,REQ)\0"
    "#1625.Supertypes(#807)\0"
    "#1625.Composition(#1625,#807)\0"
    "#1626.ExplAttrInfos(#1628,REQ)\0"
    "#1629.Supertypes(#1452)\0"
    "#1629.Composition(#1452,#1629,#974,#976,#891,#975,#98)\0"
    "#1630.ExplAttrInfos(#284,OPT)\0"
    "#1631.Supertypes(#1629)\0"
    "#1631.Composition(#1452,#1629,#1631,#974,#976,#891,#975,#98)\0"
    "#1632.Supertypes(#1456)\0"
    "#1632.Composition(#1456,#1632,#1278,#891,#98,#1094,#1109)\0"
    "#1633.ExplAttrInfos(#284,REQ)\0"
    "#1634.Supertypes(#1289)\0"
    "#1634.Composition(#1634,#1273,#1290,#974,#1289,#976,#891,#975,#98)\0"
    "#1635.ExplAttrInfos(#286,OPT)\0"
    "#1636.Supertypes(#1300)\0"
    "#1636.Composition(#1636,#1277,#1297,#1278,#1300,#891,#98,#1094,#1109)\0"
    "#1637.ExplAttrInfos(#286,REQ)\0"
    "#1639.Supertypes(#1146)\0"
    "#1639.Composition(#1639,#1146)\0"
    "#1640.ExplAttrInfos(#48,REQ)\0"
    "#1641.ExplAttrInfos(#122,OPT)\0"
    "#1639.Attributes(#1640,#1641)\0"
    "#1638.Composition(#1638,#1639,#1146)\0"
    "#1642.ExplAttrInfos(#48,REQ)\0"
    "#1643.ExplAttrInfos(#1644,REQ)\0"
    "#1638.Attributes(#1642,#1643)\0"
    "#1647.Supertypes(#97)\0"
    "#1647.Composition(#97,#1647,#98)\0"
    "#1646.Supertypes(#1647)\0"
    "#1646.Composition(#97,#1646,#1647,#98)\0"
    "#1645.Supertypes(#1646)\0"
    "#1645.Composition(#1645,#97,#1646,#1647,#98)\0"
    "#1649.ExplAttrInfos(#288,OPT)\0"
    "#1650.ExplAttrInfos(#1651,OPT)\0"
    "#1645.Attributes(#1648,#1649,#1650)\0"
    "#1652.Supertypes(#861)\0"
    "#1652.Composition(#1652,#733,#734,#861)\0"
    "#1653.ExplAttrInfos(#13,REQ)\0"
    "#1654.ExplAttrInfos(#858,REQ)\0"
    "#1655.DerivAttrInfos(#29)\0"
    "#1652.Attributes(#1653,#1654,#1655)\0"
    "#1656.Supertypes(#1143)\0"
    "#1656.Composition(#1656,#1143)\0"
    "#1657.ExplAttrInfos(#1658,REQ)\0"
    "#1659.ExplAttrInfos(#14,OPT)\0"
    "#1656.Attributes(#1657,#1659)\0"
    "#1661.Supertypes(#1290)\0"
    "#1661.Composition(#1273,#1290,#974,#1661,#976,#891,#975,#98)\0"
    "#1660.Supertypes(#1661)\0"
    "#1660.Composition(#1660,#1273,#1290,#974,#1661,#976,#891,#975,#98)\0"
    "#1662.ExplAttrInfos(#290,OPT)\0"
    "#1660.Attributes(#1662)\0"
    "#1664.Supertypes(#1297)\0"
    "#1664.Composition(#1277,#1297,#1278,#1664,#891,#98,#1094,#1109)\0"
    "#1663.Supertypes(#1664)\0"
    "#1663.Composition(#1663,#1277,#1297,#1278,#1664,#891,#98,#1094,#1109)\0"
    "#1665.ExplAttrInfos(#290,REQ)\0"
    "#1663.Attributes(#1665)\0"
    "#1666.Supertypes(#1303)\0"
    "#1666.Composition(#1666,#1273,#1290,#974,#1303,#976,#891,#975,#98)\0"
    "#1667.ExplAttrInfos(#292,OPT)\0"
    "#1666.Attributes(#1667)\0"
    "#1668.Supertypes(#1306)\0"
    "#1668.Composition(#1668,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1669.ExplAttrInfos(#292,REQ)\0"
    "#1671.Composition(#1671)\0"
    "#1670.Supertypes(#1671)\0"
    "#1670.Composition(#1670,#1671)\0"
    "#1672.ExplAttrInfos(#890,REQ)\0"
    "#1673.ExplAttrInfos(#890,OPT)\0"
    "#1670.Attributes(#1672,#1673)\0"
    "#1675.Supertypes(#1671)\0"
    "#1675.Composition(#1671,#1675)\0"
    "#1676.ExplAttrInfos(#1089,REQ)\0"
    "#1677.ExplAttrInfos(#1089,OPT)\0"
    "#1675.Attributes(#1676,#1677)\0"
    "#1674.Supertypes(#1675)\0"
    "#1674.Composition(#1671,#1674,#1675)\0"
    "#1678.ExplAttrInfos(#56,OPT)\0"
    "#1679.ExplAttrInfos(#56,OPT)\0"
    "#1680.ExplAttrInfos(#56,OPT)\0"
    "#1674.Attributes(#1678,#1679,#1680)\0"
    "#1681.Supertypes(#1671)\0"
    "#1681.Composition(#1671,#1681)\0"
    "#1682.ExplAttrInfos(#1212,REQ)\0"
    "#1683.ExplAttrInfos(#1212,OPT)\0"
    "#1681.Attributes(#1682,#1683)\0"
    "#1684.Supertypes(#1671)\0"
    "#1684.Composition(#1671,#1684)\0"
    "#1685.ExplAttrInfos(#1185,REQ)\0"
    "#1686.ExplAttrInfos(#1185,OPT)\0"
    "#1684.Attributes(#1685,#1686)\0"
    "#1688.Supertypes(#1157)\0"
    "#1688.Composition(#1688,#976,#891,#1157,#98)\0"
    "#1691.Composition(#1691)\0"
    "#1692.ExplAttrInfos(#14,OPT)\0"
    "#1693.ExplAttrInfos(#328,OPT)\0"
    "#1691.Attributes(#1692,#1693,#1694)\0"
    "#1690.Supertypes(#1691)\0"
    "#1690.Composition(#1690,#1691)\0"
    "#1699.ExplAttrInfos(#14,OPT)\0"
    "#1700.ExplAttrInfos(#31,OPT)\0"
    "#1701.ExplAttrInfos(#13,OPT)\0"
    "#1702.ExplAttrInfos(#25,OPT)\0"
    "#1703.ExplAttrInfos(#31,OPT)\0"
    "#1704.ExplAttrInfos(#92,OPT)\0"
    "#1705.ExplAttrInfos(#25,OPT)\0"
    "#1706.ExplAttrInfos(#25,OPT)\0"
    "#1707.ExplAttrInfos(#31,OPT)\0"
    "#1708.ExplAttrInfos(#92,OPT)\0"
    "#1709.ExplAttrInfos(#92,OPT)\0"
    "#1690.Attributes(#1695,#1696,#1697,#1698,#1699,#1700,#1701,#1702,#1703,#1704,#1705,#1706,#1707,#1708,#1709)\0"
    "#1689.ExplAttrInfos(#1690,OPT)\0"
    "#1710.ExplAttrInfos(#1711,OPT)\0"
    "#1712.ExplAttrInfos(#1140,OPT)\0"
    "#1688.Attributes(#1689,#1710,#1712)\0"
    "#1687.Supertypes(#1688)\0"
    "#1687.Composition(#1687,#1688,#976,#891,#1157,#98)\0"
    "#1713.ExplAttrInfos(#298,OPT)\0"
    "#1687.Attributes(#1713)\0"
    "#1715.Supertypes(#1160)\0"
    "#1715.Composition(#1715,#891,#98,#1094,#1160)\0"
    "#1716.ExplAttrInfos(#1717,OPT)\0"
    "#1718.ExplAttrInfos(#1140,OPT)\0"
    "#1715.Attributes(#1716,#1718)\0"
    "#1714.Supertypes(#1715)\0"
    "#1714.Composition(#1714,#1715,#891,#98,#1094,#1160)\0"
    "#1719.ExplAttrInfos(#298,REQ)\0"
    "#1714.Attributes(#1719)\0"
    "#1720.Supertypes(#1688)\0"
    "#1720.Composition(#1720,#1688,#976,#891,#1157,#98)\0"
    "#1721.ExplAttrInfos(#300,OPT)\0"
    "#1722.Supertypes(#1715)\0"
    "#1722.Composition(#1722,#1715,#891,#98,#1094,#1160)\0"
    "#1723.ExplAttrInfos(#300,REQ)\0"
    "#1724.Supertypes(#1688)\0"
    "#1724.Composition(#1724,#1688,#976,#891,#1157,#98)\0"
    "#1725.ExplAttrInfos(#302,OPT)\0"
    "#1726.Supertypes(#1715)\0"
    "#1726.Composition(#1726,#1715,#891,#98,#1094,#1160)\0"
    "#1727.ExplAttrInfos(#302,REQ)\0"
    "#1728.Supertypes(#891)\0"
    "#1728.Composition(#1728,#891,#98)\0"
    "#1729.ExplAttrInfos(#14,OPT)\0"
    "#1730.ExplAttrInfos(#14,OPT)\0"
    "#1731.ExplAttrInfos(#14,OPT)\0"
    "#1732.ExplAttrInfos(#1733,OPT)\0"
    "#1735.Composition(#1735)\0"
    "#1736.ExplAttrInfos(#1737,REQ)\0"
    "#1735.Attributes(#1736)\0"
    "#1734.ExplAttrInfos(#1735,OPT)\0"
    "#1728.Attributes(#1729,#1730,#1731,#1732,#1734)\0"
    "#1738.Supertypes(#1272)\0"
    "#1738.Composition(#1738,#1272,#1273,#974,#976,#891,#975,#98)\0"
    "#1739.ExplAttrInfos(#304,OPT)\0"
    "#1740.Supertypes(#1276)\0"
    "#1740.Composition(#1740,#1276,#1277,#1278,#891,#98,#1094,#1109)\0"
    "#1741.ExplAttrInfos(#304,REQ)\0"
    "#1742.Supertypes(#1137)\0"
    "#1742.Composition(#1137,#1742,#702)\0"
    "#1743.ExplAttrInfos(#165,REQ)\0"
    "#1744.Supertypes(#1560)\0"
    "#1744.Composition(#1744,#1273,#1290,#974,#1560,#976,#891,#975,#98)\0"
    "#1745.ExplAttrInfos(#306,OPT)\0"
    "#1746.Supertypes(#1563)\0"
    "#1746.Composition(#1746,#1277,#1297,#1278,#1563,#891,#98,#1094,#1109)\0"
    "#1747.ExplAttrInfos(#306,REQ)\0"
    "#1748.Supertypes(#1303)\0"
    "#1748.Composition(#1748,#1273,#1290,#974,#1303,#976,#891,#975,#98)\0"
    "#1749.ExplAttrInfos(#308,OPT)\0"
    "#1748.Attributes(#1749)\0"
    "#1750.Supertypes(#1306)\0"
    "#1750.Composition(#1750,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1751.ExplAttrInfos(#308,REQ)\0"
    "#1750.Attributes(#1751)\0"
    "#1752.Supertypes(#1303)\0"
    "#1752.Composition(#1752,#1273,#1290,#974,#1303,#976,#891,#975,#98)\0"
    "#1753.ExplAttrInfos(#310,OPT)\0"
    "#1752.Attributes(#1753)\0"
    "#1754.Supertypes(#1306)\0"
    "#1754.Composition(#1754,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1755.ExplAttrInfos(#310,REQ)\0"
    "#1754.Attributes(#1755)\0"
    "#1756.Composition(#1756)\0"
    "#1757.ExplAttrInfos(#834,REQ)\0"
    "#1758.ExplAttrInfos(#820,REQ)\0"
    "#1756.Attributes(#1757,#1758)\0"
    "#1759.Supertypes(#1618)\0"
    "#1759.Composition(#1759,#858,#733,#734,#1618)\0"
    "#1760.ExplAttrInfos(#56,REQ)\0"
    "#1761.ExplAttrInfos(#165,REQ)\0"
    "#1759.Attributes(#1760,#1761)\0"
    "#1762.Supertypes(#1264)\0"
    "#1762.Composition(#1264,#1762,#976,#891,#98)\0"
    "#1763.ExplAttrInfos(#312,OPT)\0"
    "#1764.ExplAttrInfos(#1765,OPT)\0"
    "#1766.ExplAttrInfos(#1767,OPT)\0"
    "#1762.Attributes(#1763,#1764,#1766)\0"
    "#1768.Supertypes(#1264)\0"
    "#1768.Composition(#1264,#1768,#976,#891,#98)\0"
    "#1769.ExplAttrInfos(#314,OPT)\0"
    "#1770.ExplAttrInfos(#14,OPT)\0"
    "#1771.ExplAttrInfos(#25,OPT)\0"
    "#1772.ExplAttrInfos(#25,OPT)\0"
    "#1768.Attributes(#1769,#1770,#1771,#1772)\0"
    "#1773.Supertypes(#1452)\0"
    "#1773.Composition(#1452,#1773,#974,#976,#891,#975,#98)\0"
    "#1774.ExplAttrInfos(#316,OPT)\0"
    "#1775.Supertypes(#1456)\0"
    "#1775.Composition(#1456,#1775,#1278,#891,#98,#1094,#1109)\0"
    "#1776.ExplAttrInfos(#316,REQ)\0"
    "#1777.Supertypes(#1452)\0"
    "#1777.Composition(#1452,#1777,#974,#976,#891,#975,#98)\0"
    "#1778.ExplAttrInfos(#318,OPT)\0"
    "#1779.Supertypes(#1456)\0"
    "#1779.Composition(#1456,#1779,#1278,#891,#98,#1094,#1109)\0"
    "#1780.ExplAttrInfos(#318,REQ)\0"
    "#1781.Supertypes(#1688)\0"
    "#1781.Composition(#1688,#1781,#976,#891,#1157,#98)\0"
    "#1782.ExplAttrInfos(#320,OPT)\0"
    "#1783.Supertypes(#1715)\0"
    "#1783.Composition(#1715,#1783,#891,#98,#1094,#1160)\0"
    "#1784.ExplAttrInfos(#320,REQ)\0"
    "#1783.Attributes(#1784)\0"
    "#1785.Supertypes(#762)\0"
    "#1785.Composition(#1785,#733,#734,#762)\0"
    "#1786.ExplAttrInfos(#836,REQ)\0"
    "#1787.Supertypes(#1357)\0"
    "#1787.Composition(#1787,#1357)\0"
    "#1788.ExplAttrInfos(#718,REQ)\0"
    "#1789.ExplAttrInfos(#718,REQ)\0"
    "#1790.ExplAttrInfos(#92,REQ)\0"
    "#1791.ExplAttrInfos(#25,OPT)\0"
    "#1792.ExplAttrInfos(#1000,OPT)\0"
    "#1787.Attributes(#1788,#1789,#1790,#1791,#1792)\0"
    "#1793.Supertypes(#1452)\0"
    "#1793.Composition(#1452,#1793,#974,#976,#891,#975,#98)\0"
    "#1794.ExplAttrInfos(#322,OPT)\0"
    "#1795.Supertypes(#1456)\0"
    "#1795.Composition(#1456,#1795,#1278,#891,#98,#1094,#1109)\0"
    "#1796.ExplAttrInfos(#322,REQ)\0"
    "#1797.Supertypes(#1424)\0"
    "#1797.Composition(#1424,#1797,#733,#734,#758)\0"
    "#1800.Supertypes(#758)\0"
    "#1800.Composition(#1800,#733,#734,#758)\0"
    "#1801.ExplAttrInfos(#743,REQ)\0"
    "#1799.Supertypes(#1800)\0"
    "#1799.Composition(#1800,#733,#1799,#734,#758)\0"
    "#1798.ExplAttrInfos(#1799,REQ)\0"
    "#1802.ExplAttrInfos(#858,REQ)\0"
    "#1803.ExplAttrInfos(#1804,REQ)\0"
    "#1797.Attributes(#1798,#1802,#1803)\0"
    "#1805.Supertypes(#1424)\0"
    "#1805.Composition(#1424,#1805,#733,#734,#758)\0"
    "#1806.ExplAttrInfos(#758,REQ)\0"
    "#1807.ExplAttrInfos(#1808,REQ)\0"
    "#1809.ExplAttrInfos(#13,REQ)\0"
    "#1805.Attributes(#1806,#1807,#1809)\0"
    "#1810.Supertypes(#861)\0"
    "#1810.Composition(#1810,#733,#734,#861)\0"
    "#1811.ExplAttrInfos(#732,REQ)\0"
    "#1812.ExplAttrInfos(#854,REQ)\0"
    "#1813.ExplAttrInfos(#854,REQ)\0"
    "#1814.ExplAttrInfos(#858,REQ)\0"
    "#1815.DerivAttrInfos(#29)\0"
    "#1810.Attributes(#1811,#1812,#1813,#1814,#1815)\0"
    "#1816.Supertypes(#1800)\0"
    "#1816.Composition(#1816,#1800,#733,#734,#758)\0"
    "#1817.ExplAttrInfos(#90,REQ)\0"
    "#1818.Supertypes(#1293)",
    "#1818.Composition(#1818,#1273,#1290,#974,#1293,#976,#891,#975,#98)\0"
    "#1819.ExplAttrInfos(#326,OPT)\0"
    "#1820.Supertypes(#1296)\0"
    "#1820.Composition(#1820,#1277,#1297,#1278,#1296,#891,#98,#1094,#1109)\0"
    "#1821.ExplAttrInfos(#326,REQ)\0"
    "#1820.Attributes(#1821)\0"
    "#1822.Supertypes(#1143)\0"
    "#1822.Composition(#1822,#1143)\0"
    "#1823.ExplAttrInfos(#1143,REQ)\0"
    "#1824.ExplAttrInfos(#1232,REQ)\0"
    "#1825.ExplAttrInfos(#14,OPT)\0"
    "#1822.Attributes(#1823,#1824,#1825)\0"
    "#1.Entities(#1588,#1592,#1597,#1599,#1601,#1603,#1605,#1607,#1611,#1612,#1615,#1616,#782,#792,#1170,#1617,#1621,#1623,#814,#1625,#806,#1629,#1631,#1632,#1634,#1636,#1638,#1645,#856,#855,#1652,#1656,#1660,#1663,#1666,#1668,#1608,#1171,#1670,#1671,#1674,#1675,#1681,#1684,#1127,#1687,#1714,#1720,#1722,#1724,#1726,#1688,#1715,#1728,#1135,#1264,#1738,#1740,#1137,#1742,#1744,#1746,#1748,#1750,#1752,#1754,#1756,#820,#1759,#1762,#1768,#1373,#1773,#1775,#1777,#1779,#1781,#1783,#753,#1785,#1787,#1793,#1795,#858,#1797,#1805,#1810,#923,#840,#837,#843,#1816,#1818,#1820,#1574,#1577,#1822,#698,#700,#704)\0"
    "#1827.Supertypes(#762)\0"
    "#1827.Composition(#733,#734,#762,#1827)\0"
    "#1828.ExplAttrInfos(#1143,REQ)\0"
    "#1829.ExplAttrInfos(#743,OPT)\0"
    "#1827.Attributes(#1828,#1829)\0"
    "#1826.Supertypes(#1827)\0"
    "#1826.Composition(#1826,#733,#734,#762,#1827)\0"
    "#1830.ExplAttrInfos(#858,REQ)\0"
    "#1831.ExplAttrInfos(#854,OPT)\0"
    "#1832.ExplAttrInfos(#854,OPT)\0"
    "#1826.Attributes(#1830,#1831,#1832)\0"
    "#1834.Supertypes(#1826)\0"
    "#1834.Composition(#1826,#1834,#733,#734,#762,#1827)\0"
    "#1835.ExplAttrInfos(#739,REQ)\0"
    "#1833.Supertypes(#1834)\0"
    "#1833.Composition(#1826,#1833,#1834,#733,#734,#762,#1827)\0"
    "#1836.Supertypes(#1827)\0"
    "#1836.Composition(#1836,#733,#734,#762,#1827)\0"
    "#1837.ExplAttrInfos(#858,REQ)\0"
    "#1839.Supertypes(#736)\0"
    "#1839.Composition(#733,#736,#1839,#734)\0"
    "#1840.ExplAttrInfos(#854,REQ)\0"
    "#1841.ExplAttrInfos(#56,OPT)\0"
    "#1842.ExplAttrInfos(#56,OPT)\0"
    "#1843.ExplAttrInfos(#56,OPT)\0"
    "#1844.ExplAttrInfos(#858,REQ)\0"
    "#1845.DerivAttrInfos(#29)\0"
    "#1839.Attributes(#1840,#1841,#1842,#1843,#1844,#1845)\0"
    "#1838.ExplAttrInfos(#1839,OPT)\0"
    "#1846.ExplAttrInfos(#1839,OPT)\0"
    "#1836.Attributes(#1837,#1838,#1846)\0"
    "#1847.Supertypes(#1525)\0"
    "#1847.Composition(#1847,#974,#1525,#976,#891,#975,#98)\0"
    "#1848.ExplAttrInfos(#334,OPT)\0"
    "#1847.Attributes(#1848)\0"
    "#1849.Supertypes(#1528)\0"
    "#1849.Composition(#1849,#1528,#1278,#891,#98,#1094,#1109)\0"
    "#1850.ExplAttrInfos(#334,REQ)\0"
    "#1851.Supertypes(#1293)\0"
    "#1851.Composition(#1851,#1273,#1290,#974,#1293,#976,#891,#975,#98)\0"
    "#1852.ExplAttrInfos(#336,OPT)\0"
    "#1851.Attributes(#1852)\0"
    "#1853.Supertypes(#1296)\0"
    "#1853.Composition(#1853,#1277,#1297,#1278,#1296,#891,#98,#1094,#1109)\0"
    "#1854.ExplAttrInfos(#336,REQ)\0"
    "#1855.Supertypes(#1290)\0"
    "#1855.Composition(#1855,#1273,#1290,#974,#976,#891,#975,#98)\0"
    "#1856.ExplAttrInfos(#338,OPT)\0"
    "#1855.Attributes(#1856)\0"
    "#1857.Supertypes(#1297)\0"
    "#1857.Composition(#1857,#1277,#1297,#1278,#891,#98,#1094,#1109)\0"
    "#1858.ExplAttrInfos(#338,REQ)\0"
    "#1860.Supertypes(#1537)\0"
    "#1860.Composition(#1860,#1196,#976,#891,#98,#1537)\0"
    "#1861.ExplAttrInfos(#14,OPT)\0"
    "#1862.ExplAttrInfos(#342,OPT)\0"
    "#1860.Attributes(#1861,#1862)\0"
    "#1859.Composition(#1859,#1860,#1196,#976,#891,#98,#1537)\0"
    "#1864.Supertypes(#975)\0"
    "#1864.Composition(#976,#891,#1864,#975,#98)\0"
    "#1863.Supertypes(#1864)\0"
    "#1863.Composition(#1863,#976,#891,#1864,#975,#98)\0"
    "#1865.ExplAttrInfos(#412,OPT)\0"
    "#1866.ExplAttrInfos(#340,OPT)\0"
    "#1867.ExplAttrInfos(#342,OPT)\0"
    "#1863.Attributes(#1865,#1866,#1867)\0"
    "#1868.Supertypes(#1357)\0"
    "#1868.Composition(#1868,#1357)\0"
    "#1869.ExplAttrInfos(#894,REQ)\0"
    "#1870.ExplAttrInfos(#1871,REQ)\0"
    "#1872.ExplAttrInfos(#14,OPT)\0"
    "#1868.Attributes(#1869,#1870,#1872)\0"
    "#1873.Supertypes(#1452)\0"
    "#1873.Composition(#1452,#1873,#974,#976,#891,#975,#98)\0"
    "#1874.ExplAttrInfos(#90,OPT)\0"
    "#1876.ExplAttrInfos(#356,OPT)\0"
    "#1877.ExplAttrInfos(#358,OPT)\0"
    "#1878.ExplAttrInfos(#14,OPT)\0"
    "#1873.Attributes(#1874,#1875,#1876,#1877,#1878)\0"
    "#1880.Supertypes(#96)\0"
    "#1880.Composition(#1880,#97,#96,#98)\0"
    "#1879.Supertypes(#1880)\0"
    "#1879.Composition(#1879,#1880,#97,#96,#98)\0"
    "#1881.ExplAttrInfos(#90,OPT)\0"
    "#1882.ExplAttrInfos(#82,OPT)\0"
    "#1883.ExplAttrInfos(#90,OPT)\0"
    "#1884.ExplAttrInfos(#82,OPT)\0"
    "#1885.ExplAttrInfos(#82,OPT)\0"
    "#1886.ExplAttrInfos(#56,OPT)\0"
    "#1887.ExplAttrInfos(#56,OPT)\0"
    "#1888.ExplAttrInfos(#56,OPT)\0"
    "#1889.ExplAttrInfos(#90,OPT)\0"
    "#1890.ExplAttrInfos(#90,OPT)\0"
    "#1891.ExplAttrInfos(#1147,OPT)\0"
    "#1892.ExplAttrInfos(#56,OPT)\0"
    "#1893.ExplAttrInfos(#56,OPT)\0"
    "#1879.Attributes(#1881,#1882,#1883,#1884,#1885,#1886,#1887,#1888,#1889,#1890,#1891,#1892,#1893)\0"
    "#1894.Supertypes(#1880)\0"
    "#1894.Composition(#1894,#1880,#97,#96,#98)\0"
    "#1895.ExplAttrInfos(#90,OPT)\0"
    "#1896.ExplAttrInfos(#348,REQ)\0"
    "#1897.ExplAttrInfos(#84,OPT)\0"
    "#1898.ExplAttrInfos(#350,REQ)\0"
    "#1899.ExplAttrInfos(#1147,OPT)\0"
    "#1894.Attributes(#1895,#1896,#1897,#1898,#1899)\0"
    "#1900.Supertypes(#1873)\0"
    "#1900.Composition(#1452,#1873,#1900,#974,#976,#891,#975,#98)\0"
    "#1901.Supertypes(#1109)\0"
    "#1901.Composition(#1901,#891,#98,#1094,#1109)\0"
    "#1902.ExplAttrInfos(#354,REQ)\0"
    "#1903.ExplAttrInfos(#352,REQ)\0"
    "#1904.ExplAttrInfos(#13,REQ)\0"
    "#1905.ExplAttrInfos(#13,REQ)\0"
    "#1901.Attributes(#1902,#1903,#1904,#1905)\0"
    "#1906.Supertypes(#1456)\0"
    "#1906.Composition(#1456,#1906,#1278,#891,#98,#1094,#1109)\0"
    "#1907.ExplAttrInfos(#356,REQ)\0"
    "#1908.ExplAttrInfos(#358,REQ)\0"
    "#1909.ExplAttrInfos(#13,OPT)\0"
    "#1910.ExplAttrInfos(#14,OPT)\0"
    "#1906.Attributes(#1907,#1908,#1909,#1910)\0"
    "#1911.Supertypes(#809)\0"
    "#1911.Composition(#1911,#809,#810,#807)\0"
    "#1912.Supertypes(#847)\0"
    "#1912.Composition(#1912,#847,#810,#807)\0"
    "#1913.Supertypes(#1554)\0"
    "#1913.Composition(#1273,#1290,#1913,#974,#1554,#976,#891,#975,#98)\0"
    "#1914.ExplAttrInfos(#360,OPT)\0"
    "#1913.Attributes(#1914)\0"
    "#1915.Supertypes(#1557)\0"
    "#1915.Composition(#1277,#1297,#1915,#1278,#1557,#891,#98,#1094,#1109)\0"
    "#1916.ExplAttrInfos(#360,REQ)\0"
    "#1915.Attributes(#1916)\0"
    "#1917.Supertypes(#1560)\0"
    "#1917.Composition(#1273,#1290,#1917,#974,#1560,#976,#891,#975,#98)\0"
    "#1918.ExplAttrInfos(#362,OPT)\0"
    "#1919.Supertypes(#1563)\0"
    "#1919.Composition(#1277,#1297,#1919,#1278,#1563,#891,#98,#1094,#1109)\0"
    "#1920.ExplAttrInfos(#362,REQ)\0"
    "#1922.Supertypes(#1290)\0"
    "#1922.Composition(#1273,#1290,#974,#1922,#976,#891,#975,#98)\0"
    "#1921.Composition(#1273,#1290,#1921,#974,#1922,#976,#891,#975,#98)\0"
    "#1923.ExplAttrInfos(#364,OPT)\0"
    "#1921.Attributes(#1923)\0"
    "#1925.Supertypes(#1297)\0"
    "#1925.Composition(#1277,#1297,#1278,#1925,#891,#98,#1094,#1109)\0"
    "#1924.Supertypes(#1925)\0"
    "#1924.Composition(#1277,#1297,#1924,#1278,#1925,#891,#98,#1094,#1109)\0"
    "#1926.ExplAttrInfos(#364,REQ)\0"
    "#1924.Attributes(#1926)\0"
    "#1929.Supertypes(#974)\0"
    "#1929.Composition(#974,#1929,#976,#891,#975,#98)\0"
    "#1928.Composition(#974,#1929,#1928,#976,#891,#975,#98)\0"
    "#1927.Supertypes(#1928)\0"
    "#1927.Composition(#1927,#974,#1929,#1928,#976,#891,#975,#98)\0"
    "#1930.ExplAttrInfos(#366,OPT)\0"
    "#1927.Attributes(#1930)\0"
    "#1931.Supertypes(#1452)\0"
    "#1931.Composition(#1452,#1931,#974,#976,#891,#975,#98)\0"
    "#1932.Supertypes(#1931)\0"
    "#1932.Composition(#1452,#1931,#1932,#974,#976,#891,#975,#98)\0"
    "#1933.ExplAttrInfos(#368,OPT)\0"
    "#1932.Attributes(#1933)\0"
    "#1934.Supertypes(#1177)\0"
    "#1934.Composition(#1934,#1177,#734,#883)\0"
    "#1936.Supertypes(#882)\0"
    "#1936.Composition(#882,#1936,#734,#883)\0"
    "#1937.ExplAttrInfos(#882,REQ)\0"
    "#1938.ExplAttrInfos(#13,REQ)\0"
    "#1939.DerivAttrInfos(#885)\0"
    "#1940.DerivAttrInfos(#885)\0"
    "#1936.Attributes(#1937,#1938,#1939,#1940)\0"
    "#1935.ExplAttrInfos(#1941,REQ)\0"
    "#1942.DerivAttrInfos(#6)\0"
    "#1934.Attributes(#1935,#1942)\0"
    "#1943.Supertypes(#1289)\0"
    "#1943.Composition(#1273,#1290,#1943,#974,#1289,#976,#891,#975,#98)\0"
    "#1944.ExplAttrInfos(#370,OPT)\0"
    "#1945.Supertypes(#1300)\0"
    "#1945.Composition(#1277,#1297,#1945,#1278,#1300,#891,#98,#1094,#1109)\0"
    "#1946.ExplAttrInfos(#370,REQ)\0"
    "#1947.Supertypes(#1293)\0"
    "#1947.Composition(#1273,#1290,#1947,#974,#1293,#976,#891,#975,#98)\0"
    "#1948.ExplAttrInfos(#372,OPT)\0"
    "#1949.Supertypes(#1296)\0"
    "#1949.Composition(#1277,#1297,#1949,#1278,#1296,#891,#98,#1094,#1109)\0"
    "#1950.ExplAttrInfos(#372,REQ)\0"
    "#1949.Attributes(#1950)\0"
    "#1952.Supertypes(#1290)\0"
    "#1952.Composition(#1273,#1290,#974,#1952,#976,#891,#975,#98)\0"
    "#1951.Supertypes(#1952)\0"
    "#1951.Composition(#1273,#1290,#1951,#974,#1952,#976,#891,#975,#98)\0"
    "#1953.ExplAttrInfos(#374,OPT)\0"
    "#1951.Attributes(#1953)\0"
    "#1955.Supertypes(#1297)\0"
    "#1955.Composition(#1277,#1297,#1278,#1955,#891,#98,#1094,#1109)\0"
    "#1954.Supertypes(#1955)\0"
    "#1954.Composition(#1277,#1297,#1954,#1278,#1955,#891,#98,#1094,#1109)\0"
    "#1956.ExplAttrInfos(#374,REQ)\0"
    "#1954.Attributes(#1956)\0"
    "#1957.Supertypes(#1922)\0"
    "#1957.Composition(#1273,#1290,#1957,#974,#1922,#976,#891,#975,#98)\0"
    "#1958.ExplAttrInfos(#376,OPT)\0"
    "#1959.Supertypes(#1925)\0"
    "#1959.Composition(#1277,#1297,#1959,#1278,#1925,#891,#98,#1094,#1109)\0"
    "#1960.ExplAttrInfos(#376,REQ)\0"
    "#1961.Supertypes(#1303)\0"
    "#1961.Composition(#1273,#1290,#1961,#974,#1303,#976,#891,#975,#98)\0"
    "#1962.ExplAttrInfos(#378,OPT)\0"
    "#1961.Attributes(#1962)\0"
    "#1963.Supertypes(#1306)\0"
    "#1963.Composition(#1277,#1297,#1963,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1964.ExplAttrInfos(#378,REQ)\0"
    "#1965.Supertypes(#1303)\0"
    "#1965.Composition(#1273,#1290,#1965,#974,#1303,#976,#891,#975,#98)\0"
    "#1966.ExplAttrInfos(#380,OPT)\0"
    "#1967.Supertypes(#1306)\0"
    "#1967.Composition(#1277,#1297,#1967,#1278,#1306,#891,#98,#1094,#1109)\0"
    "#1968.ExplAttrInfos(#380,REQ)\0"
    "#1969.Supertypes(#1293)\0"
    "#1969.Composition(#1273,#1290,#1969,#974,#1293,#976,#891,#975,#98)\0"
    "#1970.ExplAttrInfos(#382,OPT)\0"
    "#1971.Supertypes(#1296)\0"
    "#1971.Composition(#1277,#1297,#1971,#1278,#1296,#891,#98,#1094,#1109)\0"
    "#1972.ExplAttrInfos(#382,REQ)\0"
    "#1973.Supertypes(#974)\0"
    "#1973.Composition(#974,#1973,#976,#891,#975,#98)\0"
    "#1974.ExplAttrInfos(#234,OPT)\0"
    "#1975.ExplAttrInfos(#384,OPT)\0"
    "#1973.Attributes(#1974,#1975)\0"
    "#1976.Supertypes(#1278)\0"
    "#1976.Composition(#1976,#1278,#891,#98,#1094,#1109)\0"
    "#1977.ExplAttrInfos(#384,REQ)\0"
    "#1976.Attributes(#1977)\0"
    "#1979.Supertypes(#96)\0"
    "#1979.Composition(#97,#96,#1979,#98)\0"
    "#1978.Supertypes(#1979)\0"
    "#1978.Composition(#1978,#97,#96,#1979,#98)\0"
    "#1980.ExplAttrInfos(#14,OPT)\0"
    "#1981.ExplAttrInfos(#1982,REQ)\0"
    "#1978.Attributes(#1980,#1981)\0"
    "#1983.Supertypes(#1608)\0"
    "#1983.Composition(#1608,#858,#1983,#733,#734)\0"
    "#1984.ExplAttrInfos(#90,REQ)\0"
    "#1985.ExplAttrInfos(#90,REQ)\0"
    "#1983.Attributes(#1984,#1985)\0"
    "#1986.Supertypes(#1382)\0"
    "#1986.Composition(#1986,#1382,#1143)\0"
    "#1987.ExplAttrInfos(#90,REQ)\0"
    "#1988.ExplAttrInfos(#90,REQ)\0"
    "#1986.Attributes(#1987,#1988)\0"
    "#1989.Supertypes(#1303)\0"
    "#1989.Composition(#1273,#1290,#974,#1303,#1989,#976,#891,#975,#98)\0"
    "#1990.ExplAttrInfos(#388,OPT)\0"
    "#1991.Supertypes(#1306)\0"
    "#1991.Composition(#1277,#1297,#1278,#1306,#1991,#891,#98,#1094,#1109)\0"
    "#1992.ExplAttrInfos(#388,REQ)\0"
    "#1993.Supertypes(#1303)\0"
    "#1993.Composition(#1273,#1290,#974,#1303,#1993,#976,#891,#975,#98)\0"
    "#1994.ExplAttrInfos(#390,OPT)\0"
    "#1995.Supertypes(#1306)\0"
    "#1995.Composition(#1277,#1297,#1278,#1306,#1995,#891,#98,#1094,#1109)\0"
    "#1996.ExplAttrInfos(#390,REQ)\0"
    "#1997.Supertypes(#1303)\0"
    "#1997.Composition(#1273,#1290,#974,#1303,#1997,#976,#891,#975,#98)\0"
    "#1998.ExplAttrInfos(#392,OPT)\0"
    "#1999.Supertypes(#1306)\0"
    "#1999.Composition(#1277,#1297,#1278,#1306,#1999,#891,#98,#1094,#1109)\0"
    "#2000.ExplAttrInfos(#392,REQ)\0"
    "#1999.Attributes(#2000)\0"
    "#2001.Supertypes(#1090)\0"
    "#2001.Composition(#2001,#976,#891,#1090,#98)\0"
    "#2002.ExplAttrInfos(#396,OPT)\0"
    "#2003.ExplAttrInfos(#394,OPT)\0"
    "#2004.ExplAttrInfos(#14,OPT)\0"
    "#2006.Supertypes(#1691)\0"
    "#2006.Composition(#2006,#1691)\0"
    "#2007.ExplAttrInfos(#25,OPT)\0"
    "#2008.ExplAttrInfos(#25,OPT)\0"
    "#2009.ExplAttrInfos(#25,OPT)\0"
    "#2010.ExplAttrInfos(#25,OPT)\0"
    "#2006.Attributes(#2007,#2008,#2009,#2010)\0"
    "#2005.ExplAttrInfos(#2006,OPT)\0"
    "#2001.Attributes(#2002,#2003,#2004,#2005)\0"
    "#2011.Supertypes(#1093)\0"
    "#2011.Composition(#2011,#891,#98,#1094,#1093)\0"
    "#2012.ExplAttrInfos(#396,REQ)\0"
    "#2013.ExplAttrInfos(#394,REQ)\0"
    "#2014.ExplAttrInfos(#14,OPT)\0"
    "#2011.Attributes(#2012,#2013,#2014)\0"
    "#2015.Supertypes(#1146)\0"
    "#2015.Composition(#2015,#1146)\0"
    "#2016.ExplAttrInfos(#48,OPT)\0"
    "#2017.ExplAttrInfos(#122,OPT)\0"
    "#2018.ExplAttrInfos(#2019,REQ)\0"
    "#2015.Attributes(#2016,#2017,#2018)\0"
    "#2020.Supertypes(#1357)\0"
    "#2020.Composition(#2020,#1357)\0"
    "#2021.ExplAttrInfos(#793,REQ)\0"
    "#2022.ExplAttrInfos(#2023,REQ)\0"
    "#2020.Attributes(#2021,#2022)\0"
    "#2024.Supertypes(#1827)\0"
    "#2024.Composition(#2024,#733,#734,#762,#1827)\0"
    "#2025.ExplAttrInfos(#739,REQ)\0"
    "#2024.Attributes(#2025,#2026)\0"
    "#2027.Supertypes(#2024)\0"
    "#2027.Composition(#2024,#2027,#733,#734,#762,#1827)\0"
    "#2028.ExplAttrInfos(#1143,REQ)\0"
    "#2029.Supertypes(#1175)\0"
    "#2029.Composition(#1175,#2029,#734,#883)\0"
    "#2030.Supertypes(#1282)\0"
    "#2030.Composition(#2030,#733,#1282,#734,#762)\0"
    "#2031.Supertypes(#2030)\0"
    "#2031.Composition(#2030,#2031,#733,#1282,#734,#762)\0"
    "#2032.ExplAttrInfos(#2033,REQ)\0"
    "#2034.Supertypes(#1190)\0"
    "#2034.Composition(#2034,#976,#891,#975,#98,#994,#1190)\0"
    "#2035.ExplAttrInfos(#919,REQ)\0"
    "#2036.ExplAttrInfos(#402,REQ)\0"
    "#2034.Attributes(#2035,#2036)\0"
    "#2038.Composition(#2038)\0"
    "#2039.ExplAttrInfos(#14,OPT)\0"
    "#2037.Supertypes(#2038)\0"
    "#2037.Composition(#2037,#2038)\0"
    "#2040.ExplAttrInfos(#43,OPT)\0"
    "#2041.ExplAttrInfos(#43,OPT)\0"
    "#2042.ExplAttrInfos(#43,OPT)\0"
    "#2043.ExplAttrInfos(#43,OPT)\0"
    "#2044.ExplAttrInfos(#43,OPT)\0"
    "#2045.ExplAttrInfos(#43,OPT)\0"
    "#2037.Attributes(#2040,#2041,#2042,#2043,#2044,#2045)\0"
    "#2046.Supertypes(#1661)\0"
    "#2046.Composition(#1273,#1290,#974,#2046,#1661,#976,#891,#975,#98)\0"
    "#2047.ExplAttrInfos(#404,OPT)\0"
    "#2048.Supertypes(#1664)\0"
    "#2048.Composition(#1277,#1297,#1278,#2048,#1664,#891,#98,#1094,#1109)\0"
    "#2049.ExplAttrInfos(#404,REQ)\0"
    "#1.Entities(#739,#1826,#1833,#1836,#1847,#1849,#1851,#1853,#1855,#1857,#1859,#1272,#1276,#1273,#1277,#1290,#1297,#1863,#1860,#894,#1868,#913,#1873,#1879,#1894,#1900,#1901,#1906,#1911,#1912,#1913,#1915,#1917,#1919,#1921,#1924,#1927,#1931,#1932,#882,#881,#1934,#1943,#1945,#1947,#1949,#1951,#1954,#1957,#1959,#1961,#1963,#1965,#1967,#1969,#1971,#974,#1973,#1976,#1525,#1528,#1978,#1278,#1800,#1983,#1986,#1303,#1306,#1989,#1991,#1993,#1995,#1997,#1999,#2001,#2006,#2011,#2015,#783,#793,#2020,#1186,#1187,#920,#1213,#1247,#2024,#2027,#1173,#1204,#1175,#2029,#1208,#2030,#2031,#1509,#2034,#2037,#2046,#2048)\0"
    "#2050.Supertypes(#1525)\0"
    "#2050.Composition(#974,#1525,#2050,#976,#891,#975,#98)\0"
    "#2051.ExplAttrInfos(#406,OPT)\0"
    "#2052.Supertypes(#1528)\0"
    "#2052.Composition(#1528,#1278,#2052,#891,#98,#1094,#1109)\0"
    "#2053.ExplAttrInfos(#406,REQ)\0"
    "#2052.Attributes(#2053)\0"
    "#2054.Supertypes(#1929)\0"
    "#2054.Composition(#974,#1929,#2054,#976,#891,#975,#98)\0"
    "#2055.Supertypes(#924)\0"
    "#2055.Composition(#2055,#924)\0"
    "#2056.ExplAttrInfos(#2057,REQ)\0"
    "#2058.ExplAttrInfos(#13,OPT)\0"
    "#2055.Attributes(#2056,#2058)\0"
    "#2059.Supertypes(#1922)\0"
    "#2059.Composition(#1273,#1290,#974,#2059,#1922,#976,#891,#975,#98)\0"
    "#2060.ExplAttrInfos(#408,OPT)\0"
    "#2059.Attributes(#2060)\0"
    "#2061.Supertypes(#1925)\0"
    "#2061.Composition(#1277,#1297,#1278,#2061,#1925,#891,#98,#1094,#1109)\0"
    "#2062.ExplAttrInfos(#408,REQ)\0"
    "#2061.Attributes(#2062)\0"
    "#2063.Supertypes(#1289)\0"
    "#2063.Composition(#1273,#1290,#974,#2063,#1289,#976,#891,#975,#98)\0"
    "#2064.ExplAttrInfos(#410,OPT)\0"
    "#2065.Supertypes(#1300)\0"
    "#2065.Composition(#1277,#1297,#1278,#2065,#1300,#891,#98,#1094,#1109)\0"
    "#2066.ExplAttrInfos(#410,REQ)\0"
    "#2067.Supertypes(#1272)\0"
    "#2067.Composition(#1272,#1273,#974,#2067,#976,#891,#975,#98)\0"
    "#2068.ExplAttrInfos(#414,OPT)\0"
    "#2069.Supertypes(#1276)\0"
    "#2069.Composition(#1276,#1277,#1278,#2069,#891,#98,#1094,#1109)\0"
    "#2070.ExplAttrInfos(#414,REQ)\0"
    "#2069.Attributes(#2070)\0"
    "#2071.Supertypes(#1293)\0"
    "#2071.Composition(#1273,#1290,#974,#1293,#2071,#976,#891,#975,#98)\0"
    "#2072.ExplAttrInfos(#416,OPT)\0"
    "#2073.Supertypes(#1296)\0"
    "#2073.Composition(#1277,#1297,#1278,#1296,#2073,#891,#98,#1094,#1109)\0"
    "#2074.ExplAttrInfos(#416,REQ)\0"
    "#2073.Attributes(#2074)\0"
    "#2075.Supertypes(#1452)\0"
    "#2075.Composition(#1452,#974,#2075,#976,#891,#975,#98)\0"
    "#2076.ExplAttrInfos(#418,OPT)\0"
    "#2077.Supertypes(#1456)\0"
    "#2077.Composition(#1456,#1278,#2077,#891,#98,#1094,#1109)\0"
    "#2078.ExplAttrInfos(#418,REQ)\0"
    "#2079.Supertypes(#974)\0"
    "#2079.Composition(#974,#2079,#976,#891,#975,#98)\0"
    "#2080.Supertypes(#1278)\0"
    "#2080.Composition(#1278,#2080,#891,#98,#1094,#1109)\0"
    "#2081.Supertypes(#2079)\0"
    "#2081.Composition(#974,#2079,#2081,#976,#891,#975,#98)\0"
    "#2082.ExplAttrInfos(#420,OPT)\0"
    "#2081.Attributes(#2082)\0"
    "#2083.Supertypes(#2080)\0"
    "#2083.Composition(#1278,#2080,#2083,#891,#98,#1094,#1109)\0"
    "#2084.ExplAttrInfos(#234,REQ)\0"
    "#2085.ExplAttrInfos(#420,OPT)\0"
    "#2083.Attributes(#2084,#2085)\0"
    "#2086.Supertypes(#974)\0"
    "#2086.Composition(#974,#2086,#976,#891,#975,#98)\0"
    "#2087.ExplAttrInfos(#422,OPT)\0"
    "#2088.Supertypes(#1278)\0"
    "#2088.Composition(#1278,#2088,#891,#98,#1094,#1109)\0"
    "#2089.ExplAttrInfos(#422,REQ)\0"
    "#2091.Supertypes(#733)\0"
    "#2091.Composition(#733,#2091,#734)\0"
    "#2094.DerivAttrInfos(#29)\0"
    "#2091.Attributes(#2092,#2094)\0"
    "#2090.Supertypes(#2091)\0"
    "#2090.Composition(#2090,#733,#2091,#734)\0"
    "#2095.Supertypes(#825)\0"
    "#2095.Composition(#825,#2095,#826)\0"
    "#2096.ExplAttrInfos(#825,REQ)\0"
    "#2097.ExplAttrInfos(#92,OPT)\0"
    "#2098.ExplAttrInfos(#424,REQ)\0"
    "#2100.DerivAttrInfos(#747)\0"
    "#2101.DerivAttrInfos(#29)\0"
    "#2102.DerivAttrInfos(#739)\0"
    "#2103.DerivAttrInfos(#165)\0"
    "#2095.Attributes(#2096,#2097,#2098,#2099,#2100,#2101,#2102,#2103)\0"
    "#2104.Supertypes(#1475)\0"
    "#2104.Composition(#974,#2104,#1475,#1476,#976,#891,#975,#98)\0"
    "#2105.Supertypes(#1475)\0"
    "#2105.Composition(#974,#2105,#1475,#1476,#976,#891,#975,#98)\0"
    "#2106.Supertypes(#1476)\0"
    "#2106.Composition(#974,#1476,#2106,#976,#891,#975,#98)\0"
    "#2107.Supertypes(#856)\0"
    "#2107.Composition(#857,#856,#858,#733,#2107,#734)\0"
    "#2108.ExplAttrInfos(#857,REQ)\0"
    "#2109.ExplAttrInfos(#732,OPT)\0"
    "#2110.DerivAttrInfos(#56)\0"
    "#2107.Attributes(#2108,#2109,#2110)\0"
    "#2111.Supertypes(#1314)\0"
    "#2111.Composition(#2111,#976,#891,#1314,#975,#98)\0"
    "#2112.ExplAttrInfos(#2113,REQ)\0"
    "#2116.ExplAttrInfos(#2117,OPT)\0"
    "#2111.Attributes(#2112,#2114,#2116,#2118)\0"
    "#2119.Supertypes(#979)\0"
    "#2119.Composition(#2119,#979)\0"
    "#2120.ExplAttrInfos(#961,REQ)\0"
    "#2121.ExplAttrInfos(#971,OPT)\0"
    "#2122.Supertypes(#1303)\0"
    "#2122.Composition(#1273,#1290,#974,#1303,#2122,#976,#891,#975,#98)\0"
    "#2123.ExplAttrInfos(#430,OPT)\0"
    "#2124.Supertypes(#1306)\0"
    "#2124.Composition(#1277,#1297,#1278,#1306,#2124,#891,#98,#1094,#1109)\0"
    "#2125.ExplAttrInfos(#430,REQ)\0"
    "#2126.Supertypes(#1303)\0"
    "#2126.Composition(#1273,#1290,#974,#1303,#2126,#976,#891,#975,#98)\0"
    "#2127.ExplAttrInfos(#432,OPT)\0"
    "#2128.Supertypes(#1306)\0"
    "#2128.Composition(#1277,#1297,#1278,#1306,#2128,#891,#98,#1094,#1109)\0"
    "#2129.ExplAttrInfos(#432,REQ)\0"
    "#2128.Attributes(#2129)\0"
    "#2130.Supertypes(#1382)\0"
    "#2130.Composition(#2130,#1382,#1143)\0"
    "#2131.ExplAttrInfos(#90,REQ)\0"
    "#2132.ExplAttrInfos(#90,REQ)\0"
    "#2133.ExplAttrInfos(#90,REQ)\0"
    "#2134.ExplAttrInfos(#90,REQ)\0"
    "#2135.ExplAttrInfos(#82,OPT)\0"
    "#2136.ExplAttrInfos(#82,OPT)\0"
    "#2137.ExplAttrInfos(#89,OPT)\0"
    "#2130.Attributes(#2131,#2132,#2133,#2134,#2135,#2136,#2137)\0"
    "#2138.Supertypes(#1227)\0"
    "#2138.Composition(#2138,#807,#1227)\0"
    "#2139.ExplAttrInfos(#195,REQ)\0"
    "#2138.Attributes(#2139)\0"
    "#2140.Supertypes(#1525)\0"
    "#2140.Composition(#974,#1525,#2140,#976,#891,#975,#98)\0"
    "#2141.ExplAttrInfos(#973,OPT)\0"
    "#2140.Attributes(#2141)\0"
    "#2142.Supertypes(#1528)\0"
    "#2142.Composition(#1528,#1278,#2142,#891,#98,#1094,#1109)\0"
    "#2143.ExplAttrInfos(#973,REQ)\0"
    "#2142.Attributes(#2143)\0"
    "#2144.Supertypes(#1836)\0"
    "#2144.Composition(#1836,#733,#2144,#734,#762,#1827)\0"
    "#2145.ExplAttrInfos(#13,OPT)\0"
    "#2144.Attributes(#2145)\0"
    "#2146.Supertypes(#807)\0"
    "#2146.Composition(#2146,#807)\0"
    "#2147.ExplAttrInfos(#764,REQ)\0"
    "#2148.ExplAttrInfos(#84,OPT)\0"
    "#2149.ExplAttrInfos(#1625,REQ)\0"
    "#2150.ExplAttrInfos(#2151,REQ)\0"
    "#2146.Attributes(#2147,#2148,#2149,#2150)\0"
    "#2152.Supertypes(#857)\0"
    "#2152.Composition(#857,#858,#733,#2152,#734)\0"
    "#2153.ExplAttrInfos(#768,REQ)\0"
    "#2156.ExplAttrInfos(#13,OPT)\0"
    "#2152.Attributes(#2153,#2154,#2156)\0"
    "#2157.Supertypes(#765)\0"
    "#2157.Composition(#733,#2157,#734,#765)\0"
    "#2158.ExplAttrInfos(#2159,REQ)\0"
    "#2157.Attributes(#2158)\0"
    "#2160.Supertypes(#2157)\0"
    "#2160.Composition(#733,#2157,#2160,#734,#765)\0"
    "#2161.ExplAttrInfos(#2163,REQ)\0"
    "#2165.Supertypes(#807)\0"
    "#2165.Composition(#807,#2165)\0"
    "#2166.ExplAttrInfos(#2167,REQ)\0"
    "#2165.Attributes(#2166)\0"
    "#2164.Supertypes(#2165)\0"
    "#2164.Composition(#2164,#807,#2165)\0"
    "#2168.ExplAttrInfos(#764,REQ)\0"
    "#2170.Supertypes(#807)\0"
    "#2170.Composition(#807,#2170)\0"
    "#2171.ExplAttrInfos(#2173,REQ)\0"
    "#2169.ExplAttrInfos(#2170,REQ)\0"
    "#2164.Attributes(#2168,#2169)\0"
    "#2174.Supertypes(#2164)\0"
    "#2174.Composition(#2164,#2174,#807,#2165)\0"
    "#2175.ExplAttrInfos(#2177,OPT)\0"
    "#2174.Attributes(#2175)\0"
    "#2178.Supertypes(#1922)\0"
    "#2178.Composition(#1273,#1290,#974,#1922,#2178,#976,#891,#975,#98)\0"
    "#2179.ExplAttrInfos(#436,OPT)\0"
    "#2178.Attributes(#2179)\0"
    "#2180.Supertypes(#1925)\0"
    "#2180.Composition(#1277,#1297,#1278,#1925,#2180,#891,#98,#1094,#1109)\0"
    "#2181.ExplAttrInfos(#436,REQ)\0"
    "#2182.Supertypes(#872)\0"
    "#2182.Composition(#858,#733,#2182,#734,#872)\0"
    "#2183.Supertypes(#1196)\0"
    "#2183.Composition(#1196,#2183,#976,#891,#98)\0"
    "#2184.ExplAttrInfos(#440,OPT)\0"
    "#2185.ExplAttrInfos(#686,OPT)\0"
    "#2188.ExplAttrInfos(#24,OPT)\0"
    "#2189.ExplAttrInfos(#1373,OPT)\0"
    "#2190.ExplAttrInfos(#1373,OPT)\0"
    "#2183.Attributes(#2184,#2185,#2186,#2188,#2189,#2190)\0"
    "#2191.Supertypes(#1067)\0"
    "#2191.Composition(#2191,#1067)\0"
    "#2193.Composition(#2193)\0"
    "#2194.ExplAttrInfos(#25,REQ)\0"
    "#2195.ExplAttrInfos(#2196,REQ)\0"
    "#2193.Attributes(#2194,#2195)\0"
    "#2192.ExplAttrInfos(#2197,REQ)\0"
    "#2198.Supertypes(#1554)\0"
    "#2198.Composition(#1273,#1290,#974,#1554,#2198,#976,#891,#975,#98)\0"
    "#2199.ExplAttrInfos(#442,OPT)\0"
    "#2200.Supertypes(#1557)\0"
    "#2200.Composition(#1277,#1297,#1278,#1557,#2200,#891,#98,#1094,#1109)\0"
    "#2201.ExplAttrInfos(#442,REQ)\0"
    "#2200.Attributes(#2201)\0"
    "#2202.Supertypes(#1452)\0"
    "#2202.Composition(#1452,#974,#2202,#976,#891,#975,#98)\0"
    "#2203.ExplAttrInfos(#13,REQ)\0"
    "#2204.Supertypes(#1456)\0"
    "#2204.Composition(#1456,#1278,#2204,#891,#98,#1094,#1109)\0"
    "#2205.ExplAttrInfos(#13,REQ)\0"
    "#2206.Supertypes(#1382)\0"
    "#2206.Composition(#2206,#1382,#1143)\0"
    "#2207.ExplAttrInfos(#90,REQ)\0"
    "#2208.ExplAttrInfos(#90,OPT)\0"
    "#2209.ExplAttrInfos(#90,REQ)\0"
    "#2210.ExplAttrInfos(#82,OPT)\0"
    "#2211.ExplAttrInfos(#82,OPT)\0"
    "#2212.ExplAttrInfos(#89,OPT)\0"
    "#2206.Attributes(#2207,#2208,#2209,#2210,#2211,#2212)\0"
    "#2213.Supertypes(#1688)\0"
    "#2213.Composition(#1688,#2213,#976,#891,#1157,#98)\0"
    "#2214.ExplAttrInfos(#446,OPT)\0"
    "#2213.Attributes(#2214)\0"
    "#2215.Supertypes(#1715)\0"
    "#2215.Composition(#1715,#2215,#891,#98,#1094,#1160)\0"
    "#2216.ExplAttrInfos(#446,REQ)\0"
    "#2215.Attributes(#2216)\0"
    "#2217.Supertypes(#1691)\0"
    "#2217.Composition(#2217,#1691)\0"
    "#2218.ExplAttrInfos(#1252,REQ)\0"
    "#2219.ExplAttrInfos(#622,REQ)\0"
    "#2217.Attributes(#2218,#2219)\0"
    "#2220.Supertypes(#1289)\0"
    "#2220.Composition(#1273,#1290,#974,#1289,#2220,#976,#891,#975,#98)\0"
    "#2221.ExplAttrInfos(#448,OPT)\0"
    "#2222.Supertypes(#1300)\0"
    "#2222.Composition(#1277,#1297,#1278,#1300,#2222,#891,#98,#1094,#1109)\0"
    "#2223.ExplAttrInfos(#448,REQ)\0"
    "#2224.Supertypes(#1289)\0"
    "#2224.Composition(#1273,#1290,#974,#1289,#2224,#976,#891,#975,#98)\0"
    "#2225.ExplAttrInfos(#456,OPT)\0"
    "#2224.Attributes(#2225)\0"
    "#2226.Supertypes(#1300)\0"
    "#2226.Composition(#1277,#1297,#1278,#1300,#2226,#891,#98,#1094,#1109)\0"
    "#2227.ExplAttrInfos(#456,REQ)\0"
    "#2226.Attributes(#2227)\0"
    "#2228.Supertypes(#733)\0"
    "#2228.Composition(#733,#2228,#734)\0"
    "#2229.ExplAttrInfos(#14,OPT)\0"
    "#2230.ExplAttrInfos(#814,REQ)\0"
    "#2231.ExplAttrInfos(#84,OPT)\0"
    "#2232.ExplAttrInfos(#84,OPT)\0"
    "#2228.Attributes(#2229,#2230,#2231,#2232)\0"
    "#2233.Supertypes(#2228)\0"
    "#2233.Composition(#733,#2228,#2233,#734)\0"
    "#2234.Supertypes(#2228)\0"
    "#2234.Composition(#733,#2228,#2234,#734)\0"
    "#2235.ExplAttrInfos(#739,REQ)\0"
    "#2236.Supertypes(#2228)\0"
    "#2236.Composition(#733,#2228,#2236,#734)\0"
    "#2237.ExplAttrInfos(#743,REQ)\0"
    "#2238.ExplAttrInfos(#814,OPT)\0"
    "#2239.ExplAttrInfos(#191,REQ)\0"
    "#2240.ExplAttrInfos(#64,REQ)\0"
    "#2241.ExplAttrInfos(#454,REQ)\0"
    "#2242.ExplAttrInfos(#1024,REQ)\0"
    "#2236.Attributes(#2237,#2238,#2239,#2240,#2241,#2242)\0"
    "#2243.Supertypes(#2228)\0"
    "#2243.Composition(#733,#2228,#2243,#734)\0"
    "#2244.ExplAttrInfos(#940,REQ)\0"
    "#2245.ExplAttrInfos(#90,REQ)\0"
    "#2246.ExplAttrInfos(#165,REQ)\0"
    "#2247.ExplAttrInfos(#165,REQ)\0"
    "#2248.ExplAttrInfos(#165,REQ)\0"
    "#2243.Attributes(#2244,#2245,#2246,#2247,#2248)\0"
    "#2249.Supertypes(#2243)\0"
    "#2249.Composition(#733,#2228,#2243,#2249,#734)\0"
    "#2250.ExplAttrInfos(#739,REQ)\0"
    "#2251.ExplAttrInfos(#165,OPT)\0"
    "#2252.ExplAttrInfos(#91,REQ)\0"
    "#2253.ExplAttrInfos(#91,REQ)\0"
    "#2249.Attributes(#2250,#2251,#2252,#2253)\0"
    "#2254.Supertypes(#858)\0"
    "#2254.Composition(#858,#733,#2254,#734)\0"
    "#2255.ExplAttrInfos(#940,REQ)\0"
    "#2256.ExplAttrInfos(#933,REQ)\0"
    "#2254.Attributes(#2255,#2256)\0"
    "#1.Entities(#2050,#2052,#1929,#2054,#1928,#2055,#921,#946,#2059,#2061,#2063,#2065,#1834,#1293,#1296,#1554,#1557,#2067,#2069,#2071,#2073,#1661,#1664,#1560,#1563,#1952,#1955,#1289,#1300,#1922,#1925,#2075,#2077,#2079,#2080,#2081,#2083,#2086,#2088,#2090,#825,#733,#2095,#2091,#2104,#2105,#1475,#1476,#2106,#2107,#2111,#963,#2119,#1196,#756,#2122,#2124,#2126,#2128,#2130,#2138,#2140,#2142,#2144,#2146,#2152,#2157,#2160,#2164,#2174,#2178,#2180,#2182,#2183,#2191,#2193,#2198,#2200,#2202,#2204,#2206,#2213,#2215,#2217,#2220,#2222,#1000,#1007,#1016,#2224,#2226,#1013,#2228,#2233,#2234,#2236,#2243,#2249,#2254,#1317)\0"
    "#2257.Supertypes(#979)\0"
    "#2257.Composition(#2257,#979)\0"
    "#2258.ExplAttrInfos(#1403,REQ)\0"
    "#2259.ExplAttrInfos(#743,OPT)\0"
    "#2257.Attributes(#2258,#2259)\0"
    "#2260.Supertypes(#1289)\0"
    "#2260.Composition(#1273,#1290,#974,#1289,#2260,#976,#891,#975,#98)\0"
    "#2261.ExplAttrInfos(#458,OPT)\0"
    "#2260.Attributes(#2261)\0"
    "#2262.Supertypes(#1300)\0"
    "#2262.Composition(#1277,#1297,#1278,#1300,#2262,#891,#98,#1094,#1109)\0"
    "#2263.ExplAttrInfos(#458,REQ)\0"
    "#2264.Supertypes(#979)\0"
    "#2264.Composition(#2264,#979)\0"
    "#2265.ExplAttrInfos(#747,REQ)\0"
    "#2266.Supertypes(#1756)\0"
    "#2266.Composition(#1756,#2266)\0"
    "#2267.ExplAttrInfos(#56,REQ)\0"
    "#2268.ExplAttrInfos(#56,REQ)\0"
    "#2269.ExplAttrInfos(#56,REQ)\0"
    "#2270.ExplAttrInfos(#165,OPT)\0"
    "#2271.ExplAttrInfos(#165,OPT)\0"
    "#2272.ExplAttrInfos(#165,OPT)\0"
    "#2273.ExplAttrInfos(#165,OPT)\0"
    "#2274.ExplAttrInfos(#165,OPT)\0"
    "#2266.Attributes(#2267,#2268,#2269,#2270,#2271,#2272,#2273,#2274)\0"
    "#2275.Supertypes(#734)\0"
    "#2275.Composition(#2275,#734)\0"
    "#2276.ExplAttrInfos(#1104,REQ)\0"
    "#2277.ExplAttrInfos(#1233,REQ)\0"
    "#2275.Attributes(#2276,#2277)\0"
    "#2278.Supertypes(#1509)\0"
    "#2278.Composition(#1509,#2278,#976,#891,#975,#98,#994,#1190)\0"
    "#2279.ExplAttrInfos(#464,OPT)\0"
    "#2280.Composition(#2280)\0"
    "#2283.ExplAttrInfos(#1028,REQ)\0"
    "#2280.Attributes(#2281,#2283)\0"
    "#2284.Supertypes(#1025)\0"
    "#2284.Composition(#2284,#1025)\0"
    "#2285.ExplAttrInfos(#14,OPT)\0"
    "#2286.ExplAttrInfos(#122,OPT)\0"
    "#2287.ExplAttrInfos(#1028,REQ)\0"
    "#2288.ExplAttrInfos(#84,OPT)\0"
    "#2284.Attributes(#2285,#2286,#2287,#2288,#2289)\0"
    "#2290.Supertypes(#1025)\0"
    "#2290.Composition(#2290,#1025)\0"
    "#2291.ExplAttrInfos(#14,OPT)\0"
    "#2292.ExplAttrInfos(#122,OPT)\0"
    "#2293.ExplAttrInfos(#2294,OPT)\0"
    "#2290.Attributes(#2291,#2292,#2293)\0"
    "#2295.Supertypes(#982)\0"
    "#2295.Composition(#2295,#982)\0"
    "#2296.ExplAttrInfos(#1028,REQ)\0"
    "#2297.Supertypes(#1025)\0"
    "#2297.Composition(#1025,#2297)\0"
    "#2298.ExplAttrInfos(#1028,OPT)\0"
    "#2299.ExplAttrInfos(#82,REQ)\0"
    "#2300.ExplAttrInfos(#63,OPT)\0"
    "#2301.ExplAttrInfos(#14,OPT)\0"
    "#2302.ExplAttrInfos(#122,OPT)\0"
    "#2303.ExplAttrInfos(#14,OPT)\0"
    "#2304.ExplAttrInfos(#6,OPT)\0"
    "#2297.Attributes(#2298,#2299,#2300,#2301,#2302,#2303,#2304)\0"
    "#2305.Supertypes(#1025)\0"
    "#2305.Composition(#1025,#2305)\0"
    "#2310.DerivAttrInfos(#56)\0"
    "#2305.Attributes(#2306,#2308,#2309,#2310)\0"
    "#2311.Supertypes(#1033)\0"
    "#2311.Composition(#2311,#1033)\0"
    "#2312.ExplAttrInfos(#2305,REQ)\0"
    "#2313.ExplAttrInfos(#450,REQ)\0"
    "#2314.ExplAttrInfos(#332,REQ)\0"
    "#2315.ExplAttrInfos(#56,REQ)\0"
    "#2316.ExplAttrInfos(#90,OPT)\0"
    "#2317.Supertypes(#2297)\0"
    "#2317.Composition(#1025,#2297,#2317)\0"
    "#2318.ExplAttrInfos(#450,REQ)\0"
    "#2319.ExplAttrInfos(#2320,REQ)\0"
    "#2317.Attributes(#2318,#2319)\0"
    "#2321.Supertypes(#1025)\0"
    "#2321.Composition(#1025,#2321)\0"
    "#2322.ExplAttrInfos(#14,OPT)\0"
    "#2323.ExplAttrInfos(#122,OPT)\0"
    "#2324.ExplAttrInfos(#1028,OPT)\0"
    "#2325.ExplAttrInfos(#1143,REQ)\0"
    "#2326.ExplAttrInfos(#6,OPT)\0"
    "#2327.ExplAttrInfos(#14,OPT)\0"
    "#2321.Attributes(#2322,#2323,#2324,#2325,#2326,#2327)\0"
    "#2328.Supertypes(#1025)\0"
    "#2328.Composition(#1025,#2328)\0"
    "#2329.ExplAttrInfos(#14,OPT)\0"
    "#2330.ExplAttrInfos(#122,OPT)\0"
    "#2331.ExplAttrInfos(#2332,REQ)\0"
    "#2333.ExplAttrInfos(#1656,OPT)\0"
    "#2328.Attributes(#2329,#2330,#2331,#2333)\0"
    "#2334.Supertypes(#1033)\0"
    "#2334.Composition(#2334,#1033)\0"
    "#2335.ExplAttrInfos(#2328,REQ)\0"
    "#2336.ExplAttrInfos(#16,OPT)\0"
    "#2337.ExplAttrInfos(#90,OPT)\0"
    "#2334.Attributes(#2335,#2336,#2337)\0"
    "#2338.Supertypes(#2334)\0"
    "#2338.Composition(#2334,#2338,#1033)\0"
    "#2339.ExplAttrInfos(#2328,REQ)\0"
    "#2340.ExplAttrInfos(#16,OPT)\0"
    "#2338.Attributes(#2339,#2340)\0"
    "#2341.Supertypes(#2321)\0"
    "#2341.Composition(#1025,#2321,#2341)\0"
    "#2341.Attributes(#2342)\0"
    "#2344.Supertypes(#2015)\0"
    "#2344.Composition(#2015,#2344,#1146)\0"
    "#2345.ExplAttrInfos(#1025,REQ)\0"
    "#2344.Attributes(#2345)\0"
    "#2346.Supertypes(#1357)\0"
    "#2346.Composition(#2346,#1357)\0"
    "#2347.ExplAttrInfos(#1028,REQ)\0"
    "#2348.ExplAttrInfos(#2349,REQ)\0"
    "#2350.ExplAttrInfos(#14,OPT)\0"
    "#2346.Attributes(#2347,#2348,#2350)\0"
    "#2351.Supertypes(#1525)\0"
    "#2351.Composition(#974,#1525,#2351,#976,#891,#975,#98)\0"
    "#2352.ExplAttrInfos(#90,OPT)\0"
    "#2353.ExplAttrInfos(#90,OPT)\0"
    "#2354.ExplAttrInfos(#468,OPT)\0"
    "#2351.Attributes(#2352,#2353,#2354)\0"
    "#2355.Supertypes(#1528)\0"
    "#2355.Composition(#1528,#1278,#2355,#891,#98,#1094,#1109)\0"
    "#2356.ExplAttrInfos(#468,REQ)\0"
    "#2357.ExplAttrInfos(#90,OPT)\0"
    "#2358.ExplAttrInfos(#90,OPT)\0"
    "#2359.Supertypes(#1289)\0"
    "#2359.Composition(#1273,#1290,#974,#1289,#2359,#976,#891,#975,#98)\0"
    "#2360.ExplAttrInfos(#470,OPT)\0"
    "#2361.Supertypes(#1300)\0"
    "#2361.Composition(#1277,#1297,#1278,#1300,#2361,#891,#98,#1094,#1109)\0"
    "#2362.ExplAttrInfos(#470,REQ)\0"
    "#2363.Supertypes(#1452)\0"
    "#2363.Composition(#1452,#974,#2363,#976,#891,#975,#98)\0"
    "#2364.ExplAttrInfos(#472,OPT)\0"
    "#2365.Supertypes(#2363)\0"
    "#2365.Composition(#1452,#974,#2363,#2365,#976,#891,#975,#98)\0"
    "#2366.Supertypes(#1456)\0"
    "#2366.Composition(#1456,#1278,#2366,#891,#98,#1094,#1109)\0"
    "#2367.ExplAttrInfos(#472,REQ)\0"
    "#2368.Supertypes(#1127)\0"
    "#2368.Composition(#1127,#2368)\0"
    "#2369.ExplAttrInfos(#248,REQ)\0"
    "#2370.ExplAttrInfos(#14,OPT)\0"
    "#2371.ExplAttrInfos(#1077,OPT)\0"
    "#2372.ExplAttrInfos(#722,OPT)\0"
    "#2368.Attributes(#2369,#2370,#2371,#2372)\0"
    "#2373.Supertypes(#1822)\0"
    "#2373.Composition(#1822,#2373,#1143)\0"
    "#2374.DerivAttrInfos(#1232)\0"
    "#2375.Supertypes(#1289)\0"
    "#2375.Composition(#1273,#1290,#974,#1289,#2375,#976,#891,#975,#98)\0"
    "#2376.ExplAttrInfos(#474,OPT)\0"
    "#2375.Attributes(#2376)\0"
    "#2377.Supertypes(#1300)\0"
    "#2377.Composition(#1277,#1297,#1278,#1300,#2377,#891,#98,#1094,#1109)\0"
    "#2378.ExplAttrInfos(#474,REQ)\0"
    "#2377.Attributes(#2378)\0"
    "#2379.Supertypes(#1452)\0"
    "#2379.Composition(#1452,#974,#2379,#976,#891,#975,#98)\0"
    "#2380.ExplAttrInfos(#476,OPT)\0"
    "#2381.Supertypes(#1456)\0"
    "#2381.Composition(#1456,#1278,#2381,#891,#98,#1094,#1109)\0"
    "#2382.ExplAttrInfos(#476,REQ)\0"
    "#2381.Attributes(#2382)\0"
    "#2383.Supertypes(#1303)\0"
    "#2383.Composition(#1273,#1290,#974,#1303,#2383,#976,#891,#975,#98)\0"
    "#2384.ExplAttrInfos(#478,OPT)\0"
    "#2385.Supertypes(#1306)\0"
    "#2385.Composition(#1277,#1297,#1278,#1306,#2385,#891,#98,#1094,#1109)\0"
    "#2386.ExplAttrInfos(#478,REQ)\0"
    "#2387.Supertypes(#1452)\0"
    "#2387.Composition(#1452,#974,#2387,#976,#891,#975,#98)\0"
    "#2388.ExplAttrInfos(#480,OPT)\0"
    "#2387.Attributes(#2388)\0"
    "#2389.Supertypes(#1456)\0"
    "#2389.Composition(#1456,#1278,#2389,#891,#98,#1094,#1109)\0"
    "#2390.ExplAttrInfos(#480,REQ)\0"
    "#2389.Attributes(#2390)\0"
    "#2391.Supertypes(#1127)\0"
    "#2391.Composition(#1127,#2391)\0"
    "#2392.ExplAttrInfos(#2393,OPT)\0"
    "#2394.ExplAttrInfos(#462,OPT)\0"
    "#2395.ExplAttrInfos(#484,REQ)\0"
    "#2396.ExplAttrInfos(#14,OPT)\0"
    "#2391.Attributes(#2392,#2394,#2395,#2396)\0"
    "#2397.Supertypes(#1269)\0"
    "#2397.Composition(#1269,#976,#891,#2397,#98)\0"
    "#2398.ExplAttrInfos(#486,OPT)\0"
    "#2399.Supertypes(#858)\0"
    "#2399.Composition(#858,#733,#2399,#734)\0"
    "#2400.ExplAttrInfos(#858,REQ)\0"
    "#2401.Supertypes(#2399)\0"
    "#2401.Composition(#858,#733,#2399,#2401,#734)\0"
    "#2402.ExplAttrInfos(#56,REQ)\0"
    "#2403.ExplAttrInfos(#63,REQ)\0"
    "#2401.Attributes(#2402,#2403)\0"
    "#2404.Supertypes(#2399)\0"
    "#2404.Composition(#858,#733,#2399,#2404,#734)\0"
    "#2405.ExplAttrInfos(#56,REQ)\0"
    "#2406.ExplAttrInfos(#63,REQ)\0"
    "#2407.ExplAttrInfos(#739,REQ)\0"
    "#2404.Attributes(#2405,#2406,#2407)\0"
    "#2408.Supertypes(#2399)\0"
    "#2408.Composition(#858,#733,#2399,#2408,#734)\0"
    "#2409.ExplAttrInfos(#2410,REQ)\0"
    "#2411.ExplAttrInfos(#14,OPT)\0"
    "#2408.Attributes(#2409,#2411)\0"
    "#2412.Supertypes(#1143)\0"
    "#2412.Composition(#2412,#1143)\0"
    "#2413.ExplAttrInfos(#13,REQ)\0"
    "#2414.ExplAttrInfos(#2415,REQ)\0"
    "#2418.ExplAttrInfos(#2419,OPT)\0"
    "#2412.Attributes(#2413,#2414,#2416,#2418)\0"
    "#2420.Supertypes(#1928)\0"
    "#2420.Composition(#974,#1929,#1928,#976,#891,#2420,#975,#98)\0"
    "#2421.ExplAttrInfos(#488,OPT)\0"
    "#2422.Supertypes(#2420)\0"
    "#2422.Composition(#974,#1929,#1928,#976,#891,#2420,#2422,#975,#98)\0"
    "#2423.Supertypes(#1357)\0"
    "#2423.Composition(#2423,#1357)\0"
    "#2424.ExplAttrInfos(#133,REQ)\0"
    "#2425.ExplAttrInfos(#2426,REQ)\0"
    "#2423.Attributes(#2424,#2425)\0"
    "#2427.Supertypes(#1479)\0"
    "#2427.Composition(#1479,#857,#856,#855,#858,#733,#2427,#734)\0"
    "#2428.Supertypes(#1289)\0"
    "#2428.Composition(#1273,#1290,#974,#1289,#976,#891,#2428,#975,#98)\0"
    "#2430.Supertypes(#1300)\0"
    "#2430.Composition(#1277,#1297,#1278,#1300,#891,#2430,#98,#1094,#1109)\0"
    "#2432.Supertypes(#883)\0"
    "#2432.Composition(#2432,#734,#883)\0"
    "#2433.ExplAttrInfos(#2434,REQ)\0"
    "#2432.Attributes(#2433)\0"
    "#2435.Supertypes(#1452)\0"
    "#2435.Composition(#1452,#974,#976,#891,#2435,#975,#98)\0"
    "#2436.ExplAttrInfos(#492,OPT)\0"
    "#2435.Attributes(#2436)\0"
    "#2437.Supertypes(#1456)\0"
    "#2437.Composition(#1456,#1278,#891,#2437,#98,#1094,#1109)\0"
    "#2438.ExplAttrInfos(#492,REQ)\0"
    "#2437.Attributes(#2438)\0"
    "#2439.Supertypes(#1264)\0"
    "#2439.Composition(#1264,#976,#891,#2439,#98)\0"
    "#2440.ExplAttrInfos(#14,REQ)\0"
    "#2441.ExplAttrInfos(#494,OPT)\0"
    "#2439.Attributes(#2440,#2441)\0"
    "#2442.Supertypes(#1880)\0"
    "#2442.Composition(#2442,#1880,#97,#96,#98)\0"
    "#2443.ExplAttrInfos(#496,REQ)\0"
    "#2444.ExplAttrInfos(#670,REQ)\0"
    "#2445.ExplAttrInfos(#90,OPT)\0"
    "#2446.ExplAttrInfos(#90,OPT)\0"
    "#2447.ExplAttrInfos(#1147,OPT)\0"
    "#2442.Attributes(#2443,#2444,#2445,#2446,#2447)\0"
    "#2448.Supertypes(#1264)\0"
    "#2448.Composition(#1264,#976,#891,#2448,#98)\0"
    "#2449.ExplAttrInfos(#498,OPT)\0"
    "#2451.ExplAttrInfos(#122,OPT)\0"
    "#2448.Attributes(#2449,#2450,#2451)\0"
    "#2452.Supertypes(#1140)\0"
    "#2452.Composition(#2452,#1140)\0"
    "#2455.ExplAttrInfos(#14,REQ)\0"
    "#2456.ExplAttrInfos(#14,OPT)\0"
    "#2457.ExplAttrInfos(#14,OPT)\0"
    "#2452.Attributes(#2453,#2455,#2456,#2457)\0"
    "#2458.Supertypes(#1140)\0"
    "#2458.Composition(#1140,#2458)\0"
    "#2459.ExplAttrInfos(#702,OPT)\0"
    "#2460.Supertypes(#1574)\0"
    "#2460.Composition(#1452,#1574,#974,#976,#891,#2460,#975,#98)\0"
    "#2461.ExplAttrInfos(#504,OPT)\0"
    "#2462.ExplAttrInfos(#502,OPT)\0"
    "#2460.Attributes(#2461,#2462)\0"
    "#2463.Supertypes(#1577)\0"
    "#2463.Composition(#1456,#1577,#1278,#891,#2463,#98,#1094,#1109)\0"
    "#2464.ExplAttrInfos(#504,REQ)\0"
    "#2465.Supertypes(#1554)\0"
    "#2465.Composition(#1273,#1290,#974,#1554,#976,#891,#2465,#975,#98)\0"
    "#2466.ExplAttrInfos(#506,OPT)\0"
    "#2467.Supertypes(#1557)\0"
    "#2467.Composition(#1277,#1297,#1278,#1557,#891,#2467,#98,#1094,#1109)\0"
    "#2468.ExplAttrInfos(#506,REQ)\0"
    "#2469.Supertypes(#1560)\0"
    "#2469.Composition(#1273,#1290,#974,#1560,#976,#891,#2469,#975,#98)\0"
    "#2470.ExplAttrInfos(#508,OPT)\0"
    "#2471.Supertypes(#1563)\0"
    "#2471.Composition(#1277,#1297,#1278,#1563,#891,#2471,#98,#1094,#1109)\0"
    "#2472.ExplAttrInfos(#508,REQ)\0"
    "#2473.Supertypes(#1227)\0"
    "#2473.Composition(#2473,#807,#1227)\0"
    "#2474.ExplAttrInfos(#6,REQ)\0"
    "#2475.ExplAttrInfos(#6,REQ)\0"
    "#2476.ExplAttrInfos(#6,REQ)\0"
    "#2477.ExplAttrInfos(#2478,REQ)\0"
    "#2473.Attributes(#2474,#2475,#2476,#2477)\0"
    "#2480.Supertypes(#733)\0"
    "#2480.Composition(#733,#2480,#734)\0"
    "#2482.ExplAttrInfos(#56,REQ)\0"
    "#2479.Supertypes(#2480)\0"
    "#2479.Composition(#733,#2479,#2480,#734)\0"
    "#2483.ExplAttrInfos(#747,REQ)\0"
    "#2479.Attributes(#2483)\0"
    "#2484.Supertypes(#2086)\0"
    "#2484.Composition(#974,#2086,#976,#891,#2484,#975,#98)\0"
    "#2485.Supertypes(#1452)\0"
    "#2485.Composition(#1452,#974,#976,#891,#2485,#975,#98)\0"
    "#2486.ExplAttrInfos(#510,OPT)\0"
    "#2485.Attributes(#2486)\0"
    "#2487.Supertypes(#2485)\0"
    "#2487.Composition(#1452,#974,#976,#891,#2485,#2487,#975,#98)\0"
    "#2488.Supertypes(#1456)\0"
    "#2488.Composition(#1456,#1278,#891,#2488,#98,#1094,#1109)\0"
    "#2489.ExplAttrInfos(#510,REQ)\0"
    "#2490.Supertypes(#736)\0"
    "#2490.Composition(#733,#736,#2490,#734)\0"
    "#2491.ExplAttrInfos(#858,REQ)\0"
    "#2492.ExplAttrInfos(#87,REQ)\0"
    "#2493.DerivAttrInfos(#29)\0"
    "#2490.Attributes(#2491,#2492,#2493)\0"
    "#1.Entities(#2257,#1313,#2260,#2262,#2264,#1177,#1282,#2266,#2275,#2278,#1028,#2280,#2284,#2290,#1025,#2295,#2297,#2305,#2311,#2317,#1026,#2321,#2328,#2334,#2338,#2341,#2344,#2346,#1033,#687,#2351,#2355,#2359,#2361,#2363,#2365,#2366,#2368,#2373,#2375,#2377,#718,#2379,#2381,#2383,#2385,#702,#2387,#2389,#976,#891,#979,#2391,#2397,#2399,#2401,#2404,#2408,#2412,#1181,#2420,#2422,#133,#2423,#1936,#2427,#2428,#2430,#101,#1382,#2432,#2435,#2437,#869,#2439,#2442,#2448,#105,#103,#2452,#1140,#2458,#2460,#2463,#2465,#2467,#2469,#2471,#2473,#732,#2479,#2480,#1799,#2484,#2485,#2487,#2488,#736,#1839,#2490)\0"
    "#2494.Supertypes(#736)\0"
    "#2494.Composition(#733,#736,#2494,#734)\0"
    "#2495.ExplAttrInfos(#758,REQ)\0"
    "#2496.ExplAttrInfos(#87,REQ)\0"
    "#2497.ExplAttrInfos(#87,REQ)\0"
    "#2498.DerivAttrInfos(#29)\0"
    "#2494.Attributes(#2495,#2496,#2497,#2498)\0"
    "#2499.Supertypes(#1177)\0"
    "#2499.Composition(#1177,#2499,#734,#883)\0"
    "#2500.ExplAttrInfos(#2501,REQ)\0"
    "#2502.Supertypes(#756)\0"
    "#2502.Composition(#733,#756,#2502,#734)\0"
    "#2503.ExplAttrInfos(#743,REQ)\0"
    "#2504.ExplAttrInfos(#857,REQ)\0"
    "#2502.Attributes(#2503,#2504)\0"
    "#2505.Supertypes(#764)\0"
    "#2505.Composition(#733,#2505,#734,#764,#765)\0"
    "#2506.ExplAttrInfos(#13,OPT)\0"
    "#2507.ExplAttrInfos(#2508,REQ)\0"
    "#2505.Attributes(#2506,#2507,#2509)\0"
    "#2511.Supertypes(#857)\0"
    "#2511.Composition(#857,#858,#733,#2511,#734)\0"
    "#2512.ExplAttrInfos(#2513,REQ)\0"
    "#2511.Attributes(#2512)\0"
    "#2514.Supertypes(#858)\0"
    "#2514.Composition(#858,#733,#2514,#734)\0"
    "#2515.ExplAttrInfos(#732,REQ)\0"
    "#2516.ExplAttrInfos(#2517,OPT)\0"
    "#2518.ExplAttrInfos(#2519,OPT)\0"
    "#2514.Attributes(#2515,#2516,#2518,#2520)\0"
    "#2522.Supertypes(#1146)\0"
    "#2522.Composition(#2522,#1146)\0"
    "#2523.Composition(#2523)\0"
    "#2524.ExplAttrInfos(#14,REQ)\0"
    "#2525.ExplAttrInfos(#122,OPT)\0"
    "#2528.ExplAttrInfos(#48,OPT)\0"
    "#2523.Attributes(#2524,#2525,#2526,#2528)\0"
    "#2529.Supertypes(#2523)\0"
    "#2529.Composition(#2523,#2529)\0"
    "#2530.ExplAttrInfos(#63,REQ)\0"
    "#2531.ExplAttrInfos(#63,REQ)\0"
    "#2532.ExplAttrInfos(#63,REQ)\0"
    "#2533.ExplAttrInfos(#2534,REQ)\0"
    "#2529.Attributes(#2530,#2531,#2532,#2533)\0"
    "#2535.Supertypes(#1090)\0"
    "#2535.Composition(#976,#891,#2535,#1090,#98)\0"
    "#2536.ExplAttrInfos(#514,OPT)\0"
    "#2537.Supertypes(#1093)\0"
    "#2537.Composition(#891,#2537,#98,#1094,#1093)\0"
    "#2538.ExplAttrInfos(#514,REQ)\0"
    "#2539.Supertypes(#2015)\0"
    "#2539.Composition(#2015,#2539,#1146)\0"
    "#2540.ExplAttrInfos(#1143,REQ)\0"
    "#2541.Supertypes(#1728)\0"
    "#2541.Composition(#1728,#891,#2541,#98)\0"
    "#2542.Supertypes(#1728)\0"
    "#2542.Composition(#1728,#891,#2542,#98)\0"
    "#2543.Supertypes(#1264)\0"
    "#2543.Composition(#1264,#976,#891,#2543,#98)\0"
    "#2544.ExplAttrInfos(#518,OPT)\0"
    "#2545.ExplAttrInfos(#14,OPT)\0"
    "#2546.ExplAttrInfos(#122,OPT)\0"
    "#2543.Attributes(#2544,#2545,#2546)\0"
    "#2547.Supertypes(#820)\0"
    "#2547.Composition(#820,#2547)\0"
    "#2548.ExplAttrInfos(#48,OPT)\0"
    "#2549.ExplAttrInfos(#48,OPT)\0"
    "#2550.ExplAttrInfos(#702,OPT)\0"
    "#2547.Attributes(#2548,#2549,#2550)\0"
    "#2551.Supertypes(#2054)\0"
    "#2551.Composition(#974,#1929,#2054,#976,#891,#975,#2551,#98)\0"
    "#2552.ExplAttrInfos(#522,OPT)\0"
    "#2554.Supertypes(#1639)\0"
    "#2554.Composition(#1639,#1146,#2554)\0"
    "#2553.Supertypes(#2554)\0"
    "#2553.Composition(#1639,#1146,#2553,#2554)\0"
    "#2555.ExplAttrInfos(#696,OPT)\0"
    "#2556.ExplAttrInfos(#696,OPT)\0"
    "#2557.ExplAttrInfos(#721,OPT)\0"
    "#2558.ExplAttrInfos(#696,OPT)\0"
    "#2553.Attributes(#2555,#2556,#2557,#2558)\0"
    "#2559.Supertypes(#1357)\0"
    "#2559.Composition(#2559,#1357)\0"
    "#2560.ExplAttrInfos(#1639,REQ)\0"
    "#2561.ExplAttrInfos(#1639,REQ)\0"
    "#2562.ExplAttrInfos(#122,OPT)\0"
    "#2559.Attributes(#2560,#2561,#2562)\0"
    "#2563.Supertypes(#2554)\0"
    "#2563.Composition(#1639,#1146,#2563,#2554)\0"
    "#2564.ExplAttrInfos(#2565,OPT)\0"
    "#2567.Supertypes(#1146)\0"
    "#2567.Composition(#1146,#2567)\0"
    "#2568.ExplAttrInfos(#14,REQ)\0"
    "#2569.ExplAttrInfos(#2570,REQ)\0"
    "#2571.ExplAttrInfos(#721,OPT)\0"
    "#2567.Attributes(#2568,#2569,#2571)\0"
    "#2566.ExplAttrInfos(#2567,OPT)\0"
    "#2563.Attributes(#2564,#2566)\0"
    "#2572.Supertypes(#2554)\0"
    "#2572.Composition(#1639,#1146,#2572,#2554)\0"
    "#2573.ExplAttrInfos(#2574,OPT)\0"
    "#2575.ExplAttrInfos(#721,OPT)\0"
    "#2572.Attributes(#2573,#2575)\0"
    "#2576.Supertypes(#2554)\0"
    "#2576.Composition(#1639,#1146,#2576,#2554)\0"
    "#2577.ExplAttrInfos(#122,OPT)\0"
    "#2578.ExplAttrInfos(#1085,OPT)\0"
    "#2579.Supertypes(#96)\0"
    "#2579.Composition(#97,#2579,#96,#98)\0"
    "#2580.ExplAttrInfos(#2581,REQ)\0"
    "#2579.Attributes(#2580)\0"
    "#2582.Supertypes(#1647)\0"
    "#2582.Composition(#97,#2582,#1647,#98)\0"
    "#2583.ExplAttrInfos(#524,OPT)\0"
    "#2584.ExplAttrInfos(#48,OPT)\0"
    "#2582.Attributes(#2583,#2584,#2585)\0"
    "#2587.Supertypes(#2554)\0"
    "#2587.Composition(#1639,#1146,#2587,#2554)\0"
    "#2588.ExplAttrInfos(#696,OPT)\0"
    "#2589.ExplAttrInfos(#721,OPT)\0"
    "#2590.Supertypes(#2554)\0"
    "#2590.Composition(#1639,#1146,#2590,#2554)\0"
    "#2591.ExplAttrInfos(#2592,OPT)\0"
    "#2593.ExplAttrInfos(#2594,OPT)\0"
    "#2596.ExplAttrInfos(#721,OPT)\0"
    "#2597.ExplAttrInfos(#721,OPT)\0"
    "#2598.ExplAttrInfos(#324,OPT)\0"
    "#2590.Attributes(#2591,#2593,#2595,#2596,#2597,#2598)\0"
    "#2599.Supertypes(#1293)\0"
    "#2599.Composition(#1273,#1290,#974,#1293,#976,#891,#975,#2599,#98)\0"
    "#2600.ExplAttrInfos(#528,OPT)\0"
    "#2601.Supertypes(#1272)\0"
    "#2601.Composition(#1272,#1273,#974,#976,#891,#975,#2601,#98)\0"
    "#2602.ExplAttrInfos(#526,OPT)\0"
    "#2603.Supertypes(#1276)\0"
    "#2603.Composition(#1276,#1277,#1278,#891,#2603,#98,#1094,#1109)\0"
    "#2604.ExplAttrInfos(#526,REQ)\0"
    "#2603.Attributes(#2604)\0"
    "#2605.Supertypes(#1296)\0"
    "#2605.Composition(#1277,#1297,#1278,#1296,#891,#2605,#98,#1094,#1109)\0"
    "#2606.ExplAttrInfos(#528,REQ)\0"
    "#2607.Supertypes(#975)\0"
    "#2607.Composition(#976,#891,#975,#2607,#98)\0"
    "#2608.ExplAttrInfos(#482,REQ)\0"
    "#2610.Supertypes(#1661)\0"
    "#2610.Composition(#1273,#1290,#974,#1661,#976,#891,#975,#2610,#98)\0"
    "#2611.ExplAttrInfos(#530,OPT)\0"
    "#2610.Attributes(#2611)\0"
    "#2612.Supertypes(#1664)\0"
    "#2612.Composition(#1277,#1297,#1278,#1664,#891,#2612,#98,#1094,#1109)\0"
    "#2613.ExplAttrInfos(#530,REQ)\0"
    "#2614.Supertypes(#2458)\0"
    "#2614.Composition(#1140,#2458,#2614)\0"
    "#2615.ExplAttrInfos(#11,REQ)\0"
    "#2616.ExplAttrInfos(#14,OPT)\0"
    "#2614.Attributes(#2615,#2616)\0"
    "#2617.Supertypes(#2458)\0"
    "#2617.Composition(#1140,#2458,#2617)\0"
    "#2618.ExplAttrInfos(#22,REQ)\0"
    "#2619.ExplAttrInfos(#14,OPT)\0"
    "#2617.Attributes(#2618,#2619)\0"
    "#2620.Supertypes(#2458)\0"
    "#2620.Composition(#1140,#2458,#2620)\0"
    "#2621.ExplAttrInfos(#56,REQ)\0"
    "#2623.Supertypes(#2458)\0"
    "#2623.Composition(#1140,#2458,#2623)\0"
    "#2624.ExplAttrInfos(#193,REQ)\0"
    "#2625.ExplAttrInfos(#14,OPT)\0"
    "#2623.Attributes(#2624,#2625)\0"
    "#2626.Supertypes(#2458)\0"
    "#2626.Composition(#1140,#2458,#2626)\0"
    "#2627.ExplAttrInfos(#197,REQ)\0"
    "#2628.ExplAttrInfos(#14,OPT)\0"
    "#2629.Supertypes(#2458)\0"
    "#2629.Composition(#1140,#2458,#2629)\0"
    "#2630.ExplAttrInfos(#71,REQ)\0"
    "#2631.ExplAttrInfos(#14,OPT)\0"
    "#2632.Supertypes(#1452)\0"
    "#2632.Composition(#1452,#974,#976,#891,#975,#2632,#98)\0"
    "#2633.ExplAttrInfos(#532,OPT)\0"
    "#2634.Supertypes(#1456)\0"
    "#2634.Composition(#1456,#1278,#891,#2634,#98,#1094,#1109)\0"
    "#2635.ExplAttrInfos(#532,REQ)\0"
    "#2636.Supertypes(#1452)\0"
    "#2636.Composition(#1452,#974,#976,#891,#975,#2636,#98)\0"
    "#2637.ExplAttrInfos(#534,OPT)\0"
    "#2638.Supertypes(#1456)\0"
    "#2638.Composition(#1456,#1278,#891,#2638,#98,#1094,#1109)\0"
    "#2639.ExplAttrInfos(#534,REQ)\0"
    "#2640.Supertypes(#1509)\0"
    "#2640.Composition(#1509,#976,#891,#975,#2640,#98,#994,#1190)\0"
    "#2641.ExplAttrInfos(#538,OPT)\0"
    "#2642.Supertypes(#1452)\0"
    "#2642.Composition(#1452,#974,#976,#891,#975,#2642,#98)\0"
    "#2643.ExplAttrInfos(#542,OPT)\0"
    "#2644.Supertypes(#1452)\0"
    "#2644.Composition(#1452,#974,#976,#891,#975,#2644,#98)\0"
    "#2645.ExplAttrInfos(#540,OPT)\0"
    "#2644.Attributes(#2645)\0"
    "#2646.Supertypes(#1456)\0"
    "#2646.Composition(#1456,#1278,#891,#2646,#98,#1094,#1109)\0"
    "#2647.ExplAttrInfos(#540,REQ)\0"
    "#2646.Attributes(#2647)\0"
    "#2648.Supertypes(#1456)\0"
    "#2648.Composition(#1456,#1278,#891,#2648,#98,#1094,#1109)\0"
    "#2649.ExplAttrInfos(#542,REQ)\0"
    "#2648.Attributes(#2649)\0"
    "#2650.Supertypes(#1416)\0"
    "#2650.Composition(#857,#1406,#1416,#858,#733,#2650,#734)\0"
    "#2651.ExplAttrInfos(#2652,REQ)\0"
    "#2653.DerivAttrInfos(#2654)\0"
    "#2650.Attributes(#2651,#2653)\0"
    "#2655.Supertypes(#1439)\0"
    "#2655.Composition(#1424,#1423,#1439,#733,#2655,#734,#758)\0"
    "#2656.ExplAttrInfos(#2658,REQ)\0"
    "#2659.DerivAttrInfos(#2661)\0"
    "#2655.Attributes(#2656,#2659)\0"
    "#2663.Supertypes(#1382)\0"
    "#2663.Composition(#1382,#1143,#2663)\0"
    "#2665.ExplAttrInfos(#90,REQ)\0"
    "#2663.Attributes(#2664,#2665)\0"
    "#2662.Supertypes(#2663)\0"
    "#2662.Composition(#1382,#1143,#2662,#2663)\0"
    "#2666.ExplAttrInfos(#90,REQ)\0"
    "#2667.ExplAttrInfos(#82,OPT)\0"
    "#2668.ExplAttrInfos(#82,OPT)\0"
    "#2662.Attributes(#2666,#2667,#2668)\0"
    "#2669.Supertypes(#753)\0"
    "#2669.Composition(#753,#733,#2669,#734)\0"
    "#2670.ExplAttrInfos(#90,REQ)\0"
    "#2671.ExplAttrInfos(#90,REQ)\0"
    "#2672.ExplAttrInfos(#90,REQ)\0"
    "#2669.Attributes(#2670,#2671,#2672)\0"
    "#2673.Supertypes(#1424)\0"
    "#2673.Composition(#1424,#733,#2673,#734,#758)\0"
    "#2674.ExplAttrInfos(#758,REQ)\0"
    "#2675.ExplAttrInfos(#87,REQ)\0"
    "#2676.ExplAttrInfos(#87,REQ)\0"
    "#2677.ExplAttrInfos(#87,REQ)\0"
    "#2678.ExplAttrInfos(#87,REQ)\0"
    "#2679.ExplAttrInfos(#13,REQ)\0"
    "#2680.ExplAttrInfos(#13,REQ)\0"
    "#2673.Attributes(#2674,#2675,#2676,#2677,#2678,#2679,#2680)\0"
    "#2681.Composition(#2681)\0"
    "#2682.ExplAttrInfos(#544,REQ)\0"
    "#2683.ExplAttrInfos(#2684,OPT)\0"
    "#2685.ExplAttrInfos(#2686,OPT)\0"
    "#2687.ExplAttrInfos(#2688,OPT)\0"
    "#2689.ExplAttrInfos(#6,OPT)\0"
    "#2690.ExplAttrInfos(#6,OPT)\0"
    "#2691.ExplAttrInfos(#6,OPT)\0"
    "#2693.Composition(#2693)\0"
    "#2694.ExplAttrInfos(#192,REQ)\0"
    "#2695.ExplAttrInfos(#192,REQ)\0"
    "#2692.ExplAttrInfos(#2696,OPT)\0"
    "#2681.Attributes(#2682,#2683,#2685,#2687,#2689,#2690,#2691,#2692)\0"
    "#2697.Supertypes(#1314)\0"
    "#2697.Composition(#976,#891,#1314,#975,#2697,#98)\0"
    "#2698.ExplAttrInfos(#546,OPT)\0"
    "#2699.ExplAttrInfos(#56,OPT)\0"
    "#2697.Attributes(#2698,#2699)\0"
    "#2700.Supertypes(#1067)\0"
    "#2700.Composition(#2700,#1067)\0"
    "#2701.ExplAttrInfos(#193,REQ)\0"
    "#2703.Composition(#2703)\0"
    "#2704.ExplAttrInfos(#2705,REQ)\0"
    "#2703.Attributes(#2704)\0"
    "#2702.ExplAttrInfos(#2706,REQ)\0"
    "#2700.Attributes(#2701,#2702)\0"
    "#2707.Supertypes(#1931)\0"
    "#2707.Composition(#1452,#1931,#974,#976,#891,#975,#2707,#98)\0"
    "#2708.ExplAttrInfos(#550,OPT)\0"
    "#2707.Attributes(#2708)\0"
    "#2709.Supertypes(#2522)\0"
    "#2709.Composition(#2522,#1146,#2709)\0"
    "#2710.ExplAttrInfos(#11,REQ)\0"
    "#2711.ExplAttrInfos(#14,REQ)\0"
    "#2712.ExplAttrInfos(#554,OPT)\0"
    "#2714.ExplAttrInfos(#90,OPT)\0"
    "#2715.ExplAttrInfos(#22,OPT)\0"
    "#2709.Attributes(#2710,#2711,#2712,#2713,#2714,#2715)\0"
    "#2716.Supertypes(#1880)\0"
    "#2716.Composition(#1880,#97,#96,#2716,#98)\0"
    "#2717.ExplAttrInfos(#14,OPT)\0"
    "#2719.Supertypes(#2522)\0"
    "#2719.Composition(#2522,#1146,#2719)\0"
    "#2720.ExplAttrInfos(#56,REQ)\0"
    "#2721.ExplAttrInfos(#56,REQ)\0"
    "#2722.ExplAttrInfos(#56,OPT)\0"
    "#2723.ExplAttrInfos(#552,REQ)\0"
    "#2725.Supertypes(#2522)\0"
    "#2725.Composition(#2522,#1146,#2725)\0"
    "#2726.ExplAttrInfos(#572,REQ)\0"
    "#2727.ExplAttrInfos(#1143,REQ)\0"
    "#2728.ExplAttrInfos(#1143,OPT)\0"
    "#2725.Attributes(#2726,#2727,#2728)\0"
    "#2729.ExplAttrInfos(#2730,REQ)\0"
    "#2719.Attributes(#2720,#2721,#2722,#2723,#2724,#2729)\0"
    "#2718.ExplAttrInfos(#2731,REQ)\0"
    "#2733.Supertypes(#1525)\0"
    "#2733.Composition(#974,#1525,#976,#891,#975,#2733,#98)\0"
    "#2734.ExplAttrInfos(#14,OPT)\0"
    "#2732.Supertypes(#2733)\0"
    "#2732.Composition(#974,#1525,#976,#891,#975,#2732,#2733,#98)\0"
    "#2735.ExplAttrInfos(#90,OPT)\0"
    "#2736.ExplAttrInfos(#11,OPT)\0"
    "#2737.ExplAttrInfos(#90,OPT)\0"
    "#2738.ExplAttrInfos(#556,OPT)\0"
    "#2739.ExplAttrInfos(#554,OPT)\0"
    "#2732.Attributes(#2735,#2736,#2737,#2738,#2739)\0"
    "#2741.Supertypes(#1528)\0"
    "#2741.Composition(#1528,#1278,#891,#2741,#98,#1094,#1109)\0"
    "#2740.Supertypes(#2741)\0"
    "#2740.Composition(#1528,#1278,#891,#2740,#2741,#98,#1094,#1109)\0"
    "#2742.ExplAttrInfos(#556,REQ)\0"
    "#2744.ExplAttrInfos(#11,OPT)\0"
    "#2746.ExplAttrInfos(#554,OPT)\0"
    "#2748.ExplAttrInfos(#2749,OPT)\0"
    "#2740.Attributes(#2742,#2743,#2744,#2745,#2746,#2747,#2748)\0"
    "#2750.Supertypes(#2733)\0"
    "#2750.Composition(#974,#1525,#976,#891,#975,#2733,#2750,#98)\0"
    "#2751.ExplAttrInfos(#90,OPT)\0"
    "#2752.ExplAttrInfos(#90,OPT)\0"
    "#2755.ExplAttrInfos(#11,OPT)\0"
    "#2756.ExplAttrInfos(#11,OPT)\0"
    "#2757.ExplAttrInfos(#90,OPT)\0"
    "#2758.ExplAttrInfos(#90,OPT)\0"
    "#2759.ExplAttrInfos(#558,OPT)\0"
    "#2750.Attributes(#2751,#2752,#2753,#2754,#2755,#2756,#2757,#2758,#2759)\0"
    "#2760.Supertypes(#2741)\0"
    "#2760.Composition(#1528,#1278,#891,#2741,#2760,#98,#1094,#1109)\0"
    "#2761.ExplAttrInfos(#558,REQ)\0"
    "#2762.ExplAttrInfos(#90,OPT)\0"
    "#2763.ExplAttrInfos(#90,OPT)\0"
    "#2764.ExplAttrInfos(#90,OPT)\0"
    "#2765.ExplAttrInfos(#90,OPT)\0"
    "#2766.ExplAttrInfos(#11,OPT)\0"
    "#2767.ExplAttrInfos(#11,OPT)\0"
    "#2768.ExplAttrInfos(#90,OPT)\0"
    "#2770.ExplAttrInfos(#14,OPT)\0"
    "#2771.ExplAttrInfos(#2772,OPT)\0"
    "#2760.Attributes(#2761,#2762,#2763,#2764,#2765,#2766,#2767,#2768,#2769,#2770,#2771)\0"
    "#2775.Supertypes(#98)\0"
    "#2775.Composition(#2775,#98)\0"
    "#2774.Supertypes(#2775)\0"
    "#2774.Composition(#2775,#2774,#98)\0"
    "#2773.Supertypes(#2774)\0"
    "#2773.Composition(#2773,#2775,#2774,#98)\0"
    "#2776.ExplAttrInfos(#891,REQ)\0"
    "#2773.Attributes(#2776,#2777)\0"
    "#2779.Supertypes(#2775)\0"
    "#2779.Composition(#2779,#2775,#98)\0"
    "#2780.ExplAttrInfos(#2781,REQ)\0"
    "#2782.ExplAttrInfos(#482,OPT)\0"
    "#2779.Attributes(#2780,#2782)\0"
    "#2783.Supertypes(#2779)\0"
    "#2783.Composition(#2779,#2783,#2775,#98)\0"
    "#2784.ExplAttrInfos(#1269,REQ)\0"
    "#2785.ExplAttrInfos(#116,OPT)\0"
    "#2783.Attributes(#2784,#2785)\0"
    "#2786.Supertypes(#2779)\0"
    "#2786.Composition(#2779,#2786,#2775,#98)\0"
    "#2787.ExplAttrInfos(#1264,REQ)\0"
    "#2788.Supertypes(#2779)\0"
    "#2788.Composition(#2779,#2788,#2775,#98)\0"
    "#2789.ExplAttrInfos(#1196,REQ)\0"
    "#2790.Supertypes(#2788)\0"
    "#2790.Composition(#2779,#2788,#2790,#2775,#98)\0"
    "#2791.ExplAttrInfos(#83,REQ)\0"
    "#2792.Supertypes(#2779)\0"
    "#2792.Composition(#2779,#2792,#2775,#98)\0"
    "#2793.ExplAttrInfos(#1102,REQ)\0"
    "#2794.ExplAttrInfos(#687,OPT)\0"
    "#2792.Attributes(#2793,#2794)\0"
    "#2795.Supertypes(#2779)\0"
    "#2795.Composition(#2779,#2795,#2775,#98)\0"
    "#2796.ExplAttrInfos(#1114,REQ)\0"
    "#2795.Attributes(#2796)\0"
    "#2797.Supertypes(#2779)\0"
    "#2797.Composition(#2779,#2797,#2775,#98)\0"
    "#2798.ExplAttrInfos(#1165,REQ)\0"
    "#2797.Attributes(#2798)\0"
    "#2799.Supertypes(#2775)\0"
    "#2799.Composition(#2799,#2775,#98)\0"
    "#2800.ExplAttrInfos(#2801,REQ)\0"
    "#1.Entities(#2494,#2499,#2502,#2505,#2511,#2514,#1864,#1314,#1515,#809,#847,#810,#2522,#1880,#1248,#807,#2523,#2529,#924,#2535,#2537,#1090,#975,#1103,#982,#1143,#2539,#2541,#2542,#2543,#2547,#2551,#1639,#1146,#2553,#97,#2559,#2563,#2567,#2572,#2576,#2579,#96,#2582,#2587,#2590,#1646,#1647,#2599,#2601,#2603,#2605,#2607,#2610,#2612,#2614,#2617,#2620,#1979,#2623,#2626,#2629,#2632,#2634,#2636,#2638,#2640,#2642,#2644,#2646,#2648,#2650,#2655,#2662,#2663,#2669,#2673,#2681,#722,#2697,#2700,#2707,#2709,#2716,#2732,#2740,#2733,#2741,#2750,#2760,#2773,#2779,#2783,#2786,#2788,#2790,#2792,#2795,#2797,#2799)\0"
    "#2802.Supertypes(#2799)\0"
    "#2802.Composition(#2799,#2802,#2775,#98)\0"
    "#2803.ExplAttrInfos(#1117,REQ)\0"
    "#2802.Attributes(#2803)\0"
    "#2804.Supertypes(#2799)\0"
    "#2804.Composition(#2799,#2804,#2775,#98)\0"
    "#2805.ExplAttrInfos(#805,REQ)\0"
    "#2806.Supertypes(#2799)\0"
    "#2806.Composition(#2799,#2806,#2775,#98)\0"
    "#2807.ExplAttrInfos(#14,OPT)\0"
    "#2808.ExplAttrInfos(#1127,REQ)\0"
    "#2806.Attributes(#2807,#2808)\0"
    "#2809.Supertypes(#2799)\0"
    "#2809.Composition(#2799,#2809,#2775,#98)\0"
    "#2810.ExplAttrInfos(#917,REQ)\0"
    "#2811.Supertypes(#2799)\0"
    "#2811.Composition(#2799,#2811,#2775,#98)\0"
    "#2812.ExplAttrInfos(#1012,REQ)\0"
    "#2813.Supertypes(#2799)\0"
    "#2813.Composition(#2799,#2813,#2775,#98)\0"
    "#2814.ExplAttrInfos(#1035,REQ)\0"
    "#2813.Attributes(#2814)\0"
    "#2815.Supertypes(#2799)\0"
    "#2815.Composition(#2799,#2815,#2775,#98)\0"
    "#2816.ExplAttrInfos(#1143,REQ)\0"
    "#2815.Attributes(#2816)\0"
    "#2817.Supertypes(#2775)\0"
    "#2817.Composition(#2775,#2817,#98)\0"
    "#2818.Supertypes(#2817)\0"
    "#2818.Composition(#2775,#2817,#2818,#98)\0"
    "#2819.ExplAttrInfos(#1671,OPT)\0"
    "#2820.ExplAttrInfos(#974,REQ)\0"
    "#2821.ExplAttrInfos(#974,REQ)\0"
    "#2818.Attributes(#2819,#2820,#2821)\0"
    "#2822.Supertypes(#2818)\0"
    "#2822.Composition(#2775,#2817,#2818,#2822,#98)\0"
    "#2823.ExplAttrInfos(#2824,REQ)\0"
    "#2825.ExplAttrInfos(#2826,REQ)\0"
    "#2827.ExplAttrInfos(#294,REQ)\0"
    "#2828.ExplAttrInfos(#294,REQ)\0"
    "#2822.Attributes(#2823,#2825,#2827,#2828)\0"
    "#2829.Supertypes(#2817)\0"
    "#2829.Composition(#2775,#2817,#2829,#98)\0"
    "#2830.ExplAttrInfos(#1864,REQ)\0"
    "#2831.ExplAttrInfos(#1273,REQ)\0"
    "#2829.Attributes(#2830,#2831)\0"
    "#2832.Supertypes(#2817)\0"
    "#2832.Composition(#2775,#2817,#2832,#98)\0"
    "#2833.ExplAttrInfos(#1864,REQ)\0"
    "#2834.ExplAttrInfos(#1864,REQ)\0"
    "#2835.ExplAttrInfos(#974,OPT)\0"
    "#2832.Attributes(#2833,#2834,#2835)\0"
    "#2836.Supertypes(#2817)\0"
    "#2836.Composition(#2775,#2817,#2836,#98)\0"
    "#2837.ExplAttrInfos(#1203,REQ)\0"
    "#2839.Supertypes(#975)\0"
    "#2839.Composition(#976,#891,#975,#98,#2839)\0"
    "#2841.Composition(#2841)\0"
    "#2842.ExplAttrInfos(#14,OPT)\0"
    "#2840.ExplAttrInfos(#2841,REQ)\0"
    "#2843.ExplAttrInfos(#426,REQ)\0"
    "#2839.Attributes(#2840,#2843)\0"
    "#2838.ExplAttrInfos(#2839,REQ)\0"
    "#2836.Attributes(#2837,#2838)\0"
    "#2844.Supertypes(#2817)\0"
    "#2844.Composition(#2775,#2817,#2844,#98)\0"
    "#2846.Supertypes(#1201)\0"
    "#2846.Composition(#976,#891,#975,#98,#1201,#2846)\0"
    "#2845.ExplAttrInfos(#2846,REQ)\0"
    "#2848.Supertypes(#1201)\0"
    "#2848.Composition(#976,#891,#975,#98,#2848,#1201)\0"
    "#2849.ExplAttrInfos(#1477,OPT)\0"
    "#2847.ExplAttrInfos(#2848,REQ)\0"
    "#2850.ExplAttrInfos(#1477,OPT)\0"
    "#2851.ExplAttrInfos(#2038,OPT)\0"
    "#2852.ExplAttrInfos(#56,OPT)\0"
    "#2853.ExplAttrInfos(#743,OPT)\0"
    "#2844.Attributes(#2845,#2847,#2850,#2851,#2852,#2853)\0"
    "#2854.Supertypes(#2844)\0"
    "#2854.Composition(#2775,#2817,#2844,#2854,#98)\0"
    "#2855.ExplAttrInfos(#1671,REQ)\0"
    "#2854.Attributes(#2855)\0"
    "#2856.Supertypes(#2818)\0"
    "#2856.Composition(#2775,#2817,#2818,#2856,#98)\0"
    "#2859.ExplAttrInfos(#14,OPT)\0"
    "#2856.Attributes(#2857,#2859)\0"
    "#2860.Supertypes(#2817)\0"
    "#2860.Composition(#2775,#2817,#2860,#98)\0"
    "#2861.ExplAttrInfos(#2862,REQ)\0"
    "#2863.ExplAttrInfos(#994,REQ)\0"
    "#2860.Attributes(#2861,#2863)\0"
    "#2864.Supertypes(#2817)\0"
    "#2864.Composition(#2775,#2817,#2864,#98)\0"
    "#2865.ExplAttrInfos(#974,REQ)\0"
    "#2866.ExplAttrInfos(#2867,REQ)\0"
    "#2864.Attributes(#2865,#2866)\0"
    "#2868.Supertypes(#2817)\0"
    "#2868.Composition(#2775,#2817,#2868,#98)\0"
    "#2869.ExplAttrInfos(#1189,REQ)\0"
    "#2872.Supertypes(#2775)\0"
    "#2872.Composition(#2775,#2872,#98)\0"
    "#2873.ExplAttrInfos(#1728,REQ)\0"
    "#2874.ExplAttrInfos(#2875,REQ)\0"
    "#2872.Attributes(#2873,#2874)\0"
    "#2876.Supertypes(#2775)\0"
    "#2876.Composition(#2775,#2876,#98)\0"
    "#2877.Supertypes(#2876)\0"
    "#2877.Composition(#2775,#2876,#2877,#98)\0"
    "#2878.ExplAttrInfos(#2879,REQ)\0"
    "#2880.ExplAttrInfos(#976,REQ)\0"
    "#2877.Attributes(#2878,#2880)\0"
    "#2881.Supertypes(#2876)\0"
    "#2881.Composition(#2775,#2876,#2881,#98)\0"
    "#2882.ExplAttrInfos(#2883,REQ)\0"
    "#2884.ExplAttrInfos(#1116,REQ)\0"
    "#2881.Attributes(#2882,#2884)\0"
    "#2885.Supertypes(#2876)\0"
    "#2885.Composition(#2775,#2876,#2885,#98)\0"
    "#2886.ExplAttrInfos(#2887,REQ)\0"
    "#2888.ExplAttrInfos(#2582,REQ)\0"
    "#2885.Attributes(#2886,#2888)\0"
    "#2889.Supertypes(#2876)\0"
    "#2889.Composition(#2775,#2876,#2889,#98)\0"
    "#2890.ExplAttrInfos(#2891,REQ)\0"
    "#2892.ExplAttrInfos(#1094,REQ)\0"
    "#2889.Attributes(#2890,#2892)\0"
    "#2893.Supertypes(#2817)\0"
    "#2893.Composition(#2775,#2817,#2893,#98)\0"
    "#2894.ExplAttrInfos(#2420,REQ)\0"
    "#2895.ExplAttrInfos(#974,REQ)\0"
    "#2893.Attributes(#2894,#2895)\0"
    "#2896.Supertypes(#2817)\0"
    "#2896.Composition(#2775,#2817,#2896,#98)\0"
    "#2897.ExplAttrInfos(#2898,REQ)\0"
    "#2899.ExplAttrInfos(#1290,REQ)\0"
    "#2896.Attributes(#2897,#2899)\0"
    "#2900.Supertypes(#2817)\0"
    "#2900.Composition(#2775,#2817,#2900,#98)\0"
    "#2901.ExplAttrInfos(#997,REQ)\0"
    "#2902.ExplAttrInfos(#997,REQ)\0"
    "#2903.ExplAttrInfos(#1671,OPT)\0"
    "#2904.ExplAttrInfos(#48,OPT)\0"
    "#2905.ExplAttrInfos(#63,REQ)\0"
    "#2900.Attributes(#2901,#2902,#2903,#2904,#2905)\0"
    "#2906.Supertypes(#2774)\0"
    "#2906.Composition(#2775,#2774,#2906,#98)\0"
    "#2907.ExplAttrInfos(#891,REQ)\0"
    "#2910.Supertypes(#2817)\0"
    "#2910.Composition(#2775,#2817,#2910,#98)\0"
    "#2911.ExplAttrInfos(#1314,REQ)\0"
    "#2914.Supertypes(#2774)\0"
    "#2914.Composition(#2775,#2774,#2914,#98)\0"
    "#2915.ExplAttrInfos(#974,REQ)\0"
    "#2916.ExplAttrInfos(#2054,REQ)\0"
    "#2917.Supertypes(#2817)\0"
    "#2917.Composition(#2775,#2817,#2917,#98)\0"
    "#2920.ExplAttrInfos(#994,REQ)\0"
    "#2921.Supertypes(#2817)\0"
    "#2921.Composition(#2775,#2817,#2921,#98)\0"
    "#2922.ExplAttrInfos(#1090,REQ)\0"
    "#2923.ExplAttrInfos(#1090,REQ)\0"
    "#2924.ExplAttrInfos(#2217,OPT)\0"
    "#2925.ExplAttrInfos(#576,OPT)\0"
    "#2927.Supertypes(#2817)\0"
    "#2927.Composition(#2775,#2817,#2927,#98)\0"
    "#2928.ExplAttrInfos(#1537,REQ)\0"
    "#2931.Supertypes(#2817)\0"
    "#2931.Composition(#2775,#2817,#2931,#98)\0"
    "#2932.ExplAttrInfos(#1195,REQ)\0"
    "#2933.ExplAttrInfos(#974,REQ)\0"
    "#2934.ExplAttrInfos(#1671,OPT)\0"
    "#2935.ExplAttrInfos(#500,REQ)\0"
    "#2936.ExplAttrInfos(#438,REQ)\0"
    "#2937.Composition(#2775,#2817,#2931,#2937,#98)\0"
    "#2939.Composition(#2775,#2817,#2931,#2937,#2939,#98)\0"
    "#2941.Supertypes(#2774)\0"
    "#2941.Composition(#2775,#2774,#2941,#98)\0"
    "#2942.ExplAttrInfos(#974,REQ)\0"
    "#2943.ExplAttrInfos(#1928,REQ)\0"
    "#2944.Supertypes(#1652)\0"
    "#2944.Composition(#1652,#733,#2944,#734,#861)\0"
    "#2946.Supertypes(#1357)\0"
    "#2946.Composition(#2946,#1357)\0"
    "#2949.ExplAttrInfos(#1117,REQ)\0"
    "#2950.Supertypes(#1357)\0"
    "#2950.Composition(#2950,#1357)\0"
    "#2951.ExplAttrInfos(#1127,REQ)\0"
    "#2954.Supertypes(#1827)\0"
    "#2954.Composition(#733,#734,#2954,#762,#1827)\0"
    "#2955.ExplAttrInfos(#1400,REQ)\0"
    "#2957.DerivAttrInfos(#2254)\0"
    "#2958.Composition(#733,#734,#2954,#2958,#762,#1827)\0"
    "#2959.ExplAttrInfos(#1143,REQ)\0"
    "#2960.Supertypes(#753)\0"
    "#2960.Composition(#753,#733,#734,#2960)\0"
    "#2963.Supertypes(#753)\0"
    "#2963.Composition(#753,#733,#734,#2963)\0"
    "#2966.Supertypes(#1509)\0"
    "#2966.Composition(#1509,#976,#891,#975,#2966,#98,#994,#1190)\0"
    "#2967.ExplAttrInfos(#562,OPT)\0"
    "#2968.Supertypes(#1452)\0"
    "#2968.Composition(#1452,#974,#976,#891,#975,#2968,#98)\0"
    "#2969.ExplAttrInfos(#564,OPT)\0"
    "#2970.Supertypes(#1456)\0"
    "#2970.Composition(#1456,#1278,#891,#2970,#98,#1094,#1109)\0"
    "#2971.ExplAttrInfos(#564,REQ)\0"
    "#2972.Supertypes(#2663)\0"
    "#2972.Composition(#1382,#1143,#2663,#2972)\0"
    "#2974.Supertypes(#702)\0"
    "#2974.Composition(#702,#2974)\0"
    "#2975.ExplAttrInfos(#566,OPT)\0"
    "#2976.ExplAttrInfos(#568,REQ)\0"
    "#2977.DerivAttrInfos(#704)\0"
    "#2978.Supertypes(#1289)\0"
    "#2978.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98,#2978)\0"
    "#2979.ExplAttrInfos(#570,OPT)\0"
    "#2980.Supertypes(#1300)\0"
    "#2980.Composition(#1277,#1297,#1278,#1300,#891,#98,#2980,#1094,#1109)\0"
    "#2981.ExplAttrInfos(#570,REQ)\0"
    "#2982.Supertypes(#872)\0"
    "#2982.Composition(#858,#733,#734,#2982,#872)\0"
    "#2983.Supertypes(#1618)\0"
    "#2983.Composition(#858,#733,#734,#2983,#1618)\0"
    "#2984.ExplAttrInfos(#56,REQ)\0"
    "#2985.ExplAttrInfos(#56,OPT)\0"
    "#2986.ExplAttrInfos(#165,OPT)\0"
    "#2983.Attributes(#2984,#2985,#2986)\0"
    "#2987.Supertypes(#762)\0"
    "#2987.Composition(#733,#734,#2987,#762)\0"
    "#2988.ExplAttrInfos(#858,REQ)\0"
    "#2989.ExplAttrInfos(#2990,REQ)\0"
    "#2987.Attributes(#2988,#2989)\0"
    "#2991.Supertypes(#2987)\0"
    "#2991.Composition(#733,#734,#2987,#2991,#762)\0"
    "#2992.ExplAttrInfos(#2993,REQ)\0"
    "#2994.ExplAttrInfos(#13,REQ)\0"
    "#2991.Attributes(#2992,#2994)\0"
    "#2995.Supertypes(#733)\0"
    "#2995.Composition(#733,#734,#2995)\0"
    "#2996.ExplAttrInfos(#856,REQ)\0"
    "#2997.ExplAttrInfos(#2998,REQ)\0"
    "#2999.ExplAttrInfos(#3000,REQ)\0"
    "#3001.DerivAttrInfos(#29)\0"
    "#2995.Attributes(#2996,#2997,#2999,#3001)\0"
    "#3002.Supertypes(#758)\0"
    "#3002.Composition(#733,#734,#3002,#758)\0"
    "#3003.ExplAttrInfos(#858,REQ)\0"
    "#3006.ExplAttrInfos(#3007,REQ)\0"
    "#3008.ExplAttrInfos(#13,REQ)\0"
    "#3002.Attributes(#3003,#3004,#3006,#3008)\0"
    "#3009.Supertypes(#856)\0"
    "#3009.Composition(#857,#856,#858,#733,#734,#3009)\0"
    "#3010.ExplAttrInfos(#857,REQ)\0"
    "#3011.ExplAttrInfos(#732,OPT)\0"
    "#3012.Supertypes(#1272)\0"
    "#3012.Composition(#1272,#1273,#974,#976,#891,#975,#98,#3012)\0"
    "#3013.ExplAttrInfos(#574,OPT)\0"
    "#3012.Attributes(#3013)\0"
    "#3014.Supertypes(#1276)\0"
    "#3014.Composition(#1276,#1277,#1278,#891,#98,#3014,#1094,#1109)\0"
    "#3015.ExplAttrInfos(#574,REQ)\0"
    "#3014.Attributes(#3015)\0"
    "#3016.Supertypes(#1452)\0"
    "#3016.Composition(#1452,#974,#976,#891,#975,#98,#3016)\0"
    "#3017.ExplAttrInfos(#578,OPT)\0"
    "#3018.Supertypes(#1456)\0"
    "#3018.Composition(#1456,#1278,#891,#98,#3018,#1094,#1109)\0"
    "#3019.ExplAttrInfos(#578,REQ)\0"
    "#3020.Supertypes(#1149)\0"
    "#3020.Composition(#986,#1149,#3020)\0"
    "#3021.Supertypes(#733)\0"
    "#3021.Composition(#733,#734,#3021)\0"
    "#3022.ExplAttrInfos(#3023,REQ)\0"
    "#3024.DerivAttrInfos(#29)\0"
    "#3021.Attributes(#3022,#3024)\0"
    "#3025.Supertypes(#1525)\0"
    "#3025.Composition(#974,#1525,#976,#891,#975,#98,#3025)\0"
    "#3026.ExplAttrInfos(#580,OPT)\0"
    "#3025.Attributes(#3026)\0"
    "#3027.Supertypes(#1528)\0"
    "#3027.Composition(#1528,#1278,#891,#98,#3027,#1094,#1109)\0"
    "#3028.ExplAttrInfos(#580,REQ)\0"
    "#3027.Attributes(#3028)\0"
    "#3029.Supertypes(#1289)\0"
    "#3029.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98,#3029)\0"
    "#3030.ExplAttrInfos(#582,OPT)\0"
    "#3031.Supertypes(#1300)\0"
    "#3031.Composition(#1277,#1297,#1278,#1300,#891,#98,#3031,#1094,#1109)\0"
    "#3032.ExplAttrInfos(#582,REQ)\0"
    "#3033.Supertypes(#1646)\0"
    "#3033.Composition(#97,#1646,#1647,#98,#3033)\0"
    "#3034.ExplAttrInfos(#584,OPT)\0"
    "#3035.ExplAttrInfos(#14,OPT)\0"
    "#3036.ExplAttrInfos(#14,OPT)\0"
    "#3037.ExplAttrInfos(#2567,OPT)\0"
    "#3038.ExplAttrInfos(#721,OPT)\0"
    "#3039.ExplAttrInfos(#721,OPT)\0"
    "#3040.ExplAttrInfos(#14,OPT)\0"
    "#3041.ExplAttrInfos(#151,OPT)\0"
    "#3033.Attributes(#3034,#3035,#3036,#3037,#3038,#3039,#3040,#3041)\0"
    "#3042.Supertypes(#1618)\0"
    "#3042.Composition(#858,#733,#734,#3042,#1618)\0"
    "#3043.ExplAttrInfos(#56,REQ)\0"
    "#3044.ExplAttrInfos(#56,REQ)\0"
    "#3042.Attributes(#3043,#3044)\0"
    "#3045.Supertypes(#1190)\0"
    "#3045.Composition(#976,#891,#975,#98,#3045,#994,#1190)\0"
    "#3046.ExplAttrInfos(#20,OPT)\0"
    "#3047.ExplAttrInfos(#20,OPT)\0"
    "#3048.ExplAttrInfos(#56,OPT)\0"
    "#3050.ExplAttrInfos(#1515,OPT)\0"
    "#3045.Attributes(#3046,#3047,#3048,#3049,#3050)\0"
    "#3051.Supertypes(#1452)\0"
    "#3051.Composition(#1452,#974,#976,#891,#975,#98,#3051)\0"
    "#3052.ExplAttrInfos(#586,OPT)\0"
    "#3053.Supertypes(#3051)\0"
    "#3053.Composition(#1452,#974,#976,#891,#975,#98,#3051,#3053)\0"
    "#3054.Supertypes(#3051)\0"
    "#3054.Composition(#1452,#974,#976,#891,#975,#98,#3051,#3054)\0"
    "#3055.Supertypes(#1456)\0"
    "#3055.Composition(#1456,#1278,#891,#98,#3055,#1094,#1109)\0"
    "#3056.ExplAttrInfos(#586,REQ)\0"
    "#3057.Supertypes(#2038)\0"
    "#3057.Composition(#3057,#2038)\0"
    "#3059.ExplAttrInfos(#56,OPT)\0"
    "#3060.ExplAttrInfos(#56,OPT)\0"
    "#3057.Attributes(#3058,#3059,#3060)\0"
    "#3061.Supertypes(#1303)\0"
    "#3061.Composition(#1273,#1290,#974,#1303,#976,#891,#975,#98,#3061)\0"
    "#3062.ExplAttrInfos(#588,OPT)\0"
    "#3063.Supertypes(#1306)\0"
    "#3063.Composition(#1277,#1297,#1278,#1306,#891,#98,#3063,#1094,#1109)\0"
    "#3064.ExplAttrInfos(#588,REQ)\0"
    "#3065.Supertypes(#2106)\0"
    "#3065.Composition(#974,#1476,#2106,#976,#891,#975,#98,#3065)\0"
    "#3066.Supertypes(#1289)\0"
    "#3066.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98,#3066)\0"
    "#3067.ExplAttrInfos(#590,OPT)",
    "#1.Entities(#2802,#2804,#2806,#2809,#2811,#2813,#2815,#2817,#2818,#2822,#2829,#2832,#2836,#2844,#2854,#2856,#2860,#2864,#2868,#2872,#2774,#2876,#2877,#2881,#2885,#2889,#2893,#2896,#2900,#2906,#2910,#2914,#2917,#2921,#2927,#2931,#2937,#2939,#2941,#2775,#2944,#986,#826,#734,#1104,#1157,#2946,#2950,#1357,#1690,#2954,#2958,#2960,#2963,#2966,#2968,#2970,#98,#2972,#2974,#2978,#2980,#1691,#2982,#2983,#2725,#2719,#2987,#2991,#2995,#3002,#861,#3009,#3012,#3014,#3016,#3018,#1147,#1149,#3020,#3021,#3025,#3027,#3029,#3031,#2554,#3033,#3042,#3045,#3051,#3053,#3054,#3055,#3057,#3061,#3063,#762,#3065,#1189,#3066)\0"
    "#3068.Supertypes(#1300)\0"
    "#3068.Composition(#1277,#1297,#1278,#1300,#891,#98,#3068,#1094,#1109)\0"
    "#3069.ExplAttrInfos(#590,REQ)\0"
    "#3072.Supertypes(#1109)\0"
    "#3072.Composition(#891,#98,#3072,#1094,#1109)\0"
    "#3073.ExplAttrInfos(#14,OPT)\0"
    "#3071.Supertypes(#3072)\0"
    "#3071.Composition(#891,#98,#3072,#3071,#1094,#1109)\0"
    "#3070.Supertypes(#3071)\0"
    "#3070.Composition(#891,#98,#3070,#3072,#3071,#1094,#1109)\0"
    "#3074.ExplAttrInfos(#592,REQ)\0"
    "#3075.ExplAttrInfos(#14,OPT)\0"
    "#3070.Attributes(#3074,#3075)\0"
    "#3076.Supertypes(#994)\0"
    "#3076.Composition(#976,#891,#975,#98,#994,#3076)\0"
    "#3077.ExplAttrInfos(#594,OPT)\0"
    "#3078.Supertypes(#3072)\0"
    "#3078.Composition(#891,#98,#3072,#3078,#1094,#1109)\0"
    "#3079.ExplAttrInfos(#594,REQ)\0"
    "#3080.ExplAttrInfos(#14,OPT)\0"
    "#3078.Attributes(#3079,#3080)\0"
    "#3081.Supertypes(#753)\0"
    "#3081.Composition(#753,#733,#734,#3081)\0"
    "#3082.ExplAttrInfos(#90,REQ)\0"
    "#3081.Attributes(#3082)\0"
    "#3083.Supertypes(#1800)\0"
    "#3083.Composition(#1800,#733,#734,#3083,#758)\0"
    "#3084.ExplAttrInfos(#90,REQ)\0"
    "#3085.Supertypes(#1289)\0"
    "#3085.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98,#3085)\0"
    "#3086.ExplAttrInfos(#596,OPT)\0"
    "#3085.Attributes(#3086)\0"
    "#3087.Supertypes(#1300)\0"
    "#3087.Composition(#1277,#1297,#1278,#1300,#891,#98,#3087,#1094,#1109)\0"
    "#3088.ExplAttrInfos(#596,REQ)\0"
    "#3089.Supertypes(#1452)\0"
    "#3089.Composition(#1452,#974,#976,#891,#975,#98,#3089)\0"
    "#3090.ExplAttrInfos(#600,OPT)\0"
    "#3091.Supertypes(#1452)\0"
    "#3091.Composition(#1452,#974,#976,#891,#975,#98,#3091)\0"
    "#3092.ExplAttrInfos(#6,OPT)\0"
    "#3093.ExplAttrInfos(#6,OPT)\0"
    "#3094.ExplAttrInfos(#90,OPT)\0"
    "#3095.ExplAttrInfos(#90,OPT)\0"
    "#3096.ExplAttrInfos(#598,OPT)\0"
    "#3091.Attributes(#3092,#3093,#3094,#3095,#3096)\0"
    "#3097.Supertypes(#1456)\0"
    "#3097.Composition(#1456,#1278,#891,#98,#3097,#1094,#1109)\0"
    "#3098.ExplAttrInfos(#598,REQ)\0"
    "#3099.Supertypes(#1456)\0"
    "#3099.Composition(#1456,#1278,#891,#98,#3099,#1094,#1109)\0"
    "#3100.ExplAttrInfos(#600,REQ)\0"
    "#3099.Attributes(#3100)\0"
    "#3101.Supertypes(#2839)\0"
    "#3101.Composition(#976,#891,#975,#98,#3101,#2839)\0"
    "#3102.ExplAttrInfos(#13,OPT)\0"
    "#3103.Supertypes(#1537)\0"
    "#3103.Composition(#1196,#976,#891,#98,#3103,#1537)\0"
    "#3104.ExplAttrInfos(#226,REQ)\0"
    "#3105.ExplAttrInfos(#743,OPT)\0"
    "#3107.Supertypes(#1196)\0"
    "#3107.Composition(#1196,#976,#891,#98,#3107)\0"
    "#3108.ExplAttrInfos(#460,REQ)\0"
    "#3109.ExplAttrInfos(#206,REQ)\0"
    "#3110.ExplAttrInfos(#204,REQ)\0"
    "#3111.ExplAttrInfos(#83,OPT)\0"
    "#3112.ExplAttrInfos(#14,OPT)\0"
    "#3107.Attributes(#3108,#3109,#3110,#3111,#3112)\0"
    "#3106.ExplAttrInfos(#3113,OPT)\0"
    "#3115.Supertypes(#1196)\0"
    "#3115.Composition(#1196,#976,#891,#98,#3115)\0"
    "#3116.ExplAttrInfos(#228,REQ)\0"
    "#3117.ExplAttrInfos(#3107,OPT)\0"
    "#3118.ExplAttrInfos(#13,REQ)\0"
    "#3115.Attributes(#3116,#3117,#3118)\0"
    "#3114.ExplAttrInfos(#3119,OPT)\0"
    "#3120.ExplAttrInfos(#979,OPT)\0"
    "#3103.Attributes(#3104,#3105,#3106,#3114,#3120)\0"
    "#3121.Supertypes(#3101)\0"
    "#3121.Composition(#976,#891,#975,#98,#3101,#2839,#3121)\0"
    "#3122.ExplAttrInfos(#520,OPT)\0"
    "#3123.ExplAttrInfos(#602,REQ)\0"
    "#3121.Attributes(#3122,#3123)\0"
    "#3124.Supertypes(#2848)\0"
    "#3124.Composition(#976,#891,#975,#98,#2848,#3124,#1201)\0"
    "#3125.ExplAttrInfos(#739,REQ)\0"
    "#3124.Attributes(#3125)\0"
    "#3126.Supertypes(#2846)\0"
    "#3126.Composition(#976,#891,#975,#98,#3126,#1201,#2846)\0"
    "#3127.ExplAttrInfos(#604,REQ)\0"
    "#3128.ExplAttrInfos(#739,REQ)\0"
    "#3126.Attributes(#3127,#3128)\0"
    "#3129.Supertypes(#3126)\0"
    "#3129.Composition(#976,#891,#975,#98,#3126,#3129,#1201,#2846)\0"
    "#3131.Supertypes(#2839)\0"
    "#3131.Composition(#976,#891,#975,#98,#2839,#3131)\0"
    "#3130.Supertypes(#3131)\0"
    "#3130.Composition(#976,#891,#975,#98,#2839,#3130,#3131)\0"
    "#3132.ExplAttrInfos(#602,REQ)\0"
    "#3130.Attributes(#3132)\0"
    "#3133.Supertypes(#3121)\0"
    "#3133.Composition(#976,#891,#975,#98,#3101,#2839,#3121,#3133)\0"
    "#3134.Supertypes(#3107)\0"
    "#3134.Composition(#1196,#976,#891,#98,#3134,#3107)\0"
    "#3135.ExplAttrInfos(#3136,OPT)\0"
    "#3134.Attributes(#3135)\0"
    "#3137.Supertypes(#2841)\0"
    "#3137.Composition(#2841,#3137)\0"
    "#3139.Supertypes(#2841)\0"
    "#3139.Composition(#2841,#3139)\0"
    "#3138.ExplAttrInfos(#3140,REQ)\0"
    "#3141.ExplAttrInfos(#3143,OPT)\0"
    "#3137.Attributes(#3138,#3141)\0"
    "#3145.Supertypes(#3139)\0"
    "#3145.Composition(#2841,#3139,#3145)\0"
    "#3144.Supertypes(#3145)\0"
    "#3144.Composition(#2841,#3144,#3139,#3145)\0"
    "#3146.ExplAttrInfos(#59,OPT)\0"
    "#3147.ExplAttrInfos(#59,OPT)\0"
    "#3148.ExplAttrInfos(#59,OPT)\0"
    "#3149.ExplAttrInfos(#60,OPT)\0"
    "#3150.ExplAttrInfos(#60,OPT)\0"
    "#3151.ExplAttrInfos(#60,OPT)\0"
    "#3144.Attributes(#3146,#3147,#3148,#3149,#3150,#3151)\0"
    "#3152.Supertypes(#3145)\0"
    "#3152.Composition(#2841,#3139,#3152,#3145)\0"
    "#3153.ExplAttrInfos(#88,OPT)\0"
    "#3154.ExplAttrInfos(#88,OPT)\0"
    "#3155.ExplAttrInfos(#88,OPT)\0"
    "#3152.Attributes(#3153,#3154,#3155)\0"
    "#3156.Supertypes(#3145)\0"
    "#3156.Composition(#2841,#3139,#3156,#3145)\0"
    "#3157.ExplAttrInfos(#56,OPT)\0"
    "#3158.ExplAttrInfos(#56,OPT)\0"
    "#3159.ExplAttrInfos(#56,OPT)\0"
    "#3160.ExplAttrInfos(#89,OPT)\0"
    "#3161.ExplAttrInfos(#89,OPT)\0"
    "#3162.ExplAttrInfos(#89,OPT)\0"
    "#3156.Attributes(#3157,#3158,#3159,#3160,#3161,#3162)\0"
    "#3163.Supertypes(#3156)\0"
    "#3163.Composition(#2841,#3139,#3156,#3163,#3145)\0"
    "#3164.ExplAttrInfos(#23,OPT)\0"
    "#3163.Attributes(#3164)\0"
    "#3165.Supertypes(#3145)\0"
    "#3165.Composition(#2841,#3139,#3165,#3145)\0"
    "#3166.ExplAttrInfos(#43,OPT)\0"
    "#3167.ExplAttrInfos(#43,OPT)\0"
    "#3168.ExplAttrInfos(#43,OPT)\0"
    "#3169.ExplAttrInfos(#194,OPT)\0"
    "#3170.ExplAttrInfos(#194,OPT)\0"
    "#3171.ExplAttrInfos(#194,OPT)\0"
    "#3172.Composition(#2841,#3139,#3165,#3172,#3145)\0"
    "#3173.ExplAttrInfos(#200,OPT)\0"
    "#3174.Supertypes(#3145)\0"
    "#3174.Composition(#2841,#3139,#3145,#3174)\0"
    "#3175.ExplAttrInfos(#191,OPT)\0"
    "#3176.ExplAttrInfos(#191,OPT)\0"
    "#3177.ExplAttrInfos(#191,OPT)\0"
    "#3174.Attributes(#3175,#3176,#3177)\0"
    "#3179.Supertypes(#3101)\0"
    "#3179.Composition(#976,#891,#975,#98,#3101,#2839,#3179)\0"
    "#3180.ExplAttrInfos(#520,OPT)\0"
    "#3181.ExplAttrInfos(#606,REQ)\0"
    "#3179.Attributes(#3180,#3181)\0"
    "#3178.Supertypes(#3179)\0"
    "#3178.Composition(#976,#891,#975,#98,#3101,#2839,#3178,#3179)\0"
    "#3182.Supertypes(#3101)\0"
    "#3182.Composition(#976,#891,#975,#98,#3101,#2839,#3182)\0"
    "#3183.Supertypes(#2848)\0"
    "#3183.Composition(#976,#891,#975,#98,#2848,#1201,#3183)\0"
    "#3184.ExplAttrInfos(#743,OPT)\0"
    "#3183.Attributes(#3184)\0"
    "#3185.Supertypes(#3131)\0"
    "#3185.Composition(#976,#891,#975,#98,#2839,#3185,#3131)\0"
    "#3186.Supertypes(#2848)\0"
    "#3186.Composition(#976,#891,#975,#98,#2848,#1201,#3186)\0"
    "#3187.Supertypes(#2846)\0"
    "#3187.Composition(#976,#891,#975,#98,#1201,#2846,#3187)\0"
    "#3188.ExplAttrInfos(#608,REQ)\0"
    "#3189.ExplAttrInfos(#90,OPT)\0"
    "#3187.Attributes(#3188,#3189)\0"
    "#3190.Supertypes(#3187)\0"
    "#3190.Composition(#976,#891,#975,#98,#1201,#2846,#3187,#3190)\0"
    "#3191.Supertypes(#3131)\0"
    "#3191.Composition(#976,#891,#975,#98,#2839,#3131,#3191)\0"
    "#3192.ExplAttrInfos(#606,REQ)\0"
    "#3191.Attributes(#3192)\0"
    "#3193.Supertypes(#986)\0"
    "#3193.Composition(#986,#3193)\0"
    "#3194.Supertypes(#3193)\0"
    "#3194.Composition(#986,#3194,#3193)\0"
    "#3195.Supertypes(#1688)\0"
    "#3195.Composition(#1688,#976,#891,#1157,#98,#3195)\0"
    "#3196.ExplAttrInfos(#610,OPT)\0"
    "#3195.Attributes(#3196)\0"
    "#3197.Supertypes(#1715)\0"
    "#3197.Composition(#1715,#891,#98,#3197,#1094,#1160)\0"
    "#3198.ExplAttrInfos(#610,REQ)\0"
    "#3197.Attributes(#3198)\0"
    "#3199.Supertypes(#882)\0"
    "#3199.Composition(#882,#734,#3199,#883)\0"
    "#3200.ExplAttrInfos(#882,REQ)\0"
    "#3199.Attributes(#3200)\0"
    "#3201.Supertypes(#1826)\0"
    "#3201.Composition(#1826,#733,#734,#762,#3201,#1827)\0"
    "#3202.ExplAttrInfos(#758,REQ)\0"
    "#3203.Supertypes(#1929)\0"
    "#3203.Composition(#974,#1929,#976,#891,#975,#98,#3203)\0"
    "#3204.ExplAttrInfos(#612,OPT)\0"
    "#3203.Attributes(#3204)\0"
    "#3206.Supertypes(#758)\0"
    "#3206.Composition(#733,#734,#758,#3206)\0"
    "#3207.ExplAttrInfos(#1143,REQ)\0"
    "#3208.ExplAttrInfos(#743,OPT)\0"
    "#3206.Attributes(#3207,#3208)\0"
    "#3205.Supertypes(#3206)\0"
    "#3205.Composition(#733,#734,#758,#3205,#3206)\0"
    "#3209.ExplAttrInfos(#739,REQ)\0"
    "#3210.ExplAttrInfos(#56,REQ)\0"
    "#3211.DerivAttrInfos(#933)\0"
    "#3205.Attributes(#3209,#3210,#3211)\0"
    "#3212.Supertypes(#3206)\0"
    "#3212.Composition(#733,#734,#758,#3212,#3206)\0"
    "#3213.ExplAttrInfos(#1400,REQ)\0"
    "#3214.DerivAttrInfos(#2254)\0"
    "#3212.Attributes(#3213,#3214)\0"
    "#3215.Supertypes(#3139)\0"
    "#3215.Composition(#2841,#3139,#3215)\0"
    "#3216.ExplAttrInfos(#3217,OPT)\0"
    "#3218.ExplAttrInfos(#3219,OPT)\0"
    "#3220.ExplAttrInfos(#83,OPT)\0"
    "#3215.Attributes(#3216,#3218,#3220)\0"
    "#3221.Supertypes(#924)\0"
    "#3221.Composition(#924,#3221)\0"
    "#3222.ExplAttrInfos(#614,REQ)\0"
    "#3223.ExplAttrInfos(#3224,REQ)\0"
    "#3225.Supertypes(#1222)\0"
    "#3225.Composition(#807,#3225,#1222)\0"
    "#3226.ExplAttrInfos(#819,OPT)\0"
    "#3227.ExplAttrInfos(#819,OPT)\0"
    "#3228.ExplAttrInfos(#819,OPT)\0"
    "#3229.ExplAttrInfos(#819,OPT)\0"
    "#3230.ExplAttrInfos(#819,OPT)\0"
    "#3231.ExplAttrInfos(#1200,OPT)\0"
    "#3232.ExplAttrInfos(#548,REQ)\0"
    "#3225.Attributes(#3226,#3227,#3228,#3229,#3230,#3231,#3232)\0"
    "#3233.Supertypes(#762)\0"
    "#3233.Composition(#733,#734,#762,#3233)\0"
    "#3234.ExplAttrInfos(#858,REQ)\0"
    "#3235.ExplAttrInfos(#90,REQ)\0"
    "#3236.ExplAttrInfos(#90,OPT)\0"
    "#3237.ExplAttrInfos(#87,OPT)\0"
    "#3238.ExplAttrInfos(#87,OPT)\0"
    "#3233.Attributes(#3234,#3235,#3236,#3237,#3238)\0"
    "#3239.Supertypes(#3233)\0"
    "#3239.Composition(#733,#734,#762,#3233,#3239)\0"
    "#3240.ExplAttrInfos(#90,OPT)\0"
    "#3239.Attributes(#3240)\0"
    "#3241.Supertypes(#1293)\0"
    "#3241.Composition(#1273,#1290,#974,#1293,#976,#891,#975,#98,#3241)\0"
    "#3242.ExplAttrInfos(#616,OPT)\0"
    "#3241.Attributes(#3242)\0"
    "#3243.Supertypes(#1296)\0"
    "#3243.Composition(#1277,#1297,#1278,#1296,#891,#98,#3243,#1094,#1109)\0"
    "#3244.ExplAttrInfos(#616,REQ)\0"
    "#3243.Attributes(#3244)\0"
    "#3245.Supertypes(#2079)\0"
    "#3245.Composition(#974,#2079,#976,#891,#975,#98,#3245)\0"
    "#3246.ExplAttrInfos(#618,OPT)\0"
    "#3245.Attributes(#3246)\0"
    "#3247.Supertypes(#2080)\0"
    "#3247.Composition(#1278,#2080,#891,#98,#3247,#1094,#1109)\0"
    "#3248.ExplAttrInfos(#618,OPT)\0"
    "#3247.Attributes(#3248)\0"
    "#3249.Supertypes(#1382)\0"
    "#3249.Composition(#1382,#1143,#3249)\0"
    "#3250.ExplAttrInfos(#90,REQ)\0"
    "#3251.ExplAttrInfos(#90,REQ)\0"
    "#3252.ExplAttrInfos(#90,REQ)\0"
    "#3253.ExplAttrInfos(#90,REQ)\0"
    "#3254.ExplAttrInfos(#82,OPT)\0"
    "#3255.ExplAttrInfos(#82,OPT)\0"
    "#3256.ExplAttrInfos(#82,OPT)\0"
    "#3257.ExplAttrInfos(#89,OPT)\0"
    "#3258.ExplAttrInfos(#89,OPT)\0"
    "#3249.Attributes(#3250,#3251,#3252,#3253,#3254,#3255,#3256,#3257,#3258)\0"
    "#3259.Supertypes(#1952)\0"
    "#3259.Composition(#1273,#1290,#974,#1952,#976,#891,#975,#98,#3259)\0"
    "#3260.ExplAttrInfos(#620,OPT)\0"
    "#3259.Attributes(#3260)\0"
    "#3261.Supertypes(#1955)\0"
    "#3261.Composition(#1277,#1297,#1278,#1955,#891,#98,#3261,#1094,#1109)\0"
    "#3262.ExplAttrInfos(#620,REQ)\0"
    "#3263.Supertypes(#1090)\0"
    "#3263.Composition(#976,#891,#1090,#98,#3263)\0"
    "#3264.ExplAttrInfos(#14,OPT)\0"
    "#3265.ExplAttrInfos(#14,OPT)\0"
    "#3266.ExplAttrInfos(#13,REQ)\0"
    "#3267.ExplAttrInfos(#6,OPT)\0"
    "#3269.Supertypes(#1691)\0"
    "#3269.Composition(#1691,#3269)\0"
    "#3270.ExplAttrInfos(#622,OPT)\0"
    "#3271.ExplAttrInfos(#31,OPT)\0"
    "#3272.ExplAttrInfos(#25,OPT)\0"
    "#3273.ExplAttrInfos(#25,OPT)\0"
    "#3274.ExplAttrInfos(#25,OPT)\0"
    "#3275.ExplAttrInfos(#25,OPT)\0"
    "#3276.ExplAttrInfos(#25,OPT)\0"
    "#3277.ExplAttrInfos(#25,OPT)\0"
    "#3278.ExplAttrInfos(#31,OPT)\0"
    "#3279.ExplAttrInfos(#31,OPT)\0"
    "#3280.ExplAttrInfos(#13,OPT)\0"
    "#3282.ExplAttrInfos(#31,OPT)\0"
    "#3285.ExplAttrInfos(#31,OPT)\0"
    "#3286.ExplAttrInfos(#92,OPT)\0"
    "#3269.Attributes(#3270,#3271,#3272,#3273,#3274,#3275,#3276,#3277,#3278,#3279,#3280,#3281,#3282,#3283,#3284,#3285,#3286)\0"
    "#3268.ExplAttrInfos(#3269,OPT)\0"
    "#3287.ExplAttrInfos(#624,OPT)\0"
    "#3263.Attributes(#3264,#3265,#3266,#3267,#3268,#3287)\0"
    "#3288.Supertypes(#3269)\0"
    "#3288.Composition(#1691,#3269,#3288)\0"
    "#3289.ExplAttrInfos(#2681,REQ)\0"
    "#3288.Attributes(#3289)\0"
    "#3290.Supertypes(#1093)\0"
    "#3290.Composition(#891,#98,#3290,#1094,#1093)\0"
    "#3291.ExplAttrInfos(#624,REQ)\0"
    "#3292.ExplAttrInfos(#14,OPT)\0"
    "#3290.Attributes(#3291,#3292)\0"
    "#3293.Supertypes(#125)\0"
    "#3293.Composition(#125,#3293)\0"
    "#3294.ExplAttrInfos(#3295,OPT)\0"
    "#3296.ExplAttrInfos(#3297,OPT)\0"
    "#3298.ExplAttrInfos(#14,OPT)\0"
    "#3299.ExplAttrInfos(#3300,OPT)\0"
    "#3301.ExplAttrInfos(#195,OPT)\0"
    "#3302.ExplAttrInfos(#3303,OPT)\0"
    "#3293.Attributes(#3294,#3296,#3298,#3299,#3301,#3302)\0"
    "#3304.Supertypes(#2733)\0"
    "#3304.Composition(#974,#1525,#976,#891,#975,#2733,#98,#3304)\0"
    "#3305.ExplAttrInfos(#630,OPT)\0"
    "#3306.ExplAttrInfos(#90,OPT)\0"
    "#3307.ExplAttrInfos(#11,OPT)\0"
    "#3308.ExplAttrInfos(#43,OPT)\0"
    "#3309.ExplAttrInfos(#95,OPT)\0"
    "#3310.ExplAttrInfos(#84,OPT)\0"
    "#3311.ExplAttrInfos(#90,OPT)\0"
    "#3312.ExplAttrInfos(#90,OPT)\0"
    "#3304.Attributes(#3305,#3306,#3307,#3308,#3309,#3310,#3311,#3312)\0"
    "#3313.Supertypes(#2733)\0"
    "#3313.Composition(#974,#1525,#976,#891,#975,#2733,#98,#3313)\0"
    "#3314.ExplAttrInfos(#626,OPT)\0"
    "#3313.Attributes(#3314)\0"
    "#3315.Supertypes(#2741)\0"
    "#3315.Composition(#1528,#1278,#891,#2741,#98,#3315,#1094,#1109)\0"
    "#3316.ExplAttrInfos(#626,REQ)\0"
    "#3315.Attributes(#3316)\0"
    "#3317.Supertypes(#2733)\0"
    "#3317.Composition(#974,#1525,#976,#891,#975,#2733,#98,#3317)\0"
    "#3318.ExplAttrInfos(#628,REQ)\0"
    "#3317.Attributes(#3318)\0"
    "#3319.Supertypes(#2741)\0"
    "#3319.Composition(#1528,#1278,#891,#2741,#98,#3319,#1094,#1109)\0"
    "#3320.ExplAttrInfos(#628,REQ)\0"
    "#3319.Attributes(#3320)\0"
    "#3321.Supertypes(#2741)\0"
    "#3321.Composition(#1528,#1278,#891,#2741,#98,#3321,#1094,#1109)\0"
    "#3322.ExplAttrInfos(#630,REQ)\0"
    "#3323.ExplAttrInfos(#90,OPT)\0"
    "#3324.ExplAttrInfos(#11,OPT)\0"
    "#3321.Attributes(#3322,#3323,#3324,#3325)\0"
    "#1.Entities(#3068,#3070,#994,#3072,#1190,#3071,#3076,#3078,#3081,#3083,#1618,#3085,#3087,#3089,#3091,#3097,#3099,#3101,#2839,#3103,#2848,#2038,#3121,#3124,#3126,#3129,#3130,#1201,#3133,#2841,#3134,#3137,#3107,#3144,#3139,#3152,#3156,#3163,#3165,#3172,#3145,#3174,#2846,#3178,#3182,#3183,#3185,#3131,#3115,#3179,#3186,#3187,#3190,#3191,#3193,#950,#3194,#3195,#3197,#3199,#758,#872,#3201,#3203,#3205,#3212,#3215,#3221,#1214,#1219,#3225,#1222,#1225,#1227,#1827,#3233,#3239,#3206,#3241,#3243,#1537,#3245,#3247,#3249,#1048,#1057,#1051,#3259,#3261,#3263,#3269,#3288,#3290,#3293,#3304,#3313,#3315,#3317,#3319,#3321)\0"
    "#3326.Supertypes(#733)\0"
    "#3326.Composition(#733,#734,#3326)\0"
    "#3327.ExplAttrInfos(#94,REQ)\0"
    "#3328.ExplAttrInfos(#747,REQ)\0"
    "#3329.ExplAttrInfos(#632,REQ)\0"
    "#3326.Attributes(#3327,#3328,#3329)\0"
    "#3330.Supertypes(#3326)\0"
    "#3330.Composition(#733,#734,#3326,#3330)\0"
    "#3331.ExplAttrInfos(#2480,REQ)\0"
    "#3332.ExplAttrInfos(#15,REQ)\0"
    "#3330.Attributes(#3331,#3332)\0"
    "#3333.Supertypes(#924)\0"
    "#3333.Composition(#924,#3333)\0"
    "#3335.Supertypes(#807)\0"
    "#3335.Composition(#807,#3335)\0"
    "#3336.ExplAttrInfos(#813,REQ)\0"
    "#3337.ExplAttrInfos(#813,OPT)\0"
    "#3335.Attributes(#3336,#3337)\0"
    "#3334.ExplAttrInfos(#3335,OPT)\0"
    "#3339.Supertypes(#807)\0"
    "#3339.Composition(#807,#3339)\0"
    "#3340.ExplAttrInfos(#929,OPT)\0"
    "#3341.ExplAttrInfos(#182,OPT)\0"
    "#3342.ExplAttrInfos(#183,OPT)\0"
    "#3343.ExplAttrInfos(#929,OPT)\0"
    "#3344.ExplAttrInfos(#929,OPT)\0"
    "#3345.ExplAttrInfos(#185,OPT)\0"
    "#3346.ExplAttrInfos(#929,OPT)\0"
    "#3339.Attributes(#3340,#3341,#3342,#3343,#3344,#3345,#3346)\0"
    "#3338.ExplAttrInfos(#3339,OPT)\0"
    "#3347.ExplAttrInfos(#1250,REQ)\0"
    "#3348.ExplAttrInfos(#13,OPT)\0"
    "#3333.Attributes(#3334,#3338,#3347,#3348)\0"
    "#3349.Supertypes(#1248)\0"
    "#3349.Composition(#810,#1248,#807,#3349)\0"
    "#3350.ExplAttrInfos(#3351,REQ)\0"
    "#3352.ExplAttrInfos(#40,OPT)\0"
    "#3353.ExplAttrInfos(#41,OPT)\0"
    "#3354.ExplAttrInfos(#42,OPT)\0"
    "#3355.ExplAttrInfos(#929,REQ)\0"
    "#3349.Attributes(#3350,#3352,#3353,#3354,#3355)\0"
    "#3356.Supertypes(#2165)\0"
    "#3356.Composition(#807,#2165,#3356)\0"
    "#3357.ExplAttrInfos(#14,REQ)\0"
    "#3358.ExplAttrInfos(#3359,OPT)\0"
    "#3356.Attributes(#3357,#3358)\0"
    "#3360.Supertypes(#2165)\0"
    "#3360.Composition(#807,#2165,#3360)\0"
    "#3362.Supertypes(#807)\0"
    "#3362.Composition(#807,#3362)\0"
    "#3363.ExplAttrInfos(#3364,REQ)\0"
    "#3362.Attributes(#3363)\0"
    "#3361.ExplAttrInfos(#3365,REQ)\0"
    "#3366.ExplAttrInfos(#1173,REQ)\0"
    "#3360.Attributes(#3361,#3366)\0"
    "#3367.Supertypes(#1618)\0"
    "#3367.Composition(#858,#733,#734,#1618,#3367)\0"
    "#3368.ExplAttrInfos(#56,REQ)\0"
    "#3369.ExplAttrInfos(#56,OPT)\0"
    "#3370.ExplAttrInfos(#56,OPT)\0"
    "#3371.ExplAttrInfos(#165,OPT)\0"
    "#3367.Attributes(#3368,#3369,#3370,#3371)\0"
    "#3372.Supertypes(#1149)\0"
    "#3372.Composition(#986,#1149,#3372)\0"
    "#3373.Supertypes(#1800)\0"
    "#3373.Composition(#1800,#733,#734,#758,#3373)\0"
    "#3374.ExplAttrInfos(#90,REQ)\0"
    "#3375.ExplAttrInfos(#90,REQ)\0"
    "#3373.Attributes(#3374,#3375)\0"
    "#3376.Supertypes(#1452)\0"
    "#3376.Composition(#1452,#974,#976,#891,#975,#98,#3376)\0"
    "#3377.ExplAttrInfos(#636,OPT)\0"
    "#3378.Supertypes(#1456)\0"
    "#3378.Composition(#1456,#1278,#891,#98,#3378,#1094,#1109)\0"
    "#3379.ExplAttrInfos(#636,REQ)\0"
    "#3380.Supertypes(#1303)\0"
    "#3380.Composition(#1273,#1290,#974,#1303,#976,#891,#975,#98,#3380)\0"
    "#3381.ExplAttrInfos(#638,OPT)\0"
    "#3382.Supertypes(#1306)\0"
    "#3382.Composition(#1277,#1297,#1278,#1306,#891,#98,#3382,#1094,#1109)\0"
    "#3383.ExplAttrInfos(#638,REQ)\0"
    "#3382.Attributes(#3383)\0"
    "#3384.Supertypes(#974)\0"
    "#3384.Composition(#974,#976,#891,#975,#98,#3384)\0"
    "#3385.ExplAttrInfos(#1256,OPT)\0"
    "#3384.Attributes(#3385)\0"
    "#3386.Supertypes(#1278)\0"
    "#3386.Composition(#1278,#891,#98,#3386,#1094,#1109)\0"
    "#3387.ExplAttrInfos(#1256,REQ)\0"
    "#3386.Attributes(#3387)\0"
    "#3388.Supertypes(#1382)\0"
    "#3388.Composition(#1382,#1143,#3388)\0"
    "#3389.ExplAttrInfos(#90,REQ)\0"
    "#3390.ExplAttrInfos(#90,REQ)\0"
    "#3391.ExplAttrInfos(#90,REQ)\0"
    "#3392.ExplAttrInfos(#56,REQ)\0"
    "#3388.Attributes(#3389,#3390,#3391,#3392)\0"
    "#3393.Supertypes(#764)\0"
    "#3393.Composition(#733,#734,#764,#765,#3393)\0"
    "#3394.ExplAttrInfos(#3396,OPT)\0"
    "#3397.ExplAttrInfos(#13,OPT)\0"
    "#3398.ExplAttrInfos(#3400,REQ)\0"
    "#3401.ExplAttrInfos(#3402,OPT)\0"
    "#3403.DerivAttrInfos(#6)\0"
    "#3393.Attributes(#3394,#3397,#3398,#3401,#3403)\0"
    "#3404.Supertypes(#3393)\0"
    "#3404.Composition(#733,#734,#764,#765,#3393,#3404)\0"
    "#3405.ExplAttrInfos(#3406,REQ)\0"
    "#3404.Attributes(#3405)\0"
    "#3407.Supertypes(#857)\0"
    "#3407.Composition(#857,#858,#733,#734,#3407)\0"
    "#3408.ExplAttrInfos(#858,REQ)\0"
    "#3411.ExplAttrInfos(#3412,REQ)\0"
    "#3413.ExplAttrInfos(#13,REQ)\0"
    "#3414.ExplAttrInfos(#646,REQ)\0"
    "#3407.Attributes(#3408,#3409,#3411,#3413,#3414)\0"
    "#3415.Supertypes(#1303)\0"
    "#3415.Composition(#1273,#1290,#974,#1303,#976,#891,#975,#98,#3415)\0"
    "#3416.ExplAttrInfos(#648,OPT)\0"
    "#3415.Attributes(#3416)\0"
    "#3417.Supertypes(#1306)\0"
    "#3417.Composition(#1277,#1297,#1278,#1306,#891,#98,#3417,#1094,#1109)\0"
    "#3418.ExplAttrInfos(#648,REQ)\0"
    "#3417.Attributes(#3418)\0"
    "#3419.Supertypes(#1382)\0"
    "#3419.Composition(#1382,#1143,#3419)\0"
    "#3420.ExplAttrInfos(#90,REQ)\0"
    "#3421.ExplAttrInfos(#90,REQ)\0"
    "#3422.ExplAttrInfos(#90,REQ)\0"
    "#3423.ExplAttrInfos(#90,REQ)\0"
    "#3424.ExplAttrInfos(#82,OPT)\0"
    "#3425.ExplAttrInfos(#82,OPT)\0"
    "#3426.ExplAttrInfos(#89,OPT)\0"
    "#3419.Attributes(#3420,#3421,#3422,#3423,#3424,#3425,#3426)\0"
    "#3427.Supertypes(#1272)\0"
    "#3427.Composition(#1272,#1273,#974,#976,#891,#975,#98,#3427)\0"
    "#3428.ExplAttrInfos(#652,OPT)\0"
    "#3427.Attributes(#3428)\0"
    "#3429.Supertypes(#1276)\0"
    "#3429.Composition(#1276,#1277,#1278,#891,#98,#1094,#1109,#3429)\0"
    "#3430.ExplAttrInfos(#652,REQ)\0"
    "#3429.Attributes(#3430)\0"
    "#3431.Supertypes(#1303)\0"
    "#3431.Composition(#1273,#1290,#974,#1303,#976,#891,#975,#98,#3431)\0"
    "#3432.ExplAttrInfos(#654,OPT)\0"
    "#3431.Attributes(#3432)\0"
    "#3433.Supertypes(#1306)\0"
    "#3433.Composition(#1277,#1297,#1278,#1306,#891,#98,#1094,#1109,#3433)\0"
    "#3434.ExplAttrInfos(#654,REQ)\0"
    "#3433.Attributes(#3434)\0"
    "#3435.Supertypes(#1293)\0"
    "#3435.Composition(#1273,#1290,#974,#1293,#976,#891,#975,#98,#3435)\0"
    "#3436.ExplAttrInfos(#656,OPT)\0"
    "#3435.Attributes(#3436)\0"
    "#3437.Supertypes(#1296)\0"
    "#3437.Composition(#1277,#1297,#1278,#1296,#891,#98,#1094,#1109,#3437)\0"
    "#3438.ExplAttrInfos(#656,REQ)\0"
    "#3437.Attributes(#3438)\0"
    "#3439.Supertypes(#1177)\0"
    "#3439.Composition(#1177,#734,#883,#3439)\0"
    "#3440.ExplAttrInfos(#885,REQ)\0"
    "#3439.Attributes(#3440)\0"
    "#3441.Supertypes(#1525)\0"
    "#3441.Composition(#974,#1525,#976,#891,#975,#98,#3441)\0"
    "#3442.ExplAttrInfos(#658,OPT)\0"
    "#3441.Attributes(#3442)\0"
    "#3443.Supertypes(#1528)\0"
    "#3443.Composition(#1528,#1278,#891,#98,#1094,#1109,#3443)\0"
    "#3444.ExplAttrInfos(#658,OPT)\0"
    "#3445.Supertypes(#1525)\0"
    "#3445.Composition(#974,#1525,#976,#891,#975,#98,#3445)\0"
    "#3446.ExplAttrInfos(#660,OPT)\0"
    "#3447.Supertypes(#1528)\0"
    "#3447.Composition(#1528,#1278,#891,#98,#1094,#1109,#3447)\0"
    "#3448.ExplAttrInfos(#660,REQ)\0"
    "#3449.Supertypes(#857)\0"
    "#3449.Composition(#857,#858,#733,#734,#3449)\0"
    "#3450.ExplAttrInfos(#23,REQ)\0"
    "#3451.ExplAttrInfos(#23,REQ)\0"
    "#3452.ExplAttrInfos(#56,REQ)\0"
    "#3453.ExplAttrInfos(#56,REQ)\0"
    "#3449.Attributes(#3450,#3451,#3452,#3453)\0"
    "#3454.Supertypes(#974)\0"
    "#3454.Composition(#974,#976,#891,#975,#98,#3454)\0"
    "#3455.Supertypes(#2106)\0"
    "#3455.Composition(#974,#1476,#2106,#976,#891,#975,#98,#3455)\0"
    "#3456.Supertypes(#1928)\0"
    "#3456.Composition(#974,#1929,#1928,#976,#891,#975,#98,#3456)\0"
    "#3457.ExplAttrInfos(#662,OPT)\0"
    "#3458.Supertypes(#1452)\0"
    "#3458.Composition(#1452,#974,#976,#891,#975,#98,#3458)\0"
    "#3459.ExplAttrInfos(#664,OPT)\0"
    "#3460.Composition(#1452,#974,#976,#891,#975,#98,#3458,#3460)\0"
    "#3461.Composition(#1452,#974,#976,#891,#975,#98,#3458,#3461)\0"
    "#3462.Supertypes(#1456)\0"
    "#3462.Composition(#1456,#1278,#891,#98,#1094,#1109,#3462)\0"
    "#3463.ExplAttrInfos(#664,REQ)\0"
    "#3464.Supertypes(#1289)\0"
    "#3464.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98,#3464)\0"
    "#3465.ExplAttrInfos(#666,OPT)\0"
    "#3466.Supertypes(#1300)\0"
    "#3466.Composition(#1277,#1297,#1278,#1300,#891,#98,#1094,#1109,#3466)\0"
    "#3467.ExplAttrInfos(#666,REQ)\0"
    "#3468.Supertypes(#2106)\0"
    "#3468.Composition(#974,#1476,#2106,#976,#891,#975,#98,#3468)\0"
    "#3469.Supertypes(#1452)\0"
    "#3469.Composition(#1452,#974,#976,#891,#975,#98,#3469)\0"
    "#3472.ExplAttrInfos(#676,OPT)\0"
    "#3473.ExplAttrInfos(#678,OPT)\0"
    "#3475.Supertypes(#1880)\0"
    "#3475.Composition(#1880,#97,#96,#98,#3475)\0"
    "#3484.ExplAttrInfos(#1147,OPT)\0"
    "#3488.Supertypes(#1880)\0"
    "#3488.Composition(#1880,#97,#96,#98,#3488)\0"
    "#3489.ExplAttrInfos(#668,REQ)\0"
    "#3490.ExplAttrInfos(#670,REQ)\0"
    "#3493.ExplAttrInfos(#1147,OPT)\0"
    "#3494.Composition(#1452,#974,#976,#891,#975,#98,#3469,#3494)\0"
    "#3495.Supertypes(#1109)\0"
    "#3495.Composition(#891,#98,#1094,#1109,#3495)\0"
    "#3496.ExplAttrInfos(#672,REQ)\0"
    "#3497.ExplAttrInfos(#674,REQ)\0"
    "#3500.Supertypes(#1456)\0"
    "#3500.Composition(#1456,#1278,#891,#98,#1094,#1109,#3500)\0"
    "#3501.ExplAttrInfos(#676,REQ)\0"
    "#3502.ExplAttrInfos(#678,REQ)\0"
    "#3505.Supertypes(#1264)\0"
    "#3505.Composition(#1264,#976,#891,#98,#3505)\0"
    "#3507.Supertypes(#1691)\0"
    "#3507.Composition(#1691,#3507)\0"
    "#3508.ExplAttrInfos(#2681,OPT)\0"
    "#3514.ExplAttrInfos(#680,OPT)\0"
    "#3515.Supertypes(#1264)\0"
    "#3515.Composition(#1264,#976,#891,#98,#3515)\0"
    "#3524.Composition(#1264,#976,#891,#98,#3515,#3524)\0"
    "#3525.ExplAttrInfos(#682,OPT)\0"
    "#3526.Composition(#1264,#976,#891,#98,#3515,#3526)\0"
    "#3527.ExplAttrInfos(#684,OPT)\0"
    "#3528.Supertypes(#1382)\0"
    "#3528.Composition(#1382,#1143,#3528)\0"
    "#3535.Supertypes(#1537)\0"
    "#3535.Composition(#1196,#976,#891,#98,#1537,#3535)\0"
    "#1.Entities(#764,#765,#3326,#3330,#3333,#3349,#3335,#3339,#2165,#3356,#3360,#3362,#2170,#3367,#2693,#1067,#2703,#883,#3372,#3373,#3376,#3378,#3380,#3382,#3384,#3386,#3388,#3393,#3404,#3407,#3415,#3417,#1094,#1093,#1109,#1160,#3419,#1735,#3427,#3429,#3431,#3433,#3435,#3437,#933,#885,#3439,#1086,#3441,#3443,#3445,#3447,#3449,#3454,#961,#3455,#3456,#3458,#3460,#3461,#3462,#3464,#3466,#3468,#3469,#3475,#3488,#3494,#3495,#3500,#3505,#3515,#3524,#3526,#3507,#3528,#3535)"};

constexpr std::uint32_t declarations[] = {
    0x06000000, // Schema(IFC4X3_RC3)
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
    0x01000736, // DefinedType(IFCACTIONREQUESTTYPEENUM,#201)
    0x000015F3, // EnumerationType(DEAD_LOAD_G,COMPLETION_G1,LIVE_LOAD_Q,SNOW_S,WIND_W,PRESTRESSING_P,SETTLEMENT_U,TEMPERATURE_T,EARTHQUAKE_E,FIRE,IMPULSE,IMPACT,TRANSPORT,ERECTION,PROPPING,SYSTEM_IMPERFECTION,SHRINKAGE,CREEP,LACK_OF_FIT,BUOYANCY,ICE,CURRENT,WAVE,RAIN,BRAKES,USERDEFINED,NOTDEFINED)
    0x01000761, // DefinedType(IFCACTIONSOURCETYPEENUM,#203)
    0x00001736, // EnumerationType(PERMANENT_G,VARIABLE_Q,EXTRAORDINARY_A,USERDEFINED,NOTDEFINED)
    0x0100078B, // DefinedType(IFCACTIONTYPEENUM,#205)
    0x000017A9, // EnumerationType(ELECTRICACTUATOR,HANDOPERATEDACTUATOR,HYDRAULICACTUATOR,PNEUMATICACTUATOR,THERMOSTATICACTUATOR,USERDEFINED,NOTDEFINED)
    0x010007AF, // DefinedType(IFCACTUATORTYPEENUM,#207)
    0x000018FC, // EnumerationType(CONSTANTFLOW,VARIABLEFLOWPRESSUREDEPENDANT,VARIABLEFLOWPRESSUREINDEPENDANT,USERDEFINED,NOTDEFINED)
    0x010007D5, // DefinedType(IFCAIRTERMINALBOXTYPEENUM,#209)
    0x01000801, // EnumerationType(DIFFUSER,GRILLE,LOUVRE,REGISTER,USERDEFINED,NOTDEFINED)
    0x01000849, // DefinedType(IFCAIRTERMINALTYPEENUM,#211)
    0x00001A2E, // EnumerationType(FIXEDPLATECOUNTERFLOWEXCHANGER,FIXEDPLATECROSSFLOWEXCHANGER,FIXEDPLATEPARALLELFLOWEXCHANGER,ROTARYWHEEL,RUNAROUNDCOILLOOP,HEATPIPE,TWINTOWERENTHALPYRECOVERYLOOPS,THERMOSIPHONSEALEDTUBEHEATEXCHANGERS,THERMOSIPHONCOILTYPEHEATEXCHANGERS,USERDEFINED,NOTDEFINED)
    0x01000872, // DefinedType(IFCAIRTOAIRHEATRECOVERYTYPEENUM,#213)
    0x05000013, // EnumerationType(BELL,BREAKGLASSBUTTON,LIGHT,MANUALPULLBOX,SIREN,WHISTLE,RAILWAYCROCODILE,RAILWAYDETONATOR,USERDEFINED,NOTDEFINED)
    0x010008A4, // DefinedType(IFCALARMTYPEENUM,#215)
    0x06000013, // EnumerationType(CONSTANTCANT,LINEARTRANSITION,HELMERTCURVE,BLOSSCURVE,COSINECURVE,SINECURVE,VIENNESEBEND)
    0x0600007D, // DefinedType(IFCALIGNMENTCANTSEGMENTTYPEENUM,#217)
    0x060000AF, // EnumerationType(LINE,CIRCULARARC,CLOTHOID,CUBIC,HELMERTCURVE,BLOSSCURVE,CUBICSPIRAL,COSINECURVE,SINECURVE,VIENNESEBEND)
    0x06000127, // DefinedType(IFCALIGNMENTHORIZONTALSEGMENTTYPEENUM,#219)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x0600015F, // DefinedType(IFCALIGNMENTTYPEENUM,#221)
    0x06000186, // EnumerationType(CONSTANTGRADIENT,CIRCULARARC,PARABOLICARC,CLOTHOID)
    0x060001CA, // DefinedType(IFCALIGNMENTVERTICALSEGMENTTYPEENUM,#223)
    0x00001BF5, // EnumerationType(IN_PLANE_LOADING_2D,OUT_PLANE_LOADING_2D,LOADING_3D,USERDEFINED,NOTDEFINED)
    0x06000200, // DefinedType(IFCANALYSISMODELTYPEENUM,#225)
    0x00001C7C, // EnumerationType(FIRST_ORDER_THEORY,SECOND_ORDER_THEORY,THIRD_ORDER_THEORY,FULL_NONLINEAR_THEORY,USERDEFINED,NOTDEFINED)
    0x0600022B, // DefinedType(IFCANALYSISTHEORYTYPEENUM,#227)
    0x05000095, // EnumerationType(ASSUMEDPOINT,ASBUILTAREA,ASBUILTLINE,NON_PHYSICAL_SIGNAL,ASSUMEDLINE,WIDTHEVENT,ASSUMEDAREA,SUPERELEVATIONEVENT,ASBUILTPOINT,USERDEFINED,NOTDEFINED)
    0x06000257, // DefinedType(IFCANNOTATIONTYPEENUM,#229)
    0x00001D20, // EnumerationType(ADD,DIVIDE,MULTIPLY,SUBTRACT)
    0x0600027F, // DefinedType(IFCARITHMETICOPERATORENUM,#231)
    0x00001D7A, // EnumerationType(SITE,FACTORY,NOTDEFINED)
    0x060002AB, // DefinedType(IFCASSEMBLYPLACEENUM,#233)
    0x050001B5, // EnumerationType(AMPLIFIER,CAMERA,DISPLAY,MICROPHONE,PLAYER,PROJECTOR,RECEIVER,SPEAKER,SWITCHER,TELEPHONE,TUNER,RAILWAY_COMMUNICATION_TERMINAL,USERDEFINED,NOTDEFINED)
    0x060002D2, // DefinedType(IFCAUDIOVISUALAPPLIANCETYPEENUM,#235)
    0x00001DCA, // EnumerationType(POLYLINE_FORM,CIRCULAR_ARC,ELLIPTIC_ARC,PARABOLIC_ARC,HYPERBOLIC_ARC,UNSPECIFIED)
    0x06000304, // DefinedType(IFCBSPLINECURVEFORM,#237)
    0x01000A50, // EnumerationType(PLANE_SURF,CYLINDRICAL_SURF,CONICAL_SURF,SPHERICAL_SURF,TOROIDAL_SURF,SURF_OF_REVOLUTION,RULED_SURF,GENERALISED_CONE,QUADRIC_SURF,SURF_OF_LINEAR_EXTRUSION,UNSPECIFIED)
    0x0600032A, // DefinedType(IFCBSPLINESURFACEFORM,#239)
    0x03000160, // EnumerationType(BEAM,JOIST,HOLLOWCORE,LINTEL,SPANDREL,T_BEAM,GIRDER_SEGMENT,DIAPHRAGM,PIERCAP,HATSTONE,CORNICE,EDGEBEAM,USERDEFINED,NOTDEFINED)
    0x06000352, // DefinedType(IFCBEAMTYPEENUM,#241)
    0x03000212, // EnumerationType(FIXED_MOVEMENT,GUIDED_LONGITUDINAL,GUIDED_TRANSVERSAL,FREE_MOVEMENT,NOTDEFINED)
    0x06000374, // DefinedType(IFCBEARINGTYPEDISPLACEMENTENUM,#243)
    0x030002A3, // EnumerationType(CYLINDRICAL,SPHERICAL,ELASTOMERIC,POT,GUIDE,ROCKER,ROLLER,DISK,USERDEFINED,NOTDEFINED)
    0x04000E86, // DefinedType(IFCBEARINGTYPEENUM,#245)
    0x01000BA7, // EnumerationType(GREATERTHAN,GREATERTHANOREQUALTO,LESSTHAN,LESSTHANOREQUALTO,EQUALTO,NOTEQUALTO,INCLUDES,NOTINCLUDES,INCLUDEDIN,NOTINCLUDEDIN)
    0x04000F39, // DefinedType(IFCBENCHMARKENUM,#247)
    0x00001F38, // EnumerationType(WATER,STEAM,USERDEFINED,NOTDEFINED)
    0x04000F90, // DefinedType(IFCBOILERTYPEENUM,#249)
    0x00001F90, // EnumerationType(UNION,INTERSECTION,DIFFERENCE)
    0x04000FE3, // DefinedType(IFCBOOLEANOPERATOR,#251)
    0x0300039B, // EnumerationType(ABUTMENT,DECK,DECK_SEGMENT,FOUNDATION,PIER,PIER_SEGMENT,PYLON,SUBSTRUCTURE,SUPERSTRUCTURE,SURFACESTRUCTURE,USERDEFINED,NOTDEFINED)
    0x04001008, // DefinedType(IFCBRIDGEPARTTYPEENUM,#253)
    0x03000456, // EnumerationType(ARCHED,CABLE_STAYED,CANTILEVER,CULVERT,FRAMEWORK,GIRDER,SUSPENSION,TRUSS,USERDEFINED,NOTDEFINED)
    0x04001030, // DefinedType(IFCBRIDGETYPEENUM,#255)
    0x0500040B, // EnumerationType(INSULATION,PRECASTPANEL,APRON,ARMOURUNIT,SAFETYCAGE,USERDEFINED,NOTDEFINED)
    0x040010B0, // DefinedType(IFCBUILDINGELEMENTPARTTYPEENUM,#257)
    0x01000D12, // EnumerationType(COMPLEX,ELEMENT,PARTIAL,PROVISIONFORVOID,PROVISIONFORSPACE,USERDEFINED,NOTDEFINED)
    0x04001144, // DefinedType(IFCBUILDINGELEMENTPROXYTYPEENUM,#259)
    0x050004CA, // EnumerationType(FENESTRATION,FOUNDATION,LOADBEARING,OUTERSHELL,SHADING,TRANSPORT,REINFORCING,PRESTRESSING,EROSIONPREVENTION,USERDEFINED,NOTDEFINED)
    0x04001176, // DefinedType(IFCBUILDINGSYSTEMTYPEENUM,#261)
    0x0500058A, // EnumerationType(REINFORCING,MOORING,OUTERSHELL,TRACKCIRCUIT,EROSIONPREVENTION,FOUNDATION,LOADBEARING,SHADING,FENESTRATION,MOORINGSYSTEM,TRANSPORT,PRESTRESSING,USERDEFINED,NOTDEFINED)
    0x04001264, // DefinedType(IFCBUILTSYSTEMTYPEENUM,#263)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x0400128D, // DefinedType(IFCBURNERTYPEENUM,#265)
    0x0000203E, // EnumerationType(BEND,CROSS,REDUCER,TEE,USERDEFINED,NOTDEFINED)
    0x0400130E, // DefinedType(IFCCABLECARRIERFITTINGTYPEENUM,#267)
    0x050006BF, // EnumerationType(CABLELADDERSEGMENT,CABLETRAYSEGMENT,CABLETRUNKINGSEGMENT,CONDUITSEGMENT,CABLEBRACKET,CATENARYWIRE,DROPPER,USERDEFINED,NOTDEFINED)
    0x040013D1, // DefinedType(IFCCABLECARRIERSEGMENTTYPEENUM,#269)
    0x05000782, // EnumerationType(CONNECTOR,ENTRY,EXIT,JUNCTION,TRANSITION,FANOUT,USERDEFINED,NOTDEFINED)
    0x0400145A, // DefinedType(IFCCABLEFITTINGTYPEENUM,#271)
    0x05000804, // EnumerationType(BUSBARSEGMENT,CABLESEGMENT,CONDUCTORSEGMENT,CORESEGMENT,CONTACTWIRESEGMENT,FIBERSEGMENT,FIBERTUBE,OPTICALCABLESEGMENT,STITCHWIRE,WIREPAIRSEGMENT,USERDEFINED,NOTDEFINED)
    0x0400153D, // DefinedType(IFCCABLESEGMENTTYPEENUM,#273)
    0x0300071C, // EnumerationType(WELL,CAISSON,USERDEFINED,NOTDEFINED)
    0x0400159C, // DefinedType(IFCCAISSONFOUNDATIONTYPEENUM,#275)
    0x00002234, // EnumerationType(AIRCOOLED,WATERCOOLED,HEATRECOVERY,USERDEFINED,NOTDEFINED)
    0x04001616, // DefinedType(IFCCHILLERTYPEENUM,#277)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x0400163B, // DefinedType(IFCCHIMNEYTYPEENUM,#279)
    0x01001011, // EnumerationType(DXCOOLINGCOIL,ELECTRICHEATINGCOIL,GASHEATINGCOIL,HYDRONICCOIL,STEAMHEATINGCOIL,WATERCOOLINGCOIL,WATERHEATINGCOIL,USERDEFINED,NOTDEFINED)
    0x04001660, // DefinedType(IFCCOILTYPEENUM,#281)
    0x030007EC, // EnumerationType(COLUMN,PILASTER,PIERSTEM,PIERSTEM_SEGMENT,STANDCOLUMN,USERDEFINED,NOTDEFINED)
    0x040016E0, // DefinedType(IFCCOLUMNTYPEENUM,#283)
    0x050009A6, // EnumerationType(ANTENNA,COMPUTER,FAX,GATEWAY,MODEM,NETWORKAPPLIANCE,NETWORKBRIDGE,NETWORKHUB,PRINTER,REPEATER,ROUTER,SCANNER,AUTOMATON,INTELLIGENT_PERIPHERAL,IP_NETWORK_EQUIPMENT,OPTICAL_NETWORK_UNIT,TELECOMMAND,TELEPHONYEXCHANGE,TRANSITIONCOMPONENT,TRANSPONDER,TRANSPORTEQUIPMENT,USERDEFINED,NOTDEFINED)
    0x0400186C, // DefinedType(IFCCOMMUNICATIONSAPPLIANCETYPEENUM,#285)
    0x010011F2, // EnumerationType(P_COMPLEX,Q_COMPLEX)
    0x040018A1, // DefinedType(IFCCOMPLEXPROPERTYTEMPLATETYPEENUM,#287)
    0x000023A5, // EnumerationType(DYNAMIC,RECIPROCATING,ROTARY,SCROLL,TROCHOIDAL,SINGLESTAGE,BOOSTER,OPENTYPE,HERMETIC,SEMIHERMETIC,WELDEDSHELLHERMETIC,ROLLINGPISTON,ROTARYVANE,SINGLESCREW,TWINSCREW,USERDEFINED,NOTDEFINED)
    0x040019A3, // DefinedType(IFCCOMPRESSORTYPEENUM,#289)
    0x01001274, // EnumerationType(AIRCOOLED,EVAPORATIVECOOLED,WATERCOOLED,WATERCOOLEDBRAZEDPLATE,WATERCOOLEDSHELLCOIL,WATERCOOLEDSHELLTUBE,WATERCOOLEDTUBEINTUBE,USERDEFINED,NOTDEFINED)
    0x040019CB, // DefinedType(IFCCONDENSERTYPEENUM,#291)
    0x0000255C, // EnumerationType(ATPATH,ATSTART,ATEND,NOTDEFINED)
    0x04001A23, // DefinedType(IFCCONNECTIONTYPEENUM,#293)
    0x000025B5, // EnumerationType(HARD,SOFT,ADVISORY,USERDEFINED,NOTDEFINED)
    0x04001A86, // DefinedType(IFCCONSTRAINTENUM,#295)
    0x0100138E, // EnumerationType(DEMOLISHING,EARTHMOVING,ERECTING,HEATING,LIGHTING,PAVING,PUMPING,TRANSPORTING,USERDEFINED,NOTDEFINED)
    0x04001AAA, // DefinedType(IFCCONSTRUCTIONEQUIPMENTRESOURCETYPEENUM,#297)
    0x0100143F, // EnumerationType(AGGREGATES,CONCRETE,DRYWALL,FUEL,GYPSUM,MASONRY,METAL,PLASTIC,WOOD,NOTDEFINED,USERDEFINED)
    0x04001B50, // DefinedType(IFCCONSTRUCTIONMATERIALRESOURCETYPEENUM,#299)
    0x010014E4, // EnumerationType(ASSEMBLY,FORMWORK,USERDEFINED,NOTDEFINED)
    0x04001B8A, // DefinedType(IFCCONSTRUCTIONPRODUCTRESOURCETYPEENUM,#301)
    0x01001557, // EnumerationType(FLOATING,PROGRAMMABLE,PROPORTIONAL,MULTIPOSITION,TWOPOSITION,USERDEFINED,NOTDEFINED)
    0x04001C28, // DefinedType(IFCCONTROLLERTYPEENUM,#303)
    0x05000CB2, // EnumerationType(CHUTECONVEYOR,BELTCONVEYOR,SCREWCONVEYOR,BUCKETCONVEYOR,USERDEFINED,NOTDEFINED)
    0x04001CB0, // DefinedType(IFCCONVEYORSEGMENTTYPEENUM,#305)
    0x000026CB, // EnumerationType(ACTIVE,PASSIVE,USERDEFINED,NOTDEFINED)
    0x04001CDD, // DefinedType(IFCCOOLEDBEAMTYPEENUM,#307)
    0x0000272A, // EnumerationType(NATURALDRAFT,MECHANICALINDUCEDDRAFT,MECHANICALFORCEDDRAFT,USERDEFINED,NOTDEFINED)
    0x04001D67, // DefinedType(IFCCOOLINGTOWERTYPEENUM,#309)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x04001D91, // DefinedType(IFCCOSTITEMTYPEENUM,#311)
    0x000027B6, // EnumerationType(BUDGET,COSTPLAN,ESTIMATE,TENDER,PRICEDBILLOFQUANTITIES,UNPRICEDBILLOFQUANTITIES,SCHEDULEOFRATES,USERDEFINED,NOTDEFINED)
    0x04001E3F, // DefinedType(IFCCOSTSCHEDULETYPEENUM,#313)
    0x05000DE1, // EnumerationType(ARMOUR,FILTER,BALLASTBED,CORE,PAVEMENT,PROTECTION,USERDEFINED,NOTDEFINED)
    0x04001EC3, // DefinedType(IFCCOURSETYPEENUM,#315)
    0x03000AEB, // EnumerationType(CEILING,FLOORING,CLADDING,ROOFING,MOLDING,SKIRTINGBOARD,INSULATION,MEMBRANE,SLEEVING,WRAPPING,COPING,USERDEFINED,NOTDEFINED)
    0x04001F7C, // DefinedType(IFCCOVERINGTYPEENUM,#317)
    0x01001732, // EnumerationType(OFFICE,SITE,USERDEFINED,NOTDEFINED)
    0x04001FA2, // DefinedType(IFCCREWRESOURCETYPEENUM,#319)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x04001FCC, // DefinedType(IFCCURTAINWALLTYPEENUM,#321)
    0x010017B9, // EnumerationType(LINEAR,LOG_LINEAR,LOG_LOG,NOTDEFINED)
    0x04001FF5, // DefinedType(IFCCURVEINTERPOLATIONENUM,#323)
    0x0100181B, // EnumerationType(BACKDRAFTDAMPER,BALANCINGDAMPER,BLASTDAMPER,CONTROLDAMPER,FIREDAMPER,FIRESMOKEDAMPER,FUMEHOODEXHAUST,GRAVITYDAMPER,GRAVITYRELIEFDAMPER,RELIEFDAMPER,SMOKEDAMPER,USERDEFINED,NOTDEFINED)
    0x04002021, // DefinedType(IFCDAMPERTYPEENUM,#325)
    0x00002B92, // EnumerationType(MEASURED,PREDICTED,SIMULATED,USERDEFINED,NOTDEFINED)
    0x04002045, // DefinedType(IFCDATAORIGINENUM,#327)
    0x0100192B, // EnumerationType(ANGULARVELOCITYUNIT,AREADENSITYUNIT,COMPOUNDPLANEANGLEUNIT,DYNAMICVISCOSITYUNIT,HEATFLUXDENSITYUNIT,INTEGERCOUNTRATEUNIT,ISOTHERMALMOISTURECAPACITYUNIT,KINEMATICVISCOSITYUNIT,LINEARVELOCITYUNIT,MASSDENSITYUNIT,MASSFLOWRATEUNIT,MOISTUREDIFFUSIVITYUNIT,MOLECULARWEIGHTUNIT,SPECIFICHEATCAPACITYUNIT,THERMALADMITTANCEUNIT,THERMALCONDUCTANCEUNIT,THERMALRESISTANCEUNIT,THERMALTRANSMITTANCEUNIT,VAPORPERMEABILITYUNIT,VOLUMETRICFLOWRATEUNIT,ROTATIONALFREQUENCYUNIT,TORQUEUNIT,MOMENTOFINERTIAUNIT,LINEARMOMENTUNIT,LINEARFORCEUNIT,PLANARFORCEUNIT,MODULUSOFELASTICITYUNIT,SHEARMODULUSUNIT,LINEARSTIFFNESSUNIT,ROTATIONALSTIFFNESSUNIT,MODULUSOFSUBGRADEREACTIONUNIT,ACCELERATIONUNIT,CURVATUREUNIT,HEATINGVALUEUNIT,IONCONCENTRATIONUNIT,LUMINOUSINTENSITYDISTRIBUTIONUNIT,MASSPERLENGTHUNIT,MODULUSOFLINEARSUBGRADEREACTIONUNIT,MODULUSOFROTATIONALSUBGRADEREACTIONUNIT,PHUNIT,ROTATIONALMASSUNIT,SECTIONAREAINTEGRALUNIT,SECTIONMODULUSUNIT,SOUNDPOWERLEVELUNIT,SOUNDPOWERUNIT,SOUNDPRESSURELEVELUNIT,SOUNDPRESSUREUNIT,TEMPERATUREGRADIENTUNIT,TEMPERATURERATEOFCHANGEUNIT,THERMALEXPANSIONCOEFFICIENTUNIT,WARPINGCONSTANTUNIT,WARPINGMOMENTUNIT,USERDEFINED)
    0x040024E2, // DefinedType(IFCDERIVEDUNITENUM,#329)
    0x0000308B, // EnumerationType(POSITIVE,NEGATIVE)
    0x0400252A, // DefinedType(IFCDIRECTIONSENSEENUM,#331)
    0x060003A5, // EnumerationType(ANCHORPLATE,BRACKET,SHOE,EXPANSION_JOINT_DEVICE,CABLEARRANGER,INSULATOR,LOCK,TENSIONINGEQUIPMENT,RAILPAD,SLIDINGCHAIR,RAIL_LUBRICATION,PANEL_STRENGTHENING,RAILBRACE,ELASTIC_CUSHION,SOUNDABSORPTION,POINTMACHINEMOUNTINGDEVICE,POINT_MACHINE_LOCKING_DEVICE,RAIL_MECHANICAL_EQUIPMENT,BIRDPROTECTION,USERDEFINED,NOTDEFINED)
    0x040026B0, // DefinedType(IFCDISCRETEACCESSORYTYPEENUM,#333)
    0x050010DE, // EnumerationType(SWITCHBOARD,CONSUMERUNIT,MOTORCONTROLCENTRE,DISTRIBUTIONFRAME,DISTRIBUTIONBOARD,USERDEFINED,NOTDEFINED)
    0x04002768, // DefinedType(IFCDISTRIBUTIONBOARDTYPEENUM,#335)
    0x000030D6, // EnumerationType(FORMEDDUCT,INSPECTIONCHAMBER,INSPECTIONPIT,MANHOLE,METERCHAMBER,SUMP,TRENCH,VALVECHAMBER,USERDEFINED,NOTDEFINED)
    0x04002797, // DefinedType(IFCDISTRIBUTIONCHAMBERELEMENTTYPEENUM,#337)
    0x040027CF, // EnumerationType(CABLE,CABLECARRIER,DUCT,PIPE,WIRELESS,USERDEFINED,NOTDEFINED)
    0x0400281D, // DefinedType(IFCDISTRIBUTIONPORTTYPEENUM,#339)
    0x050011EB, // EnumerationType(AIRCONDITIONING,AUDIOVISUAL,CHEMICAL,CHILLEDWATER,COMMUNICATION,COMPRESSEDAIR,CONDENSERWATER,CONTROL,CONVEYING,DATA,DISPOSAL,DOMESTICCOLDWATER,DOMESTICHOTWATER,DRAINAGE,EARTHING,ELECTRICAL,ELECTROACOUSTIC,EXHAUST,FIREPROTECTION,FUEL,GAS,HAZARDOUS,HEATING,LIGHTING,LIGHTNINGPROTECTION,MUNICIPALSOLIDWASTE,OIL,OPERATIONAL,POWERGENERATION,RAINWATER,REFRIGERATION,SECURITY,SEWAGE,SIGNAL,STORMWATER,TELEPHONE,TV,VACUUM,VENT,VENTILATION,WASTEWATER,WATERSUPPLY,CATENARY_SYSTEM,OVERHEAD_CONTACTLINE_SYSTEM,RETURN_CIRCUIT,USERDEFINED,NOTDEFINED)
    0x04002AC7, // DefinedType(IFCDISTRIBUTIONSYSTEMENUM,#341)
    0x0000318F, // EnumerationType(PUBLIC,RESTRICTED,CONFIDENTIAL,PERSONAL,USERDEFINED,NOTDEFINED)
    0x04002B43, // DefinedType(IFCDOCUMENTCONFIDENTIALITYENUM,#343)
    0x00003210, // EnumerationType(DRAFT,FINALDRAFT,FINAL,REVISION,NOTDEFINED)
    0x04002BB0, // DefinedType(IFCDOCUMENTSTATUSENUM,#345)
    0x0100217F, // EnumerationType(SWINGING,DOUBLE_ACTING,SLIDING,FOLDING,REVOLVING,ROLLINGUP,FIXEDPANEL,USERDEFINED,NOTDEFINED)
    0x04002C46, // DefinedType(IFCDOORPANELOPERATIONENUM,#347)
    0x00003303, // EnumerationType(LEFT,MIDDLE,RIGHT,NOTDEFINED)
    0x04002C72, // DefinedType(IFCDOORPANELPOSITIONENUM,#349)
    0x0000335C, // EnumerationType(ALUMINIUM,HIGH_GRADE_STEEL,STEEL,WOOD,ALUMINIUM_WOOD,ALUMINIUM_PLASTIC,PLASTIC,USERDEFINED,NOTDEFINED)
    0x060004F3, // DefinedType(IFCDOORSTYLECONSTRUCTIONENUM,#351)
    0x00003402, // EnumerationType(SINGLE_SWING_LEFT,SINGLE_SWING_RIGHT,DOUBLE_DOOR_SINGLE_SWING,DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_LEFT,DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_RIGHT,DOUBLE_SWING_LEFT,DOUBLE_SWING_RIGHT,DOUBLE_DOOR_DOUBLE_SWING,SLIDING_TO_LEFT,SLIDING_TO_RIGHT,DOUBLE_DOOR_SLIDING,FOLDING_TO_LEFT,FOLDING_TO_RIGHT,DOUBLE_DOOR_FOLDING,REVOLVING,ROLLINGUP,USERDEFINED,NOTDEFINED)
    0x06000522, // DefinedType(IFCDOORSTYLEOPERATIONENUM,#353)
    0x0500154B, // EnumerationType(DOOR,GATE,TRAPDOOR,BOOM_BARRIER,TURNSTILE,USERDEFINED,NOTDEFINED)
    0x0600054E, // DefinedType(IFCDOORTYPEENUM,#355)
    0x06000570, // EnumerationType(SINGLE_SWING_LEFT,SINGLE_SWING_RIGHT,DOUBLE_PANEL_SINGLE_SWING,DOUBLE_PANEL_SINGLE_SWING_OPPOSITE_LEFT,DOUBLE_PANEL_SINGLE_SWING_OPPOSITE_RIGHT,DOUBLE_SWING_LEFT,DOUBLE_SWING_RIGHT,DOUBLE_PANEL_DOUBLE_SWING,SLIDING_TO_LEFT,SLIDING_TO_RIGHT,DOUBLE_PANEL_SLIDING,FOLDING_TO_LEFT,FOLDING_TO_RIGHT,DOUBLE_PANEL_FOLDING,REVOLVING_HORIZONTAL,ROLLINGUP,SWING_FIXED_LEFT,SWING_FIXED_RIGHT,DOUBLE_PANEL_LIFTING_VERTICAL,LIFTING_HORIZONTAL,LIFTING_VERTICAL_LEFT,LIFTING_VERTICAL_RIGHT,REVOLVING_VERTICAL,USERDEFINED,NOTDEFINED)
    0x06000786, // DefinedType(IFCDOORTYPEOPERATIONENUM,#357)
    0x0000359F, // EnumerationType(BEND,CONNECTOR,ENTRY,EXIT,JUNCTION,OBSTRUCTION,TRANSITION,USERDEFINED,NOTDEFINED)
    0x060007B1, // DefinedType(IFCDUCTFITTINGTYPEENUM,#359)
    0x0000362A, // EnumerationType(RIGIDSEGMENT,FLEXIBLESEGMENT,USERDEFINED,NOTDEFINED)
    0x060007DA, // DefinedType(IFCDUCTSEGMENTTYPEENUM,#361)
    0x00003698, // EnumerationType(FLATOVAL,RECTANGULAR,ROUND,USERDEFINED,NOTDEFINED)
    0x06000803, // DefinedType(IFCDUCTSILENCERTYPEENUM,#363)
    0x05001666, // EnumerationType(TRENCH,DREDGING,EXCAVATION,OVEREXCAVATION,TOPSOILREMOVAL,STEPEXCAVATION,PAVEMENTMILLING,CUT,BASE_EXCAVATION,USERDEFINED,NOTDEFINED)
    0x0600082D, // DefinedType(IFCEARTHWORKSCUTTYPEENUM,#365)
    0x05001725, // EnumerationType(BACKFILL,COUNTERWEIGHT,SUBGRADE,EMBANKMENT,TRANSITIONSECTION,SUBGRADEBED,SLOPEFILL,USERDEFINED,NOTDEFINED)
    0x06000858, // DefinedType(IFCEARTHWORKSFILLTYPEENUM,#367)
    0x01002537, // EnumerationType(DISHWASHER,ELECTRICCOOKER,FREESTANDINGELECTRICHEATER,FREESTANDINGFAN,FREESTANDINGWATERHEATER,FREESTANDINGWATERCOOLER,FREEZER,FRIDGE_FREEZER,HANDDRYER,KITCHENMACHINE,MICROWAVE,PHOTOCOPIER,REFRIGERATOR,TUMBLEDRYER,VENDINGMACHINE,WASHINGMACHINE,USERDEFINED,NOTDEFINED)
    0x06000884, // DefinedType(IFCELECTRICAPPLIANCETYPEENUM,#369)
    0x01002680, // EnumerationType(CONSUMERUNIT,DISTRIBUTIONBOARD,MOTORCONTROLCENTRE,SWITCHBOARD,USERDEFINED,NOTDEFINED)
    0x060008B3, // DefinedType(IFCELECTRICDISTRIBUTIONBOARDTYPEENUM,#371)
    0x05001832, // EnumerationType(BATTERY,CAPACITORBANK,HARMONICFILTER,INDUCTORBANK,UPS,CAPACITOR,COMPENSATOR,INDUCTOR,RECHARGER,USERDEFINED,NOTDEFINED)
    0x060008EA, // DefinedType(IFCELECTRICFLOWSTORAGEDEVICETYPEENUM,#373)
    0x040033A5, // EnumerationType(ELECTRONICFILTER,USERDEFINED,NOTDEFINED)
    0x06000921, // DefinedType(IFCELECTRICFLOWTREATMENTDEVICETYPEENUM,#375)
    0x01002754, // EnumerationType(CHP,ENGINEGENERATOR,STANDALONE,USERDEFINED,NOTDEFINED)
    0x0600095A, // DefinedType(IFCELECTRICGENERATORTYPEENUM,#377)
    0x00003B0D, // EnumerationType(DC,INDUCTION,POLYPHASE,RELUCTANCESYNCHRONOUS,SYNCHRONOUS,USERDEFINED,NOTDEFINED)
    0x06000989, // DefinedType(IFCELECTRICMOTORTYPEENUM,#379)
    0x00003B99, // EnumerationType(TIMECLOCK,TIMEDELAY,RELAY,USERDEFINED,NOTDEFINED)
    0x060009B4, // DefinedType(IFCELECTRICTIMECONTROLTYPEENUM,#381)
    0x050019B4, // EnumerationType(ACCESSORY_ASSEMBLY,ARCH,BEAM_GRID,BRACED_FRAME,GIRDER,REINFORCEMENT_UNIT,RIGID_FRAME,SLAB_FIELD,TRUSS,ABUTMENT,PIER,PYLON,CROSS_BRACING,DECK,MAST,SIGNALASSEMBLY,GRID,SHELTER,SUPPORTINGASSEMBLY,SUSPENSIONASSEMBLY,TRACTION_SWITCHING_ASSEMBLY,TRACKPANEL,TURNOUTPANEL,DILATATIONPANEL,RAIL_MECHANICAL_EQUIPMENT_ASSEMBLY,ENTRANCEWORKS,SUMPBUSTER,TRAFFIC_CALMING_DEVICE,USERDEFINED,NOTDEFINED)
    0x060009E5, // DefinedType(IFCELEMENTASSEMBLYTYPEENUM,#383)
    0x00003CC7, // EnumerationType(COMPLEX,ELEMENT,PARTIAL)
    0x06000A12, // DefinedType(IFCELEMENTCOMPOSITIONENUM,#385)
    0x0100287F, // EnumerationType(EXTERNALCOMBUSTION,INTERNALCOMBUSTION,USERDEFINED,NOTDEFINED)
    0x06000A3E, // DefinedType(IFCENGINETYPEENUM,#387)
    0x00003E38, // EnumerationType(DIRECTEVAPORATIVERANDOMMEDIAAIRCOOLER,DIRECTEVAPORATIVERIGIDMEDIAAIRCOOLER,DIRECTEVAPORATIVESLINGERSPACKAGEDAIRCOOLER,DIRECTEVAPORATIVEPACKAGEDROTARYAIRCOOLER,DIRECTEVAPORATIVEAIRWASHER,INDIRECTEVAPORATIVEPACKAGEAIRCOOLER,INDIRECTEVAPORATIVEWETCOIL,INDIRECTEVAPORATIVECOOLINGTOWERORCOILCOOLER,INDIRECTDIRECTCOMBINATION,USERDEFINED,NOTDEFINED)
    0x06000A62, // DefinedType(IFCEVAPORATIVECOOLERTYPEENUM,#389)
    0x01002920, // EnumerationType(DIRECTEXPANSION,DIRECTEXPANSIONSHELLANDTUBE,DIRECTEXPANSIONTUBEINTUBE,DIRECTEXPANSIONBRAZEDPLATE,FLOODEDSHELLANDTUBE,SHELLANDCOIL,USERDEFINED,NOTDEFINED)
    0x06000A91, // DefinedType(IFCEVAPORATORTYPEENUM,#391)
    0x010029F2, // EnumerationType(EVENTRULE,EVENTMESSAGE,EVENTTIME,EVENTCOMPLEX,USERDEFINED,NOTDEFINED)
    0x06000AB9, // DefinedType(IFCEVENTTRIGGERTYPEENUM,#393)
    0x01002A72, // EnumerationType(STARTEVENT,ENDEVENT,INTERMEDIATEEVENT,USERDEFINED,NOTDEFINED)
    0x06000AE3, // DefinedType(IFCEVENTTYPEENUM,#395)
    0x01002AE3, // EnumerationType(EXTERNAL,EXTERNAL_EARTH,EXTERNAL_WATER,EXTERNAL_FIRE,USERDEFINED,NOTDEFINED)
    0x06000B06, // DefinedType(IFCEXTERNALSPATIALELEMENTTYPEENUM,#397)
    0x05001C9C, // EnumerationType(SEGMENT,ABOVEGROUND,JUNCTION,LEVELCROSSING,BELOWGROUND,SUBSTRUCTURE,TERMINAL,SUPERSTRUCTURE,USERDEFINED,NOTDEFINED)
    0x06000B3A, // DefinedType(IFCFACILITYPARTCOMMONTYPEENUM,#399)
    0x05001D50, // EnumerationType(LATERAL,REGION,VERTICAL,LONGITUDINAL,USERDEFINED,NOTDEFINED)
    0x06000B6A, // DefinedType(IFCFACILITYUSAGEENUM,#401)
    0x00004090, // EnumerationType(CENTRIFUGALFORWARDCURVED,CENTRIFUGALRADIAL,CENTRIFUGALBACKWARDINCLINEDCURVED,CENTRIFUGALAIRFOIL,TUBEAXIAL,VANEAXIAL,PROPELLORAXIAL,USERDEFINED,NOTDEFINED)
    0x06000B91, // DefinedType(IFCFANTYPEENUM,#403)
    0x01002B95, // EnumerationType(GLUE,MORTAR,WELD,USERDEFINED,NOTDEFINED)
    0x06000BB2, // DefinedType(IFCFASTENERTYPEENUM,#405)
    0x01002BF4, // EnumerationType(AIRPARTICLEFILTER,COMPRESSEDAIRFILTER,ODORFILTER,OILFILTER,STRAINER,WATERFILTER,USERDEFINED,NOTDEFINED)
    0x06000BD8, // DefinedType(IFCFILTERTYPEENUM,#407)
    0x06000BFC, // EnumerationType(BREECHINGINLET,FIREHYDRANT,HOSEREEL,SPRINKLER,SPRINKLERDEFLECTOR,FIREMONITOR,USERDEFINED,NOTDEFINED)
    0x06000C71, // DefinedType(IFCFIRESUPPRESSIONTERMINALTYPEENUM,#409)
    0x00004282, // EnumerationType(SOURCE,SINK,SOURCEANDSINK,NOTDEFINED)
    0x06000CA6, // DefinedType(IFCFLOWDIRECTIONENUM,#411)
    0x05001E8B, // EnumerationType(PRESSUREGAUGE,THERMOMETER,AMMETER,FREQUENCYMETER,POWERFACTORMETER,PHASEANGLEMETER,VOLTMETER_PEAK,VOLTMETER_RMS,COMBINED,VOLTMETER,USERDEFINED,NOTDEFINED)
    0x06000CCD, // DefinedType(IFCFLOWINSTRUMENTTYPEENUM,#413)
    0x01002D18, // EnumerationType(ENERGYMETER,GASMETER,OILMETER,WATERMETER,USERDEFINED,NOTDEFINED)
    0x06000CF9, // DefinedType(IFCFLOWMETERTYPEENUM,#415)
    0x01002D90, // EnumerationType(CAISSON_FOUNDATION,FOOTING_BEAM,PAD_FOOTING,PILE_CAP,STRIP_FOOTING,USERDEFINED,NOTDEFINED)
    0x06000D20, // DefinedType(IFCFOOTINGTYPEENUM,#417)
    0x05001FAD, // EnumerationType(CHAIR,TABLE,DESK,BED,FILECABINET,SHELF,SOFA,TECHNICALCABINET,USERDEFINED,NOTDEFINED)
    0x06000D45, // DefinedType(IFCFURNITURETYPEENUM,#419)
    0x03001437, // EnumerationType(TERRAIN,SOIL_BORING_POINT,USERDEFINED,NOTDEFINED)
    0x06000D6C, // DefinedType(IFCGEOGRAPHICELEMENTTYPEENUM,#421)
    0x00004522, // EnumerationType(GRAPH_VIEW,SKETCH_VIEW,MODEL_VIEW,PLAN_VIEW,REFLECTED_PLAN_VIEW,SECTION_VIEW,ELEVATION_VIEW,USERDEFINED,NOTDEFINED)
    0x06000D9B, // DefinedType(IFCGEOMETRICPROJECTIONENUM,#423)
    0x000045D3, // EnumerationType(GLOBAL_COORDS,LOCAL_COORDS)
    0x06000DC8, // DefinedType(IFCGLOBALORLOCALENUM,#425)
    0x01002F4E, // EnumerationType(RECTANGULAR,RADIAL,TRIANGULAR,IRREGULAR,USERDEFINED,NOTDEFINED)
    0x06000DEF, // DefinedType(IFCGRIDTYPEENUM,#427)
    0x04004201, // EnumerationType(PLATE,SHELLANDTUBE,TURNOUTHEATING,USERDEFINED,NOTDEFINED)
    0x06000E11, // DefinedType(IFCHEATEXCHANGERTYPEENUM,#429)
    0x0000468C, // EnumerationType(STEAMINJECTION,ADIABATICAIRWASHER,ADIABATICPAN,ADIABATICWETTEDELEMENT,ADIABATICATOMIZING,ADIABATICULTRASONIC,ADIABATICRIGIDMEDIA,ADIABATICCOMPRESSEDAIRNOZZLE,ASSISTEDELECTRIC,ASSISTEDNATURALGAS,ASSISTEDPROPANE,ASSISTEDBUTANE,ASSISTEDSTEAM,USERDEFINED,NOTDEFINED)
    0x06000E3C, // DefinedType(IFCHUMIDIFIERTYPEENUM,#431)
    0x05002131, // EnumerationType(CRASHCUSHION,DAMPINGSYSTEM,FENDER,BUMPER,USERDEFINED,NOTDEFINED)
    0x06000E64, // DefinedType(IFCIMPACTPROTECTIONDEVICETYPEENUM,#433)
    0x01003013, // EnumerationType(CYCLONIC,GREASE,OIL,PETROL,USERDEFINED,NOTDEFINED)
    0x06000E98, // DefinedType(IFCINTERCEPTORTYPEENUM,#435)
    0x0100307F, // EnumerationType(INTERNAL,EXTERNAL,EXTERNAL_EARTH,EXTERNAL_WATER,EXTERNAL_FIRE,NOTDEFINED)
    0x06000EC1, // DefinedType(IFCINTERNALOREXTERNALENUM,#437)
    0x00004825, // EnumerationType(ASSETINVENTORY,SPACEINVENTORY,FURNITUREINVENTORY,USERDEFINED,NOTDEFINED)
    0x06000EED, // DefinedType(IFCINVENTORYTYPEENUM,#439)
    0x0100312C, // EnumerationType(DATA,POWER,USERDEFINED,NOTDEFINED)
    0x06000F14, // DefinedType(IFCJUNCTIONBOXTYPEENUM,#441)
    0x01003188, // EnumerationType(UNIFORM_KNOTS,QUASI_UNIFORM_KNOTS,PIECEWISE_BEZIER_KNOTS,UNSPECIFIED)
    0x0400460A, // DefinedType(IFCKNOTTYPE,#443)
    0x010031FC, // EnumerationType(ADMINISTRATION,CARPENTRY,CLEANING,CONCRETE,DRYWALL,ELECTRIC,FINISHING,FLOORING,GENERAL,HVAC,LANDSCAPING,MASONRY,PAINTING,PAVING,PLUMBING,ROOFING,SITEGRADING,STEELWORK,SURVEYING,USERDEFINED,NOTDEFINED)
    0x04004628, // DefinedType(IFCLABORRESOURCETYPEENUM,#445)
    0x01003300, // EnumerationType(COMPACTFLUORESCENT,FLUORESCENT,HALOGEN,HIGHPRESSUREMERCURY,HIGHPRESSURESODIUM,LED,METALHALIDE,OLED,TUNGSTENFILAMENT,USERDEFINED,NOTDEFINED)
    0x04004653, // DefinedType(IFCLAMPTYPEENUM,#447)
    0x0000497B, // EnumerationType(AXIS1,AXIS2,AXIS3)
    0x04004675, // DefinedType(IFCLAYERSETDIRECTIONENUM,#449)
    0x000049C9, // EnumerationType(TYPE_A,TYPE_B,TYPE_C,NOTDEFINED)
    0x040046A0, // DefinedType(IFCLIGHTDISTRIBUTIONCURVEENUM,#451)
    0x00004A2A, // EnumerationType(COMPACTFLUORESCENT,FLUORESCENT,HIGHPRESSUREMERCURY,HIGHPRESSURESODIUM,LIGHTEMITTINGDIODE,LOWPRESSURESODIUM,LOWVOLTAGEHALOGEN,MAINVOLTAGEHALOGEN,METALHALIDE,TUNGSTENFILAMENT,NOTDEFINED)
    0x040046D0, // DefinedType(IFCLIGHTEMISSIONSOURCEENUM,#453)
    0x01003446, // EnumerationType(POINTSOURCE,DIRECTIONSOURCE,SECURITYLIGHTING,USERDEFINED,NOTDEFINED)
    0x04004752, // DefinedType(IFCLIGHTFIXTURETYPEENUM,#455)
    0x05002378, // EnumerationType(LOADINGARM,HOSEREEL,USERDEFINED,NOTDEFINED)
    0x040047B8, // DefinedType(IFCLIQUIDTERMINALTYPEENUM,#457)
    0x010034C5, // EnumerationType(LOAD_GROUP,LOAD_CASE,LOAD_COMBINATION,USERDEFINED,NOTDEFINED)
    0x04004832, // DefinedType(IFCLOADGROUPTYPEENUM,#459)
    0x0100353A, // EnumerationType(LOGICALAND,LOGICALOR,LOGICALXOR,LOGICALNOTAND,LOGICALNOTOR)
    0x040048A5, // DefinedType(IFCLOGICALOPERATORENUM,#461)
    0x06000F3D, // EnumerationType(CANAL,WATERWAYSHIPLIFT,REVETMENT,LAUNCHRECOVERY,MARINEDEFENCE,HYDROLIFT,SHIPYARD,SHIPLIFT,PORT,QUAY,FLOATINGDOCK,NAVIGATIONALCHANNEL,BREAKWATER,DRYDOCK,JETTY,SHIPLOCK,BARRIERBEACH,SLIPWAY,WATERWAY,USERDEFINED,NOTDEFINED)
    0x040049BB, // DefinedType(IFCMARINEFACILITYTYPEENUM,#463)
    0x0500254A, // EnumerationType(CREST,MANUFACTURING,LOWWATERLINE,CORE,WATERFIELD,CILL_LEVEL,BERTHINGSTRUCTURE,COPELEVEL,CHAMBER,STORAGE,APPROACHCHANNEL,VEHICLESERVICING,SHIPTRANSFER,GATEHEAD,GUDINGSTRUCTURE,BELOWWATERLINE,WEATHERSIDE,LANDFIELD,PROTECTION,LEEWARDSIDE,ABOVEWATERLINE,ANCHORAGE,NAVIGATIONALAREA,HIGHWATERLINE,USERDEFINED,NOTDEFINED)
    0x04004B36, // DefinedType(IFCMARINEPARTTYPEENUM,#465)
    0x050026BD, // EnumerationType(ANCHORBOLT,BOLT,DOWEL,NAIL,NAILPLATE,RIVET,SCREW,SHEARCONNECTOR,STAPLE,STUDSHEARCONNECTOR,COUPLER,RAILJOINT,RAILFASTENING,CHAIN,ROPE,USERDEFINED,NOTDEFINED)
    0x04004C0B, // DefinedType(IFCMECHANICALFASTENERTYPEENUM,#467)
    0x01003661, // EnumerationType(AIRSTATION,FEEDAIRUNIT,OXYGENGENERATOR,OXYGENPLANT,VACUUMSTATION,USERDEFINED,NOTDEFINED)
    0x04004C3B, // DefinedType(IFCMEDICALDEVICETYPEENUM,#469)
    0x050027C5, // EnumerationType(BRACE,CHORD,COLLAR,MEMBER,MULLION,PLATE,POST,PURLIN,RAFTER,STRINGER,STRUT,STUD,STIFFENING_RIB,ARCH_SEGMENT,SUSPENSION_CABLE,SUSPENDER,STAY_CABLE,STRUCTURALCABLE,TIEBAR,USERDEFINED,NOTDEFINED)
    0x04004D36, // DefinedType(IFCMEMBERTYPEENUM,#471)
    0x050028B9, // EnumerationType(E_UTRAN_NODE_B,REMOTE_RADIO_UNIT,ACCESSPOINT,BASETRANSCEIVERSTATION,REMOTEUNIT,BASEBANDUNIT,MASTERUNIT,USERDEFINED,NOTDEFINED)
    0x04004E5E, // DefinedType(IFCMOBILETELECOMMUNICATIONSAPPLIANCETYPEENUM,#473)
    0x05002987, // EnumerationType(LINETENSIONER,MAGNETICDEVICE,MOORINGHOOKS,VACUUMDEVICE,BOLLARD,USERDEFINED,NOTDEFINED)
    0x04004F04, // DefinedType(IFCMOORINGDEVICETYPEENUM,#475)
    0x00004D04, // EnumerationType(BELTDRIVE,COUPLING,DIRECTDRIVE,USERDEFINED,NOTDEFINED)
    0x04004F2F, // DefinedType(IFCMOTORCONNECTIONTYPEENUM,#477)
    0x04004F5C, // EnumerationType(BEACON,BUOY,USERDEFINED,NOTDEFINED)
    0x04004F90, // DefinedType(IFCNAVIGATIONELEMENTTYPEENUM,#479)
    0x00004DAD, // EnumerationType(PRODUCT,PROCESS,CONTROL,RESOURCE,ACTOR,GROUP,PROJECT,NOTDEFINED)
    0x0600102A, // DefinedType(IFCOBJECTTYPEENUM,#481)
    0x01003789, // EnumerationType(CODECOMPLIANCE,CODEWAIVER,DESIGNINTENT,EXTERNAL,HEALTHANDSAFETY,MERGECONFLICT,MODELVIEW,PARAMETER,REQUIREMENT,SPECIFICATION,TRIGGERCONDITION,USERDEFINED,NOTDEFINED)
    0x0600104E, // DefinedType(IFCOBJECTIVEENUM,#483)
    0x00004EC4, // EnumerationType(ASSIGNEE,ASSIGNOR,LESSEE,LESSOR,LETTINGAGENT,OWNER,TENANT,USERDEFINED,NOTDEFINED)
    0x06001071, // DefinedType(IFCOCCUPANTTYPEENUM,#485)
    0x01003887, // EnumerationType(OPENING,RECESS,USERDEFINED,NOTDEFINED)
    0x06001097, // DefinedType(IFCOPENINGELEMENTTYPEENUM,#487)
    0x010038EA, // EnumerationType(AUDIOVISUALOUTLET,COMMUNICATIONSOUTLET,POWEROUTLET,DATAOUTLET,TELEPHONEOUTLET,USERDEFINED,NOTDEFINED)
    0x060010C3, // DefinedType(IFCOUTLETTYPEENUM,#489)
    0x040050CE, // EnumerationType(FLEXIBLE,RIGID,USERDEFINED,NOTDEFINED)
    0x060010E7, // DefinedType(IFCPAVEMENTTYPEENUM,#491)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x0600110D, // DefinedType(IFCPERFORMANCEHISTORYTYPEENUM,#493)
    0x00004FCB, // EnumerationType(GRILL,LOUVER,SCREEN,USERDEFINED,NOTDEFINED)
    0x0600113D, // DefinedType(IFCPERMEABLECOVERINGOPERATIONENUM,#495)
    0x010039E8, // EnumerationType(ACCESS,BUILDING,WORK,USERDEFINED,NOTDEFINED)
    0x06001171, // DefinedType(IFCPERMITTYPEENUM,#497)
    0x0000503B, // EnumerationType(PHYSICAL,VIRTUAL,NOTDEFINED)
    0x06001195, // DefinedType(IFCPHYSICALORVIRTUALENUM,#499)
    0x00005093, // EnumerationType(CAST_IN_PLACE,COMPOSITE,PRECAST_CONCRETE,PREFAB_STEEL,USERDEFINED,NOTDEFINED)
    0x060011C0, // DefinedType(IFCPILECONSTRUCTIONENUM,#501)
    0x01003A9E, // EnumerationType(BORED,DRIVEN,JETGROUTING,COHESION,FRICTION,SUPPORT,USERDEFINED,NOTDEFINED)
    0x060011EA, // DefinedType(IFCPILETYPEENUM,#503)
    0x0000359F, // EnumerationType(BEND,CONNECTOR,ENTRY,EXIT,JUNCTION,OBSTRUCTION,TRANSITION,USERDEFINED,NOTDEFINED)
    0x0600120C, // DefinedType(IFCPIPEFITTINGTYPEENUM,#505)
    0x01003B44, // EnumerationType(CULVERT,FLEXIBLESEGMENT,RIGIDSEGMENT,GUTTER,SPOOL,USERDEFINED,NOTDEFINED)
    0x06001235, // DefinedType(IFCPIPESEGMENTTYPEENUM,#507)
    0x03001B9F, // EnumerationType(CURTAIN_PANEL,SHEET,FLANGE_PLATE,WEB_PLATE,STIFFENER_PLATE,GUSSET_PLATE,COVER_PLATE,SPLICE_PLATE,BASE_PLATE,USERDEFINED,NOTDEFINED)
    0x0600125E, // DefinedType(IFCPLATETYPEENUM,#509)
    0x01003BEA, // EnumerationType(CURVE3D,PCURVE_S1,PCURVE_S2)
    0x06001281, // DefinedType(IFCPREFERREDSURFACECURVEREPRESENTATION,#511)
    0x00005282, // EnumerationType(ADVICE_CAUTION,ADVICE_NOTE,ADVICE_WARNING,CALIBRATION,DIAGNOSTIC,SHUTDOWN,STARTUP,USERDEFINED,NOTDEFINED)
    0x060012BA, // DefinedType(IFCPROCEDURETYPEENUM,#513)
    0x00005323, // EnumerationType(CURVE,AREA)
    0x060012E1, // DefinedType(IFCPROFILETYPEENUM,#515)
    0x000053E2, // EnumerationType(CHANGEORDER,MAINTENANCEWORKORDER,MOVEORDER,PURCHASEORDER,WORKORDER,USERDEFINED,NOTDEFINED)
    0x06001306, // DefinedType(IFCPROJECTORDERTYPEENUM,#517)
    0x00005477, // EnumerationType(PROJECTED_LENGTH,TRUE_LENGTH)
    0x06001330, // DefinedType(IFCPROJECTEDORTRUELENGTHENUM,#519)
    0x03001D34, // EnumerationType(BLISTER,DEVIATOR,USERDEFINED,NOTDEFINED)
    0x0600135F, // DefinedType(IFCPROJECTIONELEMENTTYPEENUM,#521)
    0x01003D24, // EnumerationType(PSET_TYPEDRIVENONLY,PSET_TYPEDRIVENOVERRIDE,PSET_OCCURRENCEDRIVEN,PSET_PERFORMANCEDRIVEN,QTO_TYPEDRIVENONLY,QTO_TYPEDRIVENOVERRIDE,QTO_OCCURRENCEDRIVEN,NOTDEFINED)
    0x0600138E, // DefinedType(IFCPROPERTYSETTEMPLATETYPEENUM,#523)
    0x01003E09, // EnumerationType(ELECTRONIC,ELECTROMAGNETIC,RESIDUALCURRENT,THERMAL,USERDEFINED,NOTDEFINED)
    0x060013BF, // DefinedType(IFCPROTECTIVEDEVICETRIPPINGUNITTYPEENUM,#525)
    0x05002E3D, // EnumerationType(CIRCUITBREAKER,EARTHLEAKAGECIRCUITBREAKER,EARTHINGSWITCH,FUSEDISCONNECTOR,RESIDUALCURRENTCIRCUITBREAKER,RESIDUALCURRENTSWITCH,VARISTOR,ANTI_ARCING_DEVICE,SPARKGAP,VOLTAGELIMITER,USERDEFINED,NOTDEFINED)
    0x060013F9, // DefinedType(IFCPROTECTIVEDEVICETYPEENUM,#527)
    0x01003F7B, // EnumerationType(CIRCULATOR,ENDSUCTION,SPLITCASE,SUBMERSIBLEPUMP,SUMPPUMP,VERTICALINLINE,VERTICALTURBINE,USERDEFINED,NOTDEFINED)
    0x06001427, // DefinedType(IFCPUMPTYPEENUM,#529)
    0x05002F67, // EnumerationType(RACKRAIL,BLADE,GUARDRAIL,STOCKRAIL,CHECKRAIL,RAIL,USERDEFINED,NOTDEFINED)
    0x06001449, // DefinedType(IFCRAILTYPEENUM,#531)
    0x05002FE3, // EnumerationType(HANDRAIL,GUARDRAIL,BALUSTRADE,FENCE,USERDEFINED,NOTDEFINED)
    0x0600146B, // DefinedType(IFCRAILINGTYPEENUM,#533)
    0x05003054, // EnumerationType(TRACKSTRUCTURE,TRACKSTRUCTUREPART,LINESIDESTRUCTUREPART,DILATATIONSUPERSTRUCTURE,PLAINTRACKSUPESTRUCTURE,LINESIDESTRUCTURE,SUPERSTRUCTURE,TURNOUTSUPERSTRUCTURE,USERDEFINED,NOTDEFINED)
    0x06001490, // DefinedType(IFCRAILWAYPARTTYPEENUM,#535)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x060014B9, // DefinedType(IFCRAILWAYTYPEENUM,#537)
    0x00005728, // EnumerationType(STRAIGHT,SPIRAL,USERDEFINED,NOTDEFINED)
    0x060014DE, // DefinedType(IFCRAMPFLIGHTTYPEENUM,#539)
    0x00005788, // EnumerationType(STRAIGHT_RUN_RAMP,TWO_STRAIGHT_RUN_RAMP,QUARTER_TURN_RAMP,TWO_QUARTER_TURN_RAMP,HALF_TURN_RAMP,SPIRAL_RAMP,USERDEFINED,NOTDEFINED)
    0x06001506, // DefinedType(IFCRAMPTYPEENUM,#541)
    0x0100408C, // EnumerationType(DAILY,WEEKLY,MONTHLY_BY_DAY_OF_MONTH,MONTHLY_BY_POSITION,BY_DAY_COUNT,BY_WEEKDAY_COUNT,YEARLY_BY_DAY_OF_MONTH,YEARLY_BY_POSITION)
    0x06001528, // DefinedType(IFCRECURRENCETYPEENUM,#543)
    0x050031B7, // EnumerationType(KILOPOINT,MILEPOINT,STATION,REFERENCEMARKER,USERDEFINED,NOTDEFINED)
    0x06001550, // DefinedType(IFCREFERENTTYPEENUM,#545)
    0x0000583D, // EnumerationType(BLINN,FLAT,GLASS,MATT,METAL,MIRROR,PHONG,PLASTIC,STRAUSS,NOTDEFINED)
    0x06001576, // DefinedType(IFCREFLECTANCEMETHODENUM,#547)
    0x0500325C, // EnumerationType(SURCHARGEPRELOADED,VERTICALLYDRAINED,DYNAMICALLYCOMPACTED,REPLACED,ROLLERCOMPACTED,GROUTED,USERDEFINED,NOTDEFINED)
    0x060015A1, // DefinedType(IFCREINFORCEDSOILTYPEENUM,#549)
    0x01004171, // EnumerationType(MAIN,SHEAR,LIGATURE,STUD,PUNCHING,EDGE,RING,ANCHORING,USERDEFINED,NOTDEFINED)
    0x060015CD, // DefinedType(IFCREINFORCINGBARROLEENUM,#551)
    0x0000593D, // EnumerationType(PLAIN,TEXTURED)
    0x060015F9, // DefinedType(IFCREINFORCINGBARSURFACEENUM,#553)
    0x03001F9A, // EnumerationType(ANCHORING,EDGE,LIGATURE,MAIN,PUNCHING,RING,SHEAR,STUD,SPACEBAR,USERDEFINED,NOTDEFINED)
    0x06001628, // DefinedType(IFCREINFORCINGBARTYPEENUM,#555)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x06001654, // DefinedType(IFCREINFORCINGMESHTYPEENUM,#557)
    0x050033BF, // EnumerationType(ROADSIDEPART,BUS_STOP,HARDSHOULDER,INTERSECTION,PASSINGBAY,ROADWAYPLATEAU,ROADSIDE,REFUGEISLAND,TOLLPLAZA,CENTRALRESERVE,SIDEWALK,PARKINGBAY,RAILWAYCROSSING,PEDESTRIAN_CROSSING,SOFTSHOULDER,BICYCLECROSSING,CENTRALISLAND,SHOULDER,TRAFFICLANE,ROADSEGMENT,ROUNDABOUT,LAYBY,CARRIAGEWAY,TRAFFICISLAND,USERDEFINED,NOTDEFINED)
    0x06001681, // DefinedType(IFCROADPARTTYPEENUM,#559)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x060016A7, // DefinedType(IFCROADTYPEENUM,#561)
    0x010042E1, // EnumerationType(FLAT_ROOF,SHED_ROOF,GABLE_ROOF,HIP_ROOF,HIPPED_GABLE_ROOF,GAMBREL_ROOF,MANSARD_ROOF,BARREL_ROOF,RAINBOW_ROOF,BUTTERFLY_ROOF,PAVILION_ROOF,DOME_ROOF,FREEFORM,USERDEFINED,NOTDEFINED)
    0x060016C9, // DefinedType(IFCROOFTYPEENUM,#563)
    0x00005CD2, // EnumerationType(EXA,PETA,TERA,GIGA,MEGA,KILO,HECTO,DECA,DECI,CENTI,MILLI,MICRO,NANO,PICO,FEMTO,ATTO)
    0x060016EB, // DefinedType(IFCSIPREFIX,#565)
    0x00005D55, // EnumerationType(AMPERE,BECQUEREL,CANDELA,COULOMB,CUBIC_METRE,DEGREE_CELSIUS,FARAD,GRAM,GRAY,HENRY,HERTZ,JOULE,KELVIN,LUMEN,LUX,METRE,MOLE,NEWTON,OHM,PASCAL,RADIAN,SECOND,SIEMENS,SIEVERT,SQUARE_METRE,STERADIAN,TESLA,VOLT,WATT,WEBER)
    0x06001709, // DefinedType(IFCSIUNITNAME,#567)
    0x00005E5D, // EnumerationType(BATH,BIDET,CISTERN,SHOWER,SINK,SANITARYFOUNTAIN,TOILETPAN,URINAL,WASHHANDBASIN,WCSEAT,USERDEFINED,NOTDEFINED)
    0x06001729, // DefinedType(IFCSANITARYTERMINALTYPEENUM,#569)
    0x00005F09, // EnumerationType(UNIFORM,TAPERED)
    0x06001757, // DefinedType(IFCSECTIONTYPEENUM,#571)
    0x050035E8, // EnumerationType(COSENSOR,CO2SENSOR,CONDUCTANCESENSOR,CONTACTSENSOR,FIRESENSOR,FLOWSENSOR,FROSTSENSOR,GASSENSOR,HEATSENSOR,HUMIDITYSENSOR,IDENTIFIERSENSOR,IONCONCENTRATIONSENSOR,LEVELSENSOR,LIGHTSENSOR,MOISTURESENSOR,MOVEMENTSENSOR,PHSENSOR,PRESSURESENSOR,RADIATIONSENSOR,RADIOACTIVITYSENSOR,SMOKESENSOR,SOUNDSENSOR,TEMPERATURESENSOR,WINDSENSOR,EARTHQUAKESENSOR,FOREIGNOBJECTDETECTIONSENSOR,OBSTACLESENSOR,RAINSENSOR,SNOWDEPTHSENSOR,TRAINSENSOR,TURNOUTCLOSURESENSOR,WHEELSENSOR,USERDEFINED,NOTDEFINED)
    0x0600177C, // DefinedType(IFCSENSORTYPEENUM,#573)
    0x010045ED, // EnumerationType(START_START,START_FINISH,FINISH_START,FINISH_FINISH,USERDEFINED,NOTDEFINED)
    0x060017A0, // DefinedType(IFCSEQUENCEENUM,#575)
    0x0100466B, // EnumerationType(JALOUSIE,SHUTTER,AWNING,USERDEFINED,NOTDEFINED)
    0x060017C2, // DefinedType(IFCSHADINGDEVICETYPEENUM,#577)
    0x0500384E, // EnumerationType(MARKER,PICTORAL,MIRROR,USERDEFINED,NOTDEFINED)
    0x060017ED, // DefinedType(IFCSIGNTYPEENUM,#579)
    0x050038AF, // EnumerationType(VISUAL,AUDIO,MIXED,USERDEFINED,NOTDEFINED)
    0x0600180F, // DefinedType(IFCSIGNALTYPEENUM,#581)
    0x010046D6, // EnumerationType(P_SINGLEVALUE,P_ENUMERATEDVALUE,P_BOUNDEDVALUE,P_LISTVALUE,P_TABLEVALUE,P_REFERENCEVALUE,Q_LENGTH,Q_AREA,Q_VOLUME,Q_COUNT,Q_WEIGHT,Q_TIME)
    0x06001833, // DefinedType(IFCSIMPLEPROPERTYTEMPLATETYPEENUM,#583)
    0x05003942, // EnumerationType(FLOOR,ROOF,LANDING,BASESLAB,APPROACH_SLAB,PAVING,WEARING,SIDEWALK,TRACKSLAB,USERDEFINED,NOTDEFINED)
    0x06001867, // DefinedType(IFCSLABTYPEENUM,#585)
    0x010047C7, // EnumerationType(SOLARCOLLECTOR,SOLARPANEL,USERDEFINED,NOTDEFINED)
    0x06001889, // DefinedType(IFCSOLARDEVICETYPEENUM,#587)
    0x01004832, // EnumerationType(CONVECTOR,RADIATOR,USERDEFINED,NOTDEFINED)
    0x060018B2, // DefinedType(IFCSPACEHEATERTYPEENUM,#589)
    0x060018DB, // EnumerationType(SPACE,PARKING,GFA,INTERNAL,EXTERNAL,BERTH,USERDEFINED,NOTDEFINED)
    0x0600192D, // DefinedType(IFCSPACETYPEENUM,#591)
    0x05003A4D, // EnumerationType(CONSTRUCTION,FIRESAFETY,LIGHTING,OCCUPANCY,SECURITY,THERMAL,TRANSPORT,VENTILATION,RESERVATION,USERDEFINED,NOTDEFINED)
    0x06001950, // DefinedType(IFCSPATIALZONETYPEENUM,#593)
    0x000063E2, // EnumerationType(BIRDCAGE,COWL,RAINWATERHOPPER,USERDEFINED,NOTDEFINED)
    0x06001979, // DefinedType(IFCSTACKTERMINALTYPEENUM,#595)
    0x00006453, // EnumerationType(STRAIGHT,WINDER,SPIRAL,CURVED,FREEFORM,USERDEFINED,NOTDEFINED)
    0x060019A4, // DefinedType(IFCSTAIRFLIGHTTYPEENUM,#597)
    0x05003B50, // EnumerationType(STRAIGHT_RUN_STAIR,TWO_STRAIGHT_RUN_STAIR,QUARTER_WINDING_STAIR,QUARTER_TURN_STAIR,HALF_WINDING_STAIR,HALF_TURN_STAIR,TWO_QUARTER_WINDING_STAIR,TWO_QUARTER_TURN_STAIR,THREE_QUARTER_WINDING_STAIR,THREE_QUARTER_TURN_STAIR,SPIRAL_STAIR,DOUBLE_RETURN_STAIR,CURVED_RUN_STAIR,TWO_CURVED_RUN_STAIR,LADDER,USERDEFINED,NOTDEFINED)
    0x060019CD, // DefinedType(IFCSTAIRTYPEENUM,#599)
    0x01004A1F, // EnumerationType(CONST,LINEAR,POLYGONAL,EQUIDISTANT,SINUS,PARABOLA,DISCRETE,USERDEFINED,NOTDEFINED)
    0x060019F0, // DefinedType(IFCSTRUCTURALCURVEACTIVITYTYPEENUM,#601)
    0x000066A2, // EnumerationType(RIGID_JOINED_MEMBER,PIN_JOINED_MEMBER,CABLE,TENSION_MEMBER,COMPRESSION_MEMBER,USERDEFINED,NOTDEFINED)
    0x06001A25, // DefinedType(IFCSTRUCTURALCURVEMEMBERTYPEENUM,#603)
    0x01004AEA, // EnumerationType(CONST,BILINEAR,DISCRETE,ISOCONTOUR,USERDEFINED,NOTDEFINED)
    0x06001A58, // DefinedType(IFCSTRUCTURALSURFACEACTIVITYTYPEENUM,#605)
    0x00006745, // EnumerationType(BENDING_ELEMENT,MEMBRANE_ELEMENT,SHELL,USERDEFINED,NOTDEFINED)
    0x06001A8F, // DefinedType(IFCSTRUCTURALSURFACEMEMBERTYPEENUM,#607)
    0x01004BA1, // EnumerationType(PURCHASE,WORK,USERDEFINED,NOTDEFINED)
    0x06001AC4, // DefinedType(IFCSUBCONTRACTRESOURCETYPEENUM,#609)
    0x05003DCA, // EnumerationType(MARK,TAG,TREATMENT,DEFECT,HATCHMARKING,LINEMARKING,PAVEMENTSURFACEMARKING,SYMBOLMARKING,NONSKIDSURFACING,RUMBLESTRIP,TRANSVERSERUMBLESTRIP,USERDEFINED,NOTDEFINED)
    0x06001AF5, // DefinedType(IFCSURFACEFEATURETYPEENUM,#611)
    0x000067C3, // EnumerationType(POSITIVE,NEGATIVE,BOTH)
    0x06001B21, // DefinedType(IFCSURFACESIDE,#613)
    0x05003ECA, // EnumerationType(CONTACTOR,DIMMERSWITCH,EMERGENCYSTOP,KEYPAD,MOMENTARYSWITCH,SELECTORSWITCH,STARTER,SWITCHDISCONNECTOR,TOGGLESWITCH,RELAY,START_AND_STOP_EQUIPMENT,USERDEFINED,NOTDEFINED)
    0x06001B42, // DefinedType(IFCSWITCHINGDEVICETYPEENUM,#615)
    0x05003FB1, // EnumerationType(PANEL,WORKSURFACE,SUBRACK,USERDEFINED,NOTDEFINED)
    0x06001B6F, // DefinedType(IFCSYSTEMFURNITUREELEMENTTYPEENUM,#617)
    0x05004027, // EnumerationType(BASIN,BREAKPRESSURE,EXPANSION,FEEDANDEXPANSION,PRESSUREVESSEL,STORAGE,VESSEL,OILRETENTIONTRAY,USERDEFINED,NOTDEFINED)
    0x06001BA3, // DefinedType(IFCTANKTYPEENUM,#619)
    0x01004E5D, // EnumerationType(ELAPSEDTIME,WORKTIME,NOTDEFINED)
    0x06001BC5, // DefinedType(IFCTASKDURATIONENUM,#621)
    0x01004EB4, // EnumerationType(ATTENDANCE,CONSTRUCTION,DEMOLITION,DISMANTLE,DISPOSAL,INSTALLATION,LOGISTIC,MAINTENANCE,MOVE,OPERATION,REMOVAL,RENOVATION,USERDEFINED,NOTDEFINED)
    0x06001BEB, // DefinedType(IFCTASKTYPEENUM,#623)
    0x01004F78, // EnumerationType(COUPLER,FIXED_END,TENSIONING_END,USERDEFINED,NOTDEFINED)
    0x06001C0D, // DefinedType(IFCTENDONANCHORTYPEENUM,#625)
    0x030025DC, // EnumerationType(DUCT,COUPLER,GROUTING_DUCT,TRUMPET,DIABOLO,USERDEFINED,NOTDEFINED)
    0x06001C37, // DefinedType(IFCTENDONCONDUITTYPEENUM,#627)
    0x01004FEB, // EnumerationType(BAR,COATED,STRAND,WIRE,USERDEFINED,NOTDEFINED)
    0x06001C62, // DefinedType(IFCTENDONTYPEENUM,#629)
    0x00006A13, // EnumerationType(LEFT,RIGHT,UP,DOWN)
    0x06001C86, // DefinedType(IFCTEXTPATH,#631)
    0x00006BA6, // EnumerationType(CONTINUOUS,DISCRETE,DISCRETEBINARY,PIECEWISEBINARY,PIECEWISECONSTANT,PIECEWISECONTINUOUS,NOTDEFINED)
    0x06001CA4, // DefinedType(IFCTIMESERIESDATATYPEENUM,#633)
    0x050041DA, // EnumerationType(TRACKENDOFALIGNMENT,BLOCKINGDEVICE,VEHICLESTOP,SLEEPER,HALF_SET_OF_BLADES,SPEEDREGULATOR,DERAILER,FROG,USERDEFINED,NOTDEFINED)
    0x06001CD0, // DefinedType(IFCTRACKELEMENTTYPEENUM,#635)
    0x05004293, // EnumerationType(CURRENT,FREQUENCY,INVERTER,RECTIFIER,VOLTAGE,CHOPPER,COMBINED,USERDEFINED,NOTDEFINED)
    0x06001CFA, // DefinedType(IFCTRANSFORMERTYPEENUM,#637)
    0x00006D26, // EnumerationType(DISCONTINUOUS,CONTINUOUS,CONTSAMEGRADIENT,CONTSAMEGRADIENTSAMECURVATURE)
    0x06001D23, // DefinedType(IFCTRANSITIONCODE,#639)
    0x06001D47, // EnumerationType(ELEVATOR,ESCALATOR,MOVINGWALKWAY,CRANEWAY,LIFTINGGEAR,HAULINGGEAR,USERDEFINED,NOTDEFINED)
    0x06001DB1, // DefinedType(IFCTRANSPORTELEMENTFIXEDTYPEENUM,#641)
    0x050043A2, // EnumerationType(VEHICLE,VEHICLETRACKED,ROLLINGSTOCK,VEHICLEWHEELED,VEHICLEAIR,CARGO,VEHICLEMARINE,USERDEFINED,NOTDEFINED)
    0x06001DE4, // DefinedType(IFCTRANSPORTELEMENTNONFIXEDTYPEENUM,#643)
    0x00006E1A, // EnumerationType(CARTESIAN,PARAMETER,UNSPECIFIED)
    0x06001E1A, // DefinedType(IFCTRIMMINGPREFERENCE,#645)
    0x00006E73, // EnumerationType(FINNED,USERDEFINED,NOTDEFINED)
    0x06001E42, // DefinedType(IFCTUBEBUNDLETYPEENUM,#647)
    0x00006ECA, // EnumerationType(ABSORBEDDOSEUNIT,AMOUNTOFSUBSTANCEUNIT,AREAUNIT,DOSEEQUIVALENTUNIT,ELECTRICCAPACITANCEUNIT,ELECTRICCHARGEUNIT,ELECTRICCONDUCTANCEUNIT,ELECTRICCURRENTUNIT,ELECTRICRESISTANCEUNIT,ELECTRICVOLTAGEUNIT,ENERGYUNIT,FORCEUNIT,FREQUENCYUNIT,ILLUMINANCEUNIT,INDUCTANCEUNIT,LENGTHUNIT,LUMINOUSFLUXUNIT,LUMINOUSINTENSITYUNIT,MAGNETICFLUXDENSITYUNIT,MAGNETICFLUXUNIT,MASSUNIT,PLANEANGLEUNIT,POWERUNIT,PRESSUREUNIT,RADIOACTIVITYUNIT,SOLIDANGLEUNIT,THERMODYNAMICTEMPERATUREUNIT,TIMEUNIT,VOLUMEUNIT,USERDEFINED)
    0x06001E6A, // DefinedType(IFCUNITENUM,#649)
    0x050044C0, // EnumerationType(ALARMPANEL,CONTROLPANEL,GASDETECTIONPANEL,INDICATORPANEL,MIMICPANEL,HUMIDISTAT,THERMOSTAT,WEATHERSTATION,COMBINED,USERDEFINED,NOTDEFINED)
    0x06001E88, // DefinedType(IFCUNITARYCONTROLELEMENTTYPEENUM,#651)
    0x010052F8, // EnumerationType(AIRHANDLER,AIRCONDITIONINGUNIT,DEHUMIDIFIER,SPLITSYSTEM,ROOFTOPUNIT,USERDEFINED,NOTDEFINED)
    0x06001EBB, // DefinedType(IFCUNITARYEQUIPMENTTYPEENUM,#653)
    0x00007175, // EnumerationType(AIRRELEASE,ANTIVACUUM,CHANGEOVER,CHECK,COMMISSIONING,DIVERTING,DRAWOFFCOCK,DOUBLECHECK,DOUBLEREGULATING,FAUCET,FLUSHING,GASCOCK,GASTAP,ISOLATING,MIXING,PRESSUREREDUCING,PRESSURERELIEF,REGULATING,SAFETYCUTOFF,STEAMTRAP,STOPCOCK,USERDEFINED,NOTDEFINED)
    0x06001EE9, // DefinedType(IFCVALVETYPEENUM,#655)
    0x0300285E, // EnumerationType(BENDING_YIELD,SHEAR_YIELD,AXIAL_YIELD,FRICTION,VISCOUS,RUBBER,USERDEFINED,NOTDEFINED)
    0x06001F0C, // DefinedType(IFCVIBRATIONDAMPERTYPEENUM,#657)
    0x030028F1, // EnumerationType(COMPRESSION,SPRING,BASE,USERDEFINED,NOTDEFINED)
    0x06001F39, // DefinedType(IFCVIBRATIONISOLATORTYPEENUM,#659)
    0x010053E4, // EnumerationType(CUTOUT,NOTCH,HOLE,MITER,CHAMFER,EDGE,USERDEFINED,NOTDEFINED)
    0x04007B17, // DefinedType(IFCVOIDINGFEATURETYPEENUM,#661)
    0x05004666, // EnumerationType(MOVABLE,PARAPET,PARTITIONING,PLUMBINGWALL,SHEAR,SOLIDWALL,STANDARD,POLYGONAL,ELEMENTEDWALL,RETAININGWALL,WAVEWALL,USERDEFINED,NOTDEFINED)
    0x04007BDD, // DefinedType(IFCWALLTYPEENUM,#663)
    0x01005502, // EnumerationType(FLOORTRAP,FLOORWASTE,GULLYSUMP,GULLYTRAP,ROOFDRAIN,WASTEDISPOSALUNIT,WASTETRAP,USERDEFINED,NOTDEFINED)
    0x04007BFF, // DefinedType(IFCWASTETERMINALTYPEENUM,#665)
    0x00007460, // EnumerationType(SIDEHUNGRIGHTHAND,SIDEHUNGLEFTHAND,TILTANDTURNRIGHTHAND,TILTANDTURNLEFTHAND,TOPHUNG,BOTTOMHUNG,PIVOTHORIZONTAL,PIVOTVERTICAL,SLIDINGHORIZONTAL,SLIDINGVERTICAL,REMOVABLECASEMENT,FIXEDCASEMENT,OTHEROPERATION,NOTDEFINED)
    0x04007D14, // DefinedType(IFCWINDOWPANELOPERATIONENUM,#667)
    0x00007578, // EnumerationType(LEFT,MIDDLE,RIGHT,BOTTOM,TOP,NOTDEFINED)
    0x04007D7B, // DefinedType(IFCWINDOWPANELPOSITIONENUM,#669)
    0x000075DE, // EnumerationType(ALUMINIUM,HIGH_GRADE_STEEL,STEEL,WOOD,ALUMINIUM_WOOD,PLASTIC,OTHER_CONSTRUCTION,NOTDEFINED)
    0x06001F68, // DefinedType(IFCWINDOWSTYLECONSTRUCTIONENUM,#671)
    0x0000767B, // EnumerationType(SINGLE_PANEL,DOUBLE_PANEL_VERTICAL,DOUBLE_PANEL_HORIZONTAL,TRIPLE_PANEL_VERTICAL,TRIPLE_PANEL_BOTTOM,TRIPLE_PANEL_TOP,TRIPLE_PANEL_LEFT,TRIPLE_PANEL_RIGHT,TRIPLE_PANEL_HORIZONTAL,USERDEFINED,NOTDEFINED)
    0x06001F99, // DefinedType(IFCWINDOWSTYLEOPERATIONENUM,#673)
    0x0100565E, // EnumerationType(WINDOW,SKYLIGHT,LIGHTDOME,USERDEFINED,NOTDEFINED)
    0x06001FC7, // DefinedType(IFCWINDOWTYPEENUM,#675)
    0x0000767B, // EnumerationType(SINGLE_PANEL,DOUBLE_PANEL_VERTICAL,DOUBLE_PANEL_HORIZONTAL,TRIPLE_PANEL_VERTICAL,TRIPLE_PANEL_BOTTOM,TRIPLE_PANEL_TOP,TRIPLE_PANEL_LEFT,TRIPLE_PANEL_RIGHT,TRIPLE_PANEL_HORIZONTAL,USERDEFINED,NOTDEFINED)
    0x06001FEB, // DefinedType(IFCWINDOWTYPEPARTITIONINGENUM,#677)
    0x010056F4, // EnumerationType(FIRSTSHIFT,SECONDSHIFT,THIRDSHIFT,USERDEFINED,NOTDEFINED)
    0x0600201B, // DefinedType(IFCWORKCALENDARTYPEENUM,#679)
    0x00007784, // EnumerationType(ACTUAL,BASELINE,PLANNED,USERDEFINED,NOTDEFINED)
    0x06002045, // DefinedType(IFCWORKPLANTYPEENUM,#681)
    0x00007784, // EnumerationType(ACTUAL,BASELINE,PLANNED,USERDEFINED,NOTDEFINED)
    0x0600206B, // DefinedType(IFCWORKSCHEDULETYPEENUM,#683)
    0x010057B8, // SelectType(#133,#105,#103)
    0x06002095, // DefinedType(IFCACTORSELECT,#685)
    0x00007B0A, // Entity(IFCMEASUREWITHUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007B45, // ExplicitAttr(VALUECOMPONENT)
    0x010057F4, // SelectType(#2,#3,#5,#10,#20,#23,#30,#32,#33,#34,#35,#37,#38,#39,#43,#44,#46,#47,#49,#50,#51,#52,#53,#54,#59,#60,#61,#62,#64,#65,#67,#68,#69,#70,#72,#73,#74,#75,#76,#77,#78,#79,#80,#86,#88,#93,#95,#164,#166,#167,#168,#169,#170,#171,#173,#174,#175,#176,#177,#180,#181,#186,#187,#188,#189,#190,#194,#196,#198,#199,#200)
    0x060020B6, // DefinedType(IFCDERIVEDMEASUREVALUE,#689)
    0x0100595A, // SelectType(#4,#11,#18,#21,#22,#28,#36,#56,#66,#71,#82,#84,#85,#87,#89,#90,#91,#92,#83,#172,#191,#193,#197)
    0x060020DF, // DefinedType(IFCMEASUREVALUE,#691)
    0x010059E7, // SelectType(#12,#13,#24,#25,#31,#48,#6,#14,#63,#7,#165,#122,#192,#156)
    0x06002101, // DefinedType(IFCSIMPLEVALUE,#693)
    0x06002122, // SelectType(#690,#692,#694)
    0x0600213D, // DefinedType(IFCVALUE,#695)
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
    0x06002158, // SetType(#700,1,-1)
    0x00007F53, // ExplicitAttr(UNITTYPE)
    0x00007F94, // ExplicitAttr(USERDEFINEDTYPE)
    0x01005A97, // DerivedAttr(DIMENSIONS)
    0x00007FB2, // Entity(IFCMONETARYUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007FEA, // ExplicitAttr(CURRENCY)
    0x0600216B, // SelectType(#698,#718,#702)
    0x06002186, // DefinedType(IFCUNIT,#720)
    0x01005AE4, // Entity(IFCREFERENCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01005B19, // ExplicitAttr(TYPEIDENTIFIER)
    0x01005B36, // ExplicitAttr(ATTRIBUTEIDENTIFIER)
    0x01005B58, // ExplicitAttr(INSTANCENAME)
    0x01005B73, // ExplicitAttr(LISTPOSITIONS)
    0x01005B8F, // ListType(#6,1,-1,DUPL)
    0x01005BA6, // ExplicitAttr(INNERREFERENCE)
    0x060021A0, // SelectType(#687,#722,#696)
    0x060021BB, // DefinedType(IFCAPPLIEDVALUESELECT,#729)
    0x00008077, // Entity(IFCAXIS2PLACEMENT2D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000080B3, // Entity(IFCPLACEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000080E4, // Entity(IFCGEOMETRICREPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008127, // Entity(IFCREPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008161, // ExplicitAttr(LOCATION)
    0x000081B2, // Entity(IFCPOINT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000850F, // DerivedAttr(DIM)
    0x00008210, // ExplicitAttr(REFDIRECTION)
    0x0000822B, // Entity(IFCDIRECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008260, // ExplicitAttr(DIRECTIONRATIOS)
    0x01005C1D, // ListType(#165,2,3,DUPL)
    0x0000850F, // DerivedAttr(DIM)
    0x0000829D, // Entity(IFCAXIS2PLACEMENT3D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000082D9, // ExplicitAttr(AXIS)
    0x00008210, // ExplicitAttr(REFDIRECTION)
    0x060021E3, // SelectType(#731,#743)
    0x060021F9, // DefinedType(IFCAXIS2PLACEMENT,#746)
    0x01005C6F, // SelectType(#56,#89)
    0x0600221D, // DefinedType(IFCBENDINGPARAMETERSELECT,#748)
    0x000083F7, // Entity(IFCBOOLEANRESULT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008430, // ExplicitAttr(OPERATOR)
    0x00008447, // ExplicitAttr(FIRSTOPERAND)
    0x00008462, // Entity(IFCCSGPRIMITIVE3D,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x0000850F, // DerivedAttr(DIM)
    0x00008358, // Entity(IFCHALFSPACESOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008392, // ExplicitAttr(BASESURFACE)
    0x000083AC, // Entity(IFCSURFACE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000850F, // DerivedAttr(DIM)
    0x000083DB, // ExplicitAttr(AGREEMENTFLAG)
    0x0000850F, // DerivedAttr(DIM)
    0x00008326, // Entity(IFCSOLIDMODEL,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000850F, // DerivedAttr(DIM)
    0x01005CAF, // Entity(IFCTESSELLATEDFACESET,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01005CE9, // Entity(IFCTESSELLATEDITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000081DF, // ExplicitAttr(COORDINATES)
    0x01005D20, // Entity(IFCCARTESIANPOINTLIST3D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01005D60, // Entity(IFCCARTESIANPOINTLIST,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000850F, // DerivedAttr(DIM)
    0x01005D9A, // ExplicitAttr(COORDLIST)
    0x01005DB2, // ListType(#56,3,3,DUPL)
    0x06002249, // ListType(#771,1,-1,DUPL)
    0x02002661, // ExplicitAttr(TAGLIST)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x0000850F, // DerivedAttr(DIM)
    0x06002262, // SelectType(#750,#753,#756,#762,#764)
    0x05004AD2, // DefinedType(IFCBOOLEANOPERAND,#776)
    0x000084F3, // ExplicitAttr(SECONDOPERAND)
    0x0000850F, // DerivedAttr(DIM)
    0x06002262, // SelectType(#750,#753,#756,#762,#764)
    0x06002287, // DefinedType(IFCBOOLEANOPERAND,#780)
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
    0x060022AB, // SelectType(#782,#792)
    0x05004B3F, // DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#798)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x01005F09, // ExplicitAttr(SORT)
    0x060022AB, // SelectType(#782,#792)
    0x060022C1, // DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#802)
    0x060022AB, // SelectType(#782,#792)
    0x060022F4, // DefinedType(IFCCLASSIFICATIONSELECT,#804)
    0x0000859C, // Entity(IFCCOLOURSPECIFICATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01005F79, // Entity(IFCPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x000085D7, // Entity(IFCPREDEFINEDCOLOUR,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000860F, // Entity(IFCPREDEFINEDITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x0600231E, // SelectType(#806,#809)
    0x06002334, // DefinedType(IFCCOLOUR,#812)
    0x000089B0, // Entity(IFCCOLOURRGB,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000089E5, // ExplicitAttr(RED)
    0x000089F7, // ExplicitAttr(GREEN)
    0x00008A0B, // ExplicitAttr(BLUE)
    0x06002350, // SelectType(#814,#84)
    0x06002365, // DefinedType(IFCCOLOURORFACTOR,#818)
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
    0x06002389, // SelectType(#820,#825)
    0x0600239F, // DefinedType(IFCCOORDINATEREFERENCESYSTEMSELECT,#833)
    0x060023D4, // SelectType(#750,#753)
    0x060023EA, // DefinedType(IFCCSGSELECT,#835)
    0x00008C3F, // Entity(IFCCURVESTYLEFONTANDSCALING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00008C83, // ExplicitAttr(CURVEFONT)
    0x00008B09, // Entity(IFCCURVESTYLEFONT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00008B43, // ExplicitAttr(PATTERNLIST)
    0x00008B5D, // Entity(IFCCURVESTYLEFONTPATTERN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008B9E, // ExplicitAttr(VISIBLESEGMENTLENGTH)
    0x00008BC1, // ExplicitAttr(INVISIBLESEGMENTLENGTH)
    0x06002409, // ListType(#843,1,-1,DUPL)
    0x00008ACE, // Entity(IFCPREDEFINEDCURVEFONT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x06002422, // SelectType(#840,#847)
    0x06002438, // DefinedType(IFCCURVESTYLEFONTSELECT,#848)
    0x00008C9B, // ExplicitAttr(CURVEFONTSCALING)
    0x06002462, // SelectType(#837,#849)
    0x06002478, // DefinedType(IFCCURVEFONTORSCALEDCURVEFONTSELECT,#851)
    0x060024AE, // SelectType(#82,#87)
    0x060024C2, // DefinedType(IFCCURVEMEASURESELECT,#853)
    0x010061F7, // Entity(IFCCOMPOSITECURVEONSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BA87, // Entity(IFCCOMPOSITECURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008D06, // Entity(IFCBOUNDEDCURVE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008D3A, // Entity(IFCCURVE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000850F, // DerivedAttr(DIM)
    0x0000BAC1, // ExplicitAttr(SEGMENTS)
    0x040084C3, // Entity(IFCSEGMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BB19, // ExplicitAttr(TRANSITION)
    0x060024EA, // ListType(#861,1,-1,DUPL)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x0100623A, // DerivedAttr(NSEGMENTS)
    0x01006251, // DerivedAttr(CLOSEDCURVE)
    0x0100626A, // DerivedAttr(BASISSURFACE)
    0x06002503, // SetType(#758,0,1)
    0x01006296, // Entity(IFCPCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x010062C8, // ExplicitAttr(REFERENCECURVE)
    0x010062E5, // Entity(IFCSURFACECURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100631D, // ExplicitAttr(CURVE3D)
    0x01006333, // ExplicitAttr(ASSOCIATEDGEOMETRY)
    0x06002515, // ListType(#869,1,2,DUPL)
    0x00018F1A, // ExplicitAttr(MASTERREPRESENTATION)
    0x0100626A, // DerivedAttr(BASISSURFACE)
    0x0600252D, // SetType(#758,1,2)
    0x0600253F, // SelectType(#855,#869,#872)
    0x0600255A, // DefinedType(IFCCURVEONSURFACE,#879)
    0x00008D67, // Entity(IFCEDGECURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008D9C, // Entity(IFCEDGE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008DCC, // Entity(IFCTOPOLOGICALREPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008E11, // ExplicitAttr(EDGESTART)
    0x00008E29, // Entity(IFCVERTEX,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008E5B, // ExplicitAttr(EDGEEND)
    0x00008E71, // ExplicitAttr(EDGEGEOMETRY)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x0600257E, // SelectType(#857,#881)
    0x06002594, // DefinedType(IFCCURVEOREDGECURVE,#889)
    0x0000B4C2, // Entity(IFCOBJECTDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x060025BA, // SelectType(#891,#97)
    0x060025CF, // DefinedType(IFCDEFINITIONSELECT,#892)
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
    0x060025F5, // SetType(#686,1,-1)
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
    0x06002608, // SelectType(#894,#913)
    0x0600261E, // DefinedType(IFCDOCUMENTSELECT,#916)
    0x06002642, // SelectType(#254,#400,#466,#536,#560)
    0x06002667, // DefinedType(IFCFACILITYPARTTYPESELECT,#918)
    0x00009C26, // Entity(IFCEXTERNALLYDEFINEDHATCHSTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000098B6, // Entity(IFCFILLAREASTYLEHATCHING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000098F7, // ExplicitAttr(HATCHLINEAPPEARANCE)
    0x000096F3, // Entity(IFCCURVESTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009729, // Entity(IFCPRESENTATIONSTYLE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00008C83, // ExplicitAttr(CURVEFONT)
    0x00009762, // ExplicitAttr(CURVEWIDTH)
    0x01006481, // SelectType(#28,#56,#84,#90,#92,#83)
    0x06002693, // DefinedType(IFCSIZESELECT,#928)
    0x000097BF, // ExplicitAttr(CURVECOLOUR)
    0x010064C5, // ExplicitAttr(MODELORDRAUGHTING)
    0x00009919, // ExplicitAttr(STARTOFNEXTHATCHLINE)
    0x0000999B, // Entity(IFCVECTOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x000099E7, // ExplicitAttr(MAGNITUDE)
    0x0000850F, // DerivedAttr(DIM)
    0x060026B3, // SelectType(#90,#933)
    0x060026C8, // DefinedType(IFCHATCHLINEDISTANCESELECT,#937)
    0x00009A41, // ExplicitAttr(POINTOFREFERENCEHATCHLINE)
    0x00008178, // Entity(IFCCARTESIANPOINT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000081DF, // ExplicitAttr(COORDINATES)
    0x01005C06, // ListType(#56,1,3,DUPL)
    0x0000850F, // DerivedAttr(DIM)
    0x00009A69, // ExplicitAttr(PATTERNSTART)
    0x00009A84, // ExplicitAttr(HATCHLINEANGLE)
    0x00009AA1, // Entity(IFCFILLAREASTYLETILES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009ADF, // ExplicitAttr(TILINGPATTERN)
    0x060026F5, // ListType(#933,2,2,DUPL)
    0x00009AFB, // ExplicitAttr(TILES)
    0x0000964E, // Entity(IFCSTYLEDITEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009684, // ExplicitAttr(ITEM)
    0x00009697, // ExplicitAttr(STYLES)
    0x02002C2B, // SetType(#924,1,-1)
    0x00007836, // ExplicitAttr(NAME)
    0x01009813, // SetType(#950,1,-1)
    0x00009C0C, // ExplicitAttr(TILINGSCALE)
    0x0600270D, // SelectType(#813,#920,#921,#946)
    0x0600272D, // DefinedType(IFCFILLSTYLESELECT,#957)
    0x06002752, // SelectType(#858,#736,#758)
    0x0600276D, // DefinedType(IFCGEOMETRICSETSELECT,#959)
    0x00011657, // Entity(IFCVIRTUALGRIDINTERSECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001169A, // ExplicitAttr(INTERSECTINGAXES)
    0x0001155A, // Entity(IFCGRIDAXIS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001158E, // ExplicitAttr(AXISTAG)
    0x000115A4, // ExplicitAttr(AXISCURVE)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x06002795, // ListType(#963,2,2,UNIQ)
    0x000116D2, // ExplicitAttr(OFFSETDISTANCES)
    0x010067D4, // ListType(#56,2,3,DUPL)
    0x060027AD, // SelectType(#739,#961)
    0x060027C3, // DefinedType(IFCGRIDPLACEMENTDIRECTIONSELECT,#970)
    0x060027F5, // SelectType(#434,#658,#660)
    0x06002810, // DefinedType(IFCIMPACTPROTECTIONDEVICETYPESELECT,#972)
    0x0000B844, // Entity(IFCELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B465, // Entity(IFCPRODUCT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B494, // Entity(IFCOBJECT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B741, // ExplicitAttr(OBJECTTYPE)
    0x0000B75A, // ExplicitAttr(OBJECTPLACEMENT)
    0x0000B778, // Entity(IFCOBJECTPLACEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00011FF3, // ExplicitAttr(PLACEMENTRELTO)
    0x0000B7AF, // ExplicitAttr(REPRESENTATION)
    0x01006E89, // Entity(IFCPRODUCTREPRESENTATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000B80D, // ExplicitAttr(REPRESENTATIONS)
    0x01006833, // Entity(IFCREPRESENTATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000A634, // ExplicitAttr(CONTEXTOFITEMS)
    0x0000A6CC, // ExplicitAttr(REPRESENTATIONIDENTIFIER)
    0x0000A6F3, // ExplicitAttr(REPRESENTATIONTYPE)
    0x0000A714, // ExplicitAttr(ITEMS)
    0x06002846, // SetType(#734,1,-1)
    0x01006953, // ListType(#986,1,-1,DUPL)
    0x0000B873, // ExplicitAttr(TAG)
    0x0100737A, // Entity(IFCSPATIALELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000D46C, // ExplicitAttr(LONGNAME)
    0x06002859, // SelectType(#974,#994)
    0x0600286F, // DefinedType(IFCINTERFERENCESELECT,#996)
    0x06002897, // SelectType(#986,#734)
    0x060028AD, // DefinedType(IFCLAYEREDITEM,#998)
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
    0x060028CE, // SelectType(#1000,#1007)
    0x060028E6, // DefinedType(IFCLIBRARYSELECT,#1011)
    0x0000A89F, // Entity(IFCLIGHTINTENSITYDISTRIBUTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A8E5, // ExplicitAttr(LIGHTDISTRIBUTIONCURVE)
    0x0000A90A, // ExplicitAttr(DISTRIBUTIONDATA)
    0x0000A929, // Entity(IFCLIGHTDISTRIBUTIONDATA,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A96A, // ExplicitAttr(MAINPLANEANGLE)
    0x0000A987, // ExplicitAttr(SECONDARYPLANEANGLE)
    0x01006923, // ListType(#89,1,-1,DUPL)
    0x0000A9C1, // ExplicitAttr(LUMINOUSINTENSITY)
    0x0100693B, // ListType(#65,1,-1,DUPL)
    0x0600290A, // ListType(#1016,1,-1,DUPL)
    0x06002924, // SelectType(#793,#1013)
    0x0600293B, // DefinedType(IFCLIGHTDISTRIBUTIONDATASOURCESELECT,#1023)
    0x010069B9, // Entity(IFCMATERIALDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000AA93, // Entity(IFCMATERIALLIST,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000AACB, // ExplicitAttr(MATERIALS)
    0x0000AA5F, // Entity(IFCMATERIAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0001042D, // ExplicitAttr(CATEGORY)
    0x0300363B, // ListType(#1028,1,-1,DUPL)
    0x01006A0C, // Entity(IFCMATERIALUSAGEDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x06002973, // SelectType(#1025,#1026,#1033)
    0x06002991, // DefinedType(IFCMATERIALSELECT,#1034)
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
    0x060029B6, // ListType(#1036,1,-1,DUPL)
    0x0000AD9F, // Entity(IFCTABLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x0000ADD0, // ExplicitAttr(ROWS)
    0x0000ADE3, // Entity(IFCTABLEROW,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000AE17, // ExplicitAttr(ROWCELLS)
    0x060029D0, // ListType(#696,1,-1,DUPL)
    0x0000AE47, // ExplicitAttr(ISHEADING)
    0x060029E9, // ListType(#1051,1,-1,DUPL)
    0x01006B11, // ExplicitAttr(COLUMNS)
    0x01006B27, // Entity(IFCTABLECOLUMN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C5B4, // ExplicitAttr(IDENTIFIER)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x01006B5E, // ExplicitAttr(REFERENCEPATH)
    0x06002A03, // ListType(#1057,1,-1,DUPL)
    0x01006B94, // DerivedAttr(NUMBEROFCELLSINROW)
    0x01006BB4, // DerivedAttr(NUMBEROFHEADINGS)
    0x01006BD2, // DerivedAttr(NUMBEROFDATAROWS)
    0x0000AE78, // Entity(IFCTIMESERIES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000AEAA, // ExplicitAttr(STARTTIME)
    0x0000AEC2, // ExplicitAttr(ENDTIME)
    0x0000AED8, // ExplicitAttr(TIMESERIESDATATYPE)
    0x0000AEF9, // ExplicitAttr(DATAORIGIN)
    0x0000AF12, // ExplicitAttr(USERDEFINEDDATAORIGIN)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x06002A1D, // SelectType(#1036,#687,#722,#1048,#1067,#696)
    0x06002A4A, // DefinedType(IFCMETRICVALUESELECT,#1076)
    0x01006C45, // SelectType(#13,#75)
    0x06002A72, // DefinedType(IFCMODULUSOFROTATIONALSUBGRADEREACTIONSELECT,#1078)
    0x01006C99, // SelectType(#13,#76)
    0x06002AB2, // DefinedType(IFCMODULUSOFSUBGRADEREACTIONSELECT,#1080)
    0x01006CE3, // SelectType(#13,#74)
    0x06002AE8, // DefinedType(IFCMODULUSOFTRANSLATIONALSUBGRADEREACTIONSELECT,#1082)
    0x06002B2B, // SelectType(#125,#1036,#793,#1025,#133,#105,#103,#1048,#1067)
    0x06002B68, // DefinedType(IFCOBJECTREFERENCESELECT,#1084)
    0x0000B140, // Entity(IFCVERTEXPOINT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B177, // ExplicitAttr(VERTEXGEOMETRY)
    0x06002B94, // SelectType(#736,#1086)
    0x06002BAB, // DefinedType(IFCPOINTORVERTEXPOINT,#1088)
    0x0001276D, // Entity(IFCPROCESS,ABSTRACT,SIMPLE,INDEPENDENT)
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
    0x06002BD4, // SelectType(#1090,#1093)
    0x06002BEC, // DefinedType(IFCPROCESSSELECT,#1101)
    0x0000F8C9, // Entity(IFCPRODUCTDEFINITIONSHAPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BE96, // Entity(IFCREPRESENTATIONMAP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BED3, // ExplicitAttr(MAPPINGORIGIN)
    0x0000BEEF, // ExplicitAttr(MAPPEDREPRESENTATION)
    0x06002C10, // SelectType(#1103,#1104)
    0x06002C28, // DefinedType(IFCPRODUCTREPRESENTATIONSELECT,#1107)
    0x0000BD3D, // Entity(IFCTYPEPRODUCT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BE75, // ExplicitAttr(REPRESENTATIONMAPS)
    0x06002C5A, // ListType(#1104,1,-1,UNIQ)
    0x0000B873, // ExplicitAttr(TAG)
    0x06002C74, // SelectType(#975,#1109)
    0x06002C8B, // DefinedType(IFCPRODUCTSELECT,#1113)
    0x01006F7F, // SelectType(#96,#163)
    0x06002CAF, // DefinedType(IFCPROPERTYSETDEFINITIONSELECT,#1115)
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
    0x06002CE1, // ListType(#1149,1,-1,DUPL)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000F87C, // ExplicitAttr(PRODUCTDEFINITIONAL)
    0x0000F89E, // ExplicitAttr(PARTOFPRODUCTDEFINITIONSHAPE)
    0x06002CFB, // SelectType(#116,#1036,#1117,#1127,#1135,#1137,#783,#793,#1025,#133,#105,#103,#1140,#1143,#1146,#1147,#1067)
    0x06002D67, // DefinedType(IFCRESOURCEOBJECTSELECT,#1155)
    0x0000E735, // Entity(IFCRESOURCE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x0100714E, // Entity(IFCTYPERESOURCE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x01007182, // ExplicitAttr(RESOURCETYPE)
    0x06002D92, // SelectType(#1157,#1160)
    0x06002DAA, // DefinedType(IFCRESOURCESELECT,#1164)
    0x010071DA, // SelectType(#13,#168)
    0x06002DCF, // DefinedType(IFCROTATIONALSTIFFNESSSELECT,#1166)
    0x0100721F, // SelectType(#9,#58)
    0x06002DFF, // DefinedType(IFCSEGMENTINDEXSELECT,#1168)
    0x0000B1D2, // Entity(IFCCLOSEDSHELL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B209, // Entity(IFCCONNECTEDFACESET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B245, // ExplicitAttr(CFSFACES)
    0x0000B25C, // Entity(IFCFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B28C, // ExplicitAttr(BOUNDS)
    0x0000B2A1, // Entity(IFCFACEBOUND,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B2D6, // ExplicitAttr(BOUND)
    0x0000B2EA, // Entity(IFCLOOP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x03003C04, // SetType(#1175,1,-1)
    0x0100AFA9, // SetType(#1173,1,-1)
    0x0000B340, // Entity(IFCOPENSHELL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x06002E28, // SelectType(#1170,#1181)
    0x06002E40, // DefinedType(IFCSHELL,#1182)
    0x06002E5C, // SelectType(#1170,#762)
    0x06002E73, // DefinedType(IFCSOLIDORSHELL,#1184)
    0x010072F1, // Entity(IFCEXTERNALSPATIALELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01007333, // Entity(IFCEXTERNALSPATIALSTRUCTUREELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00015C27, // Entity(IFCSPACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D42D, // Entity(IFCSPATIALSTRUCTUREELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000D483, // ExplicitAttr(COMPOSITIONTYPE)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00015C7E, // ExplicitAttr(ELEVATIONWITHFLOORING)
    0x06002E96, // SelectType(#1186,#1189)
    0x06002EAE, // DefinedType(IFCSPACEBOUNDARYSELECT,#1194)
    0x0000C915, // Entity(IFCGROUP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x06002ED8, // SelectType(#1196,#975)
    0x06002EEF, // DefinedType(IFCSPATIALREFERENCESELECT,#1197)
    0x010073F2, // SelectType(#178,#179)
    0x06002F1C, // DefinedType(IFCSPECULARHIGHLIGHTSELECT,#1199)
    0x0000B42F, // Entity(IFCSTRUCTURALITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x06002F4A, // SelectType(#974,#1201)
    0x06002F61, // DefinedType(IFCSTRUCTURALACTIVITYASSIGNMENTSELECT,#1202)
    0x0000B924, // Entity(IFCFACEBASEDSURFACEMODEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B965, // ExplicitAttr(FBSMFACES)
    0x06002F9A, // SetType(#1171,1,-1)
    0x0000850F, // DerivedAttr(DIM)
    0x0000B8D3, // Entity(IFCFACESURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B90A, // ExplicitAttr(FACESURFACE)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x06002FAE, // SelectType(#1204,#1208,#758)
    0x06002FCB, // DefinedType(IFCSURFACEORFACESURFACE,#1211)
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
    0x01006597, // DerivedAttr(SCL)
    0x0000850F, // DerivedAttr(DIM)
    0x010065A8, // DerivedAttr(U)
    0x06002FF6, // ListType(#739,2,2,DUPL)
    0x00018945, // ExplicitAttr(PARAMETER)
    0x01005EA8, // ListType(#48,1,-1,DUPL)
    0x0600300E, // ListType(#1227,1,-1,DUPL)
    0x06003028, // SelectType(#1213,#1214,#1219,#1222,#1225)
    0x06003052, // DefinedType(IFCSURFACESTYLEELEMENTSELECT,#1245)
    0x00009F92, // Entity(IFCEXTERNALLYDEFINEDTEXTFONT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009F58, // Entity(IFCPREDEFINEDTEXTFONT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x06003082, // SelectType(#1247,#1248)
    0x0600309A, // DefinedType(IFCTEXTFONTSELECT,#1249)
    0x010074E3, // SelectType(#31,#83)
    0x060030BF, // DefinedType(IFCTIMEORRATIOSELECT,#1251)
    0x0100751F, // SelectType(#13,#61)
    0x060030E7, // DefinedType(IFCTRANSLATIONALSTIFFNESSSELECT,#1253)
    0x0600311A, // SelectType(#642,#644)
    0x06003130, // DefinedType(IFCTRANSPORTELEMENTTYPESELECT,#1255)
    0x06003161, // SelectType(#940,#87)
    0x06003176, // DefinedType(IFCTRIMMINGSELECT,#1257)
    0x0600319B, // SelectType(#739,#933)
    0x060031B1, // DefinedType(IFCVECTORORDIRECTION,#1259)
    0x010075DE, // SelectType(#13,#200)
    0x060031D9, // DefinedType(IFCWARPINGSTIFFNESSSELECT,#1261)
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
    0x06003206, // SetType(#1170,1,-1)
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
    0x03003D74, // Entity(IFCLINEARPOSITIONINGELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003652, // Entity(IFCPOSITIONINGELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x04009171, // Entity(IFCALIGNMENTCANT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0600321A, // Entity(IFCLINEARELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x040091E3, // ExplicitAttr(RAILHEADDISTANCE)
    0x04009202, // Entity(IFCALIGNMENTCANTSEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x04009242, // Entity(IFCALIGNMENTPARAMETERSEGMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0200378F, // ExplicitAttr(STARTTAG)
    0x020037A6, // ExplicitAttr(ENDTAG)
    0x020036CD, // ExplicitAttr(STARTDISTALONG)
    0x02003903, // ExplicitAttr(HORIZONTALLENGTH)
    0x04009283, // ExplicitAttr(STARTCANTLEFT)
    0x0400929F, // ExplicitAttr(ENDCANTLEFT)
    0x040092B9, // ExplicitAttr(STARTCANTRIGHT)
    0x040092D6, // ExplicitAttr(ENDCANTRIGHT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x040092F1, // Entity(IFCALIGNMENTHORIZONTAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x04009330, // Entity(IFCALIGNMENTHORIZONTALSEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0200380D, // ExplicitAttr(STARTPOINT)
    0x02003826, // ExplicitAttr(STARTDIRECTION)
    0x04009376, // ExplicitAttr(STARTRADIUSOFCURVATURE)
    0x0400939B, // ExplicitAttr(ENDRADIUSOFCURVATURE)
    0x02003843, // ExplicitAttr(SEGMENTLENGTH)
    0x040093BE, // ExplicitAttr(GRAVITYCENTERLINEHEIGHT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x040093E4, // Entity(IFCALIGNMENTSEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x04009420, // ExplicitAttr(DESIGNPARAMETERS)
    0x0400943F, // Entity(IFCALIGNMENTVERTICAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0400947C, // Entity(IFCALIGNMENTVERTICALSEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x020036CD, // ExplicitAttr(STARTDISTALONG)
    0x02003903, // ExplicitAttr(HORIZONTALLENGTH)
    0x02003922, // ExplicitAttr(STARTHEIGHT)
    0x0200393C, // ExplicitAttr(STARTGRADIENT)
    0x040094C0, // ExplicitAttr(ENDGRADIENT)
    0x040094DA, // ExplicitAttr(RADIUSOFCURVATURE)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000C237, // Entity(IFCANNOTATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000C26D, // Entity(IFCANNOTATIONFILLAREA,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C2AB, // ExplicitAttr(OUTERBOUNDARY)
    0x0000C2C7, // ExplicitAttr(INNERBOUNDARIES)
    0x02002C92, // SetType(#858,1,-1)
    0x0000C6EA, // Entity(IFCAPPROVALRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010077FB, // Entity(IFCRESOURCELEVELRELATIONSHIP,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000C748, // ExplicitAttr(RELATINGAPPROVAL)
    0x0100783C, // ExplicitAttr(RELATEDAPPROVALS)
    0x0600324F, // SetType(#1117,1,-1)
    0x0000C767, // Entity(IFCARBITRARYCLOSEDPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C812, // ExplicitAttr(OUTERCURVE)
    0x0000C82B, // Entity(IFCARBITRARYOPENPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C86E, // ExplicitAttr(CURVE)
    0x0000C882, // Entity(IFCARBITRARYPROFILEDEFWITHVOIDS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C8CA, // ExplicitAttr(INNERCURVES)
    0x02002C92, // SetType(#858,1,-1)
    0x0000C8E4, // Entity(IFCASSET,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x010079E2, // DerivedAttr(Z)
    0x04009521, // Entity(IFCAXIS2PLACEMENTLINEAR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000082D9, // ExplicitAttr(AXIS)
    0x00008210, // ExplicitAttr(REFDIRECTION)
    0x0000CC44, // Entity(IFCBSPLINECURVE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000CC78, // ExplicitAttr(DEGREE)
    0x0000CC8D, // ExplicitAttr(CONTROLPOINTSLIST)
    0x06003263, // ListType(#940,2,-1,DUPL)
    0x0000CCC6, // ExplicitAttr(CURVEFORM)
    0x0000CCDE, // ExplicitAttr(CLOSEDCURVE)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x01007A0A, // DerivedAttr(UPPERINDEXONCONTROLPOINTS)
    0x01007A31, // DerivedAttr(CONTROLPOINTS)
    0x0600327C, // ArrayType(#940,0,0,DUPL,REQ)
    0x01007A69, // Entity(IFCBSPLINECURVEWITHKNOTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01007AAA, // ExplicitAttr(KNOTMULTIPLICITIES)
    0x01007ACB, // ListType(#6,2,-1,DUPL)
    0x01007AE2, // ExplicitAttr(KNOTS)
    0x01007AF6, // ListType(#87,2,-1,DUPL)
    0x01007B0E, // ExplicitAttr(KNOTSPEC)
    0x01007B25, // DerivedAttr(UPPERINDEXONKNOTS)
    0x01007B44, // Entity(IFCBSPLINESURFACE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01007B7A, // Entity(IFCBOUNDEDSURFACE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01007BB0, // ExplicitAttr(UDEGREE)
    0x01007BC6, // ExplicitAttr(VDEGREE)
    0x0000CC8D, // ExplicitAttr(CONTROLPOINTSLIST)
    0x06003263, // ListType(#940,2,-1,DUPL)
    0x06003299, // ListType(#1428,2,-1,DUPL)
    0x01007BF6, // ExplicitAttr(SURFACEFORM)
    0x01007C10, // ExplicitAttr(UCLOSED)
    0x01007C26, // ExplicitAttr(VCLOSED)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x01007C3C, // DerivedAttr(UUPPER)
    0x01007C50, // DerivedAttr(VUPPER)
    0x01007A31, // DerivedAttr(CONTROLPOINTS)
    0x0600327C, // ArrayType(#940,0,0,DUPL,REQ)
    0x060032B3, // ArrayType(#1437,0,0,DUPL,REQ)
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
    0x01007D2B, // DerivedAttr(KNOTVUPPER)
    0x01007D43, // DerivedAttr(KNOTUUPPER)
    0x0000CCF8, // Entity(IFCBEAM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x040095CF, // Entity(IFCBUILTELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01007D5B, // Entity(IFCBEAMSTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CD5F, // Entity(IFCBEAMTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x04009607, // Entity(IFCBUILTELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x03003E6D, // Entity(IFCBEARING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x03003EA0, // Entity(IFCBEARINGTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x04009643, // Entity(IFCBOREHOLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x04009677, // Entity(IFCGEOTECHNICALASSEMBLY,ABSTRACT,SIMPLE,INDEPENDENT)
    0x040096B3, // Entity(IFCGEOTECHNICALELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
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
    0x0000850F, // DerivedAttr(DIM)
    0x0000D3A7, // Entity(IFCBOXEDHALFSPACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D3E1, // ExplicitAttr(ENCLOSURE)
    0x03003ED7, // Entity(IFCBRIDGE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x03003F09, // Entity(IFCFACILITY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
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
    0x0400973A, // Entity(IFCBUILTSYSTEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x03003FAB, // Entity(IFCCAISSONFOUNDATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x03003FE8, // Entity(IFCDEEPFOUNDATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x03004022, // Entity(IFCCAISSONFOUNDATIONTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x03004063, // Entity(IFCDEEPFOUNDATIONTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008191, // Entity(IFCCARTESIANPOINTLIST2D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01005D9A, // ExplicitAttr(COORDLIST)
    0x010081D1, // ListType(#56,2,2,DUPL)
    0x060032D1, // ListType(#1581,1,-1,DUPL)
    0x02002661, // ExplicitAttr(TAGLIST)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x0000D942, // Entity(IFCCARTESIANTRANSFORMATIONOPERATOR2DNONUNIFORM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D999, // ExplicitAttr(SCALE2)
    0x01008202, // DerivedAttr(SCL2)
    0x0000D9AE, // Entity(IFCCARTESIANTRANSFORMATIONOPERATOR3D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D9FB, // ExplicitAttr(AXIS3)
    0x010065A8, // DerivedAttr(U)
    0x060032EB, // ListType(#739,3,3,DUPL)
    0x0000DA0F, // Entity(IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D999, // ExplicitAttr(SCALE2)
    0x0000DA66, // ExplicitAttr(SCALE3)
    0x01008202, // DerivedAttr(SCL2)
    0x0100822C, // DerivedAttr(SCL3)
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
    0x010082DB, // Entity(IFCCIVILELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008313, // Entity(IFCCIVILELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x040097A3, // Entity(IFCCLOTHOID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x040097D7, // Entity(IFCSPIRAL,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x04009805, // ExplicitAttr(CLOTHOIDCONSTANT)
    0x0100834F, // Entity(IFCCOIL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000DE27, // Entity(IFCCOILTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100837F, // Entity(IFCCOLOURRGBLIST,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010083B8, // ExplicitAttr(COLOURLIST)
    0x010083D1, // ListType(#84,3,3,DUPL)
    0x06003303, // ListType(#1627,1,-1,DUPL)
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
    0x04009852, // SetType(#1639,1,-1)
    0x010084DE, // Entity(IFCCOMPLEXPROPERTYTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008521, // Entity(IFCPROPERTYTEMPLATE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01008559, // Entity(IFCPROPERTYTEMPLATEDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000DEFE, // ExplicitAttr(USAGENAME)
    0x0100859B, // ExplicitAttr(TEMPLATETYPE)
    0x010085B6, // ExplicitAttr(HASPROPERTYTEMPLATES)
    0x0600331D, // SetType(#1646,1,-1)
    0x0000BAD8, // Entity(IFCCOMPOSITECURVESEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x0000BB32, // ExplicitAttr(PARENTCURVE)
    0x0000850F, // DerivedAttr(DIM)
    0x0000DF32, // Entity(IFCCOMPOSITEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DF71, // ExplicitAttr(PROFILES)
    0x06003331, // SetType(#1143,2,-1)
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
    0x060029B6, // ListType(#1036,1,-1,DUPL)
    0x0000E7C4, // ExplicitAttr(BASEQUANTITY)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100887C, // Entity(IFCCONSTRUCTIONEQUIPMENTRESOURCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010088C9, // Entity(IFCCONSTRUCTIONRESOURCETYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01008864, // ExplicitAttr(BASECOSTS)
    0x060029B6, // ListType(#1036,1,-1,DUPL)
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
    0x06003345, // SetType(#826,1,-1)
    0x00013758, // ExplicitAttr(UNITSINCONTEXT)
    0x00013775, // Entity(IFCUNITASSIGNMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000137AF, // ExplicitAttr(UNITS)
    0x06003358, // SetType(#721,1,-1)
    0x010089E2, // Entity(IFCCONTROLLER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000E8DF, // Entity(IFCCONTROLLERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008A18, // Entity(IFCCONVERSIONBASEDUNITWITHOFFSET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008A61, // ExplicitAttr(CONVERSIONOFFSET)
    0x040098A0, // Entity(IFCCONVEYORSEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x040098DB, // Entity(IFCCONVEYORSEGMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
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
    0x0600336B, // Entity(IFCCOSINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x04009952, // ExplicitAttr(COSINETERM)
    0x0400996B, // ExplicitAttr(CONSTANTTERM)
    0x0000E9ED, // Entity(IFCCOSTITEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01008B59, // ExplicitAttr(COSTVALUES)
    0x0600339D, // ListType(#1373,1,-1,DUPL)
    0x01008B8C, // ExplicitAttr(COSTQUANTITIES)
    0x060033B7, // ListType(#1140,1,-1,DUPL)
    0x0000EA21, // Entity(IFCCOSTSCHEDULE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000957E, // ExplicitAttr(STATUS)
    0x0000EA8C, // ExplicitAttr(SUBMITTEDON)
    0x0000EAC0, // ExplicitAttr(UPDATEDATE)
    0x040099BA, // Entity(IFCCOURSE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x040099EC, // Entity(IFCCOURSETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
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
    0x060033D1, // SetType(#858,0,-1)
    0x01008C12, // Entity(IFCCURVEBOUNDEDSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x01008C51, // ExplicitAttr(BOUNDARIES)
    0x060033E4, // SetType(#1479,1,-1)
    0x01008C7E, // ExplicitAttr(IMPLICITOUTER)
    0x04009A49, // Entity(IFCCURVESEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013130, // ExplicitAttr(PLACEMENT)
    0x04009A81, // ExplicitAttr(SEGMENTSTART)
    0x02003843, // ExplicitAttr(SEGMENTLENGTH)
    0x0000BB32, // ExplicitAttr(PARENTCURVE)
    0x0000850F, // DerivedAttr(DIM)
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
    0x04009A9C, // Entity(IFCDIRECTRIXCURVESWEPTAREASOLID,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00010638, // Entity(IFCSWEPTAREASOLID,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001066E, // ExplicitAttr(SWEPTAREA)
    0x00008498, // ExplicitAttr(POSITION)
    0x00018163, // ExplicitAttr(DIRECTRIX)
    0x0001817B, // ExplicitAttr(STARTPARAM)
    0x00018194, // ExplicitAttr(ENDPARAM)
    0x04009AE0, // Entity(IFCDIRECTRIXDERIVEDREFERENCESWEPTAREASOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009655, // Entity(IFCFIXEDREFERENCESWEPTAREASOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100969D, // ExplicitAttr(FIXEDREFERENCE)
    0x05005F75, // Entity(IFCDIRECTRIXDISTANCESWEPTAREASOLID,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00018163, // ExplicitAttr(DIRECTRIX)
    0x05005FBC, // ExplicitAttr(STARTDISTANCE)
    0x0400A52F, // Entity(IFCPOINTBYDISTANCEEXPRESSION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003CB8, // ExplicitAttr(DISTANCEALONG)
    0x02003CD4, // ExplicitAttr(OFFSETLATERAL)
    0x02003CF0, // ExplicitAttr(OFFSETVERTICAL)
    0x02003D0D, // ExplicitAttr(OFFSETLONGITUDINAL)
    0x00012977, // ExplicitAttr(BASISCURVE)
    0x0000850F, // DerivedAttr(DIM)
    0x05005FD8, // ExplicitAttr(ENDDISTANCE)
    0x0000F27D, // Entity(IFCDISCRETEACCESSORY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000F2F2, // Entity(IFCDISCRETEACCESSORYTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x04009B33, // Entity(IFCDISTRIBUTIONBOARD,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x04009B70, // Entity(IFCDISTRIBUTIONBOARDTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
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
    0x00015B04, // SetType(#894,1,-1)
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
    0x04009BC4, // Entity(IFCEARTHWORKSCUT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DB44, // Entity(IFCFEATUREELEMENTSUBTRACTION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000DB85, // Entity(IFCFEATUREELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x04009BFD, // Entity(IFCEARTHWORKSELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x04009C3A, // Entity(IFCEARTHWORKSFILL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0000FC2B, // Entity(IFCEDGELOOP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FC5F, // ExplicitAttr(EDGELIST)
    0x0000FC76, // Entity(IFCORIENTEDEDGE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FCAE, // ExplicitAttr(EDGEELEMENT)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x01008F8D, // DerivedAttr(EDGESTART)
    0x01008FA4, // DerivedAttr(EDGEEND)
    0x060033F8, // ListType(#1936,1,-1,DUPL)
    0x01008FD3, // DerivedAttr(NE)
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
    0x04009C8E, // Entity(IFCELECTRICFLOWTREATMENTDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x04009CD5, // Entity(IFCELECTRICFLOWTREATMENTDEVICETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x06003412, // SetType(#1140,1,-1)
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
    0x04009852, // SetType(#1639,1,-1)
    0x010094C4, // Entity(IFCEXTERNALREFERENCERELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100950D, // ExplicitAttr(RELATINGREFERENCE)
    0x0100952D, // ExplicitAttr(RELATEDRESOURCEOBJECTS)
    0x0100B5B8, // SetType(#1156,1,-1)
    0x000105FB, // Entity(IFCEXTRUDEDAREASOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010686, // ExplicitAttr(EXTRUDEDDIRECTION)
    0x0000D776, // ExplicitAttr(DEPTH)
    0x01009552, // Entity(IFCEXTRUDEDAREASOLIDTAPERED,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009596, // ExplicitAttr(ENDSWEPTAREA)
    0x000106A6, // Entity(IFCFACEOUTERBOUND,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000106E0, // Entity(IFCFACETEDBREP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00010764, // Entity(IFCFACETEDBREPWITHVOIDS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000107A4, // ExplicitAttr(VOIDS)
    0x06003206, // SetType(#1170,1,-1)
    0x03003F73, // Entity(IFCFACILITYPART,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x04009722, // ExplicitAttr(USAGETYPE)
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
    0x000109B5, // Entity(IFCFEATUREELEMENTADDITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00009864, // Entity(IFCFILLAREASTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000989D, // ExplicitAttr(FILLSTYLES)
    0x06003426, // SetType(#958,1,-1)
    0x010064C5, // ExplicitAttr(MODELORDRAUGHTING)
    0x010095E0, // Entity(IFCFILTER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000109F3, // Entity(IFCFILTERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01009612, // Entity(IFCFIRESUPPRESSIONTERMINAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00010A29, // Entity(IFCFIRESUPPRESSIONTERMINALTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
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
    0x06003439, // SetType(#960,1,-1)
    0x0000850F, // DerivedAttr(DIM)
    0x000113DF, // Entity(IFCGEOMETRICREPRESENTATIONSUBCONTEXT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001142C, // ExplicitAttr(PARENTCONTEXT)
    0x00011448, // ExplicitAttr(TARGETSCALE)
    0x00011462, // ExplicitAttr(TARGETVIEW)
    0x0001147B, // ExplicitAttr(USERDEFINEDTARGETVIEW)
    0x0001149F, // DerivedAttr(WORLDCOORDINATESYSTEM)
    0x000114C2, // DerivedAttr(COORDINATESPACEDIMENSION)
    0x000114E8, // DerivedAttr(TRUENORTH)
    0x000114FF, // DerivedAttr(PRECISION)
    0x04009E1E, // Entity(IFCGEOMODEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x04009E52, // Entity(IFCGEOSLICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0500602E, // Entity(IFCGEOTECHNICALSTRATUM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x04009EC5, // Entity(IFCGRADIENTCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x04009EFE, // ExplicitAttr(BASECURVE)
    0x04009F16, // ExplicitAttr(ENDPOINT)
    0x0600344C, // DerivedAttr(RELATIVEELEVATION)
    0x00011516, // Entity(IFCGRID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011546, // ExplicitAttr(UAXES)
    0x0600346B, // ListType(#963,1,-1,UNIQ)
    0x000115D6, // ExplicitAttr(VAXES)
    0x0600346B, // ListType(#963,1,-1,UNIQ)
    0x000115EA, // ExplicitAttr(WAXES)
    0x0600346B, // ListType(#963,1,-1,UNIQ)
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
    0x04009F46, // Entity(IFCIMPACTPROTECTIONDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x04009F88, // Entity(IFCIMPACTPROTECTIONDEVICETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x05006083, // Entity(IFCINCLINEDREFERENCESWEPTAREASOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02004340, // ExplicitAttr(FIXEDAXISVERTICAL)
    0x010098AE, // Entity(IFCINDEXEDCOLOURMAP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010098EA, // ExplicitAttr(MAPPEDTO)
    0x01009901, // ExplicitAttr(OPACITY)
    0x01009917, // ExplicitAttr(COLOURS)
    0x0100992D, // ExplicitAttr(COLOURINDEX)
    0x01009947, // ListType(#7,1,-1,DUPL)
    0x0100995E, // Entity(IFCINDEXEDPOLYCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013375, // ExplicitAttr(POINTS)
    0x0000BAC1, // ExplicitAttr(SEGMENTS)
    0x06003484, // ListType(#1169,1,-1,DUPL)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x010099B4, // Entity(IFCINDEXEDPOLYGONALFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010099F4, // ExplicitAttr(COORDINDEX)
    0x01009A0D, // ListType(#7,3,-1,DUPL)
    0x01009A24, // Entity(IFCINDEXEDPOLYGONALFACEWITHVOIDS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009A6D, // ExplicitAttr(INNERCOORDINDICES)
    0x01009A8D, // ListType(#7,3,-1,UNIQ)
    0x0600349E, // ListType(#2162,1,-1,DUPL)
    0x01009ABE, // Entity(IFCINDEXEDTEXTUREMAP,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000C3D8, // Entity(IFCTEXTURECOORDINATE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01009AF7, // ExplicitAttr(MAPS)
    0x0600300E, // ListType(#1227,1,-1,DUPL)
    0x010098EA, // ExplicitAttr(MAPPEDTO)
    0x01009B0A, // ExplicitAttr(TEXCOORDS)
    0x01009B22, // Entity(IFCTEXTUREVERTEXLIST,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009B5F, // ExplicitAttr(TEXCOORDSLIST)
    0x01009B7B, // ListType(#87,2,2,DUPL)
    0x060034B8, // ListType(#2172,1,-1,DUPL)
    0x01009BAC, // Entity(IFCINDEXEDTRIANGLETEXTUREMAP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009BF1, // ExplicitAttr(TEXCOORDINDEX)
    0x01000030, // ListType(#7,3,3,DUPL)
    0x060034D2, // ListType(#2176,1,-1,DUPL)
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
    0x060029D0, // ListType(#696,1,-1,DUPL)
    0x050060E8, // ListType(#2193,1,-1,DUPL)
    0x01009D03, // Entity(IFCJUNCTIONBOX,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00011A9B, // Entity(IFCJUNCTIONBOXTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400A126, // Entity(IFCKERB,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x05006150, // ExplicitAttr(MOUNTABLE)
    0x0400A156, // Entity(IFCKERBTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x05006150, // ExplicitAttr(MOUNTABLE)
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
    0x02003E6E, // Entity(IFCLINEARPLACEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012010, // ExplicitAttr(RELATIVEPLACEMENT)
    0x02003F31, // ExplicitAttr(CARTESIANPOSITION)
    0x0400A18A, // Entity(IFCLIQUIDTERMINAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400A1C4, // Entity(IFCLIQUIDTERMINALTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00011FB9, // Entity(IFCLOCALPLACEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012010, // ExplicitAttr(RELATIVEPLACEMENT)
    0x01009E44, // Entity(IFCMAPCONVERSION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009E7D, // ExplicitAttr(EASTINGS)
    0x01009E94, // ExplicitAttr(NORTHINGS)
    0x01009EAC, // ExplicitAttr(ORTHOGONALHEIGHT)
    0x01009ECB, // ExplicitAttr(XAXISABSCISSA)
    0x01009EE7, // ExplicitAttr(XAXISORDINATE)
    0x0000A352, // ExplicitAttr(SCALE)
    0x060034EC, // ExplicitAttr(SCALEY)
    0x06003501, // ExplicitAttr(SCALEZ)
    0x00012030, // Entity(IFCMAPPEDITEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012066, // ExplicitAttr(MAPPINGSOURCE)
    0x00012082, // ExplicitAttr(MAPPINGTARGET)
    0x0400A283, // Entity(IFCMARINEFACILITY,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001209E, // Entity(IFCMATERIALCLASSIFICATIONRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000120EC, // ExplicitAttr(MATERIALCLASSIFICATIONS)
    0x06003516, // SetType(#805,1,-1)
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
    0x06003529, // SetType(#2284,1,-1)
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
    0x0600353D, // ListType(#2297,1,-1,DUPL)
    0x0000AC51, // ExplicitAttr(LAYERSETNAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x01009FFF, // DerivedAttr(TOTALTHICKNESS)
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
    0x06003557, // ListType(#2321,1,-1,DUPL)
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
    0x06003571, // SetType(#1028,1,-1)
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
    0x0100A4A5, // DerivedAttr(OPERATOR)
    0x0400A383, // Entity(IFCMOBILETELECOMMUNICATIONSAPPLIANCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400A3D0, // Entity(IFCMOBILETELECOMMUNICATIONSAPPLIANCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400A421, // Entity(IFCMOORINGDEVICE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400A45A, // Entity(IFCMOORINGDEVICETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100A4BB, // Entity(IFCMOTORCONNECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000126CE, // Entity(IFCMOTORCONNECTIONTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400A497, // Entity(IFCNAVIGATIONELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400A4D4, // Entity(IFCNAVIGATIONELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00012858, // Entity(IFCOBJECTIVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001288D, // ExplicitAttr(BENCHMARKVALUES)
    0x050054EE, // ListType(#1127,1,-1,DUPL)
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
    0x06003585, // ListType(#1839,1,-1,DUPL)
    0x0000B873, // ExplicitAttr(TAG)
    0x0400A58E, // Entity(IFCOPENCROSSPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0400A5CD, // ExplicitAttr(HORIZONTALWIDTHS)
    0x0400A5EC, // ExplicitAttr(WIDTHS)
    0x0400A601, // ListType(#82,1,-1,DUPL)
    0x0400A619, // ExplicitAttr(SLOPES)
    0x01006923, // ListType(#89,1,-1,DUPL)
    0x0400A62E, // ExplicitAttr(TAGS)
    0x0400A641, // ListType(#14,2,-1,DUPL)
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
    0x00012D14, // Entity(IFCPATH,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000FC5F, // ExplicitAttr(EDGELIST)
    0x0600359F, // ListType(#1936,1,-1,UNIQ)
    0x0400A68D, // Entity(IFCPAVEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400A6C1, // Entity(IFCPAVEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
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
    0x06003412, // SetType(#1140,1,-1)
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
    0x050062C4, // Entity(IFCPLANT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013148, // Entity(IFCPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100A6A6, // Entity(IFCPLATESTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013179, // Entity(IFCPLATETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000131AE, // Entity(IFCPOINTONCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012977, // ExplicitAttr(BASISCURVE)
    0x000131E6, // ExplicitAttr(POINTPARAMETER)
    0x0000850F, // DerivedAttr(DIM)
    0x00013203, // Entity(IFCPOINTONSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x0001323D, // ExplicitAttr(POINTPARAMETERU)
    0x0001325B, // ExplicitAttr(POINTPARAMETERV)
    0x0000850F, // DerivedAttr(DIM)
    0x00013279, // Entity(IFCPOLYLOOP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000132AD, // ExplicitAttr(POLYGON)
    0x060035B9, // ListType(#940,3,-1,UNIQ)
    0x000132DC, // Entity(IFCPOLYGONALBOUNDEDHALFSPACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x00013321, // ExplicitAttr(POLYGONALBOUNDARY)
    0x0100A6FC, // Entity(IFCPOLYGONALFACESET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A738, // ExplicitAttr(CLOSED)
    0x0100A74D, // ExplicitAttr(FACES)
    0x060035D2, // ListType(#2157,1,-1,DUPL)
    0x0100A77B, // ExplicitAttr(PNINDEX)
    0x01009947, // ListType(#7,1,-1,DUPL)
    0x00013341, // Entity(IFCPOLYLINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013375, // ExplicitAttr(POINTS)
    0x06003263, // ListType(#940,2,-1,DUPL)
    0x0400A72C, // Entity(IFCPOLYNOMIALCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x0400A767, // ExplicitAttr(COEFFICIENTSX)
    0x0100AB6A, // ListType(#165,2,-1,DUPL)
    0x0400A783, // ExplicitAttr(COEFFICIENTSY)
    0x0100AB6A, // ListType(#165,2,-1,DUPL)
    0x0400A79F, // ExplicitAttr(COEFFICIENTSZ)
    0x0100AB6A, // ListType(#165,2,-1,DUPL)
    0x0100A791, // Entity(IFCPREDEFINEDPROPERTIES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001345C, // Entity(IFCPRESENTATIONLAYERASSIGNMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x000134A3, // ExplicitAttr(ASSIGNEDITEMS)
    0x060035EC, // SetType(#999,1,-1)
    0x0000C5B4, // ExplicitAttr(IDENTIFIER)
    0x000134D2, // Entity(IFCPRESENTATIONLAYERWITHSTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013518, // ExplicitAttr(LAYERON)
    0x0001352E, // ExplicitAttr(LAYERFROZEN)
    0x00013548, // ExplicitAttr(LAYERBLOCKED)
    0x00013563, // ExplicitAttr(LAYERSTYLES)
    0x060035FF, // SetType(#924,0,-1)
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
    0x060029D0, // ListType(#696,1,-1,DUPL)
    0x00013C6E, // ExplicitAttr(ENUMERATIONREFERENCE)
    0x00013C91, // Entity(IFCPROPERTYENUMERATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00013C4E, // ExplicitAttr(ENUMERATIONVALUES)
    0x06003612, // ListType(#696,1,-1,UNIQ)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00013CE9, // Entity(IFCPROPERTYLISTVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011A68, // ExplicitAttr(LISTVALUES)
    0x060029D0, // ListType(#696,1,-1,DUPL)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00013D26, // Entity(IFCPROPERTYREFERENCEVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DEFE, // ExplicitAttr(USAGENAME)
    0x00013D68, // ExplicitAttr(PROPERTYREFERENCE)
    0x00013D88, // Entity(IFCPROPERTYSET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DF16, // ExplicitAttr(HASPROPERTIES)
    0x04009852, // SetType(#1639,1,-1)
    0x0100A958, // Entity(IFCPROPERTYSETTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100859B, // ExplicitAttr(TEMPLATETYPE)
    0x0100A997, // ExplicitAttr(APPLICABLEENTITY)
    0x010085B6, // ExplicitAttr(HASPROPERTYTEMPLATES)
    0x0600331D, // SetType(#1646,1,-1)
    0x00013DBF, // Entity(IFCPROPERTYSINGLEVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013DFE, // ExplicitAttr(NOMINALVALUE)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00013E19, // Entity(IFCPROPERTYTABLEVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013E57, // ExplicitAttr(DEFININGVALUES)
    0x06003612, // ListType(#696,1,-1,UNIQ)
    0x00013E74, // ExplicitAttr(DEFINEDVALUES)
    0x060029D0, // ListType(#696,1,-1,DUPL)
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
    0x0400A84E, // Entity(IFCRAIL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400A87E, // Entity(IFCRAILTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000141AB, // Entity(IFCRAILING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000141DE, // Entity(IFCRAILINGTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400A8B2, // Entity(IFCRAILWAY,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x0100AB83, // DerivedAttr(WEIGHTS)
    0x0100AB98, // ArrayType(#165,0,0,DUPL,REQ)
    0x0100ABB5, // Entity(IFCRATIONALBSPLINESURFACEWITHKNOTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001430C, // ExplicitAttr(WEIGHTSDATA)
    0x0100AB6A, // ListType(#165,2,-1,DUPL)
    0x0600362B, // ListType(#2657,2,-1,DUPL)
    0x0100AB83, // DerivedAttr(WEIGHTS)
    0x0100AB98, // ArrayType(#165,0,0,DUPL,REQ)
    0x06003645, // ArrayType(#2660,0,0,DUPL,REQ)
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
    0x06003663, // ListType(#2693,1,-1,DUPL)
    0x02004128, // Entity(IFCREFERENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0200415C, // ExplicitAttr(RESTARTDISTANCE)
    0x0001457F, // Entity(IFCREGULARTIMESERIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000145BC, // ExplicitAttr(TIMESTEP)
    0x000119F7, // ExplicitAttr(VALUES)
    0x000145D3, // Entity(IFCTIMESERIESVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011A68, // ExplicitAttr(LISTVALUES)
    0x060029D0, // ListType(#696,1,-1,DUPL)
    0x0600367D, // ListType(#2703,1,-1,DUPL)
    0x0400A988, // Entity(IFCREINFORCEDSOIL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
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
    0x06003697, // SetType(#2709,1,-1)
    0x060036AB, // ListType(#2719,1,-1,DUPL)
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
    0x060036C5, // ListType(#749,1,-1,DUPL)
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
    0x060036C5, // ListType(#749,1,-1,DUPL)
    0x00014B9E, // Entity(IFCRELAGGREGATES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014BD7, // Entity(IFCRELDECOMPOSES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00013917, // Entity(IFCRELATIONSHIP,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00014C0C, // ExplicitAttr(RELATINGOBJECT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x03003416, // SetType(#891,1,-1)
    0x000138E5, // Entity(IFCRELASSIGNS,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x03003416, // SetType(#891,1,-1)
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
    0x060036DE, // SetType(#893,1,-1)
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
    0x0400AA94, // Entity(IFCRELASSOCIATESPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0400AAD7, // ExplicitAttr(RELATINGPROFILEDEF)
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
    0x060036F1, // SetType(#974,1,-1)
    0x00015A7F, // ExplicitAttr(CONNECTIONTYPE)
    0x00015A9C, // Entity(IFCRELCONTAINEDINSPATIALSTRUCTURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015AE6, // ExplicitAttr(RELATEDELEMENTS)
    0x06003704, // SetType(#975,1,-1)
    0x00015B17, // ExplicitAttr(RELATINGSTRUCTURE)
    0x00015B37, // Entity(IFCRELCOVERSBLDGELEMENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015B78, // ExplicitAttr(RELATINGBUILDINGELEMENT)
    0x00015B9E, // ExplicitAttr(RELATEDCOVERINGS)
    0x06003717, // SetType(#1777,1,-1)
    0x00015BD1, // Entity(IFCRELCOVERSSPACES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000163A9, // ExplicitAttr(RELATINGSPACE)
    0x00015B9E, // ExplicitAttr(RELATEDCOVERINGS)
    0x06003717, // SetType(#1777,1,-1)
    0x0100AFE5, // Entity(IFCRELDECLARES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B01C, // ExplicitAttr(RELATINGCONTEXT)
    0x0100B03A, // ExplicitAttr(RELATEDDEFINITIONS)
    0x060036DE, // SetType(#893,1,-1)
    0x00015CA2, // Entity(IFCRELDEFINES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0100B05B, // Entity(IFCRELDEFINESBYOBJECT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x0600372B, // SetType(#976,1,-1)
    0x00014C0C, // ExplicitAttr(RELATINGOBJECT)
    0x00015CE7, // Entity(IFCRELDEFINESBYPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x03003416, // SetType(#891,1,-1)
    0x00015D29, // ExplicitAttr(RELATINGPROPERTYDEFINITION)
    0x0100B0AD, // Entity(IFCRELDEFINESBYTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B0ED, // ExplicitAttr(RELATEDPROPERTYSETS)
    0x010005C6, // SetType(#96,1,-1)
    0x0100B10F, // ExplicitAttr(RELATINGTEMPLATE)
    0x00015D52, // Entity(IFCRELDEFINESBYTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x0600372B, // SetType(#976,1,-1)
    0x00015D8E, // ExplicitAttr(RELATINGTYPE)
    0x00015DA9, // Entity(IFCRELFILLSELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015DE4, // ExplicitAttr(RELATINGOPENINGELEMENT)
    0x00015E09, // ExplicitAttr(RELATEDBUILDINGELEMENT)
    0x00015E2E, // Entity(IFCRELFLOWCONTROLELEMENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015E70, // ExplicitAttr(RELATEDCONTROLELEMENTS)
    0x0600373E, // SetType(#1272,1,-1)
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
    0x06003752, // ListType(#891,1,-1,DUPL)
    0x030044F7, // Entity(IFCRELPOSITIONS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0300452F, // ExplicitAttr(RELATINGPOSITIONINGELEMENT)
    0x03004558, // ExplicitAttr(RELATEDPRODUCTS)
    0x06003704, // SetType(#975,1,-1)
    0x0001616A, // Entity(IFCRELPROJECTSELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001549D, // ExplicitAttr(RELATINGELEMENT)
    0x000161A8, // ExplicitAttr(RELATEDFEATUREELEMENT)
    0x000161CC, // Entity(IFCRELREFERENCEDINSPATIALSTRUCTURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015AE6, // ExplicitAttr(RELATEDELEMENTS)
    0x0600376B, // SetType(#1198,1,-1)
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
    0x0600377F, // SetType(#994,1,-1)
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
    0x0100B5B8, // SetType(#1156,1,-1)
    0x0000C748, // ExplicitAttr(RELATINGAPPROVAL)
    0x0100B394, // Entity(IFCRESOURCECONSTRAINTRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000E533, // ExplicitAttr(RELATINGCONSTRAINT)
    0x0100952D, // ExplicitAttr(RELATEDRESOURCEOBJECTS)
    0x0100B5B8, // SetType(#1156,1,-1)
    0x00016475, // Entity(IFCREVOLVEDAREASOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000082D9, // ExplicitAttr(AXIS)
    0x000164B2, // ExplicitAttr(ANGLE)
    0x0100B3DE, // DerivedAttr(AXISLINE)
    0x0100B3F4, // Entity(IFCREVOLVEDAREASOLIDTAPERED,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009596, // ExplicitAttr(ENDSWEPTAREA)
    0x0001656B, // Entity(IFCRIGHTCIRCULARCONE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DBD7, // ExplicitAttr(HEIGHT)
    0x000165A8, // ExplicitAttr(BOTTOMRADIUS)
    0x000165C3, // Entity(IFCRIGHTCIRCULARCYLINDER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DBD7, // ExplicitAttr(HEIGHT)
    0x0000DC82, // ExplicitAttr(RADIUS)
    0x0400AC0A, // Entity(IFCROAD,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00016604, // Entity(IFCROOF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B438, // Entity(IFCROOFTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00016672, // Entity(IFCROUNDEDRECTANGLEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000166B8, // ExplicitAttr(ROUNDINGRADIUS)
    0x000166D5, // Entity(IFCSIUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00016707, // ExplicitAttr(PREFIX)
    0x00007836, // ExplicitAttr(NAME)
    0x01005A97, // DerivedAttr(DIMENSIONS)
    0x0100B46C, // Entity(IFCSANITARYTERMINAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0001671C, // Entity(IFCSANITARYTERMINALTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B4A8, // Entity(IFCSEAMCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0400AC6E, // Entity(IFCSECONDORDERPOLYNOMIALSPIRAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0400ACB5, // ExplicitAttr(QUADRATICTERM)
    0x0400ACD1, // ExplicitAttr(LINEARTERM)
    0x0400996B, // ExplicitAttr(CONSTANTTERM)
    0x02004292, // Entity(IFCSECTIONEDSOLID,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00018163, // ExplicitAttr(DIRECTRIX)
    0x000167AF, // ExplicitAttr(CROSSSECTIONS)
    0x06003792, // ListType(#1143,2,-1,DUPL)
    0x020042E2, // Entity(IFCSECTIONEDSOLIDHORIZONTAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000167E5, // ExplicitAttr(CROSSSECTIONPOSITIONS)
    0x060037AC, // ListType(#1403,2,-1,DUPL)
    0x02004340, // ExplicitAttr(FIXEDAXISVERTICAL)
    0x0001675C, // Entity(IFCSECTIONEDSPINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00016796, // ExplicitAttr(SPINECURVE)
    0x000167AF, // ExplicitAttr(CROSSSECTIONS)
    0x06003792, // ListType(#1143,2,-1,DUPL)
    0x000167E5, // ExplicitAttr(CROSSSECTIONPOSITIONS)
    0x060037C6, // ListType(#743,2,-1,DUPL)
    0x0000850F, // DerivedAttr(DIM)
    0x0400AD37, // Entity(IFCSECTIONEDSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018163, // ExplicitAttr(DIRECTRIX)
    0x000167E5, // ExplicitAttr(CROSSSECTIONPOSITIONS)
    0x060037DF, // ListType(#1839,2,-1,DUPL)
    0x000167AF, // ExplicitAttr(CROSSSECTIONS)
    0x06003792, // ListType(#1143,2,-1,DUPL)
    0x02004340, // ExplicitAttr(FIXEDAXISVERTICAL)
    0x0400AD73, // Entity(IFCSEGMENTEDREFERENCECURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x04009EFE, // ExplicitAttr(BASECURVE)
    0x04009F16, // ExplicitAttr(ENDPOINT)
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
    0x060037F9, // SetType(#1183,1,-1)
    0x0000850F, // DerivedAttr(DIM)
    0x0400AE90, // Entity(IFCSIGN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400AEC0, // Entity(IFCSIGNTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400AEF4, // Entity(IFCSIGNAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400AF26, // Entity(IFCSIGNALTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100B5CC, // Entity(IFCSIMPLEPROPERTYTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100859B, // ExplicitAttr(TEMPLATETYPE)
    0x0100B60E, // ExplicitAttr(PRIMARYMEASURETYPE)
    0x0100B62F, // ExplicitAttr(SECONDARYMEASURETYPE)
    0x0100B652, // ExplicitAttr(ENUMERATORS)
    0x0100B66C, // ExplicitAttr(PRIMARYUNIT)
    0x0100B686, // ExplicitAttr(SECONDARYUNIT)
    0x00013BF2, // ExplicitAttr(EXPRESSION)
    0x0100B6A2, // ExplicitAttr(ACCESSSTATE)
    0x0600380D, // Entity(IFCSINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0400AF92, // ExplicitAttr(SINETERM)
    0x0400ACD1, // ExplicitAttr(LINEARTERM)
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
    0x0500651A, // Entity(IFCSOLIDSTRATUM,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x0600383D, // SetType(#3107,1,-1)
    0x00017237, // ExplicitAttr(HASRESULTS)
    0x00017250, // Entity(IFCSTRUCTURALRESULTGROUP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00017291, // ExplicitAttr(THEORYTYPE)
    0x000172AA, // ExplicitAttr(RESULTFORLOADGROUP)
    0x000172CB, // ExplicitAttr(ISLINEAR)
    0x06003851, // SetType(#3115,1,-1)
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
    0x06003865, // ListType(#3139,1,-1,DUPL)
    0x0100BB34, // ExplicitAttr(LOCATIONS)
    0x0100BB4C, // ListType(#56,1,2,DUPL)
    0x0600387F, // ListType(#3142,1,-1,UNIQ)
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
    0x0001811D, // Entity(IFCSURFACECURVESWEPTAREASOLID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000181AB, // ExplicitAttr(REFERENCESURFACE)
    0x0100BC91, // Entity(IFCSURFACEFEATURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000181CA, // Entity(IFCSURFACEOFLINEAREXTRUSION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001820E, // Entity(IFCSWEPTSURFACE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00018242, // ExplicitAttr(SWEPTCURVE)
    0x00008498, // ExplicitAttr(POSITION)
    0x00010686, // ExplicitAttr(EXTRUDEDDIRECTION)
    0x0000D776, // ExplicitAttr(DEPTH)
    0x0100BCCB, // DerivedAttr(EXTRUSIONAXIS)
    0x0001825B, // Entity(IFCSURFACEOFREVOLUTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001829A, // ExplicitAttr(AXISPOSITION)
    0x0100B3DE, // DerivedAttr(AXISLINE)
    0x0100BCE6, // Entity(IFCSURFACEREINFORCEMENTAREA,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100BD2A, // ExplicitAttr(SURFACEREINFORCEMENT1)
    0x010067D4, // ListType(#56,2,3,DUPL)
    0x0100BD4E, // ExplicitAttr(SURFACEREINFORCEMENT2)
    0x010067D4, // ListType(#56,2,3,DUPL)
    0x0100BD72, // ExplicitAttr(SHEARREINFORCEMENT)
    0x0000A011, // Entity(IFCSURFACESTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A049, // ExplicitAttr(SIDE)
    0x00009697, // ExplicitAttr(STYLES)
    0x06003899, // SetType(#1246,1,5)
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
    0x0100BF73, // ListType(#195,1,-1,DUPL)
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
    0x03004647, // Entity(IFCTENDONCONDUIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x03004680, // Entity(IFCTENDONCONDUITTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x010064C5, // ExplicitAttr(MODELORDRAUGHTING)
    0x0001881A, // Entity(IFCTEXTSTYLEFONTMODEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00018858, // ExplicitAttr(FONTFAMILY)
    0x0100C01B, // ListType(#184,1,-1,DUPL)
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
    0x060038AC, // ListType(#3362,3,-1,DUPL)
    0x010098EA, // ExplicitAttr(MAPPEDTO)
    0x0400B0D8, // Entity(IFCTHIRDORDERPOLYNOMIALSPIRAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x060038C6, // ExplicitAttr(QUBICTERM)
    0x0400ACB5, // ExplicitAttr(QUADRATICTERM)
    0x0400ACD1, // ExplicitAttr(LINEARTERM)
    0x0400996B, // ExplicitAttr(CONSTANTTERM)
    0x00018CCD, // Entity(IFCTOPOLOGYREPRESENTATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100C07E, // Entity(IFCTOROIDALSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100C0B9, // ExplicitAttr(MAJORRADIUS)
    0x0100C0D3, // ExplicitAttr(MINORRADIUS)
    0x0400B11E, // Entity(IFCTRACKELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0400B156, // Entity(IFCTRACKELEMENTTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100C0ED, // Entity(IFCTRANSFORMER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00018D0F, // Entity(IFCTRANSFORMERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
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
    0x060038DE, // ListType(#3395,1,-1,DUPL)
    0x0100A738, // ExplicitAttr(CLOSED)
    0x010099F4, // ExplicitAttr(COORDINDEX)
    0x01000030, // ListType(#7,3,3,DUPL)
    0x050065C8, // ListType(#3399,1,-1,DUPL)
    0x0100A77B, // ExplicitAttr(PNINDEX)
    0x01009947, // ListType(#7,1,-1,DUPL)
    0x0100C1C4, // DerivedAttr(NUMBEROFTRIANGLES)
    0x02004529, // Entity(IFCTRIANGULATEDIRREGULARNETWORK,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02004571, // ExplicitAttr(FLAGS)
    0x01005B8F, // ListType(#6,1,-1,DUPL)
    0x00018E8B, // Entity(IFCTRIMMEDCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012977, // ExplicitAttr(BASISCURVE)
    0x00018EC3, // ExplicitAttr(TRIM1)
    0x060038F8, // SetType(#1258,1,2)
    0x00018EE9, // ExplicitAttr(TRIM2)
    0x060038F8, // SetType(#1258,1,2)
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
    0x0300471E, // Entity(IFCVIBRATIONDAMPER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x03004759, // Entity(IFCVIBRATIONDAMPERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100C31F, // Entity(IFCVIBRATIONISOLATOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00019114, // Entity(IFCVIBRATIONISOLATORTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0600390B, // Entity(IFCVIENNESEBEND,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x06003943, // ExplicitAttr(STARTCURVATURE)
    0x06003960, // ExplicitAttr(ENDCURVATURE)
    0x0600397B, // ExplicitAttr(GRAVITYCENTERHEIGHT)
    0x02003843, // ExplicitAttr(SEGMENTLENGTH)
    0x00019155, // Entity(IFCVIRTUALELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0500660F, // Entity(IFCVOIDSTRATUM,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x05006646, // Entity(IFCWATERSTRATUM,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x0500667E, // SetType(#3507,1,-1)
    0x0100C5AD, // ExplicitAttr(EXCEPTIONTIMES)
    0x0500667E, // SetType(#3507,1,-1)
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
    0x0600399D, // #687.Composition(#687)
    0x060039B4, // #688.ExplAttrInfos(#696,REQ)
    0x0400B3E3, // #698.Composition(#698)
    0x0400B3FA, // #700.Composition(#700)
    0x060039D1, // #702.Composition(#702)
    0x060039E8, // #704.Composition(#704)
    0x0400B4A1, // #705.ExplAttrInfos(IntegerType,REQ)
    0x0400B4C5, // #706.ExplAttrInfos(IntegerType,REQ)
    0x0400B4E9, // #707.ExplAttrInfos(IntegerType,REQ)
    0x060039FF, // #708.ExplAttrInfos(IntegerType,REQ)
    0x0400B5B3, // #709.ExplAttrInfos(IntegerType,REQ)
    0x06003A23, // #710.ExplAttrInfos(IntegerType,REQ)
    0x06003A47, // #711.ExplAttrInfos(IntegerType,REQ)
    0x06003A6B, // #704.Attributes(#705,#706,#707,#708,#709,#710,#711)
    0x03005080, // #703.ExplAttrInfos(#704,REQ)
    0x06003A9F, // #712.ExplAttrInfos(#650,REQ)
    0x06003ABC, // #702.Attributes(#703,#712)
    0x06003AD7, // #701.ExplAttrInfos(#702,REQ)
    0x06003AF4, // #713.ExplAttrInfos(IntegerType,REQ)
    0x06003B18, // #700.Attributes(#701,#713)
    0x06003B33, // #699.ExplAttrInfos(#714,REQ)
    0x06003B50, // #715.ExplAttrInfos(#330,REQ)
    0x06003B6D, // #716.ExplAttrInfos(#14,OPT)
    0x06003B89, // #717.DerivAttrInfos(#704)
    0x06003BA3, // #698.Attributes(#699,#715,#716,#717)
    0x06003BC8, // #718.Composition(#718)
    0x06003BDF, // #719.ExplAttrInfos(#14,REQ)
    0x06003BFB, // #718.Attributes(#719)
    0x06003C11, // #697.ExplAttrInfos(#721,REQ)
    0x06003C2E, // #687.Attributes(#688,#697)
    0x06003C49, // #722.Composition(#722)
    0x02005209, // #723.ExplAttrInfos(#48,OPT)
    0x06003C60, // #724.ExplAttrInfos(#48,OPT)
    0x06003C7C, // #725.ExplAttrInfos(#14,OPT)
    0x06003C98, // #726.ExplAttrInfos(#727,OPT)
    0x06003CB5, // #728.ExplAttrInfos(#722,OPT)
    0x06003CD2, // #722.Attributes(#723,#724,#725,#726,#728)
    0x06003CFC, // #734.Composition(#734)
    0x0100DB2E, // #733.Supertypes(#734)
    0x06003D13, // #733.Composition(#733,#734)
    0x06003D2F, // #732.Supertypes(#733)
    0x06003D45, // #732.Composition(#733,#732,#734)
    0x06003D66, // #736.Supertypes(#733)
    0x06003D7C, // #736.Composition(#733,#736,#734)
    0x06003D9D, // #735.ExplAttrInfos(#736,REQ)
    0x06003DBA, // #737.DerivAttrInfos(#29)
    0x06003DD3, // #732.Attributes(#735,#737)
    0x02005324, // #731.Supertypes(#732)
    0x06003DEE, // #731.Composition(#731,#733,#732,#734)
    0x06003E14, // #739.Supertypes(#733)
    0x06003E2A, // #739.Composition(#739,#733,#734)
    0x06003E4B, // #740.ExplAttrInfos(#741,REQ)
    0x06003E68, // #742.DerivAttrInfos(#29)
    0x06003E81, // #739.Attributes(#740,#742)
    0x06003E9C, // #738.ExplAttrInfos(#739,OPT)
    0x06003EB9, // #731.Attributes(#738)
    0x06003ECF, // #743.Supertypes(#732)
    0x06003EE5, // #743.Composition(#743,#733,#732,#734)
    0x06003F0B, // #744.ExplAttrInfos(#739,OPT)
    0x06003F28, // #745.ExplAttrInfos(#739,OPT)
    0x06003F45, // #743.Attributes(#744,#745)
    0x06003F60, // #750.Supertypes(#733)
    0x06003F76, // #750.Composition(#750,#733,#734)
    0x06003F97, // #751.ExplAttrInfos(#252,REQ)
    0x06003FB4, // #752.ExplAttrInfos(#777,REQ)
    0x06003FD1, // #778.ExplAttrInfos(#777,REQ)
    0x06003FEE, // #779.DerivAttrInfos(#29)
    0x06004007, // #750.Attributes(#751,#752,#778,#779)
    0x0600402C, // #753.Supertypes(#733)
    0x06004042, // #753.Composition(#753,#733,#734)
    0x06004063, // #754.ExplAttrInfos(#743,REQ)
    0x05006E9E, // #755.DerivAttrInfos(#29)
    0x06004080, // #753.Attributes(#754,#755)
    0x0600409B, // #756.Supertypes(#733)
    0x060040B1, // #756.Composition(#733,#756,#734)
    0x060040D2, // #758.Supertypes(#733)
    0x060040E8, // #758.Composition(#733,#734,#758)
    0x0400BC38, // #759.DerivAttrInfos(#29)
    0x05006F5D, // #758.Attributes(#759)
    0x06004109, // #757.ExplAttrInfos(#758,REQ)
    0x06004126, // #760.ExplAttrInfos(#13,REQ)
    0x0400BCA8, // #761.DerivAttrInfos(#29)
    0x06004142, // #756.Attributes(#757,#760,#761)
    0x06004162, // #762.Supertypes(#733)
    0x06004178, // #762.Composition(#733,#734,#762)
    0x06004199, // #763.DerivAttrInfos(#29)
    0x060041B2, // #762.Attributes(#763)
    0x060041C8, // #765.Supertypes(#733)
    0x060041DE, // #765.Composition(#733,#734,#765)
    0x060041FF, // #764.Supertypes(#765)
    0x06004215, // #764.Composition(#733,#734,#764,#765)
    0x0600423B, // #768.Supertypes(#733)
    0x06004251, // #768.Composition(#768,#733,#734)
    0x06004272, // #769.DerivAttrInfos(#29)
    0x0600428B, // #768.Attributes(#769)
    0x060042A1, // #767.Supertypes(#768)
    0x060042B7, // #767.Composition(#768,#767,#733,#734)
    0x060042DD, // #770.ExplAttrInfos(#772,REQ)
    0x060042FA, // #773.ExplAttrInfos(#774,OPT)
    0x06004317, // #767.Attributes(#770,#773)
    0x06004332, // #766.ExplAttrInfos(#767,REQ)
    0x05006D6A, // #775.DerivAttrInfos(#29)
    0x0600434F, // #764.Attributes(#766,#775)
    0x0001BE1A, // #783.Composition(#783)
    0x0600436A, // #782.Supertypes(#783)
    0x06004380, // #782.Composition(#782,#783)
    0x030058A5, // #784.ExplAttrInfos(#14,OPT)
    0x0600439C, // #785.ExplAttrInfos(#14,OPT)
    0x060043B8, // #786.ExplAttrInfos(#24,OPT)
    0x060043D4, // #787.ExplAttrInfos(#14,REQ)
    0x060043F0, // #788.ExplAttrInfos(#122,OPT)
    0x0600440D, // #789.ExplAttrInfos(#195,OPT)
    0x0600442A, // #790.ExplAttrInfos(#791,OPT)
    0x06004447, // #782.Attributes(#784,#785,#786,#787,#788,#789,#790)
    0x0600447B, // #793.Composition(#793)
    0x06004492, // #794.ExplAttrInfos(#195,OPT)
    0x060044AF, // #795.ExplAttrInfos(#48,OPT)
    0x060044CB, // #796.ExplAttrInfos(#14,OPT)
    0x060044E7, // #793.Attributes(#794,#795,#796)
    0x06004507, // #792.Supertypes(#793)
    0x0600451D, // #792.Composition(#792,#793)
    0x06004539, // #797.ExplAttrInfos(#799,OPT)
    0x06004556, // #800.ExplAttrInfos(#122,OPT)
    0x06004573, // #801.ExplAttrInfos(#48,OPT)
    0x0600458F, // #792.Attributes(#797,#800,#801)
    0x0001C062, // #807.Composition(#807)
    0x0100E4AD, // #806.Supertypes(#807)
    0x060045AF, // #806.Composition(#806,#807)
    0x060045CB, // #808.ExplAttrInfos(#14,OPT)
    0x060045E7, // #806.Attributes(#808)
    0x060045FD, // #810.Supertypes(#807)
    0x06004613, // #810.Composition(#810,#807)
    0x02005CC3, // #811.ExplAttrInfos(#14,REQ)
    0x0600462F, // #810.Attributes(#811)
    0x06004645, // #809.Supertypes(#810)
    0x0600465B, // #809.Composition(#809,#810,#807)
    0x0600467C, // #814.Supertypes(#806)
    0x06004692, // #814.Composition(#814,#806,#807)
    0x0400C279, // #815.ExplAttrInfos(#84,REQ)
    0x060046B3, // #816.ExplAttrInfos(#84,REQ)
    0x060046CF, // #817.ExplAttrInfos(#84,REQ)
    0x060046EB, // #814.Attributes(#815,#816,#817)
    0x0600470B, // #820.Composition(#820)
    0x0100E5BB, // #821.ExplAttrInfos(#14,REQ)
    0x0100E5D7, // #822.ExplAttrInfos(#122,OPT)
    0x02005DFE, // #823.ExplAttrInfos(#48,OPT)
    0x06004722, // #824.ExplAttrInfos(#48,OPT)
    0x0600473E, // #820.Attributes(#821,#822,#823,#824)
    0x06004763, // #826.Composition(#826)
    0x0100E668, // #827.ExplAttrInfos(#14,OPT)
    0x0600477A, // #828.ExplAttrInfos(#14,OPT)
    0x06004796, // #826.Attributes(#827,#828)
    0x060047B1, // #825.Supertypes(#826)
    0x060047C7, // #825.Composition(#825,#826)
    0x060047E3, // #829.ExplAttrInfos(#29,REQ)
    0x060047FF, // #830.ExplAttrInfos(#165,OPT)
    0x0600481C, // #831.ExplAttrInfos(#747,REQ)
    0x06004839, // #832.ExplAttrInfos(#739,OPT)
    0x06004856, // #825.Attributes(#829,#830,#831,#832)
    0x0600487B, // #837.Supertypes(#807)
    0x06004891, // #837.Composition(#837,#807)
    0x02005FF9, // #838.ExplAttrInfos(#14,OPT)
    0x060048AD, // #840.Supertypes(#807)
    0x060048C3, // #840.Composition(#840,#807)
    0x060048DF, // #841.ExplAttrInfos(#14,OPT)
    0x060048FB, // #843.Supertypes(#807)
    0x06004911, // #843.Composition(#843,#807)
    0x0600492D, // #844.ExplAttrInfos(#56,REQ)
    0x06004949, // #845.ExplAttrInfos(#90,REQ)
    0x06004965, // #843.Attributes(#844,#845)
    0x06004980, // #842.ExplAttrInfos(#846,REQ)
    0x0400C531, // #840.Attributes(#841,#842)
    0x0600499D, // #847.Supertypes(#810)
    0x060049B3, // #847.Composition(#847,#810,#807)
    0x060049D4, // #839.ExplAttrInfos(#849,REQ)
    0x060049F1, // #850.ExplAttrInfos(#92,REQ)
    0x06004A0D, // #837.Attributes(#838,#839,#850)
    0x06004A2D, // #858.Supertypes(#733)
    0x06004A43, // #858.Composition(#858,#733,#734)
    0x0100EA5F, // #859.DerivAttrInfos(#29)
    0x06004A64, // #858.Attributes(#859)
    0x06004A7A, // #857.Supertypes(#858)
    0x06004A90, // #857.Composition(#857,#858,#733,#734)
    0x06004AB6, // #856.Supertypes(#857)
    0x06004ACC, // #856.Composition(#857,#856,#858,#733,#734)
    0x06004AF7, // #861.Supertypes(#733)
    0x06004B0D, // #861.Composition(#733,#734,#861)
    0x06004B2E, // #862.ExplAttrInfos(#640,REQ)
    0x02006B6E, // #861.Attributes(#862)
    0x06004B4B, // #860.ExplAttrInfos(#863,REQ)
    0x06004B68, // #864.ExplAttrInfos(#63,REQ)
    0x06004B84, // #865.DerivAttrInfos(#6)
    0x06004B9C, // #866.DerivAttrInfos(#63)
    0x06004BB5, // #856.Attributes(#860,#864,#865,#866)
    0x0001C669, // #855.Supertypes(#856)
    0x06004BDA, // #855.Composition(#857,#856,#855,#858,#733,#734)
    0x06004C0A, // #867.DerivAttrInfos(#868)
    0x06004C24, // #855.Attributes(#867)
    0x06004C3A, // #869.Supertypes(#858)
    0x06004C50, // #869.Composition(#858,#733,#869,#734)
    0x06004C76, // #870.ExplAttrInfos(#758,REQ)
    0x06004C93, // #871.ExplAttrInfos(#858,REQ)
    0x0200684B, // #869.Attributes(#870,#871)
    0x06004CB0, // #872.Supertypes(#858)
    0x06004CC6, // #872.Composition(#858,#733,#734,#872)
    0x06004CEC, // #873.ExplAttrInfos(#858,REQ)
    0x06004D09, // #874.ExplAttrInfos(#875,REQ)
    0x06004D26, // #876.ExplAttrInfos(#512,REQ)
    0x06004D43, // #877.DerivAttrInfos(#878)
    0x06004D5D, // #872.Attributes(#873,#874,#876,#877)
    0x06004D82, // #883.Supertypes(#734)
    0x06004D98, // #883.Composition(#734,#883)
    0x06004DB4, // #882.Supertypes(#883)
    0x06004DCA, // #882.Composition(#882,#734,#883)
    0x06004DEB, // #885.Supertypes(#883)
    0x06004E01, // #885.Composition(#734,#883,#885)
    0x06004E22, // #884.ExplAttrInfos(#885,REQ)
    0x06004E3F, // #886.ExplAttrInfos(#885,REQ)
    0x06004E5C, // #882.Attributes(#884,#886)
    0x06004E77, // #881.Supertypes(#882)
    0x06004E8D, // #881.Composition(#882,#881,#734,#883)
    0x06004EB3, // #887.ExplAttrInfos(#858,REQ)
    0x02006653, // #888.ExplAttrInfos(#13,REQ)
    0x06004ED0, // #881.Attributes(#887,#888)
    0x06004EEB, // #891.Supertypes(#98)
    0x06004F00, // #891.Composition(#891,#98)
    0x06004F1B, // #894.Supertypes(#783)
    0x06004F31, // #894.Composition(#894,#783)
    0x06004F4D, // #895.ExplAttrInfos(#48,REQ)
    0x06004F69, // #896.ExplAttrInfos(#14,REQ)
    0x0400CC40, // #897.ExplAttrInfos(#122,OPT)
    0x06004F85, // #898.ExplAttrInfos(#195,OPT)
    0x0400CC7A, // #899.ExplAttrInfos(#122,OPT)
    0x06004FA2, // #900.ExplAttrInfos(#122,OPT)
    0x06004FBF, // #901.ExplAttrInfos(#122,OPT)
    0x06004FDC, // #902.ExplAttrInfos(#14,OPT)
    0x06004FF8, // #903.ExplAttrInfos(#686,OPT)
    0x0200691F, // #904.ExplAttrInfos(#905,OPT)
    0x06005015, // #906.ExplAttrInfos(#25,OPT)
    0x06005031, // #907.ExplAttrInfos(#25,OPT)
    0x0600504D, // #908.ExplAttrInfos(#48,OPT)
    0x06005069, // #909.ExplAttrInfos(#24,OPT)
    0x06005085, // #910.ExplAttrInfos(#24,OPT)
    0x060050A1, // #911.ExplAttrInfos(#344,OPT)
    0x060050BE, // #912.ExplAttrInfos(#346,OPT)
    0x060050DB, // #894.Attributes(#895,#896,#897,#898,#899,#900,#901,#902,#903,#904,#906,#907,#908,#909,#910,#911,#912)
    0x06005141, // #913.Supertypes(#793)
    0x06005157, // #913.Composition(#913,#793)
    0x06005173, // #914.ExplAttrInfos(#122,OPT)
    0x06005190, // #915.ExplAttrInfos(#894,OPT)
    0x060051AD, // #913.Attributes(#914,#915)
    0x060051C8, // #920.Supertypes(#793)
    0x060051DE, // #920.Composition(#920,#793)
    0x060051FA, // #921.Supertypes(#733)
    0x06005210, // #921.Composition(#921,#733,#734)
    0x06005231, // #924.Composition(#924)
    0x06005248, // #925.ExplAttrInfos(#14,OPT)
    0x06005264, // #924.Attributes(#925)
    0x0600527A, // #923.Supertypes(#924)
    0x06005290, // #923.Composition(#923,#924)
    0x060052AC, // #926.ExplAttrInfos(#852,OPT)
    0x060052C9, // #927.ExplAttrInfos(#929,OPT)
    0x060052E6, // #930.ExplAttrInfos(#813,OPT)
    0x06005303, // #931.ExplAttrInfos(#13,OPT)
    0x0600531F, // #923.Attributes(#926,#927,#930,#931)
    0x06005344, // #922.ExplAttrInfos(#923,REQ)
    0x06005361, // #933.Supertypes(#733)
    0x06005377, // #933.Composition(#733,#734,#933)
    0x06005398, // #934.ExplAttrInfos(#739,REQ)
    0x060053B5, // #935.ExplAttrInfos(#56,REQ)
    0x060053D1, // #936.DerivAttrInfos(#29)
    0x060053EA, // #933.Attributes(#934,#935,#936)
    0x0600540A, // #932.ExplAttrInfos(#938,REQ)
    0x06005427, // #940.Supertypes(#736)
    0x0600543D, // #940.Composition(#940,#733,#736,#734)
    0x06005463, // #941.ExplAttrInfos(#942,REQ)
    0x06005480, // #943.DerivAttrInfos(#29)
    0x06005499, // #940.Attributes(#941,#943)
    0x060054B4, // #939.ExplAttrInfos(#940,OPT)
    0x060054D1, // #944.ExplAttrInfos(#940,OPT)
    0x060054EE, // #945.ExplAttrInfos(#89,REQ)
    0x0600550A, // #921.Attributes(#922,#932,#939,#944,#945)
    0x06005534, // #946.Supertypes(#733)
    0x0600554A, // #946.Composition(#946,#733,#734)
    0x0400D276, // #947.ExplAttrInfos(#948,REQ)
    0x0600556B, // #950.Supertypes(#734)
    0x06005581, // #950.Composition(#734,#950)
    0x0600559D, // #951.ExplAttrInfos(#734,OPT)
    0x060055BA, // #952.ExplAttrInfos(#953,REQ)
    0x0100F5CC, // #954.ExplAttrInfos(#14,OPT)
    0x060055D7, // #950.Attributes(#951,#952,#954)
    0x060055F7, // #949.ExplAttrInfos(#955,REQ)
    0x06005614, // #956.ExplAttrInfos(#92,REQ)
    0x06005630, // #946.Attributes(#947,#949,#956)
    0x06005650, // #961.Composition(#961)
    0x06005667, // #963.Composition(#963)
    0x0100F6CA, // #964.ExplAttrInfos(#14,OPT)
    0x0600567E, // #965.ExplAttrInfos(#858,REQ)
    0x0600569B, // #966.ExplAttrInfos(#13,REQ)
    0x060056B7, // #963.Attributes(#964,#965,#966)
    0x060056D7, // #962.ExplAttrInfos(#967,REQ)
    0x060056F4, // #968.ExplAttrInfos(#969,REQ)
    0x06005711, // #961.Attributes(#962,#968)
    0x0600572C, // #976.Supertypes(#891)
    0x06005742, // #976.Composition(#976,#891,#98)
    0x06005762, // #977.ExplAttrInfos(#14,OPT)
    0x0600577E, // #976.Attributes(#977)
    0x06005794, // #975.Supertypes(#976)
    0x060057AA, // #975.Composition(#976,#891,#975,#98)
    0x0400D52B, // #979.Composition(#979)
    0x060057CF, // #980.ExplAttrInfos(#979,OPT)
    0x060057EC, // #979.Attributes(#980)
    0x06005802, // #978.ExplAttrInfos(#979,OPT)
    0x0600581F, // #982.Composition(#982)
    0x06005836, // #983.ExplAttrInfos(#14,OPT)
    0x06005852, // #984.ExplAttrInfos(#122,OPT)
    0x0100F92C, // #986.Composition(#986)
    0x0600586F, // #987.ExplAttrInfos(#826,REQ)
    0x0400D6CA, // #988.ExplAttrInfos(#14,OPT)
    0x0600588C, // #989.ExplAttrInfos(#14,OPT)
    0x0100F97C, // #990.ExplAttrInfos(#991,REQ)
    0x060058A8, // #986.Attributes(#987,#988,#989,#990)
    0x0100F9B9, // #985.ExplAttrInfos(#992,REQ)
    0x060058CD, // #982.Attributes(#983,#984,#985)
    0x060058ED, // #981.ExplAttrInfos(#982,OPT)
    0x0600590A, // #975.Attributes(#978,#981)
    0x06005925, // #974.Supertypes(#975)
    0x0600593B, // #974.Composition(#974,#976,#891,#975,#98)
    0x06005965, // #993.ExplAttrInfos(#48,OPT)
    0x06005981, // #974.Attributes(#993)
    0x06005997, // #994.Supertypes(#975)
    0x060059AD, // #994.Composition(#976,#891,#975,#98,#994)
    0x0400D74A, // #995.ExplAttrInfos(#14,OPT)
    0x060059D7, // #994.Attributes(#995)
    0x060059ED, // #1000.Supertypes(#783)
    0x06005A04, // #1000.Composition(#783,#1000)
    0x06005A22, // #1001.ExplAttrInfos(#14,REQ)
    0x06005A3F, // #1002.ExplAttrInfos(#14,OPT)
    0x06005A5C, // #1003.ExplAttrInfos(#686,OPT)
    0x06005A7A, // #1004.ExplAttrInfos(#25,OPT)
    0x06005A97, // #1005.ExplAttrInfos(#195,OPT)
    0x06005AB5, // #1006.ExplAttrInfos(#122,OPT)
    0x06005AD3, // #1000.Attributes(#1001,#1002,#1003,#1004,#1005,#1006)
    0x06005B09, // #1007.Supertypes(#793)
    0x06005B20, // #1007.Composition(#793,#1007)
    0x0100FB34, // #1008.ExplAttrInfos(#122,OPT)
    0x06005B3E, // #1009.ExplAttrInfos(#55,OPT)
    0x06005B5B, // #1010.ExplAttrInfos(#1000,OPT)
    0x06005B7A, // #1007.Attributes(#1008,#1009,#1010)
    0x06005B9E, // #1013.Composition(#1013)
    0x06005BB7, // #1014.ExplAttrInfos(#452,REQ)
    0x06005BD5, // #1016.Composition(#1016)
    0x06005BEE, // #1017.ExplAttrInfos(#89,REQ)
    0x06005C0B, // #1018.ExplAttrInfos(#1019,REQ)
    0x06005C2A, // #1020.ExplAttrInfos(#1021,REQ)
    0x06005C49, // #1016.Attributes(#1017,#1018,#1020)
    0x06005C6D, // #1015.ExplAttrInfos(#1022,REQ)
    0x06005C8C, // #1013.Attributes(#1014,#1015)
    0x0300751B, // #1025.Composition(#1025)
    0x0400DA97, // #1026.Composition(#1026)
    0x06005CAA, // #1028.Supertypes(#1025)
    0x06005CC2, // #1028.Composition(#1028,#1025)
    0x06005CE1, // #1029.ExplAttrInfos(#14,REQ)
    0x0100FD8F, // #1030.ExplAttrInfos(#122,OPT)
    0x06005CFE, // #1031.ExplAttrInfos(#14,OPT)
    0x06005D1B, // #1028.Attributes(#1029,#1030,#1031)
    0x06005D3F, // #1027.ExplAttrInfos(#1032,REQ)
    0x06005D5E, // #1026.Attributes(#1027)
    0x06005D76, // #1033.Composition(#1033)
    0x06005D8F, // #1036.Composition(#1036)
    0x0400DB44, // #1037.ExplAttrInfos(#14,OPT)
    0x06005DA8, // #1038.ExplAttrInfos(#122,OPT)
    0x06005DC6, // #1039.ExplAttrInfos(#730,OPT)
    0x06005DE4, // #1040.ExplAttrInfos(#687,OPT)
    0x06005E02, // #1041.ExplAttrInfos(#24,OPT)
    0x06005E1F, // #1042.ExplAttrInfos(#24,OPT)
    0x06005E3C, // #1043.ExplAttrInfos(#14,OPT)
    0x0100FF83, // #1044.ExplAttrInfos(#14,OPT)
    0x06005E59, // #1045.ExplAttrInfos(#232,OPT)
    0x06005E77, // #1046.ExplAttrInfos(#1047,OPT)
    0x06005E96, // #1036.Attributes(#1037,#1038,#1039,#1040,#1041,#1042,#1043,#1044,#1045,#1046)
    0x06005EE4, // #1048.Composition(#1048)
    0x06005EFD, // #1049.ExplAttrInfos(#14,OPT)
    0x06005F1A, // #1051.Composition(#1051)
    0x06005F33, // #1052.ExplAttrInfos(#1053,OPT)
    0x06005F52, // #1054.ExplAttrInfos(#13,OPT)
    0x06005F6F, // #1051.Attributes(#1052,#1054)
    0x06005F8D, // #1050.ExplAttrInfos(#1055,OPT)
    0x06005FAC, // #1057.Composition(#1057)
    0x06005FC5, // #1058.ExplAttrInfos(#48,OPT)
    0x0200789E, // #1059.ExplAttrInfos(#14,OPT)
    0x020078BB, // #1060.ExplAttrInfos(#122,OPT)
    0x06005FE2, // #1061.ExplAttrInfos(#721,OPT)
    0x06006000, // #1062.ExplAttrInfos(#722,OPT)
    0x0600601E, // #1057.Attributes(#1058,#1059,#1060,#1061,#1062)
    0x0600604E, // #1056.ExplAttrInfos(#1063,OPT)
    0x0600606D, // #1064.DerivAttrInfos(#6)
    0x06006086, // #1065.DerivAttrInfos(#6)
    0x0600609F, // #1066.DerivAttrInfos(#6)
    0x060060B8, // #1048.Attributes(#1049,#1050,#1056,#1064,#1065,#1066)
    0x060060EE, // #1067.Composition(#1067)
    0x06006107, // #1068.ExplAttrInfos(#14,REQ)
    0x06006124, // #1069.ExplAttrInfos(#122,OPT)
    0x06006142, // #1070.ExplAttrInfos(#25,REQ)
    0x0600615F, // #1071.ExplAttrInfos(#25,REQ)
    0x0600617C, // #1072.ExplAttrInfos(#634,REQ)
    0x0600619A, // #1073.ExplAttrInfos(#328,REQ)
    0x060061B8, // #1074.ExplAttrInfos(#14,OPT)
    0x060061D5, // #1075.ExplAttrInfos(#721,OPT)
    0x060061F3, // #1067.Attributes(#1068,#1069,#1070,#1071,#1072,#1073,#1074,#1075)
    0x06006235, // #1086.Supertypes(#885)
    0x0600624C, // #1086.Composition(#734,#883,#885,#1086)
    0x06006274, // #1087.ExplAttrInfos(#736,REQ)
    0x06006292, // #1086.Attributes(#1087)
    0x060062AA, // #1090.Supertypes(#976)
    0x060062C1, // #1090.Composition(#976,#891,#1090,#98)
    0x0400E0EA, // #1091.ExplAttrInfos(#48,OPT)
    0x02007CB5, // #1092.ExplAttrInfos(#122,OPT)
    0x060062E8, // #1090.Attributes(#1091,#1092)
    0x06006306, // #1094.Supertypes(#891)
    0x0600631D, // #1094.Composition(#891,#98,#1094)
    0x0600633F, // #1095.ExplAttrInfos(#48,OPT)
    0x0600635C, // #1096.ExplAttrInfos(#1097,OPT)
    0x0600637B, // #1094.Attributes(#1095,#1096)
    0x06006399, // #1093.Supertypes(#1094)
    0x060063B1, // #1093.Composition(#891,#98,#1094,#1093)
    0x060063D9, // #1098.ExplAttrInfos(#48,OPT)
    0x060063F6, // #1099.ExplAttrInfos(#122,OPT)
    0x01010560, // #1100.ExplAttrInfos(#14,OPT)
    0x06006414, // #1093.Attributes(#1098,#1099,#1100)
    0x06006438, // #1103.Supertypes(#982)
    0x0600644F, // #1103.Composition(#1103,#982)
    0x0600646D, // #1104.Composition(#1104)
    0x06006486, // #1105.ExplAttrInfos(#747,REQ)
    0x060064A4, // #1106.ExplAttrInfos(#986,REQ)
    0x060064C2, // #1104.Attributes(#1105,#1106)
    0x060064E0, // #1109.Supertypes(#1094)
    0x060064F8, // #1109.Composition(#891,#98,#1094,#1109)
    0x06006520, // #1110.ExplAttrInfos(#1111,OPT)
    0x01010706, // #1112.ExplAttrInfos(#14,OPT)
    0x0600653F, // #1109.Attributes(#1110,#1112)
    0x0600655D, // #1117.Composition(#1117)
    0x06006576, // #1118.ExplAttrInfos(#48,OPT)
    0x0500973D, // #1119.ExplAttrInfos(#14,OPT)
    0x06006593, // #1120.ExplAttrInfos(#122,OPT)
    0x060065B1, // #1121.ExplAttrInfos(#25,OPT)
    0x060065CE, // #1122.ExplAttrInfos(#14,OPT)
    0x03007EEE, // #1123.ExplAttrInfos(#14,OPT)
    0x03007F0B, // #1124.ExplAttrInfos(#122,OPT)
    0x060065EB, // #1125.ExplAttrInfos(#686,OPT)
    0x06006609, // #1126.ExplAttrInfos(#686,OPT)
    0x06006627, // #1117.Attributes(#1118,#1119,#1120,#1121,#1122,#1123,#1124,#1125,#1126)
    0x01010993, // #1127.Composition(#1127)
    0x0600666F, // #1128.ExplAttrInfos(#14,REQ)
    0x0600668C, // #1129.ExplAttrInfos(#122,OPT)
    0x060066AA, // #1130.ExplAttrInfos(#296,REQ)
    0x060066C8, // #1131.ExplAttrInfos(#14,OPT)
    0x060066E5, // #1132.ExplAttrInfos(#686,OPT)
    0x06006703, // #1133.ExplAttrInfos(#25,OPT)
    0x06006720, // #1134.ExplAttrInfos(#14,OPT)
    0x0600673D, // #1127.Attributes(#1128,#1129,#1130,#1131,#1132,#1133,#1134)
    0x06006779, // #1135.Supertypes(#702)
    0x06006790, // #1135.Composition(#1135,#702)
    0x060067AE, // #1136.ExplAttrInfos(#14,REQ)
    0x060067CB, // #1135.Attributes(#1136)
    0x060067E3, // #1137.Supertypes(#702)
    0x060067FA, // #1137.Composition(#1137,#702)
    0x05009950, // #1138.ExplAttrInfos(#14,REQ)
    0x06006818, // #1139.ExplAttrInfos(#687,REQ)
    0x06006836, // #1137.Attributes(#1138,#1139)
    0x0400E5CE, // #1140.Composition(#1140)
    0x06006854, // #1141.ExplAttrInfos(#14,REQ)
    0x06006871, // #1142.ExplAttrInfos(#122,OPT)
    0x0600688F, // #1140.Attributes(#1141,#1142)
    0x060068AD, // #1143.Composition(#1143)
    0x060068C6, // #1144.ExplAttrInfos(#516,REQ)
    0x060068E4, // #1145.ExplAttrInfos(#14,OPT)
    0x06006901, // #1143.Attributes(#1144,#1145)
    0x0600691F, // #1146.Composition(#1146)
    0x03008292, // #1147.Composition(#1147)
    0x06006938, // #1149.Supertypes(#986)
    0x0600694F, // #1149.Composition(#986,#1149)
    0x0600696D, // #1148.ExplAttrInfos(#1150,REQ)
    0x0600698C, // #1151.ExplAttrInfos(#14,OPT)
    0x0400E73D, // #1152.ExplAttrInfos(#122,OPT)
    0x060069A9, // #1153.ExplAttrInfos(#63,REQ)
    0x060069C6, // #1154.ExplAttrInfos(#1108,OPT)
    0x060069E5, // #1147.Attributes(#1148,#1151,#1152,#1153,#1154)
    0x06006A15, // #1157.Supertypes(#976)
    0x06006A2C, // #1157.Composition(#976,#891,#1157,#98)
    0x06006A53, // #1158.ExplAttrInfos(#48,OPT)
    0x06006A70, // #1159.ExplAttrInfos(#122,OPT)
    0x06006A8E, // #1157.Attributes(#1158,#1159)
    0x06006AAC, // #1160.Supertypes(#1094)
    0x06006AC4, // #1160.Composition(#891,#98,#1094,#1160)
    0x05009B16, // #1161.ExplAttrInfos(#48,OPT)
    0x05009B33, // #1162.ExplAttrInfos(#122,OPT)
    0x06006AEC, // #1163.ExplAttrInfos(#14,OPT)
    0x06006B09, // #1160.Attributes(#1161,#1162,#1163)
    0x06006B2D, // #1171.Supertypes(#883)
    0x06006B44, // #1171.Composition(#1171,#734,#883)
    0x06006B67, // #1173.Supertypes(#883)
    0x06006B7E, // #1173.Composition(#1173,#734,#883)
    0x06006BA1, // #1175.Supertypes(#883)
    0x06006BB8, // #1175.Composition(#1175,#734,#883)
    0x06006BDB, // #1177.Supertypes(#883)
    0x06006BF2, // #1177.Composition(#1177,#734,#883)
    0x06006C15, // #1176.ExplAttrInfos(#1177,REQ)
    0x06006C34, // #1178.ExplAttrInfos(#13,REQ)
    0x06006C51, // #1175.Attributes(#1176,#1178)
    0x06006C6F, // #1174.ExplAttrInfos(#1179,REQ)
    0x01010FCA, // #1173.Attributes(#1174)
    0x06006C8E, // #1172.ExplAttrInfos(#1180,REQ)
    0x06006CAD, // #1171.Attributes(#1172)
    0x06006CC5, // #1170.Supertypes(#1171)
    0x06006CDD, // #1170.Composition(#1170,#1171,#734,#883)
    0x06006D06, // #1181.Supertypes(#1171)
    0x06006D1E, // #1181.Composition(#1171,#1181,#734,#883)
    0x06006D47, // #1187.Supertypes(#994)
    0x06006D5E, // #1187.Composition(#1187,#976,#891,#975,#98,#994)
    0x02009018, // #1186.Supertypes(#1187)
    0x06006D8F, // #1186.Composition(#1186,#1187,#976,#891,#975,#98,#994)
    0x06006DC6, // #1188.ExplAttrInfos(#398,OPT)
    0x06006DE4, // #1186.Attributes(#1188)
    0x06006DFC, // #1190.Supertypes(#994)
    0x06006E13, // #1190.Composition(#976,#891,#975,#98,#994,#1190)
    0x06006E44, // #1191.ExplAttrInfos(#386,OPT)
    0x000205CD, // #1190.Attributes(#1191)
    0x000205E5, // #1189.Supertypes(#1190)
    0x06006E62, // #1189.Composition(#976,#891,#975,#98,#1189,#994,#1190)
    0x06006E99, // #1192.ExplAttrInfos(#592,OPT)
    0x06006EB7, // #1193.ExplAttrInfos(#56,OPT)
    0x06006ED4, // #1189.Attributes(#1192,#1193)
    0x06006EF2, // #1196.Supertypes(#976)
    0x06006F09, // #1196.Composition(#1196,#976,#891,#98)
    0x06006F30, // #1201.Supertypes(#975)
    0x06006F47, // #1201.Composition(#976,#891,#975,#98,#1201)
    0x06006F73, // #1204.Supertypes(#733)
    0x06006F8A, // #1204.Composition(#1204,#733,#734)
    0x06006FAD, // #1205.ExplAttrInfos(#1206,REQ)
    0x06006FCC, // #1207.DerivAttrInfos(#29)
    0x06006FE6, // #1204.Attributes(#1205,#1207)
    0x06007004, // #1208.Supertypes(#1173)
    0x0600701C, // #1208.Composition(#1173,#1208,#734,#883)
    0x06007045, // #1209.ExplAttrInfos(#758,REQ)
    0x06007063, // #1210.ExplAttrInfos(#13,REQ)
    0x06007080, // #1208.Attributes(#1209,#1210)
    0x0600709E, // #1213.Supertypes(#793)
    0x060070B5, // #1213.Composition(#1213,#793)
    0x060070D3, // #1214.Supertypes(#807)
    0x060070EA, // #1214.Composition(#807,#1214)
    0x06007108, // #1215.ExplAttrInfos(#814,REQ)
    0x06007126, // #1216.ExplAttrInfos(#814,REQ)
    0x06007144, // #1217.ExplAttrInfos(#814,REQ)
    0x06007162, // #1218.ExplAttrInfos(#814,REQ)
    0x06007180, // #1214.Attributes(#1215,#1216,#1217,#1218)
    0x060071AA, // #1219.Supertypes(#807)
    0x060071C1, // #1219.Composition(#807,#1219)
    0x060071DF, // #1220.ExplAttrInfos(#165,OPT)
    0x060071FD, // #1221.ExplAttrInfos(#165,OPT)
    0x0600721B, // #1219.Attributes(#1220,#1221)
    0x06007239, // #1222.Supertypes(#807)
    0x06007250, // #1222.Composition(#807,#1222)
    0x0600726E, // #1223.ExplAttrInfos(#814,REQ)
    0x0600728C, // #1224.ExplAttrInfos(#84,OPT)
    0x060072A9, // #1222.Attributes(#1223,#1224)
    0x060072C7, // #1225.Supertypes(#807)
    0x060072DE, // #1225.Composition(#807,#1225)
    0x060072FC, // #1227.Supertypes(#807)
    0x06007313, // #1227.Composition(#807,#1227)
    0x06007331, // #1228.ExplAttrInfos(#13,REQ)
    0x0600734E, // #1229.ExplAttrInfos(#13,REQ)
    0x030093D3, // #1230.ExplAttrInfos(#48,OPT)
    0x0600736B, // #1233.Supertypes(#733)
    0x06007382, // #1233.Composition(#1233,#733,#734)
    0x060073A5, // #1234.ExplAttrInfos(#739,OPT)
    0x060073C3, // #1235.ExplAttrInfos(#739,OPT)
    0x060073E1, // #1236.ExplAttrInfos(#940,REQ)
    0x060073FF, // #1237.ExplAttrInfos(#165,OPT)
    0x0600741D, // #1238.DerivAttrInfos(#165)
    0x06007438, // #1239.DerivAttrInfos(#29)
    0x06007452, // #1233.Attributes(#1234,#1235,#1236,#1237,#1238,#1239)
    0x06007488, // #1232.Supertypes(#1233)
    0x060074A0, // #1232.Composition(#1233,#1232,#733,#734)
    0x060074C9, // #1240.DerivAttrInfos(#1241)
    0x060074E5, // #1232.Attributes(#1240)
    0x060074FD, // #1231.ExplAttrInfos(#1232,OPT)
    0x0600751C, // #1242.ExplAttrInfos(#1243,OPT)
    0x0600753B, // #1227.Attributes(#1228,#1229,#1230,#1231,#1242)
    0x0600756B, // #1226.ExplAttrInfos(#1244,REQ)
    0x0600758A, // #1225.Attributes(#1226)
    0x060075A2, // #1247.Supertypes(#793)
    0x060075B9, // #1247.Composition(#1247,#793)
    0x060075D7, // #1248.Supertypes(#810)
    0x060075EE, // #1248.Composition(#810,#1248,#807)
    0x06007611, // #1.DefTypes(#2,#3,#4,#5,#9,#10,#11,#12,#13,#15,#16,#18,#20,#21,#22,#23,#24,#25,#26,#27,#28,#29,#30,#31,#32,#33,#34,#35,#36,#37,#38,#39,#40,#41,#42,#43,#44,#45,#46,#47,#48,#49,#50,#6,#51,#52,#53,#54,#14,#55,#56,#58,#59,#60,#61,#62,#63,#64,#65,#66,#67,#68,#69,#70,#71,#72,#73,#74,#75,#76,#77,#78,#79,#80,#81,#82,#84,#85,#86,#87,#88,#89,#7,#90,#91,#92,#93,#94,#95,#163,#164,#83,#165,#166,#167,#168,#169,#170,#171,#172,#173,#174,#175,#176,#177,#178,#179,#180,#181,#122,#182,#183,#184,#185,#186,#187,#188,#189,#190,#191,#192,#193,#156,#194,#195,#196,#197,#198,#199,#200,#202,#204,#206,#208,#128,#210,#212,#214,#216,#218,#220,#222,#224,#226,#228,#230,#232,#234,#236,#238,#240,#242,#244,#246,#248,#250,#252,#254,#256,#258,#260,#262,#264,#266,#268,#270,#272,#274,#276,#154,#278,#280,#282,#284,#286,#288,#290,#292,#294,#296,#298,#300,#302,#304,#306,#308,#310,#312,#314,#316,#318,#320,#322,#324,#326,#328,#330,#332,#334,#336,#338,#340,#342,#344,#346,#348,#350,#352,#354,#356,#358,#360,#362,#364,#366,#368,#370,#372,#374,#376,#378,#380,#382,#384,#386,#388,#390,#392,#394,#396,#398,#400,#402,#404,#406,#408,#410,#412,#414,#416,#418,#420,#422,#424,#426,#428,#430,#432,#434,#436,#438,#440,#442,#444,#446,#448,#450,#452,#454,#456,#458,#460,#462,#464,#466,#468,#470,#472,#474,#476,#478,#480,#482,#484,#486,#488,#490,#492,#494,#496,#498,#500,#502,#504,#506,#508,#510,#512,#514,#516,#518,#520,#522,#524,#526,#528,#530,#532,#534,#536,#538,#540,#542,#544,#546,#548,#550,#552,#554,#556,#558,#560,#562,#119,#564,#566,#568,#570,#572,#574,#576,#578,#580,#582,#584,#586,#588,#590,#592,#594,#596,#598,#600,#151,#602,#604,#606,#608,#610,#612,#614,#616,#618,#620,#622,#624,#626,#628,#630,#632,#634,#636,#638,#640,#642,#644,#646,#648,#650,#652,#654,#656,#658,#660,#662,#664,#666,#668,#670,#672,#674,#676,#678,#680,#682,#684,#686,#730,#747,#749,#781,#803,#805,#813,#819,#834,#836,#852,#854,#880,#890,#849,#893,#690,#917,#919,#958,#960,#971,#938,#973,#997,#999,#1012,#1024,#1035,#692,#1077,#1079,#1081,#1083,#1085,#1089,#1102,#1108,#1114,#1116,#1156,#1165,#1167,#1169,#1183,#694,#929,#1185,#1195,#1198,#1200,#1203,#1212,#1246,#1250,#1252,#1254,#1256,#1258,#721,#696,#1260,#1262)
    0x06007E75, // #1264.Supertypes(#976)
    0x06007E8C, // #1264.Composition(#1264,#976,#891,#98)
    0x06007EB3, // #1265.ExplAttrInfos(#48,OPT)
    0x06007ED0, // #1264.Attributes(#1265)
    0x0400FD3F, // #1263.Supertypes(#1264)
    0x06007EE8, // #1263.Composition(#1263,#1264,#976,#891,#98)
    0x06007F15, // #1266.ExplAttrInfos(#202,OPT)
    0x06007F33, // #1267.ExplAttrInfos(#14,OPT)
    0x06007F50, // #1268.ExplAttrInfos(#122,OPT)
    0x06007F6E, // #1263.Attributes(#1266,#1267,#1268)
    0x06007F92, // #1269.Supertypes(#976)
    0x06007FA9, // #1269.Composition(#1269,#976,#891,#98)
    0x06007FD0, // #1270.ExplAttrInfos(#686,REQ)
    0x0400FE7C, // #1269.Attributes(#1270)
    0x06007FEE, // #1273.Supertypes(#974)
    0x06008005, // #1273.Composition(#1273,#974,#976,#891,#975,#98)
    0x0400FFEE, // #1272.Supertypes(#1273)
    0x06008036, // #1272.Composition(#1272,#1273,#974,#976,#891,#975,#98)
    0x0600806D, // #1271.Supertypes(#1272)
    0x06008085, // #1271.Composition(#1271,#1272,#1273,#974,#976,#891,#975,#98)
    0x060080C2, // #1274.ExplAttrInfos(#208,OPT)
    0x060080E0, // #1271.Attributes(#1274)
    0x060080F8, // #1278.Supertypes(#1109)
    0x06008110, // #1278.Composition(#1278,#891,#98,#1094,#1109)
    0x0600813E, // #1279.ExplAttrInfos(#14,OPT)
    0x0002179E, // #1278.Attributes(#1279)
    0x01012BA9, // #1277.Supertypes(#1278)
    0x0600815B, // #1277.Composition(#1277,#1278,#891,#98,#1094,#1109)
    0x0600818F, // #1276.Supertypes(#1277)
    0x060081A7, // #1276.Composition(#1276,#1277,#1278,#891,#98,#1094,#1109)
    0x060081E1, // #1275.Supertypes(#1276)
    0x060081F9, // #1275.Composition(#1275,#1276,#1277,#1278,#891,#98,#1094,#1109)
    0x06008239, // #1280.ExplAttrInfos(#208,REQ)
    0x06008257, // #1275.Attributes(#1280)
    0x0600826F, // #1282.Supertypes(#762)
    0x06008286, // #1282.Composition(#733,#1282,#734,#762)
    0x060082AE, // #1283.ExplAttrInfos(#1170,REQ)
    0x060082CD, // #1282.Attributes(#1283)
    0x060082E5, // #1281.Supertypes(#1282)
    0x060082FD, // #1281.Composition(#1281,#733,#1282,#734,#762)
    0x0401021B, // #1284.Supertypes(#1281)
    0x0600832B, // #1284.Composition(#1281,#1284,#733,#1282,#734,#762)
    0x0600835F, // #1285.ExplAttrInfos(#1286,REQ)
    0x0600837E, // #1284.Attributes(#1285)
    0x06008396, // #1287.Supertypes(#1208)
    0x060083AE, // #1287.Composition(#1287,#1173,#1208,#734,#883)
    0x060083DD, // #1290.Supertypes(#1273)
    0x060083F5, // #1290.Composition(#1273,#1290,#974,#976,#891,#975,#98)
    0x0600842C, // #1289.Supertypes(#1290)
    0x06008444, // #1289.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98)
    0x06008481, // #1288.Supertypes(#1289)
    0x06008499, // #1288.Composition(#1288,#1273,#1290,#974,#1289,#976,#891,#975,#98)
    0x060084DC, // #1291.ExplAttrInfos(#212,OPT)
    0x060084FA, // #1288.Attributes(#1291)
    0x06008512, // #1293.Supertypes(#1290)
    0x0600852A, // #1293.Composition(#1273,#1290,#974,#1293,#976,#891,#975,#98)
    0x0200A6EA, // #1292.Supertypes(#1293)
    0x06008567, // #1292.Composition(#1292,#1273,#1290,#974,#1293,#976,#891,#975,#98)
    0x060085AA, // #1294.ExplAttrInfos(#210,OPT)
    0x060085C8, // #1292.Attributes(#1294)
    0x060085E0, // #1297.Supertypes(#1277)
    0x060085F8, // #1297.Composition(#1277,#1297,#1278,#891,#98,#1094,#1109)
    0x0300A4C5, // #1296.Supertypes(#1297)
    0x06008632, // #1296.Composition(#1277,#1297,#1278,#1296,#891,#98,#1094,#1109)
    0x06008672, // #1295.Supertypes(#1296)
    0x0600868A, // #1295.Composition(#1295,#1277,#1297,#1278,#1296,#891,#98,#1094,#1109)
    0x060086D0, // #1298.ExplAttrInfos(#210,REQ)
    0x060086EE, // #1295.Attributes(#1298)
    0x06008706, // #1300.Supertypes(#1297)
    0x0600871E, // #1300.Composition(#1277,#1297,#1278,#1300,#891,#98,#1094,#1109)
    0x0600875E, // #1299.Supertypes(#1300)
    0x06008776, // #1299.Composition(#1299,#1277,#1297,#1278,#1300,#891,#98,#1094,#1109)
    0x060087BC, // #1301.ExplAttrInfos(#212,REQ)
    0x060087DA, // #1299.Attributes(#1301)
    0x060087F2, // #1303.Supertypes(#1290)
    0x0600880A, // #1303.Composition(#1273,#1290,#974,#1303,#976,#891,#975,#98)
    0x06008847, // #1302.Supertypes(#1303)
    0x0600885F, // #1302.Composition(#1302,#1273,#1290,#974,#1303,#976,#891,#975,#98)
    0x060088A2, // #1304.ExplAttrInfos(#214,OPT)
    0x060088C0, // #1302.Attributes(#1304)
    0x060088D8, // #1306.Supertypes(#1297)
    0x060088F0, // #1306.Composition(#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)
    0x0500B3B0, // #1305.Supertypes(#1306)
    0x06008930, // #1305.Composition(#1305,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)
    0x06008976, // #1307.ExplAttrInfos(#214,REQ)
    0x06008994, // #1305.Attributes(#1307)
    0x060089AC, // #1308.Supertypes(#1272)
    0x060089C4, // #1308.Composition(#1308,#1272,#1273,#974,#976,#891,#975,#98)
    0x06008A01, // #1309.ExplAttrInfos(#216,OPT)
    0x0300A6A3, // #1308.Attributes(#1309)
    0x06008A1F, // #1310.Supertypes(#1276)
    0x06008A37, // #1310.Composition(#1310,#1276,#1277,#1278,#891,#98,#1094,#1109)
    0x06008A77, // #1311.ExplAttrInfos(#216,REQ)
    0x06008A95, // #1310.Attributes(#1311)
    0x06008AAD, // #1314.Supertypes(#975)
    0x06008AC4, // #1314.Composition(#976,#891,#1314,#975,#98)
    0x06008AF0, // #1313.Supertypes(#1314)
    0x06008B08, // #1313.Composition(#1313,#976,#891,#1314,#975,#98)
    0x06008B3A, // #1312.Supertypes(#1313)
    0x06008B52, // #1312.Composition(#1312,#1313,#976,#891,#1314,#975,#98)
    0x06008B8A, // #1315.ExplAttrInfos(#222,OPT)
    0x06008BA8, // #1312.Attributes(#1315)
    0x06008BC0, // #1317.Supertypes(#975)
    0x06008BD7, // #1317.Composition(#1317,#976,#891,#975,#98)
    0x010131CB, // #1316.Supertypes(#1317)
    0x06008C03, // #1316.Composition(#1316,#1317,#976,#891,#975,#98)
    0x06008C35, // #1318.ExplAttrInfos(#90,REQ)
    0x06008C52, // #1316.Attributes(#1318)
    0x06008C6A, // #1320.Composition(#1320)
    0x06008C83, // #1321.ExplAttrInfos(#14,OPT)
    0x0300A872, // #1322.ExplAttrInfos(#14,OPT)
    0x06008CA0, // #1320.Attributes(#1321,#1322)
    0x06008CBE, // #1319.Supertypes(#1320)
    0x06008CD6, // #1319.Composition(#1319,#1320)
    0x06008CF5, // #1323.ExplAttrInfos(#56,REQ)
    0x06008D12, // #1324.ExplAttrInfos(#90,REQ)
    0x04010BF2, // #1325.ExplAttrInfos(#56,REQ)
    0x06008D2F, // #1326.ExplAttrInfos(#56,OPT)
    0x06008D4C, // #1327.ExplAttrInfos(#56,REQ)
    0x06008D69, // #1328.ExplAttrInfos(#56,OPT)
    0x06008D86, // #1329.ExplAttrInfos(#218,REQ)
    0x06008DA4, // #1319.Attributes(#1323,#1324,#1325,#1326,#1327,#1328,#1329)
    0x06008DE0, // #1330.Supertypes(#1317)
    0x06008DF8, // #1330.Composition(#1330,#1317,#976,#891,#975,#98)
    0x06008E2A, // #1331.Supertypes(#1320)
    0x06008E42, // #1331.Composition(#1331,#1320)
    0x06008E61, // #1332.ExplAttrInfos(#940,REQ)
    0x06008E7F, // #1333.ExplAttrInfos(#89,REQ)
    0x04010DC2, // #1334.ExplAttrInfos(#56,REQ)
    0x06008E9C, // #1335.ExplAttrInfos(#56,REQ)
    0x06008EB9, // #1336.ExplAttrInfos(#82,REQ)
    0x06008ED6, // #1337.ExplAttrInfos(#90,OPT)
    0x06008EF3, // #1338.ExplAttrInfos(#220,REQ)
    0x06008F11, // #1331.Attributes(#1332,#1333,#1334,#1335,#1336,#1337,#1338)
    0x06008F4D, // #1339.Supertypes(#1317)
    0x06008F65, // #1339.Composition(#1339,#1317,#976,#891,#975,#98)
    0x06008F97, // #1340.ExplAttrInfos(#1320,REQ)
    0x06008FB6, // #1339.Attributes(#1340)
    0x06008FCE, // #1341.Supertypes(#1317)
    0x06008FE6, // #1341.Composition(#1341,#1317,#976,#891,#975,#98)
    0x06009018, // #1342.Supertypes(#1320)
    0x06009030, // #1342.Composition(#1320,#1342)
    0x0600904F, // #1343.ExplAttrInfos(#56,REQ)
    0x0600906C, // #1344.ExplAttrInfos(#90,REQ)
    0x06009089, // #1345.ExplAttrInfos(#56,REQ)
    0x060090A6, // #1346.ExplAttrInfos(#83,REQ)
    0x060090C3, // #1347.ExplAttrInfos(#83,REQ)
    0x060090E0, // #1348.ExplAttrInfos(#90,OPT)
    0x060090FD, // #1349.ExplAttrInfos(#224,REQ)
    0x0600911B, // #1342.Attributes(#1343,#1344,#1345,#1346,#1347,#1348,#1349)
    0x06009157, // #1350.Supertypes(#975)
    0x0600916E, // #1350.Composition(#1350,#976,#891,#975,#98)
    0x0600919A, // #1351.ExplAttrInfos(#230,OPT)
    0x060091B8, // #1350.Attributes(#1351)
    0x060091D0, // #1352.Supertypes(#733)
    0x060091E7, // #1352.Composition(#1352,#733,#734)
    0x0600920A, // #1353.ExplAttrInfos(#858,REQ)
    0x06009228, // #1354.ExplAttrInfos(#1355,OPT)
    0x06009247, // #1352.Attributes(#1353,#1354)
    0x06009265, // #1357.Composition(#1357)
    0x0600927E, // #1358.ExplAttrInfos(#14,OPT)
    0x0600929B, // #1359.ExplAttrInfos(#122,OPT)
    0x060092B9, // #1357.Attributes(#1358,#1359)
    0x060092D7, // #1356.Supertypes(#1357)
    0x060092EF, // #1356.Composition(#1356,#1357)
    0x0600930E, // #1360.ExplAttrInfos(#1117,REQ)
    0x0600932D, // #1361.ExplAttrInfos(#1362,REQ)
    0x0600934C, // #1356.Attributes(#1360,#1361)
    0x0600936A, // #1363.Supertypes(#1143)
    0x06009382, // #1363.Composition(#1363,#1143)
    0x060093A1, // #1364.ExplAttrInfos(#858,REQ)
    0x010139B6, // #1363.Attributes(#1364)
    0x060093BF, // #1365.Supertypes(#1143)
    0x060093D7, // #1365.Composition(#1365,#1143)
    0x060093F6, // #1366.ExplAttrInfos(#857,REQ)
    0x06009414, // #1365.Attributes(#1366)
    0x0600942C, // #1367.Supertypes(#1363)
    0x06009444, // #1367.Composition(#1363,#1367,#1143)
    0x06009469, // #1368.ExplAttrInfos(#1369,REQ)
    0x06009488, // #1367.Attributes(#1368)
    0x060094A0, // #1370.Supertypes(#1196)
    0x060094B8, // #1370.Composition(#1370,#1196,#976,#891,#98)
    0x060094E5, // #1371.ExplAttrInfos(#48,OPT)
    0x06009502, // #1373.Supertypes(#1036)
    0x0600951A, // #1373.Composition(#1036,#1373)
    0x06009539, // #1372.ExplAttrInfos(#1373,OPT)
    0x06009558, // #1374.ExplAttrInfos(#1373,OPT)
    0x06009577, // #1375.ExplAttrInfos(#1373,OPT)
    0x06009596, // #1376.ExplAttrInfos(#686,OPT)
    0x060095B4, // #1377.ExplAttrInfos(#686,OPT)
    0x060095D2, // #1378.ExplAttrInfos(#105,OPT)
    0x060095F0, // #1379.ExplAttrInfos(#24,OPT)
    0x0600960D, // #1380.ExplAttrInfos(#1373,OPT)
    0x0600962C, // #1370.Attributes(#1371,#1372,#1374,#1375,#1376,#1377,#1378,#1379,#1380)
    0x06009674, // #1382.Supertypes(#1143)
    0x0600968C, // #1382.Composition(#1382,#1143)
    0x060096AB, // #1383.ExplAttrInfos(#731,OPT)
    0x060096C9, // #1382.Attributes(#1383)
    0x00022C4B, // #1381.Supertypes(#1382)
    0x060096E1, // #1381.Composition(#1381,#1382,#1143)
    0x06009706, // #1384.ExplAttrInfos(#90,REQ)
    0x0500C521, // #1385.ExplAttrInfos(#90,REQ)
    0x06009723, // #1386.ExplAttrInfos(#90,REQ)
    0x06009740, // #1387.ExplAttrInfos(#90,REQ)
    0x0600975D, // #1388.ExplAttrInfos(#82,OPT)
    0x01013E0B, // #1389.ExplAttrInfos(#90,REQ)
    0x0600977A, // #1390.ExplAttrInfos(#90,OPT)
    0x06009797, // #1391.ExplAttrInfos(#82,OPT)
    0x060097B4, // #1392.ExplAttrInfos(#82,OPT)
    0x060097D1, // #1393.ExplAttrInfos(#89,OPT)
    0x060097EE, // #1394.ExplAttrInfos(#82,OPT)
    0x0600980B, // #1395.ExplAttrInfos(#89,OPT)
    0x06009828, // #1381.Attributes(#1384,#1385,#1386,#1387,#1388,#1389,#1390,#1391,#1392,#1393,#1394,#1395)
    0x06009882, // #1396.Supertypes(#1289)
    0x0600989A, // #1396.Composition(#1396,#1273,#1290,#974,#1289,#976,#891,#975,#98)
    0x060098DD, // #1397.ExplAttrInfos(#236,OPT)
    0x060098FB, // #1396.Attributes(#1397)
    0x06009913, // #1398.Supertypes(#1300)
    0x0600992B, // #1398.Composition(#1398,#1277,#1297,#1278,#1300,#891,#98,#1094,#1109)
    0x06009971, // #1399.ExplAttrInfos(#236,REQ)
    0x0600998F, // #1398.Attributes(#1399)
    0x060099A7, // #1400.Supertypes(#732)
    0x060099BE, // #1400.Composition(#1400,#733,#732,#734)
    0x060099E6, // #1401.ExplAttrInfos(#739,OPT)
    0x06009A04, // #1402.DerivAttrInfos(#739)
    0x06009A1F, // #1400.Attributes(#1401,#1402)
    0x06009A3D, // #1403.Supertypes(#732)
    0x06009A54, // #1403.Composition(#1403,#733,#732,#734)
    0x06009A7C, // #1404.ExplAttrInfos(#739,OPT)
    0x06009A9A, // #1405.ExplAttrInfos(#739,OPT)
    0x06009AB8, // #1403.Attributes(#1404,#1405)
    0x06009AD6, // #1406.Supertypes(#857)
    0x06009AED, // #1406.Composition(#857,#1406,#858,#733,#734)
    0x06009B1A, // #1407.ExplAttrInfos(#6,REQ)
    0x0300B577, // #1408.ExplAttrInfos(#1409,REQ)
    0x06009B36, // #1410.ExplAttrInfos(#238,REQ)
    0x06009B54, // #1411.ExplAttrInfos(#63,REQ)
    0x06009B71, // #1412.ExplAttrInfos(#63,REQ)
    0x04011A1C, // #1413.DerivAttrInfos(#6)
    0x06009B8E, // #1414.DerivAttrInfos(#1415)
    0x06009BAA, // #1406.Attributes(#1407,#1408,#1410,#1411,#1412,#1413,#1414)
    0x06009BE6, // #1416.Supertypes(#1406)
    0x06009BFE, // #1416.Composition(#857,#1406,#1416,#858,#733,#734)
    0x06009C31, // #1417.ExplAttrInfos(#1418,REQ)
    0x06009C50, // #1419.ExplAttrInfos(#1420,REQ)
    0x06009C6F, // #1421.ExplAttrInfos(#444,REQ)
    0x06009C8D, // #1422.DerivAttrInfos(#6)
    0x06009CA6, // #1416.Attributes(#1417,#1419,#1421,#1422)
    0x06009CD0, // #1424.Supertypes(#758)
    0x06009CE7, // #1424.Composition(#1424,#733,#734,#758)
    0x06009D0F, // #1423.Supertypes(#1424)
    0x06009D27, // #1423.Composition(#1424,#1423,#733,#734,#758)
    0x06009D55, // #1425.ExplAttrInfos(#6,REQ)
    0x06009D71, // #1426.ExplAttrInfos(#6,REQ)
    0x06009D8D, // #1427.ExplAttrInfos(#1429,REQ)
    0x06009DAC, // #1430.ExplAttrInfos(#240,REQ)
    0x06009DCA, // #1431.ExplAttrInfos(#63,REQ)
    0x06009DE7, // #1432.ExplAttrInfos(#63,REQ)
    0x06009E04, // #1433.ExplAttrInfos(#63,REQ)
    0x06009E21, // #1434.DerivAttrInfos(#6)
    0x06009E3A, // #1435.DerivAttrInfos(#6)
    0x06009E53, // #1436.DerivAttrInfos(#1438)
    0x06009E6F, // #1423.Attributes(#1425,#1426,#1427,#1430,#1431,#1432,#1433,#1434,#1435,#1436)
    0x06009EBD, // #1439.Supertypes(#1423)
    0x06009ED5, // #1439.Composition(#1424,#1423,#1439,#733,#734,#758)
    0x06009F09, // #1440.ExplAttrInfos(#1441,REQ)
    0x06009F28, // #1442.ExplAttrInfos(#1443,REQ)
    0x06009F47, // #1444.ExplAttrInfos(#1445,REQ)
    0x06009F66, // #1446.ExplAttrInfos(#1447,REQ)
    0x06009F85, // #1448.ExplAttrInfos(#444,REQ)
    0x06009FA3, // #1449.DerivAttrInfos(#6)
    0x06009FBC, // #1450.DerivAttrInfos(#6)
    0x06009FD5, // #1439.Attributes(#1440,#1442,#1444,#1446,#1448,#1449,#1450)
    0x0600A011, // #1452.Supertypes(#974)
    0x0600A028, // #1452.Composition(#1452,#974,#976,#891,#975,#98)
    0x0600A059, // #1451.Supertypes(#1452)
    0x0600A071, // #1451.Composition(#1451,#1452,#974,#976,#891,#975,#98)
    0x0600A0A8, // #1453.ExplAttrInfos(#242,OPT)
    0x0600A0C6, // #1451.Attributes(#1453)
    0x0600A0DE, // #1454.Supertypes(#1451)
    0x0600A0F6, // #1454.Composition(#1451,#1454,#1452,#974,#976,#891,#975,#98)
    0x0600A133, // #1456.Supertypes(#1278)
    0x0600A14B, // #1456.Composition(#1456,#1278,#891,#98,#1094,#1109)
    0x0600A17F, // #1455.Supertypes(#1456)
    0x0600A197, // #1455.Composition(#1455,#1456,#1278,#891,#98,#1094,#1109)
    0x0600A1D1, // #1457.ExplAttrInfos(#242,REQ)
    0x0600A1EF, // #1455.Attributes(#1457)
    0x0600A207, // #1458.Supertypes(#1452)
    0x0600A21F, // #1458.Composition(#1458,#1452,#974,#976,#891,#975,#98)
    0x00023BDF, // #1459.ExplAttrInfos(#246,OPT)
    0x0600A256, // #1458.Attributes(#1459)
    0x0600A26E, // #1460.Supertypes(#1456)
    0x0600A286, // #1460.Composition(#1460,#1456,#1278,#891,#98,#1094,#1109)
    0x0600A2C0, // #1461.ExplAttrInfos(#246,REQ)
    0x0600A2DE, // #1460.Attributes(#1461)
    0x0600A2F6, // #1462.Supertypes(#1227)
    0x0600A30E, // #1462.Composition(#1462,#807,#1227)
    0x0600A332, // #1463.ExplAttrInfos(#48,REQ)
    0x0600A34F, // #1464.ExplAttrInfos(#12,REQ)
    0x0600A36C, // #1462.Attributes(#1463,#1464)
    0x0600A38A, // #1465.Supertypes(#753)
    0x0600A3A1, // #1465.Composition(#1465,#753,#733,#734)
    0x0600A3C9, // #1466.ExplAttrInfos(#90,REQ)
    0x0600A3E6, // #1467.ExplAttrInfos(#90,REQ)
    0x0600A403, // #1468.ExplAttrInfos(#90,REQ)
    0x0600A420, // #1465.Attributes(#1466,#1467,#1468)
    0x0600A444, // #1469.Supertypes(#1303)
    0x0600A45C, // #1469.Composition(#1469,#1273,#1290,#974,#1303,#976,#891,#975,#98)
    0x0600A49F, // #1470.ExplAttrInfos(#250,OPT)
    0x01014FE6, // #1469.Attributes(#1470)
    0x0600A4BD, // #1471.Supertypes(#1306)
    0x0600A4D5, // #1471.Composition(#1471,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)
    0x0600A51B, // #1472.ExplAttrInfos(#250,REQ)
    0x0101507A, // #1471.Attributes(#1472)
    0x0600A539, // #1473.Supertypes(#750)
    0x0600A550, // #1473.Composition(#1473,#750,#733,#734)
    0x0600A578, // #1476.Supertypes(#974)
    0x0600A58F, // #1476.Composition(#974,#1476,#976,#891,#975,#98)
    0x0600A5C0, // #1475.Supertypes(#1476)
    0x0600A5D8, // #1475.Composition(#974,#1475,#1476,#976,#891,#975,#98)
    0x0600A60F, // #1474.Supertypes(#1475)
    0x0600A627, // #1474.Composition(#1474,#974,#1475,#1476,#976,#891,#975,#98)
    0x0600A664, // #1477.Composition(#1477)
    0x0300C36A, // #1478.ExplAttrInfos(#14,OPT)
    0x0101521E, // #1477.Attributes(#1478)
    0x0600A67D, // #1479.Supertypes(#855)
    0x0600A694, // #1479.Composition(#1479,#857,#856,#855,#858,#733,#734)
    0x0600A6CB, // #1480.Supertypes(#1477)
    0x0600A6E3, // #1480.Composition(#1477,#1480)
    0x0600A702, // #1481.ExplAttrInfos(#1083,OPT)
    0x0600A721, // #1482.ExplAttrInfos(#1083,OPT)
    0x0600A740, // #1483.ExplAttrInfos(#1083,OPT)
    0x0600A75F, // #1484.ExplAttrInfos(#1079,OPT)
    0x0600A77E, // #1485.ExplAttrInfos(#1079,OPT)
    0x0600A79D, // #1486.ExplAttrInfos(#1079,OPT)
    0x0600A7BC, // #1480.Attributes(#1481,#1482,#1483,#1484,#1485,#1486)
    0x0600A7F2, // #1487.Supertypes(#1477)
    0x0600A80A, // #1487.Composition(#1477,#1487)
    0x0600A829, // #1488.ExplAttrInfos(#1081,OPT)
    0x0600A848, // #1489.ExplAttrInfos(#1081,OPT)
    0x0600A867, // #1490.ExplAttrInfos(#1081,OPT)
    0x0600A886, // #1487.Attributes(#1488,#1489,#1490)
    0x0600A8AA, // #1491.Supertypes(#1477)
    0x0600A8C2, // #1491.Composition(#1477,#1491)
    0x0600A8E1, // #1492.ExplAttrInfos(#1254,OPT)
    0x0600A900, // #1493.ExplAttrInfos(#1254,OPT)
    0x0600A91F, // #1494.ExplAttrInfos(#1254,OPT)
    0x0600A93E, // #1495.ExplAttrInfos(#1167,OPT)
    0x0600A95D, // #1496.ExplAttrInfos(#1167,OPT)
    0x0600A97C, // #1497.ExplAttrInfos(#1167,OPT)
    0x0600A99B, // #1491.Attributes(#1492,#1493,#1494,#1495,#1496,#1497)
    0x0600A9D1, // #1498.Supertypes(#1491)
    0x0600A9E9, // #1498.Composition(#1477,#1491,#1498)
    0x0600AA0E, // #1499.ExplAttrInfos(#1262,OPT)
    0x0600AA2D, // #1498.Attributes(#1499)
    0x0600AA45, // #1500.Supertypes(#733)
    0x0600AA5C, // #1500.Composition(#1500,#733,#734)
    0x0600AA7F, // #1501.ExplAttrInfos(#940,REQ)
    0x0600AA9D, // #1502.ExplAttrInfos(#90,REQ)
    0x0600AABA, // #1503.ExplAttrInfos(#90,REQ)
    0x0600AAD7, // #1504.ExplAttrInfos(#90,REQ)
    0x0600AAF4, // #1505.DerivAttrInfos(#29)
    0x0600AB0E, // #1500.Attributes(#1501,#1502,#1503,#1504,#1505)
    0x0600AB3E, // #1506.Supertypes(#756)
    0x0600AB55, // #1506.Composition(#1506,#733,#756,#734)
    0x0600AB7D, // #1507.ExplAttrInfos(#1500,REQ)
    0x0600AB9C, // #1506.Attributes(#1507)
    0x0600ABB4, // #1509.Supertypes(#1190)
    0x0600ABCC, // #1509.Composition(#1509,#976,#891,#975,#98,#994,#1190)
    0x0600AC03, // #1508.Supertypes(#1509)
    0x0600AC1B, // #1508.Composition(#1508,#1509,#976,#891,#975,#98,#994,#1190)
    0x0600AC58, // #1510.ExplAttrInfos(#256,OPT)
    0x0600AC76, // #1508.Attributes(#1510)
    0x0600AC8E, // #1511.Supertypes(#1509)
    0x0600ACA6, // #1511.Composition(#1511,#1509,#976,#891,#975,#98,#994,#1190)
    0x0600ACE3, // #1512.ExplAttrInfos(#56,OPT)
    0x0600AD00, // #1513.ExplAttrInfos(#56,OPT)
    0x0600AD1D, // #1515.Supertypes(#125)
    0x0600AD34, // #1515.Composition(#125,#1515)
    0x01015C69, // #1516.ExplAttrInfos(#14,OPT)
    0x0600AD52, // #1517.ExplAttrInfos(#1518,OPT)
    0x0600AD71, // #1519.ExplAttrInfos(#14,OPT)
    0x0600AD8E, // #1520.ExplAttrInfos(#14,OPT)
    0x0600ADAB, // #1521.ExplAttrInfos(#14,OPT)
    0x0600ADC8, // #1522.ExplAttrInfos(#14,OPT)
    0x01015D3D, // #1523.ExplAttrInfos(#14,OPT)
    0x0600ADE5, // #1515.Attributes(#1516,#1517,#1519,#1520,#1521,#1522,#1523)
    0x0600AE21, // #1514.ExplAttrInfos(#1515,OPT)
    0x0600AE40, // #1511.Attributes(#1512,#1513,#1514)
    0x0600AE64, // #1525.Supertypes(#974)
    0x0600AE7B, // #1525.Composition(#974,#1525,#976,#891,#975,#98)
    0x01015DD0, // #1524.Supertypes(#1525)
    0x0600AEAC, // #1524.Composition(#1524,#974,#1525,#976,#891,#975,#98)
    0x0600AEE3, // #1526.ExplAttrInfos(#258,OPT)
    0x01015E4C, // #1524.Attributes(#1526)
    0x0600AF01, // #1528.Supertypes(#1278)
    0x0600AF19, // #1528.Composition(#1528,#1278,#891,#98,#1094,#1109)
    0x01015EBC, // #1527.Supertypes(#1528)
    0x0600AF4D, // #1527.Composition(#1527,#1528,#1278,#891,#98,#1094,#1109)
    0x0600AF87, // #1529.ExplAttrInfos(#258,REQ)
    0x01015F38, // #1527.Attributes(#1529)
    0x0600AFA5, // #1530.Supertypes(#1452)
    0x0600AFBD, // #1530.Composition(#1530,#1452,#974,#976,#891,#975,#98)
    0x0600AFF4, // #1531.ExplAttrInfos(#260,OPT)
    0x01015FCC, // #1530.Attributes(#1531)
    0x0600B012, // #1532.Supertypes(#1456)
    0x0600B02A, // #1532.Composition(#1532,#1456,#1278,#891,#98,#1094,#1109)
    0x0600B064, // #1533.ExplAttrInfos(#260,REQ)
    0x01016060, // #1532.Attributes(#1533)
    0x0600B082, // #1534.Supertypes(#1190)
    0x0600B09A, // #1534.Composition(#1534,#976,#891,#975,#98,#994,#1190)
    0x0600B0D1, // #1535.ExplAttrInfos(#56,OPT)
    0x0600B0EE, // #1534.Attributes(#1535)
    0x0600B106, // #1537.Supertypes(#1196)
    0x0600B11E, // #1537.Composition(#1196,#976,#891,#98,#1537)
    0x0600B14B, // #1536.Supertypes(#1537)
    0x0600B163, // #1536.Composition(#1536,#1196,#976,#891,#98,#1537)
    0x0600B196, // #1538.ExplAttrInfos(#262,OPT)
    0x0600B1B4, // #1539.ExplAttrInfos(#14,OPT)
    0x0600B1D1, // #1536.Attributes(#1538,#1539)
    0x0600B1EF, // #1540.Supertypes(#1537)
    0x0600B207, // #1540.Composition(#1540,#1196,#976,#891,#98,#1537)
    0x0600B23A, // #1541.ExplAttrInfos(#264,OPT)
    0x0600B258, // #1542.ExplAttrInfos(#14,OPT)
    0x0600B275, // #1540.Attributes(#1541,#1542)
    0x0600B293, // #1543.Supertypes(#1303)
    0x0600B2AB, // #1543.Composition(#1543,#1273,#1290,#974,#1303,#976,#891,#975,#98)
    0x0600B2EE, // #1544.ExplAttrInfos(#266,OPT)
    0x0600B30C, // #1543.Attributes(#1544)
    0x0600B324, // #1545.Supertypes(#1306)
    0x0600B33C, // #1545.Composition(#1545,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)
    0x0600B382, // #1546.ExplAttrInfos(#266,REQ)
    0x0600B3A0, // #1545.Attributes(#1546)
    0x0600B3B8, // #1547.Supertypes(#1382)
    0x0600B3D0, // #1547.Composition(#1547,#1382,#1143)
    0x0600B3F5, // #1548.ExplAttrInfos(#90,REQ)
    0x0600B412, // #1549.ExplAttrInfos(#90,REQ)
    0x0600B42F, // #1550.ExplAttrInfos(#90,REQ)
    0x0600B44C, // #1551.ExplAttrInfos(#90,REQ)
    0x0600B469, // #1552.ExplAttrInfos(#82,OPT)
    0x0600B486, // #1547.Attributes(#1548,#1549,#1550,#1551,#1552)
    0x0600B4B6, // #1554.Supertypes(#1290)
    0x0600B4CE, // #1554.Composition(#1273,#1290,#974,#1554,#976,#891,#975,#98)
    0x040134D2, // #1553.Supertypes(#1554)
    0x0600B50B, // #1553.Composition(#1553,#1273,#1290,#974,#1554,#976,#891,#975,#98)
    0x0600B54E, // #1555.ExplAttrInfos(#268,OPT)
    0x0401354B, // #1553.Attributes(#1555)
    0x0600B56C, // #1557.Supertypes(#1297)
    0x0600B584, // #1557.Composition(#1277,#1297,#1278,#1557,#891,#98,#1094,#1109)
    0x040135BB, // #1556.Supertypes(#1557)
    0x0600B5C4, // #1556.Composition(#1556,#1277,#1297,#1278,#1557,#891,#98,#1094,#1109)
    0x0600B60A, // #1558.ExplAttrInfos(#268,REQ)
    0x04013637, // #1556.Attributes(#1558)
    0x0600B628, // #1560.Supertypes(#1290)
    0x0600B640, // #1560.Composition(#1273,#1290,#974,#1560,#976,#891,#975,#98)
    0x0600B67D, // #1559.Supertypes(#1560)
    0x0600B695, // #1559.Composition(#1559,#1273,#1290,#974,#1560,#976,#891,#975,#98)
    0x0600B6D8, // #1561.ExplAttrInfos(#270,OPT)
    0x0600B6F6, // #1559.Attributes(#1561)
    0x0600B70E, // #1563.Supertypes(#1297)
    0x0600B726, // #1563.Composition(#1277,#1297,#1278,#1563,#891,#98,#1094,#1109)
    0x0500E2C5, // #1562.Supertypes(#1563)
    0x0600B766, // #1562.Composition(#1562,#1277,#1297,#1278,#1563,#891,#98,#1094,#1109)
    0x0600B7AC, // #1564.ExplAttrInfos(#270,REQ)
    0x0500E33B, // #1562.Attributes(#1564)
    0x0600B7CA, // #1565.Supertypes(#1554)
    0x0600B7E2, // #1565.Composition(#1565,#1273,#1290,#974,#1554,#976,#891,#975,#98)
    0x0600B825, // #1566.ExplAttrInfos(#272,OPT)
    0x04013869, // #1565.Attributes(#1566)
    0x0600B843, // #1567.Supertypes(#1557)
    0x0600B85B, // #1567.Composition(#1567,#1277,#1297,#1278,#1557,#891,#98,#1094,#1109)
    0x0600B8A1, // #1568.ExplAttrInfos(#272,REQ)
    0x0300DA7B, // #1567.Attributes(#1568)
    0x0600B8BF, // #1569.Supertypes(#1560)
    0x0600B8D7, // #1569.Composition(#1569,#1273,#1290,#974,#1560,#976,#891,#975,#98)
    0x0600B91A, // #1570.ExplAttrInfos(#274,OPT)
    0x0600B938, // #1569.Attributes(#1570)
    0x0600B950, // #1571.Supertypes(#1563)
    0x0600B968, // #1571.Composition(#1571,#1277,#1297,#1278,#1563,#891,#98,#1094,#1109)
    0x0600B9AE, // #1572.ExplAttrInfos(#274,REQ)
    0x0300DB68, // #1571.Attributes(#1572)
    0x0600B9CC, // #1574.Supertypes(#1452)
    0x0600B9E4, // #1574.Composition(#1452,#1574,#974,#976,#891,#975,#98)
    0x0600BA1B, // #1573.Supertypes(#1574)
    0x0600BA33, // #1573.Composition(#1452,#1573,#1574,#974,#976,#891,#975,#98)
    0x0600BA70, // #1575.ExplAttrInfos(#276,OPT)
    0x0600BA8E, // #1573.Attributes(#1575)
    0x0600BAA6, // #1577.Supertypes(#1456)
    0x0600BABE, // #1577.Composition(#1456,#1577,#1278,#891,#98,#1094,#1109)
    0x0600BAF8, // #1576.Supertypes(#1577)
    0x0600BB10, // #1576.Composition(#1456,#1576,#1577,#1278,#891,#98,#1094,#1109)
    0x0600BB50, // #1578.ExplAttrInfos(#276,REQ)
    0x0600BB6E, // #1576.Attributes(#1578)
    0x0600BB86, // #1579.Supertypes(#768)
    0x0600BB9D, // #1579.Composition(#768,#1579,#733,#734)
    0x0600BBC5, // #1580.ExplAttrInfos(#1582,REQ)
    0x0600BBE4, // #1583.ExplAttrInfos(#1584,OPT)
    0x0600BC03, // #1579.Attributes(#1580,#1583)
    0x0600BC21, // #1585.Supertypes(#1232)
    0x0600BC39, // #1585.Composition(#1233,#1232,#1585,#733,#734)
    0x0600BC68, // #1586.ExplAttrInfos(#165,OPT)
    0x0600BC86, // #1587.DerivAttrInfos(#165)
    0x0600BCA1, // #1585.Attributes(#1586,#1587)
    0x0600BCBF, // #1.Entities(#1263,#1269,#116,#1271,#1275,#125,#1281,#1284,#1287,#1288,#1292,#1295,#1299,#1302,#1305,#1308,#1310,#1312,#1316,#1319,#1330,#1331,#1320,#1339,#1341,#1342,#1350,#1352,#144,#1036,#1117,#1356,#1363,#1365,#1367,#1370,#1381,#1396,#1398,#1400,#731,#743,#1403,#1406,#1416,#1423,#1439,#1451,#1454,#1455,#1458,#1460,#1462,#1465,#1469,#1471,#1473,#750,#1474,#1477,#1479,#1480,#1487,#1491,#1498,#857,#1424,#1500,#1506,#1508,#1511,#1524,#1527,#1530,#1532,#1534,#1536,#1452,#1456,#1540,#1543,#1545,#1547,#1553,#1556,#1559,#1562,#1565,#1567,#1569,#1571,#1573,#1576,#940,#768,#1579,#767,#1233,#1232,#1585)
    0x0600BF1A, // #1588.Supertypes(#1233)
    0x0600BF32, // #1588.Composition(#1233,#1588,#733,#734)
    0x0600BF5B, // #1589.ExplAttrInfos(#739,OPT)
    0x0600BF79, // #1590.DerivAttrInfos(#1591)
    0x0600BF95, // #1588.Attributes(#1589,#1590)
    0x0600BFB3, // #1592.Supertypes(#1588)
    0x0600BFCB, // #1592.Composition(#1233,#1588,#1592,#733,#734)
    0x0600BFFA, // #1593.ExplAttrInfos(#165,OPT)
    0x0600C018, // #1594.ExplAttrInfos(#165,OPT)
    0x0600C036, // #1595.DerivAttrInfos(#165)
    0x0600C051, // #1596.DerivAttrInfos(#165)
    0x0600C06C, // #1592.Attributes(#1593,#1594,#1595,#1596)
    0x0600C096, // #1597.Supertypes(#1365)
    0x0600C0AE, // #1597.Composition(#1365,#1597,#1143)
    0x0600C0D3, // #1598.ExplAttrInfos(#90,REQ)
    0x0401411F, // #1597.Attributes(#1598)
    0x0600C0F0, // #1599.Supertypes(#1303)
    0x0600C108, // #1599.Composition(#1599,#1273,#1290,#974,#1303,#976,#891,#975,#98)
    0x0600C14B, // #1600.ExplAttrInfos(#278,OPT)
    0x01016BDA, // #1599.Attributes(#1600)
    0x0600C169, // #1601.Supertypes(#1306)
    0x0600C181, // #1601.Composition(#1601,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)
    0x0600C1C7, // #1602.ExplAttrInfos(#278,REQ)
    0x0600C1E5, // #1601.Attributes(#1602)
    0x0600C1FD, // #1603.Supertypes(#1452)
    0x0600C215, // #1603.Composition(#1452,#1603,#974,#976,#891,#975,#98)
    0x0600C24C, // #1604.ExplAttrInfos(#280,OPT)
    0x0600C26A, // #1603.Attributes(#1604)
    0x0600C282, // #1605.Supertypes(#1456)
    0x0600C29A, // #1605.Composition(#1456,#1605,#1278,#891,#98,#1094,#1109)
    0x0600C2D4, // #1606.ExplAttrInfos(#280,REQ)
    0x0600C2F2, // #1605.Attributes(#1606)
    0x0600C30A, // #1608.Supertypes(#858)
    0x0600C321, // #1608.Composition(#1608,#858,#733,#734)
    0x0600C349, // #1609.ExplAttrInfos(#747,REQ)
    0x01016E4B, // #1608.Attributes(#1609)
    0x0600C367, // #1607.Supertypes(#1608)
    0x0600C37F, // #1607.Composition(#1607,#1608,#858,#733,#734)
    0x0600C3AD, // #1610.ExplAttrInfos(#90,REQ)
    0x0600C3CA, // #1607.Attributes(#1610)
    0x0600C3E2, // #1612.Supertypes(#1382)
    0x0600C3FA, // #1612.Composition(#1612,#1382,#1143)
    0x0600C41F, // #1613.ExplAttrInfos(#90,REQ)
    0x01016F73, // #1612.Attributes(#1613)
    0x04014442, // #1611.Supertypes(#1612)
    0x0600C43C, // #1611.Composition(#1611,#1612,#1382,#1143)
    0x0600C467, // #1614.ExplAttrInfos(#90,REQ)
    0x040144A5, // #1611.Attributes(#1614)
    0x0600C484, // #1615.Supertypes(#974)
    0x0600C49B, // #1615.Composition(#1615,#974,#976,#891,#975,#98)
    0x0600C4CC, // #1616.Supertypes(#1278)
    0x0600C4E4, // #1616.Composition(#1616,#1278,#891,#98,#1094,#1109)
    0x0600C518, // #1618.Supertypes(#858)
    0x0600C52F, // #1618.Composition(#858,#733,#734,#1618)
    0x0600C557, // #1619.ExplAttrInfos(#747,OPT)
    0x0200E8EA, // #1618.Attributes(#1619)
    0x0300E574, // #1617.Supertypes(#1618)
    0x0600C575, // #1617.Composition(#1617,#858,#733,#734,#1618)
    0x0600C5A3, // #1620.ExplAttrInfos(#56,REQ)
    0x0600C5C0, // #1617.Attributes(#1620)
    0x0600C5D8, // #1621.Supertypes(#1303)
    0x0600C5F0, // #1621.Composition(#1621,#1273,#1290,#974,#1303,#976,#891,#975,#98)
    0x0600C633, // #1622.ExplAttrInfos(#282,OPT)
    0x0600C651, // #1621.Attributes(#1622)
    0x0600C669, // #1623.Supertypes(#1306)
    0x0600C681, // #1623.Composition(#1623,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)
    0x0600C6C7, // #1624.ExplAttrInfos(#282,REQ)
    0x040146BB, // #1623.Attributes(#1624)
    0x0600C6E5, // #1625.Supertypes(#807)
    0x0600C6FC, // #1625.Composition(#1625,#807)
    0x0600C71A, // #1626.ExplAttrInfos(#1628,REQ)
    0x04014743, // #1625.Attributes(#1626)
    0x0600C739, // #1629.Supertypes(#1452)
    0x0600C751, // #1629.Composition(#1452,#1629,#974,#976,#891,#975,#98)
    0x0600C788, // #1630.ExplAttrInfos(#284,OPT)
    0x00025F3C, // #1629.Attributes(#1630)
    0x0600C7A6, // #1631.Supertypes(#1629)
    0x0600C7BE, // #1631.Composition(#1452,#1629,#1631,#974,#976,#891,#975,#98)
    0x0600C7FB, // #1632.Supertypes(#1456)
    0x0600C813, // #1632.Composition(#1456,#1632,#1278,#891,#98,#1094,#1109)
    0x0600C84D, // #1633.ExplAttrInfos(#284,REQ)
    0x01017335, // #1632.Attributes(#1633)
    0x0600C86B, // #1634.Supertypes(#1289)
    0x0600C883, // #1634.Composition(#1634,#1273,#1290,#974,#1289,#976,#891,#975,#98)
    0x0600C8C6, // #1635.ExplAttrInfos(#286,OPT)
    0x010173B7, // #1634.Attributes(#1635)
    0x0600C8E4, // #1636.Supertypes(#1300)
    0x0600C8FC, // #1636.Composition(#1636,#1277,#1297,#1278,#1300,#891,#98,#1094,#1109)
    0x0600C942, // #1637.ExplAttrInfos(#286,REQ)
    0x01017439, // #1636.Attributes(#1637)
    0x0600C960, // #1639.Supertypes(#1146)
    0x0600C978, // #1639.Composition(#1639,#1146)
    0x0600C997, // #1640.ExplAttrInfos(#48,REQ)
    0x0600C9B4, // #1641.ExplAttrInfos(#122,OPT)
    0x0600C9D2, // #1639.Attributes(#1640,#1641)
    0x04014A05, // #1638.Supertypes(#1639)
    0x0600C9F0, // #1638.Composition(#1638,#1639,#1146)
    0x0600CA15, // #1642.ExplAttrInfos(#48,REQ)
    0x0600CA32, // #1643.ExplAttrInfos(#1644,REQ)
    0x0600CA51, // #1638.Attributes(#1642,#1643)
    0x0600CA6F, // #1647.Supertypes(#97)
    0x0600CA85, // #1647.Composition(#97,#1647,#98)
    0x0600CAA6, // #1646.Supertypes(#1647)
    0x0600CABE, // #1646.Composition(#97,#1646,#1647,#98)
    0x0600CAE5, // #1645.Supertypes(#1646)
    0x0600CAFD, // #1645.Composition(#1645,#97,#1646,#1647,#98)
    0x0300EAB5, // #1648.ExplAttrInfos(#14,OPT)
    0x0600CB2A, // #1649.ExplAttrInfos(#288,OPT)
    0x0600CB48, // #1650.ExplAttrInfos(#1651,OPT)
    0x0600CB67, // #1645.Attributes(#1648,#1649,#1650)
    0x0600CB8B, // #1652.Supertypes(#861)
    0x0600CBA2, // #1652.Composition(#1652,#733,#734,#861)
    0x0600CBCA, // #1653.ExplAttrInfos(#13,REQ)
    0x0600CBE7, // #1654.ExplAttrInfos(#858,REQ)
    0x0600CC05, // #1655.DerivAttrInfos(#29)
    0x0600CC1F, // #1652.Attributes(#1653,#1654,#1655)
    0x0600CC43, // #1656.Supertypes(#1143)
    0x0600CC5B, // #1656.Composition(#1656,#1143)
    0x0600CC7A, // #1657.ExplAttrInfos(#1658,REQ)
    0x0600CC99, // #1659.ExplAttrInfos(#14,OPT)
    0x0600CCB6, // #1656.Attributes(#1657,#1659)
    0x0600CCD4, // #1661.Supertypes(#1290)
    0x0600CCEC, // #1661.Composition(#1273,#1290,#974,#1661,#976,#891,#975,#98)
    0x0600CD29, // #1660.Supertypes(#1661)
    0x0600CD41, // #1660.Composition(#1660,#1273,#1290,#974,#1661,#976,#891,#975,#98)
    0x0600CD84, // #1662.ExplAttrInfos(#290,OPT)
    0x0600CDA2, // #1660.Attributes(#1662)
    0x0600CDBA, // #1664.Supertypes(#1297)
    0x0600CDD2, // #1664.Composition(#1277,#1297,#1278,#1664,#891,#98,#1094,#1109)
    0x0600CE12, // #1663.Supertypes(#1664)
    0x0600CE2A, // #1663.Composition(#1663,#1277,#1297,#1278,#1664,#891,#98,#1094,#1109)
    0x0600CE70, // #1665.ExplAttrInfos(#290,REQ)
    0x0600CE8E, // #1663.Attributes(#1665)
    0x0600CEA6, // #1666.Supertypes(#1303)
    0x0600CEBE, // #1666.Composition(#1666,#1273,#1290,#974,#1303,#976,#891,#975,#98)
    0x0600CF01, // #1667.ExplAttrInfos(#292,OPT)
    0x0600CF1F, // #1666.Attributes(#1667)
    0x0600CF37, // #1668.Supertypes(#1306)
    0x0600CF4F, // #1668.Composition(#1668,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)
    0x0600CF95, // #1669.ExplAttrInfos(#292,REQ)
    0x000265F0, // #1668.Attributes(#1669)
    0x0600CFB3, // #1671.Composition(#1671)
    0x0600CFCC, // #1670.Supertypes(#1671)
    0x0600CFE4, // #1670.Composition(#1670,#1671)
    0x0600D003, // #1672.ExplAttrInfos(#890,REQ)
    0x0600D021, // #1673.ExplAttrInfos(#890,OPT)
    0x0600D03F, // #1670.Attributes(#1672,#1673)
    0x0600D05D, // #1675.Supertypes(#1671)
    0x0600D075, // #1675.Composition(#1671,#1675)
    0x0600D094, // #1676.ExplAttrInfos(#1089,REQ)
    0x0600D0B3, // #1677.ExplAttrInfos(#1089,OPT)
    0x0600D0D2, // #1675.Attributes(#1676,#1677)
    0x0600D0F0, // #1674.Supertypes(#1675)
    0x0600D108, // #1674.Composition(#1671,#1674,#1675)
    0x0600D12D, // #1678.ExplAttrInfos(#56,OPT)
    0x0600D14A, // #1679.ExplAttrInfos(#56,OPT)
    0x0600D167, // #1680.ExplAttrInfos(#56,OPT)
    0x0600D184, // #1674.Attributes(#1678,#1679,#1680)
    0x0600D1A8, // #1681.Supertypes(#1671)
    0x0600D1C0, // #1681.Composition(#1671,#1681)
    0x0600D1DF, // #1682.ExplAttrInfos(#1212,REQ)
    0x0600D1FE, // #1683.ExplAttrInfos(#1212,OPT)
    0x0600D21D, // #1681.Attributes(#1682,#1683)
    0x0600D23B, // #1684.Supertypes(#1671)
    0x0600D253, // #1684.Composition(#1671,#1684)
    0x0600D272, // #1685.ExplAttrInfos(#1185,REQ)
    0x0600D291, // #1686.ExplAttrInfos(#1185,OPT)
    0x0600D2B0, // #1684.Attributes(#1685,#1686)
    0x0600D2CE, // #1688.Supertypes(#1157)
    0x0600D2E6, // #1688.Composition(#1688,#976,#891,#1157,#98)
    0x0600D313, // #1691.Composition(#1691)
    0x0600D32C, // #1692.ExplAttrInfos(#14,OPT)
    0x0600D349, // #1693.ExplAttrInfos(#328,OPT)
    0x01018015, // #1694.ExplAttrInfos(#14,OPT)
    0x0600D367, // #1691.Attributes(#1692,#1693,#1694)
    0x0600D38B, // #1690.Supertypes(#1691)
    0x0600D3A3, // #1690.Composition(#1690,#1691)
    0x0401531A, // #1695.ExplAttrInfos(#31,OPT)
    0x04015337, // #1696.ExplAttrInfos(#92,OPT)
    0x04015354, // #1697.ExplAttrInfos(#25,OPT)
    0x04015371, // #1698.ExplAttrInfos(#25,OPT)
    0x0600D3C2, // #1699.ExplAttrInfos(#14,OPT)
    0x0600D3DF, // #1700.ExplAttrInfos(#31,OPT)
    0x0600D3FC, // #1701.ExplAttrInfos(#13,OPT)
    0x0600D419, // #1702.ExplAttrInfos(#25,OPT)
    0x0600D436, // #1703.ExplAttrInfos(#31,OPT)
    0x0600D453, // #1704.ExplAttrInfos(#92,OPT)
    0x0600D470, // #1705.ExplAttrInfos(#25,OPT)
    0x0600D48D, // #1706.ExplAttrInfos(#25,OPT)
    0x0600D4AA, // #1707.ExplAttrInfos(#31,OPT)
    0x0600D4C7, // #1708.ExplAttrInfos(#92,OPT)
    0x0600D4E4, // #1709.ExplAttrInfos(#92,OPT)
    0x0600D501, // #1690.Attributes(#1695,#1696,#1697,#1698,#1699,#1700,#1701,#1702,#1703,#1704,#1705,#1706,#1707,#1708,#1709)
    0x0600D56D, // #1689.ExplAttrInfos(#1690,OPT)
    0x0600D58C, // #1710.ExplAttrInfos(#1711,OPT)
    0x0600D5AB, // #1712.ExplAttrInfos(#1140,OPT)
    0x0600D5CA, // #1688.Attributes(#1689,#1710,#1712)
    0x0600D5EE, // #1687.Supertypes(#1688)
    0x0600D606, // #1687.Composition(#1687,#1688,#976,#891,#1157,#98)
    0x0600D639, // #1713.ExplAttrInfos(#298,OPT)
    0x0600D657, // #1687.Attributes(#1713)
    0x0600D66F, // #1715.Supertypes(#1160)
    0x0600D687, // #1715.Composition(#1715,#891,#98,#1094,#1160)
    0x0600D6B5, // #1716.ExplAttrInfos(#1717,OPT)
    0x0600D6D4, // #1718.ExplAttrInfos(#1140,OPT)
    0x0600D6F3, // #1715.Attributes(#1716,#1718)
    0x0600D711, // #1714.Supertypes(#1715)
    0x0600D729, // #1714.Composition(#1714,#1715,#891,#98,#1094,#1160)
    0x0600D75D, // #1719.ExplAttrInfos(#298,REQ)
    0x0600D77B, // #1714.Attributes(#1719)
    0x0600D793, // #1720.Supertypes(#1688)
    0x0600D7AB, // #1720.Composition(#1720,#1688,#976,#891,#1157,#98)
    0x0600D7DE, // #1721.ExplAttrInfos(#300,OPT)
    0x0300F8C9, // #1720.Attributes(#1721)
    0x0600D7FC, // #1722.Supertypes(#1715)
    0x0600D814, // #1722.Composition(#1722,#1715,#891,#98,#1094,#1160)
    0x0600D848, // #1723.ExplAttrInfos(#300,REQ)
    0x0300F951, // #1722.Attributes(#1723)
    0x0600D866, // #1724.Supertypes(#1688)
    0x0600D87E, // #1724.Composition(#1724,#1688,#976,#891,#1157,#98)
    0x0600D8B1, // #1725.ExplAttrInfos(#302,OPT)
    0x0300F9D3, // #1724.Attributes(#1725)
    0x0600D8CF, // #1726.Supertypes(#1715)
    0x0600D8E7, // #1726.Composition(#1726,#1715,#891,#98,#1094,#1160)
    0x0600D91B, // #1727.ExplAttrInfos(#302,REQ)
    0x0300FA55, // #1726.Attributes(#1727)
    0x0600D939, // #1728.Supertypes(#891)
    0x0600D950, // #1728.Composition(#1728,#891,#98)
    0x0600D972, // #1729.ExplAttrInfos(#14,OPT)
    0x0600D98F, // #1730.ExplAttrInfos(#14,OPT)
    0x0600D9AC, // #1731.ExplAttrInfos(#14,OPT)
    0x0600D9C9, // #1732.ExplAttrInfos(#1733,OPT)
    0x0600D9E8, // #1735.Composition(#1735)
    0x0600DA01, // #1736.ExplAttrInfos(#1737,REQ)
    0x0600DA20, // #1735.Attributes(#1736)
    0x0600DA38, // #1734.ExplAttrInfos(#1735,OPT)
    0x0600DA57, // #1728.Attributes(#1729,#1730,#1731,#1732,#1734)
    0x0600DA87, // #1738.Supertypes(#1272)
    0x0600DA9F, // #1738.Composition(#1738,#1272,#1273,#974,#976,#891,#975,#98)
    0x0600DADC, // #1739.ExplAttrInfos(#304,OPT)
    0x0300FCD5, // #1738.Attributes(#1739)
    0x0600DAFA, // #1740.Supertypes(#1276)
    0x0600DB12, // #1740.Composition(#1740,#1276,#1277,#1278,#891,#98,#1094,#1109)
    0x0600DB52, // #1741.ExplAttrInfos(#304,REQ)
    0x04015CAC, // #1740.Attributes(#1741)
    0x0600DB70, // #1742.Supertypes(#1137)
    0x0600DB88, // #1742.Composition(#1137,#1742,#702)
    0x0600DBAC, // #1743.ExplAttrInfos(#165,REQ)
    0x04015D40, // #1742.Attributes(#1743)
    0x0600DBCA, // #1744.Supertypes(#1560)
    0x0600DBE2, // #1744.Composition(#1744,#1273,#1290,#974,#1560,#976,#891,#975,#98)
    0x0600DC25, // #1745.ExplAttrInfos(#306,OPT)
    0x04015DD1, // #1744.Attributes(#1745)
    0x0600DC43, // #1746.Supertypes(#1563)
    0x0600DC5B, // #1746.Composition(#1746,#1277,#1297,#1278,#1563,#891,#98,#1094,#1109)
    0x0600DCA1, // #1747.ExplAttrInfos(#306,REQ)
    0x04015E65, // #1746.Attributes(#1747)
    0x0600DCBF, // #1748.Supertypes(#1303)
    0x0600DCD7, // #1748.Composition(#1748,#1273,#1290,#974,#1303,#976,#891,#975,#98)
    0x0600DD1A, // #1749.ExplAttrInfos(#308,OPT)
    0x0600DD38, // #1748.Attributes(#1749)
    0x0600DD50, // #1750.Supertypes(#1306)
    0x0600DD68, // #1750.Composition(#1750,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)
    0x0600DDAE, // #1751.ExplAttrInfos(#308,REQ)
    0x0600DDCC, // #1750.Attributes(#1751)
    0x0600DDE4, // #1752.Supertypes(#1303)
    0x0600DDFC, // #1752.Composition(#1752,#1273,#1290,#974,#1303,#976,#891,#975,#98)
    0x0600DE3F, // #1753.ExplAttrInfos(#310,OPT)
    0x0600DE5D, // #1752.Attributes(#1753)
    0x0600DE75, // #1754.Supertypes(#1306)
    0x0600DE8D, // #1754.Composition(#1754,#1277,#1297,#1278,#1306,#891,#98,#1094,#1109)
    0x0600DED3, // #1755.ExplAttrInfos(#310,REQ)
    0x0600DEF1, // #1754.Attributes(#1755)
    0x0600DF09, // #1756.Composition(#1756)
    0x0600DF22, // #1757.ExplAttrInfos(#834,REQ)
    0x0600DF40, // #1758.ExplAttrInfos(#820,REQ)
    0x0600DF5E, // #1756.Attributes(#1757,#1758)
    0x0600DF7C, // #1759.Supertypes(#1618)
    0x0600DF94, // #1759.Composition(#1759,#858,#733,#734,#1618)
    0x0600DFC2, // #1760.ExplAttrInfos(#56,REQ)
    0x0600DFDF, // #1761.ExplAttrInfos(#165,REQ)
    0x0600DFFD, // #1759.Attributes(#1760,#1761)
    0x0600E01B, // #1762.Supertypes(#1264)
    0x0600E033, // #1762.Composition(#1264,#1762,#976,#891,#98)
    0x0600E060, // #1763.ExplAttrInfos(#312,OPT)
    0x0600E07E, // #1764.ExplAttrInfos(#1765,OPT)
    0x0600E09D, // #1766.ExplAttrInfos(#1767,OPT)
    0x0600E0BC, // #1762.Attributes(#1763,#1764,#1766)
    0x0600E0E0, // #1768.Supertypes(#1264)
    0x0600E0F8, // #1768.Composition(#1264,#1768,#976,#891,#98)
    0x0600E125, // #1769.ExplAttrInfos(#314,OPT)
    0x0600E143, // #1770.ExplAttrInfos(#14,OPT)
    0x0600E160, // #1771.ExplAttrInfos(#25,OPT)
    0x0600E17D, // #1772.ExplAttrInfos(#25,OPT)
    0x0600E19A, // #1768.Attributes(#1769,#1770,#1771,#1772)
    0x0600E1C4, // #1773.Supertypes(#1452)
    0x0600E1DC, // #1773.Composition(#1452,#1773,#974,#976,#891,#975,#98)
    0x0600E213, // #1774.ExplAttrInfos(#316,OPT)
    0x030103AB, // #1773.Attributes(#1774)
    0x0600E231, // #1775.Supertypes(#1456)
    0x0600E249, // #1775.Composition(#1456,#1775,#1278,#891,#98,#1094,#1109)
    0x0600E283, // #1776.ExplAttrInfos(#316,REQ)
    0x02010B3F, // #1775.Attributes(#1776)
    0x0600E2A1, // #1777.Supertypes(#1452)
    0x0600E2B9, // #1777.Composition(#1452,#1777,#974,#976,#891,#975,#98)
    0x0600E2F0, // #1778.ExplAttrInfos(#318,OPT)
    0x02010BD3, // #1777.Attributes(#1778)
    0x0600E30E, // #1779.Supertypes(#1456)
    0x0600E326, // #1779.Composition(#1456,#1779,#1278,#891,#98,#1094,#1109)
    0x0600E360, // #1780.ExplAttrInfos(#318,REQ)
    0x02010C67, // #1779.Attributes(#1780)
    0x0600E37E, // #1781.Supertypes(#1688)
    0x0600E396, // #1781.Composition(#1688,#1781,#976,#891,#1157,#98)
    0x0600E3C9, // #1782.ExplAttrInfos(#320,OPT)
    0x02010CFB, // #1781.Attributes(#1782)
    0x0600E3E7, // #1783.Supertypes(#1715)
    0x0600E3FF, // #1783.Composition(#1715,#1783,#891,#98,#1094,#1160)
    0x0600E433, // #1784.ExplAttrInfos(#320,REQ)
    0x0600E451, // #1783.Attributes(#1784)
    0x0600E469, // #1785.Supertypes(#762)
    0x0600E480, // #1785.Composition(#1785,#733,#734,#762)
    0x0600E4A8, // #1786.ExplAttrInfos(#836,REQ)
    0x0401659C, // #1785.Attributes(#1786)
    0x0600E4C6, // #1787.Supertypes(#1357)
    0x0600E4DE, // #1787.Composition(#1787,#1357)
    0x0600E4FD, // #1788.ExplAttrInfos(#718,REQ)
    0x0600E51B, // #1789.ExplAttrInfos(#718,REQ)
    0x0600E539, // #1790.ExplAttrInfos(#92,REQ)
    0x0600E556, // #1791.ExplAttrInfos(#25,OPT)
    0x0600E573, // #1792.ExplAttrInfos(#1000,OPT)
    0x0600E592, // #1787.Attributes(#1788,#1789,#1790,#1791,#1792)
    0x0600E5C2, // #1793.Supertypes(#1452)
    0x0600E5DA, // #1793.Composition(#1452,#1793,#974,#976,#891,#975,#98)
    0x0600E611, // #1794.ExplAttrInfos(#322,OPT)
    0x0201108F, // #1793.Attributes(#1794)
    0x0600E62F, // #1795.Supertypes(#1456)
    0x0600E647, // #1795.Composition(#1456,#1795,#1278,#891,#98,#1094,#1109)
    0x0600E681, // #1796.ExplAttrInfos(#322,REQ)
    0x00027FB1, // #1795.Attributes(#1796)
    0x0600E69F, // #1797.Supertypes(#1424)
    0x0600E6B7, // #1797.Composition(#1424,#1797,#733,#734,#758)
    0x0600E6E5, // #1800.Supertypes(#758)
    0x0600E6FC, // #1800.Composition(#1800,#733,#734,#758)
    0x0600E724, // #1801.ExplAttrInfos(#743,REQ)
    0x05011522, // #1800.Attributes(#1801)
    0x0600E742, // #1799.Supertypes(#1800)
    0x0600E75A, // #1799.Composition(#1800,#733,#1799,#734,#758)
    0x0600E788, // #1798.ExplAttrInfos(#1799,REQ)
    0x0600E7A7, // #1802.ExplAttrInfos(#858,REQ)
    0x0600E7C5, // #1803.ExplAttrInfos(#1804,REQ)
    0x0600E7E4, // #1797.Attributes(#1798,#1802,#1803)
    0x0600E808, // #1805.Supertypes(#1424)
    0x0600E820, // #1805.Composition(#1424,#1805,#733,#734,#758)
    0x0600E84E, // #1806.ExplAttrInfos(#758,REQ)
    0x0600E86C, // #1807.ExplAttrInfos(#1808,REQ)
    0x0600E88B, // #1809.ExplAttrInfos(#13,REQ)
    0x0600E8A8, // #1805.Attributes(#1806,#1807,#1809)
    0x0600E8CC, // #1810.Supertypes(#861)
    0x0600E8E3, // #1810.Composition(#1810,#733,#734,#861)
    0x0600E90B, // #1811.ExplAttrInfos(#732,REQ)
    0x0600E929, // #1812.ExplAttrInfos(#854,REQ)
    0x0600E947, // #1813.ExplAttrInfos(#854,REQ)
    0x0600E965, // #1814.ExplAttrInfos(#858,REQ)
    0x0600E983, // #1815.DerivAttrInfos(#29)
    0x0600E99D, // #1810.Attributes(#1811,#1812,#1813,#1814,#1815)
    0x0600E9CD, // #1816.Supertypes(#1800)
    0x0600E9E5, // #1816.Composition(#1816,#1800,#733,#734,#758)
    0x0600EA13, // #1817.ExplAttrInfos(#90,REQ)
    0x01019DB9, // #1816.Attributes(#1817)
    0x0600EA30, // #1818.Supertypes(#1293)
    0x0600EA48, // #1818.Composition(#1818,#1273,#1290,#974,#1293,#976,#891,#975,#98)
    0x0600EA8B, // #1819.ExplAttrInfos(#326,OPT)
    0x01019E4D, // #1818.Attributes(#1819)
    0x0600EAA9, // #1820.Supertypes(#1296)
    0x0600EAC1, // #1820.Composition(#1820,#1277,#1297,#1278,#1296,#891,#98,#1094,#1109)
    0x0600EB07, // #1821.ExplAttrInfos(#326,REQ)
    0x0600EB25, // #1820.Attributes(#1821)
    0x0600EB3D, // #1822.Supertypes(#1143)
    0x0600EB55, // #1822.Composition(#1822,#1143)
    0x0600EB74, // #1823.ExplAttrInfos(#1143,REQ)
    0x0600EB93, // #1824.ExplAttrInfos(#1232,REQ)
    0x0600EBB2, // #1825.ExplAttrInfos(#14,OPT)
    0x0600EBCF, // #1822.Attributes(#1823,#1824,#1825)
    0x0600EBF3, // #1.Entities(#1588,#1592,#1597,#1599,#1601,#1603,#1605,#1607,#1611,#1612,#1615,#1616,#782,#792,#1170,#1617,#1621,#1623,#814,#1625,#806,#1629,#1631,#1632,#1634,#1636,#1638,#1645,#856,#855,#1652,#1656,#1660,#1663,#1666,#1668,#1608,#1171,#1670,#1671,#1674,#1675,#1681,#1684,#1127,#1687,#1714,#1720,#1722,#1724,#1726,#1688,#1715,#1728,#1135,#1264,#1738,#1740,#1137,#1742,#1744,#1746,#1748,#1750,#1752,#1754,#1756,#820,#1759,#1762,#1768,#1373,#1773,#1775,#1777,#1779,#1781,#1783,#753,#1785,#1787,#1793,#1795,#858,#1797,#1805,#1810,#923,#840,#837,#843,#1816,#1818,#1820,#1574,#1577,#1822,#698,#700,#704)
    0x0600EE48, // #1827.Supertypes(#762)
    0x0600EE5F, // #1827.Composition(#733,#734,#762,#1827)
    0x0600EE87, // #1828.ExplAttrInfos(#1143,REQ)
    0x0600EEA6, // #1829.ExplAttrInfos(#743,OPT)
    0x0600EEC4, // #1827.Attributes(#1828,#1829)
    0x0600EEE2, // #1826.Supertypes(#1827)
    0x0600EEFA, // #1826.Composition(#1826,#733,#734,#762,#1827)
    0x0600EF28, // #1830.ExplAttrInfos(#858,REQ)
    0x0600EF46, // #1831.ExplAttrInfos(#854,OPT)
    0x0600EF64, // #1832.ExplAttrInfos(#854,OPT)
    0x0600EF82, // #1826.Attributes(#1830,#1831,#1832)
    0x0600EFA6, // #1834.Supertypes(#1826)
    0x0600EFBE, // #1834.Composition(#1826,#1834,#733,#734,#762,#1827)
    0x0600EFF2, // #1835.ExplAttrInfos(#739,REQ)
    0x05011C4D, // #1834.Attributes(#1835)
    0x0600F010, // #1833.Supertypes(#1834)
    0x0600F028, // #1833.Composition(#1826,#1833,#1834,#733,#734,#762,#1827)
    0x0600F062, // #1836.Supertypes(#1827)
    0x0600F07A, // #1836.Composition(#1836,#733,#734,#762,#1827)
    0x0600F0A8, // #1837.ExplAttrInfos(#858,REQ)
    0x0600F0C6, // #1839.Supertypes(#736)
    0x0600F0DD, // #1839.Composition(#733,#736,#1839,#734)
    0x0600F105, // #1840.ExplAttrInfos(#854,REQ)
    0x0600F123, // #1841.ExplAttrInfos(#56,OPT)
    0x0600F140, // #1842.ExplAttrInfos(#56,OPT)
    0x0600F15D, // #1843.ExplAttrInfos(#56,OPT)
    0x0600F17A, // #1844.ExplAttrInfos(#858,REQ)
    0x0600F198, // #1845.DerivAttrInfos(#29)
    0x0600F1B2, // #1839.Attributes(#1840,#1841,#1842,#1843,#1844,#1845)
    0x0600F1E8, // #1838.ExplAttrInfos(#1839,OPT)
    0x0600F207, // #1846.ExplAttrInfos(#1839,OPT)
    0x0600F226, // #1836.Attributes(#1837,#1838,#1846)
    0x0600F24A, // #1847.Supertypes(#1525)
    0x0600F262, // #1847.Composition(#1847,#974,#1525,#976,#891,#975,#98)
    0x0600F299, // #1848.ExplAttrInfos(#334,OPT)
    0x0600F2B7, // #1847.Attributes(#1848)
    0x0600F2CF, // #1849.Supertypes(#1528)
    0x0600F2E7, // #1849.Composition(#1849,#1528,#1278,#891,#98,#1094,#1109)
    0x0600F321, // #1850.ExplAttrInfos(#334,REQ)
    0x00028A0B, // #1849.Attributes(#1850)
    0x0600F33F, // #1851.Supertypes(#1293)
    0x0600F357, // #1851.Composition(#1851,#1273,#1290,#974,#1293,#976,#891,#975,#98)
    0x0600F39A, // #1852.ExplAttrInfos(#336,OPT)
    0x0600F3B8, // #1851.Attributes(#1852)
    0x0600F3D0, // #1853.Supertypes(#1296)
    0x0600F3E8, // #1853.Composition(#1853,#1277,#1297,#1278,#1296,#891,#98,#1094,#1109)
    0x0600F42E, // #1854.ExplAttrInfos(#336,REQ)
    0x0101A46D, // #1853.Attributes(#1854)
    0x0600F44C, // #1855.Supertypes(#1290)
    0x0600F464, // #1855.Composition(#1855,#1273,#1290,#974,#976,#891,#975,#98)
    0x0600F4A1, // #1856.ExplAttrInfos(#338,OPT)
    0x0600F4BF, // #1855.Attributes(#1856)
    0x0600F4D7, // #1857.Supertypes(#1297)
    0x0600F4EF, // #1857.Composition(#1857,#1277,#1297,#1278,#891,#98,#1094,#1109)
    0x0600F52F, // #1858.ExplAttrInfos(#338,REQ)
    0x0101A4BB, // #1857.Attributes(#1858)
    0x0600F54D, // #1860.Supertypes(#1537)
    0x0600F565, // #1860.Composition(#1860,#1196,#976,#891,#98,#1537)
    0x0600F598, // #1861.ExplAttrInfos(#14,OPT)
    0x0600F5B5, // #1862.ExplAttrInfos(#342,OPT)
    0x0600F5D3, // #1860.Attributes(#1861,#1862)
    0x04017677, // #1859.Supertypes(#1860)
    0x0600F5F1, // #1859.Composition(#1859,#1860,#1196,#976,#891,#98,#1537)
    0x0600F62A, // #1864.Supertypes(#975)
    0x0600F641, // #1864.Composition(#976,#891,#1864,#975,#98)
    0x0600F66D, // #1863.Supertypes(#1864)
    0x0600F685, // #1863.Composition(#1863,#976,#891,#1864,#975,#98)
    0x0600F6B7, // #1865.ExplAttrInfos(#412,OPT)
    0x0600F6D5, // #1866.ExplAttrInfos(#340,OPT)
    0x0600F6F3, // #1867.ExplAttrInfos(#342,OPT)
    0x0600F711, // #1863.Attributes(#1865,#1866,#1867)
    0x0600F735, // #1868.Supertypes(#1357)
    0x0600F74D, // #1868.Composition(#1868,#1357)
    0x0600F76C, // #1869.ExplAttrInfos(#894,REQ)
    0x0600F78A, // #1870.ExplAttrInfos(#1871,REQ)
    0x0600F7A9, // #1872.ExplAttrInfos(#14,OPT)
    0x0600F7C6, // #1868.Attributes(#1869,#1870,#1872)
    0x0600F7EA, // #1873.Supertypes(#1452)
    0x0600F802, // #1873.Composition(#1452,#1873,#974,#976,#891,#975,#98)
    0x0600F839, // #1874.ExplAttrInfos(#90,OPT)
    0x040178D8, // #1875.ExplAttrInfos(#90,OPT)
    0x0600F856, // #1876.ExplAttrInfos(#356,OPT)
    0x0600F874, // #1877.ExplAttrInfos(#358,OPT)
    0x0600F892, // #1878.ExplAttrInfos(#14,OPT)
    0x0600F8AF, // #1873.Attributes(#1874,#1875,#1876,#1877,#1878)
    0x0600F8DF, // #1880.Supertypes(#96)
    0x0600F8F5, // #1880.Composition(#1880,#97,#96,#98)
    0x0600F91A, // #1879.Supertypes(#1880)
    0x0600F932, // #1879.Composition(#1879,#1880,#97,#96,#98)
    0x0600F95D, // #1881.ExplAttrInfos(#90,OPT)
    0x0600F97A, // #1882.ExplAttrInfos(#82,OPT)
    0x0600F997, // #1883.ExplAttrInfos(#90,OPT)
    0x0600F9B4, // #1884.ExplAttrInfos(#82,OPT)
    0x0600F9D1, // #1885.ExplAttrInfos(#82,OPT)
    0x0600F9EE, // #1886.ExplAttrInfos(#56,OPT)
    0x0600FA0B, // #1887.ExplAttrInfos(#56,OPT)
    0x0600FA28, // #1888.ExplAttrInfos(#56,OPT)
    0x0600FA45, // #1889.ExplAttrInfos(#90,OPT)
    0x0600FA62, // #1890.ExplAttrInfos(#90,OPT)
    0x0600FA7F, // #1891.ExplAttrInfos(#1147,OPT)
    0x0600FA9E, // #1892.ExplAttrInfos(#56,OPT)
    0x0600FABB, // #1893.ExplAttrInfos(#56,OPT)
    0x0600FAD8, // #1879.Attributes(#1881,#1882,#1883,#1884,#1885,#1886,#1887,#1888,#1889,#1890,#1891,#1892,#1893)
    0x0600FB38, // #1894.Supertypes(#1880)
    0x0600FB50, // #1894.Composition(#1894,#1880,#97,#96,#98)
    0x0600FB7B, // #1895.ExplAttrInfos(#90,OPT)
    0x0600FB98, // #1896.ExplAttrInfos(#348,REQ)
    0x0600FBB6, // #1897.ExplAttrInfos(#84,OPT)
    0x0600FBD3, // #1898.ExplAttrInfos(#350,REQ)
    0x0600FBF1, // #1899.ExplAttrInfos(#1147,OPT)
    0x0600FC10, // #1894.Attributes(#1895,#1896,#1897,#1898,#1899)
    0x0600FC40, // #1900.Supertypes(#1873)
    0x0600FC58, // #1900.Composition(#1452,#1873,#1900,#974,#976,#891,#975,#98)
    0x0600FC95, // #1901.Supertypes(#1109)
    0x0600FCAD, // #1901.Composition(#1901,#891,#98,#1094,#1109)
    0x0600FCDB, // #1902.ExplAttrInfos(#354,REQ)
    0x0600FCF9, // #1903.ExplAttrInfos(#352,REQ)
    0x0600FD17, // #1904.ExplAttrInfos(#13,REQ)
    0x0600FD34, // #1905.ExplAttrInfos(#13,REQ)
    0x0600FD51, // #1901.Attributes(#1902,#1903,#1904,#1905)
    0x0600FD7B, // #1906.Supertypes(#1456)
    0x0600FD93, // #1906.Composition(#1456,#1906,#1278,#891,#98,#1094,#1109)
    0x0600FDCD, // #1907.ExplAttrInfos(#356,REQ)
    0x0600FDEB, // #1908.ExplAttrInfos(#358,REQ)
    0x0600FE09, // #1909.ExplAttrInfos(#13,OPT)
    0x0600FE26, // #1910.ExplAttrInfos(#14,OPT)
    0x0600FE43, // #1906.Attributes(#1907,#1908,#1909,#1910)
    0x0600FE6D, // #1911.Supertypes(#809)
    0x0600FE84, // #1911.Composition(#1911,#809,#810,#807)
    0x0600FEAC, // #1912.Supertypes(#847)
    0x0600FEC3, // #1912.Composition(#1912,#847,#810,#807)
    0x0600FEEB, // #1913.Supertypes(#1554)
    0x0600FF03, // #1913.Composition(#1273,#1290,#1913,#974,#1554,#976,#891,#975,#98)
    0x0600FF46, // #1914.ExplAttrInfos(#360,OPT)
    0x0600FF64, // #1913.Attributes(#1914)
    0x0600FF7C, // #1915.Supertypes(#1557)
    0x0600FF94, // #1915.Composition(#1277,#1297,#1915,#1278,#1557,#891,#98,#1094,#1109)
    0x0600FFDA, // #1916.ExplAttrInfos(#360,REQ)
    0x0600FFF8, // #1915.Attributes(#1916)
    0x06010010, // #1917.Supertypes(#1560)
    0x06010028, // #1917.Composition(#1273,#1290,#1917,#974,#1560,#976,#891,#975,#98)
    0x0601006B, // #1918.ExplAttrInfos(#362,OPT)
    0x02012E1E, // #1917.Attributes(#1918)
    0x06010089, // #1919.Supertypes(#1563)
    0x060100A1, // #1919.Composition(#1277,#1297,#1919,#1278,#1563,#891,#98,#1094,#1109)
    0x060100E7, // #1920.ExplAttrInfos(#362,REQ)
    0x02012EA0, // #1919.Attributes(#1920)
    0x06010105, // #1922.Supertypes(#1290)
    0x0601011D, // #1922.Composition(#1273,#1290,#974,#1922,#976,#891,#975,#98)
    0x02012F29, // #1921.Supertypes(#1922)
    0x0601015A, // #1921.Composition(#1273,#1290,#1921,#974,#1922,#976,#891,#975,#98)
    0x0601019D, // #1923.ExplAttrInfos(#364,OPT)
    0x060101BB, // #1921.Attributes(#1923)
    0x060101D3, // #1925.Supertypes(#1297)
    0x060101EB, // #1925.Composition(#1277,#1297,#1278,#1925,#891,#98,#1094,#1109)
    0x0601022B, // #1924.Supertypes(#1925)
    0x06010243, // #1924.Composition(#1277,#1297,#1924,#1278,#1925,#891,#98,#1094,#1109)
    0x06010289, // #1926.ExplAttrInfos(#364,REQ)
    0x060102A7, // #1924.Attributes(#1926)
    0x060102BF, // #1929.Supertypes(#974)
    0x060102D6, // #1929.Composition(#974,#1929,#976,#891,#975,#98)
    0x04018576, // #1928.Supertypes(#1929)
    0x06010307, // #1928.Composition(#974,#1929,#1928,#976,#891,#975,#98)
    0x0601033E, // #1927.Supertypes(#1928)
    0x06010356, // #1927.Composition(#1927,#974,#1929,#1928,#976,#891,#975,#98)
    0x06010393, // #1930.ExplAttrInfos(#366,OPT)
    0x060103B1, // #1927.Attributes(#1930)
    0x060103C9, // #1931.Supertypes(#1452)
    0x060103E1, // #1931.Composition(#1452,#1931,#974,#976,#891,#975,#98)
    0x06010418, // #1932.Supertypes(#1931)
    0x06010430, // #1932.Composition(#1452,#1931,#1932,#974,#976,#891,#975,#98)
    0x0601046D, // #1933.ExplAttrInfos(#368,OPT)
    0x0601048B, // #1932.Attributes(#1933)
    0x060104A3, // #1934.Supertypes(#1177)
    0x060104BB, // #1934.Composition(#1934,#1177,#734,#883)
    0x060104E4, // #1936.Supertypes(#882)
    0x060104FB, // #1936.Composition(#882,#1936,#734,#883)
    0x06010523, // #1937.ExplAttrInfos(#882,REQ)
    0x06010541, // #1938.ExplAttrInfos(#13,REQ)
    0x0601055E, // #1939.DerivAttrInfos(#885)
    0x06010579, // #1940.DerivAttrInfos(#885)
    0x06010594, // #1936.Attributes(#1937,#1938,#1939,#1940)
    0x060105BE, // #1935.ExplAttrInfos(#1941,REQ)
    0x060105DD, // #1942.DerivAttrInfos(#6)
    0x060105F6, // #1934.Attributes(#1935,#1942)
    0x06010614, // #1943.Supertypes(#1289)
    0x0601062C, // #1943.Composition(#1273,#1290,#1943,#974,#1289,#976,#891,#975,#98)
    0x0601066F, // #1944.ExplAttrInfos(#370,OPT)
    0x0101BA8F, // #1943.Attributes(#1944)
    0x0601068D, // #1945.Supertypes(#1300)
    0x060106A5, // #1945.Composition(#1277,#1297,#1945,#1278,#1300,#891,#98,#1094,#1109)
    0x060106EB, // #1946.ExplAttrInfos(#370,REQ)
    0x0201333A, // #1945.Attributes(#1946)
    0x06010709, // #1947.Supertypes(#1293)
    0x06010721, // #1947.Composition(#1273,#1290,#1947,#974,#1293,#976,#891,#975,#98)
    0x06010764, // #1948.ExplAttrInfos(#372,OPT)
    0x020133CE, // #1947.Attributes(#1948)
    0x06010782, // #1949.Supertypes(#1296)
    0x0601079A, // #1949.Composition(#1277,#1297,#1949,#1278,#1296,#891,#98,#1094,#1109)
    0x060107E0, // #1950.ExplAttrInfos(#372,REQ)
    0x060107FE, // #1949.Attributes(#1950)
    0x06010816, // #1952.Supertypes(#1290)
    0x0601082E, // #1952.Composition(#1273,#1290,#974,#1952,#976,#891,#975,#98)
    0x0601086B, // #1951.Supertypes(#1952)
    0x06010883, // #1951.Composition(#1273,#1290,#1951,#974,#1952,#976,#891,#975,#98)
    0x060108C6, // #1953.ExplAttrInfos(#374,OPT)
    0x060108E4, // #1951.Attributes(#1953)
    0x060108FC, // #1955.Supertypes(#1297)
    0x06010914, // #1955.Composition(#1277,#1297,#1278,#1955,#891,#98,#1094,#1109)
    0x06010954, // #1954.Supertypes(#1955)
    0x0601096C, // #1954.Composition(#1277,#1297,#1954,#1278,#1955,#891,#98,#1094,#1109)
    0x060109B2, // #1956.ExplAttrInfos(#374,REQ)
    0x060109D0, // #1954.Attributes(#1956)
    0x060109E8, // #1957.Supertypes(#1922)
    0x06010A00, // #1957.Composition(#1273,#1290,#1957,#974,#1922,#976,#891,#975,#98)
    0x06010A43, // #1958.ExplAttrInfos(#376,OPT)
    0x02013582, // #1957.Attributes(#1958)
    0x06010A61, // #1959.Supertypes(#1925)
    0x06010A79, // #1959.Composition(#1277,#1297,#1959,#1278,#1925,#891,#98,#1094,#1109)
    0x06010ABF, // #1960.ExplAttrInfos(#376,REQ)
    0x03012C4C, // #1959.Attributes(#1960)
    0x06010ADD, // #1961.Supertypes(#1303)
    0x06010AF5, // #1961.Composition(#1273,#1290,#1961,#974,#1303,#976,#891,#975,#98)
    0x06010B38, // #1962.ExplAttrInfos(#378,OPT)
    0x06010B56, // #1961.Attributes(#1962)
    0x06010B6E, // #1963.Supertypes(#1306)
    0x06010B86, // #1963.Composition(#1277,#1297,#1963,#1278,#1306,#891,#98,#1094,#1109)
    0x06010BCC, // #1964.ExplAttrInfos(#378,REQ)
    0x04018D91, // #1963.Attributes(#1964)
    0x06010BEA, // #1965.Supertypes(#1303)
    0x06010C02, // #1965.Composition(#1273,#1290,#1965,#974,#1303,#976,#891,#975,#98)
    0x06010C45, // #1966.ExplAttrInfos(#380,OPT)
    0x04018E25, // #1965.Attributes(#1966)
    0x06010C63, // #1967.Supertypes(#1306)
    0x06010C7B, // #1967.Composition(#1277,#1297,#1967,#1278,#1306,#891,#98,#1094,#1109)
    0x06010CC1, // #1968.ExplAttrInfos(#380,REQ)
    0x04018EB6, // #1967.Attributes(#1968)
    0x06010CDF, // #1969.Supertypes(#1293)
    0x06010CF7, // #1969.Composition(#1273,#1290,#1969,#974,#1293,#976,#891,#975,#98)
    0x06010D3A, // #1970.ExplAttrInfos(#382,OPT)
    0x0101BED0, // #1969.Attributes(#1970)
    0x06010D58, // #1971.Supertypes(#1296)
    0x06010D70, // #1971.Composition(#1277,#1297,#1971,#1278,#1296,#891,#98,#1094,#1109)
    0x06010DB6, // #1972.ExplAttrInfos(#382,REQ)
    0x04018FC3, // #1971.Attributes(#1972)
    0x06010DD4, // #1973.Supertypes(#974)
    0x06010DEB, // #1973.Composition(#974,#1973,#976,#891,#975,#98)
    0x06010E1C, // #1974.ExplAttrInfos(#234,OPT)
    0x06010E3A, // #1975.ExplAttrInfos(#384,OPT)
    0x06010E58, // #1973.Attributes(#1974,#1975)
    0x06010E76, // #1976.Supertypes(#1278)
    0x06010E8E, // #1976.Composition(#1976,#1278,#891,#98,#1094,#1109)
    0x06010EC2, // #1977.ExplAttrInfos(#384,REQ)
    0x06010EE0, // #1976.Attributes(#1977)
    0x06010EF8, // #1979.Supertypes(#96)
    0x06010F0E, // #1979.Composition(#97,#96,#1979,#98)
    0x06010F33, // #1978.Supertypes(#1979)
    0x06010F4B, // #1978.Composition(#1978,#97,#96,#1979,#98)
    0x06010F76, // #1980.ExplAttrInfos(#14,OPT)
    0x06010F93, // #1981.ExplAttrInfos(#1982,REQ)
    0x06010FB2, // #1978.Attributes(#1980,#1981)
    0x06010FD0, // #1983.Supertypes(#1608)
    0x06010FE8, // #1983.Composition(#1608,#858,#1983,#733,#734)
    0x06011016, // #1984.ExplAttrInfos(#90,REQ)
    0x06011033, // #1985.ExplAttrInfos(#90,REQ)
    0x06011050, // #1983.Attributes(#1984,#1985)
    0x0601106E, // #1986.Supertypes(#1382)
    0x06011086, // #1986.Composition(#1986,#1382,#1143)
    0x060110AB, // #1987.ExplAttrInfos(#90,REQ)
    0x060110C8, // #1988.ExplAttrInfos(#90,REQ)
    0x060110E5, // #1986.Attributes(#1987,#1988)
    0x06011103, // #1989.Supertypes(#1303)
    0x0601111B, // #1989.Composition(#1273,#1290,#974,#1303,#1989,#976,#891,#975,#98)
    0x0601115E, // #1990.ExplAttrInfos(#388,OPT)
    0x0101C1B0, // #1989.Attributes(#1990)
    0x0601117C, // #1991.Supertypes(#1306)
    0x06011194, // #1991.Composition(#1277,#1297,#1278,#1306,#1991,#891,#98,#1094,#1109)
    0x060111DA, // #1992.ExplAttrInfos(#388,REQ)
    0x02013A24, // #1991.Attributes(#1992)
    0x060111F8, // #1993.Supertypes(#1303)
    0x06011210, // #1993.Composition(#1273,#1290,#974,#1303,#1993,#976,#891,#975,#98)
    0x06011253, // #1994.ExplAttrInfos(#390,OPT)
    0x02013AB8, // #1993.Attributes(#1994)
    0x06011271, // #1995.Supertypes(#1306)
    0x06011289, // #1995.Composition(#1277,#1297,#1278,#1306,#1995,#891,#98,#1094,#1109)
    0x060112CF, // #1996.ExplAttrInfos(#390,REQ)
    0x0002A686, // #1995.Attributes(#1996)
    0x060112ED, // #1997.Supertypes(#1303)
    0x06011305, // #1997.Composition(#1273,#1290,#974,#1303,#1997,#976,#891,#975,#98)
    0x06011348, // #1998.ExplAttrInfos(#392,OPT)
    0x0002A70E, // #1997.Attributes(#1998)
    0x06011366, // #1999.Supertypes(#1306)
    0x0601137E, // #1999.Composition(#1277,#1297,#1278,#1306,#1999,#891,#98,#1094,#1109)
    0x060113C4, // #2000.ExplAttrInfos(#392,REQ)
    0x060113E2, // #1999.Attributes(#2000)
    0x060113FA, // #2001.Supertypes(#1090)
    0x06011412, // #2001.Composition(#2001,#976,#891,#1090,#98)
    0x0601143F, // #2002.ExplAttrInfos(#396,OPT)
    0x0601145D, // #2003.ExplAttrInfos(#394,OPT)
    0x0601147B, // #2004.ExplAttrInfos(#14,OPT)
    0x06011498, // #2006.Supertypes(#1691)
    0x060114B0, // #2006.Composition(#2006,#1691)
    0x060114CF, // #2007.ExplAttrInfos(#25,OPT)
    0x060114EC, // #2008.ExplAttrInfos(#25,OPT)
    0x06011509, // #2009.ExplAttrInfos(#25,OPT)
    0x06011526, // #2010.ExplAttrInfos(#25,OPT)
    0x06011543, // #2006.Attributes(#2007,#2008,#2009,#2010)
    0x0601156D, // #2005.ExplAttrInfos(#2006,OPT)
    0x0601158C, // #2001.Attributes(#2002,#2003,#2004,#2005)
    0x060115B6, // #2011.Supertypes(#1093)
    0x060115CE, // #2011.Composition(#2011,#891,#98,#1094,#1093)
    0x060115FC, // #2012.ExplAttrInfos(#396,REQ)
    0x0601161A, // #2013.ExplAttrInfos(#394,REQ)
    0x06011638, // #2014.ExplAttrInfos(#14,OPT)
    0x06011655, // #2011.Attributes(#2012,#2013,#2014)
    0x06011679, // #2015.Supertypes(#1146)
    0x06011691, // #2015.Composition(#2015,#1146)
    0x060116B0, // #2016.ExplAttrInfos(#48,OPT)
    0x060116CD, // #2017.ExplAttrInfos(#122,OPT)
    0x060116EB, // #2018.ExplAttrInfos(#2019,REQ)
    0x0601170A, // #2015.Attributes(#2016,#2017,#2018)
    0x0601172E, // #2020.Supertypes(#1357)
    0x06011746, // #2020.Composition(#2020,#1357)
    0x06011765, // #2021.ExplAttrInfos(#793,REQ)
    0x06011783, // #2022.ExplAttrInfos(#2023,REQ)
    0x060117A2, // #2020.Attributes(#2021,#2022)
    0x060117C0, // #2024.Supertypes(#1827)
    0x060117D8, // #2024.Composition(#2024,#733,#734,#762,#1827)
    0x06011806, // #2025.ExplAttrInfos(#739,REQ)
    0x0501475C, // #2026.ExplAttrInfos(#90,REQ)
    0x06011824, // #2024.Attributes(#2025,#2026)
    0x06011842, // #2027.Supertypes(#2024)
    0x0601185A, // #2027.Composition(#2024,#2027,#733,#734,#762,#1827)
    0x0601188E, // #2028.ExplAttrInfos(#1143,REQ)
    0x0101C90E, // #2027.Attributes(#2028)
    0x060118AD, // #2029.Supertypes(#1175)
    0x060118C5, // #2029.Composition(#1175,#2029,#734,#883)
    0x060118EE, // #2030.Supertypes(#1282)
    0x06011906, // #2030.Composition(#2030,#733,#1282,#734,#762)
    0x06011934, // #2031.Supertypes(#2030)
    0x0601194C, // #2031.Composition(#2030,#2031,#733,#1282,#734,#762)
    0x06011980, // #2032.ExplAttrInfos(#2033,REQ)
    0x0101CA36, // #2031.Attributes(#2032)
    0x0601199F, // #2034.Supertypes(#1190)
    0x060119B7, // #2034.Composition(#2034,#976,#891,#975,#98,#994,#1190)
    0x060119EE, // #2035.ExplAttrInfos(#919,REQ)
    0x06011A0C, // #2036.ExplAttrInfos(#402,REQ)
    0x06011A2A, // #2034.Attributes(#2035,#2036)
    0x06011A48, // #2038.Composition(#2038)
    0x06011A61, // #2039.ExplAttrInfos(#14,OPT)
    0x04019F8D, // #2038.Attributes(#2039)
    0x06011A7E, // #2037.Supertypes(#2038)
    0x06011A96, // #2037.Composition(#2037,#2038)
    0x06011AB5, // #2040.ExplAttrInfos(#43,OPT)
    0x06011AD2, // #2041.ExplAttrInfos(#43,OPT)
    0x06011AEF, // #2042.ExplAttrInfos(#43,OPT)
    0x06011B0C, // #2043.ExplAttrInfos(#43,OPT)
    0x06011B29, // #2044.ExplAttrInfos(#43,OPT)
    0x06011B46, // #2045.ExplAttrInfos(#43,OPT)
    0x06011B63, // #2037.Attributes(#2040,#2041,#2042,#2043,#2044,#2045)
    0x06011B99, // #2046.Supertypes(#1661)
    0x06011BB1, // #2046.Composition(#1273,#1290,#974,#2046,#1661,#976,#891,#975,#98)
    0x06011BF4, // #2047.ExplAttrInfos(#404,OPT)
    0x0401A1CB, // #2046.Attributes(#2047)
    0x06011C12, // #2048.Supertypes(#1664)
    0x06011C2A, // #2048.Composition(#1277,#1297,#1278,#2048,#1664,#891,#98,#1094,#1109)
    0x06011C70, // #2049.ExplAttrInfos(#404,REQ)
    0x0401A250, // #2048.Attributes(#2049)
    0x06011C8E, // #1.Entities(#739,#1826,#1833,#1836,#1847,#1849,#1851,#1853,#1855,#1857,#1859,#1272,#1276,#1273,#1277,#1290,#1297,#1863,#1860,#894,#1868,#913,#1873,#1879,#1894,#1900,#1901,#1906,#1911,#1912,#1913,#1915,#1917,#1919,#1921,#1924,#1927,#1931,#1932,#882,#881,#1934,#1943,#1945,#1947,#1949,#1951,#1954,#1957,#1959,#1961,#1963,#1965,#1967,#1969,#1971,#974,#1973,#1976,#1525,#1528,#1978,#1278,#1800,#1983,#1986,#1303,#1306,#1989,#1991,#1993,#1995,#1997,#1999,#2001,#2006,#2011,#2015,#783,#793,#2020,#1186,#1187,#920,#1213,#1247,#2024,#2027,#1173,#1204,#1175,#2029,#1208,#2030,#2031,#1509,#2034,#2037,#2046,#2048)
    0x06011EEA, // #2050.Supertypes(#1525)
    0x06011F02, // #2050.Composition(#974,#1525,#2050,#976,#891,#975,#98)
    0x06011F39, // #2051.ExplAttrInfos(#406,OPT)
    0x0401A2D8, // #2050.Attributes(#2051)
    0x06011F57, // #2052.Supertypes(#1528)
    0x06011F6F, // #2052.Composition(#1528,#1278,#2052,#891,#98,#1094,#1109)
    0x06011FA9, // #2053.ExplAttrInfos(#406,REQ)
    0x06011FC7, // #2052.Attributes(#2053)
    0x06011FDF, // #2054.Supertypes(#1929)
    0x06011FF7, // #2054.Composition(#974,#1929,#2054,#976,#891,#975,#98)
    0x0601202E, // #2055.Supertypes(#924)
    0x06012045, // #2055.Composition(#2055,#924)
    0x06012063, // #2056.ExplAttrInfos(#2057,REQ)
    0x06012082, // #2058.ExplAttrInfos(#13,OPT)
    0x0601209F, // #2055.Attributes(#2056,#2058)
    0x060120BD, // #2059.Supertypes(#1922)
    0x060120D5, // #2059.Composition(#1273,#1290,#974,#2059,#1922,#976,#891,#975,#98)
    0x06012118, // #2060.ExplAttrInfos(#408,OPT)
    0x06012136, // #2059.Attributes(#2060)
    0x0601214E, // #2061.Supertypes(#1925)
    0x06012166, // #2061.Composition(#1277,#1297,#1278,#2061,#1925,#891,#98,#1094,#1109)
    0x060121AC, // #2062.ExplAttrInfos(#408,REQ)
    0x060121CA, // #2061.Attributes(#2062)
    0x060121E2, // #2063.Supertypes(#1289)
    0x060121FA, // #2063.Composition(#1273,#1290,#974,#2063,#1289,#976,#891,#975,#98)
    0x0601223D, // #2064.ExplAttrInfos(#410,OPT)
    0x0401A5B5, // #2063.Attributes(#2064)
    0x0601225B, // #2065.Supertypes(#1300)
    0x06012273, // #2065.Composition(#1277,#1297,#1278,#2065,#1300,#891,#98,#1094,#1109)
    0x060122B9, // #2066.ExplAttrInfos(#410,REQ)
    0x0401A637, // #2065.Attributes(#2066)
    0x060122D7, // #2067.Supertypes(#1272)
    0x060122EF, // #2067.Composition(#1272,#1273,#974,#2067,#976,#891,#975,#98)
    0x0601232C, // #2068.ExplAttrInfos(#414,OPT)
    0x030142BE, // #2067.Attributes(#2068)
    0x0601234A, // #2069.Supertypes(#1276)
    0x06012362, // #2069.Composition(#1276,#1277,#1278,#2069,#891,#98,#1094,#1109)
    0x060123A2, // #2070.ExplAttrInfos(#414,REQ)
    0x060123C0, // #2069.Attributes(#2070)
    0x060123D8, // #2071.Supertypes(#1293)
    0x060123F0, // #2071.Composition(#1273,#1290,#974,#1293,#2071,#976,#891,#975,#98)
    0x06012433, // #2072.ExplAttrInfos(#416,OPT)
    0x03014374, // #2071.Attributes(#2072)
    0x06012451, // #2073.Supertypes(#1296)
    0x06012469, // #2073.Composition(#1277,#1297,#1278,#1296,#2073,#891,#98,#1094,#1109)
    0x060124AF, // #2074.ExplAttrInfos(#416,REQ)
    0x060124CD, // #2073.Attributes(#2074)
    0x060124E5, // #2075.Supertypes(#1452)
    0x060124FD, // #2075.Composition(#1452,#974,#2075,#976,#891,#975,#98)
    0x06012534, // #2076.ExplAttrInfos(#418,OPT)
    0x03014408, // #2075.Attributes(#2076)
    0x06012552, // #2077.Supertypes(#1456)
    0x0601256A, // #2077.Composition(#1456,#1278,#2077,#891,#98,#1094,#1109)
    0x060125A4, // #2078.ExplAttrInfos(#418,REQ)
    0x0002B6AA, // #2077.Attributes(#2078)
    0x060125C2, // #2079.Supertypes(#974)
    0x060125D9, // #2079.Composition(#974,#2079,#976,#891,#975,#98)
    0x0601260A, // #2080.Supertypes(#1278)
    0x06012622, // #2080.Composition(#1278,#2080,#891,#98,#1094,#1109)
    0x06012656, // #2081.Supertypes(#2079)
    0x0601266E, // #2081.Composition(#974,#2079,#2081,#976,#891,#975,#98)
    0x060126A5, // #2082.ExplAttrInfos(#420,OPT)
    0x060126C3, // #2081.Attributes(#2082)
    0x060126DB, // #2083.Supertypes(#2080)
    0x060126F3, // #2083.Composition(#1278,#2080,#2083,#891,#98,#1094,#1109)
    0x0601272D, // #2084.ExplAttrInfos(#234,REQ)
    0x0601274B, // #2085.ExplAttrInfos(#420,OPT)
    0x06012769, // #2083.Attributes(#2084,#2085)
    0x06012787, // #2086.Supertypes(#974)
    0x0601279E, // #2086.Composition(#974,#2086,#976,#891,#975,#98)
    0x060127CF, // #2087.ExplAttrInfos(#422,OPT)
    0x050155A7, // #2086.Attributes(#2087)
    0x060127ED, // #2088.Supertypes(#1278)
    0x06012805, // #2088.Composition(#1278,#2088,#891,#98,#1094,#1109)
    0x06012839, // #2089.ExplAttrInfos(#422,REQ)
    0x030146DB, // #2088.Attributes(#2089)
    0x06012857, // #2091.Supertypes(#733)
    0x0601286E, // #2091.Composition(#733,#2091,#734)
    0x0301467F, // #2092.ExplAttrInfos(#2093,REQ)
    0x06012891, // #2094.DerivAttrInfos(#29)
    0x060128AB, // #2091.Attributes(#2092,#2094)
    0x060128C9, // #2090.Supertypes(#2091)
    0x060128E1, // #2090.Composition(#2090,#733,#2091,#734)
    0x0601290A, // #2095.Supertypes(#825)
    0x06012921, // #2095.Composition(#825,#2095,#826)
    0x06012944, // #2096.ExplAttrInfos(#825,REQ)
    0x06012962, // #2097.ExplAttrInfos(#92,OPT)
    0x0601297F, // #2098.ExplAttrInfos(#424,REQ)
    0x02014E02, // #2099.ExplAttrInfos(#14,OPT)
    0x0601299D, // #2100.DerivAttrInfos(#747)
    0x060129B8, // #2101.DerivAttrInfos(#29)
    0x060129D2, // #2102.DerivAttrInfos(#739)
    0x060129ED, // #2103.DerivAttrInfos(#165)
    0x06012A08, // #2095.Attributes(#2096,#2097,#2098,#2099,#2100,#2101,#2102,#2103)
    0x06012A4A, // #2104.Supertypes(#1475)
    0x06012A62, // #2104.Composition(#974,#2104,#1475,#1476,#976,#891,#975,#98)
    0x06012A9F, // #2105.Supertypes(#1475)
    0x06012AB7, // #2105.Composition(#974,#2105,#1475,#1476,#976,#891,#975,#98)
    0x06012AF4, // #2106.Supertypes(#1476)
    0x06012B0C, // #2106.Composition(#974,#1476,#2106,#976,#891,#975,#98)
    0x06012B43, // #2107.Supertypes(#856)
    0x06012B5A, // #2107.Composition(#857,#856,#858,#733,#2107,#734)
    0x06012B8C, // #2108.ExplAttrInfos(#857,REQ)
    0x06012BAA, // #2109.ExplAttrInfos(#732,OPT)
    0x06012BC8, // #2110.DerivAttrInfos(#56)
    0x06012BE2, // #2107.Attributes(#2108,#2109,#2110)
    0x06012C06, // #2111.Supertypes(#1314)
    0x06012C1E, // #2111.Composition(#2111,#976,#891,#1314,#975,#98)
    0x06012C50, // #2112.ExplAttrInfos(#2113,REQ)
    0x0101D7C1, // #2114.ExplAttrInfos(#2115,REQ)
    0x06012C6F, // #2116.ExplAttrInfos(#2117,OPT)
    0x03014BF8, // #2118.ExplAttrInfos(#428,OPT)
    0x06012C8E, // #2111.Attributes(#2112,#2114,#2116,#2118)
    0x06012CB8, // #2119.Supertypes(#979)
    0x06012CCF, // #2119.Composition(#2119,#979)
    0x06012CED, // #2120.ExplAttrInfos(#961,REQ)
    0x06012D0B, // #2121.ExplAttrInfos(#971,OPT)
    0x0002BBBE, // #2119.Attributes(#2120,#2121)
    0x06012D29, // #2122.Supertypes(#1303)
    0x06012D41, // #2122.Composition(#1273,#1290,#974,#1303,#2122,#976,#891,#975,#98)
    0x06012D84, // #2123.ExplAttrInfos(#430,OPT)
    0x0002BC3C, // #2122.Attributes(#2123)
    0x06012DA2, // #2124.Supertypes(#1306)
    0x06012DBA, // #2124.Composition(#1277,#1297,#1278,#1306,#2124,#891,#98,#1094,#1109)
    0x06012E00, // #2125.ExplAttrInfos(#430,REQ)
    0x0002BCB4, // #2124.Attributes(#2125)
    0x06012E1E, // #2126.Supertypes(#1303)
    0x06012E36, // #2126.Composition(#1273,#1290,#974,#1303,#2126,#976,#891,#975,#98)
    0x06012E79, // #2127.ExplAttrInfos(#432,OPT)
    0x0002BD2C, // #2126.Attributes(#2127)
    0x06012E97, // #2128.Supertypes(#1306)
    0x06012EAF, // #2128.Composition(#1277,#1297,#1278,#1306,#2128,#891,#98,#1094,#1109)
    0x06012EF5, // #2129.ExplAttrInfos(#432,REQ)
    0x06012F13, // #2128.Attributes(#2129)
    0x06012F2B, // #2130.Supertypes(#1382)
    0x06012F43, // #2130.Composition(#2130,#1382,#1143)
    0x06012F68, // #2131.ExplAttrInfos(#90,REQ)
    0x06012F85, // #2132.ExplAttrInfos(#90,REQ)
    0x06012FA2, // #2133.ExplAttrInfos(#90,REQ)
    0x06012FBF, // #2134.ExplAttrInfos(#90,REQ)
    0x06012FDC, // #2135.ExplAttrInfos(#82,OPT)
    0x06012FF9, // #2136.ExplAttrInfos(#82,OPT)
    0x06013016, // #2137.ExplAttrInfos(#89,OPT)
    0x06013033, // #2130.Attributes(#2131,#2132,#2133,#2134,#2135,#2136,#2137)
    0x0601306F, // #2138.Supertypes(#1227)
    0x06013087, // #2138.Composition(#2138,#807,#1227)
    0x060130AB, // #2139.ExplAttrInfos(#195,REQ)
    0x060130C9, // #2138.Attributes(#2139)
    0x060130E1, // #2140.Supertypes(#1525)
    0x060130F9, // #2140.Composition(#974,#1525,#2140,#976,#891,#975,#98)
    0x06013130, // #2141.ExplAttrInfos(#973,OPT)
    0x0601314E, // #2140.Attributes(#2141)
    0x06013166, // #2142.Supertypes(#1528)
    0x0601317E, // #2142.Composition(#1528,#1278,#2142,#891,#98,#1094,#1109)
    0x060131B8, // #2143.ExplAttrInfos(#973,REQ)
    0x060131D6, // #2142.Attributes(#2143)
    0x060131EE, // #2144.Supertypes(#1836)
    0x06013206, // #2144.Composition(#1836,#733,#2144,#734,#762,#1827)
    0x0601323A, // #2145.ExplAttrInfos(#13,OPT)
    0x06013257, // #2144.Attributes(#2145)
    0x0601326F, // #2146.Supertypes(#807)
    0x06013286, // #2146.Composition(#2146,#807)
    0x060132A4, // #2147.ExplAttrInfos(#764,REQ)
    0x060132C2, // #2148.ExplAttrInfos(#84,OPT)
    0x060132DF, // #2149.ExplAttrInfos(#1625,REQ)
    0x060132FE, // #2150.ExplAttrInfos(#2151,REQ)
    0x0601331D, // #2146.Attributes(#2147,#2148,#2149,#2150)
    0x06013347, // #2152.Supertypes(#857)
    0x0601335E, // #2152.Composition(#857,#858,#733,#2152,#734)
    0x0601338B, // #2153.ExplAttrInfos(#768,REQ)
    0x03015322, // #2154.ExplAttrInfos(#2155,OPT)
    0x060133A9, // #2156.ExplAttrInfos(#13,OPT)
    0x060133C6, // #2152.Attributes(#2153,#2154,#2156)
    0x060133EA, // #2157.Supertypes(#765)
    0x06013401, // #2157.Composition(#733,#2157,#734,#765)
    0x06013429, // #2158.ExplAttrInfos(#2159,REQ)
    0x06013448, // #2157.Attributes(#2158)
    0x06013460, // #2160.Supertypes(#2157)
    0x06013478, // #2160.Composition(#733,#2157,#2160,#734,#765)
    0x060134A6, // #2161.ExplAttrInfos(#2163,REQ)
    0x0401B5C0, // #2160.Attributes(#2161)
    0x060134C5, // #2165.Supertypes(#807)
    0x060134DC, // #2165.Composition(#807,#2165)
    0x060134FA, // #2166.ExplAttrInfos(#2167,REQ)
    0x06013519, // #2165.Attributes(#2166)
    0x06013531, // #2164.Supertypes(#2165)
    0x06013549, // #2164.Composition(#2164,#807,#2165)
    0x0601356D, // #2168.ExplAttrInfos(#764,REQ)
    0x0601358B, // #2170.Supertypes(#807)
    0x060135A2, // #2170.Composition(#807,#2170)
    0x060135C0, // #2171.ExplAttrInfos(#2173,REQ)
    0x0101E2B1, // #2170.Attributes(#2171)
    0x060135DF, // #2169.ExplAttrInfos(#2170,REQ)
    0x060135FE, // #2164.Attributes(#2168,#2169)
    0x0601361C, // #2174.Supertypes(#2164)
    0x06013634, // #2174.Composition(#2164,#2174,#807,#2165)
    0x0601365E, // #2175.ExplAttrInfos(#2177,OPT)
    0x0601367D, // #2174.Attributes(#2175)
    0x06013695, // #2178.Supertypes(#1922)
    0x060136AD, // #2178.Composition(#1273,#1290,#974,#1922,#2178,#976,#891,#975,#98)
    0x060136F0, // #2179.ExplAttrInfos(#436,OPT)
    0x0601370E, // #2178.Attributes(#2179)
    0x06013726, // #2180.Supertypes(#1925)
    0x0601373E, // #2180.Composition(#1277,#1297,#1278,#1925,#2180,#891,#98,#1094,#1109)
    0x06013784, // #2181.ExplAttrInfos(#436,REQ)
    0x0101E482, // #2180.Attributes(#2181)
    0x060137A2, // #2182.Supertypes(#872)
    0x060137B9, // #2182.Composition(#858,#733,#2182,#734,#872)
    0x060137E6, // #2183.Supertypes(#1196)
    0x060137FE, // #2183.Composition(#1196,#2183,#976,#891,#98)
    0x0601382B, // #2184.ExplAttrInfos(#440,OPT)
    0x06013849, // #2185.ExplAttrInfos(#686,OPT)
    0x02015F7A, // #2186.ExplAttrInfos(#2187,OPT)
    0x06013867, // #2188.ExplAttrInfos(#24,OPT)
    0x06013884, // #2189.ExplAttrInfos(#1373,OPT)
    0x060138A3, // #2190.ExplAttrInfos(#1373,OPT)
    0x060138C2, // #2183.Attributes(#2184,#2185,#2186,#2188,#2189,#2190)
    0x060138F8, // #2191.Supertypes(#1067)
    0x06013910, // #2191.Composition(#2191,#1067)
    0x0601392F, // #2193.Composition(#2193)
    0x06013948, // #2194.ExplAttrInfos(#25,REQ)
    0x06013965, // #2195.ExplAttrInfos(#2196,REQ)
    0x06013984, // #2193.Attributes(#2194,#2195)
    0x060139A2, // #2192.ExplAttrInfos(#2197,REQ)
    0x0101E6AA, // #2191.Attributes(#2192)
    0x060139C1, // #2198.Supertypes(#1554)
    0x060139D9, // #2198.Composition(#1273,#1290,#974,#1554,#2198,#976,#891,#975,#98)
    0x06013A1C, // #2199.ExplAttrInfos(#442,OPT)
    0x0002CA54, // #2198.Attributes(#2199)
    0x06013A3A, // #2200.Supertypes(#1557)
    0x06013A52, // #2200.Composition(#1277,#1297,#1278,#1557,#2200,#891,#98,#1094,#1109)
    0x06013A98, // #2201.ExplAttrInfos(#442,REQ)
    0x06013AB6, // #2200.Attributes(#2201)
    0x06013ACE, // #2202.Supertypes(#1452)
    0x06013AE6, // #2202.Composition(#1452,#974,#2202,#976,#891,#975,#98)
    0x06013B1D, // #2203.ExplAttrInfos(#13,REQ)
    0x0401BDDB, // #2202.Attributes(#2203)
    0x06013B3A, // #2204.Supertypes(#1456)
    0x06013B52, // #2204.Composition(#1456,#1278,#2204,#891,#98,#1094,#1109)
    0x06013B8C, // #2205.ExplAttrInfos(#13,REQ)
    0x0401BE6F, // #2204.Attributes(#2205)
    0x06013BA9, // #2206.Supertypes(#1382)
    0x06013BC1, // #2206.Composition(#2206,#1382,#1143)
    0x06013BE6, // #2207.ExplAttrInfos(#90,REQ)
    0x06013C03, // #2208.ExplAttrInfos(#90,OPT)
    0x06013C20, // #2209.ExplAttrInfos(#90,REQ)
    0x06013C3D, // #2210.ExplAttrInfos(#82,OPT)
    0x06013C5A, // #2211.ExplAttrInfos(#82,OPT)
    0x06013C77, // #2212.ExplAttrInfos(#89,OPT)
    0x06013C94, // #2206.Attributes(#2207,#2208,#2209,#2210,#2211,#2212)
    0x06013CCA, // #2213.Supertypes(#1688)
    0x06013CE2, // #2213.Composition(#1688,#2213,#976,#891,#1157,#98)
    0x06013D15, // #2214.ExplAttrInfos(#446,OPT)
    0x06013D33, // #2213.Attributes(#2214)
    0x06013D4B, // #2215.Supertypes(#1715)
    0x06013D63, // #2215.Composition(#1715,#2215,#891,#98,#1094,#1160)
    0x06013D97, // #2216.ExplAttrInfos(#446,REQ)
    0x06013DB5, // #2215.Attributes(#2216)
    0x06013DCD, // #2217.Supertypes(#1691)
    0x06013DE5, // #2217.Composition(#2217,#1691)
    0x06013E04, // #2218.ExplAttrInfos(#1252,REQ)
    0x06013E23, // #2219.ExplAttrInfos(#622,REQ)
    0x06013E41, // #2217.Attributes(#2218,#2219)
    0x06013E5F, // #2220.Supertypes(#1289)
    0x06013E77, // #2220.Composition(#1273,#1290,#974,#1289,#2220,#976,#891,#975,#98)
    0x06013EBA, // #2221.ExplAttrInfos(#448,OPT)
    0x02016675, // #2220.Attributes(#2221)
    0x06013ED8, // #2222.Supertypes(#1300)
    0x06013EF0, // #2222.Composition(#1277,#1297,#1278,#1300,#2222,#891,#98,#1094,#1109)
    0x06013F36, // #2223.ExplAttrInfos(#448,REQ)
    0x05016F5E, // #2222.Attributes(#2223)
    0x06013F54, // #2224.Supertypes(#1289)
    0x06013F6C, // #2224.Composition(#1273,#1290,#974,#1289,#2224,#976,#891,#975,#98)
    0x06013FAF, // #2225.ExplAttrInfos(#456,OPT)
    0x06013FCD, // #2224.Attributes(#2225)
    0x06013FE5, // #2226.Supertypes(#1300)
    0x06013FFD, // #2226.Composition(#1277,#1297,#1278,#1300,#2226,#891,#98,#1094,#1109)
    0x06014043, // #2227.ExplAttrInfos(#456,REQ)
    0x06014061, // #2226.Attributes(#2227)
    0x06014079, // #2228.Supertypes(#733)
    0x06014090, // #2228.Composition(#733,#2228,#734)
    0x060140B3, // #2229.ExplAttrInfos(#14,OPT)
    0x060140D0, // #2230.ExplAttrInfos(#814,REQ)
    0x060140EE, // #2231.ExplAttrInfos(#84,OPT)
    0x0601410B, // #2232.ExplAttrInfos(#84,OPT)
    0x06014128, // #2228.Attributes(#2229,#2230,#2231,#2232)
    0x06014152, // #2233.Supertypes(#2228)
    0x0601416A, // #2233.Composition(#733,#2228,#2233,#734)
    0x06014193, // #2234.Supertypes(#2228)
    0x060141AB, // #2234.Composition(#733,#2228,#2234,#734)
    0x060141D4, // #2235.ExplAttrInfos(#739,REQ)
    0x0101F1AF, // #2234.Attributes(#2235)
    0x060141F2, // #2236.Supertypes(#2228)
    0x0601420A, // #2236.Composition(#733,#2228,#2236,#734)
    0x06014233, // #2237.ExplAttrInfos(#743,REQ)
    0x06014251, // #2238.ExplAttrInfos(#814,OPT)
    0x0601426F, // #2239.ExplAttrInfos(#191,REQ)
    0x0601428D, // #2240.ExplAttrInfos(#64,REQ)
    0x060142AA, // #2241.ExplAttrInfos(#454,REQ)
    0x060142C8, // #2242.ExplAttrInfos(#1024,REQ)
    0x060142E7, // #2236.Attributes(#2237,#2238,#2239,#2240,#2241,#2242)
    0x0601431D, // #2243.Supertypes(#2228)
    0x06014335, // #2243.Composition(#733,#2228,#2243,#734)
    0x0601435E, // #2244.ExplAttrInfos(#940,REQ)
    0x0601437C, // #2245.ExplAttrInfos(#90,REQ)
    0x06014399, // #2246.ExplAttrInfos(#165,REQ)
    0x060143B7, // #2247.ExplAttrInfos(#165,REQ)
    0x060143D5, // #2248.ExplAttrInfos(#165,REQ)
    0x060143F3, // #2243.Attributes(#2244,#2245,#2246,#2247,#2248)
    0x06014423, // #2249.Supertypes(#2243)
    0x0601443B, // #2249.Composition(#733,#2228,#2243,#2249,#734)
    0x0601446A, // #2250.ExplAttrInfos(#739,REQ)
    0x06014488, // #2251.ExplAttrInfos(#165,OPT)
    0x060144A6, // #2252.ExplAttrInfos(#91,REQ)
    0x060144C3, // #2253.ExplAttrInfos(#91,REQ)
    0x060144E0, // #2249.Attributes(#2250,#2251,#2252,#2253)
    0x0601450A, // #2254.Supertypes(#858)
    0x06014521, // #2254.Composition(#858,#733,#2254,#734)
    0x06014549, // #2255.ExplAttrInfos(#940,REQ)
    0x06014567, // #2256.ExplAttrInfos(#933,REQ)
    0x06014585, // #2254.Attributes(#2255,#2256)
    0x060145A3, // #1.Entities(#2050,#2052,#1929,#2054,#1928,#2055,#921,#946,#2059,#2061,#2063,#2065,#1834,#1293,#1296,#1554,#1557,#2067,#2069,#2071,#2073,#1661,#1664,#1560,#1563,#1952,#1955,#1289,#1300,#1922,#1925,#2075,#2077,#2079,#2080,#2081,#2083,#2086,#2088,#2090,#825,#733,#2095,#2091,#2104,#2105,#1475,#1476,#2106,#2107,#2111,#963,#2119,#1196,#756,#2122,#2124,#2126,#2128,#2130,#2138,#2140,#2142,#2144,#2146,#2152,#2157,#2160,#2164,#2174,#2178,#2180,#2182,#2183,#2191,#2193,#2198,#2200,#2202,#2204,#2206,#2213,#2215,#2217,#2220,#2222,#1000,#1007,#1016,#2224,#2226,#1013,#2228,#2233,#2234,#2236,#2243,#2249,#2254,#1317)
    0x06014802, // #2257.Supertypes(#979)
    0x06014819, // #2257.Composition(#2257,#979)
    0x06014837, // #2258.ExplAttrInfos(#1403,REQ)
    0x06014856, // #2259.ExplAttrInfos(#743,OPT)
    0x06014874, // #2257.Attributes(#2258,#2259)
    0x06014892, // #2260.Supertypes(#1289)
    0x060148AA, // #2260.Composition(#1273,#1290,#974,#1289,#2260,#976,#891,#975,#98)
    0x060148ED, // #2261.ExplAttrInfos(#458,OPT)
    0x0601490B, // #2260.Attributes(#2261)
    0x06014923, // #2262.Supertypes(#1300)
    0x0601493B, // #2262.Composition(#1277,#1297,#1278,#1300,#2262,#891,#98,#1094,#1109)
    0x06014981, // #2263.ExplAttrInfos(#458,REQ)
    0x0401CBA9, // #2262.Attributes(#2263)
    0x0601499F, // #2264.Supertypes(#979)
    0x060149B6, // #2264.Composition(#2264,#979)
    0x060149D4, // #2265.ExplAttrInfos(#747,REQ)
    0x030167CF, // #2264.Attributes(#2265)
    0x060149F2, // #2266.Supertypes(#1756)
    0x06014A0A, // #2266.Composition(#1756,#2266)
    0x06014A29, // #2267.ExplAttrInfos(#56,REQ)
    0x06014A46, // #2268.ExplAttrInfos(#56,REQ)
    0x06014A63, // #2269.ExplAttrInfos(#56,REQ)
    0x06014A80, // #2270.ExplAttrInfos(#165,OPT)
    0x06014A9E, // #2271.ExplAttrInfos(#165,OPT)
    0x06014ABC, // #2272.ExplAttrInfos(#165,OPT)
    0x06014ADA, // #2273.ExplAttrInfos(#165,OPT)
    0x06014AF8, // #2274.ExplAttrInfos(#165,OPT)
    0x06014B16, // #2266.Attributes(#2267,#2268,#2269,#2270,#2271,#2272,#2273,#2274)
    0x06014B58, // #2275.Supertypes(#734)
    0x06014B6F, // #2275.Composition(#2275,#734)
    0x06014B8D, // #2276.ExplAttrInfos(#1104,REQ)
    0x06014BAC, // #2277.ExplAttrInfos(#1233,REQ)
    0x06014BCB, // #2275.Attributes(#2276,#2277)
    0x06014BE9, // #2278.Supertypes(#1509)
    0x06014C01, // #2278.Composition(#1509,#2278,#976,#891,#975,#98,#994,#1190)
    0x06014C3E, // #2279.ExplAttrInfos(#464,OPT)
    0x03016AA9, // #2278.Attributes(#2279)
    0x06014C5C, // #2280.Composition(#2280)
    0x02017266, // #2281.ExplAttrInfos(#2282,REQ)
    0x06014C75, // #2283.ExplAttrInfos(#1028,REQ)
    0x06014C94, // #2280.Attributes(#2281,#2283)
    0x06014CB2, // #2284.Supertypes(#1025)
    0x06014CCA, // #2284.Composition(#2284,#1025)
    0x06014CE9, // #2285.ExplAttrInfos(#14,OPT)
    0x06014D06, // #2286.ExplAttrInfos(#122,OPT)
    0x06014D24, // #2287.ExplAttrInfos(#1028,REQ)
    0x06014D43, // #2288.ExplAttrInfos(#84,OPT)
    0x0401CF4F, // #2289.ExplAttrInfos(#14,OPT)
    0x06014D60, // #2284.Attributes(#2285,#2286,#2287,#2288,#2289)
    0x06014D90, // #2290.Supertypes(#1025)
    0x06014DA8, // #2290.Composition(#2290,#1025)
    0x06014DC7, // #2291.ExplAttrInfos(#14,OPT)
    0x06014DE4, // #2292.ExplAttrInfos(#122,OPT)
    0x06014E02, // #2293.ExplAttrInfos(#2294,OPT)
    0x06014E21, // #2290.Attributes(#2291,#2292,#2293)
    0x06014E45, // #2295.Supertypes(#982)
    0x06014E5C, // #2295.Composition(#2295,#982)
    0x06014E7A, // #2296.ExplAttrInfos(#1028,REQ)
    0x0101FCA2, // #2295.Attributes(#2296)
    0x06014E99, // #2297.Supertypes(#1025)
    0x06014EB1, // #2297.Composition(#1025,#2297)
    0x06014ED0, // #2298.ExplAttrInfos(#1028,OPT)
    0x06014EEF, // #2299.ExplAttrInfos(#82,REQ)
    0x06014F0C, // #2300.ExplAttrInfos(#63,OPT)
    0x06014F29, // #2301.ExplAttrInfos(#14,OPT)
    0x06014F46, // #2302.ExplAttrInfos(#122,OPT)
    0x06014F64, // #2303.ExplAttrInfos(#14,OPT)
    0x06014F81, // #2304.ExplAttrInfos(#6,OPT)
    0x06014F9D, // #2297.Attributes(#2298,#2299,#2300,#2301,#2302,#2303,#2304)
    0x06014FD9, // #2305.Supertypes(#1025)
    0x06014FF1, // #2305.Composition(#1025,#2305)
    0x020175D4, // #2306.ExplAttrInfos(#2307,REQ)
    0x0401D264, // #2308.ExplAttrInfos(#14,OPT)
    0x0401D281, // #2309.ExplAttrInfos(#122,OPT)
    0x06015010, // #2310.DerivAttrInfos(#56)
    0x0601502A, // #2305.Attributes(#2306,#2308,#2309,#2310)
    0x06015054, // #2311.Supertypes(#1033)
    0x0601506C, // #2311.Composition(#2311,#1033)
    0x0601508B, // #2312.ExplAttrInfos(#2305,REQ)
    0x060150AA, // #2313.ExplAttrInfos(#450,REQ)
    0x060150C8, // #2314.ExplAttrInfos(#332,REQ)
    0x060150E6, // #2315.ExplAttrInfos(#56,REQ)
    0x06015103, // #2316.ExplAttrInfos(#90,OPT)
    0x030171C9, // #2311.Attributes(#2312,#2313,#2314,#2315,#2316)
    0x06015120, // #2317.Supertypes(#2297)
    0x06015138, // #2317.Composition(#1025,#2297,#2317)
    0x0601515D, // #2318.ExplAttrInfos(#450,REQ)
    0x0601517B, // #2319.ExplAttrInfos(#2320,REQ)
    0x0601519A, // #2317.Attributes(#2318,#2319)
    0x060151B8, // #2321.Supertypes(#1025)
    0x060151D0, // #2321.Composition(#1025,#2321)
    0x060151EF, // #2322.ExplAttrInfos(#14,OPT)
    0x0601520C, // #2323.ExplAttrInfos(#122,OPT)
    0x0601522A, // #2324.ExplAttrInfos(#1028,OPT)
    0x06015249, // #2325.ExplAttrInfos(#1143,REQ)
    0x06015268, // #2326.ExplAttrInfos(#6,OPT)
    0x06015284, // #2327.ExplAttrInfos(#14,OPT)
    0x060152A1, // #2321.Attributes(#2322,#2323,#2324,#2325,#2326,#2327)
    0x060152D7, // #2328.Supertypes(#1025)
    0x060152EF, // #2328.Composition(#1025,#2328)
    0x0601530E, // #2329.ExplAttrInfos(#14,OPT)
    0x0601532B, // #2330.ExplAttrInfos(#122,OPT)
    0x06015349, // #2331.ExplAttrInfos(#2332,REQ)
    0x06015368, // #2333.ExplAttrInfos(#1656,OPT)
    0x06015387, // #2328.Attributes(#2329,#2330,#2331,#2333)
    0x060153B1, // #2334.Supertypes(#1033)
    0x060153C9, // #2334.Composition(#2334,#1033)
    0x060153E8, // #2335.ExplAttrInfos(#2328,REQ)
    0x06015407, // #2336.ExplAttrInfos(#16,OPT)
    0x06015424, // #2337.ExplAttrInfos(#90,OPT)
    0x06015441, // #2334.Attributes(#2335,#2336,#2337)
    0x06015465, // #2338.Supertypes(#2334)
    0x0601547D, // #2338.Composition(#2334,#2338,#1033)
    0x060154A2, // #2339.ExplAttrInfos(#2328,REQ)
    0x060154C1, // #2340.ExplAttrInfos(#16,OPT)
    0x060154DE, // #2338.Attributes(#2339,#2340)
    0x060154FC, // #2341.Supertypes(#2321)
    0x06015514, // #2341.Composition(#1025,#2321,#2341)
    0x02017C9A, // #2342.ExplAttrInfos(#2343,REQ)
    0x06015539, // #2341.Attributes(#2342)
    0x06015551, // #2344.Supertypes(#2015)
    0x06015569, // #2344.Composition(#2015,#2344,#1146)
    0x0601558E, // #2345.ExplAttrInfos(#1025,REQ)
    0x060155AD, // #2344.Attributes(#2345)
    0x060155C5, // #2346.Supertypes(#1357)
    0x060155DD, // #2346.Composition(#2346,#1357)
    0x060155FC, // #2347.ExplAttrInfos(#1028,REQ)
    0x0601561B, // #2348.ExplAttrInfos(#2349,REQ)
    0x0601563A, // #2350.ExplAttrInfos(#14,OPT)
    0x06015657, // #2346.Attributes(#2347,#2348,#2350)
    0x0601567B, // #2351.Supertypes(#1525)
    0x06015693, // #2351.Composition(#974,#1525,#2351,#976,#891,#975,#98)
    0x060156CA, // #2352.ExplAttrInfos(#90,OPT)
    0x060156E7, // #2353.ExplAttrInfos(#90,OPT)
    0x06015704, // #2354.ExplAttrInfos(#468,OPT)
    0x06015722, // #2351.Attributes(#2352,#2353,#2354)
    0x06015746, // #2355.Supertypes(#1528)
    0x0601575E, // #2355.Composition(#1528,#1278,#2355,#891,#98,#1094,#1109)
    0x06015798, // #2356.ExplAttrInfos(#468,REQ)
    0x060157B6, // #2357.ExplAttrInfos(#90,OPT)
    0x060157D3, // #2358.ExplAttrInfos(#90,OPT)
    0x02017F7F, // #2355.Attributes(#2356,#2357,#2358)
    0x060157F0, // #2359.Supertypes(#1289)
    0x06015808, // #2359.Composition(#1273,#1290,#974,#1289,#2359,#976,#891,#975,#98)
    0x0601584B, // #2360.ExplAttrInfos(#470,OPT)
    0x010207F4, // #2359.Attributes(#2360)
    0x06015869, // #2361.Supertypes(#1300)
    0x06015881, // #2361.Composition(#1277,#1297,#1278,#1300,#2361,#891,#98,#1094,#1109)
    0x060158C7, // #2362.ExplAttrInfos(#470,REQ)
    0x01020882, // #2361.Attributes(#2362)
    0x060158E5, // #2363.Supertypes(#1452)
    0x060158FD, // #2363.Composition(#1452,#974,#2363,#976,#891,#975,#98)
    0x06015934, // #2364.ExplAttrInfos(#472,OPT)
    0x01020910, // #2363.Attributes(#2364)
    0x06015952, // #2365.Supertypes(#2363)
    0x0601596A, // #2365.Composition(#1452,#974,#2363,#2365,#976,#891,#975,#98)
    0x060159A7, // #2366.Supertypes(#1456)
    0x060159BF, // #2366.Composition(#1456,#1278,#2366,#891,#98,#1094,#1109)
    0x060159F9, // #2367.ExplAttrInfos(#472,REQ)
    0x0401DE02, // #2366.Attributes(#2367)
    0x06015A17, // #2368.Supertypes(#1127)
    0x06015A2F, // #2368.Composition(#1127,#2368)
    0x06015A4E, // #2369.ExplAttrInfos(#248,REQ)
    0x06015A6C, // #2370.ExplAttrInfos(#14,OPT)
    0x06015A89, // #2371.ExplAttrInfos(#1077,OPT)
    0x06015AA8, // #2372.ExplAttrInfos(#722,OPT)
    0x06015AC6, // #2368.Attributes(#2369,#2370,#2371,#2372)
    0x06015AF0, // #2373.Supertypes(#1822)
    0x06015B08, // #2373.Composition(#1822,#2373,#1143)
    0x06015B2D, // #2374.DerivAttrInfos(#1232)
    0x0002EE61, // #2373.Attributes(#2374)
    0x06015B49, // #2375.Supertypes(#1289)
    0x06015B61, // #2375.Composition(#1273,#1290,#974,#1289,#2375,#976,#891,#975,#98)
    0x06015BA4, // #2376.ExplAttrInfos(#474,OPT)
    0x06015BC2, // #2375.Attributes(#2376)
    0x06015BDA, // #2377.Supertypes(#1300)
    0x06015BF2, // #2377.Composition(#1277,#1297,#1278,#1300,#2377,#891,#98,#1094,#1109)
    0x06015C38, // #2378.ExplAttrInfos(#474,REQ)
    0x06015C56, // #2377.Attributes(#2378)
    0x06015C6E, // #2379.Supertypes(#1452)
    0x06015C86, // #2379.Composition(#1452,#974,#2379,#976,#891,#975,#98)
    0x06015CBD, // #2380.ExplAttrInfos(#476,OPT)
    0x03017E84, // #2379.Attributes(#2380)
    0x06015CDB, // #2381.Supertypes(#1456)
    0x06015CF3, // #2381.Composition(#1456,#1278,#2381,#891,#98,#1094,#1109)
    0x06015D2D, // #2382.ExplAttrInfos(#476,REQ)
    0x06015D4B, // #2381.Attributes(#2382)
    0x06015D63, // #2383.Supertypes(#1303)
    0x06015D7B, // #2383.Composition(#1273,#1290,#974,#1303,#2383,#976,#891,#975,#98)
    0x06015DBE, // #2384.ExplAttrInfos(#478,OPT)
    0x020186CB, // #2383.Attributes(#2384)
    0x06015DDC, // #2385.Supertypes(#1306)
    0x06015DF4, // #2385.Composition(#1277,#1297,#1278,#1306,#2385,#891,#98,#1094,#1109)
    0x06015E3A, // #2386.ExplAttrInfos(#478,REQ)
    0x0201875F, // #2385.Attributes(#2386)
    0x06015E58, // #2387.Supertypes(#1452)
    0x06015E70, // #2387.Composition(#1452,#974,#2387,#976,#891,#975,#98)
    0x06015EA7, // #2388.ExplAttrInfos(#480,OPT)
    0x06015EC5, // #2387.Attributes(#2388)
    0x06015EDD, // #2389.Supertypes(#1456)
    0x06015EF5, // #2389.Composition(#1456,#1278,#2389,#891,#98,#1094,#1109)
    0x06015F2F, // #2390.ExplAttrInfos(#480,REQ)
    0x06015F4D, // #2389.Attributes(#2390)
    0x06015F65, // #2391.Supertypes(#1127)
    0x06015F7D, // #2391.Composition(#1127,#2391)
    0x06015F9C, // #2392.ExplAttrInfos(#2393,OPT)
    0x06015FBB, // #2394.ExplAttrInfos(#462,OPT)
    0x06015FD9, // #2395.ExplAttrInfos(#484,REQ)
    0x06015FF7, // #2396.ExplAttrInfos(#14,OPT)
    0x06016014, // #2391.Attributes(#2392,#2394,#2395,#2396)
    0x0601603E, // #2397.Supertypes(#1269)
    0x06016056, // #2397.Composition(#1269,#976,#891,#2397,#98)
    0x06016083, // #2398.ExplAttrInfos(#486,OPT)
    0x03018144, // #2397.Attributes(#2398)
    0x060160A1, // #2399.Supertypes(#858)
    0x060160B8, // #2399.Composition(#858,#733,#2399,#734)
    0x060160E0, // #2400.ExplAttrInfos(#858,REQ)
    0x030181B8, // #2399.Attributes(#2400)
    0x060160FE, // #2401.Supertypes(#2399)
    0x06016116, // #2401.Composition(#858,#733,#2399,#2401,#734)
    0x06016144, // #2402.ExplAttrInfos(#56,REQ)
    0x06016161, // #2403.ExplAttrInfos(#63,REQ)
    0x0601617E, // #2401.Attributes(#2402,#2403)
    0x0601619C, // #2404.Supertypes(#2399)
    0x060161B4, // #2404.Composition(#858,#733,#2399,#2404,#734)
    0x060161E2, // #2405.ExplAttrInfos(#56,REQ)
    0x060161FF, // #2406.ExplAttrInfos(#63,REQ)
    0x0601621C, // #2407.ExplAttrInfos(#739,REQ)
    0x0601623A, // #2404.Attributes(#2405,#2406,#2407)
    0x0601625E, // #2408.Supertypes(#2399)
    0x06016276, // #2408.Composition(#858,#733,#2399,#2408,#734)
    0x060162A4, // #2409.ExplAttrInfos(#2410,REQ)
    0x060162C3, // #2411.ExplAttrInfos(#14,OPT)
    0x060162E0, // #2408.Attributes(#2409,#2411)
    0x060162FE, // #2412.Supertypes(#1143)
    0x06016316, // #2412.Composition(#2412,#1143)
    0x06016335, // #2413.ExplAttrInfos(#13,REQ)
    0x06016352, // #2414.ExplAttrInfos(#2415,REQ)
    0x0401E635, // #2416.ExplAttrInfos(#2417,REQ)
    0x06016371, // #2418.ExplAttrInfos(#2419,OPT)
    0x06016390, // #2412.Attributes(#2413,#2414,#2416,#2418)
    0x060163BA, // #2420.Supertypes(#1928)
    0x060163D2, // #2420.Composition(#974,#1929,#1928,#976,#891,#2420,#975,#98)
    0x0601640F, // #2421.ExplAttrInfos(#488,OPT)
    0x02018EF0, // #2420.Attributes(#2421)
    0x0601642D, // #2422.Supertypes(#2420)
    0x06016445, // #2422.Composition(#974,#1929,#1928,#976,#891,#2420,#2422,#975,#98)
    0x06016488, // #2423.Supertypes(#1357)
    0x060164A0, // #2423.Composition(#2423,#1357)
    0x060164BF, // #2424.ExplAttrInfos(#133,REQ)
    0x060164DD, // #2425.ExplAttrInfos(#2426,REQ)
    0x060164FC, // #2423.Attributes(#2424,#2425)
    0x0601651A, // #2427.Supertypes(#1479)
    0x06016532, // #2427.Composition(#1479,#857,#856,#855,#858,#733,#2427,#734)
    0x0601656F, // #2428.Supertypes(#1289)
    0x06016587, // #2428.Composition(#1273,#1290,#974,#1289,#976,#891,#2428,#975,#98)
    0x0401E927, // #2429.ExplAttrInfos(#490,OPT)
    0x0401E945, // #2428.Attributes(#2429)
    0x060165CA, // #2430.Supertypes(#1300)
    0x060165E2, // #2430.Composition(#1277,#1297,#1278,#1300,#891,#2430,#98,#1094,#1109)
    0x0401E9AF, // #2431.ExplAttrInfos(#490,REQ)
    0x0401E9CD, // #2430.Attributes(#2431)
    0x06016628, // #2432.Supertypes(#883)
    0x0601663F, // #2432.Composition(#2432,#734,#883)
    0x06016662, // #2433.ExplAttrInfos(#2434,REQ)
    0x06016681, // #2432.Attributes(#2433)
    0x06016699, // #2435.Supertypes(#1452)
    0x060166B1, // #2435.Composition(#1452,#974,#976,#891,#2435,#975,#98)
    0x060166E8, // #2436.ExplAttrInfos(#492,OPT)
    0x06016706, // #2435.Attributes(#2436)
    0x0601671E, // #2437.Supertypes(#1456)
    0x06016736, // #2437.Composition(#1456,#1278,#891,#2437,#98,#1094,#1109)
    0x06016770, // #2438.ExplAttrInfos(#492,REQ)
    0x0601678E, // #2437.Attributes(#2438)
    0x060167A6, // #2439.Supertypes(#1264)
    0x060167BE, // #2439.Composition(#1264,#976,#891,#2439,#98)
    0x060167EB, // #2440.ExplAttrInfos(#14,REQ)
    0x06016808, // #2441.ExplAttrInfos(#494,OPT)
    0x06016826, // #2439.Attributes(#2440,#2441)
    0x06016844, // #2442.Supertypes(#1880)
    0x0601685C, // #2442.Composition(#2442,#1880,#97,#96,#98)
    0x06016887, // #2443.ExplAttrInfos(#496,REQ)
    0x060168A5, // #2444.ExplAttrInfos(#670,REQ)
    0x060168C3, // #2445.ExplAttrInfos(#90,OPT)
    0x060168E0, // #2446.ExplAttrInfos(#90,OPT)
    0x060168FD, // #2447.ExplAttrInfos(#1147,OPT)
    0x0601691C, // #2442.Attributes(#2443,#2444,#2445,#2446,#2447)
    0x0601694C, // #2448.Supertypes(#1264)
    0x06016964, // #2448.Composition(#1264,#976,#891,#2448,#98)
    0x06016991, // #2449.ExplAttrInfos(#498,OPT)
    0x0401ECDD, // #2450.ExplAttrInfos(#14,OPT)
    0x060169AF, // #2451.ExplAttrInfos(#122,OPT)
    0x060169CD, // #2448.Attributes(#2449,#2450,#2451)
    0x060169F1, // #2452.Supertypes(#1140)
    0x06016A09, // #2452.Composition(#2452,#1140)
    0x05019AE0, // #2453.ExplAttrInfos(#2454,REQ)
    0x06016A28, // #2455.ExplAttrInfos(#14,REQ)
    0x06016A45, // #2456.ExplAttrInfos(#14,OPT)
    0x06016A62, // #2457.ExplAttrInfos(#14,OPT)
    0x06016A7F, // #2452.Attributes(#2453,#2455,#2456,#2457)
    0x06016AA9, // #2458.Supertypes(#1140)
    0x06016AC1, // #2458.Composition(#1140,#2458)
    0x06016AE0, // #2459.ExplAttrInfos(#702,OPT)
    0x0002FE14, // #2458.Attributes(#2459)
    0x06016AFE, // #2460.Supertypes(#1574)
    0x06016B16, // #2460.Composition(#1452,#1574,#974,#976,#891,#2460,#975,#98)
    0x06016B53, // #2461.ExplAttrInfos(#504,OPT)
    0x06016B71, // #2462.ExplAttrInfos(#502,OPT)
    0x06016B8F, // #2460.Attributes(#2461,#2462)
    0x06016BAD, // #2463.Supertypes(#1577)
    0x06016BC5, // #2463.Composition(#1456,#1577,#1278,#891,#2463,#98,#1094,#1109)
    0x06016C05, // #2464.ExplAttrInfos(#504,REQ)
    0x03018F69, // #2463.Attributes(#2464)
    0x06016C23, // #2465.Supertypes(#1554)
    0x06016C3B, // #2465.Composition(#1273,#1290,#974,#1554,#976,#891,#2465,#975,#98)
    0x06016C7E, // #2466.ExplAttrInfos(#506,OPT)
    0x02019516, // #2465.Attributes(#2466)
    0x06016C9C, // #2467.Supertypes(#1557)
    0x06016CB4, // #2467.Composition(#1277,#1297,#1278,#1557,#891,#2467,#98,#1094,#1109)
    0x06016CFA, // #2468.ExplAttrInfos(#506,REQ)
    0x05019D61, // #2467.Attributes(#2468)
    0x06016D18, // #2469.Supertypes(#1560)
    0x06016D30, // #2469.Composition(#1273,#1290,#974,#1560,#976,#891,#2469,#975,#98)
    0x06016D73, // #2470.ExplAttrInfos(#508,OPT)
    0x05019DF5, // #2469.Attributes(#2470)
    0x06016D91, // #2471.Supertypes(#1563)
    0x06016DA9, // #2471.Composition(#1277,#1297,#1278,#1563,#891,#2471,#98,#1094,#1109)
    0x06016DEF, // #2472.ExplAttrInfos(#508,REQ)
    0x05019E70, // #2471.Attributes(#2472)
    0x06016E0D, // #2473.Supertypes(#1227)
    0x06016E25, // #2473.Composition(#2473,#807,#1227)
    0x06016E49, // #2474.ExplAttrInfos(#6,REQ)
    0x06016E65, // #2475.ExplAttrInfos(#6,REQ)
    0x06016E81, // #2476.ExplAttrInfos(#6,REQ)
    0x06016E9D, // #2477.ExplAttrInfos(#2478,REQ)
    0x06016EBC, // #2473.Attributes(#2474,#2475,#2476,#2477)
    0x06016EE6, // #2480.Supertypes(#733)
    0x06016EFD, // #2480.Composition(#733,#2480,#734)
    0x02019747, // #2481.ExplAttrInfos(#56,REQ)
    0x06016F20, // #2482.ExplAttrInfos(#56,REQ)
    0x03019348, // #2480.Attributes(#2481,#2482)
    0x06016F3D, // #2479.Supertypes(#2480)
    0x06016F55, // #2479.Composition(#733,#2479,#2480,#734)
    0x06016F7E, // #2483.ExplAttrInfos(#747,REQ)
    0x06016F9C, // #2479.Attributes(#2483)
    0x06016FB4, // #2484.Supertypes(#2086)
    0x06016FCC, // #2484.Composition(#974,#2086,#976,#891,#2484,#975,#98)
    0x06017003, // #2485.Supertypes(#1452)
    0x0601701B, // #2485.Composition(#1452,#974,#976,#891,#2485,#975,#98)
    0x06017052, // #2486.ExplAttrInfos(#510,OPT)
    0x06017070, // #2485.Attributes(#2486)
    0x06017088, // #2487.Supertypes(#2485)
    0x060170A0, // #2487.Composition(#1452,#974,#976,#891,#2485,#2487,#975,#98)
    0x060170DD, // #2488.Supertypes(#1456)
    0x060170F5, // #2488.Composition(#1456,#1278,#891,#2488,#98,#1094,#1109)
    0x0601712F, // #2489.ExplAttrInfos(#510,REQ)
    0x0401F56B, // #2488.Attributes(#2489)
    0x0601714D, // #2490.Supertypes(#736)
    0x06017164, // #2490.Composition(#733,#736,#2490,#734)
    0x0601718C, // #2491.ExplAttrInfos(#858,REQ)
    0x060171AA, // #2492.ExplAttrInfos(#87,REQ)
    0x060171C7, // #2493.DerivAttrInfos(#29)
    0x060171E1, // #2490.Attributes(#2491,#2492,#2493)
    0x06017205, // #1.Entities(#2257,#1313,#2260,#2262,#2264,#1177,#1282,#2266,#2275,#2278,#1028,#2280,#2284,#2290,#1025,#2295,#2297,#2305,#2311,#2317,#1026,#2321,#2328,#2334,#2338,#2341,#2344,#2346,#1033,#687,#2351,#2355,#2359,#2361,#2363,#2365,#2366,#2368,#2373,#2375,#2377,#718,#2379,#2381,#2383,#2385,#702,#2387,#2389,#976,#891,#979,#2391,#2397,#2399,#2401,#2404,#2408,#2412,#1181,#2420,#2422,#133,#2423,#1936,#2427,#2428,#2430,#101,#1382,#2432,#2435,#2437,#869,#2439,#2442,#2448,#105,#103,#2452,#1140,#2458,#2460,#2463,#2465,#2467,#2469,#2471,#2473,#732,#2479,#2480,#1799,#2484,#2485,#2487,#2488,#736,#1839,#2490)
    0x0601745D, // #2494.Supertypes(#736)
    0x06017474, // #2494.Composition(#733,#736,#2494,#734)
    0x0601749C, // #2495.ExplAttrInfos(#758,REQ)
    0x060174BA, // #2496.ExplAttrInfos(#87,REQ)
    0x060174D7, // #2497.ExplAttrInfos(#87,REQ)
    0x060174F4, // #2498.DerivAttrInfos(#29)
    0x0601750E, // #2494.Attributes(#2495,#2496,#2497,#2498)
    0x06017538, // #2499.Supertypes(#1177)
    0x06017550, // #2499.Composition(#1177,#2499,#734,#883)
    0x06017579, // #2500.ExplAttrInfos(#2501,REQ)
    0x0501A32D, // #2499.Attributes(#2500)
    0x06017598, // #2502.Supertypes(#756)
    0x060175AF, // #2502.Composition(#733,#756,#2502,#734)
    0x060175D7, // #2503.ExplAttrInfos(#743,REQ)
    0x060175F5, // #2504.ExplAttrInfos(#857,REQ)
    0x06017613, // #2502.Attributes(#2503,#2504)
    0x06017631, // #2505.Supertypes(#764)
    0x06017648, // #2505.Composition(#733,#2505,#734,#764,#765)
    0x06017675, // #2506.ExplAttrInfos(#13,OPT)
    0x06017692, // #2507.ExplAttrInfos(#2508,REQ)
    0x00030713, // #2509.ExplAttrInfos(#2510,OPT)
    0x060176B1, // #2505.Attributes(#2506,#2507,#2509)
    0x060176D5, // #2511.Supertypes(#857)
    0x060176EC, // #2511.Composition(#857,#858,#733,#2511,#734)
    0x06017719, // #2512.ExplAttrInfos(#2513,REQ)
    0x06017738, // #2511.Attributes(#2512)
    0x06017750, // #2514.Supertypes(#858)
    0x06017767, // #2514.Composition(#858,#733,#2514,#734)
    0x0601778F, // #2515.ExplAttrInfos(#732,REQ)
    0x060177AD, // #2516.ExplAttrInfos(#2517,OPT)
    0x060177CC, // #2518.ExplAttrInfos(#2519,OPT)
    0x010225BF, // #2520.ExplAttrInfos(#2521,OPT)
    0x060177EB, // #2514.Attributes(#2515,#2516,#2518,#2520)
    0x06017815, // #2522.Supertypes(#1146)
    0x0601782D, // #2522.Composition(#2522,#1146)
    0x0601784C, // #2523.Composition(#2523)
    0x06017865, // #2524.ExplAttrInfos(#14,REQ)
    0x06017882, // #2525.ExplAttrInfos(#122,OPT)
    0x010226FF, // #2526.ExplAttrInfos(#2527,REQ)
    0x060178A0, // #2528.ExplAttrInfos(#48,OPT)
    0x060178BD, // #2523.Attributes(#2524,#2525,#2526,#2528)
    0x060178E7, // #2529.Supertypes(#2523)
    0x060178FF, // #2529.Composition(#2523,#2529)
    0x0601791E, // #2530.ExplAttrInfos(#63,REQ)
    0x0601793B, // #2531.ExplAttrInfos(#63,REQ)
    0x06017958, // #2532.ExplAttrInfos(#63,REQ)
    0x06017975, // #2533.ExplAttrInfos(#2534,REQ)
    0x06017994, // #2529.Attributes(#2530,#2531,#2532,#2533)
    0x060179BE, // #2535.Supertypes(#1090)
    0x060179D6, // #2535.Composition(#976,#891,#2535,#1090,#98)
    0x06017A03, // #2536.ExplAttrInfos(#514,OPT)
    0x010228CE, // #2535.Attributes(#2536)
    0x06017A21, // #2537.Supertypes(#1093)
    0x06017A39, // #2537.Composition(#891,#2537,#98,#1094,#1093)
    0x06017A67, // #2538.ExplAttrInfos(#514,REQ)
    0x01022946, // #2537.Attributes(#2538)
    0x06017A85, // #2539.Supertypes(#2015)
    0x06017A9D, // #2539.Composition(#2015,#2539,#1146)
    0x06017AC2, // #2540.ExplAttrInfos(#1143,REQ)
    0x010229C2, // #2539.Attributes(#2540)
    0x06017AE1, // #2541.Supertypes(#1728)
    0x06017AF9, // #2541.Composition(#1728,#891,#2541,#98)
    0x06017B21, // #2542.Supertypes(#1728)
    0x06017B39, // #2542.Composition(#1728,#891,#2542,#98)
    0x06017B61, // #2543.Supertypes(#1264)
    0x06017B79, // #2543.Composition(#1264,#976,#891,#2543,#98)
    0x06017BA6, // #2544.ExplAttrInfos(#518,OPT)
    0x06017BC4, // #2545.ExplAttrInfos(#14,OPT)
    0x06017BE1, // #2546.ExplAttrInfos(#122,OPT)
    0x06017BFF, // #2543.Attributes(#2544,#2545,#2546)
    0x06017C23, // #2547.Supertypes(#820)
    0x06017C3A, // #2547.Composition(#820,#2547)
    0x06017C58, // #2548.ExplAttrInfos(#48,OPT)
    0x06017C75, // #2549.ExplAttrInfos(#48,OPT)
    0x06017C92, // #2550.ExplAttrInfos(#702,OPT)
    0x06017CB0, // #2547.Attributes(#2548,#2549,#2550)
    0x06017CD4, // #2551.Supertypes(#2054)
    0x06017CEC, // #2551.Composition(#974,#1929,#2054,#976,#891,#975,#2551,#98)
    0x06017D29, // #2552.ExplAttrInfos(#522,OPT)
    0x01022C38, // #2551.Attributes(#2552)
    0x06017D47, // #2554.Supertypes(#1639)
    0x06017D5F, // #2554.Composition(#1639,#1146,#2554)
    0x06017D84, // #2553.Supertypes(#2554)
    0x06017D9C, // #2553.Composition(#1639,#1146,#2553,#2554)
    0x06017DC7, // #2555.ExplAttrInfos(#696,OPT)
    0x06017DE5, // #2556.ExplAttrInfos(#696,OPT)
    0x06017E03, // #2557.ExplAttrInfos(#721,OPT)
    0x06017E21, // #2558.ExplAttrInfos(#696,OPT)
    0x06017E3F, // #2553.Attributes(#2555,#2556,#2557,#2558)
    0x06017E69, // #2559.Supertypes(#1357)
    0x06017E81, // #2559.Composition(#2559,#1357)
    0x06017EA0, // #2560.ExplAttrInfos(#1639,REQ)
    0x06017EBF, // #2561.ExplAttrInfos(#1639,REQ)
    0x06017EDE, // #2562.ExplAttrInfos(#122,OPT)
    0x06017EFC, // #2559.Attributes(#2560,#2561,#2562)
    0x06017F20, // #2563.Supertypes(#2554)
    0x06017F38, // #2563.Composition(#1639,#1146,#2563,#2554)
    0x06017F63, // #2564.ExplAttrInfos(#2565,OPT)
    0x06017F82, // #2567.Supertypes(#1146)
    0x06017F9A, // #2567.Composition(#1146,#2567)
    0x06017FB9, // #2568.ExplAttrInfos(#14,REQ)
    0x06017FD6, // #2569.ExplAttrInfos(#2570,REQ)
    0x06017FF5, // #2571.ExplAttrInfos(#721,OPT)
    0x06018013, // #2567.Attributes(#2568,#2569,#2571)
    0x06018037, // #2566.ExplAttrInfos(#2567,OPT)
    0x06018056, // #2563.Attributes(#2564,#2566)
    0x06018074, // #2572.Supertypes(#2554)
    0x0601808C, // #2572.Composition(#1639,#1146,#2572,#2554)
    0x060180B7, // #2573.ExplAttrInfos(#2574,OPT)
    0x060180D6, // #2575.ExplAttrInfos(#721,OPT)
    0x060180F4, // #2572.Attributes(#2573,#2575)
    0x06018112, // #2576.Supertypes(#2554)
    0x0601812A, // #2576.Composition(#1639,#1146,#2576,#2554)
    0x06018155, // #2577.ExplAttrInfos(#122,OPT)
    0x06018173, // #2578.ExplAttrInfos(#1085,OPT)
    0x0102312F, // #2576.Attributes(#2577,#2578)
    0x06018192, // #2579.Supertypes(#96)
    0x060181A8, // #2579.Composition(#97,#2579,#96,#98)
    0x060181CD, // #2580.ExplAttrInfos(#2581,REQ)
    0x060181EC, // #2579.Attributes(#2580)
    0x06018204, // #2582.Supertypes(#1647)
    0x0601821C, // #2582.Composition(#97,#2582,#1647,#98)
    0x06018243, // #2583.ExplAttrInfos(#524,OPT)
    0x06018261, // #2584.ExplAttrInfos(#48,OPT)
    0x00031598, // #2585.ExplAttrInfos(#2586,REQ)
    0x0601827E, // #2582.Attributes(#2583,#2584,#2585)
    0x060182A2, // #2587.Supertypes(#2554)
    0x060182BA, // #2587.Composition(#1639,#1146,#2587,#2554)
    0x060182E5, // #2588.ExplAttrInfos(#696,OPT)
    0x06018303, // #2589.ExplAttrInfos(#721,OPT)
    0x0201A98A, // #2587.Attributes(#2588,#2589)
    0x06018321, // #2590.Supertypes(#2554)
    0x06018339, // #2590.Composition(#1639,#1146,#2590,#2554)
    0x06018364, // #2591.ExplAttrInfos(#2592,OPT)
    0x06018383, // #2593.ExplAttrInfos(#2594,OPT)
    0x0501B712, // #2595.ExplAttrInfos(#122,OPT)
    0x060183A2, // #2596.ExplAttrInfos(#721,OPT)
    0x060183C0, // #2597.ExplAttrInfos(#721,OPT)
    0x060183DE, // #2598.ExplAttrInfos(#324,OPT)
    0x060183FC, // #2590.Attributes(#2591,#2593,#2595,#2596,#2597,#2598)
    0x06018432, // #2599.Supertypes(#1293)
    0x0601844A, // #2599.Composition(#1273,#1290,#974,#1293,#976,#891,#975,#2599,#98)
    0x0601848D, // #2600.ExplAttrInfos(#528,OPT)
    0x0201AB46, // #2599.Attributes(#2600)
    0x060184AB, // #2601.Supertypes(#1272)
    0x060184C3, // #2601.Composition(#1272,#1273,#974,#976,#891,#975,#2601,#98)
    0x06018500, // #2602.ExplAttrInfos(#526,OPT)
    0x010235C0, // #2601.Attributes(#2602)
    0x0601851E, // #2603.Supertypes(#1276)
    0x06018536, // #2603.Composition(#1276,#1277,#1278,#891,#2603,#98,#1094,#1109)
    0x06018576, // #2604.ExplAttrInfos(#526,REQ)
    0x06018594, // #2603.Attributes(#2604)
    0x060185AC, // #2605.Supertypes(#1296)
    0x060185C4, // #2605.Composition(#1277,#1297,#1278,#1296,#891,#2605,#98,#1094,#1109)
    0x0601860A, // #2606.ExplAttrInfos(#528,REQ)
    0x00031974, // #2605.Attributes(#2606)
    0x06018628, // #2607.Supertypes(#975)
    0x0601863F, // #2607.Composition(#976,#891,#975,#2607,#98)
    0x0601866B, // #2608.ExplAttrInfos(#482,REQ)
    0x04020B69, // #2609.ExplAttrInfos(#14,OPT)
    0x04020B86, // #2607.Attributes(#2608,#2609)
    0x06018689, // #2610.Supertypes(#1661)
    0x060186A1, // #2610.Composition(#1273,#1290,#974,#1661,#976,#891,#975,#2610,#98)
    0x060186E4, // #2611.ExplAttrInfos(#530,OPT)
    0x06018702, // #2610.Attributes(#2611)
    0x0601871A, // #2612.Supertypes(#1664)
    0x06018732, // #2612.Composition(#1277,#1297,#1278,#1664,#891,#2612,#98,#1094,#1109)
    0x06018778, // #2613.ExplAttrInfos(#530,REQ)
    0x0201AE59, // #2612.Attributes(#2613)
    0x06018796, // #2614.Supertypes(#2458)
    0x060187AE, // #2614.Composition(#1140,#2458,#2614)
    0x060187D3, // #2615.ExplAttrInfos(#11,REQ)
    0x060187F0, // #2616.ExplAttrInfos(#14,OPT)
    0x0601880D, // #2614.Attributes(#2615,#2616)
    0x0601882B, // #2617.Supertypes(#2458)
    0x06018843, // #2617.Composition(#1140,#2458,#2617)
    0x06018868, // #2618.ExplAttrInfos(#22,REQ)
    0x06018885, // #2619.ExplAttrInfos(#14,OPT)
    0x060188A2, // #2617.Attributes(#2618,#2619)
    0x060188C0, // #2620.Supertypes(#2458)
    0x060188D8, // #2620.Composition(#1140,#2458,#2620)
    0x060188FD, // #2621.ExplAttrInfos(#56,REQ)
    0x0301A9F7, // #2622.ExplAttrInfos(#14,OPT)
    0x0501BB5B, // #2620.Attributes(#2621,#2622)
    0x0601891A, // #2623.Supertypes(#2458)
    0x06018932, // #2623.Composition(#1140,#2458,#2623)
    0x06018957, // #2624.ExplAttrInfos(#193,REQ)
    0x06018975, // #2625.ExplAttrInfos(#14,OPT)
    0x06018992, // #2623.Attributes(#2624,#2625)
    0x060189B0, // #2626.Supertypes(#2458)
    0x060189C8, // #2626.Composition(#1140,#2458,#2626)
    0x060189ED, // #2627.ExplAttrInfos(#197,REQ)
    0x06018A0B, // #2628.ExplAttrInfos(#14,OPT)
    0x0201B0CB, // #2626.Attributes(#2627,#2628)
    0x06018A28, // #2629.Supertypes(#2458)
    0x06018A40, // #2629.Composition(#1140,#2458,#2629)
    0x06018A65, // #2630.ExplAttrInfos(#71,REQ)
    0x06018A82, // #2631.ExplAttrInfos(#14,OPT)
    0x00031F27, // #2629.Attributes(#2630,#2631)
    0x06018A9F, // #2632.Supertypes(#1452)
    0x06018AB7, // #2632.Composition(#1452,#974,#976,#891,#975,#2632,#98)
    0x06018AEE, // #2633.ExplAttrInfos(#532,OPT)
    0x040210F4, // #2632.Attributes(#2633)
    0x06018B0C, // #2634.Supertypes(#1456)
    0x06018B24, // #2634.Composition(#1456,#1278,#891,#2634,#98,#1094,#1109)
    0x06018B5E, // #2635.ExplAttrInfos(#532,REQ)
    0x04021179, // #2634.Attributes(#2635)
    0x06018B7C, // #2636.Supertypes(#1452)
    0x06018B94, // #2636.Composition(#1452,#974,#976,#891,#975,#2636,#98)
    0x06018BCB, // #2637.ExplAttrInfos(#534,OPT)
    0x040211FE, // #2636.Attributes(#2637)
    0x06018BE9, // #2638.Supertypes(#1456)
    0x06018C01, // #2638.Composition(#1456,#1278,#891,#2638,#98,#1094,#1109)
    0x06018C3B, // #2639.ExplAttrInfos(#534,REQ)
    0x0301ACE5, // #2638.Attributes(#2639)
    0x06018C59, // #2640.Supertypes(#1509)
    0x06018C71, // #2640.Composition(#1509,#976,#891,#975,#2640,#98,#994,#1190)
    0x06018CAE, // #2641.ExplAttrInfos(#538,OPT)
    0x0301AD5D, // #2640.Attributes(#2641)
    0x06018CCC, // #2642.Supertypes(#1452)
    0x06018CE4, // #2642.Composition(#1452,#974,#976,#891,#975,#2642,#98)
    0x06018D1B, // #2643.ExplAttrInfos(#542,OPT)
    0x0301ADD9, // #2642.Attributes(#2643)
    0x06018D39, // #2644.Supertypes(#1452)
    0x06018D51, // #2644.Composition(#1452,#974,#976,#891,#975,#2644,#98)
    0x06018D88, // #2645.ExplAttrInfos(#540,OPT)
    0x06018DA6, // #2644.Attributes(#2645)
    0x06018DBE, // #2646.Supertypes(#1456)
    0x06018DD6, // #2646.Composition(#1456,#1278,#891,#2646,#98,#1094,#1109)
    0x06018E10, // #2647.ExplAttrInfos(#540,REQ)
    0x06018E2E, // #2646.Attributes(#2647)
    0x06018E46, // #2648.Supertypes(#1456)
    0x06018E5E, // #2648.Composition(#1456,#1278,#891,#2648,#98,#1094,#1109)
    0x06018E98, // #2649.ExplAttrInfos(#542,REQ)
    0x06018EB6, // #2648.Attributes(#2649)
    0x06018ECE, // #2650.Supertypes(#1416)
    0x06018EE6, // #2650.Composition(#857,#1406,#1416,#858,#733,#2650,#734)
    0x06018F1F, // #2651.ExplAttrInfos(#2652,REQ)
    0x06018F3E, // #2653.DerivAttrInfos(#2654)
    0x06018F5A, // #2650.Attributes(#2651,#2653)
    0x06018F78, // #2655.Supertypes(#1439)
    0x06018F90, // #2655.Composition(#1424,#1423,#1439,#733,#2655,#734,#758)
    0x06018FCA, // #2656.ExplAttrInfos(#2658,REQ)
    0x06018FE9, // #2659.DerivAttrInfos(#2661)
    0x06019005, // #2655.Attributes(#2656,#2659)
    0x06019023, // #2663.Supertypes(#1382)
    0x0601903B, // #2663.Composition(#1382,#1143,#2663)
    0x04021617, // #2664.ExplAttrInfos(#90,REQ)
    0x06019060, // #2665.ExplAttrInfos(#90,REQ)
    0x0601907D, // #2663.Attributes(#2664,#2665)
    0x0601909B, // #2662.Supertypes(#2663)
    0x060190B3, // #2662.Composition(#1382,#1143,#2662,#2663)
    0x060190DE, // #2666.ExplAttrInfos(#90,REQ)
    0x060190FB, // #2667.ExplAttrInfos(#82,OPT)
    0x06019118, // #2668.ExplAttrInfos(#82,OPT)
    0x06019135, // #2662.Attributes(#2666,#2667,#2668)
    0x06019159, // #2669.Supertypes(#753)
    0x06019170, // #2669.Composition(#753,#733,#2669,#734)
    0x06019198, // #2670.ExplAttrInfos(#90,REQ)
    0x060191B5, // #2671.ExplAttrInfos(#90,REQ)
    0x060191D2, // #2672.ExplAttrInfos(#90,REQ)
    0x060191EF, // #2669.Attributes(#2670,#2671,#2672)
    0x06019213, // #2673.Supertypes(#1424)
    0x0601922B, // #2673.Composition(#1424,#733,#2673,#734,#758)
    0x06019259, // #2674.ExplAttrInfos(#758,REQ)
    0x06019277, // #2675.ExplAttrInfos(#87,REQ)
    0x06019294, // #2676.ExplAttrInfos(#87,REQ)
    0x060192B1, // #2677.ExplAttrInfos(#87,REQ)
    0x060192CE, // #2678.ExplAttrInfos(#87,REQ)
    0x060192EB, // #2679.ExplAttrInfos(#13,REQ)
    0x06019308, // #2680.ExplAttrInfos(#13,REQ)
    0x06019325, // #2673.Attributes(#2674,#2675,#2676,#2677,#2678,#2679,#2680)
    0x06019361, // #2681.Composition(#2681)
    0x0601937A, // #2682.ExplAttrInfos(#544,REQ)
    0x06019398, // #2683.ExplAttrInfos(#2684,OPT)
    0x060193B7, // #2685.ExplAttrInfos(#2686,OPT)
    0x060193D6, // #2687.ExplAttrInfos(#2688,OPT)
    0x060193F5, // #2689.ExplAttrInfos(#6,OPT)
    0x06019411, // #2690.ExplAttrInfos(#6,OPT)
    0x0601942D, // #2691.ExplAttrInfos(#6,OPT)
    0x06019449, // #2693.Composition(#2693)
    0x06019462, // #2694.ExplAttrInfos(#192,REQ)
    0x06019480, // #2695.ExplAttrInfos(#192,REQ)
    0x01024581, // #2693.Attributes(#2694,#2695)
    0x0601949E, // #2692.ExplAttrInfos(#2696,OPT)
    0x060194BD, // #2681.Attributes(#2682,#2683,#2685,#2687,#2689,#2690,#2691,#2692)
    0x060194FF, // #2697.Supertypes(#1314)
    0x06019517, // #2697.Composition(#976,#891,#1314,#975,#2697,#98)
    0x06019549, // #2698.ExplAttrInfos(#546,OPT)
    0x06019567, // #2699.ExplAttrInfos(#56,OPT)
    0x06019584, // #2697.Attributes(#2698,#2699)
    0x060195A2, // #2700.Supertypes(#1067)
    0x060195BA, // #2700.Composition(#2700,#1067)
    0x060195D9, // #2701.ExplAttrInfos(#193,REQ)
    0x060195F7, // #2703.Composition(#2703)
    0x06019610, // #2704.ExplAttrInfos(#2705,REQ)
    0x0601962F, // #2703.Attributes(#2704)
    0x06019647, // #2702.ExplAttrInfos(#2706,REQ)
    0x06019666, // #2700.Attributes(#2701,#2702)
    0x06019684, // #2707.Supertypes(#1931)
    0x0601969C, // #2707.Composition(#1452,#1931,#974,#976,#891,#975,#2707,#98)
    0x060196D9, // #2708.ExplAttrInfos(#550,OPT)
    0x060196F7, // #2707.Attributes(#2708)
    0x0601970F, // #2709.Supertypes(#2522)
    0x06019727, // #2709.Composition(#2522,#1146,#2709)
    0x0601974C, // #2710.ExplAttrInfos(#11,REQ)
    0x06019769, // #2711.ExplAttrInfos(#14,REQ)
    0x06019786, // #2712.ExplAttrInfos(#554,OPT)
    0x04021D11, // #2713.ExplAttrInfos(#56,OPT)
    0x060197A4, // #2714.ExplAttrInfos(#90,OPT)
    0x060197C1, // #2715.ExplAttrInfos(#22,OPT)
    0x060197DE, // #2709.Attributes(#2710,#2711,#2712,#2713,#2714,#2715)
    0x06019814, // #2716.Supertypes(#1880)
    0x0601982C, // #2716.Composition(#1880,#97,#96,#2716,#98)
    0x06019857, // #2717.ExplAttrInfos(#14,OPT)
    0x06019874, // #2719.Supertypes(#2522)
    0x0601988C, // #2719.Composition(#2522,#1146,#2719)
    0x060198B1, // #2720.ExplAttrInfos(#56,REQ)
    0x060198CE, // #2721.ExplAttrInfos(#56,REQ)
    0x060198EB, // #2722.ExplAttrInfos(#56,OPT)
    0x06019908, // #2723.ExplAttrInfos(#552,REQ)
    0x06019926, // #2725.Supertypes(#2522)
    0x0601993E, // #2725.Composition(#2522,#1146,#2725)
    0x06019963, // #2726.ExplAttrInfos(#572,REQ)
    0x06019981, // #2727.ExplAttrInfos(#1143,REQ)
    0x060199A0, // #2728.ExplAttrInfos(#1143,OPT)
    0x060199BF, // #2725.Attributes(#2726,#2727,#2728)
    0x0301BC92, // #2724.ExplAttrInfos(#2725,REQ)
    0x060199E3, // #2729.ExplAttrInfos(#2730,REQ)
    0x06019A02, // #2719.Attributes(#2720,#2721,#2722,#2723,#2724,#2729)
    0x06019A38, // #2718.ExplAttrInfos(#2731,REQ)
    0x0201BFBB, // #2716.Attributes(#2717,#2718)
    0x06019A57, // #2733.Supertypes(#1525)
    0x06019A6F, // #2733.Composition(#974,#1525,#976,#891,#975,#2733,#98)
    0x06019AA6, // #2734.ExplAttrInfos(#14,OPT)
    0x01024D94, // #2733.Attributes(#2734)
    0x06019AC3, // #2732.Supertypes(#2733)
    0x06019ADB, // #2732.Composition(#974,#1525,#976,#891,#975,#2732,#2733,#98)
    0x06019B18, // #2735.ExplAttrInfos(#90,OPT)
    0x06019B35, // #2736.ExplAttrInfos(#11,OPT)
    0x06019B52, // #2737.ExplAttrInfos(#90,OPT)
    0x06019B6F, // #2738.ExplAttrInfos(#556,OPT)
    0x06019B8D, // #2739.ExplAttrInfos(#554,OPT)
    0x06019BAB, // #2732.Attributes(#2735,#2736,#2737,#2738,#2739)
    0x06019BDB, // #2741.Supertypes(#1528)
    0x06019BF3, // #2741.Composition(#1528,#1278,#891,#2741,#98,#1094,#1109)
    0x06019C2D, // #2740.Supertypes(#2741)
    0x06019C45, // #2740.Composition(#1528,#1278,#891,#2740,#2741,#98,#1094,#1109)
    0x06019C85, // #2742.ExplAttrInfos(#556,REQ)
    0x0402225E, // #2743.ExplAttrInfos(#90,OPT)
    0x06019CA3, // #2744.ExplAttrInfos(#11,OPT)
    0x04022298, // #2745.ExplAttrInfos(#90,OPT)
    0x06019CC0, // #2746.ExplAttrInfos(#554,OPT)
    0x01025268, // #2747.ExplAttrInfos(#14,OPT)
    0x06019CDE, // #2748.ExplAttrInfos(#2749,OPT)
    0x06019CFD, // #2740.Attributes(#2742,#2743,#2744,#2745,#2746,#2747,#2748)
    0x06019D39, // #2750.Supertypes(#2733)
    0x06019D51, // #2750.Composition(#974,#1525,#976,#891,#975,#2733,#2750,#98)
    0x06019D8E, // #2751.ExplAttrInfos(#90,OPT)
    0x06019DAB, // #2752.ExplAttrInfos(#90,OPT)
    0x04022405, // #2753.ExplAttrInfos(#90,OPT)
    0x04022422, // #2754.ExplAttrInfos(#90,OPT)
    0x06019DC8, // #2755.ExplAttrInfos(#11,OPT)
    0x06019DE5, // #2756.ExplAttrInfos(#11,OPT)
    0x06019E02, // #2757.ExplAttrInfos(#90,OPT)
    0x06019E1F, // #2758.ExplAttrInfos(#90,OPT)
    0x06019E3C, // #2759.ExplAttrInfos(#558,OPT)
    0x06019E5A, // #2750.Attributes(#2751,#2752,#2753,#2754,#2755,#2756,#2757,#2758,#2759)
    0x06019EA2, // #2760.Supertypes(#2741)
    0x06019EBA, // #2760.Composition(#1528,#1278,#891,#2741,#2760,#98,#1094,#1109)
    0x06019EFA, // #2761.ExplAttrInfos(#558,REQ)
    0x06019F18, // #2762.ExplAttrInfos(#90,OPT)
    0x06019F35, // #2763.ExplAttrInfos(#90,OPT)
    0x06019F52, // #2764.ExplAttrInfos(#90,OPT)
    0x06019F6F, // #2765.ExplAttrInfos(#90,OPT)
    0x06019F8C, // #2766.ExplAttrInfos(#11,OPT)
    0x06019FA9, // #2767.ExplAttrInfos(#11,OPT)
    0x06019FC6, // #2768.ExplAttrInfos(#90,OPT)
    0x0501D457, // #2769.ExplAttrInfos(#90,OPT)
    0x06019FE3, // #2770.ExplAttrInfos(#14,OPT)
    0x0601A000, // #2771.ExplAttrInfos(#2772,OPT)
    0x0601A01F, // #2760.Attributes(#2761,#2762,#2763,#2764,#2765,#2766,#2767,#2768,#2769,#2770,#2771)
    0x0601A073, // #2775.Supertypes(#98)
    0x0601A089, // #2775.Composition(#2775,#98)
    0x0601A0A6, // #2774.Supertypes(#2775)
    0x0601A0BE, // #2774.Composition(#2775,#2774,#98)
    0x0601A0E1, // #2773.Supertypes(#2774)
    0x0601A0F9, // #2773.Composition(#2773,#2775,#2774,#98)
    0x0601A122, // #2776.ExplAttrInfos(#891,REQ)
    0x040227AE, // #2777.ExplAttrInfos(#2778,REQ)
    0x0601A140, // #2773.Attributes(#2776,#2777)
    0x0601A15E, // #2779.Supertypes(#2775)
    0x0601A176, // #2779.Composition(#2779,#2775,#98)
    0x0601A199, // #2780.ExplAttrInfos(#2781,REQ)
    0x0601A1B8, // #2782.ExplAttrInfos(#482,OPT)
    0x0601A1D6, // #2779.Attributes(#2780,#2782)
    0x0601A1F4, // #2783.Supertypes(#2779)
    0x0601A20C, // #2783.Composition(#2779,#2783,#2775,#98)
    0x0601A235, // #2784.ExplAttrInfos(#1269,REQ)
    0x0601A254, // #2785.ExplAttrInfos(#116,OPT)
    0x0601A272, // #2783.Attributes(#2784,#2785)
    0x0601A290, // #2786.Supertypes(#2779)
    0x0601A2A8, // #2786.Composition(#2779,#2786,#2775,#98)
    0x0601A2D1, // #2787.ExplAttrInfos(#1264,REQ)
    0x0201D066, // #2786.Attributes(#2787)
    0x0601A2F0, // #2788.Supertypes(#2779)
    0x0601A308, // #2788.Composition(#2779,#2788,#2775,#98)
    0x0601A331, // #2789.ExplAttrInfos(#1196,REQ)
    0x01025C29, // #2788.Attributes(#2789)
    0x0601A350, // #2790.Supertypes(#2788)
    0x0601A368, // #2790.Composition(#2779,#2788,#2790,#2775,#98)
    0x0601A397, // #2791.ExplAttrInfos(#83,REQ)
    0x01025CA4, // #2790.Attributes(#2791)
    0x0601A3B4, // #2792.Supertypes(#2779)
    0x0601A3CC, // #2792.Composition(#2779,#2792,#2775,#98)
    0x0601A3F5, // #2793.ExplAttrInfos(#1102,REQ)
    0x0601A414, // #2794.ExplAttrInfos(#687,OPT)
    0x0601A432, // #2792.Attributes(#2793,#2794)
    0x0601A450, // #2795.Supertypes(#2779)
    0x0601A468, // #2795.Composition(#2779,#2795,#2775,#98)
    0x0601A491, // #2796.ExplAttrInfos(#1114,REQ)
    0x0601A4B0, // #2795.Attributes(#2796)
    0x0601A4C8, // #2797.Supertypes(#2779)
    0x0601A4E0, // #2797.Composition(#2779,#2797,#2775,#98)
    0x0601A509, // #2798.ExplAttrInfos(#1165,REQ)
    0x0601A528, // #2797.Attributes(#2798)
    0x0601A540, // #2799.Supertypes(#2775)
    0x0601A558, // #2799.Composition(#2799,#2775,#98)
    0x0601A57B, // #2800.ExplAttrInfos(#2801,REQ)
    0x04022BD8, // #2799.Attributes(#2800)
    0x0601A59A, // #1.Entities(#2494,#2499,#2502,#2505,#2511,#2514,#1864,#1314,#1515,#809,#847,#810,#2522,#1880,#1248,#807,#2523,#2529,#924,#2535,#2537,#1090,#975,#1103,#982,#1143,#2539,#2541,#2542,#2543,#2547,#2551,#1639,#1146,#2553,#97,#2559,#2563,#2567,#2572,#2576,#2579,#96,#2582,#2587,#2590,#1646,#1647,#2599,#2601,#2603,#2605,#2607,#2610,#2612,#2614,#2617,#2620,#1979,#2623,#2626,#2629,#2632,#2634,#2636,#2638,#2640,#2642,#2644,#2646,#2648,#2650,#2655,#2662,#2663,#2669,#2673,#2681,#722,#2697,#2700,#2707,#2709,#2716,#2732,#2740,#2733,#2741,#2750,#2760,#2773,#2779,#2783,#2786,#2788,#2790,#2792,#2795,#2797,#2799)
    0x0601A7F3, // #2802.Supertypes(#2799)
    0x0601A80B, // #2802.Composition(#2799,#2802,#2775,#98)
    0x0601A834, // #2803.ExplAttrInfos(#1117,REQ)
    0x0601A853, // #2802.Attributes(#2803)
    0x0601A86B, // #2804.Supertypes(#2799)
    0x0601A883, // #2804.Composition(#2799,#2804,#2775,#98)
    0x0601A8AC, // #2805.ExplAttrInfos(#805,REQ)
    0x01025FEE, // #2804.Attributes(#2805)
    0x0601A8CA, // #2806.Supertypes(#2799)
    0x0601A8E2, // #2806.Composition(#2799,#2806,#2775,#98)
    0x0601A90B, // #2807.ExplAttrInfos(#14,OPT)
    0x0601A928, // #2808.ExplAttrInfos(#1127,REQ)
    0x0601A947, // #2806.Attributes(#2807,#2808)
    0x0601A965, // #2809.Supertypes(#2799)
    0x0601A97D, // #2809.Composition(#2799,#2809,#2775,#98)
    0x0601A9A6, // #2810.ExplAttrInfos(#917,REQ)
    0x0201D5F6, // #2809.Attributes(#2810)
    0x0601A9C4, // #2811.Supertypes(#2799)
    0x0601A9DC, // #2811.Composition(#2799,#2811,#2775,#98)
    0x0601AA05, // #2812.ExplAttrInfos(#1012,REQ)
    0x0201D67E, // #2811.Attributes(#2812)
    0x0601AA24, // #2813.Supertypes(#2799)
    0x0601AA3C, // #2813.Composition(#2799,#2813,#2775,#98)
    0x0601AA65, // #2814.ExplAttrInfos(#1035,REQ)
    0x0601AA84, // #2813.Attributes(#2814)
    0x0601AA9C, // #2815.Supertypes(#2799)
    0x0601AAB4, // #2815.Composition(#2799,#2815,#2775,#98)
    0x0601AADD, // #2816.ExplAttrInfos(#1143,REQ)
    0x0601AAFC, // #2815.Attributes(#2816)
    0x0601AB14, // #2817.Supertypes(#2775)
    0x0601AB2C, // #2817.Composition(#2775,#2817,#98)
    0x0601AB4F, // #2818.Supertypes(#2817)
    0x0601AB67, // #2818.Composition(#2775,#2817,#2818,#98)
    0x0601AB90, // #2819.ExplAttrInfos(#1671,OPT)
    0x0601ABAF, // #2820.ExplAttrInfos(#974,REQ)
    0x0601ABCD, // #2821.ExplAttrInfos(#974,REQ)
    0x0601ABEB, // #2818.Attributes(#2819,#2820,#2821)
    0x0601AC0F, // #2822.Supertypes(#2818)
    0x0601AC27, // #2822.Composition(#2775,#2817,#2818,#2822,#98)
    0x0601AC56, // #2823.ExplAttrInfos(#2824,REQ)
    0x0601AC75, // #2825.ExplAttrInfos(#2826,REQ)
    0x0601AC94, // #2827.ExplAttrInfos(#294,REQ)
    0x0601ACB2, // #2828.ExplAttrInfos(#294,REQ)
    0x0601ACD0, // #2822.Attributes(#2823,#2825,#2827,#2828)
    0x0601ACFA, // #2829.Supertypes(#2817)
    0x0601AD12, // #2829.Composition(#2775,#2817,#2829,#98)
    0x0601AD3B, // #2830.ExplAttrInfos(#1864,REQ)
    0x0601AD5A, // #2831.ExplAttrInfos(#1273,REQ)
    0x0601AD79, // #2829.Attributes(#2830,#2831)
    0x0601AD97, // #2832.Supertypes(#2817)
    0x0601ADAF, // #2832.Composition(#2775,#2817,#2832,#98)
    0x0601ADD8, // #2833.ExplAttrInfos(#1864,REQ)
    0x0601ADF7, // #2834.ExplAttrInfos(#1864,REQ)
    0x0601AE16, // #2835.ExplAttrInfos(#974,OPT)
    0x0601AE34, // #2832.Attributes(#2833,#2834,#2835)
    0x0601AE58, // #2836.Supertypes(#2817)
    0x0601AE70, // #2836.Composition(#2775,#2817,#2836,#98)
    0x0601AE99, // #2837.ExplAttrInfos(#1203,REQ)
    0x0601AEB8, // #2839.Supertypes(#975)
    0x0601AECF, // #2839.Composition(#976,#891,#975,#98,#2839)
    0x0601AEFB, // #2841.Composition(#2841)
    0x0601AF14, // #2842.ExplAttrInfos(#14,OPT)
    0x010267C1, // #2841.Attributes(#2842)
    0x0601AF31, // #2840.ExplAttrInfos(#2841,REQ)
    0x0601AF50, // #2843.ExplAttrInfos(#426,REQ)
    0x0601AF6E, // #2839.Attributes(#2840,#2843)
    0x0601AF8C, // #2838.ExplAttrInfos(#2839,REQ)
    0x0601AFAB, // #2836.Attributes(#2837,#2838)
    0x0601AFC9, // #2844.Supertypes(#2817)
    0x0601AFE1, // #2844.Composition(#2775,#2817,#2844,#98)
    0x0601B00A, // #2846.Supertypes(#1201)
    0x0601B022, // #2846.Composition(#976,#891,#975,#98,#1201,#2846)
    0x0601B054, // #2845.ExplAttrInfos(#2846,REQ)
    0x0601B073, // #2848.Supertypes(#1201)
    0x0601B08B, // #2848.Composition(#976,#891,#975,#98,#2848,#1201)
    0x0601B0BD, // #2849.ExplAttrInfos(#1477,OPT)
    0x0301D50A, // #2848.Attributes(#2849)
    0x0601B0DC, // #2847.ExplAttrInfos(#2848,REQ)
    0x0601B0FB, // #2850.ExplAttrInfos(#1477,OPT)
    0x0601B11A, // #2851.ExplAttrInfos(#2038,OPT)
    0x0601B139, // #2852.ExplAttrInfos(#56,OPT)
    0x0601B156, // #2853.ExplAttrInfos(#743,OPT)
    0x0601B174, // #2844.Attributes(#2845,#2847,#2850,#2851,#2852,#2853)
    0x0601B1AA, // #2854.Supertypes(#2844)
    0x0601B1C2, // #2854.Composition(#2775,#2817,#2844,#2854,#98)
    0x0601B1F1, // #2855.ExplAttrInfos(#1671,REQ)
    0x0601B210, // #2854.Attributes(#2855)
    0x0601B228, // #2856.Supertypes(#2818)
    0x0601B240, // #2856.Composition(#2775,#2817,#2818,#2856,#98)
    0x0501E625, // #2857.ExplAttrInfos(#2858,REQ)
    0x0601B26F, // #2859.ExplAttrInfos(#14,OPT)
    0x0601B28C, // #2856.Attributes(#2857,#2859)
    0x0601B2AA, // #2860.Supertypes(#2817)
    0x0601B2C2, // #2860.Composition(#2775,#2817,#2860,#98)
    0x0601B2EB, // #2861.ExplAttrInfos(#2862,REQ)
    0x0601B30A, // #2863.ExplAttrInfos(#994,REQ)
    0x0601B328, // #2860.Attributes(#2861,#2863)
    0x0601B346, // #2864.Supertypes(#2817)
    0x0601B35E, // #2864.Composition(#2775,#2817,#2864,#98)
    0x0601B387, // #2865.ExplAttrInfos(#974,REQ)
    0x0601B3A5, // #2866.ExplAttrInfos(#2867,REQ)
    0x0601B3C4, // #2864.Attributes(#2865,#2866)
    0x0601B3E2, // #2868.Supertypes(#2817)
    0x0601B3FA, // #2868.Composition(#2775,#2817,#2868,#98)
    0x0601B423, // #2869.ExplAttrInfos(#1189,REQ)
    0x0501E93A, // #2870.ExplAttrInfos(#2871,REQ)
    0x0501E959, // #2868.Attributes(#2869,#2870)
    0x0601B442, // #2872.Supertypes(#2775)
    0x0601B45A, // #2872.Composition(#2775,#2872,#98)
    0x0601B47D, // #2873.ExplAttrInfos(#1728,REQ)
    0x0601B49C, // #2874.ExplAttrInfos(#2875,REQ)
    0x0601B4BB, // #2872.Attributes(#2873,#2874)
    0x0601B4D9, // #2876.Supertypes(#2775)
    0x0601B4F1, // #2876.Composition(#2775,#2876,#98)
    0x0601B514, // #2877.Supertypes(#2876)
    0x0601B52C, // #2877.Composition(#2775,#2876,#2877,#98)
    0x0601B555, // #2878.ExplAttrInfos(#2879,REQ)
    0x0601B574, // #2880.ExplAttrInfos(#976,REQ)
    0x0601B592, // #2877.Attributes(#2878,#2880)
    0x0601B5B0, // #2881.Supertypes(#2876)
    0x0601B5C8, // #2881.Composition(#2775,#2876,#2881,#98)
    0x0601B5F1, // #2882.ExplAttrInfos(#2883,REQ)
    0x0601B610, // #2884.ExplAttrInfos(#1116,REQ)
    0x0601B62F, // #2881.Attributes(#2882,#2884)
    0x0601B64D, // #2885.Supertypes(#2876)
    0x0601B665, // #2885.Composition(#2775,#2876,#2885,#98)
    0x0601B68E, // #2886.ExplAttrInfos(#2887,REQ)
    0x0601B6AD, // #2888.ExplAttrInfos(#2582,REQ)
    0x0601B6CC, // #2885.Attributes(#2886,#2888)
    0x0601B6EA, // #2889.Supertypes(#2876)
    0x0601B702, // #2889.Composition(#2775,#2876,#2889,#98)
    0x0601B72B, // #2890.ExplAttrInfos(#2891,REQ)
    0x0601B74A, // #2892.ExplAttrInfos(#1094,REQ)
    0x0601B769, // #2889.Attributes(#2890,#2892)
    0x0601B787, // #2893.Supertypes(#2817)
    0x0601B79F, // #2893.Composition(#2775,#2817,#2893,#98)
    0x0601B7C8, // #2894.ExplAttrInfos(#2420,REQ)
    0x0601B7E7, // #2895.ExplAttrInfos(#974,REQ)
    0x0601B805, // #2893.Attributes(#2894,#2895)
    0x0601B823, // #2896.Supertypes(#2817)
    0x0601B83B, // #2896.Composition(#2775,#2817,#2896,#98)
    0x0601B864, // #2897.ExplAttrInfos(#2898,REQ)
    0x0601B883, // #2899.ExplAttrInfos(#1290,REQ)
    0x0601B8A2, // #2896.Attributes(#2897,#2899)
    0x0601B8C0, // #2900.Supertypes(#2817)
    0x0601B8D8, // #2900.Composition(#2775,#2817,#2900,#98)
    0x0601B901, // #2901.ExplAttrInfos(#997,REQ)
    0x0601B91F, // #2902.ExplAttrInfos(#997,REQ)
    0x0601B93D, // #2903.ExplAttrInfos(#1671,OPT)
    0x0601B95C, // #2904.ExplAttrInfos(#48,OPT)
    0x0601B979, // #2905.ExplAttrInfos(#63,REQ)
    0x0601B996, // #2900.Attributes(#2901,#2902,#2903,#2904,#2905)
    0x0601B9C6, // #2906.Supertypes(#2774)
    0x0601B9DE, // #2906.Composition(#2775,#2774,#2906,#98)
    0x0601BA07, // #2907.ExplAttrInfos(#891,REQ)
    0x040240FC, // #2908.ExplAttrInfos(#2909,REQ)
    0x0402411B, // #2906.Attributes(#2907,#2908)
    0x0601BA25, // #2910.Supertypes(#2817)
    0x0601BA3D, // #2910.Composition(#2775,#2817,#2910,#98)
    0x0601BA66, // #2911.ExplAttrInfos(#1314,REQ)
    0x04024199, // #2912.ExplAttrInfos(#2913,REQ)
    0x040241B8, // #2910.Attributes(#2911,#2912)
    0x0601BA85, // #2914.Supertypes(#2774)
    0x0601BA9D, // #2914.Composition(#2775,#2774,#2914,#98)
    0x0601BAC6, // #2915.ExplAttrInfos(#974,REQ)
    0x0601BAE4, // #2916.ExplAttrInfos(#2054,REQ)
    0x04024254, // #2914.Attributes(#2915,#2916)
    0x0601BB03, // #2917.Supertypes(#2817)
    0x0601BB1B, // #2917.Composition(#2775,#2817,#2917,#98)
    0x040242B3, // #2918.ExplAttrInfos(#2919,REQ)
    0x0601BB44, // #2920.ExplAttrInfos(#994,REQ)
    0x040242F0, // #2917.Attributes(#2918,#2920)
    0x0601BB62, // #2921.Supertypes(#2817)
    0x0601BB7A, // #2921.Composition(#2775,#2817,#2921,#98)
    0x0601BBA3, // #2922.ExplAttrInfos(#1090,REQ)
    0x0601BBC2, // #2923.ExplAttrInfos(#1090,REQ)
    0x0601BBE1, // #2924.ExplAttrInfos(#2217,OPT)
    0x0601BC00, // #2925.ExplAttrInfos(#576,OPT)
    0x040243CA, // #2926.ExplAttrInfos(#14,OPT)
    0x040243E7, // #2921.Attributes(#2922,#2923,#2924,#2925,#2926)
    0x0601BC1E, // #2927.Supertypes(#2817)
    0x0601BC36, // #2927.Composition(#2775,#2817,#2927,#98)
    0x0601BC5F, // #2928.ExplAttrInfos(#1537,REQ)
    0x04024477, // #2929.ExplAttrInfos(#2930,REQ)
    0x04024496, // #2927.Attributes(#2928,#2929)
    0x0601BC7E, // #2931.Supertypes(#2817)
    0x0601BC96, // #2931.Composition(#2775,#2817,#2931,#98)
    0x0601BCBF, // #2932.ExplAttrInfos(#1195,REQ)
    0x0601BCDE, // #2933.ExplAttrInfos(#974,REQ)
    0x0601BCFC, // #2934.ExplAttrInfos(#1671,OPT)
    0x0601BD1B, // #2935.ExplAttrInfos(#500,REQ)
    0x0601BD39, // #2936.ExplAttrInfos(#438,REQ)
    0x0402458D, // #2931.Attributes(#2932,#2933,#2934,#2935,#2936)
    0x040245BD, // #2937.Supertypes(#2931)
    0x0601BD57, // #2937.Composition(#2775,#2817,#2931,#2937,#98)
    0x04024604, // #2938.ExplAttrInfos(#2937,OPT)
    0x04024623, // #2937.Attributes(#2938)
    0x0402463B, // #2939.Supertypes(#2937)
    0x0601BD86, // #2939.Composition(#2775,#2817,#2931,#2937,#2939,#98)
    0x04024688, // #2940.ExplAttrInfos(#2939,OPT)
    0x040246A7, // #2939.Attributes(#2940)
    0x0601BDBB, // #2941.Supertypes(#2774)
    0x0601BDD3, // #2941.Composition(#2775,#2774,#2941,#98)
    0x0601BDFC, // #2942.ExplAttrInfos(#974,REQ)
    0x0601BE1A, // #2943.ExplAttrInfos(#1928,REQ)
    0x0402473D, // #2941.Attributes(#2942,#2943)
    0x0601BE39, // #2944.Supertypes(#1652)
    0x0601BE51, // #2944.Composition(#1652,#733,#2944,#734,#861)
    0x040247A1, // #2945.ExplAttrInfos(#87,REQ)
    0x040247BE, // #2944.Attributes(#2945)
    0x0601BE7F, // #2946.Supertypes(#1357)
    0x0601BE97, // #2946.Composition(#2946,#1357)
    0x0402480D, // #2947.ExplAttrInfos(#2948,REQ)
    0x0601BEB6, // #2949.ExplAttrInfos(#1117,REQ)
    0x0402484B, // #2946.Attributes(#2947,#2949)
    0x0601BED5, // #2950.Supertypes(#1357)
    0x0601BEED, // #2950.Composition(#2950,#1357)
    0x0601BF0C, // #2951.ExplAttrInfos(#1127,REQ)
    0x040248BF, // #2952.ExplAttrInfos(#2953,REQ)
    0x040248DE, // #2950.Attributes(#2951,#2952)
    0x0601BF2B, // #2954.Supertypes(#1827)
    0x0601BF43, // #2954.Composition(#733,#734,#2954,#762,#1827)
    0x0601BF71, // #2955.ExplAttrInfos(#1400,REQ)
    0x04024961, // #2956.ExplAttrInfos(#89,REQ)
    0x0601BF90, // #2957.DerivAttrInfos(#2254)
    0x0402499A, // #2954.Attributes(#2955,#2956,#2957)
    0x040249BE, // #2958.Supertypes(#2954)
    0x0601BFAC, // #2958.Composition(#733,#734,#2954,#2958,#762,#1827)
    0x0601BFE0, // #2959.ExplAttrInfos(#1143,REQ)
    0x04024A29, // #2958.Attributes(#2959)
    0x0601BFFF, // #2960.Supertypes(#753)
    0x0601C016, // #2960.Composition(#753,#733,#734,#2960)
    0x01027EF7, // #2961.ExplAttrInfos(#90,REQ)
    0x04024A80, // #2962.ExplAttrInfos(#90,REQ)
    0x04024A9D, // #2960.Attributes(#2961,#2962)
    0x0601C03E, // #2963.Supertypes(#753)
    0x0601C055, // #2963.Composition(#753,#733,#734,#2963)
    0x04024AFA, // #2964.ExplAttrInfos(#90,REQ)
    0x04024B17, // #2965.ExplAttrInfos(#90,REQ)
    0x04024B34, // #2963.Attributes(#2964,#2965)
    0x0601C07D, // #2966.Supertypes(#1509)
    0x0601C095, // #2966.Composition(#1509,#976,#891,#975,#2966,#98,#994,#1190)
    0x0601C0D2, // #2967.ExplAttrInfos(#562,OPT)
    0x0201F809, // #2966.Attributes(#2967)
    0x0601C0F0, // #2968.Supertypes(#1452)
    0x0601C108, // #2968.Composition(#1452,#974,#976,#891,#975,#2968,#98)
    0x0601C13F, // #2969.ExplAttrInfos(#564,OPT)
    0x0201F891, // #2968.Attributes(#2969)
    0x0601C15D, // #2970.Supertypes(#1456)
    0x0601C175, // #2970.Composition(#1456,#1278,#891,#2970,#98,#1094,#1109)
    0x0601C1AF, // #2971.ExplAttrInfos(#564,REQ)
    0x04024C79, // #2970.Attributes(#2971)
    0x0601C1CD, // #2972.Supertypes(#2663)
    0x0601C1E5, // #2972.Composition(#1382,#1143,#2663,#2972)
    0x0201F920, // #2973.ExplAttrInfos(#90,REQ)
    0x04024D04, // #2972.Attributes(#2973)
    0x0601C210, // #2974.Supertypes(#702)
    0x0601C227, // #2974.Composition(#702,#2974)
    0x0601C245, // #2975.ExplAttrInfos(#566,OPT)
    0x0601C263, // #2976.ExplAttrInfos(#568,REQ)
    0x0601C281, // #2977.DerivAttrInfos(#704)
    0x0301EEF3, // #2974.Attributes(#2975,#2976,#2977)
    0x0601C29C, // #2978.Supertypes(#1289)
    0x0601C2B4, // #2978.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98,#2978)
    0x0601C2F7, // #2979.ExplAttrInfos(#570,OPT)
    0x04024E89, // #2978.Attributes(#2979)
    0x0601C315, // #2980.Supertypes(#1300)
    0x0601C32D, // #2980.Composition(#1277,#1297,#1278,#1300,#891,#98,#2980,#1094,#1109)
    0x0601C373, // #2981.ExplAttrInfos(#570,REQ)
    0x0201FAAF, // #2980.Attributes(#2981)
    0x0601C391, // #2982.Supertypes(#872)
    0x0601C3A8, // #2982.Composition(#858,#733,#734,#2982,#872)
    0x0601C3D5, // #2983.Supertypes(#1618)
    0x0601C3ED, // #2983.Composition(#858,#733,#734,#2983,#1618)
    0x0601C41B, // #2984.ExplAttrInfos(#56,REQ)
    0x0601C438, // #2985.ExplAttrInfos(#56,OPT)
    0x0601C455, // #2986.ExplAttrInfos(#165,OPT)
    0x0601C473, // #2983.Attributes(#2984,#2985,#2986)
    0x0601C497, // #2987.Supertypes(#762)
    0x0601C4AE, // #2987.Composition(#733,#734,#2987,#762)
    0x0601C4D6, // #2988.ExplAttrInfos(#858,REQ)
    0x0601C4F4, // #2989.ExplAttrInfos(#2990,REQ)
    0x0601C513, // #2987.Attributes(#2988,#2989)
    0x0601C531, // #2991.Supertypes(#2987)
    0x0601C549, // #2991.Composition(#733,#734,#2987,#2991,#762)
    0x0601C577, // #2992.ExplAttrInfos(#2993,REQ)
    0x0601C596, // #2994.ExplAttrInfos(#13,REQ)
    0x0601C5B3, // #2991.Attributes(#2992,#2994)
    0x0601C5D1, // #2995.Supertypes(#733)
    0x0601C5E8, // #2995.Composition(#733,#734,#2995)
    0x0601C60B, // #2996.ExplAttrInfos(#856,REQ)
    0x0601C629, // #2997.ExplAttrInfos(#2998,REQ)
    0x0601C648, // #2999.ExplAttrInfos(#3000,REQ)
    0x0601C667, // #3001.DerivAttrInfos(#29)
    0x0601C681, // #2995.Attributes(#2996,#2997,#2999,#3001)
    0x0601C6AB, // #3002.Supertypes(#758)
    0x0601C6C2, // #3002.Composition(#733,#734,#3002,#758)
    0x0601C6EA, // #3003.ExplAttrInfos(#858,REQ)
    0x04025309, // #3004.ExplAttrInfos(#3005,REQ)
    0x0601C708, // #3006.ExplAttrInfos(#3007,REQ)
    0x0601C727, // #3008.ExplAttrInfos(#13,REQ)
    0x0601C744, // #3002.Attributes(#3003,#3004,#3006,#3008)
    0x0601C76E, // #3009.Supertypes(#856)
    0x0601C785, // #3009.Composition(#857,#856,#858,#733,#734,#3009)
    0x0601C7B7, // #3010.ExplAttrInfos(#857,REQ)
    0x0601C7D5, // #3011.ExplAttrInfos(#732,OPT)
    0x0301F635, // #3009.Attributes(#3010,#3011)
    0x0601C7F3, // #3012.Supertypes(#1272)
    0x0601C80B, // #3012.Composition(#1272,#1273,#974,#976,#891,#975,#98,#3012)
    0x0601C848, // #3013.ExplAttrInfos(#574,OPT)
    0x0601C866, // #3012.Attributes(#3013)
    0x0601C87E, // #3014.Supertypes(#1276)
    0x0601C896, // #3014.Composition(#1276,#1277,#1278,#891,#98,#3014,#1094,#1109)
    0x0601C8D6, // #3015.ExplAttrInfos(#574,REQ)
    0x0601C8F4, // #3014.Attributes(#3015)
    0x0601C90C, // #3016.Supertypes(#1452)
    0x0601C924, // #3016.Composition(#1452,#974,#976,#891,#975,#98,#3016)
    0x0601C95B, // #3017.ExplAttrInfos(#578,OPT)
    0x04025541, // #3016.Attributes(#3017)
    0x0601C979, // #3018.Supertypes(#1456)
    0x0601C991, // #3018.Composition(#1456,#1278,#891,#98,#3018,#1094,#1109)
    0x0601C9CB, // #3019.ExplAttrInfos(#578,REQ)
    0x040255CF, // #3018.Attributes(#3019)
    0x0601C9E9, // #3020.Supertypes(#1149)
    0x0601CA01, // #3020.Composition(#986,#1149,#3020)
    0x0601CA25, // #3021.Supertypes(#733)
    0x0601CA3C, // #3021.Composition(#733,#734,#3021)
    0x0601CA5F, // #3022.ExplAttrInfos(#3023,REQ)
    0x0601CA7E, // #3024.DerivAttrInfos(#29)
    0x0601CA98, // #3021.Attributes(#3022,#3024)
    0x0601CAB6, // #3025.Supertypes(#1525)
    0x0601CACE, // #3025.Composition(#974,#1525,#976,#891,#975,#98,#3025)
    0x0601CB05, // #3026.ExplAttrInfos(#580,OPT)
    0x0601CB23, // #3025.Attributes(#3026)
    0x0601CB3B, // #3027.Supertypes(#1528)
    0x0601CB53, // #3027.Composition(#1528,#1278,#891,#98,#3027,#1094,#1109)
    0x0601CB8D, // #3028.ExplAttrInfos(#580,REQ)
    0x0601CBAB, // #3027.Attributes(#3028)
    0x0601CBC3, // #3029.Supertypes(#1289)
    0x0601CBDB, // #3029.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98,#3029)
    0x0601CC1E, // #3030.ExplAttrInfos(#582,OPT)
    0x040257C4, // #3029.Attributes(#3030)
    0x0601CC3C, // #3031.Supertypes(#1300)
    0x0601CC54, // #3031.Composition(#1277,#1297,#1278,#1300,#891,#98,#3031,#1094,#1109)
    0x0601CC9A, // #3032.ExplAttrInfos(#582,REQ)
    0x0402584C, // #3031.Attributes(#3032)
    0x0601CCB8, // #3033.Supertypes(#1646)
    0x0601CCD0, // #3033.Composition(#97,#1646,#1647,#98,#3033)
    0x0601CCFD, // #3034.ExplAttrInfos(#584,OPT)
    0x0601CD1B, // #3035.ExplAttrInfos(#14,OPT)
    0x0601CD38, // #3036.ExplAttrInfos(#14,OPT)
    0x0601CD55, // #3037.ExplAttrInfos(#2567,OPT)
    0x0601CD74, // #3038.ExplAttrInfos(#721,OPT)
    0x0601CD92, // #3039.ExplAttrInfos(#721,OPT)
    0x0601CDB0, // #3040.ExplAttrInfos(#14,OPT)
    0x0601CDCD, // #3041.ExplAttrInfos(#151,OPT)
    0x0601CDEB, // #3033.Attributes(#3034,#3035,#3036,#3037,#3038,#3039,#3040,#3041)
    0x0601CE2D, // #3042.Supertypes(#1618)
    0x0601CE45, // #3042.Composition(#858,#733,#734,#3042,#1618)
    0x0601CE73, // #3043.ExplAttrInfos(#56,REQ)
    0x0601CE90, // #3044.ExplAttrInfos(#56,REQ)
    0x0601CEAD, // #3042.Attributes(#3043,#3044)
    0x0601CECB, // #3045.Supertypes(#1190)
    0x0601CEE3, // #3045.Composition(#976,#891,#975,#98,#3045,#994,#1190)
    0x0601CF1A, // #3046.ExplAttrInfos(#20,OPT)
    0x0601CF37, // #3047.ExplAttrInfos(#20,OPT)
    0x0601CF54, // #3048.ExplAttrInfos(#56,OPT)
    0x04025BE3, // #3049.ExplAttrInfos(#14,OPT)
    0x0601CF71, // #3050.ExplAttrInfos(#1515,OPT)
    0x0601CF90, // #3045.Attributes(#3046,#3047,#3048,#3049,#3050)
    0x0601CFC0, // #3051.Supertypes(#1452)
    0x0601CFD8, // #3051.Composition(#1452,#974,#976,#891,#975,#98,#3051)
    0x0601D00F, // #3052.ExplAttrInfos(#586,OPT)
    0x0502084C, // #3051.Attributes(#3052)
    0x0601D02D, // #3053.Supertypes(#3051)
    0x0601D045, // #3053.Composition(#1452,#974,#976,#891,#975,#98,#3051,#3053)
    0x0601D082, // #3054.Supertypes(#3051)
    0x0601D09A, // #3054.Composition(#1452,#974,#976,#891,#975,#98,#3051,#3054)
    0x0601D0D7, // #3055.Supertypes(#1456)
    0x0601D0EF, // #3055.Composition(#1456,#1278,#891,#98,#3055,#1094,#1109)
    0x0601D129, // #3056.ExplAttrInfos(#586,REQ)
    0x05020974, // #3055.Attributes(#3056)
    0x0601D147, // #3057.Supertypes(#2038)
    0x0601D15F, // #3057.Composition(#3057,#2038)
    0x04025D58, // #3058.ExplAttrInfos(#56,OPT)
    0x0601D17E, // #3059.ExplAttrInfos(#56,OPT)
    0x0601D19B, // #3060.ExplAttrInfos(#56,OPT)
    0x0601D1B8, // #3057.Attributes(#3058,#3059,#3060)
    0x0601D1DC, // #3061.Supertypes(#1303)
    0x0601D1F4, // #3061.Composition(#1273,#1290,#974,#1303,#976,#891,#975,#98,#3061)
    0x0601D237, // #3062.ExplAttrInfos(#588,OPT)
    0x010292DD, // #3061.Attributes(#3062)
    0x0601D255, // #3063.Supertypes(#1306)
    0x0601D26D, // #3063.Composition(#1277,#1297,#1278,#1306,#891,#98,#3063,#1094,#1109)
    0x0601D2B3, // #3064.ExplAttrInfos(#588,REQ)
    0x0102935F, // #3063.Attributes(#3064)
    0x0601D2D1, // #3065.Supertypes(#2106)
    0x0601D2E9, // #3065.Composition(#974,#1476,#2106,#976,#891,#975,#98,#3065)
    0x0601D326, // #3066.Supertypes(#1289)
    0x0601D33E, // #3066.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98,#3066)
    0x0601D381, // #3067.ExplAttrInfos(#590,OPT)
    0x03020377, // #3066.Attributes(#3067)
    0x0601D39F, // #1.Entities(#2802,#2804,#2806,#2809,#2811,#2813,#2815,#2817,#2818,#2822,#2829,#2832,#2836,#2844,#2854,#2856,#2860,#2864,#2868,#2872,#2774,#2876,#2877,#2881,#2885,#2889,#2893,#2896,#2900,#2906,#2910,#2914,#2917,#2921,#2927,#2931,#2937,#2939,#2941,#2775,#2944,#986,#826,#734,#1104,#1157,#2946,#2950,#1357,#1690,#2954,#2958,#2960,#2963,#2966,#2968,#2970,#98,#2972,#2974,#2978,#2980,#1691,#2982,#2983,#2725,#2719,#2987,#2991,#2995,#3002,#861,#3009,#3012,#3014,#3016,#3018,#1147,#1149,#3020,#3021,#3025,#3027,#3029,#3031,#2554,#3033,#3042,#3045,#3051,#3053,#3054,#3055,#3057,#3061,#3063,#762,#3065,#1189,#3066)
    0x0601D5FD, // #3068.Supertypes(#1300)
    0x0601D615, // #3068.Composition(#1277,#1297,#1278,#1300,#891,#98,#3068,#1094,#1109)
    0x0601D65B, // #3069.ExplAttrInfos(#590,REQ)
    0x030203FF, // #3068.Attributes(#3069)
    0x0601D679, // #3072.Supertypes(#1109)
    0x0601D691, // #3072.Composition(#891,#98,#3072,#1094,#1109)
    0x0601D6BF, // #3073.ExplAttrInfos(#14,OPT)
    0x020209A6, // #3072.Attributes(#3073)
    0x0601D6DC, // #3071.Supertypes(#3072)
    0x0601D6F4, // #3071.Composition(#891,#98,#3072,#3071,#1094,#1109)
    0x0601D728, // #3070.Supertypes(#3071)
    0x0601D740, // #3070.Composition(#891,#98,#3070,#3072,#3071,#1094,#1109)
    0x0601D77A, // #3074.ExplAttrInfos(#592,REQ)
    0x0601D798, // #3075.ExplAttrInfos(#14,OPT)
    0x0601D7B5, // #3070.Attributes(#3074,#3075)
    0x0601D7D3, // #3076.Supertypes(#994)
    0x0601D7EA, // #3076.Composition(#976,#891,#975,#98,#994,#3076)
    0x0601D81B, // #3077.ExplAttrInfos(#594,OPT)
    0x05020DA6, // #3076.Attributes(#3077)
    0x0601D839, // #3078.Supertypes(#3072)
    0x0601D851, // #3078.Composition(#891,#98,#3072,#3078,#1094,#1109)
    0x0601D885, // #3079.ExplAttrInfos(#594,REQ)
    0x0601D8A3, // #3080.ExplAttrInfos(#14,OPT)
    0x0601D8C0, // #3078.Attributes(#3079,#3080)
    0x0601D8DE, // #3081.Supertypes(#753)
    0x0601D8F5, // #3081.Composition(#753,#733,#734,#3081)
    0x0601D91D, // #3082.ExplAttrInfos(#90,REQ)
    0x0601D93A, // #3081.Attributes(#3082)
    0x0601D952, // #3083.Supertypes(#1800)
    0x0601D96A, // #3083.Composition(#1800,#733,#734,#3083,#758)
    0x0601D998, // #3084.ExplAttrInfos(#90,REQ)
    0x0402655D, // #3083.Attributes(#3084)
    0x0601D9B5, // #3085.Supertypes(#1289)
    0x0601D9CD, // #3085.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98,#3085)
    0x0601DA10, // #3086.ExplAttrInfos(#596,OPT)
    0x0601DA2E, // #3085.Attributes(#3086)
    0x0601DA46, // #3087.Supertypes(#1300)
    0x0601DA5E, // #3087.Composition(#1277,#1297,#1278,#1300,#891,#98,#3087,#1094,#1109)
    0x0601DAA4, // #3088.ExplAttrInfos(#596,REQ)
    0x0502129D, // #3087.Attributes(#3088)
    0x0601DAC2, // #3089.Supertypes(#1452)
    0x0601DADA, // #3089.Composition(#1452,#974,#976,#891,#975,#98,#3089)
    0x0601DB11, // #3090.ExplAttrInfos(#600,OPT)
    0x05021331, // #3089.Attributes(#3090)
    0x0601DB2F, // #3091.Supertypes(#1452)
    0x0601DB47, // #3091.Composition(#1452,#974,#976,#891,#975,#98,#3091)
    0x0601DB7E, // #3092.ExplAttrInfos(#6,OPT)
    0x0601DB9A, // #3093.ExplAttrInfos(#6,OPT)
    0x0601DBB6, // #3094.ExplAttrInfos(#90,OPT)
    0x0601DBD3, // #3095.ExplAttrInfos(#90,OPT)
    0x0601DBF0, // #3096.ExplAttrInfos(#598,OPT)
    0x0601DC0E, // #3091.Attributes(#3092,#3093,#3094,#3095,#3096)
    0x0601DC3E, // #3097.Supertypes(#1456)
    0x0601DC56, // #3097.Composition(#1456,#1278,#891,#98,#3097,#1094,#1109)
    0x0601DC90, // #3098.ExplAttrInfos(#598,REQ)
    0x0502150D, // #3097.Attributes(#3098)
    0x0601DCAE, // #3099.Supertypes(#1456)
    0x0601DCC6, // #3099.Composition(#1456,#1278,#891,#98,#3099,#1094,#1109)
    0x0601DD00, // #3100.ExplAttrInfos(#600,REQ)
    0x0601DD1E, // #3099.Attributes(#3100)
    0x0601DD36, // #3101.Supertypes(#2839)
    0x0601DD4E, // #3101.Composition(#976,#891,#975,#98,#3101,#2839)
    0x0601DD80, // #3102.ExplAttrInfos(#13,OPT)
    0x02020E90, // #3101.Attributes(#3102)
    0x0601DD9D, // #3103.Supertypes(#1537)
    0x0601DDB5, // #3103.Composition(#1196,#976,#891,#98,#3103,#1537)
    0x0601DDE8, // #3104.ExplAttrInfos(#226,REQ)
    0x0601DE06, // #3105.ExplAttrInfos(#743,OPT)
    0x0601DE24, // #3107.Supertypes(#1196)
    0x0601DE3C, // #3107.Composition(#1196,#976,#891,#98,#3107)
    0x0601DE69, // #3108.ExplAttrInfos(#460,REQ)
    0x0601DE87, // #3109.ExplAttrInfos(#206,REQ)
    0x0601DEA5, // #3110.ExplAttrInfos(#204,REQ)
    0x0601DEC3, // #3111.ExplAttrInfos(#83,OPT)
    0x0601DEE0, // #3112.ExplAttrInfos(#14,OPT)
    0x0601DEFD, // #3107.Attributes(#3108,#3109,#3110,#3111,#3112)
    0x0601DF2D, // #3106.ExplAttrInfos(#3113,OPT)
    0x0601DF4C, // #3115.Supertypes(#1196)
    0x0601DF64, // #3115.Composition(#1196,#976,#891,#98,#3115)
    0x0601DF91, // #3116.ExplAttrInfos(#228,REQ)
    0x0601DFAF, // #3117.ExplAttrInfos(#3107,OPT)
    0x0601DFCE, // #3118.ExplAttrInfos(#13,REQ)
    0x0601DFEB, // #3115.Attributes(#3116,#3117,#3118)
    0x0601E00F, // #3114.ExplAttrInfos(#3119,OPT)
    0x0601E02E, // #3120.ExplAttrInfos(#979,OPT)
    0x0601E04C, // #3103.Attributes(#3104,#3105,#3106,#3114,#3120)
    0x0601E07C, // #3121.Supertypes(#3101)
    0x0601E094, // #3121.Composition(#976,#891,#975,#98,#3101,#2839,#3121)
    0x0601E0CC, // #3122.ExplAttrInfos(#520,OPT)
    0x0601E0EA, // #3123.ExplAttrInfos(#602,REQ)
    0x0601E108, // #3121.Attributes(#3122,#3123)
    0x0601E126, // #3124.Supertypes(#2848)
    0x0601E13E, // #3124.Composition(#976,#891,#975,#98,#2848,#3124,#1201)
    0x0601E176, // #3125.ExplAttrInfos(#739,REQ)
    0x0601E194, // #3124.Attributes(#3125)
    0x0601E1AC, // #3126.Supertypes(#2846)
    0x0601E1C4, // #3126.Composition(#976,#891,#975,#98,#3126,#1201,#2846)
    0x0601E1FC, // #3127.ExplAttrInfos(#604,REQ)
    0x0601E21A, // #3128.ExplAttrInfos(#739,REQ)
    0x0601E238, // #3126.Attributes(#3127,#3128)
    0x0601E256, // #3129.Supertypes(#3126)
    0x0601E26E, // #3129.Composition(#976,#891,#975,#98,#3126,#3129,#1201,#2846)
    0x0601E2AC, // #3131.Supertypes(#2839)
    0x0601E2C4, // #3131.Composition(#976,#891,#975,#98,#2839,#3131)
    0x0601E2F6, // #3130.Supertypes(#3131)
    0x0601E30E, // #3130.Composition(#976,#891,#975,#98,#2839,#3130,#3131)
    0x0601E346, // #3132.ExplAttrInfos(#602,REQ)
    0x0601E364, // #3130.Attributes(#3132)
    0x0601E37C, // #3133.Supertypes(#3121)
    0x0601E394, // #3133.Composition(#976,#891,#975,#98,#3101,#2839,#3121,#3133)
    0x0601E3D2, // #3134.Supertypes(#3107)
    0x0601E3EA, // #3134.Composition(#1196,#976,#891,#98,#3134,#3107)
    0x0601E41D, // #3135.ExplAttrInfos(#3136,OPT)
    0x0601E43C, // #3134.Attributes(#3135)
    0x0601E454, // #3137.Supertypes(#2841)
    0x0601E46C, // #3137.Composition(#2841,#3137)
    0x0601E48B, // #3139.Supertypes(#2841)
    0x0601E4A3, // #3139.Composition(#2841,#3139)
    0x0601E4C2, // #3138.ExplAttrInfos(#3140,REQ)
    0x0601E4E1, // #3141.ExplAttrInfos(#3143,OPT)
    0x0601E500, // #3137.Attributes(#3138,#3141)
    0x0601E51E, // #3145.Supertypes(#3139)
    0x0601E536, // #3145.Composition(#2841,#3139,#3145)
    0x0601E55B, // #3144.Supertypes(#3145)
    0x0601E573, // #3144.Composition(#2841,#3144,#3139,#3145)
    0x0601E59E, // #3146.ExplAttrInfos(#59,OPT)
    0x0601E5BB, // #3147.ExplAttrInfos(#59,OPT)
    0x0601E5D8, // #3148.ExplAttrInfos(#59,OPT)
    0x0601E5F5, // #3149.ExplAttrInfos(#60,OPT)
    0x0601E612, // #3150.ExplAttrInfos(#60,OPT)
    0x0601E62F, // #3151.ExplAttrInfos(#60,OPT)
    0x0601E64C, // #3144.Attributes(#3146,#3147,#3148,#3149,#3150,#3151)
    0x0601E682, // #3152.Supertypes(#3145)
    0x0601E69A, // #3152.Composition(#2841,#3139,#3152,#3145)
    0x0601E6C5, // #3153.ExplAttrInfos(#88,OPT)
    0x0601E6E2, // #3154.ExplAttrInfos(#88,OPT)
    0x0601E6FF, // #3155.ExplAttrInfos(#88,OPT)
    0x0601E71C, // #3152.Attributes(#3153,#3154,#3155)
    0x0601E740, // #3156.Supertypes(#3145)
    0x0601E758, // #3156.Composition(#2841,#3139,#3156,#3145)
    0x0601E783, // #3157.ExplAttrInfos(#56,OPT)
    0x0601E7A0, // #3158.ExplAttrInfos(#56,OPT)
    0x0601E7BD, // #3159.ExplAttrInfos(#56,OPT)
    0x0601E7DA, // #3160.ExplAttrInfos(#89,OPT)
    0x0601E7F7, // #3161.ExplAttrInfos(#89,OPT)
    0x0601E814, // #3162.ExplAttrInfos(#89,OPT)
    0x0601E831, // #3156.Attributes(#3157,#3158,#3159,#3160,#3161,#3162)
    0x0601E867, // #3163.Supertypes(#3156)
    0x0601E87F, // #3163.Composition(#2841,#3139,#3156,#3163,#3145)
    0x0601E8B0, // #3164.ExplAttrInfos(#23,OPT)
    0x0601E8CD, // #3163.Attributes(#3164)
    0x0601E8E5, // #3165.Supertypes(#3145)
    0x0601E8FD, // #3165.Composition(#2841,#3139,#3165,#3145)
    0x0601E928, // #3166.ExplAttrInfos(#43,OPT)
    0x0601E945, // #3167.ExplAttrInfos(#43,OPT)
    0x0601E962, // #3168.ExplAttrInfos(#43,OPT)
    0x0601E97F, // #3169.ExplAttrInfos(#194,OPT)
    0x0601E99D, // #3170.ExplAttrInfos(#194,OPT)
    0x0601E9BB, // #3171.ExplAttrInfos(#194,OPT)
    0x0402765F, // #3165.Attributes(#3166,#3167,#3168,#3169,#3170,#3171)
    0x04027695, // #3172.Supertypes(#3165)
    0x0601E9D9, // #3172.Composition(#2841,#3139,#3165,#3172,#3145)
    0x0601EA0A, // #3173.ExplAttrInfos(#200,OPT)
    0x040276FB, // #3172.Attributes(#3173)
    0x0601EA28, // #3174.Supertypes(#3145)
    0x0601EA40, // #3174.Composition(#2841,#3139,#3145,#3174)
    0x0601EA6B, // #3175.ExplAttrInfos(#191,OPT)
    0x0601EA89, // #3176.ExplAttrInfos(#191,OPT)
    0x0601EAA7, // #3177.ExplAttrInfos(#191,OPT)
    0x0601EAC5, // #3174.Attributes(#3175,#3176,#3177)
    0x0601EAE9, // #3179.Supertypes(#3101)
    0x0601EB01, // #3179.Composition(#976,#891,#975,#98,#3101,#2839,#3179)
    0x0601EB39, // #3180.ExplAttrInfos(#520,OPT)
    0x0601EB57, // #3181.ExplAttrInfos(#606,REQ)
    0x0601EB75, // #3179.Attributes(#3180,#3181)
    0x0601EB93, // #3178.Supertypes(#3179)
    0x0601EBAB, // #3178.Composition(#976,#891,#975,#98,#3101,#2839,#3178,#3179)
    0x0601EBE9, // #3182.Supertypes(#3101)
    0x0601EC01, // #3182.Composition(#976,#891,#975,#98,#3101,#2839,#3182)
    0x0601EC39, // #3183.Supertypes(#2848)
    0x0601EC51, // #3183.Composition(#976,#891,#975,#98,#2848,#1201,#3183)
    0x0601EC89, // #3184.ExplAttrInfos(#743,OPT)
    0x0601ECA7, // #3183.Attributes(#3184)
    0x0601ECBF, // #3185.Supertypes(#3131)
    0x0601ECD7, // #3185.Composition(#976,#891,#975,#98,#2839,#3185,#3131)
    0x0601ED0F, // #3186.Supertypes(#2848)
    0x0601ED27, // #3186.Composition(#976,#891,#975,#98,#2848,#1201,#3186)
    0x0601ED5F, // #3187.Supertypes(#2846)
    0x0601ED77, // #3187.Composition(#976,#891,#975,#98,#1201,#2846,#3187)
    0x0601EDAF, // #3188.ExplAttrInfos(#608,REQ)
    0x0601EDCD, // #3189.ExplAttrInfos(#90,OPT)
    0x0601EDEA, // #3187.Attributes(#3188,#3189)
    0x0601EE08, // #3190.Supertypes(#3187)
    0x0601EE20, // #3190.Composition(#976,#891,#975,#98,#1201,#2846,#3187,#3190)
    0x0601EE5E, // #3191.Supertypes(#3131)
    0x0601EE76, // #3191.Composition(#976,#891,#975,#98,#2839,#3131,#3191)
    0x0601EEAE, // #3192.ExplAttrInfos(#606,REQ)
    0x0601EECC, // #3191.Attributes(#3192)
    0x0601EEE4, // #3193.Supertypes(#986)
    0x0601EEFB, // #3193.Composition(#986,#3193)
    0x0601EF19, // #3194.Supertypes(#3193)
    0x0601EF31, // #3194.Composition(#986,#3194,#3193)
    0x0601EF55, // #3195.Supertypes(#1688)
    0x0601EF6D, // #3195.Composition(#1688,#976,#891,#1157,#98,#3195)
    0x0601EFA0, // #3196.ExplAttrInfos(#610,OPT)
    0x0601EFBE, // #3195.Attributes(#3196)
    0x0601EFD6, // #3197.Supertypes(#1715)
    0x0601EFEE, // #3197.Composition(#1715,#891,#98,#3197,#1094,#1160)
    0x0601F022, // #3198.ExplAttrInfos(#610,REQ)
    0x0601F040, // #3197.Attributes(#3198)
    0x0601F058, // #3199.Supertypes(#882)
    0x0601F06F, // #3199.Composition(#882,#734,#3199,#883)
    0x0601F097, // #3200.ExplAttrInfos(#882,REQ)
    0x0601F0B5, // #3199.Attributes(#3200)
    0x0601F0CD, // #3201.Supertypes(#1826)
    0x0601F0E5, // #3201.Composition(#1826,#733,#734,#762,#3201,#1827)
    0x0601F119, // #3202.ExplAttrInfos(#758,REQ)
    0x0102ADF1, // #3201.Attributes(#3202)
    0x0601F137, // #3203.Supertypes(#1929)
    0x0601F14F, // #3203.Composition(#974,#1929,#976,#891,#975,#98,#3203)
    0x0601F186, // #3204.ExplAttrInfos(#612,OPT)
    0x0601F1A4, // #3203.Attributes(#3204)
    0x0601F1BC, // #3206.Supertypes(#758)
    0x0601F1D3, // #3206.Composition(#733,#734,#758,#3206)
    0x0601F1FB, // #3207.ExplAttrInfos(#1143,REQ)
    0x0601F21A, // #3208.ExplAttrInfos(#743,OPT)
    0x0601F238, // #3206.Attributes(#3207,#3208)
    0x0601F256, // #3205.Supertypes(#3206)
    0x0601F26E, // #3205.Composition(#733,#734,#758,#3205,#3206)
    0x0601F29C, // #3209.ExplAttrInfos(#739,REQ)
    0x0601F2BA, // #3210.ExplAttrInfos(#56,REQ)
    0x0601F2D7, // #3211.DerivAttrInfos(#933)
    0x0601F2F2, // #3205.Attributes(#3209,#3210,#3211)
    0x0601F316, // #3212.Supertypes(#3206)
    0x0601F32E, // #3212.Composition(#733,#734,#758,#3212,#3206)
    0x0601F35C, // #3213.ExplAttrInfos(#1400,REQ)
    0x0601F37B, // #3214.DerivAttrInfos(#2254)
    0x0601F397, // #3212.Attributes(#3213,#3214)
    0x0601F3B5, // #3215.Supertypes(#3139)
    0x0601F3CD, // #3215.Composition(#2841,#3139,#3215)
    0x0601F3F2, // #3216.ExplAttrInfos(#3217,OPT)
    0x0601F411, // #3218.ExplAttrInfos(#3219,OPT)
    0x0601F430, // #3220.ExplAttrInfos(#83,OPT)
    0x0601F44D, // #3215.Attributes(#3216,#3218,#3220)
    0x0601F471, // #3221.Supertypes(#924)
    0x0601F488, // #3221.Composition(#924,#3221)
    0x0601F4A6, // #3222.ExplAttrInfos(#614,REQ)
    0x0601F4C4, // #3223.ExplAttrInfos(#3224,REQ)
    0x04028206, // #3221.Attributes(#3222,#3223)
    0x0601F4E3, // #3225.Supertypes(#1222)
    0x0601F4FB, // #3225.Composition(#807,#3225,#1222)
    0x0601F51F, // #3226.ExplAttrInfos(#819,OPT)
    0x0601F53D, // #3227.ExplAttrInfos(#819,OPT)
    0x0601F55B, // #3228.ExplAttrInfos(#819,OPT)
    0x0601F579, // #3229.ExplAttrInfos(#819,OPT)
    0x0601F597, // #3230.ExplAttrInfos(#819,OPT)
    0x0601F5B5, // #3231.ExplAttrInfos(#1200,OPT)
    0x0601F5D4, // #3232.ExplAttrInfos(#548,REQ)
    0x0601F5F2, // #3225.Attributes(#3226,#3227,#3228,#3229,#3230,#3231,#3232)
    0x0601F62E, // #3233.Supertypes(#762)
    0x0601F645, // #3233.Composition(#733,#734,#762,#3233)
    0x0601F66D, // #3234.ExplAttrInfos(#858,REQ)
    0x0601F68B, // #3235.ExplAttrInfos(#90,REQ)
    0x0601F6A8, // #3236.ExplAttrInfos(#90,OPT)
    0x0601F6C5, // #3237.ExplAttrInfos(#87,OPT)
    0x0601F6E2, // #3238.ExplAttrInfos(#87,OPT)
    0x0601F6FF, // #3233.Attributes(#3234,#3235,#3236,#3237,#3238)
    0x0601F72F, // #3239.Supertypes(#3233)
    0x0601F747, // #3239.Composition(#733,#734,#762,#3233,#3239)
    0x0601F775, // #3240.ExplAttrInfos(#90,OPT)
    0x0601F792, // #3239.Attributes(#3240)
    0x0601F7AA, // #3241.Supertypes(#1293)
    0x0601F7C2, // #3241.Composition(#1273,#1290,#974,#1293,#976,#891,#975,#98,#3241)
    0x0601F805, // #3242.ExplAttrInfos(#616,OPT)
    0x0601F823, // #3241.Attributes(#3242)
    0x0601F83B, // #3243.Supertypes(#1296)
    0x0601F853, // #3243.Composition(#1277,#1297,#1278,#1296,#891,#98,#3243,#1094,#1109)
    0x0601F899, // #3244.ExplAttrInfos(#616,REQ)
    0x0601F8B7, // #3243.Attributes(#3244)
    0x0601F8CF, // #3245.Supertypes(#2079)
    0x0601F8E7, // #3245.Composition(#974,#2079,#976,#891,#975,#98,#3245)
    0x0601F91E, // #3246.ExplAttrInfos(#618,OPT)
    0x0601F93C, // #3245.Attributes(#3246)
    0x0601F954, // #3247.Supertypes(#2080)
    0x0601F96C, // #3247.Composition(#1278,#2080,#891,#98,#3247,#1094,#1109)
    0x0601F9A6, // #3248.ExplAttrInfos(#618,OPT)
    0x0601F9C4, // #3247.Attributes(#3248)
    0x0601F9DC, // #3249.Supertypes(#1382)
    0x0601F9F4, // #3249.Composition(#1382,#1143,#3249)
    0x0601FA19, // #3250.ExplAttrInfos(#90,REQ)
    0x0601FA36, // #3251.ExplAttrInfos(#90,REQ)
    0x0601FA53, // #3252.ExplAttrInfos(#90,REQ)
    0x0601FA70, // #3253.ExplAttrInfos(#90,REQ)
    0x0601FA8D, // #3254.ExplAttrInfos(#82,OPT)
    0x0601FAAA, // #3255.ExplAttrInfos(#82,OPT)
    0x0601FAC7, // #3256.ExplAttrInfos(#82,OPT)
    0x0601FAE4, // #3257.ExplAttrInfos(#89,OPT)
    0x0601FB01, // #3258.ExplAttrInfos(#89,OPT)
    0x0601FB1E, // #3249.Attributes(#3250,#3251,#3252,#3253,#3254,#3255,#3256,#3257,#3258)
    0x0601FB66, // #3259.Supertypes(#1952)
    0x0601FB7E, // #3259.Composition(#1273,#1290,#974,#1952,#976,#891,#975,#98,#3259)
    0x0601FBC1, // #3260.ExplAttrInfos(#620,OPT)
    0x0601FBDF, // #3259.Attributes(#3260)
    0x0601FBF7, // #3261.Supertypes(#1955)
    0x0601FC0F, // #3261.Composition(#1277,#1297,#1278,#1955,#891,#98,#3261,#1094,#1109)
    0x0601FC55, // #3262.ExplAttrInfos(#620,REQ)
    0x03022A45, // #3261.Attributes(#3262)
    0x0601FC73, // #3263.Supertypes(#1090)
    0x0601FC8B, // #3263.Composition(#976,#891,#1090,#98,#3263)
    0x0601FCB8, // #3264.ExplAttrInfos(#14,OPT)
    0x0601FCD5, // #3265.ExplAttrInfos(#14,OPT)
    0x0601FCF2, // #3266.ExplAttrInfos(#13,REQ)
    0x0601FD0F, // #3267.ExplAttrInfos(#6,OPT)
    0x0601FD2B, // #3269.Supertypes(#1691)
    0x0601FD43, // #3269.Composition(#1691,#3269)
    0x0601FD62, // #3270.ExplAttrInfos(#622,OPT)
    0x0601FD80, // #3271.ExplAttrInfos(#31,OPT)
    0x0601FD9D, // #3272.ExplAttrInfos(#25,OPT)
    0x0601FDBA, // #3273.ExplAttrInfos(#25,OPT)
    0x0601FDD7, // #3274.ExplAttrInfos(#25,OPT)
    0x0601FDF4, // #3275.ExplAttrInfos(#25,OPT)
    0x0601FE11, // #3276.ExplAttrInfos(#25,OPT)
    0x0601FE2E, // #3277.ExplAttrInfos(#25,OPT)
    0x0601FE4B, // #3278.ExplAttrInfos(#31,OPT)
    0x0601FE68, // #3279.ExplAttrInfos(#31,OPT)
    0x0601FE85, // #3280.ExplAttrInfos(#13,OPT)
    0x04028BFA, // #3281.ExplAttrInfos(#25,OPT)
    0x0601FEA2, // #3282.ExplAttrInfos(#31,OPT)
    0x04028C34, // #3283.ExplAttrInfos(#25,OPT)
    0x04028C51, // #3284.ExplAttrInfos(#25,OPT)
    0x0601FEBF, // #3285.ExplAttrInfos(#31,OPT)
    0x0601FEDC, // #3286.ExplAttrInfos(#92,OPT)
    0x0601FEF9, // #3269.Attributes(#3270,#3271,#3272,#3273,#3274,#3275,#3276,#3277,#3278,#3279,#3280,#3281,#3282,#3283,#3284,#3285,#3286)
    0x0601FF71, // #3268.ExplAttrInfos(#3269,OPT)
    0x0601FF90, // #3287.ExplAttrInfos(#624,OPT)
    0x0601FFAE, // #3263.Attributes(#3264,#3265,#3266,#3267,#3268,#3287)
    0x0601FFE4, // #3288.Supertypes(#3269)
    0x0601FFFC, // #3288.Composition(#1691,#3269,#3288)
    0x06020021, // #3289.ExplAttrInfos(#2681,REQ)
    0x06020040, // #3288.Attributes(#3289)
    0x06020058, // #3290.Supertypes(#1093)
    0x06020070, // #3290.Composition(#891,#98,#3290,#1094,#1093)
    0x0602009E, // #3291.ExplAttrInfos(#624,REQ)
    0x060200BC, // #3292.ExplAttrInfos(#14,OPT)
    0x060200D9, // #3290.Attributes(#3291,#3292)
    0x060200F7, // #3293.Supertypes(#125)
    0x0602010E, // #3293.Composition(#125,#3293)
    0x0602012C, // #3294.ExplAttrInfos(#3295,OPT)
    0x0602014B, // #3296.ExplAttrInfos(#3297,OPT)
    0x0602016A, // #3298.ExplAttrInfos(#14,OPT)
    0x06020187, // #3299.ExplAttrInfos(#3300,OPT)
    0x060201A6, // #3301.ExplAttrInfos(#195,OPT)
    0x060201C4, // #3302.ExplAttrInfos(#3303,OPT)
    0x060201E3, // #3293.Attributes(#3294,#3296,#3298,#3299,#3301,#3302)
    0x06020219, // #3304.Supertypes(#2733)
    0x06020231, // #3304.Composition(#974,#1525,#976,#891,#975,#2733,#98,#3304)
    0x0602026E, // #3305.ExplAttrInfos(#630,OPT)
    0x0602028C, // #3306.ExplAttrInfos(#90,OPT)
    0x060202A9, // #3307.ExplAttrInfos(#11,OPT)
    0x060202C6, // #3308.ExplAttrInfos(#43,OPT)
    0x060202E3, // #3309.ExplAttrInfos(#95,OPT)
    0x06020300, // #3310.ExplAttrInfos(#84,OPT)
    0x0602031D, // #3311.ExplAttrInfos(#90,OPT)
    0x0602033A, // #3312.ExplAttrInfos(#90,OPT)
    0x06020357, // #3304.Attributes(#3305,#3306,#3307,#3308,#3309,#3310,#3311,#3312)
    0x06020399, // #3313.Supertypes(#2733)
    0x060203B1, // #3313.Composition(#974,#1525,#976,#891,#975,#2733,#98,#3313)
    0x060203EE, // #3314.ExplAttrInfos(#626,OPT)
    0x0602040C, // #3313.Attributes(#3314)
    0x06020424, // #3315.Supertypes(#2741)
    0x0602043C, // #3315.Composition(#1528,#1278,#891,#2741,#98,#3315,#1094,#1109)
    0x0602047C, // #3316.ExplAttrInfos(#626,REQ)
    0x0602049A, // #3315.Attributes(#3316)
    0x060204B2, // #3317.Supertypes(#2733)
    0x060204CA, // #3317.Composition(#974,#1525,#976,#891,#975,#2733,#98,#3317)
    0x06020507, // #3318.ExplAttrInfos(#628,REQ)
    0x06020525, // #3317.Attributes(#3318)
    0x0602053D, // #3319.Supertypes(#2741)
    0x06020555, // #3319.Composition(#1528,#1278,#891,#2741,#98,#3319,#1094,#1109)
    0x06020595, // #3320.ExplAttrInfos(#628,REQ)
    0x060205B3, // #3319.Attributes(#3320)
    0x060205CB, // #3321.Supertypes(#2741)
    0x060205E3, // #3321.Composition(#1528,#1278,#891,#2741,#98,#3321,#1094,#1109)
    0x06020623, // #3322.ExplAttrInfos(#630,REQ)
    0x06020641, // #3323.ExplAttrInfos(#90,OPT)
    0x0602065E, // #3324.ExplAttrInfos(#11,OPT)
    0x05023F96, // #3325.ExplAttrInfos(#90,OPT)
    0x0602067B, // #3321.Attributes(#3322,#3323,#3324,#3325)
    0x060206A5, // #1.Entities(#3068,#3070,#994,#3072,#1190,#3071,#3076,#3078,#3081,#3083,#1618,#3085,#3087,#3089,#3091,#3097,#3099,#3101,#2839,#3103,#2848,#2038,#3121,#3124,#3126,#3129,#3130,#1201,#3133,#2841,#3134,#3137,#3107,#3144,#3139,#3152,#3156,#3163,#3165,#3172,#3145,#3174,#2846,#3178,#3182,#3183,#3185,#3131,#3115,#3179,#3186,#3187,#3190,#3191,#3193,#950,#3194,#3195,#3197,#3199,#758,#872,#3201,#3203,#3205,#3212,#3215,#3221,#1214,#1219,#3225,#1222,#1225,#1227,#1827,#3233,#3239,#3206,#3241,#3243,#1537,#3245,#3247,#3249,#1048,#1057,#1051,#3259,#3261,#3263,#3269,#3288,#3290,#3293,#3304,#3313,#3315,#3317,#3319,#3321)
    0x06020906, // #3326.Supertypes(#733)
    0x0602091D, // #3326.Composition(#733,#734,#3326)
    0x06020940, // #3327.ExplAttrInfos(#94,REQ)
    0x0602095D, // #3328.ExplAttrInfos(#747,REQ)
    0x0602097B, // #3329.ExplAttrInfos(#632,REQ)
    0x06020999, // #3326.Attributes(#3327,#3328,#3329)
    0x060209BD, // #3330.Supertypes(#3326)
    0x060209D5, // #3330.Composition(#733,#734,#3326,#3330)
    0x060209FE, // #3331.ExplAttrInfos(#2480,REQ)
    0x06020A1D, // #3332.ExplAttrInfos(#15,REQ)
    0x06020A3A, // #3330.Attributes(#3331,#3332)
    0x06020A58, // #3333.Supertypes(#924)
    0x06020A6F, // #3333.Composition(#924,#3333)
    0x06020A8D, // #3335.Supertypes(#807)
    0x06020AA4, // #3335.Composition(#807,#3335)
    0x06020AC2, // #3336.ExplAttrInfos(#813,REQ)
    0x06020AE0, // #3337.ExplAttrInfos(#813,OPT)
    0x06020AFE, // #3335.Attributes(#3336,#3337)
    0x06020B1C, // #3334.ExplAttrInfos(#3335,OPT)
    0x06020B3B, // #3339.Supertypes(#807)
    0x06020B52, // #3339.Composition(#807,#3339)
    0x06020B70, // #3340.ExplAttrInfos(#929,OPT)
    0x06020B8E, // #3341.ExplAttrInfos(#182,OPT)
    0x06020BAC, // #3342.ExplAttrInfos(#183,OPT)
    0x06020BCA, // #3343.ExplAttrInfos(#929,OPT)
    0x06020BE8, // #3344.ExplAttrInfos(#929,OPT)
    0x06020C06, // #3345.ExplAttrInfos(#185,OPT)
    0x06020C24, // #3346.ExplAttrInfos(#929,OPT)
    0x06020C42, // #3339.Attributes(#3340,#3341,#3342,#3343,#3344,#3345,#3346)
    0x06020C7E, // #3338.ExplAttrInfos(#3339,OPT)
    0x06020C9D, // #3347.ExplAttrInfos(#1250,REQ)
    0x06020CBC, // #3348.ExplAttrInfos(#13,OPT)
    0x06020CD9, // #3333.Attributes(#3334,#3338,#3347,#3348)
    0x06020D03, // #3349.Supertypes(#1248)
    0x06020D1B, // #3349.Composition(#810,#1248,#807,#3349)
    0x06020D44, // #3350.ExplAttrInfos(#3351,REQ)
    0x06020D63, // #3352.ExplAttrInfos(#40,OPT)
    0x06020D80, // #3353.ExplAttrInfos(#41,OPT)
    0x06020D9D, // #3354.ExplAttrInfos(#42,OPT)
    0x06020DBA, // #3355.ExplAttrInfos(#929,REQ)
    0x06020DD8, // #3349.Attributes(#3350,#3352,#3353,#3354,#3355)
    0x06020E08, // #3356.Supertypes(#2165)
    0x06020E20, // #3356.Composition(#807,#2165,#3356)
    0x06020E44, // #3357.ExplAttrInfos(#14,REQ)
    0x06020E61, // #3358.ExplAttrInfos(#3359,OPT)
    0x06020E80, // #3356.Attributes(#3357,#3358)
    0x06020E9E, // #3360.Supertypes(#2165)
    0x06020EB6, // #3360.Composition(#807,#2165,#3360)
    0x06020EDA, // #3362.Supertypes(#807)
    0x06020EF1, // #3362.Composition(#807,#3362)
    0x06020F0F, // #3363.ExplAttrInfos(#3364,REQ)
    0x06020F2E, // #3362.Attributes(#3363)
    0x06020F46, // #3361.ExplAttrInfos(#3365,REQ)
    0x06020F65, // #3366.ExplAttrInfos(#1173,REQ)
    0x06020F84, // #3360.Attributes(#3361,#3366)
    0x06020FA2, // #3367.Supertypes(#1618)
    0x06020FBA, // #3367.Composition(#858,#733,#734,#1618,#3367)
    0x06020FE8, // #3368.ExplAttrInfos(#56,REQ)
    0x06021005, // #3369.ExplAttrInfos(#56,OPT)
    0x06021022, // #3370.ExplAttrInfos(#56,OPT)
    0x0602103F, // #3371.ExplAttrInfos(#165,OPT)
    0x0602105D, // #3367.Attributes(#3368,#3369,#3370,#3371)
    0x06021087, // #3372.Supertypes(#1149)
    0x0602109F, // #3372.Composition(#986,#1149,#3372)
    0x060210C3, // #3373.Supertypes(#1800)
    0x060210DB, // #3373.Composition(#1800,#733,#734,#758,#3373)
    0x06021109, // #3374.ExplAttrInfos(#90,REQ)
    0x06021126, // #3375.ExplAttrInfos(#90,REQ)
    0x06021143, // #3373.Attributes(#3374,#3375)
    0x06021161, // #3376.Supertypes(#1452)
    0x06021179, // #3376.Composition(#1452,#974,#976,#891,#975,#98,#3376)
    0x060211B0, // #3377.ExplAttrInfos(#636,OPT)
    0x05024BF1, // #3376.Attributes(#3377)
    0x060211CE, // #3378.Supertypes(#1456)
    0x060211E6, // #3378.Composition(#1456,#1278,#891,#98,#3378,#1094,#1109)
    0x06021220, // #3379.ExplAttrInfos(#636,REQ)
    0x05024C85, // #3378.Attributes(#3379)
    0x0602123E, // #3380.Supertypes(#1303)
    0x06021256, // #3380.Composition(#1273,#1290,#974,#1303,#976,#891,#975,#98,#3380)
    0x06021299, // #3381.ExplAttrInfos(#638,OPT)
    0x05024D19, // #3380.Attributes(#3381)
    0x060212B7, // #3382.Supertypes(#1306)
    0x060212CF, // #3382.Composition(#1277,#1297,#1278,#1306,#891,#98,#3382,#1094,#1109)
    0x06021315, // #3383.ExplAttrInfos(#638,REQ)
    0x06021333, // #3382.Attributes(#3383)
    0x0602134B, // #3384.Supertypes(#974)
    0x06021362, // #3384.Composition(#974,#976,#891,#975,#98,#3384)
    0x06021393, // #3385.ExplAttrInfos(#1256,OPT)
    0x060213B2, // #3384.Attributes(#3385)
    0x060213CA, // #3386.Supertypes(#1278)
    0x060213E2, // #3386.Composition(#1278,#891,#98,#3386,#1094,#1109)
    0x06021416, // #3387.ExplAttrInfos(#1256,REQ)
    0x06021435, // #3386.Attributes(#3387)
    0x0602144D, // #3388.Supertypes(#1382)
    0x06021465, // #3388.Composition(#1382,#1143,#3388)
    0x0602148A, // #3389.ExplAttrInfos(#90,REQ)
    0x060214A7, // #3390.ExplAttrInfos(#90,REQ)
    0x060214C4, // #3391.ExplAttrInfos(#90,REQ)
    0x060214E1, // #3392.ExplAttrInfos(#56,REQ)
    0x060214FE, // #3388.Attributes(#3389,#3390,#3391,#3392)
    0x06021528, // #3393.Supertypes(#764)
    0x0602153F, // #3393.Composition(#733,#734,#764,#765,#3393)
    0x0602156C, // #3394.ExplAttrInfos(#3396,OPT)
    0x0602158B, // #3397.ExplAttrInfos(#13,OPT)
    0x060215A8, // #3398.ExplAttrInfos(#3400,REQ)
    0x060215C7, // #3401.ExplAttrInfos(#3402,OPT)
    0x060215E6, // #3403.DerivAttrInfos(#6)
    0x060215FF, // #3393.Attributes(#3394,#3397,#3398,#3401,#3403)
    0x0602162F, // #3404.Supertypes(#3393)
    0x06021647, // #3404.Composition(#733,#734,#764,#765,#3393,#3404)
    0x0602167A, // #3405.ExplAttrInfos(#3406,REQ)
    0x06021699, // #3404.Attributes(#3405)
    0x060216B1, // #3407.Supertypes(#857)
    0x060216C8, // #3407.Composition(#857,#858,#733,#734,#3407)
    0x060216F5, // #3408.ExplAttrInfos(#858,REQ)
    0x05025171, // #3409.ExplAttrInfos(#3410,REQ)
    0x06021713, // #3411.ExplAttrInfos(#3412,REQ)
    0x06021732, // #3413.ExplAttrInfos(#13,REQ)
    0x0602174F, // #3414.ExplAttrInfos(#646,REQ)
    0x0602176D, // #3407.Attributes(#3408,#3409,#3411,#3413,#3414)
    0x0602179D, // #3415.Supertypes(#1303)
    0x060217B5, // #3415.Composition(#1273,#1290,#974,#1303,#976,#891,#975,#98,#3415)
    0x060217F8, // #3416.ExplAttrInfos(#648,OPT)
    0x06021816, // #3415.Attributes(#3416)
    0x0602182E, // #3417.Supertypes(#1306)
    0x06021846, // #3417.Composition(#1277,#1297,#1278,#1306,#891,#98,#3417,#1094,#1109)
    0x0602188C, // #3418.ExplAttrInfos(#648,REQ)
    0x060218AA, // #3417.Attributes(#3418)
    0x060218C2, // #3419.Supertypes(#1382)
    0x060218DA, // #3419.Composition(#1382,#1143,#3419)
    0x060218FF, // #3420.ExplAttrInfos(#90,REQ)
    0x0602191C, // #3421.ExplAttrInfos(#90,REQ)
    0x06021939, // #3422.ExplAttrInfos(#90,REQ)
    0x06021956, // #3423.ExplAttrInfos(#90,REQ)
    0x06021973, // #3424.ExplAttrInfos(#82,OPT)
    0x06021990, // #3425.ExplAttrInfos(#82,OPT)
    0x060219AD, // #3426.ExplAttrInfos(#89,OPT)
    0x060219CA, // #3419.Attributes(#3420,#3421,#3422,#3423,#3424,#3425,#3426)
    0x06021A06, // #3427.Supertypes(#1272)
    0x06021A1E, // #3427.Composition(#1272,#1273,#974,#976,#891,#975,#98,#3427)
    0x06021A5B, // #3428.ExplAttrInfos(#652,OPT)
    0x06021A79, // #3427.Attributes(#3428)
    0x06021A91, // #3429.Supertypes(#1276)
    0x06021AA9, // #3429.Composition(#1276,#1277,#1278,#891,#98,#1094,#1109,#3429)
    0x06021AE9, // #3430.ExplAttrInfos(#652,REQ)
    0x06021B07, // #3429.Attributes(#3430)
    0x06021B1F, // #3431.Supertypes(#1303)
    0x06021B37, // #3431.Composition(#1273,#1290,#974,#1303,#976,#891,#975,#98,#3431)
    0x06021B7A, // #3432.ExplAttrInfos(#654,OPT)
    0x06021B98, // #3431.Attributes(#3432)
    0x06021BB0, // #3433.Supertypes(#1306)
    0x06021BC8, // #3433.Composition(#1277,#1297,#1278,#1306,#891,#98,#1094,#1109,#3433)
    0x06021C0E, // #3434.ExplAttrInfos(#654,REQ)
    0x06021C2C, // #3433.Attributes(#3434)
    0x06021C44, // #3435.Supertypes(#1293)
    0x06021C5C, // #3435.Composition(#1273,#1290,#974,#1293,#976,#891,#975,#98,#3435)
    0x06021C9F, // #3436.ExplAttrInfos(#656,OPT)
    0x06021CBD, // #3435.Attributes(#3436)
    0x06021CD5, // #3437.Supertypes(#1296)
    0x06021CED, // #3437.Composition(#1277,#1297,#1278,#1296,#891,#98,#1094,#1109,#3437)
    0x06021D33, // #3438.ExplAttrInfos(#656,REQ)
    0x06021D51, // #3437.Attributes(#3438)
    0x06021D69, // #3439.Supertypes(#1177)
    0x06021D81, // #3439.Composition(#1177,#734,#883,#3439)
    0x06021DAA, // #3440.ExplAttrInfos(#885,REQ)
    0x06021DC8, // #3439.Attributes(#3440)
    0x06021DE0, // #3441.Supertypes(#1525)
    0x06021DF8, // #3441.Composition(#974,#1525,#976,#891,#975,#98,#3441)
    0x06021E2F, // #3442.ExplAttrInfos(#658,OPT)
    0x06021E4D, // #3441.Attributes(#3442)
    0x06021E65, // #3443.Supertypes(#1528)
    0x06021E7D, // #3443.Composition(#1528,#1278,#891,#98,#1094,#1109,#3443)
    0x06021EB7, // #3444.ExplAttrInfos(#658,OPT)
    0x0402AABA, // #3443.Attributes(#3444)
    0x06021ED5, // #3445.Supertypes(#1525)
    0x06021EED, // #3445.Composition(#974,#1525,#976,#891,#975,#98,#3445)
    0x06021F24, // #3446.ExplAttrInfos(#660,OPT)
    0x0402AB48, // #3445.Attributes(#3446)
    0x06021F42, // #3447.Supertypes(#1528)
    0x06021F5A, // #3447.Composition(#1528,#1278,#891,#98,#1094,#1109,#3447)
    0x06021F94, // #3448.ExplAttrInfos(#660,REQ)
    0x0402ABD9, // #3447.Attributes(#3448)
    0x06021FB2, // #3449.Supertypes(#857)
    0x06021FC9, // #3449.Composition(#857,#858,#733,#734,#3449)
    0x06021FF6, // #3450.ExplAttrInfos(#23,REQ)
    0x06022013, // #3451.ExplAttrInfos(#23,REQ)
    0x06022030, // #3452.ExplAttrInfos(#56,REQ)
    0x0602204D, // #3453.ExplAttrInfos(#56,REQ)
    0x0602206A, // #3449.Attributes(#3450,#3451,#3452,#3453)
    0x06022094, // #3454.Supertypes(#974)
    0x060220AB, // #3454.Composition(#974,#976,#891,#975,#98,#3454)
    0x060220DC, // #3455.Supertypes(#2106)
    0x060220F4, // #3455.Composition(#974,#1476,#2106,#976,#891,#975,#98,#3455)
    0x06022131, // #3456.Supertypes(#1928)
    0x06022149, // #3456.Composition(#974,#1929,#1928,#976,#891,#975,#98,#3456)
    0x06022186, // #3457.ExplAttrInfos(#662,OPT)
    0x05025C57, // #3456.Attributes(#3457)
    0x060221A4, // #3458.Supertypes(#1452)
    0x060221BC, // #3458.Composition(#1452,#974,#976,#891,#975,#98,#3458)
    0x060221F3, // #3459.ExplAttrInfos(#664,OPT)
    0x05025CDF, // #3458.Attributes(#3459)
    0x05025CF7, // #3460.Supertypes(#3458)
    0x06022211, // #3460.Composition(#1452,#974,#976,#891,#975,#98,#3458,#3460)
    0x05025D4F, // #3461.Supertypes(#3458)
    0x0602224E, // #3461.Composition(#1452,#974,#976,#891,#975,#98,#3458,#3461)
    0x0602228B, // #3462.Supertypes(#1456)
    0x060222A3, // #3462.Composition(#1456,#1278,#891,#98,#1094,#1109,#3462)
    0x060222DD, // #3463.ExplAttrInfos(#664,REQ)
    0x05025E17, // #3462.Attributes(#3463)
    0x060222FB, // #3464.Supertypes(#1289)
    0x06022313, // #3464.Composition(#1273,#1290,#974,#1289,#976,#891,#975,#98,#3464)
    0x06022356, // #3465.ExplAttrInfos(#666,OPT)
    0x05025EAB, // #3464.Attributes(#3465)
    0x06022374, // #3466.Supertypes(#1300)
    0x0602238C, // #3466.Composition(#1277,#1297,#1278,#1300,#891,#98,#1094,#1109,#3466)
    0x060223D2, // #3467.ExplAttrInfos(#666,REQ)
    0x05025F3F, // #3466.Attributes(#3467)
    0x060223F0, // #3468.Supertypes(#2106)
    0x06022408, // #3468.Composition(#974,#1476,#2106,#976,#891,#975,#98,#3468)
    0x06022445, // #3469.Supertypes(#1452)
    0x0602245D, // #3469.Composition(#1452,#974,#976,#891,#975,#98,#3469)
    0x05026001, // #3470.ExplAttrInfos(#90,OPT)
    0x0502601E, // #3471.ExplAttrInfos(#90,OPT)
    0x06022494, // #3472.ExplAttrInfos(#676,OPT)
    0x060224B2, // #3473.ExplAttrInfos(#678,OPT)
    0x05026077, // #3474.ExplAttrInfos(#14,OPT)
    0x05026094, // #3469.Attributes(#3470,#3471,#3472,#3473,#3474)
    0x060224D0, // #3475.Supertypes(#1880)
    0x060224E8, // #3475.Composition(#1880,#97,#96,#98,#3475)
    0x05026107, // #3476.ExplAttrInfos(#90,OPT)
    0x05026124, // #3477.ExplAttrInfos(#82,OPT)
    0x05026141, // #3478.ExplAttrInfos(#82,OPT)
    0x0502615E, // #3479.ExplAttrInfos(#82,OPT)
    0x0502617B, // #3480.ExplAttrInfos(#84,OPT)
    0x05026198, // #3481.ExplAttrInfos(#84,OPT)
    0x050261B5, // #3482.ExplAttrInfos(#84,OPT)
    0x050261D2, // #3483.ExplAttrInfos(#84,OPT)
    0x06022513, // #3484.ExplAttrInfos(#1147,OPT)
    0x0502620E, // #3485.ExplAttrInfos(#56,OPT)
    0x0502622B, // #3486.ExplAttrInfos(#56,OPT)
    0x05026248, // #3487.ExplAttrInfos(#56,OPT)
    0x05026265, // #3475.Attributes(#3476,#3477,#3478,#3479,#3480,#3481,#3482,#3483,#3484,#3485,#3486,#3487)
    0x06022532, // #3488.Supertypes(#1880)
    0x0602254A, // #3488.Composition(#1880,#97,#96,#98,#3488)
    0x06022575, // #3489.ExplAttrInfos(#668,REQ)
    0x06022593, // #3490.ExplAttrInfos(#670,REQ)
    0x0502633E, // #3491.ExplAttrInfos(#90,OPT)
    0x0402B6A0, // #3492.ExplAttrInfos(#90,OPT)
    0x060225B1, // #3493.ExplAttrInfos(#1147,OPT)
    0x0502637A, // #3488.Attributes(#3489,#3490,#3491,#3492,#3493)
    0x050263AA, // #3494.Supertypes(#3469)
    0x060225D0, // #3494.Composition(#1452,#974,#976,#891,#975,#98,#3469,#3494)
    0x0602260D, // #3495.Supertypes(#1109)
    0x06022625, // #3495.Composition(#891,#98,#1094,#1109,#3495)
    0x06022653, // #3496.ExplAttrInfos(#672,REQ)
    0x06022671, // #3497.ExplAttrInfos(#674,REQ)
    0x05026484, // #3498.ExplAttrInfos(#13,REQ)
    0x050264A1, // #3499.ExplAttrInfos(#13,REQ)
    0x050264BE, // #3495.Attributes(#3496,#3497,#3498,#3499)
    0x0602268F, // #3500.Supertypes(#1456)
    0x060226A7, // #3500.Composition(#1456,#1278,#891,#98,#1094,#1109,#3500)
    0x060226E1, // #3501.ExplAttrInfos(#676,REQ)
    0x060226FF, // #3502.ExplAttrInfos(#678,REQ)
    0x05026576, // #3503.ExplAttrInfos(#13,OPT)
    0x05026593, // #3504.ExplAttrInfos(#14,OPT)
    0x050265B0, // #3500.Attributes(#3501,#3502,#3503,#3504)
    0x0602271D, // #3505.Supertypes(#1264)
    0x06022735, // #3505.Composition(#1264,#976,#891,#98,#3505)
    0x06022762, // #3507.Supertypes(#1691)
    0x0602277A, // #3507.Composition(#1691,#3507)
    0x06022799, // #3508.ExplAttrInfos(#2681,OPT)
    0x05026676, // #3509.ExplAttrInfos(#24,OPT)
    0x05026693, // #3510.ExplAttrInfos(#24,OPT)
    0x050266B0, // #3507.Attributes(#3508,#3509,#3510)
    0x050266D4, // #3506.ExplAttrInfos(#3511,OPT)
    0x050266F3, // #3512.ExplAttrInfos(#3513,OPT)
    0x060227B8, // #3514.ExplAttrInfos(#680,OPT)
    0x05026730, // #3505.Attributes(#3506,#3512,#3514)
    0x060227D6, // #3515.Supertypes(#1264)
    0x060227EE, // #3515.Composition(#1264,#976,#891,#98,#3515)
    0x0502679A, // #3516.ExplAttrInfos(#25,REQ)
    0x050267B7, // #3517.ExplAttrInfos(#3518,OPT)
    0x050267D6, // #3519.ExplAttrInfos(#14,OPT)
    0x050267F3, // #3520.ExplAttrInfos(#31,OPT)
    0x05026810, // #3521.ExplAttrInfos(#31,OPT)
    0x0502682D, // #3522.ExplAttrInfos(#25,REQ)
    0x0502684A, // #3523.ExplAttrInfos(#25,OPT)
    0x05026867, // #3515.Attributes(#3516,#3517,#3519,#3520,#3521,#3522,#3523)
    0x050268A3, // #3524.Supertypes(#3515)
    0x0602281B, // #3524.Composition(#1264,#976,#891,#98,#3515,#3524)
    0x0602284E, // #3525.ExplAttrInfos(#682,OPT)
    0x0502690D, // #3524.Attributes(#3525)
    0x05026925, // #3526.Supertypes(#3515)
    0x0602286C, // #3526.Composition(#1264,#976,#891,#98,#3515,#3526)
    0x0602289F, // #3527.ExplAttrInfos(#684,OPT)
    0x0502698F, // #3526.Attributes(#3527)
    0x060228BD, // #3528.Supertypes(#1382)
    0x060228D5, // #3528.Composition(#1382,#1143,#3528)
    0x050269E4, // #3529.ExplAttrInfos(#90,REQ)
    0x05026A01, // #3530.ExplAttrInfos(#90,REQ)
    0x05026A1E, // #3531.ExplAttrInfos(#90,REQ)
    0x05026A3B, // #3532.ExplAttrInfos(#90,REQ)
    0x05026A58, // #3533.ExplAttrInfos(#82,OPT)
    0x05026A75, // #3534.ExplAttrInfos(#82,OPT)
    0x05026A92, // #3528.Attributes(#3529,#3530,#3531,#3532,#3533,#3534)
    0x060228FA, // #3535.Supertypes(#1537)
    0x06022912, // #3535.Composition(#1196,#976,#891,#98,#1537,#3535)
    0x05026B14, // #3536.ExplAttrInfos(#14,OPT)
    0x05026B31, // #3535.Attributes(#3536)
    0x06022945, // #1.Entities(#764,#765,#3326,#3330,#3333,#3349,#3335,#3339,#2165,#3356,#3360,#3362,#2170,#3367,#2693,#1067,#2703,#883,#3372,#3373,#3376,#3378,#3380,#3382,#3384,#3386,#3388,#3393,#3404,#3407,#3415,#3417,#1094,#1093,#1109,#1160,#3419,#1735,#3427,#3429,#3431,#3433,#3435,#3437,#933,#885,#3439,#1086,#3441,#3443,#3445,#3447,#3449,#3454,#961,#3455,#3456,#3458,#3460,#3461,#3462,#3464,#3466,#3468,#3469,#3475,#3488,#3494,#3495,#3500,#3505,#3515,#3524,#3526,#3507,#3528,#3535)
};

} // namespace

SchemaTables tablesOfIFC4X3_RC3() noexcept {
    return {reinterpret_cast<const char*>(&texts), declarations, statements};
}

} // namespace velkor::schemas
