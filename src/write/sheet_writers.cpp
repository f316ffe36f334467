// Insert, banner and separator sheets of the written ticket: the job's
// sheets in LayoutPreparationParams or the Disjointing of
// DigitalPrintingParams, and the content every insert sheet carries.
#include <cstdlib>
#include <cstring>
#include <xercesc/dom/DOMElement.hpp>

#include "write/element_values.h"
#include "write/jdf_attr.h"
#include "write/layout_writers.h"
#include "write/media_writer.h"
#include "write/number_format.h"
#include "write/page_list.h"
#include "write/resource_getters.h"
#include "write/runs.h"
#include "zundo_trace.h"

namespace {

const int kNoSheetContent = 4;  // "insert-sheet-content"
const int kBlankContent = 1;
const int kDuplicateContent = 2;
const int kHeaderPosition = 2;     // "insert-sheet-position"
const int kNoBannerSheet = 3;      // "banner-sheet-type"
const int kSlipCopySeparator = 3;  // "separator-sheet-type"

// A Layout child of the sheet that refers to the media.
xercesc::DOMElement *appendSheetLayout(JDFWriteContext *ctx, xercesc::DOMElement *sheet,
                                       zundo_int_object_s *media) {
    xercesc::DOMElement *layout = appendChildTraced(sheet, "Layout");
    xercesc::DOMElement *layouts[] = {layout, nullptr};
    if (layout != nullptr && media != nullptr) writeMedia(ctx, media, layouts, nullptr, nullptr);
    return layout;
}

xercesc::DOMElement *appendInsertSheet(xercesc::DOMElement *parent, const char *sheetType) {
    xercesc::DOMElement *sheet =
        parent != nullptr ? appendChildTraced(parent, "InsertSheet") : nullptr;
    if (sheet != nullptr) setAttributeTraced(sheet, "SheetType", sheetType);
    return sheet;
}

// The Disjointing of DigitalPrintingParams, shared with the jog offset.
xercesc::DOMElement *getDisjointing(JDFWriteContext *ctx) {
    xercesc::DOMElement *params = getDigitalPrintingParams(ctx);
    return params != nullptr ? findOrAppendChild(params, "Disjointing") : nullptr;
}

void writeJobInsertSheet(JDFWriteContext *ctx, zundo_int_object_s *insertSheet) {
    zundo_trace("adding %s\n", "InsertSheet");
    xercesc::DOMElement *sheet =
        appendInsertSheet(getLayoutPreparationParams(ctx), "SeparatorSheet");
    if (sheet == nullptr) return;
    int content = FetchedAttribute(insertSheet, "insert-sheet-content").firstInt(0);
    if (content == kNoSheetContent) {
        setAttributeTraced(sheet, "morvellan:NoOp", "true");
        return;
    }
    FetchedAttribute sheets(insertSheet, "insert-sheet-sheets");
    char *sheetIndex = nullptr;
    createRangeValues(&sheetIndex, sheets.attribute());
    if (sheetIndex != nullptr) setAttributeTraced(sheet, "morvellan:SheetIndex", sheetIndex);
    std::free(sheetIndex);
    int position = FetchedAttribute(insertSheet, "insert-sheet-position").firstInt(0);
    setAttributeTraced(sheet, "SheetUsage",
                       position == kHeaderPosition ? "InterleavedBefore" : "Interleaved");
    if (content == kBlankContent)
        setAttributeTraced(sheet, "SheetFormat", "Blank");
    else if (content == kDuplicateContent)
        setAttributeTraced(sheet, "SheetFormat", "Duplicate");
    writeInsertSheetContent(ctx, sheet, insertSheet);
}

}  // namespace

void writeInsertSheetContent(JDFWriteContext *ctx, xercesc::DOMElement *insertSheetElement,
                             zundo_int_object_s *insertSheet) {
    FetchedAttribute copies(insertSheet, "insert-sheet-copies");
    if (copies.hasValue()) {
        xercesc::DOMElement *runList = appendChildTraced(insertSheetElement, "RunList");
        char number[kNumberTextSize];
        if (runList != nullptr)
            setAttributeTraced(runList, "PageCopies",
                               formatInteger(number, sizeof number, copies.firstInt(0)));
    }
    FetchedAttribute media(insertSheet, "insert-sheet-media");
    FetchedAttribute marks(insertSheet, "insert-sheet-marks");
    if (media.hasValue() || marks.hasValue()) {
        xercesc::DOMElement *layout =
            appendSheetLayout(ctx, insertSheetElement, media.firstObject());
        forEachObject(insertSheet, "insert-sheet-marks", [ctx, layout](zundo_int_object_s *mark) {
            xercesc::DOMElement *markObject =
                layout != nullptr ? appendChildTraced(layout, "MarkObject") : nullptr;
            if (markObject != nullptr) writeMark(ctx, mark, layout, nullptr, markObject);
        });
    }
    FetchedAttribute folding(insertSheet, "insert-sheet-folding");
    if (folding.hasValue()) {
        xercesc::DOMElement *params = appendChildTraced(insertSheetElement, "FoldingParams");
        if (params != nullptr) writeInsertSheetFolding(ctx, params, folding.firstObject());
    }
}

