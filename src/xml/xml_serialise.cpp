// Serialising a DOM document to a new pretty-printed UTF-8 text.
#include <xercesc/dom/DOMConfiguration.hpp>
#include <xercesc/dom/DOMDocument.hpp>
#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMLSOutput.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "xml/xml_document.h"

XERCES_CPP_NAMESPACE_USE

namespace {

const XMLSize_t kInitialTargetCapacity = 1023;

// Owns the per-call serialiser objects so that every exit releases them.
struct SerialiseParts {
    DOMLSSerializer *serializer = nullptr;
    DOMLSOutput *output = nullptr;
    MemBufFormatTarget *target = nullptr;
    XMLCh *encoding = nullptr;

    SerialiseParts() = default;
    SerialiseParts(const SerialiseParts &) = delete;
    SerialiseParts &operator=(const SerialiseParts &) = delete;
    ~SerialiseParts() {
        if (output != nullptr) output->release();
        if (serializer != nullptr) serializer->release();
        UTF8Transcoder::release(&encoding);
        delete target;
    }
};

char *writeDocument(DOMDocument *document, SerialiseParts &parts) {
    DOMImplementation *implementation = document->getImplementation();
    parts.serializer = implementation->createLSSerializer(XMLPlatformUtils::fgMemoryManager);
    parts.output = implementation->createLSOutput(XMLPlatformUtils::fgMemoryManager);
    DOMConfiguration *config = parts.serializer->getDomConfig();
    if (config->canSetParameter(XMLUni::fgDOMWRTFormatPrettyPrint, true))
        config->setParameter(XMLUni::fgDOMWRTFormatPrettyPrint, true);
    parts.encoding = UTF8Transcoder::transcodeAttr("UTF-8");
    if (parts.encoding == nullptr) return nullptr;
    parts.output->setEncoding(parts.encoding);
    parts.target = new MemBufFormatTarget(kInitialTargetCapacity);
    parts.output->setByteStream(parts.target);
    if (!parts.serializer->write(document, parts.output)) return nullptr;
    return XMLString::replicate(reinterpret_cast<const char *>(parts.target->getRawBuffer()));
}

}  // namespace

char *serializeDOMDocument(DOMDocument *document) {
    if (document == nullptr) return nullptr;
    SerialiseParts parts;
    try {
        return writeDocument(document, parts);
    } catch (...) {
        return nullptr;
    }
}

void releaseXMLString(char *text) {
    if (text != nullptr) XMLString::release(&text);
}
