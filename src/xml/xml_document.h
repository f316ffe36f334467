// The XML layer: the only code that touches Xerces-C. Parses job-ticket text
// into a DOM document, creates and serialises documents for the writer, and
// wraps the Base64 codec. Text conversion is UTF8Transcoder (zundo.h).
#ifndef ZUNDO_XML_DOCUMENT_H
#define ZUNDO_XML_DOCUMENT_H

#include <xercesc/util/XercesDefs.hpp>

#include "zundo.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class XercesDOMParser;
class MemBufInputSource;
XERCES_CPP_NAMESPACE_END

inline zundo_result_t zundoResult(zundo_status_t status, int line = 0, int column = 0) {
    zundo_result_t result;
    result.status = status;
    result.line = line;
    result.column = column;
    return result;
}

// A parsed or created DOM document with what belongs to it.
struct DOMDocumentInfo {
    // Parsed: owned by the parser and freed with it. Created: released with
    // releaseDOMDocument.
    xercesc::DOMDocument *document;
    // Parsed: the declared version, owned, freed by the caller with
    // delete[]; null when not declared. Created: the version to declare.
    const char *xmlVersion;
    // Parsed: like xmlVersion. Created: required but not used.
    const char *xmlEncoding;
    int standalone;
    xercesc::XercesDOMParser *parser;          // parsed documents only, owned
    xercesc::MemBufInputSource *inputSource;   // parsed documents only, owned
};

// State of the process-wide XML library start-up.
bool isXmlSystemInitialised();
// Traces why start-up failed.
void traceXmlSystemFailure();

// Parses the NUL-terminated UTF-8 `text` in place: the text must outlive
// the record. On any result other than ZUNDO_NULL_ARGUMENT the caller frees
// the record with freeDOMDocumentInfo.
zundo_result_t getDOMDocument(const char *text, DOMDocumentInfo *info);
// Deletes the parser (and with it the parsed document) and the input
// source. The version and encoding texts stay with the caller.
zundo_result_t freeDOMDocumentInfo(DOMDocumentInfo *info);

// Creates an empty document declaring info->xmlVersion and
// info->standalone; info->xmlEncoding must be set.
zundo_result_t createDOMDocument(DOMDocumentInfo *info);
zundo_result_t releaseDOMDocument(xercesc::DOMDocument *document);

// The whole document as pretty-printed UTF-8 text, or null. The text is
// released with releaseXMLString.
char *serializeDOMDocument(xercesc::DOMDocument *document);
void releaseXMLString(char *text);

// *out: the NUL-terminated encoding, released with releaseXMLString.
zundo_status_t encodeBase64(const unsigned char *data, unsigned long length,
                            unsigned char **out);
// *out: the decoded bytes (null for text that is not Base64), released
// with releaseXMLString; *decodedLength their count.
zundo_status_t decodeBase64(const unsigned char *text, unsigned long *decodedLength,
                            unsigned char **out);

#endif
