// Binding: cover application with its cover sheet, spine taping, ring
// binding (with or without holes) and wire-comb binding.
#include <initializer_list>

#include "enums/value_tables.h"
#include "values/value_objects.h"
#include "write/finishing_components.h"
#include "write/finishing_writer.h"
#include "write/media_writer.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "xml/jdf_pools.h"
#include "zundo_trace.h"

namespace {

enum BindingType {
    kBindingNone = 1,
    kCoverApplication = 2,
    kRingAndHoleMaking = 5,
    kRingHoleMakingOnly = 6,
    kRingOutputBinOnly = 7,
};

enum CoverSide { kCoverBothSides = 2, kCoverNeither = 4 };
const int kCoverSourceFirst = 1;

// Back 1, Both 2, Front 3, Neither 4: the same codes as the imageable
// sides of a media.
const zundo_enum_pair_s *const kCoverSides = mediaImagableSideValues;

// The rotation part of the cover Transformation by the binding edge.
const zundo_enum_pair_s kCoverMatrices[] = {{0, "1 0 0 1"},   {1, "0 -1 1 0"}, {2, "1 0 0 1"},
                                            {3, "-1 0 0 -1"}, {4, "0 1 -1 0"}, {-1, nullptr}};

struct BindingProcess {
    int type;
    const char *process;
    ElementGetter params;
};

const BindingProcess kBindingProcesses[] = {
    {2, "CoverApplication", getCoverApplicationParams}, {3, "SpineTaping", getSpineTapingParams},
    {4, "RingBinding", getRingBindingParams},           {5, "RingBinding", getRingBindingParams},
    {6, "RingBinding", getRingBindingParams},           {7, "RingBinding", getRingBindingParams},
    {8, "WireCombBinding", getWireCombBindingParams},
};

// Other types bind with rings but have no parameters of their own.
const BindingProcess kOtherBinding = {0, "RingBinding", nullptr};

const BindingProcess &bindingProcessOf(int type) {
    for (const BindingProcess &row : kBindingProcesses)
        if (row.type == type) return row;
    return kOtherBinding;
}

void setChainedOrientation(JDFWriteContext *ctx, const char *processName, int edge) {
    xercesc::DOMElement *link = getProcessInputLink(ctx, processName, true);
    if (link != nullptr && edge != 0)
        setAttributeTraced(link, "Orientation", convertZUNDOReferenceEdgeToJDFOrientation(edge));
}

// The image shift, negated, behind the rotation of the edge.
void setCoverTransformation(xercesc::DOMElement *partAmount, int edge, const FetchedAttribute &x,
                            const FetchedAttribute &y) {
    double shiftX = x.hasValue() ? -x.firstDouble(0.0) : 0.0;
    double shiftY = y.hasValue() ? -y.firstDouble(0.0) : 0.0;
    // Negating a zero shift must not print "-0".
    if (shiftX == 0.0) shiftX = 0.0;
    if (shiftY == 0.0) shiftY = 0.0;
    const char *matrix = jdfNameForCode(kCoverMatrices, edge);
    char xText[kNumberTextSize];
    char yText[kNumberTextSize];
    char transformation[kPairTextSize + 32];
    formatValueText(transformation, sizeof transformation, "%s %s %s",
                    matrix != nullptr ? matrix : "1 0 0 1", formatReal(xText, sizeof xText, shiftX),
                    formatReal(yText, sizeof yText, shiftY));
    setAttributeTraced(partAmount, "Transformation", transformation);
}

// The cover sheet Component and what its Input link says about the cover:
// the sides it is printed on, the end of the job it comes from and the
// image shift. Returns the Component the cover media is referred to from.
xercesc::DOMElement *writeCoverApplication(JDFWriteContext *ctx, zundo_int_object_s *binding,
                                           int edge) {
    int side = FetchedAttribute(binding, "binding-cover-side").firstInt(0);
    int source = FetchedAttribute(binding, "binding-cover-source").firstInt(0);
    if (side == 0 || side == kCoverNeither) {
        setChainedOrientation(ctx, "CoverApplication", edge);
        return getCoverSheetComponent(ctx);
    }
    FetchedAttribute shiftX(binding, "binding-cover-image-shift-x");
    FetchedAttribute shiftY(binding, "binding-cover-image-shift-y");
    bool shifted = shiftX.hasValue() || shiftY.hasValue();
    // With a shift the edge is the rotation of the Transformation.
    if (!shifted) setChainedOrientation(ctx, "CoverApplication", edge);
    xercesc::DOMElement *cover = getCoverSheetComponent(ctx);
    if (cover == nullptr) return nullptr;
    xercesc::DOMElement *amountPool =
        appendChildTraced(getElementLinkFromElement(cover, "Input"), "AmountPool");
    xercesc::DOMElement *partAmount =
        amountPool != nullptr ? appendChildTraced(amountPool, "PartAmount") : nullptr;
    xercesc::DOMElement *part =
        partAmount != nullptr ? appendChildTraced(partAmount, "Part") : nullptr;
    if (part == nullptr) return cover;
    if (shifted) {
        setCoverTransformation(partAmount, edge, shiftX, shiftY);
        getChainedInputComponent(ctx, "CoverApplication");
    }
    bool first = source == kCoverSourceFirst;
    if (side == kCoverBothSides) {
        setAttributeTraced(part, "RunIndex", first ? "0 ~ 1" : "-2 ~ -1");
        return cover;
    }
    const char *sideName = jdfNameForCode(kCoverSides, side);
    if (sideName == nullptr) return cover;
    setAttributeTraced(part, "Side", sideName);
    xercesc::DOMElement *sidePartition = appendChildTraced(cover, "Component");
    if (sidePartition != nullptr) setAttributeTraced(sidePartition, "Side", sideName);
    setAttributeTraced(cover, "PartIDKeys", "Side");
    setAttributeTraced(part, "RunIndex", first ? "0" : "-1");
    return sidePartition != nullptr ? sidePartition : cover;
}

// A binding of type None (or none at all) says NoOp to every binding
// process.
void writeNoBinding(JDFWriteContext *ctx, zundo_int_object_s *binding, int edge) {
    for (ElementGetter params : {getCoverApplicationParams, getSpineTapingParams,
                                 getRingBindingParams, getWireCombBindingParams})
        writeJDFAttr(ctx, "NoOp", "true", 0, nullptr, nullptr, params);
    FetchedAttribute bin(binding, "binding-output-bin-name");
    if (bin.hasValue()) writeOutputBinLocation(ctx, "RingBinding", bin.firstString());
    setChainedOrientation(ctx, "CoverApplication", edge);
}

void writeRingBindingParams(JDFWriteContext *ctx, int type) {
    xercesc::DOMElement *rings = getRingBindingParams(ctx);
    if (rings == nullptr) return;
    if (type == kRingAndHoleMaking || type == kRingHoleMakingOnly) {
        xercesc::DOMElement *holes = appendChildTraced(rings, "HoleMakingParams");
        if (holes != nullptr) setAttributeTraced(holes, "HoleType", "S-generic");
        if (type == kRingHoleMakingOnly) {
            if (holes != nullptr) setAttributeTraced(holes, "morvellan:IgnoreNoOp", "true");
            writeJDFAttr(ctx, "NoOp", "true", 0, nullptr, nullptr, getRingBindingParams);
        }
    } else if (type == kRingOutputBinOnly) {
        writeJDFAttr(ctx, "morvellan:OutputBinOnly", "true", 0, nullptr, nullptr,
                     getRingBindingParams);
    }
}

void writeJobBinding(JDFWriteContext *ctx, zundo_int_object_s *binding) {
    FetchedAttribute typeValue(binding, "binding-type");
    if (!typeValue.hasValue()) return;
    int type = typeValue.firstInt(0);
    int edge = FetchedAttribute(binding, "binding-reference-edge").firstInt(0);
    if (type == kBindingNone) {
        writeNoBinding(ctx, binding, edge);
        return;
    }
    const BindingProcess &process = bindingProcessOf(type);
    if (process.params != nullptr) process.params(ctx);
    if (process.params == getRingBindingParams) writeRingBindingParams(ctx, type);
    if (type == kCoverApplication) {
        xercesc::DOMElement *component = writeCoverApplication(ctx, binding, edge);
        zundo_int_object_s *media = FetchedAttribute(binding, "binding-media").firstObject();
        xercesc::DOMElement *const referring[] = {component, nullptr};
        if (component != nullptr && media != nullptr)
            writeMedia(ctx, media, referring, nullptr, nullptr);
    } else {
        setChainedOrientation(ctx, process.process, edge);
    }
    FetchedAttribute bin(binding, "binding-output-bin-name");
    if (bin.hasValue()) writeOutputBinLocation(ctx, process.process, bin.firstString());
}

}  // namespace

void writeBinding(JDFWriteContext *ctx, zundo_int_attribute_s *attribute, const char *runRange,
                  const char *documentIndex) {
    zundo_trace(">> entering writeBinding\n");
    resetIterator(attribute);
    zundo_int_object_s *binding =
        hasNextValue(attribute) ? static_cast<zundo_int_object_s *>(nextValue(attribute)) : nullptr;
    if (binding != nullptr && runRange == nullptr && documentIndex == nullptr)
        writeJobBinding(ctx, binding);
    zundo_trace("<< leaving writeBinding\n");
}
