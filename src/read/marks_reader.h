// Printer's marks: the MarkObjects of LayoutPreparationParams, its
// partitions, page cells and sheet layouts as mark objects; the strip marks
// of the vendor StrippingParams as trim/bleed and register marks; the
// colour control strip of the Layout resource.
#ifndef ZUNDO_READ_MARKS_READER_H
#define ZUNDO_READ_MARKS_READER_H

#include "xml/jdf_entries.h"

// Sets the object-list attribute listName ("job-marks", "page-range-marks",
// "page-cell-marks", "insert-sheet-marks") of target to the marks among
// the element's children, also when there are none. Only a failure to
// make the list is reported.
zundo_status_t readMarks(const xercesc::DOMElement *element, zundo_int_object_s *target,
                         const char *listName);

// A temporary insert sheet (a trailer over all pages, without media) that
// holds the marks of the MarkObjects among markParent's children; null
// when it cannot be made. The caller destroys it.
zundo_int_object_s *makeMarksInsertSheet(const xercesc::DOMElement *markParent);
// Gives `to` copies of the marks of `from` (either may be null).
void copyInsertSheetMarks(zundo_int_object_s *from, zundo_int_object_s *to);

// The StripMarks of morvellan:StrippingParams appended to the job's
// "job-trim-bleed-marks" and "job-register-marks". Always ZUNDO_OK.
zundo_status_t readStrippingParamsResource(xercesc::DOMElement *resource,
                                           zundo_int_object_s *ticket);
// "job-color-control-bar-type" from the ColorControlStrip of the Layout
// resource's first MarkObject. Always ZUNDO_OK.
zundo_status_t readLayoutResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket);

#endif
