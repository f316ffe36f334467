// Building, serialising and releasing the document of one written ticket.
#include "write/write_driver.h"

#include <new>

#include "write/comments.h"
#include "write/jdf_root.h"
#include "write/object_values.h"
#include "write/writer_order.h"
#include "xml/jdf_entries.h"
#include "xml/xml_document.h"
#include "zundo_trace.h"

zundo_status_t createJDFDocument(JDFWriteContext *ctx, const char *charset) {
    initializeJDFTemplate(ctx);
    DOMDocumentInfo info = {};
    info.xmlVersion = "1.0";
    info.xmlEncoding = charset;
    info.standalone = 1;
    zundo_result_t result = createDOMDocument(&info);
    ctx->document = info.document;
    return result.status;
}

zundo_status_t writeJDFString(JDFWriteContext *ctx, zundo_int_object_s *jobTicket, char **out) {
    short decoding = getControlCharacterDecodingFlag();
    zundo_trace(">> entering writeJDFSTring\n");
    *out = nullptr;
    zundo_int_object_s *job = jobTicket != nullptr ? getJob(jobTicket) : nullptr;
    FetchedAttribute charset(jobTicket, "jt-charset");
    zundo_status_t status = createJDFDocument(ctx, charset.firstString());
    if (status != ZUNDO_OK) {
        zundo_trace("parser_error %i, \n", status);
        setControlCharacterDecoding(decoding);
        return ZUNDO_ERROR;
    }
    status = writeJDFNode(ctx, jobTicket, job);
    if (status != ZUNDO_OK) {
        zundo_trace("parser_error %i, \n", status);
        releaseDOMDocument(ctx->document);
        setControlCharacterDecoding(decoding);
        return ZUNDO_ERROR;
    }
    char *text = nullptr;
    // The writers handle running out of memory where they can go on; what
    // they do not catch ends the write here, never in the caller.
    try {
        addComment(ctx->root, getZUNDOCurrentVersion(), nullptr, "morvellan:ApiVersion");
        FetchedAttribute comment(jobTicket, "jt-comment");
        addComment(ctx->root, comment.firstString(), nullptr, "TemplateDescription");
        runWriters(ctx, jobTicket, job);
        text = serializeDOMDocument(ctx->document);
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("writeJDFString");
        status = ZUNDO_OUT_OF_MEMORY;
    } catch (...) {
        status = domFailure("writeJDFString");
    }
    releaseWriterContext(ctx);
    releaseDOMDocument(ctx->document);
    *out = text;
    setControlCharacterDecoding(decoding);
    zundo_trace("<< leaving writeJDFString\n");
    return status;
}
