// Internals shared by the job, document and job-ticket units.
//
// The extension registries of job and ticket hold no entries, so no
// extension object is ever linked into these chains and the owner stays the
// head. The lookups still walk the chain for the owner record (right type,
// isExtension 0) so that they keep working should a chain ever carry more.
#ifndef ZUNDO_JOB_OBJECTS_H
#define ZUNDO_JOB_OBJECTS_H

#include "zundo_object.h"

// The owner record of `type` in the chain starting at `object`, or null.
zundo_int_object_s *findOwnerRecord(zundo_int_object_s *object, const char *type);

// True when `object` heads an object of `type`.
bool isObjectOfType(const zundo_int_object_s *object, const char *type);

// Sets `name` to one Range 0 ~ -1, the whole document.
zundo_status_t setWholeDocumentRange(zundo_int_object_s *owner, const char *name);

zundo_status_t validateJobAttribute(void *data, const char *name, zundo_int_attribute_s *attribute);

#endif
