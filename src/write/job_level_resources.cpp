// Job-level resources, in a fixed order of steps.
#include "write/job_level_resources.h"

#include "enums/value_tables.h"
#include "write/attribute_cascade.h"
#include "write/audit_writers.h"
#include "write/digital_printing_writer.h"
#include "write/finishing_writer.h"
#include "write/interpreting_writer.h"
#include "write/layout_writers.h"
#include "write/page_list.h"
#include "write/resource_getters.h"
#include "zundo_trace.h"

namespace {

typedef void (*JobWriter)(JDFWriteContext *ctx, zundo_int_object_s *job);

// A step writes through its writer or its rows of job values; a step with
// neither has no writer in this library yet.
struct JobLevelStep {
    const char *what;
    JobWriter write;
    const ObjectValueRow *rows;
};

const ObjectValueRow kCollateRows[] = {
    {"job-collate", "Collate", jobCollateValues, getDigitalPrintingParams},
    {nullptr, nullptr, nullptr, nullptr},
};
const ObjectValueRow kJobValueRows[] = {
    {"job-page-delivery", "PageDelivery", jobPageDeliveryValues, getDigitalPrintingParams},
    {"job-fuser-setting", "morvellan:FuserSetting", jobFuserSettingValues,
     getDigitalPrintingParams},
    {"job-page-range-imposition", "morvellan:PageRangeImposition", jobPageRangeImpositionValues,
     getLayoutPreparationParams},
    {"job-interface-box-function", "morvellan:InterfaceBoxFunction", interfaceBoxFunctionValues,
     getDigitalPrintingParams},
    {"job-destination-product-oid", "morvellan:ProductOID", nullptr, getDevice},
    {"job-page-order", "PageOrder", pageOrderValues, getLayoutPreparationParams},
    {nullptr, nullptr, nullptr, nullptr},
};

void writeJobCascade(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeAbstractJobDocPageAttributes(ctx, job, nullptr, nullptr);
}

// Their statuses only say whether the last XML operation worked; the
// failure is traced already.
void writeAFPResourcesStep(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeAFPResources(ctx, job);
}
void writeInterpretingParamsStep(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeInterpretingParams(ctx, job);
}

const JobLevelStep kJobLevelSteps[] = {
    {"print parameters of the job", writeJobCascade, nullptr},
    {"created and modified audits", writeJobHistory, nullptr},
    {"collate", nullptr, kCollateRows},
    {"jog offset", writeJogOffset, nullptr},
    {"insert sheets of the job", writeJobInsertSheets, nullptr},
    {"screening", writeScreening, nullptr},
    {"process pages", writeJobProcessPages, nullptr},
    {"delivery, fuser, imposition, interface box, product and page order", nullptr,
     kJobValueRows},
    {"AFP resources", writeAFPResourcesStep, nullptr},
    {"interpreting parameters", writeInterpretingParamsStep, nullptr},
    {"separator and banner sheets", writeSeparatorAndBannerSheets, nullptr},
};

}  // namespace

void writeJobLevelResources(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeJobLevelResources\n");
    for (const JobLevelStep &step : kJobLevelSteps) {
        if (step.write != nullptr) step.write(ctx, job);
        else if (step.rows != nullptr) writeObjectValues(ctx, job, step.rows);
    }
    zundo_trace("<< leaving writeJobLevelResources\n");
}
