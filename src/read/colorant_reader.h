// ColorantControl read into the job's process colour model, spot colour
// matching, substitute colour table and colour planes, and into the colour
// models of the page ranges its RunIndex partitions name.
#ifndef ZUNDO_READ_COLORANT_READER_H
#define ZUNDO_READ_COLORANT_READER_H

#include "xml/jdf_entries.h"

// Always ZUNDO_OK.
zundo_status_t readColorantControl(xercesc::DOMElement *resource, zundo_int_object_s *ticket);

// "job-color-planes": one plane per separation of the ColorantOrder,
// replaced by the planes of the ColorPool (a child, or the resource a
// ColorPoolRef names) when there is one. ZUNDO_OK unless the list for the
// pool's planes cannot be made.
zundo_status_t readColorPlanes(const xercesc::DOMElement *colorantControl, zundo_int_object_s *job);

#endif
