// The reader's working area, kept inside the job-ticket record for the
// duration of a read: the media a Component named before any binding
// existed, and the processes of the ResourceLinkPool with their
// CombinedProcessIndex.
#ifndef ZUNDO_READ_ENV_H
#define ZUNDO_READ_ENV_H

#include "zundo_object.h"

enum { ZUNDO_READ_ENV_PROCESSES = 50 };

struct zundo_process_entry_s {
    const char *name;  // constant process name ("Stitching"), null when free
    int index;         // CombinedProcessIndex, -1 when free
};

struct zundo_read_env_s {
    // Owned until a binding takes it (the taker sets this back to null);
    // destroyed with the ticket otherwise.
    zundo_int_object_s *pendingBindingMedia;
    zundo_process_entry_s processes[ZUNDO_READ_ENV_PROCESSES];
    int processCount;
};

// Every pair free: no name, index -1; count 0.
void clearProcessTable(zundo_read_env_s *env);

// The read environment of the ticket record in `ticket`'s chain, or null
// when the chain holds no job-ticket record.
zundo_read_env_s *getReadEnv(zundo_int_object_s *ticket);

#endif
