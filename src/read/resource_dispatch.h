// Who reads what: the tables that hand each resource of the ResourcePool,
// the JDF node's AuditPool and each link of the ResourceLinkPool to its
// reader by element name, and the lists the readers of one read share.
//
// A name without a row, and a row whose reader is null, are skipped alike.
#ifndef ZUNDO_READ_RESOURCE_DISPATCH_H
#define ZUNDO_READ_RESOURCE_DISPATCH_H

#include <cstddef>

#include "read/reader_conversions.h"
#include "xml/jdf_lists.h"

// One LayoutElement read: its ID and the document made from it.
struct LayoutElementPair {
    char *id;                      // owned (new[])
    zundo_int_object_s *document;  // owned by the job
};

// Frees a null-terminated pair list (null is the empty list); the
// documents stay with their job.
void freeLayoutElementList(LayoutElementPair **list);

// What the readers of one job ticket share. Empty lists are null. The
// media list lives from before the ResourcePool until the AuditPool has
// been read; the file and layout-element lists live while the
// ResourcePool is read.
struct ResourceReadContext {
    zundo_int_object_s *ticket;
    IdElement **mediaList;
    IdElement **fileList;
    LayoutElementPair **layoutElements;
    // The job's "job-usage-counters" while the ResourcePool is read; one
    // set after the passes, however many UsageCounters there are.
    ListAppender *usageCounters;
};

// name is the element's name as written ("CoverApplicationParams").
typedef zundo_status_t (*ResourceReader)(xercesc::DOMElement *resource, const char *name,
                                         ResourceReadContext *context);

struct ResourceReaderRow {
    const char *name;
    ResourceReader reader;
    bool firstOfPoolOnly;  // later elements of the same name are not read
};

typedef zundo_status_t (*LinkReader)(xercesc::DOMElement *link, zundo_int_object_s *ticket);

struct LinkReaderRow {
    const char *name;
    LinkReader reader;
};

// The ResourcePool is read in four passes over its children, each with its
// own table: FileSpecs; layout elements, run lists and media; colour;
// everything else. Every table is sorted by name in byte order.
extern const ResourceReaderRow kFileSpecPassReaders[];
extern const size_t kFileSpecPassReaderCount;
extern const ResourceReaderRow kLayoutPassReaders[];
extern const size_t kLayoutPassReaderCount;
extern const ResourceReaderRow kColourPassReaders[];
extern const size_t kColourPassReaderCount;
extern const ResourceReaderRow kParameterPassReaders[];
extern const size_t kParameterPassReaderCount;
// The JDF node's pools read after the ResourcePool (the AuditPool).
extern const ResourceReaderRow kNodePoolReaders[];
extern const size_t kNodePoolReaderCount;
// Links of the ResourceLinkPool.
extern const LinkReaderRow kLinkReaders[];
extern const size_t kLinkReaderCount;

// The row of `name`, or null.
const ResourceReaderRow *findResourceReaderRow(const ResourceReaderRow *table, size_t rows,
                                               const char *name);
const LinkReaderRow *findLinkReaderRow(const LinkReaderRow *table, size_t rows, const char *name);

// Hands every element of the list, in order, to its reader in the table.
// The readers' results are not used: a resource that cannot be read is
// skipped.
void runResourcePass(ElementEntry *const *resources, const ResourceReaderRow *table, size_t rows,
                     ResourceReadContext *context);

#endif
