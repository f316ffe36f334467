// Components between the processes of the written node: what each process
// hands on to the next, and the final product.
#include "values/value_objects.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/process_types.h"
#include "write/resource_getters.h"
#include "xml/jdf_pools.h"
#include "zundo_trace.h"

namespace {

// A new Component linked with usage to the process at index; chained
// Components get a second link as Output of the process before it.
xercesc::DOMElement *createComponent(JDFWriteContext *ctx, int index, const char *usage,
                                     bool chained, xercesc::DOMElement **link) {
    char indexText[kNumberTextSize];
    formatInteger(indexText, sizeof indexText, index);
    char id[kNumberTextSize];
    formatValueText(id, sizeof id, "C%i", ctx->componentCounter);
    ++ctx->componentCounter;
    xercesc::DOMElement *linkPool = getResourceLinkPool(ctx);
    xercesc::DOMElement *resourcePool = getResourcePool(ctx);
    ResourceInfo info = {nullptr, nullptr, "Component", id, "Quantity", "Available", usage,
                         indexText};
    zundo_result_t result = chained ? addResourceToPoolsWithOutput(resourcePool, linkPool, &info)
                                    : addResourceToPools(resourcePool, linkPool, &info);
    if (result.status != ZUNDO_OK) {
        zundo_trace("parser_error %i, \n", result.status);
        return nullptr;
    }
    if (link != nullptr) *link = info.link;
    return info.resource;
}

xercesc::DOMElement *getInputComponent(JDFWriteContext *ctx, const char *processName,
                                       bool chained) {
    int index = getCombinedProcessIndex(ctx, processName);
    if (index < 0) return nullptr;
    if (ctx->inputComponents[index] != nullptr) return ctx->inputComponents[index];
    xercesc::DOMElement *link = nullptr;
    xercesc::DOMElement *component = createComponent(ctx, index, "Input", chained, &link);
    if (component == nullptr) return nullptr;
    if (chained) {
        setAttributeTraced(component, "PipeProtocol", "Internal");
        setAttributeTraced(component, "ComponentType", "PartialProduct");
    } else {
        setAttributeTraced(component, "ComponentType", "PartialProduct");
        setAttributeTraced(component, "PipeProtocol", "Internal");
    }
    ctx->inputComponents[index] = component;
    ctx->partAmounts[index].inputLink = link;
    return component;
}

}  // namespace

xercesc::DOMElement *getFinalProductComponent(JDFWriteContext *ctx) {
    if (ctx->finalProductComponent != nullptr) return ctx->finalProductLink;
    int last = ctx->processCount - 1;
    if (last < 0) return nullptr;
    xercesc::DOMElement *link = nullptr;
    xercesc::DOMElement *component = createComponent(ctx, last, "Output", false, &link);
    if (component == nullptr) return nullptr;
    setAttributeTraced(component, "ComponentType", "FinalProduct");
    ctx->finalProductComponent = component;
    ctx->finalProductLink = link;
    ctx->outputComponents[last] = component;
    return link;
}

xercesc::DOMElement *getProcessOutputComponent(JDFWriteContext *ctx, const char *processName) {
    int index = getCombinedProcessIndex(ctx, processName);
    if (index < 0) return nullptr;
    if (ctx->outputComponents[index] != nullptr) return ctx->outputComponents[index];
    // The last process puts out the final product, which may exist already.
    if (index == ctx->processCount - 1) {
        getFinalProductComponent(ctx);
        return ctx->outputComponents[index];
    }
    xercesc::DOMElement *component = createComponent(ctx, index, "Output", false, nullptr);
    if (component == nullptr) return nullptr;
    setAttributeTraced(component, "PipeProtocol", "Internal");
    setAttributeTraced(component, "ComponentType", "PartialProduct");
    ctx->outputComponents[index] = component;
    return component;
}

xercesc::DOMElement *getProcessInputComponent(JDFWriteContext *ctx, const char *processName) {
    return getInputComponent(ctx, processName, false);
}

xercesc::DOMElement *getChainedInputComponent(JDFWriteContext *ctx, const char *processName) {
    return getInputComponent(ctx, processName, true);
}

// The same element as the Output Component of DigitalPrinting, so that the
// writers that ask for either write into one Component.
xercesc::DOMElement *getDigitalPrintingOutputComponent(JDFWriteContext *ctx) {
    return getProcessOutputComponent(ctx, "DigitalPrinting");
}

xercesc::DOMElement *getCoverSheetComponent(JDFWriteContext *ctx) {
    if (ctx->coverSheetComponent != nullptr) return ctx->coverSheetComponent;
    int index = getCombinedProcessIndex(ctx, "CoverApplication");
    if (index < 0) return nullptr;
    xercesc::DOMElement *link = nullptr;
    xercesc::DOMElement *component = createComponent(ctx, index, "Input", false, &link);
    if (component == nullptr) return nullptr;
    setAttributeTraced(link, "ProcessUsage", "Cover");
    setAttributeTraced(component, "ComponentType", "Sheet");
    setAttributeTraced(component, "ProductType", "Cover");
    ctx->coverSheetComponent = component;
    return component;
}
