// Every feature type through its whole life, driven from one list: build,
// fill one attribute of each value kind it has, clone, compare, change,
// compare again, destroy (the sanitizer build counts leaks).
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "zundo_object.h"

namespace {

typedef zundo_int_object_s *Object;

struct FeatureType {
    const char *type;
    zundo_status_t (*make)(Object *out);  // the constructor with arguments it accepts
    zundo_status_t (*clone)(Object *out, const zundo_int_object_s *source);
    int (*compare)(const zundo_int_object_s *a, const zundo_int_object_s *b);
};

// What a value constructor makes, or null.
template <typename V, typename... P, typename... A>
V *made(zundo_status_t (*constructor)(V **, P...), A... arguments) {
    V *value = nullptr;
    constructor(&value, arguments...);
    return value;
}

zundo_date_time_s *stamp(int year = 2009) { return made(newDateTime, 10, 30, 0, 3, 7, year, 1); }
zundo_range_s *pages(int lower, int upper) { return made(newRange, lower, upper); }

const FeatureType kTypes[] = {
    {"ZUNDO_BANNER_SHEET", [](Object *o) { return newBannerSheet(o, 1); }, cloneBannerSheet,
     compareBannerSheet},
    {"ZUNDO_BINDING", [](Object *o) { return newBinding(o, 2, 1); }, cloneBinding, compareBinding},
    {"ZUNDO_CALIBRATION_TYPE", [](Object *o) { return newCalibrationType(o, "P1"); },
     cloneCalibrationType, compareCalibrationType},
    {"ZUNDO_COLOR_PLANE", [](Object *o) { return newColorPlane(o, "Cyan"); }, cloneColorPlane,
     compareColorPlane},
    {"ZUNDO_CONTACT_INFO", newContactInfo, cloneContactInfo, compareContactInfo},
    {"ZUNDO_CONTAINER", [](Object *o) { return newContainer(o, "application/zip", "a.zip"); },
     cloneContainer, compareContainerAttrValue},
    {"ZUNDO_FOLDING", [](Object *o) { return newFolding(o, "F4-1"); }, cloneFolding,
     compareFolding},
    {"ZUNDO_HOLE", [](Object *o) { return newHole(o, 1, 2, 3, 4, 2); }, cloneHole, compareHole},
    {"ZUNDO_HOLE_LINE",
     [](Object *o) {
         Object hole = nullptr;
         newHoleEmpty(&hole);
         return newHoleLine(o, 5.5, hole);
     },
     cloneHoleLine, compareHoleLine},
    {"ZUNDO_HOLE_LIST", newHoleList, cloneHoleList, compareHoleList},
    {"ZUNDO_HOLE_MAKING", [](Object *o) { return newHoleMaking(o, 3, 1); }, cloneHoleMaking,
     compareHoleMaking},
    {"ZUNDO_INK_USAGE", [](Object *o) { return newInkUsage(o, 2); }, cloneInkUsage,
     compareInkUsage},
    {"ZUNDO_INSERT_SHEET",
     [](Object *o) {
         zundo_range_s *all[] = {pages(0, -1), nullptr};
         Object media = nullptr;
         newMedia(&media, "Letter");
         return newInsertSheet(o, 1, all, media);
     },
     cloneInsertSheet, compareInsertSheet},
    {"ZUNDO_MARK", [](Object *o) { return newMark(o, "%s", 90, 1.5, 2.5); }, cloneMark,
     compareMark},
    {"ZUNDO_MEDIA", [](Object *o) { return newMedia(o, "A4"); }, cloneMedia, compareMedia},
    {"ZUNDO_NAMED_FEATURE", [](Object *o) { return newNamedFeature(o, "Duplex", "On"); },
     cloneNamedFeature, compareNamedFeature},
    {"ZUNDO_NAMED_FEATURE_VALUE", [](Object *o) { return newNamedFeatureValue(o, "On"); },
     cloneNamedFeatureValue, compareNamedFeatureValue},
    {"ZUNDO_NOTIFICATION",
     [](Object *o) {
         const char *sendTo[] = {"ops@example.com", nullptr};
         const char *events[] = {"morvellan:JobDone", "morvellan:JobStarted", nullptr};
         return newNotification(o, sendTo, events, 1);
     },
     cloneNotification, compareNotificationAttrValue},
    {"ZUNDO_NOTIFICATION_AUDIT", [](Object *o) { return newNotificationAudit(o, 4, stamp()); },
     cloneNotificationAudit, compareNotificationAudit},
    {"ZUNDO_PAGE_CELL", [](Object *o) { return newPageCellInfo(o, pages(0, 3)); }, clonePageCell,
     comparePageCell},
    {"ZUNDO_PAGE_RANGE", [](Object *o) { return newPageRange(o, pages(2, 5), nullptr); },
     clonePageRange, comparePageRange},
    {"ZUNDO_PAGINATION", newPagination, clonePagination, comparePagination},
    {"ZUNDO_PHASE_TIME", [](Object *o) { return newPhaseTime(o, 2, "Press1", stamp(), stamp()); },
     clonePhaseTime, comparePhaseTime},
    {"ZUNDO_PROCESS_RUN", [](Object *o) { return newProcessRun(o, stamp(), 1, stamp(), nullptr); },
     cloneProcessRun, compareProcessRun},
    {"ZUNDO_PROOF_PRINT", [](Object *o) { return newProofPrint(o, 2); }, cloneProofPrint,
     compareProofPrint},
    {"ZUNDO_REGISTER_MARK", [](Object *o) { return newRegisterMark(o, 1); }, cloneRegisterMark,
     compareRegisterMark},
    {"ZUNDO_RETAIN", [](Object *o) { return newRetain(o, 2); }, cloneRetain, compareRetain},
    {"ZUNDO_RIP_PARAMS",
     [](Object *o) { return newRipParams(o, 1, 2, 0, 1, 3, 1, 0, 1, 2, 0, 1, 0); },
     cloneRipParams, compareRipParamsAttrValue},
    {"ZUNDO_SCREENING", [](Object *o) { return newScreening(o, "AM", 150); }, cloneScreening,
     compareScreening},
    {"ZUNDO_SEPARATOR_SHEET", [](Object *o) { return newSeparatorSheet(o, 1, nullptr); },
     cloneSeparatorSheet, compareSeparatorSheet},
    {"ZUNDO_STITCHING", [](Object *o) { return newStitching(o, 2, 1, 3); }, cloneStitching,
     compareStitching},
    {"ZUNDO_TRAPPING", [](Object *o) { return newTrapping(o, 1); }, cloneTrapping,
     compareTrapping},
    {"ZUNDO_TRIM_BLEED_MARK", [](Object *o) { return newTrimBleedMark(o, 2); },
     cloneTrimBleedMark, compareTrimBleedMark},
    {"ZUNDO_TRIMMING", [](Object *o) { return newTrimming(o, 1); }, cloneTrimming,
     compareTrimming},
    {"ZUNDO_USAGE_COUNTER", newUsageCounter, cloneUsageCounter, compareUsageCounter},
};

// A value of `kind` as addValue takes it; `variant` picks another one.
const void *makeValue(const std::string &kind, int variant, int *integer, double *real) {
    *integer = 1 + variant;
    *real = variant == 0 ? 1.0 : variant == 1 ? 0.5 : 2.0;
    if (kind == "I" || kind == "IL") return integer;
    if (kind == "D") return real;
    if (kind == "S") return variant == 0 ? "A4" : "Letter";
    if (kind == "R") return pages(1, 3 + variant);
    if (kind == "DT") return stamp(2009 + variant);
    if (kind == "TP") return made(newTimePeriod, 0, 1, variant, 3, 4);
    if (kind == "RGB") return made(newRGB, 10, 20, 30 + variant);
    if (kind == "B") return made(newBinaryObject, "data", 1 + variant);
    if (kind == "SP") return made(newStartPage, 1 + variant, 1);
    if (kind == "M") return made(newModified, nullptr, variant == 0 ? "a" : "b");
    Object contact = made(newContactInfo);
    if (variant != 0) setStringAttribute(contact, "contact-info-company", "Acme");
    return contact;
}

bool trySet(Object object, const std::string &name, const std::string &kind, int variant) {
    int integer = 0;
    double real = 0;
    const void *value = makeValue(kind, variant, &integer, &real);
    zundo_int_attribute_s *attribute = nullptr;
    EXPECT_EQ(ZUNDO_OK, newAttribute(&attribute, name.c_str(), kind.c_str(), value));
    bool accepted = set(object, attribute) == ZUNDO_OK;
    destroyAttribute(attribute);
    // A refused value object stays with the caller.
    if (!accepted && isPointerKind(kind.c_str()) && kind != "S" && kind != "IL")
        destroyValueByKind(kind.c_str(), const_cast<void *>(value));
    return accepted;
}

// The names of the attributes the object can hold, by value kind.
std::map<std::string, std::vector<std::string>> namesByKind(Object object) {
    std::map<std::string, std::vector<std::string>> byKind;
    char **names = getAttributeNames(object);
    for (char **name = names; name != nullptr && *name != nullptr; name++) {
        zundo_int_attribute_s *attribute = get(object, *name);
        EXPECT_NE(nullptr, attribute) << *name;
        if (attribute != nullptr) byKind[getValueType(attribute)].push_back(*name);
        destroyAttribute(attribute);
    }
    freeAttributeNames(names);
    return byKind;
}

void PrintTo(const FeatureType &t, std::ostream *os) { *os << t.type; }

class FeatureLifecycle : public ::testing::TestWithParam<FeatureType> {};

TEST_P(FeatureLifecycle, FillCloneCompareChangeDestroy) {
    const FeatureType &t = GetParam();
    Object object = nullptr;
    ASSERT_EQ(ZUNDO_OK, t.make(&object));
    ASSERT_STREQ(t.type, getObjectType(object));

    std::vector<std::pair<std::string, std::string>> filled;  // name, kind
    const auto byKind = namesByKind(object);
    for (const auto &kind : byKind) {
        for (const std::string &name : kind.second) {
            if (!trySet(object, name, kind.first, 0)) continue;
            filled.emplace_back(name, kind.first);
            break;
        }
    }
    ASSERT_EQ(byKind.size(), filled.size()) << "a kind without an accepted value";

    Object copy = nullptr;
    ASSERT_EQ(ZUNDO_OK, t.clone(&copy, object));
    ASSERT_STREQ(t.type, getObjectType(copy));
    EXPECT_EQ(0, t.compare(object, copy));
    Object generic = cloneObj(object);
    EXPECT_EQ(0, compareObjects(generic, object));
    for (const auto &field : filled) {
        zundo_int_attribute_s *original = get(object, field.first.c_str());
        zundo_int_attribute_s *copied = get(copy, field.first.c_str());
        EXPECT_EQ(1, attributesEqual(original, copied)) << field.first;
        destroyAttribute(original);
        destroyAttribute(copied);
    }

    bool changed = false;
    for (size_t i = 0; i < filled.size() && !changed; i++)
        for (int variant = 1; variant <= 2 && !changed; variant++)
            changed = trySet(copy, filled[i].first, filled[i].second, variant);
    ASSERT_TRUE(changed);
    EXPECT_EQ(1, t.compare(object, copy));
    EXPECT_EQ(1, compareObjects(copy, object));

    destroy(generic);
    destroy(copy);
    destroy(object);
}

// A null out pointer fails after the constructor has taken its objects;
// an object of another type is neither cloned nor equal.
TEST_P(FeatureLifecycle, RefusesNullAndForeignArguments) {
    const FeatureType &t = GetParam();
    Object object = nullptr;
    ASSERT_EQ(ZUNDO_OK, t.make(&object));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, t.clone(nullptr, object));
    Object copy = nullptr;
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, t.clone(&copy, nullptr));
    Object other = nullptr;
    ASSERT_EQ(ZUNDO_OK, (t.make == newPagination ? newHoleList : newPagination)(&other));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, t.clone(&copy, other));
    EXPECT_EQ(1, t.compare(object, other));
    destroy(other);
    EXPECT_EQ(1, t.compare(object, nullptr));
    EXPECT_EQ(0, t.compare(object, object));
    EXPECT_EQ(ZUNDO_INVALID_ARGUMENT, t.make(nullptr));
    destroy(object);
}

std::string typeName(const ::testing::TestParamInfo<FeatureType> &info) {
    std::string name = info.param.type + std::strlen("ZUNDO_");
    name.erase(std::remove(name.begin(), name.end(), '_'), name.end());
    return name;
}

INSTANTIATE_TEST_SUITE_P(FeatureTypes, FeatureLifecycle, ::testing::ValuesIn(kTypes), typeName);

}  // namespace
