// What the written JDF node itself says about the job: its comments, its
// hold state (Activation), its NodeInfo (priority and print window) and
// the credentials of its submitter.
#ifndef ZUNDO_WRITE_JOB_NODE_WRITERS_H
#define ZUNDO_WRITE_JOB_NODE_WRITERS_H

#include "write/writer_context.h"

// Writer steps, each for the job.
// Comment "morvellan:BannerPageText".
void writeBannerPageText(JDFWriteContext *ctx, zundo_int_object_s *job);
// "JobDescription" Comments: the job's comment, then its comments with IDs
// "CM0", "CM1" ...
void writeJobComment(JDFWriteContext *ctx, zundo_int_object_s *job);
// Comment "UserText".
void writeJobProcessingInformation(JDFWriteContext *ctx, zundo_int_object_s *job);
// Activation of the root from "job-hold" and "job-hold-action".
void writeHoldActivation(JDFWriteContext *ctx, zundo_int_object_s *job);
// morvellan:ActivationDetails of the root: the hold action of a held or
// active job.
void writeHoldActivationDetails(JDFWriteContext *ctx, zundo_int_object_s *job);
// JobPriority of NodeInfo.
void writeJobPriority(JDFWriteContext *ctx, zundo_int_object_s *job);
// FirstStart and LastEnd of NodeInfo.
void writePrintTimes(JDFWriteContext *ctx, zundo_int_object_s *job);
// A morvellan:Authentication child of the root.
void writeAuthentication(JDFWriteContext *ctx, zundo_int_object_s *job);

#endif
