// Page cells of the written ticket and the CellIndex / Side partitions of
// LayoutPreparationParams they impose; fit policy and image shift of the
// job, documents, page ranges and page cells.
#include <cstring>
#include <xercesc/dom/DOMElement.hpp>

#include "enums/value_tables.h"
#include "job/abstract_jdp.h"
#include "values/value_objects.h"
#include "write/element_values.h"
#include "write/jdf_attr.h"
#include "write/layout_writers.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "xml/partitions.h"
#include "zundo_trace.h"

namespace {

const int kBackSide = 1;  // "page-cell-sheet-side"
const int kFrontSide = 2;
// The distinct cell ranges kept for the gap walk. Ranges beyond the table
// still get their partitions; they only take no part in finding the
// cells that no page cell covers.
const int kCellRangeSlots = 299;
// Image shifts that are not given keep this value, the attributes' own
// not-set value, so that a pair given by one value reads back as one.
const double kShiftNotGiven = 999999.0;

const char *const kClipBoxNames[4] = {
    "page-cell-clip-box-lower-left-x", "page-cell-clip-box-lower-left-y",
    "page-cell-clip-box-upper-right-x", "page-cell-clip-box-upper-right-y"};

const ElementValueRow kPageCellFitPolicyRows[] = {
    {"page-cell-rotate-policy", "RotatePolicy", kCodeValue, rotatePolicyValues},
    {"page-cell-rotate-to-match-binding-edge", "morvellan:RotateToMatchBindingEdge", kCodeValue,
     booleanValues},
    {nullptr, nullptr, kTextValue, nullptr},
};
const ElementValueRow kPageCellPositionRows[] = {
    {"page-cell-fit-policy-position-x", "PositionX", kCodeValue, fitPolicyPositionValues},
    {"page-cell-fit-policy-position-y", "PositionY", kCodeValue, fitPolicyPositionValues},
    {nullptr, nullptr, kTextValue, nullptr},
};
const ElementValueRow kBlockPositionRows[] = {
    {"fit-policy-position-x", "PositionX", kCodeValue, fitPolicyPositionValues},
    {"fit-policy-position-y", "PositionY", kCodeValue, fitPolicyPositionValues},
    {nullptr, nullptr, kTextValue, nullptr},
};
const ElementValueRow kJobRotateRows[] = {
    {"job-rotate-policy", "RotatePolicy", kCodeValue, rotatePolicyValues},
    {"job-rotate-to-match-binding-edge", "morvellan:RotateToMatchBindingEdge", kCodeValue,
     booleanValues},
    {nullptr, nullptr, kTextValue, nullptr},
};
const char *const kBlockShiftNames[6] = {"fit-policy-position-x", "fit-policy-position-y",
                                         "image-shift-back-x",    "image-shift-back-y",
                                         "image-shift-front-x",   "image-shift-front-y"};

bool coversAllCells(const zundo_range_s &range) { return range.lower == 0 && range.upper == -1; }

// The first Range value of an attribute, or null.
const zundo_range_s *firstRange(const FetchedAttribute &ranges) {
    zundo_int_attribute_s *values = ranges.attribute();
    resetIterator(values);
    return hasNextValue(values) ? static_cast<const zundo_range_s *>(nextValue(values)) : nullptr;
}

// The distinct cell ranges of the job's page cells, in their order.
struct CellRanges {
    zundo_range_s ranges[kCellRangeSlots];
    int count;
};

void collectCellRange(CellRanges *table, const zundo_range_s &range) {
    for (int i = 0; i < table->count; ++i)
        if (compareRange(&table->ranges[i], &range) == 0) return;
    if (table->count < kCellRangeSlots) table->ranges[table->count++] = range;
}

// Decides which partitions LayoutPreparationParams gets and records it in
// the context.
void decidePartitions(JDFWriteContext *ctx, zundo_int_object_s *job, CellRanges *table) {
    forEachObject(job, "job-page-ranges", [ctx](zundo_int_object_s *pageRange) {
        if (objectHasValue(pageRange, "page-range-page-cells")) ctx->lppRunIndexPartitions = true;
    });
    forEachObject(job, "job-page-cells", [ctx, table](zundo_int_object_s *cell) {
        FetchedAttribute cells(cell, "page-cell-cells");
        if (const zundo_range_s *range = firstRange(cells)) {
            if (!coversAllCells(*range)) ctx->lppCellPartitions = true;
            collectCellRange(table, *range);
        }
        int side = FetchedAttribute(cell, "page-cell-sheet-side").firstInt(0);
        if (side == kFrontSide) ctx->lppFrontSidePartitions = true;
        if (side == kBackSide) ctx->lppBackSidePartitions = true;
    });
}

bool sidePartitionsExist(const JDFWriteContext *ctx) {
    return ctx->lppFrontSidePartitions || ctx->lppBackSidePartitions;
}

void setPartIdKeys(const JDFWriteContext *ctx, xercesc::DOMElement *params) {
    char keys[32] = "";
    if (ctx->lppCellPartitions) std::strcat(keys, "CellIndex ");
    if (sidePartitionsExist(ctx)) std::strcat(keys, "Side ");
    if (ctx->lppRunIndexPartitions) std::strcat(keys, "RunIndex ");
    setAttributeTraced(params, "PartIDKeys", keys);
}

xercesc::DOMElement *appendPartitionTraced(xercesc::DOMElement *parent, const char *key,
                                           const char *value) {
    xercesc::DOMElement *partition = appendPartition(parent, key, value);
    if (partition == nullptr) zundo_trace("parser_error %i, \n", ZUNDO_INTERNAL_ERROR);
    return partition;
}

// The element a page cell's PageCell (or its Side partitions) goes into.
xercesc::DOMElement *cellElementOf(xercesc::DOMElement *params, const zundo_range_s *cells) {
    if (cells == nullptr || coversAllCells(*cells)) return params;
    char text[ZUNDO_RANGE_TEXT_SIZE];
    xercesc::DOMElement *partition =
        findOrCreatePartition(params, toStringRange(text, cells), "CellIndex");
    if (partition == nullptr) zundo_trace("parser_error %i, \n", ZUNDO_INTERNAL_ERROR);
    return partition;
}

void appendPageCell(JDFWriteContext *ctx, zundo_int_object_s *cell, xercesc::DOMElement *parent) {
    xercesc::DOMElement *pageCell =
        parent != nullptr ? appendChildTraced(parent, "PageCell") : nullptr;
    if (pageCell != nullptr) writePageCellElement(ctx, cell, pageCell);
}

void writeJobPageCell(JDFWriteContext *ctx, xercesc::DOMElement *params, zundo_int_object_s *cell) {
    FetchedAttribute cellsValue(cell, "page-cell-cells");
    const zundo_range_s *cells = firstRange(cellsValue);
    int side = FetchedAttribute(cell, "page-cell-sheet-side").firstInt(0);
    const char *sideName = jdfNameForCode(pageCellSheetSideValues, side);
    if (cells == nullptr && sideName == nullptr) return;
    xercesc::DOMElement *cellElement = cellElementOf(params, cells);
    if (cellElement == nullptr) return;
    if (sideName == nullptr) {
        appendPageCell(ctx, cell, cellElement);
        return;
    }
    appendPageCell(ctx, cell, appendPartitionTraced(cellElement, "Side", sideName));
    // Page ranges place their page cells on both sides.
    if (ctx->lppRunIndexPartitions)
        appendPartitionTraced(cellElement, "Side", side == kFrontSide ? "Back" : "Front");
}

// The cells that no page cell covers get partitions of their own, so that
// page ranges find a leaf for every cell. The ranges are walked in the
// order the page cells name them.
void writeUncoveredCells(const JDFWriteContext *ctx, xercesc::DOMElement *params,
                         const CellRanges &table, int numberOfCells) {
    zundo_range_s gaps[kCellRangeSlots + 1];
    int gapCount = 0;
    int next = 0;
    for (int i = 0; i < table.count; ++i) {
        const zundo_range_s &range = table.ranges[i];
        if (coversAllCells(range)) continue;
        if (range.lower > next) gaps[gapCount++] = zundo_range_s{next, range.lower - 1};
        next = range.upper + 1;
        if (range.upper < 0) break;
    }
    if (next > 0 && numberOfCells == 0)
        gaps[gapCount++] = zundo_range_s{next, -1};
    else if (next > 0 && next < numberOfCells)
        gaps[gapCount++] = zundo_range_s{next, numberOfCells - 1};
    for (int i = 0; i < gapCount; ++i) {
        char text[ZUNDO_RANGE_TEXT_SIZE];
        xercesc::DOMElement *gap =
            appendPartitionTraced(params, "CellIndex", toStringRange(text, &gaps[i]));
        if (gap == nullptr || !sidePartitionsExist(ctx)) continue;
        appendPartitionTraced(gap, "Side", "Back");
        appendPartitionTraced(gap, "Side", "Front");
    }
}

int numberOfCells(zundo_int_object_s *job) {
    FetchedAttribute x(job, "job-number-up-x");
    FetchedAttribute y(job, "job-number-up-y");
    if (!x.hasValue() && !y.hasValue()) return 0;
    return x.firstInt(1) * y.firstInt(1);
}

// Calls fill(element) for each new element `name` in LayoutPreparationParams
// at the partition of the run range and document index.
template <typename Fill>
void placeLayoutElement(JDFWriteContext *ctx, const char *name, int cellLevel, const char *runRange,
                        const char *documentIndex, Fill fill) {
    if (documentIndex == nullptr) {
        ElementEntry **list = nullptr;
        addLPPRunIndexElement(ctx, name, runRange, cellLevel, &list);
        for (ElementEntry **entry = list; entry != nullptr && *entry != nullptr; ++entry)
            fill((*entry)->element);
        freeElementList(list);
        return;
    }
    xercesc::DOMElement *params = getLayoutPreparationParams(ctx);
    if (params == nullptr) return;
    ElementEntry entry = {nullptr, name, documentIndex, runRange};
    zundo_result_t result = runRange == nullptr ? createDocIndexPartitionElement(params, &entry)
                                                : createDocRunIndexPartitionElement(params, &entry);
    if (succeededTraced(result.status)) fill(entry.element);
}

}  // namespace

