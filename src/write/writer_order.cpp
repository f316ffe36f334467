// The order in which the attribute writers run. The order decides where
// each element first appears: pools, comments and other root children are
// appended when first needed.
#include "write/writer_order.h"

#include "write/attribute_cascade.h"
#include "write/audits.h"
#include "write/device_writer.h"
#include "write/digital_printing_writer.h"
#include "write/job_level_resources.h"
#include "write/media_writer.h"
#include "write/named_features.h"
#include "write/one_attribute_writers.h"
#include "write/page_list.h"
#include "write/record_info_writer.h"
#include "write/resource_getters.h"
#include "write/runs.h"
#include "write/template_info.h"

namespace {

// No extension writer is registered; the list ends with null.
const TicketWriter kExtensionWriters[] = {nullptr};

void sortAuditsLast(JDFWriteContext *ctx, zundo_int_object_s *) { sortAuditPool(ctx); }

const WriterStep kWriterOrder[] = {
    {"banner page text comment", kJobInput, nullptr},
    {"job comment and comments", kJobInput, nullptr},
    {"job copies", kJobInput, writeJobCopies},
    {"job processing information", kJobInput, nullptr},
    {"orientation hint", kJobInput, nullptr},
    {"hold activation", kJobInput, nullptr},
    {"hold activation details", kJobInput, nullptr},
    {"customer job name and billing code", kJobInput, nullptr},
    {"contact information", kJobInput, nullptr},
    {"usage counters", kJobInput, nullptr},
    {"ink usages", kJobInput, nullptr},
    {"phase times", kJobInput, nullptr},
    {"destination connector file format", kJobInput, writeConnectorInfo},
    {"destination controller information", kJobInput, writeControllerInfo},
    {"notification audits", kJobInput, nullptr},
    {"notifications", kJobInput, nullptr},
    {"process runs", kJobInput, nullptr},
    {"page cells and number-up", kJobInput, nullptr},
    {"job-level resources", kJobInput, writeJobLevelResources},
    {"page list", kJobInput, writePageList},
    {"runs", kJobInput, writeRuns},
    {"colour control bar", kJobInput, nullptr},
    {"named features", kJobInput, writeNamedFeatures},
    {"records", kJobInput, writeRecords},
    {"default parameter resources", kJobInput, createDefaultParameterResources},
    {"black overprint", kJobInput, nullptr},
    {"binding edge", kJobInput, nullptr},
    {"edge and thin-line enhancement", kJobInput, nullptr},
    {"extensions", kTicketInput, writeExtensions},
    {"documents", kJobInput, writeDocuments},
    {"page ranges", kJobInput, writePageRanges},
    {"default font", kJobInput, writeUseDefaultFont},
    {"output-intent profile use", kJobInput, nullptr},
    {"mirror surface", kJobInput, writeMirrorSurface},
    {"PostScript DSC optimisation", kJobInput, writeUsePSDSCOptimization},
    {"toner limit", kJobInput, nullptr},
    {"spot colour matching", kJobInput, nullptr},
    {"colour profiles", kJobInput, nullptr},
    {"colorant control", kJobInput, nullptr},
    {"maximum densities", kJobInput, nullptr},
    {"calibration type", kJobInput, nullptr},
    {"colour planes", kJobInput, nullptr},
    {"number-up presentation order", kJobInput, nullptr},
    {"number-up gutters", kJobInput, nullptr},
    {"substitute colour table", kJobInput, nullptr},
    {"number-up fit box", kJobInput, nullptr},
    {"rendering intents", kJobInput, nullptr},
    {"black point compensation", kJobInput, nullptr},
    {"RGB grey to black", kJobInput, nullptr},
    {"CMY grey to black", kJobInput, nullptr},
    {"preserve CMY colours", kJobInput, nullptr},
    {"preserve K black", kJobInput, nullptr},
    {"black substitution", kJobInput, nullptr},
    {"proof print", kJobInput, writeProofPrint},
    {"register marks", kJobInput, nullptr},
    {"trim and bleed marks", kJobInput, nullptr},
    {"units of number-up, image shift and trimming values", kJobInput, nullptr},
    {"finishing order and creep", kJobInput, nullptr},
    {"audit media", kJobInput, writeAuditMedia},
    {"double-imposition cell to rotate", kJobInput, nullptr},
    {"anti-aliasing and output resolution", kJobInput, nullptr},
    {"PDF XObject caching", kJobInput, writePDFCacheXObjects},
    {"job priority", kJobInput, nullptr},
    {"print after and before times", kJobInput, nullptr},
    {"printing type", kJobInput, writePrintingType},
    {"authentication", kJobInput, nullptr},
    {"retain", kJobInput, writeRetain},
    {"image resolution", kJobInput, writeImageResolution},
    {"template information", kTicketInput, writeTemplateInfo},
    {"audit order", kJobInput, sortAuditsLast},
};
const int kWriterStepCount = sizeof kWriterOrder / sizeof kWriterOrder[0];

}  // namespace

void runWriters(JDFWriteContext *ctx, zundo_int_object_s *jobTicket, zundo_int_object_s *job) {
    for (int i = 0; i < kWriterStepCount; ++i) {
        const WriterStep &step = kWriterOrder[i];
        if (step.write != nullptr) step.write(ctx, step.input == kTicketInput ? jobTicket : job);
    }
}

void writeExtensions(JDFWriteContext *ctx, zundo_int_object_s *jobTicket) {
    for (const TicketWriter *writer = kExtensionWriters; *writer != nullptr; ++writer)
        (*writer)(ctx, jobTicket);
}
