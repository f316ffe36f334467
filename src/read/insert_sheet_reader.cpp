// Insert, banner and separator sheets from the InsertSheet elements of a
// Disjointing or a LayoutPreparationParams.
#include "read/insert_sheet_reader.h"

#include <cstring>
#include <memory>
#include <new>
#include <xercesc/dom/DOMElement.hpp>

#include "read/reader_conversions.h"
#include "xml/index_lists.h"
#include "zundo_trace.h"

namespace {

// What the children of an InsertSheet say about the sheet.
struct SheetContent {
    SheetContent() = default;
    SheetContent(const SheetContent &) = delete;
    SheetContent &operator=(const SheetContent &) = delete;
    ~SheetContent() {
        if (media != nullptr) destroy(media);
    }

    std::unique_ptr<char[]> bannerText;
    zundo_int_object_s *media = nullptr;  // owned until a sheet takes it
    int copies = -1;
};

void readSheetLayout(xercesc::DOMElement *layout, IdElement **mediaList, SheetContent *content) {
    for (ElementEntry *item : ChildElements(layout)) {
        if (std::strcmp(item->name, "MediaRef") == 0) {
            replaceWithReferencedMedia(item->element, mediaList, &content->media);
        } else if (std::strcmp(item->name, "Mark") == 0) {
            for (ElementEntry *field : ChildElements(item->element)) {
                if (std::strcmp(field->name, "JobField") != 0) continue;
                ElementAttribute format(field->element, "JobFormat");
                if (format.value() != nullptr) content->bannerText.reset(copyText(format.value()));
            }
        }
    }
}

void readSheetChildren(xercesc::DOMElement *insertSheet, IdElement **mediaList,
                       SheetContent *content) {
    for (ElementEntry *child : ChildElements(insertSheet)) {
        if (std::strcmp(child->name, "Layout") == 0) {
            readSheetLayout(child->element, mediaList, content);
        } else if (std::strcmp(child->name, "RunList") == 0) {
            ElementAttribute copies(child->element, "PageCopies");
            convertStringToInt(copies.value(), &content->copies);
        }
    }
}

// A sheet the object cannot hold is ours to destroy.
void appendSheet(zundo_int_object_s *object, const char *name, zundo_int_object_s *sheet) {
    if (appendAttributeValue(object, name, sheet) == ZUNDO_NOT_FOUND) destroy(sheet);
}

void handMediaTo(zundo_int_object_s *sheet, const char *name, SheetContent *content) {
    if (content->media == nullptr) return;
    if (setObjectAttribute(sheet, name, content->media) != ZUNDO_OK) destroy(content->media);
    content->media = nullptr;
}

struct SheetKinds {
    int insert = 0;
    int separator = 0;
    int banner = 0;
};

// An absent SheetType or SheetUsage gives no kind at all.
SheetKinds kindsOf(const char *sheetType, const char *usage) {
    SheetKinds kinds;
    if (sheetType == nullptr || usage == nullptr) return kinds;
    if (std::strcmp(sheetType, "JobSheet") != 0) {
        if (std::strcmp(usage, "SlipCopy") == 0)
            kinds.separator = 3;
        else if (std::strcmp(usage, "Interleaved") == 0)
            kinds.insert = 1;
        else if (std::strcmp(usage, "InterleavedBefore") == 0)
            kinds.insert = 2;
    } else if (std::strcmp(usage, "Header") == 0) {
        kinds.separator = 2;
        kinds.banner = 2;
    } else if (std::strcmp(usage, "Trailer") == 0) {
        kinds.separator = 1;
        kinds.banner = 1;
    }
    return kinds;
}

// Over the sheets a SheetIndex names, else over all pages.
zundo_status_t newInsertSheetOver(zundo_int_object_s **out, int kind, const char *sheetIndex) {
    if (sheetIndex == nullptr) {
        zundo_range_s *all = nullptr;
        zundo_status_t status = newRange(&all, 0, -1);
        if (status != ZUNDO_OK) return status;
        zundo_range_s *pages[] = {all, nullptr};
        return newInsertSheet(out, kind, pages, nullptr);
    }
    char **tokens = nullptr;
    parsePages(sheetIndex, &tokens);
    size_t count = 0;
    while (tokens != nullptr && tokens[count] != nullptr) ++count;
    std::unique_ptr<zundo_range_s *[]> sheets(new (std::nothrow) zundo_range_s *[count + 1]);
    if (sheets == nullptr) {
        freePageTokens(tokens);
        traceOutOfMemory("readInsertSheetFromParams");
        return ZUNDO_OUT_OF_MEMORY;
    }
    size_t made = 0;
    for (size_t i = 0; i < count; ++i)
        if (newRangeFromString(&sheets[made], tokens[i]) == ZUNDO_OK) ++made;
    sheets[made] = nullptr;
    freePageTokens(tokens);
    return newInsertSheetWithSheets(out, kind, sheets.get());
}

// A morvellan:NoOp sheet only says that no sheet of its kind is wanted.
zundo_status_t readNoOpSheet(zundo_int_object_s *object, xercesc::DOMElement *insertSheet,
                             bool banner, const char *sheetType) {
    zundo_int_object_s *sheet = nullptr;
    zundo_status_t status = ZUNDO_OK;
    if (banner) {
        status = newBannerSheet(&sheet, 3);
        if (status == ZUNDO_OK) appendSheet(object, "job-banner-sheets", sheet);
        return status;
    }
    std::unique_ptr<char[]> holder(getElementName(getParentElement(insertSheet)));
    if (textIs(holder.get(), "LayoutPreparationParams") && sheetType != nullptr) {
        if (std::strcmp(sheetType, "JobSheet") == 0) {
            status = newSeparatorSheet(&sheet, 4, nullptr);
            if (status == ZUNDO_OK) appendSheet(object, "job-separator-sheets", sheet);
        } else {
            // It stands for the whole job, so it names no pages.
            status = newInsertSheet(&sheet, 0, nullptr, nullptr);
            if (status == ZUNDO_OK) {
                setIntegerAttribute(sheet, "insert-sheet-content", 4);
                appendSheet(object, "job-insert-sheets", sheet);
            }
        }
    } else if (textIs(holder.get(), "Disjointing")) {
        status = newSeparatorSheet(&sheet, 5, nullptr);
        if (status == ZUNDO_OK) appendSheet(object, "job-separator-sheets", sheet);
    }
    return status;
}

zundo_status_t readClassifiedSheet(zundo_int_object_s *object, xercesc::DOMElement *insertSheet,
                                   IdElement **mediaList, bool banner, const SheetKinds &kinds) {
    SheetContent content;
    readSheetChildren(insertSheet, mediaList, &content);
    zundo_int_object_s *sheet = nullptr;
    zundo_status_t status = ZUNDO_OK;
    if (kinds.insert != 0) {
        ElementAttribute sheetIndex(insertSheet, "morvellan:SheetIndex");
        status = newInsertSheetOver(&sheet, kinds.insert, sheetIndex.value());
        if (status != ZUNDO_OK) return status;
        ElementAttribute format(insertSheet, "SheetFormat");
        if (textIs(format.value(), "Duplicate"))
            setIntegerAttribute(sheet, "insert-sheet-content", 2);
        else if (textIs(format.value(), "Blank"))
            setIntegerAttribute(sheet, "insert-sheet-content", 1);
        handMediaTo(sheet, "insert-sheet-media", &content);
        if (content.copies != -1) setIntegerAttribute(sheet, "insert-sheet-copies", content.copies);
        appendSheet(object, "job-insert-sheets", sheet);
    } else if (banner) {
        status = newBannerSheet(&sheet, kinds.banner);
        if (status != ZUNDO_OK) return status;
        if (content.bannerText != nullptr)
            setStringAttribute(sheet, "banner-sheet-text", content.bannerText.get());
        handMediaTo(sheet, "banner-sheet-media", &content);
        appendSheet(object, "job-banner-sheets", sheet);
    } else {
        // A DescriptiveName "Cover" leaves the separator unmarked: a
        // separator sheet has no content to say so, and the writer writes
        // no DescriptiveName for it. The constructor takes the media
        // whether or not it succeeds.
        zundo_int_object_s *media = content.media;
        content.media = nullptr;
        status = newSeparatorSheet(&sheet, kinds.separator, media);
        if (status != ZUNDO_OK) return status;
        ElementAttribute amountText(insertSheet, "morvellan:SeparatorAmount");
        int amount = 0;
        convertStringToInt(amountText.value(), &amount);
        // 0 means no amount; the separator sheet refuses it.
        if (amount != 0) setIntegerAttribute(sheet, "separator-sheet-amount", amount);
        appendSheet(object, "job-separator-sheets", sheet);
    }
    return ZUNDO_OK;
}

}  // namespace

zundo_status_t readInsertSheetFromParams(zundo_int_object_s *object,
                                         const ElementEntry *insertSheet, IdElement **mediaList) {
    if (insertSheet == nullptr) return ZUNDO_INVALID_ARGUMENT;
    zundo_trace(">> Entering readInsertSheetFromParams \n");
    xercesc::DOMElement *element = insertSheet->element;
    ElementAttribute sheetType(element, "SheetType");
    ElementAttribute usage(element, "SheetUsage");
    ElementAttribute noOp(element, "morvellan:NoOp");
    bool banner = ElementAttribute(element, "morvellan:BannerSheet").value() != nullptr;
    zundo_status_t status = ZUNDO_ERROR;
    if (textIs(noOp.value(), "true"))
        status = readNoOpSheet(object, element, banner, sheetType.value());
    else if (banner || (sheetType.value() != nullptr && usage.value() != nullptr))
        status = readClassifiedSheet(object, element, mediaList, banner,
                                     kindsOf(sheetType.value(), usage.value()));
    zundo_trace("<< Leaving readInsertSheetFromParams \n");
    return status;
}
