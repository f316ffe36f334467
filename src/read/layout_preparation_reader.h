// LayoutPreparationParams: the imposition attributes of the job, its
// documents and page ranges, and the job's and page ranges' page cells.
#ifndef ZUNDO_READ_LAYOUT_PREPARATION_READER_H
#define ZUNDO_READ_LAYOUT_PREPARATION_READER_H

#include "xml/jdf_lists.h"

// The partition walk with setLPAttrsToObject, then the RunIndex
// partitions' page cells, the job's units and page cells. The result is
// the walk's.
zundo_status_t readLayoutPreparationParamsResource(xercesc::DOMElement *resource,
                                                   zundo_int_object_s *ticket,
                                                   IdElement **mediaList);

// The level setter: *object is the job, a document or a page range, and
// takes the names of its type. Always ZUNDO_OK.
zundo_status_t setLPAttrsToObject(zundo_int_object_s **object, AttributeEntry *const *attrs,
                                  ElementEntry *const *elements, const char *docFilter,
                                  const char *runFilter, IdElement **mediaList);

// Fills a page-cell info from a PageCell element.
void readPageCell(xercesc::DOMElement *pageCell, zundo_int_object_s *pageCellInfo);
// Sets "job-page-cells" from the resource's PageCells and its CellIndex
// and Side partitions.
void readJobPageCells(xercesc::DOMElement *resource, zundo_int_object_s *job,
                      IdElement **mediaList);
// For each RunIndex partition among the element's children: page cells
// and attributes of the job's page range with that RunIndex.
void readPageRangeLayouts(xercesc::DOMElement *element, zundo_int_object_s *job,
                          IdElement **mediaList);

#endif
