// The resources the writer makes with their links: fixed IDs, classes and
// the processes they are linked to.
#include "write/resource_getters.h"

#include "values/value_objects.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/process_types.h"
#include "xml/jdf_pools.h"
#include "zundo_trace.h"

namespace {

// Resources made anew on every call, after the cached ones.
enum UncachedResource {
    kPDLResourceAlias = kCachedResourceCount,
    kUsageCounter,
    kResourceKindCount
};

// Where a resource's ID comes from: the row's text, or the row's text
// followed by the next value of a counter.
enum IdSource { kFixedId, kRunListId, kPDLResourceAliasId, kUsageCounterId };

struct ResourceRow {
    const char *name;
    const char *id;
    IdSource idSource;
    const char *resourceClass;
    // The processes whose CombinedProcessIndex the link carries; none when
    // process is null.
    const char *process;
    const char *secondProcess;
    // Traced when the process is not in Types.
    const char *missingProcessMessage;
    // Name and value pairs set on the resource when it is made, ending in
    // a null name.
    const char *const *attributes;
    const char *linkProcessUsage;
};

const char *const kFontPolicyAttributes[] = {
    "PreferredFont", "morvellan:SystemSpecified", "UseFontEmulation", "false", nullptr,
};
const char *const kRunListMarksAttributes[] = {"PartIDKeys", "Run", nullptr};

// Indexed by CachedResource, then UncachedResource.
const ResourceRow kResourceRows[kResourceKindCount] = {
    {"DigitalPrintingParams", "DPP0", kFixedId, "Parameter", "DigitalPrinting", nullptr, nullptr,
     nullptr, nullptr},
    {"InterpretingParams", "IIP0", kFixedId, "Parameter", "Interpreting", nullptr, nullptr,
     nullptr, nullptr},
    {"LayoutPreparationParams", "LPP0", kFixedId, "Parameter", "LayoutPreparation", nullptr,
     nullptr, nullptr, nullptr},
    {"RenderingParams", "RP0", kFixedId, "Parameter", "Rendering", nullptr, nullptr, nullptr,
     nullptr},
    {"ColorSpaceConversionParams", "CSC0", kFixedId, "Parameter", "ColorSpaceConversion", nullptr,
     "error encountered when adding \t\t\t\t\t\tColorSpaceConversion to types.", nullptr, nullptr},
    {"ColorantControl", "CC0", kFixedId, "Parameter", "Interpreting", "DigitalPrinting", nullptr,
     nullptr, nullptr},
    {"ScreeningParams", "SCR0", kFixedId, "Parameter", "Screening", nullptr,
     "error encountered when adding Screening to types.", nullptr, nullptr},
    {"TrappingDetails", "TP0", kFixedId, "Parameter", "Trapping", nullptr,
     "error encountered when adding Trapping to types.", nullptr, nullptr},
    {"StitchingParams", "S0", kFixedId, "Parameter", "Stitching", nullptr,
     "error encountered when adding Stitching to types.", nullptr, nullptr},
    {"FoldingParams", "FL0", kFixedId, "Parameter", "Folding", nullptr,
     "error encountered when adding \t\t\t\t\t\tFolding to types.", nullptr, nullptr},
    {"HoleMakingParams", "HM0", kFixedId, "Parameter", "HoleMaking", nullptr,
     "error encountered when adding \t\t\t\t\t\tHoleMaking to types.", nullptr, nullptr},
    {"TrimmingParams", "TR0", kFixedId, "Parameter", "Trimming", nullptr,
     "error encountered when adding Trimming to types.", nullptr, nullptr},
    {"CoverApplicationParams", "CA0", kFixedId, "Parameter", "CoverApplication", nullptr,
     "error encountered when adding \t\t\t\t\t\tCoverApplication to Types.", nullptr, nullptr},
    {"SpineTapingParams", "ST0", kFixedId, "Parameter", "SpineTaping", nullptr,
     "error encountered when adding \t\t\t\t\t\tSpineTaping to Types.", nullptr, nullptr},
    {"RingBindingParams", "RB0", kFixedId, "Parameter", "RingBinding", nullptr,
     "error encountered when adding \t\t\t\t\t\tRingBinding to Types.", nullptr, nullptr},
    {"WireCombBindingParams", "WCB0", kFixedId, "Parameter", "WireCombBinding", nullptr,
     "error encountered when adding wireCombBinding to Types.", nullptr, nullptr},
    {"PrintCondition", "PC0", kFixedId, "Parameter", "DigitalPrinting", nullptr, nullptr, nullptr,
     nullptr},
    {"morvellan:RecordInfo", "RI0", kFixedId, "Parameter", "DigitalPrinting", nullptr, nullptr,
     nullptr, nullptr},
    {"morvellan:StrippingParams", "STR0", kFixedId, "Parameter", "LayoutPreparation", nullptr,
     nullptr, nullptr, nullptr},
    {"Layout", "L0", kFixedId, "Parameter", "DigitalPrinting", nullptr, nullptr, nullptr,
     nullptr},
    {"FontPolicy", "FP0", kFixedId, "Parameter", "Interpreting", nullptr, nullptr,
     kFontPolicyAttributes, nullptr},
    {"Ink", "I0", kFixedId, "Consumable", "DigitalPrinting", nullptr, nullptr, nullptr, nullptr},
    {"CustomerInfo", "CI0", kFixedId, "Parameter", nullptr, nullptr, nullptr, nullptr, nullptr},
    {"NodeInfo", "N0", kFixedId, "Parameter", nullptr, nullptr, nullptr, nullptr, nullptr},
    {"Device", "D0", kFixedId, "Implementation", nullptr, nullptr, nullptr, nullptr, nullptr},
    {"RunList", "RL", kRunListId, "Parameter", "LayoutPreparation", "Imposition", nullptr,
     nullptr, nullptr},
    {"RunList", "RL", kRunListId, "Parameter", "LayoutPreparation", nullptr, nullptr,
     kRunListMarksAttributes, "Marks"},
    {"RunList", "RL", kRunListId, "Parameter", "DigitalPrinting", nullptr, nullptr, nullptr,
     nullptr},
    {"PDLResourceAlias", "PRA", kPDLResourceAliasId, "Parameter", "Interpreting", nullptr,
     nullptr, nullptr, nullptr},
    {"UsageCounter", "UC", kUsageCounterId, "Consumable", "DigitalPrinting", nullptr, nullptr,
     nullptr, nullptr},
};

int processIndexTraced(const JDFWriteContext *ctx, const char *process, const char *message) {
    int index = getCombinedProcessIndex(ctx, process);
    if (index < 0 && message != nullptr) zundo_trace("%s", message);
    return index;
}

// The link's CombinedProcessIndex text, or null when it has none.
const char *combinedProcessIndexText(const JDFWriteContext *ctx, const ResourceRow &row,
                                     char *buffer, size_t size) {
    if (row.process == nullptr) return nullptr;
    int firstIndex = processIndexTraced(ctx, row.process, row.missingProcessMessage);
    if (row.secondProcess == nullptr) return formatInteger(buffer, size, firstIndex);
    char first[kNumberTextSize];
    formatInteger(first, sizeof first, firstIndex);
    char second[kNumberTextSize];
    formatInteger(second, sizeof second,
                  processIndexTraced(ctx, row.secondProcess, row.missingProcessMessage));
    return formatPair(buffer, size, first, second);
}

int *idCounter(JDFWriteContext *ctx, IdSource source) {
    switch (source) {
    case kRunListId:
        return &ctx->runListCounter;
    case kPDLResourceAliasId:
        return &ctx->pdlResourceAliasCounter;
    case kUsageCounterId:
        return &ctx->usageCounterCounter;
    case kFixedId:
        break;
    }
    return nullptr;
}

xercesc::DOMElement *createResourceOfKind(JDFWriteContext *ctx, int kind,
                                          xercesc::DOMElement **link) {
    const ResourceRow &row = kResourceRows[kind];
    char indexText[kPairTextSize];
    const char *combinedProcessIndex =
        combinedProcessIndexText(ctx, row, indexText, sizeof indexText);
    char idText[kNumberTextSize];
    const char *id = row.id;
    // The counter moves on even when the resource cannot be made.
    if (int *counter = idCounter(ctx, row.idSource)) {
        id = formatValueText(idText, sizeof idText, "%s%d", row.id, *counter);
        ++*counter;
    }
    xercesc::DOMElement *linkPool = getResourceLinkPool(ctx);
    xercesc::DOMElement *resourcePool = getResourcePool(ctx);
    ResourceInfo info = {nullptr, nullptr,     row.name, id, row.resourceClass,
                         "Available", "Input", combinedProcessIndex};
    zundo_result_t result = addResourceToPools(resourcePool, linkPool, &info);
    if (result.status != ZUNDO_OK) {
        zundo_trace("parser_error %i, \n", result.status);
        return nullptr;
    }
    for (const char *const *pair = row.attributes; pair != nullptr && *pair != nullptr; pair += 2)
        setAttributeTraced(info.resource, pair[0], pair[1]);
    if (row.linkProcessUsage != nullptr)
        setAttributeTraced(info.link, "ProcessUsage", row.linkProcessUsage);
    if (link != nullptr) *link = info.link;
    return info.resource;
}

xercesc::DOMElement *getCachedResource(JDFWriteContext *ctx, CachedResource kind) {
    if (ctx->resources[kind] == nullptr)
        ctx->resources[kind] = createResourceOfKind(ctx, kind, &ctx->resourceLinks[kind]);
    return ctx->resources[kind];
}

}  // namespace

