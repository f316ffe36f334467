// The distinct media a job uses, collected for the writer's Media
// resources. The list references media owned by their objects.
#include <cstdlib>

#include "catalogue/type_names.h"
#include "job/job_objects.h"
#include "zundo_trace.h"

namespace {

struct MediaList {
    zundo_int_object_s **items;
    int count;
};

// Appends `media` unless it is null or an equal media is already listed.
void addMediaToList(MediaList *list, zundo_int_object_s *media) {
    if (media == nullptr) return;
    for (int i = 0; i < list->count; i++)
        if (compareObjects(list->items[i], media) == 0) return;
    auto **grown = static_cast<zundo_int_object_s **>(
        std::realloc(list->items, (list->count + 2) * sizeof(zundo_int_object_s *)));
    if (grown == nullptr) {
        traceOutOfMemory("addMediaToList");
        return;
    }
    grown[list->count++] = media;
    grown[list->count] = nullptr;
    list->items = grown;
}

// The first value of an object attribute, when it has one.
zundo_int_object_s *firstObject(zundo_int_object_s *object, const char *name) {
    if (object == nullptr) return nullptr;
    zundo_int_attribute_s *attribute = get(object, name);
    zundo_int_object_s *first =
        hasNextValue(attribute) ? static_cast<zundo_int_object_s *>(nextValue(attribute)) : nullptr;
    destroyAttribute(attribute);
    return first;
}

// Adds the first `mediaName` of every object held by the job's `listName`.
void addMediaOfEach(MediaList *list, zundo_int_object_s *job, const char *listName,
                    const char *mediaName) {
    zundo_int_attribute_s *holders = get(job, listName);
    while (hasNextValue(holders))
        addMediaToList(list, firstObject(static_cast<zundo_int_object_s *>(nextValue(holders)),
                                         mediaName));
    destroyAttribute(holders);
}

}  // namespace

extern "C" {

zundo_status_t getMedia(zundo_int_object_s *ticket, zundo_int_object_s ***out) {
    if (out == nullptr || !isObjectOfType(ticket, ZUNDO_TYPE_JOB_TICKET))
        return ZUNDO_INVALID_ARGUMENT;
    zundo_int_object_s *job = getJob(ticket);
    if (job == nullptr) return ZUNDO_INVALID_ARGUMENT;
    MediaList list = {static_cast<zundo_int_object_s **>(
                          std::calloc(1, sizeof(zundo_int_object_s *))),
                      0};
    if (list.items == nullptr) {
        traceOutOfMemory("getMedia");
        return ZUNDO_OUT_OF_MEMORY;
    }
    addMediaToList(&list, firstObject(job, "job-media"));
    addMediaToList(&list, firstObject(firstObject(job, "job-binding"), "binding-media"));
    addMediaOfEach(&list, job, "job-insert-sheets", "insert-sheet-media");
    addMediaOfEach(&list, job, "job-separator-sheets", "separator-sheet-media");
    addMediaOfEach(&list, job, "job-banner-sheets", "banner-sheet-media");
    addMediaOfEach(&list, job, "job-page-ranges", "page-range-media");
    *out = list.items;
    return ZUNDO_OK;
}

zundo_status_t freeMediaList(zundo_int_object_s **list) {
    std::free(list);
    return ZUNDO_OK;
}

}  // extern "C"
