// LayoutElement resources, at top level or inside RunLists, as the
// documents of the job: file name, format, page counts and container.
#ifndef ZUNDO_READ_LAYOUT_ELEMENT_READER_H
#define ZUNDO_READ_LAYOUT_ELEMENT_READER_H

#include "read/resource_dispatch.h"

// The first LayoutElement of a read fills the job's first document, every
// later one a new document of the job. The pair (ID, or "doc0" without
// one; document) is appended to *layoutElements. ZUNDO_ERROR when the job
// has no document to fill, ZUNDO_OUT_OF_MEMORY when the list cannot grow.
zundo_status_t readLayoutElementResource(xercesc::DOMElement *layoutElement,
                                         zundo_int_object_s *ticket,
                                         LayoutElementPair ***layoutElements, IdElement **fileList);
// The LayoutElement children of a RunList and of its RunList children, in
// document order. The last status other than ZUNDO_OK, else ZUNDO_OK.
zundo_status_t readRunListLayoutElements(xercesc::DOMElement *runList, zundo_int_object_s *ticket,
                                         LayoutElementPair ***layoutElements, IdElement **fileList);
// Separations to discard and the FileSpec's file attributes and container.
zundo_status_t saveLayoutElementToDocument(xercesc::DOMElement *layoutElement,
                                           zundo_int_object_s *document, IdElement **fileList);
// Each Container/FileSpecRef of the FileSpec names a FileSpec of the file
// list that becomes "document-container" (the last one stays). The status
// is that of the last container made.
zundo_status_t readContainerElement(xercesc::DOMElement *fileSpec, zundo_int_object_s *document,
                                    IdElement **fileList);
// A container of the FileSpec's MimeType and URL; ZUNDO_ERROR when it
// cannot be made.
zundo_status_t createContainerObject(zundo_int_object_s **out, xercesc::DOMElement *fileSpec);

#endif
