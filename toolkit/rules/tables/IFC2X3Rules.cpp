// Made by velkor-rulegen from IFC2X3.exp (SHA-256 e18a1b2c3e29f5256904c83378ccad0850f52287a8d0122d149aba4a417fe5e5); do not edit.

#include "RuleTables.h"

namespace velkor::rules {

namespace {

constexpr WhereRule entityRules[] = {
    {0, 3098, 3028, 3099, 3030, 391}, // Ifc2DCompositeCurve.WR1
    {0, 3098, 3033, 3100, 3030, 398}, // Ifc2DCompositeCurve.WR2
    {8, 3108, 3028, 3109, 3030, 408}, // IfcActorRole.WR1
    {13, 3110, 3028, 3111, 3030, 432}, // IfcAddress.WR1
    {21, 3116, 3028, 3117, 3030, 464}, // IfcAirTerminalBoxType.WR1
    {23, 3118, 3028, 3119, 3030, 491}, // IfcAirTerminalType.WR1
    {26, 3120, 3028, 3121, 3030, 518}, // IfcAirToAirHeatRecoveryType.WR1
    {64, 3125, 3126, 3127, 3030, 545}, // IfcAnnotationCurveOccurrence.WR31
    {66, 3128, 3126, 3129, 3030, 565}, // IfcAnnotationFillAreaOccurrence.WR31
    {68, 3130, 3131, 3132, 3030, 585}, // IfcAnnotationSurface.WR01
    {69, 3133, 3126, 3134, 3030, 616}, // IfcAnnotationSurfaceOccurrence.WR31
    {70, 3135, 3126, 3136, 3030, 655}, // IfcAnnotationSymbolOccurrence.WR31
    {71, 3137, 3126, 3138, 3030, 675}, // IfcAnnotationTextOccurrence.WR31
    {74, 3143, 3028, 3144, 3030, 695}, // IfcAppliedValue.WR1
    {81, 3158, 3028, 3159, 3030, 708}, // IfcArbitraryClosedProfileDef.WR1
    {81, 3158, 3033, 3160, 3030, 717}, // IfcArbitraryClosedProfileDef.WR2
    {81, 3158, 3035, 3161, 3030, 724}, // IfcArbitraryClosedProfileDef.WR3
    {82, 3163, 3164, 3165, 3030, 731}, // IfcArbitraryOpenProfileDef.WR11
    {82, 3163, 3166, 3167, 3030, 748}, // IfcArbitraryOpenProfileDef.WR12
    {83, 3169, 3028, 3170, 3030, 757}, // IfcArbitraryProfileDefWithVoids.WR1
    {83, 3169, 3033, 3171, 3030, 768}, // IfcArbitraryProfileDefWithVoids.WR2
    {83, 3169, 3035, 3172, 3030, 790}, // IfcArbitraryProfileDefWithVoids.WR3
    {92, 3173, 3028, 3174, 3030, 809}, // IfcAsset.WR1
    {97, 3175, 3028, 3176, 3030, 834}, // IfcAxis1Placement.WR1
    {97, 3175, 3033, 3177, 3030, 851}, // IfcAxis1Placement.WR2
    {99, 3179, 3028, 3180, 3030, 885}, // IfcAxis2Placement2D.WR1
    {99, 3179, 3033, 3181, 3030, 902}, // IfcAxis2Placement2D.WR2
    {100, 3183, 3028, 3177, 3030, 851}, // IfcAxis2Placement3D.WR1
    {100, 3183, 3033, 3176, 3030, 834}, // IfcAxis2Placement3D.WR2
    {100, 3183, 3035, 3184, 3030, 922}, // IfcAxis2Placement3D.WR3
    {100, 3183, 3037, 3186, 3030, 939}, // IfcAxis2Placement3D.WR4
    {100, 3183, 3187, 3188, 3030, 969}, // IfcAxis2Placement3D.WR5
    {115, 3198, 3164, 3199, 3030, 1043}, // IfcBlobTexture.WR11
    {118, 3200, 3028, 3201, 3030, 1061}, // IfcBoilerType.WR1
    {121, 3202, 3028, 3203, 3030, 1088}, // IfcBooleanClippingResult.WR1
    {121, 3202, 3033, 3204, 3030, 1101}, // IfcBooleanClippingResult.WR2
    {121, 3202, 3035, 3206, 3030, 1107}, // IfcBooleanClippingResult.WR3
    {124, 3207, 3028, 3208, 3030, 1115}, // IfcBooleanResult.WR1
    {137, 3209, 3028, 3210, 3030, 1136}, // IfcBoxedHalfSpace.WR1
    {142, 3190, 3191, 3192, 3030, 991}, // IfcBSplineCurve.WR41
    {154, 3211, 3028, 3212, 3030, 1146}, // IfcBuildingElementProxy.WR1
    {169, 3217, 3028, 3218, 3030, 1215}, // IfcCableCarrierFittingType.WR1
    {183, 3220, 3073, 3221, 3030, 1242}, // IfcCalendarDate.WR21
    {185, 3222, 3028, 3223, 3030, 1248}, // IfcCartesianPoint.WR1
    {189, 3224, 3028, 3225, 3030, 1263}, // IfcCartesianTransformationOperator.WR1
    {190, 3226, 3028, 3227, 3030, 1284}, // IfcCartesianTransformationOperator2D.WR1
    {190, 3226, 3033, 3228, 3030, 1294}, // IfcCartesianTransformationOperator2D.WR2
    {190, 3226, 3035, 3229, 3030, 1317}, // IfcCartesianTransformationOperator2D.WR3
    {191, 3231, 3028, 3232, 3030, 1359}, // IfcCartesianTransformationOperator2DnonUniform.WR1
    {192, 3233, 3028, 3234, 3030, 1377}, // IfcCartesianTransformationOperator3D.WR1
    {192, 3233, 3033, 3235, 3030, 1387}, // IfcCartesianTransformationOperator3D.WR2
    {192, 3233, 3035, 3236, 3030, 1410}, // IfcCartesianTransformationOperator3D.WR3
    {192, 3233, 3037, 3237, 3030, 1433}, // IfcCartesianTransformationOperator3D.WR4
    {193, 3238, 3028, 3232, 3030, 1359}, // IfcCartesianTransformationOperator3DnonUniform.WR1
    {193, 3238, 3033, 3239, 3030, 1470}, // IfcCartesianTransformationOperator3DnonUniform.WR2
    {199, 3240, 3028, 3241, 3030, 1488}, // IfcChillerType.WR1
    {205, 3242, 3028, 3243, 3030, 1515}, // IfcCircleHollowProfileDef.WR1
    {222, 3252, 3028, 3253, 3030, 1525}, // IfcCoilType.WR1
    {238, 3254, 3073, 3255, 3030, 1552}, // IfcComplexProperty.WR21
    {238, 3254, 3257, 3258, 3030, 1571}, // IfcComplexProperty.WR22
    {241, 3260, 3191, 3261, 3030, 1578}, // IfcCompositeCurve.WR41
    {241, 3260, 3262, 3263, 3030, 1636}, // IfcCompositeCurve.WR42
    {243, 3264, 3028, 3265, 3030, 1682}, // IfcCompositeCurveSegment.WR1
    {244, 3268, 3028, 3269, 3030, 1694}, // IfcCompositeProfileDef.WR1
    {244, 3268, 3033, 3270, 3030, 1721}, // IfcCompositeProfileDef.WR2
    {247, 3271, 3028, 3272, 3030, 1740}, // IfcCompressorType.WR1
    {250, 3273, 3028, 3274, 3030, 1767}, // IfcCondenserType.WR1
    {253, 3275, 3028, 3212, 3030, 1146}, // IfcConditionCriterion.WR1
    {265, 3276, 3164, 3277, 3030, 1794}, // IfcConstraint.WR11
    {266, 3289, 3164, 3290, 3030, 1821}, // IfcConstraintAggregationRelationship.WR11
    {269, 3291, 3164, 3290, 3030, 1821}, // IfcConstraintRelationship.WR11
    {273, 3292, 3028, 3293, 3030, 1841}, // IfcConstructionMaterialResource.WR1
    {273, 3292, 3033, 3295, 3030, 1853}, // IfcConstructionMaterialResource.WR2
    {276, 3296, 3028, 3293, 3030, 1841}, // IfcConstructionProductResource.WR1
    {276, 3296, 3033, 3295, 3030, 1853}, // IfcConstructionProductResource.WR2
    {294, 3300, 3028, 3301, 3030, 1883}, // IfcCooledBeamType.WR1
    {297, 3302, 3028, 3303, 3030, 1910}, // IfcCoolingTowerType.WR1
    {314, 3306, 3307, 3308, 3030, 1937}, // IfcCovering.WR61
    {325, 3213, 3028, 3214, 3030, 1155}, // IfcCShapeProfileDef.WR1
    {325, 3213, 3033, 3215, 3030, 1165}, // IfcCShapeProfileDef.WR2
    {325, 3213, 3035, 3216, 3030, 1194}, // IfcCShapeProfileDef.WR3
    {342, 3315, 3164, 3316, 3030, 1984}, // IfcCurveStyle.WR11
    {345, 3317, 3131, 3318, 3030, 2013}, // IfcCurveStyleFontPattern.WR01
    {349, 3319, 3028, 3320, 3030, 2020}, // IfcDamperType.WR1
    {368, 3321, 3028, 3322, 3030, 2047}, // IfcDerivedProfileDef.WR1
    {369, 3323, 3028, 3324, 3030, 2059}, // IfcDerivedUnit.WR1
    {369, 3323, 3033, 3325, 3030, 2091}, // IfcDerivedUnit.WR2
    {375, 3329, 3164, 3330, 3030, 2122}, // IfcDimensionCalloutRelationship.WR11
    {375, 3329, 3166, 3331, 3030, 2137}, // IfcDimensionCalloutRelationship.WR12
    {375, 3329, 3332, 3333, 3030, 2165}, // IfcDimensionCalloutRelationship.WR13
    {377, 3335, 3336, 3337, 3030, 2175}, // IfcDimensionCurve.WR51
    {377, 3335, 3341, 3342, 3030, 2187}, // IfcDimensionCurve.WR52
    {377, 3335, 3343, 3344, 3030, 2240}, // IfcDimensionCurve.WR53
    {378, 3347, 3191, 3348, 3030, 2260}, // IfcDimensionCurveDirectedCallout.WR41
    {378, 3347, 3262, 3349, 3030, 2282}, // IfcDimensionCurveDirectedCallout.WR42
    {379, 3350, 3307, 3351, 3030, 2301}, // IfcDimensionCurveTerminator.WR61
    {381, 3354, 3164, 3355, 3030, 2310}, // IfcDimensionPair.WR11
    {381, 3354, 3166, 3356, 3030, 2322}, // IfcDimensionPair.WR12
    {381, 3354, 3332, 3357, 3030, 2347}, // IfcDimensionPair.WR13
    {409, 3364, 3028, 3365, 3030, 2378}, // IfcDocumentElectronicFormat.WR1
    {412, 3371, 3028, 3372, 3030, 2391}, // IfcDocumentReference.WR1
    {416, 3375, 3126, 3376, 3030, 2405}, // IfcDoorLiningProperties.WR31
    {416, 3375, 3377, 3378, 3030, 2420}, // IfcDoorLiningProperties.WR32
    {416, 3375, 3379, 3380, 3030, 2435}, // IfcDoorLiningProperties.WR33
    {416, 3375, 3381, 3382, 3030, 2462}, // IfcDoorLiningProperties.WR34
    {416, 3375, 3383, 3384, 3030, 2489}, // IfcDoorLiningProperties.WR35
    {419, 3385, 3126, 3384, 3030, 2489}, // IfcDoorPanelProperties.WR31
    {431, 3399, 3126, 3400, 3030, 2514}, // IfcDraughtingPreDefinedColour.WR31
    {432, 3406, 3126, 3407, 3030, 2550}, // IfcDraughtingPreDefinedCurveFont.WR31
    {433, 3410, 3126, 3411, 3030, 2577}, // IfcDraughtingPreDefinedTextFont.WR31
    {435, 3412, 3033, 3413, 3030, 2592}, // IfcDuctFittingType.WR2
    {438, 3414, 3028, 3415, 3030, 2619}, // IfcDuctSegmentType.WR1
    {441, 3416, 3028, 3417, 3030, 2646}, // IfcDuctSilencerType.WR1
    {456, 3418, 3028, 3419, 3030, 2673}, // IfcEdgeLoop.WR1
    {456, 3418, 3033, 3421, 3030, 2690}, // IfcEdgeLoop.WR2
    {471, 3422, 3126, 3423, 3030, 2702}, // IfcElectricDistributionPoint.WR31
    {494, 3447, 3028, 3448, 3030, 2729}, // IfcElementAssembly.WR1
    {513, 3449, 3028, 3450, 3030, 2762}, // IfcEnvironmentalImpactValue.WR1
    {517, 3451, 3028, 3452, 3030, 2789}, // IfcEvaporativeCoolerType.WR1
    {520, 3453, 3028, 3454, 3030, 2816}, // IfcEvaporatorType.WR1
    {535, 3455, 3028, 3456, 3030, 2843}, // IfcExternalReference.WR1
    {540, 3458, 3126, 3459, 3030, 2863}, // IfcExtrudedAreaSolid.WR31
    {542, 3460, 3028, 3461, 3030, 2886}, // IfcFace.WR1
    {557, 3462, 3028, 3463, 3030, 2905}, // IfcFanType.WR1
    {565, 3470, 3164, 3471, 3030, 2932}, // IfcFillAreaStyle.WR11
    {565, 3470, 3166, 3472, 3030, 2951}, // IfcFillAreaStyle.WR12
    {565, 3470, 3332, 3474, 3030, 2970}, // IfcFillAreaStyle.WR13
    {566, 3475, 3073, 3476, 3030, 2977}, // IfcFillAreaStyleHatching.WR21
    {566, 3475, 3257, 3477, 3030, 2984}, // IfcFillAreaStyleHatching.WR22
    {566, 3475, 3478, 3479, 3030, 3001}, // IfcFillAreaStyleHatching.WR23
    {575, 3480, 3028, 3481, 3030, 3018}, // IfcFilterType.WR1
    {590, 3482, 3028, 3483, 3030, 3045}, // IfcFlowMeterType.WR1
    {606, 3484, 3028, 3485, 3030, 3072}, // IfcFooting.WR1
    {618, 3489, 3028, 3490, 3030, 3099}, // IfcGasTerminalType.WR1
    {621, 3492, 3028, 3493, 3030, 3126}, // IfcGeneralProfileProperties.WR1
    {626, 3494, 3028, 3495, 3030, 3141}, // IfcGeometricCurveSet.WR1
    {630, 3499, 3126, 3500, 3030, 3163}, // IfcGeometricRepresentationSubContext.WR31
    {630, 3499, 3377, 3501, 3030, 3170}, // IfcGeometricRepresentationSubContext.WR32
    {631, 3502, 3073, 3503, 3030, 3231}, // IfcGeometricSet.WR21
    {651, 3504, 3191, 3505, 3030, 3267}, // IfcGrid.WR41
    {652, 3506, 3028, 3507, 3030, 3276}, // IfcGridAxis.WR1
    {652, 3506, 3033, 3508, 3030, 3285}, // IfcGridAxis.WR2
    {663, 3520, 3028, 3521, 3030, 3310}, // IfcHeatExchangerType.WR1
    {669, 3522, 3028, 3523, 3030, 3337}, // IfcHumidifierType.WR1
    {699, 3529, 3191, 3530, 3030, 3419}, // IfcInventory.WR41
    {704, 3525, 3028, 3526, 3030, 3364}, // IfcIShapeProfileDef.WR1
    {704, 3525, 3033, 3527, 3030, 3374}, // IfcIShapeProfileDef.WR2
    {704, 3525, 3035, 3528, 3030, 3381}, // IfcIShapeProfileDef.WR3
    {744, 3537, 3028, 3538, 3030, 3480}, // IfcLine.WR1
    {764, 3540, 3073, 3541, 3030, 3491}, // IfcLocalPlacement.WR21
    {765, 3543, 3073, 3544, 3030, 3500}, // IfcLocalTime.WR21
    {770, 3531, 3073, 3532, 3030, 3458}, // IfcLShapeProfileDef.WR21
    {770, 3531, 3257, 3533, 3030, 3465}, // IfcLShapeProfileDef.WR22
    {793, 3549, 3164, 3550, 3030, 3506}, // IfcMaterialDefinitionRepresentation.WR11
    {814, 3555, 3073, 3556, 3030, 3532}, // IfcMechanicalMaterialProperties.WR21
    {814, 3555, 3257, 3557, 3030, 3547}, // IfcMechanicalMaterialProperties.WR22
    {815, 3558, 3126, 3559, 3030, 3562}, // IfcMechanicalSteelMaterialProperties.WR31
    {815, 3558, 3377, 3560, 3030, 3577}, // IfcMechanicalSteelMaterialProperties.WR32
    {815, 3558, 3379, 3561, 3030, 3592}, // IfcMechanicalSteelMaterialProperties.WR33
    {815, 3558, 3381, 3562, 3030, 3607}, // IfcMechanicalSteelMaterialProperties.WR34
    {849, 3563, 3028, 3564, 3030, 3622}, // IfcMove.WR1
    {849, 3563, 3033, 3565, 3030, 3634}, // IfcMove.WR2
    {849, 3563, 3035, 3212, 3030, 1146}, // IfcMove.WR3
    {850, 3567, 3028, 3568, 3030, 3682}, // IfcNamedUnit.WR1
    {858, 3569, 3028, 3570, 3030, 3691}, // IfcObject.WR1
    {860, 3587, 3073, 3588, 3030, 3710}, // IfcObjective.WR21
    {866, 3589, 3126, 3590, 3030, 3737}, // IfcOccupant.WR31
    {869, 3591, 3028, 3592, 3030, 3756}, // IfcOffsetCurve2D.WR1
    {870, 3593, 3028, 3594, 3030, 3765}, // IfcOffsetCurve3D.WR1
    {884, 3607, 3028, 3608, 3030, 3774}, // IfcOrientedEdge.WR1
    {892, 3611, 3028, 3612, 3030, 3811}, // IfcPath.WR1
    {903, 3615, 3028, 3616, 3030, 3817}, // IfcPerson.WR1
    {906, 3619, 3073, 3620, 3030, 3830}, // IfcPhysicalComplexQuantity.WR21
    {910, 3624, 3028, 3625, 3030, 3849}, // IfcPile.WR1
    {915, 3626, 3028, 3627, 3030, 3876}, // IfcPipeFittingType.WR1
    {918, 3628, 3028, 3629, 3030, 3903}, // IfcPipeSegmentType.WR1
    {920, 3630, 3073, 3631, 3030, 3930}, // IfcPixelTexture.WR21
    {920, 3630, 3257, 3632, 3030, 3937}, // IfcPixelTexture.WR22
    {920, 3630, 3478, 3633, 3030, 3944}, // IfcPixelTexture.WR23
    {920, 3630, 3634, 3635, 3030, 3960}, // IfcPixelTexture.WR24
    {937, 3638, 3191, 3639, 3030, 4011}, // IfcPolygonalBoundedHalfSpace.WR41
    {937, 3638, 3262, 3640, 3030, 4020}, // IfcPolygonalBoundedHalfSpace.WR42
    {939, 3641, 3191, 3642, 3030, 4039}, // IfcPolyline.WR41
    {940, 3636, 3073, 3637, 3030, 3984}, // IfcPolyLoop.WR21
    {948, 3648, 3028, 3649, 3030, 4066}, // IfcPostalAddress.WR1
    {952, 3662, 3126, 3663, 3030, 4114}, // IfcPreDefinedDimensionSymbol.WR31
    {954, 3670, 3126, 3671, 3030, 4159}, // IfcPreDefinedPointMarkerSymbol.WR31
    {958, 3683, 3126, 3684, 3030, 4189}, // IfcPreDefinedTerminatorSymbol.WR31
    {969, 3685, 3028, 3686, 3030, 4231}, // IfcProcedure.WR1
    {969, 3685, 3033, 3687, 3030, 4254}, // IfcProcedure.WR2
    {969, 3685, 3035, 3212, 3030, 1146}, // IfcProcedure.WR3
    {969, 3685, 3037, 3688, 3030, 4277}, // IfcProcedure.WR4
    {974, 3696, 3028, 3697, 3030, 4304}, // IfcProduct.WR1
    {975, 3700, 3164, 3701, 3030, 4340}, // IfcProductDefinitionShape.WR11
    {983, 3707, 3126, 3212, 3030, 1146}, // IfcProject.WR31
    {983, 3707, 3377, 3708, 3030, 4360}, // IfcProject.WR32
    {983, 3707, 3379, 3709, 3030, 4379}, // IfcProject.WR33
    {996, 3717, 3073, 3718, 3030, 4391}, // IfcPropertyBoundedValue.WR21
    {996, 3717, 3257, 3719, 3030, 4418}, // IfcPropertyBoundedValue.WR22
    {999, 3721, 3028, 3722, 3030, 4431}, // IfcPropertyDependencyRelationship.WR1
    {1000, 3723, 3028, 3724, 3030, 4438}, // IfcPropertyEnumeratedValue.WR1
    {1001, 3725, 3131, 3726, 3030, 4470}, // IfcPropertyEnumeration.WR01
    {1002, 3728, 3126, 3729, 3030, 4498}, // IfcPropertyListValue.WR31
    {1004, 3730, 3126, 3212, 3030, 1146}, // IfcPropertySet.WR31
    {1004, 3730, 3377, 3258, 3030, 1571}, // IfcPropertySet.WR32
    {1012, 3736, 3028, 3737, 3030, 4526}, // IfcPropertyTableValue.WR1
    {1012, 3736, 3033, 3738, 3030, 4537}, // IfcPropertyTableValue.WR2
    {1012, 3736, 3035, 3739, 3030, 4564}, // IfcPropertyTableValue.WR3
    {1021, 3740, 3028, 3212, 3030, 1146}, // IfcProxy.WR1
    {1023, 3741, 3028, 3742, 3030, 4591}, // IfcPumpType.WR1
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
    {1036, 3765, 3307, 3766, 3030, 4780}, // IfcRailing.WR61
    {1045, 3767, 3028, 3768, 3030, 4815}, // IfcRamp.WR1
    {1052, 3769, 3028, 3770, 3030, 4851}, // IfcRationalBezierCurve.WR1
    {1052, 3769, 3033, 3772, 3030, 4865}, // IfcRationalBezierCurve.WR2
    {1057, 3773, 3126, 3774, 3030, 4890}, // IfcRectangleHollowProfileDef.WR31
    {1057, 3773, 3377, 3775, 3030, 4917}, // IfcRectangleHollowProfileDef.WR32
    {1057, 3773, 3379, 3776, 3030, 4952}, // IfcRectangleHollowProfileDef.WR33
    {1060, 3777, 3028, 3778, 3030, 4993}, // IfcRectangularTrimmedSurface.WR1
    {1060, 3777, 3033, 3779, 3030, 5000}, // IfcRectangularTrimmedSurface.WR2
    {1060, 3777, 3035, 3780, 3030, 5007}, // IfcRectangularTrimmedSurface.WR3
    {1060, 3777, 3037, 3781, 3030, 5039}, // IfcRectangularTrimmedSurface.WR4
    {1073, 3782, 3028, 3783, 3030, 5049}, // IfcReinforcingBar.WR1
    {1085, 3785, 3028, 3786, 3030, 5076}, // IfcRelAssigns.WR1
    {1086, 3787, 3028, 3788, 3030, 5085}, // IfcRelAssignsTasks.WR1
    {1086, 3787, 3033, 3789, 3030, 5097}, // IfcRelAssignsTasks.WR2
    {1086, 3787, 3035, 3790, 3030, 5109}, // IfcRelAssignsTasks.WR3
    {1087, 3791, 3028, 3792, 3030, 5118}, // IfcRelAssignsToActor.WR1
    {1088, 3793, 3028, 3794, 3030, 5141}, // IfcRelAssignsToControl.WR1
    {1089, 3795, 3028, 3796, 3030, 5164}, // IfcRelAssignsToGroup.WR1
    {1091, 3797, 3028, 3798, 3030, 5187}, // IfcRelAssignsToProcess.WR1
    {1092, 3799, 3028, 3800, 3030, 5210}, // IfcRelAssignsToProduct.WR1
    {1094, 3801, 3028, 3802, 3030, 5233}, // IfcRelAssignsToResource.WR1
    {1095, 3803, 3073, 3804, 3030, 5256}, // IfcRelAssociates.WR21
    {1103, 3805, 3073, 3806, 3030, 5283}, // IfcRelAssociatesMaterial.WR21
    {1103, 3805, 3257, 3807, 3030, 5312}, // IfcRelAssociatesMaterial.WR22
    {1109, 3808, 3126, 3809, 3030, 5343}, // IfcRelConnectsElements.WR31
    {1118, 3810, 3126, 3811, 3030, 5350}, // IfcRelContainedInSpatialStructure.WR31
    {1122, 3812, 3126, 3813, 3030, 5369}, // IfcRelDecomposes.WR31
    {1132, 3814, 3028, 3815, 3030, 5389}, // IfcRelNests.WR1
    {1134, 3816, 3028, 3817, 3030, 5420}, // IfcRelOverridesProperties.WR1
    {1137, 3818, 3126, 3811, 3030, 5350}, // IfcRelReferencedInSpatialStructure.WR31
    {1138, 3819, 3164, 3820, 3030, 5432}, // IfcRelSchedulesCostItems.WR11
    {1138, 3819, 3166, 3821, 3030, 5455}, // IfcRelSchedulesCostItems.WR12
    {1139, 3822, 3028, 3823, 3030, 5464}, // IfcRelSequence.WR1
    {1141, 3827, 3028, 3828, 3030, 5471}, // IfcRelSpaceBoundary.WR1
    {1158, 3848, 3126, 3849, 3030, 5527}, // IfcRevolvedAreaSolid.WR31
    {1158, 3848, 3377, 3850, 3030, 5541}, // IfcRevolvedAreaSolid.WR32
    {1170, 3851, 3028, 3768, 3030, 4815}, // IfcRoof.WR1
    {1179, 3854, 3126, 3855, 3030, 5573}, // IfcRoundedRectangleProfileDef.WR31
    {1191, 3860, 3028, 3861, 3030, 5607}, // IfcSectionedSpine.WR1
    {1191, 3860, 3033, 3862, 3030, 5618}, // IfcSectionedSpine.WR2
    {1191, 3860, 3035, 3863, 3030, 5645}, // IfcSectionedSpine.WR3
    {1205, 3864, 3126, 3865, 3030, 5654}, // IfcServiceLifeFactor.WR31
    {1213, 3866, 3164, 3867, 3030, 5673}, // IfcShapeModel.WR11
    {1214, 3870, 3073, 3871, 3030, 5704}, // IfcShapeRepresentation.WR21
    {1214, 3870, 3257, 3872, 3030, 5713}, // IfcShapeRepresentation.WR22
    {1214, 3870, 3478, 3873, 3030, 5756}, // IfcShapeRepresentation.WR23
    {1214, 3870, 3634, 3875, 3030, 5765}, // IfcShapeRepresentation.WR24
    {1235, 3876, 3307, 3877, 3030, 5780}, // IfcSlab.WR61
    {1258, 3882, 3028, 3883, 3030, 5815}, // IfcSpaceHeaterType.WR1
    {1267, 3889, 3191, 3890, 3030, 5842}, // IfcSpatialStructureElement.WR41
    {1282, 3897, 3028, 3768, 3030, 4815}, // IfcStair.WR1
    {1305, 3907, 3307, 3908, 3030, 5897}, // IfcStructuralLinearAction.WR61
    {1321, 3920, 3307, 3921, 3030, 5932}, // IfcStructuralPlanarAction.WR61
    {1323, 3922, 3307, 3923, 3030, 5954}, // IfcStructuralPointAction.WR61
    {1325, 3924, 3307, 3923, 3030, 5954}, // IfcStructuralPointReaction.WR61
    {1326, 3925, 3073, 3926, 3030, 5976}, // IfcStructuralProfileProperties.WR21
    {1326, 3925, 3257, 3927, 3030, 5991}, // IfcStructuralProfileProperties.WR22
    {1329, 3934, 3126, 3935, 3030, 6006}, // IfcStructuralSteelProfileProperties.WR31
    {1329, 3934, 3377, 3936, 3030, 6021}, // IfcStructuralSteelProfileProperties.WR32
    {1335, 3937, 3307, 3938, 3030, 6036}, // IfcStructuralSurfaceMemberVarying.WR61
    {1335, 3937, 3939, 3940, 3030, 6045}, // IfcStructuralSurfaceMemberVarying.WR62
    {1335, 3937, 3941, 3942, 3030, 6074}, // IfcStructuralSurfaceMemberVarying.WR63
    {1338, 3948, 3126, 3949, 3030, 6130}, // IfcStructuredDimensionCallout.WR31
    {1340, 3950, 3164, 3951, 3030, 6179}, // IfcStyledItem.WR11
    {1340, 3950, 3166, 3952, 3030, 6188}, // IfcStyledItem.WR12
    {1341, 3953, 3073, 3954, 3030, 6195}, // IfcStyledRepresentation.WR21
    {1352, 3955, 3191, 3956, 3030, 6218}, // IfcSurfaceOfLinearExtrusion.WR41
    {1357, 3957, 3164, 3958, 3030, 6252}, // IfcSurfaceStyle.WR11
    {1357, 3957, 3166, 3959, 3030, 6271}, // IfcSurfaceStyle.WR12
    {1357, 3957, 3332, 3960, 3030, 6290}, // IfcSurfaceStyle.WR13
    {1357, 3957, 3961, 3962, 3030, 6309}, // IfcSurfaceStyle.WR14
    {1357, 3957, 3963, 3964, 3030, 6328}, // IfcSurfaceStyle.WR15
    {1366, 3965, 3257, 3966, 3030, 6347}, // IfcSweptAreaSolid.WR22
    {1367, 3967, 3028, 3968, 3030, 6357}, // IfcSweptDiskSolid.WR1
    {1367, 3967, 3033, 3969, 3030, 6366}, // IfcSweptDiskSolid.WR2
    {1369, 3970, 3028, 3971, 3030, 6381}, // IfcSweptSurface.WR1
    {1369, 3970, 3033, 3972, 3030, 6388}, // IfcSweptSurface.WR2
    {1379, 3979, 3028, 3980, 3030, 6412}, // IfcTable.WR1
    {1379, 3979, 3033, 3980, 3030, 6412}, // IfcTable.WR2
    {1379, 3979, 3035, 3981, 3030, 6443}, // IfcTable.WR3
    {1383, 3985, 3028, 3986, 3030, 6503}, // IfcTankType.WR1
    {1385, 3987, 3028, 3686, 3030, 4231}, // IfcTask.WR1
    {1385, 3987, 3033, 3687, 3030, 4254}, // IfcTask.WR2
    {1385, 3987, 3035, 3212, 3030, 1146}, // IfcTask.WR3
    {1391, 3988, 3028, 3989, 3030, 6530}, // IfcTelecomAddress.WR1
    {1394, 3990, 3028, 3991, 3030, 6564}, // IfcTendon.WR1
    {1412, 3992, 3126, 3993, 3030, 6591}, // IfcTextLiteralWithExtent.WR31
    {1415, 3994, 3126, 3995, 3030, 6598}, // IfcTextStyleFontModel.WR31
    {1425, 3999, 3164, 4000, 3030, 6612}, // IfcTextureMap.WR11
    {1445, 4005, 3191, 4006, 3030, 6645}, // IfcTimeSeriesSchedule.WR41
    {1450, 4007, 3073, 4008, 3030, 6664}, // IfcTopologyRepresentation.WR21
    {1450, 4007, 3257, 3873, 3030, 5756}, // IfcTopologyRepresentation.WR22
    {1450, 4007, 3478, 4010, 3030, 6687}, // IfcTopologyRepresentation.WR23
    {1474, 4011, 3191, 4012, 3030, 6702}, // IfcTrimmedCurve.WR41
    {1474, 4011, 3262, 4013, 3030, 6729}, // IfcTrimmedCurve.WR42
    {1474, 4011, 4014, 4015, 3030, 6756}, // IfcTrimmedCurve.WR43
    {1477, 3976, 3028, 3977, 3030, 6398}, // IfcTShapeProfileDef.WR1
    {1477, 3976, 3033, 3978, 3030, 6405}, // IfcTShapeProfileDef.WR2
    {1479, 4016, 3028, 4017, 3030, 6763}, // IfcTubeBundleType.WR1
    {1486, 4018, 3028, 3212, 3030, 1146}, // IfcTypeObject.WR1
    {1488, 4021, 3191, 4022, 3030, 6790}, // IfcTypeProduct.WR41
    {1497, 4028, 3028, 4029, 3030, 6849}, // IfcUnitaryEquipmentType.WR1
    {1499, 4026, 3131, 4027, 3030, 6842}, // IfcUnitAssignment.WR01
    {1502, 4023, 3073, 4024, 3030, 6832}, // IfcUShapeProfileDef.WR21
    {1502, 4023, 3257, 3978, 3030, 6405}, // IfcUShapeProfileDef.WR22
    {1505, 4030, 3028, 4031, 3030, 6876}, // IfcValveType.WR1
    {1508, 4032, 3028, 4033, 3030, 6903}, // IfcVector.WR1
    {1522, 4034, 3028, 4035, 3030, 6916}, // IfcVibrationIsolatorType.WR1
    {1535, 4036, 3028, 4037, 3030, 6943}, // IfcWall.WR1
    {1537, 4039, 3028, 4040, 3030, 6965}, // IfcWallStandardCase.WR1
    {1551, 4042, 3126, 3376, 3030, 2405}, // IfcWindowLiningProperties.WR31
    {1551, 4042, 3377, 4043, 3030, 6996}, // IfcWindowLiningProperties.WR32
    {1551, 4042, 3379, 4044, 3030, 7011}, // IfcWindowLiningProperties.WR33
    {1551, 4042, 3381, 4045, 3030, 7026}, // IfcWindowLiningProperties.WR34
    {1564, 4046, 3028, 4047, 3030, 7051}, // IfcWorkControl.WR1
    {1572, 4049, 3028, 4050, 3030, 7078}, // IfcZone.WR1
    {1573, 4048, 3073, 4024, 3030, 6832}, // IfcZShapeProfileDef.WR21
};

constexpr WhereRule typeRules[] = {
    {136, 3027, 3028, 3029, 3030, 0}, // IfcBoxAlignment.WR1
    {245, 3031, 3028, 3032, 3030, 32}, // IfcCompoundPlaneAngleMeasure.WR1
    {245, 3031, 3033, 3034, 3030, 51}, // IfcCompoundPlaneAngleMeasure.WR2
    {245, 3031, 3035, 3036, 3030, 70}, // IfcCompoundPlaneAngleMeasure.WR3
    {245, 3031, 3037, 3038, 3030, 89}, // IfcCompoundPlaneAngleMeasure.WR4
    {361, 3039, 3028, 3040, 3030, 148}, // IfcDaylightSavingHour.WR1
    {376, 3041, 3028, 3042, 3030, 163}, // IfcDimensionCount.WR1
    {603, 3046, 3028, 3047, 3030, 178}, // IfcFontStyle.WR1
    {604, 3049, 3028, 3050, 3030, 192}, // IfcFontVariant.WR1
    {605, 3060, 3028, 3061, 3030, 203}, // IfcFontWeight.WR1
    {666, 3062, 3028, 3063, 3030, 241}, // IfcHeatingValueMeasure.WR1
    {667, 3064, 3028, 3065, 3030, 247}, // IfcHourInDay.WR1
    {825, 3066, 3028, 3067, 3030, 262}, // IfcMinuteInHour.WR1
    {842, 3068, 3028, 3069, 3030, 277}, // IfcMonthInYearNumber.WR1
    {855, 3070, 3028, 3071, 3030, 292}, // IfcNormalisedRatioMeasure.WR1
    {905, 3072, 3073, 3074, 3030, 307}, // IfcPHMeasure.WR21
    {945, 3075, 3028, 3063, 3030, 241}, // IfcPositiveLengthMeasure.WR1
    {946, 3076, 3028, 3063, 3030, 241}, // IfcPositivePlaneAngleMeasure.WR1
    {947, 3077, 3028, 3063, 3030, 241}, // IfcPositiveRatioMeasure.WR1
    {1186, 3078, 3028, 3079, 3030, 322}, // IfcSecondInMinute.WR1
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
    {3, 3101, 3102, 3103, 0, 1}, // IfcActionRequest.UR2
    {73, 3139, 3140, 3141, 1, 1}, // IfcApplication.UR1
    {73, 3139, 3102, 3142, 2, 2}, // IfcApplication.UR2
    {307, 3304, 3102, 3305, 4, 1}, // IfcCostSchedule.UR2
    {611, 3486, 3487, 3488, 5, 1}, // IfcFuelProperties.UR11
    {620, 3491, 3487, 3488, 6, 1}, // IfcGeneralMaterialProperties.UR11
    {671, 3524, 3487, 3488, 7, 1}, // IfcHygroscopicMaterialProperties.UR11
    {814, 3555, 3487, 3488, 8, 1}, // IfcMechanicalMaterialProperties.UR11
    {878, 3598, 3487, 3488, 9, 1}, // IfcOpticalMaterialProperties.UR11
    {879, 3599, 3102, 3600, 10, 1}, // IfcOrderAction.UR2
    {901, 3613, 3102, 3614, 11, 1}, // IfcPermit.UR2
    {979, 3706, 3487, 3488, 12, 1}, // IfcProductsOfCombustionProperties.UR11
    {990, 3710, 3102, 3305, 13, 1}, // IfcProjectOrder.UR2
    {1001, 3725, 3140, 3727, 14, 1}, // IfcPropertyEnumeration.UR1
    {1173, 3852, 3140, 3853, 15, 1}, // IfcRoot.UR1
    {1433, 4001, 3487, 3488, 16, 1}, // IfcThermalMaterialProperties.UR11
    {1546, 4041, 3487, 3488, 17, 1}, // IfcWaterProperties.UR11
};

constexpr TextId uniqueAttributes[] = {
    2592, // REQUESTID
    1612, // APPLICATIONIDENTIFIER
    1611, // APPLICATIONFULLNAME
    2956, // VERSION
    2041, // ID
    2226, // MATERIAL
    2226, // MATERIAL
    2226, // MATERIAL
    2226, // MATERIAL
    2226, // MATERIAL
    1577, // ACTIONID
    2364, // PERMITID
    2226, // MATERIAL
    2041, // ID
    2274, // NAME
    1987, // GLOBALID
    2226, // MATERIAL
    2226, // MATERIAL
};

constexpr InverseAttribute inverseAttributes[] = {
    {7, 2079, 1087, 2532, 0, -1, 1, 0, 3104, 3105, 3106}, // IfcActor.IsActingUpon
    {13, 2312, 903, 1589, 0, -1, 1, 0, 3110, 3112, 3113}, // IfcAddress.OfPerson
    {13, 2311, 880, 1589, 0, -1, 1, 0, 3110, 3114, 3115}, // IfcAddress.OfOrganization
    {63, 1749, 1118, 2507, 0, 1, 1, 0, 3122, 3123, 3124}, // IfcAnnotation.ContainedInStructure
    {74, 2944, 1064, 2484, 0, -1, 1, 0, 3143, 3145, 3146}, // IfcAppliedValue.ValuesReferenced
    {74, 2941, 75, 1724, 0, -1, 1, 0, 3143, 3147, 3148}, // IfcAppliedValue.ValueOfComponents
    {74, 2085, 75, 1725, 0, -1, 1, 0, 3143, 3149, 3150}, // IfcAppliedValue.IsComponentIn
    {77, 1581, 78, 1616, 0, -1, 1, 0, 3151, 3152, 3153}, // IfcApproval.Actors
    {77, 2109, 80, 2494, 0, -1, 1, 0, 3151, 3154, 3155}, // IfcApproval.IsRelatedWith
    {77, 2529, 80, 2534, 0, -1, 1, 0, 3151, 3156, 3157}, // IfcApproval.Relates
    {210, 1750, 211, 2115, 0, -1, 1, 0, 3244, 3245, 3246}, // IfcClassification.Contains
    {211, 2083, 212, 2509, 0, 1, 1, 0, 3247, 3248, 3249}, // IfcClassificationItem.IsClassifiedItemIn
    {211, 2084, 212, 2547, 0, 1, 1, 0, 3247, 3250, 3251}, // IfcClassificationItem.IsClassifyingItemIn
    {243, 2934, 241, 2657, 1, -1, 1, 0, 3264, 3266, 3267}, // IfcCompositeCurveSegment.UsingCurves
    {265, 1702, 267, 1703, 0, -1, 1, 0, 3276, 3278, 3279}, // IfcConstraint.ClassifiedAs
    {265, 2530, 269, 2538, 0, -1, 1, 0, 3276, 3280, 3281}, // IfcConstraint.RelatesConstraints
    {265, 2109, 269, 2500, 0, -1, 1, 0, 3276, 3154, 3282}, // IfcConstraint.IsRelatedWith
    {265, 2428, 997, 2538, 0, -1, 1, 0, 3276, 3283, 3284}, // IfcConstraint.PropertiesForConstraint
    {265, 1593, 266, 2538, 0, -1, 1, 0, 3276, 3285, 3286}, // IfcConstraint.Aggregates
    {265, 2080, 266, 2500, 0, -1, 1, 0, 3276, 3287, 3288}, // IfcConstraint.IsAggregatedIn
    {284, 1759, 1088, 2540, 0, -1, 1, 0, 3297, 3298, 3299}, // IfcControl.Controls
    {314, 1778, 1120, 2502, 0, 1, 1, 0, 3306, 3309, 3310}, // IfcCovering.CoversSpaces
    {314, 1776, 1119, 2502, 0, 1, 1, 0, 3306, 3311, 3312}, // IfcCovering.Covers
    {377, 1602, 1403, 1603, 0, 2, 1, 0, 3335, 3345, 3346}, // IfcDimensionCurve.AnnotatedBySymbols
    {398, 1630, 1129, 2501, 0, 1, 1, 0, 3358, 3359, 3360}, // IfcDistributionControlElement.AssignedToFlowElement
    {402, 2000, 1129, 2545, 0, 1, 1, 0, 3361, 3362, 3363}, // IfcDistributionFlowElement.HasControlElements
    {410, 2102, 411, 2504, 0, -1, 1, 0, 3366, 3367, 3368}, // IfcDocumentInformation.IsPointedTo
    {410, 2103, 411, 2542, 0, 1, 1, 0, 3366, 3369, 3370}, // IfcDocumentInformation.IsPointer
    {412, 2482, 410, 1861, 0, 1, 1, 0, 3371, 3373, 3374}, // IfcDocumentReference.ReferenceToDocument
    {428, 2107, 430, 2505, 0, -1, 1, 0, 3386, 3387, 3388}, // IfcDraughtingCallout.IsRelatedFromCallout
    {428, 2108, 430, 2543, 0, -1, 1, 0, 3386, 3389, 3390}, // IfcDraughtingCallout.IsRelatedToCallout
    {492, 2022, 1114, 2544, 0, -1, 1, 0, 3424, 3425, 3426}, // IfcElement.HasStructuralMember
    {492, 1938, 1128, 2496, 0, 1, 1, 0, 3424, 3427, 3428}, // IfcElement.FillsVoids
    {492, 1738, 1109, 2544, 0, -1, 1, 0, 3424, 3429, 3430}, // IfcElement.ConnectedTo
    {492, 2002, 1119, 2535, 0, -1, 1, 0, 3424, 3431, 3432}, // IfcElement.HasCoverings
    {492, 2013, 1136, 2544, 0, -1, 1, 0, 3424, 3433, 3434}, // IfcElement.HasProjections
    {492, 2472, 1137, 2507, 0, -1, 1, 0, 3424, 3435, 3436}, // IfcElement.ReferencedInStructures
    {492, 2012, 1112, 2506, 0, -1, 1, 0, 3424, 3437, 3438}, // IfcElement.HasPorts
    {492, 2011, 1144, 2535, 0, -1, 1, 0, 3424, 3439, 3440}, // IfcElement.HasOpenings
    {492, 2086, 1117, 2459, 0, -1, 1, 0, 3424, 3441, 3442}, // IfcElement.IsConnectionRealization
    {492, 2436, 1141, 2496, 0, -1, 1, 0, 3424, 3443, 3444}, // IfcElement.ProvidesBoundaries
    {492, 1737, 1109, 2506, 0, -1, 1, 0, 3424, 3445, 3446}, // IfcElement.ConnectedFrom
    {492, 1749, 1118, 2507, 0, 1, 1, 0, 3424, 3123, 3124}, // IfcElement.ContainedInStructure
    {563, 2426, 1136, 2508, 1, 1, 0, 0, 3464, 3465, 3466}, // IfcFeatureElementAddition.ProjectsElements
    {564, 2970, 1144, 2514, 1, 1, 0, 0, 3467, 3468, 3469}, // IfcFeatureElementSubtraction.VoidsElements
    {628, 2023, 630, 2347, 0, -1, 1, 0, 3496, 3497, 3498}, // IfcGeometricRepresentationContext.HasSubContexts
    {651, 1749, 1118, 2507, 0, 1, 1, 0, 3504, 3123, 3124}, // IfcGrid.ContainedInStructure
    {652, 2359, 651, 2985, 0, 1, 1, 0, 3506, 3509, 3510}, // IfcGridAxis.PartOfW
    {652, 2358, 651, 2951, 0, 1, 1, 0, 3506, 3511, 3512}, // IfcGridAxis.PartOfV
    {652, 2357, 651, 2889, 0, 1, 1, 0, 3506, 3513, 3514}, // IfcGridAxis.PartOfU
    {652, 2009, 1527, 2075, 0, -1, 1, 0, 3506, 3515, 3516}, // IfcGridAxis.HasIntersections
    {659, 2093, 1089, 2546, 1, 1, 0, 0, 3517, 3518, 3519}, // IfcGroup.IsGroupedBy
    {728, 2477, 727, 2154, 0, 1, 1, 0, 3534, 3535, 3536}, // IfcLibraryReference.ReferenceIntoLibrary
    {788, 2019, 793, 2590, 0, 1, 1, 0, 3545, 3546, 3547}, // IfcMaterial.HasRepresentation
    {788, 1702, 789, 1704, 0, 1, 1, 0, 3545, 3278, 3548}, // IfcMaterial.ClassifiedAs
    {794, 2842, 795, 2230, 1, 1, 0, 0, 3551, 3552, 3553}, // IfcMaterialLayer.ToMaterialLayerSet
    {858, 2091, 1123, 2512, 0, -1, 1, 0, 3569, 3571, 3572}, // IfcObject.IsDefinedBy
    {859, 1995, 1085, 2512, 0, -1, 1, 0, 3573, 3574, 3575}, // IfcObjectDefinition.HasAssignments
    {859, 2090, 1122, 2551, 0, -1, 1, 0, 3573, 3576, 3577}, // IfcObjectDefinition.IsDecomposedBy
    {859, 1811, 1122, 2512, 0, 1, 1, 0, 3573, 3578, 3579}, // IfcObjectDefinition.Decomposes
    {859, 1996, 1095, 2512, 0, -1, 1, 0, 3573, 3580, 3581}, // IfcObjectDefinition.HasAssociations
    {862, 2375, 974, 2299, 1, 1, 1, 0, 3582, 3583, 3584}, // IfcObjectPlacement.PlacesObject
    {862, 2469, 764, 2374, 0, -1, 1, 0, 3582, 3585, 3586}, // IfcObjectPlacement.ReferencedByPlacements
    {874, 2006, 1128, 2552, 0, -1, 1, 0, 3595, 3596, 3597}, // IfcOpeningElement.HasFillings
    {880, 2106, 881, 2515, 0, -1, 1, 0, 3601, 3602, 3603}, // IfcOrganization.IsRelatedBy
    {880, 2529, 881, 2553, 0, -1, 1, 0, 3601, 3156, 3604}, // IfcOrganization.Relates
    {880, 1909, 904, 2803, 0, -1, 1, 0, 3601, 3605, 3606}, // IfcOrganization.Engages
    {903, 1908, 904, 2805, 0, -1, 1, 0, 3615, 3617, 3618}, // IfcPerson.EngagedIn
    {908, 2352, 906, 2017, 0, 1, 1, 0, 3621, 3622, 3623}, // IfcPhysicalQuantity.PartOfComplex
    {942, 1748, 1112, 2554, 1, 1, 0, 0, 3643, 3644, 3645}, // IfcPort.ContainedIn
    {942, 1737, 1111, 2516, 0, 1, 1, 0, 3643, 3445, 3646}, // IfcPort.ConnectedFrom
    {942, 1738, 1111, 2554, 0, 1, 1, 0, 3643, 3429, 3647}, // IfcPort.ConnectedTo
    {972, 2317, 1091, 2557, 0, -1, 1, 0, 3689, 3690, 3691}, // IfcProcess.OperatesOn
    {972, 2111, 1139, 2518, 0, -1, 1, 0, 3689, 3692, 3693}, // IfcProcess.IsSuccessorFrom
    {972, 2105, 1139, 2557, 0, -1, 1, 0, 3689, 3694, 3695}, // IfcProcess.IsPredecessorTo
    {974, 2468, 1092, 2558, 0, -1, 1, 0, 3696, 3698, 3699}, // IfcProduct.ReferencedBy
    {975, 2675, 974, 2582, 1, 1, 1, 0, 3700, 3702, 3703}, // IfcProductDefinitionShape.ShapeOfProduct
    {975, 2021, 1212, 2354, 0, -1, 1, 0, 3700, 3704, 3705}, // IfcProductDefinitionShape.HasShapeAspects
    {994, 2431, 999, 1829, 0, -1, 1, 0, 3711, 3712, 3713}, // IfcProperty.PropertyForDependance
    {994, 2430, 999, 1828, 0, -1, 1, 0, 3711, 3714, 3715}, // IfcProperty.PropertyDependsOn
    {994, 2352, 238, 2014, 0, 1, 1, 0, 3711, 3622, 3716}, // IfcProperty.PartOfComplex
    {998, 1996, 1095, 2512, 0, -1, 1, 0, 3720, 3580, 3581}, // IfcPropertyDefinition.HasAssociations
    {1005, 2429, 1125, 2561, 0, 1, 1, 0, 3731, 3732, 3733}, // IfcPropertySetDefinition.PropertyDefinitionOf
    {1005, 1816, 1486, 2015, 0, 1, 1, 0, 3731, 3734, 3735}, // IfcPropertySetDefinition.DefinesType
    {1146, 2585, 1149, 2213, 0, 1, 1, 0, 3829, 3830, 3831}, // IfcRepresentation.RepresentationMap
    {1146, 2139, 963, 1628, 0, -1, 1, 0, 3829, 3832, 3833}, // IfcRepresentation.LayerAssignments
    {1146, 2313, 976, 2587, 0, 1, 1, 0, 3829, 3834, 3835}, // IfcRepresentation.OfProductRepresentation
    {1147, 2588, 1146, 1754, 0, -1, 1, 0, 3836, 3837, 3838}, // IfcRepresentationContext.RepresentationsInContext
    {1148, 2139, 963, 1628, 0, -1, 1, 0, 3839, 3832, 3833}, // IfcRepresentationItem.LayerAssignments
    {1148, 2743, 1340, 2114, 0, 1, 1, 0, 3839, 3840, 3841}, // IfcRepresentationItem.StyledByItem
    {1149, 2221, 779, 2216, 0, -1, 1, 0, 3842, 3843, 3844}, // IfcRepresentationMap.MapUsage
    {1150, 2597, 1094, 2563, 0, -1, 1, 0, 3845, 3846, 3847}, // IfcResource.ResourceOf
    {1183, 2637, 1086, 2824, 1, 1, 0, 0, 3857, 3858, 3859}, // IfcScheduleTimeControl.ScheduleTimeControlAssigned
    {1213, 2314, 1212, 2676, 0, 1, 1, 0, 3866, 3868, 3869}, // IfcShapeModel.OfShapeAspect
    {1255, 2002, 1120, 2523, 0, -1, 1, 0, 3878, 3431, 3879}, // IfcSpace.HasCoverings
    {1255, 1676, 1141, 2564, 0, -1, 1, 0, 3878, 3880, 3881}, // IfcSpace.BoundedBy
    {1260, 2007, 1130, 2524, 0, -1, 1, 0, 3884, 3885, 3886}, // IfcSpaceProgram.HasInteractionReqsFrom
    {1260, 2008, 1130, 2565, 0, -1, 1, 0, 3884, 3887, 3888}, // IfcSpaceProgram.HasInteractionReqsTo
    {1267, 2480, 1137, 2567, 0, -1, 1, 0, 3889, 3891, 3892}, // IfcSpatialStructureElement.ReferencesElements
    {1267, 2667, 1140, 2497, 0, -1, 1, 0, 3889, 3893, 3894}, // IfcSpatialStructureElement.ServicedBySystems
    {1267, 1751, 1118, 2567, 0, -1, 1, 0, 3889, 3895, 3896}, // IfcSpatialStructureElement.ContainsElements
    {1291, 1631, 1113, 2525, 1, 1, 0, 0, 3898, 3899, 3900}, // IfcStructuralActivity.AssignedToStructuralItem
    {1294, 1742, 1115, 2526, 1, -1, 1, 0, 3901, 3902, 3903}, // IfcStructuralConnection.ConnectsStructuralMembers
    {1304, 1629, 1113, 2544, 0, -1, 1, 0, 3904, 3905, 3906}, // IfcStructuralItem.AssignedStructuralActivity
    {1310, 2710, 1328, 2602, 0, 1, 1, 0, 3910, 3911, 3912}, // IfcStructuralLoadGroup.SourceOfResultGroup
    {1310, 2187, 1293, 2186, 0, -1, 1, 0, 3910, 3913, 3914}, // IfcStructuralLoadGroup.LoadGroupFor
    {1320, 2479, 1114, 2527, 0, -1, 1, 0, 3915, 3916, 3917}, // IfcStructuralMember.ReferencesElement
    {1320, 1736, 1115, 2566, 0, -1, 1, 0, 3915, 3918, 3919}, // IfcStructuralMember.ConnectedBy
    {1327, 1694, 1290, 1693, 0, -1, 1, 0, 3928, 3929, 3930}, // IfcStructuralReaction.Causes
    {1328, 2603, 1293, 2020, 0, 1, 1, 0, 3931, 3932, 3933}, // IfcStructuralResultGroup.ResultGroupFor
    {1375, 2670, 1140, 2568, 0, 1, 1, 0, 3973, 3974, 3975}, // IfcSystem.ServicesBuildings
    {1381, 2315, 1379, 2623, 1, 1, 0, 0, 3982, 3983, 3984}, // IfcTableRow.OfTable
    {1421, 1604, 68, 2795, 1, 1, 1, 0, 3996, 3997, 3998}, // IfcTextureCoordinate.AnnotatedSurface
    {1442, 1857, 1444, 2475, 0, 1, 1, 0, 4002, 4003, 4004}, // IfcTimeSeries.DocumentedBy
    {1486, 2301, 1127, 2570, 0, 1, 1, 0, 4018, 4019, 4020}, // IfcTypeObject.ObjectTypeOf
};

constexpr DerivedAttribute derivedAttributes[] = {
    {97, 3014, 863}, // IFCAXIS1PLACEMENT.Z
    {99, 2336, 914}, // IFCAXIS2PLACEMENT2D.P
    {100, 2336, 981}, // IFCAXIS2PLACEMENT3D.P
    {124, 1838, 1126}, // IFCBOOLEANRESULT.DIM
    {135, 1838, 1132}, // IFCBOUNDINGBOX.DIM
    {142, 1757, 1018}, // IFCBSPLINECURVE.CONTROLPOINTS
    {142, 2904, 1034}, // IFCBSPLINECURVE.UPPERINDEXONCONTROLPOINTS
    {185, 1838, 1257}, // IFCCARTESIANPOINT.DIM
    {189, 2641, 1270}, // IFCCARTESIANTRANSFORMATIONOPERATOR.SCL
    {189, 1838, 1278}, // IFCCARTESIANTRANSFORMATIONOPERATOR.DIM
    {190, 2886, 1340}, // IFCCARTESIANTRANSFORMATIONOPERATOR2D.U
    {191, 2642, 1366}, // IFCCARTESIANTRANSFORMATIONOPERATOR2DNONUNIFORM.SCL2
    {192, 2886, 1450}, // IFCCARTESIANTRANSFORMATIONOPERATOR3D.U
    {193, 2642, 1366}, // IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM.SCL2
    {193, 2643, 1477}, // IFCCARTESIANTRANSFORMATIONOPERATOR3DNONUNIFORM.SCL3
    {241, 2286, 1663}, // IFCCOMPOSITECURVE.NSEGMENTS
    {241, 1706, 1669}, // IFCCOMPOSITECURVE.CLOSEDCURVE
    {243, 1838, 1688}, // IFCCOMPOSITECURVESEGMENT.DIM
    {322, 1838, 1132}, // IFCCSGPRIMITIVE3D.DIM
    {332, 1838, 1972}, // IFCCURVE.DIM
    {333, 1838, 1978}, // IFCCURVEBOUNDEDPLANE.DIM
    {369, 1839, 2115}, // IFCDERIVEDUNIT.DIMENSIONS
    {382, 1838, 2372}, // IFCDIRECTION.DIM
    {456, 2275, 2696}, // IFCEDGELOOP.NE
    {493, 1838, 2756}, // IFCELEMENTARYSURFACE.DIM
    {543, 1838, 1132}, // IFCFACEBASEDSURFACEMODEL.DIM
    {630, 3003, 3194}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.WORLDCOORDINATESYSTEM
    {630, 1764, 3200}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.COORDINATESPACEDIMENSION
    {630, 2883, 3206}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.TRUENORTH
    {630, 2401, 3221}, // IFCGEOMETRICREPRESENTATIONSUBCONTEXT.PRECISION
    {631, 1838, 3258}, // IFCGEOMETRICSET.DIM
    {660, 1838, 1132}, // IFCHALFSPACESOLID.DIM
    {795, 2856, 3526}, // IFCMATERIALLAYERSET.TOTALTHICKNESS
    {884, 1878, 3781}, // IFCORIENTEDEDGE.EDGESTART
    {884, 1874, 3796}, // IFCORIENTEDEDGE.EDGEEND
    {921, 1838, 3972}, // IFCPLACEMENT.DIM
    {934, 1838, 3978}, // IFCPOINTONCURVE.DIM
    {935, 1838, 1978}, // IFCPOINTONSURFACE.DIM
    {1052, 2990, 4871}, // IFCRATIONALBEZIERCURVE.WEIGHTS
    {1060, 1838, 1978}, // IFCRECTANGULARTRIMMEDSURFACE.DIM
    {1158, 1641, 5555}, // IFCREVOLVEDAREASOLID.AXISLINE
    {1191, 1838, 1132}, // IFCSECTIONEDSPINE.DIM
    {1217, 1838, 1132}, // IFCSHELLBASEDSURFACEMODEL.DIM
    {1232, 1839, 5600}, // IFCSIUNIT.DIMENSIONS
    {1245, 1838, 1132}, // IFCSOLIDMODEL.DIM
    {1306, 2948, 5919}, // IFCSTRUCTURALLINEARACTIONVARYING.VARYINGAPPLIEDLOADS
    {1322, 2948, 5919}, // IFCSTRUCTURALPLANARACTIONVARYING.VARYINGAPPLIEDLOADS
    {1335, 2949, 6117}, // IFCSTRUCTURALSURFACEMEMBERVARYING.VARYINGTHICKNESS
    {1352, 1923, 6225}, // IFCSURFACEOFLINEAREXTRUSION.EXTRUSIONAXIS
    {1353, 1641, 6234}, // IFCSURFACEOFREVOLUTION.AXISLINE
    {1369, 1838, 2756}, // IFCSWEPTSURFACE.DIM
    {1379, 2287, 6459}, // IFCTABLE.NUMBEROFCELLSINROW
    {1379, 2289, 6470}, // IFCTABLE.NUMBEROFHEADINGS
    {1379, 2288, 6486}, // IFCTABLE.NUMBEROFDATAROWS
    {1508, 1838, 6910}, // IFCVECTOR.DIM
};

constexpr Function functions[] = {
    {3178, 1, 11693}, // IFCNORMALISE
    {3182, 1, 7617}, // IFCBUILD2AXES
    {3185, 2, 9562}, // IFCCROSSPRODUCT
    {3189, 2, 7650}, // IFCBUILDAXES
    {3193, 3, 11437}, // IFCLISTTOARRAY
    {3219, 1, 13530}, // IFCVALIDCALENDARDATE
    {3230, 4, 7345}, // IFCBASEAXIS
    {3256, 1, 13464}, // IFCUNIQUEPROPERTYNAME
    {3313, 1, 9792}, // IFCCURVEDIM
    {3326, 1, 9978}, // IFCDERIVEDIMENSIONALEXPONENTS
    {3420, 1, 11533}, // IFCLOOPHEADTOTAIL
    {3457, 2, 11126}, // IFCDOTPRODUCT
    {3473, 1, 8841}, // IFCCORRECTFILLAREASTYLE
    {3539, 2, 8994}, // IFCCORRECTLOCALPLACEMENT
    {3542, 1, 13720}, // IFCVALIDTIME
    {3554, 1, 11613}, // IFCMLSTOTALTHICKNESS
    {3566, 2, 7707}, // IFCCORRECTDIMENSIONS
    {3609, 3, 7602}, // IFCBOOLEANCHOOSE
    {3610, 1, 12010}, // IFCPATHHEADTOTAIL
    {3771, 1, 9915}, // IFCCURVEWEIGHTSPOSITIVE
    {3784, 2, 9054}, // IFCCORRECTOBJECTASSIGNMENT
    {3856, 1, 10237}, // IFCDIMENSIONSFORSIUNIT
    {3874, 2, 12725}, // IFCSHAPEREPRESENTATIONTYPES
    {3909, 2, 7254}, // IFCADDTOBEGINOFLIST
    {4009, 2, 13300}, // IFCTOPOLOGYREPRESENTATIONTYPES
    {4025, 1, 9319}, // IFCCORRECTUNITASSIGNMENT
    {4051, 2, 12397}, // IFCSAMEVALIDPRECISION
    {4052, 3, 12094}, // IFCSAMEAXIS2PLACEMENT
    {4059, 2, 11246}, // IFCFIRSTPROJAXIS
    {4060, 3, 12636}, // IFCSECONDPROJAXIS
    {4061, 1, 11960}, // IFCORTHOGONALCOMPLEMENT
    {4122, 2, 12499}, // IFCSCALARTIMESVECTOR
    {4123, 2, 13742}, // IFCVECTORDIFFERENCE
    {4124, 1, 11396}, // IFCLEAPYEAR
    {4125, 3, 12276}, // IFCSAMEDIRECTION
    {4126, 3, 12155}, // IFCSAMECARTESIANPOINT
    {4127, 3, 12464}, // IFCSAMEVALUE
    {4148, 2, 13991}, // IFCVECTORSUM
};

} // namespace

RuleTables tablesOfIFC2X3() noexcept;
RuleTables tablesOfIFC2X3() noexcept {
    return {"IFC2X3", entityRules, typeRules, globalRules, uniqueRules, uniqueAttributes, inverseAttributes, derivedAttributes, functions};
}

} // namespace velkor::rules
