// The resources written once for the job as a whole: the cascade of its
// print parameters and its job-wide processing values.
#ifndef ZUNDO_WRITE_JOB_LEVEL_RESOURCES_H
#define ZUNDO_WRITE_JOB_LEVEL_RESOURCES_H

#include "write/writer_context.h"

// Writer step: runs after the page cells, so that the cascade finds their
// partitions.
void writeJobLevelResources(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
