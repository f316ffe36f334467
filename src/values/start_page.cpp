// StartPage: where a document part starts, as a page, a sheet side and a
// description code.
#include <cstdlib>

#include "values/value_objects.h"
#include "zundo_trace.h"

extern "C" {

zundo_status_t newStartPage(zundo_start_page_s **out, int page, int sheetSide) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (sheetSide == 0) return ZUNDO_INVALID_ARGUMENT;
    zundo_start_page_s *startPage = allocateValueRecord<zundo_start_page_s>();
    if (startPage == nullptr) {
        traceOutOfMemory("newStartPage");
        return ZUNDO_OUT_OF_MEMORY;
    }
    startPage->page = page;
    startPage->sheetSide = sheetSide;
    *out = startPage;
    return ZUNDO_OK;
}

zundo_status_t setPage(zundo_start_page_s *startPage, int page) {
    if (startPage == nullptr) return ZUNDO_INVALID_ARGUMENT;
    startPage->page = page;
    return ZUNDO_OK;
}

zundo_status_t setSheetSide(zundo_start_page_s *startPage, int sheetSide) {
    if (startPage == nullptr || sheetSide == 0) return ZUNDO_INVALID_ARGUMENT;
    startPage->sheetSide = sheetSide;
    return ZUNDO_OK;
}

zundo_status_t setDescription(zundo_start_page_s *startPage, int description) {
    if (startPage == nullptr) return ZUNDO_INVALID_ARGUMENT;
    startPage->description = description;
    return ZUNDO_OK;
}

int getPage(const zundo_start_page_s *startPage) { return startPage ? startPage->page : 0; }
int getSheetSide(const zundo_start_page_s *startPage) {
    return startPage ? startPage->sheetSide : 0;
}
int getDescription(const zundo_start_page_s *startPage) {
    return startPage ? startPage->description : 0;
}

void destroyStartPage(zundo_start_page_s *startPage) { std::free(startPage); }

zundo_status_t cloneStartPage(zundo_start_page_s **out, const zundo_start_page_s *startPage) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    if (startPage == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_start_page_s *copy = allocateValueRecord<zundo_start_page_s>();
    if (copy == nullptr) {
        traceOutOfMemory("cloneStartPage");
        return ZUNDO_OUT_OF_MEMORY;
    }
    *copy = *startPage;
    *out = copy;
    return ZUNDO_OK;
}

int compareStartPage(const zundo_start_page_s *a, const zundo_start_page_s *b) {
    if (a == nullptr || b == nullptr) return a != b;
    return !(a->page == b->page && a->sheetSide == b->sheetSide &&
             a->description == b->description);
}

}  // extern "C"
