// Media resources read into media objects: the Media element's attributes,
// its holes, engine, calibration and PMP information, and the amount used
// that its Input link and the ResourceAudits of its JDF node record.
#ifndef ZUNDO_READ_MEDIA_READER_H
#define ZUNDO_READ_MEDIA_READER_H

#include "xml/jdf_entries.h"

// A new media object (no name) made of one Media element, handed out even
// when a step fails; each call makes an independent object. The status is
// that of the media extension readers, of which this library has none, so
// it is ZUNDO_OK unless the object itself cannot be made.
zundo_status_t createMediaObject(zundo_int_object_s **out, xercesc::DOMElement *media);

// A Hole element as a hole object, a HoleLine element (its first Hole and
// its Pitch, 0.0 when missing) as a hole-line object; null when the object
// cannot be made. Media hole lists and hole making share them.
zundo_int_object_s *readHole(const xercesc::DOMElement *element);
zundo_int_object_s *readHoleLine(const xercesc::DOMElement *element);

#endif
