// The RunList resources and the RunListLink: the job's content pages, the
// level its insert sheets and start pages refer to, those sheets and
// pages themselves, and the pages to process.
#ifndef ZUNDO_READ_RUN_LIST_READER_H
#define ZUNDO_READ_RUN_LIST_READER_H

#include "read/resource_dispatch.h"

// A RunList of the parameter pass. A RunList whose Input link carries a
// single CombinedProcessIndex feeds that one process only: its PageList
// and page variant are read, its runs are not. Always ZUNDO_OK.
zundo_status_t readRunListResource(xercesc::DOMElement *runList, const char *name,
                                   ResourceReadContext *context);

// The RunIndex values of the link's Part children together become
// "job-process-pages"; a later RunListLink replaces what an earlier one
// set. The result is the last Part's.
zundo_status_t readRunListLinkElement(xercesc::DOMElement *link, zundo_int_object_s *ticket);

#endif
