// The state one write call shares between the driver and every attribute
// writer: the document being built, the pools, the resources that exist at
// most once per ticket, the process table behind Types, the Components of
// the process chain, the ID counters, the audit records and the media
// references.
#ifndef ZUNDO_WRITE_WRITER_CONTEXT_H
#define ZUNDO_WRITE_WRITER_CONTEXT_H

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>

#include "zundo.h"

XERCES_CPP_NAMESPACE_BEGIN
class DOMDocument;
class DOMElement;
XERCES_CPP_NAMESPACE_END

// Room for every process Types can name, with two slots to spare.
const int kProcessSlots = 19;

struct ProcessEntry {
    const char *name;          // constant text; null for an unused slot
    int combinedProcessIndex;  // -1 when the process is not in Types
};

// Resources written at most once per ticket; each has a cache slot.
enum CachedResource {
    kDigitalPrintingParams,
    kInterpretingParams,
    kLayoutPreparationParams,
    kRenderingParams,
    kColorSpaceConversionParams,
    kColorantControl,
    kScreeningParams,
    kTrappingDetails,
    kStitchingParams,
    kFoldingParams,
    kHoleMakingParams,
    kTrimmingParams,
    kCoverApplicationParams,
    kSpineTapingParams,
    kRingBindingParams,
    kWireCombBindingParams,
    kPrintCondition,
    kRecordInfo,
    kStrippingParams,
    kLayout,
    kFontPolicy,
    kInk,
    kCustomerInfo,
    kNodeInfo,
    kDevice,
    kRunListPages,
    kRunListMarks,
    kRunListDigitalPrinting,
    kCachedResourceCount
};

// An audit element and a copy of its name, kept until the audits are
// sorted into the AuditPool at the end of the write. Records, names and the
// array come from the C allocator.
struct AuditRecord {
    xercesc::DOMElement *element;
    char *name;
};

// One Media resource written; the media object is borrowed from the
// ticket. Records and the array come from the C allocator.
struct MediaReference {
    int number;  // equal to its position in the list
    zundo_int_object_s *media;
    // The DigitalPrintingParams partition holding this media's MediaRef for
    // job-level page ranges; null until made.
    xercesc::DOMElement *dppPartition;
};

// The Input link of a finishing process's Input Component and the
// AmountPool under it that collects the page-range orientations.
struct PartAmountPool {
    xercesc::DOMElement *inputLink;
    xercesc::DOMElement *amountPool;
};

// Created zeroed per write call and discarded at its end; it holds no heap
// memory once releaseWriterContext has run.
struct JDFWriteContext {
    xercesc::DOMDocument *document;
    xercesc::DOMElement *root;

    // Each null until first needed.
    xercesc::DOMElement *auditPool;
    xercesc::DOMElement *resourcePool;
    xercesc::DOMElement *resourceLinkPool;

    xercesc::DOMElement *resources[kCachedResourceCount];
    xercesc::DOMElement *resourceLinks[kCachedResourceCount];
    xercesc::DOMElement *colorSpaceConversionFront;
    xercesc::DOMElement *colorSpaceConversionBack;
    xercesc::DOMElement *imageShift;  // the job-level ImageShift element

    ProcessEntry processes[kProcessSlots];
    int processCount;  // processes in Types

    // Components by CombinedProcessIndex.
    xercesc::DOMElement *outputComponents[kProcessSlots];
    xercesc::DOMElement *inputComponents[kProcessSlots];
    PartAmountPool partAmounts[kProcessSlots];
    xercesc::DOMElement *finalProductComponent;
    xercesc::DOMElement *finalProductLink;
    xercesc::DOMElement *coverSheetComponent;

    // ID counters: each starts at 0 and goes up after each use.
    int componentCounter;
    int runListCounter;
    int usageCounterCounter;
    int pdlResourceAliasCounter;
    int runCounter;
    int markImageCounter;

    AuditRecord **audits;  // grown with growListForAppend
    size_t auditCount;
    xercesc::DOMElement *createdAudit;

    MediaReference **mediaReferences;  // grown with growListForAppend
    size_t mediaReferenceCount;

    // LayoutPreparationParams partitions decided by the page-cell writer.
    bool lppRunIndexPartitions;
    bool lppCellPartitions;
    bool lppFrontSidePartitions;
    bool lppBackSidePartitions;
    // Output bins for unused tabs are in use.
    bool unusedTabBins;
};

// Clears every pool, cache, Component slot, counter and the process table.
void initializeJDFTemplate(JDFWriteContext *ctx);
void releaseAuditRecords(JDFWriteContext *ctx);
// Releases the audit records and media references and clears the
// Component state; the document stays.
void releaseWriterContext(JDFWriteContext *ctx);

#endif
