// Template version and project of the written ticket.
#include "write/template_info.h"

#include "write/audits.h"
#include "write/jdf_attr.h"
#include "write/object_values.h"

void writeTemplateInfo(JDFWriteContext *ctx, zundo_int_object_s *jobTicket) {
    FetchedAttribute version(jobTicket, "jt-version");
    if (version.hasValue()) setAttributeTraced(ctx->root, "TemplateVersion", version.firstString());
    FetchedAttribute projectId(jobTicket, "jt-project-id");
    FetchedAttribute projectVersion(jobTicket, "jt-project-version");
    if (!projectId.hasValue() && !projectVersion.hasValue()) return;
    if (ctx->createdAudit == nullptr) {
        AuditPoolElementRecord record = {"Created", nullptr};
        if (addAuditPoolElement(ctx, &record) != ZUNDO_OK) return;
        ctx->createdAudit = record.element;
        // Unlike the placeholder of other audits, this one has a minus offset.
        setAttributeTraced(ctx->createdAudit, "TimeStamp", "0000-00-00T00:00:00-00:00");
    }
    if (projectId.hasValue())
        setAttributeTraced(ctx->createdAudit, "AgentName", projectId.firstString());
    if (projectVersion.hasValue())
        setAttributeTraced(ctx->createdAudit, "AgentVersion", projectVersion.firstString());
}
