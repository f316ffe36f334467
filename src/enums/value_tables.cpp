// Codes of the integer attributes and their JDF names, in scan order: both
// lookups take the first matching pair, so a name listed under two codes
// reads back as the first of them and a code listed twice writes its first
// name. Several attributes share one table (see the conversion table).
#include "enums/value_tables.h"

const zundo_enum_pair_s bindingTypeValues[] = {
    {1, "None"}, {3, "SpineTapingParams"}, {2, "CoverApplicationParams"}, {4, "Ring"},
    {6, "RingHoleMakingOnly"}, {5, "RingAndHoleMaking"}, {8, "WireCombBinding"}, {-1, nullptr}};

const zundo_enum_pair_s interfaceBoxFunctionValues[] = {
    {1, "1"}, {2, "2"}, {3, "3"}, {4, "4"}, {5, "5"}, {6, "6"}, {7, "7"}, {8, "8"}, {9, "9"},
    {10, "None"}, {-1, nullptr}};

const zundo_enum_pair_s jobBindingEdgeValues[] = {
    {3, "None"}, {1, "Bottom"}, {2, "Left"}, {4, "Right"}, {5, "Top"}, {-1, nullptr}};

const zundo_enum_pair_s mediaPmpStatusValues[] = {
    {1, "Enabled"}, {2, "Disabled"}, {3, "NotPossible"}, {-1, nullptr}};

const zundo_enum_pair_s jobPageRangeImpositionValues[] = {
    {1, "Maintain"}, {2, "Reflow"}, {-1, nullptr}};

const zundo_enum_pair_s inkUsageNameValues[] = {
    {1, "Black"}, {2, "Cyan"}, {4, "Magenta"}, {7, "Yellow"}, {3, "Highlight"}, {5, "MICR"},
    {6, "ProtectorCoat"}, {-1, nullptr}};

const zundo_enum_pair_s jobPdfCacheXobjectsValues[] = {
    {1, "Auto"}, {2, "Off"}, {3, "On"}, {-1, nullptr}};

const zundo_enum_pair_s pageRangeCoverTypeValues[] = {
    {1, "Back"}, {2, "Front"}, {-1, nullptr}};

const zundo_enum_pair_s jobCmykOverprintModeValues[] = {
    {2, "Disable"}, {1, "Enable"}, {3, "PrintFile"}, {4, "PrintFileElseEnable"}, {-1, nullptr}};

const zundo_enum_pair_s screeningTypeValues[] = {
    {1, "AM"}, {2, "HybridAMline-dot"}, {-1, nullptr}};

const zundo_enum_pair_s jobNumberUpDoubleImpositionCellToRotateValues[] = {
    {1, "None"}, {2, "One"}, {3, "Zero"}, {-1, nullptr}};

const zundo_enum_pair_s screeningSpotFunctionValues[] = {
    {1, "Line"}, {2, "SimpleDot"}, {-1, nullptr}};

const zundo_enum_pair_s jobMirrorSurfaceValues[] = {
    {1, "MediaWidth"}, {2, "None"}, {-1, nullptr}};

const zundo_enum_pair_s jobTonerLimitPrintModeValues[] = {
    {1, "ImageQuality"}, {2, "Productivity"}, {-1, nullptr}};

const zundo_enum_pair_s colorPlanePriorityValues[] = {
    {1, "Vesko Effect"}, {2, "Vesko High Gloss Clear"}, {-1, nullptr}};

const zundo_enum_pair_s inkUsageAmountValues[] = {
    {1, "gram"}, {2, "liter"}, {-1, nullptr}};

const zundo_enum_pair_s mediaUnitFormatValues[] = {
    {1, "Continuous"}, {2, "Roll"}, {3, "Sheet"}, {-1, nullptr}};

const zundo_enum_pair_s holeShapeValues[] = {
    {1, "Elliptic"}, {2, "Round"}, {3, "Rectangular"}, {-1, nullptr}};

const zundo_enum_pair_s jobPrintingTypeValues[] = {
    {1, "SheetFed"}, {2, "WebFed"}, {-1, nullptr}};

const zundo_enum_pair_s booleanValues[] = {
    {1, "true"}, {0, "false"}, {-1, nullptr}};

const zundo_enum_pair_s mediaTabSetCollationOrderValues[] = {
    {1, "Forward"}, {2, "Reverse"}, {-1, nullptr}};

const zundo_enum_pair_s jobCollateValues[] = {
    {2, "Sheet"}, {3, "SheetSetAndJob"}, {1, "None"}, {-1, nullptr}};

