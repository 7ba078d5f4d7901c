// Made by velkor-rulegen from IFC4X3_RC1.exp (SHA-256 604971acd7b4a53d5b94b050721d64f8e576b1161c573a5cbaa8903f4a274a5d); do not edit.

#include "RuleTables.h"

namespace velkor::rules {

namespace {

constexpr WhereRule entityRules[] = {
    {8, 3129, 3028, 3130, 3131, 408}, // IfcActorRole.WR1
    {10, 4469, 4470, 4471, 3390, 14429}, // IfcActuator.CorrectPredefinedType
    {10, 4469, 4472, 4473, 4474, 14464}, // IfcActuator.CorrectTypeAssigned
    {11, 4475, 4470, 4476, 3141, 14488}, // IfcActuatorType.CorrectPredefinedType
    {13, 3132, 3028, 3133, 3134, 432}, // IfcAddress.WR1
    {15, 4477, 4478, 4479, 4480, 14515}, // IfcAdvancedBrep.HasAdvancedFaces
    {16, 4481, 4482, 4483, 4484, 14540}, // IfcAdvancedBrepWithVoids.VoidsHaveAdvancedFaces
    {17, 4485, 4486, 4487, 4488, 14575}, // IfcAdvancedFace.ApplicableSurface
    {17, 4485, 4489, 4490, 4491, 14600}, // IfcAdvancedFace.RequiresEdgeCurve
    {17, 4485, 4492, 4493, 4494, 14661}, // IfcAdvancedFace.ApplicableEdgeCurves
    {19, 4495, 4470, 4496, 3390, 14745}, // IfcAirTerminal.CorrectPredefinedType
    {19, 4495, 4472, 4497, 4498, 14780}, // IfcAirTerminal.CorrectTypeAssigned
    {20, 4499, 4470, 4500, 3390, 14804}, // IfcAirTerminalBox.CorrectPredefinedType
    {20, 4499, 4472, 4501, 4502, 14839}, // IfcAirTerminalBox.CorrectTypeAssigned
    {21, 3139, 4470, 3140, 3141, 464}, // IfcAirTerminalBoxType.CorrectPredefinedType
    {23, 3142, 4470, 3143, 3141, 491}, // IfcAirTerminalType.CorrectPredefinedType
    {25, 4503, 4470, 4504, 3390, 14863}, // IfcAirToAirHeatRecovery.CorrectPredefinedType
    {25, 4503, 4472, 4505, 4506, 14898}, // IfcAirToAirHeatRecovery.CorrectTypeAssigned
    {26, 3144, 4470, 3145, 3141, 518}, // IfcAirToAirHeatRecoveryType.CorrectPredefinedType
    {28, 4507, 4470, 4508, 3390, 14922}, // IfcAlarm.CorrectPredefinedType
    {28, 4507, 4472, 4509, 4510, 14957}, // IfcAlarm.CorrectTypeAssigned
    {29, 4511, 4470, 4512, 3141, 14981}, // IfcAlarmType.CorrectPredefinedType
    {77, 3182, 4513, 4514, 4515, 15008}, // IfcApproval.HasIdentifierOrName
    {81, 3189, 3028, 3190, 3191, 708}, // IfcArbitraryClosedProfileDef.WR1
    {81, 3189, 3034, 3192, 3193, 717}, // IfcArbitraryClosedProfileDef.WR2
    {81, 3189, 3037, 3194, 3195, 724}, // IfcArbitraryClosedProfileDef.WR3
    {82, 3197, 3198, 3199, 3200, 731}, // IfcArbitraryOpenProfileDef.WR11
    {82, 3197, 3201, 3202, 3203, 748}, // IfcArbitraryOpenProfileDef.WR12
    {83, 3205, 3028, 3206, 3207, 757}, // IfcArbitraryProfileDefWithVoids.WR1
    {83, 3205, 3034, 3208, 3209, 768}, // IfcArbitraryProfileDefWithVoids.WR2
    {83, 3205, 3037, 3210, 3211, 790}, // IfcArbitraryProfileDefWithVoids.WR3
    {93, 4522, 4523, 4524, 4525, 15021}, // IfcAsymmetricIShapeProfileDef.ValidFlangeThickness
    {93, 4522, 4526, 4527, 4528, 15039}, // IfcAsymmetricIShapeProfileDef.ValidWebThickness
    {93, 4522, 4529, 4530, 4531, 15054}, // IfcAsymmetricIShapeProfileDef.ValidBottomFilletRadius
    {93, 4522, 4532, 4533, 4534, 15075}, // IfcAsymmetricIShapeProfileDef.ValidTopFilletRadius
    {94, 4535, 4470, 4536, 3390, 15096}, // IfcAudioVisualAppliance.CorrectPredefinedType
    {94, 4535, 4472, 4537, 4538, 15131}, // IfcAudioVisualAppliance.CorrectTypeAssigned
    {95, 4539, 4470, 4540, 3141, 15155}, // IfcAudioVisualApplianceType.CorrectPredefinedType
    {97, 3215, 4541, 3216, 3217, 834}, // IfcAxis1Placement.AxisIs3D
    {97, 3215, 4542, 3218, 3219, 851}, // IfcAxis1Placement.LocationIs3D
    {99, 3221, 4543, 3222, 3223, 885}, // IfcAxis2Placement2D.RefDirIs2D
    {99, 3221, 4544, 3224, 3225, 902}, // IfcAxis2Placement2D.LocationIs2D
    {100, 3227, 4542, 3218, 3219, 851}, // IfcAxis2Placement3D.LocationIs3D
    {100, 3227, 4541, 3216, 3217, 834}, // IfcAxis2Placement3D.AxisIs3D
    {100, 3227, 4545, 3228, 3229, 922}, // IfcAxis2Placement3D.RefDirIs3D
    {100, 3227, 4546, 3231, 3232, 939}, // IfcAxis2Placement3D.AxisToRefDirPosition
    {100, 3227, 4547, 3234, 3235, 969}, // IfcAxis2Placement3D.AxisAndRefDirProvision
    {103, 4571, 4470, 4572, 3390, 15332}, // IfcBeam.CorrectPredefinedType
    {103, 4571, 4472, 4573, 4574, 15367}, // IfcBeam.CorrectTypeAssigned
    {104, 4575, 4576, 4577, 4578, 15391}, // IfcBeamStandardCase.HasMaterialProfileSetUsage
    {105, 4579, 4470, 4580, 3141, 15422}, // IfcBeamType.CorrectPredefinedType
    {107, 5707, 4470, 5708, 3390, 31037}, // IfcBearing.CorrectPredefinedType
    {107, 5707, 4472, 5709, 5710, 31072}, // IfcBearing.CorrectTypeAssigned
    {108, 5711, 4470, 5712, 3141, 31096}, // IfcBearingType.CorrectPredefinedType
    {115, 3246, 4581, 3247, 3248, 1043}, // IfcBlobTexture.SupportedRasterFormat
    {115, 3246, 4582, 4583, 4584, 15449}, // IfcBlobTexture.RasterCodeByteStream
    {117, 4585, 4470, 4586, 3390, 15461}, // IfcBoiler.CorrectPredefinedType
    {117, 4585, 4472, 4587, 4588, 15496}, // IfcBoiler.CorrectTypeAssigned
    {118, 3249, 4470, 3250, 3141, 1061}, // IfcBoilerType.CorrectPredefinedType
    {121, 3251, 4590, 4591, 4592, 36194}, // IfcBooleanClippingResult.FirstOperandType
    {121, 3251, 4593, 3254, 3255, 1101}, // IfcBooleanClippingResult.SecondOperandType
    {121, 3251, 4594, 3257, 3258, 1107}, // IfcBooleanClippingResult.OperatorType
    {124, 3259, 4548, 3260, 3261, 1115}, // IfcBooleanResult.SameDim
    {124, 3259, 4595, 4596, 4597, 15543}, // IfcBooleanResult.FirstOperandClosed
    {124, 3259, 4598, 4599, 4600, 15566}, // IfcBooleanResult.SecondOperandClosed
    {128, 4601, 4602, 3118, 3119, 391}, // IfcBoundaryCurve.IsClosed
    {137, 3262, 4603, 3263, 3264, 1136}, // IfcBoxedHalfSpace.UnboundedSurface
    {142, 3237, 4548, 3239, 3240, 991}, // IfcBSplineCurve.SameDim
    {144, 4550, 4551, 4552, 4553, 15198}, // IfcBSplineCurveWithKnots.ConsistentBSpline
    {144, 4550, 4554, 4555, 4556, 15213}, // IfcBSplineCurveWithKnots.CorrespondingKnotLists
    {147, 4558, 4559, 4560, 4561, 15260}, // IfcBSplineSurfaceWithKnots.UDirectionConstraints
    {147, 4558, 4562, 4563, 4564, 15281}, // IfcBSplineSurfaceWithKnots.VDirectionConstraints
    {147, 4558, 4565, 4566, 4567, 15302}, // IfcBSplineSurfaceWithKnots.CorrespondingULists
    {147, 4558, 4568, 4569, 4570, 15311}, // IfcBSplineSurfaceWithKnots.CorrespondingVLists
    {151, 4606, 4470, 4607, 3390, 15589}, // IfcBuildingElementPart.CorrectPredefinedType
    {151, 4606, 4472, 4608, 4609, 15624}, // IfcBuildingElementPart.CorrectTypeAssigned
    {152, 4610, 4470, 4611, 3141, 15648}, // IfcBuildingElementPartType.CorrectPredefinedType
    {154, 3265, 4612, 3266, 3267, 1146}, // IfcBuildingElementProxy.HasObjectName
    {154, 3265, 4470, 4613, 3390, 15675}, // IfcBuildingElementProxy.CorrectPredefinedType
    {154, 3265, 4472, 4614, 4615, 15710}, // IfcBuildingElementProxy.CorrectTypeAssigned
    {155, 4616, 4470, 4617, 3141, 15734}, // IfcBuildingElementProxyType.CorrectPredefinedType
    {161, 5772, 4605, 4318, 4319, 6943}, // IfcBuiltElement.MaxOneMaterialAssociation
    {163, 5773, 4470, 6102, 3390, 31655}, // IfcBuiltSystem.CorrectPredefinedType
    {165, 4618, 4470, 4619, 3390, 15761}, // IfcBurner.CorrectPredefinedType
    {165, 4618, 4472, 4620, 4621, 15796}, // IfcBurner.CorrectTypeAssigned
    {166, 4622, 4470, 4623, 3141, 15820}, // IfcBurnerType.CorrectPredefinedType
    {168, 4629, 4470, 4630, 3390, 15882}, // IfcCableCarrierFitting.CorrectPredefinedType
    {168, 4629, 4472, 4631, 4632, 15917}, // IfcCableCarrierFitting.CorrectTypeAssigned
    {169, 3275, 4470, 3276, 3141, 1215}, // IfcCableCarrierFittingType.CorrectPredefinedType
    {171, 4633, 4470, 4634, 3390, 15941}, // IfcCableCarrierSegment.CorrectPredefinedType
    {171, 4633, 4472, 4635, 4636, 15976}, // IfcCableCarrierSegment.CorrectTypeAssigned
    {172, 4637, 4470, 4638, 3141, 16000}, // IfcCableCarrierSegmentType.CorrectPredefinedType
    {174, 4639, 4470, 4640, 3390, 16027}, // IfcCableFitting.CorrectPredefinedType
    {174, 4639, 4472, 4641, 4642, 16062}, // IfcCableFitting.CorrectTypeAssigned
    {175, 4643, 4470, 4644, 3141, 16086}, // IfcCableFittingType.CorrectPredefinedType
    {177, 4645, 4470, 4646, 3390, 16113}, // IfcCableSegment.CorrectPredefinedType
    {177, 4645, 4472, 4647, 4648, 16148}, // IfcCableSegment.CorrectTypeAssigned
    {178, 4649, 4470, 4650, 3141, 16172}, // IfcCableSegmentType.CorrectPredefinedType
    {180, 5717, 4470, 5718, 3390, 31146}, // IfcCaissonFoundation.CorrectPredefinedType
    {180, 5717, 4472, 5719, 5720, 31181}, // IfcCaissonFoundation.CorrectTypeAssigned
    {181, 5721, 4470, 5722, 3141, 31205}, // IfcCaissonFoundationType.CorrectPredefinedType
    {185, 3281, 4651, 3282, 3283, 1248}, // IfcCartesianPoint.CP2Dor3D
    {189, 3284, 4653, 3285, 3286, 1263}, // IfcCartesianTransformationOperator.ScaleGreaterZero
    {190, 3287, 4654, 3288, 3121, 1284}, // IfcCartesianTransformationOperator2D.DimEqual2
    {190, 3287, 4655, 3289, 3290, 1294}, // IfcCartesianTransformationOperator2D.Axis1Is2D
    {190, 3287, 4656, 3291, 3292, 1317}, // IfcCartesianTransformationOperator2D.Axis2Is2D
    {191, 3294, 4657, 3295, 3296, 1359}, // IfcCartesianTransformationOperator2DnonUniform.Scale2GreaterZero
    {192, 3297, 4658, 3298, 3299, 1377}, // IfcCartesianTransformationOperator3D.DimIs3D
    {192, 3297, 4659, 3300, 3301, 1387}, // IfcCartesianTransformationOperator3D.Axis1Is3D
    {192, 3297, 4660, 3302, 3303, 1410}, // IfcCartesianTransformationOperator3D.Axis2Is3D
    {192, 3297, 4661, 3304, 3305, 1433}, // IfcCartesianTransformationOperator3D.Axis3Is3D
    {193, 3306, 4657, 3295, 3296, 1359}, // IfcCartesianTransformationOperator3DnonUniform.Scale2GreaterZero
    {193, 3306, 4662, 3307, 3308, 1470}, // IfcCartesianTransformationOperator3DnonUniform.Scale3GreaterZero
    {198, 4663, 4470, 4664, 3390, 16205}, // IfcChiller.CorrectPredefinedType
    {198, 4663, 4472, 4665, 4666, 16240}, // IfcChiller.CorrectTypeAssigned
    {199, 3309, 4470, 3310, 3141, 1488}, // IfcChillerType.CorrectPredefinedType
    {201, 4667, 4470, 4668, 3390, 16264}, // IfcChimney.CorrectPredefinedType
    {201, 4667, 4472, 4669, 4670, 16299}, // IfcChimney.CorrectTypeAssigned
    {202, 4671, 4470, 4672, 3141, 16323}, // IfcChimneyType.CorrectPredefinedType
    {205, 3311, 3028, 3312, 3313, 1515}, // IfcCircleHollowProfileDef.WR1
    {221, 4679, 4470, 4680, 3390, 16350}, // IfcCoil.CorrectPredefinedType
    {221, 4679, 4472, 4681, 4682, 16385}, // IfcCoil.CorrectTypeAssigned
    {222, 3322, 4470, 3323, 3141, 1525}, // IfcCoilType.CorrectPredefinedType
    {229, 4683, 4470, 4684, 3390, 16409}, // IfcColumn.CorrectPredefinedType
    {229, 4683, 4472, 4685, 4686, 16444}, // IfcColumn.CorrectTypeAssigned
    {230, 4687, 4576, 4577, 4578, 15391}, // IfcColumnStandardCase.HasMaterialProfileSetUsage
    {231, 4688, 4470, 4689, 3141, 16468}, // IfcColumnType.CorrectPredefinedType
    {233, 4690, 4470, 4691, 3390, 16495}, // IfcCommunicationsAppliance.CorrectPredefinedType
    {233, 4690, 4472, 4692, 4693, 16530}, // IfcCommunicationsAppliance.CorrectTypeAssigned
    {234, 4694, 4470, 4695, 3141, 16554}, // IfcCommunicationsApplianceType.CorrectPredefinedType
    {238, 3324, 3087, 3325, 3326, 1552}, // IfcComplexProperty.WR21
    {238, 3324, 3328, 3329, 3330, 1571}, // IfcComplexProperty.WR22
    {239, 4697, 4698, 4699, 4700, 16581}, // IfcComplexPropertyTemplate.UniquePropertyNames
    {239, 4697, 4701, 4702, 4703, 16588}, // IfcComplexPropertyTemplate.NoSelfReference
    {241, 3332, 4704, 3333, 3334, 1578}, // IfcCompositeCurve.CurveContinuous
    {241, 3332, 4548, 3336, 3337, 1636}, // IfcCompositeCurve.SameDim
    {242, 4705, 4706, 4707, 4708, 16607}, // IfcCompositeCurveOnSurface.SameSurface
    {243, 3338, 4710, 3339, 3340, 1682}, // IfcCompositeCurveSegment.ParentIsBoundedCurve
    {244, 3343, 4711, 3344, 3345, 1694}, // IfcCompositeProfileDef.InvariantProfileType
    {244, 3343, 4712, 3346, 3347, 1721}, // IfcCompositeProfileDef.NoRecursion
    {246, 4713, 4470, 4714, 3390, 16623}, // IfcCompressor.CorrectPredefinedType
    {246, 4713, 4472, 4715, 4716, 16658}, // IfcCompressor.CorrectTypeAssigned
    {247, 3348, 4470, 3349, 3141, 1740}, // IfcCompressorType.CorrectPredefinedType
    {249, 4717, 4470, 4718, 3390, 16682}, // IfcCondenser.CorrectPredefinedType
    {249, 4717, 4472, 4719, 4720, 16717}, // IfcCondenser.CorrectTypeAssigned
    {250, 3350, 4470, 3351, 3141, 1767}, // IfcCondenserType.CorrectPredefinedType
    {265, 3353, 3198, 3354, 3355, 1794}, // IfcConstraint.WR11
    {270, 4722, 4470, 4723, 3390, 16741}, // IfcConstructionEquipmentResource.CorrectPredefinedType
    {271, 4724, 4470, 4725, 4726, 16776}, // IfcConstructionEquipmentResourceType.CorrectPredefinedType
    {273, 3371, 4470, 4727, 3390, 16803}, // IfcConstructionMaterialResource.CorrectPredefinedType
    {274, 4728, 4470, 4729, 4726, 16838}, // IfcConstructionMaterialResourceType.CorrectPredefinedType
    {276, 3377, 4470, 4730, 3390, 16865}, // IfcConstructionProductResource.CorrectPredefinedType
    {277, 4731, 4470, 4732, 4726, 16900}, // IfcConstructionProductResourceType.CorrectPredefinedType
    {285, 4738, 4470, 4739, 3390, 16927}, // IfcController.CorrectPredefinedType
    {285, 4738, 4472, 4740, 4741, 16962}, // IfcController.CorrectTypeAssigned
    {286, 4742, 4470, 4743, 3141, 16986}, // IfcControllerType.CorrectPredefinedType
    {290, 5789, 4470, 6103, 3390, 31690}, // IfcConveyorSegment.CorrectPredefinedType
    {290, 5789, 4472, 5791, 5792, 31725}, // IfcConveyorSegment.CorrectTypeAssigned
    {291, 5793, 4470, 6104, 3141, 31749}, // IfcConveyorSegmentType.CorrectPredefinedType
    {293, 4745, 4470, 4746, 3390, 17013}, // IfcCooledBeam.CorrectPredefinedType
    {293, 4745, 4472, 4747, 4748, 17048}, // IfcCooledBeam.CorrectTypeAssigned
    {294, 3381, 4470, 3382, 3141, 1883}, // IfcCooledBeamType.CorrectPredefinedType
    {296, 4749, 4470, 4750, 3390, 17072}, // IfcCoolingTower.CorrectPredefinedType
    {296, 4749, 4472, 4751, 4752, 17107}, // IfcCoolingTower.CorrectTypeAssigned
    {297, 3383, 4470, 3384, 3141, 1910}, // IfcCoolingTowerType.CorrectPredefinedType
    {311, 5802, 4470, 6105, 3390, 31792}, // IfcCourse.CorrectPredefinedType
    {311, 5802, 4472, 5804, 5805, 31827}, // IfcCourse.CorrectTypeAssigned
    {312, 5806, 4470, 6106, 3141, 31851}, // IfcCourseType.CorrectPredefinedType
    {314, 3387, 4470, 3389, 3390, 1937}, // IfcCovering.CorrectPredefinedType
    {314, 3387, 4472, 4756, 4757, 17131}, // IfcCovering.CorrectTypeAssigned
    {315, 4759, 4470, 4760, 3141, 17155}, // IfcCoveringType.CorrectPredefinedType
    {319, 4761, 4470, 4762, 3390, 17182}, // IfcCrewResource.CorrectPredefinedType
    {320, 4763, 4470, 4764, 4726, 17217}, // IfcCrewResourceType.CorrectPredefinedType
    {325, 3268, 4624, 3269, 3270, 1155}, // IfcCShapeProfileDef.ValidGirth
    {325, 3268, 4625, 4626, 4627, 15847}, // IfcCShapeProfileDef.ValidInternalFilletRadius
    {325, 3268, 4628, 3273, 3274, 1194}, // IfcCShapeProfileDef.ValidWallThickness
    {328, 4765, 4470, 4766, 3390, 17244}, // IfcCurtainWall.CorrectPredefinedType
    {328, 4765, 4472, 4767, 4768, 17279}, // IfcCurtainWall.CorrectTypeAssigned
    {329, 4769, 4470, 4770, 3141, 17303}, // IfcCurtainWallType.CorrectPredefinedType
    {342, 3397, 4771, 3398, 3399, 1984}, // IfcCurveStyle.MeasureOfWidth
    {342, 3397, 4772, 4773, 4774, 17330}, // IfcCurveStyle.IdentifiableCurveStyle
    {345, 3400, 4775, 3401, 3402, 2013}, // IfcCurveStyleFontPattern.VisibleLengthGreaterEqualZero
    {348, 4776, 4470, 4777, 3390, 17350}, // IfcDamper.CorrectPredefinedType
    {348, 4776, 4472, 4778, 4779, 17385}, // IfcDamper.CorrectTypeAssigned
    {349, 3403, 4470, 3404, 3141, 2020}, // IfcDamperType.CorrectPredefinedType
    {362, 5723, 4472, 5724, 5725, 31232}, // IfcDeepFoundation.CorrectTypeAssigned
    {368, 3405, 4711, 3406, 3407, 2047}, // IfcDerivedProfileDef.InvariantProfileType
    {369, 3408, 3028, 3409, 3410, 2059}, // IfcDerivedUnit.WR1
    {369, 3408, 3034, 3411, 3412, 2091}, // IfcDerivedUnit.WR2
    {382, 4780, 4781, 4782, 4783, 17409}, // IfcDirection.MagnitudeGreaterZero
    {384, 5811, 4952, 4953, 4954, 19185}, // IfcDirectrixCurveSweptAreaSolid.DirectrixBounded
    {387, 4784, 4470, 4785, 3390, 17429}, // IfcDiscreteAccessory.CorrectPredefinedType
    {387, 4784, 4472, 4786, 4787, 17464}, // IfcDiscreteAccessory.CorrectTypeAssigned
    {388, 4788, 4470, 4789, 3141, 17488}, // IfcDiscreteAccessoryType.CorrectPredefinedType
    {391, 5813, 4470, 6107, 3390, 31878}, // IfcDistributionBoard.CorrectPredefinedType
    {391, 5813, 4472, 5815, 5816, 31913}, // IfcDistributionBoard.CorrectTypeAssigned
    {392, 5817, 4470, 6108, 3141, 31937}, // IfcDistributionBoardType.CorrectPredefinedType
    {394, 4790, 4470, 4791, 3390, 17515}, // IfcDistributionChamberElement.CorrectPredefinedType
    {394, 4790, 4472, 4792, 4793, 17550}, // IfcDistributionChamberElement.CorrectTypeAssigned
    {395, 4794, 4470, 4795, 3141, 17574}, // IfcDistributionChamberElementType.CorrectPredefinedType
    {412, 3470, 3028, 4801, 4802, 17601}, // IfcDocumentReference.WR1
    {415, 4804, 4805, 4806, 4807, 17612}, // IfcDoor.CorrectStyleAssigned
    {416, 3475, 3150, 4808, 4809, 17636}, // IfcDoorLiningProperties.WR31
    {416, 3475, 3478, 4810, 4811, 17651}, // IfcDoorLiningProperties.WR32
    {416, 3475, 3481, 3482, 3483, 2435}, // IfcDoorLiningProperties.WR33
    {416, 3475, 3484, 3485, 3486, 2462}, // IfcDoorLiningProperties.WR34
    {416, 3475, 3487, 4812, 4813, 17666}, // IfcDoorLiningProperties.WR35
    {419, 3490, 4814, 4812, 4813, 17666}, // IfcDoorPanelProperties.ApplicableToType
    {424, 4815, 4470, 4816, 3141, 17704}, // IfcDoorType.CorrectPredefinedType
    {431, 3504, 4817, 3505, 3506, 2514}, // IfcDraughtingPreDefinedColour.PreDefinedColourNames
    {432, 3512, 4818, 3513, 3514, 2550}, // IfcDraughtingPreDefinedCurveFont.PreDefinedCurveFontNames
    {434, 4819, 4470, 4820, 3390, 17731}, // IfcDuctFitting.CorrectPredefinedType
    {434, 4819, 4472, 4821, 4822, 17766}, // IfcDuctFitting.CorrectTypeAssigned
    {435, 3520, 4470, 3521, 3141, 2592}, // IfcDuctFittingType.CorrectPredefinedType
    {437, 4823, 4470, 4824, 3390, 17790}, // IfcDuctSegment.CorrectPredefinedType
    {437, 4823, 4472, 4825, 4826, 17825}, // IfcDuctSegment.CorrectTypeAssigned
    {438, 3522, 4470, 3523, 3141, 2619}, // IfcDuctSegmentType.CorrectPredefinedType
    {440, 4827, 4470, 4828, 3390, 17849}, // IfcDuctSilencer.CorrectPredefinedType
    {440, 4827, 4472, 4829, 4830, 17884}, // IfcDuctSilencer.CorrectTypeAssigned
    {441, 3524, 4470, 3525, 3141, 2646}, // IfcDuctSilencerType.CorrectPredefinedType
    {448, 5829, 4470, 6109, 3390, 32059}, // IfcEarthworksCut.CorrectPredefinedType
    {451, 5831, 4470, 6110, 3390, 32094}, // IfcEarthworksFill.CorrectPredefinedType
    {456, 3526, 4602, 3527, 3528, 2673}, // IfcEdgeLoop.IsClosed
    {456, 3526, 4831, 3530, 3531, 2690}, // IfcEdgeLoop.IsContinuous
    {460, 4832, 4470, 4833, 3390, 17908}, // IfcElectricAppliance.CorrectPredefinedType
    {460, 4832, 4472, 4834, 4835, 17943}, // IfcElectricAppliance.CorrectTypeAssigned
    {461, 4836, 4470, 4837, 3141, 17967}, // IfcElectricApplianceType.CorrectPredefinedType
    {468, 4838, 4470, 4839, 3390, 17994}, // IfcElectricDistributionBoard.CorrectPredefinedType
    {468, 4838, 4472, 4840, 4841, 18029}, // IfcElectricDistributionBoard.CorrectTypeAssigned
    {469, 4842, 4470, 4843, 3141, 18053}, // IfcElectricDistributionBoardType.CorrectPredefinedType
    {473, 4844, 4470, 4845, 3390, 18080}, // IfcElectricFlowStorageDevice.CorrectPredefinedType
    {473, 4844, 4472, 4846, 4847, 18115}, // IfcElectricFlowStorageDevice.CorrectTypeAssigned
    {474, 4848, 4470, 4849, 3141, 18139}, // IfcElectricFlowStorageDeviceType.CorrectPredefinedType
    {476, 5836, 4470, 6111, 3390, 32129}, // IfcElectricFlowTreatmentDevice.CorrectPredefinedType
    {476, 5836, 4472, 5838, 5839, 32164}, // IfcElectricFlowTreatmentDevice.CorrectTypeAssigned
    {477, 5840, 4470, 6112, 3141, 32188}, // IfcElectricFlowTreatmentDeviceType.CorrectPredefinedType
    {479, 4850, 4470, 4851, 3390, 18166}, // IfcElectricGenerator.CorrectPredefinedType
    {479, 4850, 4472, 4852, 4853, 18201}, // IfcElectricGenerator.CorrectTypeAssigned
    {480, 4854, 4470, 4855, 3141, 18225}, // IfcElectricGeneratorType.CorrectPredefinedType
    {484, 4856, 4470, 4857, 3390, 18252}, // IfcElectricMotor.CorrectPredefinedType
    {484, 4856, 4472, 4858, 4859, 18287}, // IfcElectricMotor.CorrectTypeAssigned
    {485, 4860, 4470, 4861, 3141, 18311}, // IfcElectricMotorType.CorrectPredefinedType
    {488, 4862, 4470, 4863, 3390, 18338}, // IfcElectricTimeControl.CorrectPredefinedType
    {488, 4862, 4472, 4864, 4865, 18373}, // IfcElectricTimeControl.CorrectTypeAssigned
    {489, 4866, 4470, 4867, 3141, 18397}, // IfcElectricTimeControlType.CorrectPredefinedType
    {494, 3558, 4470, 4872, 3390, 18424}, // IfcElementAssembly.CorrectPredefinedType
    {494, 3558, 4472, 4873, 4874, 18459}, // IfcElementAssembly.CorrectTypeAssigned
    {495, 4875, 4470, 4876, 3141, 18483}, // IfcElementAssemblyType.CorrectPredefinedType
    {500, 4878, 4879, 4880, 4881, 18510}, // IfcElementQuantity.UniqueQuantityNames
    {509, 4882, 4470, 4883, 3390, 18517}, // IfcEngine.CorrectPredefinedType
    {509, 4882, 4472, 4884, 4885, 18552}, // IfcEngine.CorrectTypeAssigned
    {510, 4886, 4470, 4887, 3141, 18576}, // IfcEngineType.CorrectPredefinedType
    {516, 4888, 4470, 4889, 3390, 18603}, // IfcEvaporativeCooler.CorrectPredefinedType
    {516, 4888, 4472, 4890, 4891, 18638}, // IfcEvaporativeCooler.CorrectTypeAssigned
    {517, 3564, 4470, 3565, 3141, 2789}, // IfcEvaporativeCoolerType.CorrectPredefinedType
    {519, 4892, 4470, 4893, 3390, 18662}, // IfcEvaporator.CorrectPredefinedType
    {519, 4892, 4472, 4894, 4895, 18697}, // IfcEvaporator.CorrectTypeAssigned
    {520, 3566, 4470, 3567, 3141, 2816}, // IfcEvaporatorType.CorrectPredefinedType
    {522, 4896, 4470, 4897, 3390, 18721}, // IfcEvent.CorrectPredefinedType
    {522, 4896, 4472, 4898, 4899, 18756}, // IfcEvent.CorrectTypeAssigned
    {525, 4900, 4470, 4901, 4902, 18788}, // IfcEventType.CorrectPredefinedType
    {525, 4900, 4903, 4904, 4905, 18815}, // IfcEventType.CorrectEventTriggerType
    {535, 3568, 3028, 4906, 4907, 18839}, // IfcExternalReference.WR1
    {540, 3572, 4911, 3573, 3574, 2863}, // IfcExtrudedAreaSolid.ValidExtrusionDirection
    {541, 4913, 4914, 4915, 4916, 18859}, // IfcExtrudedAreaSolidTapered.CorrectProfileAssignment
    {542, 3575, 4917, 3576, 3577, 2886}, // IfcFace.HasOuterBound
    {556, 4920, 4470, 4921, 3390, 18871}, // IfcFan.CorrectPredefinedType
    {556, 4920, 4472, 4922, 4923, 18906}, // IfcFan.CorrectTypeAssigned
    {557, 3578, 4470, 3579, 3141, 2905}, // IfcFanType.CorrectPredefinedType
    {559, 4924, 4470, 4925, 3390, 18930}, // IfcFastener.CorrectPredefinedType
    {559, 4924, 4472, 4926, 4927, 18965}, // IfcFastener.CorrectTypeAssigned
    {560, 4928, 4470, 4929, 3141, 18989}, // IfcFastenerType.CorrectPredefinedType
    {564, 3583, 4930, 4931, 4932, 19016}, // IfcFeatureElementSubtraction.HasNoSubtraction
    {564, 3583, 4933, 4934, 4935, 19028}, // IfcFeatureElementSubtraction.IsNotFilling
    {565, 3586, 4936, 3587, 3588, 2932}, // IfcFillAreaStyle.MaxOneColour
    {565, 3586, 4937, 3589, 3590, 2951}, // IfcFillAreaStyle.MaxOneExtHatchStyle
    {565, 3586, 4938, 3592, 3593, 2970}, // IfcFillAreaStyle.ConsistentHatchStyleDef
    {566, 3594, 4939, 3597, 3598, 2984}, // IfcFillAreaStyleHatching.PatternStart2D
    {566, 3594, 4940, 3600, 3601, 3001}, // IfcFillAreaStyleHatching.RefHatchLine2D
    {574, 4941, 4470, 4942, 3390, 19040}, // IfcFilter.CorrectPredefinedType
    {574, 4941, 4472, 4943, 4944, 19075}, // IfcFilter.CorrectTypeAssigned
    {575, 3602, 4470, 3603, 3141, 3018}, // IfcFilterType.CorrectPredefinedType
    {577, 4945, 4470, 4946, 3390, 19099}, // IfcFireSuppressionTerminal.CorrectPredefinedType
    {577, 4945, 4472, 4947, 4948, 19134}, // IfcFireSuppressionTerminal.CorrectTypeAssigned
    {578, 4949, 4470, 4950, 3141, 19158}, // IfcFireSuppressionTerminalType.CorrectPredefinedType
    {586, 4955, 4470, 4956, 3390, 19218}, // IfcFlowInstrument.CorrectPredefinedType
    {586, 4955, 4472, 4957, 4958, 19253}, // IfcFlowInstrument.CorrectTypeAssigned
    {587, 4959, 4470, 4960, 3141, 19277}, // IfcFlowInstrumentType.CorrectPredefinedType
    {589, 4961, 4470, 4962, 3390, 19304}, // IfcFlowMeter.CorrectPredefinedType
    {589, 4961, 4472, 4963, 4964, 19339}, // IfcFlowMeter.CorrectTypeAssigned
    {590, 3604, 4470, 3605, 3141, 3045}, // IfcFlowMeterType.CorrectPredefinedType
    {606, 3606, 4470, 4965, 3390, 19363}, // IfcFooting.CorrectPredefinedType
    {606, 3606, 4472, 4966, 4967, 19398}, // IfcFooting.CorrectTypeAssigned
    {607, 4968, 4470, 4969, 3141, 19422}, // IfcFootingType.CorrectPredefinedType
    {614, 4970, 4470, 4971, 3390, 19449}, // IfcFurniture.CorrectPredefinedType
    {614, 4970, 4472, 4972, 4973, 19484}, // IfcFurniture.CorrectTypeAssigned
    {616, 4974, 4470, 4975, 3141, 19508}, // IfcFurnitureType.CorrectPredefinedType
    {623, 4976, 4470, 4977, 3390, 19535}, // IfcGeographicElement.CorrectPredefinedType
    {623, 4976, 4472, 4978, 4979, 19570}, // IfcGeographicElement.CorrectTypeAssigned
    {624, 4980, 4470, 4981, 3141, 19594}, // IfcGeographicElementType.CorrectPredefinedType
    {626, 3617, 4982, 3618, 3619, 3141}, // IfcGeometricCurveSet.NoSurfaces
    {628, 3620, 4983, 4984, 4985, 19621}, // IfcGeometricRepresentationContext.North2D
    {630, 3623, 4986, 3624, 3625, 3163}, // IfcGeometricRepresentationSubContext.ParentNoSub
    {630, 3623, 4987, 3626, 3627, 3170}, // IfcGeometricRepresentationSubContext.UserTargetProvided
    {630, 3623, 4988, 4989, 4990, 19640}, // IfcGeometricRepresentationSubContext.NoCoordOperation
    {631, 3628, 4992, 3629, 3630, 3231}, // IfcGeometricSet.ConsistentDim
    {652, 3634, 3028, 3635, 3636, 3276}, // IfcGridAxis.WR1
    {652, 3634, 3034, 3637, 3638, 3285}, // IfcGridAxis.WR2
    {662, 4995, 4470, 4996, 3390, 19673}, // IfcHeatExchanger.CorrectPredefinedType
    {662, 4995, 4472, 4997, 4998, 19708}, // IfcHeatExchanger.CorrectTypeAssigned
    {663, 3650, 4470, 3651, 3141, 3310}, // IfcHeatExchangerType.CorrectPredefinedType
    {668, 4999, 4470, 5000, 3390, 19732}, // IfcHumidifier.CorrectPredefinedType
    {668, 4999, 4472, 5001, 5002, 19767}, // IfcHumidifier.CorrectTypeAssigned
    {669, 3652, 4470, 3653, 3141, 3337}, // IfcHumidifierType.CorrectPredefinedType
    {675, 5879, 4470, 6113, 3390, 32365}, // IfcImpactProtectionDevice.CorrectPredefinedType
    {675, 5879, 4472, 5881, 5882, 32400}, // IfcImpactProtectionDevice.CorrectTypeAssigned
    {676, 5883, 4470, 6114, 3141, 32424}, // IfcImpactProtectionDeviceType.CorrectPredefinedType
    {683, 5007, 5008, 6115, 5886, 32451}, // IfcIndexedPolyCurve.Consecutive
    {693, 5014, 4470, 5015, 3390, 19818}, // IfcInterceptor.CorrectPredefinedType
    {693, 5014, 4472, 5016, 5017, 19853}, // IfcInterceptor.CorrectTypeAssigned
    {694, 5018, 4470, 5019, 3141, 19877}, // IfcInterceptorType.CorrectPredefinedType
    {698, 5020, 5021, 5022, 5023, 19904}, // IfcIntersectionCurve.TwoPCurves
    {698, 5020, 5025, 5026, 5027, 19916}, // IfcIntersectionCurve.DistinctSurfaces
    {704, 3655, 4523, 5003, 5004, 19791}, // IfcIShapeProfileDef.ValidFlangeThickness
    {704, 3655, 4526, 3658, 3659, 3374}, // IfcIShapeProfileDef.ValidWebThickness
    {704, 3655, 5005, 3660, 3661, 3381}, // IfcIShapeProfileDef.ValidFilletRadius
    {706, 5028, 4470, 5029, 3390, 19941}, // IfcJunctionBox.CorrectPredefinedType
    {706, 5028, 4472, 5030, 5031, 19976}, // IfcJunctionBox.CorrectTypeAssigned
    {707, 5032, 4470, 5033, 3141, 20000}, // IfcJunctionBoxType.CorrectPredefinedType
    {716, 5037, 4470, 5038, 3390, 20050}, // IfcLaborResource.CorrectPredefinedType
    {717, 5039, 4470, 5040, 4726, 20085}, // IfcLaborResourceType.CorrectPredefinedType
    {720, 5041, 4470, 5042, 3390, 20112}, // IfcLamp.CorrectPredefinedType
    {720, 5041, 4472, 5043, 5044, 20147}, // IfcLamp.CorrectTypeAssigned
    {721, 5045, 4470, 5046, 3141, 20171}, // IfcLampType.CorrectPredefinedType
    {734, 5053, 4470, 5054, 3390, 20198}, // IfcLightFixture.CorrectPredefinedType
    {734, 5053, 4472, 5055, 5056, 20233}, // IfcLightFixture.CorrectTypeAssigned
    {735, 5057, 4470, 5058, 3141, 20257}, // IfcLightFixtureType.CorrectPredefinedType
    {744, 3673, 4548, 3674, 3675, 3480}, // IfcLine.SameDim
    {760, 5899, 4470, 6116, 3390, 32552}, // IfcLiquidTerminal.CorrectPredefinedType
    {760, 5899, 4472, 5901, 5902, 32587}, // IfcLiquidTerminal.CorrectTypeAssigned
    {761, 5903, 4470, 6117, 3141, 32611}, // IfcLiquidTerminalType.CorrectPredefinedType
    {764, 3677, 3087, 3678, 3679, 3491}, // IfcLocalPlacement.WR21
    {770, 3665, 5034, 5035, 5036, 20027}, // IfcLShapeProfileDef.ValidThickness
    {780, 5909, 4470, 6118, 3390, 32647}, // IfcMarineFacility.CorrectPredefinedType
    {793, 3688, 5070, 3689, 3690, 3506}, // IfcMaterialDefinitionRepresentation.OnlyStyledRepresentations
    {794, 3691, 5071, 5072, 5073, 20284}, // IfcMaterialLayer.NormalizedPriority
    {799, 5074, 5071, 5072, 5073, 20284}, // IfcMaterialProfile.NormalizedPriority
    {811, 5079, 4470, 5080, 3390, 20308}, // IfcMechanicalFastener.CorrectPredefinedType
    {811, 5079, 4472, 5081, 5082, 20343}, // IfcMechanicalFastener.CorrectTypeAssigned
    {812, 5083, 4470, 5084, 3141, 20367}, // IfcMechanicalFastenerType.CorrectPredefinedType
    {816, 5085, 4470, 5086, 3390, 20394}, // IfcMedicalDevice.CorrectPredefinedType
    {816, 5085, 4472, 5087, 5088, 20429}, // IfcMedicalDevice.CorrectTypeAssigned
    {817, 5089, 4470, 5090, 3141, 20453}, // IfcMedicalDeviceType.CorrectPredefinedType
    {819, 5091, 4470, 5092, 3390, 20480}, // IfcMember.CorrectPredefinedType
    {819, 5091, 4472, 5093, 5094, 20515}, // IfcMember.CorrectTypeAssigned
    {820, 5095, 4576, 4577, 4578, 15391}, // IfcMemberStandardCase.HasMaterialProfileSetUsage
    {821, 5096, 4470, 5097, 3141, 20539}, // IfcMemberType.CorrectPredefinedType
    {827, 5916, 4470, 6119, 3390, 32717}, // IfcMobileTelecommunicationsAppliance.CorrectPredefinedType
    {827, 5916, 4472, 5918, 5919, 32752}, // IfcMobileTelecommunicationsAppliance.CorrectTypeAssigned
    {828, 5920, 4470, 6120, 3141, 32776}, // IfcMobileTelecommunicationsApplianceType.CorrectPredefinedType
    {843, 5922, 4470, 6121, 3390, 32803}, // IfcMooringDevice.CorrectPredefinedType
    {843, 5922, 4472, 5924, 5925, 32838}, // IfcMooringDevice.CorrectTypeAssigned
    {844, 5926, 4470, 6122, 3141, 32862}, // IfcMooringDeviceType.CorrectPredefinedType
    {846, 5098, 4470, 5099, 3390, 20604}, // IfcMotorConnection.CorrectPredefinedType
    {846, 5098, 4472, 5100, 5101, 20639}, // IfcMotorConnection.CorrectTypeAssigned
    {847, 5102, 4470, 5103, 3141, 20663}, // IfcMotorConnectionType.CorrectPredefinedType
    {850, 3715, 3028, 3716, 3717, 3682}, // IfcNamedUnit.WR1
    {851, 5929, 4470, 6123, 3390, 32889}, // IfcNavigationElement.CorrectPredefinedType
    {851, 5929, 4472, 5931, 5932, 32924}, // IfcNavigationElement.CorrectTypeAssigned
    {852, 5933, 4470, 6124, 3141, 32948}, // IfcNavigationElementType.CorrectPredefinedType
    {858, 3718, 5105, 5106, 5107, 20690}, // IfcObject.UniquePropertySetNames
    {860, 3737, 3087, 3738, 3739, 3710}, // IfcObjective.WR21
    {866, 3740, 3150, 3741, 3560, 3737}, // IfcOccupant.WR31
    {869, 3742, 5122, 3743, 3744, 3756}, // IfcOffsetCurve2D.DimIs2D
    {870, 3745, 5122, 3746, 3747, 3765}, // IfcOffsetCurve3D.DimIs2D
    {873, 5936, 5937, 5938, 5939, 32975}, // IfcOpenCrossProfileDef.CorrectProfileType
    {873, 5936, 5940, 5941, 5942, 32986}, // IfcOpenCrossProfileDef.CorrespondingSlopeWidths
    {873, 5936, 5943, 5944, 5945, 32997}, // IfcOpenCrossProfileDef.CorrespondingTags
    {884, 3760, 5123, 3761, 3762, 3774}, // IfcOrientedEdge.EdgeElementNotOriented
    {886, 5124, 4470, 5125, 3390, 20707}, // IfcOutlet.CorrectPredefinedType
    {886, 5124, 4472, 5126, 5127, 20742}, // IfcOutlet.CorrectTypeAssigned
    {887, 5128, 4470, 5129, 3141, 20766}, // IfcOutletType.CorrectPredefinedType
    {889, 5131, 5132, 5133, 5134, 20793}, // IfcOwnerHistory.CorrectChangeAction
    {892, 3765, 4831, 3766, 3531, 3811}, // IfcPath.IsContinuous
    {896, 5135, 5122, 5136, 5137, 20848}, // IfcPcurve.DimIs2D
    {903, 3769, 5138, 5139, 5140, 20857}, // IfcPerson.IdentifiablePerson
    {903, 3769, 5141, 5142, 5143, 20877}, // IfcPerson.ValidSetOfNames
    {906, 3774, 4701, 3775, 3776, 3830}, // IfcPhysicalComplexQuantity.NoSelfReference
    {906, 3774, 4879, 5144, 5145, 20898}, // IfcPhysicalComplexQuantity.UniqueQuantityNames
    {910, 3780, 4470, 5146, 3390, 20905}, // IfcPile.CorrectPredefinedType
    {910, 3780, 4472, 5147, 5148, 20940}, // IfcPile.CorrectTypeAssigned
    {912, 5149, 4470, 5150, 3141, 20964}, // IfcPileType.CorrectPredefinedType
    {914, 5151, 4470, 5152, 3390, 20991}, // IfcPipeFitting.CorrectPredefinedType
    {914, 5151, 4472, 5153, 5154, 21026}, // IfcPipeFitting.CorrectTypeAssigned
    {915, 3782, 4470, 3783, 3141, 3876}, // IfcPipeFittingType.CorrectPredefinedType
    {917, 5155, 4470, 5156, 3390, 21050}, // IfcPipeSegment.CorrectPredefinedType
    {917, 5155, 4472, 5157, 5158, 21085}, // IfcPipeSegment.CorrectTypeAssigned
    {918, 3784, 4470, 3785, 3141, 3903}, // IfcPipeSegmentType.CorrectPredefinedType
    {920, 3786, 5159, 3787, 3788, 3930}, // IfcPixelTexture.MinPixelInS
    {920, 3786, 5160, 3789, 3790, 3937}, // IfcPixelTexture.MinPixelInT
    {920, 3786, 5161, 3791, 3792, 3944}, // IfcPixelTexture.NumberOfColours
    {920, 3786, 5162, 3794, 3795, 3960}, // IfcPixelTexture.SizeOfPixelList
    {920, 3786, 5163, 5164, 5165, 21109}, // IfcPixelTexture.PixelAsByteAndSameLength
    {928, 5166, 4470, 5167, 3390, 21151}, // IfcPlate.CorrectPredefinedType
    {928, 5166, 4472, 5168, 5169, 21186}, // IfcPlate.CorrectTypeAssigned
    {929, 5170, 5171, 4322, 4323, 6965}, // IfcPlateStandardCase.HasMaterialLayerSetUsage
    {930, 5172, 4470, 5173, 3141, 21210}, // IfcPlateType.CorrectPredefinedType
    {937, 3799, 5175, 3800, 3801, 4011}, // IfcPolygonalBoundedHalfSpace.BoundaryDim
    {937, 3799, 5176, 3802, 3803, 4020}, // IfcPolygonalBoundedHalfSpace.BoundaryType
    {939, 3804, 4548, 3805, 3806, 4039}, // IfcPolyline.SameDim
    {940, 3796, 5174, 3797, 3798, 3984}, // IfcPolyLoop.AllPointsSameDim
    {943, 5688, 4993, 3632, 3633, 3267}, // IfcPositioningElement.HasPlacement
    {948, 3812, 3028, 3813, 3814, 4066}, // IfcPostalAddress.WR1
    {963, 5178, 5179, 5180, 5181, 21237}, // IfcPresentationLayerAssignment.ApplicableItems
    {964, 5182, 5183, 5691, 5185, 36217}, // IfcPresentationLayerWithStyle.ApplicableOnlyToItems
    {969, 3853, 5186, 3266, 3267, 1146}, // IfcProcedure.HasName
    {969, 3853, 4470, 5187, 3390, 21308}, // IfcProcedure.CorrectPredefinedType
    {970, 5188, 4470, 5189, 4902, 21343}, // IfcProcedureType.CorrectPredefinedType
    {974, 3867, 5190, 5191, 5192, 21370}, // IfcProduct.PlacementForShapeRepresentation
    {975, 3872, 5193, 3873, 3874, 4340}, // IfcProductDefinitionShape.OnlyShapeModel
    {983, 3880, 5186, 3266, 3267, 1146}, // IfcProject.HasName
    {983, 3880, 5197, 5198, 5199, 21420}, // IfcProject.CorrectContext
    {983, 3880, 5200, 3883, 3884, 4379}, // IfcProject.NoDecomposition
    {984, 5201, 5202, 5203, 5204, 21453}, // IfcProjectedCRS.IsLengthUnit
    {996, 3892, 5213, 3893, 3894, 4391}, // IfcPropertyBoundedValue.SameUnitUpperLower
    {996, 3892, 5214, 5215, 5216, 21471}, // IfcPropertyBoundedValue.SameUnitUpperSet
    {996, 3892, 5217, 5218, 5219, 21498}, // IfcPropertyBoundedValue.SameUnitLowerSet
    {999, 3898, 4701, 3899, 3900, 4431}, // IfcPropertyDependencyRelationship.NoSelfReference
    {1000, 3901, 3087, 5220, 5221, 21525}, // IfcPropertyEnumeratedValue.WR21
    {1001, 3904, 3157, 3905, 3906, 4470}, // IfcPropertyEnumeration.WR01
    {1002, 3908, 3150, 3909, 3910, 4498}, // IfcPropertyListValue.WR31
    {1004, 3911, 5222, 3266, 3267, 1146}, // IfcPropertySet.ExistsName
    {1004, 3911, 4698, 3329, 3330, 1571}, // IfcPropertySet.UniquePropertyNames
    {1008, 5227, 5222, 3266, 3267, 1146}, // IfcPropertySetTemplate.ExistsName
    {1008, 5227, 4698, 4699, 4700, 16581}, // IfcPropertySetTemplate.UniquePropertyNames
    {1012, 3917, 3087, 5230, 5231, 21565}, // IfcPropertyTableValue.WR21
    {1012, 3917, 3328, 5232, 5233, 21592}, // IfcPropertyTableValue.WR22
    {1012, 3917, 3599, 5234, 5235, 21627}, // IfcPropertyTableValue.WR23
    {1015, 5241, 4470, 5242, 3390, 21662}, // IfcProtectiveDevice.CorrectPredefinedType
    {1015, 5241, 4472, 5243, 5244, 21697}, // IfcProtectiveDevice.CorrectTypeAssigned
    {1016, 5245, 4470, 5246, 3390, 21721}, // IfcProtectiveDeviceTrippingUnit.CorrectPredefinedType
    {1016, 5245, 4472, 5247, 5248, 21756}, // IfcProtectiveDeviceTrippingUnit.CorrectTypeAssigned
    {1017, 5249, 4470, 5250, 3141, 21780}, // IfcProtectiveDeviceTrippingUnitType.CorrectPredefinedType
    {1019, 5251, 4470, 5252, 3141, 21807}, // IfcProtectiveDeviceType.CorrectPredefinedType
    {1021, 3924, 3028, 3266, 3267, 1146}, // IfcProxy.WR1
    {1022, 5253, 4470, 5254, 3390, 21834}, // IfcPump.CorrectPredefinedType
    {1022, 5253, 4472, 5255, 5256, 21869}, // IfcPump.CorrectTypeAssigned
    {1023, 3925, 4470, 3926, 3141, 4591}, // IfcPumpType.CorrectPredefinedType
    {1025, 3928, 3087, 3929, 3930, 4618}, // IfcQuantityArea.WR21
    {1025, 3928, 3328, 3931, 3932, 4642}, // IfcQuantityArea.WR22
    {1026, 3933, 3087, 3934, 3935, 4649}, // IfcQuantityCount.WR21
    {1027, 3937, 3087, 3938, 3939, 4656}, // IfcQuantityLength.WR21
    {1027, 3937, 3328, 3940, 3941, 4680}, // IfcQuantityLength.WR22
    {1030, 3943, 3087, 3944, 3945, 4687}, // IfcQuantityTime.WR21
    {1030, 3943, 3328, 3946, 3947, 4711}, // IfcQuantityTime.WR22
    {1031, 3949, 3087, 3950, 3951, 4718}, // IfcQuantityVolume.WR21
    {1031, 3949, 3328, 3952, 3953, 4742}, // IfcQuantityVolume.WR22
    {1032, 3955, 3087, 3956, 3957, 4749}, // IfcQuantityWeight.WR21
    {1032, 3955, 3328, 3958, 3959, 4773}, // IfcQuantityWeight.WR22
    {1035, 5980, 4470, 6127, 3390, 33333}, // IfcRail.CorrectPredefinedType
    {1035, 5980, 4472, 5982, 5983, 33368}, // IfcRail.CorrectTypeAssigned
    {1036, 3960, 4470, 3961, 3390, 4780}, // IfcRailing.CorrectPredefinedType
    {1036, 3960, 4472, 5257, 5258, 21893}, // IfcRailing.CorrectTypeAssigned
    {1037, 5259, 4470, 5260, 3141, 21917}, // IfcRailingType.CorrectPredefinedType
    {1039, 5984, 4470, 6128, 3141, 33392}, // IfcRailType.CorrectPredefinedType
    {1045, 3962, 4470, 5261, 3390, 21944}, // IfcRamp.CorrectPredefinedType
    {1045, 3962, 4472, 5262, 5263, 21979}, // IfcRamp.CorrectTypeAssigned
    {1046, 5264, 4470, 5265, 3390, 22003}, // IfcRampFlight.CorrectPredefinedType
    {1046, 5264, 4472, 5266, 5267, 22038}, // IfcRampFlight.CorrectTypeAssigned
    {1047, 5268, 4470, 5269, 3141, 22062}, // IfcRampFlightType.CorrectPredefinedType
    {1049, 5270, 4470, 5271, 3141, 22089}, // IfcRampType.CorrectPredefinedType
    {1053, 5272, 5273, 3966, 3967, 4851}, // IfcRationalBSplineCurveWithKnots.SameNumOfWeightsAndPoints
    {1053, 5272, 5274, 3969, 3970, 4865}, // IfcRationalBSplineCurveWithKnots.WeightsGreaterZero
    {1054, 5275, 5276, 5277, 5278, 22135}, // IfcRationalBSplineSurfaceWithKnots.CorrespondingWeightsDataLists
    {1054, 5275, 5280, 5281, 3970, 22170}, // IfcRationalBSplineSurfaceWithKnots.WeightValuesGreaterZero
    {1057, 3971, 4628, 3972, 3973, 4890}, // IfcRectangleHollowProfileDef.ValidWallThickness
    {1057, 3971, 5282, 3976, 3977, 4952}, // IfcRectangleHollowProfileDef.ValidInnerRadius
    {1057, 3971, 5283, 3974, 3975, 4917}, // IfcRectangleHollowProfileDef.ValidOuterRadius
    {1060, 3978, 5284, 3979, 3980, 4993}, // IfcRectangularTrimmedSurface.U1AndU2Different
    {1060, 3978, 5285, 3981, 3982, 5000}, // IfcRectangularTrimmedSurface.V1AndV2Different
    {1060, 3978, 5286, 3983, 3984, 5007}, // IfcRectangularTrimmedSurface.UsenseCompatible
    {1060, 3978, 5287, 3985, 3986, 5039}, // IfcRectangularTrimmedSurface.VsenseCompatible
    {1069, 5993, 4470, 6129, 3390, 33489}, // IfcReinforcedSoil.CorrectPredefinedType
    {1073, 3987, 4470, 5288, 3390, 22196}, // IfcReinforcingBar.CorrectPredefinedType
    {1073, 3987, 4472, 5289, 5290, 22231}, // IfcReinforcingBar.CorrectTypeAssigned
    {1076, 5291, 4470, 5292, 3141, 22255}, // IfcReinforcingBarType.CorrectPredefinedType
    {1076, 5291, 5293, 5294, 5295, 22282}, // IfcReinforcingBarType.BendingShapeCodeProvided
    {1080, 5296, 4470, 5297, 3390, 22296}, // IfcReinforcingMesh.CorrectPredefinedType
    {1080, 5296, 4472, 5298, 5299, 22331}, // IfcReinforcingMesh.CorrectTypeAssigned
    {1081, 5300, 4470, 5301, 3141, 22355}, // IfcReinforcingMeshType.CorrectPredefinedType
    {1081, 5300, 5293, 5294, 5295, 22282}, // IfcReinforcingMeshType.BendingShapeCodeProvided
    {1084, 5302, 4701, 4034, 4035, 5369}, // IfcRelAggregates.NoSelfReference
    {1085, 3991, 3028, 3992, 3993, 5076}, // IfcRelAssigns.WR1
    {1087, 4001, 4701, 4002, 4003, 5118}, // IfcRelAssignsToActor.NoSelfReference
    {1088, 4004, 4701, 4005, 4006, 5141}, // IfcRelAssignsToControl.NoSelfReference
    {1089, 4007, 4701, 4008, 4009, 5164}, // IfcRelAssignsToGroup.NoSelfReference
    {1091, 4010, 4701, 4011, 4012, 5187}, // IfcRelAssignsToProcess.NoSelfReference
    {1092, 4013, 4701, 4014, 4015, 5210}, // IfcRelAssignsToProduct.NoSelfReference
    {1094, 4016, 4701, 4017, 4018, 5233}, // IfcRelAssignsToResource.NoSelfReference
    {1103, 4022, 5303, 4023, 4024, 5283}, // IfcRelAssociatesMaterial.NoVoidElement
    {1103, 4022, 5304, 5305, 5306, 22382}, // IfcRelAssociatesMaterial.AllowedElements
    {1109, 4027, 4701, 4028, 4029, 5343}, // IfcRelConnectsElements.NoSelfReference
    {1110, 5307, 5308, 5309, 5310, 22429}, // IfcRelConnectsPathElements.NormalizedRelatingPriorities
    {1110, 5307, 5311, 5312, 5313, 22470}, // IfcRelConnectsPathElements.NormalizedRelatedPriorities
    {1111, 5314, 4701, 5315, 5316, 22511}, // IfcRelConnectsPorts.NoSelfReference
    {1118, 4030, 3150, 4031, 4032, 5350}, // IfcRelContainedInSpatialStructure.WR31
    {1121, 5317, 4701, 5318, 5319, 22518}, // IfcRelDeclares.NoSelfReference
    {1125, 5320, 5321, 5322, 5323, 22538}, // IfcRelDefinesByProperties.NoRelatedTypeObject
    {1131, 5324, 4701, 4028, 4029, 5343}, // IfcRelInterferesElements.NoSelfReference
    {1132, 4036, 4701, 4034, 4035, 5369}, // IfcRelNests.NoSelfReference
    {1135, 5732, 4701, 5733, 5734, 31290}, // IfcRelPositions.NoSelfReference
    {1137, 4041, 5326, 5327, 5328, 22560}, // IfcRelReferencedInSpatialStructure.AllowedRelatedElements
    {1139, 4047, 5329, 4048, 4049, 5464}, // IfcRelSequence.AvoidInconsistentSequence
    {1139, 4047, 5330, 5331, 5332, 22587}, // IfcRelSequence.CorrectSequenceType
    {1141, 4053, 5333, 5334, 5335, 22611}, // IfcRelSpaceBoundary.CorrectPhysOrVirt
    {1145, 5342, 5343, 5344, 5345, 22659}, // IfcReparametrisedCompositeCurveSegment.PositiveLengthParameter
    {1149, 4069, 5349, 5350, 5351, 22666}, // IfcRepresentationMap.ApplicableMappedRepr
    {1158, 4075, 5352, 4076, 4077, 5527}, // IfcRevolvedAreaSolid.AxisStartInXY
    {1158, 4075, 5353, 4078, 4079, 5541}, // IfcRevolvedAreaSolid.AxisDirectionInXY
    {1159, 5354, 4914, 4915, 4916, 18859}, // IfcRevolvedAreaSolidTapered.CorrectProfileAssignment
    {1170, 4080, 4470, 5355, 3390, 22672}, // IfcRoof.CorrectPredefinedType
    {1170, 4080, 4472, 5356, 5357, 22707}, // IfcRoof.CorrectTypeAssigned
    {1171, 5358, 4470, 5359, 3141, 22731}, // IfcRoofType.CorrectPredefinedType
    {1179, 4083, 5360, 4084, 4085, 5573}, // IfcRoundedRectangleProfileDef.ValidRadius
    {1180, 5361, 4470, 5362, 3390, 22758}, // IfcSanitaryTerminal.CorrectPredefinedType
    {1180, 5361, 4472, 5363, 5364, 22793}, // IfcSanitaryTerminal.CorrectTypeAssigned
    {1181, 5365, 4470, 5366, 3141, 22817}, // IfcSanitaryTerminalType.CorrectPredefinedType
    {1185, 5367, 5021, 5022, 5023, 19904}, // IfcSeamCurve.TwoPCurves
    {1185, 5367, 4706, 5368, 5369, 22844}, // IfcSeamCurve.SameSurface
    {1189, 5692, 5693, 4228, 4229, 6357}, // IfcSectionedSolid.DirectrixIs3D
    {1189, 5692, 5371, 4093, 4094, 5618}, // IfcSectionedSolid.ConsistentProfileTypes
    {1189, 5692, 5694, 5695, 5696, 30779}, // IfcSectionedSolid.SectionsSameType
    {1190, 5697, 5370, 4091, 4092, 5607}, // IfcSectionedSolidHorizontal.CorrespondingSectionPositions
    {1190, 5697, 5698, 5699, 5700, 30806}, // IfcSectionedSolidHorizontal.NoLongitudinalOffsets
    {1191, 4090, 5370, 4091, 4092, 5607}, // IfcSectionedSpine.CorrespondingSectionPositions
    {1191, 4090, 5371, 4093, 4094, 5618}, // IfcSectionedSpine.ConsistentProfileTypes
    {1191, 4090, 5372, 4095, 4096, 5645}, // IfcSectionedSpine.SpineCurveDim
    {1200, 5373, 4470, 5374, 3390, 22869}, // IfcSensor.CorrectPredefinedType
    {1200, 5373, 4472, 5375, 5376, 22904}, // IfcSensor.CorrectTypeAssigned
    {1201, 5377, 4470, 5378, 3141, 22928}, // IfcSensorType.CorrectPredefinedType
    {1209, 5379, 4470, 5380, 3390, 22955}, // IfcShadingDevice.CorrectPredefinedType
    {1209, 5379, 4472, 5381, 5382, 22990}, // IfcShadingDevice.CorrectTypeAssigned
    {1210, 5383, 4470, 5384, 3141, 23014}, // IfcShadingDeviceType.CorrectPredefinedType
    {1213, 4099, 3198, 4100, 4101, 5673}, // IfcShapeModel.WR11
    {1214, 4104, 5197, 4105, 4106, 5704}, // IfcShapeRepresentation.CorrectContext
    {1214, 4104, 5385, 4107, 4108, 5713}, // IfcShapeRepresentation.NoTopologicalItem
    {1214, 4104, 5386, 4109, 4110, 5756}, // IfcShapeRepresentation.HasRepresentationType
    {1214, 4104, 5387, 5388, 5389, 23041}, // IfcShapeRepresentation.HasRepresentationIdentifier
    {1214, 4104, 5390, 4112, 4113, 5765}, // IfcShapeRepresentation.CorrectItemsForType
    {1218, 6026, 4470, 6130, 3390, 33784}, // IfcSign.CorrectPredefinedType
    {1218, 6026, 4472, 6028, 6029, 33819}, // IfcSign.CorrectTypeAssigned
    {1219, 6032, 4470, 6132, 3390, 33870}, // IfcSignal.CorrectPredefinedType
    {1219, 6032, 4472, 6034, 6035, 33905}, // IfcSignal.CorrectTypeAssigned
    {1220, 6036, 4470, 6133, 3141, 33929}, // IfcSignalType.CorrectPredefinedType
    {1222, 6030, 4470, 6131, 3141, 33843}, // IfcSignType.CorrectPredefinedType
    {1235, 4114, 4470, 4115, 3390, 5780}, // IfcSlab.CorrectPredefinedType
    {1235, 4114, 4472, 5391, 5392, 23050}, // IfcSlab.CorrectTypeAssigned
    {1236, 5393, 5394, 5395, 5396, 23074}, // IfcSlabElementedCase.HasDecomposition
    {1237, 5397, 5398, 4322, 4323, 6965}, // IfcSlabStandardCase.HasMaterialLayerSetusage
    {1238, 5399, 4470, 5400, 3141, 23086}, // IfcSlabType.CorrectPredefinedType
    {1241, 5401, 4470, 5402, 3390, 23113}, // IfcSolarDevice.CorrectPredefinedType
    {1241, 5401, 4472, 5403, 5404, 23148}, // IfcSolarDevice.CorrectTypeAssigned
    {1242, 5405, 4470, 5406, 3141, 23172}, // IfcSolarDeviceType.CorrectPredefinedType
    {1255, 4116, 4470, 5407, 3390, 23199}, // IfcSpace.CorrectPredefinedType
    {1255, 4116, 4472, 5408, 5409, 23234}, // IfcSpace.CorrectTypeAssigned
    {1257, 5411, 4470, 5412, 3390, 23258}, // IfcSpaceHeater.CorrectPredefinedType
    {1257, 5411, 4472, 5413, 5414, 23293}, // IfcSpaceHeater.CorrectTypeAssigned
    {1258, 4120, 4470, 4121, 3141, 5815}, // IfcSpaceHeaterType.CorrectPredefinedType
    {1262, 5415, 4470, 5416, 3141, 23317}, // IfcSpaceType.CorrectPredefinedType
    {1267, 4127, 3238, 4128, 4129, 5842}, // IfcSpatialStructureElement.WR41
    {1269, 5418, 4470, 5419, 3390, 23344}, // IfcSpatialZone.CorrectPredefinedType
    {1269, 5418, 4472, 5420, 5421, 23379}, // IfcSpatialZone.CorrectTypeAssigned
    {1270, 5422, 4470, 5423, 3141, 23403}, // IfcSpatialZoneType.CorrectPredefinedType
    {1279, 5424, 4470, 5425, 3390, 23430}, // IfcStackTerminal.CorrectPredefinedType
    {1279, 5424, 4472, 5426, 5427, 23465}, // IfcStackTerminal.CorrectTypeAssigned
    {1280, 5428, 4470, 5429, 3141, 23489}, // IfcStackTerminalType.CorrectPredefinedType
    {1282, 4136, 4470, 5430, 3390, 23516}, // IfcStair.CorrectPredefinedType
    {1282, 4136, 4472, 5431, 5432, 23551}, // IfcStair.CorrectTypeAssigned
    {1283, 5433, 4470, 5434, 3390, 23575}, // IfcStairFlight.CorrectPredefinedType
    {1283, 5433, 4472, 5435, 5436, 23610}, // IfcStairFlight.CorrectTypeAssigned
    {1284, 5437, 4470, 5438, 3141, 23634}, // IfcStairFlightType.CorrectPredefinedType
    {1286, 5439, 4470, 5440, 3141, 23661}, // IfcStairType.CorrectPredefinedType
    {1293, 5442, 5443, 5444, 3560, 23688}, // IfcStructuralAnalysisModel.HasObjectType
    {1296, 5447, 5448, 5449, 5450, 23706}, // IfcStructuralCurveAction.ProjectedIsGlobal
    {1296, 5447, 5443, 5451, 3560, 23734}, // IfcStructuralCurveAction.HasObjectType
    {1296, 5447, 5453, 5454, 5455, 23752}, // IfcStructuralCurveAction.SuitablePredefinedType
    {1299, 5456, 5443, 5457, 3560, 23760}, // IfcStructuralCurveMember.HasObjectType
    {1302, 5458, 5443, 5451, 3560, 23734}, // IfcStructuralCurveReaction.HasObjectType
    {1302, 5458, 5453, 5461, 5462, 23778}, // IfcStructuralCurveReaction.SuitablePredefinedType
    {1305, 4146, 5463, 4147, 4148, 5897}, // IfcStructuralLinearAction.SuitableLoadType
    {1305, 4146, 5465, 5466, 5467, 23795}, // IfcStructuralLinearAction.ConstPredefinedType
    {1308, 5469, 5470, 5471, 5472, 23806}, // IfcStructuralLoadCase.IsLoadCasePredefinedType
    {1309, 5473, 5474, 5475, 5476, 23817}, // IfcStructuralLoadConfiguration.ValidListSize
    {1310, 4150, 5443, 5477, 5478, 23836}, // IfcStructuralLoadGroup.HasObjectType
    {1321, 4160, 5463, 4161, 4162, 5932}, // IfcStructuralPlanarAction.SuitableLoadType
    {1321, 4160, 5465, 5479, 5467, 23872}, // IfcStructuralPlanarAction.ConstPredefinedType
    {1323, 4163, 5463, 4164, 4165, 5954}, // IfcStructuralPointAction.SuitableLoadType
    {1325, 4166, 5463, 4164, 4165, 5954}, // IfcStructuralPointReaction.SuitableLoadType
    {1328, 4175, 5443, 5480, 5481, 23883}, // IfcStructuralResultGroup.HasObjectType
    {1330, 5482, 5448, 5449, 5450, 23706}, // IfcStructuralSurfaceAction.ProjectedIsGlobal
    {1330, 5482, 5443, 5483, 3560, 23901}, // IfcStructuralSurfaceAction.HasObjectType
    {1333, 5484, 5443, 5485, 3560, 23919}, // IfcStructuralSurfaceMember.HasObjectType
    {1336, 5486, 5487, 5483, 3560, 23901}, // IfcStructuralSurfaceReaction.HasPredefinedType
    {1340, 4200, 5488, 4203, 4204, 6188}, // IfcStyledItem.ApplicableItem
    {1341, 4205, 5489, 4206, 4207, 6195}, // IfcStyledRepresentation.OnlyStyledItems
    {1343, 5490, 4470, 5491, 3390, 23937}, // IfcSubContractResource.CorrectPredefinedType
    {1344, 5492, 4470, 5493, 4726, 23972}, // IfcSubContractResourceType.CorrectPredefinedType
    {1348, 5494, 5495, 5496, 5497, 23999}, // IfcSurfaceCurve.CurveIs3D
    {1348, 5494, 5498, 5499, 5500, 24008}, // IfcSurfaceCurve.CurveIsNotPcurve
    {1350, 5502, 5443, 5503, 3390, 24015}, // IfcSurfaceFeature.HasObjectType
    {1352, 4208, 5504, 4209, 4210, 6218}, // IfcSurfaceOfLinearExtrusion.DepthGreaterZero
    {1355, 5505, 5506, 5507, 5508, 24041}, // IfcSurfaceReinforcementArea.SurfaceAndOrShearAreaSpecified
    {1355, 5505, 5509, 5510, 5511, 24061}, // IfcSurfaceReinforcementArea.NonnegativeArea1
    {1355, 5505, 5512, 5513, 5514, 24111}, // IfcSurfaceReinforcementArea.NonnegativeArea2
    {1355, 5505, 5515, 5516, 5517, 24161}, // IfcSurfaceReinforcementArea.NonnegativeArea3
    {1357, 4211, 5518, 4212, 4213, 6252}, // IfcSurfaceStyle.MaxOneShading
    {1357, 4211, 5519, 4214, 4215, 6271}, // IfcSurfaceStyle.MaxOneLighting
    {1357, 4211, 5520, 4216, 4217, 6290}, // IfcSurfaceStyle.MaxOneRefraction
    {1357, 4211, 5521, 4219, 4220, 6309}, // IfcSurfaceStyle.MaxOneTextures
    {1357, 4211, 5522, 4222, 4223, 6328}, // IfcSurfaceStyle.MaxOneExtDefined
    {1366, 4224, 5528, 4225, 4226, 6347}, // IfcSweptAreaSolid.SweptAreaType
    {1367, 4227, 5529, 4228, 4229, 6357}, // IfcSweptDiskSolid.DirectrixDim
    {1367, 4227, 5530, 4230, 4231, 6366}, // IfcSweptDiskSolid.InnerRadiusSize
    {1367, 4227, 4952, 4953, 4954, 19185}, // IfcSweptDiskSolid.DirectrixBounded
    {1368, 5531, 5532, 5533, 5534, 24176}, // IfcSweptDiskSolidPolygonal.CorrectRadii
    {1368, 5531, 5535, 5536, 5537, 24194}, // IfcSweptDiskSolidPolygonal.DirectrixIsPolyline
    {1369, 4232, 5538, 4235, 4236, 6388}, // IfcSweptSurface.SweptCurveType
    {1370, 5539, 4470, 5540, 3390, 24226}, // IfcSwitchingDevice.CorrectPredefinedType
    {1370, 5539, 4472, 5541, 5542, 24261}, // IfcSwitchingDevice.CorrectTypeAssigned
    {1371, 5543, 4470, 5544, 3141, 24285}, // IfcSwitchingDeviceType.CorrectPredefinedType
    {1376, 5545, 4470, 5546, 3390, 24312}, // IfcSystemFurnitureElement.CorrectPredefinedType
    {1376, 5545, 4472, 5547, 5548, 24347}, // IfcSystemFurnitureElement.CorrectTypeAssigned
    {1377, 5549, 4470, 5550, 3141, 24371}, // IfcSystemFurnitureElementType.CorrectPredefinedType
    {1379, 4245, 3028, 4246, 4247, 6412}, // IfcTable.WR1
    {1379, 4245, 3034, 4248, 4249, 6443}, // IfcTable.WR2
    {1382, 5551, 4470, 5552, 3390, 24398}, // IfcTank.CorrectPredefinedType
    {1382, 5551, 4472, 5553, 5554, 24433}, // IfcTank.CorrectTypeAssigned
    {1383, 4253, 4470, 4254, 3141, 6503}, // IfcTankType.CorrectPredefinedType
    {1385, 4255, 5186, 3266, 3267, 1146}, // IfcTask.HasName
    {1385, 4255, 4470, 5555, 3390, 24457}, // IfcTask.CorrectPredefinedType
    {1389, 5556, 4470, 5557, 4902, 24492}, // IfcTaskType.CorrectPredefinedType
    {1391, 4256, 5558, 5559, 5560, 24519}, // IfcTelecomAddress.MinimumDataProvided
    {1394, 4259, 4470, 5561, 3390, 24560}, // IfcTendon.CorrectPredefinedType
    {1394, 4259, 4472, 5562, 5563, 24595}, // IfcTendon.CorrectTypeAssigned
    {1395, 5564, 4470, 5565, 3390, 24619}, // IfcTendonAnchor.CorrectPredefinedType
    {1395, 5564, 4472, 5566, 5567, 24654}, // IfcTendonAnchor.CorrectTypeAssigned
    {1396, 5568, 4470, 5569, 3141, 24678}, // IfcTendonAnchorType.CorrectPredefinedType
    {1398, 5735, 4470, 5736, 3390, 31310}, // IfcTendonConduit.CorrectPredefinedType
    {1398, 5735, 4472, 5737, 5738, 31345}, // IfcTendonConduit.CorrectTypeAssigned
    {1399, 5739, 4470, 5740, 3141, 31369}, // IfcTendonConduitType.CorrectPredefinedType
    {1401, 5570, 4470, 5571, 3141, 24705}, // IfcTendonType.CorrectPredefinedType
    {1412, 4261, 3150, 4262, 4263, 6591}, // IfcTextLiteralWithExtent.WR31
    {1415, 4264, 5577, 4265, 4266, 6598}, // IfcTextStyleFontModel.MeasureOfFontSize
    {1450, 4280, 3087, 4281, 4282, 6664}, // IfcTopologyRepresentation.WR21
    {1450, 4280, 3328, 4109, 4110, 5756}, // IfcTopologyRepresentation.WR22
    {1450, 4280, 3599, 4284, 4113, 6687}, // IfcTopologyRepresentation.WR23
    {1451, 5579, 5580, 5581, 5582, 24732}, // IfcToroidalSurface.MajorLargerMinor
    {1453, 6060, 4470, 6134, 3390, 34087}, // IfcTrackElement.CorrectPredefinedType
    {1453, 6060, 4472, 6062, 6063, 34122}, // IfcTrackElement.CorrectTypeAssigned
    {1454, 6064, 4470, 6135, 3141, 34146}, // IfcTrackElementType.CorrectPredefinedType
    {1456, 5583, 4470, 5584, 3390, 24739}, // IfcTransformer.CorrectPredefinedType
    {1456, 5583, 4472, 5586, 5587, 36251}, // IfcTransformer.CorrectTypeAssigned
    {1457, 5588, 4470, 5589, 3141, 24801}, // IfcTransformerType.CorrectPredefinedType
    {1465, 5590, 4470, 6137, 3390, 36278}, // IfcTransportElement.CorrectPredefinedType
    {1465, 5590, 4472, 5592, 5593, 24863}, // IfcTransportElement.CorrectTypeAssigned
    {1468, 5594, 4470, 6138, 3141, 36331}, // IfcTransportElementType.CorrectPredefinedType
    {1473, 5703, 5704, 5705, 5706, 30854}, // IfcTriangulatedIrregularNetwork.NotClosed
    {1474, 4285, 5596, 4286, 4287, 6702}, // IfcTrimmedCurve.Trim1ValuesConsistent
    {1474, 4285, 5597, 4288, 4289, 6729}, // IfcTrimmedCurve.Trim2ValuesConsistent
    {1474, 4285, 5598, 4291, 4292, 6756}, // IfcTrimmedCurve.NoTrimOfBoundedCurves
    {1477, 4240, 4523, 4241, 4242, 6398}, // IfcTShapeProfileDef.ValidFlangeThickness
    {1477, 4240, 4526, 4243, 4244, 6405}, // IfcTShapeProfileDef.ValidWebThickness
    {1478, 5599, 4470, 5600, 3390, 24920}, // IfcTubeBundle.CorrectPredefinedType
    {1478, 5599, 4472, 5601, 5602, 24955}, // IfcTubeBundle.CorrectTypeAssigned
    {1479, 4293, 4470, 4294, 3141, 6763}, // IfcTubeBundleType.CorrectPredefinedType
    {1486, 4295, 5603, 3266, 3267, 1146}, // IfcTypeObject.NameRequired
    {1486, 4295, 5105, 5605, 5606, 24979}, // IfcTypeObject.UniquePropertySetNames
    {1488, 4298, 5609, 5610, 5611, 24994}, // IfcTypeProduct.ApplicableOccurrence
    {1493, 5613, 4470, 5614, 3390, 25036}, // IfcUnitaryControlElement.CorrectPredefinedType
    {1493, 5613, 4472, 5615, 5616, 25071}, // IfcUnitaryControlElement.CorrectTypeAssigned
    {1494, 5617, 4470, 5618, 3141, 25095}, // IfcUnitaryControlElementType.CorrectPredefinedType
    {1496, 5619, 4470, 5620, 3390, 25122}, // IfcUnitaryEquipment.CorrectPredefinedType
    {1496, 5619, 4472, 5621, 5622, 25157}, // IfcUnitaryEquipment.CorrectTypeAssigned
    {1497, 4308, 4470, 4309, 3141, 6849}, // IfcUnitaryEquipmentType.CorrectPredefinedType
    {1499, 4305, 3157, 4306, 4307, 6842}, // IfcUnitAssignment.WR01
    {1502, 4301, 4523, 4302, 4303, 6832}, // IfcUShapeProfileDef.ValidFlangeThickness
    {1502, 4301, 4526, 4243, 4244, 6405}, // IfcUShapeProfileDef.ValidWebThickness
    {1504, 5623, 4470, 5624, 3390, 25181}, // IfcValve.CorrectPredefinedType
    {1504, 5623, 4472, 5625, 5626, 25216}, // IfcValve.CorrectTypeAssigned
    {1505, 4310, 4470, 4311, 3141, 6876}, // IfcValveType.CorrectPredefinedType
    {1508, 4312, 5627, 4313, 4314, 6903}, // IfcVector.MagGreaterOrEqualZero
    {1518, 5742, 4470, 5743, 3390, 31423}, // IfcVibrationDamper.CorrectPredefinedType
    {1518, 5742, 4472, 5744, 5745, 31458}, // IfcVibrationDamper.CorrectTypeAssigned
    {1519, 5746, 4470, 5747, 3141, 31482}, // IfcVibrationDamperType.CorrectPredefinedType
    {1521, 5628, 4470, 5629, 3390, 25240}, // IfcVibrationIsolator.CorrectPredefinedType
    {1521, 5628, 4472, 5630, 5631, 25275}, // IfcVibrationIsolator.CorrectTypeAssigned
    {1522, 4315, 4470, 4316, 3141, 6916}, // IfcVibrationIsolatorType.CorrectPredefinedType
    {1528, 5632, 5443, 5633, 3390, 25299}, // IfcVoidingFeature.HasObjectType
    {1535, 4317, 4470, 5634, 3390, 25325}, // IfcWall.CorrectPredefinedType
    {1535, 4317, 4472, 5635, 5636, 25360}, // IfcWall.CorrectTypeAssigned
    {1536, 5637, 5394, 5395, 5396, 23074}, // IfcWallElementedCase.HasDecomposition
    {1537, 4321, 5171, 4322, 4323, 6965}, // IfcWallStandardCase.HasMaterialLayerSetUsage
    {1538, 5638, 4470, 5639, 3141, 25384}, // IfcWallType.CorrectPredefinedType
    {1543, 5640, 4470, 5641, 3390, 25411}, // IfcWasteTerminal.CorrectPredefinedType
    {1543, 5640, 4472, 5642, 5643, 25446}, // IfcWasteTerminal.CorrectTypeAssigned
    {1544, 5644, 4470, 5645, 3141, 25470}, // IfcWasteTerminalType.CorrectPredefinedType
    {1550, 5646, 4805, 5647, 5648, 25497}, // IfcWindow.CorrectStyleAssigned
    {1551, 4325, 3150, 4808, 4809, 17636}, // IfcWindowLiningProperties.WR31
    {1551, 4325, 3478, 4326, 4327, 6996}, // IfcWindowLiningProperties.WR32
    {1551, 4325, 3481, 4328, 4329, 7011}, // IfcWindowLiningProperties.WR33
    {1551, 4325, 3484, 5649, 5650, 25521}, // IfcWindowLiningProperties.WR34
    {1554, 5651, 4814, 5649, 5650, 25521}, // IfcWindowPanelProperties.ApplicableToType
    {1559, 5652, 4470, 5653, 3141, 25559}, // IfcWindowType.CorrectPredefinedType
    {1562, 5654, 4470, 5655, 3390, 25586}, // IfcWorkCalendar.CorrectPredefinedType
    {1566, 5656, 4470, 5657, 3390, 25621}, // IfcWorkPlan.CorrectPredefinedType
    {1568, 5658, 4470, 5659, 3390, 25656}, // IfcWorkSchedule.CorrectPredefinedType
    {1572, 4336, 3028, 5660, 5661, 25691}, // IfcZone.WR1
    {1573, 4335, 4523, 4302, 4303, 6832}, // IfcZShapeProfileDef.ValidFlangeThickness
};

constexpr WhereRule typeRules[] = {
    {136, 3027, 3028, 3029, 3030, 0}, // IfcBoxAlignment.WR1
    {184, 4439, 4440, 4441, 3073, 14248}, // IfcCardinalPointReference.GreaterThanZero
    {245, 3031, 4442, 4443, 4444, 14254}, // IfcCompoundPlaneAngleMeasure.MinutesInRange
    {245, 3031, 4445, 4446, 4447, 14265}, // IfcCompoundPlaneAngleMeasure.SecondsInRange
    {245, 3031, 4448, 4449, 4450, 14276}, // IfcCompoundPlaneAngleMeasure.MicrosecondsInRange
    {245, 3031, 4451, 4452, 4453, 14296}, // IfcCompoundPlaneAngleMeasure.ConsistentSign
    {359, 4454, 4455, 4456, 4457, 14393}, // IfcDayInMonthNumber.ValidRange
    {360, 4458, 4455, 4459, 4460, 14408}, // IfcDayInWeekNumber.ValidRange
    {376, 3046, 3028, 3047, 3048, 163}, // IfcDimensionCount.WR1
    {603, 3052, 3028, 3053, 3054, 178}, // IfcFontStyle.WR1
    {604, 3056, 3028, 3057, 3058, 192}, // IfcFontVariant.WR1
    {605, 3068, 3028, 3069, 3070, 203}, // IfcFontWeight.WR1
    {666, 3071, 3028, 3072, 3073, 241}, // IfcHeatingValueMeasure.WR1
    {842, 3080, 4455, 4461, 3082, 277}, // IfcMonthInYearNumber.ValidRange
    {854, 4462, 4463, 4464, 4465, 14423}, // IfcNonNegativeLengthMeasure.NotNegative
    {855, 3083, 3028, 3084, 3085, 292}, // IfcNormalisedRatioMeasure.WR1
    {905, 3086, 3087, 3088, 3089, 307}, // IfcPHMeasure.WR21
    {944, 4466, 3028, 4441, 3073, 14248}, // IfcPositiveInteger.WR1
    {945, 3090, 3028, 3072, 3073, 241}, // IfcPositiveLengthMeasure.WR1
    {946, 3091, 3028, 3072, 3073, 241}, // IfcPositivePlaneAngleMeasure.WR1
    {947, 3092, 3028, 3072, 3073, 241}, // IfcPositiveRatioMeasure.WR1
    {1275, 3096, 3028, 3084, 3085, 292}, // IfcSpecularRoughness.WR1
    {1407, 3100, 3028, 3101, 3102, 337}, // IfcTextAlignment.WR1
    {1408, 3108, 3028, 3109, 3110, 354}, // IfcTextDecoration.WR1
    {1420, 3114, 3028, 3115, 3116, 374}, // IfcTextTransformation.WR1
};

constexpr WhereRule globalRules[] = {
    {4341, 4342, 3028, 4343, 4344, 7110}, // IfcRepresentationContextSameWCS.WR1
    {4345, 4346, 3028, 4347, 4348, 7241}, // IfcSingleProjectInstance.WR1
};

constexpr UniqueRule uniqueRules[] = {
    {73, 3169, 3170, 3171, 0, 1}, // IfcApplication.UR1
    {73, 3169, 3123, 3172, 1, 2}, // IfcApplication.UR2
    {1001, 3904, 3170, 3907, 3, 1}, // IfcPropertyEnumeration.UR1
    {1173, 4081, 3170, 4082, 4, 1}, // IfcRoot.UR1
};

constexpr TextId uniqueAttributes[] = {
    1612, // APPLICATIONIDENTIFIER
    1611, // APPLICATIONFULLNAME
    2956, // VERSION
    2274, // NAME
    1987, // GLOBALID
};

constexpr InverseAttribute inverseAttributes[] = {
    {7, 2079, 1087, 2532, 0, -1, 1, 0, 3125, 3126, 3127}, // IfcActor.IsActingUpon
    {8, 2004, 536, 2522, 0, -1, 1, 0, 3129, 4467, 4468}, // IfcActorRole.HasExternalReference
    {13, 2312, 903, 1589, 0, -1, 1, 0, 3132, 3135, 3136}, // IfcAddress.OfPerson
    {13, 2311, 880, 1589, 0, -1, 1, 0, 3132, 3137, 3138}, // IfcAddress.OfOrganization
    {34, 2837, 32, 2657, 1, 1, 1, 0, 6094, 6095, 6096}, // IfcAlignment2DCantSegment.ToCant
    {36, 2836, 48, 2036, 1, -1, 1, 0, 5676, 5677, 5678}, // IfcAlignment2DHorizontal.ToAlignmentCurve
    {37, 2839, 36, 2657, 1, 1, 1, 0, 5679, 5680, 5681}, // IfcAlignment2DHorizontalSegment.ToHorizontal
    {43, 2836, 48, 2959, 1, 1, 1, 0, 5682, 5677, 5683}, // IfcAlignment2DVertical.ToAlignmentCurve
    {44, 2858, 43, 2657, 1, 1, 1, 0, 5684, 5685, 5686}, // IfcAlignment2DVerticalSegment.ToVertical
    {63, 1749, 1118, 2507, 0, 1, 1, 0, 3146, 3147, 3148}, // IfcAnnotation.ContainedInStructure
    {74, 2004, 536, 2522, 0, -1, 1, 0, 3173, 4467, 4468}, // IfcAppliedValue.HasExternalReference
    {77, 2005, 536, 2522, 0, -1, 1, 0, 3182, 4516, 4468}, // IfcApproval.HasExternalReferences
    {77, 1621, 1097, 2534, 0, -1, 1, 0, 3182, 4517, 4518}, // IfcApproval.ApprovedObjects
    {77, 1623, 1151, 2534, 0, -1, 1, 0, 3182, 4519, 4520}, // IfcApproval.ApprovedResources
    {77, 2109, 80, 2495, 0, -1, 1, 0, 3182, 3185, 4521}, // IfcApproval.IsRelatedWith
    {77, 2529, 80, 2534, 0, -1, 1, 0, 3182, 3187, 3188}, // IfcApproval.Relates
    {102, 2840, 746, 2049, 1, 1, 1, 0, 6097, 6098, 6099}, // IfcAxisLateralInclination.ToLinearAxis
    {133, 2397, 753, 1635, 0, 1, 1, 0, 5714, 5715, 6101}, // IfcBoundedCurve.PositioningElement
    {210, 1700, 1098, 2536, 0, -1, 1, 0, 3314, 4673, 4674}, // IfcClassification.ClassificationForObjects
    {210, 2018, 216, 2474, 0, -1, 1, 0, 3314, 4675, 4676}, // IfcClassification.HasReferences
    {216, 1701, 1098, 2536, 0, -1, 1, 0, 4677, 4678, 4674}, // IfcClassificationReference.ClassificationRefForObjects
    {216, 2018, 216, 2474, 0, -1, 1, 0, 4677, 4675, 4676}, // IfcClassificationReference.HasReferences
    {243, 2934, 241, 2657, 1, -1, 1, 0, 3338, 3341, 3342}, // IfcCompositeCurveSegment.UsingCurves
    {265, 2005, 536, 2522, 0, -1, 1, 0, 3353, 4516, 4468}, // IfcConstraint.HasExternalReferences
    {265, 2428, 1152, 2538, 0, -1, 1, 0, 3353, 3361, 4721}, // IfcConstraint.PropertiesForConstraint
    {281, 2091, 1125, 2512, 0, -1, 1, 0, 4733, 3721, 4734}, // IfcContext.IsDefinedBy
    {281, 1810, 1121, 2539, 0, -1, 1, 0, 4733, 4735, 4736}, // IfcContext.Declares
    {283, 2004, 536, 2522, 0, -1, 1, 0, 4737, 4467, 4468}, // IfcContextDependentUnit.HasExternalReference
    {284, 1759, 1088, 2540, 0, -1, 1, 0, 3378, 3379, 3380}, // IfcControl.Controls
    {288, 2004, 536, 2522, 0, -1, 1, 0, 4744, 4467, 4468}, // IfcConversionBasedUnit.HasExternalReference
    {301, 2001, 300, 2708, 0, 1, 1, 0, 4753, 4754, 4755}, // IfcCoordinateReferenceSystem.HasCoordinateOperation
    {314, 1778, 1120, 2502, 0, 1, 1, 0, 3387, 3391, 3392}, // IfcCovering.CoversSpaces
    {314, 1777, 1119, 2502, 0, 1, 1, 0, 3387, 4758, 3394}, // IfcCovering.CoversElements
    {398, 1630, 1129, 2501, 0, 1, 1, 0, 3456, 3457, 3458}, // IfcDistributionControlElement.AssignedToFlowElement
    {400, 2012, 1112, 2506, 0, -1, 1, 0, 4796, 3548, 3549}, // IfcDistributionElement.HasPorts
    {402, 2000, 1129, 2545, 0, 1, 1, 0, 3459, 3460, 3461}, // IfcDistributionFlowElement.HasControlElements
    {410, 1859, 1101, 2542, 0, -1, 1, 0, 3465, 4797, 4798}, // IfcDocumentInformation.DocumentInfoForObjects
    {410, 2003, 412, 2471, 0, -1, 1, 0, 3465, 4799, 4800}, // IfcDocumentInformation.HasDocumentReferences
    {410, 2102, 411, 2504, 0, -1, 1, 0, 3465, 3466, 3467}, // IfcDocumentInformation.IsPointedTo
    {410, 2103, 411, 2542, 0, 1, 1, 0, 3465, 3468, 3469}, // IfcDocumentInformation.IsPointer
    {412, 1862, 1101, 2542, 0, -1, 1, 0, 3470, 4803, 4798}, // IfcDocumentReference.DocumentRefForObjects
    {492, 1938, 1128, 2496, 0, 1, 1, 0, 3535, 3538, 3539}, // IfcElement.FillsVoids
    {492, 1738, 1109, 2544, 0, -1, 1, 0, 3535, 3540, 3541}, // IfcElement.ConnectedTo
    {492, 2095, 1131, 2506, 0, -1, 1, 0, 3535, 4868, 4869}, // IfcElement.IsInterferedByElements
    {492, 2070, 1131, 2544, 0, -1, 1, 0, 3535, 4870, 4871}, // IfcElement.InterferesElements
    {492, 2013, 1136, 2544, 0, -1, 1, 0, 3535, 3544, 3545}, // IfcElement.HasProjections
    {492, 2011, 1144, 2535, 0, -1, 1, 0, 3535, 3550, 3551}, // IfcElement.HasOpenings
    {492, 2086, 1117, 2459, 0, -1, 1, 0, 3535, 3552, 3553}, // IfcElement.IsConnectionRealization
    {492, 2436, 1141, 2496, 0, -1, 1, 0, 3535, 3554, 3555}, // IfcElement.ProvidesBoundaries
    {492, 1737, 1109, 2506, 0, -1, 1, 0, 3535, 3556, 3557}, // IfcElement.ConnectedFrom
    {492, 1749, 1118, 2507, 0, 1, 1, 0, 3535, 3147, 3148}, // IfcElement.ContainedInStructure
    {492, 2002, 1119, 2535, 0, -1, 1, 0, 3535, 3542, 3543}, // IfcElement.HasCoverings
    {535, 1921, 536, 2562, 0, -1, 1, 0, 3568, 4908, 4909}, // IfcExternalReference.ExternalReferenceForResources
    {537, 1676, 1141, 2564, 0, -1, 1, 0, 4910, 4118, 4119}, // IfcExternalSpatialElement.BoundedBy
    {542, 2026, 1425, 2214, 0, -1, 1, 0, 3575, 4918, 4919}, // IfcFace.HasTextureMaps
    {563, 2426, 1136, 2508, 1, 1, 0, 0, 3580, 3581, 3582}, // IfcFeatureElementAddition.ProjectsElements
    {564, 2970, 1144, 2514, 1, 1, 0, 0, 3583, 3584, 3585}, // IfcFeatureElementSubtraction.VoidsElements
    {628, 2023, 630, 2347, 0, -1, 1, 0, 3620, 3621, 3622}, // IfcGeometricRepresentationContext.HasSubContexts
    {628, 2001, 300, 2708, 0, 1, 1, 0, 3620, 4754, 4755}, // IfcGeometricRepresentationContext.HasCoordinateOperation
    {652, 2359, 651, 2985, 0, 1, 1, 0, 3634, 3639, 3640}, // IfcGridAxis.PartOfW
    {652, 2358, 651, 2951, 0, 1, 1, 0, 3634, 3641, 3642}, // IfcGridAxis.PartOfV
    {652, 2357, 651, 2889, 0, 1, 1, 0, 3634, 3643, 3644}, // IfcGridAxis.PartOfU
    {652, 2009, 1527, 2075, 0, -1, 1, 0, 3634, 3645, 3646}, // IfcGridAxis.HasIntersections
    {659, 2093, 1089, 2546, 0, -1, 1, 0, 3647, 3648, 4994}, // IfcGroup.IsGroupedBy
    {684, 2838, 938, 1924, 1, -1, 1, 0, 5011, 5012, 5013}, // IfcIndexedPolygonalFace.ToFaceSet
    {727, 2153, 1102, 2548, 0, -1, 1, 0, 5047, 5048, 5049}, // IfcLibraryInformation.LibraryInfoForObjects
    {727, 2010, 728, 2473, 0, -1, 1, 0, 5047, 5050, 5051}, // IfcLibraryInformation.HasLibraryReferences
    {728, 2155, 1102, 2548, 0, -1, 1, 0, 3670, 5052, 5049}, // IfcLibraryReference.LibraryRefForObjects
    {788, 2019, 793, 2590, 0, 1, 1, 0, 3684, 3685, 3686}, // IfcMaterial.HasRepresentation
    {788, 2109, 805, 2510, 0, -1, 1, 0, 3684, 3185, 5059}, // IfcMaterial.IsRelatedWith
    {788, 2531, 805, 2549, 0, 1, 1, 0, 3684, 5060, 5061}, // IfcMaterial.RelatesTo
    {790, 2841, 791, 2228, 1, 1, 0, 0, 5062, 5063, 5064}, // IfcMaterialConstituent.ToMaterialConstituentSet
    {792, 1633, 1103, 2549, 0, -1, 1, 0, 5065, 5066, 5067}, // IfcMaterialDefinition.AssociatedTo
    {792, 2005, 536, 2522, 0, -1, 1, 0, 5065, 4516, 4468}, // IfcMaterialDefinition.HasExternalReferences
    {792, 2014, 804, 2226, 0, -1, 1, 0, 5065, 5068, 5069}, // IfcMaterialDefinition.HasProperties
    {794, 2842, 795, 2230, 1, 1, 0, 0, 3691, 3692, 3693}, // IfcMaterialLayer.ToMaterialLayerSet
    {799, 2843, 800, 2231, 1, 1, 0, 0, 5074, 5075, 5076}, // IfcMaterialProfile.ToMaterialProfileSet
    {807, 1633, 1103, 2549, 1, -1, 1, 0, 5077, 5066, 5078}, // IfcMaterialUsageDefinition.AssociatedTo
    {858, 2089, 1124, 2512, 0, 1, 1, 0, 3718, 5108, 5109}, // IfcObject.IsDeclaredBy
    {858, 1810, 1124, 2551, 0, -1, 1, 0, 3718, 4735, 5110}, // IfcObject.Declares
    {858, 2112, 1127, 2512, 0, 1, 1, 0, 3718, 5111, 5112}, // IfcObject.IsTypedBy
    {858, 2091, 1125, 2512, 0, -1, 1, 0, 3718, 3721, 4734}, // IfcObject.IsDefinedBy
    {859, 1995, 1085, 2512, 0, -1, 1, 0, 3723, 3724, 3725}, // IfcObjectDefinition.HasAssignments
    {859, 2276, 1132, 2512, 0, 1, 1, 0, 3723, 5113, 5114}, // IfcObjectDefinition.Nests
    {859, 2099, 1132, 2551, 0, -1, 1, 0, 3723, 5115, 5116}, // IfcObjectDefinition.IsNestedBy
    {859, 1999, 1121, 2503, 0, 1, 1, 0, 3723, 5117, 5118}, // IfcObjectDefinition.HasContext
    {859, 2090, 1084, 2551, 0, -1, 1, 0, 3723, 3726, 5119}, // IfcObjectDefinition.IsDecomposedBy
    {859, 1811, 1084, 2512, 0, 1, 1, 0, 3723, 3728, 5120}, // IfcObjectDefinition.Decomposes
    {859, 1996, 1095, 2512, 0, -1, 1, 0, 3723, 3730, 3731}, // IfcObjectDefinition.HasAssociations
    {862, 2375, 974, 2299, 0, -1, 1, 0, 3732, 3733, 5121}, // IfcObjectPlacement.PlacesObject
    {874, 2006, 1128, 2552, 0, -1, 1, 0, 3748, 3749, 3750}, // IfcOpeningElement.HasFillings
    {880, 2106, 881, 2515, 0, -1, 1, 0, 3754, 3755, 3756}, // IfcOrganization.IsRelatedBy
    {880, 2529, 881, 2553, 0, -1, 1, 0, 3754, 3187, 3757}, // IfcOrganization.Relates
    {880, 1909, 904, 2803, 0, -1, 1, 0, 3754, 3758, 3759}, // IfcOrganization.Engages
    {903, 1908, 904, 2805, 0, -1, 1, 0, 3769, 3772, 3773}, // IfcPerson.EngagedIn
    {908, 2005, 536, 2522, 0, -1, 1, 0, 3777, 4516, 4468}, // IfcPhysicalQuantity.HasExternalReferences
    {908, 2352, 906, 2017, 0, 1, 1, 0, 3777, 3778, 3779}, // IfcPhysicalQuantity.PartOfComplex
    {942, 1748, 1112, 2554, 0, 1, 1, 0, 3807, 3808, 5177}, // IfcPort.ContainedIn
    {942, 1737, 1111, 2516, 0, 1, 1, 0, 3807, 3556, 3810}, // IfcPort.ConnectedFrom
    {942, 1738, 1111, 2554, 0, 1, 1, 0, 3807, 3540, 3811}, // IfcPort.ConnectedTo
    {943, 1749, 1118, 2507, 0, 1, 1, 0, 5688, 3147, 3148}, // IfcPositioningElement.ContainedInStructure
    {943, 2398, 1135, 2555, 0, -1, 1, 0, 5688, 5726, 5727}, // IfcPositioningElement.Positions
    {972, 2105, 1139, 2557, 0, -1, 1, 0, 3860, 3865, 3866}, // IfcProcess.IsPredecessorTo
    {972, 2111, 1139, 2518, 0, -1, 1, 0, 3860, 3863, 3864}, // IfcProcess.IsSuccessorFrom
    {972, 2317, 1091, 2557, 0, -1, 1, 0, 3860, 3861, 3862}, // IfcProcess.OperatesOn
    {974, 2468, 1092, 2558, 0, -1, 1, 0, 3867, 3870, 3871}, // IfcProduct.ReferencedBy
    {974, 2396, 1135, 2519, 0, 1, 1, 0, 3867, 5730, 5731}, // IfcProduct.PositionedRelativeTo
    {974, 2472, 1137, 2507, 0, -1, 1, 0, 3867, 3546, 3547}, // IfcProduct.ReferencedInStructures
    {975, 2675, 974, 2582, 1, -1, 1, 0, 3872, 3875, 5194}, // IfcProductDefinitionShape.ShapeOfProduct
    {975, 2021, 1212, 2354, 0, -1, 1, 0, 3872, 3877, 3878}, // IfcProductDefinitionShape.HasShapeAspects
    {980, 2004, 536, 2522, 0, -1, 1, 0, 5195, 4467, 4468}, // IfcProfileDef.HasExternalReference
    {980, 2014, 981, 2418, 0, -1, 1, 0, 5195, 5068, 5196}, // IfcProfileDef.HasProperties
    {994, 2355, 1004, 2014, 0, -1, 1, 0, 3886, 5205, 5206}, // IfcProperty.PartOfPset
    {994, 2431, 999, 1829, 0, -1, 1, 0, 3886, 3887, 3888}, // IfcProperty.PropertyForDependance
    {994, 2430, 999, 1828, 0, -1, 1, 0, 3886, 3889, 3890}, // IfcProperty.PropertyDependsOn
    {994, 2352, 238, 2014, 0, -1, 1, 0, 3886, 3778, 5207}, // IfcProperty.PartOfComplex
    {994, 1998, 1152, 2522, 0, -1, 1, 0, 3886, 5208, 5209}, // IfcProperty.HasConstraints
    {994, 1994, 1151, 2522, 0, -1, 1, 0, 3886, 5210, 5211}, // IfcProperty.HasApprovals
    {995, 2005, 536, 2522, 0, -1, 1, 0, 5212, 4516, 4468}, // IfcPropertyAbstraction.HasExternalReferences
    {998, 1999, 1121, 2503, 0, 1, 1, 0, 3897, 5117, 5118}, // IfcPropertyDefinition.HasContext
    {998, 1996, 1095, 2512, 0, -1, 1, 0, 3897, 3730, 3731}, // IfcPropertyDefinition.HasAssociations
    {1005, 1816, 1486, 2015, 0, -1, 1, 0, 3912, 3915, 5223}, // IfcPropertySetDefinition.DefinesType
    {1005, 2091, 1126, 2521, 0, -1, 1, 0, 3912, 3721, 5224}, // IfcPropertySetDefinition.IsDefinedBy
    {1005, 1815, 1125, 2561, 0, -1, 1, 0, 3912, 5225, 5226}, // IfcPropertySetDefinition.DefinesOccurrence
    {1008, 1814, 1126, 2569, 0, -1, 1, 0, 5227, 5228, 5229}, // IfcPropertySetTemplate.Defines
    {1013, 2353, 239, 2016, 0, -1, 1, 0, 5236, 5237, 5238}, // IfcPropertyTemplate.PartOfComplexTemplate
    {1013, 2356, 1008, 2016, 0, -1, 1, 0, 5236, 5239, 5240}, // IfcPropertyTemplate.PartOfPsetTemplate
    {1142, 2052, 1142, 2346, 0, -1, 1, 0, 5336, 5337, 5338}, // IfcRelSpaceBoundary1stLevel.InnerBoundaries
    {1143, 1769, 1143, 1768, 0, 1, 1, 0, 5339, 5340, 5341}, // IfcRelSpaceBoundary2ndLevel.Corresponds
    {1146, 2585, 1149, 2213, 0, 1, 1, 0, 4056, 4057, 4058}, // IfcRepresentation.RepresentationMap
    {1146, 2139, 963, 1628, 0, -1, 1, 0, 4056, 4059, 4060}, // IfcRepresentation.LayerAssignments
    {1146, 2313, 976, 2587, 0, -1, 1, 0, 4056, 4061, 5346}, // IfcRepresentation.OfProductRepresentation
    {1147, 2588, 1146, 1754, 0, -1, 1, 0, 4063, 4064, 4065}, // IfcRepresentationContext.RepresentationsInContext
    {1148, 2138, 963, 1628, 0, 1, 1, 0, 4066, 5347, 5348}, // IfcRepresentationItem.LayerAssignment
    {1148, 2743, 1340, 2114, 0, 1, 1, 0, 4066, 4067, 4068}, // IfcRepresentationItem.StyledByItem
    {1149, 2021, 1212, 2354, 0, -1, 1, 0, 4069, 3877, 3878}, // IfcRepresentationMap.HasShapeAspects
    {1149, 2221, 779, 2216, 0, -1, 1, 0, 4069, 4070, 4071}, // IfcRepresentationMap.MapUsage
    {1150, 2597, 1094, 2563, 0, -1, 1, 0, 4072, 4073, 4074}, // IfcResource.ResourceOf
    {1212, 2005, 536, 2522, 0, -1, 1, 0, 5701, 4516, 4468}, // IfcShapeAspect.HasExternalReferences
    {1213, 2314, 1212, 2676, 0, 1, 1, 0, 4099, 4102, 4103}, // IfcShapeModel.OfShapeAspect
    {1255, 2002, 1120, 2564, 0, -1, 1, 0, 4116, 3542, 5410}, // IfcSpace.HasCoverings
    {1255, 1676, 1141, 2564, 0, -1, 1, 0, 4116, 4118, 4119}, // IfcSpace.BoundedBy
    {1264, 1751, 1118, 2567, 0, -1, 1, 0, 5417, 4134, 4135}, // IfcSpatialElement.ContainsElements
    {1264, 2667, 1140, 2497, 0, -1, 1, 0, 5417, 4132, 4133}, // IfcSpatialElement.ServicedBySystems
    {1264, 2480, 1137, 2567, 0, -1, 1, 0, 5417, 4130, 4131}, // IfcSpatialElement.ReferencesElements
    {1291, 1631, 1113, 2525, 0, 1, 1, 0, 4137, 4138, 5441}, // IfcStructuralActivity.AssignedToStructuralItem
    {1294, 1742, 1115, 2526, 1, -1, 1, 0, 4140, 4141, 4142}, // IfcStructuralConnection.ConnectsStructuralMembers
    {1304, 1629, 1113, 2544, 0, -1, 1, 0, 4143, 4144, 4145}, // IfcStructuralItem.AssignedStructuralActivity
    {1310, 2710, 1328, 2602, 0, 1, 1, 0, 4150, 4151, 4152}, // IfcStructuralLoadGroup.SourceOfResultGroup
    {1310, 2187, 1293, 2186, 0, -1, 1, 0, 4150, 4153, 4154}, // IfcStructuralLoadGroup.LoadGroupFor
    {1320, 1736, 1115, 2566, 0, -1, 1, 0, 4155, 4158, 4159}, // IfcStructuralMember.ConnectedBy
    {1328, 2603, 1293, 2020, 0, 1, 1, 0, 4175, 4176, 4177}, // IfcStructuralResultGroup.ResultGroupFor
    {1364, 2097, 1421, 2219, 0, -1, 1, 0, 5523, 5524, 5525}, // IfcSurfaceTexture.IsMappedBy
    {1364, 2913, 1363, 2798, 0, -1, 1, 0, 5523, 5526, 5527}, // IfcSurfaceTexture.UsedInStyles
    {1375, 2670, 1140, 2568, 0, 1, 1, 0, 4237, 4238, 4239}, // IfcSystem.ServicesBuildings
    {1375, 2671, 1137, 2507, 0, -1, 1, 0, 4237, 6050, 3547}, // IfcSystem.ServicesFacilities
    {1404, 1997, 682, 2214, 0, 1, 1, 0, 5572, 5573, 5574}, // IfcTessellatedFaceSet.HasColours
    {1404, 2027, 687, 2214, 0, -1, 1, 0, 5572, 5575, 5576}, // IfcTessellatedFaceSet.HasTextures
    {1442, 2004, 536, 2522, 1, -1, 1, 0, 4274, 4467, 5578}, // IfcTimeSeries.HasExternalReference
    {1486, 2885, 1127, 2570, 0, 1, 1, 0, 4295, 5607, 4297}, // IfcTypeObject.Types
    {1487, 2317, 1091, 2557, 0, -1, 1, 0, 5608, 3861, 3862}, // IfcTypeProcess.OperatesOn
    {1488, 2468, 1092, 2558, 0, -1, 1, 0, 4298, 3870, 3871}, // IfcTypeProduct.ReferencedBy
    {1489, 2597, 1094, 2563, 0, -1, 1, 0, 5612, 4073, 4074}, // IfcTypeResource.ResourceOf
};

constexpr DerivedAttribute derivedAttributes[] = {
    {97, 3014, 863}, // IFCAXIS1PLACEMENT.Z
    {99, 2336, 914}, // IFCAXIS2PLACEMENT2D.P
    {100, 2336, 981}, // IFCAXIS2PLACEMENT3D.P
    {124, 1838, 1126}, // IFCBOOLEANRESULT.DIM
    {135, 1838, 1132}, // IFCBOUNDINGBOX.DIM
    {142, 2904, 1034}, // IFCBSPLINECURVE.UPPERINDEXONCONTROLPOINTS
    {142, 1757, 15182}, // IFCBSPLINECURVE.CONTROLPOINTS
    {144, 2905, 15222}, // IFCBSPLINECURVEWITHKNOTS.UPPERINDEXONKNOTS
    {145, 2935, 1034}, // IFCBSPLINESURFACE.UUPPER
    {145, 2979, 15228}, // IFCBSPLINESURFACE.VUPPER
    {145, 1757, 15240}, // IFCBSPLINESURFACE.CONTROLPOINTS
    {147, 2124, 15320}, // IFCBSPLINESURFACEWITHKNOTS.KNOTVUPPER
    {147, 2123, 15326}, // IFCBSPLINESURFACEWITHKNOTS.KNOTUUPPER
    {185, 1838, 1257}, // IFCCARTESIANPOINT.DIM
    {186, 1838, 16199}, // IFCCARTESIANPOINTLIST.DIM
    {189, 2641, 1270}, // IFCCARTESIANTRANSFORMATIONOPERATOR.SCL
    {189, 1838, 1278}, // IFCCARTESIANTRANSFORMATIONOPERATOR.DIM
    {190, 2886, 1340}, // IFCCARTESIANTRANSFORMATIONOPERATOR2D.U
    {191, 2642, 1366}, // IFCCARTESIANTRANSFORMATIONOPERATOR2DNONUNIFORM.SCL2
    {192, 2886, 1450}, // IFCCARTESIANTRANSFORMATIONOPERATOR3D.U
    {193, 2642, 1366}, // IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM.SCL2
    {193, 2643, 1477}, // IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM.SCL3
    {241, 2286, 1663}, // IFCCOMPOSITECURVE.NSEGMENTS
    {241, 1706, 1669}, // IFCCOMPOSITECURVE.CLOSEDCURVE
    {242, 1659, 16616}, // IFCCOMPOSITECURVEONSURFACE.BASISSURFACE
    {243, 1838, 1688}, // IFCCOMPOSITECURVESEGMENT.DIM
    {322, 1838, 1132}, // IFCCSGPRIMITIVE3D.DIM
    {332, 1838, 1972}, // IFCCURVE.DIM
    {369, 1839, 2115}, // IFCDERIVEDUNIT.DIMENSIONS
    {382, 1838, 2372}, // IFCDIRECTION.DIM
    {456, 2275, 2696}, // IFCEDGELOOP.NE
    {543, 1838, 1132}, // IFCFACEBASEDSURFACEMODEL.DIM
    {630, 3003, 3194}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.WORLDCOORDINATESYSTEM
    {630, 1764, 3200}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.COORDINATESPACEDIMENSION
    {630, 2883, 19652}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.TRUENORTH
    {630, 2401, 3221}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.PRECISION
    {631, 1838, 3258}, // IFCGEOMETRICSET.DIM
    {660, 1838, 1132}, // IFCHALFSPACESOLID.DIM
    {795, 2856, 3526}, // IFCMATERIALLAYERSET.TOTALTHICKNESS
    {826, 2319, 20566}, // IFCMIRROREDPROFILEDEF.OPERATOR
    {884, 1878, 3781}, // IFCORIENTEDEDGE.EDGESTART
    {884, 1874, 3796}, // IFCORIENTEDEDGE.EDGEEND
    {921, 1838, 3972}, // IFCPLACEMENT.DIM
    {934, 1838, 3978}, // IFCPOINTONCURVE.DIM
    {935, 1838, 1978}, // IFCPOINTONSURFACE.DIM
    {1053, 2990, 22116}, // IFCRATIONALBSPLINECURVEWITHKNOTS.WEIGHTS
    {1054, 2990, 22176}, // IFCRATIONALBSPLINESURFACEWITHKNOTS.WEIGHTS
    {1158, 1641, 5555}, // IFCREVOLVEDAREASOLID.AXISLINE
    {1191, 1838, 1132}, // IFCSECTIONEDSPINE.DIM
    {1217, 1838, 1132}, // IFCSHELLBASEDSURFACEMODEL.DIM
    {1232, 1839, 5600}, // IFCSIUNIT.DIMENSIONS
    {1245, 1838, 1132}, // IFCSOLIDMODEL.DIM
    {1347, 1838, 1132}, // IFCSURFACE.DIM
    {1348, 1659, 16616}, // IFCSURFACECURVE.BASISSURFACE
    {1352, 1923, 6225}, // IFCSURFACEOFLINEAREXTRUSION.EXTRUSIONAXIS
    {1353, 1641, 6234}, // IFCSURFACEOFREVOLUTION.AXISLINE
    {1379, 2287, 6459}, // IFCTABLE.NUMBEROFCELLSINROW
    {1379, 2289, 6470}, // IFCTABLE.NUMBEROFHEADINGS
    {1379, 2288, 6486}, // IFCTABLE.NUMBEROFDATAROWS
    {1404, 1838, 1132}, // IFCTESSELLATEDFACESET.DIM
    {1472, 2293, 24914}, // IFCTRIANGULATEDFACESET.NUMBEROFTRIANGLES
    {1508, 1838, 6910}, // IFCVECTOR.DIM
};

constexpr Function functions[] = {
    {3220, 1, 28957}, // IFCNORMALISE
    {3226, 1, 7617}, // IFCBUILD2AXES
    {3230, 2, 27336}, // IFCCROSSPRODUCT
    {3236, 2, 7650}, // IFCBUILDAXES
    {3241, 3, 11437}, // IFCLISTTOARRAY
    {3293, 4, 7345}, // IFCBASEAXIS
    {3327, 1, 13472}, // IFCUNIQUEPROPERTYNAME
    {3395, 1, 30863}, // IFCCURVEDIM
    {3413, 1, 9978}, // IFCDERIVEDIMENSIONALEXPONENTS
    {3529, 1, 11541}, // IFCLOOPHEADTOTAIL
    {3571, 2, 11126}, // IFCDOTPRODUCT
    {3591, 1, 8841}, // IFCCORRECTFILLAREASTYLE
    {3676, 2, 27274}, // IFCCORRECTLOCALPLACEMENT
    {3694, 1, 11621}, // IFCMLSTOTALTHICKNESS
    {3714, 2, 26139}, // IFCCORRECTDIMENSIONS
    {3763, 3, 7602}, // IFCBOOLEANCHOOSE
    {3764, 1, 12018}, // IFCPATHHEADTOTAIL
    {3968, 1, 9915}, // IFCCURVEWEIGHTSPOSITIVE
    {3990, 2, 9054}, // IFCCORRECTOBJECTASSIGNMENT
    {4086, 1, 27717}, // IFCDIMENSIONSFORSIUNIT
    {4111, 2, 29261}, // IFCSHAPEREPRESENTATIONTYPES
    {4283, 2, 13308}, // IFCTOPOLOGYREPRESENTATIONTYPES
    {4304, 1, 9319}, // IFCCORRECTUNITASSIGNMENT
    {4339, 2, 12405}, // IFCSAMEVALIDPRECISION
    {4340, 3, 12102}, // IFCSAMEAXIS2PLACEMENT
    {4349, 2, 11246}, // IFCFIRSTPROJAXIS
    {4350, 3, 12644}, // IFCSECONDPROJAXIS
    {4351, 1, 11968}, // IFCORTHOGONALCOMPLEMENT
    {4412, 2, 12507}, // IFCSCALARTIMESVECTOR
    {4413, 2, 13750}, // IFCVECTORDIFFERENCE
    {4415, 3, 12284}, // IFCSAMEDIRECTION
    {4416, 3, 12163}, // IFCSAMECARTESIANPOINT
    {4417, 3, 12472}, // IFCSAMEVALUE
    {4438, 2, 13999}, // IFCVECTORSUM
    {4549, 5, 25840}, // IFCCONSTRAINTSPARAMBSPLINE
    {4557, 5, 28797}, // IFCMAKEARRAYOFARRAY
    {4652, 1, 29238}, // IFCPOINTLISTDIM
    {4696, 1, 13472}, // IFCUNIQUEPROPERTYTEMPLATENAMES
    {4709, 1, 28606}, // IFCGETBASISSURFACE
    {4877, 1, 13472}, // IFCUNIQUEQUANTITYNAMES
    {4912, 2, 30414}, // IFCTAPEREDSWEPTAREAPROFILES
    {4991, 1, 26093}, // IFCCONVERTDIRECTIONINTO2D
    {5006, 1, 25760}, // IFCCONSECUTIVESEGMENTS
    {5024, 1, 25746}, // IFCASSOCIATEDSURFACE
    {5104, 1, 30483}, // IFCUNIQUEDEFINITIONNAMES
    {5279, 1, 30295}, // IFCSURFACEWEIGHTSPOSITIVE
    {5604, 1, 30629}, // IFCUNIQUEPROPERTYSETNAMES
};

} // namespace

RuleTables tablesOfIFC4X3_RC1() noexcept;
RuleTables tablesOfIFC4X3_RC1() noexcept {
    return {"IFC4X3_RC1", entityRules, typeRules, globalRules, uniqueRules, uniqueAttributes, inverseAttributes, derivedAttributes, functions};
}

} // namespace velkor::rules
