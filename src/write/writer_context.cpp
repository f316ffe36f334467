// Start and end of the writer context of one write call.
#include "write/writer_context.h"

#include <cstdlib>

#include "zundo_trace.h"

void initializeJDFTemplate(JDFWriteContext *ctx) {
    zundo_trace(">> entering initializeJDFTemplate\n");
    *ctx = JDFWriteContext{};
    for (ProcessEntry &entry : ctx->processes) {
        entry.name = nullptr;
        entry.combinedProcessIndex = -1;
    }
    zundo_trace("<< leaving initializeJDFTemplate\n");
}

void releaseAuditRecords(JDFWriteContext *ctx) {
    for (size_t i = 0; i < ctx->auditCount; ++i) {
        std::free(ctx->audits[i]->name);
        std::free(ctx->audits[i]);
    }
    std::free(ctx->audits);
    ctx->audits = nullptr;
    ctx->auditCount = 0;
}

void releaseWriterContext(JDFWriteContext *ctx) {
    releaseAuditRecords(ctx);
    for (size_t i = 0; i < ctx->mediaReferenceCount; ++i) std::free(ctx->mediaReferences[i]);
    std::free(ctx->mediaReferences);
    ctx->mediaReferences = nullptr;
    ctx->mediaReferenceCount = 0;
    for (int i = 0; i < kProcessSlots; ++i) {
        ctx->outputComponents[i] = nullptr;
        ctx->inputComponents[i] = nullptr;
        ctx->partAmounts[i] = PartAmountPool{};
    }
    ctx->finalProductComponent = nullptr;
    ctx->finalProductLink = nullptr;
    ctx->coverSheetComponent = nullptr;
}
