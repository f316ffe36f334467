#include "support/sample_type.h"

#include <cstddef>
#include <cstdlib>
#include <cstring>

#include "catalogue/type_tables.h"
#include "zundo_trace.h"

const char kSampleType[] = "ZUNDO_TEST_SAMPLE";
int sampleObjectsDestroyed = 0;

namespace {

struct SampleData {
    zundo_binary_object_s **blobs;
    zundo_int_object_s **children;
    zundo_rgb_s **colours;
    int count;
    int flag;
    int **levels;
    zundo_modified_s **modifications;
    char **names;
    zundo_time_period_s **periods;
    zundo_range_s **ranges;
    zundo_start_page_s **startPages;
    zundo_date_time_s **times;
    double width;
};

const zundo_attribute_info_s sampleTable[] = {
    {"sample-blobs", offsetof(SampleData, blobs), ZUNDO_KIND_BINARY, 0, 0},
    {"sample-children", offsetof(SampleData, children), ZUNDO_KIND_OBJECT, 0, 0},
    {"sample-colours", offsetof(SampleData, colours), ZUNDO_KIND_RGB, 0, 0},
    {"sample-count", offsetof(SampleData, count), ZUNDO_KIND_INTEGER, 1, 0},
    {"sample-flag", offsetof(SampleData, flag), ZUNDO_KIND_INTEGER, 1, -1},
    {"sample-levels", offsetof(SampleData, levels), ZUNDO_KIND_INTEGER_LIST, 1, 0},
    {"sample-modifications", offsetof(SampleData, modifications), ZUNDO_KIND_MODIFIED, 0, 0},
    {"sample-names", offsetof(SampleData, names), ZUNDO_KIND_STRING, 0, 0},
    {"sample-periods", offsetof(SampleData, periods), ZUNDO_KIND_TIME_PERIOD, 0, 0},
    {"sample-ranges", offsetof(SampleData, ranges), ZUNDO_KIND_RANGE, 0, 0},
    {"sample-start-pages", offsetof(SampleData, startPages), ZUNDO_KIND_START_PAGE, 0, 0},
    {"sample-times", offsetof(SampleData, times), ZUNDO_KIND_DATE_TIME, 0, 0},
    {"sample-width", offsetof(SampleData, width), ZUNDO_KIND_DOUBLE, 1, 999999},
    {nullptr, 0, nullptr, 0, 0},
};
const int sampleRows = sizeof(sampleTable) / sizeof(sampleTable[0]);

zundo_int_attribute_s *sampleGet(void *data, const char *name) {
    return genericGet(sampleTable, sampleRows, data, name);
}

zundo_status_t sampleSet(void *data, zundo_int_attribute_s *attribute) {
    const char *name = getName(attribute);
    zundo_status_t status = initializeAttribute(sampleTable, sampleRows, name, attribute);
    if (status != ZUNDO_OK) return status;
    if (std::strcmp(name, "sample-count") == 0 && hasNextValue(attribute)) {
        int value = *static_cast<int *>(nextValue(attribute));
        resetIterator(attribute);
        if (value < 0) {
            zundo_trace("Attempted to set sample-count to %d.\n", value);
            return ZUNDO_INVALID_ARGUMENT;
        }
    }
    return genericSet(sampleTable, sampleRows, data, name, attribute);
}

void sampleDestroy(zundo_int_object_s *object) {
    if (!kindIs(getType(object), kSampleType)) {
        zundo_trace("passed invalid object to destroySample\n");
        return;
    }
    genericDestroy(sampleTable, object->data);
    std::free(object->data);
    sampleObjectsDestroyed++;
}

zundo_status_t sampleClone(zundo_int_object_s **out, const zundo_int_object_s *source) {
    zundo_int_object_s *copy = newSample();
    if (copy == nullptr) return ZUNDO_OUT_OF_MEMORY;
    zundo_status_t status = genericClone(sampleTable, source, copy);
    if (status != ZUNDO_OK) {
        destroy(copy);
        return status;
    }
    *out = copy;
    return ZUNDO_OK;
}

int sampleCompare(const zundo_int_object_s *a, const zundo_int_object_s *b) {
    return genericCompare(sampleTable, a, b);
}

// The catalogue shell serves one type at a time, which is all a test needs.
const zundo_type_table_s *shellType = nullptr;

zundo_int_attribute_s *shellGet(void *data, const char *name) {
    return genericGet(shellType->table, shellType->rows, data, name);
}

zundo_status_t shellSet(void *data, zundo_int_attribute_s *attribute) {
    const char *name = getName(attribute);
    zundo_status_t status = initializeAttribute(shellType->table, shellType->rows, name, attribute);
    if (status != ZUNDO_OK) return status;
    return genericSet(shellType->table, shellType->rows, data, name, attribute);
}

void shellDestroy(zundo_int_object_s *object) {
    genericDestroy(shellType->table, object->data);
    std::free(object->data);
}

}  // namespace

zundo_int_object_s *newSample() {
    auto *data = static_cast<SampleData *>(std::calloc(1, sizeof(SampleData)));
    zundo_int_object_s *object = nullptr;
    if (data == nullptr || newObject(&object, kSampleType, data) != ZUNDO_OK) {
        std::free(data);
        return nullptr;
    }
    initializeNotSetValues(sampleTable, data);
    object->destroyHook = sampleDestroy;
    object->getHook = sampleGet;
    object->setHook = sampleSet;
    object->cloneHook = sampleClone;
    object->compareHook = sampleCompare;
    return object;
}

zundo_int_object_s *newCatalogueShell(const char *type, size_t recordSize) {
    shellType = findTypeTable(type);
    void *data = std::calloc(1, recordSize);
    zundo_int_object_s *object = nullptr;
    if (shellType == nullptr || data == nullptr || newObject(&object, type, data) != ZUNDO_OK) {
        std::free(data);
        return nullptr;
    }
    initializeNotSetValues(shellType->table, data);
    object->destroyHook = shellDestroy;
    object->getHook = shellGet;
    object->setHook = shellSet;
    return object;
}
