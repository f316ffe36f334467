// What the finishing writers share: the NoOp convention between job and
// page ranges, and the orientations and output bins on the Components of
// the process chain.
#ifndef ZUNDO_WRITE_FINISHING_COMPONENTS_H
#define ZUNDO_WRITE_FINISHING_COMPONENTS_H

#include "write/jdf_attr.h"

// A page range's NoOp next to the job's: keyAttribute (FoldCatalog,
// StitchType, HoleType) on the resource itself says whether the job does
// the process. Without it the resource gets NoOp "true" and the partition
// NoOp = value; with it and value "true", the resource gets NoOp "false"
// and the partition NoOp "true"; with it and value "false" nothing is
// written.
void setNoOpForRange(JDFWriteContext *ctx, ElementGetter getter, const char *keyAttribute,
                     const char *value, const char *runRange, const char *documentIndex);

// The Input link (ComponentLink) of the process's Input Component, which
// is made first when missing (chained to the process before it when
// `chained`); null when the process is not in Types.
xercesc::DOMElement *getProcessInputLink(JDFWriteContext *ctx, const char *processName,
                                         bool chained);

// The orientation of a page range: a Part with RunIndex = runRange under
// the PartAmount of that Orientation, in the AmountPool of the process's
// Input link.
void addPartAmountOrientation(JDFWriteContext *ctx, const char *processName,
                              const char *orientation, const char *runRange);

// The reference edge of a finishing process as an Orientation: the job's
// on the Input link of the process's chained Input Component, a page
// range's through addPartAmountOrientation. A document's is not written.
void writeProcessOrientation(JDFWriteContext *ctx, const char *processName, int edge,
                             const char *runRange, const char *documentIndex);

// A Location named `name` in the process's Output Component.
void writeOutputBinLocation(JDFWriteContext *ctx, const char *processName, const char *name);

#endif
