// Made by velkor-rulegen from IFC4X3_RC3.exp (SHA-256 c1173060441a3536c71311280acba78f851b1b7b5202014800d1890370466724); do not edit.

#include "RuleTables.h"

namespace velkor::rules {

namespace {

constexpr WhereRule entityRules[] = {
    {8, 3108, 3028, 3109, 3030, 408}, // IfcActorRole.WR1
    {10, 4172, 4173, 4174, 3030, 14421}, // IfcActuator.CorrectPredefinedType
    {10, 4172, 4175, 4176, 3030, 14456}, // IfcActuator.CorrectTypeAssigned
    {11, 4177, 4173, 4178, 3030, 14480}, // IfcActuatorType.CorrectPredefinedType
    {13, 3110, 3028, 3111, 3030, 432}, // IfcAddress.WR1
    {15, 4179, 4180, 4181, 3030, 14507}, // IfcAdvancedBrep.HasAdvancedFaces
    {16, 4182, 4183, 4184, 3030, 14532}, // IfcAdvancedBrepWithVoids.VoidsHaveAdvancedFaces
    {17, 4185, 4186, 4187, 3030, 14567}, // IfcAdvancedFace.ApplicableSurface
    {17, 4185, 4188, 4189, 3030, 14592}, // IfcAdvancedFace.RequiresEdgeCurve
    {17, 4185, 4190, 4191, 3030, 14653}, // IfcAdvancedFace.ApplicableEdgeCurves
    {19, 4192, 4173, 4193, 3030, 14737}, // IfcAirTerminal.CorrectPredefinedType
    {19, 4192, 4175, 4194, 3030, 14772}, // IfcAirTerminal.CorrectTypeAssigned
    {20, 4195, 4173, 4196, 3030, 14796}, // IfcAirTerminalBox.CorrectPredefinedType
    {20, 4195, 4175, 4197, 3030, 14831}, // IfcAirTerminalBox.CorrectTypeAssigned
    {21, 3116, 4173, 3117, 3030, 464}, // IfcAirTerminalBoxType.CorrectPredefinedType
    {23, 3118, 4173, 3119, 3030, 491}, // IfcAirTerminalType.CorrectPredefinedType
    {25, 4198, 4173, 4199, 3030, 14855}, // IfcAirToAirHeatRecovery.CorrectPredefinedType
    {25, 4198, 4175, 4200, 3030, 14890}, // IfcAirToAirHeatRecovery.CorrectTypeAssigned
    {26, 3120, 4173, 3121, 3030, 518}, // IfcAirToAirHeatRecoveryType.CorrectPredefinedType
    {28, 4201, 4173, 4202, 3030, 14914}, // IfcAlarm.CorrectPredefinedType
    {28, 4201, 4175, 4203, 3030, 14949}, // IfcAlarm.CorrectTypeAssigned
    {29, 4204, 4173, 4205, 3030, 14973}, // IfcAlarmType.CorrectPredefinedType
    {77, 3151, 4206, 4207, 3030, 15000}, // IfcApproval.HasIdentifierOrName
    {81, 3158, 3028, 3159, 3030, 708}, // IfcArbitraryClosedProfileDef.WR1
    {81, 3158, 3033, 3160, 3030, 717}, // IfcArbitraryClosedProfileDef.WR2
    {81, 3158, 3035, 3161, 3030, 724}, // IfcArbitraryClosedProfileDef.WR3
    {82, 3163, 3164, 3165, 3030, 731}, // IfcArbitraryOpenProfileDef.WR11
    {82, 3163, 3166, 3167, 3030, 748}, // IfcArbitraryOpenProfileDef.WR12
    {83, 3169, 3028, 3170, 3030, 757}, // IfcArbitraryProfileDefWithVoids.WR1
    {83, 3169, 3033, 3171, 3030, 768}, // IfcArbitraryProfileDefWithVoids.WR2
    {83, 3169, 3035, 3172, 3030, 790}, // IfcArbitraryProfileDefWithVoids.WR3
    {93, 4214, 4215, 4216, 3030, 15013}, // IfcAsymmetricIShapeProfileDef.ValidFlangeThickness
    {93, 4214, 4217, 4218, 3030, 15031}, // IfcAsymmetricIShapeProfileDef.ValidWebThickness
    {93, 4214, 4219, 4220, 3030, 15046}, // IfcAsymmetricIShapeProfileDef.ValidBottomFilletRadius
    {93, 4214, 4221, 4222, 3030, 15067}, // IfcAsymmetricIShapeProfileDef.ValidTopFilletRadius
    {94, 4223, 4173, 4224, 3030, 15088}, // IfcAudioVisualAppliance.CorrectPredefinedType
    {94, 4223, 4175, 4225, 3030, 15123}, // IfcAudioVisualAppliance.CorrectTypeAssigned
    {95, 4226, 4173, 4227, 3030, 15147}, // IfcAudioVisualApplianceType.CorrectPredefinedType
    {97, 3175, 4228, 3176, 3030, 834}, // IfcAxis1Placement.AxisIs3D
    {97, 3175, 4229, 3177, 3030, 851}, // IfcAxis1Placement.LocationIs3D
    {97, 3175, 5240, 5241, 3030, 31493}, // IfcAxis1Placement.LocationIsCP
    {99, 3179, 4230, 3180, 3030, 885}, // IfcAxis2Placement2D.RefDirIs2D
    {99, 3179, 4231, 3181, 3030, 902}, // IfcAxis2Placement2D.LocationIs2D
    {99, 3179, 5240, 5241, 3030, 31493}, // IfcAxis2Placement2D.LocationIsCP
    {100, 3183, 4229, 3177, 3030, 851}, // IfcAxis2Placement3D.LocationIs3D
    {100, 3183, 4228, 3176, 3030, 834}, // IfcAxis2Placement3D.AxisIs3D
    {100, 3183, 4232, 3184, 3030, 922}, // IfcAxis2Placement3D.RefDirIs3D
    {100, 3183, 4233, 3186, 3030, 939}, // IfcAxis2Placement3D.AxisToRefDirPosition
    {100, 3183, 4234, 3188, 3030, 969}, // IfcAxis2Placement3D.AxisAndRefDirProvision
    {100, 3183, 5240, 5241, 3030, 31493}, // IfcAxis2Placement3D.LocationIsCP
    {101, 5242, 3028, 5243, 3030, 31502}, // IfcAxis2PlacementLinear.WR1
    {101, 5242, 3033, 3186, 3030, 939}, // IfcAxis2PlacementLinear.WR2
    {103, 4252, 4173, 4253, 3030, 15324}, // IfcBeam.CorrectPredefinedType
    {103, 4252, 4175, 4254, 3030, 15359}, // IfcBeam.CorrectTypeAssigned
    {104, 4255, 4256, 4257, 3030, 15383}, // IfcBeamStandardCase.HasMaterialProfileSetUsage
    {105, 4258, 4173, 4259, 3030, 15414}, // IfcBeamType.CorrectPredefinedType
    {107, 5199, 4173, 5200, 3030, 31021}, // IfcBearing.CorrectPredefinedType
    {107, 5199, 4175, 5201, 3030, 31056}, // IfcBearing.CorrectTypeAssigned
    {108, 5202, 4173, 5203, 3030, 31080}, // IfcBearingType.CorrectPredefinedType
    {115, 3198, 4260, 3199, 3030, 1043}, // IfcBlobTexture.SupportedRasterFormat
    {115, 3198, 4261, 4262, 3030, 15441}, // IfcBlobTexture.RasterCodeByteStream
    {117, 4263, 4173, 4264, 3030, 15453}, // IfcBoiler.CorrectPredefinedType
    {117, 4263, 4175, 4265, 3030, 15488}, // IfcBoiler.CorrectTypeAssigned
    {118, 3200, 4173, 3201, 3030, 1061}, // IfcBoilerType.CorrectPredefinedType
    {121, 3202, 4267, 4268, 3030, 36360}, // IfcBooleanClippingResult.FirstOperandType
    {121, 3202, 4269, 3204, 3030, 1101}, // IfcBooleanClippingResult.SecondOperandType
    {121, 3202, 4270, 3206, 3030, 1107}, // IfcBooleanClippingResult.OperatorType
    {124, 3207, 4235, 3208, 3030, 1115}, // IfcBooleanResult.SameDim
    {124, 3207, 4271, 4272, 3030, 15535}, // IfcBooleanResult.FirstOperandClosed
    {124, 3207, 4273, 4274, 3030, 15558}, // IfcBooleanResult.SecondOperandClosed
    {128, 4275, 4276, 3099, 3030, 391}, // IfcBoundaryCurve.IsClosed
    {137, 3209, 4277, 3210, 3030, 1136}, // IfcBoxedHalfSpace.UnboundedSurface
    {138, 5248, 4173, 5586, 3030, 31534}, // IfcBridge.CorrectPredefinedType
    {142, 3190, 4235, 3192, 3030, 991}, // IfcBSplineCurve.SameDim
    {144, 4237, 4238, 4239, 3030, 15190}, // IfcBSplineCurveWithKnots.ConsistentBSpline
    {144, 4237, 4240, 4241, 3030, 15205}, // IfcBSplineCurveWithKnots.CorrespondingKnotLists
    {147, 4243, 4244, 4245, 3030, 15252}, // IfcBSplineSurfaceWithKnots.UDirectionConstraints
    {147, 4243, 4246, 4247, 3030, 15273}, // IfcBSplineSurfaceWithKnots.VDirectionConstraints
    {147, 4243, 4248, 4249, 3030, 15294}, // IfcBSplineSurfaceWithKnots.CorrespondingULists
    {147, 4243, 4250, 4251, 3030, 15303}, // IfcBSplineSurfaceWithKnots.CorrespondingVLists
    {151, 4280, 4173, 4281, 3030, 15581}, // IfcBuildingElementPart.CorrectPredefinedType
    {151, 4280, 4175, 4282, 3030, 15616}, // IfcBuildingElementPart.CorrectTypeAssigned
    {152, 4283, 4173, 4284, 3030, 15640}, // IfcBuildingElementPartType.CorrectPredefinedType
    {154, 3211, 4285, 3212, 3030, 1146}, // IfcBuildingElementProxy.HasObjectName
    {154, 3211, 4173, 4286, 3030, 15667}, // IfcBuildingElementProxy.CorrectPredefinedType
    {154, 3211, 4175, 4287, 3030, 15702}, // IfcBuildingElementProxy.CorrectTypeAssigned
    {155, 4288, 4173, 4289, 3030, 15726}, // IfcBuildingElementProxyType.CorrectPredefinedType
    {161, 5256, 4279, 4037, 3030, 6943}, // IfcBuiltElement.MaxOneMaterialAssociation
    {163, 5257, 4173, 5548, 3030, 31639}, // IfcBuiltSystem.CorrectPredefinedType
    {165, 4290, 4173, 4291, 3030, 15753}, // IfcBurner.CorrectPredefinedType
    {165, 4290, 4175, 4292, 3030, 15788}, // IfcBurner.CorrectTypeAssigned
    {166, 4293, 4173, 4294, 3030, 15812}, // IfcBurnerType.CorrectPredefinedType
    {168, 4299, 4173, 4300, 3030, 15874}, // IfcCableCarrierFitting.CorrectPredefinedType
    {168, 4299, 4175, 4301, 3030, 15909}, // IfcCableCarrierFitting.CorrectTypeAssigned
    {169, 3217, 4173, 3218, 3030, 1215}, // IfcCableCarrierFittingType.CorrectPredefinedType
    {171, 4302, 4173, 4303, 3030, 15933}, // IfcCableCarrierSegment.CorrectPredefinedType
    {171, 4302, 4175, 4304, 3030, 15968}, // IfcCableCarrierSegment.CorrectTypeAssigned
    {172, 4305, 4173, 4306, 3030, 15992}, // IfcCableCarrierSegmentType.CorrectPredefinedType
    {174, 4307, 4173, 4308, 3030, 16019}, // IfcCableFitting.CorrectPredefinedType
    {174, 4307, 4175, 4309, 3030, 16054}, // IfcCableFitting.CorrectTypeAssigned
    {175, 4310, 4173, 4311, 3030, 16078}, // IfcCableFittingType.CorrectPredefinedType
    {177, 4312, 4173, 4313, 3030, 16105}, // IfcCableSegment.CorrectPredefinedType
    {177, 4312, 4175, 4314, 3030, 16140}, // IfcCableSegment.CorrectTypeAssigned
    {178, 4315, 4173, 4316, 3030, 16164}, // IfcCableSegmentType.CorrectPredefinedType
    {180, 5208, 4173, 5209, 3030, 31130}, // IfcCaissonFoundation.CorrectPredefinedType
    {180, 5208, 4175, 5210, 3030, 31165}, // IfcCaissonFoundation.CorrectTypeAssigned
    {181, 5211, 4173, 5212, 3030, 31189}, // IfcCaissonFoundationType.CorrectPredefinedType
    {185, 3222, 4317, 3223, 3030, 1248}, // IfcCartesianPoint.CP2Dor3D
    {189, 3224, 4319, 3225, 3030, 1263}, // IfcCartesianTransformationOperator.ScaleGreaterZero
    {190, 3226, 4320, 3227, 3030, 1284}, // IfcCartesianTransformationOperator2D.DimEqual2
    {190, 3226, 4321, 3228, 3030, 1294}, // IfcCartesianTransformationOperator2D.Axis1Is2D
    {190, 3226, 4322, 3229, 3030, 1317}, // IfcCartesianTransformationOperator2D.Axis2Is2D
    {191, 3231, 4323, 3232, 3030, 1359}, // IfcCartesianTransformationOperator2DnonUniform.Scale2GreaterZero
    {192, 3233, 4324, 3234, 3030, 1377}, // IfcCartesianTransformationOperator3D.DimIs3D
    {192, 3233, 4325, 3235, 3030, 1387}, // IfcCartesianTransformationOperator3D.Axis1Is3D
    {192, 3233, 4326, 3236, 3030, 1410}, // IfcCartesianTransformationOperator3D.Axis2Is3D
    {192, 3233, 4327, 3237, 3030, 1433}, // IfcCartesianTransformationOperator3D.Axis3Is3D
    {193, 3238, 4323, 3232, 3030, 1359}, // IfcCartesianTransformationOperator3DnonUniform.Scale2GreaterZero
    {193, 3238, 4328, 3239, 3030, 1470}, // IfcCartesianTransformationOperator3DnonUniform.Scale3GreaterZero
    {198, 4329, 4173, 4330, 3030, 16197}, // IfcChiller.CorrectPredefinedType
    {198, 4329, 4175, 4331, 3030, 16232}, // IfcChiller.CorrectTypeAssigned
    {199, 3240, 4173, 3241, 3030, 1488}, // IfcChillerType.CorrectPredefinedType
    {201, 4332, 4173, 4333, 3030, 16256}, // IfcChimney.CorrectPredefinedType
    {201, 4332, 4175, 4334, 3030, 16291}, // IfcChimney.CorrectTypeAssigned
    {202, 4335, 4173, 4336, 3030, 16315}, // IfcChimneyType.CorrectPredefinedType
    {205, 3242, 3028, 3243, 3030, 1515}, // IfcCircleHollowProfileDef.WR1
    {221, 4343, 4173, 4344, 3030, 16342}, // IfcCoil.CorrectPredefinedType
    {221, 4343, 4175, 4345, 3030, 16377}, // IfcCoil.CorrectTypeAssigned
    {222, 3252, 4173, 3253, 3030, 1525}, // IfcCoilType.CorrectPredefinedType
    {229, 4346, 4173, 4347, 3030, 16401}, // IfcColumn.CorrectPredefinedType
    {229, 4346, 4175, 4348, 3030, 16436}, // IfcColumn.CorrectTypeAssigned
    {230, 4349, 4256, 4257, 3030, 15383}, // IfcColumnStandardCase.HasMaterialProfileSetUsage
    {231, 4350, 4173, 4351, 3030, 16460}, // IfcColumnType.CorrectPredefinedType
    {233, 4352, 4173, 4353, 3030, 16487}, // IfcCommunicationsAppliance.CorrectPredefinedType
    {233, 4352, 4175, 4354, 3030, 16522}, // IfcCommunicationsAppliance.CorrectTypeAssigned
    {234, 4355, 4173, 4356, 3030, 16546}, // IfcCommunicationsApplianceType.CorrectPredefinedType
    {238, 3254, 3073, 3255, 3030, 1552}, // IfcComplexProperty.WR21
    {238, 3254, 3257, 3258, 3030, 1571}, // IfcComplexProperty.WR22
    {239, 4358, 4359, 4360, 3030, 16573}, // IfcComplexPropertyTemplate.UniquePropertyNames
    {239, 4358, 4361, 4362, 3030, 16580}, // IfcComplexPropertyTemplate.NoSelfReference
    {241, 3260, 4363, 3261, 3030, 1578}, // IfcCompositeCurve.CurveContinuous
    {241, 3260, 4235, 3263, 3030, 1636}, // IfcCompositeCurve.SameDim
    {242, 4364, 4365, 4366, 3030, 16599}, // IfcCompositeCurveOnSurface.SameSurface
    {243, 3264, 4368, 3265, 3030, 1682}, // IfcCompositeCurveSegment.ParentIsBoundedCurve
    {244, 3268, 4369, 3269, 3030, 1694}, // IfcCompositeProfileDef.InvariantProfileType
    {244, 3268, 4370, 3270, 3030, 1721}, // IfcCompositeProfileDef.NoRecursion
    {246, 4371, 4173, 4372, 3030, 16615}, // IfcCompressor.CorrectPredefinedType
    {246, 4371, 4175, 4373, 3030, 16650}, // IfcCompressor.CorrectTypeAssigned
    {247, 3271, 4173, 3272, 3030, 1740}, // IfcCompressorType.CorrectPredefinedType
    {249, 4374, 4173, 4375, 3030, 16674}, // IfcCondenser.CorrectPredefinedType
    {249, 4374, 4175, 4376, 3030, 16709}, // IfcCondenser.CorrectTypeAssigned
    {250, 3273, 4173, 3274, 3030, 1767}, // IfcCondenserType.CorrectPredefinedType
    {265, 3276, 3164, 3277, 3030, 1794}, // IfcConstraint.WR11
    {270, 4378, 4173, 4379, 3030, 16733}, // IfcConstructionEquipmentResource.CorrectPredefinedType
    {271, 4380, 4173, 4381, 3030, 16768}, // IfcConstructionEquipmentResourceType.CorrectPredefinedType
    {273, 3292, 4173, 4382, 3030, 16795}, // IfcConstructionMaterialResource.CorrectPredefinedType
    {274, 4383, 4173, 4384, 3030, 16830}, // IfcConstructionMaterialResourceType.CorrectPredefinedType
    {276, 3296, 4173, 4385, 3030, 16857}, // IfcConstructionProductResource.CorrectPredefinedType
    {277, 4386, 4173, 4387, 3030, 16892}, // IfcConstructionProductResourceType.CorrectPredefinedType
    {285, 4393, 4173, 4394, 3030, 16919}, // IfcController.CorrectPredefinedType
    {285, 4393, 4175, 4395, 3030, 16954}, // IfcController.CorrectTypeAssigned
    {286, 4396, 4173, 4397, 3030, 16978}, // IfcControllerType.CorrectPredefinedType
    {290, 5273, 4173, 5549, 3030, 31674}, // IfcConveyorSegment.CorrectPredefinedType
    {290, 5273, 4175, 5275, 3030, 31709}, // IfcConveyorSegment.CorrectTypeAssigned
    {291, 5276, 4173, 5550, 3030, 31733}, // IfcConveyorSegmentType.CorrectPredefinedType
    {293, 4399, 4173, 4400, 3030, 17005}, // IfcCooledBeam.CorrectPredefinedType
    {293, 4399, 4175, 4401, 3030, 17040}, // IfcCooledBeam.CorrectTypeAssigned
    {294, 3300, 4173, 3301, 3030, 1883}, // IfcCooledBeamType.CorrectPredefinedType
    {296, 4402, 4173, 4403, 3030, 17064}, // IfcCoolingTower.CorrectPredefinedType
    {296, 4402, 4175, 4404, 3030, 17099}, // IfcCoolingTower.CorrectTypeAssigned
    {297, 3302, 4173, 3303, 3030, 1910}, // IfcCoolingTowerType.CorrectPredefinedType
    {311, 5284, 4173, 5551, 3030, 31776}, // IfcCourse.CorrectPredefinedType
    {311, 5284, 4175, 5286, 3030, 31811}, // IfcCourse.CorrectTypeAssigned
    {312, 5287, 4173, 5552, 3030, 31835}, // IfcCourseType.CorrectPredefinedType
    {314, 3306, 4173, 3308, 3030, 1937}, // IfcCovering.CorrectPredefinedType
    {314, 3306, 4175, 4408, 3030, 17123}, // IfcCovering.CorrectTypeAssigned
    {315, 4410, 4173, 4411, 3030, 17147}, // IfcCoveringType.CorrectPredefinedType
    {319, 4412, 4173, 4413, 3030, 17174}, // IfcCrewResource.CorrectPredefinedType
    {320, 4414, 4173, 4415, 3030, 17209}, // IfcCrewResourceType.CorrectPredefinedType
    {325, 3213, 4295, 3214, 3030, 1155}, // IfcCShapeProfileDef.ValidGirth
    {325, 3213, 4296, 4297, 3030, 15839}, // IfcCShapeProfileDef.ValidInternalFilletRadius
    {325, 3213, 4298, 3216, 3030, 1194}, // IfcCShapeProfileDef.ValidWallThickness
    {328, 4416, 4173, 4417, 3030, 17236}, // IfcCurtainWall.CorrectPredefinedType
    {328, 4416, 4175, 4418, 3030, 17271}, // IfcCurtainWall.CorrectTypeAssigned
    {329, 4419, 4173, 4420, 3030, 17295}, // IfcCurtainWallType.CorrectPredefinedType
    {342, 3315, 4421, 3316, 3030, 1984}, // IfcCurveStyle.MeasureOfWidth
    {342, 3315, 4422, 4423, 3030, 17322}, // IfcCurveStyle.IdentifiableCurveStyle
    {345, 3317, 4424, 3318, 3030, 2013}, // IfcCurveStyleFontPattern.VisibleLengthGreaterEqualZero
    {348, 4425, 4173, 4426, 3030, 17342}, // IfcDamper.CorrectPredefinedType
    {348, 4425, 4175, 4427, 3030, 17377}, // IfcDamper.CorrectTypeAssigned
    {349, 3319, 4173, 3320, 3030, 2020}, // IfcDamperType.CorrectPredefinedType
    {362, 5213, 4175, 5214, 3030, 31216}, // IfcDeepFoundation.CorrectTypeAssigned
    {368, 3321, 4369, 3322, 3030, 2047}, // IfcDerivedProfileDef.InvariantProfileType
    {369, 3323, 3028, 3324, 3030, 2059}, // IfcDerivedUnit.WR1
    {369, 3323, 3033, 3325, 3030, 2091}, // IfcDerivedUnit.WR2
    {382, 4428, 4429, 4430, 3030, 17401}, // IfcDirection.MagnitudeGreaterZero
    {384, 5292, 4567, 4568, 3030, 19177}, // IfcDirectrixCurveSweptAreaSolid.DirectrixBounded
    {387, 4431, 4173, 4432, 3030, 17421}, // IfcDiscreteAccessory.CorrectPredefinedType
    {387, 4431, 4175, 4433, 3030, 17456}, // IfcDiscreteAccessory.CorrectTypeAssigned
    {388, 4434, 4173, 4435, 3030, 17480}, // IfcDiscreteAccessoryType.CorrectPredefinedType
    {391, 5294, 4173, 5553, 3030, 31862}, // IfcDistributionBoard.CorrectPredefinedType
    {391, 5294, 4175, 5296, 3030, 31897}, // IfcDistributionBoard.CorrectTypeAssigned
    {392, 5297, 4173, 5554, 3030, 31921}, // IfcDistributionBoardType.CorrectPredefinedType
    {394, 4436, 4173, 4437, 3030, 17507}, // IfcDistributionChamberElement.CorrectPredefinedType
    {394, 4436, 4175, 4438, 3030, 17542}, // IfcDistributionChamberElement.CorrectTypeAssigned
    {395, 4439, 4173, 4440, 3030, 17566}, // IfcDistributionChamberElementType.CorrectPredefinedType
    {406, 5300, 4173, 5587, 3030, 31948}, // IfcDistributionSystem.CorrectPredefinedType
    {412, 3371, 3028, 4446, 3030, 17593}, // IfcDocumentReference.WR1
    {415, 4448, 4449, 4450, 3030, 17604}, // IfcDoor.CorrectStyleAssigned
    {415, 4448, 4173, 5302, 3030, 31983}, // IfcDoor.CorrectPredefinedType
    {415, 4448, 4175, 4450, 3030, 17604}, // IfcDoor.CorrectTypeAssigned
    {416, 3375, 3126, 4451, 3030, 17628}, // IfcDoorLiningProperties.WR31
    {416, 3375, 3377, 4452, 3030, 17643}, // IfcDoorLiningProperties.WR32
    {416, 3375, 3379, 3380, 3030, 2435}, // IfcDoorLiningProperties.WR33
    {416, 3375, 3381, 3382, 3030, 2462}, // IfcDoorLiningProperties.WR34
    {416, 3375, 3383, 4453, 3030, 17658}, // IfcDoorLiningProperties.WR35
    {419, 3385, 4454, 4453, 3030, 17658}, // IfcDoorPanelProperties.ApplicableToType
    {424, 4455, 4173, 4456, 3030, 17696}, // IfcDoorType.CorrectPredefinedType
    {431, 3399, 4457, 3400, 3030, 2514}, // IfcDraughtingPreDefinedColour.PreDefinedColourNames
    {432, 3406, 4458, 3407, 3030, 2550}, // IfcDraughtingPreDefinedCurveFont.PreDefinedCurveFontNames
    {434, 4459, 4173, 4460, 3030, 17723}, // IfcDuctFitting.CorrectPredefinedType
    {434, 4459, 4175, 4461, 3030, 17758}, // IfcDuctFitting.CorrectTypeAssigned
    {435, 3412, 4173, 3413, 3030, 2592}, // IfcDuctFittingType.CorrectPredefinedType
    {437, 4462, 4173, 4463, 3030, 17782}, // IfcDuctSegment.CorrectPredefinedType
    {437, 4462, 4175, 4464, 3030, 17817}, // IfcDuctSegment.CorrectTypeAssigned
    {438, 3414, 4173, 3415, 3030, 2619}, // IfcDuctSegmentType.CorrectPredefinedType
    {440, 4465, 4173, 4466, 3030, 17841}, // IfcDuctSilencer.CorrectPredefinedType
    {440, 4465, 4175, 4467, 3030, 17876}, // IfcDuctSilencer.CorrectTypeAssigned
    {441, 3416, 4173, 3417, 3030, 2646}, // IfcDuctSilencerType.CorrectPredefinedType
    {448, 5308, 4173, 5555, 3030, 32043}, // IfcEarthworksCut.CorrectPredefinedType
    {451, 5310, 4173, 5556, 3030, 32078}, // IfcEarthworksFill.CorrectPredefinedType
    {456, 3418, 4276, 3419, 3030, 2673}, // IfcEdgeLoop.IsClosed
    {456, 3418, 4468, 3421, 3030, 2690}, // IfcEdgeLoop.IsContinuous
    {460, 4469, 4173, 4470, 3030, 17900}, // IfcElectricAppliance.CorrectPredefinedType
    {460, 4469, 4175, 4471, 3030, 17935}, // IfcElectricAppliance.CorrectTypeAssigned
    {461, 4472, 4173, 4473, 3030, 17959}, // IfcElectricApplianceType.CorrectPredefinedType
    {468, 4474, 4173, 4475, 3030, 17986}, // IfcElectricDistributionBoard.CorrectPredefinedType
    {468, 4474, 4175, 4476, 3030, 18021}, // IfcElectricDistributionBoard.CorrectTypeAssigned
    {469, 4477, 4173, 4478, 3030, 18045}, // IfcElectricDistributionBoardType.CorrectPredefinedType
    {473, 4479, 4173, 4480, 3030, 18072}, // IfcElectricFlowStorageDevice.CorrectPredefinedType
    {473, 4479, 4175, 4481, 3030, 18107}, // IfcElectricFlowStorageDevice.CorrectTypeAssigned
    {474, 4482, 4173, 4483, 3030, 18131}, // IfcElectricFlowStorageDeviceType.CorrectPredefinedType
    {476, 5315, 4173, 5557, 3030, 32113}, // IfcElectricFlowTreatmentDevice.CorrectPredefinedType
    {476, 5315, 4175, 5317, 3030, 32148}, // IfcElectricFlowTreatmentDevice.CorrectTypeAssigned
    {477, 5318, 4173, 5558, 3030, 32172}, // IfcElectricFlowTreatmentDeviceType.CorrectPredefinedType
    {479, 4484, 4173, 4485, 3030, 18158}, // IfcElectricGenerator.CorrectPredefinedType
    {479, 4484, 4175, 4486, 3030, 18193}, // IfcElectricGenerator.CorrectTypeAssigned
    {480, 4487, 4173, 4488, 3030, 18217}, // IfcElectricGeneratorType.CorrectPredefinedType
    {484, 4489, 4173, 4490, 3030, 18244}, // IfcElectricMotor.CorrectPredefinedType
    {484, 4489, 4175, 4491, 3030, 18279}, // IfcElectricMotor.CorrectTypeAssigned
    {485, 4492, 4173, 4493, 3030, 18303}, // IfcElectricMotorType.CorrectPredefinedType
    {488, 4494, 4173, 4495, 3030, 18330}, // IfcElectricTimeControl.CorrectPredefinedType
    {488, 4494, 4175, 4496, 3030, 18365}, // IfcElectricTimeControl.CorrectTypeAssigned
    {489, 4497, 4173, 4498, 3030, 18389}, // IfcElectricTimeControlType.CorrectPredefinedType
    {494, 3447, 4173, 4503, 3030, 18416}, // IfcElementAssembly.CorrectPredefinedType
    {494, 3447, 4175, 4504, 3030, 18451}, // IfcElementAssembly.CorrectTypeAssigned
    {495, 4505, 4173, 4506, 3030, 18475}, // IfcElementAssemblyType.CorrectPredefinedType
    {500, 4508, 4509, 4510, 3030, 18502}, // IfcElementQuantity.UniqueQuantityNames
    {509, 4511, 4173, 4512, 3030, 18509}, // IfcEngine.CorrectPredefinedType
    {509, 4511, 4175, 4513, 3030, 18544}, // IfcEngine.CorrectTypeAssigned
    {510, 4514, 4173, 4515, 3030, 18568}, // IfcEngineType.CorrectPredefinedType
    {516, 4516, 4173, 4517, 3030, 18595}, // IfcEvaporativeCooler.CorrectPredefinedType
    {516, 4516, 4175, 4518, 3030, 18630}, // IfcEvaporativeCooler.CorrectTypeAssigned
    {517, 3451, 4173, 3452, 3030, 2789}, // IfcEvaporativeCoolerType.CorrectPredefinedType
    {519, 4519, 4173, 4520, 3030, 18654}, // IfcEvaporator.CorrectPredefinedType
    {519, 4519, 4175, 4521, 3030, 18689}, // IfcEvaporator.CorrectTypeAssigned
    {520, 3453, 4173, 3454, 3030, 2816}, // IfcEvaporatorType.CorrectPredefinedType
    {522, 4522, 4173, 4523, 3030, 18713}, // IfcEvent.CorrectPredefinedType
    {522, 4522, 4175, 4524, 3030, 18748}, // IfcEvent.CorrectTypeAssigned
    {525, 4525, 4173, 4526, 3030, 18780}, // IfcEventType.CorrectPredefinedType
    {525, 4525, 4527, 4528, 3030, 18807}, // IfcEventType.CorrectEventTriggerType
    {535, 3455, 3028, 4529, 3030, 18831}, // IfcExternalReference.WR1
    {540, 3458, 4533, 3459, 3030, 2863}, // IfcExtrudedAreaSolid.ValidExtrusionDirection
    {541, 4535, 4536, 4537, 3030, 18851}, // IfcExtrudedAreaSolidTapered.CorrectProfileAssignment
    {542, 3460, 4538, 3461, 3030, 2886}, // IfcFace.HasOuterBound
    {550, 5588, 4173, 5589, 3030, 36383}, // IfcFacilityPart.CorrectPredefinedType
    {556, 4541, 4173, 4542, 3030, 18863}, // IfcFan.CorrectPredefinedType
    {556, 4541, 4175, 4543, 3030, 18898}, // IfcFan.CorrectTypeAssigned
    {557, 3462, 4173, 3463, 3030, 2905}, // IfcFanType.CorrectPredefinedType
    {559, 4544, 4173, 4545, 3030, 18922}, // IfcFastener.CorrectPredefinedType
    {559, 4544, 4175, 4546, 3030, 18957}, // IfcFastener.CorrectTypeAssigned
    {560, 4547, 4173, 4548, 3030, 18981}, // IfcFastenerType.CorrectPredefinedType
    {562, 5333, 5334, 5335, 3030, 32234}, // IfcFeatureElement.NotContained
    {564, 3467, 4549, 4550, 3030, 19008}, // IfcFeatureElementSubtraction.HasNoSubtraction
    {564, 3467, 4551, 4552, 3030, 19020}, // IfcFeatureElementSubtraction.IsNotFilling
    {565, 3470, 4553, 3471, 3030, 2932}, // IfcFillAreaStyle.MaxOneColour
    {565, 3470, 4554, 3472, 3030, 2951}, // IfcFillAreaStyle.MaxOneExtHatchStyle
    {565, 3470, 4555, 3474, 3030, 2970}, // IfcFillAreaStyle.ConsistentHatchStyleDef
    {566, 3475, 4556, 3477, 3030, 2984}, // IfcFillAreaStyleHatching.PatternStart2D
    {566, 3475, 4557, 3479, 3030, 3001}, // IfcFillAreaStyleHatching.RefHatchLine2D
    {574, 4558, 4173, 4559, 3030, 19032}, // IfcFilter.CorrectPredefinedType
    {574, 4558, 4175, 4560, 3030, 19067}, // IfcFilter.CorrectTypeAssigned
    {575, 3480, 4173, 3481, 3030, 3018}, // IfcFilterType.CorrectPredefinedType
    {577, 4561, 4173, 4562, 3030, 19091}, // IfcFireSuppressionTerminal.CorrectPredefinedType
    {577, 4561, 4175, 4563, 3030, 19126}, // IfcFireSuppressionTerminal.CorrectTypeAssigned
    {578, 4564, 4173, 4565, 3030, 19150}, // IfcFireSuppressionTerminalType.CorrectPredefinedType
    {586, 4569, 4173, 4570, 3030, 19210}, // IfcFlowInstrument.CorrectPredefinedType
    {586, 4569, 4175, 4571, 3030, 19245}, // IfcFlowInstrument.CorrectTypeAssigned
    {587, 4572, 4173, 4573, 3030, 19269}, // IfcFlowInstrumentType.CorrectPredefinedType
    {589, 4574, 4173, 4575, 3030, 19296}, // IfcFlowMeter.CorrectPredefinedType
    {589, 4574, 4175, 4576, 3030, 19331}, // IfcFlowMeter.CorrectTypeAssigned
    {590, 3482, 4173, 3483, 3030, 3045}, // IfcFlowMeterType.CorrectPredefinedType
    {606, 3484, 4173, 4577, 3030, 19355}, // IfcFooting.CorrectPredefinedType
    {606, 3484, 4175, 4578, 3030, 19390}, // IfcFooting.CorrectTypeAssigned
    {607, 4579, 4173, 4580, 3030, 19414}, // IfcFootingType.CorrectPredefinedType
    {614, 4581, 4173, 4582, 3030, 19441}, // IfcFurniture.CorrectPredefinedType
    {614, 4581, 4175, 4583, 3030, 19476}, // IfcFurniture.CorrectTypeAssigned
    {616, 4584, 4173, 4585, 3030, 19500}, // IfcFurnitureType.CorrectPredefinedType
    {623, 4586, 4173, 4587, 3030, 19527}, // IfcGeographicElement.CorrectPredefinedType
    {623, 4586, 4175, 4588, 3030, 19562}, // IfcGeographicElement.CorrectTypeAssigned
    {624, 4589, 4173, 4590, 3030, 19586}, // IfcGeographicElementType.CorrectPredefinedType
    {626, 3494, 4591, 3495, 3030, 3141}, // IfcGeometricCurveSet.NoSurfaces
    {628, 3496, 4592, 4593, 3030, 19613}, // IfcGeometricRepresentationContext.North2D
    {630, 3499, 4594, 3500, 3030, 3163}, // IfcGeometricRepresentationSubContext.ParentNoSub
    {630, 3499, 4595, 3501, 3030, 3170}, // IfcGeometricRepresentationSubContext.UserTargetProvided
    {630, 3499, 4596, 4597, 3030, 19632}, // IfcGeometricRepresentationSubContext.NoCoordOperation
    {631, 3502, 4599, 3503, 3030, 3231}, // IfcGeometricSet.ConsistentDim
    {652, 3506, 3028, 3507, 3030, 3276}, // IfcGridAxis.WR1
    {652, 3506, 3033, 3508, 3030, 3285}, // IfcGridAxis.WR2
    {662, 4602, 4173, 4603, 3030, 19665}, // IfcHeatExchanger.CorrectPredefinedType
    {662, 4602, 4175, 4604, 3030, 19700}, // IfcHeatExchanger.CorrectTypeAssigned
    {663, 3520, 4173, 3521, 3030, 3310}, // IfcHeatExchangerType.CorrectPredefinedType
    {668, 4605, 4173, 4606, 3030, 19724}, // IfcHumidifier.CorrectPredefinedType
    {668, 4605, 4175, 4607, 3030, 19759}, // IfcHumidifier.CorrectTypeAssigned
    {669, 3522, 4173, 3523, 3030, 3337}, // IfcHumidifierType.CorrectPredefinedType
    {675, 5353, 4173, 5591, 3030, 36488}, // IfcImpactProtectionDevice.CorrectPredefinedType
    {675, 5353, 4175, 5355, 3030, 32384}, // IfcImpactProtectionDevice.CorrectTypeAssigned
    {676, 5356, 4173, 5592, 3030, 36559}, // IfcImpactProtectionDeviceType.CorrectPredefinedType
    {683, 4611, 4612, 5358, 3030, 32435}, // IfcIndexedPolyCurve.Consecutive
    {693, 4617, 4173, 4618, 3030, 19810}, // IfcInterceptor.CorrectPredefinedType
    {693, 4617, 4175, 4619, 3030, 19845}, // IfcInterceptor.CorrectTypeAssigned
    {694, 4620, 4173, 4621, 3030, 19869}, // IfcInterceptorType.CorrectPredefinedType
    {698, 4622, 4623, 4624, 3030, 19896}, // IfcIntersectionCurve.TwoPCurves
    {698, 4622, 4626, 4627, 3030, 19908}, // IfcIntersectionCurve.DistinctSurfaces
    {704, 3525, 4215, 4608, 3030, 19783}, // IfcIShapeProfileDef.ValidFlangeThickness
    {704, 3525, 4217, 3527, 3030, 3374}, // IfcIShapeProfileDef.ValidWebThickness
    {704, 3525, 4609, 3528, 3030, 3381}, // IfcIShapeProfileDef.ValidFilletRadius
    {706, 4628, 4173, 4629, 3030, 19933}, // IfcJunctionBox.CorrectPredefinedType
    {706, 4628, 4175, 4630, 3030, 19968}, // IfcJunctionBox.CorrectTypeAssigned
    {707, 4631, 4173, 4632, 3030, 19992}, // IfcJunctionBoxType.CorrectPredefinedType
    {716, 4635, 4173, 4636, 3030, 20042}, // IfcLaborResource.CorrectPredefinedType
    {717, 4637, 4173, 4638, 3030, 20077}, // IfcLaborResourceType.CorrectPredefinedType
    {720, 4639, 4173, 4640, 3030, 20104}, // IfcLamp.CorrectPredefinedType
    {720, 4639, 4175, 4641, 3030, 20139}, // IfcLamp.CorrectTypeAssigned
    {721, 4642, 4173, 4643, 3030, 20163}, // IfcLampType.CorrectPredefinedType
    {734, 4650, 4173, 4651, 3030, 20190}, // IfcLightFixture.CorrectPredefinedType
    {734, 4650, 4175, 4652, 3030, 20225}, // IfcLightFixture.CorrectTypeAssigned
    {735, 4653, 4173, 4654, 3030, 20249}, // IfcLightFixtureType.CorrectPredefinedType
    {744, 3537, 4235, 3538, 3030, 3480}, // IfcLine.SameDim
    {760, 5370, 4173, 5562, 3030, 32536}, // IfcLiquidTerminal.CorrectPredefinedType
    {760, 5370, 4175, 5372, 3030, 32571}, // IfcLiquidTerminal.CorrectTypeAssigned
    {761, 5373, 4173, 5563, 3030, 32595}, // IfcLiquidTerminalType.CorrectPredefinedType
    {764, 3540, 3073, 3541, 3030, 3491}, // IfcLocalPlacement.WR21
    {770, 3531, 4633, 4634, 3030, 20019}, // IfcLShapeProfileDef.ValidThickness
    {780, 5378, 4173, 5564, 3030, 32631}, // IfcMarineFacility.CorrectPredefinedType
    {793, 3549, 4666, 3550, 3030, 3506}, // IfcMaterialDefinitionRepresentation.OnlyStyledRepresentations
    {794, 3551, 4667, 4668, 3030, 20276}, // IfcMaterialLayer.NormalizedPriority
    {799, 4669, 4667, 4668, 3030, 20276}, // IfcMaterialProfile.NormalizedPriority
    {811, 4674, 4173, 4675, 3030, 20300}, // IfcMechanicalFastener.CorrectPredefinedType
    {811, 4674, 4175, 4676, 3030, 20335}, // IfcMechanicalFastener.CorrectTypeAssigned
    {812, 4677, 4173, 4678, 3030, 20359}, // IfcMechanicalFastenerType.CorrectPredefinedType
    {816, 4679, 4173, 4680, 3030, 20386}, // IfcMedicalDevice.CorrectPredefinedType
    {816, 4679, 4175, 4681, 3030, 20421}, // IfcMedicalDevice.CorrectTypeAssigned
    {817, 4682, 4173, 4683, 3030, 20445}, // IfcMedicalDeviceType.CorrectPredefinedType
    {819, 4684, 4173, 4685, 3030, 20472}, // IfcMember.CorrectPredefinedType
    {819, 4684, 4175, 4686, 3030, 20507}, // IfcMember.CorrectTypeAssigned
    {820, 4687, 4256, 4257, 3030, 15383}, // IfcMemberStandardCase.HasMaterialProfileSetUsage
    {821, 4688, 4173, 4689, 3030, 20531}, // IfcMemberType.CorrectPredefinedType
    {827, 5385, 4173, 5565, 3030, 32701}, // IfcMobileTelecommunicationsAppliance.CorrectPredefinedType
    {827, 5385, 4175, 5387, 3030, 32736}, // IfcMobileTelecommunicationsAppliance.CorrectTypeAssigned
    {828, 5388, 4173, 5566, 3030, 32760}, // IfcMobileTelecommunicationsApplianceType.CorrectPredefinedType
    {843, 5390, 4173, 5567, 3030, 32787}, // IfcMooringDevice.CorrectPredefinedType
    {843, 5390, 4175, 5392, 3030, 32822}, // IfcMooringDevice.CorrectTypeAssigned
    {844, 5393, 4173, 5568, 3030, 32846}, // IfcMooringDeviceType.CorrectPredefinedType
    {846, 4690, 4173, 4691, 3030, 20596}, // IfcMotorConnection.CorrectPredefinedType
    {846, 4690, 4175, 4692, 3030, 20631}, // IfcMotorConnection.CorrectTypeAssigned
    {847, 4693, 4173, 4694, 3030, 20655}, // IfcMotorConnectionType.CorrectPredefinedType
    {850, 3567, 3028, 3568, 3030, 3682}, // IfcNamedUnit.WR1
    {851, 5396, 4173, 5569, 3030, 32873}, // IfcNavigationElement.CorrectPredefinedType
    {851, 5396, 4175, 5398, 3030, 32908}, // IfcNavigationElement.CorrectTypeAssigned
    {852, 5399, 4173, 5570, 3030, 32932}, // IfcNavigationElementType.CorrectPredefinedType
    {858, 3569, 4696, 4697, 3030, 20682}, // IfcObject.UniquePropertySetNames
    {860, 3587, 3073, 3588, 3030, 3710}, // IfcObjective.WR21
    {866, 3589, 3126, 3590, 3030, 3737}, // IfcOccupant.WR31
    {869, 3591, 4712, 3592, 3030, 3756}, // IfcOffsetCurve2D.DimIs2D
    {870, 3593, 4712, 3594, 3030, 3765}, // IfcOffsetCurve3D.DimIs2D
    {873, 5402, 5403, 5404, 3030, 32959}, // IfcOpenCrossProfileDef.CorrectProfileType
    {873, 5402, 5405, 5406, 3030, 32970}, // IfcOpenCrossProfileDef.CorrespondingSlopeWidths
    {873, 5402, 5407, 5408, 3030, 32981}, // IfcOpenCrossProfileDef.CorrespondingTags
    {874, 3595, 4173, 5593, 3030, 33003}, // IfcOpeningElement.CorrectPredefinedType
    {884, 3607, 4713, 3608, 3030, 3774}, // IfcOrientedEdge.EdgeElementNotOriented
    {886, 4714, 4173, 4715, 3030, 20699}, // IfcOutlet.CorrectPredefinedType
    {886, 4714, 4175, 4716, 3030, 20734}, // IfcOutlet.CorrectTypeAssigned
    {887, 4717, 4173, 4718, 3030, 20758}, // IfcOutletType.CorrectPredefinedType
    {889, 4720, 4721, 4722, 3030, 20785}, // IfcOwnerHistory.CorrectChangeAction
    {892, 3611, 4468, 3612, 3030, 3811}, // IfcPath.IsContinuous
    {893, 5411, 4173, 5594, 3030, 33038}, // IfcPavement.CorrectPredefinedType
    {893, 5411, 4175, 5413, 3030, 33073}, // IfcPavement.CorrectTypeAssigned
    {894, 5414, 4173, 5595, 3030, 33097}, // IfcPavementType.CorrectPredefinedType
    {896, 4723, 4712, 4724, 3030, 20840}, // IfcPcurve.DimIs2D
    {903, 3615, 4725, 4726, 3030, 20849}, // IfcPerson.IdentifiablePerson
    {903, 3615, 4727, 4728, 3030, 20869}, // IfcPerson.ValidSetOfNames
    {906, 3619, 4361, 3620, 3030, 3830}, // IfcPhysicalComplexQuantity.NoSelfReference
    {906, 3619, 4509, 4729, 3030, 20890}, // IfcPhysicalComplexQuantity.UniqueQuantityNames
    {910, 3624, 4173, 4730, 3030, 20897}, // IfcPile.CorrectPredefinedType
    {910, 3624, 4175, 4731, 3030, 20932}, // IfcPile.CorrectTypeAssigned
    {912, 4732, 4173, 4733, 3030, 20956}, // IfcPileType.CorrectPredefinedType
    {914, 4734, 4173, 4735, 3030, 20983}, // IfcPipeFitting.CorrectPredefinedType
    {914, 4734, 4175, 4736, 3030, 21018}, // IfcPipeFitting.CorrectTypeAssigned
    {915, 3626, 4173, 3627, 3030, 3876}, // IfcPipeFittingType.CorrectPredefinedType
    {917, 4737, 4173, 4738, 3030, 21042}, // IfcPipeSegment.CorrectPredefinedType
    {917, 4737, 4175, 4739, 3030, 21077}, // IfcPipeSegment.CorrectTypeAssigned
    {918, 3628, 4173, 3629, 3030, 3903}, // IfcPipeSegmentType.CorrectPredefinedType
    {920, 3630, 4740, 3631, 3030, 3930}, // IfcPixelTexture.MinPixelInS
    {920, 3630, 4741, 3632, 3030, 3937}, // IfcPixelTexture.MinPixelInT
    {920, 3630, 4742, 3633, 3030, 3944}, // IfcPixelTexture.NumberOfColours
    {920, 3630, 4743, 3635, 3030, 3960}, // IfcPixelTexture.SizeOfPixelList
    {920, 3630, 4744, 4745, 3030, 21101}, // IfcPixelTexture.PixelAsByteAndSameLength
    {928, 4746, 4173, 4747, 3030, 21143}, // IfcPlate.CorrectPredefinedType
    {928, 4746, 4175, 4748, 3030, 21178}, // IfcPlate.CorrectTypeAssigned
    {929, 4749, 4750, 4040, 3030, 6965}, // IfcPlateStandardCase.HasMaterialLayerSetUsage
    {930, 4751, 4173, 4752, 3030, 21202}, // IfcPlateType.CorrectPredefinedType
    {937, 3638, 4754, 3639, 3030, 4011}, // IfcPolygonalBoundedHalfSpace.BoundaryDim
    {937, 3638, 4755, 3640, 3030, 4020}, // IfcPolygonalBoundedHalfSpace.BoundaryType
    {939, 3641, 4235, 3642, 3030, 4039}, // IfcPolyline.SameDim
    {940, 3636, 4753, 3637, 3030, 3984}, // IfcPolyLoop.AllPointsSameDim
    {941, 5423, 5426, 5427, 3030, 33179}, // IfcPolynomialCurve.ValidCoefficients
    {941, 5423, 5424, 5425, 3030, 33152}, // IfcPolynomialCurve.CorrectPositionDim
    {943, 5183, 4600, 3505, 3030, 3267}, // IfcPositioningElement.HasPlacement
    {948, 3648, 3028, 3649, 3030, 4066}, // IfcPostalAddress.WR1
    {963, 4757, 4758, 4759, 3030, 21229}, // IfcPresentationLayerAssignment.ApplicableItems
    {964, 4760, 4761, 5186, 3030, 36622}, // IfcPresentationLayerWithStyle.ApplicableOnlyToItems
    {969, 3685, 4763, 3212, 3030, 1146}, // IfcProcedure.HasName
    {969, 3685, 4173, 4764, 3030, 21300}, // IfcProcedure.CorrectPredefinedType
    {970, 4765, 4173, 4766, 3030, 21335}, // IfcProcedureType.CorrectPredefinedType
    {974, 3696, 4767, 4768, 3030, 21362}, // IfcProduct.PlacementForShapeRepresentation
    {975, 3700, 4769, 3701, 3030, 4340}, // IfcProductDefinitionShape.OnlyShapeModel
    {983, 3707, 4763, 3212, 3030, 1146}, // IfcProject.HasName
    {983, 3707, 4773, 4774, 3030, 21412}, // IfcProject.CorrectContext
    {983, 3707, 4775, 3709, 3030, 4379}, // IfcProject.NoDecomposition
    {984, 4776, 4777, 4778, 3030, 21445}, // IfcProjectedCRS.IsLengthUnit
    {987, 5433, 4173, 5598, 3030, 33275}, // IfcProjectionElement.CorrectPredefinedType
    {996, 3717, 4787, 3718, 3030, 4391}, // IfcPropertyBoundedValue.SameUnitUpperLower
    {996, 3717, 4788, 4789, 3030, 21463}, // IfcPropertyBoundedValue.SameUnitUpperSet
    {996, 3717, 4790, 4791, 3030, 21490}, // IfcPropertyBoundedValue.SameUnitLowerSet
    {999, 3721, 4361, 3722, 3030, 4431}, // IfcPropertyDependencyRelationship.NoSelfReference
    {1000, 3723, 3073, 4792, 3030, 21517}, // IfcPropertyEnumeratedValue.WR21
    {1001, 3725, 3131, 3726, 3030, 4470}, // IfcPropertyEnumeration.WR01
    {1002, 3728, 3126, 3729, 3030, 4498}, // IfcPropertyListValue.WR31
    {1004, 3730, 4793, 3212, 3030, 1146}, // IfcPropertySet.ExistsName
    {1004, 3730, 4359, 3258, 3030, 1571}, // IfcPropertySet.UniquePropertyNames
    {1008, 4798, 4793, 3212, 3030, 1146}, // IfcPropertySetTemplate.ExistsName
    {1008, 4798, 4359, 4360, 3030, 16573}, // IfcPropertySetTemplate.UniquePropertyNames
    {1012, 3736, 3073, 4801, 3030, 21557}, // IfcPropertyTableValue.WR21
    {1012, 3736, 3257, 4802, 3030, 21584}, // IfcPropertyTableValue.WR22
    {1012, 3736, 3478, 4803, 3030, 21619}, // IfcPropertyTableValue.WR23
    {1015, 4809, 4173, 4810, 3030, 21654}, // IfcProtectiveDevice.CorrectPredefinedType
    {1015, 4809, 4175, 4811, 3030, 21689}, // IfcProtectiveDevice.CorrectTypeAssigned
    {1016, 4812, 4173, 4813, 3030, 21713}, // IfcProtectiveDeviceTrippingUnit.CorrectPredefinedType
    {1016, 4812, 4175, 4814, 3030, 21748}, // IfcProtectiveDeviceTrippingUnit.CorrectTypeAssigned
    {1017, 4815, 4173, 4816, 3030, 21772}, // IfcProtectiveDeviceTrippingUnitType.CorrectPredefinedType
    {1019, 4817, 4173, 4818, 3030, 21799}, // IfcProtectiveDeviceType.CorrectPredefinedType
    {1021, 3740, 3028, 3212, 3030, 1146}, // IfcProxy.WR1
    {1022, 4819, 4173, 4820, 3030, 21826}, // IfcPump.CorrectPredefinedType
    {1022, 4819, 4175, 4821, 3030, 21861}, // IfcPump.CorrectTypeAssigned
    {1023, 3741, 4173, 3742, 3030, 4591}, // IfcPumpType.CorrectPredefinedType
    {1025, 3744, 3073, 3745, 3030, 4618}, // IfcQuantityArea.WR21
    {1025, 3744, 3257, 3746, 3030, 4642}, // IfcQuantityArea.WR22
    {1026, 3747, 3073, 3748, 3030, 4649}, // IfcQuantityCount.WR21
    {1027, 3750, 3073, 3751, 3030, 4656}, // IfcQuantityLength.WR21
    {1027, 3750, 3257, 3752, 3030, 4680}, // IfcQuantityLength.WR22
    {1030, 3754, 3073, 3755, 3030, 4687}, // IfcQuantityTime.WR21
    {1030, 3754, 3257, 3756, 3030, 4711}, // IfcQuantityTime.WR22
    {1031, 3758, 3073, 3759, 3030, 4718}, // IfcQuantityVolume.WR21
    {1031, 3758, 3257, 3760, 3030, 4742}, // IfcQuantityVolume.WR22
    {1032, 3762, 3073, 3763, 3030, 4749}, // IfcQuantityWeight.WR21
    {1032, 3762, 3257, 3764, 3030, 4773}, // IfcQuantityWeight.WR22
    {1035, 5439, 4173, 5573, 3030, 33317}, // IfcRail.CorrectPredefinedType
    {1035, 5439, 4175, 5441, 3030, 33352}, // IfcRail.CorrectTypeAssigned
    {1036, 3765, 4173, 3766, 3030, 4780}, // IfcRailing.CorrectPredefinedType
    {1036, 3765, 4175, 4822, 3030, 21885}, // IfcRailing.CorrectTypeAssigned
    {1037, 4823, 4173, 4824, 3030, 21909}, // IfcRailingType.CorrectPredefinedType
    {1039, 5442, 4173, 5574, 3030, 33376}, // IfcRailType.CorrectPredefinedType
    {1041, 5445, 4975, 5599, 3030, 36656}, // IfcRailway.HasObjectType
    {1045, 3767, 4173, 4825, 3030, 21936}, // IfcRamp.CorrectPredefinedType
    {1045, 3767, 4175, 4826, 3030, 21971}, // IfcRamp.CorrectTypeAssigned
    {1046, 4827, 4173, 4828, 3030, 21995}, // IfcRampFlight.CorrectPredefinedType
    {1046, 4827, 4175, 4829, 3030, 22030}, // IfcRampFlight.CorrectTypeAssigned
    {1047, 4830, 4173, 4831, 3030, 22054}, // IfcRampFlightType.CorrectPredefinedType
    {1049, 4832, 4173, 4833, 3030, 22081}, // IfcRampType.CorrectPredefinedType
    {1053, 4834, 4835, 3770, 3030, 4851}, // IfcRationalBSplineCurveWithKnots.SameNumOfWeightsAndPoints
    {1053, 4834, 4836, 3772, 3030, 4865}, // IfcRationalBSplineCurveWithKnots.WeightsGreaterZero
    {1054, 4837, 4838, 4839, 3030, 22127}, // IfcRationalBSplineSurfaceWithKnots.CorrespondingWeightsDataLists
    {1054, 4837, 4841, 4842, 3030, 22162}, // IfcRationalBSplineSurfaceWithKnots.WeightValuesGreaterZero
    {1057, 3773, 4298, 3774, 3030, 4890}, // IfcRectangleHollowProfileDef.ValidWallThickness
    {1057, 3773, 4843, 3776, 3030, 4952}, // IfcRectangleHollowProfileDef.ValidInnerRadius
    {1057, 3773, 4844, 3775, 3030, 4917}, // IfcRectangleHollowProfileDef.ValidOuterRadius
    {1060, 3777, 4845, 3778, 3030, 4993}, // IfcRectangularTrimmedSurface.U1AndU2Different
    {1060, 3777, 4846, 3779, 3030, 5000}, // IfcRectangularTrimmedSurface.V1AndV2Different
    {1060, 3777, 4847, 3780, 3030, 5007}, // IfcRectangularTrimmedSurface.UsenseCompatible
    {1060, 3777, 4848, 3781, 3030, 5039}, // IfcRectangularTrimmedSurface.VsenseCompatible
    {1069, 5451, 4173, 5575, 3030, 33473}, // IfcReinforcedSoil.CorrectPredefinedType
    {1073, 3782, 4173, 4849, 3030, 22188}, // IfcReinforcingBar.CorrectPredefinedType
    {1073, 3782, 4175, 4850, 3030, 22223}, // IfcReinforcingBar.CorrectTypeAssigned
    {1076, 4851, 4173, 4852, 3030, 22247}, // IfcReinforcingBarType.CorrectPredefinedType
    {1076, 4851, 4853, 4854, 3030, 22274}, // IfcReinforcingBarType.BendingShapeCodeProvided
    {1080, 4855, 4173, 4856, 3030, 22288}, // IfcReinforcingMesh.CorrectPredefinedType
    {1080, 4855, 4175, 4857, 3030, 22323}, // IfcReinforcingMesh.CorrectTypeAssigned
    {1081, 4858, 4173, 4859, 3030, 22347}, // IfcReinforcingMeshType.CorrectPredefinedType
    {1081, 4858, 4853, 4854, 3030, 22274}, // IfcReinforcingMeshType.BendingShapeCodeProvided
    {1084, 4860, 4361, 3813, 3030, 5369}, // IfcRelAggregates.NoSelfReference
    {1085, 3785, 3028, 3786, 3030, 5076}, // IfcRelAssigns.WR1
    {1087, 3791, 4361, 3792, 3030, 5118}, // IfcRelAssignsToActor.NoSelfReference
    {1088, 3793, 4361, 3794, 3030, 5141}, // IfcRelAssignsToControl.NoSelfReference
    {1089, 3795, 4361, 3796, 3030, 5164}, // IfcRelAssignsToGroup.NoSelfReference
    {1091, 3797, 4361, 3798, 3030, 5187}, // IfcRelAssignsToProcess.NoSelfReference
    {1092, 3799, 4361, 3800, 3030, 5210}, // IfcRelAssignsToProduct.NoSelfReference
    {1094, 3801, 4361, 3802, 3030, 5233}, // IfcRelAssignsToResource.NoSelfReference
    {1103, 3805, 4861, 3806, 3030, 5283}, // IfcRelAssociatesMaterial.NoVoidElement
    {1103, 3805, 4862, 4863, 3030, 22374}, // IfcRelAssociatesMaterial.AllowedElements
    {1109, 3808, 4361, 3809, 3030, 5343}, // IfcRelConnectsElements.NoSelfReference
    {1110, 4864, 4865, 4866, 3030, 22421}, // IfcRelConnectsPathElements.NormalizedRelatingPriorities
    {1110, 4864, 4867, 4868, 3030, 22462}, // IfcRelConnectsPathElements.NormalizedRelatedPriorities
    {1111, 4869, 4361, 4870, 3030, 22503}, // IfcRelConnectsPorts.NoSelfReference
    {1118, 3810, 3126, 3811, 3030, 5350}, // IfcRelContainedInSpatialStructure.WR31
    {1121, 4871, 4361, 4872, 3030, 22510}, // IfcRelDeclares.NoSelfReference
    {1125, 4873, 4874, 4875, 3030, 22530}, // IfcRelDefinesByProperties.NoRelatedTypeObject
    {1131, 4876, 4361, 3809, 3030, 5343}, // IfcRelInterferesElements.NoSelfReference
    {1132, 3814, 4361, 3813, 3030, 5369}, // IfcRelNests.NoSelfReference
    {1135, 5221, 4361, 5222, 3030, 31274}, // IfcRelPositions.NoSelfReference
    {1137, 3818, 4878, 4879, 3030, 22552}, // IfcRelReferencedInSpatialStructure.AllowedRelatedElements
    {1139, 3822, 4880, 3823, 3030, 5464}, // IfcRelSequence.AvoidInconsistentSequence
    {1139, 3822, 4881, 4882, 3030, 22579}, // IfcRelSequence.CorrectSequenceType
    {1141, 3827, 4883, 4884, 3030, 22603}, // IfcRelSpaceBoundary.CorrectPhysOrVirt
    {1145, 4891, 4892, 4893, 3030, 22651}, // IfcReparametrisedCompositeCurveSegment.PositiveLengthParameter
    {1149, 3842, 4897, 4898, 3030, 22658}, // IfcRepresentationMap.ApplicableMappedRepr
    {1158, 3848, 4899, 3849, 3030, 5527}, // IfcRevolvedAreaSolid.AxisStartInXY
    {1158, 3848, 4900, 3850, 3030, 5541}, // IfcRevolvedAreaSolid.AxisDirectionInXY
    {1159, 4901, 4536, 4537, 3030, 18851}, // IfcRevolvedAreaSolidTapered.CorrectProfileAssignment
    {1165, 5462, 4975, 5600, 3030, 36682}, // IfcRoad.HasObjectType
    {1170, 3851, 4173, 4902, 3030, 22664}, // IfcRoof.CorrectPredefinedType
    {1170, 3851, 4175, 4903, 3030, 22699}, // IfcRoof.CorrectTypeAssigned
    {1171, 4904, 4173, 4905, 3030, 22723}, // IfcRoofType.CorrectPredefinedType
    {1179, 3854, 4906, 3855, 3030, 5573}, // IfcRoundedRectangleProfileDef.ValidRadius
    {1180, 4907, 4173, 4908, 3030, 22750}, // IfcSanitaryTerminal.CorrectPredefinedType
    {1180, 4907, 4175, 4909, 3030, 22785}, // IfcSanitaryTerminal.CorrectTypeAssigned
    {1181, 4910, 4173, 4911, 3030, 22809}, // IfcSanitaryTerminalType.CorrectPredefinedType
    {1185, 4912, 4623, 4624, 3030, 19896}, // IfcSeamCurve.TwoPCurves
    {1185, 4912, 4365, 4913, 3030, 22836}, // IfcSeamCurve.SameSurface
    {1189, 5187, 5188, 3968, 3030, 6357}, // IfcSectionedSolid.DirectrixIs3D
    {1189, 5187, 4915, 3862, 3030, 5618}, // IfcSectionedSolid.ConsistentProfileTypes
    {1189, 5187, 5189, 5190, 3030, 30763}, // IfcSectionedSolid.SectionsSameType
    {1190, 5191, 4914, 3861, 3030, 5607}, // IfcSectionedSolidHorizontal.CorrespondingSectionPositions
    {1190, 5191, 5192, 5468, 3030, 33671}, // IfcSectionedSolidHorizontal.NoLongitudinalOffsets
    {1191, 3860, 4914, 3861, 3030, 5607}, // IfcSectionedSpine.CorrespondingSectionPositions
    {1191, 3860, 4915, 3862, 3030, 5618}, // IfcSectionedSpine.ConsistentProfileTypes
    {1191, 3860, 4916, 3863, 3030, 5645}, // IfcSectionedSpine.SpineCurveDim
    {1200, 4917, 4173, 4918, 3030, 22861}, // IfcSensor.CorrectPredefinedType
    {1200, 4917, 4175, 4919, 3030, 22896}, // IfcSensor.CorrectTypeAssigned
    {1201, 4920, 4173, 4921, 3030, 22920}, // IfcSensorType.CorrectPredefinedType
    {1209, 4922, 4173, 4923, 3030, 22947}, // IfcShadingDevice.CorrectPredefinedType
    {1209, 4922, 4175, 4924, 3030, 22982}, // IfcShadingDevice.CorrectTypeAssigned
    {1210, 4925, 4173, 4926, 3030, 23006}, // IfcShadingDeviceType.CorrectPredefinedType
    {1213, 3866, 3164, 3867, 3030, 5673}, // IfcShapeModel.WR11
    {1214, 3870, 4773, 3871, 3030, 5704}, // IfcShapeRepresentation.CorrectContext
    {1214, 3870, 4927, 3872, 3030, 5713}, // IfcShapeRepresentation.NoTopologicalItem
    {1214, 3870, 4928, 3873, 3030, 5756}, // IfcShapeRepresentation.HasRepresentationType
    {1214, 3870, 4929, 4930, 3030, 23033}, // IfcShapeRepresentation.HasRepresentationIdentifier
    {1214, 3870, 4931, 3875, 3030, 5765}, // IfcShapeRepresentation.CorrectItemsForType
    {1218, 5478, 4173, 5576, 3030, 33768}, // IfcSign.CorrectPredefinedType
    {1218, 5478, 4175, 5480, 3030, 33803}, // IfcSign.CorrectTypeAssigned
    {1219, 5483, 4173, 5578, 3030, 33854}, // IfcSignal.CorrectPredefinedType
    {1219, 5483, 4175, 5485, 3030, 33889}, // IfcSignal.CorrectTypeAssigned
    {1220, 5486, 4173, 5579, 3030, 33913}, // IfcSignalType.CorrectPredefinedType
    {1222, 5481, 4173, 5577, 3030, 33827}, // IfcSignType.CorrectPredefinedType
    {1235, 3876, 4173, 3877, 3030, 5780}, // IfcSlab.CorrectPredefinedType
    {1235, 3876, 4175, 4932, 3030, 23042}, // IfcSlab.CorrectTypeAssigned
    {1236, 4933, 4934, 4935, 3030, 23066}, // IfcSlabElementedCase.HasDecomposition
    {1237, 4936, 4937, 4040, 3030, 6965}, // IfcSlabStandardCase.HasMaterialLayerSetusage
    {1238, 4938, 4173, 4939, 3030, 23078}, // IfcSlabType.CorrectPredefinedType
    {1241, 4940, 4173, 4941, 3030, 23105}, // IfcSolarDevice.CorrectPredefinedType
    {1241, 4940, 4175, 4942, 3030, 23140}, // IfcSolarDevice.CorrectTypeAssigned
    {1242, 4943, 4173, 4944, 3030, 23164}, // IfcSolarDeviceType.CorrectPredefinedType
    {1255, 3878, 4173, 4945, 3030, 23191}, // IfcSpace.CorrectPredefinedType
    {1255, 3878, 4175, 4946, 3030, 23226}, // IfcSpace.CorrectTypeAssigned
    {1257, 4948, 4173, 4949, 3030, 23250}, // IfcSpaceHeater.CorrectPredefinedType
    {1257, 4948, 4175, 4950, 3030, 23285}, // IfcSpaceHeater.CorrectTypeAssigned
    {1258, 3882, 4173, 3883, 3030, 5815}, // IfcSpaceHeaterType.CorrectPredefinedType
    {1262, 4951, 4173, 4952, 3030, 23309}, // IfcSpaceType.CorrectPredefinedType
    {1267, 3889, 3191, 3890, 3030, 5842}, // IfcSpatialStructureElement.WR41
    {1269, 4954, 4173, 4955, 3030, 23336}, // IfcSpatialZone.CorrectPredefinedType
    {1269, 4954, 4175, 4956, 3030, 23371}, // IfcSpatialZone.CorrectTypeAssigned
    {1270, 4957, 4173, 4958, 3030, 23395}, // IfcSpatialZoneType.CorrectPredefinedType
    {1279, 4959, 4173, 4960, 3030, 23422}, // IfcStackTerminal.CorrectPredefinedType
    {1279, 4959, 4175, 4961, 3030, 23457}, // IfcStackTerminal.CorrectTypeAssigned
    {1280, 4962, 4173, 4963, 3030, 23481}, // IfcStackTerminalType.CorrectPredefinedType
    {1282, 3897, 4173, 4964, 3030, 23508}, // IfcStair.CorrectPredefinedType
    {1282, 3897, 4175, 4965, 3030, 23543}, // IfcStair.CorrectTypeAssigned
    {1283, 4966, 4173, 4967, 3030, 23567}, // IfcStairFlight.CorrectPredefinedType
    {1283, 4966, 4175, 4968, 3030, 23602}, // IfcStairFlight.CorrectTypeAssigned
    {1284, 4969, 4173, 4970, 3030, 23626}, // IfcStairFlightType.CorrectPredefinedType
    {1286, 4971, 4173, 4972, 3030, 23653}, // IfcStairType.CorrectPredefinedType
    {1293, 4974, 4975, 4976, 3030, 23680}, // IfcStructuralAnalysisModel.HasObjectType
    {1293, 4974, 4173, 5601, 3030, 36708}, // IfcStructuralAnalysisModel.CorrectPredefinedType
    {1296, 4979, 4980, 4981, 3030, 23698}, // IfcStructuralCurveAction.ProjectedIsGlobal
    {1296, 4979, 4975, 4982, 3030, 23726}, // IfcStructuralCurveAction.HasObjectType
    {1296, 4979, 4984, 4985, 3030, 23744}, // IfcStructuralCurveAction.SuitablePredefinedType
    {1299, 4986, 4975, 4987, 3030, 23752}, // IfcStructuralCurveMember.HasObjectType
    {1302, 4988, 4975, 4982, 3030, 23726}, // IfcStructuralCurveReaction.HasObjectType
    {1302, 4988, 4984, 4991, 3030, 23770}, // IfcStructuralCurveReaction.SuitablePredefinedType
    {1305, 3907, 4992, 3908, 3030, 5897}, // IfcStructuralLinearAction.SuitableLoadType
    {1305, 3907, 4994, 4995, 3030, 23787}, // IfcStructuralLinearAction.ConstPredefinedType
    {1308, 4997, 4998, 4999, 3030, 23798}, // IfcStructuralLoadCase.IsLoadCasePredefinedType
    {1309, 5000, 5001, 5002, 3030, 23809}, // IfcStructuralLoadConfiguration.ValidListSize
    {1310, 3910, 4975, 5003, 3030, 23828}, // IfcStructuralLoadGroup.HasObjectType
    {1321, 3920, 4992, 3921, 3030, 5932}, // IfcStructuralPlanarAction.SuitableLoadType
    {1321, 3920, 4994, 5004, 3030, 23864}, // IfcStructuralPlanarAction.ConstPredefinedType
    {1323, 3922, 4992, 3923, 3030, 5954}, // IfcStructuralPointAction.SuitableLoadType
    {1325, 3924, 4992, 3923, 3030, 5954}, // IfcStructuralPointReaction.SuitableLoadType
    {1328, 3931, 4975, 5005, 3030, 23875}, // IfcStructuralResultGroup.HasObjectType
    {1330, 5006, 4980, 4981, 3030, 23698}, // IfcStructuralSurfaceAction.ProjectedIsGlobal
    {1330, 5006, 4975, 5007, 3030, 23893}, // IfcStructuralSurfaceAction.HasObjectType
    {1333, 5008, 4975, 5009, 3030, 23911}, // IfcStructuralSurfaceMember.HasObjectType
    {1336, 5010, 5011, 5007, 3030, 23893}, // IfcStructuralSurfaceReaction.HasPredefinedType
    {1340, 3950, 5012, 3952, 3030, 6188}, // IfcStyledItem.ApplicableItem
    {1341, 3953, 5013, 3954, 3030, 6195}, // IfcStyledRepresentation.OnlyStyledItems
    {1343, 5014, 4173, 5015, 3030, 23929}, // IfcSubContractResource.CorrectPredefinedType
    {1344, 5016, 4173, 5017, 3030, 23964}, // IfcSubContractResourceType.CorrectPredefinedType
    {1348, 5018, 5019, 5020, 3030, 23991}, // IfcSurfaceCurve.CurveIs3D
    {1348, 5018, 5021, 5022, 3030, 24000}, // IfcSurfaceCurve.CurveIsNotPcurve
    {1350, 5024, 4975, 5025, 3030, 24007}, // IfcSurfaceFeature.HasObjectType
    {1352, 3955, 5026, 3956, 3030, 6218}, // IfcSurfaceOfLinearExtrusion.DepthGreaterZero
    {1355, 5027, 5028, 5029, 3030, 24033}, // IfcSurfaceReinforcementArea.SurfaceAndOrShearAreaSpecified
    {1355, 5027, 5030, 5031, 3030, 24053}, // IfcSurfaceReinforcementArea.NonnegativeArea1
    {1355, 5027, 5032, 5033, 3030, 24103}, // IfcSurfaceReinforcementArea.NonnegativeArea2
    {1355, 5027, 5034, 5035, 3030, 24153}, // IfcSurfaceReinforcementArea.NonnegativeArea3
    {1357, 3957, 5036, 3958, 3030, 6252}, // IfcSurfaceStyle.MaxOneShading
    {1357, 3957, 5037, 3959, 3030, 6271}, // IfcSurfaceStyle.MaxOneLighting
    {1357, 3957, 5038, 3960, 3030, 6290}, // IfcSurfaceStyle.MaxOneRefraction
    {1357, 3957, 5039, 3962, 3030, 6309}, // IfcSurfaceStyle.MaxOneTextures
    {1357, 3957, 5040, 3964, 3030, 6328}, // IfcSurfaceStyle.MaxOneExtDefined
    {1366, 3965, 5046, 3966, 3030, 6347}, // IfcSweptAreaSolid.SweptAreaType
    {1367, 3967, 5047, 3968, 3030, 6357}, // IfcSweptDiskSolid.DirectrixDim
    {1367, 3967, 5048, 3969, 3030, 6366}, // IfcSweptDiskSolid.InnerRadiusSize
    {1367, 3967, 4567, 4568, 3030, 19177}, // IfcSweptDiskSolid.DirectrixBounded
    {1368, 5049, 5050, 5051, 3030, 24168}, // IfcSweptDiskSolidPolygonal.CorrectRadii
    {1368, 5049, 5052, 5053, 3030, 24186}, // IfcSweptDiskSolidPolygonal.DirectrixIsPolyline
    {1369, 3970, 5054, 3972, 3030, 6388}, // IfcSweptSurface.SweptCurveType
    {1370, 5055, 4173, 5056, 3030, 24218}, // IfcSwitchingDevice.CorrectPredefinedType
    {1370, 5055, 4175, 5057, 3030, 24253}, // IfcSwitchingDevice.CorrectTypeAssigned
    {1371, 5058, 4173, 5059, 3030, 24277}, // IfcSwitchingDeviceType.CorrectPredefinedType
    {1376, 5060, 4173, 5061, 3030, 24304}, // IfcSystemFurnitureElement.CorrectPredefinedType
    {1376, 5060, 4175, 5062, 3030, 24339}, // IfcSystemFurnitureElement.CorrectTypeAssigned
    {1377, 5063, 4173, 5064, 3030, 24363}, // IfcSystemFurnitureElementType.CorrectPredefinedType
    {1379, 3979, 3028, 3980, 3030, 6412}, // IfcTable.WR1
    {1379, 3979, 3033, 3981, 3030, 6443}, // IfcTable.WR2
    {1382, 5065, 4173, 5066, 3030, 24390}, // IfcTank.CorrectPredefinedType
    {1382, 5065, 4175, 5067, 3030, 24425}, // IfcTank.CorrectTypeAssigned
    {1383, 3985, 4173, 3986, 3030, 6503}, // IfcTankType.CorrectPredefinedType
    {1385, 3987, 4763, 3212, 3030, 1146}, // IfcTask.HasName
    {1385, 3987, 4173, 5068, 3030, 24449}, // IfcTask.CorrectPredefinedType
    {1389, 5069, 4173, 5070, 3030, 24484}, // IfcTaskType.CorrectPredefinedType
    {1391, 3988, 5071, 5072, 3030, 24511}, // IfcTelecomAddress.MinimumDataProvided
    {1394, 3990, 4173, 5073, 3030, 24552}, // IfcTendon.CorrectPredefinedType
    {1394, 3990, 4175, 5074, 3030, 24587}, // IfcTendon.CorrectTypeAssigned
    {1395, 5075, 4173, 5076, 3030, 24611}, // IfcTendonAnchor.CorrectPredefinedType
    {1395, 5075, 4175, 5077, 3030, 24646}, // IfcTendonAnchor.CorrectTypeAssigned
    {1396, 5078, 4173, 5079, 3030, 24670}, // IfcTendonAnchorType.CorrectPredefinedType
    {1398, 5223, 4173, 5224, 3030, 31294}, // IfcTendonConduit.CorrectPredefinedType
    {1398, 5223, 4175, 5225, 3030, 31329}, // IfcTendonConduit.CorrectTypeAssigned
    {1399, 5226, 4173, 5227, 3030, 31353}, // IfcTendonConduitType.CorrectPredefinedType
    {1401, 5080, 4173, 5081, 3030, 24697}, // IfcTendonType.CorrectPredefinedType
    {1412, 3992, 3126, 3993, 3030, 6591}, // IfcTextLiteralWithExtent.WR31
    {1415, 3994, 5087, 3995, 3030, 6598}, // IfcTextStyleFontModel.MeasureOfFontSize
    {1450, 4007, 3073, 4008, 3030, 6664}, // IfcTopologyRepresentation.WR21
    {1450, 4007, 3257, 3873, 3030, 5756}, // IfcTopologyRepresentation.WR22
    {1450, 4007, 3478, 4010, 3030, 6687}, // IfcTopologyRepresentation.WR23
    {1451, 5089, 5090, 5091, 3030, 24724}, // IfcToroidalSurface.MajorLargerMinor
    {1453, 5510, 4173, 5580, 3030, 34071}, // IfcTrackElement.CorrectPredefinedType
    {1453, 5510, 4175, 5512, 3030, 34106}, // IfcTrackElement.CorrectTypeAssigned
    {1454, 5513, 4173, 5581, 3030, 34130}, // IfcTrackElementType.CorrectPredefinedType
    {1456, 5092, 4173, 5093, 3030, 24731}, // IfcTransformer.CorrectPredefinedType
    {1456, 5092, 4175, 5095, 3030, 36743}, // IfcTransformer.CorrectTypeAssigned
    {1457, 5096, 4173, 5097, 3030, 24793}, // IfcTransformerType.CorrectPredefinedType
    {1465, 5098, 4173, 5603, 3030, 36770}, // IfcTransportElement.CorrectPredefinedType
    {1465, 5098, 4175, 5100, 3030, 24855}, // IfcTransportElement.CorrectTypeAssigned
    {1468, 5101, 4173, 5604, 3030, 36823}, // IfcTransportElementType.CorrectPredefinedType
    {1473, 5196, 5197, 5198, 3030, 30838}, // IfcTriangulatedIrregularNetwork.NotClosed
    {1474, 4011, 5103, 4012, 3030, 6702}, // IfcTrimmedCurve.Trim1ValuesConsistent
    {1474, 4011, 5104, 4013, 3030, 6729}, // IfcTrimmedCurve.Trim2ValuesConsistent
    {1474, 4011, 5105, 4015, 3030, 6756}, // IfcTrimmedCurve.NoTrimOfBoundedCurves
    {1477, 3976, 4215, 3977, 3030, 6398}, // IfcTShapeProfileDef.ValidFlangeThickness
    {1477, 3976, 4217, 3978, 3030, 6405}, // IfcTShapeProfileDef.ValidWebThickness
    {1478, 5106, 4173, 5107, 3030, 24912}, // IfcTubeBundle.CorrectPredefinedType
    {1478, 5106, 4175, 5108, 3030, 24947}, // IfcTubeBundle.CorrectTypeAssigned
    {1479, 4016, 4173, 4017, 3030, 6763}, // IfcTubeBundleType.CorrectPredefinedType
    {1486, 4018, 5109, 3212, 3030, 1146}, // IfcTypeObject.NameRequired
    {1486, 4018, 4696, 5111, 3030, 24971}, // IfcTypeObject.UniquePropertySetNames
    {1488, 4021, 5114, 5115, 3030, 24986}, // IfcTypeProduct.ApplicableOccurrence
    {1493, 5117, 4173, 5118, 3030, 25028}, // IfcUnitaryControlElement.CorrectPredefinedType
    {1493, 5117, 4175, 5119, 3030, 25063}, // IfcUnitaryControlElement.CorrectTypeAssigned
    {1494, 5120, 4173, 5121, 3030, 25087}, // IfcUnitaryControlElementType.CorrectPredefinedType
    {1496, 5122, 4173, 5123, 3030, 25114}, // IfcUnitaryEquipment.CorrectPredefinedType
    {1496, 5122, 4175, 5124, 3030, 25149}, // IfcUnitaryEquipment.CorrectTypeAssigned
    {1497, 4028, 4173, 4029, 3030, 6849}, // IfcUnitaryEquipmentType.CorrectPredefinedType
    {1499, 4026, 3131, 4027, 3030, 6842}, // IfcUnitAssignment.WR01
    {1502, 4023, 4215, 4024, 3030, 6832}, // IfcUShapeProfileDef.ValidFlangeThickness
    {1502, 4023, 4217, 3978, 3030, 6405}, // IfcUShapeProfileDef.ValidWebThickness
    {1504, 5125, 4173, 5126, 3030, 25173}, // IfcValve.CorrectPredefinedType
    {1504, 5125, 4175, 5127, 3030, 25208}, // IfcValve.CorrectTypeAssigned
    {1505, 4030, 4173, 4031, 3030, 6876}, // IfcValveType.CorrectPredefinedType
    {1508, 4032, 5128, 4033, 3030, 6903}, // IfcVector.MagGreaterOrEqualZero
    {1518, 5229, 4173, 5230, 3030, 31407}, // IfcVibrationDamper.CorrectPredefinedType
    {1518, 5229, 4175, 5231, 3030, 31442}, // IfcVibrationDamper.CorrectTypeAssigned
    {1519, 5232, 4173, 5233, 3030, 31466}, // IfcVibrationDamperType.CorrectPredefinedType
    {1521, 5129, 4173, 5130, 3030, 25232}, // IfcVibrationIsolator.CorrectPredefinedType
    {1521, 5129, 4175, 5131, 3030, 25267}, // IfcVibrationIsolator.CorrectTypeAssigned
    {1522, 4034, 4173, 4035, 3030, 6916}, // IfcVibrationIsolatorType.CorrectPredefinedType
    {1528, 5132, 4975, 5133, 3030, 25291}, // IfcVoidingFeature.HasObjectType
    {1535, 4036, 4173, 5134, 3030, 25317}, // IfcWall.CorrectPredefinedType
    {1535, 4036, 4175, 5135, 3030, 25352}, // IfcWall.CorrectTypeAssigned
    {1536, 5136, 4934, 4935, 3030, 23066}, // IfcWallElementedCase.HasDecomposition
    {1537, 4039, 4750, 4040, 3030, 6965}, // IfcWallStandardCase.HasMaterialLayerSetUsage
    {1538, 5137, 4173, 5138, 3030, 25376}, // IfcWallType.CorrectPredefinedType
    {1543, 5139, 4173, 5140, 3030, 25403}, // IfcWasteTerminal.CorrectPredefinedType
    {1543, 5139, 4175, 5141, 3030, 25438}, // IfcWasteTerminal.CorrectTypeAssigned
    {1544, 5142, 4173, 5143, 3030, 25462}, // IfcWasteTerminalType.CorrectPredefinedType
    {1550, 5144, 4449, 5145, 3030, 25489}, // IfcWindow.CorrectStyleAssigned
    {1550, 5144, 4173, 5534, 3030, 34337}, // IfcWindow.CorrectPredefinedType
    {1550, 5144, 4175, 5145, 3030, 25489}, // IfcWindow.CorrectTypeAssigned
    {1551, 4042, 3126, 4451, 3030, 17628}, // IfcWindowLiningProperties.WR31
    {1551, 4042, 3377, 4043, 3030, 6996}, // IfcWindowLiningProperties.WR32
    {1551, 4042, 3379, 4044, 3030, 7011}, // IfcWindowLiningProperties.WR33
    {1551, 4042, 3381, 5146, 3030, 25513}, // IfcWindowLiningProperties.WR34
    {1554, 5147, 4454, 5146, 3030, 25513}, // IfcWindowPanelProperties.ApplicableToType
    {1559, 5148, 4173, 5149, 3030, 25551}, // IfcWindowType.CorrectPredefinedType
    {1562, 5150, 4173, 5151, 3030, 25578}, // IfcWorkCalendar.CorrectPredefinedType
    {1566, 5152, 4173, 5153, 3030, 25613}, // IfcWorkPlan.CorrectPredefinedType
    {1568, 5154, 4173, 5155, 3030, 25648}, // IfcWorkSchedule.CorrectPredefinedType
    {1572, 4049, 3028, 5156, 3030, 25683}, // IfcZone.WR1
    {1573, 4048, 4215, 4024, 3030, 6832}, // IfcZShapeProfileDef.ValidFlangeThickness
};

constexpr WhereRule typeRules[] = {
    {136, 3027, 3028, 3029, 3030, 0}, // IfcBoxAlignment.WR1
    {184, 4149, 4150, 4151, 3030, 14240}, // IfcCardinalPointReference.GreaterThanZero
    {245, 3031, 4152, 4153, 3030, 14246}, // IfcCompoundPlaneAngleMeasure.MinutesInRange
    {245, 3031, 4154, 4155, 3030, 14257}, // IfcCompoundPlaneAngleMeasure.SecondsInRange
    {245, 3031, 4156, 4157, 3030, 14268}, // IfcCompoundPlaneAngleMeasure.MicrosecondsInRange
    {245, 3031, 4158, 4159, 3030, 14288}, // IfcCompoundPlaneAngleMeasure.ConsistentSign
    {359, 4160, 4161, 4162, 3030, 14385}, // IfcDayInMonthNumber.ValidRange
    {360, 4163, 4161, 4164, 3030, 14400}, // IfcDayInWeekNumber.ValidRange
    {376, 3041, 3028, 3042, 3030, 163}, // IfcDimensionCount.WR1
    {603, 3046, 3028, 3047, 3030, 178}, // IfcFontStyle.WR1
    {604, 3049, 3028, 3050, 3030, 192}, // IfcFontVariant.WR1
    {605, 3060, 3028, 3061, 3030, 203}, // IfcFontWeight.WR1
    {666, 3062, 3028, 3063, 3030, 241}, // IfcHeatingValueMeasure.WR1
    {842, 3068, 4161, 4165, 3030, 277}, // IfcMonthInYearNumber.ValidRange
    {854, 4166, 4167, 4168, 3030, 14415}, // IfcNonNegativeLengthMeasure.NotNegative
    {855, 3070, 3028, 3071, 3030, 292}, // IfcNormalisedRatioMeasure.WR1
    {905, 3072, 3073, 3074, 3030, 307}, // IfcPHMeasure.WR21
    {944, 4169, 3028, 4151, 3030, 14240}, // IfcPositiveInteger.WR1
    {945, 3075, 3028, 3063, 3030, 241}, // IfcPositiveLengthMeasure.WR1
    {946, 3076, 3028, 3063, 3030, 241}, // IfcPositivePlaneAngleMeasure.WR1
    {947, 3077, 3028, 3063, 3030, 241}, // IfcPositiveRatioMeasure.WR1
    {1275, 3080, 3028, 3071, 3030, 292}, // IfcSpecularRoughness.WR1
    {1407, 3084, 3028, 3085, 3030, 337}, // IfcTextAlignment.WR1
    {1408, 3091, 3028, 3092, 3030, 354}, // IfcTextDecoration.WR1
    {1420, 3096, 3028, 3097, 3030, 374}, // IfcTextTransformation.WR1
};

constexpr WhereRule globalRules[] = {
    {4053, 4054, 3028, 4055, 3030, 7110}, // IfcRepresentationContextSameWCS.WR1
    {4056, 4057, 3028, 4058, 3030, 7241}, // IfcSingleProjectInstance.WR1
};

constexpr UniqueRule uniqueRules[] = {
    {73, 3139, 3140, 3141, 0, 1}, // IfcApplication.UR1
    {73, 3139, 3102, 3142, 1, 2}, // IfcApplication.UR2
    {1001, 3725, 3140, 3727, 3, 1}, // IfcPropertyEnumeration.UR1
    {1173, 3852, 3140, 3853, 4, 1}, // IfcRoot.UR1
};

constexpr TextId uniqueAttributes[] = {
    1612, // APPLICATIONIDENTIFIER
    1611, // APPLICATIONFULLNAME
    2956, // VERSION
    2274, // NAME
    1987, // GLOBALID
};

constexpr InverseAttribute inverseAttributes[] = {
    {7, 2079, 1087, 2532, 0, -1, 1, 0, 3104, 3105, 3106}, // IfcActor.IsActingUpon
    {8, 2004, 536, 2522, 0, -1, 1, 0, 3108, 4170, 4171}, // IfcActorRole.HasExternalReference
    {13, 2312, 903, 1589, 0, -1, 1, 0, 3110, 3112, 3113}, // IfcAddress.OfPerson
    {13, 2311, 880, 1589, 0, -1, 1, 0, 3110, 3114, 3115}, // IfcAddress.OfOrganization
    {63, 1749, 1118, 2507, 0, 1, 1, 0, 3122, 3123, 3124}, // IfcAnnotation.ContainedInStructure
    {74, 2004, 536, 2522, 0, -1, 1, 0, 3143, 4170, 4171}, // IfcAppliedValue.HasExternalReference
    {77, 2005, 536, 2522, 0, -1, 1, 0, 3151, 4208, 4171}, // IfcApproval.HasExternalReferences
    {77, 1621, 1097, 2534, 0, -1, 1, 0, 3151, 4209, 4210}, // IfcApproval.ApprovedObjects
    {77, 1623, 1151, 2534, 0, -1, 1, 0, 3151, 4211, 4212}, // IfcApproval.ApprovedResources
    {77, 2109, 80, 2495, 0, -1, 1, 0, 3151, 3154, 4213}, // IfcApproval.IsRelatedWith
    {77, 2529, 80, 2534, 0, -1, 1, 0, 3151, 3156, 3157}, // IfcApproval.Relates
    {210, 1700, 1098, 2536, 0, -1, 1, 0, 3244, 4337, 4338}, // IfcClassification.ClassificationForObjects
    {210, 2018, 216, 2474, 0, -1, 1, 0, 3244, 4339, 4340}, // IfcClassification.HasReferences
    {216, 1701, 1098, 2536, 0, -1, 1, 0, 4341, 4342, 4338}, // IfcClassificationReference.ClassificationRefForObjects
    {216, 2018, 216, 2474, 0, -1, 1, 0, 4341, 4339, 4340}, // IfcClassificationReference.HasReferences
    {265, 2005, 536, 2522, 0, -1, 1, 0, 3276, 4208, 4171}, // IfcConstraint.HasExternalReferences
    {265, 2428, 1152, 2538, 0, -1, 1, 0, 3276, 3283, 4377}, // IfcConstraint.PropertiesForConstraint
    {281, 2091, 1125, 2512, 0, -1, 1, 0, 4388, 3571, 4389}, // IfcContext.IsDefinedBy
    {281, 1810, 1121, 2539, 0, -1, 1, 0, 4388, 4390, 4391}, // IfcContext.Declares
    {283, 2004, 536, 2522, 0, -1, 1, 0, 4392, 4170, 4171}, // IfcContextDependentUnit.HasExternalReference
    {284, 1759, 1088, 2540, 0, -1, 1, 0, 3297, 3298, 3299}, // IfcControl.Controls
    {288, 2004, 536, 2522, 0, -1, 1, 0, 4398, 4170, 4171}, // IfcConversionBasedUnit.HasExternalReference
    {301, 2001, 300, 2708, 0, 1, 1, 0, 4405, 4406, 4407}, // IfcCoordinateReferenceSystem.HasCoordinateOperation
    {314, 1778, 1120, 2502, 0, 1, 1, 0, 3306, 3309, 3310}, // IfcCovering.CoversSpaces
    {314, 1777, 1119, 2502, 0, 1, 1, 0, 3306, 4409, 3312}, // IfcCovering.CoversElements
    {398, 1630, 1129, 2501, 0, 1, 1, 0, 3358, 3359, 3360}, // IfcDistributionControlElement.AssignedToFlowElement
    {400, 2012, 1112, 2506, 0, -1, 1, 0, 4441, 3437, 3438}, // IfcDistributionElement.HasPorts
    {402, 2000, 1129, 2545, 0, 1, 1, 0, 3361, 3362, 3363}, // IfcDistributionFlowElement.HasControlElements
    {410, 1859, 1101, 2542, 0, -1, 1, 0, 3366, 4442, 4443}, // IfcDocumentInformation.DocumentInfoForObjects
    {410, 2003, 412, 2471, 0, -1, 1, 0, 3366, 4444, 4445}, // IfcDocumentInformation.HasDocumentReferences
    {410, 2102, 411, 2504, 0, -1, 1, 0, 3366, 3367, 3368}, // IfcDocumentInformation.IsPointedTo
    {410, 2103, 411, 2542, 0, 1, 1, 0, 3366, 3369, 3370}, // IfcDocumentInformation.IsPointer
    {412, 1862, 1101, 2542, 0, -1, 1, 0, 3371, 4447, 4443}, // IfcDocumentReference.DocumentRefForObjects
    {492, 1938, 1128, 2496, 0, 1, 1, 0, 3424, 3427, 3428}, // IfcElement.FillsVoids
    {492, 1738, 1109, 2544, 0, -1, 1, 0, 3424, 3429, 3430}, // IfcElement.ConnectedTo
    {492, 2095, 1131, 2506, 0, -1, 1, 0, 3424, 4499, 4500}, // IfcElement.IsInterferedByElements
    {492, 2070, 1131, 2544, 0, -1, 1, 0, 3424, 4501, 4502}, // IfcElement.InterferesElements
    {492, 2013, 1136, 2544, 0, -1, 1, 0, 3424, 3433, 3434}, // IfcElement.HasProjections
    {492, 2011, 1144, 2535, 0, -1, 1, 0, 3424, 3439, 3440}, // IfcElement.HasOpenings
    {492, 2086, 1117, 2459, 0, -1, 1, 0, 3424, 3441, 3442}, // IfcElement.IsConnectionRealization
    {492, 2436, 1141, 2496, 0, -1, 1, 0, 3424, 3443, 3444}, // IfcElement.ProvidesBoundaries
    {492, 1737, 1109, 2506, 0, -1, 1, 0, 3424, 3445, 3446}, // IfcElement.ConnectedFrom
    {492, 1749, 1118, 2507, 0, 1, 1, 0, 3424, 3123, 3124}, // IfcElement.ContainedInStructure
    {492, 2002, 1119, 2535, 0, -1, 1, 0, 3424, 3431, 3432}, // IfcElement.HasCoverings
    {535, 1921, 536, 2562, 0, -1, 1, 0, 3455, 4530, 4531}, // IfcExternalReference.ExternalReferenceForResources
    {537, 1676, 1141, 2564, 0, -1, 1, 0, 4532, 3880, 3881}, // IfcExternalSpatialElement.BoundedBy
    {542, 2026, 1425, 2214, 0, -1, 1, 0, 3460, 4539, 4540}, // IfcFace.HasTextureMaps
    {563, 2426, 1136, 2508, 1, 1, 0, 0, 3464, 3465, 3466}, // IfcFeatureElementAddition.ProjectsElements
    {564, 2970, 1144, 2514, 1, 1, 0, 0, 3467, 3468, 3469}, // IfcFeatureElementSubtraction.VoidsElements
    {628, 2023, 630, 2347, 0, -1, 1, 0, 3496, 3497, 3498}, // IfcGeometricRepresentationContext.HasSubContexts
    {628, 2001, 300, 2708, 0, 1, 1, 0, 3496, 4406, 4407}, // IfcGeometricRepresentationContext.HasCoordinateOperation
    {652, 2359, 651, 2985, 0, 1, 1, 0, 3506, 3509, 3510}, // IfcGridAxis.PartOfW
    {652, 2358, 651, 2951, 0, 1, 1, 0, 3506, 3511, 3512}, // IfcGridAxis.PartOfV
    {652, 2357, 651, 2889, 0, 1, 1, 0, 3506, 3513, 3514}, // IfcGridAxis.PartOfU
    {652, 2009, 1527, 2075, 0, -1, 1, 0, 3506, 3515, 3516}, // IfcGridAxis.HasIntersections
    {659, 2093, 1089, 2546, 0, -1, 1, 0, 3517, 3518, 4601}, // IfcGroup.IsGroupedBy
    {684, 2838, 938, 1924, 1, -1, 1, 0, 4614, 4615, 4616}, // IfcIndexedPolygonalFace.ToFaceSet
    {727, 2153, 1102, 2548, 0, -1, 1, 0, 4644, 4645, 4646}, // IfcLibraryInformation.LibraryInfoForObjects
    {727, 2010, 728, 2473, 0, -1, 1, 0, 4644, 4647, 4648}, // IfcLibraryInformation.HasLibraryReferences
    {728, 2155, 1102, 2548, 0, -1, 1, 0, 3534, 4649, 4646}, // IfcLibraryReference.LibraryRefForObjects
    {788, 2019, 793, 2590, 0, 1, 1, 0, 3545, 3546, 3547}, // IfcMaterial.HasRepresentation
    {788, 2109, 805, 2510, 0, -1, 1, 0, 3545, 3154, 4655}, // IfcMaterial.IsRelatedWith
    {788, 2531, 805, 2549, 0, 1, 1, 0, 3545, 4656, 4657}, // IfcMaterial.RelatesTo
    {790, 2841, 791, 2228, 1, 1, 0, 0, 4658, 4659, 4660}, // IfcMaterialConstituent.ToMaterialConstituentSet
    {792, 1633, 1103, 2549, 0, -1, 1, 0, 4661, 4662, 4663}, // IfcMaterialDefinition.AssociatedTo
    {792, 2005, 536, 2522, 0, -1, 1, 0, 4661, 4208, 4171}, // IfcMaterialDefinition.HasExternalReferences
    {792, 2014, 804, 2226, 0, -1, 1, 0, 4661, 4664, 4665}, // IfcMaterialDefinition.HasProperties
    {794, 2842, 795, 2230, 1, 1, 0, 0, 3551, 3552, 3553}, // IfcMaterialLayer.ToMaterialLayerSet
    {799, 2843, 800, 2231, 1, 1, 0, 0, 4669, 4670, 4671}, // IfcMaterialProfile.ToMaterialProfileSet
    {807, 1633, 1103, 2549, 1, -1, 1, 0, 4672, 4662, 4673}, // IfcMaterialUsageDefinition.AssociatedTo
    {858, 2089, 1124, 2512, 0, 1, 1, 0, 3569, 4698, 4699}, // IfcObject.IsDeclaredBy
    {858, 1810, 1124, 2551, 0, -1, 1, 0, 3569, 4390, 4700}, // IfcObject.Declares
    {858, 2112, 1127, 2512, 0, 1, 1, 0, 3569, 4701, 4702}, // IfcObject.IsTypedBy
    {858, 2091, 1125, 2512, 0, -1, 1, 0, 3569, 3571, 4389}, // IfcObject.IsDefinedBy
    {859, 1995, 1085, 2512, 0, -1, 1, 0, 3573, 3574, 3575}, // IfcObjectDefinition.HasAssignments
    {859, 2276, 1132, 2512, 0, 1, 1, 0, 3573, 4703, 4704}, // IfcObjectDefinition.Nests
    {859, 2099, 1132, 2551, 0, -1, 1, 0, 3573, 4705, 4706}, // IfcObjectDefinition.IsNestedBy
    {859, 1999, 1121, 2503, 0, 1, 1, 0, 3573, 4707, 4708}, // IfcObjectDefinition.HasContext
    {859, 2090, 1084, 2551, 0, -1, 1, 0, 3573, 3576, 4709}, // IfcObjectDefinition.IsDecomposedBy
    {859, 1811, 1084, 2512, 0, 1, 1, 0, 3573, 3578, 4710}, // IfcObjectDefinition.Decomposes
    {859, 1996, 1095, 2512, 0, -1, 1, 0, 3573, 3580, 3581}, // IfcObjectDefinition.HasAssociations
    {862, 2375, 974, 2299, 0, -1, 1, 0, 3582, 3583, 4711}, // IfcObjectPlacement.PlacesObject
    {874, 2006, 1128, 2552, 0, -1, 1, 0, 3595, 3596, 3597}, // IfcOpeningElement.HasFillings
    {880, 2106, 881, 2515, 0, -1, 1, 0, 3601, 3602, 3603}, // IfcOrganization.IsRelatedBy
    {880, 2529, 881, 2553, 0, -1, 1, 0, 3601, 3156, 3604}, // IfcOrganization.Relates
    {880, 1909, 904, 2803, 0, -1, 1, 0, 3601, 3605, 3606}, // IfcOrganization.Engages
    {903, 1908, 904, 2805, 0, -1, 1, 0, 3615, 3617, 3618}, // IfcPerson.EngagedIn
    {908, 2005, 536, 2522, 0, -1, 1, 0, 3621, 4208, 4171}, // IfcPhysicalQuantity.HasExternalReferences
    {908, 2352, 906, 2017, 0, 1, 1, 0, 3621, 3622, 3623}, // IfcPhysicalQuantity.PartOfComplex
    {942, 1748, 1112, 2554, 0, 1, 1, 0, 3643, 3644, 4756}, // IfcPort.ContainedIn
    {942, 1737, 1111, 2516, 0, 1, 1, 0, 3643, 3445, 3646}, // IfcPort.ConnectedFrom
    {942, 1738, 1111, 2554, 0, 1, 1, 0, 3643, 3429, 3647}, // IfcPort.ConnectedTo
    {943, 1749, 1118, 2507, 0, 1, 1, 0, 5183, 3123, 3124}, // IfcPositioningElement.ContainedInStructure
    {943, 2398, 1135, 2555, 0, -1, 1, 0, 5183, 5215, 5216}, // IfcPositioningElement.Positions
    {972, 2105, 1139, 2557, 0, -1, 1, 0, 3689, 3694, 3695}, // IfcProcess.IsPredecessorTo
    {972, 2111, 1139, 2518, 0, -1, 1, 0, 3689, 3692, 3693}, // IfcProcess.IsSuccessorFrom
    {972, 2317, 1091, 2557, 0, -1, 1, 0, 3689, 3690, 3691}, // IfcProcess.OperatesOn
    {974, 2468, 1092, 2558, 0, -1, 1, 0, 3696, 3698, 3699}, // IfcProduct.ReferencedBy
    {974, 2396, 1135, 2519, 0, 1, 1, 0, 3696, 5219, 5220}, // IfcProduct.PositionedRelativeTo
    {974, 2472, 1137, 2507, 0, -1, 1, 0, 3696, 3435, 3436}, // IfcProduct.ReferencedInStructures
    {975, 2675, 974, 2582, 1, -1, 1, 0, 3700, 3702, 4770}, // IfcProductDefinitionShape.ShapeOfProduct
    {975, 2021, 1212, 2354, 0, -1, 1, 0, 3700, 3704, 3705}, // IfcProductDefinitionShape.HasShapeAspects
    {980, 2004, 536, 2522, 0, -1, 1, 0, 4771, 4170, 4171}, // IfcProfileDef.HasExternalReference
    {980, 2014, 981, 2418, 0, -1, 1, 0, 4771, 4664, 4772}, // IfcProfileDef.HasProperties
    {994, 2355, 1004, 2014, 0, -1, 1, 0, 3711, 4779, 4780}, // IfcProperty.PartOfPset
    {994, 2431, 999, 1829, 0, -1, 1, 0, 3711, 3712, 3713}, // IfcProperty.PropertyForDependance
    {994, 2430, 999, 1828, 0, -1, 1, 0, 3711, 3714, 3715}, // IfcProperty.PropertyDependsOn
    {994, 2352, 238, 2014, 0, -1, 1, 0, 3711, 3622, 4781}, // IfcProperty.PartOfComplex
    {994, 1998, 1152, 2522, 0, -1, 1, 0, 3711, 4782, 4783}, // IfcProperty.HasConstraints
    {994, 1994, 1151, 2522, 0, -1, 1, 0, 3711, 4784, 4785}, // IfcProperty.HasApprovals
    {995, 2005, 536, 2522, 0, -1, 1, 0, 4786, 4208, 4171}, // IfcPropertyAbstraction.HasExternalReferences
    {998, 1999, 1121, 2503, 0, 1, 1, 0, 3720, 4707, 4708}, // IfcPropertyDefinition.HasContext
    {998, 1996, 1095, 2512, 0, -1, 1, 0, 3720, 3580, 3581}, // IfcPropertyDefinition.HasAssociations
    {1005, 1816, 1486, 2015, 0, -1, 1, 0, 3731, 3734, 4794}, // IfcPropertySetDefinition.DefinesType
    {1005, 2091, 1126, 2521, 0, -1, 1, 0, 3731, 3571, 4795}, // IfcPropertySetDefinition.IsDefinedBy
    {1005, 1815, 1125, 2561, 0, -1, 1, 0, 3731, 4796, 4797}, // IfcPropertySetDefinition.DefinesOccurrence
    {1008, 1814, 1126, 2569, 0, -1, 1, 0, 4798, 4799, 4800}, // IfcPropertySetTemplate.Defines
    {1013, 2353, 239, 2016, 0, -1, 1, 0, 4804, 4805, 4806}, // IfcPropertyTemplate.PartOfComplexTemplate
    {1013, 2356, 1008, 2016, 0, -1, 1, 0, 4804, 4807, 4808}, // IfcPropertyTemplate.PartOfPsetTemplate
    {1142, 2052, 1142, 2346, 0, -1, 1, 0, 4885, 4886, 4887}, // IfcRelSpaceBoundary1stLevel.InnerBoundaries
    {1143, 1769, 1143, 1768, 0, 1, 1, 0, 4888, 4889, 4890}, // IfcRelSpaceBoundary2ndLevel.Corresponds
    {1146, 2585, 1149, 2213, 0, 1, 1, 0, 3829, 3830, 3831}, // IfcRepresentation.RepresentationMap
    {1146, 2139, 963, 1628, 0, -1, 1, 0, 3829, 3832, 3833}, // IfcRepresentation.LayerAssignments
    {1146, 2313, 976, 2587, 0, -1, 1, 0, 3829, 3834, 4894}, // IfcRepresentation.OfProductRepresentation
    {1147, 2588, 1146, 1754, 0, -1, 1, 0, 3836, 3837, 3838}, // IfcRepresentationContext.RepresentationsInContext
    {1148, 2138, 963, 1628, 0, 1, 1, 0, 3839, 4895, 4896}, // IfcRepresentationItem.LayerAssignment
    {1148, 2743, 1340, 2114, 0, 1, 1, 0, 3839, 3840, 3841}, // IfcRepresentationItem.StyledByItem
    {1149, 2021, 1212, 2354, 0, -1, 1, 0, 3842, 3704, 3705}, // IfcRepresentationMap.HasShapeAspects
    {1149, 2221, 779, 2216, 0, -1, 1, 0, 3842, 3843, 3844}, // IfcRepresentationMap.MapUsage
    {1150, 2597, 1094, 2563, 0, -1, 1, 0, 3845, 3846, 3847}, // IfcResource.ResourceOf
    {1197, 2934, 241, 2657, 1, -1, 1, 0, 5475, 3266, 3267}, // IfcSegment.UsingCurves
    {1212, 2005, 536, 2522, 0, -1, 1, 0, 5194, 4208, 4171}, // IfcShapeAspect.HasExternalReferences
    {1213, 2314, 1212, 2676, 0, 1, 1, 0, 3866, 3868, 3869}, // IfcShapeModel.OfShapeAspect
    {1255, 2002, 1120, 2564, 0, -1, 1, 0, 3878, 3431, 4947}, // IfcSpace.HasCoverings
    {1255, 1676, 1141, 2564, 0, -1, 1, 0, 3878, 3880, 3881}, // IfcSpace.BoundedBy
    {1264, 1751, 1118, 2567, 0, -1, 1, 0, 4953, 3895, 3896}, // IfcSpatialElement.ContainsElements
    {1264, 2667, 1140, 2497, 0, -1, 1, 0, 4953, 3893, 3894}, // IfcSpatialElement.ServicedBySystems
    {1264, 2480, 1137, 2567, 0, -1, 1, 0, 4953, 3891, 3892}, // IfcSpatialElement.ReferencesElements
    {1291, 1631, 1113, 2525, 0, 1, 1, 0, 3898, 3899, 4973}, // IfcStructuralActivity.AssignedToStructuralItem
    {1294, 1742, 1115, 2526, 1, -1, 1, 0, 3901, 3902, 3903}, // IfcStructuralConnection.ConnectsStructuralMembers
    {1304, 1629, 1113, 2544, 0, -1, 1, 0, 3904, 3905, 3906}, // IfcStructuralItem.AssignedStructuralActivity
    {1310, 2710, 1328, 2602, 0, 1, 1, 0, 3910, 3911, 3912}, // IfcStructuralLoadGroup.SourceOfResultGroup
    {1310, 2187, 1293, 2186, 0, -1, 1, 0, 3910, 3913, 3914}, // IfcStructuralLoadGroup.LoadGroupFor
    {1320, 1736, 1115, 2566, 0, -1, 1, 0, 3915, 3918, 3919}, // IfcStructuralMember.ConnectedBy
    {1328, 2603, 1293, 2020, 0, 1, 1, 0, 3931, 3932, 3933}, // IfcStructuralResultGroup.ResultGroupFor
    {1364, 2097, 1421, 2219, 0, -1, 1, 0, 5041, 5042, 5043}, // IfcSurfaceTexture.IsMappedBy
    {1364, 2913, 1363, 2798, 0, -1, 1, 0, 5041, 5044, 5045}, // IfcSurfaceTexture.UsedInStyles
    {1375, 2670, 1140, 2568, 0, 1, 1, 0, 3973, 3974, 3975}, // IfcSystem.ServicesBuildings
    {1375, 2671, 1137, 2507, 0, -1, 1, 0, 3973, 5500, 3436}, // IfcSystem.ServicesFacilities
    {1404, 1997, 682, 2214, 0, 1, 1, 0, 5082, 5083, 5084}, // IfcTessellatedFaceSet.HasColours
    {1404, 2027, 687, 2214, 0, -1, 1, 0, 5082, 5085, 5086}, // IfcTessellatedFaceSet.HasTextures
    {1442, 2004, 536, 2522, 1, -1, 1, 0, 4002, 4170, 5088}, // IfcTimeSeries.HasExternalReference
    {1486, 2885, 1127, 2570, 0, 1, 1, 0, 4018, 5112, 4020}, // IfcTypeObject.Types
    {1487, 2317, 1091, 2557, 0, -1, 1, 0, 5113, 3690, 3691}, // IfcTypeProcess.OperatesOn
    {1488, 2468, 1092, 2558, 0, -1, 1, 0, 4021, 3698, 3699}, // IfcTypeProduct.ReferencedBy
    {1489, 2597, 1094, 2563, 0, -1, 1, 0, 5116, 3846, 3847}, // IfcTypeResource.ResourceOf
};

constexpr DerivedAttribute derivedAttributes[] = {
    {97, 3014, 863}, // IFCAXIS1PLACEMENT.Z
    {99, 2336, 914}, // IFCAXIS2PLACEMENT2D.P
    {100, 2336, 981}, // IFCAXIS2PLACEMENT3D.P
    {124, 1838, 1126}, // IFCBOOLEANRESULT.DIM
    {135, 1838, 1132}, // IFCBOUNDINGBOX.DIM
    {142, 2904, 1034}, // IFCBSPLINECURVE.UPPERINDEXONCONTROLPOINTS
    {142, 1757, 15174}, // IFCBSPLINECURVE.CONTROLPOINTS
    {144, 2905, 15214}, // IFCBSPLINECURVEWITHKNOTS.UPPERINDEXONKNOTS
    {145, 2935, 1034}, // IFCBSPLINESURFACE.UUPPER
    {145, 2979, 15220}, // IFCBSPLINESURFACE.VUPPER
    {145, 1757, 15232}, // IFCBSPLINESURFACE.CONTROLPOINTS
    {147, 2124, 15312}, // IFCBSPLINESURFACEWITHKNOTS.KNOTVUPPER
    {147, 2123, 15318}, // IFCBSPLINESURFACEWITHKNOTS.KNOTUUPPER
    {185, 1838, 1257}, // IFCCARTESIANPOINT.DIM
    {186, 1838, 16191}, // IFCCARTESIANPOINTLIST.DIM
    {189, 2641, 1270}, // IFCCARTESIANTRANSFORMATIONOPERATOR.SCL
    {189, 1838, 1278}, // IFCCARTESIANTRANSFORMATIONOPERATOR.DIM
    {190, 2886, 1340}, // IFCCARTESIANTRANSFORMATIONOPERATOR2D.U
    {191, 2642, 1366}, // IFCCARTESIANTRANSFORMATIONOPERATOR2DNONUNIFORM.SCL2
    {192, 2886, 1450}, // IFCCARTESIANTRANSFORMATIONOPERATOR3D.U
    {193, 2642, 1366}, // IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM.SCL2
    {193, 2643, 1477}, // IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM.SCL3
    {241, 2286, 1663}, // IFCCOMPOSITECURVE.NSEGMENTS
    {241, 1706, 1669}, // IFCCOMPOSITECURVE.CLOSEDCURVE
    {242, 1659, 16608}, // IFCCOMPOSITECURVEONSURFACE.BASISSURFACE
    {243, 1838, 1688}, // IFCCOMPOSITECURVESEGMENT.DIM
    {322, 1838, 1132}, // IFCCSGPRIMITIVE3D.DIM
    {332, 1838, 1972}, // IFCCURVE.DIM
    {340, 1838, 1688}, // IFCCURVESEGMENT.DIM
    {369, 1839, 2115}, // IFCDERIVEDUNIT.DIMENSIONS
    {382, 1838, 2372}, // IFCDIRECTION.DIM
    {456, 2275, 2696}, // IFCEDGELOOP.NE
    {543, 1838, 1132}, // IFCFACEBASEDSURFACEMODEL.DIM
    {630, 3003, 3194}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.WORLDCOORDINATESYSTEM
    {630, 1764, 3200}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.COORDINATESPACEDIMENSION
    {630, 2883, 19644}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.TRUENORTH
    {630, 2401, 3221}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.PRECISION
    {631, 1838, 3258}, // IFCGEOMETRICSET.DIM
    {650, 2572, 36482}, // IFCGRADIENTCURVE.RELATIVEELEVATION
    {660, 1838, 1132}, // IFCHALFSPACESOLID.DIM
    {795, 2856, 3526}, // IFCMATERIALLAYERSET.TOTALTHICKNESS
    {826, 2319, 20558}, // IFCMIRROREDPROFILEDEF.OPERATOR
    {884, 1878, 3781}, // IFCORIENTEDEDGE.EDGESTART
    {884, 1874, 3796}, // IFCORIENTEDEDGE.EDGEEND
    {921, 1838, 3972}, // IFCPLACEMENT.DIM
    {933, 1838, 3978}, // IFCPOINTBYDISTANCEEXPRESSION.DIM
    {934, 1838, 3978}, // IFCPOINTONCURVE.DIM
    {935, 1838, 1978}, // IFCPOINTONSURFACE.DIM
    {1053, 2990, 22108}, // IFCRATIONALBSPLINECURVEWITHKNOTS.WEIGHTS
    {1054, 2990, 22168}, // IFCRATIONALBSPLINESURFACEWITHKNOTS.WEIGHTS
    {1158, 1641, 5555}, // IFCREVOLVEDAREASOLID.AXISLINE
    {1191, 1838, 1132}, // IFCSECTIONEDSPINE.DIM
    {1217, 1838, 1132}, // IFCSHELLBASEDSURFACEMODEL.DIM
    {1232, 1839, 5600}, // IFCSIUNIT.DIMENSIONS
    {1245, 1838, 1132}, // IFCSOLIDMODEL.DIM
    {1347, 1838, 1132}, // IFCSURFACE.DIM
    {1348, 1659, 16608}, // IFCSURFACECURVE.BASISSURFACE
    {1352, 1923, 6225}, // IFCSURFACEOFLINEAREXTRUSION.EXTRUSIONAXIS
    {1353, 1641, 6234}, // IFCSURFACEOFREVOLUTION.AXISLINE
    {1379, 2287, 6459}, // IFCTABLE.NUMBEROFCELLSINROW
    {1379, 2289, 6470}, // IFCTABLE.NUMBEROFHEADINGS
    {1379, 2288, 6486}, // IFCTABLE.NUMBEROFDATAROWS
    {1404, 1838, 1132}, // IFCTESSELLATEDFACESET.DIM
    {1472, 2293, 24906}, // IFCTRIANGULATEDFACESET.NUMBEROFTRIANGLES
    {1508, 1838, 6910}, // IFCVECTOR.DIM
};

constexpr Function functions[] = {
    {3178, 1, 28941}, // IFCNORMALISE
    {3182, 1, 7617}, // IFCBUILD2AXES
    {3185, 2, 27328}, // IFCCROSSPRODUCT
    {3189, 2, 7650}, // IFCBUILDAXES
    {3193, 3, 11437}, // IFCLISTTOARRAY
    {3230, 4, 7345}, // IFCBASEAXIS
    {3256, 1, 13464}, // IFCUNIQUEPROPERTYNAME
    {3313, 1, 36868}, // IFCCURVEDIM
    {3326, 1, 9978}, // IFCDERIVEDIMENSIONALEXPONENTS
    {3420, 1, 11533}, // IFCLOOPHEADTOTAIL
    {3457, 2, 11126}, // IFCDOTPRODUCT
    {3473, 1, 8841}, // IFCCORRECTFILLAREASTYLE
    {3539, 2, 27266}, // IFCCORRECTLOCALPLACEMENT
    {3554, 1, 11613}, // IFCMLSTOTALTHICKNESS
    {3566, 2, 26131}, // IFCCORRECTDIMENSIONS
    {3609, 3, 7602}, // IFCBOOLEANCHOOSE
    {3610, 1, 12010}, // IFCPATHHEADTOTAIL
    {3771, 1, 9915}, // IFCCURVEWEIGHTSPOSITIVE
    {3784, 2, 9054}, // IFCCORRECTOBJECTASSIGNMENT
    {3856, 1, 27709}, // IFCDIMENSIONSFORSIUNIT
    {3874, 2, 37097}, // IFCSHAPEREPRESENTATIONTYPES
    {4009, 2, 13300}, // IFCTOPOLOGYREPRESENTATIONTYPES
    {4025, 1, 9319}, // IFCCORRECTUNITASSIGNMENT
    {4051, 2, 12397}, // IFCSAMEVALIDPRECISION
    {4052, 3, 12094}, // IFCSAMEAXIS2PLACEMENT
    {4059, 2, 11246}, // IFCFIRSTPROJAXIS
    {4060, 3, 12636}, // IFCSECONDPROJAXIS
    {4061, 1, 11960}, // IFCORTHOGONALCOMPLEMENT
    {4122, 2, 12499}, // IFCSCALARTIMESVECTOR
    {4123, 2, 13742}, // IFCVECTORDIFFERENCE
    {4125, 3, 12276}, // IFCSAMEDIRECTION
    {4126, 3, 12155}, // IFCSAMECARTESIANPOINT
    {4127, 3, 12464}, // IFCSAMEVALUE
    {4148, 2, 13991}, // IFCVECTORSUM
    {4236, 5, 25832}, // IFCCONSTRAINTSPARAMBSPLINE
    {4242, 5, 28789}, // IFCMAKEARRAYOFARRAY
    {4318, 1, 29222}, // IFCPOINTLISTDIM
    {4357, 1, 13464}, // IFCUNIQUEPROPERTYTEMPLATENAMES
    {4367, 1, 28598}, // IFCGETBASISSURFACE
    {4507, 1, 13464}, // IFCUNIQUEQUANTITYNAMES
    {4534, 2, 30398}, // IFCTAPEREDSWEPTAREAPROFILES
    {4598, 1, 26085}, // IFCCONVERTDIRECTIONINTO2D
    {4610, 1, 25752}, // IFCCONSECUTIVESEGMENTS
    {4625, 1, 25738}, // IFCASSOCIATEDSURFACE
    {4695, 1, 30467}, // IFCUNIQUEDEFINITIONNAMES
    {4840, 1, 30279}, // IFCSURFACEWEIGHTSPOSITIVE
    {5110, 1, 30613}, // IFCUNIQUEPROPERTYSETNAMES
    {5590, 1, 37091}, // IFCGRADIENT
};

} // namespace

RuleTables tablesOfIFC4X3_RC3() noexcept;
RuleTables tablesOfIFC4X3_RC3() noexcept {
    return {"IFC4X3_RC3", entityRules, typeRules, globalRules, uniqueRules, uniqueAttributes, inverseAttributes, derivedAttributes, functions};
}

} // namespace velkor::rules
