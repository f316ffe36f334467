// PageList and process pages of the RunList (pages).
#include "write/page_list.h"

#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

#include "enums/value_tables.h"
#include "values/value_objects.h"
#include "write/jdf_attr.h"
#include "write/object_values.h"
#include "write/resource_getters.h"
#include "write/runs.h"
#include "zundo_trace.h"

namespace {

const int kNoColorStandard = 1;  // "job-color-standard" None

// A pagination names one range per attribute; only the first is written.
void setRangeIfPresent(xercesc::DOMElement *element, zundo_int_object_s *object,
                       const char *attributeName, const char *jdfName) {
    FetchedAttribute ranges(object, attributeName);
    if (!ranges.hasValue()) return;
    char text[ZUNDO_RANGE_TEXT_SIZE];
    setAttributeTraced(element, jdfName,
                       toStringRange(text, static_cast<const zundo_range_s *>(
                                               nextValue(ranges.attribute()))));
}

void setTextIfPresent(xercesc::DOMElement *element, zundo_int_object_s *object,
                      const char *attributeName, const char *jdfName) {
    FetchedAttribute text(object, attributeName);
    if (text.hasValue()) setAttributeTraced(element, jdfName, text.firstString());
}

void writePageData(xercesc::DOMElement *pageList, zundo_int_object_s *pagination) {
    xercesc::DOMElement *pageData = appendChildTraced(pageList, "PageData");
    if (pageData == nullptr) return;
    setRangeIfPresent(pageData, pagination, "pagination-pages-to-paginate", "PageIndex");
    setRangeIfPresent(pageData, pagination, "pagination-pages", "morvellan:Pages");
    setTextIfPresent(pageData, pagination, "pagination-start", "morvellan:PageStart");
    FetchedAttribute print(pagination, "pagination-print");
    if (print.hasValue()) {
        const char *text = jdfNameForCode(booleanValues, print.firstInt(-1));
        if (text != nullptr) setAttributeTraced(pageData, "morvellan:PrintPages", text);
    }
    setTextIfPresent(pageData, pagination, "pagination-prefix", "PageLabelPrefix");
}

void writeColorPool(xercesc::DOMElement *pageList, int colorStandard) {
    xercesc::DOMElement *colorPool = appendChildTraced(pageList, "ColorPool");
    if (colorPool == nullptr) return;
    if (colorStandard == kNoColorStandard) {
        setAttributeTraced(colorPool, "NoOp", "true");
        return;
    }
    const char *name = jdfNameForCode(colorStandardValues, colorStandard);
    if (name != nullptr) setAttributeTraced(colorPool, "ColorantSetName", name);
}

}  // namespace

zundo_status_t createRangeValues(char **out, zundo_int_attribute_s *rangeAttribute) {
    if (out == nullptr) return ZUNDO_INVALID_ARGUMENT;
    *out = nullptr;
    std::string joined;
    try {
        resetIterator(rangeAttribute);
        while (hasNextValue(rangeAttribute)) {
            char text[ZUNDO_RANGE_TEXT_SIZE];
            toStringRange(text, static_cast<const zundo_range_s *>(nextValue(rangeAttribute)));
            if (!joined.empty()) joined += ' ';
            joined += text;
        }
    } catch (const std::bad_alloc &) {
        traceOutOfMemory("createRangeValues");
        return ZUNDO_OUT_OF_MEMORY;
    }
    if (joined.empty()) return ZUNDO_OK;
    *out = static_cast<char *>(std::malloc(joined.size() + 1));
    if (*out == nullptr) {
        traceOutOfMemory("createRangeValues");
        return ZUNDO_OUT_OF_MEMORY;
    }
    std::memcpy(*out, joined.c_str(), joined.size() + 1);
    return ZUNDO_OK;
}

void writeJobProcessPages(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> Entering writeJobProcessPages\n");
    FetchedAttribute processPages(job, "job-process-pages");
    char *runIndex = nullptr;
    if (!pagesAreDocumentLevel(job) && processPages.hasValue() &&
        createRangeValues(&runIndex, processPages.attribute()) == ZUNDO_OK && runIndex != nullptr) {
        xercesc::DOMElement *link = getRunListPagesLink(ctx);
        xercesc::DOMElement *part = link != nullptr ? appendChildTraced(link, "Part") : nullptr;
        if (part != nullptr) setAttributeTraced(part, "RunIndex", runIndex);
    }
    std::free(runIndex);
    zundo_trace("<< Leaving writeJobProcessPages\n");
}

void writePageList(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writePageList\n");
    FetchedAttribute paginations(job, "job-paginations");
    FetchedAttribute colorStandard(job, "job-color-standard");
    xercesc::DOMElement *runList = paginations.hasValue() || colorStandard.hasValue()
                                       ? getRunListPages(ctx)
                                       : nullptr;
    xercesc::DOMElement *pageList =
        runList != nullptr ? appendChildTraced(runList, "PageList") : nullptr;
    if (pageList != nullptr) {
        zundo_int_attribute_s *list = paginations.attribute();
        while (hasNextValue(list)) {
            auto *pagination = static_cast<zundo_int_object_s *>(nextValue(list));
            if (pagination != nullptr) writePageData(pageList, pagination);
        }
        if (colorStandard.hasValue()) writeColorPool(pageList, colorStandard.firstInt(0));
    }
    zundo_trace("<< leaving writePageList\n");
}
