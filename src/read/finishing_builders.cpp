// The finishing objects made of the attribute entries of one partition
// level of a finishing resource.
#include <cstdio>

#include "enums/value_tables.h"
#include "read/finishing_reader.h"
#include "read/media_reader.h"
#include "read/reader_conversions.h"
#include "xml/index_lists.h"
#include "zundo_trace.h"

namespace {

const int kBindingTypeNone = 1;
const int kBindingOutputBinOnly = 7;
const int kTrimmingNone = 1;
const int kTrimmingOutputBinOnly = 2;
const int kHoleCountUnset = -2;

// Calls visit(entry) for every entry the filters select, in order.
template <typename Visit>
void forMatching(AttributeEntry *const *attrs, const char *docFilter, const char *runFilter,
                 Visit visit) {
    for (AttributeEntry *const *at = attrs; at != nullptr && *at != nullptr; ++at)
        if (partitionMatches(docFilter, runFilter, (*at)->firstKey, (*at)->secondKey)) visit(**at);
}

bool isTrue(const AttributeEntry &entry) { return textIs(entry.value, "true"); }

// The vendor limits of inserts that stitching, folding and hole making
// share; false for any other entry.
bool readInsertsLimit(zundo_int_object_s *object, const AttributeEntry &entry,
                      const char *afterName, const char *beforeName) {
    if (textIs(entry.name, "morvellan:LimitInsertsToFinishAfter"))
        setIntegerFromText(object, afterName, entry.value);
    else if (textIs(entry.name, "morvellan:LimitInsertsToFinishBefore"))
        setIntegerFromText(object, beforeName, entry.value);
    else
        return false;
    return true;
}

// S-generic and the R1 to R4 names by the table; other "R<n>-generic"
// names give n.
int holeCountOfType(const char *holeType) {
    const zundo_enum_pair_s *pair = pairForJdfName(holeMakingCountValues, holeType);
    if (pair != nullptr) return pair->code;
    int count = kHoleCountUnset;
    return std::sscanf(holeType, "R%d-generic", &count) == 1 ? count : kHoleCountUnset;
}

zundo_status_t readHoleLines(zundo_int_object_s *holeMaking, ElementEntry *const *elements,
                             const char *docFilter, const char *runFilter) {
    zundo_int_attribute_s *lines = nullptr;
    zundo_status_t status =
        newAttribute(&lines, "hole-making-hole-lines", ZUNDO_KIND_OBJECT, nullptr);
    if (status != ZUNDO_OK) return status;
    for (ElementEntry *const *at = elements; at != nullptr && *at != nullptr; ++at) {
        if (!textIs((*at)->name, "HoleLine") ||
            !partitionMatches(docFilter, runFilter, (*at)->firstKey, (*at)->secondKey))
            continue;
        zundo_int_object_s *line = readHoleLine((*at)->element);
        if (line != nullptr && addValue(lines, line) != ZUNDO_OK) destroy(line);
    }
    return setAndReleaseAttribute(holeMaking, lines);
}

struct RealRow {
    const char *jdfName;
    const char *attribute;
};

const RealRow kTrimmingReals[] = {
    {"Height", "trimming-height"},
    {"Width", "trimming-width"},
    {"TrimmingOffset", "trimming-offset"},
    {"morvellan:TrimmingOffsetWidth", "trimming-offset-width"},
    {"morvellan:TrimmingOffsetHeight", "trimming-offset-height"},
};

}  // namespace

