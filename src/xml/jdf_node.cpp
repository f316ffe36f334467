// Locating and creating the JDF node.
#include "xml/jdf_node.h"

#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMElement.hpp>
#include <xercesc/util/XMLString.hpp>

#include <cstring>

#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

namespace {

// Types is tested as text, so any mention of DigitalPrinting counts.
bool isDigitalPrintingJDF(const DOMElement *element) {
    return hasTagName(element, "JDF") &&
           XMLString::equals(element->getAttribute(u"Type"), u"Combined") &&
           XMLString::patternMatch(element->getAttribute(u"Types"), u"DigitalPrinting") >= 0;
}

const char *const kNodeAttributes[] = {"ID",    "Type",       "Types",   "Status", "Activation",
                                       "xmlns", "xmlns:osdp", "Version", "JobID"};

const char **nodeField(JDFNodeInfo *info, size_t index) {
    const char **fields[] = {&info->id,        &info->type,       &info->types,
                             &info->status,    &info->activation, &info->xmlns,
                             &info->xmlnsOsdp, &info->version,    &info->jobId};
    return fields[index];
}

const size_t kNodeFieldCount = sizeof(kNodeAttributes) / sizeof(kNodeAttributes[0]);

void clearJDFNodeInfo(JDFNodeInfo *info) {
    info->element = nullptr;
    for (size_t i = 0; i < kNodeFieldCount; ++i) *nodeField(info, i) = nullptr;
}

}  // namespace

zundo_result_t getJDFNode(const DOMDocument *document, JDFNodeInfo *info) {
    if (document == nullptr || info == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    clearJDFNodeInfo(info);
    const DOMElement *root = document->getDocumentElement();
    const DOMElement *chosen = root;
    for (const DOMElement *at = root; at != nullptr; at = nextInDocumentOrder(at, root)) {
        if (isDigitalPrintingJDF(at)) {
            chosen = at;
            break;
        }
    }
    if (!hasTagName(chosen, "JDF")) {
        zundo_trace("DOM document's element is not the JDF node element.\n");
        return zundoResult(ZUNDO_WRONG_ELEMENT);
    }
    info->element = const_cast<DOMElement *>(chosen);
    for (size_t i = 0; i < kNodeFieldCount; ++i) {
        XMLCh *name = UTF8Transcoder::transcodeAttr(kNodeAttributes[i]);
        char *value =
            name != nullptr ? UTF8Transcoder::transcodeValue(chosen->getAttribute(name)) : nullptr;
        UTF8Transcoder::release(&name);
        if (value == nullptr) {
            traceOutOfMemory("getJDFNode");
            freeJDFNodeInfo(info);
            return zundoResult(ZUNDO_OUT_OF_MEMORY);
        }
        *nodeField(info, i) = value;
    }
    return zundoResult(ZUNDO_OK);
}

zundo_result_t getJDFNodeChildren(const DOMElement *jdfNode, ElementEntry ***out) {
    zundo_trace(">> entering getJDFNodeChildren\n");
    zundo_result_t result = findChildElements(jdfNode, out);
    if (result.status == ZUNDO_OK && (*out)[0] == nullptr) {
        zundo_trace("The JDF node has no children nodes. \n");
        freeElementList(*out);
        *out = nullptr;
        result = zundoResult(ZUNDO_NO_CHILDREN);
    }
    zundo_trace("<< leaving getJDFNodeChildren\n");
    return result;
}

zundo_result_t createJDFNode(DOMDocument *document, JDFNodeInfo *info) {
    zundo_trace(">> entering createJDFNode\n");
    if (document == nullptr || info == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (info->id == nullptr || info->type == nullptr || info->types == nullptr ||
        info->status == nullptr || info->activation == nullptr || info->xmlns == nullptr ||
        info->version == nullptr)
        return zundoResult(ZUNDO_MISSING_FIELD);
    try {
        info->element = document->createElement(u"JDF");
        document->appendChild(info->element);
    } catch (...) {
        info->element = nullptr;
        return zundoResult(domFailure("createJDFNode"));
    }
    const char *const names[] = {"ID", "Type", "Types", "Status", "Activation", "xmlns"};
    const char *const values[] = {info->id,     info->type,       info->types,
                                  info->status, info->activation, info->xmlns};
    zundo_status_t status = ZUNDO_OK;
    for (size_t i = 0; i < 6 && status == ZUNDO_OK; ++i)
        status = setNamedAttribute(info->element, names[i], values[i]);
    if (status == ZUNDO_OK) status = setNamedAttribute(info->element, "Version", "1.4");
    if (status == ZUNDO_OK && info->jobId != nullptr)
        status = setNamedAttribute(info->element, "JobID", info->jobId);
    if (status != ZUNDO_OK) return zundoResult(status);
    zundo_trace("<< leaving createJDFNode\n");
    return zundoResult(ZUNDO_OK);
}

zundo_result_t addJDFNodeChild(DOMElement *jdfNode, ElementEntry *entry) {
    if (jdfNode == nullptr || entry == nullptr) return zundoResult(ZUNDO_NULL_ARGUMENT);
    if (!hasTagName(jdfNode, "JDF")) {
        zundo_trace("jdfNodeElement that was passed in is not the JDF node element. \n");
        return zundoResult(ZUNDO_WRONG_ELEMENT);
    }
    return createChildElement(jdfNode, entry);
}

void freeJDFNodeInfo(JDFNodeInfo *info) {
    if (info == nullptr) return;
    for (size_t i = 0; i < kNodeFieldCount; ++i) delete[] const_cast<char *>(*nodeField(info, i));
    clearJDFNodeInfo(info);
}

int getProcessPosition(const DOMElement *jdfNode, const char *processName) {
    if (jdfNode == nullptr || processName == nullptr || !jdfNode->hasAttribute(u"Types")) return -1;
    char *types = UTF8Transcoder::transcodeValue(jdfNode->getAttribute(u"Types"));
    if (types == nullptr) {
        traceOutOfMemory("getProcessPosition");
        return -1;
    }
    int position = -1;
    int index = 0;
    char *rest = nullptr;
    for (char *token = strtok_r(types, " ", &rest); token != nullptr;
         token = strtok_r(nullptr, " ", &rest), ++index) {
        if (std::strcmp(token, processName) == 0) {
            position = index;
            break;
        }
    }
    UTF8Transcoder::release(&types);
    return position;
}
