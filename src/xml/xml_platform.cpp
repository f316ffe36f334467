// Brings Xerces-C up when the library is loaded and takes it down when it
// is unloaded. A failed start-up does not fail the load; it is remembered
// and reported by every later parse or document creation.
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLException.hpp>
#include <xercesc/util/XMLUni.hpp>

#include "xml/xml_document.h"
#include "zundo_trace.h"

XERCES_CPP_NAMESPACE_USE

namespace {

class XmlSystem {
public:
    XmlSystem() {
        try {
            XMLPlatformUtils::Initialize(XMLUni::fgXercescDefaultLocale, nullptr, nullptr,
                                         nullptr);
            zundo_trace("successfully initialized Xerces system\n");
            initialised = UTF8Transcoder::init();
        } catch (const XMLException &e) {
            // The transcoding service may be what failed; fall back to a
            // plain narrowing copy of the message.
            errorMessage = UTF8Transcoder::transcodeValue(e.getMessage());
            if (errorMessage == nullptr) errorMessage = UTF8Transcoder::transcodeAttr(e.getMessage());
        } catch (...) {
            // Nothing may escape static initialisation: remember a fixed text.
            static const char16_t fallback[] = u"XML library initialisation failed";
            errorMessage = UTF8Transcoder::transcodeAttr(fallback);
        }
    }

    ~XmlSystem() {
        UTF8Transcoder::release(&errorMessage);
        UTF8Transcoder::terminate();
        // A half-done start-up is left alone: terminating it could touch
        // services that never came up.
        if (initialised) XMLPlatformUtils::Terminate();
    }

    XmlSystem(const XmlSystem &) = delete;
    XmlSystem &operator=(const XmlSystem &) = delete;

    char *errorMessage = nullptr;
    bool initialised = false;
};

XmlSystem xmlSystem;

}  // namespace

bool isXmlSystemInitialised() { return xmlSystem.initialised; }

void traceXmlSystemFailure() {
    zundo_trace("%s", xmlSystem.errorMessage != nullptr ? xmlSystem.errorMessage : "");
}
