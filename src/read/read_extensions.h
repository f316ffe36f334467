// Reader extension hooks: functions that a build of the library may add to
// read vendor parts of a job ticket. This library registers none.
#ifndef ZUNDO_READ_READ_EXTENSIONS_H
#define ZUNDO_READ_READ_EXTENSIONS_H

#include "xml/jdf_entries.h"

// Prepares the hooks once per read.
zundo_status_t initReadExtensions();
// Runs the setup hooks with the JDF node until one fails; its status, or
// ZUNDO_OK.
zundo_status_t readSetupExtensions(xercesc::DOMElement *jdfNode, zundo_int_object_s *ticket);
// Runs every child hook on one child of the JDF node. Always ZUNDO_OK.
zundo_status_t readExtensions(ElementEntry *child, zundo_int_object_s *ticket);

#endif
