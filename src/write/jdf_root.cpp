// The JDF root element of a written ticket.
#include "write/jdf_root.h"

#include <cstdlib>
#include <cstring>

#include "enums/value_tables.h"
#include "write/jdf_attr.h"
#include "write/object_values.h"
#include "write/process_types.h"
#include "xml/jdf_node.h"
#include "zundo_trace.h"

namespace {

const char kJDFNamespace[] = "http://www.CIP4.org/JDFSchema_1_1";

struct VendorNamespace {
    const char *prefix;
    const char *value;  // an entry without a value is not declared
};

const VendorNamespace kVendorNamespaces[] = {
    {"morvellan", "Morvellan"},
    {nullptr, nullptr},
};

zundo_status_t declareVendorNamespaces(xercesc::DOMElement *root) {
    static const char kXmlnsPrefix[] = "xmlns:";
    for (const VendorNamespace *entry = kVendorNamespaces; entry->prefix != nullptr; ++entry) {
        if (entry->value == nullptr) continue;
        size_t length = sizeof kXmlnsPrefix + std::strlen(entry->prefix);
        char *name = static_cast<char *>(std::malloc(length));
        if (name == nullptr) {
            traceOutOfMemory("createJDFElement");
            return ZUNDO_OUT_OF_MEMORY;
        }
        std::strcpy(name, kXmlnsPrefix);
        std::strcat(name, entry->prefix);
        zundo_status_t status = setNamedAttribute(root, name, entry->value);
        if (status != ZUNDO_OK)
            zundo_trace("error adding vendor namespace attribute %s: %i, \n", entry->value, status);
        std::free(name);
    }
    return ZUNDO_OK;
}

// A node attribute from a text value of the ticket or job.
void writeNodeText(JDFWriteContext *ctx, zundo_int_object_s *object, const char *attributeName,
                   const char *jdfName) {
    FetchedAttribute value(object, attributeName);
    writeJDFAttr(ctx, jdfName, value.firstString(), 0, nullptr, nullptr, getJDFRoot);
}

}  // namespace

xercesc::DOMElement *getJDFRoot(JDFWriteContext *ctx) { return ctx->root; }

zundo_status_t createJDFElement(JDFWriteContext *ctx, zundo_int_object_s *jobTicket,
                                zundo_int_object_s *job) {
    if (ctx == nullptr || jobTicket == nullptr || job == nullptr) return ZUNDO_NULL_ARGUMENT;
    FetchedAttribute version(jobTicket, "jt-syntax-version");
    if (version.firstString() == nullptr) return ZUNDO_MISSING_FIELD;
    FetchedAttribute jobId(job, "job-id");
    JDFNodeInfo info = {};
    info.id = "JDF1";
    info.type = "Combined";
    info.types = "";  // filled in by writeTypes once the root exists
    info.status = "Ready";
    info.activation = "Informative";
    info.xmlns = kJDFNamespace;
    info.version = version.firstString();
    info.jobId = jobId.firstString();
    zundo_result_t result = createJDFNode(ctx->document, &info);
    if (result.status != ZUNDO_OK) return result.status;
    ctx->root = info.element;
    setAttributeTraced(ctx->root, "ICSVersions", "IDP_L0-1.3");
    setAttributeTraced(ctx->root, "Category", "IDP.DigitalPrinting");
    return declareVendorNamespaces(ctx->root);
}

zundo_status_t writeJDFNode(JDFWriteContext *ctx, zundo_int_object_s *jobTicket,
                            zundo_int_object_s *job) {
    zundo_status_t status = createJDFElement(ctx, jobTicket, job);
    if (status != ZUNDO_OK) return status;
    writeTypes(ctx, job);
    writeNodeText(ctx, jobTicket, "jt-jdf-node-id", "ID");
    writeNodeText(ctx, job, "job-jdf-node-name", "DescriptiveName");
    int nodeStatus = FetchedAttribute(job, "job-jdf-node-status").firstInt(0);
    writeJDFAttr(ctx, "Status", jdfNameForCode(jdfNodeStatusValues, nodeStatus), 0, nullptr, nullptr,
                 getJDFRoot);
    int details = FetchedAttribute(job, "job-jdf-node-status-details").firstInt(0);
    writeJDFAttr(ctx, "StatusDetails", jdfNameForCode(jdfNodeStatusDetailsValues, details), 0, nullptr, nullptr,
                 getJDFRoot);
    writeNodeText(ctx, job, "job-internal-id", "JobPartID");
    return ZUNDO_OK;
}
