// The ticket's own version and the project that made it.
#ifndef ZUNDO_WRITE_TEMPLATE_INFO_H
#define ZUNDO_WRITE_TEMPLATE_INFO_H

#include "write/writer_context.h"

// Writer step: "jt-version" as the root's TemplateVersion; "jt-project-id"
// and "jt-project-version" as AgentName and AgentVersion of the Created
// audit, which is made when no writer made one.
void writeTemplateInfo(JDFWriteContext *ctx, zundo_int_object_s *jobTicket);

#endif
