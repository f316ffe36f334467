// The job: its own attributes, the print-parameter block behind it and the
// ordered list of documents it owns.
#include <cstdlib>

#include "catalogue/job_records.h"
#include "catalogue/type_names.h"
#include "job/abstract_jdp.h"
#include "job/job_objects.h"
#include "zundo_object_type.h"
#include "zundo_trace.h"

namespace {

void destroyDocuments(void *data) {
    auto *job = static_cast<zundo_job_data_s *>(data);
    for (zundo_int_object_s **document = job->documents; document && *document; document++)
        destroy(*document);
    std::free(job->documents);
    job->documents = nullptr;
}

zundo_status_t newBlankJob(zundo_int_object_s **out) { return newJobNoDocument(out); }

// A clone holds clones of the documents and a copy of the print-parameter
// block, so that it compares equal to its source.
zundo_status_t cloneDocumentsAndBlock(zundo_int_object_s *copy, const zundo_int_object_s *source) {
    const auto *data = static_cast<const zundo_job_data_s *>(source->data);
    zundo_status_t status = ZUNDO_OK;
    for (zundo_int_object_s **document = data->documents;
         status == ZUNDO_OK && document != nullptr && *document != nullptr; document++) {
        zundo_int_object_s *documentCopy = cloneObj(*document);
        status = documentCopy != nullptr ? addDocument(copy, documentCopy) : ZUNDO_ERROR;
        if (status != ZUNDO_OK && documentCopy != nullptr) destroy(documentCopy);
    }
    return status == ZUNDO_OK ? copyFollowingAbstractJDP(copy, source) : status;
}

const zundo_object_type_s kJobType = {
    ZUNDO_TYPE_JOB, "passed invalid object to destroyJob\n", sizeof(zundo_job_data_s),
    validateJobAttribute, newBlankJob, destroyDocuments, compareFollowingAbstractJDPs,
    cloneDocumentsAndBlock,
};

// Builds a job holding `document` (may be null). The document stays the
// caller's when this fails.
zundo_status_t buildJob(zundo_int_object_s **out, zundo_int_object_s *document,
                        const char *operation) {
    zundo_int_object_s *block = nullptr;
    zundo_status_t status = newAbstractJDP(&block, "job-");
    if (status != ZUNDO_OK) return status;
    auto **documents =
        static_cast<zundo_int_object_s **>(std::calloc(2, sizeof(zundo_int_object_s *)));
    if (documents == nullptr) {
        destroy(block);
        traceOutOfMemory(operation);
        return ZUNDO_OUT_OF_MEMORY;
    }
    zundo_int_object_s *job = nullptr;
    status = newTypedObject<kJobType>(&job, "initializeData");
    if (status != ZUNDO_OK) {
        std::free(documents);
        destroy(block);
        return status;
    }
    auto *data = static_cast<zundo_job_data_s *>(job->data);
    data->copies = 1;
    data->documents = documents;
    job->next = block;
    documents[0] = document;
    status = setWholeDocumentRange(job, "job-include-pages");
    if (status != ZUNDO_OK) {
        documents[0] = nullptr;
        destroy(job);
        return status;
    }
    *out = job;
    return ZUNDO_OK;
}

}  // namespace

extern "C" {

zundo_status_t newJob(zundo_int_object_s **out, zundo_int_object_s *document) {
    if (out == nullptr || !isObjectOfType(document, ZUNDO_TYPE_DOCUMENT))
        return ZUNDO_INVALID_ARGUMENT;
    return buildJob(out, document, "newJob");
}

zundo_status_t newJobNoDocument(zundo_int_object_s **out) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    return buildJob(out, nullptr, "newJobNoDocument");
}

zundo_status_t addDocument(zundo_int_object_s *job, zundo_int_object_s *document) {
    if (!isObjectOfType(job, ZUNDO_TYPE_JOB) || !isObjectOfType(document, ZUNDO_TYPE_DOCUMENT))
        return ZUNDO_INVALID_ARGUMENT;
    zundo_int_object_s *owner = findOwnerRecord(job, ZUNDO_TYPE_JOB);
    auto *data = owner != nullptr ? static_cast<zundo_job_data_s *>(owner->data) : nullptr;
    if (data == nullptr || data->documents == nullptr) return ZUNDO_ERROR;
    // A document held twice would be destroyed twice with the job.
    int count = 0;
    for (; data->documents[count] != nullptr; count++)
        if (data->documents[count] == document) return ZUNDO_INVALID_ARGUMENT;
    auto **grown = static_cast<zundo_int_object_s **>(
        std::realloc(data->documents, (count + 2) * sizeof(zundo_int_object_s *)));
    if (grown == nullptr) {
        traceOutOfMemory("addDocument");
        return ZUNDO_OUT_OF_MEMORY;
    }
    grown[count] = document;
    grown[count + 1] = nullptr;
    data->documents = grown;
    return ZUNDO_OK;
}

zundo_int_object_s **getDocuments(zundo_int_object_s *job) {
    if (!isObjectOfType(job, ZUNDO_TYPE_JOB)) {
        zundo_trace("passed non-job object to getDocuments");
        return nullptr;
    }
    zundo_int_object_s *owner = findOwnerRecord(job, ZUNDO_TYPE_JOB);
    if (owner == nullptr || owner->data == nullptr) {
        zundo_trace("no documents found for job in getDocuments\n");
        return nullptr;
    }
    return static_cast<zundo_job_data_s *>(owner->data)->documents;
}

int compareJobs(const zundo_int_object_s *a, const zundo_int_object_s *b) {
    return typeCompare<kJobType>(a, b);
}

}  // extern "C"
