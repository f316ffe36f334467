// The job-ticket info: the root of the tree, owner of the job, holder of
// the "jt-" attributes and of the reader's working area.
#include <cstdlib>
#include <cstring>

#include "catalogue/job_records.h"
#include "catalogue/type_names.h"
#include "job/job_objects.h"
#include "validation_rules.h"
#include "zundo_object_type.h"
#include "zundo_trace.h"

namespace {

const char kNodeIdText[] =
    "%s must be a string that contains no space or colon (':') characters and "
    "\t\t\t\t\t\t\tstarts with a letter, or underscore ('_').\n";

const zundo_rule_s kTicketRules[] = {
    {{"jt-jdf-node-id"}, ZUNDO_RULE_NO_NULLS, "%s cannot be NULL\n"},
    {{"jt-jdf-node-id"}, ZUNDO_RULE_FIRST_OF, kNodeIdText, 0, 0, false,
     "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_"},
    {{"jt-jdf-node-id"}, ZUNDO_RULE_NONE_OF, kNodeIdText, 0, 0, false, " :"},
    {{"jt-type"}, ZUNDO_RULE_NON_BLANK},
    {},
};

zundo_status_t validateTicket(void *, const char *name, zundo_int_attribute_s *attribute) {
    // Written by the constructor only.
    if (std::strcmp(name, "jt-syntax-version") == 0 || std::strcmp(name, "jt-api-version") == 0)
        return ZUNDO_NOT_FOUND;
    return applyRules(kTicketRules, name, attribute);
}

// Bypasses the validator, which refuses these names.
zundo_status_t storeDirectly(void *data, const char *name, const char *text) {
    zundo_int_attribute_s *attribute = nullptr;
    zundo_status_t status = newAttribute(&attribute, name, ZUNDO_KIND_STRING, text);
    if (status != ZUNDO_OK) return status;
    status = genericSet(jobTicketAttributes, jobTicketAttributeRows, data, name, attribute);
    destroyAttribute(attribute);
    return status;
}

// The job goes with the ticket, and so does a pending binding media that no
// binding took.
void releaseJobAndPendingMedia(void *record) {
    auto *data = static_cast<zundo_job_ticket_data_s *>(record);
    if (data->job != nullptr) destroy(data->job);
    if (data->readEnv.pendingBindingMedia != nullptr) destroy(data->readEnv.pendingBindingMedia);
}

// A ticket made around a new empty job, for clone to fill.
zundo_status_t newBlankTicket(zundo_int_object_s **out) {
    zundo_int_object_s *job = nullptr;
    zundo_status_t status = newJobNoDocument(&job);
    if (status != ZUNDO_OK) return status;
    status = newJobTicketInfoFromJob(out, job);
    if (status != ZUNDO_OK) destroy(job);
    return status;
}

// Two tickets must not share a job (each destroys its own), so the clone
// gets a clone of the source's job in place of its empty one.
zundo_status_t cloneJobOfTicket(zundo_int_object_s *copy, const zundo_int_object_s *source) {
    zundo_int_object_s *job =
        cloneObj(static_cast<const zundo_job_ticket_data_s *>(source->data)->job);
    if (job == nullptr) return ZUNDO_ERROR;
    auto *data = static_cast<zundo_job_ticket_data_s *>(copy->data);
    destroy(data->job);
    data->job = job;
    return ZUNDO_OK;
}

const zundo_object_type_s kTicketType = {
    ZUNDO_TYPE_JOB_TICKET, "invalid object passed to destroyJobTicketInfo\n",
    sizeof(zundo_job_ticket_data_s), validateTicket, newBlankTicket, releaseJobAndPendingMedia,
    nullptr, cloneJobOfTicket,
};

}  // namespace

extern "C" {

zundo_status_t newJobTicketInfoFromJob(zundo_int_object_s **out, zundo_int_object_s *job) {
    if (out == nullptr || !isObjectOfType(job, ZUNDO_TYPE_JOB)) return ZUNDO_INVALID_ARGUMENT;
    zundo_int_object_s *ticket = nullptr;
    zundo_status_t status = newTypedObject<kTicketType>(&ticket, "newJobTicketInfoFromJob");
    if (status != ZUNDO_OK) return status;
    auto *data = static_cast<zundo_job_ticket_data_s *>(ticket->data);
    clearProcessTable(&data->readEnv);
    status = storeDirectly(data, "jt-syntax-version", "1.4");
    if (status == ZUNDO_OK)
        status = storeDirectly(data, "jt-api-version", getZUNDOCurrentVersion());
    if (status == ZUNDO_OK)
        status = setSingleValue(ticket, "jt-charset", ZUNDO_KIND_STRING, "UTF-8");
    if (status == ZUNDO_OK) status = setSingleValue(ticket, "jt-type", ZUNDO_KIND_STRING, "JDF");
    if (status != ZUNDO_OK) {
        destroy(ticket);  // the job is not yet stored and stays the caller's
        return status;
    }
    data->job = job;
    *out = ticket;
    return ZUNDO_OK;
}

zundo_int_object_s *getJob(zundo_int_object_s *ticket) {
    if (!isObjectOfType(ticket, ZUNDO_TYPE_JOB_TICKET)) {
        zundo_trace("passed non-job ticket info object to getJob");
        return nullptr;
    }
    zundo_int_object_s *owner = findOwnerRecord(ticket, ZUNDO_TYPE_JOB_TICKET);
    if (owner == nullptr || owner->data == nullptr) {
        zundo_trace("no job found for job ticket info in getJob\n");
        return nullptr;
    }
    return static_cast<zundo_job_ticket_data_s *>(owner->data)->job;
}

int compareJobTicketInfos(const zundo_int_object_s *a, const zundo_int_object_s *b) {
    return typeCompare<kTicketType>(a, b);
}

}  // extern "C"
