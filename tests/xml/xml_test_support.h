// Helpers shared by the XML layer tests.
#ifndef ZUNDO_TESTS_XML_TEST_SUPPORT_H
#define ZUNDO_TESTS_XML_TEST_SUPPORT_H

#include <xercesc/dom/DOM.hpp>

#include <string>

#include "xml/xml_document.h"

// A parse whose record is freed on scope exit, as the reader frees it.
struct ParsedTicket {
    explicit ParsedTicket(const std::string &source) : text(source) {
        result = getDOMDocument(text.c_str(), &info);
    }
    ~ParsedTicket() {
        freeDOMDocumentInfo(&info);
        delete[] info.xmlVersion;
        delete[] info.xmlEncoding;
    }
    ParsedTicket(const ParsedTicket &) = delete;
    xercesc::DOMElement *root() const { return info.document->getDocumentElement(); }

    const std::string text;  // parsed in place, so it lives as long as the record
    DOMDocumentInfo info;
    zundo_result_t result;
};

inline std::string utf8(const XMLCh *text) {
    char *converted = UTF8Transcoder::transcodeValue(text);
    std::string copy = converted != nullptr ? converted : "";
    UTF8Transcoder::release(&converted);
    return copy;
}

#endif
