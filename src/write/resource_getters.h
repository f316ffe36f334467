// The pools, resources and Components of the ticket being written. Each
// getter creates its element on first use (resource and link together, in
// pool order) and hands out the cached element afterwards, so writers never
// search the document. A getter returns null when the element cannot be
// made; the failure is traced and the next call tries again.
#ifndef ZUNDO_WRITE_RESOURCE_GETTERS_H
#define ZUNDO_WRITE_RESOURCE_GETTERS_H

#include "write/writer_context.h"

// Appended to the root on first use.
xercesc::DOMElement *getAuditPool(JDFWriteContext *ctx);
xercesc::DOMElement *getResourcePool(JDFWriteContext *ctx);
xercesc::DOMElement *getResourceLinkPool(JDFWriteContext *ctx);

// Parameter resources linked as "Input" to the process that consumes them.
xercesc::DOMElement *getDigitalPrintingParams(JDFWriteContext *ctx);
xercesc::DOMElement *getInterpretingParams(JDFWriteContext *ctx);
xercesc::DOMElement *getLayoutPreparationParams(JDFWriteContext *ctx);
xercesc::DOMElement *getRenderingParams(JDFWriteContext *ctx);
xercesc::DOMElement *getColorSpaceConversionParams(JDFWriteContext *ctx);
xercesc::DOMElement *getColorantControl(JDFWriteContext *ctx);
xercesc::DOMElement *getScreeningParams(JDFWriteContext *ctx);
xercesc::DOMElement *getTrappingDetails(JDFWriteContext *ctx);
xercesc::DOMElement *getStitchingParams(JDFWriteContext *ctx);
xercesc::DOMElement *getFoldingParams(JDFWriteContext *ctx);
xercesc::DOMElement *getHoleMakingParams(JDFWriteContext *ctx);
xercesc::DOMElement *getTrimmingParams(JDFWriteContext *ctx);
xercesc::DOMElement *getCoverApplicationParams(JDFWriteContext *ctx);
xercesc::DOMElement *getSpineTapingParams(JDFWriteContext *ctx);
xercesc::DOMElement *getRingBindingParams(JDFWriteContext *ctx);
xercesc::DOMElement *getWireCombBindingParams(JDFWriteContext *ctx);
xercesc::DOMElement *getPrintCondition(JDFWriteContext *ctx);
xercesc::DOMElement *getRecordInfo(JDFWriteContext *ctx);       // morvellan:RecordInfo
xercesc::DOMElement *getStrippingParams(JDFWriteContext *ctx);  // morvellan:StrippingParams
xercesc::DOMElement *getLayout(JDFWriteContext *ctx);
xercesc::DOMElement *getFontPolicy(JDFWriteContext *ctx);
xercesc::DOMElement *getInk(JDFWriteContext *ctx);
// Linked without a CombinedProcessIndex.
xercesc::DOMElement *getCustomerInfo(JDFWriteContext *ctx);
xercesc::DOMElement *getNodeInfo(JDFWriteContext *ctx);
xercesc::DOMElement *getDevice(JDFWriteContext *ctx);
// The three RunLists take their IDs ("RL%i") from the RunList counter in
// the order they are first asked for.
xercesc::DOMElement *getRunListPages(JDFWriteContext *ctx);
xercesc::DOMElement *getRunListPagesLink(JDFWriteContext *ctx);
xercesc::DOMElement *getRunListMarks(JDFWriteContext *ctx);
xercesc::DOMElement *getRunListDigitalPrinting(JDFWriteContext *ctx);
// A new resource on every call ("PRA%d", "UC%d").
xercesc::DOMElement *getPDLResourceAlias(JDFWriteContext *ctx);
xercesc::DOMElement *getUsageCounter(JDFWriteContext *ctx);

// Writer step: the three parameter resources every ticket has, made even
// when no attribute asks for them.
void createDefaultParameterResources(JDFWriteContext *ctx, zundo_int_object_s *job);

// Components of the process chain ("C%i", Class "Quantity"). The process
// getters give null for a process that is not in Types. The Output
// Component of the last process is the final product.
xercesc::DOMElement *getProcessOutputComponent(JDFWriteContext *ctx, const char *processName);
// The Input Component of a process; shared with getChainedInputComponent,
// whichever makes it first.
xercesc::DOMElement *getProcessInputComponent(JDFWriteContext *ctx, const char *processName);
// The Input Component of a process, also linked as "Output" of the process
// before it.
xercesc::DOMElement *getChainedInputComponent(JDFWriteContext *ctx, const char *processName);
// The Output link (ComponentLink) of the final product, which carries the
// amounts.
xercesc::DOMElement *getFinalProductComponent(JDFWriteContext *ctx);
xercesc::DOMElement *getDigitalPrintingOutputComponent(JDFWriteContext *ctx);
xercesc::DOMElement *getCoverSheetComponent(JDFWriteContext *ctx);

#endif
