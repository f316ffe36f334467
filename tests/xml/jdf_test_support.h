// Helpers shared by the JDF access tests: documents that free themselves,
// entry lists flattened to comparable texts, and trace capture.
#ifndef ZUNDO_TESTS_XML_JDF_TEST_SUPPORT_H
#define ZUNDO_TESTS_XML_JDF_TEST_SUPPORT_H

#include <cstdlib>
#include <string>
#include <vector>

#include "xml/jdf_entries.h"
#include "xml/jdf_node.h"
#include "xml_test_support.h"

// A new, empty document released on scope exit.
struct NewDocument {
    NewDocument() {
        info = DOMDocumentInfo{};
        info.xmlVersion = "1.0";
        info.xmlEncoding = "UTF-8";
        result = createDOMDocument(&info);
    }
    ~NewDocument() { releaseDOMDocument(info.document); }
    NewDocument(const NewDocument &) = delete;
    xercesc::DOMDocument *document() const { return info.document; }

    DOMDocumentInfo info;
    zundo_result_t result;
};

// What the writer hands to createJDFNode.
inline JDFNodeInfo writtenNodeInfo() {
    return JDFNodeInfo{nullptr,
                       "n0",
                       "Combined",
                       "DigitalPrinting",
                       "Waiting",
                       "Active",
                       "http://www.CIP4.org/JDFSchema_1_1",
                       nullptr,
                       "1.4",
                       nullptr};
}

inline std::string keyText(const char *key) { return key != nullptr ? key : "-"; }

// "name=value [first|second]" per entry, in list order.
inline std::vector<std::string> flatten(AttributeEntry *const *list) {
    std::vector<std::string> texts;
    for (AttributeEntry *const *at = list; at != nullptr && *at != nullptr; ++at)
        texts.push_back(std::string((*at)->name) + "=" + (*at)->value + " [" +
                        keyText((*at)->firstKey) + "|" + keyText((*at)->secondKey) + "]");
    return texts;
}

inline std::vector<std::string> flatten(ElementEntry *const *list) {
    std::vector<std::string> texts;
    for (ElementEntry *const *at = list; at != nullptr && *at != nullptr; ++at)
        texts.push_back(std::string((*at)->name) + " [" + keyText((*at)->firstKey) + "|" +
                        keyText((*at)->secondKey) + "]");
    return texts;
}

inline std::vector<std::string> flatten(const char *const *list) {
    std::vector<std::string> texts;
    for (const char *const *at = list; at != nullptr && *at != nullptr; ++at) texts.push_back(*at);
    return texts;
}

inline std::string attribute(const xercesc::DOMElement *element, const char *name) {
    XMLCh *wide = UTF8Transcoder::transcodeAttr(name);
    std::string value = utf8(element->getAttribute(wide));
    UTF8Transcoder::release(&wide);
    return value;
}

inline std::string tagName(const xercesc::DOMNode *node) {
    return node != nullptr ? utf8(node->getNodeName()) : "(null)";
}

// Collects level-1 trace lines while alive.
class TraceCapture {
public:
    TraceCapture() {
        lines().clear();
        setenv("DEBUG_ZUNDO", "", 1);
        enableTraceCallback(1, collect);
    }
    ~TraceCapture() {
        disableTraceCallback();
        unsetenv("DEBUG_ZUNDO");
    }
    TraceCapture(const TraceCapture &) = delete;
    static std::vector<std::string> &lines() {
        static std::vector<std::string> collected;
        return collected;
    }
    bool saw(const std::string &line) const {
        for (const std::string &l : lines())
            if (l == line) return true;
        return false;
    }

private:
    static void collect(const char *message) { lines().push_back(message); }
};

#endif
