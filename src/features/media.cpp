// The media: its rules, the custom-dimension coupling with its name, and the
// comparisons the writer uses to share Media resources.
//
// The media extension registry holds no entries, so a media is never
// followed by extension objects and stays the head of its chain.
#include <cstring>

#include "catalogue/media_records.h"
#include "features/feature_object.h"

namespace {

const char kCustomDimension[] = "media-operator-intervention-for-custom-dimension";
const char kCustomName[] = "Custom";

// Text checks first, then the rule of the attribute's own kind. (The
// opacity is an enumeration code, so no text check can apply to it.)
const zundo_rule_s mediaRules[] = {
    {{"media-color-details", "media-type-manual-mode", "media-input-tray-name", "media-name",
      "media-type-details", "media-texture", "media-units", "media-stock"},
     ZUNDO_RULE_NON_BLANK},
    {{"media-hole-count"}, ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %i, must be greater than -3\n", -2},
    {{"media-preprinted", "media-sensitive-edge", "media-auto-select", "media-sensitive-side"},
     ZUNDO_RULE_BOOLEAN, kTabbedTrueFalseText},
    {{"media-recycled-percentage"}, ZUNDO_RULE_BETWEEN,
     "Attempted to set %s to %g, must be \t\t\t\t\t\t\t-1 or greater than or equal to 0 "
     "\t\t\t\t\t\t\tand less than or equal to 100.\n",
     0, 100},
    {{"media-set-count"}, ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %i, must be \t\t\t\t\t\t\tgreater than 0 or equal to -1.\n", 1},
    {{"media-catalog-max-entries"}, ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %i, must be \t\t\t\t\t\t\tgreater than or equal to 0 or -1 for "
     "unsetting the value.\n",
     -1},
    {{"media-weight", "media-tab-offset", "media-amount-used", "media-tab-shift"},
     ZUNDO_RULE_AT_LEAST,
     "Attempted to set %s to %g, must be \t\t\t\t\t\t\tgreater than or equal to 0.\n", 0},
    {{"media-x-dimension", "media-y-dimension", "media-x-dimension-in-units",
      "media-y-dimension-in-units", "media-tab-extension", "media-tab-width"},
     ZUNDO_RULE_AT_LEAST, "Attempted to set %s to %g, must be \t\t\t\t\t\t\tgreater than 0.\n", 0},
    {{"media-stock", "media-type-manual-mode", "media-texture", "media-type-details"},
     ZUNDO_RULE_NO_BLANKS, kSpacesText},
    {{kCustomDimension}, ZUNDO_RULE_BOOLEAN, kTrueFalseText},
    {},
};

zundo_status_t validateMedia(void *data, const char *name, zundo_int_attribute_s *attribute);

}  // namespace

ZUNDO_FEATURE(Media, media, MEDIA, validateMedia)

namespace {

// A media whose custom dimensions need the operator is named "Custom", and
// keeps that name while the flag is set.
zundo_status_t validateMedia(void *data, const char *name, zundo_int_attribute_s *attribute) {
    zundo_status_t status = applyRules(mediaRules, name, attribute);
    if (status != ZUNDO_OK || !hasValue(attribute)) return status;
    if (std::strcmp(name, kCustomDimension) == 0) {
        if (*static_cast<const int *>(valueAt(attribute, 0)) != 1) return ZUNDO_OK;
        zundo_int_attribute_s *customName = nullptr;
        status = newAttribute(&customName, "media-name", ZUNDO_KIND_STRING, kCustomName);
        if (status == ZUNDO_OK) status = typeSet<MediaType>(data, customName);
        destroyAttribute(customName);
        return status;
    }
    const auto *media = static_cast<const zundo_media_data_s *>(data);
    if (media->operatorInterventionForCustomDimension == 1 &&
        std::strcmp(name, "media-name") == 0 &&
        std::strcmp(static_cast<const char *>(valueAt(attribute, 0)), kCustomName) != 0) {
        zundo_trace("Value of MEDIA_NAME must be CUSTOM when value of "
                    "MEDIA_OPERATOR_INTERVENTION_FOR_CUSTOM_DIMENSION=true");
        return ZUNDO_INVALID_ARGUMENT;
    }
    return ZUNDO_OK;
}

}  // namespace

extern "C" zundo_status_t newMedia(zundo_int_object_s **out, const char *name) {
    return buildFeature<MediaType>(out, "newMedia", {textValue("media-name", name)});
}

extern "C" int mediaEquals(const zundo_int_object_s *a, const zundo_int_object_s *b) {
    return compareMedia(a, b) == 0 ? 1 : 0;
}

extern "C" void swapDimensions(zundo_int_object_s *media) {
    for (zundo_int_object_s *link = media; link != nullptr; link = link->next) {
        if (link->isExtension || link->type == nullptr ||
            std::strcmp(link->type, ZUNDO_TYPE_MEDIA) != 0 || link->data == nullptr)
            continue;
        auto *record = static_cast<zundo_media_data_s *>(link->data);
        double x = record->xDimension;
        record->xDimension = record->yDimension;
        record->yDimension = x;
        return;
    }
}
