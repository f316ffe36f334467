// The order in which the attribute writers run. The order decides where
// each element first appears: pools, comments and other root children are
// appended when first needed.
#include "write/writer_order.h"

#include "write/attribute_cascade.h"
#include "write/audit_writers.h"
#include "write/audits.h"
#include "write/colour_writers.h"
#include "write/customer_info_writer.h"
#include "write/device_writer.h"
#include "write/digital_printing_writer.h"
#include "write/job_level_resources.h"
#include "write/job_node_writers.h"
#include "write/layout_writers.h"
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
    {"banner page text comment", kJobInput, writeBannerPageText},
    {"job comment and comments", kJobInput, writeJobComment},
    {"job copies", kJobInput, writeJobCopies},
    {"job processing information", kJobInput, writeJobProcessingInformation},
    {"orientation hint", kJobInput, writeOrientationHint},
    {"hold activation", kJobInput, writeHoldActivation},
    {"hold activation details", kJobInput, writeHoldActivationDetails},
    {"customer job name and billing code", kJobInput, writeCustomerJobInfo},
    {"contact information", kJobInput, writeContactInfo},
    {"usage counters", kJobInput, writeUsageCounters},
    {"ink usages", kJobInput, writeInkUsages},
    {"phase times", kJobInput, writePhaseTimes},
    {"destination connector file format", kJobInput, writeConnectorInfo},
    {"destination controller information", kJobInput, writeControllerInfo},
    {"notification audits", kJobInput, writeNotificationAudits},
    {"notifications", kJobInput, writeNotifications},
    {"process runs", kJobInput, writeProcessRuns},
    {"page cells and number-up", kJobInput, writePageCells},
    {"job-level resources", kJobInput, writeJobLevelResources},
    {"page list", kJobInput, writePageList},
    {"runs", kJobInput, writeRuns},
    {"colour control bar", kJobInput, writeColorControlBar},
    {"named features", kJobInput, writeNamedFeatures},
    {"records", kJobInput, writeRecords},
    {"default parameter resources", kJobInput, createDefaultParameterResources},
    {"black overprint", kJobInput, writeBlackOverprint},
    {"binding edge", kJobInput, writeBindingEdge},
    {"edge and thin-line enhancement", kJobInput, writeEdgeEnhancement},
    {"extensions", kTicketInput, writeExtensions},
    {"documents", kJobInput, writeDocuments},
    {"page ranges", kJobInput, writePageRanges},
    {"default font", kJobInput, writeUseDefaultFont},
    {"output-intent profile use", kJobInput, writeOutputIntentProfileUse},
    {"mirror surface", kJobInput, writeMirrorSurface},
    {"PostScript DSC optimisation", kJobInput, writeUsePSDSCOptimization},
    {"toner limit", kJobInput, writeTonerLimit},
    {"spot colour matching", kJobInput, writeSpotColorMatching},
    {"colour profiles", kJobInput, writeICCProfile},
    {"colorant control", kJobInput, writeColorantControl},
    {"maximum densities", kJobInput, writeMaximumDensities},
    {"calibration type", kJobInput, writeCalibrationType},
    {"colour planes", kJobInput, writeColorPlanes},
    {"number-up presentation order", kJobInput, writeNumberUpPresentationOrder},
    {"number-up gutters", kJobInput, writeNumberUpGutters},
    {"substitute colour table", kJobInput, writeSubstituteColorTable},
    {"number-up fit box", kJobInput, writeNumberUpFitBox},
    {"rendering intents", kJobInput, writeColorRenderingIntent},
    {"black point compensation", kJobInput, writeBlackPointCompensation},
    {"RGB grey to black", kJobInput, writeRGBGray2Black},
    {"CMY grey to black", kJobInput, writeCMYGray2Black},
    {"preserve CMY colours", kJobInput, writePreserveCMYColors},
    {"preserve K black", kJobInput, writePreserveKBlack},
    {"black substitution", kJobInput, writeBlackSubstitution},
    {"proof print", kJobInput, writeProofPrint},
    {"register marks", kJobInput, writeRegisterMarks},
    {"trim and bleed marks", kJobInput, writeTrimBleedMarks},
    {"units of number-up, image shift and trimming values", kJobInput, writeLayoutUnits},
    {"finishing order and creep", kJobInput, writeFinishingOrderAndCreep},
    {"audit media", kJobInput, writeAuditMedia},
    {"double-imposition cell to rotate", kJobInput, writeDoubleImpositionCellToRotate},
    {"anti-aliasing and output resolution", kJobInput, writeAntiAliasingAndResolution},
    {"PDF XObject caching", kJobInput, writePDFCacheXObjects},
    {"job priority", kJobInput, writeJobPriority},
    {"print after and before times", kJobInput, writePrintTimes},
    {"printing type", kJobInput, writePrintingType},
    {"authentication", kJobInput, writeAuthentication},
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
