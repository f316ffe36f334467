// Stitching, folding, hole making, trimming, trapping and screening.
#include "write/finishing_writer.h"

#include <cstdio>
#include <cstring>
#include <new>
#include <string>

#include "enums/value_tables.h"
#include "values/value_objects.h"
#include "write/finishing_components.h"
#include "write/media_writer.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "xml/partitions.h"
#include "zundo_trace.h"

namespace {

const int kStitchTypeNone = 1;
const int kTrimmingNone = 1;
const int kTrimmingOutputBinOnly = 2;
const int kTrappingNone = 1;
// A trapping without a type traps.
const int kTrappingTypeUnset = 0;

// The parameter resource of one finishing object and the partition its
// values go to.
struct FinishingTarget {
    JDFWriteContext *ctx;
    ElementGetter getter;
    const char *runRange;
    const char *documentIndex;
};

void put(const FinishingTarget &target, const char *name, const char *value) {
    writeJDFAttr(target.ctx, name, value, 0, target.runRange, target.documentIndex, target.getter);
}

void putInteger(const FinishingTarget &target, const char *name, int value) {
    char text[kNumberTextSize];
    put(target, name, formatInteger(text, sizeof text, value));
}

void putReal(const FinishingTarget &target, const char *name, double value) {
    char text[kNumberTextSize];
    put(target, name, formatReal(text, sizeof text, value));
}

// The NoOp of a finishing object that does nothing, or what it does (the
// key attribute) with the NoOp convention for a page range.
void putNoOpOrKey(const FinishingTarget &target, const char *keyAttribute, const char *keyValue) {
    if (keyValue == nullptr) {
        if (target.runRange != nullptr)
            setNoOpForRange(target.ctx, target.getter, keyAttribute, "true", target.runRange,
                            target.documentIndex);
        else
            put(target, "NoOp", "true");
        return;
    }
    put(target, keyAttribute, keyValue);
    if (target.runRange != nullptr)
        setNoOpForRange(target.ctx, target.getter, keyAttribute, "false", target.runRange,
                        target.documentIndex);
}

void putInsertsLimits(const FinishingTarget &target, zundo_int_object_s *object,
                      const char *afterName, const char *beforeName) {
    FetchedAttribute after(object, afterName);
    if (after.hasValue())
        putInteger(target, "morvellan:LimitInsertsToFinishAfter", after.firstInt(0));
    FetchedAttribute before(object, beforeName);
    if (before.hasValue())
        putInteger(target, "morvellan:LimitInsertsToFinishBefore", before.firstInt(0));
}

zundo_int_object_s *firstObjectOf(zundo_int_attribute_s *attribute) {
    resetIterator(attribute);
    return hasNextValue(attribute) ? static_cast<zundo_int_object_s *>(nextValue(attribute))
                                   : nullptr;
}

void writeOutputBin(JDFWriteContext *ctx, zundo_int_object_s *object, const char *attribute,
                    const char *processName) {
    FetchedAttribute bin(object, attribute);
    if (bin.hasValue()) writeOutputBinLocation(ctx, processName, bin.firstString());
}

// A child of the resource in the partition of the run range and document
// index, or of the resource itself.
xercesc::DOMElement *createPartitionChild(const FinishingTarget &target, const char *name) {
    xercesc::DOMElement *resource = target.getter(target.ctx);
    if (resource == nullptr) return nullptr;
    ElementEntry entry = {nullptr, name, target.documentIndex, target.runRange};
    zundo_result_t result;
    if (target.runRange == nullptr && target.documentIndex == nullptr)
        result = createChildElement(resource, &entry);
    else if (target.documentIndex == nullptr)
        result = createSubPartitionElement(resource, &entry, "Run", "RunIndex", "RunIndex");
    else if (target.runRange == nullptr)
        result = createDocIndexPartitionElement(resource, &entry);
    else
        result = createDocRunIndexPartitionElement(resource, &entry);
    return succeededTraced(result.status) ? entry.element : nullptr;
}

xercesc::DOMElement *getFoldingInputComponent(JDFWriteContext *ctx) {
    return getProcessInputComponent(ctx, "Folding");
}

// The Folding process's input: its orientation, and the component type it
// folds, on the Component itself for the job and on its RunIndex
// partition for a page range.
void writeFoldingComponentType(JDFWriteContext *ctx, zundo_int_object_s *folding,
                               const char *runRange) {
    FetchedAttribute edge(folding, "folding-reference-edge");
    FetchedAttribute componentType(folding, "folding-component-type");
    if (!edge.hasValue() && !componentType.hasValue()) return;
    const char *orientation = convertZUNDOReferenceEdgeToJDFOrientation(edge.firstInt(0));
    if (runRange == nullptr) {
        xercesc::DOMElement *link = getProcessInputLink(ctx, "Folding", true);
        if (link != nullptr && edge.hasValue())
            setAttributeTraced(link, "Orientation", orientation);
    } else if (edge.hasValue()) {
        addPartAmountOrientation(ctx, "Folding", orientation, runRange);
    }
    xercesc::DOMElement *component = getFoldingInputComponent(ctx);
    if (component == nullptr) return;
    const char *type = componentType.hasValue()
                           ? jdfNameForCode(foldingComponentTypeValues, componentType.firstInt(0))
                           : nullptr;
    // A sheet folded along an edge comes out as a partial product.
    if (edge.hasValue() && type != nullptr && std::strcmp(type, "Sheet") == 0)
        type = "Sheet PartialProduct";
    if (type != nullptr)
        writeJDFAttr(ctx, "ComponentType", type, 0, runRange, nullptr, getFoldingInputComponent);
    FetchedAttribute foldingType(folding, "folding-type");
    if (!foldingType.hasValue()) return;
    if (std::strcmp(foldingType.firstString(), "None") == 0)
        setAttributeTraced(component, "NoOp", "true");
    else if (runRange != nullptr)
        writeJDFAttr(ctx, "NoOp", "false", 0, runRange, nullptr, getFoldingInputComponent);
}

// The codes of an integer-list attribute by their JDF names, joined by
// blanks; empty without values.
std::string joinedNames(zundo_int_object_s *object, const char *name,
                        const zundo_enum_pair_s *names) {
    std::string joined;
    FetchedAttribute values(object, name);
    zundo_int_attribute_s *list = values.attribute();
    while (hasNextValue(list)) {
        const char *text = jdfNameForCode(names, *static_cast<int *>(nextValue(list)));
        if (text == nullptr) continue;
        if (!joined.empty()) joined += ' ';
        joined += text;
    }
    return joined;
}

struct ScreeningState {
    bool lockedWritten;
    bool baseScreensWritten;
};

void writeScreenSelector(JDFWriteContext *ctx, zundo_int_object_s *screening,
                         ScreeningState *state) {
    xercesc::DOMElement *params = getScreeningParams(ctx);
    xercesc::DOMElement *selector =
        params != nullptr ? appendChildTraced(params, "ScreenSelector") : nullptr;
    if (selector == nullptr) return;
    const FinishingTarget target = {ctx, getScreeningParams, nullptr, nullptr};
    FetchedAttribute readOnly(screening, "screening-read-only");
    if (!state->lockedWritten && readOnly.hasValue()) {
        put(target, "Locked", jdfNameForCode(booleanValues, readOnly.firstInt(0)));
        state->lockedWritten = true;
    }
    if (!state->baseScreensWritten && objectHasValue(screening, "screening-base-screens")) {
        put(target, "morvellan:BaseScreens",
            joinedNames(screening, "screening-base-screens", baseScreenValues).c_str());
        state->baseScreensWritten = true;
    }
    FetchedAttribute productId(screening, "screening-product-id");
    if (productId.hasValue()) put(target, "ProductID", productId.firstString());
    FetchedAttribute frequency(screening, "screening-frequency");
    char text[kNumberTextSize];
    if (frequency.hasValue())
        setAttributeTraced(selector, "Frequency",
                           formatReal(text, sizeof text, frequency.firstDouble(0.0)));
    FetchedAttribute type(screening, "screening-type");
    if (type.hasValue())
        setAttributeTraced(selector, "ScreeningType",
                           jdfNameForCode(screeningTypeValues, type.firstInt(0)));
    FetchedAttribute spotFunction(screening, "screening-spot-function");
    if (spotFunction.hasValue())
        setAttributeTraced(selector, "SpotFunction",
                           jdfNameForCode(screeningSpotFunctionValues, spotFunction.firstInt(0)));
    FetchedAttribute family(screening, "screening-family");
    if (family.hasValue()) setAttributeTraced(selector, "ScreeningFamily", family.firstString());
    if (objectHasValue(screening, "screening-object-types"))
        setAttributeTraced(
            selector, "SourceObjects",
            joinedNames(screening, "screening-object-types", objectTypesValues).c_str());
}

}  // namespace

