// Creating and releasing the empty DOM document a job ticket is written
// into.
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMException.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/util/PlatformUtils.hpp>

#include "xml/document_registry.h"
#include "xml/link_index.h"
#include "xml/partition_index.h"
#include "xml/xml_document.h"
#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

namespace {

// Declares the version and standalone flag of a new document. Only "1.0"
// and "1.1" can be declared; anything else is the caller's mistake.
zundo_status_t declare(DOMDocument *document, const char *version, bool standalone) {
    XMLCh *wideVersion = UTF8Transcoder::transcodeAttr(version);
    if (wideVersion == nullptr) {
        traceOutOfMemory("createDOMDocument");
        return ZUNDO_OUT_OF_MEMORY;
    }
    zundo_status_t status = ZUNDO_OK;
    try {
        document->setXmlVersion(wideVersion);
        document->setXmlStandalone(standalone);
    } catch (...) {
        status = ZUNDO_INVALID_ARGUMENT;
    }
    UTF8Transcoder::release(&wideVersion);
    return status;
}

}  // namespace

zundo_result_t createDOMDocument(DOMDocumentInfo *info) {
    zundo_trace(">> entering createDOMDocument\n");
    if (info == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (info->xmlVersion == nullptr || info->xmlEncoding == nullptr)
        return zundoResult(ZUNDO_MISSING_FIELD);
    if (!isXmlSystemInitialised()) {
        traceXmlSystemFailure();
        return zundoResult(ZUNDO_XML_INIT_FAILED);
    }
    DOMImplementation *implementation = DOMImplementation::getImplementation();
    if (implementation == nullptr) {
        zundo_trace("DOMImplementation::getImplementation() returned NULL");
        return zundoResult(ZUNDO_XML_INIT_FAILED);
    }
    try {
        info->document = implementation->createDocument(XMLPlatformUtils::fgMemoryManager);
    } catch (...) {
        info->document = nullptr;
        traceOutOfMemory("createDOMDocument");
        return zundoResult(ZUNDO_OUT_OF_MEMORY);
    }
    zundo_status_t status = declare(info->document, info->xmlVersion, info->standalone != 0);
    if (status != ZUNDO_OK) {
        // A half-made document is not handed out.
        info->document->release();
        info->document = nullptr;
        return zundoResult(status);
    }
    zundo_trace("<< leaving createDOMDocument\n");
    return zundoResult(ZUNDO_OK);
}

zundo_result_t releaseDOMDocument(DOMDocument *document) {
    if (document == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    forgetDocumentIndexes(document);
    document->release();
    return zundoResult(ZUNDO_OK);
}

void forgetDocumentIndexes(const DOMDocument *document) {
    forgetPartitionIndex(document);
    forgetLinkIndex(document);
}
