// Modified: one entry of a job's modification history. The record owns its
// date-time and its attribute, values included.
#include <cstdlib>
#include <cstring>

#include "values/value_objects.h"
#include "zundo_object.h"
#include "zundo_trace.h"

namespace {

// Replaces a text field with a copy of `text`; a null or empty text clears
// it. False when the copy cannot be made, with the field unchanged.
bool replaceText(char **field, const char *text) {
    char *copy = nullptr;
    if (text != nullptr && text[0] != '\0') {
        size_t size = std::strlen(text) + 1;
        copy = static_cast<char *>(std::malloc(size));
        if (copy == nullptr) return false;
        std::memcpy(copy, text, size);
    }
    std::free(*field);
    *field = copy;
    return true;
}

// destroyAttribute frees strings and integer lists but leaves objects and
// value objects to their owner, which here is the record.
void destroyHeldAttribute(zundo_int_attribute_s *attribute) {
    if (attribute == nullptr) return;
    const char *kind = getValueType(attribute);
    if (isPointerKind(kind) && !kindIs(kind, ZUNDO_KIND_STRING) &&
        !kindIs(kind, ZUNDO_KIND_INTEGER_LIST)) {
        resetIterator(attribute);
        for (int i = 0, count = getNumValues(attribute); i < count; ++i) {
            void *value = nextValue(attribute);
            if (value != nullptr) destroyValueByKind(kind, value);
        }
    }
    destroyAttribute(attribute);
}

bool sameOptionalText(const char *a, const char *b) {
    if (a == nullptr || b == nullptr) return a == b;
    return std::strcmp(a, b) == 0;
}

}  // namespace

extern "C" {

// The date-time passes to the record only on success; on failure the
// caller still owns it.
zundo_status_t newModified(zundo_modified_s **out, zundo_date_time_s *dateTime,
                           const char *modifiedBy) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    zundo_modified_s *modified = allocateValueRecord<zundo_modified_s>();
    if (modified == nullptr || !replaceText(&modified->modifiedBy, modifiedBy)) {
        std::free(modified);
        traceOutOfMemory("newModified");
        return ZUNDO_OUT_OF_MEMORY;
    }
    modified->dateTime = dateTime;
    *out = modified;
    return ZUNDO_OK;
}

zundo_status_t setDateTime(zundo_modified_s *modified, zundo_date_time_s *dateTime) {
    if (modified == nullptr) return ZUNDO_INVALID_ARGUMENT;
    if (modified->dateTime != dateTime) {
        destroyDateTime(modified->dateTime);
        modified->dateTime = dateTime;
    }
    return ZUNDO_OK;
}

zundo_date_time_s *getDateTime(const zundo_modified_s *modified) {
    return modified ? modified->dateTime : nullptr;
}

zundo_status_t setModifiedBy(zundo_modified_s *modified, const char *modifiedBy) {
    if (modified == nullptr) return ZUNDO_INVALID_ARGUMENT;
    return replaceText(&modified->modifiedBy, modifiedBy) ? ZUNDO_OK : ZUNDO_ERROR;
}

const char *getModifiedBy(const zundo_modified_s *modified) {
    return modified ? modified->modifiedBy : nullptr;
}

zundo_status_t setProjectID(zundo_modified_s *modified, const char *projectId) {
    if (modified == nullptr) return ZUNDO_INVALID_ARGUMENT;
    if (!replaceText(&modified->projectId, projectId)) {
        traceOutOfMemory("setProjectID");
        return ZUNDO_OUT_OF_MEMORY;
    }
    return ZUNDO_OK;
}

const char *getProjectID(const zundo_modified_s *modified) {
    return modified ? modified->projectId : nullptr;
}

zundo_status_t setProjectVersion(zundo_modified_s *modified, const char *projectVersion) {
    if (modified == nullptr) return ZUNDO_INVALID_ARGUMENT;
    if (!replaceText(&modified->projectVersion, projectVersion)) {
        traceOutOfMemory("setProjectVersion");
        return ZUNDO_OUT_OF_MEMORY;
    }
    return ZUNDO_OK;
}

const char *getProjectVersion(const zundo_modified_s *modified) {
    return modified ? modified->projectVersion : nullptr;
}

zundo_status_t setModifiedType(zundo_modified_s *modified, int type) {
    if (modified == nullptr) return ZUNDO_INVALID_ARGUMENT;
    modified->type = type;
    return ZUNDO_OK;
}

int getModifiedType(const zundo_modified_s *modified) { return modified ? modified->type : 0; }

zundo_status_t setModifiedAttribute(zundo_modified_s *modified,
                                    zundo_int_attribute_s *attribute) {
    if (modified == nullptr) return ZUNDO_INVALID_ARGUMENT;
    if (modified->attribute != attribute) {
        destroyHeldAttribute(modified->attribute);
        modified->attribute = attribute;
    }
    return ZUNDO_OK;
}

zundo_int_attribute_s *getModifiedAttribute(const zundo_modified_s *modified) {
    return modified ? modified->attribute : nullptr;
}

void destroyModified(zundo_modified_s *modified) {
    if (modified == nullptr) return;
    destroyDateTime(modified->dateTime);
    std::free(modified->modifiedBy);
    std::free(modified->projectId);
    std::free(modified->projectVersion);
    destroyHeldAttribute(modified->attribute);
    std::free(modified);
}

zundo_status_t cloneModified(zundo_modified_s **out, const zundo_modified_s *modified) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (modified == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_modified_s *copy = allocateValueRecord<zundo_modified_s>();
    if (copy == nullptr || !replaceText(&copy->modifiedBy, modified->modifiedBy) ||
        !replaceText(&copy->projectId, modified->projectId) ||
        !replaceText(&copy->projectVersion, modified->projectVersion)) {
        destroyModified(copy);
        traceOutOfMemory("cloneModified");
        return ZUNDO_OUT_OF_MEMORY;
    }
    copy->type = modified->type;
    zundo_status_t status = ZUNDO_OK;
    if (modified->dateTime != nullptr) status = cloneDateTime(&copy->dateTime, modified->dateTime);
    // A partly cloned attribute is still stored, and goes with the copy.
    if (status == ZUNDO_OK && modified->attribute != nullptr)
        status = cloneAttribute(&copy->attribute, modified->attribute);
    if (status != ZUNDO_OK) {
        destroyModified(copy);
        return status;
    }
    *out = copy;
    return ZUNDO_OK;
}

int compareModified(const zundo_modified_s *a, const zundo_modified_s *b) {
    if (a == nullptr || b == nullptr) return a != b;
    if (compareDateTime(a->dateTime, b->dateTime) != 0 || a->type != b->type) return 1;
    if (attributesEqual(a->attribute, b->attribute) != 1) return 1;
    // A missing author matches any author; project texts must both be absent
    // or equal.
    if (a->modifiedBy != nullptr && b->modifiedBy != nullptr &&
        std::strcmp(a->modifiedBy, b->modifiedBy) != 0)
        return 1;
    if (!sameOptionalText(a->projectId, b->projectId) ||
        !sameOptionalText(a->projectVersion, b->projectVersion))
        return 1;
    return 0;
}

}  // extern "C"