void writeStitching(JDFWriteContext *ctx, zundo_int_attribute_s *attribute, const char *runRange,
                    const char *documentIndex) {
    zundo_trace(">> entering writeStitching\n");
    zundo_int_object_s *stitching = firstObjectOf(attribute);
    if (stitching != nullptr) {
        const FinishingTarget target = {ctx, getStitchingParams, runRange, documentIndex};
        FetchedAttribute type(stitching, "stitching-type");
        if (type.hasValue()) {
            int code = type.firstInt(0);
            putNoOpOrKey(
                target, "StitchType",
                code == kStitchTypeNone ? nullptr : jdfNameForCode(stitchingTypeValues, code));
        }
        int edge = FetchedAttribute(stitching, "stitching-reference-edge").firstInt(0);
        if (edge != 0) writeProcessOrientation(ctx, "Stitching", edge, runRange, documentIndex);
        int angle = FetchedAttribute(stitching, "stitching-angle").firstInt(-1);
        if (angle >= 0) putInteger(target, "Angle", angle);
        int count = FetchedAttribute(stitching, "stitching-count").firstInt(-1);
        if (count > 0) putInteger(target, "NumberOfStitches", count);
        putInsertsLimits(target, stitching, "stitching-with-inserts-after",
                         "stitching-with-inserts-before");
    }
    zundo_trace("<< leaving writeStitching\n");
}

