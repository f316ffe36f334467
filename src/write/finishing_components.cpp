// The NoOp convention of the finishing resources and the finishing side
// of the Component chain.
#include "write/finishing_components.h"

#include <cstring>

#include "write/process_types.h"
#include "write/resource_getters.h"
#include "zundo_trace.h"

namespace {

bool hasAttribute(const xercesc::DOMElement *element, const char *name) {
    AttributeEntry *entry = nullptr;
    getAttrByName(element, name, &entry);
    bool found = entry != nullptr;
    freeAttrEntry(entry);
    return found;
}

bool hasAttributeValue(const xercesc::DOMElement *element, const char *name, const char *value) {
    AttributeEntry *entry = nullptr;
    getAttrByName(element, name, &entry);
    bool matches = entry != nullptr && std::strcmp(entry->value, value) == 0;
    freeAttrEntry(entry);
    return matches;
}

// The PartAmount of that Orientation in the pool, made when missing.
xercesc::DOMElement *partAmountFor(xercesc::DOMElement *amountPool, const char *orientation) {
    ElementEntry **children = nullptr;
    xercesc::DOMElement *partAmount = nullptr;
    if (findChildElements(amountPool, &children).status == ZUNDO_OK) {
        for (ElementEntry **child = children; *child != nullptr && partAmount == nullptr; ++child)
            if (std::strcmp((*child)->name, "PartAmount") == 0 &&
                hasAttributeValue((*child)->element, "Orientation", orientation))
                partAmount = (*child)->element;
    }
    freeElementList(children);
    if (partAmount != nullptr) return partAmount;
    partAmount = appendChildTraced(amountPool, "PartAmount");
    if (partAmount != nullptr) setAttributeTraced(partAmount, "Orientation", orientation);
    return partAmount;
}

}  // namespace

void setNoOpForRange(JDFWriteContext *ctx, ElementGetter getter, const char *keyAttribute,
                     const char *value, const char *runRange, const char *documentIndex) {
    xercesc::DOMElement *resource = getter(ctx);
    if (resource == nullptr) return;
    bool jobDoesIt = hasAttribute(resource, keyAttribute);
    if (!jobDoesIt) {
        writeJDFAttr(ctx, "NoOp", "true", 0, nullptr, nullptr, getter);
        writeJDFAttr(ctx, "NoOp", value, 0, runRange, documentIndex, getter);
    } else if (std::strcmp(value, "true") == 0) {
        writeJDFAttr(ctx, "NoOp", "false", 0, nullptr, nullptr, getter);
        writeJDFAttr(ctx, "NoOp", "true", 0, runRange, documentIndex, getter);
    }
}

xercesc::DOMElement *getProcessInputLink(JDFWriteContext *ctx, const char *processName,
                                         bool chained) {
    xercesc::DOMElement *component = chained ? getChainedInputComponent(ctx, processName)
                                             : getProcessInputComponent(ctx, processName);
    if (component == nullptr) return nullptr;
    return ctx->partAmounts[getCombinedProcessIndex(ctx, processName)].inputLink;
}

void addPartAmountOrientation(JDFWriteContext *ctx, const char *processName,
                              const char *orientation, const char *runRange) {
    xercesc::DOMElement *link = getProcessInputLink(ctx, processName, false);
    if (link == nullptr) return;
    PartAmountPool &amounts = ctx->partAmounts[getCombinedProcessIndex(ctx, processName)];
    if (amounts.amountPool == nullptr) amounts.amountPool = appendChildTraced(link, "AmountPool");
    if (amounts.amountPool == nullptr) return;
    xercesc::DOMElement *partAmount = partAmountFor(amounts.amountPool, orientation);
    xercesc::DOMElement *part =
        partAmount != nullptr ? appendChildTraced(partAmount, "Part") : nullptr;
    if (part != nullptr) setAttributeTraced(part, "RunIndex", runRange);
}

// The job's Orientation goes on the link rather than on the Component: the
// ComponentLink is where JDF carries it and where it is read back from.
void writeProcessOrientation(JDFWriteContext *ctx, const char *processName, int edge,
                             const char *runRange, const char *documentIndex) {
    const char *orientation = convertZUNDOReferenceEdgeToJDFOrientation(edge);
    if (runRange != nullptr) {
        addPartAmountOrientation(ctx, processName, orientation, runRange);
    } else if (documentIndex == nullptr) {
        xercesc::DOMElement *link = getProcessInputLink(ctx, processName, true);
        if (link != nullptr) setAttributeTraced(link, "Orientation", orientation);
    }
}

void writeOutputBinLocation(JDFWriteContext *ctx, const char *processName, const char *name) {
    xercesc::DOMElement *component = getProcessOutputComponent(ctx, processName);
    xercesc::DOMElement *location =
        component != nullptr ? appendChildTraced(component, "Location") : nullptr;
    if (location != nullptr) setAttributeTraced(location, "LocationName", name);
}
