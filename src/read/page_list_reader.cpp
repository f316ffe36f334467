// Paginations and the colour standard from the PageList of a RunList.
#include "read/page_list_reader.h"

#include <cstring>

#include "enums/value_tables.h"
#include "read/reader_conversions.h"
#include "zundo_object.h"
#include "zundo_trace.h"

namespace {

void setRangeFromText(zundo_int_object_s *object, const char *name, const char *text) {
    zundo_range_s *range = nullptr;
    if (text == nullptr || newRangeFromString(&range, text) != ZUNDO_OK) return;
    if (setSingleValue(object, name, ZUNDO_KIND_RANGE, range) != ZUNDO_OK) destroyRange(range);
}

zundo_int_object_s *makePagination(const xercesc::DOMElement *pageData) {
    zundo_int_object_s *pagination = nullptr;
    if (newPagination(&pagination) != ZUNDO_OK) return nullptr;
    setRangeFromText(pagination, "pagination-pages",
                     ElementAttribute(pageData, "morvellan:Pages").value());
    setRangeFromText(pagination, "pagination-pages-to-paginate",
                     ElementAttribute(pageData, "PageIndex").value());
    ElementAttribute start(pageData, "morvellan:PageStart");
    if (start.value() != nullptr) setStringAttribute(pagination, "pagination-start", start.value());
    ElementAttribute print(pageData, "morvellan:PrintPages");
    if (print.value() != nullptr)
        setIntegerAttribute(pagination, "pagination-print", convertBoolean(print.value()));
    ElementAttribute prefix(pageData, "PageLabelPrefix");
    if (prefix.value() != nullptr)
        setStringAttribute(pagination, "pagination-prefix", prefix.value());
    return pagination;
}

}  // namespace

zundo_status_t readPageListElement(xercesc::DOMElement *pageList, zundo_int_object_s *job) {
    zundo_trace(">> Entering readPageListElement \n");
    zundo_int_attribute_s *paginations = nullptr;
    if (newAttribute(&paginations, "job-paginations", ZUNDO_KIND_OBJECT, nullptr) != ZUNDO_OK) {
        traceOutOfMemory("readPageListElement");
        return ZUNDO_OK;
    }
    for (ElementEntry *child : ChildElements(pageList)) {
        if (std::strcmp(child->name, "PageData") == 0) {
            zundo_int_object_s *pagination = makePagination(child->element);
            if (pagination != nullptr && addValue(paginations, pagination) != ZUNDO_OK)
                destroy(pagination);
        } else if (std::strcmp(child->name, "ColorPool") == 0) {
            ElementAttribute colorantSet(child->element, "ColorantSetName");
            int standard = colorantSet.value() != nullptr
                               ? codeForJDFName(colorStandardValues, colorantSet.value())
                               : 1;
            setIntegerAttribute(job, "job-color-standard", standard);
        }
    }
    setAndReleaseAttribute(job, paginations);
    zundo_trace("<< Leaving readPageListElement \n");
    return ZUNDO_OK;
}