void writeHoleMaking(JDFWriteContext *ctx, zundo_int_attribute_s *attribute, const char *runRange,
                     const char *documentIndex) {
    zundo_trace(">> entering writeHoleMaking\n");
    zundo_int_object_s *holeMaking = firstObjectOf(attribute);
    if (holeMaking != nullptr) {
        const FinishingTarget target = {ctx, getHoleMakingParams, runRange, documentIndex};
        FetchedAttribute count(holeMaking, "hole-making-count");
        if (count.hasValue()) {
            int holes = count.firstInt(0);
            const char *holeType = jdfNameForCode(holeMakingCountValues, holes);
            char generic[32];
            if (holeType == nullptr && holes != 0)
                holeType = formatValueText(generic, sizeof generic, "R%d-generic", holes);
            putNoOpOrKey(target, "HoleType", holes == 0 ? nullptr : holeType);
        }
        FetchedAttribute lines(holeMaking, "hole-making-hole-lines");
        while (hasNextValue(lines.attribute())) {
            auto *line = static_cast<zundo_int_object_s *>(nextValue(lines.attribute()));
            put(target, "HoleType", "Explicit");
            xercesc::DOMElement *element = createPartitionChild(target, "HoleLine");
            if (element != nullptr && line != nullptr) writeHoleLineContent(element, line);
        }
        FetchedAttribute spacing(holeMaking, "hole-making-spacing");
        if (spacing.hasValue())
            put(target, "morvellan:HoleSpacing",
                jdfNameForCode(holeMakingSpacingValues, spacing.firstInt(0)));
        int edge = FetchedAttribute(holeMaking, "hole-making-reference-edge").firstInt(0);
        if (edge != 0) writeProcessOrientation(ctx, "HoleMaking", edge, runRange, documentIndex);
        putInsertsLimits(target, holeMaking, "hole-making-with-inserts-after",
                         "hole-making-with-inserts-before");
    }
    zundo_trace("<< leaving writeHoleMaking\n");
}