const zundo_enum_pair_s mediaCoatingsValues[] = {
    {1, "None"}, {2, "Coated"}, {3, "Glossy"}, {4, "HighGloss"}, {5, "Matte"}, {6, "Polymer"},
    {7, "Satin"}, {8, "Semigloss"}, {9, "Silver"}, {-1, nullptr}};

const zundo_enum_pair_s mediaFrontCoatingDetailValues[] = {
    {1, "morvellan:Magnetic"}, {2, "morvellan:MetallicPearl"}, {-1, nullptr}};

const zundo_enum_pair_s foldingComponentTypeValues[] = {
    {1, "PartialProduct"}, {2, "Sheet"}, {2, "Sheet PartialProduct"}, {-1, nullptr}};

const zundo_enum_pair_s colorStandardValues[] = {
    {2, "Euroscale"}, {3, "SWOP"}, {1, "None"}, {-1, nullptr}};

const zundo_enum_pair_s ctmRotationValues[] = {
    {0, "1 0 0 1"}, {1, "1 0 0 1"}, {2, "0 1 -1 0"}, {3, "-1 0 0 -1"}, {4, "0 -1 1 0"},
    {-1, nullptr}};

const zundo_enum_pair_s markAnchorValues[] = {
    {8, "BottomCenter"}, {7, "BottomLeft"}, {9, "BottomRight"}, {4, "Center"},
    {5, "CenterLeft"}, {6, "CenterRight"}, {2, "TopCenter"}, {1, "TopLeft"}, {3, "TopRight"},
    {-1, nullptr}};

const zundo_enum_pair_s presentationDirectionValues[] = {
    {1, "Xyz"}, {2, "xyz"}, {3, "yXz"}, {4, "yxz"}, {5, "YXz"}, {6, "Yxz"}, {7, "XYz"},
    {8, "xYz"}, {-1, nullptr}};

const zundo_enum_pair_s jobNumberUpFinishingOrderValues[] = {
    {1, "FoldGather"}, {2, "GatherFold"}, {-1, nullptr}};

const zundo_enum_pair_s markTextFontColorValues[] = {
    {1, "Black"}, {2, "Blue"}, {3, "Cyan"}, {4, "Green"}, {5, "Magenta"}, {6, "Red"},
    {7, "Yellow"}, {-1, nullptr}};

const zundo_enum_pair_s markTextDateFormatValues[] = {
    {1, "DDMMYYYY_PeriodDelimiter"}, {2, "DDMMYYYY_SlashDelimiter"},
    {5, "MMDDYY_PeriodDelimiter"}, {6, "MMDDYY_SlashDelimiter"},
    {3, "MMDDYYYY_PeriodDelimiter"}, {4, "MMDDYYYY_SlashDelimiter"},
    {7, "YYYYMMDD_PeriodDelimiter"}, {8, "YYYYMMDD_SlashDelimiter"},
    {9, "YYYYMMDD_HyphenDelimiter"}, {-1, nullptr}};

const zundo_enum_pair_s markTextTimeFormatValues[] = {
    {1, "HHMM_12Hour"}, {2, "HHMM_24Hour"}, {3, "HHMMSS_12Hour"}, {4, "HHMMSS_24Hour"},
    {-1, nullptr}};

const zundo_enum_pair_s markTextTemplateValues[] = {
    {1, "Date"}, {3, "Time"}, {2, "page"}, {-1, nullptr}};

const zundo_enum_pair_s fitPolicyValues[] = {
    {0, "None"}, {1, "FitToPage"}, {3, "ClipToMaxPage"}, {2, "ReduceToFit"}, {-1, nullptr}};

const zundo_enum_pair_s jobFuserSettingValues[] = {
    {2, "Standard"}, {1, "HighQuality"}, {-1, nullptr}};

const zundo_enum_pair_s fitPolicyPositionValues[] = {
    {1, "Bottom"}, {2, "Center"}, {3, "Left"}, {4, "Right"}, {5, "Top"}, {-1, nullptr}};

const zundo_enum_pair_s rotatePolicyValues[] = {
    {1, "NoRotate"}, {2, "RotateClockwise"}, {3, "RotateCounterClockwise"},
    {4, "RotateOrthogonal"}, {-1, nullptr}};

const zundo_enum_pair_s holeMakingCountValues[] = {
    {-1, "S-generic"}, {1, "S1-generic"}, {2, "R2-generic"}, {3, "R3-generic"},
    {4, "R4-generic"}, {-1, nullptr}};

const zundo_enum_pair_s holeMakingSpacingValues[] = {
    {1, "Even"}, {2, "Grouped2"}, {-1, nullptr}};