void writePageCells(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writePageCells\n");
    CellRanges table;
    table.count = 0;
    decidePartitions(ctx, job, &table);
    bool anyPartitions =
        ctx->lppRunIndexPartitions || ctx->lppCellPartitions || sidePartitionsExist(ctx);
    xercesc::DOMElement *params = anyPartitions || objectHasValue(job, "job-page-cells")
                                      ? getLayoutPreparationParams(ctx)
                                      : nullptr;
    if (params != nullptr) {
        if (anyPartitions) setPartIdKeys(ctx, params);
        forEachObject(job, "job-page-cells", [ctx, params](zundo_int_object_s *cell) {
            writeJobPageCell(ctx, params, cell);
        });
        if (ctx->lppCellPartitions && ctx->lppRunIndexPartitions)
            writeUncoveredCells(ctx, params, table, numberOfCells(job));
    }
    zundo_trace("<< leaving writePageCells\n");
}

void writePageCellElement(JDFWriteContext *ctx, zundo_int_object_s *pageCell,
                          xercesc::DOMElement *pageCellElement) {
    // The marks go inside the PageCell, where the page cell's marks are
    // read from.
    forEachObject(pageCell, "page-cell-marks", [ctx, pageCellElement](zundo_int_object_s *mark) {
        writeMark(ctx, mark, pageCellElement, nullptr, nullptr);
    });
    double clipBox[4];
    bool anyClipBox = false;
    for (int i = 0; i < 4; ++i) {
        FetchedAttribute corner(pageCell, kClipBoxNames[i]);
        anyClipBox = anyClipBox || corner.hasValue();
        clipBox[i] = corner.firstDouble(0.0);
    }
    char box[kRectangleTextSize];
    if (anyClipBox &&
        formatRealRectangle(box, sizeof box, clipBox[0], clipBox[1], clipBox[2], clipBox[3]))
        setAttributeTraced(pageCellElement, "ClipBox", box);
    double trimX = FetchedAttribute(pageCell, "page-cell-trim-size-x").firstDouble(0.0);
    double trimY = FetchedAttribute(pageCell, "page-cell-trim-size-y").firstDouble(0.0);
    char trimSize[kPairTextSize];
    if ((trimX != 0.0 || trimY != 0.0) && formatRealPair(trimSize, sizeof trimSize, trimX, trimY))
        setAttributeTraced(pageCellElement, "TrimSize", trimSize);
    const char *rotate = jdfNameForCode(
        pageRotationValues, FetchedAttribute(pageCell, "page-cell-rotation").firstInt(0));
    if (rotate != nullptr) setAttributeTraced(pageCellElement, "Rotate", rotate);

    int sizePolicy = FetchedAttribute(pageCell, "page-cell-fit-policy").firstInt(0);
    if (sizePolicy != 0 || objectHasValue(pageCell, "page-cell-rotate-policy") ||
        objectHasValue(pageCell, "page-cell-rotate-to-match-binding-edge")) {
        xercesc::DOMElement *fitPolicy = appendChildTraced(pageCellElement, "FitPolicy");
        const char *size = jdfNameForCode(fitPolicyValues, sizePolicy);
        if (fitPolicy != nullptr && size != nullptr)
            setAttributeTraced(fitPolicy, "SizePolicy", size);
        writeElementValues(fitPolicy, pageCell, kPageCellFitPolicyRows);
    }
    xercesc::DOMElement *imageShift = appendChildTraced(pageCellElement, "ImageShift");
    writeRealPairValue(imageShift, pageCell, "page-cell-image-shift-back-x",
                       "page-cell-image-shift-back-y", "ShiftBack", kShiftNotGiven);
    writeRealPairValue(imageShift, pageCell, "page-cell-image-shift-front-x",
                       "page-cell-image-shift-front-y", "ShiftFront", kShiftNotGiven);
    writeElementValues(imageShift, pageCell, kPageCellPositionRows);
    writeUnitsComment(pageCellElement, pageCell, "page-cell-trim-size-units", "TrimSize");
    writeUnitsComment(pageCellElement, pageCell, "page-cell-clip-box-units", "ClipBox");
}

