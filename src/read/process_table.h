// The processes of the ResourceLinkPool by CombinedProcessIndex, kept in
// the read environment so that link readers can tell which process a link
// feeds.
#ifndef ZUNDO_READ_PROCESS_TABLE_H
#define ZUNDO_READ_PROCESS_TABLE_H

#include "job/read_env.h"
#include "xml/jdf_entries.h"

// Records the process of one ResourceLinkPool child: a finishing or
// printing parameter link names its process; the pair is taken only when
// the link's CombinedProcessIndex converts, otherwise the next named link
// overwrites it. Other links and links beyond the table's capacity are not
// recorded.
void fillProcessTable(zundo_read_env_s *env, const xercesc::DOMElement *link);

// The process paired with `index`, searching up to the first free pair;
// null when there is none.
const char *findProcessName(const zundo_read_env_s *env, int index);

#endif