xercesc::DOMElement *getDigitalPrintingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kDigitalPrintingParams);
}

xercesc::DOMElement *getInterpretingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kInterpretingParams);
}

xercesc::DOMElement *getLayoutPreparationParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kLayoutPreparationParams);
}

xercesc::DOMElement *getRenderingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kRenderingParams);
}

xercesc::DOMElement *getColorSpaceConversionParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kColorSpaceConversionParams);
}

xercesc::DOMElement *getColorantControl(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kColorantControl);
}

xercesc::DOMElement *getScreeningParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kScreeningParams);
}

xercesc::DOMElement *getTrappingDetails(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kTrappingDetails);
}

xercesc::DOMElement *getStitchingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kStitchingParams);
}

xercesc::DOMElement *getFoldingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kFoldingParams);
}

xercesc::DOMElement *getHoleMakingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kHoleMakingParams);
}

xercesc::DOMElement *getTrimmingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kTrimmingParams);
}

xercesc::DOMElement *getCoverApplicationParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kCoverApplicationParams);
}

xercesc::DOMElement *getSpineTapingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kSpineTapingParams);
}

xercesc::DOMElement *getRingBindingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kRingBindingParams);
}

xercesc::DOMElement *getWireCombBindingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kWireCombBindingParams);
}

xercesc::DOMElement *getPrintCondition(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kPrintCondition);
}

