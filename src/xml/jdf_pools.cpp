// Creating resources and links in pool order, and following links and
// references between them.
#include "xml/jdf_pools.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <new>
#include <string>

#include "xml/jdf_lists.h"
#include "xml/link_index.h"
#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

namespace {

// Resources and links appear in the pools in this order. A name takes the
// position of the first row it begins with, which is why LayoutElement and
// LayoutPreparationParams come before Layout.
const char *const kPoolOrder[] = {
    "FileSpec",
    "LayoutElement",
    "RunList",
    "LayoutPreparationParams",
    "morvellan:StrippingParams",
    "InterpretingParams",
    "FontPolicy",
    "PDLResourceAlias",
    "TrappingDetails",
    "ColorantControl",
    "RenderingParams",
    "ColorSpaceConversionParams",
    "ScreeningParams",
    "Component",
    "Device",
    "Media",
    "Layout",
    "UsageCounter",
    "DigitalPrintingParams",
    "Ink",
    "PrintCondition",
    "morvellan:RecordInfo",
    "NodeInfo",
    "StitchingParams",
    "FoldingParams",
    "TrimmingParams",
    "HoleMakingParams",
    "CoverApplicationParams",
    "SpineTapingParams",
    "RingBindingParams",
    "WireCombBindingParams",
    "PageCell",
};

bool beginsWith(const XMLCh *name, const char *prefix) {
    for (size_t i = 0; prefix[i] != '\0'; ++i)
        if (name[i] == 0 || (name[i] & 0xFF) != static_cast<unsigned char>(prefix[i])) return false;
    return true;
}

int nodeRank(const DOMNode *node) {
    return node->getNodeType() == DOMNode::ELEMENT_NODE ? poolRank(node->getNodeName())
                                                        : kUnrankedPoolPosition;
}

bool checkPools(const DOMElement *resourcePool, const DOMElement *linkPool) {
    if (!hasTagName(resourcePool, "ResourcePool")) {
        zundo_trace(
            "resourcePoolElement that was passed in \t\t\t\t\tis not the resourcePool "
            "element\n ");
        return false;
    }
    if (linkPool != nullptr && !hasTagName(linkPool, "ResourceLinkPool")) {
        zundo_trace(
            "resourceLinkPoolElement that was passed in \t\t\t\t\t\tis not the "
            "resourceLinkPool element\n ");
        return false;
    }
    return true;
}

// A new element named `name` + `suffix`, not inserted anywhere.
zundo_status_t newElement(DOMDocument *document, const char *name, const char *suffix,
                          DOMElement **out) {
    try {
        std::u16string wide;
        for (const char *at : {name, suffix})
            for (; *at != '\0'; ++at) wide += static_cast<XMLCh>(static_cast<signed char>(*at));
        *out = document->createElement(wide.c_str());
    } catch (...) {
        return domFailure("createResource");
    }
    return ZUNDO_OK;
}

zundo_status_t newLink(DOMElement *linkPool, const ResourceInfo *info, const char *usage,
                       const char *combinedProcessIndex, DOMElement **out) {
    zundo_status_t status = newElement(linkPool->getOwnerDocument(), info->name, "Link", out);
    if (status == ZUNDO_OK && usage != nullptr) status = setNamedAttribute(*out, "Usage", usage);
    if (status == ZUNDO_OK) status = setNamedAttribute(*out, "rRef", info->id);
    if (status == ZUNDO_OK && combinedProcessIndex != nullptr)
        status = setNamedAttribute(*out, "CombinedProcessIndex", combinedProcessIndex);
    return status;
}

zundo_status_t insertInPoolOrder(DOMElement *pool, DOMElement *element, const char *operation) {
    try {
        pool->insertBefore(element, findPoolInsertionPoint(pool, element));
    } catch (...) {
        return domFailure(operation);
    }
    recordInsertedLink(pool, element);
    return ZUNDO_OK;
}

}  // namespace

