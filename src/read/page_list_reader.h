// The PageList of a RunList: how the job's pages are numbered and which
// colour standard they follow.
#ifndef ZUNDO_READ_PAGE_LIST_READER_H
#define ZUNDO_READ_PAGE_LIST_READER_H

#include "xml/jdf_entries.h"

// Replaces the job's "job-paginations" with one pagination per PageData
// child; a ColorPool child sets "job-color-standard". Always ZUNDO_OK.
zundo_status_t readPageListElement(xercesc::DOMElement *pageList, zundo_int_object_s *job);

#endif
