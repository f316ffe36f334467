// Finishing: binding, stitching, folding, hole making with its hole lines
// and holes, trimming and trapping.
#include "catalogue/finishing_records.h"
#include "features/feature_object.h"

namespace {

const zundo_rule_s finishingRules[] = {
    {{"binding-output-bin-name"}, ZUNDO_RULE_NON_BLANK},
    {{"binding-type", "folding-type", "stitching-type", "trapping-type", "trimming-type"},
     ZUNDO_RULE_REQUIRED},
    {{"stitching-angle"}, ZUNDO_RULE_BETWEEN,
     "Attempted to set %s to %i, must be \t\t\t\t\t\t\tbetween 0-359, or -1 for not set.\n", -1,
     359},
    {{"stitching-count"}, ZUNDO_RULE_AT_LEAST, kAboveZeroOrUnsetText, 1},
    {{"folding-type"}, ZUNDO_RULE_NON_BLANK,
     "Attempted to set required attribute %s to invalid value [%s].\n"},
    {{"folding-output-bin-name", "trimming-output-bin-name"}, ZUNDO_RULE_NON_BLANK},
    {{"hole-center-x", "hole-center-y", "hole-extent-x", "hole-extent-y", "hole-shape"},
     ZUNDO_RULE_REQUIRED},
    // The pitch has no not-set value, so every pitch is checked.
    {{"hole-center-x", "hole-center-y", "hole-extent-x", "hole-extent-y", "hole-line-pitch"},
     ZUNDO_RULE_ABOVE, kAboveZeroRealText, 0},
    {{"hole-making-count"}, ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %i, must be greater than -2\n", -2},
    {{"trimming-offset", "trimming-offset-height", "trimming-offset-width"},
     ZUNDO_RULE_AT_LEAST,
     "Attempted to set one %s to %e. Must be greater than or equal to 0 OR -1 for not set "
     "value.\n",
     0},
    {{"trimming-width", "trimming-height"}, ZUNDO_RULE_AT_LEAST,
     "Attempted to set one %s to %e. Must be greater than or equal to 1 OR zero for not set "
     "value.\n",
     1},
    {},
};

}  // namespace

ZUNDO_FEATURE(Binding, binding, BINDING, checkRules<finishingRules>)

extern "C" zundo_status_t newBinding(zundo_int_object_s **out, int type, int referenceEdge) {
    return buildFeature<BindingType>(out, "newBinding",
                                     {integerValue("binding-reference-edge", referenceEdge),
                                      integerValue("binding-type", type)});
}

ZUNDO_FEATURE(Stitching, stitching, STITCHING, checkRules<finishingRules>)

extern "C" zundo_status_t newStitching(zundo_int_object_s **out, int count, int referenceEdge,
                                       int type) {
    return buildFeature<StitchingType>(out, "newStitching",
                                       {integerValue("stitching-count", count),
                                        integerValue("stitching-reference-edge", referenceEdge),
                                        integerValue("stitching-type", type)});
}

ZUNDO_FEATURE(Folding, folding, FOLDING, checkRules<finishingRules>)

extern "C" zundo_status_t newFolding(zundo_int_object_s **out, const char *type) {
    if (type == nullptr)
        return refuseConstruction(out, "Type must be specified to create a Folding.\n");
    return buildFeature<FoldingType>(out, "newFolding", {textValue("folding-type", type)});
}

ZUNDO_CODE_FEATURE(Trimming, trimming, TRIMMING, finishingRules, "trimming-type")
ZUNDO_FEATURE(Hole, hole, HOLE, checkRules<finishingRules>)

extern "C" zundo_status_t newHole(zundo_int_object_s **out, double centerX, double centerY,
                                  double extentX, double extentY, int shape) {
    return buildFeature<HoleType>(
        out, "newHole",
        {realValue("hole-center-x", centerX), realValue("hole-center-y", centerY),
         realValue("hole-extent-x", extentX), realValue("hole-extent-y", extentY),
         integerValue("hole-shape", shape)});
}

extern "C" zundo_status_t newHoleEmpty(zundo_int_object_s **out) {
    return buildFeature<HoleType>(out, "newHoleEmpty", {});
}

ZUNDO_FEATURE(HoleLine, hole_line, HOLE_LINE, checkRules<finishingRules>)

extern "C" zundo_status_t newHoleLine(zundo_int_object_s **out, double pitch,
                                      zundo_int_object_s *hole) {
    return buildFeature<HoleLineType>(out, "newHoleLine",
                                      {realValue("hole-line-pitch", pitch),
                                       ownedValue("hole-line-hole", ZUNDO_KIND_OBJECT, hole)});
}

extern "C" zundo_status_t newHoleLineEmpty(zundo_int_object_s **out) {
    return buildFeature<HoleLineType>(out, "newHoleLineEmpty", {});
}

ZUNDO_PLAIN_FEATURE(HoleList, hole_list, HOLE_LIST, finishingRules)
ZUNDO_FEATURE(HoleMaking, hole_making, HOLE_MAKING, checkRules<finishingRules>)

extern "C" zundo_status_t newHoleMaking(zundo_int_object_s **out, int count, int referenceEdge) {
    return buildFeature<HoleMakingType>(
        out, "newHoleMaking",
        {integerValue("hole-making-count", count),
         integerValue("hole-making-reference-edge", referenceEdge)});
}

ZUNDO_CODE_FEATURE(Trapping, trapping, TRAPPING, finishingRules, "trapping-type")