xercesc::DOMElement *getRecordInfo(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kRecordInfo);
}

xercesc::DOMElement *getStrippingParams(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kStrippingParams);
}

xercesc::DOMElement *getLayout(JDFWriteContext *ctx) { return getCachedResource(ctx, kLayout); }

xercesc::DOMElement *getFontPolicy(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kFontPolicy);
}

xercesc::DOMElement *getInk(JDFWriteContext *ctx) { return getCachedResource(ctx, kInk); }

xercesc::DOMElement *getCustomerInfo(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kCustomerInfo);
}

xercesc::DOMElement *getNodeInfo(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kNodeInfo);
}

xercesc::DOMElement *getDevice(JDFWriteContext *ctx) { return getCachedResource(ctx, kDevice); }

xercesc::DOMElement *getRunListPages(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kRunListPages);
}

xercesc::DOMElement *getRunListPagesLink(JDFWriteContext *ctx) {
    getCachedResource(ctx, kRunListPages);
    return ctx->resourceLinks[kRunListPages];
}

xercesc::DOMElement *getRunListMarks(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kRunListMarks);
}

xercesc::DOMElement *getRunListDigitalPrinting(JDFWriteContext *ctx) {
    return getCachedResource(ctx, kRunListDigitalPrinting);
}

xercesc::DOMElement *getPDLResourceAlias(JDFWriteContext *ctx) {
    return createResourceOfKind(ctx, kPDLResourceAlias, nullptr);
}

xercesc::DOMElement *getUsageCounter(JDFWriteContext *ctx) {
    return createResourceOfKind(ctx, kUsageCounter, nullptr);
}

void createDefaultParameterResources(JDFWriteContext *ctx, zundo_int_object_s *) {
    getInterpretingParams(ctx);
    getDigitalPrintingParams(ctx);
    getLayoutPreparationParams(ctx);
}
