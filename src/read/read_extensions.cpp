// The reader's extension hook lists, process-wide and null-terminated.
#include "read/read_extensions.h"

#include "zundo_trace.h"

namespace {

typedef zundo_status_t (*SetupExtension)(xercesc::DOMElement *jdfNode, zundo_int_object_s *ticket);
typedef zundo_status_t (*ChildExtension)(ElementEntry *child, zundo_int_object_s *ticket);

const SetupExtension kSetupExtensions[] = {nullptr};

const ChildExtension kFirstChildExtensions[] = {nullptr};
const ChildExtension kSecondChildExtensions[] = {nullptr};
const ChildExtension kThirdChildExtensions[] = {nullptr};
const ChildExtension *const kChildExtensionLists[] = {kFirstChildExtensions, kSecondChildExtensions,
                                                      kThirdChildExtensions};

}  // namespace

zundo_status_t initReadExtensions() { return ZUNDO_OK; }

zundo_status_t readSetupExtensions(xercesc::DOMElement *jdfNode, zundo_int_object_s *ticket) {
    zundo_trace("<< Entering readSetupExtensions\n");
    for (int i = 0; kSetupExtensions[i] != nullptr; ++i) {
        zundo_status_t status = kSetupExtensions[i](jdfNode, ticket);
        if (status != ZUNDO_OK) {
            zundo_trace("readExtensionSetupFunction[%i] failed", i);
            return status;
        }
    }
    zundo_trace(">> Leaving readSetupExtensions\n");
    return ZUNDO_OK;
}

zundo_status_t readExtensions(ElementEntry *child, zundo_int_object_s *ticket) {
    zundo_trace("<< Entering readExtensions\n");
    for (const ChildExtension *list : kChildExtensionLists)
        for (const ChildExtension *hook = list; *hook != nullptr; ++hook) (*hook)(child, ticket);
    zundo_trace("<< Leaving readExtensions\n");
    return ZUNDO_OK;
}
