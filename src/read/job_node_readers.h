// Readers of the JDF node's own children that the driver calls as it meets
// them: Comment and NodeInfo.
#ifndef ZUNDO_READ_JOB_NODE_READERS_H
#define ZUNDO_READ_JOB_NODE_READERS_H

#include "xml/jdf_entries.h"

// A Comment with a Name sets the ticket or job attribute its Name stands
// for. The result is the status of "jt-api-version-from-jt" when that is
// what the Comment sets, ZUNDO_OK otherwise.
//
// Texts that join the job's "job-comments" are added to *jobComments,
// fetched from the job on first use; the caller sets that list once after
// the last Comment (setAndReleaseAttribute), because setting it per Comment
// costs time quadratic in their number.
zundo_status_t readCommentElement(xercesc::DOMElement *comment, zundo_int_object_s *ticket,
                                  zundo_int_attribute_s **jobComments);

// JobPriority, FirstStart and LastEnd of the job. Always ZUNDO_OK.
zundo_status_t readNodeInfoResource(xercesc::DOMElement *nodeInfo, zundo_int_object_s *ticket);

#endif
