// RecordInfo of the job.
#include "write/record_info_writer.h"

#include <cstdlib>

#include "enums/value_tables.h"
#include "write/attribute_cascade.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "write/object_values.h"
#include "write/page_list.h"
#include "write/resource_getters.h"
#include "zundo_trace.h"

namespace {

struct RecordCountRow {
    const char *attribute;
    const char *jdfName;
};

const RecordCountRow kRecordCountRows[] = {
    {"job-max-pages-per-record", "MaxPagesPerRecord"},
    {"job-number-records", "NRecord"},
    {"job-min-pages-per-record", "MinPagesPerRecord"},
};

const ObjectValueRow kRecordValueRows[] = {
    {"job-unstructure-allowed", "UnstructureAllowed", booleanValues, getRecordInfo},
    {nullptr, nullptr, nullptr, nullptr},
};

void writeRecordInfo(JDFWriteContext *ctx, zundo_int_object_s *job) {
    for (const RecordCountRow &row : kRecordCountRows) {
        FetchedAttribute count(job, row.attribute);
        char text[kNumberTextSize];
        if (count.hasValue())
            writeJDFAttr(ctx, row.jdfName, formatInteger(text, sizeof text, count.firstInt(0)), 0,
                         nullptr, nullptr, getRecordInfo);
    }
    writeObjectValues(ctx, job, kRecordValueRows);
    FetchedAttribute records(job, "job-process-records");
    if (!records.hasValue()) return;
    char *recordIndex = nullptr;
    if (createRangeValues(&recordIndex, records.attribute()) == ZUNDO_OUT_OF_MEMORY)
        traceOutOfMemory("writeRecords");
    else if (recordIndex != nullptr)
        writeJDFAttr(ctx, "RecordIndex", recordIndex, 0, nullptr, nullptr, getRecordInfo);
    std::free(recordIndex);
}

}  // namespace

void writeRecords(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeRecords\n");
    if (objectHasValue(job, "job-max-pages-per-record") &&
        objectHasValue(job, "job-number-records"))
        writeRecordInfo(ctx, job);
    zundo_trace("<< leaving writeRecords\n");
}
