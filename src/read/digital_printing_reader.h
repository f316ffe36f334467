// DigitalPrintingParams: collation, delivery, output bin, media, jog
// offset, AFP resources and the insert sheets of its Disjointing, for the
// job, its documents and its page ranges.
#ifndef ZUNDO_READ_DIGITAL_PRINTING_READER_H
#define ZUNDO_READ_DIGITAL_PRINTING_READER_H

#include "xml/jdf_lists.h"

// The proof print of DirectProofAmount, then the partition walk with
// setDPAttrsToObject. The result is the walk's.
zundo_status_t readDigitalPrintingParamsResource(xercesc::DOMElement *resource,
                                                 zundo_int_object_s *ticket,
                                                 IdElement **mediaList);

// The level setter: *object is the job, a document or a page range and
// takes the names of its type. ZUNDO_ERROR for an object without a type;
// otherwise ZUNDO_OK or the status of a media the object refused.
zundo_status_t setDPAttrsToObject(zundo_int_object_s **object, AttributeEntry *const *attrs,
                                  ElementEntry *const *elements, const char *docFilter,
                                  const char *runFilter, IdElement **mediaList);

#endif
