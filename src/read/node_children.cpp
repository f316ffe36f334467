// The children of the JDF node in the order that lets every reader see what
// it depends on: Comment and NodeInfo as they come, then the ResourcePool,
// the AuditPool and last the ResourceLinkPools, which see every object the
// resources made.
#include <cstring>

#include "read/job_node_readers.h"
#include "read/read_driver.h"
#include "read/read_extensions.h"
#include "read/reader_conversions.h"
#include "zundo_trace.h"

namespace {

void readAuthentication(xercesc::DOMElement *authentication, zundo_int_object_s *job) {
    ElementAttribute login(authentication, "LoginName");
    if (login.value() != nullptr)
        setStringAttribute(job, "job-authentication-login-name", login.value());
    ElementAttribute password(authentication, "Password");
    if (password.value() != nullptr)
        setStringAttribute(job, "job-authentication-password", password.value());
}

bool named(const ElementEntry *entry, const char *name) {
    return std::strcmp(entry->name, name) == 0;
}

zundo_status_t readAuditPool(xercesc::DOMElement *pool, ResourceReadContext *context) {
    const ResourceReaderRow *row =
        findResourceReaderRow(kNodePoolReaders, kNodePoolReaderCount, "AuditPool");
    if (row == nullptr || row->reader == nullptr) return ZUNDO_OK;
    return row->reader(pool, "AuditPool", context);
}

}  // namespace

zundo_status_t readJDFVersionCurrent(ElementEntry *const *children, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readJDFVersionCurrent \n");
    zundo_status_t status = ZUNDO_OK;
    xercesc::DOMElement *resourcePool = nullptr;
    xercesc::DOMElement *auditPool = nullptr;
    zundo_int_attribute_s *jobComments = nullptr;
    for (ElementEntry *const *child = children; child != nullptr && *child != nullptr; ++child) {
        ElementEntry *entry = *child;
        readExtensions(entry, ticket);
        if (named(entry, "Comment"))
            status = readCommentElement(entry->element, ticket, &jobComments);
        else if (named(entry, "NodeInfo"))
            status = readNodeInfoResource(entry->element, ticket);
        else if (named(entry, "ResourcePool"))
            resourcePool = entry->element;
        else if (named(entry, "AuditPool"))
            auditPool = entry->element;
        else if (named(entry, "morvellan:Authentication"))
            readAuthentication(entry->element, getJob(ticket));
        zundo_trace("reading JDF Node child element %s \n", entry->name);
    }
    if (jobComments != nullptr) setAndReleaseAttribute(getJob(ticket), jobComments);

    ResourceReadContext context{ticket, nullptr, nullptr, nullptr, nullptr};
    if (resourcePool != nullptr) status = readResourcePoolElement(resourcePool, &context);
    if (auditPool != nullptr) status = readAuditPool(auditPool, &context);
    freeIdElementList(context.mediaList);

    for (ElementEntry *const *child = children; child != nullptr && *child != nullptr; ++child)
        if (named(*child, "ResourceLinkPool"))
            status = readResourceLinkPoolElement((*child)->element, ticket);
    zundo_trace("<< Leaving readJDFVersionCurrent \n");
    return status;
}