bool writePageRangePageCells(JDFWriteContext *ctx, zundo_int_object_s *object,
                             const char *runRange) {
    bool written = false;
    forEachObject(object, "page-range-page-cells", [&](zundo_int_object_s *cell) {
        ElementEntry **list = nullptr;
        addLPPRunIndexElement(ctx, "PageCell", runRange, 1, &list);
        for (ElementEntry **entry = list; entry != nullptr && *entry != nullptr; ++entry) {
            writePageCellElement(ctx, cell, (*entry)->element);
            written = true;
        }
        freeElementList(list);
    });
    return written;
}

void writeFitPolicyAndImageShift(JDFWriteContext *ctx, zundo_int_object_s *object, int cellLevel,
                                 const char *runRange, const char *documentIndex) {
    zundo_int_object_s *block = followingAbstractJDP(object);
    FetchedAttribute sizePolicy(block, "fit-policy");
    if (sizePolicy.hasValue() || objectHasValue(object, "job-rotate-policy")) {
        placeLayoutElement(ctx, "FitPolicy", cellLevel, runRange, documentIndex,
                           [&](xercesc::DOMElement *fitPolicy) {
                               const char *size =
                                   sizePolicy.hasValue()
                                       ? jdfNameForCode(fitPolicyValues, sizePolicy.firstInt(0))
                                       : nullptr;
                               if (size != nullptr)
                                   setAttributeTraced(fitPolicy, "SizePolicy", size);
                               writeElementValues(fitPolicy, object, kJobRotateRows);
                           });
    }
    bool anyShift = false;
    for (const char *name : kBlockShiftNames) anyShift = anyShift || objectHasValue(block, name);
    if (!anyShift) return;
    bool jobLevel = runRange == nullptr && documentIndex == nullptr;
    placeLayoutElement(ctx, "ImageShift", cellLevel, runRange, documentIndex,
                       [&](xercesc::DOMElement *imageShift) {
                           if (jobLevel) ctx->imageShift = imageShift;
                           writeElementValues(imageShift, block, kBlockPositionRows);
                           writeRealPairValue(imageShift, block, "image-shift-back-x",
                                              "image-shift-back-y", "ShiftBack", 0.0);
                           writeRealPairValue(imageShift, block, "image-shift-front-x",
                                              "image-shift-front-y", "ShiftFront", 0.0);
                       });
}
