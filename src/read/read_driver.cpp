// One read of a job ticket: the document is parsed and checked, the JDF
// node located and its attributes stored, then its children read; the
// document and every list die before the read returns.
#include "read/read_driver.h"

#include <new>

#include <strings.h>

#include <cstring>

#include "read/read_extensions.h"
#include "zundo_trace.h"

namespace {

bool hasChildNamed(ElementEntry *const *children, const char *name) {
    for (ElementEntry *const *child = children; child != nullptr && *child != nullptr; ++child)
        if (std::strcmp((*child)->name, name) == 0) return true;
    return false;
}

zundo_result_t refuseDocument(zundo_status_t status, DOMDocumentInfo *document) {
    releaseJobTicketDocument(document);
    return zundoResult(status);
}

// Below the JDF node nothing decides the read any more.
void readJDFBody(const JDFNodeInfo *node, zundo_int_object_s *ticket) {
    ElementEntry **children = nullptr;
    getJDFNodeChildren(node->element, &children);
    if (!hasChildNamed(children, "ResourcePool") || !hasChildNamed(children, "ResourceLinkPool"))
        zundo_trace("invalid job ticket: no ResourcePool or ResourceLinkPool \n");
    readSetupExtensions(node->element, ticket);
    setStringAttribute(ticket, "jt-syntax-version-from-jt", node->version);
    readJDFVersionCurrent(children, ticket);
    freeElementList(children);
}

}  // namespace

void releaseJobTicketDocument(DOMDocumentInfo *document) {
    freeDOMDocumentInfo(document);
    delete[] document->xmlVersion;
    delete[] document->xmlEncoding;
    document->xmlVersion = nullptr;
    document->xmlEncoding = nullptr;
}

zundo_result_t openJobTicketDocument(const char *text, DOMDocumentInfo *document,
                                     zundo_int_object_s *ticket) {
    zundo_result_t result = getDOMDocument(text, document);
    if (result.status == ZUNDO_XML_INIT_FAILED) {
        zundo_trace("call to getDOMDocument failed: parser init failed\n");
        releaseJobTicketDocument(document);
        return result;
    }
    if (result.status != ZUNDO_OK) {
        zundo_trace("call to getDOMDocument failed. \n");
        releaseJobTicketDocument(document);
        return result;
    }
    const char *version = document->xmlVersion;
    if (version == nullptr || std::strcmp(version, "1.0") != 0) {
        zundo_trace("invalid job ticket: unsupported XML version, %s \n",
                    version != nullptr ? version : "(null)");
        return refuseDocument(ZUNDO_UNSUPPORTED_XML_VERSION, document);
    }
    const char *encoding = document->xmlEncoding;
    if (encoding == nullptr || strcasecmp(encoding, "UTF-8") != 0) {
        zundo_trace("invalid job ticket: unsupported encoding, %s \n",
                    encoding != nullptr ? encoding : "(null)");
        return refuseDocument(ZUNDO_UNSUPPORTED_ENCODING, document);
    }
    zundo_status_t status = setStringAttribute(ticket, "jt-charset", encoding);
    if (status != ZUNDO_OK) {
        zundo_trace("call to setStringAttribute failed: error code %d \n", status);
        return refuseDocument(status, document);
    }
    return result;
}

zundo_status_t readJDFNodeInfo(const DOMDocumentInfo *document, JDFNodeInfo *node,
                               zundo_int_object_s *ticket) {
    zundo_status_t status = getJDFNode(document->document, node).status;
    if (status == ZUNDO_WRONG_ELEMENT) {
        zundo_trace("call to getJDFNode failed: no jdf node \n");
        return status;
    }
    if (status != ZUNDO_OK) {
        zundo_trace("call to getDOMDocument failed: internal error \n");
        return status;
    }
    if (node->jobId[0] == '\0') return ZUNDO_OK;
    status = setStringAttribute(getJob(ticket), "job-id", node->jobId);
    if (status != ZUNDO_OK)
        zundo_trace("call to setStringAttribute for %s failed: error code %d \n", "job-id", status);
    return status;
}

zundo_result_t readJDFString(const char *text, zundo_int_object_s *ticket) {
    zundo_trace(">> Entering readJDFString \n");
    zundo_status_t status = initReadExtensions();
    if (status != ZUNDO_OK) return zundoResult(status);
    DOMDocumentInfo document;
    zundo_result_t opened = openJobTicketDocument(text, &document, ticket);
    if (opened.status != ZUNDO_OK) return opened;

    JDFNodeInfo node{};
    // The readers handle running out of memory where they can go on; what
    // they do not catch ends the read here, never in the caller.
    try {
        status = readJDFNodeInfo(&document, &node, ticket);
        if (status == ZUNDO_OK) status = readJDFNodeAttributes(node.element, ticket);
        if (status == ZUNDO_OK) readJDFBody(&node, ticket);
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("readJDFString");
        status = ZUNDO_OUT_OF_MEMORY;
    } catch (...) {
        status = domFailure("readJDFString");
    }

    freeJDFNodeInfo(&node);
    releaseJobTicketDocument(&document);
    zundo_trace("<< Leaving readJDFString \n");
    return zundoResult(status);
}