const zundo_enum_pair_s contactInfoTypesValues[] = {
    {1, "Customer"}, {-1, nullptr}};

const zundo_enum_pair_s jobJogOffsetValues[] = {
    {2, "morvellan:JobCopiesAndJobs"}, {3, "Jobs"}, {4, "JobCopies"}, {5, "Sets"}, {1, "None"},
    {-1, nullptr}};

const zundo_enum_pair_s mediaOpacityValues[] = {
    {1, "Opaque"}, {2, "Transparent"}, {3, "Translucent"}, {-1, nullptr}};

const zundo_enum_pair_s mediaColorValues[] = {
    {1, "Black"}, {2, "DarkBlack"}, {3, "LightBlack"}, {4, "Blue"}, {5, "DarkBlue"},
    {6, "LightBlue"}, {7, "Brown"}, {8, "DarkBrown"}, {9, "LightBrown"}, {10, "Buff"},
    {11, "DarkBuff"}, {12, "LightBuff"}, {13, "Cyan"}, {14, "DarkCyan"}, {15, "LightCyan"},
    {16, "Gold"}, {17, "DarkGold"}, {18, "LightGold"}, {19, "Goldenrod"}, {20, "DarkGoldenrod"},
    {21, "LightGoldenrod"}, {22, "Gray"}, {23, "DarkGray"}, {24, "LightGray"}, {25, "Green"},
    {26, "DarkGreen"}, {27, "LightGreen"}, {28, "Ivory"}, {29, "DarkIvory"}, {30, "LightIvory"},
    {31, "Magenta"}, {32, "DarkMagenta"}, {33, "LightMagenta"}, {34, "MultiColor"},
    {35, "DarkMultiColor"}, {36, "LightMultiColor"}, {37, "Mustard"}, {38, "DarkMustard"},
    {39, "LightMustard"}, {40, "NoColor"}, {41, "DarkNoColor"}, {42, "LightNoColor"},
    {43, "Orange"}, {44, "DarkOrange"}, {45, "LightOrange"}, {46, "Pink"}, {47, "DarkPink"},
    {48, "LightPink"}, {49, "Red"}, {50, "DarkRed"}, {51, "LightRed"}, {52, "Silver"},
    {53, "DarkSilver"}, {54, "LightSilver"}, {55, "Turquoise"}, {56, "DarkTurquoise"},
    {57, "LightTurquoise"}, {58, "Violet"}, {59, "DarkViolet"}, {60, "LightViolet"},
    {61, "White"}, {62, "DarkWhite"}, {63, "LightWhite"}, {64, "Yellow"}, {65, "DarkYellow"},
    {66, "LightYellow"}, {-1, nullptr}};

const zundo_enum_pair_s objectTypesValues[] = {
    {1, "All"}, {2, "ImagePhotographic"}, {5, "Text"}, {3, "LineArt"}, {4, "SmoothShades"},
    {-1, nullptr}};

const zundo_enum_pair_s jobBlackSubstitutionMethodValues[] = {
    {2, "KBlack"}, {3, "RichBlack"}, {1, "Normal"}, {-1, nullptr}};

const zundo_enum_pair_s renderingIntentValues[] = {
    {1, "AbsoluteColorimetric"}, {2, "Perceptual"}, {3, "RelativeColorimetric"},
    {4, "Saturation"}, {-1, nullptr}};

const zundo_enum_pair_s renderingIntentSourceValues[] = {
    {1, "JDF"}, {2, "PDL"}, {-1, nullptr}};

const zundo_enum_pair_s preserveKBlackModeValues[] = {
    {1, "Basic"}, {2, "Preserve"}, {3, "Special"}, {-1, nullptr}};

const zundo_enum_pair_s preserveCmyColorsModeValues[] = {
    {1, "Coarse"}, {2, "Smooth"}, {-1, nullptr}};

const zundo_enum_pair_s mediaHoleCountValues[] = {
    {0, "None"}, {1, "S1-generic"}, {2, "R2-generic"}, {3, "R3-generic"}, {4, "R4-generic"},
    {-1, "S-generic"}, {-1, nullptr}};

const zundo_enum_pair_s mediaFeedEdgeValues[] = {
    {1, "LongEdgeFeed"}, {2, "ShortEdgeFeed"}, {-1, nullptr}};

const zundo_enum_pair_s mediaImagableSideValues[] = {
    {1, "Back"}, {2, "Both"}, {3, "Front"}, {4, "Neither"}, {-1, nullptr}};

const zundo_enum_pair_s registerMarkNameValues[] = {
    {1, "RegisterMark"}, {2, "morvellan:RegisterMarkNoCircle"}, {-1, nullptr}};

