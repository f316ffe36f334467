// The LayoutElement and FileSpec of each written document, and the FileSpecs
// of the containers the documents come in.
#ifndef ZUNDO_WRITE_LAYOUT_ELEMENTS_H
#define ZUNDO_WRITE_LAYOUT_ELEMENTS_H

#include <cstddef>

#include "write/writer_context.h"

// The containers already written in this write, borrowed from the ticket;
// a container's position is its number ("Container%i"). A null-terminated
// array from the C allocator.
struct ContainerList {
    zundo_int_object_s **containers;
    size_t count;
};

// The number of the document's container, writing its FileSpec when no
// equal container was written before; -1 when the document has none, -2
// when the list cannot grow.
int findContainerObject(JDFWriteContext *ctx, zundo_int_object_s *document,
                        ContainerList *containers);

// The LayoutElement documentId (no link) with the document's FileSpec. A
// null document gives a FileSpec with an empty URL only.
void writeDocumentLayoutElement(JDFWriteContext *ctx, zundo_int_object_s *document,
                                const char *documentId, ContainerList *containers);

#endif