zundo_status_t createBindingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                   const char *docFilter, const char *runFilter, int bindingType) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    zundo_trace(">> Entering createBindingObject \n");
    zundo_int_object_s *binding = nullptr;
    if (newBinding(&binding, bindingType, 0) != ZUNDO_OK) {
        zundo_trace("call to newBinding failed: internal error \n");
        return ZUNDO_ERROR;
    }
    int type = bindingType;
    zundo_status_t status = ZUNDO_OK;
    forMatching(attrs, docFilter, runFilter, [&](const AttributeEntry &entry) {
        if (textIs(entry.name, "morvellan:OutputBinOnly")) {
            if (isTrue(entry)) type = kBindingOutputBinOnly;
        } else if (textIs(entry.name, "NoOp")) {
            if (isTrue(entry)) type = kBindingTypeNone;
        } else {
            return;
        }
        status = setIntegerAttribute(binding, "binding-type", type);
        if (status != ZUNDO_OK)
            zundo_trace("call to setIntegerAttribute failed for %s: internal error \n",
                        "binding-type");
    });
    *out = binding;
    zundo_trace("<< Leaving createBindingObject \n");
    return status;
}

zundo_status_t createStitchingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                     const char *docFilter, const char *runFilter) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    zundo_trace(">> Entering createStitchingObject \n");
    zundo_int_object_s *stitching = nullptr;
    if (newStitching(&stitching, -1, 0, 1) != ZUNDO_OK) return ZUNDO_ERROR;
    // Whether the partition says anything about stitching at all.
    bool stitches = false;
    forMatching(attrs, docFilter, runFilter, [&](const AttributeEntry &entry) {
        int value = 0;
        if (textIs(entry.name, "NoOp")) {
            stitches = true;
        } else if (textIs(entry.name, "Angle") || textIs(entry.name, "NumberOfStitches")) {
            if (!convertStringToInt(entry.value, &value)) return;
            setIntegerAttribute(stitching,
                                textIs(entry.name, "Angle") ? "stitching-angle" : "stitching-count",
                                value);
            stitches = stitches || value != -1;
        } else if (textIs(entry.name, "StitchType")) {
            value = getZUNDOEnumValue("stitching-type", entry.value);
            setIntegerAttribute(stitching, "stitching-type", value);
            stitches = stitches || value != 0;
        } else {
            readInsertsLimit(stitching, entry, "stitching-with-inserts-after",
                             "stitching-with-inserts-before");
        }
    });
    if (stitches)
        *out = stitching;
    else
        destroy(stitching);
    zundo_trace("<< Leaving createStitchingObject \n");
    return ZUNDO_OK;
}

zundo_status_t createFoldingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                   const char *docFilter, const char *runFilter) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    zundo_trace(">> Entering createFoldingObject \n");
    zundo_int_object_s *folding = nullptr;
    if (newFolding(&folding, "None") != ZUNDO_OK) return ZUNDO_ERROR;
    const char *type = nullptr;
    zundo_status_t status = ZUNDO_OK;
    // Without a type yet the set is refused, as the object model refuses a
    // folding without one.
    auto setType = [&]() {
        status = type != nullptr ? setStringAttribute(folding, "folding-type", type)
                                 : ZUNDO_INVALID_ARGUMENT;
        if (status != ZUNDO_OK)
            zundo_trace("call to setStringAttribute failed for %s: internal error \n",
                        "folding-type");
    };
    forMatching(attrs, docFilter, runFilter, [&](const AttributeEntry &entry) {
        if (textIs(entry.name, "morvellan:OutputBinOnly")) {
            if (isTrue(entry)) type = "morvellan:OutputBinOnly";
            setType();
        } else if (textIs(entry.name, "NoOp")) {
            if (isTrue(entry)) type = "None";
            setType();
        } else {
            readInsertsLimit(folding, entry, "folding-with-inserts-after",
                             "folding-with-inserts-before");
        }
    });
    // A fold from the catalogue counts only where no NoOp or output bin
    // decided the type.
    bool catalogueSeen = false;
    forMatching(attrs, docFilter, runFilter, [&](const AttributeEntry &entry) {
        if (catalogueSeen || !textIs(entry.name, "FoldCatalog")) return;
        catalogueSeen = true;
        if (type != nullptr) return;
        type = entry.value;
        setType();
    });
    if (type == nullptr) {
        destroy(folding);
        return ZUNDO_INTERNAL_ERROR;
    }
    *out = folding;
    zundo_trace("<< Leaving createFoldingObject \n");
    return status;
}

