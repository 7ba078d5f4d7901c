// Made by velkor-dictgen from IFC4X2.exp (SHA-256 d04c43f3daf94312115e5cb816066969de0ace801446aa9c28260fc0bb490e33), supplement.exp (SHA-256 7636111a5fb5ad6d4158766d4761df7fe3415575b43a00c3eeed4d538c68b1e6); do not edit.

#include "SchemaTables.h"

namespace velkor::schemas {

namespace {

struct Texts {
    char part0[59955];
    char part1[59971];
    char part2[25413];
};

constexpr Texts texts = {
    "Schema(IFC4X2)\0"
    "DefinedType(IFCALIGNMENTTYPEENUM,#217)\0"
    "DefinedType(IFCANALYSISMODELTYPEENUM,#219)\0"
    "DefinedType(IFCANALYSISTHEORYTYPEENUM,#221)\0"
    "DefinedType(IFCARITHMETICOPERATORENUM,#223)\0"
    "DefinedType(IFCASSEMBLYPLACEENUM,#225)\0"
    "DefinedType(IFCAUDIOVISUALAPPLIANCETYPEENUM,#227)\0"
    "DefinedType(IFCBSPLINECURVEFORM,#229)\0"
    "DefinedType(IFCBSPLINESURFACEFORM,#231)\0"
    "EnumerationType(BEAM,JOIST,HOLLOWCORE,LINTEL,SPANDREL,T_BEAM,GIRDER_SEGMENT,DIAPHRAGM,PIERCAP,HATSTONE,CORNICE,EDGEBEAM,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCBEAMTYPEENUM,#233)\0"
    "EnumerationType(FIXED_MOVEMENT,GUIDED_LONGITUDINAL,GUIDED_TRANSVERSAL,FREE_MOVEMENT,NOTDEFINED)\0"
    "DefinedType(IFCBEARINGTYPEDISPLACEMENTENUM,#235)\0"
    "EnumerationType(CYLINDRICAL,SPHERICAL,ELASTOMERIC,POT,GUIDE,ROCKER,ROLLER,DISK,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCBEARINGTYPEENUM,#237)\0"
    "DefinedType(IFCBENCHMARKENUM,#239)\0"
    "DefinedType(IFCBOILERTYPEENUM,#241)\0"
    "DefinedType(IFCBOOLEANOPERATOR,#243)\0"
    "EnumerationType(ABUTMENT,DECK,DECK_SEGMENT,FOUNDATION,PIER,PIER_SEGMENT,PYLON,SUBSTRUCTURE,SUPERSTRUCTURE,SURFACESTRUCTURE,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCBRIDGEPARTTYPEENUM,#245)\0"
    "EnumerationType(ARCHED,CABLE_STAYED,CANTILEVER,CULVERT,FRAMEWORK,GIRDER,SUSPENSION,TRUSS,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCBRIDGETYPEENUM,#247)\0"
    "EnumerationType(INSULATION,PRECASTPANEL,APRON,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCBUILDINGELEMENTPARTTYPEENUM,#249)\0"
    "DefinedType(IFCBUILDINGELEMENTPROXYTYPEENUM,#251)\0"
    "EnumerationType(FENESTRATION,FOUNDATION,LOADBEARING,OUTERSHELL,SHADING,TRANSPORT,REINFORCING,PRESTRESSING,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCBUILDINGSYSTEMTYPEENUM,#253)\0"
    "DefinedType(IFCBURNERTYPEENUM,#255)\0"
    "DefinedType(IFCCABLECARRIERFITTINGTYPEENUM,#257)\0"
    "DefinedType(IFCCABLECARRIERSEGMENTTYPEENUM,#259)\0"
    "DefinedType(IFCCABLEFITTINGTYPEENUM,#261)\0"
    "DefinedType(IFCCABLESEGMENTTYPEENUM,#263)\0"
    "EnumerationType(WELL,CAISSON,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCCAISSONFOUNDATIONTYPEENUM,#265)\0"
    "DefinedType(IFCCHILLERTYPEENUM,#267)\0"
    "DefinedType(IFCCHIMNEYTYPEENUM,#269)\0"
    "DefinedType(IFCCOILTYPEENUM,#271)\0"
    "EnumerationType(COLUMN,PILASTER,PIERSTEM,PIERSTEM_SEGMENT,STANDCOLUMN,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCCOLUMNTYPEENUM,#273)\0"
    "DefinedType(IFCCOMMUNICATIONSAPPLIANCETYPEENUM,#275)\0"
    "DefinedType(IFCCOMPLEXPROPERTYTEMPLATETYPEENUM,#277)\0"
    "DefinedType(IFCCOMPRESSORTYPEENUM,#279)\0"
    "DefinedType(IFCCONDENSERTYPEENUM,#281)\0"
    "DefinedType(IFCCONNECTIONTYPEENUM,#283)\0"
    "DefinedType(IFCCONSTRAINTENUM,#285)\0"
    "DefinedType(IFCCONSTRUCTIONEQUIPMENTRESOURCETYPEENUM,#287)\0"
    "DefinedType(IFCCONSTRUCTIONMATERIALRESOURCETYPEENUM,#289)\0"
    "DefinedType(IFCCONSTRUCTIONPRODUCTRESOURCETYPEENUM,#291)\0"
    "DefinedType(IFCCONTROLLERTYPEENUM,#293)\0"
    "DefinedType(IFCCOOLEDBEAMTYPEENUM,#295)\0"
    "DefinedType(IFCCOOLINGTOWERTYPEENUM,#297)\0"
    "DefinedType(IFCCOSTITEMTYPEENUM,#299)\0"
    "DefinedType(IFCCOSTSCHEDULETYPEENUM,#301)\0"
    "EnumerationType(CEILING,FLOORING,CLADDING,ROOFING,MOLDING,SKIRTINGBOARD,INSULATION,MEMBRANE,SLEEVING,WRAPPING,COPING,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCCOVERINGTYPEENUM,#303)\0"
    "DefinedType(IFCCREWRESOURCETYPEENUM,#305)\0"
    "DefinedType(IFCCURTAINWALLTYPEENUM,#307)\0"
    "DefinedType(IFCCURVEINTERPOLATIONENUM,#309)\0"
    "DefinedType(IFCDAMPERTYPEENUM,#311)\0"
    "DefinedType(IFCDATAORIGINENUM,#313)\0"
    "DefinedType(IFCDERIVEDUNITENUM,#315)\0"
    "DefinedType(IFCDIRECTIONSENSEENUM,#317)\0"
    "EnumerationType(ANCHORPLATE,BRACKET,SHOE,EXPANSION_JOINT_DEVICE,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCDISCRETEACCESSORYTYPEENUM,#319)\0"
    "DefinedType(IFCDISTRIBUTIONCHAMBERELEMENTTYPEENUM,#321)\0"
    "DefinedType(IFCDISTRIBUTIONPORTTYPEENUM,#323)\0"
    "DefinedType(IFCDISTRIBUTIONSYSTEMENUM,#325)\0"
    "DefinedType(IFCDOCUMENTCONFIDENTIALITYENUM,#327)\0"
    "DefinedType(IFCDOCUMENTSTATUSENUM,#329)\0"
    "DefinedType(IFCDOORPANELOPERATIONENUM,#331)\0"
    "DefinedType(IFCDOORPANELPOSITIONENUM,#333)\0"
    "DefinedType(IFCDOORSTYLECONSTRUCTIONENUM,#335)\0"
    "DefinedType(IFCDOORSTYLEOPERATIONENUM,#337)\0"
    "DefinedType(IFCDOORTYPEENUM,#339)\0"
    "DefinedType(IFCDOORTYPEOPERATIONENUM,#341)\0"
    "DefinedType(IFCDUCTFITTINGTYPEENUM,#343)\0"
    "DefinedType(IFCDUCTSEGMENTTYPEENUM,#345)\0"
    "DefinedType(IFCDUCTSILENCERTYPEENUM,#347)\0"
    "DefinedType(IFCELECTRICAPPLIANCETYPEENUM,#349)\0"
    "DefinedType(IFCELECTRICDISTRIBUTIONBOARDTYPEENUM,#351)\0"
    "DefinedType(IFCELECTRICFLOWSTORAGEDEVICETYPEENUM,#353)\0"
    "DefinedType(IFCELECTRICGENERATORTYPEENUM,#355)\0"
    "DefinedType(IFCELECTRICMOTORTYPEENUM,#357)\0"
    "DefinedType(IFCELECTRICTIMECONTROLTYPEENUM,#359)\0"
    "EnumerationType(ACCESSORY_ASSEMBLY,ARCH,BEAM_GRID,BRACED_FRAME,GIRDER,REINFORCEMENT_UNIT,RIGID_FRAME,SLAB_FIELD,TRUSS,ABUTMENT,PIER,PYLON,CROSS_BRACING,DECK,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCELEMENTASSEMBLYTYPEENUM,#361)\0"
    "DefinedType(IFCELEMENTCOMPOSITIONENUM,#363)\0"
    "DefinedType(IFCENGINETYPEENUM,#365)\0"
    "DefinedType(IFCEVAPORATIVECOOLERTYPEENUM,#367)\0"
    "DefinedType(IFCEVAPORATORTYPEENUM,#369)\0"
    "DefinedType(IFCEVENTTRIGGERTYPEENUM,#371)\0"
    "DefinedType(IFCEVENTTYPEENUM,#373)\0"
    "DefinedType(IFCEXTERNALSPATIALELEMENTTYPEENUM,#375)\0"
    "DefinedType(IFCFANTYPEENUM,#377)\0"
    "DefinedType(IFCFASTENERTYPEENUM,#379)\0"
    "DefinedType(IFCFILTERTYPEENUM,#381)\0"
    "DefinedType(IFCFIRESUPPRESSIONTERMINALTYPEENUM,#383)\0"
    "DefinedType(IFCFLOWDIRECTIONENUM,#385)\0"
    "DefinedType(IFCFLOWINSTRUMENTTYPEENUM,#387)\0"
    "DefinedType(IFCFLOWMETERTYPEENUM,#389)\0"
    "DefinedType(IFCFOOTINGTYPEENUM,#391)\0"
    "DefinedType(IFCFURNITURETYPEENUM,#393)\0"
    "EnumerationType(TERRAIN,SOIL_BORING_POINT,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCGEOGRAPHICELEMENTTYPEENUM,#395)\0"
    "DefinedType(IFCGEOMETRICPROJECTIONENUM,#397)\0"
    "DefinedType(IFCGLOBALORLOCALENUM,#399)\0"
    "DefinedType(IFCGRIDTYPEENUM,#401)\0"
    "DefinedType(IFCHEATEXCHANGERTYPEENUM,#403)\0"
    "DefinedType(IFCHUMIDIFIERTYPEENUM,#405)\0"
    "DefinedType(IFCINTERCEPTORTYPEENUM,#407)\0"
    "DefinedType(IFCINTERNALOREXTERNALENUM,#409)\0"
    "DefinedType(IFCINVENTORYTYPEENUM,#411)\0"
    "DefinedType(IFCJUNCTIONBOXTYPEENUM,#413)\0"
    "DefinedType(IFCKNOTTYPE,#415)\0"
    "DefinedType(IFCLABORRESOURCETYPEENUM,#417)\0"
    "DefinedType(IFCLAMPTYPEENUM,#419)\0"
    "DefinedType(IFCLAYERSETDIRECTIONENUM,#421)\0"
    "DefinedType(IFCLIGHTDISTRIBUTIONCURVEENUM,#423)\0"
    "DefinedType(IFCLIGHTEMISSIONSOURCEENUM,#425)\0"
    "DefinedType(IFCLIGHTFIXTURETYPEENUM,#427)\0"
    "DefinedType(IFCLOADGROUPTYPEENUM,#429)\0"
    "DefinedType(IFCLOGICALOPERATORENUM,#431)\0"
    "EnumerationType(ANCHORBOLT,BOLT,DOWEL,NAIL,NAILPLATE,RIVET,SCREW,SHEARCONNECTOR,STAPLE,STUDSHEARCONNECTOR,COUPLER,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCMECHANICALFASTENERTYPEENUM,#433)\0"
    "DefinedType(IFCMEDICALDEVICETYPEENUM,#435)\0"
    "EnumerationType(BRACE,CHORD,COLLAR,MEMBER,MULLION,PLATE,POST,PURLIN,RAFTER,STRINGER,STRUT,STUD,STIFFENING_RIB,ARCH_SEGMENT,SUSPENSION_CABLE,SUSPENDER,STAY_CABLE,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCMEMBERTYPEENUM,#437)\0"
    "DefinedType(IFCMOTORCONNECTIONTYPEENUM,#439)\0"
    "DefinedType(IFCNULLSTYLE,#441)\0"
    "DefinedType(IFCOBJECTTYPEENUM,#443)\0"
    "DefinedType(IFCOBJECTIVEENUM,#445)\0"
    "DefinedType(IFCOCCUPANTTYPEENUM,#447)\0"
    "DefinedType(IFCOPENINGELEMENTTYPEENUM,#449)\0"
    "DefinedType(IFCOUTLETTYPEENUM,#451)\0"
    "DefinedType(IFCPERFORMANCEHISTORYTYPEENUM,#453)\0"
    "DefinedType(IFCPERMEABLECOVERINGOPERATIONENUM,#455)\0"
    "DefinedType(IFCPERMITTYPEENUM,#457)\0"
    "DefinedType(IFCPHYSICALORVIRTUALENUM,#459)\0"
    "DefinedType(IFCPILECONSTRUCTIONENUM,#461)\0"
    "DefinedType(IFCPILETYPEENUM,#463)\0"
    "DefinedType(IFCPIPEFITTINGTYPEENUM,#465)\0"
    "DefinedType(IFCPIPESEGMENTTYPEENUM,#467)\0"
    "EnumerationType(CURTAIN_PANEL,SHEET,FLANGE_PLATE,WEB_PLATE,STIFFENER_PLATE,GUSSET_PLATE,COVER_PLATE,SPLICE_PLATE,BASE_PLATE,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCPLATETYPEENUM,#469)\0"
    "DefinedType(IFCPREFERREDSURFACECURVEREPRESENTATION,#471)\0"
    "DefinedType(IFCPROCEDURETYPEENUM,#473)\0"
    "DefinedType(IFCPROFILETYPEENUM,#475)\0"
    "DefinedType(IFCPROJECTORDERTYPEENUM,#477)\0"
    "DefinedType(IFCPROJECTEDORTRUELENGTHENUM,#479)\0"
    "EnumerationType(BLISTER,DEVIATOR,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCPROJECTIONELEMENTTYPEENUM,#481)\0"
    "DefinedType(IFCPROPERTYSETTEMPLATETYPEENUM,#483)\0"
    "DefinedType(IFCPROTECTIVEDEVICETRIPPINGUNITTYPEENUM,#485)\0"
    "DefinedType(IFCPROTECTIVEDEVICETYPEENUM,#487)\0"
    "DefinedType(IFCPUMPTYPEENUM,#489)\0"
    "DefinedType(IFCRAILINGTYPEENUM,#491)\0"
    "DefinedType(IFCRAMPFLIGHTTYPEENUM,#493)\0"
    "DefinedType(IFCRAMPTYPEENUM,#495)\0"
    "DefinedType(IFCRECURRENCETYPEENUM,#497)\0"
    "DefinedType(IFCREFERENTTYPEENUM,#499)\0"
    "DefinedType(IFCREFLECTANCEMETHODENUM,#501)\0"
    "DefinedType(IFCREINFORCINGBARROLEENUM,#503)\0"
    "DefinedType(IFCREINFORCINGBARSURFACEENUM,#505)\0"
    "EnumerationType(ANCHORING,EDGE,LIGATURE,MAIN,PUNCHING,RING,SHEAR,STUD,SPACEBAR,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCREINFORCINGBARTYPEENUM,#507)\0"
    "DefinedType(IFCREINFORCINGMESHTYPEENUM,#509)\0"
    "DefinedType(IFCROOFTYPEENUM,#511)\0"
    "DefinedType(IFCSIPREFIX,#513)\0"
    "DefinedType(IFCSIUNITNAME,#515)\0"
    "DefinedType(IFCSANITARYTERMINALTYPEENUM,#517)\0"
    "DefinedType(IFCSECTIONTYPEENUM,#519)\0"
    "DefinedType(IFCSENSORTYPEENUM,#521)\0"
    "DefinedType(IFCSEQUENCEENUM,#523)\0"
    "DefinedType(IFCSHADINGDEVICETYPEENUM,#525)\0"
    "DefinedType(IFCSIMPLEPROPERTYTEMPLATETYPEENUM,#527)\0"
    "EnumerationType(FLOOR,ROOF,LANDING,BASESLAB,APPROACH_SLAB,PAVING,WEARING,SIDEWALK,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCSLABTYPEENUM,#529)\0"
    "DefinedType(IFCSOLARDEVICETYPEENUM,#531)\0"
    "DefinedType(IFCSPACEHEATERTYPEENUM,#533)\0"
    "DefinedType(IFCSPACETYPEENUM,#535)\0"
    "DefinedType(IFCSPATIALZONETYPEENUM,#537)\0"
    "DefinedType(IFCSTACKTERMINALTYPEENUM,#539)\0"
    "DefinedType(IFCSTAIRFLIGHTTYPEENUM,#541)\0"
    "DefinedType(IFCSTAIRTYPEENUM,#543)\0"
    "DefinedType(IFCSTRUCTURALCURVEACTIVITYTYPEENUM,#545)\0"
    "DefinedType(IFCSTRUCTURALCURVEMEMBERTYPEENUM,#547)\0"
    "DefinedType(IFCSTRUCTURALSURFACEACTIVITYTYPEENUM,#549)\0"
    "DefinedType(IFCSTRUCTURALSURFACEMEMBERTYPEENUM,#551)\0"
    "DefinedType(IFCSUBCONTRACTRESOURCETYPEENUM,#553)\0"
    "EnumerationType(MARK,TAG,TREATMENT,DEFECT,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCSURFACEFEATURETYPEENUM,#555)\0"
    "DefinedType(IFCSURFACESIDE,#557)\0"
    "DefinedType(IFCSWITCHINGDEVICETYPEENUM,#559)\0"
    "DefinedType(IFCSYSTEMFURNITUREELEMENTTYPEENUM,#561)\0"
    "DefinedType(IFCTANKTYPEENUM,#563)\0"
    "DefinedType(IFCTASKDURATIONENUM,#565)\0"
    "DefinedType(IFCTASKTYPEENUM,#567)\0"
    "DefinedType(IFCTENDONANCHORTYPEENUM,#569)\0"
    "EnumerationType(DUCT,COUPLER,GROUTING_DUCT,TRUMPET,DIABOLO,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCTENDONCONDUITTYPEENUM,#571)\0"
    "DefinedType(IFCTENDONTYPEENUM,#573)\0"
    "DefinedType(IFCTEXTPATH,#575)\0"
    "DefinedType(IFCTIMESERIESDATATYPEENUM,#577)\0"
    "DefinedType(IFCTRANSFORMERTYPEENUM,#579)\0"
    "DefinedType(IFCTRANSITIONCODE,#581)\0"
    "DefinedType(IFCTRANSITIONCURVETYPE,#583)\0"
    "DefinedType(IFCTRANSPORTELEMENTTYPEENUM,#585)\0"
    "DefinedType(IFCTRIMMINGPREFERENCE,#587)\0"
    "DefinedType(IFCTUBEBUNDLETYPEENUM,#589)\0"
    "DefinedType(IFCUNITENUM,#591)\0"
    "DefinedType(IFCUNITARYCONTROLELEMENTTYPEENUM,#593)\0"
    "DefinedType(IFCUNITARYEQUIPMENTTYPEENUM,#595)\0"
    "DefinedType(IFCVALVETYPEENUM,#597)\0"
    "EnumerationType(BENDING_YIELD,SHEAR_YIELD,AXIAL_YIELD,FRICTION,VISCOUS,RUBBER,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCVIBRATIONDAMPERTYPEENUM,#599)\0"
    "EnumerationType(COMPRESSION,SPRING,BASE,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCVIBRATIONISOLATORTYPEENUM,#601)\0"
    "DefinedType(IFCVOIDINGFEATURETYPEENUM,#603)\0"
    "EnumerationType(MOVABLE,PARAPET,PARTITIONING,PLUMBINGWALL,SHEAR,SOLIDWALL,STANDARD,POLYGONAL,ELEMENTEDWALL,RETAININGWALL,USERDEFINED,NOTDEFINED)\0"
    "DefinedType(IFCWALLTYPEENUM,#605)\0"
    "DefinedType(IFCWASTETERMINALTYPEENUM,#607)\0"
    "DefinedType(IFCWINDOWPANELOPERATIONENUM,#609)\0"
    "DefinedType(IFCWINDOWPANELPOSITIONENUM,#611)\0"
    "DefinedType(IFCWINDOWSTYLECONSTRUCTIONENUM,#613)\0"
    "DefinedType(IFCWINDOWSTYLEOPERATIONENUM,#615)\0"
    "DefinedType(IFCWINDOWTYPEENUM,#617)\0"
    "DefinedType(IFCWINDOWTYPEPARTITIONINGENUM,#619)\0"
    "DefinedType(IFCWORKCALENDARTYPEENUM,#621)\0"
    "DefinedType(IFCWORKPLANTYPEENUM,#623)\0"
    "DefinedType(IFCWORKSCHEDULETYPEENUM,#625)\0"
    "DefinedType(IFCACTORSELECT,#627)\0"
    "DefinedType(IFCDERIVEDMEASUREVALUE,#631)\0"
    "DefinedType(IFCMEASUREVALUE,#633)\0"
    "DefinedType(IFCSIMPLEVALUE,#635)\0"
    "SelectType(#632,#634,#636)\0"
    "DefinedType(IFCVALUE,#637)\0"
    "SetType(#642,1,-1)\0"
    "SelectType(#640,#660,#644)\0"
    "DefinedType(IFCUNIT,#662)\0"
    "SelectType(#629,#664,#638)\0"
    "DefinedType(IFCAPPLIEDVALUESELECT,#671)\0"
    "SelectType(#673,#689)\0"
    "DefinedType(IFCAXIS2PLACEMENT,#692)\0"
    "DefinedType(IFCBENDINGPARAMETERSELECT,#694)\0"
    "ListType(#717,1,-1,DUPL)\0"
    "SelectType(#696,#699,#702,#708,#710)\0"
    "DefinedType(IFCBOOLEANOPERAND,#722)\0"
    "DefinedType(IFCBOOLEANOPERAND,#726)\0"
    "SelectType(#728,#738)\0"
    "DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#744)\0"
    "DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#748)\0"
    "DefinedType(IFCCLASSIFICATIONSELECT,#750)\0"
    "SelectType(#752,#755)\0"
    "DefinedType(IFCCOLOUR,#758)\0"
    "SelectType(#760,#84)\0"
    "DefinedType(IFCCOLOURORFACTOR,#764)\0"
    "SelectType(#766,#771)\0"
    "DefinedType(IFCCOORDINATEREFERENCESYSTEMSELECT,#779)\0"
    "SelectType(#696,#699)\0"
    "DefinedType(IFCCSGSELECT,#781)\0"
    "ListType(#789,1,-1,DUPL)\0"
    "SelectType(#786,#793)\0"
    "DefinedType(IFCCURVESTYLEFONTSELECT,#794)\0"
    "SelectType(#783,#795)\0"
    "DefinedType(IFCCURVEFONTORSCALEDCURVEFONTSELECT,#797)\0"
    "ListType(#805,1,-1,DUPL)\0"
    "SetType(#704,0,1)\0"
    "ListType(#816,1,2,DUPL)\0"
    "SetType(#704,1,2)\0"
    "SelectType(#799,#816,#819)\0"
    "DefinedType(IFCCURVEONSURFACE,#826)\0"
    "SelectType(#801,#828)\0"
    "DefinedType(IFCCURVEOREDGECURVE,#836)\0"
    "SelectType(#838,#97)\0"
    "DefinedType(IFCDEFINITIONSELECT,#839)\0"
    "SetType(#628,1,-1)\0"
    "SelectType(#841,#860)\0"
    "DefinedType(IFCDOCUMENTSELECT,#863)\0"
    "DefinedType(IFCSIZESELECT,#873)\0"
    "SelectType(#90,#878)\0"
    "DefinedType(IFCHATCHLINEDISTANCESELECT,#882)\0"
    "ListType(#878,2,2,DUPL)\0"
    "SelectType(#759,#865,#866,#887)\0"
    "DefinedType(IFCFILLSTYLESELECT,#898)\0"
    "SetType(#899,1,-1)\0"
    "ListType(#685,2,2,DUPL)\0"
    "ListType(#919,1,-1,DUPL)\0"
    "SelectType(#905,#906,#911,#914,#917)\0"
    "DefinedType(IFCSURFACESTYLEELEMENTSELECT,#937)\0"
    "SetType(#938,1,5)\0"
    "SelectType(#955,#956)\0"
    "DefinedType(IFCTEXTFONTSELECT,#957)\0"
    "SelectType(#868,#896,#442,#902,#940)\0"
    "DefinedType(IFCPRESENTATIONSTYLESELECT,#960)\0"
    "SetType(#961,1,-1)\0"
    "SelectType(#869,#894)\0"
    "DefinedType(IFCSTYLEASSIGNMENTSELECT,#963)\0"
    "SetType(#964,1,-1)\0"
    "SetType(#891,1,-1)\0"
    "DefinedType(IFCFILLSTYLESELECT,#969)\0"
    "SelectType(#802,#679,#704)\0"
    "DefinedType(IFCGEOMETRICSETSELECT,#971)\0"
    "ListType(#975,2,2,DUPL)\0"
    "SelectType(#685,#973)\0"
    "DefinedType(IFCGRIDPLACEMENTDIRECTIONSELECT,#982)\0"
    "SetType(#676,1,-1)\0"
    "SelectType(#984,#676)\0"
    "DefinedType(IFCLAYEREDITEM,#990)\0"
    "SelectType(#992,#999)\0"
    "DefinedType(IFCLIBRARYSELECT,#1003)\0"
    "ListType(#1008,1,-1,DUPL)\0"
    "SelectType(#739,#1005)\0"
    "DefinedType(IFCLIGHTDISTRIBUTIONDATASOURCESELECT,#1015)\0"
    "ListType(#1020,1,-1,DUPL)\0"
    "SelectType(#1017,#1018,#1025)\0"
    "DefinedType(IFCMATERIALSELECT,#1026)\0"
    "ListType(#1028,1,-1,DUPL)\0"
    "ListType(#638,1,-1,DUPL)\0"
    "ListType(#1043,1,-1,DUPL)\0"
    "ListType(#1049,1,-1,DUPL)\0"
    "SelectType(#1028,#629,#664,#1040,#1059,#638)\0"
    "DefinedType(IFCMETRICVALUESELECT,#1068)\0"
    "DefinedType(IFCMODULUSOFROTATIONALSUBGRADEREACTIONSELECT,#1070)\0"
    "DefinedType(IFCMODULUSOFSUBGRADEREACTIONSELECT,#1072)\0"
    "DefinedType(IFCMODULUSOFTRANSLATIONALSUBGRADEREACTIONSELECT,#1074)\0"
    "SelectType(#125,#1028,#739,#1017,#133,#105,#103,#1040,#1059)\0"
    "DefinedType(IFCOBJECTREFERENCESELECT,#1076)\0"
    "SelectType(#679,#1078)\0"
    "DefinedType(IFCPOINTORVERTEXPOINT,#1080)\0"
    "SelectType(#1082,#1087)\0"
    "DefinedType(IFCPROCESSSELECT,#1095)\0"
    "ListType(#984,1,-1,DUPL)\0"
    "SelectType(#1097,#1103)\0"
    "DefinedType(IFCPRODUCTREPRESENTATIONSELECT,#1106)\0"
    "SelectType(#1108,#1113)\0"
    "DefinedType(IFCPRODUCTSELECT,#1117)\0"
    "DefinedType(IFCPROPERTYSETDEFINITIONSELECT,#1119)\0"
    "ListType(#1153,1,-1,DUPL)\0"
    "SelectType(#116,#1028,#1121,#1131,#1139,#1141,#729,#739,#1017,#133,#105,#103,#1144,#1147,#1150,#1151,#1059)\0"
    "DefinedType(IFCRESOURCEOBJECTSELECT,#1159)\0"
    "SelectType(#1161,#1164)\0"
    "DefinedType(IFCRESOURCESELECT,#1168)\0"
    "DefinedType(IFCROTATIONALSTIFFNESSSELECT,#1170)\0"
    "DefinedType(IFCSEGMENTINDEXSELECT,#1172)\0"
    "SetType(#1179,1,-1)\0"
    "SetType(#1177,1,-1)\0"
    "SelectType(#1174,#1185)\0"
    "DefinedType(IFCSHELL,#1186)\0"
    "SelectType(#1174,#708)\0"
    "DefinedType(IFCSOLIDORSHELL,#1188)\0"
    "SelectType(#1190,#1195)\0"
    "DefinedType(IFCSPACEBOUNDARYSELECT,#1200)\0"
    "DefinedType(IFCSPECULARHIGHLIGHTSELECT,#1202)\0"
    "SelectType(#1204,#1206)\0"
    "DefinedType(IFCSTRUCTURALACTIVITYASSIGNMENTSELECT,#1207)\0"
    "SetType(#1175,1,-1)\0"
    "SelectType(#1209,#1213,#704)\0"
    "DefinedType(IFCSURFACEORFACESURFACE,#1216)\0"
    "DefinedType(IFCTIMEORRATIOSELECT,#1218)\0"
    "DefinedType(IFCTRANSLATIONALSTIFFNESSSELECT,#1220)\0"
    "SelectType(#678,#87)\0"
    "DefinedType(IFCTRIMMINGSELECT,#1222)\0"
    "SelectType(#685,#878)\0"
    "DefinedType(IFCVECTORORDIRECTION,#1224)\0"
    "DefinedType(IFCWARPINGSTIFFNESSSELECT,#1226)\0"
    "SetType(#1174,1,-1)\0"
    "Entity(IFCLINEARPOSITIONINGELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ListType(#1285,1,-1,DUPL)\0"
    "ListType(#1297,1,-1,DUPL)\0"
    "SetType(#802,1,-1)\0"
    "ListType(#678,2,-1,DUPL)\0"
    "ArrayType(#678,0,0,DUPL,REQ)\0"
    "ListType(#1390,2,-1,DUPL)\0"
    "ArrayType(#1399,0,0,DUPL,REQ)\0"
    "Entity(IFCBEARING,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCBEARINGTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCBRIDGE,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCFACILITY,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCBRIDGEPART,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCFACILITYPART,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCCAISSONFOUNDATION,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCDEEPFOUNDATION,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCCAISSONFOUNDATIONTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCDEEPFOUNDATIONTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ListType(#1540,1,-1,DUPL)\0"
    "ListType(#685,3,3,DUPL)\0"
    "ListType(#1585,1,-1,DUPL)\0"
    "SetType(#1597,1,-1)\0"
    "SetType(#1604,1,-1)\0"
    "SetType(#1147,2,-1)\0"
    "SetType(#772,1,-1)\0"
    "SetType(#663,1,-1)\0"
    "ListType(#1338,1,-1,DUPL)\0"
    "ListType(#1144,1,-1,DUPL)\0"
    "SetType(#802,0,-1)\0"
    "SetType(#1438,1,-1)\0"
    "SetType(#841,1,-1)\0"
    "ListType(#1847,1,-1,DUPL)\0"
    "SetType(#1160,1,-1)\0"
    "SetType(#972,1,-1)\0"
    "ListType(#975,1,-1,DUPL)\0"
    "ListType(#1173,1,-1,DUPL)\0"
    "ListType(#2059,1,-1,DUPL)\0"
    "ListType(#2069,1,-1,DUPL)\0"
    "ListType(#2073,1,-1,DUPL)\0"
    "ListType(#2090,1,-1,DUPL)\0"
    "ExplicitAttr(PLACEMENTMEASUREDALONG)\0"
    "SetType(#751,1,-1)\0"
    "SetType(#2175,1,-1)\0"
    "ListType(#2188,1,-1,DUPL)\0"
    "ListType(#2212,1,-1,DUPL)\0"
    "SetType(#1020,1,-1)\0"
    "ListType(#1131,1,-1,DUPL)\0"
    "ListType(#1767,1,-1,DUPL)\0"
    "ListType(#678,3,-1,DUPL)\0"
    "ListType(#2054,1,-1,DUPL)\0"
    "SetType(#991,1,-1)\0"
    "SetType(#869,0,-1)\0"
    "ListType(#2511,2,-1,DUPL)\0"
    "ArrayType(#2514,0,0,DUPL,REQ)\0"
    "ListType(#2547,1,-1,DUPL)\0"
    "ListType(#2557,1,-1,DUPL)\0"
    "SetType(#2561,1,-1)\0"
    "ListType(#2571,1,-1,DUPL)\0"
    "SetType(#838,1,-1)\0"
    "SetType(#840,1,-1)\0"
    "SetType(#1204,1,-1)\0"
    "SetType(#1108,1,-1)\0"
    "SetType(#1720,1,-1)\0"
    "SetType(#1083,1,-1)\0"
    "SetType(#1237,1,-1)\0"
    "ListType(#838,1,-1,DUPL)\0"
    "Entity(IFCRELPOSITIONS,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ExplicitAttr(RELATINGPOSITIONINGELEMENT)\0"
    "ExplicitAttr(RELATEDPRODUCTS)\0"
    "SetType(#1192,1,-1)\0"
    "ListType(#1147,2,-1,DUPL)\0"
    "ListType(#1767,2,-1,DUPL)\0"
    "ListType(#689,2,-1,DUPL)\0"
    "SetType(#1187,1,-1)\0"
    "SetType(#2929,1,-1)\0"
    "SetType(#2937,1,-1)\0"
    "ListType(#2961,1,-1,DUPL)\0"
    "ListType(#2964,1,-1,DUPL)\0"
    "Entity(IFCTENDONCONDUIT,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCTENDONCONDUITTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "ListType(#3169,3,-1,DUPL)\0"
    "ListType(#3199,1,-1,DUPL)\0"
    "ListType(#3203,1,-1,DUPL)\0"
    "SetType(#1223,1,2)\0"
    "Entity(IFCVIBRATIONDAMPER,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "Entity(IFCVIBRATIONDAMPERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)\0"
    "SetType(#3305,1,-1)\0"
    "#630.ExplAttrInfos(#638,REQ)\0"
    "#642.Composition(#642)\0"
    "#647.ExplAttrInfos(IntegerType,REQ)\0"
    "#648.ExplAttrInfos(IntegerType,REQ)\0"
    "#649.ExplAttrInfos(IntegerType,REQ)\0"
    "#650.ExplAttrInfos(IntegerType,REQ)\0"
    "#651.ExplAttrInfos(IntegerType,REQ)\0"
    "#652.ExplAttrInfos(IntegerType,REQ)\0"
    "#653.ExplAttrInfos(IntegerType,REQ)\0"
    "#646.Attributes(#647,#648,#649,#650,#651,#652,#653)\0"
    "#645.ExplAttrInfos(#646,REQ)\0"
    "#654.ExplAttrInfos(#592,REQ)\0"
    "#644.Attributes(#645,#654)\0"
    "#643.ExplAttrInfos(#644,REQ)\0"
    "#655.ExplAttrInfos(IntegerType,REQ)\0"
    "#642.Attributes(#643,#655)\0"
    "#641.ExplAttrInfos(#656,REQ)\0"
    "#657.ExplAttrInfos(#316,REQ)\0"
    "#658.ExplAttrInfos(#14,OPT)\0"
    "#659.DerivAttrInfos(#646)\0"
    "#640.Attributes(#641,#657,#658,#659)\0"
    "#661.ExplAttrInfos(#14,REQ)\0"
    "#660.Attributes(#661)\0"
    "#639.ExplAttrInfos(#663,REQ)\0"
    "#629.Attributes(#630,#639)\0"
    "#664.Composition(#664)\0"
    "#665.ExplAttrInfos(#48,OPT)\0"
    "#666.ExplAttrInfos(#48,OPT)\0"
    "#667.ExplAttrInfos(#14,OPT)\0"
    "#670.ExplAttrInfos(#664,OPT)\0"
    "#664.Attributes(#665,#666,#667,#668,#670)\0"
    "#676.Composition(#676)\0"
    "#675.Supertypes(#676)\0"
    "#675.Composition(#675,#676)\0"
    "#674.Supertypes(#675)\0"
    "#674.Composition(#675,#674,#676)\0"
    "#679.Supertypes(#675)\0"
    "#679.Composition(#675,#679,#676)\0"
    "#678.Supertypes(#679)\0"
    "#678.Composition(#678,#675,#679,#676)\0"
    "#680.ExplAttrInfos(#681,REQ)\0"
    "#682.DerivAttrInfos(#29)\0"
    "#678.Attributes(#680,#682)\0"
    "#677.ExplAttrInfos(#678,REQ)\0"
    "#683.DerivAttrInfos(#29)\0"
    "#674.Attributes(#677,#683)\0"
    "#673.Supertypes(#674)\0"
    "#673.Composition(#673,#675,#674,#676)\0"
    "#685.Supertypes(#675)\0"
    "#685.Composition(#685,#675,#676)\0"
    "#686.ExplAttrInfos(#687,REQ)\0"
    "#688.DerivAttrInfos(#29)\0"
    "#685.Attributes(#686,#688)\0"
    "#684.ExplAttrInfos(#685,OPT)\0"
    "#673.Attributes(#684)\0"
    "#689.Supertypes(#674)\0"
    "#689.Composition(#689,#675,#674,#676)\0"
    "#690.ExplAttrInfos(#685,OPT)\0"
    "#691.ExplAttrInfos(#685,OPT)\0"
    "#689.Attributes(#690,#691)\0"
    "#696.Supertypes(#675)\0"
    "#696.Composition(#696,#675,#676)\0"
    "#697.ExplAttrInfos(#244,REQ)\0"
    "#698.ExplAttrInfos(#723,REQ)\0"
    "#724.ExplAttrInfos(#723,REQ)\0"
    "#725.DerivAttrInfos(#29)\0"
    "#696.Attributes(#697,#698,#724,#725)\0"
    "#699.Supertypes(#675)\0"
    "#699.Composition(#699,#675,#676)\0"
    "#700.ExplAttrInfos(#689,REQ)\0"
    "#701.DerivAttrInfos(#29)\0"
    "#699.Attributes(#700,#701)\0"
    "#702.Supertypes(#675)\0"
    "#702.Composition(#675,#702,#676)\0"
    "#704.Supertypes(#675)\0"
    "#704.Composition(#675,#676,#704)\0"
    "#705.DerivAttrInfos(#29)\0"
    "#704.Attributes(#705)\0"
    "#703.ExplAttrInfos(#704,REQ)\0"
    "#706.ExplAttrInfos(#13,REQ)\0"
    "#707.DerivAttrInfos(#29)\0"
    "#702.Attributes(#703,#706,#707)\0"
    "#708.Supertypes(#675)\0"
    "#708.Composition(#675,#676,#708)\0"
    "#709.DerivAttrInfos(#29)\0"
    "#708.Attributes(#709)\0"
    "#711.Supertypes(#675)\0"
    "#711.Composition(#675,#676,#711)\0"
    "#710.Supertypes(#711)\0"
    "#710.Composition(#675,#676,#710,#711)\0"
    "#714.Supertypes(#675)\0"
    "#714.Composition(#714,#675,#676)\0"
    "#715.DerivAttrInfos(#29)\0"
    "#714.Attributes(#715)\0"
    "#713.Supertypes(#714)\0"
    "#713.Composition(#714,#713,#675,#676)\0"
    "#716.ExplAttrInfos(#718,REQ)\0"
    "#719.ExplAttrInfos(#720,OPT)\0"
    "#713.Attributes(#716,#719)\0"
    "#712.ExplAttrInfos(#713,REQ)\0"
    "#721.DerivAttrInfos(#29)\0"
    "#710.Attributes(#712,#721)\0"
    "#731.ExplAttrInfos(#14,OPT)\0"
    "#732.ExplAttrInfos(#24,OPT)\0"
    "#734.ExplAttrInfos(#122,OPT)\0"
    "#735.ExplAttrInfos(#195,OPT)\0"
    "#736.ExplAttrInfos(#737,OPT)\0"
    "#728.Attributes(#730,#731,#732,#733,#734,#735,#736)\0"
    "#739.Composition(#739)\0"
    "#740.ExplAttrInfos(#195,OPT)\0"
    "#741.ExplAttrInfos(#48,OPT)\0"
    "#742.ExplAttrInfos(#14,OPT)\0"
    "#739.Attributes(#740,#741,#742)\0"
    "#738.Supertypes(#739)\0"
    "#738.Composition(#738,#739)\0"
    "#743.ExplAttrInfos(#745,OPT)\0"
    "#738.Attributes(#743,#746,#747)\0"
    "#753.Composition(#753)\0"
    "#752.Supertypes(#753)\0"
    "#752.Composition(#752,#753)\0"
    "#754.ExplAttrInfos(#14,OPT)\0"
    "#752.Attributes(#754)\0"
    "#756.Supertypes(#753)\0"
    "#756.Composition(#756,#753)\0"
    "#757.ExplAttrInfos(#14,REQ)\0"
    "#756.Attributes(#757)\0"
    "#755.Supertypes(#756)\0"
    "#755.Composition(#755,#756,#753)\0"
    "#760.Supertypes(#752)\0"
    "#760.Composition(#760,#752,#753)\0"
    "#761.ExplAttrInfos(#84,REQ)\0"
    "#762.ExplAttrInfos(#84,REQ)\0"
    "#763.ExplAttrInfos(#84,REQ)\0"
    "#760.Attributes(#761,#762,#763)\0"
    "#766.Composition(#766)\0"
    "#767.ExplAttrInfos(#14,REQ)\0"
    "#768.ExplAttrInfos(#122,OPT)\0"
    "#769.ExplAttrInfos(#48,OPT)\0"
    "#770.ExplAttrInfos(#48,OPT)\0"
    "#766.Attributes(#767,#768,#769,#770)\0"
    "#772.Composition(#772)\0"
    "#773.ExplAttrInfos(#14,OPT)\0"
    "#774.ExplAttrInfos(#14,OPT)\0"
    "#772.Attributes(#773,#774)\0"
    "#771.Supertypes(#772)\0"
    "#771.Composition(#771,#772)\0"
    "#775.ExplAttrInfos(#29,REQ)\0"
    "#776.ExplAttrInfos(#165,OPT)\0"
    "#777.ExplAttrInfos(#693,REQ)\0"
    "#778.ExplAttrInfos(#685,OPT)\0"
    "#771.Attributes(#775,#776,#777,#778)\0"
    "#783.Supertypes(#753)\0"
    "#783.Composition(#783,#753)\0"
    "#784.ExplAttrInfos(#14,OPT)\0"
    "#786.Supertypes(#753)\0"
    "#786.Composition(#786,#753)\0"
    "#787.ExplAttrInfos(#14,OPT)\0"
    "#789.Supertypes(#753)\0"
    "#789.Composition(#789,#753)\0"
    "#790.ExplAttrInfos(#56,REQ)\0"
    "#791.ExplAttrInfos(#90,REQ)\0"
    "#789.Attributes(#790,#791)\0"
    "#788.ExplAttrInfos(#792,REQ)\0"
    "#793.Supertypes(#756)\0"
    "#793.Composition(#793,#756,#753)\0"
    "#785.ExplAttrInfos(#795,REQ)\0"
    "#796.ExplAttrInfos(#92,REQ)\0"
    "#783.Attributes(#784,#785,#796)\0"
    "#802.Supertypes(#675)\0"
    "#802.Composition(#802,#675,#676)\0"
    "#803.DerivAttrInfos(#29)\0"
    "#802.Attributes(#803)\0"
    "#801.Supertypes(#802)\0"
    "#801.Composition(#801,#802,#675,#676)\0"
    "#800.Supertypes(#801)\0"
    "#800.Composition(#801,#800,#802,#675,#676)\0"
    "#805.Supertypes(#675)\0"
    "#805.Composition(#805,#675,#676)\0"
    "#806.ExplAttrInfos(#582,REQ)\0"
    "#807.ExplAttrInfos(#13,REQ)\0"
    "#808.ExplAttrInfos(#802,REQ)\0"
    "#809.DerivAttrInfos(#29)\0"
    "#805.Attributes(#806,#807,#808,#809)\0"
    "#804.ExplAttrInfos(#810,REQ)\0"
    "#811.ExplAttrInfos(#63,REQ)\0"
    "#812.DerivAttrInfos(#6)\0"
    "#813.DerivAttrInfos(#63)\0"
    "#800.Attributes(#804,#811,#812,#813)\0"
    "#799.Supertypes(#800)\0"
    "#799.Composition(#801,#800,#799,#802,#675,#676)\0"
    "#814.DerivAttrInfos(#815)\0"
    "#799.Attributes(#814)\0"
    "#816.Supertypes(#802)\0"
    "#816.Composition(#802,#675,#816,#676)\0"
    "#817.ExplAttrInfos(#704,REQ)\0"
    "#818.ExplAttrInfos(#802,REQ)\0"
    "#816.Attributes(#817,#818)\0"
    "#819.Supertypes(#802)\0"
    "#819.Composition(#802,#675,#676,#819)\0"
    "#820.ExplAttrInfos(#802,REQ)\0"
    "#821.ExplAttrInfos(#822,REQ)\0"
    "#823.ExplAttrInfos(#472,REQ)\0"
    "#824.DerivAttrInfos(#825)\0"
    "#819.Attributes(#820,#821,#823,#824)\0"
    "#830.Supertypes(#676)\0"
    "#830.Composition(#676,#830)\0"
    "#829.Supertypes(#830)\0"
    "#829.Composition(#829,#676,#830)\0"
    "#832.Supertypes(#830)\0"
    "#832.Composition(#676,#830,#832)\0"
    "#831.ExplAttrInfos(#832,REQ)\0"
    "#833.ExplAttrInfos(#832,REQ)\0"
    "#829.Attributes(#831,#833)\0"
    "#828.Supertypes(#829)\0"
    "#828.Composition(#829,#828,#676,#830)\0"
    "#834.ExplAttrInfos(#802,REQ)\0"
    "#835.ExplAttrInfos(#13,REQ)\0"
    "#828.Attributes(#834,#835)\0"
    "#838.Supertypes(#98)\0"
    "#838.Composition(#838,#98)\0"
    "#841.Supertypes(#729)\0"
    "#841.Composition(#841,#729)\0"
    "#842.ExplAttrInfos(#48,REQ)\0"
    "#843.ExplAttrInfos(#14,REQ)\0"
    "#844.ExplAttrInfos(#122,OPT)\0"
    "#845.ExplAttrInfos(#195,OPT)\0"
    "#846.ExplAttrInfos(#122,OPT)\0"
    "#847.ExplAttrInfos(#122,OPT)\0"
    "#848.ExplAttrInfos(#122,OPT)\0"
    "#849.ExplAttrInfos(#14,OPT)\0"
    "#850.ExplAttrInfos(#628,OPT)\0"
    "#851.ExplAttrInfos(#852,OPT)\0"
    "#853.ExplAttrInfos(#25,OPT)\0"
    "#854.ExplAttrInfos(#25,OPT)\0"
    "#855.ExplAttrInfos(#48,OPT)\0"
    "#856.ExplAttrInfos(#24,OPT)\0"
    "#857.ExplAttrInfos(#24,OPT)\0"
    "#858.ExplAttrInfos(#328,OPT)\0"
    "#859.ExplAttrInfos(#330,OPT)\0"
    "#841.Attributes(#842,#843,#844,#845,#846,#847,#848,#849,#850,#851,#853,#854,#855,#856,#857,#858,#859)\0"
    "#860.Supertypes(#739)\0"
    "#860.Composition(#860,#739)\0"
    "#861.ExplAttrInfos(#122,OPT)\0"
    "#862.ExplAttrInfos(#841,OPT)\0"
    "#860.Attributes(#861,#862)\0"
    "#865.Supertypes(#739)\0"
    "#865.Composition(#865,#739)\0"
    "#866.Supertypes(#675)\0"
    "#866.Composition(#866,#675,#676)\0"
    "#869.Composition(#869)\0"
    "#870.ExplAttrInfos(#14,OPT)\0"
    "#869.Attributes(#870)\0"
    "#868.Supertypes(#869)\0"
    "#868.Composition(#868,#869)\0"
    "#871.ExplAttrInfos(#798,OPT)\0"
    "#872.ExplAttrInfos(#874,OPT)\0"
    "#875.ExplAttrInfos(#759,OPT)\0"
    "#876.ExplAttrInfos(#13,OPT)\0"
    "#868.Attributes(#871,#872,#875,#876)\0"
    "#867.ExplAttrInfos(#868,REQ)\0"
    "#878.Supertypes(#675)\0"
    "#878.Composition(#675,#676,#878)\0"
    "#879.ExplAttrInfos(#685,REQ)\0"
    "#880.ExplAttrInfos(#56,REQ)\0"
    "#881.DerivAttrInfos(#29)\0"
    "#878.Attributes(#879,#880,#881)\0"
    "#877.ExplAttrInfos(#883,REQ)\0"
    "#884.ExplAttrInfos(#678,OPT)\0"
    "#885.ExplAttrInfos(#678,OPT)\0"
    "#886.ExplAttrInfos(#89,REQ)\0"
    "#866.Attributes(#867,#877,#884,#885,#886)\0"
    "#887.Supertypes(#675)\0"
    "#887.Composition(#887,#675,#676)\0"
    "#888.ExplAttrInfos(#889,REQ)\0"
    "#891.Supertypes(#676)\0"
    "#891.Composition(#676,#891)\0"
    "#892.ExplAttrInfos(#676,OPT)\0"
    "#894.Composition(#894)\0"
    "#896.Supertypes(#869)\0"
    "#896.Composition(#896,#869)\0"
    "#897.ExplAttrInfos(#900,REQ)\0"
    "#901.ExplAttrInfos(#13,OPT)\0"
    "#896.Attributes(#897,#901)\0"
    "#902.Supertypes(#869)\0"
    "#902.Composition(#869,#902)\0"
    "#903.ExplAttrInfos(#558,REQ)\0"
    "#905.Supertypes(#739)\0"
    "#905.Composition(#905,#739)\0"
    "#906.Supertypes(#753)\0"
    "#906.Composition(#753,#906)\0"
    "#907.ExplAttrInfos(#760,REQ)\0"
    "#908.ExplAttrInfos(#760,REQ)\0"
    "#909.ExplAttrInfos(#760,REQ)\0"
    "#910.ExplAttrInfos(#760,REQ)\0"
    "#906.Attributes(#907,#908,#909,#910)\0"
    "#911.Supertypes(#753)\0"
    "#911.Composition(#753,#911)\0"
    "#912.ExplAttrInfos(#165,OPT)\0"
    "#913.ExplAttrInfos(#165,OPT)\0"
    "#911.Attributes(#912,#913)\0"
    "#914.Supertypes(#753)\0"
    "#914.Composition(#753,#914)\0"
    "#915.ExplAttrInfos(#760,REQ)\0"
    "#916.ExplAttrInfos(#84,OPT)\0"
    "#914.Attributes(#915,#916)\0"
    "#917.Supertypes(#753)\0"
    "#917.Composition(#753,#917)\0"
    "#919.Supertypes(#753)\0"
    "#919.Composition(#753,#919)\0"
    "#920.ExplAttrInfos(#13,REQ)\0"
    "#921.ExplAttrInfos(#13,REQ)\0"
    "#922.ExplAttrInfos(#48,OPT)\0"
    "#925.Supertypes(#675)\0"
    "#925.Composition(#925,#675,#676)\0"
    "#926.ExplAttrInfos(#685,OPT)\0"
    "#927.ExplAttrInfos(#685,OPT)\0"
    "#928.ExplAttrInfos(#678,REQ)\0"
    "#929.ExplAttrInfos(#165,OPT)\0"
    "#930.DerivAttrInfos(#165)\0"
    "#931.DerivAttrInfos(#29)\0"
    "#925.Attributes(#926,#927,#928,#929,#930,#931)\0"
    "#924.Supertypes(#925)\0"
    "#924.Composition(#925,#924,#675,#676)\0"
    "#932.DerivAttrInfos(#933)\0"
    "#924.Attributes(#932)\0"
    "#934.ExplAttrInfos(#935,OPT)\0"
    "#919.Attributes(#920,#921,#922,#923,#934)\0"
    "#918.ExplAttrInfos(#936,REQ)\0"
    "#917.Attributes(#918)\0"
    "#904.ExplAttrInfos(#939,REQ)\0"
    "#902.Attributes(#903,#904)\0"
    "#940.Supertypes(#869)\0"
    "#940.Composition(#869,#940)\0"
    "#942.Supertypes(#753)\0"
    "#942.Composition(#753,#942)\0"
    "#943.ExplAttrInfos(#759,REQ)\0"
    "#944.ExplAttrInfos(#759,OPT)\0"
    "#942.Attributes(#943,#944)\0"
    "#941.ExplAttrInfos(#942,OPT)\0"
    "#946.Supertypes(#753)\0"
    "#946.Composition(#753,#946)\0"
    "#947.ExplAttrInfos(#874,OPT)\0"
    "#948.ExplAttrInfos(#182,OPT)\0"
    "#949.ExplAttrInfos(#183,OPT)\0"
    "#950.ExplAttrInfos(#874,OPT)\0"
    "#951.ExplAttrInfos(#874,OPT)\0"
    "#952.ExplAttrInfos(#185,OPT)\0"
    "#953.ExplAttrInfos(#874,OPT)\0"
    "#946.Attributes(#947,#948,#949,#950,#951,#952,#953)\0"
    "#945.ExplAttrInfos(#946,OPT)\0"
    "#955.Supertypes(#739)\0"
    "#955.Composition(#955,#739)\0"
    "#956.Supertypes(#756)\0"
    "#956.Composition(#756,#956,#753)\0"
    "#954.ExplAttrInfos(#958,REQ)\0"
    "#959.ExplAttrInfos(#13,OPT)\0"
    "#940.Attributes(#941,#945,#954,#959)\0"
    "#895.ExplAttrInfos(#962,REQ)\0"
    "#894.Attributes(#895)\0"
    "#893.ExplAttrInfos(#965,REQ)\0"
    "#966.ExplAttrInfos(#14,OPT)\0"
    "#891.Attributes(#892,#893,#966)\0"
    "#890.ExplAttrInfos(#967,REQ)\0"
    "#968.ExplAttrInfos(#92,REQ)\0"
    "#887.Attributes(#888,#890,#968)\0"
    "#973.Composition(#973)\0"
    "#975.Composition(#975)\0"
    "#976.ExplAttrInfos(#14,OPT)\0"
    "#977.ExplAttrInfos(#802,REQ)\0"
    "#978.ExplAttrInfos(#13,REQ)\0"
    "#975.Attributes(#976,#977,#978)\0"
    "#974.ExplAttrInfos(#979,REQ)\0"
    "#980.ExplAttrInfos(#981,REQ)\0"
    "#973.Attributes(#974,#980)\0"
    "#984.Composition(#984)\0"
    "#985.ExplAttrInfos(#772,REQ)\0"
    "#987.ExplAttrInfos(#14,OPT)\0"
    "#984.Attributes(#985,#986,#987,#988)\0"
    "#992.Supertypes(#729)\0"
    "#992.Composition(#729,#992)\0"
    "#993.ExplAttrInfos(#14,REQ)\0"
    "#994.ExplAttrInfos(#14,OPT)\0"
    "#995.ExplAttrInfos(#628,OPT)\0"
    "#996.ExplAttrInfos(#25,OPT)\0"
    "#997.ExplAttrInfos(#195,OPT)\0"
    "#998.ExplAttrInfos(#122,OPT)\0"
    "#992.Attributes(#993,#994,#995,#996,#997,#998)\0"
    "#999.Supertypes(#739)\0"
    "#999.Composition(#739,#999)\0"
    "#1001.ExplAttrInfos(#55,OPT)\0"
    "#1002.ExplAttrInfos(#992,OPT)\0"
    "#999.Attributes(#1000,#1001,#1002)\0"
    "#1005.Composition(#1005)\0"
    "#1006.ExplAttrInfos(#424,REQ)\0"
    "#1009.ExplAttrInfos(#89,REQ)\0"
    "#1012.ExplAttrInfos(#1013,REQ)\0"
    "#1008.Attributes(#1009,#1010,#1012)\0"
    "#1007.ExplAttrInfos(#1014,REQ)\0"
    "#1005.Attributes(#1006,#1007)\0"
    "#1017.Composition(#1017)\0"
    "#1020.Supertypes(#1017)\0"
    "#1020.Composition(#1020,#1017)\0"
    "#1021.ExplAttrInfos(#14,REQ)\0"
    "#1022.ExplAttrInfos(#122,OPT)\0"
    "#1023.ExplAttrInfos(#14,OPT)\0"
    "#1020.Attributes(#1021,#1022,#1023)\0"
    "#1019.ExplAttrInfos(#1024,REQ)\0"
    "#1018.Attributes(#1019)\0"
    "#1025.Composition(#1025)\0"
    "#1028.Composition(#1028)\0"
    "#1031.ExplAttrInfos(#672,OPT)\0"
    "#1032.ExplAttrInfos(#629,OPT)\0"
    "#1033.ExplAttrInfos(#24,OPT)\0"
    "#1034.ExplAttrInfos(#24,OPT)\0"
    "#1035.ExplAttrInfos(#14,OPT)\0"
    "#1036.ExplAttrInfos(#14,OPT)\0"
    "#1037.ExplAttrInfos(#224,OPT)\0"
    "#1038.ExplAttrInfos(#1039,OPT)\0"
    "#1028.Attributes(#1029,#1030,#1031,#1032,#1033,#1034,#1035,#1036,#1037,#1038)\0"
    "#1041.ExplAttrInfos(#14,OPT)\0"
    "#1043.Composition(#1043)\0"
    "#1044.ExplAttrInfos(#1045,OPT)\0"
    "#1046.ExplAttrInfos(#13,OPT)\0"
    "#1043.Attributes(#1044,#1046)\0"
    "#1042.ExplAttrInfos(#1047,OPT)\0"
    "#1049.Composition(#1049)\0"
    "#1050.ExplAttrInfos(#48,OPT)\0"
    "#1051.ExplAttrInfos(#14,OPT)\0"
    "#1052.ExplAttrInfos(#122,OPT)\0"
    "#1053.ExplAttrInfos(#663,OPT)\0"
    "#1054.ExplAttrInfos(#664,OPT)\0"
    "#1049.Attributes(#1050,#1051,#1052,#1053,#1054)\0"
    "#1048.ExplAttrInfos(#1055,OPT)\0"
    "#1056.DerivAttrInfos(#6)\0"
    "#1057.DerivAttrInfos(#6)\0"
    "#1058.DerivAttrInfos(#6)\0"
    "#1040.Attributes(#1041,#1042,#1048,#1056,#1057,#1058)\0"
    "#1059.Composition(#1059)\0"
    "#1060.ExplAttrInfos(#14,REQ)\0"
    "#1061.ExplAttrInfos(#122,OPT)\0"
    "#1062.ExplAttrInfos(#25,REQ)\0"
    "#1063.ExplAttrInfos(#25,REQ)\0"
    "#1064.ExplAttrInfos(#578,REQ)\0"
    "#1065.ExplAttrInfos(#314,REQ)\0"
    "#1066.ExplAttrInfos(#14,OPT)\0"
    "#1067.ExplAttrInfos(#663,OPT)\0"
    "#1059.Attributes(#1060,#1061,#1062,#1063,#1064,#1065,#1066,#1067)\0"
    "#1078.Supertypes(#832)\0"
    "#1078.Composition(#676,#830,#832,#1078)\0"
    "#1079.ExplAttrInfos(#679,REQ)\0"
    "#1078.Attributes(#1079)\0"
    "#1083.Supertypes(#838)\0"
    "#1083.Composition(#1083,#838,#98)\0"
    "#1084.ExplAttrInfos(#14,OPT)\0"
    "#1083.Attributes(#1084)\0"
    "#1082.Composition(#1083,#838,#1082,#98)\0"
    "#1085.ExplAttrInfos(#48,OPT)\0"
    "#1086.ExplAttrInfos(#122,OPT)\0"
    "#1082.Attributes(#1085,#1086)\0"
    "#1088.Supertypes(#838)\0"
    "#1088.Composition(#838,#98,#1088)\0"
    "#1089.ExplAttrInfos(#48,OPT)\0"
    "#1090.ExplAttrInfos(#1091,OPT)\0"
    "#1087.Supertypes(#1088)\0"
    "#1087.Composition(#838,#98,#1088,#1087)\0"
    "#1092.ExplAttrInfos(#48,OPT)\0"
    "#1093.ExplAttrInfos(#122,OPT)\0"
    "#1087.Attributes(#1092,#1093,#1094)\0"
    "#1099.ExplAttrInfos(#14,OPT)\0"
    "#1100.ExplAttrInfos(#122,OPT)\0"
    "#1101.ExplAttrInfos(#1102,REQ)\0"
    "#1098.Attributes(#1099,#1100,#1101)\0"
    "#1097.Supertypes(#1098)\0"
    "#1097.Composition(#1097,#1098)\0"
    "#1104.ExplAttrInfos(#693,REQ)\0"
    "#1105.ExplAttrInfos(#984,REQ)\0"
    "#1108.Supertypes(#1083)\0"
    "#1108.Composition(#1083,#838,#1108,#98)\0"
    "#1111.ExplAttrInfos(#1110,OPT)\0"
    "#1110.Attributes(#1111)\0"
    "#1109.ExplAttrInfos(#1110,OPT)\0"
    "#1112.ExplAttrInfos(#1098,OPT)\0"
    "#1108.Attributes(#1109,#1112)\0"
    "#1113.Supertypes(#1088)\0"
    "#1113.Composition(#838,#98,#1088,#1113)\0"
    "#1114.ExplAttrInfos(#1115,OPT)\0"
    "#1116.ExplAttrInfos(#14,OPT)\0"
    "#1113.Attributes(#1114,#1116)\0"
    "#1122.ExplAttrInfos(#48,OPT)\0"
    "#1123.ExplAttrInfos(#14,OPT)\0"
    "#1124.ExplAttrInfos(#122,OPT)\0"
    "#1125.ExplAttrInfos(#25,OPT)\0"
    "#1127.ExplAttrInfos(#14,OPT)\0"
    "#1128.ExplAttrInfos(#122,OPT)\0"
    "#1129.ExplAttrInfos(#628,OPT)\0"
    "#1130.ExplAttrInfos(#628,OPT)\0"
    "#1121.Attributes(#1122,#1123,#1124,#1125,#1126,#1127,#1128,#1129,#1130)\0"
    "#1131.Composition(#1131)\0"
    "#1132.ExplAttrInfos(#14,REQ)\0"
    "#1133.ExplAttrInfos(#122,OPT)\0"
    "#1134.ExplAttrInfos(#286,REQ)\0"
    "#1135.ExplAttrInfos(#14,OPT)\0"
    "#1136.ExplAttrInfos(#628,OPT)\0"
    "#1137.ExplAttrInfos(#25,OPT)\0"
    "#1138.ExplAttrInfos(#14,OPT)\0"
    "#1131.Attributes(#1132,#1133,#1134,#1135,#1136,#1137,#1138)\0"
    "#1139.Supertypes(#644)\0"
    "#1139.Composition(#1139,#644)\0"
    "#1140.ExplAttrInfos(#14,REQ)\0"
    "#1139.Attributes(#1140)\0"
    "#1141.Supertypes(#644)\0"
    "#1141.Composition(#1141,#644)\0"
    "#1142.ExplAttrInfos(#14,REQ)\0"
    "#1143.ExplAttrInfos(#629,REQ)\0"
    "#1141.Attributes(#1142,#1143)\0"
    "#1144.Composition(#1144)\0"
    "#1145.ExplAttrInfos(#14,REQ)\0"
    "#1146.ExplAttrInfos(#122,OPT)\0"
    "#1144.Attributes(#1145,#1146)\0"
    "#1147.Composition(#1147)\0"
    "#1148.ExplAttrInfos(#476,REQ)\0"
    "#1149.ExplAttrInfos(#14,OPT)\0"
    "#1147.Attributes(#1148,#1149)\0"
    "#1150.Composition(#1150)\0"
    "#1151.Composition(#1151)\0"
    "#1153.Supertypes(#984)\0"
    "#1153.Composition(#984,#1153)\0"
    "#1152.ExplAttrInfos(#1154,REQ)\0"
    "#1155.ExplAttrInfos(#14,OPT)\0"
    "#1156.ExplAttrInfos(#122,OPT)\0"
    "#1157.ExplAttrInfos(#63,REQ)\0"
    "#1158.ExplAttrInfos(#1107,OPT)\0"
    "#1151.Attributes(#1152,#1155,#1156,#1157,#1158)\0"
    "#1161.Supertypes(#1083)\0"
    "#1161.Composition(#1083,#838,#1161,#98)\0"
    "#1162.ExplAttrInfos(#48,OPT)\0"
    "#1163.ExplAttrInfos(#122,OPT)\0"
    "#1161.Attributes(#1162,#1163)\0"
    "#1164.Supertypes(#1088)\0"
    "#1164.Composition(#838,#98,#1088,#1164)\0"
    "#1165.ExplAttrInfos(#48,OPT)\0"
    "#1166.ExplAttrInfos(#122,OPT)\0"
    "#1167.ExplAttrInfos(#14,OPT)\0"
    "#1164.Attributes(#1165,#1166,#1167)\0"
    "#1175.Supertypes(#830)\0"
    "#1175.Composition(#1175,#676,#830)\0"
    "#1177.Supertypes(#830)\0"
    "#1177.Composition(#1177,#676,#830)\0"
    "#1179.Supertypes(#830)\0"
    "#1179.Composition(#1179,#676,#830)\0"
    "#1181.Supertypes(#830)\0"
    "#1181.Composition(#1181,#676,#830)\0"
    "#1180.ExplAttrInfos(#1181,REQ)\0"
    "#1182.ExplAttrInfos(#13,REQ)\0"
    "#1179.Attributes(#1180,#1182)\0"
    "#1178.ExplAttrInfos(#1183,REQ)\0"
    "#1177.Attributes(#1178)\0"
    "#1176.ExplAttrInfos(#1184,REQ)\0"
    "#1175.Attributes(#1176)\0"
    "#1174.Supertypes(#1175)\0"
    "#1174.Composition(#1174,#1175,#676,#830)\0"
    "#1185.Supertypes(#1175)\0"
    "#1185.Composition(#1175,#1185,#676,#830)\0"
    "#1192.Supertypes(#1108)\0"
    "#1192.Composition(#1083,#838,#1108,#98,#1192)\0"
    "#1193.ExplAttrInfos(#14,OPT)\0"
    "#1191.Supertypes(#1192)\0"
    "#1191.Composition(#1191,#1083,#838,#1108,#98,#1192)\0"
    "#1190.Supertypes(#1191)\0"
    "#1190.Composition(#1190,#1191,#1083,#838,#1108,#98,#1192)\0"
    "#1194.ExplAttrInfos(#376,OPT)\0"
    "#1190.Attributes(#1194)\0"
    "#1196.Supertypes(#1192)\0"
    "#1196.Composition(#1083,#838,#1108,#98,#1192,#1196)\0"
    "#1197.ExplAttrInfos(#364,OPT)\0"
    "#1196.Attributes(#1197)\0"
    "#1195.Composition(#1083,#838,#1108,#98,#1195,#1192,#1196)\0"
    "#1198.ExplAttrInfos(#536,OPT)\0"
    "#1199.ExplAttrInfos(#56,OPT)\0"
    "#1195.Attributes(#1198,#1199)\0"
    "#1204.Supertypes(#1108)\0"
    "#1204.Composition(#1204,#1083,#838,#1108,#98)\0"
    "#1205.ExplAttrInfos(#48,OPT)\0"
    "#1206.Supertypes(#1108)\0"
    "#1206.Composition(#1083,#838,#1108,#98,#1206)\0"
    "#1209.Supertypes(#675)\0"
    "#1209.Composition(#1209,#675,#676)\0"
    "#1210.ExplAttrInfos(#1211,REQ)\0"
    "#1212.DerivAttrInfos(#29)\0"
    "#1209.Attributes(#1210,#1212)\0"
    "#1213.Supertypes(#1177)\0"
    "#1213.Composition(#1177,#1213,#676,#830)\0"
    "#1214.ExplAttrInfos(#704,REQ)\0"
    "#1215.ExplAttrInfos(#13,REQ)\0"
    "#1213.Attributes(#1214,#1215)\0"
    "#1.DefTypes(#2,#3,#4,#5,#9,#10,#11,#12,#13,#15,#16,#18,#20,#21,#22,#23,#24,#25,#26,#27,#28,#29,#30,#31,#32,#33,#34,#35,#36,#37,#38,#39,#40,#41,#42,#43,#44,#45,#46,#47,#48,#49,#50,#6,#51,#52,#53,#54,#14,#55,#56,#58,#59,#60,#61,#62,#63,#64,#65,#66,#67,#68,#69,#70,#71,#72,#73,#74,#75,#76,#77,#78,#79,#80,#81,#82,#84,#85,#86,#87,#88,#89,#7,#90,#91,#92,#93,#94,#95,#163,#164,#83,#165,#166,#167,#168,#169,#170,#171,#172,#173,#174,#175,#176,#177,#178,#179,#180,#181,#122,#182,#183,#184,#185,#186,#187,#188,#189,#190,#191,#192,#193,#156,#194,#195,#196,#197,#198,#199,#200,#202,#204,#206,#208,#128,#210,#212,#214,#216,#218,#220,#222,#224,#226,#228,#230,#232,#234,#236,#238,#240,#242,#244,#246,#248,#250,#252,#254,#256,#258,#260,#262,#264,#266,#154,#268,#270,#272,#274,#276,#278,#280,#282,#284,#286,#288,#290,#292,#294,#296,#298,#300,#302,#304,#306,#308,#310,#312,#314,#316,#318,#320,#322,#324,#326,#328,#330,#332,#334,#336,#338,#340,#342,#344,#346,#348,#350,#352,#354,#356,#358,#360,#362,#364,#366,#368,#370,#372,#374,#376,#378,#380,#382,#384,#386,#388,#390,#392,#394,#396,#398,#400,#402,#404,#406,#408,#410,#412,#414,#416,#418,#420,#422,#424,#426,#428,#430,#432,#434,#436,#438,#440,#442,#444,#446,#448,#450,#452,#454,#456,#458,#460,#462,#464,#466,#468,#470,#472,#474,#476,#478,#480,#482,#484,#486,#488,#490,#492,#494,#496,#498,#500,#502,#504,#506,#508,#510,#119,#512,#514,#516,#518,#520,#522,#524,#526,#528,#530,#532,#534,#536,#538,#540,#542,#544,#151,#546,#548,#550,#552,#554,#556,#558,#560,#562,#564,#566,#568,#570,#572,#574,#576,#578,#580,#582,#584,#586,#588,#590,#592,#594,#596,#598,#600,#602,#604,#606,#608,#610,#612,#614,#616,#618,#620,#622,#624,#626,#628,#672,#693,#695,#727,#749,#751,#759,#765,#780,#782,#798,#827,#837,#795,#840,#632,#864,#970,#972,#983,#883,#991,#1004,#1016,#1027,#634,#1069,#1071,#1073,#1075,#1077,#1081,#961,#1096,#1107,#1118,#1120,#1160,#1169,#1171,#1173,#1187,#636,#874,#1189,#1201,#1203,#1208,#964,#1217,#938,#958,#1219,#1221,#1223,#663,#638,#1225,#1227)\0"
    "#1229.Supertypes(#1083)\0"
    "#1229.Composition(#1229,#1083,#838,#98)\0"
    "#1230.ExplAttrInfos(#48,OPT)\0"
    "#1229.Attributes(#1230)\0"
    "#1228.Composition(#1228,#1229,#1083,#838,#98)\0"
    "#1231.ExplAttrInfos(#202,OPT)\0"
    "#1232.ExplAttrInfos(#14,OPT)\0"
    "#1233.ExplAttrInfos(#122,OPT)\0"
    "#1228.Attributes(#1231,#1232,#1233)\0"
    "#1234.Supertypes(#1083)\0"
    "#1234.Composition(#1234,#1083,#838,#98)\0"
    "#1235.ExplAttrInfos(#628,REQ)\0"
    "#1234.Attributes(#1235)\0"
    "#1238.Supertypes(#1204)\0"
    "#1238.Composition(#1238,#1204,#1083,#838,#1108,#98)\0"
    "#1237.Supertypes(#1238)\0"
    "#1237.Composition(#1237,#1238,#1204,#1083,#838,#1108,#98)\0"
    "#1236.Composition(#1236,#1237,#1238,#1204,#1083,#838,#1108,#98)\0"
    "#1239.ExplAttrInfos(#208,OPT)\0"
    "#1236.Attributes(#1239)\0"
    "#1243.Supertypes(#1113)\0"
    "#1243.Composition(#1243,#838,#98,#1088,#1113)\0"
    "#1244.ExplAttrInfos(#14,OPT)\0"
    "#1243.Attributes(#1244)\0"
    "#1242.Supertypes(#1243)\0"
    "#1242.Composition(#1242,#1243,#838,#98,#1088,#1113)\0"
    "#1241.Supertypes(#1242)\0"
    "#1241.Composition(#1241,#1242,#1243,#838,#98,#1088,#1113)\0"
    "#1240.Supertypes(#1241)\0"
    "#1240.Composition(#1240,#1241,#1242,#1243,#838,#98,#1088,#1113)\0"
    "#1245.ExplAttrInfos(#208,REQ)\0"
    "#1240.Attributes(#1245)\0"
    "#1247.Supertypes(#708)\0"
    "#1247.Composition(#675,#1247,#676,#708)\0"
    "#1248.ExplAttrInfos(#1174,REQ)\0"
    "#1247.Attributes(#1248)\0"
    "#1246.Supertypes(#1247)\0"
    "#1246.Composition(#1246,#675,#1247,#676,#708)\0"
    "#1249.Supertypes(#1246)\0"
    "#1249.Composition(#1246,#1249,#675,#1247,#676,#708)\0"
    "#1250.ExplAttrInfos(#1251,REQ)\0"
    "#1249.Attributes(#1250)\0"
    "#1252.Supertypes(#1213)\0"
    "#1252.Composition(#1252,#1177,#1213,#676,#830)\0"
    "#1255.Supertypes(#1238)\0"
    "#1255.Composition(#1238,#1255,#1204,#1083,#838,#1108,#98)\0"
    "#1254.Composition(#1238,#1255,#1204,#1254,#1083,#838,#1108,#98)\0"
    "#1253.Supertypes(#1254)\0"
    "#1253.Composition(#1253,#1238,#1255,#1204,#1254,#1083,#838,#1108,#98)\0"
    "#1256.ExplAttrInfos(#212,OPT)\0"
    "#1253.Attributes(#1256)\0"
    "#1258.Supertypes(#1255)\0"
    "#1258.Composition(#1238,#1255,#1204,#1258,#1083,#838,#1108,#98)\0"
    "#1257.Supertypes(#1258)\0"
    "#1257.Composition(#1257,#1238,#1255,#1204,#1258,#1083,#838,#1108,#98)\0"
    "#1259.ExplAttrInfos(#210,OPT)\0"
    "#1257.Attributes(#1259)\0"
    "#1262.Supertypes(#1242)\0"
    "#1262.Composition(#1242,#1262,#1243,#838,#98,#1088,#1113)\0"
    "#1261.Supertypes(#1262)\0"
    "#1261.Composition(#1242,#1262,#1243,#1261,#838,#98,#1088,#1113)\0"
    "#1260.Supertypes(#1261)\0"
    "#1260.Composition(#1260,#1242,#1262,#1243,#1261,#838,#98,#1088,#1113)\0"
    "#1263.ExplAttrInfos(#210,REQ)\0"
    "#1260.Attributes(#1263)\0"
    "#1265.Supertypes(#1262)\0"
    "#1265.Composition(#1242,#1262,#1243,#1265,#838,#98,#1088,#1113)\0"
    "#1264.Supertypes(#1265)\0"
    "#1264.Composition(#1264,#1242,#1262,#1243,#1265,#838,#98,#1088,#1113)\0"
    "#1266.ExplAttrInfos(#212,REQ)\0"
    "#1264.Attributes(#1266)\0"
    "#1268.Supertypes(#1255)\0"
    "#1268.Composition(#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1267.Composition(#1267,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1269.ExplAttrInfos(#214,OPT)\0"
    "#1267.Attributes(#1269)\0"
    "#1271.Supertypes(#1262)\0"
    "#1271.Composition(#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1270.Supertypes(#1271)\0"
    "#1270.Composition(#1270,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1272.ExplAttrInfos(#214,REQ)\0"
    "#1270.Attributes(#1272)\0"
    "#1273.Supertypes(#1237)\0"
    "#1273.Composition(#1273,#1237,#1238,#1204,#1083,#838,#1108,#98)\0"
    "#1274.ExplAttrInfos(#216,OPT)\0"
    "#1273.Attributes(#1274)\0"
    "#1275.Supertypes(#1241)\0"
    "#1275.Composition(#1275,#1241,#1242,#1243,#838,#98,#1088,#1113)\0"
    "#1276.ExplAttrInfos(#216,REQ)\0"
    "#1275.Attributes(#1276)\0"
    "#1279.Supertypes(#1108)\0"
    "#1279.Composition(#1083,#838,#1279,#1108,#98)\0"
    "#1278.Composition(#1278,#1083,#838,#1279,#1108,#98)\0"
    "#1280.ExplAttrInfos(#802,REQ)\0"
    "#1278.Attributes(#1280)\0"
    "#1277.Composition(#1277,#1278,#1083,#838,#1279,#1108,#98)\0"
    "#1281.ExplAttrInfos(#218,OPT)\0"
    "#1277.Attributes(#1281)\0"
    "#1282.Supertypes(#675)\0"
    "#1282.Composition(#1282,#675,#676)\0"
    "#1283.ExplAttrInfos(#56,OPT)\0"
    "#1286.Supertypes(#675)\0"
    "#1286.Composition(#1286,#675,#676)\0"
    "#1287.ExplAttrInfos(#13,OPT)\0"
    "#1288.ExplAttrInfos(#14,OPT)\0"
    "#1289.ExplAttrInfos(#14,OPT)\0"
    "#1286.Attributes(#1287,#1288,#1289)\0"
    "#1285.Supertypes(#1286)\0"
    "#1285.Composition(#1285,#1286,#675,#676)\0"
    "#1291.Supertypes(#801)\0"
    "#1291.Composition(#801,#802,#1291,#675,#676)\0"
    "#1292.ExplAttrInfos(#678,REQ)\0"
    "#1293.ExplAttrInfos(#89,REQ)\0"
    "#1294.ExplAttrInfos(#90,REQ)\0"
    "#1291.Attributes(#1292,#1293,#1294)\0"
    "#1285.Attributes(#1290)\0"
    "#1284.ExplAttrInfos(#1295,REQ)\0"
    "#1297.Supertypes(#1286)\0"
    "#1297.Composition(#1286,#1297,#675,#676)\0"
    "#1298.ExplAttrInfos(#56,REQ)\0"
    "#1299.ExplAttrInfos(#90,REQ)\0"
    "#1300.ExplAttrInfos(#56,REQ)\0"
    "#1301.ExplAttrInfos(#83,REQ)\0"
    "#1297.Attributes(#1298,#1299,#1300,#1301)\0"
    "#1296.Supertypes(#1297)\0"
    "#1296.Composition(#1286,#1296,#1297,#675,#676)\0"
    "#1302.ExplAttrInfos(#90,REQ)\0"
    "#1303.ExplAttrInfos(#13,REQ)\0"
    "#1296.Attributes(#1302,#1303)\0"
    "#1304.Supertypes(#1297)\0"
    "#1304.Composition(#1286,#1304,#1297,#675,#676)\0"
    "#1305.Supertypes(#1297)\0"
    "#1305.Composition(#1286,#1305,#1297,#675,#676)\0"
    "#1306.ExplAttrInfos(#90,REQ)\0"
    "#1307.ExplAttrInfos(#13,REQ)\0"
    "#1305.Attributes(#1306,#1307)\0"
    "#1308.Supertypes(#675)\0"
    "#1308.Composition(#1308,#675,#676)\0"
    "#1309.ExplAttrInfos(#1310,REQ)\0"
    "#1308.Attributes(#1309)\0"
    "#1311.Supertypes(#801)\0"
    "#1311.Composition(#1311,#801,#802,#675,#676)\0"
    "#1312.ExplAttrInfos(#1282,REQ)\0"
    "#1313.ExplAttrInfos(#1308,OPT)\0"
    "#1314.ExplAttrInfos(#14,OPT)\0"
    "#1311.Attributes(#1312,#1313,#1314)\0"
    "#1315.Supertypes(#1108)\0"
    "#1315.Composition(#1315,#1083,#838,#1108,#98)\0"
    "#1316.Supertypes(#675)\0"
    "#1316.Composition(#1316,#675,#676)\0"
    "#1317.ExplAttrInfos(#802,REQ)\0"
    "#1318.ExplAttrInfos(#1319,OPT)\0"
    "#1316.Attributes(#1317,#1318)\0"
    "#1321.Composition(#1321)\0"
    "#1322.ExplAttrInfos(#14,OPT)\0"
    "#1323.ExplAttrInfos(#122,OPT)\0"
    "#1321.Attributes(#1322,#1323)\0"
    "#1320.Supertypes(#1321)\0"
    "#1320.Composition(#1320,#1321)\0"
    "#1324.ExplAttrInfos(#1121,REQ)\0"
    "#1325.ExplAttrInfos(#1326,REQ)\0"
    "#1320.Attributes(#1324,#1325)\0"
    "#1327.Supertypes(#1147)\0"
    "#1327.Composition(#1327,#1147)\0"
    "#1328.ExplAttrInfos(#802,REQ)\0"
    "#1327.Attributes(#1328)\0"
    "#1329.Supertypes(#1147)\0"
    "#1329.Composition(#1329,#1147)\0"
    "#1330.ExplAttrInfos(#801,REQ)\0"
    "#1331.Supertypes(#1327)\0"
    "#1331.Composition(#1327,#1331,#1147)\0"
    "#1332.ExplAttrInfos(#1333,REQ)\0"
    "#1331.Attributes(#1332)\0"
    "#1335.Supertypes(#1083)\0"
    "#1335.Composition(#1335,#1083,#838,#98)\0"
    "#1334.Supertypes(#1335)\0"
    "#1334.Composition(#1334,#1335,#1083,#838,#98)\0"
    "#1336.ExplAttrInfos(#48,OPT)\0"
    "#1338.Supertypes(#1028)\0"
    "#1338.Composition(#1028,#1338)\0"
    "#1337.ExplAttrInfos(#1338,OPT)\0"
    "#1339.ExplAttrInfos(#1338,OPT)\0"
    "#1340.ExplAttrInfos(#1338,OPT)\0"
    "#1341.ExplAttrInfos(#628,OPT)\0"
    "#1342.ExplAttrInfos(#628,OPT)\0"
    "#1343.ExplAttrInfos(#105,OPT)\0"
    "#1344.ExplAttrInfos(#24,OPT)\0"
    "#1345.ExplAttrInfos(#1338,OPT)\0"
    "#1334.Attributes(#1336,#1337,#1339,#1340,#1341,#1342,#1343,#1344,#1345)\0"
    "#1347.Supertypes(#1147)\0"
    "#1347.Composition(#1347,#1147)\0"
    "#1348.ExplAttrInfos(#673,OPT)\0"
    "#1347.Attributes(#1348)\0"
    "#1346.Supertypes(#1347)\0"
    "#1346.Composition(#1346,#1347,#1147)\0"
    "#1349.ExplAttrInfos(#90,REQ)\0"
    "#1350.ExplAttrInfos(#90,REQ)\0"
    "#1351.ExplAttrInfos(#90,REQ)\0"
    "#1352.ExplAttrInfos(#90,REQ)\0"
    "#1353.ExplAttrInfos(#82,OPT)\0"
    "#1354.ExplAttrInfos(#90,REQ)\0"
    "#1355.ExplAttrInfos(#90,OPT)\0"
    "#1356.ExplAttrInfos(#82,OPT)\0"
    "#1357.ExplAttrInfos(#82,OPT)\0"
    "#1358.ExplAttrInfos(#89,OPT)\0"
    "#1359.ExplAttrInfos(#82,OPT)\0"
    "#1360.ExplAttrInfos(#89,OPT)\0"
    "#1346.Attributes(#1349,#1350,#1351,#1352,#1353,#1354,#1355,#1356,#1357,#1358,#1359,#1360)\0"
    "#1361.Supertypes(#1254)\0"
    "#1361.Composition(#1361,#1238,#1255,#1204,#1254,#1083,#838,#1108,#98)\0"
    "#1362.ExplAttrInfos(#228,OPT)\0"
    "#1361.Attributes(#1362)\0"
    "#1363.Supertypes(#1265)\0"
    "#1363.Composition(#1363,#1242,#1262,#1243,#1265,#838,#98,#1088,#1113)\0"
    "#1364.ExplAttrInfos(#228,REQ)\0"
    "#1365.Supertypes(#674)\0"
    "#1365.Composition(#1365,#675,#674,#676)\0"
    "#1366.ExplAttrInfos(#685,OPT)\0"
    "#1367.DerivAttrInfos(#685)\0"
    "#1365.Attributes(#1366,#1367)\0"
    "#1368.Supertypes(#801)\0"
    "#1368.Composition(#801,#1368,#802,#675,#676)\0"
    "#1369.ExplAttrInfos(#6,REQ)\0"
    "#1370.ExplAttrInfos(#1371,REQ)\0"
    "#1372.ExplAttrInfos(#230,REQ)\0"
    "#1373.ExplAttrInfos(#63,REQ)\0"
    "#1374.ExplAttrInfos(#63,REQ)\0"
    "#1375.DerivAttrInfos(#6)\0"
    "#1376.DerivAttrInfos(#1377)\0"
    "#1368.Attributes(#1369,#1370,#1372,#1373,#1374,#1375,#1376)\0"
    "#1378.Supertypes(#1368)\0"
    "#1378.Composition(#801,#1368,#1378,#802,#675,#676)\0"
    "#1379.ExplAttrInfos(#1380,REQ)\0"
    "#1381.ExplAttrInfos(#1382,REQ)\0"
    "#1383.ExplAttrInfos(#416,REQ)\0"
    "#1384.DerivAttrInfos(#6)\0"
    "#1378.Attributes(#1379,#1381,#1383,#1384)\0"
    "#1386.Supertypes(#704)\0"
    "#1386.Composition(#1386,#675,#676,#704)\0"
    "#1385.Supertypes(#1386)\0"
    "#1385.Composition(#1386,#1385,#675,#676,#704)\0"
    "#1387.ExplAttrInfos(#6,REQ)\0"
    "#1388.ExplAttrInfos(#6,REQ)\0"
    "#1389.ExplAttrInfos(#1391,REQ)\0"
    "#1392.ExplAttrInfos(#232,REQ)\0"
    "#1393.ExplAttrInfos(#63,REQ)\0"
    "#1394.ExplAttrInfos(#63,REQ)\0"
    "#1395.ExplAttrInfos(#63,REQ)\0"
    "#1396.DerivAttrInfos(#6)\0"
    "#1397.DerivAttrInfos(#6)\0"
    "#1398.DerivAttrInfos(#1400)\0"
    "#1385.Attributes(#1387,#1388,#1389,#1392,#1393,#1394,#1395,#1396,#1397,#1398)\0"
    "#1401.Supertypes(#1385)\0"
    "#1401.Composition(#1386,#1385,#1401,#675,#676,#704)\0"
    "#1402.ExplAttrInfos(#1403,REQ)\0"
    "#1404.ExplAttrInfos(#1405,REQ)\0"
    "#1406.ExplAttrInfos(#1407,REQ)\0"
    "#1408.ExplAttrInfos(#1409,REQ)\0"
    "#1410.ExplAttrInfos(#416,REQ)\0"
    "#1411.DerivAttrInfos(#6)\0"
    "#1412.DerivAttrInfos(#6)\0"
    "#1401.Attributes(#1402,#1404,#1406,#1408,#1410,#1411,#1412)\0"
    "#1414.Supertypes(#1204)\0"
    "#1414.Composition(#1414,#1204,#1083,#838,#1108,#98)\0"
    "#1413.Supertypes(#1414)\0"
    "#1413.Composition(#1413,#1414,#1204,#1083,#838,#1108,#98)\0"
    "#1415.ExplAttrInfos(#234,OPT)\0"
    "#1413.Attributes(#1415)\0"
    "#1416.Supertypes(#1413)\0"
    "#1416.Composition(#1413,#1416,#1414,#1204,#1083,#838,#1108,#98)\0"
    "#1418.Supertypes(#1243)\0"
    "#1418.Composition(#1418,#1243,#838,#98,#1088,#1113)\0"
    "#1417.Supertypes(#1418)\0"
    "#1417.Composition(#1417,#1418,#1243,#838,#98,#1088,#1113)\0"
    "#1419.ExplAttrInfos(#234,REQ)\0"
    "#1417.Attributes(#1419)\0"
    "#1420.Supertypes(#1414)\0"
    "#1420.Composition(#1420,#1414,#1204,#1083,#838,#1108,#98)\0"
    "#1421.ExplAttrInfos(#238,OPT)\0"
    "#1420.Attributes(#1421)\0"
    "#1422.Supertypes(#1418)\0"
    "#1422.Composition(#1422,#1418,#1243,#838,#98,#1088,#1113)\0"
    "#1423.ExplAttrInfos(#238,REQ)\0"
    "#1422.Attributes(#1423)\0"
    "#1424.Supertypes(#919)\0"
    "#1424.Composition(#1424,#753,#919)\0"
    "#1425.ExplAttrInfos(#48,REQ)\0"
    "#1426.ExplAttrInfos(#12,REQ)\0"
    "#1424.Attributes(#1425,#1426)\0"
    "#1427.Supertypes(#699)\0"
    "#1427.Composition(#1427,#699,#675,#676)\0"
    "#1427.Attributes(#1428,#1429,#1430)\0"
    "#1431.Supertypes(#1268)\0"
    "#1431.Composition(#1431,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1432.ExplAttrInfos(#242,OPT)\0"
    "#1433.Supertypes(#1271)\0"
    "#1433.Composition(#1433,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1434.ExplAttrInfos(#242,REQ)\0"
    "#1433.Attributes(#1434)\0"
    "#1435.Supertypes(#696)\0"
    "#1435.Composition(#1435,#696,#675,#676)\0"
    "#1436.Composition(#1436)\0"
    "#1437.ExplAttrInfos(#14,OPT)\0"
    "#1436.Attributes(#1437)\0"
    "#1438.Supertypes(#799)\0"
    "#1438.Composition(#1438,#801,#800,#799,#802,#675,#676)\0"
    "#1439.Supertypes(#1436)\0"
    "#1439.Composition(#1436,#1439)\0"
    "#1440.ExplAttrInfos(#1075,OPT)\0"
    "#1441.ExplAttrInfos(#1075,OPT)\0"
    "#1442.ExplAttrInfos(#1075,OPT)\0"
    "#1443.ExplAttrInfos(#1071,OPT)\0"
    "#1444.ExplAttrInfos(#1071,OPT)\0"
    "#1445.ExplAttrInfos(#1071,OPT)\0"
    "#1439.Attributes(#1440,#1441,#1442,#1443,#1444,#1445)\0"
    "#1446.Supertypes(#1436)\0"
    "#1446.Composition(#1436,#1446)\0"
    "#1447.ExplAttrInfos(#1073,OPT)\0"
    "#1448.ExplAttrInfos(#1073,OPT)\0"
    "#1449.ExplAttrInfos(#1073,OPT)\0"
    "#1446.Attributes(#1447,#1448,#1449)\0"
    "#1450.Supertypes(#1436)\0"
    "#1450.Composition(#1436,#1450)\0"
    "#1451.ExplAttrInfos(#1221,OPT)\0"
    "#1452.ExplAttrInfos(#1221,OPT)\0"
    "#1453.ExplAttrInfos(#1221,OPT)\0"
    "#1454.ExplAttrInfos(#1171,OPT)\0"
    "#1455.ExplAttrInfos(#1171,OPT)\0"
    "#1456.ExplAttrInfos(#1171,OPT)\0"
    "#1450.Attributes(#1451,#1452,#1453,#1454,#1455,#1456)\0"
    "#1457.Supertypes(#1450)\0"
    "#1457.Composition(#1436,#1450,#1457)\0"
    "#1458.ExplAttrInfos(#1227,OPT)\0"
    "#1457.Attributes(#1458)\0"
    "#1459.Supertypes(#675)\0"
    "#1459.Composition(#1459,#675,#676)\0"
    "#1460.ExplAttrInfos(#678,REQ)\0"
    "#1461.ExplAttrInfos(#90,REQ)\0"
    "#1462.ExplAttrInfos(#90,REQ)\0"
    "#1463.ExplAttrInfos(#90,REQ)\0"
    "#1464.DerivAttrInfos(#29)\0"
    "#1459.Attributes(#1460,#1461,#1462,#1463,#1464)\0"
    "#1465.Supertypes(#702)\0"
    "#1465.Composition(#1465,#675,#702,#676)\0"
    "#1466.ExplAttrInfos(#1459,REQ)\0"
    "#1468.Supertypes(#1196)\0"
    "#1468.Composition(#1468,#1083,#838,#1108,#98,#1192,#1196)\0"
    "#1467.Supertypes(#1468)\0"
    "#1467.Composition(#1467,#1468,#1083,#838,#1108,#98,#1192,#1196)\0"
    "#1469.ExplAttrInfos(#248,OPT)\0"
    "#1467.Attributes(#1469)\0"
    "#1471.Supertypes(#1196)\0"
    "#1471.Composition(#1471,#1083,#838,#1108,#98,#1192,#1196)\0"
    "#1470.Supertypes(#1471)\0"
    "#1470.Composition(#1470,#1471,#1083,#838,#1108,#98,#1192,#1196)\0"
    "#1472.ExplAttrInfos(#246,OPT)\0"
    "#1470.Attributes(#1472)\0"
    "#1473.Supertypes(#1468)\0"
    "#1473.Composition(#1473,#1468,#1083,#838,#1108,#98,#1192,#1196)\0"
    "#1474.ExplAttrInfos(#56,OPT)\0"
    "#1475.ExplAttrInfos(#56,OPT)\0"
    "#1477.Supertypes(#125)\0"
    "#1477.Composition(#125,#1477)\0"
    "#1478.ExplAttrInfos(#14,OPT)\0"
    "#1479.ExplAttrInfos(#1480,OPT)\0"
    "#1481.ExplAttrInfos(#14,OPT)\0"
    "#1482.ExplAttrInfos(#14,OPT)\0"
    "#1483.ExplAttrInfos(#14,OPT)\0"
    "#1484.ExplAttrInfos(#14,OPT)\0"
    "#1485.ExplAttrInfos(#14,OPT)\0"
    "#1477.Attributes(#1478,#1479,#1481,#1482,#1483,#1484,#1485)\0"
    "#1476.ExplAttrInfos(#1477,OPT)\0"
    "#1473.Attributes(#1474,#1475,#1476)\0"
    "#1487.Supertypes(#1204)\0"
    "#1487.Composition(#1204,#1487,#1083,#838,#1108,#98)\0"
    "#1486.Supertypes(#1487)\0"
    "#1486.Composition(#1486,#1204,#1487,#1083,#838,#1108,#98)\0"
    "#1488.ExplAttrInfos(#250,OPT)\0"
    "#1486.Attributes(#1488)\0"
    "#1490.Supertypes(#1243)\0"
    "#1490.Composition(#1490,#1243,#838,#98,#1088,#1113)\0"
    "#1489.Supertypes(#1490)\0"
    "#1489.Composition(#1489,#1490,#1243,#838,#98,#1088,#1113)\0"
    "#1491.ExplAttrInfos(#250,REQ)\0"
    "#1489.Attributes(#1491)\0"
    "#1492.Supertypes(#1414)\0"
    "#1492.Composition(#1414,#1492,#1204,#1083,#838,#1108,#98)\0"
    "#1493.ExplAttrInfos(#252,OPT)\0"
    "#1492.Attributes(#1493)\0"
    "#1494.Supertypes(#1418)\0"
    "#1494.Composition(#1494,#1418,#1243,#838,#98,#1088,#1113)\0"
    "#1495.ExplAttrInfos(#252,REQ)\0"
    "#1494.Attributes(#1495)\0"
    "#1496.Supertypes(#1471)\0"
    "#1496.Composition(#1496,#1471,#1083,#838,#1108,#98,#1192,#1196)\0"
    "#1497.ExplAttrInfos(#56,OPT)\0"
    "#1496.Attributes(#1497)\0"
    "#1499.Supertypes(#1335)\0"
    "#1499.Composition(#1335,#1083,#838,#98,#1499)\0"
    "#1498.Supertypes(#1499)\0"
    "#1498.Composition(#1498,#1335,#1083,#838,#98,#1499)\0"
    "#1500.ExplAttrInfos(#254,OPT)\0"
    "#1501.ExplAttrInfos(#14,OPT)\0"
    "#1498.Attributes(#1500,#1501)\0"
    "#1502.Supertypes(#1268)\0"
    "#1502.Composition(#1502,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1503.ExplAttrInfos(#256,OPT)\0"
    "#1504.Supertypes(#1271)\0"
    "#1504.Composition(#1504,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1505.ExplAttrInfos(#256,REQ)\0"
    "#1506.Supertypes(#1347)\0"
    "#1506.Composition(#1506,#1347,#1147)\0"
    "#1507.ExplAttrInfos(#90,REQ)\0"
    "#1508.ExplAttrInfos(#90,REQ)\0"
    "#1509.ExplAttrInfos(#90,REQ)\0"
    "#1510.ExplAttrInfos(#90,REQ)\0"
    "#1511.ExplAttrInfos(#82,OPT)\0"
    "#1506.Attributes(#1507,#1508,#1509,#1510,#1511)\0"
    "#1513.Supertypes(#1255)\0"
    "#1513.Composition(#1238,#1255,#1204,#1513,#1083,#838,#1108,#98)\0"
    "#1512.Supertypes(#1513)\0"
    "#1512.Composition(#1512,#1238,#1255,#1204,#1513,#1083,#838,#1108,#98)\0"
    "#1514.ExplAttrInfos(#258,OPT)\0"
    "#1512.Attributes(#1514)\0"
    "#1516.Supertypes(#1262)\0"
    "#1516.Composition(#1242,#1262,#1243,#1516,#838,#98,#1088,#1113)\0"
    "#1515.Supertypes(#1516)\0"
    "#1515.Composition(#1515,#1242,#1262,#1243,#1516,#838,#98,#1088,#1113)\0"
    "#1517.ExplAttrInfos(#258,REQ)\0"
    "#1515.Attributes(#1517)\0"
    "#1519.Supertypes(#1255)\0"
    "#1519.Composition(#1238,#1255,#1204,#1519,#1083,#838,#1108,#98)\0"
    "#1518.Supertypes(#1519)\0"
    "#1518.Composition(#1518,#1238,#1255,#1204,#1519,#1083,#838,#1108,#98)\0"
    "#1520.ExplAttrInfos(#260,OPT)\0"
    "#1518.Attributes(#1520)\0"
    "#1522.Supertypes(#1262)\0"
    "#1522.Composition(#1242,#1262,#1243,#1522,#838,#98,#1088,#1113)\0"
    "#1521.Supertypes(#1522)\0"
    "#1521.Composition(#1521,#1242,#1262,#1243,#1522,#838,#98,#1088,#1113)\0"
    "#1523.ExplAttrInfos(#260,REQ)\0"
    "#1521.Attributes(#1523)\0"
    "#1524.Supertypes(#1513)\0"
    "#1524.Composition(#1524,#1238,#1255,#1204,#1513,#1083,#838,#1108,#98)\0"
    "#1525.ExplAttrInfos(#262,OPT)\0"
    "#1524.Attributes(#1525)\0"
    "#1526.Supertypes(#1516)\0"
    "#1526.Composition(#1526,#1242,#1262,#1243,#1516,#838,#98,#1088,#1113)\0"
    "#1527.ExplAttrInfos(#262,REQ)\0"
    "#1526.Attributes(#1527)\0"
    "#1528.Supertypes(#1519)\0"
    "#1528.Composition(#1528,#1238,#1255,#1204,#1519,#1083,#838,#1108,#98)\0"
    "#1529.ExplAttrInfos(#264,OPT)\0"
    "#1530.Supertypes(#1522)\0"
    "#1530.Composition(#1530,#1242,#1262,#1243,#1522,#838,#98,#1088,#1113)\0"
    "#1531.ExplAttrInfos(#264,REQ)\0"
    "#1533.Supertypes(#1414)\0"
    "#1533.Composition(#1414,#1533,#1204,#1083,#838,#1108,#98)\0"
    "#1532.Supertypes(#1533)\0"
    "#1532.Composition(#1414,#1532,#1533,#1204,#1083,#838,#1108,#98)\0"
    "#1534.ExplAttrInfos(#266,OPT)\0"
    "#1532.Attributes(#1534)\0"
    "#1536.Supertypes(#1418)\0"
    "#1536.Composition(#1418,#1536,#1243,#838,#98,#1088,#1113)\0"
    "#1535.Supertypes(#1536)\0"
    "#1535.Composition(#1418,#1535,#1536,#1243,#838,#98,#1088,#1113)\0"
    "#1537.ExplAttrInfos(#266,REQ)\0"
    "#1535.Attributes(#1537)\0"
    "#1538.Supertypes(#714)\0"
    "#1538.Composition(#714,#1538,#675,#676)\0"
    "#1539.ExplAttrInfos(#1541,REQ)\0"
    "#1542.ExplAttrInfos(#1543,OPT)\0"
    "#1538.Attributes(#1539,#1542)\0"
    "#1544.Supertypes(#924)\0"
    "#1544.Composition(#925,#924,#1544,#675,#676)\0"
    "#1545.ExplAttrInfos(#165,OPT)\0"
    "#1546.DerivAttrInfos(#165)\0"
    "#1544.Attributes(#1545,#1546)\0"
    "#1547.Supertypes(#925)\0"
    "#1547.Composition(#925,#1547,#675,#676)\0"
    "#1548.ExplAttrInfos(#685,OPT)\0"
    "#1549.DerivAttrInfos(#1550)\0"
    "#1547.Attributes(#1548,#1549)\0"
    "#1.Entities(#1228,#1234,#116,#1236,#1240,#125,#1246,#1249,#1252,#1253,#1257,#1260,#1264,#1267,#1270,#1273,#1275,#1277,#1282,#1285,#1286,#1296,#1304,#1305,#1308,#1297,#1311,#1315,#1316,#144,#1028,#1121,#1320,#1327,#1329,#1331,#1334,#1346,#1361,#1363,#1365,#673,#689,#1368,#1378,#1385,#1401,#1413,#1416,#1417,#1420,#1422,#1424,#1427,#1431,#1433,#1435,#696,#1436,#1438,#1439,#1446,#1450,#1457,#801,#1386,#1459,#1465,#1467,#1470,#1473,#1414,#1486,#1489,#1492,#1494,#1418,#1496,#1498,#1502,#1504,#1506,#1512,#1515,#1518,#1521,#1524,#1526,#1528,#1530,#1532,#1535,#678,#714,#1538,#713,#925,#924,#1544,#1547)\0"
    "#1551.Supertypes(#1547)\0"
    "#1551.Composition(#925,#1547,#1551,#675,#676)\0"
    "#1552.ExplAttrInfos(#165,OPT)\0"
    "#1553.ExplAttrInfos(#165,OPT)\0"
    "#1554.DerivAttrInfos(#165)\0"
    "#1555.DerivAttrInfos(#165)\0"
    "#1551.Attributes(#1552,#1553,#1554,#1555)\0"
    "#1556.Supertypes(#1329)\0"
    "#1556.Composition(#1329,#1556,#1147)\0"
    "#1557.ExplAttrInfos(#90,REQ)\0"
    "#1556.Attributes(#1557)\0"
    "#1558.Supertypes(#1268)\0"
    "#1558.Composition(#1558,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1559.ExplAttrInfos(#268,OPT)\0"
    "#1558.Attributes(#1559)\0"
    "#1560.Supertypes(#1271)\0"
    "#1560.Composition(#1560,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1561.ExplAttrInfos(#268,REQ)\0"
    "#1560.Attributes(#1561)\0"
    "#1562.Supertypes(#1414)\0"
    "#1562.Composition(#1414,#1562,#1204,#1083,#838,#1108,#98)\0"
    "#1563.ExplAttrInfos(#270,OPT)\0"
    "#1562.Attributes(#1563)\0"
    "#1564.Supertypes(#1418)\0"
    "#1564.Composition(#1418,#1564,#1243,#838,#98,#1088,#1113)\0"
    "#1565.ExplAttrInfos(#270,REQ)\0"
    "#1564.Attributes(#1565)\0"
    "#1567.Supertypes(#802)\0"
    "#1567.Composition(#1567,#802,#675,#676)\0"
    "#1568.ExplAttrInfos(#693,REQ)\0"
    "#1567.Attributes(#1568)\0"
    "#1566.Supertypes(#1567)\0"
    "#1566.Composition(#1566,#1567,#802,#675,#676)\0"
    "#1569.ExplAttrInfos(#90,REQ)\0"
    "#1566.Attributes(#1569)\0"
    "#1571.Supertypes(#1347)\0"
    "#1571.Composition(#1571,#1347,#1147)\0"
    "#1572.ExplAttrInfos(#90,REQ)\0"
    "#1571.Attributes(#1572)\0"
    "#1570.Supertypes(#1571)\0"
    "#1570.Composition(#1570,#1571,#1347,#1147)\0"
    "#1573.ExplAttrInfos(#90,REQ)\0"
    "#1570.Attributes(#1573)\0"
    "#1574.Supertypes(#1291)\0"
    "#1574.Composition(#801,#1574,#802,#1291,#675,#676)\0"
    "#1575.ExplAttrInfos(#90,REQ)\0"
    "#1576.ExplAttrInfos(#13,REQ)\0"
    "#1574.Attributes(#1575,#1576)\0"
    "#1577.Supertypes(#1204)\0"
    "#1577.Composition(#1577,#1204,#1083,#838,#1108,#98)\0"
    "#1578.Supertypes(#1243)\0"
    "#1578.Composition(#1578,#1243,#838,#98,#1088,#1113)\0"
    "#1579.Supertypes(#1268)\0"
    "#1579.Composition(#1579,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1580.ExplAttrInfos(#272,OPT)\0"
    "#1579.Attributes(#1580)\0"
    "#1581.Supertypes(#1271)\0"
    "#1581.Composition(#1581,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1582.ExplAttrInfos(#272,REQ)\0"
    "#1581.Attributes(#1582)\0"
    "#1583.Supertypes(#753)\0"
    "#1583.Composition(#1583,#753)\0"
    "#1584.ExplAttrInfos(#1586,REQ)\0"
    "#1583.Attributes(#1584)\0"
    "#1587.Supertypes(#1414)\0"
    "#1587.Composition(#1414,#1587,#1204,#1083,#838,#1108,#98)\0"
    "#1588.ExplAttrInfos(#274,OPT)\0"
    "#1587.Attributes(#1588)\0"
    "#1589.Supertypes(#1587)\0"
    "#1589.Composition(#1414,#1587,#1589,#1204,#1083,#838,#1108,#98)\0"
    "#1590.Supertypes(#1418)\0"
    "#1590.Composition(#1418,#1590,#1243,#838,#98,#1088,#1113)\0"
    "#1591.ExplAttrInfos(#274,REQ)\0"
    "#1592.Supertypes(#1254)\0"
    "#1592.Composition(#1592,#1238,#1255,#1204,#1254,#1083,#838,#1108,#98)\0"
    "#1593.ExplAttrInfos(#276,OPT)\0"
    "#1592.Attributes(#1593)\0"
    "#1594.Supertypes(#1265)\0"
    "#1594.Composition(#1594,#1242,#1262,#1243,#1265,#838,#98,#1088,#1113)\0"
    "#1595.ExplAttrInfos(#276,REQ)\0"
    "#1594.Attributes(#1595)\0"
    "#1597.Supertypes(#1150)\0"
    "#1597.Composition(#1597,#1150)\0"
    "#1598.ExplAttrInfos(#48,REQ)\0"
    "#1599.ExplAttrInfos(#122,OPT)\0"
    "#1597.Attributes(#1598,#1599)\0"
    "#1596.Supertypes(#1597)\0"
    "#1596.Composition(#1596,#1597,#1150)\0"
    "#1600.ExplAttrInfos(#48,REQ)\0"
    "#1601.ExplAttrInfos(#1602,REQ)\0"
    "#1596.Attributes(#1600,#1601)\0"
    "#1605.Supertypes(#97)\0"
    "#1605.Composition(#97,#1605,#98)\0"
    "#1604.Supertypes(#1605)\0"
    "#1604.Composition(#97,#1604,#1605,#98)\0"
    "#1603.Supertypes(#1604)\0"
    "#1603.Composition(#1603,#97,#1604,#1605,#98)\0"
    "#1606.ExplAttrInfos(#14,OPT)\0"
    "#1607.ExplAttrInfos(#278,OPT)\0"
    "#1608.ExplAttrInfos(#1609,OPT)\0"
    "#1603.Attributes(#1606,#1607,#1608)\0"
    "#1610.Supertypes(#1147)\0"
    "#1610.Composition(#1610,#1147)\0"
    "#1611.ExplAttrInfos(#1612,REQ)\0"
    "#1613.ExplAttrInfos(#14,OPT)\0"
    "#1610.Attributes(#1611,#1613)\0"
    "#1615.Supertypes(#1255)\0"
    "#1615.Composition(#1238,#1255,#1204,#1615,#1083,#838,#1108,#98)\0"
    "#1614.Supertypes(#1615)\0"
    "#1614.Composition(#1614,#1238,#1255,#1204,#1615,#1083,#838,#1108,#98)\0"
    "#1616.ExplAttrInfos(#280,OPT)\0"
    "#1614.Attributes(#1616)\0"
    "#1618.Supertypes(#1262)\0"
    "#1618.Composition(#1242,#1262,#1243,#1618,#838,#98,#1088,#1113)\0"
    "#1617.Supertypes(#1618)\0"
    "#1617.Composition(#1617,#1242,#1262,#1243,#1618,#838,#98,#1088,#1113)\0"
    "#1619.ExplAttrInfos(#280,REQ)\0"
    "#1617.Attributes(#1619)\0"
    "#1620.Supertypes(#1268)\0"
    "#1620.Composition(#1620,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1621.ExplAttrInfos(#282,OPT)\0"
    "#1622.Supertypes(#1271)\0"
    "#1622.Composition(#1622,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1623.ExplAttrInfos(#282,REQ)\0"
    "#1625.Composition(#1625)\0"
    "#1624.Supertypes(#1625)\0"
    "#1624.Composition(#1624,#1625)\0"
    "#1626.ExplAttrInfos(#837,REQ)\0"
    "#1627.ExplAttrInfos(#837,OPT)\0"
    "#1624.Attributes(#1626,#1627)\0"
    "#1629.Supertypes(#1625)\0"
    "#1629.Composition(#1625,#1629)\0"
    "#1630.ExplAttrInfos(#1081,REQ)\0"
    "#1631.ExplAttrInfos(#1081,OPT)\0"
    "#1629.Attributes(#1630,#1631)\0"
    "#1628.Supertypes(#1629)\0"
    "#1628.Composition(#1625,#1628,#1629)\0"
    "#1632.ExplAttrInfos(#56,OPT)\0"
    "#1633.ExplAttrInfos(#56,OPT)\0"
    "#1634.ExplAttrInfos(#56,OPT)\0"
    "#1628.Attributes(#1632,#1633,#1634)\0"
    "#1635.Supertypes(#1625)\0"
    "#1635.Composition(#1625,#1635)\0"
    "#1636.ExplAttrInfos(#1217,REQ)\0"
    "#1637.ExplAttrInfos(#1217,OPT)\0"
    "#1635.Attributes(#1636,#1637)\0"
    "#1638.Supertypes(#1625)\0"
    "#1638.Composition(#1625,#1638)\0"
    "#1639.ExplAttrInfos(#1189,REQ)\0"
    "#1640.ExplAttrInfos(#1189,OPT)\0"
    "#1638.Attributes(#1639,#1640)\0"
    "#1642.Supertypes(#1161)",
    "#1642.Composition(#1642,#1083,#838,#1161,#98)\0"
    "#1645.Composition(#1645)\0"
    "#1646.ExplAttrInfos(#14,OPT)\0"
    "#1647.ExplAttrInfos(#314,OPT)\0"
    "#1648.ExplAttrInfos(#14,OPT)\0"
    "#1645.Attributes(#1646,#1647,#1648)\0"
    "#1644.Supertypes(#1645)\0"
    "#1644.Composition(#1644,#1645)\0"
    "#1649.ExplAttrInfos(#31,OPT)\0"
    "#1650.ExplAttrInfos(#92,OPT)\0"
    "#1651.ExplAttrInfos(#25,OPT)\0"
    "#1652.ExplAttrInfos(#25,OPT)\0"
    "#1653.ExplAttrInfos(#14,OPT)\0"
    "#1654.ExplAttrInfos(#31,OPT)\0"
    "#1655.ExplAttrInfos(#13,OPT)\0"
    "#1656.ExplAttrInfos(#25,OPT)\0"
    "#1657.ExplAttrInfos(#31,OPT)\0"
    "#1658.ExplAttrInfos(#92,OPT)\0"
    "#1659.ExplAttrInfos(#25,OPT)\0"
    "#1660.ExplAttrInfos(#25,OPT)\0"
    "#1661.ExplAttrInfos(#31,OPT)\0"
    "#1662.ExplAttrInfos(#92,OPT)\0"
    "#1663.ExplAttrInfos(#92,OPT)\0"
    "#1644.Attributes(#1649,#1650,#1651,#1652,#1653,#1654,#1655,#1656,#1657,#1658,#1659,#1660,#1661,#1662,#1663)\0"
    "#1643.ExplAttrInfos(#1644,OPT)\0"
    "#1664.ExplAttrInfos(#1665,OPT)\0"
    "#1666.ExplAttrInfos(#1144,OPT)\0"
    "#1642.Attributes(#1643,#1664,#1666)\0"
    "#1641.Supertypes(#1642)\0"
    "#1641.Composition(#1641,#1642,#1083,#838,#1161,#98)\0"
    "#1667.ExplAttrInfos(#288,OPT)\0"
    "#1641.Attributes(#1667)\0"
    "#1669.Supertypes(#1164)\0"
    "#1669.Composition(#1669,#838,#98,#1088,#1164)\0"
    "#1670.ExplAttrInfos(#1671,OPT)\0"
    "#1672.ExplAttrInfos(#1144,OPT)\0"
    "#1669.Attributes(#1670,#1672)\0"
    "#1668.Supertypes(#1669)\0"
    "#1668.Composition(#1668,#1669,#838,#98,#1088,#1164)\0"
    "#1673.ExplAttrInfos(#288,REQ)\0"
    "#1668.Attributes(#1673)\0"
    "#1674.Supertypes(#1642)\0"
    "#1674.Composition(#1674,#1642,#1083,#838,#1161,#98)\0"
    "#1675.ExplAttrInfos(#290,OPT)\0"
    "#1674.Attributes(#1675)\0"
    "#1676.Supertypes(#1669)\0"
    "#1676.Composition(#1676,#1669,#838,#98,#1088,#1164)\0"
    "#1677.ExplAttrInfos(#290,REQ)\0"
    "#1676.Attributes(#1677)\0"
    "#1678.Supertypes(#1642)\0"
    "#1678.Composition(#1678,#1642,#1083,#838,#1161,#98)\0"
    "#1679.ExplAttrInfos(#292,OPT)\0"
    "#1678.Attributes(#1679)\0"
    "#1680.Supertypes(#1669)\0"
    "#1680.Composition(#1680,#1669,#838,#98,#1088,#1164)\0"
    "#1681.ExplAttrInfos(#292,REQ)\0"
    "#1682.Supertypes(#838)\0"
    "#1682.Composition(#1682,#838,#98)\0"
    "#1684.ExplAttrInfos(#14,OPT)\0"
    "#1685.ExplAttrInfos(#14,OPT)\0"
    "#1686.ExplAttrInfos(#1687,OPT)\0"
    "#1689.Composition(#1689)\0"
    "#1690.ExplAttrInfos(#1691,REQ)\0"
    "#1688.ExplAttrInfos(#1689,OPT)\0"
    "#1682.Attributes(#1683,#1684,#1685,#1686,#1688)\0"
    "#1692.Supertypes(#1237)\0"
    "#1692.Composition(#1692,#1237,#1238,#1204,#1083,#838,#1108,#98)\0"
    "#1693.ExplAttrInfos(#294,OPT)\0"
    "#1692.Attributes(#1693)\0"
    "#1694.Supertypes(#1241)\0"
    "#1694.Composition(#1694,#1241,#1242,#1243,#838,#98,#1088,#1113)\0"
    "#1695.ExplAttrInfos(#294,REQ)\0"
    "#1694.Attributes(#1695)\0"
    "#1696.Supertypes(#1141)\0"
    "#1696.Composition(#1141,#1696,#644)\0"
    "#1697.ExplAttrInfos(#165,REQ)\0"
    "#1696.Attributes(#1697)\0"
    "#1698.Supertypes(#1268)\0"
    "#1698.Composition(#1698,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1699.ExplAttrInfos(#296,OPT)\0"
    "#1698.Attributes(#1699)\0"
    "#1700.Supertypes(#1271)\0"
    "#1700.Composition(#1700,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1701.ExplAttrInfos(#296,REQ)\0"
    "#1700.Attributes(#1701)\0"
    "#1702.Supertypes(#1268)\0"
    "#1702.Composition(#1702,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1703.ExplAttrInfos(#298,OPT)\0"
    "#1702.Attributes(#1703)\0"
    "#1704.Supertypes(#1271)\0"
    "#1704.Composition(#1704,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1705.ExplAttrInfos(#298,REQ)\0"
    "#1704.Attributes(#1705)\0"
    "#1706.Composition(#1706)\0"
    "#1707.ExplAttrInfos(#780,REQ)\0"
    "#1708.ExplAttrInfos(#766,REQ)\0"
    "#1706.Attributes(#1707,#1708)\0"
    "#1709.Supertypes(#1229)\0"
    "#1709.Composition(#1229,#1709,#1083,#838,#98)\0"
    "#1710.ExplAttrInfos(#300,OPT)\0"
    "#1711.ExplAttrInfos(#1712,OPT)\0"
    "#1709.Attributes(#1710,#1711,#1713)\0"
    "#1715.Supertypes(#1229)\0"
    "#1715.Composition(#1229,#1715,#1083,#838,#98)\0"
    "#1716.ExplAttrInfos(#302,OPT)\0"
    "#1717.ExplAttrInfos(#14,OPT)\0"
    "#1718.ExplAttrInfos(#25,OPT)\0"
    "#1719.ExplAttrInfos(#25,OPT)\0"
    "#1715.Attributes(#1716,#1717,#1718,#1719)\0"
    "#1720.Supertypes(#1414)\0"
    "#1720.Composition(#1414,#1720,#1204,#1083,#838,#1108,#98)\0"
    "#1721.ExplAttrInfos(#304,OPT)\0"
    "#1720.Attributes(#1721)\0"
    "#1722.Supertypes(#1418)\0"
    "#1722.Composition(#1418,#1722,#1243,#838,#98,#1088,#1113)\0"
    "#1723.ExplAttrInfos(#304,REQ)\0"
    "#1722.Attributes(#1723)\0"
    "#1724.Supertypes(#1642)\0"
    "#1724.Composition(#1642,#1724,#1083,#838,#1161,#98)\0"
    "#1725.ExplAttrInfos(#306,OPT)\0"
    "#1724.Attributes(#1725)\0"
    "#1726.Supertypes(#1669)\0"
    "#1726.Composition(#1669,#1726,#838,#98,#1088,#1164)\0"
    "#1727.ExplAttrInfos(#306,REQ)\0"
    "#1726.Attributes(#1727)\0"
    "#1728.Supertypes(#708)\0"
    "#1728.Composition(#1728,#675,#676,#708)\0"
    "#1729.ExplAttrInfos(#782,REQ)\0"
    "#1728.Attributes(#1729)\0"
    "#1730.Supertypes(#1321)\0"
    "#1730.Composition(#1730,#1321)\0"
    "#1731.ExplAttrInfos(#660,REQ)\0"
    "#1732.ExplAttrInfos(#660,REQ)\0"
    "#1733.ExplAttrInfos(#92,REQ)\0"
    "#1734.ExplAttrInfos(#25,OPT)\0"
    "#1735.ExplAttrInfos(#992,OPT)\0"
    "#1730.Attributes(#1731,#1732,#1733,#1734,#1735)\0"
    "#1736.Supertypes(#1414)\0"
    "#1736.Composition(#1414,#1736,#1204,#1083,#838,#1108,#98)\0"
    "#1737.ExplAttrInfos(#308,OPT)\0"
    "#1736.Attributes(#1737)\0"
    "#1738.Supertypes(#1418)\0"
    "#1738.Composition(#1418,#1738,#1243,#838,#98,#1088,#1113)\0"
    "#1739.ExplAttrInfos(#308,REQ)\0"
    "#1738.Attributes(#1739)\0"
    "#1740.Supertypes(#1386)\0"
    "#1740.Composition(#1386,#1740,#675,#676,#704)\0"
    "#1743.Supertypes(#704)\0"
    "#1743.Composition(#1743,#675,#676,#704)\0"
    "#1744.ExplAttrInfos(#689,REQ)\0"
    "#1742.Supertypes(#1743)\0"
    "#1742.Composition(#1743,#675,#1742,#676,#704)\0"
    "#1741.ExplAttrInfos(#1742,REQ)\0"
    "#1745.ExplAttrInfos(#802,REQ)\0"
    "#1746.ExplAttrInfos(#1747,REQ)\0"
    "#1740.Attributes(#1741,#1745,#1746)\0"
    "#1748.Supertypes(#1386)\0"
    "#1748.Composition(#1386,#1748,#675,#676,#704)\0"
    "#1749.ExplAttrInfos(#704,REQ)\0"
    "#1750.ExplAttrInfos(#1751,REQ)\0"
    "#1752.ExplAttrInfos(#13,REQ)\0"
    "#1748.Attributes(#1749,#1750,#1752)\0"
    "#1753.Supertypes(#1743)\0"
    "#1753.Composition(#1753,#1743,#675,#676,#704)\0"
    "#1754.ExplAttrInfos(#90,REQ)\0"
    "#1755.Supertypes(#1258)\0"
    "#1755.Composition(#1755,#1238,#1255,#1204,#1258,#1083,#838,#1108,#98)\0"
    "#1756.ExplAttrInfos(#312,OPT)\0"
    "#1757.Supertypes(#1261)\0"
    "#1757.Composition(#1757,#1242,#1262,#1243,#1261,#838,#98,#1088,#1113)\0"
    "#1758.ExplAttrInfos(#312,REQ)\0"
    "#1759.Supertypes(#1147)\0"
    "#1759.Composition(#1759,#1147)\0"
    "#1760.ExplAttrInfos(#1147,REQ)\0"
    "#1761.ExplAttrInfos(#924,REQ)\0"
    "#1762.ExplAttrInfos(#14,OPT)\0"
    "#1759.Attributes(#1760,#1761,#1762)\0"
    "#1763.Supertypes(#1487)\0"
    "#1763.Composition(#1763,#1204,#1487,#1083,#838,#1108,#98)\0"
    "#1764.ExplAttrInfos(#320,OPT)\0"
    "#1763.Attributes(#1764)\0"
    "#1765.Supertypes(#1490)\0"
    "#1765.Composition(#1765,#1490,#1243,#838,#98,#1088,#1113)\0"
    "#1766.ExplAttrInfos(#320,REQ)\0"
    "#1765.Attributes(#1766)\0"
    "#1767.Supertypes(#675)\0"
    "#1767.Composition(#1767,#675,#676)\0"
    "#1768.ExplAttrInfos(#56,REQ)\0"
    "#1769.ExplAttrInfos(#56,OPT)\0"
    "#1770.ExplAttrInfos(#56,OPT)\0"
    "#1771.ExplAttrInfos(#56,OPT)\0"
    "#1772.ExplAttrInfos(#13,OPT)\0"
    "#1767.Attributes(#1768,#1769,#1770,#1771,#1772)\0"
    "#1773.Supertypes(#1255)\0"
    "#1773.Composition(#1773,#1238,#1255,#1204,#1083,#838,#1108,#98)\0"
    "#1774.ExplAttrInfos(#322,OPT)\0"
    "#1773.Attributes(#1774)\0"
    "#1775.Supertypes(#1262)\0"
    "#1775.Composition(#1775,#1242,#1262,#1243,#838,#98,#1088,#1113)\0"
    "#1776.ExplAttrInfos(#322,REQ)\0"
    "#1.Entities(#1551,#1556,#1558,#1560,#1562,#1564,#1566,#1570,#1571,#1574,#1577,#1578,#728,#738,#1174,#1579,#1581,#760,#1583,#752,#1587,#1589,#1590,#1592,#1594,#1596,#1603,#800,#799,#805,#1610,#1614,#1617,#1620,#1622,#1567,#1175,#1624,#1625,#1628,#1629,#1635,#1638,#1131,#1641,#1668,#1674,#1676,#1678,#1680,#1642,#1669,#1682,#1139,#1229,#1692,#1694,#1141,#1696,#1698,#1700,#1702,#1704,#1706,#766,#1709,#1715,#1338,#1720,#1722,#1724,#1726,#699,#1728,#1730,#1736,#1738,#802,#1740,#1748,#1291,#868,#786,#783,#789,#1753,#1755,#1757,#1533,#1536,#1759,#640,#642,#646,#685,#1763,#1765,#1767,#1773,#1775)\0"
    "#1778.Supertypes(#1499)\0"
    "#1778.Composition(#1778,#1335,#1083,#838,#98,#1499)\0"
    "#1779.ExplAttrInfos(#14,OPT)\0"
    "#1780.ExplAttrInfos(#326,OPT)\0"
    "#1778.Attributes(#1779,#1780)\0"
    "#1777.Composition(#1777,#1778,#1335,#1083,#838,#98,#1499)\0"
    "#1782.Supertypes(#1108)\0"
    "#1782.Composition(#1083,#838,#1782,#1108,#98)\0"
    "#1781.Supertypes(#1782)\0"
    "#1781.Composition(#1781,#1083,#838,#1782,#1108,#98)\0"
    "#1783.ExplAttrInfos(#386,OPT)\0"
    "#1784.ExplAttrInfos(#324,OPT)\0"
    "#1785.ExplAttrInfos(#326,OPT)\0"
    "#1781.Attributes(#1783,#1784,#1785)\0"
    "#1786.Supertypes(#1321)\0"
    "#1786.Composition(#1786,#1321)\0"
    "#1787.ExplAttrInfos(#841,REQ)\0"
    "#1788.ExplAttrInfos(#1789,REQ)\0"
    "#1790.ExplAttrInfos(#14,OPT)\0"
    "#1786.Attributes(#1787,#1788,#1790)\0"
    "#1791.Supertypes(#1414)\0"
    "#1791.Composition(#1414,#1791,#1204,#1083,#838,#1108,#98)\0"
    "#1792.ExplAttrInfos(#90,OPT)\0"
    "#1793.ExplAttrInfos(#90,OPT)\0"
    "#1794.ExplAttrInfos(#340,OPT)\0"
    "#1795.ExplAttrInfos(#342,OPT)\0"
    "#1796.ExplAttrInfos(#14,OPT)\0"
    "#1791.Attributes(#1792,#1793,#1794,#1795,#1796)\0"
    "#1798.Composition(#1798,#97,#96,#98)\0"
    "#1797.Composition(#1797,#1798,#97,#96,#98)\0"
    "#1799.ExplAttrInfos(#90,OPT)\0"
    "#1800.ExplAttrInfos(#82,OPT)\0"
    "#1801.ExplAttrInfos(#90,OPT)\0"
    "#1802.ExplAttrInfos(#82,OPT)\0"
    "#1803.ExplAttrInfos(#82,OPT)\0"
    "#1804.ExplAttrInfos(#56,OPT)\0"
    "#1805.ExplAttrInfos(#56,OPT)\0"
    "#1806.ExplAttrInfos(#56,OPT)\0"
    "#1807.ExplAttrInfos(#90,OPT)\0"
    "#1808.ExplAttrInfos(#90,OPT)\0"
    "#1809.ExplAttrInfos(#1151,OPT)\0"
    "#1810.ExplAttrInfos(#56,OPT)\0"
    "#1811.ExplAttrInfos(#56,OPT)\0"
    "#1797.Attributes(#1799,#1800,#1801,#1802,#1803,#1804,#1805,#1806,#1807,#1808,#1809,#1810,#1811)\0"
    "#1812.Supertypes(#1798)\0"
    "#1812.Composition(#1812,#1798,#97,#96,#98)\0"
    "#1813.ExplAttrInfos(#90,OPT)\0"
    "#1814.ExplAttrInfos(#332,REQ)\0"
    "#1815.ExplAttrInfos(#84,OPT)\0"
    "#1816.ExplAttrInfos(#334,REQ)\0"
    "#1817.ExplAttrInfos(#1151,OPT)\0"
    "#1812.Attributes(#1813,#1814,#1815,#1816,#1817)\0"
    "#1818.Supertypes(#1791)\0"
    "#1818.Composition(#1414,#1791,#1818,#1204,#1083,#838,#1108,#98)\0"
    "#1819.Supertypes(#1113)\0"
    "#1819.Composition(#1819,#838,#98,#1088,#1113)\0"
    "#1820.ExplAttrInfos(#338,REQ)\0"
    "#1821.ExplAttrInfos(#336,REQ)\0"
    "#1822.ExplAttrInfos(#13,REQ)\0"
    "#1823.ExplAttrInfos(#13,REQ)\0"
    "#1819.Attributes(#1820,#1821,#1822,#1823)\0"
    "#1824.Supertypes(#1418)\0"
    "#1824.Composition(#1418,#1824,#1243,#838,#98,#1088,#1113)\0"
    "#1825.ExplAttrInfos(#340,REQ)\0"
    "#1826.ExplAttrInfos(#342,REQ)\0"
    "#1827.ExplAttrInfos(#13,OPT)\0"
    "#1828.ExplAttrInfos(#14,OPT)\0"
    "#1824.Attributes(#1825,#1826,#1827,#1828)\0"
    "#1829.Supertypes(#755)\0"
    "#1829.Composition(#1829,#755,#756,#753)\0"
    "#1830.Supertypes(#793)\0"
    "#1830.Composition(#1830,#793,#756,#753)\0"
    "#1831.Supertypes(#1513)\0"
    "#1831.Composition(#1238,#1255,#1831,#1204,#1513,#1083,#838,#1108,#98)\0"
    "#1832.ExplAttrInfos(#344,OPT)\0"
    "#1831.Attributes(#1832)\0"
    "#1833.Supertypes(#1516)\0"
    "#1833.Composition(#1242,#1262,#1833,#1243,#1516,#838,#98,#1088,#1113)\0"
    "#1834.ExplAttrInfos(#344,REQ)\0"
    "#1835.Supertypes(#1519)\0"
    "#1835.Composition(#1238,#1255,#1835,#1204,#1519,#1083,#838,#1108,#98)\0"
    "#1836.ExplAttrInfos(#346,OPT)\0"
    "#1837.Supertypes(#1522)\0"
    "#1837.Composition(#1242,#1262,#1837,#1243,#1522,#838,#98,#1088,#1113)\0"
    "#1838.ExplAttrInfos(#346,REQ)\0"
    "#1837.Attributes(#1838)\0"
    "#1840.Supertypes(#1255)\0"
    "#1840.Composition(#1238,#1255,#1204,#1840,#1083,#838,#1108,#98)\0"
    "#1839.Supertypes(#1840)\0"
    "#1839.Composition(#1238,#1255,#1839,#1204,#1840,#1083,#838,#1108,#98)\0"
    "#1841.ExplAttrInfos(#348,OPT)\0"
    "#1839.Attributes(#1841)\0"
    "#1843.Supertypes(#1262)\0"
    "#1843.Composition(#1242,#1262,#1243,#1843,#838,#98,#1088,#1113)\0"
    "#1842.Supertypes(#1843)\0"
    "#1842.Composition(#1242,#1262,#1842,#1243,#1843,#838,#98,#1088,#1113)\0"
    "#1844.ExplAttrInfos(#348,REQ)\0"
    "#1842.Attributes(#1844)\0"
    "#1845.Supertypes(#1181)\0"
    "#1845.Composition(#1845,#1181,#676,#830)\0"
    "#1847.Supertypes(#829)\0"
    "#1847.Composition(#829,#1847,#676,#830)\0"
    "#1848.ExplAttrInfos(#829,REQ)\0"
    "#1849.ExplAttrInfos(#13,REQ)\0"
    "#1850.DerivAttrInfos(#832)\0"
    "#1851.DerivAttrInfos(#832)\0"
    "#1847.Attributes(#1848,#1849,#1850,#1851)\0"
    "#1846.ExplAttrInfos(#1852,REQ)\0"
    "#1853.DerivAttrInfos(#6)\0"
    "#1845.Attributes(#1846,#1853)\0"
    "#1854.Supertypes(#1254)\0"
    "#1854.Composition(#1238,#1255,#1854,#1204,#1254,#1083,#838,#1108,#98)\0"
    "#1855.ExplAttrInfos(#350,OPT)\0"
    "#1854.Attributes(#1855)\0"
    "#1856.Supertypes(#1265)\0"
    "#1856.Composition(#1242,#1262,#1856,#1243,#1265,#838,#98,#1088,#1113)\0"
    "#1857.ExplAttrInfos(#350,REQ)\0"
    "#1856.Attributes(#1857)\0"
    "#1858.Supertypes(#1258)\0"
    "#1858.Composition(#1238,#1255,#1858,#1204,#1258,#1083,#838,#1108,#98)\0"
    "#1859.ExplAttrInfos(#352,OPT)\0"
    "#1860.Supertypes(#1261)\0"
    "#1860.Composition(#1242,#1262,#1860,#1243,#1261,#838,#98,#1088,#1113)\0"
    "#1861.ExplAttrInfos(#352,REQ)\0"
    "#1860.Attributes(#1861)\0"
    "#1863.Supertypes(#1255)\0"
    "#1863.Composition(#1238,#1255,#1204,#1863,#1083,#838,#1108,#98)\0"
    "#1862.Supertypes(#1863)\0"
    "#1862.Composition(#1238,#1255,#1862,#1204,#1863,#1083,#838,#1108,#98)\0"
    "#1864.ExplAttrInfos(#354,OPT)\0"
    "#1862.Attributes(#1864)\0"
    "#1866.Supertypes(#1262)\0"
    "#1866.Composition(#1242,#1262,#1243,#1866,#838,#98,#1088,#1113)\0"
    "#1865.Composition(#1242,#1262,#1865,#1243,#1866,#838,#98,#1088,#1113)\0"
    "#1867.ExplAttrInfos(#354,REQ)\0"
    "#1865.Attributes(#1867)\0"
    "#1868.Supertypes(#1268)\0"
    "#1868.Composition(#1238,#1255,#1868,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1869.ExplAttrInfos(#356,OPT)\0"
    "#1868.Attributes(#1869)\0"
    "#1870.Supertypes(#1271)\0"
    "#1870.Composition(#1242,#1262,#1870,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1871.ExplAttrInfos(#356,REQ)\0"
    "#1870.Attributes(#1871)\0"
    "#1872.Supertypes(#1268)\0"
    "#1872.Composition(#1238,#1255,#1872,#1204,#1268,#1083,#838,#1108,#98)\0"
    "#1873.ExplAttrInfos(#358,OPT)\0"
    "#1872.Attributes(#1873)\0"
    "#1874.Supertypes(#1271)\0"
    "#1874.Composition(#1242,#1262,#1874,#1243,#1271,#838,#98,#1088,#1113)\0"
    "#1875.ExplAttrInfos(#358,REQ)\0"
    "#1876.Supertypes(#1258)\0"
    "#1876.Composition(#1238,#1255,#1876,#1204,#1258,#1083,#838,#1108,#98)\0"
    "#1877.ExplAttrInfos(#360,OPT)\0"
    "#1878.Supertypes(#1261)\0"
    "#1878.Composition(#1242,#1262,#1878,#1243,#1261,#838,#98,#1088,#1113)\0"
    "#1879.ExplAttrInfos(#360,REQ)\0"
    "#1880.Supertypes(#1204)\0"
    "#1880.Composition(#1204,#1880,#1083,#838,#1108,#98)\0"
    "#1881.ExplAttrInfos(#226,OPT)\0"
    "#1882.ExplAttrInfos(#362,OPT)\0"
    "#1880.Attributes(#1881,#1882)\0"
    "#1883.Supertypes(#1243)\0"
    "#1883.Composition(#1883,#1243,#838,#98,#1088,#1113)\0"
    "#1884.ExplAttrInfos(#362,REQ)\0"
    "#1883.Attributes(#1884)\0"
    "#1886.Supertypes(#96)\0"
    "#1886.Composition(#97,#96,#1886,#98)\0"
    "#1885.Supertypes(#1886)\0"
    "#1885.Composition(#1885,#97,#96,#1886,#98)\0"
    "#1887.ExplAttrInfos(#14,OPT)\0"
    "#1888.ExplAttrInfos(#1889,REQ)\0"
    "#1885.Attributes(#1887,#1888)\0"
    "#1890.Supertypes(#1567)\0"
    "#1890.Composition(#1567,#802,#1890,#675,#676)\0"
    "#1891.ExplAttrInfos(#90,REQ)\0"
    "#1892.ExplAttrInfos(#90,REQ)\0"
    "#1890.Attributes(#1891,#1892)\0"
    "#1893.Supertypes(#1347)\0"
    "#1893.Composition(#1893,#1347,#1147)\0"
    "#1894.ExplAttrInfos(#90,REQ)\0"
    "#1895.ExplAttrInfos(#90,REQ)\0"
    "#1893.Attributes(#1894,#1895)\0"
    "#1896.Supertypes(#1268)\0"
    "#1896.Composition(#1238,#1255,#1204,#1268,#1896,#1083,#838,#1108,#98)\0"
    "#1897.ExplAttrInfos(#366,OPT)\0"
    "#1896.Attributes(#1897)\0"
    "#1898.Supertypes(#1271)\0"
    "#1898.Composition(#1242,#1262,#1243,#1271,#1898,#838,#98,#1088,#1113)\0"
    "#1899.ExplAttrInfos(#366,REQ)\0"
    "#1900.Supertypes(#1268)\0"
    "#1900.Composition(#1238,#1255,#1204,#1268,#1900,#1083,#838,#1108,#98)\0"
    "#1901.ExplAttrInfos(#368,OPT)\0"
    "#1902.Supertypes(#1271)\0"
    "#1902.Composition(#1242,#1262,#1243,#1271,#1902,#838,#98,#1088,#1113)\0"
    "#1903.ExplAttrInfos(#368,REQ)\0"
    "#1904.Supertypes(#1268)\0"
    "#1904.Composition(#1238,#1255,#1204,#1268,#1904,#1083,#838,#1108,#98)\0"
    "#1905.ExplAttrInfos(#370,OPT)\0"
    "#1906.Supertypes(#1271)\0"
    "#1906.Composition(#1242,#1262,#1243,#1271,#1906,#838,#98,#1088,#1113)\0"
    "#1907.ExplAttrInfos(#370,REQ)\0"
    "#1908.Supertypes(#1082)\0"
    "#1908.Composition(#1908,#1083,#838,#1082,#98)\0"
    "#1909.ExplAttrInfos(#374,OPT)\0"
    "#1910.ExplAttrInfos(#372,OPT)\0"
    "#1911.ExplAttrInfos(#14,OPT)\0"
    "#1913.Supertypes(#1645)\0"
    "#1913.Composition(#1913,#1645)\0"
    "#1914.ExplAttrInfos(#25,OPT)\0"
    "#1915.ExplAttrInfos(#25,OPT)\0"
    "#1916.ExplAttrInfos(#25,OPT)\0"
    "#1917.ExplAttrInfos(#25,OPT)\0"
    "#1913.Attributes(#1914,#1915,#1916,#1917)\0"
    "#1912.ExplAttrInfos(#1913,OPT)\0"
    "#1908.Attributes(#1909,#1910,#1911,#1912)\0"
    "#1918.Supertypes(#1087)\0"
    "#1918.Composition(#1918,#838,#98,#1088,#1087)\0"
    "#1919.ExplAttrInfos(#374,REQ)\0"
    "#1920.ExplAttrInfos(#372,REQ)\0"
    "#1918.Attributes(#1919,#1920,#1921)\0"
    "#1922.Supertypes(#1150)\0"
    "#1922.Composition(#1922,#1150)\0"
    "#1923.ExplAttrInfos(#48,OPT)\0"
    "#1924.ExplAttrInfos(#122,OPT)\0"
    "#1925.ExplAttrInfos(#1926,REQ)\0"
    "#1922.Attributes(#1923,#1924,#1925)\0"
    "#1927.Supertypes(#1321)\0"
    "#1927.Composition(#1927,#1321)\0"
    "#1928.ExplAttrInfos(#739,REQ)\0"
    "#1927.Attributes(#1928,#1929)\0"
    "#1932.Supertypes(#708)\0"
    "#1932.Composition(#675,#676,#708,#1932)\0"
    "#1933.ExplAttrInfos(#1147,REQ)\0"
    "#1934.ExplAttrInfos(#689,OPT)\0"
    "#1932.Attributes(#1933,#1934)\0"
    "#1931.Supertypes(#1932)\0"
    "#1931.Composition(#1931,#675,#676,#708,#1932)\0"
    "#1935.ExplAttrInfos(#685,REQ)\0"
    "#1936.ExplAttrInfos(#90,REQ)\0"
    "#1931.Attributes(#1935,#1936)\0"
    "#1937.Supertypes(#1931)\0"
    "#1937.Composition(#1931,#1937,#675,#676,#708,#1932)\0"
    "#1938.ExplAttrInfos(#1147,REQ)\0"
    "#1939.Supertypes(#1179)\0"
    "#1939.Composition(#1179,#1939,#676,#830)\0"
    "#1940.Supertypes(#1247)\0"
    "#1940.Composition(#1940,#675,#1247,#676,#708)\0"
    "#1941.Supertypes(#1940)\0"
    "#1941.Composition(#1940,#1941,#675,#1247,#676,#708)\0"
    "#1942.ExplAttrInfos(#1943,REQ)\0"
    "#1945.Composition(#1945)\0"
    "#1946.ExplAttrInfos(#14,OPT)\0"
    "#1944.Supertypes(#1945)\0"
    "#1944.Composition(#1944,#1945)\0"
    "#1947.ExplAttrInfos(#43,OPT)\0"
    "#1948.ExplAttrInfos(#43,OPT)\0"
    "#1949.ExplAttrInfos(#43,OPT)\0"
    "#1950.ExplAttrInfos(#43,OPT)\0"
    "#1951.ExplAttrInfos(#43,OPT)\0"
    "#1952.ExplAttrInfos(#43,OPT)\0"
    "#1944.Attributes(#1947,#1948,#1949,#1950,#1951,#1952)\0"
    "#1953.Supertypes(#1615)\0"
    "#1953.Composition(#1238,#1255,#1204,#1953,#1615,#1083,#838,#1108,#98)\0"
    "#1954.ExplAttrInfos(#378,OPT)\0"
    "#1955.Supertypes(#1618)\0"
    "#1955.Composition(#1242,#1262,#1243,#1955,#1618,#838,#98,#1088,#1113)\0"
    "#1956.ExplAttrInfos(#378,REQ)\0"
    "#1955.Attributes(#1956)\0"
    "#1957.Supertypes(#1487)\0"
    "#1957.Composition(#1204,#1487,#1957,#1083,#838,#1108,#98)\0"
    "#1958.ExplAttrInfos(#380,OPT)\0"
    "#1959.Supertypes(#1490)\0"
    "#1959.Composition(#1490,#1243,#1959,#838,#98,#1088,#1113)\0"
    "#1960.ExplAttrInfos(#380,REQ)\0"
    "#1959.Attributes(#1960)\0"
    "#1961.Supertypes(#1204)\0"
    "#1961.Composition(#1204,#1961,#1083,#838,#1108,#98)\0"
    "#1962.Supertypes(#1961)\0"
    "#1962.Composition(#1204,#1961,#1962,#1083,#838,#1108,#98)\0"
    "#1963.Supertypes(#1961)\0"
    "#1963.Composition(#1204,#1961,#1963,#1083,#838,#1108,#98)\0"
    "#1964.Supertypes(#1840)\0"
    "#1964.Composition(#1238,#1255,#1204,#1964,#1840,#1083,#838,#1108,#98)\0"
    "#1965.ExplAttrInfos(#382,OPT)\0"
    "#1964.Attributes(#1965)\0"
    "#1966.Supertypes(#1843)\0"
    "#1966.Composition(#1242,#1262,#1243,#1966,#1843,#838,#98,#1088,#1113)\0"
    "#1967.ExplAttrInfos(#382,REQ)\0"
    "#1968.Supertypes(#1254)\0"
    "#1968.Composition(#1238,#1255,#1204,#1968,#1254,#1083,#838,#1108,#98)\0"
    "#1969.ExplAttrInfos(#384,OPT)\0"
    "#1970.Supertypes(#1265)\0"
    "#1970.Composition(#1242,#1262,#1243,#1970,#1265,#838,#98,#1088,#1113)\0"
    "#1971.ExplAttrInfos(#384,REQ)\0"
    "#1972.Supertypes(#1932)\0"
    "#1972.Composition(#1972,#675,#676,#708,#1932)\0"
    "#1973.ExplAttrInfos(#802,REQ)\0"
    "#1974.ExplAttrInfos(#87,OPT)\0"
    "#1975.ExplAttrInfos(#87,OPT)\0"
    "#1976.ExplAttrInfos(#685,REQ)\0"
    "#1972.Attributes(#1973,#1974,#1975,#1976)\0"
    "#1.Entities(#1777,#1237,#1241,#1238,#1242,#1255,#1262,#1781,#1778,#841,#1786,#860,#1791,#1797,#1812,#1818,#1819,#1824,#1829,#1830,#1831,#1833,#1835,#1837,#1839,#1842,#829,#828,#1845,#1854,#1856,#1858,#1860,#1862,#1865,#1868,#1870,#1872,#1874,#1876,#1878,#1204,#1880,#1883,#1487,#1490,#1885,#1243,#1743,#1890,#1893,#1268,#1271,#1896,#1898,#1900,#1902,#1904,#1906,#1908,#1913,#1918,#1922,#729,#739,#1927,#1190,#1191,#865,#905,#955,#1931,#1937,#1177,#1209,#1179,#1939,#1213,#1940,#1941,#1468,#1471,#1944,#1953,#1955,#1957,#1959,#1961,#1962,#1963,#896,#866,#887,#1964,#1966,#1968,#1970,#1972,#1258,#1261)\0"
    "#1977.Supertypes(#1237)\0"
    "#1977.Composition(#1237,#1238,#1204,#1977,#1083,#838,#1108,#98)\0"
    "#1978.ExplAttrInfos(#388,OPT)\0"
    "#1979.Supertypes(#1241)\0"
    "#1979.Composition(#1241,#1242,#1243,#1979,#838,#98,#1088,#1113)\0"
    "#1980.ExplAttrInfos(#388,REQ)\0"
    "#1981.Supertypes(#1258)\0"
    "#1981.Composition(#1238,#1255,#1204,#1258,#1981,#1083,#838,#1108,#98)\0"
    "#1982.ExplAttrInfos(#390,OPT)\0"
    "#1983.Supertypes(#1261)\0"
    "#1983.Composition(#1242,#1262,#1243,#1261,#1983,#838,#98,#1088,#1113)\0"
    "#1984.ExplAttrInfos(#390,REQ)\0"
    "#1985.Supertypes(#1414)\0"
    "#1985.Composition(#1414,#1204,#1985,#1083,#838,#1108,#98)\0"
    "#1986.ExplAttrInfos(#392,OPT)\0"
    "#1987.Supertypes(#1418)\0"
    "#1987.Composition(#1418,#1243,#1987,#838,#98,#1088,#1113)\0"
    "#1988.ExplAttrInfos(#392,REQ)\0"
    "#1989.Supertypes(#1204)\0"
    "#1989.Composition(#1204,#1989,#1083,#838,#1108,#98)\0"
    "#1990.Supertypes(#1243)\0"
    "#1990.Composition(#1243,#1990,#838,#98,#1088,#1113)\0"
    "#1991.Supertypes(#1989)\0"
    "#1991.Composition(#1204,#1989,#1991,#1083,#838,#1108,#98)\0"
    "#1992.ExplAttrInfos(#394,OPT)\0"
    "#1993.Supertypes(#1990)\0"
    "#1993.Composition(#1243,#1990,#1993,#838,#98,#1088,#1113)\0"
    "#1994.ExplAttrInfos(#226,REQ)\0"
    "#1995.ExplAttrInfos(#394,OPT)\0"
    "#1993.Attributes(#1994,#1995)\0"
    "#1996.Supertypes(#1204)\0"
    "#1996.Composition(#1204,#1996,#1083,#838,#1108,#98)\0"
    "#1997.ExplAttrInfos(#396,OPT)\0"
    "#1996.Attributes(#1997)\0"
    "#1998.Supertypes(#1243)\0"
    "#1998.Composition(#1243,#1998,#838,#98,#1088,#1113)\0"
    "#1999.ExplAttrInfos(#396,REQ)\0"
    "#1998.Attributes(#1999)\0"
    "#2001.Supertypes(#675)\0"
    "#2001.Composition(#675,#2001,#676)\0"
    "#2002.ExplAttrInfos(#2003,REQ)\0"
    "#2004.DerivAttrInfos(#29)\0"
    "#2001.Attributes(#2002,#2004)\0"
    "#2000.Composition(#2000,#675,#2001,#676)\0"
    "#2005.Supertypes(#771)\0"
    "#2005.Composition(#771,#2005,#772)\0"
    "#2006.ExplAttrInfos(#771,REQ)\0"
    "#2007.ExplAttrInfos(#92,OPT)\0"
    "#2008.ExplAttrInfos(#398,REQ)\0"
    "#2009.ExplAttrInfos(#14,OPT)\0"
    "#2010.DerivAttrInfos(#693)\0"
    "#2011.DerivAttrInfos(#29)\0"
    "#2012.DerivAttrInfos(#685)\0"
    "#2013.DerivAttrInfos(#165)\0"
    "#2005.Attributes(#2006,#2007,#2008,#2009,#2010,#2011,#2012,#2013)\0"
    "#2014.Supertypes(#1279)\0"
    "#2014.Composition(#2014,#1083,#838,#1279,#1108,#98)\0"
    "#2015.ExplAttrInfos(#2016,REQ)\0"
    "#2017.ExplAttrInfos(#2018,REQ)\0"
    "#2019.ExplAttrInfos(#2020,OPT)\0"
    "#2021.ExplAttrInfos(#402,OPT)\0"
    "#2014.Attributes(#2015,#2017,#2019,#2021)\0"
    "#2022.Supertypes(#1110)\0"
    "#2022.Composition(#2022,#1110)\0"
    "#2023.ExplAttrInfos(#973,REQ)\0"
    "#2024.ExplAttrInfos(#983,OPT)\0"
    "#2025.Supertypes(#1268)\0"
    "#2025.Composition(#1238,#1255,#1204,#1268,#2025,#1083,#838,#1108,#98)\0"
    "#2026.ExplAttrInfos(#404,OPT)\0"
    "#2027.Supertypes(#1271)\0"
    "#2027.Composition(#1242,#1262,#1243,#1271,#2027,#838,#98,#1088,#1113)\0"
    "#2028.ExplAttrInfos(#404,REQ)\0"
    "#2029.Supertypes(#1268)\0"
    "#2029.Composition(#1238,#1255,#1204,#1268,#2029,#1083,#838,#1108,#98)\0"
    "#2030.ExplAttrInfos(#406,OPT)\0"
    "#2031.Supertypes(#1271)\0"
    "#2031.Composition(#1242,#1262,#1243,#1271,#2031,#838,#98,#1088,#1113)\0"
    "#2032.ExplAttrInfos(#406,REQ)\0"
    "#2033.Supertypes(#1347)\0"
    "#2033.Composition(#2033,#1347,#1147)\0"
    "#2034.ExplAttrInfos(#90,REQ)\0"
    "#2035.ExplAttrInfos(#90,REQ)\0"
    "#2036.ExplAttrInfos(#90,REQ)\0"
    "#2037.ExplAttrInfos(#90,REQ)\0"
    "#2038.ExplAttrInfos(#82,OPT)\0"
    "#2039.ExplAttrInfos(#82,OPT)\0"
    "#2040.ExplAttrInfos(#89,OPT)\0"
    "#2033.Attributes(#2034,#2035,#2036,#2037,#2038,#2039,#2040)\0"
    "#2041.Supertypes(#919)\0"
    "#2041.Composition(#2041,#753,#919)\0"
    "#2042.ExplAttrInfos(#195,REQ)\0"
    "#2041.Attributes(#2042)\0"
    "#2043.Supertypes(#753)\0"
    "#2043.Composition(#2043,#753)\0"
    "#2044.ExplAttrInfos(#710,REQ)\0"
    "#2045.ExplAttrInfos(#84,OPT)\0"
    "#2046.ExplAttrInfos(#1583,REQ)\0"
    "#2043.Attributes(#2044,#2045,#2046,#2047)\0"
    "#2049.Supertypes(#801)\0"
    "#2049.Composition(#801,#802,#675,#2049,#676)\0"
    "#2050.ExplAttrInfos(#714,REQ)\0"
    "#2051.ExplAttrInfos(#2052,OPT)\0"
    "#2053.ExplAttrInfos(#13,OPT)\0"
    "#2049.Attributes(#2050,#2051,#2053)\0"
    "#2054.Supertypes(#711)\0"
    "#2054.Composition(#675,#2054,#676,#711)\0"
    "#2055.ExplAttrInfos(#2056,REQ)\0"
    "#2054.Attributes(#2055)\0"
    "#2057.Supertypes(#2054)\0"
    "#2057.Composition(#675,#2054,#2057,#676,#711)\0"
    "#2058.ExplAttrInfos(#2060,REQ)\0"
    "#2057.Attributes(#2058)\0"
    "#2062.Supertypes(#753)\0"
    "#2062.Composition(#753,#2062)\0"
    "#2063.ExplAttrInfos(#2064,REQ)\0"
    "#2062.Attributes(#2063)\0"
    "#2061.Supertypes(#2062)\0"
    "#2061.Composition(#2061,#753,#2062)\0"
    "#2065.ExplAttrInfos(#710,REQ)\0"
    "#2067.Supertypes(#753)\0"
    "#2067.Composition(#753,#2067)\0"
    "#2068.ExplAttrInfos(#2070,REQ)\0"
    "#2067.Attributes(#2068)\0"
    "#2066.ExplAttrInfos(#2067,REQ)\0"
    "#2061.Attributes(#2065,#2066)\0"
    "#2071.Supertypes(#2061)\0"
    "#2071.Composition(#2061,#2071,#753,#2062)\0"
    "#2072.ExplAttrInfos(#2074,OPT)\0"
    "#2071.Attributes(#2072)\0"
    "#2075.Supertypes(#1840)\0"
    "#2075.Composition(#1238,#1255,#1204,#1840,#2075,#1083,#838,#1108,#98)\0"
    "#2076.ExplAttrInfos(#408,OPT)\0"
    "#2075.Attributes(#2076)\0"
    "#2077.Supertypes(#1843)\0"
    "#2077.Composition(#1242,#1262,#1243,#1843,#2077,#838,#98,#1088,#1113)\0"
    "#2078.ExplAttrInfos(#408,REQ)\0"
    "#2079.Supertypes(#819)\0"
    "#2079.Composition(#802,#675,#2079,#676,#819)\0"
    "#2080.Supertypes(#1335)\0"
    "#2080.Composition(#1335,#2080,#1083,#838,#98)\0"
    "#2081.ExplAttrInfos(#412,OPT)\0"
    "#2082.ExplAttrInfos(#628,OPT)\0"
    "#2083.ExplAttrInfos(#2084,OPT)\0"
    "#2085.ExplAttrInfos(#24,OPT)\0"
    "#2086.ExplAttrInfos(#1338,OPT)\0"
    "#2087.ExplAttrInfos(#1338,OPT)\0"
    "#2080.Attributes(#2081,#2082,#2083,#2085,#2086,#2087)\0"
    "#2088.Supertypes(#1059)\0"
    "#2088.Composition(#2088,#1059)\0"
    "#2090.Composition(#2090)\0"
    "#2091.ExplAttrInfos(#25,REQ)\0"
    "#2092.ExplAttrInfos(#2093,REQ)\0"
    "#2090.Attributes(#2091,#2092)\0"
    "#2089.ExplAttrInfos(#2094,REQ)\0"
    "#2088.Attributes(#2089)\0"
    "#2095.Supertypes(#1513)\0"
    "#2095.Composition(#1238,#1255,#1204,#1513,#2095,#1083,#838,#1108,#98)\0"
    "#2096.ExplAttrInfos(#414,OPT)\0"
    "#2095.Attributes(#2096)\0"
    "#2097.Supertypes(#1516)\0"
    "#2097.Composition(#1242,#1262,#1243,#1516,#2097,#838,#98,#1088,#1113)\0"
    "#2098.ExplAttrInfos(#414,REQ)\0"
    "#2097.Attributes(#2098)\0"
    "#2099.Supertypes(#1347)\0"
    "#2099.Composition(#2099,#1347,#1147)\0"
    "#2100.ExplAttrInfos(#90,REQ)\0"
    "#2101.ExplAttrInfos(#90,OPT)\0"
    "#2102.ExplAttrInfos(#90,REQ)\0"
    "#2103.ExplAttrInfos(#82,OPT)\0"
    "#2104.ExplAttrInfos(#82,OPT)\0"
    "#2105.ExplAttrInfos(#89,OPT)\0"
    "#2099.Attributes(#2100,#2101,#2102,#2103,#2104,#2105)\0"
    "#2106.Supertypes(#1642)\0"
    "#2106.Composition(#1642,#2106,#1083,#838,#1161,#98)\0"
    "#2107.ExplAttrInfos(#418,OPT)\0"
    "#2108.Supertypes(#1669)\0"
    "#2108.Composition(#1669,#2108,#838,#98,#1088,#1164)\0"
    "#2109.ExplAttrInfos(#418,REQ)\0"
    "#2110.Supertypes(#1645)\0"
    "#2110.Composition(#2110,#1645)\0"
    "#2111.ExplAttrInfos(#1219,REQ)\0"
    "#2112.ExplAttrInfos(#566,REQ)\0"
    "#2110.Attributes(#2111,#2112)\0"
    "#2113.Supertypes(#1254)\0"
    "#2113.Composition(#1238,#1255,#1204,#1254,#2113,#1083,#838,#1108,#98)\0"
    "#2114.ExplAttrInfos(#420,OPT)\0"
    "#2115.Supertypes(#1265)\0"
    "#2115.Composition(#1242,#1262,#1243,#1265,#2115,#838,#98,#1088,#1113)\0"
    "#2116.ExplAttrInfos(#420,REQ)\0"
    "#2117.Supertypes(#1254)\0"
    "#2117.Composition(#1238,#1255,#1204,#1254,#2117,#1083,#838,#1108,#98)\0"
    "#2118.ExplAttrInfos(#428,OPT)\0"
    "#2119.Supertypes(#1265)\0"
    "#2119.Composition(#1242,#1262,#1243,#1265,#2119,#838,#98,#1088,#1113)\0"
    "#2120.ExplAttrInfos(#428,REQ)\0"
    "#2119.Attributes(#2120)\0"
    "#2121.Supertypes(#675)\0"
    "#2121.Composition(#675,#2121,#676)\0"
    "#2123.ExplAttrInfos(#760,REQ)\0"
    "#2124.ExplAttrInfos(#84,OPT)\0"
    "#2125.ExplAttrInfos(#84,OPT)\0"
    "#2121.Attributes(#2122,#2123,#2124,#2125)\0"
    "#2126.Supertypes(#2121)\0"
    "#2126.Composition(#675,#2121,#2126,#676)\0"
    "#2127.Supertypes(#2121)\0"
    "#2127.Composition(#675,#2121,#2127,#676)\0"
    "#2128.ExplAttrInfos(#685,REQ)\0"
    "#2127.Attributes(#2128)\0"
    "#2129.Supertypes(#2121)\0"
    "#2129.Composition(#675,#2121,#2129,#676)\0"
    "#2130.ExplAttrInfos(#689,REQ)\0"
    "#2131.ExplAttrInfos(#760,OPT)\0"
    "#2132.ExplAttrInfos(#191,REQ)\0"
    "#2133.ExplAttrInfos(#64,REQ)\0"
    "#2134.ExplAttrInfos(#426,REQ)\0"
    "#2135.ExplAttrInfos(#1016,REQ)\0"
    "#2129.Attributes(#2130,#2131,#2132,#2133,#2134,#2135)\0"
    "#2136.Supertypes(#2121)\0"
    "#2136.Composition(#675,#2121,#2136,#676)\0"
    "#2137.ExplAttrInfos(#678,REQ)\0"
    "#2138.ExplAttrInfos(#90,REQ)\0"
    "#2139.ExplAttrInfos(#165,REQ)\0"
    "#2140.ExplAttrInfos(#165,REQ)\0"
    "#2141.ExplAttrInfos(#165,REQ)\0"
    "#2136.Attributes(#2137,#2138,#2139,#2140,#2141)\0"
    "#2142.Supertypes(#2136)\0"
    "#2142.Composition(#675,#2121,#2136,#2142,#676)\0"
    "#2143.ExplAttrInfos(#685,REQ)\0"
    "#2144.ExplAttrInfos(#165,OPT)\0"
    "#2145.ExplAttrInfos(#91,REQ)\0"
    "#2146.ExplAttrInfos(#91,REQ)\0"
    "#2142.Attributes(#2143,#2144,#2145,#2146)\0"
    "#2147.Supertypes(#802)\0"
    "#2147.Composition(#802,#675,#2147,#676)\0"
    "#2148.ExplAttrInfos(#678,REQ)\0"
    "#2149.ExplAttrInfos(#878,REQ)\0"
    "#2147.Attributes(#2148,#2149)\0"
    "#2150.Supertypes(#1291)\0"
    "#2150.Composition(#801,#802,#1291,#675,#2150,#676)\0"
    "#2151.Supertypes(#1110)\0"
    "#2151.Composition(#2151,#1110)\0"
    "#2152.ExplAttrInfos(#802,REQ)\0"
    "#2153.ExplAttrInfos(#1767,REQ)\0"
    "#2155.Supertypes(#675)\0"
    "#2155.Composition(#675,#2155,#676)\0"
    "#2156.ExplAttrInfos(#685,REQ)\0"
    "#2157.ExplAttrInfos(#685,REQ)\0"
    "#2155.Attributes(#2156,#2157)\0"
    "#2154.ExplAttrInfos(#2155,OPT)\0"
    "#2158.ExplAttrInfos(#689,OPT)\0"
    "#2151.Attributes(#2152,#2153,#2154,#2158)\0"
    "#2159.Supertypes(#1110)\0"
    "#2159.Composition(#2159,#1110)\0"
    "#2160.ExplAttrInfos(#693,REQ)\0"
    "#2159.Attributes(#2160)\0"
    "#2161.Supertypes(#1706)\0"
    "#2161.Composition(#1706,#2161)\0"
    "#2162.ExplAttrInfos(#56,REQ)\0"
    "#2163.ExplAttrInfos(#56,REQ)\0"
    "#2164.ExplAttrInfos(#56,REQ)\0"
    "#2165.ExplAttrInfos(#165,OPT)\0"
    "#2166.ExplAttrInfos(#165,OPT)\0"
    "#2167.ExplAttrInfos(#165,OPT)\0"
    "#2161.Attributes(#2162,#2163,#2164,#2165,#2166,#2167)\0"
    "#2168.Supertypes(#676)\0"
    "#2168.Composition(#2168,#676)\0"
    "#2169.ExplAttrInfos(#1103,REQ)\0"
    "#2170.ExplAttrInfos(#925,REQ)\0"
    "#2168.Attributes(#2169,#2170)\0"
    "#2171.Composition(#2171)\0"
    "#2172.ExplAttrInfos(#2173,REQ)\0"
    "#2174.ExplAttrInfos(#1020,REQ)\0"
    "#2171.Attributes(#2172,#2174)\0"
    "#2175.Supertypes(#1017)\0"
    "#2175.Composition(#2175,#1017)\0"
    "#2176.ExplAttrInfos(#14,OPT)\0"
    "#2177.ExplAttrInfos(#122,OPT)\0"
    "#2178.ExplAttrInfos(#1020,REQ)\0"
    "#2179.ExplAttrInfos(#84,OPT)\0"
    "#2180.ExplAttrInfos(#14,OPT)\0"
    "#2175.Attributes(#2176,#2177,#2178,#2179,#2180)\0"
    "#2181.Supertypes(#1017)\0"
    "#2181.Composition(#2181,#1017)\0"
    "#2182.ExplAttrInfos(#14,OPT)\0"
    "#2183.ExplAttrInfos(#122,OPT)\0"
    "#2184.ExplAttrInfos(#2185,OPT)\0"
    "#2181.Attributes(#2182,#2183,#2184)\0"
    "#2186.Supertypes(#1098)\0"
    "#2186.Composition(#2186,#1098)\0"
    "#2187.ExplAttrInfos(#1020,REQ)\0"
    "#2186.Attributes(#2187)\0"
    "#2188.Supertypes(#1017)\0"
    "#2188.Composition(#1017,#2188)\0"
    "#2189.ExplAttrInfos(#1020,OPT)\0"
    "#2190.ExplAttrInfos(#82,REQ)\0"
    "#2191.ExplAttrInfos(#63,OPT)\0"
    "#2192.ExplAttrInfos(#14,OPT)\0"
    "#2193.ExplAttrInfos(#122,OPT)\0"
    "#2194.ExplAttrInfos(#14,OPT)\0"
    "#2195.ExplAttrInfos(#6,OPT)\0"
    "#2188.Attributes(#2189,#2190,#2191,#2192,#2193,#2194,#2195)\0"
    "#2196.Supertypes(#1017)\0"
    "#2196.Composition(#1017,#2196)\0"
    "#2197.ExplAttrInfos(#2198,REQ)\0"
    "#2199.ExplAttrInfos(#14,OPT)\0"
    "#2200.ExplAttrInfos(#122,OPT)\0"
    "#2201.DerivAttrInfos(#56)\0"
    "#2196.Attributes(#2197,#2199,#2200,#2201)\0"
    "#2202.Supertypes(#1025)\0"
    "#2202.Composition(#2202,#1025)\0"
    "#2203.ExplAttrInfos(#2196,REQ)\0"
    "#2204.ExplAttrInfos(#422,REQ)\0"
    "#2205.ExplAttrInfos(#318,REQ)\0"
    "#2206.ExplAttrInfos(#56,REQ)\0"
    "#2207.ExplAttrInfos(#90,OPT)\0"
    "#2202.Attributes(#2203,#2204,#2205,#2206,#2207)\0"
    "#2208.Supertypes(#2188)\0"
    "#2208.Composition(#1017,#2188,#2208)\0"
    "#2209.ExplAttrInfos(#422,REQ)\0"
    "#2210.ExplAttrInfos(#2211,REQ)\0"
    "#2212.Supertypes(#1017)\0"
    "#2212.Composition(#1017,#2212)\0"
    "#2213.ExplAttrInfos(#14,OPT)\0"
    "#2214.ExplAttrInfos(#122,OPT)\0"
    "#2215.ExplAttrInfos(#1020,OPT)\0"
    "#2216.ExplAttrInfos(#1147,REQ)\0"
    "#2217.ExplAttrInfos(#6,OPT)\0"
    "#2218.ExplAttrInfos(#14,OPT)\0"
    "#2212.Attributes(#2213,#2214,#2215,#2216,#2217,#2218)\0"
    "#2219.Supertypes(#1017)\0"
    "#2219.Composition(#1017,#2219)\0"
    "#2220.ExplAttrInfos(#14,OPT)\0"
    "#2221.ExplAttrInfos(#122,OPT)\0"
    "#2224.ExplAttrInfos(#1610,OPT)\0"
    "#2219.Attributes(#2220,#2221,#2222,#2224)\0"
    "#2225.Supertypes(#1025)\0"
    "#2225.Composition(#2225,#1025)\0"
    "#2226.ExplAttrInfos(#2219,REQ)\0"
    "#2227.ExplAttrInfos(#16,OPT)\0"
    "#2228.ExplAttrInfos(#90,OPT)\0"
    "#2225.Attributes(#2226,#2227,#2228)\0"
    "#2229.Supertypes(#2225)\0"
    "#2229.Composition(#2225,#2229,#1025)\0"
    "#2230.ExplAttrInfos(#2219,REQ)\0"
    "#2231.ExplAttrInfos(#16,OPT)\0"
    "#2232.Supertypes(#2212)\0"
    "#2232.Composition(#1017,#2212,#2232)\0"
    "#2233.ExplAttrInfos(#2234,REQ)\0"
    "#2235.Supertypes(#1922)\0"
    "#2235.Composition(#1922,#2235,#1150)\0"
    "#2236.ExplAttrInfos(#1017,REQ)\0"
    "#2235.Attributes(#2236)\0"
    "#2237.Supertypes(#1321)\0"
    "#2237.Composition(#2237,#1321)\0"
    "#2238.ExplAttrInfos(#1020,REQ)\0"
    "#2237.Attributes(#2238,#2239,#2241)\0"
    "#1.Entities(#1513,#1516,#1977,#1979,#1981,#1983,#1615,#1618,#1519,#1522,#1863,#1866,#1254,#1265,#1840,#1843,#1985,#1987,#1989,#1990,#1991,#1993,#1996,#1998,#2000,#771,#675,#2005,#2001,#2014,#975,#2022,#1335,#702,#2025,#2027,#2029,#2031,#2033,#2041,#2043,#2049,#2054,#2057,#2061,#2071,#2075,#2077,#2079,#2080,#2088,#2090,#2095,#2097,#2099,#2106,#2108,#2110,#2113,#2115,#992,#999,#1008,#2117,#2119,#1005,#2121,#2126,#2127,#2129,#2136,#2142,#2147,#2150,#2151,#1278,#2159,#1181,#1247,#2161,#2168,#1020,#2171,#2175,#2181,#1017,#2186,#2188,#2196,#2202,#2208,#1018,#2212,#2219,#2225,#2229,#2232,#2235,#2237,#1025)\0"
    "#2242.Supertypes(#1487)\0"
    "#2242.Composition(#1204,#1487,#2242,#1083,#838,#1108,#98)\0"
    "#2243.ExplAttrInfos(#90,OPT)\0"
    "#2244.ExplAttrInfos(#90,OPT)\0"
    "#2245.ExplAttrInfos(#434,OPT)\0"
    "#2242.Attributes(#2243,#2244,#2245)\0"
    "#2246.Supertypes(#1490)\0"
    "#2246.Composition(#1490,#1243,#2246,#838,#98,#1088,#1113)\0"
    "#2247.ExplAttrInfos(#434,REQ)\0"
    "#2248.ExplAttrInfos(#90,OPT)\0"
    "#2249.ExplAttrInfos(#90,OPT)\0"
    "#2246.Attributes(#2247,#2248,#2249)\0"
    "#2250.Supertypes(#1254)\0"
    "#2250.Composition(#1238,#1255,#1204,#1254,#2250,#1083,#838,#1108,#98)\0"
    "#2251.ExplAttrInfos(#436,OPT)\0"
    "#2250.Attributes(#2251)\0"
    "#2252.Supertypes(#1265)\0"
    "#2252.Composition(#1242,#1262,#1243,#1265,#2252,#838,#98,#1088,#1113)\0"
    "#2253.ExplAttrInfos(#436,REQ)\0"
    "#2252.Attributes(#2253)\0"
    "#2254.Supertypes(#1414)\0"
    "#2254.Composition(#1414,#1204,#2254,#1083,#838,#1108,#98)\0"
    "#2255.ExplAttrInfos(#438,OPT)\0"
    "#2254.Attributes(#2255)\0"
    "#2256.Supertypes(#2254)\0"
    "#2256.Composition(#1414,#1204,#2254,#2256,#1083,#838,#1108,#98)\0"
    "#2257.Supertypes(#1418)\0"
    "#2257.Composition(#1418,#1243,#2257,#838,#98,#1088,#1113)\0"
    "#2258.ExplAttrInfos(#438,REQ)\0"
    "#2257.Attributes(#2258)\0"
    "#2259.Supertypes(#1131)\0"
    "#2259.Composition(#1131,#2259)\0"
    "#2260.ExplAttrInfos(#240,REQ)\0"
    "#2261.ExplAttrInfos(#14,OPT)\0"
    "#2262.ExplAttrInfos(#1069,OPT)\0"
    "#2263.ExplAttrInfos(#664,OPT)\0"
    "#2259.Attributes(#2260,#2261,#2262,#2263)\0"
    "#2264.Supertypes(#1759)\0"
    "#2264.Composition(#1759,#2264,#1147)\0"
    "#2265.DerivAttrInfos(#924)\0"
    "#2264.Attributes(#2265)\0"
    "#2266.Supertypes(#1268)\0"
    "#2266.Composition(#1238,#1255,#1204,#1268,#2266,#1083,#838,#1108,#98)\0"
    "#2267.ExplAttrInfos(#440,OPT)\0"
    "#2266.Attributes(#2267)\0"
    "#2268.Supertypes(#1271)\0"
    "#2268.Composition(#1242,#1262,#1243,#1271,#2268,#838,#98,#1088,#1113)\0"
    "#2269.ExplAttrInfos(#440,REQ)\0"
    "#2270.Supertypes(#1131)\0"
    "#2270.Composition(#1131,#2270)\0"
    "#2271.ExplAttrInfos(#2272,OPT)\0"
    "#2273.ExplAttrInfos(#432,OPT)\0"
    "#2274.ExplAttrInfos(#446,REQ)\0"
    "#2275.ExplAttrInfos(#14,OPT)\0"
    "#2270.Attributes(#2271,#2273,#2274,#2275)\0"
    "#2276.Supertypes(#1234)\0"
    "#2276.Composition(#1234,#1083,#838,#2276,#98)\0"
    "#2277.ExplAttrInfos(#448,OPT)\0"
    "#2276.Attributes(#2277)\0"
    "#2278.Supertypes(#802)\0"
    "#2278.Composition(#802,#675,#2278,#676)\0"
    "#2279.ExplAttrInfos(#802,REQ)\0"
    "#2278.Attributes(#2279)\0"
    "#2280.Supertypes(#2278)\0"
    "#2280.Composition(#802,#675,#2278,#2280,#676)\0"
    "#2281.ExplAttrInfos(#56,REQ)\0"
    "#2282.ExplAttrInfos(#63,REQ)\0"
    "#2280.Attributes(#2281,#2282)\0"
    "#2283.Supertypes(#2278)\0"
    "#2283.Composition(#802,#675,#2278,#2283,#676)\0"
    "#2284.ExplAttrInfos(#56,REQ)\0"
    "#2285.ExplAttrInfos(#63,REQ)\0"
    "#2286.ExplAttrInfos(#685,REQ)\0"
    "#2283.Attributes(#2284,#2285,#2286)\0"
    "#2287.Supertypes(#2278)\0"
    "#2287.Composition(#802,#675,#2278,#2287,#676)\0"
    "#2290.ExplAttrInfos(#14,OPT)\0"
    "#2287.Attributes(#2288,#2290)\0"
    "#2291.Supertypes(#1963)\0"
    "#2291.Composition(#1204,#1961,#1963,#1083,#838,#2291,#1108,#98)\0"
    "#2292.ExplAttrInfos(#450,OPT)\0"
    "#2291.Attributes(#2292)\0"
    "#2293.Supertypes(#2291)\0"
    "#2293.Composition(#1204,#1961,#1963,#1083,#838,#2291,#2293,#1108,#98)\0"
    "#2294.Supertypes(#1321)\0"
    "#2294.Composition(#2294,#1321)\0"
    "#2295.ExplAttrInfos(#133,REQ)\0"
    "#2296.ExplAttrInfos(#2297,REQ)\0"
    "#2294.Attributes(#2295,#2296)\0"
    "#2298.Supertypes(#1438)\0"
    "#2298.Composition(#1438,#801,#800,#799,#802,#675,#2298,#676)\0"
    "#2299.Supertypes(#1254)\0"
    "#2299.Composition(#1238,#1255,#1204,#1254,#1083,#838,#2299,#1108,#98)\0"
    "#2300.ExplAttrInfos(#452,OPT)\0"
    "#2301.Supertypes(#1265)\0"
    "#2301.Composition(#1242,#1262,#1243,#1265,#838,#2301,#98,#1088,#1113)\0"
    "#2302.ExplAttrInfos(#452,REQ)\0"
    "#2301.Attributes(#2302)\0"
    "#2303.Supertypes(#1567)\0"
    "#2303.Composition(#1567,#802,#675,#2303,#676)\0"
    "#2304.ExplAttrInfos(#56,REQ)\0"
    "#2303.Attributes(#2304)\0"
    "#2305.Supertypes(#830)\0"
    "#2305.Composition(#2305,#676,#830)\0"
    "#2305.Attributes(#2306)\0"
    "#2308.Supertypes(#1229)\0"
    "#2308.Composition(#1229,#1083,#838,#2308,#98)\0"
    "#2309.ExplAttrInfos(#14,REQ)\0"
    "#2310.ExplAttrInfos(#454,OPT)\0"
    "#2308.Attributes(#2309,#2310)\0"
    "#2311.Supertypes(#1798)\0"
    "#2311.Composition(#2311,#1798,#97,#96,#98)\0"
    "#2312.ExplAttrInfos(#456,REQ)\0"
    "#2313.ExplAttrInfos(#612,REQ)\0"
    "#2314.ExplAttrInfos(#90,OPT)\0"
    "#2315.ExplAttrInfos(#90,OPT)\0"
    "#2316.ExplAttrInfos(#1151,OPT)\0"
    "#2311.Attributes(#2312,#2313,#2314,#2315,#2316)\0"
    "#2317.Supertypes(#1229)\0"
    "#2317.Composition(#1229,#1083,#838,#2317,#98)\0"
    "#2318.ExplAttrInfos(#458,OPT)\0"
    "#2319.ExplAttrInfos(#14,OPT)\0"
    "#2320.ExplAttrInfos(#122,OPT)\0"
    "#2317.Attributes(#2318,#2319,#2320)\0"
    "#2321.Supertypes(#1144)\0"
    "#2321.Composition(#2321,#1144)\0"
    "#2322.ExplAttrInfos(#2323,REQ)\0"
    "#2324.ExplAttrInfos(#14,REQ)\0"
    "#2325.ExplAttrInfos(#14,OPT)\0"
    "#2326.ExplAttrInfos(#14,OPT)\0"
    "#2321.Attributes(#2322,#2324,#2325,#2326)\0"
    "#2327.Supertypes(#1144)\0"
    "#2327.Composition(#1144,#2327)\0"
    "#2328.ExplAttrInfos(#644,OPT)\0"
    "#2327.Attributes(#2328)\0"
    "#2329.Supertypes(#1533)\0"
    "#2329.Composition(#1414,#1533,#1204,#1083,#838,#2329,#1108,#98)\0"
    "#2330.ExplAttrInfos(#464,OPT)\0"
    "#2331.ExplAttrInfos(#462,OPT)\0"
    "#2329.Attributes(#2330,#2331)\0"
    "#2332.Supertypes(#1536)\0"
    "#2332.Composition(#1418,#1536,#1243,#838,#2332,#98,#1088,#1113)\0"
    "#2333.ExplAttrInfos(#464,REQ)\0"
    "#2332.Attributes(#2333)\0"
    "#2334.Supertypes(#1513)\0"
    "#2334.Composition(#1238,#1255,#1204,#1513,#1083,#838,#2334,#1108,#98)\0"
    "#2335.ExplAttrInfos(#466,OPT)\0"
    "#2334.Attributes(#2335)\0"
    "#2336.Supertypes(#1516)\0"
    "#2336.Composition(#1242,#1262,#1243,#1516,#838,#2336,#98,#1088,#1113)\0"
    "#2337.ExplAttrInfos(#466,REQ)\0"
    "#2336.Attributes(#2337)\0"
    "#2338.Supertypes(#1519)\0"
    "#2338.Composition(#1238,#1255,#1204,#1519,#1083,#838,#2338,#1108,#98)\0"
    "#2339.ExplAttrInfos(#468,OPT)\0"
    "#2338.Attributes(#2339)\0"
    "#2340.Supertypes(#1522)\0"
    "#2340.Composition(#1242,#1262,#1243,#1522,#838,#2340,#98,#1088,#1113)\0"
    "#2341.ExplAttrInfos(#468,REQ)\0"
    "#2340.Attributes(#2341)\0"
    "#2342.Supertypes(#919)\0"
    "#2342.Composition(#2342,#753,#919)\0"
    "#2343.ExplAttrInfos(#6,REQ)\0"
    "#2344.ExplAttrInfos(#6,REQ)\0"
    "#2345.ExplAttrInfos(#6,REQ)\0"
    "#2346.ExplAttrInfos(#2347,REQ)\0"
    "#2342.Attributes(#2343,#2344,#2345,#2346)\0"
    "#2349.Supertypes(#675)\0"
    "#2349.Composition(#675,#2349,#676)\0"
    "#2350.ExplAttrInfos(#56,REQ)\0"
    "#2351.ExplAttrInfos(#56,REQ)\0"
    "#2348.Supertypes(#2349)\0"
    "#2348.Composition(#675,#2348,#2349,#676)\0"
    "#2352.ExplAttrInfos(#693,REQ)\0"
    "#2348.Attributes(#2352)\0"
    "#2353.Supertypes(#1414)\0"
    "#2353.Composition(#1414,#1204,#1083,#838,#2353,#1108,#98)\0"
    "#2354.ExplAttrInfos(#470,OPT)\0"
    "#2353.Attributes(#2354)\0"
    "#2355.Supertypes(#2353)\0"
    "#2355.Composition(#1414,#1204,#1083,#838,#2353,#2355,#1108,#98)\0"
    "#2356.Supertypes(#1418)\0"
    "#2356.Composition(#1418,#1243,#838,#2356,#98,#1088,#1113)\0"
    "#2357.ExplAttrInfos(#470,REQ)\0"
    "#2356.Attributes(#2357)\0"
    "#2358.Supertypes(#679)\0"
    "#2358.Composition(#675,#679,#2358,#676)\0"
    "#2359.ExplAttrInfos(#802,REQ)\0"
    "#2360.ExplAttrInfos(#87,REQ)\0"
    "#2361.DerivAttrInfos(#29)\0"
    "#2358.Attributes(#2359,#2360,#2361)\0"
    "#2362.Supertypes(#679)\0"
    "#2362.Composition(#675,#679,#2362,#676)\0"
    "#2363.ExplAttrInfos(#704,REQ)\0"
    "#2364.ExplAttrInfos(#87,REQ)\0"
    "#2365.ExplAttrInfos(#87,REQ)\0"
    "#2366.DerivAttrInfos(#29)\0"
    "#2362.Attributes(#2363,#2364,#2365,#2366)\0"
    "#2367.Supertypes(#1181)\0"
    "#2367.Composition(#1181,#2367,#676,#830)\0"
    "#2368.ExplAttrInfos(#2369,REQ)\0"
    "#2367.Attributes(#2368)\0"
    "#2370.Supertypes(#702)\0"
    "#2370.Composition(#675,#702,#2370,#676)\0"
    "#2371.ExplAttrInfos(#689,REQ)\0"
    "#2372.ExplAttrInfos(#801,REQ)\0"
    "#2370.Attributes(#2371,#2372)\0"
    "#2373.Supertypes(#710)\0"
    "#2373.Composition(#675,#2373,#676,#710,#711)\0"
    "#2374.ExplAttrInfos(#13,OPT)\0"
    "#2375.ExplAttrInfos(#2376,REQ)\0"
    "#2377.ExplAttrInfos(#2378,OPT)\0"
    "#2373.Attributes(#2374,#2375,#2377)\0"
    "#2379.Supertypes(#801)\0"
    "#2379.Composition(#801,#802,#675,#2379,#676)\0"
    "#2380.ExplAttrInfos(#2381,REQ)\0"
    "#2379.Attributes(#2380)\0"
    "#2382.Supertypes(#1150)\0"
    "#2382.Composition(#2382,#1150)\0"
    "#2383.Composition(#2383)\0"
    "#2384.ExplAttrInfos(#14,REQ)\0"
    "#2385.ExplAttrInfos(#122,OPT)\0"
    "#2386.ExplAttrInfos(#2387,REQ)\0"
    "#2388.ExplAttrInfos(#48,OPT)\0"
    "#2383.Attributes(#2384,#2385,#2386,#2388)\0"
    "#2389.Supertypes(#2383)\0"
    "#2389.Composition(#2383,#2389)\0"
    "#2390.ExplAttrInfos(#63,REQ)\0"
    "#2391.ExplAttrInfos(#63,REQ)\0"
    "#2392.ExplAttrInfos(#63,REQ)\0"
    "#2393.ExplAttrInfos(#2394,REQ)\0"
    "#2389.Attributes(#2390,#2391,#2392,#2393)\0"
    "#2395.Supertypes(#1082)\0"
    "#2395.Composition(#1083,#838,#2395,#1082,#98)\0"
    "#2396.ExplAttrInfos(#474,OPT)\0"
    "#2395.Attributes(#2396)\0"
    "#2397.Supertypes(#1087)\0"
    "#2397.Composition(#838,#2397,#98,#1088,#1087)\0"
    "#2398.ExplAttrInfos(#474,REQ)\0"
    "#2397.Attributes(#2398)\0"
    "#2399.Supertypes(#1922)\0"
    "#2399.Composition(#1922,#2399,#1150)\0"
    "#2400.ExplAttrInfos(#1147,REQ)\0"
    "#2399.Attributes(#2400)\0"
    "#2401.Supertypes(#1682)\0"
    "#2401.Composition(#1682,#838,#2401,#98)\0"
    "#2402.Supertypes(#1682)\0"
    "#2402.Composition(#1682,#838,#2402,#98)\0"
    "#2403.Supertypes(#1229)\0"
    "#2403.Composition(#1229,#1083,#838,#2403,#98)\0"
    "#2404.ExplAttrInfos(#478,OPT)\0"
    "#2405.ExplAttrInfos(#14,OPT)\0"
    "#2406.ExplAttrInfos(#122,OPT)\0"
    "#2403.Attributes(#2404,#2405,#2406)\0"
    "#2407.Supertypes(#766)\0"
    "#2407.Composition(#766,#2407)\0"
    "#2408.ExplAttrInfos(#48,OPT)\0"
    "#2409.ExplAttrInfos(#48,OPT)\0"
    "#2410.ExplAttrInfos(#644,OPT)\0"
    "#2407.Attributes(#2408,#2409,#2410)\0"
    "#2411.Supertypes(#1962)\0"
    "#2411.Composition(#1204,#1961,#1962,#1083,#838,#1108,#2411,#98)\0"
    "#2412.ExplAttrInfos(#482,OPT)\0"
    "#2414.Supertypes(#1597)\0"
    "#2414.Composition(#1597,#1150,#2414)\0"
    "#2413.Supertypes(#2414)\0"
    "#2413.Composition(#1597,#1150,#2413,#2414)\0"
    "#2415.ExplAttrInfos(#638,OPT)\0"
    "#2416.ExplAttrInfos(#638,OPT)\0"
    "#2417.ExplAttrInfos(#663,OPT)\0"
    "#2418.ExplAttrInfos(#638,OPT)\0"
    "#2413.Attributes(#2415,#2416,#2417,#2418)\0"
    "#2419.Supertypes(#1321)\0"
    "#2419.Composition(#2419,#1321)\0"
    "#2420.ExplAttrInfos(#1597,REQ)\0"
    "#2421.ExplAttrInfos(#1597,REQ)\0"
    "#2422.ExplAttrInfos(#122,OPT)\0"
    "#2419.Attributes(#2420,#2421,#2422)\0"
    "#2423.Supertypes(#2414)\0"
    "#2423.Composition(#1597,#1150,#2423,#2414)\0"
    "#2424.ExplAttrInfos(#2425,OPT)\0"
    "#2427.Supertypes(#1150)\0"
    "#2427.Composition(#1150,#2427)\0"
    "#2428.ExplAttrInfos(#14,REQ)\0"
    "#2429.ExplAttrInfos(#2430,REQ)\0"
    "#2431.ExplAttrInfos(#663,OPT)\0"
    "#2427.Attributes(#2428,#2429,#2431)\0"
    "#2426.ExplAttrInfos(#2427,OPT)\0"
    "#2423.Attributes(#2424,#2426)\0"
    "#1.Entities(#629,#2242,#2246,#2250,#2252,#2254,#2256,#2257,#2259,#2264,#660,#2266,#2268,#644,#1083,#838,#1110,#2270,#2276,#2278,#2280,#2283,#2287,#1185,#2291,#2293,#133,#2294,#2155,#1847,#2298,#2299,#2301,#101,#2303,#1347,#2305,#816,#2308,#2311,#2317,#105,#103,#2321,#1144,#2327,#2329,#2332,#2334,#2336,#2338,#2340,#2342,#674,#2348,#2349,#1742,#2353,#2355,#2356,#679,#2358,#2362,#2367,#2370,#2373,#2379,#1782,#1279,#1477,#755,#793,#756,#2382,#1798,#956,#753,#2383,#2389,#869,#894,#2395,#2397,#1082,#1108,#1097,#1098,#1147,#2399,#2401,#2402,#2403,#2407,#2411,#1597,#1150,#2413,#97,#2419,#2423)\0"
    "#2432.Supertypes(#2414)\0"
    "#2432.Composition(#1597,#1150,#2432,#2414)\0"
    "#2433.ExplAttrInfos(#2434,OPT)\0"
    "#2435.ExplAttrInfos(#663,OPT)\0"
    "#2432.Attributes(#2433,#2435)\0"
    "#2436.Supertypes(#2414)\0"
    "#2436.Composition(#1597,#1150,#2436,#2414)\0"
    "#2437.ExplAttrInfos(#122,OPT)\0"
    "#2438.ExplAttrInfos(#1077,OPT)\0"
    "#2436.Attributes(#2437,#2438)\0"
    "#2439.Supertypes(#96)\0"
    "#2439.Composition(#97,#2439,#96,#98)\0"
    "#2440.ExplAttrInfos(#2441,REQ)\0"
    "#2439.Attributes(#2440)\0"
    "#2442.Supertypes(#1605)\0"
    "#2442.Composition(#97,#2442,#1605,#98)\0"
    "#2443.ExplAttrInfos(#484,OPT)\0"
    "#2444.ExplAttrInfos(#48,OPT)\0"
    "#2445.ExplAttrInfos(#2446,REQ)\0"
    "#2442.Attributes(#2443,#2444,#2445)\0"
    "#2447.Supertypes(#2414)\0"
    "#2447.Composition(#1597,#1150,#2447,#2414)\0"
    "#2448.ExplAttrInfos(#638,OPT)\0"
    "#2449.ExplAttrInfos(#663,OPT)\0"
    "#2450.Supertypes(#2414)\0"
    "#2450.Composition(#1597,#1150,#2450,#2414)\0"
    "#2451.ExplAttrInfos(#2452,OPT)\0"
    "#2453.ExplAttrInfos(#2454,OPT)\0"
    "#2455.ExplAttrInfos(#122,OPT)\0"
    "#2456.ExplAttrInfos(#663,OPT)\0"
    "#2457.ExplAttrInfos(#663,OPT)\0"
    "#2458.ExplAttrInfos(#310,OPT)\0"
    "#2450.Attributes(#2451,#2453,#2455,#2456,#2457,#2458)\0"
    "#2459.Supertypes(#1258)\0"
    "#2459.Composition(#1238,#1255,#1204,#1258,#1083,#838,#1108,#2459,#98)\0"
    "#2460.ExplAttrInfos(#488,OPT)\0"
    "#2459.Attributes(#2460)\0"
    "#2461.Supertypes(#1237)\0"
    "#2461.Composition(#1237,#1238,#1204,#1083,#838,#1108,#2461,#98)\0"
    "#2462.ExplAttrInfos(#486,OPT)\0"
    "#2461.Attributes(#2462)\0"
    "#2463.Supertypes(#1241)\0"
    "#2463.Composition(#1241,#1242,#1243,#838,#2463,#98,#1088,#1113)\0"
    "#2464.ExplAttrInfos(#486,REQ)\0"
    "#2463.Attributes(#2464)\0"
    "#2465.Supertypes(#1261)\0"
    "#2465.Composition(#1242,#1262,#1243,#1261,#838,#2465,#98,#1088,#1113)\0"
    "#2466.ExplAttrInfos(#488,REQ)\0"
    "#2467.Supertypes(#1108)\0"
    "#2467.Composition(#1083,#838,#1108,#2467,#98)\0"
    "#2468.ExplAttrInfos(#444,REQ)\0"
    "#2469.ExplAttrInfos(#14,OPT)\0"
    "#2467.Attributes(#2468,#2469)\0"
    "#2470.Supertypes(#1615)\0"
    "#2470.Composition(#1238,#1255,#1204,#1615,#1083,#838,#1108,#2470,#98)\0"
    "#2471.ExplAttrInfos(#490,OPT)\0"
    "#2470.Attributes(#2471)\0"
    "#2472.Supertypes(#1618)\0"
    "#2472.Composition(#1242,#1262,#1243,#1618,#838,#2472,#98,#1088,#1113)\0"
    "#2473.ExplAttrInfos(#490,REQ)\0"
    "#2472.Attributes(#2473)\0"
    "#2474.Supertypes(#2327)\0"
    "#2474.Composition(#1144,#2327,#2474)\0"
    "#2475.ExplAttrInfos(#11,REQ)\0"
    "#2476.ExplAttrInfos(#14,OPT)\0"
    "#2474.Attributes(#2475,#2476)\0"
    "#2477.Supertypes(#2327)\0"
    "#2477.Composition(#1144,#2327,#2477)\0"
    "#2478.ExplAttrInfos(#22,REQ)\0"
    "#2479.ExplAttrInfos(#14,OPT)\0"
    "#2477.Attributes(#2478,#2479)\0"
    "#2480.Supertypes(#2327)\0"
    "#2480.Composition(#1144,#2327,#2480)\0"
    "#2482.ExplAttrInfos(#14,OPT)\0"
    "#2480.Attributes(#2481,#2482)\0"
    "#2483.Supertypes(#2327)\0"
    "#2483.Composition(#1144,#2327,#2483)\0"
    "#2484.ExplAttrInfos(#193,REQ)\0"
    "#2485.ExplAttrInfos(#14,OPT)\0"
    "#2483.Attributes(#2484,#2485)\0"
    "#2486.Supertypes(#2327)\0"
    "#2486.Composition(#1144,#2327,#2486)\0"
    "#2487.ExplAttrInfos(#197,REQ)\0"
    "#2488.ExplAttrInfos(#14,OPT)\0"
    "#2486.Attributes(#2487,#2488)\0"
    "#2489.Supertypes(#2327)\0"
    "#2489.Composition(#1144,#2327,#2489)\0"
    "#2490.ExplAttrInfos(#71,REQ)\0"
    "#2491.ExplAttrInfos(#14,OPT)\0"
    "#2489.Attributes(#2490,#2491)\0"
    "#2492.Supertypes(#1414)\0"
    "#2492.Composition(#1414,#1204,#1083,#838,#1108,#2492,#98)\0"
    "#2493.ExplAttrInfos(#492,OPT)\0"
    "#2492.Attributes(#2493)\0"
    "#2494.Supertypes(#1418)\0"
    "#2494.Composition(#1418,#1243,#838,#2494,#98,#1088,#1113)\0"
    "#2495.ExplAttrInfos(#492,REQ)\0"
    "#2494.Attributes(#2495)\0"
    "#2496.Supertypes(#1414)\0"
    "#2496.Composition(#1414,#1204,#1083,#838,#1108,#2496,#98)\0"
    "#2497.ExplAttrInfos(#496,OPT)\0"
    "#2496.Attributes(#2497)\0"
    "#2498.Supertypes(#1414)\0"
    "#2498.Composition(#1414,#1204,#1083,#838,#1108,#2498,#98)\0"
    "#2499.ExplAttrInfos(#494,OPT)\0"
    "#2498.Attributes(#2499)\0"
    "#2500.Supertypes(#1418)\0"
    "#2500.Composition(#1418,#1243,#838,#2500,#98,#1088,#1113)\0"
    "#2501.ExplAttrInfos(#494,REQ)\0"
    "#2500.Attributes(#2501)\0"
    "#2502.Supertypes(#1418)\0"
    "#2502.Composition(#1418,#1243,#838,#2502,#98,#1088,#1113)\0"
    "#2503.ExplAttrInfos(#496,REQ)\0"
    "#2502.Attributes(#2503)\0"
    "#2504.Supertypes(#1378)\0"
    "#2504.Composition(#801,#1368,#1378,#802,#675,#2504,#676)\0"
    "#2505.ExplAttrInfos(#2506,REQ)\0"
    "#2507.DerivAttrInfos(#2508)\0"
    "#2504.Attributes(#2505,#2507)\0"
    "#2509.Supertypes(#1401)\0"
    "#2509.Composition(#1386,#1385,#1401,#675,#2509,#676,#704)\0"
    "#2510.ExplAttrInfos(#2512,REQ)\0"
    "#2513.DerivAttrInfos(#2515)\0"
    "#2509.Attributes(#2510,#2513)\0"
    "#2517.Supertypes(#1347)\0"
    "#2517.Composition(#1347,#1147,#2517)\0"
    "#2518.ExplAttrInfos(#90,REQ)\0"
    "#2519.ExplAttrInfos(#90,REQ)\0"
    "#2517.Attributes(#2518,#2519)\0"
    "#2516.Supertypes(#2517)\0"
    "#2516.Composition(#1347,#1147,#2516,#2517)\0"
    "#2520.ExplAttrInfos(#90,REQ)\0"
    "#2521.ExplAttrInfos(#82,OPT)\0"
    "#2522.ExplAttrInfos(#82,OPT)\0"
    "#2516.Attributes(#2520,#2521,#2522)\0"
    "#2523.Supertypes(#699)\0"
    "#2523.Composition(#699,#675,#2523,#676)\0"
    "#2524.ExplAttrInfos(#90,REQ)\0"
    "#2525.ExplAttrInfos(#90,REQ)\0"
    "#2526.ExplAttrInfos(#90,REQ)\0"
    "#2523.Attributes(#2524,#2525,#2526)\0"
    "#2527.Supertypes(#1386)\0"
    "#2527.Composition(#1386,#675,#2527,#676,#704)\0"
    "#2528.ExplAttrInfos(#704,REQ)\0"
    "#2529.ExplAttrInfos(#87,REQ)\0"
    "#2530.ExplAttrInfos(#87,REQ)\0"
    "#2531.ExplAttrInfos(#87,REQ)\0"
    "#2532.ExplAttrInfos(#87,REQ)\0"
    "#2533.ExplAttrInfos(#13,REQ)\0"
    "#2534.ExplAttrInfos(#13,REQ)\0"
    "#2527.Attributes(#2528,#2529,#2530,#2531,#2532,#2533,#2534)\0"
    "#2535.Composition(#2535)\0"
    "#2536.ExplAttrInfos(#498,REQ)\0"
    "#2537.ExplAttrInfos(#2538,OPT)\0"
    "#2539.ExplAttrInfos(#2540,OPT)\0"
    "#2541.ExplAttrInfos(#2542,OPT)\0"
    "#2543.ExplAttrInfos(#6,OPT)\0"
    "#2544.ExplAttrInfos(#6,OPT)\0"
    "#2545.ExplAttrInfos(#6,OPT)\0"
    "#2548.ExplAttrInfos(#192,REQ)\0"
    "#2549.ExplAttrInfos(#192,REQ)\0"
    "#2547.Attributes(#2548,#2549)\0"
    "#2546.ExplAttrInfos(#2550,OPT)\0"
    "#2535.Attributes(#2536,#2537,#2539,#2541,#2543,#2544,#2545,#2546)\0"
    "#2551.Supertypes(#1279)\0"
    "#2551.Composition(#1083,#838,#1279,#1108,#2551,#98)\0"
    "#2552.ExplAttrInfos(#500,OPT)\0"
    "#2553.ExplAttrInfos(#56,OPT)\0"
    "#2551.Attributes(#2552,#2553)\0"
    "#2554.Supertypes(#1059)\0"
    "#2554.Composition(#2554,#1059)\0"
    "#2555.ExplAttrInfos(#193,REQ)\0"
    "#2557.Composition(#2557)\0"
    "#2558.ExplAttrInfos(#2559,REQ)\0"
    "#2556.ExplAttrInfos(#2560,REQ)\0"
    "#2554.Attributes(#2555,#2556)\0"
    "#2561.Supertypes(#2382)\0"
    "#2561.Composition(#2382,#1150,#2561)\0"
    "#2562.ExplAttrInfos(#11,REQ)\0"
    "#2563.ExplAttrInfos(#14,REQ)\0"
    "#2564.ExplAttrInfos(#506,OPT)\0"
    "#2565.ExplAttrInfos(#56,OPT)\0"
    "#2566.ExplAttrInfos(#90,OPT)\0"
    "#2567.ExplAttrInfos(#22,OPT)\0"
    "#2561.Attributes(#2562,#2563,#2564,#2565,#2566,#2567)\0"
    "#2568.Supertypes(#1798)\0"
    "#2568.Composition(#1798,#97,#96,#2568,#98)\0"
    "#2569.ExplAttrInfos(#14,OPT)\0"
    "#2571.Supertypes(#2382)\0"
    "#2571.Composition(#2382,#1150,#2571)\0"
    "#2572.ExplAttrInfos(#56,REQ)\0"
    "#2573.ExplAttrInfos(#56,REQ)\0"
    "#2574.ExplAttrInfos(#56,OPT)\0"
    "#2575.ExplAttrInfos(#504,REQ)\0"
    "#2577.Supertypes(#2382)\0"
    "#2577.Composition(#2382,#1150,#2577)\0"
    "#2578.ExplAttrInfos(#520,REQ)\0"
    "#2579.ExplAttrInfos(#1147,REQ)\0"
    "#2580.ExplAttrInfos(#1147,OPT)\0"
    "#2577.Attributes(#2578,#2579,#2580)\0"
    "#2576.ExplAttrInfos(#2577,REQ)\0"
    "#2571.Attributes(#2572,#2573,#2574,#2575,#2576,#2581)\0"
    "#2570.ExplAttrInfos(#2583,REQ)\0"
    "#2568.Attributes(#2569,#2570)\0"
    "#2585.Supertypes(#1487)\0"
    "#2585.Composition(#1204,#1487,#1083,#838,#1108,#2585,#98)\0"
    "#2586.ExplAttrInfos(#14,OPT)\0"
    "#2585.Attributes(#2586)\0"
    "#2584.Supertypes(#2585)\0"
    "#2584.Composition(#1204,#1487,#1083,#838,#1108,#2584,#2585,#98)\0"
    "#2587.ExplAttrInfos(#90,OPT)\0"
    "#2588.ExplAttrInfos(#11,OPT)\0"
    "#2589.ExplAttrInfos(#90,OPT)\0"
    "#2590.ExplAttrInfos(#508,OPT)\0"
    "#2591.ExplAttrInfos(#506,OPT)\0"
    "#2584.Attributes(#2587,#2588,#2589,#2590,#2591)\0"
    "#2593.Supertypes(#1490)\0"
    "#2593.Composition(#1490,#1243,#838,#2593,#98,#1088,#1113)\0"
    "#2592.Supertypes(#2593)\0"
    "#2592.Composition(#1490,#1243,#838,#2592,#2593,#98,#1088,#1113)\0"
    "#2594.ExplAttrInfos(#508,REQ)\0"
    "#2595.ExplAttrInfos(#90,OPT)\0"
    "#2596.ExplAttrInfos(#11,OPT)\0"
    "#2597.ExplAttrInfos(#90,OPT)\0"
    "#2598.ExplAttrInfos(#506,OPT)\0"
    "#2599.ExplAttrInfos(#14,OPT)\0"
    "#2600.ExplAttrInfos(#2601,OPT)\0"
    "#2592.Attributes(#2594,#2595,#2596,#2597,#2598,#2599,#2600)\0"
    "#2602.Supertypes(#2585)\0"
    "#2602.Composition(#1204,#1487,#1083,#838,#1108,#2585,#2602,#98)\0"
    "#2603.ExplAttrInfos(#90,OPT)\0"
    "#2604.ExplAttrInfos(#90,OPT)\0"
    "#2605.ExplAttrInfos(#90,OPT)\0"
    "#2606.ExplAttrInfos(#90,OPT)\0"
    "#2607.ExplAttrInfos(#11,OPT)\0"
    "#2608.ExplAttrInfos(#11,OPT)\0"
    "#2609.ExplAttrInfos(#90,OPT)\0"
    "#2610.ExplAttrInfos(#90,OPT)\0"
    "#2611.ExplAttrInfos(#510,OPT)\0"
    "#2602.Attributes(#2603,#2604,#2605,#2606,#2607,#2608,#2609,#2610,#2611)\0"
    "#2612.Supertypes(#2593)\0"
    "#2612.Composition(#1490,#1243,#838,#2593,#2612,#98,#1088,#1113)\0"
    "#2613.ExplAttrInfos(#510,REQ)\0"
    "#2614.ExplAttrInfos(#90,OPT)\0"
    "#2615.ExplAttrInfos(#90,OPT)\0"
    "#2616.ExplAttrInfos(#90,OPT)\0"
    "#2617.ExplAttrInfos(#90,OPT)\0"
    "#2618.ExplAttrInfos(#11,OPT)\0"
    "#2619.ExplAttrInfos(#11,OPT)\0"
    "#2620.ExplAttrInfos(#90,OPT)\0"
    "#2621.ExplAttrInfos(#90,OPT)\0"
    "#2622.ExplAttrInfos(#14,OPT)\0"
    "#2623.ExplAttrInfos(#2624,OPT)\0"
    "#2612.Attributes(#2613,#2614,#2615,#2616,#2617,#2618,#2619,#2620,#2621,#2622,#2623)\0"
    "#2627.Supertypes(#98)\0"
    "#2627.Composition(#2627,#98)\0"
    "#2626.Supertypes(#2627)\0"
    "#2626.Composition(#2627,#2626,#98)\0"
    "#2625.Supertypes(#2626)\0"
    "#2625.Composition(#2625,#2627,#2626,#98)\0"
    "#2628.ExplAttrInfos(#838,REQ)\0"
    "#2625.Attributes(#2628,#2629)\0"
    "#2631.Supertypes(#2627)\0"
    "#2631.Composition(#2631,#2627,#98)\0"
    "#2634.ExplAttrInfos(#444,OPT)\0"
    "#2631.Attributes(#2632,#2634)\0"
    "#2635.Supertypes(#2631)\0"
    "#2635.Composition(#2631,#2635,#2627,#98)\0"
    "#2636.ExplAttrInfos(#1234,REQ)\0"
    "#2637.ExplAttrInfos(#116,OPT)\0"
    "#2635.Attributes(#2636,#2637)\0"
    "#2638.Supertypes(#2631)\0"
    "#2638.Composition(#2631,#2638,#2627,#98)\0"
    "#2639.ExplAttrInfos(#1229,REQ)\0"
    "#2638.Attributes(#2639)\0"
    "#2640.Supertypes(#2631)\0"
    "#2640.Composition(#2631,#2640,#2627,#98)\0"
    "#2641.ExplAttrInfos(#1335,REQ)\0"
    "#2640.Attributes(#2641)\0"
    "#2642.Supertypes(#2640)\0"
    "#2642.Composition(#2631,#2640,#2642,#2627,#98)\0"
    "#2643.ExplAttrInfos(#83,REQ)\0"
    "#2642.Attributes(#2643)\0"
    "#2644.Supertypes(#2631)\0"
    "#2644.Composition(#2631,#2644,#2627,#98)\0"
    "#2645.ExplAttrInfos(#1096,REQ)\0"
    "#2646.ExplAttrInfos(#629,OPT)\0"
    "#2644.Attributes(#2645,#2646)\0"
    "#2647.Supertypes(#2631)\0"
    "#2647.Composition(#2631,#2647,#2627,#98)\0"
    "#2648.ExplAttrInfos(#1118,REQ)\0"
    "#2647.Attributes(#2648)\0"
    "#2649.Supertypes(#2631)\0"
    "#2649.Composition(#2631,#2649,#2627,#98)\0"
    "#2650.ExplAttrInfos(#1169,REQ)\0"
    "#2649.Attributes(#2650)\0"
    "#2651.Supertypes(#2627)\0"
    "#2651.Composition(#2651,#2627,#98)\0"
    "#2652.ExplAttrInfos(#2653,REQ)\0"
    "#2651.Attributes(#2652)\0"
    "#2654.Supertypes(#2651)\0"
    "#2654.Composition(#2651,#2654,#2627,#98)\0"
    "#2655.ExplAttrInfos(#1121,REQ)\0"
    "#2654.Attributes(#2655)\0"
    "#2656.Supertypes(#2651)\0"
    "#2656.Composition(#2651,#2656,#2627,#98)\0"
    "#2657.ExplAttrInfos(#751,REQ)\0"
    "#2656.Attributes(#2657)\0"
    "#2658.Supertypes(#2651)\0"
    "#2658.Composition(#2651,#2658,#2627,#98)\0"
    "#2659.ExplAttrInfos(#14,OPT)\0"
    "#2660.ExplAttrInfos(#1131,REQ)\0"
    "#2658.Attributes(#2659,#2660)\0"
    "#2661.Supertypes(#2651)\0"
    "#2661.Composition(#2651,#2661,#2627,#98)\0"
    "#2662.ExplAttrInfos(#864,REQ)\0"
    "#2661.Attributes(#2662)\0"
    "#2663.Supertypes(#2651)\0"
    "#2663.Composition(#2651,#2663,#2627,#98)\0"
    "#2664.ExplAttrInfos(#1004,REQ)\0"
    "#2663.Attributes(#2664)\0"
    "#2665.Supertypes(#2651)\0"
    "#2665.Composition(#2651,#2665,#2627,#98)\0"
    "#2666.ExplAttrInfos(#1027,REQ)\0"
    "#2665.Attributes(#2666)\0"
    "#2667.Supertypes(#2627)\0"
    "#2667.Composition(#2627,#2667,#98)\0"
    "#2668.Supertypes(#2667)\0"
    "#2668.Composition(#2627,#2667,#2668,#98)\0"
    "#2669.ExplAttrInfos(#1625,OPT)\0"
    "#2670.ExplAttrInfos(#1204,REQ)\0"
    "#2671.ExplAttrInfos(#1204,REQ)\0"
    "#2668.Attributes(#2669,#2670,#2671)\0"
    "#2672.Supertypes(#2668)\0"
    "#2672.Composition(#2627,#2667,#2668,#2672,#98)\0"
    "#2673.ExplAttrInfos(#2674,REQ)\0"
    "#2675.ExplAttrInfos(#2676,REQ)\0"
    "#2677.ExplAttrInfos(#284,REQ)\0"
    "#2678.ExplAttrInfos(#284,REQ)\0"
    "#2672.Attributes(#2673,#2675,#2677,#2678)\0"
    "#2679.Supertypes(#2667)\0"
    "#2679.Composition(#2627,#2667,#2679,#98)\0"
    "#2680.ExplAttrInfos(#1782,REQ)\0"
    "#2681.ExplAttrInfos(#1238,REQ)\0"
    "#2679.Attributes(#2680,#2681)\0"
    "#2682.Supertypes(#2667)\0"
    "#2682.Composition(#2627,#2667,#2682,#98)\0"
    "#2683.ExplAttrInfos(#1782,REQ)\0"
    "#2684.ExplAttrInfos(#1782,REQ)\0"
    "#2685.ExplAttrInfos(#1204,OPT)\0"
    "#2682.Attributes(#2683,#2684,#2685)\0"
    "#2686.Supertypes(#2667)\0"
    "#2686.Composition(#2627,#2667,#2686,#98)\0"
    "#2687.ExplAttrInfos(#1208,REQ)\0"
    "#2689.Supertypes(#1108)\0"
    "#2689.Composition(#1083,#838,#1108,#98,#2689)\0"
    "#2691.Composition(#2691)\0"
    "#2692.ExplAttrInfos(#14,OPT)\0"
    "#2693.ExplAttrInfos(#400,REQ)\0"
    "#2689.Attributes(#2690,#2693)\0"
    "#2688.ExplAttrInfos(#2689,REQ)\0"
    "#2686.Attributes(#2687,#2688)\0"
    "#2694.Supertypes(#2667)\0"
    "#2694.Composition(#2627,#2667,#2694,#98)\0"
    "#2696.Supertypes(#1206)\0"
    "#2696.Composition(#1083,#838,#1108,#98,#1206,#2696)\0"
    "#2698.Supertypes(#1206)\0"
    "#2698.Composition(#1083,#838,#1108,#98,#2698,#1206)\0"
    "#2699.ExplAttrInfos(#1436,OPT)\0"
    "#2697.ExplAttrInfos(#2698,REQ)\0"
    "#2700.ExplAttrInfos(#1436,OPT)\0"
    "#2701.ExplAttrInfos(#1945,OPT)\0"
    "#2702.ExplAttrInfos(#56,OPT)\0"
    "#2703.ExplAttrInfos(#689,OPT)\0"
    "#2694.Attributes(#2695,#2697,#2700,#2701,#2702,#2703)\0"
    "#2704.Supertypes(#2694)\0"
    "#2704.Composition(#2627,#2667,#2694,#2704,#98)\0"
    "#2705.ExplAttrInfos(#1625,REQ)\0"
    "#2704.Attributes(#2705)\0"
    "#2706.Supertypes(#2668)\0"
    "#2706.Composition(#2627,#2667,#2668,#2706,#98)\0"
    "#2707.ExplAttrInfos(#2708,REQ)\0"
    "#2709.ExplAttrInfos(#14,OPT)\0"
    "#2706.Attributes(#2707,#2709)\0"
    "#2710.Supertypes(#2667)\0"
    "#2710.Composition(#2627,#2667,#2710,#98)\0"
    "#2711.ExplAttrInfos(#2712,REQ)\0"
    "#2713.ExplAttrInfos(#1192,REQ)\0"
    "#2710.Attributes(#2711,#2713)\0"
    "#2714.Supertypes(#2667)\0"
    "#2714.Composition(#2627,#2667,#2714,#98)\0"
    "#2715.ExplAttrInfos(#1204,REQ)\0"
    "#2716.ExplAttrInfos(#2717,REQ)\0"
    "#2714.Attributes(#2715,#2716)\0"
    "#2718.Supertypes(#2667)\0"
    "#2718.Composition(#2627,#2667,#2718,#98)\0"
    "#2719.ExplAttrInfos(#1195,REQ)\0"
    "#2720.ExplAttrInfos(#2721,REQ)\0"
    "#2718.Attributes(#2719,#2720)\0"
    "#2722.Supertypes(#2627)\0"
    "#2722.Composition(#2627,#2722,#98)\0"
    "#2723.ExplAttrInfos(#1682,REQ)\0"
    "#2724.ExplAttrInfos(#2725,REQ)\0"
    "#2722.Attributes(#2723,#2724)\0"
    "#2726.Supertypes(#2627)\0"
    "#2726.Composition(#2627,#2726,#98)\0"
    "#2727.Supertypes(#2726)\0"
    "#2727.Composition(#2627,#2726,#2727,#98)\0"
    "#2730.ExplAttrInfos(#1083,REQ)\0"
    "#2727.Attributes(#2728,#2730)\0"
    "#2731.Supertypes(#2726)\0"
    "#2731.Composition(#2627,#2726,#2731,#98)\0"
    "#2732.ExplAttrInfos(#2733,REQ)\0"
    "#2734.ExplAttrInfos(#1120,REQ)\0"
    "#2731.Attributes(#2732,#2734)\0"
    "#2735.Supertypes(#2726)\0"
    "#2735.Composition(#2627,#2726,#2735,#98)\0"
    "#2736.ExplAttrInfos(#2737,REQ)\0"
    "#2738.ExplAttrInfos(#2442,REQ)\0"
    "#2735.Attributes(#2736,#2738)\0"
    "#2739.Supertypes(#2726)\0"
    "#2739.Composition(#2627,#2726,#2739,#98)\0"
    "#2740.ExplAttrInfos(#2741,REQ)\0"
    "#2742.ExplAttrInfos(#1088,REQ)\0"
    "#2739.Attributes(#2740,#2742)\0"
    "#2743.Supertypes(#2667)\0"
    "#2743.Composition(#2627,#2667,#2743,#98)\0"
    "#2744.ExplAttrInfos(#2291,REQ)\0"
    "#2745.ExplAttrInfos(#1204,REQ)\0"
    "#2743.Attributes(#2744,#2745)\0"
    "#2746.Supertypes(#2667)\0"
    "#2746.Composition(#2627,#2667,#2746,#98)\0"
    "#2747.ExplAttrInfos(#2748,REQ)\0"
    "#2749.ExplAttrInfos(#1255,REQ)\0"
    "#2746.Attributes(#2747,#2749)\0"
    "#2750.Supertypes(#2667)\0"
    "#2750.Composition(#2627,#2667,#2750,#98)\0"
    "#2751.ExplAttrInfos(#1204,REQ)\0"
    "#2752.ExplAttrInfos(#1204,REQ)\0"
    "#2753.ExplAttrInfos(#1625,OPT)\0"
    "#2754.ExplAttrInfos(#48,OPT)\0"
    "#2755.ExplAttrInfos(LogicalType,REQ)\0"
    "#2750.Attributes(#2751,#2752,#2753,#2754,#2755)\0"
    "#2756.Supertypes(#2626)\0"
    "#2756.Composition(#2627,#2626,#2756,#98)\0"
    "#2757.ExplAttrInfos(#838,REQ)\0"
    "#2758.ExplAttrInfos(#2759,REQ)\0"
    "#2756.Attributes(#2757,#2758)\0"
    "#2760.Supertypes(#2667)\0"
    "#2760.Composition(#2627,#2667,#2760,#98)\0"
    "#2761.ExplAttrInfos(#1279,REQ)\0"
    "#2762.ExplAttrInfos(#2763,REQ)\0"
    "#2760.Attributes(#2761,#2762)\0"
    "#2764.Supertypes(#2626)\0"
    "#2764.Composition(#2627,#2626,#2764,#98)\0"
    "#2765.ExplAttrInfos(#1204,REQ)\0"
    "#2766.ExplAttrInfos(#1962,REQ)\0"
    "#2764.Attributes(#2765,#2766)\0"
    "#2767.Supertypes(#2667)\0"
    "#2767.Composition(#2627,#2667,#2767,#98)\0"
    "#2768.ExplAttrInfos(#2769,REQ)\0"
    "#2770.ExplAttrInfos(#1192,REQ)\0"
    "#2767.Attributes(#2768,#2770)\0"
    "#2771.Supertypes(#2667)\0"
    "#2771.Composition(#2627,#2667,#2771,#98)\0"
    "#2772.ExplAttrInfos(#1082,REQ)\0"
    "#2773.ExplAttrInfos(#1082,REQ)\0"
    "#2774.ExplAttrInfos(#2110,OPT)\0"
    "#2775.ExplAttrInfos(#524,OPT)\0"
    "#2776.ExplAttrInfos(#14,OPT)\0"
    "#2771.Attributes(#2772,#2773,#2774,#2775,#2776)\0"
    "#2777.Supertypes(#2667)\0"
    "#2777.Composition(#2627,#2667,#2777,#98)\0"
    "#2778.ExplAttrInfos(#1499,REQ)\0"
    "#2779.ExplAttrInfos(#2780,REQ)\0"
    "#2777.Attributes(#2778,#2779)\0"
    "#2781.Supertypes(#2667)\0"
    "#2781.Composition(#2627,#2667,#2781,#98)\0"
    "#2782.ExplAttrInfos(#1201,REQ)\0"
    "#2783.ExplAttrInfos(#1204,REQ)\0"
    "#2784.ExplAttrInfos(#1625,OPT)\0"
    "#2785.ExplAttrInfos(#460,REQ)\0"
    "#2786.ExplAttrInfos(#410,REQ)\0"
    "#2781.Attributes(#2782,#2783,#2784,#2785,#2786)\0"
    "#2787.Supertypes(#2781)\0"
    "#2787.Composition(#2627,#2667,#2781,#2787,#98)\0"
    "#2788.ExplAttrInfos(#2787,OPT)\0"
    "#2787.Attributes(#2788)\0"
    "#2789.Supertypes(#2787)\0"
    "#2789.Composition(#2627,#2667,#2781,#2787,#2789,#98)\0"
    "#2790.ExplAttrInfos(#2789,OPT)\0"
    "#2789.Attributes(#2790)\0"
    "#2791.Supertypes(#2626)\0"
    "#2791.Composition(#2627,#2626,#2791,#98)\0"
    "#2792.ExplAttrInfos(#1204,REQ)\0"
    "#2793.ExplAttrInfos(#1963,REQ)\0"
    "#2791.Attributes(#2792,#2793)\0"
    "#2794.Supertypes(#805)\0"
    "#2794.Composition(#805,#675,#2794,#676)\0"
    "#2795.ExplAttrInfos(#87,REQ)\0"
    "#1.Entities(#2427,#2432,#2436,#2439,#96,#2442,#2447,#2450,#1604,#1605,#2459,#2461,#2463,#2465,#2467,#2470,#2472,#2474,#2477,#2480,#1886,#2483,#2486,#2489,#2492,#2494,#2496,#2498,#2500,#2502,#2504,#2509,#2516,#2517,#2523,#2527,#2535,#664,#2551,#2554,#2561,#2568,#2584,#2592,#2585,#2593,#2602,#2612,#2625,#2631,#2635,#2638,#2640,#2642,#2644,#2647,#2649,#2651,#2654,#2656,#2658,#2661,#2663,#2665,#2667,#2668,#2672,#2679,#2682,#2686,#2694,#2704,#2706,#2710,#2714,#2718,#2722,#2626,#2726,#2727,#2731,#2735,#2739,#2743,#2746,#2750,#2756,#2760,#2764,#2767,#2771,#2777,#2781,#2787,#2789,#2791,#2627,#2794,#984,#772)\0"
    "#2796.Supertypes(#1321)\0"
    "#2796.Composition(#2796,#1321)\0"
    "#2797.ExplAttrInfos(#2798,REQ)\0"
    "#2799.ExplAttrInfos(#1121,REQ)\0"
    "#2796.Attributes(#2797,#2799)\0"
    "#2800.Supertypes(#1321)\0"
    "#2800.Composition(#2800,#1321)\0"
    "#2801.ExplAttrInfos(#1131,REQ)\0"
    "#2802.ExplAttrInfos(#2803,REQ)\0"
    "#2804.Supertypes(#1932)\0"
    "#2804.Composition(#675,#676,#2804,#708,#1932)\0"
    "#2805.ExplAttrInfos(#1365,REQ)\0"
    "#2806.ExplAttrInfos(#89,REQ)\0"
    "#2807.DerivAttrInfos(#2147)\0"
    "#2804.Attributes(#2805,#2806,#2807)\0"
    "#2808.Supertypes(#2804)\0"
    "#2808.Composition(#675,#676,#2804,#2808,#708,#1932)\0"
    "#2809.ExplAttrInfos(#1147,REQ)\0"
    "#2810.Supertypes(#699)\0"
    "#2810.Composition(#699,#675,#676,#2810)\0"
    "#2811.ExplAttrInfos(#90,REQ)\0"
    "#2812.ExplAttrInfos(#90,REQ)\0"
    "#2810.Attributes(#2811,#2812)\0"
    "#2813.Supertypes(#699)\0"
    "#2813.Composition(#699,#675,#676,#2813)\0"
    "#2814.ExplAttrInfos(#90,REQ)\0"
    "#2815.ExplAttrInfos(#90,REQ)\0"
    "#2813.Attributes(#2814,#2815)\0"
    "#2816.Supertypes(#1414)\0"
    "#2816.Composition(#1414,#1204,#1083,#838,#1108,#2816,#98)\0"
    "#2817.ExplAttrInfos(#512,OPT)\0"
    "#2816.Attributes(#2817)\0"
    "#2818.Supertypes(#1418)\0"
    "#2818.Composition(#1418,#1243,#838,#2818,#98,#1088,#1113)\0"
    "#2819.ExplAttrInfos(#512,REQ)\0"
    "#2818.Attributes(#2819)\0"
    "#2820.Supertypes(#2517)\0"
    "#2820.Composition(#1347,#1147,#2517,#2820)\0"
    "#2821.ExplAttrInfos(#90,REQ)\0"
    "#2820.Attributes(#2821)\0"
    "#2822.Supertypes(#644)\0"
    "#2822.Composition(#644,#2822)\0"
    "#2823.ExplAttrInfos(#514,OPT)\0"
    "#2824.ExplAttrInfos(#516,REQ)\0"
    "#2825.DerivAttrInfos(#646)\0"
    "#2826.Supertypes(#1254)\0"
    "#2826.Composition(#1238,#1255,#1204,#1254,#1083,#838,#1108,#98,#2826)\0"
    "#2827.ExplAttrInfos(#518,OPT)\0"
    "#2826.Attributes(#2827)\0"
    "#2828.Supertypes(#1265)\0"
    "#2828.Composition(#1242,#1262,#1243,#1265,#838,#98,#2828,#1088,#1113)\0"
    "#2829.ExplAttrInfos(#518,REQ)\0"
    "#2828.Attributes(#2829)\0"
    "#2830.Supertypes(#819)\0"
    "#2830.Composition(#802,#675,#676,#2830,#819)\0"
    "#2831.Supertypes(#708)\0"
    "#2831.Composition(#675,#676,#2831,#708)\0"
    "#2832.ExplAttrInfos(#802,REQ)\0"
    "#2833.ExplAttrInfos(#2834,REQ)\0"
    "#2831.Attributes(#2832,#2833)\0"
    "#2835.Supertypes(#2831)\0"
    "#2835.Composition(#675,#676,#2831,#2835,#708)\0"
    "#2836.ExplAttrInfos(#2837,REQ)\0"
    "#2838.ExplAttrInfos(#13,REQ)\0"
    "#2835.Attributes(#2836,#2838)\0"
    "#2839.Supertypes(#675)\0"
    "#2839.Composition(#675,#676,#2839)\0"
    "#2840.ExplAttrInfos(#800,REQ)\0"
    "#2841.ExplAttrInfos(#2842,REQ)\0"
    "#2843.ExplAttrInfos(#2844,REQ)\0"
    "#2845.DerivAttrInfos(#29)\0"
    "#2839.Attributes(#2840,#2841,#2843,#2845)\0"
    "#2846.Supertypes(#1237)\0"
    "#2846.Composition(#1237,#1238,#1204,#1083,#838,#1108,#98,#2846)",
    "#2847.ExplAttrInfos(#522,OPT)\0"
    "#2848.Supertypes(#1241)\0"
    "#2848.Composition(#1241,#1242,#1243,#838,#98,#2848,#1088,#1113)\0"
    "#2849.ExplAttrInfos(#522,REQ)\0"
    "#2848.Attributes(#2849)\0"
    "#2850.Supertypes(#1414)\0"
    "#2850.Composition(#1414,#1204,#1083,#838,#1108,#98,#2850)\0"
    "#2851.ExplAttrInfos(#526,OPT)\0"
    "#2850.Attributes(#2851)\0"
    "#2852.Supertypes(#1418)\0"
    "#2852.Composition(#1418,#1243,#838,#98,#2852,#1088,#1113)\0"
    "#2853.ExplAttrInfos(#526,REQ)\0"
    "#2852.Attributes(#2853)\0"
    "#2854.Supertypes(#1153)\0"
    "#2854.Composition(#984,#1153,#2854)\0"
    "#2855.Supertypes(#675)\0"
    "#2855.Composition(#675,#676,#2855)\0"
    "#2856.ExplAttrInfos(#2857,REQ)\0"
    "#2858.DerivAttrInfos(#29)\0"
    "#2855.Attributes(#2856,#2858)\0"
    "#2859.Supertypes(#1604)\0"
    "#2859.Composition(#97,#1604,#1605,#98,#2859)\0"
    "#2860.ExplAttrInfos(#528,OPT)\0"
    "#2861.ExplAttrInfos(#14,OPT)\0"
    "#2862.ExplAttrInfos(#14,OPT)\0"
    "#2863.ExplAttrInfos(#2427,OPT)\0"
    "#2864.ExplAttrInfos(#663,OPT)\0"
    "#2865.ExplAttrInfos(#663,OPT)\0"
    "#2866.ExplAttrInfos(#14,OPT)\0"
    "#2867.ExplAttrInfos(#151,OPT)\0"
    "#2859.Attributes(#2860,#2861,#2862,#2863,#2864,#2865,#2866,#2867)\0"
    "#2868.Supertypes(#1196)\0"
    "#2868.Composition(#1083,#838,#1108,#98,#2868,#1192,#1196)\0"
    "#2869.ExplAttrInfos(#20,OPT)\0"
    "#2870.ExplAttrInfos(#20,OPT)\0"
    "#2871.ExplAttrInfos(#56,OPT)\0"
    "#2872.ExplAttrInfos(#14,OPT)\0"
    "#2873.ExplAttrInfos(#1477,OPT)\0"
    "#2868.Attributes(#2869,#2870,#2871,#2872,#2873)\0"
    "#2874.Supertypes(#1414)\0"
    "#2874.Composition(#1414,#1204,#1083,#838,#1108,#98,#2874)\0"
    "#2875.ExplAttrInfos(#530,OPT)\0"
    "#2874.Attributes(#2875)\0"
    "#2876.Supertypes(#2874)\0"
    "#2876.Composition(#1414,#1204,#1083,#838,#1108,#98,#2874,#2876)\0"
    "#2877.Supertypes(#2874)\0"
    "#2877.Composition(#1414,#1204,#1083,#838,#1108,#98,#2874,#2877)\0"
    "#2878.Supertypes(#1418)\0"
    "#2878.Composition(#1418,#1243,#838,#98,#2878,#1088,#1113)\0"
    "#2879.ExplAttrInfos(#530,REQ)\0"
    "#2878.Attributes(#2879)\0"
    "#2880.Supertypes(#1945)\0"
    "#2880.Composition(#2880,#1945)\0"
    "#2882.ExplAttrInfos(#56,OPT)\0"
    "#2883.ExplAttrInfos(#56,OPT)\0"
    "#2880.Attributes(#2881,#2882,#2883)\0"
    "#2884.Supertypes(#1268)\0"
    "#2884.Composition(#1238,#1255,#1204,#1268,#1083,#838,#1108,#98,#2884)\0"
    "#2885.ExplAttrInfos(#532,OPT)\0"
    "#2884.Attributes(#2885)\0"
    "#2886.Supertypes(#1271)\0"
    "#2886.Composition(#1242,#1262,#1243,#1271,#838,#98,#2886,#1088,#1113)\0"
    "#2887.ExplAttrInfos(#532,REQ)\0"
    "#2886.Attributes(#2887)\0"
    "#2888.Supertypes(#1254)\0"
    "#2888.Composition(#1238,#1255,#1204,#1254,#1083,#838,#1108,#98,#2888)\0"
    "#2889.ExplAttrInfos(#534,OPT)\0"
    "#2888.Attributes(#2889)\0"
    "#2890.Supertypes(#1265)\0"
    "#2890.Composition(#1242,#1262,#1243,#1265,#838,#98,#2890,#1088,#1113)\0"
    "#2891.ExplAttrInfos(#534,REQ)\0"
    "#2894.Supertypes(#1113)\0"
    "#2894.Composition(#838,#98,#2894,#1088,#1113)\0"
    "#2895.ExplAttrInfos(#14,OPT)\0"
    "#2893.Supertypes(#2894)\0"
    "#2893.Composition(#838,#98,#2894,#2893,#1088,#1113)\0"
    "#2892.Supertypes(#2893)\0"
    "#2892.Composition(#838,#98,#2892,#2894,#2893,#1088,#1113)\0"
    "#2896.ExplAttrInfos(#536,REQ)\0"
    "#2897.ExplAttrInfos(#14,OPT)\0"
    "#2892.Attributes(#2896,#2897)\0"
    "#2898.Supertypes(#1192)\0"
    "#2898.Composition(#1083,#838,#1108,#98,#1192,#2898)\0"
    "#2899.ExplAttrInfos(#538,OPT)\0"
    "#2900.Supertypes(#2894)\0"
    "#2900.Composition(#838,#98,#2894,#2900,#1088,#1113)\0"
    "#2901.ExplAttrInfos(#538,REQ)\0"
    "#2902.ExplAttrInfos(#14,OPT)\0"
    "#2900.Attributes(#2901,#2902)\0"
    "#2903.Supertypes(#699)\0"
    "#2903.Composition(#699,#675,#676,#2903)\0"
    "#2904.ExplAttrInfos(#90,REQ)\0"
    "#2903.Attributes(#2904)\0"
    "#2905.Supertypes(#1743)\0"
    "#2905.Composition(#1743,#675,#676,#2905,#704)\0"
    "#2906.ExplAttrInfos(#90,REQ)\0"
    "#2907.Supertypes(#1254)\0"
    "#2907.Composition(#1238,#1255,#1204,#1254,#1083,#838,#1108,#98,#2907)\0"
    "#2908.ExplAttrInfos(#540,OPT)\0"
    "#2907.Attributes(#2908)\0"
    "#2909.Supertypes(#1265)\0"
    "#2909.Composition(#1242,#1262,#1243,#1265,#838,#98,#2909,#1088,#1113)\0"
    "#2910.ExplAttrInfos(#540,REQ)\0"
    "#2909.Attributes(#2910)\0"
    "#2911.Supertypes(#1414)\0"
    "#2911.Composition(#1414,#1204,#1083,#838,#1108,#98,#2911)\0"
    "#2912.ExplAttrInfos(#544,OPT)\0"
    "#2911.Attributes(#2912)\0"
    "#2913.Supertypes(#1414)\0"
    "#2913.Composition(#1414,#1204,#1083,#838,#1108,#98,#2913)\0"
    "#2914.ExplAttrInfos(#6,OPT)\0"
    "#2915.ExplAttrInfos(#6,OPT)\0"
    "#2916.ExplAttrInfos(#90,OPT)\0"
    "#2917.ExplAttrInfos(#90,OPT)\0"
    "#2918.ExplAttrInfos(#542,OPT)\0"
    "#2913.Attributes(#2914,#2915,#2916,#2917,#2918)\0"
    "#2919.Supertypes(#1418)\0"
    "#2919.Composition(#1418,#1243,#838,#98,#2919,#1088,#1113)\0"
    "#2920.ExplAttrInfos(#542,REQ)\0"
    "#2921.Supertypes(#1418)\0"
    "#2921.Composition(#1418,#1243,#838,#98,#2921,#1088,#1113)\0"
    "#2922.ExplAttrInfos(#544,REQ)\0"
    "#2923.Supertypes(#2689)\0"
    "#2923.Composition(#1083,#838,#1108,#98,#2923,#2689)\0"
    "#2924.ExplAttrInfos(#13,OPT)\0"
    "#2925.Supertypes(#1499)\0"
    "#2925.Composition(#1335,#1083,#838,#98,#2925,#1499)\0"
    "#2926.ExplAttrInfos(#220,REQ)\0"
    "#2927.ExplAttrInfos(#689,OPT)\0"
    "#2929.Supertypes(#1335)\0"
    "#2929.Composition(#1335,#1083,#838,#98,#2929)\0"
    "#2930.ExplAttrInfos(#430,REQ)\0"
    "#2931.ExplAttrInfos(#206,REQ)\0"
    "#2932.ExplAttrInfos(#204,REQ)\0"
    "#2933.ExplAttrInfos(#83,OPT)\0"
    "#2934.ExplAttrInfos(#14,OPT)\0"
    "#2929.Attributes(#2930,#2931,#2932,#2933,#2934)\0"
    "#2928.ExplAttrInfos(#2935,OPT)\0"
    "#2937.Supertypes(#1335)\0"
    "#2937.Composition(#1335,#1083,#838,#98,#2937)\0"
    "#2938.ExplAttrInfos(#222,REQ)\0"
    "#2939.ExplAttrInfos(#2929,OPT)\0"
    "#2940.ExplAttrInfos(#13,REQ)\0"
    "#2937.Attributes(#2938,#2939,#2940)\0"
    "#2936.ExplAttrInfos(#2941,OPT)\0"
    "#2942.ExplAttrInfos(#1110,OPT)\0"
    "#2925.Attributes(#2926,#2927,#2928,#2936,#2942)\0"
    "#2943.Supertypes(#2923)\0"
    "#2943.Composition(#1083,#838,#1108,#98,#2923,#2689,#2943)\0"
    "#2944.ExplAttrInfos(#480,OPT)\0"
    "#2945.ExplAttrInfos(#546,REQ)\0"
    "#2943.Attributes(#2944,#2945)\0"
    "#2946.Supertypes(#2698)\0"
    "#2946.Composition(#1083,#838,#1108,#98,#2698,#2946,#1206)\0"
    "#2947.ExplAttrInfos(#685,REQ)\0"
    "#2946.Attributes(#2947)\0"
    "#2948.Supertypes(#2696)\0"
    "#2948.Composition(#1083,#838,#1108,#98,#2948,#1206,#2696)\0"
    "#2949.ExplAttrInfos(#548,REQ)\0"
    "#2950.ExplAttrInfos(#685,REQ)\0"
    "#2948.Attributes(#2949,#2950)\0"
    "#2951.Supertypes(#2948)\0"
    "#2951.Composition(#1083,#838,#1108,#98,#2948,#2951,#1206,#2696)\0"
    "#2953.Supertypes(#2689)\0"
    "#2953.Composition(#1083,#838,#1108,#98,#2689,#2953)\0"
    "#2952.Supertypes(#2953)\0"
    "#2952.Composition(#1083,#838,#1108,#98,#2689,#2952,#2953)\0"
    "#2954.ExplAttrInfos(#546,REQ)\0"
    "#2952.Attributes(#2954)\0"
    "#2955.Supertypes(#2943)\0"
    "#2955.Composition(#1083,#838,#1108,#98,#2923,#2689,#2943,#2955)\0"
    "#2956.Supertypes(#2929)\0"
    "#2956.Composition(#1335,#1083,#838,#98,#2956,#2929)\0"
    "#2957.ExplAttrInfos(#2958,OPT)\0"
    "#2956.Attributes(#2957)\0"
    "#2959.Supertypes(#2691)\0"
    "#2959.Composition(#2691,#2959)\0"
    "#2961.Supertypes(#2691)\0"
    "#2961.Composition(#2691,#2961)\0"
    "#2960.ExplAttrInfos(#2962,REQ)\0"
    "#2963.ExplAttrInfos(#2965,OPT)\0"
    "#2959.Attributes(#2960,#2963)\0"
    "#2967.Supertypes(#2961)\0"
    "#2967.Composition(#2691,#2961,#2967)\0"
    "#2966.Supertypes(#2967)\0"
    "#2966.Composition(#2691,#2966,#2961,#2967)\0"
    "#2968.ExplAttrInfos(#59,OPT)\0"
    "#2969.ExplAttrInfos(#59,OPT)\0"
    "#2970.ExplAttrInfos(#59,OPT)\0"
    "#2971.ExplAttrInfos(#60,OPT)\0"
    "#2972.ExplAttrInfos(#60,OPT)\0"
    "#2973.ExplAttrInfos(#60,OPT)\0"
    "#2966.Attributes(#2968,#2969,#2970,#2971,#2972,#2973)\0"
    "#2974.Supertypes(#2967)\0"
    "#2974.Composition(#2691,#2961,#2974,#2967)\0"
    "#2975.ExplAttrInfos(#88,OPT)\0"
    "#2976.ExplAttrInfos(#88,OPT)\0"
    "#2977.ExplAttrInfos(#88,OPT)\0"
    "#2974.Attributes(#2975,#2976,#2977)\0"
    "#2978.Supertypes(#2967)\0"
    "#2978.Composition(#2691,#2961,#2978,#2967)\0"
    "#2979.ExplAttrInfos(#56,OPT)\0"
    "#2980.ExplAttrInfos(#56,OPT)\0"
    "#2981.ExplAttrInfos(#56,OPT)\0"
    "#2982.ExplAttrInfos(#89,OPT)\0"
    "#2983.ExplAttrInfos(#89,OPT)\0"
    "#2984.ExplAttrInfos(#89,OPT)\0"
    "#2978.Attributes(#2979,#2980,#2981,#2982,#2983,#2984)\0"
    "#2985.Supertypes(#2978)\0"
    "#2985.Composition(#2691,#2961,#2978,#2985,#2967)\0"
    "#2986.ExplAttrInfos(#23,OPT)\0"
    "#2985.Attributes(#2986)\0"
    "#2987.Supertypes(#2967)\0"
    "#2987.Composition(#2691,#2961,#2987,#2967)\0"
    "#2988.ExplAttrInfos(#43,OPT)\0"
    "#2989.ExplAttrInfos(#43,OPT)\0"
    "#2990.ExplAttrInfos(#43,OPT)\0"
    "#2991.ExplAttrInfos(#194,OPT)\0"
    "#2992.ExplAttrInfos(#194,OPT)\0"
    "#2993.ExplAttrInfos(#194,OPT)\0"
    "#2987.Attributes(#2988,#2989,#2990,#2991,#2992,#2993)\0"
    "#2994.Supertypes(#2987)\0"
    "#2994.Composition(#2691,#2961,#2987,#2994,#2967)\0"
    "#2995.ExplAttrInfos(#200,OPT)\0"
    "#2994.Attributes(#2995)\0"
    "#2996.Supertypes(#2967)\0"
    "#2996.Composition(#2691,#2961,#2967,#2996)\0"
    "#2997.ExplAttrInfos(#191,OPT)\0"
    "#2998.ExplAttrInfos(#191,OPT)\0"
    "#2999.ExplAttrInfos(#191,OPT)\0"
    "#2996.Attributes(#2997,#2998,#2999)\0"
    "#3001.Supertypes(#2923)\0"
    "#3001.Composition(#1083,#838,#1108,#98,#2923,#2689,#3001)\0"
    "#3002.ExplAttrInfos(#480,OPT)\0"
    "#3003.ExplAttrInfos(#550,REQ)\0"
    "#3001.Attributes(#3002,#3003)\0"
    "#3000.Supertypes(#3001)\0"
    "#3000.Composition(#1083,#838,#1108,#98,#2923,#2689,#3000,#3001)\0"
    "#3004.Supertypes(#2923)\0"
    "#3004.Composition(#1083,#838,#1108,#98,#2923,#2689,#3004)\0"
    "#3005.Supertypes(#2698)\0"
    "#3005.Composition(#1083,#838,#1108,#98,#2698,#1206,#3005)\0"
    "#3006.ExplAttrInfos(#689,OPT)\0"
    "#3005.Attributes(#3006)\0"
    "#3007.Supertypes(#2953)\0"
    "#3007.Composition(#1083,#838,#1108,#98,#2689,#3007,#2953)\0"
    "#3008.Supertypes(#2698)\0"
    "#3008.Composition(#1083,#838,#1108,#98,#2698,#1206,#3008)\0"
    "#3009.Supertypes(#2696)\0"
    "#3009.Composition(#1083,#838,#1108,#98,#1206,#2696,#3009)\0"
    "#3010.ExplAttrInfos(#552,REQ)\0"
    "#3011.ExplAttrInfos(#90,OPT)\0"
    "#3009.Attributes(#3010,#3011)\0"
    "#3012.Supertypes(#3009)\0"
    "#3012.Composition(#1083,#838,#1108,#98,#1206,#2696,#3009,#3012)\0"
    "#3013.Supertypes(#2953)\0"
    "#3013.Composition(#1083,#838,#1108,#98,#2689,#2953,#3013)\0"
    "#3014.ExplAttrInfos(#550,REQ)\0"
    "#3013.Attributes(#3014)\0"
    "#3015.Supertypes(#984)\0"
    "#3015.Composition(#984,#3015)\0"
    "#1.Entities(#676,#1103,#1161,#2796,#2800,#1321,#1644,#2804,#2808,#2810,#2813,#2816,#2818,#98,#2820,#2822,#2826,#2828,#1645,#2830,#2577,#2571,#2831,#2835,#2839,#2846,#2848,#2850,#2852,#1151,#1153,#2854,#2855,#2414,#2859,#2868,#2874,#2876,#2877,#2878,#2880,#2884,#2886,#708,#1195,#2888,#2890,#2892,#1192,#2894,#1196,#2893,#2898,#2900,#2903,#2905,#2907,#2909,#2911,#2913,#2919,#2921,#2923,#2689,#2925,#2698,#1945,#2943,#2946,#2948,#2951,#2952,#1206,#2955,#2691,#2956,#2959,#2929,#2966,#2961,#2974,#2978,#2985,#2987,#2994,#2967,#2996,#2696,#3000,#3004,#3005,#3007,#2953,#2937,#3001,#3008,#3009,#3012,#3013,#3015)\0"
    "#3016.Supertypes(#3015)\0"
    "#3016.Composition(#984,#3016,#3015)\0"
    "#3017.Supertypes(#1642)\0"
    "#3017.Composition(#1642,#1083,#838,#1161,#98,#3017)\0"
    "#3018.ExplAttrInfos(#554,OPT)\0"
    "#3017.Attributes(#3018)\0"
    "#3019.Supertypes(#1669)\0"
    "#3019.Composition(#1669,#838,#98,#3019,#1088,#1164)\0"
    "#3020.ExplAttrInfos(#554,REQ)\0"
    "#3019.Attributes(#3020)\0"
    "#3021.Supertypes(#829)\0"
    "#3021.Composition(#829,#676,#3021,#830)\0"
    "#3022.ExplAttrInfos(#829,REQ)\0"
    "#3023.Supertypes(#1177)\0"
    "#3023.Composition(#1177,#676,#3023,#830)\0"
    "#3024.ExplAttrInfos(#1177,REQ)\0"
    "#3025.Supertypes(#1932)\0"
    "#3025.Composition(#675,#676,#708,#3025,#1932)\0"
    "#3026.ExplAttrInfos(#802,REQ)\0"
    "#3027.ExplAttrInfos(#87,OPT)\0"
    "#3028.ExplAttrInfos(#87,OPT)\0"
    "#3029.ExplAttrInfos(#704,REQ)\0"
    "#3030.Supertypes(#1961)\0"
    "#3030.Composition(#1204,#1961,#1083,#838,#1108,#98,#3030)\0"
    "#3031.ExplAttrInfos(#556,OPT)\0"
    "#3030.Attributes(#3031)\0"
    "#3033.Supertypes(#704)\0"
    "#3033.Composition(#675,#676,#704,#3033)\0"
    "#3034.ExplAttrInfos(#1147,REQ)\0"
    "#3035.ExplAttrInfos(#689,OPT)\0"
    "#3033.Attributes(#3034,#3035)\0"
    "#3032.Supertypes(#3033)\0"
    "#3032.Composition(#675,#676,#704,#3032,#3033)\0"
    "#3036.ExplAttrInfos(#685,REQ)\0"
    "#3037.ExplAttrInfos(#56,REQ)\0"
    "#3038.DerivAttrInfos(#878)\0"
    "#3032.Attributes(#3036,#3037,#3038)\0"
    "#3039.Supertypes(#3033)\0"
    "#3039.Composition(#675,#676,#704,#3039,#3033)\0"
    "#3040.ExplAttrInfos(#1365,REQ)\0"
    "#3041.DerivAttrInfos(#2147)\0"
    "#3039.Attributes(#3040,#3041)\0"
    "#3042.Supertypes(#2961)\0"
    "#3042.Composition(#2691,#2961,#3042)\0"
    "#3043.ExplAttrInfos(#3044,OPT)\0"
    "#3045.ExplAttrInfos(#3046,OPT)\0"
    "#3047.ExplAttrInfos(#83,OPT)\0"
    "#3042.Attributes(#3043,#3045,#3047)\0"
    "#3048.Supertypes(#914)\0"
    "#3048.Composition(#753,#3048,#914)\0"
    "#3049.ExplAttrInfos(#765,OPT)\0"
    "#3050.ExplAttrInfos(#765,OPT)\0"
    "#3051.ExplAttrInfos(#765,OPT)\0"
    "#3052.ExplAttrInfos(#765,OPT)\0"
    "#3053.ExplAttrInfos(#765,OPT)\0"
    "#3054.ExplAttrInfos(#1203,OPT)\0"
    "#3055.ExplAttrInfos(#502,REQ)\0"
    "#3048.Attributes(#3049,#3050,#3051,#3052,#3053,#3054,#3055)\0"
    "#3056.Supertypes(#708)\0"
    "#3056.Composition(#675,#676,#708,#3056)\0"
    "#3057.ExplAttrInfos(#802,REQ)\0"
    "#3059.ExplAttrInfos(#90,OPT)\0"
    "#3060.ExplAttrInfos(#87,OPT)\0"
    "#3061.ExplAttrInfos(#87,OPT)\0"
    "#3056.Attributes(#3057,#3058,#3059,#3060,#3061)\0"
    "#3062.Supertypes(#3056)\0"
    "#3062.Composition(#675,#676,#708,#3056,#3062)\0"
    "#3063.ExplAttrInfos(#90,OPT)\0"
    "#3062.Attributes(#3063)\0"
    "#3064.Supertypes(#1258)\0"
    "#3064.Composition(#1238,#1255,#1204,#1258,#1083,#838,#1108,#98,#3064)\0"
    "#3065.ExplAttrInfos(#560,OPT)\0"
    "#3064.Attributes(#3065)\0"
    "#3066.Supertypes(#1261)\0"
    "#3066.Composition(#1242,#1262,#1243,#1261,#838,#98,#3066,#1088,#1113)\0"
    "#3067.ExplAttrInfos(#560,REQ)\0"
    "#3066.Attributes(#3067)\0"
    "#3068.Supertypes(#1989)\0"
    "#3068.Composition(#1204,#1989,#1083,#838,#1108,#98,#3068)\0"
    "#3069.ExplAttrInfos(#562,OPT)\0"
    "#3068.Attributes(#3069)\0"
    "#3070.Supertypes(#1990)\0"
    "#3070.Composition(#1243,#1990,#838,#98,#3070,#1088,#1113)\0"
    "#3071.ExplAttrInfos(#562,OPT)\0"
    "#3070.Attributes(#3071)\0"
    "#3072.Supertypes(#1347)\0"
    "#3072.Composition(#1347,#1147,#3072)\0"
    "#3073.ExplAttrInfos(#90,REQ)\0"
    "#3074.ExplAttrInfos(#90,REQ)\0"
    "#3075.ExplAttrInfos(#90,REQ)\0"
    "#3076.ExplAttrInfos(#90,REQ)\0"
    "#3077.ExplAttrInfos(#82,OPT)\0"
    "#3078.ExplAttrInfos(#82,OPT)\0"
    "#3079.ExplAttrInfos(#82,OPT)\0"
    "#3080.ExplAttrInfos(#89,OPT)\0"
    "#3081.ExplAttrInfos(#89,OPT)\0"
    "#3072.Attributes(#3073,#3074,#3075,#3076,#3077,#3078,#3079,#3080,#3081)\0"
    "#3082.Supertypes(#1863)\0"
    "#3082.Composition(#1238,#1255,#1204,#1863,#1083,#838,#1108,#98,#3082)\0"
    "#3083.ExplAttrInfos(#564,OPT)\0"
    "#3084.Supertypes(#1866)\0"
    "#3084.Composition(#1242,#1262,#1243,#1866,#838,#98,#3084,#1088,#1113)\0"
    "#3085.ExplAttrInfos(#564,REQ)\0"
    "#3086.Supertypes(#1082)\0"
    "#3086.Composition(#1083,#838,#1082,#98,#3086)\0"
    "#3087.ExplAttrInfos(#14,OPT)\0"
    "#3088.ExplAttrInfos(#14,OPT)\0"
    "#3090.ExplAttrInfos(#6,OPT)\0"
    "#3092.Supertypes(#1645)\0"
    "#3092.Composition(#1645,#3092)\0"
    "#3093.ExplAttrInfos(#566,OPT)\0"
    "#3094.ExplAttrInfos(#31,OPT)\0"
    "#3095.ExplAttrInfos(#25,OPT)\0"
    "#3096.ExplAttrInfos(#25,OPT)\0"
    "#3097.ExplAttrInfos(#25,OPT)\0"
    "#3098.ExplAttrInfos(#25,OPT)\0"
    "#3099.ExplAttrInfos(#25,OPT)\0"
    "#3100.ExplAttrInfos(#25,OPT)\0"
    "#3101.ExplAttrInfos(#31,OPT)\0"
    "#3102.ExplAttrInfos(#31,OPT)\0"
    "#3103.ExplAttrInfos(#13,OPT)\0"
    "#3104.ExplAttrInfos(#25,OPT)\0"
    "#3105.ExplAttrInfos(#31,OPT)\0"
    "#3106.ExplAttrInfos(#25,OPT)\0"
    "#3107.ExplAttrInfos(#25,OPT)\0"
    "#3108.ExplAttrInfos(#31,OPT)\0"
    "#3109.ExplAttrInfos(#92,OPT)\0"
    "#3092.Attributes(#3093,#3094,#3095,#3096,#3097,#3098,#3099,#3100,#3101,#3102,#3103,#3104,#3105,#3106,#3107,#3108,#3109)\0"
    "#3091.ExplAttrInfos(#3092,OPT)\0"
    "#3110.ExplAttrInfos(#568,OPT)\0"
    "#3086.Attributes(#3087,#3088,#3089,#3090,#3091,#3110)\0"
    "#3111.Supertypes(#3092)\0"
    "#3111.Composition(#1645,#3092,#3111)\0"
    "#3112.ExplAttrInfos(#2535,REQ)\0"
    "#3111.Attributes(#3112)\0"
    "#3113.Supertypes(#1087)\0"
    "#3113.Composition(#838,#98,#3113,#1088,#1087)\0"
    "#3114.ExplAttrInfos(#568,REQ)\0"
    "#3115.ExplAttrInfos(#14,OPT)\0"
    "#3113.Attributes(#3114,#3115)\0"
    "#3116.Supertypes(#125)\0"
    "#3116.Composition(#125,#3116)\0"
    "#3117.ExplAttrInfos(#3118,OPT)\0"
    "#3119.ExplAttrInfos(#3120,OPT)\0"
    "#3121.ExplAttrInfos(#14,OPT)\0"
    "#3122.ExplAttrInfos(#3123,OPT)\0"
    "#3124.ExplAttrInfos(#195,OPT)\0"
    "#3125.ExplAttrInfos(#3126,OPT)\0"
    "#3116.Attributes(#3117,#3119,#3121,#3122,#3124,#3125)\0"
    "#3127.Supertypes(#2585)\0"
    "#3127.Composition(#1204,#1487,#1083,#838,#1108,#2585,#98,#3127)\0"
    "#3128.ExplAttrInfos(#574,OPT)\0"
    "#3129.ExplAttrInfos(#90,OPT)\0"
    "#3130.ExplAttrInfos(#11,OPT)\0"
    "#3131.ExplAttrInfos(#43,OPT)\0"
    "#3132.ExplAttrInfos(#95,OPT)\0"
    "#3133.ExplAttrInfos(#84,OPT)\0"
    "#3134.ExplAttrInfos(#90,OPT)\0"
    "#3135.ExplAttrInfos(#90,OPT)\0"
    "#3127.Attributes(#3128,#3129,#3130,#3131,#3132,#3133,#3134,#3135)\0"
    "#3136.Supertypes(#2585)\0"
    "#3136.Composition(#1204,#1487,#1083,#838,#1108,#2585,#98,#3136)\0"
    "#3137.ExplAttrInfos(#570,OPT)\0"
    "#3136.Attributes(#3137)\0"
    "#3138.Supertypes(#2593)\0"
    "#3138.Composition(#1490,#1243,#838,#2593,#98,#3138,#1088,#1113)\0"
    "#3139.ExplAttrInfos(#570,REQ)\0"
    "#3138.Attributes(#3139)\0"
    "#3140.Supertypes(#2585)\0"
    "#3140.Composition(#1204,#1487,#1083,#838,#1108,#2585,#98,#3140)\0"
    "#3141.ExplAttrInfos(#572,REQ)\0"
    "#3140.Attributes(#3141)\0"
    "#3142.Supertypes(#2593)\0"
    "#3142.Composition(#1490,#1243,#838,#2593,#98,#3142,#1088,#1113)\0"
    "#3143.ExplAttrInfos(#572,REQ)\0"
    "#3142.Attributes(#3143)\0"
    "#3144.Supertypes(#2593)\0"
    "#3144.Composition(#1490,#1243,#838,#2593,#98,#3144,#1088,#1113)\0"
    "#3145.ExplAttrInfos(#574,REQ)\0"
    "#3146.ExplAttrInfos(#90,OPT)\0"
    "#3147.ExplAttrInfos(#11,OPT)\0"
    "#3148.ExplAttrInfos(#90,OPT)\0"
    "#3144.Attributes(#3145,#3146,#3147,#3148)\0"
    "#3149.Supertypes(#675)\0"
    "#3149.Composition(#675,#676,#3149)\0"
    "#3150.ExplAttrInfos(#94,REQ)\0"
    "#3151.ExplAttrInfos(#693,REQ)\0"
    "#3152.ExplAttrInfos(#576,REQ)\0"
    "#3149.Attributes(#3150,#3151,#3152)\0"
    "#3153.Supertypes(#3149)\0"
    "#3153.Composition(#675,#676,#3149,#3153)\0"
    "#3154.ExplAttrInfos(#2349,REQ)\0"
    "#3155.ExplAttrInfos(#15,REQ)\0"
    "#3153.Attributes(#3154,#3155)\0"
    "#3156.Supertypes(#956)\0"
    "#3156.Composition(#756,#956,#753,#3156)\0"
    "#3157.ExplAttrInfos(#3158,REQ)\0"
    "#3159.ExplAttrInfos(#40,OPT)\0"
    "#3160.ExplAttrInfos(#41,OPT)\0"
    "#3161.ExplAttrInfos(#42,OPT)\0"
    "#3162.ExplAttrInfos(#874,REQ)\0"
    "#3156.Attributes(#3157,#3159,#3160,#3161,#3162)\0"
    "#3163.Supertypes(#2062)\0"
    "#3163.Composition(#753,#2062,#3163)\0"
    "#3164.ExplAttrInfos(#14,REQ)\0"
    "#3165.ExplAttrInfos(#3166,OPT)\0"
    "#3163.Attributes(#3164,#3165)\0"
    "#3167.Supertypes(#2062)\0"
    "#3167.Composition(#753,#2062,#3167)\0"
    "#3169.Supertypes(#753)\0"
    "#3169.Composition(#753,#3169)\0"
    "#3170.ExplAttrInfos(#3171,REQ)\0"
    "#3169.Attributes(#3170)\0"
    "#3168.ExplAttrInfos(#3172,REQ)\0"
    "#3173.ExplAttrInfos(#1177,REQ)\0"
    "#3167.Attributes(#3168,#3173)\0"
    "#3174.Supertypes(#1153)\0"
    "#3174.Composition(#984,#1153,#3174)\0"
    "#3175.Supertypes(#1743)\0"
    "#3175.Composition(#1743,#675,#676,#704,#3175)\0"
    "#3176.ExplAttrInfos(#90,REQ)\0"
    "#3177.ExplAttrInfos(#90,REQ)\0"
    "#3175.Attributes(#3176,#3177)\0"
    "#3178.Supertypes(#1268)\0"
    "#3178.Composition(#1238,#1255,#1204,#1268,#1083,#838,#1108,#98,#3178)\0"
    "#3179.ExplAttrInfos(#580,OPT)\0"
    "#3178.Attributes(#3179)\0"
    "#3180.Supertypes(#1271)\0"
    "#3180.Composition(#1242,#1262,#1243,#1271,#838,#98,#3180,#1088,#1113)\0"
    "#3181.ExplAttrInfos(#580,REQ)\0"
    "#3180.Attributes(#3181)\0"
    "#3182.Supertypes(#1291)\0"
    "#3182.Composition(#801,#802,#1291,#675,#676,#3182)\0"
    "#3183.ExplAttrInfos(#90,OPT)\0"
    "#3184.ExplAttrInfos(#90,OPT)\0"
    "#3187.ExplAttrInfos(#584,REQ)\0"
    "#3182.Attributes(#3183,#3184,#3185,#3186,#3187)\0"
    "#3188.Supertypes(#1204)\0"
    "#3188.Composition(#1204,#1083,#838,#1108,#98,#3188)\0"
    "#3189.ExplAttrInfos(#586,OPT)\0"
    "#3188.Attributes(#3189)\0"
    "#3190.Supertypes(#1243)\0"
    "#3190.Composition(#1243,#838,#98,#3190,#1088,#1113)\0"
    "#3191.ExplAttrInfos(#586,REQ)\0"
    "#3192.Supertypes(#1347)\0"
    "#3192.Composition(#1347,#1147,#3192)\0"
    "#3193.ExplAttrInfos(#90,REQ)\0"
    "#3194.ExplAttrInfos(#90,REQ)\0"
    "#3196.ExplAttrInfos(#56,REQ)\0"
    "#3192.Attributes(#3193,#3194,#3195,#3196)\0"
    "#3197.Supertypes(#710)\0"
    "#3197.Composition(#675,#676,#710,#711,#3197)\0"
    "#3198.ExplAttrInfos(#3200,OPT)\0"
    "#3201.ExplAttrInfos(#13,OPT)\0"
    "#3202.ExplAttrInfos(#3204,REQ)\0"
    "#3205.ExplAttrInfos(#3206,OPT)\0"
    "#3207.DerivAttrInfos(#6)\0"
    "#3197.Attributes(#3198,#3201,#3202,#3205,#3207)\0"
    "#3208.Supertypes(#3197)\0"
    "#3208.Composition(#675,#676,#710,#711,#3197,#3208)\0"
    "#3209.ExplAttrInfos(#3210,REQ)\0"
    "#3208.Attributes(#3209)\0"
    "#3211.Supertypes(#801)\0"
    "#3211.Composition(#801,#802,#675,#676,#3211)\0"
    "#3212.ExplAttrInfos(#802,REQ)\0"
    "#3213.ExplAttrInfos(#3214,REQ)\0"
    "#3215.ExplAttrInfos(#3216,REQ)\0"
    "#3217.ExplAttrInfos(#13,REQ)\0"
    "#3218.ExplAttrInfos(#588,REQ)\0"
    "#3211.Attributes(#3212,#3213,#3215,#3217,#3218)\0"
    "#3219.Supertypes(#1268)\0"
    "#3219.Composition(#1238,#1255,#1204,#1268,#1083,#838,#1108,#98,#3219)\0"
    "#3220.ExplAttrInfos(#590,OPT)\0"
    "#3219.Attributes(#3220)\0"
    "#3221.Supertypes(#1271)\0"
    "#3221.Composition(#1242,#1262,#1243,#1271,#838,#98,#3221,#1088,#1113)\0"
    "#3222.ExplAttrInfos(#590,REQ)\0"
    "#3221.Attributes(#3222)\0"
    "#3223.Supertypes(#1347)\0"
    "#3223.Composition(#1347,#1147,#3223)\0"
    "#3224.ExplAttrInfos(#90,REQ)\0"
    "#3225.ExplAttrInfos(#90,REQ)\0"
    "#3226.ExplAttrInfos(#90,REQ)\0"
    "#3227.ExplAttrInfos(#90,REQ)\0"
    "#3228.ExplAttrInfos(#82,OPT)\0"
    "#3229.ExplAttrInfos(#82,OPT)\0"
    "#3230.ExplAttrInfos(#89,OPT)\0"
    "#3223.Attributes(#3224,#3225,#3226,#3227,#3228,#3229,#3230)\0"
    "#3231.Supertypes(#1368)\0"
    "#3231.Composition(#801,#1368,#802,#675,#676,#3231)\0"
    "#3232.Supertypes(#1237)\0"
    "#3232.Composition(#1237,#1238,#1204,#1083,#838,#1108,#98,#3232)\0"
    "#3233.ExplAttrInfos(#594,OPT)\0"
    "#3232.Attributes(#3233)\0"
    "#3234.Supertypes(#1241)\0"
    "#3234.Composition(#1241,#1242,#1243,#838,#98,#1088,#1113,#3234)\0"
    "#3235.ExplAttrInfos(#594,REQ)\0"
    "#3234.Attributes(#3235)\0"
    "#3236.Supertypes(#1268)\0"
    "#3236.Composition(#1238,#1255,#1204,#1268,#1083,#838,#1108,#98,#3236)\0"
    "#3237.ExplAttrInfos(#596,OPT)\0"
    "#3236.Attributes(#3237)\0"
    "#3238.Supertypes(#1271)\0"
    "#3238.Composition(#1242,#1262,#1243,#1271,#838,#98,#1088,#1113,#3238)\0"
    "#3239.ExplAttrInfos(#596,REQ)\0"
    "#3238.Attributes(#3239)\0"
    "#3240.Supertypes(#1258)\0"
    "#3240.Composition(#1238,#1255,#1204,#1258,#1083,#838,#1108,#98,#3240)\0"
    "#3241.ExplAttrInfos(#598,OPT)\0"
    "#3240.Attributes(#3241)\0"
    "#3242.Supertypes(#1261)\0"
    "#3242.Composition(#1242,#1262,#1243,#1261,#838,#98,#1088,#1113,#3242)\0"
    "#3243.ExplAttrInfos(#598,REQ)\0"
    "#3242.Attributes(#3243)\0"
    "#3244.Supertypes(#1181)\0"
    "#3244.Composition(#1181,#676,#830,#3244)\0"
    "#3245.ExplAttrInfos(#832,REQ)\0"
    "#3244.Attributes(#3245)\0"
    "#3246.Supertypes(#1487)\0"
    "#3246.Composition(#1204,#1487,#1083,#838,#1108,#98,#3246)\0"
    "#3247.ExplAttrInfos(#600,OPT)\0"
    "#3246.Attributes(#3247)\0"
    "#3248.Supertypes(#1490)\0"
    "#3248.Composition(#1490,#1243,#838,#98,#1088,#1113,#3248)\0"
    "#3249.ExplAttrInfos(#600,OPT)\0"
    "#3248.Attributes(#3249)\0"
    "#3250.Supertypes(#1487)\0"
    "#3250.Composition(#1204,#1487,#1083,#838,#1108,#98,#3250)\0"
    "#3251.ExplAttrInfos(#602,OPT)\0"
    "#3250.Attributes(#3251)\0"
    "#3252.Supertypes(#1490)\0"
    "#3252.Composition(#1490,#1243,#838,#98,#1088,#1113,#3252)\0"
    "#3253.ExplAttrInfos(#602,REQ)\0"
    "#3252.Attributes(#3253)\0"
    "#3254.Supertypes(#1204)\0"
    "#3254.Composition(#1204,#1083,#838,#1108,#98,#3254)\0"
    "#3255.Supertypes(#1963)\0"
    "#3255.Composition(#1204,#1961,#1963,#1083,#838,#1108,#98,#3255)\0"
    "#3256.ExplAttrInfos(#604,OPT)\0"
    "#3255.Attributes(#3256)\0"
    "#1.Entities(#891,#3016,#3017,#3019,#3021,#3023,#704,#819,#3025,#3030,#3032,#3039,#3042,#902,#906,#911,#3048,#914,#917,#919,#1932,#3056,#3062,#3033,#3064,#3066,#1499,#3068,#3070,#3072,#1040,#1049,#1043,#3082,#3084,#3086,#3092,#3111,#3113,#3116,#3127,#3136,#3138,#3140,#3142,#3144,#710,#711,#3149,#3153,#940,#3156,#942,#946,#2062,#3163,#3167,#3169,#2067,#2547,#1059,#2557,#830,#3174,#3175,#3178,#3180,#3182,#3188,#3190,#3192,#3197,#3208,#3211,#3219,#3221,#1088,#1087,#1113,#1164,#3223,#3231,#1689,#3232,#3234,#3236,#3238,#3240,#3242,#878,#832,#3244,#1078,#3246,#3248,#3250,#3252,#3254,#973,#3255)\0"
    "#3257.Supertypes(#1414)\0"
    "#3257.Composition(#1414,#1204,#1083,#838,#1108,#98,#3257)\0"
    "#3258.ExplAttrInfos(#606,OPT)\0"
    "#3257.Attributes(#3258)\0"
    "#3259.Supertypes(#3257)\0"
    "#3259.Composition(#1414,#1204,#1083,#838,#1108,#98,#3257,#3259)\0"
    "#3260.Supertypes(#3257)\0"
    "#3260.Composition(#1414,#1204,#1083,#838,#1108,#98,#3257,#3260)\0"
    "#3261.Supertypes(#1418)\0"
    "#3261.Composition(#1418,#1243,#838,#98,#1088,#1113,#3261)\0"
    "#3262.ExplAttrInfos(#606,REQ)\0"
    "#3261.Attributes(#3262)\0"
    "#3263.Supertypes(#1254)\0"
    "#3263.Composition(#1238,#1255,#1204,#1254,#1083,#838,#1108,#98,#3263)\0"
    "#3264.ExplAttrInfos(#608,OPT)\0"
    "#3263.Attributes(#3264)\0"
    "#3265.Supertypes(#1265)\0"
    "#3265.Composition(#1242,#1262,#1243,#1265,#838,#98,#1088,#1113,#3265)\0"
    "#3266.ExplAttrInfos(#608,REQ)\0"
    "#3265.Attributes(#3266)\0"
    "#3267.Supertypes(#1414)\0"
    "#3267.Composition(#1414,#1204,#1083,#838,#1108,#98,#3267)\0"
    "#3268.ExplAttrInfos(#90,OPT)\0"
    "#3269.ExplAttrInfos(#90,OPT)\0"
    "#3270.ExplAttrInfos(#618,OPT)\0"
    "#3271.ExplAttrInfos(#620,OPT)\0"
    "#3272.ExplAttrInfos(#14,OPT)\0"
    "#3267.Attributes(#3268,#3269,#3270,#3271,#3272)\0"
    "#3273.Supertypes(#1798)\0"
    "#3273.Composition(#1798,#97,#96,#98,#3273)\0"
    "#3274.ExplAttrInfos(#90,OPT)\0"
    "#3275.ExplAttrInfos(#82,OPT)\0"
    "#3276.ExplAttrInfos(#82,OPT)\0"
    "#3277.ExplAttrInfos(#82,OPT)\0"
    "#3278.ExplAttrInfos(#84,OPT)\0"
    "#3279.ExplAttrInfos(#84,OPT)\0"
    "#3280.ExplAttrInfos(#84,OPT)\0"
    "#3281.ExplAttrInfos(#84,OPT)\0"
    "#3282.ExplAttrInfos(#1151,OPT)\0"
    "#3283.ExplAttrInfos(#56,OPT)\0"
    "#3284.ExplAttrInfos(#56,OPT)\0"
    "#3285.ExplAttrInfos(#56,OPT)\0"
    "#3273.Attributes(#3274,#3275,#3276,#3277,#3278,#3279,#3280,#3281,#3282,#3283,#3284,#3285)\0"
    "#3286.Supertypes(#1798)\0"
    "#3286.Composition(#1798,#97,#96,#98,#3286)\0"
    "#3287.ExplAttrInfos(#610,REQ)\0"
    "#3288.ExplAttrInfos(#612,REQ)\0"
    "#3289.ExplAttrInfos(#90,OPT)\0"
    "#3290.ExplAttrInfos(#90,OPT)\0"
    "#3291.ExplAttrInfos(#1151,OPT)\0"
    "#3286.Attributes(#3287,#3288,#3289,#3290,#3291)\0"
    "#3292.Supertypes(#3267)\0"
    "#3292.Composition(#1414,#1204,#1083,#838,#1108,#98,#3267,#3292)\0"
    "#3293.Supertypes(#1113)\0"
    "#3293.Composition(#838,#98,#1088,#1113,#3293)\0"
    "#3294.ExplAttrInfos(#614,REQ)\0"
    "#3295.ExplAttrInfos(#616,REQ)\0"
    "#3296.ExplAttrInfos(#13,REQ)\0"
    "#3297.ExplAttrInfos(#13,REQ)\0"
    "#3293.Attributes(#3294,#3295,#3296,#3297)\0"
    "#3298.Supertypes(#1418)\0"
    "#3298.Composition(#1418,#1243,#838,#98,#1088,#1113,#3298)\0"
    "#3299.ExplAttrInfos(#618,REQ)\0"
    "#3300.ExplAttrInfos(#620,REQ)\0"
    "#3301.ExplAttrInfos(#13,OPT)\0"
    "#3302.ExplAttrInfos(#14,OPT)\0"
    "#3298.Attributes(#3299,#3300,#3301,#3302)\0"
    "#3303.Supertypes(#1229)\0"
    "#3303.Composition(#1229,#1083,#838,#98,#3303)\0"
    "#3305.Supertypes(#1645)\0"
    "#3305.Composition(#1645,#3305)\0"
    "#3306.ExplAttrInfos(#2535,OPT)\0"
    "#3307.ExplAttrInfos(#24,OPT)\0"
    "#3308.ExplAttrInfos(#24,OPT)\0"
    "#3305.Attributes(#3306,#3307,#3308)\0"
    "#3304.ExplAttrInfos(#3309,OPT)\0"
    "#3310.ExplAttrInfos(#3311,OPT)\0"
    "#3312.ExplAttrInfos(#622,OPT)\0"
    "#3303.Attributes(#3304,#3310,#3312)\0"
    "#3313.Supertypes(#1229)\0"
    "#3313.Composition(#1229,#1083,#838,#98,#3313)\0"
    "#3314.ExplAttrInfos(#25,REQ)\0"
    "#3315.ExplAttrInfos(#3316,OPT)\0"
    "#3317.ExplAttrInfos(#14,OPT)\0"
    "#3318.ExplAttrInfos(#31,OPT)\0"
    "#3319.ExplAttrInfos(#31,OPT)\0"
    "#3320.ExplAttrInfos(#25,REQ)\0"
    "#3321.ExplAttrInfos(#25,OPT)\0"
    "#3313.Attributes(#3314,#3315,#3317,#3318,#3319,#3320,#3321)\0"
    "#3322.Supertypes(#3313)\0"
    "#3322.Composition(#1229,#1083,#838,#98,#3313,#3322)\0"
    "#3323.ExplAttrInfos(#624,OPT)\0"
    "#3322.Attributes(#3323)\0"
    "#3324.Supertypes(#3313)\0"
    "#3324.Composition(#1229,#1083,#838,#98,#3313,#3324)\0"
    "#3325.ExplAttrInfos(#626,OPT)\0"
    "#3324.Attributes(#3325)\0"
    "#3326.Supertypes(#1347)\0"
    "#3326.Composition(#1347,#1147,#3326)\0"
    "#3327.ExplAttrInfos(#90,REQ)\0"
    "#3328.ExplAttrInfos(#90,REQ)\0"
    "#3329.ExplAttrInfos(#90,REQ)\0"
    "#3330.ExplAttrInfos(#90,REQ)\0"
    "#3331.ExplAttrInfos(#82,OPT)\0"
    "#3332.ExplAttrInfos(#82,OPT)\0"
    "#3326.Attributes(#3327,#3328,#3329,#3330,#3331,#3332)\0"
    "#3333.Supertypes(#1499)\0"
    "#3333.Composition(#1335,#1083,#838,#98,#1499,#3333)\0"
    "#3334.ExplAttrInfos(#14,OPT)\0"
    "#3333.Attributes(#3334)\0"
    "#1.Entities(#3257,#3259,#3260,#3261,#3263,#3265,#3267,#3273,#3286,#3292,#3293,#3298,#3303,#3313,#3322,#3324,#3305,#3326,#3333)"};

constexpr std::uint32_t declarations[] = {
    0x03000000, // Schema(IFC4X2)
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
    0x00001B72, // EnumerationType(BELL,BREAKGLASSBUTTON,LIGHT,MANUALPULLBOX,SIREN,WHISTLE,USERDEFINED,NOTDEFINED)
    0x010008A4, // DefinedType(IFCALARMTYPEENUM,#215)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x0300000F, // DefinedType(IFCALIGNMENTTYPEENUM,#217)
    0x00001BF5, // EnumerationType(IN_PLANE_LOADING_2D,OUT_PLANE_LOADING_2D,LOADING_3D,USERDEFINED,NOTDEFINED)
    0x03000036, // DefinedType(IFCANALYSISMODELTYPEENUM,#219)
    0x00001C7C, // EnumerationType(FIRST_ORDER_THEORY,SECOND_ORDER_THEORY,THIRD_ORDER_THEORY,FULL_NONLINEAR_THEORY,USERDEFINED,NOTDEFINED)
    0x03000061, // DefinedType(IFCANALYSISTHEORYTYPEENUM,#221)
    0x00001D20, // EnumerationType(ADD,DIVIDE,MULTIPLY,SUBTRACT)
    0x0300008D, // DefinedType(IFCARITHMETICOPERATORENUM,#223)
    0x00001D7A, // EnumerationType(SITE,FACTORY,NOTDEFINED)
    0x030000B9, // DefinedType(IFCASSEMBLYPLACEENUM,#225)
    0x01000971, // EnumerationType(AMPLIFIER,CAMERA,DISPLAY,MICROPHONE,PLAYER,PROJECTOR,RECEIVER,SPEAKER,SWITCHER,TELEPHONE,TUNER,USERDEFINED,NOTDEFINED)
    0x030000E0, // DefinedType(IFCAUDIOVISUALAPPLIANCETYPEENUM,#227)
    0x00001DCA, // EnumerationType(POLYLINE_FORM,CIRCULAR_ARC,ELLIPTIC_ARC,PARABOLIC_ARC,HYPERBOLIC_ARC,UNSPECIFIED)
    0x03000112, // DefinedType(IFCBSPLINECURVEFORM,#229)
    0x01000A50, // EnumerationType(PLANE_SURF,CYLINDRICAL_SURF,CONICAL_SURF,SPHERICAL_SURF,TOROIDAL_SURF,SURF_OF_REVOLUTION,RULED_SURF,GENERALISED_CONE,QUADRIC_SURF,SURF_OF_LINEAR_EXTRUSION,UNSPECIFIED)
    0x03000138, // DefinedType(IFCBSPLINESURFACEFORM,#231)
    0x03000160, // EnumerationType(BEAM,JOIST,HOLLOWCORE,LINTEL,SPANDREL,T_BEAM,GIRDER_SEGMENT,DIAPHRAGM,PIERCAP,HATSTONE,CORNICE,EDGEBEAM,USERDEFINED,NOTDEFINED)
    0x030001F0, // DefinedType(IFCBEAMTYPEENUM,#233)
    0x03000212, // EnumerationType(FIXED_MOVEMENT,GUIDED_LONGITUDINAL,GUIDED_TRANSVERSAL,FREE_MOVEMENT,NOTDEFINED)
    0x03000272, // DefinedType(IFCBEARINGTYPEDISPLACEMENTENUM,#235)
    0x030002A3, // EnumerationType(CYLINDRICAL,SPHERICAL,ELASTOMERIC,POT,GUIDE,ROCKER,ROLLER,DISK,USERDEFINED,NOTDEFINED)
    0x0300030A, // DefinedType(IFCBEARINGTYPEENUM,#237)
    0x01000BA7, // EnumerationType(GREATERTHAN,GREATERTHANOREQUALTO,LESSTHAN,LESSTHANOREQUALTO,EQUALTO,NOTEQUALTO,INCLUDES,NOTINCLUDES,INCLUDEDIN,NOTINCLUDEDIN)
    0x0300032F, // DefinedType(IFCBENCHMARKENUM,#239)
    0x00001F38, // EnumerationType(WATER,STEAM,USERDEFINED,NOTDEFINED)
    0x03000352, // DefinedType(IFCBOILERTYPEENUM,#241)
    0x00001F90, // EnumerationType(UNION,INTERSECTION,DIFFERENCE)
    0x03000376, // DefinedType(IFCBOOLEANOPERATOR,#243)
    0x0300039B, // EnumerationType(ABUTMENT,DECK,DECK_SEGMENT,FOUNDATION,PIER,PIER_SEGMENT,PYLON,SUBSTRUCTURE,SUPERSTRUCTURE,SURFACESTRUCTURE,USERDEFINED,NOTDEFINED)
    0x0300042E, // DefinedType(IFCBRIDGEPARTTYPEENUM,#245)
    0x03000456, // EnumerationType(ARCHED,CABLE_STAYED,CANTILEVER,CULVERT,FRAMEWORK,GIRDER,SUSPENSION,TRUSS,USERDEFINED,NOTDEFINED)
    0x030004C7, // DefinedType(IFCBRIDGETYPEENUM,#247)
    0x030004EB, // EnumerationType(INSULATION,PRECASTPANEL,APRON,USERDEFINED,NOTDEFINED)
    0x03000531, // DefinedType(IFCBUILDINGELEMENTPARTTYPEENUM,#249)
    0x01000D12, // EnumerationType(COMPLEX,ELEMENT,PARTIAL,PROVISIONFORVOID,PROVISIONFORSPACE,USERDEFINED,NOTDEFINED)
    0x03000562, // DefinedType(IFCBUILDINGELEMENTPROXYTYPEENUM,#251)
    0x03000594, // EnumerationType(FENESTRATION,FOUNDATION,LOADBEARING,OUTERSHELL,SHADING,TRANSPORT,REINFORCING,PRESTRESSING,USERDEFINED,NOTDEFINED)
    0x03000616, // DefinedType(IFCBUILDINGSYSTEMTYPEENUM,#253)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x03000642, // DefinedType(IFCBURNERTYPEENUM,#255)
    0x0000203E, // EnumerationType(BEND,CROSS,REDUCER,TEE,USERDEFINED,NOTDEFINED)
    0x03000666, // DefinedType(IFCCABLECARRIERFITTINGTYPEENUM,#257)
    0x000020AE, // EnumerationType(CABLELADDERSEGMENT,CABLETRAYSEGMENT,CABLETRUNKINGSEGMENT,CONDUITSEGMENT,USERDEFINED,NOTDEFINED)
    0x03000697, // DefinedType(IFCCABLECARRIERSEGMENTTYPEENUM,#259)
    0x01000EC2, // EnumerationType(CONNECTOR,ENTRY,EXIT,JUNCTION,TRANSITION,USERDEFINED,NOTDEFINED)
    0x030006C8, // DefinedType(IFCCABLEFITTINGTYPEENUM,#261)
    0x01000F3D, // EnumerationType(BUSBARSEGMENT,CABLESEGMENT,CONDUCTORSEGMENT,CORESEGMENT,USERDEFINED,NOTDEFINED)
    0x030006F2, // DefinedType(IFCCABLESEGMENTTYPEENUM,#263)
    0x0300071C, // EnumerationType(WELL,CAISSON,USERDEFINED,NOTDEFINED)
    0x03000751, // DefinedType(IFCCAISSONFOUNDATIONTYPEENUM,#265)
    0x00002234, // EnumerationType(AIRCOOLED,WATERCOOLED,HEATRECOVERY,USERDEFINED,NOTDEFINED)
    0x03000780, // DefinedType(IFCCHILLERTYPEENUM,#267)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x030007A5, // DefinedType(IFCCHIMNEYTYPEENUM,#269)
    0x01001011, // EnumerationType(DXCOOLINGCOIL,ELECTRICHEATINGCOIL,GASHEATINGCOIL,HYDRONICCOIL,STEAMHEATINGCOIL,WATERCOOLINGCOIL,WATERHEATINGCOIL,USERDEFINED,NOTDEFINED)
    0x030007CA, // DefinedType(IFCCOILTYPEENUM,#271)
    0x030007EC, // EnumerationType(COLUMN,PILASTER,PIERSTEM,PIERSTEM_SEGMENT,STANDCOLUMN,USERDEFINED,NOTDEFINED)
    0x0300084A, // DefinedType(IFCCOLUMNTYPEENUM,#273)
    0x01001128, // EnumerationType(ANTENNA,COMPUTER,FAX,GATEWAY,MODEM,NETWORKAPPLIANCE,NETWORKBRIDGE,NETWORKHUB,PRINTER,REPEATER,ROUTER,SCANNER,USERDEFINED,NOTDEFINED)
    0x0300086E, // DefinedType(IFCCOMMUNICATIONSAPPLIANCETYPEENUM,#275)
    0x010011F2, // EnumerationType(P_COMPLEX,Q_COMPLEX)
    0x030008A3, // DefinedType(IFCCOMPLEXPROPERTYTEMPLATETYPEENUM,#277)
    0x000023A5, // EnumerationType(DYNAMIC,RECIPROCATING,ROTARY,SCROLL,TROCHOIDAL,SINGLESTAGE,BOOSTER,OPENTYPE,HERMETIC,SEMIHERMETIC,WELDEDSHELLHERMETIC,ROLLINGPISTON,ROTARYVANE,SINGLESCREW,TWINSCREW,USERDEFINED,NOTDEFINED)
    0x030008D8, // DefinedType(IFCCOMPRESSORTYPEENUM,#279)
    0x01001274, // EnumerationType(AIRCOOLED,EVAPORATIVECOOLED,WATERCOOLED,WATERCOOLEDBRAZEDPLATE,WATERCOOLEDSHELLCOIL,WATERCOOLEDSHELLTUBE,WATERCOOLEDTUBEINTUBE,USERDEFINED,NOTDEFINED)
    0x03000900, // DefinedType(IFCCONDENSERTYPEENUM,#281)
    0x0000255C, // EnumerationType(ATPATH,ATSTART,ATEND,NOTDEFINED)
    0x03000927, // DefinedType(IFCCONNECTIONTYPEENUM,#283)
    0x000025B5, // EnumerationType(HARD,SOFT,ADVISORY,USERDEFINED,NOTDEFINED)
    0x0300094F, // DefinedType(IFCCONSTRAINTENUM,#285)
    0x0100138E, // EnumerationType(DEMOLISHING,EARTHMOVING,ERECTING,HEATING,LIGHTING,PAVING,PUMPING,TRANSPORTING,USERDEFINED,NOTDEFINED)
    0x03000973, // DefinedType(IFCCONSTRUCTIONEQUIPMENTRESOURCETYPEENUM,#287)
    0x0100143F, // EnumerationType(AGGREGATES,CONCRETE,DRYWALL,FUEL,GYPSUM,MASONRY,METAL,PLASTIC,WOOD,NOTDEFINED,USERDEFINED)
    0x030009AE, // DefinedType(IFCCONSTRUCTIONMATERIALRESOURCETYPEENUM,#289)
    0x010014E4, // EnumerationType(ASSEMBLY,FORMWORK,USERDEFINED,NOTDEFINED)
    0x030009E8, // DefinedType(IFCCONSTRUCTIONPRODUCTRESOURCETYPEENUM,#291)
    0x01001557, // EnumerationType(FLOATING,PROGRAMMABLE,PROPORTIONAL,MULTIPOSITION,TWOPOSITION,USERDEFINED,NOTDEFINED)
    0x03000A21, // DefinedType(IFCCONTROLLERTYPEENUM,#293)
    0x000026CB, // EnumerationType(ACTIVE,PASSIVE,USERDEFINED,NOTDEFINED)
    0x03000A49, // DefinedType(IFCCOOLEDBEAMTYPEENUM,#295)
    0x0000272A, // EnumerationType(NATURALDRAFT,MECHANICALINDUCEDDRAFT,MECHANICALFORCEDDRAFT,USERDEFINED,NOTDEFINED)
    0x03000A71, // DefinedType(IFCCOOLINGTOWERTYPEENUM,#297)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x03000A9B, // DefinedType(IFCCOSTITEMTYPEENUM,#299)
    0x000027B6, // EnumerationType(BUDGET,COSTPLAN,ESTIMATE,TENDER,PRICEDBILLOFQUANTITIES,UNPRICEDBILLOFQUANTITIES,SCHEDULEOFRATES,USERDEFINED,NOTDEFINED)
    0x03000AC1, // DefinedType(IFCCOSTSCHEDULETYPEENUM,#301)
    0x03000AEB, // EnumerationType(CEILING,FLOORING,CLADDING,ROOFING,MOLDING,SKIRTINGBOARD,INSULATION,MEMBRANE,SLEEVING,WRAPPING,COPING,USERDEFINED,NOTDEFINED)
    0x03000B78, // DefinedType(IFCCOVERINGTYPEENUM,#303)
    0x01001732, // EnumerationType(OFFICE,SITE,USERDEFINED,NOTDEFINED)
    0x03000B9E, // DefinedType(IFCCREWRESOURCETYPEENUM,#305)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x03000BC8, // DefinedType(IFCCURTAINWALLTYPEENUM,#307)
    0x010017B9, // EnumerationType(LINEAR,LOG_LINEAR,LOG_LOG,NOTDEFINED)
    0x03000BF1, // DefinedType(IFCCURVEINTERPOLATIONENUM,#309)
    0x0100181B, // EnumerationType(BACKDRAFTDAMPER,BALANCINGDAMPER,BLASTDAMPER,CONTROLDAMPER,FIREDAMPER,FIRESMOKEDAMPER,FUMEHOODEXHAUST,GRAVITYDAMPER,GRAVITYRELIEFDAMPER,RELIEFDAMPER,SMOKEDAMPER,USERDEFINED,NOTDEFINED)
    0x03000C1D, // DefinedType(IFCDAMPERTYPEENUM,#311)
    0x00002B92, // EnumerationType(MEASURED,PREDICTED,SIMULATED,USERDEFINED,NOTDEFINED)
    0x03000C41, // DefinedType(IFCDATAORIGINENUM,#313)
    0x0100192B, // EnumerationType(ANGULARVELOCITYUNIT,AREADENSITYUNIT,COMPOUNDPLANEANGLEUNIT,DYNAMICVISCOSITYUNIT,HEATFLUXDENSITYUNIT,INTEGERCOUNTRATEUNIT,ISOTHERMALMOISTURECAPACITYUNIT,KINEMATICVISCOSITYUNIT,LINEARVELOCITYUNIT,MASSDENSITYUNIT,MASSFLOWRATEUNIT,MOISTUREDIFFUSIVITYUNIT,MOLECULARWEIGHTUNIT,SPECIFICHEATCAPACITYUNIT,THERMALADMITTANCEUNIT,THERMALCONDUCTANCEUNIT,THERMALRESISTANCEUNIT,THERMALTRANSMITTANCEUNIT,VAPORPERMEABILITYUNIT,VOLUMETRICFLOWRATEUNIT,ROTATIONALFREQUENCYUNIT,TORQUEUNIT,MOMENTOFINERTIAUNIT,LINEARMOMENTUNIT,LINEARFORCEUNIT,PLANARFORCEUNIT,MODULUSOFELASTICITYUNIT,SHEARMODULUSUNIT,LINEARSTIFFNESSUNIT,ROTATIONALSTIFFNESSUNIT,MODULUSOFSUBGRADEREACTIONUNIT,ACCELERATIONUNIT,CURVATUREUNIT,HEATINGVALUEUNIT,IONCONCENTRATIONUNIT,LUMINOUSINTENSITYDISTRIBUTIONUNIT,MASSPERLENGTHUNIT,MODULUSOFLINEARSUBGRADEREACTIONUNIT,MODULUSOFROTATIONALSUBGRADEREACTIONUNIT,PHUNIT,ROTATIONALMASSUNIT,SECTIONAREAINTEGRALUNIT,SECTIONMODULUSUNIT,SOUNDPOWERLEVELUNIT,SOUNDPOWERUNIT,SOUNDPRESSURELEVELUNIT,SOUNDPRESSUREUNIT,TEMPERATUREGRADIENTUNIT,TEMPERATURERATEOFCHANGEUNIT,THERMALEXPANSIONCOEFFICIENTUNIT,WARPINGCONSTANTUNIT,WARPINGMOMENTUNIT,USERDEFINED)
    0x03000C65, // DefinedType(IFCDERIVEDUNITENUM,#315)
    0x0000308B, // EnumerationType(POSITIVE,NEGATIVE)
    0x03000C8A, // DefinedType(IFCDIRECTIONSENSEENUM,#317)
    0x03000CB2, // EnumerationType(ANCHORPLATE,BRACKET,SHOE,EXPANSION_JOINT_DEVICE,USERDEFINED,NOTDEFINED)
    0x03000D0A, // DefinedType(IFCDISCRETEACCESSORYTYPEENUM,#319)
    0x000030D6, // EnumerationType(FORMEDDUCT,INSPECTIONCHAMBER,INSPECTIONPIT,MANHOLE,METERCHAMBER,SUMP,TRENCH,VALVECHAMBER,USERDEFINED,NOTDEFINED)
    0x03000D39, // DefinedType(IFCDISTRIBUTIONCHAMBERELEMENTTYPEENUM,#321)
    0x01001E99, // EnumerationType(CABLE,CABLECARRIER,DUCT,PIPE,USERDEFINED,NOTDEFINED)
    0x03000D71, // DefinedType(IFCDISTRIBUTIONPORTTYPEENUM,#323)
    0x01001F0C, // EnumerationType(AIRCONDITIONING,AUDIOVISUAL,CHEMICAL,CHILLEDWATER,COMMUNICATION,COMPRESSEDAIR,CONDENSERWATER,CONTROL,CONVEYING,DATA,DISPOSAL,DOMESTICCOLDWATER,DOMESTICHOTWATER,DRAINAGE,EARTHING,ELECTRICAL,ELECTROACOUSTIC,EXHAUST,FIREPROTECTION,FUEL,GAS,HAZARDOUS,HEATING,LIGHTING,LIGHTNINGPROTECTION,MUNICIPALSOLIDWASTE,OIL,OPERATIONAL,POWERGENERATION,RAINWATER,REFRIGERATION,SECURITY,SEWAGE,SIGNAL,STORMWATER,TELEPHONE,TV,VACUUM,VENT,VENTILATION,WASTEWATER,WATERSUPPLY,USERDEFINED,NOTDEFINED)
    0x03000D9F, // DefinedType(IFCDISTRIBUTIONSYSTEMENUM,#325)
    0x0000318F, // EnumerationType(PUBLIC,RESTRICTED,CONFIDENTIAL,PERSONAL,USERDEFINED,NOTDEFINED)
    0x03000DCB, // DefinedType(IFCDOCUMENTCONFIDENTIALITYENUM,#327)
    0x00003210, // EnumerationType(DRAFT,FINALDRAFT,FINAL,REVISION,NOTDEFINED)
    0x03000DFC, // DefinedType(IFCDOCUMENTSTATUSENUM,#329)
    0x0100217F, // EnumerationType(SWINGING,DOUBLE_ACTING,SLIDING,FOLDING,REVOLVING,ROLLINGUP,FIXEDPANEL,USERDEFINED,NOTDEFINED)
    0x03000E24, // DefinedType(IFCDOORPANELOPERATIONENUM,#331)
    0x00003303, // EnumerationType(LEFT,MIDDLE,RIGHT,NOTDEFINED)
    0x03000E50, // DefinedType(IFCDOORPANELPOSITIONENUM,#333)
    0x0000335C, // EnumerationType(ALUMINIUM,HIGH_GRADE_STEEL,STEEL,WOOD,ALUMINIUM_WOOD,ALUMINIUM_PLASTIC,PLASTIC,USERDEFINED,NOTDEFINED)
    0x03000E7B, // DefinedType(IFCDOORSTYLECONSTRUCTIONENUM,#335)
    0x00003402, // EnumerationType(SINGLE_SWING_LEFT,SINGLE_SWING_RIGHT,DOUBLE_DOOR_SINGLE_SWING,DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_LEFT,DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_RIGHT,DOUBLE_SWING_LEFT,DOUBLE_SWING_RIGHT,DOUBLE_DOOR_DOUBLE_SWING,SLIDING_TO_LEFT,SLIDING_TO_RIGHT,DOUBLE_DOOR_SLIDING,FOLDING_TO_LEFT,FOLDING_TO_RIGHT,DOUBLE_DOOR_FOLDING,REVOLVING,ROLLINGUP,USERDEFINED,NOTDEFINED)
    0x03000EAA, // DefinedType(IFCDOORSTYLEOPERATIONENUM,#337)
    0x0100229F, // EnumerationType(DOOR,GATE,TRAPDOOR,USERDEFINED,NOTDEFINED)
    0x03000ED6, // DefinedType(IFCDOORTYPEENUM,#339)
    0x010022FC, // EnumerationType(SINGLE_SWING_LEFT,SINGLE_SWING_RIGHT,DOUBLE_DOOR_SINGLE_SWING,DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_LEFT,DOUBLE_DOOR_SINGLE_SWING_OPPOSITE_RIGHT,DOUBLE_SWING_LEFT,DOUBLE_SWING_RIGHT,DOUBLE_DOOR_DOUBLE_SWING,SLIDING_TO_LEFT,SLIDING_TO_RIGHT,DOUBLE_DOOR_SLIDING,FOLDING_TO_LEFT,FOLDING_TO_RIGHT,DOUBLE_DOOR_FOLDING,REVOLVING,ROLLINGUP,SWING_FIXED_LEFT,SWING_FIXED_RIGHT,USERDEFINED,NOTDEFINED)
    0x03000EF8, // DefinedType(IFCDOORTYPEOPERATIONENUM,#341)
    0x0000359F, // EnumerationType(BEND,CONNECTOR,ENTRY,EXIT,JUNCTION,OBSTRUCTION,TRANSITION,USERDEFINED,NOTDEFINED)
    0x03000F23, // DefinedType(IFCDUCTFITTINGTYPEENUM,#343)
    0x0000362A, // EnumerationType(RIGIDSEGMENT,FLEXIBLESEGMENT,USERDEFINED,NOTDEFINED)
    0x03000F4C, // DefinedType(IFCDUCTSEGMENTTYPEENUM,#345)
    0x00003698, // EnumerationType(FLATOVAL,RECTANGULAR,ROUND,USERDEFINED,NOTDEFINED)
    0x03000F75, // DefinedType(IFCDUCTSILENCERTYPEENUM,#347)
    0x01002537, // EnumerationType(DISHWASHER,ELECTRICCOOKER,FREESTANDINGELECTRICHEATER,FREESTANDINGFAN,FREESTANDINGWATERHEATER,FREESTANDINGWATERCOOLER,FREEZER,FRIDGE_FREEZER,HANDDRYER,KITCHENMACHINE,MICROWAVE,PHOTOCOPIER,REFRIGERATOR,TUMBLEDRYER,VENDINGMACHINE,WASHINGMACHINE,USERDEFINED,NOTDEFINED)
    0x03000F9F, // DefinedType(IFCELECTRICAPPLIANCETYPEENUM,#349)
    0x01002680, // EnumerationType(CONSUMERUNIT,DISTRIBUTIONBOARD,MOTORCONTROLCENTRE,SWITCHBOARD,USERDEFINED,NOTDEFINED)
    0x03000FCE, // DefinedType(IFCELECTRICDISTRIBUTIONBOARDTYPEENUM,#351)
    0x000039BB, // EnumerationType(BATTERY,CAPACITORBANK,HARMONICFILTER,INDUCTORBANK,UPS,USERDEFINED,NOTDEFINED)
    0x03001005, // DefinedType(IFCELECTRICFLOWSTORAGEDEVICETYPEENUM,#353)
    0x01002754, // EnumerationType(CHP,ENGINEGENERATOR,STANDALONE,USERDEFINED,NOTDEFINED)
    0x0300103C, // DefinedType(IFCELECTRICGENERATORTYPEENUM,#355)
    0x00003B0D, // EnumerationType(DC,INDUCTION,POLYPHASE,RELUCTANCESYNCHRONOUS,SYNCHRONOUS,USERDEFINED,NOTDEFINED)
    0x0300106B, // DefinedType(IFCELECTRICMOTORTYPEENUM,#357)
    0x00003B99, // EnumerationType(TIMECLOCK,TIMEDELAY,RELAY,USERDEFINED,NOTDEFINED)
    0x03001096, // DefinedType(IFCELECTRICTIMECONTROLTYPEENUM,#359)
    0x030010C7, // EnumerationType(ACCESSORY_ASSEMBLY,ARCH,BEAM_GRID,BRACED_FRAME,GIRDER,REINFORCEMENT_UNIT,RIGID_FRAME,SLAB_FIELD,TRUSS,ABUTMENT,PIER,PYLON,CROSS_BRACING,DECK,USERDEFINED,NOTDEFINED)
    0x0300117C, // DefinedType(IFCELEMENTASSEMBLYTYPEENUM,#361)
    0x00003CC7, // EnumerationType(COMPLEX,ELEMENT,PARTIAL)
    0x030011A9, // DefinedType(IFCELEMENTCOMPOSITIONENUM,#363)
    0x0100287F, // EnumerationType(EXTERNALCOMBUSTION,INTERNALCOMBUSTION,USERDEFINED,NOTDEFINED)
    0x030011D5, // DefinedType(IFCENGINETYPEENUM,#365)
    0x00003E38, // EnumerationType(DIRECTEVAPORATIVERANDOMMEDIAAIRCOOLER,DIRECTEVAPORATIVERIGIDMEDIAAIRCOOLER,DIRECTEVAPORATIVESLINGERSPACKAGEDAIRCOOLER,DIRECTEVAPORATIVEPACKAGEDROTARYAIRCOOLER,DIRECTEVAPORATIVEAIRWASHER,INDIRECTEVAPORATIVEPACKAGEAIRCOOLER,INDIRECTEVAPORATIVEWETCOIL,INDIRECTEVAPORATIVECOOLINGTOWERORCOILCOOLER,INDIRECTDIRECTCOMBINATION,USERDEFINED,NOTDEFINED)
    0x030011F9, // DefinedType(IFCEVAPORATIVECOOLERTYPEENUM,#367)
    0x01002920, // EnumerationType(DIRECTEXPANSION,DIRECTEXPANSIONSHELLANDTUBE,DIRECTEXPANSIONTUBEINTUBE,DIRECTEXPANSIONBRAZEDPLATE,FLOODEDSHELLANDTUBE,SHELLANDCOIL,USERDEFINED,NOTDEFINED)
    0x03001228, // DefinedType(IFCEVAPORATORTYPEENUM,#369)
    0x010029F2, // EnumerationType(EVENTRULE,EVENTMESSAGE,EVENTTIME,EVENTCOMPLEX,USERDEFINED,NOTDEFINED)
    0x03001250, // DefinedType(IFCEVENTTRIGGERTYPEENUM,#371)
    0x01002A72, // EnumerationType(STARTEVENT,ENDEVENT,INTERMEDIATEEVENT,USERDEFINED,NOTDEFINED)
    0x0300127A, // DefinedType(IFCEVENTTYPEENUM,#373)
    0x01002AE3, // EnumerationType(EXTERNAL,EXTERNAL_EARTH,EXTERNAL_WATER,EXTERNAL_FIRE,USERDEFINED,NOTDEFINED)
    0x0300129D, // DefinedType(IFCEXTERNALSPATIALELEMENTTYPEENUM,#375)
    0x00004090, // EnumerationType(CENTRIFUGALFORWARDCURVED,CENTRIFUGALRADIAL,CENTRIFUGALBACKWARDINCLINEDCURVED,CENTRIFUGALAIRFOIL,TUBEAXIAL,VANEAXIAL,PROPELLORAXIAL,USERDEFINED,NOTDEFINED)
    0x030012D1, // DefinedType(IFCFANTYPEENUM,#377)
    0x01002B95, // EnumerationType(GLUE,MORTAR,WELD,USERDEFINED,NOTDEFINED)
    0x030012F2, // DefinedType(IFCFASTENERTYPEENUM,#379)
    0x01002BF4, // EnumerationType(AIRPARTICLEFILTER,COMPRESSEDAIRFILTER,ODORFILTER,OILFILTER,STRAINER,WATERFILTER,USERDEFINED,NOTDEFINED)
    0x03001318, // DefinedType(IFCFILTERTYPEENUM,#381)
    0x000041E4, // EnumerationType(BREECHINGINLET,FIREHYDRANT,HOSEREEL,SPRINKLER,SPRINKLERDEFLECTOR,USERDEFINED,NOTDEFINED)
    0x0300133C, // DefinedType(IFCFIRESUPPRESSIONTERMINALTYPEENUM,#383)
    0x00004282, // EnumerationType(SOURCE,SINK,SOURCEANDSINK,NOTDEFINED)
    0x03001371, // DefinedType(IFCFLOWDIRECTIONENUM,#385)
    0x000042DF, // EnumerationType(PRESSUREGAUGE,THERMOMETER,AMMETER,FREQUENCYMETER,POWERFACTORMETER,PHASEANGLEMETER,VOLTMETER_PEAK,VOLTMETER_RMS,USERDEFINED,NOTDEFINED)
    0x03001398, // DefinedType(IFCFLOWINSTRUMENTTYPEENUM,#387)
    0x01002D18, // EnumerationType(ENERGYMETER,GASMETER,OILMETER,WATERMETER,USERDEFINED,NOTDEFINED)
    0x030013C4, // DefinedType(IFCFLOWMETERTYPEENUM,#389)
    0x01002D90, // EnumerationType(CAISSON_FOUNDATION,FOOTING_BEAM,PAD_FOOTING,PILE_CAP,STRIP_FOOTING,USERDEFINED,NOTDEFINED)
    0x030013EB, // DefinedType(IFCFOOTINGTYPEENUM,#391)
    0x01002E20, // EnumerationType(CHAIR,TABLE,DESK,BED,FILECABINET,SHELF,SOFA,USERDEFINED,NOTDEFINED)
    0x03001410, // DefinedType(IFCFURNITURETYPEENUM,#393)
    0x03001437, // EnumerationType(TERRAIN,SOIL_BORING_POINT,USERDEFINED,NOTDEFINED)
    0x03001479, // DefinedType(IFCGEOGRAPHICELEMENTTYPEENUM,#395)
    0x00004522, // EnumerationType(GRAPH_VIEW,SKETCH_VIEW,MODEL_VIEW,PLAN_VIEW,REFLECTED_PLAN_VIEW,SECTION_VIEW,ELEVATION_VIEW,USERDEFINED,NOTDEFINED)
    0x030014A8, // DefinedType(IFCGEOMETRICPROJECTIONENUM,#397)
    0x000045D3, // EnumerationType(GLOBAL_COORDS,LOCAL_COORDS)
    0x030014D5, // DefinedType(IFCGLOBALORLOCALENUM,#399)
    0x01002F4E, // EnumerationType(RECTANGULAR,RADIAL,TRIANGULAR,IRREGULAR,USERDEFINED,NOTDEFINED)
    0x030014FC, // DefinedType(IFCGRIDTYPEENUM,#401)
    0x00004626, // EnumerationType(PLATE,SHELLANDTUBE,USERDEFINED,NOTDEFINED)
    0x0300151E, // DefinedType(IFCHEATEXCHANGERTYPEENUM,#403)
    0x0000468C, // EnumerationType(STEAMINJECTION,ADIABATICAIRWASHER,ADIABATICPAN,ADIABATICWETTEDELEMENT,ADIABATICATOMIZING,ADIABATICULTRASONIC,ADIABATICRIGIDMEDIA,ADIABATICCOMPRESSEDAIRNOZZLE,ASSISTEDELECTRIC,ASSISTEDNATURALGAS,ASSISTEDPROPANE,ASSISTEDBUTANE,ASSISTEDSTEAM,USERDEFINED,NOTDEFINED)
    0x03001549, // DefinedType(IFCHUMIDIFIERTYPEENUM,#405)
    0x01003013, // EnumerationType(CYCLONIC,GREASE,OIL,PETROL,USERDEFINED,NOTDEFINED)
    0x03001571, // DefinedType(IFCINTERCEPTORTYPEENUM,#407)
    0x0100307F, // EnumerationType(INTERNAL,EXTERNAL,EXTERNAL_EARTH,EXTERNAL_WATER,EXTERNAL_FIRE,NOTDEFINED)
    0x0300159A, // DefinedType(IFCINTERNALOREXTERNALENUM,#409)
    0x00004825, // EnumerationType(ASSETINVENTORY,SPACEINVENTORY,FURNITUREINVENTORY,USERDEFINED,NOTDEFINED)
    0x030015C6, // DefinedType(IFCINVENTORYTYPEENUM,#411)
    0x0100312C, // EnumerationType(DATA,POWER,USERDEFINED,NOTDEFINED)
    0x030015ED, // DefinedType(IFCJUNCTIONBOXTYPEENUM,#413)
    0x01003188, // EnumerationType(UNIFORM_KNOTS,QUASI_UNIFORM_KNOTS,PIECEWISE_BEZIER_KNOTS,UNSPECIFIED)
    0x03001616, // DefinedType(IFCKNOTTYPE,#415)
    0x010031FC, // EnumerationType(ADMINISTRATION,CARPENTRY,CLEANING,CONCRETE,DRYWALL,ELECTRIC,FINISHING,FLOORING,GENERAL,HVAC,LANDSCAPING,MASONRY,PAINTING,PAVING,PLUMBING,ROOFING,SITEGRADING,STEELWORK,SURVEYING,USERDEFINED,NOTDEFINED)
    0x03001634, // DefinedType(IFCLABORRESOURCETYPEENUM,#417)
    0x01003300, // EnumerationType(COMPACTFLUORESCENT,FLUORESCENT,HALOGEN,HIGHPRESSUREMERCURY,HIGHPRESSURESODIUM,LED,METALHALIDE,OLED,TUNGSTENFILAMENT,USERDEFINED,NOTDEFINED)
    0x0300165F, // DefinedType(IFCLAMPTYPEENUM,#419)
    0x0000497B, // EnumerationType(AXIS1,AXIS2,AXIS3)
    0x03001681, // DefinedType(IFCLAYERSETDIRECTIONENUM,#421)
    0x000049C9, // EnumerationType(TYPE_A,TYPE_B,TYPE_C,NOTDEFINED)
    0x030016AC, // DefinedType(IFCLIGHTDISTRIBUTIONCURVEENUM,#423)
    0x00004A2A, // EnumerationType(COMPACTFLUORESCENT,FLUORESCENT,HIGHPRESSUREMERCURY,HIGHPRESSURESODIUM,LIGHTEMITTINGDIODE,LOWPRESSURESODIUM,LOWVOLTAGEHALOGEN,MAINVOLTAGEHALOGEN,METALHALIDE,TUNGSTENFILAMENT,NOTDEFINED)
    0x030016DC, // DefinedType(IFCLIGHTEMISSIONSOURCEENUM,#425)
    0x01003446, // EnumerationType(POINTSOURCE,DIRECTIONSOURCE,SECURITYLIGHTING,USERDEFINED,NOTDEFINED)
    0x03001709, // DefinedType(IFCLIGHTFIXTURETYPEENUM,#427)
    0x010034C5, // EnumerationType(LOAD_GROUP,LOAD_CASE,LOAD_COMBINATION,USERDEFINED,NOTDEFINED)
    0x03001733, // DefinedType(IFCLOADGROUPTYPEENUM,#429)
    0x0100353A, // EnumerationType(LOGICALAND,LOGICALOR,LOGICALXOR,LOGICALNOTAND,LOGICALNOTOR)
    0x0300175A, // DefinedType(IFCLOGICALOPERATORENUM,#431)
    0x03001783, // EnumerationType(ANCHORBOLT,BOLT,DOWEL,NAIL,NAILPLATE,RIVET,SCREW,SHEARCONNECTOR,STAPLE,STUDSHEARCONNECTOR,COUPLER,USERDEFINED,NOTDEFINED)
    0x0300180D, // DefinedType(IFCMECHANICALFASTENERTYPEENUM,#433)
    0x01003661, // EnumerationType(AIRSTATION,FEEDAIRUNIT,OXYGENGENERATOR,OXYGENPLANT,VACUUMSTATION,USERDEFINED,NOTDEFINED)
    0x0300183D, // DefinedType(IFCMEDICALDEVICETYPEENUM,#435)
    0x03001868, // EnumerationType(BRACE,CHORD,COLLAR,MEMBER,MULLION,PLATE,POST,PURLIN,RAFTER,STRINGER,STRUT,STUD,STIFFENING_RIB,ARCH_SEGMENT,SUSPENSION_CABLE,SUSPENDER,STAY_CABLE,USERDEFINED,NOTDEFINED)
    0x03001921, // DefinedType(IFCMEMBERTYPEENUM,#437)
    0x00004D04, // EnumerationType(BELTDRIVE,COUPLING,DIRECTDRIVE,USERDEFINED,NOTDEFINED)
    0x03001945, // DefinedType(IFCMOTORCONNECTIONTYPEENUM,#439)
    0x00004D78, // EnumerationType(NULL)
    0x03001972, // DefinedType(IFCNULLSTYLE,#441)
    0x00004DAD, // EnumerationType(PRODUCT,PROCESS,CONTROL,RESOURCE,ACTOR,GROUP,PROJECT,NOTDEFINED)
    0x03001991, // DefinedType(IFCOBJECTTYPEENUM,#443)
    0x01003789, // EnumerationType(CODECOMPLIANCE,CODEWAIVER,DESIGNINTENT,EXTERNAL,HEALTHANDSAFETY,MERGECONFLICT,MODELVIEW,PARAMETER,REQUIREMENT,SPECIFICATION,TRIGGERCONDITION,USERDEFINED,NOTDEFINED)
    0x030019B5, // DefinedType(IFCOBJECTIVEENUM,#445)
    0x00004EC4, // EnumerationType(ASSIGNEE,ASSIGNOR,LESSEE,LESSOR,LETTINGAGENT,OWNER,TENANT,USERDEFINED,NOTDEFINED)
    0x030019D8, // DefinedType(IFCOCCUPANTTYPEENUM,#447)
    0x01003887, // EnumerationType(OPENING,RECESS,USERDEFINED,NOTDEFINED)
    0x030019FE, // DefinedType(IFCOPENINGELEMENTTYPEENUM,#449)
    0x010038EA, // EnumerationType(AUDIOVISUALOUTLET,COMMUNICATIONSOUTLET,POWEROUTLET,DATAOUTLET,TELEPHONEOUTLET,USERDEFINED,NOTDEFINED)
    0x03001A2A, // DefinedType(IFCOUTLETTYPEENUM,#451)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x03001A4E, // DefinedType(IFCPERFORMANCEHISTORYTYPEENUM,#453)
    0x00004FCB, // EnumerationType(GRILL,LOUVER,SCREEN,USERDEFINED,NOTDEFINED)
    0x03001A7E, // DefinedType(IFCPERMEABLECOVERINGOPERATIONENUM,#455)
    0x010039E8, // EnumerationType(ACCESS,BUILDING,WORK,USERDEFINED,NOTDEFINED)
    0x03001AB2, // DefinedType(IFCPERMITTYPEENUM,#457)
    0x0000503B, // EnumerationType(PHYSICAL,VIRTUAL,NOTDEFINED)
    0x03001AD6, // DefinedType(IFCPHYSICALORVIRTUALENUM,#459)
    0x00005093, // EnumerationType(CAST_IN_PLACE,COMPOSITE,PRECAST_CONCRETE,PREFAB_STEEL,USERDEFINED,NOTDEFINED)
    0x03001B01, // DefinedType(IFCPILECONSTRUCTIONENUM,#461)
    0x01003A9E, // EnumerationType(BORED,DRIVEN,JETGROUTING,COHESION,FRICTION,SUPPORT,USERDEFINED,NOTDEFINED)
    0x03001B2B, // DefinedType(IFCPILETYPEENUM,#463)
    0x0000359F, // EnumerationType(BEND,CONNECTOR,ENTRY,EXIT,JUNCTION,OBSTRUCTION,TRANSITION,USERDEFINED,NOTDEFINED)
    0x03001B4D, // DefinedType(IFCPIPEFITTINGTYPEENUM,#465)
    0x01003B44, // EnumerationType(CULVERT,FLEXIBLESEGMENT,RIGIDSEGMENT,GUTTER,SPOOL,USERDEFINED,NOTDEFINED)
    0x03001B76, // DefinedType(IFCPIPESEGMENTTYPEENUM,#467)
    0x03001B9F, // EnumerationType(CURTAIN_PANEL,SHEET,FLANGE_PLATE,WEB_PLATE,STIFFENER_PLATE,GUSSET_PLATE,COVER_PLATE,SPLICE_PLATE,BASE_PLATE,USERDEFINED,NOTDEFINED)
    0x03001C33, // DefinedType(IFCPLATETYPEENUM,#469)
    0x01003BEA, // EnumerationType(CURVE3D,PCURVE_S1,PCURVE_S2)
    0x03001C56, // DefinedType(IFCPREFERREDSURFACECURVEREPRESENTATION,#471)
    0x00005282, // EnumerationType(ADVICE_CAUTION,ADVICE_NOTE,ADVICE_WARNING,CALIBRATION,DIAGNOSTIC,SHUTDOWN,STARTUP,USERDEFINED,NOTDEFINED)
    0x03001C8F, // DefinedType(IFCPROCEDURETYPEENUM,#473)
    0x00005323, // EnumerationType(CURVE,AREA)
    0x03001CB6, // DefinedType(IFCPROFILETYPEENUM,#475)
    0x000053E2, // EnumerationType(CHANGEORDER,MAINTENANCEWORKORDER,MOVEORDER,PURCHASEORDER,WORKORDER,USERDEFINED,NOTDEFINED)
    0x03001CDB, // DefinedType(IFCPROJECTORDERTYPEENUM,#477)
    0x00005477, // EnumerationType(PROJECTED_LENGTH,TRUE_LENGTH)
    0x03001D05, // DefinedType(IFCPROJECTEDORTRUELENGTHENUM,#479)
    0x03001D34, // EnumerationType(BLISTER,DEVIATOR,USERDEFINED,NOTDEFINED)
    0x03001D6D, // DefinedType(IFCPROJECTIONELEMENTTYPEENUM,#481)
    0x01003D24, // EnumerationType(PSET_TYPEDRIVENONLY,PSET_TYPEDRIVENOVERRIDE,PSET_OCCURRENCEDRIVEN,PSET_PERFORMANCEDRIVEN,QTO_TYPEDRIVENONLY,QTO_TYPEDRIVENOVERRIDE,QTO_OCCURRENCEDRIVEN,NOTDEFINED)
    0x03001D9C, // DefinedType(IFCPROPERTYSETTEMPLATETYPEENUM,#483)
    0x01003E09, // EnumerationType(ELECTRONIC,ELECTROMAGNETIC,RESIDUALCURRENT,THERMAL,USERDEFINED,NOTDEFINED)
    0x03001DCD, // DefinedType(IFCPROTECTIVEDEVICETRIPPINGUNITTYPEENUM,#485)
    0x01003E9E, // EnumerationType(CIRCUITBREAKER,EARTHLEAKAGECIRCUITBREAKER,EARTHINGSWITCH,FUSEDISCONNECTOR,RESIDUALCURRENTCIRCUITBREAKER,RESIDUALCURRENTSWITCH,VARISTOR,USERDEFINED,NOTDEFINED)
    0x03001E07, // DefinedType(IFCPROTECTIVEDEVICETYPEENUM,#487)
    0x01003F7B, // EnumerationType(CIRCULATOR,ENDSUCTION,SPLITCASE,SUBMERSIBLEPUMP,SUMPPUMP,VERTICALINLINE,VERTICALTURBINE,USERDEFINED,NOTDEFINED)
    0x03001E35, // DefinedType(IFCPUMPTYPEENUM,#489)
    0x000056BD, // EnumerationType(HANDRAIL,GUARDRAIL,BALUSTRADE,USERDEFINED,NOTDEFINED)
    0x03001E57, // DefinedType(IFCRAILINGTYPEENUM,#491)
    0x00005728, // EnumerationType(STRAIGHT,SPIRAL,USERDEFINED,NOTDEFINED)
    0x03001E7C, // DefinedType(IFCRAMPFLIGHTTYPEENUM,#493)
    0x00005788, // EnumerationType(STRAIGHT_RUN_RAMP,TWO_STRAIGHT_RUN_RAMP,QUARTER_TURN_RAMP,TWO_QUARTER_TURN_RAMP,HALF_TURN_RAMP,SPIRAL_RAMP,USERDEFINED,NOTDEFINED)
    0x03001EA4, // DefinedType(IFCRAMPTYPEENUM,#495)
    0x0100408C, // EnumerationType(DAILY,WEEKLY,MONTHLY_BY_DAY_OF_MONTH,MONTHLY_BY_POSITION,BY_DAY_COUNT,BY_WEEKDAY_COUNT,YEARLY_BY_DAY_OF_MONTH,YEARLY_BY_POSITION)
    0x03001EC6, // DefinedType(IFCRECURRENCETYPEENUM,#497)
    0x020017F1, // EnumerationType(KILOPOINT,MILEPOINT,STATION,USERDEFINED,NOTDEFINED)
    0x03001EEE, // DefinedType(IFCREFERENTTYPEENUM,#499)
    0x0000583D, // EnumerationType(BLINN,FLAT,GLASS,MATT,METAL,MIRROR,PHONG,PLASTIC,STRAUSS,NOTDEFINED)
    0x03001F14, // DefinedType(IFCREFLECTANCEMETHODENUM,#501)
    0x01004171, // EnumerationType(MAIN,SHEAR,LIGATURE,STUD,PUNCHING,EDGE,RING,ANCHORING,USERDEFINED,NOTDEFINED)
    0x03001F3F, // DefinedType(IFCREINFORCINGBARROLEENUM,#503)
    0x0000593D, // EnumerationType(PLAIN,TEXTURED)
    0x03001F6B, // DefinedType(IFCREINFORCINGBARSURFACEENUM,#505)
    0x03001F9A, // EnumerationType(ANCHORING,EDGE,LIGATURE,MAIN,PUNCHING,RING,SHEAR,STUD,SPACEBAR,USERDEFINED,NOTDEFINED)
    0x03002001, // DefinedType(IFCREINFORCINGBARTYPEENUM,#507)
    0x00001FE4, // EnumerationType(USERDEFINED,NOTDEFINED)
    0x0300202D, // DefinedType(IFCREINFORCINGMESHTYPEENUM,#509)
    0x010042E1, // EnumerationType(FLAT_ROOF,SHED_ROOF,GABLE_ROOF,HIP_ROOF,HIPPED_GABLE_ROOF,GAMBREL_ROOF,MANSARD_ROOF,BARREL_ROOF,RAINBOW_ROOF,BUTTERFLY_ROOF,PAVILION_ROOF,DOME_ROOF,FREEFORM,USERDEFINED,NOTDEFINED)
    0x0300205A, // DefinedType(IFCROOFTYPEENUM,#511)
    0x00005CD2, // EnumerationType(EXA,PETA,TERA,GIGA,MEGA,KILO,HECTO,DECA,DECI,CENTI,MILLI,MICRO,NANO,PICO,FEMTO,ATTO)
    0x0300207C, // DefinedType(IFCSIPREFIX,#513)
    0x00005D55, // EnumerationType(AMPERE,BECQUEREL,CANDELA,COULOMB,CUBIC_METRE,DEGREE_CELSIUS,FARAD,GRAM,GRAY,HENRY,HERTZ,JOULE,KELVIN,LUMEN,LUX,METRE,MOLE,NEWTON,OHM,PASCAL,RADIAN,SECOND,SIEMENS,SIEVERT,SQUARE_METRE,STERADIAN,TESLA,VOLT,WATT,WEBER)
    0x0300209A, // DefinedType(IFCSIUNITNAME,#515)
    0x00005E5D, // EnumerationType(BATH,BIDET,CISTERN,SHOWER,SINK,SANITARYFOUNTAIN,TOILETPAN,URINAL,WASHHANDBASIN,WCSEAT,USERDEFINED,NOTDEFINED)
    0x030020BA, // DefinedType(IFCSANITARYTERMINALTYPEENUM,#517)
    0x00005F09, // EnumerationType(UNIFORM,TAPERED)
    0x030020E8, // DefinedType(IFCSECTIONTYPEENUM,#519)
    0x01004459, // EnumerationType(COSENSOR,CO2SENSOR,CONDUCTANCESENSOR,CONTACTSENSOR,FIRESENSOR,FLOWSENSOR,FROSTSENSOR,GASSENSOR,HEATSENSOR,HUMIDITYSENSOR,IDENTIFIERSENSOR,IONCONCENTRATIONSENSOR,LEVELSENSOR,LIGHTSENSOR,MOISTURESENSOR,MOVEMENTSENSOR,PHSENSOR,PRESSURESENSOR,RADIATIONSENSOR,RADIOACTIVITYSENSOR,SMOKESENSOR,SOUNDSENSOR,TEMPERATURESENSOR,WINDSENSOR,USERDEFINED,NOTDEFINED)
    0x0300210D, // DefinedType(IFCSENSORTYPEENUM,#521)
    0x010045ED, // EnumerationType(START_START,START_FINISH,FINISH_START,FINISH_FINISH,USERDEFINED,NOTDEFINED)
    0x03002131, // DefinedType(IFCSEQUENCEENUM,#523)
    0x0100466B, // EnumerationType(JALOUSIE,SHUTTER,AWNING,USERDEFINED,NOTDEFINED)
    0x03002153, // DefinedType(IFCSHADINGDEVICETYPEENUM,#525)
    0x010046D6, // EnumerationType(P_SINGLEVALUE,P_ENUMERATEDVALUE,P_BOUNDEDVALUE,P_LISTVALUE,P_TABLEVALUE,P_REFERENCEVALUE,Q_LENGTH,Q_AREA,Q_VOLUME,Q_COUNT,Q_WEIGHT,Q_TIME)
    0x0300217E, // DefinedType(IFCSIMPLEPROPERTYTEMPLATETYPEENUM,#527)
    0x030021B2, // EnumerationType(FLOOR,ROOF,LANDING,BASESLAB,APPROACH_SLAB,PAVING,WEARING,SIDEWALK,USERDEFINED,NOTDEFINED)
    0x0300221C, // DefinedType(IFCSLABTYPEENUM,#529)
    0x010047C7, // EnumerationType(SOLARCOLLECTOR,SOLARPANEL,USERDEFINED,NOTDEFINED)
    0x0300223E, // DefinedType(IFCSOLARDEVICETYPEENUM,#531)
    0x01004832, // EnumerationType(CONVECTOR,RADIATOR,USERDEFINED,NOTDEFINED)
    0x03002267, // DefinedType(IFCSPACEHEATERTYPEENUM,#533)
    0x01004896, // EnumerationType(SPACE,PARKING,GFA,INTERNAL,EXTERNAL,USERDEFINED,NOTDEFINED)
    0x03002290, // DefinedType(IFCSPACETYPEENUM,#535)
    0x01004905, // EnumerationType(CONSTRUCTION,FIRESAFETY,LIGHTING,OCCUPANCY,SECURITY,THERMAL,TRANSPORT,VENTILATION,USERDEFINED,NOTDEFINED)
    0x030022B3, // DefinedType(IFCSPATIALZONETYPEENUM,#537)
    0x000063E2, // EnumerationType(BIRDCAGE,COWL,RAINWATERHOPPER,USERDEFINED,NOTDEFINED)
    0x030022DC, // DefinedType(IFCSTACKTERMINALTYPEENUM,#539)
    0x00006453, // EnumerationType(STRAIGHT,WINDER,SPIRAL,CURVED,FREEFORM,USERDEFINED,NOTDEFINED)
    0x03002307, // DefinedType(IFCSTAIRFLIGHTTYPEENUM,#541)
    0x000064CB, // EnumerationType(STRAIGHT_RUN_STAIR,TWO_STRAIGHT_RUN_STAIR,QUARTER_WINDING_STAIR,QUARTER_TURN_STAIR,HALF_WINDING_STAIR,HALF_TURN_STAIR,TWO_QUARTER_WINDING_STAIR,TWO_QUARTER_TURN_STAIR,THREE_QUARTER_WINDING_STAIR,THREE_QUARTER_TURN_STAIR,SPIRAL_STAIR,DOUBLE_RETURN_STAIR,CURVED_RUN_STAIR,TWO_CURVED_RUN_STAIR,USERDEFINED,NOTDEFINED)
    0x03002330, // DefinedType(IFCSTAIRTYPEENUM,#543)
    0x01004A1F, // EnumerationType(CONST,LINEAR,POLYGONAL,EQUIDISTANT,SINUS,PARABOLA,DISCRETE,USERDEFINED,NOTDEFINED)
    0x03002353, // DefinedType(IFCSTRUCTURALCURVEACTIVITYTYPEENUM,#545)
    0x000066A2, // EnumerationType(RIGID_JOINED_MEMBER,PIN_JOINED_MEMBER,CABLE,TENSION_MEMBER,COMPRESSION_MEMBER,USERDEFINED,NOTDEFINED)
    0x03002388, // DefinedType(IFCSTRUCTURALCURVEMEMBERTYPEENUM,#547)
    0x01004AEA, // EnumerationType(CONST,BILINEAR,DISCRETE,ISOCONTOUR,USERDEFINED,NOTDEFINED)
    0x030023BB, // DefinedType(IFCSTRUCTURALSURFACEACTIVITYTYPEENUM,#549)
    0x00006745, // EnumerationType(BENDING_ELEMENT,MEMBRANE_ELEMENT,SHELL,USERDEFINED,NOTDEFINED)
    0x030023F2, // DefinedType(IFCSTRUCTURALSURFACEMEMBERTYPEENUM,#551)
    0x01004BA1, // EnumerationType(PURCHASE,WORK,USERDEFINED,NOTDEFINED)
    0x03002427, // DefinedType(IFCSUBCONTRACTRESOURCETYPEENUM,#553)
    0x03002458, // EnumerationType(MARK,TAG,TREATMENT,DEFECT,USERDEFINED,NOTDEFINED)
    0x0300249A, // DefinedType(IFCSURFACEFEATURETYPEENUM,#555)
    0x000067C3, // EnumerationType(POSITIVE,NEGATIVE,BOTH)
    0x030024C6, // DefinedType(IFCSURFACESIDE,#557)
    0x01004C90, // EnumerationType(CONTACTOR,DIMMERSWITCH,EMERGENCYSTOP,KEYPAD,MOMENTARYSWITCH,SELECTORSWITCH,STARTER,SWITCHDISCONNECTOR,TOGGLESWITCH,USERDEFINED,NOTDEFINED)
    0x030024E7, // DefinedType(IFCSWITCHINGDEVICETYPEENUM,#559)
    0x01004D58, // EnumerationType(PANEL,WORKSURFACE,USERDEFINED,NOTDEFINED)
    0x03002514, // DefinedType(IFCSYSTEMFURNITUREELEMENTTYPEENUM,#561)
    0x01004DC6, // EnumerationType(BASIN,BREAKPRESSURE,EXPANSION,FEEDANDEXPANSION,PRESSUREVESSEL,STORAGE,VESSEL,USERDEFINED,NOTDEFINED)
    0x03002548, // DefinedType(IFCTANKTYPEENUM,#563)
    0x01004E5D, // EnumerationType(ELAPSEDTIME,WORKTIME,NOTDEFINED)
    0x0300256A, // DefinedType(IFCTASKDURATIONENUM,#565)
    0x01004EB4, // EnumerationType(ATTENDANCE,CONSTRUCTION,DEMOLITION,DISMANTLE,DISPOSAL,INSTALLATION,LOGISTIC,MAINTENANCE,MOVE,OPERATION,REMOVAL,RENOVATION,USERDEFINED,NOTDEFINED)
    0x03002590, // DefinedType(IFCTASKTYPEENUM,#567)
    0x01004F78, // EnumerationType(COUPLER,FIXED_END,TENSIONING_END,USERDEFINED,NOTDEFINED)
    0x030025B2, // DefinedType(IFCTENDONANCHORTYPEENUM,#569)
    0x030025DC, // EnumerationType(DUCT,COUPLER,GROUTING_DUCT,TRUMPET,DIABOLO,USERDEFINED,NOTDEFINED)
    0x0300262F, // DefinedType(IFCTENDONCONDUITTYPEENUM,#571)
    0x01004FEB, // EnumerationType(BAR,COATED,STRAND,WIRE,USERDEFINED,NOTDEFINED)
    0x0300265A, // DefinedType(IFCTENDONTYPEENUM,#573)
    0x00006A13, // EnumerationType(LEFT,RIGHT,UP,DOWN)
    0x0300267E, // DefinedType(IFCTEXTPATH,#575)
    0x00006BA6, // EnumerationType(CONTINUOUS,DISCRETE,DISCRETEBINARY,PIECEWISEBINARY,PIECEWISECONSTANT,PIECEWISECONTINUOUS,NOTDEFINED)
    0x0300269C, // DefinedType(IFCTIMESERIESDATATYPEENUM,#577)
    0x01005098, // EnumerationType(CURRENT,FREQUENCY,INVERTER,RECTIFIER,VOLTAGE,USERDEFINED,NOTDEFINED)
    0x030026C8, // DefinedType(IFCTRANSFORMERTYPEENUM,#579)
    0x00006D26, // EnumerationType(DISCONTINUOUS,CONTINUOUS,CONTSAMEGRADIENT,CONTSAMEGRADIENTSAMECURVATURE)
    0x030026F1, // DefinedType(IFCTRANSITIONCODE,#581)
    0x02001ECB, // EnumerationType(BIQUADRATICPARABOLA,BLOSSCURVE,CLOTHOIDCURVE,COSINECURVE,CUBICPARABOLA,SINECURVE)
    0x03002715, // DefinedType(IFCTRANSITIONCURVETYPE,#583)
    0x0100513A, // EnumerationType(ELEVATOR,ESCALATOR,MOVINGWALKWAY,CRANEWAY,LIFTINGGEAR,USERDEFINED,NOTDEFINED)
    0x0300273E, // DefinedType(IFCTRANSPORTELEMENTTYPEENUM,#585)
    0x00006E1A, // EnumerationType(CARTESIAN,PARAMETER,UNSPECIFIED)
    0x0300276C, // DefinedType(IFCTRIMMINGPREFERENCE,#587)
    0x00006E73, // EnumerationType(FINNED,USERDEFINED,NOTDEFINED)
    0x03002794, // DefinedType(IFCTUBEBUNDLETYPEENUM,#589)
    0x00006ECA, // EnumerationType(ABSORBEDDOSEUNIT,AMOUNTOFSUBSTANCEUNIT,AREAUNIT,DOSEEQUIVALENTUNIT,ELECTRICCAPACITANCEUNIT,ELECTRICCHARGEUNIT,ELECTRICCONDUCTANCEUNIT,ELECTRICCURRENTUNIT,ELECTRICRESISTANCEUNIT,ELECTRICVOLTAGEUNIT,ENERGYUNIT,FORCEUNIT,FREQUENCYUNIT,ILLUMINANCEUNIT,INDUCTANCEUNIT,LENGTHUNIT,LUMINOUSFLUXUNIT,LUMINOUSINTENSITYUNIT,MAGNETICFLUXDENSITYUNIT,MAGNETICFLUXUNIT,MASSUNIT,PLANEANGLEUNIT,POWERUNIT,PRESSUREUNIT,RADIOACTIVITYUNIT,SOLIDANGLEUNIT,THERMODYNAMICTEMPERATUREUNIT,TIMEUNIT,VOLUMEUNIT,USERDEFINED)
    0x030027BC, // DefinedType(IFCUNITENUM,#591)
    0x01005234, // EnumerationType(ALARMPANEL,CONTROLPANEL,GASDETECTIONPANEL,INDICATORPANEL,MIMICPANEL,HUMIDISTAT,THERMOSTAT,WEATHERSTATION,USERDEFINED,NOTDEFINED)
    0x030027DA, // DefinedType(IFCUNITARYCONTROLELEMENTTYPEENUM,#593)
    0x010052F8, // EnumerationType(AIRHANDLER,AIRCONDITIONINGUNIT,DEHUMIDIFIER,SPLITSYSTEM,ROOFTOPUNIT,USERDEFINED,NOTDEFINED)
    0x0300280D, // DefinedType(IFCUNITARYEQUIPMENTTYPEENUM,#595)
    0x00007175, // EnumerationType(AIRRELEASE,ANTIVACUUM,CHANGEOVER,CHECK,COMMISSIONING,DIVERTING,DRAWOFFCOCK,DOUBLECHECK,DOUBLEREGULATING,FAUCET,FLUSHING,GASCOCK,GASTAP,ISOLATING,MIXING,PRESSUREREDUCING,PRESSURERELIEF,REGULATING,SAFETYCUTOFF,STEAMTRAP,STOPCOCK,USERDEFINED,NOTDEFINED)
    0x0300283B, // DefinedType(IFCVALVETYPEENUM,#597)
    0x0300285E, // EnumerationType(BENDING_YIELD,SHEAR_YIELD,AXIAL_YIELD,FRICTION,VISCOUS,RUBBER,USERDEFINED,NOTDEFINED)
    0x030028C4, // DefinedType(IFCVIBRATIONDAMPERTYPEENUM,#599)
    0x030028F1, // EnumerationType(COMPRESSION,SPRING,BASE,USERDEFINED,NOTDEFINED)
    0x03002931, // DefinedType(IFCVIBRATIONISOLATORTYPEENUM,#601)
    0x010053E4, // EnumerationType(CUTOUT,NOTCH,HOLE,MITER,CHAMFER,EDGE,USERDEFINED,NOTDEFINED)
    0x03002960, // DefinedType(IFCVOIDINGFEATURETYPEENUM,#603)
    0x0300298C, // EnumerationType(MOVABLE,PARAPET,PARTITIONING,PLUMBINGWALL,SHEAR,SOLIDWALL,STANDARD,POLYGONAL,ELEMENTEDWALL,RETAININGWALL,USERDEFINED,NOTDEFINED)
    0x03002A1D, // DefinedType(IFCWALLTYPEENUM,#605)
    0x01005502, // EnumerationType(FLOORTRAP,FLOORWASTE,GULLYSUMP,GULLYTRAP,ROOFDRAIN,WASTEDISPOSALUNIT,WASTETRAP,USERDEFINED,NOTDEFINED)
    0x03002A3F, // DefinedType(IFCWASTETERMINALTYPEENUM,#607)
    0x00007460, // EnumerationType(SIDEHUNGRIGHTHAND,SIDEHUNGLEFTHAND,TILTANDTURNRIGHTHAND,TILTANDTURNLEFTHAND,TOPHUNG,BOTTOMHUNG,PIVOTHORIZONTAL,PIVOTVERTICAL,SLIDINGHORIZONTAL,SLIDINGVERTICAL,REMOVABLECASEMENT,FIXEDCASEMENT,OTHEROPERATION,NOTDEFINED)
    0x03002A6A, // DefinedType(IFCWINDOWPANELOPERATIONENUM,#609)
    0x00007578, // EnumerationType(LEFT,MIDDLE,RIGHT,BOTTOM,TOP,NOTDEFINED)
    0x03002A98, // DefinedType(IFCWINDOWPANELPOSITIONENUM,#611)
    0x000075DE, // EnumerationType(ALUMINIUM,HIGH_GRADE_STEEL,STEEL,WOOD,ALUMINIUM_WOOD,PLASTIC,OTHER_CONSTRUCTION,NOTDEFINED)
    0x03002AC5, // DefinedType(IFCWINDOWSTYLECONSTRUCTIONENUM,#613)
    0x0000767B, // EnumerationType(SINGLE_PANEL,DOUBLE_PANEL_VERTICAL,DOUBLE_PANEL_HORIZONTAL,TRIPLE_PANEL_VERTICAL,TRIPLE_PANEL_BOTTOM,TRIPLE_PANEL_TOP,TRIPLE_PANEL_LEFT,TRIPLE_PANEL_RIGHT,TRIPLE_PANEL_HORIZONTAL,USERDEFINED,NOTDEFINED)
    0x03002AF6, // DefinedType(IFCWINDOWSTYLEOPERATIONENUM,#615)
    0x0100565E, // EnumerationType(WINDOW,SKYLIGHT,LIGHTDOME,USERDEFINED,NOTDEFINED)
    0x03002B24, // DefinedType(IFCWINDOWTYPEENUM,#617)
    0x0000767B, // EnumerationType(SINGLE_PANEL,DOUBLE_PANEL_VERTICAL,DOUBLE_PANEL_HORIZONTAL,TRIPLE_PANEL_VERTICAL,TRIPLE_PANEL_BOTTOM,TRIPLE_PANEL_TOP,TRIPLE_PANEL_LEFT,TRIPLE_PANEL_RIGHT,TRIPLE_PANEL_HORIZONTAL,USERDEFINED,NOTDEFINED)
    0x03002B48, // DefinedType(IFCWINDOWTYPEPARTITIONINGENUM,#619)
    0x010056F4, // EnumerationType(FIRSTSHIFT,SECONDSHIFT,THIRDSHIFT,USERDEFINED,NOTDEFINED)
    0x03002B78, // DefinedType(IFCWORKCALENDARTYPEENUM,#621)
    0x00007784, // EnumerationType(ACTUAL,BASELINE,PLANNED,USERDEFINED,NOTDEFINED)
    0x03002BA2, // DefinedType(IFCWORKPLANTYPEENUM,#623)
    0x00007784, // EnumerationType(ACTUAL,BASELINE,PLANNED,USERDEFINED,NOTDEFINED)
    0x03002BC8, // DefinedType(IFCWORKSCHEDULETYPEENUM,#625)
    0x010057B8, // SelectType(#133,#105,#103)
    0x03002BF2, // DefinedType(IFCACTORSELECT,#627)
    0x00007B0A, // Entity(IFCMEASUREWITHUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007B45, // ExplicitAttr(VALUECOMPONENT)
    0x010057F4, // SelectType(#2,#3,#5,#10,#20,#23,#30,#32,#33,#34,#35,#37,#38,#39,#43,#44,#46,#47,#49,#50,#51,#52,#53,#54,#59,#60,#61,#62,#64,#65,#67,#68,#69,#70,#72,#73,#74,#75,#76,#77,#78,#79,#80,#86,#88,#93,#95,#164,#166,#167,#168,#169,#170,#171,#173,#174,#175,#176,#177,#180,#181,#186,#187,#188,#189,#190,#194,#196,#198,#199,#200)
    0x03002C13, // DefinedType(IFCDERIVEDMEASUREVALUE,#631)
    0x0100595A, // SelectType(#4,#11,#18,#21,#22,#28,#36,#56,#66,#71,#82,#84,#85,#87,#89,#90,#91,#92,#83,#172,#191,#193,#197)
    0x03002C3C, // DefinedType(IFCMEASUREVALUE,#633)
    0x010059E7, // SelectType(#12,#13,#24,#25,#31,#48,#6,#14,#63,#7,#165,#122,#192,#156)
    0x03002C5E, // DefinedType(IFCSIMPLEVALUE,#635)
    0x03002C7F, // SelectType(#632,#634,#636)
    0x03002C9A, // DefinedType(IFCVALUE,#637)
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
    0x03002CB5, // SetType(#642,1,-1)
    0x00007F53, // ExplicitAttr(UNITTYPE)
    0x00007F94, // ExplicitAttr(USERDEFINEDTYPE)
    0x01005A97, // DerivedAttr(DIMENSIONS)
    0x00007FB2, // Entity(IFCMONETARYUNIT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007FEA, // ExplicitAttr(CURRENCY)
    0x03002CC8, // SelectType(#640,#660,#644)
    0x03002CE3, // DefinedType(IFCUNIT,#662)
    0x01005AE4, // Entity(IFCREFERENCE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01005B19, // ExplicitAttr(TYPEIDENTIFIER)
    0x01005B36, // ExplicitAttr(ATTRIBUTEIDENTIFIER)
    0x01005B58, // ExplicitAttr(INSTANCENAME)
    0x01005B73, // ExplicitAttr(LISTPOSITIONS)
    0x01005B8F, // ListType(#6,1,-1,DUPL)
    0x01005BA6, // ExplicitAttr(INNERREFERENCE)
    0x03002CFD, // SelectType(#629,#664,#638)
    0x03002D18, // DefinedType(IFCAPPLIEDVALUESELECT,#671)
    0x00008077, // Entity(IFCAXIS2PLACEMENT2D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000080B3, // Entity(IFCPLACEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000080E4, // Entity(IFCGEOMETRICREPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008127, // Entity(IFCREPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008161, // ExplicitAttr(LOCATION)
    0x00008178, // Entity(IFCCARTESIANPOINT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000081B2, // Entity(IFCPOINT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x000081DF, // ExplicitAttr(COORDINATES)
    0x01005C06, // ListType(#56,1,3,DUPL)
    0x0000850F, // DerivedAttr(DIM)
    0x0000850F, // DerivedAttr(DIM)
    0x00008210, // ExplicitAttr(REFDIRECTION)
    0x0000822B, // Entity(IFCDIRECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008260, // ExplicitAttr(DIRECTIONRATIOS)
    0x01005C1D, // ListType(#165,2,3,DUPL)
    0x0000850F, // DerivedAttr(DIM)
    0x0000829D, // Entity(IFCAXIS2PLACEMENT3D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000082D9, // ExplicitAttr(AXIS)
    0x00008210, // ExplicitAttr(REFDIRECTION)
    0x03002D40, // SelectType(#673,#689)
    0x03002D56, // DefinedType(IFCAXIS2PLACEMENT,#692)
    0x01005C6F, // SelectType(#56,#89)
    0x03002D7A, // DefinedType(IFCBENDINGPARAMETERSELECT,#694)
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
    0x03002DA6, // ListType(#717,1,-1,DUPL)
    0x02002661, // ExplicitAttr(TAGLIST)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x0000850F, // DerivedAttr(DIM)
    0x03002DBF, // SelectType(#696,#699,#702,#708,#710)
    0x03002DE4, // DefinedType(IFCBOOLEANOPERAND,#722)
    0x000084F3, // ExplicitAttr(SECONDOPERAND)
    0x0000850F, // DerivedAttr(DIM)
    0x03002DBF, // SelectType(#696,#699,#702,#708,#710)
    0x03002E08, // DefinedType(IFCBOOLEANOPERAND,#726)
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
    0x03002E2C, // SelectType(#728,#738)
    0x03002E42, // DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#744)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x01005F09, // ExplicitAttr(SORT)
    0x03002E2C, // SelectType(#728,#738)
    0x03002E75, // DefinedType(IFCCLASSIFICATIONREFERENCESELECT,#748)
    0x03002E2C, // SelectType(#728,#738)
    0x03002EA8, // DefinedType(IFCCLASSIFICATIONSELECT,#750)
    0x0000859C, // Entity(IFCCOLOURSPECIFICATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01005F79, // Entity(IFCPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x000085D7, // Entity(IFCPREDEFINEDCOLOUR,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000860F, // Entity(IFCPREDEFINEDITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x03002ED2, // SelectType(#752,#755)
    0x03002EE8, // DefinedType(IFCCOLOUR,#758)
    0x000089B0, // Entity(IFCCOLOURRGB,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000089E5, // ExplicitAttr(RED)
    0x000089F7, // ExplicitAttr(GREEN)
    0x00008A0B, // ExplicitAttr(BLUE)
    0x03002F04, // SelectType(#760,#84)
    0x03002F19, // DefinedType(IFCCOLOURORFACTOR,#764)
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
    0x03002F3D, // SelectType(#766,#771)
    0x03002F53, // DefinedType(IFCCOORDINATEREFERENCESYSTEMSELECT,#779)
    0x03002F88, // SelectType(#696,#699)
    0x03002F9E, // DefinedType(IFCCSGSELECT,#781)
    0x00008C3F, // Entity(IFCCURVESTYLEFONTANDSCALING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00008C83, // ExplicitAttr(CURVEFONT)
    0x00008B09, // Entity(IFCCURVESTYLEFONT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00008B43, // ExplicitAttr(PATTERNLIST)
    0x00008B5D, // Entity(IFCCURVESTYLEFONTPATTERN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008B9E, // ExplicitAttr(VISIBLESEGMENTLENGTH)
    0x00008BC1, // ExplicitAttr(INVISIBLESEGMENTLENGTH)
    0x03002FBD, // ListType(#789,1,-1,DUPL)
    0x00008ACE, // Entity(IFCPREDEFINEDCURVEFONT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x03002FD6, // SelectType(#786,#793)
    0x03002FEC, // DefinedType(IFCCURVESTYLEFONTSELECT,#794)
    0x00008C9B, // ExplicitAttr(CURVEFONTSCALING)
    0x03003016, // SelectType(#783,#795)
    0x0300302C, // DefinedType(IFCCURVEFONTORSCALEDCURVEFONTSELECT,#797)
    0x010061F7, // Entity(IFCCOMPOSITECURVEONSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BA87, // Entity(IFCCOMPOSITECURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008D06, // Entity(IFCBOUNDEDCURVE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008D3A, // Entity(IFCCURVE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000850F, // DerivedAttr(DIM)
    0x0000BAC1, // ExplicitAttr(SEGMENTS)
    0x0000BAD8, // Entity(IFCCOMPOSITECURVESEGMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BB19, // ExplicitAttr(TRANSITION)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x0000BB32, // ExplicitAttr(PARENTCURVE)
    0x0000850F, // DerivedAttr(DIM)
    0x03003062, // ListType(#805,1,-1,DUPL)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x0100623A, // DerivedAttr(NSEGMENTS)
    0x01006251, // DerivedAttr(CLOSEDCURVE)
    0x0100626A, // DerivedAttr(BASISSURFACE)
    0x0300307B, // SetType(#704,0,1)
    0x01006296, // Entity(IFCPCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x010062C8, // ExplicitAttr(REFERENCECURVE)
    0x010062E5, // Entity(IFCSURFACECURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100631D, // ExplicitAttr(CURVE3D)
    0x01006333, // ExplicitAttr(ASSOCIATEDGEOMETRY)
    0x0300308D, // ListType(#816,1,2,DUPL)
    0x00018F1A, // ExplicitAttr(MASTERREPRESENTATION)
    0x0100626A, // DerivedAttr(BASISSURFACE)
    0x030030A5, // SetType(#704,1,2)
    0x030030B7, // SelectType(#799,#816,#819)
    0x030030D2, // DefinedType(IFCCURVEONSURFACE,#826)
    0x00008D67, // Entity(IFCEDGECURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008D9C, // Entity(IFCEDGE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008DCC, // Entity(IFCTOPOLOGICALREPRESENTATIONITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00008E11, // ExplicitAttr(EDGESTART)
    0x00008E29, // Entity(IFCVERTEX,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008E5B, // ExplicitAttr(EDGEEND)
    0x00008E71, // ExplicitAttr(EDGEGEOMETRY)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x030030F6, // SelectType(#801,#828)
    0x0300310C, // DefinedType(IFCCURVEOREDGECURVE,#836)
    0x0000B4C2, // Entity(IFCOBJECTDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x03003132, // SelectType(#838,#97)
    0x03003147, // DefinedType(IFCDEFINITIONSELECT,#839)
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
    0x0300316D, // SetType(#628,1,-1)
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
    0x03003180, // SelectType(#841,#860)
    0x03003196, // DefinedType(IFCDOCUMENTSELECT,#863)
    0x00009C26, // Entity(IFCEXTERNALLYDEFINEDHATCHSTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000098B6, // Entity(IFCFILLAREASTYLEHATCHING,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000098F7, // ExplicitAttr(HATCHLINEAPPEARANCE)
    0x000096F3, // Entity(IFCCURVESTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009729, // Entity(IFCPRESENTATIONSTYLE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00008C83, // ExplicitAttr(CURVEFONT)
    0x00009762, // ExplicitAttr(CURVEWIDTH)
    0x01006481, // SelectType(#28,#56,#84,#90,#92,#83)
    0x030031BA, // DefinedType(IFCSIZESELECT,#873)
    0x000097BF, // ExplicitAttr(CURVECOLOUR)
    0x010064C5, // ExplicitAttr(MODELORDRAUGHTING)
    0x00009919, // ExplicitAttr(STARTOFNEXTHATCHLINE)
    0x0000999B, // Entity(IFCVECTOR,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x000099E7, // ExplicitAttr(MAGNITUDE)
    0x0000850F, // DerivedAttr(DIM)
    0x030031DA, // SelectType(#90,#878)
    0x030031EF, // DefinedType(IFCHATCHLINEDISTANCESELECT,#882)
    0x00009A41, // ExplicitAttr(POINTOFREFERENCEHATCHLINE)
    0x00009A69, // ExplicitAttr(PATTERNSTART)
    0x00009A84, // ExplicitAttr(HATCHLINEANGLE)
    0x00009AA1, // Entity(IFCFILLAREASTYLETILES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009ADF, // ExplicitAttr(TILINGPATTERN)
    0x0300321C, // ListType(#878,2,2,DUPL)
    0x00009AFB, // ExplicitAttr(TILES)
    0x0000964E, // Entity(IFCSTYLEDITEM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009684, // ExplicitAttr(ITEM)
    0x00009697, // ExplicitAttr(STYLES)
    0x000096AC, // Entity(IFCPRESENTATIONSTYLEASSIGNMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00009697, // ExplicitAttr(STYLES)
    0x00009864, // Entity(IFCFILLAREASTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000989D, // ExplicitAttr(FILLSTYLES)
    0x03003234, // SelectType(#759,#865,#866,#887)
    0x03003254, // DefinedType(IFCFILLSTYLESELECT,#898)
    0x03003279, // SetType(#899,1,-1)
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
    0x01006597, // DerivedAttr(SCL)
    0x0000850F, // DerivedAttr(DIM)
    0x010065A8, // DerivedAttr(U)
    0x0300328C, // ListType(#685,2,2,DUPL)
    0x00018945, // ExplicitAttr(PARAMETER)
    0x01005EA8, // ListType(#48,1,-1,DUPL)
    0x030032A4, // ListType(#919,1,-1,DUPL)
    0x030032BD, // SelectType(#905,#906,#911,#914,#917)
    0x030032E2, // DefinedType(IFCSURFACESTYLEELEMENTSELECT,#937)
    0x03003311, // SetType(#938,1,5)
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
    0x03003323, // SelectType(#955,#956)
    0x03003339, // DefinedType(IFCTEXTFONTSELECT,#957)
    0x010064C5, // ExplicitAttr(MODELORDRAUGHTING)
    0x0300335D, // SelectType(#868,#896,#442,#902,#940)
    0x03003382, // DefinedType(IFCPRESENTATIONSTYLESELECT,#960)
    0x030033AF, // SetType(#961,1,-1)
    0x030033C2, // SelectType(#869,#894)
    0x030033D8, // DefinedType(IFCSTYLEASSIGNMENTSELECT,#963)
    0x03003403, // SetType(#964,1,-1)
    0x00007836, // ExplicitAttr(NAME)
    0x03003416, // SetType(#891,1,-1)
    0x00009C0C, // ExplicitAttr(TILINGSCALE)
    0x03003234, // SelectType(#759,#865,#866,#887)
    0x03003429, // DefinedType(IFCFILLSTYLESELECT,#969)
    0x0300344E, // SelectType(#802,#679,#704)
    0x03003469, // DefinedType(IFCGEOMETRICSETSELECT,#971)
    0x00011657, // Entity(IFCVIRTUALGRIDINTERSECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001169A, // ExplicitAttr(INTERSECTINGAXES)
    0x0001155A, // Entity(IFCGRIDAXIS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001158E, // ExplicitAttr(AXISTAG)
    0x000115A4, // ExplicitAttr(AXISCURVE)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x03003491, // ListType(#975,2,2,DUPL)
    0x000116D2, // ExplicitAttr(OFFSETDISTANCES)
    0x010067D4, // ListType(#56,2,3,DUPL)
    0x030034A9, // SelectType(#685,#973)
    0x030034BF, // DefinedType(IFCGRIDPLACEMENTDIRECTIONSELECT,#982)
    0x01006833, // Entity(IFCREPRESENTATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000A634, // ExplicitAttr(CONTEXTOFITEMS)
    0x0000A6CC, // ExplicitAttr(REPRESENTATIONIDENTIFIER)
    0x0000A6F3, // ExplicitAttr(REPRESENTATIONTYPE)
    0x0000A714, // ExplicitAttr(ITEMS)
    0x030034F1, // SetType(#676,1,-1)
    0x03003504, // SelectType(#984,#676)
    0x0300351A, // DefinedType(IFCLAYEREDITEM,#990)
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
    0x0300353B, // SelectType(#992,#999)
    0x03003551, // DefinedType(IFCLIBRARYSELECT,#1003)
    0x0000A89F, // Entity(IFCLIGHTINTENSITYDISTRIBUTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A8E5, // ExplicitAttr(LIGHTDISTRIBUTIONCURVE)
    0x0000A90A, // ExplicitAttr(DISTRIBUTIONDATA)
    0x0000A929, // Entity(IFCLIGHTDISTRIBUTIONDATA,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000A96A, // ExplicitAttr(MAINPLANEANGLE)
    0x0000A987, // ExplicitAttr(SECONDARYPLANEANGLE)
    0x01006923, // ListType(#89,1,-1,DUPL)
    0x0000A9C1, // ExplicitAttr(LUMINOUSINTENSITY)
    0x0100693B, // ListType(#65,1,-1,DUPL)
    0x03003575, // ListType(#1008,1,-1,DUPL)
    0x0300358F, // SelectType(#739,#1005)
    0x030035A6, // DefinedType(IFCLIGHTDISTRIBUTIONDATASOURCESELECT,#1015)
    0x010069B9, // Entity(IFCMATERIALDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000AA93, // Entity(IFCMATERIALLIST,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000AACB, // ExplicitAttr(MATERIALS)
    0x0000AA5F, // Entity(IFCMATERIAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0001042D, // ExplicitAttr(CATEGORY)
    0x030035DE, // ListType(#1020,1,-1,DUPL)
    0x01006A0C, // Entity(IFCMATERIALUSAGEDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x030035F8, // SelectType(#1017,#1018,#1025)
    0x03003616, // DefinedType(IFCMATERIALSELECT,#1026)
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
    0x0300363B, // ListType(#1028,1,-1,DUPL)
    0x0000AD9F, // Entity(IFCTABLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x0000ADD0, // ExplicitAttr(ROWS)
    0x0000ADE3, // Entity(IFCTABLEROW,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000AE17, // ExplicitAttr(ROWCELLS)
    0x03003655, // ListType(#638,1,-1,DUPL)
    0x0000AE47, // ExplicitAttr(ISHEADING)
    0x0300366E, // ListType(#1043,1,-1,DUPL)
    0x01006B11, // ExplicitAttr(COLUMNS)
    0x01006B27, // Entity(IFCTABLECOLUMN,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C5B4, // ExplicitAttr(IDENTIFIER)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x01006B5E, // ExplicitAttr(REFERENCEPATH)
    0x03003688, // ListType(#1049,1,-1,DUPL)
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
    0x030036A2, // SelectType(#1028,#629,#664,#1040,#1059,#638)
    0x030036CF, // DefinedType(IFCMETRICVALUESELECT,#1068)
    0x01006C45, // SelectType(#13,#75)
    0x030036F7, // DefinedType(IFCMODULUSOFROTATIONALSUBGRADEREACTIONSELECT,#1070)
    0x01006C99, // SelectType(#13,#76)
    0x03003737, // DefinedType(IFCMODULUSOFSUBGRADEREACTIONSELECT,#1072)
    0x01006CE3, // SelectType(#13,#74)
    0x0300376D, // DefinedType(IFCMODULUSOFTRANSLATIONALSUBGRADEREACTIONSELECT,#1074)
    0x030037B0, // SelectType(#125,#1028,#739,#1017,#133,#105,#103,#1040,#1059)
    0x030037ED, // DefinedType(IFCOBJECTREFERENCESELECT,#1076)
    0x0000B140, // Entity(IFCVERTEXPOINT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B177, // ExplicitAttr(VERTEXGEOMETRY)
    0x03003819, // SelectType(#679,#1078)
    0x03003830, // DefinedType(IFCPOINTORVERTEXPOINT,#1080)
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
    0x03003859, // SelectType(#1082,#1087)
    0x03003871, // DefinedType(IFCPROCESSSELECT,#1095)
    0x0000F8C9, // Entity(IFCPRODUCTDEFINITIONSHAPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01006E89, // Entity(IFCPRODUCTREPRESENTATION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000B80D, // ExplicitAttr(REPRESENTATIONS)
    0x03003895, // ListType(#984,1,-1,DUPL)
    0x0000BE96, // Entity(IFCREPRESENTATIONMAP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BED3, // ExplicitAttr(MAPPINGORIGIN)
    0x0000BEEF, // ExplicitAttr(MAPPEDREPRESENTATION)
    0x030038AE, // SelectType(#1097,#1103)
    0x030038C6, // DefinedType(IFCPRODUCTREPRESENTATIONSELECT,#1106)
    0x0000B465, // Entity(IFCPRODUCT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B75A, // ExplicitAttr(OBJECTPLACEMENT)
    0x0000B778, // Entity(IFCOBJECTPLACEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00011FF3, // ExplicitAttr(PLACEMENTRELTO)
    0x0000B7AF, // ExplicitAttr(REPRESENTATION)
    0x0000BD3D, // Entity(IFCTYPEPRODUCT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BE75, // ExplicitAttr(REPRESENTATIONMAPS)
    0x02003C39, // ListType(#1103,1,-1,DUPL)
    0x0000B873, // ExplicitAttr(TAG)
    0x030038F8, // SelectType(#1108,#1113)
    0x03003910, // DefinedType(IFCPRODUCTSELECT,#1117)
    0x01006F7F, // SelectType(#96,#163)
    0x03003934, // DefinedType(IFCPROPERTYSETDEFINITIONSELECT,#1119)
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
    0x03003966, // ListType(#1153,1,-1,DUPL)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000F87C, // ExplicitAttr(PRODUCTDEFINITIONAL)
    0x0000F89E, // ExplicitAttr(PARTOFPRODUCTDEFINITIONSHAPE)
    0x03003980, // SelectType(#116,#1028,#1121,#1131,#1139,#1141,#729,#739,#1017,#133,#105,#103,#1144,#1147,#1150,#1151,#1059)
    0x030039EC, // DefinedType(IFCRESOURCEOBJECTSELECT,#1159)
    0x0000E735, // Entity(IFCRESOURCE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x0100714E, // Entity(IFCTYPERESOURCE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01000369, // ExplicitAttr(IDENTIFICATION)
    0x01006DE2, // ExplicitAttr(LONGDESCRIPTION)
    0x01007182, // ExplicitAttr(RESOURCETYPE)
    0x03003A17, // SelectType(#1161,#1164)
    0x03003A2F, // DefinedType(IFCRESOURCESELECT,#1168)
    0x010071DA, // SelectType(#13,#168)
    0x03003A54, // DefinedType(IFCROTATIONALSTIFFNESSSELECT,#1170)
    0x0100721F, // SelectType(#9,#58)
    0x03003A84, // DefinedType(IFCSEGMENTINDEXSELECT,#1172)
    0x0000B1D2, // Entity(IFCCLOSEDSHELL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B209, // Entity(IFCCONNECTEDFACESET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B245, // ExplicitAttr(CFSFACES)
    0x0000B25C, // Entity(IFCFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B28C, // ExplicitAttr(BOUNDS)
    0x0000B2A1, // Entity(IFCFACEBOUND,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B2D6, // ExplicitAttr(BOUND)
    0x0000B2EA, // Entity(IFCLOOP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x03003AAD, // SetType(#1179,1,-1)
    0x03003AC1, // SetType(#1177,1,-1)
    0x0000B340, // Entity(IFCOPENSHELL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x03003AD5, // SelectType(#1174,#1185)
    0x03003AED, // DefinedType(IFCSHELL,#1186)
    0x03003B09, // SelectType(#1174,#708)
    0x03003B20, // DefinedType(IFCSOLIDORSHELL,#1188)
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
    0x03003B43, // SelectType(#1190,#1195)
    0x03003B5B, // DefinedType(IFCSPACEBOUNDARYSELECT,#1200)
    0x010073F2, // SelectType(#178,#179)
    0x03003B85, // DefinedType(IFCSPECULARHIGHLIGHTSELECT,#1202)
    0x0000B844, // Entity(IFCELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000B873, // ExplicitAttr(TAG)
    0x0000B42F, // Entity(IFCSTRUCTURALITEM,ABSTRACT,SIMPLE,INDEPENDENT)
    0x03003BB3, // SelectType(#1204,#1206)
    0x03003BCB, // DefinedType(IFCSTRUCTURALACTIVITYASSIGNMENTSELECT,#1207)
    0x0000B924, // Entity(IFCFACEBASEDSURFACEMODEL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B965, // ExplicitAttr(FBSMFACES)
    0x03003C04, // SetType(#1175,1,-1)
    0x0000850F, // DerivedAttr(DIM)
    0x0000B8D3, // Entity(IFCFACESURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000B90A, // ExplicitAttr(FACESURFACE)
    0x00008E8C, // ExplicitAttr(SAMESENSE)
    0x03003C18, // SelectType(#1209,#1213,#704)
    0x03003C35, // DefinedType(IFCSURFACEORFACESURFACE,#1216)
    0x010074E3, // SelectType(#31,#83)
    0x03003C60, // DefinedType(IFCTIMEORRATIOSELECT,#1218)
    0x0100751F, // SelectType(#13,#61)
    0x03003C88, // DefinedType(IFCTRANSLATIONALSTIFFNESSSELECT,#1220)
    0x03003CBB, // SelectType(#678,#87)
    0x03003CD0, // DefinedType(IFCTRIMMINGSELECT,#1222)
    0x03003CF5, // SelectType(#685,#878)
    0x03003D0B, // DefinedType(IFCVECTORORDIRECTION,#1224)
    0x010075DE, // SelectType(#13,#200)
    0x03003D33, // DefinedType(IFCWARPINGSTIFFNESSSELECT,#1226)
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
    0x03003D60, // SetType(#1174,1,-1)
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
    0x03003DB8, // ListType(#1285,1,-1,DUPL)
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
    0x03003DD2, // ListType(#1297,1,-1,DUPL)
    0x02003A71, // Entity(IFCALIGNMENTCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003AAB, // ExplicitAttr(HORIZONTAL)
    0x02003AC4, // ExplicitAttr(VERTICAL)
    0x0000B873, // ExplicitAttr(TAG)
    0x0000C237, // Entity(IFCANNOTATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C26D, // Entity(IFCANNOTATIONFILLAREA,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C2AB, // ExplicitAttr(OUTERBOUNDARY)
    0x0000C2C7, // ExplicitAttr(INNERBOUNDARIES)
    0x03003DEC, // SetType(#802,1,-1)
    0x0000C6EA, // Entity(IFCAPPROVALRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010077FB, // Entity(IFCRESOURCELEVELRELATIONSHIP,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x0000C748, // ExplicitAttr(RELATINGAPPROVAL)
    0x0100783C, // ExplicitAttr(RELATEDAPPROVALS)
    0x0100921A, // SetType(#1121,1,-1)
    0x0000C767, // Entity(IFCARBITRARYCLOSEDPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C812, // ExplicitAttr(OUTERCURVE)
    0x0000C82B, // Entity(IFCARBITRARYOPENPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C86E, // ExplicitAttr(CURVE)
    0x0000C882, // Entity(IFCARBITRARYPROFILEDEFWITHVOIDS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000C8CA, // ExplicitAttr(INNERCURVES)
    0x03003DEC, // SetType(#802,1,-1)
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
    0x010079E2, // DerivedAttr(Z)
    0x0000CC44, // Entity(IFCBSPLINECURVE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000CC78, // ExplicitAttr(DEGREE)
    0x0000CC8D, // ExplicitAttr(CONTROLPOINTSLIST)
    0x03003DFF, // ListType(#678,2,-1,DUPL)
    0x0000CCC6, // ExplicitAttr(CURVEFORM)
    0x0000CCDE, // ExplicitAttr(CLOSEDCURVE)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x01007A0A, // DerivedAttr(UPPERINDEXONCONTROLPOINTS)
    0x01007A31, // DerivedAttr(CONTROLPOINTS)
    0x03003E18, // ArrayType(#678,0,0,DUPL,REQ)
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
    0x03003DFF, // ListType(#678,2,-1,DUPL)
    0x03003E35, // ListType(#1390,2,-1,DUPL)
    0x01007BF6, // ExplicitAttr(SURFACEFORM)
    0x01007C10, // ExplicitAttr(UCLOSED)
    0x01007C26, // ExplicitAttr(VCLOSED)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x01007C3C, // DerivedAttr(UUPPER)
    0x01007C50, // DerivedAttr(VUPPER)
    0x01007A31, // DerivedAttr(CONTROLPOINTS)
    0x03003E18, // ArrayType(#678,0,0,DUPL,REQ)
    0x03003E4F, // ArrayType(#1399,0,0,DUPL,REQ)
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
    0x0000CD28, // Entity(IFCBUILDINGELEMENT,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x01007D5B, // Entity(IFCBEAMSTANDARDCASE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CD5F, // Entity(IFCBEAMTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000CD93, // Entity(IFCBUILDINGELEMENTTYPE,ABSTRACT,SIMPLE,INDEPENDENT)
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
    0x03003F3D, // Entity(IFCBRIDGEPART,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x03003F73, // Entity(IFCFACILITYPART,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x030040A1, // ListType(#1540,1,-1,DUPL)
    0x02002661, // ExplicitAttr(TAGLIST)
    0x01000386, // ListType(#14,1,-1,DUPL)
    0x0000D942, // Entity(IFCCARTESIANTRANSFORMATIONOPERATOR2DNONUNIFORM,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D999, // ExplicitAttr(SCALE2)
    0x01008202, // DerivedAttr(SCL2)
    0x0000D9AE, // Entity(IFCCARTESIANTRANSFORMATIONOPERATOR3D,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000D9FB, // ExplicitAttr(AXIS3)
    0x010065A8, // DerivedAttr(U)
    0x030040BB, // ListType(#685,3,3,DUPL)
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
    0x030040D3, // ListType(#1585,1,-1,DUPL)
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
    0x030040ED, // SetType(#1597,1,-1)
    0x010084DE, // Entity(IFCCOMPLEXPROPERTYTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01008521, // Entity(IFCPROPERTYTEMPLATE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01008559, // Entity(IFCPROPERTYTEMPLATEDEFINITION,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000DEFE, // ExplicitAttr(USAGENAME)
    0x0100859B, // ExplicitAttr(TEMPLATETYPE)
    0x010085B6, // ExplicitAttr(HASPROPERTYTEMPLATES)
    0x03004101, // SetType(#1604,1,-1)
    0x0000DF32, // Entity(IFCCOMPOSITEPROFILEDEF,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DF71, // ExplicitAttr(PROFILES)
    0x03004115, // SetType(#1147,2,-1)
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
    0x0300363B, // ListType(#1028,1,-1,DUPL)
    0x0000E7C4, // ExplicitAttr(BASEQUANTITY)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0100887C, // Entity(IFCCONSTRUCTIONEQUIPMENTRESOURCETYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010088C9, // Entity(IFCCONSTRUCTIONRESOURCETYPE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01008864, // ExplicitAttr(BASECOSTS)
    0x0300363B, // ListType(#1028,1,-1,DUPL)
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
    0x03004129, // SetType(#772,1,-1)
    0x00013758, // ExplicitAttr(UNITSINCONTEXT)
    0x00013775, // Entity(IFCUNITASSIGNMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000137AF, // ExplicitAttr(UNITS)
    0x0300413C, // SetType(#663,1,-1)
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
    0x0300414F, // ListType(#1338,1,-1,DUPL)
    0x01008B8C, // ExplicitAttr(COSTQUANTITIES)
    0x03004169, // ListType(#1144,1,-1,DUPL)
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
    0x03004183, // SetType(#802,0,-1)
    0x01008C12, // Entity(IFCCURVEBOUNDEDSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x01008C51, // ExplicitAttr(BOUNDARIES)
    0x03004196, // SetType(#1438,1,-1)
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
    0x030041AA, // SetType(#841,1,-1)
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
    0x01008F8D, // DerivedAttr(EDGESTART)
    0x01008FA4, // DerivedAttr(EDGEEND)
    0x030041BD, // ListType(#1847,1,-1,DUPL)
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
    0x01007487, // SetType(#1144,1,-1)
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
    0x030040ED, // SetType(#1597,1,-1)
    0x010094C4, // Entity(IFCEXTERNALREFERENCERELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100950D, // ExplicitAttr(RELATINGREFERENCE)
    0x0100952D, // ExplicitAttr(RELATEDRESOURCEOBJECTS)
    0x030041D7, // SetType(#1160,1,-1)
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
    0x03003D60, // SetType(#1174,1,-1)
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
    0x030041EB, // SetType(#972,1,-1)
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
    0x00011516, // Entity(IFCGRID,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011546, // ExplicitAttr(UAXES)
    0x030041FE, // ListType(#975,1,-1,DUPL)
    0x000115D6, // ExplicitAttr(VAXES)
    0x030041FE, // ListType(#975,1,-1,DUPL)
    0x000115EA, // ExplicitAttr(WAXES)
    0x030041FE, // ListType(#975,1,-1,DUPL)
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
    0x03004217, // ListType(#1173,1,-1,DUPL)
    0x0000BB65, // ExplicitAttr(SELFINTERSECT)
    0x010099B4, // Entity(IFCINDEXEDPOLYGONALFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x010099F4, // ExplicitAttr(COORDINDEX)
    0x01009A0D, // ListType(#7,3,-1,DUPL)
    0x01009A24, // Entity(IFCINDEXEDPOLYGONALFACEWITHVOIDS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009A6D, // ExplicitAttr(INNERCOORDINDICES)
    0x01009A0D, // ListType(#7,3,-1,DUPL)
    0x03004231, // ListType(#2059,1,-1,DUPL)
    0x01009ABE, // Entity(IFCINDEXEDTEXTUREMAP,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0000C3D8, // Entity(IFCTEXTURECOORDINATE,ABSTRACT,SIMPLE,INDEPENDENT)
    0x01009AF7, // ExplicitAttr(MAPS)
    0x030032A4, // ListType(#919,1,-1,DUPL)
    0x010098EA, // ExplicitAttr(MAPPEDTO)
    0x01009B0A, // ExplicitAttr(TEXCOORDS)
    0x01009B22, // Entity(IFCTEXTUREVERTEXLIST,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009B5F, // ExplicitAttr(TEXCOORDSLIST)
    0x01009B7B, // ListType(#87,2,2,DUPL)
    0x0300424B, // ListType(#2069,1,-1,DUPL)
    0x01009BAC, // Entity(IFCINDEXEDTRIANGLETEXTUREMAP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x01009BF1, // ExplicitAttr(TEXCOORDINDEX)
    0x01000030, // ListType(#7,3,3,DUPL)
    0x03004265, // ListType(#2073,1,-1,DUPL)
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
    0x03003655, // ListType(#638,1,-1,DUPL)
    0x0300427F, // ListType(#2090,1,-1,DUPL)
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
    0x03004299, // ExplicitAttr(PLACEMENTMEASUREDALONG)
    0x00012990, // ExplicitAttr(DISTANCE)
    0x000099CD, // ExplicitAttr(ORIENTATION)
    0x02003EA9, // Entity(IFCORIENTATIONEXPRESSION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02003EEA, // ExplicitAttr(LATERALAXISDIRECTION)
    0x02003F0D, // ExplicitAttr(VERTICALAXISDIRECTION)
    0x02003F31, // ExplicitAttr(CARTESIANPOSITION)
    0x00011FB9, // Entity(IFCLOCALPLACEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
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
    0x030042BE, // SetType(#751,1,-1)
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
    0x030042D1, // SetType(#2175,1,-1)
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
    0x030042E5, // ListType(#2188,1,-1,DUPL)
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
    0x030042FF, // ListType(#2212,1,-1,DUPL)
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
    0x03004319, // SetType(#1020,1,-1)
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
    0x0100A4BB, // Entity(IFCMOTORCONNECTION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x000126CE, // Entity(IFCMOTORCONNECTIONTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x00012858, // Entity(IFCOBJECTIVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001288D, // ExplicitAttr(BENCHMARKVALUES)
    0x0300432D, // ListType(#1131,1,-1,DUPL)
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
    0x03004347, // ListType(#1767,1,-1,DUPL)
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
    0x030041BD, // ListType(#1847,1,-1,DUPL)
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
    0x01007487, // SetType(#1144,1,-1)
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
    0x0000850F, // DerivedAttr(DIM)
    0x00013203, // Entity(IFCPOINTONSURFACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000EEC2, // ExplicitAttr(BASISSURFACE)
    0x0001323D, // ExplicitAttr(POINTPARAMETERU)
    0x0001325B, // ExplicitAttr(POINTPARAMETERV)
    0x0000850F, // DerivedAttr(DIM)
    0x00013279, // Entity(IFCPOLYLOOP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000132AD, // ExplicitAttr(POLYGON)
    0x03004361, // ListType(#678,3,-1,DUPL)
    0x000132DC, // Entity(IFCPOLYGONALBOUNDEDHALFSPACE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00008498, // ExplicitAttr(POSITION)
    0x00013321, // ExplicitAttr(POLYGONALBOUNDARY)
    0x0100A6FC, // Entity(IFCPOLYGONALFACESET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100A738, // ExplicitAttr(CLOSED)
    0x0100A74D, // ExplicitAttr(FACES)
    0x0300437A, // ListType(#2054,1,-1,DUPL)
    0x0100A77B, // ExplicitAttr(PNINDEX)
    0x01009947, // ListType(#7,1,-1,DUPL)
    0x00013341, // Entity(IFCPOLYLINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013375, // ExplicitAttr(POINTS)
    0x03003DFF, // ListType(#678,2,-1,DUPL)
    0x0100A791, // Entity(IFCPREDEFINEDPROPERTIES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001345C, // Entity(IFCPRESENTATIONLAYERASSIGNMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00007849, // ExplicitAttr(DESCRIPTION)
    0x000134A3, // ExplicitAttr(ASSIGNEDITEMS)
    0x03004394, // SetType(#991,1,-1)
    0x0000C5B4, // ExplicitAttr(IDENTIFIER)
    0x000134D2, // Entity(IFCPRESENTATIONLAYERWITHSTYLE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013518, // ExplicitAttr(LAYERON)
    0x0001352E, // ExplicitAttr(LAYERFROZEN)
    0x00013548, // ExplicitAttr(LAYERBLOCKED)
    0x00013563, // ExplicitAttr(LAYERSTYLES)
    0x030043A7, // SetType(#869,0,-1)
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
    0x03003655, // ListType(#638,1,-1,DUPL)
    0x00013C6E, // ExplicitAttr(ENUMERATIONREFERENCE)
    0x00013C91, // Entity(IFCPROPERTYENUMERATION,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00007836, // ExplicitAttr(NAME)
    0x00013C4E, // ExplicitAttr(ENUMERATIONVALUES)
    0x03003655, // ListType(#638,1,-1,DUPL)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00013CE9, // Entity(IFCPROPERTYLISTVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011A68, // ExplicitAttr(LISTVALUES)
    0x03003655, // ListType(#638,1,-1,DUPL)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00013D26, // Entity(IFCPROPERTYREFERENCEVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DEFE, // ExplicitAttr(USAGENAME)
    0x00013D68, // ExplicitAttr(PROPERTYREFERENCE)
    0x00013D88, // Entity(IFCPROPERTYSET,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000DF16, // ExplicitAttr(HASPROPERTIES)
    0x030040ED, // SetType(#1597,1,-1)
    0x0100A958, // Entity(IFCPROPERTYSETTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100859B, // ExplicitAttr(TEMPLATETYPE)
    0x0100A997, // ExplicitAttr(APPLICABLEENTITY)
    0x010085B6, // ExplicitAttr(HASPROPERTYTEMPLATES)
    0x03004101, // SetType(#1604,1,-1)
    0x00013DBF, // Entity(IFCPROPERTYSINGLEVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013DFE, // ExplicitAttr(NOMINALVALUE)
    0x00007DBE, // ExplicitAttr(UNIT)
    0x00013E19, // Entity(IFCPROPERTYTABLEVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00013E57, // ExplicitAttr(DEFININGVALUES)
    0x03003655, // ListType(#638,1,-1,DUPL)
    0x00013E74, // ExplicitAttr(DEFINEDVALUES)
    0x03003655, // ListType(#638,1,-1,DUPL)
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
    0x0100AB83, // DerivedAttr(WEIGHTS)
    0x0100AB98, // ArrayType(#165,0,0,DUPL,REQ)
    0x0100ABB5, // Entity(IFCRATIONALBSPLINESURFACEWITHKNOTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001430C, // ExplicitAttr(WEIGHTSDATA)
    0x0100AB6A, // ListType(#165,2,-1,DUPL)
    0x030043BA, // ListType(#2511,2,-1,DUPL)
    0x0100AB83, // DerivedAttr(WEIGHTS)
    0x0100AB98, // ArrayType(#165,0,0,DUPL,REQ)
    0x030043D4, // ArrayType(#2514,0,0,DUPL,REQ)
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
    0x030043F2, // ListType(#2547,1,-1,DUPL)
    0x02004128, // Entity(IFCREFERENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x0200415C, // ExplicitAttr(RESTARTDISTANCE)
    0x0001457F, // Entity(IFCREGULARTIMESERIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000145BC, // ExplicitAttr(TIMESTEP)
    0x000119F7, // ExplicitAttr(VALUES)
    0x000145D3, // Entity(IFCTIMESERIESVALUE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00011A68, // ExplicitAttr(LISTVALUES)
    0x03003655, // ListType(#638,1,-1,DUPL)
    0x0300440C, // ListType(#2557,1,-1,DUPL)
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
    0x03004426, // SetType(#2561,1,-1)
    0x0300443A, // ListType(#2571,1,-1,DUPL)
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
    0x02002648, // ListType(#695,1,-1,DUPL)
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
    0x02002648, // ListType(#695,1,-1,DUPL)
    0x00014B9E, // Entity(IFCRELAGGREGATES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00014BD7, // Entity(IFCRELDECOMPOSES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00013917, // Entity(IFCRELATIONSHIP,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00014C0C, // ExplicitAttr(RELATINGOBJECT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x03004454, // SetType(#838,1,-1)
    0x000138E5, // Entity(IFCRELASSIGNS,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x03004454, // SetType(#838,1,-1)
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
    0x03004467, // SetType(#840,1,-1)
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
    0x0300447A, // SetType(#1204,1,-1)
    0x00015A7F, // ExplicitAttr(CONNECTIONTYPE)
    0x00015A9C, // Entity(IFCRELCONTAINEDINSPATIALSTRUCTURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015AE6, // ExplicitAttr(RELATEDELEMENTS)
    0x0300448E, // SetType(#1108,1,-1)
    0x00015B17, // ExplicitAttr(RELATINGSTRUCTURE)
    0x00015B37, // Entity(IFCRELCOVERSBLDGELEMENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015B78, // ExplicitAttr(RELATINGBUILDINGELEMENT)
    0x00015B9E, // ExplicitAttr(RELATEDCOVERINGS)
    0x030044A2, // SetType(#1720,1,-1)
    0x00015BD1, // Entity(IFCRELCOVERSSPACES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000163A9, // ExplicitAttr(RELATINGSPACE)
    0x00015B9E, // ExplicitAttr(RELATEDCOVERINGS)
    0x030044A2, // SetType(#1720,1,-1)
    0x0100AFE5, // Entity(IFCRELDECLARES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B01C, // ExplicitAttr(RELATINGCONTEXT)
    0x0100B03A, // ExplicitAttr(RELATEDDEFINITIONS)
    0x03004467, // SetType(#840,1,-1)
    0x00015CA2, // Entity(IFCRELDEFINES,ABSTRACT,SIMPLE,INDEPENDENT)
    0x0100B05B, // Entity(IFCRELDEFINESBYOBJECT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x030044B6, // SetType(#1083,1,-1)
    0x00014C0C, // ExplicitAttr(RELATINGOBJECT)
    0x00015CE7, // Entity(IFCRELDEFINESBYPROPERTIES,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x03004454, // SetType(#838,1,-1)
    0x00015D29, // ExplicitAttr(RELATINGPROPERTYDEFINITION)
    0x0100B0AD, // Entity(IFCRELDEFINESBYTEMPLATE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0100B0ED, // ExplicitAttr(RELATEDPROPERTYSETS)
    0x010005C6, // SetType(#96,1,-1)
    0x0100B10F, // ExplicitAttr(RELATINGTEMPLATE)
    0x00015D52, // Entity(IFCRELDEFINESBYTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001394B, // ExplicitAttr(RELATEDOBJECTS)
    0x030044B6, // SetType(#1083,1,-1)
    0x00015D8E, // ExplicitAttr(RELATINGTYPE)
    0x00015DA9, // Entity(IFCRELFILLSELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015DE4, // ExplicitAttr(RELATINGOPENINGELEMENT)
    0x00015E09, // ExplicitAttr(RELATEDBUILDINGELEMENT)
    0x00015E2E, // Entity(IFCRELFLOWCONTROLELEMENTS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015E70, // ExplicitAttr(RELATEDCONTROLELEMENTS)
    0x030044CA, // SetType(#1237,1,-1)
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
    0x030044DE, // ListType(#838,1,-1,DUPL)
    0x030044F7, // Entity(IFCRELPOSITIONS,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0300452F, // ExplicitAttr(RELATINGPOSITIONINGELEMENT)
    0x03004558, // ExplicitAttr(RELATEDPRODUCTS)
    0x0300448E, // SetType(#1108,1,-1)
    0x0001616A, // Entity(IFCRELPROJECTSELEMENT,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0001549D, // ExplicitAttr(RELATINGELEMENT)
    0x000161A8, // ExplicitAttr(RELATEDFEATUREELEMENT)
    0x000161CC, // Entity(IFCRELREFERENCEDINSPATIALSTRUCTURE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00015AE6, // ExplicitAttr(RELATEDELEMENTS)
    0x0300448E, // SetType(#1108,1,-1)
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
    0x03004576, // SetType(#1192,1,-1)
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
    0x030041D7, // SetType(#1160,1,-1)
    0x0000C748, // ExplicitAttr(RELATINGAPPROVAL)
    0x0100B394, // Entity(IFCRESOURCECONSTRAINTRELATIONSHIP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000E533, // ExplicitAttr(RELATINGCONSTRAINT)
    0x0100952D, // ExplicitAttr(RELATEDRESOURCEOBJECTS)
    0x030041D7, // SetType(#1160,1,-1)
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
    0x02004292, // Entity(IFCSECTIONEDSOLID,ABSTRACT,SIMPLE,INDEPENDENT)
    0x00018163, // ExplicitAttr(DIRECTRIX)
    0x000167AF, // ExplicitAttr(CROSSSECTIONS)
    0x0300458A, // ListType(#1147,2,-1,DUPL)
    0x020042E2, // Entity(IFCSECTIONEDSOLIDHORIZONTAL,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x000167E5, // ExplicitAttr(CROSSSECTIONPOSITIONS)
    0x030045A4, // ListType(#1767,2,-1,DUPL)
    0x02004340, // ExplicitAttr(FIXEDAXISVERTICAL)
    0x0001675C, // Entity(IFCSECTIONEDSPINE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00016796, // ExplicitAttr(SPINECURVE)
    0x000167AF, // ExplicitAttr(CROSSSECTIONS)
    0x0300458A, // ListType(#1147,2,-1,DUPL)
    0x000167E5, // ExplicitAttr(CROSSSECTIONPOSITIONS)
    0x030045BE, // ListType(#689,2,-1,DUPL)
    0x0000850F, // DerivedAttr(DIM)
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
    0x030045D7, // SetType(#1187,1,-1)
    0x0000850F, // DerivedAttr(DIM)
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
    0x030045EB, // SetType(#2929,1,-1)
    0x00017237, // ExplicitAttr(HASRESULTS)
    0x00017250, // Entity(IFCSTRUCTURALRESULTGROUP,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00017291, // ExplicitAttr(THEORYTYPE)
    0x000172AA, // ExplicitAttr(RESULTFORLOADGROUP)
    0x000172CB, // ExplicitAttr(ISLINEAR)
    0x030045FF, // SetType(#2937,1,-1)
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
    0x03004613, // ListType(#2961,1,-1,DUPL)
    0x0100BB34, // ExplicitAttr(LOCATIONS)
    0x0100BB4C, // ListType(#56,1,2,DUPL)
    0x0300462D, // ListType(#2964,1,-1,DUPL)
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
    0x030046BD, // ListType(#3169,3,-1,DUPL)
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
    0x030046D7, // ListType(#3199,1,-1,DUPL)
    0x0100A738, // ExplicitAttr(CLOSED)
    0x010099F4, // ExplicitAttr(COORDINDEX)
    0x01000030, // ListType(#7,3,3,DUPL)
    0x030046F1, // ListType(#3203,1,-1,DUPL)
    0x0100A77B, // ExplicitAttr(PNINDEX)
    0x01009947, // ListType(#7,1,-1,DUPL)
    0x0100C1C4, // DerivedAttr(NUMBEROFTRIANGLES)
    0x02004529, // Entity(IFCTRIANGULATEDIRREGULARNETWORK,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x02004571, // ExplicitAttr(FLAGS)
    0x01005B8F, // ListType(#6,1,-1,DUPL)
    0x00018E8B, // Entity(IFCTRIMMEDCURVE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x00012977, // ExplicitAttr(BASISCURVE)
    0x00018EC3, // ExplicitAttr(TRIM1)
    0x0300470B, // SetType(#1223,1,2)
    0x00018EE9, // ExplicitAttr(TRIM2)
    0x0300470B, // SetType(#1223,1,2)
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
    0x0300471E, // Entity(IFCVIBRATIONDAMPER,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
    0x03004759, // Entity(IFCVIBRATIONDAMPERTYPE,INSTANTIABLE,SIMPLE,INDEPENDENT)
    0x0000BF45, // ExplicitAttr(PREDEFINEDTYPE)
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
    0x03004798, // SetType(#3305,1,-1)
    0x0100C5AD, // ExplicitAttr(EXCEPTIONTIMES)
    0x03004798, // SetType(#3305,1,-1)
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
    0x020045E0, // #629.Composition(#629)
    0x030047AC, // #630.ExplAttrInfos(#638,REQ)
    0x0100CF52, // #640.Composition(#640)
    0x030047C9, // #642.Composition(#642)
    0x0001AD3E, // #644.Composition(#644)
    0x02004858, // #646.Composition(#646)
    0x030047E0, // #647.ExplAttrInfos(IntegerType,REQ)
    0x03004804, // #648.ExplAttrInfos(IntegerType,REQ)
    0x03004828, // #649.ExplAttrInfos(IntegerType,REQ)
    0x0300484C, // #650.ExplAttrInfos(IntegerType,REQ)
    0x03004870, // #651.ExplAttrInfos(IntegerType,REQ)
    0x03004894, // #652.ExplAttrInfos(IntegerType,REQ)
    0x030048B8, // #653.ExplAttrInfos(IntegerType,REQ)
    0x030048DC, // #646.Attributes(#647,#648,#649,#650,#651,#652,#653)
    0x03004910, // #645.ExplAttrInfos(#646,REQ)
    0x0300492D, // #654.ExplAttrInfos(#592,REQ)
    0x0300494A, // #644.Attributes(#645,#654)
    0x03004965, // #643.ExplAttrInfos(#644,REQ)
    0x03004982, // #655.ExplAttrInfos(IntegerType,REQ)
    0x030049A6, // #642.Attributes(#643,#655)
    0x030049C1, // #641.ExplAttrInfos(#656,REQ)
    0x030049DE, // #657.ExplAttrInfos(#316,REQ)
    0x030049FB, // #658.ExplAttrInfos(#14,OPT)
    0x03004A17, // #659.DerivAttrInfos(#646)
    0x03004A31, // #640.Attributes(#641,#657,#658,#659)
    0x0001AEAC, // #660.Composition(#660)
    0x03004A56, // #661.ExplAttrInfos(#14,REQ)
    0x03004A72, // #660.Attributes(#661)
    0x03004A88, // #639.ExplAttrInfos(#663,REQ)
    0x03004AA5, // #629.Attributes(#630,#639)
    0x03004AC0, // #664.Composition(#664)
    0x03004AD7, // #665.ExplAttrInfos(#48,OPT)
    0x03004AF3, // #666.ExplAttrInfos(#48,OPT)
    0x03004B0F, // #667.ExplAttrInfos(#14,OPT)
    0x02004B8A, // #668.ExplAttrInfos(#669,OPT)
    0x03004B2B, // #670.ExplAttrInfos(#664,OPT)
    0x03004B48, // #664.Attributes(#665,#666,#667,#668,#670)
    0x03004B72, // #676.Composition(#676)
    0x03004B89, // #675.Supertypes(#676)
    0x03004B9F, // #675.Composition(#675,#676)
    0x03004BBB, // #674.Supertypes(#675)
    0x03004BD1, // #674.Composition(#675,#674,#676)
    0x03004BF2, // #679.Supertypes(#675)
    0x03004C08, // #679.Composition(#675,#679,#676)
    0x03004C29, // #678.Supertypes(#679)
    0x03004C3F, // #678.Composition(#678,#675,#679,#676)
    0x03004C65, // #680.ExplAttrInfos(#681,REQ)
    0x03004C82, // #682.DerivAttrInfos(#29)
    0x03004C9B, // #678.Attributes(#680,#682)
    0x03004CB6, // #677.ExplAttrInfos(#678,REQ)
    0x03004CD3, // #683.DerivAttrInfos(#29)
    0x03004CEC, // #674.Attributes(#677,#683)
    0x03004D07, // #673.Supertypes(#674)
    0x03004D1D, // #673.Composition(#673,#675,#674,#676)
    0x03004D43, // #685.Supertypes(#675)
    0x03004D59, // #685.Composition(#685,#675,#676)
    0x03004D7A, // #686.ExplAttrInfos(#687,REQ)
    0x03004D97, // #688.DerivAttrInfos(#29)
    0x03004DB0, // #685.Attributes(#686,#688)
    0x03004DCB, // #684.ExplAttrInfos(#685,OPT)
    0x03004DE8, // #673.Attributes(#684)
    0x03004DFE, // #689.Supertypes(#674)
    0x03004E14, // #689.Composition(#689,#675,#674,#676)
    0x03004E3A, // #690.ExplAttrInfos(#685,OPT)
    0x03004E57, // #691.ExplAttrInfos(#685,OPT)
    0x03004E74, // #689.Attributes(#690,#691)
    0x03004E8F, // #696.Supertypes(#675)
    0x03004EA5, // #696.Composition(#696,#675,#676)
    0x03004EC6, // #697.ExplAttrInfos(#244,REQ)
    0x03004EE3, // #698.ExplAttrInfos(#723,REQ)
    0x03004F00, // #724.ExplAttrInfos(#723,REQ)
    0x03004F1D, // #725.DerivAttrInfos(#29)
    0x03004F36, // #696.Attributes(#697,#698,#724,#725)
    0x03004F5B, // #699.Supertypes(#675)
    0x03004F71, // #699.Composition(#699,#675,#676)
    0x03004F92, // #700.ExplAttrInfos(#689,REQ)
    0x03004FAF, // #701.DerivAttrInfos(#29)
    0x03004FC8, // #699.Attributes(#700,#701)
    0x03004FE3, // #702.Supertypes(#675)
    0x03004FF9, // #702.Composition(#675,#702,#676)
    0x0300501A, // #704.Supertypes(#675)
    0x03005030, // #704.Composition(#675,#676,#704)
    0x03005051, // #705.DerivAttrInfos(#29)
    0x0300506A, // #704.Attributes(#705)
    0x03005080, // #703.ExplAttrInfos(#704,REQ)
    0x0300509D, // #706.ExplAttrInfos(#13,REQ)
    0x030050B9, // #707.DerivAttrInfos(#29)
    0x030050D2, // #702.Attributes(#703,#706,#707)
    0x030050F2, // #708.Supertypes(#675)
    0x03005108, // #708.Composition(#675,#676,#708)
    0x03005129, // #709.DerivAttrInfos(#29)
    0x03005142, // #708.Attributes(#709)
    0x03005158, // #711.Supertypes(#675)
    0x0300516E, // #711.Composition(#675,#676,#711)
    0x0300518F, // #710.Supertypes(#711)
    0x030051A5, // #710.Composition(#675,#676,#710,#711)
    0x030051CB, // #714.Supertypes(#675)
    0x030051E1, // #714.Composition(#714,#675,#676)
    0x03005202, // #715.DerivAttrInfos(#29)
    0x0300521B, // #714.Attributes(#715)
    0x03005231, // #713.Supertypes(#714)
    0x03005247, // #713.Composition(#714,#713,#675,#676)
    0x0300526D, // #716.ExplAttrInfos(#718,REQ)
    0x0300528A, // #719.ExplAttrInfos(#720,OPT)
    0x030052A7, // #713.Attributes(#716,#719)
    0x030052C2, // #712.ExplAttrInfos(#713,REQ)
    0x030052DF, // #721.DerivAttrInfos(#29)
    0x030052F8, // #710.Attributes(#712,#721)
    0x02005245, // #729.Composition(#729)
    0x0200525C, // #728.Supertypes(#729)
    0x02005272, // #728.Composition(#728,#729)
    0x0200528E, // #730.ExplAttrInfos(#14,OPT)
    0x03005313, // #731.ExplAttrInfos(#14,OPT)
    0x0300532F, // #732.ExplAttrInfos(#24,OPT)
    0x020052F2, // #733.ExplAttrInfos(#14,REQ)
    0x0300534B, // #734.ExplAttrInfos(#122,OPT)
    0x03005368, // #735.ExplAttrInfos(#195,OPT)
    0x03005385, // #736.ExplAttrInfos(#737,OPT)
    0x030053A2, // #728.Attributes(#730,#731,#732,#733,#734,#735,#736)
    0x030053D6, // #739.Composition(#739)
    0x030053ED, // #740.ExplAttrInfos(#195,OPT)
    0x0300540A, // #741.ExplAttrInfos(#48,OPT)
    0x03005426, // #742.ExplAttrInfos(#14,OPT)
    0x03005442, // #739.Attributes(#740,#741,#742)
    0x03005462, // #738.Supertypes(#739)
    0x03005478, // #738.Composition(#738,#739)
    0x03005494, // #743.ExplAttrInfos(#745,OPT)
    0x0100DC43, // #746.ExplAttrInfos(#122,OPT)
    0x0100DC60, // #747.ExplAttrInfos(#48,OPT)
    0x030054B1, // #738.Attributes(#743,#746,#747)
    0x030054D1, // #753.Composition(#753)
    0x030054E8, // #752.Supertypes(#753)
    0x030054FE, // #752.Composition(#752,#753)
    0x0300551A, // #754.ExplAttrInfos(#14,OPT)
    0x03005536, // #752.Attributes(#754)
    0x0300554C, // #756.Supertypes(#753)
    0x03005562, // #756.Composition(#756,#753)
    0x0300557E, // #757.ExplAttrInfos(#14,REQ)
    0x0300559A, // #756.Attributes(#757)
    0x030055B0, // #755.Supertypes(#756)
    0x030055C6, // #755.Composition(#755,#756,#753)
    0x030055E7, // #760.Supertypes(#752)
    0x030055FD, // #760.Composition(#760,#752,#753)
    0x0300561E, // #761.ExplAttrInfos(#84,REQ)
    0x0300563A, // #762.ExplAttrInfos(#84,REQ)
    0x03005656, // #763.ExplAttrInfos(#84,REQ)
    0x03005672, // #760.Attributes(#761,#762,#763)
    0x03005692, // #766.Composition(#766)
    0x030056A9, // #767.ExplAttrInfos(#14,REQ)
    0x030056C5, // #768.ExplAttrInfos(#122,OPT)
    0x030056E2, // #769.ExplAttrInfos(#48,OPT)
    0x030056FE, // #770.ExplAttrInfos(#48,OPT)
    0x0300571A, // #766.Attributes(#767,#768,#769,#770)
    0x0300573F, // #772.Composition(#772)
    0x03005756, // #773.ExplAttrInfos(#14,OPT)
    0x03005772, // #774.ExplAttrInfos(#14,OPT)
    0x0300578E, // #772.Attributes(#773,#774)
    0x030057A9, // #771.Supertypes(#772)
    0x030057BF, // #771.Composition(#771,#772)
    0x030057DB, // #775.ExplAttrInfos(#29,REQ)
    0x030057F7, // #776.ExplAttrInfos(#165,OPT)
    0x03005814, // #777.ExplAttrInfos(#693,REQ)
    0x03005831, // #778.ExplAttrInfos(#685,OPT)
    0x0300584E, // #771.Attributes(#775,#776,#777,#778)
    0x03005873, // #783.Supertypes(#753)
    0x03005889, // #783.Composition(#783,#753)
    0x030058A5, // #784.ExplAttrInfos(#14,OPT)
    0x030058C1, // #786.Supertypes(#753)
    0x030058D7, // #786.Composition(#786,#753)
    0x030058F3, // #787.ExplAttrInfos(#14,OPT)
    0x0300590F, // #789.Supertypes(#753)
    0x03005925, // #789.Composition(#789,#753)
    0x03005941, // #790.ExplAttrInfos(#56,REQ)
    0x0300595D, // #791.ExplAttrInfos(#90,REQ)
    0x03005979, // #789.Attributes(#790,#791)
    0x03005994, // #788.ExplAttrInfos(#792,REQ)
    0x02005A0F, // #786.Attributes(#787,#788)
    0x030059B1, // #793.Supertypes(#756)
    0x030059C7, // #793.Composition(#793,#756,#753)
    0x030059E8, // #785.ExplAttrInfos(#795,REQ)
    0x03005A05, // #796.ExplAttrInfos(#92,REQ)
    0x03005A21, // #783.Attributes(#784,#785,#796)
    0x03005A41, // #802.Supertypes(#675)
    0x03005A57, // #802.Composition(#802,#675,#676)
    0x03005A78, // #803.DerivAttrInfos(#29)
    0x03005A91, // #802.Attributes(#803)
    0x03005AA7, // #801.Supertypes(#802)
    0x03005ABD, // #801.Composition(#801,#802,#675,#676)
    0x03005AE3, // #800.Supertypes(#801)
    0x03005AF9, // #800.Composition(#801,#800,#802,#675,#676)
    0x03005B24, // #805.Supertypes(#675)
    0x03005B3A, // #805.Composition(#805,#675,#676)
    0x03005B5B, // #806.ExplAttrInfos(#582,REQ)
    0x03005B78, // #807.ExplAttrInfos(#13,REQ)
    0x03005B94, // #808.ExplAttrInfos(#802,REQ)
    0x03005BB1, // #809.DerivAttrInfos(#29)
    0x03005BCA, // #805.Attributes(#806,#807,#808,#809)
    0x03005BEF, // #804.ExplAttrInfos(#810,REQ)
    0x03005C0C, // #811.ExplAttrInfos(#63,REQ)
    0x03005C28, // #812.DerivAttrInfos(#6)
    0x03005C40, // #813.DerivAttrInfos(#63)
    0x03005C59, // #800.Attributes(#804,#811,#812,#813)
    0x03005C7E, // #799.Supertypes(#800)
    0x03005C94, // #799.Composition(#801,#800,#799,#802,#675,#676)
    0x03005CC4, // #814.DerivAttrInfos(#815)
    0x03005CDE, // #799.Attributes(#814)
    0x03005CF4, // #816.Supertypes(#802)
    0x03005D0A, // #816.Composition(#802,#675,#816,#676)
    0x03005D30, // #817.ExplAttrInfos(#704,REQ)
    0x03005D4D, // #818.ExplAttrInfos(#802,REQ)
    0x03005D6A, // #816.Attributes(#817,#818)
    0x03005D85, // #819.Supertypes(#802)
    0x03005D9B, // #819.Composition(#802,#675,#676,#819)
    0x03005DC1, // #820.ExplAttrInfos(#802,REQ)
    0x03005DDE, // #821.ExplAttrInfos(#822,REQ)
    0x03005DFB, // #823.ExplAttrInfos(#472,REQ)
    0x03005E18, // #824.DerivAttrInfos(#825)
    0x03005E32, // #819.Attributes(#820,#821,#823,#824)
    0x03005E57, // #830.Supertypes(#676)
    0x03005E6D, // #830.Composition(#676,#830)
    0x03005E89, // #829.Supertypes(#830)
    0x03005E9F, // #829.Composition(#829,#676,#830)
    0x03005EC0, // #832.Supertypes(#830)
    0x03005ED6, // #832.Composition(#676,#830,#832)
    0x03005EF7, // #831.ExplAttrInfos(#832,REQ)
    0x03005F14, // #833.ExplAttrInfos(#832,REQ)
    0x03005F31, // #829.Attributes(#831,#833)
    0x03005F4C, // #828.Supertypes(#829)
    0x03005F62, // #828.Composition(#829,#828,#676,#830)
    0x03005F88, // #834.ExplAttrInfos(#802,REQ)
    0x03005FA5, // #835.ExplAttrInfos(#13,REQ)
    0x03005FC1, // #828.Attributes(#834,#835)
    0x03005FDC, // #838.Supertypes(#98)
    0x03005FF1, // #838.Composition(#838,#98)
    0x0300600C, // #841.Supertypes(#729)
    0x03006022, // #841.Composition(#841,#729)
    0x0300603E, // #842.ExplAttrInfos(#48,REQ)
    0x0300605A, // #843.ExplAttrInfos(#14,REQ)
    0x03006076, // #844.ExplAttrInfos(#122,OPT)
    0x03006093, // #845.ExplAttrInfos(#195,OPT)
    0x030060B0, // #846.ExplAttrInfos(#122,OPT)
    0x030060CD, // #847.ExplAttrInfos(#122,OPT)
    0x030060EA, // #848.ExplAttrInfos(#122,OPT)
    0x03006107, // #849.ExplAttrInfos(#14,OPT)
    0x03006123, // #850.ExplAttrInfos(#628,OPT)
    0x03006140, // #851.ExplAttrInfos(#852,OPT)
    0x0300615D, // #853.ExplAttrInfos(#25,OPT)
    0x03006179, // #854.ExplAttrInfos(#25,OPT)
    0x03006195, // #855.ExplAttrInfos(#48,OPT)
    0x030061B1, // #856.ExplAttrInfos(#24,OPT)
    0x030061CD, // #857.ExplAttrInfos(#24,OPT)
    0x030061E9, // #858.ExplAttrInfos(#328,OPT)
    0x03006206, // #859.ExplAttrInfos(#330,OPT)
    0x03006223, // #841.Attributes(#842,#843,#844,#845,#846,#847,#848,#849,#850,#851,#853,#854,#855,#856,#857,#858,#859)
    0x03006289, // #860.Supertypes(#739)
    0x0300629F, // #860.Composition(#860,#739)
    0x030062BB, // #861.ExplAttrInfos(#122,OPT)
    0x030062D8, // #862.ExplAttrInfos(#841,OPT)
    0x030062F5, // #860.Attributes(#861,#862)
    0x03006310, // #865.Supertypes(#739)
    0x03006326, // #865.Composition(#865,#739)
    0x03006342, // #866.Supertypes(#675)
    0x03006358, // #866.Composition(#866,#675,#676)
    0x03006379, // #869.Composition(#869)
    0x03006390, // #870.ExplAttrInfos(#14,OPT)
    0x030063AC, // #869.Attributes(#870)
    0x030063C2, // #868.Supertypes(#869)
    0x030063D8, // #868.Composition(#868,#869)
    0x030063F4, // #871.ExplAttrInfos(#798,OPT)
    0x03006411, // #872.ExplAttrInfos(#874,OPT)
    0x0300642E, // #875.ExplAttrInfos(#759,OPT)
    0x0300644B, // #876.ExplAttrInfos(#13,OPT)
    0x03006467, // #868.Attributes(#871,#872,#875,#876)
    0x0300648C, // #867.ExplAttrInfos(#868,REQ)
    0x030064A9, // #878.Supertypes(#675)
    0x030064BF, // #878.Composition(#675,#676,#878)
    0x030064E0, // #879.ExplAttrInfos(#685,REQ)
    0x030064FD, // #880.ExplAttrInfos(#56,REQ)
    0x03006519, // #881.DerivAttrInfos(#29)
    0x03006532, // #878.Attributes(#879,#880,#881)
    0x03006552, // #877.ExplAttrInfos(#883,REQ)
    0x0300656F, // #884.ExplAttrInfos(#678,OPT)
    0x0300658C, // #885.ExplAttrInfos(#678,OPT)
    0x030065A9, // #886.ExplAttrInfos(#89,REQ)
    0x030065C5, // #866.Attributes(#867,#877,#884,#885,#886)
    0x030065EF, // #887.Supertypes(#675)
    0x03006605, // #887.Composition(#887,#675,#676)
    0x03006626, // #888.ExplAttrInfos(#889,REQ)
    0x03006643, // #891.Supertypes(#676)
    0x03006659, // #891.Composition(#676,#891)
    0x03006675, // #892.ExplAttrInfos(#676,OPT)
    0x03006692, // #894.Composition(#894)
    0x030066A9, // #896.Supertypes(#869)
    0x030066BF, // #896.Composition(#896,#869)
    0x030066DB, // #897.ExplAttrInfos(#900,REQ)
    0x030066F8, // #901.ExplAttrInfos(#13,OPT)
    0x03006714, // #896.Attributes(#897,#901)
    0x0300672F, // #902.Supertypes(#869)
    0x03006745, // #902.Composition(#869,#902)
    0x03006761, // #903.ExplAttrInfos(#558,REQ)
    0x0300677E, // #905.Supertypes(#739)
    0x03006794, // #905.Composition(#905,#739)
    0x030067B0, // #906.Supertypes(#753)
    0x030067C6, // #906.Composition(#753,#906)
    0x030067E2, // #907.ExplAttrInfos(#760,REQ)
    0x030067FF, // #908.ExplAttrInfos(#760,REQ)
    0x0300681C, // #909.ExplAttrInfos(#760,REQ)
    0x03006839, // #910.ExplAttrInfos(#760,REQ)
    0x03006856, // #906.Attributes(#907,#908,#909,#910)
    0x0300687B, // #911.Supertypes(#753)
    0x03006891, // #911.Composition(#753,#911)
    0x030068AD, // #912.ExplAttrInfos(#165,OPT)
    0x030068CA, // #913.ExplAttrInfos(#165,OPT)
    0x030068E7, // #911.Attributes(#912,#913)
    0x03006902, // #914.Supertypes(#753)
    0x03006918, // #914.Composition(#753,#914)
    0x03006934, // #915.ExplAttrInfos(#760,REQ)
    0x03006951, // #916.ExplAttrInfos(#84,OPT)
    0x0300696D, // #914.Attributes(#915,#916)
    0x03006988, // #917.Supertypes(#753)
    0x0300699E, // #917.Composition(#753,#917)
    0x030069BA, // #919.Supertypes(#753)
    0x030069D0, // #919.Composition(#753,#919)
    0x030069EC, // #920.ExplAttrInfos(#13,REQ)
    0x03006A08, // #921.ExplAttrInfos(#13,REQ)
    0x03006A24, // #922.ExplAttrInfos(#48,OPT)
    0x03006A40, // #925.Supertypes(#675)
    0x03006A56, // #925.Composition(#925,#675,#676)
    0x03006A77, // #926.ExplAttrInfos(#685,OPT)
    0x03006A94, // #927.ExplAttrInfos(#685,OPT)
    0x03006AB1, // #928.ExplAttrInfos(#678,REQ)
    0x03006ACE, // #929.ExplAttrInfos(#165,OPT)
    0x03006AEB, // #930.DerivAttrInfos(#165)
    0x03006B05, // #931.DerivAttrInfos(#29)
    0x03006B1E, // #925.Attributes(#926,#927,#928,#929,#930,#931)
    0x03006B4D, // #924.Supertypes(#925)
    0x03006B63, // #924.Composition(#925,#924,#675,#676)
    0x03006B89, // #932.DerivAttrInfos(#933)
    0x03006BA3, // #924.Attributes(#932)
    0x0100F3D5, // #923.ExplAttrInfos(#924,OPT)
    0x03006BB9, // #934.ExplAttrInfos(#935,OPT)
    0x03006BD6, // #919.Attributes(#920,#921,#922,#923,#934)
    0x03006C00, // #918.ExplAttrInfos(#936,REQ)
    0x03006C1D, // #917.Attributes(#918)
    0x03006C33, // #904.ExplAttrInfos(#939,REQ)
    0x03006C50, // #902.Attributes(#903,#904)
    0x03006C6B, // #940.Supertypes(#869)
    0x03006C81, // #940.Composition(#869,#940)
    0x03006C9D, // #942.Supertypes(#753)
    0x03006CB3, // #942.Composition(#753,#942)
    0x03006CCF, // #943.ExplAttrInfos(#759,REQ)
    0x03006CEC, // #944.ExplAttrInfos(#759,OPT)
    0x03006D09, // #942.Attributes(#943,#944)
    0x03006D24, // #941.ExplAttrInfos(#942,OPT)
    0x03006D41, // #946.Supertypes(#753)
    0x03006D57, // #946.Composition(#753,#946)
    0x03006D73, // #947.ExplAttrInfos(#874,OPT)
    0x03006D90, // #948.ExplAttrInfos(#182,OPT)
    0x03006DAD, // #949.ExplAttrInfos(#183,OPT)
    0x03006DCA, // #950.ExplAttrInfos(#874,OPT)
    0x03006DE7, // #951.ExplAttrInfos(#874,OPT)
    0x03006E04, // #952.ExplAttrInfos(#185,OPT)
    0x03006E21, // #953.ExplAttrInfos(#874,OPT)
    0x03006E3E, // #946.Attributes(#947,#948,#949,#950,#951,#952,#953)
    0x03006E72, // #945.ExplAttrInfos(#946,OPT)
    0x03006E8F, // #955.Supertypes(#739)
    0x03006EA5, // #955.Composition(#955,#739)
    0x03006EC1, // #956.Supertypes(#756)
    0x03006ED7, // #956.Composition(#756,#956,#753)
    0x03006EF8, // #954.ExplAttrInfos(#958,REQ)
    0x03006F15, // #959.ExplAttrInfos(#13,OPT)
    0x03006F31, // #940.Attributes(#941,#945,#954,#959)
    0x03006F56, // #895.ExplAttrInfos(#962,REQ)
    0x03006F73, // #894.Attributes(#895)
    0x03006F89, // #893.ExplAttrInfos(#965,REQ)
    0x03006FA6, // #966.ExplAttrInfos(#14,OPT)
    0x03006FC2, // #891.Attributes(#892,#893,#966)
    0x03006FE2, // #890.ExplAttrInfos(#967,REQ)
    0x03006FFF, // #968.ExplAttrInfos(#92,REQ)
    0x0300701B, // #887.Attributes(#888,#890,#968)
    0x0300703B, // #973.Composition(#973)
    0x03007052, // #975.Composition(#975)
    0x03007069, // #976.ExplAttrInfos(#14,OPT)
    0x03007085, // #977.ExplAttrInfos(#802,REQ)
    0x030070A2, // #978.ExplAttrInfos(#13,REQ)
    0x030070BE, // #975.Attributes(#976,#977,#978)
    0x030070DE, // #974.ExplAttrInfos(#979,REQ)
    0x030070FB, // #980.ExplAttrInfos(#981,REQ)
    0x03007118, // #973.Attributes(#974,#980)
    0x03007133, // #984.Composition(#984)
    0x0300714A, // #985.ExplAttrInfos(#772,REQ)
    0x020070F5, // #986.ExplAttrInfos(#14,OPT)
    0x03007167, // #987.ExplAttrInfos(#14,OPT)
    0x0100F95F, // #988.ExplAttrInfos(#989,REQ)
    0x03007183, // #984.Attributes(#985,#986,#987,#988)
    0x030071A8, // #992.Supertypes(#729)
    0x030071BE, // #992.Composition(#729,#992)
    0x030071DA, // #993.ExplAttrInfos(#14,REQ)
    0x030071F6, // #994.ExplAttrInfos(#14,OPT)
    0x03007212, // #995.ExplAttrInfos(#628,OPT)
    0x0300722F, // #996.ExplAttrInfos(#25,OPT)
    0x0300724B, // #997.ExplAttrInfos(#195,OPT)
    0x03007268, // #998.ExplAttrInfos(#122,OPT)
    0x03007285, // #992.Attributes(#993,#994,#995,#996,#997,#998)
    0x030072B4, // #999.Supertypes(#739)
    0x030072CA, // #999.Composition(#739,#999)
    0x0100FA6D, // #1000.ExplAttrInfos(#122,OPT)
    0x030072E6, // #1001.ExplAttrInfos(#55,OPT)
    0x03007303, // #1002.ExplAttrInfos(#992,OPT)
    0x03007321, // #999.Attributes(#1000,#1001,#1002)
    0x03007344, // #1005.Composition(#1005)
    0x0300735D, // #1006.ExplAttrInfos(#424,REQ)
    0x0001E30B, // #1008.Composition(#1008)
    0x0300737B, // #1009.ExplAttrInfos(#89,REQ)
    0x0001E342, // #1010.ExplAttrInfos(#1011,REQ)
    0x03007398, // #1012.ExplAttrInfos(#1013,REQ)
    0x030073B7, // #1008.Attributes(#1009,#1010,#1012)
    0x030073DB, // #1007.ExplAttrInfos(#1014,REQ)
    0x030073FA, // #1005.Attributes(#1006,#1007)
    0x03007418, // #1017.Composition(#1017)
    0x0100FC8D, // #1018.Composition(#1018)
    0x03007431, // #1020.Supertypes(#1017)
    0x03007449, // #1020.Composition(#1020,#1017)
    0x03007468, // #1021.ExplAttrInfos(#14,REQ)
    0x03007485, // #1022.ExplAttrInfos(#122,OPT)
    0x030074A3, // #1023.ExplAttrInfos(#14,OPT)
    0x030074C0, // #1020.Attributes(#1021,#1022,#1023)
    0x030074E4, // #1019.ExplAttrInfos(#1024,REQ)
    0x03007503, // #1018.Attributes(#1019)
    0x0300751B, // #1025.Composition(#1025)
    0x03007534, // #1028.Composition(#1028)
    0x0100FD72, // #1029.ExplAttrInfos(#14,OPT)
    0x0100FD8F, // #1030.ExplAttrInfos(#122,OPT)
    0x0300754D, // #1031.ExplAttrInfos(#672,OPT)
    0x0300756B, // #1032.ExplAttrInfos(#629,OPT)
    0x03007589, // #1033.ExplAttrInfos(#24,OPT)
    0x030075A6, // #1034.ExplAttrInfos(#24,OPT)
    0x030075C3, // #1035.ExplAttrInfos(#14,OPT)
    0x030075E0, // #1036.ExplAttrInfos(#14,OPT)
    0x030075FD, // #1037.ExplAttrInfos(#224,OPT)
    0x0300761B, // #1038.ExplAttrInfos(#1039,OPT)
    0x0300763A, // #1028.Attributes(#1029,#1030,#1031,#1032,#1033,#1034,#1035,#1036,#1037,#1038)
    0x0001E743, // #1040.Composition(#1040)
    0x03007688, // #1041.ExplAttrInfos(#14,OPT)
    0x030076A5, // #1043.Composition(#1043)
    0x030076BE, // #1044.ExplAttrInfos(#1045,OPT)
    0x030076DD, // #1046.ExplAttrInfos(#13,OPT)
    0x030076FA, // #1043.Attributes(#1044,#1046)
    0x03007718, // #1042.ExplAttrInfos(#1047,OPT)
    0x03007737, // #1049.Composition(#1049)
    0x03007750, // #1050.ExplAttrInfos(#48,OPT)
    0x0300776D, // #1051.ExplAttrInfos(#14,OPT)
    0x0300778A, // #1052.ExplAttrInfos(#122,OPT)
    0x030077A8, // #1053.ExplAttrInfos(#663,OPT)
    0x030077C6, // #1054.ExplAttrInfos(#664,OPT)
    0x030077E4, // #1049.Attributes(#1050,#1051,#1052,#1053,#1054)
    0x03007814, // #1048.ExplAttrInfos(#1055,OPT)
    0x03007833, // #1056.DerivAttrInfos(#6)
    0x0300784C, // #1057.DerivAttrInfos(#6)
    0x03007865, // #1058.DerivAttrInfos(#6)
    0x0300787E, // #1040.Attributes(#1041,#1042,#1048,#1056,#1057,#1058)
    0x030078B4, // #1059.Composition(#1059)
    0x030078CD, // #1060.ExplAttrInfos(#14,REQ)
    0x030078EA, // #1061.ExplAttrInfos(#122,OPT)
    0x03007908, // #1062.ExplAttrInfos(#25,REQ)
    0x03007925, // #1063.ExplAttrInfos(#25,REQ)
    0x03007942, // #1064.ExplAttrInfos(#578,REQ)
    0x03007960, // #1065.ExplAttrInfos(#314,REQ)
    0x0300797E, // #1066.ExplAttrInfos(#14,OPT)
    0x0300799B, // #1067.ExplAttrInfos(#663,OPT)
    0x030079B9, // #1059.Attributes(#1060,#1061,#1062,#1063,#1064,#1065,#1066,#1067)
    0x030079FB, // #1078.Supertypes(#832)
    0x03007A12, // #1078.Composition(#676,#830,#832,#1078)
    0x03007A3A, // #1079.ExplAttrInfos(#679,REQ)
    0x03007A58, // #1078.Attributes(#1079)
    0x03007A70, // #1083.Supertypes(#838)
    0x03007A87, // #1083.Composition(#1083,#838,#98)
    0x03007AA9, // #1084.ExplAttrInfos(#14,OPT)
    0x03007AC6, // #1083.Attributes(#1084)
    0x0001EF06, // #1082.Supertypes(#1083)
    0x03007ADE, // #1082.Composition(#1083,#838,#1082,#98)
    0x03007B06, // #1085.ExplAttrInfos(#48,OPT)
    0x03007B23, // #1086.ExplAttrInfos(#122,OPT)
    0x03007B41, // #1082.Attributes(#1085,#1086)
    0x03007B5F, // #1088.Supertypes(#838)
    0x03007B76, // #1088.Composition(#838,#98,#1088)
    0x03007B98, // #1089.ExplAttrInfos(#48,OPT)
    0x03007BB5, // #1090.ExplAttrInfos(#1091,OPT)
    0x0001F0E7, // #1088.Attributes(#1089,#1090)
    0x03007BD4, // #1087.Supertypes(#1088)
    0x03007BEC, // #1087.Composition(#838,#98,#1088,#1087)
    0x03007C14, // #1092.ExplAttrInfos(#48,OPT)
    0x03007C31, // #1093.ExplAttrInfos(#122,OPT)
    0x02007CF1, // #1094.ExplAttrInfos(#14,OPT)
    0x03007C4F, // #1087.Attributes(#1092,#1093,#1094)
    0x0001F28C, // #1098.Composition(#1098)
    0x03007C73, // #1099.ExplAttrInfos(#14,OPT)
    0x03007C90, // #1100.ExplAttrInfos(#122,OPT)
    0x03007CAE, // #1101.ExplAttrInfos(#1102,REQ)
    0x03007CCD, // #1098.Attributes(#1099,#1100,#1101)
    0x03007CF1, // #1097.Supertypes(#1098)
    0x03007D09, // #1097.Composition(#1097,#1098)
    0x02007E82, // #1103.Composition(#1103)
    0x03007D28, // #1104.ExplAttrInfos(#693,REQ)
    0x03007D46, // #1105.ExplAttrInfos(#984,REQ)
    0x02007EB8, // #1103.Attributes(#1104,#1105)
    0x03007D64, // #1108.Supertypes(#1083)
    0x03007D7C, // #1108.Composition(#1083,#838,#1108,#98)
    0x02007F61, // #1110.Composition(#1110)
    0x03007DA4, // #1111.ExplAttrInfos(#1110,OPT)
    0x03007DC3, // #1110.Attributes(#1111)
    0x03007DDB, // #1109.ExplAttrInfos(#1110,OPT)
    0x03007DFA, // #1112.ExplAttrInfos(#1098,OPT)
    0x03007E19, // #1108.Attributes(#1109,#1112)
    0x03007E37, // #1113.Supertypes(#1088)
    0x03007E4F, // #1113.Composition(#838,#98,#1088,#1113)
    0x03007E77, // #1114.ExplAttrInfos(#1115,OPT)
    0x03007E96, // #1116.ExplAttrInfos(#14,OPT)
    0x03007EB3, // #1113.Attributes(#1114,#1116)
    0x010108AF, // #1121.Composition(#1121)
    0x03007ED1, // #1122.ExplAttrInfos(#48,OPT)
    0x03007EEE, // #1123.ExplAttrInfos(#14,OPT)
    0x03007F0B, // #1124.ExplAttrInfos(#122,OPT)
    0x03007F29, // #1125.ExplAttrInfos(#25,OPT)
    0x01010958, // #1126.ExplAttrInfos(#14,OPT)
    0x03007F46, // #1127.ExplAttrInfos(#14,OPT)
    0x03007F63, // #1128.ExplAttrInfos(#122,OPT)
    0x03007F81, // #1129.ExplAttrInfos(#628,OPT)
    0x03007F9F, // #1130.ExplAttrInfos(#628,OPT)
    0x03007FBD, // #1121.Attributes(#1122,#1123,#1124,#1125,#1126,#1127,#1128,#1129,#1130)
    0x03008005, // #1131.Composition(#1131)
    0x0300801E, // #1132.ExplAttrInfos(#14,REQ)
    0x0300803B, // #1133.ExplAttrInfos(#122,OPT)
    0x03008059, // #1134.ExplAttrInfos(#286,REQ)
    0x03008077, // #1135.ExplAttrInfos(#14,OPT)
    0x03008094, // #1136.ExplAttrInfos(#628,OPT)
    0x030080B2, // #1137.ExplAttrInfos(#25,OPT)
    0x030080CF, // #1138.ExplAttrInfos(#14,OPT)
    0x030080EC, // #1131.Attributes(#1132,#1133,#1134,#1135,#1136,#1137,#1138)
    0x03008128, // #1139.Supertypes(#644)
    0x0300813F, // #1139.Composition(#1139,#644)
    0x0300815D, // #1140.ExplAttrInfos(#14,REQ)
    0x0300817A, // #1139.Attributes(#1140)
    0x03008192, // #1141.Supertypes(#644)
    0x030081A9, // #1141.Composition(#1141,#644)
    0x030081C7, // #1142.ExplAttrInfos(#14,REQ)
    0x030081E4, // #1143.ExplAttrInfos(#629,REQ)
    0x03008202, // #1141.Attributes(#1142,#1143)
    0x03008220, // #1144.Composition(#1144)
    0x03008239, // #1145.ExplAttrInfos(#14,REQ)
    0x03008256, // #1146.ExplAttrInfos(#122,OPT)
    0x03008274, // #1144.Attributes(#1145,#1146)
    0x03008292, // #1147.Composition(#1147)
    0x030082AB, // #1148.ExplAttrInfos(#476,REQ)
    0x030082C9, // #1149.ExplAttrInfos(#14,OPT)
    0x030082E6, // #1147.Attributes(#1148,#1149)
    0x03008304, // #1150.Composition(#1150)
    0x0300831D, // #1151.Composition(#1151)
    0x03008336, // #1153.Supertypes(#984)
    0x0300834D, // #1153.Composition(#984,#1153)
    0x0300836B, // #1152.ExplAttrInfos(#1154,REQ)
    0x0300838A, // #1155.ExplAttrInfos(#14,OPT)
    0x030083A7, // #1156.ExplAttrInfos(#122,OPT)
    0x030083C5, // #1157.ExplAttrInfos(#63,REQ)
    0x030083E2, // #1158.ExplAttrInfos(#1107,OPT)
    0x03008401, // #1151.Attributes(#1152,#1155,#1156,#1157,#1158)
    0x03008431, // #1161.Supertypes(#1083)
    0x03008449, // #1161.Composition(#1083,#838,#1161,#98)
    0x03008471, // #1162.ExplAttrInfos(#48,OPT)
    0x0300848E, // #1163.ExplAttrInfos(#122,OPT)
    0x030084AC, // #1161.Attributes(#1162,#1163)
    0x030084CA, // #1164.Supertypes(#1088)
    0x030084E2, // #1164.Composition(#838,#98,#1088,#1164)
    0x0300850A, // #1165.ExplAttrInfos(#48,OPT)
    0x03008527, // #1166.ExplAttrInfos(#122,OPT)
    0x03008545, // #1167.ExplAttrInfos(#14,OPT)
    0x03008562, // #1164.Attributes(#1165,#1166,#1167)
    0x03008586, // #1175.Supertypes(#830)
    0x0300859D, // #1175.Composition(#1175,#676,#830)
    0x030085C0, // #1177.Supertypes(#830)
    0x030085D7, // #1177.Composition(#1177,#676,#830)
    0x030085FA, // #1179.Supertypes(#830)
    0x03008611, // #1179.Composition(#1179,#676,#830)
    0x03008634, // #1181.Supertypes(#830)
    0x0300864B, // #1181.Composition(#1181,#676,#830)
    0x0300866E, // #1180.ExplAttrInfos(#1181,REQ)
    0x0300868D, // #1182.ExplAttrInfos(#13,REQ)
    0x030086AA, // #1179.Attributes(#1180,#1182)
    0x030086C8, // #1178.ExplAttrInfos(#1183,REQ)
    0x030086E7, // #1177.Attributes(#1178)
    0x030086FF, // #1176.ExplAttrInfos(#1184,REQ)
    0x0300871E, // #1175.Attributes(#1176)
    0x03008736, // #1174.Supertypes(#1175)
    0x0300874E, // #1174.Composition(#1174,#1175,#676,#830)
    0x03008777, // #1185.Supertypes(#1175)
    0x0300878F, // #1185.Composition(#1175,#1185,#676,#830)
    0x030087B8, // #1192.Supertypes(#1108)
    0x030087D0, // #1192.Composition(#1083,#838,#1108,#98,#1192)
    0x030087FE, // #1193.ExplAttrInfos(#14,OPT)
    0x02009139, // #1192.Attributes(#1193)
    0x0300881B, // #1191.Supertypes(#1192)
    0x03008833, // #1191.Composition(#1191,#1083,#838,#1108,#98,#1192)
    0x03008867, // #1190.Supertypes(#1191)
    0x0300887F, // #1190.Composition(#1190,#1191,#1083,#838,#1108,#98,#1192)
    0x030088B9, // #1194.ExplAttrInfos(#376,OPT)
    0x030088D7, // #1190.Attributes(#1194)
    0x030088EF, // #1196.Supertypes(#1192)
    0x03008907, // #1196.Composition(#1083,#838,#1108,#98,#1192,#1196)
    0x0300893B, // #1197.ExplAttrInfos(#364,OPT)
    0x03008959, // #1196.Attributes(#1197)
    0x0200919D, // #1195.Supertypes(#1196)
    0x03008971, // #1195.Composition(#1083,#838,#1108,#98,#1195,#1192,#1196)
    0x030089AB, // #1198.ExplAttrInfos(#536,OPT)
    0x030089C9, // #1199.ExplAttrInfos(#56,OPT)
    0x030089E6, // #1195.Attributes(#1198,#1199)
    0x03008A04, // #1204.Supertypes(#1108)
    0x03008A1C, // #1204.Composition(#1204,#1083,#838,#1108,#98)
    0x03008A4A, // #1205.ExplAttrInfos(#48,OPT)
    0x000208B3, // #1204.Attributes(#1205)
    0x03008A67, // #1206.Supertypes(#1108)
    0x03008A7F, // #1206.Composition(#1083,#838,#1108,#98,#1206)
    0x03008AAD, // #1209.Supertypes(#675)
    0x03008AC4, // #1209.Composition(#1209,#675,#676)
    0x03008AE7, // #1210.ExplAttrInfos(#1211,REQ)
    0x03008B06, // #1212.DerivAttrInfos(#29)
    0x03008B20, // #1209.Attributes(#1210,#1212)
    0x03008B3E, // #1213.Supertypes(#1177)
    0x03008B56, // #1213.Composition(#1177,#1213,#676,#830)
    0x03008B7F, // #1214.ExplAttrInfos(#704,REQ)
    0x03008B9D, // #1215.ExplAttrInfos(#13,REQ)
    0x03008BBA, // #1213.Attributes(#1214,#1215)
    0x03008BD8, // #1.DefTypes(#2,#3,#4,#5,#9,#10,#11,#12,#13,#15,#16,#18,#20,#21,#22,#23,#24,#25,#26,#27,#28,#29,#30,#31,#32,#33,#34,#35,#36,#37,#38,#39,#40,#41,#42,#43,#44,#45,#46,#47,#48,#49,#50,#6,#51,#52,#53,#54,#14,#55,#56,#58,#59,#60,#61,#62,#63,#64,#65,#66,#67,#68,#69,#70,#71,#72,#73,#74,#75,#76,#77,#78,#79,#80,#81,#82,#84,#85,#86,#87,#88,#89,#7,#90,#91,#92,#93,#94,#95,#163,#164,#83,#165,#166,#167,#168,#169,#170,#171,#172,#173,#174,#175,#176,#177,#178,#179,#180,#181,#122,#182,#183,#184,#185,#186,#187,#188,#189,#190,#191,#192,#193,#156,#194,#195,#196,#197,#198,#199,#200,#202,#204,#206,#208,#128,#210,#212,#214,#216,#218,#220,#222,#224,#226,#228,#230,#232,#234,#236,#238,#240,#242,#244,#246,#248,#250,#252,#254,#256,#258,#260,#262,#264,#266,#154,#268,#270,#272,#274,#276,#278,#280,#282,#284,#286,#288,#290,#292,#294,#296,#298,#300,#302,#304,#306,#308,#310,#312,#314,#316,#318,#320,#322,#324,#326,#328,#330,#332,#334,#336,#338,#340,#342,#344,#346,#348,#350,#352,#354,#356,#358,#360,#362,#364,#366,#368,#370,#372,#374,#376,#378,#380,#382,#384,#386,#388,#390,#392,#394,#396,#398,#400,#402,#404,#406,#408,#410,#412,#414,#416,#418,#420,#422,#424,#426,#428,#430,#432,#434,#436,#438,#440,#442,#444,#446,#448,#450,#452,#454,#456,#458,#460,#462,#464,#466,#468,#470,#472,#474,#476,#478,#480,#482,#484,#486,#488,#490,#492,#494,#496,#498,#500,#502,#504,#506,#508,#510,#119,#512,#514,#516,#518,#520,#522,#524,#526,#528,#530,#532,#534,#536,#538,#540,#542,#544,#151,#546,#548,#550,#552,#554,#556,#558,#560,#562,#564,#566,#568,#570,#572,#574,#576,#578,#580,#582,#584,#586,#588,#590,#592,#594,#596,#598,#600,#602,#604,#606,#608,#610,#612,#614,#616,#618,#620,#622,#624,#626,#628,#672,#693,#695,#727,#749,#751,#759,#765,#780,#782,#798,#827,#837,#795,#840,#632,#864,#970,#972,#983,#883,#991,#1004,#1016,#1027,#634,#1069,#1071,#1073,#1075,#1077,#1081,#961,#1096,#1107,#1118,#1120,#1160,#1169,#1171,#1173,#1187,#636,#874,#1189,#1201,#1203,#1208,#964,#1217,#938,#958,#1219,#1221,#1223,#663,#638,#1225,#1227)
    0x03009393, // #1229.Supertypes(#1083)
    0x030093AB, // #1229.Composition(#1229,#1083,#838,#98)
    0x030093D3, // #1230.ExplAttrInfos(#48,OPT)
    0x030093F0, // #1229.Attributes(#1230)
    0x02009AC3, // #1228.Supertypes(#1229)
    0x03009408, // #1228.Composition(#1228,#1229,#1083,#838,#98)
    0x03009436, // #1231.ExplAttrInfos(#202,OPT)
    0x03009454, // #1232.ExplAttrInfos(#14,OPT)
    0x03009471, // #1233.ExplAttrInfos(#122,OPT)
    0x0300948F, // #1228.Attributes(#1231,#1232,#1233)
    0x030094B3, // #1234.Supertypes(#1083)
    0x030094CB, // #1234.Composition(#1234,#1083,#838,#98)
    0x030094F3, // #1235.ExplAttrInfos(#628,REQ)
    0x03009511, // #1234.Attributes(#1235)
    0x03009529, // #1238.Supertypes(#1204)
    0x03009541, // #1238.Composition(#1238,#1204,#1083,#838,#1108,#98)
    0x03009575, // #1237.Supertypes(#1238)
    0x0300958D, // #1237.Composition(#1237,#1238,#1204,#1083,#838,#1108,#98)
    0x01012375, // #1236.Supertypes(#1237)
    0x030095C7, // #1236.Composition(#1236,#1237,#1238,#1204,#1083,#838,#1108,#98)
    0x03009607, // #1239.ExplAttrInfos(#208,OPT)
    0x03009625, // #1236.Attributes(#1239)
    0x0300963D, // #1243.Supertypes(#1113)
    0x03009655, // #1243.Composition(#1243,#838,#98,#1088,#1113)
    0x03009683, // #1244.ExplAttrInfos(#14,OPT)
    0x030096A0, // #1243.Attributes(#1244)
    0x030096B8, // #1242.Supertypes(#1243)
    0x030096D0, // #1242.Composition(#1242,#1243,#838,#98,#1088,#1113)
    0x03009704, // #1241.Supertypes(#1242)
    0x0300971C, // #1241.Composition(#1241,#1242,#1243,#838,#98,#1088,#1113)
    0x03009756, // #1240.Supertypes(#1241)
    0x0300976E, // #1240.Composition(#1240,#1241,#1242,#1243,#838,#98,#1088,#1113)
    0x030097AE, // #1245.ExplAttrInfos(#208,REQ)
    0x030097CC, // #1240.Attributes(#1245)
    0x030097E4, // #1247.Supertypes(#708)
    0x030097FB, // #1247.Composition(#675,#1247,#676,#708)
    0x03009823, // #1248.ExplAttrInfos(#1174,REQ)
    0x03009842, // #1247.Attributes(#1248)
    0x0300985A, // #1246.Supertypes(#1247)
    0x03009872, // #1246.Composition(#1246,#675,#1247,#676,#708)
    0x030098A0, // #1249.Supertypes(#1246)
    0x030098B8, // #1249.Composition(#1246,#1249,#675,#1247,#676,#708)
    0x030098EC, // #1250.ExplAttrInfos(#1251,REQ)
    0x0300990B, // #1249.Attributes(#1250)
    0x03009923, // #1252.Supertypes(#1213)
    0x0300993B, // #1252.Composition(#1252,#1177,#1213,#676,#830)
    0x0300996A, // #1255.Supertypes(#1238)
    0x03009982, // #1255.Composition(#1238,#1255,#1204,#1083,#838,#1108,#98)
    0x0200A0F3, // #1254.Supertypes(#1255)
    0x030099BC, // #1254.Composition(#1238,#1255,#1204,#1254,#1083,#838,#1108,#98)
    0x030099FC, // #1253.Supertypes(#1254)
    0x03009A14, // #1253.Composition(#1253,#1238,#1255,#1204,#1254,#1083,#838,#1108,#98)
    0x03009A5A, // #1256.ExplAttrInfos(#212,OPT)
    0x03009A78, // #1253.Attributes(#1256)
    0x03009A90, // #1258.Supertypes(#1255)
    0x03009AA8, // #1258.Composition(#1238,#1255,#1204,#1258,#1083,#838,#1108,#98)
    0x03009AE8, // #1257.Supertypes(#1258)
    0x03009B00, // #1257.Composition(#1257,#1238,#1255,#1204,#1258,#1083,#838,#1108,#98)
    0x03009B46, // #1259.ExplAttrInfos(#210,OPT)
    0x03009B64, // #1257.Attributes(#1259)
    0x03009B7C, // #1262.Supertypes(#1242)
    0x03009B94, // #1262.Composition(#1242,#1262,#1243,#838,#98,#1088,#1113)
    0x03009BCE, // #1261.Supertypes(#1262)
    0x03009BE6, // #1261.Composition(#1242,#1262,#1243,#1261,#838,#98,#1088,#1113)
    0x03009C26, // #1260.Supertypes(#1261)
    0x03009C3E, // #1260.Composition(#1260,#1242,#1262,#1243,#1261,#838,#98,#1088,#1113)
    0x03009C84, // #1263.ExplAttrInfos(#210,REQ)
    0x03009CA2, // #1260.Attributes(#1263)
    0x03009CBA, // #1265.Supertypes(#1262)
    0x03009CD2, // #1265.Composition(#1242,#1262,#1243,#1265,#838,#98,#1088,#1113)
    0x03009D12, // #1264.Supertypes(#1265)
    0x03009D2A, // #1264.Composition(#1264,#1242,#1262,#1243,#1265,#838,#98,#1088,#1113)
    0x03009D70, // #1266.ExplAttrInfos(#212,REQ)
    0x03009D8E, // #1264.Attributes(#1266)
    0x03009DA6, // #1268.Supertypes(#1255)
    0x03009DBE, // #1268.Composition(#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)
    0x0002152A, // #1267.Supertypes(#1268)
    0x03009DFE, // #1267.Composition(#1267,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)
    0x03009E44, // #1269.ExplAttrInfos(#214,OPT)
    0x03009E62, // #1267.Attributes(#1269)
    0x03009E7A, // #1271.Supertypes(#1262)
    0x03009E92, // #1271.Composition(#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)
    0x03009ED2, // #1270.Supertypes(#1271)
    0x03009EEA, // #1270.Composition(#1270,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)
    0x03009F30, // #1272.ExplAttrInfos(#214,REQ)
    0x03009F4E, // #1270.Attributes(#1272)
    0x03009F66, // #1273.Supertypes(#1237)
    0x03009F7E, // #1273.Composition(#1273,#1237,#1238,#1204,#1083,#838,#1108,#98)
    0x03009FBE, // #1274.ExplAttrInfos(#216,OPT)
    0x03009FDC, // #1273.Attributes(#1274)
    0x03009FF4, // #1275.Supertypes(#1241)
    0x0300A00C, // #1275.Composition(#1275,#1241,#1242,#1243,#838,#98,#1088,#1113)
    0x0300A04C, // #1276.ExplAttrInfos(#216,REQ)
    0x0300A06A, // #1275.Attributes(#1276)
    0x0300A082, // #1279.Supertypes(#1108)
    0x0300A09A, // #1279.Composition(#1083,#838,#1279,#1108,#98)
    0x0200A4F9, // #1278.Supertypes(#1279)
    0x0300A0C8, // #1278.Composition(#1278,#1083,#838,#1279,#1108,#98)
    0x0300A0FC, // #1280.ExplAttrInfos(#802,REQ)
    0x0300A11A, // #1278.Attributes(#1280)
    0x01012BA9, // #1277.Supertypes(#1278)
    0x0300A132, // #1277.Composition(#1277,#1278,#1083,#838,#1279,#1108,#98)
    0x0300A16C, // #1281.ExplAttrInfos(#218,OPT)
    0x0300A18A, // #1277.Attributes(#1281)
    0x0300A1A2, // #1282.Supertypes(#675)
    0x0300A1B9, // #1282.Composition(#1282,#675,#676)
    0x0300A1DC, // #1283.ExplAttrInfos(#56,OPT)
    0x0300A1F9, // #1286.Supertypes(#675)
    0x0300A210, // #1286.Composition(#1286,#675,#676)
    0x0300A233, // #1287.ExplAttrInfos(#13,OPT)
    0x0300A250, // #1288.ExplAttrInfos(#14,OPT)
    0x0300A26D, // #1289.ExplAttrInfos(#14,OPT)
    0x0300A28A, // #1286.Attributes(#1287,#1288,#1289)
    0x0300A2AE, // #1285.Supertypes(#1286)
    0x0300A2C6, // #1285.Composition(#1285,#1286,#675,#676)
    0x0300A2EF, // #1291.Supertypes(#801)
    0x0300A306, // #1291.Composition(#801,#802,#1291,#675,#676)
    0x0300A333, // #1292.ExplAttrInfos(#678,REQ)
    0x0300A351, // #1293.ExplAttrInfos(#89,REQ)
    0x0300A36E, // #1294.ExplAttrInfos(#90,REQ)
    0x0300A38B, // #1291.Attributes(#1292,#1293,#1294)
    0x0200A673, // #1290.ExplAttrInfos(#1291,REQ)
    0x0300A3AF, // #1285.Attributes(#1290)
    0x0300A3C7, // #1284.ExplAttrInfos(#1295,REQ)
    0x000218AE, // #1282.Attributes(#1283,#1284)
    0x0300A3E6, // #1297.Supertypes(#1286)
    0x0300A3FE, // #1297.Composition(#1286,#1297,#675,#676)
    0x0300A427, // #1298.ExplAttrInfos(#56,REQ)
    0x0300A444, // #1299.ExplAttrInfos(#90,REQ)
    0x0300A461, // #1300.ExplAttrInfos(#56,REQ)
    0x0300A47E, // #1301.ExplAttrInfos(#83,REQ)
    0x0300A49B, // #1297.Attributes(#1298,#1299,#1300,#1301)
    0x0300A4C5, // #1296.Supertypes(#1297)
    0x0300A4DD, // #1296.Composition(#1286,#1296,#1297,#675,#676)
    0x0300A50C, // #1302.ExplAttrInfos(#90,REQ)
    0x0300A529, // #1303.ExplAttrInfos(#13,REQ)
    0x0300A546, // #1296.Attributes(#1302,#1303)
    0x0300A564, // #1304.Supertypes(#1297)
    0x0300A57C, // #1304.Composition(#1286,#1304,#1297,#675,#676)
    0x0300A5AB, // #1305.Supertypes(#1297)
    0x0300A5C3, // #1305.Composition(#1286,#1305,#1297,#675,#676)
    0x0300A5F2, // #1306.ExplAttrInfos(#90,REQ)
    0x0300A60F, // #1307.ExplAttrInfos(#13,REQ)
    0x0300A62C, // #1305.Attributes(#1306,#1307)
    0x0300A64A, // #1308.Supertypes(#675)
    0x0300A661, // #1308.Composition(#1308,#675,#676)
    0x0300A684, // #1309.ExplAttrInfos(#1310,REQ)
    0x0300A6A3, // #1308.Attributes(#1309)
    0x0300A6BB, // #1311.Supertypes(#801)
    0x0300A6D2, // #1311.Composition(#1311,#801,#802,#675,#676)
    0x0300A6FF, // #1312.ExplAttrInfos(#1282,REQ)
    0x0300A71E, // #1313.ExplAttrInfos(#1308,OPT)
    0x0300A73D, // #1314.ExplAttrInfos(#14,OPT)
    0x0300A75A, // #1311.Attributes(#1312,#1313,#1314)
    0x0300A77E, // #1315.Supertypes(#1108)
    0x0300A796, // #1315.Composition(#1315,#1083,#838,#1108,#98)
    0x0300A7C4, // #1316.Supertypes(#675)
    0x0300A7DB, // #1316.Composition(#1316,#675,#676)
    0x0300A7FE, // #1317.ExplAttrInfos(#802,REQ)
    0x0300A81C, // #1318.ExplAttrInfos(#1319,OPT)
    0x0300A83B, // #1316.Attributes(#1317,#1318)
    0x0300A859, // #1321.Composition(#1321)
    0x0300A872, // #1322.ExplAttrInfos(#14,OPT)
    0x0300A88F, // #1323.ExplAttrInfos(#122,OPT)
    0x0300A8AD, // #1321.Attributes(#1322,#1323)
    0x0300A8CB, // #1320.Supertypes(#1321)
    0x0300A8E3, // #1320.Composition(#1320,#1321)
    0x0300A902, // #1324.ExplAttrInfos(#1121,REQ)
    0x0300A921, // #1325.ExplAttrInfos(#1326,REQ)
    0x0300A940, // #1320.Attributes(#1324,#1325)
    0x0300A95E, // #1327.Supertypes(#1147)
    0x0300A976, // #1327.Composition(#1327,#1147)
    0x0300A995, // #1328.ExplAttrInfos(#802,REQ)
    0x0300A9B3, // #1327.Attributes(#1328)
    0x0300A9CB, // #1329.Supertypes(#1147)
    0x0300A9E3, // #1329.Composition(#1329,#1147)
    0x0300AA02, // #1330.ExplAttrInfos(#801,REQ)
    0x0002210B, // #1329.Attributes(#1330)
    0x0300AA20, // #1331.Supertypes(#1327)
    0x0300AA38, // #1331.Composition(#1327,#1331,#1147)
    0x0300AA5D, // #1332.ExplAttrInfos(#1333,REQ)
    0x0300AA7C, // #1331.Attributes(#1332)
    0x0300AA94, // #1335.Supertypes(#1083)
    0x0300AAAC, // #1335.Composition(#1335,#1083,#838,#98)
    0x0300AAD4, // #1334.Supertypes(#1335)
    0x0300AAEC, // #1334.Composition(#1334,#1335,#1083,#838,#98)
    0x0300AB1A, // #1336.ExplAttrInfos(#48,OPT)
    0x0300AB37, // #1338.Supertypes(#1028)
    0x0300AB4F, // #1338.Composition(#1028,#1338)
    0x0300AB6E, // #1337.ExplAttrInfos(#1338,OPT)
    0x0300AB8D, // #1339.ExplAttrInfos(#1338,OPT)
    0x0300ABAC, // #1340.ExplAttrInfos(#1338,OPT)
    0x0300ABCB, // #1341.ExplAttrInfos(#628,OPT)
    0x0300ABE9, // #1342.ExplAttrInfos(#628,OPT)
    0x0300AC07, // #1343.ExplAttrInfos(#105,OPT)
    0x0300AC25, // #1344.ExplAttrInfos(#24,OPT)
    0x0300AC42, // #1345.ExplAttrInfos(#1338,OPT)
    0x0300AC61, // #1334.Attributes(#1336,#1337,#1339,#1340,#1341,#1342,#1343,#1344,#1345)
    0x0300ACA9, // #1347.Supertypes(#1147)
    0x0300ACC1, // #1347.Composition(#1347,#1147)
    0x0300ACE0, // #1348.ExplAttrInfos(#673,OPT)
    0x0300ACFE, // #1347.Attributes(#1348)
    0x0300AD16, // #1346.Supertypes(#1347)
    0x0300AD2E, // #1346.Composition(#1346,#1347,#1147)
    0x0300AD53, // #1349.ExplAttrInfos(#90,REQ)
    0x0300AD70, // #1350.ExplAttrInfos(#90,REQ)
    0x0300AD8D, // #1351.ExplAttrInfos(#90,REQ)
    0x0300ADAA, // #1352.ExplAttrInfos(#90,REQ)
    0x0300ADC7, // #1353.ExplAttrInfos(#82,OPT)
    0x0300ADE4, // #1354.ExplAttrInfos(#90,REQ)
    0x0300AE01, // #1355.ExplAttrInfos(#90,OPT)
    0x0300AE1E, // #1356.ExplAttrInfos(#82,OPT)
    0x0300AE3B, // #1357.ExplAttrInfos(#82,OPT)
    0x0300AE58, // #1358.ExplAttrInfos(#89,OPT)
    0x0300AE75, // #1359.ExplAttrInfos(#82,OPT)
    0x0300AE92, // #1360.ExplAttrInfos(#89,OPT)
    0x0300AEAF, // #1346.Attributes(#1349,#1350,#1351,#1352,#1353,#1354,#1355,#1356,#1357,#1358,#1359,#1360)
    0x0300AF09, // #1361.Supertypes(#1254)
    0x0300AF21, // #1361.Composition(#1361,#1238,#1255,#1204,#1254,#1083,#838,#1108,#98)
    0x0300AF67, // #1362.ExplAttrInfos(#228,OPT)
    0x0300AF85, // #1361.Attributes(#1362)
    0x0300AF9D, // #1363.Supertypes(#1265)
    0x0300AFB5, // #1363.Composition(#1363,#1242,#1262,#1243,#1265,#838,#98,#1088,#1113)
    0x0300AFFB, // #1364.ExplAttrInfos(#228,REQ)
    0x010139B6, // #1363.Attributes(#1364)
    0x0300B019, // #1365.Supertypes(#674)
    0x0300B030, // #1365.Composition(#1365,#675,#674,#676)
    0x0300B058, // #1366.ExplAttrInfos(#685,OPT)
    0x0300B076, // #1367.DerivAttrInfos(#685)
    0x0300B091, // #1365.Attributes(#1366,#1367)
    0x0300B0AF, // #1368.Supertypes(#801)
    0x0300B0C6, // #1368.Composition(#801,#1368,#802,#675,#676)
    0x0300B0F3, // #1369.ExplAttrInfos(#6,REQ)
    0x0300B10F, // #1370.ExplAttrInfos(#1371,REQ)
    0x0300B12E, // #1372.ExplAttrInfos(#230,REQ)
    0x0300B14C, // #1373.ExplAttrInfos(#63,REQ)
    0x0300B169, // #1374.ExplAttrInfos(#63,REQ)
    0x0300B186, // #1375.DerivAttrInfos(#6)
    0x0300B19F, // #1376.DerivAttrInfos(#1377)
    0x0300B1BB, // #1368.Attributes(#1369,#1370,#1372,#1373,#1374,#1375,#1376)
    0x0300B1F7, // #1378.Supertypes(#1368)
    0x0300B20F, // #1378.Composition(#801,#1368,#1378,#802,#675,#676)
    0x0300B242, // #1379.ExplAttrInfos(#1380,REQ)
    0x0300B261, // #1381.ExplAttrInfos(#1382,REQ)
    0x0300B280, // #1383.ExplAttrInfos(#416,REQ)
    0x0300B29E, // #1384.DerivAttrInfos(#6)
    0x0300B2B7, // #1378.Attributes(#1379,#1381,#1383,#1384)
    0x0300B2E1, // #1386.Supertypes(#704)
    0x0300B2F8, // #1386.Composition(#1386,#675,#676,#704)
    0x0300B320, // #1385.Supertypes(#1386)
    0x0300B338, // #1385.Composition(#1386,#1385,#675,#676,#704)
    0x0300B366, // #1387.ExplAttrInfos(#6,REQ)
    0x0300B382, // #1388.ExplAttrInfos(#6,REQ)
    0x0300B39E, // #1389.ExplAttrInfos(#1391,REQ)
    0x0300B3BD, // #1392.ExplAttrInfos(#232,REQ)
    0x0300B3DB, // #1393.ExplAttrInfos(#63,REQ)
    0x0300B3F8, // #1394.ExplAttrInfos(#63,REQ)
    0x0300B415, // #1395.ExplAttrInfos(#63,REQ)
    0x0300B432, // #1396.DerivAttrInfos(#6)
    0x0300B44B, // #1397.DerivAttrInfos(#6)
    0x0300B464, // #1398.DerivAttrInfos(#1400)
    0x0300B480, // #1385.Attributes(#1387,#1388,#1389,#1392,#1393,#1394,#1395,#1396,#1397,#1398)
    0x0300B4CE, // #1401.Supertypes(#1385)
    0x0300B4E6, // #1401.Composition(#1386,#1385,#1401,#675,#676,#704)
    0x0300B51A, // #1402.ExplAttrInfos(#1403,REQ)
    0x0300B539, // #1404.ExplAttrInfos(#1405,REQ)
    0x0300B558, // #1406.ExplAttrInfos(#1407,REQ)
    0x0300B577, // #1408.ExplAttrInfos(#1409,REQ)
    0x0300B596, // #1410.ExplAttrInfos(#416,REQ)
    0x0300B5B4, // #1411.DerivAttrInfos(#6)
    0x0300B5CD, // #1412.DerivAttrInfos(#6)
    0x0300B5E6, // #1401.Attributes(#1402,#1404,#1406,#1408,#1410,#1411,#1412)
    0x0300B622, // #1414.Supertypes(#1204)
    0x0300B63A, // #1414.Composition(#1414,#1204,#1083,#838,#1108,#98)
    0x0300B66E, // #1413.Supertypes(#1414)
    0x0300B686, // #1413.Composition(#1413,#1414,#1204,#1083,#838,#1108,#98)
    0x0300B6C0, // #1415.ExplAttrInfos(#234,OPT)
    0x0300B6DE, // #1413.Attributes(#1415)
    0x0300B6F6, // #1416.Supertypes(#1413)
    0x0300B70E, // #1416.Composition(#1413,#1416,#1414,#1204,#1083,#838,#1108,#98)
    0x0300B74E, // #1418.Supertypes(#1243)
    0x0300B766, // #1418.Composition(#1418,#1243,#838,#98,#1088,#1113)
    0x0300B79A, // #1417.Supertypes(#1418)
    0x0300B7B2, // #1417.Composition(#1417,#1418,#1243,#838,#98,#1088,#1113)
    0x0300B7EC, // #1419.ExplAttrInfos(#234,REQ)
    0x0300B80A, // #1417.Attributes(#1419)
    0x0300B822, // #1420.Supertypes(#1414)
    0x0300B83A, // #1420.Composition(#1420,#1414,#1204,#1083,#838,#1108,#98)
    0x0300B874, // #1421.ExplAttrInfos(#238,OPT)
    0x0300B892, // #1420.Attributes(#1421)
    0x0300B8AA, // #1422.Supertypes(#1418)
    0x0300B8C2, // #1422.Composition(#1422,#1418,#1243,#838,#98,#1088,#1113)
    0x0300B8FC, // #1423.ExplAttrInfos(#238,REQ)
    0x0300B91A, // #1422.Attributes(#1423)
    0x0300B932, // #1424.Supertypes(#919)
    0x0300B949, // #1424.Composition(#1424,#753,#919)
    0x0300B96C, // #1425.ExplAttrInfos(#48,REQ)
    0x0300B989, // #1426.ExplAttrInfos(#12,REQ)
    0x0300B9A6, // #1424.Attributes(#1425,#1426)
    0x0300B9C4, // #1427.Supertypes(#699)
    0x0300B9DB, // #1427.Composition(#1427,#699,#675,#676)
    0x010146A1, // #1428.ExplAttrInfos(#90,REQ)
    0x010146BE, // #1429.ExplAttrInfos(#90,REQ)
    0x010146DB, // #1430.ExplAttrInfos(#90,REQ)
    0x0300BA03, // #1427.Attributes(#1428,#1429,#1430)
    0x0300BA27, // #1431.Supertypes(#1268)
    0x0300BA3F, // #1431.Composition(#1431,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)
    0x0300BA85, // #1432.ExplAttrInfos(#242,OPT)
    0x0200BFEE, // #1431.Attributes(#1432)
    0x0300BAA3, // #1433.Supertypes(#1271)
    0x0300BABB, // #1433.Composition(#1433,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)
    0x0300BB01, // #1434.ExplAttrInfos(#242,REQ)
    0x0300BB1F, // #1433.Attributes(#1434)
    0x0300BB37, // #1435.Supertypes(#696)
    0x0300BB4E, // #1435.Composition(#1435,#696,#675,#676)
    0x0300BB76, // #1436.Composition(#1436)
    0x0300BB8F, // #1437.ExplAttrInfos(#14,OPT)
    0x0300BBAC, // #1436.Attributes(#1437)
    0x0300BBC4, // #1438.Supertypes(#799)
    0x0300BBDB, // #1438.Composition(#1438,#801,#800,#799,#802,#675,#676)
    0x0300BC12, // #1439.Supertypes(#1436)
    0x0300BC2A, // #1439.Composition(#1436,#1439)
    0x0300BC49, // #1440.ExplAttrInfos(#1075,OPT)
    0x0300BC68, // #1441.ExplAttrInfos(#1075,OPT)
    0x0300BC87, // #1442.ExplAttrInfos(#1075,OPT)
    0x0300BCA6, // #1443.ExplAttrInfos(#1071,OPT)
    0x0300BCC5, // #1444.ExplAttrInfos(#1071,OPT)
    0x0300BCE4, // #1445.ExplAttrInfos(#1071,OPT)
    0x0300BD03, // #1439.Attributes(#1440,#1441,#1442,#1443,#1444,#1445)
    0x0300BD39, // #1446.Supertypes(#1436)
    0x0300BD51, // #1446.Composition(#1436,#1446)
    0x0300BD70, // #1447.ExplAttrInfos(#1073,OPT)
    0x0300BD8F, // #1448.ExplAttrInfos(#1073,OPT)
    0x0300BDAE, // #1449.ExplAttrInfos(#1073,OPT)
    0x0300BDCD, // #1446.Attributes(#1447,#1448,#1449)
    0x0300BDF1, // #1450.Supertypes(#1436)
    0x0300BE09, // #1450.Composition(#1436,#1450)
    0x0300BE28, // #1451.ExplAttrInfos(#1221,OPT)
    0x0300BE47, // #1452.ExplAttrInfos(#1221,OPT)
    0x0300BE66, // #1453.ExplAttrInfos(#1221,OPT)
    0x0300BE85, // #1454.ExplAttrInfos(#1171,OPT)
    0x0300BEA4, // #1455.ExplAttrInfos(#1171,OPT)
    0x0300BEC3, // #1456.ExplAttrInfos(#1171,OPT)
    0x0300BEE2, // #1450.Attributes(#1451,#1452,#1453,#1454,#1455,#1456)
    0x0300BF18, // #1457.Supertypes(#1450)
    0x0300BF30, // #1457.Composition(#1436,#1450,#1457)
    0x0300BF55, // #1458.ExplAttrInfos(#1227,OPT)
    0x0300BF74, // #1457.Attributes(#1458)
    0x0300BF8C, // #1459.Supertypes(#675)
    0x0300BFA3, // #1459.Composition(#1459,#675,#676)
    0x0300BFC6, // #1460.ExplAttrInfos(#678,REQ)
    0x0300BFE4, // #1461.ExplAttrInfos(#90,REQ)
    0x0300C001, // #1462.ExplAttrInfos(#90,REQ)
    0x0300C01E, // #1463.ExplAttrInfos(#90,REQ)
    0x0300C03B, // #1464.DerivAttrInfos(#29)
    0x0300C055, // #1459.Attributes(#1460,#1461,#1462,#1463,#1464)
    0x0300C085, // #1465.Supertypes(#702)
    0x0300C09C, // #1465.Composition(#1465,#675,#702,#676)
    0x0300C0C4, // #1466.ExplAttrInfos(#1459,REQ)
    0x0200C8E7, // #1465.Attributes(#1466)
    0x0300C0E3, // #1468.Supertypes(#1196)
    0x0300C0FB, // #1468.Composition(#1468,#1083,#838,#1108,#98,#1192,#1196)
    0x0300C135, // #1467.Supertypes(#1468)
    0x0300C14D, // #1467.Composition(#1467,#1468,#1083,#838,#1108,#98,#1192,#1196)
    0x0300C18D, // #1469.ExplAttrInfos(#248,OPT)
    0x0300C1AB, // #1467.Attributes(#1469)
    0x0300C1C3, // #1471.Supertypes(#1196)
    0x0300C1DB, // #1471.Composition(#1471,#1083,#838,#1108,#98,#1192,#1196)
    0x0300C215, // #1470.Supertypes(#1471)
    0x0300C22D, // #1470.Composition(#1470,#1471,#1083,#838,#1108,#98,#1192,#1196)
    0x0300C26D, // #1472.ExplAttrInfos(#246,OPT)
    0x0300C28B, // #1470.Attributes(#1472)
    0x0300C2A3, // #1473.Supertypes(#1468)
    0x0300C2BB, // #1473.Composition(#1473,#1468,#1083,#838,#1108,#98,#1192,#1196)
    0x0300C2FB, // #1474.ExplAttrInfos(#56,OPT)
    0x0300C318, // #1475.ExplAttrInfos(#56,OPT)
    0x0300C335, // #1477.Supertypes(#125)
    0x0300C34C, // #1477.Composition(#125,#1477)
    0x0300C36A, // #1478.ExplAttrInfos(#14,OPT)
    0x0300C387, // #1479.ExplAttrInfos(#1480,OPT)
    0x0300C3A6, // #1481.ExplAttrInfos(#14,OPT)
    0x0300C3C3, // #1482.ExplAttrInfos(#14,OPT)
    0x0300C3E0, // #1483.ExplAttrInfos(#14,OPT)
    0x0300C3FD, // #1484.ExplAttrInfos(#14,OPT)
    0x0300C41A, // #1485.ExplAttrInfos(#14,OPT)
    0x0300C437, // #1477.Attributes(#1478,#1479,#1481,#1482,#1483,#1484,#1485)
    0x0300C473, // #1476.ExplAttrInfos(#1477,OPT)
    0x0300C492, // #1473.Attributes(#1474,#1475,#1476)
    0x0300C4B6, // #1487.Supertypes(#1204)
    0x0300C4CE, // #1487.Composition(#1204,#1487,#1083,#838,#1108,#98)
    0x0300C502, // #1486.Supertypes(#1487)
    0x0300C51A, // #1486.Composition(#1486,#1204,#1487,#1083,#838,#1108,#98)
    0x0300C554, // #1488.ExplAttrInfos(#250,OPT)
    0x0300C572, // #1486.Attributes(#1488)
    0x0300C58A, // #1490.Supertypes(#1243)
    0x0300C5A2, // #1490.Composition(#1490,#1243,#838,#98,#1088,#1113)
    0x0300C5D6, // #1489.Supertypes(#1490)
    0x0300C5EE, // #1489.Composition(#1489,#1490,#1243,#838,#98,#1088,#1113)
    0x0300C628, // #1491.ExplAttrInfos(#250,REQ)
    0x0300C646, // #1489.Attributes(#1491)
    0x0300C65E, // #1492.Supertypes(#1414)
    0x0300C676, // #1492.Composition(#1414,#1492,#1204,#1083,#838,#1108,#98)
    0x0300C6B0, // #1493.ExplAttrInfos(#252,OPT)
    0x0300C6CE, // #1492.Attributes(#1493)
    0x0300C6E6, // #1494.Supertypes(#1418)
    0x0300C6FE, // #1494.Composition(#1494,#1418,#1243,#838,#98,#1088,#1113)
    0x0300C738, // #1495.ExplAttrInfos(#252,REQ)
    0x0300C756, // #1494.Attributes(#1495)
    0x0300C76E, // #1496.Supertypes(#1471)
    0x0300C786, // #1496.Composition(#1496,#1471,#1083,#838,#1108,#98,#1192,#1196)
    0x0300C7C6, // #1497.ExplAttrInfos(#56,OPT)
    0x0300C7E3, // #1496.Attributes(#1497)
    0x0300C7FB, // #1499.Supertypes(#1335)
    0x0300C813, // #1499.Composition(#1335,#1083,#838,#98,#1499)
    0x0300C841, // #1498.Supertypes(#1499)
    0x0300C859, // #1498.Composition(#1498,#1335,#1083,#838,#98,#1499)
    0x0300C88D, // #1500.ExplAttrInfos(#254,OPT)
    0x0300C8AB, // #1501.ExplAttrInfos(#14,OPT)
    0x0300C8C8, // #1498.Attributes(#1500,#1501)
    0x0300C8E6, // #1502.Supertypes(#1268)
    0x0300C8FE, // #1502.Composition(#1502,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)
    0x0300C944, // #1503.ExplAttrInfos(#256,OPT)
    0x01015A47, // #1502.Attributes(#1503)
    0x0300C962, // #1504.Supertypes(#1271)
    0x0300C97A, // #1504.Composition(#1504,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)
    0x0300C9C0, // #1505.ExplAttrInfos(#256,REQ)
    0x01015ADB, // #1504.Attributes(#1505)
    0x0300C9DE, // #1506.Supertypes(#1347)
    0x0300C9F6, // #1506.Composition(#1506,#1347,#1147)
    0x0300CA1B, // #1507.ExplAttrInfos(#90,REQ)
    0x0300CA38, // #1508.ExplAttrInfos(#90,REQ)
    0x0300CA55, // #1509.ExplAttrInfos(#90,REQ)
    0x0300CA72, // #1510.ExplAttrInfos(#90,REQ)
    0x0300CA8F, // #1511.ExplAttrInfos(#82,OPT)
    0x0300CAAC, // #1506.Attributes(#1507,#1508,#1509,#1510,#1511)
    0x0300CADC, // #1513.Supertypes(#1255)
    0x0300CAF4, // #1513.Composition(#1238,#1255,#1204,#1513,#1083,#838,#1108,#98)
    0x0300CB34, // #1512.Supertypes(#1513)
    0x0300CB4C, // #1512.Composition(#1512,#1238,#1255,#1204,#1513,#1083,#838,#1108,#98)
    0x0300CB92, // #1514.ExplAttrInfos(#258,OPT)
    0x0300CBB0, // #1512.Attributes(#1514)
    0x0300CBC8, // #1516.Supertypes(#1262)
    0x0300CBE0, // #1516.Composition(#1242,#1262,#1243,#1516,#838,#98,#1088,#1113)
    0x0300CC20, // #1515.Supertypes(#1516)
    0x0300CC38, // #1515.Composition(#1515,#1242,#1262,#1243,#1516,#838,#98,#1088,#1113)
    0x0300CC7E, // #1517.ExplAttrInfos(#258,REQ)
    0x0300CC9C, // #1515.Attributes(#1517)
    0x0300CCB4, // #1519.Supertypes(#1255)
    0x0300CCCC, // #1519.Composition(#1238,#1255,#1204,#1519,#1083,#838,#1108,#98)
    0x0300CD0C, // #1518.Supertypes(#1519)
    0x0300CD24, // #1518.Composition(#1518,#1238,#1255,#1204,#1519,#1083,#838,#1108,#98)
    0x0300CD6A, // #1520.ExplAttrInfos(#260,OPT)
    0x0300CD88, // #1518.Attributes(#1520)
    0x0300CDA0, // #1522.Supertypes(#1262)
    0x0300CDB8, // #1522.Composition(#1242,#1262,#1243,#1522,#838,#98,#1088,#1113)
    0x0300CDF8, // #1521.Supertypes(#1522)
    0x0300CE10, // #1521.Composition(#1521,#1242,#1262,#1243,#1522,#838,#98,#1088,#1113)
    0x0300CE56, // #1523.ExplAttrInfos(#260,REQ)
    0x0300CE74, // #1521.Attributes(#1523)
    0x0300CE8C, // #1524.Supertypes(#1513)
    0x0300CEA4, // #1524.Composition(#1524,#1238,#1255,#1204,#1513,#1083,#838,#1108,#98)
    0x0300CEEA, // #1525.ExplAttrInfos(#262,OPT)
    0x0300CF08, // #1524.Attributes(#1525)
    0x0300CF20, // #1526.Supertypes(#1516)
    0x0300CF38, // #1526.Composition(#1526,#1242,#1262,#1243,#1516,#838,#98,#1088,#1113)
    0x0300CF7E, // #1527.ExplAttrInfos(#262,REQ)
    0x0300CF9C, // #1526.Attributes(#1527)
    0x0300CFB4, // #1528.Supertypes(#1519)
    0x0300CFCC, // #1528.Composition(#1528,#1238,#1255,#1204,#1519,#1083,#838,#1108,#98)
    0x0300D012, // #1529.ExplAttrInfos(#264,OPT)
    0x00024BF7, // #1528.Attributes(#1529)
    0x0300D030, // #1530.Supertypes(#1522)
    0x0300D048, // #1530.Composition(#1530,#1242,#1262,#1243,#1522,#838,#98,#1088,#1113)
    0x0300D08E, // #1531.ExplAttrInfos(#264,REQ)
    0x01015FCC, // #1530.Attributes(#1531)
    0x0300D0AC, // #1533.Supertypes(#1414)
    0x0300D0C4, // #1533.Composition(#1414,#1533,#1204,#1083,#838,#1108,#98)
    0x0300D0FE, // #1532.Supertypes(#1533)
    0x0300D116, // #1532.Composition(#1414,#1532,#1533,#1204,#1083,#838,#1108,#98)
    0x0300D156, // #1534.ExplAttrInfos(#266,OPT)
    0x0300D174, // #1532.Attributes(#1534)
    0x0300D18C, // #1536.Supertypes(#1418)
    0x0300D1A4, // #1536.Composition(#1418,#1536,#1243,#838,#98,#1088,#1113)
    0x0300D1DE, // #1535.Supertypes(#1536)
    0x0300D1F6, // #1535.Composition(#1418,#1535,#1536,#1243,#838,#98,#1088,#1113)
    0x0300D236, // #1537.ExplAttrInfos(#266,REQ)
    0x0300D254, // #1535.Attributes(#1537)
    0x0300D26C, // #1538.Supertypes(#714)
    0x0300D283, // #1538.Composition(#714,#1538,#675,#676)
    0x0300D2AB, // #1539.ExplAttrInfos(#1541,REQ)
    0x0300D2CA, // #1542.ExplAttrInfos(#1543,OPT)
    0x0300D2E9, // #1538.Attributes(#1539,#1542)
    0x0300D307, // #1544.Supertypes(#924)
    0x0300D31E, // #1544.Composition(#925,#924,#1544,#675,#676)
    0x0300D34B, // #1545.ExplAttrInfos(#165,OPT)
    0x0300D369, // #1546.DerivAttrInfos(#165)
    0x0300D384, // #1544.Attributes(#1545,#1546)
    0x0300D3A2, // #1547.Supertypes(#925)
    0x0300D3B9, // #1547.Composition(#925,#1547,#675,#676)
    0x0300D3E1, // #1548.ExplAttrInfos(#685,OPT)
    0x0300D3FF, // #1549.DerivAttrInfos(#1550)
    0x0300D41B, // #1547.Attributes(#1548,#1549)
    0x0300D439, // #1.Entities(#1228,#1234,#116,#1236,#1240,#125,#1246,#1249,#1252,#1253,#1257,#1260,#1264,#1267,#1270,#1273,#1275,#1277,#1282,#1285,#1286,#1296,#1304,#1305,#1308,#1297,#1311,#1315,#1316,#144,#1028,#1121,#1320,#1327,#1329,#1331,#1334,#1346,#1361,#1363,#1365,#673,#689,#1368,#1378,#1385,#1401,#1413,#1416,#1417,#1420,#1422,#1424,#1427,#1431,#1433,#1435,#696,#1436,#1438,#1439,#1446,#1450,#1457,#801,#1386,#1459,#1465,#1467,#1470,#1473,#1414,#1486,#1489,#1492,#1494,#1418,#1496,#1498,#1502,#1504,#1506,#1512,#1515,#1518,#1521,#1524,#1526,#1528,#1530,#1532,#1535,#678,#714,#1538,#713,#925,#924,#1544,#1547)
    0x0300D692, // #1551.Supertypes(#1547)
    0x0300D6AA, // #1551.Composition(#925,#1547,#1551,#675,#676)
    0x0300D6D8, // #1552.ExplAttrInfos(#165,OPT)
    0x0300D6F6, // #1553.ExplAttrInfos(#165,OPT)
    0x0300D714, // #1554.DerivAttrInfos(#165)
    0x0300D72F, // #1555.DerivAttrInfos(#165)
    0x0300D74A, // #1551.Attributes(#1552,#1553,#1554,#1555)
    0x0300D774, // #1556.Supertypes(#1329)
    0x0300D78C, // #1556.Composition(#1329,#1556,#1147)
    0x0300D7B1, // #1557.ExplAttrInfos(#90,REQ)
    0x0300D7CE, // #1556.Attributes(#1557)
    0x0300D7E6, // #1558.Supertypes(#1268)
    0x0300D7FE, // #1558.Composition(#1558,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)
    0x0300D844, // #1559.ExplAttrInfos(#268,OPT)
    0x0300D862, // #1558.Attributes(#1559)
    0x0300D87A, // #1560.Supertypes(#1271)
    0x0300D892, // #1560.Composition(#1560,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)
    0x0300D8D8, // #1561.ExplAttrInfos(#268,REQ)
    0x0300D8F6, // #1560.Attributes(#1561)
    0x0300D90E, // #1562.Supertypes(#1414)
    0x0300D926, // #1562.Composition(#1414,#1562,#1204,#1083,#838,#1108,#98)
    0x0300D960, // #1563.ExplAttrInfos(#270,OPT)
    0x0300D97E, // #1562.Attributes(#1563)
    0x0300D996, // #1564.Supertypes(#1418)
    0x0300D9AE, // #1564.Composition(#1418,#1564,#1243,#838,#98,#1088,#1113)
    0x0300D9E8, // #1565.ExplAttrInfos(#270,REQ)
    0x0300DA06, // #1564.Attributes(#1565)
    0x0300DA1E, // #1567.Supertypes(#802)
    0x0300DA35, // #1567.Composition(#1567,#802,#675,#676)
    0x0300DA5D, // #1568.ExplAttrInfos(#693,REQ)
    0x0300DA7B, // #1567.Attributes(#1568)
    0x0300DA93, // #1566.Supertypes(#1567)
    0x0300DAAB, // #1566.Composition(#1566,#1567,#802,#675,#676)
    0x0300DAD9, // #1569.ExplAttrInfos(#90,REQ)
    0x0300DAF6, // #1566.Attributes(#1569)
    0x0300DB0E, // #1571.Supertypes(#1347)
    0x0300DB26, // #1571.Composition(#1571,#1347,#1147)
    0x0300DB4B, // #1572.ExplAttrInfos(#90,REQ)
    0x0300DB68, // #1571.Attributes(#1572)
    0x0300DB80, // #1570.Supertypes(#1571)
    0x0300DB98, // #1570.Composition(#1570,#1571,#1347,#1147)
    0x0300DBC3, // #1573.ExplAttrInfos(#90,REQ)
    0x0300DBE0, // #1570.Attributes(#1573)
    0x0300DBF8, // #1574.Supertypes(#1291)
    0x0300DC10, // #1574.Composition(#801,#1574,#802,#1291,#675,#676)
    0x0300DC43, // #1575.ExplAttrInfos(#90,REQ)
    0x0300DC60, // #1576.ExplAttrInfos(#13,REQ)
    0x0300DC7D, // #1574.Attributes(#1575,#1576)
    0x0300DC9B, // #1577.Supertypes(#1204)
    0x0300DCB3, // #1577.Composition(#1577,#1204,#1083,#838,#1108,#98)
    0x0300DCE7, // #1578.Supertypes(#1243)
    0x0300DCFF, // #1578.Composition(#1578,#1243,#838,#98,#1088,#1113)
    0x0300DD33, // #1579.Supertypes(#1268)
    0x0300DD4B, // #1579.Composition(#1579,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)
    0x0300DD91, // #1580.ExplAttrInfos(#272,OPT)
    0x0300DDAF, // #1579.Attributes(#1580)
    0x0300DDC7, // #1581.Supertypes(#1271)
    0x0300DDDF, // #1581.Composition(#1581,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)
    0x0300DE25, // #1582.ExplAttrInfos(#272,REQ)
    0x0300DE43, // #1581.Attributes(#1582)
    0x0300DE5B, // #1583.Supertypes(#753)
    0x0300DE72, // #1583.Composition(#1583,#753)
    0x0300DE90, // #1584.ExplAttrInfos(#1586,REQ)
    0x0300DEAF, // #1583.Attributes(#1584)
    0x0300DEC7, // #1587.Supertypes(#1414)
    0x0300DEDF, // #1587.Composition(#1414,#1587,#1204,#1083,#838,#1108,#98)
    0x0300DF19, // #1588.ExplAttrInfos(#274,OPT)
    0x0300DF37, // #1587.Attributes(#1588)
    0x0300DF4F, // #1589.Supertypes(#1587)
    0x0300DF67, // #1589.Composition(#1414,#1587,#1589,#1204,#1083,#838,#1108,#98)
    0x0300DFA7, // #1590.Supertypes(#1418)
    0x0300DFBF, // #1590.Composition(#1418,#1590,#1243,#838,#98,#1088,#1113)
    0x0300DFF9, // #1591.ExplAttrInfos(#274,REQ)
    0x01016ADB, // #1590.Attributes(#1591)
    0x0300E017, // #1592.Supertypes(#1254)
    0x0300E02F, // #1592.Composition(#1592,#1238,#1255,#1204,#1254,#1083,#838,#1108,#98)
    0x0300E075, // #1593.ExplAttrInfos(#276,OPT)
    0x0300E093, // #1592.Attributes(#1593)
    0x0300E0AB, // #1594.Supertypes(#1265)
    0x0300E0C3, // #1594.Composition(#1594,#1242,#1262,#1243,#1265,#838,#98,#1088,#1113)
    0x0300E109, // #1595.ExplAttrInfos(#276,REQ)
    0x0300E127, // #1594.Attributes(#1595)
    0x0300E13F, // #1597.Supertypes(#1150)
    0x0300E157, // #1597.Composition(#1597,#1150)
    0x0300E176, // #1598.ExplAttrInfos(#48,REQ)
    0x0300E193, // #1599.ExplAttrInfos(#122,OPT)
    0x0300E1B1, // #1597.Attributes(#1598,#1599)
    0x0300E1CF, // #1596.Supertypes(#1597)
    0x0300E1E7, // #1596.Composition(#1596,#1597,#1150)
    0x0300E20C, // #1600.ExplAttrInfos(#48,REQ)
    0x0300E229, // #1601.ExplAttrInfos(#1602,REQ)
    0x0300E248, // #1596.Attributes(#1600,#1601)
    0x0300E266, // #1605.Supertypes(#97)
    0x0300E27C, // #1605.Composition(#97,#1605,#98)
    0x0300E29D, // #1604.Supertypes(#1605)
    0x0300E2B5, // #1604.Composition(#97,#1604,#1605,#98)
    0x0300E2DC, // #1603.Supertypes(#1604)
    0x0300E2F4, // #1603.Composition(#1603,#97,#1604,#1605,#98)
    0x0300E321, // #1606.ExplAttrInfos(#14,OPT)
    0x0300E33E, // #1607.ExplAttrInfos(#278,OPT)
    0x0300E35C, // #1608.ExplAttrInfos(#1609,OPT)
    0x0300E37B, // #1603.Attributes(#1606,#1607,#1608)
    0x0300E39F, // #1610.Supertypes(#1147)
    0x0300E3B7, // #1610.Composition(#1610,#1147)
    0x0300E3D6, // #1611.ExplAttrInfos(#1612,REQ)
    0x0300E3F5, // #1613.ExplAttrInfos(#14,OPT)
    0x0300E412, // #1610.Attributes(#1611,#1613)
    0x0300E430, // #1615.Supertypes(#1255)
    0x0300E448, // #1615.Composition(#1238,#1255,#1204,#1615,#1083,#838,#1108,#98)
    0x0300E488, // #1614.Supertypes(#1615)
    0x0300E4A0, // #1614.Composition(#1614,#1238,#1255,#1204,#1615,#1083,#838,#1108,#98)
    0x0300E4E6, // #1616.ExplAttrInfos(#280,OPT)
    0x0300E504, // #1614.Attributes(#1616)
    0x0300E51C, // #1618.Supertypes(#1262)
    0x0300E534, // #1618.Composition(#1242,#1262,#1243,#1618,#838,#98,#1088,#1113)
    0x0300E574, // #1617.Supertypes(#1618)
    0x0300E58C, // #1617.Composition(#1617,#1242,#1262,#1243,#1618,#838,#98,#1088,#1113)
    0x0300E5D2, // #1619.ExplAttrInfos(#280,REQ)
    0x0300E5F0, // #1617.Attributes(#1619)
    0x0300E608, // #1620.Supertypes(#1268)
    0x0300E620, // #1620.Composition(#1620,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)
    0x0300E666, // #1621.ExplAttrInfos(#282,OPT)
    0x0200E95C, // #1620.Attributes(#1621)
    0x0300E684, // #1622.Supertypes(#1271)
    0x0300E69C, // #1622.Composition(#1622,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)
    0x0300E6E2, // #1623.ExplAttrInfos(#282,REQ)
    0x0200E9F0, // #1622.Attributes(#1623)
    0x0300E700, // #1625.Composition(#1625)
    0x0300E719, // #1624.Supertypes(#1625)
    0x0300E731, // #1624.Composition(#1624,#1625)
    0x0300E750, // #1626.ExplAttrInfos(#837,REQ)
    0x0300E76E, // #1627.ExplAttrInfos(#837,OPT)
    0x0300E78C, // #1624.Attributes(#1626,#1627)
    0x0300E7AA, // #1629.Supertypes(#1625)
    0x0300E7C2, // #1629.Composition(#1625,#1629)
    0x0300E7E1, // #1630.ExplAttrInfos(#1081,REQ)
    0x0300E800, // #1631.ExplAttrInfos(#1081,OPT)
    0x0300E81F, // #1629.Attributes(#1630,#1631)
    0x0300E83D, // #1628.Supertypes(#1629)
    0x0300E855, // #1628.Composition(#1625,#1628,#1629)
    0x0300E87A, // #1632.ExplAttrInfos(#56,OPT)
    0x0300E897, // #1633.ExplAttrInfos(#56,OPT)
    0x0300E8B4, // #1634.ExplAttrInfos(#56,OPT)
    0x0300E8D1, // #1628.Attributes(#1632,#1633,#1634)
    0x0300E8F5, // #1635.Supertypes(#1625)
    0x0300E90D, // #1635.Composition(#1625,#1635)
    0x0300E92C, // #1636.ExplAttrInfos(#1217,REQ)
    0x0300E94B, // #1637.ExplAttrInfos(#1217,OPT)
    0x0300E96A, // #1635.Attributes(#1636,#1637)
    0x0300E988, // #1638.Supertypes(#1625)
    0x0300E9A0, // #1638.Composition(#1625,#1638)
    0x0300E9BF, // #1639.ExplAttrInfos(#1189,REQ)
    0x0300E9DE, // #1640.ExplAttrInfos(#1189,OPT)
    0x0300E9FD, // #1638.Attributes(#1639,#1640)
    0x0300EA1B, // #1642.Supertypes(#1161)
    0x0300EA33, // #1642.Composition(#1642,#1083,#838,#1161,#98)
    0x0300EA61, // #1645.Composition(#1645)
    0x0300EA7A, // #1646.ExplAttrInfos(#14,OPT)
    0x0300EA97, // #1647.ExplAttrInfos(#314,OPT)
    0x0300EAB5, // #1648.ExplAttrInfos(#14,OPT)
    0x0300EAD2, // #1645.Attributes(#1646,#1647,#1648)
    0x0300EAF6, // #1644.Supertypes(#1645)
    0x0300EB0E, // #1644.Composition(#1644,#1645)
    0x0300EB2D, // #1649.ExplAttrInfos(#31,OPT)
    0x0300EB4A, // #1650.ExplAttrInfos(#92,OPT)
    0x0300EB67, // #1651.ExplAttrInfos(#25,OPT)
    0x0300EB84, // #1652.ExplAttrInfos(#25,OPT)
    0x0300EBA1, // #1653.ExplAttrInfos(#14,OPT)
    0x0300EBBE, // #1654.ExplAttrInfos(#31,OPT)
    0x0300EBDB, // #1655.ExplAttrInfos(#13,OPT)
    0x0300EBF8, // #1656.ExplAttrInfos(#25,OPT)
    0x0300EC15, // #1657.ExplAttrInfos(#31,OPT)
    0x0300EC32, // #1658.ExplAttrInfos(#92,OPT)
    0x0300EC4F, // #1659.ExplAttrInfos(#25,OPT)
    0x0300EC6C, // #1660.ExplAttrInfos(#25,OPT)
    0x0300EC89, // #1661.ExplAttrInfos(#31,OPT)
    0x0300ECA6, // #1662.ExplAttrInfos(#92,OPT)
    0x0300ECC3, // #1663.ExplAttrInfos(#92,OPT)
    0x0300ECE0, // #1644.Attributes(#1649,#1650,#1651,#1652,#1653,#1654,#1655,#1656,#1657,#1658,#1659,#1660,#1661,#1662,#1663)
    0x0300ED4C, // #1643.ExplAttrInfos(#1644,OPT)
    0x0300ED6B, // #1664.ExplAttrInfos(#1665,OPT)
    0x0300ED8A, // #1666.ExplAttrInfos(#1144,OPT)
    0x0300EDA9, // #1642.Attributes(#1643,#1664,#1666)
    0x0300EDCD, // #1641.Supertypes(#1642)
    0x0300EDE5, // #1641.Composition(#1641,#1642,#1083,#838,#1161,#98)
    0x0300EE19, // #1667.ExplAttrInfos(#288,OPT)
    0x0300EE37, // #1641.Attributes(#1667)
    0x0300EE4F, // #1669.Supertypes(#1164)
    0x0300EE67, // #1669.Composition(#1669,#838,#98,#1088,#1164)
    0x0300EE95, // #1670.ExplAttrInfos(#1671,OPT)
    0x0300EEB4, // #1672.ExplAttrInfos(#1144,OPT)
    0x0300EED3, // #1669.Attributes(#1670,#1672)
    0x0300EEF1, // #1668.Supertypes(#1669)
    0x0300EF09, // #1668.Composition(#1668,#1669,#838,#98,#1088,#1164)
    0x0300EF3D, // #1673.ExplAttrInfos(#288,REQ)
    0x0300EF5B, // #1668.Attributes(#1673)
    0x0300EF73, // #1674.Supertypes(#1642)
    0x0300EF8B, // #1674.Composition(#1674,#1642,#1083,#838,#1161,#98)
    0x0300EFBF, // #1675.ExplAttrInfos(#290,OPT)
    0x0300EFDD, // #1674.Attributes(#1675)
    0x0300EFF5, // #1676.Supertypes(#1669)
    0x0300F00D, // #1676.Composition(#1676,#1669,#838,#98,#1088,#1164)
    0x0300F041, // #1677.ExplAttrInfos(#290,REQ)
    0x0300F05F, // #1676.Attributes(#1677)
    0x0300F077, // #1678.Supertypes(#1642)
    0x0300F08F, // #1678.Composition(#1678,#1642,#1083,#838,#1161,#98)
    0x0300F0C3, // #1679.ExplAttrInfos(#292,OPT)
    0x0300F0E1, // #1678.Attributes(#1679)
    0x0300F0F9, // #1680.Supertypes(#1669)
    0x0300F111, // #1680.Composition(#1680,#1669,#838,#98,#1088,#1164)
    0x0300F145, // #1681.ExplAttrInfos(#292,REQ)
    0x0002689C, // #1680.Attributes(#1681)
    0x0300F163, // #1682.Supertypes(#838)
    0x0300F17A, // #1682.Composition(#1682,#838,#98)
    0x01017DE6, // #1683.ExplAttrInfos(#14,OPT)
    0x0300F19C, // #1684.ExplAttrInfos(#14,OPT)
    0x0300F1B9, // #1685.ExplAttrInfos(#14,OPT)
    0x0300F1D6, // #1686.ExplAttrInfos(#1687,OPT)
    0x0300F1F5, // #1689.Composition(#1689)
    0x0300F20E, // #1690.ExplAttrInfos(#1691,REQ)
    0x0200F77B, // #1689.Attributes(#1690)
    0x0300F22D, // #1688.ExplAttrInfos(#1689,OPT)
    0x0300F24C, // #1682.Attributes(#1683,#1684,#1685,#1686,#1688)
    0x0300F27C, // #1692.Supertypes(#1237)
    0x0300F294, // #1692.Composition(#1692,#1237,#1238,#1204,#1083,#838,#1108,#98)
    0x0300F2D4, // #1693.ExplAttrInfos(#294,OPT)
    0x0300F2F2, // #1692.Attributes(#1693)
    0x0300F30A, // #1694.Supertypes(#1241)
    0x0300F322, // #1694.Composition(#1694,#1241,#1242,#1243,#838,#98,#1088,#1113)
    0x0300F362, // #1695.ExplAttrInfos(#294,REQ)
    0x0300F380, // #1694.Attributes(#1695)
    0x0300F398, // #1696.Supertypes(#1141)
    0x0300F3B0, // #1696.Composition(#1141,#1696,#644)
    0x0300F3D4, // #1697.ExplAttrInfos(#165,REQ)
    0x0300F3F2, // #1696.Attributes(#1697)
    0x0300F40A, // #1698.Supertypes(#1268)
    0x0300F422, // #1698.Composition(#1698,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)
    0x0300F468, // #1699.ExplAttrInfos(#296,OPT)
    0x0300F486, // #1698.Attributes(#1699)
    0x0300F49E, // #1700.Supertypes(#1271)
    0x0300F4B6, // #1700.Composition(#1700,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)
    0x0300F4FC, // #1701.ExplAttrInfos(#296,REQ)
    0x0300F51A, // #1700.Attributes(#1701)
    0x0300F532, // #1702.Supertypes(#1268)
    0x0300F54A, // #1702.Composition(#1702,#1238,#1255,#1204,#1268,#1083,#838,#1108,#98)
    0x0300F590, // #1703.ExplAttrInfos(#298,OPT)
    0x0300F5AE, // #1702.Attributes(#1703)
    0x0300F5C6, // #1704.Supertypes(#1271)
    0x0300F5DE, // #1704.Composition(#1704,#1242,#1262,#1243,#1271,#838,#98,#1088,#1113)
    0x0300F624, // #1705.ExplAttrInfos(#298,REQ)
    0x0300F642, // #1704.Attributes(#1705)
    0x0300F65A, // #1706.Composition(#1706)
    0x0300F673, // #1707.ExplAttrInfos(#780,REQ)
    0x0300F691, // #1708.ExplAttrInfos(#766,REQ)
    0x0300F6AF, // #1706.Attributes(#1707,#1708)
    0x0300F6CD, // #1709.Supertypes(#1229)
    0x0300F6E5, // #1709.Composition(#1229,#1709,#1083,#838,#98)
    0x0300F713, // #1710.ExplAttrInfos(#300,OPT)
    0x0300F731, // #1711.ExplAttrInfos(#1712,OPT)
    0x0101841F, // #1713.ExplAttrInfos(#1714,OPT)
    0x0300F750, // #1709.Attributes(#1710,#1711,#1713)
    0x0300F774, // #1715.Supertypes(#1229)
    0x0300F78C, // #1715.Composition(#1229,#1715,#1083,#838,#98)
    0x0300F7BA, // #1716.ExplAttrInfos(#302,OPT)
    0x0300F7D8, // #1717.ExplAttrInfos(#14,OPT)
    0x0300F7F5, // #1718.ExplAttrInfos(#25,OPT)
    0x0300F812, // #1719.ExplAttrInfos(#25,OPT)
    0x0300F82F, // #1715.Attributes(#1716,#1717,#1718,#1719)
    0x0300F859, // #1720.Supertypes(#1414)
    0x0300F871, // #1720.Composition(#1414,#1720,#1204,#1083,#838,#1108,#98)
    0x0300F8AB, // #1721.ExplAttrInfos(#304,OPT)
    0x0300F8C9, // #1720.Attributes(#1721)
    0x0300F8E1, // #1722.Supertypes(#1418)
    0x0300F8F9, // #1722.Composition(#1418,#1722,#1243,#838,#98,#1088,#1113)
    0x0300F933, // #1723.ExplAttrInfos(#304,REQ)
    0x0300F951, // #1722.Attributes(#1723)
    0x0300F969, // #1724.Supertypes(#1642)
    0x0300F981, // #1724.Composition(#1642,#1724,#1083,#838,#1161,#98)
    0x0300F9B5, // #1725.ExplAttrInfos(#306,OPT)
    0x0300F9D3, // #1724.Attributes(#1725)
    0x0300F9EB, // #1726.Supertypes(#1669)
    0x0300FA03, // #1726.Composition(#1669,#1726,#838,#98,#1088,#1164)
    0x0300FA37, // #1727.ExplAttrInfos(#306,REQ)
    0x0300FA55, // #1726.Attributes(#1727)
    0x0300FA6D, // #1728.Supertypes(#708)
    0x0300FA84, // #1728.Composition(#1728,#675,#676,#708)
    0x0300FAAC, // #1729.ExplAttrInfos(#782,REQ)
    0x0300FACA, // #1728.Attributes(#1729)
    0x0300FAE2, // #1730.Supertypes(#1321)
    0x0300FAFA, // #1730.Composition(#1730,#1321)
    0x0300FB19, // #1731.ExplAttrInfos(#660,REQ)
    0x0300FB37, // #1732.ExplAttrInfos(#660,REQ)
    0x0300FB55, // #1733.ExplAttrInfos(#92,REQ)
    0x0300FB72, // #1734.ExplAttrInfos(#25,OPT)
    0x0300FB8F, // #1735.ExplAttrInfos(#992,OPT)
    0x0300FBAD, // #1730.Attributes(#1731,#1732,#1733,#1734,#1735)
    0x0300FBDD, // #1736.Supertypes(#1414)
    0x0300FBF5, // #1736.Composition(#1414,#1736,#1204,#1083,#838,#1108,#98)
    0x0300FC2F, // #1737.ExplAttrInfos(#308,OPT)
    0x0300FC4D, // #1736.Attributes(#1737)
    0x0300FC65, // #1738.Supertypes(#1418)
    0x0300FC7D, // #1738.Composition(#1418,#1738,#1243,#838,#98,#1088,#1113)
    0x0300FCB7, // #1739.ExplAttrInfos(#308,REQ)
    0x0300FCD5, // #1738.Attributes(#1739)
    0x0300FCED, // #1740.Supertypes(#1386)
    0x0300FD05, // #1740.Composition(#1386,#1740,#675,#676,#704)
    0x0300FD33, // #1743.Supertypes(#704)
    0x0300FD4A, // #1743.Composition(#1743,#675,#676,#704)
    0x0300FD72, // #1744.ExplAttrInfos(#689,REQ)
    0x0101890A, // #1743.Attributes(#1744)
    0x0300FD90, // #1742.Supertypes(#1743)
    0x0300FDA8, // #1742.Composition(#1743,#675,#1742,#676,#704)
    0x0300FDD6, // #1741.ExplAttrInfos(#1742,REQ)
    0x0300FDF5, // #1745.ExplAttrInfos(#802,REQ)
    0x0300FE13, // #1746.ExplAttrInfos(#1747,REQ)
    0x0300FE32, // #1740.Attributes(#1741,#1745,#1746)
    0x0300FE56, // #1748.Supertypes(#1386)
    0x0300FE6E, // #1748.Composition(#1386,#1748,#675,#676,#704)
    0x0300FE9C, // #1749.ExplAttrInfos(#704,REQ)
    0x0300FEBA, // #1750.ExplAttrInfos(#1751,REQ)
    0x0300FED9, // #1752.ExplAttrInfos(#13,REQ)
    0x0300FEF6, // #1748.Attributes(#1749,#1750,#1752)
    0x0300FF1A, // #1753.Supertypes(#1743)
    0x0300FF32, // #1753.Composition(#1753,#1743,#675,#676,#704)
    0x0300FF60, // #1754.ExplAttrInfos(#90,REQ)
    0x000277FF, // #1753.Attributes(#1754)
    0x0300FF7D, // #1755.Supertypes(#1258)
    0x0300FF95, // #1755.Composition(#1755,#1238,#1255,#1204,#1258,#1083,#838,#1108,#98)
    0x0300FFDB, // #1756.ExplAttrInfos(#312,OPT)
    0x02010607, // #1755.Attributes(#1756)
    0x0300FFF9, // #1757.Supertypes(#1261)
    0x03010011, // #1757.Composition(#1757,#1242,#1262,#1243,#1261,#838,#98,#1088,#1113)
    0x03010057, // #1758.ExplAttrInfos(#312,REQ)
    0x0201069B, // #1757.Attributes(#1758)
    0x03010075, // #1759.Supertypes(#1147)
    0x0301008D, // #1759.Composition(#1759,#1147)
    0x030100AC, // #1760.ExplAttrInfos(#1147,REQ)
    0x030100CB, // #1761.ExplAttrInfos(#924,REQ)
    0x030100E9, // #1762.ExplAttrInfos(#14,OPT)
    0x03010106, // #1759.Attributes(#1760,#1761,#1762)
    0x0301012A, // #1763.Supertypes(#1487)
    0x03010142, // #1763.Composition(#1763,#1204,#1487,#1083,#838,#1108,#98)
    0x0301017C, // #1764.ExplAttrInfos(#320,OPT)
    0x0301019A, // #1763.Attributes(#1764)
    0x030101B2, // #1765.Supertypes(#1490)
    0x030101CA, // #1765.Composition(#1765,#1490,#1243,#838,#98,#1088,#1113)
    0x03010204, // #1766.ExplAttrInfos(#320,REQ)
    0x03010222, // #1765.Attributes(#1766)
    0x0301023A, // #1767.Supertypes(#675)
    0x03010251, // #1767.Composition(#1767,#675,#676)
    0x03010274, // #1768.ExplAttrInfos(#56,REQ)
    0x03010291, // #1769.ExplAttrInfos(#56,OPT)
    0x030102AE, // #1770.ExplAttrInfos(#56,OPT)
    0x030102CB, // #1771.ExplAttrInfos(#56,OPT)
    0x030102E8, // #1772.ExplAttrInfos(#13,OPT)
    0x03010305, // #1767.Attributes(#1768,#1769,#1770,#1771,#1772)
    0x03010335, // #1773.Supertypes(#1255)
    0x0301034D, // #1773.Composition(#1773,#1238,#1255,#1204,#1083,#838,#1108,#98)
    0x0301038D, // #1774.ExplAttrInfos(#322,OPT)
    0x030103AB, // #1773.Attributes(#1774)
    0x030103C3, // #1775.Supertypes(#1262)
    0x030103DB, // #1775.Composition(#1775,#1242,#1262,#1243,#838,#98,#1088,#1113)
    0x0301041B, // #1776.ExplAttrInfos(#322,REQ)
    0x02010B3F, // #1775.Attributes(#1776)
    0x03010439, // #1.Entities(#1551,#1556,#1558,#1560,#1562,#1564,#1566,#1570,#1571,#1574,#1577,#1578,#728,#738,#1174,#1579,#1581,#760,#1583,#752,#1587,#1589,#1590,#1592,#1594,#1596,#1603,#800,#799,#805,#1610,#1614,#1617,#1620,#1622,#1567,#1175,#1624,#1625,#1628,#1629,#1635,#1638,#1131,#1641,#1668,#1674,#1676,#1678,#1680,#1642,#1669,#1682,#1139,#1229,#1692,#1694,#1141,#1696,#1698,#1700,#1702,#1704,#1706,#766,#1709,#1715,#1338,#1720,#1722,#1724,#1726,#699,#1728,#1730,#1736,#1738,#802,#1740,#1748,#1291,#868,#786,#783,#789,#1753,#1755,#1757,#1533,#1536,#1759,#640,#642,#646,#685,#1763,#1765,#1767,#1773,#1775)
    0x0301068C, // #1778.Supertypes(#1499)
    0x030106A4, // #1778.Composition(#1778,#1335,#1083,#838,#98,#1499)
    0x030106D8, // #1779.ExplAttrInfos(#14,OPT)
    0x030106F5, // #1780.ExplAttrInfos(#326,OPT)
    0x03010713, // #1778.Attributes(#1779,#1780)
    0x010193DE, // #1777.Supertypes(#1778)
    0x03010731, // #1777.Composition(#1777,#1778,#1335,#1083,#838,#98,#1499)
    0x0301076B, // #1782.Supertypes(#1108)
    0x03010783, // #1782.Composition(#1083,#838,#1782,#1108,#98)
    0x030107B1, // #1781.Supertypes(#1782)
    0x030107C9, // #1781.Composition(#1781,#1083,#838,#1782,#1108,#98)
    0x030107FD, // #1783.ExplAttrInfos(#386,OPT)
    0x0301081B, // #1784.ExplAttrInfos(#324,OPT)
    0x03010839, // #1785.ExplAttrInfos(#326,OPT)
    0x03010857, // #1781.Attributes(#1783,#1784,#1785)
    0x0301087B, // #1786.Supertypes(#1321)
    0x03010893, // #1786.Composition(#1786,#1321)
    0x030108B2, // #1787.ExplAttrInfos(#841,REQ)
    0x030108D0, // #1788.ExplAttrInfos(#1789,REQ)
    0x030108EF, // #1790.ExplAttrInfos(#14,OPT)
    0x0301090C, // #1786.Attributes(#1787,#1788,#1790)
    0x03010930, // #1791.Supertypes(#1414)
    0x03010948, // #1791.Composition(#1414,#1791,#1204,#1083,#838,#1108,#98)
    0x03010982, // #1792.ExplAttrInfos(#90,OPT)
    0x0301099F, // #1793.ExplAttrInfos(#90,OPT)
    0x030109BC, // #1794.ExplAttrInfos(#340,OPT)
    0x030109DA, // #1795.ExplAttrInfos(#342,OPT)
    0x030109F8, // #1796.ExplAttrInfos(#14,OPT)
    0x03010A15, // #1791.Attributes(#1792,#1793,#1794,#1795,#1796)
    0x010198FA, // #1798.Supertypes(#96)
    0x03010A45, // #1798.Composition(#1798,#97,#96,#98)
    0x01019935, // #1797.Supertypes(#1798)
    0x03010A6A, // #1797.Composition(#1797,#1798,#97,#96,#98)
    0x03010A95, // #1799.ExplAttrInfos(#90,OPT)
    0x03010AB2, // #1800.ExplAttrInfos(#82,OPT)
    0x03010ACF, // #1801.ExplAttrInfos(#90,OPT)
    0x03010AEC, // #1802.ExplAttrInfos(#82,OPT)
    0x03010B09, // #1803.ExplAttrInfos(#82,OPT)
    0x03010B26, // #1804.ExplAttrInfos(#56,OPT)
    0x03010B43, // #1805.ExplAttrInfos(#56,OPT)
    0x03010B60, // #1806.ExplAttrInfos(#56,OPT)
    0x03010B7D, // #1807.ExplAttrInfos(#90,OPT)
    0x03010B9A, // #1808.ExplAttrInfos(#90,OPT)
    0x03010BB7, // #1809.ExplAttrInfos(#1151,OPT)
    0x03010BD6, // #1810.ExplAttrInfos(#56,OPT)
    0x03010BF3, // #1811.ExplAttrInfos(#56,OPT)
    0x03010C10, // #1797.Attributes(#1799,#1800,#1801,#1802,#1803,#1804,#1805,#1806,#1807,#1808,#1809,#1810,#1811)
    0x03010C70, // #1812.Supertypes(#1798)
    0x03010C88, // #1812.Composition(#1812,#1798,#97,#96,#98)
    0x03010CB3, // #1813.ExplAttrInfos(#90,OPT)
    0x03010CD0, // #1814.ExplAttrInfos(#332,REQ)
    0x03010CEE, // #1815.ExplAttrInfos(#84,OPT)
    0x03010D0B, // #1816.ExplAttrInfos(#334,REQ)
    0x03010D29, // #1817.ExplAttrInfos(#1151,OPT)
    0x03010D48, // #1812.Attributes(#1813,#1814,#1815,#1816,#1817)
    0x03010D78, // #1818.Supertypes(#1791)
    0x03010D90, // #1818.Composition(#1414,#1791,#1818,#1204,#1083,#838,#1108,#98)
    0x03010DD0, // #1819.Supertypes(#1113)
    0x03010DE8, // #1819.Composition(#1819,#838,#98,#1088,#1113)
    0x03010E16, // #1820.ExplAttrInfos(#338,REQ)
    0x03010E34, // #1821.ExplAttrInfos(#336,REQ)
    0x03010E52, // #1822.ExplAttrInfos(#13,REQ)
    0x03010E6F, // #1823.ExplAttrInfos(#13,REQ)
    0x03010E8C, // #1819.Attributes(#1820,#1821,#1822,#1823)
    0x03010EB6, // #1824.Supertypes(#1418)
    0x03010ECE, // #1824.Composition(#1418,#1824,#1243,#838,#98,#1088,#1113)
    0x03010F08, // #1825.ExplAttrInfos(#340,REQ)
    0x03010F26, // #1826.ExplAttrInfos(#342,REQ)
    0x03010F44, // #1827.ExplAttrInfos(#13,OPT)
    0x03010F61, // #1828.ExplAttrInfos(#14,OPT)
    0x03010F7E, // #1824.Attributes(#1825,#1826,#1827,#1828)
    0x03010FA8, // #1829.Supertypes(#755)
    0x03010FBF, // #1829.Composition(#1829,#755,#756,#753)
    0x03010FE7, // #1830.Supertypes(#793)
    0x03010FFE, // #1830.Composition(#1830,#793,#756,#753)
    0x03011026, // #1831.Supertypes(#1513)
    0x0301103E, // #1831.Composition(#1238,#1255,#1831,#1204,#1513,#1083,#838,#1108,#98)
    0x03011084, // #1832.ExplAttrInfos(#344,OPT)
    0x030110A2, // #1831.Attributes(#1832)
    0x030110BA, // #1833.Supertypes(#1516)
    0x030110D2, // #1833.Composition(#1242,#1262,#1833,#1243,#1516,#838,#98,#1088,#1113)
    0x03011118, // #1834.ExplAttrInfos(#344,REQ)
    0x000286C7, // #1833.Attributes(#1834)
    0x03011136, // #1835.Supertypes(#1519)
    0x0301114E, // #1835.Composition(#1238,#1255,#1835,#1204,#1519,#1083,#838,#1108,#98)
    0x03011194, // #1836.ExplAttrInfos(#346,OPT)
    0x00028757, // #1835.Attributes(#1836)
    0x030111B2, // #1837.Supertypes(#1522)
    0x030111CA, // #1837.Composition(#1242,#1262,#1837,#1243,#1522,#838,#98,#1088,#1113)
    0x03011210, // #1838.ExplAttrInfos(#346,REQ)
    0x0301122E, // #1837.Attributes(#1838)
    0x03011246, // #1840.Supertypes(#1255)
    0x0301125E, // #1840.Composition(#1238,#1255,#1204,#1840,#1083,#838,#1108,#98)
    0x0301129E, // #1839.Supertypes(#1840)
    0x030112B6, // #1839.Composition(#1238,#1255,#1839,#1204,#1840,#1083,#838,#1108,#98)
    0x030112FC, // #1841.ExplAttrInfos(#348,OPT)
    0x0301131A, // #1839.Attributes(#1841)
    0x03011332, // #1843.Supertypes(#1262)
    0x0301134A, // #1843.Composition(#1242,#1262,#1243,#1843,#838,#98,#1088,#1113)
    0x0301138A, // #1842.Supertypes(#1843)
    0x030113A2, // #1842.Composition(#1242,#1262,#1842,#1243,#1843,#838,#98,#1088,#1113)
    0x030113E8, // #1844.ExplAttrInfos(#348,REQ)
    0x03011406, // #1842.Attributes(#1844)
    0x0301141E, // #1845.Supertypes(#1181)
    0x03011436, // #1845.Composition(#1845,#1181,#676,#830)
    0x0301145F, // #1847.Supertypes(#829)
    0x03011476, // #1847.Composition(#829,#1847,#676,#830)
    0x0301149E, // #1848.ExplAttrInfos(#829,REQ)
    0x030114BC, // #1849.ExplAttrInfos(#13,REQ)
    0x030114D9, // #1850.DerivAttrInfos(#832)
    0x030114F4, // #1851.DerivAttrInfos(#832)
    0x0301150F, // #1847.Attributes(#1848,#1849,#1850,#1851)
    0x03011539, // #1846.ExplAttrInfos(#1852,REQ)
    0x03011558, // #1853.DerivAttrInfos(#6)
    0x03011571, // #1845.Attributes(#1846,#1853)
    0x0301158F, // #1854.Supertypes(#1254)
    0x030115A7, // #1854.Composition(#1238,#1255,#1854,#1204,#1254,#1083,#838,#1108,#98)
    0x030115ED, // #1855.ExplAttrInfos(#350,OPT)
    0x0301160B, // #1854.Attributes(#1855)
    0x03011623, // #1856.Supertypes(#1265)
    0x0301163B, // #1856.Composition(#1242,#1262,#1856,#1243,#1265,#838,#98,#1088,#1113)
    0x03011681, // #1857.ExplAttrInfos(#350,REQ)
    0x0301169F, // #1856.Attributes(#1857)
    0x030116B7, // #1858.Supertypes(#1258)
    0x030116CF, // #1858.Composition(#1238,#1255,#1858,#1204,#1258,#1083,#838,#1108,#98)
    0x03011715, // #1859.ExplAttrInfos(#352,OPT)
    0x00028BD4, // #1858.Attributes(#1859)
    0x03011733, // #1860.Supertypes(#1261)
    0x0301174B, // #1860.Composition(#1242,#1262,#1860,#1243,#1261,#838,#98,#1088,#1113)
    0x03011791, // #1861.ExplAttrInfos(#352,REQ)
    0x030117AF, // #1860.Attributes(#1861)
    0x030117C7, // #1863.Supertypes(#1255)
    0x030117DF, // #1863.Composition(#1238,#1255,#1204,#1863,#1083,#838,#1108,#98)
    0x0301181F, // #1862.Supertypes(#1863)
    0x03011837, // #1862.Composition(#1238,#1255,#1862,#1204,#1863,#1083,#838,#1108,#98)
    0x0301187D, // #1864.ExplAttrInfos(#354,OPT)
    0x0301189B, // #1862.Attributes(#1864)
    0x030118B3, // #1866.Supertypes(#1262)
    0x030118CB, // #1866.Composition(#1242,#1262,#1243,#1866,#838,#98,#1088,#1113)
    0x02011F6A, // #1865.Supertypes(#1866)
    0x0301190B, // #1865.Composition(#1242,#1262,#1865,#1243,#1866,#838,#98,#1088,#1113)
    0x03011951, // #1867.ExplAttrInfos(#354,REQ)
    0x0301196F, // #1865.Attributes(#1867)
    0x03011987, // #1868.Supertypes(#1268)
    0x0301199F, // #1868.Composition(#1238,#1255,#1868,#1204,#1268,#1083,#838,#1108,#98)
    0x030119E5, // #1869.ExplAttrInfos(#356,OPT)
    0x03011A03, // #1868.Attributes(#1869)
    0x03011A1B, // #1870.Supertypes(#1271)
    0x03011A33, // #1870.Composition(#1242,#1262,#1870,#1243,#1271,#838,#98,#1088,#1113)
    0x03011A79, // #1871.ExplAttrInfos(#356,REQ)
    0x03011A97, // #1870.Attributes(#1871)
    0x03011AAF, // #1872.Supertypes(#1268)
    0x03011AC7, // #1872.Composition(#1238,#1255,#1872,#1204,#1268,#1083,#838,#1108,#98)
    0x03011B0D, // #1873.ExplAttrInfos(#358,OPT)
    0x03011B2B, // #1872.Attributes(#1873)
    0x03011B43, // #1874.Supertypes(#1271)
    0x03011B5B, // #1874.Composition(#1242,#1262,#1874,#1243,#1271,#838,#98,#1088,#1113)
    0x03011BA1, // #1875.ExplAttrInfos(#358,REQ)
    0x02012101, // #1874.Attributes(#1875)
    0x03011BBF, // #1876.Supertypes(#1258)
    0x03011BD7, // #1876.Composition(#1238,#1255,#1876,#1204,#1258,#1083,#838,#1108,#98)
    0x03011C1D, // #1877.ExplAttrInfos(#360,OPT)
    0x0101A992, // #1876.Attributes(#1877)
    0x03011C3B, // #1878.Supertypes(#1261)
    0x03011C53, // #1878.Composition(#1242,#1262,#1878,#1243,#1261,#838,#98,#1088,#1113)
    0x03011C99, // #1879.ExplAttrInfos(#360,REQ)
    0x0101AA26, // #1878.Attributes(#1879)
    0x03011CB7, // #1880.Supertypes(#1204)
    0x03011CCF, // #1880.Composition(#1204,#1880,#1083,#838,#1108,#98)
    0x03011D03, // #1881.ExplAttrInfos(#226,OPT)
    0x03011D21, // #1882.ExplAttrInfos(#362,OPT)
    0x03011D3F, // #1880.Attributes(#1881,#1882)
    0x03011D5D, // #1883.Supertypes(#1243)
    0x03011D75, // #1883.Composition(#1883,#1243,#838,#98,#1088,#1113)
    0x03011DA9, // #1884.ExplAttrInfos(#362,REQ)
    0x03011DC7, // #1883.Attributes(#1884)
    0x03011DDF, // #1886.Supertypes(#96)
    0x03011DF5, // #1886.Composition(#97,#96,#1886,#98)
    0x03011E1A, // #1885.Supertypes(#1886)
    0x03011E32, // #1885.Composition(#1885,#97,#96,#1886,#98)
    0x03011E5D, // #1887.ExplAttrInfos(#14,OPT)
    0x03011E7A, // #1888.ExplAttrInfos(#1889,REQ)
    0x03011E99, // #1885.Attributes(#1887,#1888)
    0x03011EB7, // #1890.Supertypes(#1567)
    0x03011ECF, // #1890.Composition(#1567,#802,#1890,#675,#676)
    0x03011EFD, // #1891.ExplAttrInfos(#90,REQ)
    0x03011F1A, // #1892.ExplAttrInfos(#90,REQ)
    0x03011F37, // #1890.Attributes(#1891,#1892)
    0x03011F55, // #1893.Supertypes(#1347)
    0x03011F6D, // #1893.Composition(#1893,#1347,#1147)
    0x03011F92, // #1894.ExplAttrInfos(#90,REQ)
    0x03011FAF, // #1895.ExplAttrInfos(#90,REQ)
    0x03011FCC, // #1893.Attributes(#1894,#1895)
    0x03011FEA, // #1896.Supertypes(#1268)
    0x03012002, // #1896.Composition(#1238,#1255,#1204,#1268,#1896,#1083,#838,#1108,#98)
    0x03012048, // #1897.ExplAttrInfos(#366,OPT)
    0x03012066, // #1896.Attributes(#1897)
    0x0301207E, // #1898.Supertypes(#1271)
    0x03012096, // #1898.Composition(#1242,#1262,#1243,#1271,#1898,#838,#98,#1088,#1113)
    0x030120DC, // #1899.ExplAttrInfos(#366,REQ)
    0x000291F3, // #1898.Attributes(#1899)
    0x030120FA, // #1900.Supertypes(#1268)
    0x03012112, // #1900.Composition(#1238,#1255,#1204,#1268,#1900,#1083,#838,#1108,#98)
    0x03012158, // #1901.ExplAttrInfos(#368,OPT)
    0x02012757, // #1900.Attributes(#1901)
    0x03012176, // #1902.Supertypes(#1271)
    0x0301218E, // #1902.Composition(#1242,#1262,#1243,#1271,#1902,#838,#98,#1088,#1113)
    0x030121D4, // #1903.ExplAttrInfos(#368,REQ)
    0x020127EB, // #1902.Attributes(#1903)
    0x030121F2, // #1904.Supertypes(#1268)
    0x0301220A, // #1904.Composition(#1238,#1255,#1204,#1268,#1904,#1083,#838,#1108,#98)
    0x03012250, // #1905.ExplAttrInfos(#370,OPT)
    0x0201287F, // #1904.Attributes(#1905)
    0x0301226E, // #1906.Supertypes(#1271)
    0x03012286, // #1906.Composition(#1242,#1262,#1243,#1271,#1906,#838,#98,#1088,#1113)
    0x030122CC, // #1907.ExplAttrInfos(#370,REQ)
    0x02012B60, // #1906.Attributes(#1907)
    0x030122EA, // #1908.Supertypes(#1082)
    0x03012302, // #1908.Composition(#1908,#1083,#838,#1082,#98)
    0x03012330, // #1909.ExplAttrInfos(#374,OPT)
    0x0301234E, // #1910.ExplAttrInfos(#372,OPT)
    0x0301236C, // #1911.ExplAttrInfos(#14,OPT)
    0x03012389, // #1913.Supertypes(#1645)
    0x030123A1, // #1913.Composition(#1913,#1645)
    0x030123C0, // #1914.ExplAttrInfos(#25,OPT)
    0x030123DD, // #1915.ExplAttrInfos(#25,OPT)
    0x030123FA, // #1916.ExplAttrInfos(#25,OPT)
    0x03012417, // #1917.ExplAttrInfos(#25,OPT)
    0x03012434, // #1913.Attributes(#1914,#1915,#1916,#1917)
    0x0301245E, // #1912.ExplAttrInfos(#1913,OPT)
    0x0301247D, // #1908.Attributes(#1909,#1910,#1911,#1912)
    0x030124A7, // #1918.Supertypes(#1087)
    0x030124BF, // #1918.Composition(#1918,#838,#98,#1088,#1087)
    0x030124ED, // #1919.ExplAttrInfos(#374,REQ)
    0x0301250B, // #1920.ExplAttrInfos(#372,REQ)
    0x0101B630, // #1921.ExplAttrInfos(#14,OPT)
    0x03012529, // #1918.Attributes(#1919,#1920,#1921)
    0x0301254D, // #1922.Supertypes(#1150)
    0x03012565, // #1922.Composition(#1922,#1150)
    0x03012584, // #1923.ExplAttrInfos(#48,OPT)
    0x030125A1, // #1924.ExplAttrInfos(#122,OPT)
    0x030125BF, // #1925.ExplAttrInfos(#1926,REQ)
    0x030125DE, // #1922.Attributes(#1923,#1924,#1925)
    0x03012602, // #1927.Supertypes(#1321)
    0x0301261A, // #1927.Composition(#1927,#1321)
    0x03012639, // #1928.ExplAttrInfos(#739,REQ)
    0x0101B740, // #1929.ExplAttrInfos(#1930,REQ)
    0x03012657, // #1927.Attributes(#1928,#1929)
    0x03012675, // #1932.Supertypes(#708)
    0x0301268C, // #1932.Composition(#675,#676,#708,#1932)
    0x030126B4, // #1933.ExplAttrInfos(#1147,REQ)
    0x030126D3, // #1934.ExplAttrInfos(#689,OPT)
    0x030126F1, // #1932.Attributes(#1933,#1934)
    0x0301270F, // #1931.Supertypes(#1932)
    0x03012727, // #1931.Composition(#1931,#675,#676,#708,#1932)
    0x03012755, // #1935.ExplAttrInfos(#685,REQ)
    0x03012773, // #1936.ExplAttrInfos(#90,REQ)
    0x03012790, // #1931.Attributes(#1935,#1936)
    0x030127AE, // #1937.Supertypes(#1931)
    0x030127C6, // #1937.Composition(#1931,#1937,#675,#676,#708,#1932)
    0x030127FA, // #1938.ExplAttrInfos(#1147,REQ)
    0x0101B8D3, // #1937.Attributes(#1938)
    0x03012819, // #1939.Supertypes(#1179)
    0x03012831, // #1939.Composition(#1179,#1939,#676,#830)
    0x0301285A, // #1940.Supertypes(#1247)
    0x03012872, // #1940.Composition(#1940,#675,#1247,#676,#708)
    0x030128A0, // #1941.Supertypes(#1940)
    0x030128B8, // #1941.Composition(#1940,#1941,#675,#1247,#676,#708)
    0x030128EC, // #1942.ExplAttrInfos(#1943,REQ)
    0x0101B9FB, // #1941.Attributes(#1942)
    0x0301290B, // #1945.Composition(#1945)
    0x03012924, // #1946.ExplAttrInfos(#14,OPT)
    0x0201333A, // #1945.Attributes(#1946)
    0x03012941, // #1944.Supertypes(#1945)
    0x03012959, // #1944.Composition(#1944,#1945)
    0x03012978, // #1947.ExplAttrInfos(#43,OPT)
    0x03012995, // #1948.ExplAttrInfos(#43,OPT)
    0x030129B2, // #1949.ExplAttrInfos(#43,OPT)
    0x030129CF, // #1950.ExplAttrInfos(#43,OPT)
    0x030129EC, // #1951.ExplAttrInfos(#43,OPT)
    0x03012A09, // #1952.ExplAttrInfos(#43,OPT)
    0x03012A26, // #1944.Attributes(#1947,#1948,#1949,#1950,#1951,#1952)
    0x03012A5C, // #1953.Supertypes(#1615)
    0x03012A74, // #1953.Composition(#1238,#1255,#1204,#1953,#1615,#1083,#838,#1108,#98)
    0x03012ABA, // #1954.ExplAttrInfos(#378,OPT)
    0x0101BC43, // #1953.Attributes(#1954)
    0x03012AD8, // #1955.Supertypes(#1618)
    0x03012AF0, // #1955.Composition(#1242,#1262,#1243,#1955,#1618,#838,#98,#1088,#1113)
    0x03012B36, // #1956.ExplAttrInfos(#378,REQ)
    0x03012B54, // #1955.Attributes(#1956)
    0x03012B6C, // #1957.Supertypes(#1487)
    0x03012B84, // #1957.Composition(#1204,#1487,#1957,#1083,#838,#1108,#98)
    0x03012BBE, // #1958.ExplAttrInfos(#380,OPT)
    0x02013582, // #1957.Attributes(#1958)
    0x03012BDC, // #1959.Supertypes(#1490)
    0x03012BF4, // #1959.Composition(#1490,#1243,#1959,#838,#98,#1088,#1113)
    0x03012C2E, // #1960.ExplAttrInfos(#380,REQ)
    0x03012C4C, // #1959.Attributes(#1960)
    0x03012C64, // #1961.Supertypes(#1204)
    0x03012C7C, // #1961.Composition(#1204,#1961,#1083,#838,#1108,#98)
    0x03012CB0, // #1962.Supertypes(#1961)
    0x03012CC8, // #1962.Composition(#1204,#1961,#1962,#1083,#838,#1108,#98)
    0x03012D02, // #1963.Supertypes(#1961)
    0x03012D1A, // #1963.Composition(#1204,#1961,#1963,#1083,#838,#1108,#98)
    0x03012D54, // #1964.Supertypes(#1840)
    0x03012D6C, // #1964.Composition(#1238,#1255,#1204,#1964,#1840,#1083,#838,#1108,#98)
    0x03012DB2, // #1965.ExplAttrInfos(#382,OPT)
    0x03012DD0, // #1964.Attributes(#1965)
    0x03012DE8, // #1966.Supertypes(#1843)
    0x03012E00, // #1966.Composition(#1242,#1262,#1243,#1966,#1843,#838,#98,#1088,#1113)
    0x03012E46, // #1967.ExplAttrInfos(#382,REQ)
    0x0101BE53, // #1966.Attributes(#1967)
    0x03012E64, // #1968.Supertypes(#1254)
    0x03012E7C, // #1968.Composition(#1238,#1255,#1204,#1968,#1254,#1083,#838,#1108,#98)
    0x03012EC2, // #1969.ExplAttrInfos(#384,OPT)
    0x0002A001, // #1968.Attributes(#1969)
    0x03012EE0, // #1970.Supertypes(#1265)
    0x03012EF8, // #1970.Composition(#1242,#1262,#1243,#1970,#1265,#838,#98,#1088,#1113)
    0x03012F3E, // #1971.ExplAttrInfos(#384,REQ)
    0x02013773, // #1970.Attributes(#1971)
    0x03012F5C, // #1972.Supertypes(#1932)
    0x03012F74, // #1972.Composition(#1972,#675,#676,#708,#1932)
    0x03012FA2, // #1973.ExplAttrInfos(#802,REQ)
    0x03012FC0, // #1974.ExplAttrInfos(#87,OPT)
    0x03012FDD, // #1975.ExplAttrInfos(#87,OPT)
    0x03012FFA, // #1976.ExplAttrInfos(#685,REQ)
    0x03013018, // #1972.Attributes(#1973,#1974,#1975,#1976)
    0x03013042, // #1.Entities(#1777,#1237,#1241,#1238,#1242,#1255,#1262,#1781,#1778,#841,#1786,#860,#1791,#1797,#1812,#1818,#1819,#1824,#1829,#1830,#1831,#1833,#1835,#1837,#1839,#1842,#829,#828,#1845,#1854,#1856,#1858,#1860,#1862,#1865,#1868,#1870,#1872,#1874,#1876,#1878,#1204,#1880,#1883,#1487,#1490,#1885,#1243,#1743,#1890,#1893,#1268,#1271,#1896,#1898,#1900,#1902,#1904,#1906,#1908,#1913,#1918,#1922,#729,#739,#1927,#1190,#1191,#865,#905,#955,#1931,#1937,#1177,#1209,#1179,#1939,#1213,#1940,#1941,#1468,#1471,#1944,#1953,#1955,#1957,#1959,#1961,#1962,#1963,#896,#866,#887,#1964,#1966,#1968,#1970,#1972,#1258,#1261)
    0x0301329B, // #1977.Supertypes(#1237)
    0x030132B3, // #1977.Composition(#1237,#1238,#1204,#1977,#1083,#838,#1108,#98)
    0x030132F3, // #1978.ExplAttrInfos(#388,OPT)
    0x0002A210, // #1977.Attributes(#1978)
    0x03013311, // #1979.Supertypes(#1241)
    0x03013329, // #1979.Composition(#1241,#1242,#1243,#1979,#838,#98,#1088,#1113)
    0x03013369, // #1980.ExplAttrInfos(#388,REQ)
    0x0002A282, // #1979.Attributes(#1980)
    0x03013387, // #1981.Supertypes(#1258)
    0x0301339F, // #1981.Composition(#1238,#1255,#1204,#1258,#1981,#1083,#838,#1108,#98)
    0x030133E5, // #1982.ExplAttrInfos(#390,OPT)
    0x0002A2F5, // #1981.Attributes(#1982)
    0x03013403, // #1983.Supertypes(#1261)
    0x0301341B, // #1983.Composition(#1242,#1262,#1243,#1261,#1983,#838,#98,#1088,#1113)
    0x03013461, // #1984.ExplAttrInfos(#390,REQ)
    0x0002A368, // #1983.Attributes(#1984)
    0x0301347F, // #1985.Supertypes(#1414)
    0x03013497, // #1985.Composition(#1414,#1204,#1985,#1083,#838,#1108,#98)
    0x030134D1, // #1986.ExplAttrInfos(#392,OPT)
    0x0002A3DA, // #1985.Attributes(#1986)
    0x030134EF, // #1987.Supertypes(#1418)
    0x03013507, // #1987.Composition(#1418,#1243,#1987,#838,#98,#1088,#1113)
    0x03013541, // #1988.ExplAttrInfos(#392,REQ)
    0x0101C11C, // #1987.Attributes(#1988)
    0x0301355F, // #1989.Supertypes(#1204)
    0x03013577, // #1989.Composition(#1204,#1989,#1083,#838,#1108,#98)
    0x030135AB, // #1990.Supertypes(#1243)
    0x030135C3, // #1990.Composition(#1243,#1990,#838,#98,#1088,#1113)
    0x030135F7, // #1991.Supertypes(#1989)
    0x0301360F, // #1991.Composition(#1204,#1989,#1991,#1083,#838,#1108,#98)
    0x03013649, // #1992.ExplAttrInfos(#394,OPT)
    0x02013A24, // #1991.Attributes(#1992)
    0x03013667, // #1993.Supertypes(#1990)
    0x0301367F, // #1993.Composition(#1243,#1990,#1993,#838,#98,#1088,#1113)
    0x030136B9, // #1994.ExplAttrInfos(#226,REQ)
    0x030136D7, // #1995.ExplAttrInfos(#394,OPT)
    0x030136F5, // #1993.Attributes(#1994,#1995)
    0x03013713, // #1996.Supertypes(#1204)
    0x0301372B, // #1996.Composition(#1204,#1996,#1083,#838,#1108,#98)
    0x0301375F, // #1997.ExplAttrInfos(#396,OPT)
    0x0301377D, // #1996.Attributes(#1997)
    0x03013795, // #1998.Supertypes(#1243)
    0x030137AD, // #1998.Composition(#1243,#1998,#838,#98,#1088,#1113)
    0x030137E1, // #1999.ExplAttrInfos(#396,REQ)
    0x030137FF, // #1998.Attributes(#1999)
    0x03013817, // #2001.Supertypes(#675)
    0x0301382E, // #2001.Composition(#675,#2001,#676)
    0x03013851, // #2002.ExplAttrInfos(#2003,REQ)
    0x03013870, // #2004.DerivAttrInfos(#29)
    0x0301388A, // #2001.Attributes(#2002,#2004)
    0x0002A7BB, // #2000.Supertypes(#2001)
    0x030138A8, // #2000.Composition(#2000,#675,#2001,#676)
    0x030138D1, // #2005.Supertypes(#771)
    0x030138E8, // #2005.Composition(#771,#2005,#772)
    0x0301390B, // #2006.ExplAttrInfos(#771,REQ)
    0x03013929, // #2007.ExplAttrInfos(#92,OPT)
    0x03013946, // #2008.ExplAttrInfos(#398,REQ)
    0x03013964, // #2009.ExplAttrInfos(#14,OPT)
    0x03013981, // #2010.DerivAttrInfos(#693)
    0x0301399C, // #2011.DerivAttrInfos(#29)
    0x030139B6, // #2012.DerivAttrInfos(#685)
    0x030139D1, // #2013.DerivAttrInfos(#165)
    0x030139EC, // #2005.Attributes(#2006,#2007,#2008,#2009,#2010,#2011,#2012,#2013)
    0x03013A2E, // #2014.Supertypes(#1279)
    0x03013A46, // #2014.Composition(#2014,#1083,#838,#1279,#1108,#98)
    0x03013A7A, // #2015.ExplAttrInfos(#2016,REQ)
    0x03013A99, // #2017.ExplAttrInfos(#2018,REQ)
    0x03013AB8, // #2019.ExplAttrInfos(#2020,OPT)
    0x03013AD7, // #2021.ExplAttrInfos(#402,OPT)
    0x03013AF5, // #2014.Attributes(#2015,#2017,#2019,#2021)
    0x03013B1F, // #2022.Supertypes(#1110)
    0x03013B37, // #2022.Composition(#2022,#1110)
    0x03013B56, // #2023.ExplAttrInfos(#973,REQ)
    0x03013B74, // #2024.ExplAttrInfos(#983,OPT)
    0x0101C7E0, // #2022.Attributes(#2023,#2024)
    0x03013B92, // #2025.Supertypes(#1268)
    0x03013BAA, // #2025.Composition(#1238,#1255,#1204,#1268,#2025,#1083,#838,#1108,#98)
    0x03013BF0, // #2026.ExplAttrInfos(#404,OPT)
    0x0101C87A, // #2025.Attributes(#2026)
    0x03013C0E, // #2027.Supertypes(#1271)
    0x03013C26, // #2027.Composition(#1242,#1262,#1243,#1271,#2027,#838,#98,#1088,#1113)
    0x03013C6C, // #2028.ExplAttrInfos(#404,REQ)
    0x0101C90E, // #2027.Attributes(#2028)
    0x03013C8A, // #2029.Supertypes(#1268)
    0x03013CA2, // #2029.Composition(#1238,#1255,#1204,#1268,#2029,#1083,#838,#1108,#98)
    0x03013CE8, // #2030.ExplAttrInfos(#406,OPT)
    0x0101C9A2, // #2029.Attributes(#2030)
    0x03013D06, // #2031.Supertypes(#1271)
    0x03013D1E, // #2031.Composition(#1242,#1262,#1243,#1271,#2031,#838,#98,#1088,#1113)
    0x03013D64, // #2032.ExplAttrInfos(#406,REQ)
    0x0101CA36, // #2031.Attributes(#2032)
    0x03013D82, // #2033.Supertypes(#1347)
    0x03013D9A, // #2033.Composition(#2033,#1347,#1147)
    0x03013DBF, // #2034.ExplAttrInfos(#90,REQ)
    0x03013DDC, // #2035.ExplAttrInfos(#90,REQ)
    0x03013DF9, // #2036.ExplAttrInfos(#90,REQ)
    0x03013E16, // #2037.ExplAttrInfos(#90,REQ)
    0x03013E33, // #2038.ExplAttrInfos(#82,OPT)
    0x03013E50, // #2039.ExplAttrInfos(#82,OPT)
    0x03013E6D, // #2040.ExplAttrInfos(#89,OPT)
    0x03013E8A, // #2033.Attributes(#2034,#2035,#2036,#2037,#2038,#2039,#2040)
    0x03013EC6, // #2041.Supertypes(#919)
    0x03013EDD, // #2041.Composition(#2041,#753,#919)
    0x03013F00, // #2042.ExplAttrInfos(#195,REQ)
    0x03013F1E, // #2041.Attributes(#2042)
    0x03013F36, // #2043.Supertypes(#753)
    0x03013F4D, // #2043.Composition(#2043,#753)
    0x03013F6B, // #2044.ExplAttrInfos(#710,REQ)
    0x03013F89, // #2045.ExplAttrInfos(#84,OPT)
    0x03013FA6, // #2046.ExplAttrInfos(#1583,REQ)
    0x0002AEA9, // #2047.ExplAttrInfos(#2048,REQ)
    0x03013FC5, // #2043.Attributes(#2044,#2045,#2046,#2047)
    0x03013FEF, // #2049.Supertypes(#801)
    0x03014006, // #2049.Composition(#801,#802,#675,#2049,#676)
    0x03014033, // #2050.ExplAttrInfos(#714,REQ)
    0x03014051, // #2051.ExplAttrInfos(#2052,OPT)
    0x03014070, // #2053.ExplAttrInfos(#13,OPT)
    0x0301408D, // #2049.Attributes(#2050,#2051,#2053)
    0x030140B1, // #2054.Supertypes(#711)
    0x030140C8, // #2054.Composition(#675,#2054,#676,#711)
    0x030140F0, // #2055.ExplAttrInfos(#2056,REQ)
    0x0301410F, // #2054.Attributes(#2055)
    0x03014127, // #2057.Supertypes(#2054)
    0x0301413F, // #2057.Composition(#675,#2054,#2057,#676,#711)
    0x0301416D, // #2058.ExplAttrInfos(#2060,REQ)
    0x0301418C, // #2057.Attributes(#2058)
    0x030141A4, // #2062.Supertypes(#753)
    0x030141BB, // #2062.Composition(#753,#2062)
    0x030141D9, // #2063.ExplAttrInfos(#2064,REQ)
    0x030141F8, // #2062.Attributes(#2063)
    0x03014210, // #2061.Supertypes(#2062)
    0x03014228, // #2061.Composition(#2061,#753,#2062)
    0x0301424C, // #2065.ExplAttrInfos(#710,REQ)
    0x0301426A, // #2067.Supertypes(#753)
    0x03014281, // #2067.Composition(#753,#2067)
    0x0301429F, // #2068.ExplAttrInfos(#2070,REQ)
    0x030142BE, // #2067.Attributes(#2068)
    0x030142D6, // #2066.ExplAttrInfos(#2067,REQ)
    0x030142F5, // #2061.Attributes(#2065,#2066)
    0x03014313, // #2071.Supertypes(#2061)
    0x0301432B, // #2071.Composition(#2061,#2071,#753,#2062)
    0x03014355, // #2072.ExplAttrInfos(#2074,OPT)
    0x03014374, // #2071.Attributes(#2072)
    0x0301438C, // #2075.Supertypes(#1840)
    0x030143A4, // #2075.Composition(#1238,#1255,#1204,#1840,#2075,#1083,#838,#1108,#98)
    0x030143EA, // #2076.ExplAttrInfos(#408,OPT)
    0x03014408, // #2075.Attributes(#2076)
    0x03014420, // #2077.Supertypes(#1843)
    0x03014438, // #2077.Composition(#1242,#1262,#1243,#1843,#2077,#838,#98,#1088,#1113)
    0x0301447E, // #2078.ExplAttrInfos(#408,REQ)
    0x0002B6AA, // #2077.Attributes(#2078)
    0x0301449C, // #2079.Supertypes(#819)
    0x030144B3, // #2079.Composition(#802,#675,#2079,#676,#819)
    0x030144E0, // #2080.Supertypes(#1335)
    0x030144F8, // #2080.Composition(#1335,#2080,#1083,#838,#98)
    0x03014526, // #2081.ExplAttrInfos(#412,OPT)
    0x03014544, // #2082.ExplAttrInfos(#628,OPT)
    0x03014562, // #2083.ExplAttrInfos(#2084,OPT)
    0x03014581, // #2085.ExplAttrInfos(#24,OPT)
    0x0301459E, // #2086.ExplAttrInfos(#1338,OPT)
    0x030145BD, // #2087.ExplAttrInfos(#1338,OPT)
    0x030145DC, // #2080.Attributes(#2081,#2082,#2083,#2085,#2086,#2087)
    0x03014612, // #2088.Supertypes(#1059)
    0x0301462A, // #2088.Composition(#2088,#1059)
    0x03014649, // #2090.Composition(#2090)
    0x03014662, // #2091.ExplAttrInfos(#25,REQ)
    0x0301467F, // #2092.ExplAttrInfos(#2093,REQ)
    0x0301469E, // #2090.Attributes(#2091,#2092)
    0x030146BC, // #2089.ExplAttrInfos(#2094,REQ)
    0x030146DB, // #2088.Attributes(#2089)
    0x030146F3, // #2095.Supertypes(#1513)
    0x0301470B, // #2095.Composition(#1238,#1255,#1204,#1513,#2095,#1083,#838,#1108,#98)
    0x03014751, // #2096.ExplAttrInfos(#414,OPT)
    0x0301476F, // #2095.Attributes(#2096)
    0x03014787, // #2097.Supertypes(#1516)
    0x0301479F, // #2097.Composition(#1242,#1262,#1243,#1516,#2097,#838,#98,#1088,#1113)
    0x030147E5, // #2098.ExplAttrInfos(#414,REQ)
    0x03014803, // #2097.Attributes(#2098)
    0x0301481B, // #2099.Supertypes(#1347)
    0x03014833, // #2099.Composition(#2099,#1347,#1147)
    0x03014858, // #2100.ExplAttrInfos(#90,REQ)
    0x03014875, // #2101.ExplAttrInfos(#90,OPT)
    0x03014892, // #2102.ExplAttrInfos(#90,REQ)
    0x030148AF, // #2103.ExplAttrInfos(#82,OPT)
    0x030148CC, // #2104.ExplAttrInfos(#82,OPT)
    0x030148E9, // #2105.ExplAttrInfos(#89,OPT)
    0x03014906, // #2099.Attributes(#2100,#2101,#2102,#2103,#2104,#2105)
    0x0301493C, // #2106.Supertypes(#1642)
    0x03014954, // #2106.Composition(#1642,#2106,#1083,#838,#1161,#98)
    0x03014988, // #2107.ExplAttrInfos(#418,OPT)
    0x0002B8D4, // #2106.Attributes(#2107)
    0x030149A6, // #2108.Supertypes(#1669)
    0x030149BE, // #2108.Composition(#1669,#2108,#838,#98,#1088,#1164)
    0x030149F2, // #2109.ExplAttrInfos(#418,REQ)
    0x0002B94D, // #2108.Attributes(#2109)
    0x03014A10, // #2110.Supertypes(#1645)
    0x03014A28, // #2110.Composition(#2110,#1645)
    0x03014A47, // #2111.ExplAttrInfos(#1219,REQ)
    0x03014A66, // #2112.ExplAttrInfos(#566,REQ)
    0x03014A84, // #2110.Attributes(#2111,#2112)
    0x03014AA2, // #2113.Supertypes(#1254)
    0x03014ABA, // #2113.Composition(#1238,#1255,#1204,#1254,#2113,#1083,#838,#1108,#98)
    0x03014B00, // #2114.ExplAttrInfos(#420,OPT)
    0x0002BA38, // #2113.Attributes(#2114)
    0x03014B1E, // #2115.Supertypes(#1265)
    0x03014B36, // #2115.Composition(#1242,#1262,#1243,#1265,#2115,#838,#98,#1088,#1113)
    0x03014B7C, // #2116.ExplAttrInfos(#420,REQ)
    0x0002BAB1, // #2115.Attributes(#2116)
    0x03014B9A, // #2117.Supertypes(#1254)
    0x03014BB2, // #2117.Composition(#1238,#1255,#1204,#1254,#2117,#1083,#838,#1108,#98)
    0x03014BF8, // #2118.ExplAttrInfos(#428,OPT)
    0x0002BB29, // #2117.Attributes(#2118)
    0x03014C16, // #2119.Supertypes(#1265)
    0x03014C2E, // #2119.Composition(#1242,#1262,#1243,#1265,#2119,#838,#98,#1088,#1113)
    0x03014C74, // #2120.ExplAttrInfos(#428,REQ)
    0x03014C92, // #2119.Attributes(#2120)
    0x03014CAA, // #2121.Supertypes(#675)
    0x03014CC1, // #2121.Composition(#675,#2121,#676)
    0x0101D8C7, // #2122.ExplAttrInfos(#14,OPT)
    0x03014CE4, // #2123.ExplAttrInfos(#760,REQ)
    0x03014D02, // #2124.ExplAttrInfos(#84,OPT)
    0x03014D1F, // #2125.ExplAttrInfos(#84,OPT)
    0x03014D3C, // #2121.Attributes(#2122,#2123,#2124,#2125)
    0x03014D66, // #2126.Supertypes(#2121)
    0x03014D7E, // #2126.Composition(#675,#2121,#2126,#676)
    0x03014DA7, // #2127.Supertypes(#2121)
    0x03014DBF, // #2127.Composition(#675,#2121,#2127,#676)
    0x03014DE8, // #2128.ExplAttrInfos(#685,REQ)
    0x03014E06, // #2127.Attributes(#2128)
    0x03014E1E, // #2129.Supertypes(#2121)
    0x03014E36, // #2129.Composition(#675,#2121,#2129,#676)
    0x03014E5F, // #2130.ExplAttrInfos(#689,REQ)
    0x03014E7D, // #2131.ExplAttrInfos(#760,OPT)
    0x03014E9B, // #2132.ExplAttrInfos(#191,REQ)
    0x03014EB9, // #2133.ExplAttrInfos(#64,REQ)
    0x03014ED6, // #2134.ExplAttrInfos(#426,REQ)
    0x03014EF4, // #2135.ExplAttrInfos(#1016,REQ)
    0x03014F13, // #2129.Attributes(#2130,#2131,#2132,#2133,#2134,#2135)
    0x03014F49, // #2136.Supertypes(#2121)
    0x03014F61, // #2136.Composition(#675,#2121,#2136,#676)
    0x03014F8A, // #2137.ExplAttrInfos(#678,REQ)
    0x03014FA8, // #2138.ExplAttrInfos(#90,REQ)
    0x03014FC5, // #2139.ExplAttrInfos(#165,REQ)
    0x03014FE3, // #2140.ExplAttrInfos(#165,REQ)
    0x03015001, // #2141.ExplAttrInfos(#165,REQ)
    0x0301501F, // #2136.Attributes(#2137,#2138,#2139,#2140,#2141)
    0x0301504F, // #2142.Supertypes(#2136)
    0x03015067, // #2142.Composition(#675,#2121,#2136,#2142,#676)
    0x03015096, // #2143.ExplAttrInfos(#685,REQ)
    0x030150B4, // #2144.ExplAttrInfos(#165,OPT)
    0x030150D2, // #2145.ExplAttrInfos(#91,REQ)
    0x030150EF, // #2146.ExplAttrInfos(#91,REQ)
    0x0301510C, // #2142.Attributes(#2143,#2144,#2145,#2146)
    0x03015136, // #2147.Supertypes(#802)
    0x0301514D, // #2147.Composition(#802,#675,#2147,#676)
    0x03015175, // #2148.ExplAttrInfos(#678,REQ)
    0x03015193, // #2149.ExplAttrInfos(#878,REQ)
    0x030151B1, // #2147.Attributes(#2148,#2149)
    0x030151CF, // #2150.Supertypes(#1291)
    0x030151E7, // #2150.Composition(#801,#802,#1291,#675,#2150,#676)
    0x0301521A, // #2151.Supertypes(#1110)
    0x03015232, // #2151.Composition(#2151,#1110)
    0x03015251, // #2152.ExplAttrInfos(#802,REQ)
    0x0301526F, // #2153.ExplAttrInfos(#1767,REQ)
    0x0301528E, // #2155.Supertypes(#675)
    0x030152A5, // #2155.Composition(#675,#2155,#676)
    0x030152C8, // #2156.ExplAttrInfos(#685,REQ)
    0x030152E6, // #2157.ExplAttrInfos(#685,REQ)
    0x03015304, // #2155.Attributes(#2156,#2157)
    0x03015322, // #2154.ExplAttrInfos(#2155,OPT)
    0x03015341, // #2158.ExplAttrInfos(#689,OPT)
    0x0301535F, // #2151.Attributes(#2152,#2153,#2154,#2158)
    0x03015389, // #2159.Supertypes(#1110)
    0x030153A1, // #2159.Composition(#2159,#1110)
    0x030153C0, // #2160.ExplAttrInfos(#693,REQ)
    0x030153DE, // #2159.Attributes(#2160)
    0x030153F6, // #2161.Supertypes(#1706)
    0x0301540E, // #2161.Composition(#1706,#2161)
    0x0301542D, // #2162.ExplAttrInfos(#56,REQ)
    0x0301544A, // #2163.ExplAttrInfos(#56,REQ)
    0x03015467, // #2164.ExplAttrInfos(#56,REQ)
    0x03015484, // #2165.ExplAttrInfos(#165,OPT)
    0x030154A2, // #2166.ExplAttrInfos(#165,OPT)
    0x030154C0, // #2167.ExplAttrInfos(#165,OPT)
    0x030154DE, // #2161.Attributes(#2162,#2163,#2164,#2165,#2166,#2167)
    0x03015514, // #2168.Supertypes(#676)
    0x0301552B, // #2168.Composition(#2168,#676)
    0x03015549, // #2169.ExplAttrInfos(#1103,REQ)
    0x03015568, // #2170.ExplAttrInfos(#925,REQ)
    0x03015586, // #2168.Attributes(#2169,#2170)
    0x030155A4, // #2171.Composition(#2171)
    0x030155BD, // #2172.ExplAttrInfos(#2173,REQ)
    0x030155DC, // #2174.ExplAttrInfos(#1020,REQ)
    0x030155FB, // #2171.Attributes(#2172,#2174)
    0x03015619, // #2175.Supertypes(#1017)
    0x03015631, // #2175.Composition(#2175,#1017)
    0x03015650, // #2176.ExplAttrInfos(#14,OPT)
    0x0301566D, // #2177.ExplAttrInfos(#122,OPT)
    0x0301568B, // #2178.ExplAttrInfos(#1020,REQ)
    0x030156AA, // #2179.ExplAttrInfos(#84,OPT)
    0x030156C7, // #2180.ExplAttrInfos(#14,OPT)
    0x030156E4, // #2175.Attributes(#2176,#2177,#2178,#2179,#2180)
    0x03015714, // #2181.Supertypes(#1017)
    0x0301572C, // #2181.Composition(#2181,#1017)
    0x0301574B, // #2182.ExplAttrInfos(#14,OPT)
    0x03015768, // #2183.ExplAttrInfos(#122,OPT)
    0x03015786, // #2184.ExplAttrInfos(#2185,OPT)
    0x030157A5, // #2181.Attributes(#2182,#2183,#2184)
    0x030157C9, // #2186.Supertypes(#1098)
    0x030157E1, // #2186.Composition(#2186,#1098)
    0x03015800, // #2187.ExplAttrInfos(#1020,REQ)
    0x0301581F, // #2186.Attributes(#2187)
    0x03015837, // #2188.Supertypes(#1017)
    0x0301584F, // #2188.Composition(#1017,#2188)
    0x0301586E, // #2189.ExplAttrInfos(#1020,OPT)
    0x0301588D, // #2190.ExplAttrInfos(#82,REQ)
    0x030158AA, // #2191.ExplAttrInfos(#63,OPT)
    0x030158C7, // #2192.ExplAttrInfos(#14,OPT)
    0x030158E4, // #2193.ExplAttrInfos(#122,OPT)
    0x03015902, // #2194.ExplAttrInfos(#14,OPT)
    0x0301591F, // #2195.ExplAttrInfos(#6,OPT)
    0x0301593B, // #2188.Attributes(#2189,#2190,#2191,#2192,#2193,#2194,#2195)
    0x03015977, // #2196.Supertypes(#1017)
    0x0301598F, // #2196.Composition(#1017,#2196)
    0x030159AE, // #2197.ExplAttrInfos(#2198,REQ)
    0x030159CD, // #2199.ExplAttrInfos(#14,OPT)
    0x030159EA, // #2200.ExplAttrInfos(#122,OPT)
    0x03015A08, // #2201.DerivAttrInfos(#56)
    0x03015A22, // #2196.Attributes(#2197,#2199,#2200,#2201)
    0x03015A4C, // #2202.Supertypes(#1025)
    0x03015A64, // #2202.Composition(#2202,#1025)
    0x03015A83, // #2203.ExplAttrInfos(#2196,REQ)
    0x03015AA2, // #2204.ExplAttrInfos(#422,REQ)
    0x03015AC0, // #2205.ExplAttrInfos(#318,REQ)
    0x03015ADE, // #2206.ExplAttrInfos(#56,REQ)
    0x03015AFB, // #2207.ExplAttrInfos(#90,OPT)
    0x03015B18, // #2202.Attributes(#2203,#2204,#2205,#2206,#2207)
    0x03015B48, // #2208.Supertypes(#2188)
    0x03015B60, // #2208.Composition(#1017,#2188,#2208)
    0x03015B85, // #2209.ExplAttrInfos(#422,REQ)
    0x03015BA3, // #2210.ExplAttrInfos(#2211,REQ)
    0x0101ECF1, // #2208.Attributes(#2209,#2210)
    0x03015BC2, // #2212.Supertypes(#1017)
    0x03015BDA, // #2212.Composition(#1017,#2212)
    0x03015BF9, // #2213.ExplAttrInfos(#14,OPT)
    0x03015C16, // #2214.ExplAttrInfos(#122,OPT)
    0x03015C34, // #2215.ExplAttrInfos(#1020,OPT)
    0x03015C53, // #2216.ExplAttrInfos(#1147,REQ)
    0x03015C72, // #2217.ExplAttrInfos(#6,OPT)
    0x03015C8E, // #2218.ExplAttrInfos(#14,OPT)
    0x03015CAB, // #2212.Attributes(#2213,#2214,#2215,#2216,#2217,#2218)
    0x03015CE1, // #2219.Supertypes(#1017)
    0x03015CF9, // #2219.Composition(#1017,#2219)
    0x03015D18, // #2220.ExplAttrInfos(#14,OPT)
    0x03015D35, // #2221.ExplAttrInfos(#122,OPT)
    0x0002CE86, // #2222.ExplAttrInfos(#2223,REQ)
    0x03015D53, // #2224.ExplAttrInfos(#1610,OPT)
    0x03015D72, // #2219.Attributes(#2220,#2221,#2222,#2224)
    0x03015D9C, // #2225.Supertypes(#1025)
    0x03015DB4, // #2225.Composition(#2225,#1025)
    0x03015DD3, // #2226.ExplAttrInfos(#2219,REQ)
    0x03015DF2, // #2227.ExplAttrInfos(#16,OPT)
    0x03015E0F, // #2228.ExplAttrInfos(#90,OPT)
    0x03015E2C, // #2225.Attributes(#2226,#2227,#2228)
    0x03015E50, // #2229.Supertypes(#2225)
    0x03015E68, // #2229.Composition(#2225,#2229,#1025)
    0x03015E8D, // #2230.ExplAttrInfos(#2219,REQ)
    0x03015EAC, // #2231.ExplAttrInfos(#16,OPT)
    0x0101F08D, // #2229.Attributes(#2230,#2231)
    0x03015EC9, // #2232.Supertypes(#2212)
    0x03015EE1, // #2232.Composition(#1017,#2212,#2232)
    0x03015F06, // #2233.ExplAttrInfos(#2234,REQ)
    0x0101F11B, // #2232.Attributes(#2233)
    0x03015F25, // #2235.Supertypes(#1922)
    0x03015F3D, // #2235.Composition(#1922,#2235,#1150)
    0x03015F62, // #2236.ExplAttrInfos(#1017,REQ)
    0x03015F81, // #2235.Attributes(#2236)
    0x03015F99, // #2237.Supertypes(#1321)
    0x03015FB1, // #2237.Composition(#2237,#1321)
    0x03015FD0, // #2238.ExplAttrInfos(#1020,REQ)
    0x0002D187, // #2239.ExplAttrInfos(#2240,REQ)
    0x0201696A, // #2241.ExplAttrInfos(#14,OPT)
    0x03015FEF, // #2237.Attributes(#2238,#2239,#2241)
    0x03016013, // #1.Entities(#1513,#1516,#1977,#1979,#1981,#1983,#1615,#1618,#1519,#1522,#1863,#1866,#1254,#1265,#1840,#1843,#1985,#1987,#1989,#1990,#1991,#1993,#1996,#1998,#2000,#771,#675,#2005,#2001,#2014,#975,#2022,#1335,#702,#2025,#2027,#2029,#2031,#2033,#2041,#2043,#2049,#2054,#2057,#2061,#2071,#2075,#2077,#2079,#2080,#2088,#2090,#2095,#2097,#2099,#2106,#2108,#2110,#2113,#2115,#992,#999,#1008,#2117,#2119,#1005,#2121,#2126,#2127,#2129,#2136,#2142,#2147,#2150,#2151,#1278,#2159,#1181,#1247,#2161,#2168,#1020,#2171,#2175,#2181,#1017,#2186,#2188,#2196,#2202,#2208,#1018,#2212,#2219,#2225,#2229,#2232,#2235,#2237,#1025)
    0x03016272, // #2242.Supertypes(#1487)
    0x0301628A, // #2242.Composition(#1204,#1487,#2242,#1083,#838,#1108,#98)
    0x030162C4, // #2243.ExplAttrInfos(#90,OPT)
    0x030162E1, // #2244.ExplAttrInfos(#90,OPT)
    0x030162FE, // #2245.ExplAttrInfos(#434,OPT)
    0x0301631C, // #2242.Attributes(#2243,#2244,#2245)
    0x03016340, // #2246.Supertypes(#1490)
    0x03016358, // #2246.Composition(#1490,#1243,#2246,#838,#98,#1088,#1113)
    0x03016392, // #2247.ExplAttrInfos(#434,REQ)
    0x030163B0, // #2248.ExplAttrInfos(#90,OPT)
    0x030163CD, // #2249.ExplAttrInfos(#90,OPT)
    0x030163EA, // #2246.Attributes(#2247,#2248,#2249)
    0x0301640E, // #2250.Supertypes(#1254)
    0x03016426, // #2250.Composition(#1238,#1255,#1204,#1254,#2250,#1083,#838,#1108,#98)
    0x0301646C, // #2251.ExplAttrInfos(#436,OPT)
    0x0301648A, // #2250.Attributes(#2251)
    0x030164A2, // #2252.Supertypes(#1265)
    0x030164BA, // #2252.Composition(#1242,#1262,#1243,#1265,#2252,#838,#98,#1088,#1113)
    0x03016500, // #2253.ExplAttrInfos(#436,REQ)
    0x0301651E, // #2252.Attributes(#2253)
    0x03016536, // #2254.Supertypes(#1414)
    0x0301654E, // #2254.Composition(#1414,#1204,#2254,#1083,#838,#1108,#98)
    0x03016588, // #2255.ExplAttrInfos(#438,OPT)
    0x030165A6, // #2254.Attributes(#2255)
    0x030165BE, // #2256.Supertypes(#2254)
    0x030165D6, // #2256.Composition(#1414,#1204,#2254,#2256,#1083,#838,#1108,#98)
    0x03016616, // #2257.Supertypes(#1418)
    0x0301662E, // #2257.Composition(#1418,#1243,#2257,#838,#98,#1088,#1113)
    0x03016668, // #2258.ExplAttrInfos(#438,REQ)
    0x03016686, // #2257.Attributes(#2258)
    0x0301669E, // #2259.Supertypes(#1131)
    0x030166B6, // #2259.Composition(#1131,#2259)
    0x030166D5, // #2260.ExplAttrInfos(#240,REQ)
    0x030166F3, // #2261.ExplAttrInfos(#14,OPT)
    0x03016710, // #2262.ExplAttrInfos(#1069,OPT)
    0x0301672F, // #2263.ExplAttrInfos(#664,OPT)
    0x0301674D, // #2259.Attributes(#2260,#2261,#2262,#2263)
    0x03016777, // #2264.Supertypes(#1759)
    0x0301678F, // #2264.Composition(#1759,#2264,#1147)
    0x030167B4, // #2265.DerivAttrInfos(#924)
    0x030167CF, // #2264.Attributes(#2265)
    0x030167E7, // #2266.Supertypes(#1268)
    0x030167FF, // #2266.Composition(#1238,#1255,#1204,#1268,#2266,#1083,#838,#1108,#98)
    0x03016845, // #2267.ExplAttrInfos(#440,OPT)
    0x03016863, // #2266.Attributes(#2267)
    0x0301687B, // #2268.Supertypes(#1271)
    0x03016893, // #2268.Composition(#1242,#1262,#1243,#1271,#2268,#838,#98,#1088,#1113)
    0x030168D9, // #2269.ExplAttrInfos(#440,REQ)
    0x02016FDA, // #2268.Attributes(#2269)
    0x030168F7, // #2270.Supertypes(#1131)
    0x0301690F, // #2270.Composition(#1131,#2270)
    0x0301692E, // #2271.ExplAttrInfos(#2272,OPT)
    0x0301694D, // #2273.ExplAttrInfos(#432,OPT)
    0x0301696B, // #2274.ExplAttrInfos(#446,REQ)
    0x03016989, // #2275.ExplAttrInfos(#14,OPT)
    0x030169A6, // #2270.Attributes(#2271,#2273,#2274,#2275)
    0x030169D0, // #2276.Supertypes(#1234)
    0x030169E8, // #2276.Composition(#1234,#1083,#838,#2276,#98)
    0x03016A16, // #2277.ExplAttrInfos(#448,OPT)
    0x03016A34, // #2276.Attributes(#2277)
    0x03016A4C, // #2278.Supertypes(#802)
    0x03016A63, // #2278.Composition(#802,#675,#2278,#676)
    0x03016A8B, // #2279.ExplAttrInfos(#802,REQ)
    0x03016AA9, // #2278.Attributes(#2279)
    0x03016AC1, // #2280.Supertypes(#2278)
    0x03016AD9, // #2280.Composition(#802,#675,#2278,#2280,#676)
    0x03016B07, // #2281.ExplAttrInfos(#56,REQ)
    0x03016B24, // #2282.ExplAttrInfos(#63,REQ)
    0x03016B41, // #2280.Attributes(#2281,#2282)
    0x03016B5F, // #2283.Supertypes(#2278)
    0x03016B77, // #2283.Composition(#802,#675,#2278,#2283,#676)
    0x03016BA5, // #2284.ExplAttrInfos(#56,REQ)
    0x03016BC2, // #2285.ExplAttrInfos(#63,REQ)
    0x03016BDF, // #2286.ExplAttrInfos(#685,REQ)
    0x03016BFD, // #2283.Attributes(#2284,#2285,#2286)
    0x03016C21, // #2287.Supertypes(#2278)
    0x03016C39, // #2287.Composition(#802,#675,#2278,#2287,#676)
    0x02017397, // #2288.ExplAttrInfos(#2289,REQ)
    0x03016C67, // #2290.ExplAttrInfos(#14,OPT)
    0x03016C84, // #2287.Attributes(#2288,#2290)
    0x03016CA2, // #2291.Supertypes(#1963)
    0x03016CBA, // #2291.Composition(#1204,#1961,#1963,#1083,#838,#2291,#1108,#98)
    0x03016CFA, // #2292.ExplAttrInfos(#450,OPT)
    0x03016D18, // #2291.Attributes(#2292)
    0x03016D30, // #2293.Supertypes(#2291)
    0x03016D48, // #2293.Composition(#1204,#1961,#1963,#1083,#838,#2291,#2293,#1108,#98)
    0x03016D8E, // #2294.Supertypes(#1321)
    0x03016DA6, // #2294.Composition(#2294,#1321)
    0x03016DC5, // #2295.ExplAttrInfos(#133,REQ)
    0x03016DE3, // #2296.ExplAttrInfos(#2297,REQ)
    0x03016E02, // #2294.Attributes(#2295,#2296)
    0x03016E20, // #2298.Supertypes(#1438)
    0x03016E38, // #2298.Composition(#1438,#801,#800,#799,#802,#675,#2298,#676)
    0x03016E75, // #2299.Supertypes(#1254)
    0x03016E8D, // #2299.Composition(#1238,#1255,#1204,#1254,#1083,#838,#2299,#1108,#98)
    0x03016ED3, // #2300.ExplAttrInfos(#452,OPT)
    0x0101FD92, // #2299.Attributes(#2300)
    0x03016EF1, // #2301.Supertypes(#1265)
    0x03016F09, // #2301.Composition(#1242,#1262,#1243,#1265,#838,#2301,#98,#1088,#1113)
    0x03016F4F, // #2302.ExplAttrInfos(#452,REQ)
    0x03016F6D, // #2301.Attributes(#2302)
    0x03016F85, // #2303.Supertypes(#1567)
    0x03016F9D, // #2303.Composition(#1567,#802,#675,#2303,#676)
    0x03016FCB, // #2304.ExplAttrInfos(#56,REQ)
    0x03016FE8, // #2303.Attributes(#2304)
    0x03017000, // #2305.Supertypes(#830)
    0x03017017, // #2305.Composition(#2305,#676,#830)
    0x020175D4, // #2306.ExplAttrInfos(#2307,REQ)
    0x0301703A, // #2305.Attributes(#2306)
    0x03017052, // #2308.Supertypes(#1229)
    0x0301706A, // #2308.Composition(#1229,#1083,#838,#2308,#98)
    0x03017098, // #2309.ExplAttrInfos(#14,REQ)
    0x030170B5, // #2310.ExplAttrInfos(#454,OPT)
    0x030170D3, // #2308.Attributes(#2309,#2310)
    0x030170F1, // #2311.Supertypes(#1798)
    0x03017109, // #2311.Composition(#2311,#1798,#97,#96,#98)
    0x03017134, // #2312.ExplAttrInfos(#456,REQ)
    0x03017152, // #2313.ExplAttrInfos(#612,REQ)
    0x03017170, // #2314.ExplAttrInfos(#90,OPT)
    0x0301718D, // #2315.ExplAttrInfos(#90,OPT)
    0x030171AA, // #2316.ExplAttrInfos(#1151,OPT)
    0x030171C9, // #2311.Attributes(#2312,#2313,#2314,#2315,#2316)
    0x030171F9, // #2317.Supertypes(#1229)
    0x03017211, // #2317.Composition(#1229,#1083,#838,#2317,#98)
    0x0301723F, // #2318.ExplAttrInfos(#458,OPT)
    0x0301725D, // #2319.ExplAttrInfos(#14,OPT)
    0x0301727A, // #2320.ExplAttrInfos(#122,OPT)
    0x03017298, // #2317.Attributes(#2318,#2319,#2320)
    0x030172BC, // #2321.Supertypes(#1144)
    0x030172D4, // #2321.Composition(#2321,#1144)
    0x030172F3, // #2322.ExplAttrInfos(#2323,REQ)
    0x03017312, // #2324.ExplAttrInfos(#14,REQ)
    0x0301732F, // #2325.ExplAttrInfos(#14,OPT)
    0x0301734C, // #2326.ExplAttrInfos(#14,OPT)
    0x03017369, // #2321.Attributes(#2322,#2324,#2325,#2326)
    0x03017393, // #2327.Supertypes(#1144)
    0x030173AB, // #2327.Composition(#1144,#2327)
    0x030173CA, // #2328.ExplAttrInfos(#644,OPT)
    0x030173E8, // #2327.Attributes(#2328)
    0x03017400, // #2329.Supertypes(#1533)
    0x03017418, // #2329.Composition(#1414,#1533,#1204,#1083,#838,#2329,#1108,#98)
    0x03017458, // #2330.ExplAttrInfos(#464,OPT)
    0x03017476, // #2331.ExplAttrInfos(#462,OPT)
    0x03017494, // #2329.Attributes(#2330,#2331)
    0x030174B2, // #2332.Supertypes(#1536)
    0x030174CA, // #2332.Composition(#1418,#1536,#1243,#838,#2332,#98,#1088,#1113)
    0x0301750A, // #2333.ExplAttrInfos(#464,REQ)
    0x03017528, // #2332.Attributes(#2333)
    0x03017540, // #2334.Supertypes(#1513)
    0x03017558, // #2334.Composition(#1238,#1255,#1204,#1513,#1083,#838,#2334,#1108,#98)
    0x0301759E, // #2335.ExplAttrInfos(#466,OPT)
    0x030175BC, // #2334.Attributes(#2335)
    0x030175D4, // #2336.Supertypes(#1516)
    0x030175EC, // #2336.Composition(#1242,#1262,#1243,#1516,#838,#2336,#98,#1088,#1113)
    0x03017632, // #2337.ExplAttrInfos(#466,REQ)
    0x03017650, // #2336.Attributes(#2337)
    0x03017668, // #2338.Supertypes(#1519)
    0x03017680, // #2338.Composition(#1238,#1255,#1204,#1519,#1083,#838,#2338,#1108,#98)
    0x030176C6, // #2339.ExplAttrInfos(#468,OPT)
    0x030176E4, // #2338.Attributes(#2339)
    0x030176FC, // #2340.Supertypes(#1522)
    0x03017714, // #2340.Composition(#1242,#1262,#1243,#1522,#838,#2340,#98,#1088,#1113)
    0x0301775A, // #2341.ExplAttrInfos(#468,REQ)
    0x03017778, // #2340.Attributes(#2341)
    0x03017790, // #2342.Supertypes(#919)
    0x030177A7, // #2342.Composition(#2342,#753,#919)
    0x030177CA, // #2343.ExplAttrInfos(#6,REQ)
    0x030177E6, // #2344.ExplAttrInfos(#6,REQ)
    0x03017802, // #2345.ExplAttrInfos(#6,REQ)
    0x0301781E, // #2346.ExplAttrInfos(#2347,REQ)
    0x0301783D, // #2342.Attributes(#2343,#2344,#2345,#2346)
    0x03017867, // #2349.Supertypes(#675)
    0x0301787E, // #2349.Composition(#675,#2349,#676)
    0x030178A1, // #2350.ExplAttrInfos(#56,REQ)
    0x030178BE, // #2351.ExplAttrInfos(#56,REQ)
    0x02017E56, // #2349.Attributes(#2350,#2351)
    0x030178DB, // #2348.Supertypes(#2349)
    0x030178F3, // #2348.Composition(#675,#2348,#2349,#676)
    0x0301791C, // #2352.ExplAttrInfos(#693,REQ)
    0x0301793A, // #2348.Attributes(#2352)
    0x03017952, // #2353.Supertypes(#1414)
    0x0301796A, // #2353.Composition(#1414,#1204,#1083,#838,#2353,#1108,#98)
    0x030179A4, // #2354.ExplAttrInfos(#470,OPT)
    0x030179C2, // #2353.Attributes(#2354)
    0x030179DA, // #2355.Supertypes(#2353)
    0x030179F2, // #2355.Composition(#1414,#1204,#1083,#838,#2353,#2355,#1108,#98)
    0x03017A32, // #2356.Supertypes(#1418)
    0x03017A4A, // #2356.Composition(#1418,#1243,#838,#2356,#98,#1088,#1113)
    0x03017A84, // #2357.ExplAttrInfos(#470,REQ)
    0x03017AA2, // #2356.Attributes(#2357)
    0x03017ABA, // #2358.Supertypes(#679)
    0x03017AD1, // #2358.Composition(#675,#679,#2358,#676)
    0x03017AF9, // #2359.ExplAttrInfos(#802,REQ)
    0x03017B17, // #2360.ExplAttrInfos(#87,REQ)
    0x03017B34, // #2361.DerivAttrInfos(#29)
    0x03017B4E, // #2358.Attributes(#2359,#2360,#2361)
    0x03017B72, // #2362.Supertypes(#679)
    0x03017B89, // #2362.Composition(#675,#679,#2362,#676)
    0x03017BB1, // #2363.ExplAttrInfos(#704,REQ)
    0x03017BCF, // #2364.ExplAttrInfos(#87,REQ)
    0x03017BEC, // #2365.ExplAttrInfos(#87,REQ)
    0x03017C09, // #2366.DerivAttrInfos(#29)
    0x03017C23, // #2362.Attributes(#2363,#2364,#2365,#2366)
    0x03017C4D, // #2367.Supertypes(#1181)
    0x03017C65, // #2367.Composition(#1181,#2367,#676,#830)
    0x03017C8E, // #2368.ExplAttrInfos(#2369,REQ)
    0x03017CAD, // #2367.Attributes(#2368)
    0x03017CC5, // #2370.Supertypes(#702)
    0x03017CDC, // #2370.Composition(#675,#702,#2370,#676)
    0x03017D04, // #2371.ExplAttrInfos(#689,REQ)
    0x03017D22, // #2372.ExplAttrInfos(#801,REQ)
    0x03017D40, // #2370.Attributes(#2371,#2372)
    0x03017D5E, // #2373.Supertypes(#710)
    0x03017D75, // #2373.Composition(#675,#2373,#676,#710,#711)
    0x03017DA2, // #2374.ExplAttrInfos(#13,OPT)
    0x03017DBF, // #2375.ExplAttrInfos(#2376,REQ)
    0x03017DDE, // #2377.ExplAttrInfos(#2378,OPT)
    0x03017DFD, // #2373.Attributes(#2374,#2375,#2377)
    0x03017E21, // #2379.Supertypes(#801)
    0x03017E38, // #2379.Composition(#801,#802,#675,#2379,#676)
    0x03017E65, // #2380.ExplAttrInfos(#2381,REQ)
    0x03017E84, // #2379.Attributes(#2380)
    0x03017E9C, // #2382.Supertypes(#1150)
    0x03017EB4, // #2382.Composition(#2382,#1150)
    0x03017ED3, // #2383.Composition(#2383)
    0x03017EEC, // #2384.ExplAttrInfos(#14,REQ)
    0x03017F09, // #2385.ExplAttrInfos(#122,OPT)
    0x03017F27, // #2386.ExplAttrInfos(#2387,REQ)
    0x03017F46, // #2388.ExplAttrInfos(#48,OPT)
    0x03017F63, // #2383.Attributes(#2384,#2385,#2386,#2388)
    0x03017F8D, // #2389.Supertypes(#2383)
    0x03017FA5, // #2389.Composition(#2383,#2389)
    0x03017FC4, // #2390.ExplAttrInfos(#63,REQ)
    0x03017FE1, // #2391.ExplAttrInfos(#63,REQ)
    0x03017FFE, // #2392.ExplAttrInfos(#63,REQ)
    0x0301801B, // #2393.ExplAttrInfos(#2394,REQ)
    0x0301803A, // #2389.Attributes(#2390,#2391,#2392,#2393)
    0x03018064, // #2395.Supertypes(#1082)
    0x0301807C, // #2395.Composition(#1083,#838,#2395,#1082,#98)
    0x030180AA, // #2396.ExplAttrInfos(#474,OPT)
    0x030180C8, // #2395.Attributes(#2396)
    0x030180E0, // #2397.Supertypes(#1087)
    0x030180F8, // #2397.Composition(#838,#2397,#98,#1088,#1087)
    0x03018126, // #2398.ExplAttrInfos(#474,REQ)
    0x03018144, // #2397.Attributes(#2398)
    0x0301815C, // #2399.Supertypes(#1922)
    0x03018174, // #2399.Composition(#1922,#2399,#1150)
    0x03018199, // #2400.ExplAttrInfos(#1147,REQ)
    0x030181B8, // #2399.Attributes(#2400)
    0x030181D0, // #2401.Supertypes(#1682)
    0x030181E8, // #2401.Composition(#1682,#838,#2401,#98)
    0x03018210, // #2402.Supertypes(#1682)
    0x03018228, // #2402.Composition(#1682,#838,#2402,#98)
    0x03018250, // #2403.Supertypes(#1229)
    0x03018268, // #2403.Composition(#1229,#1083,#838,#2403,#98)
    0x03018296, // #2404.ExplAttrInfos(#478,OPT)
    0x030182B4, // #2405.ExplAttrInfos(#14,OPT)
    0x030182D1, // #2406.ExplAttrInfos(#122,OPT)
    0x030182EF, // #2403.Attributes(#2404,#2405,#2406)
    0x03018313, // #2407.Supertypes(#766)
    0x0301832A, // #2407.Composition(#766,#2407)
    0x03018348, // #2408.ExplAttrInfos(#48,OPT)
    0x03018365, // #2409.ExplAttrInfos(#48,OPT)
    0x03018382, // #2410.ExplAttrInfos(#644,OPT)
    0x030183A0, // #2407.Attributes(#2408,#2409,#2410)
    0x030183C4, // #2411.Supertypes(#1962)
    0x030183DC, // #2411.Composition(#1204,#1961,#1962,#1083,#838,#1108,#2411,#98)
    0x0301841C, // #2412.ExplAttrInfos(#482,OPT)
    0x02018CE7, // #2411.Attributes(#2412)
    0x0301843A, // #2414.Supertypes(#1597)
    0x03018452, // #2414.Composition(#1597,#1150,#2414)
    0x03018477, // #2413.Supertypes(#2414)
    0x0301848F, // #2413.Composition(#1597,#1150,#2413,#2414)
    0x030184BA, // #2415.ExplAttrInfos(#638,OPT)
    0x030184D8, // #2416.ExplAttrInfos(#638,OPT)
    0x030184F6, // #2417.ExplAttrInfos(#663,OPT)
    0x03018514, // #2418.ExplAttrInfos(#638,OPT)
    0x03018532, // #2413.Attributes(#2415,#2416,#2417,#2418)
    0x0301855C, // #2419.Supertypes(#1321)
    0x03018574, // #2419.Composition(#2419,#1321)
    0x03018593, // #2420.ExplAttrInfos(#1597,REQ)
    0x030185B2, // #2421.ExplAttrInfos(#1597,REQ)
    0x030185D1, // #2422.ExplAttrInfos(#122,OPT)
    0x030185EF, // #2419.Attributes(#2420,#2421,#2422)
    0x03018613, // #2423.Supertypes(#2414)
    0x0301862B, // #2423.Composition(#1597,#1150,#2423,#2414)
    0x03018656, // #2424.ExplAttrInfos(#2425,OPT)
    0x03018675, // #2427.Supertypes(#1150)
    0x0301868D, // #2427.Composition(#1150,#2427)
    0x030186AC, // #2428.ExplAttrInfos(#14,REQ)
    0x030186C9, // #2429.ExplAttrInfos(#2430,REQ)
    0x030186E8, // #2431.ExplAttrInfos(#663,OPT)
    0x03018706, // #2427.Attributes(#2428,#2429,#2431)
    0x0301872A, // #2426.ExplAttrInfos(#2427,OPT)
    0x03018749, // #2423.Attributes(#2424,#2426)
    0x03018767, // #1.Entities(#629,#2242,#2246,#2250,#2252,#2254,#2256,#2257,#2259,#2264,#660,#2266,#2268,#644,#1083,#838,#1110,#2270,#2276,#2278,#2280,#2283,#2287,#1185,#2291,#2293,#133,#2294,#2155,#1847,#2298,#2299,#2301,#101,#2303,#1347,#2305,#816,#2308,#2311,#2317,#105,#103,#2321,#1144,#2327,#2329,#2332,#2334,#2336,#2338,#2340,#2342,#674,#2348,#2349,#1742,#2353,#2355,#2356,#679,#2358,#2362,#2367,#2370,#2373,#2379,#1782,#1279,#1477,#755,#793,#756,#2382,#1798,#956,#753,#2383,#2389,#869,#894,#2395,#2397,#1082,#1108,#1097,#1098,#1147,#2399,#2401,#2402,#2403,#2407,#2411,#1597,#1150,#2413,#97,#2419,#2423)
    0x030189B8, // #2432.Supertypes(#2414)
    0x030189D0, // #2432.Composition(#1597,#1150,#2432,#2414)
    0x030189FB, // #2433.ExplAttrInfos(#2434,OPT)
    0x03018A1A, // #2435.ExplAttrInfos(#663,OPT)
    0x03018A38, // #2432.Attributes(#2433,#2435)
    0x03018A56, // #2436.Supertypes(#2414)
    0x03018A6E, // #2436.Composition(#1597,#1150,#2436,#2414)
    0x03018A99, // #2437.ExplAttrInfos(#122,OPT)
    0x03018AB7, // #2438.ExplAttrInfos(#1077,OPT)
    0x03018AD6, // #2436.Attributes(#2437,#2438)
    0x03018AF4, // #2439.Supertypes(#96)
    0x03018B0A, // #2439.Composition(#97,#2439,#96,#98)
    0x03018B2F, // #2440.ExplAttrInfos(#2441,REQ)
    0x03018B4E, // #2439.Attributes(#2440)
    0x03018B66, // #2442.Supertypes(#1605)
    0x03018B7E, // #2442.Composition(#97,#2442,#1605,#98)
    0x03018BA5, // #2443.ExplAttrInfos(#484,OPT)
    0x03018BC3, // #2444.ExplAttrInfos(#48,OPT)
    0x03018BE0, // #2445.ExplAttrInfos(#2446,REQ)
    0x03018BFF, // #2442.Attributes(#2443,#2444,#2445)
    0x03018C23, // #2447.Supertypes(#2414)
    0x03018C3B, // #2447.Composition(#1597,#1150,#2447,#2414)
    0x03018C66, // #2448.ExplAttrInfos(#638,OPT)
    0x03018C84, // #2449.ExplAttrInfos(#663,OPT)
    0x01021A44, // #2447.Attributes(#2448,#2449)
    0x03018CA2, // #2450.Supertypes(#2414)
    0x03018CBA, // #2450.Composition(#1597,#1150,#2450,#2414)
    0x03018CE5, // #2451.ExplAttrInfos(#2452,OPT)
    0x03018D04, // #2453.ExplAttrInfos(#2454,OPT)
    0x03018D23, // #2455.ExplAttrInfos(#122,OPT)
    0x03018D41, // #2456.ExplAttrInfos(#663,OPT)
    0x03018D5F, // #2457.ExplAttrInfos(#663,OPT)
    0x03018D7D, // #2458.ExplAttrInfos(#310,OPT)
    0x03018D9B, // #2450.Attributes(#2451,#2453,#2455,#2456,#2457,#2458)
    0x03018DD1, // #2459.Supertypes(#1258)
    0x03018DE9, // #2459.Composition(#1238,#1255,#1204,#1258,#1083,#838,#1108,#2459,#98)
    0x03018E2F, // #2460.ExplAttrInfos(#488,OPT)
    0x03018E4D, // #2459.Attributes(#2460)
    0x03018E65, // #2461.Supertypes(#1237)
    0x03018E7D, // #2461.Composition(#1237,#1238,#1204,#1083,#838,#1108,#2461,#98)
    0x03018EBD, // #2462.ExplAttrInfos(#486,OPT)
    0x03018EDB, // #2461.Attributes(#2462)
    0x03018EF3, // #2463.Supertypes(#1241)
    0x03018F0B, // #2463.Composition(#1241,#1242,#1243,#838,#2463,#98,#1088,#1113)
    0x03018F4B, // #2464.ExplAttrInfos(#486,REQ)
    0x03018F69, // #2463.Attributes(#2464)
    0x03018F81, // #2465.Supertypes(#1261)
    0x03018F99, // #2465.Composition(#1242,#1262,#1243,#1261,#838,#2465,#98,#1088,#1113)
    0x03018FDF, // #2466.ExplAttrInfos(#488,REQ)
    0x02019516, // #2465.Attributes(#2466)
    0x03018FFD, // #2467.Supertypes(#1108)
    0x03019015, // #2467.Composition(#1083,#838,#1108,#2467,#98)
    0x03019043, // #2468.ExplAttrInfos(#444,REQ)
    0x03019061, // #2469.ExplAttrInfos(#14,OPT)
    0x0301907E, // #2467.Attributes(#2468,#2469)
    0x0301909C, // #2470.Supertypes(#1615)
    0x030190B4, // #2470.Composition(#1238,#1255,#1204,#1615,#1083,#838,#1108,#2470,#98)
    0x030190FA, // #2471.ExplAttrInfos(#490,OPT)
    0x03019118, // #2470.Attributes(#2471)
    0x03019130, // #2472.Supertypes(#1618)
    0x03019148, // #2472.Composition(#1242,#1262,#1243,#1618,#838,#2472,#98,#1088,#1113)
    0x0301918E, // #2473.ExplAttrInfos(#490,REQ)
    0x030191AC, // #2472.Attributes(#2473)
    0x030191C4, // #2474.Supertypes(#2327)
    0x030191DC, // #2474.Composition(#1144,#2327,#2474)
    0x03019201, // #2475.ExplAttrInfos(#11,REQ)
    0x0301921E, // #2476.ExplAttrInfos(#14,OPT)
    0x0301923B, // #2474.Attributes(#2475,#2476)
    0x03019259, // #2477.Supertypes(#2327)
    0x03019271, // #2477.Composition(#1144,#2327,#2477)
    0x03019296, // #2478.ExplAttrInfos(#22,REQ)
    0x030192B3, // #2479.ExplAttrInfos(#14,OPT)
    0x030192D0, // #2477.Attributes(#2478,#2479)
    0x030192EE, // #2480.Supertypes(#2327)
    0x03019306, // #2480.Composition(#1144,#2327,#2480)
    0x02019747, // #2481.ExplAttrInfos(#56,REQ)
    0x0301932B, // #2482.ExplAttrInfos(#14,OPT)
    0x03019348, // #2480.Attributes(#2481,#2482)
    0x03019366, // #2483.Supertypes(#2327)
    0x0301937E, // #2483.Composition(#1144,#2327,#2483)
    0x030193A3, // #2484.ExplAttrInfos(#193,REQ)
    0x030193C1, // #2485.ExplAttrInfos(#14,OPT)
    0x030193DE, // #2483.Attributes(#2484,#2485)
    0x030193FC, // #2486.Supertypes(#2327)
    0x03019414, // #2486.Composition(#1144,#2327,#2486)
    0x03019439, // #2487.ExplAttrInfos(#197,REQ)
    0x03019457, // #2488.ExplAttrInfos(#14,OPT)
    0x03019474, // #2486.Attributes(#2487,#2488)
    0x03019492, // #2489.Supertypes(#2327)
    0x030194AA, // #2489.Composition(#1144,#2327,#2489)
    0x030194CF, // #2490.ExplAttrInfos(#71,REQ)
    0x030194EC, // #2491.ExplAttrInfos(#14,OPT)
    0x03019509, // #2489.Attributes(#2490,#2491)
    0x03019527, // #2492.Supertypes(#1414)
    0x0301953F, // #2492.Composition(#1414,#1204,#1083,#838,#1108,#2492,#98)
    0x03019579, // #2493.ExplAttrInfos(#492,OPT)
    0x03019597, // #2492.Attributes(#2493)
    0x030195AF, // #2494.Supertypes(#1418)
    0x030195C7, // #2494.Composition(#1418,#1243,#838,#2494,#98,#1088,#1113)
    0x03019601, // #2495.ExplAttrInfos(#492,REQ)
    0x0301961F, // #2494.Attributes(#2495)
    0x03019637, // #2496.Supertypes(#1414)
    0x0301964F, // #2496.Composition(#1414,#1204,#1083,#838,#1108,#2496,#98)
    0x03019689, // #2497.ExplAttrInfos(#496,OPT)
    0x030196A7, // #2496.Attributes(#2497)
    0x030196BF, // #2498.Supertypes(#1414)
    0x030196D7, // #2498.Composition(#1414,#1204,#1083,#838,#1108,#2498,#98)
    0x03019711, // #2499.ExplAttrInfos(#494,OPT)
    0x0301972F, // #2498.Attributes(#2499)
    0x03019747, // #2500.Supertypes(#1418)
    0x0301975F, // #2500.Composition(#1418,#1243,#838,#2500,#98,#1088,#1113)
    0x03019799, // #2501.ExplAttrInfos(#494,REQ)
    0x030197B7, // #2500.Attributes(#2501)
    0x030197CF, // #2502.Supertypes(#1418)
    0x030197E7, // #2502.Composition(#1418,#1243,#838,#2502,#98,#1088,#1113)
    0x03019821, // #2503.ExplAttrInfos(#496,REQ)
    0x0301983F, // #2502.Attributes(#2503)
    0x03019857, // #2504.Supertypes(#1378)
    0x0301986F, // #2504.Composition(#801,#1368,#1378,#802,#675,#2504,#676)
    0x030198A8, // #2505.ExplAttrInfos(#2506,REQ)
    0x030198C7, // #2507.DerivAttrInfos(#2508)
    0x030198E3, // #2504.Attributes(#2505,#2507)
    0x03019901, // #2509.Supertypes(#1401)
    0x03019919, // #2509.Composition(#1386,#1385,#1401,#675,#2509,#676,#704)
    0x03019953, // #2510.ExplAttrInfos(#2512,REQ)
    0x03019972, // #2513.DerivAttrInfos(#2515)
    0x0301998E, // #2509.Attributes(#2510,#2513)
    0x030199AC, // #2517.Supertypes(#1347)
    0x030199C4, // #2517.Composition(#1347,#1147,#2517)
    0x030199E9, // #2518.ExplAttrInfos(#90,REQ)
    0x03019A06, // #2519.ExplAttrInfos(#90,REQ)
    0x03019A23, // #2517.Attributes(#2518,#2519)
    0x03019A41, // #2516.Supertypes(#2517)
    0x03019A59, // #2516.Composition(#1347,#1147,#2516,#2517)
    0x03019A84, // #2520.ExplAttrInfos(#90,REQ)
    0x03019AA1, // #2521.ExplAttrInfos(#82,OPT)
    0x03019ABE, // #2522.ExplAttrInfos(#82,OPT)
    0x03019ADB, // #2516.Attributes(#2520,#2521,#2522)
    0x03019AFF, // #2523.Supertypes(#699)
    0x03019B16, // #2523.Composition(#699,#675,#2523,#676)
    0x03019B3E, // #2524.ExplAttrInfos(#90,REQ)
    0x03019B5B, // #2525.ExplAttrInfos(#90,REQ)
    0x03019B78, // #2526.ExplAttrInfos(#90,REQ)
    0x03019B95, // #2523.Attributes(#2524,#2525,#2526)
    0x03019BB9, // #2527.Supertypes(#1386)
    0x03019BD1, // #2527.Composition(#1386,#675,#2527,#676,#704)
    0x03019BFF, // #2528.ExplAttrInfos(#704,REQ)
    0x03019C1D, // #2529.ExplAttrInfos(#87,REQ)
    0x03019C3A, // #2530.ExplAttrInfos(#87,REQ)
    0x03019C57, // #2531.ExplAttrInfos(#87,REQ)
    0x03019C74, // #2532.ExplAttrInfos(#87,REQ)
    0x03019C91, // #2533.ExplAttrInfos(#13,REQ)
    0x03019CAE, // #2534.ExplAttrInfos(#13,REQ)
    0x03019CCB, // #2527.Attributes(#2528,#2529,#2530,#2531,#2532,#2533,#2534)
    0x03019D07, // #2535.Composition(#2535)
    0x03019D20, // #2536.ExplAttrInfos(#498,REQ)
    0x03019D3E, // #2537.ExplAttrInfos(#2538,OPT)
    0x03019D5D, // #2539.ExplAttrInfos(#2540,OPT)
    0x03019D7C, // #2541.ExplAttrInfos(#2542,OPT)
    0x03019D9B, // #2543.ExplAttrInfos(#6,OPT)
    0x03019DB7, // #2544.ExplAttrInfos(#6,OPT)
    0x03019DD3, // #2545.ExplAttrInfos(#6,OPT)
    0x00030F22, // #2547.Composition(#2547)
    0x03019DEF, // #2548.ExplAttrInfos(#192,REQ)
    0x03019E0D, // #2549.ExplAttrInfos(#192,REQ)
    0x03019E2B, // #2547.Attributes(#2548,#2549)
    0x03019E49, // #2546.ExplAttrInfos(#2550,OPT)
    0x03019E68, // #2535.Attributes(#2536,#2537,#2539,#2541,#2543,#2544,#2545,#2546)
    0x03019EAA, // #2551.Supertypes(#1279)
    0x03019EC2, // #2551.Composition(#1083,#838,#1279,#1108,#2551,#98)
    0x03019EF6, // #2552.ExplAttrInfos(#500,OPT)
    0x03019F14, // #2553.ExplAttrInfos(#56,OPT)
    0x03019F31, // #2551.Attributes(#2552,#2553)
    0x03019F4F, // #2554.Supertypes(#1059)
    0x03019F67, // #2554.Composition(#2554,#1059)
    0x03019F86, // #2555.ExplAttrInfos(#193,REQ)
    0x03019FA4, // #2557.Composition(#2557)
    0x03019FBD, // #2558.ExplAttrInfos(#2559,REQ)
    0x0201A3C2, // #2557.Attributes(#2558)
    0x03019FDC, // #2556.ExplAttrInfos(#2560,REQ)
    0x03019FFB, // #2554.Attributes(#2555,#2556)
    0x0301A019, // #2561.Supertypes(#2382)
    0x0301A031, // #2561.Composition(#2382,#1150,#2561)
    0x0301A056, // #2562.ExplAttrInfos(#11,REQ)
    0x0301A073, // #2563.ExplAttrInfos(#14,REQ)
    0x0301A090, // #2564.ExplAttrInfos(#506,OPT)
    0x0301A0AE, // #2565.ExplAttrInfos(#56,OPT)
    0x0301A0CB, // #2566.ExplAttrInfos(#90,OPT)
    0x0301A0E8, // #2567.ExplAttrInfos(#22,OPT)
    0x0301A105, // #2561.Attributes(#2562,#2563,#2564,#2565,#2566,#2567)
    0x0301A13B, // #2568.Supertypes(#1798)
    0x0301A153, // #2568.Composition(#1798,#97,#96,#2568,#98)
    0x0301A17E, // #2569.ExplAttrInfos(#14,OPT)
    0x0301A19B, // #2571.Supertypes(#2382)
    0x0301A1B3, // #2571.Composition(#2382,#1150,#2571)
    0x0301A1D8, // #2572.ExplAttrInfos(#56,REQ)
    0x0301A1F5, // #2573.ExplAttrInfos(#56,REQ)
    0x0301A212, // #2574.ExplAttrInfos(#56,OPT)
    0x0301A22F, // #2575.ExplAttrInfos(#504,REQ)
    0x0301A24D, // #2577.Supertypes(#2382)
    0x0301A265, // #2577.Composition(#2382,#1150,#2577)
    0x0301A28A, // #2578.ExplAttrInfos(#520,REQ)
    0x0301A2A8, // #2579.ExplAttrInfos(#1147,REQ)
    0x0301A2C7, // #2580.ExplAttrInfos(#1147,OPT)
    0x0301A2E6, // #2577.Attributes(#2578,#2579,#2580)
    0x0301A30A, // #2576.ExplAttrInfos(#2577,REQ)
    0x0201A867, // #2581.ExplAttrInfos(#2582,REQ)
    0x0301A329, // #2571.Attributes(#2572,#2573,#2574,#2575,#2576,#2581)
    0x0301A35F, // #2570.ExplAttrInfos(#2583,REQ)
    0x0301A37E, // #2568.Attributes(#2569,#2570)
    0x0301A39C, // #2585.Supertypes(#1487)
    0x0301A3B4, // #2585.Composition(#1204,#1487,#1083,#838,#1108,#2585,#98)
    0x0301A3EE, // #2586.ExplAttrInfos(#14,OPT)
    0x0301A40B, // #2585.Attributes(#2586)
    0x0301A423, // #2584.Supertypes(#2585)
    0x0301A43B, // #2584.Composition(#1204,#1487,#1083,#838,#1108,#2584,#2585,#98)
    0x0301A47B, // #2587.ExplAttrInfos(#90,OPT)
    0x0301A498, // #2588.ExplAttrInfos(#11,OPT)
    0x0301A4B5, // #2589.ExplAttrInfos(#90,OPT)
    0x0301A4D2, // #2590.ExplAttrInfos(#508,OPT)
    0x0301A4F0, // #2591.ExplAttrInfos(#506,OPT)
    0x0301A50E, // #2584.Attributes(#2587,#2588,#2589,#2590,#2591)
    0x0301A53E, // #2593.Supertypes(#1490)
    0x0301A556, // #2593.Composition(#1490,#1243,#838,#2593,#98,#1088,#1113)
    0x0301A590, // #2592.Supertypes(#2593)
    0x0301A5A8, // #2592.Composition(#1490,#1243,#838,#2592,#2593,#98,#1088,#1113)
    0x0301A5E8, // #2594.ExplAttrInfos(#508,REQ)
    0x0301A606, // #2595.ExplAttrInfos(#90,OPT)
    0x0301A623, // #2596.ExplAttrInfos(#11,OPT)
    0x0301A640, // #2597.ExplAttrInfos(#90,OPT)
    0x0301A65D, // #2598.ExplAttrInfos(#506,OPT)
    0x0301A67B, // #2599.ExplAttrInfos(#14,OPT)
    0x0301A698, // #2600.ExplAttrInfos(#2601,OPT)
    0x0301A6B7, // #2592.Attributes(#2594,#2595,#2596,#2597,#2598,#2599,#2600)
    0x0301A6F3, // #2602.Supertypes(#2585)
    0x0301A70B, // #2602.Composition(#1204,#1487,#1083,#838,#1108,#2585,#2602,#98)
    0x0301A74B, // #2603.ExplAttrInfos(#90,OPT)
    0x0301A768, // #2604.ExplAttrInfos(#90,OPT)
    0x0301A785, // #2605.ExplAttrInfos(#90,OPT)
    0x0301A7A2, // #2606.ExplAttrInfos(#90,OPT)
    0x0301A7BF, // #2607.ExplAttrInfos(#11,OPT)
    0x0301A7DC, // #2608.ExplAttrInfos(#11,OPT)
    0x0301A7F9, // #2609.ExplAttrInfos(#90,OPT)
    0x0301A816, // #2610.ExplAttrInfos(#90,OPT)
    0x0301A833, // #2611.ExplAttrInfos(#510,OPT)
    0x0301A851, // #2602.Attributes(#2603,#2604,#2605,#2606,#2607,#2608,#2609,#2610,#2611)
    0x0301A899, // #2612.Supertypes(#2593)
    0x0301A8B1, // #2612.Composition(#1490,#1243,#838,#2593,#2612,#98,#1088,#1113)
    0x0301A8F1, // #2613.ExplAttrInfos(#510,REQ)
    0x0301A90F, // #2614.ExplAttrInfos(#90,OPT)
    0x0301A92C, // #2615.ExplAttrInfos(#90,OPT)
    0x0301A949, // #2616.ExplAttrInfos(#90,OPT)
    0x0301A966, // #2617.ExplAttrInfos(#90,OPT)
    0x0301A983, // #2618.ExplAttrInfos(#11,OPT)
    0x0301A9A0, // #2619.ExplAttrInfos(#11,OPT)
    0x0301A9BD, // #2620.ExplAttrInfos(#90,OPT)
    0x0301A9DA, // #2621.ExplAttrInfos(#90,OPT)
    0x0301A9F7, // #2622.ExplAttrInfos(#14,OPT)
    0x0301AA14, // #2623.ExplAttrInfos(#2624,OPT)
    0x0301AA33, // #2612.Attributes(#2613,#2614,#2615,#2616,#2617,#2618,#2619,#2620,#2621,#2622,#2623)
    0x0301AA87, // #2627.Supertypes(#98)
    0x0301AA9D, // #2627.Composition(#2627,#98)
    0x0301AABA, // #2626.Supertypes(#2627)
    0x0301AAD2, // #2626.Composition(#2627,#2626,#98)
    0x0301AAF5, // #2625.Supertypes(#2626)
    0x0301AB0D, // #2625.Composition(#2625,#2627,#2626,#98)
    0x0301AB36, // #2628.ExplAttrInfos(#838,REQ)
    0x01023A00, // #2629.ExplAttrInfos(#2630,REQ)
    0x0301AB54, // #2625.Attributes(#2628,#2629)
    0x0301AB72, // #2631.Supertypes(#2627)
    0x0301AB8A, // #2631.Composition(#2631,#2627,#98)
    0x0201B143, // #2632.ExplAttrInfos(#2633,REQ)
    0x0301ABAD, // #2634.ExplAttrInfos(#444,OPT)
    0x0301ABCB, // #2631.Attributes(#2632,#2634)
    0x0301ABE9, // #2635.Supertypes(#2631)
    0x0301AC01, // #2635.Composition(#2631,#2635,#2627,#98)
    0x0301AC2A, // #2636.ExplAttrInfos(#1234,REQ)
    0x0301AC49, // #2637.ExplAttrInfos(#116,OPT)
    0x0301AC67, // #2635.Attributes(#2636,#2637)
    0x0301AC85, // #2638.Supertypes(#2631)
    0x0301AC9D, // #2638.Composition(#2631,#2638,#2627,#98)
    0x0301ACC6, // #2639.ExplAttrInfos(#1229,REQ)
    0x0301ACE5, // #2638.Attributes(#2639)
    0x0301ACFD, // #2640.Supertypes(#2631)
    0x0301AD15, // #2640.Composition(#2631,#2640,#2627,#98)
    0x0301AD3E, // #2641.ExplAttrInfos(#1335,REQ)
    0x0301AD5D, // #2640.Attributes(#2641)
    0x0301AD75, // #2642.Supertypes(#2640)
    0x0301AD8D, // #2642.Composition(#2631,#2640,#2642,#2627,#98)
    0x0301ADBC, // #2643.ExplAttrInfos(#83,REQ)
    0x0301ADD9, // #2642.Attributes(#2643)
    0x0301ADF1, // #2644.Supertypes(#2631)
    0x0301AE09, // #2644.Composition(#2631,#2644,#2627,#98)
    0x0301AE32, // #2645.ExplAttrInfos(#1096,REQ)
    0x0301AE51, // #2646.ExplAttrInfos(#629,OPT)
    0x0301AE6F, // #2644.Attributes(#2645,#2646)
    0x0301AE8D, // #2647.Supertypes(#2631)
    0x0301AEA5, // #2647.Composition(#2631,#2647,#2627,#98)
    0x0301AECE, // #2648.ExplAttrInfos(#1118,REQ)
    0x0301AEED, // #2647.Attributes(#2648)
    0x0301AF05, // #2649.Supertypes(#2631)
    0x0301AF1D, // #2649.Composition(#2631,#2649,#2627,#98)
    0x0301AF46, // #2650.ExplAttrInfos(#1169,REQ)
    0x0301AF65, // #2649.Attributes(#2650)
    0x0301AF7D, // #2651.Supertypes(#2627)
    0x0301AF95, // #2651.Composition(#2651,#2627,#98)
    0x0301AFB8, // #2652.ExplAttrInfos(#2653,REQ)
    0x0301AFD7, // #2651.Attributes(#2652)
    0x0301AFEF, // #2654.Supertypes(#2651)
    0x0301B007, // #2654.Composition(#2651,#2654,#2627,#98)
    0x0301B030, // #2655.ExplAttrInfos(#1121,REQ)
    0x0301B04F, // #2654.Attributes(#2655)
    0x0301B067, // #2656.Supertypes(#2651)
    0x0301B07F, // #2656.Composition(#2651,#2656,#2627,#98)
    0x0301B0A8, // #2657.ExplAttrInfos(#751,REQ)
    0x0301B0C6, // #2656.Attributes(#2657)
    0x0301B0DE, // #2658.Supertypes(#2651)
    0x0301B0F6, // #2658.Composition(#2651,#2658,#2627,#98)
    0x0301B11F, // #2659.ExplAttrInfos(#14,OPT)
    0x0301B13C, // #2660.ExplAttrInfos(#1131,REQ)
    0x0301B15B, // #2658.Attributes(#2659,#2660)
    0x0301B179, // #2661.Supertypes(#2651)
    0x0301B191, // #2661.Composition(#2651,#2661,#2627,#98)
    0x0301B1BA, // #2662.ExplAttrInfos(#864,REQ)
    0x0301B1D8, // #2661.Attributes(#2662)
    0x0301B1F0, // #2663.Supertypes(#2651)
    0x0301B208, // #2663.Composition(#2651,#2663,#2627,#98)
    0x0301B231, // #2664.ExplAttrInfos(#1004,REQ)
    0x0301B250, // #2663.Attributes(#2664)
    0x0301B268, // #2665.Supertypes(#2651)
    0x0301B280, // #2665.Composition(#2651,#2665,#2627,#98)
    0x0301B2A9, // #2666.ExplAttrInfos(#1027,REQ)
    0x0301B2C8, // #2665.Attributes(#2666)
    0x0301B2E0, // #2667.Supertypes(#2627)
    0x0301B2F8, // #2667.Composition(#2627,#2667,#98)
    0x0301B31B, // #2668.Supertypes(#2667)
    0x0301B333, // #2668.Composition(#2627,#2667,#2668,#98)
    0x0301B35C, // #2669.ExplAttrInfos(#1625,OPT)
    0x0301B37B, // #2670.ExplAttrInfos(#1204,REQ)
    0x0301B39A, // #2671.ExplAttrInfos(#1204,REQ)
    0x0301B3B9, // #2668.Attributes(#2669,#2670,#2671)
    0x0301B3DD, // #2672.Supertypes(#2668)
    0x0301B3F5, // #2672.Composition(#2627,#2667,#2668,#2672,#98)
    0x0301B424, // #2673.ExplAttrInfos(#2674,REQ)
    0x0301B443, // #2675.ExplAttrInfos(#2676,REQ)
    0x0301B462, // #2677.ExplAttrInfos(#284,REQ)
    0x0301B480, // #2678.ExplAttrInfos(#284,REQ)
    0x0301B49E, // #2672.Attributes(#2673,#2675,#2677,#2678)
    0x0301B4C8, // #2679.Supertypes(#2667)
    0x0301B4E0, // #2679.Composition(#2627,#2667,#2679,#98)
    0x0301B509, // #2680.ExplAttrInfos(#1782,REQ)
    0x0301B528, // #2681.ExplAttrInfos(#1238,REQ)
    0x0301B547, // #2679.Attributes(#2680,#2681)
    0x0301B565, // #2682.Supertypes(#2667)
    0x0301B57D, // #2682.Composition(#2627,#2667,#2682,#98)
    0x0301B5A6, // #2683.ExplAttrInfos(#1782,REQ)
    0x0301B5C5, // #2684.ExplAttrInfos(#1782,REQ)
    0x0301B5E4, // #2685.ExplAttrInfos(#1204,OPT)
    0x0301B603, // #2682.Attributes(#2683,#2684,#2685)
    0x0301B627, // #2686.Supertypes(#2667)
    0x0301B63F, // #2686.Composition(#2627,#2667,#2686,#98)
    0x0301B668, // #2687.ExplAttrInfos(#1208,REQ)
    0x0301B687, // #2689.Supertypes(#1108)
    0x0301B69F, // #2689.Composition(#1083,#838,#1108,#98,#2689)
    0x0301B6CD, // #2691.Composition(#2691)
    0x0301B6E6, // #2692.ExplAttrInfos(#14,OPT)
    0x0201BAEA, // #2691.Attributes(#2692)
    0x010244B0, // #2690.ExplAttrInfos(#2691,REQ)
    0x0301B703, // #2693.ExplAttrInfos(#400,REQ)
    0x0301B721, // #2689.Attributes(#2690,#2693)
    0x0301B73F, // #2688.ExplAttrInfos(#2689,REQ)
    0x0301B75E, // #2686.Attributes(#2687,#2688)
    0x0301B77C, // #2694.Supertypes(#2667)
    0x0301B794, // #2694.Composition(#2627,#2667,#2694,#98)
    0x0301B7BD, // #2696.Supertypes(#1206)
    0x0301B7D5, // #2696.Composition(#1083,#838,#1108,#98,#1206,#2696)
    0x01024562, // #2695.ExplAttrInfos(#2696,REQ)
    0x0301B809, // #2698.Supertypes(#1206)
    0x0301B821, // #2698.Composition(#1083,#838,#1108,#98,#2698,#1206)
    0x0301B855, // #2699.ExplAttrInfos(#1436,OPT)
    0x0201BC7F, // #2698.Attributes(#2699)
    0x0301B874, // #2697.ExplAttrInfos(#2698,REQ)
    0x0301B893, // #2700.ExplAttrInfos(#1436,OPT)
    0x0301B8B2, // #2701.ExplAttrInfos(#1945,OPT)
    0x0301B8D1, // #2702.ExplAttrInfos(#56,OPT)
    0x0301B8EE, // #2703.ExplAttrInfos(#689,OPT)
    0x0301B90C, // #2694.Attributes(#2695,#2697,#2700,#2701,#2702,#2703)
    0x0301B942, // #2704.Supertypes(#2694)
    0x0301B95A, // #2704.Composition(#2627,#2667,#2694,#2704,#98)
    0x0301B989, // #2705.ExplAttrInfos(#1625,REQ)
    0x0301B9A8, // #2704.Attributes(#2705)
    0x0301B9C0, // #2706.Supertypes(#2668)
    0x0301B9D8, // #2706.Composition(#2627,#2667,#2668,#2706,#98)
    0x0301BA07, // #2707.ExplAttrInfos(#2708,REQ)
    0x0301BA26, // #2709.ExplAttrInfos(#14,OPT)
    0x0301BA43, // #2706.Attributes(#2707,#2709)
    0x0301BA61, // #2710.Supertypes(#2667)
    0x0301BA79, // #2710.Composition(#2627,#2667,#2710,#98)
    0x0301BAA2, // #2711.ExplAttrInfos(#2712,REQ)
    0x0301BAC1, // #2713.ExplAttrInfos(#1192,REQ)
    0x0301BAE0, // #2710.Attributes(#2711,#2713)
    0x0301BAFE, // #2714.Supertypes(#2667)
    0x0301BB16, // #2714.Composition(#2627,#2667,#2714,#98)
    0x0301BB3F, // #2715.ExplAttrInfos(#1204,REQ)
    0x0301BB5E, // #2716.ExplAttrInfos(#2717,REQ)
    0x0301BB7D, // #2714.Attributes(#2715,#2716)
    0x0301BB9B, // #2718.Supertypes(#2667)
    0x0301BBB3, // #2718.Composition(#2627,#2667,#2718,#98)
    0x0301BBDC, // #2719.ExplAttrInfos(#1195,REQ)
    0x0301BBFB, // #2720.ExplAttrInfos(#2721,REQ)
    0x0301BC1A, // #2718.Attributes(#2719,#2720)
    0x0301BC38, // #2722.Supertypes(#2627)
    0x0301BC50, // #2722.Composition(#2627,#2722,#98)
    0x0301BC73, // #2723.ExplAttrInfos(#1682,REQ)
    0x0301BC92, // #2724.ExplAttrInfos(#2725,REQ)
    0x0301BCB1, // #2722.Attributes(#2723,#2724)
    0x0301BCCF, // #2726.Supertypes(#2627)
    0x0301BCE7, // #2726.Composition(#2627,#2726,#98)
    0x0301BD0A, // #2727.Supertypes(#2726)
    0x0301BD22, // #2727.Composition(#2627,#2726,#2727,#98)
    0x01024C2D, // #2728.ExplAttrInfos(#2729,REQ)
    0x0301BD4B, // #2730.ExplAttrInfos(#1083,REQ)
    0x0301BD6A, // #2727.Attributes(#2728,#2730)
    0x0301BD88, // #2731.Supertypes(#2726)
    0x0301BDA0, // #2731.Composition(#2627,#2726,#2731,#98)
    0x0301BDC9, // #2732.ExplAttrInfos(#2733,REQ)
    0x0301BDE8, // #2734.ExplAttrInfos(#1120,REQ)
    0x0301BE07, // #2731.Attributes(#2732,#2734)
    0x0301BE25, // #2735.Supertypes(#2726)
    0x0301BE3D, // #2735.Composition(#2627,#2726,#2735,#98)
    0x0301BE66, // #2736.ExplAttrInfos(#2737,REQ)
    0x0301BE85, // #2738.ExplAttrInfos(#2442,REQ)
    0x0301BEA4, // #2735.Attributes(#2736,#2738)
    0x0301BEC2, // #2739.Supertypes(#2726)
    0x0301BEDA, // #2739.Composition(#2627,#2726,#2739,#98)
    0x0301BF03, // #2740.ExplAttrInfos(#2741,REQ)
    0x0301BF22, // #2742.ExplAttrInfos(#1088,REQ)
    0x0301BF41, // #2739.Attributes(#2740,#2742)
    0x0301BF5F, // #2743.Supertypes(#2667)
    0x0301BF77, // #2743.Composition(#2627,#2667,#2743,#98)
    0x0301BFA0, // #2744.ExplAttrInfos(#2291,REQ)
    0x0301BFBF, // #2745.ExplAttrInfos(#1204,REQ)
    0x0301BFDE, // #2743.Attributes(#2744,#2745)
    0x0301BFFC, // #2746.Supertypes(#2667)
    0x0301C014, // #2746.Composition(#2627,#2667,#2746,#98)
    0x0301C03D, // #2747.ExplAttrInfos(#2748,REQ)
    0x0301C05C, // #2749.ExplAttrInfos(#1255,REQ)
    0x0301C07B, // #2746.Attributes(#2747,#2749)
    0x0301C099, // #2750.Supertypes(#2667)
    0x0301C0B1, // #2750.Composition(#2627,#2667,#2750,#98)
    0x0301C0DA, // #2751.ExplAttrInfos(#1204,REQ)
    0x0301C0F9, // #2752.ExplAttrInfos(#1204,REQ)
    0x0301C118, // #2753.ExplAttrInfos(#1625,OPT)
    0x0301C137, // #2754.ExplAttrInfos(#48,OPT)
    0x0301C154, // #2755.ExplAttrInfos(LogicalType,REQ)
    0x0301C179, // #2750.Attributes(#2751,#2752,#2753,#2754,#2755)
    0x0301C1A9, // #2756.Supertypes(#2626)
    0x0301C1C1, // #2756.Composition(#2627,#2626,#2756,#98)
    0x0301C1EA, // #2757.ExplAttrInfos(#838,REQ)
    0x0301C208, // #2758.ExplAttrInfos(#2759,REQ)
    0x0301C227, // #2756.Attributes(#2757,#2758)
    0x0301C245, // #2760.Supertypes(#2667)
    0x0301C25D, // #2760.Composition(#2627,#2667,#2760,#98)
    0x0301C286, // #2761.ExplAttrInfos(#1279,REQ)
    0x0301C2A5, // #2762.ExplAttrInfos(#2763,REQ)
    0x0301C2C4, // #2760.Attributes(#2761,#2762)
    0x0301C2E2, // #2764.Supertypes(#2626)
    0x0301C2FA, // #2764.Composition(#2627,#2626,#2764,#98)
    0x0301C323, // #2765.ExplAttrInfos(#1204,REQ)
    0x0301C342, // #2766.ExplAttrInfos(#1962,REQ)
    0x0301C361, // #2764.Attributes(#2765,#2766)
    0x0301C37F, // #2767.Supertypes(#2667)
    0x0301C397, // #2767.Composition(#2627,#2667,#2767,#98)
    0x0301C3C0, // #2768.ExplAttrInfos(#2769,REQ)
    0x0301C3DF, // #2770.ExplAttrInfos(#1192,REQ)
    0x0301C3FE, // #2767.Attributes(#2768,#2770)
    0x0301C41C, // #2771.Supertypes(#2667)
    0x0301C434, // #2771.Composition(#2627,#2667,#2771,#98)
    0x0301C45D, // #2772.ExplAttrInfos(#1082,REQ)
    0x0301C47C, // #2773.ExplAttrInfos(#1082,REQ)
    0x0301C49B, // #2774.ExplAttrInfos(#2110,OPT)
    0x0301C4BA, // #2775.ExplAttrInfos(#524,OPT)
    0x0301C4D8, // #2776.ExplAttrInfos(#14,OPT)
    0x0301C4F5, // #2771.Attributes(#2772,#2773,#2774,#2775,#2776)
    0x0301C525, // #2777.Supertypes(#2667)
    0x0301C53D, // #2777.Composition(#2627,#2667,#2777,#98)
    0x0301C566, // #2778.ExplAttrInfos(#1499,REQ)
    0x0301C585, // #2779.ExplAttrInfos(#2780,REQ)
    0x0301C5A4, // #2777.Attributes(#2778,#2779)
    0x0301C5C2, // #2781.Supertypes(#2667)
    0x0301C5DA, // #2781.Composition(#2627,#2667,#2781,#98)
    0x0301C603, // #2782.ExplAttrInfos(#1201,REQ)
    0x0301C622, // #2783.ExplAttrInfos(#1204,REQ)
    0x0301C641, // #2784.ExplAttrInfos(#1625,OPT)
    0x0301C660, // #2785.ExplAttrInfos(#460,REQ)
    0x0301C67E, // #2786.ExplAttrInfos(#410,REQ)
    0x0301C69C, // #2781.Attributes(#2782,#2783,#2784,#2785,#2786)
    0x0301C6CC, // #2787.Supertypes(#2781)
    0x0301C6E4, // #2787.Composition(#2627,#2667,#2781,#2787,#98)
    0x0301C713, // #2788.ExplAttrInfos(#2787,OPT)
    0x0301C732, // #2787.Attributes(#2788)
    0x0301C74A, // #2789.Supertypes(#2787)
    0x0301C762, // #2789.Composition(#2627,#2667,#2781,#2787,#2789,#98)
    0x0301C797, // #2790.ExplAttrInfos(#2789,OPT)
    0x0301C7B6, // #2789.Attributes(#2790)
    0x0301C7CE, // #2791.Supertypes(#2626)
    0x0301C7E6, // #2791.Composition(#2627,#2626,#2791,#98)
    0x0301C80F, // #2792.ExplAttrInfos(#1204,REQ)
    0x0301C82E, // #2793.ExplAttrInfos(#1963,REQ)
    0x0301C84D, // #2791.Attributes(#2792,#2793)
    0x0301C86B, // #2794.Supertypes(#805)
    0x0301C882, // #2794.Composition(#805,#675,#2794,#676)
    0x0301C8AA, // #2795.ExplAttrInfos(#87,REQ)
    0x01025DCC, // #2794.Attributes(#2795)
    0x0301C8C7, // #1.Entities(#2427,#2432,#2436,#2439,#96,#2442,#2447,#2450,#1604,#1605,#2459,#2461,#2463,#2465,#2467,#2470,#2472,#2474,#2477,#2480,#1886,#2483,#2486,#2489,#2492,#2494,#2496,#2498,#2500,#2502,#2504,#2509,#2516,#2517,#2523,#2527,#2535,#664,#2551,#2554,#2561,#2568,#2584,#2592,#2585,#2593,#2602,#2612,#2625,#2631,#2635,#2638,#2640,#2642,#2644,#2647,#2649,#2651,#2654,#2656,#2658,#2661,#2663,#2665,#2667,#2668,#2672,#2679,#2682,#2686,#2694,#2704,#2706,#2710,#2714,#2718,#2722,#2626,#2726,#2727,#2731,#2735,#2739,#2743,#2746,#2750,#2756,#2760,#2764,#2767,#2771,#2777,#2781,#2787,#2789,#2791,#2627,#2794,#984,#772)
    0x0301CB27, // #2796.Supertypes(#1321)
    0x0301CB3F, // #2796.Composition(#2796,#1321)
    0x0301CB5E, // #2797.ExplAttrInfos(#2798,REQ)
    0x0301CB7D, // #2799.ExplAttrInfos(#1121,REQ)
    0x0301CB9C, // #2796.Attributes(#2797,#2799)
    0x0301CBBA, // #2800.Supertypes(#1321)
    0x0301CBD2, // #2800.Composition(#2800,#1321)
    0x0301CBF1, // #2801.ExplAttrInfos(#1131,REQ)
    0x0301CC10, // #2802.ExplAttrInfos(#2803,REQ)
    0x0201D3D9, // #2800.Attributes(#2801,#2802)
    0x0301CC2F, // #2804.Supertypes(#1932)
    0x0301CC47, // #2804.Composition(#675,#676,#2804,#708,#1932)
    0x0301CC75, // #2805.ExplAttrInfos(#1365,REQ)
    0x0301CC94, // #2806.ExplAttrInfos(#89,REQ)
    0x0301CCB1, // #2807.DerivAttrInfos(#2147)
    0x0301CCCD, // #2804.Attributes(#2805,#2806,#2807)
    0x0301CCF1, // #2808.Supertypes(#2804)
    0x0301CD09, // #2808.Composition(#675,#676,#2804,#2808,#708,#1932)
    0x0301CD3D, // #2809.ExplAttrInfos(#1147,REQ)
    0x010260F7, // #2808.Attributes(#2809)
    0x0301CD5C, // #2810.Supertypes(#699)
    0x0301CD73, // #2810.Composition(#699,#675,#676,#2810)
    0x0301CD9B, // #2811.ExplAttrInfos(#90,REQ)
    0x0301CDB8, // #2812.ExplAttrInfos(#90,REQ)
    0x0301CDD5, // #2810.Attributes(#2811,#2812)
    0x0301CDF3, // #2813.Supertypes(#699)
    0x0301CE0A, // #2813.Composition(#699,#675,#676,#2813)
    0x0301CE32, // #2814.ExplAttrInfos(#90,REQ)
    0x0301CE4F, // #2815.ExplAttrInfos(#90,REQ)
    0x0301CE6C, // #2813.Attributes(#2814,#2815)
    0x0301CE8A, // #2816.Supertypes(#1414)
    0x0301CEA2, // #2816.Composition(#1414,#1204,#1083,#838,#1108,#2816,#98)
    0x0301CEDC, // #2817.ExplAttrInfos(#512,OPT)
    0x0301CEFA, // #2816.Attributes(#2817)
    0x0301CF12, // #2818.Supertypes(#1418)
    0x0301CF2A, // #2818.Composition(#1418,#1243,#838,#2818,#98,#1088,#1113)
    0x0301CF64, // #2819.ExplAttrInfos(#512,REQ)
    0x0301CF82, // #2818.Attributes(#2819)
    0x0301CF9A, // #2820.Supertypes(#2517)
    0x0301CFB2, // #2820.Composition(#1347,#1147,#2517,#2820)
    0x0301CFDD, // #2821.ExplAttrInfos(#90,REQ)
    0x0301CFFA, // #2820.Attributes(#2821)
    0x0301D012, // #2822.Supertypes(#644)
    0x0301D029, // #2822.Composition(#644,#2822)
    0x0301D047, // #2823.ExplAttrInfos(#514,OPT)
    0x0301D065, // #2824.ExplAttrInfos(#516,REQ)
    0x0301D083, // #2825.DerivAttrInfos(#646)
    0x01026360, // #2822.Attributes(#2823,#2824,#2825)
    0x0301D09E, // #2826.Supertypes(#1254)
    0x0301D0B6, // #2826.Composition(#1238,#1255,#1204,#1254,#1083,#838,#1108,#98,#2826)
    0x0301D0FC, // #2827.ExplAttrInfos(#518,OPT)
    0x0301D11A, // #2826.Attributes(#2827)
    0x0301D132, // #2828.Supertypes(#1265)
    0x0301D14A, // #2828.Composition(#1242,#1262,#1243,#1265,#838,#98,#2828,#1088,#1113)
    0x0301D190, // #2829.ExplAttrInfos(#518,REQ)
    0x0301D1AE, // #2828.Attributes(#2829)
    0x0301D1C6, // #2830.Supertypes(#819)
    0x0301D1DD, // #2830.Composition(#802,#675,#676,#2830,#819)
    0x0301D20A, // #2831.Supertypes(#708)
    0x0301D221, // #2831.Composition(#675,#676,#2831,#708)
    0x0301D249, // #2832.ExplAttrInfos(#802,REQ)
    0x0301D267, // #2833.ExplAttrInfos(#2834,REQ)
    0x0301D286, // #2831.Attributes(#2832,#2833)
    0x0301D2A4, // #2835.Supertypes(#2831)
    0x0301D2BC, // #2835.Composition(#675,#676,#2831,#2835,#708)
    0x0301D2EA, // #2836.ExplAttrInfos(#2837,REQ)
    0x0301D309, // #2838.ExplAttrInfos(#13,REQ)
    0x0301D326, // #2835.Attributes(#2836,#2838)
    0x0301D344, // #2839.Supertypes(#675)
    0x0301D35B, // #2839.Composition(#675,#676,#2839)
    0x0301D37E, // #2840.ExplAttrInfos(#800,REQ)
    0x0301D39C, // #2841.ExplAttrInfos(#2842,REQ)
    0x0301D3BB, // #2843.ExplAttrInfos(#2844,REQ)
    0x0301D3DA, // #2845.DerivAttrInfos(#29)
    0x0301D3F4, // #2839.Attributes(#2840,#2841,#2843,#2845)
    0x0301D41E, // #2846.Supertypes(#1237)
    0x0301D436, // #2846.Composition(#1237,#1238,#1204,#1083,#838,#1108,#98,#2846)
    0x0301D476, // #2847.ExplAttrInfos(#522,OPT)
    0x0201DD38, // #2846.Attributes(#2847)
    0x0301D494, // #2848.Supertypes(#1241)
    0x0301D4AC, // #2848.Composition(#1241,#1242,#1243,#838,#98,#2848,#1088,#1113)
    0x0301D4EC, // #2849.ExplAttrInfos(#522,REQ)
    0x0301D50A, // #2848.Attributes(#2849)
    0x0301D522, // #2850.Supertypes(#1414)
    0x0301D53A, // #2850.Composition(#1414,#1204,#1083,#838,#1108,#98,#2850)
    0x0301D574, // #2851.ExplAttrInfos(#526,OPT)
    0x0301D592, // #2850.Attributes(#2851)
    0x0301D5AA, // #2852.Supertypes(#1418)
    0x0301D5C2, // #2852.Composition(#1418,#1243,#838,#98,#2852,#1088,#1113)
    0x0301D5FC, // #2853.ExplAttrInfos(#526,REQ)
    0x0301D61A, // #2852.Attributes(#2853)
    0x0301D632, // #2854.Supertypes(#1153)
    0x0301D64A, // #2854.Composition(#984,#1153,#2854)
    0x0301D66E, // #2855.Supertypes(#675)
    0x0301D685, // #2855.Composition(#675,#676,#2855)
    0x0301D6A8, // #2856.ExplAttrInfos(#2857,REQ)
    0x0301D6C7, // #2858.DerivAttrInfos(#29)
    0x0301D6E1, // #2855.Attributes(#2856,#2858)
    0x0301D6FF, // #2859.Supertypes(#1604)
    0x0301D717, // #2859.Composition(#97,#1604,#1605,#98,#2859)
    0x0301D744, // #2860.ExplAttrInfos(#528,OPT)
    0x0301D762, // #2861.ExplAttrInfos(#14,OPT)
    0x0301D77F, // #2862.ExplAttrInfos(#14,OPT)
    0x0301D79C, // #2863.ExplAttrInfos(#2427,OPT)
    0x0301D7BB, // #2864.ExplAttrInfos(#663,OPT)
    0x0301D7D9, // #2865.ExplAttrInfos(#663,OPT)
    0x0301D7F7, // #2866.ExplAttrInfos(#14,OPT)
    0x0301D814, // #2867.ExplAttrInfos(#151,OPT)
    0x0301D832, // #2859.Attributes(#2860,#2861,#2862,#2863,#2864,#2865,#2866,#2867)
    0x0301D874, // #2868.Supertypes(#1196)
    0x0301D88C, // #2868.Composition(#1083,#838,#1108,#98,#2868,#1192,#1196)
    0x0301D8C6, // #2869.ExplAttrInfos(#20,OPT)
    0x0301D8E3, // #2870.ExplAttrInfos(#20,OPT)
    0x0301D900, // #2871.ExplAttrInfos(#56,OPT)
    0x0301D91D, // #2872.ExplAttrInfos(#14,OPT)
    0x0301D93A, // #2873.ExplAttrInfos(#1477,OPT)
    0x0301D959, // #2868.Attributes(#2869,#2870,#2871,#2872,#2873)
    0x0301D989, // #2874.Supertypes(#1414)
    0x0301D9A1, // #2874.Composition(#1414,#1204,#1083,#838,#1108,#98,#2874)
    0x0301D9DB, // #2875.ExplAttrInfos(#530,OPT)
    0x0301D9F9, // #2874.Attributes(#2875)
    0x0301DA11, // #2876.Supertypes(#2874)
    0x0301DA29, // #2876.Composition(#1414,#1204,#1083,#838,#1108,#98,#2874,#2876)
    0x0301DA69, // #2877.Supertypes(#2874)
    0x0301DA81, // #2877.Composition(#1414,#1204,#1083,#838,#1108,#98,#2874,#2877)
    0x0301DAC1, // #2878.Supertypes(#1418)
    0x0301DAD9, // #2878.Composition(#1418,#1243,#838,#98,#2878,#1088,#1113)
    0x0301DB13, // #2879.ExplAttrInfos(#530,REQ)
    0x0301DB31, // #2878.Attributes(#2879)
    0x0301DB49, // #2880.Supertypes(#1945)
    0x0301DB61, // #2880.Composition(#2880,#1945)
    0x0201E36C, // #2881.ExplAttrInfos(#56,OPT)
    0x0301DB80, // #2882.ExplAttrInfos(#56,OPT)
    0x0301DB9D, // #2883.ExplAttrInfos(#56,OPT)
    0x0301DBBA, // #2880.Attributes(#2881,#2882,#2883)
    0x0301DBDE, // #2884.Supertypes(#1268)
    0x0301DBF6, // #2884.Composition(#1238,#1255,#1204,#1268,#1083,#838,#1108,#98,#2884)
    0x0301DC3C, // #2885.ExplAttrInfos(#532,OPT)
    0x0301DC5A, // #2884.Attributes(#2885)
    0x0301DC72, // #2886.Supertypes(#1271)
    0x0301DC8A, // #2886.Composition(#1242,#1262,#1243,#1271,#838,#98,#2886,#1088,#1113)
    0x0301DCD0, // #2887.ExplAttrInfos(#532,REQ)
    0x0301DCEE, // #2886.Attributes(#2887)
    0x0301DD06, // #2888.Supertypes(#1254)
    0x0301DD1E, // #2888.Composition(#1238,#1255,#1204,#1254,#1083,#838,#1108,#98,#2888)
    0x0301DD64, // #2889.ExplAttrInfos(#534,OPT)
    0x0301DD82, // #2888.Attributes(#2889)
    0x0301DD9A, // #2890.Supertypes(#1265)
    0x0301DDB2, // #2890.Composition(#1242,#1262,#1243,#1265,#838,#98,#2890,#1088,#1113)
    0x0301DDF8, // #2891.ExplAttrInfos(#534,REQ)
    0x0102709A, // #2890.Attributes(#2891)
    0x0301DE16, // #2894.Supertypes(#1113)
    0x0301DE2E, // #2894.Composition(#838,#98,#2894,#1088,#1113)
    0x0301DE5C, // #2895.ExplAttrInfos(#14,OPT)
    0x0201E625, // #2894.Attributes(#2895)
    0x0301DE79, // #2893.Supertypes(#2894)
    0x0301DE91, // #2893.Composition(#838,#98,#2894,#2893,#1088,#1113)
    0x0301DEC5, // #2892.Supertypes(#2893)
    0x0301DEDD, // #2892.Composition(#838,#98,#2892,#2894,#2893,#1088,#1113)
    0x0301DF17, // #2896.ExplAttrInfos(#536,REQ)
    0x0301DF35, // #2897.ExplAttrInfos(#14,OPT)
    0x0301DF52, // #2892.Attributes(#2896,#2897)
    0x0301DF70, // #2898.Supertypes(#1192)
    0x0301DF88, // #2898.Composition(#1083,#838,#1108,#98,#1192,#2898)
    0x0301DFBC, // #2899.ExplAttrInfos(#538,OPT)
    0x010272C9, // #2898.Attributes(#2899)
    0x0301DFDA, // #2900.Supertypes(#2894)
    0x0301DFF2, // #2900.Composition(#838,#98,#2894,#2900,#1088,#1113)
    0x0301E026, // #2901.ExplAttrInfos(#538,REQ)
    0x0301E044, // #2902.ExplAttrInfos(#14,OPT)
    0x0301E061, // #2900.Attributes(#2901,#2902)
    0x0301E07F, // #2903.Supertypes(#699)
    0x0301E096, // #2903.Composition(#699,#675,#676,#2903)
    0x0301E0BE, // #2904.ExplAttrInfos(#90,REQ)
    0x0301E0DB, // #2903.Attributes(#2904)
    0x0301E0F3, // #2905.Supertypes(#1743)
    0x0301E10B, // #2905.Composition(#1743,#675,#676,#2905,#704)
    0x0301E139, // #2906.ExplAttrInfos(#90,REQ)
    0x0201E8C4, // #2905.Attributes(#2906)
    0x0301E156, // #2907.Supertypes(#1254)
    0x0301E16E, // #2907.Composition(#1238,#1255,#1204,#1254,#1083,#838,#1108,#98,#2907)
    0x0301E1B4, // #2908.ExplAttrInfos(#540,OPT)
    0x0301E1D2, // #2907.Attributes(#2908)
    0x0301E1EA, // #2909.Supertypes(#1265)
    0x0301E202, // #2909.Composition(#1242,#1262,#1243,#1265,#838,#98,#2909,#1088,#1113)
    0x0301E248, // #2910.ExplAttrInfos(#540,REQ)
    0x0301E266, // #2909.Attributes(#2910)
    0x0301E27E, // #2911.Supertypes(#1414)
    0x0301E296, // #2911.Composition(#1414,#1204,#1083,#838,#1108,#98,#2911)
    0x0301E2D0, // #2912.ExplAttrInfos(#544,OPT)
    0x0301E2EE, // #2911.Attributes(#2912)
    0x0301E306, // #2913.Supertypes(#1414)
    0x0301E31E, // #2913.Composition(#1414,#1204,#1083,#838,#1108,#98,#2913)
    0x0301E358, // #2914.ExplAttrInfos(#6,OPT)
    0x0301E374, // #2915.ExplAttrInfos(#6,OPT)
    0x0301E390, // #2916.ExplAttrInfos(#90,OPT)
    0x0301E3AD, // #2917.ExplAttrInfos(#90,OPT)
    0x0301E3CA, // #2918.ExplAttrInfos(#542,OPT)
    0x0301E3E8, // #2913.Attributes(#2914,#2915,#2916,#2917,#2918)
    0x0301E418, // #2919.Supertypes(#1418)
    0x0301E430, // #2919.Composition(#1418,#1243,#838,#98,#2919,#1088,#1113)
    0x0301E46A, // #2920.ExplAttrInfos(#542,REQ)
    0x0201EC68, // #2919.Attributes(#2920)
    0x0301E488, // #2921.Supertypes(#1418)
    0x0301E4A0, // #2921.Composition(#1418,#1243,#838,#98,#2921,#1088,#1113)
    0x0301E4DA, // #2922.ExplAttrInfos(#544,REQ)
    0x0201ECDD, // #2921.Attributes(#2922)
    0x0301E4F8, // #2923.Supertypes(#2689)
    0x0301E510, // #2923.Composition(#1083,#838,#1108,#98,#2923,#2689)
    0x0301E544, // #2924.ExplAttrInfos(#13,OPT)
    0x0201ED55, // #2923.Attributes(#2924)
    0x0301E561, // #2925.Supertypes(#1499)
    0x0301E579, // #2925.Composition(#1335,#1083,#838,#98,#2925,#1499)
    0x0301E5AD, // #2926.ExplAttrInfos(#220,REQ)
    0x0301E5CB, // #2927.ExplAttrInfos(#689,OPT)
    0x0301E5E9, // #2929.Supertypes(#1335)
    0x0301E601, // #2929.Composition(#1335,#1083,#838,#98,#2929)
    0x0301E62F, // #2930.ExplAttrInfos(#430,REQ)
    0x0301E64D, // #2931.ExplAttrInfos(#206,REQ)
    0x0301E66B, // #2932.ExplAttrInfos(#204,REQ)
    0x0301E689, // #2933.ExplAttrInfos(#83,OPT)
    0x0301E6A6, // #2934.ExplAttrInfos(#14,OPT)
    0x0301E6C3, // #2929.Attributes(#2930,#2931,#2932,#2933,#2934)
    0x0301E6F3, // #2928.ExplAttrInfos(#2935,OPT)
    0x0301E712, // #2937.Supertypes(#1335)
    0x0301E72A, // #2937.Composition(#1335,#1083,#838,#98,#2937)
    0x0301E758, // #2938.ExplAttrInfos(#222,REQ)
    0x0301E776, // #2939.ExplAttrInfos(#2929,OPT)
    0x0301E795, // #2940.ExplAttrInfos(#13,REQ)
    0x0301E7B2, // #2937.Attributes(#2938,#2939,#2940)
    0x0301E7D6, // #2936.ExplAttrInfos(#2941,OPT)
    0x0301E7F5, // #2942.ExplAttrInfos(#1110,OPT)
    0x0301E814, // #2925.Attributes(#2926,#2927,#2928,#2936,#2942)
    0x0301E844, // #2943.Supertypes(#2923)
    0x0301E85C, // #2943.Composition(#1083,#838,#1108,#98,#2923,#2689,#2943)
    0x0301E896, // #2944.ExplAttrInfos(#480,OPT)
    0x0301E8B4, // #2945.ExplAttrInfos(#546,REQ)
    0x0301E8D2, // #2943.Attributes(#2944,#2945)
    0x0301E8F0, // #2946.Supertypes(#2698)
    0x0301E908, // #2946.Composition(#1083,#838,#1108,#98,#2698,#2946,#1206)
    0x0301E942, // #2947.ExplAttrInfos(#685,REQ)
    0x0301E960, // #2946.Attributes(#2947)
    0x0301E978, // #2948.Supertypes(#2696)
    0x0301E990, // #2948.Composition(#1083,#838,#1108,#98,#2948,#1206,#2696)
    0x0301E9CA, // #2949.ExplAttrInfos(#548,REQ)
    0x0301E9E8, // #2950.ExplAttrInfos(#685,REQ)
    0x0301EA06, // #2948.Attributes(#2949,#2950)
    0x0301EA24, // #2951.Supertypes(#2948)
    0x0301EA3C, // #2951.Composition(#1083,#838,#1108,#98,#2948,#2951,#1206,#2696)
    0x0301EA7C, // #2953.Supertypes(#2689)
    0x0301EA94, // #2953.Composition(#1083,#838,#1108,#98,#2689,#2953)
    0x0301EAC8, // #2952.Supertypes(#2953)
    0x0301EAE0, // #2952.Composition(#1083,#838,#1108,#98,#2689,#2952,#2953)
    0x0301EB1A, // #2954.ExplAttrInfos(#546,REQ)
    0x0301EB38, // #2952.Attributes(#2954)
    0x0301EB50, // #2955.Supertypes(#2943)
    0x0301EB68, // #2955.Composition(#1083,#838,#1108,#98,#2923,#2689,#2943,#2955)
    0x0301EBA8, // #2956.Supertypes(#2929)
    0x0301EBC0, // #2956.Composition(#1335,#1083,#838,#98,#2956,#2929)
    0x0301EBF4, // #2957.ExplAttrInfos(#2958,OPT)
    0x0301EC13, // #2956.Attributes(#2957)
    0x0301EC2B, // #2959.Supertypes(#2691)
    0x0301EC43, // #2959.Composition(#2691,#2959)
    0x0301EC62, // #2961.Supertypes(#2691)
    0x0301EC7A, // #2961.Composition(#2691,#2961)
    0x0301EC99, // #2960.ExplAttrInfos(#2962,REQ)
    0x0301ECB8, // #2963.ExplAttrInfos(#2965,OPT)
    0x0301ECD7, // #2959.Attributes(#2960,#2963)
    0x0301ECF5, // #2967.Supertypes(#2961)
    0x0301ED0D, // #2967.Composition(#2691,#2961,#2967)
    0x0301ED32, // #2966.Supertypes(#2967)
    0x0301ED4A, // #2966.Composition(#2691,#2966,#2961,#2967)
    0x0301ED75, // #2968.ExplAttrInfos(#59,OPT)
    0x0301ED92, // #2969.ExplAttrInfos(#59,OPT)
    0x0301EDAF, // #2970.ExplAttrInfos(#59,OPT)
    0x0301EDCC, // #2971.ExplAttrInfos(#60,OPT)
    0x0301EDE9, // #2972.ExplAttrInfos(#60,OPT)
    0x0301EE06, // #2973.ExplAttrInfos(#60,OPT)
    0x0301EE23, // #2966.Attributes(#2968,#2969,#2970,#2971,#2972,#2973)
    0x0301EE59, // #2974.Supertypes(#2967)
    0x0301EE71, // #2974.Composition(#2691,#2961,#2974,#2967)
    0x0301EE9C, // #2975.ExplAttrInfos(#88,OPT)
    0x0301EEB9, // #2976.ExplAttrInfos(#88,OPT)
    0x0301EED6, // #2977.ExplAttrInfos(#88,OPT)
    0x0301EEF3, // #2974.Attributes(#2975,#2976,#2977)
    0x0301EF17, // #2978.Supertypes(#2967)
    0x0301EF2F, // #2978.Composition(#2691,#2961,#2978,#2967)
    0x0301EF5A, // #2979.ExplAttrInfos(#56,OPT)
    0x0301EF77, // #2980.ExplAttrInfos(#56,OPT)
    0x0301EF94, // #2981.ExplAttrInfos(#56,OPT)
    0x0301EFB1, // #2982.ExplAttrInfos(#89,OPT)
    0x0301EFCE, // #2983.ExplAttrInfos(#89,OPT)
    0x0301EFEB, // #2984.ExplAttrInfos(#89,OPT)
    0x0301F008, // #2978.Attributes(#2979,#2980,#2981,#2982,#2983,#2984)
    0x0301F03E, // #2985.Supertypes(#2978)
    0x0301F056, // #2985.Composition(#2691,#2961,#2978,#2985,#2967)
    0x0301F087, // #2986.ExplAttrInfos(#23,OPT)
    0x0301F0A4, // #2985.Attributes(#2986)
    0x0301F0BC, // #2987.Supertypes(#2967)
    0x0301F0D4, // #2987.Composition(#2691,#2961,#2987,#2967)
    0x0301F0FF, // #2988.ExplAttrInfos(#43,OPT)
    0x0301F11C, // #2989.ExplAttrInfos(#43,OPT)
    0x0301F139, // #2990.ExplAttrInfos(#43,OPT)
    0x0301F156, // #2991.ExplAttrInfos(#194,OPT)
    0x0301F174, // #2992.ExplAttrInfos(#194,OPT)
    0x0301F192, // #2993.ExplAttrInfos(#194,OPT)
    0x0301F1B0, // #2987.Attributes(#2988,#2989,#2990,#2991,#2992,#2993)
    0x0301F1E6, // #2994.Supertypes(#2987)
    0x0301F1FE, // #2994.Composition(#2691,#2961,#2987,#2994,#2967)
    0x0301F22F, // #2995.ExplAttrInfos(#200,OPT)
    0x0301F24D, // #2994.Attributes(#2995)
    0x0301F265, // #2996.Supertypes(#2967)
    0x0301F27D, // #2996.Composition(#2691,#2961,#2967,#2996)
    0x0301F2A8, // #2997.ExplAttrInfos(#191,OPT)
    0x0301F2C6, // #2998.ExplAttrInfos(#191,OPT)
    0x0301F2E4, // #2999.ExplAttrInfos(#191,OPT)
    0x0301F302, // #2996.Attributes(#2997,#2998,#2999)
    0x0301F326, // #3001.Supertypes(#2923)
    0x0301F33E, // #3001.Composition(#1083,#838,#1108,#98,#2923,#2689,#3001)
    0x0301F378, // #3002.ExplAttrInfos(#480,OPT)
    0x0301F396, // #3003.ExplAttrInfos(#550,REQ)
    0x0301F3B4, // #3001.Attributes(#3002,#3003)
    0x0301F3D2, // #3000.Supertypes(#3001)
    0x0301F3EA, // #3000.Composition(#1083,#838,#1108,#98,#2923,#2689,#3000,#3001)
    0x0301F42A, // #3004.Supertypes(#2923)
    0x0301F442, // #3004.Composition(#1083,#838,#1108,#98,#2923,#2689,#3004)
    0x0301F47C, // #3005.Supertypes(#2698)
    0x0301F494, // #3005.Composition(#1083,#838,#1108,#98,#2698,#1206,#3005)
    0x0301F4CE, // #3006.ExplAttrInfos(#689,OPT)
    0x0301F4EC, // #3005.Attributes(#3006)
    0x0301F504, // #3007.Supertypes(#2953)
    0x0301F51C, // #3007.Composition(#1083,#838,#1108,#98,#2689,#3007,#2953)
    0x0301F556, // #3008.Supertypes(#2698)
    0x0301F56E, // #3008.Composition(#1083,#838,#1108,#98,#2698,#1206,#3008)
    0x0301F5A8, // #3009.Supertypes(#2696)
    0x0301F5C0, // #3009.Composition(#1083,#838,#1108,#98,#1206,#2696,#3009)
    0x0301F5FA, // #3010.ExplAttrInfos(#552,REQ)
    0x0301F618, // #3011.ExplAttrInfos(#90,OPT)
    0x0301F635, // #3009.Attributes(#3010,#3011)
    0x0301F653, // #3012.Supertypes(#3009)
    0x0301F66B, // #3012.Composition(#1083,#838,#1108,#98,#1206,#2696,#3009,#3012)
    0x0301F6AB, // #3013.Supertypes(#2953)
    0x0301F6C3, // #3013.Composition(#1083,#838,#1108,#98,#2689,#2953,#3013)
    0x0301F6FD, // #3014.ExplAttrInfos(#550,REQ)
    0x0301F71B, // #3013.Attributes(#3014)
    0x0301F733, // #3015.Supertypes(#984)
    0x0301F74A, // #3015.Composition(#984,#3015)
    0x0301F768, // #1.Entities(#676,#1103,#1161,#2796,#2800,#1321,#1644,#2804,#2808,#2810,#2813,#2816,#2818,#98,#2820,#2822,#2826,#2828,#1645,#2830,#2577,#2571,#2831,#2835,#2839,#2846,#2848,#2850,#2852,#1151,#1153,#2854,#2855,#2414,#2859,#2868,#2874,#2876,#2877,#2878,#2880,#2884,#2886,#708,#1195,#2888,#2890,#2892,#1192,#2894,#1196,#2893,#2898,#2900,#2903,#2905,#2907,#2909,#2911,#2913,#2919,#2921,#2923,#2689,#2925,#2698,#1945,#2943,#2946,#2948,#2951,#2952,#1206,#2955,#2691,#2956,#2959,#2929,#2966,#2961,#2974,#2978,#2985,#2987,#2994,#2967,#2996,#2696,#3000,#3004,#3005,#3007,#2953,#2937,#3001,#3008,#3009,#3012,#3013,#3015)
    0x0301F9C9, // #3016.Supertypes(#3015)
    0x0301F9E1, // #3016.Composition(#984,#3016,#3015)
    0x0301FA05, // #3017.Supertypes(#1642)
    0x0301FA1D, // #3017.Composition(#1642,#1083,#838,#1161,#98,#3017)
    0x0301FA51, // #3018.ExplAttrInfos(#554,OPT)
    0x0301FA6F, // #3017.Attributes(#3018)
    0x0301FA87, // #3019.Supertypes(#1669)
    0x0301FA9F, // #3019.Composition(#1669,#838,#98,#3019,#1088,#1164)
    0x0301FAD3, // #3020.ExplAttrInfos(#554,REQ)
    0x0301FAF1, // #3019.Attributes(#3020)
    0x0301FB09, // #3021.Supertypes(#829)
    0x0301FB20, // #3021.Composition(#829,#676,#3021,#830)
    0x0301FB48, // #3022.ExplAttrInfos(#829,REQ)
    0x01028B67, // #3021.Attributes(#3022)
    0x0301FB66, // #3023.Supertypes(#1177)
    0x0301FB7E, // #3023.Composition(#1177,#676,#3023,#830)
    0x0301FBA7, // #3024.ExplAttrInfos(#1177,REQ)
    0x01028BF5, // #3023.Attributes(#3024)
    0x0301FBC6, // #3025.Supertypes(#1932)
    0x0301FBDE, // #3025.Composition(#675,#676,#708,#3025,#1932)
    0x0301FC0C, // #3026.ExplAttrInfos(#802,REQ)
    0x0301FC2A, // #3027.ExplAttrInfos(#87,OPT)
    0x0301FC47, // #3028.ExplAttrInfos(#87,OPT)
    0x0301FC64, // #3029.ExplAttrInfos(#704,REQ)
    0x01028CDA, // #3025.Attributes(#3026,#3027,#3028,#3029)
    0x0301FC82, // #3030.Supertypes(#1961)
    0x0301FC9A, // #3030.Composition(#1204,#1961,#1083,#838,#1108,#98,#3030)
    0x0301FCD4, // #3031.ExplAttrInfos(#556,OPT)
    0x0301FCF2, // #3030.Attributes(#3031)
    0x0301FD0A, // #3033.Supertypes(#704)
    0x0301FD21, // #3033.Composition(#675,#676,#704,#3033)
    0x0301FD49, // #3034.ExplAttrInfos(#1147,REQ)
    0x0301FD68, // #3035.ExplAttrInfos(#689,OPT)
    0x0301FD86, // #3033.Attributes(#3034,#3035)
    0x0301FDA4, // #3032.Supertypes(#3033)
    0x0301FDBC, // #3032.Composition(#675,#676,#704,#3032,#3033)
    0x0301FDEA, // #3036.ExplAttrInfos(#685,REQ)
    0x0301FE08, // #3037.ExplAttrInfos(#56,REQ)
    0x0301FE25, // #3038.DerivAttrInfos(#878)
    0x0301FE40, // #3032.Attributes(#3036,#3037,#3038)
    0x0301FE64, // #3039.Supertypes(#3033)
    0x0301FE7C, // #3039.Composition(#675,#676,#704,#3039,#3033)
    0x0301FEAA, // #3040.ExplAttrInfos(#1365,REQ)
    0x0301FEC9, // #3041.DerivAttrInfos(#2147)
    0x0301FEE5, // #3039.Attributes(#3040,#3041)
    0x0301FF03, // #3042.Supertypes(#2961)
    0x0301FF1B, // #3042.Composition(#2691,#2961,#3042)
    0x0301FF40, // #3043.ExplAttrInfos(#3044,OPT)
    0x0301FF5F, // #3045.ExplAttrInfos(#3046,OPT)
    0x0301FF7E, // #3047.ExplAttrInfos(#83,OPT)
    0x0301FF9B, // #3042.Attributes(#3043,#3045,#3047)
    0x0301FFBF, // #3048.Supertypes(#914)
    0x0301FFD6, // #3048.Composition(#753,#3048,#914)
    0x0301FFF9, // #3049.ExplAttrInfos(#765,OPT)
    0x03020017, // #3050.ExplAttrInfos(#765,OPT)
    0x03020035, // #3051.ExplAttrInfos(#765,OPT)
    0x03020053, // #3052.ExplAttrInfos(#765,OPT)
    0x03020071, // #3053.ExplAttrInfos(#765,OPT)
    0x0302008F, // #3054.ExplAttrInfos(#1203,OPT)
    0x030200AE, // #3055.ExplAttrInfos(#502,REQ)
    0x030200CC, // #3048.Attributes(#3049,#3050,#3051,#3052,#3053,#3054,#3055)
    0x03020108, // #3056.Supertypes(#708)
    0x0302011F, // #3056.Composition(#675,#676,#708,#3056)
    0x03020147, // #3057.ExplAttrInfos(#802,REQ)
    0x01029192, // #3058.ExplAttrInfos(#90,REQ)
    0x03020165, // #3059.ExplAttrInfos(#90,OPT)
    0x03020182, // #3060.ExplAttrInfos(#87,OPT)
    0x0302019F, // #3061.ExplAttrInfos(#87,OPT)
    0x030201BC, // #3056.Attributes(#3057,#3058,#3059,#3060,#3061)
    0x030201EC, // #3062.Supertypes(#3056)
    0x03020204, // #3062.Composition(#675,#676,#708,#3056,#3062)
    0x03020232, // #3063.ExplAttrInfos(#90,OPT)
    0x0302024F, // #3062.Attributes(#3063)
    0x03020267, // #3064.Supertypes(#1258)
    0x0302027F, // #3064.Composition(#1238,#1255,#1204,#1258,#1083,#838,#1108,#98,#3064)
    0x030202C5, // #3065.ExplAttrInfos(#560,OPT)
    0x030202E3, // #3064.Attributes(#3065)
    0x030202FB, // #3066.Supertypes(#1261)
    0x03020313, // #3066.Composition(#1242,#1262,#1243,#1261,#838,#98,#3066,#1088,#1113)
    0x03020359, // #3067.ExplAttrInfos(#560,REQ)
    0x03020377, // #3066.Attributes(#3067)
    0x0302038F, // #3068.Supertypes(#1989)
    0x030203A7, // #3068.Composition(#1204,#1989,#1083,#838,#1108,#98,#3068)
    0x030203E1, // #3069.ExplAttrInfos(#562,OPT)
    0x030203FF, // #3068.Attributes(#3069)
    0x03020417, // #3070.Supertypes(#1990)
    0x0302042F, // #3070.Composition(#1243,#1990,#838,#98,#3070,#1088,#1113)
    0x03020469, // #3071.ExplAttrInfos(#562,OPT)
    0x03020487, // #3070.Attributes(#3071)
    0x0302049F, // #3072.Supertypes(#1347)
    0x030204B7, // #3072.Composition(#1347,#1147,#3072)
    0x030204DC, // #3073.ExplAttrInfos(#90,REQ)
    0x030204F9, // #3074.ExplAttrInfos(#90,REQ)
    0x03020516, // #3075.ExplAttrInfos(#90,REQ)
    0x03020533, // #3076.ExplAttrInfos(#90,REQ)
    0x03020550, // #3077.ExplAttrInfos(#82,OPT)
    0x0302056D, // #3078.ExplAttrInfos(#82,OPT)
    0x0302058A, // #3079.ExplAttrInfos(#82,OPT)
    0x030205A7, // #3080.ExplAttrInfos(#89,OPT)
    0x030205C4, // #3081.ExplAttrInfos(#89,OPT)
    0x030205E1, // #3072.Attributes(#3073,#3074,#3075,#3076,#3077,#3078,#3079,#3080,#3081)
    0x03020629, // #3082.Supertypes(#1863)
    0x03020641, // #3082.Composition(#1238,#1255,#1204,#1863,#1083,#838,#1108,#98,#3082)
    0x03020687, // #3083.ExplAttrInfos(#564,OPT)
    0x02020BC9, // #3082.Attributes(#3083)
    0x030206A5, // #3084.Supertypes(#1866)
    0x030206BD, // #3084.Composition(#1242,#1262,#1243,#1866,#838,#98,#3084,#1088,#1113)
    0x03020703, // #3085.ExplAttrInfos(#564,REQ)
    0x02020C4B, // #3084.Attributes(#3085)
    0x03020721, // #3086.Supertypes(#1082)
    0x03020739, // #3086.Composition(#1083,#838,#1082,#98,#3086)
    0x03020767, // #3087.ExplAttrInfos(#14,OPT)
    0x03020784, // #3088.ExplAttrInfos(#14,OPT)
    0x0102967B, // #3089.ExplAttrInfos(#13,REQ)
    0x030207A1, // #3090.ExplAttrInfos(#6,OPT)
    0x030207BD, // #3092.Supertypes(#1645)
    0x030207D5, // #3092.Composition(#1645,#3092)
    0x030207F4, // #3093.ExplAttrInfos(#566,OPT)
    0x03020812, // #3094.ExplAttrInfos(#31,OPT)
    0x0302082F, // #3095.ExplAttrInfos(#25,OPT)
    0x0302084C, // #3096.ExplAttrInfos(#25,OPT)
    0x03020869, // #3097.ExplAttrInfos(#25,OPT)
    0x03020886, // #3098.ExplAttrInfos(#25,OPT)
    0x030208A3, // #3099.ExplAttrInfos(#25,OPT)
    0x030208C0, // #3100.ExplAttrInfos(#25,OPT)
    0x030208DD, // #3101.ExplAttrInfos(#31,OPT)
    0x030208FA, // #3102.ExplAttrInfos(#31,OPT)
    0x03020917, // #3103.ExplAttrInfos(#13,OPT)
    0x03020934, // #3104.ExplAttrInfos(#25,OPT)
    0x03020951, // #3105.ExplAttrInfos(#31,OPT)
    0x0302096E, // #3106.ExplAttrInfos(#25,OPT)
    0x0302098B, // #3107.ExplAttrInfos(#25,OPT)
    0x030209A8, // #3108.ExplAttrInfos(#31,OPT)
    0x030209C5, // #3109.ExplAttrInfos(#92,OPT)
    0x030209E2, // #3092.Attributes(#3093,#3094,#3095,#3096,#3097,#3098,#3099,#3100,#3101,#3102,#3103,#3104,#3105,#3106,#3107,#3108,#3109)
    0x03020A5A, // #3091.ExplAttrInfos(#3092,OPT)
    0x03020A79, // #3110.ExplAttrInfos(#568,OPT)
    0x03020A97, // #3086.Attributes(#3087,#3088,#3089,#3090,#3091,#3110)
    0x03020ACD, // #3111.Supertypes(#3092)
    0x03020AE5, // #3111.Composition(#1645,#3092,#3111)
    0x03020B0A, // #3112.ExplAttrInfos(#2535,REQ)
    0x03020B29, // #3111.Attributes(#3112)
    0x03020B41, // #3113.Supertypes(#1087)
    0x03020B59, // #3113.Composition(#838,#98,#3113,#1088,#1087)
    0x03020B87, // #3114.ExplAttrInfos(#568,REQ)
    0x03020BA5, // #3115.ExplAttrInfos(#14,OPT)
    0x03020BC2, // #3113.Attributes(#3114,#3115)
    0x03020BE0, // #3116.Supertypes(#125)
    0x03020BF7, // #3116.Composition(#125,#3116)
    0x03020C15, // #3117.ExplAttrInfos(#3118,OPT)
    0x03020C34, // #3119.ExplAttrInfos(#3120,OPT)
    0x03020C53, // #3121.ExplAttrInfos(#14,OPT)
    0x03020C70, // #3122.ExplAttrInfos(#3123,OPT)
    0x03020C8F, // #3124.ExplAttrInfos(#195,OPT)
    0x03020CAD, // #3125.ExplAttrInfos(#3126,OPT)
    0x03020CCC, // #3116.Attributes(#3117,#3119,#3121,#3122,#3124,#3125)
    0x03020D02, // #3127.Supertypes(#2585)
    0x03020D1A, // #3127.Composition(#1204,#1487,#1083,#838,#1108,#2585,#98,#3127)
    0x03020D5A, // #3128.ExplAttrInfos(#574,OPT)
    0x03020D78, // #3129.ExplAttrInfos(#90,OPT)
    0x03020D95, // #3130.ExplAttrInfos(#11,OPT)
    0x03020DB2, // #3131.ExplAttrInfos(#43,OPT)
    0x03020DCF, // #3132.ExplAttrInfos(#95,OPT)
    0x03020DEC, // #3133.ExplAttrInfos(#84,OPT)
    0x03020E09, // #3134.ExplAttrInfos(#90,OPT)
    0x03020E26, // #3135.ExplAttrInfos(#90,OPT)
    0x03020E43, // #3127.Attributes(#3128,#3129,#3130,#3131,#3132,#3133,#3134,#3135)
    0x03020E85, // #3136.Supertypes(#2585)
    0x03020E9D, // #3136.Composition(#1204,#1487,#1083,#838,#1108,#2585,#98,#3136)
    0x03020EDD, // #3137.ExplAttrInfos(#570,OPT)
    0x03020EFB, // #3136.Attributes(#3137)
    0x03020F13, // #3138.Supertypes(#2593)
    0x03020F2B, // #3138.Composition(#1490,#1243,#838,#2593,#98,#3138,#1088,#1113)
    0x03020F6B, // #3139.ExplAttrInfos(#570,REQ)
    0x03020F89, // #3138.Attributes(#3139)
    0x03020FA1, // #3140.Supertypes(#2585)
    0x03020FB9, // #3140.Composition(#1204,#1487,#1083,#838,#1108,#2585,#98,#3140)
    0x03020FF9, // #3141.ExplAttrInfos(#572,REQ)
    0x03021017, // #3140.Attributes(#3141)
    0x0302102F, // #3142.Supertypes(#2593)
    0x03021047, // #3142.Composition(#1490,#1243,#838,#2593,#98,#3142,#1088,#1113)
    0x03021087, // #3143.ExplAttrInfos(#572,REQ)
    0x030210A5, // #3142.Attributes(#3143)
    0x030210BD, // #3144.Supertypes(#2593)
    0x030210D5, // #3144.Composition(#1490,#1243,#838,#2593,#98,#3144,#1088,#1113)
    0x03021115, // #3145.ExplAttrInfos(#574,REQ)
    0x03021133, // #3146.ExplAttrInfos(#90,OPT)
    0x03021150, // #3147.ExplAttrInfos(#11,OPT)
    0x0302116D, // #3148.ExplAttrInfos(#90,OPT)
    0x0302118A, // #3144.Attributes(#3145,#3146,#3147,#3148)
    0x030211B4, // #3149.Supertypes(#675)
    0x030211CB, // #3149.Composition(#675,#676,#3149)
    0x030211EE, // #3150.ExplAttrInfos(#94,REQ)
    0x0302120B, // #3151.ExplAttrInfos(#693,REQ)
    0x03021229, // #3152.ExplAttrInfos(#576,REQ)
    0x03021247, // #3149.Attributes(#3150,#3151,#3152)
    0x0302126B, // #3153.Supertypes(#3149)
    0x03021283, // #3153.Composition(#675,#676,#3149,#3153)
    0x030212AC, // #3154.ExplAttrInfos(#2349,REQ)
    0x030212CB, // #3155.ExplAttrInfos(#15,REQ)
    0x030212E8, // #3153.Attributes(#3154,#3155)
    0x03021306, // #3156.Supertypes(#956)
    0x0302131D, // #3156.Composition(#756,#956,#753,#3156)
    0x03021345, // #3157.ExplAttrInfos(#3158,REQ)
    0x03021364, // #3159.ExplAttrInfos(#40,OPT)
    0x03021381, // #3160.ExplAttrInfos(#41,OPT)
    0x0302139E, // #3161.ExplAttrInfos(#42,OPT)
    0x030213BB, // #3162.ExplAttrInfos(#874,REQ)
    0x030213D9, // #3156.Attributes(#3157,#3159,#3160,#3161,#3162)
    0x03021409, // #3163.Supertypes(#2062)
    0x03021421, // #3163.Composition(#753,#2062,#3163)
    0x03021445, // #3164.ExplAttrInfos(#14,REQ)
    0x03021462, // #3165.ExplAttrInfos(#3166,OPT)
    0x03021481, // #3163.Attributes(#3164,#3165)
    0x0302149F, // #3167.Supertypes(#2062)
    0x030214B7, // #3167.Composition(#753,#2062,#3167)
    0x030214DB, // #3169.Supertypes(#753)
    0x030214F2, // #3169.Composition(#753,#3169)
    0x03021510, // #3170.ExplAttrInfos(#3171,REQ)
    0x0302152F, // #3169.Attributes(#3170)
    0x03021547, // #3168.ExplAttrInfos(#3172,REQ)
    0x03021566, // #3173.ExplAttrInfos(#1177,REQ)
    0x03021585, // #3167.Attributes(#3168,#3173)
    0x030215A3, // #3174.Supertypes(#1153)
    0x030215BB, // #3174.Composition(#984,#1153,#3174)
    0x030215DF, // #3175.Supertypes(#1743)
    0x030215F7, // #3175.Composition(#1743,#675,#676,#704,#3175)
    0x03021625, // #3176.ExplAttrInfos(#90,REQ)
    0x03021642, // #3177.ExplAttrInfos(#90,REQ)
    0x0302165F, // #3175.Attributes(#3176,#3177)
    0x0302167D, // #3178.Supertypes(#1268)
    0x03021695, // #3178.Composition(#1238,#1255,#1204,#1268,#1083,#838,#1108,#98,#3178)
    0x030216DB, // #3179.ExplAttrInfos(#580,OPT)
    0x030216F9, // #3178.Attributes(#3179)
    0x03021711, // #3180.Supertypes(#1271)
    0x03021729, // #3180.Composition(#1242,#1262,#1243,#1271,#838,#98,#3180,#1088,#1113)
    0x0302176F, // #3181.ExplAttrInfos(#580,REQ)
    0x0302178D, // #3180.Attributes(#3181)
    0x030217A5, // #3182.Supertypes(#1291)
    0x030217BD, // #3182.Composition(#801,#802,#1291,#675,#676,#3182)
    0x030217F0, // #3183.ExplAttrInfos(#90,OPT)
    0x0302180D, // #3184.ExplAttrInfos(#90,OPT)
    0x02021F47, // #3185.ExplAttrInfos(#13,REQ)
    0x02021F64, // #3186.ExplAttrInfos(#13,REQ)
    0x0302182A, // #3187.ExplAttrInfos(#584,REQ)
    0x03021848, // #3182.Attributes(#3183,#3184,#3185,#3186,#3187)
    0x03021878, // #3188.Supertypes(#1204)
    0x03021890, // #3188.Composition(#1204,#1083,#838,#1108,#98,#3188)
    0x030218C4, // #3189.ExplAttrInfos(#586,OPT)
    0x030218E2, // #3188.Attributes(#3189)
    0x030218FA, // #3190.Supertypes(#1243)
    0x03021912, // #3190.Composition(#1243,#838,#98,#3190,#1088,#1113)
    0x03021946, // #3191.ExplAttrInfos(#586,REQ)
    0x0102ABCD, // #3190.Attributes(#3191)
    0x03021964, // #3192.Supertypes(#1347)
    0x0302197C, // #3192.Composition(#1347,#1147,#3192)
    0x030219A1, // #3193.ExplAttrInfos(#90,REQ)
    0x030219BE, // #3194.ExplAttrInfos(#90,REQ)
    0x0102ACA4, // #3195.ExplAttrInfos(#90,REQ)
    0x030219DB, // #3196.ExplAttrInfos(#56,REQ)
    0x030219F8, // #3192.Attributes(#3193,#3194,#3195,#3196)
    0x03021A22, // #3197.Supertypes(#710)
    0x03021A39, // #3197.Composition(#675,#676,#710,#711,#3197)
    0x03021A66, // #3198.ExplAttrInfos(#3200,OPT)
    0x03021A85, // #3201.ExplAttrInfos(#13,OPT)
    0x03021AA2, // #3202.ExplAttrInfos(#3204,REQ)
    0x03021AC1, // #3205.ExplAttrInfos(#3206,OPT)
    0x03021AE0, // #3207.DerivAttrInfos(#6)
    0x03021AF9, // #3197.Attributes(#3198,#3201,#3202,#3205,#3207)
    0x03021B29, // #3208.Supertypes(#3197)
    0x03021B41, // #3208.Composition(#675,#676,#710,#711,#3197,#3208)
    0x03021B74, // #3209.ExplAttrInfos(#3210,REQ)
    0x03021B93, // #3208.Attributes(#3209)
    0x03021BAB, // #3211.Supertypes(#801)
    0x03021BC2, // #3211.Composition(#801,#802,#675,#676,#3211)
    0x03021BEF, // #3212.ExplAttrInfos(#802,REQ)
    0x03021C0D, // #3213.ExplAttrInfos(#3214,REQ)
    0x03021C2C, // #3215.ExplAttrInfos(#3216,REQ)
    0x03021C4B, // #3217.ExplAttrInfos(#13,REQ)
    0x03021C68, // #3218.ExplAttrInfos(#588,REQ)
    0x03021C86, // #3211.Attributes(#3212,#3213,#3215,#3217,#3218)
    0x03021CB6, // #3219.Supertypes(#1268)
    0x03021CCE, // #3219.Composition(#1238,#1255,#1204,#1268,#1083,#838,#1108,#98,#3219)
    0x03021D14, // #3220.ExplAttrInfos(#590,OPT)
    0x03021D32, // #3219.Attributes(#3220)
    0x03021D4A, // #3221.Supertypes(#1271)
    0x03021D62, // #3221.Composition(#1242,#1262,#1243,#1271,#838,#98,#3221,#1088,#1113)
    0x03021DA8, // #3222.ExplAttrInfos(#590,REQ)
    0x03021DC6, // #3221.Attributes(#3222)
    0x03021DDE, // #3223.Supertypes(#1347)
    0x03021DF6, // #3223.Composition(#1347,#1147,#3223)
    0x03021E1B, // #3224.ExplAttrInfos(#90,REQ)
    0x03021E38, // #3225.ExplAttrInfos(#90,REQ)
    0x03021E55, // #3226.ExplAttrInfos(#90,REQ)
    0x03021E72, // #3227.ExplAttrInfos(#90,REQ)
    0x03021E8F, // #3228.ExplAttrInfos(#82,OPT)
    0x03021EAC, // #3229.ExplAttrInfos(#82,OPT)
    0x03021EC9, // #3230.ExplAttrInfos(#89,OPT)
    0x03021EE6, // #3223.Attributes(#3224,#3225,#3226,#3227,#3228,#3229,#3230)
    0x03021F22, // #3231.Supertypes(#1368)
    0x03021F3A, // #3231.Composition(#801,#1368,#802,#675,#676,#3231)
    0x03021F6D, // #3232.Supertypes(#1237)
    0x03021F85, // #3232.Composition(#1237,#1238,#1204,#1083,#838,#1108,#98,#3232)
    0x03021FC5, // #3233.ExplAttrInfos(#594,OPT)
    0x03021FE3, // #3232.Attributes(#3233)
    0x03021FFB, // #3234.Supertypes(#1241)
    0x03022013, // #3234.Composition(#1241,#1242,#1243,#838,#98,#1088,#1113,#3234)
    0x03022053, // #3235.ExplAttrInfos(#594,REQ)
    0x03022071, // #3234.Attributes(#3235)
    0x03022089, // #3236.Supertypes(#1268)
    0x030220A1, // #3236.Composition(#1238,#1255,#1204,#1268,#1083,#838,#1108,#98,#3236)
    0x030220E7, // #3237.ExplAttrInfos(#596,OPT)
    0x03022105, // #3236.Attributes(#3237)
    0x0302211D, // #3238.Supertypes(#1271)
    0x03022135, // #3238.Composition(#1242,#1262,#1243,#1271,#838,#98,#1088,#1113,#3238)
    0x0302217B, // #3239.ExplAttrInfos(#596,REQ)
    0x03022199, // #3238.Attributes(#3239)
    0x030221B1, // #3240.Supertypes(#1258)
    0x030221C9, // #3240.Composition(#1238,#1255,#1204,#1258,#1083,#838,#1108,#98,#3240)
    0x0302220F, // #3241.ExplAttrInfos(#598,OPT)
    0x0302222D, // #3240.Attributes(#3241)
    0x03022245, // #3242.Supertypes(#1261)
    0x0302225D, // #3242.Composition(#1242,#1262,#1243,#1261,#838,#98,#1088,#1113,#3242)
    0x030222A3, // #3243.ExplAttrInfos(#598,REQ)
    0x030222C1, // #3242.Attributes(#3243)
    0x030222D9, // #3244.Supertypes(#1181)
    0x030222F1, // #3244.Composition(#1181,#676,#830,#3244)
    0x0302231A, // #3245.ExplAttrInfos(#832,REQ)
    0x03022338, // #3244.Attributes(#3245)
    0x03022350, // #3246.Supertypes(#1487)
    0x03022368, // #3246.Composition(#1204,#1487,#1083,#838,#1108,#98,#3246)
    0x030223A2, // #3247.ExplAttrInfos(#600,OPT)
    0x030223C0, // #3246.Attributes(#3247)
    0x030223D8, // #3248.Supertypes(#1490)
    0x030223F0, // #3248.Composition(#1490,#1243,#838,#98,#1088,#1113,#3248)
    0x0302242A, // #3249.ExplAttrInfos(#600,OPT)
    0x03022448, // #3248.Attributes(#3249)
    0x03022460, // #3250.Supertypes(#1487)
    0x03022478, // #3250.Composition(#1204,#1487,#1083,#838,#1108,#98,#3250)
    0x030224B2, // #3251.ExplAttrInfos(#602,OPT)
    0x030224D0, // #3250.Attributes(#3251)
    0x030224E8, // #3252.Supertypes(#1490)
    0x03022500, // #3252.Composition(#1490,#1243,#838,#98,#1088,#1113,#3252)
    0x0302253A, // #3253.ExplAttrInfos(#602,REQ)
    0x03022558, // #3252.Attributes(#3253)
    0x03022570, // #3254.Supertypes(#1204)
    0x03022588, // #3254.Composition(#1204,#1083,#838,#1108,#98,#3254)
    0x030225BC, // #3255.Supertypes(#1963)
    0x030225D4, // #3255.Composition(#1204,#1961,#1963,#1083,#838,#1108,#98,#3255)
    0x03022614, // #3256.ExplAttrInfos(#604,OPT)
    0x03022632, // #3255.Attributes(#3256)
    0x0302264A, // #1.Entities(#891,#3016,#3017,#3019,#3021,#3023,#704,#819,#3025,#3030,#3032,#3039,#3042,#902,#906,#911,#3048,#914,#917,#919,#1932,#3056,#3062,#3033,#3064,#3066,#1499,#3068,#3070,#3072,#1040,#1049,#1043,#3082,#3084,#3086,#3092,#3111,#3113,#3116,#3127,#3136,#3138,#3140,#3142,#3144,#710,#711,#3149,#3153,#940,#3156,#942,#946,#2062,#3163,#3167,#3169,#2067,#2547,#1059,#2557,#830,#3174,#3175,#3178,#3180,#3182,#3188,#3190,#3192,#3197,#3208,#3211,#3219,#3221,#1088,#1087,#1113,#1164,#3223,#3231,#1689,#3232,#3234,#3236,#3238,#3240,#3242,#878,#832,#3244,#1078,#3246,#3248,#3250,#3252,#3254,#973,#3255)
    0x0302289D, // #3257.Supertypes(#1414)
    0x030228B5, // #3257.Composition(#1414,#1204,#1083,#838,#1108,#98,#3257)
    0x030228EF, // #3258.ExplAttrInfos(#606,OPT)
    0x0302290D, // #3257.Attributes(#3258)
    0x03022925, // #3259.Supertypes(#3257)
    0x0302293D, // #3259.Composition(#1414,#1204,#1083,#838,#1108,#98,#3257,#3259)
    0x0302297D, // #3260.Supertypes(#3257)
    0x03022995, // #3260.Composition(#1414,#1204,#1083,#838,#1108,#98,#3257,#3260)
    0x030229D5, // #3261.Supertypes(#1418)
    0x030229ED, // #3261.Composition(#1418,#1243,#838,#98,#1088,#1113,#3261)
    0x03022A27, // #3262.ExplAttrInfos(#606,REQ)
    0x03022A45, // #3261.Attributes(#3262)
    0x03022A5D, // #3263.Supertypes(#1254)
    0x03022A75, // #3263.Composition(#1238,#1255,#1204,#1254,#1083,#838,#1108,#98,#3263)
    0x03022ABB, // #3264.ExplAttrInfos(#608,OPT)
    0x03022AD9, // #3263.Attributes(#3264)
    0x03022AF1, // #3265.Supertypes(#1265)
    0x03022B09, // #3265.Composition(#1242,#1262,#1243,#1265,#838,#98,#1088,#1113,#3265)
    0x03022B4F, // #3266.ExplAttrInfos(#608,REQ)
    0x03022B6D, // #3265.Attributes(#3266)
    0x03022B85, // #3267.Supertypes(#1414)
    0x03022B9D, // #3267.Composition(#1414,#1204,#1083,#838,#1108,#98,#3267)
    0x03022BD7, // #3268.ExplAttrInfos(#90,OPT)
    0x03022BF4, // #3269.ExplAttrInfos(#90,OPT)
    0x03022C11, // #3270.ExplAttrInfos(#618,OPT)
    0x03022C2F, // #3271.ExplAttrInfos(#620,OPT)
    0x03022C4D, // #3272.ExplAttrInfos(#14,OPT)
    0x03022C6A, // #3267.Attributes(#3268,#3269,#3270,#3271,#3272)
    0x03022C9A, // #3273.Supertypes(#1798)
    0x03022CB2, // #3273.Composition(#1798,#97,#96,#98,#3273)
    0x03022CDD, // #3274.ExplAttrInfos(#90,OPT)
    0x03022CFA, // #3275.ExplAttrInfos(#82,OPT)
    0x03022D17, // #3276.ExplAttrInfos(#82,OPT)
    0x03022D34, // #3277.ExplAttrInfos(#82,OPT)
    0x03022D51, // #3278.ExplAttrInfos(#84,OPT)
    0x03022D6E, // #3279.ExplAttrInfos(#84,OPT)
    0x03022D8B, // #3280.ExplAttrInfos(#84,OPT)
    0x03022DA8, // #3281.ExplAttrInfos(#84,OPT)
    0x03022DC5, // #3282.ExplAttrInfos(#1151,OPT)
    0x03022DE4, // #3283.ExplAttrInfos(#56,OPT)
    0x03022E01, // #3284.ExplAttrInfos(#56,OPT)
    0x03022E1E, // #3285.ExplAttrInfos(#56,OPT)
    0x03022E3B, // #3273.Attributes(#3274,#3275,#3276,#3277,#3278,#3279,#3280,#3281,#3282,#3283,#3284,#3285)
    0x03022E95, // #3286.Supertypes(#1798)
    0x03022EAD, // #3286.Composition(#1798,#97,#96,#98,#3286)
    0x03022ED8, // #3287.ExplAttrInfos(#610,REQ)
    0x03022EF6, // #3288.ExplAttrInfos(#612,REQ)
    0x03022F14, // #3289.ExplAttrInfos(#90,OPT)
    0x03022F31, // #3290.ExplAttrInfos(#90,OPT)
    0x03022F4E, // #3291.ExplAttrInfos(#1151,OPT)
    0x03022F6D, // #3286.Attributes(#3287,#3288,#3289,#3290,#3291)
    0x03022F9D, // #3292.Supertypes(#3267)
    0x03022FB5, // #3292.Composition(#1414,#1204,#1083,#838,#1108,#98,#3267,#3292)
    0x03022FF5, // #3293.Supertypes(#1113)
    0x0302300D, // #3293.Composition(#838,#98,#1088,#1113,#3293)
    0x0302303B, // #3294.ExplAttrInfos(#614,REQ)
    0x03023059, // #3295.ExplAttrInfos(#616,REQ)
    0x03023077, // #3296.ExplAttrInfos(#13,REQ)
    0x03023094, // #3297.ExplAttrInfos(#13,REQ)
    0x030230B1, // #3293.Attributes(#3294,#3295,#3296,#3297)
    0x030230DB, // #3298.Supertypes(#1418)
    0x030230F3, // #3298.Composition(#1418,#1243,#838,#98,#1088,#1113,#3298)
    0x0302312D, // #3299.ExplAttrInfos(#618,REQ)
    0x0302314B, // #3300.ExplAttrInfos(#620,REQ)
    0x03023169, // #3301.ExplAttrInfos(#13,OPT)
    0x03023186, // #3302.ExplAttrInfos(#14,OPT)
    0x030231A3, // #3298.Attributes(#3299,#3300,#3301,#3302)
    0x030231CD, // #3303.Supertypes(#1229)
    0x030231E5, // #3303.Composition(#1229,#1083,#838,#98,#3303)
    0x03023213, // #3305.Supertypes(#1645)
    0x0302322B, // #3305.Composition(#1645,#3305)
    0x0302324A, // #3306.ExplAttrInfos(#2535,OPT)
    0x03023269, // #3307.ExplAttrInfos(#24,OPT)
    0x03023286, // #3308.ExplAttrInfos(#24,OPT)
    0x030232A3, // #3305.Attributes(#3306,#3307,#3308)
    0x030232C7, // #3304.ExplAttrInfos(#3309,OPT)
    0x030232E6, // #3310.ExplAttrInfos(#3311,OPT)
    0x03023305, // #3312.ExplAttrInfos(#622,OPT)
    0x03023323, // #3303.Attributes(#3304,#3310,#3312)
    0x03023347, // #3313.Supertypes(#1229)
    0x0302335F, // #3313.Composition(#1229,#1083,#838,#98,#3313)
    0x0302338D, // #3314.ExplAttrInfos(#25,REQ)
    0x030233AA, // #3315.ExplAttrInfos(#3316,OPT)
    0x030233C9, // #3317.ExplAttrInfos(#14,OPT)
    0x030233E6, // #3318.ExplAttrInfos(#31,OPT)
    0x03023403, // #3319.ExplAttrInfos(#31,OPT)
    0x03023420, // #3320.ExplAttrInfos(#25,REQ)
    0x0302343D, // #3321.ExplAttrInfos(#25,OPT)
    0x0302345A, // #3313.Attributes(#3314,#3315,#3317,#3318,#3319,#3320,#3321)
    0x03023496, // #3322.Supertypes(#3313)
    0x030234AE, // #3322.Composition(#1229,#1083,#838,#98,#3313,#3322)
    0x030234E2, // #3323.ExplAttrInfos(#624,OPT)
    0x03023500, // #3322.Attributes(#3323)
    0x03023518, // #3324.Supertypes(#3313)
    0x03023530, // #3324.Composition(#1229,#1083,#838,#98,#3313,#3324)
    0x03023564, // #3325.ExplAttrInfos(#626,OPT)
    0x03023582, // #3324.Attributes(#3325)
    0x0302359A, // #3326.Supertypes(#1347)
    0x030235B2, // #3326.Composition(#1347,#1147,#3326)
    0x030235D7, // #3327.ExplAttrInfos(#90,REQ)
    0x030235F4, // #3328.ExplAttrInfos(#90,REQ)
    0x03023611, // #3329.ExplAttrInfos(#90,REQ)
    0x0302362E, // #3330.ExplAttrInfos(#90,REQ)
    0x0302364B, // #3331.ExplAttrInfos(#82,OPT)
    0x03023668, // #3332.ExplAttrInfos(#82,OPT)
    0x03023685, // #3326.Attributes(#3327,#3328,#3329,#3330,#3331,#3332)
    0x030236BB, // #3333.Supertypes(#1499)
    0x030236D3, // #3333.Composition(#1335,#1083,#838,#98,#1499,#3333)
    0x03023707, // #3334.ExplAttrInfos(#14,OPT)
    0x03023724, // #3333.Attributes(#3334)
    0x0302373C, // #1.Entities(#3257,#3259,#3260,#3261,#3263,#3265,#3267,#3273,#3286,#3292,#3293,#3298,#3303,#3313,#3322,#3324,#3305,#3326,#3333)
};

} // namespace

SchemaTables tablesOfIFC4X2() noexcept {
    return {reinterpret_cast<const char*>(&texts), declarations, statements};
}

} // namespace velkor::schemas
