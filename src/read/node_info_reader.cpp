// The NodeInfo of the JDF node: priority and print window of the job.
#include <cstring>

#include "read/job_node_readers.h"
#include "read/reader_conversions.h"

namespace {

// What the writer puts in place of a missing time: no time at all.
const char kNoTime[] = "0000-00-00T00:00:00+00:00";

void readPrintWindowEnd(xercesc::DOMElement *nodeInfo, const char *jdfName, zundo_int_object_s *job,
                        const char *attribute) {
    ElementAttribute time(nodeInfo, jdfName);
    if (time.value() != nullptr && std::strcmp(time.value(), kNoTime) != 0)
        setDateTimeFromText(job, attribute, time.value());
}

}  // namespace

zundo_status_t readNodeInfoResource(xercesc::DOMElement *nodeInfo, zundo_int_object_s *ticket) {
    zundo_int_object_s *job = getJob(ticket);
    ElementAttribute priority(nodeInfo, "JobPriority");
    if (priority.value() != nullptr) {
        int value = 0;
        if (!convertStringToInt(priority.value(), &value)) value = 0;
        setIntegerAttribute(job, "job-priority", value);
    }
    readPrintWindowEnd(nodeInfo, "FirstStart", job, "job-print-after-time");
    readPrintWindowEnd(nodeInfo, "LastEnd", job, "job-print-before-time");
    return ZUNDO_OK;
}