zundo_status_t createHoleMakingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                      ElementEntry *const *elements, const char *docFilter,
                                      const char *runFilter) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    zundo_trace(">> Entering createHoleMakingObject \n");
    zundo_int_object_s *holeMaking = nullptr;
    if (newHoleMaking(&holeMaking, kHoleCountUnset, 0) != ZUNDO_OK) {
        zundo_trace("call to newHoleMaking failed: internal error \n");
        return ZUNDO_ERROR;
    }
    zundo_status_t status = ZUNDO_OK;
    auto setCount = [&](int count) {
        status = setIntegerAttribute(holeMaking, "hole-making-count", count);
        if (status != ZUNDO_OK)
            zundo_trace("call to setIntegerAttribute failed for %s: internal error \n",
                        "hole-making-count");
    };
    // NoOp "true" anywhere in the partition makes no holes, whatever
    // HoleType says.
    bool noHoles = false;
    forMatching(attrs, docFilter, runFilter, [&](const AttributeEntry &entry) {
        if (!textIs(entry.name, "NoOp") || !isTrue(entry)) return;
        noHoles = true;
        setCount(0);
    });
    forMatching(attrs, docFilter, runFilter, [&](const AttributeEntry &entry) {
        if (textIs(entry.name, "morvellan:HoleSpacing")) {
            setIntegerAttribute(holeMaking, "hole-making-spacing",
                                codeForJDFName(holeMakingSpacingValues, entry.value));
        } else if (textIs(entry.name, "HoleType")) {
            if (!noHoles) setCount(holeCountOfType(entry.value));
        } else {
            readInsertsLimit(holeMaking, entry, "hole-making-with-inserts-after",
                             "hole-making-with-inserts-before");
        }
    });
    readHoleLines(holeMaking, elements, docFilter, runFilter);
    *out = holeMaking;
    zundo_trace("<< Exiting createHoleMakingObject \n");
    return status;
}

zundo_status_t createTrimmingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                    const char *docFilter, const char *runFilter) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    zundo_trace(">> Entering createTrimmingObject \n");
    zundo_int_object_s *trimming = nullptr;
    if (newTrimming(&trimming, 4) != ZUNDO_OK) return ZUNDO_ERROR;
    int type = 0;
    forMatching(attrs, docFilter, runFilter, [&](const AttributeEntry &entry) {
        for (const RealRow &row : kTrimmingReals)
            if (textIs(entry.name, row.jdfName))
                setRealFromText(trimming, row.attribute, entry.value);
        bool outputBinOnly = textIs(entry.name, "morvellan:OutputBinOnly");
        if (!outputBinOnly && !textIs(entry.name, "NoOp")) return;
        if (isTrue(entry)) type = outputBinOnly ? kTrimmingOutputBinOnly : kTrimmingNone;
        setIntegerAttribute(trimming, "trimming-type", type);
    });
    *out = trimming;
    zundo_trace("<< Leaving createTrimmingObject \n");
    return ZUNDO_OK;
}

zundo_status_t createTrappingObject(zundo_int_object_s **out, AttributeEntry *const *attrs,
                                    const char *docFilter, const char *runFilter) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    zundo_trace(">> Entering createTrappingObject \n");
    zundo_int_object_s *trapping = nullptr;
    if (newTrapping(&trapping, 2) != ZUNDO_OK) return ZUNDO_ERROR;
    bool noOp = false;
    forMatching(attrs, docFilter, runFilter, [&](const AttributeEntry &entry) {
        if (!textIs(entry.name, "NoOp")) return;
        noOp = noOp || isTrue(entry);
        setIntegerAttribute(trapping, "trapping-type", noOp ? 1 : 0);
    });
    *out = trapping;
    zundo_trace("<< Leaving createTrappingObject \n");
    return ZUNDO_OK;
}