void writeFolding(JDFWriteContext *ctx, zundo_int_attribute_s *attribute, const char *runRange,
                  const char *documentIndex) {
    zundo_trace(">> entering writeFolding\n");
    zundo_int_object_s *folding = firstObjectOf(attribute);
    if (folding != nullptr) {
        writeFoldingComponentType(ctx, folding, runRange);
        writeOutputBin(ctx, folding, "folding-output-bin-name", "Folding");
        FetchedAttribute type(folding, "folding-type");
        if (type.hasValue()) {
            const FinishingTarget target = {ctx, getFoldingParams, runRange, documentIndex};
            const char *fold = type.firstString();
            if (std::strcmp(fold, "morvellan:OutputBinOnly") == 0)
                put(target, "morvellan:OutputBinOnly", "true");
            else
                putNoOpOrKey(target, "FoldCatalog",
                             std::strcmp(fold, "None") == 0 ? nullptr : fold);
            putInsertsLimits(target, folding, "folding-with-inserts-after",
                             "folding-with-inserts-before");
        }
    }
    zundo_trace("<< leaving writeFolding\n");
}

void writeTrimming(JDFWriteContext *ctx, zundo_int_attribute_s *attribute, const char *runRange,
                   const char *documentIndex) {
    zundo_trace(">> entering writeTrimming\n");
    zundo_int_object_s *trimming = firstObjectOf(attribute);
    if (trimming != nullptr) {
        const FinishingTarget target = {ctx, getTrimmingParams, runRange, documentIndex};
        writeOutputBin(ctx, trimming, "trimming-output-bin-name", "Trimming");
        int type = FetchedAttribute(trimming, "trimming-type").firstInt(0);
        if (type == kTrimmingNone)
            put(target, "NoOp", "true");
        else if (type == kTrimmingOutputBinOnly)
            put(target, "morvellan:OutputBinOnly", "true");
        else
            getTrimmingParams(ctx);
        static const struct {
            const char *attribute;
            const char *jdfName;
        } kReals[] = {
            {"trimming-height", "Height"},
            {"trimming-width", "Width"},
            {"trimming-offset-height", "morvellan:TrimmingOffsetHeight"},
            {"trimming-offset-width", "morvellan:TrimmingOffsetWidth"},
            {"trimming-offset", "TrimmingOffset"},
        };
        for (const auto &row : kReals) {
            FetchedAttribute value(trimming, row.attribute);
            if (value.hasValue()) putReal(target, row.jdfName, value.firstDouble(0.0));
        }
    }
    zundo_trace("<< leaving writeTrimming\n");
}

void writeTrapping(JDFWriteContext *ctx, zundo_int_attribute_s *attribute, const char *runRange,
                   const char *documentIndex) {
    zundo_trace(">> entering writeTrapping\n");
    zundo_int_object_s *trapping = firstObjectOf(attribute);
    if (trapping != nullptr) {
        const FinishingTarget target = {ctx, getTrappingDetails, runRange, documentIndex};
        int type = FetchedAttribute(trapping, "trapping-type").firstInt(0);
        if (type == kTrappingNone)
            put(target, "NoOp", "true");
        else if (type == kTrappingTypeUnset)
            put(target, "NoOp", "false");
        else
            put(target, "Status", "Available");
    }
    zundo_trace("<< leaving writeTrapping\n");
}

void writeScreening(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeScreening\n");
    FetchedAttribute screenings(job, "job-screenings");
    ScreeningState state = {false, false};
    try {
        while (hasNextValue(screenings.attribute())) {
            auto *screening = static_cast<zundo_int_object_s *>(nextValue(screenings.attribute()));
            if (screening != nullptr) writeScreenSelector(ctx, screening, &state);
        }
    } catch (const std::bad_alloc &) {
        zundo_trace("writeScreening() generated out of memory");
        return;
    }
    zundo_trace("<< leaving writeScreening\n");
}
