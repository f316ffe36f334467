// The job's creation and the changes made to it since: Created, Modified
// and Deleted audits.
#include <cstring>
#include <new>
#include <string>

#include "enums/value_tables.h"
#include "write/audit_writers.h"
#include "write/jdf_attr.h"
#include "write/number_format.h"
#include "zundo_object.h"
#include "zundo_trace.h"

namespace {

// Types of a modification record.
const int kCreated = 1;
const int kDeleted = 2;
const int kModified = 3;

// Attributes whose XPath quotes their text.
const char *const kQuotedTexts[] = {
    "job-created-by", "job-name",    "notification-comment", "notification-language",
    "job-comment",    "job-processing-information",
};

// Attributes whose XPath quotes their code's JDF spelling.
struct QuotedCode {
    const char *attribute;
    const zundo_enum_pair_s *values;
};
const QuotedCode kQuotedCodes[] = {
    {"job-collate", jobCollateValues},
    {"job-delivery-method", deliveryMethodValues},
    {"job-page-delivery", jobPageDeliveryValues},
    {"job-page-rotation", pageRotationValues},
    {"job-sides", sidesValues},
    {"job-hold-action", jobHoldActionValues},
};

bool same(const char *a, const char *b) { return std::strcmp(a, b) == 0; }

const char *holdSpelling(int hold) {
    switch (hold) {
    case 1: return "Held";
    case 0: return "Active";
    case -1: return "Informative";
    default: return nullptr;
    }
}

// The value the XPath gives its attribute, or null when the path stands
// alone (attributes the path alone names, values without a spelling).
const char *xpathValue(const zundo_int_attribute_s *attribute, char *number, size_t size) {
    const char *name = getName(attribute);
    const char *kind = getValueType(attribute);
    const void *first = valueAt(attribute, 0);
    for (const char *text : kQuotedTexts)
        if (same(text, name))
            return kindIs(kind, ZUNDO_KIND_STRING) ? static_cast<const char *>(first) : nullptr;
    if (!kindIs(kind, ZUNDO_KIND_INTEGER)) return nullptr;
    int value = *static_cast<const int *>(first);
    for (const QuotedCode &row : kQuotedCodes)
        if (same(row.attribute, name)) return jdfNameForCode(row.values, value);
    if (same(name, "job-copies")) return value >= 0 ? formatInteger(number, size, value) : nullptr;
    if (same(name, "job-hold")) return holdSpelling(value);
    return nullptr;
}

// Only attributes that the path table knows get an XPath.
void writeXPath(xercesc::DOMElement *audit, const zundo_modified_s *modified) {
    const zundo_int_attribute_s *attribute = getModifiedAttribute(modified);
    if (attribute == nullptr || getNumValues(attribute) == 0) return;
    const char *name = getName(attribute);
    // The lookup hands back the name itself when it has no path.
    const char *path = getJDFPathForAttribute(name);
    if (path == nullptr || same(path, name)) return;
    char number[kNumberTextSize];
    const char *value = xpathValue(attribute, number, sizeof number);
    if (value == nullptr) {
        setAttributeTraced(audit, "XPath", path);
        return;
    }
    try {
        setAttributeTraced(audit, "XPath", (std::string(path) + "=\"" + value + "\"").c_str());
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("writeJobModified");
    }
}

// Who made the change, when, and with which program. Control characters
// in the texts are encoded by the attribute setter when encoding is on.
void writeModificationAudit(xercesc::DOMElement *audit, const zundo_modified_s *modified) {
    const char *author = getModifiedBy(modified);
    xercesc::DOMElement *employee =
        author != nullptr && author[0] != '\0' ? appendChildTraced(audit, "Employee") : nullptr;
    if (employee != nullptr) setAttributeTraced(employee, "PersonalID", author);
    char time[ZUNDO_DATE_TIME_TEXT_SIZE];
    const zundo_date_time_s *dateTime = getDateTime(modified);
    setAttributeTraced(audit, "TimeStamp",
                       dateTime != nullptr ? toStringDateTime(time, dateTime) : kMissingTimeStamp);
    if (const char *project = getProjectID(modified))
        setAttributeTraced(audit, "AgentName", project);
    if (const char *version = getProjectVersion(modified))
        setAttributeTraced(audit, "AgentVersion", version);
}

const zundo_modified_s *firstCreation(zundo_int_object_s *job) {
    const zundo_modified_s *creation = nullptr;
    forEachValue(job, "job-modifications", [&creation](void *value) {
        auto *modified = static_cast<const zundo_modified_s *>(value);
        if (creation == nullptr && getModifiedType(modified) == kCreated) creation = modified;
    });
    return creation;
}

}  // namespace

void writeJobCreated(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeJobCreated\n");
    FetchedAttribute createdBy(job, "job-created-by");
    if (createdBy.hasValue() || objectHasValue(job, "job-create-date-time")) {
        if (ctx->createdAudit == nullptr) ctx->createdAudit = newAudit(ctx, "Created");
        xercesc::DOMElement *audit = ctx->createdAudit;
        if (audit != nullptr) {
            xercesc::DOMElement *employee =
                createdBy.hasValue() ? appendChildTraced(audit, "Employee") : nullptr;
            if (employee != nullptr)
                setAttributeTraced(employee, "PersonalID", createdBy.firstString());
            writeTimeOrPlaceholder(audit, "TimeStamp", job, "job-create-date-time");
        }
    } else if (ctx->createdAudit == nullptr) {
        const zundo_modified_s *creation = firstCreation(job);
        xercesc::DOMElement *audit = creation != nullptr ? newAudit(ctx, "Created") : nullptr;
        if (audit != nullptr) {
            ctx->createdAudit = audit;
            writeModificationAudit(audit, creation);
        }
    }
    zundo_trace("<< leaving writeJobCreated\n");
}

// Types 0 and 1 have no audit of their own here, nor has any type
// beyond 3.
void writeJobModified(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeJobModified\n");
    forEachValue(job, "job-modifications", [ctx](void *value) {
        auto *modified = static_cast<const zundo_modified_s *>(value);
        int type = getModifiedType(modified);
        if (type != kModified && type != kDeleted) return;
        xercesc::DOMElement *audit = newAudit(ctx, type == kModified ? "Modified" : "Deleted");
        if (audit == nullptr) return;
        writeModificationAudit(audit, modified);
        writeXPath(audit, modified);
    });
    zundo_trace("<< leaving writeJobModified\n");
}

void writeJobHistory(JDFWriteContext *ctx, zundo_int_object_s *job) {
    writeJobCreated(ctx, job);
    writeJobModified(ctx, job);
}
