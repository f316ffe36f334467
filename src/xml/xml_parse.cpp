// Parsing a job-ticket text held in memory into a DOM document.
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/util/XMLException.hpp>

#include <cstring>

#include "xml/document_registry.h"
#include "xml/parser_error_handler.h"
#include "xml/ticket_parser.h"
#include "xml/xml_document.h"
#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

namespace {

// The input source only points at the caller's text; it never copies it.
MemBufInputSource *newInputSource(const char *text) {
    try {
        return new MemBufInputSource(reinterpret_cast<const XMLByte *>(text), std::strlen(text),
                                     "dummySystemID", false);
    } catch (...) {
        return nullptr;
    }
}

void clearInfo(DOMDocumentInfo *info) {
    info->document = nullptr;
    info->xmlVersion = nullptr;
    info->xmlEncoding = nullptr;
    info->standalone = 0;
    info->parser = nullptr;
    info->inputSource = nullptr;
}

void traceParseException(const char *message) {
    zundo_trace("parsing failed with message %s", message != nullptr ? message : "");
}

}  // namespace

zundo_result_t getDOMDocument(const char *text, DOMDocumentInfo *info) {
    if (info == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    clearInfo(info);
    if (text == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (!isXmlSystemInitialised()) {
        traceXmlSystemFailure();
        return zundoResult(ZUNDO_XML_INIT_FAILED);
    }

    info->inputSource = newInputSource(text);
    if (info->inputSource == nullptr) {
        zundo_trace("cannot allocate memory buffer");
        return zundoResult(ZUNDO_INTERNAL_ERROR);
    }
    info->parser = newTicketParser();
    if (info->parser == nullptr) {
        zundo_trace("cannot allocate parser");
        return zundoResult(ZUNDO_INTERNAL_ERROR);
    }

    ParserErrorHandler handler;
    info->parser->setErrorHandler(&handler);
    zundo_status_t status = ZUNDO_OK;
    try {
        info->parser->parse(*info->inputSource);
    } catch (const XMLException &e) {
        char *message = UTF8Transcoder::transcodeValue(e.getMessage());
        traceParseException(message);
        UTF8Transcoder::release(&message);
        status = ZUNDO_INTERNAL_ERROR;
    } catch (...) {
        traceParseException("out of memory");
        status = ZUNDO_INTERNAL_ERROR;
    }
    // The handler dies with this call; the parser lives on in the record.
    info->parser->setErrorHandler(nullptr);
    if (status != ZUNDO_OK) return zundoResult(status);

    if (handler.getSawErrors()) {
        zundo_trace("parsing failed with message\n");
        return zundoResult(ZUNDO_PARSE_FAILED, handler.getErrorLine(), handler.getErrorColumn());
    }

    DOMDocument *document = info->parser->getDocument();
    info->document = document;
    info->xmlVersion = UTF8Transcoder::transcodeAttr(document->getXmlVersion());
    info->xmlEncoding = UTF8Transcoder::transcodeAttr(document->getXmlEncoding());
    info->standalone = document->getXmlStandalone() ? 1 : 0;
    return zundoResult(ZUNDO_OK);
}

zundo_result_t freeDOMDocumentInfo(DOMDocumentInfo *info) {
    if (info == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (info->parser != nullptr) {
        // A parsed document belongs to its parser and goes with it.
        forgetDocumentIndexes(info->document);
        delete info->parser;
        info->parser = nullptr;
        info->document = nullptr;
    }
    delete info->inputSource;
    info->inputSource = nullptr;
    return zundoResult(ZUNDO_OK);
}