const zundo_enum_pair_s trimBleedMarkNameValues[] = {
    {1, "BleedMark"}, {2, "TrimMark"}, {-1, nullptr}};

const zundo_enum_pair_s markSideValues[] = {
    {1, "Back"}, {2, "Front"}, {3, "TwoSidedBackToBack"}, {-1, nullptr}};

const zundo_enum_pair_s notificationDeliveryTypeValues[] = {
    {1, "Email"}, {-1, nullptr}};

const zundo_enum_pair_s jobNumberUpFitBoxValues[] = {
    {1, "CropBoxToClipBox"}, {2, "MediaBoxToTrimSize"}, {3, "TrimBoxToTrimSize"}, {-1, nullptr}};

const zundo_enum_pair_s markTextCharOrientationValues[] = {
    {1, "Horizontal"}, {2, "Vertical"}, {-1, nullptr}};

const zundo_enum_pair_s jobPageDeliveryValues[] = {
    {2, "SameOrderFaceDown"}, {3, "SameOrderFaceUp"}, {4, "ReverseOrderFaceDown"},
    {5, "ReverseOrderFaceUp"}, {1, "FanFold"}, {-1, nullptr}};

const zundo_enum_pair_s pageOrderValues[] = {
    {2, "Reader"}, {1, "Booklet"}, {-1, nullptr}};

const zundo_enum_pair_s pageRotationValues[] = {
    {1, "Rotate0"}, {2, "Rotate90"}, {3, "Rotate180"}, {4, "Rotate270"}, {-1, nullptr}};

const zundo_enum_pair_s insertSheetPositionValues[] = {
    {1, "Trailer"}, {2, "Header"}, {-1, nullptr}};

const zundo_enum_pair_s referenceEdgeValues[] = {
    {1, "Rotate270"}, {2, "Rotate0"}, {3, "Rotate180"}, {4, "Rotate90"}, {-1, nullptr}};

const zundo_enum_pair_s pageCellSheetSideValues[] = {
    {1, "Back"}, {2, "Front"}, {-1, nullptr}};

const zundo_enum_pair_s sidesValues[] = {
    {1, "OneSidedBackFlipX"}, {2, "OneSidedBackFlipY"}, {3, "OneSidedFront"},
    {4, "TwoSidedFlipX"}, {5, "TwoSidedFlipY"}, {-1, nullptr}};

const zundo_enum_pair_s stitchingTypeValues[] = {
    {2, "Corner"}, {1, "None"}, {3, "Saddle"}, {4, "Side"}, {-1, nullptr}};

const zundo_enum_pair_s jobHoldActionValues[] = {
    {1, "HoldBeforePrint"}, {2, "HoldForeverBeforePrint"}, {3, "PrintAndHold"},
    {4, "PrintAndHoldForever"}, {5, "RIPAndHold"}, {6, "Print"}, {-1, nullptr}};

const zundo_enum_pair_s trappingTypeValues[] = {
    {1, "None"}, {2, "On"}, {-1, nullptr}};

const zundo_enum_pair_s trimmingTypeValues[] = {
    {1, "None"}, {4, "On"}, {-1, nullptr}};

const zundo_enum_pair_s jobCarriageControlTypeValues[] = {
    {2, "ASCII"}, {3, "EBCDIC"}, {4, "Machine"}, {1, "None"}, {-1, nullptr}};

const zundo_enum_pair_s mediaOverrideSnapshotValues[] = {
    {1, "Dimension"}, {-1, nullptr}};

const zundo_enum_pair_s ripParamsPrintModeValues[] = {
    {1, "Standard"}, {2, "Grayscale"}, {-1, nullptr}};

const zundo_enum_pair_s ripParamsBrightnessValues[] = {
    {1, "85% Lightest"}, {2, "90% Lighter"}, {3, "95% Light"}, {4, "100% Normal"},
    {5, "105% Dark"}, {6, "110% Darker"}, {7, "115% Darkest"}, {-1, nullptr}};

const zundo_enum_pair_s ripParamsDigitalPressModeValues[] = {
    {1, "600 Line 90deg Fixed"}, {2, "300 Line 90deg Fixed"}, {3, "200 Line YMCK Rotated"},
    {4, "200 Dot YMCK Rotated"}, {5, "150 Dot YMCK Rotated"}, {6, "Automatic"}, {-1, nullptr}};

const zundo_enum_pair_s ripParamsImageSmoothValues[] = {
    {1, "Automatic"}, {2, "Below 90 ppi"}, {3, "Below 150 ppi"}, {4, "Below 200 ppi"},
    {5, "Below 300 ppi"}, {-1, nullptr}};
