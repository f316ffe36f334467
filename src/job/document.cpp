// A document of a job: its own attributes and the print-parameter block
// behind it.
#include <cstring>

#include "catalogue/job_records.h"
#include "catalogue/type_names.h"
#include "job/abstract_jdp.h"
#include "job/job_objects.h"
#include "job/text_checks.h"
#include "zundo_object_type.h"
#include "zundo_trace.h"

namespace {

const char kHexDigits[] = "0123456789ABCDEFabcdef";

// The checksum messages print the offered text where the value goes.
zundo_status_t checkDocumentText(const char *name, const char *text) {
    if (std::strcmp(name, "document-checksum") == 0) {
        if (std::strlen(text) != 32) {
            zundo_trace("Attempted to set %s to %s, must be \t\t\t\t\t\t\texactly 32 characters.\n",
                        "document-checksum", text);
            return ZUNDO_INVALID_ARGUMENT;
        }
        if (std::strspn(text, kHexDigits) != 32) {
            zundo_trace(
                "Attempted to set %s to %s, must contain \t\t\t\t\t\t\tonly hex characters.\n",
                "document-checksum", text);
            return ZUNDO_INVALID_ARGUMENT;
        }
    } else if (std::strcmp(name, "document-format") == 0 && isBlankText(text)) {
        zundo_trace("Attempted to set %s to empty string or a string that contains only spaces.\n",
                    name);
        return ZUNDO_INVALID_ARGUMENT;
    }
    return ZUNDO_OK;
}

zundo_status_t validateDocument(void *, const char *name, zundo_int_attribute_s *attribute) {
    if (std::strcmp(name, "document-checksum") != 0 && std::strcmp(name, "document-format") != 0)
        return ZUNDO_OK;
    if (!hasNextValue(attribute)) return ZUNDO_OK;
    for (int i = 0; i < attribute->count; i++) {
        const char *text = static_cast<const char *>(valueAt(attribute, i));
        if (text == nullptr) continue;
        zundo_status_t status = checkDocumentText(name, text);
        if (status != ZUNDO_OK) return status;
    }
    return ZUNDO_OK;
}

// Cloned by cloneDocument, which keeps the file name and copies the block.
const zundo_object_type_s kDocumentType = {
    ZUNDO_TYPE_DOCUMENT, "destroyDocument", sizeof(zundo_document_data_s), validateDocument,
    nullptr, nullptr, compareFollowingAbstractJDPs,
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
