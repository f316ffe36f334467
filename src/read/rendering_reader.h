// The job's rendering and print-quality settings: RenderingParams (edge and
// thin-line enhancement, black overprint, output resolution, anti-aliasing),
// the toner limits of the Ink resource and the maximum densities of
// PrintCondition.
#ifndef ZUNDO_READ_RENDERING_READER_H
#define ZUNDO_READ_RENDERING_READER_H

#include "xml/jdf_entries.h"

// Each reader always gives ZUNDO_OK.
zundo_status_t readRenderingParamsResource(xercesc::DOMElement *resource,
                                           zundo_int_object_s *ticket);
// The toner limits of the morvellan:TonerDetails children, then the ink
// usages.
zundo_status_t readInkResource(xercesc::DOMElement *resource, zundo_int_object_s *ticket);
zundo_status_t readPrintConditionResource(xercesc::DOMElement *resource,
                                          zundo_int_object_s *ticket);

#endif
