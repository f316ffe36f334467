// Component resources and the ComponentLink: the job's PIN, the media of a
// cover binding, the copies, and the reference edges and output bins of
// the processes the link feeds.
#ifndef ZUNDO_READ_COMPONENT_READER_H
#define ZUNDO_READ_COMPONENT_READER_H

#include "xml/jdf_lists.h"

// morvellan:PIN of the Component and of its nested Components sets
// "job-pin". A MediaRef among them goes to the job's cover application
// binding, or waits in the read environment while the job has no binding
// yet. Always ZUNDO_OK.
zundo_status_t readComponentResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket,
                                     IdElement **mediaList);

// The copies of the job, then what the process named by the link's
// CombinedProcessIndex takes from it: its finishing object's reference
// edge and output bin, or the printed Component's output bins. Always
// ZUNDO_OK.
zundo_status_t readComponentLinkElement(xercesc::DOMElement *link, zundo_int_object_s *ticket);

#endif
