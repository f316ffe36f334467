#include "xml/ticket_parser.h"

#include <xercesc/framework/XMLErrorCodes.hpp>
#include <xercesc/framework/XMLErrorReporter.hpp>
#include <xercesc/internal/XMLScanner.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/Locator.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/SecurityManager.hpp>
#include <xercesc/util/XMLUni.hpp>
#include <xercesc/validators/DTD/DTDEntityDecl.hpp>

#include <string>

XERCES_CPP_NAMESPACE_USE

namespace {

// Job tickets have no use for entities of their own, so both limits are far
// below what a bomb needs: at most kMaxExpansions expansions of at most
// kMaxEntityLength characters each, a few million characters in all.
const XMLSize_t kMaxExpansions = 1000;
const XMLSize_t kMaxEntityLength = 4096;

// The expansion count alone does not bound memory: one long entity
// referenced many times grows quadratically with the input. Declarations
// with a longer replacement text are therefore refused.
class TicketParser : public XercesDOMParser {
public:
    TicketParser() : XercesDOMParser(nullptr, XMLPlatformUtils::fgMemoryManager, nullptr) {
        security.setEntityExpansionLimit(kMaxExpansions);
        setSecurityManager(&security);
        setLoadExternalDTD(false);
        // External entities and anything else that would need a resolver
        // fail as "unable to open" instead of reaching files or the network.
        setDisableDefaultEntityResolution(true);
    }

    void entityDecl(const DTDEntityDecl &decl, const bool isPEDecl,
                    const bool isIgnored) override {
        if (!decl.isExternal() && decl.getValueLen() > kMaxEntityLength) refuse(decl);
        XercesDOMParser::entityDecl(decl, isPEDecl, isIgnored);
    }

private:
    // Reports a fatal error at the current position and ends the scan the
    // way the scanner ends it after its own fatal errors.
    [[noreturn]] void refuse(const DTDEntityDecl &decl) {
        std::string limit = std::to_string(kMaxEntityLength);
        std::u16string message = u"entity '";
        message += decl.getName();
        message += u"' has a replacement text longer than ";
        message.append(limit.begin(), limit.end());
        message += u" characters";
        const Locator *where = getScanner()->getLocator();
        error(XMLErrs::EntityExpansionLimitExceeded, XMLUni::fgXMLErrDomain,
              XMLErrorReporter::ErrType_Fatal, message.c_str(), where->getSystemId(),
              where->getPublicId(), where->getLineNumber(), where->getColumnNumber());
        throw XMLErrs::EntityExpansionLimitExceeded;
    }

    SecurityManager security;
};

}  // namespace

XercesDOMParser *newTicketParser() {
    try {
        return new TicketParser();
    } catch (...) {
        return nullptr;
    }
}
