// The one way writers put an attribute on a resource, on one of its
// partitions, or on the matching LayoutPreparationParams leaves.
#ifndef ZUNDO_WRITE_JDF_ATTR_H
#define ZUNDO_WRITE_JDF_ATTR_H

#include "write/writer_context.h"

// A resource getter, or getJDFRoot.
typedef xercesc::DOMElement *(*ElementGetter)(JDFWriteContext *ctx);

// Sets name = value on the element getter(ctx) hands out, which is created
// even when value is null (a null value writes nothing):
// - neither runRange nor documentIndex: on the element itself;
// - runRange: on its RunIndex partition; documentIndex: on its DocIndex
//   partition; both: on DocIndex and, under it, DocRunIndex (partitions
//   and PartIDKeys are made when missing);
// - cellLevel 1 with a runRange on a LayoutPreparationParams whose cell or
//   side partitions exist: on the RunIndex partition of every CellIndex /
//   Side leaf that already has one for the run range, and nowhere else.
// ZUNDO_OK unless the element or a partition cannot be had.
zundo_status_t writeJDFAttr(JDFWriteContext *ctx, const char *name, const char *value,
                            int cellLevel, const char *runRange, const char *documentIndex,
                            ElementGetter getter);

// Sets name = value on the element itself, tracing a failure. For elements
// that are never partitioned: links, Components, audits, sub-elements.
void setAttributeTraced(xercesc::DOMElement *element, const char *name, const char *value);

#endif
