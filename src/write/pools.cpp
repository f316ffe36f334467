// The three pools of the root, each made when first needed.
#include "write/resource_getters.h"
#include "xml/jdf_node.h"
#include "zundo_trace.h"

namespace {

xercesc::DOMElement *getRootChild(JDFWriteContext *ctx, xercesc::DOMElement **slot,
                                  const char *name) {
    if (*slot != nullptr) return *slot;
    ElementEntry entry = {nullptr, name, nullptr, nullptr};
    zundo_result_t result = addJDFNodeChild(ctx->root, &entry);
    if (result.status != ZUNDO_OK) {
        zundo_trace("parser_error %i, \n", result.status);
        return nullptr;
    }
    *slot = entry.element;
    return *slot;
}

}  // namespace

xercesc::DOMElement *getAuditPool(JDFWriteContext *ctx) {
    return getRootChild(ctx, &ctx->auditPool, "AuditPool");
}

xercesc::DOMElement *getResourcePool(JDFWriteContext *ctx) {
    return getRootChild(ctx, &ctx->resourcePool, "ResourcePool");
}

xercesc::DOMElement *getResourceLinkPool(JDFWriteContext *ctx) {
    return getRootChild(ctx, &ctx->resourceLinkPool, "ResourceLinkPool");
}