int poolRank(const XMLCh *name) {
    if (name == nullptr) return kUnrankedPoolPosition;
    const int rows = static_cast<int>(sizeof(kPoolOrder) / sizeof(kPoolOrder[0]));
    for (int row = 0; row < rows; ++row)
        if (beginsWith(name, kPoolOrder[row])) return row;
    return kUnrankedPoolPosition;
}

// Equal positions keep their order of insertion: the new element goes
// after every child ranked the same. A pool built by these operations is in
// rank order, so the children ranked after the element are the pool's tail:
// walking back from the end finds the point after as many steps as there
// are such children, which keeps writing thousands of resources linear.
DOMNode *findPoolInsertionPoint(const DOMElement *pool, const DOMElement *element) {
    if (pool == nullptr || element == nullptr) return nullptr;
    int rank = poolRank(element->getTagName());
    DOMNode *point = nullptr;
    for (DOMNode *child = pool->getLastChild(); child != nullptr && nodeRank(child) > rank;
         child = child->getPreviousSibling())
        point = child;
    return point;
}

zundo_result_t createResource(DOMElement *resourcePool, DOMElement *linkPool, ResourceInfo *info) {
    if (resourcePool == nullptr || info == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (info->name == nullptr || info->id == nullptr || info->resourceClass == nullptr ||
        info->status == nullptr)
        return zundoResult(ZUNDO_MISSING_FIELD);
    if (!checkPools(resourcePool, linkPool)) return zundoResult(ZUNDO_WRONG_ELEMENT);
    info->resource = nullptr;
    info->link = nullptr;
    DOMElement *resource = nullptr;
    DOMElement *link = nullptr;
    zundo_status_t status = newElement(resourcePool->getOwnerDocument(), info->name, "", &resource);
    if (status == ZUNDO_OK) status = setNamedAttribute(resource, "ID", info->id);
    if (status == ZUNDO_OK) status = setNamedAttribute(resource, "Class", info->resourceClass);
    if (status == ZUNDO_OK) status = setNamedAttribute(resource, "Status", info->status);
    if (status == ZUNDO_OK && linkPool != nullptr)
        status = newLink(linkPool, info, info->usage, info->combinedProcessIndex, &link);
    if (status != ZUNDO_OK) return zundoResult(status);
    info->resource = resource;
    info->link = link;
    return zundoResult(ZUNDO_OK);
}

zundo_result_t addResourceToPools(DOMElement *resourcePool, DOMElement *linkPool,
                                  ResourceInfo *info) {
    zundo_result_t result = createResource(resourcePool, linkPool, info);
    if (result.status != ZUNDO_OK) return result;
    zundo_status_t status = insertInPoolOrder(resourcePool, info->resource, "addResourceToPools");
    if (status == ZUNDO_OK && info->link != nullptr)
        status = insertInPoolOrder(linkPool, info->link, "addResourceToPools");
    return zundoResult(status);
}

zundo_result_t addResourceToPoolsWithOutput(DOMElement *resourcePool, DOMElement *linkPool,
                                            ResourceInfo *info) {
    zundo_result_t result = addResourceToPools(resourcePool, linkPool, info);
    if (result.status != ZUNDO_OK || linkPool == nullptr) return result;
    char index[16];
    const char *outputIndex = nullptr;
    if (info->combinedProcessIndex != nullptr) {
        int value = 0;
        if (!convertStringToInt(info->combinedProcessIndex, &value)) value = 0;
        std::snprintf(index, sizeof index, "%li", static_cast<long>(value) - 1);
        outputIndex = index;
    }
    DOMElement *output = nullptr;
    zundo_status_t status = newLink(linkPool, info, "Output", outputIndex, &output);
    if (status == ZUNDO_OK)
        status = insertInPoolOrder(linkPool, output, "addResourceToPoolsWithOutput");
    if (status != ZUNDO_OK) return zundoResult(status);
    return result;
}

namespace {

DOMElement *firstChildNamed(const DOMNode *parent, const char *name) {
    if (parent == nullptr || parent->getNodeType() != DOMNode::ELEMENT_NODE) return nullptr;
    for (DOMElement *child = static_cast<const DOMElement *>(parent)->getFirstElementChild();
         child != nullptr; child = child->getNextElementSibling())
        if (hasTagName(child, name)) return child;
    return nullptr;
}

// The JDF node of a resource or link: the parent of its pool.
const DOMNode *owningNode(const DOMElement *poolMember) {
    const DOMNode *pool = poolMember->getParentNode();
    return pool != nullptr ? pool->getParentNode() : nullptr;
}

bool attributeEquals(const DOMElement *element, const XMLCh *name, const XMLCh *value) {
    return element->hasAttribute(name) && XMLString::equals(element->getAttribute(name), value);
}

}  // namespace

DOMElement *getElementLinkFromElement(const DOMElement *resource, const char *usage) {
    if (resource == nullptr || usage == nullptr) return nullptr;
    const XMLCh *resourceName = resource->getTagName();
    XMLSize_t nameLength = XMLString::stringLen(resourceName);
    XMLCh *linkName = new (std::nothrow) XMLCh[nameLength + 5];
    XMLCh *wideUsage = UTF8Transcoder::transcodeValue(usage);
    if (linkName == nullptr || wideUsage == nullptr) {
        traceOutOfMemory("getElementLinkFromElement");
        delete[] linkName;
        UTF8Transcoder::release(&wideUsage);
        return nullptr;
    }
    XMLString::copyString(linkName, resourceName);
    XMLString::copyString(linkName + nameLength, u"Link");
    DOMElement *found = nullptr;
    DOMElement *linkPool = resource->hasAttribute(u"ID")
                               ? firstChildNamed(owningNode(resource), "ResourceLinkPool")
                               : nullptr;
    if (linkPool != nullptr) {
        const XMLCh *id = resource->getAttribute(u"ID");
        auto matches = [&](const DOMElement *link) {
            return sameName(link->getTagName(), linkName) &&
                   attributeEquals(link, u"Usage", wideUsage) && attributeEquals(link, u"rRef", id);
        };
        if (const std::vector<DOMElement *> *links = findIndexedLinks(linkPool, id)) {
            auto first = std::find_if(links->begin(), links->end(), matches);
            if (first != links->end()) found = *first;
        } else {
            for (DOMElement *link = linkPool->getFirstElementChild();
                 link != nullptr && found == nullptr; link = link->getNextElementSibling())
                if (matches(link)) found = link;
        }
    }
    delete[] linkName;
    UTF8Transcoder::release(&wideUsage);
    return found;
}

// The whole rRef is compared: a reference cut short could name the wrong
// Component.
DOMElement *findReferencedComponent(const DOMElement *link) {
    if (link == nullptr) return nullptr;
    const XMLCh *reference = link->getAttribute(u"rRef");
    DOMElement *resourcePool = firstChildNamed(owningNode(link), "ResourcePool");
    if (resourcePool == nullptr) return nullptr;
    for (DOMElement *child = resourcePool->getFirstElementChild(); child != nullptr;
         child = child->getNextElementSibling())
        if (hasTagName(child, "Component") && attributeEquals(child, u"ID", reference))
            return child;
    return nullptr;
}

int isFirstChildReferencing(const DOMElement *element, const char *childName, const char *id) {
    if (element == nullptr || childName == nullptr || id == nullptr) return 0;
    DOMElement *child = firstChildNamed(element, childName);
    if (child == nullptr || !child->hasAttribute(u"rRef")) return 0;
    char *reference = UTF8Transcoder::transcodeValue(child->getAttribute(u"rRef"));
    int referencing = reference != nullptr && std::strcmp(reference, id) == 0 ? 1 : 0;
    UTF8Transcoder::release(&reference);
    return referencing;
}
