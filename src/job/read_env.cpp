// The reader's working area inside the job-ticket record.
#include "job/read_env.h"

#include "catalogue/job_records.h"
#include "catalogue/type_names.h"
#include "job/job_objects.h"

void clearProcessTable(zundo_read_env_s *env) {
    if (env == nullptr) return;
    for (zundo_process_entry_s &entry : env->processes) {
        entry.name = nullptr;
        entry.index = -1;
    }
    env->processCount = 0;
}

zundo_read_env_s *getReadEnv(zundo_int_object_s *ticket) {
    zundo_int_object_s *owner = findOwnerRecord(ticket, ZUNDO_TYPE_JOB_TICKET);
    if (owner == nullptr || owner->data == nullptr) return nullptr;
    return &static_cast<zundo_job_ticket_data_s *>(owner->data)->readEnv;
}
