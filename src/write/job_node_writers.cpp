// Comments, hold state, NodeInfo and authentication of the JDF node.
#include "write/job_node_writers.h"

#include "enums/value_tables.h"
#include "values/value_objects.h"
#include "write/audit_writers.h"
#include "write/comments.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/resource_getters.h"
#include "zundo_trace.h"

namespace {

// Hold actions that go with a held job, and with an active one.
bool holdsBeforePrinting(int action) { return action >= 0 && action <= 2; }
bool printsFirst(int action) { return action == 0 || (action >= 3 && action <= 6); }

// Null where the combination leaves the root's Activation as it is. The
// not-set hold (-1) counts as no hold.
const char *activationFor(const FetchedAttribute &hold, int action) {
    if (!hold.hasValue()) return "Informative";
    int value = hold.firstInt(-1);
    if (value == 1 && holdsBeforePrinting(action)) return "Held";
    if (value == 0 && printsFirst(action)) return "Active";
    return nullptr;
}

void addJobComment(JDFWriteContext *ctx, zundo_int_object_s *job, const char *attribute,
                   const char *name) {
    addComment(ctx->root, FetchedAttribute(job, attribute).firstString(), nullptr, name);
}

}  // namespace

void writeBannerPageText(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeBannerPageText\n");
    addJobComment(ctx, job, "job-banner-page-text", "morvellan:BannerPageText");
    zundo_trace("<< leaving writeBannerPageText\n");
}

void writeJobComment(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeJobComment\n");
    addJobComment(ctx, job, "job-comment", "JobDescription");
    int number = 0;
    forEachValue(job, "job-comments", [ctx, &number](void *text) {
        xercesc::DOMElement *comment =
            addComment(ctx->root, static_cast<const char *>(text), nullptr, "JobDescription");
        char id[kNumberTextSize];
        if (comment != nullptr)
            setAttributeTraced(comment, "ID", formatValueText(id, sizeof id, "CM%i", number));
        ++number;
    });
    zundo_trace("<< leaving writeJobComment\n");
}

void writeJobProcessingInformation(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeJobProcessingInformation\n");
    addJobComment(ctx, job, "job-processing-information", "UserText");
    zundo_trace("<< leaving writeJobProcessingInformation\n");
}

void writeHoldActivation(JDFWriteContext *ctx, zundo_int_object_s *job) {
    const char *activation = activationFor(FetchedAttribute(job, "job-hold"),
                                           FetchedAttribute(job, "job-hold-action").firstInt(0));
    if (activation != nullptr) setAttributeTraced(ctx->root, "Activation", activation);
}

void writeHoldActivationDetails(JDFWriteContext *ctx, zundo_int_object_s *job) {
    int action = FetchedAttribute(job, "job-hold-action").firstInt(0);
    const char *details = action != 0 && objectHasValue(job, "job-hold")
                              ? jdfNameForCode(jobHoldActionValues, action)
                              : nullptr;
    if (details != nullptr) setAttributeTraced(ctx->root, "morvellan:ActivationDetails", details);
}

void writeJobPriority(JDFWriteContext *ctx, zundo_int_object_s *job) {
    FetchedAttribute priority(job, "job-priority");
    xercesc::DOMElement *nodeInfo = priority.hasValue() ? getNodeInfo(ctx) : nullptr;
    char text[kNumberTextSize];
    if (nodeInfo != nullptr)
        setAttributeTraced(nodeInfo, "JobPriority",
                           formatInteger(text, sizeof text, priority.firstInt(0)));
}

void writePrintTimes(JDFWriteContext *ctx, zundo_int_object_s *job) {
    bool after = objectHasValue(job, "job-print-after-time");
    bool before = objectHasValue(job, "job-print-before-time");
    xercesc::DOMElement *nodeInfo = after || before ? getNodeInfo(ctx) : nullptr;
    if (nodeInfo == nullptr) return;
    writeTimeIfPresent(nodeInfo, "FirstStart", job, "job-print-after-time");
    writeTimeIfPresent(nodeInfo, "LastEnd", job, "job-print-before-time");
}

void writeAuthentication(JDFWriteContext *ctx, zundo_int_object_s *job) {
    FetchedAttribute login(job, "job-authentication-login-name");
    FetchedAttribute password(job, "job-authentication-password");
    if (!login.hasValue() && !password.hasValue()) return;
    xercesc::DOMElement *authentication = appendChildTraced(ctx->root, "morvellan:Authentication");
    if (authentication == nullptr) return;
    if (login.hasValue()) setAttributeTraced(authentication, "LoginName", login.firstString());
    if (password.hasValue())
        setAttributeTraced(authentication, "Password", password.firstString());
}
