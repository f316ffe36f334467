// ColorSpaceConversionParams read into the job's colour management
// (rendering intents, black handling, grey-to-black conversion, ICC
// profiles) and into the colour profiles of the media it refers to. The
// resource is not partitioned but for its Front and Back sides, which hold
// the output profiles.
#ifndef ZUNDO_READ_COLOUR_CONVERSION_READER_H
#define ZUNDO_READ_COLOUR_CONVERSION_READER_H

#include "read/resource_dispatch.h"

// Profiles of media go to the media objects of the list, so that every
// copy made of them later carries them. Always ZUNDO_OK.
zundo_status_t readColorSpaceConversionParams(xercesc::DOMElement *resource,
                                              zundo_int_object_s *ticket, IdElement **mediaList);

// readColorSpaceConversionParams as a reader of the colour pass.
zundo_status_t readColorSpaceConversionResource(xercesc::DOMElement *resource, const char *name,
                                                ResourceReadContext *context);

// Shared by the colour readers.

// The part a single object kind adds to an attribute name: "" for "All",
// "-image" for "ImagePhotographic", "-line-art", "-smooth-shades",
// "-text"; null for any other SourceObjects text (a null one included).
const char *objectKindSuffix(const char *sourceObjects);

// name = the boolean of the element's attribute jdfName, when it has one.
void setBooleanIfPresent(zundo_int_object_s *object, const char *name,
                         const xercesc::DOMElement *element, const char *jdfName);

#endif
