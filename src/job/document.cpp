// A document of a job: its own attributes and the print-parameter block
// behind it.
#include "catalogue/job_records.h"
#include "catalogue/type_names.h"
#include "job/abstract_jdp.h"
#include "job/job_objects.h"
#include "validation_rules.h"
#include "zundo_object_type.h"

namespace {

// The checksum messages print the offered text where the value goes.
const zundo_rule_s kDocumentRules[] = {
    {{"document-checksum"}, ZUNDO_RULE_LENGTH,
     "Attempted to set %s to %s, must be \t\t\t\t\t\t\texactly 32 characters.\n", 32, 32},
    {{"document-checksum"}, ZUNDO_RULE_ONLY_OF,
     "Attempted to set %s to %s, must contain \t\t\t\t\t\t\tonly hex characters.\n", 0, 0, false,
     "0123456789ABCDEFabcdef"},
    {{"document-format"}, ZUNDO_RULE_NON_BLANK},
    {},
};

// Cloned by cloneDocument, which keeps the file name and copies the block.
const zundo_object_type_s kDocumentType = {
    ZUNDO_TYPE_DOCUMENT, "destroyDocument", sizeof(zundo_document_data_s),
    checkRules<kDocumentRules>, nullptr, nullptr, compareFollowingAbstractJDPs,
};

int compareDocuments(const zundo_int_object_s *a, const zundo_int_object_s *b) {
    if (a == b) return 0;
    if (!isObjectOfType(a, ZUNDO_TYPE_DOCUMENT) || !isObjectOfType(b, ZUNDO_TYPE_DOCUMENT))
        return 1;
    return typeCompare<kDocumentType>(a, b);
}

// The print-parameter block is copied with the document, as with the job.
zundo_status_t cloneDocument(zundo_int_object_s **out, const zundo_int_object_s *source) {
    if (out == nullptr || !isObjectOfType(source, ZUNDO_TYPE_DOCUMENT))
        return ZUNDO_INVALID_ARGUMENT;
    const auto *data = static_cast<const zundo_document_data_s *>(source->data);
    const char *fileName = data->fileName != nullptr ? data->fileName[0] : nullptr;
    zundo_int_object_s *copy = nullptr;
    zundo_status_t status = newDocument(&copy, fileName);
    if (status != ZUNDO_OK) return status;
    status = genericClone(documentAttributes, source, copy);
    if (status == ZUNDO_OK) status = copyFollowingAbstractJDP(copy, source);
    if (status != ZUNDO_OK) {
        destroy(copy);
        return status;
    }
    *out = copy;
    return ZUNDO_OK;
}

}  // namespace

extern "C" {

zundo_status_t newDocument(zundo_int_object_s **out, const char *fileName) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_int_object_s *block = nullptr;
    zundo_status_t status = newAbstractJDP(&block, "document-");
    if (status != ZUNDO_OK) return status;
    zundo_int_object_s *document = nullptr;
    status = newTypedObject<kDocumentType>(&document, "newDocument");
    if (status != ZUNDO_OK) {
        destroy(block);
        return status;
    }
    document->cloneHook = cloneDocument;
    document->compareHook = compareDocuments;
    document->next = block;
    if (fileName != nullptr)
        status = setSingleValue(document, "document-file-name", ZUNDO_KIND_STRING, fileName);
    if (status == ZUNDO_OK) status = setWholeDocumentRange(document, "document-include-pages");
    if (status != ZUNDO_OK) {
        destroy(document);
        return status;
    }
    *out = document;
    return ZUNDO_OK;
}

}  // extern "C"