void writeInsertSheetFolding(JDFWriteContext *, xercesc::DOMElement *element,
                             zundo_int_object_s *folding) {
    zundo_trace(">> entering writeInsertSheetFolding\n");
    FetchedAttribute type(folding, "folding-type");
    if (type.firstString() != nullptr && std::strcmp(type.firstString(), "None") == 0)
        setAttributeTraced(element, "NoOp", "true");
    else if (type.firstString() != nullptr)
        setAttributeTraced(element, "FoldCatalog", type.firstString());
    zundo_trace("<< leaving writeInsertSheetFolding\n");
}

void writeJobInsertSheets(JDFWriteContext *ctx, zundo_int_object_s *job) {
    zundo_trace(">> entering writeJobInsertSheets\n");
    forEachObject(job, "job-insert-sheets", [ctx](zundo_int_object_s *insertSheet) {
        if (!insertSheetBelongsInRuns(insertSheet)) writeJobInsertSheet(ctx, insertSheet);
    });
    zundo_trace("<< leaving writeJobInsertSheets\n");
}

void writeBannerSheets(JDFWriteContext *ctx, zundo_int_attribute_s *bannerSheets) {
    zundo_trace(">> entering writeBannerSheets\n");
    resetIterator(bannerSheets);
    while (hasNextValue(bannerSheets)) {
        auto *banner = static_cast<zundo_int_object_s *>(nextValue(bannerSheets));
        int type = FetchedAttribute(banner, "banner-sheet-type").firstInt(0);
        if (type == 0) continue;
        xercesc::DOMElement *sheet = appendInsertSheet(getLayoutPreparationParams(ctx), "JobSheet");
        if (sheet == nullptr) continue;
        setAttributeTraced(sheet, "morvellan:BannerSheet", "true");
        // No banner sheets at all: the sheets after it are not wanted.
        if (type == kNoBannerSheet) {
            setAttributeTraced(sheet, "morvellan:NoOp", "true");
            break;
        }
        if (type == 1)
            setAttributeTraced(sheet, "SheetUsage", "Trailer");
        else if (type == 2)
            setAttributeTraced(sheet, "SheetUsage", "Header");
        FetchedAttribute text(banner, "banner-sheet-text");
        FetchedAttribute media(banner, "banner-sheet-media");
        if (!text.hasValue() && !media.hasValue()) continue;
        xercesc::DOMElement *layout = appendSheetLayout(ctx, sheet, media.firstObject());
        xercesc::DOMElement *mark =
            layout != nullptr && text.hasValue() ? appendChildTraced(layout, "Mark") : nullptr;
        xercesc::DOMElement *jobField =
            mark != nullptr ? appendChildTraced(mark, "JobField") : nullptr;
        if (jobField != nullptr) setAttributeTraced(jobField, "JobFormat", text.firstString());
    }
    zundo_trace("<< leaving writeBannerSheets\n");
}

void writeSeparatorSheets(JDFWriteContext *ctx, zundo_int_attribute_s *separatorSheets) {
    zundo_trace(">> entering writeSeparatorSheets\n");
    resetIterator(separatorSheets);
    while (hasNextValue(separatorSheets)) {
        auto *separator = static_cast<zundo_int_object_s *>(nextValue(separatorSheets));
        int type = FetchedAttribute(separator, "separator-sheet-type").firstInt(0);
        if (type == 0) continue;
        // Job sheets belong to the layout; separator sheets between copies
        // to the printing.
        bool jobSheet = type == 1 || type == 2 || type == 4;
        xercesc::DOMElement *sheet =
            jobSheet ? appendInsertSheet(getLayoutPreparationParams(ctx), "JobSheet")
                     : appendInsertSheet(getDisjointing(ctx), "SeparatorSheet");
        if (sheet == nullptr) continue;
        if (type == 4 || type == 5) {
            setAttributeTraced(sheet, "morvellan:NoOp", "true");
            continue;
        }
        static const char *const kUsages[] = {"Slip", "Trailer", "Header", "SlipCopy"};
        setAttributeTraced(sheet, "SheetUsage",
                           type >= 1 && type <= 3 ? kUsages[type] : kUsages[0]);
        FetchedAttribute amount(separator, "separator-sheet-amount");
        char number[kNumberTextSize];
        if (type == kSlipCopySeparator && amount.hasValue())
            setAttributeTraced(sheet, "morvellan:SeparatorAmount",
                               formatInteger(number, sizeof number, amount.firstInt(0)));
        FetchedAttribute media(separator, "separator-sheet-media");
        if (media.hasValue()) {
            zundo_trace("adding %s\n", "Layout");
            appendSheetLayout(ctx, sheet, media.firstObject());
        }
    }
    zundo_trace("<< leaving writeSeparatorSheets\n");
}

void writeSeparatorAndBannerSheets(JDFWriteContext *ctx, zundo_int_object_s *job) {
    FetchedAttribute separators(job, "job-separator-sheets");
    if (separators.hasValue()) writeSeparatorSheets(ctx, separators.attribute());
    FetchedAttribute banners(job, "job-banner-sheets");
    if (banners.hasValue()) writeBannerSheets(ctx, banners.attribute());
}
