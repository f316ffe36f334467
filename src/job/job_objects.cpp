// Chain lookups and value helpers used by the job, document and ticket.
#include "job/job_objects.h"

zundo_int_object_s *findOwnerRecord(zundo_int_object_s *object, const char *type) {
    for (zundo_int_object_s *link = object; link != nullptr; link = link->next)
        if (link->isExtension == 0 && kindIs(link->type, type)) return link;
    return nullptr;
}

bool isObjectOfType(const zundo_int_object_s *object, const char *type) {
    return object != nullptr && kindIs(object->type, type);
}

zundo_status_t setWholeDocumentRange(zundo_int_object_s *owner, const char *name) {
    zundo_range_s *range = nullptr;
    zundo_status_t status = newRange(&range, 0, -1);
    if (status != ZUNDO_OK) return status;
    status = setSingleValue(owner, name, ZUNDO_KIND_RANGE, range);
    if (status != ZUNDO_OK) destroyRange(range);
    return status;
}
