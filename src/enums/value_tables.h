// The code tables of the integer attributes and the string tables of the
// string attributes, referenced by the conversion table.
#ifndef ZUNDO_VALUE_TABLES_H
#define ZUNDO_VALUE_TABLES_H

#include "enums/conversion_table.h"

// Status and StatusDetails of the JDF node.
extern const zundo_enum_pair_s jdfNodeStatusValues[];
extern const zundo_enum_pair_s jdfNodeStatusDetailsValues[];

// The JDF name of the first pair with `code`, or null.
const char *jdfNameForCode(const zundo_enum_pair_s *pairs, int code);
// The first pair whose JDF name is `name`, or null (also for a null name).
const zundo_enum_pair_s *pairForJdfName(const zundo_enum_pair_s *pairs, const char *name);

extern const zundo_enum_pair_s bindingTypeValues[];
extern const zundo_enum_pair_s interfaceBoxFunctionValues[];
extern const zundo_enum_pair_s jobBindingEdgeValues[];
extern const zundo_enum_pair_s mediaPmpStatusValues[];
extern const zundo_enum_pair_s jobPageRangeImpositionValues[];
extern const zundo_enum_pair_s inkUsageNameValues[];
extern const zundo_enum_pair_s jobPdfCacheXobjectsValues[];
extern const zundo_enum_pair_s pageRangeCoverTypeValues[];
extern const zundo_enum_pair_s jobCmykOverprintModeValues[];
extern const zundo_enum_pair_s screeningTypeValues[];
extern const zundo_enum_pair_s jobNumberUpDoubleImpositionCellToRotateValues[];
extern const zundo_enum_pair_s screeningSpotFunctionValues[];
extern const zundo_enum_pair_s jobMirrorSurfaceValues[];
extern const zundo_enum_pair_s jobTonerLimitPrintModeValues[];
extern const zundo_enum_pair_s colorPlanePriorityValues[];
extern const zundo_enum_pair_s inkUsageAmountValues[];
extern const zundo_enum_pair_s mediaUnitFormatValues[];
extern const zundo_enum_pair_s holeShapeValues[];
extern const zundo_enum_pair_s jobPrintingTypeValues[];
extern const zundo_enum_pair_s booleanValues[];
extern const zundo_enum_pair_s mediaTabSetCollationOrderValues[];
extern const zundo_enum_pair_s jobCollateValues[];
extern const zundo_enum_pair_s mediaCoatingsValues[];
extern const zundo_enum_pair_s mediaFrontCoatingDetailValues[];
extern const zundo_enum_pair_s foldingComponentTypeValues[];
extern const zundo_enum_pair_s colorStandardValues[];
extern const zundo_enum_pair_s ctmRotationValues[];
extern const zundo_enum_pair_s markAnchorValues[];
extern const zundo_enum_pair_s presentationDirectionValues[];
extern const zundo_enum_pair_s jobNumberUpFinishingOrderValues[];
extern const zundo_enum_pair_s markTextFontColorValues[];
extern const zundo_enum_pair_s markTextDateFormatValues[];
extern const zundo_enum_pair_s markTextTimeFormatValues[];
extern const zundo_enum_pair_s markTextTemplateValues[];
extern const zundo_enum_pair_s fitPolicyValues[];
extern const zundo_enum_pair_s jobFuserSettingValues[];
extern const zundo_enum_pair_s fitPolicyPositionValues[];
extern const zundo_enum_pair_s rotatePolicyValues[];
extern const zundo_enum_pair_s holeMakingCountValues[];
extern const zundo_enum_pair_s holeMakingSpacingValues[];
extern const zundo_enum_pair_s contactInfoTypesValues[];
extern const zundo_enum_pair_s jobJogOffsetValues[];
extern const zundo_enum_pair_s mediaOpacityValues[];
extern const zundo_enum_pair_s mediaColorValues[];
extern const zundo_enum_pair_s objectTypesValues[];
extern const zundo_enum_pair_s jobBlackSubstitutionMethodValues[];
extern const zundo_enum_pair_s renderingIntentValues[];
extern const zundo_enum_pair_s renderingIntentSourceValues[];
extern const zundo_enum_pair_s preserveKBlackModeValues[];
extern const zundo_enum_pair_s preserveCmyColorsModeValues[];
extern const zundo_enum_pair_s mediaHoleCountValues[];
extern const zundo_enum_pair_s mediaFeedEdgeValues[];
extern const zundo_enum_pair_s mediaImagableSideValues[];
extern const zundo_enum_pair_s registerMarkNameValues[];
extern const zundo_enum_pair_s trimBleedMarkNameValues[];
extern const zundo_enum_pair_s markSideValues[];
extern const zundo_enum_pair_s notificationDeliveryTypeValues[];
extern const zundo_enum_pair_s jobNumberUpFitBoxValues[];
extern const zundo_enum_pair_s markTextCharOrientationValues[];
extern const zundo_enum_pair_s jobPageDeliveryValues[];
extern const zundo_enum_pair_s pageOrderValues[];
extern const zundo_enum_pair_s pageRotationValues[];
extern const zundo_enum_pair_s insertSheetPositionValues[];
extern const zundo_enum_pair_s referenceEdgeValues[];
extern const zundo_enum_pair_s pageCellSheetSideValues[];
extern const zundo_enum_pair_s sidesValues[];
extern const zundo_enum_pair_s stitchingTypeValues[];
extern const zundo_enum_pair_s jobHoldActionValues[];
extern const zundo_enum_pair_s trappingTypeValues[];
extern const zundo_enum_pair_s trimmingTypeValues[];
extern const zundo_enum_pair_s jobCarriageControlTypeValues[];
extern const zundo_enum_pair_s mediaOverrideSnapshotValues[];
extern const zundo_enum_pair_s ripParamsPrintModeValues[];
extern const zundo_enum_pair_s ripParamsBrightnessValues[];
extern const zundo_enum_pair_s ripParamsDigitalPressModeValues[];
extern const zundo_enum_pair_s ripParamsImageSmoothValues[];

extern const zundo_string_pair_s noStrings[];
extern const zundo_string_pair_s fileFormatMimeTypes[];
extern const zundo_string_pair_s fileFormatVersions[];

// Tables of values that no attribute conversion row lists.
extern const zundo_enum_pair_s baseScreenValues[];      // screening and calibration
extern const zundo_enum_pair_s deliveryMethodValues[];  // job-delivery-method
extern const zundo_enum_pair_s startPageDescriptionValues[];

#endif
