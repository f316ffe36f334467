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

zundo_status_t newBlankDocument(zundo_int_object_s **out) { return newDocument(out, nullptr); }

// A clone carries a copy of its source's block, so that it compares equal
// to its source.
const zundo_object_type_s kDocumentType = {
    ZUNDO_TYPE_DOCUMENT, "passed invalid object to destroyDocument\n",
    sizeof(zundo_document_data_s), checkRules<kDocumentRules>, newBlankDocument, nullptr,
    compareFollowingAbstractJDPs, copyFollowingAbstractJDP,
};

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
