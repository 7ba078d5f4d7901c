// Made by velkor-rulegen from IFC2X3.exp (SHA-256 e18a1b2c3e29f5256904c83378ccad0850f52287a8d0122d149aba4a417fe5e5); do not edit.

#include "RuleTables.h"

namespace velkor::rules {

namespace {

constexpr WhereRule entityRules[] = {
    {0, 3117, 3028, 3118, 3119, 391}, // Ifc2DCompositeCurve.WR1
    {0, 3117, 3034, 3120, 3121, 398}, // Ifc2DCompositeCurve.WR2
    {8, 3129, 3028, 3130, 3131, 408}, // IfcActorRole.WR1
    {13, 3132, 3028, 3133, 3134, 432}, // IfcAddress.WR1
    {21, 3139, 3028, 3140, 3141, 464}, // IfcAirTerminalBoxType.WR1
    {23, 3142, 3028, 3143, 3141, 491}, // IfcAirTerminalType.WR1
    {26, 3144, 3028, 3145, 3141, 518}, // IfcAirToAirHeatRecoveryType.WR1
    {64, 3149, 3150, 3151, 3152, 545}, // IfcAnnotationCurveOccurrence.WR31
    {66, 3153, 3150, 3154, 3155, 565}, // IfcAnnotationFillAreaOccurrence.WR31
    {68, 3156, 3157, 3158, 3159, 585}, // IfcAnnotationSurface.WR01
    {69, 3160, 3150, 3161, 3162, 616}, // IfcAnnotationSurfaceOccurrence.WR31
    {70, 3163, 3150, 3164, 3165, 655}, // IfcAnnotationSymbolOccurrence.WR31
    {71, 3166, 3150, 3167, 3168, 675}, // IfcAnnotationTextOccurrence.WR31
    {74, 3173, 3028, 3174, 3175, 695}, // IfcAppliedValue.WR1
    {81, 3189, 3028, 3190, 3191, 708}, // IfcArbitraryClosedProfileDef.WR1
    {81, 3189, 3034, 3192, 3193, 717}, // IfcArbitraryClosedProfileDef.WR2
    {81, 3189, 3037, 3194, 3195, 724}, // IfcArbitraryClosedProfileDef.WR3
    {82, 3197, 3198, 3199, 3200, 731}, // IfcArbitraryOpenProfileDef.WR11
    {82, 3197, 3201, 3202, 3203, 748}, // IfcArbitraryOpenProfileDef.WR12
    {83, 3205, 3028, 3206, 3207, 757}, // IfcArbitraryProfileDefWithVoids.WR1
    {83, 3205, 3034, 3208, 3209, 768}, // IfcArbitraryProfileDefWithVoids.WR2
    {83, 3205, 3037, 3210, 3211, 790}, // IfcArbitraryProfileDefWithVoids.WR3
    {92, 3212, 3028, 3213, 3214, 809}, // IfcAsset.WR1
    {97, 3215, 3028, 3216, 3217, 834}, // IfcAxis1Placement.WR1
    {97, 3215, 3034, 3218, 3219, 851}, // IfcAxis1Placement.WR2
    {99, 3221, 3028, 3222, 3223, 885}, // IfcAxis2Placement2D.WR1
    {99, 3221, 3034, 3224, 3225, 902}, // IfcAxis2Placement2D.WR2
    {100, 3227, 3028, 3218, 3219, 851}, // IfcAxis2Placement3D.WR1
    {100, 3227, 3034, 3216, 3217, 834}, // IfcAxis2Placement3D.WR2
    {100, 3227, 3037, 3228, 3229, 922}, // IfcAxis2Placement3D.WR3
    {100, 3227, 3040, 3231, 3232, 939}, // IfcAxis2Placement3D.WR4
    {100, 3227, 3233, 3234, 3235, 969}, // IfcAxis2Placement3D.WR5
    {115, 3246, 3198, 3247, 3248, 1043}, // IfcBlobTexture.WR11
    {118, 3249, 3028, 3250, 3141, 1061}, // IfcBoilerType.WR1
    {121, 3251, 3028, 3252, 3253, 1088}, // IfcBooleanClippingResult.WR1
    {121, 3251, 3034, 3254, 3255, 1101}, // IfcBooleanClippingResult.WR2
    {121, 3251, 3037, 3257, 3258, 1107}, // IfcBooleanClippingResult.WR3
    {124, 3259, 3028, 3260, 3261, 1115}, // IfcBooleanResult.WR1
    {137, 3262, 3028, 3263, 3264, 1136}, // IfcBoxedHalfSpace.WR1
    {142, 3237, 3238, 3239, 3240, 991}, // IfcBSplineCurve.WR41
    {154, 3265, 3028, 3266, 3267, 1146}, // IfcBuildingElementProxy.WR1
    {169, 3275, 3028, 3276, 3141, 1215}, // IfcCableCarrierFittingType.WR1
    {183, 3278, 3087, 3279, 3280, 1242}, // IfcCalendarDate.WR21
    {185, 3281, 3028, 3282, 3283, 1248}, // IfcCartesianPoint.WR1
    {189, 3284, 3028, 3285, 3286, 1263}, // IfcCartesianTransformationOperator.WR1
    {190, 3287, 3028, 3288, 3121, 1284}, // IfcCartesianTransformationOperator2D.WR1
    {190, 3287, 3034, 3289, 3290, 1294}, // IfcCartesianTransformationOperator2D.WR2
    {190, 3287, 3037, 3291, 3292, 1317}, // IfcCartesianTransformationOperator2D.WR3
    {191, 3294, 3028, 3295, 3296, 1359}, // IfcCartesianTransformationOperator2DnonUniform.WR1
    {192, 3297, 3028, 3298, 3299, 1377}, // IfcCartesianTransformationOperator3D.WR1
    {192, 3297, 3034, 3300, 3301, 1387}, // IfcCartesianTransformationOperator3D.WR2
    {192, 3297, 3037, 3302, 3303, 1410}, // IfcCartesianTransformationOperator3D.WR3
    {192, 3297, 3040, 3304, 3305, 1433}, // IfcCartesianTransformationOperator3D.WR4
    {193, 3306, 3028, 3295, 3296, 1359}, // IfcCartesianTransformationOperator3DnonUniform.WR1
    {193, 3306, 3034, 3307, 3308, 1470}, // IfcCartesianTransformationOperator3DnonUniform.WR2
    {199, 3309, 3028, 3310, 3141, 1488}, // IfcChillerType.WR1
    {205, 3311, 3028, 3312, 3313, 1515}, // IfcCircleHollowProfileDef.WR1
    {222, 3322, 3028, 3323, 3141, 1525}, // IfcCoilType.WR1
    {238, 3324, 3087, 3325, 3326, 1552}, // IfcComplexProperty.WR21
    {238, 3324, 3328, 3329, 3330, 1571}, // IfcComplexProperty.WR22
    {241, 3332, 3238, 3333, 3334, 1578}, // IfcCompositeCurve.WR41
    {241, 3332, 3335, 3336, 3337, 1636}, // IfcCompositeCurve.WR42
    {243, 3338, 3028, 3339, 3340, 1682}, // IfcCompositeCurveSegment.WR1
    {244, 3343, 3028, 3344, 3345, 1694}, // IfcCompositeProfileDef.WR1
    {244, 3343, 3034, 3346, 3347, 1721}, // IfcCompositeProfileDef.WR2
    {247, 3348, 3028, 3349, 3141, 1740}, // IfcCompressorType.WR1
    {250, 3350, 3028, 3351, 3141, 1767}, // IfcCondenserType.WR1
    {253, 3352, 3028, 3266, 3267, 1146}, // IfcConditionCriterion.WR1
    {265, 3353, 3198, 3354, 3355, 1794}, // IfcConstraint.WR11
    {266, 3367, 3198, 3368, 3369, 1821}, // IfcConstraintAggregationRelationship.WR11
    {269, 3370, 3198, 3368, 3369, 1821}, // IfcConstraintRelationship.WR11
    {273, 3371, 3028, 3372, 3373, 1841}, // IfcConstructionMaterialResource.WR1
    {273, 3371, 3034, 3375, 3376, 1853}, // IfcConstructionMaterialResource.WR2
    {276, 3377, 3028, 3372, 3373, 1841}, // IfcConstructionProductResource.WR1
    {276, 3377, 3034, 3375, 3376, 1853}, // IfcConstructionProductResource.WR2
    {294, 3381, 3028, 3382, 3141, 1883}, // IfcCooledBeamType.WR1
    {297, 3383, 3028, 3384, 3141, 1910}, // IfcCoolingTowerType.WR1
    {314, 3387, 3388, 3389, 3390, 1937}, // IfcCovering.WR61
    {325, 3268, 3028, 3269, 3270, 1155}, // IfcCShapeProfileDef.WR1
    {325, 3268, 3034, 3271, 3272, 1165}, // IfcCShapeProfileDef.WR2
    {325, 3268, 3037, 3273, 3274, 1194}, // IfcCShapeProfileDef.WR3
    {342, 3397, 3198, 3398, 3399, 1984}, // IfcCurveStyle.WR11
    {345, 3400, 3157, 3401, 3402, 2013}, // IfcCurveStyleFontPattern.WR01
    {349, 3403, 3028, 3404, 3141, 2020}, // IfcDamperType.WR1
    {368, 3405, 3028, 3406, 3407, 2047}, // IfcDerivedProfileDef.WR1
    {369, 3408, 3028, 3409, 3410, 2059}, // IfcDerivedUnit.WR1
    {369, 3408, 3034, 3411, 3412, 2091}, // IfcDerivedUnit.WR2
    {375, 3416, 3198, 3417, 3418, 2122}, // IfcDimensionCalloutRelationship.WR11
    {375, 3416, 3201, 3419, 3420, 2137}, // IfcDimensionCalloutRelationship.WR12
    {375, 3416, 3421, 3422, 3423, 2165}, // IfcDimensionCalloutRelationship.WR13
    {377, 3425, 3426, 3427, 3428, 2175}, // IfcDimensionCurve.WR51
    {377, 3425, 3432, 3433, 3434, 2187}, // IfcDimensionCurve.WR52
    {377, 3425, 3435, 3436, 3437, 2240}, // IfcDimensionCurve.WR53
    {378, 3440, 3238, 3441, 3442, 2260}, // IfcDimensionCurveDirectedCallout.WR41
    {378, 3440, 3335, 3443, 3444, 2282}, // IfcDimensionCurveDirectedCallout.WR42
    {379, 3445, 3388, 3446, 3447, 2301}, // IfcDimensionCurveTerminator.WR61
    {381, 3450, 3198, 3451, 3452, 2310}, // IfcDimensionPair.WR11
    {381, 3450, 3201, 3453, 3420, 2322}, // IfcDimensionPair.WR12
    {381, 3450, 3421, 3454, 3455, 2347}, // IfcDimensionPair.WR13
    {409, 3462, 3028, 3463, 3464, 2378}, // IfcDocumentElectronicFormat.WR1
    {412, 3470, 3028, 3471, 3472, 2391}, // IfcDocumentReference.WR1
    {416, 3475, 3150, 3476, 3477, 2405}, // IfcDoorLiningProperties.WR31
    {416, 3475, 3478, 3479, 3480, 2420}, // IfcDoorLiningProperties.WR32
    {416, 3475, 3481, 3482, 3483, 2435}, // IfcDoorLiningProperties.WR33
    {416, 3475, 3484, 3485, 3486, 2462}, // IfcDoorLiningProperties.WR34
    {416, 3475, 3487, 3488, 3489, 2489}, // IfcDoorLiningProperties.WR35
    {419, 3490, 3150, 3488, 3489, 2489}, // IfcDoorPanelProperties.WR31
    {431, 3504, 3150, 3505, 3506, 2514}, // IfcDraughtingPreDefinedColour.WR31
    {432, 3512, 3150, 3513, 3514, 2550}, // IfcDraughtingPreDefinedCurveFont.WR31
    {433, 3517, 3150, 3518, 3519, 2577}, // IfcDraughtingPreDefinedTextFont.WR31
    {435, 3520, 3034, 3521, 3141, 2592}, // IfcDuctFittingType.WR2
    {438, 3522, 3028, 3523, 3141, 2619}, // IfcDuctSegmentType.WR1
    {441, 3524, 3028, 3525, 3141, 2646}, // IfcDuctSilencerType.WR1
    {456, 3526, 3028, 3527, 3528, 2673}, // IfcEdgeLoop.WR1
    {456, 3526, 3034, 3530, 3531, 2690}, // IfcEdgeLoop.WR2
    {471, 3532, 3150, 3533, 3534, 2702}, // IfcElectricDistributionPoint.WR31
    {494, 3558, 3028, 3559, 3560, 2729}, // IfcElementAssembly.WR1
    {513, 3561, 3028, 3562, 3563, 2762}, // IfcEnvironmentalImpactValue.WR1
    {517, 3564, 3028, 3565, 3141, 2789}, // IfcEvaporativeCoolerType.WR1
    {520, 3566, 3028, 3567, 3141, 2816}, // IfcEvaporatorType.WR1
    {535, 3568, 3028, 3569, 3570, 2843}, // IfcExternalReference.WR1
    {540, 3572, 3150, 3573, 3574, 2863}, // IfcExtrudedAreaSolid.WR31
    {542, 3575, 3028, 3576, 3577, 2886}, // IfcFace.WR1
    {557, 3578, 3028, 3579, 3141, 2905}, // IfcFanType.WR1
    {565, 3586, 3198, 3587, 3588, 2932}, // IfcFillAreaStyle.WR11
    {565, 3586, 3201, 3589, 3590, 2951}, // IfcFillAreaStyle.WR12
    {565, 3586, 3421, 3592, 3593, 2970}, // IfcFillAreaStyle.WR13
    {566, 3594, 3087, 3595, 3596, 2977}, // IfcFillAreaStyleHatching.WR21
    {566, 3594, 3328, 3597, 3598, 2984}, // IfcFillAreaStyleHatching.WR22
    {566, 3594, 3599, 3600, 3601, 3001}, // IfcFillAreaStyleHatching.WR23
    {575, 3602, 3028, 3603, 3141, 3018}, // IfcFilterType.WR1
    {590, 3604, 3028, 3605, 3141, 3045}, // IfcFlowMeterType.WR1
    {606, 3606, 3028, 3607, 3560, 3072}, // IfcFooting.WR1
    {618, 3611, 3028, 3612, 3141, 3099}, // IfcGasTerminalType.WR1
    {621, 3614, 3028, 3615, 3616, 3126}, // IfcGeneralProfileProperties.WR1
    {626, 3617, 3028, 3618, 3619, 3141}, // IfcGeometricCurveSet.WR1
    {630, 3623, 3150, 3624, 3625, 3163}, // IfcGeometricRepresentationSubContext.WR31
    {630, 3623, 3478, 3626, 3627, 3170}, // IfcGeometricRepresentationSubContext.WR32
    {631, 3628, 3087, 3629, 3630, 3231}, // IfcGeometricSet.WR21
    {651, 3631, 3238, 3632, 3633, 3267}, // IfcGrid.WR41
    {652, 3634, 3028, 3635, 3636, 3276}, // IfcGridAxis.WR1
    {652, 3634, 3034, 3637, 3638, 3285}, // IfcGridAxis.WR2
    {663, 3650, 3028, 3651, 3141, 3310}, // IfcHeatExchangerType.WR1
    {669, 3652, 3028, 3653, 3141, 3337}, // IfcHumidifierType.WR1
    {699, 3662, 3238, 3663, 3664, 3419}, // IfcInventory.WR41
    {704, 3655, 3028, 3656, 3657, 3364}, // IfcIShapeProfileDef.WR1
    {704, 3655, 3034, 3658, 3659, 3374}, // IfcIShapeProfileDef.WR2
    {704, 3655, 3037, 3660, 3661, 3381}, // IfcIShapeProfileDef.WR3
    {744, 3673, 3028, 3674, 3675, 3480}, // IfcLine.WR1
    {764, 3677, 3087, 3678, 3679, 3491}, // IfcLocalPlacement.WR21
    {765, 3681, 3087, 3682, 3683, 3500}, // IfcLocalTime.WR21
    {770, 3665, 3087, 3666, 3667, 3458}, // IfcLShapeProfileDef.WR21
    {770, 3665, 3328, 3668, 3669, 3465}, // IfcLShapeProfileDef.WR22
    {793, 3688, 3198, 3689, 3690, 3506}, // IfcMaterialDefinitionRepresentation.WR11
    {814, 3695, 3087, 3696, 3697, 3532}, // IfcMechanicalMaterialProperties.WR21
    {814, 3695, 3328, 3698, 3699, 3547}, // IfcMechanicalMaterialProperties.WR22
    {815, 3700, 3150, 3701, 3702, 3562}, // IfcMechanicalSteelMaterialProperties.WR31
    {815, 3700, 3478, 3703, 3704, 3577}, // IfcMechanicalSteelMaterialProperties.WR32
    {815, 3700, 3481, 3705, 3706, 3592}, // IfcMechanicalSteelMaterialProperties.WR33
    {815, 3700, 3484, 3707, 3708, 3607}, // IfcMechanicalSteelMaterialProperties.WR34
    {849, 3709, 3028, 3710, 3711, 3622}, // IfcMove.WR1
    {849, 3709, 3034, 3712, 3713, 3634}, // IfcMove.WR2
    {849, 3709, 3037, 3266, 3267, 1146}, // IfcMove.WR3
    {850, 3715, 3028, 3716, 3717, 3682}, // IfcNamedUnit.WR1
    {858, 3718, 3028, 3719, 3720, 3691}, // IfcObject.WR1
    {860, 3737, 3087, 3738, 3739, 3710}, // IfcObjective.WR21
    {866, 3740, 3150, 3741, 3560, 3737}, // IfcOccupant.WR31
    {869, 3742, 3028, 3743, 3744, 3756}, // IfcOffsetCurve2D.WR1
    {870, 3745, 3028, 3746, 3747, 3765}, // IfcOffsetCurve3D.WR1
    {884, 3760, 3028, 3761, 3762, 3774}, // IfcOrientedEdge.WR1
    {892, 3765, 3028, 3766, 3531, 3811}, // IfcPath.WR1
    {903, 3769, 3028, 3770, 3771, 3817}, // IfcPerson.WR1
    {906, 3774, 3087, 3775, 3776, 3830}, // IfcPhysicalComplexQuantity.WR21
    {910, 3780, 3028, 3781, 3560, 3849}, // IfcPile.WR1
    {915, 3782, 3028, 3783, 3141, 3876}, // IfcPipeFittingType.WR1
    {918, 3784, 3028, 3785, 3141, 3903}, // IfcPipeSegmentType.WR1
    {920, 3786, 3087, 3787, 3788, 3930}, // IfcPixelTexture.WR21
    {920, 3786, 3328, 3789, 3790, 3937}, // IfcPixelTexture.WR22
    {920, 3786, 3599, 3791, 3792, 3944}, // IfcPixelTexture.WR23
    {920, 3786, 3793, 3794, 3795, 3960}, // IfcPixelTexture.WR24
    {937, 3799, 3238, 3800, 3801, 4011}, // IfcPolygonalBoundedHalfSpace.WR41
    {937, 3799, 3335, 3802, 3803, 4020}, // IfcPolygonalBoundedHalfSpace.WR42
    {939, 3804, 3238, 3805, 3806, 4039}, // IfcPolyline.WR41
    {940, 3796, 3087, 3797, 3798, 3984}, // IfcPolyLoop.WR21
    {948, 3812, 3028, 3813, 3814, 4066}, // IfcPostalAddress.WR1
    {952, 3827, 3150, 3828, 3829, 4114}, // IfcPreDefinedDimensionSymbol.WR31
    {954, 3836, 3150, 3837, 3838, 4159}, // IfcPreDefinedPointMarkerSymbol.WR31
    {958, 3850, 3150, 3851, 3852, 4189}, // IfcPreDefinedTerminatorSymbol.WR31
    {969, 3853, 3028, 3854, 3855, 4231}, // IfcProcedure.WR1
    {969, 3853, 3034, 3856, 3857, 4254}, // IfcProcedure.WR2
    {969, 3853, 3037, 3266, 3267, 1146}, // IfcProcedure.WR3
    {969, 3853, 3040, 3858, 3859, 4277}, // IfcProcedure.WR4
    {974, 3867, 3028, 3868, 3869, 4304}, // IfcProduct.WR1
    {975, 3872, 3198, 3873, 3874, 4340}, // IfcProductDefinitionShape.WR11
    {983, 3880, 3150, 3266, 3267, 1146}, // IfcProject.WR31
    {983, 3880, 3478, 3881, 3882, 4360}, // IfcProject.WR32
    {983, 3880, 3481, 3883, 3884, 4379}, // IfcProject.WR33
    {996, 3892, 3087, 3893, 3894, 4391}, // IfcPropertyBoundedValue.WR21
    {996, 3892, 3328, 3895, 3896, 4418}, // IfcPropertyBoundedValue.WR22
    {999, 3898, 3028, 3899, 3900, 4431}, // IfcPropertyDependencyRelationship.WR1
    {1000, 3901, 3028, 3902, 3903, 4438}, // IfcPropertyEnumeratedValue.WR1
    {1001, 3904, 3157, 3905, 3906, 4470}, // IfcPropertyEnumeration.WR01
    {1002, 3908, 3150, 3909, 3910, 4498}, // IfcPropertyListValue.WR31
    {1004, 3911, 3150, 3266, 3267, 1146}, // IfcPropertySet.WR31
    {1004, 3911, 3478, 3329, 3330, 1571}, // IfcPropertySet.WR32
    {1012, 3917, 3028, 3918, 3919, 4526}, // IfcPropertyTableValue.WR1
    {1012, 3917, 3034, 3920, 3921, 4537}, // IfcPropertyTableValue.WR2
    {1012, 3917, 3037, 3922, 3923, 4564}, // IfcPropertyTableValue.WR3
    {1021, 3924, 3028, 3266, 3267, 1146}, // IfcProxy.WR1
    {1023, 3925, 3028, 3926, 3141, 4591}, // IfcPumpType.WR1
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
    {1036, 3960, 3388, 3961, 3390, 4780}, // IfcRailing.WR61
    {1045, 3962, 3028, 3963, 3964, 4815}, // IfcRamp.WR1
    {1052, 3965, 3028, 3966, 3967, 4851}, // IfcRationalBezierCurve.WR1
    {1052, 3965, 3034, 3969, 3970, 4865}, // IfcRationalBezierCurve.WR2
    {1057, 3971, 3150, 3972, 3973, 4890}, // IfcRectangleHollowProfileDef.WR31
    {1057, 3971, 3478, 3974, 3975, 4917}, // IfcRectangleHollowProfileDef.WR32
    {1057, 3971, 3481, 3976, 3977, 4952}, // IfcRectangleHollowProfileDef.WR33
    {1060, 3978, 3028, 3979, 3980, 4993}, // IfcRectangularTrimmedSurface.WR1
    {1060, 3978, 3034, 3981, 3982, 5000}, // IfcRectangularTrimmedSurface.WR2
    {1060, 3978, 3037, 3983, 3984, 5007}, // IfcRectangularTrimmedSurface.WR3
    {1060, 3978, 3040, 3985, 3986, 5039}, // IfcRectangularTrimmedSurface.WR4
    {1073, 3987, 3028, 3988, 3989, 5049}, // IfcReinforcingBar.WR1
    {1085, 3991, 3028, 3992, 3993, 5076}, // IfcRelAssigns.WR1
    {1086, 3994, 3028, 3995, 3996, 5085}, // IfcRelAssignsTasks.WR1
    {1086, 3994, 3034, 3997, 3998, 5097}, // IfcRelAssignsTasks.WR2
    {1086, 3994, 3037, 3999, 4000, 5109}, // IfcRelAssignsTasks.WR3
    {1087, 4001, 3028, 4002, 4003, 5118}, // IfcRelAssignsToActor.WR1
    {1088, 4004, 3028, 4005, 4006, 5141}, // IfcRelAssignsToControl.WR1
    {1089, 4007, 3028, 4008, 4009, 5164}, // IfcRelAssignsToGroup.WR1
    {1091, 4010, 3028, 4011, 4012, 5187}, // IfcRelAssignsToProcess.WR1
    {1092, 4013, 3028, 4014, 4015, 5210}, // IfcRelAssignsToProduct.WR1
    {1094, 4016, 3028, 4017, 4018, 5233}, // IfcRelAssignsToResource.WR1
    {1095, 4019, 3087, 4020, 4021, 5256}, // IfcRelAssociates.WR21
    {1103, 4022, 3087, 4023, 4024, 5283}, // IfcRelAssociatesMaterial.WR21
    {1103, 4022, 3328, 4025, 4026, 5312}, // IfcRelAssociatesMaterial.WR22
    {1109, 4027, 3150, 4028, 4029, 5343}, // IfcRelConnectsElements.WR31
    {1118, 4030, 3150, 4031, 4032, 5350}, // IfcRelContainedInSpatialStructure.WR31
    {1122, 4033, 3150, 4034, 4035, 5369}, // IfcRelDecomposes.WR31
    {1132, 4036, 3028, 4037, 4038, 5389}, // IfcRelNests.WR1
    {1134, 4039, 3028, 4040, 3996, 5420}, // IfcRelOverridesProperties.WR1
    {1137, 4041, 3150, 4031, 4032, 5350}, // IfcRelReferencedInSpatialStructure.WR31
    {1138, 4042, 3198, 4043, 4044, 5432}, // IfcRelSchedulesCostItems.WR11
    {1138, 4042, 3201, 4045, 4046, 5455}, // IfcRelSchedulesCostItems.WR12
    {1139, 4047, 3028, 4048, 4049, 5464}, // IfcRelSequence.WR1
    {1141, 4053, 3028, 4054, 4055, 5471}, // IfcRelSpaceBoundary.WR1
    {1158, 4075, 3150, 4076, 4077, 5527}, // IfcRevolvedAreaSolid.WR31
    {1158, 4075, 3478, 4078, 4079, 5541}, // IfcRevolvedAreaSolid.WR32
    {1170, 4080, 3028, 3963, 3964, 4815}, // IfcRoof.WR1
    {1179, 4083, 3150, 4084, 4085, 5573}, // IfcRoundedRectangleProfileDef.WR31
    {1191, 4090, 3028, 4091, 4092, 5607}, // IfcSectionedSpine.WR1
    {1191, 4090, 3034, 4093, 4094, 5618}, // IfcSectionedSpine.WR2
    {1191, 4090, 3037, 4095, 4096, 5645}, // IfcSectionedSpine.WR3
    {1205, 4097, 3150, 4098, 3560, 5654}, // IfcServiceLifeFactor.WR31
    {1213, 4099, 3198, 4100, 4101, 5673}, // IfcShapeModel.WR11
    {1214, 4104, 3087, 4105, 4106, 5704}, // IfcShapeRepresentation.WR21
    {1214, 4104, 3328, 4107, 4108, 5713}, // IfcShapeRepresentation.WR22
    {1214, 4104, 3599, 4109, 4110, 5756}, // IfcShapeRepresentation.WR23
    {1214, 4104, 3793, 4112, 4113, 5765}, // IfcShapeRepresentation.WR24
    {1235, 4114, 3388, 4115, 3390, 5780}, // IfcSlab.WR61
    {1258, 4120, 3028, 4121, 3141, 5815}, // IfcSpaceHeaterType.WR1
    {1267, 4127, 3238, 4128, 4129, 5842}, // IfcSpatialStructureElement.WR41
    {1282, 4136, 3028, 3963, 3964, 4815}, // IfcStair.WR1
    {1305, 4146, 3388, 4147, 4148, 5897}, // IfcStructuralLinearAction.WR61
    {1321, 4160, 3388, 4161, 4162, 5932}, // IfcStructuralPlanarAction.WR61
    {1323, 4163, 3388, 4164, 4165, 5954}, // IfcStructuralPointAction.WR61
    {1325, 4166, 3388, 4164, 4165, 5954}, // IfcStructuralPointReaction.WR61
    {1326, 4167, 3087, 4168, 4169, 5976}, // IfcStructuralProfileProperties.WR21
    {1326, 4167, 3328, 4170, 4171, 5991}, // IfcStructuralProfileProperties.WR22
    {1329, 4178, 3150, 4179, 4180, 6006}, // IfcStructuralSteelProfileProperties.WR31
    {1329, 4178, 3478, 4181, 4182, 6021}, // IfcStructuralSteelProfileProperties.WR32
    {1335, 4183, 3388, 4184, 4185, 6036}, // IfcStructuralSurfaceMemberVarying.WR61
    {1335, 4183, 4186, 4187, 4188, 6045}, // IfcStructuralSurfaceMemberVarying.WR62
    {1335, 4183, 4189, 4190, 4191, 6074}, // IfcStructuralSurfaceMemberVarying.WR63
    {1338, 4197, 3150, 4198, 4199, 6130}, // IfcStructuredDimensionCallout.WR31
    {1340, 4200, 3198, 4201, 4202, 6179}, // IfcStyledItem.WR11
    {1340, 4200, 3201, 4203, 4204, 6188}, // IfcStyledItem.WR12
    {1341, 4205, 3087, 4206, 4207, 6195}, // IfcStyledRepresentation.WR21
    {1352, 4208, 3238, 4209, 4210, 6218}, // IfcSurfaceOfLinearExtrusion.WR41
    {1357, 4211, 3198, 4212, 4213, 6252}, // IfcSurfaceStyle.WR11
    {1357, 4211, 3201, 4214, 4215, 6271}, // IfcSurfaceStyle.WR12
    {1357, 4211, 3421, 4216, 4217, 6290}, // IfcSurfaceStyle.WR13
    {1357, 4211, 4218, 4219, 4220, 6309}, // IfcSurfaceStyle.WR14
    {1357, 4211, 4221, 4222, 4223, 6328}, // IfcSurfaceStyle.WR15
    {1366, 4224, 3328, 4225, 4226, 6347}, // IfcSweptAreaSolid.WR22
    {1367, 4227, 3028, 4228, 4229, 6357}, // IfcSweptDiskSolid.WR1
    {1367, 4227, 3034, 4230, 4231, 6366}, // IfcSweptDiskSolid.WR2
    {1369, 4232, 3028, 4233, 4234, 6381}, // IfcSweptSurface.WR1
    {1369, 4232, 3034, 4235, 4236, 6388}, // IfcSweptSurface.WR2
    {1379, 4245, 3028, 4246, 4247, 6412}, // IfcTable.WR1
    {1379, 4245, 3034, 4246, 4247, 6412}, // IfcTable.WR2
    {1379, 4245, 3037, 4248, 4249, 6443}, // IfcTable.WR3
    {1383, 4253, 3028, 4254, 3141, 6503}, // IfcTankType.WR1
    {1385, 4255, 3028, 3854, 3855, 4231}, // IfcTask.WR1
    {1385, 4255, 3034, 3856, 3857, 4254}, // IfcTask.WR2
    {1385, 4255, 3037, 3266, 3267, 1146}, // IfcTask.WR3
    {1391, 4256, 3028, 4257, 4258, 6530}, // IfcTelecomAddress.WR1
    {1394, 4259, 3028, 4260, 3560, 6564}, // IfcTendon.WR1
    {1412, 4261, 3150, 4262, 4263, 6591}, // IfcTextLiteralWithExtent.WR31
    {1415, 4264, 3150, 4265, 4266, 6598}, // IfcTextStyleFontModel.WR31
    {1425, 4270, 3198, 4271, 4272, 6612}, // IfcTextureMap.WR11
    {1445, 4277, 3238, 4278, 4279, 6645}, // IfcTimeSeriesSchedule.WR41
    {1450, 4280, 3087, 4281, 4282, 6664}, // IfcTopologyRepresentation.WR21
    {1450, 4280, 3328, 4109, 4110, 5756}, // IfcTopologyRepresentation.WR22
    {1450, 4280, 3599, 4284, 4113, 6687}, // IfcTopologyRepresentation.WR23
    {1474, 4285, 3238, 4286, 4287, 6702}, // IfcTrimmedCurve.WR41
    {1474, 4285, 3335, 4288, 4289, 6729}, // IfcTrimmedCurve.WR42
    {1474, 4285, 4290, 4291, 4292, 6756}, // IfcTrimmedCurve.WR43
    {1477, 4240, 3028, 4241, 4242, 6398}, // IfcTShapeProfileDef.WR1
    {1477, 4240, 3034, 4243, 4244, 6405}, // IfcTShapeProfileDef.WR2
    {1479, 4293, 3028, 4294, 3141, 6763}, // IfcTubeBundleType.WR1
    {1486, 4295, 3028, 3266, 3267, 1146}, // IfcTypeObject.WR1
    {1488, 4298, 3238, 4299, 4300, 6790}, // IfcTypeProduct.WR41
    {1497, 4308, 3028, 4309, 3141, 6849}, // IfcUnitaryEquipmentType.WR1
    {1499, 4305, 3157, 4306, 4307, 6842}, // IfcUnitAssignment.WR01
    {1502, 4301, 3087, 4302, 4303, 6832}, // IfcUShapeProfileDef.WR21
    {1502, 4301, 3328, 4243, 4244, 6405}, // IfcUShapeProfileDef.WR22
    {1505, 4310, 3028, 4311, 3141, 6876}, // IfcValveType.WR1
    {1508, 4312, 3028, 4313, 4314, 6903}, // IfcVector.WR1
    {1522, 4315, 3028, 4316, 3141, 6916}, // IfcVibrationIsolatorType.WR1
    {1535, 4317, 3028, 4318, 4319, 6943}, // IfcWall.WR1
    {1537, 4321, 3028, 4322, 4323, 6965}, // IfcWallStandardCase.WR1
    {1551, 4325, 3150, 3476, 3477, 2405}, // IfcWindowLiningProperties.WR31
    {1551, 4325, 3478, 4326, 4327, 6996}, // IfcWindowLiningProperties.WR32
    {1551, 4325, 3481, 4328, 4329, 7011}, // IfcWindowLiningProperties.WR33
    {1551, 4325, 3484, 4330, 4331, 7026}, // IfcWindowLiningProperties.WR34
    {1564, 4332, 3028, 4333, 4334, 7051}, // IfcWorkControl.WR1
    {1572, 4336, 3028, 4337, 4338, 7078}, // IfcZone.WR1
    {1573, 4335, 3087, 4302, 4303, 6832}, // IfcZShapeProfileDef.WR21
};

constexpr WhereRule typeRules[] = {
    {136, 3027, 3028, 3029, 3030, 0}, // IfcBoxAlignment.WR1
    {245, 3031, 3028, 3032, 3033, 32}, // IfcCompoundPlaneAngleMeasure.WR1
    {245, 3031, 3034, 3035, 3036, 51}, // IfcCompoundPlaneAngleMeasure.WR2
    {245, 3031, 3037, 3038, 3039, 70}, // IfcCompoundPlaneAngleMeasure.WR3
    {245, 3031, 3040, 3041, 3042, 89}, // IfcCompoundPlaneAngleMeasure.WR4
    {361, 3043, 3028, 3044, 3045, 148}, // IfcDaylightSavingHour.WR1
    {376, 3046, 3028, 3047, 3048, 163}, // IfcDimensionCount.WR1
    {603, 3052, 3028, 3053, 3054, 178}, // IfcFontStyle.WR1
    {604, 3056, 3028, 3057, 3058, 192}, // IfcFontVariant.WR1
    {605, 3068, 3028, 3069, 3070, 203}, // IfcFontWeight.WR1
    {666, 3071, 3028, 3072, 3073, 241}, // IfcHeatingValueMeasure.WR1
    {667, 3074, 3028, 3075, 3076, 247}, // IfcHourInDay.WR1
    {825, 3077, 3028, 3078, 3079, 262}, // IfcMinuteInHour.WR1
    {842, 3080, 3028, 3081, 3082, 277}, // IfcMonthInYearNumber.WR1
    {855, 3083, 3028, 3084, 3085, 292}, // IfcNormalisedRatioMeasure.WR1
    {905, 3086, 3087, 3088, 3089, 307}, // IfcPHMeasure.WR21
    {945, 3090, 3028, 3072, 3073, 241}, // IfcPositiveLengthMeasure.WR1
    {946, 3091, 3028, 3072, 3073, 241}, // IfcPositivePlaneAngleMeasure.WR1
    {947, 3092, 3028, 3072, 3073, 241}, // IfcPositiveRatioMeasure.WR1
    {1186, 3093, 3028, 3094, 3095, 322}, // IfcSecondInMinute.WR1
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
    {3, 3122, 3123, 3124, 0, 1}, // IfcActionRequest.UR2
    {73, 3169, 3170, 3171, 1, 1}, // IfcApplication.UR1
    {73, 3169, 3123, 3172, 2, 2}, // IfcApplication.UR2
    {307, 3385, 3123, 3386, 4, 1}, // IfcCostSchedule.UR2
    {611, 3608, 3609, 3610, 5, 1}, // IfcFuelProperties.UR11
    {620, 3613, 3609, 3610, 6, 1}, // IfcGeneralMaterialProperties.UR11
    {671, 3654, 3609, 3610, 7, 1}, // IfcHygroscopicMaterialProperties.UR11
    {814, 3695, 3609, 3610, 8, 1}, // IfcMechanicalMaterialProperties.UR11
    {878, 3751, 3609, 3610, 9, 1}, // IfcOpticalMaterialProperties.UR11
    {879, 3752, 3123, 3753, 10, 1}, // IfcOrderAction.UR2
    {901, 3767, 3123, 3768, 11, 1}, // IfcPermit.UR2
    {979, 3879, 3609, 3610, 12, 1}, // IfcProductsOfCombustionProperties.UR11
    {990, 3885, 3123, 3386, 13, 1}, // IfcProjectOrder.UR2
    {1001, 3904, 3170, 3907, 14, 1}, // IfcPropertyEnumeration.UR1
    {1173, 4081, 3170, 4082, 15, 1}, // IfcRoot.UR1
    {1433, 4273, 3609, 3610, 16, 1}, // IfcThermalMaterialProperties.UR11
    {1546, 4324, 3609, 3610, 17, 1}, // IfcWaterProperties.UR11
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
    {7, 2079, 1087, 2532, 0, -1, 1, 0, 3125, 3126, 3127}, // IfcActor.IsActingUpon
    {13, 2312, 903, 1589, 0, -1, 1, 0, 3132, 3135, 3136}, // IfcAddress.OfPerson
    {13, 2311, 880, 1589, 0, -1, 1, 0, 3132, 3137, 3138}, // IfcAddress.OfOrganization
    {63, 1749, 1118, 2507, 0, 1, 1, 0, 3146, 3147, 3148}, // IfcAnnotation.ContainedInStructure
    {74, 2944, 1064, 2484, 0, -1, 1, 0, 3173, 3176, 3177}, // IfcAppliedValue.ValuesReferenced
    {74, 2941, 75, 1724, 0, -1, 1, 0, 3173, 3178, 3179}, // IfcAppliedValue.ValueOfComponents
    {74, 2085, 75, 1725, 0, -1, 1, 0, 3173, 3180, 3181}, // IfcAppliedValue.IsComponentIn
    {77, 1581, 78, 1616, 0, -1, 1, 0, 3182, 3183, 3184}, // IfcApproval.Actors
    {77, 2109, 80, 2494, 0, -1, 1, 0, 3182, 3185, 3186}, // IfcApproval.IsRelatedWith
    {77, 2529, 80, 2534, 0, -1, 1, 0, 3182, 3187, 3188}, // IfcApproval.Relates
    {210, 1750, 211, 2115, 0, -1, 1, 0, 3314, 3315, 3316}, // IfcClassification.Contains
    {211, 2083, 212, 2509, 0, 1, 1, 0, 3317, 3318, 3319}, // IfcClassificationItem.IsClassifiedItemIn
    {211, 2084, 212, 2547, 0, 1, 1, 0, 3317, 3320, 3321}, // IfcClassificationItem.IsClassifyingItemIn
    {243, 2934, 241, 2657, 1, -1, 1, 0, 3338, 3341, 3342}, // IfcCompositeCurveSegment.UsingCurves
    {265, 1702, 267, 1703, 0, -1, 1, 0, 3353, 3356, 3357}, // IfcConstraint.ClassifiedAs
    {265, 2530, 269, 2538, 0, -1, 1, 0, 3353, 3358, 3359}, // IfcConstraint.RelatesConstraints
    {265, 2109, 269, 2500, 0, -1, 1, 0, 3353, 3185, 3360}, // IfcConstraint.IsRelatedWith
    {265, 2428, 997, 2538, 0, -1, 1, 0, 3353, 3361, 3362}, // IfcConstraint.PropertiesForConstraint
    {265, 1593, 266, 2538, 0, -1, 1, 0, 3353, 3363, 3364}, // IfcConstraint.Aggregates
    {265, 2080, 266, 2500, 0, -1, 1, 0, 3353, 3365, 3366}, // IfcConstraint.IsAggregatedIn
    {284, 1759, 1088, 2540, 0, -1, 1, 0, 3378, 3379, 3380}, // IfcControl.Controls
    {314, 1778, 1120, 2502, 0, 1, 1, 0, 3387, 3391, 3392}, // IfcCovering.CoversSpaces
    {314, 1776, 1119, 2502, 0, 1, 1, 0, 3387, 3393, 3394}, // IfcCovering.Covers
    {377, 1602, 1403, 1603, 0, 2, 1, 0, 3425, 3438, 3439}, // IfcDimensionCurve.AnnotatedBySymbols
    {398, 1630, 1129, 2501, 0, 1, 1, 0, 3456, 3457, 3458}, // IfcDistributionControlElement.AssignedToFlowElement
    {402, 2000, 1129, 2545, 0, 1, 1, 0, 3459, 3460, 3461}, // IfcDistributionFlowElement.HasControlElements
    {410, 2102, 411, 2504, 0, -1, 1, 0, 3465, 3466, 3467}, // IfcDocumentInformation.IsPointedTo
    {410, 2103, 411, 2542, 0, 1, 1, 0, 3465, 3468, 3469}, // IfcDocumentInformation.IsPointer
    {412, 2482, 410, 1861, 0, 1, 1, 0, 3470, 3473, 3474}, // IfcDocumentReference.ReferenceToDocument
    {428, 2107, 430, 2505, 0, -1, 1, 0, 3491, 3492, 3493}, // IfcDraughtingCallout.IsRelatedFromCallout
    {428, 2108, 430, 2543, 0, -1, 1, 0, 3491, 3494, 3495}, // IfcDraughtingCallout.IsRelatedToCallout
    {492, 2022, 1114, 2544, 0, -1, 1, 0, 3535, 3536, 3537}, // IfcElement.HasStructuralMember
    {492, 1938, 1128, 2496, 0, 1, 1, 0, 3535, 3538, 3539}, // IfcElement.FillsVoids
    {492, 1738, 1109, 2544, 0, -1, 1, 0, 3535, 3540, 3541}, // IfcElement.ConnectedTo
    {492, 2002, 1119, 2535, 0, -1, 1, 0, 3535, 3542, 3543}, // IfcElement.HasCoverings
    {492, 2013, 1136, 2544, 0, -1, 1, 0, 3535, 3544, 3545}, // IfcElement.HasProjections
    {492, 2472, 1137, 2507, 0, -1, 1, 0, 3535, 3546, 3547}, // IfcElement.ReferencedInStructures
    {492, 2012, 1112, 2506, 0, -1, 1, 0, 3535, 3548, 3549}, // IfcElement.HasPorts
    {492, 2011, 1144, 2535, 0, -1, 1, 0, 3535, 3550, 3551}, // IfcElement.HasOpenings
    {492, 2086, 1117, 2459, 0, -1, 1, 0, 3535, 3552, 3553}, // IfcElement.IsConnectionRealization
    {492, 2436, 1141, 2496, 0, -1, 1, 0, 3535, 3554, 3555}, // IfcElement.ProvidesBoundaries
    {492, 1737, 1109, 2506, 0, -1, 1, 0, 3535, 3556, 3557}, // IfcElement.ConnectedFrom
    {492, 1749, 1118, 2507, 0, 1, 1, 0, 3535, 3147, 3148}, // IfcElement.ContainedInStructure
    {563, 2426, 1136, 2508, 1, 1, 0, 0, 3580, 3581, 3582}, // IfcFeatureElementAddition.ProjectsElements
    {564, 2970, 1144, 2514, 1, 1, 0, 0, 3583, 3584, 3585}, // IfcFeatureElementSubtraction.VoidsElements
    {628, 2023, 630, 2347, 0, -1, 1, 0, 3620, 3621, 3622}, // IfcGeometricRepresentationContext.HasSubContexts
    {651, 1749, 1118, 2507, 0, 1, 1, 0, 3631, 3147, 3148}, // IfcGrid.ContainedInStructure
    {652, 2359, 651, 2985, 0, 1, 1, 0, 3634, 3639, 3640}, // IfcGridAxis.PartOfW
    {652, 2358, 651, 2951, 0, 1, 1, 0, 3634, 3641, 3642}, // IfcGridAxis.PartOfV
    {652, 2357, 651, 2889, 0, 1, 1, 0, 3634, 3643, 3644}, // IfcGridAxis.PartOfU
    {652, 2009, 1527, 2075, 0, -1, 1, 0, 3634, 3645, 3646}, // IfcGridAxis.HasIntersections
    {659, 2093, 1089, 2546, 1, 1, 0, 0, 3647, 3648, 3649}, // IfcGroup.IsGroupedBy
    {728, 2477, 727, 2154, 0, 1, 1, 0, 3670, 3671, 3672}, // IfcLibraryReference.ReferenceIntoLibrary
    {788, 2019, 793, 2590, 0, 1, 1, 0, 3684, 3685, 3686}, // IfcMaterial.HasRepresentation
    {788, 1702, 789, 1704, 0, 1, 1, 0, 3684, 3356, 3687}, // IfcMaterial.ClassifiedAs
    {794, 2842, 795, 2230, 1, 1, 0, 0, 3691, 3692, 3693}, // IfcMaterialLayer.ToMaterialLayerSet
    {858, 2091, 1123, 2512, 0, -1, 1, 0, 3718, 3721, 3722}, // IfcObject.IsDefinedBy
    {859, 1995, 1085, 2512, 0, -1, 1, 0, 3723, 3724, 3725}, // IfcObjectDefinition.HasAssignments
    {859, 2090, 1122, 2551, 0, -1, 1, 0, 3723, 3726, 3727}, // IfcObjectDefinition.IsDecomposedBy
    {859, 1811, 1122, 2512, 0, 1, 1, 0, 3723, 3728, 3729}, // IfcObjectDefinition.Decomposes
    {859, 1996, 1095, 2512, 0, -1, 1, 0, 3723, 3730, 3731}, // IfcObjectDefinition.HasAssociations
    {862, 2375, 974, 2299, 1, 1, 1, 0, 3732, 3733, 3734}, // IfcObjectPlacement.PlacesObject
    {862, 2469, 764, 2374, 0, -1, 1, 0, 3732, 3735, 3736}, // IfcObjectPlacement.ReferencedByPlacements
    {874, 2006, 1128, 2552, 0, -1, 1, 0, 3748, 3749, 3750}, // IfcOpeningElement.HasFillings
    {880, 2106, 881, 2515, 0, -1, 1, 0, 3754, 3755, 3756}, // IfcOrganization.IsRelatedBy
    {880, 2529, 881, 2553, 0, -1, 1, 0, 3754, 3187, 3757}, // IfcOrganization.Relates
    {880, 1909, 904, 2803, 0, -1, 1, 0, 3754, 3758, 3759}, // IfcOrganization.Engages
    {903, 1908, 904, 2805, 0, -1, 1, 0, 3769, 3772, 3773}, // IfcPerson.EngagedIn
    {908, 2352, 906, 2017, 0, 1, 1, 0, 3777, 3778, 3779}, // IfcPhysicalQuantity.PartOfComplex
    {942, 1748, 1112, 2554, 1, 1, 0, 0, 3807, 3808, 3809}, // IfcPort.ContainedIn
    {942, 1737, 1111, 2516, 0, 1, 1, 0, 3807, 3556, 3810}, // IfcPort.ConnectedFrom
    {942, 1738, 1111, 2554, 0, 1, 1, 0, 3807, 3540, 3811}, // IfcPort.ConnectedTo
    {972, 2317, 1091, 2557, 0, -1, 1, 0, 3860, 3861, 3862}, // IfcProcess.OperatesOn
    {972, 2111, 1139, 2518, 0, -1, 1, 0, 3860, 3863, 3864}, // IfcProcess.IsSuccessorFrom
    {972, 2105, 1139, 2557, 0, -1, 1, 0, 3860, 3865, 3866}, // IfcProcess.IsPredecessorTo
    {974, 2468, 1092, 2558, 0, -1, 1, 0, 3867, 3870, 3871}, // IfcProduct.ReferencedBy
    {975, 2675, 974, 2582, 1, 1, 1, 0, 3872, 3875, 3876}, // IfcProductDefinitionShape.ShapeOfProduct
    {975, 2021, 1212, 2354, 0, -1, 1, 0, 3872, 3877, 3878}, // IfcProductDefinitionShape.HasShapeAspects
    {994, 2431, 999, 1829, 0, -1, 1, 0, 3886, 3887, 3888}, // IfcProperty.PropertyForDependance
    {994, 2430, 999, 1828, 0, -1, 1, 0, 3886, 3889, 3890}, // IfcProperty.PropertyDependsOn
    {994, 2352, 238, 2014, 0, 1, 1, 0, 3886, 3778, 3891}, // IfcProperty.PartOfComplex
    {998, 1996, 1095, 2512, 0, -1, 1, 0, 3897, 3730, 3731}, // IfcPropertyDefinition.HasAssociations
    {1005, 2429, 1125, 2561, 0, 1, 1, 0, 3912, 3913, 3914}, // IfcPropertySetDefinition.PropertyDefinitionOf
    {1005, 1816, 1486, 2015, 0, 1, 1, 0, 3912, 3915, 3916}, // IfcPropertySetDefinition.DefinesType
    {1146, 2585, 1149, 2213, 0, 1, 1, 0, 4056, 4057, 4058}, // IfcRepresentation.RepresentationMap
    {1146, 2139, 963, 1628, 0, -1, 1, 0, 4056, 4059, 4060}, // IfcRepresentation.LayerAssignments
    {1146, 2313, 976, 2587, 0, 1, 1, 0, 4056, 4061, 4062}, // IfcRepresentation.OfProductRepresentation
    {1147, 2588, 1146, 1754, 0, -1, 1, 0, 4063, 4064, 4065}, // IfcRepresentationContext.RepresentationsInContext
    {1148, 2139, 963, 1628, 0, -1, 1, 0, 4066, 4059, 4060}, // IfcRepresentationItem.LayerAssignments
    {1148, 2743, 1340, 2114, 0, 1, 1, 0, 4066, 4067, 4068}, // IfcRepresentationItem.StyledByItem
    {1149, 2221, 779, 2216, 0, -1, 1, 0, 4069, 4070, 4071}, // IfcRepresentationMap.MapUsage
    {1150, 2597, 1094, 2563, 0, -1, 1, 0, 4072, 4073, 4074}, // IfcResource.ResourceOf
    {1183, 2637, 1086, 2824, 1, 1, 0, 0, 4087, 4088, 4089}, // IfcScheduleTimeControl.ScheduleTimeControlAssigned
    {1213, 2314, 1212, 2676, 0, 1, 1, 0, 4099, 4102, 4103}, // IfcShapeModel.OfShapeAspect
    {1255, 2002, 1120, 2523, 0, -1, 1, 0, 4116, 3542, 4117}, // IfcSpace.HasCoverings
    {1255, 1676, 1141, 2564, 0, -1, 1, 0, 4116, 4118, 4119}, // IfcSpace.BoundedBy
    {1260, 2007, 1130, 2524, 0, -1, 1, 0, 4122, 4123, 4124}, // IfcSpaceProgram.HasInteractionReqsFrom
    {1260, 2008, 1130, 2565, 0, -1, 1, 0, 4122, 4125, 4126}, // IfcSpaceProgram.HasInteractionReqsTo
    {1267, 2480, 1137, 2567, 0, -1, 1, 0, 4127, 4130, 4131}, // IfcSpatialStructureElement.ReferencesElements
    {1267, 2667, 1140, 2497, 0, -1, 1, 0, 4127, 4132, 4133}, // IfcSpatialStructureElement.ServicedBySystems
    {1267, 1751, 1118, 2567, 0, -1, 1, 0, 4127, 4134, 4135}, // IfcSpatialStructureElement.ContainsElements
    {1291, 1631, 1113, 2525, 1, 1, 0, 0, 4137, 4138, 4139}, // IfcStructuralActivity.AssignedToStructuralItem
    {1294, 1742, 1115, 2526, 1, -1, 1, 0, 4140, 4141, 4142}, // IfcStructuralConnection.ConnectsStructuralMembers
    {1304, 1629, 1113, 2544, 0, -1, 1, 0, 4143, 4144, 4145}, // IfcStructuralItem.AssignedStructuralActivity
    {1310, 2710, 1328, 2602, 0, 1, 1, 0, 4150, 4151, 4152}, // IfcStructuralLoadGroup.SourceOfResultGroup
    {1310, 2187, 1293, 2186, 0, -1, 1, 0, 4150, 4153, 4154}, // IfcStructuralLoadGroup.LoadGroupFor
    {1320, 2479, 1114, 2527, 0, -1, 1, 0, 4155, 4156, 4157}, // IfcStructuralMember.ReferencesElement
    {1320, 1736, 1115, 2566, 0, -1, 1, 0, 4155, 4158, 4159}, // IfcStructuralMember.ConnectedBy
    {1327, 1694, 1290, 1693, 0, -1, 1, 0, 4172, 4173, 4174}, // IfcStructuralReaction.Causes
    {1328, 2603, 1293, 2020, 0, 1, 1, 0, 4175, 4176, 4177}, // IfcStructuralResultGroup.ResultGroupFor
    {1375, 2670, 1140, 2568, 0, 1, 1, 0, 4237, 4238, 4239}, // IfcSystem.ServicesBuildings
    {1381, 2315, 1379, 2623, 1, 1, 0, 0, 4250, 4251, 4252}, // IfcTableRow.OfTable
    {1421, 1604, 68, 2795, 1, 1, 1, 0, 4267, 4268, 4269}, // IfcTextureCoordinate.AnnotatedSurface
    {1442, 1857, 1444, 2475, 0, 1, 1, 0, 4274, 4275, 4276}, // IfcTimeSeries.DocumentedBy
    {1486, 2301, 1127, 2570, 0, 1, 1, 0, 4295, 4296, 4297}, // IfcTypeObject.ObjectTypeOf
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
    {3220, 1, 11701}, // IFCNORMALISE
    {3226, 1, 7617}, // IFCBUILD2AXES
    {3230, 2, 9562}, // IFCCROSSPRODUCT
    {3236, 2, 7650}, // IFCBUILDAXES
    {3241, 3, 11437}, // IFCLISTTOARRAY
    {3277, 1, 13538}, // IFCVALIDCALENDARDATE
    {3293, 4, 7345}, // IFCBASEAXIS
    {3327, 1, 13472}, // IFCUNIQUEPROPERTYNAME
    {3395, 1, 9792}, // IFCCURVEDIM
    {3413, 1, 9978}, // IFCDERIVEDIMENSIONALEXPONENTS
    {3529, 1, 11541}, // IFCLOOPHEADTOTAIL
    {3571, 2, 11126}, // IFCDOTPRODUCT
    {3591, 1, 8841}, // IFCCORRECTFILLAREASTYLE
    {3676, 2, 8994}, // IFCCORRECTLOCALPLACEMENT
    {3680, 1, 13728}, // IFCVALIDTIME
    {3694, 1, 11621}, // IFCMLSTOTALTHICKNESS
    {3714, 2, 7707}, // IFCCORRECTDIMENSIONS
    {3763, 3, 7602}, // IFCBOOLEANCHOOSE
    {3764, 1, 12018}, // IFCPATHHEADTOTAIL
    {3968, 1, 9915}, // IFCCURVEWEIGHTSPOSITIVE
    {3990, 2, 9054}, // IFCCORRECTOBJECTASSIGNMENT
    {4086, 1, 10237}, // IFCDIMENSIONSFORSIUNIT
    {4111, 2, 12733}, // IFCSHAPEREPRESENTATIONTYPES
    {4149, 2, 7254}, // IFCADDTOBEGINOFLIST
    {4283, 2, 13308}, // IFCTOPOLOGYREPRESENTATIONTYPES
    {4304, 1, 9319}, // IFCCORRECTUNITASSIGNMENT
    {4339, 2, 12405}, // IFCSAMEVALIDPRECISION
    {4340, 3, 12102}, // IFCSAMEAXIS2PLACEMENT
    {4349, 2, 11246}, // IFCFIRSTPROJAXIS
    {4350, 3, 12644}, // IFCSECONDPROJAXIS
    {4351, 1, 11968}, // IFCORTHOGONALCOMPLEMENT
    {4412, 2, 12507}, // IFCSCALARTIMESVECTOR
    {4413, 2, 13750}, // IFCVECTORDIFFERENCE
    {4414, 1, 11396}, // IFCLEAPYEAR
    {4415, 3, 12284}, // IFCSAMEDIRECTION
    {4416, 3, 12163}, // IFCSAMECARTESIANPOINT
    {4417, 3, 12472}, // IFCSAMEVALUE
    {4438, 2, 13999}, // IFCVECTORSUM
};

} // namespace

RuleTables tablesOfIFC2X3() noexcept;
RuleTables tablesOfIFC2X3() noexcept {
    return {"IFC2X3", entityRules, typeRules, globalRules, uniqueRules, uniqueAttributes, inverseAttributes, derivedAttributes, functions};
}

} // namespace velkor::rules
