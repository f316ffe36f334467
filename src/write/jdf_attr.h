// The one way writers put an attribute on a resource, on one of its
// partitions, or on the matching LayoutPreparationParams leaves.
#ifndef ZUNDO_WRITE_JDF_ATTR_H
#define ZUNDO_WRITE_JDF_ATTR_H

#include "write/writer_context.h"
#include "xml/jdf_entries.h"

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

// Creates element(s) elementName in LayoutPreparationParams and hands them
// out in *list (null-terminated, released with freeElementList):
// - cellLevel 1 with a runRange while cell or side partitions exist: one in
//   the RunIndex partition of every CellIndex / Side leaf, that partition
//   made when missing;
// - otherwise one, in the RunIndex partition of runRange (made when
//   missing) or, without a runRange, in the resource itself.
// When memory runs out the list holds what was made so far.
zundo_status_t addLPPRunIndexElement(JDFWriteContext *ctx, const char *elementName,
                                     const char *runRange, int cellLevel, ElementEntry ***list);

// Sets name = value on the element itself, tracing a failure. For elements
// that are never partitioned: links, Components, audits, sub-elements.
void setAttributeTraced(xercesc::DOMElement *element, const char *name, const char *value);
// True for ZUNDO_OK; any other status is traced as a parser error.
bool succeededTraced(zundo_status_t status);
// A new last child of parent; null (traced) when it cannot be made.
xercesc::DOMElement *appendChildTraced(xercesc::DOMElement *parent, const char *name);

// The first child of that name, or a new last one (traced when it cannot
// be made): for children several writers share, such as the Disjointing.
xercesc::DOMElement *findOrAppendChild(xercesc::DOMElement *parent, const char *name);

#endif
