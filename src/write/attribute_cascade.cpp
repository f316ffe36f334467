// The attribute cascade over the job, its documents and page ranges. Each
// object runs the same ordered steps; the partition keys it carries decide
// where its values land.
#include "write/attribute_cascade.h"

#include "enums/value_tables.h"
#include "job/abstract_jdp.h"
#include "values/value_objects.h"
#include "write/finishing_writer.h"
#include "write/jdf_root.h"
#include "write/layout_writers.h"
#include "write/media_writer.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "write/runs.h"
#include "xml/partitions.h"
#include "zundo_trace.h"

namespace {

// A value of the print-parameter block behind a job, document or page
// range, read by the name the three share ("sides", "number-up-x").
class BlockAttribute : public FetchedAttribute {
public:
    BlockAttribute(zundo_int_object_s *owner, const char *sharedName)
        : FetchedAttribute(followingAbstractJDP(owner), sharedName) {}
};

struct CascadeState {
    zundo_int_object_s *object;
    const char *runRange;
    const char *documentIndex;
    int cellLevel;  // 1 once a page cell of this object is written
    char numberUp[kPairTextSize];  // the NumberUp written, empty when none
};

typedef void (*CascadeWriter)(JDFWriteContext *ctx, CascadeState *state);

// A step writes either through its writer or its rows of block
// attributes; a step with neither has no writer in this library yet.
struct CascadeStep {
    const char *what;
    CascadeWriter write;
    const ObjectValueRow *rows;
};

const ObjectValueRow kSidesRows[] = {
    {"sides", "Sides", sidesValues, getLayoutPreparationParams},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kDestinationRows[] = {
    {"destination-name", "DeviceID", nullptr, getDevice},
    {"destination-manufacturer", "Manufacturer", nullptr, getDevice},
    {"destination-model", "ModelNumber", nullptr, getDevice},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kPresentationDirectionRows[] = {
    {"number-up-presentation-direction", "PresentationDirection", presentationDirectionValues,
     getLayoutPreparationParams},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kDistributionRows[] = {
    {"number-up-distribution", "PageDistributionScheme", nullptr, getLayoutPreparationParams},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kRotationRows[] = {
    {"page-rotation", "Rotate", pageRotationValues, getLayoutPreparationParams},
    {nullptr, nullptr, nullptr, nullptr},
};
// The job's own processing values; they never go to a partition. The
// printing parameters take all but the PIN, which belongs to the printed
// output, and the snapshot name, which names the node.
const ObjectValueRow kProcessingRows[] = {
    {"job-delivery-method", "morvellan:DeliveryMethod", deliveryMethodValues,
     getDigitalPrintingParams},
    {"job-carriage-control-type", "morvellan:CarriageControlType", jobCarriageControlTypeValues,
     getDigitalPrintingParams},
    {"job-eject-to-front-face", "morvellan:EjectToFrontFace", booleanValues,
     getDigitalPrintingParams},
    {"job-pin", "morvellan:PIN", nullptr, getDigitalPrintingOutputComponent},
    {"job-snapshot-name", "morvellan:SnapshotName", nullptr, getJDFRoot},
    {"job-table-reference-chars", "morvellan:TableReferenceChars", booleanValues,
     getDigitalPrintingParams},
    {"job-use-rip-spool", "morvellan:UseRIPSpool", booleanValues, getDigitalPrintingParams},
    {nullptr, nullptr, nullptr, nullptr},
};

const char *const kSurfaceContentsBoxNames[] = {
    "number-up-scb-lower-left-x", "number-up-scb-lower-left-y", "number-up-scb-upper-right-x",
    "number-up-scb-upper-right-y"};

// The JDF text of the first value: a code through the value table or a
// text unchanged; null without a value or a spelling.
const char *jdfText(const FetchedAttribute &value, const zundo_enum_pair_s *values) {
    if (!value.hasValue()) return nullptr;
    return values != nullptr ? jdfNameForCode(values, value.firstInt(0)) : value.firstString();
}

// Written only with a value, so that no resource is made for nothing.
void writeAtPartition(JDFWriteContext *ctx, const CascadeState &state, const char *jdfName,
                      const char *text, int cellLevel, ElementGetter getter) {
    if (text != nullptr)
        writeJDFAttr(ctx, jdfName, text, cellLevel, state.runRange, state.documentIndex, getter);
}

void writeBlockValues(JDFWriteContext *ctx, const CascadeState &state, const ObjectValueRow *rows,
                      int cellLevel) {
    for (const ObjectValueRow *row = rows; row->attribute != nullptr; ++row) {
        BlockAttribute value(state.object, row->attribute);
        writeAtPartition(ctx, state, row->jdfName, jdfText(value, row->values), cellLevel,
                         row->getter);
    }
}

bool elementHasAttribute(const xercesc::DOMElement *element, const char *name) {
    AttributeEntry *entry = nullptr;
    getAttrByName(element, name, &entry);
    bool found = entry != nullptr;
    freeAttrEntry(entry);
    return found;
}

void writeMediaRefs(JDFWriteContext *ctx, CascadeState *state) {
    BlockAttribute media(state->object, "media");
    if (media.hasValue())
        writeMediaForDPP(ctx, media.firstObject(), state->runRange, state->documentIndex);
}

void writeFinishing(JDFWriteContext *ctx, CascadeState *state) {
    typedef void (*FinishingWriter)(JDFWriteContext *, zundo_int_attribute_s *, const char *,
                                    const char *);
    static const struct {
        const char *sharedName;
        FinishingWriter write;
    } kFinishing[] = {
        {"binding", writeBinding},     {"folding", writeFolding},   {"hole-making", writeHoleMaking},
        {"stitching", writeStitching}, {"trapping", writeTrapping}, {"trimming", writeTrimming},
    };
    for (const auto &finishing : kFinishing) {
        BlockAttribute value(state->object, finishing.sharedName);
        if (value.hasValue())
            finishing.write(ctx, value.attribute(), state->runRange, state->documentIndex);
    }
}

void writeJobLevelPageRangeValues(JDFWriteContext *ctx, CascadeState *state) {
    if (state->runRange == nullptr || state->documentIndex != nullptr) return;
    FetchedAttribute cover(state->object, "page-range-cover-type");
    writeAtPartition(ctx, *state, "morvellan:Cover", jdfText(cover, pageRangeCoverTypeValues),
                     state->cellLevel, getLayoutPreparationParams);
    FetchedAttribute interfaceBox(state->object, "page-range-interface-box-function");
    writeAtPartition(ctx, *state, "morvellan:InterfaceBoxFunction",
                     jdfText(interfaceBox, interfaceBoxFunctionValues), state->cellLevel,
                     getDigitalPrintingParams);
    // Page ranges set the function per run; the resource keeps a default.
    xercesc::DOMElement *params = getDigitalPrintingParams(ctx);
    if (params != nullptr && !elementHasAttribute(params, "morvellan:InterfaceBoxFunction"))
        setAttributeTraced(params, "morvellan:InterfaceBoxFunction", "None");
}

void writeDestination(JDFWriteContext *ctx, CascadeState *state) {
    writeBlockValues(ctx, *state, kDestinationRows, 0);
}

void writeNumberUp(JDFWriteContext *ctx, CascadeState *state) {
    BlockAttribute x(state->object, "number-up-x");
    BlockAttribute y(state->object, "number-up-y");
    if (!x.hasValue() && !y.hasValue()) return;
    formatValueText(state->numberUp, sizeof state->numberUp, "%d %d", x.firstInt(1),
                    y.firstInt(1));
    writeAtPartition(ctx, *state, "NumberUp", state->numberUp, state->cellLevel,
                     getLayoutPreparationParams);
}

void writeSurfaceContentsBox(JDFWriteContext *ctx, CascadeState *state) {
    double corners[4];
    bool any = false;
    for (int i = 0; i < 4; ++i) {
        BlockAttribute corner(state->object, kSurfaceContentsBoxNames[i]);
        any = any || corner.hasValue();
        corners[i] = corner.firstDouble(0.0);
    }
    if (!any) return;
    char box[kRectangleTextSize];
    writeAtPartition(ctx, *state, "SurfaceContentsBox",
                     formatRealRectangle(box, sizeof box, corners[0], corners[1], corners[2],
                                         corners[3]),
                     state->cellLevel, getLayoutPreparationParams);
}

void writeStepRepeat(JDFWriteContext *ctx, CascadeState *state) {
    if (state->numberUp[0] == '\0') return;
    if (BlockAttribute(state->object, "number-up-copies").firstInt(-1) != 1) return;
    char stepRepeat[kPairTextSize + 2];
    writeAtPartition(ctx, *state, "StepRepeat",
                     formatValueText(stepRepeat, sizeof stepRepeat, "%s 1", state->numberUp),
                     state->cellLevel, getLayoutPreparationParams);
}

void writeProcessingValues(JDFWriteContext *ctx, CascadeState *state) {
    writeObjectValues(ctx, state->object, kProcessingRows);
}

void writeUnusedTabBin(JDFWriteContext *ctx, CascadeState *state) {
    if (state->runRange != nullptr) return;
    FetchedAttribute bin(state->object, "job-output-bin-name-unused-tabs");
    if (!bin.hasValue()) return;
    ctx->unusedTabBins = true;
    xercesc::DOMElement *component = getProcessOutputComponent(ctx, "DigitalPrinting");
    if (component == nullptr) return;
    ElementEntry location = {nullptr, "Location", "morvellan:UnusedTabs", nullptr};
    if (succeededTraced(createConditionPartitionElement(component, &location).status))
        setAttributeTraced(location.element, "LocationName", bin.firstString());
}

// Page ranges put their bin into a RunIndex partition, under the Good
// condition once unused tabs have a bin of their own.
void writeOutputBin(JDFWriteContext *ctx, CascadeState *state) {
    BlockAttribute bin(state->object, "output-bin-name");
    if (!bin.hasValue()) return;
    xercesc::DOMElement *component = getProcessOutputComponent(ctx, "DigitalPrinting");
    if (component == nullptr) return;
    ElementEntry location = {nullptr, "Location", nullptr, state->runRange};
    zundo_result_t result;
    if (state->runRange == nullptr) {
        result = createChildElement(component, &location);
    } else if (!ctx->unusedTabBins) {
        result = createRunIndexPartitionElement(component, &location);
    } else {
        location.firstKey = "Good";
        result = createConditionPartitionElement(component, &location);
    }
    if (succeededTraced(result.status))
        setAttributeTraced(location.element, "LocationName", bin.firstString());
}

void writePageCellsStep(JDFWriteContext *ctx, CascadeState *state) {
    if (writePageRangePageCells(ctx, state->object, state->runRange)) state->cellLevel = 1;
}

void writeFitPolicyAndImageShiftStep(JDFWriteContext *ctx, CascadeState *state) {
    writeFitPolicyAndImageShift(ctx, state->object, state->cellLevel, state->runRange,
                                state->documentIndex);
}

void writeMarksStep(JDFWriteContext *ctx, CascadeState *state) {
    writeObjectMarks(ctx, state->object, state->runRange);
}

const CascadeStep kCascadeSteps[] = {
    {"page cells", writePageCellsStep, nullptr},
    {"media", writeMediaRefs, nullptr},
    {"fit policy and image shift", writeFitPolicyAndImageShiftStep, nullptr},
    {"marks", writeMarksStep, nullptr},
    {"sides", nullptr, kSidesRows},
    {"cover and interface box of job-level page ranges", writeJobLevelPageRangeValues, nullptr},
    {"destination device", writeDestination, nullptr},
    {"finishing", writeFinishing, nullptr},
    {"number-up", writeNumberUp, nullptr},
    {"surface contents box", writeSurfaceContentsBox, nullptr},
    {"presentation direction", nullptr, kPresentationDirectionRows},
    {"step repeat", writeStepRepeat, nullptr},
    {"page distribution scheme", nullptr, kDistributionRows},
    {"rotation", nullptr, kRotationRows},
    {"processing values of the job", writeProcessingValues, nullptr},
    {"output bin for unused tabs", writeUnusedTabBin, nullptr},
    {"output bin", writeOutputBin, nullptr},
};

// The page range's pages as its run range; the empty text without pages.
const char *runRangeOf(zundo_int_object_s *pageRange, char *buffer) {
    FetchedAttribute pages(pageRange, "page-range-pages");
    zundo_int_attribute_s *ranges = pages.attribute();
    const auto *range =
        static_cast<const zundo_range_s *>(hasNextValue(ranges) ? nextValue(ranges) : nullptr);
    return toStringRange(buffer, range);
}

}  // namespace

void writeObjectValues(JDFWriteContext *ctx, zundo_int_object_s *object,
                       const ObjectValueRow *rows) {
    for (const ObjectValueRow *row = rows; row->attribute != nullptr; ++row) {
        FetchedAttribute value(object, row->attribute);
        const char *text = jdfText(value, row->values);
        if (text != nullptr)
            writeJDFAttr(ctx, row->jdfName, text, 0, nullptr, nullptr, row->getter);
    }
}

void writeAbstractJobDocPageAttributes(JDFWriteContext *ctx, zundo_int_object_s *object,
                                       const char *runRange, const char *documentIndex) {
    zundo_trace(">> entering writeAbstractJobDocPageAttributes\n");
    CascadeState state = {object, runRange, documentIndex, 0, ""};
    for (const CascadeStep &step : kCascadeSteps) {
        if (step.write != nullptr) step.write(ctx, &state);
        else if (step.rows != nullptr) writeBlockValues(ctx, state, step.rows, state.cellLevel);
    }
    zundo_trace("<< leaving writeAbstractJobDocPageAttributes\n");
}

void writePageRangeAttributes(JDFWriteContext *ctx, zundo_int_attribute_s *pageRanges,
                              const char *documentIndex) {
    zundo_trace(">> entering writePageRangeAttributes\n");
    resetIterator(pageRanges);
    while (hasNextValue(pageRanges)) {
        auto *pageRange = static_cast<zundo_int_object_s *>(nextValue(pageRanges));
        if (pageRange == nullptr) continue;
        char runRange[ZUNDO_RANGE_TEXT_SIZE];
        writeAbstractJobDocPageAttributes(ctx, pageRange, runRangeOf(pageRange, runRange),
                                          documentIndex);
    }
    zundo_trace("<< leaving writePageRangeAttributes\n");
}

void writeDocuments(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> Entering writeDocuments\n");
    zundo_int_object_s **documents = pagesAreDocumentLevel(job) ? getDocuments(job) : nullptr;
    for (int i = 0; documents != nullptr && documents[i] != nullptr; ++i) {
        char documentIndex[kNumberTextSize];
        writeAbstractJobDocPageAttributes(ctx, documents[i], nullptr,
                                          formatInteger(documentIndex, sizeof documentIndex, i));
    }
    zundo_trace("<< Leaving writeDocuments\n");
}

void writePageRanges(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writePageRanges\n");
    if (!pagesAreDocumentLevel(job)) {
        FetchedAttribute pageRanges(job, "job-page-ranges");
        writePageRangeAttributes(ctx, pageRanges.attribute(), nullptr);
    } else {
        zundo_int_object_s **documents = getDocuments(job);
        for (int i = 0; documents != nullptr && documents[i] != nullptr; ++i) {
            FetchedAttribute pageRanges(documents[i], "document-page-ranges");
            char documentIndex[kNumberTextSize];
            writePageRangeAttributes(ctx, pageRanges.attribute(),
                                     formatInteger(documentIndex, sizeof documentIndex, i));
        }
    }
    zundo_trace("<< leaving writePageRanges\n");
}
